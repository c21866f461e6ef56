// Gases, formulas and solutions.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..21, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[21] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_DIS() {
  static const ModuloDef def{"ANEU_QUIM_DIS", "DIS", kGeneradores, "ATEM_QUIM_DIS",
                             {}};
  return def;
}

}  // namespace ss::mod
