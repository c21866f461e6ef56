// The gas-equilibrium module read as a student reads it: the equation shown
// (its species, coefficients and phases parsed from the text), the amounts,
// pressures, volumes, temperatures and constants the statement gives, and
// every answer worked again from those alone, by closed formulas or by a
// bisection of the test's own on the extent of reaction. The data must be
// real: the constant found from a statement is the table's at that
// temperature, and no gas is shown above the vapour pressure of its liquid.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <regex>
#include <set>

#include "modules/ANEU_QUIM_EGA/ega.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::ega {
namespace {

constexpr double R = 0.082057;
const std::string kNum = R"((\d+(?:&\.\d+)?(?:&E-?\d+)?))";

double Num(const std::string& t) { return test::Numeros(t).at(0); }

// A number as shown, with half a unit of its last digit; answers have four
// significant figures, also where the zeros of a whole number do not show them.
test::Mostrado Mostrado(const std::string& t) {
  std::smatch m;
  std::regex_match(t, m, std::regex(R"(\d+(?:&\.(\d+))?(?:&E(-?\d+))?)"));
  const double v = Num(t), cuarta = v > 0 ? 0.5 * std::pow(10.0, std::floor(std::log10(v)) - 3) : 0;
  return {v, std::max(cuarta, 0.5 * std::pow(10.0, (m[2].matched ? std::stod(m[2]) : 0) - m[1].length()))};
}

struct Problema {
  std::string st, so;
};

Problema Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + static_cast<uint64_t>(seqB)));
  Problema p;
  GeneraProblema(g, "ANEU_QUIM_EGA", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  return p;
}

// ---- The equation, read from the text ----------------------------------

struct Termino {
  std::string f;  // formula without its phase mark
  double nu;      // negative for a reactant
  bool solido;
};
struct Ecuacion {
  std::string texto;
  std::vector<Termino> t;
  double dn = 0;  // gases only
  bool Gas(const std::string& f) const {
    for (const Termino& x : t)
      if (x.f == f && !x.solido) return true;
    return false;
  }
  const Termino& De(const std::string& f) const {  // a gas before a solid of the same formula
    for (const Termino& x : t)
      if (x.f == f && !x.solido) return x;
    for (const Termino& x : t)
      if (x.f == f) return x;
    ADD_FAILURE() << f << " is not in " << texto;
    return t.at(0);
  }
};

Ecuacion LeeEcuacion(const std::string& st) {
  static const std::string especie = R"(\d*[A-Z][A-Za-z0-9_]*?_\(_[gs]_\))";
  static const std::regex ec(especie + "(?:  (?:\\+|&Q)  " + especie + ")+");
  std::smatch m;
  Ecuacion e;
  if (!std::regex_search(st, m, ec)) {
    ADD_FAILURE() << "no equation in " << st;
    return e;
  }
  e.texto = m[0];
  const std::size_t q = e.texto.find("  &Q  ");
  for (int lado = 0; lado < 2; ++lado) {
    std::string s = lado == 0 ? e.texto.substr(0, q) : e.texto.substr(q + 6);
    for (std::size_t a = 0; a != std::string::npos;) {
      const std::size_t b = s.find("  +  ", a);
      std::string x = s.substr(a, b == std::string::npos ? std::string::npos : b - a);
      a = b == std::string::npos ? b : b + 5;
      std::size_t d = 0;
      while (std::isdigit(static_cast<unsigned char>(x[d]))) ++d;
      const double n = d ? std::stod(x.substr(0, d)) : 1;
      const bool solido = x.ends_with("_(_s_)");
      e.t.push_back({x.substr(d, x.size() - d - 6), lado == 0 ? -n : n, solido});
      if (!solido) e.dn += lado == 0 ? -n : n;
    }
  }
  return e;
}

// Atoms balanced, as the atom counter reads an equation.
void EsperaAjustada(std::string ec) {
  for (const char* marca : {"_(_g_)", "_(_s_)"}) ReplaceAll(ec, marca, "");
  ReplaceAll(ec, "  &Q  ", " = ");
  ReplaceAll(ec, "  +  ", " + ");
  test::EsperaAjustada(ec);
}

// The row of the table with these species, and its constant at tC.
double KTabla(const Ecuacion& e, double tC) {
  for (int n = 1; n <= kFilas; ++n) {
    const Reaccion r = Fila(n);
    int iguales = 0, opuestos = 0, especies = 0;
    for (const Especie& s : r.s) {
      if (s.coef == 0) continue;
      ++especies;
      for (const Termino& x : e.t)
        if (x.f == FormulaSimple(s) && x.solido == s.Solido()) iguales += x.nu == s.coef, opuestos += x.nu == -s.coef;
    }
    if (especies != static_cast<int>(e.t.size()) || (iguales != especies && opuestos != especies)) continue;
    EXPECT_TRUE(tC == r.T1 || tC == r.T2) << e.texto << " at " << tC;
    const double K = tC == r.T1 ? r.K1 : r.K2;
    return iguales == especies ? K : 1 / K;
  }
  ADD_FAILURE() << "no row for " << e.texto;
  return NAN;
}

