// The unit conversion exercises: every answer recomputed from the data its
// statement shows, with unit sizes worked out here from the metric prefixes
// and the legal definitions of the imperial units.
#include "problems/conversiones.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/modules/markup_numeros.h"
#include "modules/modulos.h"
#include "problems/generic.h"
#include "problems/idioma.h"
#include "problems/texto.h"

namespace ss {
namespace {

Mensajes& Textos() {
  static Mensajes m(SS_SOURCE_DIR);
  return m;
}

struct Hecho {
  std::string st, so;
};

Hecho Genera(GenContext& g, int gen, int seqB, int items) {
  Hecho h;
  const std::string cmd = ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + ZeroPadCut(items, 2) + "0301";
  GeneraProblema(g, "ANEU_QUIM_DIS", cmd, h.st, h.so);
  return h;
}

// The text after `marca` up to the line's end; "" when there is no `marca`.
std::string Tras(const std::string& m, const std::string& marca) {
  const std::size_t at = m.find(marca);
  if (at == std::string::npos) return "";
  const std::size_t desde = at + marca.size();
  return m.substr(desde, m.find("&LF", desde) - desde);
}
std::string Item(const std::string& m, int i) { return Tras(m, "&+B" + std::string(1, char('a' + i - 1)) + ")&-B "); }

int CuentaItems(const std::string& m) {
  int n = 0;
  for (std::size_t at = m.find(")&-B "); at != std::string::npos; at = m.find(")&-B ", at + 1)) ++n;
  return n;
}

struct Cantidad {
  double valor;
  std::string unidad;
};

// "0&.45& km  +  20& m  into  cm": the quantities, and the unit after the last blank.
std::vector<Cantidad> Datos(const std::string& linea, std::string* destino = nullptr) {
  static const std::regex dato(R"((-?[0-9][0-9_ ]*(?:&\.[0-9_ ]+)?)& ([^ &]+))");
  std::vector<Cantidad> out;
  for (std::sregex_iterator it(linea.begin(), linea.end(), dato), end; it != end; ++it)
    out.push_back({test::Numeros((*it)[1].str()).at(0), (*it)[2].str()});
  if (destino) *destino = linea.substr(linea.rfind(' ') + 1);
  return out;
}

// A unit's magnitude ("m", "m^2", "m^3", "g") and its size in m, m^2, m^3 or g.
struct Medida {
  std::string magnitud;
  double tamano = 0;
};

Medida Metrica(std::string u) {
  static const std::map<std::string, Medida> nombradas = {
      {"ha", {"m^2", 1e4}}, {"a", {"m^2", 1e2}}, {"ca", {"m^2", 1}}};
  static const std::map<std::string, double> prefijos = {
      {"k", 1e3}, {"h", 1e2}, {"da", 1e1}, {"", 1}, {"d", 1e-1}, {"c", 1e-2}, {"m", 1e-3}};
  if (nombradas.count(u)) return nombradas.at(u);
  int potencia = 1;
  if (u.size() > 2 && u[u.size() - 2] == '^') {
    potencia = u.back() - '0';
    u.resize(u.size() - 2);
  }
  const char base = u.back();
  const auto p = prefijos.find(u.substr(0, u.size() - 1));
  if (u.empty() || p == prefijos.end()) return {};
  if (base == 'L' && potencia == 1) return {"m^3", p->second * 1e-3};
  if (base == 'g' && potencia == 1) return {"g", p->second};
  if (base == 'm') return {potencia == 1 ? "m" : "m^" + std::to_string(potencia), std::pow(p->second, potencia)};
  return {};
}

// ---------------------------------------------------------------------------
// Decimal ladders.

struct Escala {
  int gen;
  std::string magnitud;
  double base;      // size of the ladder's unit 4
  int potencia;     // decades between neighbouring units
  int maxPartes;
  double minimo, maximo;
  bool litros, soloLitros, agrarias;
  int nombradaDesde, nombradaHasta;
};

const Escala kEscalas[] = {
    {11, "g", 1, 1, 4, 0.01, 1e8, false, false, false, 0, 0},
    {12, "m", 1, 1, 4, 0.01, 1e8, false, false, false, 0, 0},
    {13, "m^2", 1, 2, 3, 0.009, 9.9e8, false, false, false, 0, 0},
    {14, "m^2", 1, 2, 3, 0.002, 9.9e8, false, false, true, 2, 4},
    {15, "m^3", 1, 3, 3, 0.002, 9.9e8, false, false, false, 0, 0},
    {16, "m^3", 1e-3, 1, 4, 0.01, 1e8, true, true, false, 0, 0},
    {17, "m^3", 1, 3, 3, 0.002, 9.9e8, true, false, false, 4, 6},
};

int Indice(const Escala& e, const Medida& m) {
  if (m.tamano <= 0) return 0;
  return 4 - static_cast<int>(std::lround(std::log10(m.tamano / e.base) / e.potencia));
}

bool EsLitro(const std::string& u) { return u.back() == 'L'; }
bool EsAgraria(const std::string& u) { return u == "ha" || u == "a" || u == "ca"; }

void UnidadDeLaEscala(const Escala& e, const std::string& u) {
  EXPECT_EQ(Metrica(u).magnitud, e.magnitud) << u;
  EXPECT_TRUE(e.litros || !EsLitro(u)) << u;
  EXPECT_TRUE(!e.soloLitros || EsLitro(u)) << u;
  EXPECT_TRUE(e.agrarias || !EsAgraria(u)) << u;
}

// Checks every item of a decimal exercise and gathers the target indices.
void CompruebaDecimal(const Escala& e, const Hecho& h, std::vector<int>& destinos) {
  for (int i = 1; i <= CuentaItems(h.st); ++i) {
    SCOPED_TRACE("item " + std::to_string(i) + ": " + Item(h.st, i) + " -> " + Item(h.so, i));
    std::string destino;
    const auto partes = Datos(Item(h.st, i), &destino);
    const auto sol = Datos(Item(h.so, i));
    UnidadDeLaEscala(e, destino);
    const int t = Indice(e, Metrica(destino));
    ASSERT_EQ(sol.size(), 1u);
    EXPECT_EQ(sol[0].unidad, destino);
    ASSERT_GE(partes.size(), 1u);
    EXPECT_LE(static_cast<int>(partes.size()), e.maxPartes);
    double esperado = 0;
    std::set<int> usadas;
    for (const Cantidad& p : partes) {
      UnidadDeLaEscala(e, p.unidad);
      const int u = Indice(e, Metrica(p.unidad));
      EXPECT_TRUE(usadas.insert(u).second) << "a unit twice";
      EXPECT_NE(u, t);
      EXPECT_LT(std::abs(u - t), 6);
      // Two digits, at most shown as thousandths in the big units and as
      // hundreds in the small ones.
      bool dosCifras = false;
      for (int s : u < 4 ? std::vector{-3, -2, -1, 0} : u == 4 ? std::vector{0} : std::vector{0, 2}) {
        const double n = p.valor / std::pow(10.0, s);
        dosCifras |= std::fabs(n - std::round(n)) < 1e-9 && n >= 11 && n <= 99;
      }
      EXPECT_TRUE(dosCifras) << p.valor << " " << p.unidad;
      esperado += p.valor * Metrica(p.unidad).tamano / Metrica(destino).tamano;
    }
    EXPECT_TRUE(test::Cerca(sol[0].valor, esperado, 1e-12)) << sol[0].valor << " vs " << esperado;
    EXPECT_GE(sol[0].valor, e.minimo);
    EXPECT_LT(sol[0].valor, e.maximo);
    destinos.push_back(t);
  }
}

TEST(ConversionesDecimales, EveryAnswerIsTheSumOfItsPartsInTheTargetUnit) {
  for (const Escala& e : kEscalas) {
    int siguenAlContador = 0, total = 0;
    for (int seed = 1; seed <= 12; ++seed) {
      GenContext g(&Textos(), Aleatorio(static_cast<uint64_t>(seed * 31 + e.gen)));
      const int seqB = seed * 5;
      const Hecho h = Genera(g, e.gen, seqB, 8);
      SCOPED_TRACE(std::to_string(e.gen) + "\n" + h.st + "\n" + h.so);
      std::vector<int> t;
      CompruebaDecimal(e, h, t);
      ASSERT_EQ(t.size(), 8u);
      for (std::size_t k = 0; k < t.size(); ++k, ++total) {
        siguenAlContador += t[k] == (seqB + static_cast<int>(k) + 1) % 7 + 1;
        // Neighbours share a target only when a chance moved one of them.
        const bool movido = t[k] == 4 || t[k] == 7 || (t[k] >= e.nombradaDesde && t[k] <= e.nombradaHasta);
        EXPECT_TRUE(k == 0 || t[k] != t[k - 1] || movido) << k;
      }
    }
    EXPECT_GT(siguenAlContador * 10, total * 6) << "targets follow the variant counter";
  }
}

// A source whose every value lies below 0.9: no chance fires, so each target
// and each choice of named units follows the variant counter alone.
Aleatorio SinSorpresas() {
  std::mt19937 gen(2024);
  std::uniform_real_distribution<double> below(0, 0.899);
  std::vector<double> v(4999);
  for (double& x : v) x = below(gen);
  return Aleatorio::Guionado(v);
}

TEST(ConversionesDecimales, WithoutChancesTargetsAndNamedUnitsFollowTheCounter) {
  for (const Escala& e : kEscalas) {
    for (int seqB : {0, 1, 2, 11}) {
      GenContext g(&Textos(), SinSorpresas());
      const Hecho h = Genera(g, e.gen, seqB, 8);
      SCOPED_TRACE(h.st);
      std::vector<int> t;
      CompruebaDecimal(e, h, t);
      ASSERT_EQ(t.size(), 8u);
      for (int i = 1; i <= 8; ++i) {
        EXPECT_EQ(t[i - 1], (seqB + i) % 7 + 1);
        if (e.nombradaDesde == 0) continue;
        std::string destino;
        const auto partes = Datos(Item(h.st, i), &destino);
        const bool nombrada = (seqB + i) % 3 != 0;
        const bool tieneGemela = t[i - 1] >= e.nombradaDesde && t[i - 1] <= e.nombradaHasta;
        EXPECT_EQ(EsLitro(destino) || EsAgraria(destino), nombrada && tieneGemela) << destino;
        for (const Cantidad& p : partes)
          EXPECT_TRUE(!nombrada || !(EsLitro(p.unidad) || EsAgraria(p.unidad))) << p.unidad;
      }
    }
  }
}

TEST(ConversionesDecimales, CalledWithAWrappersBoundTheyStopAtTheAlphabet) {
  GenContext g(&Textos(), Aleatorio(7));
  g.GP_Items = 30;
  g.GP_MaxItems = "027";
  ConversionesDecimales(g, Escalera::Volumen);
  std::vector<int> t;
  CompruebaDecimal(kEscalas[4], {g.GP_Statement, g.GP_Solution}, t);
  EXPECT_EQ(t.size(), 26u);
}

// ---------------------------------------------------------------------------
// Item counts of every conversion generator.

TEST(Conversiones, ItemCountsKeepToTheirBounds) {
  GenContext g(&Textos(), Aleatorio(3));
  for (int gen = 11; gen <= 21; ++gen) {
    const int tope = gen <= 17 ? 8 : 26;
    for (const auto& [pedidos, dados] : std::map<int, int>{{0, 2}, {1, 2}, {5, 5}, {30, tope}}) {
      const Hecho h = Genera(g, gen, 3, pedidos);
      EXPECT_EQ(CuentaItems(h.st), dados) << gen << " " << pedidos << "\n" << h.st;
      EXPECT_EQ(CuentaItems(h.so), dados) << gen << " " << pedidos;
    }
  }
}

// ---------------------------------------------------------------------------
// Temperature.

double ACelsius(double v, const std::string& u) {
  return u == "\xB0" "F" ? (v - 32) * 5 / 9 : u == "K" ? v - 273.15 : v;
}
double DesdeCelsius(double c, const std::string& u) {
  return u == "\xB0" "F" ? c * 9 / 5 + 32 : u == "K" ? c + 273.15 : c;
}

TEST(ConversionesTemperatura, AnswersFollowTheScalesAndTheFlagTurnsEachFormRound) {
  const std::string c = "\xB0" "C", f = "\xB0" "F", k = "K";
  const std::pair<std::string, std::string> formas[] = {{c, f}, {f, c}, {c, k}, {k, c}, {f, k}, {k, f}};
  for (int seqB = 0; seqB < 12; ++seqB) {
    for (int gen : {18, 19}) {
      GenContext g(&Textos(), Aleatorio(static_cast<uint64_t>(seqB * 3 + gen)));
      const Hecho h = Genera(g, gen, seqB, 12);
      SCOPED_TRACE(h.st + "\n" + h.so);
      EXPECT_EQ(test::NumerosTras(h.st, ":&LF"), (std::vector<double>{1.8, 32, 273.15}));
      ASSERT_EQ(CuentaItems(h.st), 12);
      for (int i = 1; i <= 12; ++i) {
        std::string destino;
        const auto d = Datos(Item(h.st, i), &destino);
        const auto s = Datos(Item(h.so, i));
        ASSERT_EQ(d.size(), 1u);
        ASSERT_EQ(s.size(), 1u);
        auto forma = formas[(seqB + i) % 6];
        if (gen == 19) std::swap(forma.first, forma.second);
        EXPECT_EQ(d[0].unidad, forma.first);
        EXPECT_EQ(destino, forma.second);
        EXPECT_EQ(s[0].unidad, forma.second);
        EXPECT_GE(d[0].valor, d[0].unidad == k ? 0 : -200);
        EXPECT_LE(d[0].valor, d[0].unidad == k ? 400 : 212);
        EXPECT_NEAR(s[0].valor, DesdeCelsius(ACelsius(d[0].valor, d[0].unidad), destino), 0.005 + 1e-9);
      }
    }
  }
}

// ---------------------------------------------------------------------------
// Imperial units: sizes in metres and grams from their definitions.

const std::map<std::string, Medida> kImperiales = {
    {"yd", {"m", 0.9144}},        {"mi", {"m", 1760 * 0.9144}}, {"ft", {"m", 0.9144 / 3}},
    {"in", {"m", 0.9144 / 36}},   {"lb", {"g", 453.59237}},     {"oz", {"g", 453.59237 / 16}}};

Medida Cualquiera(const std::string& u) { return kImperiales.count(u) ? kImperiales.at(u) : Metrica(u); }

void CompruebaImperial(int gen, std::size_t formas) {
  std::set<std::pair<std::string, std::string>> vistas;
  for (int seed = 1; seed <= 20; ++seed) {
    GenContext g(&Textos(), Aleatorio(static_cast<uint64_t>(seed + gen)));
    const Hecho h = Genera(g, gen, seed, 26);
    SCOPED_TRACE(h.st + "\n" + h.so);
    // Every chain of equivalences the statement gives holds.
    std::stringstream cadenas(Tras(h.st, ":&LF"));
    int vistasCadenas = 0;
    for (std::string cadena; std::getline(cadenas, cadena, ';'); ++vistasCadenas) {
      const auto iguales = Datos(cadena);
      ASSERT_GE(iguales.size(), 2u) << cadena;
      for (const Cantidad& q : iguales)
        EXPECT_TRUE(test::Cerca(q.valor * Cualquiera(q.unidad).tamano,
                                iguales[0].valor * Cualquiera(iguales[0].unidad).tamano, 1e-12))
            << q.unidad;
    }
    EXPECT_GE(vistasCadenas, 1);
    for (int i = 1; i <= 26; ++i) {
      std::string destino;
      const auto d = Datos(Item(h.st, i), &destino);
      const auto s = Datos(Item(h.so, i));
      ASSERT_EQ(d.size(), 1u);
      ASSERT_EQ(s.size(), 1u);
      EXPECT_EQ(s[0].unidad, destino);
      const Medida de = Cualquiera(d[0].unidad), a = Cualquiera(destino);
      EXPECT_EQ(de.magnitud, a.magnitud);
      EXPECT_TRUE(kImperiales.count(d[0].unidad) || kImperiales.count(destino));
      EXPECT_GE(d[0].valor, 1);
      EXPECT_LE(d[0].valor, 8000);
      EXPECT_NEAR(s[0].valor, d[0].valor * de.tamano / a.tamano, 0.0005 + 1e-9 * s[0].valor);
      vistas.insert({d[0].unidad, destino});
    }
  }
  EXPECT_EQ(vistas.size(), formas);
  for (const auto& [de, a] : vistas) EXPECT_TRUE(vistas.count({a, de})) << de << " -> " << a;
}

TEST(ConversionesImperiales, LengthsAnswerByTheFactorsInAll22Forms) { CompruebaImperial(20, 22); }
TEST(ConversionesImperiales, MassesAnswerByTheFactorsInAll10Forms) { CompruebaImperial(21, 10); }

}  // namespace
}  // namespace ss
