// PLACEHOLDER: being written.
#include "worksheet/armado.h"

namespace ss {

void CrearColeccion(Sesion&, int) {}
void Barajar(Coleccion&, Aleatorio&) {}
void RecrearProblema(Sesion&, Problema&, int, bool) {}
void RecrearColeccion(Sesion&) {}
void ArmarBloques(Sesion&, int) {}
std::string CabeceraTexto(const ColeccionCab&) { return {}; }
void Paginar(Sesion&, int) {}
int PaginaDeProblema(const Documento&, int) { return 1; }
std::string TextoPagina(const Documento&, int) { return {}; }

}  // namespace ss
