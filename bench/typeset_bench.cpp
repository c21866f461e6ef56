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

// The page of `texto` drawn into an image at zoom 1, as the screen draws it,
// once per iteration.
void DibujaPaginas(benchmark::State& state, const std::string& texto, ss::Motor motor) {
  QImage image(796, 1125, QImage::Format_RGB32);
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(1.0 / 15, 1.0 / 15);
    ss::CanvasQt canvas(&painter, ss::TipoCanvas::Pantalla);
    motor.ComponerTexto(texto, 12, canvas);
  }
}

void BM_DrawnPage(benchmark::State& state) {
  const std::string texto = PaginaDeProblemas(6);
  DibujaPaginas(state, texto, ss::Motor());
}
BENCHMARK(BM_DrawnPage)->Unit(benchmark::kMillisecond);

// A page of organic structures, equilibrium tables and Lewis pictures, as a
// nomenclature or equilibrium worksheet has them, drawn into an image; every
// picture is read from its file in both passes.
void BM_DrawnPageOfDrawings(benchmark::State& state) {
  std::string texto;
  for (int i = 1; i <= 4; ++i) {
    texto += "#MARK=" + std::to_string(100 + i) + "&LF";
    texto += "a) #BCV(SXSXXX#R1(CH_3#R1)#R3(CH_3#R3)#BCV) b) #A6V(&EC=SDSSSS:#A6V) "
             "c) CH_3-CH_2-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_3 d) #A5L(DXXXX#R1(O#R1)#A5L)&LF";
    texto += "#CEQ(3'H_2 + I_2 &Q 2HI'#A11(Initial#A11)#A21(0.50#A21)#A31(0.50#A31)#A51(0#A51)"
             "#A12(Change#A12)#A22(-x#A22)#A32(-x#A32)#A52(+2x#A52)#A13(Equilibrium#A13)"
             "#A23(0.50 - x#A23)#A33(0.50 - x#A33)#A53(2x#A53)#CEQ)&LF";
    texto += "#IMG('Q_LW_H2O.gif'DXmm=22:DYmm=22:#IMG) #IMG('Q_LW_NH3.gif'DXmm=22:DYmm=22:#IMG)&LF";
  }
  ss::Motor motor;
  motor.BuscaImagen = [](const std::string& nombre) { return std::string(SS_SOURCE_DIR "/img/") + nombre; };
  DibujaPaginas(state, texto, std::move(motor));
}
BENCHMARK(BM_DrawnPageOfDrawings)->Unit(benchmark::kMillisecond);

}  // namespace
