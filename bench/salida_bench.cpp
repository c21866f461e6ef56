// The cost of drawing a worksheet: all pages of a 500-problem worksheet
// written as a PDF, and one page drawn into an image as the screen shows it.
#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "typeset/salida.h"
#include "worksheet/armado.h"

namespace {

// A made worksheet of 500 problems of the gases, formulas and solutions
// module, solutions after their problems, page numbers at the foot.
struct Hoja {
  ss::Documento doc;
  ss::PlataformaMuda plataforma;
  ss::Mensajes mensajes{SS_SOURCE_DIR};
  ss::GenContext gen{&mensajes, ss::Aleatorio(2024)};
  ss::Motor motor;
  ss::CanvasQt oculta{nullptr};
  ss::TextosVentana textos{SS_SOURCE_DIR, "MAI"};
  ss::Sesion s{doc, plataforma, gen, motor, oculta, textos, ss::Carpetas{}};

  Hoja() {
    ss::ColeccionCab& cab = doc.col.cab;
    cab.POSSOL = 1;
    cab.POSNUMPAG = 9;
    cab.PAGINI = 1;
    cab.ORDENA = ss::kVerdadero;
    cab.PROSUF = ")";
    cab.TITULO = "Problems of Chemistry";
    ss::Arbol arbol;
    ss::ArbolItem raiz;
    raiz.Tipo = 6;
    arbol.Agrega(raiz);
    for (int rutina = 1; rutina <= 20; ++rutina) {
      ss::ArbolItem f;
      f.Nivel = 2;
      f.Tipo = 3;
      f.ModuloFijo = "ANEU_QUIM_DIS";
      f.Rutina = static_cast<int16_t>(rutina);
      f.Marcado = true;
      f.Cantidad1 = 25;
      f.Cantidad2 = 6;
      arbol.Agrega(f);
    }
    ss::Arbol_to_Var(arbol, doc.col, gen.rnd);
    ss::CrearColeccion(s, 1);
  }

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

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
