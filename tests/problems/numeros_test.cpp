#include "problems/numeros.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "problems/aleatorio.h"
#include "problems/fallos.h"

namespace ss {
namespace {

TEST(AleatorioEn, AnEmptyRangeGivesItsValueWithoutADraw) {
  Aleatorio rnd = Aleatorio::Guionado({0.3, 0.6});
  EXPECT_EQ(AleatorioEn(rnd, 1, 1, 0, 1), 1);
  EXPECT_EQ(AleatorioEn(rnd, 0, 0, 1, 1), 0);  // the zero test is not reached
  EXPECT_EQ(rnd.Siguiente(), 0.3);             // nothing was consumed
}

TEST(AleatorioEn, GridDrawsReachTheEndsWithHalfTheWeight) {
  Aleatorio rnd(11);
  std::map<double, int> seen;
  for (int i = 0; i < 40000; ++i) ++seen[AleatorioEn(rnd, 0, 4, 1, 0)];
  ASSERT_EQ(seen.size(), 5u);
  EXPECT_NEAR(seen[0], 5000, 400);
  EXPECT_NEAR(seen[4], 5000, 400);
  for (double inner : {1.0, 2.0, 3.0}) EXPECT_NEAR(seen[inner], 10000, 500);
}

TEST(AleatorioEn, NoZeroDrawsAgainOnZero) {
  Aleatorio rnd(5);
  std::set<double> seen;
  for (int i = 0; i < 500; ++i) seen.insert(AleatorioEn(rnd, 0, 1, 1, 1));
  EXPECT_EQ(seen, std::set<double>{1});
  seen.clear();
  for (int i = 0; i < 500; ++i) seen.insert(AleatorioEn(rnd, -1, 1, 2, 1));
  EXPECT_EQ(seen, (std::set<double>{-1, 1}));
}

TEST(AleatorioEn, GridValuesComeOutWithoutRoundingNoise) {
  Aleatorio rnd(17);
  for (int i = 0; i < 2000; ++i) {
    const double v = AleatorioEn(rnd, 0.1, 0.9, 0.1, 1);
    const double tenths = v * 10;
    EXPECT_NEAR(tenths, std::round(tenths), 1e-9);
    EXPECT_GE(v, 0.1 - 1e-12);
    EXPECT_LE(v, 0.9 + 1e-12);
    const double whole = AleatorioEn(rnd, 1, 30, 1, 1);
    EXPECT_EQ(whole, std::floor(whole));  // exact integers, not 2.9999999
  }
}

TEST(AleatorioEn, ContinuousDrawsStayInsideAReversedRangeToo) {
  Aleatorio rnd(23);
  for (int i = 0; i < 1000; ++i) {
    const double v = AleatorioEn(rnd, 5, 2, 0, 0);
    EXPECT_LE(v, 5);
    EXPECT_GT(v, 2);
  }
}

TEST(AleatorioEn, GivesUpOnAnImpossibleRangeAndSaysSo) {
  Aleatorio rnd(1);
  EXPECT_EQ(AleatorioEn(rnd, 0, 0.4, 1, 1), 0);  // the grid holds only 0
  EXPECT_TRUE(rnd.RangoFallido);
  AleatorioEn(rnd, 1, 3, 1, 1);
  EXPECT_FALSE(rnd.RangoFallido);
}

TEST(EnteroSiCasi, WipesOutGridNoise) {
  EXPECT_EQ(EnteroSiCasi(2.9999999999), 3);
  EXPECT_EQ(EnteroSiCasi(-4.00000000001), -4);
  EXPECT_EQ(EnteroSiCasi(0.30000000000000004), 0.30000000000000004);
  EXPECT_EQ(EnteroSiCasi(2.5), 2.5);
  EXPECT_EQ(EnteroSiCasi(1e308), 1e308);  // overflow of the test: x as it is
}

TEST(AzarSupera, ComparesAs32BitFloatsStrictly) {
  // 0.50000001 is 0.5 as a float: not above 0.5.
  Aleatorio equal = Aleatorio::Guionado({0.50000001});
  EXPECT_FALSE(AzarSupera(equal, 0.5));
  Aleatorio above = Aleatorio::Guionado({0.5001});
  EXPECT_TRUE(AzarSupera(above, 0.5));
  Aleatorio below = Aleatorio::Guionado({0.2});
  EXPECT_FALSE(AzarSupera(below, 0.5));
}

TEST(RedondeaPot, RoundsAtTheDigitOneAboveN) {
  struct Case {
    double x, n, r;
  } cases[] = {{1234, 1, 1200}, {2.345, -3, 2.35}, {-2.5, -1, -2}, {2.5, -1, 3},
               {0.000123456, -7, 0.000123}, {99950, 2, 100000}, {149, 1, 100}};
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(RedondeaPot(c.x, c.n), c.r) << c.x << " " << c.n;
}

TEST(NumTexto, WritesTheShortestTextWithTheMarkupMarks) {
  struct Case {
    double x;
    const char* text;
  } cases[] = {
      {0, "0"},          {-0.5, "-0&.5"},        {2.5, "2&.5"},          {1e15, "1&E+15"},
      {1.5e-7, "1&.5&E-7"}, {-1.5e-7, "-1&.5&E-7"}, {0.1 + 0.2, "0&.3"}, {100000, "100000"},
      {123456789012345, "123456789012345"},      {0.0001, "0&.0001"},    {2.5e-5, "2&.5&E-5"},
      {1e-12, "1&E-12"}, {1.23e20, "1&.23&E+20"}, {-42, "-42"},          {1 / 3.0, "0&.333333333333333"},
  };
  for (const auto& c : cases) EXPECT_EQ(NumTexto(c.x), c.text) << c.x;
}

TEST(NumCifras, FixedFormDropsZerosPowerFormKeepsThem) {
  struct Case {
    double x, cifras;
    const char* text;
  } cases[] = {
      {2.5, 3, "2&.5"},
      {0.00012345, 3, "1&.23&E-4"},
      {0.001, 3, "1&.00&E-3"},
      {123456, 3, "1&.23&E5"},
      {99950, 2, "100000"},
      {0, 4, "0"},
      {100000, 2, "1&.0&E5"},
      {99999, 6, "99999"},
      {9.996e-3, 3, "1&.00&E-2"},
      {-0.00012345, 3, "-1&.23&E-4"},
      {-2.567, 3, "-2&.57"},
      {6.02214e23, 4, "6&.022&E23"},
      {1.5e-7, 1, "2&E-7"},
      {22.414, 3, "22&.4"},
      {0.0821, 3, "0&.0821"},
  };
  for (const auto& c : cases) EXPECT_EQ(NumCifras(c.x, c.cifras), c.text) << c.x << " " << c.cifras;
}

TEST(NumCifras, ANumberThatIsNotFiniteIsAFault) {
  EXPECT_THROW(NumCifras(std::nan(""), 3), GenFault);
  EXPECT_THROW(NumTexto(HUGE_VAL), GenFault);
}

TEST(NumAgrupado, GroupsInThreesPastFourDigits) {
  struct Case {
    double x;
    const char* texto;
    const char* text;
  } cases[] = {
      {1234, "", "1234"},
      {12345, "", "12_ 345"},
      {0, "1234,5", "1_ 234&.5"},
      {-1234567.125, "", "-1_ 234_ 567&.125"},
      {0, " -0&.123456 ", "-0&.123_ 456"},
      {0, ".5", "0&.5"},
      {12.5, "", "12&.5"},
      {1.5e-7, "", "1&.5&E-07"},
      {0, "12 345 678", "12_ 345_ 678"},
  };
  for (const auto& c : cases) EXPECT_EQ(NumAgrupado(c.x, c.texto), c.text) << c.x << " " << c.texto;
}

TEST(Arithmetic, DecimalPartDivisorsAndMultiples) {
  EXPECT_DOUBLE_EQ(ParteDecimal(3.25), 0.25);
  EXPECT_DOUBLE_EQ(ParteDecimal(-3.25), -0.25);
  EXPECT_EQ(ParteDecimal(2e15), 0);
  struct Case {
    double a, b, mcd;
  } cases[] = {{12, 18, 6}, {-12, 18, 6}, {0, 7, 7}, {7, 0, 7}, {0, 0, 1},
               {2e10, 4, 1}, {17, 5, 1}, {4, -6, 2}};
  for (const auto& c : cases) EXPECT_EQ(MCD(c.a, c.b), c.mcd) << c.a << " " << c.b;
  EXPECT_EQ(MCM(4, 6), 12);
  EXPECT_EQ(MCM(3, 5), 15);
  EXPECT_EQ(MCM(6, 0), 0);
}

TEST(FraccionTexto, ReducesAndPutsTheSignOnTop) {
  EXPECT_EQ(FraccionTexto(4, -6), "#COC(-2  #N)(3#COC)");
  EXPECT_EQ(FraccionTexto(6, 3), "2");
  EXPECT_EQ(FraccionTexto(0, 5), "0");
  EXPECT_EQ(FraccionTexto(3, 4), "#COC(3#N)(4#COC)");
  EXPECT_EQ(FraccionTexto(-10, -4), "#COC(5#N)(2#COC)");
}

TEST(TextServices, CapitalsArticlesAndPrepositions) {
  EXPECT_EQ(Capitaliza("mole"), "Mole");
  EXPECT_EQ(Capitaliza("\xE9tat"), "\xC9tat");
  EXPECT_EQ(Capitaliza(""), "");
  EXPECT_EQ(DeNombre("hidr\xF3geno", false), "d'hidr\xF3geno");
  EXPECT_EQ(DeNombre("hna", true), "De hna");
  EXPECT_EQ(DeNombre("", false), "d'");
  EXPECT_EQ(DeNombre("sodi", false), "de sodi");
  EXPECT_EQ(DeNombre("\xC0rea", false), "d'\xC0rea");
  struct Case {
    double x;
    const char* article;
  } cases[] = {{1, "an "},      {8, "an "},     {11, "an "},     {18, "an "},       {2, "a "},
               {0, "a "},       {-8, "a "},     {0.8, "a "},     {80, "an "},       {89.9, "an "},
               {90, "a "},      {100, "an "},   {199, "an "},    {800, "an "},      {11000, "an "},
               {10000, "a "},   {15000, "a "},  {18500, "an "},  {1000000, "an "},  {8500000, "an "},
               {20, "a "},      {81, "an "},    {1800, "an "},   {11999, "an "},    {12000, "a "}};
  for (const auto& c : cases) EXPECT_EQ(ArticuloAn(c.x, false), c.article) << c.x;
  EXPECT_EQ(ArticuloAn(8, true), "An ");
  EXPECT_EQ(ArticuloAn(3, true), "A ");
}

}  // namespace
}  // namespace ss
