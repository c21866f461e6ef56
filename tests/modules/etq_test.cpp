// The stoichiometry module's equations, checked by an atom counter of the
// test's own: every reaction of the table, every template with every element
// its pools can put in, and every double exchange of the ion tables is
// balanced; the molar masses agree with the atomic masses.
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <numeric>
#include <set>
#include <functional>
#include <regex>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::etq {
namespace {

using test::Tras;

double MasaMolar(std::string_view f) {
  static const std::map<std::string, double> kMasas = {
      {"H", 1.008},  {"C", 12.011}, {"N", 14.007}, {"O", 15.999}, {"Na", 22.990}, {"Al", 26.982},
      {"P", 30.974}, {"S", 32.06},  {"Cl", 35.45}, {"K", 39.098}, {"Ca", 40.078}, {"Zn", 65.38}, {"Li", 6.94},
      {"F", 18.998}, {"Mg", 24.305}, {"Cr", 51.996}, {"Fe", 55.845}, {"Cu", 63.546}, {"Br", 79.904}, {"Ag", 107.87},
      {"Cd", 112.41}, {"I", 126.90}, {"Pb", 207.2}};
  double m = 0;
  for (const auto& [e, n] : test::Especie(f).atomos) m += n * kMasas.at(e);
  return m;
}

TEST(Stoichiometry, EveryReactionOfTheTableIsBalancedWithRealMolarMasses) {
  for (int fila = 1; fila <= kReacciones; ++fila) {
    SCOPED_TRACE(fila);
    const ReaccionETQ r = Reaccion(fila);
    test::EsperaAjustada(r.ajustada, r.sinAjustar);
    for (const Sustancia& s : r.s)
      if (s.coef != 0) {
        EXPECT_NEAR(s.masaMolar, MasaMolar(s.formula), std::max(0.005 * s.masaMolar, 0.05)) << s.formula;
      }
    EXPECT_EQ(r.nReactivos + r.nProductos, 3 + (r.s[3].coef != 0));
    // A solution of it can be made: no hydroxide that barely dissolves stands as one.
    for (const Sustancia& s : r.s)
      if (s.fase == "ac") {
        EXPECT_TRUE(s.formula != "Ca(OH)_2" && s.formula != "Al(OH)_3") << s.formula;
      }
  }
}

TEST(Stoichiometry, TemplatesGiveBalancedEquationsOfRealCompoundsOnly) {
  const std::set<std::string> nunca = {"CuI_2", "FeI_3", "Au", "Hg", "Pt", "Al_2(SO_3)_3", "Pb(OH)_4", "CrO_4", "MnO_4"};
  const std::regex ranura("M[1-4]|A[12]|X[3-7]");
  GenContext g(&test::Textos(), Aleatorio(7));
  std::set<std::string> vistas;
  for (int t = 0; t < kPlantillas; ++t)
    for (int k = 0; k < 300; ++k) {
      const Ecuacion e = EcuacionPlantilla(g, t + kPlantillas * (k % 4));
      test::EsperaAjustada(e.ajustada, e.sinAjustar);
      vistas.insert(e.ajustada);
      for (const std::string& n : nunca) EXPECT_EQ(e.ajustada.find(n), std::string::npos) << e.ajustada;
      EXPECT_FALSE(std::regex_search(e.ajustada, ranura)) << TextoPlantilla(t) << " left a slot: " << e.ajustada;
      if (HasFailure()) return;
    }
  EXPECT_GT(vistas.size(), 100u) << "far more equations than a list of 26 asks for";
}

TEST(Stoichiometry, IonicFormulasAndDoubleExchangesAreBalanced) {
  const Ion& cobre2 = CationDeSorteo(10);
  const Ion& sodio = CationDeSorteo(1);
  const Ion& aluminio = CationDeSorteo(3);
  EXPECT_EQ(FormulaIonica(cobre2, AnionDeSorteo(31)).formula, "Cu(OH)_2");
  EXPECT_EQ(FormulaIonica(sodio, AnionDeSorteo(11)).formula, "Na_2SO_4");
  EXPECT_EQ(FormulaIonica(aluminio, AnionDeSorteo(39)).formula, "Al_2O_3");
  EXPECT_EQ(FormulaIonica(CationDeSorteo(16), AnionDeSorteo(31)).formula, "H_2O");
  EXPECT_EQ(FormulaIonica(CationDeSorteo(4), AnionDeSorteo(23)).formula, "Pb_2P_2O_7");
  EXPECT_NEAR(FormulaIonica(aluminio, AnionDeSorteo(11)).masaMolar, 342, 1e-9);
  for (int c1 = 1; c1 <= 16; ++c1)
    for (int c2 = 1; c2 <= 16; ++c2)
      for (int a1 = 1; a1 <= 55; a1 += 3)
        for (int a2 = 2; a2 <= 55; a2 += 4) {
          const Ion &x = CationDeSorteo(c1), &y = CationDeSorteo(c2), &p = AnionDeSorteo(a1), &q = AnionDeSorteo(a2);
          const DobleCambio d = AjustaDobleCambio(x, p, y, q);
          test::EsperaAjustada(d.ecuacion);
          EXPECT_EQ(std::gcd(std::gcd(d.coef[0], d.coef[1]), std::gcd(d.coef[2], d.coef[3])), 1) << d.ecuacion;
        }
}

// The molar masses a statement lists: "Molar masses: H_2O = 18,  O_2 = 32 (g/mol)".
std::map<std::string, double> Masas(const std::string& st) {
  std::map<std::string, double> m;
  const std::string lista = Tras(st, test::Texto("Masas_molares") + ": ");
  static const std::regex par(R"(([A-Za-z0-9_()]+) = (\d+(?:&\.\d+)?))");
  for (std::sregex_iterator it(lista.begin(), lista.end(), par), end; it != end; ++it)
    m[(*it)[1]] = test::Numeros((*it)[2].str())[0];
  return m;
}

// A problem on one reaction read as a student reads it: the reaction by the
// equation shown, the molar masses listed (which must agree with the atomic
// masses), the conditions, and each amount the text gives with its substance.
struct Leido {
  std::string st, so;
  ReaccionETQ r;
  std::map<std::string, double> masas;
  double T = NAN, P = NAN, pureza = 100, rendimiento = NAN;
  struct Cantidad {
    int k;          // the substance
    double moles;   // what the amount is in moles
    std::size_t at;    // where its name stands
  };
  std::vector<Cantidad> dadas;

