// The reactions of the stoichiometry module, each held balanced: the table of
// 25 reactions of the quantitative problems, the 27 templates of the lists of
// equations to balance, and the ions of the double exchange with the closed
// formula that balances it.
#include <algorithm>
#include <cmath>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::etq {
namespace {

// Coefficient, formula, name key, phase, molar mass (g/mol, the rounded
// masses the problems use). Columns 1 and 2 are reactants, 3 and 4 products.
// Two phases differ from a plain copy of the module's first table: calcium
// hydroxide (row 18) and aluminium hydroxide (rows 19, 20) take part as
// solids, since neither dissolves to the molarities the problems draw
// (calcium hydroxide saturates near 0.02 mol/L, aluminium hydroxide is
// insoluble).
constexpr Sustancia kTabla[kReacciones][4] = {
    {{-2, "H_2", "N_H", "g", 2}, {-1, "O_2", "N_O", "g", 32}, {2, "H_2O", "N_H2O", "l", 18}, {}},
    {{-1, "CO_2", "N_CO2", "g", 44}, {-1, "H_2", "N_H", "g", 2}, {1, "CO", "N_CO_g", "g", 28}, {1, "H_2O", "N_H2O", "g", 18}},
    {{-1, "CH_4", "N_CH4", "g", 16}, {-2, "O_2", "N_O", "g", 32}, {1, "CO_2", "N_CO2", "g", 44}, {2, "H_2O", "N_H2O", "l", 18}},
    {{-1, "C_3H_8", "N_C3H8", "g", 44}, {-5, "O_2", "N_O", "g", 32}, {3, "CO_2", "N_CO2", "g", 44}, {4, "H_2O", "N_H2O", "l", 18}},
    {{-1, "C_2H_4", "N_C2H4", "g", 28}, {-3, "O_2", "N_O", "g", 32}, {2, "CO_2", "N_CO2", "g", 44}, {2, "H_2O", "N_H2O", "l", 18}},
    {{-1, "N_2", "N_N", "g", 28}, {-3, "H_2", "N_H", "g", 2}, {2, "NH_3", "N_NH3", "g", 17}, {}},
    {{-3, "H_2", "N_H", "g", 2}, {-1, "N_2", "N_N", "g", 28}, {2, "NH_3", "N_NH3", "g", 17}, {}},
    {{-3, "H_2SO_4", "N_H2SO4", "ac", 98}, {-2, "Al", "N_Al", "s", 27}, {1, "Al_2(SO_4)_3", "N_Al2(SO4)3", "s", 342}, {3, "H_2", "N_H", "g", 2}},
    {{-6, "HCl", "N_HCl_ac", "ac", 36.5}, {-2, "Al", "N_Al", "s", 27}, {2, "AlCl_3", "N_AlCl3", "s", 133.5}, {3, "H_2", "N_H", "g", 2}},
    {{-1, "H_2SO_4", "N_H2SO4", "ac", 98}, {-1, "Zn", "N_Zn", "s", 65.37}, {1, "ZnSO_4", "N_ZnSO4", "s", 161.37}, {1, "H_2", "N_H", "g", 2}},
    {{-2, "H_3PO_4", "N_H3PO4", "ac", 98}, {-2, "Al", "N_Al", "s", 27}, {2, "AlPO_4", "N_AlPO4", "s", 122}, {3, "H_2", "N_H", "g", 2}},
    {{-2, "HCl", "N_HCl_ac", "ac", 36.5}, {-1, "Zn", "N_Zn", "s", 65.37}, {1, "ZnCl_2", "N_ZnCl2", "s", 136.37}, {1, "H_2", "N_H", "g", 2}},
    {{-2, "H_3PO_4", "N_H3PO4", "ac", 98}, {-3, "Zn", "N_Zn", "s", 65.37}, {1, "Zn_3(PO_4)_2", "N_Zn3(PO4)2", "s", 386.11}, {3, "H_2", "N_H", "g", 2}},
    {{-1, "HCl", "N_HCl_ac", "ac", 36.5}, {-1, "NH_3", "N_NH3", "g", 17}, {1, "NH_4Cl", "N_NH4Cl", "s", 53.5}, {}},
    {{-1, "H_2SO_4", "N_H2SO4", "ac", 98}, {-2, "NH_3", "N_NH3", "g", 17}, {1, "(NH_4)_2SO_4", "N_(NH4)2SO4", "s", 132}, {}},
    {{-1, "NH_3", "N_NH3", "ac", 17}, {-1, "HCl", "N_HCl", "g", 36.5}, {1, "NH_4Cl", "N_NH4Cl", "s", 53.5}, {}},
    {{-1, "NaOH", "N_NaOH", "ac", 40}, {-1, "CO_2", "N_CO2", "g", 44}, {1, "NaHCO_3", "N_NaHCO3", "s", 84}, {}},
    {{-2, "HCl", "N_HCl_ac", "ac", 36.5}, {-1, "Ca(OH)_2", "N_Ca(OH)2", "s", 74}, {1, "CaCl_2", "N_CaCl2", "s", 111}, {2, "H_2O", "N_H2O", "l", 18}},
    {{-3, "HCl", "N_HCl_ac", "ac", 36.5}, {-1, "Al(OH)_3", "N_Al(OH)3", "s", 78}, {1, "AlCl_3", "N_AlCl3", "s", 133.5}, {3, "H_2O", "N_H2O", "l", 18}},
    {{-3, "H_2SO_4", "N_H2SO4", "ac", 98}, {-2, "Al(OH)_3", "N_Al(OH)3", "s", 78}, {1, "Al_2(SO_4)_3", "N_Al2(SO4)3", "s", 342}, {6, "H_2O", "N_H2O", "l", 18}},
    {{-1, "H_2SO_4", "N_H2SO4", "ac", 98}, {-2, "NaOH", "N_NaOH", "ac", 40}, {1, "Na_2SO_4", "N_Na2SO4", "s", 142}, {2, "H_2O", "N_H2O", "l", 18}},
    {{-1, "HCl", "N_HCl_ac", "ac", 36.5}, {-1, "NaOH", "N_NaOH", "ac", 40}, {1, "NaCl", "N_NaCl", "s", 58.5}, {1, "H_2O", "N_H2O", "l", 18}},
    {{-1, "HClO_3", "N_HClO3", "ac", 84.5}, {-1, "LiOH", "N_LiOH", "ac", 23.9}, {1, "LiClO_3", "N_LiClO3", "s", 90.4}, {1, "H_2O", "N_H2O", "l", 18}},
    {{-1, "HNO_3", "N_HNO3", "ac", 63}, {-1, "KOH", "N_KOH", "ac", 56.1}, {1, "KNO_3", "N_KNO3", "s", 101.1}, {1, "H_2O", "N_H2O", "l", 18}},
    {{-1, "HCl", "N_HCl_ac", "ac", 36.5}, {-1, "NH_3", "N_NH3", "ac", 17}, {1, "NH_4Cl", "N_NH4Cl", "s", 53.5}, {}},
};

// The two forms of an equation from its four substances: a coefficient other
// than 1 goes right before its formula; the sides are joined by the arrow.
void Textos(ReaccionETQ& r) {
  std::string izq[2], der[2];  // balanced, stripped
  for (const Sustancia& s : r.s) {
    if (s.coef == 0) continue;
    std::string* lado = s.coef < 0 ? izq : der;
    const double n = std::fabs(s.coef);
    for (int k = 0; k < 2; ++k) {
      if (!lado[k].empty()) lado[k] += "  +  ";
      if (k == 0 && n != 1) lado[k] += NumTexto(n);
      lado[k] += s.formula;
    }
  }
  r.ajustada = izq[0] + "  &ars  " + der[0];
  r.sinAjustar = izq[1] + "  &ars  " + der[1];
}

// ---- templates -----------------------------------------------------------------------

// The slots in the order they are drawn, with the pools of the lists of
// equations ("M1" alkali and coinage metals, "M2" divalent metals, "M3"
// trivalent, "M4" tetravalent, "A1" halogens, "A2" chalcogens, "X3" to "X7"
// central atoms of oxoacids). Repetition is the weighting.
constexpr std::string_view kRanuras[11] = {"M1", "M2", "M3", "M4", "A1", "A2", "X3", "X4", "X5", "X6", "X7"};
constexpr std::string_view kBolsas[11] = {
    "Li Na Na Na K K Rb Cs Cs Ag Ag Cu Cu Hg Au",
    "Be Mg Mg Ca Ca Ca Sr Ba Cu Cu Hg Cr Mn Fe Fe Co Ni Ni Sn Pb Pt",
    "Al Al Al Cr Mn Fe Fe Co Ni Ni",
    "Sn Pb Pt",
    "F Cl Cl Br I",
    "S S S Se Te",
    "N N N P As Sb Cl Cl Cl Br Br I I",
    "S S S Se Te",
    "N N N P As Sb Cl Cl Cl Br Br I I",
    "S S S Se Te Cr Cr Mn Mn",
    "Cl Cl Cl Br Br I I Mn Mn",
};

// A template and, for the slots it fills, pools narrowed to the elements for
// which the reaction is real chemistry: the metal really reacts that way (only
// aluminium gives its +3 salt with a non-oxidising acid; iron gives iron(II);
// copper, mercury and platinum do not free hydrogen), and every product
// exists (no copper(II) or iron(III) iodide, no aluminium sulfite or nitrite,
// no lead(IV) hydroxide, no gold or mercury(I) hydroxide). Four templates take
// a real reaction of the same kind in place of one that cannot happen: 14 (an
// aluminium sulfite), 20 (aluminium sulfide from its hydroxide in water), 22
// (nitrites of trivalent metals) and 23 (a tin(IV) nitrate or chlorate).
struct Plantilla {
  std::string_view texto;
  std::array<std::string_view, 11> bolsa{};  // by slot; empty: the general pool
};
constexpr std::string_view kHidroxidos2 = "Mg Mg Ca Ca Ca Sr Ba Ba Cu Cu Mn Fe Co Ni Ni Zn Zn Pb";
constexpr std::string_view kHidroxidos3 = "Al Al Cr Fe Fe";
constexpr std::string_view kAlcalinos = "Li Na Na Na K K Rb Cs";
const Plantilla kPlantillasEcuacion[kPlantillas] = {
    {"CH_4 + 2O_2 = CO_2 + 2H_2O"},
    {"2C_2H_6 + 7O_2 = 4CO_2 + 6H_2O"},
    {"C_2H_4 + 3O_2 = 2CO_2 + 2H_2O"},
    {"2C_2H_2 + 5O_2 = 4CO_2 + 2H_2O"},
    {"C_3H_8 + 5O_2 = 3CO_2 + 4H_2O"},
    {"2C_4H_1_0 + 13O_2 = 8CO_2 + 10H_2O"},
    {"C_5H_1_2 + 8O_2 = 5CO_2 + 6H_2O"},
    {"CH_3CH_2OH + 3O_2 = 2CO_2 + 3H_2O"},
    {"4M3 + 3O_2 = 2M3_2O_3", {"", "", "Al Al Al Cr Fe Fe"}},
    {"2M3 + 6HA1 = 2M3A1_3 + 3H_2", {"", "", "Al"}},
    {"M2 + 2HA1 = M2A1_2 + H_2", {"", "Mg Mg Ca Ca Sr Ba Mn Fe Fe Co Ni Ni Sn Zn Zn"}},
    {"2M3 + 3H_2A2 = M3_2A2_3 + 3H_2", {"", "", "Al", "", "", "S S S Se"}},
    {"2M3 + 3H_2X6O_4 = M3_2(X6O_4)_3 + 3H_2", {"", "", "Al", "", "", "", "", "", "", "S"}},
    {"M2 + 2HX5O_3 = M2(X5O_3)_2 + H_2", {"", "Mg Mg Mn", "", "", "", "", "", "", "N"}},
    {"2M3 + 2H_3PO_4 = 2M3PO_4 + 3H_2", {"", "", "Al"}},
    {"2M3 + 6HX7O_4 = 2M3(X7O_4)_3 + 3H_2", {"", "", "Al", "", "", "", "", "", "", "", "Cl"}},
    {"M2(OH)_2 + 2HA1 = M2A1_2 + 2H_2O", {"", kHidroxidos2}},
    {"M3(OH)_3 + 3HA1 = M3A1_3 + 3H_2O", {"", "", kHidroxidos3}},
    {"M4(OH)_4 + 4HA1 = M4A1_4 + 4H_2O", {"", "", "", "Sn"}},
    {"2M1OH + H_2A2 = M1_2A2 + 2H_2O", {kAlcalinos}},
    {"M3(OH)_3 + H_3PO_4 = M3PO_4 + 3H_2O", {"", "", kHidroxidos3}},
    {"M2(OH)_2 + 2HX5O_3 = M2(X5O_3)_2 + 2H_2O", {"", kHidroxidos2, "", "", "", "", "", "", "N N N Cl"}},
    {"M3(OH)_3 + 3HX3O_3 = M3(X3O_3)_3 + 3H_2O", {"", "", kHidroxidos3, "", "", "", "N"}},
    {"M4(OH)_4 + 2H_2X4O_4 = M4(X4O_4)_2 + 4H_2O", {"", "", "", "Sn", "", "", "", "S"}},
    {"2M1OH + H_2X4O_3 = M1_2X4O_3 + 2H_2O", {kAlcalinos}},
    {"2M3(OH)_3 + 3H_2X6O_4 = M3_2(X6O_4)_3 + 6H_2O", {"", "", kHidroxidos3, "", "", "", "", "", "", "S S S Se"}},
    {"N_2 + 3H_2 = 2NH_3"},
};

// Products that the pools above could still compose and that do not exist
// or are not made this way: such a draw is made again.
constexpr std::string_view kNoExisten[] = {"CuI_2", "FeI_3", "Fe(ClO_3)_2", "Mn(ClO_3)_2"};

std::vector<std::string_view> Partes(std::string_view bolsa) {
  std::vector<std::string_view> v;
  while (!bolsa.empty()) {
    const std::size_t b = bolsa.find(' ');
    if (b != 0) v.push_back(bolsa.substr(0, b));
    if (b == std::string_view::npos) break;
    bolsa.remove_prefix(b + 1);
  }
  return v;
}

void Sustituye(std::string& s, std::string_view de, std::string_view por) {
  for (std::size_t at = s.find(de); at != std::string::npos; at = s.find(de, at + por.size()))
    s.replace(at, de.size(), por);
}

// ---- ions ------------------------------------------------------------------------------

// Symbol, charge, mass, name key, and the Roman numeral a metal of more than
// one charge takes in its name.
constexpr Ion kCationes[16] = {
    {"Na", 1, 23, "N_Na", ""},      {"Zn", 2, 65.4, "N_Zn", ""},     {"Al", 3, 27, "N_Al", ""},
    {"Pb", 2, 207.2, "N_Pb", "(II)"}, {"Li", 1, 6.9, "N_Li", ""},     {"Ca", 2, 40.1, "N_Ca", ""},
    {"Fe", 2, 55.8, "N_Fe", "(II)"},  {"Fe", 3, 55.8, "N_Fe", "(III)"}, {"Cu", 1, 63.5, "N_Cu", "(I)"},
    {"Cu", 2, 63.5, "N_Cu", "(II)"},  {"Cd", 2, 112.4, "N_Cd", ""},   {"Ag", 1, 107.9, "N_Ag", ""},
    {"Cr", 3, 52, "N_Cr", "(III)"},   {"K", 1, 39.1, "N_K", ""},      {"Mg", 2, 24.3, "N_Mg", ""},
    {"H", 1, 1, "N_H", ""},
};
// Symbol, charge, mass, name key and the key of its acid; the first draw of
// each row (draws 1..55).
struct AnionSorteo {
  int desde;
  Ion ion;
};
constexpr AnionSorteo kAniones[16] = {
    {1, {"F", 1, 19, "N_F-", "N_HF_ac"}},          {2, {"Cl", 1, 35.5, "N_Cl-", "N_HCl_ac"}},
    {9, {"Br", 1, 79.9, "N_Br-", "N_HBr_ac"}},      {10, {"I", 1, 126.9, "N_I-", "N_HI_ac"}},
    {11, {"SO_4", 2, 96, "N_SO4-2", "N_H2SO4"}},    {17, {"NO_3", 1, 62, "N_NO3-", "N_HNO3"}},
    {23, {"P_2O_7", 4, 174, "N_P2O7-4", "N_H4P2O7"}}, {24, {"PO_4", 3, 95, "N_PO4-3", "N_H3PO4"}},
    {25, {"S", 2, 32, "N_S-2", "N_H2S_ac"}},        {31, {"OH", 1, 17, "N_OH-", "N_H2O"}},
    {39, {"O", 2, 16, "N_O-2", "N_H2O"}},           {47, {"ClO", 1, 51.5, "N_ClO-", "N_HClO"}},
    {48, {"ClO_2", 1, 67.5, "N_ClO2-", "N_HClO2"}}, {49, {"ClO_3", 1, 83.5, "N_ClO3-", "N_HClO3"}},
    {50, {"ClO_4", 1, 99.5, "N_ClO4-", "N_HClO4"}}, {51, {"CO_3", 2, 60, "N_CO3-2", "N_H2CO3"}},
};

// How the compound of each cation (rows, in the order of kCationes) with each
// anion (columns, in the order of kAniones: F Cl Br I SO4 NO3 P2O7 PO4 S OH O
// ClO ClO2 ClO3 ClO4 CO3) behaves in water at room temperature:
//   S  dissolves;  L  dissolves only slightly (CaSO4, Ca(OH)2, PbCl2, KClO4);
//   P  insoluble, but a strong acid dissolves it (hydroxides, carbonates,
//      phosphates, FeS, ZnS);
//   Q  insoluble even in a dilute strong acid (AgCl, PbSO4, CuS, PbI2);
//   O  an oxide: a solid that only an acid takes up;
//   A  a strong acid;  a  a weak acid;  G  an acid that leaves as a gas (H2S,
//      H2CO3 giving CO2);  W  water;
//   X  does not exist in water: it is unknown (CuI2, FeI3, AgOH, Al2(CO3)3),
//      hydrolyses (Al2S3, MgS), or its ions oxidise each other (Fe(ClO)2);
//      a few rare or doubtful ones are left out as well.
// Lead takes charge 2: lead(IV) salts other than the oxide do not exist in water.
constexpr std::string_view kEnAgua[16] = {
    //F Cl Br I SO4 NO3 P2O7 PO4 S OH O ClO ClO2 ClO3 ClO4 CO3
    "SSSSSSSSSSOSSSSS",  // Na
    "XSSSSSPPPPOXXSSP",  // Zn
    "XSSXSSPPXPXXXXSX",  // Al
    "PLLQQSPPQPOXXSSP",  // Pb(II)
    "LSSSSSXPSSOSXSSL",  // Li
    "PSSSLSPPXLOSXSSP",  // Ca
    "XSSSSSPPPPOXXXSP",  // Fe(II)
    "XSSXSSPPXPOXXXSX",  // Fe(III)
    "XQQQXXXXQXOXXXXX",  // Cu(I)
    "XSSXSSPPQPOXXSSX",  // Cu(II)
    "XSSSSSPPQPOXXSSP",  // Cd
    "SQQQLSPPQXOXXSSP",  // Ag
    "XSXXSSXPXPXXXXSX",  // Cr(III)
    "SSSSSSSSSSOSSSLS",  // K
    "PSSSSSPPXPOXXSSP",  // Mg
    "aAAAAAaaGWWaaAAG",  // H
};

// A part of a formula: in parentheses when it is taken more than once and is
// more than one element ("OH", "SO_4"), though not a two-letter symbol ("Cl").
std::string Parte(std::string_view simbolo, int n) {
  if (n == 1) return std::string(simbolo);
  const bool simple = simbolo.size() == 1 ||
                      (simbolo.size() == 2 && simbolo[1] >= 'a' && simbolo[1] <= 'z');
  return (simple ? std::string(simbolo) : "(" + std::string(simbolo) + ")") + "_" + std::to_string(n);
}

}  // namespace

