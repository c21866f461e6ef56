// Generator 8: electrolysis by Faraday's law. Eleven problem forms on a salt
// solution electrolysed with inert electrodes: the charge, current, time,
// mass deposited, molar or equivalent mass of the metal, its oxidation
// number, the gas given off at the anode, two cells in series, plating and
// the concentration left in the solution.
//
// Every answer is worked from the data as the page shows them: a mass drawn
// from the current and time is rounded to the four figures it is shown with,
// and the charge, time or current asked for follow from that rounded mass.
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::rdx {
namespace {

// Couples of the electrodes that give a gas, with their standard
// half-reactions as they run at the electrode: the gas and its name, the
// electrons that one molecule takes or gives, its molar mass and whether it
// forms at the anode. The salts below give off the gas of rows 3 and 6.
struct ParGas {
  std::string_view gas, nombre;
  int electrones;
  double masaMolar;
  bool anodo;
  std::string_view semirreaccion;
};

#define SS_E "e#SPB(L-#T)( #SPB)"
constexpr ParGas kGases[16] = {
    {"NO_2", "N_NO2", 1, 46.005, false, "NO#SPB(L-#T)(3#SPB) + 2H^+ + " SS_E " &ars NO_2 + H_2O"},
    {"NO", "N_NO_g", 3, 30.006, false, "NO#SPB(L-#T)(3#SPB) + 4H^+ + 3" SS_E " &ars NO + 2H_2O"},
    {"Cl_2", "N_Cl", 2, 70.906, true, "2Cl#SPB(L-#T)( #SPB) &ars Cl_2 + 2" SS_E},
    {"F_2", "N_F", 2, 37.997, true, "2F#SPB(L-#T)( #SPB) &ars F_2 + 2" SS_E},
    {"H_2", "N_H", 2, 2.016, false, "2H_2O + 2" SS_E " &ars H_2 + 2OH#SPB(L-#T)( #SPB)"},
    {"O_2", "N_O", 4, 31.999, true, "2H_2O &ars O_2 + 4H^+ + 4" SS_E},
    {"O_2", "N_O", 2, 31.999, true, "H_2O_2 &ars O_2 + 2H^+ + 2" SS_E},
    {"Cl_2", "N_Cl", 2, 70.906, false, "2ClO#SPB(L-#T)( #SPB) + 4H^+ + 2" SS_E " &ars Cl_2 + 2H_2O"},
    {"Cl_2", "N_Cl", 6, 70.906, false, "2ClO#SPB(L-#T)(2#SPB) + 8H^+ + 6" SS_E " &ars Cl_2 + 4H_2O"},
    {"Cl_2", "N_Cl", 10, 70.906, false, "2ClO#SPB(L-#T)(3#SPB) + 12H^+ + 10" SS_E " &ars Cl_2 + 6H_2O"},
    {"Cl_2", "N_Cl", 14, 70.906, false, "2ClO#SPB(L-#T)(4#SPB) + 16H^+ + 14" SS_E " &ars Cl_2 + 8H_2O"},
    {"NH_3", "N_NH3", 8, 17.031, false, "NO#SPB(L-#T)(3#SPB) + 6H_2O + 8" SS_E " &ars NH_3 + 9OH#SPB(L-#T)( #SPB)"},
    {"N_2", "N_N", 6, 28.013, false, "2NO#SPB(L-#T)(2#SPB) + 8H^+ + 6" SS_E " &ars N_2 + 4H_2O"},
    {"N_2", "N_N", 10, 28.013, false, "2NO#SPB(L-#T)(3#SPB) + 12H^+ + 10" SS_E " &ars N_2 + 6H_2O"},
    {"SO_2", "N_SO2", 2, 64.064, false, "SO#SPB(L2-#T)(4#SPB) + 4H^+ + 2" SS_E " &ars SO_2 + 2H_2O"},
    {"O_2", "N_O", 4, 31.999, true, "4OH#SPB(L-#T)( #SPB) &ars O_2 + 2H_2O + 4" SS_E},
};

// The metal couples: the salt electrolysed, the metal its cathode deposits
// with the electrons each atom takes, the atoms of metal in one formula, and
// the row of the gas its anode gives off (chlorides give chlorine; nitrates,
// sulfates and chromic acid give oxygen from the water). Gold(I) chloride
// does not dissolve in water (it falls apart into gold and gold(III)), so no
// problem draws it; copper(I) chloride dissolves only in hydrochloric acid.
struct SalMetal {
  std::string_view metal, nombreMetal;
  int carga;
  double masaMetal;
  std::string_view sal, nombreSal;
  int metalesPorFormula;
  int gasAnodo;  // row of kGases, from 1
  std::string_view catodo;
  bool enAgua, enHCl;
};

constexpr SalMetal kSales[14] = {
    {"Ag", "N_Ag", 1, 107.87, "AgNO_3", "N_AgNO3", 1, 6, "Ag^+ + " SS_E " &ars Ag", true, false},
    {"Zn", "N_Zn", 2, 65.41, "ZnSO_4", "N_ZnSO4", 1, 6, "Zn^2^+ + 2" SS_E " &ars Zn", true, false},
    {"Cd", "N_Cd", 2, 112.41, "CdCl_2", "N_CdCl2", 1, 3, "Cd^2^+ + 2" SS_E " &ars Cd", true, false},
    {"Au", "N_Au", 1, 196.97, "AuCl", "N_AuCl", 1, 3, "Au^+ + " SS_E " &ars Au", false, false},
    {"Au", "N_Au", 3, 196.97, "AuCl_3", "N_AuCl3", 1, 3, "Au^3^+ + 3" SS_E " &ars Au", true, false},
    {"Cr", "N_Cr", 2, 52.00, "CrCl_2", "N_CrCl2", 1, 3, "Cr^2^+ + 2" SS_E " &ars Cr", true, false},
    {"Cr", "N_Cr", 3, 52.00, "Cr_2(SO_4)_3", "N_Cr2(SO4)3", 2, 6, "Cr^3^+ + 3" SS_E " &ars Cr", true, false},
    {"Cr", "N_Cr", 6, 52.00, "CrO_3", "N_CrO3", 1, 6, "CrO_3 + 6H^+ + 6" SS_E " &ars Cr + 3H_2O", true, false},
    {"Ni", "N_Ni", 2, 58.69, "NiSO_4", "N_NiSO4", 1, 6, "Ni^2^+ + 2" SS_E " &ars Ni", true, false},
    {"Ni", "N_Ni", 2, 58.69, "NiCl_2", "N_NiCl2", 1, 3, "Ni^2^+ + 2" SS_E " &ars Ni", true, false},
    {"Cu", "N_Cu", 1, 63.55, "CuCl", "N_CuCl", 1, 3, "Cu^+ + " SS_E " &ars Cu", true, true},
    {"Cu", "N_Cu", 2, 63.55, "CuSO_4", "N_CuSO4", 1, 6, "Cu^2^+ + 2" SS_E " &ars Cu", true, false},
    {"Fe", "N_Fe", 2, 55.84, "FeSO_4", "N_FeSO4", 1, 6, "Fe^2^+ + 2" SS_E " &ars Fe", true, false},
    {"Fe", "N_Fe", 3, 55.84, "FeCl_3", "N_FeCl3", 1, 3, "Fe^3^+ + 3" SS_E " &ars Fe", true, false},
};

constexpr double kF = 96485;     // C per mole of electrons
constexpr double kR = 0.082057;  // atm·L/(mol·K)
constexpr std::string_view kE = SS_E;
#undef SS_E

const ParGas& GasDe(const SalMetal& s) { return kGases[s.gasAnodo - 1]; }

std::string N4(double x) { return NumCifras(x, 4); }

// A value as the page shows it, and the text that shows it.
struct Mostrado {
  double v = 0;
  std::string t;
};

// A mass in grams, shown in mg below one gram.
Mostrado Masa(double m) {
  if (Cifras4(m) >= 1) return {Cifras4(m), N4(m) + "& g"};
  return {Cifras4(m * 1000) / 1000, N4(m * 1000) + "& mg"};
}

std::string Corriente(double I) { return I < 1 ? N4(I * 1000) + "& mA" : N4(I) + "& A"; }

// Whole minutes, from 70 up also as hours and minutes.
std::string Tiempo(GenContext& g, int minutos) {
  std::string t = NumTexto(minutos) + "& " + g.MsgQUI("Minutos");
  if (minutos >= 70) {
    t += " (" + NumTexto(minutos / 60) + "& h";
    if (minutos % 60) t += "& " + NumTexto(minutos % 60) + "& min";
    t += ")";
  }
  return t;
}

// A time worked out, in seconds and in minutes.
std::string TiempoRespuesta(double s) { return N4(s) + " s (" + N4(s / 60) + " min)"; }

// The salt as the statement names its solution.
std::string Sal(GenContext& g, const SalMetal& s) {
  std::string t = ConFormula(g, s.nombreSal, s.sal);
  if (s.enHCl) t += " " + g.MsgQUI("ELT_en_HCl");
  return t;
}

std::string Ion(std::string_view simbolo, int carga) {
  return std::string(simbolo) + (carga == 1 ? "^+" : "^" + std::to_string(carga) + "^+");
}

std::string Electrones(int n) { return (n == 1 ? "" : std::to_string(n)) + std::string(kE); }

// Whole minutes: the product of two factors, brought below ten hours by
// tenths, so that every time lies from one to ten hours.
int DibujaMinutos(GenContext& g) {
  double m = AleatorioEn(g.rnd, 10, 200, 5, 1) * AleatorioEn(g.rnd, 10, 500, 1, 1);
  while (m > 600) m = std::floor(m / 10);
  return static_cast<int>(m);
}

// A salt that dissolves in water and that `admite` takes.
template <class F>
const SalMetal& DibujaSal(GenContext& g, F admite) {
  for (;;) {
    const SalMetal& s = kSales[static_cast<int>(AleatorioEn(g.rnd, 1, 14, 1, 1)) - 1];
    if (s.enAgua && admite(s)) return s;
  }
}

// Everything one problem shows and answers.
struct Problema {
  std::string apertura;
  std::vector<std::string_view> preguntas;
  std::vector<std::string> respuestas;  // each with its unit
  std::vector<std::pair<std::string, double>> masas;
  std::vector<std::pair<std::string_view, std::string>> campos;  // placeholder and its text
  std::string reacciones;  // the electrode reactions, for the solution
  bool gas = false;        // the data line gives R too
};

void Escribe(GenContext& g, Problema& p) {
  std::string st = g.MsgQUI(p.apertura) + "&LF" + g.MsgQUI("DCH") + ":&LF";
  const char letra[] = "abc";
  for (std::size_t k = 0; k < p.preguntas.size(); ++k)
    st += "&SP=5:&+B" + std::string(1, letra[k]) + ")&-B " + g.MsgQUI(p.preguntas[k]) + ".&LF";
  if (!p.masas.empty()) {
    std::string t;
    for (const auto& [formula, masa] : p.masas) {
      std::string x = NumTexto(masa);  // with the two decimals of the table: "52&.00"
      if (x.find("&.") == std::string::npos) x += "&.";
      while (x.size() < x.find("&.") + 4) x += '0';
      t += (t.empty() ? "" : ",  ") + formula + " = " + x;
    }
    st += g.MsgQUI("Masas_molares") + ": " + t + " (g/mol)&LF";
  }
  st += "&+I" + g.MsgQUI("Dato") + ":&-I 1 Faraday = 96485 C/mol e^-";
  if (p.gas) st += ",  " + g.MsgQUI("ELT_Dato_R");
  st += ".&LF";
  // A text put in may hold placeholders of its own ("a compound of %METAL%").
  for (int vuelta = 0; vuelta < 3; ++vuelta)
    for (const auto& [de, por] : p.campos) ReplaceAll(st, de, por);
  ReplaceAll(st, "?.", "?");
  g.GP_Statement = st;
  std::string so = "&SP=10:";
  for (std::size_t k = 0; k < p.respuestas.size(); ++k)
    so += (k ? ";    " : "") + std::string("&+B") + letra[k] + ")&-B " + p.respuestas[k];
  so += ".&LF";
  if (!p.reacciones.empty()) so += "&SP=10:" + p.reacciones + ".&LF";
  g.GP_Solution = so;
}

std::string Electrodos(GenContext& g, const SalMetal& s) {
  return g.MsgQUI("ELT_Catodo") + ": " + std::string(s.catodo) + ";    " + g.MsgQUI("ELT_Anodo") + ": " +
         std::string(GasDe(s).semirreaccion);
}

}  // namespace

// Row `fila` (from 1) of the gas couples, for the tests: most rows are no
// salt's anode, so no problem shows them.
std::string_view SemirreaccionGas(int fila) { return kGases[(fila - 1) % 16].semirreaccion; }

void Generador8(GenContext& g) {
  const int forma = g.GP_SeqB % 11 + 1;
  auto cualquiera = [](const SalMetal&) { return true; };
  // Chromic acid holds no Cr(VI) cation, nor copper(I) chloride a plain Cu+
  // in its acid; and iron is no metal for plating.
  const SalMetal& s = forma == 2   ? DibujaSal(g, [](const SalMetal& x) { return x.carga < 6 && !x.enHCl; })
                      : forma == 9 ? DibujaSal(g, [](const SalMetal& x) { return x.metal != "Fe"; })
                      : forma == 10 ? DibujaSal(g, [](const SalMetal& x) { return !x.enHCl; })
                                    : DibujaSal(g, cualquiera);
  double I = AleatorioEn(g.rnd, 5, 95, 1, 1) / 10;
  int minutos = DibujaMinutos(g);
  // A gas over a water solution: below the boiling point, and at pressures
  // that keep chlorine a gas at the lowest temperature drawn.
  double T = AleatorioEn(g.rnd, 15, 90, 1, 1), P = AleatorioEn(g.rnd, 50, 400, 5, 1) / 100;
  if (AzarSupera(g.rnd, 0.6)) T = 25;
  if (AzarSupera(g.rnd, 0.7)) P = 1;

  const ParGas& gas = GasDe(s);
  const double z = s.carga, M = s.masaMetal, TK = T + 273.15;
  const std::string metal = g.MsgQUI(s.nombreMetal);
  auto deposito = [&](double Q) { return Q / kF * M / z; };  // grams of metal for a charge
  auto segundos = [&] { return minutos * 60.0; };

  Problema p;
  p.campos = {{"%SAL%", Sal(g, s)},
              {"%METAL%", metal},
              {"%I%", Corriente(I)},
              {"%T%", Tiempo(g, minutos)},
              {"%ESP2%", ConFormula(g, gas.nombre, gas.gas)},
              {"%TC%", NumTexto(T) + "& \xB0" "C"},
              {"%P%", N4(P) + "& atm"}};
  // A placeholder's text for this form, in place of the common one.
  auto campo = [&](std::string_view de, std::string por) {
    for (auto& c : p.campos)
      if (c.first == de) return void(c.second = std::move(por));
    p.campos.emplace_back(de, std::move(por));
  };
  auto masaMetal = [&] { p.masas = {{std::string(s.metal), M}}; };
  auto gasDesde = [&](double Q, bool volumen) {
    const double n = Q / kF / gas.electrones;
    p.respuestas.push_back(N4(n) + " mol");
    if (volumen) p.respuestas.push_back(N4(n * kR * TK / P) + " L");
    p.gas = true;
  };
  p.reacciones = Electrodos(g, s);

  switch (forma) {
    case 1:    // a salt electrolysed for a time deposits a mass: the charge and the current
    case 11: {  // the same: the charge and the gas given off at the anode
      const Mostrado m = Masa(deposito(I * segundos()));
      const double Q = m.v * z * kF / M;
      p.apertura = "ELT_SAL_T_m";
      campo("%MASA%", m.t);
      masaMetal();
      p.respuestas.push_back(N4(Q) + " C");
      if (forma == 1) {
        p.preguntas = {"ELT_hallar_Q", "ELT_hallar_I"};
        p.respuestas.push_back(N4(Q / segundos()) + " A");
      } else {
        p.preguntas = {"ELT_hallar_Q", "ELT_hallar_N_ESP2", "ELT_hallar_V_ESP2"};
        gasDesde(Q, true);
      }
      break;
    }
    case 2:    // a salt of an unknown metal: its atomic mass
    case 8: {  // a compound of a known metal: the metal's oxidation number
      const double Q = I * segundos();
      const Mostrado m = Masa(deposito(Q));
      p.apertura = "ELT_SAL_I_T_m";
      campo("%MASA%", m.t);
      p.respuestas.push_back(N4(Q) + " C");
      if (forma == 2) {
        const std::string ion = Ion("X", s.carga);
        campo("%SAL%", g.MsgQUI("ELT_sal_de_X"));
        campo("%ION%", ion);
        campo("%METAL%", g.MsgQUI("ELT_metal_X"));
        p.preguntas = {"ELT_hallar_Q", "ELT_hallar_MM"};
        p.respuestas.push_back(N4(m.v * z * kF / Q) + " u (" + metal + ")");
        p.reacciones = g.MsgQUI("ELT_Catodo") + ": " + ion + " + " + Electrones(s.carga) + " &ars X";
      } else {
        campo("%SAL%", g.MsgQUI("ELT_compuesto_de"));
        masaMetal();
        p.preguntas = {"ELT_hallar_Q", "ELT_hallar_NOX"};
        const double electrones = Q / kF / (m.v / M);
        p.respuestas.push_back("+" + std::to_string(s.carga) + " (" + N4(electrones) + " mol e^- " +
                               g.MsgQUI("ELT_por_mol") + " " + std::string(s.metal) + ")");
        p.reacciones = g.MsgQUI("ELT_Catodo") + ": " + std::string(s.catodo);
      }
      break;
    }
    case 3: {  // a mass to deposit with a given current: the charge and the time
      const Mostrado m = Masa(deposito(I * segundos()));
      const double Q = m.v * z * kF / M;
      p.apertura = "ELT_SAL_m_I";
      campo("%MASA%", m.t);
      masaMetal();
      p.preguntas = {"ELT_hallar_Q", "ELT_hallar_T"};
      p.respuestas = {N4(Q) + " C", TiempoRespuesta(Q / I)};
      break;
    }
    case 4: {  // both electrode products named; the gas given off in a time
      const double Q = I * segundos();
      p.apertura = "ELT_DisSAL12";
      p.preguntas = {"ELT_hallar_Q", "ELT_hallar_N_ESP2", "ELT_hallar_V_ESP2"};
      p.respuestas.push_back(N4(Q) + " C");
      gasDesde(Q, true);
      break;
    }
    case 5: {  // the equivalent mass of a metal from what its salt deposits
      const double Q = I * segundos();
      const Mostrado m = Masa(deposito(Q));
      p.apertura = "ELT_Metal_Aci_I_T_m";
      campo("%MASA%", m.t);
      p.preguntas = {"ELT_hallar_Q", "ELT_hallar_PEQ"};
      p.respuestas = {N4(Q) + " C", N4(m.v * kF / Q) + " g/equiv"};
      p.reacciones.clear();  // the salt is not named
      break;
    }
    case 6: {  // the gas collected at the anode: its moles and the time it took
      const double n = I * segundos() / kF / gas.electrones;
      const Mostrado V{Cifras4(n * kR * TK / P), N4(n * kR * TK / P) + "& L"};
      const double Q = P * V.v / (kR * TK) * gas.electrones * kF;
      p.apertura = "ELT_SAL_I_VgP";
      campo("%VG%", V.t);
      p.preguntas = {"ELT_hallar_Q", "ELT_hallar_N_ESP2", "ELT_hallar_T"};
      p.respuestas.push_back(N4(Q) + " C");
      gasDesde(Q, false);
      p.respuestas.push_back(TiempoRespuesta(Q / I));
      break;
    }
    case 7: {  // two cells in series: the mass the second one deposits
      const SalMetal& s2 = DibujaSal(g, [&](const SalMetal& x) { return x.metal != s.metal; });
      const Mostrado m = Masa(deposito(I * segundos()));
      const double Q = m.v * z * kF / M;
      p.apertura = "ELT_SAL12_m";
      campo("%SAL1%", Sal(g, s));
      campo("%SAL2%", Sal(g, s2));
      campo("%METAL1%", metal);
      campo("%METAL2%", g.MsgQUI(s2.nombreMetal));
      campo("%MASA%", m.t);
      p.masas = {{std::string(s.metal), M}, {std::string(s2.metal), s2.masaMetal}};
      p.preguntas = {"ELT_hallar_Q", "ELT_hallar_MJ"};
      p.respuestas = {N4(Q) + " C", Masa(Q / kF * s2.masaMetal / s2.carga).t};
      ReplaceAll(p.respuestas.back(), "& ", " ");
      p.reacciones = g.MsgQUI("ELT_Catodo_1") + ": " + std::string(s.catodo) + ";    " +
                     g.MsgQUI("ELT_Catodo_2") + ": " + std::string(s2.catodo);
      break;
    }
    case 9: {  // plating a batch of containers: the charge and the time
      const int piezas = static_cast<int>(AleatorioEn(g.rnd, 2, 24, 1, 1));
      const Mostrado m = Masa(deposito(I * segundos()) / piezas);
      const double Q = piezas * m.v * z * kF / M;
      p.apertura = "ELT_Envases_T_m";
      campo("%NENV%", NumTexto(piezas) + "& " + g.MsgQUI("ELT_envases"));
      campo("%MASA%", m.t);
      masaMetal();
      p.preguntas = {"ELT_hallar_Q", "ELT_hallar_T"};
      p.respuestas = {N4(Q) + " C", TiempoRespuesta(Q / I)};
      break;
    }
    default: {  // 10: a solution of known strength: the mass deposited and the strength left
      // The solution holds from 10 % to 90 % more salt than the charge
      // takes out, so that some is always left. No salt of the table is
      // used at more than 1 mol/L, below the solubility of every one.
      double V = 0, C0 = 0, sal = 0;
      for (;;) {
        V = AleatorioEn(g.rnd, 100, 1000, 50, 1);
        C0 = AleatorioEn(g.rnd, 5, 100, 1, 1) / 100;
        sal = I * segundos() / kF / z / s.metalesPorFormula;
        const double fraccion = sal / (C0 * V / 1000);
        if (fraccion >= 0.1 && fraccion <= 0.9) break;
        I = AleatorioEn(g.rnd, 5, 95, 1, 1) / 10;
        minutos = DibujaMinutos(g);
      }
      campo("%I%", Corriente(I));
      campo("%T%", Tiempo(g, minutos));
      p.apertura = "ELT_Disol_I_T";
      campo("%VD%", NumTexto(V) + "& mL");
      campo("%C0%", NumTexto(C0) + "& mol/L");
      masaMetal();
      p.preguntas = {"ELT_hallar_M", "ELT_hallar_Concent"};
      std::string masa = Masa(deposito(I * segundos())).t;
      ReplaceAll(masa, "& ", " ");
      p.respuestas = {masa, N4(C0 - sal / (V / 1000)) + " mol/L"};
      break;
    }
  }
  Escribe(g, p);
}

}  // namespace ss::mod::rdx
