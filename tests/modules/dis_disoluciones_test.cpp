// The solutions problems (generators 1, 2, 3, 5 and 10): every answer worked
// out again from the data the statement prints, by the chemistry a student
// uses, in every form over many seeds; and the data themselves checked
// against what real solutions can be.
#include <gtest/gtest.h>
#include <set>
#include "modules/ANEU_QUIM_DIS/densidades.h"
#include "problems/fallos.h"
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {
using mod::dis::Densidad;
using mod::dis::PorcentajeMaximo;
using mod::dis::Soluto;
using namespace test;
// Densities of the handbook at 20 °C, read independently of the tables the
// program carries, at the strengths a laboratory knows.
TEST(DisDisoluciones, DensityTablesMeetKnownSolutions) {
  const struct {
    Soluto s;
    double p, d, maximo;
  } casos[] = {{Soluto::H2SO4, 96, 1.836, 98},   {Soluto::HCl, 37, 1.184, 37},      {Soluto::HNO3, 65, 1.391, 70},
               {Soluto::NH3, 28, 0.898, 30},     {Soluto::NaOH, 50, 1.525, 50},    {Soluto::KOH, 20, 1.188, 50},
               {Soluto::Acetico, 100, 1.049, 100}, {Soluto::H3PO4, 85, 1.689, 85}, {Soluto::NaCl, 26, 1.197, 26},
               {Soluto::Sacarosa, 60, 1.287, 65}, {Soluto::Glucosa, 10, 1.037, 28}};
  for (const auto& c : casos) {
    EXPECT_NEAR(Densidad(c.s, c.p), c.d, 0.002) << static_cast<int>(c.s);
    EXPECT_NEAR(Densidad(c.s, 0), 0.998, 0.001);  // water
    EXPECT_EQ(PorcentajeMaximo(c.s), c.maximo);
    EXPECT_THROW(Densidad(c.s, c.maximo + 1), GenFault);
  }
}

// The solute a statement names, with its density table.
struct Nombrado {
  std::string_view clave;
  Soluto s;
};
constexpr Nombrado kNombres[] = {
    {"N_NaCl", Soluto::NaCl},      {"N_azucar", Soluto::Sacarosa}, {"N_glucosa", Soluto::Glucosa},
    {"N_NH3", Soluto::NH3},        {"N_HNO3", Soluto::HNO3},       {"NTS_HNO3", Soluto::HNO3},
    {"N_HCl_ac", Soluto::HCl},     {"N_H2SO4", Soluto::H2SO4},     {"NTS_H2SO4", Soluto::H2SO4},
    {"N_NaOH", Soluto::NaOH},      {"N_KOH", Soluto::KOH},         {"N_CH3COOH", Soluto::Acetico},
    {"NTS_H3PO4", Soluto::H3PO4},  {"NTS_sacarosa", Soluto::Sacarosa}};

const Nombrado* SolutoDe(const std::string& frase) {
  const Nombrado* mejor = nullptr;
  std::size_t largo = 0;
  for (const Nombrado& n : kNombres)
    if (const std::string t = Texto(n.clave); frase.find(t) != std::string::npos && t.size() > largo)
      mejor = &n, largo = t.size();
  return mejor;
}

// What a checker reads: the data of the statement's sentence, the solute's
// molar mass from its formula and the listed masses, and the data line's
// constants (water's, or R with the kelvin offset).
struct Vista {
  Datos d;
  double M;
  std::vector<double> constantes;
};
using Calculo = std::function<std::vector<double>(const Vista&)>;
struct Caso {
  int gen, forma;
  Calculo r;
  double abs = 0;  // answers read to fixed decimals
};

double K(const Vista& v) { return v.constantes.size() > 1 ? v.constantes[1] : NAN; }

const Caso kCasos[] = {
    // Percent, density and grams per litre.
    {1, 0, [](const Vista& v) { return std::vector{v.d.En("g") / (v.d.En("g") + v.d.En("g", 1)) * 100}; }},
    {1, 1, [](const Vista& v) { const double ms = v.d.En("g") * v.d.En("%") / 100; return std::vector{ms, v.d.En("g") - ms}; }},
    {1, 2, [](const Vista& v) {
       const double md = v.d.En("mL") * v.d.En("g/mL"), ms = md * v.d.En("%") / 100;
       return std::vector{ms, md - ms, md, ms / v.d.En("mL") * 1000}; }},
    {1, 3, [](const Vista& v) {
       const double ms = v.d.En("g"), md = ms + v.d.En("g", 1), vd = md / v.d.En("g/mL");
       return std::vector{vd, ms / md * 100, ms / vd * 1000}; }},
    {1, 4, [](const Vista& v) { const double md = v.d.En("g") * 100 / v.d.En("%"); return std::vector{md - v.d.En("g"), md}; }},
    {1, 5, [](const Vista& v) {
       const double ms = v.d.En("g/L") * v.d.En("mL") / 1000;
       return std::vector{ms, ms / (v.d.En("mL") * v.d.En("g/mL")) * 100}; }},
    {1, 6, [](const Vista& v) {
       const double ms = v.d.En("g");
       return std::vector{ms / (ms + v.d.En("g", 1)) * 100, ms / v.d.En("mL") * 1000}; }},
    // Molarity, molality, mole fraction, purity.
    {2, 0, [](const Vista& v) { return std::vector{v.d.En("g") / v.M / v.d.En("mL") * 1000}; }},
    {2, 1, [](const Vista& v) { const double n = v.d.En("mol/L") * v.d.En("mL") / 1000; return std::vector{n * v.M, n}; }},
    {2, 2, [](const Vista& v) {
       const double n = v.d.En("g") / v.M, w = v.d.En("g", 1);
       return std::vector{n / w * 1000, n / (n + w / 18)}; }},
    {2, 3, [](const Vista& v) {
       const double n = v.d.En("g") / v.M, w = v.d.En("g", 1), md = v.d.En("g") + w;
       return std::vector{n / (md / v.d.En("g/mL")) * 1000, n / w * 1000, v.d.En("g") / md * 100}; }},
    {2, 4, [](const Vista& v) {
       const double md = v.d.En("mL") * v.d.En("g/mL"), ms = md * v.d.En("%") / 100, n = ms / v.M;
       return std::vector{ms, md - ms, n / v.d.En("mL") * 1000, n / (md - ms) * 1000}; }},
    {2, 5, [](const Vista& v) {
       const double md = v.d.En("mL") * v.d.En("g/mL"), ms = v.d.En("g"), w = md - ms, n = ms / v.M;
       return std::vector{w, n / v.d.En("mL") * 1000, ms / md * 100, n / (n + w / 18)}; }},
    {2, 6, [](const Vista& v) { return std::vector{v.d.En("g") * v.d.En("%") / 100 / v.M / v.d.En("mL") * 1000}; }},
    {2, 7, [](const Vista& v) { return std::vector{v.d.En("mol/L") * v.d.En("mL") / 1000 * v.M / v.d.En("g") * 100}; }},
    {2, 8, [](const Vista& v) { return std::vector{v.d.En("mol/L") * v.d.En("mL") / 1000 * v.M / v.d.En("%") * 100}; }},
    // Dilution: the solute taken from the stock is the solute of the dilute solution.
    {3, 0, [](const Vista& v) {
       return std::vector{v.d.En("mL") * v.d.En("g/mL") * v.d.En("%") / 100 / v.M / v.d.En("mL", 1) * 1000}; }},
    {3, 1, [](const Vista& v) { return std::vector{v.d.En("mol/L") * v.d.En("mL") / 1000 * v.M * 100 / v.d.En("%")}; }},
    {3, 2, [](const Vista& v) {
       return std::vector{v.d.En("mol/L") * v.d.En("mL") / 1000 * v.M * 100 / v.d.En("%") / v.d.En("g/mL")}; }},
    {3, 3, [](const Vista& v) { return std::vector{v.d.En("mol/L", 1) * v.d.En("mL") / v.d.En("mol/L")}; }},
    {3, 4, [](const Vista& v) { return std::vector{v.d.En("g") * v.d.En("%", 1) / v.d.En("%") / v.d.En("g/mL")}; }},
    // Boiling and freezing points, with the constants the statement gives.
    {5, 0, [](const Vista& v) { return std::vector{100 - v.constantes[0] * v.d.En("\xB0" "C") / v.constantes[1]}; }, 0.011},
    {5, 1, [](const Vista& v) { return std::vector{-v.d.En("\xB0" "C") / v.constantes[1] * v.d.En("g") / 1000 * v.M}; }},
    {5, 2, [](const Vista& v) { return std::vector{100 + v.constantes[0] * v.d.En("g") / v.M / v.d.En("g", 1) * 1000}; }, 0.006},
    {5, 3, [](const Vista& v) {
       return std::vector{v.d.En("g") * v.constantes[1] / (-v.d.En("\xB0" "C") * v.d.En("g", 1) / 1000)}; }},
    {5, 4, [](const Vista& v) { return std::vector{-v.constantes[1] * (v.d.En("\xB0" "C") - 100) / v.constantes[0]}; }, 0.006},
    {5, 5, [](const Vista& v) { return std::vector{(v.d.En("\xB0" "C") - 100) / v.constantes[0] * v.d.En("g") / 1000 * v.M}; }},
    {5, 6, [](const Vista& v) { return std::vector{-v.constantes[1] * v.d.En("g") / v.M / v.d.En("g", 1) * 1000}; }},
    {5, 7, [](const Vista& v) {
       return std::vector{100 + v.constantes[0] * v.d.En("g") / v.d.En("g/mol") / v.d.En("g", 1) * 1000}; }, 0.006},
    // Osmotic pressure and Raoult's law.
    {10, 0, [](const Vista& v) {
       return std::vector{v.d.En("g") / v.M / v.d.En("mL") * 1000 * v.constantes[0] * (v.d.En("\xB0" "C") + K(v))}; }},
    {10, 1, [](const Vista& v) {
       const double pi = v.d.Tiene("atm") ? v.d.En("atm") : v.d.En("mmHg") / v.constantes[3];
       return std::vector{v.d.En("g") * v.constantes[0] * (v.d.En("\xB0" "C") + K(v)) / (pi * v.d.En("mL") / 1000)}; }},
    {10, 2, [](const Vista& v) {
       const double n = v.d.En("g") / v.M, w = v.d.En("g", 1) / 18;
       return std::vector{n / (n + w) * v.d.En("mmHg")}; }},
    {10, 3, [](const Vista& v) {
       const double x = v.d.En("mmHg") / v.d.En("mmHg", 1), w = v.d.En("g", 1) / 18;
       return std::vector{v.d.En("g") / (x * w / (1 - x))}; }},
};

TEST(DisDisoluciones, EveryAnswerFollowsFromThePrintedData) {
  const int formas[] = {0, 7, 9, 5, 0, 8, 0, 0, 0, 0, 4};
  std::map<int, std::set<std::string>> distintos;
  for (const Caso& c : kCasos) {
    for (uint64_t seed = 1; seed <= 60; ++seed) {
      const Problema p = Genera(c.gen, c.forma + formas[c.gen] * static_cast<int>(seed), 0, seed);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::string frase = p.st.substr(0, p.st.find("&LF"));
      const std::size_t lineaDatos = p.st.find("Data");
      Vista v{Datos(frase), NAN, {}};
      if (lineaDatos != std::string::npos) v.constantes = Numeros(p.st.substr(lineaDatos));
      const Nombrado* n = SolutoDe(frase);
      std::vector<std::string> f = FormulasEntreParentesis((n ? Texto(n->clave) : "") + frase);
      if (!f.empty()) v.M = MasaMolar(Formula(f[0]), Masas(p.st));
      std::vector<double> esperadas = c.r(v);
      const std::vector<Mostrado> mostradas = Respuestas(p.so);
      if (p.so.find("mmHg") != std::string::npos && c.gen == 10 && c.forma == 0) esperadas[0] *= v.constantes[3];
      ASSERT_EQ(mostradas.size(), esperadas.size());
      for (std::size_t i = 0; i < esperadas.size(); ++i) {
        ASSERT_FALSE(std::isnan(esperadas[i])) << "a datum the statement does not give";
        EsperaCerca(mostradas[i], esperadas[i], c.abs);
      }
      distintos[c.gen * 10 + c.forma].insert(frase);
      // Strengths and densities that real solutions have.
      if (n && v.d.Tiene("%") && c.gen <= 3 && (c.gen != 2 || v.d.Tiene("g/mL"))) {
        const double pct = v.d.En("%");
        EXPECT_LE(pct, PorcentajeMaximo(n->s));
        if (v.d.Tiene("g/mL")) { EXPECT_NEAR(v.d.En("g/mL"), Densidad(n->s, pct), 0.0005 + 1e-9); }
      }
      if (c.gen == 5) {  // a dilute solution whose change of temperature can be read
        const double t = v.d.Tiene("\xB0" "C") ? v.d.En("\xB0" "C") : mostradas[0].valor;
        EXPECT_TRUE((t < 0 && t >= -5.6 && t <= -0.4) || (t > 100.1 && t <= 101.6)) << t;
      }
    }
  }
  for (const auto& [forma, frases] : distintos) EXPECT_GT(frases.size(), 40u) << forma;
}
}  // namespace
}  // namespace ss
