#include "problems/texto.h"

#include <gtest/gtest.h>

#include <cmath>

#include "problems/fallos.h"

namespace ss {
namespace {

TEST(Cp1252, EveryByteSurvivesTheRoundTripThroughUtf8) {
  std::string all;
  for (int b = 1; b < 256; ++b) all.push_back(static_cast<char>(b));
  bool exact = false;
  EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all), &exact), all);
  EXPECT_TRUE(exact);
}

TEST(Cp1252, ConvertsTheCharactersThatDifferFromLatin1) {
  struct Case {
    std::string cp1252, utf8;
  } cases[] = {
      {"\x80", "\u20AC"},                  // euro sign
      {"\x96", "\u2013"},                  // en dash, drawn for "-"
      {"\x93" "a" "\x94", "\u201Ca\u201D"},  // curly quotes
      {"\xB0" "C", "\u00B0C"},             // degree sign
      {"\xD7" "10", "\u00D710"},           // multiplication sign
      {"\xE9", "\u00E9"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Cp1252ToUtf8(c.cp1252), c.utf8);
    EXPECT_EQ(Utf8ToCp1252(c.utf8), c.cp1252);
  }
}

TEST(Cp1252, CharactersWithoutAFormBecomeQuestionMarks) {
  bool exact = true;
  EXPECT_EQ(Utf8ToCp1252("H\u2082O \u03B1", &exact), "H?O ?");
  EXPECT_FALSE(exact);
  // Broken UTF-8 is no reason to fail: one mark per bad byte.
  EXPECT_EQ(Utf8ToCp1252("a\xC3"), "a?");
  EXPECT_EQ(Utf8ToCp1252("\xFF" "b"), "?b");
}

TEST(Cp1252Case, FollowsTheTableNotTheLocale) {
  EXPECT_EQ(UCase("okbr_chem_dis"), "OKBR_CHEM_DIS");
  EXPECT_EQ(UCase("\xE9\xE0\xFE\xF7\xFF\x9A\x9C\x9E\xDF"), "\xC9\xC0\xDE\xF7\x9F\x8A\x8C\x8E\xDF");
  EXPECT_EQ(LCase("\xC9\xD7\x9F\x8A"), "\xE9\xD7\xFF\x9A");
  EXPECT_EQ(UCase("a1-[z]"), "A1-[Z]");
}

TEST(Trim, RemovesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(LTrim("  x "), "x ");
  EXPECT_EQ(RTrim("  x "), "  x");
}

TEST(Mid, NeverReadsPastTheText) {
  EXPECT_EQ(Mid("0150000000010102", 1, 3), "015");
  EXPECT_EQ(Mid("0150000000010102", 15, 2), "02");
  EXPECT_EQ(Mid("12", 2, 3), "2");
  EXPECT_EQ(Mid("12", 4, 3), "");
  EXPECT_EQ(Mid("", 1, 3), "");
  EXPECT_EQ(Right("abc", 5), "abc");
}

TEST(Val, ReadsTheLongestNumberAtTheStart) {
  struct Case {
    const char* text;
    double value;
  } cases[] = {
      {"", 0},          {"abc", 0},        {"  42", 42},        {"\t7", 7},
      {"-3.5x", -3.5},  {"+2", 2},         {".5", 0.5},         {"5.", 5},
      {"1E3", 1000},    {"1e-2", 0.01},    {"2E+2", 200},       {"3E", 3},
      {"3E+", 3},       {"12 34", 12},     {"0-5", 0},          {"-", 0},
      {"-.", 0},        {"1.2.3", 1.2},    {" 255; 255", 255},  {"0150", 150},
      {"9e9", 9e9},     {"1e999", HUGE_VAL}, {"1e-999", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << '"' << c.text << '"';
}

TEST(CLng, RoundsHalfToEvenAndRefusesWhatDoesNotFit) {
  struct Case {
    double x;
    int32_t n;
  } cases[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}, {2.6, 3}, {-0.4, 0},
               {2147483647.0, 2147483647}, {-2147483648.0, -2147483647 - 1}};
  for (const auto& c : cases) EXPECT_EQ(CLng(c.x), c.n) << c.x;
  for (double bad : {2147483648.0, -2147483649.0, HUGE_VAL, std::nan("")}) {
    try {
      CLng(bad);
      ADD_FAILURE() << bad << " was accepted";
    } catch (const GenFault& f) {
      EXPECT_EQ(f.number(), 6);
    }
  }
}

TEST(ZeroPadCut, PadsAndKeepsTheLastDigits) {
  EXPECT_EQ(ZeroPadCut(7, 3), "007");
  EXPECT_EQ(ZeroPadCut(1001, 3), "001");
  EXPECT_EQ(ZeroPadCut(0, 2), "00");
  EXPECT_EQ(ZeroPadCut(123456, 4), "3456");
  EXPECT_EQ(ZeroPadCut(-5, 3), "0-5");  // as the classic "00" & n writer gives it
}

TEST(Text, ReplaceAllAndDoubledUnderscores) {
  std::string s = "%A% and %A%%B%";
  ReplaceAll(s, "%A%", "%A%x");  // a replacement holding the key is not re-read
  EXPECT_EQ(s, "%A%x and %A%x%B%");
  ReplaceAll(s, "", "never");
  EXPECT_EQ(s, "%A%x and %A%x%B%");
  EXPECT_EQ(DoubleUnderscores("ANEU_QUIM_TER:"), "ANEU__QUIM__TER:");
  EXPECT_EQ(DoubleUnderscores(""), "");
}

TEST(CheckedArithmetic, RaisesTheClassicFaults) {
  auto number = [](auto f) {
    try {
      f();
    } catch (const GenFault& e) {
      return e.number();
    }
    return 0;
  };
  EXPECT_EQ(number([] { Div(1, 0); }), 11);
  EXPECT_EQ(number([] { Sqrt(-1); }), 5);
  EXPECT_EQ(number([] { Log(0); }), 5);
  EXPECT_EQ(number([] { Log10(-3); }), 5);
  EXPECT_EQ(number([] { Pow(-8, 0.5); }), 5);
  EXPECT_EQ(number([] { Pow(0, -1); }), 11);
  EXPECT_EQ(number([] { Pow(10, 400); }), 6);
  EXPECT_EQ(number([] { Finite(std::nan("")); }), 6);
  const int table[3] = {1, 2, 3};
  EXPECT_EQ(number([&] { At(table, 3); }), 9);
  EXPECT_EQ(number([&] { At(table, -1); }), 9);
  EXPECT_EQ(At(table, 2), 3);
  EXPECT_DOUBLE_EQ(Pow(-2, 3), -8);
  EXPECT_DOUBLE_EQ(Sqrt(2.25), 1.5);
  EXPECT_DOUBLE_EQ(Div(1, 4), 0.25);
}

}  // namespace
}  // namespace ss
