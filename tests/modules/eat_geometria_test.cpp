// Molecular geometry lists and isotopes: every answer worked again from what
// the statement shows (atomic numbers, isotope masses and abundances).
#include <numeric>
#include <set>

#include "tests/modules/dis_comun.h"

namespace ss {
namespace {

test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  return test::GeneraEn("ANEU_QUIM_EAT", gen, seqB, items, semilla * 7919 + static_cast<uint64_t>(gen));
}

int Valencia(int z) { return z <= 2 ? z : z <= 10 ? z - 2 : z <= 18 ? z - 10 : z - 28; }

// VSEPR from the formula and the atomic numbers: the central atom is the non-H
// atom standing once with fewest valence electrons; each terminal atom takes
// the electrons it lacks for its octet (duplet for H).
void CompruebaMolecula(const std::string& linea, const std::string& sol, bool polaridad) {
  std::smatch m;
  ASSERT_TRUE(std::regex_search(linea, m, std::regex(R"(\)&-B  (\S+)&SP=30:\((.*)\))")));
  const std::string formula = m[1], zs = m[2];
  std::map<std::string, int> v;
  static const std::regex par(R"(([A-Z][a-z]?): Z=(\d+))");
  for (std::sregex_iterator it(zs.begin(), zs.end(), par), end; it != end; ++it)
    v[(*it)[1]] = Valencia(std::stoi((*it)[2]));
  const test::Composicion c = test::Formula(formula);
  ASSERT_TRUE(!c.empty() && v.size() == c.size()) << linea;
  int atomos = 0, electrones = 0;
  std::string central;  // a wrong Z gives a wrong valence count
  for (const auto& [e, n] : c) {
    atomos += n, electrones += n * v.at(e);
    if (n == 1 && e != "H" && (central.empty() || v.at(e) < v.at(central))) central = e;
  }
  if (central.empty()) central = c[0].first;
  int libres = v.at(central);
  for (const auto& [e, n] : c) libres -= (e == central ? n - 1 : n) * (e == "H" ? 1 : 8 - v.at(e));
  const int x = atomos - 1, pares = libres / 2;
  const bool diatomica = atomos == 2;
  ASSERT_TRUE(diatomica || (libres >= 0 && libres % 2 == 0)) << formula;
  const std::map<std::pair<int, int>, std::string> kForma = {{{1, 0}, "Lineal"}, {{2, 0}, "Lineal"}, {{3, 0}, "TrianP"},
      {{4, 0}, "Tetrae"}, {{2, 1}, "Angula"}, {{2, 2}, "Angula"}, {{3, 1}, "PiramT"}};
  EXPECT_TRUE(sol.starts_with(linea.substr(0, linea.find("&SP=30:")) + ":  ")) << sol;
  EXPECT_NE(sol.find(test::Texto("Geom_molec_" + kForma.at({x, diatomica ? 0 : pares}))), std::string::npos) << sol;
  if (polaridad) {
    const bool apolar = diatomica ? c.size() == 1 : pares == 0 && c.size() <= 2;  // one kind around, no lone pair
    EXPECT_TRUE(sol.ends_with(", " + test::Texto(apolar ? "Molec_NoPolar" : "Molec_Polar") + ".")) << sol;
    return;
  }
  EXPECT_NE(sol.find(":  " + std::to_string(electrones) + " "), std::string::npos) << sol;
  const std::string p = pares == 0 ? test::Texto("EAT_Sin_pares") : std::to_string(pares) + " " +
                        test::Texto(pares == 1 ? "EAT_Par_solitario" : "EAT_Pares_solitarios");
  EXPECT_TRUE(diatomica || sol.find(" " + central + " with " + std::to_string(x) + " bonded atoms and " + p + " (AX_") !=
                               std::string::npos) << sol;
}

std::vector<std::string> Lineas(const std::string& t, std::vector<std::string> out = {}) {
  for (std::size_t a = 0, b; (b = t.find("&LF", a)) != std::string::npos; a = b + 3) out.push_back(t.substr(a, b - a));
  return out;
}

TEST(EatGeometria, EveryMoleculeShapeLewisAndPolarityFromItsAtomicNumbers) {
  std::set<std::string> vistas;
  for (const auto& [gen, tope] : {std::pair{5, 8}, std::pair{13, 26}})
    for (uint64_t s = 1; s <= 400; ++s) {
      const int items = std::array{0, 3, 8, 27}[s % 4];
      const test::Problema p = Genera(gen, static_cast<int>(s), items, s);
      const auto st = Lineas(p.st), so = Lineas(p.so);
      const std::size_t n = static_cast<std::size_t>(std::clamp(items, 2, tope));
      ASSERT_TRUE(st.size() == n + 1 && so.size() == n) << p.st << p.so;
      std::set<std::string> enEsta;
      for (std::size_t i = 0; i < n; ++i) {
        SCOPED_TRACE(st[i + 1]);
        CompruebaMolecula(st[i + 1], so[i], gen == 13);
        const std::string f = st[i + 1].substr(0, st[i + 1].find("&SP=30:"));
        EXPECT_TRUE(enEsta.insert(f).second) << "repeated " << f;
        vistas.insert(f.substr(f.find("  ") + 2));
      }
    }
  EXPECT_EQ(vistas.size(), 57u);
}

// Mean mass = sum of mass x abundance; a missing abundance is what the others leave of 100 %.
TEST(EatIsotopos, MeanMassAndMissingAbundanceFromTheStatement) {
  std::set<std::string> elementos;
  int incompletos = 0;
  for (uint64_t s = 1; s <= 2000; ++s) {
    const test::Problema p = Genera(11, static_cast<int>(s % 81), 0, s);
    SCOPED_TRACE(p.st + "\n" + p.so);
    const test::Datos d(p.st), r(p.so);
    std::vector<double> m, a;
    for (const auto& [x, u] : d.Todos()) (u == "u" ? m : a).push_back(x);
    ASSERT_TRUE(m.size() >= 2 && (a.size() == m.size() || a.size() + 1 == m.size()));
    const double resto = 100 - std::accumulate(a.begin(), a.end(), 0.0);
    if (a.size() < m.size()) {
      ++incompletos;
      const auto antes = test::Datos(p.st.substr(0, p.st.find("abundance not given"))).Todos().size() / 2;
      a.insert(a.begin() + static_cast<std::ptrdiff_t>(antes), resto);
      EXPECT_NEAR(r.En("%"), resto, 1e-5 * std::max(1.0, resto));
    } else {
      EXPECT_TRUE(std::fabs(resto) < 1e-9 && !r.Tiene("%"));
    }
    double media = 0;
    for (std::size_t k = 0; k < m.size(); ++k) media += m[k] * a[k] / 100;
    EXPECT_NEAR(r.En("u"), media, 5e-6 * media);
    elementos.insert(p.st.substr(0, p.st.find(" is a")));
  }
  EXPECT_EQ(elementos.size(), 27u);
  EXPECT_NEAR(incompletos / 2000.0, 0.63, 0.04);
}

}  // namespace
}  // namespace ss
