#include "problems/numeros.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <set>

#include "problems/aleatorio.h"
#include "problems/fallos.h"
#include "problems/mensajes.h"
#include "problems/texto.h"

namespace ss {
namespace {

TEST(Cp1252, ConvertsToUtf8AndBackWithoutLoss) {
  std::string all;
  for (int b = 1; b < 256; ++b) all.push_back(static_cast<char>(b));
  bool exact = false;
  EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all), &exact), all);
  EXPECT_TRUE(exact);
  // The characters that differ from Latin-1, and a few that do not.
  const char* cases[][2] = {{"\x80", "\u20AC"}, {"\x96", "\u2013"}, {"\x93" "a" "\x94", "\u201Ca\u201D"},
                            {"\xB0" "C", "\u00B0C"}, {"\xD7" "10", "\u00D710"}, {"\x9F", "\u0178"}};
  for (const auto& [cp, utf8] : cases) EXPECT_EQ(Cp1252ToUtf8(cp) + "|" + Utf8ToCp1252(utf8), utf8 + ("|" + std::string(cp)));
  // What has no form becomes "?", one mark per character or broken byte.
  EXPECT_EQ(Utf8ToCp1252("H\u2082O \u03B1", &exact), "H?O ?");
  EXPECT_FALSE(exact);
  EXPECT_EQ(Utf8ToCp1252("a\xC3") + Utf8ToCp1252("\xFF" "b"), "a??b");
}

