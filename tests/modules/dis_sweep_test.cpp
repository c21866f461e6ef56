// Every generator of the gases, formulas and solutions module, in every form,
// over many variants and seeds: a real problem each time.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "modules/modulos.h"
#include "problems/idioma.h"
#include "problems/texto.h"

namespace ss {
namespace {

class DisSweep : public ::testing::TestWithParam<int> {};

TEST_P(DisSweep, EveryFormGivesAWholeProblem) {
  const int n = GetParam();
  static Mensajes mensajes(SS_SOURCE_DIR);
  const std::regex placeholder("%[A-Za-z0-9_]+%");
  std::set<std::string> distinct;
  for (int seed = 1; seed <= 4; ++seed) {
    GenContext g(&mensajes, Aleatorio(static_cast<uint64_t>(seed * 7919 + n)));
    for (int seqB = 0; seqB < 30; ++seqB) {
      const int items = (seqB * 7) % 31;  // 0..30: below, inside and above every bound
      const std::string command =
          ZeroPadCut(n, 3) + "000" + ZeroPadCut(seqB + 100 * seed, 4) + ZeroPadCut(items, 2) + "0301";
      std::string st, so;
      GeneraProblema(g, "ANEU_QUIM_DIS", command, st, so);
      SCOPED_TRACE(command + "\n" + st + "\n" + so);
      ASSERT_FALSE(st.empty());
      ASSERT_EQ(st.find("<ERROR"), std::string::npos);
      ASSERT_EQ(st.find("ATEM__QUIM"), std::string::npos) << "a missing key sent it to the fallback";
      ASSERT_FALSE(std::regex_search(st, placeholder));
      ASSERT_FALSE(std::regex_search(so, placeholder));
      ASSERT_FALSE(so.empty());
      ASSERT_TRUE(so.ends_with("&LF"));
      ASSERT_TRUE(st.ends_with("&LF"));
      distinct.insert(st);
    }
  }
  // Fresh numbers every time: problems of one subtopic differ.
  EXPECT_GT(distinct.size(), 100u);
}

INSTANTIATE_TEST_SUITE_P(Generators, DisSweep, ::testing::Range(1, 22));

}  // namespace
}  // namespace ss
