// The .col file: header, problem table, statements and solutions, and a copy
// of every picture the texts name, in one file of Windows-1252 bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "worksheet/coleccion.h"
#include "worksheet/sesion.h"

namespace ss {

// Writes the document to doc.ruta: the whole new file under the path with
// "x" added, then renamed over the path, so a failure never loses the old
// file. True when saved (Modificada is then false); otherwise a box told why.
bool GuardarColeccion(Sesion& s);

// Reads doc.ruta into the document, unpacks its pictures into the scratch
// folder, and rebuilds the blocks. False (after the invalid-file box) when the
// file cannot be used; see the file's rules for what is left then.
bool CargarColeccion(Sesion& s);

// The text part of a file for a worksheet (header, table, problem blocks),
// with "00000000" as the picture directory's place.
std::string TextoColeccion(const Coleccion& col);

// The problems of a table text (rows of 102 bytes): module and command fields.
// Empty when the length is not a whole number of rows, or 0.
std::vector<Problema> LeerProparam(std::string_view tabla);

// The picture names a worksheet's text uses, once each, in order of first use.
std::vector<std::string> ImagenesDelTexto(std::string_view texto);

}  // namespace ss