  std::string Nombre(int k) const { return test::Texto(r.s[k].nombre); }
  double M(int k) const { return masas.at(std::string(r.s[k].formula)); }
  double Gas(double V) const { return P * V / 0.082057 / T; }
};

Leido Lee(int gen, int v, uint64_t semilla) {
  Leido l;
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + v));
  GeneraProblema(g, "ANEU_QUIM_ETQ", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(v, 4) + "000301", l.st, l.so);
  const std::string& st = l.st;
  EXPECT_FALSE(std::regex_search(st + l.so, std::regex("%[A-Za-z0-9_]+%|<Error|nan|inf"))) << "a whole problem: " << st;
  for (int f = 1; f <= kReacciones && l.r.fila == 0; ++f) {
    const ReaccionETQ r = Reaccion(f);
    if (st.find(r.ajustada + ",") != std::string::npos || st.find(r.sinAjustar + ",") != std::string::npos ||
        st.find(r.sinAjustar + "    " + test::Texto("Ecua_No_Ajustada")) != std::string::npos)
      l.r = r;
  }
  EXPECT_NE(l.r.fila, 0) << st;
  if (l.r.fila == 0) return l;
  // A stripped equation says so, unless stripping changed nothing.
  EXPECT_EQ(st.find(l.r.ajustada) != std::string::npos || l.r.ajustada == l.r.sinAjustar,
            st.find(test::Texto("Ecua_No_Ajustada")) == std::string::npos) << st;
  l.masas = Masas(st);
  for (const Sustancia& x : l.r.s)
    if (x.coef != 0) {
      EXPECT_NEAR(l.masas[std::string(x.formula)], MasaMolar(x.formula), 0.5) << x.formula;
    }
  const test::Datos d(st);
  l.T = d.En("\xB0" "C") + 273.15, l.P = d.En("atm");
  std::smatch m;
  if (std::regex_search(st, m, std::regex(R"((\d+)_ % purity)"))) l.pureza = std::stod(m[1]);
  if (std::regex_search(st, m, std::regex(R"(yield of the reaction is (\d+)_ %)"))) l.rendimiento = std::stod(m[1]);
  // Each amount: a number, its unit and " of " before a substance's name; the
  // longest names first, so that "hydrogen chloride" is not read as hydrogen.
  std::string resto = st.substr(0, st.find("&LF"));
  std::vector<int> orden;
  for (int k = 0; k < 4; ++k)
    if (l.r.s[k].coef != 0) orden.push_back(k);
  std::sort(orden.begin(), orden.end(), [&](int a, int b) { return l.Nombre(a).size() > l.Nombre(b).size(); });
  static const std::regex cantidad(R"((\d[\d_ ]*(?:&\.\d+)?)& (g|mol|L|mL) of (a (\d+(?:&\.\d+)?)& mol/L solution of )?$)");
  for (int k : orden)
    for (std::size_t at = resto.find(l.Nombre(k)); at != std::string::npos; at = resto.find(l.Nombre(k), at + 1)) {
      const std::string antes = resto.substr(0, at);
      if (!std::regex_search(antes, m, cantidad)) continue;
      const double x = test::Numeros(m[1].str())[0];
      const std::string u = m[2];
      const double n = u == "g" ? x / l.M(k) : u == "mol" ? x : u == "L" ? l.Gas(x) : x / 1000 * test::Numeros(m[4].str())[0];
      l.dadas.push_back({k, n, at});
      resto.replace(at, l.Nombre(k).size(), std::string(l.Nombre(k).size(), '#'));
    }
  std::sort(l.dadas.begin(), l.dadas.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
  // Real conditions: a gas stays a gas, a water solution stays liquid.
  if (!std::isnan(l.P)) {
    EXPECT_TRUE(l.P >= 0.5 && l.P <= 5) << l.P;
    EXPECT_TRUE(l.T >= 273.15 && l.T <= (l.r.AcReactivo ? 363.15 : 673.15)) << l.T;
  }
  return l;
}

