// The cost of composing pages: the hidden page of pagination (metrics only)
// and a page drawn into an image.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"

namespace {

// About a page of ordinary problem text: statements, solutions, formulas.
std::string PaginaDeProblemas(int problemas) {
  std::string t;
  for (int i = 1; i <= problemas; ++i) {
    t += "#MARK=" + std::to_string(100 + i) + "&LF";
    t += "&+B" + std::to_string(i) + ".&-B A sample of 2&.50& g of calcium carbonate, CaCO_3, is heated "
         "until it decomposes into calcium oxide and carbon dioxide. Find the volume of CO_2 "
         "released at 25& \xB0" "C and 1& atm, and the mass of CaO left. "
         "Atomic masses: &+ICa = 40, C = 12, O = 16 &-I(g/mol).&LF";
    t += "CaCO_3 &Q CaO + CO_2&LF&+Ba)&-B V = 0&.611& L; &+Bb)&-B m = 1&.40& g; K = 1&.8&E-5&LF";
  }
  return t;
}

void BM_HiddenPage(benchmark::State& state) {
  const std::string texto = PaginaDeProblemas(6);
  ss::CanvasQt canvas(nullptr);
  ss::Motor motor;
  for (auto _ : state) {
    motor.ComponerTexto(texto, 12, canvas);
    benchmark::DoNotOptimize(motor.UltimaMarca);
  }
  state.counters["chars"] = static_cast<double>(texto.size());
}
BENCHMARK(BM_HiddenPage)->Unit(benchmark::kMicrosecond);

void BM_DrawnPage(benchmark::State& state) {
  const std::string texto = PaginaDeProblemas(6);
  QImage image(796, 1125, QImage::Format_RGB32);
  ss::Motor motor;
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(1.0 / 15, 1.0 / 15);
    ss::CanvasQt canvas(&painter, ss::TipoCanvas::Pantalla);
    motor.ComponerTexto(texto, 12, canvas);
  }
}
BENCHMARK(BM_DrawnPage)->Unit(benchmark::kMillisecond);

}  // namespace
