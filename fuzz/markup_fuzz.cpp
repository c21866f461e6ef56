// Any bytes as markup text: the engine must neither crash nor read outside
// the text, and its two passes over a line must take the same boxes. The text
// is set on the hidden page of pagination and drawn into a small image.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "typeset/canvas_qt.h"
#include "typeset/motor.h"

namespace {

struct Entorno {
  int argc = 1;
  char nombre[16] = "markup_fuzz";
  char* argv[2] = {nombre, nullptr};
  std::unique_ptr<QGuiApplication> app;
  std::unique_ptr<ss::Motor> motor;
  std::unique_ptr<ss::CanvasQt> oculta;
  QImage imagen{200, 280, QImage::Format_RGB32};

  Entorno() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    app = std::make_unique<QGuiApplication>(argc, argv);
    motor = std::make_unique<ss::Motor>();
    oculta = std::make_unique<ss::CanvasQt>(nullptr);
  }
};

Entorno& Env() {
  static Entorno e;
  return e;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  Env();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Entorno& e = Env();
  const std::string_view texto(reinterpret_cast<const char*>(data), size);
  ss::Motor& m = *e.motor;

  // The whole text on the hidden page, as pagination sets it.
  m.ComponerTexto(texto, 12, *e.oculta);

  // The text as one line on a very wide sheet: pass 2 must read exactly the
  // boxes pass 1 wrote. (A tab inside an argument may still overflow the
  // sheet; then pass 2 draws the part that fits, with no more boxes.)
  ss::Canvas& c = *e.oculta;
  m.AnchoPagina = 1e12;
  const ss::EstadoFuente fuente = c.fuente;
  m.PasoDibujo = false;
  m.NumCaja = 1;
  m.NivelFraccion = m.NivelExponente = 0;
  c.CurrentX = c.CurrentY = 0;
  const std::string corte = m.InterpretaTexto(texto);
  const int cajas = m.NumCaja;
  const bool rota = m.LineaRota();
  c.fuente = fuente;
  m.PasoDibujo = true;
  m.NumCaja = 1;
  m.NivelFraccion = m.NivelExponente = 0;
  c.CurrentX = c.CurrentY = 0;
  m.InterpretaTexto(corte.empty() ? texto : std::string_view(corte));
  if (corte.empty() ? m.NumCaja != cajas || m.LineaRota() != rota : m.NumCaja > cajas) std::abort();
  m.PasoDibujo = false;

  // Drawn on a page of the screen at a small scale.
  e.imagen.fill(Qt::white);
  QPainter painter(&e.imagen);
  painter.scale(1.0 / 60, 1.0 / 60);
  ss::CanvasQt pantalla(&painter, ss::TipoCanvas::Pantalla);
  m.ComponerTexto(texto, 12, pantalla);
  return 0;
}
