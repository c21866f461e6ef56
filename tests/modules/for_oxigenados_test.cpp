// The oxygen table of the nomenclature lists read as a teacher reads it: every name put back together by the
// tests' own name reader, which must give the formula of the structure drawn beside it, in its own family.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "modules/ATEM_QUIM_FOR/organica.h"
#include "problems/texto.h"
#include "tests/modules/organica.h"

namespace ss {
namespace {

// A compound of C, H and O by its carbons, its rings and multiple bonds, and its oxygens: H = 2C + 2 - 2D.
struct Cuenta {
  int c = 0, d = 0, o = 0;
  Cuenta& Suma(const Cuenta& x, int k = 1) { return c += k * x.c, d += k * x.d, o += k * x.o, *this; }
};

// The parts of a name: G a group before the parent, R the parent (its carbons are the highest locant),
// S a suffix or a multiple bond after it, C the ring of a parent, '-' a joining letter.
struct Parte {
  std::string_view texto;
  Cuenta n;
  char clase;
};
constexpr Parte kPartes[] = {
    {"cyclopropyl", {3, 1, 0}, 'G'}, {"cyclobutyl", {4, 1, 0}, 'G'}, {"cyclopentyl", {5, 1, 0}, 'G'},
    {"cyclohexyl", {6, 1, 0}, 'G'}, {"methyl", {1, 0, 0}, 'G'}, {"ethyl", {2, 0, 0}, 'G'}, {"propyl", {3, 0, 0}, 'G'},
    {"phenyl", {6, 4, 0}, 'G'}, {"hydroxy", {0, 0, 1}, 'G'}, {"oxo", {0, 1, 1}, 'G'}, {"cyclo", {0, 1, 0}, 'C'},
    {"meth", {1, 0, 0}, 'R'}, {"eth", {2, 0, 0}, 'R'}, {"prop", {3, 0, 0}, 'R'}, {"but", {4, 0, 0}, 'R'},
    {"pent", {5, 0, 0}, 'R'}, {"hex", {6, 0, 0}, 'R'}, {"benzene", {6, 4, 0}, 'R'}, {"phenol", {6, 4, 1}, 'R'},
    {"benzoic", {7, 5, 2}, 'R'}, {"an", {}, '-'}, {"e", {}, '-'}, {"en", {0, 1, 0}, 'S'}, {"yn", {0, 2, 0}, 'S'},
    {"al", {0, 1, 1}, 'S'}, {"one", {0, 1, 1}, 'S'}, {"ol", {0, 0, 1}, 'S'}, {"oic", {0, 1, 2}, 'S'}};

// One word, read part by part, longest part first. Locants ("2,3-", "m-") must count as many as the
// multiplier of the group or suffix they stand for, and none may pass the parent's carbons. `grupos`: a word
// of groups only, as in esters and ethers.
bool Palabra(std::string_view w, Cuenta& t, bool grupos) {
  static const std::regex locante(R"(^(\d(?:,\d)*|[omp])-)");
  int mult = 1, locantes = 0, mayor = 0, cadena = 0;
  bool raiz = false;
  for (std::size_t i = 0; i < w.size();) {
    std::cmatch m;
    if (w[i] == '-') { ++i; continue; }
    if (std::regex_search(w.data() + i, w.data() + w.size(), m, locante)) {
      if (locantes) return false;
      locantes = static_cast<int>(m[1].length() + 1) / 2;
      for (char ch : m[1].str()) if (std::isdigit(static_cast<unsigned char>(ch))) mayor = std::max(mayor, ch - '0');
      i += static_cast<std::size_t>(m.length());
      continue;
    }
    if (w.substr(i, 2) == "di" || w.substr(i, 3) == "tri") { mult = w[i] == 'd' ? 2 : 3, i += mult == 2 ? 2 : 3; continue; }
    const Parte* p = nullptr;
    for (const Parte& x : kPartes)
      if (w.substr(i).starts_with(x.texto) && (!p || x.texto.size() > p->texto.size())) p = &x;
    const bool antes = p && std::string_view("GCR").find(p->clase) != std::string_view::npos;
    if (!p || antes == raiz || (p->clase == 'R' && grupos)) return false;
    if (p->clase == 'G' || p->clase == 'S') {
      if (locantes && locantes != mult) return false;
      locantes = 0;
    }
    if (p->clase == 'R') raiz = true, cadena = p->n.c;
    t.Suma(p->n, mult), mult = 1, i += p->texto.size();
  }
  return !locantes && mult == 1 && mayor <= cadena && (raiz != grupos);
}

// The molecular formula a name gives, as "C3H6O"; empty if the reader does not know the name.
std::string Formula(std::string nombre) {
  static const std::map<std::string, std::string, std::less<>> kTriviales = {
      {"formic acid", "CH2O2"}, {"acetic acid", "C2H4O2"}, {"propionic acid", "C3H6O2"}, {"butyric acid", "C4H8O2"},
      {"valeric acid", "C5H10O2"}, {"oxalic acid", "C2H2O4"}, {"malonic acid", "C3H4O4"}, {"succinic acid", "C4H6O4"},
      {"glutaric acid", "C5H8O4"}, {"pyruvic acid", "C3H4O3"}, {"acrolein", "C3H4O"}, {"crotonaldehyde", "C4H6O"},
      {"acetone", "C3H6O"}, {"ethylene glycol", "C2H6O2"}, {"glycerol", "C3H8O3"}, {"resorcinol", "C6H6O2"},
      {"ether", "C4H10O"}};
  nombre = LCase(std::regex_replace(nombre, std::regex("&[+-]I|&FS=\\d+:"), ""));
  if (auto it = kTriviales.find(nombre); it != kTriviales.end()) return it->second;
  std::vector<std::string> w;
  std::istringstream palabras(nombre);
  for (std::string x; palabras >> x;) w.push_back(x);
  if (w.empty()) return {};
  Cuenta t;
  bool ok = true;
  const std::string& ultima = w.back();
  if (ultima == "ether" || ultima == "alcohol") {  // groups on an O
    for (std::size_t k = 0; k + 1 < w.size(); ++k) ok = ok && Palabra(w[k], t, true);
    t.o += 1;
    ok = ok && (w.size() == 3 || (w.size() == 2 && (ultima == "alcohol" || w[0].starts_with("di"))));
  } else if (w.size() == 2 && ultima.ends_with("oate")) {  // the acid with a group for its H
    ok = Palabra(w[0], t, true) && Palabra(ultima.substr(0, ultima.size() - 4) + "oic", t, false);
  } else {
    ok = (w.size() == 1 || (w.size() == 2 && ultima == "acid" && w[0].ends_with("oic"))) && Palabra(w[0], t, false);
    ok = ok && (w[0].ends_with("oic") == (w.size() == 2));
  }
  return ok ? test::TextoFormula({{"C", t.c}, {"H", 2 * t.c + 2 - 2 * t.d}, {"O", t.o}}) : "";
}

TEST(ForOxigenadosLector, ReadsNamesItKnowsAndRefusesBadOnes) {
  EXPECT_EQ(Formula("3-ethyl-5-methylphenol"), "C9H12O");
  EXPECT_EQ(Formula("Cyclopentyl butanoate"), "C9H16O2");
  EXPECT_EQ(Formula("Dicyclohexyl ether"), "C12H22O");
  for (const char* mal : {"1,2-propanetriol", "4-propanol", "Dimethylether", "1,3-diphenol", "valerianic acid",
                          "methylpropyl ether", "Propanone acid", "2,3-hydroxybutanal"})
    EXPECT_TRUE(Formula(mal).empty()) << mal;
}

// One family a block: where it ends after the expansion, how its names end, the group its drawings show.
struct Familia {
  int fin;
  const char *nombre, *grupo;
};
constexpr Familia kFamilias[] = {
    {10, "acid$", R"(#UDB\(CDX#R1\(O#R1\)#UDB\)-OH)"},
    {18, "al$|acrolein$|aldehyde$", R"(#UDB\(CDX#R1\(O#R1\)#UDB\)H$)"},
    {27, "one$", R"(#UDB\(CDX#R1\(O#R1\)#UDB\)-C|^#A\dV\(D\w*#R1\(O#R1\))"},
    {37, "ol$|alcohol$|glycol$|glycerol$", R"(^(?!.*CDX).*(OH|HO-))"},
    {75, "oate$", R"(#UDB\(CDX#R1\(O#R1\)#UDB\)-O(?!H))"},
    {87, "phenol$|benzenediol / resorcinol$", R"(^#BCV\(S\w*#R1\(OH#R1\))"},
    {105, "ether$", R"(^(?!.*(OH|CDX)).*[-(]O[-#])"},
    {115, "(oxo|hydroxy).*(acid|al)$", R"(CDX.*(CDX|OH)|OH.*CDX)"}};

TEST(ForOxigenados, EveryNameGivesTheFormulaDrawnInItsFamily) {
  const mod::ATEM_QUIM_FOR::Tabla t = mod::ATEM_QUIM_FOR::Construye(mod::ATEM_QUIM_FOR::FilasOxigenados());
  std::vector<int> fines;
  for (const Familia& f : kFamilias) fines.push_back(f.fin);
  ASSERT_EQ(t.finBloques, fines);
  ASSERT_EQ(t.filas.size(), 115u);
  std::set<std::string> nombres, estructuras;
  for (std::size_t i = 0, b = 0; i < t.filas.size(); ++i) {
    const auto& [estructura, nombre] = t.filas[i];
    while (static_cast<int>(i) >= kFamilias[b].fin) ++b;
    SCOPED_TRACE("row " + std::to_string(i + 1) + ": " + nombre + " = " + estructura);
    EXPECT_TRUE(nombres.insert(nombre).second && estructuras.insert(estructura).second);
    EXPECT_EQ((estructura + nombre).find('['), std::string::npos);
    bool ok = false;
    const test::Atomos dibujo = test::FormulaMolecular(estructura, &ok);
    EXPECT_TRUE(ok);
    // Each name of "systematic / trivial" on its own; a trivial "... acid" lends the systematic one its "acid".
    const std::size_t barra = nombre.find(" / ");
    std::vector<std::string> formas = {nombre.substr(0, barra)};
    if (barra != std::string::npos) {
      formas.push_back(nombre.substr(barra + 3));
      if (formas[1].ends_with(" acid")) formas[0] += " acid";
    }
    for (const std::string& n : formas) EXPECT_EQ(Formula(n), test::TextoFormula(dibujo)) << n;
    EXPECT_TRUE(std::regex_search(LCase(nombre), std::regex(kFamilias[b].nombre)));
    EXPECT_TRUE(std::regex_search(estructura, std::regex(kFamilias[b].grupo)));
  }
}

}  // namespace
}  // namespace ss