ReaccionETQ Reaccion(int fila) {
  ReaccionETQ r;
  r.fila = std::clamp(fila, 1, kReacciones);
  for (int k = 0; k < 4; ++k) {
    const Sustancia& s = kTabla[r.fila - 1][k];
    r.s[k] = s;
    if (s.coef < 0) {
      ++r.nReactivos;
      r.GasReactivo = r.GasReactivo || s.fase == "g";
      r.AcReactivo = r.AcReactivo || s.fase == "ac";
    } else if (s.coef > 0) {
      ++r.nProductos;
      r.GasProducto = r.GasProducto || s.fase == "g";
    }
  }
  Textos(r);
  return r;
}

ReaccionETQ DrawReaccionETQ(GenContext& g) {
  return Reaccion(static_cast<int>(AleatorioEn(g.rnd, 1, kReacciones, 1, 1)));
}

std::string_view TextoPlantilla(int indice) { return kPlantillasEcuacion[((indice % kPlantillas) + kPlantillas) % kPlantillas].texto; }

Ecuacion EcuacionPlantilla(GenContext& g, int indice) {
  const Plantilla& p = kPlantillasEcuacion[((indice % kPlantillas) + kPlantillas) % kPlantillas];
  while (true) {
    std::string t(p.texto);
    for (std::size_t k = 0; k < 11; ++k) {
      const std::vector<std::string_view> bolsa = Partes(p.bolsa[k].empty() ? kBolsas[k] : p.bolsa[k]);
      const auto n = static_cast<double>(bolsa.size());
      const auto i = static_cast<std::size_t>(AleatorioEn(g.rnd, 1, n, 1, 1)) - 1;
      Sustituye(t, kRanuras[k], bolsa[std::min(i, bolsa.size() - 1)]);
    }
    if (std::any_of(std::begin(kNoExisten), std::end(kNoExisten),
                    [&](std::string_view f) { return t.find(f) != std::string::npos; }))
      continue;
    Sustituye(t, "=", "&ars");
    Ecuacion e;
    e.ajustada = t;
    std::string s = " " + t;
    for (int k = 20; k >= 2; --k) Sustituye(s, " " + std::to_string(k), " ");
    e.sinAjustar = std::string(Trim(s));
    return e;
  }
}

