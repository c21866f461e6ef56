#include "modules/modulos.h"
#include <gtest/gtest.h>
#include <set>
#include "tests/problems/fakes.h"

namespace ss {
namespace {
TEST(ModulosQuimica, TheTenModulesInCatalogueOrderWithTheirGeneratorCounts) {
  struct Row {
    const char* name;
    const char* code;
    int n;
  } rows[] = {{"ANEU_QUIM_CEP", "CEP", 5},  {"ANEU_QUIM_DIS", "DIS", 21}, {"ANEU_QUIM_EAB", "EAB", 8},
              {"ANEU_QUIM_EAT", "EAT", 13}, {"ANEU_QUIM_EGA", "EGA", 4},  {"ANEU_QUIM_ETQ", "ETQ", 6},
              {"ANEU_QUIM_FIN", "FIN", 20}, {"ANEU_QUIM_FOR", "FOR", 13}, {"ANEU_QUIM_RDX", "RDX", 8},
              {"ANEU_QUIM_TER", "TER", 7}};
  TablaModulos t = ModulosQuimica();
  ASSERT_EQ(t.size(), std::size(rows));
  int total = 0;
  for (std::size_t i = 0; i < t.size(); ++i) {
    EXPECT_EQ(t[i]->nombre, rows[i].name);
    EXPECT_EQ(t[i]->codigo, rows[i].code);
    EXPECT_EQ(t[i]->N(), rows[i].n) << rows[i].name;
    EXPECT_EQ(t[i]->respaldo, "ATEM" + std::string(rows[i].name).substr(4));
    total += t[i]->N();
  }
  EXPECT_EQ(total, 105);
}

TEST(ModulosQuimica, EveryModuleAnswersEveryNumberWithTextNeverAFault) {
  test::MensajesFijos m{{"Error_in_module", "Error in module"},
                        {"Error_no_routine", "No routine "}};
  GenContext g(&m, Aleatorio(5));
  for (const ModuloDef* mod : ModulosQuimica()) {
    for (int n = 0; n <= mod->N() + 1; ++n) {
      const std::string command = ZeroPadCut(n, 3) + "1234567030201";
      std::string st, so;
      GeneraProblema(g, mod->nombre, command, st, so);
      EXPECT_FALSE(st.empty()) << mod->nombre << " " << n;
      EXPECT_EQ(st.find("<ERROR>"), std::string::npos) << st;
      // A number without a routine says so, naming the command.
      if (st.starts_with("<")) {
        EXPECT_NE(st.find(ZeroPadCut(n, 3)), std::string::npos) << st;
      }
    }
  }
}
}  // namespace
}  // namespace ss
