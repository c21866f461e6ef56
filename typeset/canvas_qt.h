// The Canvas on a QPainter: the hidden page of pagination (no painter: it
// only measures), an image, a PDF, a printer or a widget. The canvas works in
// twips on a sheet of logical pixels of 15 twips; the painter's transform,
// set by the caller, maps twips to the device.
//
// Text is drawn as glyph runs: the characters of consecutive Print calls in
// one face, size and colour are gathered at the positions the engine gave
// them and drawn in one call when anything else is drawn, the painter's
// transform changes, Flush is called or the canvas goes. Underlined and
// struck-out text gets one rule per run, at one height.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPointF>
#include <QRawFont>
#include <QTransform>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "typeset/canvas.h"

class QPainter;

namespace ss {

enum class TipoCanvas { Oculto, Pantalla, Impresora };

class CanvasQt final : public Canvas {
 public:
  // `painter` may be null: then the canvas measures and draws nothing.
  explicit CanvasQt(QPainter* painter, TipoCanvas tipo = TipoCanvas::Oculto,
                    double anchoPx = 796, double altoPx = 1125);
  // Draws what is gathered, if the painter is still active.
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

  // Draws the gathered text and rules now: before the caller draws on the
  // same painter itself, starts a new page or ends the painter.
  void Flush();

 private:
  struct Metricas;
  // Glyphs of one face, size and colour waiting to be drawn; positions in
  // pixels of the reference size, from the page's origin.
  struct Tramo {
    Metricas* m = nullptr;
    double escala = 0;
    int32_t color = 0;
    std::vector<quint32> glifos;
    std::vector<QPointF> posiciones;
  };
  // An underline or strike-out rule under consecutive characters.
  struct Regla {
    bool activa = false;
    double x1 = 0, x2 = 0, base = 0;  // twips; base: the baseline it hangs from
    double tolerancia = 0;            // how far a baseline may stray and stay in the run
    double y = 0, grosor = 0;
    double escala = 0;                // of the text the height was taken from
    bool deOperador = false;          // height taken from a shifted sign
    int32_t color = 0;
  };

  Metricas& Actual();
  static Metricas& Cara(const EstadoFuente& f);
  void Junta(Metricas& m, double escala, std::string_view text);
  void DibujaSuelto(Metricas& m, double escala, double x, unsigned char byte);
  void Sigue(Regla& r, bool activa, bool subrayado, Metricas& m, double escala, double ancho,
             std::string_view text);
  void Cierra(Regla& r);
  void VuelcaTramos();
  void Transformacion();

  QPainter* painter_;
  TipoCanvas tipo_;
  double anchoPx_, altoPx_;
  Metricas* actual_ = nullptr;
  std::vector<Tramo> tramos_;  // the first `usados_` hold glyphs
  std::size_t usados_ = 0;
  QTransform base_;            // the painter's transform the pending text was gathered under
  Regla subrayado_, tachado_;
};

// Registers the metric twins of the classic fonts ("Times New Roman",
// "Arial", "Courier New") once; false when one of them does not resolve.
bool RegistraFuentes();

}  // namespace ss
