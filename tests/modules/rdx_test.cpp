// The redox module's equations and small problems, checked by the tests' own
// atom and charge counter and by answers worked again from what the page shows.
#include <gtest/gtest.h>

#include <set>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::rdx {
namespace {

using test::Coeficiente;
using test::EsperaAjustada;
constexpr auto npos = std::string::npos;

test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  return test::GeneraEn("ANEU_QUIM_RDX", gen, seqB, items, semilla * 7919 + static_cast<uint64_t>(gen));
}

double MasaMolar(const std::string& f) {
  static const std::map<std::string, double> atomicas = {
      {"H", 1.008},   {"C", 12.011},  {"N", 14.007},  {"O", 15.999},  {"Na", 22.990}, {"Mg", 24.305}, {"Al", 26.982},
      {"S", 32.06},   {"Cl", 35.45},  {"K", 39.098},  {"Ca", 40.078}, {"Cr", 51.996}, {"Mn", 54.938}, {"Fe", 55.845},
      {"Co", 58.933}, {"Ni", 58.693}, {"Cu", 63.546}, {"Zn", 65.38},  {"Br", 79.904}, {"Cd", 112.41}, {"Sn", 118.71},
      {"I", 126.90},  {"Hg", 200.59}, {"Pb", 207.2}};
  double m = 0;
  for (const auto& [e, n] : test::Especie(f).atomos) m += n * atomicas.at(e);
  return m;
}

// The key species stand in each equation with their coefficients and right
// molar masses; the reversed forms and slot fillings give many equations.
TEST(Redox, EveryCodedEquationIsBalancedWithEverySlotFilling) {
  std::set<std::string> vistas;
  for (uint64_t semilla = 1; semilla <= 40; ++semilla) {
    GenContext g(&test::Textos(), Aleatorio(semilla));
    for (int i = 0; i < kAcidas + kBasicas; ++i) {
      const EcuacionRedox e = i < kAcidas ? EcuacionRedoxAcida(g, i) : EcuacionRedoxBasica(g, i - kAcidas);
      SCOPED_TRACE(e.ajustada);
      EsperaAjustada(e.ajustada, e.sinAjustar);
      vistas.insert(e.ajustada);
      for (int k = 0; k < 4 && !e.especie[0].empty(); ++k) {
        const std::string f = e.especie[k].substr(0, e.especie[k].find('/'));
        EXPECT_EQ(Coeficiente(e.ajustada, f), e.coef[k]) << f;
        const double M = std::stod(e.nombreMasa[k].substr(e.nombreMasa[k].find('/') + 1));
        EXPECT_NEAR(M, MasaMolar(f), 0.006 * M) << f;
      }
    }
  }
  EXPECT_GT(vistas.size(), 90u);
}

TEST(Redox, HalfReactionsBalanceAndOxidationNumbersAddUpToTheCharge) {
  for (const Semi& s : TablaSemireacciones()) {
    SCOPED_TRACE(s.reaccion);
    EsperaAjustada(s.reaccion);
    const std::string r(s.reaccion);
    EXPECT_EQ(r.find(s.medio == 'A' ? "OH#" : "H^+"), npos);
    EXPECT_LT(r.find(s.oxidada), r.find(" = "));
  }
  std::set<std::string_view> formulas;
  static const std::regex par(R"(([A-Z][a-z]?) ([+-]\d))");
  for (const Nox& n : TablaNOX()) {
    SCOPED_TRACE(n.formula);
    formulas.insert(n.formula);
    const test::Carga c = test::Especie(n.formula);
    const std::string r(n.respuesta);
    int suma = 0, elementos = 0;
    for (auto it = std::sregex_iterator(r.begin(), r.end(), par); it != std::sregex_iterator(); ++it, ++elementos)
      suma += c.atomos.at((*it)[1]) * std::stoi((*it)[2]);
    EXPECT_EQ(suma, c.carga);
    EXPECT_EQ(elementos, static_cast<int>(c.atomos.size()));
  }
  EXPECT_EQ(formulas.size(), static_cast<std::size_t>(kNox));
}

