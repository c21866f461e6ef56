// Generators 5 and 13: lists of molecules whose Lewis structure and shape
// (and, in 13, polarity) are asked, by the valence-shell electron-pair
// repulsion model. Generator 11: the mean atomic mass of an element from its
// natural isotopes, or one missing abundance.
#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "modules/ANEU_QUIM_EAT/eat.h"
#include "problems/aleatorio.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eat {
namespace {

bool ConProbabilidad(GenContext& g, double p) {
  return static_cast<float>(g.rnd.Siguiente()) < static_cast<float>(p);
}

// ---------------------------------------------------------------- geometry

// Families of molecules of one shape. In the lists a dot ends a one-letter
// element ("H._2O." is H2O). `enlazados` is the number of atoms bonded to the
// central atom and `solitarios` its lone pairs (0 and 0 for a diatomic
// molecule). All are taken as single molecules in the gas phase, where
// BeCl2, AlCl3, SO3 or SeO2 are monomers; species that exist only as
// fleeting fragments (BH3, AlH3, BeH2, SeF2) are not used.
struct Familia {
  std::string_view lista, geometria, polaridad;
  int enlazados, solitarios;
};
constexpr std::array<Familia, 12> kFamilias = {{
    {"BeCl_2,BeF._2,BeBr_2", "Geom_molec_Lineal", "Molec_NoPolar", 2, 0},
    {"B.Br_3,B.Cl_3,B.F._3,S.O._3,AlCl_3,AlF._3", "Geom_molec_TrianP", "Molec_NoPolar", 3, 0},
    {"C.H._4,C.F._4,C.Cl_4,SiH._4,SiF._4,SiCl_4", "Geom_molec_Tetrae", "Molec_NoPolar", 4, 0},
    {"H._2O.,H._2S.,H._2Se,Cl_2O.,O.F._2,S.Cl_2,S.F._2,SeBr_2,SeCl_2", "Geom_molec_Angula", "Molec_Polar", 2, 2},
    {"C.O._2,C.S._2,C.Se_2", "Geom_molec_Lineal", "Molec_NoPolar", 2, 0},
    {"S.O._2,SeO._2,O._3", "Geom_molec_Angula", "Molec_Polar", 2, 1},
    {"N.H._3,N.F._3,N.Cl_3,P.H._3,P.F._3,P.Cl_3,AsH._3,AsF._3,AsCl_3", "Geom_molec_PiramT", "Molec_Polar", 3, 1},
    {"H.F.,H.Cl,ClF.", "Geom_molec_Lineal", "Molec_Polar", 0, 0},
    {"H.C.N.", "Geom_molec_Lineal", "Molec_Polar", 2, 0},
    {"H.C.H.O.,C.O.F._2,C.O.Cl_2", "Geom_molec_TrianP", "Molec_Polar", 3, 0},
    {"C.H._3Cl,C.H._3F.,C.H.Cl_3,SiH._3Cl,SiH._3F.,H.SiCl_3", "Geom_molec_Tetrae", "Molec_Polar", 4, 0},
    {"H._2,N._2,F._2,Cl_2,Br_2", "Geom_molec_Lineal", "Molec_NoPolar", 0, 0},
}};

// Elements of the molecules, in the order their atomic numbers are listed,
// with their valence electrons.
struct Elemento {
  std::string_view clave, simbolo;
  int z, valencia;
};
constexpr std::array<Elemento, 15> kElementos = {{
    {"Al", "Al", 13, 3}, {"Si", "Si", 14, 4}, {"P.", "P", 15, 5}, {"S.", "S", 16, 6}, {"As", "As", 33, 5},
    {"Se", "Se", 34, 6}, {"Be", "Be", 4, 2},  {"B.", "B", 5, 3},  {"C.", "C", 6, 4},  {"N.", "N", 7, 5},
    {"O.", "O", 8, 6},   {"H.", "H", 1, 1},   {"F.", "F", 9, 7},  {"Cl", "Cl", 17, 7}, {"Br", "Br", 35, 7},
}};

struct Molecula {
  std::string formula, numerosAtomicos, central;
  const Familia* familia;
  int electrones = 0;  // valence electrons of the whole molecule
};

std::vector<std::string_view> Partes(std::string_view lista) {
  std::vector<std::string_view> out;
  for (std::size_t a = 0;;) {
    const std::size_t b = lista.find(',', a);
    out.push_back(lista.substr(a, b - a));
    if (b == std::string_view::npos) return out;
    a = b + 1;
  }
}

// The molecule of an entry: its formula, the atomic numbers of its elements,
// its valence electrons and its central atom (the first element of the list
// above that stands once and is not hydrogen; ozone has only one element).
Molecula DeEntrada(std::string_view entrada, const Familia& f) {
  Molecula m{std::string(entrada), "", "", &f};
  m.formula.erase(std::remove(m.formula.begin(), m.formula.end(), '.'), m.formula.end());
  for (const Elemento& e : kElementos) {
    int cuantos = 0;
    for (std::size_t at = entrada.find(e.clave); at != std::string_view::npos; at = entrada.find(e.clave, at + 1)) {
      int n = 1;
      const std::size_t tras = at + 2;
      if (tras + 1 < entrada.size() && entrada[tras] == '_') n = entrada[tras + 1] - '0';
      cuantos += n;
    }
    if (cuantos == 0) continue;
    m.numerosAtomicos += ",   " + std::string(e.simbolo) + ": Z=" + std::to_string(e.z);
    m.electrones += cuantos * e.valencia;
    if (m.central.empty() && (cuantos == 1 && e.simbolo != "H")) m.central = e.simbolo;
  }
  if (m.central.empty()) m.central = m.formula.substr(0, 1);
  m.numerosAtomicos = Trim(m.numerosAtomicos.substr(1));
  return m;
}

// One molecule: a number 1-100 (drawn again with a value above 0.7) picks
// the family by its remainder over 12, and a draw the entry in the family.
Molecula Sorteo(GenContext& g) {
  int n = static_cast<int>(AleatorioEn(g.rnd, 1, 100, 1, 1));
  if (AzarSupera(g.rnd, 0.7)) n = static_cast<int>(AleatorioEn(g.rnd, 1, 100, 1, 1));
  const int fila = n % 12 == 0 ? 12 : n % 12;
  const Familia& f = kFamilias[static_cast<std::size_t>(fila - 1)];
  const auto partes = Partes(f.lista);
  const int k = static_cast<int>(AleatorioEn(g.rnd, 1, static_cast<double>(partes.size()), 1, 1));
  return DeEntrada(partes[static_cast<std::size_t>(k - 1)], f);
}

std::string Pares(GenContext& g, int n) {
  if (n == 0) return g.MsgQUI("EAT_Sin_pares");
  return std::to_string(n) + " " + g.MsgQUI(n == 1 ? "EAT_Par_solitario" : "EAT_Pares_solitarios");
}

void ListaGeometria(GenContext& g, int tope, bool polaridad) {
  const int n = std::clamp(static_cast<int>(g.GP_Items), 2, tope);
  static constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";
  std::string st = g.MsgQUI("Hallar_LWGeomMolec_TREPEV");
  if (polaridad) st += " " + g.MsgQUI("EAT_Indicar_Polaridad");
  st += "&LF";
  std::string so;
  std::vector<std::string> hechas;
  for (int i = 0; i < n; ++i) {
    Molecula m;
    do m = Sorteo(g);
    while (std::find(hechas.begin(), hechas.end(), m.formula) != hechas.end());
    hechas.push_back(m.formula);
    const Familia& f = *m.familia;
    const std::string letra = "&SP=10:&+B" + std::string(1, kLetras[static_cast<std::size_t>(i)]) + ")&-B  ";
    st += letra + m.formula + "&SP=30:(" + m.numerosAtomicos + ")&LF";
    std::string axe;
    if (f.enlazados > 0) {
      axe = "AX_" + std::to_string(f.enlazados);
      if (f.solitarios > 0) axe += f.solitarios == 1 ? "E" : "E_" + std::to_string(f.solitarios);
    }
    std::string r = letra + m.formula + ":  ";
    if (!polaridad) {
      std::string lewis = g.MsgQUI(f.enlazados > 0 ? "EAT_Lewis_Central" : "EAT_Lewis_Diatomica");
      ReplaceAll(lewis, "%NV%", std::to_string(m.electrones));
      ReplaceAll(lewis, "%A%", m.central);
      ReplaceAll(lewis, "%NX%", std::to_string(f.enlazados));
      ReplaceAll(lewis, "%PS%", Pares(g, f.solitarios));
      ReplaceAll(lewis, "%AXE%", axe);
      r += lewis + "; " + g.MsgQUI(f.geometria);
    } else {
      r += (axe.empty() ? g.MsgQUI("EAT_Diatomica") : axe) + ", " + g.MsgQUI(f.geometria) + ", " + g.MsgQUI(f.polaridad);
    }
    so += r + ".&LF";
  }
  g.GP_Statement = st;
  g.GP_Solution = so;
}

// ---------------------------------------------------------------- isotopes

// Natural isotopes: mass number, atomic mass in u and abundance in percent
// of atoms (IUPAC isotopic compositions and atomic mass evaluation). The
// abundances of silicon are those of the table with the last digit of
// silicon-30 taken so that they add up to 100.
struct Isotopo {
  int a;
  double masa, abundancia;
};
struct Natural {
  std::string_view clave, simbolo;
  std::array<Isotopo, 4> isotopos;
  int cuantos;
};
constexpr std::array<Natural, 27> kNaturales = {{
    {"N_Li", "Li", {{{6, 6.0151223, 7.59}, {7, 7.016004, 92.41}}}, 2},
    {"N_Ne", "Ne", {{{20, 19.9924401759, 90.48}, {21, 20.99384674, 0.27}, {22, 21.99138551, 9.25}}}, 3},
    {"N_B", "B", {{{10, 10.012937, 19.9}, {11, 11.0093055, 80.1}}}, 2},
    {"N_Mg", "Mg", {{{24, 23.9850419, 78.99}, {25, 24.98583702, 10.0}, {26, 25.98259304, 11.01}}}, 3},
    {"N_Br", "Br", {{{79, 78.9183376, 50.69}, {81, 80.916291, 49.31}}}, 2},
    {"N_Si", "Si", {{{28, 27.9769265327, 92.2297}, {29, 28.97649472, 4.6832}, {30, 29.97377022, 3.0871}}}, 3},
    {"N_C", "C", {{{12, 12.0, 98.93}, {13, 13.0033548378, 1.07}}}, 2},
    {"N_S", "S", {{{32, 31.97207069, 94.93}, {33, 32.9714585, 0.76}, {34, 33.96786683, 4.29}, {36, 35.96708088, 0.02}}}, 4},
    {"N_Cu", "Cu", {{{63, 62.9296011, 69.17}, {65, 64.9277937, 30.83}}}, 2},
    {"N_Cl", "Cl", {{{35, 34.96885271, 75.78}, {37, 36.9659026, 24.22}}}, 2},
    {"N_K", "K", {{{39, 38.9637069, 93.2581}, {40, 39.96399867, 0.0117}, {41, 40.96182597, 6.7302}}}, 3},
    {"N_V", "V", {{{50, 49.9471628, 0.25}, {51, 50.9439637, 99.75}}}, 2},
    {"N_Cr", "Cr", {{{50, 49.9460496, 4.345}, {52, 51.9405119, 83.789}, {53, 52.9406538, 9.501}, {54, 53.9388849, 2.365}}}, 4},
    {"N_Tl", "Tl", {{{203, 202.972329, 29.524}, {205, 204.974412, 70.476}}}, 2},
    {"N_Sb", "Sb", {{{121, 120.903818, 57.21}, {123, 122.9042157, 42.79}}}, 2},
    {"N_Fe", "Fe", {{{54, 53.9396148, 5.845}, {56, 55.9349421, 91.754}, {57, 56.9353987, 2.119}, {58, 57.9332805, 0.282}}}, 4},
    {"N_Rb", "Rb", {{{85, 84.9117893, 72.17}, {87, 86.9091835, 27.83}}}, 2},
    {"N_Sr", "Sr", {{{84, 83.913425, 0.56}, {86, 85.9092624, 9.86}, {87, 86.9088793, 7.0}, {88, 87.9056143, 82.58}}}, 4},
    {"N_Ag", "Ag", {{{107, 106.905093, 51.839}, {109, 108.904756, 48.161}}}, 2},
    {"N_Pb", "Pb", {{{204, 203.973029, 1.4}, {206, 205.974449, 24.1}, {207, 206.975881, 22.1}, {208, 207.976636, 52.4}}}, 4},
    {"N_Ga", "Ga", {{{69, 68.925581, 60.108}, {71, 70.924705, 39.892}}}, 2},
    {"N_N", "N", {{{14, 14.0030740052, 99.632}, {15, 15.0001088984, 0.368}}}, 2},
    {"N_O", "O", {{{16, 15.9949146221, 99.757}, {17, 16.9991315, 0.038}, {18, 17.9991604, 0.205}}}, 3},
    {"N_Re", "Re", {{{185, 184.9529557, 37.4}, {187, 186.9557508, 62.6}}}, 2},
    {"N_In", "In", {{{113, 112.904061, 4.29}, {115, 114.903878, 95.71}}}, 2},
    {"N_Eu", "Eu", {{{151, 150.919846, 47.81}, {153, 152.921226, 52.19}}}, 2},
    {"N_Ir", "Ir", {{{191, 190.960591, 37.3}, {193, 192.962924, 62.7}}}, 2},
}};

std::string Nuclido(const Natural& e, const Isotopo& i) {
  return "#SPB(R" + NumTexto(i.a) + "#T)( #SPB)" + std::string(e.simbolo);
}

}  // namespace