// What a question asks of the moles `n` of each substance the reaction holds.
double Pide(const Leido& l, const std::string& q, const std::function<double(int)>& n) {
  for (int j = 0; j < 4; ++j) {
    if (l.r.s[j].coef == 0) continue;
    const std::string x = l.Nombre(j);
    if (q == "the mass of " + x + " formed." || q == "the mass of " + x + " that is needed.") return n(j) * l.M(j);
    if (q == "the mass of the impure " + x + " that is needed.") return n(j) * l.M(j) * 100 / l.pureza;
    if (q == "the amount of " + x + " formed, in moles." || q == "the amount of " + x + " that is needed, in moles.")
      return n(j);
    if (q.starts_with("the volume of " + x + " formed, measured") || q.starts_with("the volume of " + x + " that is needed, measured"))
      return n(j) * 0.082057 * l.T / l.P;
    if (q == "the volume of the " + x + " solution that is needed.") {
      std::smatch m;
      EXPECT_TRUE(std::regex_search(l.st, m, std::regex(R"((\d+(?:&\.\d+)?)& mol/L solution of )" + std::regex_replace(x, std::regex(R"([()])"), R"(\$&)"))));
      return n(j) / test::Numeros(m[1].str())[0] * 1000;
    }
  }
  ADD_FAILURE() << "a question not understood: " << q;
  return NAN;
}

// Four significant figures, also where the zeros of a whole number are not shown as such.
void Responde(const Leido& l, const std::vector<double>& esperadas) {
  const std::vector<test::Mostrado> dadas = test::Respuestas(l.so);
  ASSERT_EQ(dadas.size(), esperadas.size()) << l.so;
  for (std::size_t j = 0; j < dadas.size(); ++j) test::EsperaCerca(dadas[j], esperadas[j], 5.01e-4 * std::fabs(esperadas[j]));
}

