// Gases: the gas laws between two states of one sample (generator 4) and the
// ideal gas equation PV = nRT (generator 9).
//
// Both work with R = 0.082 atm路L/(mol路K) and T(K) = t(掳C) + 273. Every value
// enters a statement with its unit behind a blank that never breaks a line.
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

constexpr double kR = 0.082;             // atm路L/(mol路K)
constexpr double kKelvin = 273;          // 掳C to K
constexpr double kVolumenMolar = 22.4;   // L/mol in normal conditions
constexpr double kMmHgPorAtm = 760;

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
// statement shows (in this order), molar mass in g/mol.
struct Gas {
  std::string_view formula;
  std::string_view clave;
  std::string_view elementos;
  double M;
};
constexpr Gas kGases[12] = {
    {"H_2", "N_H", "H", 2},         {"He", "N_He", "He", 4},
    {"N_2", "N_N", "N", 28},        {"O_2", "N_O", "O", 32},
    {"F_2", "N_F", "F", 38},        {"Cl_2", "N_Cl", "Cl", 71},
    {"NO", "N_NO_g", "N O", 30},    {"CO_2", "N_CO2", "C O", 44},
    {"SO_2", "N_SO2", "O S", 64},   {"SO_3", "N_SO3", "O S", 80},
    {"Ar", "N_Ar", "Ar", 40},       {"CH_4", "N_CH4", "H C", 16},
};

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

void Enunciado4(GenContext& g, std::string_view clave, const Reemplazos& r) {
  g.GP_Statement = g.MsgQUI(clave) + ".&LF";
  ReemplazaTodos(g.GP_Statement, r);
}

// Pressure after a change of volume and temperature.
void P2DePVTV2T2(GenContext& g) {
  double P, T, V, T2, V2;
  do {
    P = Dibuja(g, 0.5, 40, 0.5);
    T = Dibuja(g, 0, 150, 5, 0);
    V = Dibuja(g, 1.5, 45, 0.5);
    if (AzarSupera(g.rnd, 0.8)) P = 1;
    if (AzarSupera(g.rnd, 0.8)) T = 25;
    T2 = Dibuja(g, 0, 150, 5, 0);
    V2 = Dibuja(g, 1.5, 45, 0.5);
  } while (!(std::fabs(T - T2) > 30 && std::fabs(V - V2) >= 4));
  const double P2 = RedondeaPot(Div(P * V, T + kKelvin) * Div(T2 + kKelvin, V2), -3);
  Enunciado4(g, "P2_de_P_V_T_V2_T2",
             {{"%P%", Con(P, kAtm)}, {"%V%", Con(V, kLitro)}, {"%T%", Con(T, kCelsius)},
              {"%V2%", Con(V2, kLitro)}, {"%T2%", Con(T2, kCelsius)}});
  g.GP_Solution = Con(P2, kAtm) + ".&LF";
}

// Pressure after a change of volume at constant temperature.
void P2DePVV2(GenContext& g) {
  double P, V, V2;
  do {
    P = Dibuja(g, 0.5, 40, 0.5);
    V = Dibuja(g, 1.1, 15, 0.1);
    if (AzarSupera(g.rnd, 0.8)) P = 1;
    V2 = Dibuja(g, 1.1, 15, 0.1);
  } while (!(std::fabs(V - V2) > 4));
  const double P2 = RedondeaPot(Div(P * V, V2), -3);
  Enunciado4(g, "P2_de_P_V_V2",
             {{"%P%", Con(P, kAtm)}, {"%V%", Con(V, kLitro)}, {"%V2%", Con(V2, kLitro)}});
  g.GP_Solution = Con(P2, kAtm) + ".&LF";
}

