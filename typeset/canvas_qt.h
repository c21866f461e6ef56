// The Canvas on a QPainter: the hidden page of pagination (no painter: it
// only measures), an image, a PDF, a printer or a widget. The canvas works in
// twips on a sheet of logical pixels of 15 twips; the painter's transform,
// set by the caller, maps twips to the device.
#pragma once

#include <QFont>
#include <QFontMetricsF>

#include <array>
#include <memory>
#include <string>
#include <unordered_map>

#include "typeset/canvas.h"

class QPainter;

namespace ss {

enum class TipoCanvas { Oculto, Pantalla, Impresora };

class CanvasQt final : public Canvas {
 public:
  // `painter` may be null: then the canvas measures and draws nothing.
  explicit CanvasQt(QPainter* painter, TipoCanvas tipo = TipoCanvas::Oculto,
                    double anchoPx = 796, double altoPx = 1125);
  ~CanvasQt() override;

  void Print(std::string_view text) override;
  double TextWidth(std::string_view text) override;
  double TextHeight(std::string_view text) override;
  double FontAscent() override;
  void Line(double x1, double y1, double x2, double y2, int32_t color, ModoLinea modo) override;
  void Circle(double x, double y, double radius, int32_t color, double start, double end) override;
  void PaintPicture(const std::string& path, double x, double y, double width,
                    double height) override;
  double Width() const override { return anchoPx_; }
  double Height() const override { return altoPx_; }
  double TwipsPerPixelX() const override { return 15; }
  double TwipsPerPixelY() const override { return 15; }
  bool EsImpresora() const override { return tipo_ == TipoCanvas::Impresora; }
  bool EsPantalla() const override { return tipo_ == TipoCanvas::Pantalla; }

  // The family a font name is drawn with ("Times New Roman" -> its metric twin).
  static QString Familia(const std::string& nombre);
  // The character a byte stands for in a font ("Symbol": 'a' is alpha).
  static QChar Glifo(const std::string& nombre, unsigned char byte);

 private:
  struct Metricas;
  Metricas& Actual();

  QPainter* painter_;
  TipoCanvas tipo_;
  double anchoPx_, altoPx_;
  std::unordered_map<std::string, std::unique_ptr<Metricas>> cache_;
  EstadoFuente clave_;
  Metricas* actual_ = nullptr;
};

// Registers the metric twins of the classic fonts ("Times New Roman",
// "Arial", "Courier New") once; false when one of them does not resolve.
bool RegistraFuentes();

}  // namespace ss
