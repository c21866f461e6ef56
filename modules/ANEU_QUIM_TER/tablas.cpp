// Generators 1, 2, 5 and 7: the first law and the energy of a combustion,
// reaction enthalpies from formation enthalpies, entropy and Gibbs energy, and
// the formation and combustion enthalpies of organic compounds. Every reaction
// is stored balanced, with signed coefficients (reactants negative).
#include <array>
#include <cmath>
#include <utility>

#include "modules/ANEU_QUIM_TER/ter.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ter {
namespace {

constexpr double kR = 8.314472;  // J/(mol K)
constexpr double kT25 = 298.15;  // K

struct Especie {
  std::string_view clave, formula;  // name key; formula with its phase
  double M, dHf, dGf, S;            // g/mol, kJ/mol, kJ/mol, J/(mol K)
};

// Standard values at 25 °C and 1 atm: enthalpies and Gibbs energies of
// formation and absolute entropies (NBS thermochemical tables).
enum E { H2, O2, N2, C, CH4, C3H8, CO2, CO, H2Og, H2Ol, C2H2, C6H6, CH3OH, C2H5OH, CH3COOH, GLU, SO2, SO3, NH3,
         S, C2H6, I2, HI, Cl2, HCl, Br2, HBr, NO2, NO, N2O4, PCl5, PCl3, CaCO3, CaO, COCl2, C4H10, C8H18 };
constexpr Especie kTablaTermo[] = {
    {"N_H", "H_2_ _(_g_)", 2, 0, 0, 130.7},
    {"N_O", "O_2_ _(_g_)", 32, 0, 0, 205.03},
    {"N_N", "N_2_ _(_g_)", 28, 0, 0, 191.5},
    {"N_C", "C_ _(_s_)", 12, 0, 0, 5.74},
    {"N_CH4", "CH_4_ _(_g_)", 16, -74.85, -50.8, 186.3},
    {"N_C3H8", "C_3H_8_ _(_g_)", 44, -104.68, -24.4, 270.3},
    {"N_CO2", "CO_2_ _(_g_)", 44, -393.51, -394.36, 213.6},
    {"N_CO_g", "CO_ _(_g_)", 28, -110.53, -137.15, 197.9},
    {"N_H2O_g", "H_2O_ _(_g_)", 18, -241.82, -228.57, 188.8},
    {"N_H2O_l", "H_2O_ _(_l_)", 18, -285.83, -237.13, 69.9},
    {"N_C2H2", "C_2H_2_ _(_g_)", 26, 227.48, 209.97, 200.82},
    {"N_C6H6", "C_6H_6_ _(_l_)", 78, 49.08, 124.42, 172},
    {"N_CH3OH", "CH_3OH_ _(_l_)", 32, -238.66, -166.35, 126.8},
    {"N_CH3CH2OH", "C_2H_5OH_ _(_l_)", 46, -277.69, -174.89, 161.25},
    {"N_CH3COOH", "CH_3COOH_ _(_l_)", 60, -484.5, -390, 159.8},
    {"N_glucosa", "C_6H_1_2O_6_ _(_s_)", 180, -1273.3, -910, 212},
    {"N_SO2", "SO_2_ _(_g_)", 64, -296.83, -300.19, 248.11},
    {"N_SO3", "SO_3_ _(_g_)", 80, -395.72, -371.08, 256.76},
    {"N_NH3", "NH_3_ _(_g_)", 17, -46.11, -16.48, 192.34},
    {"N_S", "S_ _(_s_)", 32, 0, 0, 31.8},
    {"N_C2H6", "C_2H_6_ _(_g_)", 30, -83.85, -31.95, 229.49},
    {"N_I2_g", "I_2_ _(_g_)", 253.8, 62.44, 19.36, 260.58},
    {"N_HI", "HI_ _(_g_)", 127.9, 26.48, 1.72, 206.49},
    {"N_Cl", "Cl_2_ _(_g_)", 70.9, 0, 0, 223.07},
    {"N_HCl", "HCl_ _(_g_)", 36.5, -92.31, -95.3, 186.8},
    {"N_Br2_g", "Br_2_ _(_g_)", 159.8, 30.91, 3.11, 245.46},
    {"N_HBr", "HBr_ _(_g_)", 80.9, -36.2, -53.22, 198.48},
    {"N_NO2", "NO_2_ _(_g_)", 46, 33.18, 51.29, 239.95},
    {"N_NO_g", "NO_ _(_g_)", 30, 90.25, 86.55, 210.65},
    {"N_N2O4", "N_2O_4_ _(_g_)", 92, 9.16, 97.89, 304.29},
    {"N_PCl5", "PCl_5_ _(_g_)", 208.2, -374.9, -305, 364.58},
    {"N_PCl3", "PCl_3_ _(_g_)", 137.3, -287, -267.8, 311.78},
    {"N_CaCO3", "CaCO_3_ _(_s_)", 100.1, -1206.92, -1128.84, 92.9},
    {"N_CaO", "CaO_ _(_s_)", 56.1, -635.09, -604.03, 39.75},
    {"N_COCl2", "COCl_2_ _(_g_)", 99, -218.8, -204.6, 283.53},
    {"N_C4H10", "C_4H_1_0_ _(_g_)", 58, -125.65, -16.56, 310},
    {"N_gasolina", "C_8H_1_8_ _(_l_)", 114.23, -250.1, 6.4, 361.1},  // petrol taken as octane
};

struct Termino {
  double coef = 0;  // negative for a reactant
  E e = H2;
};
struct Reaccion {
  std::string_view tipo;     // COM, SIN, FOR, VAP or HID
  bool combustible = false;  // the combustion of a fuel
  std::array<Termino, 5> t{};
};

// The reactions, balanced; the fuels' combustions first.
constexpr Reaccion kReacciones[kReaccionesTermo] = {
    {"COM", true, {{{-1, H2}, {-0.5, O2}, {1, H2Ol}}}},
    {"COM", true, {{{-1, CH4}, {-2, O2}, {1, CO2}, {2, H2Ol}}}},
    {"COM", true, {{{-1, C2H6}, {-3.5, O2}, {2, CO2}, {3, H2Ol}}}},
    {"COM", true, {{{-1, C2H2}, {-2.5, O2}, {2, CO2}, {1, H2Ol}}}},
    {"COM", true, {{{-1, C3H8}, {-5, O2}, {3, CO2}, {4, H2Ol}}}},
    {"COM", true, {{{-1, C4H10}, {-6.5, O2}, {4, CO2}, {5, H2Ol}}}},
    {"COM", true, {{{-1, CH3OH}, {-1.5, O2}, {1, CO2}, {2, H2Ol}}}},
    {"COM", true, {{{-1, C8H18}, {-12.5, O2}, {8, CO2}, {9, H2Ol}}}},
    {"COM", false, {{{-1, C2H5OH}, {-3, O2}, {2, CO2}, {3, H2Ol}}}},
    {"COM", false, {{{-1, C6H6}, {-7.5, O2}, {6, CO2}, {3, H2Ol}}}},
    {"COM", false, {{{-1, CH3COOH}, {-2, O2}, {2, CO2}, {2, H2Ol}}}},
    {"COM", false, {{{-1, GLU}, {-6, O2}, {6, CO2}, {6, H2Ol}}}},
    {"COM", false, {{{-1, CO}, {-0.5, O2}, {1, CO2}}}},
    {"SIN", false, {{{-1, N2}, {-3, H2}, {2, NH3}}}},
    {"SIN", false, {{{-2, SO2}, {-1, O2}, {2, SO3}}}},
    {"SIN", false, {{{-1, H2}, {-1, Cl2}, {2, HCl}}}},
    {"SIN", false, {{{-1, H2}, {-1, Br2}, {2, HBr}}}},
    {"SIN", false, {{{-1, H2}, {-1, I2}, {2, HI}}}},
    {"SIN", false, {{{-1, N2}, {-1, O2}, {2, NO}}}},
    {"SIN", false, {{{-2, NO}, {-1, O2}, {2, NO2}}}},
    {"SIN", false, {{{-2, NO2}, {1, N2O4}}}},
    {"SIN", false, {{{-1, PCl3}, {-1, Cl2}, {1, PCl5}}}},
    {"SIN", false, {{{-1, CaO}, {-1, CO2}, {1, CaCO3}}}},
    {"SIN", false, {{{-1, CO}, {-1, Cl2}, {1, COCl2}}}},
    {"SIN", false, {{{-3, C2H2}, {1, C6H6}}}},
    {"FOR", false, {{{-1, C}, {-1, O2}, {1, CO2}}}},
    {"FOR", false, {{{-1, C}, {-0.5, O2}, {1, CO}}}},
    {"FOR", false, {{{-1, C}, {-2, H2}, {1, CH4}}}},
    {"FOR", false, {{{-2, C}, {-1, H2}, {1, C2H2}}}},
    {"FOR", false, {{{-2, C}, {-3, H2}, {1, C2H6}}}},
    {"FOR", false, {{{-3, C}, {-4, H2}, {1, C3H8}}}},
    {"FOR", false, {{{-6, C}, {-3, H2}, {1, C6H6}}}},
    {"FOR", false, {{{-1, C}, {-2, H2}, {-0.5, O2}, {1, CH3OH}}}},
    {"FOR", false, {{{-2, C}, {-3, H2}, {-0.5, O2}, {1, C2H5OH}}}},
    {"FOR", false, {{{-0.5, N2}, {-1.5, H2}, {1, NH3}}}},
    {"FOR", false, {{{-0.5, N2}, {-1, O2}, {1, NO2}}}},
    {"FOR", false, {{{-1, S}, {-1, O2}, {1, SO2}}}},
    {"FOR", false, {{{-1, S}, {-1.5, O2}, {1, SO3}}}},
    {"FOR", false, {{{-0.5, H2}, {-0.5, Cl2}, {1, HCl}}}},
    {"VAP", false, {{{-1, H2Ol}, {1, H2Og}}}},
    {"HID", false, {{{-1, C2H2}, {-2, H2}, {1, C2H6}}}},
    {"HID", false, {{{-1, CO}, {-2, H2}, {1, CH3OH}}}},
};

const Especie& De(const Termino& x) { return kTablaTermo[x.e]; }
bool Gas(const Especie& s) { return s.formula.ends_with("(_g_)"); }
// A liquid, sulfur (melts at 115 °C) or glucose (decomposes on heating): the
// reaction is only met near room temperature.
bool SoloTemplado(const Reaccion& r) {
  for (const Termino& x : r.t)
    if (x.coef != 0 && (De(x).formula.ends_with("(_l_)") || x.e == S || x.e == GLU)) return true;
  return false;
}

double Suma(const Reaccion& r, double Especie::*campo) {
  double s = 0;
  for (const Termino& x : r.t) s += x.coef * De(x).*campo;
  return s;
}
double DH(const Reaccion& r) { return Suma(r, &Especie::dHf); }
double DS(const Reaccion& r) { return Suma(r, &Especie::S); }
double Dn(const Reaccion& r) {
  double n = 0;
  for (const Termino& x : r.t)
    if (x.coef != 0 && Gas(De(x))) n += x.coef;
  return n;
}

// x to two decimals, as data are shown.
double Dos(double x) { return RedondeaPot(x, -3); }
std::string N4(double x) { return NumCifras(x, 4); }
// The formula without its phase: "CH_4".
std::string SinFase(std::string_view f) { return std::string(f.substr(0, f.find("_ _("))); }

std::string Lado(const Reaccion& r, bool productos) {
  std::string t;
  for (const Termino& x : r.t) {
    if (x.coef == 0 || (x.coef > 0) != productos) continue;
    const double c = std::fabs(x.coef);
    t += (t.empty() ? "" : " + ") + (c == 1 ? "" : FraccionTexto(2 * c, 2) + "_ ") + std::string(De(x).formula);
  }
  return t;
}

// A data line of the species: "&Delta&+IH&-I_f°(X)& =& v" for every species
// with a value (elements in their standard state are left out of the
// enthalpies), separated by "&,    ".
std::string LineaDatos(const Reaccion& r, bool entropia) {
  std::string t;
  for (const Termino& x : r.t) {
    if (x.coef == 0 || (!entropia && De(x).dHf == 0)) continue;
    t += (t.empty() ? "" : "&,    ") + std::string(entropia ? "&+IS&-I\xB0(" : "&Delta&+IH&-I_f\xB0(") +
         std::string(De(x).formula) + ")& =& " + NumTexto(entropia ? De(x).S : De(x).dHf);
  }
  return t + "&LF";
}

std::string MasaMolarDe(GenContext& g, const Especie& s) {
  return "&+IM&-I(" + SinFase(s.formula) + ") = " + NumTexto(s.M) + "& g/mol&LF";
}

int Fila(GenContext& g) { return static_cast<int>(AleatorioEn(g.rnd, 1, kReaccionesTermo, 1, 1)) - 1; }

std::string Pregunta(GenContext& g, char letra, std::string_view clave) {
  return "&SP=5:&+B" + std::string(1, letra) + ")&-B " + g.MsgQUI(clave) + ".&LF";
}

// Heat and work as the first law takes them: positive when the energy enters
// the system (work done on it).
void PrimerPrincipio(GenContext& g, int forma) {
  double Q, W;
  std::string st;
  if (forma == 4) {
    Q = AleatorioEn(g.rnd, 10, 500, 1, 1) * (AzarSupera(g.rnd, 0.5) ? -1 : 1);
    W = AleatorioEn(g.rnd, 1, 50, 0.5, 1) * (AzarSupera(g.rnd, 0.5) ? -1 : 1);
    st = g.MsgQUI("Dadas_Q_W") + " " + g.MsgQUI("DCH") + " " + g.MsgQUI("Hallar_dU_sistema") + ".&LF";
  } else {
    // A gas reaction at constant pressure: the work P·ΔV stays a few kJ.
    const bool libera = forma == 5 || (forma == 7 && !(AzarSupera(g.rnd, 0.5)));
    const bool sobre = forma == 5 || (forma == 7 && !(AzarSupera(g.rnd, 0.5)));
    Q = AleatorioEn(g.rnd, 5, 200, 0.5, 1) * (libera ? -1 : 1);
    W = AleatorioEn(g.rnd, 0.5, 10, 0.1, 1) * (sobre ? 1 : -1);
    st = g.MsgQUI(libera ? "Reac_2gases_Q_liberado_es" : "Reac_2gases_Q_absorbid_es") + " " +
         g.MsgQUI(sobre ? "Trabajo_Posit_es" : "Trabajo_Negat_es") + "&LF" + g.MsgQUI("DCH") + ":&LF" +
         Pregunta(g, 'a', "Hallar_dU_sistema") + Pregunta(g, 'b', "Hallar_dH_sistema");
  }
  ReplaceAll(st, "%Q%", NumTexto(forma == 4 ? Q : std::fabs(Q)) + "& kJ");
  ReplaceAll(st, "%W%", NumTexto(forma == 4 ? W : std::fabs(W)) + "& kJ");
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + std::string(forma == 4 ? "" : "&+Ba)&-B ") + "&Delta&+IU&-I = " + N4(Q + W) + " kJ" +
                  (forma == 4 ? "" : ";    &+Bb)&-B &Delta&+IH&-I = " + N4(Q) + " kJ") + ".&LF";
}

// The energy of a reaction at 25 °C, given as ΔH or ΔU, with the other one
// and the heat at constant pressure for a mass of its first species.
void EnergiaReaccion(GenContext& g, int forma) {
  const bool combustible = forma < 2, daU = forma % 2 == 1;
  int i;
  do i = Fila(g);
  while (kReacciones[i].combustible != combustible);
  const Reaccion& r = kReacciones[i];
  const Termino& x = r.t[0];
  const double dH = Dos(DH(r)), dU = Dos(dH - Dn(r) * kR * kT25 / 1000);
  const double masa = AleatorioEn(g.rnd, 5, 300, 1, 1);
  const double energia = dH * masa / (De(x).M * std::fabs(x.coef));
  const std::string unidad = r.tipo == "FOR" || r.tipo == "COM" ? " kJ/mol" : " kJ";
  std::string st = g.MsgQUI("Dada_reaccion25C") + "&LF&SP=5:" + Lado(r, false) + "  &ars  " + Lado(r, true) +
                   "      " + (daU ? "&Delta&+IU&-I^ \xB0 = " + NumTexto(dU) : "&Delta&+IH&-I^ \xB0 = " + NumTexto(dH)) +
                   unidad + "&LF" + g.MsgQUI("Datos_R_TER") + ";   " + MasaMolarDe(g, De(x)) + g.MsgQUI("DCH") +
                   ":&LF" + Pregunta(g, 'a', daU ? "dH_25C" : "dU_25C") +
                   Pregunta(g, 'b', energia < 0 ? "Ener_Liberada_Pcte_masa_dada" : "Ener_Necesari_Pcte_masa_dada");
  const std::string nombre = g.MsgQUI(De(x).clave);
  ReplaceAll(st, "%R%", "8&.314");
  ReplaceAll(st, "%M%", NumTexto(masa) + "& g");
  ReplaceAll(st, "%N%", nombre);
  ReplaceAll(st, "%COMB%", nombre);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:&+Ba)&-B " + std::string(daU ? "&Delta&+IH&-I^ \xB0 = " : "&Delta&+IU&-I^ \xB0 = ") +
                  N4(daU ? dU + Dn(r) * kR * kT25 / 1000 : dU) + unidad + ";    &+Bb)&-B " + N4(std::fabs(energia)) +
                  " kJ.&LF";
}

