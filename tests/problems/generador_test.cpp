#include "problems/generador.h"

#include <gtest/gtest.h>

#include "problems/generic.h"
#include "tests/problems/fakes.h"

namespace ss {
namespace {

TEST(ItemsEjercicio, RaisesTo2LowersTo26ThenToTheGeneratorsBound) {
  struct Case {
    int items;
    const char* max;
    int expected;
  } cases[] = {
      {0, "008", 2}, {1, "008", 2}, {5, "008", 5},  {8, "008", 8},   {9, "008", 8},
      {30, "", 26},  {27, "030", 26}, {27, "026", 26}, {12, "012", 12}, {-4, "010", 2},
      {20, "", 20},  {20, "000", 20},
  };
  for (const auto& c : cases) {
    GenContext g;
    g.GP_Items = c.items;
    g.GP_MaxItems = c.max;
    EXPECT_EQ(ItemsEjercicio(g), c.expected) << c.items << " / " << c.max;
  }
}

TEST(Forma, NeighbouringVariantsGetNeighbouringForms) {
  GenContext g;
  g.GP_SeqB = 8999;
  EXPECT_EQ(Forma(g, 4), 3);
  g.GP_SeqB = 9000;
  EXPECT_EQ(Forma(g, 4), 0);
  EXPECT_EQ(Forma(g, 4, 2), 2);  // an exercise's item shifts the form
  EXPECT_EQ(Forma(g, 1), 0);
  g.GP_SeqB = -3;                // never a negative form
  EXPECT_EQ(Forma(g, 4), 1);
}

TEST(Etiqueta, LettersInBold) {
  EXPECT_EQ(Etiqueta(1), "&+Ba)&-B ");
  EXPECT_EQ(Etiqueta(26), "&+Bz)&-B ");
}

TEST(EntradaCatalogo, ListModeFillsTheEntryGenerateModeOnlyTheBound) {
  test::MensajesFijos m{{"Asig", "Chemistry"}};
  GenContext g(&m);
  g.GP_ListMode = true;
  EXPECT_TRUE(EntradaCatalogo(g, {"2", "760", "T_Gases", "020", "008"}));
  EXPECT_EQ(g.GP_Level, "2");
  EXPECT_EQ(g.GP_AsigName, "Chemistry");
  EXPECT_EQ(g.GP_ThemeOrd, "760");
  EXPECT_EQ(g.GP_ThemeKey, "T_Gases");
  EXPECT_EQ(g.GP_SubOrd, "020");
  EXPECT_EQ(g.GP_MaxItems, "008");

  GenContext h(&m);
  EXPECT_FALSE(EntradaCatalogo(h, {"2", "760", "T_Gases", "020", "005"}));
  EXPECT_EQ(h.GP_MaxItems, "005");
  EXPECT_EQ(h.GP_Level, "");
  EXPECT_EQ(h.GP_AsigName, "");
}

TEST(GenContext, AMissingKeyClearsTheFoundFlagAndGivesNothing) {
  test::MensajesFijos m{{"[odd] key ", "x"}, {"Two", "first@@second"}};
  GenContext g(&m);
  EXPECT_EQ(g.MsgQUI(" [ODD] KEY"), "x");
  EXPECT_TRUE(g.GP_MsgFound);
  EXPECT_EQ(g.MsgQUI("Two", 3), "second");
  EXPECT_EQ(g.MsgFIS("Two"), "");  // other tables are separate
  EXPECT_FALSE(g.GP_MsgFound);
  g.GP_MsgFound = true;
  EXPECT_EQ(g.MsgQUI("Nowhere"), "");
  EXPECT_FALSE(g.GP_MsgFound);
  // Nothing found sets it back: only the dispatcher does.
  EXPECT_EQ(g.MsgQUI("Two", 0), "first");
  EXPECT_FALSE(g.GP_MsgFound);
}

}  // namespace
}  // namespace ss
