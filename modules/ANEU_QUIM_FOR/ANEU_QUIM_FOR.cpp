// Organic nomenclature and structure problems.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_FOR/for.h"
#include "modules/ATEM_QUIM_FOR/ATEM_QUIM_FOR.h"

namespace ss::mod {
namespace {

constexpr std::string_view kOrganica = "T_Organica";                  // 870
constexpr std::string_view kFormulacionOrga = "T_Formulacion_orga";  // 880

// Catalogue entries of generators 1..13: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise. Generators 1..10 are the
// nomenclature lists, each family first as structures to draw, then as
// structures to name; the fallback's generators of the same numbers make them.
constexpr Entrada kEntradas[13] = {
    {"2", "880", kFormulacionOrga, "020", "020"},  // 1 alkanes: draw
    {"2", "880", kFormulacionOrga, "040", "020"},  // 2 alkanes: name
    {"2", "880", kFormulacionOrga, "060", "020"},  // 3 alkenes and alkynes: draw
    {"2", "880", kFormulacionOrga, "080", "020"},  // 4 alkenes and alkynes: name
    {"2", "880", kFormulacionOrga, "100", "016"},  // 5 rings and benzene derivatives: draw
    {"2", "880", kFormulacionOrga, "120", "016"},  // 6 rings and benzene derivatives: name
    {"2", "880", kFormulacionOrga, "140", "020"},  // 7 oxygen functional groups: draw
    {"2", "880", kFormulacionOrga, "160", "020"},  // 8 oxygen functional groups: name
    {"2", "880", kFormulacionOrga, "180", "020"},  // 9 nitrogen functional groups: draw
    {"2", "880", kFormulacionOrga, "200", "020"},  // 10 nitrogen functional groups: name
    {"3", "870", kOrganica, "020", ""},            // 11 isomers
    {"2", "870", kOrganica, "040", "008"},         // 12 organic reactions to complete
    {"2", "870", kOrganica, "010", "012"},         // 13 hybridisation of carbon atoms
};

// Generators 1..13, in the order of their numbers. The lists 1..10 give no
// text here: the fallback's generators of the same numbers make them.
constexpr Generador kGeneradores[13] = {
    nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    FOR::Generador11, FOR::Generador12, FOR::Generador13,
};

}  // namespace

const ModuloDef& ANEU_QUIM_FOR() {
  static const ModuloDef def{"ANEU_QUIM_FOR", "FOR", kGeneradores, "ATEM_QUIM_FOR",
                             ATEM_QUIM_FOR::Generadores(), kEntradas};
  return def;
}

}  // namespace ss::mod
