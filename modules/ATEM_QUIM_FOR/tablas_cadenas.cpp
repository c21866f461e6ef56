// Alkanes, alkenes and alkynes.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {

Bloques FilasAlcanos() { return {}; }
Bloques FilasAlquenos() { return {}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
