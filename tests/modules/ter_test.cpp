// Thermochemistry: every equation balanced by the tests' own atom counter and
// every answer recomputed from the numbers the statement shows.
#include <gtest/gtest.h>

#include "modules/ANEU_QUIM_TER/ter.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::ter {
namespace {

using test::Datos, test::NumerosTras;
struct Termino { double coef; std::string formula; };  // coef negative for a reactant
std::string SinFase(const std::string& f) { return f.substr(0, f.find("_ _(")); }

// The terms of "x  &ars  y" (coefficients such as "#COC(5#N)(2#COC)_ "), up to the blanks before its ΔH;
// checked balanced, doubled to whole coefficients and phases left out.
std::vector<Termino> Terminos(std::string e) {
  e = e.substr(0, e.find("      "));
  static const std::regex term(R"((?:#COC\((\d+)#N\)\((\d+)#COC\)_ |(\d+)_ )?(.+))");
  const std::size_t flecha = e.find("  &ars  ");
  std::vector<Termino> v;
  std::string lados[2];
  for (int lado = 0; lado < 2; ++lado) {
    std::string t = lado ? e.substr(flecha + 8) : e.substr(0, flecha);
    for (std::size_t mas; !t.empty(); t = mas == std::string::npos ? "" : t.substr(mas + 3)) {
      const std::string x = t.substr(0, mas = t.find(" + "));
      std::smatch m;
      EXPECT_TRUE(std::regex_match(x, m, term)) << e;
      const double c = m[1].matched ? std::stod(m[1]) / std::stod(m[2]) : m[3].matched ? std::stod(m[3]) : 1;
      EXPECT_NEAR(2 * c, std::round(2 * c), 1e-9) << x;
      v.push_back({lado ? c : -c, m[4]});
      lados[lado] += (lados[lado].empty() ? "" : " + ") + std::to_string(std::lround(2 * c)) + SinFase(m[4]);
    }
  }
  test::EsperaAjustada(lados[0] + " = " + lados[1]);
  return v;
}
std::vector<Termino> EcuacionDe(const std::string& st) { return Terminos(test::Tras(st, "&SP=5:")); }

// The sum over the reaction of the "label(X)& =& v" data of a statement; only
// elements may go without one.
const std::string kHf = "_f\xB0", kS = "&\\+IS&-I\xB0";
double Suma(const std::vector<Termino>& v, const std::string& st, const std::string& etiqueta) {
  std::map<std::string, double> d;
  const std::regex r(etiqueta + R"(\((.+?)\)& =& (-?[0-9&.]+))");
  for (std::sregex_iterator it(st.begin(), st.end(), r), end; it != end; ++it) d[(*it)[1]] = test::Numeros((*it)[2])[0];
  double s = 0;
  for (const Termino& x : v)
    if (d.count(x.formula)) s += x.coef * d.at(x.formula);
    else EXPECT_EQ(test::Especie(SinFase(x.formula)).atomos.size(), 1u) << "no datum for " << x.formula;
  return s;
}

// Answers show four significant figures: "14800" is good to 5.
void Cerca(const test::Mostrado& m, double x) { test::EsperaCerca(m, x, 5.01e-4 * std::fabs(x)); }

void Gen1(const test::Problema& p, const std::vector<test::Mostrado>& r, int forma) {
  const Datos d(p.st);
  if (forma >= 4) {  // first law: heat and work positive when energy enters the system
    const bool libera = p.st.find("release") != std::string::npos, sobre = p.st.find("on the system") != std::string::npos;
    const double Q = d.En("kJ", 0) * (forma > 4 && libera ? -1 : 1), W = d.En("kJ", 1) * (forma > 4 && !sobre ? -1 : 1);
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

void Gen2(const test::Problema& p, const std::vector<test::Mostrado>& r, int) {
  const auto v = EcuacionDe(p.st);
  const double dH = Suma(v, p.st, kHf);
  const std::string f = test::Tras(p.st, "&+IM&-I(");
  const auto x = std::find_if(v.begin(), v.end(), [&](const Termino& t) { return f.starts_with(SinFase(t.formula) + ")"); });
  ASSERT_TRUE(x != v.end() && r.size() == 2u) << p.st << p.so;
  Cerca(r[0], dH);
  Cerca(r[1], dH * Datos(p.st).En("g") / (NumerosTras(p.st, "&+IM&-I(")[0] * std::fabs(x->coef)));
}

void Gen5(const test::Problema& p, const std::vector<test::Mostrado>& r, int forma) {
  const auto v = EcuacionDe(p.st);
  const bool tablas = forma % 2 == 1;
  const double dH = tablas ? Suma(v, p.st, kHf) : NumerosTras(p.st, "&Delta&+IH&-I\xB0 = ")[0];
  const double dS = tablas ? Suma(v, p.st, kS) : NumerosTras(p.st, "&Delta&+IS&-I\xB0 = ")[0];
  const double dG = dH - 298.15 * dS / 1000, Tc = dH * 1000 / dS - 273.15;
  bool templado = false;  // liquids, sulfur (melts at 115 °C) and glucose (chars): near room temperature only
  for (const Termino& x : v) templado |= x.formula.ends_with("(_l_)") || SinFase(x.formula) == "S" || SinFase(x.formula) == "C_6H_1_2O_6";
  ASSERT_EQ(r.size(), 2u + 2 * tablas) << p.so;
  if (tablas) Cerca(r[0], dH), Cerca(r[1], dS);
  Cerca(r[2 * tablas], dG);
  if (forma >= 2) {
    EXPECT_EQ(p.so.find("(non-spontaneous)") != std::string::npos, dG >= 0) << p.so;
    EXPECT_TRUE(dH * dS > 0 && Tc <= 3000 && (!templado || Tc <= 100)) << p.st;
    Cerca(r[2 * tablas + 1], Tc);
  } else {
    const double T = Datos(p.st).En("\xB0" "C");
    EXPECT_TRUE(templado ? T <= 60 : T >= 100 && T <= 1000) << p.st;
    Cerca(r[2 * tablas + 1], dH - (T + 273.15) * dS / 1000);
  }
}

void Gen7(const test::Problema& p, const std::vector<test::Mostrado>& r, int forma) {
  std::smatch m;
  ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(, ([^ ,]+_ _\(_[slg]_\)),)"))) << p.st;
  const test::Composicion c = test::Formula(SinFase(m[1]));
  std::map<std::string, int> n(c.begin(), c.end());
  const Datos d(p.st);
  const int i = forma == 3 || forma == 4 ? 0 : 1;  // the given enthalpy comes first when it is in kJ/mol
  const double co2 = d.En("kJ/mol", i), h2o = d.En("kJ/mol", i + 1), dado = d.En("kJ/mol");
  const double M = forma >= 3 ? test::MasaMolar(c, test::Masas(p.st)) : NAN, productos = n["C"] * co2 + n["H"] / 2.0 * h2o;
  EXPECT_TRUE(co2 == -393.51 && h2o == -285.83) << p.st;
  ASSERT_EQ(r.size(), forma == 5 ? 2u : 1u) << p.so;
  Cerca(r[0], forma == 3 ? productos + d.En("kJ") * M : forma == 4 ? productos + d.En("kJ") * M / d.En("g") : productos - dado);
  if (forma == 5) Cerca(r[1], -(productos - dado) * 1000 / M);
}

TEST(Thermochemistry, EveryReactionOfTheTableIsBalanced) {
  for (int fila = 1; fila <= kReaccionesTermo; ++fila) Terminos(EcuacionTermo(fila));
}

TEST(Thermochemistry, EveryFormRecomputedFromItsStatement) {
  const struct { int gen, formas, base; void (*checker)(const test::Problema&, const std::vector<test::Mostrado>&, int); }
      kFamilias[] = {{1, 8, 0, Gen1}, {2, 1, 0, Gen2}, {5, 4, 0, Gen5}, {7, 5, 1, Gen7}};
  for (const auto& f : kFamilias)
    for (int forma = 0; forma < f.formas; ++forma)
      for (uint64_t s = 1; s <= 200; ++s) {
        SCOPED_TRACE(testing::Message() << "gen " << f.gen << " form " << forma + f.base << " seed " << s);
        const test::Problema p = test::GeneraEn("ANEU_QUIM_TER", f.gen, forma, 0, s * 7919 + f.gen);
        EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with(".&LF")) << p.st << p.so;
        f.checker(p, test::Respuestas(p.so), forma + f.base);
        if (HasFailure()) return;
      }
}

}  // namespace
}  // namespace ss::mod::ter