// Generators 1 and 6: every amount from the one the statement gives.
TEST(Stoichiometry, AmountsOfOneReactionFollowFromTheGivenOne) {
  std::set<int> filas;
  for (int gen : {1, 6})
    for (int v = 0; v < 12; ++v)
      for (uint64_t semilla = 1; semilla <= 25; ++semilla) {
        const Leido l = Lee(gen, v, semilla);
        SCOPED_TRACE(l.st + "\n" + l.so);
        ASSERT_EQ(l.dadas.size(), 1u);
        const Leido::Cantidad& d = l.dadas[0];
        const double n = d.moles * (l.st.find("a sample of") != std::string::npos ? l.pureza / 100 : 1);
        filas.insert(gen * 100 + l.r.fila);
        auto moles = [&](int j) { return n / std::fabs(l.r.s[d.k].coef) * std::fabs(l.r.s[j].coef); };
        Responde(l, {Pide(l, Tras(l.st, "a)&-B "), moles), Pide(l, Tras(l.st, "b)&-B "), moles)});
        if (gen == 6) {
          EXPECT_TRUE(l.st.find("& g of") != std::string::npos || l.st.find("& mol of") != std::string::npos);
        }
      }
  EXPECT_GE(filas.size(), 25u) << "most reactions of the table come up";
}

// Generator 2: the products as the yield gives them, or the yield from what was obtained.
TEST(Stoichiometry, YieldScalesTheProductsAndIsFoundFromWhatWasObtained) {
  int ambos = 0;
  for (int v = 0; v < 8; ++v)
    for (uint64_t semilla = 1; semilla <= 40; ++semilla) {
      const Leido l = Lee(2, v, semilla);
      SCOPED_TRACE(l.st + "\n" + l.so);
      ASSERT_FALSE(l.dadas.empty());
      const Leido::Cantidad& d = l.dadas[0];
      ASSERT_EQ(d.k, 0);
      const double n1 = d.moles * (l.st.find("a sample of") != std::string::npos ? l.pureza / 100 : 1);
      auto teorico = [&](int j) { return n1 / std::fabs(l.r.s[0].coef) * std::fabs(l.r.s[j].coef); };
      double y = l.rendimiento;
      std::vector<double> esperadas;
      if (std::isnan(y)) {
        ASSERT_EQ(l.dadas.size(), 2u);
        const Leido::Cantidad& obtenido = l.dadas[1];
        y = obtenido.moles / teorico(obtenido.k) * 100;
        esperadas.push_back(y);
        ++ambos;
      } else {
        EXPECT_TRUE(y >= 30 && y <= 85) << y;
      }
      auto real = [&](int j) { return teorico(j) * (l.r.s[j].coef > 0 ? y / 100 : 1); };
      for (const char* letra : {"a)&-B ", "b)&-B "})
        if (const std::string q = Tras(l.st, letra); !q.empty() && q != "the yield of the reaction.")
          esperadas.push_back(Pide(l, q, real));
      const std::vector<test::Mostrado> dadas = test::Respuestas(l.so);
      ASSERT_EQ(dadas.size(), esperadas.size());
      if (std::isnan(l.rendimiento)) {
        EXPECT_NEAR(dadas[0].valor, esperadas[0], 0.5) << "the yield, to the whole percent";
      }
      for (std::size_t j = std::isnan(l.rendimiento) ? 1 : 0; j < dadas.size(); ++j)
        test::EsperaCerca(dadas[j], esperadas[j], 5.01e-4 * std::fabs(esperadas[j]));
    }
  EXPECT_GT(ambos, 20);
}

