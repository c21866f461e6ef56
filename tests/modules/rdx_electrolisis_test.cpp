// Electrolysis problems read as a student reads them: the current, time,
// masses, gas conditions and molar masses the statement shows, the salt's
// formula for the charge of its metal, and every answer worked again by
// Faraday's law from those numbers alone. The electrode reactions of the
// solutions are balanced in atoms and charge.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "tests/modules/dis_comun.h"
#include "tests/modules/atomos.h"

namespace ss::mod::rdx {
namespace {

constexpr double F = 96485, R = 0.082057;

test::Problema Genera(int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + seqB));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_RDX", "008000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  return p;
}

// A salt's formula: its metal, the charge the anions leave on each metal
// atom, the metal atoms per formula, and the gas its anode gives off.
struct Sal {
  std::string metal, gas;
  double z = 0, atomos = 0, electronesGas = 0;
};
Sal LeeSal(const std::string& formula) {
  Sal s;
  std::map<std::string, int> n;
  for (const auto& [e, k] : test::Formula(formula)) n[e] = k;
  for (const auto& [e, k] : n)
    if (e != "Cl" && e != "S" && e != "N" && e != "O") s.metal = e, s.atomos = k;
  const double aniones = n["Cl"] + 2 * n["S"] + n["N"] + (n["S"] + n["N"] ? 0 : 2 * n["O"]);
  s.z = aniones / s.atomos;
  s.gas = n["Cl"] ? "Cl_2" : "O_2", s.electronesGas = n["Cl"] ? 2 : 4;
  return s;
}

// Atomic masses of the metals and the oxidation states their ions take in water.
const std::map<std::string, std::pair<double, std::set<int>>> kMetales = {
    {"Ag", {107.87, {1}}}, {"Zn", {65.38, {2}}},  {"Cd", {112.41, {2}}},     {"Au", {196.97, {1, 3}}},
    {"Ni", {58.69, {2}}},  {"Cu", {63.55, {1, 2}}}, {"Fe", {55.85, {2, 3}}}, {"Cr", {52.00, {2, 3, 6}}}};