// Vapour pressures, atm, of the species that condense near the temperatures
// of the table (at the lowest temperature each is used at): a gas above them
// would be a liquid or a solid.
double PresionVapor(const std::string& f, double tC) {
  static const std::map<std::string, std::vector<std::pair<double, double>>> kVapor = {
      {"Br_2", {{25, 0.28}}},      {"I_2", {{25, 4.1e-4}, {350, 18}}}, {"SO_2Cl_2", {{25, 0.19}}},
      {"ICl", {{25, 0.04}}},       {"N_2O_4", {{25, 1.2}}},            {"NO_2", {{25, 1.2}}},
      {"NOBr", {{25, 1.4}}},       {"SO_2", {{25, 3.9}}},              {"Cl_2", {{25, 7.7}}},
      {"NOCl", {{25, 3.3}}},       {"NO_2Cl", {{25, 4.8}}},            {"SbCl_3", {{248, 1.7}}},
      {"SbCl_5", {{248, 18}}},     {"PCl_5", {{250, 10}}},             {"CH_3OH", {{220, 55}}}};
  const auto it = kVapor.find(f);
  if (it != kVapor.end())
    for (const auto& [t, p] : it->second)
      if (tC <= t) return p;
  return 100;  // far above the critical point: the ideal-gas range of the problems
}
void EsperaGas(const std::string& f, double tC, double p) {
  EXPECT_LE(p, PresionVapor(f, tC) * 1.001) << f << " would condense at " << tC << " degC and " << p << " atm";
}

// ---- Reading statements and answers -------------------------------------

double Tras(const std::string& t, const std::string& antes, const std::string& despues = "") {
  std::smatch m;
  if (!std::regex_search(t, m, std::regex(antes + kNum + despues))) return NAN;
  return Num(m[1]);
}

// "formula -> value" of every item of a kind: "&+IP&-I(NO_2)& =& 0&.5& atm",
// or "3&.5& mol& NO_2" (the value first).
const std::string kP = R"(&\+IP&-I\((.+?)\)& =& )" + kNum + "& atm";
const std::string kC = R"(\[(.+?)\](?:_0)?& =& )" + kNum + "& mol/L";
const std::string kN = R"(&\+In&-I\((.+?)\)& =& )" + kNum + "& mol";
const std::string kMoles = kNum + R"(& mol& ([A-Za-z0-9_]*[A-Za-z0-9](?:_\(_s_\))?))";
std::map<std::string, double> Items(const std::string& t, const std::string& patron) {
  std::map<std::string, double> out;
  const std::regex re(patron);
  const int f = patron == kMoles ? 2 : 1;
  for (std::sregex_iterator it(t.begin(), t.end(), re), fin; it != fin; ++it) out[(*it)[f]] = Num((*it)[3 - f]);
  return out;
}

// The answers by letter: "a" -> the text of a).
std::map<char, std::string> Respuestas(const std::string& so) {
  std::map<char, std::string> out;
  const std::regex re(R"(&SP=10:&\+B([a-e])\)&-B (.*?)&LF)");
  for (std::sregex_iterator it(so.begin(), so.end(), re), fin; it != fin; ++it) out[(*it)[1].str()[0]] = (*it)[2];
  return out;
}

// Each item shown against its recomputed value: within half a unit of the
// last digit, plus `rel` of the value where the answer comes from a solver
// that stops when K is met to 1 part in 10^4.
void Compara(const std::string& texto, const std::string& patron, const std::map<std::string, double>& esperado,
             double rel = 0) {
  const std::regex re(patron);
  std::set<std::string> vistos;
  for (std::sregex_iterator it(texto.begin(), texto.end(), re), fin; it != fin; ++it) {
    const std::string f = (*it)[1];
    ASSERT_TRUE(esperado.count(f)) << f << " in " << texto;
    vistos.insert(f);
    const test::Mostrado m = Mostrado((*it)[2]);
    test::EsperaCerca(m, esperado.at(f), m.media * 1.01 + rel * std::fabs(esperado.at(f)));
  }
  EXPECT_EQ(vistos.size(), esperado.size()) << texto;
}
void Compara(const std::string& texto, const std::string& patron, double esperado, double rel = 0) {
  Compara(texto, "()" + patron, std::map<std::string, double>{{"", esperado}}, rel);
}
const std::string kKcR = "&\\+IK&-I_C& =& " + kNum, kKpR = "&\\+IK&-I_P& =& " + kNum;
const std::string kAlfa = "&alfa& =& " + kNum + "_ %";

std::string UnidadKc(double dn) {
  const char* u[] = {"& L^2/mol^2", "& L/mol", "", "& mol/L", "& mol^2/L^2"};
  return u[static_cast<int>(dn) + 2];
}
std::string UnidadKp(double dn) {
  const char* u[] = {"& atm^-^2", "& atm^-^1", "", "& atm", "& atm^2"};
  return u[static_cast<int>(dn) + 2];
}