// A name without the formula some name texts carry: "acetic acid".
std::string SinFormula(std::string n) {
  if (n.ends_with(")")) n = n.substr(0, n.rfind(" ("));
  return n;
}

// The organic compounds: name key, formula with phase, standard enthalpy of
// formation at 25 °C (kJ/mol; NBS and CRC tables), atoms of C, H and O.
struct Organico {
  std::string_view clave, formula;
  double dHf;
  int c, h, o;
};
constexpr Organico kTablaCombustion[28] = {
    {"N_C6H6", "C_6H_6_ _(_l_)", 49.08, 6, 6, 0},
    {"N_CH3CH2OH", "C_2H_5(OH)_ _(_l_)", -277.69, 2, 6, 1},
    {"N_CH4", "CH_4_ _(_g_)", -74.85, 1, 4, 0},
    {"N_CH3COOH", "CH_3COOH_ _(_l_)", -484.5, 2, 4, 2},
    {"N_C3H8", "C_3H_8_ _(_g_)", -104.68, 3, 8, 0},
    {"N_C2H2", "C_2H_2_ _(_g_)", 227.48, 2, 2, 0},
    {"N_C2H4", "C_2H_4_ _(_g_)", 52.5, 2, 4, 0},
    {"N_glucosa", "C_6H_1_2O_6_ _(_s_)", -1273.3, 6, 12, 6},
    {"N_C2H6", "C_2H_6_ _(_g_)", -83.9, 2, 6, 0},
    {"N_C4H10", "C_4H_1_0_ _(_g_)", -125.7, 4, 10, 0},
    {"N_CH3OH", "CH_3OH_ _(_l_)", -238.66, 1, 4, 1},
    {"N_nC6H14", "C_6H_1_4_ _(_l_)", -198.6, 6, 14, 0},
    {"N_HCOOH", "HCOOH_ _(_l_)", -424.7, 1, 2, 2},
    {"N_CH3OCH3", "CH_3OCH_3_ _(_g_)", -184.1, 2, 6, 1},  // a gas at 25 °C (boils at -24 °C)
    {"N_CH3CHO", "CH_3CHO_ _(_g_)", -166.2, 2, 4, 1},     // a gas at 25 °C (boils at 20 °C)
    {"N_ciclohexano", "C_6H_1_2_ _(_l_)", -156.3, 6, 12, 0},
    {"N_metilpropano", "C_4H_1_0_ _(_g_)", -134.5, 4, 10, 0},
    {"N_C6H5OH", "C_6H_6O_ _(_s_)", -165.1, 6, 6, 1},
    {"N_pHidroquin", "C_6H_6O_2_ _(_s_)", -364.5, 6, 6, 2},
    {"N_hexanoico", "C_6H_1_2O_2_ _(_l_)", -583.8, 6, 12, 2},
    {"N_tolueno", "C_7H_8_ _(_l_)", 12.4, 7, 8, 0},
    {"N_nC7H16", "C_7H_1_6_ _(_l_)", -224.4, 7, 16, 0},
    {"N_ciclooctano", "C_8H_1_6_ _(_l_)", -167.7, 8, 16, 0},
    {"N_nC8H18", "C_8H_1_8_ _(_l_)", -250.1, 8, 18, 0},
    {"N_Naftaleno", "C_1_0H_8_ _(_s_)", 78.5, 10, 8, 0},
    {"N_C6H5-O-C6H5", "C_1_2H_1_0O_ _(_s_)", -32.1, 12, 10, 1},
    {"N_nC5H12", "C_5H_1_2_ _(_l_)", -173.5, 5, 12, 0},
    {"N_1pentanol", "C_5H_1_2O_ _(_l_)", -351.6, 5, 12, 1},
};
constexpr double kCO2 = -393.51, kH2O = -285.83;  // kJ/mol, CO2(g) and H2O(l)

}  // namespace

