#include "typeset/salida.h"

#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"

namespace ss {
namespace {

constexpr double kAnchoTwips = kPaginaAnchoPx * kTwipsPorPixel;

bool CarpetaEscribible(const QString& ruta, QString* error) {
  const QFileInfo carpeta(QFileInfo(ruta).absolutePath());
  if (carpeta.isDir() && carpeta.isWritable()) return true;
  if (error) *error = QStringLiteral("cannot write in the folder %1").arg(carpeta.filePath());
  return false;
}

}  // namespace

bool EscribePdf(const QString& ruta, int paginas, const PintaPagina& pinta, QString* error) {
  if (!CarpetaEscribible(ruta, error)) return false;
  QPdfWriter pdf(ruta);
  pdf.setResolution(1200);
  pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
  pdf.setCreator(QStringLiteral("Sheetsmith - Chemistry"));
  QPainter painter;
  if (!painter.begin(&pdf)) {
    if (error) *error = QStringLiteral("cannot write %1").arg(ruta);
    return false;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  const double escala = pdf.width() / kAnchoTwips;
  for (int p = 1; p <= paginas; ++p) {
    if (p > 1) pdf.newPage();
    painter.save();
    painter.scale(escala, escala);
    CanvasQt canvas(&painter, TipoCanvas::Impresora);
    pinta(p, canvas);
    painter.restore();
  }
  if (!painter.end()) {
    if (error) *error = QStringLiteral("cannot write %1").arg(ruta);
    return false;
  }
  return true;
}

bool EscribePng(const QString& ruta, double zoom, int pagina, const PintaPagina& pinta,
                QString* error) {
  if (!CarpetaEscribible(ruta, error)) return false;
  QImage image(static_cast<int>(kPaginaAnchoPx * zoom), static_cast<int>(kPaginaAltoPx * zoom),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(zoom / kTwipsPorPixel, zoom / kTwipsPorPixel);
    CanvasQt canvas(&painter, TipoCanvas::Pantalla);
    pinta(pagina, canvas);
  }
  if (!image.save(ruta, "PNG")) {
    if (error) *error = QStringLiteral("cannot write %1").arg(ruta);
    return false;
  }
  return true;
}

}  // namespace ss
