// The solutions problems (generators 1, 2, 3, 5 and 10 of the gases, formulas
// and solutions module): every answer is worked out again here from the data
// the statement prints, by the chemistry a student uses, and compared with the
// printed answer within what the roundings of the page allow.
#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ANEU_QUIM_DIS/densidades.h"
#include "modules/modulos.h"
#include "problems/generador.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "tests/modules/markup_numeros.h"

namespace ss {
namespace {

using mod::dis::AjusteDensidad;
using mod::dis::Densidad;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr int kSemillas = 40;
const std::string kGradoC =
    "\xB0"
    "C";

Mensajes& Textos() {
  static Mensajes m(SS_SOURCE_DIR);
  return m;
}

std::string Texto(std::string_view clave) {
  GenContext g(&Textos(), Aleatorio(1));
  return g.MsgQUI(clave);
}

struct Problema {
  std::string st, so;
  std::string Linea() const { return st.substr(0, st.find("&LF")); }  // the sentence with the data
};

Problema Genera(int generador, int seqB, int semilla) {
  GenContext g(&Textos(), Aleatorio(static_cast<uint64_t>(semilla) * 104729 + generador));
  const std::string command = ZeroPadCut(generador, 3) + "000" + ZeroPadCut(seqB, 4) + "000301";
  Problema p;
  GeneraProblema(g, "ANEU_QUIM_DIS", command, p.st, p.so);
  return p;
}

// ---- Reading the page ---------------------------------------------------------

// The numbers of a text that carry a unit ("12&.5& g/mL"), in order, by unit.
class Datos {
 public:
  explicit Datos(std::string_view t) {
    for (std::size_t at = t.find("& "); at != std::string_view::npos; at = t.find("& ", at + 2)) {
      const std::size_t blanco = t.rfind(' ', at);
      const std::size_t ini = blanco == std::string_view::npos ? 0 : blanco + 1;
      const std::vector<double> n = test::Numeros(t.substr(ini, at - ini));
      if (n.empty()) continue;
      std::size_t fin = at + 2;
      while (fin < t.size() && std::string_view(" ,;&").find(t[fin]) == std::string_view::npos) ++fin;
      std::string unidad(t.substr(at + 2, fin - at - 2));
      while (!unidad.empty() && unidad.back() == '.') unidad.pop_back();
      datos_.push_back({n.back(), unidad});
    }
  }
  // The k-th value given in `unidad`.
  double En(const std::string& unidad, int k = 0) const {
    for (const auto& [valor, u] : datos_)
      if (u == unidad && k-- == 0) return valor;
    ADD_FAILURE() << "no value " << k << " in " << unidad;
    return kNaN;
  }
  bool Tiene(const std::string& unidad) const {
    for (const auto& d : datos_)
      if (d.second == unidad) return true;
    return false;
  }

