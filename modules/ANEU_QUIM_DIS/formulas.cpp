// Formulas: conversions among mass, moles, molecules and oxygen atoms
// (generator 6), percent composition (generator 7), and empirical and
// molecular formulas from composition, combustion and gas data (generator 8).
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ANEU_QUIM_DIS/dis.h"
#include "problems/fallos.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::dis {
namespace {

// Atomic masses in g/mol, in the order the statements list them. The last,
// calcium, serves only the fixed compounds of generator 7.
struct Elemento {
  std::string_view simbolo;
  double masa;
};
constexpr Elemento kElementos[30] = {
    {"H", 1.008},     {"Li", 6.939},    {"C", 12.011},    {"N", 14.007},   {"O", 15.999},
    {"Na", 22.99},    {"Al", 26.982},   {"Si", 28.086},   {"P", 30.974},   {"S", 32.066},
    {"Cl", 35.453},   {"K", 39.098},    {"Cr", 51.996},   {"Mn", 54.938},  {"Fe", 55.846},
    {"Co", 58.933},   {"Ni", 58.693},   {"Cu", 63.546},   {"As", 74.922},  {"Se", 78.96},
    {"Br", 79.904},   {"Ag", 107.868},  {"Sn", 118.71},   {"Sb", 121.757}, {"Te", 127.6},
    {"I", 126.904},   {"Pt", 195.078},  {"Au", 196.967},  {"Pb", 207.19},  {"Ca", 40.078},
};

constexpr double kAvogadro = 6.0221415E23;

// The nine formula types (X2Y, X2Y3, XY2, HXO2, HXO3, HXO4, H2XO3, H2XO4,
// H2X2O7), each with the real compounds of that type that the exercises use:
// element-and-count pairs in formula order, compounds parted by ";". A "*"
// marks an ionic or network solid, which is counted in formula units rather
// than molecules. Generator 6 counts oxygen atoms, so its binary compounds are
// the oxides; generator 7 adds the sulfides, selenides and tellurides.
struct Plantilla {
  std::string_view oxidos;  // the binary types' oxides, or every compound of an oxoacid type
  std::string_view otros;   // the binary types' other compounds
};
constexpr Plantilla kPlantillas[9] = {
    {"H2 O1;*Li2 O1;*Na2 O1;*K2 O1;*Cu2 O1;*Ag2 O1;Cl2 O1",
     "H2 S1;H2 Se1;H2 Te1;*Li2 S1;*Na2 S1;*K2 S1;*Cu2 S1;*Ag2 S1;*Na2 Se1;*Ag2 Se1;*K2 Te1"},
    {"*Cr2 O3;*Mn2 O3;*Fe2 O3;*Al2 O3;N2 O3;P2 O3;As2 O3;*Sb2 O3",
     "*Al2 S3;*Cr2 S3;As2 S3;*Sb2 S3;As2 Se3;*Sb2 Se3;*Sb2 Te3;*Al2 Se3"},
    {"*Pb1 O2;*Pt1 O2;*Sn1 O2;S1 O2;C1 O2;*Si1 O2;Se1 O2;*Te1 O2",
     "C1 S2;C1 Se2;*Si1 S2;*Sn1 S2;*Pt1 S2;*Sn1 Se2"},
    {"H1 N1 O2;*Li1 N1 O2;*Na1 N1 O2;*K1 N1 O2;*Ag1 N1 O2;H1 Cl1 O2;*Na1 Cl1 O2;*K1 Cl1 O2;"
     "*Na1 As1 O2", ""},
    {"H1 N1 O3;*Li1 N1 O3;*Na1 N1 O3;*K1 N1 O3;*Ag1 N1 O3;H1 Cl1 O3;*Na1 Cl1 O3;*K1 Cl1 O3;"
     "*Ag1 Cl1 O3;H1 Br1 O3;*Na1 Br1 O3;*K1 Br1 O3;H1 I1 O3;*Na1 I1 O3;*K1 I1 O3;H1 P1 O3;"
     "*Na1 P1 O3", ""},
    {"H1 Cl1 O4;*Li1 Cl1 O4;*Na1 Cl1 O4;*K1 Cl1 O4;*Ag1 Cl1 O4;H1 Br1 O4;*K1 Br1 O4;H1 I1 O4;"
     "*Na1 I1 O4;*K1 I1 O4;H1 Mn1 O4;*Na1 Mn1 O4;*K1 Mn1 O4;*Ag1 Mn1 O4", ""},
    {"*Li2 S1 O3;*Na2 S1 O3;*K2 S1 O3;*Ag2 S1 O3;H2 C1 O3;*Li2 C1 O3;*Na2 C1 O3;*K2 C1 O3;"
     "*Ag2 C1 O3;*Li2 Si1 O3;*Na2 Si1 O3;*K2 Si1 O3;H2 Se1 O3;*Na2 Se1 O3;*K2 Se1 O3;"
     "*Na2 Te1 O3", ""},
    {"H2 S1 O4;*Li2 S1 O4;*Na2 S1 O4;*K2 S1 O4;*Ag2 S1 O4;H2 Se1 O4;*Na2 Se1 O4;*K2 Se1 O4;"
     "*Li2 Cr1 O4;*Na2 Cr1 O4;*K2 Cr1 O4;*Ag2 Cr1 O4;*Na2 Mn1 O4;*K2 Mn1 O4", ""},
    {"H2 S2 O7;*Na2 S2 O7;*K2 S2 O7;*Li2 Cr2 O7;*Na2 Cr2 O7;*K2 Cr2 O7;*Ag2 Cr2 O7", ""},
};

// The fixed compounds of generator 7 with their answers and elements.
struct CompuestoFijo {
  std::string_view formula;
  std::string_view respuesta;
  std::string_view elementos;
};
constexpr CompuestoFijo kCompuestosFijos[15] = {
    {"CH_3OH", "37&.49& % C,  12&.58& % H,  49&.93& % O", "C H O"},
    {"CH_3CH_2OH", "52&.14& % C,  13&.13& % H,  34&.73& % O", "C H O"},
    {"CH_3COOH", "40&.00& % C,  6&.71& % H,  53&.28& % O", "C H O"},
    {"CH_3NH_2", "38&.67& % C,  16&.23& % H,  45&.10& % N", "C H N"},
    {"C_3H_8", "81&.71& % C,  18&.29& % H", "C H"},
    {"C_4H_1_0", "82&.66& % C,  17&.34& % H", "C H"},
    {"C_5H_1_2", "83&.24& % C,  16&.76& % H", "C H"},
    {"C_6H_6", "92&.26& % C,  7&.74& % H", "C H"},
    {"K_3PO_4", "55&.26& % K,  14&.59& % P,  30&.15& % O", "K P O"},
    {"Ca_3(PO_4)_2", "38&.76& % Ca,  19&.97& % P,  41&.26& % O", "Ca P O"},
    {"(NH_4)_2S", "41&.11& % N,  11&.83& % H,  47&.06& % S", "N H S"},
    {"NH_3", "82&.24& % N,  17&.76& % H", "N H"},
    {"NaCl", "39&.34& % Na,  60&.66& % Cl", "Na Cl"},
    {"CH_3-NH-CH_3", "53&.28& % C,  15&.65& % H,  31&.07& % N", "C H N"},
    {"Al_2(SO_4)_3", "15&.77& % Al,  28&.12& % S,  56&.11& % O", "Al S O"},
};

double Dibuja(GenContext& g, double min, double max, double step, double noZero = 1) {
  return AleatorioEn(g.rnd, min, max, step, noZero);
}

// The words of `s` parted by blanks.
std::vector<std::string_view> Palabras(std::string_view s) {
  std::vector<std::string_view> out;
  while (!s.empty()) {
    const std::size_t blanco = s.find(' ');
    if (blanco != 0) out.push_back(s.substr(0, blanco));
    if (blanco == std::string_view::npos) break;
    s.remove_prefix(blanco + 1);
  }
  return out;
}

std::size_t IndiceElemento(std::string_view simbolo) {
  for (std::size_t i = 0; i < std::size(kElementos); ++i)
    if (kElementos[i].simbolo == simbolo) return i;
  throw GenFault::Subscript();
}

// A count as formula markup: 1 left out, each digit a subscript.
std::string Subindice(int n) {
  if (n == 1) return "";
  std::string out;
  for (char c : std::to_string(n)) out += std::string("_") + c;
  return out;
}

// "&+IAtomic masses: H = 1&.008,  O = 15&.999 &-I(g/mol)&LF" for the elements
// marked in `usados`, in table order.
std::string LineaMasas(GenContext& g, const std::vector<bool>& usados) {
  std::string lista;
  for (std::size_t i = 0; i < std::size(kElementos); ++i) {
    if (!usados[i]) continue;
    if (!lista.empty()) lista += ",  ";
    lista += std::string(kElementos[i].simbolo) + " = " + NumTexto(kElementos[i].masa);
  }
  if (lista.empty()) return "";
  return "&+I" + g.MsgQUI("Masas_Atomicas") + " " + lista + " &-I(g/mol)&LF";
}

// ---------------------------------------------------------------------------
// Compounds from the templates.

struct Atomos {
  std::size_t elemento;  // index in kElementos
  int n;
};

struct Compuesto {
  std::vector<Atomos> atomos;  // in template order
  std::string formula;         // markup
  double M = 0;                // g/mol
  int oxigenos = 0;
  bool ionico = false;         // counted in formula units, not molecules
};

// The entries of a list parted by ";".
std::vector<std::string_view> Entradas(std::string_view lista) {
  std::vector<std::string_view> out;
  while (!lista.empty()) {
    const std::size_t fin = lista.find(';');
    out.push_back(lista.substr(0, fin));
    if (fin == std::string_view::npos) break;
    lista.remove_prefix(fin + 1);
  }
  return out;
}

// A compound from its pairs ("*Na2 S1 O4").
Compuesto DeFormula(std::string_view pares) {
  Compuesto c;
  c.ionico = !pares.empty() && pares.front() == '*';
  if (c.ionico) pares.remove_prefix(1);
  for (std::string_view par : Palabras(pares)) {
    const std::string simbolo(par.substr(0, par.size() - 1));
    const int n = par.back() - '0';
    const std::size_t e = IndiceElemento(simbolo);
    c.atomos.push_back({e, n});
    c.formula += simbolo + Subindice(n);
    c.M += n * kElementos[e].masa;
    if (simbolo == "O") c.oxigenos += n;
  }
  return c;
}

// A compound of a random type. Generator 6 (`oxidos`) takes the binary types'
// oxides only, since its forms count oxygen atoms.
Compuesto CompuestoDePlantilla(GenContext& g, bool oxidos) {
  const Plantilla& p = At(kPlantillas, static_cast<long long>(Dibuja(g, 1, 9, 1)) - 1);
  std::vector<std::string_view> lista = Entradas(p.oxidos);
  if (!oxidos)
    for (std::string_view otro : Entradas(p.otros)) lista.push_back(otro);
  const auto k = static_cast<long long>(Dibuja(g, 1, static_cast<double>(lista.size()), 1)) - 1;
  return DeFormula(At(lista, k));
}

// Draws again until the formula is not among those the exercise already has.
template <typename F>
auto Distinto(std::vector<std::string>& usadas, F dibuja) {
  for (;;) {
    auto x = dibuja();
    const std::string& f = x.formula;
    if (std::find(usadas.begin(), usadas.end(), f) == usadas.end()) {
      usadas.push_back(f);
      return x;
    }
  }
}

// ---------------------------------------------------------------------------
// Generator 6: mass, moles, molecules and oxygen atoms.

enum class Magnitud { Masa, Moles, Moleculas, AtomosO };

// A form: its key, what it gives and what it asks.
struct FormaConversion {
  std::string_view clave;
  Magnitud dato, pedido;
};
constexpr FormaConversion kFormasConversion[10] = {
    {"Gramo_mol", Magnitud::Masa, Magnitud::Moles},
    {"Gramo_molec", Magnitud::Masa, Magnitud::Moleculas},
    {"Mol_gramo", Magnitud::Moles, Magnitud::Masa},
    {"Mol_molec", Magnitud::Moles, Magnitud::Moleculas},
    {"Molec_mol", Magnitud::Moleculas, Magnitud::Moles},
    {"Molec_gramo", Magnitud::Moleculas, Magnitud::Masa},
    {"Gramo_AtOx", Magnitud::Masa, Magnitud::AtomosO},
    {"Mol_AtOX", Magnitud::Moles, Magnitud::AtomosO},
    {"AtOX_gramo", Magnitud::AtomosO, Magnitud::Masa},
    {"AtoX_mol", Magnitud::AtomosO, Magnitud::Moles},
};

bool UsaMasa(const FormaConversion& f) { return f.dato == Magnitud::Masa || f.pedido == Magnitud::Masa; }
bool UsaAvogadro(const FormaConversion& f) {
  return f.dato == Magnitud::Moleculas || f.dato == Magnitud::AtomosO ||
         f.pedido == Magnitud::Moleculas || f.pedido == Magnitud::AtomosO;
}

// The moles of a quantity of the compound, and back.
double AMoles(Magnitud q, double x, const Compuesto& c) {
  switch (q) {
    case Magnitud::Masa: return Div(x, c.M);
    case Magnitud::Moles: return x;
    case Magnitud::Moleculas: return x / kAvogadro;
    case Magnitud::AtomosO: return Div(x, c.oxigenos * kAvogadro);
  }
  return x;
}
double DesdeMoles(Magnitud q, double n, const Compuesto& c) {
  switch (q) {
    case Magnitud::Masa: return n * c.M;
    case Magnitud::Moles: return n;
    case Magnitud::Moleculas: return n * kAvogadro;
    case Magnitud::AtomosO: return n * kAvogadro * c.oxigenos;
  }
  return n;
}

double DibujaMagnitud(GenContext& g, Magnitud q) {
  switch (q) {
    case Magnitud::Masa: return Dibuja(g, 20, 190, 1);
    case Magnitud::Moles: return Dibuja(g, 4, 150, 1) / 10;
    case Magnitud::Moleculas: return Dibuja(g, 2, 120, 1) * 1E23;
    case Magnitud::AtomosO: return Dibuja(g, 6, 120, 1) * 1E23;
  }
  return 0;
}

// What one counts of a compound: molecules, or formula units of an ionic or
// network solid.
std::string Particulas(GenContext& g, const Compuesto& c) {
  return g.MsgQUI(c.ionico ? "Unidades_formula" : "Moleculas");
}

std::string ConUnidad(GenContext& g, Magnitud q, double x, const Compuesto& c) {
  const std::string v = NumCifras(x, 4);
  switch (q) {
    case Magnitud::Masa: return v + "& g";
    case Magnitud::Moles: return v + "& mol";
    case Magnitud::Moleculas: return v + " " + Particulas(g, c);
    case Magnitud::AtomosO: return v + " " + g.MsgQUI("AtomOxig");
  }
  return v;
}

// The form of item i: the variant counter plus the item, now and then any.
const FormaConversion& FormaDeItem(GenContext& g, int item) {
  int f = Forma(g, 10, item);
  if (AzarSupera(g.rnd, 0.95)) f = static_cast<int>(Dibuja(g, 1, 10, 1)) - 1;
  return At(kFormasConversion, f);
}

// ---------------------------------------------------------------------------
// Generator 7: percent composition.

// "52&.14& % C,  13&.13& % H,  34&.73& % O" of a template compound.
std::string Composicion(const Compuesto& c) {
  std::string out;
  for (const Atomos& a : c.atomos) {
    if (!out.empty()) out += ",  ";
    const double p = 100 * a.n * Div(kElementos[a.elemento].masa, c.M);
    out += NumCifras(p, 4) + "& % " + std::string(kElementos[a.elemento].simbolo);
  }
  return out;
}

// ---------------------------------------------------------------------------
// Generator 8: empirical and molecular formulas of compounds of C, H and O.

constexpr double kMasaC = 12.011, kMasaH = 1.008, kMasaO = 15.999;
constexpr double kMasaCO2 = 44.009, kMasaH2O = 18.015;
constexpr double kR8 = 0.082057;    // atm·L/(mol·K)
constexpr double kKelvin8 = 273.15;

struct Molecula {
  int c = 0, h = 0, o = 0;
};

double MasaMolar(const Molecula& m) { return m.c * kMasaC + m.h * kMasaH + m.o * kMasaO; }

std::string Formula(const Molecula& m) {
  std::string f = "C" + Subindice(m.c) + "H" + Subindice(m.h);
  if (m.o > 0) f += "O" + Subindice(m.o);
  return f;
}

Molecula Empirica(const Molecula& m) {
  const int d = static_cast<int>(MCD(MCD(m.c, m.h), m.o));
  return {m.c / d, m.h / d, m.o / d};
}

// A real molecule: 1-10 carbon atoms (one only in methane), 0-2 oxygen atoms (at least one when
// `oxigeno`), and 0-5 rings or multiple bonds, so that the hydrogen count is
// even and at most 2C + 2. With `doblar`, six times in ten the molecule is
// doubled when the double is a molecule too, so that the molecular formula
// is a multiple of the empirical one more often. A `volatil` molecule, whose
// vapour the problem weighs, has at most five atoms of carbon and oxygen
// together, doubled or not, so that it boils well below the temperatures of
// its gas data.
Molecula DibujaMolecula(GenContext& g, bool oxigeno, bool doblar, bool volatil) {
  constexpr int kPesadosVolatil = 5;
  Molecula m;
  do {
    m.c = static_cast<int>(Dibuja(g, 1, 10, 1));
    m.o = oxigeno ? static_cast<int>(Dibuja(g, 1, 3, 1)) - 1 : 0;
    const int insaturaciones = static_cast<int>(Dibuja(g, 1, 6, 1)) - 1;
    m.h = 2 * m.c + 2 - 2 * insaturaciones;
  } while (m.h < 2 || (oxigeno && m.o == 0) || (m.c == 1 && m.h + m.o != 4) ||
           (volatil && m.c + m.o > kPesadosVolatil));
  if (doblar && m.h <= 2 * m.c && (!volatil || 2 * (m.c + m.o) <= kPesadosVolatil) &&
      AzarSupera(g.rnd, 0.4))
    m = {2 * m.c, 2 * m.h, 2 * m.o};
  return m;
}

// The value NumCifras(x, n) shows, for a positive x of the fixed form.
double Mostrado(double x, int n) { return RedondeaPot(x, std::floor(Log10(x)) - n); }

// A percentage as shown: two decimals.
double PorcentajeMostrado(double p) { return RedondeaPot(p, -3); }
std::string TextoPorcentaje(double p) { return NumCifras(p, p >= 10 ? 4 : 3) + "& %"; }

std::string Gramos(double x) { return NumCifras(x, 4) + "& g"; }

enum class Datos8 { Ninguno, MasaMolar, GasMPVT, GasDPT, Intervalo };
enum class Productos { CO2, H2O, Ambos };

// One problem of generator 8: the molecule, what the statement gives, and the
// numbers as the statement shows them.
struct Problema8 {
  Molecula mol, emp;
  bool combustion = false;
  Productos productos = Productos::Ambos;
  Datos8 datos = Datos8::Ninguno;
  double pC = 0, pH = 0;            // shown percentages
  double mComb = 0, mCO2 = 0, mH2O = 0;
  double mGas = 0, V = 0, T = 0, P = 0, d = 0;
  double mmMin = 0, mmMax = 0;
};

void DibujaDatosGas(GenContext& g, Problema8& p) {
  const double M = MasaMolar(p.mol);
  p.T = Dibuja(g, 130, 200, 1);
  p.P = Dibuja(g, 80, 150, 1) / 100;
  const double RT = kR8 * (p.T + kKelvin8);
  if (p.datos == Datos8::GasMPVT) {
    p.mGas = Dibuja(g, 50, 500, 1) / 100;
    p.V = Mostrado(p.mGas * Div(RT, p.P * M), 4);
  } else {
    p.d = Mostrado(p.P * Div(M, RT), 4);
  }
}

void DibujaDatos(GenContext& g, Problema8& p) {
  const double M = MasaMolar(p.mol);
  if (p.combustion) {
    p.mComb = Dibuja(g, 50, 500, 1) / 100;
    p.mCO2 = Mostrado(p.mComb * p.mol.c * Div(kMasaCO2, M), 4);
    p.mH2O = Mostrado(p.mComb * p.mol.h / 2.0 * Div(kMasaH2O, M), 4);
  } else {
    p.pC = PorcentajeMostrado(100 * p.mol.c * Div(kMasaC, M));
    p.pH = PorcentajeMostrado(100 * p.mol.h * Div(kMasaH, M));
  }
  if (p.datos == Datos8::GasMPVT || p.datos == Datos8::GasDPT) DibujaDatosGas(g, p);
  if (p.datos == Datos8::Intervalo) {
    const double Me = MasaMolar(p.emp);
    const double k = static_cast<double>(p.mol.c / p.emp.c);
    p.mmMin = std::floor((k - 0.4) * Me);
    p.mmMax = std::ceil((k + 0.4) * Me);
  }
}

std::string_view ClaveProductos(Productos q) {
  switch (q) {
    case Productos::CO2: return "Comb_forma_m_CO2";
    case Productos::H2O: return "Comb_forma_m_H2O";
    case Productos::Ambos: return "Comb_forma_m_CO2_H2O";
  }
  return "";
}

std::string_view ClavePregunta(Datos8 d) {
  switch (d) {
    case Datos8::Ninguno: return "Hallar_su_FEmpir";
    case Datos8::MasaMolar: return "FEmp_FMolec_de_MM";
    case Datos8::GasMPVT: return "FEmp_FMolec_de_mPVT_GAS";
    case Datos8::GasDPT: return "FEmp_FMolec_de_dPT_GAS";
    case Datos8::Intervalo: return "Hallar_FEmp_FMolec";
  }
  return "";
}

void Enunciado8(GenContext& g, const Problema8& p) {
  const bool conO = p.mol.o > 0;
  std::string st;
  if (p.combustion)
    st = g.MsgQUI(conO ? "Comb_m_CHO" : "Comb_m_CH") + " " + g.MsgQUI(ClaveProductos(p.productos));
  else
    st = g.MsgQUI(conO ? "%_C_H_de_CHO" : "%_C_de_CH");
  st += " " + g.MsgQUI(ClavePregunta(p.datos)) + "&LF";
  std::vector<bool> usados(std::size(kElementos), false);
  usados[IndiceElemento("C")] = usados[IndiceElemento("H")] = true;
  usados[IndiceElemento("O")] = conO || p.combustion;
  st += LineaMasas(g, usados);
  if (p.datos == Datos8::GasMPVT || p.datos == Datos8::GasDPT)
    st += "&+IR&-I = " + NumTexto(kR8) + "& atm\xB7L/(mol\xB7K)&LF";
  const std::string celsius = "& \xB0" "C";
  Reemplaza(st, "%PTC%", TextoPorcentaje(p.pC));
  Reemplaza(st, "%PTH%", TextoPorcentaje(p.pH));
  Reemplaza(st, "%MCOMB%", Gramos(p.mComb));
  Reemplaza(st, "%MCO2%", Gramos(p.mCO2));
  Reemplaza(st, "%MH2O%", Gramos(p.mH2O));
  Reemplaza(st, "%MGAS%", Gramos(p.mGas));
  Reemplaza(st, "%V%", NumCifras(p.V, 4) + "& L");
  Reemplaza(st, "%DEN%", NumCifras(p.d, 4) + "& g/L");
  Reemplaza(st, "%T%", NumTexto(p.T) + celsius);
  Reemplaza(st, "%P%", NumTexto(p.P) + "& atm");
  Reemplaza(st, "%MM%", NumTexto(RedondeaPot(MasaMolar(p.mol), -3)) + "& g/mol");
  Reemplaza(st, "%MMIN%", NumTexto(p.mmMin) + "& g/mol");
  Reemplaza(st, "%MMAX%", NumTexto(p.mmMax) + "& g/mol");
  g.GP_Statement = st;
}

// The masses of C, H and O in the burnt sample, from the products shown.
void MasasDeCombustion(const Problema8& p, double& mC, double& mH, double& mO) {
  const bool conCO2 = p.productos != Productos::H2O;
  const bool conH2O = p.productos != Productos::CO2;
  mC = conCO2 ? p.mCO2 * kMasaC / kMasaCO2 : 0;
  mH = conH2O ? p.mH2O * 2 * kMasaH / kMasaH2O : 0;
  if (!conCO2) mC = p.mComb - mH;
  if (!conH2O) mH = p.mComb - mC;
  mO = p.mol.o > 0 ? p.mComb - mC - mH : 0;
}

// a) the amounts of each element, their ratio and the empirical formula.
std::string SolucionEmpirica(GenContext& g, const Problema8& p) {
  const bool conO = p.mol.o > 0;
  std::string s;
  double nC, nH, nO;
  if (p.combustion) {
    double mC, mH, mO;
    MasasDeCombustion(p, mC, mH, mO);
    s += "m_C = " + Gramos(mC) + ",  m_H = " + Gramos(mH);
    if (conO) s += ",  m_O = " + Gramos(mO);
    s += ";  ";
    nC = mC / kMasaC, nH = mH / kMasaH, nO = mO / kMasaO;
  } else {
    nC = p.pC / kMasaC, nH = p.pH / kMasaH, nO = (100 - p.pC - p.pH) / kMasaO;
  }
  const double menor = conO ? std::min({nC, nH, nO}) : std::min(nC, nH);
  s += "n_C = " + NumCifras(nC, 4) + ",  n_H = " + NumCifras(nH, 4);
  if (conO) s += ",  n_O = " + NumCifras(nO, 4);
  s += "& mol;  C : H";
  if (conO) s += " : O";
  s += " = " + NumCifras(Div(nC, menor), 3) + " : " + NumCifras(Div(nH, menor), 3);
  if (conO) s += " : " + NumCifras(Div(nO, menor), 3);
  return s + "&LF" + g.MsgQUI("Formula_empirica") + " " + Formula(p.emp) + "&LF";
}

// b) the molar mass from the data, the multiple and the molecular formula.
std::string SolucionMolecular(GenContext& g, const Problema8& p) {
  const double Me = MasaMolar(p.emp);
  const int k = p.mol.c / p.emp.c;
  double M = 0;
  switch (p.datos) {
    case Datos8::MasaMolar: M = RedondeaPot(MasaMolar(p.mol), -3); break;
    case Datos8::GasMPVT: M = Div(p.mGas * kR8 * (p.T + kKelvin8), p.P * p.V); break;
    case Datos8::GasDPT: M = Div(p.d * kR8 * (p.T + kKelvin8), p.P); break;
    default: M = k * Me; break;
  }
  return "M = " + NumCifras(M, 4) + "& g/mol;  M_e_m_p = " + NumCifras(Me, 4) +
         "& g/mol;  M / M_e_m_p = " + NumTexto(k) + "&LF" + g.MsgQUI("Formula_molecular") +
         " " + Formula(p.mol) + "&LF";
}

// The form: 0-2 from a composition, 3-5 from a combustion; two further
// choices from the variant counter pick the products weighed and the gas data.
Problema8 PlanteaProblema8(GenContext& g) {
  const int forma = Forma(g, 6);
  const long long seq = std::max(0, g.GP_SeqB);
  const int eleccion1 = static_cast<int>(seq / 6 % 3);
  const int eleccion2 = static_cast<int>(seq / 18 % 3);
  Problema8 p;
  p.combustion = forma >= 3;
  bool oxigeno = AzarSupera(g.rnd, 0.3);  // kept seven times in ten
  constexpr Datos8 kDatosComposicion[3] = {Datos8::MasaMolar, Datos8::GasMPVT, Datos8::Intervalo};
  constexpr Datos8 kDatosCombustion[3] = {Datos8::MasaMolar, Datos8::Intervalo, Datos8::GasDPT};
  switch (forma) {
    case 0: oxigeno = false; break;
    case 1: oxigeno = true; break;
    case 2: p.datos = kDatosComposicion[eleccion2]; break;
    case 4: p.datos = Datos8::GasDPT; break;
    case 5: p.datos = kDatosCombustion[eleccion2]; break;
    default: break;
  }
  const bool gas = p.datos == Datos8::GasMPVT || p.datos == Datos8::GasDPT;
  p.mol = DibujaMolecula(g, oxigeno, p.datos != Datos8::Ninguno, gas);
  p.emp = Empirica(p.mol);
  // A hydrocarbon may be found from either product; with oxygen both are needed.
  p.productos = oxigeno ? Productos::Ambos : static_cast<Productos>(eleccion1);
  DibujaDatos(g, p);
  return p;
}

}  // namespace

