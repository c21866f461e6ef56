// Rings and benzene derivatives.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {

Bloques FilasCiclos() { return {}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
