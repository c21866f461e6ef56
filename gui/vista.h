// The page view: one page of the worksheet as a white sheet with its shadow
// on a dark matte, at the chosen zoom, with scroll bars when it does not fit.
// The page is drawn once into an image; scrolling and repainting only show
// that image again.
#pragma once

#include <QCursor>
#include <QImage>
#include <QScrollArea>

#include <functional>

namespace ss {

struct Documento;
class Motor;

class VistaPagina final : public QScrollArea {
 public:
  explicit VistaPagina(QWidget* parent = nullptr);

  // Draws page `pagina` of `doc` into the view's image at the view's zoom
  // (nothing but white with no worksheet) and keeps the marks the drawing
  // left in doc.marcas. The page breaks do not depend on the zoom.
  void PintarPagina(Documento& doc, Motor& motor, int pagina);
  // No worksheet: the matte alone, without a sheet.
  void Limpia();

  double Zoom() const { return zoom_; }
  // Gives the sheet its size for `zoom`; the caller draws the page again.
  void PonZoom(double zoom);
  // The width the page may take when it fits the view's width: the viewport
  // without the vertical scroll bar, whether or not that bar shows.
  double AnchoUtil() const;

  // The sheet hidden, with the waiting text shown on the matte in its place.
  void Espera(bool espera, const QString& texto = {});

  // The image of the page as last drawn (device pixels).
  const QImage& Imagen() const { return imagen_; }
  QWidget* Hoja() const;

  // Called when the view's width changes.
  std::function<void()> alCambiarAncho;
  // A press of a mouse button on the sheet, at a point of the page in twips
  // at zoom 1, and where on the screen.
  std::function<void(Qt::MouseButton boton, double x, double y, QPoint global)> alPulsar;

  // The selected strips of the page last drawn are shown inverted.
  void MuestraSeleccion();

 protected:
  void wheelEvent(QWheelEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void paintEvent(QPaintEvent* e) override;

 private:
  void MuestraHoja();
  class Lienzo;
  friend class Lienzo;
  Lienzo* lienzo_;
  QImage imagen_;
  const Documento* doc_ = nullptr;  // the worksheet last drawn, for its selected strips
  double izquierda_ = 0, derecha_ = 0;  // the text area's edges, twips
  double zoom_ = 1;
  int ruedaAcumulada_ = 0;
  bool espera_ = false;
  bool hojaVisible_ = false;
  QString textoEspera_;
};

}  // namespace ss
