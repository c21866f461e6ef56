// The kinetics and solubility module: solubility products and the common-ion
// effect, rate laws, initial rates and the Arrhenius equation.
#pragma once

#include "problems/generic.h"

namespace ss::mod::cep {

// Generators, by number.
void Generador1(GenContext& g);  // solubility product and solubility
void Generador2(GenContext& g);  // common-ion effect
void Generador3(GenContext& g);  // rate law given: orders, k, rate
void Generador4(GenContext& g);  // rate law from a table of initial rates
void Generador5(GenContext& g);  // Arrhenius equation

}  // namespace ss::mod::cep
