// The physics of the atom: the photoelectric effect and the de Broglie
// wavelength (generator 2), the hydrogen spectrum in the Bohr model (3), the
// mass defect of nuclei (9) and radioactive decay (10). Every answer is worked
// from the data exactly as the statement prints them, so that a student who
// starts from the page reaches the printed result.
#include <cmath>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "modules/ANEU_QUIM_EAT/eat.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eat {
namespace {

// Physical constants as the problems state them.
constexpr double kH = 6.6261E-34;      // Planck's constant, J·s
constexpr double kC = 3E8;             // speed of light, m/s
constexpr double kEV = 1.6022E-19;     // one electron volt, J
constexpr double kME = 9.109E-31;      // electron mass, kg
constexpr double kE1 = -2.1799E-18;    // ground-state energy of hydrogen, J
// The finer values of the mass-defect problems.
constexpr double kU = 1.66053904E-27;  // atomic mass unit, kg
constexpr double kC2 = 299792458;      // speed of light, m/s
constexpr double kEV2 = 1.602176621E-19;
constexpr double kMP = 1.007276467, kMN = 1.008664916;  // proton, neutron masses, u

// x as the page shows it with `c` significant figures.
double Cifras(double x, int c) {
  char b[40];
  std::snprintf(b, sizeof b, "%.*e", c - 1, x);
  return std::stod(b);
}

std::string Parte(char letra, const std::string& texto) {
  return std::string("    &+B") + letra + ")&-B " + texto + ".&LF";
}
std::string Respuesta(char letra, const std::string& texto) {
  return std::string("&+B") + letra + ")&-B& " + texto;
}

// Energies in eV to two decimals; below 1 eV to three significant figures.
double EVMostrado(double x) { return std::fabs(x) < 1 ? Cifras(x, 3) : std::floor(x * 100 + 0.5) / 100; }
std::string EV(double x) { return NumCifras(EVMostrado(x), 4) + "& eV"; }

void Sustituye(std::string& s, const std::vector<std::pair<std::string, std::string>>& r) {
  for (const auto& [de, por] : r) ReplaceAll(s, de, por);
}

// ---- Photoelectric effect ----------------------------------------------------

// Work functions of the metals (eV), handbook values of the clean
// polycrystalline surfaces; the repeats weigh the common metals.
struct Metal {
  const char* clave;
  double w0;
};
constexpr Metal kMetales[35] = {
    {"N_Al", 4.08}, {"N_C", 5.0},   {"N_Be", 4.98}, {"N_Hg", 4.48}, {"N_Cd", 4.08}, {"N_Ca", 2.87},
    {"N_Mg", 3.66}, {"N_Na", 2.36}, {"N_Cs", 2.14}, {"N_K", 2.29},  {"N_Au", 5.10}, {"N_Co", 5.0},
    {"N_Cu", 4.7},  {"N_Pt", 5.93}, {"N_Fe", 4.81}, {"N_Pb", 4.14}, {"N_Ni", 5.35}, {"N_Se", 5.9},
    {"N_Zn", 4.30}, {"N_Nb", 4.30}, {"N_Na", 2.36}, {"N_Al", 4.08}, {"N_Be", 4.98}, {"N_Ca", 2.87},
    {"N_Cs", 2.14}, {"N_K", 2.29},  {"N_Au", 5.10}, {"N_Cu", 4.7},  {"N_Na", 2.36}, {"N_Zn", 4.30},
    {"N_Cs", 2.14}, {"N_K", 2.29},  {"N_Au", 5.10}, {"N_Zn", 4.30}, {"N_Na", 2.36}};

std::string Nm(double x, int c = 4) { return NumCifras(x, c) + "& nm"; }

}  // namespace

