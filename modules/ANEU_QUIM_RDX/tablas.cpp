// The redox equations, held balanced with letter slots for the elements that
// vary, and the tables of the small problems.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::rdx {
namespace {

// What fills one slot. With `sorteo` 0 the first symbol stands unless a draw
// above `umbral` puts the next one in its place, and so on down the list (the
// last successful draw wins); with `sorteo` n one of the n symbols is drawn.
struct Ranura {
  std::string_view opciones;
  double umbral = 0.8;
  int sorteo = 0;
};

struct Codificada {
  std::string_view texto;
  Ranura J, Q, X;
  std::array<std::string_view, 4> especie{}, nombre{};
  std::array<double, 4> coef{};
};

// Some slots hold fewer elements than a plain reading of the equations would
// allow, so that every equation is one that really happens: concentrated
// nitric acid oxidises iodine to iodic acid but neither chlorine nor bromine;
// it turns tin into tin(IV) oxide but lead only into lead(II) nitrate; copper
// and mercury do not reduce nitrate to ammonium; concentrated sulfuric acid
// oxidises iodide as far as hydrogen sulfide and bromide to bromine, but sets
// chloride free as hydrogen chloride; iron(III) iodide, cobalt(III) and
// nickel(III) salts do not exist in water, and a sulfide cannot stand beside
// permanganate, dichromate or nitric acid, which oxidise it to sulfur.
constexpr Codificada kTablaAcida[kAcidas] = {
    {"10HNO_3 + J_2 = 10NO_2 + 2HJO_3 + 4H_2O", {"I"}, {}, {},
     {"HNO_3/D", "NO_2/G", "HJO_3", "J_2"}, {"N_HNO3", "N_NO2", "N_HJO3", "N_J"}, {10, 10, 2, 1}},
    {"8HNO_3 + 3J = 3J(NO_3)_2 + 2NO + 4H_2O", {"Zn Fe Cd Ca Mg Ni Co Hg Cu Cu Cu Cu", 0, 12}, {}, {},
     {"HNO_3/D", "NO/G", "J(NO_3)_2", "J"}, {"N_HNO3", "N_NO_g", "N_J(NO3)2", "N_J"}, {8, 2, 3, 3}},
    {"MnO_2 + 4HJ = J_2 + MnJ_2 + 2H_2O", {"Cl I Br"}, {}, {},
     {"MnO_2", "MnJ_2", "J_2", "HJ"}, {"N_MnO2", "N_MnJ2", "N_J", "N_HJ_ac"}, {1, 1, 1, 4}},
    {"2QMnO_4 + 16HJ = 2QJ + 2MnJ_2 + 5J_2 + 8H_2O", {"Cl I Br"}, {"K Na"}, {},
     {"QMnO_4/D", "MnJ_2", "J_2", "HJ"}, {"N_QMnO4", "N_MnJ2", "N_J", "N_HJ_ac"}, {2, 2, 5, 16}},
    {"2HNO_3 + S = H_2SO_4 + 2NO", {}, {}, {},
     {"HNO_3/D", "NO/G", "H_2SO_4", "S"}, {"N_HNO3", "N_NO_g", "N_H2SO4", "N_S"}, {2, 2, 1, 1}},
    {"2MnO_2 + Q_2O_3 + 4HJ = 2MnJ_2 + Q_2O_5 + 2H_2O", {"Cl I Br"}, {"As P Sb", 0.9}, {}},
    {"2J_2 + Q_2O_3 + 5H_2O = 2H_3QO_4 + 4HJ", {"Cl I Br"}, {"As P Sb", 0.9}, {}},
    {"5X + 24HJ + 3QMnO_4 = 5XJ_3 + 3MnJ_2 + 3QJ + 12H_2O", {"Cl Br"}, {"K Na"}, {"Al Fe Al Fe Fe Fe Fe", 0, 7}},
    {"8J + 2HNO_3 + 9H_2Q = 8JQ + (NH_4)_2Q + 6H_2O", {"Zn Fe Cd Ca Mg Mg Fe Zn Zn Zn Zn Zn", 0, 12}, {"SO_4"}, {}},
    {"Q_2Cr_2O_7 + 6HJ + 4H_2X = Q_2X + Cr_2(X)_3 + 3J_2 + 7H_2O", {"I Cl Br"}, {"K Na"}, {"SO_4"}},
    {"5H_2O_2 + 2QMnO_4 + 3H_2X = 5O_2 + 2MnX + Q_2X + 8H_2O", {}, {"K Na"}, {"SO_4"}},
    {"2KMnO_4 + 5Na_2SO_3 + 3H_2SO_4 = 2MnSO_4 + 5Na_2SO_4 + K_2SO_4 + 3H_2O", {}, {}, {},
     {"KMnO_4/D", "MnSO_4", "Na_2SO_4", "Na_2SO_3"}, {"N_KMnO4", "N_MnSO4", "N_Na2SO4", "N_Na2SO3"}, {2, 2, 5, 5}},
    {"2HNO_3 + 3H_2S = 2NO + 3S + 4H_2O", {}, {}, {},
     {"HNO_3/D", "NO/G", "S", "H_2S"}, {"N_HNO3", "N_NO_g", "N_S", "N_H2S_ac"}, {2, 2, 3, 3}},
    {"2QMnO_4 + 10QJ + 8H_2SO_4 = 2MnSO_4 + 5J_2 + 6Q_2SO_4 + 8H_2O", {"Cl I Br"}, {"K Na"}, {}},
    {"2HNO_3 + 6HJ = 2NO + 3J_2 + 4H_2O", {"I Cl Br"}, {}, {}},
    {"4HNO_3 + Q = QO_2 + 4NO_2 + 2H_2O", {}, {"Sn"}, {},
     {"HNO_3/D", "NO_2/G", "QO_2", "Q"}, {"N_HNO3", "N_NO2", "N_QO2", "N_Q"}, {4, 4, 1, 1}},
    {"8QJ + 5H_2SO_4 = 4J_2 + H_2S + 4Q_2SO_4 + 4H_2O", {"I"}, {"K Na"}, {}},
    {"2QJ + 2H_2SO_4 = Q_2SO_4 + J_2 + SO_2 + 2H_2O", {"Br I"}, {"K Na"}, {}},
    {"2QMnO_4 + 10JX + 8H_2X = 2MnX + 5J_2(X)_3 + Q_2X + 8H_2O", {"Fe"}, {"K Na"}, {"SO_4"}},
    {"K_2Cr_2O_7 + 4H_2SO_4 + 3H_2S = Cr_2(SO_4)_3 + K_2SO_4 + 3S + 7H_2O", {}, {}, {},
     {"K_2Cr_2O_7/D", "Cr_2(SO_4)_3", "S", "H_2S"}, {"N_K2Cr2O7", "N_Cr2(SO4)3", "N_S", "N_H2S_ac"}, {1, 1, 3, 3}},
    {"3H_2SO_4 + 2Al + 6HCl = 3SO_2 + 2AlCl_3 + 6H_2O", {}, {}, {},
     {"H_2SO_4/D", "SO_2/G", "AlCl_3", "Al"}, {"N_H2SO4", "N_SO2", "N_AlCl3", "N_Al"}, {3, 3, 2, 2}},
    {"2HClO_4 + 7Zn + 14HCl = Cl_2 + 7ZnCl_2 + 8H_2O", {}, {}, {},
     {"HClO_4/D", "Cl_2/G", "ZnCl_2", "Zn"}, {"N_HClO4", "N_Cl", "N_ZnCl2", "N_Zn"}, {2, 1, 7, 7}},
    {"O_3 + Zn + 2HCl = O_2 + ZnCl_2 + H_2O", {}, {}, {},
     {"O_3", "O_2/G", "ZnCl_2", "Zn"}, {"N_O3", "N_O", "N_ZnCl2", "N_Zn"}, {1, 1, 1, 1}},
};

// Iodite does not exist, so the halite slots draw nitrite where they would
// draw it; and in row 4 a halide that the halogen would oxidise gives way to
// the halogen's own halide (see Basica).
constexpr Codificada kTablaBasica[kBasicas] = {
    {"3Q_2MnO_4 + 3H_2O + QJ = 3MnO_2 + QJO_3 + 6QOH", {"I Cl Br"}, {"K Na"}, {}},
    {"3J_2 + 6QOH = 5QJ + QJO_3 + 3H_2O", {"Cl I Br"}, {"Na K"}, {}},
    {"8Al + 3QNO_3 + 5QOH + 2H_2O = 3NH_3 + 8QAlO_2", {}, {"Na K"}, {}},
    {"2QMnO_4 + 3XJO_2 + H_2O = 2MnO_2 + 3XJO_3 + 2QOH", {"Cl Br N N N N N N N", 0, 9}, {"K Na"}, {"Na K"}},
    {"3J_2 + 2CrX_3 + 16QOH = 6QJ + 2Q_2CrO_4 + 6QX + 8H_2O", {"Br Cl I"}, {"Na K"},
     {"F Br I Cl Cl Cl Cl Cl Cl", 0, 9}},
    {"3J_2 + 14QMnO_4 + 4H_2O = 6QJO_4 + 14MnO_2 + 8QOH", {"Cl Br"}, {"K Na"}, {}},
    {"10NO + 6QJO_3 + 4QOH = 10QNO_3 + 3J_2 + 2H_2O", {"I Br Cl"}, {"K Na"}, {}},
    {"4S + 3QJO_4 + 8QOH = 4Q_2SO_4 + 3QJ + 4H_2O", {"Cl Br I"}, {"Na K"}, {}},
    {"2QJO_2 + 3MnO_2 + 4QOH = J_2 + 3Q_2MnO_4 + 2H_2O", {"Cl Br N N N N N N N", 0, 9}, {"K Na"}, {}},
    {"4XJ_2 + 8QOH + QJO_2 = 2X_2O_3 + 9QJ + 4H_2O", {"Cl Br"}, {"K Na"}, {"Co Ni Fe"}},
    {"Cr_2(X)_3 + 10QOH + 3H_2O_2 = 2Q_2CrO_4 + 3Q_2X + 8H_2O", {}, {"Na K"}, {"SO_4"}},
    {"Cr_2(X)_3 + QJO_3 + 10QOH = 2Q_2CrO_4 + QJ + 3Q_2X + 5H_2O", {"Cl Br I"}, {"K Na"}, {"SO_4"}},
};
constexpr std::string_view kHalurosJuntos = "3J_2 + 2CrX_3 + 16QOH = 2Q_2CrO_4 + 12QX + 8H_2O";

// Molar masses (g/mol) of the key species, by name key.
const std::map<std::string, double, std::less<>>& Masas() {
  static const std::map<std::string, double, std::less<>> m = {
      {"N_HNO3", 63},       {"N_NO2", 46},         {"N_NO_g", 30},       {"N_HIO3", 175.9},    {"N_I", 253.8},
      {"N_Cl", 70.9},       {"N_Br", 159.8},       {"N_MnO2", 86.9},     {"N_MnCl2", 125.9},   {"N_MnI2", 308.7},
      {"N_MnBr2", 214.7},   {"N_HCl_ac", 36.5},    {"N_HI_ac", 127.9},   {"N_HBr_ac", 80.9},   {"N_KMnO4", 158},
      {"N_NaMnO4", 141.9},  {"N_H2SO4", 98},       {"N_S", 32},          {"N_MnSO4", 150.9},   {"N_Na2SO4", 142},
      {"N_Na2SO3", 126},    {"N_H2S_ac", 34},      {"N_SnO2", 150.7},    {"N_Sn", 118.7},      {"N_K2Cr2O7", 294.2},
      {"N_Cr2(SO4)3", 392}, {"N_SO2", 64},         {"N_AlCl3", 133.3},   {"N_Al", 27},         {"N_HClO4", 100.5},
      {"N_ZnCl2", 136.3},   {"N_Zn", 65.4},        {"N_O3", 48},         {"N_O", 32},          {"N_Fe", 55.8},
      {"N_Zn(NO3)2", 189.4}, {"N_Fe(NO3)2", 179.8}, {"N_Cd(NO3)2", 236.4}, {"N_Ca(NO3)2", 164.1},
      {"N_Mg(NO3)2", 148.3}, {"N_Ni(NO3)2", 182.7}, {"N_Co(NO3)2", 182.9}, {"N_Hg(NO3)2", 324.6},
      {"N_Cu(NO3)2", 187.5}, {"N_Cd", 112.4},      {"N_Ca", 40.1},       {"N_Mg", 24.3},       {"N_Ni", 58.7},
      {"N_Co", 58.9},       {"N_Hg", 200.6},       {"N_Cu", 63.5},
  };
  return m;
}

std::string Elige(GenContext& g, const Ranura& r) {
  std::vector<std::string_view> v;
  for (std::string_view o = r.opciones; !o.empty();) {
    const std::size_t b = o.find(' ');
    v.push_back(o.substr(0, b));
    if (b == std::string_view::npos) break;
    o.remove_prefix(b + 1);
  }
  if (v.empty()) return {};
  if (r.sorteo > 0) {
    const auto i = static_cast<std::size_t>(AleatorioEn(g.rnd, 1, r.sorteo, 1, 1)) - 1;
    return std::string(v[std::min(i, v.size() - 1)]);
  }
  std::string_view e = v[0];
  for (std::size_t k = 1; k < v.size(); ++k)
    if (AzarSupera(g.rnd, r.umbral)) e = v[k];
  return std::string(e);
}

void Rellena(std::string& t, const std::string& J, const std::string& Q, const std::string& X) {
  ReplaceAll(t, "J", J);
  ReplaceAll(t, "Q", Q);
  ReplaceAll(t, "X", X);
  ReplaceAll(t, "(S)", "S");
}

// Slots filled, the arrow written and, after a draw above 0.8, the reaction
// turned round.
EcuacionRedox Termina(GenContext& g, std::string t, const std::string& J, const std::string& Q,
                      const std::string& X) {
  EcuacionRedox e;
  Rellena(t, J, Q, X);
  ReplaceAll(t, "=", "&ars");
  if (AzarSupera(g.rnd, 0.8)) {
    const std::size_t f = t.find("&ars");
    t = std::string(Trim(std::string_view(t).substr(f + 4))) + " &ars " + std::string(Trim(std::string_view(t).substr(0, f)));
    e.Invertida = true;
  }
  e.ajustada = t;
  e.sinAjustar = SinCoeficientes(t);
  return e;
}

int Rango(std::string_view halogeno) {
  static constexpr std::string_view kOrden[] = {"F", "Cl", "Br", "I"};
  return static_cast<int>(std::find(std::begin(kOrden), std::end(kOrden), halogeno) - std::begin(kOrden));
}

}  // namespace

