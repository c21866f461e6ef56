// Everything a worksheet command works with: the open document, the windows
// around it, the problem makers, the typesetter and its hidden page, the texts
// of the main window and the folders of the run.
#pragma once

#include "problems/generic.h"
#include "problems/idioma.h"
#include "typeset/canvas.h"
#include "typeset/motor.h"
#include "worksheet/carpetas.h"
#include "worksheet/coleccion.h"
#include "worksheet/plataforma.h"

namespace ss {

struct Sesion {
  Documento& doc;
  Plataforma& plataforma;
  GenContext& gen;           // makes the problems
  Motor& motor;              // lays out the pages
  Canvas& paginaOculta;      // the hidden page of pagination: real metrics, no pixels
  TextosVentana& textos;     // the texts of the main window ("MAI")
  Carpetas carpetas;
};

// The window title when no file name is shown.
QString TituloApp();

// The no-document state: the worksheet emptied, the window told.
void NoColeccion(Sesion& s);

}  // namespace ss
