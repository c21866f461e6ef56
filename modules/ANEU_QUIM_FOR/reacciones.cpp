// Organic reactions to complete.
#include "modules/ANEU_QUIM_FOR/for.h"

#include "problems/generic.h"

namespace ss::mod::FOR {

void Generador12(GenContext&) {}

std::string FormatoSal(GenContext&, std::string_view, std::string_view) { return {}; }

}  // namespace ss::mod::FOR