std::string EcuacionTermo(int fila) {
  const Reaccion& r = kReacciones[fila - 1];
  return Lado(r, false) + "  &ars  " + Lado(r, true);
}

void Generador1(GenContext& g) {
  const int forma = g.GP_SeqB % 8;
  if (forma >= 4) PrimerPrincipio(g, forma);
  else EnergiaReaccion(g, forma);
}

// Reaction enthalpy from formation enthalpies, and the heat for a mass of one
// species. Formation reactions are left out: their enthalpy is a datum.
void Generador2(GenContext& g) {
  int i;
  do i = Fila(g);
  while (kReacciones[i].tipo == "FOR");
  const Reaccion& r = kReacciones[i];
  int k;
  do k = static_cast<int>(AleatorioEn(g.rnd, 1, 5, 1, 1)) - 1;
  while (r.t[k].coef == 0);
  const Termino& x = r.t[k];
  const double masa = AleatorioEn(g.rnd, 5, 300, 1, 1);
  const double dH = DH(r), energia = dH * masa / (De(x).M * std::fabs(x.coef));
  std::string st = g.MsgQUI("Dada_reaccion_TER") + "&LF&SP=5:" + EcuacionTermo(i + 1) + "&LF" + g.MsgQUI("DCH") +
                   ":&LF" + Pregunta(g, 'a', "dH_25C") + Pregunta(g, 'b', "Energia_para_masa_Comp_Pcte") +
                   g.MsgQUI("Datos_dH_Formac_kJmol_25C_1atm") + "&LF" + LineaDatos(r, false) + g.MsgQUI("Masa_molar") + ": " + MasaMolarDe(g, De(x));
  const std::string nombre = g.MsgQUI(De(x).clave);
  ReplaceAll(st, "%M%", NumTexto(masa) + "& g");
  ReplaceAll(st, "%N%", nombre);
  ReplaceAll(st, "%deN%", "of " + nombre);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:&+Ba)&-B " + N4(dH) + " kJ;    &+Bb)&-B " + N4(energia) + " kJ.&LF";
}

