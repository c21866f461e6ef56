// The table of gas equilibria, the reversal of a reaction, and the texts of
// its equation and of its constants.
#include <algorithm>
#include <cmath>

#include "modules/ANEU_QUIM_EGA/ega.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ega {
namespace {

constexpr double kG = 50;  // a gas far above its critical point: kept within ideal-gas pressures

// The 24 reactions. Every K is Kc, in (mol/L) raised to the change in moles of
// gas, at the temperature beside it (degrees Celsius); the figures after each
// K are those it is known to. Values were checked against standard enthalpies
// of formation and entropies (NBS tables, with the reaction enthalpy and
// entropy taken as constant), against measured vapour pressures, and against
// the classic measurements (HI, COCl2, CaCO3). The enthalpies are at 25 degC.
//
// pMax is the highest partial pressure, in atm, at which a species stays a
// gas at the temperatures of its row: the vapour pressure of the liquid or
// solid it would condense to, with a margin (N2O4 boils at 21 degC, bromine
// has 0.28 atm at 25 degC, iodine 4.0E-4 atm, sulfuryl chloride about 0.18
// atm, iodine monochloride about 0.04 atm, SbCl3 about 1.7 atm at 248 degC,
// PCl5 sublimes at 160 degC); 50 atm for gases well above their critical
// temperature, so that the ideal-gas law the problems use still holds.
struct Dato {
  Especie s[4];
  double K1, T1;
  int c1;
  double K2, T2;
  int c2;
  double dH;
};

const Dato kTabla[kFilas] = {
    // 1  2 NO2 = 2 NO + O2
    {{{-2, "NO_2", "N_NO2", kG}, {2, "NO", "N_NO_g", kG}, {1, "O_2", "N_O", kG}}, 1.42e-4, 327, 3, 0, 0, 0, 113},
    // 2  N2O4 = 2 NO2: Kc (Kp is 0.142 and 0.32 atm)
    {{{-1, "N_2O_4", "N_N2O4", 0.7}, {2, "NO_2", "N_NO2", 0.5}}, 0.0058, 25, 2, 0.0127, 35, 3, 58},
    // 3  2 HI = I2 + H2
    {{{-2, "HI", "N_HI", kG}, {1, "I_2", "N_I", 10}, {1, "H_2", "N_H", kG}}, 0.019, 350, 2, 0.02172, 490, 4, 10.5},
    // 4  PCl5 = PCl3 + Cl2
    {{{-1, "PCl_5", "N_PCl5", 5}, {1, "PCl_3", "N_PCl3", 15}, {1, "Cl_2", "N_Cl", kG}}, 0.05, 250, 1, 0, 0, 0, 92},
    // 5  2 NO = N2 + O2
    {{{-2, "NO", "N_NO_g", kG}, {1, "N_2", "N_N", kG}, {1, "O_2", "N_O", kG}}, 83, 2800, 2, 0, 0, 0, -180.7},
    // 6  CO2 + H2 = CO + H2O
    {{{-1, "CO_2", "N_CO2", kG}, {-1, "H_2", "N_H", kG}, {1, "CO", "N_CO_g", kG}, {1, "H_2O", "N_H2O", kG}},
     0.2, 530, 1, 1.59, 1000, 3, 41},
    // 7  2 SO3 = 2 SO2 + O2
    {{{-2, "SO_3", "N_SO3", kG}, {2, "SO_2", "N_SO2", kG}, {1, "O_2", "N_O", kG}}, 2.8e-5, 550, 2, 0.0035842, 727, 5,
     197},
    // 8  2 NH3 = N2 + 3 H2
    {{{-2, "NH_3", "N_NH3", kG}, {1, "N_2", "N_N", kG}, {3, "H_2", "N_H", kG}}, 0.01, 257, 1, 0.58275, 400, 5, 92.4},
    // 9  2 H2O = 2 H2 + O2
    {{{-2, "H_2O", "N_H2O", kG}, {2, "H_2", "N_H", kG}, {1, "O_2", "N_O", kG}}, 9.3e-12, 1600, 2, 0, 0, 0, 484},
    // 10 2 HCl = Cl2 + H2
    {{{-2, "HCl", "N_HCl", kG}, {1, "Cl_2", "N_Cl", kG}, {1, "H_2", "N_H", kG}}, 1e-7, 1350, 1, 0, 0, 0, 185},
    // 11 4 HCl + O2 = 2 Cl2 + 2 H2O, at the temperature of the Deacon process
    {{{-4, "HCl", "N_HCl", kG}, {-1, "O_2", "N_O", kG}, {2, "Cl_2", "N_Cl", kG}, {2, "H_2O", "N_H2O", kG}},
     2.0e3, 450, 2, 0, 0, 0, -114},
    // 12 COCl2 = CO + Cl2
    {{{-1, "COCl_2", "N_COCl2", kG}, {1, "CO", "N_CO_g", kG}, {1, "Cl_2", "N_Cl", kG}}, 2.128e-5, 300, 4, 0.0235, 538,
     3, 109},
    // 13 CO2 + H2S = COS + H2O
    {{{-1, "CO_2", "N_CO2", kG}, {-1, "H_2S", "N_H2S", kG}, {1, "COS", "N_COS", kG}, {1, "H_2O", "N_H2O", kG}},
     2.85e-3, 337, 3, 0, 0, 0, 30.3},
    // 14 SbCl5 = SbCl3 + Cl2
    {{{-1, "SbCl_5", "N_SbCl5", 5}, {1, "SbCl_3", "N_SbCl3", 1.2}, {1, "Cl_2", "N_Cl", kG}}, 0.040, 248, 2, 0, 0, 0,
     92},
    // 15 CO + 2 H2 = CH3OH, the methanol synthesis
    {{{-1, "CO", "N_CO_g", kG}, {-2, "H_2", "N_H", kG}, {1, "CH_3OH", "N_CH3OH", 30}}, 10.5, 220, 3, 0, 0, 0, -90.1},
    // 16 2 NOCl = 2 NO + Cl2
    {{{-2, "NOCl", "N_NOCl", kG}, {2, "NO", "N_NO_g", kG}, {1, "Cl_2", "N_Cl", kG}}, 4.7e-4, 227, 2, 0, 0, 0, 77.4},
    // 17 NO2Cl + NO = NO2 + NOCl
    {{{-1, "NO_2Cl", "N_NO2Cl", 3}, {-1, "NO", "N_NO_g", kG}, {1, "NO_2", "N_NO2", 0.5}, {1, "NOCl", "N_NOCl", 2}},
     1.3e4, 25, 2, 0, 0, 0, -17.4},
    // 18 2 NOBr = 2 NO + Br2
    {{{-2, "NOBr", "N_NOBr", 1}, {2, "NO", "N_NO_g", kG}, {1, "Br_2", "N_Br", 0.25}}, 0.00144, 25, 3, 0, 0, 0, 47},
    // 19 SO2 + Cl2 = SO2Cl2
    {{{-1, "SO_2", "N_SO2", 3}, {-1, "Cl_2", "N_Cl", 5}, {1, "SO_2Cl_2", "N_SO2Cl2", 0.15}}, 119, 25, 3, 0, 0, 0, -67},
    // 20 I2 + Cl2 = 2 ICl
    {{{-1, "I_2", "N_I", 3.5e-4}, {-1, "Cl_2", "N_Cl", 5}, {2, "ICl", "N_ICl", 0.03}}, 81.9, 25, 3, 0, 0, 0, -27},
    // 21 C(s) + CO2 = 2 CO
    {{{-1, "C_(_s_)", "N_C", 0}, {-1, "CO_2", "N_CO2", kG}, {2, "CO", "N_CO_g", kG}}, 1.17, 1000, 3, 0, 0, 0, 172.5},
    // 22 C(s) + H2O = CO + H2
    {{{-1, "C_(_s_)", "N_C", 0}, {-1, "H_2O", "N_H2O", kG}, {1, "CO", "N_CO_g", kG}, {1, "H_2", "N_H", kG}}, 0.7314,
     1000, 4, 0, 0, 0, 131.3},
    // 23 CaCO3(s) = CaO(s) + CO2: Kp is 0.25 atm, the decomposition pressure
    {{{-1, "CaCO_3_(_s_)", "N_CaCO3", 0}, {1, "CaO_(_s_)", "N_CaO", 0}, {1, "CO_2", "N_CO2", kG}}, 0.00284, 800, 3, 0,
     0, 0, 177.9},
    // 24 I2(s) = I2(g): Kp is the vapour pressure of iodine, 0.306 mmHg
    {{{-1, "I_2_(_s_)", "N_I2_s", 0}, {1, "I_2", "N_I2_g", 1e-3}}, 1.65e-5, 25, 3, 0, 0, 0, 62.3},
};

// "#SPB(L2#T)(#SPB)": an exponent over the place of a subscript.
std::string Exponente(double n) { return n == 1 ? "" : "#SPB(L" + NumTexto(n) + "#T)(#SPB)"; }

std::string Coeficiente(double n) { return n == 1 ? "" : NumTexto(n); }

// One side of a constant: each gas of the side, written by `termino`.
template <class F>
std::string Lado(const Reaccion& r, int signo, F termino) {
  std::string t;
  for (const Especie& e : r.s)
    if (e.Gas() && e.coef * signo > 0) t += termino(e) + Exponente(std::fabs(e.coef));
  return t;
}

std::string Fraccion(const std::string& num, const std::string& den) {
  if (den.empty()) return num;
  return "#COC(" + (num.empty() ? std::string("1") : num) + "#N)(" + den + "#COC)";
}

}  // namespace

