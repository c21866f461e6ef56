// The pH problems of the acid-base module read as a student reads them: the
// concentrations, masses, volumes, constants, pH and degrees of dissociation
// a statement shows, and every answer worked again from those alone, by the
// tests' own algebra: a bisection for the weak species, the charge balance
// with the water's own ions for the strong ones and for the buffers.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "modules/ANEU_QUIM_EAB/eab.h"
#include "problems/numeros.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::eab {
namespace {

constexpr double Kw = 1e-14;
using Respuesta = std::pair<std::string, test::Mostrado>;

test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + seqB * 31 + gen));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_EAB", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  return p;
}

// The pH a statement gives ("a pH of 2&.872", "of pH 2&.872", "its pH is 2&.872").
double PHDado(const std::string& st) {
  std::smatch m;
  if (!std::regex_search(st, m, std::regex(R"(pH (?:of |is )?(\d+(?:&\.\d+)?))"))) return NAN;
  return test::Numeros(m[1].str())[0];
}

// A constant of the data line: "K_a&-I(HCN)& =& 4&.00&E-10", or "K_w".
double Constante(const std::string& st, char cual) {
  std::smatch m;
  if (!std::regex_search(st, m, std::regex(std::string("K_") + cual + R"(&-I(\([^)]*\))?& =& )"))) return NAN;
  return test::Numeros(m.suffix().str().substr(0, 20))[0];
}

// The answers of a solution in order, by the label before each " = ":
// "pH", "pOH", "&alfa", "&+IK_a&-I", "&+Ic&-I_0", "&DeltapH"...
std::vector<Respuesta> Respuestas(std::string so) {
  so = std::regex_replace(so, std::regex(R"(&SP=\d+:|&\+B[a-z]\)&-B )"), "");
  std::vector<Respuesta> out;
  static const std::regex pieza(R"((?:^|&LF|,   |;   )([^=,;]+?) = ([^,;]+?)(?=,   |;   |&LF|$))");
  for (std::sregex_iterator it(so.begin(), so.end(), pieza), end; it != end; ++it) {
    const std::vector<test::Mostrado> v = test::Respuestas((*it)[2].str());
    EXPECT_EQ(v.size(), 1u) << (*it)[0];
    if (!v.empty()) out.push_back({(*it)[1].str(), v[0]});
  }
  return out;
}

// x printed on a grid of `paso`: no more digits, and (for an answer) no
// further off than half a step.
void EnPaso(double x, double paso) { EXPECT_NEAR(x / paso, std::round(x / paso), 1e-6) << x << " on " << paso; }
void EsperaPH(const test::Mostrado& m, double pH) {
  EXPECT_NEAR(m.valor, pH, 0.0005 + 1e-9);
  EnPaso(m.valor, 1e-3);
}
void EsperaCifras(const test::Mostrado& m, double x, int n) {
  test::EsperaCerca(m, x, 0.501 * std::pow(10.0, 1 - n) * std::fabs(x));
}
// A degree of dissociation in percent: below 0.02 % to three figures, below
// 1 % to the ten-thousandth, else to the hundredth.
void EsperaAlfa(double shown, double p) {
  const double paso = p < 0.02 ? std::pow(10.0, std::floor(std::log10(shown)) - 2) : p < 1 ? 1e-4 : 1e-2;
  EXPECT_LE(std::fabs(shown - p), 0.5 * paso * 1.0001 + 1e-12) << shown << " % vs " << p << " %";
  EnPaso(shown, paso);
}
// A concentration a statement gives: below 0.02 mol/L to three figures, else as drawn.
void EsperaFormatoC(double c, double pasoDibujado) {
  EnPaso(c, c < 0.02 ? std::pow(10.0, std::floor(std::log10(c)) - 2) : pasoDibujado);
}

