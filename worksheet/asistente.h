// What the new-worksheet wizard and the settings window decide, without their
// widgets: the colour palette of the problem labels, where page numbers go,
// the ranges of the amounts, the running total, the proposed title, the walk
// through the wizard's pages, and the notation choices of the settings.
#pragma once

#include <QString>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "worksheet/ajustes.h"
#include "worksheet/coleccion.h"
#include "worksheet/temario.h"

namespace ss {

class TextosVentana;

// ---- the palette of the problem labels -------------------------------------

inline constexpr int kColoresPaleta = 22;
inline constexpr int kPasoPaleta = 20;  // pixels a colour takes in the strip

// Colour i as the header stores it: red + 256 green + 65536 blue.
int ColorPaleta(int indice);
// The colour under x pixels from the strip's left edge, held within the strip.
int IndicePaletaEn(int x);
// The first colour of the palette equal to `color`; -1 when there is none.
int IndiceDeColor(int color);

// ---- page numbers ------------------------------------------------------------

enum class Alineacion { Izquierda, Centro, Derecha, FueraImpar, DentroImpar };

struct LugarNumero {
  bool mostrar = false;
  bool abajo = true;  // at the foot of the page, else at its head
  Alineacion alineacion = Alineacion::Centro;
};

// The header's POSNUMPAG for a place: 0 with no number shown.
int PosNumPag(const LugarNumero& lugar);
// The place a POSNUMPAG stands for; an unknown value reads as the foot centre
// with the number hidden when it is 0.
LugarNumero LugarDe(int posnumpag);

// ---- amounts -----------------------------------------------------------------

struct Rango {
  int lo = 1, hi = 99;
  bool operator==(const Rango&) const = default;
};
inline constexpr Rango kRangoCantidad1{1, 99};

// Items in one exercise: from 2 (or fewer when the generator gives fewer) up
// to what the generator gives, at most 99, never below 1.
Rango RangoCantidad2(int maxCantidad2);
// The whole number a box holds, when it lies in the range; a text with
// anything but digits around it, or out of range, gives nothing.
std::optional<int> LeeCantidad(std::string_view texto, Rango r);
// A row just marked gets its amounts: one problem, and six items (within the
// generator's range) for questions and exercises.
void DaCantidades(ArbolItem& fila);
// The problems the marked rows ask for.
int Recuenta(const Arbol& arbol);

// A number typed into a numbering box: at most nine digits; empty or 0 gives 1.
int LeeNumeroInicial(std::string_view texto);

// ---- the topic tree ------------------------------------------------------------

// The rows that show: those whose every row above of a lower level is open.
std::vector<int> FilasVisibles(const Arbol& arbol);
// The topic row (level 1) above row `fila`; 0 when there is none.
int TemaDe(const Arbol& arbol, int fila);

// The title proposed for the marked rows: the document word ("Problems") and
// the one topic they share, or the subject when they come from several.
// Empty when nothing is marked.
std::string GetDefaultTitle(const Arbol& arbol, TextosVentana& textosWiz, std::string_view idioma = "ENG");

// What the tree was built from; the tree is built again only when it changes.
std::string FirmaArbol(const QString& sysedu, const std::string& asignatura, const TiposItem& tipos);

// ---- the wizard's pages ------------------------------------------------------

inline constexpr int kPaginasAsistente = 7;

struct PaginasAsistente {
  std::array<bool, kPaginasAsistente + 1> mostrada{};  // 1..7; [0] unused

  // Welcome (1) with `bienvenida`; kinds (3), numbering (5) and order (6)
  // with `avanzadas`; the subject (2), topics (4) and titles (7) always.
  static PaginasAsistente Para(bool bienvenida, bool avanzadas);
  int Primera() const;
  // The next or previous shown page; the same page at either end.
  int Siguiente(int actual) const;
  int Anterior(int actual) const;
};

// ---- defaults of a new worksheet ---------------------------------------------

// The header a new worksheet starts from: the stored numbering, order,
// solutions and colours, the school and additional lines where their boxes
// say so, problem and page numbers from 1 and no title.
ColeccionCab CabeceraNueva(const Ajustes& a);
// The defaults the header's choices leave for next time.
void TomaDefectos(const ColeccionCab& cab, Ajustes& a);

// The three small texts (school, first and second line) and whether each is a
// default. A ticked box stores its text; a cleared one stores only that it is
// not a default, and the old text stays.
struct TextosPequenos {
  std::array<bool, 3> porDefecto{};
  std::array<std::string, 3> texto;
};
void GuardaTextosPequenos(const TextosPequenos& t, Ajustes& a, Almacen& almacen, bool marcarNo = true);

// ---- notation (the settings window) ---------------------------------------

enum class Separadores { ComaPuntoYComa, PuntoPuntoYComa, PuntoComa };
enum class SignoDivision { DosPuntos, Barra, Obelo };
enum class Moneda { Euro, Dolar, Otra };

struct OpcionesNotacion {
  Separadores separadores = Separadores::PuntoComa;
  bool intervaloInvertido = false;  // ]a, b[ rather than (a, b)
  bool sigma = true;                // the deviation as sigma, else "S"
  bool frecuenciaN = true;          // absolute frequency "n", else "f"
  bool cientificoPunto = false;     // "·10", else "×10"
  bool productoAspa = true;         // "×", else "·"
  SignoDivision division = SignoDivision::Obelo;
  Moneda moneda = Moneda::Dolar;
  std::string simbolo, singular, plural;  // the currency's, as the boxes show them
  std::array<bool, 4> espejoPositivo{}, lentePositivo{};
};

// The choices that stand for the settings; separators that match no choice
// fall to the language's usual pair.
OpcionesNotacion NotacionDe(const Ajustes& a, std::string_view idioma = "ENG");
// A third currency needs its symbol and both names.
bool MonedaCompleta(const OpcionesNotacion& o);
// Writes the choices into the settings and the store. `dolar` and `dolares`
// are the names of the dollar in the user's language.
void AplicaNotacion(const OpcionesNotacion& o, Ajustes& a, Almacen& almacen, const std::string& dolar,
                    const std::string& dolares);

}  // namespace ss
