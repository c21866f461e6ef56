// Oxygen functional groups.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {

Bloques FilasOxigenados() { return {}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