void Generador2(GenContext& g) {
  const int forma = g.GP_SeqB % 6;
  const Metal& metal = kMetales[g.GP_SeqB % 35];
  const std::string nombre = g.MsgQUI(metal.clave);
  // The threshold wavelength to the whole nanometre, the light at 50-90 % of it.
  const double l0 = std::floor(kH * kC / (metal.w0 * kEV) / 1E-9 + 0.5);
  const double l = std::floor(l0 * AleatorioEn(g.rnd, 0.5, 0.9, 0.01, 1) + 0.5);
  const double efoton = kH * kC / (l * 1E-9);  // J

  std::string datos, preguntas, sol;
  auto debroglie = [](double v) { return kH / (kME * v) * 1E9; };
  auto velocidad = [](double ecJ) { return std::sqrt(2 * ecJ / kME); };
  const std::string sL = Nm(l), sL0 = NumTexto(l0) + "& nm";
  std::vector<std::pair<std::string, std::string>> r = {{"%EL%", nombre}, {"%L%", sL}, {"%L0%", sL0}};
  switch (forma) {
    case 0: {  // metal and light: threshold, kinetic energy, de Broglie
      const double ec = efoton - metal.w0 * kEV;
      datos = g.MsgQUI("EAT_ELE_W0_eV_es") + " " + g.MsgQUI("EAT_Londa_es");
      r.push_back({"%W0EV%", NumTexto(metal.w0) + "& eV"});
      preguntas = Parte('a', g.MsgQUI("Hallar_LONDAmax")) + Parte('b', g.MsgQUI("Hallar_Ecin_FotoElec_eV")) +
                  Parte('c', g.MsgQUI("Hallar_LONDA_DeBroglie"));
      sol = Respuesta('a', NumTexto(std::floor(kH * kC / (metal.w0 * kEV) / 1E-9 + 0.5)) + "& nm") + ",   " +
            Respuesta('b', EV(ec / kEV)) + ",   " + Respuesta('c', Nm(debroglie(velocidad(ec))));
      break;
    }
    case 1: {  // work function in J and the speed: photon, light, de Broglie
      const double w0J = Cifras(metal.w0 * kEV, 4);
      const double v = Cifras(velocidad(efoton - metal.w0 * kEV), 4);
      datos = g.MsgQUI("EAT_W0_J_es") + " " + g.MsgQUI("EAT_Veloc_Elec_es");
      r.push_back({"%W0J%", NumCifras(w0J, 4) + "& J"});
      r.push_back({"%VEL%", NumCifras(v, 4) + "& m/s"});
      const double e = w0J + 0.5 * kME * v * v;
      preguntas = Parte('a', g.MsgQUI("Hallar_Ener_FotonIncid_eV")) + Parte('b', g.MsgQUI("Hallar_LONDAindic")) +
                  Parte('c', g.MsgQUI("Hallar_LONDA_DeBroglie"));
      sol = Respuesta('a', EV(e / kEV)) + ",   " + Respuesta('b', Nm(kH * kC / e * 1E9)) + ",   " +
            Respuesta('c', Nm(debroglie(v)));
      break;
    }
    case 2: {  // threshold and light: work function, kinetic energy, speed
      const double w0 = kH * kC / (l0 * 1E-9);
      datos = g.MsgQUI("EAT_LONDAmax_es") + " " + g.MsgQUI("EAT_Londa_es");
      preguntas = Parte('a', g.MsgQUI("Hallar_W0_eV")) + Parte('b', g.MsgQUI("Hallar_Ecin_FotoElec_eV")) +
                  Parte('c', g.MsgQUI("Hallar_Veloc_FotoElec"));
      sol = Respuesta('a', EV(w0 / kEV)) + ",   " + Respuesta('b', EV((efoton - w0) / kEV)) + ",   " +
            Respuesta('c', NumCifras(velocidad(efoton - w0), 4) + "& m/s");
      break;
    }
    case 3:    // kinetic energy and light: photon, work function, threshold
    case 4: {  // the same from the stopping potential
      const double ec = EVMostrado((efoton - metal.w0 * kEV) / kEV);  // eV, as shown
      datos = g.MsgQUI(forma == 3 ? "EAT_ELE_Ecin_es" : "EAT_DDP_frenado_es") + " " + g.MsgQUI("EAT_Londa_es");
      r.push_back({"%ECEV%", NumCifras(ec, 4) + "& eV"});
      r.push_back({"%DDPF%", NumCifras(ec, 4) + "& V"});
      const double w0 = efoton / kEV - ec;
      const std::string a = Respuesta('a', EV(efoton / kEV)), b = Respuesta('b', EV(w0));
      preguntas = forma == 3 ? Parte('a', g.MsgQUI("Hallar_Ener_FotonIncid_eV")) + Parte('b', g.MsgQUI("Hallar_W0_eV"))
                             : Parte('a', g.MsgQUI("Hallar_Ecin_FotoElec_eV")) + Parte('b', g.MsgQUI("Hallar_W0_eV"));
      sol = (forma == 3 ? a : Respuesta('a', EV(ec))) + ",   " + b + ",   " +
            Respuesta('c', Nm(kH * kC / (w0 * kEV) * 1E9));
      preguntas += Parte('c', g.MsgQUI("Hallar_LONDAmax"));
      break;
    }
    default: {  // light on a metal and the kinetic energy: W0 in J, f0, speed
      const double ec = EVMostrado((efoton - metal.w0 * kEV) / kEV);
      datos = g.MsgQUI("EAT_Londa_ELE_es") + " " + g.MsgQUI("EAT_Ecin_es");
      r.push_back({"%ECEV%", NumCifras(ec, 4) + "& eV"});
      const double w0J = efoton - ec * kEV;
      preguntas = Parte('a', g.MsgQUI("Hallar_W0_J")) + Parte('b', g.MsgQUI("Hallar_FrecuUmbral")) +
                  Parte('c', g.MsgQUI("Hallar_Veloc_FotoElec"));
      sol = Respuesta('a', NumCifras(w0J, 4) + "& J") + ",   " + Respuesta('b', NumCifras(w0J / kH, 4) + "& Hz") +
            ",   " + Respuesta('c', NumCifras(velocidad(ec * kEV), 4) + "& m/s");
    }
  }
  std::string st = datos + "&LF" + g.MsgQUI("Datos") + ": h = " + NumCifras(kH, 5) + "& J s,  c = " +
                   NumCifras(kC, 3) + "& m/s,  m_e = " + NumCifras(kME, 4) + "& kg,  1& eV = " + NumCifras(kEV, 5) +
                   "& J.&LF" + g.MsgQUI("DCH") + ":&LF" + preguntas;
  Sustituye(st, r);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + sol + ".&LF";
}

