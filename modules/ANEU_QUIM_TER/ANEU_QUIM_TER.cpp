// Thermochemistry.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_TER/ter.h"

namespace ss::mod {
namespace {

constexpr std::string_view kTermoquimica = "T_Termoquimica";  // 790

// Catalogue entries of generators 1..7: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[7] = {
    {"3", "790", kTermoquimica, "020", ""},  // 1 first law, energy of a combustion
    {"3", "790", kTermoquimica, "040", ""},  // 2 reaction enthalpy from formation enthalpies
    {"3", "790", kTermoquimica, "060", ""},  // 3 Hess's law
    {"3", "790", kTermoquimica, "080", ""},  // 4 enthalpy from bond energies
    {"3", "790", kTermoquimica, "100", ""},  // 5 entropy and Gibbs energy
    {"3", "790", kTermoquimica, "120", ""},  // 6 Born-Haber cycle
    {"3", "790", kTermoquimica, "010", ""},  // 7 formation and combustion of organic compounds
};

// Generators 1..7, in the order of their numbers.
constexpr Generador kGeneradores[7] = {ter::Generador1, ter::Generador2, ter::Generador3, ter::Generador4, ter::Generador5, ter::Generador6, ter::Generador7};

}  // namespace

const ModuloDef& ANEU_QUIM_TER() {
  static const ModuloDef def{"ANEU_QUIM_TER", "TER", kGeneradores, "ATEM_QUIM_TER", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
