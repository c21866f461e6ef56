#include "worksheet/coleccion.h"

#include <gtest/gtest.h>

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
    p.Rutina = c.rutina;
    p.Semilla = c.semilla;
    p.NumVariante = c.variante;
    p.Cantidad = c.cantidad;
    p.Total = c.total;
    p.Orden = c.orden;
    EXPECT_EQ(ComandoProblema(p), c.command);
    EXPECT_EQ(ComandoProblema(p).size(), 16u);
  }
}

ArbolItem Fila(const char* modulo, int16_t rutina, bool marcado, int16_t c1, int16_t c2 = 0) {
  ArbolItem f;
  f.Nivel = 2;
  f.ModuloFijo = modulo;
  f.ModuloFijo.resize(80, ' ');
  f.Rutina = rutina;
  f.Marcado = marcado;
  f.Cantidad1 = c1;
  f.Cantidad2 = c2;
  f.Tipo = 3;
  return f;
}

Arbol ArbolDePrueba() {
  Arbol a;
  ArbolItem raiz;
  raiz.Nivel = 0;
  raiz.EsRama = true;
  raiz.Tipo = 6;
  a.Agrega(raiz);
  a.Agrega(Fila("ANEU_QUIM_DIS", 4, true, 3, 5));
  a.Agrega(Fila("ANEU_QUIM_TER", 2, true, 0));    // marked, no amount
  a.Agrega(Fila("ANEU_QUIM_EAB", 1, false, 4));   // amount, not marked
  a.Agrega(Fila("ANEU_QUIM_EGA", 3, true, 1, 2));
  return a;
}

TEST(ArbolToVar, OnlyRowsMarkedWithAnAmountYieldProblemsInTreeOrder) {
  Arbol a = ArbolDePrueba();
  Coleccion col;
  col.problemas.resize(7);  // whatever was there goes
  Aleatorio rnd = Aleatorio::Guionado({0.5, 0.25, 0.1, 0.9});
  Arbol_to_Var(a, col, rnd);
  ASSERT_EQ(col.problemas.size(), 4u);
  EXPECT_EQ(col.cab.NPROB, 4);

  // The half-filled rows are cleared.
  EXPECT_FALSE(a.filas[3].Marcado);
  EXPECT_EQ(a.filas[3].Cantidad1, 0);
  EXPECT_FALSE(a.filas[4].Marcado);
  EXPECT_EQ(a.filas[4].Cantidad1, 0);
  EXPECT_TRUE(a.filas[2].Marcado);

  struct Want {
    const char* modulo;
    int16_t rutina, semilla, variante, total, orden, cantidad;
  } want[] = {
      {"ANEU_QUIM_DIS", 4, 450, 2250, 3, 1, 5},  // floor(0.5 * 900), floor(0.25 * 9000)
      {"ANEU_QUIM_DIS", 4, 451, 2251, 3, 2, 5},
      {"ANEU_QUIM_DIS", 4, 452, 2252, 3, 3, 5},
      {"ANEU_QUIM_EGA", 3, 90, 8100, 1, 1, 2},   // floor(0.1 * 900), floor(0.9 * 9000)
  };
  for (std::size_t i = 0; i < std::size(want); ++i) {
    const Problema& p = col.problemas[i];
    EXPECT_EQ(p.Modulo, want[i].modulo);  // trimmed of its padding
    EXPECT_EQ(p.Rutina, want[i].rutina);
    EXPECT_EQ(p.Semilla, want[i].semilla) << i;
    EXPECT_EQ(p.NumVariante, want[i].variante) << i;
    EXPECT_EQ(p.Total, want[i].total);
    EXPECT_EQ(p.Orden, want[i].orden);
    EXPECT_EQ(p.Cantidad, want[i].cantidad);
    EXPECT_TRUE(p.Enunciado.empty());
  }
}

TEST(ArbolToVar, CountersRunOnPastTheirFirstRange) {
  Arbol a;
  a.Agrega(ArbolItem{});
  a.Agrega(Fila("ANEU_QUIM_DIS", 1, true, 3));
  Coleccion col;
  Aleatorio rnd = Aleatorio::Guionado({0.9999999, 0.9999999});
  Arbol_to_Var(a, col, rnd);
  ASSERT_EQ(col.problemas.size(), 3u);
  EXPECT_EQ(col.problemas[0].Semilla, 899);
  EXPECT_EQ(col.problemas[1].Semilla, 900);
  EXPECT_EQ(col.problemas[2].Semilla, 901);
  EXPECT_EQ(col.problemas[0].NumVariante, 8999);
  EXPECT_EQ(col.problemas[1].NumVariante, 9000);
  EXPECT_EQ(col.problemas[2].NumVariante, 9001);
  EXPECT_EQ(ComandoProblema(col.problemas[2]), "0019019001000303");
}

TEST(ArbolToVar, StopsAtFiveHundredProblems) {
  Arbol a;
  a.Agrega(ArbolItem{});
  for (int i = 0; i < 6; ++i) a.Agrega(Fila("ANEU_QUIM_DIS", 1, true, 99));
  Coleccion col;
  Aleatorio rnd(3);
  Arbol_to_Var(a, col, rnd);
  EXPECT_EQ(col.problemas.size(), 500u);
  EXPECT_EQ(col.cab.NPROB, 500);
  EXPECT_EQ(col.problemas.back().Orden, 5);  // 5 x 99 = 495, then 5 of the sixth row
}

TEST(Arbol, EveryRowIsKeptAndTheNewRowIsHandedBack) {
  Arbol a;
  EXPECT_EQ(a.Count(), 0);
  for (int i = 1; i <= 400; ++i) a.Agrega(ArbolItem{}).Rutina = static_cast<int16_t>(i);
  ASSERT_EQ(a.Count(), 400);
  EXPECT_EQ(a.filas[390].Rutina, 390);
  EXPECT_EQ(a.filas[400].Rutina, 400);
}

}  // namespace
}  // namespace ss