// ---- Hydrogen spectrum ---------------------------------------------------------

namespace {
constexpr const char* kSeries[5] = {"Lyman", "Balmer", "Paschen", "Brackett", "Pfund"};
double Nivel(int n) { return kE1 / (n * n); }
std::string DatosH(GenContext& g) {
  return g.MsgQUI("Datos") + ": E_1 = " + NumCifras(kE1, 5) + "& J,  h = " + NumCifras(kH, 5) + "& J s,  c = " +
         NumCifras(kC, 3) + "& m/s,  1& eV = " + NumCifras(kEV, 5) + "& J.&LF";
}
}  // namespace

void Generador3(GenContext& g) {
  std::string st, sol;
  std::vector<std::pair<std::string, std::string>> r;
  if (g.GP_SeqB % 2 == 0) {  // a line of a named series
    int n1 = static_cast<int>(AleatorioEn(g.rnd, 1, 5, 1, 1));
    if (AzarSupera(g.rnd, 0.8)) n1 = static_cast<int>(AleatorioEn(g.rnd, 1, 5, 1, 1));
    const int linea = static_cast<int>(AleatorioEn(g.rnd, 1, 5, 1, 1));
    const int n2 = n1 + linea;
    const double de = Nivel(n2) - Nivel(n1);  // J, positive: the photon emitted
    const double f = de / kH;
    st = g.MsgQUI("Th_Bohr_EspectroH") + " " + g.MsgQUI("Th_Serie_Espectro") + "&LF" + DatosH(g) +
         g.MsgQUI("Ener_L_frec_n_linea_espec") + "&LF";
    r = {{"%NL%", std::to_string(linea)}, {"%NS%", kSeries[n1 - 1]}};
    sol = "&SP=10:n& = " + std::to_string(n2) + " &ars n& = " + std::to_string(n1) + ":   &DeltaE& = " +
          NumCifras(de, 4) + "& J& = " + NumCifras(de / kEV, 4) + "& eV,   f& = " + NumCifras(f, 4) +
          "& Hz,   &lambda& = " + Nm(kC / f * 1E9) + ".&LF";
  } else {  // the electron moves between two levels
    int n0 = static_cast<int>(AleatorioEn(g.rnd, 2, 4, 1, 1));
    if (AzarSupera(g.rnd, 0.85)) n0 = static_cast<int>(AleatorioEn(g.rnd, 2, 4, 1, 1));
    int nf;
    do nf = static_cast<int>(AleatorioEn(g.rnd, 1, 5, 1, 1));
    while (nf == n0);
    const double de = Nivel(nf) - Nivel(n0);  // J; below 0 the atom gives out a photon
    const double f = std::fabs(de) / kH;
    st = g.MsgQUI("Th_Bohr_EspectroH") + "&LF" + DatosH(g) + g.MsgQUI("DCH") + ":&LF" +
         Parte('a', g.MsgQUI("EI_hidrog_n0_eV")) + Parte('b', g.MsgQUI("Ener_e_hidrog_n")) +
         Parte('c', g.MsgQUI("Ener_Lfot_nf_n0"));
    r = {{"%N0%", std::to_string(n0)}, {"%NF%", std::to_string(nf)}};
    sol = "&SP=10:" + Respuesta('a', NumCifras(-Nivel(n0) / kEV, 4) + "& eV") + ",   " +
          Respuesta('b', NumCifras(Nivel(nf) / kEV, 4) + "& eV") + "&LF&SP=10:" +
          Respuesta('c', "&DeltaE& = " + NumCifras(de, 4) + "& J,   f& = " + NumCifras(f, 4) + "& Hz,   &lambda& = " +
                             Nm(kC / f * 1E9) + "  (" + g.MsgQUI(de < 0 ? "Foton_emitido" : "Foton_absorbido") + ")") +
          ".&LF";
  }
  Sustituye(st, r);
  g.GP_Statement = st;
  g.GP_Solution = sol;
}

