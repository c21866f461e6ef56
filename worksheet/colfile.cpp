// PLACEHOLDER: being written.
#include "worksheet/colfile.h"

namespace ss {

bool GuardarColeccion(Sesion&) { return false; }
bool CargarColeccion(Sesion&) { return false; }
std::string TextoColeccion(const Coleccion&) { return {}; }
std::vector<Problema> LeerProparam(std::string_view) { return {}; }
std::vector<std::string> ImagenesDelTexto(std::string_view) { return {}; }

}  // namespace ss
