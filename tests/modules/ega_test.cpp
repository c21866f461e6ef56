// The gas-equilibrium module read as a student reads it: every answer worked
// again from the equation and data of the statement, by closed formulas or by
// the test's own bisection; and the data real (the table's constant at that
// temperature, no gas above the vapour pressure of its liquid).
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <regex>
#include <set>

#include "modules/ANEU_QUIM_EGA/ega.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::ega {
namespace {
using Mapa = std::map<std::string, double>;
constexpr double R = 0.082057;
const std::string kNum = R"((\d+(?:&\.\d+)?(?:&E-?\d+)?))", kDe = R"( [^(&]+\((\S+?)\))";
const std::string kP = R"(&\+IP&-I\((.+?)\)& =& )" + kNum + "& atm", kC = R"(\[(.+?)\](?:_0)?& =& )" + kNum + "& mol/L",
                  kN = R"(&\+In&-I\((.+?)\)& =& )" + kNum + "& mol", kUnoMol = "^" + kNum + "& mol of" + kDe,
                  kMoles = kNum + R"(& mol& ([A-Za-z0-9_]*[A-Za-z0-9](?:_\(_s_\))?))",
                  kUnoP = "only" + kDe + ", at a pressure of " + kNum + "& atm", kPregunta = "&SP=5:(?=&\\+B)";
double Num(const std::string& t) { return test::Numeros(t).at(0); }
double Cero(const Mapa& x, const std::string& f) { return x.count(f) ? x.at(f) : 0; }
bool Solido(const std::string& f) { return f.ends_with("_(_s_)"); }
double Valor(const std::string& t, const std::string& antes, const std::string& despues) {
  std::smatch m;
  return std::regex_search(t, m, std::regex(antes + kNum + despues)) ? Num(m[1]) : NAN;
}
std::vector<std::smatch> Busca(const std::string& t, const std::string& patron) {
  const std::regex re(patron);
  return {std::sregex_iterator(t.begin(), t.end(), re), std::sregex_iterator()};
}
Mapa Items(const std::string& t, const std::string& patron) {
  Mapa out;
  const int v = patron.find(kNum) < 2 ? 1 : 2;
  for (const std::smatch& m : Busca(t, patron)) out[m[3 - v]] = Num(m[v]);
  return out;
}
std::vector<std::string> Lineas(const std::string& t, const std::string& marca) {
  std::vector<std::string> v;
  for (const std::smatch& m : Busca(t, marca + R"((?:&\+B[a-e]\)&-B )?(.*?)&LF)")) v.push_back(m[1]);
  return v;
}
std::pair<std::string, std::string> Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + static_cast<uint64_t>(seqB)));
  std::string st, so;
  GeneraProblema(g, "ANEU_QUIM_EGA", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", st, so);
  return {st, so};
}

