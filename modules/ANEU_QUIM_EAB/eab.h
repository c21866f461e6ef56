// The acid-base module: strong and weak acids and bases, salts, buffers,
// the Brønsted lists and titrations. Weak species are solved exactly, with
// the quadratic formula, never with the small-x approximation.
#pragma once

#include "problems/generic.h"

namespace ss::mod::eab {

// Generators, by number.
void Generador1(GenContext& g);  // strong acids and bases
void Generador2(GenContext& g);  // weak acids and bases, exact solution
void Generador3(GenContext& g);  // hydrolysis of salts
void Generador4(GenContext& g);  // buffer solutions
void Generador5(GenContext& g);  // acid, base or amphoteric species
void Generador6(GenContext& g);  // acidic, basic or neutral salt solutions
void Generador7(GenContext& g);  // acid-base reactions to complete
void Generador8(GenContext& g);  // titrations

}  // namespace ss::mod::eab
