// Atomic structure and bonding.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..13, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[13] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_EAT() {
  static const ModuloDef def{"ANEU_QUIM_EAT", "EAT", kGeneradores, "ATEM_QUIM_EAT",
                             {}};
  return def;
}

}  // namespace ss::mod