// The equation shown: each formula (a solid with its mark) and its signed coefficient.
struct Ec {
  std::string texto;
  std::vector<std::pair<std::string, double>> t;
  Mapa nu;
  double dn = 0;  // gases only
};
Ec LeeEcuacion(const std::string& st) {
  static const std::string sp = R"(\d*[A-Z][A-Za-z0-9_]*?_\(_[gs]_\))";
  std::smatch m;
  Ec e;
  if (!std::regex_search(st, m, std::regex(sp + "(?:  (?:\\+|&Q)  " + sp + ")+"))) return ADD_FAILURE() << st, e;
  e.texto = m[0];
  const std::size_t q = e.texto.find("  &Q  ");
  for (int lado = 0; lado < 2; ++lado)
    for (const std::string& x : test::Formulas(lado ? e.texto.substr(q + 6) : e.texto.substr(0, q))) {
      e.t.push_back({Solido(x) ? x : x.substr(0, x.size() - 6), test::Coeficiente(e.texto, x) * (lado ? 1.0 : -1.0)});
      e.dn += Solido(x) ? 0 : (e.nu[e.t.back().first] = e.t.back().second);
    }
  return e;
}
std::string Expresion(const Ec& e, bool presion) {
  std::string l[2];
  for (const auto& [f, nu] : e.t)
    if (!Solido(f))
      l[nu > 0] += (presion ? "&+IP&-I(" + f + ")" : "[" + f + "]") +
                   (std::fabs(nu) == 1 ? "" : "#SPB(L" + std::to_string(int(std::fabs(nu))) + "#T)(#SPB)");
  return l[0].empty() ? l[1] : "#COC(" + (l[1].empty() ? "1" : l[1]) + "#N)(" + l[0] + "#COC)";
}
// The quotient of the gases (NaN when one is missing), and every species at extent xi.
double Q(const Ec& e, const Mapa& x) {
  double q = 1;
  for (const auto& [f, nu] : e.t) q *= Solido(f) ? 1 : x.count(f) ? std::pow(x.at(f), nu) : NAN;
  return q;
}
Mapa Mezcla(const Ec& e, const Mapa& x0, double xi) {
  Mapa x;
  for (const auto& [f, nu] : e.t) x[f] = Cero(x0, f) + nu * xi;
  return x;
}
// The extent at which `f`, rising with it, crosses zero, between the bounds that keep every gas at or above zero.
double Avance(const Ec& e, const Mapa& x0, const std::function<double(double)>& f) {
  double lo = -1e6, hi = 1e6;
  for (const auto& [g, nu] : e.t)
    if (!Solido(g)) nu < 0 ? hi = std::min(hi, Cero(x0, g) / -nu) : lo = std::max(lo, -Cero(x0, g) / nu);
  for (int i = 0; i < 100; ++i) (f((lo + hi) / 2) < 0 ? lo : hi) = (lo + hi) / 2;
  return (lo + hi) / 2;
}
double KTabla(const Ec& e, double tC) {
  for (int n = 1; n <= kFilas; ++n)
    for (const Reaccion& r : {Fila(n), Invertida(Fila(n))})
      if (Ecuacion(r) == e.texto) {
        EXPECT_TRUE(tC == r.T1 || tC == r.T2) << e.texto << " at " << tC;
        return tC == r.T2 ? r.K2 : r.K1;
      }
  return ADD_FAILURE() << "no row for " << e.texto, NAN;
}
// Vapour pressures (atm) of the species that condense, up to the temperature each holds for.
void EsperaGases(const Mapa& c, double RT, double tC) {
  static const std::tuple<std::string, double, double> kVapor[] = {{"Br_2", 25, 0.28}, {"I_2", 25, 4.1e-4},
      {"I_2", 350, 18}, {"SO_2Cl_2", 25, 0.19}, {"ICl", 25, 0.04}, {"N_2O_4", 25, 1.2}, {"NO_2", 25, 1.2},
      {"NOBr", 25, 1.4}, {"SO_2", 25, 3.9}, {"Cl_2", 25, 7.7}, {"NOCl", 25, 3.3}, {"NO_2Cl", 25, 4.8},
      {"SbCl_3", 248, 1.7}, {"SbCl_5", 248, 18}, {"PCl_5", 250, 10}, {"CH_3OH", 220, 55}};
  for (const auto& [f, x] : c) {
    double max = 100;
    for (const auto& [g, t, pv] : kVapor) max = g == f && tC <= t ? std::min(max, pv) : max;
    EXPECT_LE(x * RT, max * 1.001) << f << " would condense at " << tC << " degC and " << x * RT << " atm";
  }
}
// Each "formula = value" of an answer (in units of `k`), and every one there: four significant
// figures, within half a unit of the fourth, plus `rel` of the value where it comes from a solver.
void Compara(const std::string& t, const std::string& patron, const Mapa& esperado, double rel = 0, double k = 1) {
  const std::vector<std::smatch> v = Busca(t, patron);
  for (const std::smatch& m : v) {
    const double x = Num(m[2]), y = k * (esperado.count(m[1]) ? esperado.at(m[1]) : NAN);
    EXPECT_NEAR(x, y, 0.505 * std::pow(10.0, std::floor(std::log10(x)) - 3) + rel * std::fabs(y)) << m[0];
  }
  EXPECT_EQ(v.size(), esperado.size()) << t;
}
void EsperaK(const std::string& t, char k, double Kc, double RT, double dn, double rel = 0) {
  static const std::string kUnidad[2][5] = {{"& L^2/mol^2", "& L/mol", "", "& mol/L", "& mol^2/L^2"},
                                            {"& atm^-^2", "& atm^-^1", "", "& atm", "& atm^2"}};
  Compara(t, "&\\+IK&-I_([CP])& =& " + kNum, {{std::string(1, k), Kc * std::pow(RT, k == 'P' ? dn : 0)}}, rel);
  const std::string& u = kUnidad[k == 'P'][int(dn) + 2];
  EXPECT_TRUE(t.ends_with(u) && std::isdigit(t[t.size() - u.size() - 1])) << t << " without " << u;
}
char Clase(const std::string& t) {
  static const std::pair<std::string, char> kMarcas[] = {{"&+In&-I(", 'n'}, {"in moles", 'n'}, {"[", 'c'},
      {"concentration", 'c'}, {"P&-I(", 'p'}, {"partial pressure", 'p'}, {"K&-I_C", 'C'}, {"K&-I_P", 'P'},
      {"alfa", 'a'}, {"dissociation", 'a'}, {"P&-I_T", 'T'}, {"total pressure", 'T'}};
  for (const auto& [marca, c] : kMarcas)
    if (t.find(marca) != std::string::npos) return c;
  return '?';
}
// Standard enthalpies of formation, kJ/mol (gases unless marked).
const Mapa kHf = {{"NO_2", 33.18}, {"NO", 90.25}, {"O_2", 0}, {"N_2O_4", 9.16}, {"HI", 26.48}, {"I_2", 62.44},
                  {"H_2", 0}, {"PCl_5", -374.9}, {"PCl_3", -287}, {"Cl_2", 0}, {"N_2", 0}, {"CO_2", -393.51},
                  {"CO", -110.53}, {"H_2O", -241.82}, {"SO_3", -395.72}, {"SO_2", -296.83}, {"NH_3", -46.11},
                  {"HCl", -92.31}, {"COCl_2", -218.8}, {"H_2S", -20.63}, {"COS", -142.09}, {"SbCl_5", -394.3},
                  {"SbCl_3", -313.8}, {"ICl", 17.78}, {"NOCl", 51.71}, {"NO_2Cl", 12.6}, {"NOBr", 82.17},
                  {"Br_2", 30.91}, {"SO_2Cl_2", -364}, {"CH_3OH", -200.66}, {"C_(_s_)", 0}, {"I_2_(_s_)", 0},
                  {"CaO_(_s_)", -635.09}, {"CaCO_3_(_s_)", -1206.92}};

