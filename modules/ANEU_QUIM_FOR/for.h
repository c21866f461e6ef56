// The organic structure problems: isomers, reactions to complete and the
// hybridisation of carbon atoms.
#pragma once

#include <string>
#include <string_view>

namespace ss {
struct GenContext;
}

namespace ss::mod::FOR {

void Generador11(GenContext& g);  // isomers
void Generador12(GenContext& g);  // organic reactions to complete
void Generador13(GenContext& g);  // hybridisation of carbon atoms

// A binary name in the language's own pattern (key Formato_SAL_SIS_STOCK):
// "%A%" the anion's name, "%deA%" the same after DeNombre, "%C%" and "%deC%"
// likewise for the cation.
std::string FormatoSal(GenContext& g, std::string_view anion, std::string_view cation);

}  // namespace ss::mod::FOR
