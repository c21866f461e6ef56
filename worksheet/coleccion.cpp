#include "worksheet/coleccion.h"

#include <cmath>

#include "problems/aleatorio.h"
#include "problems/texto.h"

namespace ss {

std::string ComandoProblema(const Problema& p) {
  return ZeroPadCut(p.Rutina, 3) + ZeroPadCut(p.Semilla, 3) + ZeroPadCut(p.NumVariante, 4) +
         ZeroPadCut(p.Cantidad, 2) + ZeroPadCut(p.Total, 2) + ZeroPadCut(p.Orden, 2);
}

ArbolItem& Arbol::Agrega(ArbolItem fila) {
  filas.push_back(std::move(fila));
  return filas.back();
}

void Arbol_to_Var(Arbol& arbol, Coleccion& col, Aleatorio& rnd) {
  col.problemas.clear();
  for (int i = 1; i <= arbol.Count(); ++i) {
    ArbolItem& fila = arbol.filas[static_cast<std::size_t>(i)];
    if (!fila.Marcado || fila.Cantidad1 == 0) {
      fila.Marcado = false;
      fila.Cantidad1 = 0;
      continue;
    }
    const std::string modulo(Trim(fila.ModuloFijo));
    for (int j = 1; j <= fila.Cantidad1; ++j) {
      if (static_cast<int>(col.problemas.size()) >= kMaxProblemas) break;
      Problema p;
      if (j == 1) {
        p.Semilla = static_cast<int16_t>(std::floor(rnd.Siguiente() * 900));
        p.NumVariante = static_cast<int16_t>(std::floor(rnd.Siguiente() * 9000));
      } else {
        const Problema& prev = col.problemas.back();
        p.Semilla = static_cast<int16_t>(prev.Semilla + 1);
        p.NumVariante = static_cast<int16_t>(prev.NumVariante + 1);
      }
      p.Total = fila.Cantidad1;
      p.Orden = static_cast<int16_t>(j);
      p.Rutina = fila.Rutina;
      p.Modulo = modulo;
      p.Cantidad = fila.Cantidad2;
      col.problemas.push_back(std::move(p));
    }
  }
  col.cab.NPROB = static_cast<int32_t>(col.problemas.size());
}

}  // namespace ss
