// One run of the worksheet core for the tests: a platform that records what the
// windows were told, and temporary program, scratch and worksheet folders.
#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <tuple>
#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"
#include "worksheet/colfile.h"

namespace ss::test {

struct PlataformaRegistro : PlataformaMuda {
  std::vector<std::string> avisos, criticos, progreso;
  std::vector<QString> titulos, recientes;
  std::vector<bool> estados, ocupado;
  bool exitoGuardarComo = false;
  const int* busy = nullptr;
  int busyEnGuardarComo = -1;                   // AppBusy when Save As was offered
  int dejaCorrer = 0, appBusyMinimo = 1 << 30;  // the lowest AppBusy seen while events ran
  void Aviso(const std::string& t) override { avisos.push_back(t); }
  void Critico(const std::string& t) override { criticos.push_back(t); }
  void TituloVentana(const QString& t) override { titulos.push_back(t); }
  void Reciente(const QString& r) override { recientes.push_back(r); }
  void EstadoDocumento(bool a) override { estados.push_back(a); }
  bool GuardarComo() override { return busyEnGuardarComo = *busy, exitoGuardarComo; }
  void DejaCorrer() override { ++dejaCorrer, appBusyMinimo = std::min(appBusyMinimo, *busy); }
  void Ocupado(bool o) override { ocupado.push_back(o); }
  void Progreso(const std::string& t) override { progreso.push_back(t); }
};

inline Mensajes& MensajesReales() { static Mensajes m(SS_SOURCE_DIR); return m; }
constexpr uint64_t kSemilla = 20240611;

struct Banco {
  QTemporaryDir programa, raiz, ficheros;
  Documento doc;
  PlataformaRegistro pl;
  GenContext gen{&MensajesReales(), Aleatorio(kSemilla)};
  Motor motor;
  CanvasQt oculta{nullptr};
  TextosVentana textos{SS_SOURCE_DIR, "MAI"};
  Sesion s{doc, pl, gen, motor, oculta, textos, Carpetas{}};

  explicit Banco(int possol = 0, int posnumpag = 0) {
    textos.LoadIdioma();
    QDir(programa.path()).mkdir("img");
    std::tie(s.carpetas.programa, s.carpetas.temporal, pl.busy) = std::tuple(programa.path(), raiz.path() + "/lftemp", &doc.AppBusy);
    std::tie(doc.col.cab.POSSOL, doc.col.cab.POSNUMPAG) = std::tuple(possol, posnumpag);
  }
  QString Ruta(const QString& nombre) const { return ficheros.path() + "/" + nombre; }
  QString Temp(const QString& nombre) const { return s.carpetas.temporal + "/" + nombre; }
  bool Guarda(const QString& ruta) { return doc.ruta = ruta, GuardarColeccion(s); }
  bool Carga(const QString& ruta) { return doc.ruta = ruta, CargarColeccion(s); }
  Coleccion& col() { return doc.col; }
  void Agrega(std::string enunciado, std::string solucion) {  // a module without generators
    doc.col.problemas.push_back(Problema{"ANEU_QUIM_TER", 1, 0, 0, 0, 0, 0, enunciado, solucion});
    doc.col.cab.NPROB = static_cast<int32_t>(doc.col.problemas.size());
  }
  int Compone(const std::string& texto) { return motor.ComponerTexto(texto, 12, oculta), motor.UltimaMarca; }
  std::vector<int> Campo(int Bloque::*campo) const {
    std::vector<int> v;
    for (const Bloque& b : doc.bloques) v.push_back(b.*campo);
    return v;
  }
};

}  // namespace ss::test
