// Generators 6, 7 and 12: nuclear reactions to complete, and the particles
// of atoms and ions. Every nuclide shown exists, and every decay shown is one
// the nuclide really undergoes.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "modules/ANEU_QUIM_EAT/eat.h"
#include "problems/generador.h"
#include "problems/numeros.h"

namespace ss::mod::eat {
namespace {

constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";

// Element symbols by atomic number, 0 standing for the neutron.
constexpr std::string_view kSimbolos[] = {
    "n",  "H",  "He", "Li", "Be", "B",  "C",  "N",  "O",  "F",  "Ne", "Na", "Mg", "Al", "Si", "P",  "S",  "Cl",
    "Ar", "K",  "Ca", "Sc", "Ti", "V",  "Cr", "Mn", "Fe", "Co", "Ni", "Cu", "Zn", "Ga", "Ge", "As", "Se", "Br",
    "Kr", "Rb", "Sr", "Y",  "Zr", "Nb", "Mo", "Tc", "Ru", "Rh", "Pd", "Ag", "Cd", "In", "Sn", "Sb", "Te", "I",
    "Xe", "Cs", "Ba", "La", "Ce", "Pr", "Nd", "Pm", "Sm", "Eu", "Gd", "Tb", "Dy", "Ho", "Er", "Tm", "Yb", "Lu",
    "Hf", "Ta", "W",  "Re", "Os", "Ir", "Pt", "Au", "Hg", "Tl", "Pb", "Bi", "Po", "At", "Rn", "Fr", "Ra", "Ac",
    "Th", "Pa", "U",  "Np", "Pu", "Am"};
static_assert(std::size(kSimbolos) == 96);

struct Nuclido {
  int z, a;
};

// Stable nuclides up to zirconium (the targets of the bombardments), from the
// table of natural isotopes; potassium-40 is primordial.
constexpr Nuclido kEstables[] = {
    {2, 3},   {2, 4},   {3, 6},   {3, 7},   {4, 9},   {5, 10},  {5, 11},  {6, 12},  {6, 13},  {7, 14},  {7, 15},
    {8, 16},  {8, 17},  {8, 18},  {9, 19},  {10, 20}, {10, 21}, {10, 22}, {11, 23}, {12, 24}, {12, 25}, {12, 26},
    {13, 27}, {14, 28}, {14, 29}, {14, 30}, {15, 31}, {16, 32}, {16, 33}, {16, 34}, {16, 36}, {17, 35}, {17, 37},
    {18, 36}, {18, 38}, {18, 40}, {19, 39}, {19, 40}, {19, 41}, {20, 40}, {20, 42}, {20, 43}, {20, 44}, {20, 46},
    {20, 48}, {21, 45}, {22, 46}, {22, 47}, {22, 48}, {22, 49}, {22, 50}, {23, 50}, {23, 51}, {24, 50}, {24, 52},
    {24, 53}, {24, 54}, {25, 55}, {26, 54}, {26, 56}, {26, 57}, {26, 58}, {27, 59}, {28, 58}, {28, 60}, {28, 61},
    {28, 62}, {28, 64}, {29, 63}, {29, 65}, {30, 64}, {30, 66}, {30, 67}, {30, 68}, {30, 70}, {31, 69}, {31, 71},
    {32, 70}, {32, 72}, {32, 73}, {32, 74}, {32, 76}, {33, 75}, {34, 74}, {34, 76}, {34, 77}, {34, 78}, {34, 80},
    {34, 82}, {35, 79}, {35, 81}, {36, 78}, {36, 80}, {36, 82}, {36, 83}, {36, 84}, {36, 86}, {37, 85}, {37, 87},
    {38, 84}, {38, 86}, {38, 87}, {38, 88}, {39, 89}, {40, 90}, {40, 91}, {40, 92}, {40, 94}, {40, 96}};

// Radionuclides by their decay, from the chart of nuclides.
constexpr Nuclido kBetaMenos[] = {
    {2, 6},   {3, 8},   {4, 10},  {5, 12},  {6, 14},  {7, 16},  {8, 19},  {9, 20},  {10, 23}, {11, 24}, {12, 27},
    {13, 28}, {14, 31}, {15, 32}, {16, 35}, {17, 38}, {18, 39}, {18, 41}, {19, 40}, {19, 42}, {20, 45}, {20, 47},
    {21, 46}, {22, 51}, {23, 52}, {24, 55}, {25, 56}, {26, 59}, {27, 60}, {28, 63}, {28, 65}, {29, 67}, {30, 69},
    {31, 72}, {32, 77}, {33, 76}, {34, 79}, {35, 82}, {36, 85}, {37, 86}, {37, 87}, {38, 89}, {38, 90}, {39, 90},
    {40, 95}, {41, 95}, {42, 99}, {43, 99}, {44, 103}, {44, 106}, {45, 105}, {46, 109}, {47, 111}, {48, 115},
    {49, 115}, {50, 121}, {50, 123}};
constexpr Nuclido kPositron[] = {
    {5, 8},   {6, 11},  {7, 13},  {8, 15},  {9, 18},  {10, 19}, {11, 22}, {12, 23}, {13, 26}, {14, 27}, {15, 30},
    {16, 31}, {17, 34}, {18, 35}, {19, 38}, {20, 39}, {21, 44}, {22, 45}, {23, 48}, {24, 49}, {25, 52}, {26, 52},
    {27, 55}, {27, 56}, {28, 57}, {29, 61}, {29, 64}, {30, 63}, {31, 68}, {32, 69}, {33, 72}, {34, 73}, {35, 76},
    {37, 82}, {38, 83}, {39, 86}, {40, 89}, {41, 90}, {43, 94}, {44, 95}, {49, 110}};
constexpr Nuclido kCaptura[] = {
    {4, 7},   {18, 37}, {20, 41}, {22, 44}, {23, 49}, {24, 51}, {25, 54}, {26, 55}, {27, 57}, {27, 58}, {28, 59},
    {30, 65}, {31, 67}, {32, 68}, {32, 71}, {33, 73}, {34, 75}, {36, 81}, {37, 83}, {38, 85}, {39, 88}, {40, 88},
    {41, 91}, {42, 93}, {43, 97}, {44, 97}, {45, 101}, {46, 103}, {47, 105}, {48, 109}, {49, 111}, {50, 113}};
// Beryllium-8 is the only alpha emitter among the light elements; the rest
// are the classic heavy ones.
constexpr Nuclido kAlfa[] = {{4, 8},   {62, 147}, {84, 210}, {84, 218}, {86, 222}, {88, 226},
                             {90, 232}, {92, 234}, {92, 235}, {92, 238}, {94, 239}, {95, 241}};

// Every radionuclide that a bombardment may give, beyond those above.
constexpr Nuclido kActivados[] = {
    {1, 3},   {3, 8},   {9, 20},  {11, 24}, {13, 28}, {14, 31}, {15, 32}, {16, 35}, {17, 36}, {18, 41},
    {19, 42}, {20, 45}, {20, 47}, {20, 49}, {21, 46}, {22, 51}, {23, 52}, {24, 51}, {25, 56}, {26, 55},
    {26, 59}, {27, 60}, {28, 59}, {28, 63}, {28, 65}, {29, 64}, {29, 66}, {30, 65}, {30, 69}, {30, 71},
    {31, 70}, {31, 72}, {32, 71}, {32, 75}, {32, 77}, {33, 76}, {34, 75}, {34, 81}, {34, 83}, {35, 80},
    {35, 82}, {36, 79}, {36, 81}, {36, 85}, {36, 87}, {37, 86}, {37, 88}, {38, 85}, {38, 87}, {38, 89},
    {39, 90}, {39, 91}, {40, 93}, {40, 95}, {40, 97}, {41, 94}, {41, 92}, {41, 91}, {6, 14},  {7, 16},
    {8, 19},  {10, 23}, {12, 27}, {13, 26}, {5, 12},  {4, 10},  {6, 11},  {7, 13},  {8, 15},  {9, 18},
    {11, 22}, {12, 23}, {14, 27}, {15, 30}, {16, 31}, {17, 34}, {17, 38}, {18, 37}, {18, 39}, {19, 38},
    {20, 41}, {21, 44}, {21, 47}, {21, 48}, {22, 45}, {23, 48}, {23, 49}, {24, 49}, {25, 52}, {25, 54},
    {26, 52}, {27, 56}, {27, 57}, {27, 58}, {29, 61}, {29, 67}, {31, 67}, {31, 68}, {32, 69}, {33, 72},
    {33, 73}, {34, 73}, {35, 76}, {37, 82}, {37, 83}, {37, 84}, {38, 83}, {39, 86}, {39, 88}, {40, 89},
    {42, 93}, {41, 90}, {42, 99}, {41, 93}, {40, 91}, {28, 56}, {20, 49}, {3, 8},   {5, 8},   {4, 7}};

template <std::size_t N>
bool En(const Nuclido (&t)[N], int z, int a) {
  return std::any_of(std::begin(t), std::end(t), [&](const Nuclido& x) { return x.z == z && x.a == a; });
}
bool Existe(int z, int a) { return En(kEstables, z, a) || En(kActivados, z, a) || En(kBetaMenos, z, a); }

// The rows of the exercise: X + incoming = Y + outgoing, the particles as
// symbol, Z and A (Z 99: no particle), the change from X to Y, and the
// member left blank (0 X, 1 incoming, 2 Y, 3 outgoing).
struct Particula {
  std::string_view s;
  int z, a;
};
constexpr Particula kNada{"", 99, 0}, kNeutron{"n", 0, 1}, kProton{"H", 1, 1}, kAlfaP{"He", 2, 4},
    kElectron{"e", -1, 0}, kPositronP{"e", 1, 0}, kGamma{"&gamma", 0, 0};
struct FilaNuclear {
  int zMin, zMax;
  Particula entra, sale;
  int dZ, dA, hueco;
};
constexpr FilaNuclear kFilas[9] = {
    {3, 50, kNada, kAlfaP, -2, -4, 2},     {2, 50, kNada, kElectron, 1, 0, 2},   {2, 50, kNada, kPositronP, -1, 0, 3},
    {2, 50, kElectron, kNada, -1, 0, 0},   {2, 40, kNeutron, kGamma, 0, 1, 2},   {2, 40, kProton, kGamma, 1, 1, 2},
    {2, 40, kNeutron, kProton, -1, 0, 3},  {2, 40, kProton, kNeutron, 1, 0, 0},  {2, 40, kAlfaP, kNeutron, 2, 3, 2}};

std::string Nucleo(std::string_view s, int z, int a) {
  if (s == "&gamma") return "&gamma";
  const std::string zt = (s == "e" && z > 0 ? "+" : "") + std::to_string(z);
  return "#SPB(R" + std::to_string(a) + "#T)(" + zt + "#SPB)" + std::string(s);
}
std::string Nucleo(int z, int a) { return Nucleo(kSimbolos[z], z, a); }

// The nucleus X of a row: Z from the row's range and A := 2Z + Z^2/200 + 0..3,
// moved to the nearest nuclide of that element which fits the row; an element
// with none is drawn again.
Nuclido Blanco(GenContext& g, int fila) {
  const FilaNuclear& f = kFilas[fila - 1];
  std::vector<Nuclido> validos;
  auto mira = [&](const auto& tabla) {
    for (const Nuclido& x : tabla) {
      if (fila == 1 ? x.z < f.zMin : (x.z < f.zMin || x.z > f.zMax)) continue;
      if (fila <= 4 || Existe(x.z + f.dZ, x.a + f.dA)) validos.push_back(x);
    }
  };
  if (fila == 1) mira(kAlfa);
  else if (fila == 2) mira(kBetaMenos);
  else if (fila == 3) mira(kPositron);
  else if (fila == 4) mira(kCaptura);
  else mira(kEstables);
  for (int intento = 0; intento < 40; ++intento) {
    const int z = static_cast<int>(AleatorioEn(g.rnd, f.zMin, fila == 1 ? 95 : f.zMax, 1, 1));
    const int a = 2 * z + z * z / 200 + static_cast<int>(AleatorioEn(g.rnd, 0, 3, 1, 0));
    const Nuclido* mejor = nullptr;
    for (const Nuclido& x : validos)
      if (x.z == z && (!mejor || std::abs(x.a - a) < std::abs(mejor->a - a))) mejor = &x;
    if (mejor) return *mejor;
  }
  return validos[static_cast<std::size_t>(AleatorioEn(g.rnd, 0, static_cast<double>(validos.size() - 1), 1, 0))];
}

// One side of the equation: a nucleus and a particle, either of which may be
// the blank.
std::string Lado(const std::string& nucleo, const Particula& p, bool huecoNucleo, bool huecoParticula) {
  static const std::string kHueco = "&+B ? &-B";
  std::string t = huecoNucleo ? kHueco : nucleo;
  if (p.z != 99) t += " + " + (huecoParticula ? kHueco : Nucleo(p.s, p.z, p.a));
  return t;
}

// ---- Atoms and ions ----

// The elements of the routine with Z, a real isotope (stable, or for bismuth
// the only natural one) and the charges of the ions they form in their
// compounds (0: none listed).
struct Elemento {
  std::string_view s;
  int z;
  int a[3];
  int cargas[3];
};
constexpr Elemento kElementos[46] = {
    {"Li", 3, {7, 6, 7}, {1, 0, 0}},        {"Be", 4, {9, 9, 9}, {2, 0, 0}},        {"B", 5, {11, 10, 11}, {0, 0, 0}},
    {"C", 6, {12, 13, 12}, {0, 0, 0}},      {"N", 7, {14, 15, 14}, {-3, 0, 0}},     {"O", 8, {16, 18, 17}, {-2, 0, 0}},
    {"F", 9, {19, 19, 19}, {-1, 0, 0}},     {"Ne", 10, {20, 22, 21}, {0, 0, 0}},    {"Na", 11, {23, 23, 23}, {1, 0, 0}},
    {"Mg", 12, {24, 25, 26}, {2, 0, 0}},    {"Al", 13, {27, 27, 27}, {3, 0, 0}},    {"Si", 14, {28, 29, 30}, {0, 0, 0}},
    {"P", 15, {31, 31, 31}, {-3, 0, 0}},    {"S", 16, {32, 34, 33}, {-2, 0, 0}},    {"Cl", 17, {35, 37, 35}, {-1, 0, 0}},
    {"Ar", 18, {40, 36, 38}, {0, 0, 0}},    {"K", 19, {39, 41, 39}, {1, 0, 0}},     {"Ca", 20, {40, 44, 42}, {2, 0, 0}},
    {"Ti", 22, {48, 46, 47}, {4, 3, 2}},    {"V", 23, {51, 50, 51}, {3, 2, 0}},     {"Cr", 24, {52, 53, 50}, {3, 2, 0}},
    {"Mn", 25, {55, 55, 55}, {2, 3, 0}},    {"Fe", 26, {56, 54, 57}, {2, 3, 0}},    {"Co", 27, {59, 59, 59}, {2, 3, 0}},
    {"Ni", 28, {58, 60, 62}, {2, 0, 0}},    {"Cu", 29, {63, 65, 63}, {2, 1, 0}},    {"Zn", 30, {64, 66, 68}, {2, 0, 0}},
    {"As", 33, {75, 75, 75}, {-3, 0, 0}},   {"Se", 34, {80, 78, 76}, {-2, 0, 0}},   {"Br", 35, {79, 81, 79}, {-1, 0, 0}},
    {"Rb", 37, {85, 87, 85}, {1, 0, 0}},    {"Sr", 38, {88, 86, 87}, {2, 0, 0}},    {"Ag", 47, {107, 109, 107}, {1, 0, 0}},
    {"Cd", 48, {114, 112, 111}, {2, 0, 0}}, {"Sn", 50, {120, 118, 116}, {2, 4, 0}}, {"Sb", 51, {121, 123, 121}, {3, 0, 0}},
    {"Te", 52, {130, 128, 126}, {-2, 0, 0}}, {"I", 53, {127, 127, 127}, {-1, 0, 0}}, {"Cs", 55, {133, 133, 133}, {1, 0, 0}},
    {"Ba", 56, {138, 137, 136}, {2, 0, 0}}, {"Pt", 78, {195, 194, 196}, {2, 4, 0}}, {"Au", 79, {197, 197, 197}, {3, 1, 0}},
    {"Hg", 80, {202, 200, 199}, {2, 0, 0}}, {"Pb", 82, {208, 206, 207}, {2, 4, 0}}, {"Bi", 83, {209, 209, 209}, {3, 0, 0}},
    {"H", 1, {1, 2, 1}, {1, -1, 0}}};

std::string Especie(const Elemento& e, int a, int carga, bool indices) {
  std::string t = indices ? Nucleo(e.s, e.z, a) : std::string(e.s);
  if (carga == 0) return t;
  const std::string signo = carga > 0 ? "+" : "-";
  return t + "^" + (std::abs(carga) > 1 ? std::to_string(std::abs(carga)) + "^" : "") + signo;
}

std::string CargaTexto(int q) { return q == 0 ? "0" : (q > 0 ? "+" : "-") + std::to_string(std::abs(q)); }

void Particulas(GenContext& g, bool iones) {
  const int n = ItemsEjercicio(g);
  const std::string cab = "&SP=10:&+B" + g.MsgQUI("EAT_Col_Especie") + "&SP=28:Z&SP=36:A&SP=44:" +
                          g.MsgQUI("EAT_Col_Protones") + "&SP=56:" + g.MsgQUI("EAT_Col_Neutrones") + "&SP=68:" +
                          g.MsgQUI("EAT_Col_Electrones") + (iones ? "&SP=80:" + g.MsgQUI("EAT_Col_Carga") : "") + "&-B&LF";
  std::string st = g.MsgQUI(iones ? "EAT_Completar_Iones" : "EAT_Completar_Atomos") + ":&LF" + cab, so = cab;
  std::vector<int> hechos;
  for (int i = 0; i < n; ++i) {
    int k;
    do k = std::min(static_cast<int>(AleatorioEn(g.rnd, 1, 48, 1, 1)), 46);
    while (std::count(hechos.begin(), hechos.end(), k) && hechos.size() < 46);
    hechos.push_back(k);
    const Elemento& e = kElementos[k - 1];
    const int a = e.a[static_cast<int>(AleatorioEn(g.rnd, 0, 2, 1, 0))];
    int carga = 0;
    if (iones && e.cargas[0] != 0 && AzarSupera(g.rnd, 0.2)) {
      const int m = e.cargas[2] ? 3 : e.cargas[1] ? 2 : 1;
      carga = e.cargas[static_cast<int>(AleatorioEn(g.rnd, 0, m - 1, 1, 0))];
    }
    // What the row shows: the species as a symbol, or in full notation, or
    // only through its atomic number; then the mass number or the neutrons,
    // and the electrons or the charge.
    const int forma = Forma(g, 7, i);
    const bool completa = forma == 4;
    const bool sinSimbolo = forma == 5;
    bool verZ = sinSimbolo || (forma == 6 && AzarSupera(g.rnd, 0.4));
    bool verP = !verZ && sinSimbolo;
    bool verA = !completa && (forma == 0 || forma == 1 || (forma >= 5 && AzarSupera(g.rnd, 0.7)));
    bool verN = !completa && !verA;
    bool verQ = iones && !completa && (forma == 0 || forma == 2 || (forma >= 5 && AzarSupera(g.rnd, 0.6)));
    bool verE = !completa && !verQ && (iones || AzarSupera(g.rnd, 0.5));
    if (forma == 3 && AzarSupera(g.rnd, 0.2)) verP = true, verZ = false;
    if (sinSimbolo && AzarSupera(g.rnd, 0.5)) verP = true, verZ = false;
    auto celda = [](bool ver, int x) { return ver ? std::to_string(x) : std::string("?"); };
    const std::string letra = "&SP=3:&+B" + std::string(1, kLetras[static_cast<std::size_t>(i)]) + ")&-B";
    const std::string especie = sinSimbolo ? "?" : Especie(e, a, carga, completa);
    st += letra + "&SP=10:" + especie + "&SP=28:" + celda(verZ, e.z) + "&SP=36:" + celda(verA, a) + "&SP=44:" +
          celda(verP, e.z) + "&SP=56:" + celda(verN, a - e.z) + "&SP=68:" + celda(verE, e.z - carga) +
          (iones ? "&SP=80:" + (verQ ? CargaTexto(carga) : std::string("?")) : "") + "&LF";
    so += letra + "&SP=10:" + Especie(e, a, carga, true) + "&SP=28:" + std::to_string(e.z) + "&SP=36:" +
          std::to_string(a) + "&SP=44:" + std::to_string(e.z) + "&SP=56:" + std::to_string(a - e.z) + "&SP=68:" +
          std::to_string(e.z - carga) + (iones ? "&SP=80:" + CargaTexto(carga) : "") + "&LF";
  }
  g.GP_Statement = st + "&LF";
  g.GP_Solution = so;
}

}  // namespace

void Generador6(GenContext& g) {
  const int n = std::min(ItemsEjercicio(g), 27);
  std::string st = g.MsgQUI("CompletarReacNucleares") + ":&LF", so;
  std::vector<std::string> hechas;
  for (int i = 0; i < n; ++i) {
    std::string completa, hueca;
    for (int choques = 0; choques < 20; ++choques) {
      int fila = (g.GP_SeqB + i) % 9;
      if (fila == 0) fila = 9;
      if (AzarSupera(g.rnd, 0.9)) fila = static_cast<int>(AleatorioEn(g.rnd, 1, 9, 1, 1));
      const FilaNuclear& f = kFilas[fila - 1];
      const Nuclido x = Blanco(g, fila);
      const std::string nx = Nucleo(x.z, x.a), ny = Nucleo(x.z + f.dZ, x.a + f.dA);
      completa = Lado(nx, f.entra, false, false) + " &ars " + Lado(ny, f.sale, false, false);
      hueca = Lado(nx, f.entra, f.hueco == 0, f.hueco == 1) + " &ars " + Lado(ny, f.sale, f.hueco == 2, f.hueco == 3);
      if (std::find(hechas.begin(), hechas.end(), completa) == hechas.end()) break;
    }
    hechas.push_back(completa);
    const std::string letra = "&SP=10:&+B" + std::string(1, kLetras[static_cast<std::size_t>(i)]) + ")&-B  ";
    st += letra + hueca + "&LF";
    so += letra + completa + "&LF";
  }
  g.GP_Statement = st + "&LF";
  g.GP_Solution = so;
}

void Generador7(GenContext& g) { Particulas(g, true); }
void Generador12(GenContext& g) { Particulas(g, false); }

}  // namespace ss::mod::eat
