// Electrolysis: every answer worked again by Faraday's law from the current, time, masses, gas conditions, molar
// masses and salt formula the statement shows; the electrode reactions balanced.
#include <set>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::rdx {
namespace {

constexpr double F = 96485, R = 0.082057;

// A salt's formula: its metal, the charge the anions leave on each metal atom,
// the metal atoms per formula, and the gas its anode gives off.
struct Sal {
  std::string metal, gas;
  double z = NAN, atomos = NAN, electronesGas = NAN;
};
Sal LeeSal(const std::string& formula) {
  Sal s;
  std::map<std::string, int> n;
  for (const auto& [e, k] : test::Formula(formula))
    if ((n[e] = k) && e != "Cl" && e != "S" && e != "N" && e != "O") s.metal = e, s.atomos = k;
  s.z = (n["Cl"] + 2 * n["S"] + n["N"] + (n["S"] + n["N"] ? 0 : 2 * n["O"])) / s.atomos;
  s.gas = n["Cl"] ? "Cl_2" : "O_2", s.electronesGas = n["Cl"] ? 2 : 4;
  return s;
}

// Atomic masses of the metals and the oxidation states their ions take in water.
const std::map<std::string, std::pair<double, std::set<int>>> kMetales = {
    {"Ag", {107.87, {1}}}, {"Zn", {65.38, {2}}},    {"Cd", {112.41, {2}}},   {"Au", {196.97, {1, 3}}},
    {"Ni", {58.69, {2}}},  {"Cu", {63.55, {1, 2}}}, {"Fe", {55.85, {2, 3}}}, {"Cr", {52.00, {2, 3, 6}}}};

void Comprueba(int forma, const test::Problema& p) {
  const test::Datos d(p.st);
  const double I = d.Tiene("A") ? d.En("A") : d.En("mA") / 1000, min = d.En(test::Texto("Minutos")), s = min * 60;
  const double m = d.Tiene("g") ? d.En("g") : d.En("mg") / 1000, T = d.En("\xB0" "C") + 273.15, P = d.En("atm");
  const std::map<std::string, double> M = test::Masas(p.st);
  const std::vector<std::string> f = test::FormulasEntreParentesis(p.st);
  const Sal sal = f.empty() ? Sal{} : LeeSal(f[0]), sal2 = f.size() > 1 ? LeeSal(f[1]) : Sal{};
  auto masa = [&](const std::string& e) { return M.count(e) ? M.at(e) : NAN; };
  for (const auto& [e, x] : M) EXPECT_NEAR(x, kMetales.count(e) ? kMetales.at(e).first : NAN, 0.05) << e;
  EXPECT_TRUE(std::isnan(I) || (I >= 0.5 && I <= 9.5)) << I;
  // Whole minutes, one to ten hours, from 70 up also as hours and minutes.
  EXPECT_TRUE(std::isnan(min) || (min >= 60 && min <= 600 && min == std::floor(min) && d.Tiene("h") == (min >= 70) &&
                                  (min < 70 || 60 * d.En("h") + (d.Tiene("min") ? d.En("min") : 0) == min))) << min;
  if (!std::isnan(P)) {  // a gas over a water solution, chlorine not liquefied
    EXPECT_TRUE(T >= 288.15 && T <= 363.15 && P >= 0.5 && P <= 4) << T << " K " << P << " atm";
    EXPECT_NE(p.st.find(test::Texto(sal.gas == "Cl_2" ? "N_Cl" : "N_O") + " (" + sal.gas + ")"), std::string::npos);
  }
  // The charge from the mass deposited or from current and time, and what a charge gives.
  const double Qm = m * sal.z * F / masa(sal.metal), Qi = I * s;
  const bool mg = p.so.substr(0, p.so.find("&LF")).find(" mg") != std::string::npos;
  auto gas = [&](double Q) { return std::vector<double>{Q, Q / F / sal.electronesGas, Q / F / sal.electronesGas * R * T / P}; };
  auto tiempo = [&](double Q) { return std::vector<double>{Q, Q / I, Q / I / 60}; };  // in s and in min
  auto deposita = [&](const Sal& x, double Q) { return Q / F * masa(x.metal) / x.z * (mg ? 1000 : 1); };
  // The charge of the ions of metal X, the containers plated, the charge of the gas collected, the strength left.
  std::smatch x;
  const double zX = std::regex_search(p.st, x, std::regex(R"(X\^(\d?)\^?\+ ions)")) ? std::max(1.0, std::stod("0" + x[1].str())) : NAN;
  const std::string envases = test::Texto("ELT_envases");
  const double piezas = d.En(envases.substr(0, envases.find(' '))), Qg = P * d.En("L") / (R * T) * sal.electronesGas * F;
  const double C0 = d.En("mol/L"), C = C0 - Qi / F / sal.z / sal.atomos / (d.En("mL") / 1000);
  // The metal named where no salt is (forms 5 and 8), and the oxidation state its mass gives.
  std::string nombre;
  for (const auto& [e, datos] : kMetales)
    if (p.st.find(" of " + test::Texto("N_" + e)) != std::string::npos) nombre = e;
  const double Mn = nombre.empty() ? NAN : forma == 5 ? kMetales.at(nombre).first : masa(nombre), z = Qi * Mn / (m * F);
  // By form: 1 charge and current, 2 atomic mass of X, 3 time, 4 gas, 5 equivalent mass, 6 time to collect a gas,
  // 7 cells in series, 8 oxidation number, 9 plating a batch, 10 strength left, 11 gas from a mass.
  const std::vector<double> esperadas = std::vector<std::vector<double>>{
      {}, {Qm, Qm / s}, {Qi, m * zX * F / Qi}, tiempo(Qm), gas(Qi), {Qi, m * F / Qi},
      {Qg, Qg / F / sal.electronesGas, Qg / I, Qg / I / 60}, {Qm, deposita(sal2, Qm)}, {Qi, std::round(z), z},
      tiempo(Qm * piezas), {deposita(sal, Qi), C}, gas(Qm)}[forma];
  EXPECT_TRUE((forma != 5 && forma != 8) || (std::fabs(z - std::round(z)) < 0.01 && !nombre.empty() &&
                                               kMetales.at(nombre).second.count(static_cast<int>(std::lround(z))))) << z;
  std::string cerca = "Ag";  // form 2 names the metal of nearest atomic mass
  for (const auto& [e, v] : kMetales)
    if (std::fabs(v.first - esperadas[1]) < std::fabs(kMetales.at(cerca).first - esperadas[1])) cerca = e;
  EXPECT_TRUE(forma != 2 || p.so.find("(" + test::Texto("N_" + cerca) + ")") != std::string::npos) << cerca;
  EXPECT_TRUE(forma != 7 || sal.metal != sal2.metal);
  EXPECT_TRUE(forma != 10 || (C0 >= 0.05 && C0 <= 1 && C > 0.1 * C0 - 1e-9 && C < 0.9 * C0 + 1e-9)) << C0 << " " << C;
  const std::vector<test::Mostrado> dadas = test::Respuestas(p.so.substr(0, p.so.find("&LF")));
  ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
  for (std::size_t k = 0; k < dadas.size(); ++k) test::EsperaCerca(dadas[k], esperadas[k], 5.01e-4 * esperadas[k]);
  // The electrode reactions: balanced, the metal taking z electrons, the anode giving its gas.
  const std::string lineas = p.so.substr(p.so.find("&LF") + 3);
  static const std::regex reaccion(R"(: ([^;]+?&ars [^;]+?)(?:;|\.&LF))");
  int k = 0;
  for (std::sregex_iterator it(lineas.begin(), lineas.end(), reaccion), end; it != end; ++it, ++k) {
    const std::string e = (*it)[1];
    test::EsperaAjustada(e);
    if (k == 0 && !sal.metal.empty() && forma != 2 && forma != 8) {
      EXPECT_TRUE(test::Coeficiente(e.substr(e.find("&ars")), sal.metal) == 1 &&
                  test::Coeficiente(e.substr(0, e.find("&ars")), "e#SPB(L-#T)( #SPB)") == sal.z) << e;
    }
    EXPECT_TRUE(k != 1 || forma == 7 || e.find(sal.gas) != std::string::npos) << e;
  }
  EXPECT_EQ(k, forma == 5 ? 0 : forma == 2 || forma == 8 ? 1 : 2) << lineas;
}

TEST(Electrolysis, EveryAnswerFollowsFromTheStatementByFaradaysLaw) {
  std::set<std::string> sales;
  for (int seqB = 0; seqB < 11; ++seqB)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + seqB));
      test::Problema p;
      GeneraProblema(g, "ANEU_QUIM_RDX", "008000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
      SCOPED_TRACE(p.st + "\n" + p.so);
      Comprueba(seqB + 1, p);
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
