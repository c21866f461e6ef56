// Generators 1 to 3: the pH of strong acids and bases, of weak ones solved
// exactly, and of the salts that hydrolyse.
//
// Every answer is worked from the numbers as the statement shows them (a pH
// to the thousandth, a degree of dissociation to its figures), so that a
// student who starts from the page finds the answers printed.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modules/ANEU_QUIM_EAB/eab.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eab {
namespace {

constexpr double kKw = 1e-14;  // ionic product of water at 25 °C

// The smallest K·C0 for which the water's own ions change the pH of a weak
// acid, base or salt by less than 0.0005, the rounding of the pH shown; the
// quadratic leaves them out, so weaker or more dilute solutions are not set.
constexpr double kMinKC0 = 5e-12;

// ---------------------------------------------------------------------------
// Numbers as the page shows them.

// The value NumCifras(x, n) shows.
double ValorCifras(double x, int n) {
  if (x == 0) return 0;
  const double a = std::fabs(x);
  return std::copysign(RedondeaPot(a, std::floor(std::log(a) / std::log(10.0)) - n), x);
}

// A quantity as it is printed and as a student reads it back.
struct Mostrado {
  double v = 0;
  std::string t;
};

// A pH (or pOH) to the thousandth.
Mostrado PH(double pH) { return {RedondeaPot(pH, -4), NumTexto(RedondeaPot(pH, -4))}; }

// A concentration that a statement gives: below 0.02 mol/L to three figures,
// otherwise as drawn.
Mostrado Concentracion(double c) {
  if (c < 0.02) return {ValorCifras(c, 3), NumCifras(c, 3) + "& mol/L"};
  return {c, NumTexto(c) + "& mol/L"};
}

// A concentration that is an answer.
std::string ConcentracionHallada(double c) { return NumCifras(c, c < 0.02 ? 3 : 4) + "& mol/L"; }

// A degree of dissociation, given as a fraction, printed in percent: below
// 0.02 % to three figures, below 1 % to the ten-thousandth, else to the hundredth.
Mostrado Alfa(double alfa) {
  const double p = alfa * 100;
  double v = 0;
  std::string t;
  if (p < 0.02) {
    v = ValorCifras(p, 3), t = NumCifras(p, 3);
  } else if (p < 1) {
    v = RedondeaPot(p, -5), t = NumTexto(v);
  } else {
    v = RedondeaPot(p, -3), t = NumTexto(v);
  }
  return {v / 100, t + "& %"};
}

// [H3O+] of a weak acid (or [OH-] of a weak base) of concentration c0 and
// constant K: the positive root of x^2 + K x - K c0 = 0, without approximation.
double Disociado(double K, double c0) { return (std::sqrt(K * K + 4 * K * c0) - K) / 2; }

// ---------------------------------------------------------------------------
// Atoms, formulas and names.

// Atomic masses that the statements list, in g/mol.
struct Atomo {
  std::string_view simbolo;
  double masa;
};
constexpr Atomo kAtomos[] = {{"H", 1},  {"C", 12},     {"N", 14}, {"O", 16},   {"F", 19},
                             {"Na", 23}, {"Cl", 35.5}, {"K", 39.1}, {"Br", 79.9}, {"I", 126.9}};

double MasaAtomica(std::string_view s) {
  for (const Atomo& a : kAtomos)
    if (a.simbolo == s) return a.masa;
  return 0;
}

// The atoms of a formula, each with its count, in the order of the list.
using Composicion = std::vector<std::pair<std::string_view, int>>;

double MasaMolar(const Composicion& c) {
  double M = 0;
  for (const auto& [s, n] : c) M += n * MasaAtomica(s);
  return M;
}

// "Atomic masses: H = 1,  Cl = 35.5 (g/mol)", the elements of one formula.
std::string ListaAtomica(GenContext& g, const Composicion& c) {
  std::string t;
  for (const auto& [s, n] : c) t += (t.empty() ? "" : ",  ") + std::string(s) + " = " + NumTexto(MasaAtomica(s));
  return "&+I" + g.MsgQUI("Masas_atomicas") + "&-I " + t + " (g/mol)&LF";
}

// The "Data:" line of a statement: one or more values already written.
std::string LineaDatos(GenContext& g, const std::string& datos) {
  return "&+I" + g.MsgQUI("Dato") + ":&-I  " + datos + "&LF";
}

// A name as a statement writes it before the formula in brackets that
// follows: without a formula or an "ion" that the table's text may carry.
std::string Nombre(GenContext& g, std::string_view clave) {
  std::string n = g.MsgQUI(clave);
  if (n.ends_with(")"))
    if (const std::size_t at = n.rfind(" ("); at != std::string::npos) n.erase(at);
  if (n.ends_with(" ion")) n.erase(n.size() - 4);
  return n;
}

void Rellena(std::string& t, const std::vector<std::pair<std::string_view, std::string>>& r) {
  for (const auto& [de, por] : r) ReplaceAll(t, de, por);
}

// pH from the hydronium concentration (acid) or the hydroxide one (base).
double PHDe(double x, bool base) { return base ? 14 + std::log10(x) : -std::log10(x); }
// The concentration of H3O+ (acid) or OH- (base) that a pH shown means.
double IonDe(double pH, bool base) { return std::pow(10.0, base ? pH - 14 : -pH); }

// "pOH = 1.234,   pH = 12.766" for a base, "pH = 1.234" for an acid.
std::string RespuestaPH(double x, bool base) {
  if (!base) return "pH = " + PH(-std::log10(x)).t;
  return "pOH = " + PH(-std::log10(x)).t + ",   pH = " + PH(PHDe(x, true)).t;
}

// ---------------------------------------------------------------------------
// Generator 1: strong acids and bases.

// Strong acids 0..4, strong bases 5..6. `nombreMasa` is the name of the pure
// substance that is weighed: hydrogen chloride, not hydrochloric acid.
struct Fuerte {
  std::string_view nombre, nombreMasa, formula;
  Composicion atomos;
};
const Fuerte kFuertes[7] = {
    {"N_HClO4", "N_HClO4", "HClO_4", {{"H", 1}, {"Cl", 1}, {"O", 4}}},
    {"N_HI_ac", "N_HI", "HI", {{"H", 1}, {"I", 1}}},
    {"N_HBr_ac", "N_HBr", "HBr", {{"H", 1}, {"Br", 1}}},
    {"N_HCl_ac", "N_HCl", "HCl", {{"H", 1}, {"Cl", 1}}},
    {"N_HNO3", "N_HNO3", "HNO_3", {{"H", 1}, {"N", 1}, {"O", 3}}},
    {"N_NaOH", "N_NaOH", "NaOH", {{"Na", 1}, {"O", 1}, {"H", 1}}},
    {"N_KOH", "N_KOH", "KOH", {{"K", 1}, {"O", 1}, {"H", 1}}},
};

// Statement sets 0..4 and 6..10 by key; set 5 mixes an acid with a base.
constexpr std::string_view kClavesFuerte[6] = {"ABF_pH_de_C0",  "ABF_pH_de_m_V",  "ABF_C0_de_pH",
                                               "ABF_V_de_pH_m", "ABF_m_de_pH_V", "ABF_pH_de_V0C0_V1C1"};

// A concentration: 0.002-0.5 mol/L, and with two chances ten and a hundred
// times more dilute.
double ConcentracionFuerte(GenContext& g, bool diluir) {
  double c = AleatorioEn(g.rnd, 2, 500, 2, 1) / 1000;
  if (diluir && AzarSupera(g.rnd, 0.7)) c /= 10;
  if (diluir && AzarSupera(g.rnd, 0.7)) c /= 10;
  return c;
}

// A mass of solute, to three figures, for a concentration drawn as above in
// V mL: at most what makes a 0.5 mol/L solution, at least 50 mg.
double MasaFuerte(GenContext& g, double M, double V) {
  double m = 0;
  do m = ValorCifras(ConcentracionFuerte(g, true) * V / 1000 * M, 3);
  while (m < 0.05);
  return m;
}

// An acid mixed with a strong base of 1.1-1.8 times its concentration, in a
// volume such that one of them is short by a factor of 0.6-0.9: the excess
// of the other, diluted in both volumes, sets the pH.
void Mezcla(GenContext& g, const Fuerte& acido, const Fuerte& base) {
  double V0 = 0, V1 = 0, C0 = 0, C1 = 0, exceso = 0;
  do {
    V0 = AleatorioEn(g.rnd, 20, 500, 20, 1);
    C0 = Concentracion(ConcentracionFuerte(g, true)).v;
    const double r = AleatorioEn(g.rnd, 110, 180, 10, 1) / 100;  // C1 / C0
    const double f = AleatorioEn(g.rnd, 60, 90, 5, 1) / 100;     // the smaller amount over the larger
    C1 = ValorCifras(C0 * r, 3);
    V1 = AzarSupera(g.rnd, 0.5) ? std::round(f * V0 * C0 / C1) : std::round(V0 * C0 / (f * C1));
    exceso = (C0 * V0 - C1 * V1) / (V0 + V1);  // mol/L of H3O+ (or of OH-, negative)
  } while (V1 < 5 || std::fabs(exceso) < 1e-5 || std::fabs(C0 * V0 - C1 * V1) < 0.05 * std::max(C0 * V0, C1 * V1));
  std::string st = g.MsgQUI(kClavesFuerte[5]) + "&LF";
  Rellena(st, {{"%VD2%", NumTexto(V1) + "& mL"},
               {"%VD%", NumTexto(V0) + "& mL"},
               {"%C00%", Concentracion(C0).t},
               {"%C11%", Concentracion(C1).t},
               {"%NOM2%", Nombre(g, base.nombre)},
               {"%deNOM2%", DeNombre(Nombre(g, base.nombre), false)},
               {"%FOR2%", std::string(base.formula)},
               {"%NOM%", Nombre(g, acido.nombre)},
               {"%deNOM%", DeNombre(Nombre(g, acido.nombre), false)},
               {"%FOR%", std::string(acido.formula)}});
  g.GP_Statement = st;
  const bool basico = exceso < 0;
  g.GP_Solution = "&SP=10:" + std::string(basico ? "[OH^-]" : "[H_3O^+]") + " = " +
                  ConcentracionHallada(std::fabs(exceso)) + ",   " + RespuestaPH(std::fabs(exceso), basico) + "&LF";
}

}  // namespace

