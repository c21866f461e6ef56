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

constexpr double kH = 276;
constexpr double kLetra = 122;  // 120 and one twip of spacing each side
constexpr double kEje = 0.574 * kH;

// Pass 1 of one line; the construct is the first one, box 2.
struct Linea {
  CanvasRegistro c;
  Motor m;
  explicit Linea(std::string_view texto, double tamano = 12) {
    c.fuente.tamano = tamano;
    m.canvas = &c;
    m.AnchoPagina = 1e6;
    m.PasoDibujo = false;
    m.NumCaja = 1;
    m.InterpretaTexto(texto);
  }
  const Caja& Construccion() const { return m.Cajas[2]; }
  // Pass 2 from the top left corner (0, 0).
  void Dibuja(std::string_view texto) {
    c.trazos.clear();
    c.rayas.clear();
    m.PasoDibujo = true;
    m.NumCaja = 1;
    c.CurrentX = c.CurrentY = 0;
    m.InterpretaTexto(texto);
  }
};

TEST(Fraction, BoxFollowsItsArgumentsAndTheFloors) {
  Linea l("#COC(1#N)(2#COC)");
  const Caja& f = l.Construccion();
  const double t = 15, g = 15, s = 0.09 * kH;  // bar and gaps at their floor of 15
  EXPECT_DOUBLE_EQ(f.Adelanto, 0);
  EXPECT_DOUBLE_EQ(f.Ancho, 2 * s + kLetra);
  EXPECT_DOUBLE_EQ(f.Sobre, 0);
  EXPECT_DOUBLE_EQ(f.Eje, kH + g + t / 2);
  EXPECT_DOUBLE_EQ(f.Alto, f.Eje + t / 2 + g + kH);
  // The line grows by what the fraction holds below the axis.
  EXPECT_DOUBLE_EQ(l.m.Cajas[1].Alto, f.Alto - f.Eje + kEje);
  EXPECT_DOUBLE_EQ(l.m.Cajas[1].Sobre, f.Eje - kEje);
}

TEST(Fraction, NarrowerPartIsCentredAndTheBarSitsOnTheAxis) {
  Linea l("#COC(1#N)(222#COC)");
  l.Dibuja("#COC(1#N)(222#COC)");
  const double s = 0.09 * kH;
  ASSERT_EQ(l.c.trazos.size(), 4u);
  // Numerator shifted by half the difference of the widths; the line set the
  // fraction so that its bar lies on the axis.
  const double shift = (3 * kLetra - kLetra) / 2;
  const double x0 = l.m.Cajas[2].PosX;
  EXPECT_DOUBLE_EQ(l.c.trazos[0].x, x0 + shift + s + 1);
  EXPECT_DOUBLE_EQ(l.c.trazos[1].x, x0 + s + 1);
  ASSERT_EQ(l.c.rayas.size(), 1u);
  const test::Raya& bar = l.c.rayas[0];
  EXPECT_DOUBLE_EQ(bar.y1, kEje);  // the axis of the line, from its top at 0
  EXPECT_DOUBLE_EQ(bar.x2 - bar.x1, 2 * s + 3 * kLetra - 15);
  // Equal widths: neither part moves.
  Linea e("#COC(12#N)(34#COC)");
  e.Dibuja("#COC(12#N)(34#COC)");
  EXPECT_DOUBLE_EQ(e.c.trazos[0].x, e.c.trazos[2].x);
}

TEST(Fraction, NestedFractionsHaveTheThinBarAndFloorsHold) {
  // At 40 points H is 920: the bar is 0.04 H outside and 0.02 H inside.
  const double h = 23 * 40;
  Linea l("#COC(1#N)(#COC(2#N)(3#COC)#COC)", 40);
  const double g = 0.0354 * h;
  EXPECT_DOUBLE_EQ(l.m.Cajas[2].Eje, h + g + 0.04 * h / 2);
  EXPECT_DOUBLE_EQ(l.m.Cajas[5].Eje, h + g + 0.02 * h / 2);  // the inner fraction's own box
  // H of 200: every gap is the floor of 15, not 7.
  Linea f("#COC(1#N)(2#COC)", 200.0 / 23);
  EXPECT_DOUBLE_EQ(f.Construccion().Eje, 200 + 15 + 7.5);
}

TEST(Fraction, MissingPartsAreEmpty) {
  Linea l("#COC(#N)(#COC)");
  EXPECT_DOUBLE_EQ(l.Construccion().Ancho, 2 * 0.09 * kH);
  Linea sinSeparador("#COC(5#COC)");
  EXPECT_DOUBLE_EQ(sinSeparador.Construccion().Ancho, 2 * 0.09 * kH + kLetra);
}