TEST(GasEquilibrium, EveryEquationOfTheTableIsBalancedBothWays) {
  for (int n = 1; n <= kFilas; ++n) {
    for (const Reaccion& r : {Fila(n), Invertida(Fila(n))}) {
      const Ec e = LeeEcuacion(Ecuacion(r));
      std::string ec = e.texto;
      for (const auto& [de, a] : {std::pair{"_(_g_)", ""}, {"_(_s_)", ""}, {"  &Q  ", " = "}, {"  +  ", " + "}})
        ReplaceAll(ec, de, a);
      test::EsperaAjustada(ec);
      EXPECT_EQ(e.dn, DeltaN(r)) << e.texto;
      EXPECT_EQ(ExpresionKc(r), Expresion(e, false));
      EXPECT_EQ(ExpresionKp(r), Expresion(e, true));
      EXPECT_DOUBLE_EQ(Invertida(r).K1 * r.K1, 1);
      EXPECT_EQ(Invertida(r).dH, -r.dH);
    }
    // The enthalpy from those of formation: the sign always, the value within 15 %;
    // and K rises with the temperature when the reaction takes in heat.
    const Reaccion r = Fila(n);
    double dH = 0;
    for (const Especie& s : r.s) dH += s.coef != 0 ? s.coef * kHf.at(std::string(s.formula)) : 0;
    EXPECT_GT(dH * r.dH, 0) << "row " << n;
    EXPECT_NEAR(r.dH, dH, 0.15 * std::fabs(dH) + 1) << "row " << n;
    EXPECT_TRUE(r.K2 == 0 || (r.K2 > r.K1) == ((r.T2 > r.T1) == (r.dH > 0))) << "row " << n;
  }
}