void Generador1(GenContext& g) {
  const int conjunto = g.GP_SeqB % 11;
  const bool base = conjunto >= 6;
  const int forma = base ? conjunto - 6 : conjunto;
  const Fuerte& s = kFuertes[base ? 5 + g.GP_SeqB % 2 : g.GP_SeqB % 5];
  if (forma == 5) return Mezcla(g, s, kFuertes[5 + g.GP_SeqB % 2]);

  const double M = MasaMolar(s.atomos);
  const double V = AleatorioEn(g.rnd, 250, 1500, 50, 1);  // mL
  // What the solution holds: a drawn concentration, or a weighed mass. The
  // mass asked for comes from a solution no more dilute than 0.002 mol/L, so
  // that it can be weighed.
  const bool conMasa = forma == 1 || forma == 3;
  const double m = conMasa ? MasaFuerte(g, M, V) : 0;
  const Mostrado C0 = conMasa ? Mostrado{m / M / (V / 1000), ""} : Concentracion(ConcentracionFuerte(g, forma != 4));
  const Mostrado pH = PH(PHDe(C0.v, base));
  const double deLaPH = IonDe(pH.v, base);  // the concentration a student reads from the pH shown

  std::string sol;
  switch (forma) {
    case 0: case 1: sol = RespuestaPH(C0.v, base); break;
    case 2: sol = "&+Ic&-I = " + ConcentracionHallada(deLaPH); break;
    case 3: sol = "&+IV&-I = " + NumCifras(m / M / deLaPH * 1000, 4) + "& mL"; break;
    default: sol = "&+Im&-I = " + NumCifras(deLaPH * V / 1000 * M, 4) + "& g"; break;
  }
  std::string st = g.MsgQUI(kClavesFuerte[forma]) + "&LF";
  const std::string_view clave = conMasa || forma == 4 ? s.nombreMasa : s.nombre;
  Rellena(st, {{"%NOM%", Nombre(g, clave)},
               {"%deNOM%", DeNombre(Nombre(g, clave), false)},
               {"%FOR%", std::string(s.formula)},
               {"%C00%", C0.t},
               {"%NG%", NumTexto(m) + "& g"},
               {"%VD%", NumTexto(V) + "& mL"},
               {"%PH%", pH.t}});
  if (conMasa || forma == 4) st += ListaAtomica(g, s.atomos);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + sol + "&LF";
}

