// Generators 1 and 2: the solubility product and the solubility of a
// sparingly soluble salt, and the common-ion effect.
//
// Every answer is worked from the numbers as the statement shows them, so a
// student who starts from the page finds the answers printed.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modules/ANEU_QUIM_CEP/cep.h"
#include "problems/aleatorio.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::cep {
namespace {

constexpr std::string_view kHidroxido = "OH#SPB(L-#T)( #SPB)";

// A sparingly soluble salt CatA AniB: Ks at 25 °C, molar mass in g/mol, its
// ions and the numbers a, b of cations and anions in its formula.
struct Sal {
  std::string_view formula, nombre;
  double Ks, M;
  std::string_view cation, anion;
  int a, b;
};

// Solubility products at 25 °C from handbook tables of solubility product
// constants (the sulfides from the analytical-chemistry handbooks); molar
// masses from the standard atomic weights. Aluminium hydroxide is left out:
// the hydroxide it would release is less than water's own, so a saturated
// solution of it cannot be worked from Ks alone; nickel(II) hydroxide takes
// its place. Copper(I) sulfide releases Cu+ ions.
constexpr Sal kSales[21] = {
    {"AgCl", "N_AgCl", 1.77e-10, 143.32, "Ag^+", "Cl#SPB(L-#T)( #SPB)", 1, 1},
    {"CaF_2", "N_CaF2", 3.45e-11, 78.08, "Ca^2^+", "F#SPB(L-#T)( #SPB)", 1, 2},
    {"BaSO_4", "N_BaSO4", 1.08e-10, 233.4, "Ba^2^+", "SO#SPB(L2-#T)(4#SPB)", 1, 1},
    {"Ag_3PO_4", "N_Ag3PO4", 8.89e-17, 418.58, "Ag^+", "PO#SPB(L3-#T)(4#SPB)", 3, 1},
    {"Ba(IO_3)_2", "N_Ba(IO3)2", 4.01e-9, 487.13, "Ba^2^+", "IO#SPB(L-#T)(3#SPB)", 1, 2},
    {"Ca_3(PO_4)_2", "N_Ca3(PO4)2", 2.07e-33, 310.18, "Ca^2^+", "PO#SPB(L3-#T)(4#SPB)", 3, 2},
    {"Ag_2CrO_4", "N_Ag2CrO4", 1.12e-12, 331.73, "Ag^+", "CrO#SPB(L2-#T)(4#SPB)", 2, 1},
    {"AgBr", "N_AgBr", 5.35e-13, 187.78, "Ag^+", "Br#SPB(L-#T)( #SPB)", 1, 1},
    {"AgI", "N_AgI", 8.52e-17, 234.77, "Ag^+", "I#SPB(L-#T)( #SPB)", 1, 1},
    {"Ni(OH)_2", "N_Ni(OH)2", 5.48e-16, 92.71, "Ni^2^+", kHidroxido, 1, 2},
    {"Mn(OH)_2", "N_Mn(OH)2", 2.06e-13, 88.95, "Mn^2^+", kHidroxido, 1, 2},
    {"Mg(OH)_2", "N_Mg(OH)2", 5.61e-12, 58.33, "Mg^2^+", kHidroxido, 1, 2},
    {"Zn(OH)_2", "N_Zn(OH)2", 3e-17, 99.38, "Zn^2^+", kHidroxido, 1, 2},
    {"Ag_2S", "N_Ag2S", 6.3e-50, 247.8, "Ag^+", "S#SPB(L2-#T)( #SPB)", 2, 1},
    {"Cu_2S", "N_Cu2S", 2.5e-48, 159.14, "Cu^+", "S#SPB(L2-#T)( #SPB)", 2, 1},
    {"PbBr_2", "N_PbBr2", 6.6e-6, 367.01, "Pb^2^+", "Br#SPB(L-#T)( #SPB)", 1, 2},
    {"ZnS", "N_ZnS", 2.5e-22, 97.44, "Zn^2^+", "S#SPB(L2-#T)( #SPB)", 1, 1},
    {"BaCrO_4", "N_BaCrO4", 1.17e-10, 253.33, "Ba^2^+", "CrO#SPB(L2-#T)(4#SPB)", 1, 1},
    {"Cu(IO_3)_2", "N_Cu(IO3)2", 6.94e-8, 413.33, "Cu^2^+", "IO#SPB(L-#T)(3#SPB)", 1, 2},
    {"PbCl_2", "N_PbCl2", 1.7e-5, 278.1, "Pb^2^+", "Cl#SPB(L-#T)( #SPB)", 1, 2},
    {"BaF_2", "N_BaF2", 1.84e-7, 175.34, "Ba^2^+", "F#SPB(L-#T)( #SPB)", 1, 2},
};

// The salt of a number: 29 rows, AgCl and CaF2 four times, BaSO4 three.
const Sal& SalDe(int n) {
  static constexpr int kFila[29] = {0, 1,  2,  3,  4,  5,  6,  7,  8,  9, 10, 11, 12, 13, 14,
                                    15, 16, 17, 18, 0, 1, 2, 0, 19, 20, 0, 1, 2, 1};
  return kSales[kFila[n % 29]];
}

bool EsHidroxido(const Sal& s) { return s.anion == kHidroxido; }

// A salt that gives one of the ions, one formula unit giving one ion, with
// the most it dissolves to at 25 °C in mol/L (rounded down from its
// solubility in water; 1 for the very soluble ones).
struct SalComun {
  std::string_view ion, formula, nombre;
  double tope;
};
constexpr SalComun kComunes[] = {
    {"Ag^+", "AgNO_3", "N_AgNO3", 1},          {"Ca^2^+", "Ca(NO_3)_2", "N_Ca(NO3)2", 1},
    {"Mg^2^+", "Mg(NO_3)_2", "N_Mg(NO3)2", 1}, {"Ba^2^+", "Ba(NO_3)_2", "N_Ba(NO3)2", 0.3},
    {"Zn^2^+", "Zn(NO_3)_2", "N_Zn(NO3)2", 1}, {"Cu^2^+", "Cu(NO_3)_2", "N_Cu(NO3)2", 1},
    {"Pb^2^+", "Pb(NO_3)_2", "N_Pb(NO3)2", 1}, {"Mn^2^+", "Mn(NO_3)_2", "N_Mn(NO3)2", 1},
    {"Ni^2^+", "Ni(NO_3)_2", "N_Ni(NO3)2", 1}, {"Cl#SPB(L-#T)( #SPB)", "NaCl", "N_NaCl", 1},
    {"F#SPB(L-#T)( #SPB)", "NaF", "N_NaF", 0.5}, {"SO#SPB(L2-#T)(4#SPB)", "Na_2SO_4", "N_Na2SO4", 1},
    {"PO#SPB(L3-#T)(4#SPB)", "Na_3PO_4", "N_Na3PO4", 0.5}, {"IO#SPB(L-#T)(3#SPB)", "NaIO_3", "N_NaIO3", 0.3},
    {"CrO#SPB(L2-#T)(4#SPB)", "Na_2CrO_4", "N_Na2CrO4", 1}, {"Br#SPB(L-#T)( #SPB)", "NaBr", "N_NaBr", 1},
    {"I#SPB(L-#T)( #SPB)", "NaI", "N_NaI", 1},  {kHidroxido, "NaOH", "N_NaOH", 1},
    {"S#SPB(L2-#T)( #SPB)", "Na_2S", "N_Na2S", 1},
};
// Copper(I) has no stable soluble salt, so it is never the ion added.
const SalComun* ComunDe(std::string_view ion) {
  for (const SalComun& c : kComunes)
    if (c.ion == ion) return &c;
  return nullptr;
}

// The value NumCifras(x, n) shows.
double ValorCifras(double x, int n) {
  if (x == 0) return 0;
  const double a = std::fabs(x);
  return std::copysign(RedondeaPot(a, std::floor(std::log10(a)) - n), x);
}

// "With chance p": a draw below p.
bool Azar(GenContext& g, double p) { return static_cast<float>(g.rnd.Siguiente()) < static_cast<float>(p); }

std::string ConFormula(GenContext& g, std::string_view clave, std::string_view formula) {
  std::string n = g.MsgQUI(clave);
  if (n.find(" (") != std::string::npos) return n;
  return n + " (" + std::string(formula) + ")";
}

// The solubility in pure water of a salt with this Ks.
double Solubilidad(const Sal& s, double Ks) {
  return std::pow(Ks / (std::pow(s.a, s.a) * std::pow(s.b, s.b)), 1.0 / (s.a + s.b));
}
double KsDe(const Sal& s, double sol) {
  return std::pow(s.a * sol, s.a) * std::pow(s.b * sol, s.b);
}

// A Ks as the tables give it, within the spread of their reported values
// (a tenth either way), to three figures.
double KsDibujado(GenContext& g, const Sal& s) {
  return ValorCifras(s.Ks * AleatorioEn(g.rnd, 90, 110, 5, 1) / 100, 3);
}

std::string Molar(double c) { return NumCifras(c, 4) + "& mol/L"; }
// A mass, in mg below 0.01 g; the value shown is returned in g through `leido`.
std::string Masa(double m, double* leido = nullptr) {
  const bool mg = m < 0.01;
  const double v = ValorCifras(mg ? m * 1000 : m, 4);
  if (leido) *leido = mg ? v / 1000 : v;
  return NumCifras(v, 4) + (mg ? "& mg" : "& g");
}
std::string Corchete(std::string_view ion) { return "[" + std::string(ion) + "]"; }

// The statement: its opening, the molar mass when needed, and the questions.
std::string Enunciado(GenContext& g, std::string_view apertura, bool masaMolar,
                      const std::vector<std::string_view>& preguntas) {
  std::string st = g.MsgQUI(apertura) + "&LF";
  if (masaMolar) st += g.MsgQUI("CEP_Dato_MM") + "&LF";
  st += g.MsgQUI("DCH") + ":&LF";
  char letra = 'a';
  for (std::string_view p : preguntas) st += std::string("    &+B") + letra++ + ")&-B " + g.MsgQUI(p) + ".&LF";
  return st;
}
// The solution: one part per question, in order.
std::string Solucion(const std::vector<std::string>& partes) {
  std::string so = "&SP=10:";
  char letra = 'a';
  for (std::size_t i = 0; i < partes.size(); ++i)
    so += (i ? ";    &+B" : "&+B") + std::string(1, letra++) + ")&-B " + partes[i];
  return so + ".&LF";
}

void Rellena(std::string& t, const std::vector<std::pair<std::string_view, std::string>>& r) {
  for (const auto& [de, por] : r) ReplaceAll(t, de, por);
}

}  // namespace

