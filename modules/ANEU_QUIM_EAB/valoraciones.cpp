// Generator 8: acid-base titrations, eleven forms. At the equivalence point
// the equivalents of acid and base are equal:
//   eq_acid * C_acid * V_acid = eq_base * C_base * V_base.
// Forms: the volumes of NaOH that three acid solutions take (1) and of HCl
// that three base solutions take (2); the acetic acid of a vinegar (3); the
// molarity of HCl from a carbonate (4) and of NaOH from a mass of acid (5);
// the molar mass of an unknown acid (6); the purity of commercial NaOH (7);
// the pH at the equivalence point of a weak base (8) or a weak acid (9),
// where the salt formed reacts with water and is solved exactly, with the
// quadratic; and the pH at three points of the titration of a strong acid by
// a strong base (10) and the reverse (11).
//
// Every volume the burette reads is computed and shown to four figures; the
// answers are then worked from the data as the page shows them.
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "modules/ANEU_QUIM_DIS/densidades.h"
#include "modules/ANEU_QUIM_EAB/eab.h"
#include "problems/fallos.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eab {
namespace {

constexpr double kKw = 1e-14;

// An acid (rows 1-17) or base (18-34) titrated in solution: formula,
// equivalents (protons given or taken), Ka or Kb of the weak ones (0 for the
// strong), the concentrations a solution of it is drawn in (mol/L, from, to,
// step: the weakly soluble and the unstable ones only as dilute as they
// exist), its neutralisation by NaOH (acids) or HCl (bases), and for the
// weak ones the reaction of the salt's ion with water at the equivalence
// point. K of the weak species as in the weak acids and bases problems.
struct Valorable {
  std::string_view formula;
  int equivalentes;
  double K;
  double cMin, cMax, cPaso;
  std::string_view neutralizacion, hidrolisis;
};

constexpr std::array<Valorable, 34> kEspecies = {{
    {"CH_3COOH", 1, 1.8e-5, 0.06, 0.8, 0.005, "CH_3COOH + NaOH &ars CH_3COONa + H_2O",
     "CH_3COO#SPB(L-#T)( #SPB) + H_2O &Q CH_3COOH + OH#SPB(L-#T)( #SPB)"},
    {"HF", 1, 7e-4, 0.06, 0.8, 0.005, "HF + NaOH &ars NaF + H_2O",
     "F#SPB(L-#T)( #SPB) + H_2O &Q HF + OH#SPB(L-#T)( #SPB)"},
    // Nitrous acid decomposes unless dilute.
    {"HNO_2", 1, 4.5e-4, 0.06, 0.2, 0.005, "HNO_2 + NaOH &ars NaNO_2 + H_2O",
     "NO#SPB(L-#T)(2#SPB) + H_2O &Q HNO_2 + OH#SPB(L-#T)( #SPB)"},
    {"HCOOH", 1, 1.8e-4, 0.06, 0.8, 0.005, "HCOOH + NaOH &ars HCOONa + H_2O",
     "HCOO#SPB(L-#T)( #SPB) + H_2O &Q HCOOH + OH#SPB(L-#T)( #SPB)"},
    // Benzoic acid dissolves to about 0.024 mol/L at 20 °C.
    {"C_6H_5COOH", 1, 6.6e-5, 0.01, 0.02, 0.001, "C_6H_5COOH + NaOH &ars C_6H_5COONa + H_2O",
     "C_6H_5COO#SPB(L-#T)( #SPB) + H_2O &Q C_6H_5COOH + OH#SPB(L-#T)( #SPB)"},
    // Hypochlorous acid is kept only as a dilute solution.
    {"HClO", 1, 3e-8, 0.06, 0.2, 0.005, "HClO + NaOH &ars NaClO + H_2O",
     "ClO#SPB(L-#T)( #SPB) + H_2O &Q HClO + OH#SPB(L-#T)( #SPB)"},
    {"HCN", 1, 4e-10, 0.06, 0.8, 0.005, "HCN + NaOH &ars NaCN + H_2O",
     "CN#SPB(L-#T)( #SPB) + H_2O &Q HCN + OH#SPB(L-#T)( #SPB)"},
    {"CH_3(CH_2)_2COOH", 1, 1.5e-5, 0.06, 0.8, 0.005, "CH_3(CH_2)_2COOH + NaOH &ars CH_3(CH_2)_2COONa + H_2O",
     "CH_3(CH_2)_2COO#SPB(L-#T)( #SPB) + H_2O &Q CH_3(CH_2)_2COOH + OH#SPB(L-#T)( #SPB)"},
    {"HCl", 1, 0, 0.06, 0.8, 0.005, "HCl + NaOH &ars NaCl + H_2O", ""},
    {"HNO_3", 1, 0, 0.06, 0.8, 0.005, "HNO_3 + NaOH &ars NaNO_3 + H_2O", ""},
    {"H_2SO_3", 2, 0, 0.06, 0.8, 0.005, "H_2SO_3 + 2NaOH &ars Na_2SO_3 + 2H_2O", ""},
    {"H_2SO_4", 2, 0, 0.06, 0.8, 0.005, "H_2SO_4 + 2NaOH &ars Na_2SO_4 + 2H_2O", ""},
    {"H_2SeO_4", 2, 0, 0.06, 0.8, 0.005, "H_2SeO_4 + 2NaOH &ars Na_2SeO_4 + 2H_2O", ""},
    // Oxalic acid, diprotic, dissolves to about 1 mol/L.
    {"H_2C_2O_4", 2, 0, 0.06, 0.5, 0.005, "H_2C_2O_4 + 2NaOH &ars Na_2C_2O_4 + 2H_2O", ""},
    {"H_3PO_4", 3, 0, 0.06, 0.8, 0.005, "H_3PO_4 + 3NaOH &ars Na_3PO_4 + 3H_2O", ""},
    // Phosphorous acid gives two protons: its third hydrogen is bound to P.
    {"H_3PO_3", 2, 0, 0.06, 0.8, 0.005, "H_3PO_3 + 2NaOH &ars Na_2HPO_3 + 2H_2O", ""},
    {"H_3AsO_4", 3, 0, 0.06, 0.8, 0.005, "H_3AsO_4 + 3NaOH &ars Na_3AsO_4 + 3H_2O", ""},
    {"NH_3", 1, 1.77e-5, 0.06, 0.8, 0.005, "NH_3 + HCl &ars NH_4Cl",
     "NH#SPB(L+#T)(4#SPB) + H_2O &Q NH_3 + H_3O^+"},
    {"CH_3NH_2", 1, 4.37e-4, 0.06, 0.8, 0.005, "CH_3NH_2 + HCl &ars CH_3NH_3Cl",
     "CH_3NH#SPB(L+#T)(3#SPB) + H_2O &Q CH_3NH_2 + H_3O^+"},
    // Aniline dissolves to about 0.39 mol/L.
    {"C_6H_5NH_2", 1, 3.8e-10, 0.06, 0.3, 0.005, "C_6H_5NH_2 + HCl &ars C_6H_5NH_3Cl",
     "C_6H_5NH#SPB(L+#T)(3#SPB) + H_2O &Q C_6H_5NH_2 + H_3O^+"},
    {"C_2H_5NH_2", 1, 6.41e-4, 0.06, 0.8, 0.005, "C_2H_5NH_2 + HCl &ars C_2H_5NH_3Cl",
     "C_2H_5NH#SPB(L+#T)(3#SPB) + H_2O &Q C_2H_5NH_2 + H_3O^+"},
    {"NaOH", 1, 0, 0.06, 0.8, 0.005, "NaOH + HCl &ars NaCl + H_2O", ""},
    {"KOH", 1, 0, 0.06, 0.8, 0.005, "KOH + HCl &ars KCl + H_2O", ""},
    {"LiOH", 1, 0, 0.06, 0.8, 0.005, "LiOH + HCl &ars LiCl + H_2O", ""},
    // Barium hydroxide dissolves to about 0.23 mol/L at 20 °C.
    {"Ba(OH)_2", 2, 0, 0.06, 0.2, 0.005, "Ba(OH)_2 + 2HCl &ars BaCl_2 + 2H_2O", ""},
    {"Na_2CO_3", 2, 0, 0.06, 0.8, 0.005, "Na_2CO_3 + 2HCl &ars 2NaCl + CO_2 + H_2O", ""},
    {"K_2CO_3", 2, 0, 0.06, 0.8, 0.005, "K_2CO_3 + 2HCl &ars 2KCl + CO_2 + H_2O", ""},
    // Lime water: calcium hydroxide dissolves to about 0.022 mol/L.
    {"Ca(OH)_2", 2, 0, 0.01, 0.02, 0.001, "Ca(OH)_2 + 2HCl &ars CaCl_2 + 2H_2O", ""},
    // Strontium hydroxide dissolves to about 0.14 mol/L at 20 °C.
    {"Sr(OH)_2", 2, 0, 0.06, 0.1, 0.005, "Sr(OH)_2 + 2HCl &ars SrCl_2 + 2H_2O", ""},
    {"RbOH", 1, 0, 0.06, 0.8, 0.005, "RbOH + HCl &ars RbCl + H_2O", ""},
    {"CsOH", 1, 0, 0.06, 0.8, 0.005, "CsOH + HCl &ars CsCl + H_2O", ""},
    {"NaHCO_3", 1, 0, 0.06, 0.8, 0.005, "NaHCO_3 + HCl &ars NaCl + CO_2 + H_2O", ""},
    {"KHCO_3", 1, 0, 0.06, 0.8, 0.005, "KHCO_3 + HCl &ars KCl + CO_2 + H_2O", ""},
    {"(CH_3)_2NH", 1, 0, 0.06, 0.8, 0.005, "(CH_3)_2NH + HCl &ars (CH_3)_2NH_2Cl", ""},
}};

// Form 4: carbonates that hydrochloric acid takes to carbon dioxide; molar
// masses in g/mol.
struct Reactivo {
  std::string_view formula;
  int equivalentes;
  double masaMolar;
  std::string_view reaccion;
};
constexpr std::array<Reactivo, 3> kCarbonatos = {{
    {"CaCO_3", 2, 100.09, "CaCO_3 + 2HCl &ars CaCl_2 + CO_2 + H_2O"},
    {"K_2CO_3", 2, 138.21, "K_2CO_3 + 2HCl &ars 2KCl + CO_2 + H_2O"},
    {"Na_2CO_3", 2, 105.99, "Na_2CO_3 + 2HCl &ars 2NaCl + CO_2 + H_2O"},
}};

// Form 5: acids weighed into water and neutralised completely by NaOH.
constexpr std::array<Reactivo, 7> kAcidos = {{
    {"H_3PO_4", 3, 97.99, "H_3PO_4 + 3NaOH &ars Na_3PO_4 + 3H_2O"},
    {"H_2SO_4", 2, 98.08, "H_2SO_4 + 2NaOH &ars Na_2SO_4 + 2H_2O"},
    {"H_2C_2O_4", 2, 90.03, "H_2C_2O_4 + 2NaOH &ars Na_2C_2O_4 + 2H_2O"},
    {"HClO_3", 1, 84.46, "HClO_3 + NaOH &ars NaClO_3 + H_2O"},
    {"HCl", 1, 36.46, "HCl + NaOH &ars NaCl + H_2O"},
    {"CH_3COOH", 1, 60.05, "CH_3COOH + NaOH &ars CH_3COONa + H_2O"},
    {"HCOOH", 1, 46.03, "HCOOH + NaOH &ars HCOONa + H_2O"},
}};

// Form 7: the acids that titrate the commercial hydroxide.
constexpr std::array<Reactivo, 2> kAcidosNaOH = {{
    {"HCl", 1, 36.46, "NaOH + HCl &ars NaCl + H_2O"},
    {"H_2SO_4", 2, 98.08, "2NaOH + H_2SO_4 &ars Na_2SO_4 + 2H_2O"},
}};

constexpr double kMAcetico = 60.05, kMNaOH = 40.00;

// x to the four significant figures a page shows it with.
double Cifras4(double x) { return x == 0 ? 0 : RedondeaPot(x, std::floor(std::log10(std::fabs(x))) - 4); }
// An answer, or a volume read on the burette, to four significant figures,
// with the zeros that keep them: 0.2 mol/L is written 0.2000.
std::string N4(double x) {
  std::string t = NumCifras(x, 4);
  if (x == 0 || t.find("&E") != std::string::npos) return t;
  int cifras = 0;
  bool significativa = false;
  for (char c : t) {
    significativa = significativa || (c >= '1' && c <= '9');
    if (significativa && c >= '0' && c <= '9') ++cifras;
  }
  if (cifras >= 4) return t;
  if (t.find("&.") == std::string::npos) t += "&.";
  return t + std::string(static_cast<std::size_t>(4 - cifras), '0');
}

std::string Ml(double v) { return NumTexto(v) + "& mL"; }
std::string Molar(double c) { return NumTexto(c) + "& mol/L"; }
std::string Gramos(double m) { return NumTexto(m) + "& g"; }
// A molar mass with its two decimals: 40.00 g/mol.
std::string GMol(double m) {
  std::string t = NumTexto(m);
  const std::size_t punto = t.find("&.");
  if (punto == std::string::npos) t += "&.00";
  else if (t.size() - punto < 4) t += '0';
  return t + "& g/mol";
}

int Sorteo(GenContext& g, int desde, int hasta) { return static_cast<int>(AleatorioEn(g.rnd, desde, hasta, 1, 1)); }
const Valorable& Especie(int indice) { return At(kEspecies, indice - 1); }

// The titrant: 0.030-0.250 mol/L.
double CTitulante(GenContext& g) { return AleatorioEn(g.rnd, 30, 250, 5, 1) / 1000; }
// A solution of species e, within what exists of it.
double CMuestra(GenContext& g, const Valorable& e) {
  return AleatorioEn(g.rnd, e.cMin * 1000, e.cMax * 1000, e.cPaso * 1000, 1) / 1000;
}

bool Bureta(double v, double desde = 8) { return v >= desde && v <= 60; }

// The concentration of hydronium (or hydroxide) of a weak acid (base) of
// constant K and concentration C, from x^2 / (C - x) = K without dropping x.
double Cuadratica(double K, double C) { return (Sqrt(K * K + 4 * K * C) - K) / 2; }

// What every statement may hold.
struct Datos {
  std::string va, vb, ca, cb, fa, fb, for1, ma, mb, mi, den;
};
std::string Rellena(std::string t, const Datos& d) {
  const std::pair<std::string_view, const std::string&> r[] = {
      {"%VA%", d.va}, {"%VB%", d.vb}, {"%CA%", d.ca}, {"%CB%", d.cb}, {"%FA%", d.fa}, {"%FB%", d.fb},
      {"%FOR1%", d.for1}, {"%MA%", d.ma}, {"%MB%", d.mb}, {"%MI%", d.mi}, {"%DEN%", d.den}};
  for (const auto& [de, por] : r) ReplaceAll(t, de, por);
  return t;
}

// Forms 1 and 2: three solutions of acids (bases) and the volume of the NaOH
// (HCl) solution that neutralises each; every volume lies within 10-60 mL.
void TresMuestras(GenContext& g, bool acidos, std::string& st, std::string& so) {
  const double ct = CTitulante(g);
  Datos d;
  (acidos ? d.cb : d.ca) = Molar(ct);
  st = Rellena(g.MsgQUI(acidos ? "Hallar_V_NaoH_val_acidos" : "Hallar_V_HCl_val_bases"), d) + ":&LF";
  std::array<int, 3> vistas{};
  for (int i = 0; i < 3; ++i) {
    // A species not named yet whose solutions can take 10-60 mL of this
    // titrant, then a solution of it that does.
    int k;
    auto cabe = [&](const Valorable& e) {
      return e.equivalentes * e.cMax * 50 / ct >= 10 && e.equivalentes * e.cMin * 15 / ct <= 60;
    };
    do k = acidos ? Sorteo(g, 1, 17) : Sorteo(g, 18, 34);
    while (k == vistas[0] || k == vistas[1] || !cabe(Especie(k)));
    double v, c, V;
    do {
      v = AleatorioEn(g.rnd, 15, 50, 1, 1);
      c = CMuestra(g, Especie(k));
      V = Especie(k).equivalentes * c * v / ct;
    } while (!Bureta(V, 10));
    vistas[static_cast<std::size_t>(i)] = k;
    const Valorable& e = Especie(k);
    Datos m;
    (acidos ? m.va : m.vb) = Ml(v);
    (acidos ? m.ca : m.cb) = Molar(c);
    (acidos ? m.fa : m.fb) = std::string(e.formula);
    st += "&SP=5:" + Etiqueta(i + 1) + Rellena(g.MsgQUI(acidos ? "Val_Acido_Item" : "Val_Base_Item"), m) + "&LF";
    so += "&SP=10:" + Etiqueta(i + 1) + N4(V) + "& mL&SP=30:" + std::string(e.neutralizacion) + "&LF";
  }
}

// The data line of the weak species: its constant and that of water.
std::string LineaK(GenContext& g, bool base, double K) {
  return "&+I" + g.MsgQUI("Datos") + ":&-I  &+IK_" + (base ? "b" : "a") + "&-I& =& " + NumCifras(K, 3) +
         ",   &+IK_w&-I& =& " + NumCifras(kKw, 3) + "&LF";
}

// The pH of strong acid (C_a, V_a) and strong base (C_b, V_b) mixed; the
// equivalence point, when the amounts are equal as the page gives them, is 7.
double PHMezcla(double ca, double va, double cb, double vb) {
  const double exceso = (ca * va - cb * vb) / (va + vb);  // mol/L of H3O+ left, negative for OH-
  if (std::fabs(exceso) < 1e-12) return 7;
  return exceso > 0 ? -Log10(exceso) : 14 + Log10(-exceso);
}

// A weighed standard (m from mMin to mMax mg) titrated to its equivalence
// point: the molarity of the titrant, worked from the burette reading shown.
void Patron(GenContext& g, const Reactivo& r, double mMin, double mMax, double paso, std::string_view clave,
            std::string_view titulante, std::string& volumen, std::string& masaMolar, Datos& d, std::string& st,
            std::string& so) {
  double m, c0, v;
  do {
    m = AleatorioEn(g.rnd, mMin, mMax, paso, 1) / 1000;
    c0 = CTitulante(g);
    v = r.equivalentes * m / r.masaMolar / c0 * 1000;
  } while (!Bureta(v));
  v = Cifras4(v);
  const double c = r.equivalentes * m / r.masaMolar / (v / 1000);
  d.mi = Gramos(m), d.for1 = std::string(r.formula), masaMolar = GMol(r.masaMolar), volumen = N4(v) + "& mL";
  st = g.MsgQUI(clave) + "&LF";
  so = "&SP=10:[" + std::string(titulante) + "] = " + N4(c) + "& mol/L&LF&SP=10:" + std::string(r.reaccion) + "&LF";
}

}  // namespace

