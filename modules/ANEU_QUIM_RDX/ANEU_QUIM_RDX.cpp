// Redox.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..8, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[8] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_RDX() {
  static const ModuloDef def{"ANEU_QUIM_RDX", "RDX", kGeneradores, "ATEM_QUIM_RDX",
                             {}};
  return def;
}

}  // namespace ss::mod
