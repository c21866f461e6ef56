// Generator 5: the stoichiometry of a redox reaction. The student balances
// the equation and works masses, a gas volume or a solution volume from one
// amount given. The four key species are the oxidant (1), its reduced form
// (2), the oxidised form of the reductant (3) and the reductant (4).
#include <array>
#include <cmath>
#include <cstdlib>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::rdx {
namespace {

constexpr double kR = 0.082057;  // atm L / (mol K)

struct Especie {
  std::string formula, clave;
  char marca = 0;  // 'D' dissolved, 'G' gas
  double M = 0, coef = 0, n = 0;
};

std::string N4(double x) { return NumCifras(x, 4); }

}  // namespace

void Generador5(GenContext& g) {
  const int t = g.GP_SeqB % 6 + 1;
  EcuacionRedox e;
  std::array<Especie, 4> s;
  double T = 25, P = 1, VD = 0, CR = 0;
  for (int k = 0;; k = static_cast<int>(AleatorioEn(g.rnd, 1, 50, 1, 1))) {
    e = EcuacionRedoxAcida(g, g.GP_SeqB + k);
    if (e.especie[0].empty() || e.Invertida) continue;
    for (int i = 0; i < 4; ++i) {
      const std::string& f = e.especie[static_cast<std::size_t>(i)];
      const std::string& nm = e.nombreMasa[static_cast<std::size_t>(i)];
      Especie& x = s[static_cast<std::size_t>(i)];
      x.formula = f.substr(0, f.find('/'));
      x.marca = f.find('/') == std::string::npos ? 0 : f.back();
      x.clave = nm.substr(0, nm.find('/'));
      x.M = std::atof(nm.c_str() + nm.find('/') + 1);
      x.coef = e.coef[static_cast<std::size_t>(i)];
    }
    const double masa = AleatorioEn(g.rnd, 5, 150, 1, 1);
    s[0].n = masa / s[0].M;
    // Gases at temperatures a reaction in water reaches and pressures at which
    // they stay gases: nitrogen dioxide condenses to a liquid below about
    // 21 °C at 1 atm, so it is only met warm and at no more than 1 atm.
    const bool dioxido = s[1].formula == "NO_2";
    T = AleatorioEn(g.rnd, dioxido ? 30 : 10, 90, 1, 1);
    if (AzarSupera(g.rnd, 0.6) && !dioxido) T = 25;
    P = AleatorioEn(g.rnd, 50, dioxido ? 100 : 200, 5, 1) / 100;
    if (AzarSupera(g.rnd, 0.7)) P = 1;
    VD = AleatorioEn(g.rnd, 100, 900, 5, 1);
    CR = s[0].n / (VD * 0.001);
    if ((t == 5 || t == 6) && s[1].marca != 'G') continue;
    // A solution that can be made: permanganate and dichromate of potassium
    // dissolve only to about 0.4 mol/L.
    const double tope = s[0].formula == "KMnO_4" || s[0].formula == "K_2Cr_2O_7" ? 0.4 : 5;
    if ((t == 3 || t == 4) && (s[0].marca != 'D' || CR < 0.05 || CR > tope)) continue;
    break;
  }
  auto desde = [&](int i, double n) {  // every amount from the moles of species i
    for (Especie& x : s) x.n = n / s[static_cast<std::size_t>(i)].coef * x.coef;
  };
  desde(0, s[0].n);
  double VG = s[1].n * kR * (T + 273.15) / P;
  const double MR1 = s[0].n * s[0].M, MP1 = s[1].n * s[1].M, MP2 = s[2].n * s[2].M;
  // The answers are worked from the amount given as the page shows it.
  switch (t) {
    case 2: desde(1, Cifras4(MP1) / s[1].M); break;
    case 3: case 4: break;
    case 6: desde(1, P * Cifras4(VG) / kR / (T + 273.15)); break;
    default: break;
  }
  if (t == 3) desde(0, Cifras4(CR) * VD / 1000);
  if (t == 4) desde(2, Cifras4(MP2) / s[2].M);
  auto masa = [&](int i) { return N4(s[static_cast<std::size_t>(i)].n * s[static_cast<std::size_t>(i)].M); };

  struct Forma {
    std::string_view apertura[3], b, c;
  };
  static constexpr Forma kFormas[6] = {
      {{"RDX_NOX1_NRD2_NRD1_NOX2", "Ec_NO_AJUS_ES", "RDX_reacc_M_de_NOX1"}, "Hallar_masa_NOX2", "Hallar_masa_NRD2"},
      {{"RDX_NRD2_NOX1_NOX2_NRD1", "Ec_NO_AJUS_ES", "RDX_forman_M_de_NRD1"}, "Hallar_masa_NOX2", "Hallar_masa_NRD2"},
      {{"RDX_reacVol_NOX1_NRD2_NOX2_NRD1_REAC"}, "Hallar_masa_NRD1", "Hallar_masa_NRD2"},
      {{"RDX_reac_disNOX1_NRD2_NOX2_NRD1_REAC", "RDX_forman_M_de_NOX2"}, "Hallar_masa_NRD1", "Hallar_VolDis_NOX1"},
      {{"RDX_NOX1_NRD2_NRD1_NOX2", "Ec_NO_AJUS_ES", "RDX_reacc_M_de_NOX1"}, "Hallar_VolGasTP_NRD1", "Hallar_masa_NRD2"},
      {{"RDX_NOX1_NRD2_NRD1_NOX2", "Ec_NO_AJUS_ES", "RDX_forman_VolGas_NRD1"}, "Hallar_masa_NOX1", "Hallar_masa_NOX2"},
  };
  const Forma& f = kFormas[t - 1];
  std::string st;
  for (std::string_view k : f.apertura)
    if (!k.empty()) st += (st.empty() ? "" : " ") + g.MsgQUI(k);
  st += "&LF" + g.MsgQUI("Masas_molares") + ": ";
  for (int i = 0; i < 4; ++i)
    st += (i ? ",  " : "") + s[static_cast<std::size_t>(i)].formula + " = " + NumTexto(s[static_cast<std::size_t>(i)].M);
  st += " (g/mol)&LF";
  if (t == 5 || t == 6) st += g.MsgQUI("Dato_R") + "&LF";
  st += g.MsgQUI("DCH") + ":&LF    &+Ba)&-B " + g.MsgQUI("Hallar_Ec_Redox_Ajus") + ".&LF    &+Bb)&-B " + g.MsgQUI(f.b) +
        ".&LF    &+Bc)&-B " + g.MsgQUI(f.c) + ".&LF";

  static constexpr std::string_view kRol[4] = {"OX1", "RD1", "OX2", "RD2"};
  for (int i = 0; i < 4; ++i) {
    const Especie& x = s[static_cast<std::size_t>(i)];
    const std::string nombre = ConFormula(g, x.clave, x.formula), rol(kRol[i]);
    ReplaceAll(st, "%UN" + rol + "%", Capitaliza(nombre));
    ReplaceAll(st, "%deN" + rol + "%", "of " + nombre);
    ReplaceAll(st, "%N" + rol + "%", nombre);
  }
  const std::string cr = N4(CR) + "& mol/L";
  const std::pair<std::string_view, std::string> r[] = {
      {"%REAC%", e.sinAjustar},
      {"%MR1%", N4(MR1) + "& g"},
      {"%MP1%", N4(MP1) + "& g"},
      {"%MP2%", N4(MP2) + "& g"},
      {"%VD1%", NumTexto(VD) + "& mL"},
      // Concentrations stay below 5 mol/L, all read aloud after "a".
      {"%AA_CR1%", "A " + cr},
      {"%LAA_CR1%", "a " + cr},
      {"%CR1%", cr},
      {"%T%", NumTexto(T) + "& \xB0" "C"},
      {"%P%", N4(P) + "& atm"},
      {"%VGP1%", N4(VG) + "& L"},
  };
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  ReplaceAll(st, "?.", "?");
  g.GP_Statement = st;

  std::string b, c;
  switch (t) {
    case 1: case 2: b = masa(2) + " g", c = masa(3) + " g"; break;
    case 3: b = masa(1) + " g", c = masa(3) + " g"; break;
    case 4: b = masa(1) + " g", c = N4(s[0].n / Cifras4(CR) * 1000) + " mL"; break;
    case 5: b = N4(s[1].n * kR * (T + 273.15) / P) + " L", c = masa(3) + " g"; break;
    default: b = masa(0) + " g", c = masa(2) + " g"; break;
  }
  g.GP_Solution = "&SP=10: &+Ba)&-B " + e.ajustada + "&LF&SP=10: &+Bb)&-B " + b + ",    &+Bc)&-B " + c + ".&LF";
}

}  // namespace ss::mod::rdx
