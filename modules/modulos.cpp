#include "modules/modulos.h"

namespace ss {

TablaModulos ModulosQuimica() {
  static const ModuloDef* const kModulos[] = {
      &mod::ANEU_QUIM_CEP(),
      &mod::ANEU_QUIM_DIS(),
      &mod::ANEU_QUIM_EAB(),
      &mod::ANEU_QUIM_EAT(),
      &mod::ANEU_QUIM_EGA(),
      &mod::ANEU_QUIM_ETQ(),
      &mod::ANEU_QUIM_FIN(),
      &mod::ANEU_QUIM_FOR(),
      &mod::ANEU_QUIM_RDX(),
      &mod::ANEU_QUIM_TER()};
  return kModulos;
}

void GeneraProblema(GenContext& g, std::string_view moduleName, std::string_view command,
                    std::string& statement, std::string& solution) {
  GeneraProblema(ModulosQuimica(), g, moduleName, command, statement, solution);
}

void ListaProblemas(GenContext& g, std::vector<std::string>& catalogo) {
  ListaProblemas(ModulosQuimica(), g, catalogo);
}

}  // namespace ss