double Cifras4(double x) { return x == 0 ? 0 : RedondeaPot(x, std::floor(std::log10(std::fabs(x))) - 4); }

std::string SinCoeficientes(std::string_view ajustada) {
  std::string s = " " + std::string(ajustada);
  for (int k = 30; k >= 2; --k) ReplaceAll(s, " " + std::to_string(k), " ");
  return std::string(Trim(s));
}

EcuacionRedox EcuacionRedoxAcida(GenContext& g, int indice) {
  const Codificada& c = kTablaAcida[((indice % kAcidas) + kAcidas) % kAcidas];
  const std::string J = Elige(g, c.J), Q = Elige(g, c.Q), X = Elige(g, c.X);
  EcuacionRedox e = Termina(g, std::string(c.texto), J, Q, X);
  if (c.especie[0].empty()) return e;
  for (int k = 0; k < 4; ++k) {
    e.especie[k] = c.especie[k];
    Rellena(e.especie[k], J, Q, X);
    std::string clave(c.nombre[k]);
    Rellena(clave, J, Q, X);
    const auto m = Masas().find(clave);
    char masa[32];
    std::snprintf(masa, sizeof masa, "%g", m == Masas().end() ? 0.0 : m->second);
    e.nombreMasa[k] = clave + "/" + masa;
    e.coef[k] = c.coef[k];
  }
  return e;
}

