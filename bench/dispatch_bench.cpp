// The cost of the spine: turning a tree into problems and asking the modules.
#include <benchmark/benchmark.h>

#include "modules/modulos.h"
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
