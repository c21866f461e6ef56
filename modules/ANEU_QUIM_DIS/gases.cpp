// Gases: the gas laws between two states of one sample (generator 4) and the
// ideal gas equation PV = nRT (generator 9).
//
// Both work with R = 0.082 atm·L/(mol·K) and T(K) = t(°C) + 273.15, and each
// statement states the constants it needs. Every value enters a statement
// with its unit behind a blank that never breaks a line; every answer keeps
// at least three significant figures.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modules/ANEU_QUIM_DIS/dis.h"
#include "problems/fallos.h"
#include "problems/numeros.h"

namespace ss::mod::dis {
namespace {

constexpr double kR = 0.082;             // atm·L/(mol·K)
constexpr double kKelvin = 273.15;       // °C to K
constexpr double kMmHgPorAtm = 760;
constexpr double kRJ = 8.314;            // J/(mol·K), for vapour pressures

// Bounds that keep the gas laws' data real: temperatures of a gas sample in
// °C, and the highest pressure in atm at which a gas is still near ideal.
constexpr double kTMinima = -50, kTMaxima = 1000;
constexpr double kPMaxima = 30;

constexpr std::string_view kAtm = "& atm";
constexpr std::string_view kMmHg = "& mmHg";
constexpr std::string_view kLitro = "& L";
constexpr std::string_view kCelsius = "& \xB0" "C";
constexpr std::string_view kMol = "& mol";
constexpr std::string_view kGramo = "& g";
constexpr std::string_view kGramoLitro = "& g/L";
constexpr std::string_view kGramoMol = "& g/mol";

// The atomic masses a statement shows for the gases, rounded as a student
// uses them.
struct MasaMostrada {
  std::string_view simbolo;
  double masa;
};
constexpr MasaMostrada kMasasMostradas[] = {
    {"H", 1}, {"He", 4}, {"C", 12}, {"N", 14}, {"O", 16},
    {"F", 19}, {"S", 32}, {"Cl", 35.5}, {"Ar", 40},
};

// The gases of generator 9: formula, name key, the elements whose masses the
// statement shows (in this order), molar mass in g/mol, and for the gases
// that condense within the problems' conditions their normal boiling point
// in K and enthalpy of vaporisation in J/mol (standard handbook values). The
// others stay gases over the whole range: their critical points lie below
// 0 °C, or, for carbon dioxide, its vapour pressure above 0 °C (34.9 atm)
// exceeds every pressure the problems reach.
struct Gas {
  std::string_view formula;
  std::string_view clave;
  std::string_view elementos;
  double M;
  double ebullicion = 0, hVap = 0;
};
constexpr Gas kGases[12] = {
    {"H_2", "N_H", "H", 2},         {"He", "N_He", "He", 4},
    {"N_2", "N_N", "N", 28},        {"O_2", "N_O", "O", 32},
    {"F_2", "N_F", "F", 38},        {"Cl_2", "N_Cl", "Cl", 71, 239.11, 20410},
    {"NO", "N_NO_g", "N O", 30},    {"CO_2", "N_CO2", "C O", 44},
    {"SO_2", "N_SO2", "O S", 64, 263.13, 24940},
    {"SO_3", "N_SO3", "O S", 80, 317.9, 40700},
    {"Ar", "N_Ar", "Ar", 40},       {"CH_4", "N_CH4", "H C", 16},
};

// Whether the gas stays a gas at a partial pressure `P` (atm) and `t` (°C):
// its pressure keeps below four fifths of its vapour pressure there, read
// from the boiling point by the Clausius-Clapeyron equation.
bool EsGas(const Gas& gas, double P, double t) {
  if (gas.ebullicion == 0) return true;
  const double vapor = std::exp(gas.hVap / kRJ * (1 / gas.ebullicion - 1 / (t + kKelvin)));
  return P <= 0.8 * vapor;
}

using Reemplazos = std::vector<std::pair<std::string_view, std::string>>;

double Dibuja(GenContext& g, double min, double max, double step, double noZero = 1) {
  return AleatorioEn(g.rnd, min, max, step, noZero);
}

std::string Con(double x, std::string_view unidad) { return NumTexto(x) + std::string(unidad); }

void ReemplazaTodos(std::string& texto, const Reemplazos& r) {
  for (const auto& [nombre, valor] : r) Reemplaza(texto, nombre, valor);
}

// ---------------------------------------------------------------------------
// Generator 4: two states of one gas.

// The statement and the line of the constant it needs.
void Enunciado4(GenContext& g, std::string_view clave, const Reemplazos& r) {
  g.GP_Statement = g.MsgQUI(clave) + ".&LF" + g.MsgQUI("Datos_K") + "&LF";
  ReemplazaTodos(g.GP_Statement, r);
  Reemplaza(g.GP_Statement, "%K0%", NumTexto(kKelvin));
}

std::string Muestra(double x, std::string_view unidad) { return TextoRespuesta(x) + std::string(unidad); }

// Pressure after a change of volume and temperature.
void P2DePVTV2T2(GenContext& g) {
  double P, T, V, T2, V2;
  do {
    P = Dibuja(g, 0.5, 30, 0.5);
    T = Dibuja(g, 0, 150, 5, 0);
    V = Dibuja(g, 1.5, 45, 0.5);
    if (AzarSupera(g.rnd, 0.8)) P = 1;
    if (AzarSupera(g.rnd, 0.8)) T = 25;
    T2 = Dibuja(g, 0, 150, 5, 0);
    V2 = Dibuja(g, 1.5, 45, 0.5);
  } while (!(std::fabs(T - T2) > 30 && std::fabs(V - V2) >= 4 &&
             Div(P * V, T + kKelvin) * Div(T2 + kKelvin, V2) <= kPMaxima));
  const double P2 = Div(P * V, T + kKelvin) * Div(T2 + kKelvin, V2);
  Enunciado4(g, "P2_de_P_V_T_V2_T2",
             {{"%P%", Con(P, kAtm)}, {"%V%", Con(V, kLitro)}, {"%T%", Con(T, kCelsius)},
              {"%V2%", Con(V2, kLitro)}, {"%T2%", Con(T2, kCelsius)}});
  g.GP_Solution = Muestra(P2, kAtm) + ".&LF";
}

// Pressure after a change of volume at constant temperature.
void P2DePVV2(GenContext& g) {
  double P, V, V2;
  do {
    P = Dibuja(g, 0.5, 30, 0.5);
    V = Dibuja(g, 1.1, 15, 0.1);
    if (AzarSupera(g.rnd, 0.8)) P = 1;
    V2 = Dibuja(g, 1.1, 15, 0.1);
  } while (!(std::fabs(V - V2) > 4 && Div(P * V, V2) <= kPMaxima));
  const double P2 = Div(P * V, V2);
  Enunciado4(g, "P2_de_P_V_V2",
             {{"%P%", Con(P, kAtm)}, {"%V%", Con(V, kLitro)}, {"%V2%", Con(V2, kLitro)}});
  g.GP_Solution = Muestra(P2, kAtm) + ".&LF";
}

// Temperature that brings a gas of fixed volume to a new pressure; the ratio
// of the pressures keeps the new temperature between -50 and 1000 °C.
void T2DePTP2(GenContext& g) {
  double P, T, P2, T2;
  do {
    P = Dibuja(g, 0.5, 30, 0.5);
    T = Dibuja(g, 0, 150, 5, 0);
    P2 = Dibuja(g, 0.5, 30, 0.5);
    T2 = (T + kKelvin) * Div(P2, P) - kKelvin;
  } while (!(std::fabs(P - P2) > 8 && T2 >= kTMinima && T2 <= kTMaxima));
  Enunciado4(g, "T2_de_P_T_P2",
             {{"%P%", Con(P, kAtm)}, {"%T%", Con(T, kCelsius)}, {"%P2%", Con(P2, kAtm)}});
  g.GP_Solution = Con(RedondeaPot(T2, -2), kCelsius) + ".&LF";
}

// Volume after a change of temperature at constant pressure.
void V2DeVTT2(GenContext& g) {
  double V, T, T2;
  do {
    V = Dibuja(g, 4, 40, 0.5);
    T = Dibuja(g, 0, 150, 5, 0);
    T2 = Dibuja(g, 0, 150, 0.5);
  } while (!(std::fabs(T - T2) > 30));
  const double V2 = V * Div(T2 + kKelvin, T + kKelvin);
  Enunciado4(g, "V2_de_V_T_T2",
             {{"%V%", Con(V, kLitro)}, {"%T%", Con(T, kCelsius)}, {"%T2%", Con(T2, kCelsius)}});
  g.GP_Solution = Muestra(V2, kLitro) + ".&LF";
}

// ---------------------------------------------------------------------------
// Generator 9: the ideal gas equation.

// The data of one problem; each form fills what it uses.
struct Datos9 {
  const Gas* gas1 = nullptr;
  const Gas* gas2 = nullptr;
  double P = 1, T = 0, V = 0, n = 0, m1 = 0, m2 = 0, d = 0;
  double P1 = 0, P2 = 0;  // the pressure of each gas in the vessel, in atm
};

double Kelvin(double t) { return t + kKelvin; }

// "H = 1,  C = 12": the masses of the elements of the gases, each once.
std::string ListaMasas(const std::vector<const Gas*>& gases) {
  std::vector<std::string_view> vistos;
  std::string lista;
  for (const Gas* gas : gases) {
    std::string_view resto = gas->elementos;
    while (!resto.empty()) {
      const std::size_t blanco = resto.find(' ');
      const std::string_view simbolo = resto.substr(0, blanco);
      resto = blanco == std::string_view::npos ? std::string_view{} : resto.substr(blanco + 1);
      if (std::find(vistos.begin(), vistos.end(), simbolo) != vistos.end()) continue;
      vistos.push_back(simbolo);
      for (const MasaMostrada& e : kMasasMostradas) {
        if (e.simbolo != simbolo) continue;
        if (!lista.empty()) lista += ",  ";
        lista += std::string(simbolo) + " = " + NumTexto(e.masa);
      }
    }
  }
  return lista;
}

// The lines of data under a statement: the atomic masses the problem needs
// (none when `gases` is empty), the gas constant, the kelvin offset and the
// millimetres of mercury in an atmosphere.
std::string LineasDatos9(GenContext& g, const std::vector<const Gas*>& gases) {
  std::string datos;
  if (!gases.empty())
    datos += "&+I" + g.MsgQUI("Masas_Atomicas") + " " + ListaMasas(gases) + " &-I(g/mol)&LF";
  datos += g.MsgQUI("Datos_R") + "&LF";
  Reemplaza(datos, "%R%", NumTexto(kR));
  Reemplaza(datos, "%K0%", NumTexto(kKelvin));
  Reemplaza(datos, "%MMHG%", NumTexto(kMmHgPorAtm));
  return datos;
}

void Enunciado9(GenContext& g, std::string_view clave, const Datos9& d,
                const std::vector<const Gas*>& masas) {
  g.GP_Statement = g.MsgQUI(clave) + "&LF" + LineasDatos9(g, masas);
  const Gas& a = *d.gas1;
  const Gas& b = *d.gas2;
  const std::string nom1 = g.MsgQUI(a.clave);
  const std::string nom2 = g.MsgQUI(b.clave);
  ReemplazaTodos(g.GP_Statement,
                 {{"%V%", Con(d.V, kLitro)},
                  {"%N%", Con(d.n, kMol)},
                  {"%NOM1%", nom1},
                  {"%NOM2%", nom2},
                  {"%deNOM1%", "of " + nom1},
                  {"%deNOM2%", "of " + nom2},
                  {"%PATM%", Con(d.P, kAtm)},
                  {"%PMMHG%", Con(RedondeaPot(d.P * kMmHgPorAtm, -3), kMmHg)},
                  {"%TC%", Con(d.T, kCelsius)},
                  {"%MG1%", NumCifras(d.m1, 4) + std::string(kGramo)},
                  {"%MG2%", NumCifras(d.m2, 4) + std::string(kGramo)},
                  {"%FOR1%", std::string(a.formula)},
                  {"%FOR2%", std::string(b.formula)},
                  {"%DEN%", NumCifras(d.d, 4) + std::string(kGramoLitro)}});
}

// The pressure, 1 atm one time in five.
double PresionAMenudo1(GenContext& g, double min, double max) {
  const double P = Dibuja(g, min, max, 0.1);
  return AzarSupera(g.rnd, 0.8) ? 1 : P;
}

// A temperature in °C: 0-150 in steps of 5.
double Temperatura(GenContext& g, bool conCero = true) { return Dibuja(g, 0, 150, 5, conCero ? 0 : 1); }

// The moles of `m` grams of a gas.
double Moles(double m, const Gas& gas) { return Div(m, gas.M); }

std::string Valor(std::string_view simbolo, double x, std::string_view unidad) {
  return std::string(simbolo) + " = " + Muestra(x, unidad);
}

void VDeNPT(GenContext& g, Datos9& d) {  // V = nRT/P
  d.n = Dibuja(g, 0.5, 7, 0.5);
  d.P = PresionAMenudo1(g, 0.7, 15);
  d.T = Temperatura(g);
  d.P1 = d.P;
  Enunciado9(g, "V_de_n_P_T", d, {});
  g.GP_Solution = Valor("V", Div(d.n * kR * Kelvin(d.T), d.P), kLitro) + "&LF";
}

void VDeMMmPT(GenContext& g, Datos9& d) {  // V = (m/M)RT/P, and in normal conditions
  d.m1 = Dibuja(g, 1.5, 60, 0.1);
  d.P = Dibuja(g, 1.5, 15, 0.1);
  d.T = Dibuja(g, 30, 150, 5);
  d.P1 = d.P;
  Enunciado9(g, "V_de_m_MM_P_T", d, {d.gas1});
  const double n = Moles(d.m1, *d.gas1);
  // Normal conditions: 0 °C and 1 atm, with the same R.
  g.GP_Solution = Etiqueta(1) + Valor("V", Div(n * kR * Kelvin(d.T), d.P), kLitro) + "&LF" +
                  Etiqueta(2) + Valor("V_0", n * kR * Kelvin(0), kLitro) + "&LF";
  if (!EsGas(*d.gas1, 1, 0)) d.P1 = kPMaxima + 1;  // it must be a gas in normal conditions too
}

void DDeMMPT(GenContext& g, Datos9& d) {  // d = PM/(RT)
  d.P = PresionAMenudo1(g, 0.7, 2.5);
  d.T = Temperatura(g);
  d.P1 = d.P;
  Enunciado9(g, "d_de_MM_P_T", d, {d.gas1});
  g.GP_Solution = Valor("d", Div(d.P * d.gas1->M, kR * Kelvin(d.T)), kGramoLitro) + "&LF";
}

// The two forms that find a molar mass take the drawn gas's and derive the
// other data from it, so that the answer is a real gas's molar mass; the
// statement does not name the gas.
void MMDeMPTV(GenContext& g, Datos9& d) {  // M = mRT/(PV)
  d.P = PresionAMenudo1(g, 0.7, 3);
  d.V = Dibuja(g, 8, 80, 1);
  d.T = Temperatura(g);
  d.m1 = d.P * d.V * Div(d.gas1->M, kR * Kelvin(d.T));
  d.P1 = d.P;
  Enunciado9(g, "MM_m_P_T_V", d, {});
  g.GP_Solution = Valor("M", d.gas1->M, kGramoMol) + "&LF";
}

void MMDeDPT(GenContext& g, Datos9& d) {  // M = dRT/P
  d.P = PresionAMenudo1(g, 0.7, 2.5);
  d.T = Temperatura(g);
  d.d = d.P * Div(d.gas1->M, kR * Kelvin(d.T));
  d.P1 = d.P;
  Enunciado9(g, "MM_de_d_P_T", d, {});
  g.GP_Solution = Valor("M", d.gas1->M, kGramoMol) + "&LF";
}

void PDeNTV(GenContext& g, Datos9& d) {  // P = nRT/V
  d.n = Dibuja(g, 1.5, 7, 0.5);
  d.V = Dibuja(g, 5, 90, 0.2);
  d.T = Temperatura(g, false);
  d.P1 = Div(d.n * kR * Kelvin(d.T), d.V);
  Enunciado9(g, "P_de_n_T_V", d, {});
  g.GP_Solution = Valor("P", d.P1, kAtm) + "&LF";
}

void PDeMMmTV(GenContext& g, Datos9& d) {  // P = (m/M)RT/V
  d.m1 = Dibuja(g, 0.7, 15, 0.1);
  d.V = Dibuja(g, 8, 40, 1);
  d.T = Temperatura(g);
  d.P1 = Div(Moles(d.m1, *d.gas1) * kR * Kelvin(d.T), d.V);
  Enunciado9(g, "P_de_m_MM_T_V", d, {d.gas1});
  g.GP_Solution = Valor("P", d.P1, kAtm) + "&LF";
}

void MDePTVMM(GenContext& g, Datos9& d) {  // m = PVM/(RT)
  d.V = Dibuja(g, 1.5, 60, 0.1);
  d.P = PresionAMenudo1(g, 0.7, 2.5);
  d.T = Temperatura(g);
  d.P1 = d.P;
  Enunciado9(g, "m_de_P_T_V_MM", d, {d.gas1});
  g.GP_Solution = Valor("m", d.P * d.V * Div(d.gas1->M, kR * Kelvin(d.T)), kGramo) + "&LF";
}

// The pressure of a mixture of two different gases.
void PDeMezcla(GenContext& g, Datos9& d) {
  d.m1 = Dibuja(g, 20, 100, 1);
  d.m2 = Dibuja(g, 20, 100, 1);
  d.T = Temperatura(g);
  d.V = Dibuja(g, 0.7, 15, 0.1);
  if (AzarSupera(g.rnd, 0.8)) d.V = 1;
  Enunciado9(g, "P_de_m1_m2_T_V_MM1_MM2", d, {d.gas1, d.gas2});
  const double n1 = Moles(d.m1, *d.gas1);
  const double n2 = Moles(d.m2, *d.gas2);
  d.P1 = Div(n1 * kR * Kelvin(d.T), d.V);
  d.P2 = Div(n2 * kR * Kelvin(d.T), d.V);
  g.GP_Solution = "n = " + NumCifras(n1, 4) + " + " + NumCifras(n2, 4) + " = " +
                  Muestra(n1 + n2, kMol) + ";  " +
                  Valor("P", Div((n1 + n2) * kR * Kelvin(d.T), d.V), kAtm) + "&LF";
}

void NDePTV(GenContext& g, Datos9& d) {  // n = PV/(RT)
  d.P = Dibuja(g, 1.5, 4, 0.1);
  d.V = Dibuja(g, 0.7, 2, 0.1);
  if (AzarSupera(g.rnd, 0.9)) d.V = 1;
  d.T = Temperatura(g);
  d.P1 = d.P;
  Enunciado9(g, "n_de_P_T_V", d, {});
  g.GP_Solution = Valor("n", Div(d.P * d.V, kR * Kelvin(d.T)), kMol) + "&LF";
}

}  // namespace

void Generador4(GenContext& g) {
  switch (Forma(g, 4)) {
    case 0: P2DePVTV2T2(g); break;
    case 1: P2DePVV2(g); break;
    case 2: T2DePTP2(g); break;
    default: V2DeVTT2(g); break;
  }
}

void Generador9(GenContext& g) {
  using FormaGas = void (*)(GenContext&, Datos9&);
  static constexpr FormaGas kFormas[10] = {VDeNPT,   VDeMMmPT, DDeMMPT, MMDeMPTV, MMDeDPT,
                                           PDeNTV,   PDeMMmTV, MDePTVMM, PDeMezcla, NDePTV};
  const int forma = Forma(g, 10);
  // A problem is drawn again until each gas is a gas at its pressure and
  // temperature and the pressure in the vessel stays within the bound.
  for (;;) {
    Datos9 d;
    d.gas1 = &At(kGases, static_cast<long long>(Dibuja(g, 1, 12, 1)) - 1);
    do {
      d.gas2 = &At(kGases, static_cast<long long>(Dibuja(g, 1, 12, 1)) - 1);
    } while (d.gas2 == d.gas1);
    kFormas[forma](g, d);
    if (d.P1 + d.P2 <= kPMaxima && EsGas(*d.gas1, d.P1, d.T) && EsGas(*d.gas2, d.P2, d.T)) return;
  }
}

}  // namespace ss::mod::dis