void Generador6(GenContext& g) {
  const int items = ItemsEjercicio(g);
  std::vector<bool> usados(std::size(kElementos), false);
  bool avogadro = false;
  std::string enunciado = g.MsgQUI("ConvertirMolMasaMolec") + "&LF";
  std::string solucion;
  std::vector<std::string> formulas;
  for (int i = 1; i <= items; ++i) {
    const Compuesto c = Distinto(formulas, [&] { return CompuestoDePlantilla(g, true); });
    const FormaConversion& f = FormaDeItem(g, i);
    const double dato = DibujaMagnitud(g, f.dato);
    const double pedido = DesdeMoles(f.pedido, AMoles(f.dato, dato, c), c);
    std::string item = g.MsgQUI(f.clave);
    Reemplaza(item, "%C%", c.formula);
    Reemplaza(item, "%M%", NumCifras(dato, 4) + "& g");
    Reemplaza(item, "%N%", NumCifras(dato, 4) + "& mol");
    Reemplaza(item, "%NM%", NumCifras(dato, 4));
    Reemplaza(item, "%AO%", NumCifras(dato, 4));
    Reemplaza(item, "%MOLEC%", Particulas(g, c));
    enunciado += Etiqueta(i) + item + "&LF";
    solucion += Etiqueta(i) + ConUnidad(g, f.pedido, pedido, c);
    if (UsaMasa(f)) {
      solucion += "   (M = " + NumTexto(RedondeaPot(c.M, -4)) + "& g/mol)";
      for (const Atomos& a : c.atomos) usados[a.elemento] = true;
    }
    solucion += "&LF";
    avogadro = avogadro || UsaAvogadro(f);
  }
  enunciado += LineaMasas(g, usados);
  if (avogadro)
    enunciado += "&+I" + g.MsgQUI("Numero_Avogadro") + "&-I " + NumCifras(kAvogadro, 8) + "& mol^-^1&LF";
  g.GP_Statement = enunciado;
  g.GP_Solution = solucion;
}

