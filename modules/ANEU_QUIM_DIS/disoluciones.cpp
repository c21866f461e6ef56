// Solutions: mass percent and density, molarity and molality, dilution,
// boiling and freezing points, osmotic and vapour pressure.
//
// Each generator picks its form from the variant counter, draws the story of a
// solution, tests it and draws again while it does not fit, and then builds
// the statement from its message key and the solution as markup. A datum the
// student is given is shown rounded, and every answer is worked out from the
// data exactly as shown, so the printed answer is the one the student reaches.
// Generator 1 is the exception: it shows the quantities of the drawn solution
// itself (whole grams and millilitres, percent and g/L to two decimals,
// density to three), which agree with one another within those roundings.
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

// ---- Density curves: polynomial coefficients from p^0 upward ---------------

constexpr double kAjusteH2SO4[] = {0.99954556,   0.0060719588,  6.4933996E-5,  -1.0153265E-6,
                                   1.3057147E-9, 2.6190742E-10, -2.1616657E-12};
constexpr double kAjusteHCl[] = {0.99817571,   0.0050904345, -3.9367082E-5,
                                 3.1033707E-6, -8.320007E-8, 7.1842642E-10};
constexpr double kAjusteNaOH[] = {0.99920017,   0.011311651,   -9.4965617E-6, -8.6727784E-7,
                                  8.8583819E-8, -2.6770693E-9, 2.4445895E-11};
constexpr double kAjusteKOH[] = {0.99941695, 0.0082913603, 6.3527613E-5, -6.3031749E-7, 2.1630295E-9};
constexpr double kAjusteAcetico[] = {0.99803978,    0.0015761929,  -1.5437619E-5, 5.600677E-7,
                                     -1.4475738E-8, 1.6077118E-10, -6.7119567E-13};
constexpr double kAjusteGeneral[] = {0.998, 0.006, 2E-5};

double Polinomio(std::span<const double> c, double p) {
  double s = 0;
  for (std::size_t i = c.size(); i-- > 0;) s = s * p + c[i];
  return s;
}

// ---- Solutes ----------------------------------------------------------------

// Generator 1: percent and density need no molar mass.
struct SolutoG1 {
  std::string_view clave;
  AjusteDensidad ajuste;
};

constexpr SolutoG1 kSolutosG1[10] = {
    {"N_NaCl", AjusteDensidad::General},    {"N_azucar", AjusteDensidad::General},
    {"N_glucosa", AjusteDensidad::General}, {"N_NH3", AjusteDensidad::NH3},
    {"N_HNO3", AjusteDensidad::HNO3},       {"N_HCl_ac", AjusteDensidad::HCl},
    {"N_H2SO4", AjusteDensidad::H2SO4},     {"N_NaOH", AjusteDensidad::NaOH},
    {"N_KOH", AjusteDensidad::KOH},         {"N_CH3COOH", AjusteDensidad::General},
};

// Generators 2 and 3: the atomic masses the statement shows (water's H and O
// among them), the molar mass they give, and the solute's density curve.
struct SolutoMolar {
  std::string_view clave;
  std::string_view masas;
  double masaMolar;
  AjusteDensidad ajuste;
};