// Temperature that brings a gas of fixed volume to a new pressure.
void T2DePTP2(GenContext& g) {
  double P, T, P2;
  do {
    P = Dibuja(g, 0.5, 40, 0.5);
    T = Dibuja(g, 0, 150, 5, 0);
    P2 = Dibuja(g, 0.5, 40, 0.5);
  } while (!(std::fabs(P - P2) > 8));
  const double T2 = RedondeaPot((T + kKelvin) * Div(P2, P) - kKelvin, -2);
  Enunciado4(g, "T2_de_P_T_P2",
             {{"%P%", Con(P, kAtm)}, {"%T%", Con(T, kCelsius)}, {"%P2%", Con(P2, kAtm)}});
  g.GP_Solution = Con(T2, kCelsius) + ".&LF";
}

// Volume after a change of temperature at constant pressure.
void V2DeVTT2(GenContext& g) {
  double V, T, T2;
  do {
    V = Dibuja(g, 4, 40, 0.5);
    T = Dibuja(g, 0, 150, 5, 0);
    T2 = Dibuja(g, 0, 150, 0.5);
  } while (!(std::fabs(T - T2) > 30));
  const double V2 = RedondeaPot(V * Div(T2 + kKelvin, T + kKelvin), -3);
  Enunciado4(g, "V2_de_V_T_T2",
             {{"%V%", Con(V, kLitro)}, {"%T%", Con(T, kCelsius)}, {"%T2%", Con(T2, kCelsius)}});
  g.GP_Solution = Con(V2, kLitro) + ".&LF";
}

// ---------------------------------------------------------------------------
// Generator 9: the ideal gas equation.