// ---- Mass defect ---------------------------------------------------------------

namespace {
// Nuclides: name key, symbol, Z, A and the mass of the nucleus in u (the
// atomic mass of the mass evaluation less Z electron masses).
struct Nuclido {
  const char* clave;
  const char* simbolo;
  int z, a;
  double masa;
};
constexpr Nuclido kNuclidos[90] = {
    {"N_D", "H", 1, 2, 2.013553198},       {"N_T", "H", 1, 3, 3.015500688},       {"N_He", "He", 2, 3, 3.014932150},
    {"N_He", "He", 2, 4, 4.001506090},     {"N_Li", "Li", 3, 6, 6.013476560},     {"N_Li", "Li", 3, 7, 7.014358260},
    {"N_Be", "Be", 4, 9, 9.009987780},     {"N_B", "B", 5, 10, 10.010194100},     {"N_B", "B", 5, 11, 11.006562600},
    {"N_C", "C", 6, 12, 11.996708521},     {"N_C", "C", 6, 13, 13.000063358},     {"N_C", "C", 6, 14, 13.999950509},
    {"N_N", "N", 7, 14, 13.999233946},     {"N_N", "N", 7, 15, 14.996268839},     {"N_O", "O", 8, 16, 15.990525983},
    {"N_O", "O", 8, 17, 16.994742861},     {"N_O", "O", 8, 18, 17.994771761},     {"N_F", "F", 9, 19, 18.993465981},
    {"N_Ne", "Ne", 10, 20, 19.986954377},  {"N_Ne", "Ne", 10, 22, 21.985899711},  {"N_Na", "Na", 11, 23, 22.983735291},
    {"N_Mg", "Mg", 12, 24, 23.978458941},  {"N_Mg", "Mg", 12, 26, 25.976010081},  {"N_Al", "Al", 13, 27, 26.974406901},
    {"N_Si", "Si", 14, 28, 27.969246414},  {"N_Si", "Si", 14, 30, 29.966090101},  {"N_P", "P", 15, 31, 30.965532811},
    {"N_S", "S", 16, 32, 31.963293411},    {"N_S", "S", 16, 34, 33.959089551},    {"N_Cl", "Cl", 17, 35, 34.959526852},
    {"N_Cl", "Cl", 17, 37, 36.956576742},  {"N_Ar", "Ar", 18, 40, 39.952508685},  {"N_K", "K", 19, 39, 38.953283882},
    {"N_K", "K", 19, 40, 39.953575652},    {"N_Ca", "Ca", 20, 40, 39.951619602},  {"N_Ca", "Ca", 20, 48, 47.941562402},
    {"N_Sc", "Sc", 21, 45, 44.944390022},  {"N_Ti", "Ti", 22, 48, 47.935878342},  {"N_V", "V", 23, 51, 50.931346362},
    {"N_Cr", "Cr", 24, 52, 51.927345982},  {"N_Mn", "Mn", 25, 55, 54.924335102},  {"N_Fe", "Fe", 26, 54, 53.925351722},
    {"N_Fe", "Fe", 26, 56, 55.920679022},  {"N_Fe", "Fe", 26, 58, 57.919017422},  {"N_Co", "Co", 27, 59, 58.918388542},
    {"N_Co", "Co", 27, 60, 59.919010542},  {"N_Ni", "Ni", 28, 58, 57.919987663},  {"N_Ni", "Ni", 28, 60, 59.915430363},
    {"N_Ni", "Ni", 28, 62, 61.912988563},  {"N_Cu", "Cu", 29, 63, 62.913692283},  {"N_Cu", "Cu", 29, 65, 64.911884883},
    {"N_Zn", "Zn", 30, 64, 63.912689203},  {"N_Zn", "Zn", 30, 66, 65.909579403},  {"N_Se", "Se", 34, 80, 79.897870083},
    {"N_Br", "Br", 35, 79, 78.899137303},  {"N_Br", "Br", 35, 81, 80.897090703},  {"N_Sr", "Sr", 38, 88, 87.884768263},
    {"N_Sr", "Sr", 38, 90, 89.886891563},  {"N_Zr", "Zr", 40, 90, 89.882760504},  {"N_Mo", "Mo", 42, 98, 97.882367444},
    {"N_Ag", "Ag", 47, 107, 106.879309744}, {"N_Ag", "Ag", 47, 109, 108.878972744}, {"N_Cd", "Cd", 48, 112, 111.876425364},
    {"N_Cd", "Cd", 48, 114, 113.877026264}, {"N_Sn", "Sn", 50, 118, 117.874177005}, {"N_Sn", "Sn", 50, 120, 119.874767605},
    {"N_Sb", "Sb", 51, 121, 120.875840425}, {"N_Sb", "Sb", 51, 123, 122.876238125}, {"N_I", "I", 53, 127, 126.875393265},
    {"N_I", "I", 53, 131, 130.877049465},  {"N_Cs", "Cs", 55, 133, 132.875275105}, {"N_Cs", "Cs", 55, 137, 136.876912105},
    {"N_Ba", "Ba", 56, 137, 136.875100525}, {"N_Ba", "Ba", 56, 138, 137.874520525}, {"N_Pt", "Pt", 78, 195, 194.921984767},
    {"N_Au", "Au", 79, 197, 196.923214187}, {"N_Hg", "Hg", 80, 200, 199.924422607}, {"N_Hg", "Hg", 80, 202, 201.926739607},
    {"N_Pb", "Pb", 82, 206, 205.929465447}, {"N_Pb", "Pb", 82, 207, 206.930897447}, {"N_Pb", "Pb", 82, 208, 207.931652447},
    {"N_Bi", "Bi", 83, 209, 208.934850868}, {"N_Po", "Po", 84, 210, 209.936776288}, {"N_Rn", "Rn", 86, 222, 221.970392628},
    {"N_Fr", "Fr", 87, 223, 222.972004248}, {"N_Ra", "Ra", 88, 226, 225.977127568}, {"N_Th", "Th", 90, 232, 231.988678208},
    {"N_U", "U", 92, 235, 234.993453748},  {"N_U", "U", 92, 238, 238.000313248},  {"N_Pu", "Pu", 94, 239, 239.000589989}};

std::string Particulas(GenContext& g, int n, const char* uno, const char* varios) {
  return std::to_string(n) + " " + g.MsgQUI(n == 1 ? uno : varios);
}
}  // namespace

