// Isomers and the hybridisation of carbon atoms.
#include "modules/ANEU_QUIM_FOR/for.h"

#include "problems/generic.h"

namespace ss::mod::FOR {

void Generador11(GenContext&) {}
void Generador13(GenContext&) {}

}  // namespace ss::mod::FOR
