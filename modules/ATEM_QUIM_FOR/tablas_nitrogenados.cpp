// Nitrogen functional groups.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {

Bloques FilasNitrogenados() { return {}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
