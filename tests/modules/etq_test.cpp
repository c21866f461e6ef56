// The stoichiometry module's equations, checked by an atom counter of the
// test's own: every reaction of the table, every template with every element
// its pools can put in, and every double exchange of the ion tables is
// balanced; the molar masses agree with the atomic masses.
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <numeric>
#include <set>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::etq {
namespace {

using Atomos = std::map<std::string, int>;
using test::Tras;

// The atoms of a formula in markup: "Al_2(SO_4)_3", "C_4H_1_0" (a subscript
// of two digits is written digit by digit), "(NH_4)_2SO_4".
Atomos Cuenta(std::string_view f, std::size_t& i) {
  Atomos a;
  auto numero = [&] {
    int n = 0;
    bool hay = false;
    while (i + 1 < f.size() && f[i] == '_' && std::isdigit(static_cast<unsigned char>(f[i + 1])))
      n = 10 * n + (f[i + 1] - '0'), i += 2, hay = true;
    return hay ? n : 1;
  };
  while (i < f.size() && f[i] != ')') {
    Atomos parte;
    if (f[i] == '(') {
      ++i;
      parte = Cuenta(f, i);
      ++i;  // ")"
    } else if (std::isupper(static_cast<unsigned char>(f[i]))) {
      std::string e(1, f[i++]);
      while (i < f.size() && std::islower(static_cast<unsigned char>(f[i]))) e += f[i++];
      parte[e] = 1;
    } else {
      ADD_FAILURE() << "unreadable formula " << f;
      return a;
    }
    const int n = numero();
    for (const auto& [e, k] : parte) a[e] += k * n;
  }
  return a;
}
Atomos Cuenta(std::string_view f) {
  std::size_t i = 0;
  Atomos a = Cuenta(f, i);
  EXPECT_EQ(i, f.size()) << f;
  return a;
}

// The atoms of one side: "2C_4H_1_0  +  13O_2", each coefficient times its formula.
Atomos Lado(std::string_view lado, std::vector<std::string>* formulas = nullptr) {
  Atomos a;
  while (!lado.empty()) {
    const std::size_t mas = lado.find(" + ");
    std::string_view t = Trim(lado.substr(0, mas));
    int n = 0;
    while (!t.empty() && std::isdigit(static_cast<unsigned char>(t[0]))) n = 10 * n + (t[0] - '0'), t.remove_prefix(1);
    for (const auto& [e, k] : Cuenta(t)) a[e] += k * (n ? n : 1);
    if (formulas) formulas->emplace_back(t);
    if (mas == std::string_view::npos) break;
    lado.remove_prefix(mas + 3);
  }
  return a;
}

// A balanced equation, and its stripped form: the same formulas, no coefficients.
void Ajustada(const std::string& ajustada, const std::string& sinAjustar) {
  const std::size_t f = ajustada.find("&ars");
  ASSERT_NE(f, std::string::npos) << ajustada;
  std::vector<std::string> formulas, sin;
  const Atomos izquierda = Lado(ajustada.substr(0, f), &formulas);
  EXPECT_EQ(izquierda, Lado(ajustada.substr(f + 4), &formulas)) << ajustada;
  const std::size_t g = sinAjustar.find("&ars");
  ASSERT_NE(g, std::string::npos) << sinAjustar;
  Lado(sinAjustar.substr(0, g), &sin), Lado(sinAjustar.substr(g + 4), &sin);
  EXPECT_EQ(formulas, sin) << sinAjustar;
  EXPECT_FALSE(std::isdigit(static_cast<unsigned char>(sinAjustar[0]))) << sinAjustar;
  for (std::size_t k = 0; k + 1 < sinAjustar.size(); ++k)
    EXPECT_FALSE(sinAjustar[k] == ' ' && std::isdigit(static_cast<unsigned char>(sinAjustar[k + 1]))) << sinAjustar;
}

double MasaMolar(std::string_view f) {
  static const std::map<std::string, double> kMasas = {
      {"H", 1.008},  {"C", 12.011}, {"N", 14.007}, {"O", 15.999}, {"Na", 22.990}, {"Al", 26.982},
      {"P", 30.974}, {"S", 32.06},  {"Cl", 35.45}, {"K", 39.098}, {"Ca", 40.078}, {"Zn", 65.38}, {"Li", 6.94}};
  double m = 0;
  for (const auto& [e, n] : Cuenta(f)) m += n * kMasas.at(e);
  return m;
}

TEST(Stoichiometry, EveryReactionOfTheTableIsBalancedWithRealMolarMasses) {
  for (int fila = 1; fila <= kReacciones; ++fila) {
    SCOPED_TRACE(fila);
    const ReaccionETQ r = Reaccion(fila);
    Ajustada(r.ajustada, r.sinAjustar);
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
      Ajustada(e.ajustada, e.sinAjustar);
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
  EXPECT_EQ(FormulaIonica(CationDeSorteo(4), AnionDeSorteo(23)).formula, "PbP_2O_7");
  EXPECT_NEAR(FormulaIonica(aluminio, AnionDeSorteo(11)).masaMolar, 342, 1e-9);
  for (int c1 = 1; c1 <= 16; ++c1)
    for (int c2 = 1; c2 <= 16; ++c2)
      for (int a1 = 1; a1 <= 55; a1 += 3)
        for (int a2 = 2; a2 <= 55; a2 += 4) {
          const Ion &x = CationDeSorteo(c1), &y = CationDeSorteo(c2), &p = AnionDeSorteo(a1), &q = AnionDeSorteo(a2);
          const DobleCambio d = AjustaDobleCambio(x, p, y, q);
          const std::size_t f = d.ecuacion.find("&ars");
          ASSERT_EQ(Lado(d.ecuacion.substr(0, f)), Lado(d.ecuacion.substr(f + 4))) << d.ecuacion;
          EXPECT_EQ(std::gcd(std::gcd(d.coef[0], d.coef[1]), std::gcd(d.coef[2], d.coef[3])), 1) << d.ecuacion;
        }
}

// Generators 1 and 6 read as a student reads them: the equation names the
// reaction, the statement one amount of one substance; every answer follows
// from the coefficients and molar masses of the test's own atomic masses.
TEST(Stoichiometry, AmountsOfOneReactionFollowFromTheGivenOne) {
  constexpr double R = 0.082057;
  std::set<int> vistas;
  for (int gen : {1, 6})
    for (int v = 0; v < 12; ++v)
      for (uint64_t semilla = 1; semilla <= 25; ++semilla) {
        GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + v));
        std::string st, so;
        GeneraProblema(g, "ANEU_QUIM_ETQ", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(v, 4) + "000301", st, so);
        SCOPED_TRACE(st + "\n" + so);
        ASSERT_FALSE(std::regex_search(st + so, std::regex("%[A-Za-z0-9_]+%|<Error|nan|inf"))) << "a whole problem";
        // The reaction, by the equation shown.
        int fila = 0;
        for (int f = 1; f <= kReacciones && !fila; ++f) {
          const ReaccionETQ r = Reaccion(f);
          if (st.find(r.ajustada + ",") != std::string::npos || st.find(r.sinAjustar + ",") != std::string::npos ||
              st.find(r.sinAjustar + "    " + test::Texto("Ecua_No_Ajustada")) != std::string::npos)
            fila = f;
        }
        ASSERT_NE(fila, 0);
        const ReaccionETQ r = Reaccion(fila);
        const bool ajustada = st.find(r.ajustada) != std::string::npos;
        EXPECT_EQ(ajustada || r.ajustada == r.sinAjustar, st.find(test::Texto("Ecua_No_Ajustada")) == std::string::npos);
        auto nombre = [&](int k) { return test::Texto(r.s[k].nombre); };
        // The molar masses the statement lists, which agree with the atomic masses.
        std::map<std::string, double> masas;
        const std::string lista = Tras(st, test::Texto("Masas_molares") + ": ");
        static const std::regex par(R"(([A-Za-z0-9_()]+) = (\d+(?:&\.\d+)?))");
        for (std::sregex_iterator it(lista.begin(), lista.end(), par), end; it != end; ++it)
          masas[(*it)[1]] = test::Numeros((*it)[2].str())[0];
        auto MasaMolar = [&](std::string_view f) {
          EXPECT_NEAR(masas.at(std::string(f)), etq::MasaMolar(f), 0.5) << f;
          return masas.at(std::string(f));
        };
        auto sustancia = [&](const std::string& antes, const std::string& despues) {
          for (int k = 0; k < 4; ++k)
            if (r.s[k].coef != 0 && st.find(antes + nombre(k) + despues) != std::string::npos) return k;
          return -1;
        };
        const test::Datos d(st);
        const double T = d.En("\xB0" "C") + 273.15, P = d.En("atm");
        std::smatch m;
        const double pureza = std::regex_search(st, m, std::regex(R"((\d+)_ %)")) ? std::stod(m[1]) : 100;
        // The given amount, in moles of the substance it is of.
        double n = NAN;
        int k = -1;
        if (st.find("are to be made") != std::string::npos) {
          k = sustancia("g of ", " are to be made");
          n = d.En("g") / MasaMolar(r.s[k].formula);
        } else if ((k = sustancia("mL of a " + Tras(st, "mL of a ").substr(0, Tras(st, "mL of a ").find("solution of ") + 12), "")) >= 0) {
          n = d.En("mL") / 1000 * d.En("mol/L");
        } else if ((k = sustancia("g of ", "")) >= 0) {
          n = d.En("g") * pureza / 100 / MasaMolar(r.s[k].formula);
        } else if ((k = sustancia("mol of ", "")) >= 0) {
          n = d.En("mol");
        } else if ((k = sustancia("L of ", ", measured")) >= 0) {
          n = P * d.En("L") / R / T;
        }
        ASSERT_GE(k, 0);
        vistas.insert(gen * 100 + fila);
        auto moles = [&](int j) { return n / std::fabs(r.s[k].coef) * std::fabs(r.s[j].coef); };
        // The questions, in order, and what each asks.
        std::vector<double> esperadas;
        for (const char* letra : {"a)&-B ", "b)&-B "}) {
          const std::string q = test::Tras(st, letra);
          for (int j = 0; j < 4; ++j) {
            if (r.s[j].coef == 0) continue;
            const std::string x = nombre(j);
            const double M = MasaMolar(r.s[j].formula);
            const std::string solucion = "solution of " + x;
            if (q == "the mass of " + x + " formed." || q == "the mass of " + x + " that is needed.")
              esperadas.push_back(moles(j) * M);
            else if (q == "the mass of the impure " + x + " that is needed.")
              esperadas.push_back(moles(j) * M * 100 / pureza);
            else if (q == "the amount of " + x + " formed, in moles." || q == "the amount of " + x + " that is needed, in moles.")
              esperadas.push_back(moles(j));
            else if (q.starts_with("the volume of " + x + " formed, measured") || q.starts_with("the volume of " + x + " that is needed, measured"))
              esperadas.push_back(moles(j) * R * T / P);
            else if (q == "the volume of the " + x + " solution that is needed.") {
              const std::size_t at = st.find(" mol/L " + solucion);
              ASSERT_NE(at, std::string::npos) << "the molarity of " << x << " is given";
              esperadas.push_back(moles(j) / test::Numeros(st.substr(st.rfind(" a ", at), at - st.rfind(" a ", at))).back() * 1000);
            }
          }
        }
        const std::vector<test::Mostrado> dadas = test::Respuestas(so);
        ASSERT_EQ(esperadas.size(), 2u);
        ASSERT_EQ(dadas.size(), 2u);
        // Four significant figures, also where the zeros of a whole number are not shown as such.
        for (int j = 0; j < 2; ++j) test::EsperaCerca(dadas[j], esperadas[j], 5.01e-4 * std::fabs(esperadas[j]));
        // Real conditions: a gas stays a gas, water stays liquid for a solution.
        if (d.Tiene("atm")) {
          EXPECT_TRUE(P >= 0.5 && P <= 5) << P;
          EXPECT_TRUE(T >= 273.15 && T <= (r.AcReactivo ? 363.15 : 673.15)) << T;
        }
        if (gen == 6) EXPECT_TRUE(d.Tiene("g") || d.Tiene("mol"));
      }
  EXPECT_GE(vistas.size(), 25u) << "most reactions of the table come up";
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
      for (int k = 0; k < lineas; ++k) Ajustada(soluciones[k], enunciados[k]);
      EXPECT_NE(st.find("&SP=10:&+B" + std::string(1, static_cast<char>('a' + lineas - 1)) + ")"), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace ss::mod::etq
