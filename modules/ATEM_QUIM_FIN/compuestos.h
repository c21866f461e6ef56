// Inorganic substances composed by rule: one routine draws the ingredients of
// a family (a metal, a non-metal with an oxidation number, an oxoanion, a
// binary anion, an element, a non-metal hydride) and writes the formula and
// the names. Nothing is stored whole.
#pragma once

#include <string>

namespace ss {
class Aleatorio;
}

namespace ss::mod::ATEM_QUIM_FIN {

enum class Familia {
  E,        // elements
  MH,       // metal hydrides
  AH,       // non-metal hydrides
  MOH,      // hydroxides
  PEROX,    // peroxides
  MO,       // metal oxides
  AO,       // non-metal oxides
  MA,       // binary salts of a metal
  MHA,      // hydrogen salts of the hydracids
  HA_ion,   // hydrogen anions of the hydracids (HS-)
  HA,       // hydrogen halides and chalcogenides
  HA_ac,    // the same in water, named as acids
  A_ion,    // monoatomic anions
  HAO,      // oxoacids
  AO_ion,   // oxoanions
  M_ion,    // cations
  HAO_ion,  // hydrogen oxoanions
  MHAO,     // acid salts of the oxoacids
  MAO,      // neutral salts of the oxoacids
  AX,       // compounds of two non-metals
};

// A formula in markup ("Al_2(SO_4)_3", "SO_4^2^\x96") with its names. Where a
// family has one name only, the three are equal.
struct Compuesto {
  std::string formula;
  std::string tradicional;   // the common name ("hypochlorous anhydride")
  std::string stock;         // the name with the Roman numeral ("chlorine(I) oxide")
  std::string sistematico;   // the name with prefixes ("dichlorine monoxide")
};

// A substance of the family; a draw the family cannot use is made again, so
// every call returns one.
Compuesto ComponerCompuesto(Aleatorio& rnd, Familia familia);

}  // namespace ss::mod::ATEM_QUIM_FIN