// Generator 1: Ks and the solubility, the ions' concentrations, the pH of a
// saturated hydroxide, and the mass a volume holds or the volume a mass needs.
void Generador1(GenContext& g) {
  const int forma = g.GP_SeqB % 7 + 1;
  int n = g.GP_SeqB;
  const Sal* s;
  double Ks, sol, V, ms;
  while (true) {
    s = &SalDe(n);
    n = static_cast<int>(AleatorioEn(g.rnd, 1, 40, 1, 1));
    Ks = KsDibujado(g, *s);
    sol = Solubilidad(*s, Ks);
    V = AleatorioEn(g.rnd, 250, 3000, 50, 1) / 1000;
    ms = sol * V * s->M;
    if ((forma == 1 || forma == 4) && sol < 1e-4) continue;
    if ((forma == 2 || forma == 6) && s->a == 1 && s->b == 1 && AzarSupera(g.rnd, 0.2)) continue;
    if ((forma == 2 || forma == 5 || forma == 6) && EsHidroxido(*s)) continue;
    // A mass given is one a balance weighs: at least a milligram.
    if ((forma == 4 || forma == 6 || forma == 7) && ms < 0.001) continue;
    break;
  }
  const bool hidroxido = EsHidroxido(*s);
  // What the statement shows, and the solubility read back from it.
  const std::string tKs = NumCifras(Ks, 3);
  const std::string tV = NumTexto(V * 1000) + "& mL";
  double msLeida = 0;
  const std::string tMs = Masa(ms, &msLeida);
  const double sLeida = ValorCifras(sol, 4), aniLeida = ValorCifras(s->b * sol, 4);
  switch (forma) {
    case 2: case 6: sol = sLeida; break;
    case 4: sol = msLeida / (s->M * V); break;
    case 5: sol = aniLeida / s->b; break;
    default: break;
  }
  const double ks = KsDe(*s, sol);
  const std::string rS = "&+Is&-I = " + Molar(sol), rKs = "&+IK_s&-I = " + NumCifras(ks, 4);
  const std::string rCat = Corchete(s->cation) + " = " + Molar(s->a * sol);
  const std::string rIones = rCat + ",  " + Corchete(s->anion) + " = " + Molar(s->b * sol);
  const std::string rMasa = "&+Im&-I = " + Masa(sol * V * s->M);
  const std::string rV = "&+IV&-I = " + NumCifras(msLeida / (sol * s->M), 4) + "& L";
  const std::string rPH = "pH = " + NumCifras(14 + std::log10(s->b * sol), 4);

  std::string_view apertura;
  std::vector<std::string_view> q;
  std::vector<std::string> r;
  switch (forma) {
    case 1: apertura = "kps_de_SAL_es", q = {"Solub_H2Opura", "Hallar_mSAL_de_V_KPS"}, r = {rS, rMasa}; break;
    case 2: apertura = "Solub_de_SAL_es", q = {"Halla_kps", "Hallar_Molar_CAT_ANI_sat"}, r = {rKs, rIones}; break;
    case 3: apertura = "kps_de_SAL_es", q = {"Halla_solub_kps", "Hallar_Molar_CAT_ANI_sat"}, r = {rS, rIones}; break;
    case 4: apertura = "Vol_m_Satur_NS_FS", q = {"Halla_kps", "Hallar_Molar_CATION"}, r = {rKs, rCat}; break;
    case 5: apertura = "Molarid_anion_de_SAL_es", q = {"Halla_kps", "Hallar_mSAL_de_V_KPS"}, r = {rKs, rMasa}; break;
    case 6: apertura = "Solub_de_SAL_es", q = {"Halla_kps", "Hallar_V_de_KPS_mSal"}, r = {rKs, rV}; break;
    default: apertura = "kps_de_SAL_es", q = {"Hallar_Molar_CATION", "Hallar_V_de_KPS_mSal"}, r = {rCat, rV}; break;
  }
  if ((forma == 3 || forma == 7) && hidroxido) q.push_back("Hallar_pH_Saturada"), r.push_back(rPH);
  std::string st = Enunciado(g, apertura, forma != 2 && forma != 3, q);
  Rellena(st, {{"%NSAL%", ConFormula(g, s->nombre, s->formula)},
               {"%FSAL%", std::string(s->formula)},
               {"%FCAT%", std::string(s->cation)},
               {"%FANI%", std::string(s->anion)},
               {"%KPS%", tKs},
               {"%S%", NumCifras(sLeida, 4) + "& mol/L"},
               {"%CANI%", NumCifras(aniLeida, 4) + "& mol/L"},
               {"%V%", tV},
               {"%MS%", tMs},
               {"%MM%", NumTexto(s->M) + "& g/mol"}});
  g.GP_Statement = st;
  g.GP_Solution = Solucion(r);
}

