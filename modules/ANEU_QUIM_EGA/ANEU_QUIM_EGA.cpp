// Gas equilibrium.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_EGA/ega.h"

namespace ss::mod {
namespace {

constexpr std::string_view kEquilibrioGas = "T_Equilibrio_gas";  // 810

// Catalogue entries of generators 1..4: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[4] = {
    {"3", "810", kEquilibrioGas, "020", ""},  // 1 equilibrium constants, Kc and Kp
    {"3", "810", kEquilibrioGas, "040", ""},  // 2 Le Chatelier's principle
    {"3", "810", kEquilibrioGas, "060", ""},  // 3 amounts and K from initial data and one fact
    {"3", "810", kEquilibrioGas, "080", ""},  // 4 amounts at equilibrium from K
};

// Generators 1..4, in the order of their numbers.
constexpr Generador kGeneradores[4] = {ega::Generador1, ega::Generador2, ega::Generador3, ega::Generador4};

}  // namespace

const ModuloDef& ANEU_QUIM_EGA() {
  static const ModuloDef def{"ANEU_QUIM_EGA", "EGA", kGeneradores, "ATEM_QUIM_EGA", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
