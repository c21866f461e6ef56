// Gas equilibrium.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..4, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[4] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_EGA() {
  static const ModuloDef def{"ANEU_QUIM_EGA", "EGA", kGeneradores, "ATEM_QUIM_EGA",
                             {}};
  return def;
}

}  // namespace ss::mod
