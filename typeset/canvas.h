// The drawing surface of the typesetter.
//
// Lengths are twips (1440 to the inch). The pen (CurrentX, CurrentY) is the
// top left of the next text to print. Colours are red + 256 * green +
// 65536 * blue. Text is Windows-1252, one byte a character: the surface turns
// each byte into the glyph to draw (150 is the en dash; in the fonts "Symbol"
// and "MT Extra" the bytes stand for mathematical signs).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ss {

struct EstadoFuente {
  std::string nombre = "Times New Roman";
  double tamano = 12;  // points
  bool negrita = false;
  bool cursiva = false;
  bool subrayado = false;
  bool tachado = false;
  bool operator==(const EstadoFuente&) const = default;
};

enum class ModoLinea { Linea, Caja, CajaLlena };

class Canvas {
 public:
  virtual ~Canvas() = default;

  double CurrentX = 0;
  double CurrentY = 0;

  // Font state; the surface measures and draws with what is set here.
  EstadoFuente fuente;
  int32_t ForeColor = 0;
  int DrawWidth = 1;  // device pixels, at least 1
  int FillStyle = 1;  // 0 solid, 1 none

  // Draws `text` with its top left at the pen and moves CurrentX by its width.
  virtual void Print(std::string_view text) = 0;
  virtual double TextWidth(std::string_view text) = 0;
  virtual double TextHeight(std::string_view text) = 0;
  // Ascent of the current font, in device pixels.
  virtual double FontAscent() = 0;

  // A line from (x1, y1) to (x2, y2), or the box with those corners.
  virtual void Line(double x1, double y1, double x2, double y2, int32_t color,
                    ModoLinea modo = ModoLinea::Linea) = 0;
  // A circle or, with start != end, an arc; angles in radians, counter-clockwise from 3 o'clock.
  virtual void Circle(double x, double y, double radius, int32_t color, double start = 0,
                      double end = 0) = 0;
  // A picture file scaled into the box.
  virtual void PaintPicture(const std::string& path, double x, double y, double width,
                            double height) = 0;

  // Size of the surface in device pixels, and the size of a pixel in twips.
  virtual double Width() const = 0;
  virtual double Height() const = 0;
  virtual double TwipsPerPixelX() const = 0;
  virtual double TwipsPerPixelY() const = 0;

  virtual bool EsImpresora() const { return false; }
  virtual bool EsPantalla() const { return false; }
};

}  // namespace ss