// The data of one problem; each form fills what it uses.
struct Datos9 {
  const Gas* gas1 = nullptr;
  const Gas* gas2 = nullptr;
  double P = 1, T = 0, V = 0, n = 0, m1 = 0, m2 = 0, d = 0;
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

// The line of data under a statement: the atomic masses the problem needs
// (none when `gases` is empty) and the gas constant.
std::string LineasDatos9(GenContext& g, const std::vector<const Gas*>& gases) {
  std::string datos;
  if (!gases.empty())
    datos += "&+I" + g.MsgQUI("Masas_Atomicas") + " " + ListaMasas(gases) + " &-I(g/mol)&LF";
  datos += "&+IR&-I = " + NumTexto(kR) + "& atm\xB7L/(mol\xB7K)&LF";
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

// A temperature in 癈: 0-150 in steps of 5.
double Temperatura(GenContext& g, bool conCero = true) { return Dibuja(g, 0, 150, 5, conCero ? 0 : 1); }

// The moles of `m` grams of a gas.
double Moles(double m, const Gas& gas) { return Div(m, gas.M); }

std::string Valor(std::string_view simbolo, double x, std::string_view unidad) {
  return std::string(simbolo) + " = " + Con(RedondeaPot(x, -3), unidad);
}

void VDeNPT(GenContext& g, Datos9& d) {  // V = nRT/P
  d.n = Dibuja(g, 0.5, 7, 0.5);
  d.P = PresionAMenudo1(g, 0.7, 15);
  d.T = Temperatura(g);
  Enunciado9(g, "V_de_n_P_T", d, {});
  g.GP_Solution = Valor("V", Div(d.n * kR * Kelvin(d.T), d.P), kLitro) + "&LF";
}

void VDeMMmPT(GenContext& g, Datos9& d) {  // V = (m/M)RT/P, and in normal conditions
  d.m1 = Dibuja(g, 1.5, 60, 0.1);
  d.P = Dibuja(g, 1.5, 15, 0.1);
  d.T = Dibuja(g, 30, 150, 5);
  Enunciado9(g, "V_de_m_MM_P_T", d, {d.gas1});
  const double n = Moles(d.m1, *d.gas1);
  g.GP_Solution = Etiqueta(1) + Valor("V", Div(n * kR * Kelvin(d.T), d.P), kLitro) + "&LF" +
                  Etiqueta(2) + Valor("V_0", n * kVolumenMolar, kLitro) + "&LF";
}

void DDeMMPT(GenContext& g, Datos9& d) {  // d = PM/(RT)
  d.P = PresionAMenudo1(g, 0.7, 2.5);
  d.T = Temperatura(g);
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
  Enunciado9(g, "MM_m_P_T_V", d, {});
  g.GP_Solution = Valor("M", d.gas1->M, kGramoMol) + "&LF";
}

void MMDeDPT(GenContext& g, Datos9& d) {  // M = dRT/P
  d.P = PresionAMenudo1(g, 0.7, 2.5);
  d.T = Temperatura(g);
  d.d = d.P * Div(d.gas1->M, kR * Kelvin(d.T));
  Enunciado9(g, "MM_de_d_P_T", d, {});
  g.GP_Solution = Valor("M", d.gas1->M, kGramoMol) + "&LF";
}

void PDeNTV(GenContext& g, Datos9& d) {  // P = nRT/V
  d.n = Dibuja(g, 1.5, 7, 0.5);
  d.V = Dibuja(g, 5, 90, 0.2);
  d.T = Temperatura(g, false);
  Enunciado9(g, "P_de_n_T_V", d, {});
  g.GP_Solution = Valor("P", Div(d.n * kR * Kelvin(d.T), d.V), kAtm) + "&LF";
}

void PDeMMmTV(GenContext& g, Datos9& d) {  // P = (m/M)RT/V
  double P;
  do {
    d.m1 = Dibuja(g, 0.7, 15, 0.1);
    d.V = Dibuja(g, 8, 40, 1);
    d.T = Temperatura(g);
    P = Div(Moles(d.m1, *d.gas1) * kR * Kelvin(d.T), d.V);
  } while (P > 100);
  Enunciado9(g, "P_de_m_MM_T_V", d, {d.gas1});
  g.GP_Solution = Valor("P", P, kAtm) + "&LF";
}

void MDePTVMM(GenContext& g, Datos9& d) {  // m = PVM/(RT)
  d.V = Dibuja(g, 1.5, 60, 0.1);
  d.P = PresionAMenudo1(g, 0.7, 2.5);
  d.T = Temperatura(g);
  Enunciado9(g, "m_de_P_T_V_MM", d, {d.gas1});
  g.GP_Solution = Valor("m", d.P * d.V * Div(d.gas1->M, kR * Kelvin(d.T)), kGramo) + "&LF";
}

// The pressure of a mixture of two gases, which may be the same gas.
void PDeMezcla(GenContext& g, Datos9& d) {
  d.m1 = Dibuja(g, 20, 100, 1);
  d.m2 = Dibuja(g, 20, 100, 1);
  d.T = Temperatura(g);
  d.V = Dibuja(g, 0.7, 15, 0.1);
  if (AzarSupera(g.rnd, 0.8)) d.V = 1;
  Enunciado9(g, "P_de_m1_m2_T_V_MM1_MM2", d, {d.gas1, d.gas2});
  const double n1 = Moles(d.m1, *d.gas1);
  const double n2 = Moles(d.m2, *d.gas2);
  g.GP_Solution = "n = " + NumCifras(n1, 4) + " + " + NumCifras(n2, 4) + " = " +
                  Con(RedondeaPot(n1 + n2, -3), kMol) + ";  " +
                  Valor("P", Div((n1 + n2) * kR * Kelvin(d.T), d.V), kAtm) + "&LF";
}

void NDePTV(GenContext& g, Datos9& d) {  // n = PV/(RT)
  d.P = Dibuja(g, 1.5, 4, 0.1);
  d.V = Dibuja(g, 0.7, 2, 0.1);
  if (AzarSupera(g.rnd, 0.9)) d.V = 1;
  d.T = Temperatura(g);
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
  Datos9 d;
  d.gas1 = &At(kGases, static_cast<long long>(Dibuja(g, 1, 12, 1)) - 1);
  d.gas2 = &At(kGases, static_cast<long long>(Dibuja(g, 1, 12, 1)) - 1);
  kFormas[forma](g, d);
}

}  // namespace ss::mod::dis
