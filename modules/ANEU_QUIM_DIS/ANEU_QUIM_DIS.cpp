// Gases, formulas and solutions.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_DIS/dis.h"

namespace ss::mod {
namespace {

constexpr std::string_view kFormulas = "T_Unid_formulas";  // 750
constexpr std::string_view kGases = "T_Gases";             // 760
constexpr std::string_view kDisoluciones = "T_Disoluciones";  // 770

// Catalogue entries of generators 1..21: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[21] = {
    {"3", "770", kDisoluciones, "020", ""},  // 1 percent, density, g/L
    {"3", "770", kDisoluciones, "040", ""},  // 2 molarity, molality, mole fraction
    {"3", "770", kDisoluciones, "060", ""},  // 3 dilution and mixing
    {"3", "760", kGases, "010", ""},         // 4 gas laws with two states
    {"3", "770", kDisoluciones, "080", ""},  // 5 boiling and freezing point
    {"2", "750", kFormulas, "020", "020"},   // 6 mass, moles, molecules, oxygen atoms
    {"2", "750", kFormulas, "040", "020"},   // 7 percent composition
    {"3", "750", kFormulas, "060", ""},      // 8 empirical and molecular formula
    {"3", "760", kGases, "020", ""},         // 9 ideal gas equation
    {"3", "770", kDisoluciones, "090", ""},  // 10 osmotic and vapour pressure
    {"2", "750", kFormulas, "080", "008"},   // 11 conversion of mass units
    {"2", "750", kFormulas, "100", "008"},   // 12 length
    {"2", "750", kFormulas, "120", "008"},   // 13 area
    {"2", "750", kFormulas, "140", "008"},   // 14 area with land units
    {"2", "750", kFormulas, "160", "008"},   // 15 volume
    {"2", "750", kFormulas, "180", "008"},   // 16 capacity
    {"2", "750", kFormulas, "200", "008"},   // 17 volume with capacity
    {"2", "750", kFormulas, "220", "027"},   // 18 temperature
    {"2", "750", kFormulas, "240", "027"},   // 19 temperature, the other way
    {"2", "750", kFormulas, "260", "027"},   // 20 imperial length
    {"2", "750", kFormulas, "280", "027"},   // 21 imperial mass
};

using namespace dis;

constexpr Generador kGeneradores[21] = {
    Generador1,  Generador2,  Generador3,  Generador4,  Generador5,  Generador6,  Generador7,
    Generador8,  Generador9,  Generador10, Generador11, Generador12, Generador13, Generador14,
    Generador15, Generador16, Generador17, Generador18, Generador19, Generador20, Generador21,
};

}  // namespace

const ModuloDef& ANEU_QUIM_DIS() {
  static const ModuloDef def{"ANEU_QUIM_DIS", "DIS", kGeneradores, "ATEM_QUIM_DIS", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