TEST(Power, ExponentSmallAndRaised) {
  Linea l("#POT(10#PB)(-3#POT)");
  const Caja& p = l.Construccion();
  const double ancho8 = 80 + 2 * std::max(1.0, 0.04 * 23 * 8);  // the small dash has side spacing
  EXPECT_DOUBLE_EQ(p.Ancho, 2 * kLetra + ancho8 + 82);
  EXPECT_DOUBLE_EQ(p.Sobre, 23 * 8 - kH * 8 / 12);
  EXPECT_DOUBLE_EQ(p.Alto, kH);
  l.Dibuja("#POT(10#PB)(-3#POT)");
  ASSERT_EQ(l.c.trazos.size(), 4u);
  // The small exponent hangs from the top of the base.
  EXPECT_EQ(l.c.trazos[2].fuente.tamano, 8);
  EXPECT_EQ(l.c.trazos[3].fuente.tamano, 8);
  EXPECT_DOUBLE_EQ(l.c.trazos[3].y, l.c.trazos[0].y);
  EXPECT_GT(l.c.trazos[2].x, l.c.trazos[1].x + 120);
}

TEST(StackedIndices, RightAlignmentPutsTheNumbersAgainstTheSymbol) {
  Linea l("#SPB(R4#T)(22#SPB)He");
  l.Dibuja("#SPB(R4#T)(22#SPB)He");
  ASSERT_EQ(l.c.trazos.size(), 5u);  // 4, 2, 2, H, e
  const double fin4 = l.c.trazos[0].x + 80;
  const double fin22 = l.c.trazos[2].x + 80;
  EXPECT_DOUBLE_EQ(fin4, fin22);  // both end where the symbol starts
  EXPECT_LT(l.c.trazos[0].y, l.c.trazos[1].y);
  // The fraction level stays raised: a later fraction gets the thin bar.
  Linea f("#SPB(L1#T)(2#SPB)#COC(1#N)(2#COC)", 40);
  const double h = 23 * 40;
  const Caja& frac = f.m.Cajas[5];
  EXPECT_DOUBLE_EQ(frac.Eje, h + 0.0354 * h + 0.02 * h / 2);
}

TEST(Roots, CubeRootIsTheRootWithIndexThree) {
  Linea a("#CUR(x#CUR)");
  Linea b("#RAD(#RI(3#RI)x#RAD)");
  EXPECT_DOUBLE_EQ(a.Construccion().Adelanto, b.Construccion().Adelanto);
  EXPECT_DOUBLE_EQ(a.Construccion().Ancho, b.Construccion().Ancho);
  EXPECT_DOUBLE_EQ(a.Construccion().Sobre, b.Construccion().Sobre);
  a.Dibuja("#CUR(x#CUR)");
  b.Dibuja("#RAD(#RI(3#RI)x#RAD)");
  EXPECT_EQ(a.c.Texto(), "x3");
  EXPECT_EQ(b.c.Texto(), "x3");
  ASSERT_EQ(a.c.rayas.size(), 4u);  // rule, thin stroke, thick stroke, hook
  for (std::size_t k = 0; k < 4; ++k) {
    EXPECT_DOUBLE_EQ(a.c.rayas[k].x1, b.c.rayas[k].x1);
    EXPECT_DOUBLE_EQ(a.c.rayas[k].y2, b.c.rayas[k].y2);
  }
  Linea sin("#RAD(x#RAD)");
  sin.Dibuja("#RAD(x#RAD)");
  EXPECT_EQ(sin.c.Texto(), "x");
}

TEST(Roots, TheRuleCoversTheRadicandAndTheColourEnds) {
  Linea l("&FC=Rojo:#SQR(abc#SQR)d");
  const Caja& r = l.Construccion();
  const double p = 15, g = 15, rr = 0.09 * kH;
  EXPECT_DOUBLE_EQ(r.Ancho, rr + 3 * kLetra);
  EXPECT_DOUBLE_EQ(r.Sobre, g + p);
  EXPECT_DOUBLE_EQ(r.Alto, kH + 0.0754 * kH);
  l.Dibuja("&FC=Rojo:#SQR(abc#SQR)d");
  const test::Raya& regla = l.c.rayas[0];
  EXPECT_LT(regla.x1, l.c.trazos[0].x);
  EXPECT_GT(regla.x2, l.c.trazos[2].x + 120);
  EXPECT_EQ(l.c.trazos[0].color, 255);
  EXPECT_EQ(l.c.trazos[3].color, 0);  // "d" after the radical is black
}