 private:
  std::vector<std::pair<double, std::string>> datos_;
};

// Part i (1 = a) of an answer, or the whole one-part answer for i = 0.
std::string Parte(const std::string& so, int i) {
  const std::string marca = i == 0 ? "&SP=10:" : Etiqueta(i);
  const std::size_t at = so.find(marca);
  if (at == std::string::npos) return {};
  const std::string resto = so.substr(at + marca.size());
  return resto.substr(0, resto.find("&LF"));
}

double Sin(const std::string& so, int i) {  // a number without unit
  const std::vector<double> n = test::Numeros(Parte(so, i));
  return n.empty() ? kNaN : n.front();
}

// The atomic masses printed under a statement.
std::map<std::string, double> MasasAtomicas(const std::string& st) {
  std::map<std::string, double> m;
  const std::size_t at = st.find("(g/mol)&LF");
  const std::size_t ini = st.rfind("&LF", at);
  if (at == std::string::npos || ini == std::string::npos) return m;
  const std::string linea = st.substr(ini, at - ini);
  const std::regex par(R"(([A-Z][a-z]?)=(\d+(&\.\d+)?))");
  for (std::sregex_iterator it(linea.begin(), linea.end(), par), end; it != end; ++it)
    m[(*it)[1]] = test::Numeros((*it)[2].str())[0];
  return m;
}

// The molar mass of a formula written in markup ("Al(OH)_3", "C_1_2H_2_2O_1_1").
double Grupo(std::string_view f, std::size_t& i, const std::map<std::string, double>& masas) {
  double total = 0;
  while (i < f.size() && f[i] != ')') {
    double parte;
    if (f[i] == '(') {
      ++i;
      parte = Grupo(f, i, masas);
      ++i;
    } else {
      std::string el(1, f[i++]);
      if (i < f.size() && std::islower(static_cast<unsigned char>(f[i]))) el += f[i++];
      const auto it = masas.find(el);
      if (it == masas.end()) {
        ADD_FAILURE() << "no atomic mass given for " << el;
        return kNaN;
      }
      parte = it->second;
    }
    std::string n;
    while (i + 1 < f.size() && f[i] == '_' && std::isdigit(static_cast<unsigned char>(f[i + 1]))) {
      n += f[i + 1];
      i += 2;
    }
    total += parte * (n.empty() ? 1 : std::stoi(n));
  }
  return total;
}

double MasaMolar(std::string_view formula, const std::map<std::string, double>& masas) {
  std::size_t i = 0;
  return Grupo(formula, i, masas);
}

// The formula in brackets right after `desde` ("glucose (C_6H_1_2O_6)").
std::string FormulaTras(std::string_view t, std::size_t desde) {
  const std::size_t a = t.find('(', desde);
  if (a == std::string_view::npos) return {};
  int nivel = 0;
  for (std::size_t i = a; i < t.size(); ++i) {
    nivel += t[i] == '(' ? 1 : t[i] == ')' ? -1 : 0;
    if (nivel == 0) return std::string(t.substr(a + 1, i - a - 1));
  }
  return {};
}

// Which of the solutes `claves` the statement names: the longest name found.
std::string SolutoNombrado(const std::string& st, std::initializer_list<std::string_view> claves) {
  std::string mejor, nombre;
  for (std::string_view c : claves) {
    const std::string n = Texto(c);
    if (!n.empty() && st.find(n) != std::string::npos && n.size() > nombre.size()) {
      mejor = std::string(c);
      nombre = n;
    }
  }
  return mejor;
}

// The molar mass of the named solute, from its formula and the printed masses.
double MasaMolarDelEnunciado(const std::string& st, std::initializer_list<std::string_view> claves) {
  const std::string clave = SolutoNombrado(st, claves);
  if (clave.empty()) return kNaN;
  const std::string nombre = Texto(clave);
  std::string formula = FormulaTras(nombre, 0);
  if (formula.empty()) formula = FormulaTras(st, st.find(nombre) + nombre.size());
  return MasaMolar(formula, MasasAtomicas(st));
}

// ---- Tolerances ---------------------------------------------------------------

// Half a unit of the last digit kept: the concentration rounding (two
// decimals, one from 1000 on, three figures below 1), and n figures.
double MediaRedondeo(double y) {
  const double a = std::fabs(y);
  if (a >= 1000) return 0.05;
  if (a >= 1) return 0.005;
  return 0.5 * std::pow(10.0, std::floor(std::log10(a)) - 2);
}
double MediaCifras(double y, int n) {
  return 0.5 * std::pow(10.0, std::floor(std::log10(std::fabs(y))) - n + 1);
}

void Espera(const Problema& p, double mostrado, double calculado, double media) {
  EXPECT_NEAR(mostrado, calculado, media + 1e-9 * std::fabs(calculado)) << p.st << "\n" << p.so;
}

// The range of f over the box x +- h: the formulas below are monotone in each
// datum, so the corners of the box bound it.
using Funcion = std::function<double(const std::vector<double>&)>;
std::pair<double, double> Rango(const Funcion& f, const std::vector<double>& x,
                                const std::vector<double>& h) {
  double lo = INFINITY, hi = -INFINITY;
  for (unsigned mask = 0; mask < (1u << x.size()); ++mask) {
    std::vector<double> y = x;
    for (std::size_t i = 0; i < x.size(); ++i) y[i] += (mask >> i & 1) ? h[i] : -h[i];
    lo = std::min(lo, f(y));
    hi = std::max(hi, f(y));
  }
  return {lo, hi};
}

void Dentro(const Problema& p, double valor, std::pair<double, double> r, double media) {
  EXPECT_TRUE(valor >= r.first - media - 1e-9 && valor <= r.second + media + 1e-9)
      << valor << " outside [" << r.first << ", " << r.second << "]\n"
      << p.st << "\n"
      << p.so;
}

// ---- Density curves -----------------------------------------------------------

TEST(DisDisoluciones, DensityCurvesMeetHandbookDensitiesOfWaterSolutions) {
  struct Fila {
    AjusteDensidad a;
    double p, densidad;  // handbook density at 20 °C, g/mL
  } filas[] = {
      {AjusteDensidad::H2SO4, 10, 1.066},     {AjusteDensidad::H2SO4, 50, 1.395},
      {AjusteDensidad::H2SO4, 96, 1.835},     {AjusteDensidad::HCl, 10, 1.048},
      {AjusteDensidad::HCl, 20, 1.098},       {AjusteDensidad::HCl, 36, 1.179},
      {AjusteDensidad::NaOH, 10, 1.109},      {AjusteDensidad::NaOH, 20, 1.219},
      {AjusteDensidad::NaOH, 50, 1.525},      {AjusteDensidad::KOH, 10, 1.090},
      {AjusteDensidad::KOH, 20, 1.188},       {AjusteDensidad::KOH, 50, 1.51},
      {AjusteDensidad::HNO3, 20, 1.115},      {AjusteDensidad::HNO3, 50, 1.310},
      {AjusteDensidad::HNO3, 70, 1.413},      {AjusteDensidad::NH3, 10, 0.958},
      {AjusteDensidad::NH3, 20, 0.923},       {AjusteDensidad::NH3, 28, 0.898},
      {AjusteDensidad::Acetico, 10, 1.0125},  {AjusteDensidad::Acetico, 50, 1.0575},
      {AjusteDensidad::Acetico, 100, 1.0498}, {AjusteDensidad::General, 0, 0.998},
  };
  for (const Fila& f : filas)
    EXPECT_NEAR(Densidad(f.a, f.p), f.densidad, 0.01 * f.densidad) << static_cast<int>(f.a) << " at " << f.p;
  // The polynomial curves of the strong acids and bases read the size of the percent.
  for (AjusteDensidad a :
       {AjusteDensidad::H2SO4, AjusteDensidad::HCl, AjusteDensidad::NaOH, AjusteDensidad::KOH})
    EXPECT_DOUBLE_EQ(Densidad(a, -20), Densidad(a, 20));
  EXPECT_LT(Densidad(AjusteDensidad::General, -20), Densidad(AjusteDensidad::General, 20));
}

// ---- Generator 1 ------------------------------------------------------------

const std::initializer_list<std::string_view> kSolutosG1 = {"N_NaCl", "N_azucar", "N_glucosa", "N_NH3",
                                                            "N_HNO3", "N_HCl_ac", "N_H2SO4",   "N_NaOH",
                                                            "N_KOH",  "N_CH3COOH"};

AjusteDensidad AjusteEsperado(const std::string& clave) {
  static const std::map<std::string, AjusteDensidad> m = {
      {"N_NH3", AjusteDensidad::NH3},       {"N_HNO3", AjusteDensidad::HNO3},
      {"N_HCl_ac", AjusteDensidad::HCl},    {"N_H2SO4", AjusteDensidad::H2SO4},
      {"N_NaOH", AjusteDensidad::NaOH},     {"N_KOH", AjusteDensidad::KOH},
      {"NTS_H2SO4", AjusteDensidad::H2SO4}, {"NTS_HNO3", AjusteDensidad::HNO3}};
  const auto it = m.find(clave);
  return it == m.end() ? AjusteDensidad::General : it->second;  // salts, sugars, acetic acid
}

// The printed density is the solute's own curve at the percent, to three decimals.
void EsperaDensidad(const Problema& p, const std::string& clave, double d, double pct, double mediaPct) {
  const AjusteDensidad a = AjusteEsperado(clave);
  const auto r = Rango([&](const std::vector<double>& x) { return Densidad(a, x[0]); }, {pct}, {mediaPct});
  Dentro(p, d, r, 0.0005);
}

TEST(DisDisoluciones, Generator1PercentDensityAndGramsPerLitre) {
  std::map<std::string, int> vistos;
  for (int forma = 1; forma <= 7; ++forma) {
    for (int s = 1; s <= kSemillas; ++s) {
      const Problema p = Genera(1, forma - 1 + 7 * s, s);
      SCOPED_TRACE("form " + std::to_string(forma) + ", seed " + std::to_string(s));
      const std::string clave = SolutoNombrado(p.st, kSolutosG1);
      ASSERT_FALSE(clave.empty()) << p.st;
      ++vistos[clave];
      const Datos e(p.Linea()), a(Parte(p.so, forma == 1 ? 0 : 1)), b(Parte(p.so, 2));
      switch (forma) {
        case 1: {
          const double ms = e.En("g"), w = e.En("g", 1);
          Espera(p, a.En("%"), ms / (ms + w) * 100, 0.005);
          break;
        }
        case 2: {
          const double md = e.En("g"), pct = e.En("%");
          Dentro(p, a.En("g"), Rango([&](auto x) { return md * x[0] / 100; }, {pct}, {0.005}), 0.0);
          EXPECT_DOUBLE_EQ(a.En("g") + b.En("g"), md);
          break;
        }
        case 3: {
          const double vd = e.En("mL"), pct = e.En("%"), d = e.En("g/mL");
          const double ms = a.En("g"), w = a.En("g", 1), md = a.En("g", 2);
          Dentro(p, md, Rango([&](auto x) { return x[0] * d; }, {vd}, {0.5}), 0.0);
          Dentro(p, ms, Rango([&](auto x) { return x[0] * d * x[1] / 100; }, {vd, pct}, {0.5, 0.005}), 0.0);
          Dentro(p, w, Rango([&](auto x) { return x[0] * d * (100 - x[1]) / 100; }, {vd, pct}, {0.5, 0.005}),
                 0.0);
          Dentro(p, b.En("g/L"),
                 Rango([&](auto x) { return 10 * d * x[1] * x[0] / vd; }, {vd, pct}, {0.5, 0.005}), 0.005);
          EsperaDensidad(p, clave, d, pct, 0.005);
          break;
        }
        case 4: {
          const double ms = e.En("g"), w = e.En("g", 1), d = e.En("g/mL");
          const double vol = (ms + w) / d;
          Espera(p, a.En("mL"), vol, 0.5);
          Espera(p, a.En("%"), ms / (ms + w) * 100, 0.005);
          Dentro(p, b.En("g/L"), Rango([&](auto x) { return ms * 1000 / x[0]; }, {vol}, {0.5}), 0.005);
          EsperaDensidad(p, clave, d, ms / (ms + w) * 100, 0.005);
          break;
        }
        case 5: {
          const double ms = e.En("g"), pct = e.En("%");
          Dentro(p, b.En("g"), Rango([&](auto x) { return ms * 100 / x[0]; }, {pct}, {0.005}), 0.0);
          EXPECT_DOUBLE_EQ(a.En("g") + ms, b.En("g"));
          break;
        }
        case 6: {
          const double gl = e.En("g/L"), d = e.En("g/mL"), vd = e.En("mL");
          const double ms = a.En("g");
          Dentro(p, ms, Rango([&](auto x) { return x[0] * vd / 1000; }, {gl}, {0.005}), 0.0);
          Dentro(p, b.En("%"), Rango([&](auto x) { return ms / (x[0] * d) * 100; }, {vd}, {0.5}), 0.005);
          EsperaDensidad(p, clave, d, b.En("%"), 0.005);
          break;
        }
        default: {
          const double ms = e.En("g"), w = e.En("g", 1), vd = e.En("mL");
          Espera(p, a.En("%"), ms / (ms + w) * 100, 0.005);
          Espera(p, b.En("g/L"), ms / vd * 1000, 0.005);
        }
      }
    }
  }
  EXPECT_EQ(vistos.size(), kSolutosG1.size()) << "every solute is drawn";
}

// ---- Generator 2 ------------------------------------------------------------

const std::initializer_list<std::string_view> kSolutosMolares = {
    "NTS_H2SO4", "NTS_H3PO4", "NTS_H2SO3", "NTS_H3PO3", "NTS_HNO3",
    "N_HCl_ac",  "N_NaOH",    "N_KOH",     "N_Al(OH)3", "N_NH3"};

TEST(DisDisoluciones, Generator2MolarityMolalityMoleFractionAndPurity) {
  for (int forma = 0; forma < 9; ++forma) {
    for (int s = 1; s <= kSemillas; ++s) {
      const Problema p = Genera(2, forma + 9 * s, s);
      SCOPED_TRACE("form " + std::to_string(forma) + ", seed " + std::to_string(s));
      const double M = MasaMolarDelEnunciado(p.st, kSolutosMolares);
      const auto masas = MasasAtomicas(p.st);
      ASSERT_TRUE(M > 0 && masas.count("H") && masas.count("O")) << p.st;
      const double agua = 2 * masas.at("H") + masas.at("O");
      const Datos e(p.Linea()), a(Parte(p.so, forma == 0 || forma >= 6 ? 0 : 1));
      const Datos b(Parte(p.so, 2)), c(Parte(p.so, 3)), d(Parte(p.so, 4));
      auto fraccion = [&](double n, double w) { return n / (n + w / agua); };
      switch (forma) {
        case 0:
          Espera(p, a.En("mol/L"), e.En("g") / M / (e.En("mL") / 1000), MediaRedondeo(a.En("mol/L")));
          break;
        case 1: {
          const double n = e.En("mol/L") * e.En("mL") / 1000;
          Espera(p, a.En("g"), n * M, MediaRedondeo(a.En("g")));
          Espera(p, b.En("mol"), n, MediaCifras(b.En("mol"), 3));
          break;
        }
        case 2: {
          const double n = e.En("g") / M, w = e.En("g", 1);
          Espera(p, a.En("mol/kg"), n / (w / 1000), MediaRedondeo(a.En("mol/kg")));
          Espera(p, Sin(p.so, 2), fraccion(n, w), MediaCifras(Sin(p.so, 2), 3));
          break;
        }
        case 3: {
          const double ms = e.En("g"), w = e.En("g", 1), den = e.En("g/mL");
          Espera(p, a.En("mol/L"), ms / M / ((ms + w) / den / 1000), MediaRedondeo(a.En("mol/L")));
          Espera(p, b.En("mol/kg"), ms / M / (w / 1000), MediaRedondeo(b.En("mol/kg")));
          Espera(p, c.En("%"), ms / (ms + w) * 100, 0.005);
          break;
        }
        case 4: {
          const double vd = e.En("mL"), pct = e.En("%"), den = e.En("g/mL");
          const double ms = vd * den * pct / 100, w = vd * den - ms;
          Espera(p, a.En("g"), ms, MediaRedondeo(ms));
          Espera(p, b.En("g"), w, MediaRedondeo(w));
          Espera(p, c.En("mol/L"), ms / M / (vd / 1000), MediaRedondeo(c.En("mol/L")));
          Espera(p, d.En("mol/kg"), ms / M / (w / 1000), MediaRedondeo(d.En("mol/kg")));
          EsperaDensidad(p, SolutoNombrado(p.st, kSolutosMolares), den, pct, 0);
          break;
        }
        case 5: {
          const double vd = e.En("mL"), den = e.En("g/mL"), ms = e.En("g");
          const double w = vd * den - ms;
          Espera(p, a.En("g"), w, MediaRedondeo(w));
          Espera(p, b.En("mol/L"), ms / M / (vd / 1000), MediaRedondeo(b.En("mol/L")));
          Espera(p, c.En("%"), ms / (vd * den) * 100, 0.005);
          Espera(p, Sin(p.so, 4), fraccion(ms / M, w), MediaCifras(Sin(p.so, 4), 3));
          break;
        }
        case 6: {
          const double pura = e.En("g") * e.En("%") / 100;
          Espera(p, a.En("mol/L"), pura / M / (e.En("mL") / 1000), MediaRedondeo(a.En("mol/L")));
          break;
        }
        case 7: {
          const double pura = e.En("mol/L") * e.En("mL") / 1000 * M;
          Espera(p, a.En("%"), pura / e.En("g") * 100, 0.005);
          break;
        }
        default: {
          const double pura = e.En("mol/L") * e.En("mL") / 1000 * M;
          Espera(p, a.En("g"), pura * 100 / e.En("%"), MediaRedondeo(a.En("g")));
        }
      }
    }
  }
}

// ---- Generator 3 ------------------------------------------------------------

TEST(DisDisoluciones, Generator3DilutionKeepsTheSolute) {
  for (int forma = 0; forma < 5; ++forma) {
    for (int s = 1; s <= kSemillas; ++s) {
      const Problema p = Genera(3, forma + 5 * s, s);
      SCOPED_TRACE("form " + std::to_string(forma) + ", seed " + std::to_string(s));
      const Datos e(p.Linea()), r(Parte(p.so, 0));
      // Only the forms that weigh the solute print atomic masses.
      const bool conMasas = forma <= 2;
      ASSERT_EQ(p.st.find("(g/mol)") != std::string::npos, conMasas) << p.st;
      const double M = conMasas ? MasaMolarDelEnunciado(p.st, kSolutosMolares) : kNaN;
      if (conMasas) {
        ASSERT_GT(M, 0) << p.st;
      }
      if (e.Tiene("g/mL")) {
        EXPECT_GE(e.En("g/mL"), 1.1);
        EXPECT_LE(e.En("g/mL"), 1.85);
      }
      switch (forma) {
        case 0: {
          const double moles = e.En("mL") * e.En("g/mL") * e.En("%") / 100 / M;
          Espera(p, r.En("mol/L"), moles / (e.En("mL", 1) / 1000), MediaRedondeo(r.En("mol/L")));
          break;
        }
        case 1: {
          const double soluto = e.En("mol/L") * e.En("mL") / 1000 * M;
          Espera(p, r.En("g"), soluto * 100 / e.En("%"), MediaRedondeo(r.En("g")));
          break;
        }
        case 2: {
          const double soluto = e.En("mol/L") * e.En("mL") / 1000 * M;
          Espera(p, r.En("mL"), soluto * 100 / e.En("%") / e.En("g/mL"), MediaRedondeo(r.En("mL")));
          break;
        }
        case 3: {
          const double c1 = e.En("mol/L"), c2 = e.En("mol/L", 1), v2 = e.En("mL");
          EXPECT_GT(c1, c2);
          Espera(p, r.En("mL"), c2 * v2 / c1, MediaRedondeo(r.En("mL")));
          break;
        }
        default: {
          const double p1 = e.En("%"), p2 = e.En("%", 1), m2 = e.En("g");
          EXPECT_GT(p1, p2);
          Espera(p, r.En("mL"), m2 * p2 / p1 / e.En("g/mL"), MediaRedondeo(r.En("mL")));
        }
      }
    }
  }
}

// ---- Generator 5 ------------------------------------------------------------

const std::initializer_list<std::string_view> kNoElectrolitos = {"N_urea",     "N_glicerol",     "N_nicotina",
                                                                 "N_sacarosa", "N_etilenglicol", "N_glucosa"};

TEST(DisDisoluciones, Generator5BoilingAndFreezingPointsOfDiluteSolutionsOnly) {
  constexpr double Kb = 0.52, Kf = 1.86;
  for (int forma = 0; forma < 8; ++forma) {
    for (int s = 1; s <= kSemillas; ++s) {
      const Problema p = Genera(5, forma + 8 * s, s);
      SCOPED_TRACE("form " + std::to_string(forma) + ", seed " + std::to_string(s));
      const Datos e(p.Linea()), r(Parte(p.so, 0));
      const bool nombrado = forma == 1 || forma == 2 || forma == 5 || forma == 6;
      const double M = nombrado     ? MasaMolarDelEnunciado(p.st, kNoElectrolitos)
                       : forma == 7 ? e.En("g/mol")
                                    : kNaN;
      if (nombrado) {
        ASSERT_GT(M, 0) << p.st;
      }
      const double temp = e.Tiene(kGradoC) ? e.En(kGradoC) : kNaN;
      double m;  // the molality the data describe
      switch (forma) {
        case 0:
          m = -temp / Kf;
          Espera(p, r.En(kGradoC), 100 + Kb * m, MediaCifras(r.En(kGradoC), 5));
          break;
        case 1:
          m = -temp / Kf;
          Espera(p, r.En("g"), m * e.En("g") / 1000 * M, MediaCifras(r.En("g"), 3));
          break;
        case 3:
          m = -temp / Kf;
          Espera(p, r.En("g/mol"), e.En("g") / (m * e.En("g", 1) / 1000), MediaCifras(r.En("g/mol"), 3));
          break;
        case 4:
          m = (temp - 100) / Kb;
          Espera(p, r.En(kGradoC), -Kf * m, MediaCifras(r.En(kGradoC), 3));
          break;
        case 5:
          m = (temp - 100) / Kb;
          Espera(p, r.En("g"), m * e.En("g") / 1000 * M, MediaCifras(r.En("g"), 3));
          break;
        case 6:
          m = e.En("g") / M / (e.En("g", 1) / 1000);
          Espera(p, r.En(kGradoC), -Kf * m, MediaCifras(r.En(kGradoC), 3));
          break;
        default:  // forms 2 and 7
          m = e.En("g") / M / (e.En("g", 1) / 1000);
          Espera(p, r.En(kGradoC), 100 + Kb * m, MediaCifras(r.En(kGradoC), 5));
      }
      EXPECT_GT(m, 0) << p.st;
      EXPECT_LE(m, 3 * 1.002) << "a solution above 3 mol/kg reached the page\n" << p.st;
    }
  }
}

// ---- Generator 10 -----------------------------------------------------------

TEST(DisDisoluciones, Generator10OsmoticPressureAndRaoultsLaw) {
  constexpr double R = 0.082057;
  for (int forma = 0; forma < 4; ++forma) {
    for (int s = 1; s <= kSemillas; ++s) {
      const Problema p = Genera(10, forma + 4 * s, s);
      SCOPED_TRACE("form " + std::to_string(forma) + ", seed " + std::to_string(s));
      const Datos e(p.Linea()), r(Parte(p.so, 0));
      const double ms = e.En("g"), T = e.En(kGradoC) + 273.15;
      switch (forma) {
        case 0: {
          const double M = MasaMolarDelEnunciado(p.st, kNoElectrolitos);
          const double pi = ms / M / (e.En("mL") / 1000) * R * T;  // atm
          EXPECT_TRUE(pi * 760 >= 100 && pi <= 30) << pi;
          if (pi * 760 < 600)
            Espera(p, r.En("mmHg"), pi * 760, MediaCifras(pi * 760, 3));
          else
            Espera(p, r.En("atm"), pi, MediaCifras(pi, 3));
          break;
        }
        case 1: {
          const double pi = e.Tiene("mmHg") ? e.En("mmHg") / 760 : e.En("atm");
          const double n = pi * (e.En("mL") / 1000) / (R * T);
          Espera(p, r.En("g/mol"), ms / n, MediaCifras(r.En("g/mol"), 3));
          break;
        }
        case 2: {
          const double M = MasaMolarDelEnunciado(p.st, kNoElectrolitos);
          const double p0 = e.En("mmHg"), nw = e.En("g", 1) / 18, ns = ms / M;
          // Pure water's vapour pressure, against the Antoine equation for water.
          EXPECT_NEAR(p0, std::pow(10.0, 8.07131 - 1730.63 / (233.426 + T - 273.15)), 0.01 * p0);
          const double dp = ns / (ns + nw) * p0;
          EXPECT_GE(dp, 2);
          Espera(p, r.En("mmHg"), dp, MediaCifras(dp, 4));
          break;
        }
        default: {
          const double dp = e.En("mmHg"), p0 = e.En("mmHg", 1), nw = e.En("g", 1) / 18;
          EXPECT_GE(dp, 2);
          const double x = dp / p0, ns = x * nw / (1 - x);
          Espera(p, r.En("g/mol"), ms / ns, MediaCifras(r.En("g/mol"), 3));
        }
      }
    }
  }
}

}  // namespace
}  // namespace ss
