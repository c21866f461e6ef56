// Generator 4: buffer solutions of acetic acid and sodium acetate, or of
// ammonia and ammonium chloride, their pH by the Henderson-Hasselbalch
// relation, and how it changes when a strong acid or base is added, to the
// buffer or to the same volume of pure water.
//
// The relation is a shortcut of the exact equilibrium: it holds while both
// partners stay far more concentrated than the H3O+ (or OH-) they hold. The
// data are drawn again until the exact pH and the shortcut agree within the
// rounding of the pH shown, before and after the addition.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "modules/ANEU_QUIM_EAB/eab.h"
#include "problems/generador.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eab {
namespace {

// Ka of acetic acid and Kb of ammonia at 25 °C, both 1.8E-5.
constexpr double kK = 1.8e-5;

// Forms 0..5 by the variant counter: the opening, the question of part b),
// the buffer (acetic or ammonia) and what is added (NaOH or HCl).
struct FormaReguladora {
  std::string_view apertura, pregunta;
  bool amoniaco, sosa, agua;
};
constexpr FormaReguladora kFormas[6] = {
    {"REG_RAS", "Hallar_pH_dpH_add_NaOH_VR", false, true, false},
    {"REG_RBS", "Hallar_pH_dpH_add_HCl_VR", true, false, false},
    {"REG_V_RAS", "Hallar_pH_dpH_add_HCl", false, false, false},
    {"REG_V_RBS", "Hallar_pH_dpH_add_NaOH", true, true, false},
    {"REG_V_RAS", "Hallar_pH_dpH_add_NaOH_H2O", false, true, true},
    {"REG_V_RBS", "Hallar_pH_dpH_add_HCl_H2O", true, false, true},
};

// The pH of a buffer whose weak partner (acetic acid or ammonia) and
// conjugate (acetate or ammonium) stand in amounts `debil` and `conjugado`:
// p = pK + log10(conjugate / weak) is the pH of the acetic buffer and the
// pOH of the ammonia one.
double Henderson(double debil, double conjugado, bool amoniaco) {
  const double p = -std::log10(kK) + std::log10(conjugado / debil);
  return amoniaco ? 14 - p : p;
}

// The same from the equilibrium itself, in concentrations: y = [H3O+] of
// the acetic buffer, [OH-] of the ammonia one, from K = y (conj + y) / (weak - y).
double Exacto(double debil, double conjugado, bool amoniaco) {
  const double b = conjugado + kK;
  const double y = (std::sqrt(b * b + 4 * kK * debil) - b) / 2;
  return amoniaco ? 14 + std::log10(y) : -std::log10(y);
}

// Within this of the exact pH the shortcut rounds to the same thousandth or
// to the one beside it.
constexpr double kHendersonHolds = 4e-4;

bool Vale(double debil, double conjugado, bool amoniaco) {
  const double r = conjugado / debil;
  return debil > 0 && conjugado > 0 && r >= 0.1 && r <= 10 &&
         std::fabs(Henderson(debil, conjugado, amoniaco) - Exacto(debil, conjugado, amoniaco)) <= kHendersonHolds;
}

std::string TextoPH(double pH) { return NumTexto(RedondeaPot(pH, -4)); }

// "+0.067" or "-0.067": the change of a pH, with its sign.
std::string Cambio(double d) { return (d >= 0 ? "+" : "") + NumTexto(RedondeaPot(d, -4)); }

std::string PHyCambio(double antes, double despues) {
  return "pH = " + TextoPH(despues) + ",   &DeltapH = " + Cambio(RedondeaPot(despues, -4) - RedondeaPot(antes, -4));
}

}  // namespace

