// The typesetting engine: it lays out markup text one line at a time on a
// Canvas, in two passes over the same text. Pass 1 measures and writes one box
// (Caja) per construct, in the order the text names them; pass 2 walks the text
// again, reads each box by the same running number, and draws.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "typeset/canvas.h"
#include "typeset/markup.h"

namespace ss {

struct Caja {
  double Adelanto = 0;  // space before the box's ink, left of its origin
  double Ancho = 0;     // width from the origin
  double Sobre = 0;     // height above the top of plain text
  double Eje = 0;       // from the top of plain text down to the box's axis
  double Alto = 0;      // from the top of plain text down to the box's bottom
  std::string Fuente;   // the text of the box
  double PosX = 0;      // the pen when pass 2 reached the box
  double PosY = 0;
};

// A block mark met on the page: the block's number and its strip.
struct MarcaTexto {
  int numero = 0;
  double arriba = 0;
  double abajo = 0;
};

class Motor;

// A # construct: measures its block in pass 1, draws it in pass 2. `caja` is
// the construct's own box; its arguments take further boxes through
// Motor::Argumento in the same order in both passes.
using Construccion = void (*)(Motor& m, std::string_view bloque, int caja);

inline constexpr int kMaxCajas = 200;
inline constexpr int kMaxConstruccionesLinea = 50;
inline constexpr int kMaxArgumentos = 100;  // an equation table names up to 99
inline constexpr int kMaxLineas = 10000;
inline constexpr int kMaxMarcasTexto = 500;

class Motor {
 public:
  Motor();

  // What the replacement codes stand for, and whether the screen shows the
  // edge of the text area.
  Reemplazos reemplazos;
  bool mostrarBorde = false;
  // Called once per line while composing a page, so that a window stays alive.
  std::function<void()> dejaCorrer;
  // The file of a picture that a text names (#IMG), as a UTF-8 path; "" when
  // there is none. Without it every picture shows as missing.
  std::function<std::string(const std::string& nombre)> BuscaImagen;

  // Page frame, in twips; set by ComponerTexto.
  double AnchoPagina = 0, AltoPagina = 0;
  double MargenIzq = 0, MargenDer = 0, MargenSup = 0, MargenInf = 0;
  double Sangria = 0;
  double Zoom = 1;
  int32_t ColorFondo = 16777215;
  int32_t ColorLinea = 0;

  // The two passes.
  Canvas* canvas = nullptr;
  bool PasoDibujo = false;
  int NumCaja = 1;
  std::array<Caja, kMaxCajas + 1> Cajas{};
  std::array<std::array<int, kMaxArgumentos>, kMaxCajas + 1> HijoCaja{};
  int NivelFraccion = 0;
  int NivelExponente = 0;

  // Marks of the last composed text; UltimaMarca is the number of the last
  // mark reached, negative when the page ran full inside that block.
  std::vector<MarcaTexto> marcas;
  int UltimaMarca = 0;

  // Lays out (pass 1) or draws (pass 2) one line on `canvas`. Returns "" when
  // all of it fits the line, else the leading part that fits.
  std::string InterpretaTexto(std::string_view texto);

  // Sets one whole markup text on one page of `c`, from the top, until the
  // text ends or the page is full. `tamano` is the font size in points.
  void ComponerTexto(std::string_view texto, double tamano, Canvas& c);

  // For constructs: lays out or draws argument `k` of box `caja` at the pen,
  // taking the next box number; returns the argument's box.
  const Caja& Argumento(int caja, int k, std::string_view texto);

  // The construct routine of a three-letter tag ("COC"); constructs not yet
  // given a geometry of their own set their arguments one after another.
  void RegistraConstruccion(std::string_view tag, Construccion f);
  // True once the line is being abandoned (a code without its ":", too many
  // boxes or constructs): every level stops there and keeps what it measured.
  bool LineaRota() const { return lineaRota_; }

  // The width of the text area and the text's full-size height unit.
  double AnchoTexto() const { return AnchoPagina - MargenIzq - MargenDer; }

 private:
  struct Registro {
    std::string tag;
    Construccion f;
  };
  Construccion BuscaConstruccion(std::string_view tag) const;

  std::vector<Registro> construcciones_;
  bool lineaRota_ = false;
};

// The page frame of the fixed sheet (796 by 1125 pixels of 15 twips, margins
// of 16 mm), which every canvas uses, so that pages break alike everywhere.
inline constexpr double kPaginaAnchoPx = 796;
inline constexpr double kPaginaAltoPx = 1125;
inline constexpr double kTwipsPorPixel = 15;

// The page number text at its place: " &LF" added at the foot or the head of
// the page's text so that the text keeps clear of it.
std::string TextoConHuecoDeNumero(std::string_view texto, int posNumPag);
// Draws the number of page `pagina` (from 1) as POSNUMPAG asks.
void DibujaNumeroPagina(Motor& m, Canvas& c, int pagina, int primera, int posNumPag);

}  // namespace ss
