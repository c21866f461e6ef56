// The stoichiometry module: every equation checked by the tests' atom counter,
// every answer worked again from the numbers the statement shows.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <numeric>
#include <regex>
#include <set>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::etq {
namespace {

using test::Tras;
constexpr double R = 0.082057;

double MasaMolar(std::string_view f) {
  static const std::map<std::string, double> kMasas = {
      {"H", 1.008},   {"C", 12.011},  {"N", 14.007},  {"O", 15.999},  {"Na", 22.990}, {"Al", 26.982}, {"P", 30.974},
      {"S", 32.06},   {"Cl", 35.45},  {"K", 39.098},  {"Ca", 40.078}, {"Zn", 65.38},  {"Li", 6.94},   {"F", 18.998},
      {"Mg", 24.305}, {"Cr", 51.996}, {"Fe", 55.845}, {"Cu", 63.546}, {"Br", 79.904}, {"Ag", 107.87}, {"Cd", 112.41},
      {"I", 126.90},  {"Pb", 207.2}};
  double m = 0;
  for (const auto& [e, n] : test::Especie(f).atomos) m += n * kMasas.at(e);
  return m;
}
std::pair<std::string, std::string> Genera(int gen, int v, int items, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla));
  std::string st, so;
  GeneraProblema(g, "ANEU_QUIM_ETQ", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(v, 4) + ZeroPadCut(items, 2) + "0301",
                 st, so);
  return {st, so};
}