double Cociente(const Ecuacion& e, const std::map<std::string, double>& x) {
  double q = 1;
  for (const Termino& t : e.t)
    if (!t.solido) q *= std::pow(x.at(t.f), t.nu);
  return q;
}

// The extent at which the quotient of the gases x0 + nu ξ is K, by bisection
// on ln Q, which rises with ξ. With `P`, the gases are held at that total
// pressure and x0 are moles; otherwise x0 are concentrations or pressures.
std::map<std::string, double> Equilibrio(const Ecuacion& e, const std::map<std::string, double>& x0, double K,
                                         double P = 0) {
  double lo = -1e300, hi = 1e300;
  for (const Termino& t : e.t) {
    if (t.solido) continue;
    const double x = x0.count(t.f) ? x0.at(t.f) : 0;
    (t.nu < 0 ? hi : lo) = t.nu < 0 ? std::min(hi, x / -t.nu) : std::max(lo, -x / t.nu);
  }
  auto estado = [&](double xi) {
    std::map<std::string, double> x;
    double total = 0;
    for (const Termino& t : e.t)
      if (!t.solido) total += x[t.f] = (x0.count(t.f) ? x0.at(t.f) : 0) + t.nu * xi;
    if (P > 0)
      for (auto& [f, v] : x) v *= P / total;
    return x;
  };
  lo = std::max(lo, -1e6), hi = std::min(hi, 1e6);
  for (int i = 0; i < 400; ++i) {
    const double m = (lo + hi) / 2;
    (std::log(Cociente(e, estado(m))) < std::log(K) ? lo : hi) = m;
  }
  return estado((lo + hi) / 2);
}

// ---- The table ----------------------------------------------------------

TEST(GasEquilibrium, EveryEquationOfTheTableIsBalancedBothWays) {
  for (int n = 1; n <= kFilas; ++n)
    for (const Reaccion& r : {Fila(n), Invertida(Fila(n))}) {
      const Ecuacion e = LeeEcuacion(ss::mod::ega::Ecuacion(r));
      EsperaAjustada(e.texto);
      EXPECT_EQ(e.dn, DeltaN(r)) << e.texto;
      // The constants hold every gas with its coefficient, and no solid.
      for (const Termino& t : e.t) {
        if (t.solido && e.Gas(t.f)) continue;  // I2(s) = I2(g): only the gas is written
        const int n = static_cast<int>(std::fabs(t.nu));
        const std::string exp = n == 1 ? "" : "#SPB(L" + std::to_string(n) + "#T)(#SPB)";
        EXPECT_EQ(ExpresionKc(r).find("[" + t.f + "]" + exp) != std::string::npos, !t.solido) << e.texto;
        EXPECT_EQ(ExpresionKp(r).find("&+IP&-I(" + t.f + ")" + exp) != std::string::npos, !t.solido) << e.texto;
      }
      EXPECT_DOUBLE_EQ(Invertida(Invertida(r)).K1, r.K1);
      EXPECT_DOUBLE_EQ(Invertida(r).K1 * r.K1, 1);
      EXPECT_EQ(Invertida(r).dH, -r.dH);
    }
}

// Reaction enthalpies against standard enthalpies of formation (kJ/mol,
// gases unless marked): the sign always, the value within 15 %.
TEST(GasEquilibrium, EnthalpiesAgreeWithFormationEnthalpies) {
  const std::map<std::string, double> hf = {
      {"NO_2", 33.18},     {"NO", 90.25},       {"O_2", 0},          {"N_2O_4", 9.16},    {"HI", 26.48},
      {"I_2", 62.44},      {"H_2", 0},          {"PCl_5", -374.9},   {"PCl_3", -287.0},   {"Cl_2", 0},
      {"N_2", 0},          {"CO_2", -393.51},   {"CO", -110.53},     {"H_2O", -241.82},   {"SO_3", -395.72},
      {"SO_2", -296.83},   {"NH_3", -46.11},    {"HCl", -92.31},     {"COCl_2", -218.8},  {"H_2S", -20.63},
      {"COS", -142.09},    {"SbCl_5", -394.3},  {"SbCl_3", -313.8},  {"CH_3OH", -200.66}, {"NOCl", 51.71},
      {"NO_2Cl", 12.6},    {"NOBr", 82.17},     {"Br_2", 30.91},     {"SO_2Cl_2", -364.0}, {"ICl", 17.78},
      {"C_(_s_)", 0},      {"CaCO_3_(_s_)", -1206.92}, {"CaO_(_s_)", -635.09}, {"I_2_(_s_)", 0}};
  for (int n = 1; n <= kFilas; ++n) {
    const Reaccion r = Fila(n);
    double dH = 0;
    for (const Especie& s : r.s)
      if (s.coef != 0) dH += s.coef * hf.at(std::string(s.formula));
    EXPECT_GT(dH * r.dH, 0) << "row " << n;
    EXPECT_NEAR(r.dH, dH, 0.15 * std::fabs(dH) + 1) << "row " << n;
  }
}

