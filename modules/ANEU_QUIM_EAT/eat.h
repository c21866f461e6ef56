// The atomic structure and bonding module: configurations, quantum numbers,
// molecular geometry, the Bohr model, the photoelectric effect, radioactivity,
// nuclear reactions, isotopes and the mass defect.
#pragma once

#include "problems/generic.h"

namespace ss::mod::eat {

// Generators, by number.
void Generador1(GenContext& g);  // quantum numbers and orbitals
void Generador2(GenContext& g);  // photoelectric effect, de Broglie
void Generador3(GenContext& g);  // hydrogen spectrum, Bohr model
void Generador4(GenContext& g);  // configuration, period and group
void Generador5(GenContext& g);  // Lewis structure and VSEPR geometry
void Generador6(GenContext& g);  // nuclear reactions to complete
void Generador7(GenContext& g);  // particles of atoms and ions
void Generador8(GenContext& g);  // two-element compounds, periodic trends
void Generador9(GenContext& g);  // mass defect, binding energy
void Generador10(GenContext& g);  // radioactive decay
void Generador11(GenContext& g);  // isotopes and mean atomic mass
void Generador12(GenContext& g);  // particles of neutral atoms
void Generador13(GenContext& g);  // polarity of molecules

}  // namespace ss::mod::eat
