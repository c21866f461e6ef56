// Atomic structure and bonding.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_EAT/eat.h"

namespace ss::mod {
namespace {

constexpr std::string_view kEstructura = "T_EstrucAtomolec";  // 850

// Catalogue entries of generators 1..13: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[13] = {
    {"3", "850", kEstructura, "040", ""},     // 1 quantum numbers and orbitals
    {"3", "850", kEstructura, "120", ""},     // 2 photoelectric effect, de Broglie
    {"3", "850", kEstructura, "140", ""},     // 3 hydrogen spectrum, Bohr model
    {"3", "850", kEstructura, "060", ""},     // 4 configuration, period and group
    {"2", "850", kEstructura, "110", "008"},  // 5 Lewis structure and VSEPR geometry
    {"2", "850", kEstructura, "160", "027"},  // 6 nuclear reactions to complete
    {"2", "850", kEstructura, "020", "010"},  // 7 particles of atoms and ions
    {"3", "850", kEstructura, "080", ""},     // 8 two-element compounds, periodic trends
    {"3", "850", kEstructura, "280", ""},     // 9 mass defect, binding energy
    {"3", "850", kEstructura, "340", ""},     // 10 radioactive decay
    {"3", "850", kEstructura, "150", ""},     // 11 isotopes and mean atomic mass
    {"2", "850", kEstructura, "015", "010"},  // 12 particles of neutral atoms
    {"2", "850", kEstructura, "100", "027"},  // 13 polarity of molecules
};

// Generators 1..13, in the order of their numbers.
constexpr Generador kGeneradores[13] = {eat::Generador1, eat::Generador2, eat::Generador3, eat::Generador4, eat::Generador5, eat::Generador6, eat::Generador7, eat::Generador8, eat::Generador9, eat::Generador10, eat::Generador11, eat::Generador12, eat::Generador13};

}  // namespace

const ModuloDef& ANEU_QUIM_EAT() {
  static const ModuloDef def{"ANEU_QUIM_EAT", "EAT", kGeneradores, "ATEM_QUIM_EAT", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