void Generador9(GenContext& g) {
  const Nuclido& x = kNuclidos[(37 * g.GP_SeqB) % 90];
  const int n = x.a - x.z;
  const double masa = Cifras(x.masa, 9);
  const double defecto = x.z * kMP + n * kMN - masa;  // u
  const double energia = defecto * kU * kC2 * kC2 / kEV2 / 1E6;  // MeV
  // Hydrogen's heavy isotopes have names of their own.
  std::string nombre = g.MsgQUI(x.clave);
  if (x.z > 1) nombre += "-" + std::to_string(x.a);
  std::string st = g.MsgQUI("Isotopo_Nom_p_n") + "&LF" + g.MsgQUI("Datos") + ": " + g.MsgQUI("Masa_proton") +
                   " = " + NumTexto(kMP) + "& u,  " + g.MsgQUI("Masa_neutron") + " = " + NumTexto(kMN) +
                   "& u,  1& u = " + NumTexto(kU) + "& kg,  c = " + NumTexto(kC2) + "& m/s,  1& eV = " +
                   NumTexto(kEV2) + "& J.&LF" + g.MsgQUI("DCH") + ":&LF" + Parte('a', g.MsgQUI("DefectoMasa_u")) +
                   Parte('b', g.MsgQUI("EnergiaEnlace_MeV")) + Parte('c', g.MsgQUI("EnergiaPorNucleon_MeV"));
  Sustituye(st, {{"%deC%", nombre},
                 {"%C%", nombre},
                 {"%P%", Particulas(g, x.z, "proton", "protones")},
                 {"%N%", Particulas(g, n, "neutron", "neutrones")},
                 {"%A%", std::to_string(x.a)},
                 {"%Z%", std::to_string(x.z)},
                 {"%S%", x.simbolo},
                 {"%M%", NumCifras(masa, 9) + "& u"}});
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + Respuesta('a', NumCifras(defecto, 7) + "& u") + ",   " +
                  Respuesta('b', NumCifras(energia, 6) + "& MeV") + ",   " +
                  Respuesta('c', NumCifras(energia / x.a, 6) + "& MeV/" + g.MsgQUI("nucleon")) + ".&LF";
}

