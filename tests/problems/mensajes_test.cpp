#include "problems/mensajes.h"

#include <gtest/gtest.h>

#include <map>

#include "problems/aleatorio.h"

namespace ss {
namespace {

TEST(Alternatives, AFixedSelectorTakesItsPartModuloTheCount) {
  Aleatorio rnd(1);
  struct Case {
    const char* text;
    int selector;
    const char* expected;
  } cases[] = {
      {"one@@two@@three", 7, "two"},  // 7 mod 3 = 1: the second
      {"one@@two@@three", 0, "one"},
      {"one@@two@@three", 5, "three"},
      {"one@@", 1, ""},               // two alternatives, the second empty
      {"plain text", 3, "plain text"},
      {"", 2, ""},
      {"a@b", 1, "a@b"},              // a single @ is text
  };
  for (const auto& c : cases)
    EXPECT_EQ(EligeAlternativa(c.text, c.selector, rnd), c.expected) << c.text << " " << c.selector;
}

TEST(Alternatives, ARandomChoiceReachesEveryPart) {
  Aleatorio rnd(99);
  std::map<std::string, int> seen;
  for (int i = 0; i < 3000; ++i) ++seen[EligeAlternativa("a@@b@@c", -1, rnd)];
  ASSERT_EQ(seen.size(), 3u);
  for (const auto& [part, n] : seen) EXPECT_NEAR(n, 1000, 150) << part;
}

TEST(Alternatives, TheTopOfTheRandomRangeStaysInside) {
  // r * 0.9999 * count keeps the last draw below the count.
  Aleatorio top = Aleatorio::Guionado({0.9999999999});
  EXPECT_EQ(EligeAlternativa("x@@y", -1, top), "y");
  Aleatorio bottom = Aleatorio::Guionado({0.0});
  EXPECT_EQ(EligeAlternativa("x@@y", -1, bottom), "x");
}

}  // namespace
}  // namespace ss
