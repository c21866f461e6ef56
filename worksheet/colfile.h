// The .col file: header, problem table, statements and solutions, and a copy
// of every picture the texts name, in one file of Windows-1252 bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "worksheet/coleccion.h"
#include "worksheet/sesion.h"

namespace ss {

// No worksheet file is larger: 500 problems with their pictures need a small
// part of it. A larger file is refused before it is read.
inline constexpr int64_t kMaxTamanoColeccion = int64_t{64} * 1024 * 1024;

// Writes the document to doc.ruta: the whole new file under the path with
// "x" added, read back, then renamed over the path, so a failure never loses
// the old file. A link is saved through to the file it points to, and the new
// file keeps the old one's permissions. True when saved (Modificada is then
// false); otherwise a box told why. After a write-protect error the user is
// offered Save As, whose result is then the result.
bool GuardarColeccion(Sesion& s);

// Reads doc.ruta into the document, unpacks the pictures its texts name into
// the scratch folder (replacing older ones of the same name), and rebuilds the
// blocks. False (after the invalid-file box) when the file cannot be used or
// is larger than kMaxTamanoColeccion; see the file's rules for what is left.
bool CargarColeccion(Sesion& s);

// A header text is stored between tags, with no way to escape one: a text
// that holds a tag the reader looks for cannot be read back. Gives the first
// such tag in `texto` ("#TITULO)", ...), empty when the text can be stored.
// Callers refuse such a text where it is entered.
std::string_view EtiquetaQueImpide(std::string_view texto);

// The first header text of a worksheet that cannot be stored.
struct TextoNoGuardable {
  const char* campo;      // "PRETIT", "TITULO", "POSTI1", "POSTI2", "PROPRE" or "PROSUF"
  std::string etiqueta;   // the tag it holds
};
std::optional<TextoNoGuardable> CabeceraNoGuardable(const ColeccionCab& cab);

// The text part of a file for a worksheet (header, table, problem blocks),
// with "00000000" as the picture directory's place.
std::string TextoColeccion(const Coleccion& col);

// The problems of a table text (rows of 102 bytes): module and command fields.
// Empty when the length is not a whole number of rows, or 0.
std::vector<Problema> LeerProparam(std::string_view tabla);

// The picture names a worksheet's text uses, once each, in order of first use.
std::vector<std::string> ImagenesDelTexto(std::string_view texto);

}  // namespace ss