// Generator 1: every form, its answers worked from the page.
TEST(Redox, SmallProblemsAnswerWhatTheyAsk) {
  std::map<std::string, double> electronesDe;  // an oxidant and its reduced form: the same electrons in both forms
  for (int v = 0; v < 5; ++v)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const test::Problema p = Genera(1, v, 0, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::vector<test::Mostrado> r = test::Respuestas(p.so);
      std::smatch m;
      if (v == 0) {  // fifteen formulas, fifteen answers
        EXPECT_EQ(std::count(p.st.begin(), p.st.end(), ')'), 15 + std::count(p.st.begin(), p.st.end(), '('));
        EXPECT_NE(p.so.find("&+Bo)&-B "), npos);
      } else if (v == 1) {  // the oxidant and reductant on the left, their counterparts on the right
        ASSERT_TRUE(std::regex_search(p.so, m, std::regex(R"(Oxidant: (\S+),   Reductant: (\S+)\..*b\)&-B (\S+) / (\S+);.*c\)&-B (\S+) / (\S+)\.)")));
        const std::string ec = p.st.substr(p.st.find(": ") + 2);
        const std::size_t flecha = ec.find("&ars");
        for (int k : {1, 2}) EXPECT_LT(ec.find(m[k].str()), flecha) << m[k];
        for (int k : {4, 6}) EXPECT_GT(ec.find(m[k].str(), flecha), flecha) << m[k];
        EXPECT_TRUE(m[1] == m[3] && m[2] == m[5]);
      } else if (v <= 3) {  // normality = molarity x electrons; mass = M V molar mass
        ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(Molar mass: (\S+) = (\d+(?:&\.\d+)?) g/mol)")));
        const test::Datos d(p.st);
        const double Mm = test::Numeros(m[2])[0], V = d.En("mL") / 1000;
        ASSERT_EQ(r.size(), 2u);
        const double M = v == 2 ? r[1].valor : r[0].valor, electrones = v == 2 ? d.En("N") / M : r[1].valor / M;
        test::EsperaCerca(r[0], v == 2 ? M * V * Mm : d.En("g") / Mm / V);
        EXPECT_NEAR(electrones, std::round(electrones), v == 2 ? 1e-6 : 0.01);
        EXPECT_TRUE(v == 2 || std::round(electrones) >= 2) << electrones;
        const std::string reducida = test::Tras(p.st, "reduced to "), par = m[1].str() + reducida.substr(0, reducida.find(". "));
        EXPECT_EQ(electronesDe.try_emplace(par, std::round(electrones)).first->second, std::round(electrones)) << par;
        // A solution that really dissolves.
        const bool pocoSoluble = p.st.find("KMnO_4") != npos || p.st.find("K_2Cr_2O_7") != npos;
        EXPECT_LE(M, pocoSoluble ? 0.4 : 1.5);
      } else {  // the half-reaction given balances; electrons on the side of the oxidised form
        const std::string h = test::Tras(p.so, "a)&-B ");
        EsperaAjustada(h);
        const bool reduccion = h.find("e#SPB") < h.find("&ars");
        EXPECT_NE(p.so.find(reduccion ? "Reduction" : "Oxidation"), npos);
        EXPECT_NE(p.so.find(reduccion ? ": oxidant" : ": reductant"), npos);
      }
    }
}

// Generators 2 to 4: as many different equations as asked, each balanced; a
// basic list never holds an acid, nor an acid list a base.
TEST(Redox, ListsHoldDistinctBalancedEquations) {
  for (int gen : {2, 3, 4})
    for (int items : {1, 5, 26, 30})
      for (uint64_t semilla = 1; semilla <= 8; ++semilla) {
        const test::Problema p = Genera(gen, static_cast<int>(semilla), items, semilla);
        std::set<std::string> vistas;
        int n = 0;
        for (std::size_t a = p.so.find(")&-B  "); a != npos; a = p.so.find(")&-B  ", a + 1), ++n) {
          const std::string e = p.so.substr(a + 6, p.so.find("&LF", a) - a - 6);
          EsperaAjustada(e);
          vistas.insert(e);
          EXPECT_TRUE(gen != 2 || e.find("OH + ") == npos) << e;
          EXPECT_TRUE(gen != 3 || e.find("H_2SO_4") == npos) << e;
        }
        EXPECT_EQ(n, std::clamp(items, 2, 26));
        EXPECT_EQ(vistas.size(), static_cast<std::size_t>(n));
      }
}

