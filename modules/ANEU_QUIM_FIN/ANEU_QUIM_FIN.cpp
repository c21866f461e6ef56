// Inorganic nomenclature.
#include "modules/modulos.h"

#include "modules/ATEM_QUIM_FIN/ATEM_QUIM_FIN.h"

namespace ss::mod {
namespace {

// Generators 1..20, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[20] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_FIN() {
  static const ModuloDef def{"ANEU_QUIM_FIN", "FIN", kGeneradores, "ATEM_QUIM_FIN",
                             ATEM_QUIM_FIN::Generadores()};
  return def;
}

}  // namespace ss::mod
