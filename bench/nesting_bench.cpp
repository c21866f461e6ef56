// The cost of hostile markup: constructs nested thousands deep, and runs of
// constructs that never close, about 60 KB of text each, set as one page on
// the hidden canvas of pagination.
#include <benchmark/benchmark.h>


#include <string>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"

namespace {

constexpr std::size_t kTamano = 60000;

// Open tags, one "x", then as many close tags: about kTamano characters.
std::string Anidado(const std::string& tag) {
  const std::string abre = "#" + tag + "(", cierra = "#" + tag + ")";
  const std::size_t n = kTamano / (abre.size() + cierra.size());
  std::string t;
  for (std::size_t k = 0; k < n; ++k) t += abre;
  t += "x";
  for (std::size_t k = 0; k < n; ++k) t += cierra;
  return t;
}

// Words, each followed by an open tag that no close matches: the text wraps
// over many lines and every line meets constructs without end. With `final`,
// one close stands at the very end, so that every search runs to it.
std::string SinCierre(bool final) {
  std::string t;
  while (t.size() < kTamano) t += "word #SEG(";
  if (final) t += "#SEG)";
  return t;
}

void Compone(benchmark::State& state, const std::string& texto) {
  ss::CanvasQt canvas(nullptr);
  ss::Motor motor;
  for (auto _ : state) {
    motor.ComponerTexto(texto, 12, canvas);
    benchmark::DoNotOptimize(motor.UltimaMarca);
  }
  state.counters["chars"] = static_cast<double>(texto.size());
}

void BM_NestedRules(benchmark::State& state) { Compone(state, Anidado("SEG")); }
void BM_NestedRoots(benchmark::State& state) { Compone(state, Anidado("SQR")); }
void BM_NestedFractions(benchmark::State& state) {
  std::string t;
  while (t.size() < kTamano * 2 / 3) t += "#COC(1#N)(";
  const std::size_t n = t.size() / 10;
  t += "x";
  for (std::size_t k = 0; k < n; ++k) t += "#COC)";
  Compone(state, t);
}
void BM_UnclosedRun(benchmark::State& state) { Compone(state, SinCierre(false)); }
void BM_UnmatchedRun(benchmark::State& state) { Compone(state, SinCierre(true)); }

BENCHMARK(BM_NestedRules)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NestedRoots)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NestedFractions)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnclosedRun)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnmatchedRun)->Unit(benchmark::kMillisecond);

}  // namespace
