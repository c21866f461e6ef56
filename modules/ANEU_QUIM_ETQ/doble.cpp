// Generator 4: a double exchange between two ionic compounds,
// cation1 anion1 + cation2 anion2 -> cation1 anion2 + cation2 anion1.
// Only reactions that happen are asked about: the four compounds exist in
// water, the reactants can meet (both dissolved, or a strong acid with a
// solid base), no pair of reactants would rather oxidise each other, and the
// reaction is driven by water, a gas or a precipitate that stays out of
// solution.
#include <algorithm>
#include <array>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::etq {
namespace {

bool Disuelto(char k) { return k == 'S' || k == 'A' || k == 'a' || k == 'G'; }
bool Acido(char k) { return k == 'A' || k == 'a' || k == 'G'; }
bool Solido(char k) { return k == 'L' || k == 'P' || k == 'O'; }

// The anions of weak acids and of water: a strong acid takes up their salts.
bool Basico(const Ion& a) {
  static constexpr std::string_view kBasicos[] = {"F", "P_2O_7", "PO_4", "S", "OH", "O", "ClO", "ClO_2", "CO_3"};
  return std::find(std::begin(kBasicos), std::end(kBasicos), a.simbolo) != std::end(kBasicos);
}

// Two reactants that would exchange electrons rather than ions: an oxidising
// anion (hypochlorite, chlorite; chlorate and nitrate in acid) with iron(II),
// copper(I), sulfide, iodide or, for the chlorine oxoanions, bromide and (in
// acid) chloride; iron(III) with iodide or sulfide; copper(II) with iodide.
bool Redox(const std::array<const Ion*, 4>& iones) {
  auto hay = [&](std::string_view s, int carga = 0) {
    return std::any_of(iones.begin(), iones.end(),
                       [&](const Ion* i) { return i->simbolo == s && (carga == 0 || i->carga == carga); });
  };
  const bool acido = iones[0]->simbolo == "H" || iones[2]->simbolo == "H";
  const bool cloro = hay("ClO") || hay("ClO_2") || (acido && hay("ClO_3"));
  const bool oxida = cloro || (acido && hay("NO_3"));
  const bool reduce = hay("Fe", 2) || hay("Cu", 1) || hay("S") || hay("I");
  return (oxida && reduce) || (cloro && (hay("Br") || (acido && hay("Cl")))) ||
         (hay("Fe", 3) && (hay("I") || hay("S"))) || (hay("Cu", 2) && hay("I"));
}

// Whether A (c1 a1) and B (c2 a2) really react to C (c1 a2) and D (c2 a1).
bool Ocurre(const Ion& c1, const Ion& a1, const Ion& c2, const Ion& a2) {
  const char A = EnAgua(c1, a1), B = EnAgua(c2, a2), C = EnAgua(c1, a2), D = EnAgua(c2, a1);
  if (A == 'X' || B == 'X' || C == 'X' || D == 'X' || A == 'W' || B == 'W' || D == 'W') return false;
  // The reactants meet in solution, or a strong acid takes up a solid base,
  // or a weak acid meets a hydroxide that dissolves at least a little.
  auto tomaSolido = [](char acido, char base, const Ion& anion) {
    return (acido == 'A' && Solido(base) && Basico(anion)) ||
           ((acido == 'a' || acido == 'G') && base == 'L' && anion.simbolo == "OH");
  };
  if (!(Disuelto(A) && Disuelto(B)) && !tomaSolido(A, B, a2) && !tomaSolido(B, A, a1)) return false;
  if (Redox({&c1, &a1, &c2, &a2})) return false;
  // What drives it: water; a gas that only a strong acid sets free; a
  // precipitate, which must resist the acid when an acid forms beside it.
  const bool fuerte = A == 'A' || B == 'A';
  const bool acidoFormado = Acido(C) || Acido(D);
  return C == 'W' || (fuerte && (C == 'G' || D == 'G')) || C == 'Q' || D == 'Q' ||
         (!acidoFormado && (C == 'P' || D == 'P'));
}

// Masses to two decimals and moles to four (three from one mole up); below
// one gram, or a thousandth of a mole, three significant figures instead.
std::string Gramos(double x) { return x < 1 ? NumCifras(x, 3) : NumTexto(RedondeaPot(x, -3)); }
std::string Moles(double x) {
  return x < 0.001 ? NumCifras(x, 3) : NumTexto(RedondeaPot(x, x < 1 ? -5 : -4));
}

}  // namespace

void Generador4(GenContext& g) {
  const Ion *c1, *c2, *a1, *a2;
  while (true) {
    c1 = &CationDeSorteo(static_cast<int>(AleatorioEn(g.rnd, 1, 20, 1, 1)));
    c2 = &CationDeSorteo(static_cast<int>(AleatorioEn(g.rnd, 1, 20, 1, 1)));
    if (c1->simbolo == c2->simbolo) continue;
    do {
      a1 = &AnionDeSorteo(static_cast<int>(AleatorioEn(g.rnd, 1, 55, 1, 1)));
      a2 = &AnionDeSorteo(static_cast<int>(AleatorioEn(g.rnd, 1, 55, 1, 1)));
    } while (a1->nombre == a2->nombre);
    if (Ocurre(*c1, *a1, *c2, *a2)) break;
  }
  const DobleCambio d = AjustaDobleCambio(*c1, *a1, *c2, *a2);
  const std::array<Compuesto, 4> x = {FormulaIonica(*c1, *a1), FormulaIonica(*c2, *a2), FormulaIonica(*c1, *a2),
                                      FormulaIonica(*c2, *a1)};
  const double masaA = AleatorioEn(g.rnd, 20, 100, 1, 1);
  std::array<double, 4> n{};
  for (int k = 0; k < 4; ++k) n[k] = masaA / x[0].masaMolar * d.coef[k] / d.coef[0];

  std::vector<std::pair<std::string, double>> masas;
  for (const Compuesto& c : x) masas.emplace_back(c.formula, c.masaMolar);
  std::string st = g.MsgQUI("Reaccionan_ma_con_B") + ".&LF" + LineaMasas(g, masas) + g.MsgQUI("DCH") + ":&LF" +
                   "    &+Ba)&-B " + g.MsgQUI("Hallar_ec_quim_ajus") + ".&LF" +
                   "    &+Bb)&-B " + g.MsgQUI("Hallar_masaB_molB") + ".&LF" +
                   "    &+Bc)&-B " + g.MsgQUI("Hallar_masaA_molA") + ".&LF";
  const std::pair<std::string_view, std::string> r[] = {
      {"%GMA%", NumTexto(masaA) + "& g"}, {"%MA%", x[0].formula}, {"%NB%", x[1].formula},
      {"%NC%", x[2].formula},            {"%NA%", x[3].formula},
  };
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:&+Ba)&-B& " + d.ecuacion + "&LF&SP=10:&+Bb)&-B& " + Gramos(n[1] * x[1].masaMolar) + "& g,  " +
                  Moles(n[1]) + " mol,   &+Bc)&-B& " + Gramos(n[2] * x[2].masaMolar) + "& g,  " + Moles(n[3]) +
                  " mol.&LF";
}

}  // namespace ss::mod::etq
