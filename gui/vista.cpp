#include "gui/vista.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <cmath>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"
#include "worksheet/carpetas.h"
#include "worksheet/coleccion.h"
#include "worksheet/edicion.h"
#include "worksheet/inicio.h"

namespace ss {
namespace {

// The sheet stands this far from the edges of the scrolled area, and its
// shadow this far to the right and below it.
constexpr int kIzquierda = 8, kArriba = 5, kAbajo = 8, kSombra = 2;
const QColor kMate(72, 72, 76);
const QColor kColorSombra(40, 40, 40);

}  // namespace

// The scrolled widget: the sheet and its shadow, on the matte.
class VistaPagina::Lienzo final : public QWidget {
 public:
  explicit Lienzo(VistaPagina& v) : QWidget(nullptr), v_(v) {
    setObjectName(QStringLiteral("Picture1"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
  }
  QRect Hoja() const {
    return {kIzquierda, kArriba, static_cast<int>(std::lround(kAnchoHojaPx * v_.zoom_)),
            static_cast<int>(std::lround(kAltoHojaPx * v_.zoom_))};
  }
  // A point of the widget as a point of the page, in twips at zoom 1.
  QPointF EnPagina(QPointF p) const {
    return (p - QPointF(kIzquierda, kArriba)) * (kTwipsPorPixel / v_.zoom_);
  }
  // The edit pointer over the text area of a worksheet with strips, the
  // normal one elsewhere; changed only when the mode changes.
  void Puntero(QPointF p) {
    const bool edicion = v_.doc_ && !v_.doc_->marcas.empty() && !v_.doc_->col.problemas.empty() &&
                         EnPagina(p).x() < LimiteEdicion();
    if (edicion == edicion_) return;
    edicion_ = edicion;
    if (edicion)
      setCursor(PunteroEdicion());
    else
      unsetCursor();
  }

 protected:
  void paintEvent(QPaintEvent* e) override {
    QPainter p(this);
    p.fillRect(e->rect(), kMate);
    const QRect hoja = Hoja();
    p.fillRect(hoja.translated(kSombra, kSombra), kColorSombra);
    if (v_.imagen_.isNull())
      p.fillRect(hoja, Qt::white);
    else
      p.drawImage(hoja, v_.imagen_);
    // A selected strip shows inverted, from the left margin to the right one.
    if (!v_.doc_) return;
    p.setCompositionMode(QPainter::CompositionMode_Difference);
    const double k = v_.zoom_ / kTwipsPorPixel;
    for (const MarcaPagina& m : v_.doc_->marcas)
      if (m.Seleccionada)
        p.fillRect(QRectF(hoja.left() + v_.izquierda_ * k, hoja.top() + m.MarcaArriba * k,
                          (v_.derecha_ - v_.izquierda_) * k, (m.MarcaAbajo - m.MarcaArriba) * k),
                   Qt::white);
  }
  void mouseMoveEvent(QMouseEvent* e) override { Puntero(e->position()); }
  void mousePressEvent(QMouseEvent* e) override {
    Puntero(e->position());
    if (!Hoja().contains(e->position().toPoint())) return;  // the matte around the sheet
    const QPointF en = EnPagina(e->position());
    if (v_.alPulsar) v_.alPulsar(e->button(), en.x(), en.y(), e->globalPosition().toPoint());
  }

 private:
  static const QCursor& PunteroEdicion() {
    static const QCursor puntero = [] {
      const QPixmap imagen(CarpetaDatos() + QStringLiteral("/img/edit_pointer.png"));
      if (imagen.isNull()) return QCursor(Qt::PointingHandCursor);
      // The picture points right, at the middle of its right edge.
      return QCursor(imagen, imagen.width() - 1, imagen.height() / 2);
    }();
    return puntero;
  }

  VistaPagina& v_;
  bool edicion_ = false;
};

VistaPagina::VistaPagina(QWidget* parent) : QScrollArea(parent), lienzo_(new Lienzo(*this)) {
  setObjectName(QStringLiteral("Picture3"));
  setAlignment(Qt::AlignCenter);
  setWidgetResizable(false);
  setFrameShape(QFrame::NoFrame);
  QPalette paleta = palette();
  paleta.setColor(QPalette::Window, kMate);
  paleta.setColor(QPalette::WindowText, QColor(235, 235, 235));
  setPalette(paleta);
  setBackgroundRole(QPalette::Window);
  viewport()->setAutoFillBackground(true);
  setWidget(lienzo_);
  lienzo_->hide();
  verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
  horizontalScrollBar()->setObjectName(QStringLiteral("HScroll1"));
  verticalScrollBar()->setSingleStep(40);
  horizontalScrollBar()->setSingleStep(40);
  PonZoom(1);
}

QWidget* VistaPagina::Hoja() const { return lienzo_; }

void VistaPagina::PonZoom(double zoom) {
  zoom_ = zoom;
  MuestraHoja();
}

double VistaPagina::AnchoUtil() const {
  return width() - 2 * frameWidth() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

void VistaPagina::MuestraSeleccion() { lienzo_->update(); }

void VistaPagina::Limpia() {
  imagen_ = QImage();
  doc_ = nullptr;
  hojaVisible_ = false;
  MuestraHoja();
}

// Without a sheet there is nothing to scroll: the scrolled widget takes no room.
void VistaPagina::MuestraHoja() {
  const bool visible = hojaVisible_ && !espera_;
  const QRect hoja = lienzo_->Hoja();
  lienzo_->resize(visible ? QSize(kIzquierda + hoja.width() + kSombra + kIzquierda,
                                  kArriba + hoja.height() + kSombra + kAbajo)
                          : QSize(0, 0));
  lienzo_->setVisible(visible);
  lienzo_->update();
  viewport()->update();
}

void VistaPagina::PintarPagina(Documento& doc, Motor& motor, int pagina) {
  const qreal dpr = devicePixelRatioF();
  const QSize tamano(static_cast<int>(std::lround(kAnchoHojaPx * zoom_ * dpr)),
                     static_cast<int>(std::lround(kAltoHojaPx * zoom_ * dpr)));
  if (imagen_.size() != tamano) imagen_ = QImage(tamano, QImage::Format_RGB32);
  imagen_.setDevicePixelRatio(dpr);
  imagen_.fill(Qt::white);
  doc.marcas.clear();
  doc_ = &doc;
  if (!doc.col.problemas.empty() && pagina >= 1 && pagina <= doc.numPaginas) {
    QPainter painter(&imagen_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    // Zoom is a scale of the drawing: the page is laid out at its own size,
    // so lines and pages break as they print.
    painter.scale(zoom_ / kTwipsPorPixel, zoom_ / kTwipsPorPixel);
    const double zoomMotor = motor.Zoom;
    motor.Zoom = 1;
    {
      CanvasQt canvas(&painter, TipoCanvas::Pantalla);
      motor.ComponerTexto(TextoPagina(doc, pagina), 12, canvas);
      for (const MarcaTexto& m : motor.marcas)
        doc.marcas.push_back(MarcaPagina{m.arriba, m.abajo, false, m.numero == 0 ? 1000 : m.numero});
      izquierda_ = motor.MargenIzq;
      derecha_ = motor.AnchoPagina - motor.MargenDer;
      DibujaNumeroPagina(motor, canvas, pagina, doc.col.cab.PAGINI, doc.col.cab.POSNUMPAG);
    }
    motor.Zoom = zoomMotor;
  }
  hojaVisible_ = true;
  MuestraHoja();
}

void VistaPagina::Espera(bool espera, const QString& texto) {
  espera_ = espera;
  textoEspera_ = texto;
  MuestraHoja();
}

void VistaPagina::wheelEvent(QWheelEvent* e) {
  // Whole notches of the wheel, each one small step of the vertical bar; a
  // touchpad's small movements add up to notches.
  QScrollBar* barra = verticalScrollBar();
  e->accept();
  if (!barra->isVisible()) return;
  ruedaAcumulada_ += e->angleDelta().y();
  const int muescas = ruedaAcumulada_ / 120;
  ruedaAcumulada_ -= muescas * 120;
  if (muescas != 0) barra->setValue(barra->value() - muescas * barra->singleStep());
}

void VistaPagina::resizeEvent(QResizeEvent* e) {
  QScrollArea::resizeEvent(e);
  if (e->oldSize().width() != e->size().width() && alCambiarAncho) alCambiarAncho();
}

void VistaPagina::paintEvent(QPaintEvent* e) {
  QScrollArea::paintEvent(e);
  if (!espera_ || textoEspera_.isEmpty()) return;
  QPainter p(viewport());
  QFont f = font();
  f.setPointSizeF(f.pointSizeF() * 1.4);
  p.setFont(f);
  p.setPen(palette().color(QPalette::WindowText));
  p.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, textoEspera_);
}

}  // namespace ss
