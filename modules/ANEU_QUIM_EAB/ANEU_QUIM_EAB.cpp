// Acid-base equilibrium.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_EAB/eab.h"

namespace ss::mod {
namespace {

constexpr std::string_view kAcidoBase = "T_Equilibrio_AB";  // 820

// Catalogue entries of generators 1..8: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[8] = {
    {"3", "820", kAcidoBase, "080", ""},     // 1 strong acids and bases
    {"3", "820", kAcidoBase, "100", ""},     // 2 weak acids and bases, exact solution
    {"3", "820", kAcidoBase, "120", ""},     // 3 hydrolysis of salts
    {"3", "820", kAcidoBase, "140", ""},     // 4 buffer solutions
    {"2", "820", kAcidoBase, "080", "012"},  // 5 acid, base or amphoteric species
    {"2", "820", kAcidoBase, "110", "027"},  // 6 acidic, basic or neutral salt solutions
    {"2", "820", kAcidoBase, "060", "018"},  // 7 complete acid-base reactions
    {"3", "820", kAcidoBase, "160", ""},     // 8 titrations
};

// Generators 1..8, in the order of their numbers.
constexpr Generador kGeneradores[8] = {eab::Generador1, eab::Generador2, eab::Generador3, eab::Generador4, eab::Generador5, eab::Generador6, eab::Generador7, eab::Generador8};

}  // namespace

const ModuloDef& ANEU_QUIM_EAB() {
  static const ModuloDef def{"ANEU_QUIM_EAB", "EAB", kGeneradores, "ATEM_QUIM_EAB", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
