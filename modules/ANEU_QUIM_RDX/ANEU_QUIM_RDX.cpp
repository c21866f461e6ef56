// Redox.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_RDX/rdx.h"

namespace ss::mod {
namespace {

constexpr std::string_view kRedox = "T_Redox";  // 840

// Catalogue entries of generators 1..8: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[8] = {
    {"3", "840", kRedox, "020", ""},     // 1 oxidation numbers, agents, normality, half-reaction
    {"2", "840", kRedox, "040", "027"},  // 2 equations to balance, acid medium
    {"2", "840", kRedox, "060", "027"},  // 3 equations to balance, basic medium
    {"2", "840", kRedox, "080", "027"},  // 4 equations to balance, either medium
    {"3", "840", kRedox, "100", ""},     // 5 stoichiometry of a redox reaction
    {"3", "840", kRedox, "120", ""},     // 6 redox titration
    {"3", "840", kRedox, "140", ""},     // 7 electrochemical cells
    {"3", "840", kRedox, "160", ""},     // 8 electrolysis
};

// Generators 1..8, in the order of their numbers.
constexpr Generador kGeneradores[8] = {rdx::Generador1, rdx::Generador2, rdx::Generador3, rdx::Generador4,
                                       rdx::Generador5, rdx::Generador6, rdx::Generador7, rdx::Generador8};

}  // namespace

const ModuloDef& ANEU_QUIM_RDX() {
  static const ModuloDef def{"ANEU_QUIM_RDX", "RDX", kGeneradores, "ATEM_QUIM_RDX", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
