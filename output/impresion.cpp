#include "output/impresion.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"
#include "worksheet/coleccion.h"

namespace ss {

QStringList Impresoras() { return QPrinterInfo::availablePrinterNames(); }

QString ImpresoraPorDefecto() {
  const QStringList todas = Impresoras();
  if (todas.isEmpty()) return {};
  const QString defecto = QPrinterInfo::defaultPrinterName();
  return todas.contains(defecto) ? defecto : todas.front();
}

void PintaPaginaHoja(Motor& motor, Canvas& canvas, const Documento& doc, int pagina) {
  motor.ComponerTexto(TextoPagina(doc, pagina), 12, canvas);
  DibujaNumeroPagina(motor, canvas, pagina, doc.col.cab.PAGINI, doc.col.cab.POSNUMPAG);
}

void PonPapelA4(QPrinter& impresora) {
  impresora.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
}

FinImpresion ImprimeDocumento(QPrinter& impresora, const QString& nombre, Motor& motor,
                              const Documento& doc, const std::vector<int>& orden,
                              const std::function<bool(int)>& antes) {
  if (orden.empty()) return FinImpresion::Hecha;
  impresora.setFullPage(true);
  impresora.setPageOrientation(QPageLayout::Portrait);
  impresora.setCopyCount(1);
  impresora.setCollateCopies(false);
  impresora.setDocName(nombre);

  if (antes && !antes(0)) return FinImpresion::Cancelada;
  QPainter painter;
  if (!painter.begin(&impresora)) return FinImpresion::Fallida;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);

  // The page of the layout in twips, fitted whole onto the paper.
  const QRectF papel = impresora.paperRect(QPrinter::DevicePixel);
  const double ancho = kPaginaAnchoPx * kTwipsPorPixel, alto = kPaginaAltoPx * kTwipsPorPixel;
  const double escala = std::min(papel.width() / ancho, papel.height() / alto);
  const double dx = (papel.width() - ancho * escala) / 2, dy = (papel.height() - alto * escala) / 2;

  FinImpresion fin = FinImpresion::Hecha;
  for (std::size_t k = 0; k < orden.size(); ++k) {
    if (k > 0 && antes && !antes(static_cast<int>(k))) {
      fin = FinImpresion::Cancelada;
      break;
    }
    if (k > 0 && !impresora.newPage()) {
      fin = FinImpresion::Fallida;
      break;
    }
    painter.save();
    painter.translate(dx, dy);
    painter.scale(escala, escala);
    CanvasQt canvas(&painter, TipoCanvas::Impresora);
    PintaPaginaHoja(motor, canvas, doc, orden[k]);
    painter.restore();
  }
  if (!painter.end() && fin == FinImpresion::Hecha) fin = FinImpresion::Fallida;
  return fin;
}

}  // namespace ss