// Generator 3: the reactant that runs out first, by the amounts given.
TEST(Stoichiometry, TheLimitingReagentRunsOutFirstAndSetsTheProduct) {
  for (int v = 0; v < 4; ++v)
    for (uint64_t semilla = 1; semilla <= 40; ++semilla) {
      const Leido l = Lee(3, v, semilla);
      SCOPED_TRACE(l.st + "\n" + l.so);
      ASSERT_EQ(l.dadas.size(), 2u);
      ASSERT_EQ(l.r.nReactivos, 2);
      std::array<double, 2> avance{};
      for (const Leido::Cantidad& d : l.dadas) avance[d.k] = d.moles / std::fabs(l.r.s[d.k].coef);
      const int L = avance[0] < avance[1] ? 0 : 1;
      EXPECT_GT(std::max(avance[0], avance[1]) / std::min(avance[0], avance[1]), 1.2) << "one reactant clearly in excess";
      EXPECT_TRUE(l.so.starts_with("&SP=10:&+Ba)&-B " + std::string(l.r.s[L].formula) + ", " + l.Nombre(L) + ","));
      const double e = std::min(avance[0], avance[1]);
      const std::vector<test::Mostrado> dadas = test::Respuestas(l.so.substr(l.so.find("b)")));
      ASSERT_EQ(dadas.size(), 1u);
      test::EsperaCerca(dadas[0], Pide(l, Tras(l.st, "b)&-B& "), [&](int j) { return e * std::fabs(l.r.s[j].coef); }),
                        5.01e-4 * dadas[0].valor);
    }
}

TEST(Stoichiometry, ListsOfEquationsToBalance) {
  for (const auto& [items, lineas] : {std::pair{1, 2}, {8, 8}, {26, 26}, {99, 26}}) {
    for (uint64_t semilla = 1; semilla <= 20; ++semilla) {
      GenContext g(&test::Textos(), Aleatorio(semilla));
      std::string st, so;
      GeneraProblema(g, "ANEU_QUIM_ETQ", "005000" + ZeroPadCut(semilla, 4) + ZeroPadCut(items, 2) + "0301", st, so);
      ASSERT_TRUE(st.starts_with(test::Texto("AjustaReacciones") + ":&LF")) << st;
      std::vector<std::string> enunciados, soluciones;
      for (std::string_view t : {std::string_view(st), std::string_view(so)})
        for (std::size_t at = t.find(")&-B  "); at != std::string_view::npos; at = t.find(")&-B  ", at + 1)) {
          const std::size_t fin = t.find("&LF", at);
          (t.data() == st.data() ? enunciados : soluciones).emplace_back(t.substr(at + 6, fin - at - 6));
        }
      ASSERT_EQ(enunciados.size(), static_cast<std::size_t>(lineas));
      ASSERT_EQ(soluciones.size(), static_cast<std::size_t>(lineas));
      EXPECT_EQ(std::set<std::string>(soluciones.begin(), soluciones.end()).size(), soluciones.size());
      for (int k = 0; k < lineas; ++k) test::EsperaAjustada(soluciones[k], enunciados[k]);
      EXPECT_NE(st.find("&SP=10:&+B" + std::string(1, static_cast<char>('a' + lineas - 1)) + ")"), std::string::npos);
    }
  }
}

