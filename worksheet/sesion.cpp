#include "worksheet/sesion.h"

namespace ss {

QString TituloApp() { return QStringLiteral("Lumenfold - Sheetsmith - Chemistry"); }

void NoColeccion(Sesion& s) {
  s.doc.col = Coleccion{};
  s.doc.bloques.clear();
  s.doc.marcas.clear();
  s.doc.ruta.clear();
  s.doc.paginaActual = 1;
  s.doc.numPaginas = 0;
  s.doc.cortados.clear();
  s.doc.Modificada = false;
  // Without a worksheet there is nothing to take back or do again.
  s.doc.deshacerValido = s.doc.rehacerValido = false;
  s.doc.accionDeshacer.clear();
  s.doc.accionRehacer.clear();
  s.plataforma.EstadoDocumento(false);
  s.plataforma.TituloVentana(TituloApp());
}

}  // namespace ss
