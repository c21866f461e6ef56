// Fractions (#COC), bar-less stacks (#DDL) and arrows with text (#ATX).
#include <algorithm>

#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

void Fraccion(Motor& m, std::string_view bloque, int caja, bool conRaya) {
  ++m.NivelFraccion;
  Paso p(m, caja);
  const double t = p.Largo(m.NivelFraccion == 1 ? 0.04 : 0.02, 15);
  const double g = p.Largo(0.0354, 15);
  const double s = p.Largo(0.09, 15);
  const auto [num, den] = DosArgumentos(bloque, conRaya ? "#N)(" : "#L)(");
  if (!p.dibujo) {
    const Caja& a = p.Mide(0, num);
    const Caja& b = p.Mide(1, den);
    Caja own;
    own.Ancho = 2 * s + std::max(W(a), W(b));
    own.Sobre = a.Sobre;
    own.Eje = a.Alto + g + t / 2;
    own.Alto = own.Eje + t / 2 + g + b.Sobre + b.Alto;
    p.Escribe(own, bloque);
  } else {
    const Caja a = p.Hijo(0), b = p.Hijo(1);
    const double d = (W(b) - W(a)) / 2;
    const double ancho = 2 * s + std::max(W(a), W(b));
    const double desA = d > 0 ? d : 0, desB = d > 0 ? 0 : -d;
    p.Dibuja(0, num, p.X0 + desA + s + a.Adelanto, p.Y0);
    p.Dibuja(1, den, p.X0 + desB + s + b.Adelanto, p.Y0 + a.Alto + g + t + g + b.Sobre);
    if (conRaya) {
      const double y = p.Y0 + a.Alto + g + t / 2;
      p.Raya(p.X0 + t / 2, y, p.X0 + t / 2 + ancho - t, y, t, p.c.ForeColor);
    }
  }
  --m.NivelFraccion;
}

void Coc(Motor& m, std::string_view bloque, int caja) { Fraccion(m, bloque, caja, true); }
void Ddl(Motor& m, std::string_view bloque, int caja) { Fraccion(m, bloque, caja, false); }

// A long arrow with a text above and one below; it reaches over its box at
// both ends. It leaves the fraction level raised to the end of the line.
void Atx(Motor& m, std::string_view bloque, int caja) {
  ++m.NivelFraccion;
  Paso p(m, caja);
  const double t = p.Largo(0.02, 15);
  const double g = p.Largo(0.0354, 15);
  const double s = p.Largo(0.09, 15);
  const auto [arriba, abajo] = DosArgumentos(bloque, "#T)(");
  if (!p.dibujo) {
    const Caja& a = p.Mide(0, arriba);
    const Caja& b = p.Mide(1, abajo);
    const double ancho = 2 * s + std::max(W(a), W(b));
    Caja own;
    own.Adelanto = 7 * s;
    own.Ancho = 7 * s + ancho;
    own.Sobre = a.Sobre;
    own.Eje = a.Alto + g + t / 2;
    own.Alto = a.Alto + g + t + g + b.Sobre + b.Alto;
    p.Escribe(own, bloque);
    return;
  }
  const Caja a = p.Hijo(0), b = p.Hijo(1);
  const double d = (W(b) - W(a)) / 2;
  const double ancho = 2 * s + std::max(W(a), W(b));
  const double desA = d > 0 ? d : 0, desB = d > 0 ? 0 : -d;
  p.Dibuja(0, arriba, p.X0 + desA + s + a.Adelanto, p.Y0 - 2 * s);
  p.Dibuja(1, abajo, p.X0 + desB + s + b.Adelanto, p.Y0 + a.Alto + g + t + g + b.Sobre);
  const double y = p.Y0 + a.Alto + g + t / 2;
  const double x1 = p.X0 + t / 2 - 6 * s;
  const int32_t color = p.c.ForeColor;
  p.Raya(x1, y, x1 + ancho - t + 12 * s, y, t, color);
  const double xp = p.X0 - t / 2 + 6 * s + ancho;
  p.Raya(xp, y, xp - 4 * s, y - 3 * s, t, color);
  p.Raya(xp, y, xp - 4 * s, y + 3 * s, t, color);
}

}  // namespace

void RegistraFracciones(Motor& m) {
  m.RegistraConstruccion("COC", Coc);
  m.RegistraConstruccion("DDL", Ddl);
  m.RegistraConstruccion("ATX", Atx);
}

}  // namespace ss
