// The cost of drawing a worksheet: all pages of a 500-problem worksheet
// written as a PDF, and one page drawn into an image as the screen shows it.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "typeset/salida.h"
#include "worksheet/armado.h"
#include "bench/hoja_bench.h"

namespace {

// The made worksheet of 500 problems.
struct Hoja : bench::Entorno {
  Hoja() { ss::CrearColeccion(s, 1); }

  // Draws a page as the command-line tool does: its text, then its number.
  ss::PintaPagina Pinta() {
    return [this](int pagina, ss::Canvas& canvas) {
      motor.ComponerTexto(ss::TextoPagina(doc, pagina), 12, canvas);
      ss::DibujaNumeroPagina(motor, canvas, pagina, doc.col.cab.PAGINI, doc.col.cab.POSNUMPAG);
    };
  }
};

Hoja& LaHoja() {
  static Hoja hoja;
  return hoja;
}

void BM_PdfDeLaHoja500(benchmark::State& state) {
  Hoja& h = LaHoja();
  QTemporaryDir dir;
  const QString ruta = dir.filePath("hoja.pdf");
  const ss::PintaPagina pinta = h.Pinta();
  for (auto _ : state) {
    QString error;
    if (!ss::EscribePdf(ruta, h.doc.numPaginas, pinta, &error)) state.SkipWithError("no PDF");
  }
  state.counters["problems"] = static_cast<double>(h.doc.col.problemas.size());
  state.counters["pages"] = h.doc.numPaginas;
  state.counters["kB"] = static_cast<double>(QFileInfo(ruta).size()) / 1000;
}
BENCHMARK(BM_PdfDeLaHoja500)->Unit(benchmark::kMillisecond);

// One page of the worksheet into an image at zoom 1, as the screen draws it.
void BM_PaginaEnImagen(benchmark::State& state) {
  Hoja& h = LaHoja();
  const ss::PintaPagina pinta = h.Pinta();
  const int pagina = h.doc.numPaginas / 2;
  QImage image(static_cast<int>(ss::kPaginaAnchoPx), static_cast<int>(ss::kPaginaAltoPx),
               QImage::Format_RGB32);
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(1 / ss::kTwipsPorPixel, 1 / ss::kTwipsPorPixel);
    ss::CanvasQt canvas(&painter, ss::TipoCanvas::Pantalla);
    pinta(pagina, canvas);
  }
  state.counters["chars"] = static_cast<double>(ss::TextoPagina(h.doc, pagina).size());
}
BENCHMARK(BM_PaginaEnImagen)->Unit(benchmark::kMillisecond);

}  // namespace