Reaccion Fila(int fila) {
  const Dato& d = kTabla[std::clamp(fila, 1, kFilas) - 1];
  Reaccion r;
  r.fila = std::clamp(fila, 1, kFilas);
  for (int k = 0; k < 4; ++k) r.s[k] = d.s[k];
  r.K1 = d.K1, r.T1 = d.T1, r.cifras1 = d.c1;
  r.K2 = d.K2, r.T2 = d.T2, r.cifras2 = d.c2;
  r.dH = d.dH;
  return r;
}

Reaccion Invertida(Reaccion r) {
  for (Especie& e : r.s) e.coef = -e.coef;
  r.K1 = 1 / r.K1;
  if (r.K2 != 0) r.K2 = 1 / r.K2;
  r.dH = -r.dH;
  r.invertida = !r.invertida;
  return r;
}

double DeltaN(const Reaccion& r) {
  double dn = 0;
  for (const Especie& e : r.s)
    if (e.Gas()) dn += e.coef;
  return dn;
}

bool TieneSolido(const Reaccion& r) {
  return std::any_of(r.s.begin(), r.s.end(), [](const Especie& e) { return e.coef != 0 && e.Solido(); });
}

int NumReactivos(const Reaccion& r) {
  return static_cast<int>(std::count_if(r.s.begin(), r.s.end(), [](const Especie& e) { return e.coef < 0; }));
}

