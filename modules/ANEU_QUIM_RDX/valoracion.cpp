// Generator 6: redox titration. A reductant (a metal ion of a lower oxidation
// state, or a free metal) is oxidised by a standard oxidant solution; at the
// equivalence point the equivalents of both are equal:
//   eq = C_ox * V_ox / 1000 * e_ox,   n_metal = eq / e_metal.
// Four forms: the molarity and normality of the titrated solution and the
// normality of the titrant (1); the same and the mass of metal it holds (2);
// the mass and percentage of the metal in a sample (3); the mass and
// percentage of free metal and of its oxide in a partly oxidised sample (4).
#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::rdx {
namespace {

// Ions that standard oxidants titrate in acid solution: the element, its name
// key, the oxidation states before and after, the electrons each atom gives,
// the molar mass (g/mol) and the species the element ends as. Every one of
// them is a real volumetric determination (iron(II) and tin(II) directly,
// uranium, molybdenum, titanium and chromium after a reductor, vanadium(IV)
// as vanadyl, arsenic(III) as arsenious acid), and every oxidant below is
// strong enough for each of them.
struct Valorado {
  std::string_view simbolo, nombre, desde, hasta;
  int electrones;
  double masa;
  std::string_view oxidado;
};
constexpr std::array<Valorado, 8> kIones = {{
    {"Fe", "N_Fe", "(II)", "(III)", 1, 55.84, "Fe^3^+"},
    {"U", "N_U", "(IV)", "(VI)", 2, 238.03, "UO#SPB(L2+#T)(2#SPB)"},
    {"Mo", "N_Mo", "(III)", "(VI)", 3, 95.95, "H_2MoO_4"},
    {"V", "N_V", "(IV)", "(V)", 1, 50.94, "VO#SPB(L+#T)(2#SPB)"},
    {"Ti", "N_Ti", "(III)", "(IV)", 1, 47.87, "TiO^2^+"},
    {"As", "N_As", "(III)", "(V)", 2, 74.92, "H_3AsO_4"},
    {"Sn", "N_Sn", "(II)", "(IV)", 2, 118.71, "Sn^4^+"},
    {"Cr", "N_Cr", "(II)", "(III)", 1, 52.00, "Cr^3^+"},
}};

// Metals that tarnish in air to a known oxide, and which the oxidant takes to
// the oxidation state of that oxide: element, name key, state, electrons,
// molar mass, the ion formed, the oxide and its name key (standard atomic
// masses). Cobalt, nickel and lead tarnish to CoO, NiO and PbO.
struct Metal {
  std::string_view simbolo, nombre, estado;
  int electrones;
  double masa;
  std::string_view ion, oxido, nombreOxido;
};
constexpr std::array<Metal, 12> kMetales = {{
    {"Zn", "N_Zn", "(II)", 2, 65.41, "Zn^2^+", "ZnO", "N_ZnO"},
    {"Fe", "N_Fe", "(III)", 3, 55.84, "Fe^3^+", "Fe_2O_3", "N_Fe2O3"},
    {"Co", "N_Co", "(II)", 2, 58.93, "Co^2^+", "CoO", "N_CoO"},
    {"Ni", "N_Ni", "(II)", 2, 58.69, "Ni^2^+", "NiO", "N_NiO"},
    {"V", "N_V", "(V)", 5, 50.94, "VO#SPB(L+#T)(2#SPB)", "V_2O_5", "N_V2O5"},
    {"Al", "N_Al", "(III)", 3, 26.98, "Al^3^+", "Al_2O_3", "N_Al2O3"},
    {"Cu", "N_Cu", "(II)", 2, 63.55, "Cu^2^+", "CuO", "N_CuO"},
    {"Cd", "N_Cd", "(II)", 2, 112.41, "Cd^2^+", "CdO", "N_CdO"},
    {"Mg", "N_Mg", "(II)", 2, 24.30, "Mg^2^+", "MgO", "N_MgO"},
    {"Bi", "N_Bi", "(III)", 3, 208.98, "Bi^3^+", "Bi_2O_3", "N_Bi2O3"},
    {"Sn", "N_Sn", "(IV)", 4, 118.71, "Sn^4^+", "SnO_2", "N_SnO2"},
    {"Pb", "N_Pb", "(II)", 2, 207.20, "Pb^2^+", "PbO", "N_PbO"},
}};

// Standard oxidant solutions of acid medium: formula, name key, the species
// it is reduced to, the electrons each formula unit takes, and the strongest
// solution used (mol/L; cerium(IV) sulfate dissolves less than the others).
struct Oxidante {
  std::string_view formula, nombre, reducida;
  int electrones;
  double maxMolar;
};
constexpr std::array<Oxidante, 4> kOxidantes = {{
    {"Ce(SO_4)_2", "N_Ce(SO4)2", "Ce^3^+", 1, 0.2},
    {"K_2Cr_2O_7", "N_K2Cr2O7", "Cr^3^+", 6, 0.3},
    {"KMnO_4", "N_KMnO4", "Mn^2^+", 5, 0.3},
    {"HIO_3", "N_HIO3", "I_2", 5, 0.3},
}};

std::string N4(double x) { return NumCifras(x, 4); }

}  // namespace

