// A Canvas for tests: simple exact metrics, and a record of what was drawn.
//
// Every character is 10 twips wide per point of size (120 at 12 points), a
// line of text is 23 twips high per point, the ascent 18 per point.
#pragma once

#include <string>
#include <vector>

#include "typeset/canvas.h"

namespace ss::test {

// One Print, and one Line.
struct Trazo { std::string texto; double x, y; EstadoFuente fuente; int32_t color; };
struct Raya { double x1, y1, x2, y2; int32_t color; ModoLinea modo; int ancho; };
struct Circulo { double x, y, radio; int32_t color; };
struct Imagen { std::string ruta; double x, y, ancho, alto; };

class CanvasRegistro : public Canvas {
 public:
  std::vector<Trazo> trazos;
  std::vector<Raya> rayas;
  std::vector<Circulo> circulos;
  std::vector<Imagen> imagenes;

  void Print(std::string_view text) override {
    trazos.push_back({std::string(text), CurrentX, CurrentY, fuente, ForeColor});
    CurrentX += TextWidth(text);
  }
  double TextWidth(std::string_view text) override { return 10 * fuente.tamano * static_cast<double>(text.size()); }
  double TextHeight(std::string_view) override { return 23 * fuente.tamano; }
  double FontAscent() override { return 18 * fuente.tamano / TwipsPerPixelY(); }
  void Line(double x1, double y1, double x2, double y2, int32_t color, ModoLinea modo) override {
    rayas.push_back({x1, y1, x2, y2, color, modo, DrawWidth});
  }
  void Circle(double x, double y, double radio, int32_t color, double, double) override {
    circulos.push_back({x, y, radio, color});
  }
  void PaintPicture(const std::string& ruta, double x, double y, double ancho, double alto) override {
    imagenes.push_back({ruta, x, y, ancho, alto});
  }
  double Width() const override { return 796; }
  double Height() const override { return 1125; }
  double TwipsPerPixelX() const override { return 15; }
  double TwipsPerPixelY() const override { return 15; }

  // What was printed, joined.
  std::string Texto() const {
    std::string s;
    for (const Trazo& t : trazos) s += t.texto;
    return s;
  }
};

}  // namespace ss::test