// ---- ResolverEquilibrio --------------------------------------------------

TEST(GasEquilibrium, ResolverEquilibrioMeetsKFromAnyMixture) {
  // Every reaction of the table, from mixtures with and without products
  // (which the solver first moves back to the reactant side), against the
  // test's own bisection.
  Aleatorio rnd(11);
  for (int n = 1; n <= kFilas; ++n)
    for (int k = 0; k < 12; ++k) {
      const Reaccion r = k % 2 ? Invertida(Fila(n)) : Fila(n);
      const Ecuacion e = LeeEcuacion(ss::mod::ega::Ecuacion(r));
      std::array<double, 4> c{}, C{};
      std::map<std::string, double> x0;
      for (int j = 0; j < 4; ++j) {
        if (!r.s[j].Gas()) continue;
        c[j] = r.s[j].coef;
        const bool presente = r.s[j].coef < 0 || k % 3 == 0 || rnd.Siguiente() > 0.5;
        C[j] = x0[std::string(r.s[j].formula)] = presente ? 0.05 + rnd.Siguiente() : 0;
      }
      const Solucion s = ResolverEquilibrio(r.K1, c[0], c[1], c[2], c[3], C[0], C[1], C[2], C[3]);
      if (s.error.size()) {  // only a quotient with nothing on either side has no equilibrium
        EXPECT_TRUE(std::all_of(C.begin(), C.end(), [](double x) { return x == 0; })) << s.error;
        continue;
      }
      const auto x = Equilibrio(e, x0, r.K1);
      for (int j = 0; j < 4; ++j)
        if (r.s[j].Gas()) {
          EXPECT_GT(s.C[j], 0);
          EXPECT_NEAR(s.C[j], x.at(std::string(r.s[j].formula)), 1.5e-4 * x.at(std::string(r.s[j].formula)))
              << e.texto << " K " << r.K1;
        }
      EXPECT_LT(s.pasadas, 40);
    }
}