TEST(Delimiters, ACurlyBraceWidensItsSideOnly) {
  Linea paren("#NES(()x#NES)");
  Linea llave("#NES({)x#NES)");
  const double u = 0.1 * kH;
  EXPECT_DOUBLE_EQ(llave.Construccion().Adelanto - paren.Construccion().Adelanto, 2 * u);
  EXPECT_DOUBLE_EQ(llave.Construccion().Ancho, paren.Construccion().Ancho);
  Linea blancos("#NES(  x#NES)");
  blancos.Dibuja("#NES(  x#NES)");
  EXPECT_TRUE(blancos.c.rayas.empty());
  EXPECT_EQ(blancos.c.Texto(), "x");
  EXPECT_DOUBLE_EQ(paren.Construccion().Sobre, 2 * u);
  EXPECT_DOUBLE_EQ(paren.Construccion().Alto, kH + 2 * u);
}

TEST(Delimiters, BracketsGrowWithTheirContent) {
  Linea bajo("#NES([]x#NES)");
  Linea alto("#NES([]#COC(a#N)(b#COC)#NES)");
  bajo.Dibuja("#NES([]x#NES)");
  alto.Dibuja("#NES([]#COC(a#N)(b#COC)#NES)");
  auto tallo = [](const CanvasRegistro& c) {
    double largo = 0;
    for (const test::Raya& r : c.rayas)
      if (r.x1 == r.x2) largo = std::max(largo, std::fabs(r.y2 - r.y1));
    return largo;
  };
  EXPECT_GT(tallo(alto.c), tallo(bajo.c) * 1.8);
}

TEST(RowStack, RowsAreCentredOnTheAxis) {
  Linea l("#RWS(C#RW1(one#RW1)#RW2(two rows#RW2)#RWS)");
  const Caja& r = l.Construccion();
  const double e = 0.0354 * kH;
  EXPECT_DOUBLE_EQ(r.Ancho, 8 * kLetra);
  EXPECT_DOUBLE_EQ(r.Alto, e + 2 * kH);
  EXPECT_DOUBLE_EQ(r.Eje, r.Alto / 2);
  l.Dibuja("#RWS(C#RW1(one#RW1)#RW2(two rows#RW2)#RWS)");
  // "one" centred over "two rows"; the second row one gap below the first.
  EXPECT_DOUBLE_EQ(l.c.trazos[0].x - l.c.trazos[3].x, (8 - 3) * kLetra / 2);
  EXPECT_DOUBLE_EQ(l.c.trazos[3].y - l.c.trazos[0].y, kH + e);
  Linea una("#RWS(L#RW1(x#RW1)#RWS)");
  EXPECT_DOUBLE_EQ(una.Construccion().Eje, kEje);
}

TEST(ArrowWithText, ReachesBeyondItsTexts) {
  Linea l("#ATX(&Delta#T)(cat#ATX)");
  const Caja& a = l.Construccion();
  const double s = 0.09 * kH;
  const double ancho = 2 * s + 3 * kLetra;
  EXPECT_DOUBLE_EQ(a.Adelanto, 7 * s);
  EXPECT_DOUBLE_EQ(a.Ancho, 7 * s + ancho);
  l.Dibuja("#ATX(&Delta#T)(cat#ATX)");
  ASSERT_EQ(l.c.rayas.size(), 3u);  // shaft and two barbs
  EXPECT_DOUBLE_EQ(l.c.rayas[0].x2 - l.c.rayas[0].x1, ancho - 15 + 12 * s);
}

TEST(Decorations, BoxesAndRulesInTheLineColour) {
  Linea l("&LC=Azul:#REC(x = 2#REC)");
  l.Dibuja("&LC=Azul:#REC(x = 2#REC)");
  ASSERT_EQ(l.c.rayas.size(), 4u);
  for (const test::Raya& r : l.c.rayas) EXPECT_EQ(r.color, 16711680);
  Linea v("#VEC(F#VEC)");
  v.Dibuja("#VEC(F#VEC)");
  EXPECT_EQ(v.c.rayas.size(), 2u);
  EXPECT_DOUBLE_EQ(v.Construccion().Ancho, kLetra + 0.04 * kH);
}

TEST(Constructs, DrawingTakesTheBoxesMeasuringWrote) {
  // Whatever the nesting, pass 2 reads the same box numbers as pass 1.
  for (std::string_view t :
       {"#COC(#SQR(#POT(x#PB)(#COC(1#N)(2#COC)#POT)#SQR)#N)(#NES(()a#NES)#COC)",
        "#RWS(C#RW1(#SPB(R1#T)(2#SPB)#RW1)#RW2(#ATX(a#T)(b#ATX)#RW2)#RWS)",
        "#RAD(#RI(#COC(1#N)(3#COC)#RI)#TDX(#INT(x#INT)#TDX)#RAD)",
        "#TST(a#TS)(#ST1(b#ST1)#ST2(c#ST2)#TST)#EXP(x#EXP)"}) {
    Linea l(t);
    const int cajas = l.m.NumCaja;
    l.Dibuja(t);
    EXPECT_EQ(l.m.NumCaja, cajas) << t;
    EXPECT_GT(cajas, 3) << t;
  }
}

}  // namespace
}  // namespace ss