EcuacionRedox EcuacionRedoxBasica(GenContext& g, int indice) {
  const int i = ((indice % kBasicas) + kBasicas) % kBasicas;
  const Codificada& c = kTablaBasica[i];
  const std::string J = Elige(g, c.J), Q = Elige(g, c.Q);
  std::string X = Elige(g, c.X);
  std::string_view texto = c.texto;
  if (i == 4) {
    if (Rango(X) > Rango(J)) X = J;  // the halogen would oxidise a heavier halide
    if (X == J) texto = kHalurosJuntos;
  }
  return Termina(g, std::string(texto), J, Q, X);
}

std::string ConFormula(GenContext& g, std::string_view clave, std::string_view formula) {
  std::string n = g.MsgQUI(clave);
  if (n.find(" (") != std::string::npos || formula.empty()) return n;
  return n + " (" + std::string(formula) + ")";
}

// ---- the small problems' tables ---------------------------------------------------------

// Formulas and the oxidation number of each of their elements. A few oxides
// and a hydride that are not known (I2O, Cl2O5, Br2O7, Bi2O5, W2O5, NiH3) are
// replaced by real ones, and a repeated ion by another.
const std::array<Nox, kNox>& TablaNOX() {
  static const std::array<Nox, kNox> t = {{
    {"H_2O", "H +1,  O -2"}, {"Li_2O", "Li +1,  O -2"}, {"Na_2O", "Na +1,  O -2"}, {"K_2O", "K +1,  O -2"},
    {"Cu_2O", "Cu +1,  O -2"}, {"Au_2O", "Au +1,  O -2"}, {"Ag_2O", "Ag +1,  O -2"}, {"Cl_2O", "Cl +1,  O -2"},
    {"Br_2O", "Br +1,  O -2"}, {"ClO_2", "Cl +4,  O -2"}, {"N_2O", "N +1,  O -2"}, {"BeO", "Be +2,  O -2"},
    {"MgO", "Mg +2,  O -2"}, {"CaO", "Ca +2,  O -2"}, {"CdO", "Cd +2,  O -2"}, {"FeO", "Fe +2,  O -2"},
    {"CoO", "Co +2,  O -2"}, {"NiO", "Ni +2,  O -2"}, {"NO", "N +2,  O -2"}, {"ZnO", "Zn +2,  O -2"},
    {"HgO", "Hg +2,  O -2"}, {"SnO", "Sn +2,  O -2"}, {"PbO", "Pb +2,  O -2"}, {"BaO", "Ba +2,  O -2"},
    {"Ti_2O_3", "Ti +3,  O -2"}, {"V_2O_3", "V +3,  O -2"}, {"Al_2O_3", "Al +3,  O -2"}, {"B_2O_3", "B +3,  O -2"},
    {"N_2O_3", "N +3,  O -2"}, {"P_2O_3", "P +3,  O -2"}, {"As_2O_3", "As +3,  O -2"}, {"Sb_2O_3", "Sb +3,  O -2"},
    {"Fe_2O_3", "Fe +3,  O -2"}, {"Co_2O_3", "Co +3,  O -2"}, {"Ni_2O_3", "Ni +3,  O -2"},
    {"Au_2O_3", "Au +3,  O -2"}, {"Cl_2O_3", "Cl +3,  O -2"}, {"Br_2O_3", "Br +3,  O -2"},
    {"Bi_2O_3", "Bi +3,  O -2"}, {"I_2O_3", "I +3,  O -2"}, {"SnO_2", "Sn +4,  O -2"}, {"PtO_2", "Pt +4,  O -2"},
    {"PbO_2", "Pb +4,  O -2"}, {"VO_2", "V +4,  O -2"}, {"WO_2", "W +4,  O -2"}, {"TiO_2", "Ti +4,  O -2"},
    {"SO_2", "S +4,  O -2"}, {"SiO_2", "Si +4,  O -2"}, {"TeO_2", "Te +4,  O -2"}, {"SeO_2", "Se +4,  O -2"},
    {"N_2O_5", "N +5,  O -2"}, {"P_2O_5", "P +5,  O -2"}, {"As_2O_5", "As +5,  O -2"}, {"Sb_2O_5", "Sb +5,  O -2"},
    {"Cr_2O_3", "Cr +3,  O -2"}, {"Br_2O_5", "Br +5,  O -2"}, {"I_2O_5", "I +5,  O -2"}, {"V_2O_5", "V +5,  O -2"},
    {"Mo_2O_5", "Mo +5,  O -2"}, {"MnO_2", "Mn +4,  O -2"}, {"NO_2", "N +4,  O -2"}, {"SO_3", "S +6,  O -2"},
    {"SeO_3", "Se +6,  O -2"}, {"TeO_3", "Te +6,  O -2"}, {"WO_3", "W +6,  O -2"}, {"Mn_2O_7", "Mn +7,  O -2"},
    {"Cl_2O_7", "Cl +7,  O -2"}, {"CrO_3", "Cr +6,  O -2"}, {"I_2O_7", "I +7,  O -2"}, {"Li_2O_2", "Li +1,  O -1"},
    {"Na_2O_2", "Na +1,  O -1"}, {"K_2O_2", "K +1,  O -1"}, {"Rb_2O_2", "Rb +1,  O -1"},
    {"Cs_2O_2", "Cs +1,  O -1"}, {"BeO_2", "Be +2,  O -1"}, {"MgO_2", "Mg +2,  O -1"}, {"CaO_2", "Ca +2,  O -1"},
    {"SrO_2", "Sr +2,  O -1"}, {"BaO_2", "Ba +2,  O -1"}, {"RaO_2", "Ra +2,  O -1"},
    {"HNO_3", "H +1,  N +5,  O -2"}, {"HNO_2", "H +1,  N +3,  O -2"}, {"HClO", "H +1,  Cl +1,  O -2"},
    {"HClO_2", "H +1,  Cl +3,  O -2"}, {"HClO_3", "H +1,  Cl +5,  O -2"}, {"HClO_4", "H +1,  Cl +7,  O -2"},
    {"HBrO", "H +1,  Br +1,  O -2"}, {"HBrO_2", "H +1,  Br +3,  O -2"}, {"HBrO_3", "H +1,  Br +5,  O -2"},
    {"HBrO_4", "H +1,  Br +7,  O -2"}, {"HIO", "H +1,  I +1,  O -2"}, {"HIO_2", "H +1,  I +3,  O -2"},
    {"HIO_3", "H +1,  I +5,  O -2"}, {"HIO_4", "H +1,  I +7,  O -2"}, {"H_2SO_3", "H +1,  S +4,  O -2"},
    {"H_2SO_4", "H +1,  S +6,  O -2"}, {"H_2SeO_3", "H +1,  Se +4,  O -2"}, {"H_2SeO_4", "H +1,  Se +6,  O -2"},
    {"H_2TeO_3", "H +1,  Te +4,  O -2"}, {"H_2TeO_4", "H +1,  Te +6,  O -2"}, {"HPO_3", "H +1,  P +5,  O -2"},
    {"HPO_2", "H +1,  P +3,  O -2"}, {"H_3PO_4", "H +1,  P +5,  O -2"}, {"H_3PO_3", "H +1,  P +3,  O -2"},
    {"H_4P_2O_7", "H +1,  P +5,  O -2"}, {"H_4P_2O_5", "H +1,  P +3,  O -2"}, {"HAsO_3", "H +1,  As +5,  O -2"},
    {"HAsO_2", "H +1,  As +3,  O -2"}, {"H_3AsO_4", "H +1,  As +5,  O -2"}, {"H_3AsO_3", "H +1,  As +3,  O -2"},
    {"H_4As_2O_7", "H +1,  As +5,  O -2"}, {"H_4As_2O_5", "H +1,  As +3,  O -2"},
    {"HSbO_3", "H +1,  Sb +5,  O -2"}, {"HSbO_2", "H +1,  Sb +3,  O -2"}, {"H_3SbO_4", "H +1,  Sb +5,  O -2"},
    {"H_3SbO_3", "H +1,  Sb +3,  O -2"}, {"H_4Sb_2O_7", "H +1,  Sb +5,  O -2"},
    {"H_4Sb_2O_5", "H +1,  Sb +3,  O -2"}, {"H_2CO_3", "H +1,  C +4,  O -2"}, {"LiH", "Li +1,  H -1"},
    {"NaH", "Na +1,  H -1"}, {"KH", "K +1,  H -1"}, {"RbH", "Rb +1,  H -1"}, {"CsH", "Cs +1,  H -1"},
    {"BeH_2", "Be +2,  H -1"}, {"MgH_2", "Mg +2,  H -1"}, {"SrH_2", "Sr +2,  H -1"}, {"FeH_2", "Fe +2,  H -1"},
    {"ZnH_2", "Zn +2,  H -1"}, {"AlH_3", "Al +3,  H -1"}, {"CaH_2", "Ca +2,  H -1"}, {"AuH_3", "Au +3,  H -1"},
    {"HF", "H +1,  F -1"}, {"HCl", "H +1,  Cl -1"}, {"HBr", "H +1,  Br -1"}, {"HI", "H +1,  I -1"},
    {"H_2S", "H +1,  S -2"}, {"H_2Se", "H +1,  Se -2"}, {"H_2Te", "H +1,  Te -2"},
    {"HCO#SPB(L-#T)(3#SPB)", "H +1,  C +4,  O -2"}, {"HSO#SPB(L-#T)(3#SPB)", "H +1,  S +4,  O -2"},
    {"HSO#SPB(L-#T)(4#SPB)", "H +1,  S +6,  O -2"}, {"HSeO#SPB(L-#T)(3#SPB)", "H +1,  Se +4,  O -2"},
    {"HSeO#SPB(L-#T)(4#SPB)", "H +1,  Se +6,  O -2"}, {"HTeO#SPB(L-#T)(3#SPB)", "H +1,  Te +4,  O -2"},
    {"HTeO#SPB(L-#T)(4#SPB)", "H +1,  Te +6,  O -2"}, {"H_2PO#SPB(L-#T)(4#SPB)", "H +1,  P +5,  O -2"},
    {"HPO#SPB(L2-#T)(3#SPB)", "H +1,  P +3,  O -2"}, {"H_3P_2O#SPB(L-#T)(7#SPB)", "H +1,  P +5,  O -2"},
    {"H_2P_2O#SPB(L2-#T)(5#SPB)", "H +1,  P +3,  O -2"}, {"HAsO#SPB(L2-#T)(4#SPB)", "H +1,  As +5,  O -2"},
    {"H_2AsO#SPB(L-#T)(3#SPB)", "H +1,  As +3,  O -2"}, {"HAs_2O#SPB(L3-#T)(7#SPB)", "H +1,  As +5,  O -2"},
    {"H_2As_2O#SPB(L2-#T)(5#SPB)", "H +1,  As +3,  O -2"}, {"HSbO#SPB(L2-#T)(4#SPB)", "H +1,  Sb +5,  O -2"},
    {"H_2SbO#SPB(L-#T)(3#SPB)", "H +1,  Sb +3,  O -2"}, {"H_2Sb_2O#SPB(L2-#T)(7#SPB)", "H +1,  Sb +5,  O -2"},
    {"H_3Sb_2O#SPB(L-#T)(5#SPB)", "H +1,  Sb +3,  O -2"}, {"HS#SPB(L-#T)( #SPB)", "H +1,  S -2"},
    {"HSe#SPB(L-#T)( #SPB)", "H +1,  Se -2"}, {"HTe#SPB(L-#T)( #SPB)", "H +1,  Te -2"},
    {"CO#SPB(L2-#T)(3#SPB)", "C +4,  O -2"}, {"SO#SPB(L2-#T)(3#SPB)", "S +4,  O -2"},
    {"SO#SPB(L2-#T)(4#SPB)", "S +6,  O -2"}, {"SeO#SPB(L2-#T)(3#SPB)", "Se +4,  O -2"},
    {"SeO#SPB(L2-#T)(4#SPB)", "Se +6,  O -2"}, {"TeO#SPB(L2-#T)(3#SPB)", "Te +4,  O -2"},
    {"TeO#SPB(L2-#T)(4#SPB)", "Te +6,  O -2"}, {"PO#SPB(L3-#T)(4#SPB)", "P +5,  O -2"},
    {"PO#SPB(L3-#T)(3#SPB)", "P +3,  O -2"}, {"P_2O#SPB(L4-#T)(7#SPB)", "P +5,  O -2"},
    {"P_2O#SPB(L4-#T)(5#SPB)", "P +3,  O -2"}, {"AsO#SPB(L3-#T)(4#SPB)", "As +5,  O -2"},
    {"AsO#SPB(L3-#T)(3#SPB)", "As +3,  O -2"}, {"As_2O#SPB(L4-#T)(7#SPB)", "As +5,  O -2"},
    {"As_2O#SPB(L4-#T)(5#SPB)", "As +3,  O -2"}, {"SbO#SPB(L3-#T)(4#SPB)", "Sb +5,  O -2"},
    {"SbO#SPB(L3-#T)(3#SPB)", "Sb +3,  O -2"}, {"Sb_2O#SPB(L4-#T)(7#SPB)", "Sb +5,  O -2"},
    {"Sb_2O#SPB(L4-#T)(5#SPB)", "Sb +3,  O -2"}, {"Na^+", "Na +1"}, {"K^+", "K +1"}, {"Cu^+", "Cu +1"},
    {"Cu^2^+", "Cu +2"}, {"Hg#SPB(L2+#T)(2#SPB)", "Hg +1"}, {"Fe^3^+", "Fe +3"}, {"Au^3^+", "Au +3"},
    {"Al^3^+", "Al +3"}, {"Co^3^+", "Co +3"}, {"Ni^3^+", "Ni +3"}, {"Zn^2^+", "Zn +2"}, {"Sn^2^+", "Sn +2"},
    {"Pb^2^+", "Pb +2"}, {"Pt^2^+", "Pt +2"}, {"Sn^4^+", "Sn +4"}, {"Pb^4^+", "Pb +4"}, {"Pt^4^+", "Pt +4"},
    {"F#SPB(L-#T)( #SPB)", "F -1"}, {"Cl#SPB(L-#T)( #SPB)", "Cl -1"}, {"Br#SPB(L-#T)( #SPB)", "Br -1"},
    {"I#SPB(L-#T)( #SPB)", "I -1"}, {"S#SPB(L2-#T)( #SPB)", "S -2"}, {"Se#SPB(L2-#T)( #SPB)", "Se -2"},
    {"Te#SPB(L2-#T)( #SPB)", "Te -2"}, {"O#SPB(L2-#T)( #SPB)", "O -2"}, {"O#SPB(L2-#T)(2#SPB)", "O -1"},
    {"H_2", "H +0"}, {"N_2", "N +0"}, {"O_2", "O +0"}, {"F_2", "F +0"}, {"I_2", "I +0"}, {"Cl_2", "Cl +0"},
    {"Br_2", "Br +0"}, {"O_3", "O +0"}, {"S_8", "S +0"}, {"Na", "Na +0"}, {"Mg", "Mg +0"}, {"Ca", "Ca +0"},
    {"Fe", "Fe +0"}, {"Co", "Co +0"}, {"Ni", "Ni +0"}, {"Sn", "Sn +0"}, {"Pb", "Pb +0"}, {"Au", "Au +0"},
    {"Ag", "Ag +0"},

  }};
  return t;
}