const Ion& CationDeSorteo(int sorteo) { return kCationes[std::clamp(sorteo, 1, 16) - 1]; }

const Ion& AnionDeSorteo(int sorteo) {
  const AnionSorteo* a = &kAniones[0];
  for (const AnionSorteo& x : kAniones)
    if (sorteo >= x.desde) a = &x;
  return a->ion;
}

char EnAgua(const Ion& cation, const Ion& anion) {
  const auto c = &cation - kCationes;
  std::ptrdiff_t a = 0;
  while (a < 15 && &kAniones[a].ion != &anion) ++a;
  return kEnAgua[c][static_cast<std::size_t>(a)];
}

Compuesto FormulaIonica(const Ion& cation, const Ion& anion) {
  if (cation.simbolo == "H" && anion.simbolo == "OH" && cation.carga == 1 && anion.carga == 1)
    return {"H_2O", cation.masa + anion.masa};
  const int g = static_cast<int>(MCD(cation.carga, anion.carga));
  const int nc = anion.carga / g, na = cation.carga / g;
  return {Parte(cation.simbolo, nc) + Parte(anion.simbolo, na), nc * cation.masa + na * anion.masa};
}

DobleCambio AjustaDobleCambio(const Ion& c1, const Ion& a1, const Ion& c2, const Ion& a2) {
  const double a = MCD(c1.carga, a1.carga), b = MCD(c2.carga, a2.carga);
  const double c = MCD(c1.carga, a2.carga), d = MCD(c2.carga, a1.carga);
  const double q1 = a1.carga, q2 = a2.carga, p1 = c1.carga, p2 = c2.carga;
  DobleCambio r;
  r.coef = {12, static_cast<int>(std::nearbyint(12 * q1 * p1 * b / (a * q2 * p2))),
            static_cast<int>(std::nearbyint(12 * q1 * c / (a * q2))),
            static_cast<int>(std::nearbyint(12 * p1 * d / (a * p2)))};
  for (int k = 12; k >= 2; --k)
    if (std::all_of(r.coef.begin(), r.coef.end(), [k](int x) { return x % k == 0; })) {
      for (int& x : r.coef) x /= k;
      break;
    }
  auto termino = [](int n, const Compuesto& c) { return (n == 1 ? std::string() : std::to_string(n)) + c.formula; };
  r.ecuacion = termino(r.coef[0], FormulaIonica(c1, a1)) + "  +  " + termino(r.coef[1], FormulaIonica(c2, a2)) +
               "  &ars  " + termino(r.coef[2], FormulaIonica(c1, a2)) + "  +  " + termino(r.coef[3], FormulaIonica(c2, a1));
  return r;
}

}  // namespace ss::mod::etq