// Entropy and Gibbs energy, ΔH and ΔS taken as constant with the temperature.
void Generador5(GenContext& g) {
  const int forma = g.GP_SeqB % 4;
  const bool cambio = forma >= 2, tablas = forma % 2 == 1;
  int i;
  while (true) {
    i = Fila(g);
    if (!cambio) break;
    // A temperature of change within 3000 °C, and for a reaction with a
    // liquid one where that liquid still is one.
    const Reaccion& r = kReacciones[i];
    const double dH = DH(r), dS = DS(r);
    if (dH * dS <= 0) continue;
    const double tc = dH * 1000 / dS - 273.15;
    if (tc <= 3000 && (!SoloTemplado(r) || tc <= 100)) break;
  }
  const Reaccion& r = kReacciones[i];
  const double dH = tablas ? DH(r) : Dos(DH(r)), dS = tablas ? DS(r) : Dos(DS(r));
  const double T = SoloTemplado(r) ? AleatorioEn(g.rnd, 30, 60, 5, 1) : AleatorioEn(g.rnd, 100, 1000, 10, 1);
  const double dG25 = dH - kT25 * dS / 1000, dGT = dH - (T + 273.15) * dS / 1000;
  std::string st = g.MsgQUI("Dada_reaccion_TER") + "&LF&SP=5:" + EcuacionTermo(i + 1) + "&LF";
  if (tablas) {
    st += g.MsgQUI("Datos_dH_Formac_kJmol_25C_1atm") + "&LF" + LineaDatos(r, false) +
          g.MsgQUI("Datos_Entrop_Jmol_25C_1atm") + "&LF" + LineaDatos(r, true);
  } else {
    st += g.MsgQUI("dH_dS_es") + "&LF";
  }
  st += g.MsgQUI("DCH") + ":&LF";
  std::string so = "&SP=10:";
  char letra = 'a';
  auto pide = [&](std::string_view clave, const std::string& respuesta) {
    st += Pregunta(g, letra, clave);
    so += std::string(letra == 'a' ? "" : ",    ") + "&+B" + std::string(1, letra) + ")&-B " + respuesta;
    ++letra;
  };
  if (tablas) pide("dH_25C", N4(dH) + " kJ"), pide("dS_25C", N4(dS) + " J/K");
  if (!cambio) {
    pide("dG_25C", N4(dG25) + " kJ");
    pide("dG_T", N4(dGT) + " kJ");
  } else {
    pide("dG_25C_ESP_NOESP", N4(dG25) + " kJ (" + g.MsgQUI(dG25 < 0 ? "espontanea" : "no_espontanea") + ")");
    pide("Temp_Cambia_ESPONT", N4(dH * 1000 / dS - 273.15) + " \xB0" "C");
  }
  ReplaceAll(st, "%DH%", NumTexto(dH) + "& kJ");
  ReplaceAll(st, "%DS%", NumTexto(dS) + "& J/K");
  ReplaceAll(st, "%T%", NumTexto(T) + "& \xB0" "C");
  ReplaceAll(st, "?.", "?");
  g.GP_Statement = st;
  g.GP_Solution = so + ".&LF";
}

