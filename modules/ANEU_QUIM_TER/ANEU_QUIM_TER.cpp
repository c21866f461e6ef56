// Thermochemistry.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..7, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[7] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_TER() {
  static const ModuloDef def{"ANEU_QUIM_TER", "TER", kGeneradores, "ATEM_QUIM_TER",
                             {}};
  return def;
}

}  // namespace ss::mod