// ---- Radioactive decay -----------------------------------------------------------

namespace {
// Half-lives of the evaluated nuclear data tables, with the unit in which the
// problem states them and the key of that unit's inverse.
struct Radioisotopo {
  int a;
  const char* simbolo;
  const char* clave;
  double t12;
  const char* unidad;
  const char* inversa;
};
constexpr Radioisotopo kRadio[27] = {
    {235, "U", "N_U", 7.038E8, "Anyos", "Anyo_inv"},    {87, "Rb", "N_Rb", 4.88E10, "Anyos", "Anyo_inv"},
    {226, "Ra", "N_Ra", 1602, "Anyos", "Anyo_inv"},     {90, "Sr", "N_Sr", 28.9, "Anyos", "Anyo_inv"},
    {131, "I", "N_I", 8.02, "Dias", "Dia_inv"},          {238, "U", "N_U", 4.468E9, "Anyos", "Anyo_inv"},
    {41, "Ca", "N_Ca", 1.03E5, "Anyos", "Anyo_inv"},    {229, "Th", "N_Th", 7340, "Anyos", "Anyo_inv"},
    {60, "Co", "N_Co", 5.2714, "Anyos", "Anyo_inv"},    {222, "Rn", "N_Rn", 3.824, "Dias", "Dia_inv"},
    {40, "K", "N_K", 1.277E9, "Anyos", "Anyo_inv"},     {14, "C", "N_C", 5730, "Anyos", "Anyo_inv"},
    {207, "Bi", "N_Bi", 31.55, "Anyos", "Anyo_inv"},    {109, "Cd", "N_Cd", 462.6, "Dias", "Dia_inv"},
    {15, "O", "N_O", 122, "Segundo", "Segundo_inv"},    {8, "Be", "N_Be", 8.19E-17, "Segundo", "Segundo_inv"},
    {213, "Po", "N_Po", 3.72E-6, "Segundo", "Segundo_inv"}, {28, "Al", "N_Al", 2.25, "Minutos", "Minuto_inv"},
    {210, "Pb", "N_Pb", 22.3, "Anyos", "Anyo_inv"},     {221, "Fr", "N_Fr", 4.8, "Minutos", "Minuto_inv"},
    {226, "Ac", "N_Ac", 29.37, "Horas", "Hora_inv"},    {137, "Cs", "N_Cs", 30.07, "Anyos", "Anyo_inv"},
    {231, "Th", "N_Th", 25.5, "Horas", "Hora_inv"},     {22, "Na", "N_Na", 2.602, "Anyos", "Anyo_inv"},
    {32, "Si", "N_Si", 157, "Anyos", "Anyo_inv"},       {33, "P", "N_P", 25.3, "Dias", "Dia_inv"},
    {35, "S", "N_S", 87.32, "Dias", "Dia_inv"}};

// What a decay form gives and asks: the datum (T12, TAU, KK or a mass after
// a time) and up to three questions.
enum Dato { kT12, kTau, kK, kMR, kMD };
enum Pregunta { pK, pTau, pT12, pMRt, pTMR, pTMD };
struct FormaDecay {
  Dato dato;
  std::vector<Pregunta> preguntas;
};
const FormaDecay kFormas[13] = {
    {kT12, {pK, pTau, pMRt}}, {kT12, {pK, pTMR}},        {kT12, {pTau, pTMD}},      {kTau, {pK, pT12, pMRt}},
    {kTau, {pT12, pTMR}},     {kTau, {pK, pTMD}},        {kK, {pT12, pTau, pMRt}},  {kK, {pT12, pTMR}},
    {kK, {pTau, pTMD}},       {kMR, {pK, pT12, pTau}},   {kMD, {pK, pT12, pTau}},   {kMR, {pT12, pTMD}},
    {kMD, {pK, pTMR}}};
}  // namespace

