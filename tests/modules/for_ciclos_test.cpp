// The ring and nitrogen tables of the nomenclature lists read as a teacher reads them: every name put back
// together by the tests' own name reader, which must give the formula of the structure drawn beside it.
#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <set>

#include "modules/ATEM_QUIM_FOR/organica.h"
#include "problems/texto.h"
#include "tests/modules/organica.h"

namespace ss {
namespace {

using mod::ATEM_QUIM_FOR::Construye;
using mod::ATEM_QUIM_FOR::Tabla;
using test::Atomos;

// A group standing for one hydrogen of the parent (two for oxo), and the parents named whole.
const std::map<std::string, std::pair<Atomos, int>> kGrupos = {
    {"methyl", {{{"C", 1}, {"H", 3}}, 1}},      {"ethyl", {{{"C", 2}, {"H", 5}}, 1}},
    {"propyl", {{{"C", 3}, {"H", 7}}, 1}},      {"butyl", {{{"C", 4}, {"H", 9}}, 1}},
    {"phenyl", {{{"C", 6}, {"H", 5}}, 1}},      {"cyclopropyl", {{{"C", 3}, {"H", 5}}, 1}},
    {"cyclobutyl", {{{"C", 4}, {"H", 7}}, 1}},  {"cyclopentyl", {{{"C", 5}, {"H", 9}}, 1}},
    {"cyclohexyl", {{{"C", 6}, {"H", 11}}, 1}}, {"nitro", {{{"N", 1}, {"O", 2}}, 1}},
    {"amino", {{{"N", 1}, {"H", 2}}, 1}},       {"hydroxy", {{{"O", 1}, {"H", 1}}, 1}},
    {"oxo", {{{"O", 1}}, 2}}};
const std::map<std::string, Atomos> kPadres = {
    {"amine", {{"N", 1}, {"H", 3}}},           {"benzene", {{"C", 6}, {"H", 6}}},
    {"toluene", {{"C", 7}, {"H", 8}}},         {"xylene", {{"C", 8}, {"H", 10}}},
    {"mesitylene", {{"C", 9}, {"H", 12}}},     {"aniline", {{"C", 6}, {"H", 7}, {"N", 1}}},
    {"benzamide", {{"C", 7}, {"H", 7}, {"N", 1}, {"O", 1}}}, {"tnt", {{"C", 7}, {"H", 5}, {"N", 3}, {"O", 6}}}};
// A suffix: the hydrogens it takes from the parent hydride and the atoms it brings.
const std::map<std::string, std::pair<int, Atomos>> kSufijos = {
    {"", {0, {}}},           {"amide", {1, {{"N", 1}, {"O", 1}}}}, {"nitrile", {3, {{"N", 1}}}},
    {"oic acid", {2, {{"O", 2}}}}, {"al", {2, {{"O", 1}}}},        {"one", {2, {{"O", 1}}}}};

// One name without its alternatives: groups (each with its multiplier) on a parent.
std::optional<Atomos> Lee(std::string n) {
  n = std::regex_replace(n, std::regex(R"((^|-)(\d+(,\d+)*|n(,n)*|[omp])-)"), "$1");  // locants
  n = std::regex_replace(n, std::regex("-"), "");
  Atomos f;
  int quita = 0;
  static const std::vector<std::pair<std::string, int>> multiplos = {{"tri", 3}, {"di", 2}, {"", 1}};
  for (bool mas = true; mas;) {
    mas = false;
    for (const auto& [k, mult] : multiplos)
      for (const auto& [g, v] : kGrupos)
        if (!mas && n.starts_with(k + g)) {
          test::Suma(f, v.first, mult);
          quita += mult * v.second;
          n = n.substr(k.size() + g.size());
          mas = true;
        }
  }
  static const std::regex hidruro("(cyclo)?(meth|eth|prop|but|pent|hex|hept|oct)a?(an|en|yn|dien)e?(di|)(.*)");
  static const std::vector<std::string> cadenas = {"meth", "eth", "prop", "but", "pent", "hex", "hept", "oct"};
  std::smatch m;
  if (kPadres.contains(n)) {
    test::Suma(f, kPadres.at(n));
  } else if (std::regex_match(n, m, hidruro) && kSufijos.contains(m[5])) {
    const int c = static_cast<int>(std::find(cadenas.begin(), cadenas.end(), m[2]) - cadenas.begin()) + 1;
    const int veces = m[4].length() ? 2 : 1;
    const auto& [sinH, trae] = kSufijos.at(m[5]);
    f["C"] += c;
    f["H"] += 2 * c + (m[1].matched ? 0 : 2) - (m[3] == "an" ? 0 : m[3] == "yn" || m[3] == "dien" ? 4 : 2) -
              veces * sinH;
    test::Suma(f, trae, veces);
  } else {
    return std::nullopt;
  }
  f["H"] -= quita;
  for (auto it = f.begin(); it != f.end();) it = it->second == 0 ? f.erase(it) : std::next(it);
  return f;
}

// Every alternative of a name ("methylbenzene / toluene") read, and all of them the same compound.
std::optional<Atomos> Formula(const std::string& nombre) {
  std::string n = LCase(std::regex_replace(nombre, std::regex("&[-+]I|&FS=\\d+:"), ""));
  std::optional<Atomos> f;
  static const std::regex barra(" / ");
  for (std::sregex_token_iterator it(n.begin(), n.end(), barra, -1), fin; it != fin; ++it) {
    const auto g = Lee(*it);
    if (!g || (f && *f != *g)) return std::nullopt;
    f = g;
  }
  return f;
}

// A benzene name with two ring locants (1,3-; o-, m-, p-) against the two substituted vertices drawn.
void Posiciones(const std::string& nombre, const std::string& e) {
  std::smatch m;
  int a = 0, b = 0;
  if (std::regex_search(nombre, m, std::regex(R"(&\+I([omp])&-I-)")))
    a = 1, b = 2 + static_cast<int>(std::string("omp").find(m[1].str()[0]));
  else if (std::regex_match(nombre, m, std::regex(R"((\d)[,-]\D*(\d)-?[a-z]*benzene)")))
    a = std::stoi(m[1]), b = std::stoi(m[2]);
  const std::size_t i = e.find("#BC");
  if (!a || i == std::string::npos) return;
  std::vector<int> s;
  for (int k = 0; k < 6; ++k) if (e[i + 5 + k] == 'S') s.push_back(k);
  ASSERT_EQ(s.size(), 2u) << nombre;
  EXPECT_EQ(std::min(s[1] - s[0], 6 - s[1] + s[0]), std::min(b - a, 6 - b + a)) << nombre << "  " << e;
}

void Comprueba(const Tabla& t) {
  std::set<std::string> nombres, estructuras;
  for (const auto& [e, nombre] : t.filas) {
    bool ok = false;
    const Atomos dibujo = test::FormulaMolecular(e, &ok);
    const auto leido = Formula(nombre);
    EXPECT_TRUE(ok && leido && *leido == dibujo) << nombre << " read as "
                                                 << (leido ? test::TextoFormula(*leido) : "nothing") << ", drawn "
                                                 << test::TextoFormula(dibujo) << ": " << e;
    EXPECT_EQ(e.find('['), std::string::npos) << e;
    EXPECT_TRUE(nombres.insert(LCase(nombre)).second && estructuras.insert(e).second) << nombre;
    Posiciones(nombre, e);
  }
}

TEST(ForCiclos, EveryNameIsTheRingDrawn) {
  const Tabla t = Construye(mod::ATEM_QUIM_FOR::FilasCiclos());
  EXPECT_EQ(t.filas.size(), 64u);  // 44 rows, ten of them with a group in three sizes
  Comprueba(t);
}

TEST(ForNitrogenados, EveryNameIsTheCompoundDrawnFamilyByFamily) {
  const Tabla t = Construye(mod::ATEM_QUIM_FOR::FilasNitrogenados());
  EXPECT_EQ(t.finBloques, (std::vector<int>{35, 51, 64, 75, 88}));
  Comprueba(t);
  // The first four families are named for their group.
  const std::vector<std::string> marca = {"amine", "amide", "nitrile", "nitro", ""};
  for (std::size_t b = 0, i = 0; b < 4; ++b)
    for (; i < static_cast<std::size_t>(t.finBloques[b]); ++i)
      EXPECT_NE(LCase(t.filas[i].nombre).find(marca[b]), std::string::npos) << t.filas[i].nombre;
}

}  // namespace
}  // namespace ss