TEST(GasEquilibrium, ResolverEquilibrioEdgeCases) {
  // No constant, or nothing on either side: the message, and no concentrations.
  Solucion s = ResolverEquilibrio(0, -1, 1, 0, 0, 1, 0, 0, 0);
  EXPECT_EQ(s.error, "Error: Keq <= 0");
  EXPECT_EQ(s.C, (std::array<double, 4>{}));
  s = ResolverEquilibrio(2, -1, 1, 0, 0, 0, 0, 0, 0);
  EXPECT_TRUE(s.error.starts_with("ERROR: Impossible reaction")) << s.error;
  EXPECT_EQ(s.C, (std::array<double, 4>{}));
  // K exactly 1: A = B halves the mixture, from either side.
  for (const auto& [a, b] : {std::pair{1.0, 0.0}, {0.0, 1.0}, {0.3, 0.7}}) {
    s = ResolverEquilibrio(1, -1, 1, 0, 0, a, b, 0, 0);
    EXPECT_TRUE(s.error.empty());
    EXPECT_NEAR(s.C[0], 0.5, 1e-4);
    EXPECT_NEAR(s.C[1], 0.5, 1e-4);
  }
  // Every reactant present and no product: PCl5 = PCl3 + Cl2 from 1 mol/L.
  s = ResolverEquilibrio(0.05, -1, 1, 1, 0, 1, 0, 0, 0);
  const double x = (-0.05 + std::sqrt(0.05 * 0.05 + 4 * 0.05)) / 2;
  EXPECT_NEAR(s.C[1], x, 1e-4 * x);
  EXPECT_NEAR(s.C[0], 1 - x, 1e-4);
  // No reactant in the quotient: the extent is bounded by 200. Q = (0.004 x)^0.004
  // reaches 0.999 at x = 194.7, but 0.9995 only at 220: the grid then closes in
  // on 200 and the search ends after its 300 passes with the last x.
  s = ResolverEquilibrio(0.999, 0.004, 0, 0, 0, 0, 0, 0, 0);
  EXPECT_NEAR(std::pow(s.C[0], 0.004), 0.999, 1e-4 * 0.999);
  EXPECT_LT(s.C[0], 0.79);
  EXPECT_LT(s.pasadas, 300);
  s = ResolverEquilibrio(0.9995, 0.004, 0, 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(s.pasadas, 300);
  EXPECT_NEAR(s.C[0], 0.8, 1e-6);
  // A solid takes coefficient 0: CaCO3(s) = CaO(s) + CO2 leaves [CO2] = K.
  s = ResolverEquilibrio(0.00284, 0, 0, 1, 0, 5, 0, 0, 0);
  EXPECT_NEAR(s.C[2], 0.00284, 0.00284e-4);
  EXPECT_EQ(s.C[0], 5);
}

// ---- Generator 1: the constants ------------------------------------------

std::string Expresion(const Ecuacion& e, bool presion) {
  std::string lados[2];
  for (const Termino& t : e.t) {
    if (t.solido) continue;
    const int n = static_cast<int>(std::fabs(t.nu));
    lados[t.nu > 0] += (presion ? "&+IP&-I(" + t.f + ")" : "[" + t.f + "]") +
                       (n == 1 ? "" : "#SPB(L" + std::to_string(n) + "#T)(#SPB)");
  }
  if (lados[0].empty()) return lados[1];
  return "#COC(" + (lados[1].empty() ? "1" : lados[1]) + "#N)(" + lados[0] + "#COC)";
}

void Constantes(int forma, const Problema& p) {
  const Ecuacion e = LeeEcuacion(p.st);
  EsperaAjustada(e.texto);
  const double tC = Tras(p.st, "", "& \xB0" "C"), RT = R * (tC + 273.15);
  const std::map<char, std::string> a = Respuestas(p.so);
  const std::string Kc = "&+IK&-I_C& =& ", Kp = "&+IK&-I_P& =& ";
  const bool pideKp = p.so.starts_with("&SP=10:" + Kp);
  auto valor = [&](const std::string& t, bool esKp, double v) {
    Compara(t, esKp ? kKpR : kKcR, v);
    EXPECT_TRUE(t.ends_with(esKp ? UnidadKp(e.dn) : UnidadKc(e.dn))) << t;
  };
  switch (forma) {
    case 1:
      EXPECT_EQ(p.so, "&SP=10:" + (pideKp ? Kp : Kc) + Expresion(e, pideKp) + "&LF");
      break;
    case 2:
    case 3: {
      const bool dadoKc = forma == 2;
      const double K = Tras(p.st, "whose value at \\d+& \xB0" "C is ");
      EXPECT_EQ(a.at('a'), (dadoKc ? Kc : Kp) + Expresion(e, !dadoKc));
      valor(a.at('b'), dadoKc, dadoKc ? K * std::pow(RT, e.dn) : K / std::pow(RT, e.dn));
      if (dadoKc) {
        EXPECT_NEAR(K, KTabla(e, tC), 5e-3 * K);
      }
      break;
    }
    case 4: {
      const bool dadoKc = p.st.find("At that temperature " + Kc) != std::string::npos;
      const double K = Tras(p.st, "At that temperature &\\+IK&-I_[CP]& =& ");
      valor(p.so.substr(7, p.so.size() - 10), dadoKc, dadoKc ? K * std::pow(RT, e.dn) : K / std::pow(RT, e.dn));
      break;
    }
    case 5: {
      const auto c = Items(p.st, kC);
      for (const auto& [f, x] : c) EsperaGas(f, tC, x * RT);
      valor(p.so.substr(7, p.so.size() - 10), false, Cociente(e, c));
      EXPECT_NEAR(Cociente(e, c), KTabla(e, tC), 0.01 * KTabla(e, tC)) << "a real equilibrium";
      break;
    }
    default: {
      if (pideKp) {
        auto pp = Items(p.st, kP);
        std::string resto;
        double total = Tras(p.st, "at equilibrium is ", "& atm");
        for (const Termino& t : e.t)
          if (!t.solido && !pp.count(t.f)) resto = t.f;
        for (const auto& [f, x] : pp) total -= x;
        pp[resto] = total;
        EXPECT_TRUE(std::regex_search(p.st, std::regex("\\(" + resto + "\\) (are|is)"))) << "the gas left out is named";
        for (const auto& [f, x] : pp) EsperaGas(f, tC, x);
        valor(p.so.substr(7, p.so.size() - 10), true, Cociente(e, pp));
        EXPECT_NEAR(Cociente(e, pp), KTabla(e, tC) * std::pow(RT, e.dn), 0.01 * KTabla(e, tC) * std::pow(RT, e.dn));
      } else {
        const double V = Tras(p.st, "volume of the vessel is ", "& L");
        std::map<std::string, double> c = Items(p.st, kMoles);
        for (auto& [f, x] : c) x /= V;
        for (const auto& [f, x] : c) EsperaGas(f, tC, x * RT);
        valor(p.so.substr(7, p.so.size() - 10), false, Cociente(e, c));
        EXPECT_NEAR(Cociente(e, c), KTabla(e, tC), 0.01 * KTabla(e, tC));
      }
    }
  }
}

TEST(GasEquilibrium, ConstantsAndTheirRelation) {
  for (int forma = 1; forma <= 6; ++forma)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const Problema p = Genera(1, forma - 1, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      Constantes(forma, p);
    }
}

// ---- Generator 2: Le Chatelier -------------------------------------------

TEST(GasEquilibrium, LeChatelierFollowsTheSigns) {
  auto T = [](const char* k) { return test::Texto(k); };
  for (int forma = 1; forma <= 5; ++forma)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const Problema p = Genera(2, forma - 1, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const Ecuacion e = LeeEcuacion(p.st);
      EsperaAjustada(e.texto);
      const double dH =
          Tras(p.st, "&Delta&\\+IH&-I = -?", " kJ") * (p.st.find("H&-I = -") != std::string::npos ? -1 : 1);
      EXPECT_EQ(std::isnan(dH), forma == 2 || forma == 3);
      // The shifts by the test's own rules.
      auto temperatura = [&](bool sube) {
        return T((dH > 0) == sube ? "Desplaza_a_derecha" : "Desplaza_a_izquierda") + " " +
               T(sube ? "Porque_AUM_temp_ENDOT" : "Porque_DIS_temp_EXOTE");
      };
      auto presion = [&](bool sube) {
        if (e.dn == 0) return T("Porque_pres_NoCambiGAS");
        return T((e.dn < 0) == sube ? "Desplaza_a_derecha" : "Desplaza_a_izquierda") + " " +
               T(sube ? "Porque_AUM_pres_DismGAS" : "Porque_DIS_pres_AumeGAS");
      };
      std::smatch m;
      const bool hayEspecie = std::regex_search(p.st, m, std::regex(R"(concentration of [a-z ]+ \((\S+)\))"));
      auto concentracion = [&](bool sube) {
        std::string t = T((e.De(m[1]).nu < 0) == sube ? "Desplaza_a_derecha" : "Desplaza_a_izquierda") + " " +
                        T(sube ? "Porque_AUM_ConcESPE" : "Porque_DIS_ConcESPE");
        ReplaceAll(t, "%ESPE%", p.st.substr(m.position(0) + 17, m.length(0) - 17));
        return t;
      };
      if (hayEspecie) {
        EXPECT_TRUE(e.Gas(m[1])) << "the species changed is a gas";
      }
      auto sube = [&](const std::string& clave) { return p.st.find(T(clave.c_str())) != std::string::npos; };
      switch (forma) {
        case 1: EXPECT_EQ(p.so, "&SP=10:" + temperatura(sube("Hallar_efecto_AUMEN_TEMP")) + "&LF"); break;
        case 2: EXPECT_EQ(p.so, "&SP=10:" + presion(sube("Hallar_efecto_AUMEN_PRES")) + "&LF"); break;
        case 3: {
          std::string q = T("Hallar_efecto_AUMEN_Conc_ESPE");
          ASSERT_TRUE(hayEspecie);
          EXPECT_EQ(p.so, "&SP=10:" + concentracion(p.st.find(q.substr(q.size() - 10)) != std::string::npos) + "&LF");
          break;
        }
        case 4:
          ASSERT_TRUE(hayEspecie);
          EXPECT_EQ(p.so, "&SP=10:&+Ba)&-B " + temperatura(sube("Si_aumentar_Temp")) + "&LF&SP=10:&+Bb)&-B " +
                              presion(sube("Si_aumentar_Presion")) + "&LF&SP=10:&+Bc)&-B " +
                              concentracion(p.st.find("raising the concentration") != std::string::npos) + "&LF");
          break;
        default:
          EXPECT_EQ(p.so, "&SP=10:" + T(dH < 0 ? "Debe_ser_Temp_baja" : "Debe_ser_Temp_alta") + " " +
                              T(e.dn > 0 ? "Debe_ser_Presion_baja" : e.dn == 0 ? "Presion_no_afecta_equil"
                                                                                 : "Debe_ser_Presion_alta") + "&LF");
      }
      EXPECT_EQ(p.st.find("?."), std::string::npos);
    }
}

// ---- Generators 3 and 4: amounts at equilibrium ----------------------------

// What the statements of generators 3 and 4 give.
struct Datos {
  Ecuacion e;
  double tC = NAN, RT = NAN, V = NAN, P = NAN, alfa = NAN, K = NAN;
  std::map<std::string, double> inicial;  // moles, concentrations or pressures
  std::string A;                          // the reactant, when it is one
};

Datos Lee(const Problema& p) {
  Datos d;
  d.e = LeeEcuacion(p.st);
  EsperaAjustada(d.e.texto);
  d.tC = Tras(p.st, "", "& \xB0" "C");
  d.RT = R * (d.tC + 273.15);
  d.V = Tras(p.st, "vessel of ", "& L");
  d.alfa = Tras(p.st, "", "_ %") / 100;
  d.K = Tras(p.st, "&\\+IK&-I_[CP] = ");
  d.P = Tras(p.st, "total pressure (?:is|of) ", "& atm");
  for (const Termino& t : d.e.t)
    if (t.nu < 0 && std::count_if(d.e.t.begin(), d.e.t.end(), [](const Termino& x) { return x.nu < 0; }) == 1)
      d.A = t.f;
  const std::string st = p.st.substr(0, p.st.find("Find:"));
  for (const auto& [f, x] : Items(st, kC)) d.inicial[f] = x;
  for (const auto& [f, x] : Items(st, kP)) d.inicial[f] = x;
  for (const auto& [f, x] : Items(st, kMoles)) d.inicial[f] = x;
  const double uno = Tras(st, "(?:pressure of |^)", "(?:& atm|& mol of)");
  if (d.inicial.empty() && !std::isnan(uno)) d.inicial[d.A] = uno;
  return d;
}

double Cero(const std::map<std::string, double>& x, const std::string& f) { return x.count(f) ? x.at(f) : 0; }

// From the extent: every gas (and solid) x0 + nu ξ.
std::map<std::string, double> ConAvance(const Ecuacion& e, const std::map<std::string, double>& x0, double xi,
                                        bool solidos) {
  std::map<std::string, double> x;
  for (const Termino& t : e.t)
    if (solidos || !t.solido) {
      const std::string f = t.solido ? t.f + "_(_s_)" : t.f;
      x[f] = (x0.count(f) ? x0.at(f) : 0) + t.nu * xi;
    }
  return x;
}

double Total(const std::map<std::string, double>& x) {
  double s = 0;
  for (const auto& [f, v] : x) s += v;
  return s;
}

// Concentrations (or moles) and pressures shown never condense a gas.
void EsperaGases(const Datos& d, const std::map<std::string, double>& x, double factor) {
  for (const auto& [f, v] : x)
    if (!f.ends_with("_(_s_)")) EsperaGas(f, d.tC, v * factor);
}

void DesdeUnDato(int forma, const Problema& p) {
  const Datos d = Lee(p);
  const Ecuacion& e = d.e;
  std::map<char, std::string> a = Respuestas(p.so);
  const char ultima = static_cast<char>('a' + a.size() - 1);
  const bool disocia = !d.A.empty() && std::none_of(e.t.begin(), e.t.end(), [](const Termino& t) { return t.solido; });
  const double Kt = KTabla(e, d.tC);
  switch (forma) {
    case 1: {
      std::smatch m;
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex("holds " + kNum + R"(& mol of [^(]+\(([^)]+)\))")));
      const double xi = (Num(m[1]) - Cero(d.inicial, m[2])) / e.De(m[2]).nu;
      const auto n = ConAvance(e, d.inicial, xi, true);
      auto c = ConAvance(e, d.inicial, xi, false);
      for (auto& [f, v] : c) v /= d.V;
      ASSERT_EQ(a.size(), disocia ? 4u : 3u);
      Compara(a.at('a'), kN, n);
      Compara(a.at('b'), kKcR, Cociente(e, c));
      if (disocia) Compara(a.at('c'), kAlfa, 100 * xi * -e.De(d.A).nu / d.inicial.at(d.A));
      Compara(a.at(ultima), kC, c);
      EsperaGases(d, c, d.RT);
      EXPECT_NEAR(Cociente(e, c), Kt, 0.03 * Kt) << "the constant of the table at that temperature";
      break;
    }
    case 2: {
      const double n0 = d.inicial.at(d.A), xi = d.alfa * n0 / -e.De(d.A).nu;
      const auto n = ConAvance(e, d.inicial, xi, true);
      auto c = n;
      for (auto& [f, v] : c) v /= d.V;
      Compara(a.at('a'), kN, n);
      Compara(a.at('b'), kKcR, Cociente(e, c));
      Compara(a.at('c'), kKpR, Cociente(e, c) * std::pow(d.RT, e.dn));
      EsperaGases(d, d.inicial, d.RT / d.V);
      EsperaGases(d, c, d.RT);
      EXPECT_NEAR(Cociente(e, c), Kt, 0.03 * Kt);
      break;
    }
    case 3: {
      std::smatch m;
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(partial pressure of [^(]+\(([^)]+)\) is )" + kNum)));
      const double xi = (Num(m[2]) - Cero(d.inicial, m[1])) / e.De(m[1]).nu;
      const auto pp = ConAvance(e, d.inicial, xi, false);
      ASSERT_EQ(a.size(), disocia ? 4u : 3u);
      Compara(a.at('a'), kP, pp);
      Compara(a.at('b'), kKpR, Cociente(e, pp));
      if (disocia) Compara(a.at('c'), kAlfa, 100 * xi * -e.De(d.A).nu / d.inicial.at(d.A));
      Compara(a.at(ultima), "&\\+IP&-I_T& =& " + kNum, Total(pp));
      EsperaGases(d, d.inicial, 1);
      EsperaGases(d, pp, 1);
      EXPECT_NEAR(Cociente(e, pp), Kt * std::pow(d.RT, e.dn), 0.03 * Kt * std::pow(d.RT, e.dn));
      break;
    }
    default: {
      // A pressure at the start (form 4) or the total pressure (form 5), and alpha.
      ASSERT_TRUE(disocia);
      std::map<std::string, double> x0 = {{d.A, forma == 4 ? d.inicial.at(d.A) : 1.0}};
      auto pp = ConAvance(e, x0, d.alfa * x0.at(d.A) / -e.De(d.A).nu, false);
      if (forma == 5) {
        const double N = Total(pp);
        for (auto& [f, v] : pp) v *= d.P / N;
      }
      Compara(a.at('a'), kP, pp);
      Compara(a.at('b'), kKpR, Cociente(e, pp));
      Compara(a.at('c'), kKcR, Cociente(e, pp) / std::pow(d.RT, e.dn));
      EsperaGases(d, pp, 1);
      EXPECT_NEAR(Cociente(e, pp), Kt * std::pow(d.RT, e.dn), 0.03 * Kt * std::pow(d.RT, e.dn));
    }
  }
  if (forma == 2 || forma >= 4) {
    EXPECT_TRUE(d.alfa > 0 && d.alfa <= 0.95) << d.alfa;
  }
}