// Formation and combustion enthalpies of an organic compound burnt to CO2(g)
// and H2O(l).
void Generador7(GenContext& g) {
  const int forma = g.GP_SeqB % 5 + 1;
  const Organico& c = kTablaCombustion[static_cast<int>(AleatorioEn(g.rnd, 1, 28, 1, 1)) - 1];
  const double M = 12 * c.c + c.h + 16 * c.o;
  const double dHc = c.c * kCO2 + c.h / 2.0 * kH2O - c.dHf;
  const double gramos = AleatorioEn(g.rnd, 2, 100, 1, 1);
  // What is given about the combustion, as shown, and the formation
  // enthalpy that follows from it.
  const double dado = forma == 2   ? RedondeaPot(dHc, -2)
                      : forma == 3 ? RedondeaPot(-dHc / M, std::floor(std::log10(-dHc / M)) - 5)
                                   : RedondeaPot(-dHc / M * gramos, std::floor(std::log10(-dHc / M * gramos)) - 5);
  static constexpr std::string_view kClave[5] = {"Hallar_DHCOM_de_DHFOR", "Hallar_DHFOR_de_DHCOM",
                                                 "Hallar_DHFOR_de_1gCOMB", "Hallar_DHFOR_de_ngCOMB",
                                                 "Hallar_DHCOM_Q1kg_de_DHFOR"};
  std::string st = g.MsgQUI(kClave[forma - 1]) + "&LF" + g.MsgQUI("Datos_CO2_H2O_TER") + "&LF";
  if (forma >= 3) st += "&+I" + g.MsgQUI("Masas_atomicas_TER") + "&-I C = 12,  H = 1,   O = 16 (g/mol)&LF";
  std::string so;
  if (forma == 1 || forma == 5) {
    so = "&SP=10:" + std::string(forma == 5 ? "&+Ba)&-B " : "") + "&Delta&+IH&-I_c\xB0 = " + N4(dHc) + " kJ/mol" +
         (forma == 5 ? ";    &+Bb)&-B " + N4(-dHc * 1000 / M) + " kJ" : "") + ".&LF";
  } else {
    const double dHcDado = forma == 2 ? dado : forma == 3 ? -dado * M : -dado * M / gramos;
    so = "&SP=10:&Delta&+IH&-I_f\xB0 = " + N4(c.c * kCO2 + c.h / 2.0 * kH2O - dHcDado) + " kJ/mol.&LF";
  }
  const std::string nombre = SinFormula(g.MsgQUI(c.clave));
  const std::pair<std::string_view, std::string> r[] = {
      {"%F%", std::string(c.formula)},
      {"%N%", nombre},
      {"%deN%", "of " + nombre},
      {"%DHFCO2%", NumTexto(kCO2) + "& kJ/mol"},
      {"%DHFH2O%", NumTexto(kH2O) + "& kJ/mol"},
      {"%DHF%", NumTexto(c.dHf) + "& kJ/mol"},
      {"%CALOR1mol%", NumTexto(dado) + "& kJ/mol"},
      {"%CALOR1g%", NumTexto(dado) + "& kJ"},
      {"%CALORng%", NumTexto(dado) + "& kJ"},
      {"%G%", NumTexto(gramos) + "& g"},
  };
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  g.GP_Statement = st;
  g.GP_Solution = so;
}

}  // namespace ss::mod::ter