// The atomic masses a statement lists must be the standard ones, rounded.
const std::map<std::string, double> kAtomicas = {{"H", 1.008},   {"C", 12.011}, {"N", 14.007}, {"O", 15.999},
                                                 {"F", 18.998},  {"Na", 22.990}, {"Cl", 35.45}, {"K", 39.098},
                                                 {"Br", 79.904}, {"I", 126.90}};
double MasaMolarDe(const std::string& formula, const std::map<std::string, double>& masas, bool listadas = true) {
  double M = 0;
  for (const auto& [e, n] : test::Formula(formula)) {
    EXPECT_TRUE(!listadas || (masas.count(e) && std::fabs(masas.at(e) - kAtomicas.at(e)) < 0.15)) << e;
    M += n * (listadas ? masas.at(e) : kAtomicas.at(e));
  }
  return M;
}

// ---------------------------------------------------------------------------
// Generator 1: strong acids and bases.

const std::vector<std::string> kAcidosFuertes = {"HClO_4", "HI", "HBr", "HCl", "HNO_3"}, kBasesFuertes = {"NaOH", "KOH"};

// pH of a strong acid (c > 0) or base (c < 0) of net concentration |c|, with
// the water's own ions: [H3O+] - [OH-] = c; each root free of cancellation.
double PHFuerte(double c) {
  const double r = std::sqrt(c * c + 4 * Kw);
  return -std::log10(c >= 0 ? (c + r) / 2 : 2 * Kw / (r - c));
}