TEST(GasEquilibrium, AmountsAndKFromTheStartAndOneFact) {
  std::set<std::string> ecuaciones;
  for (int forma = 1; forma <= 5; ++forma)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const Problema p = Genera(3, forma - 1, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      DesdeUnDato(forma, p);
      ecuaciones.insert(LeeEcuacion(p.st).texto);
    }
  EXPECT_GT(ecuaciones.size(), 35u) << "most reactions, both ways, come up";
}

// The answers of generator 4 come from ResolverEquilibrio, which stops when
// K is met to 1 part in 10^4: each amount is then within 1.5 parts in 10^4,
// and within 3 where a total pressure is met as well.
void DesdeK(int forma, const Problema& p) {
  const Datos d = Lee(p);
  const Ecuacion& e = d.e;
  std::map<char, std::string> a = Respuestas(p.so);
  ASSERT_EQ(a.size(), 2u);
  EXPECT_FALSE(std::isnan(d.K));
  std::map<std::string, double> x0 = d.inicial;
  if (forma == 5)
    for (auto& [f, v] : x0) v /= d.V;
  if (forma == 3) x0 = {{d.A, 1}};
  const bool aP = forma == 3 || forma == 4;
  const auto x = Equilibrio(e, x0, d.K, aP ? d.P : 0);
  const std::string patron = forma == 1 || forma == 5 ? kC : kP;
  Compara(a.at('a'), patron, x, aP ? 3e-4 : 1.5e-4);
  if (forma == 4) {
    Compara(a.at('b'), kKcR, d.K / std::pow(d.RT, e.dn));
    EXPECT_TRUE(a.at('b').ends_with(UnidadKc(e.dn)));
  } else {
    // The gas that dissociates: the part of it gone, read off a product absent at the start.
    std::string B;
    for (const Termino& t : e.t)
      if (t.nu > 0 && !x0.count(t.f)) B = t.f;
    ASSERT_FALSE(B.empty());
    // nA = nA0 - |nuA| xi and nB = nuB xi, in any unit: alpha = |nuA| xi / nA0.
    const double nuA = -e.De(d.A).nu, r = x.at(B) / e.De(B).nu / x.at(d.A), alfa = nuA * r / (1 + nuA * r);
    Compara(a.at('b'), kAlfa, 100 * alfa, aP ? 3e-4 : 1.5e-4);
    EXPECT_TRUE(alfa > 0 && alfa < 1);
  }
  EsperaGases(d, x, patron == kC ? d.RT : 1);
  EsperaGases(d, x0, patron == kC ? d.RT : aP ? d.P / Total(x0) : 1);
  if (forma == 1 || forma == 5) {
    EXPECT_NEAR(d.K, KTabla(e, d.tC), 5e-3 * d.K);
  }
}

