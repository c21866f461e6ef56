// The geometry of the formula constructs, on the recording canvas whose
// metrics are exact: at 12 points a character is 120 twips wide, "Hp" 276 high.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/typeset/canvas_registro.h"
#include "typeset/construccion.h"
#include "typeset/motor.h"

namespace ss {
namespace {

using test::CanvasRegistro;
using test::Linea;

constexpr double kH = 276;
constexpr double kLetra = 122;  // 120 and one twip of spacing each side
constexpr double kEje = 0.574 * kH;

TEST(Fraction, BoxFloorsCentringAndTheBarOnTheAxis) {
  Linea l("#COC(1#N)(2#COC)");
  const Caja& f = l.Construccion();
  const double t = 15, g = 15, s = 0.09 * kH;  // bar and gaps at their floor of 15
  EXPECT_DOUBLE_EQ(f.Adelanto + f.Sobre, 0);
  EXPECT_DOUBLE_EQ(f.Ancho, 2 * s + kLetra);
  EXPECT_DOUBLE_EQ(f.Eje, kH + g + t / 2);
  EXPECT_DOUBLE_EQ(f.Alto, f.Eje + t / 2 + g + kH);
  // The line grows by what the fraction holds below the axis.
  EXPECT_DOUBLE_EQ(l.m.Cajas[1].Alto, f.Alto - f.Eje + kEje);
  EXPECT_DOUBLE_EQ(l.m.Cajas[1].Sobre, f.Eje - kEje);
  // Missing parts are empty.
  EXPECT_DOUBLE_EQ(Linea("#COC(#N)(#COC)").Construccion().Ancho, 2 * s);
  EXPECT_DOUBLE_EQ(Linea("#COC(5#COC)").Construccion().Ancho, 2 * s + kLetra);
  // The narrower part is shifted by half the difference of the widths; the
  // line sets the fraction so that its bar lies on the axis.
  Linea d("#COC(1#N)(222#COC)", 12, true);
  ASSERT_EQ(d.c.trazos.size(), 4u);
  const double x0 = d.m.Cajas[2].PosX;
  EXPECT_DOUBLE_EQ(d.c.trazos[0].x, x0 + (3 * kLetra - kLetra) / 2 + s + 1);
  EXPECT_DOUBLE_EQ(d.c.trazos[1].x, x0 + s + 1);
  ASSERT_EQ(d.c.rayas.size(), 1u);
  EXPECT_DOUBLE_EQ(d.c.rayas[0].y1, kEje);  // the axis of the line, from its top at 0
  EXPECT_DOUBLE_EQ(d.c.rayas[0].x2 - d.c.rayas[0].x1, 2 * s + 3 * kLetra - 15);
  Linea e("#COC(12#N)(34#COC)", 12, true);  // equal widths: neither part moves
  EXPECT_DOUBLE_EQ(e.c.trazos[0].x, e.c.trazos[2].x);
  // Nested, at 40 points (H 920): the bar is 0.04 H outside and 0.02 H inside.
  const double h = 23 * 40;
  Linea n("#COC(1#N)(#COC(2#N)(3#COC)#COC)", 40);
  EXPECT_DOUBLE_EQ(n.m.Cajas[2].Eje, h + 0.0354 * h + 0.04 * h / 2);
  EXPECT_DOUBLE_EQ(n.m.Cajas[5].Eje, h + 0.0354 * h + 0.02 * h / 2);  // the inner fraction's own box
  // H of 200: every gap is the floor of 15, not 7.
  EXPECT_DOUBLE_EQ(Linea("#COC(1#N)(2#COC)", 200.0 / 23).Construccion().Eje, 200 + 15 + 7.5);
}

TEST(Scripts, PowersAndStackedIndices) {
  Linea l("#POT(10#PB)(-3#POT)", 12, true);
  const Caja& p = l.Construccion();
  const double ancho8 = 80 + 2 * std::max(1.0, 0.04 * 23 * 8);  // the small dash has side spacing
  EXPECT_DOUBLE_EQ(p.Ancho, 2 * kLetra + ancho8 + 82);
  EXPECT_DOUBLE_EQ(p.Sobre, 23 * 8 - kH * 8 / 12);
  EXPECT_DOUBLE_EQ(p.Alto, kH);
  ASSERT_EQ(l.c.trazos.size(), 4u);
  // The small exponent hangs from the top of the base.
  EXPECT_EQ(l.c.trazos[2].fuente.tamano + l.c.trazos[3].fuente.tamano, 16);
  EXPECT_DOUBLE_EQ(l.c.trazos[3].y, l.c.trazos[0].y);
  EXPECT_GT(l.c.trazos[2].x, l.c.trazos[1].x + 120);
  // Stacked indices set right end where the symbol starts.
  Linea s("#SPB(R4#T)(22#SPB)He", 12, true);
  ASSERT_EQ(s.c.trazos.size(), 5u);  // 4, 2, 2, H, e
  EXPECT_DOUBLE_EQ(s.c.trazos[0].x, s.c.trazos[2].x);
  EXPECT_LT(s.c.trazos[0].y, s.c.trazos[1].y);
  // The fraction level stays raised: a later fraction gets the thin bar.
  Linea f("#SPB(L1#T)(2#SPB)#COC(1#N)(2#COC)", 40);
  const double h = 23 * 40;
  const Caja& frac = f.m.Cajas[5];
  EXPECT_DOUBLE_EQ(frac.Eje, h + 0.0354 * h + 0.02 * h / 2);
}

TEST(Roots, CubeRootIsTheRootWithIndexThreeAndTheRuleCoversTheRadicand) {
  Linea a("#CUR(x#CUR)", 12, true), b("#RAD(#RI(3#RI)x#RAD)", 12, true);
  for (auto campo : {&Caja::Adelanto, &Caja::Ancho, &Caja::Sobre})
    EXPECT_DOUBLE_EQ(a.Construccion().*campo, b.Construccion().*campo);
  EXPECT_EQ(a.c.Texto() + b.c.Texto(), "x3x3");
  ASSERT_EQ(a.c.rayas.size(), 4u);  // rule, thin stroke, thick stroke, hook
  for (std::size_t k = 0; k < 4; ++k)
    EXPECT_EQ(std::pair(a.c.rayas[k].x1, a.c.rayas[k].y2), std::pair(b.c.rayas[k].x1, b.c.rayas[k].y2));
  EXPECT_EQ(Linea("#RAD(x#RAD)", 12, true).c.Texto(), "x");
  // The rule covers the radicand, and the colour ends with the root.
  Linea l("&FC=Rojo:#SQR(abc#SQR)d", 12, true);
  const Caja& r = l.Construccion();
  EXPECT_DOUBLE_EQ(r.Ancho, 0.09 * kH + 3 * kLetra);
  EXPECT_DOUBLE_EQ(r.Sobre, 15 + 15);  // gap and rule at their floors
  EXPECT_DOUBLE_EQ(r.Alto, kH + 0.0754 * kH);
  const test::Raya& regla = l.c.rayas[0];
  EXPECT_LT(regla.x1, l.c.trazos[0].x);
  EXPECT_GT(regla.x2, l.c.trazos[2].x + 120);
  EXPECT_EQ(l.c.trazos[0].color + l.c.trazos[3].color, 255);  // "d" after the radical is black
}

TEST(Delimiters, BracesWidenTheirSideAndBracketsGrowWithTheirContent) {
  Linea paren("#NES(()x#NES)"), llave("#NES({)x#NES)"), blancos("#NES(  x#NES)", 12, true);
  const double u = 0.1 * kH;
  EXPECT_DOUBLE_EQ(llave.Construccion().Adelanto - paren.Construccion().Adelanto, 2 * u);
  EXPECT_DOUBLE_EQ(llave.Construccion().Ancho, paren.Construccion().Ancho);
  EXPECT_DOUBLE_EQ(paren.Construccion().Sobre, 2 * u);
  EXPECT_DOUBLE_EQ(paren.Construccion().Alto, kH + 2 * u);
  EXPECT_TRUE(blancos.c.rayas.empty() && blancos.c.Texto() == "x");
  auto tallo = [](std::string_view t) {
    Linea l(t, 12, true);
    double largo = 0;
    for (const test::Raya& r : l.c.rayas)
      if (r.x1 == r.x2) largo = std::max(largo, std::fabs(r.y2 - r.y1));
    return largo;
  };
  EXPECT_GT(tallo("#NES([]#COC(a#N)(b#COC)#NES)"), tallo("#NES([]x#NES)") * 1.8);
}

TEST(Rows, StacksAreCentredOnTheAxisAndArrowsReachBeyondTheirTexts) {
  Linea l("#RWS(C#RW1(one#RW1)#RW2(two rows#RW2)#RWS)", 12, true);
  const Caja& r = l.Construccion();
  const double e = 0.0354 * kH;
  EXPECT_DOUBLE_EQ(r.Ancho, 8 * kLetra);
  EXPECT_DOUBLE_EQ(r.Alto, e + 2 * kH);
  EXPECT_DOUBLE_EQ(r.Eje, r.Alto / 2);
  // "one" centred over "two rows"; the second row one gap below the first.
  EXPECT_DOUBLE_EQ(l.c.trazos[0].x - l.c.trazos[3].x, (8 - 3) * kLetra / 2);
  EXPECT_DOUBLE_EQ(l.c.trazos[3].y - l.c.trazos[0].y, kH + e);
  Linea una("#RWS(L#RW1(x#RW1)#RWS)");
  EXPECT_DOUBLE_EQ(una.Construccion().Eje, kEje);
  // An arrow with text reaches beyond its texts.
  Linea f("#ATX(&Delta#T)(cat#ATX)", 12, true);
  const double s = 0.09 * kH, ancho = 2 * s + 3 * kLetra;
  EXPECT_DOUBLE_EQ(f.Construccion().Adelanto, 7 * s);
  EXPECT_DOUBLE_EQ(f.Construccion().Ancho, 7 * s + ancho);
  ASSERT_EQ(f.c.rayas.size(), 3u);  // shaft and two barbs
  EXPECT_DOUBLE_EQ(f.c.rayas[0].x2 - f.c.rayas[0].x1, ancho - 15 + 12 * s);
}

TEST(Decorations, BoxesAndRulesInTheLineColour) {
  Linea l("&LC=Azul:#REC(x = 2#REC)", 12, true);
  ASSERT_EQ(l.c.rayas.size(), 4u);
  for (const test::Raya& r : l.c.rayas) EXPECT_EQ(r.color, 16711680);
  // A harpoon over the text; the raised one stands above the tops of
  // capitals (the line's top, 0) and inside its own box.
  Linea vec("#VEC(F#VEC)", 12, true), ved("#VED(F#VED)", 12, true);
  ASSERT_EQ(vec.c.rayas.size() + ved.c.rayas.size(), 4u);
  EXPECT_DOUBLE_EQ(vec.Construccion().Ancho, kLetra + 0.04 * kH);
  EXPECT_GT(vec.c.rayas[0].y1, 0);
  EXPECT_LT(ved.c.rayas[0].y1, 0);
  for (const test::Raya& r : ved.c.rayas) EXPECT_GE(std::min(r.y1, r.y2), -ved.Construccion().Sobre);
}

// The integral sign takes the room of its own advance before the argument.
TEST(Integral, TheSignEndsBeforeTheArgument) {
  Linea i("W#INT(P#INT)", 12, true);
  ASSERT_EQ(i.c.Texto(), "WP\xF2");
  const test::Trazo &w = i.c.trazos[0], &p = i.c.trazos[1], &signo = i.c.trazos[2];
  EXPECT_EQ(signo.fuente.nombre + std::to_string(signo.fuente.tamano), "Symbol24.000000");
  const double anchoSigno = 10 * 24;  // wider than 0.6 H here
  EXPECT_GE(signo.x, w.x + 120);
  EXPECT_LE(signo.x + anchoSigno, p.x);
  EXPECT_DOUBLE_EQ(i.Construccion().Adelanto, anchoSigno);
}

}  // namespace
}  // namespace ss