TEST(Stoichiometry, EveryReactionOfTheTableIsBalancedWithRealMolarMasses) {
  for (int fila = 1; fila <= kReacciones; ++fila) {
    const ReaccionETQ r = Reaccion(fila);
    test::EsperaAjustada(r.ajustada, r.sinAjustar);
    EXPECT_EQ(r.nReactivos + r.nProductos, 3 + (r.s[3].coef != 0)) << fila;
    for (const Sustancia& s : r.s) {
      if (s.coef != 0) { EXPECT_NEAR(s.masaMolar, MasaMolar(s.formula), std::max(0.005 * s.masaMolar, 0.05)) << s.formula; }
      // No hydroxide that barely dissolves stands as a solution.
      EXPECT_FALSE(s.fase == "ac" && (s.formula == "Ca(OH)_2" || s.formula == "Al(OH)_3")) << s.formula;
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
  for (const auto& [c, a, f] : {std::tuple{10, 31, "Cu(OH)_2"}, {1, 11, "Na_2SO_4"}, {3, 39, "Al_2O_3"},
                                {16, 31, "H_2O"}, {4, 23, "Pb_2P_2O_7"}})
    EXPECT_EQ(FormulaIonica(CationDeSorteo(c), AnionDeSorteo(a)).formula, f);
  EXPECT_NEAR(FormulaIonica(CationDeSorteo(3), AnionDeSorteo(11)).masaMolar, 342, 1e-9);
  for (int c1 = 1; c1 <= 16; ++c1)
    for (int c2 = 1; c2 <= 16; ++c2)
      for (int a1 = 1; a1 <= 55; a1 += 3)
        for (int a2 = 2; a2 <= 55; a2 += 4) {
          const DobleCambio d =
              AjustaDobleCambio(CationDeSorteo(c1), AnionDeSorteo(a1), CationDeSorteo(c2), AnionDeSorteo(a2));
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

// A problem on one reaction as a student reads it: the reaction by its
// equation, the molar masses listed, the conditions, and each amount given.
struct Leido {
  std::string st, so;
  ReaccionETQ r;
  std::map<std::string, double> masas;
  double T = NAN, P = NAN, pureza = 100, rendimiento = NAN;
  struct Cantidad {
    int k;           // the substance
    double moles;
    std::size_t at;  // where its name stands
  };
  std::vector<Cantidad> dadas;

  std::string Nombre(int k) const { return test::Texto(r.s[k].nombre); }
  double M(int k) const { return masas.at(std::string(r.s[k].formula)); }
};

Leido Lee(const std::string& st, const std::string& so) {
  Leido l{st, so};
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
    if (x.coef != 0) { EXPECT_NEAR(l.masas[std::string(x.formula)], MasaMolar(x.formula), 0.5) << x.formula; }
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
  static const std::regex cantidad(
      R"((\d[\d_ ]*(?:&\.\d+)?)& (g|mol|L|mL) of (a (\d+(?:&\.\d+)?)& mol/L solution of )?$)");
  for (int k : orden)
    for (std::size_t at = resto.find(l.Nombre(k)); at != std::string::npos; at = resto.find(l.Nombre(k), at + 1)) {
      const std::string antes = resto.substr(0, at);
      if (!std::regex_search(antes, m, cantidad)) continue;
      const double x = test::Numeros(m[1].str())[0];
      const double n = m[2] == "g" ? x / l.M(k) : m[2] == "mol" ? x : m[2] == "L" ? l.P * x / R / l.T
                                                                                 : x / 1000 * test::Numeros(m[4])[0];
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
    const auto es = [&](const std::string& a, const std::string& b) { return q == a + x + b; };
    if (es("the mass of ", " formed.") || es("the mass of ", " that is needed.")) return n(j) * l.M(j);
    if (es("the mass of the impure ", " that is needed.")) return n(j) * l.M(j) * 100 / l.pureza;
    if (es("the amount of ", " formed, in moles.") || es("the amount of ", " that is needed, in moles.")) return n(j);
    if (q.starts_with("the volume of " + x + " formed, measured") ||
        q.starts_with("the volume of " + x + " that is needed, measured"))
      return n(j) * R * l.T / l.P;
    if (es("the volume of the ", " solution that is needed.")) {
      const std::size_t at = l.st.find("& mol/L solution of " + x);
      EXPECT_NE(at, std::string::npos) << q;
      return n(j) / test::Numeros(l.st.substr(l.st.rfind(' ', at), at - l.st.rfind(' ', at)))[0] * 1000;
    }
  }
  ADD_FAILURE() << "a question not understood: " << q;
  return NAN;
}

// Generators 1 and 6 (every amount from the one given), 2 (the products as the
// yield gives them, or the yield from what was obtained) and 3 (the reactant
// that runs out first sets the product).
void Cantidades(const Leido& l, int gen, std::set<int>& filas, int& rendimientos) {
  ASSERT_FALSE(l.dadas.empty());
  const auto coef = [&](int j) { return std::fabs(l.r.s[j].coef); };
  const double pura = l.st.find("a sample of") != std::string::npos ? l.pureza / 100 : 1;
  double xi = l.dadas[0].moles * pura / coef(l.dadas[0].k), y = 100;
  std::vector<std::string> q = {Tras(l.st, "a)&-B "), Tras(l.st, "b)&-B ")};
  std::vector<double> esperadas;
  std::string so = l.so;
  if (gen == 1 || gen == 6) {
    ASSERT_EQ(l.dadas.size(), 1u);
    filas.insert(gen * 100 + l.r.fila);
    if (gen == 6) { EXPECT_TRUE(l.st.find("& g of") != std::string::npos || l.st.find("& mol of") != std::string::npos); }
  } else if (gen == 2) {
    ASSERT_EQ(l.dadas[0].k, 0);
    y = l.rendimiento;
    if (std::isnan(y)) {
      ASSERT_EQ(l.dadas.size(), 2u);
      esperadas.push_back(y = l.dadas[1].moles / (xi * coef(l.dadas[1].k)) * 100);
      ++rendimientos;
    } else {
      EXPECT_TRUE(y >= 30 && y <= 85) << y;
    }
  } else {
    ASSERT_EQ(l.dadas.size(), 2u);
    ASSERT_EQ(l.r.nReactivos, 2);
    std::array<double, 2> avance{};
    for (const Leido::Cantidad& d : l.dadas) avance[d.k] = d.moles / coef(d.k);
    const int L = avance[0] < avance[1] ? 0 : 1;
    EXPECT_GT(avance[1 - L] / avance[L], 1.2) << "one reactant clearly in excess";
    EXPECT_TRUE(so.starts_with("&SP=10:&+Ba)&-B " + std::string(l.r.s[L].formula) + ", " + l.Nombre(L) + ","));
    xi = avance[L];
    q = {Tras(l.st, "b)&-B& ")};
    so = so.substr(so.find("b)"));
  }
  const auto moles = [&](int j) { return xi * coef(j) * (l.r.s[j].coef > 0 ? y / 100 : 1); };
  for (const std::string& p : q)
    if (!p.empty() && p != "the yield of the reaction.") esperadas.push_back(Pide(l, p, moles));
  const std::vector<test::Mostrado> dadas = test::Respuestas(so);
  ASSERT_EQ(dadas.size(), esperadas.size()) << so;
  for (std::size_t j = 0; j < dadas.size(); ++j)  // the yield to the whole percent
    test::EsperaCerca(dadas[j], esperadas[j],
                      gen == 2 && j == 0 && std::isnan(l.rendimiento) ? 0.5 : 5.01e-4 * std::fabs(esperadas[j]));
}

TEST(Stoichiometry, ListsOfEquationsToBalance) {
  for (const auto& [items, lineas] : {std::pair{1, 2}, {8, 8}, {26, 26}, {99, 26}})
    for (uint64_t semilla = 1; semilla <= 20; ++semilla) {
      const auto [st, so] = Genera(5, int(semilla), items, semilla);
      ASSERT_TRUE(st.starts_with(test::Texto("AjustaReacciones") + ":&LF")) << st;
      std::vector<std::string> l[2];
      for (int k = 0; k < 2; ++k) {
        const std::string& t = k ? so : st;
        for (std::size_t at = t.find(")&-B  "); at != std::string::npos; at = t.find(")&-B  ", at + 1))
          l[k].push_back(t.substr(at + 6, t.find("&LF", at) - at - 6));
        ASSERT_EQ(l[k].size(), std::size_t(lineas)) << t;
      }
      EXPECT_EQ(std::set<std::string>(l[1].begin(), l[1].end()).size(), l[1].size()) << "no equation twice";
      for (int k = 0; k < lineas; ++k) test::EsperaAjustada(l[1][k], l[0][k]);
      EXPECT_NE(st.find("&SP=10:&+B" + std::string(1, char('a' + lineas - 1)) + ")"), std::string::npos);
    }
}

// Generator 4: every amount from the mass of the first reactant, and a reaction
// that happens in water by the rules of a textbook's solubility table.
void DobleCambio(const std::string& st, const std::string& so, std::set<std::string>& vistas) {
  static const std::set<std::string> nunca = {"CuI_2", "FeI_3", "Fe_2S_3", "Al_2S_3", "Cr_2S_3", "MgS", "CaS", "AgOH",
      "CuOH", "Al_2(CO_3)_3", "Fe_2(CO_3)_3", "Cr_2(CO_3)_3", "CuCO_3", "Cu_2SO_4", "CuNO_3"},
      resistenAcido = {"AgCl", "AgBr", "AgI", "CuCl", "CuBr", "CuI", "PbI_2", "PbSO_4", "CuS", "PbS", "CdS", "Ag_2S",
                       "Cu_2S"},
      fluoruros = {"CaF_2", "MgF_2", "PbF_2", "Li_3PO_4"},
      fuertes = {"HCl", "HBr", "HI", "HNO_3", "H_2SO_4", "HClO_3", "HClO_4"};
  static const std::regex insoluble(
      R"(^(?!(Na|K|Li))[A-Z][a-z]?(_\d)?(\(OH\)_\d|OH|\(?CO_3|\(?PO_4|\(?P_2O_7|S)(\)?_\d)?$)");
  std::smatch m;
  ASSERT_TRUE(std::regex_search(st, m, std::regex(R"(^(\d+)& g of (\S+) react.*?of (\S+)\.&LF)")));
  const std::string ecuacion = Tras(so, "a)&-B& ");
  vistas.insert(ecuacion);
  test::EsperaAjustada(ecuacion);
  const std::size_t f = ecuacion.find("&ars");
  std::vector<std::string> x = test::Formulas(ecuacion.substr(0, f));
  for (const std::string& y : test::Formulas(ecuacion.substr(f + 4))) x.push_back(y);
  ASSERT_EQ(x.size(), 4u);
  EXPECT_TRUE(x[0] == m[2] && x[1] == m[3]);
  EXPECT_EQ(Tras(st, "c)&-B "), "the mass of " + x[2] + " and the amount in moles of " + x[3] + " formed.");
  std::map<std::string, double> M = Masas(st);
  double c[4];
  for (int k = 0; k < 4; ++k) {
    EXPECT_NEAR(M[x[k]], MasaMolar(x[k]), 0.6) << x[k];
    EXPECT_EQ(nunca.count(x[k]), 0u) << x[k];
    c[k] = test::Coeficiente(ecuacion, x[k]);
  }
  const double n = std::stod(m[1]) / M[x[0]] / c[0];
  const std::vector<test::Mostrado> dadas = test::Respuestas(so.substr(so.find("b)")));
  ASSERT_EQ(dadas.size(), 4u);
  const double esperadas[4] = {n * c[1] * M[x[1]], n * c[1], n * c[2] * M[x[2]], n * c[3]};
  for (int k = 0; k < 4; ++k) test::EsperaCerca(dadas[k], esperadas[k]);
  EXPECT_TRUE(x[0] != "H_2O" && x[1] != "H_2O" && x[3] != "H_2O");
  const bool acido = (x[2][0] == 'H' && x[2] != "H_2O") || x[3][0] == 'H';
  const bool gas = (x[2] == "H_2S" || x[2] == "H_2CO_3" || x[3] == "H_2S" || x[3] == "H_2CO_3") &&
                   (fuertes.count(x[0]) || fuertes.count(x[1]));
  const auto precipita = [&](const std::string& c) {
    return resistenAcido.count(c) || (!acido && (std::regex_match(c, insoluble) || fluoruros.count(c)));
  };
  EXPECT_TRUE(x[2] == "H_2O" || gas || precipita(x[2]) || precipita(x[3])) << "nothing drives " << ecuacion;
}

// Every generator, every variant, 200 seeds: whole problems only; and the first seeds of each
// variant of a generator with a checker worked again by it.
TEST(Stoichiometry, EveryVariantMakesWholeAndRightProblems) {
  const int kVariantes[7] = {0, 12, 8, 4, 12, 0, 12}, kSemillas[7] = {0, 25, 40, 40, 25, 0, 25};
  std::set<int> filas;
  std::set<std::string> vistas;
  int rendimientos = 0;
  for (int gen = 1; gen <= 6; ++gen)
    for (int v = 0; v < 12; ++v)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        const auto [st, so] = Genera(gen, v, 8, semilla * 7919 + v);
        ASSERT_TRUE(st.size() > 40 && so.size() > 10 && st.ends_with("&LF") && so.ends_with("&LF")) << st << so;
        ASSERT_FALSE(std::regex_search(st + so, std::regex("%[A-Za-z0-9_]+%|<Error|nan|inf|-\\d"))) << st << so;
        if (v >= kVariantes[gen] || semilla > uint64_t(kSemillas[gen])) continue;
        SCOPED_TRACE(st + "\n" + so);
        gen == 4 ? DobleCambio(st, so, vistas) : Cantidades(Lee(st, so), gen, filas, rendimientos);
      }
  EXPECT_GE(filas.size(), 25u) << "most reactions of the table come up";
  EXPECT_GT(rendimientos, 20);
  EXPECT_GT(vistas.size(), 120u) << "double exchanges";
}

}  // namespace
}  // namespace ss::mod::etq
