// Inorganic nomenclature.
#include "modules/modulos.h"

#include "modules/ATEM_QUIM_FIN/ATEM_QUIM_FIN.h"

namespace ss::mod {
namespace {

constexpr std::string_view kFormulacionInor = "T_Formulacion_inor";  // 860

// Catalogue entries of generators 1..20: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise (the same as the lists that
// make them). Each family comes twice in a
// row of the tree: first the formula from the name, then the name from the
// formula. The lists are made by the fallback's generators of the same numbers.
constexpr Entrada kEntradas[20] = {
    {"2", "860", kFormulacionInor, "020", "026"},  // 1 elements: formula
    {"2", "860", kFormulacionInor, "040", "026"},  // 2 elements: name
    {"2", "860", kFormulacionInor, "100", "026"},  // 3 oxides and peroxides: formula
    {"2", "860", kFormulacionInor, "120", "026"},  // 4 oxides and peroxides: name
    {"2", "860", kFormulacionInor, "220", "026"},  // 5 hydrogen halides, binary salts: formula
    {"2", "860", kFormulacionInor, "240", "026"},  // 6 hydrogen halides, binary salts: name
    {"2", "860", kFormulacionInor, "260", "026"},  // 7 oxyacids: formula
    {"2", "860", kFormulacionInor, "280", "026"},  // 8 oxyacids: name
    {"2", "860", kFormulacionInor, "060", "026"},  // 9 monoatomic ions: formula
    {"2", "860", kFormulacionInor, "080", "026"},  // 10 monoatomic ions: name
    {"2", "860", kFormulacionInor, "380", "026"},  // 11 polyatomic ions: formula
    {"2", "860", kFormulacionInor, "400", "026"},  // 12 polyatomic ions: name
    {"2", "860", kFormulacionInor, "140", "020"},  // 13 hydrides: formula
    {"2", "860", kFormulacionInor, "160", "020"},  // 14 hydrides: name
    {"2", "860", kFormulacionInor, "180", "020"},  // 15 hydroxides: formula
    {"2", "860", kFormulacionInor, "200", "020"},  // 16 hydroxides: name
    {"2", "860", kFormulacionInor, "300", "026"},  // 17 neutral oxysalts: formula
    {"2", "860", kFormulacionInor, "320", "026"},  // 18 neutral oxysalts: name
    {"2", "860", kFormulacionInor, "340", "026"},  // 19 acid oxysalts: formula
    {"2", "860", kFormulacionInor, "360", "026"},  // 20 acid oxysalts: name
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