void Comprueba(int forma, const test::Problema& p) {
  const test::Datos d(p.st);
  const double I = d.Tiene("A") ? d.En("A") : d.En("mA") / 1000, min = d.En(test::Texto("Minutos")), s = min * 60;
  const double m = d.Tiene("g") ? d.En("g") : d.En("mg") / 1000, T = d.En("\xB0" "C") + 273.15, P = d.En("atm");
  std::map<std::string, double> M = test::Masas(p.st);
  const std::vector<std::string> f = test::FormulasEntreParentesis(p.st);
  const Sal sal = f.empty() ? Sal{} : LeeSal(f[0]);
  for (const auto& [e, x] : M) EXPECT_NEAR(x, kMetales.at(e).first, 0.05) << e;
  EXPECT_TRUE(std::isnan(I) || (I >= 0.5 && I <= 9.5)) << I;
  if (!std::isnan(min)) {  // one to ten hours, from 70 minutes up also as hours and minutes
    EXPECT_TRUE(min >= 60 && min <= 600 && min == std::floor(min)) << min;
    EXPECT_EQ(d.Tiene("h"), min >= 70);
    EXPECT_EQ(d.Tiene("min"), min >= 70 && std::fmod(min, 60) != 0);
    EXPECT_TRUE(!d.Tiene("h") || 60 * d.En("h") + (d.Tiene("min") ? d.En("min") : 0) == min);
  }
  if (!std::isnan(P)) {  // a gas over a water solution, chlorine not liquefied
    EXPECT_TRUE(T >= 288.15 && T <= 363.15 && P >= 0.5 && P <= 4) << T << " K " << P << " atm";
    EXPECT_NE(p.st.find(test::Texto(sal.gas == "Cl_2" ? "N_Cl" : "N_O") + " (" + sal.gas + ")"), std::string::npos);
  }
  // The metal named where no salt is (forms 5 and 8), and an oxidation state it takes.
  std::string nombrado;
  for (const auto& [x, datos] : kMetales)
    if (p.st.find(" of " + test::Texto("N_" + x)) != std::string::npos) nombrado = x;
  auto estado = [&](double z) {
    EXPECT_NEAR(z, std::round(z), 0.01);
    EXPECT_TRUE(kMetales.at(nombrado).second.count(static_cast<int>(std::lround(z)))) << z;
  };
  const double Qm = M.count(sal.metal) ? m * sal.z * F / M.at(sal.metal) : NAN, Qi = I * s;
  const bool mg = p.so.substr(0, p.so.find("&LF")).find(" mg") != std::string::npos;
  auto gas = [&](double Q) { return std::vector<double>{Q, Q / F / sal.electronesGas, Q / F / sal.electronesGas * R * T / P}; };
  auto tiempo = [&](double Q) { return std::vector<double>{Q, Q / I, Q / I / 60}; };  // in s and in min
  auto deposita = [&](const Sal& x, double Q) { return Q / F * M.at(x.metal) / x.z * (mg ? 1000 : 1); };
  std::vector<double> esperadas;
  switch (forma) {
    case 1: esperadas = {Qm, Qm / s}; break;
    case 3: esperadas = tiempo(Qm); break;
    case 4: esperadas = gas(Qi); break;
    case 11: esperadas = gas(Qm); break;
    case 7:
      EXPECT_NE(sal.metal, LeeSal(f.at(1)).metal);
      esperadas = {Qm, deposita(LeeSal(f[1]), Qm)};
      break;
    case 9: {
      const std::string envases = test::Texto("ELT_envases");
      esperadas = tiempo(Qm * d.En(envases.substr(0, envases.find(' '))));
      break;
    }
    case 6: {
      const double n = P * d.En("L") / (R * T);
      esperadas = tiempo(n * sal.electronesGas * F), esperadas.insert(esperadas.begin() + 1, n);
      break;
    }
    case 2: {
      std::smatch x;
      ASSERT_TRUE(std::regex_search(p.st, x, std::regex(R"(X\^(\d?)\^?\+ ions)")));
      const double Ma = m * (x[1].length() ? std::stod(x[1]) : 1) * F / Qi;
      esperadas = {Qi, Ma};
      const auto cerca = std::min_element(kMetales.begin(), kMetales.end(), [&](const auto& a, const auto& b) {
        return std::fabs(a.second.first - Ma) < std::fabs(b.second.first - Ma);
      });
      EXPECT_NE(p.so.find("(" + test::Texto("N_" + cerca->first) + ")"), std::string::npos) << "the metal found";
      break;
    }
    case 5: esperadas = {Qi, m * F / Qi}, estado(kMetales.at(nombrado).first / (m * F / Qi)); break;
    case 8: {
      const double z = Qi * M.at(nombrado) / (m * F);
      esperadas = {Qi, std::round(z), z}, estado(z);
      break;
    }
    default: {
      const double C0 = d.En("mol/L"), dep = deposita(sal, Qi) / (mg ? 1000 : 1);
      const double C = C0 - dep / M.at(sal.metal) / sal.atomos / (d.En("mL") / 1000);
      EXPECT_TRUE(C0 >= 0.05 && C0 <= 1 && C > 0.1 * C0 - 1e-9 && C < 0.9 * C0 + 1e-9) << C0 << " " << C;
      esperadas = {deposita(sal, Qi), C};
    }
  }
  const std::vector<test::Mostrado> dadas = test::Respuestas(p.so.substr(0, p.so.find("&LF")));
  ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
  for (std::size_t k = 0; k < dadas.size(); ++k) test::EsperaCerca(dadas[k], esperadas[k], 5.01e-4 * esperadas[k]);
  // The electrode reactions: balanced, the metal taking z electrons, the anode giving its gas.
  const std::string lineas = p.so.substr(p.so.find("&LF") + 3);
  static const std::regex reaccion(R"(: ([^;]+?&ars [^;]+?)(?:;|\.&LF))");
  int vistas = 0;
  for (std::sregex_iterator it(lineas.begin(), lineas.end(), reaccion), end; it != end; ++it, ++vistas) {
    const std::string e = (*it)[1];
    test::EsperaAjustada(e);
    if (vistas == 0 && !sal.metal.empty() && forma != 2 && forma != 8) {  // z electrons give the metal
      EXPECT_EQ(e.substr(e.find("&ars ") + 5, sal.metal.size() + 1), sal.metal + (sal.z == 6 ? " " : "")) << e;
      EXPECT_NE(e.find("+ " + (sal.z == 1 ? std::string() : std::to_string(int(sal.z))) + "e#"), std::string::npos) << e;
    }
    EXPECT_TRUE(vistas != 1 || forma == 7 || e.find(sal.gas) != std::string::npos) << e;
  }
  EXPECT_EQ(vistas, forma == 5 ? 0 : forma == 2 || forma == 8 ? 1 : 2) << lineas;
}

TEST(Electrolysis, EveryAnswerFollowsFromTheStatementByFaradaysLaw) {
  std::set<std::string> sales;
  for (int seqB = 0; seqB < 11; ++seqB)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const test::Problema p = Genera(seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      Comprueba(seqB % 11 + 1, p);
      for (const std::string& x : test::FormulasEntreParentesis(p.st)) sales.insert(x);
      if (HasFailure()) return;
    }
  EXPECT_EQ(sales.count("AuCl"), 0u) << "gold(I) chloride does not dissolve in water";
  EXPECT_EQ(sales.size(), 15u) << "the 13 salts that dissolve come up, and both anode gases";
}

TEST(Electrolysis, TheGasCouplesAreBalanced) {
  for (int fila = 1; fila <= 16; ++fila) test::EsperaAjustada(SemirreaccionGas(fila));
}

}  // namespace
}  // namespace ss::mod::rdx