void Generador4(GenContext& g) {
  const FormaReguladora& f = kFormas[g.GP_SeqB % 6];
  // Does the addition use up the weak partner (NaOH into acetic acid, HCl
  // into ammonia) or the conjugate?
  const bool gastaDebil = f.sosa != f.amoniaco;
  double VR = 0, Vad = 0, Cad = 0, debil = 0, conj = 0, nAd = 0, gastado = 0, debil2 = 0, conj2 = 0;
  do {
    VR = AleatorioEn(g.rnd, 25, 200, 5, 1);                 // mL of buffer
    Cad = AleatorioEn(g.rnd, 10, 25, 5, 1) / 100;           // mol/L of the NaOH or HCl added
    debil = AleatorioEn(g.rnd, 5, 90, 1, 1) / 100;          // mol/L of acetic acid or ammonia
    const double razon = AleatorioEn(g.rnd, 80, 125, 1, 1) / 100;
    conj = std::floor(debil * razon * 100 + 0.1) / 100;    // mol/L of acetate or ammonium
    if (AzarSupera(g.rnd, 0.5)) conj = AleatorioEn(g.rnd, 5, 40, 1, 1) / 100;
    Vad = AleatorioEn(g.rnd, 1, std::min(50.0, std::floor(VR / 2)), 1, 1);  // mL, at most half the buffer
    nAd = Cad * Vad;                                          // mmol
    gastado = (gastaDebil ? debil : conj) * VR;               // mmol of the partner it uses up
    debil2 = debil * VR + (gastaDebil ? -nAd : nAd);
    conj2 = conj * VR + (gastaDebil ? nAd : -nAd);
    // The buffer keeps at least 40 % of the partner it spends, and the change is
    // one to see; the shortcut holds before and after.
  } while (nAd > 0.6 * gastado || nAd < 0.05 * gastado || !Vale(debil, conj, f.amoniaco) ||
           !Vale(debil2 / (VR + Vad), conj2 / (VR + Vad), f.amoniaco));

  const double pH0 = Henderson(debil, conj, f.amoniaco);
  const double pH1 = Henderson(debil2, conj2, f.amoniaco);
  const std::string VAd = NumTexto(Vad) + "& mL", CAd = NumTexto(Cad) + "& mol/L";
  std::string st = g.MsgQUI(f.apertura) + "&LF" + "&+I" + g.MsgQUI("Dato") + ":&-I  " +
                   (f.amoniaco ? "&+IK_b&-I(NH_3)" : "&+IK_a&-I(CH_3COOH)") + "& =& " + NumCifras(kK, 3) +
                   ",   &+IK_w&-I& =& " + NumCifras(1e-14, 2) + " (25& \xB0" "C)&LF" + g.MsgQUI("DCH") +
                   ":&LF&SP=5:" + Etiqueta(1) + g.MsgQUI("Hallar_pH") + ".&LF&SP=5:" + Etiqueta(2) +
                   g.MsgQUI(f.pregunta) + ".&LF";
  // The acid of the buffer is acetic acid or ammonium, its base acetate or ammonia.
  const double acido = f.amoniaco ? conj : debil, base = f.amoniaco ? debil : conj;
  ReplaceAll(st, "%CAR%", NumTexto(acido) + "& mol/L");
  ReplaceAll(st, "%CBR%", NumTexto(base) + "& mol/L");
  ReplaceAll(st, "%VR%", NumTexto(VR) + "& mL");
  ReplaceAll(st, "%VAF%", VAd);
  ReplaceAll(st, "%VBF%", VAd);
  ReplaceAll(st, "%CAF%", CAd);
  ReplaceAll(st, "%CBF%", CAd);
  g.GP_Statement = st;

  std::string sol = "&SP=10:" + Etiqueta(1) + "pH = " + TextoPH(pH0) + "&LF&SP=10:" + Etiqueta(2) + PHyCambio(pH0, pH1);
  if (f.agua) {
    // The same amount in pure water: nothing takes it up.
    const double c = nAd / (VR + Vad);
    const double pHAgua = f.sosa ? 14 + std::log10(c) : -std::log10(c);
    sol += ";   " + g.MsgQUI("REG_En_agua") + ": " + PHyCambio(7, pHAgua);
  }
  g.GP_Solution = sol + "&LF";
}

}  // namespace ss::mod::eab