void Generador5(GenContext& g) { ListaGeometria(g, 8, false); }
void Generador13(GenContext& g) { ListaGeometria(g, 26, true); }

void Generador11(GenContext& g) {
  const Natural& e = kNaturales[static_cast<std::size_t>(g.GP_SeqB % 27)];
  const std::span<const Isotopo> iso(e.isotopos.data(), static_cast<std::size_t>(e.cuantos));
  // With complete data only the mean mass is asked; otherwise one abundance
  // is left out and found first, as 100 minus the others.
  const bool completo = ConProbabilidad(g, 0.37);
  const int falta = completo ? -1 : static_cast<int>(AleatorioEn(g.rnd, 1, e.cuantos, 1, 1)) - 1;
  const std::string nombre = g.MsgQUI(e.clave);

  std::string lista;
  double resto = 100, media = 0;
  for (int k = 0; k < e.cuantos; ++k) {
    const Isotopo& i = iso[static_cast<std::size_t>(k)];
    media += i.masa * i.abundancia / 100;
    std::string t = g.MsgQUI(k == falta ? "EAT_Isot_Sin_Abundancia" : "EAT_Isot_Masa_Abundancia");
    ReplaceAll(t, "%ISOT%", Nuclido(e, i));
    ReplaceAll(t, "%M%", NumCifras(i.masa, 8) + "& u");
    ReplaceAll(t, "%AB%", NumTexto(i.abundancia) + "& %");
    if (k != falta) resto -= i.abundancia;
    if (k > 0) lista += k + 1 == e.cuantos ? " " + g.MsgQUI("and") + " " : ", ";
    lista += t;
  }
  std::string st = g.MsgQUI("EAT_Isotopos_Naturales");
  ReplaceAll(st, "%EL%", nombre + " (" + std::string(e.simbolo) + ")");
  st += "&LF" + g.MsgQUI(completo ? "EAT_Hallar_Masa_Atomica" : "EAT_Hallar_Abundancia_Masa") + "&LF";
  ReplaceAll(st, "%EL%", nombre);
  ReplaceAll(st, "%LISTA%", lista);
  std::string so;
  if (!completo) {
    ReplaceAll(st, "%ISOT%", Nuclido(e, iso[static_cast<std::size_t>(falta)]));
    std::string t = g.MsgQUI("EAT_Abundancia_es");
    ReplaceAll(t, "%ISOT%", Nuclido(e, iso[static_cast<std::size_t>(falta)]));
    ReplaceAll(t, "%AB%", NumCifras(resto, 6) + "& %");
    so += "&SP=10:" + t + "&LF";
  }
  std::string t = g.MsgQUI("EAT_Masa_Atomica_es");
  ReplaceAll(t, "%EL%", nombre);
  ReplaceAll(t, "%M%", NumCifras(media, 6) + "& u");
  g.GP_Statement = st;
  g.GP_Solution = so + "&SP=10:" + t + "&LF";
}

}  // namespace ss::mod::eat