// ---------------------------------------------------------------------------
// Generator 2: weak acids and bases, solved exactly.

namespace {

// Weak acids 1..8 (Ka) and weak bases 9..12 (Kb), at 25 °C. `cMax` is the
// most concentrated solution that can be made: benzoic acid dissolves only
// to about 0.028 mol/L at 20 °C and aniline to about 0.39 mol/L; nitrous and
// hypochlorous acids exist only in dilute solution, which decomposes.
struct Debil {
  std::string_view nombre, formula;
  double K;
  Composicion atomos;
  double cMax;
};
const Debil kDebiles[13] = {
    {},
    {"N_CH3COOH", "CH_3COOH", 1.8e-5, {{"C", 2}, {"H", 4}, {"O", 2}}, 9},
    {"N_HF_ac", "HF", 7e-4, {{"H", 1}, {"F", 1}}, 9},
    {"N_HNO2", "HNO_2", 4.5e-4, {{"H", 1}, {"N", 1}, {"O", 2}}, 0.5},
    {"N_Formico", "HCOOH", 1.8e-4, {{"C", 1}, {"H", 2}, {"O", 2}}, 9},
    {"N_Benzoico", "C_6H_5COOH", 6.6e-5, {{"C", 7}, {"H", 6}, {"O", 2}}, 0.025},
    {"N_HClO", "HClO", 3e-8, {{"H", 1}, {"Cl", 1}, {"O", 1}}, 0.5},
    {"N_HCN_ac", "HCN", 4e-10, {{"H", 1}, {"C", 1}, {"N", 1}}, 9},
    {"N_Butanoico", "CH_3(CH_2)_2COOH", 1.5e-5, {{"C", 4}, {"H", 8}, {"O", 2}}, 9},
    {"N_metilamina", "CH_3NH_2", 4.37e-4, {{"C", 1}, {"H", 5}, {"N", 1}}, 9},
    {"N_anilina", "C_6H_5NH_2", 3.8e-10, {{"C", 6}, {"H", 7}, {"N", 1}}, 0.35},
    {"N_etilamina", "C_2H_5NH_2", 6.41e-4, {{"C", 2}, {"H", 7}, {"N", 1}}, 9},
    {"N_NH3", "NH_3", 1.77e-5, {{"N", 1}, {"H", 3}}, 9},
};

constexpr std::string_view kClavesDebil[19] = {
    "",
    "ABD_pH_alfa_de_C0_Ka",  "ABD_pH_alfa_de_m_V_Ka",  "ABD_pH_alfa_de_C0_Kb",  "ABD_pH_alfa_de_m_V_Kb",
    "ABD_pH_Ka_de_alfa_C0",  "ABD_pH_Ka_de_alfa_m_V",  "ABD_pH_Kb_de_alfa_C0",  "ABD_pH_Kb_de_alfa_m_V",
    "ABD_Ka_alfa_de_C0_pH",  "ABD_Ka_alfa_de_m_V_pH",  "ABD_Kb_alfa_de_C0_pH",  "ABD_Kb_alfa_de_m_V_pH",
    "ABD_C0_alfa_de_pH_Ka",  "ABD_C0_alfa_de_pH_Kb",   "ABD_C0_pH_de_alfa_K",   "ABD_C0_pH_de_alfa_K",
    "ABD_Ka_C0_de_alfa_pH",  "ABD_Kb_C0_de_alfa_pH"};

bool FormaBase(int f) {
  return f == 3 || f == 4 || f == 7 || f == 8 || f == 11 || f == 12 || f == 14 || f == 16 || f == 18;
}

// "K_a = " or "K_b = " in italics.
std::string SimboloK(bool base, std::string_view igual = " = ") {
  return std::string(base ? "&+IK_b&-I" : "&+IK_a&-I") + std::string(igual);
}

}  // namespace

