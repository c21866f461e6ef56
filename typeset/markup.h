// The pieces of the markup language that stand apart from layout: the symbol
// table, colours, the balanced blocks of the # constructs and the codes that
// are replaced by the user's notation before a line is laid out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ss {

// What the replacement codes stand for. The defaults are the program's own;
// the settings store supplies the user's choices.
struct Reemplazos {
  std::string decimal = ".";                       // &.
  std::string lista = ",";                         // &,
  std::string producto = "\xD7";                   // &·
  std::string division = "\xF7";                   // &:
  std::string abre = "(";                          // &(  ("(" or "]")
  std::string cierra = ")";                        // &)  (")" or "[")
  std::string frecuencia = "n";                    // &FA
  std::string desviacion = "&sigma";               // &DT
  std::string moneda = "$";                        // &SM
  std::string monedaNombre = "dollar";             // &NSM
  std::string monedaPlural = "dollars";            // &NPM
  std::string seno = "sin";                        // &sen
  std::string y = "and";                           // &and
  std::string multiplicadorCientifico = "\xD7" "10";  // printed by &E
};

// The replacement codes of one line, each replaced everywhere, in a fixed order.
std::string SustituyeCodigos(std::string_view linea, const Reemplazos& r);

// A symbol code: the font it is drawn in and its character there.
struct Simbolo {
  std::string_view nombre;  // the code without its "&", e.g. "alfa"
  bool mtExtra;             // false: font "Symbol"; true: font "MT Extra"
  unsigned char caracter;
};

// The first symbol, in table order, whose name starts `texto` (which follows an "&").
std::optional<Simbolo> BuscaSimbolo(std::string_view texto);

// A colour value: "r;g;b", one number (red + 256 green + 65536 blue), or a
// name in English or Spanish; black when unknown.
int32_t LeeColor(std::string_view texto);

// The balanced block that starts at the first `apertura` of `texto` and ends
// at its matching `cierre`; the open tag, a red "*ERROR*" and the close tag
// when there is none. `valido` tells which.
std::string ExtraeBloque(std::string_view texto, std::string_view apertura,
                         std::string_view cierre, bool* valido = nullptr);

}  // namespace ss
