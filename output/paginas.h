// Which pages a print run lays on paper, and in what order: the page sets of
// the print window (all, odd, even, the page on screen, typed ranges), the
// number of copies and collation. No windows and no printer here.
#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace ss {

// What is wrong with what was typed; each has its message in the print
// window's language file.
enum class FalloPaginas {
  Ninguno,
  Copias,     // "TooMuchCopies": copies are a whole number from 1 to 499
  Vacio,      // "MissingPagesIntervals": no pages typed
  Caracter,   // "BadCHARPageInterval": something other than digits, commas, hyphens
  Intervalo,  // "BadPageInterval": a page outside the worksheet, a range backwards, an empty item
};
const char* ClaveDeFallo(FalloPaginas fallo);

inline constexpr int kMaxCopias = 499;

// The copies typed, 1 to 499; nothing for anything else ("0", "2.5", "500", "x").
std::optional<int> LeeCopias(std::string_view texto);

using Tramo = std::pair<int, int>;  // first and last page, both included

// Reads typed pages such as "1, 3, 5-8": blanks anywhere are ignored; each
// item between commas is a page or a range "a-b" with 1 <= a <= b. With
// `ultima` > 0 no page may pass it; with 0 (a folder of worksheets, whose
// lengths differ) only the form is checked.
FalloPaginas LeeIntervalo(std::string_view texto, int ultima, std::vector<Tramo>& tramos);

enum class ConjuntoPaginas { Todas, Intervalo, Impares, Pares, Actual };

struct EleccionImpresion {
  ConjuntoPaginas conjunto = ConjuntoPaginas::Todas;
  std::vector<Tramo> tramos;  // for Intervalo
  int actual = 1;             // for Actual: the page on screen
  int copias = 1;
  bool intercalar = true;     // sets 1 2 3 1 2 3 rather than 1 1 2 2 3 3
};

// The pages of a worksheet of `paginas` pages that the choice takes, in page
// order, each once. Pages of a range beyond the worksheet are left out (a
// folder run checks ranges against no worksheet in particular).
std::vector<int> PaginasElegidas(const EleccionImpresion& e, int paginas);

// Every sheet the run prints, in order: the chosen pages `copias` times,
// collated or not.
std::vector<int> OrdenDeImpresion(const EleccionImpresion& e, int paginas);

}  // namespace ss
