// Kinetics and solubility.
#include "modules/modulos.h"

#include "modules/ANEU_QUIM_CEP/cep.h"

namespace ss::mod {
namespace {

constexpr std::string_view kCinetica = "T_Cinetica";                // 800
constexpr std::string_view kPrecipitacion = "T_Equilibrio_precip";  // 830

// Catalogue entries of generators 1..5: level, topic ordinal, topic key,
// subtopic ordinal, most items of an exercise.
constexpr Entrada kEntradas[5] = {
    {"3", "830", kPrecipitacion, "020", ""},  // 1 solubility product and solubility
    {"3", "830", kPrecipitacion, "040", ""},  // 2 common-ion effect
    {"3", "800", kCinetica, "020", ""},       // 3 rate law given: orders, k, rate
    {"3", "800", kCinetica, "040", ""},       // 4 rate law from a table of initial rates
    {"3", "800", kCinetica, "060", ""},       // 5 Arrhenius equation
};

// Generators 1..5, in the order of their numbers.
constexpr Generador kGeneradores[5] = {cep::Generador1, cep::Generador2, cep::Generador3, cep::Generador4, cep::Generador5};

}  // namespace

const ModuloDef& ANEU_QUIM_CEP() {
  static const ModuloDef def{"ANEU_QUIM_CEP", "CEP", kGeneradores, "ATEM_QUIM_CEP", {}, kEntradas};
  return def;
}

}  // namespace ss::mod
