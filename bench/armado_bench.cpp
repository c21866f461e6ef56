// The cost of assembling a worksheet: making the texts of 500 problems,
// wrapping them into blocks and finding their pages; and the re-pagination
// that follows a change of one problem.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"
#include "worksheet/colfile.h"
#include "bench/hoja_bench.h"

namespace {

using bench::Entorno;

void BM_CrearColeccion500(benchmark::State& state) {
  Entorno e;
  const std::vector<ss::Problema> recetas = e.doc.col.problemas;
  for (auto _ : state) {
    e.doc.col.problemas = recetas;
    ss::CrearColeccion(e.s, 1);
    benchmark::DoNotOptimize(e.doc.numPaginas);
  }
  state.counters["problems"] = static_cast<double>(e.doc.col.problemas.size());
  state.counters["blocks"] = static_cast<double>(e.doc.bloques.size());
  state.counters["pages"] = e.doc.numPaginas;
}
BENCHMARK(BM_CrearColeccion500)->Unit(benchmark::kMillisecond);

// ArmarBloques (with its pagination) of the made worksheet, alone; the time
// a page should stay the same whatever the length of the worksheet.
void BM_ArmarBloques(benchmark::State& state) {
  Entorno e(static_cast<int>(state.range(0)));
  ss::CrearColeccion(e.s, 1);
  for (auto _ : state) {
    ss::ArmarBloques(e.s, 0);
    benchmark::DoNotOptimize(e.doc.numPaginas);
  }
  state.counters["pages"] = e.doc.numPaginas;
  state.counters["per_page"] = benchmark::Counter(
      e.doc.numPaginas, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_ArmarBloques)->Arg(100)->Arg(250)->Arg(500)->Unit(benchmark::kMillisecond);

// One problem in the middle re-made with new numbers: its text, then the
// blocks and pages of the whole worksheet again, as after an edit.
void BM_RecrearUnProblema500(benchmark::State& state) {
  Entorno e;
  ss::CrearColeccion(e.s, 1);
  int variante = 0;
  for (auto _ : state) {
    ss::Problema& p = e.doc.col.problemas[250];
    p.NumVariante = static_cast<int16_t>(variante++ % 9000);
    ss::RecrearProblema(e.s, p, 251, true);
    benchmark::DoNotOptimize(e.doc.numPaginas);
  }
  state.counters["pages"] = e.doc.numPaginas;
}
BENCHMARK(BM_RecrearUnProblema500)->Unit(benchmark::kMillisecond);

// Opening a worksheet whose picture directory holds n entries, of which the
// texts name n / 10: the time should grow with n, not with its square.
void BM_CargarConImagenes(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  QTemporaryDir dir;
  Entorno e(20);
  e.s.carpetas.programa = dir.path();
  e.s.carpetas.temporal = dir.path() + "/scratch";
  ss::CrearColeccion(e.s, 1);
  for (int k = 0; k < n / 10; ++k)
    e.doc.col.problemas[0].Solucion += " #IMG('p" + std::to_string(k * 10) + ".gif'#IMG)";
  std::string texto = ss::TextoColeccion(e.doc.col);
  const std::size_t d = texto.size() + 1;
  std::string directorio;
  std::size_t pos = d + 48 * static_cast<std::size_t>(n);
  auto campo = [](std::string t, std::size_t ancho) { t.resize(ancho, ' '); return t; };
  for (int k = 0; k < n; ++k, pos += 4)
    directorio += campo("p" + std::to_string(k) + ".gif", 32) + campo(std::to_string(pos), 8) +
                  campo("4", 8);
  texto.replace(texto.find("00000000"), 8, campo(std::to_string(d), 8));
  const QString ruta = dir.path() + "/many.col";
  QFile f(ruta);
  f.open(QIODevice::WriteOnly);
  f.write(QByteArray::fromStdString(texto + directorio + std::string(4 * n, 'x')));
  f.close();
  for (auto _ : state) {
    e.doc.ruta = ruta;
    benchmark::DoNotOptimize(ss::CargarColeccion(e.s));
  }
  state.counters["pictures"] = static_cast<double>(QDir(e.s.carpetas.temporal).count() - 2);
}
BENCHMARK(BM_CargarConImagenes)->Arg(400)->Arg(4000)->Unit(benchmark::kMillisecond);

}  // namespace