TEST(GasEquilibrium, AmountsAtEquilibriumFromK) {
  for (int forma = 1; forma <= 5; ++forma)
    for (uint64_t semilla = 1; semilla <= 60; ++semilla) {
      const Problema p = Genera(4, forma - 1, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      DesdeK(forma, p);
    }
}

// Every form of every generator, 200 seeds: whole problems, every number a
// number, no amount below zero, no degree of dissociation beyond 0-100 %.
TEST(GasEquilibrium, EveryFormMakesWholeProblems) {
  const int formas[4] = {6, 5, 5, 5};
  for (int gen = 1; gen <= 4; ++gen)
    for (int forma = 0; forma < formas[gen - 1]; ++forma)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        const Problema p = Genera(gen, forma, semilla);
        ASSERT_TRUE(p.st.size() > 40 && p.so.size() > 10 && p.st.ends_with("&LF") && p.so.ends_with("&LF"))
            << p.st << p.so;
        ASSERT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|<Error|nan|inf|\\?\\.")))
            << p.st << p.so;
        const std::string sinDH = gen == 2 ? p.so : p.st.substr(0, p.st.find("&+IData")) + p.so;
        ASSERT_FALSE(std::regex_search(sinDH, std::regex(R"((^|[ (=])-\d)"))) << p.st << p.so;
        std::smatch m;
        for (std::string t = p.st + p.so; std::regex_search(t, m, std::regex(kNum + "_ %")); t = m.suffix())
          ASSERT_TRUE(Num(m[1]) > 0 && Num(m[1]) < 100) << p.st << p.so;
      }
}

}  // namespace
}  // namespace ss::mod::ega
