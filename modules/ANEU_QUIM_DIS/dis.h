// The generators of the gases, formulas and solutions module, by number.
#pragma once

#include <string>

#include "problems/generic.h"

namespace ss::mod::dis {

// An answer as the page shows it: two decimals from 1 on (one from 1000 on),
// three significant figures below 1, with the zeros that tell them ("0.0140").
double RedondeaRespuesta(double x);
std::string TextoRespuesta(double x);

// Solutions (disoluciones.cpp).
void Generador1(GenContext& g);   // percent, density, g/L
void Generador2(GenContext& g);   // molarity, molality, mole fraction
void Generador3(GenContext& g);   // dilution and mixing
void Generador5(GenContext& g);   // boiling and freezing point
void Generador10(GenContext& g);  // osmotic and vapour pressure

// Gases (gases.cpp).
void Generador4(GenContext& g);   // gas laws with two states
void Generador9(GenContext& g);   // ideal gas equation

// Formulas (formulas.cpp).
void Generador6(GenContext& g);   // mass, moles, molecules, oxygen atoms
void Generador7(GenContext& g);   // percent composition
void Generador8(GenContext& g);   // empirical and molecular formula

// Unit conversions (conversiones.cpp).
void Generador11(GenContext& g);  // mass
void Generador12(GenContext& g);  // length
void Generador13(GenContext& g);  // area
void Generador14(GenContext& g);  // area with land units
void Generador15(GenContext& g);  // volume
void Generador16(GenContext& g);  // capacity
void Generador17(GenContext& g);  // volume with capacity
void Generador18(GenContext& g);  // temperature
void Generador19(GenContext& g);  // temperature, the other set of forms
void Generador20(GenContext& g);  // imperial length
void Generador21(GenContext& g);  // imperial mass

}  // namespace ss::mod::dis
