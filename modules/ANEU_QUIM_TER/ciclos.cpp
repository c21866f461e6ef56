// Generators 3, 4 and 6: reaction enthalpies found through cycles. Hess's law
// combines given reactions into a target one; mean bond energies estimate
// the enthalpy of a gas-phase reaction; a Born-Haber cycle links the lattice
// energy of a binary ionic compound with its enthalpy of formation.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ANEU_QUIM_TER/ter.h"
#include "problems/aleatorio.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ter {

namespace {

// An event of chance p: a fresh draw below p, both as 32-bit floats.
bool Azar(GenContext& g, double p) {
  return static_cast<float>(g.rnd.Siguiente()) < static_cast<float>(p);
}

constexpr std::string_view kDeltaH = "&Delta&+IH&-I^ \xB0 = ";  // 0xB0: the degree sign

// ---------------------------------------------------------------- Hess's law

// A given reaction with its enthalpy (kJ, at 25 °C) and the multiplier
// num/den that takes it into the target.
struct DadaHess {
  std::string_view ecuacion;
  double dH;
  int num, den;
};

struct SetHess {
  std::string_view objetivo;
  int n;
  DadaHess dadas[4];
};

// Ten sets of reactions. Enthalpies from standard enthalpies of formation at
// 25 °C (NBS/CODATA tables); each multiplier adds the given reactions up to
// the target, whose enthalpy is the same sum of the given enthalpies.
constexpr SetHess kHess[10] = {
    // benzene from acetylene
    {"3_ C_2H_2_ _(_g_)  &ars  C_6H_6_ _(_l_)", 2,
     {{"2_ C_2H_2_ _(_g_)  +  5_ O_2_ _(_g_)  &ars  4_ CO_2_ _(_g_)  +  2_ H_2O_ _(_l_)", -2600.7, 3, 2},
      {"2_ C_6H_6_ _(_l_)  +  15_ O_2_ _(_g_)  &ars  12_ CO_2_ _(_g_)  +  6_ H_2O_ _(_l_)", -6535.3, -1, 2}}},
    // zinc oxide and sulfuric acid
    {"ZnO_ _(_s_)  +  H_2SO_4_ _(_l_)  &ars  ZnSO_4_ _(_s_)  +  H_2O_ _(_l_)", 4,
     {{"2_ Zn_ _(_s_)  +  O_2_ _(_g_)  &ars  2_ ZnO_ _(_s_)", -700.9, -1, 2},
      {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, 1, 2},
      {"Zn_ _(_s_)  +  S_ _(_s_)  +  2_ O_2_ _(_g_)  &ars  ZnSO_4_ _(_s_)", -982.8, 1, 1},
      {"H_2_ _(_g_)  +  S_ _(_s_)  +  2_ O_2_ _(_g_)  &ars  H_2SO_4_ _(_l_)", -814.0, -1, 1}}},
    // nitric acid from dinitrogen pentoxide
    {"N_2O_5_ _(_g_)  +  H_2O_ _(_l_)  &ars  2_ HNO_3_ _(_l_)", 3,
     {{"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, -1, 2},
      {"N_2_ _(_g_)  +  3_ O_2_ _(_g_)  +  H_2_ _(_g_)  &ars  2_ HNO_3_ _(_l_)", -348.2, 1, 1},
      {"2_ N_2_ _(_g_)  +  5_ O_2_ _(_g_)  &ars  2_ N_2O_5_ _(_g_)", 22.6, -1, 2}}},
    // hydrogen peroxide
    {"2_ H_2O_2_ _(_l_)  &ars  2_ H_2O_ _(_l_)  +  O_2_ _(_g_)", 2,
     {{"H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  H_2O_2_ _(_l_)", -187.8, -2, 1},
      {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, 1, 1}}},
    // benzene from its elements
    {"6_ C_ _(_s_)  +  3_ H_2_ _(_g_)  &ars  C_6H_6_ _(_l_)", 3,
     {{"C_ _(_s_)  +  O_2_ _(_g_)  &ars  CO_2_ _(_g_)", -393.5, 6, 1},
      {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, 3, 2},
      {"2_ C_6H_6_ _(_l_)  +  15_ O_2_ _(_g_)  &ars  12_ CO_2_ _(_g_)  +  6_ H_2O_ _(_l_)", -6535.3, -1, 2}}},
    // methanol from carbon monoxide
    {"CO_ _(_g_)  +  2_ H_2_ _(_g_)  &ars  CH_3OH_ _(_l_)", 3,
     {{"2_ CO_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ CO_2_ _(_g_)", -566.0, 1, 2},
      {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, 1, 1},
      {"2_ CH_3OH_ _(_l_)  +  3_ O_2_ _(_g_)  &ars  2_ CO_2_ _(_g_)  +  4_ H_2O_ _(_l_)", -1453.0, -1, 2}}},
    // carbon monoxide from its elements
    {"2_ C_ _(_s_)  +  O_2_ _(_g_)  &ars  2_ CO_ _(_g_)", 2,
     {{"C_ _(_s_)  +  O_2_ _(_g_)  &ars  CO_2_ _(_g_)", -393.5, 2, 1},
      {"2_ CO_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ CO_2_ _(_g_)", -566.0, -1, 1}}},
    // ethanol from its elements
    {"4_ C_ _(_s_)  +  6_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ C_2H_5OH_ _(_l_)", 3,
     {{"C_ _(_s_)  +  O_2_ _(_g_)  &ars  CO_2_ _(_g_)", -393.5, 4, 1},
      {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, 3, 1},
      {"C_2H_5OH_ _(_l_)  +  3_ O_2_ _(_g_)  &ars  2_ CO_2_ _(_g_)  +  3_ H_2O_ _(_l_)", -1366.8, -2, 1}}},
    // sulfur trioxide from sulfur
    {"2_ S_ _(_s_)  +  3_ O_2_ _(_g_)  &ars  2_ SO_3_ _(_g_)", 2,
     {{"S_ _(_s_)  +  O_2_ _(_g_)  &ars  SO_2_ _(_g_)", -296.8, 2, 1},
      {"2_ SO_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ SO_3_ _(_g_)", -197.8, 1, 1}}},
    // ethane from acetylene
    {"C_2H_2_ _(_g_)  +  2_ H_2_ _(_g_)  &ars  C_2H_6_ _(_g_)", 3,
     {{"2_ C_2H_2_ _(_g_)  +  5_ O_2_ _(_g_)  &ars  4_ CO_2_ _(_g_)  +  2_ H_2O_ _(_l_)", -2600.7, 1, 2},
      {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_l_)", -571.7, 1, 1},
      {"2_ C_2H_6_ _(_g_)  +  7_ O_2_ _(_g_)  &ars  4_ CO_2_ _(_g_)  +  6_ H_2O_ _(_l_)", -3121.3, -1, 2}}},
};

constexpr std::string_view kFlecha = "  &ars  ";

std::string Invierte(std::string_view ecuacion) {
  const std::size_t f = ecuacion.find(kFlecha);
  return std::string(ecuacion.substr(f + kFlecha.size())) + std::string(kFlecha) +
         std::string(ecuacion.substr(0, f));
}

// ------------------------------------------------------------ bond energies

// Mean bond energies in kJ/mol (standard tables of average bond
// enthalpies); "N3N" is the triple bond.
struct Enlace {
  std::string_view nombre;
  double energia;
};
constexpr Enlace kEnlaces[15] = {
    {"O=O", 498},  {"H-H", 436},  {"N3N", 945}, {"C=O", 804},   {"O-H", 463},
    {"C-H", 413},  {"C-C", 347},  {"C-O", 352}, {"Cl-Cl", 243}, {"H-Cl", 432},
    {"I-I", 151},  {"H-I", 298},  {"Br-Br", 193}, {"H-Br", 366}, {"N-H", 391},
};

// A gas-phase reaction with the bonds it breaks (negative counts) and forms
// (positive), netted over its Lewis structures.
struct Cuenta {
  std::string_view enlace;
  int n;
};
struct ReaccionEnlaces {
  std::string_view ecuacion;
  Cuenta cuentas[6];
};
constexpr ReaccionEnlaces kReaccionesEnlace[12] = {
    {"H_2_ _(_g_)  +  Cl_2_ _(_g_)  &ars  2_ HCl_ _(_g_)", {{"H-H", -1}, {"Cl-Cl", -1}, {"H-Cl", 2}}},
    {"H_2_ _(_g_)  +  Br_2_ _(_g_)  &ars  2_ HBr_ _(_g_)", {{"H-H", -1}, {"Br-Br", -1}, {"H-Br", 2}}},
    {"H_2_ _(_g_)  +  I_2_ _(_g_)  &ars  2_ HI_ _(_g_)", {{"H-H", -1}, {"I-I", -1}, {"H-I", 2}}},
    {"CH_4_ _(_g_)  +  2_ O_2_ _(_g_)  &ars  CO_2_ _(_g_)  +  2_ H_2O_ _(_g_)",
     {{"C-H", -4}, {"O=O", -2}, {"C=O", 2}, {"O-H", 4}}},
    {"2_ C_2H_6_ _(_g_)  +  7_ O_2_ _(_g_)  &ars  4_ CO_2_ _(_g_)  +  6_ H_2O_ _(_g_)",
     {{"C-C", -2}, {"C-H", -12}, {"O=O", -7}, {"C=O", 8}, {"O-H", 12}}},
    {"C_3H_8_ _(_g_)  +  5_ O_2_ _(_g_)  &ars  3_ CO_2_ _(_g_)  +  4_ H_2O_ _(_g_)",
     {{"C-C", -2}, {"C-H", -8}, {"O=O", -5}, {"C=O", 6}, {"O-H", 8}}},
    {"2_ C_4H_1_0_ _(_g_)  +  13_ O_2_ _(_g_)  &ars  8_ CO_2_ _(_g_)  +  10_ H_2O_ _(_g_)",
     {{"C-C", -6}, {"C-H", -20}, {"O=O", -13}, {"C=O", 16}, {"O-H", 20}}},
    {"C_5H_1_2_ _(_g_)  +  8_ O_2_ _(_g_)  &ars  5_ CO_2_ _(_g_)  +  6_ H_2O_ _(_g_)",
     {{"C-C", -4}, {"C-H", -12}, {"O=O", -8}, {"C=O", 10}, {"O-H", 12}}},
    {"2_ CH_3OH_ _(_g_)  +  3_ O_2_ _(_g_)  &ars  2_ CO_2_ _(_g_)  +  4_ H_2O_ _(_g_)",
     {{"C-H", -6}, {"C-O", -2}, {"O=O", -3}, {"C=O", 4}, {"O-H", 6}}},
    {"C_2H_5OH_ _(_g_)  +  3_ O_2_ _(_g_)  &ars  2_ CO_2_ _(_g_)  +  3_ H_2O_ _(_g_)",
     {{"C-C", -1}, {"C-H", -5}, {"C-O", -1}, {"O=O", -3}, {"C=O", 4}, {"O-H", 5}}},
    {"2_ H_2_ _(_g_)  +  O_2_ _(_g_)  &ars  2_ H_2O_ _(_g_)", {{"H-H", -2}, {"O=O", -1}, {"O-H", 4}}},
    {"N_2_ _(_g_)  +  3_ H_2_ _(_g_)  &ars  2_ NH_3_ _(_g_)", {{"N3N", -1}, {"H-H", -3}, {"N-H", 6}}},
};

double Energia(std::string_view enlace) {
  for (const Enlace& e : kEnlaces)
    if (e.nombre == enlace) return e.energia;
  return NAN;
}

// "C=O" as "C&=O" and "N3N" as "N&#N".
std::string EnlaceTexto(std::string_view enlace) {
  std::string t(enlace);
  ReplaceAll(t, "=", "&=");
  ReplaceAll(t, "3", "&#");
  return t;
}

// ------------------------------------------------------------- Born-Haber

// Metals: enthalpy of sublimation (ΔHf of the gaseous atom, NBS/CODATA) and
// the first three ionisation energies (NIST atomic spectra data), kJ/mol.
struct MetalBH {
  std::string_view simbolo;
  double sublimacion, ie[3];
};
constexpr MetalBH kMetales[23] = {
    {"Ag", 284.9, {731.0, 2072.9, 3357.7}}, {"Al", 330.0, {577.5, 1816.7, 2744.8}},
    {"Au", 366.1, {890.1, 1949.3, 2894.6}}, {"Ba", 180.0, {502.8, 965.2, 3458.4}},
    {"Be", 324.0, {899.5, 1757.1, 14848.7}}, {"Ca", 177.8, {589.8, 1145.4, 4912.4}},
    {"Cd", 111.8, {867.8, 1631.4, 3615.1}}, {"Co", 424.7, {760.4, 1648.4, 3232.3}},
    {"Cr", 396.6, {652.9, 1590.7, 2987.1}}, {"Cs", 76.5, {375.7, 2234.4, 3202.8}},
    {"Cu", 337.4, {745.5, 1957.9, 3554.6}}, {"Fe", 416.3, {762.5, 1563.0, 2957.4}},
    {"K", 89.0, {418.8, 3051.3, 4419.3}},    {"Li", 159.3, {520.2, 7298.2, 11815.0}},
    {"Mg", 147.1, {737.7, 1450.7, 7732.7}}, {"Mn", 280.7, {717.3, 1509.0, 3248.5}},
    {"Na", 107.5, {495.8, 4562.4, 6910.3}}, {"Ni", 429.7, {737.1, 1753.0, 3395.0}},
    {"Pb", 195.2, {715.6, 1450.4, 3081.5}}, {"Pt", 565.3, {864.4, 1790.8, 2798.1}},
    {"Sn", 301.2, {708.6, 1411.9, 2943.4}}, {"Sr", 164.4, {549.5, 1064.3, 4137.6}},
    {"Zn", 130.4, {906.4, 1733.3, 3832.7}},
};

// Non-metals, per mole of X_2 as it stands at 25 °C: the enthalpy of
// vaporisation (bromine, liquid) or sublimation (iodine, solid), the bond
// dissociation energy (NBS/CODATA ΔHf of X_2(g) and X(g)), and the first
// electron affinity as the enthalpy of X(g) + e- -> X-(g) (NIST), kJ/mol.
struct NoMetalBH {
  std::string_view simbolo, fase;
  double vaporizacion, sublimacion, disociacion, afinidad;
};
constexpr NoMetalBH kNoMetales[5] = {
    {"Br", "l", 30.91, 0, 192.9, -324.5}, {"Cl", "g", 0, 0, 242.6, -348.6}, {"F", "g", 0, 0, 158.8, -328.2},
    {"H", "g", 0, 0, 436.0, -72.8},       {"I", "s", 0, 62.42, 151.2, -295.2},
};

// Binary compounds M X_z with their standard enthalpies of formation at
// 25 °C, kJ/mol (NBS/CRC tables).
struct CompuestoBH {
  std::string_view formula, metal;
  int carga;
  std::string_view noMetal;
  double dHf;
};
constexpr CompuestoBH kCompuestos[96] = {
    {"CoI_2", "Co", 2, "I", -88.7},     {"CsBr", "Cs", 1, "Br", -405.8},   {"FeF_2", "Fe", 2, "F", -711.3},
    {"ZnF_2", "Zn", 2, "F", -764.4},    {"CuI", "Cu", 1, "I", -67.8},      {"CrCl_3", "Cr", 3, "Cl", -556.5},
    {"CsF", "Cs", 1, "F", -553.5},      {"KCl", "K", 1, "Cl", -436.5},     {"FeBr_2", "Fe", 2, "Br", -249.8},
    {"CsCl", "Cs", 1, "Cl", -442.8},    {"LiF", "Li", 1, "F", -616.0},     {"NaCl", "Na", 1, "Cl", -411.2},
    {"LiCl", "Li", 1, "Cl", -408.6},    {"LiBr", "Li", 1, "Br", -351.2},   {"LiI", "Li", 1, "I", -270.4},
    {"LiH", "Li", 1, "H", -90.5},       {"NaF", "Na", 1, "F", -576.6},     {"NaBr", "Na", 1, "Br", -361.1},
    {"NaI", "Na", 1, "I", -287.8},      {"NaH", "Na", 1, "H", -56.3},      {"KF", "K", 1, "F", -567.3},
    {"KBr", "K", 1, "Br", -393.8},      {"KI", "K", 1, "I", -327.9},       {"KH", "K", 1, "H", -57.7},
    {"CsI", "Cs", 1, "I", -346.6},      {"CsH", "Cs", 1, "H", -54.2},      {"BeF_2", "Be", 2, "F", -1026.8},
    {"BeCl_2", "Be", 2, "Cl", -490.4},  {"BeBr_2", "Be", 2, "Br", -353.5}, {"BeI_2", "Be", 2, "I", -192.5},
    {"MgF_2", "Mg", 2, "F", -1124.2},   {"MgCl_2", "Mg", 2, "Cl", -641.3}, {"MgBr_2", "Mg", 2, "Br", -524.3},
    {"MgI_2", "Mg", 2, "I", -364.0},    {"MgH_2", "Mg", 2, "H", -75.3},    {"CaF_2", "Ca", 2, "F", -1228.0},
    {"CaCl_2", "Ca", 2, "Cl", -795.4},  {"CaBr_2", "Ca", 2, "Br", -682.8}, {"CaI_2", "Ca", 2, "I", -533.5},
    {"CaH_2", "Ca", 2, "H", -181.5},    {"SrF_2", "Sr", 2, "F", -1216.3},  {"SrCl_2", "Sr", 2, "Cl", -828.9},
    {"SrBr_2", "Sr", 2, "Br", -717.6},  {"SrI_2", "Sr", 2, "I", -558.1},   {"SrH_2", "Sr", 2, "H", -180.3},
    {"BaF_2", "Ba", 2, "F", -1207.1},   {"BaCl_2", "Ba", 2, "Cl", -858.6}, {"BaBr_2", "Ba", 2, "Br", -757.3},
    {"BaI_2", "Ba", 2, "I", -602.1},    {"BaH_2", "Ba", 2, "H", -177.0},   {"AlF_3", "Al", 3, "F", -1510.4},
    {"AlCl_3", "Al", 3, "Cl", -704.2},  {"AlBr_3", "Al", 3, "Br", -527.2}, {"AlI_3", "Al", 3, "I", -313.8},
    {"AgF", "Ag", 1, "F", -204.6},      {"AgCl", "Ag", 1, "Cl", -127.0},   {"AgBr", "Ag", 1, "Br", -100.4},
    {"AgI", "Ag", 1, "I", -61.8},       {"AuCl", "Au", 1, "Cl", -34.7},    {"AuCl_3", "Au", 3, "Cl", -117.6},
    {"AuBr", "Au", 1, "Br", -14.0},     {"AuBr_3", "Au", 3, "Br", -53.3},  {"CdF_2", "Cd", 2, "F", -700.4},
    {"CdCl_2", "Cd", 2, "Cl", -391.5},  {"CdBr_2", "Cd", 2, "Br", -316.2}, {"CdI_2", "Cd", 2, "I", -203.3},
    {"CoF_2", "Co", 2, "F", -692.0},    {"CoCl_2", "Co", 2, "Cl", -312.5}, {"CoBr_2", "Co", 2, "Br", -220.9},
    {"CrCl_2", "Cr", 2, "Cl", -395.4},  {"CuCl", "Cu", 1, "Cl", -137.2},   {"CuBr", "Cu", 1, "Br", -104.6},
    {"CuF_2", "Cu", 2, "F", -542.7},    {"CuCl_2", "Cu", 2, "Cl", -220.1}, {"CuBr_2", "Cu", 2, "Br", -141.8},
    {"FeCl_2", "Fe", 2, "Cl", -341.8},  {"FeCl_3", "Fe", 3, "Cl", -399.5}, {"FeBr_3", "Fe", 3, "Br", -268.2},
    {"MnF_2", "Mn", 2, "F", -803.3},    {"MnCl_2", "Mn", 2, "Cl", -481.3}, {"MnBr_2", "Mn", 2, "Br", -384.9},
    {"NiF_2", "Ni", 2, "F", -651.4},    {"NiCl_2", "Ni", 2, "Cl", -305.3}, {"NiBr_2", "Ni", 2, "Br", -212.1},
    {"NiI_2", "Ni", 2, "I", -78.2},     {"PbF_2", "Pb", 2, "F", -664.0},   {"PbCl_2", "Pb", 2, "Cl", -359.4},
    {"PbBr_2", "Pb", 2, "Br", -278.7},  {"PbI_2", "Pb", 2, "I", -175.5},   {"PtCl_2", "Pt", 2, "Cl", -123.4},
    {"PtBr_2", "Pt", 2, "Br", -82.0},   {"SnCl_2", "Sn", 2, "Cl", -325.1}, {"SnBr_2", "Sn", 2, "Br", -243.5},
    {"ZnCl_2", "Zn", 2, "Cl", -415.1},  {"ZnBr_2", "Zn", 2, "Br", -328.7}, {"ZnI_2", "Zn", 2, "I", -208.0},
};

template <class T, std::size_t N>
const T& Busca(const T (&tabla)[N], std::string_view simbolo) {
  return *std::find_if(std::begin(tabla), std::end(tabla), [&](const T& x) { return x.simbolo == simbolo; });
}

std::string Fase(std::string_view especie, std::string_view fase) {
  return std::string(especie) + "_ _(_" + std::string(fase) + "_)";
}

// One datum of the cycle: "&SP=12:", the key's text, the species, its value.
std::string LineaBH(GenContext& g, std::string_view clave, const std::string& especie, double valor) {
  return "&SP=12:" + g.MsgQUI(clave) + " " + especie + " = " + NumTexto(valor) + " kJ/mol&LF";
}

}  // namespace

// Hess's law: the set by the variant counter; its given reactions come in a
// fresh order, and half the time the target is asked reversed.
void Generador3(GenContext& g) {
  const SetHess& s = kHess[g.GP_SeqB % 10];
  std::vector<DadaHess> dadas(s.dadas, s.dadas + s.n);
  for (int k = s.n - 1; k > 0; --k)
    std::swap(dadas[k], dadas[static_cast<int>(AleatorioEn(g.rnd, 0, k, 1, 0))]);
  const bool inversa = Azar(g, 0.5);
  std::string objetivo(s.objetivo);
  if (inversa) {
    objetivo = Invierte(objetivo);
    for (DadaHess& d : dadas) d.num = -d.num;
  }
  std::string st = g.MsgQUI("DadasReacc_dH25C") + "&LF";
  std::string combinacion;
  double dH = 0;
  for (int k = 0; k < s.n; ++k) {
    const DadaHess& d = dadas[k];
    const char letra = "abcdefghijklmnopqrstuvwxyz"[k];
    st += "&SP=5:&+B" + std::string(1, letra) + ")&-B  " + std::string(d.ecuacion) + "&SP=72:" +
          std::string(kDeltaH) + NumTexto(d.dH) + "& kJ&LF";
    dH += d.dH * d.num / d.den;
    combinacion += d.num < 0 ? (k ? " - " : "-") : (k ? " + " : "");
    if (std::abs(d.num) != 1 || d.den != 1) combinacion += FraccionTexto(std::abs(d.num), d.den) + " ";
    combinacion += "&Delta&+IH&-I_" + std::string(1, letra);
  }
  st += g.MsgQUI("Hallar_dH_Hess") + "&LF&SP=5:" + objetivo + "&LF";
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + std::string(kDeltaH) + combinacion + " = " + NumCifras(dH, 4) + " kJ.&LF";
}

// Bond energies: the reaction by the variant counter, with the energies of
// the bonds it breaks and forms. The enthalpy is what breaking the bonds
// takes less what forming the new ones gives back.
void Generador4(GenContext& g) {
  const ReaccionEnlaces& r = kReaccionesEnlace[g.GP_SeqB % 12];
  std::string datos;
  double rotos = 0, formados = 0;
  for (const Cuenta& c : r.cuentas) {
    if (c.n == 0) continue;
    const double e = Energia(c.enlace);
    (c.n < 0 ? rotos : formados) += std::abs(c.n) * e;
    datos += (datos.empty() ? "" : "&,  ") + std::string("&+IE&-I(") + EnlaceTexto(c.enlace) + ")=" + NumTexto(e);
  }
  g.GP_Statement = g.MsgQUI("Hallar_dH_EEnlace") + ".&LF&SP=5:" + std::string(r.ecuacion) + "&LF&+I" +
                   g.MsgQUI("Energias_Medias_Enlace") + "&-I (kJ/mol):&LF" + datos + "&LF";
  g.GP_Solution = "&SP=10:" + std::string(kDeltaH) + NumCifras(rotos - formados, 4) + " kJ.&LF";
}

// Born-Haber cycle: the compound by the variant counter, so that a run of
// problems goes through the list in order; the lattice energy is asked with
// chance 0.6, else the enthalpy of formation from it. The lattice energy is
// the enthalpy of M^z+(g) + z X^-(g) -> MX_z(s); metals atomise by
// sublimation, and each non-metal atom takes half the vaporisation or
// sublimation and half the dissociation of X_2, and its electron affinity.
void Generador6(GenContext& g) {
  const CompuestoBH& c = kCompuestos[g.GP_SeqB % 96];
  const MetalBH& m = Busca(kMetales, c.metal);
  const NoMetalBH& x = Busca(kNoMetales, c.noMetal);
  const std::string gas = Fase(m.simbolo, "g"), x2 = std::string(x.simbolo) + "_2";
  std::string pasos = LineaBH(g, "dH_Sublim", Fase(m.simbolo, "s"), m.sublimacion);
  double metal = m.sublimacion;
  for (int k = 0; k < c.carga; ++k) {
    pasos += LineaBH(g, "Eionizac_" + std::to_string(k + 1), gas, m.ie[k]);
    metal += m.ie[k];
  }
  double atomizar = 0;
  if (x.vaporizacion > 0) pasos += LineaBH(g, "dH_Vapori", Fase(x2, x.fase), atomizar = x.vaporizacion);
  if (x.sublimacion > 0) pasos += LineaBH(g, "dH_Sublim", Fase(x2, x.fase), atomizar = x.sublimacion);
  pasos += LineaBH(g, "E_disoc", Fase(x2, "g"), x.disociacion);
  pasos += LineaBH(g, "EAfiniE_1", Fase(x.simbolo, "g"), x.afinidad);
  const double noMetal = c.carga * ((atomizar + x.disociacion) / 2 + x.afinidad);
  const double reticular = std::round((c.dHf - metal - noMetal) * 10) / 10;
  const std::string solido = Fase(c.formula, "s");
  const bool retic = Azar(g, 0.6);
  std::string st = g.MsgQUI(retic ? "Hallar_E_retic_BornHaber" : "Hallar_dH_form_BornHaber") + "&LF&+I" +
                   g.MsgQUI("Datos") + ":&-I&LF" +
                   (retic ? LineaBH(g, "dH_Formac", solido, c.dHf) : LineaBH(g, "E_Reticul", solido, reticular)) +
                   pasos;
  ReplaceAll(st, "%F%", std::string(c.formula));
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10: " + NumCifras(retic ? reticular : reticular + metal + noMetal, 4) + " kJ/mol&LF";
}

}  // namespace ss::mod::ter
