// The chemistry problem modules, in the order the catalogue lists them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "problems/generic.h"

namespace ss::mod {

const ModuloDef& ANEU_QUIM_CEP();
const ModuloDef& ANEU_QUIM_DIS();
const ModuloDef& ANEU_QUIM_EAB();
const ModuloDef& ANEU_QUIM_EAT();
const ModuloDef& ANEU_QUIM_EGA();
const ModuloDef& ANEU_QUIM_ETQ();
const ModuloDef& ANEU_QUIM_FIN();
const ModuloDef& ANEU_QUIM_FOR();
const ModuloDef& ANEU_QUIM_RDX();
const ModuloDef& ANEU_QUIM_TER();

}  // namespace ss::mod

namespace ss {

// The ten ANEU_QUIM_ modules, in catalogue order.
TablaModulos ModulosQuimica();

// GeneraProblema and ListaProblemas over the chemistry modules.
void GeneraProblema(GenContext& g, std::string_view moduleName, std::string_view command,
                    std::string& statement, std::string& solution);
void ListaProblemas(GenContext& g, std::vector<std::string>& catalogo);

}  // namespace ss
