// Inorganic nomenclature.
#include "modules/modulos.h"

#include "modules/ATEM_QUIM_FIN/ATEM_QUIM_FIN.h"

namespace ss::mod {
namespace {

constexpr std::string_view kFormulacionInor = "T_Formulacion_inor";  // 860

// Catalogue entries of generators 1..20: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise. Each family comes twice in a
// row of the tree: first the formula from the name, then the name from the
// formula. The lists are made by the fallback's generators of the same numbers.
constexpr Entrada kEntradas[20] = {
    {"2", "860", kFormulacionInor, "020", "027"},  // 1 elements: formula
    {"2", "860", kFormulacionInor, "040", "027"},  // 2 elements: name
    {"2", "860", kFormulacionInor, "100", "027"},  // 3 oxides and peroxides: formula
    {"2", "860", kFormulacionInor, "120", "027"},  // 4 oxides and peroxides: name
    {"2", "860", kFormulacionInor, "220", "027"},  // 5 hydrogen halides, binary salts: formula
    {"2", "860", kFormulacionInor, "240", "027"},  // 6 hydrogen halides, binary salts: name
    {"2", "860", kFormulacionInor, "260", "027"},  // 7 oxyacids: formula
    {"2", "860", kFormulacionInor, "280", "027"},  // 8 oxyacids: name
    {"2", "860", kFormulacionInor, "060", "027"},  // 9 monoatomic ions: formula
    {"2", "860", kFormulacionInor, "080", "027"},  // 10 monoatomic ions: name
    {"2", "860", kFormulacionInor, "380", "027"},  // 11 polyatomic ions: formula
    {"2", "860", kFormulacionInor, "400", "027"},  // 12 polyatomic ions: name
    {"2", "860", kFormulacionInor, "140", "020"},  // 13 hydrides: formula
    {"2", "860", kFormulacionInor, "160", "027"},  // 14 hydrides: name
    {"2", "860", kFormulacionInor, "180", "020"},  // 15 hydroxides: formula
    {"2", "860", kFormulacionInor, "200", "020"},  // 16 hydroxides: name
    {"2", "860", kFormulacionInor, "300", "027"},  // 17 neutral oxysalts: formula
    {"2", "860", kFormulacionInor, "320", "027"},  // 18 neutral oxysalts: name
    {"2", "860", kFormulacionInor, "340", "027"},  // 19 acid oxysalts: formula
    {"2", "860", kFormulacionInor, "360", "027"},  // 20 acid oxysalts: name
};

// Generators 1..20, in the order of their numbers. An empty slot is a
// generator not written yet: its problems come out as the fallback notice.
constexpr Generador kGeneradores[20] = {};

}  // namespace

const ModuloDef& ANEU_QUIM_FIN() {
  static const ModuloDef def{"ANEU_QUIM_FIN", "FIN", kGeneradores, "ATEM_QUIM_FIN",
                             ATEM_QUIM_FIN::Generadores(), kEntradas};
  return def;
}

}  // namespace ss::mod