constexpr SolutoMolar kSolutosMolares[10] = {
    {"NTS_H2SO4", "H=1    S=32    O=16", 98, AjusteDensidad::H2SO4},
    {"NTS_H3PO4", "H=1    P=31    O=16", 98, AjusteDensidad::General},
    {"NTS_H2SO3", "H=1    S=32    O=16", 82, AjusteDensidad::General},
    {"NTS_H3PO3", "H=1    P=31    O=16", 82, AjusteDensidad::General},
    {"NTS_HNO3", "H=1    N=14    O=16", 63, AjusteDensidad::HNO3},
    {"N_HCl_ac", "H=1    Cl=35&.5    O=16", 36.5, AjusteDensidad::HCl},
    {"N_NaOH", "Na=23    O=16    H=1", 40, AjusteDensidad::NaOH},
    {"N_KOH", "K=39&.1   O=16    H=1", 56.1, AjusteDensidad::KOH},
    {"N_Al(OH)3", "Al=27    O=16    H=1", 78, AjusteDensidad::General},
    {"N_NH3", "N=14    H=1    O=16", 17, AjusteDensidad::NH3},
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

// The rounding of the concentration problems: two decimals, one from 1000 on;
// below 1 three significant figures, so that small values keep their meaning.
double Redondea(double x) {
  const double a = std::fabs(x);
  if (a >= 1000) return RedondeaPot(x, -2);
  if (a >= 1 || a == 0) return RedondeaPot(x, -3);
  return RedondeaPot(x, std::floor(std::log10(a)) - 3);
}

// The value NumCifras(x, n) shows, as a number.
double Cifras(double x, int n) {
  const double a = std::fabs(x);
  if (a == 0) return 0;
  const double e = std::floor(std::log(a) / std::log(10.0));
  return (x < 0 ? -1 : 1) * RedondeaPot(a, e - n);
}

// ---- Text -------------------------------------------------------------------

std::string Con(double x, std::string_view unidad) { return NumTexto(x) + "& " + std::string(unidad); }

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

double Densidad(AjusteDensidad ajuste, double p) {
  switch (ajuste) {
    case AjusteDensidad::H2SO4:
      return Polinomio(kAjusteH2SO4, std::fabs(p));
    case AjusteDensidad::NH3: {
      const double u = -160.84916 - p;
      return 1.3277754 * std::exp(-(u * u) / (2 * 212.94902 * 212.94902));
    }
    case AjusteDensidad::HNO3:
      return 1.5945173 - 0.56780987 * std::exp(-1.9206157 * Pow(p / 100, 1.4786622));
    case AjusteDensidad::HCl:
      return Polinomio(kAjusteHCl, std::fabs(p));
    case AjusteDensidad::NaOH:
      return Polinomio(kAjusteNaOH, std::fabs(p));
    case AjusteDensidad::KOH:
      return Polinomio(kAjusteKOH, std::fabs(p));
    case AjusteDensidad::Acetico:
      return Polinomio(kAjusteAcetico, p);
    case AjusteDensidad::General:
      break;
  }
  return Polinomio(kAjusteGeneral, p);
}

// ---- Generator 1: mass percent, density, grams per litre -------------------

namespace {

constexpr std::string_view kClavesG1[7] = {
    "TPS_de_MS_MDT",    "MS_MDT_de_MD_TPS",    "MS_MDT_MD_GL_de_VD_TPS_DEN", "TPS_VD_GL_de_MS_MDT_DEN",
    "MD_MDT_de_MS_TPS", "MS_TPS_de_VD_GL_DEN", "TPS_GL_de_MS_MDT_VD"};

// The drawn solution: solute, water and solution in g, percent, density in
// g/mL, volume in mL, concentration in g/L.
struct DisolucionG1 {
  double ms, agua, md, p, d, vd, gl;
};

DisolucionG1 SorteaG1(GenContext& g, AjusteDensidad ajuste) {
  DisolucionG1 x{};
  x.ms = AleatorioEn(g.rnd, 5, 90, 1, 1);
  const double factor = AleatorioEn(g.rnd, 3, 8, 1, 1);
  const double resto = AleatorioEn(g.rnd, 50, 99, 1, 1);
  x.md = factor * x.ms + resto;
  x.agua = x.md - x.ms;
  x.p = RedondeaPot(Div(x.ms, x.md) * 100, -3);
  x.d = RedondeaPot(Densidad(ajuste, x.p), -4);
  x.vd = std::floor(Div(x.md, x.d) + 0.5);
  x.gl = RedondeaPot(Div(x.ms, x.vd) * 1000, -3);
  return x;
}

std::string SolucionG1(int forma, const DisolucionG1& x) {
  const std::string ms = Con(x.ms, "g"), agua = Con(x.agua, "g"), md = Con(x.md, "g");
  const std::string p = Con(x.p, "%"), vd = Con(x.vd, "mL"), gl = Con(x.gl, "g/L");
  switch (forma) {
    case 1:
      return Unica(p);
    case 2:
      return Partes({ms, agua});
    case 3:
      return Partes({Lista({ms, agua, md}), gl});
    case 4:
      return Partes({Lista({vd, p}), gl});
    case 5:
      return Partes({agua, md});
    case 6:
      return Partes({ms, p});
    default:
      return Partes({p, gl});
  }
}

}  // namespace

void Generador1(GenContext& g) {
  const int forma = Forma(g, 7) + 1;
  const SolutoG1& soluto = Elige(g, kSolutosG1);
  const DisolucionG1 x = SorteaG1(g, soluto.ajuste);

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

DatosG2 SorteaG2(GenContext& g, const SolutoMolar& s) {
  double vd = AleatorioEn(g.rnd, 200, 500, 5, 1);
  if (AzarSupera(g.rnd, 0.8)) vd = AleatorioEn(g.rnd, 500, 2000, 10, 1);
  const double p = AleatorioEn(g.rnd, 5, 50, 1, 1);
  const double riq = AleatorioEn(g.rnd, 100, 950, 1, 1) / 10;
  const double d = RedondeaPot(Densidad(s.ajuste, p), -4);
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

std::string Gramos(double x) { return Con(Redondea(x), "g"); }
std::string Porciento(double x) { return Con(Redondea(x), "%"); }
std::string Molaridad(double moles, double litros) { return Con(Redondea(Div(moles, litros)), "mol/L"); }
std::string Molalidad(double moles, double gramosAgua) {
  return Con(Redondea(Div(moles, gramosAgua / 1000)), "mol/kg");
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
  const DatosG2 x = SorteaG2(g, soluto);

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

DatosG3 SorteaG3(GenContext& g, double masaMolar) {
  DatosG3 x{};
  x.masaMolar = masaMolar;
  x.vd1 = AleatorioEn(g.rnd, 50, 900, 1, 1) / 10;
  const double dilucion = AleatorioEn(g.rnd, 5, 10, 1, 1) * 8;
  x.den1 = RedondeaPot(AleatorioEn(g.rnd, 100, 850, 5, 1) / 1000 + 1, -4);
  const double factor2 = AleatorioEn(g.rnd, 10, 40, 1, 1) / 10 + 1;
  x.tps1 = AleatorioEn(g.rnd, 30, 50, 1, 1);
  // The solute of the stock portion stays the same in the dilute solution.
  const double ms = x.vd1 * x.den1 * x.tps1 / 100;
  x.vd2 = Redondea(x.vd1 * dilucion);
  x.mlr1 = Redondea(Div(10 * x.den1 * x.tps1, masaMolar));
  x.mlr2 = Redondea(Div(ms, masaMolar) / (x.vd2 / 1000));
  x.tps2 = Redondea(x.tps1 / factor2);
  x.md2 = Redondea(Div(ms * 100, x.tps2));
  return x;
}

std::string SolucionG3(int forma, const DatosG3& x) {
  const double moles2 = x.mlr2 * x.vd2 / 1000;  // the solute the dilute solution holds
  switch (forma) {
    case 0: {
      const double moles = Div(x.vd1 * x.den1 * x.tps1 / 100, x.masaMolar);
      return Unica(Con(Redondea(Div(moles, x.vd2 / 1000)), "mol/L"));
    }
    case 1:
      return Unica(Con(Redondea(Div(moles2 * x.masaMolar * 100, x.tps1)), "g"));
    case 2:
      return Unica(Con(Redondea(Div(moles2 * x.masaMolar * 100, x.tps1 * x.den1)), "mL"));
    case 3:
      return Unica(Con(Redondea(Div(moles2 * 1000, x.mlr1)), "mL"));
    default:
      return Unica(Con(Redondea(Div(x.md2 * x.tps2, x.tps1 * x.den1)), "mL"));
  }
}

}  // namespace

void Generador3(GenContext& g) {
  const int forma = Forma(g, 5);
  const SolutoMolar& soluto = Elige(g, kSolutosMolares);
  const DatosG3 x = SorteaG3(g, soluto.masaMolar);

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
// masses. Either way a solution above 3 mol/kg is drawn again.
DatosG5 SorteaG5(GenContext& g, int forma, double masaMolar) {
  const bool desconocido = SolutoDesconocido(forma);
  DatosG5 x{};
  do {
    const double tc = AleatorioEn(g.rnd, 40, 250, 1, 1) / 10;
    x.ms = AleatorioEn(g.rnd, 10, 120, 1, 1);
    x.agua = AleatorioEn(g.rnd, 130, desconocido ? 600 : 900, 10, 1);
    x.masaMolar = desconocido ? AleatorioEn(g.rnd, 20, 400, 1, 1) : masaMolar;
    x.m = DesdeTemperatura(forma) ? tc / kKc : Div(x.ms, x.masaMolar) / (x.agua / 1000);
  } while (x.m > 3);
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
