// A Canvas for tests: simple exact metrics, and a record of what was drawn.
//
// Every character is 10 twips wide per point of size (120 at 12 points), a
// line of text is 23 twips high per point, the ascent 18 per point.
#pragma once

#include <string>
#include <vector>

#include "typeset/canvas.h"
#include "typeset/motor.h"

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

// Pass 1 of one line and, with `dibuja`, pass 2 from the top left corner
// (0, 0); the first construct of the line is box 2.
struct Linea {
  CanvasRegistro c;
  Motor m;
  explicit Linea(std::string_view texto, double tamano = 12, bool dibuja = false,
                 std::function<std::string(const std::string&)> imagenes = {}) {
    c.fuente.tamano = tamano;
    m.canvas = &c;
    m.AnchoPagina = 1e6;
    m.BuscaImagen = std::move(imagenes);
    m.InterpretaTexto(texto);
    if (!dibuja) return;
    m.PasoDibujo = true;
    m.NumCaja = 1;
    c.CurrentX = c.CurrentY = 0;
    m.InterpretaTexto(texto);
  }
  const Caja& Construccion() const { return m.Cajas[2]; }
};

}  // namespace ss::test
