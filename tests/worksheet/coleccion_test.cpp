#include "worksheet/coleccion.h"

#include <gtest/gtest.h>

#include <cstring>
#include <tuple>

#include "problems/aleatorio.h"

namespace ss {
namespace {

TEST(ComandoProblema, ColumnsInTheirOrderPaddedAndCut) {
  struct Case {
    int16_t rutina, semilla, variante, cantidad, total, orden;
    const char* command;
  } cases[] = {
      {7, 45, 120, 0, 3, 1, "0070450120000301"},
      {7, 1001, 120, 0, 3, 1, "0070010120000301"},  // the first counter loses its high digit
      {15, 0, 0, 1, 1, 2, "0150000000010102"},
      {123, 899, 9999, 26, 99, 99, "1238999999269999"},
      {1, 900, 10001, 100, 100, 100, "0019000001000000"},
      {0, 0, 0, 0, 0, 0, "0000000000000000"},
  };
  for (const auto& c : cases) {
    Problema p;
    std::tie(p.Rutina, p.Semilla, p.NumVariante, p.Cantidad, p.Total, p.Orden) = std::tie(c.rutina, c.semilla, c.variante, c.cantidad, c.total, c.orden);
    EXPECT_EQ(ComandoProblema(p), c.command);
  }
}

ArbolItem Fila(const char* modulo, int16_t rutina, bool marcado, int16_t c1, int16_t c2 = 0) {
  return ArbolItem{2, false, false, "", "", rutina, std::string(modulo).append(80 - std::strlen(modulo), ' '), marcado, c1, c2, 0, 0, 3};
}

using Receta = std::tuple<std::string, int, int, int, int, int, int>;
std::vector<Receta> Recetas(const Coleccion& col) {
  std::vector<Receta> r;
  for (const Problema& p : col.problemas)
    r.emplace_back(p.Modulo, p.Rutina, p.Semilla, p.NumVariante, p.Total, p.Orden, p.Cantidad);
  return r;
}

TEST(ArbolToVar, OnlyRowsMarkedWithAnAmountYieldProblemsInTreeOrder) {
  Arbol a;
  a.Agrega(ArbolItem{}).Tipo = 6;
  a.Agrega(Fila("ANEU_QUIM_DIS", 4, true, 3, 5));
  a.Agrega(Fila("ANEU_QUIM_TER", 2, true, 0));   // marked, no amount
  a.Agrega(Fila("ANEU_QUIM_EAB", 1, false, 4));  // amount, not marked
  a.Agrega(Fila("ANEU_QUIM_EGA", 3, true, 1, 2));
  Coleccion col;
  col.problemas.resize(7);  // whatever was there goes
  Aleatorio rnd = Aleatorio::Guionado({0.5, 0.25, 0.1, 0.9});
  Arbol_to_Var(a, col, rnd);
  EXPECT_EQ(col.cab.NPROB, 4);
  EXPECT_EQ(Recetas(col), (std::vector<Receta>{
                              {"ANEU_QUIM_DIS", 4, 450, 2250, 3, 1, 5},  // 0.5 * 900, 0.25 * 9000
                              {"ANEU_QUIM_DIS", 4, 451, 2251, 3, 2, 5},
                              {"ANEU_QUIM_DIS", 4, 452, 2252, 3, 3, 5},
                              {"ANEU_QUIM_EGA", 3, 90, 8100, 1, 1, 2}}));
  // The half-filled rows are cleared.
  for (int i : {3, 4}) EXPECT_FALSE(a.filas[i].Marcado || a.filas[i].Cantidad1);
  EXPECT_TRUE(a.filas[2].Marcado);
}

TEST(ArbolToVar, CountersRunOnAndTheListStopsAtFiveHundred) {
  Arbol a;
  a.Agrega(ArbolItem{});
  a.Agrega(Fila("ANEU_QUIM_DIS", 1, true, 3));
  Coleccion col;
  Aleatorio rnd = Aleatorio::Guionado({0.9999999, 0.9999999});
  Arbol_to_Var(a, col, rnd);
  EXPECT_EQ(Recetas(col), (std::vector<Receta>{{"ANEU_QUIM_DIS", 1, 899, 8999, 3, 1, 0},
                                               {"ANEU_QUIM_DIS", 1, 900, 9000, 3, 2, 0},
                                               {"ANEU_QUIM_DIS", 1, 901, 9001, 3, 3, 0}}));
  for (int i = 0; i < 6; ++i) a.Agrega(Fila("ANEU_QUIM_DIS", 1, true, 99));
  Aleatorio otro(3);
  Arbol_to_Var(a, col, otro);
  EXPECT_EQ(col.cab.NPROB, 500);
  EXPECT_EQ(col.problemas.back().Orden, 2);  // 3 + 5 x 99 = 498, then 2 of the sixth row
}

TEST(Arbol, EveryRowIsKeptAndTheNewRowIsHandedBack) {
  Arbol a;
  for (int i = 1; i <= 400; ++i) a.Agrega(ArbolItem{}).Rutina = static_cast<int16_t>(i);
  ASSERT_EQ(a.Count(), 400);
  EXPECT_EQ(a.filas[400].Rutina, 400);
}

}  // namespace
}  // namespace ss