// Every reaction, both ways, from mixtures with and without products, against the
// test's bisection; only nothing on either side has no equilibrium.
TEST(GasEquilibrium, ResolverEquilibrioMeetsKFromAnyMixture) {
  Aleatorio rnd(11);
  for (int n = 1; n <= kFilas; ++n)
    for (int k = 0; k < 12; ++k) {
      const Reaccion r = k % 2 ? Invertida(Fila(n)) : Fila(n);
      const Ec e = LeeEcuacion(Ecuacion(r));
      std::array<double, 4> c{}, C{};
      Mapa x0;
      for (int j = 0; j < 4; ++j)
        if (r.s[j].Gas()) {
          c[j] = r.s[j].coef;
          const bool presente = c[j] < 0 || k % 3 == 0 || rnd.Siguiente() > 0.5;
          C[j] = x0[std::string(r.s[j].formula)] = presente ? 0.05 + rnd.Siguiente() : 0;
        }
      const Solucion s = ResolverEquilibrio(r.K1, c[0], c[1], c[2], c[3], C[0], C[1], C[2], C[3]);
      if (!s.error.empty()) {
        EXPECT_EQ(C, (std::array<double, 4>{})) << s.error;
        continue;
      }
      const Mapa x = Mezcla(e, x0, Avance(e, x0, [&](double y) { return std::log(Q(e, Mezcla(e, x0, y)) / r.K1); }));
      for (int j = 0; j < 4; ++j)
        EXPECT_NEAR(s.C[j], r.s[j].Gas() ? x.at(std::string(r.s[j].formula)) : 0, 1.5e-4 * s.C[j]) << e.texto;
      EXPECT_LT(s.pasadas, 40);
    }
  // No constant, or nothing on either side: the message; K = 1 halves A = B from either side;
  // PCl5 = PCl3 + Cl2 from 1 mol/L is the root of x^2 + K x - K; a solid keeps its entry.
  using A4 = std::array<double, 4>;
  const double x = (-0.05 + std::sqrt(0.05 * 0.05 + 4 * 0.05)) / 2;
  for (const auto& [K, c, C, esperado, error] :
       {std::tuple{0.0, A4{-1, 1}, A4{1}, A4{}, "Error: Keq <= 0"}, {2.0, A4{-1, 1}, A4{}, A4{}, "ERROR: Impossible"},
        {1.0, A4{-1, 1}, A4{1, 0}, A4{0.5, 0.5}, ""}, {1.0, A4{-1, 1}, A4{0, 1}, A4{0.5, 0.5}, ""},
        {1.0, A4{-1, 1}, A4{0.3, 0.7}, A4{0.5, 0.5}, ""}, {0.05, A4{-1, 1, 1}, A4{1}, A4{1 - x, x, x}, ""},
        {0.00284, A4{0, 0, 1}, A4{5}, A4{5, 0, 0.00284}, ""}}) {
    const Solucion s = ResolverEquilibrio(K, c[0], c[1], c[2], c[3], C[0], C[1], C[2], C[3]);
    EXPECT_TRUE(*error ? s.error.starts_with(error) : s.error.empty()) << s.error;
    for (int j = 0; j < 4; ++j) EXPECT_NEAR(s.C[j], esperado[j], 1.5e-4 * esperado[j]) << K << " " << j;
  }
  // No reactant in the quotient: the extent is bounded by 200. Q = (0.004 x)^0.004 reaches
  // 0.999 at x = 194.7, 0.9995 only past 200: the search then ends after its 300 passes.
  Solucion s2 = ResolverEquilibrio(0.999, 0.004, 0, 0, 0, 0, 0, 0, 0);
  EXPECT_NEAR(std::pow(s2.C[0], 0.004), 0.999, 1e-4 * 0.999);
  EXPECT_LT(s2.pasadas, 300);
  s2 = ResolverEquilibrio(0.9995, 0.004, 0, 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(s2.pasadas, 300);
  EXPECT_NEAR(s2.C[0], 0.8, 1e-6);
}

// Generator 1: the expression of the constant named first; the value of the one named
// last, from the other constant or from a mixture at equilibrium.
void Constantes(const std::string& st, const std::string& so, int forma) {
  const Ec e = LeeEcuacion(st);
  const double tC = Valor(st, "", "& \xB0" "C"), RT = R * (tC + 273.15);
  const std::vector<std::string> a = Lineas(so, "&SP=10:");
  ASSERT_EQ(a.size(), forma == 2 || forma == 3 ? 2u : 1u);
  const char primera = st[st.find("&+IK&-I_") + 8], pedida = st[st.rfind("&+IK&-I_") + 8];
  if (forma <= 3) {
    EXPECT_EQ(a[0], "&+IK&-I_" + std::string(1, primera) + "& =& " + Expresion(e, primera == 'P'));
    if (forma == 1) return;
  }
  std::smatch m;
  double Kc;
  if (std::regex_search(st, m, std::regex(R"(&\+IK&-I_([CP])(?:, whose value at \d+& .C is |& =& ))" + kNum))) {
    EXPECT_NE(m[1], std::string(1, pedida));
    Kc = Num(m[2]) / std::pow(RT, m[1] == "P" ? e.dn : 0);
  } else {  // a mixture at equilibrium, in mol/L
    Mapa c = Items(st, kC);
    for (const auto& [f, n] : Items(st, kMoles)) c[f] = n / Valor(st, "", "& L");
    for (const auto& [f, x] : Items(st, kP)) c[f] = x / RT;
    if (std::regex_search(st, m, std::regex("other than" + kDe))) {  // the total less the others
      c[m[1]] = Valor(st, "at equilibrium is ", "& atm") / RT;
      for (const auto& [f, x] : c) c[m[1]] -= f == m[1] ? 0 : x;
    }
    EsperaGases(c, RT, tC);
    Kc = Q(e, c);
  }
  EsperaK(a.back(), pedida, Kc, RT, e.dn);
  EXPECT_NEAR(Kc, KTabla(e, tC), 0.01 * Kc) << "the table's constant at that temperature";
}

// Generator 2: the shift by the signs of the enthalpy, of the change in moles of gas,
// and of the side of the species changed.
void Desplazamientos(const std::string& st, const std::string& so, int forma) {
  const auto T = [](const char* k) { return test::Texto(k); };
  const auto desplaza = [&](bool derecha, const char* porque) {
    return T(derecha ? "Desplaza_a_derecha" : "Desplaza_a_izquierda") + " " + T(porque);
  };
  const Ec e = LeeEcuacion(st);
  const std::vector<double> h = test::NumerosTras(st, "&Delta&+IH&-I = ");
  EXPECT_EQ(h.empty(), forma == 2 || forma == 3);
  const double dH = h.empty() ? NAN : h[0];
  const auto espera = [&](const std::string& q) {
    const bool sube = q.find("rais") != std::string::npos;
    std::smatch m;
    if (forma == 5)
      return T(dH < 0 ? "Debe_ser_Temp_baja" : "Debe_ser_Temp_alta") + " " +
             T(e.dn > 0    ? "Debe_ser_Presion_baja"
               : e.dn == 0 ? "Presion_no_afecta_equil"
                           : "Debe_ser_Presion_alta");
    if (q.find("temperature") != std::string::npos)
      return desplaza((dH > 0) == sube, sube ? "Porque_AUM_temp_ENDOT" : "Porque_DIS_temp_EXOTE");
    if (q.find("pressure") != std::string::npos)
      return e.dn == 0 ? T("Porque_pres_NoCambiGAS")
                       : desplaza((e.dn < 0) == sube, sube ? "Porque_AUM_pres_DismGAS" : "Porque_DIS_pres_AumeGAS");
    if (!std::regex_search(q, m, std::regex(R"(concentration of ([^(&]+\((\S+?)\)))"))) return std::string("?");
    std::string t = desplaza((e.nu.at(m[2]) < 0) == sube, sube ? "Porque_AUM_ConcESPE" : "Porque_DIS_ConcESPE");
    ReplaceAll(t, "%ESPE%", m[1].str());
    return t;
  };
  const std::vector<std::string> q = forma == 4 ? Lineas(st, kPregunta) : std::vector{st},
                                 a = Lineas(so, "&SP=10:");
  ASSERT_EQ(a.size(), q.size());
  for (std::size_t i = 0; i < q.size(); ++i) EXPECT_EQ(a[i], espera(q[i]));
}

// Generators 3 and 4: the start and one fact of the equilibrium (an amount, the degree of
// dissociation, or K); every answer from the extent these give. Generator 4 answers from a
// solver that meets K to 1 part in 10^4: 1.5 parts in 10^4, or 3 with a total pressure too.
void Cantidades(const std::string& st, const std::string& so) {
  const Ec e = LeeEcuacion(st);
  const double tC = Valor(st, "", "& \xB0" "C"), RT = R * (tC + 273.15), V = Valor(st, "vessel of ", "& L"),
               P = Valor(st, "total pressure (?:is|of) ", "& atm"), alfa = Valor(st, "", "_ %") / 100;
  Mapa x0;
  char u = 'n';
  for (const auto& [patron, unidad] : {std::pair{kMoles, 'n'}, {kUnoMol, 'n'}, {kC, 'c'}, {kP, 'p'}, {kUnoP, 'p'}})
    for (const auto& [f, x] : Items(st, patron)) x0[f] = x, u = unidad;
  std::string A;  // the single reactant
  for (const auto& [f, nu] : e.t) A = nu > 0 ? A : A.empty() ? f : "?";
  const bool dado = !x0.empty();  // else only the equilibrium at a total pressure: per mole of A
  if (!dado) x0[A] = 1;
  const auto conc = [&](double xi) {  // the gases in mol/L
    Mapa c;
    double N = 0;
    for (const auto& [f, x] : Mezcla(e, x0, xi)) N += Solido(f) ? 0 : x;
    for (const auto& [f, x] : Mezcla(e, x0, xi))
      if (!Solido(f)) c[f] = u == 'c' ? x : u == 'p' ? x / RT : std::isnan(V) ? x / N * P / RT : x / V;
    return c;
  };
  std::smatch m;
  double xi, rel = 0;
  if (std::regex_search(st, m, std::regex("holds " + kNum + "& mol of" + kDe))) {
    xi = (Num(m[1]) - Cero(x0, m[2])) / e.nu.at(m[2]);
  } else if (std::regex_search(st, m, std::regex("partial pressure of" + kDe + " is " + kNum))) {
    xi = (Num(m[2]) - Cero(x0, m[1])) / e.nu.at(m[1]);
  } else if (!std::isnan(alfa)) {
    xi = alfa * x0[A] / -e.nu.at(A);
  } else {
    ASSERT_TRUE(std::regex_search(st, m, std::regex("&\\+IK&-I_([CP]) = " + kNum)));
    const double lnKc = std::log(Num(m[2]) / std::pow(RT, m[1] == "P" ? e.dn : 0));
    xi = Avance(e, x0, [&](double y) { return std::log(Q(e, conc(y))) - lnKc; });
    rel = std::isnan(P) ? 1.5e-4 : 3e-4;
  }
  const Mapa c = conc(xi);
  const std::vector<std::string> q = Lineas(st, kPregunta), a = Lineas(so, "&SP=10:");
  ASSERT_EQ(q.size(), a.size());
  double total = 0;
  for (const auto& [f, x] : c) total += x * RT;
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_EQ(Clase(a[i]), Clase(q[i])) << q[i];
    switch (Clase(a[i])) {
      case 'n': Compara(a[i], kN, Mezcla(e, x0, xi), rel); break;
      case 'c': Compara(a[i], kC, c, rel); break;
      case 'p': Compara(a[i], kP, c, rel, RT); break;
      case 'C':
      case 'P': EsperaK(a[i], Clase(a[i]), Q(e, c), RT, e.dn, rel); break;
      case 'a': Compara(a[i], "()&alfa& =& " + kNum, {{"", 100 * xi * -e.nu.at(A) / x0[A]}}, rel); break;
      case 'T': Compara(a[i], "()&\\+IP&-I_T& =& " + kNum, {{"", total}}, rel); break;
      default: ADD_FAILURE() << a[i];
    }
  }
  EsperaGases(c, RT, tC);
  if (dado) EsperaGases(conc(0), RT, tC);
  EXPECT_NEAR(Q(e, c), KTabla(e, tC), 0.03 * KTabla(e, tC)) << "the table's constant at that temperature";
}