bool Disociacion(const Reaccion& r) { return !TieneSolido(r) && NumReactivos(r) == 1; }

std::string_view FormulaSimple(const Especie& e) {
  std::string_view f = e.formula;
  if (f.ends_with("_(_s_)")) f.remove_suffix(6);
  return f;
}

std::string Ecuacion(const Reaccion& r) {
  std::string lados[2];
  for (int lado = 0; lado < 2; ++lado)
    for (const Especie& e : r.s) {
      if (e.coef == 0 || (e.coef < 0) != (lado == 0)) continue;
      if (!lados[lado].empty()) lados[lado] += "  +  ";
      lados[lado] += Coeficiente(std::fabs(e.coef)) + std::string(e.formula) + (e.Solido() ? "" : "_(_g_)");
    }
  return lados[0] + "  &Q  " + lados[1];
}

std::string ExpresionKc(const Reaccion& r) {
  auto corchete = [](const Especie& e) { return "[" + std::string(e.formula) + "]"; };
  return Fraccion(Lado(r, 1, corchete), Lado(r, -1, corchete));
}

std::string ExpresionKp(const Reaccion& r) {
  auto presion = [](const Especie& e) { return "&+IP&-I(" + std::string(e.formula) + ")"; };
  return Fraccion(Lado(r, 1, presion), Lado(r, -1, presion));
}

