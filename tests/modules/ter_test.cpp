// The thermochemistry generators read as a student reads the page: every
// equation balanced by the tests' own atom counter, and every answer
// recomputed from the numbers the statement shows.
#include <gtest/gtest.h>

#include <regex>

#include "modules/ANEU_QUIM_TER/ter.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::ter {
namespace {

using test::Datos;
using test::NumerosTras;

struct Termino {
  double coef;  // negative for a reactant
  std::string formula;
};
std::string SinFase(const std::string& f) { return f.substr(0, f.find("_ _(")); }

std::vector<Termino> Terminos(const std::string& ecuacion) {
  std::vector<Termino> v;
  const std::size_t flecha = ecuacion.find("  &ars  ");
  EXPECT_NE(flecha, std::string::npos) << ecuacion;
  static const std::regex frac(R"(#COC\((\d+)#N\)\((\d+)#COC\)_ (.+))"), ent(R"((\d+)_ (.+))");
  for (int lado = 0; lado < 2; ++lado) {
    std::string t = lado ? ecuacion.substr(flecha + 8) : ecuacion.substr(0, flecha);
    for (std::size_t mas; !t.empty(); t = mas == std::string::npos ? "" : t.substr(mas + 3)) {
      mas = t.find(" + ");
      const std::string x = t.substr(0, mas);
      std::smatch m;
      double c = 1;
      std::string f = x;
      if (std::regex_match(x, m, frac)) c = std::stod(m[1]) / std::stod(m[2]), f = m[3];
      else if (std::regex_match(x, m, ent)) c = std::stod(m[1]), f = m[2];
      v.push_back({lado ? c : -c, f});
    }
  }
  return v;
}

// Doubled to whole coefficients, phases left out, for the atom counter.
void EsperaAjustada(const std::vector<Termino>& v) {
  std::string lados[2];
  for (const Termino& x : v) {
    std::string& l = lados[x.coef > 0];
    l += (l.empty() ? "" : " + ") + std::to_string(static_cast<int>(std::lround(2 * std::fabs(x.coef)))) + SinFase(x.formula);
    EXPECT_NEAR(2 * x.coef, std::round(2 * x.coef), 1e-9) << x.formula;
  }
  test::EsperaAjustada(lados[0] + " = " + lados[1]);
}

// "label(X)& =& v" data of a statement, by formula.
std::map<std::string, double> Tabla(const std::string& st, const std::string& etiqueta) {
  std::map<std::string, double> m;
  const std::regex r(etiqueta + R"(\((.+?)\)& =& (-?[0-9&.]+))");
  for (std::sregex_iterator it(st.begin(), st.end(), r), end; it != end; ++it) m[(*it)[1]] = test::Numeros((*it)[2])[0];
  return m;
}
const std::string kHf = "_f\xB0", kS = "&\\+IS&-I\xB0";

double Suma(const std::vector<Termino>& v, const std::map<std::string, double>& datos) {
  double s = 0;
  for (const Termino& x : v) {
    if (datos.count(x.formula)) s += x.coef * datos.at(x.formula);
    else EXPECT_EQ(test::Especie(SinFase(x.formula)).atomos.size(), 1u) << "no datum for " << x.formula;
  }
  return s;
}

// Answers show four significant figures: "14800" is good to 5.
void Cerca(const test::Mostrado& m, double x) { test::EsperaCerca(m, x, 5.01e-4 * std::fabs(x)); }

test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + gen));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_TER", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with(".&LF")) << p.st << p.so;
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|ATEM__|<ERROR"))) << p.st << p.so;
  return p;
}

std::vector<Termino> EcuacionDe(const std::string& st) {
  std::string e = test::Tras(st, "&SP=5:");
  e = e.substr(0, e.find("      "));
  const auto v = Terminos(e);
  EsperaAjustada(v);
  return v;
}

void Gen1(const test::Problema& p, int forma) {
  const auto r = test::Respuestas(p.so);
  const Datos d(p.st);
  if (forma >= 4) {
    double Q = d.En("kJ", 0), W = d.En("kJ", 1);
    if (forma > 4) Q *= p.st.find("release") != std::string::npos ? -1 : 1, W *= p.st.find("on the system") != std::string::npos ? 1 : -1;
    ASSERT_EQ(r.size(), forma == 4 ? 1u : 2u) << p.so;
    Cerca(r[0], Q + W);
    if (forma > 4) Cerca(r[1], Q);
    return;
  }
  const auto v = EcuacionDe(p.st);
  double dn = 0;
  for (const Termino& x : v) dn += x.formula.ends_with("(_g_)") ? x.coef : 0;
  const double dado = NumerosTras(p.st, "^ \xB0 = ")[0], RT = NumerosTras(p.st, "&+IR&-I = ")[0] * 298.15 / 1000;
  const bool daU = p.st.find("&Delta&+IU&-I^") != std::string::npos;
  const double dH = daU ? dado + dn * RT : dado;
  ASSERT_EQ(r.size(), 2u) << p.so;
  Cerca(r[0], daU ? dH : dH - dn * RT);
  Cerca(r[1], std::fabs(dH) * d.En("g") / (NumerosTras(p.st, "&+IM&-I(")[0] * std::fabs(v[0].coef)));
  EXPECT_EQ(p.st.find("heat released") != std::string::npos, dH < 0) << p.st;
  EXPECT_EQ(p.st.find(SinFase(v[0].formula) + ") = "), p.st.find("&+IM&-I(") + 8) << "the mass is of the first species";
}

