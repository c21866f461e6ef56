#include "problems/aleatorio.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace ss {
namespace {

std::vector<double> Draw(Aleatorio& a, int n) {
  std::vector<double> v;
  for (int i = 0; i < n; ++i) v.push_back(a.Siguiente());
  return v;
}

TEST(Aleatorio, ValuesLieInTheUnitIntervalAndSpreadOverIt) {
  Aleatorio a(12345);
  int buckets[10] = {};
  for (int i = 0; i < 20000; ++i) {
    double r = a.Siguiente();
    ASSERT_GE(r, 0.0);
    ASSERT_LT(r, 1.0);
    ++buckets[static_cast<int>(r * 10)];
  }
  for (int b : buckets) EXPECT_NEAR(b, 2000, 250);
}

TEST(Aleatorio, ASeedRepeatsTheWholeRunReseedsIncluded) {
  Aleatorio a(7), b(7);
  a.Resembrar();
  b.Resembrar();
  EXPECT_EQ(Draw(a, 5), Draw(b, 5));
  a.Resembrar();
  b.Resembrar();
  EXPECT_EQ(Draw(a, 5), Draw(b, 5));
  Aleatorio c(8);
  c.Resembrar();
  Aleatorio d(7);
  d.Resembrar();
  EXPECT_NE(Draw(c, 5), Draw(d, 5));
}

TEST(Aleatorio, ReseedingMixesRatherThanReplaces) {
  // Two sources in different states stay different after the same re-seed:
  // problems made within one clock tick still differ.
  Aleatorio a(1), b(2);
  a.Resembrar();
  b.Resembrar();
  EXPECT_NE(Draw(a, 3), Draw(b, 3));
  // And each re-seed moves a source on.
  Aleatorio c(3);
  std::set<double> firsts;
  for (int i = 0; i < 50; ++i) {
    c.Resembrar();
    firsts.insert(c.Siguiente());
  }
  EXPECT_EQ(firsts.size(), 50u);
}

TEST(Aleatorio, ClockSeededSourcesDiffer) {
  Aleatorio a, b;
  EXPECT_FALSE(a.Sembrado());
  EXPECT_NE(Draw(a, 4), Draw(b, 4));
}

TEST(Aleatorio, AScriptRepeatsItsValuesAndIgnoresReseeds) {
  Aleatorio a = Aleatorio::Guionado({0.25, 0.75});
  EXPECT_EQ(a.Siguiente(), 0.25);
  a.Resembrar();
  EXPECT_EQ(a.Siguiente(), 0.75);
  EXPECT_EQ(a.Siguiente(), 0.25);
}

}  // namespace
}  // namespace ss
