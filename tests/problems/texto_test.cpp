#include "problems/texto.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "problems/fallos.h"

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
  for (const auto& [cp, utf8] : cases) {
    EXPECT_EQ(Cp1252ToUtf8(cp), utf8);
    EXPECT_EQ(Utf8ToCp1252(utf8), cp);
  }
  // What has no form becomes "?", one mark per character or broken byte.
  EXPECT_EQ(Utf8ToCp1252("H\u2082O \u03B1", &exact), "H?O ?");
  EXPECT_FALSE(exact);
  EXPECT_EQ(Utf8ToCp1252("a\xC3") + Utf8ToCp1252("\xFF" "b"), "a??b");
}

TEST(TextHelpers, CaseTrimCutPadAndReplace) {
  std::string replaced = "%A% and %A%%B%";
  ReplaceAll(replaced, "%A%", "%A%x");  // a replacement holding the key is not read again
  ReplaceAll(replaced, "", "never");
  const std::string cases[][2] = {
      {UCase("okbr_chem_dis a1-[z]"), "OKBR_CHEM_DIS A1-[Z]"},
      // Windows-1252 letters by the table, whatever the locale; the signs and sharp s stay.
      {UCase("\xE9\xE0\xFE\xF7\xFF\x9A\x9C\x9E\xDF"), "\xC9\xC0\xDE\xF7\x9F\x8A\x8C\x8E\xDF"},
      {LCase("\xC9\xD7\x9F\x8A\x8C\x8E" "AZ"), "\xE9\xD7\xFF\x9A\x9C\x9E" "az"},
      {std::string(Trim("  a b  ")), "a b"}, {std::string(Trim("\ta\t")), "\ta\t"},
      {std::string(Trim("   ")), ""}, {std::string(LTrim("  x ")) + "|" + std::string(RTrim("  x ")), "x |  x"},
      {std::string(Mid("0150000000010102", 1, 3)), "015"}, {std::string(Mid("0150000000010102", 15, 2)), "02"},
      {std::string(Mid("12", 2, 3)), "2"}, {std::string(Mid("12", 4, 3)), ""}, {std::string(Mid("", 1, 3)), ""},
      {std::string(Right("abc", 5)) + std::string(Right("abc", 2)), "abcbc"},
      {ZeroPadCut(7, 3), "007"}, {ZeroPadCut(1001, 3), "001"}, {ZeroPadCut(0, 2), "00"},
      {ZeroPadCut(123456, 4), "3456"}, {ZeroPadCut(-5, 3), "0-5"},
      {replaced, "%A%x and %A%x%B%"},
      {DoubleUnderscores("ANEU_QUIM_TER:"), "ANEU__QUIM__TER:"}, {DoubleUnderscores(""), ""},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(cases[i][0], cases[i][1]) << "case " << i;
}

TEST(Val, ReadsTheLongestNumberAtTheStart) {
  struct Case {
    const char* text;
    double value;
  } cases[] = {
      {"", 0},         {"abc", 0},       {"  42", 42},         {"\t7", 7},       {"-3.5x", -3.5},
      {"+2", 2},       {".5", 0.5},      {"5.", 5},            {"1E3", 1000},    {"1e-2", 0.01},
      {"2E+2", 200},   {"3E", 3},        {"3E+", 3},           {"12 34", 12},    {"0-5", 0},
      {"-", 0},        {"-.", 0},        {"1.2.3", 1.2},       {" 255; 255", 255}, {"0150", 150},
      {"9e9", 9e9},    {"1e999", HUGE_VAL}, {"1e-999", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << '"' << c.text << '"';
}

// The number of the fault `f` raises, 0 if none.
int Falla(const std::function<void()>& f) {
  try {
    f();
  } catch (const GenFault& e) {
    return e.number();
  }
  return 0;
}

TEST(CLng, RoundsHalfToEvenAndRefusesWhatDoesNotFit) {
  const double cases[][2] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}, {2.6, 3}, {-0.4, 0},
                             {2147483647.0, 2147483647}, {-2147483648.0, -2147483648.0}};
  for (const auto& [x, n] : cases) EXPECT_EQ(CLng(x), n) << x;
  for (double bad : {2147483648.0, -2147483649.0, HUGE_VAL, std::nan("")})
    EXPECT_EQ(Falla([=] { CLng(bad); }), 6) << bad;
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

}  // namespace
}  // namespace ss
