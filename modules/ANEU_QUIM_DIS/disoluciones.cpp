// Solutions: mass percent and density, molarity and molality, dilution,
// boiling and freezing points, osmotic and vapour pressure.
//
// Each generator picks its form from the variant counter, draws the story of a
// solution, tests it and draws again while it does not fit, and then builds
// the statement from its message key and the solution as markup. A datum the
// student is given is shown rounded, and every answer is worked out from the
// data exactly as shown, so the printed answer is the one the student reaches.
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "modules/ANEU_QUIM_DIS/densidades.h"
#include "modules/ANEU_QUIM_DIS/dis.h"
#include "problems/fallos.h"
#include "problems/numeros.h"

namespace ss::mod::dis {
namespace {

// ---- Constants --------------------------------------------------------------

constexpr double kMolarAgua = 18;       // g/mol
constexpr double kKe = 0.52;            // ebullioscopic constant of water, °C·kg/mol
constexpr double kKc = 1.86;            // cryoscopic constant of water, °C·kg/mol
constexpr double kR = 0.082057;         // atm·L/(mol·K)
constexpr double kCeroKelvin = 273.15;  // K at 0 °C
constexpr double kMmHgPorAtm = 760;
constexpr double kEbullicionAgua = 100;  // °C at normal pressure

// Degrees Celsius in the page's character set (0xB0 is the degree sign).
constexpr std::string_view kGradoC =
    "\xB0"
    "C";

// ---- Density tables -----------------------------------------------------------
//
// Mass percent against density in g/mL at 20 °C, from the standard handbook
// tables of concentrative properties of aqueous solutions. Each table ends at
// the strongest solution of its solute that exists: saturation for the salts
// and sugars, the concentrated reagent for the acids and ammonia.

struct Fila {
  double p, d;
};

constexpr Fila kH2SO4[] = {{0, 0.9982},  {1, 1.0051},  {2, 1.0118},  {4, 1.0250},  {6, 1.0385},
                           {8, 1.0522},  {10, 1.0661}, {12, 1.0802}, {14, 1.0947}, {16, 1.1094},
                           {18, 1.1243}, {20, 1.1394}, {24, 1.1704}, {28, 1.2023}, {30, 1.2185},
                           {35, 1.2599}, {40, 1.3028}, {45, 1.3476}, {50, 1.3951}, {55, 1.4453},
                           {60, 1.4983}, {65, 1.5533}, {70, 1.6105}, {75, 1.6692}, {80, 1.7272},
                           {85, 1.7786}, {90, 1.8144}, {92, 1.8240}, {94, 1.8312}, {96, 1.8355},
                           {98, 1.8361}};
constexpr Fila kHCl[] = {{0, 0.9982},  {1, 1.0032},  {2, 1.0082},  {4, 1.0181},  {6, 1.0279},
                         {8, 1.0376},  {10, 1.0474}, {12, 1.0574}, {14, 1.0675}, {16, 1.0776},
                         {18, 1.0878}, {20, 1.0980}, {22, 1.1083}, {24, 1.1187}, {26, 1.1290},
                         {28, 1.1392}, {30, 1.1493}, {32, 1.1593}, {34, 1.1691}, {36, 1.1789},
                         {37, 1.1837}};
constexpr Fila kHNO3[] = {{0, 0.9982},  {1, 1.0036},  {2, 1.0091},  {4, 1.0201},  {6, 1.0312},
                          {8, 1.0427},  {10, 1.0543}, {12, 1.0661}, {14, 1.0781}, {16, 1.0903},
                          {18, 1.1026}, {20, 1.1150}, {24, 1.1404}, {28, 1.1666}, {32, 1.1934},
                          {36, 1.2205}, {40, 1.2463}, {45, 1.2783}, {50, 1.3100}, {55, 1.3393},
                          {60, 1.3667}, {65, 1.3913}, {70, 1.4134}};
constexpr Fila kNH3[] = {{0, 0.9982},  {1, 0.9939},  {2, 0.9895},  {4, 0.9811},  {6, 0.9730},
                         {8, 0.9651},  {10, 0.9575}, {12, 0.9501}, {14, 0.9430}, {16, 0.9362},
                         {18, 0.9295}, {20, 0.9229}, {22, 0.9164}, {24, 0.9101}, {26, 0.9040},
                         {28, 0.8980}, {30, 0.8920}};
constexpr Fila kNaOH[] = {{0, 0.9982},  {1, 1.0095},  {2, 1.0207},  {4, 1.0428},  {6, 1.0648},
                          {8, 1.0869},  {10, 1.1089}, {12, 1.1309}, {14, 1.1530}, {16, 1.1751},
                          {18, 1.1972}, {20, 1.2191}, {24, 1.2629}, {28, 1.3064}, {30, 1.3279},
                          {35, 1.3798}, {40, 1.4300}, {45, 1.4779}, {50, 1.5253}};
constexpr Fila kKOH[] = {{0, 0.9982},  {1, 1.0083},  {2, 1.0175},  {4, 1.0359},  {6, 1.0544},
                         {8, 1.0730},  {10, 1.0918}, {12, 1.1108}, {14, 1.1299}, {16, 1.1493},
                         {18, 1.1688}, {20, 1.1884}, {24, 1.2286}, {28, 1.2697}, {30, 1.2905},
                         {35, 1.3440}, {40, 1.3991}, {45, 1.4558}, {50, 1.5143}};
constexpr Fila kAcetico[] = {{0, 0.9982},  {1, 0.9996},  {2, 1.0012},  {4, 1.0040},  {6, 1.0069},
                             {8, 1.0097},  {10, 1.0125}, {12, 1.0151}, {14, 1.0177}, {16, 1.0204},
                             {18, 1.0229}, {20, 1.0254}, {24, 1.0302}, {28, 1.0349}, {30, 1.0370},
                             {40, 1.0488}, {50, 1.0575}, {60, 1.0642}, {70, 1.0685}, {80, 1.0700},
                             {90, 1.0661}, {100, 1.0498}};
constexpr Fila kH3PO4[] = {{0, 0.9982},  {1, 1.0038},  {2, 1.0092},  {4, 1.0200},  {6, 1.0309},
                           {8, 1.0420},  {10, 1.0532}, {12, 1.0647}, {14, 1.0764}, {16, 1.0884},
                           {18, 1.1005}, {20, 1.1129}, {24, 1.1385}, {28, 1.1655}, {30, 1.1794},
                           {35, 1.2160}, {40, 1.2540}, {50, 1.3350}, {60, 1.4260}, {70, 1.5260},
                           {80, 1.6330}, {85, 1.6890}};
constexpr Fila kNaCl[] = {{0, 0.9982},  {1, 1.0053},  {2, 1.0125},  {4, 1.0268},  {6, 1.0413},
                          {8, 1.0559},  {10, 1.0707}, {12, 1.0857}, {14, 1.1009}, {16, 1.1162},
                          {18, 1.1319}, {20, 1.1478}, {22, 1.1640}, {24, 1.1804}, {26, 1.1972}};
constexpr Fila kSacarosa[] = {{0, 0.9982},  {1, 1.0021},  {2, 1.0060},  {4, 1.0139},  {6, 1.0219},
                              {8, 1.0299},  {10, 1.0381}, {12, 1.0465}, {14, 1.0549}, {16, 1.0635},
                              {18, 1.0722}, {20, 1.0810}, {24, 1.0990}, {28, 1.1175}, {30, 1.1270},
                              {35, 1.1513}, {40, 1.1765}, {45, 1.2025}, {50, 1.2296}, {55, 1.2575},
                              {60, 1.2865}, {65, 1.3163}};
constexpr Fila kGlucosa[] = {{0, 0.9982},  {1, 1.0022},  {2, 1.0060},  {4, 1.0137},  {6, 1.0214},
                             {8, 1.0292},  {10, 1.0371}, {12, 1.0450}, {14, 1.0530}, {16, 1.0611},
                             {18, 1.0693}, {20, 1.0776}, {24, 1.0944}, {28, 1.1116}};

std::span<const Fila> Tabla(Soluto s) {
  switch (s) {
    case Soluto::H2SO4: return kH2SO4;
    case Soluto::HCl: return kHCl;
    case Soluto::HNO3: return kHNO3;
    case Soluto::NH3: return kNH3;
    case Soluto::NaOH: return kNaOH;
    case Soluto::KOH: return kKOH;
    case Soluto::Acetico: return kAcetico;
    case Soluto::H3PO4: return kH3PO4;
    case Soluto::NaCl: return kNaCl;
    case Soluto::Sacarosa: return kSacarosa;
    case Soluto::Glucosa: break;
  }
  return kGlucosa;
}

// ---- Solutes ----------------------------------------------------------------

// Generator 1: percent and density need no molar mass.
struct SolutoG1 {
  std::string_view clave;
  Soluto soluto;
};

constexpr SolutoG1 kSolutosG1[10] = {
    {"N_NaCl", Soluto::NaCl},   {"N_azucar", Soluto::Sacarosa}, {"N_glucosa", Soluto::Glucosa},
    {"N_NH3", Soluto::NH3},     {"N_HNO3", Soluto::HNO3},       {"N_HCl_ac", Soluto::HCl},
    {"N_H2SO4", Soluto::H2SO4}, {"N_NaOH", Soluto::NaOH},       {"N_KOH", Soluto::KOH},
    {"N_CH3COOH", Soluto::Acetico},
};

// Generators 2 and 3: the atomic masses the statement shows (water's H and O
// among them), the molar mass they give, the solute's density table, the
// weakest stock solution of it that the dilution problems start from, and
// whether the solute is sold as a solution (its commercial product is then
// no purer than its strongest solution) or as a solid.
struct SolutoMolar {
  std::string_view clave;
  std::string_view masas;
  double masaMolar;
  Soluto soluto;
  double stockMinimo;
  bool liquido;
};

constexpr SolutoMolar kSolutosMolares[10] = {
    {"NTS_H2SO4", "H=1    S=32    O=16", 98, Soluto::H2SO4, 30, true},
    {"NTS_H3PO4", "H=1    P=31    O=16", 98, Soluto::H3PO4, 30, true},
    {"N_CH3COOH", "C=12    O=16    H=1", 60, Soluto::Acetico, 30, true},
    {"N_NaCl", "Na=23    Cl=35&.5    O=16    H=1", 58.5, Soluto::NaCl, 15, false},
    {"NTS_HNO3", "H=1    N=14    O=16", 63, Soluto::HNO3, 30, true},
    {"N_HCl_ac", "H=1    Cl=35&.5    O=16", 36.5, Soluto::HCl, 25, true},
    {"N_NaOH", "Na=23    O=16    H=1", 40, Soluto::NaOH, 20, false},
    {"N_KOH", "K=39&.1   O=16    H=1", 56.1, Soluto::KOH, 20, false},
    {"NTS_sacarosa", "C=12    H=1    O=16", 342, Soluto::Sacarosa, 30, false},
    {"N_NH3", "N=14    H=1    O=16", 17, Soluto::NH3, 15, true},
};

// Generators 5 and 10: non-electrolytes, with the atomic masses that give
// their molar mass and water's. Urea and glucose stand twice: they weigh double.
struct NoElectrolito {
  std::string_view clave;
  std::string_view formula;
  std::string_view masas;
  double masaMolar;
};

constexpr NoElectrolito kNoElectrolitos[8] = {
    {"N_urea", "CO(NH_2)_2", "H=1    C=12    N=14    O=16", 60},
    {"N_glicerol", "C_3H_8O_3", "H=1    C=12    O=16", 92},
    {"N_nicotina", "C_1_0H_1_4N_2", "H=1    C=12    N=14    O=16", 162},
    {"N_sacarosa", "C_1_2H_2_2O_1_1", "H=1    C=12    O=16", 342},
    {"N_etilenglicol", "C_2H_6O_2", "H=1    C=12    O=16", 62},
    {"N_glucosa", "C_6H_1_2O_6", "H=1    C=12    O=16", 180},
    {"N_urea", "CO(NH_2)_2", "H=1    C=12    N=14    O=16", 60},
    {"N_glucosa", "C_6H_1_2O_6", "H=1    C=12    O=16", 180},
};

// Water alone, for a problem whose solute is the unknown.
constexpr std::string_view kMasasAgua = "H=1    O=16";

// Vapour pressure of pure water in mmHg at 10, 15, ... 50 °C.
constexpr double kPresionVaporAgua[9] = {9.209,  12.788, 17.535, 23.756, 31.824,
                                         42.175, 55.324, 71.882, 92.511};

// ---- Drawing and rounding ---------------------------------------------------

// A whole-number draw from 1 to n picks a row of a table.
template <typename T, std::size_t N>
const T& Elige(GenContext& g, const T (&tabla)[N]) {
  const double k = AleatorioEn(g.rnd, 1, static_cast<double>(N), 1, 1);
  return At(tabla, static_cast<long long>(std::nearbyint(k)) - 1);
}

double Redondea(double x) { return RedondeaRespuesta(x); }

// The value NumCifras(x, n) shows, as a number.
double Cifras(double x, int n) {
  const double a = std::fabs(x);
  if (a == 0) return 0;
  const double e = std::floor(std::log(a) / std::log(10.0));
  return (x < 0 ? -1 : 1) * RedondeaPot(a, e - n);
}

// ---- Text -------------------------------------------------------------------

// An answer with its unit.
std::string Respuesta(double x, std::string_view unidad) {
  return TextoRespuesta(x) + "& " + std::string(unidad);
}

std::string ConCifras(double x, int cifras, std::string_view unidad) {
  return NumCifras(x, cifras) + "& " + std::string(unidad);
}

// A one-part answer, set at the first tab stop.
std::string Unica(const std::string& respuesta) { return "&SP=10:" + respuesta + "&LF"; }

// The labelled parts a), b) ... of an answer, one a line.
std::string Partes(std::initializer_list<std::string> partes) {
  std::string s;
  int i = 0;
  for (const std::string& p : partes) s += Etiqueta(++i) + p + "&LF";
  return s;
}

// Several values of one part.
std::string Lista(std::initializer_list<std::string> valores) {
  std::string s;
  for (const std::string& v : valores) s += (s.empty() ? "" : ",  ") + v;
  return s;
}

using Marcas = std::initializer_list<std::pair<std::string_view, std::string>>;

void Rellena(std::string& texto, Marcas marcas) {
  for (const auto& [marca, valor] : marcas) Reemplaza(texto, marca, valor);
}

std::string Enunciado(GenContext& g, std::string_view clave) { return g.MsgQUI(clave) + ".&LF"; }

// The line of atomic masses under a statement.
std::string LineaMasas(GenContext& g, std::string_view masas) {
  return "&+I" + g.MsgQUI("Masas_atomicas") + " " + std::string(masas) + " &-I(g/mol)&LF";
}

// The solute's name joined to its preposition ("of sulfuric acid").
std::string DeSoluto(GenContext& g, const std::string& nombre) {
  std::string t = g.MsgQUI("De_soluto");
  Reemplaza(t, "%NS%", nombre);
  return t;
}

// A number with the article that is read before it ("an 80").
std::string Articulado(double x) { return ArticuloAn(x, false) + NumTexto(x); }

}  // namespace

double RedondeaRespuesta(double x) {
  const double a = std::fabs(x);
  if (a >= 1000) return RedondeaPot(x, -2);
  if (a >= 1 || a == 0) return RedondeaPot(x, -3);
  return RedondeaPot(x, std::floor(std::log10(a)) - 3);
}

std::string TextoRespuesta(double x) {
  const double r = RedondeaRespuesta(x);
  std::string t = NumTexto(r);
  if (r == 0) return t;
  // Count the significant digits shown and add the zeros that are missing.
  int cifras = 0;
  bool significativa = false;
  for (char c : t) {
    if (c >= '1' && c <= '9') significativa = true;
    if (significativa && c >= '0' && c <= '9') ++cifras;
  }
  if (t.find("&.") == std::string::npos) t += "&.";
  for (; cifras < 3; ++cifras) t += '0';
  return t;
}

double Densidad(Soluto s, double p) {
  const std::span<const Fila> t = Tabla(s);
  if (!(p >= 0 && p <= t.back().p)) throw GenFault::InvalidArgument();
  std::size_t i = 1;
  while (i + 1 < t.size() && t[i].p < p) ++i;
  const Fila& a = t[i - 1];
  const Fila& b = t[i];
  return a.d + (b.d - a.d) * (p - a.p) / (b.p - a.p);
}

double PorcentajeMaximo(Soluto s) { return Tabla(s).back().p; }

// ---- Generator 1: mass percent, density, grams per litre -------------------

namespace {

constexpr std::string_view kClavesG1[7] = {
    "TPS_de_MS_MDT",    "MS_MDT_de_MD_TPS",    "MS_MDT_MD_GL_de_VD_TPS_DEN", "TPS_VD_GL_de_MS_MDT_DEN",
    "MD_MDT_de_MS_TPS", "MS_TPS_de_VD_GL_DEN", "TPS_GL_de_MS_MDT_VD"};

// The solution as the statement shows it: solute, water and solution in g,
// percent, density in g/mL, volume in mL, concentration in g/L. The volume
// is whole millilitres and the concentration two decimals, as a student
// would measure them; every answer starts again from these shown values.
struct DisolucionG1 {
  double ms, agua, md, p, d, vd, gl;
};

// A solution no stronger than the solute's saturation or commercial strength.
DisolucionG1 SorteaG1(GenContext& g, Soluto soluto) {
  DisolucionG1 x{};
  do {
    x.ms = AleatorioEn(g.rnd, 5, 90, 1, 1);
    const double factor = AleatorioEn(g.rnd, 3, 8, 1, 1);
    const double resto = AleatorioEn(g.rnd, 50, 99, 1, 1);
    x.md = factor * x.ms + resto;
    x.agua = x.md - x.ms;
    x.p = RedondeaPot(Div(x.ms, x.md) * 100, -3);
  } while (x.p > PorcentajeMaximo(soluto));
  x.d = RedondeaPot(Densidad(soluto, x.p), -4);
  x.vd = std::floor(Div(x.md, x.d) + 0.5);
  x.gl = RedondeaPot(Div(x.ms, x.vd) * 1000, -3);
  return x;
}

std::string G(double x) { return Respuesta(x, "g"); }
std::string Pct(double x) { return Respuesta(x, "%"); }
std::string GL(double x) { return Respuesta(x, "g/L"); }

// Each form's answers from the data its statement gives.
std::string SolucionG1(int forma, const DisolucionG1& x) {
  switch (forma) {
    case 1:  // solute and water
      return Unica(Pct(Div(x.ms, x.ms + x.agua) * 100));
    case 2: {  // solution and percent
      const double ms = x.md * x.p / 100;
      return Partes({G(ms), G(x.md - ms)});
    }
    case 3: {  // volume, percent, density
      const double md = x.vd * x.d, ms = md * x.p / 100;
      return Partes({Lista({G(ms), G(md - ms), G(md)}), GL(Div(ms, x.vd) * 1000)});
    }
    case 4: {  // solute, water, density
      const double md = x.ms + x.agua, vd = Div(md, x.d);
      return Partes({Lista({Respuesta(vd, "mL"), Pct(Div(x.ms, md) * 100)}), GL(Div(x.ms, vd) * 1000)});
    }
    case 5: {  // solute and percent
      const double md = Div(x.ms * 100, x.p);
      return Partes({G(md - x.ms), G(md)});
    }
    case 6: {  // volume, g/L, density
      const double ms = x.gl * x.vd / 1000;
      return Partes({G(ms), Pct(Div(ms, x.vd * x.d) * 100)});
    }
    default:  // solute, water, volume
      return Partes({Pct(Div(x.ms, x.ms + x.agua) * 100), GL(Div(x.ms, x.vd) * 1000)});
  }
}

}  // namespace

void Generador1(GenContext& g) {
  const int forma = Forma(g, 7) + 1;
  const SolutoG1& soluto = Elige(g, kSolutosG1);
  const DisolucionG1 x = SorteaG1(g, soluto.soluto);

  g.GP_Statement = Enunciado(g, At(kClavesG1, forma - 1));
  const std::string ns = g.MsgQUI(soluto.clave);
  Rellena(g.GP_Statement, {{"%DEN%", NumTexto(x.d)},
                           {"%GL%", NumTexto(x.gl)},
                           {"%MS%", NumTexto(x.ms)},
                           {"%MDT%", NumTexto(x.agua)},
                           {"%MD%", NumTexto(x.md)},
                           {"%NS%", ns},
                           {"%TPS%", NumTexto(x.p)},
                           {"%deNS%", DeSoluto(g, ns)},
                           {"%VD%", NumTexto(x.vd)},
                           {"%AAN_MD%", Articulado(x.md)},
                           {"%AAN_VD%", Articulado(x.vd)}});
  g.GP_Solution = SolucionG1(forma, x);
}

// ---- Generator 2: molarity, molality, mole fraction -------------------------

namespace {

constexpr std::string_view kClavesG2[9] = {"MLR_de_MS_VD",
                                           "MS_N_de_VD_MLR",
                                           "MLL_XS_de_MS_MDT",
                                           "MLR_MLL_TPS_de_MS_MDT_DEN",
                                           "MS_MDT_MLR_MLL_de_VD_TPS_DEN",
                                           "MDT_MLR_TPS_XS_de_MS_VD_DEN",
                                           "MLR_de_MSIMP_RIQ_CD",
                                           "RIQ_de_MSIMP_VD_MLR",
                                           "MSIMP_de_VD_MLR_RIQ"};

// The data a statement can give, as shown: molar mass, volume of solution in
// mL, masses of solute and water in g, density in g/mL, percent, molarity,
// mass of the impure product in g and its purity in percent.
struct DatosG2 {
  double masaMolar, vd, ms, agua, d, p, mlr, msimp, riq;
};

// Forms 6-8 make the solution from a commercial product: a solid of 60-99.5 %
// purity, or the concentrated reagent of a solute sold as a solution. The
// product must fit the volume made: a solid of at most 0.6 g a millilitre,
// a reagent of at most half the volume.
DatosG2 SorteaG2(GenContext& g, const SolutoMolar& s, bool comercial) {
  double vd, p, riq, d;
  for (;;) {
    vd = AleatorioEn(g.rnd, 200, 500, 5, 1);
    if (AzarSupera(g.rnd, 0.8)) vd = AleatorioEn(g.rnd, 500, 2000, 10, 1);
    // No stronger than the solute allows.
    p = AleatorioEn(g.rnd, 5, std::min(50.0, PorcentajeMaximo(s.soluto)), 1, 1);
    riq = s.liquido ? AleatorioEn(g.rnd, s.stockMinimo, PorcentajeMaximo(s.soluto), 0.1, 1)
                    : AleatorioEn(g.rnd, 600, 995, 1, 1) / 10;
    d = RedondeaPot(Densidad(s.soluto, p), -4);
    if (!comercial) break;
    const double producto = vd * d * p / riq;  // grams of the commercial product
    if (s.liquido ? producto / Densidad(s.soluto, riq) <= vd / 2 : producto <= 0.6 * vd) break;
  }
  const double ms = vd * d * p / 100;  // the solute in the whole volume
  const double mlr = Div(ms, s.masaMolar) / (vd / 1000);
  return {.masaMolar = s.masaMolar,
          .vd = vd,
          .ms = Redondea(ms),
          .agua = Redondea(vd * d - ms),
          .d = d,
          .p = p,
          .mlr = Redondea(mlr),
          .msimp = Redondea(Div(ms * 100, riq)),
          .riq = riq};
}

std::string Gramos(double x) { return Respuesta(x, "g"); }
std::string Porciento(double x) { return Respuesta(x, "%"); }
std::string Molaridad(double moles, double litros) { return Respuesta(Div(moles, litros), "mol/L"); }
std::string Molalidad(double moles, double gramosAgua) {
  return Respuesta(Div(moles, gramosAgua / 1000), "mol/kg");
}
std::string FraccionMolar(double moles, double gramosAgua) {
  return NumCifras(Div(moles, moles + gramosAgua / kMolarAgua), 3);
}

std::string SolucionG2(int forma, const DatosG2& x) {
  const double litros = x.vd / 1000;
  const double n = Div(x.ms, x.masaMolar);
  switch (forma) {
    case 0:
      return Unica(Molaridad(n, litros));
    case 1: {
      const double moles = x.mlr * litros;
      return Partes({Gramos(moles * x.masaMolar), ConCifras(moles, 3, "mol")});
    }
    case 2:
      return Partes({Molalidad(n, x.agua), FraccionMolar(n, x.agua)});
    case 3: {
      const double masa = x.ms + x.agua;
      return Partes(
          {Molaridad(n, Div(masa, x.d) / 1000), Molalidad(n, x.agua), Porciento(x.ms / masa * 100)});
    }
    case 4: {
      const double masa = x.vd * x.d, ms = masa * x.p / 100;
      const double moles = Div(ms, x.masaMolar);
      return Partes({Gramos(ms), Gramos(masa - ms), Molaridad(moles, litros), Molalidad(moles, masa - ms)});
    }
    case 5: {
      const double masa = x.vd * x.d, agua = masa - x.ms;
      return Partes(
          {Gramos(agua), Molaridad(n, litros), Porciento(Div(x.ms, masa) * 100), FraccionMolar(n, agua)});
    }
    case 6:
      return Unica(Molaridad(Div(x.msimp * x.riq / 100, x.masaMolar), litros));
    case 7:
      return Unica(Porciento(Div(x.mlr * litros * x.masaMolar, x.msimp) * 100));
    default:
      return Unica(Gramos(Div(x.mlr * litros * x.masaMolar, x.riq / 100)));
  }
}

}  // namespace

void Generador2(GenContext& g) {
  const int forma = Forma(g, 9);
  const SolutoMolar& soluto = Elige(g, kSolutosMolares);
  const DatosG2 x = SorteaG2(g, soluto, forma >= 6);

  g.GP_Statement = Enunciado(g, At(kClavesG2, forma)) + LineaMasas(g, soluto.masas);
  const std::string ns = g.MsgQUI(soluto.clave);
  Rellena(g.GP_Statement, {{"%VD%", NumTexto(x.vd)},
                           {"%MS%", NumTexto(x.ms)},
                           {"%NS%", ns},
                           {"%deNS%", DeSoluto(g, ns)},
                           {"%MLR%", NumTexto(x.mlr)},
                           {"%MDT%", NumTexto(x.agua)},
                           {"%DEN%", NumTexto(x.d)},
                           {"%TPS%", NumTexto(x.p)},
                           {"%MSIMP%", NumTexto(x.msimp)},
                           {"%RIQ%", NumTexto(x.riq)},
                           {"%AAN_VD%", Articulado(x.vd)}});
  g.GP_Solution = SolucionG2(forma, x);
}

// ---- Generator 3: dilution and mixing ----------------------------------------

namespace {

constexpr std::string_view kClavesG3[5] = {"MLR2_de_VD1_VD2_TPS1_DEN1", "MD1_de_ML2_VD2_TPS1",
                                           "VD1_de_MLR2_VD2_TPS1_DEN1", "VD1_de_MLR1_MLR2_VD2",
                                           "VD1_de_TPS1_DEN1_MD2_TPS2"};

// A stock solution (1) and the dilute one made from it (2), as shown: volumes
// in mL, density in g/mL, percents, molarities, mass of the dilute one in g.
struct DatosG3 {
  double masaMolar, vd1, vd2, den1, tps1, tps2, mlr1, mlr2, md2;
};

// The stock is a strong solution of the solute, between its weakest stock
// and its strongest solution, with the density of its table at that percent.
DatosG3 SorteaG3(GenContext& g, const SolutoMolar& s) {
  DatosG3 x{};
  x.masaMolar = s.masaMolar;
  x.vd1 = AleatorioEn(g.rnd, 50, 900, 1, 1) / 10;
  const double dilucion = AleatorioEn(g.rnd, 5, 10, 1, 1) * 8;
  const double factor2 = AleatorioEn(g.rnd, 10, 40, 1, 1) / 10 + 1;
  x.tps1 = AleatorioEn(g.rnd, s.stockMinimo, PorcentajeMaximo(s.soluto), 1, 1);
  x.den1 = RedondeaPot(Densidad(s.soluto, x.tps1), -4);
  // The solute of the stock portion stays the same in the dilute solution.
  const double ms = x.vd1 * x.den1 * x.tps1 / 100;
  x.vd2 = Redondea(x.vd1 * dilucion);
  x.mlr1 = Redondea(Div(10 * x.den1 * x.tps1, x.masaMolar));
  x.mlr2 = Redondea(Div(ms, x.masaMolar) / (x.vd2 / 1000));
  x.tps2 = Redondea(x.tps1 / factor2);
  x.md2 = Redondea(Div(ms * 100, x.tps2));
  return x;
}

std::string SolucionG3(int forma, const DatosG3& x) {
  const double moles2 = x.mlr2 * x.vd2 / 1000;  // the solute the dilute solution holds
  switch (forma) {
    case 0: {
      const double moles = Div(x.vd1 * x.den1 * x.tps1 / 100, x.masaMolar);
      return Unica(Respuesta(Div(moles, x.vd2 / 1000), "mol/L"));
    }
    case 1:
      return Unica(Respuesta(Div(moles2 * x.masaMolar * 100, x.tps1), "g"));
    case 2:
      return Unica(Respuesta(Div(moles2 * x.masaMolar * 100, x.tps1 * x.den1), "mL"));
    case 3:
      return Unica(Respuesta(Div(moles2 * 1000, x.mlr1), "mL"));
    default:
      return Unica(Respuesta(Div(x.md2 * x.tps2, x.tps1 * x.den1), "mL"));
  }
}

}  // namespace

void Generador3(GenContext& g) {
  const int forma = Forma(g, 5);
  const SolutoMolar& soluto = Elige(g, kSolutosMolares);
  const DatosG3 x = SorteaG3(g, soluto);

  g.GP_Statement = Enunciado(g, At(kClavesG3, forma));
  if (forma <= 2) g.GP_Statement += LineaMasas(g, soluto.masas);  // the forms that need M
  const std::string ns = g.MsgQUI(soluto.clave);
  Rellena(g.GP_Statement, {{"%MD2%", NumTexto(x.md2)},
                           {"%NS%", ns},
                           {"%VD1%", NumTexto(x.vd1)},
                           {"%VD2%", NumTexto(x.vd2)},
                           {"%deNS%", DeSoluto(g, ns)},
                           {"%TPS1%", NumTexto(x.tps1)},
                           {"%TPS2%", NumTexto(x.tps2)},
                           {"%DEN1%", NumTexto(x.den1)},
                           {"%MLR1%", NumTexto(x.mlr1)},
                           {"%MLR2%", NumTexto(x.mlr2)}});
  g.GP_Solution = SolucionG3(forma, x);
}

// ---- Generator 5: boiling point elevation and freezing point depression ----

namespace {

constexpr std::string_view kClavesG5[8] = {"TE_de_TC", "MS_de_VDT_TC", "TE_de_MS_VDT", "MMOL_de_MS_VDT_TC",
                                           "TC_de_TE", "MS_de_VDT_TE", "TC_de_MS_VDT", "TE_de_MS_VDT_unk"};

// Forms whose datum is a temperature of the solution, forms whose solute is
// not named (its molar mass is drawn), forms that need a named solute's molar mass.
bool DesdeTemperatura(int forma) { return forma == 0 || forma == 1 || forma == 4 || forma == 5; }
bool SolutoDesconocido(int forma) { return forma == 3 || forma == 7; }
bool UsaMasaMolar(int forma) { return forma == 1 || forma == 2 || forma == 5 || forma == 6; }

// Mass of solute and of water in g, molar mass, molality, and the lowering of
// the freezing point and the rise of the boiling point as the page shows them.
struct DatosG5 {
  double ms, agua, masaMolar, m, tc, te;
};

// A temperature datum comes from a drawn lowering of the freezing point (the
// boiling point from the same solution); the other forms start from the
// masses. Either way the molality stays between 0.25 and 3 mol/kg, where the
// laws of dilute solutions hold and the change of temperature is large
// enough to read: a lowering of 0.50-5.50 °C, a rise of 0.13-1.56 °C.
DatosG5 SorteaG5(GenContext& g, int forma, double masaMolar) {
  const bool desconocido = SolutoDesconocido(forma);
  DatosG5 x{};
  do {
    const double tc = AleatorioEn(g.rnd, 50, 550, 1, 1) / 100;
    x.ms = AleatorioEn(g.rnd, 10, 120, 1, 1);
    x.agua = AleatorioEn(g.rnd, 130, desconocido ? 600 : 900, 10, 1);
    x.masaMolar = desconocido ? AleatorioEn(g.rnd, 20, 400, 1, 1) : masaMolar;
    x.m = DesdeTemperatura(forma) ? tc / kKc : Div(x.ms, x.masaMolar) / (x.agua / 1000);
  } while (x.m > 3 || x.m < 0.25);
  x.tc = Cifras(kKc * x.m, 3);
  x.te = Cifras(kEbullicionAgua + kKe * x.m, 5) - kEbullicionAgua;
  return x;
}

std::string Ebullicion(double te) { return ConCifras(kEbullicionAgua + te, 5, kGradoC); }
std::string Congelacion(double tc) { return ConCifras(-tc, 3, kGradoC); }

std::string SolucionG5(int forma, const DatosG5& x) {
  const double kgAgua = x.agua / 1000;
  switch (forma) {
    case 0:
      return Unica(Ebullicion(x.tc * kKe / kKc));
    case 1:
      return Unica(ConCifras(x.tc / kKc * kgAgua * x.masaMolar, 3, "g"));
    case 3:
      return Unica(ConCifras(Div(kKc * x.ms, x.tc * kgAgua), 3, "g/mol"));
    case 4:
      return Unica(Congelacion(x.te * kKc / kKe));
    case 5:
      return Unica(ConCifras(x.te / kKe * kgAgua * x.masaMolar, 3, "g"));
    case 6:
      return Unica(Congelacion(kKc * x.m));
    default:
      return Unica(Ebullicion(kKe * x.m));  // forms 2 and 7
  }
}

}  // namespace

void Generador5(GenContext& g) {
  const int forma = Forma(g, 8);
  const NoElectrolito& soluto = Elige(g, kNoElectrolitos);
  const DatosG5 x = SorteaG5(g, forma, soluto.masaMolar);

  g.GP_Statement = Enunciado(g, At(kClavesG5, forma));
  if (UsaMasaMolar(forma)) g.GP_Statement += LineaMasas(g, soluto.masas);
  g.GP_Statement += g.MsgQUI("Datos_Kb_Kf") + "&LF";
  const std::string ns = g.MsgQUI(soluto.clave);
  Rellena(g.GP_Statement, {{"%TC%", NumCifras(-x.tc, 3)},
                           {"%TE%", NumCifras(kEbullicionAgua + x.te, 5)},
                           {"%NS%", ns},
                           {"%deNS%", DeSoluto(g, ns)},
                           {"%FS%", std::string(soluto.formula)},
                           {"%VDT%", NumTexto(x.agua)},
                           {"%MS%", NumTexto(x.ms)},
                           {"%MMOL%", NumTexto(x.masaMolar)},
                           {"%KE%", NumTexto(kKe)},
                           {"%KC%", NumTexto(kKc)}});
  g.GP_Solution = SolucionG5(forma, x);
}

// ---- Generator 10: osmotic pressure and vapour pressure ----------------------

namespace {

constexpr std::string_view kClavesG10[4] = {"POS_de_MS_VD_T0", "MMOL_de_MS_VD_T0_POS", "DP_de_MS_MDT_T0",
                                            "MMOL_MS_MDT_T0_DP"};

// The placeholders both kinds of problem share.
void RellenaG10(GenContext& g, const NoElectrolito& s, double ms, double t) {
  const std::string ns = g.MsgQUI(s.clave);
  Rellena(g.GP_Statement, {{"%NS%", ns},
                           {"%deNS%", DeSoluto(g, ns)},
                           {"%FS%", std::string(s.formula)},
                           {"%MS%", NumTexto(ms)},
                           {"%T0%", NumTexto(t)}});
}

// Forms 0 and 1: pi = c R T, shown in mmHg below 600 mmHg and in atm above.
void PresionOsmotica(GenContext& g, int forma) {
  const NoElectrolito* s;
  double ms, vd, t, pi;
  do {
    s = &Elige(g, kNoElectrolitos);
    ms = AleatorioEn(g.rnd, 10, 120, 1, 1);
    vd = AleatorioEn(g.rnd, 130, 600, 10, 1);
    t = AleatorioEn(g.rnd, 15, 40, 10, 1);
    pi = Div(ms, s->masaMolar) / (vd / 1000) * kR * (t + kCeroKelvin);
  } while (!(pi * kMmHgPorAtm >= 100 && pi <= 30));
  const bool enMmHg = pi * kMmHgPorAtm < 600;
  const std::string posm = enMmHg ? ConCifras(pi * kMmHgPorAtm, 3, "mmHg") : ConCifras(pi, 3, "atm");
  const double piAtm = enMmHg ? Cifras(pi * kMmHgPorAtm, 3) / kMmHgPorAtm : Cifras(pi, 3);

  g.GP_Statement = Enunciado(g, At(kClavesG10, forma));
  if (forma == 0) g.GP_Statement += LineaMasas(g, s->masas);
  g.GP_Statement += g.MsgQUI("Datos_R") + "&LF";
  RellenaG10(g, *s, ms, t);
  Rellena(g.GP_Statement, {{"%VD%", NumTexto(vd)},
                           {"%POSM%", posm},
                           {"%R%", NumTexto(kR)},
                           {"%K0%", NumTexto(kCeroKelvin)},
                           {"%MMHG%", NumTexto(kMmHgPorAtm)}});
  if (forma == 0) {
    g.GP_Solution = Unica(posm);
  } else {
    const double moles = piAtm * (vd / 1000) / (kR * (t + kCeroKelvin));
    g.GP_Solution = Unica(ConCifras(Div(ms, moles), 3, "g/mol"));
  }
}

// Forms 2 and 3: Raoult's law, the lowering is the solute's mole fraction
// times the vapour pressure of pure water; at least 2 mmHg.
void DescensoPresionVapor(GenContext& g, int forma) {
  const NoElectrolito* s;
  double ms, agua, t, p0, dp;
  do {
    s = &Elige(g, kNoElectrolitos);
    ms = AleatorioEn(g.rnd, 10, 120, 1, 1);
    agua = AleatorioEn(g.rnd, 130, 900, 10, 1);
    t = AleatorioEn(g.rnd, 10, 50, 5, 1);
    p0 = At(kPresionVaporAgua, static_cast<long long>(std::nearbyint((t - 10) / 5)));
    const double ns = Div(ms, s->masaMolar);
    dp = ns / (ns + agua / kMolarAgua) * p0;
  } while (dp < 2);

  g.GP_Statement = Enunciado(g, At(kClavesG10, forma)) + LineaMasas(g, forma == 2 ? s->masas : kMasasAgua);
  RellenaG10(g, *s, ms, t);
  Rellena(g.GP_Statement,
          {{"%MDT%", NumTexto(agua)}, {"%DP%", NumCifras(dp, 4)}, {"%P0%", NumCifras(p0, 5)}});
  if (forma == 2) {
    g.GP_Solution = Unica(ConCifras(dp, 4, "mmHg"));
  } else {
    const double x = Cifras(dp, 4) / p0;  // the solute's mole fraction
    const double moles = x * (agua / kMolarAgua) / (1 - x);
    g.GP_Solution = Unica(ConCifras(Div(ms, moles), 3, "g/mol"));
  }
}

}  // namespace

void Generador10(GenContext& g) {
  const int forma = Forma(g, 4);
  if (forma < 2)
    PresionOsmotica(g, forma);
  else
    DescensoPresionVapor(g, forma);
}

}  // namespace ss::mod::dis