// Half-reactions of common couples, written as reductions. Only the first 14
// are ever asked about.
const std::array<Semi, kSemis>& TablaSemireacciones() {
  static const std::array<Semi, kSemis> t = {{
      {"SO#SPB(L2-#T)(4#SPB)", "SO_2",
       "SO#SPB(L2-#T)(4#SPB) + 4H^+ + 2e#SPB(L-#T)( #SPB) = SO_2 + 2H_2O", 'A'},
      {"MnO#SPB(L-#T)(4#SPB)", "MnO_2",
       "MnO#SPB(L-#T)(4#SPB) + 2H_2O + 3e#SPB(L-#T)( #SPB) = MnO_2 + 4OH#SPB(L-#T)( #SPB)", 'B'},
      {"NO#SPB(L-#T)(3#SPB)", "NO",
       "NO#SPB(L-#T)(3#SPB) + 4H^+ + 3e#SPB(L-#T)( #SPB) = NO + 2H_2O", 'A'},
      {"IO#SPB(L-#T)(3#SPB)", "I_2",
       "2IO#SPB(L-#T)(3#SPB) + 12H^+ + 10e#SPB(L-#T)( #SPB) = I_2 + 6H_2O", 'A'},
      {"Cr_2O#SPB(L2-#T)(7#SPB)", "Cr^3^+",
       "Cr_2O#SPB(L2-#T)(7#SPB) + 14H^+ + 6e#SPB(L-#T)( #SPB) = 2Cr^3^+ + 7H_2O", 'A'},
      {"PbO_2", "Pb^2^+",
       "PbO_2 + 4H^+ + 2e#SPB(L-#T)( #SPB) = Pb^2^+ + 2H_2O", 'A'},
      {"MnO#SPB(L-#T)(4#SPB)", "Mn^2^+",
       "MnO#SPB(L-#T)(4#SPB) + 8H^+ + 5e#SPB(L-#T)( #SPB) = Mn^2^+ + 4H_2O", 'A'},
      {"H_2O_2", "H_2O",
       "H_2O_2 + 2H^+ + 2e#SPB(L-#T)( #SPB) = 2H_2O", 'A'},
      {"O_3", "O_2",
       "O_3 + 2H^+ + 2e#SPB(L-#T)( #SPB) = O_2 + H_2O", 'A'},
      {"ClO#SPB(L-#T)(3#SPB)", "Cl_2",
       "2ClO#SPB(L-#T)(3#SPB) + 12H^+ + 10e#SPB(L-#T)( #SPB) = Cl_2 + 6H_2O", 'A'},
      {"ClO#SPB(L-#T)(3#SPB)", "ClO#SPB(L-#T)(2#SPB)",
       "ClO#SPB(L-#T)(3#SPB) + H_2O + 2e#SPB(L-#T)( #SPB) = ClO#SPB(L-#T)(2#SPB) + 2OH#SPB(L-#T)( #SPB)", 'B'},
      {"ClO#SPB(L-#T)(4#SPB)", "ClO#SPB(L-#T)(3#SPB)",
       "ClO#SPB(L-#T)(4#SPB) + H_2O + 2e#SPB(L-#T)( #SPB) = ClO#SPB(L-#T)(3#SPB) + 2OH#SPB(L-#T)( #SPB)", 'B'},
      {"NO#SPB(L-#T)(3#SPB)", "NO_2",
       "NO#SPB(L-#T)(3#SPB) + 2H^+ + e#SPB(L-#T)( #SPB) = NO_2 + H_2O", 'A'},
      {"ClO#SPB(L-#T)( #SPB)", "Cl#SPB(L-#T)( #SPB)",
       "ClO#SPB(L-#T)( #SPB) + H_2O + 2e#SPB(L-#T)( #SPB) = Cl#SPB(L-#T)( #SPB) + 2OH#SPB(L-#T)( #SPB)", 'B'},
      {"SO#SPB(L2-#T)(4#SPB)", "S",
       "SO#SPB(L2-#T)(4#SPB) + 4H_2O + 6e#SPB(L-#T)( #SPB) = S + 8OH#SPB(L-#T)( #SPB)", 'B'},
      {"NO#SPB(L-#T)(2#SPB)", "N_2",
       "2NO#SPB(L-#T)(2#SPB) + 4H_2O + 6e#SPB(L-#T)( #SPB) = N_2 + 8OH#SPB(L-#T)( #SPB)", 'B'},
      {"As_2O_5", "As_2O_3",
       "As_2O_5 + 4H^+ + 4e#SPB(L-#T)( #SPB) = As_2O_3 + 2H_2O", 'A'},
  }};
  return t;
}