TEST(AcidBaseStrong, EveryAnswerFollowsFromTheStatement) {
  // What each statement set gives: a concentration, a mass and volume, a pH...
  const std::string kDados[6] = {"c", "mV", "p", "mp", "Vp", "cc"};
  for (int seqB = 0; seqB < 110; ++seqB)
    for (uint64_t semilla = 1; semilla <= 12; ++semilla) {
      const test::Problema p = Genera(1, seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const int conjunto = seqB % 11;
      const bool base = conjunto >= 6;
      const std::vector<std::string> f = test::FormulasEntreParentesis(p.st);
      ASSERT_EQ(f.size(), conjunto == 5 ? 2u : 1u);
      EXPECT_EQ(f[0], base ? kBasesFuertes[seqB % 2] : kAcidosFuertes[seqB % 5]) << "the species by the counter";
      const test::Datos d(p.st);
      double c = NAN, m = d.En("g"), V = d.En("mL"), M = NAN;  // c: [H3O+] - [OH-]
      std::string dados;
      if (conjunto == 5) {  // an acid and a base mixed: the excess sets the pH
        EXPECT_EQ(std::count(kBasesFuertes.begin(), kBasesFuertes.end(), f[1]), 1);
        const double C0 = d.En("mol/L"), C1 = d.En("mol/L", 1), V0 = V, V1 = d.En("mL", 1);
        EXPECT_TRUE(C0 <= 0.5 && C1 <= 0.9 && V0 >= 20 && V0 <= 500 && V1 >= 5) << p.st;
        EsperaFormatoC(C0, 1e-4), EsperaFormatoC(C1, 1e-4);
        c = (C0 * V0 - C1 * V1) / (V0 + V1), dados = "cc";
        EXPECT_GT(std::fabs(C0 * V0 - C1 * V1), 0.05 * std::max(C0 * V0, C1 * V1)) << "a clear excess";
      } else {
        if (d.Tiene("mol/L")) c = d.En("mol/L"), dados += "c", EsperaFormatoC(c, 1e-4);
        if (!std::isnan(m)) M = MasaMolarDe(f[0], test::Masas(p.st)), dados += "m";
        if (!std::isnan(V)) dados += "V";
        if (!std::isnan(m) && !std::isnan(V)) c = m / M / (V / 1000);
        if (const double pH = PHDado(p.st); !std::isnan(pH)) {
          EnPaso(pH, 1e-3), dados += "p";
          c = std::pow(10.0, base ? pH - 14 : -pH);
          if (std::isnan(m) && !std::isnan(V)) M = MasaMolarDe(f[0], test::Masas(p.st));
        }
        if (base) c = -c;
        // A weighed acid is the pure substance, HCl gas and not hydrochloric acid.
        if (!std::isnan(M) && (f[0] == "HCl" || f[0] == "HBr" || f[0] == "HI")) {
          EXPECT_EQ(p.st.find(" acid (" + f[0] + ")"), std::string::npos);
        }
      }
      EXPECT_EQ(dados, kDados[conjunto % 6]);
      EXPECT_TRUE(std::fabs(c) >= 1e-5 && std::fabs(c) <= 0.503) << c;
      EXPECT_EQ(c < 0, base || (conjunto == 5 && p.so.find("[OH") != std::string::npos));
      if (!std::isnan(m)) {
        EXPECT_GE(m, 0.05);
      }
      const std::vector<Respuesta> r = Respuestas(p.so);
      EXPECT_EQ(r.size(), dados.find('p') != std::string::npos ? 1u : (c < 0 ? 2u : 1u) + (conjunto == 5));
      for (const auto& [etiqueta, x] : r) {
        if (etiqueta == "pH" || etiqueta == "pOH") {  // the pOH for a base only
          EXPECT_TRUE(etiqueta == "pH" || c < 0);
          test::EsperaCerca(x, etiqueta == "pH" ? PHFuerte(c) : 14 - PHFuerte(c), 0.00052);
        } else if (etiqueta == "[H_3O^+]" || etiqueta == "[OH^-]" || etiqueta == "&+Ic&-I") {
          EXPECT_EQ(etiqueta == "[OH^-]", conjunto == 5 && c < 0);
          EsperaCifras(x, std::fabs(c), std::fabs(c) < 0.02 ? 3 : 4);
        } else if (etiqueta == "&+IV&-I" || etiqueta == "&+Im&-I") {
          const bool vol = etiqueta == "&+IV&-I";
          EsperaCifras(x, vol ? m / M / std::fabs(c) * 1000 : std::fabs(c) * V / 1000 * M, 4);
          EXPECT_TRUE(vol ? x.valor >= 240 && x.valor <= 1560 : x.valor >= 0.015) << "a mass that can be weighed";
        } else {
          ADD_FAILURE() << "an answer not understood: " << etiqueta;
        }
      }
      if (HasFailure()) return;
    }
}

// ---------------------------------------------------------------------------
// Generators 2 and 3: weak acids and bases, and the ions of salts.

// One weak species in water: any two of c0, x ([H3O+] or [OH-] it makes), K
// and alpha give the others, with K = x^2 / (c0 - x) solved by bisection.
struct Equilibrio {
  double c0 = NAN, x = NAN, K = NAN, alfa = NAN;
};
Equilibrio Completa(Equilibrio e) {
  auto hay = [](double v) { return !std::isnan(v); };
  if (hay(e.c0) && hay(e.K)) {
    double a = 0, b = e.c0;
    for (int k = 0; k < 200; ++k) (((a + b) / 2) * ((a + b) / 2) > e.K * (e.c0 - (a + b) / 2) ? b : a) = (a + b) / 2;
    e.x = a;
  } else if (hay(e.c0) && hay(e.alfa)) {
    e.x = e.alfa * e.c0;
  } else if (hay(e.x) && hay(e.K)) {
    e.c0 = e.x + e.x * e.x / e.K;
  } else if (hay(e.alfa) && hay(e.K)) {
    e.c0 = e.K * (1 - e.alfa) / (e.alfa * e.alfa), e.x = e.alfa * e.c0;
  } else if (hay(e.alfa)) {
    e.c0 = e.x / e.alfa;
  }  // else c0 and x are given
  e.alfa = e.x / e.c0, e.K = e.x * e.x / (e.c0 - e.x);
  return e;
}

// The pH of the same solution with the water's own ions, by the charge
// balance x = Kw / x + c0 K / (K + x).
double PHReal(double K, double c0, bool base) {
  double a = -14, b = 0;  // log10 x
  for (int k = 0; k < 200; ++k) {
    const double l = (a + b) / 2, x = std::pow(10.0, l);
    (x > Kw / x + c0 * K / (K + x) ? b : a) = l;
  }
  return base ? 14 + a : -a;
}

// A weak species' problem: c0 (or NaN), K (or NaN) as read by the caller,
// the rest from the statement; every answer recomputed. `M` the molar mass
// for a mass asked. Returns what was given: "c" concentration, "m" mass,
// "K", "a" alpha, "p" pH.
std::string CompruebaDebil(const test::Problema& p, double c0, double K, bool base, double M = NAN) {
  const test::Datos d(p.st);
  Equilibrio e{c0, NAN, K, NAN};
  std::string dados = std::isnan(c0) ? "" : d.Tiene("g") ? "m" : "c";
  if (!std::isnan(K)) dados += "K";
  if (d.Tiene("%")) {
    e.alfa = d.En("%") / 100, dados += "a";
    EsperaAlfa(d.En("%"), d.En("%"));
  }
  if (const double pH = PHDado(p.st); !std::isnan(pH)) {
    e.x = std::pow(10.0, base ? pH - 14 : -pH), dados += "p";
    EnPaso(pH, 1e-3);
  }
  EXPECT_EQ(dados.size(), 2u) << "two data fix the solution: " << dados;
  const Equilibrio t = Completa(e);
  const double pH = base ? 14 + std::log10(t.x) : -std::log10(t.x);
  EXPECT_TRUE(t.x > 0 && t.alfa < 1 && pH > 0 && pH < 14) << t.x << " " << t.c0;
  // The quadratic leaves out the water's ions only where that changes no digit shown.
  EXPECT_NEAR(PHReal(t.K, t.c0, base), pH, 0.0005) << "c0 " << t.c0 << " K " << t.K;
  std::string pedidos;
  for (const auto& [etiqueta, m] : Respuestas(p.so)) {
    if (etiqueta == "pH" || etiqueta == "pOH") {
      EsperaPH(m, etiqueta == "pH" ? pH : 14 - pH);
      pedidos += etiqueta == "pH" ? "p" : "";
    } else if (etiqueta == "&alfa") {
      EsperaAlfa(m.valor, t.alfa * 100), pedidos += 'a';
    } else if (etiqueta == "&+Ic&-I_0" || etiqueta == "&+Im&-I") {  // a mass for the concentration
      const bool masa = etiqueta == "&+Im&-I";
      EsperaCifras(m, t.c0 * (masa ? d.En("mL") / 1000 * M : 1), masa || t.c0 >= 0.02 ? 4 : 3), pedidos += 'c';
    } else if (etiqueta == (base ? "&+IK_b&-I" : "&+IK_a&-I")) {
      EsperaCifras(m, t.K, 3), pedidos += 'K';
    } else {
      ADD_FAILURE() << "an answer not understood: " << etiqueta;
    }
  }
  // What is asked is what is not given; a base's pH comes with its pOH.
  for (char x : pedidos) EXPECT_EQ(dados.find(x), std::string::npos) << dados << " " << x;
  EXPECT_EQ(pedidos.size(), std::isnan(M) ? 2u : 1u) << p.so;
  EXPECT_EQ(p.so.find("pOH") != std::string::npos, base && pedidos.find('p') != std::string::npos);
  return dados;
}

// The weak species of generator 2 by formula: K, base or not, and the most
// concentrated solution that can be made (benzoic acid and aniline dissolve
// only so far; nitrous and hypochlorous acids exist in dilute solution only).
struct Debil {
  double K;
  bool base;
  double cMax;
};
const std::map<std::string, Debil> kDebiles = {
    {"CH_3COOH", {1.8e-5, false, 2.5}},  {"HF", {7e-4, false, 2.5}},             {"HNO_2", {4.5e-4, false, 0.5}},
    {"HCOOH", {1.8e-4, false, 2.5}},     {"C_6H_5COOH", {6.6e-5, false, 0.025}}, {"HClO", {3e-8, false, 0.5}},
    {"HCN", {4e-10, false, 2.5}},        {"CH_3(CH_2)_2COOH", {1.5e-5, false, 2.5}},
    {"CH_3NH_2", {4.37e-4, true, 2.5}},  {"C_6H_5NH_2", {3.8e-10, true, 0.35}}, {"C_2H_5NH_2", {6.41e-4, true, 2.5}},
    {"NH_3", {1.77e-5, true, 2.5}}};
const std::vector<std::string> kAcidosDebiles = {"CH_3COOH", "HF", "HNO_2", "HCOOH", "C_6H_5COOH", "HClO", "HCN",
                                                 "CH_3(CH_2)_2COOH"};
const std::vector<std::string> kBasesDebiles = {"CH_3NH_2", "C_6H_5NH_2", "C_2H_5NH_2", "NH_3"};

TEST(AcidBaseWeak, EveryAnswerFollowsFromTheStatementSolvedExactly) {
  std::map<std::string, int> formas;  // acid or base, and what is given
  int n = 0;
  for (int seqB = 0; seqB < 72; ++seqB)
    for (uint64_t semilla = 1; semilla <= 20; ++semilla, ++n) {
      const test::Problema p = Genera(2, seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::vector<std::string> f = test::FormulasEntreParentesis(p.st);
      ASSERT_TRUE(f.size() == 1 && kDebiles.count(f[0]));
      const Debil& s = kDebiles.at(f[0]);
      // The species by the counter: a base form one of the four bases, an
      // acid form one of the eight acids, or acetic acid.
      EXPECT_TRUE(s.base ? f[0] == kBasesDebiles[seqB % 4] : f[0] == kAcidosDebiles[seqB % 8] || f[0] == "CH_3COOH");
      const test::Datos d(p.st);
      double c0 = d.En("mol/L");
      if (d.Tiene("g")) {
        c0 = d.En("g") / MasaMolarDe(f[0], test::Masas(p.st)) / (d.En("mL") / 1000);
        EXPECT_TRUE(d.En("mL") >= 250 && d.En("mL") <= 1500 && d.En("g") >= 0.1) << p.st;
      } else if (!std::isnan(c0)) {
        EsperaFormatoC(c0, 1e-3);
        EXPECT_GE(c0, 0.002);
      }
      EXPECT_TRUE(std::isnan(c0) || c0 <= s.cMax * 1.0001) << "no more than dissolves: " << c0;
      const double K = Constante(p.st, s.base ? 'b' : 'a');
      EXPECT_TRUE(std::isnan(Constante(p.st, s.base ? 'a' : 'b')));
      EXPECT_TRUE(std::isnan(K) || std::fabs(K - s.K) < 1e-6 * s.K) << "the constant of " << f[0];
      ++formas[(s.base ? "B" : "A") + CompruebaDebil(p, c0, K, s.base)];
      if (HasFailure()) return;
    }
  // All eighteen forms, 2 x 9 pairs of data; forms 1 and 2 the most common.
  EXPECT_EQ(formas.size(), 18u);
  for (const auto& [forma, k] : formas) EXPECT_GT(k, 4) << forma;
  EXPECT_GT(formas["AcK"] + formas["AmK"], n / 5);
}

// The ions that hydrolyse, as the salt's formula holds them: the parent and
// its K, and the word for the ion in the salt's name.
struct Hidroliza {
  std::string ion, padre, palabra;
  double Kpadre;
};
const std::vector<Hidroliza> kHidrolizan = {
    {"C_2H_5NH_3", "C_2H_5NH_2", "ethylammonium", 6.41e-4}, {"CH_3NH_3", "CH_3NH_2", "methylammonium", 4.37e-4},
    {"NH_4", "NH_3", "ammonium", 1.77e-5},                  {"CH_3COO", "CH_3COOH", "acetate", 1.8e-5},
    {"C_6H_5COO", "C_6H_5COOH", "benzoate", 6.6e-5},        {"HCOO", "HCOOH", "formate", 1.8e-4},
    {"CN", "HCN", "cyanide", 4e-10}};
const std::map<std::string, std::string> kNeutros = {{"Cl", "chloride"},  {"Br", "bromide"},        {"I", "iodide"},
                                                     {"NO_3", "nitrate"}, {"ClO_4", "perchlorate"}, {"Na", "sodium"},
                                                     {"K", "potassium"}};

TEST(AcidBaseSalts, HydrolysisFollowsFromTheParentsConstant) {
  std::set<std::string> sales, formas;
  for (int seqB = 0; seqB < 8; ++seqB)
    for (uint64_t semilla = 1; semilla <= 100; ++semilla) {
      const test::Problema p = Genera(3, seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::string sal = test::FormulasEntreParentesis(p.st).at(0);
      const Hidroliza* h = nullptr;  // the active ion, and the other
      std::string otro;
      for (const Hidroliza& x : kHidrolizan)
        for (const std::string& y : {sal.substr(std::min(x.ion.size(), sal.size())), sal.substr(0, sal.size() - std::min(x.ion.size(), sal.size()))})
          if (!h && kNeutros.count(y) && (sal == x.ion + y || sal == y + x.ion)) h = &x, otro = y;
      ASSERT_TRUE(h) << sal;
      const bool cation = otro != "Na" && otro != "K";
      EXPECT_TRUE(otro != "ClO_4" || h->ion == "NH_4") << "no explosive to dissolve: " << sal;
      EXPECT_EQ(cation, h->padre.find("NH") != std::string::npos) << sal;
      sales.insert(sal);
      // Named cation first: "ammonium chloride", "sodium acetate".
      const std::string nombre = cation ? h->palabra + " " + kNeutros.at(otro) : kNeutros.at(otro) + " " + h->palabra;
      EXPECT_NE(p.st.find(nombre + " (" + sal + ")"), std::string::npos) << nombre;
      // The parent's K and the water's give the ion's.
      std::smatch m;
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex(std::string("K_") + (cation ? 'b' : 'a') + R"(&-I\(([^)]*)\))")));
      EXPECT_EQ(m[1], h->padre);
      const double Kp = Constante(p.st, cation ? 'b' : 'a');
      EXPECT_NEAR(Kp, h->Kpadre, 1e-6 * Kp);
      EXPECT_NEAR(Constante(p.st, 'w'), Kw, 1e-20);
      const test::Datos d(p.st);
      const double M = d.En("g/mol");
      if (!std::isnan(M)) {
        EXPECT_NEAR(M, MasaMolarDe(sal, {}, false), 0.003 * M) << sal;
      }
      double c0 = d.Tiene("g") ? d.En("g") / M / (d.En("mL") / 1000) : d.En("mol/L");
      if (d.Tiene("mol/L")) {
        EsperaFormatoC(c0, 1e-3);
        EXPECT_TRUE(c0 >= 0.002 && c0 <= 0.9) << c0;
      }
      const std::string dados = CompruebaDebil(p, c0, Kw / Kp, !cation, d.Tiene("g") ? NAN : M);
      formas.insert(dados + (d.Tiene("mL") ? "V" : ""));
      EXPECT_TRUE(std::isnan(PHDado(p.st)) || (PHDado(p.st) < 7) == cation);
      if (HasFailure()) return;
    }
  EXPECT_EQ(formas, (std::set<std::string>{"cK", "Kp", "mKV", "KpV"}));
  EXPECT_GE(sales.size(), 15u);
}

// ---------------------------------------------------------------------------
// Generator 4: buffers.

// The pH of acetic acid and acetate (or ammonia and ammonium), `total` mol/L
// of both, with [Na+] and [Cl-]: bisection on the charge balance
// [H3O+] + [Na+] + [NH4+] = [OH-] + [Cl-] + [CH3COO-].
double PHBalance(bool amoniaco, double K, double total, double sodio, double cloruro) {
  const double Ka = amoniaco ? Kw / K : K;
  double a = -14, b = 0;
  for (int k = 0; k < 200; ++k) {
    const double l = (a + b) / 2, h = std::pow(10.0, l), acida = total * h / (h + Ka);  // CH3COOH or NH4+
    (h + sodio + (amoniaco ? acida : 0) - Kw / h - cloruro - (amoniaco ? 0 : total - acida) > 0 ? b : a) = l;
  }
  return -a;
}

TEST(AcidBaseBuffers, HendersonHoldsAndAgreesWithTheExactEquilibrium) {
  for (int seqB = 0; seqB < 6; ++seqB)
    for (uint64_t semilla = 1; semilla <= 150; ++semilla) {
      const test::Problema p = Genera(4, seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      std::map<std::string, double> c;
      static const std::regex parte(R"((\S+)& mol/L in (acetic acid|sodium acetate|ammonia|ammonium chloride))");
      for (std::sregex_iterator it(p.st.begin(), p.st.end(), parte), end; it != end; ++it)
        c[(*it)[2]] = test::Numeros((*it)[1])[0];
      ASSERT_EQ(c.size(), 2u);
      const bool amoniaco = c.count("ammonia"), agua = p.st.find("pure water") != std::string::npos;
      const double debil = amoniaco ? c["ammonia"] : c["acetic acid"];
      const double conj = amoniaco ? c["ammonium chloride"] : c["sodium acetate"];
      std::smatch m;
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"((\d+)& mL of (?:a|the) buffer)")));
      const double VR = std::stod(m[1]);
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"((\d+)& mL of (\S+)& mol/L (sodium hydroxide|hydrochloric acid))")));
      const double V = std::stod(m[1]), C = test::Numeros(m[2])[0];
      const bool sosa = m[3] == "sodium hydroxide";
      // The form by the counter: the buffer, what is added, the volume first, water.
      EXPECT_EQ(std::vector<bool>({amoniaco, sosa, p.st.starts_with("A flask holds"), agua}),
                std::vector<bool>({seqB % 2 == 1, seqB == 0 || seqB == 3 || seqB == 4, seqB >= 2, seqB >= 4}));
      EXPECT_TRUE(!agua || p.st.find(NumTexto(VR) + "& mL of pure water") != std::string::npos);
      const double K = Constante(p.st, amoniaco ? 'b' : 'a');
      EXPECT_NEAR(K, 1.8e-5, 1e-12);
      EXPECT_NEAR(Constante(p.st, 'w'), Kw, 1e-20);
      // Real data: what dissolves, a little added, a buffer that holds.
      EXPECT_TRUE(debil >= 0.05 && debil <= 0.9 && conj >= 0.05 && conj <= 1.13 && C >= 0.1 && C <= 0.25) << p.st;
      EXPECT_TRUE(V >= 1 && V <= VR / 2);
      const bool gastaDebil = sosa != amoniaco;
      const double n = C * V, gastado = (gastaDebil ? debil : conj) * VR;
      EXPECT_TRUE(n <= 0.6 * gastado && n >= 0.05 * gastado) << n << " of " << gastado;
      const double debil2 = debil * VR + (gastaDebil ? -n : n), conj2 = conj * VR + (gastaDebil ? n : -n);
      for (double r : {conj / debil, conj2 / debil2}) EXPECT_TRUE(r >= 0.1 && r <= 10) << r;
      // pH = pKa + log(salt / acid) for acetic acid, pOH = pKb + log(NH4+ / NH3) for ammonia.
      auto henderson = [&](double d, double b) {
        const double x = -std::log10(K) + std::log10(b / d);
        return amoniaco ? 14 - x : x;
      };
      const double Vt = VR + V, sodio = amoniaco ? 0 : conj, cloruro = amoniaco ? conj : 0;
      const double exacto0 = PHBalance(amoniaco, K, debil + conj, sodio, cloruro);
      const double exacto1 = PHBalance(amoniaco, K, (debil + conj) * VR / Vt, (sodio * VR + (sosa ? n : 0)) / Vt,
                                       (cloruro * VR + (sosa ? 0 : n)) / Vt);
      const std::vector<Respuesta> r = Respuestas(p.so);
      ASSERT_EQ(r.size(), agua ? 5u : 3u) << p.so;
      EXPECT_EQ(r[0].first + r[1].first + r[2].first, "pHpH&DeltapH");
      EsperaPH(r[0].second, henderson(debil, conj));
      EsperaPH(r[1].second, henderson(debil2, conj2));
      // Within the rounding shown, the shortcut is the exact equilibrium.
      EXPECT_NEAR(r[0].second.valor, exacto0, 0.001) << "exact " << exacto0;
      EXPECT_NEAR(r[1].second.valor, exacto1, 0.001) << "exact " << exacto1;
      EXPECT_NEAR(r[2].second.valor, r[1].second.valor - r[0].second.valor, 1e-9);
      EXPECT_EQ(r[2].second.valor > 0, sosa) << "a base raises the pH, an acid lowers it";
      if (agua) {  // the same amount in pure water
        EXPECT_EQ(r[3].first, test::Texto("REG_En_agua") + ": pH");
        EsperaPH(r[3].second, PHFuerte((sosa ? -n : n) / Vt));
        EXPECT_NEAR(r[4].second.valor, r[3].second.valor - 7, 1e-9);
        EXPECT_GT(std::fabs(r[4].second.valor), 5 * std::fabs(r[2].second.valor)) << "water does not buffer";
      }
      if (HasFailure()) return;
    }
}

