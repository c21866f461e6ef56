#include "modules/ATEM_QUIM_FOR/ATEM_QUIM_FOR.h"

namespace ss::mod::ATEM_QUIM_FOR {

// Its generators come with the organic nomenclature tables; until then every
// number gets the notice of a missing routine.
std::span<const Generador> Generadores() { return {}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
