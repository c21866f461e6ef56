// Every answer recomputed from the data its statement shows, with unit sizes from the metric
// prefixes, the temperature scales and the legal definitions of the imperial units.
#include "problems/conversiones.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sstream>
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {
using test::Textos;
using Hecho = test::Problema;
Hecho Genera(GenContext& g, int gen, int seqB, int items) {
  Hecho h;
  GeneraProblema(g, "ANEU_QUIM_DIS", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + ZeroPadCut(items, 2) + "0301",
                 h.st, h.so);
  return h;
}

std::string Item(const std::string& m, int i) { return test::Tras(m, Etiqueta(i)); }
int CuentaItems(const std::string& m) {
  int n = 0;
  while (n < 26 && !Item(m, n + 1).empty()) ++n;
  return n;
}

struct Cantidad { double valor; std::string unidad; };

// "0&.45& km  +  20& m  into  cm": the quantities, and the unit after the last blank.
std::vector<Cantidad> Datos(const std::string& linea, std::string* destino = nullptr) {
  static const std::regex dato(R"((-?[0-9][0-9_ ]*(?:&\.[0-9_ ]+)?)& ([^ &]+))");
  std::vector<Cantidad> out;
  for (std::sregex_iterator it(linea.begin(), linea.end(), dato), end; it != end; ++it)
    out.push_back({test::Numeros((*it)[1].str()).at(0), (*it)[2].str()});
  if (destino) *destino = linea.substr(linea.rfind(' ') + 1);
  return out;
}

struct Medida { std::string magnitud; double tamano = 0; };  // the size in m, m^2, m^3 or g

Medida Unidad(std::string u) {
  static const std::map<std::string, Medida> fijas = {
      {"ha", {"m^2", 1e4}},         {"a", {"m^2", 1e2}},          {"ca", {"m^2", 1}},
      {"yd", {"m", 0.9144}},        {"mi", {"m", 1760 * 0.9144}}, {"ft", {"m", 0.9144 / 3}},
      {"in", {"m", 0.9144 / 36}},   {"lb", {"g", 453.59237}},     {"oz", {"g", 453.59237 / 16}}};
  static const std::map<std::string, double> prefijos = {
      {"k", 1e3}, {"h", 1e2}, {"da", 1e1}, {"", 1}, {"d", 1e-1}, {"c", 1e-2}, {"m", 1e-3}};
  if (fijas.count(u)) return fijas.at(u);
  const int potencia = u.size() > 2 && u[u.size() - 2] == '^' ? u.back() - '0' : 1;
  if (potencia > 1) u.resize(u.size() - 2);
  const auto p = prefijos.find(u.substr(0, u.size() - 1));
  if (u.empty() || p == prefijos.end()) return {};
  if (u.back() == 'L' && potencia == 1) return {"m^3", p->second * 1e-3};
  if (u.back() == 'g' && potencia == 1) return {"g", p->second};
  if (u.back() == 'm') return {potencia == 1 ? "m" : "m^" + std::to_string(potencia), std::pow(p->second, potencia)};
  return {};
}

double ACelsius(double v, const std::string& u) { return u == "\xB0" "F" ? (v - 32) / 1.8 : u == "K" ? v - 273.15 : v; }
double DesdeCelsius(double c, const std::string& u) { return u == "\xB0" "F" ? c * 1.8 + 32 : u == "K" ? c + 273.15 : c; }

// Each generator: its ladder's magnitude and decades between neighbours
// (0 for the imperial and temperature ones), most parts, the answer's range,
// and which named units may appear.
struct Caso { int gen; std::string magnitud; int decadas, maxPartes, maxItems; double minimo, maximo; bool litros, agrarias; };
const Caso kCasos[] = {
    {11, "g", 1, 4, 8, 0.01, 1e8, false, false},      {12, "m", 1, 4, 8, 0.01, 1e8, false, false},
    {13, "m^2", 2, 3, 8, 0.009, 9.9e8, false, false}, {14, "m^2", 2, 3, 8, 0.002, 9.9e8, false, true},
    {15, "m^3", 3, 3, 8, 0.002, 9.9e8, false, false}, {16, "m^3", 1, 4, 8, 0.01, 1e8, true, false},
    {17, "m^3", 3, 3, 8, 0.002, 9.9e8, true, false},  {18, "", 0, 1, 26, -1e9, 1e9, false, false},
    {19, "", 0, 1, 26, -1e9, 1e9, false, false},      {20, "m", 0, 1, 26, 0, 1e9, false, false},
    {21, "g", 0, 1, 26, 0, 1e9, false, false},
};

// Checks every item and gives the target unit of each.
std::vector<std::string> Comprueba(const Caso& c, const Hecho& h) {
  std::vector<std::string> destinos;
  std::set<std::string> lineas;
  for (int i = 1; i <= CuentaItems(h.st); ++i) {
    SCOPED_TRACE(Item(h.st, i) + " -> " + Item(h.so, i));
    EXPECT_TRUE(lineas.insert(Item(h.st, i)).second) << "an item twice";
    std::string destino;
    const auto partes = Datos(Item(h.st, i), &destino);
    const auto sol = Datos(Item(h.so, i));
    EXPECT_TRUE(sol.size() == 1 && sol[0].unidad == destino);
    EXPECT_TRUE(!partes.empty() && static_cast<int>(partes.size()) <= c.maxPartes);
    if (c.magnitud.empty()) {  // temperature
      EXPECT_NEAR(sol.at(0).valor, DesdeCelsius(ACelsius(partes.at(0).valor, partes[0].unidad), destino), 0.005 + 1e-9);
      EXPECT_TRUE(partes[0].valor >= (partes[0].unidad == "K" ? 0 : -200) && partes[0].valor <= 400);
      destinos.push_back(destino);
      continue;
    }
    const Medida a = Unidad(destino);
    auto nombradas = [&c](const std::string& u) {  // named units only where the ladder has them
      EXPECT_TRUE((c.litros || u.back() != 'L') && (c.gen != 16 || u.back() == 'L')) << u;
      EXPECT_TRUE(c.agrarias || (u != "ha" && u != "a" && u != "ca")) << u;
    };
    nombradas(destino);
    double esperado = 0;
    std::set<int> usadas;
    for (const Cantidad& p : partes) {
      nombradas(p.unidad);
      const Medida de = Unidad(p.unidad);
      EXPECT_EQ(de.magnitud, c.magnitud) << p.unidad;
      esperado += p.valor * de.tamano / a.tamano;
      if (c.decadas == 0) continue;
      const int pasos = static_cast<int>(std::lround(std::log10(de.tamano / a.tamano) / c.decadas));
      EXPECT_TRUE(pasos != 0 && std::abs(pasos) < 6 && usadas.insert(pasos).second) << "a unit twice, the target, or far";
    }
    EXPECT_EQ(a.magnitud, c.magnitud) << destino;
    if (c.decadas == 0) {
      EXPECT_NEAR(sol.at(0).valor, esperado, 0.0005 + 1e-9 * esperado);
    } else {
      EXPECT_TRUE(test::Cerca(sol.at(0).valor, esperado, 1e-12)) << sol[0].valor << " vs " << esperado;
    }
    EXPECT_TRUE(sol[0].valor >= c.minimo && sol[0].valor < c.maximo);
    destinos.push_back(destino);
  }
  return destinos;
}

TEST(Conversiones, EveryAnswerFollowsFromItsDataAndEveryItemDiffers) {
  for (const Caso& c : kCasos) {
    std::set<std::pair<std::string, std::string>> formas;
    for (int seed = 1; seed <= 20; ++seed) {
      GenContext g(&Textos(), Aleatorio(static_cast<uint64_t>(seed * 31 + c.gen)));
      const Hecho h = Genera(g, c.gen, seed * 5, c.maxItems);
      SCOPED_TRACE(h.st + "\n" + h.so);
      EXPECT_TRUE(CuentaItems(h.st) == c.maxItems && CuentaItems(h.so) == c.maxItems);
      const auto destinos = Comprueba(c, h);
      for (int i = 1; i <= c.maxItems; ++i) formas.insert({Datos(Item(h.st, i)).at(0).unidad, destinos.at(i - 1)});
      if (c.gen == 18 || c.gen == 19) {  // the scales stated; each form and its reverse by the counter
        EXPECT_EQ(test::NumerosTras(h.st, ":&LF"), (std::vector<double>{1.8, 32, 273.15}));
        static const std::string s[] = {"\xB0" "C", "\xB0" "F", "\xB0" "C", "K", "\xB0" "F", "K"};
        for (int i = 1; i <= c.maxItems; ++i) {
          const int f = ((seed * 5 + i) % 6) ^ (c.gen == 19);
          EXPECT_EQ(Datos(Item(h.st, i)).at(0).unidad + " " + destinos.at(i - 1), s[f] + " " + s[f ^ 1]) << i;
        }
      }
      if (c.gen >= 20)  // the chains of equivalences the statement gives hold
        for (std::stringstream cs(test::Tras(h.st, ":&LF")); !cs.eof();) {
          std::string cadena;
          std::getline(cs, cadena, ';');
          const auto iguales = Datos(cadena);
          for (const Cantidad& q : iguales)
            EXPECT_TRUE(test::Cerca(q.valor * Unidad(q.unidad).tamano, iguales.at(0).valor * Unidad(iguales[0].unidad).tamano, 1e-12));
        }
    }
    if (c.gen >= 20) {  // every conversion, both ways
      EXPECT_EQ(formas.size(), c.gen == 20 ? 22u : 10u);
      for (const auto& [de, a] : formas) EXPECT_TRUE(formas.count({a, de})) << de << " -> " << a;
    }
  }
}

TEST(Conversiones, ItemCountsKeepToTheirBounds) {
  GenContext g(&Textos(), Aleatorio(3));
  for (int gen = 11; gen <= 21; ++gen)
    for (const auto& [pedidos, dados] : std::map<int, int>{{0, 2}, {1, 2}, {5, 5}, {30, gen <= 17 ? 8 : 26}})
      EXPECT_EQ(CuentaItems(Genera(g, gen, 3, pedidos).st), dados) << gen << " " << pedidos;
  g.GP_Items = 30, g.GP_MaxItems = "027";  // a wrapper's bound stops at the alphabet
  ConversionesDecimales(g, Escalera::Volumen);
  EXPECT_EQ(Comprueba(kCasos[4], {g.GP_Statement, g.GP_Solution}).size(), 26u);
}

// Every draw below 0.9: no chance fires, so targets and named units follow the counter alone.
TEST(Conversiones, WithoutChancesTargetsAndNamedUnitsFollowTheCounter) {
  std::mt19937 azar(2024);
  std::uniform_real_distribution<double> bajo(0, 0.899);
  std::vector<double> v(4999);
  for (double& x : v) x = bajo(azar);
  for (const Caso& c : kCasos) {
    if (c.decadas == 0) continue;
    for (int seqB : {0, 1, 2, 11}) {
      GenContext g(&Textos(), Aleatorio::Guionado(v));
      const Hecho h = Genera(g, c.gen, seqB, 8);
      const auto destinos = Comprueba(c, h);
      for (int i = 1; i <= 8; ++i) {
        const std::string& d = destinos.at(i - 1);
        const bool nombrada = std::set<std::string>{"kL", "L", "mL", "ha", "a", "ca"}.count(d) > 0;
        const int indice = 4 - static_cast<int>(std::lround(std::log10(Unidad(d).tamano / (c.gen == 16 ? 1e-3 : 1)) / c.decadas));
        EXPECT_EQ(indice, (seqB + i) % 7 + 1) << d;
        if (c.gen == 14 || c.gen == 17) {
          EXPECT_EQ(nombrada, (seqB + i) % 3 != 0 && indice >= (c.gen == 14 ? 2 : 4) && indice <= (c.gen == 14 ? 4 : 6)) << d;
        }
      }
    }
  }
}
}  // namespace
}  // namespace ss