void Generador10(GenContext& g) {
  const Radioisotopo& x = kRadio[g.GP_SeqB % 27];
  const FormaDecay& forma = kFormas[g.GP_SeqB % 13];
  const std::string isot = AzarSupera(g.rnd, 0.5)
                               ? g.MsgQUI(x.clave) + "-" + NumTexto(x.a)
                               : "#SPB(R" + NumTexto(x.a) + "#T)( #SPB)" + x.simbolo;
  const std::string ut = g.MsgQUI(x.unidad), ui = g.MsgQUI(x.inversa);
  // A sample of a nuclide that lives under a second can only be a trace; one
  // that lives under a day, milligrams.
  const std::string um = x.t12 < 1 && std::string(x.unidad) == "Segundo" ? "ng"
                         : std::string(x.unidad) != "Anyos" && std::string(x.unidad) != "Dias" ? "mg"
                                                                                                  : "g";
  const double m0 = AleatorioEn(g.rnd, 50, 500, 1, 1) / 100;
  const bool porcentaje = AzarSupera(g.rnd, 0.5);
  double t = Cifras(AleatorioEn(g.rnd, 15, 90, 1, 1) / 100 * x.t12, 4);
  const auto tiempo = [&](double v) { return NumCifras(v, 4) + "& " + ut; };
  const auto gramos = [&](double v) { return NumCifras(v, 4) + "& " + um; };

  // The decay constant as the statement gives it: from the stated datum.
  const double t12 = Cifras(x.t12, 4);
  double k = std::log(2) / t12;
  std::string dato;
  // After the time t of the statement: the mass left, the mass gone, the percentage left.
  const double queda = std::exp(-std::log(2) / x.t12 * t);
  const double mr = Cifras(m0 * queda, 4), md = Cifras(m0 - mr, 4), pct = Cifras(100 * queda, 4);
  switch (forma.dato) {
    case kT12: dato = g.MsgQUI("EAT_ISOT_T12_es"); break;
    case kTau: k = 1 / Cifras(1 / k, 4); dato = g.MsgQUI("EAT_ISOT_TAU_es"); break;
    case kK: k = Cifras(k, 4); dato = g.MsgQUI("EAT_ISOT_KKdesint_es"); break;
    case kMR:
    case kMD: {
      dato = g.MsgQUI(forma.dato == kMR ? "EAT_ISOT_M0_T_MR_es" : "EAT_ISOT_M0_T_MD_es");
      const double resto = porcentaje ? pct / 100 : (forma.dato == kMR ? mr : m0 - md) / m0;
      k = std::log(1 / resto) / t;
    }
  }
  // The masses of the questions follow from the constant just found.
  const double tq = Cifras(AleatorioEn(g.rnd, 15, 90, 1, 1) / 100 * x.t12, 4);
  const double mrq = Cifras(m0 * std::exp(-std::log(2) / x.t12 * tq), 4);
  const double mdq = Cifras(m0 - mrq, 4);
  std::string st = dato + "&LF" + g.MsgQUI("DCH") + ":&LF", sol;
  char letra = 'a';
  for (Pregunta p : forma.preguntas) {
    std::string q, a;
    switch (p) {
      case pK: q = "EAT_Hallar_KKdesint"; a = NumCifras(k, 4) + "& " + ui; break;
      case pTau: q = "EAT_Hallar_TAU"; a = tiempo(1 / k); break;
      case pT12: q = "EAT_Hallar_T12"; a = tiempo(std::log(2) / k); break;
      case pMRt: q = "EAT_Hallar_MR_de_T_M0"; a = gramos(m0 * std::exp(-k * tq)); break;
      case pTMR: q = "EAT_Hallar_Tdesin_MR_M0"; a = tiempo(std::log(m0 / mrq) / k); break;
      case pTMD: q = "EAT_Hallar_Tdesin_MD_M0"; a = tiempo(std::log(m0 / (m0 - mdq)) / k); break;
    }
    st += Parte(letra, g.MsgQUI(q));
    sol += (sol.empty() ? "" : ",   ") + Respuesta(letra++, a);
  }
  const std::string sMR = porcentaje ? NumCifras(pct, 4) + "& %" : gramos(mr);
  const std::string sMD = porcentaje ? NumCifras(100 - pct, 4) + "& %" : gramos(md);
  Sustituye(st, {{"%ISOT%", isot},
                 {"%T12%", tiempo(t12)},
                 {"%TAU%", tiempo(Cifras(t12 / std::log(2), 4))},
                 {"%KK%", NumCifras(std::log(2) / t12, 4) + "& " + ui},
                 {"%M0%", gramos(m0)},
                 // The data of the statement and the figures of the questions.
                 {"%MR%", forma.dato == kMR ? sMR : gramos(mrq)},
                 {"%MD%", forma.dato == kMD ? sMD : gramos(mdq)},
                 {"%T%", tiempo(forma.dato == kMR || forma.dato == kMD ? t : tq)},
                 {"%UT%", ut}});
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + sol + ".&LF";
}

}  // namespace ss::mod::eat
