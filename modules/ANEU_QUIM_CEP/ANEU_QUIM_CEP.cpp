// Kinetics and solubility.
#include "modules/modulos.h"

namespace ss::mod {
namespace {

// Generators 1..5, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[5] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_CEP() {
  static const ModuloDef def{"ANEU_QUIM_CEP", "CEP", kGeneradores, "ATEM_QUIM_CEP",
                             {}};
  return def;
}

}  // namespace ss::mod