// Generator 2: the solubility of a salt in pure water and in a solution that
// already holds one of its ions, from a salt of that ion or from the pH.
void Generador2(GenContext& g) {
  const int forma = g.GP_SeqB % 4 + 1;
  int n = g.GP_SeqB;
  const Sal* s;
  const SalComun* comun = nullptr;
  double Ks, s0, c = 0;
  bool cationAnadido = false;
  while (true) {
    s = &SalDe(n);
    n = static_cast<int>(AleatorioEn(g.rnd, 1, 40, 1, 1));
    Ks = KsDibujado(g, *s);
    if (Ks > 1e-8 || (forma == 4) != EsHidroxido(*s)) continue;
    s0 = Solubilidad(*s, Ks);
    if (forma != 4) {
      cationAnadido = Azar(g, 0.5);
      comun = ComunDe(cationAnadido ? s->cation : s->anion);
      if (!comun) cationAnadido = false, comun = ComunDe(s->anion);
    }
    // Zinc hydroxide is amphoteric: hydroxide in excess dissolves it as zincate.
    if (s->cation == "Zn^2^+" && EsHidroxido(*s) && !cationAnadido) continue;
    // The ion added is always far above what the salt gives; a solution of
    // a salt of it is one that is made up in the laboratory (at least
    // 1 mmol/L) and that the added salt can reach.
    const double base = forma == 4 ? s0 : std::max(s0, 2e-5);
    const double tope = comun ? comun->tope : 1.0;
    if (50 * base > tope) continue;
    c = AleatorioEn(g.rnd, 50, std::min(500.0, std::floor(tope / base)), 1, 1) * base;
    break;
  }
  // What the statement shows, read back as the student reads it.
  const double s0Leida = ValorCifras(s0, 4), catLeida = ValorCifras(s->a * s0, 4);
  if (forma == 2) s0 = s0Leida;
  if (forma == 3) s0 = catLeida / s->a;
  const double ks = forma == 2 || forma == 3 ? KsDe(*s, s0) : Ks;
  const std::string tC = NumCifras(c, 3);
  const std::string tPH = NumCifras(14 + std::log10(c), 4);
  const double cLeida = forma == 4 ? std::pow(10.0, ValorCifras(14 + std::log10(c), 4) - 14) : ValorCifras(c, 3);
  // With the common ion far in excess, the salt's own share of it is left
  // out (the statement says so); at a fixed pH [OH-] is exact.
  double sol;
  if (cationAnadido)
    sol = std::pow(ks / std::pow(cLeida, s->a) / std::pow(s->b, s->b), 1.0 / s->b);
  else
    sol = std::pow(ks / std::pow(cLeida, s->b) / std::pow(s->a, s->a), 1.0 / s->a);

  const std::string rS0 = "&+Is_0&-I = " + Molar(s0), rKs = "&+IK_s&-I = " + NumCifras(ks, 4);
  const std::string rS = "&+Is&-I = " + Molar(sol);
  std::string_view apertura;
  std::vector<std::string_view> q;
  std::vector<std::string> r;
  switch (forma) {
    case 1: apertura = "kps_de_SAL_es", q = {"Solub_H2Opura", "Solub_con_SAL_ion_Comun"}, r = {rS0, rS}; break;
    case 2: apertura = "Solub_de_SAL_es", q = {"Halla_kps", "Solub_con_SAL_ion_Comun"}, r = {rKs, rS}; break;
    case 3:
      apertura = "Molarid_cation_de_SAL_es", q = {"Halla_solub_kps", "Halla_kps", "Solub_con_SAL_ion_Comun"};
      r = {rS0, rKs, rS};
      break;
    default: apertura = "kps_de_SAL_es", q = {"Halla_Solub_hidrox", "Solub_con_ion_Comun_pH"}, r = {rS0, rS}; break;
  }
  std::string st = Enunciado(g, apertura, false, q);
  Rellena(st, {{"%NSAL%", ConFormula(g, s->nombre, s->formula)},
               {"%FSAL%", std::string(s->formula)},
               {"%FCAT%", std::string(s->cation)},
               {"%KPS%", NumCifras(Ks, 3)},
               {"%S%", NumCifras(s0Leida, 4) + "& mol/L"},
               {"%MCAT%", NumCifras(catLeida, 4) + "& mol/L"},
               {"%PH%", tPH}});
  if (comun)
    Rellena(st, {{"%NSC%", ConFormula(g, comun->nombre, comun->formula)},
                 {"%FSC%", std::string(comun->formula)},
                 {"%FSANI%", std::string(comun->ion)},
                 {"%AAN_MSC%", ArticuloAn(ValorCifras(c, 3), false) + tC + "& mol/L"}});
  g.GP_Statement = st;
  g.GP_Solution = Solucion(r);
}

}  // namespace ss::mod::cep