// Oxidants whose normal solutions are asked about: what they turn into and
// the electrons one formula unit takes. Potassium permanganate and dichromate
// dissolve only to about 0.4 mol/L at room temperature; sulfate is an oxidant
// only as concentrated sulfuric acid.
const std::array<Normal, kNormales>& TablaNormales() {
  static const std::array<Normal, kNormales> t = {{
      {"HNO_3", 63, "N_HNO3", "NO", "N_NO_g", 3, 1.5},
      {"K_2Cr_2O_7", 294.2, "N_K2Cr2O7", "Cr^3^+", "N_Cr+3", 6, 0.4},
      {"KMnO_4", 158.04, "N_KMnO4", "Mn^2^+", "N_Mn+2", 5, 0.4},
      {"KMnO_4", 158.04, "N_KMnO4", "MnO_2", "N_MnO2", 3, 0.4},
      {"H_2SO_4", 98.08, "N_H2SO4", "SO_2", "N_SO2", 2, 1.5},
      {"HIO_3", 175.9, "N_HIO3", "I_2", "N_I", 5, 1.5},
      {"KClO", 90.55, "N_KClO", "Cl#SPB(L-#T)( #SPB)", "N_Cl-", 2, 1.5},
  }};
  return t;
}

}  // namespace ss::mod::rdx
