// The thermochemistry module: the first law, enthalpies of reaction from
// formation enthalpies, Hess's law and bond energies, entropy and Gibbs
// energy, and Born-Haber cycles, from tables of standard values at 25 °C.
#pragma once

#include <string>

#include "problems/generic.h"

namespace ss::mod::ter {

// The reactions of the enthalpy and Gibbs energy generators, balanced, as the
// page writes them (fila 1..kReaccionesTermo).
inline constexpr int kReaccionesTermo = 42;
std::string EcuacionTermo(int fila);

// Generators, by number.
void Generador1(GenContext& g);  // first law, energy of a combustion
void Generador2(GenContext& g);  // reaction enthalpy from formation enthalpies
void Generador3(GenContext& g);  // Hess's law
void Generador4(GenContext& g);  // enthalpy from bond energies
void Generador5(GenContext& g);  // entropy and Gibbs energy
void Generador6(GenContext& g);  // Born-Haber cycle
void Generador7(GenContext& g);  // formation and combustion of organic compounds

}  // namespace ss::mod::ter
