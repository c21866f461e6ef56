// Stoichiometry.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_ETQ/etq.h"

namespace ss::mod {
namespace {

constexpr std::string_view kEstequiometria = "T_Estequiometria";  // 780

// Catalogue entries of generators 1..6: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[6] = {
    {"3", "780", kEstequiometria, "020", ""},     // 1 masses, moles, volumes on one reaction
    {"3", "780", kEstequiometria, "060", ""},     // 2 reaction yield
    {"3", "780", kEstequiometria, "080", ""},     // 3 limiting reagent
    {"3", "780", kEstequiometria, "040", ""},     // 4 double exchange of two ionic compounds
    {"2", "780", kEstequiometria, "010", "027"},  // 5 equations to balance
    {"3", "780", kEstequiometria, "015", ""},     // 6 given mass or moles only
};

// Generators 1..6, in the order of their numbers.
constexpr Generador kGeneradores[6] = {etq::Generador1, etq::Generador2, etq::Generador3,
                                       etq::Generador4, etq::Generador5, etq::Generador6};

}  // namespace

const ModuloDef& ANEU_QUIM_ETQ() {
  static const ModuloDef def{"ANEU_QUIM_ETQ", "ETQ", kGeneradores, "ATEM_QUIM_ETQ", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
