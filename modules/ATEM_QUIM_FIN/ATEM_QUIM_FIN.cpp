#include "modules/ATEM_QUIM_FIN/ATEM_QUIM_FIN.h"

namespace ss::mod::ATEM_QUIM_FIN {
namespace {

// Generators 1..20; an empty slot is one not written yet.
constexpr Generador kGeneradores[20] = {};

}  // namespace

std::span<const Generador> Generadores() { return kGeneradores; }

}  // namespace ss::mod::ATEM_QUIM_FIN