// Every form of every generator, 200 seeds: whole problems, no number below zero, most reactions
// drawn; and the first 60 seeds of each form worked again by the checker of its generator.
TEST(GasEquilibrium, EveryFormMakesWholeAndRightProblems) {
  std::set<std::string> ecuaciones;
  for (int gen = 1; gen <= 4; ++gen)
    for (int forma = 0; forma < (gen == 1 ? 6 : 5); ++forma)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        const auto [st, so] = Genera(gen, forma, semilla);
        SCOPED_TRACE(st + "\n" + so);
        const std::string t = st + so, sinDH = gen == 2 ? so : st.substr(0, st.find("&+IData")) + so;
        ASSERT_TRUE(st.size() > 40 && so.size() > 10 && st.ends_with("&LF") && so.ends_with("&LF")) << t;
        ASSERT_FALSE(std::regex_search(t, std::regex("%[A-Za-z0-9_]+%|<Error|nan|inf|\\?\\."))) << t;
        ASSERT_FALSE(std::regex_search(sinDH, std::regex(R"((^|[ (=])-\d)"))) << t;
        ecuaciones.insert(LeeEcuacion(st).texto);
        if (semilla > 60) continue;
        gen == 1 ? Constantes(st, so, forma + 1) : gen == 2 ? Desplazamientos(st, so, forma + 1) : Cantidades(st, so);
      }
  EXPECT_GE(ecuaciones.size(), 46u);
}

}  // namespace
}  // namespace ss::mod::ega
