// A worksheet for the benchmarks: problems of the gases, formulas and solutions
// module (500 unless told), solutions after their problems, page numbers at
// the foot; everything a worksheet command works with, quiet.
#pragma once

#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"

namespace bench {

struct Entorno {
  ss::Documento doc;
  ss::PlataformaMuda plataforma;
  ss::Mensajes mensajes{SS_SOURCE_DIR};
  ss::GenContext gen{&mensajes, ss::Aleatorio(2024)};
  ss::Motor motor;
  ss::CanvasQt oculta{nullptr};
  ss::TextosVentana textos{SS_SOURCE_DIR, "MAI"};
  ss::Sesion s{doc, plataforma, gen, motor, oculta, textos, ss::Carpetas{}};

  // The recipes of the problems; CrearColeccion makes their texts.
  explicit Entorno(int problemas = 500) {
    ss::ColeccionCab& cab = doc.col.cab;
    cab.POSSOL = 1;
    cab.POSNUMPAG = 9;
    cab.PAGINI = 1;
    cab.ORDENA = ss::kVerdadero;
    cab.PROSUF = ")";
    cab.TITULO = "Problems of Chemistry";
    ss::Arbol arbol;
    ss::ArbolItem raiz;
    raiz.Tipo = 6;
    arbol.Agrega(raiz);
    for (int rutina = 1; rutina <= 20; ++rutina) {
      ss::ArbolItem f;
      f.Nivel = 2;
      f.Tipo = 3;
      f.ModuloFijo = "ANEU_QUIM_DIS";
      f.Rutina = static_cast<int16_t>(rutina);
      f.Marcado = true;
      f.Cantidad1 = static_cast<int16_t>(problemas / 20);
      f.Cantidad2 = 6;
      arbol.Agrega(f);
    }
    ss::Arbol_to_Var(arbol, doc.col, gen.rnd);
  }
};

}  // namespace bench