TEST(Val, ReadsTheLongestNumberAtTheStart) {
  const std::pair<const char*, double> cases[] = {
      {"", 0},       {"abc", 0},  {"  42", 42}, {"\t7", 7},     {"-3.5x", -3.5}, {"+2", 2},     {".5", 0.5},
      {"5.", 5},     {"1E3", 1000}, {"1e-2", 0.01}, {"2E+2", 200}, {"3E", 3},    {"3E+", 3},    {"12 34", 12},
      {"0-5", 0},    {"-", 0},    {"-.", 0},    {"1.2.3", 1.2}, {" 255; 255", 255}, {"0150", 150}, {"9e9", 9e9},
      {"1e999", HUGE_VAL}, {"1e-999", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << '"' << text << '"';
}

// The number of the fault `f` raises, 0 if none.
int Falla(const std::function<void()>& f) try {
  f();
  return 0;
} catch (const GenFault& e) {
  return e.number();
}

TEST(CheckedArithmetic, GivesTheResultOrRaisesTheClassicFault) {
  const int table[3] = {1, 2, 3};
  const double ok[][2] = {{Div(1, 4), 0.25}, {Sqrt(2.25), 1.5}, {Log10(1000), 3}, {Log(1), 0},
                          {Pow(-2, 3), -8},  {Finite(2), 2},    {At(table, 2) * 1.0, 3}};
  for (const auto& [got, expected] : ok) EXPECT_DOUBLE_EQ(got, expected);
  const std::pair<std::function<void()>, int> faults[] = {
      {[] { Div(1, 0); }, 11},      {[] { Sqrt(-1); }, 5},     {[] { Log(0); }, 5},
      {[] { Log10(-3); }, 5},       {[] { Pow(-8, 0.5); }, 5}, {[] { Pow(0, -1); }, 11},
      {[] { Pow(10, 400); }, 6},    {[] { Finite(std::nan("")); }, 6},
      {[&] { At(table, 3); }, 9},   {[&] { At(table, -1); }, 9}};
  for (std::size_t i = 0; i < std::size(faults); ++i) EXPECT_EQ(Falla(faults[i].first), faults[i].second) << i;
}

TEST(Chance, EvenDrawsRepeatableFromASeedAlternativesAndThresholds) {
  Aleatorio a(7), b(7), c(8), clock1, clock2;
  int buckets[10] = {};
  for (int i = 0; i < 20000; ++i) {
    const double r = a.Siguiente();
    ASSERT_TRUE(r >= 0 && r < 1 && b.Siguiente() == r) << r;
    ++buckets[static_cast<int>(r * 10)];
  }
  for (int n : buckets) EXPECT_NEAR(n, 2000, 250);
  std::set<double> firsts;
  for (int i = 0; i < 50; ++i) {
    for (Aleatorio* x : {&a, &b, &c}) x->Resembrar();
    const double first = a.Siguiente();
    firsts.insert(first);
    EXPECT_EQ(b.Siguiente(), first);
    EXPECT_NE(c.Siguiente(), first);  // states that differ stay different after the same reseed
  }
  EXPECT_EQ(firsts.size(), 50u);  // each reseed moves the source on
  EXPECT_NE(clock1.Siguiente(), clock2.Siguiente());  // sources seeded from the clock differ
  // Alternatives: a fixed selector takes its part modulo the count.
  Aleatorio rnd(1);
  const char* cases[][3] = {{"one@@two@@three", "7", "two"}, {"one@@two@@three", "0", "one"},
                            {"one@@two@@three", "5", "three"}, {"one@@", "1", ""},
                            {"plain text", "3", "plain text"}, {"", "2", ""},
                            {"a@b", "1", "a@b"}};  // a single @ is text
  for (const auto& [text, sel, expected] : cases)
    EXPECT_EQ(EligeAlternativa(text, std::atoi(sel), rnd), expected) << text << " " << sel;
  // A random choice: r * 0.9999 * count keeps the top of the range inside; a threshold compares
  // 32-bit floats, strictly: 0.50000001 is 0.5 as a float.
  Aleatorio guion = Aleatorio::Guionado({0.9999999999, 0.0, 0.50000001, 0.5001});
  EXPECT_EQ(EligeAlternativa("x@@y", -1, guion), "y");
  EXPECT_EQ(EligeAlternativa("x@@y", -1, guion), "x");
  EXPECT_FALSE(AzarSupera(guion, 0.5));
  EXPECT_TRUE(AzarSupera(guion, 0.5));
}

TEST(AleatorioEn, GridsRangesAndZeros) {
  Aleatorio guion = Aleatorio::Guionado({0.3, 0.6});
  EXPECT_EQ(AleatorioEn(guion, 1, 1, 0, 1), 1);  // an empty range draws nothing,
  EXPECT_EQ(AleatorioEn(guion, 0, 0, 1, 1), 0);  // nor tests for zero
  EXPECT_EQ(guion.Siguiente(), 0.3);
  Aleatorio rnd(11);
  std::map<double, int> seen;  // the ends of a grid carry half the weight
  for (int i = 0; i < 40000; ++i) ++seen[AleatorioEn(rnd, 0, 4, 1, 0)];
  const std::map<double, int> weights{{0, 5000}, {1, 10000}, {2, 10000}, {3, 10000}, {4, 5000}};
  ASSERT_EQ(seen.size(), weights.size());
  for (const auto& [v, n] : weights) EXPECT_NEAR(seen[v], n, 500) << v;
  std::set<double> ones, signs;
  for (int i = 0; i < 2000; ++i) {
    ones.insert(AleatorioEn(rnd, 0, 1, 1, 1));
    signs.insert(AleatorioEn(rnd, -1, 1, 2, 1));
    const double tenth = AleatorioEn(rnd, 0.1, 0.9, 0.1, 1);
    EXPECT_NEAR(tenth * 10, std::round(tenth * 10), 1e-9);
    EXPECT_TRUE(tenth >= 0.1 - 1e-12 && tenth <= 0.9 + 1e-12) << tenth;
    const double whole = AleatorioEn(rnd, 1, 30, 1, 1);
    EXPECT_EQ(whole, std::floor(whole));  // exact integers, not 2.9999999
    const double reversed = AleatorioEn(rnd, 5, 2, 0, 0);
    EXPECT_TRUE(reversed > 2 && reversed <= 5) << reversed;
  }
  EXPECT_EQ(ones, std::set<double>{1});
  EXPECT_EQ(signs, (std::set<double>{-1, 1}));
  EXPECT_EQ(AleatorioEn(rnd, 0, 0.4, 1, 1), 0);  // the grid holds only 0: it gives up
  EXPECT_TRUE(rnd.RangoFallido);
  AleatorioEn(rnd, 1, 3, 1, 1);
  EXPECT_FALSE(rnd.RangoFallido);
}

TEST(Rounding, NearIntegersPowersOfTenDecimalPartsDivisorsAndMultiples) {
  const double cases[][2] = {
      {EnteroSiCasi(2.9999999999), 3}, {EnteroSiCasi(-4.00000000001), -4}, {EnteroSiCasi(2.5), 2.5},
      {EnteroSiCasi(0.30000000000000004), 0.30000000000000004}, {EnteroSiCasi(1e308), 1e308},  // overflow
      {RedondeaPot(1234, 1), 1200},    {RedondeaPot(2.345, -3), 2.35},   {RedondeaPot(-2.5, -1), -2},
      {RedondeaPot(2.5, -1), 3},       {RedondeaPot(0.000123456, -7), 0.000123},
      {RedondeaPot(99950, 2), 100000}, {RedondeaPot(149, 1), 100},       {ParteDecimal(3.25), 0.25},
      {ParteDecimal(-3.25), -0.25},    {ParteDecimal(2e15), 0},
      {MCD(12, 18), 6}, {MCD(-12, 18), 6}, {MCD(0, 7), 7}, {MCD(7, 0), 7}, {MCD(0, 0), 1}, {MCD(2e10, 4), 1},
      {MCD(17, 5), 1},  {MCD(4, -6), 2},   {MCM(4, 6), 12}, {MCM(3, 5), 15}, {MCM(6, 0), 0}};
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_DOUBLE_EQ(cases[i][0], cases[i][1]) << "case " << i;
}

TEST(TextServices, TextNumbersFractionsAndWords) {
  std::string replaced = "%A% and %A%%B%";
  ReplaceAll(replaced, "%A%", "%A%x");  // a replacement holding the key is not read again
  ReplaceAll(replaced, "", "never");
  const std::string cases[][2] = {
      {UCase("okbr_chem_dis a1-[z]"), "OKBR_CHEM_DIS A1-[Z]"},
      // Windows-1252 letters by the table, whatever the locale; the signs and sharp s stay.
      {UCase("\xE9\xE0\xFE\xF7\xFF\x9A\x9C\x9E\xDF"), "\xC9\xC0\xDE\xF7\x9F\x8A\x8C\x8E\xDF"},
      {LCase("\xC9\xD7\x9F\x8A\x8C\x8E" "AZ"), "\xE9\xD7\xFF\x9A\x9C\x9E" "az"},
      // Blanks only are trimmed; cuts never read past the text.
      {std::string(Trim("  a b  ")) + "|" + std::string(Trim("\ta\t")) + "|" + std::string(Trim("   ")), "a b|\ta\t|"},
      {std::string(Mid("12", 2, 3)) + std::string(Mid("12", 4, 3)) + std::string(Mid("", 1, 3)), "2"},
      {ZeroPadCut(7, 3), "007"}, {ZeroPadCut(1001, 3), "001"}, {ZeroPadCut(123456, 4), "3456"},
      {ZeroPadCut(0, 2), "00"},  {ZeroPadCut(-5, 3), "0-5"},  {replaced, "%A%x and %A%x%B%"},
      {NumTexto(0), "0"},               {NumTexto(-0.5), "-0&.5"},       {NumTexto(1e15), "1&E+15"},
      {NumTexto(1.5e-7), "1&.5&E-7"},   {NumTexto(-1.5e-7), "-1&.5&E-7"}, {NumTexto(0.1 + 0.2), "0&.3"},
      {NumTexto(100000), "100000"},     {NumTexto(123456789012345), "123456789012345"},
      {NumTexto(0.0001), "0&.0001"},    {NumTexto(2.5e-5), "2&.5&E-5"},   {NumTexto(1e-12), "1&E-12"},
      {NumTexto(1.23e20), "1&.23&E+20"}, {NumTexto(-42), "-42"}, {NumTexto(1 / 3.0), "0&.333333333333333"},
      // Fixed form drops trailing zeros, power form keeps them.
      {NumCifras(2.5, 3), "2&.5"},      {NumCifras(0.00012345, 3), "1&.23&E-4"}, {NumCifras(0, 4), "0"},
      {NumCifras(0.001, 3), "1&.00&E-3"}, {NumCifras(123456, 3), "1&.23&E5"}, {NumCifras(99950, 2), "100000"},
      {NumCifras(100000, 2), "1&.0&E5"}, {NumCifras(99999, 6), "99999"},   {NumCifras(9.996e-3, 3), "1&.00&E-2"},
      {NumCifras(-2.567, 3), "-2&.57"}, {NumCifras(-0.00012345, 3), "-1&.23&E-4"}, {NumCifras(22.414, 3), "22&.4"},
      {NumCifras(6.02214e23, 4), "6&.022&E23"}, {NumCifras(1.5e-7, 1), "2&E-7"}, {NumCifras(0.0821, 3), "0&.0821"},
      {NumCifras(0.01, 2), "0&.01"},
      // Groups of three past four digits, in each part; "_ " is an unbreakable blank.
      {NumAgrupado(1234, ""), "1234"},  {NumAgrupado(12345, ""), "12_ 345"}, {NumAgrupado(0, "1234,5"), "1_ 234&.5"},
      {NumAgrupado(-1234567.125, ""), "-1_ 234_ 567&.125"}, {NumAgrupado(0, " -0&.123456 "), "-0&.123_ 456"},
      {NumAgrupado(0, ".5"), "0&.5"},   {NumAgrupado(12.5, ""), "12&.5"}, {NumAgrupado(1.5e-7, ""), "1&.5&E-07"},
      {NumAgrupado(0, "12 345 678"), "12_ 345_ 678"},
      // Fractions reduced, the sign on top.
      {FraccionTexto(4, -6), "#COC(-2  #N)(3#COC)"}, {FraccionTexto(6, 3), "2"}, {FraccionTexto(0, 5), "0"},
      {FraccionTexto(3, 4), "#COC(3#N)(4#COC)"},     {FraccionTexto(-10, -4), "#COC(5#N)(2#COC)"},
      // Words.
      {Capitaliza("mole"), "Mole"}, {Capitaliza("\xE9tat"), "\xC9tat"}, {Capitaliza(""), ""},
      {DeNombre("hidr\xF3geno", false), "d'hidr\xF3geno"}, {DeNombre("hna", true), "De hna"},
      {DeNombre("", false), "d'"},  {DeNombre("sodi", false), "de sodi"}, {DeNombre("\xC0rea", false), "d'\xC0rea"},
      {ArticuloAn(8, true), "An "}, {ArticuloAn(3, true), "A "}};
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
  // The article of a number read aloud: each range's ends; "a " elsewhere.
  for (double x : {1.0, 8.0, 11.0, 18.0, 80.0, 89.9, 100.0, 199.0, 800.0, 1800.0, 11000.0, 11999.0, 18500.0,
                   1e6, 8.5e6, 1.1e7, 18999999.0})
    EXPECT_EQ(ArticuloAn(x, false), "an ") << x;
  for (double x : {0.0, 0.8, -8.0, 2.0, 20.0, 90.0, 200.0, 10000.0, 12000.0, 15000.0, 20000.0, 2e6, 1.2e7})
    EXPECT_EQ(ArticuloAn(x, false), "a ") << x;
  EXPECT_THROW(NumCifras(std::nan(""), 3), GenFault);
  EXPECT_THROW(NumTexto(HUGE_VAL), GenFault);
}

}  // namespace
}  // namespace ss
