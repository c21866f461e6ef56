// The decisions of the wizard and of the settings window, checked against
// values worked out by hand.
#include "worksheet/asistente.h"

#include <gtest/gtest.h>

#include "problems/idioma.h"

namespace ss {
namespace {

TEST(Paleta, AClickPicksTheColourUnderItAndStaysInTheStrip) {
  const std::pair<int, int> casos[] = {{-50, 0}, {3, 0}, {12, 0}, {14, 1}, {23, 1}, {103, 5}, {423, 21}, {2000, 21}};
  for (const auto& [x, indice] : casos) EXPECT_EQ(IndicePaletaEn(x), indice) << x;
  // Colours are stored as red + 256 green + 65536 blue; of a repeated colour the first is found.
  EXPECT_EQ(std::tuple(ColorPaleta(0), ColorPaleta(5), ColorPaleta(21)),
            std::tuple(16777215, 192 + 256 * 192 + 65536 * 255, 192 + 256 * 224 + 65536 * 224));
  EXPECT_EQ(std::tuple(IndiceDeColor(ColorPaleta(16)), IndiceDeColor(ColorPaleta(19)), IndiceDeColor(123)),
            std::tuple(15, 14, -1));
}

TEST(NumeroDePagina, EachPlaceHasItsCodeAndBack) {
  // Head: right 1, left 2, centre 3, odd right 4, odd left 5; the foot adds 8.
  const std::pair<Alineacion, int> casos[] = {{Alineacion::Izquierda, 2}, {Alineacion::Centro, 3},
      {Alineacion::Derecha, 1}, {Alineacion::FueraImpar, 4}, {Alineacion::DentroImpar, 5}};
  for (bool abajo : {false, true})
    for (const auto& [al, cabeza] : casos) {
      const int codigo = cabeza + (abajo ? 8 : 0);
      EXPECT_EQ(PosNumPag({true, abajo, al}), codigo);
      EXPECT_EQ(PosNumPag({false, abajo, al}), 0);
      const LugarNumero l = LugarDe(codigo);
      EXPECT_TRUE(l.mostrar && l.abajo == abajo && l.alineacion == al) << codigo;
    }
  EXPECT_FALSE(LugarDe(0).mostrar);
}

TEST(Cantidades, RangesFollowTheGeneratorAndBadTextGivesNothing) {
  const std::pair<int, Rango> rangos[] = {{0, {1, 1}}, {1, {1, 1}}, {5, {2, 5}}, {27, {2, 27}}, {150, {2, 99}}};
  for (const auto& [max, r] : rangos) EXPECT_EQ(RangoCantidad2(max), r) << max;
  const std::optional<int> nada;
  const std::pair<const char*, std::optional<int>> textos[] = {{"1", 1}, {" 99 ", 99}, {"0", nada}, {"100", nada},
      {"", nada}, {"abc", nada}, {"4a", nada}, {"-3", nada}, {"123456789012", nada}};
  for (const auto& [t, v] : textos) EXPECT_EQ(LeeCantidad(t, kRangoCantidad1), v) << t;
  // Ten digits would not fit; anything unread starts at 1.
  const std::pair<const char*, int> iniciales[] = {
      {"", 1}, {"0", 1}, {"250", 250}, {"999999999", 999999999}, {"1234567890", 1}, {"12a", 1}};
  for (const auto& [t, v] : iniciales) EXPECT_EQ(LeeNumeroInicial(t), v) << t;
}

TEST(Cantidades, AMarkedRowGetsAmountsWithinItsGeneratorsRange) {
  const struct {
    int16_t tipo, max, c1, c2, c1Esperada, c2Esperada;
  } casos[] = {
      {2, 20, 0, 0, 1, 6},  // an exercise: one, of six items
      {2, 5, 0, 8, 1, 5},   // eight items where five is the most
      {1, 3, 4, 0, 4, 3},   // the default of six brought down
      {2, 0, 0, 0, 1, 1},   // no maximum given
      {3, 0, 2, 0, 2, 0},   // a problem has no items
  };
  for (const auto& c : casos) {
    ArbolItem f;
    f.Tipo = c.tipo, f.MaxCantidad2 = c.max, f.Cantidad1 = c.c1, f.Cantidad2 = c.c2;
    DaCantidades(f);
    EXPECT_EQ(std::pair(f.Cantidad1, f.Cantidad2), std::pair(c.c1Esperada, c.c2Esperada)) << c.tipo << " " << c.max;
  }
}

// Chemistry > Gases (gas laws, a problem) and Units (mass, an exercise; a
// question).
Arbol ArbolDePrueba() {
  Arbol a;
  const std::tuple<int, int, const char*> filas[] = {{0, 6, "Chemistry"},     {1, 5, "Gases"},
                                                     {2, 3, "Gas laws"},      {1, 5, "Units"},
                                                     {2, 2, "Units of mass"}, {2, 1, "Symbols of units"}};
  for (const auto& [nivel, tipo, nombre] : filas) {
    ArbolItem f;
    f.Nivel = static_cast<int16_t>(nivel), f.Tipo = static_cast<int16_t>(tipo), f.Nombre = nombre;
    a.Agrega(f);
  }
  return a;
}

TEST(Marcadas, TheTitleNamesTheKindAndTopicAndTheCountAddsTheirAmounts) {
  TextosVentana t(SS_SOURCE_DIR, "WIZ");
  t.LoadIdioma();
  const std::pair<std::vector<int>, const char*> casos[] = {{{}, ""}, {{3}, "Problems of Gases"},
      {{5}, "Exercises of Units"}, {{6}, "Questions of Units"}, {{5, 6}, "Problems of Units"},
      {{3, 5}, "Problems of Chemistry"}};
  for (const auto& [marcadas, titulo] : casos) {
    Arbol a = ArbolDePrueba();
    for (int i : marcadas) a.filas[static_cast<std::size_t>(i)].Marcado = true;
    EXPECT_EQ(GetDefaultTitle(a, t), titulo);
  }
  Arbol a = ArbolDePrueba();
  a.filas[3].Marcado = true;
  EXPECT_EQ(GetDefaultTitle(a, t, "ESP"), "Problems de Gases");
  // The count adds the marked rows only.
  a.filas[3].Cantidad1 = 99, a.filas[5].Marcado = true, a.filas[5].Cantidad1 = 402, a.filas[6].Cantidad1 = 7;
  EXPECT_EQ(Recuenta(a), 501);
}

TEST(Paginas, TheWalkSkipsThePagesNotShown) {
  const PaginasAsistente basicas = PaginasAsistente::Para(true, false);
  std::vector<int> ida{basicas.Primera()};
  while (basicas.Siguiente(ida.back()) != ida.back()) ida.push_back(basicas.Siguiente(ida.back()));
  EXPECT_EQ(ida, (std::vector<int>{1, 2, 4, 7}));
  EXPECT_EQ(std::pair(basicas.Anterior(7), basicas.Anterior(1)), std::pair(4, 1));
  const PaginasAsistente sin = PaginasAsistente::Para(false, true);  // no welcome page
  EXPECT_EQ(std::tuple(sin.Primera(), sin.Anterior(2), sin.Siguiente(4), sin.Siguiente(7)), std::tuple(2, 2, 5, 7));
  // The tree is built again when the system, the subject or the kinds change.
  const auto firma = FirmaArbol("", "Chemistry", kTiposPorDefecto);
  EXPECT_NE(FirmaArbol("a.sed", "Chemistry", kTiposPorDefecto), firma);
  EXPECT_NE(FirmaArbol("", "Chemistry", {true, false, true, false}), firma);
  EXPECT_EQ(FirmaArbol("", "Chemistry", kTiposPorDefecto), firma);
}

class Guardado : public ::testing::Test {
 protected:
  TextosVentana t{SS_SOURCE_DIR, "MAI"};
  AlmacenMemoria al;
  Ajustes a = LeeAjustes(al, t);
};

TEST_F(Guardado, WhatTheWizardStoresIsWhatTheNextOneStartsFrom) {
  ColeccionCab c = CabeceraNueva(a);
  EXPECT_EQ(std::tuple(c.POSSOL, c.POSNUMPAG), std::tuple(3, 11));
  EXPECT_NE(c.ORDENA, 0);
  c.ORDENA = 0, c.POSSOL = 0, c.PROPRE = "No. ", c.PROSUF = ".", c.POSNUMPAG = 4, c.COLRESPRO = 0;
  TomaDefectos(c, a);
  GuardarAjustesAsistente(a, al);
  TextosPequenos p;
  p.porDefecto = {true, false, true};
  p.texto = {"Hill School", "Name:", ""};
  a.posti1 = "Date:";
  GuardaTextosPequenos(p, a, al);

  // No colour is white; a text that is not a default leaves its box empty
  // and stores nothing.
  const ColeccionCab o = CabeceraNueva(LeeAjustes(al, t));
  EXPECT_EQ(std::tuple(o.ORDENA, o.POSSOL, o.PROPRE, o.PROSUF, o.POSNUMPAG, o.COLRESPRO, o.PROINI),
            std::tuple(0, 0, "No. ", ".", 4, 16777215, 1));
  EXPECT_EQ((std::vector<std::string>{o.PRETIT, o.POSTI1, o.POSTI2, o.TITULO}),
            (std::vector<std::string>{"Hill School", "", "", ""}));
  EXPECT_FALSE(al.Lee("Wizard", "Posti1").has_value());
  EXPECT_EQ(al.Lee("Wizard", "Chkposti1").value_or("?"), "N");
}

TEST_F(Guardado, NotationChoicesStandForTheSettingsAndComeBackFromTheStore) {
  OpcionesNotacion o = NotacionDe(a);
  EXPECT_EQ(std::tuple(o.separadores, o.moneda, o.division),
            std::tuple(Separadores::PuntoComa, Moneda::Dolar, SignoDivision::Obelo));
  EXPECT_TRUE(o.sigma && o.frecuenciaN && o.productoAspa && !o.cientificoPunto && !o.intervaloInvertido);

  o.separadores = Separadores::ComaPuntoYComa, o.division = SignoDivision::Barra;
  o.intervaloInvertido = true, o.sigma = false, o.frecuenciaN = false, o.cientificoPunto = true, o.productoAspa = false;
  o.moneda = Moneda::Otra, o.simbolo = " CHF ", o.singular = "franc", o.plural = "francs";
  o.espejoPositivo = {true, false, true, false};
  ASSERT_TRUE(MonedaCompleta(o));
  AplicaNotacion(o, a, al, "dollar", "dollars");
  const Ajustes b = LeeAjustes(al, t);
  EXPECT_EQ((std::vector<std::string>{b.decimal, b.lista, b.intervaloAbre, b.intervaloCierra, b.desviacion,
                                      b.frecuencia, b.notacionCientifica, b.producto, b.division, b.moneda}),
            (std::vector<std::string>{",", ";", "]", "[", "S", "f", "\xB7" "10", "\xB7", "/", "CHF"}));
  EXPECT_EQ(std::pair(b.signosEspejo[0], b.signosEspejo[1]), std::pair(1, -1));
  const OpcionesNotacion vuelta = NotacionDe(b);
  EXPECT_EQ(std::tuple(vuelta.separadores, vuelta.moneda), std::tuple(Separadores::ComaPuntoYComa, Moneda::Otra));
  EXPECT_EQ(vuelta.espejoPositivo, o.espejoPositivo);

  // Separators that match no choice fall to the language's pair.
  Ajustes raro = b;
  raro.decimal = ",", raro.lista = ",";
  EXPECT_EQ(NotacionDe(raro, "ESP").separadores, Separadores::ComaPuntoYComa);
  EXPECT_EQ(NotacionDe(raro, "ENG").separadores, Separadores::PuntoComa);
  // The euro is told by its symbol and both names.
  raro.moneda = "\x80", raro.monedaNombre = "euro", raro.monedaPlural = "euros";
  EXPECT_EQ(NotacionDe(raro).moneda, Moneda::Euro);
  raro.monedaNombre = "Euro";
  EXPECT_EQ(NotacionDe(raro).moneda, Moneda::Otra);
  o.singular = "  ";
  EXPECT_FALSE(MonedaCompleta(o));
}

}  // namespace
}  // namespace ss