// Generator 4, read as a student reads it: the mass of A, the molar masses
// listed, the equation of the solution checked balanced, every amount from
// those; and the reaction one that happens in water, by the rules of a
// textbook's solubility table rather than the generator's own.
TEST(Stoichiometry, DoubleExchangesHappenAndTheirAmountsFollowFromTheMassGiven) {
  const std::set<std::string> nunca = {"CuI_2", "FeI_3", "Fe_2S_3", "Al_2S_3", "Cr_2S_3", "MgS", "CaS", "AgOH", "CuOH",
                                       "Al_2(CO_3)_3", "Fe_2(CO_3)_3", "Cr_2(CO_3)_3", "CuCO_3", "Cu_2SO_4", "CuNO_3"};
  const std::set<std::string> resistenAcido = {"AgCl", "AgBr", "AgI", "CuCl", "CuBr", "CuI", "PbI_2", "PbSO_4",
                                               "CuS", "PbS", "CdS", "Ag_2S", "Cu_2S"};
  const std::set<std::string> fluoruros = {"CaF_2", "MgF_2", "PbF_2", "Li_3PO_4"};
  const std::set<std::string> fuertes = {"HCl", "HBr", "HI", "HNO_3", "H_2SO_4", "HClO_3", "HClO_4"};
  const std::regex insoluble(R"(^(?!(Na|K|Li))[A-Z][a-z]?(_\d)?(\(OH\)_\d|OH|\(?CO_3|\(?PO_4|\(?P_2O_7|S)(\)?_\d)?$)");
  std::set<std::string> vistas;
  for (uint64_t semilla = 1; semilla <= 300; ++semilla) {
    GenContext g(&test::Textos(), Aleatorio(semilla));
    std::string st, so;
    GeneraProblema(g, "ANEU_QUIM_ETQ", "004000" + ZeroPadCut(semilla, 4) + "000301", st, so);
    SCOPED_TRACE(st + "\n" + so);
    std::smatch m;
    ASSERT_TRUE(std::regex_search(st, m, std::regex(R"(^(\d+)& g of (\S+) react.*?of (\S+)\.&LF)")));
    const double masa = std::stod(m[1]);
    const std::string ecuacion = Tras(so, "a)&-B& ");
    vistas.insert(ecuacion);
    const std::size_t f = ecuacion.find("&ars");
    test::EsperaAjustada(ecuacion);
    std::vector<std::string> x = test::Formulas(ecuacion.substr(0, f));
    for (const std::string& y : test::Formulas(ecuacion.substr(f + 4))) x.push_back(y);
    ASSERT_EQ(x.size(), 4u);
    EXPECT_TRUE(x[0] == m[2] && x[1] == m[3]);
    EXPECT_EQ(Tras(st, "c)&-B "), "the mass of " + x[2] + " and the amount in moles of " + x[3] + " formed.");
    std::map<std::string, double> M = Masas(st);
    for (const std::string& c : x) EXPECT_NEAR(M[c], MasaMolar(c), 0.6) << c;
    std::array<double, 4> coef{};
    for (int k = 0; k < 4; ++k) coef[k] = test::Coeficiente(ecuacion, x[k]);
    const double n = masa / M[x[0]] / coef[0];
    const std::vector<test::Mostrado> dadas = test::Respuestas(so.substr(so.find("b)")));
    ASSERT_EQ(dadas.size(), 4u);
    const double esperadas[4] = {n * coef[1] * M[x[1]], n * coef[1], n * coef[2] * M[x[2]], n * coef[3]};
    for (int k = 0; k < 4; ++k) test::EsperaCerca(dadas[k], esperadas[k]);
    // The chemistry: real compounds only, and a reaction that runs.
    for (const std::string& c : x) EXPECT_EQ(nunca.count(c), 0u) << c;
    EXPECT_TRUE(x[0] != "H_2O" && x[1] != "H_2O" && x[3] != "H_2O");
    const bool acido = (x[2][0] == 'H' && x[2] != "H_2O") || x[3][0] == 'H';
    const bool gas = (x[2] == "H_2S" || x[2] == "H_2CO_3" || x[3] == "H_2S" || x[3] == "H_2CO_3") &&
                     (fuertes.count(x[0]) || fuertes.count(x[1]));
    auto precipita = [&](const std::string& c) {
      return resistenAcido.count(c) || (!acido && (std::regex_match(c, insoluble) || fluoruros.count(c)));
    };
    EXPECT_TRUE(x[2] == "H_2O" || gas || precipita(x[2]) || precipita(x[3])) << "nothing drives " << ecuacion;
  }
  EXPECT_GT(vistas.size(), 120u);
}

// Every generator written so far, every variant, 200 seeds: whole problems only.
TEST(Stoichiometry, EveryVariantMakesWholeProblems) {
  for (int gen : {1, 2, 3, 4, 5, 6})
    for (int v = 0; v < 12; ++v)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        GenContext g(&test::Textos(), Aleatorio(semilla));
        std::string st, so;
        GeneraProblema(g, "ANEU_QUIM_ETQ", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(v, 4) + "080301", st, so);
        ASSERT_TRUE(st.size() > 40 && so.size() > 10 && st.ends_with("&LF") && so.ends_with("&LF")) << st << so;
        ASSERT_FALSE(std::regex_search(st + so, std::regex("%[A-Za-z0-9_]+%|<Error|nan|inf|-\\d"))) << st << so;
      }
}

}  // namespace
}  // namespace ss::mod::etq