void Generador6(GenContext& g) {
  const int forma = g.GP_SeqB % 4 + 1;
  const bool libre = forma == 4;  // a free metal and its oxide

  // What is titrated, and by what.
  const int i = static_cast<int>(AleatorioEn(g.rnd, 1, libre ? 12 : 8, 1, 1)) - 1;
  const Oxidante& ox = kOxidantes[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, 4, 1, 1)) - 1];
  std::string_view simbolo, nombre, desde, hasta, oxidado;
  int eMetal = 0;
  double masa = 0;
  if (libre) {
    const Metal& m = kMetales[static_cast<std::size_t>(i)];
    simbolo = m.simbolo, nombre = m.nombre, hasta = m.estado, oxidado = m.ion, eMetal = m.electrones, masa = m.masa;
  } else {
    const Valorado& v = kIones[static_cast<std::size_t>(i)];
    simbolo = v.simbolo, nombre = v.nombre, desde = v.desde, hasta = v.hasta, oxidado = v.oxidado;
    eMetal = v.electrones, masa = v.masa;
  }

  // Volumes, titrant concentration and purity, drawn again until the
  // titrated solution is one that can be made (0.005-0.2 mol/L) and a sample
  // one an analyst weighs (0.1-10 g).
  double VRD = 0, VOX = 0, COX = 0, pureza = 0, n = 0, muestra = 0;
  for (;;) {
    VRD = AleatorioEn(g.rnd, 10, 100, 5, 1);
    VOX = AleatorioEn(g.rnd, 10, 100, 5, 1);
    if (VOX == VRD) VOX += 5;
    COX = AleatorioEn(g.rnd, 5, 300, 5, 1) / 1000;
    pureza = AleatorioEn(g.rnd, 52, 94, 1, 1);
    if (COX > ox.maxMolar) continue;
    n = COX * VOX / 1000 * ox.electrones / eMetal;
    const double M = n / (VRD / 1000);
    muestra = n * masa * 100 / pureza;
    if (forma <= 2 ? (M >= 0.005 && M <= 0.2) : (muestra >= 0.1 && muestra <= 10)) break;
  }
  // The answers are worked from the sample's mass as the page shows it.
  muestra = Cifras4(muestra);
  const double eq = COX * VOX / 1000 * ox.electrones;
  const double M = n / (VRD / 1000), N = eq / (VRD / 1000), Nox = COX * ox.electrones;
  const double masaMetal = n * masa, porcentaje = masaMetal / muestra * 100;

  // The statement: what is titrated, the species at the equivalence point,
  // the molar mass the answers need, and the questions.
  static constexpr std::string_view kApertura[4] = {"RDX_Valora_VRD_VOX", "RDX_Valora_VRD_VOX",
                                                    "RDX_Valora_Muestra_VOX", "RDX_Valora_Muestra2_VOX"};
  std::string st = g.MsgQUI(kApertura[forma - 1]) + " " + g.MsgQUI("RDX_Valora_PtoEqui_Especies_son") + "&LF";
  if (forma >= 2)
    st += g.MsgQUI("Masa_molar") + ": " + std::string(simbolo) + " = " + NumTexto(masa) + " g/mol.&LF";
  std::string so = "&SP=10:&+Ba)&-B ";
  auto pregunta = [&](char letra, std::string_view clave) {
    st += "&SP=5:&+B" + std::string(1, letra) + ")&-B " + g.MsgQUI(clave) + ".&LF";
  };
  st += g.MsgQUI("DCH") + ":&LF";
  switch (forma) {
    case 1:
      pregunta('a', "Hallar_Molarid_Norm_NMETJROM1J");
      pregunta('b', "Hallar_Normali_Esp1");
      so += N4(M) + " mol/L,  " + N4(N) + " equiv/L;    &+Bb)&-B " + N4(Nox) + " equiv/L.&LF";
      break;
    case 2:
      pregunta('a', "Hallar_Molarid_Norm_NMETJROM1J");
      pregunta('b', "Hallar_Masa_NMETJ_en_DISOL");
      so += N4(M) + " mol/L,  " + N4(N) + " equiv/L;    &+Bb)&-B " + N4(masaMetal) + " g.&LF";
      break;
    case 3:
      pregunta('a', "Hallar_Masa_%_NMETJ_en_MUESTRA");
      so += N4(masaMetal) + " g,  " + N4(porcentaje) + " %.&LF";
      break;
    default:
      pregunta('a', "Hallar_Masa_%_NMETJ_en_MUESTRA");
      pregunta('b', "Hallar_Masa_%_NMETOJ_en_MUESTRA");
      so += N4(masaMetal) + " g,  " + N4(porcentaje) + " %;    &+Bb)&-B " + N4(muestra - masaMetal) + " g,  " +
            N4(100 - porcentaje) + " %.&LF";
      break;
  }

  const std::string metal = g.MsgQUI(nombre);
  std::string oxido, deOxido;
  if (libre) {
    const Metal& m = kMetales[static_cast<std::size_t>(i)];
    oxido = ConFormula(g, m.nombreOxido, m.oxido);
    deOxido = "of " + oxido;
  }
  const std::pair<std::string_view, std::string> r[] = {
      {"%NROM1J%", libre ? " " + g.MsgQUI("metal") : std::string(desde)},
      {"%NROM2J%", std::string(hasta)},
      {"%NMETJ%", metal},
      {"%deNMETJ%", "of " + metal},
      {"%NOXMETJ%", std::string(oxidado)},
      {"%NMETOJ%", oxido},
      {"%deNMETOJ%", deOxido},
      {"%MMUES%", N4(muestra) + "& g"},
      {"%COX%", NumTexto(COX) + "& mol/L"},
      {"%VRD%", NumTexto(VRD) + "& mL"},
      {"%VOX%", NumTexto(VOX) + "& mL"},
      {"%NESP1%", ConFormula(g, ox.nombre, ox.formula)},
      {"%ESP1%", std::string(ox.formula)},
      {"%ESP2%", std::string(ox.reducida)},
  };
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  g.GP_Statement = st;
  g.GP_Solution = so;
}

}  // namespace ss::mod::rdx
