#include "typeset/salida.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"

namespace ss {
namespace {

constexpr double kAnchoTwips = kPaginaAnchoPx * kTwipsPorPixel;

bool Falla(QString* error, const QString& ruta, const QString& porque) {
  if (error) *error = QStringLiteral("cannot write %1: %2").arg(ruta, porque);
  return false;
}

// Writes the whole file beside its name, then gives it the name. Writes go
// straight to the disk, unbuffered, so that a short write (a full disk) is
// seen at once with the system's reason.
bool Guarda(const QString& ruta, const QByteArray& datos, QString* error) {
  const QFileInfo carpeta(QFileInfo(ruta).absolutePath());
  if (!carpeta.isDir()) return Falla(error, ruta, QStringLiteral("no such folder"));
  QSaveFile archivo(ruta);
  if (!archivo.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
    return Falla(error, ruta, archivo.errorString());
  for (qint64 hecho = 0; hecho < datos.size();) {
    const qint64 n = archivo.write(datos.constData() + hecho, datos.size() - hecho);
    if (n <= 0) {
      const QString porque = archivo.errorString();
      archivo.cancelWriting();
      return Falla(error, ruta, porque);
    }
    hecho += n;
  }
  if (!archivo.commit()) return Falla(error, ruta, archivo.errorString());
  return true;
}

}  // namespace

bool EscribePdf(const QString& ruta, int paginas, const PintaPagina& pinta, QString* error) {
  QBuffer datos;
  datos.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&datos);
    pdf.setResolution(1200);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    pdf.setCreator(QStringLiteral("Sheetsmith - Chemistry"));
    QPainter painter;
    if (!painter.begin(&pdf)) return Falla(error, ruta, QStringLiteral("the PDF cannot be started"));
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
    if (!painter.end()) return Falla(error, ruta, QStringLiteral("the PDF cannot be finished"));
  }
  return Guarda(ruta, datos.data(), error);
}

bool EscribePng(const QString& ruta, double zoom, int pagina, const PintaPagina& pinta,
                QString* error) {
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
  QBuffer datos;
  datos.open(QIODevice::WriteOnly);
  if (!image.save(&datos, "PNG")) return Falla(error, ruta, QStringLiteral("the image cannot be encoded"));
  return Guarda(ruta, datos.data(), error);
}

bool EscribePngs(const QString& patron, double zoom, int paginas, const PintaPagina& pinta,
                 QString* error) {
  QStringList hechas;
  for (int p = 1; p <= paginas; ++p) {
    const QString ruta = QString(patron).replace(QStringLiteral("%d"), QString::number(p));
    if (!EscribePng(ruta, zoom, p, pinta, error)) {
      for (const QString& h : hechas) QFile::remove(h);
      return false;
    }
    hechas << ruta;
  }
  return true;
}

}  // namespace ss