// Generator 5: every form, its answers worked from the page.
TEST(Redox, RedoxStoichiometryFollowsFromTheAmountGiven) {
  constexpr double R = 0.082057;
  static const std::regex masa(R"((\S+) = (\d+(?:&\.\d+)?))");
  for (int v = 0; v < 6; ++v)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const test::Problema p = Genera(5, v, 0, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::string ec = test::Tras(p.so, "a)&-B ");
      EsperaAjustada(ec);
      // Oxidant, reduced form, oxidised form and reductant with their molar masses.
      const std::string linea = test::Tras(p.st, "Molar masses: ");
      std::vector<std::string> f;
      std::vector<double> M, c;
      for (auto it = std::sregex_iterator(linea.begin(), linea.end(), masa); it != std::sregex_iterator(); ++it) {
        f.push_back((*it)[1]);
        M.push_back(test::Numeros((*it)[2])[0]);
        c.push_back(Coeficiente(ec, f.back()));
        EXPECT_NEAR(M.back(), MasaMolar(f.back()), 0.006 * M.back()) << f.back();
      }
      ASSERT_EQ(f.size(), 4u);
      const std::size_t flecha = ec.find("&ars");
      EXPECT_TRUE(ec.find(f[0]) < flecha && ec.find(f[3]) < flecha && ec.find(f[1], flecha) != npos &&
                  ec.find(f[2], flecha) != npos);
      const test::Datos d(p.st);
      const double T = d.En("\xB0" "C") + 273.15, P = d.En("atm");
      // Moles of "reaction": the moles of the species given over its coefficient.
      const double x[6] = {d.En("g") / M[0] / c[0], d.En("g") / M[1] / c[1], d.En("mL") / 1000 * d.En("mol/L") / c[0],
                           d.En("g") / M[2] / c[2], d.En("g") / M[0] / c[0], P * d.En("L") / R / T / c[1]};
      const double X = x[v];
      const double esperadas[6][2] = {
          {X * c[2] * M[2], X * c[3] * M[3]}, {X * c[2] * M[2], X * c[3] * M[3]},
          {X * c[1] * M[1], X * c[3] * M[3]}, {X * c[1] * M[1], X * c[0] / d.En("mol/L") * 1000},
          {X * c[1] * R * T / P, X * c[3] * M[3]}, {X * c[0] * M[0], X * c[2] * M[2]}};
      const std::vector<test::Mostrado> r = test::Respuestas(p.so.substr(p.so.find("b)")));
      ASSERT_EQ(r.size(), 2u);
      for (int k = 0; k < 2; ++k) test::EsperaCerca(r[k], esperadas[v][k]);
      // Real conditions: a gas above its boiling point, water below its own.
      EXPECT_TRUE(v < 4 || (T < 363.2 && P <= 2 && (f[1] != "NO_2" || (T >= 303 && P <= 1))));
      EXPECT_TRUE((v != 2 && v != 3) || (d.En("mol/L") >= 0.05 && d.En("mol/L") <= 5));
    }
}

// Every generator and form over 200 seeds makes whole problems; oxidation
// numbers and reduction potentials are the only negative numbers a page shows.
TEST(Redox, EveryFormMakesWholeProblems) {
  const int formas[8] = {5, 1, 1, 1, 6, 4, 3, 11};
  for (int gen = 1; gen <= 8; ++gen)
    for (int v = 0; v < formas[gen - 1]; ++v)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        const test::Problema p = Genera(gen, v, 6, semilla);
        ASSERT_TRUE(p.st.size() > 40 && p.so.size() > 10 && p.st.ends_with("&LF") && p.so.ends_with("&LF"))
            << gen << " " << v << "\n" << p.st << p.so;
        const std::string negativo = (gen == 1 && v == 0) || gen == 7 ? "" : R"(|[^_^A-Za-z(]-\d)";
        ASSERT_FALSE(std::regex_search(p.st + p.so, std::regex(R"(%[A-Za-z0-9_]+%|<Error|nan|inf)" + negativo)))
            << p.st << p.so;
        if (gen >= 5 && gen != 7) {
          for (double x : test::Numeros(p.st + p.so)) ASSERT_GT(x, 0) << p.st << p.so;
        }
      }
}

}  // namespace
}  // namespace ss::mod::rdx