void Generador8(GenContext& g) {
  const int forma = g.GP_SeqB % 11 + 1;
  std::string st, so;
  Datos d;
  switch (forma) {
    case 1:
    case 2: TresMuestras(g, forma == 1, st, so); break;

    case 3: {
      // Vinegar of 4-8 % acetic acid; the density is that of an acetic acid
      // solution of that strength.
      double v, p, den, cb, vb;
      do {
        v = AleatorioEn(g.rnd, 30, 150, 1, 1) / 10;
        p = AleatorioEn(g.rnd, 40, 80, 1, 1) / 10;
        den = RedondeaPot(dis::Densidad(dis::Soluto::Acetico, p), -4);
        cb = CTitulante(g);
        vb = v * den * p / 100 / kMAcetico / cb * 1000;
      } while (!Bureta(vb));
      vb = Cifras4(vb);
      const double c = cb * vb / v, pct = c * kMAcetico / (10 * den);
      d.va = Ml(v), d.vb = N4(vb) + "& mL", d.cb = Molar(cb), d.den = NumTexto(den) + "& g/mL", d.ma = GMol(kMAcetico);
      st = g.MsgQUI("Valorac_Vinagre_V_DEN_Vb_Cb") + " " + g.MsgQUI("Hallar_MolaridcAcetico_%masa") + "&LF";
      so = "&SP=10:[CH_3COOH] = " + N4(c) + "& mol/L,    " + N4(pct) + "& %&LF&SP=10:" +
           std::string(kEspecies[0].neutralizacion) + "&LF";
      break;
    }

    case 4:
      Patron(g, At(kCarbonatos, Sorteo(g, 1, 3) - 1), 500, 4000, 50, "Hallar_MolaridHCl_Valorac_CO3", "HCl", d.va,
             d.mb, d, st, so);
      break;

    case 5:
      Patron(g, At(kAcidos, Sorteo(g, 1, 7) - 1), 50, 800, 5, "Hallar_MolaridNaOH_Valorac_acido", "NaOH", d.vb, d.ma,
             d, st, so);
      break;

    case 6: {
      double m, M, cb, vb;
      do {
        m = AleatorioEn(g.rnd, 50, 400, 1, 1) / 100;
        M = AleatorioEn(g.rnd, 400, 2000, 1, 1) / 10;
        cb = CTitulante(g);
        vb = m / M / cb * 1000;
      } while (!Bureta(vb));
      vb = Cifras4(vb);
      const double n = cb * vb / 1000;
      d.mi = Gramos(m), d.cb = Molar(cb), d.vb = N4(vb) + "& mL";
      st = g.MsgQUI("Hallar_MM_acido_valoracNaOH") + "&LF";
      so = "&SP=10:&+IM&-I = " + N4(m / n) + "& g/mol&LF&SP=10:HA + NaOH &ars NaA + H_2O;    &+In&-I(HA) = " +
           N4(n) + "& mol&LF";
      break;
    }

    case 7: {
      const Reactivo* r = &At(kAcidosNaOH, AzarSupera(g.rnd, 0.6) ? 1 : 0);
      double m, p, ca, va;
      do {
        m = AleatorioEn(g.rnd, 50, 800, 1, 1) / 100;
        p = AleatorioEn(g.rnd, 40, 90, 1, 1);
        ca = CTitulante(g);
        va = m * p / 100 / kMNaOH / (r->equivalentes * ca) * 1000;
      } while (!Bureta(va));
      va = Cifras4(va);
      const double pureza = r->equivalentes * ca * va / 1000 * kMNaOH / m * 100;
      d.mi = Gramos(m), d.ca = Molar(ca), d.fa = std::string(r->formula), d.va = N4(va) + "& mL", d.mb = GMol(kMNaOH);
      st = g.MsgQUI("Hallar_%NaOH_valorac_Acido") + "&LF";
      so = "&SP=10:NaOH: " + N4(pureza) + "& %&LF&SP=10:" + std::string(r->reaccion) + "&LF";
      break;
    }

    case 8:
    case 9: {
      // A weak base (acid) titrated by HCl (NaOH): at the equivalence point
      // the solution holds its conjugate acid (base) alone, of concentration
      // n / (V_sample + V_titrant), which reacts with water.
      const bool base = forma == 8;
      const Valorable* e = &Especie(base ? Sorteo(g, 18, 21) : Sorteo(g, 1, 8));
      double v, c, ct, veq, ceq;
      do {
        v = AleatorioEn(g.rnd, 15, 50, 1, 1);
        c = CMuestra(g, *e);
        ct = CTitulante(g);
        veq = c * v / ct;
        ceq = c * v / (v + veq);
      } while (!Bureta(veq) || ceq < 0.01);
      const double K = kKw / e->K, x = Cuadratica(K, ceq);
      const double pH = base ? -Log10(x) : 14 + Log10(x);
      if (base)
        d.vb = Ml(v), d.cb = Molar(c), d.fb = std::string(e->formula), d.ca = Molar(ct);
      else
        d.va = Ml(v), d.ca = Molar(c), d.fa = std::string(e->formula), d.cb = Molar(ct);
      st = g.MsgQUI(base ? "Hallar_pHequiv_Base_valorac_HCl" : "Hallar_pHequiv_Acido_valorac_NaOH") + "&LF" +
           LineaK(g, base, e->K);
      so = "&SP=10:&+Ba)&-B " + N4(veq) + "& mL;    &+Bb)&-B pH = " + N4(pH) + "&LF&SP=10:" +
           std::string(e->hidrolisis) + ",   " + (base ? "&+IK_a&-I = &+IK_w&-I/&+IK_b&-I" : "&+IK_b&-I = &+IK_w&-I/&+IK_a&-I") +
           " = " + NumCifras(K, 4) + "&LF&SP=10:&+IC&-I = " + N4(ceq) +
           "& mol/L,   [" + (base ? "H_3O^+" : "OH#SPB(L-#T)( #SPB)") + "] = " + N4(x) + "& mol/L&LF";
      break;
    }

    default: {
      // A strong acid (form 10) or base (11) titrated by the other: the pH
      // before, at and after the equivalence point, which falls on a volume
      // the burette reads to 0.1 mL.
      const bool acido = forma == 10;
      const std::string fa = AzarSupera(g.rnd, 0.7) ? "HNO_3" : "HCl";
      const std::string fb = AzarSupera(g.rnd, 0.5) ? "KOH" : "NaOH";
      double v, c, ct, veq;
      do {
        v = AleatorioEn(g.rnd, 10, 40, 1, 1);
        c = AleatorioEn(g.rnd, 60, 800, 5, 1) / 1000;
        ct = CTitulante(g);
        veq = c * v / ct;
      } while (veq < 10 || veq > 60 || std::fabs(veq * 10 - std::round(veq * 10)) > 1e-9);
      veq = std::round(veq * 10) / 10;
      const double v1 = AleatorioEn(g.rnd, std::ceil(0.3 * veq), std::floor(0.8 * veq), 1, 1);
      const double v3 = std::ceil(veq + 0.01) + AleatorioEn(g.rnd, 2, 15, 1, 1);
      const std::array<double, 3> vs = {v1, veq, v3};
      std::string lista = Ml(v1) + ", " + Ml(veq) + " " + g.MsgQUI("and") + " " + Ml(v3);
      so = "&SP=10:";
      for (std::size_t k = 0; k < vs.size(); ++k) {
        const double pH = acido ? PHMezcla(c, v, ct, vs[k]) : PHMezcla(ct, vs[k], c, v);
        so += (k ? ";    " : "") + std::string("V = ") + Ml(vs[k]) + ":  pH = " + N4(pH);
      }
      so += "&LF";
      d.fa = fa, d.fb = fb;
      if (acido)
        d.va = Ml(v), d.ca = Molar(c), d.cb = Molar(ct), d.vb = lista;
      else
        d.vb = Ml(v), d.cb = Molar(c), d.ca = Molar(ct), d.va = lista;
      st = g.MsgQUI(acido ? "Hallar_pHs_V_V_V_acido" : "Hallar_pHs_V_V_V_base") + "&LF";
      break;
    }
  }
  g.GP_Statement = Rellena(st, d);
  g.GP_Solution = so;
}

}  // namespace ss::mod::eab
