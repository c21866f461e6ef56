// The page sets and the order of a print run, and what the print window
// refuses, as a table of what a teacher might type.
#include <gtest/gtest.h>

#include "output/paginas.h"

namespace ss {
namespace {

struct CasoIntervalo {
  const char* texto;
  int ultima;
  FalloPaginas fallo;
  std::vector<int> paginas;  // of a worksheet of `ultima` pages (30 in a folder run)
};

TEST(Paginas, IntervalGrammar) {
  using F = FalloPaginas;
  const CasoIntervalo casos[] = {
      {"1,3", 5, F::Ninguno, {1, 3}},
      {" 1 , 3 ", 5, F::Ninguno, {1, 3}},
      {"3,1,1", 5, F::Ninguno, {1, 3}},
      {"2-2", 5, F::Ninguno, {2}},
      {"1-2,2-4", 5, F::Ninguno, {1, 2, 3, 4}},
      {"5", 5, F::Ninguno, {5}},
      {"1 - 250", 250, F::Ninguno, {}},  // all 250, checked below
      {"", 5, F::Vacio, {}},
      {" \t ", 5, F::Vacio, {}},
      {"1;3", 5, F::Caracter, {}},
      {"1.5", 5, F::Caracter, {}},
      {"two", 5, F::Caracter, {}},
      {"3-1", 5, F::Intervalo, {}},
      {"6", 5, F::Intervalo, {}},
      {"4-6", 5, F::Intervalo, {}},
      {"0", 5, F::Intervalo, {}},
      {"-3", 5, F::Intervalo, {}},
      {"3-", 5, F::Intervalo, {}},
      {"1-2-3", 5, F::Intervalo, {}},
      {",,", 5, F::Intervalo, {}},
      {"1,", 5, F::Intervalo, {}},
      {"99999999999999", 5, F::Intervalo, {}},
      {"300", 0, F::Ninguno, {}},  // a folder: only the form is checked
      {"2-40", 0, F::Ninguno, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,
                               21, 22, 23, 24, 25, 26, 27, 28, 29, 30}},
      {"3-1", 0, F::Intervalo, {}},
  };
  for (const CasoIntervalo& c : casos) {
    SCOPED_TRACE(c.texto);
    std::vector<Tramo> tramos;
    ASSERT_EQ(LeeIntervalo(c.texto, c.ultima, tramos), c.fallo);
    if (c.fallo != F::Ninguno) {
      EXPECT_TRUE(tramos.empty());
      continue;
    }
    EleccionImpresion e{ConjuntoPaginas::Intervalo, tramos};
    const int paginas = c.ultima > 0 ? c.ultima : 30;
    const std::vector<int> elegidas = PaginasElegidas(e, paginas);
    if (c.ultima == 250)
      EXPECT_EQ(elegidas.size(), 250u);
    else
      EXPECT_EQ(elegidas, c.paginas);
  }
  EXPECT_STREQ(ClaveDeFallo(F::Caracter), "BadCHARPageInterval");
}

TEST(Paginas, CopiesFromOneTo499) {
  const std::pair<const char*, std::optional<int>> casos[] = {
      {"1", 1}, {" 7 ", 7}, {"499", 499}, {"500", std::nullopt}, {"0", std::nullopt},
      {"-1", std::nullopt}, {"2.5", std::nullopt}, {"", std::nullopt}, {"x", std::nullopt},
      {"99999999999999999999", std::nullopt}};
  for (const auto& [texto, copias] : casos) EXPECT_EQ(LeeCopias(texto), copias) << texto;
}

TEST(Paginas, SetsAndOrderOfSheets) {
  struct Caso {
    ConjuntoPaginas conjunto;
    int paginas, actual, copias;
    bool intercalar;
    std::vector<int> orden;
  };
  using C = ConjuntoPaginas;
  const Caso casos[] = {
      {C::Todas, 2, 1, 2, true, {1, 2, 1, 2}},
      {C::Todas, 2, 1, 2, false, {1, 1, 2, 2}},
      {C::Todas, 3, 1, 1, true, {1, 2, 3}},
      {C::Impares, 5, 1, 1, true, {1, 3, 5}},
      {C::Pares, 5, 1, 2, false, {2, 2, 4, 4}},
      {C::Pares, 1, 1, 3, true, {}},
      {C::Actual, 4, 3, 2, true, {3, 3}},
      {C::Actual, 4, 9, 1, true, {}},
  };
  for (const Caso& c : casos) {
    EleccionImpresion e{c.conjunto, {}, c.actual, c.copias, c.intercalar};
    EXPECT_EQ(OrdenDeImpresion(e, c.paginas), c.orden)
        << static_cast<int>(c.conjunto) << " of " << c.paginas << ", " << c.copias << " copies";
  }
  EleccionImpresion todas;
  todas.copias = kMaxCopias;
  EXPECT_EQ(OrdenDeImpresion(todas, 250).size(), 250u * kMaxCopias);
}

}  // namespace
}  // namespace ss