void Gen2(const test::Problema& p, int) {
  const auto v = EcuacionDe(p.st);
  const double dH = Suma(v, Tabla(p.st, kHf));
  const std::string f = test::Tras(p.st, "&+IM&-I(").substr(0, test::Tras(p.st, "&+IM&-I(").find(')'));
  double coef = 0;
  for (const Termino& x : v) coef = coef == 0 && SinFase(x.formula) == f ? std::fabs(x.coef) : coef;
  const auto r = test::Respuestas(p.so);
  ASSERT_EQ(r.size(), 2u) << p.so;
  Cerca(r[0], dH);
  Cerca(r[1], dH * Datos(p.st).En("g") / (NumerosTras(p.st, "&+IM&-I(")[0] * coef));
}

void Gen5(const test::Problema& p, int forma) {
  const auto v = EcuacionDe(p.st);
  const bool tablas = forma % 2 == 1, cambio = forma >= 2;
  const double dH = tablas ? Suma(v, Tabla(p.st, kHf)) : NumerosTras(p.st, "&Delta&+IH&-I\xB0 = ")[0];
  const double dS = tablas ? Suma(v, Tabla(p.st, kS)) : NumerosTras(p.st, "&Delta&+IS&-I\xB0 = ")[0];
  const double dG = dH - 298.15 * dS / 1000, Tc = dH * 1000 / dS - 273.15;
  bool liquido = false;
  // Liquids, sulfur (melts at 115 °C) and glucose (chars) only near room temperature.
  for (const Termino& x : v) liquido |= x.formula.ends_with("(_l_)") || SinFase(x.formula) == "S" || SinFase(x.formula) == "C_6H_1_2O_6";
  const auto r = test::Respuestas(p.so);
  ASSERT_EQ(r.size(), 2u + 2 * tablas) << p.so;
  if (tablas) Cerca(r[0], dH), Cerca(r[1], dS);
  Cerca(r[2 * tablas], dG);
  if (cambio) {
    EXPECT_EQ(p.so.find("(non-spontaneous)") != std::string::npos, dG >= 0) << p.so;
    EXPECT_TRUE(dH * dS > 0 && Tc <= 3000 && (!liquido || Tc <= 100)) << p.st;
    Cerca(r[2 * tablas + 1], Tc);
  } else {
    const double T = Datos(p.st).En("\xB0" "C");
    EXPECT_TRUE(liquido ? T <= 60 : T >= 100 && T <= 1000) << p.st;
    Cerca(r[2 * tablas + 1], dH - (T + 273.15) * dS / 1000);
  }
}

void Gen7(const test::Problema& p, int forma) {
  std::smatch m;
  ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(, ([^ ,]+_ _\(_[slg]_\)),)"))) << p.st;
  std::map<std::string, int> n;
  for (const auto& [e, k] : test::Formula(SinFase(m[1]))) n[e] = k;
  const Datos d(p.st);
  const int i = forma == 3 || forma == 4 ? 0 : 1;  // the first kJ/mol datum of the CO2 and H2O line
  const double co2 = d.En("kJ/mol", i), h2o = d.En("kJ/mol", i + 1), dado = d.En("kJ/mol");
  const auto masas = test::Masas(p.st);
  const double M = forma >= 3 ? test::MasaMolar(test::Formula(SinFase(m[1])), masas) : NAN;
  const double productos = n["C"] * co2 + n["H"] / 2.0 * h2o;
  const auto r = test::Respuestas(p.so);
  ASSERT_EQ(r.size(), forma == 5 ? 2u : 1u) << p.so;
  if (forma == 1 || forma == 5) Cerca(r[0], productos - dado);
  if (forma == 5) Cerca(r[1], -(productos - dado) * 1000 / M);
  if (forma == 2) Cerca(r[0], productos - dado);
  if (forma == 3) Cerca(r[0], productos + d.En("kJ") * M);
  if (forma == 4) Cerca(r[0], productos + d.En("kJ") * M / d.En("g"));
  EXPECT_TRUE(co2 == -393.51 && h2o == -285.83) << p.st;
}

TEST(Thermochemistry, EveryReactionOfTheTableIsBalanced) {
  for (int fila = 1; fila <= kReaccionesTermo; ++fila) EsperaAjustada(Terminos(EcuacionTermo(fila)));
}

TEST(Thermochemistry, EveryFormRecomputedFromItsStatement) {
  const struct {
    int gen, formas, base;
    void (*checker)(const test::Problema&, int);
  } kFamilias[] = {{1, 8, 0, Gen1}, {2, 1, 0, Gen2}, {5, 4, 0, Gen5}, {7, 5, 1, Gen7}};
  for (const auto& f : kFamilias)
    for (int forma = 0; forma < f.formas; ++forma)
      for (uint64_t s = 1; s <= 200; ++s) {
        SCOPED_TRACE(testing::Message() << "gen " << f.gen << " form " << forma + f.base << " seed " << s);
        f.checker(Genera(f.gen, forma, s), forma + f.base);
        if (HasFailure()) return;
      }
}

}  // namespace
}  // namespace ss::mod::ter