void Generador7(GenContext& g) {
  const int items = ItemsEjercicio(g);
  std::vector<bool> usados(std::size(kElementos), false);
  std::string lista;
  std::string solucion;
  std::vector<std::string> formulas;
  struct Item {
    std::string formula, respuesta;
    std::vector<std::size_t> elementos;
  };
  for (int i = 1; i <= items; ++i) {
    const Item it = Distinto(formulas, [&] {
      Item x;
      if (AzarSupera(g.rnd, 0.5)) {
        const CompuestoFijo& f = At(kCompuestosFijos, static_cast<long long>(Dibuja(g, 1, 15, 1)) - 1);
        x.formula = std::string(f.formula);
        x.respuesta = std::string(f.respuesta);
        for (std::string_view s : Palabras(f.elementos)) x.elementos.push_back(IndiceElemento(s));
      } else {
        const Compuesto c = CompuestoDePlantilla(g, false);
        x.formula = c.formula;
        x.respuesta = Composicion(c);
        for (const Atomos& a : c.atomos) x.elementos.push_back(a.elemento);
      }
      return x;
    });
    for (std::size_t e : it.elementos) usados[e] = true;
    const std::string& formula = it.formula;
    const std::string& respuesta = it.respuesta;
    // Four formulas a line, at tab stops a quarter of the width apart.
    const int columna = (i - 1) % 4;
    if (columna > 0) lista += "&SP=" + std::to_string(25 * columna) + ":";
    lista += Etiqueta(i) + formula;
    if (columna == 3 || i == items) lista += "&LF";
    solucion += Etiqueta(i) + formula + ":  " + respuesta + "&LF";
  }
  g.GP_Statement = g.MsgQUI("HallarComposicCentesimal") + "&LF" + lista + LineaMasas(g, usados);
  g.GP_Solution = solucion;
}

void Generador8(GenContext& g) {
  const Problema8 p = PlanteaProblema8(g);
  Enunciado8(g, p);
  if (p.datos == Datos8::Ninguno) {
    g.GP_Solution = SolucionEmpirica(g, p);
  } else {
    g.GP_Solution = Etiqueta(1) + SolucionEmpirica(g, p) + Etiqueta(2) + SolucionMolecular(g, p);
  }
}

}  // namespace ss::mod::dis
