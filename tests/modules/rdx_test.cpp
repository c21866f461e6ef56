// The redox module's equations and small problems, checked by the tests' own
// atom and charge counter and by answers worked again from what the page
// shows.
#include <gtest/gtest.h>

#include <set>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "tests/modules/dis_comun.h"
#include "tests/modules/atomos.h"

namespace ss::mod::rdx {
namespace {

using test::Coeficiente;
using test::EsperaAjustada;

test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  return test::GeneraEn("ANEU_QUIM_RDX", gen, seqB, items, semilla * 7919 + static_cast<uint64_t>(gen));
}

const std::map<std::string, double> kAtomicas = {
    {"H", 1.008},   {"C", 12.011},  {"N", 14.007},  {"O", 15.999},  {"Na", 22.990}, {"Mg", 24.305}, {"Al", 26.982},
    {"S", 32.06},   {"Cl", 35.45},  {"K", 39.098},  {"Ca", 40.078}, {"Cr", 51.996}, {"Mn", 54.938}, {"Fe", 55.845},
    {"Co", 58.933}, {"Ni", 58.693}, {"Cu", 63.546}, {"Zn", 65.38},  {"Br", 79.904}, {"Cd", 112.41}, {"Sn", 118.71},
    {"I", 126.90},  {"Hg", 200.59}, {"Pb", 207.2}};

double MasaMolar(const std::string& f) {
  double m = 0;
  for (const auto& [e, n] : test::Especie(f).atomos) m += n * kAtomicas.at(e);
  return m;
}

TEST(Redox, EveryCodedEquationIsBalancedWithEverySlotFilling) {
  std::set<std::string> vistas;
  for (uint64_t semilla = 1; semilla <= 40; ++semilla) {
    GenContext g(&test::Textos(), Aleatorio(semilla));
    for (int i = 0; i < kAcidas + kBasicas; ++i) {
      const EcuacionRedox e = i < kAcidas ? EcuacionRedoxAcida(g, i) : EcuacionRedoxBasica(g, i - kAcidas);
      SCOPED_TRACE(e.ajustada);
      EsperaAjustada(e.ajustada, e.sinAjustar);
      vistas.insert(e.ajustada);
      if (e.especie[0].empty()) continue;
      // The key species stand in the equation with their coefficients, and
      // their molar masses are right.
      for (int k = 0; k < 4; ++k) {
        const std::string f = e.especie[k].substr(0, e.especie[k].find('/'));
        EXPECT_EQ(Coeficiente(e.ajustada, f), e.coef[k]) << f;
        const double M = std::stod(e.nombreMasa[k].substr(e.nombreMasa[k].find('/') + 1));
        EXPECT_NEAR(M, MasaMolar(f), 0.006 * M) << f;
      }
    }
  }
  // The reversed forms and the slot fillings give many distinct equations.
  EXPECT_GT(vistas.size(), 90u);
}

TEST(Redox, HalfReactionsBalanceAndOxidationNumbersAddUpToTheCharge) {
  for (const Semi& s : TablaSemireacciones()) {
    SCOPED_TRACE(s.reaccion);
    EsperaAjustada(s.reaccion);
    const std::string r(s.reaccion);
    EXPECT_EQ(r.find(s.medio == 'A' ? "OH#" : "H^+"), std::string::npos);
    EXPECT_LT(r.find(s.oxidada), r.find(" = "));
  }
  std::set<std::string_view> formulas;
  for (const Nox& n : TablaNOX()) {
    SCOPED_TRACE(n.formula);
    formulas.insert(n.formula);
    const test::Carga c = test::Especie(n.formula);
    const std::string r(n.respuesta);
    int suma = 0, elementos = 0;
    static const std::regex par(R"(([A-Z][a-z]?) ([+-]\d))");
    for (auto it = std::sregex_iterator(r.begin(), r.end(), par); it != std::sregex_iterator();
         ++it, ++elementos)
      suma += c.atomos.at((*it)[1]) * std::stoi((*it)[2]);
    EXPECT_EQ(suma, c.carga);
    EXPECT_EQ(elementos, static_cast<int>(c.atomos.size()));
  }
  EXPECT_EQ(formulas.size(), static_cast<std::size_t>(kNox));
}

// Generator 1: every form, its answers worked from the page.
TEST(Redox, SmallProblemsAnswerWhatTheyAsk) {
  for (int v = 0; v < 5; ++v)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const test::Problema p = Genera(1, v, 0, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const test::Datos d(p.st);
      const std::vector<test::Mostrado> r = test::Respuestas(p.so);
      switch (v) {
        case 0: {  // fifteen formulas, fifteen answers
          EXPECT_EQ(std::count(p.st.begin(), p.st.end(), ')'), 15 + std::count(p.st.begin(), p.st.end(), '('));
          EXPECT_NE(p.so.find("&+Bo)&-B "), std::string::npos);
          break;
        }
        case 1: {  // the oxidant takes electrons: it stands on the left, its reduced form on the right
          std::smatch m;
          ASSERT_TRUE(std::regex_search(p.so, m, std::regex(R"(Oxidant: (\S+),   Reductant: (\S+)\..*b\)&-B (\S+) / (\S+);.*c\)&-B (\S+) / (\S+)\.)")));
          const std::string ec = p.st.substr(p.st.find(": ") + 2);
          const std::size_t flecha = ec.find("&ars");
          for (int k : {1, 2}) EXPECT_LT(ec.find(m[k].str()), flecha) << m[k];
          EXPECT_GT(ec.find(m[4].str(), flecha), flecha);
          EXPECT_GT(ec.find(m[6].str(), flecha), flecha);
          EXPECT_TRUE(m[1] == m[3] && m[2] == m[5]);
          break;
        }
        case 2: case 3: {  // normality = molarity x electrons; mass = M V molar mass
          std::smatch m;
          ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(Molar mass: \S+ = (\d+(?:&\.\d+)?) g/mol)")));
          const double Mm = test::Numeros(m[1])[0], V = d.En("mL") / 1000;
          ASSERT_EQ(r.size(), 2u);
          if (v == 2) {
            // The electrons follow from the normality and the molarity the answer gives.
            const double N = d.En("N"), M = r[1].valor;
            const double electrones = N / M;
            EXPECT_NEAR(electrones, std::round(electrones), 1e-6);
            test::EsperaCerca(r[0], M * V * Mm);
          } else {
            test::EsperaCerca(r[0], d.En("g") / Mm / V);
            const double electrones = r[1].valor / r[0].valor;
            EXPECT_TRUE(std::fabs(electrones - std::round(electrones)) < 0.01 && std::round(electrones) >= 2) << electrones;
          }
          // A solution that really dissolves.
          EXPECT_LE(r[v == 2 ? 1 : 0].valor, p.st.find("KMnO_4") != std::string::npos ||
                                                     p.st.find("K_2Cr_2O_7") != std::string::npos ? 0.4 : 1.5);
          break;
        }
        default: {  // the half-reaction given balances; electrons on the side of the oxidised form
          const std::string h = test::Tras(p.so, "a)&-B ");
          EsperaAjustada(h);
          const bool reduccion = h.find("e#SPB") < h.find("&ars");
          EXPECT_EQ(p.so.find(reduccion ? "Reduction" : "Oxidation") != std::string::npos, true);
          EXPECT_NE(p.so.find(reduccion ? ": oxidant" : ": reductant"), std::string::npos);
        }
      }
    }
}

// Generators 2 to 4: as many different equations as asked, each balanced.
TEST(Redox, ListsHoldDistinctBalancedEquations) {
  for (int gen : {2, 3, 4})
    for (int items : {1, 5, 26, 30})
      for (uint64_t semilla = 1; semilla <= 8; ++semilla) {
        const test::Problema p = Genera(gen, static_cast<int>(semilla), items, semilla);
        std::set<std::string> vistas;
        int n = 0;
        for (std::size_t a = p.so.find(")&-B  "); a != std::string::npos; a = p.so.find(")&-B  ", a + 1), ++n) {
          const std::string e = p.so.substr(a + 6, p.so.find("&LF", a) - a - 6);
          EsperaAjustada(e);
          vistas.insert(e);
          // A basic list never holds an acid, nor an acid list a base.
          EXPECT_TRUE(gen != 2 || e.find("OH + ") == std::string::npos) << e;
          EXPECT_TRUE(gen != 3 || e.find("H_2SO_4") == std::string::npos) << e;
        }
        EXPECT_EQ(n, std::clamp(items, 2, 26));
        EXPECT_EQ(vistas.size(), static_cast<std::size_t>(n));
      }
}

// Generator 5: every form, its answers worked from the page.
TEST(Redox, RedoxStoichiometryFollowsFromTheAmountGiven) {
  constexpr double R = 0.082057;
  for (int v = 0; v < 6; ++v)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const test::Problema p = Genera(5, v, 0, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::string ec = test::Tras(p.so, "a)&-B ");
      EsperaAjustada(ec);
      // The four species and their molar masses, in the order oxidant,
      // reduced form, oxidised form, reductant.
      const std::string linea = test::Tras(p.st, "Molar masses: ");
      std::vector<std::string> f;
      std::vector<double> M, c;
      static const std::regex masa(R"((\S+) = (\d+(?:&\.\d+)?))");
      for (auto it = std::sregex_iterator(linea.begin(), linea.end(), masa); it != std::sregex_iterator(); ++it) {
        f.push_back((*it)[1]);
        M.push_back(test::Numeros((*it)[2])[0]);
        c.push_back(Coeficiente(ec, f.back()));
        EXPECT_NEAR(M.back(), MasaMolar(f.back()), 0.006 * M.back()) << f.back();
      }
      ASSERT_EQ(f.size(), 4u);
      const std::size_t flecha = ec.find("&ars");
      EXPECT_TRUE(ec.find(f[0]) < flecha && ec.find(f[3]) < flecha && ec.find(f[1], flecha) != std::string::npos &&
                  ec.find(f[2], flecha) != std::string::npos);
      const test::Datos d(p.st);
      const double T = d.En("\xB0" "C") + 273.15, P = d.En("atm");
      double x = 0;  // moles of "reaction": the moles of a species over its coefficient
      switch (v) {
        case 0: case 4: x = d.En("g") / M[0] / c[0]; break;
        case 1: x = d.En("g") / M[1] / c[1]; break;
        case 2: x = d.En("mL") / 1000 * d.En("mol/L") / c[0]; break;
        case 3: x = d.En("g") / M[2] / c[2]; break;
        default: x = P * d.En("L") / R / T / c[1]; break;
      }
      const double esperadas[6][2] = {
          {x * c[2] * M[2], x * c[3] * M[3]},       {x * c[2] * M[2], x * c[3] * M[3]},
          {x * c[1] * M[1], x * c[3] * M[3]},       {x * c[1] * M[1], x * c[0] / d.En("mol/L") * 1000},
          {x * c[1] * R * T / P, x * c[3] * M[3]}, {x * c[0] * M[0], x * c[2] * M[2]}};
      const std::vector<test::Mostrado> r = test::Respuestas(p.so.substr(p.so.find("b)")));
      ASSERT_EQ(r.size(), 2u);
      for (int k = 0; k < 2; ++k) test::EsperaCerca(r[k], esperadas[v][k]);
      // Real conditions: a gas above its boiling point, water below its own.
      EXPECT_TRUE(v < 4 || (T < 363.2 && P <= 2 && (f[1] != "NO_2" || (T >= 303 && P <= 1))));
      EXPECT_TRUE((v != 2 && v != 3) || (d.En("mol/L") >= 0.05 && d.En("mol/L") <= 5));
    }
}

// Every generator, every form, 200 seeds: whole problems only.
TEST(Redox, EveryFormMakesWholeProblems) {
  const int formas[8] = {5, 1, 1, 1, 6, 4, 3, 11};
  for (int gen = 1; gen <= 8; ++gen)
    for (int v = 0; v < formas[gen - 1]; ++v)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        const test::Problema p = Genera(gen, v, 6, semilla);
        ASSERT_TRUE(p.st.size() > 40 && p.so.size() > 10 && p.st.ends_with("&LF") && p.so.ends_with("&LF"))
            << gen << " " << v << "\n" << p.st << p.so;
        // Oxidation numbers and reduction potentials are the only negative
        // numbers a page shows.
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