std::string UnidadKc(double dn) {
  if (dn == 0) return "";
  const double n = std::fabs(dn);
  const std::string e = n == 1 ? "" : "^" + NumTexto(n);
  return dn > 0 ? "& mol" + e + "/L" + e : "& L" + e + "/mol" + e;
}

std::string UnidadKp(double dn) {
  if (dn == 0) return "";
  if (dn == 1) return "& atm";
  std::string e;
  for (char c : NumTexto(dn)) e += std::string("^") + c;
  return "& atm" + e;
}

double KpDeKc(double Kc, double tC, double dn) { return Kc * std::pow(kR * (tC + 273.15), dn); }

double CifrasN(double x, int n) {
  return x == 0 ? 0 : RedondeaPot(x, std::floor(std::log10(std::fabs(x))) - n);
}
double Cifras4(double x) { return CifrasN(x, 4); }

std::string TextoK(double K, int cifras) { return NumCifras(K, cifras); }

Sorteo SorteoDeFila(GenContext& g, int fila, bool invertible) {
  Sorteo s;
  s.r = Fila(fila);
  const bool segundo = s.r.K2 != 0 && AzarSupera(g.rnd, 0.5);
  if (invertible && AzarSupera(g.rnd, 0.5)) s.r = Invertida(s.r);
  s.K = segundo ? s.r.K2 : s.r.K1;
  s.T = segundo ? s.r.T2 : s.r.T1;
  s.cifras = segundo ? s.r.cifras2 : s.r.cifras1;
  // The reciprocal of a constant is shown to 3 or 4 figures.
  if (s.r.invertida) s.cifras = std::clamp(s.cifras, 3, 4);
  s.K = CifrasN(s.K, s.cifras);
  return s;
}

Sorteo SorteaReaccion(GenContext& g, bool invertible) {
  return SorteoDeFila(g, static_cast<int>(AleatorioEn(g.rnd, 1, kFilas, 1, 1)), invertible);
}

bool CabenGases(const Reaccion& r, const std::array<double, 4>& p) {
  for (int k = 0; k < 4; ++k)
    if (r.s[k].Gas() && !(p[k] >= 0 && p[k] <= r.s[k].pMax * (1 + 1e-9))) return false;
  return true;
}

std::array<double, 4> Equilibra(const Reaccion& r, double K, const std::array<double, 4>& inicial) {
  double c[4];
  for (int k = 0; k < 4; ++k) c[k] = r.s[k].Gas() ? r.s[k].coef : 0;
  const Solucion s = ResolverEquilibrio(K, c[0], c[1], c[2], c[3], inicial[0], inicial[1], inicial[2], inicial[3]);
  std::array<double, 4> out = s.C;
  for (int k = 0; k < 4; ++k)
    if (!r.s[k].Gas()) out[k] = inicial[k];
  return out;
}

std::string Nombre(GenContext& g, const Especie& e) {
  const std::string nombre = g.MsgQUI(e.nombre), f = "(" + std::string(FormulaSimple(e)) + ")";
  return nombre.find(f) != std::string::npos ? nombre : nombre + " " + f;
}

std::string TextoT(double tC) { return NumTexto(tC) + "& \xB0" "C"; }

std::string ListaY(GenContext& g, const std::vector<std::string>& items) {
  std::string t;
  for (std::size_t k = 0; k < items.size(); ++k)
    t += (k == 0 ? "" : k + 1 == items.size() ? " " + g.MsgQUI("and") + " " : ",  ") + items[k];
  return t;
}

void Rellena(std::string& t, const std::vector<std::pair<std::string, std::string>>& valores) {
  for (const auto& [de, por] : valores) ReplaceAll(t, de, por);
}

std::string Pregunta(char letra, const std::string& texto) {
  return "&SP=5:&+B" + std::string(1, letra) + ")&-B " + texto + ".&LF";
}

}  // namespace ss::mod::ega
