// Stoichiometry.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..6, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[6] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_ETQ() {
  static const ModuloDef def{"ANEU_QUIM_ETQ", "ETQ", kGeneradores, "ATEM_QUIM_ETQ",
                             {}};
  return def;
}

}  // namespace ss::mod
