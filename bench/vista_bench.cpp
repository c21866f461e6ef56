// The page view: one page of a 20-page worksheet drawn at zoom 1 into the
// view's image, one edit to the page redrawn, and a page turn of the main
// window (the page drawn, the label and the buttons brought up to date).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>

#include "bench/hoja_bench.h"
#include "gui/dialogos.h"
#include "gui/formmain.h"
#include "gui/vista.h"
#include "worksheet/ajustes.h"
#include "worksheet/colfile.h"
#include "worksheet/edicion.h"

namespace {

// About 20 pages: 80 problems of the gases, formulas and solutions module.
struct Hoja20 : bench::Entorno {
  QTemporaryDir dir;
  QString ruta;
  Hoja20() : Entorno(80) {
    textos.LoadIdioma();
    ss::CrearColeccion(s, 1);
    ruta = dir.filePath("hoja.col");
    doc.ruta = ruta;
    ss::GuardarColeccion(s);
  }
};

Hoja20& LaHoja() {
  static Hoja20 hoja;
  return hoja;
}

void BM_PintarPaginaVista(benchmark::State& state) {
  Hoja20& h = LaHoja();
  ss::VistaPagina vista;
  vista.PonZoom(1);
  const int pagina = h.doc.numPaginas / 2;
  for (auto _ : state) vista.PintarPagina(h.doc, h.motor, pagina);
  state.counters["pages"] = h.doc.numPaginas;
}
BENCHMARK(BM_PintarPaginaVista)->Unit(benchmark::kMillisecond);

// One edit in the middle of the worksheet, as the teacher sees it: the
// problem in the middle moves down a place (its undo step stored), the blocks
// are rebuilt and paginated anew, and the page it lands on is drawn.
void BM_EdicionAlaPagina(benchmark::State& state) {
  Hoja20& h = LaHoja();
  ss::VistaPagina vista;
  vista.PonZoom(1);
  const int medio = static_cast<int>(h.doc.col.problemas.size()) / 2;
  for (auto _ : state) {
    int bloque = 0;
    for (std::size_t b = 0; b < h.doc.bloques.size(); ++b)
      if (h.doc.bloques[b].Problema == medio) bloque = static_cast<int>(b) + 1;
    h.doc.marcas = {ss::MarcaPagina{0, 0, true, bloque}};
    if (!ss::Mover(h.s, 3)) state.SkipWithError("nothing moved");
    vista.PintarPagina(h.doc, h.motor, h.doc.paginaActual);
  }
  state.counters["pages"] = h.doc.numPaginas;
}
BENCHMARK(BM_EdicionAlaPagina)->Unit(benchmark::kMillisecond);

// Says nothing and asks nothing.
struct Callados final : ss::Dialogos {
  void Aviso(QWidget*, const QString&) override {}
  void Critico(QWidget*, const QString&) override {}
  ss::Respuesta Pregunta(QWidget*, const QString&) override { return ss::Respuesta::No; }
  bool Confirma(QWidget*, const QString&) override { return false; }
  QString FicheroAbrir(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QString FicheroGuardar(QWidget*, const QString&, const QString&, const QString&) override { return {}; }
  QString Carpeta(QWidget*, const QString&, const QString&) override { return {}; }
  void ConfiguraImpresora(QWidget*, QPrinter&) override {}
  std::unique_ptr<ss::Avance> EmpiezaAvance(QWidget*, const QString&, int) override { return nullptr; }
  ss::RespuestaPanel PanelInicio(ss::FormIniOpt&) override { return {}; }
  void Modal(QDialog&) override {}
  bool LanzaPrograma(const QString&) override { return false; }
  bool AbreConEscritorio(const QUrl&) override { return false; }
  void TerminaYa() override {}
};

void BM_PasoDePagina(benchmark::State& state) {
  Hoja20& h = LaHoja();
  ss::AlmacenMemoria almacen;
  Callados dialogos;
  ss::FormMain ventana(almacen, dialogos, {h.ruta});
  ventana.resize(1100, 900);
  ventana.show();
  QElapsedTimer reloj;
  reloj.start();
  while (ventana.documento().numPaginas < 2 && reloj.elapsed() < 10000) QCoreApplication::processEvents();
  if (ventana.documento().numPaginas < 2) state.SkipWithError("the worksheet did not open");
  bool adelante = true;
  for (auto _ : state) {
    if (ventana.documento().paginaActual >= ventana.documento().numPaginas) adelante = false;
    if (ventana.documento().paginaActual <= 1) adelante = true;
    QKeyEvent tecla(QEvent::KeyPress, adelante ? Qt::Key_PageDown : Qt::Key_PageUp, Qt::NoModifier);
    QCoreApplication::sendEvent(ventana.centralWidget(), &tecla);
  }
  state.counters["pages"] = ventana.documento().numPaginas;
}
BENCHMARK(BM_PasoDePagina)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
