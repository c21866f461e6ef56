// Decorations of a text box, drawn in the line colour: vectors, carets, arcs,
// rules over and under, boxes, long-division signs and crossings-out.
#include <algorithm>
#include <cmath>

#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

void Decoracion(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const double t = p.Largo(0.04, 1);
  const double a = 0.18 * p.H;
  const std::string contenido(Interior(bloque));
  const std::string_view tag = bloque.substr(1, 3);
  if (!p.dibujo) {
    const Caja& A = p.Mide(0, contenido);
    Caja own;
    own.Adelanto = A.Adelanto + t;
    own.Ancho = A.Ancho + t;
    // The raised harpoon stands above the argument: the box holds its barb.
    own.Sobre = A.Sobre + (tag == "VED" ? 1.33 * a + t : t);
    own.Eje = A.Eje;
    own.Alto = A.Alto + t;
    p.Escribe(own, bloque);
    return;
  }
  const Caja A = p.Hijo(0);
  p.Dibuja(0, contenido, p.X0 + A.Adelanto, p.Y0);
  const double lx = p.X0 - A.Adelanto, rx = p.X0 + A.Ancho;
  const double ty = p.Y0 - A.Sobre, by = p.Y0 + A.Alto;
  const double ancho = A.Adelanto + A.Ancho;
  const double alto = A.Sobre + A.Alto + t;
  const int32_t col = m.ColorLinea;
  auto raya = [&](double x1, double y1, double x2, double y2) { p.Raya(x1, y1, x2, y2, t, col); };
  auto arriba = [&] { raya(lx - t / 2, ty - t / 2, lx - t / 2 + ancho + t, ty - t / 2); };
  auto abajo = [&] { raya(lx - t / 2, by + t / 2, lx - t / 2 + ancho + t, by + t / 2); };
  auto izquierda = [&] { raya(lx - t / 2, by + t / 2, lx - t / 2, by + t / 2 - alto); };
  auto derecha = [&] { raya(rx + t / 2, by + t / 2, rx + t / 2, by + t / 2 - alto); };
  const double medio = (lx + rx) / 2;

  if (tag == "VEC" || tag == "VED") {
    const double y = tag == "VEC" ? ty + a / 2 : ty - 0.33 * a;
    raya(lx, y, rx, y);
    raya(rx, y, rx - a, y - a);
  } else if (tag == "AND") {
    raya(lx, ty + 1.33 * a, medio, ty + 0.33 * a);
    raya(rx, ty + 1.33 * a, medio, ty + 0.33 * a);
  } else if (tag == "ARC") {
    const double xs[] = {lx + a / 4, lx + ancho / 3, medio, rx - ancho / 3, rx - a / 4};
    const double ys[] = {0.9, 0.2, 0.1, 0.2, 0.9};
    for (int k = 0; k < 4; ++k) raya(xs[k], ty + ys[k] * a, xs[k + 1], ty + ys[k + 1] * a);
  } else if (tag == "SED") {
    raya(lx, ty + 1.33 * a, rx, ty + 1.33 * a);
  } else if (tag == "SEG") {
    arriba();
  } else if (tag == "DOL") {
    abajo();
  } else if (tag == "UDL") {
    arriba();
    abajo();
  } else if (tag == "REC") {
    arriba();
    abajo();
    izquierda();
    derecha();
  } else if (tag == "CDE") {
    izquierda();
    abajo();
  } else if (tag == "CDI") {
    arriba();
    const double pi = 4 * std::atan(1.0);
    double xa = lx - t / 2, ya = ty - t / 2;
    for (double s = 0.1; s < 1.001; s += 0.1) {
      const double xb = lx - t / 2 + std::sin(pi * s) * alto / 6;
      const double yb = ty - t / 2 + alto * s;
      raya(xa, ya, xb, yb);
      xa = xb;
      ya = yb;
    }
  } else if (tag == "TDD") {
    raya(lx, ty, rx, by);
  } else if (tag == "TDU") {
    raya(lx, by, rx, ty);
  } else if (tag == "TDX") {
    raya(lx, ty, rx, by);
    raya(lx, by, rx, ty);
  }
}

}  // namespace

void RegistraDecoraciones(Motor& m) {
  for (const char* tag :
       {"VEC", "VED", "AND", "ARC", "SED", "SEG", "DOL", "UDL", "REC", "CDE", "CDI", "TDD", "TDU", "TDX"})
    m.RegistraConstruccion(tag, Decoracion);
}

}  // namespace ss