void Generador2(GenContext& g) {
  int f = g.GP_SeqB % 18 + 1;
  if (AzarSupera(g.rnd, 0.9)) f = static_cast<int>(AleatorioEn(g.rnd, 1, 18, 1, 1));
  if (AzarSupera(g.rnd, 0.8)) f = 3;
  if (AzarSupera(g.rnd, 0.8)) f = 1;
  if (AzarSupera(g.rnd, 0.9)) f = 4;
  if (AzarSupera(g.rnd, 0.9)) f = 2;
  const bool base = FormaBase(f);
  int i = base ? g.GP_SeqB % 4 + 9 : g.GP_SeqB % 8 + 1;
  if (!base && AzarSupera(g.rnd, 0.8)) i = 1;
  const Debil& s = kDebiles[i];
  const double M = MasaMolar(s.atomos);

  // The solution: a mass in a volume (even forms 2-12) or a concentration,
  // never above what dissolves, and concentrated enough for the quadratic
  // to hold.
  const bool conMasa = f % 2 == 0 && f <= 12;
  double m = 0, V = 0;
  Mostrado C0;
  do {
    if (conMasa) {
      V = AleatorioEn(g.rnd, 250, 1500, 50, 1);
      const double mMax = std::min(std::floor(M / 2), s.cMax * M * V / 1000);
      m = mMax >= 3 ? AleatorioEn(g.rnd, 2, std::floor(mMax), 1, 1)
                    : AleatorioEn(g.rnd, 2, std::floor(mMax * 20), 1, 1) / 20;  // to 0.05 g
      C0 = {m / M / (V / 1000), ""};
    } else {
      C0 = s.cMax < 0.05 ? Concentracion(AleatorioEn(g.rnd, 2, s.cMax * 1000, 1, 1) / 1000)
                         : Concentracion(AleatorioEn(g.rnd, 2, std::min(80.0, s.cMax * 100), 1, 1) / 100);
    }
  } while (s.K * C0.v < kMinKC0);

  const double x = Disociado(s.K, C0.v);
  const Mostrado pH = PH(PHDe(x, base));
  const Mostrado alfa = Alfa(x / C0.v);
  const double xPH = IonDe(pH.v, base);

  // What each form gives decides how the rest follows from it.
  double c = C0.v, xs = x, K = s.K, a = x / C0.v;
  switch ((f - 1) / 4) {
    case 0: break;                                                          // C0, K
    case 1: a = alfa.v, xs = a * c, K = a * a * c / (1 - a); break;       // alpha, C0
    case 2: xs = xPH, a = xs / c, K = xs * xs / (c - xs); break;          // C0, pH
    default:
      if (f <= 14) xs = xPH, c = xs + xs * xs / K, a = xs / c;            // pH, K
      else if (f <= 16) a = alfa.v, c = K * (1 - a) / (a * a), xs = a * c;  // alpha, K
      else xs = xPH, a = alfa.v, c = xs / a, K = xs * a / (1 - a);          // alpha, pH
  }
  const std::string tAlfa = "&alfa = " + Alfa(a).t, tPH = RespuestaPH(xs, base);
  const std::string tK = SimboloK(base) + NumCifras(K, 3), tC = "&+Ic&-I_0 = " + ConcentracionHallada(c);
  std::string sol;
  if (f <= 4) sol = tAlfa + ",   " + tPH;
  else if (f <= 8) sol = tPH + ",   " + tK;
  else if (f <= 12) sol = tK + ",   " + tAlfa;
  else if (f <= 14) sol = tC + ",   " + tAlfa;
  else if (f <= 16) sol = tC + ",   " + tPH;
  else sol = tK + ",   " + tC;

  std::string st = g.MsgQUI(kClavesDebil[f]) + "&LF";
  const std::string nombre = Nombre(g, s.nombre);
  Rellena(st, {{"%NOM%", nombre},
               {"%deNOM%", DeNombre(nombre, false)},
               {"%FOR%", std::string(s.formula)},
               {"%C00%", C0.t},
               {"%NG%", NumTexto(m) + "& g"},
               {"%VD%", NumTexto(V) + "& mL"},
               {"%ALFA%", alfa.t},
               {"%PH%", pH.t}});
  const bool daK = f <= 4 || (f >= 13 && f <= 16);
  if (daK) st += LineaDatos(g, SimboloK(base, "& =& ") + NumCifras(s.K, 3));
  if (conMasa) st += ListaAtomica(g, s.atomos);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + sol + "&LF";
}

