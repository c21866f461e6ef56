#include "gui/vista.h"

#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <cmath>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"
#include "worksheet/coleccion.h"
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
  }
  QRect Hoja() const {
    return {kIzquierda, kArriba, static_cast<int>(std::lround(kAnchoHojaPx * v_.zoom_)),
            static_cast<int>(std::lround(kAltoHojaPx * v_.zoom_))};
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
  }

 private:
  VistaPagina& v_;
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

void VistaPagina::Limpia() {
  imagen_ = QImage();
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
