// The cost of the spine: turning a tree into problems and asking the modules.
#include <benchmark/benchmark.h>

#include "modules/modulos.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "worksheet/coleccion.h"

namespace {

void BM_GeneraProblemaNotice(benchmark::State& state) {
  ss::GenContext g(nullptr, ss::Aleatorio(1));
  std::string st, so;
  for (auto _ : state) {
    ss::GeneraProblema(g, "okbr_chem_dis", "0040451230050301", st, so);
    benchmark::DoNotOptimize(st);
  }
}
BENCHMARK(BM_GeneraProblemaNotice);

// One real problem of the gases, formulas and solutions module, with the
// message tables loaded; the variant runs on so that every form is met.
void BM_GeneraDis(benchmark::State& state) {
  static ss::Mensajes mensajes(SS_SOURCE_DIR);
  ss::GenContext g(&mensajes, ss::Aleatorio(1));
  const std::string cabeza = ss::ZeroPadCut(state.range(0), 3) + "000";
  std::string st, so;
  int variante = 0;
  for (auto _ : state) {
    const std::string command = cabeza + ss::ZeroPadCut(variante++ % 100, 4) + "060301";
    ss::GeneraProblema(g, "ANEU_QUIM_DIS", command, st, so);
    benchmark::DoNotOptimize(st);
  }
}
BENCHMARK(BM_GeneraDis)->DenseRange(1, 21)->Unit(benchmark::kMicrosecond);

void BM_ArbolToVar500(benchmark::State& state) {
  ss::Arbol arbol;
  arbol.Agrega({});
  for (int i = 0; i < 50; ++i) {
    ss::ArbolItem f;
    f.ModuloFijo = "ANEU_QUIM_DIS";
    f.ModuloFijo.resize(80, ' ');
    f.Rutina = static_cast<int16_t>(i % 21 + 1);
    f.Marcado = true;
    f.Cantidad1 = 10;
    arbol.Agrega(f);
  }
  ss::Aleatorio rnd(1);
  ss::Coleccion col;
  for (auto _ : state) {
    ss::Arbol_to_Var(arbol, col, rnd);
    benchmark::DoNotOptimize(col.problemas.data());
  }
}
BENCHMARK(BM_ArbolToVar500);

}  // namespace