// ---------------------------------------------------------------------------
// Generator 3: hydrolysis of salts.

namespace {

// The ion that hydrolyses: 0..2 the cations of weak bases, 3..6 the anions
// of weak acids, with its parent and the parent's K at 25 °C.
struct IonActivo {
  std::string_view nombre, formula;  // formula as it stands in the salt's
  std::string_view padre, formulaPadre;
  double Kpadre;
  Composicion atomos;
};
const IonActivo kIones[7] = {
    {"N_NH4+", "NH_4", "N_NH3", "NH_3", 1.77e-5, {{"N", 1}, {"H", 4}}},
    {"N_metilamonio", "CH_3NH_3", "N_metilamina", "CH_3NH_2", 4.37e-4, {{"C", 1}, {"H", 6}, {"N", 1}}},
    {"N_etilamonio", "C_2H_5NH_3", "N_etilamina", "C_2H_5NH_2", 6.41e-4, {{"C", 2}, {"H", 8}, {"N", 1}}},
    {"N_CN-", "CN", "N_HCN_ac", "HCN", 4e-10, {{"C", 1}, {"N", 1}}},
    {"N_CH3COO-", "CH_3COO", "N_CH3COOH", "CH_3COOH", 1.8e-5, {{"C", 2}, {"H", 3}, {"O", 2}}},
    {"N_HCOO-", "HCOO", "N_HCOOH", "HCOOH", 1.8e-4, {{"C", 1}, {"H", 1}, {"O", 2}}},
    {"N_Benzoato", "C_6H_5COO", "N_Benzoico", "C_6H_5COOH", 6.6e-5, {{"C", 7}, {"H", 5}, {"O", 2}}},
};

// The ions that do not hydrolyse; the first of each list is the usual one.
struct IonNeutro {
  std::string_view nombre, formula;
  Composicion atomos;
};
const IonNeutro kAniones[5] = {{"N_Cl-", "Cl", {{"Cl", 1}}},
                               {"N_Br-", "Br", {{"Br", 1}}},
                               {"N_I-", "I", {{"I", 1}}},
                               {"N_NO3-", "NO_3", {{"N", 1}, {"O", 3}}},
                               {"N_ClO4-", "ClO_4", {{"Cl", 1}, {"O", 4}}}};
const IonNeutro kCationes[2] = {{"N_Na", "Na", {{"Na", 1}}}, {"N_K", "K", {{"K", 1}}}};

constexpr std::string_view kClavesSal[4] = {"HID_pH_alfa_de_C0_K", "HID_C0_alfa_de_pH_K", "HID_pH_alfa_de_m_V_K",
                                            "HID_m_de_V_pH_K"};

}  // namespace