// ---------------------------------------------------------------------------
// Every form of the four generators, 200 seeds each: whole, real problems.

TEST(AcidBasePH, EveryFormMakesWholeRealProblems) {
  const std::regex roto("%[A-Za-z0-9_]+%|<Error|nan|inf|ATEM__");
  const std::regex unPH(R"((?:^|[^A-Za-z])pH (?:of |is |= )?(-?\d+(?:&\.\d+)?))");
  for (const auto& [gen, formas] : {std::pair{1, 11}, {2, 18}, {3, 4}, {4, 6}})
    for (int forma = 0; forma < formas; ++forma)
      for (uint64_t semilla = 1; semilla <= 200; ++semilla) {
        const test::Problema p = Genera(gen, forma, semilla);
        SCOPED_TRACE(p.st + "\n" + p.so);
        ASSERT_TRUE(p.st.size() > 40 && p.so.size() > 12 && p.st.ends_with("&LF") && p.so.ends_with("&LF"));
        ASSERT_FALSE(std::regex_search(p.st + p.so, roto));
        // No negative number but a change of pH; every pH between 0 and 14.
        for (double x : test::Numeros(p.st + std::regex_replace(p.so, std::regex("&DeltapH = -"), ""))) ASSERT_GE(x, 0);
        const std::string t = p.st + p.so;
        for (std::sregex_iterator it(t.begin(), t.end(), unPH), end; it != end; ++it) {
          const double x = test::Numeros((*it)[1])[0];
          ASSERT_TRUE(x > 0 && x < 14) << "pH " << x;
        }
        const test::Datos datos(t);
        for (const auto& [x, unidad] : datos.Todos()) ASSERT_GT(x, 0) << unidad;
      }
}

}  // namespace
}  // namespace ss::mod::eab
