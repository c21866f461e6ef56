// The decisions of the wizard and of the settings window, checked against
// values worked out by hand.
#include <gtest/gtest.h>

#include "problems/idioma.h"
#include "worksheet/asistente.h"

namespace ss {
namespace {

TEST(Paleta, AClickPicksTheColourUnderItAndStaysInTheStrip) {
  const struct {
    int x, indice;
  } casos[] = {{-50, 0}, {3, 0}, {12, 0}, {14, 1}, {23, 1}, {103, 5}, {423, 21}, {2000, 21}};
  for (const auto& c : casos) EXPECT_EQ(IndicePaletaEn(c.x), c.indice) << c.x;
  // Colours are stored as red + 256 green + 65536 blue.
  EXPECT_EQ(ColorPaleta(0), 16777215);
  EXPECT_EQ(ColorPaleta(5), 192 + 256 * 192 + 65536 * 255);
  EXPECT_EQ(ColorPaleta(21), 192 + 256 * 224 + 65536 * 224);
  // The palette repeats two colours: the first of each pair is found.
  EXPECT_EQ(IndiceDeColor(ColorPaleta(16)), 15);
  EXPECT_EQ(IndiceDeColor(ColorPaleta(19)), 14);
  EXPECT_EQ(IndiceDeColor(123), -1);
}

TEST(NumeroDePagina, EachPlaceHasItsCodeAndBack) {
  // Head: right 1, left 2, centre 3, odd right 4, odd left 5; the foot adds 8.
  const struct {
    bool abajo;
    Alineacion a;
    int codigo;
  } casos[] = {{false, Alineacion::Izquierda, 2},  {false, Alineacion::Centro, 3},
               {false, Alineacion::Derecha, 1},    {false, Alineacion::FueraImpar, 4},
               {false, Alineacion::DentroImpar, 5}, {true, Alineacion::Izquierda, 10},
               {true, Alineacion::Centro, 11},     {true, Alineacion::Derecha, 9},
               {true, Alineacion::FueraImpar, 12}, {true, Alineacion::DentroImpar, 13}};
  for (const auto& c : casos) {
    EXPECT_EQ(PosNumPag({true, c.abajo, c.a}), c.codigo);
    EXPECT_EQ(PosNumPag({false, c.abajo, c.a}), 0);
    const LugarNumero l = LugarDe(c.codigo);
    EXPECT_TRUE(l.mostrar && l.abajo == c.abajo && l.alineacion == c.a) << c.codigo;
  }
  EXPECT_FALSE(LugarDe(0).mostrar);
}

TEST(Cantidades, RangesFollowTheGeneratorAndBadTextGivesNothing) {
  EXPECT_EQ(RangoCantidad2(0), (Rango{1, 1}));  // a blank maximum
  EXPECT_EQ(RangoCantidad2(1), (Rango{1, 1}));
  EXPECT_EQ(RangoCantidad2(5), (Rango{2, 5}));
  EXPECT_EQ(RangoCantidad2(27), (Rango{2, 27}));
  EXPECT_EQ(RangoCantidad2(150), (Rango{2, 99}));
  const struct {
    const char* texto;
    std::optional<int> valor;
  } casos[] = {{"1", 1}, {" 99 ", 99}, {"0", std::nullopt}, {"100", std::nullopt}, {"", std::nullopt},
               {"abc", std::nullopt}, {"4a", std::nullopt}, {"-3", std::nullopt}, {"123456789012", std::nullopt}};
  for (const auto& c : casos) EXPECT_EQ(LeeCantidad(c.texto, kRangoCantidad1), c.valor) << c.texto;
  EXPECT_EQ(LeeNumeroInicial(""), 1);
  EXPECT_EQ(LeeNumeroInicial("0"), 1);
  EXPECT_EQ(LeeNumeroInicial("250"), 250);
  EXPECT_EQ(LeeNumeroInicial("999999999"), 999999999);
  EXPECT_EQ(LeeNumeroInicial("1234567890"), 1);  // ten digits would not fit
  EXPECT_EQ(LeeNumeroInicial("12a"), 1);
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
    EXPECT_EQ(f.Cantidad1, c.c1Esperada);
    EXPECT_EQ(f.Cantidad2, c.c2Esperada);
  }
}

// Chemistry > Gases (gas laws, a problem) and Units (mass, an exercise; a
// question).
Arbol ArbolDePrueba() {
  Arbol a;
  auto fila = [&a](int nivel, int tipo, const char* nombre) -> ArbolItem& {
    ArbolItem f;
    f.Nivel = static_cast<int16_t>(nivel), f.Tipo = static_cast<int16_t>(tipo), f.Nombre = nombre;
    return a.Agrega(f);
  };
  fila(0, 6, "Chemistry");
  fila(1, 5, "Gases");
  fila(2, 3, "Gas laws");
  fila(1, 5, "Units");
  fila(2, 2, "Units of mass");
  fila(2, 1, "Symbols of units");
  return a;
}

TEST(Titulo, NamesTheKindAndTheOneTopicOrTheSubject) {
  TextosVentana t(SS_SOURCE_DIR, "WIZ");
  t.LoadIdioma();
  const struct {
    std::vector<int> marcadas;
    const char* titulo;
  } casos[] = {{{}, ""},
               {{3}, "Problems of Gases"},
               {{5}, "Exercises of Units"},
               {{6}, "Questions of Units"},
               {{5, 6}, "Problems of Units"},
               {{3, 5}, "Problems of Chemistry"}};
  for (const auto& c : casos) {
    Arbol a = ArbolDePrueba();
    for (int i : c.marcadas) a.filas[static_cast<std::size_t>(i)].Marcado = true;
    EXPECT_EQ(GetDefaultTitle(a, t), c.titulo);
  }
  Arbol a = ArbolDePrueba();
  a.filas[3].Marcado = true;
  EXPECT_EQ(GetDefaultTitle(a, t, "ESP"), "Problems de Gases");
}

TEST(Recuenta, AddsTheMarkedRowsOnly) {
  Arbol a = ArbolDePrueba();
  a.filas[3].Marcado = true, a.filas[3].Cantidad1 = 99;
  a.filas[5].Marcado = true, a.filas[5].Cantidad1 = 402;
  a.filas[6].Cantidad1 = 7;  // not marked
  EXPECT_EQ(Recuenta(a), 501);
}

TEST(Paginas, TheWalkSkipsThePagesNotShown) {
  const PaginasAsistente basicas = PaginasAsistente::Para(true, false);
  std::vector<int> ida{basicas.Primera()};
  while (basicas.Siguiente(ida.back()) != ida.back()) ida.push_back(basicas.Siguiente(ida.back()));
  EXPECT_EQ(ida, (std::vector<int>{1, 2, 4, 7}));
  EXPECT_EQ(basicas.Anterior(7), 4);
  EXPECT_EQ(basicas.Anterior(1), 1);
  const PaginasAsistente sinBienvenida = PaginasAsistente::Para(false, true);
  EXPECT_EQ(sinBienvenida.Primera(), 2);
  EXPECT_EQ(sinBienvenida.Anterior(2), 2);
  EXPECT_EQ(sinBienvenida.Siguiente(4), 5);
  EXPECT_EQ(sinBienvenida.Siguiente(7), 7);
  // The tree is built again when the system, the subject or the kinds change.
  EXPECT_NE(FirmaArbol("a.sed", "Chemistry", kTiposPorDefecto), FirmaArbol("", "Chemistry", kTiposPorDefecto));
  EXPECT_NE(FirmaArbol("", "Chemistry", kTiposPorDefecto), FirmaArbol("", "Chemistry", {true, false, true, false}));
  EXPECT_EQ(FirmaArbol("", "Chemistry", kTiposPorDefecto), FirmaArbol("", "Chemistry", kTiposPorDefecto));
}

TEST(Defectos, WhatTheWizardStoresIsWhatTheNextOneStartsFrom) {
  TextosVentana t(SS_SOURCE_DIR, "MAI");
  AlmacenMemoria al;
  Ajustes a = LeeAjustes(al, t);
  const ColeccionCab nueva = CabeceraNueva(a);
  EXPECT_EQ(nueva.POSSOL, 3);
  EXPECT_EQ(nueva.POSNUMPAG, 11);
  EXPECT_NE(nueva.ORDENA, 0);

  ColeccionCab c = nueva;
  c.ORDENA = 0, c.POSSOL = 0, c.PROPRE = "No. ", c.PROSUF = ".", c.POSNUMPAG = 4, c.COLRESPRO = 0;
  TomaDefectos(c, a);
  GuardarAjustesAsistente(a, al);
  TextosPequenos p;
  p.porDefecto = {true, false, true};
  p.texto = {"Hill School", "Name:", ""};
  a.posti1 = "Date:";
  GuardaTextosPequenos(p, a, al);

  const ColeccionCab otra = CabeceraNueva(LeeAjustes(al, t));
  EXPECT_EQ(otra.ORDENA, 0);
  EXPECT_EQ(otra.POSSOL, 0);
  EXPECT_EQ(otra.PROPRE, "No. ");
  EXPECT_EQ(otra.PROSUF, ".");
  EXPECT_EQ(otra.POSNUMPAG, 4);
  EXPECT_EQ(otra.COLRESPRO, 16777215);  // no colour is white
  EXPECT_EQ(otra.PRETIT, "Hill School");
  EXPECT_EQ(otra.POSTI1, "");  // not a default: the box starts empty
  EXPECT_EQ(otra.POSTI2, "");
  EXPECT_EQ(otra.TITULO, "");
  EXPECT_EQ(otra.PROINI, 1);
  EXPECT_FALSE(al.Lee("Wizard", "Posti1").has_value());  // no text is stored for it
  EXPECT_EQ(al.Lee("Wizard", "Chkposti1").value_or("?"), "N");
}

TEST(Notacion, TheChoicesStandForTheSettingsAndComeBackFromTheStore) {
  TextosVentana t(SS_SOURCE_DIR, "MAI");
  AlmacenMemoria al;
  Ajustes a = LeeAjustes(al, t);
  OpcionesNotacion o = NotacionDe(a);
  EXPECT_EQ(o.separadores, Separadores::PuntoComa);
  EXPECT_EQ(o.moneda, Moneda::Dolar);
  EXPECT_EQ(o.division, SignoDivision::Obelo);
  EXPECT_TRUE(o.sigma && o.frecuenciaN && o.productoAspa && !o.cientificoPunto && !o.intervaloInvertido);

  o.separadores = Separadores::ComaPuntoYComa;
  o.intervaloInvertido = true;
  o.sigma = false, o.frecuenciaN = false, o.cientificoPunto = true, o.productoAspa = false;
  o.division = SignoDivision::Barra;
  o.moneda = Moneda::Otra, o.simbolo = " CHF ", o.singular = "franc", o.plural = "francs";
  o.espejoPositivo = {true, false, true, false};
  ASSERT_TRUE(MonedaCompleta(o));
  AplicaNotacion(o, a, al, "dollar", "dollars");
  const Ajustes b = LeeAjustes(al, t);
  EXPECT_EQ(b.decimal, ",");
  EXPECT_EQ(b.lista, ";");
  EXPECT_EQ(b.intervaloAbre, "]");
  EXPECT_EQ(b.intervaloCierra, "[");
  EXPECT_EQ(b.desviacion, "S");
  EXPECT_EQ(b.frecuencia, "f");
  EXPECT_EQ(b.notacionCientifica, "\xB7" "10");
  EXPECT_EQ(b.producto, "\xB7");
  EXPECT_EQ(b.division, "/");
  EXPECT_EQ(b.moneda, "CHF");
  EXPECT_EQ(b.signosEspejo[0], 1);
  EXPECT_EQ(b.signosEspejo[1], -1);
  const OpcionesNotacion vuelta = NotacionDe(b);
  EXPECT_EQ(vuelta.separadores, Separadores::ComaPuntoYComa);
  EXPECT_EQ(vuelta.moneda, Moneda::Otra);
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