void Generador3(GenContext& g) {
  int f = g.GP_SeqB % 4;
  if (AzarSupera(g.rnd, 0.9)) f = static_cast<int>(AleatorioEn(g.rnd, 0, 3, 1, 0));
  const int activo = static_cast<int>(AleatorioEn(g.rnd, 1, 7, 1, 1)) - 1;
  const IonActivo& ion = kIones[activo];
  const bool cation = activo < 3;  // an acid ion: the solution is acidic
  // The counter-ion: the usual chloride or sodium nine times in ten. Of the
  // perchlorates only ammonium's is an everyday reagent; those of the amines
  // are explosives.
  const bool usual = !AzarSupera(g.rnd, 0.9);
  const int otroAnion = usual ? 0 : static_cast<int>(AleatorioEn(g.rnd, 2, activo == 0 ? 5 : 4, 1, 1)) - 1;
  const IonNeutro& otro = cation ? kAniones[otroAnion] : kCationes[usual ? 0 : 1];
  // The salt: cation first in its name; the carboxylates written as usual, anion first.
  const bool carboxilato = !cation && ion.formula.ends_with("COO");
  const std::string formula = cation ? std::string(ion.formula) + std::string(otro.formula)
                              : carboxilato ? std::string(ion.formula) + std::string(otro.formula)
                                            : std::string(otro.formula) + std::string(ion.formula);
  const std::string nombre = cation ? Nombre(g, ion.nombre) + " " + Nombre(g, otro.nombre)
                                    : Nombre(g, otro.nombre) + " " + Nombre(g, ion.nombre);
  Composicion atomos = ion.atomos;
  atomos.insert(atomos.end(), otro.atomos.begin(), otro.atomos.end());
  const double M = MasaMolar(atomos);
  const double K = kKw / ion.Kpadre;  // of the ion's own reaction with water

  const bool conMasa = f >= 2;
  double V = 0, m = 0;
  Mostrado C0;
  do {
    double c = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100;
    if (AzarSupera(g.rnd, 0.7)) c /= 10;
    V = AleatorioEn(g.rnd, 250, 1500, 50, 1);
    C0 = Concentracion(c);
    if (f == 2) m = ValorCifras(c * V / 1000 * M, 3), C0 = {m / M / (V / 1000), ""};
  } while (K * C0.v < kMinKC0);

  const bool basica = !cation;
  const double x = Disociado(K, C0.v);
  const Mostrado pH = PH(PHDe(x, basica));
  std::string sol;
  if (f == 0 || f == 2) {
    sol = RespuestaPH(x, basica) + ",   &alfa = " + Alfa(x / C0.v).t;
  } else {
    const double xs = IonDe(pH.v, basica), c = xs + xs * xs / K;
    sol = f == 1 ? "&+Ic&-I_0 = " + ConcentracionHallada(c) + ",   &alfa = " + Alfa(xs / c).t
                 : "&+Im&-I = " + NumCifras(c * V / 1000 * M, 4) + "& g";
  }

  std::string st = g.MsgQUI(kClavesSal[f]) + "&LF";
  Rellena(st, {{"%NOM%", nombre},
               {"%deNOM%", DeNombre(nombre, false)},
               {"%FOR%", formula},
               {"%C00%", C0.t},
               {"%NG%", NumCifras(m, 3) + "& g"},
               {"%VD%", NumTexto(V) + "& mL"},
               {"%PH%", pH.t}});
  const std::string Kp = std::string(cation ? "&+IK_b&-I" : "&+IK_a&-I") + "(" + std::string(ion.formulaPadre) +
                         ")& =& " + NumCifras(ion.Kpadre, 3);
  st += LineaDatos(g, Kp + ",   &+IK_w&-I& =& " + NumCifras(kKw, 2));
  if (conMasa) st += "&+I" + g.MsgQUI("Masa_molar") + ":&-I " + formula + " = " + NumTexto(M) + "& g/mol&LF";
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:" + sol + "&LF";
}

}  // namespace ss::mod::eab
