// Molecular geometry lists and isotopes: every answer worked again from what
// the statement shows (atomic numbers, isotope masses and abundances).
#include <set>

#include "modules/ANEU_QUIM_EAT/eat.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::eat {
namespace {

test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + static_cast<uint64_t>(gen)));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_EAT", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + ZeroPadCut(items, 2) + "0301",
                 p.st, p.so);
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|<ERROR"))) << p.st << p.so;
  return p;
}

// Valence electrons of a main-group element from its atomic number.
int Valencia(int z) { return z <= 2 ? z : z <= 10 ? z - 2 : z <= 18 ? z - 10 : z - 28; }

// VSEPR from the formula and the atomic numbers: central atom the non-H atom
// standing once with fewest valence electrons; each terminal atom takes the
// electrons it lacks for its octet (duplet for H).
void CompruebaMolecula(const std::string& linea, const std::string& sol, bool polaridad) {
  std::smatch m;
  ASSERT_TRUE(std::regex_search(linea, m, std::regex(R"(\)&-B  (\S+)&SP=30:\((.*)\))")));
  const std::string formula = m[1];
  std::map<std::string, int> z;  // a wrong Z gives a wrong valence count below
  const std::string zs = m[2];
  static const std::regex par(R"(([A-Z][a-z]?): Z=(\d+))");
  for (std::sregex_iterator it(zs.begin(), zs.end(), par), end; it != end; ++it) z[(*it)[1]] = std::stoi((*it)[2]);
  const test::Composicion c = test::Formula(formula);
  ASSERT_FALSE(c.empty()) << formula;
  ASSERT_EQ(z.size(), c.size()) << linea;
  int atomos = 0, electrones = 0;
  std::string central;
  for (const auto& [e, n] : c) {
    atomos += n, electrones += n * Valencia(z.at(e));
    if (n == 1 && e != "H" && (central.empty() || Valencia(z.at(e)) < Valencia(z.at(central)))) central = e;
  }
  if (central.empty()) central = c[0].first;
  int libres = Valencia(z.at(central));
  std::set<std::string> terminales;
  for (const auto& [e, n] : c) {
    const int k = e == central ? n - 1 : n;
    if (k > 0) terminales.insert(e);
    libres -= k * (e == "H" ? 1 : 8 - Valencia(z.at(e)));
  }
  const int x = atomos - 1, pares = libres / 2;
  const bool diatomica = atomos == 2;
  ASSERT_TRUE(diatomica || (libres >= 0 && libres % 2 == 0)) << formula;
  const std::map<std::pair<int, int>, std::string> kForma = {
      {{2, 0}, "Lineal"}, {{3, 0}, "TrianP"}, {{4, 0}, "Tetrae"},
      {{2, 1}, "Angula"}, {{2, 2}, "Angula"}, {{3, 1}, "PiramT"}};
  const std::string forma = test::Texto("Geom_molec_" + (diatomica ? "Lineal" : kForma.at({x, pares})));
  EXPECT_TRUE(sol.starts_with(linea.substr(0, linea.find("&SP=30:")) + ":  ")) << sol;
  EXPECT_NE(sol.find(forma), std::string::npos) << formula << ": " << sol;
  if (polaridad) {
    const bool apolar = diatomica ? c.size() == 1 : pares == 0 && terminales.size() == 1;
    EXPECT_TRUE(sol.ends_with(", " + test::Texto(apolar ? "Molec_NoPolar" : "Molec_Polar") + ".")) << formula << sol;
  } else {
    EXPECT_TRUE(sol.find(":  " + std::to_string(electrones) + " ") != std::string::npos) << formula << sol;
    if (!diatomica) {
      const std::string p = pares == 0 ? test::Texto("EAT_Sin_pares") : std::to_string(pares) + " " +
                                         test::Texto(pares == 1 ? "EAT_Par_solitario" : "EAT_Pares_solitarios");
      EXPECT_NE(sol.find(" " + central + " with " + std::to_string(x) + " bonded atoms and " + p + " (AX_"),
                std::string::npos) << formula << sol;
    }
  }
}

std::vector<std::string> Lineas(const std::string& t) {
  std::vector<std::string> out;
  for (std::size_t a = 0, b; (b = t.find("&LF", a)) != std::string::npos; a = b + 3) out.push_back(t.substr(a, b - a));
  return out;
}

TEST(EatGeometria, EveryMoleculeShapeLewisAndPolarityFromItsAtomicNumbers) {
  std::set<std::string> vistas;
  for (const auto& [gen, tope] : {std::pair{5, 8}, std::pair{13, 26}}) {
    for (int items : {0, 3, 8, 27}) {
      for (uint64_t s = 1; s <= 200; ++s) {
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
    }
  }
  EXPECT_EQ(vistas.size(), 57u);
}

TEST(EatIsotopos, MeanMassAndMissingAbundanceFromTheStatement) {
  std::set<std::string> elementos;
  int incompletos = 0, total = 0;
  for (int seq = 0; seq < 27; ++seq) {
    for (uint64_t s = 1; s <= 200; ++s, ++total) {
      const test::Problema p = Genera(11, seq + 27 * static_cast<int>(s % 3), 0, s);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const test::Datos d(p.st), r(p.so);
      std::vector<double> m, a;
      for (const auto& [x, u] : d.Todos()) (u == "u" ? m : a).push_back(x);
      ASSERT_TRUE(m.size() >= 2 && (a.size() == m.size() || a.size() + 1 == m.size()));
      double suma = 0;
      for (double x : a) suma += x;
      std::size_t falta = a.size();
      if (a.size() < m.size()) {
        ++incompletos;
        const std::size_t at = p.st.find("abundance not given");
        falta = static_cast<std::size_t>(test::Datos(p.st.substr(0, at)).Todos().size() / 2);
        a.insert(a.begin() + static_cast<std::ptrdiff_t>(falta), 100 - suma);
        EXPECT_NEAR(r.En("%"), 100 - suma, 1e-5 * std::max(1.0, 100 - suma));
      } else {
        EXPECT_NEAR(suma, 100, 1e-9);
        EXPECT_FALSE(r.Tiene("%"));
      }
      double media = 0;
      for (std::size_t k = 0; k < m.size(); ++k) media += m[k] * a[k] / 100;
      EXPECT_NEAR(r.En("u"), media, 5e-6 * media);
      elementos.insert(p.st.substr(0, p.st.find(" is a")));
    }
  }
  EXPECT_EQ(elementos.size(), 27u);
  EXPECT_NEAR(static_cast<double>(incompletos) / total, 0.63, 0.04);
}

}  // namespace
}  // namespace ss::mod::eat
