// Densities of water solutions at 20 °C as a function of their mass percent,
// read from one table a solute, so that every density a sheet prints is the
// one a real solution of that solute and strength has.
#pragma once

namespace ss::mod::dis {

// The solutes that have a density table.
enum class Soluto { H2SO4, HCl, HNO3, NH3, NaOH, KOH, Acetico, H3PO4, NaCl, Sacarosa, Glucosa };

// The density in g/mL of a water solution that is p percent by mass of the
// solute, interpolated linearly between the rows of its table. A percent
// outside the table (below 0 or above the strongest solution that exists)
// raises the generator fault of an invalid argument.
double Densidad(Soluto s, double p);

// The strongest solution of the solute that exists at 20 °C, in percent by
// mass: its saturation, or the strength of the concentrated reagent sold.
double PorcentajeMaximo(Soluto s);

}  // namespace ss::mod::dis
