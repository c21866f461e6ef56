// Densities of water solutions as a function of their mass percent, from the
// fitted curves the solutions problems are built on. The acid-base problems
// read the same curves, so every worksheet tells one story about a solution.
#pragma once

namespace ss::mod::dis {

// Which fitted curve: one per solute that has its own, and a general one for
// every other solute (salts, sugars, weak acids of the solutions problems).
enum class AjusteDensidad { General, H2SO4, NH3, HNO3, HCl, NaOH, KOH, Acetico };

// The density in g/mL of a water solution that is p percent by mass of the
// solute, unrounded. The polynomial curves of H2SO4, HCl, NaOH and KOH read the
// absolute value of p. A value outside a curve's domain (a negative percent in
// the HNO3 curve) raises the generator fault of an invalid argument.
double Densidad(AjusteDensidad ajuste, double p);

}  // namespace ss::mod::dis
