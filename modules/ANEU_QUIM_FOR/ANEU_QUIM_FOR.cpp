// Organic nomenclature and structure problems.
#include "modules/modulos.h"

#include "modules/ATEM_QUIM_FOR/ATEM_QUIM_FOR.h"

namespace ss::mod {
namespace {

// Generators 1..13, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[13] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_FOR() {
  static const ModuloDef def{"ANEU_QUIM_FOR", "FOR", kGeneradores, "ATEM_QUIM_FOR",
                             ATEM_QUIM_FOR::Generadores()};
  return def;
}

}  // namespace ss::mod
