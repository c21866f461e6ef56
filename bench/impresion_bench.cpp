// The cost of the printer and of a class: a worksheet of about fifty pages
// sent through the printer path (into a PDF printer, as a print to file is),
// and a twenty-problem worksheet made for a class of thirty students.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QPrinter>
#include <QTemporaryDir>

#include "bench/hoja_bench.h"
#include "output/grupo.h"
#include "output/impresion.h"
#include "output/paginas.h"

namespace {

struct Hoja : bench::Entorno {
  explicit Hoja(int problemas) : bench::Entorno(problemas) { ss::CrearColeccion(s, 1); }
};

void BM_ImprimeHoja(benchmark::State& state) {
  Hoja h(static_cast<int>(state.range(0)));
  QTemporaryDir dir;
  ss::EleccionImpresion todas;
  const std::vector<int> orden = ss::OrdenDeImpresion(todas, h.doc.numPaginas);
  for (auto _ : state) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(dir.filePath("impresa.pdf"));
    ss::PonPapelA4(impresora);
    const ss::FinImpresion fin = ss::ImprimeDocumento(impresora, "Problems of Chemistry", h.motor,
                                                      h.doc, orden, [](int) { return true; });
    if (fin != ss::FinImpresion::Hecha) state.SkipWithError("the printer did not finish");
  }
  state.counters["pages"] = h.doc.numPaginas;
  state.counters["sheets"] = static_cast<double>(orden.size());
}
BENCHMARK(BM_ImprimeHoja)->Arg(200)->Unit(benchmark::kMillisecond);

// Every problem gets new numbers for every student: the heaviest class run.
void BM_GrupoDeTreinta(benchmark::State& state) {
  Hoja h(20);
  ss::PedidoGrupo pedido;
  for (int i = 1; i <= 30; ++i) pedido.alumnos.push_back(QString("Student %1").arg(i, 2, 10, QChar('0')));
  pedido.distintos.assign(h.doc.col.problemas.size(), true);
  for (auto _ : state) {
    state.PauseTiming();
    QTemporaryDir dir;
    pedido.carpeta = dir.path();
    state.ResumeTiming();
    const ss::GrupoHecho hecho = ss::HazGrupo(h.s, pedido, [](int) { return true; });
    if (hecho.ficheros.size() != 30) state.SkipWithError("a copy is missing");
  }
  state.counters["problems"] = static_cast<double>(h.doc.col.problemas.size());
  state.counters["students"] = 30;
}
BENCHMARK(BM_GrupoDeTreinta)->Unit(benchmark::kMillisecond);

}  // namespace
