// Delimiters that grow with their content (#NES) and the integral sign (#INT).
#include <algorithm>
#include <cmath>
#include <numbers>

#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

bool EsDelimitador(char ch) { return std::string_view("()[]{}|").find(ch) != std::string_view::npos; }

// One delimiter with its stem at x, from `arriba` down over `alto`. `haciaDentro`
// is +1 when the content lies to the right (an opening one), -1 otherwise.
void Delimitador(Paso& p, char ch, double x, double arriba, double alto, double u, double t,
                 int32_t color) {
  const double abajo = arriba + alto;
  const bool abre = ch == '(' || ch == '[' || ch == '{';
  const double dentro = abre ? 1 : -1;
  switch (ch) {
    case '|':
      p.Raya(x, arriba, x, abajo, t, color);
      break;
    case '[':
    case ']':
      p.Raya(x, arriba, x, abajo, t, color);
      p.Raya(x, arriba, x + dentro * 2 * u, arriba, t, color);
      p.Raya(x, abajo, x + dentro * 2 * u, abajo, t, color);
      break;
    case '(':
    case ')': {
      // One arc of a narrow ellipse over the whole height, bowing away from the content.
      const double rx = 3 * u;
      const double ry = alto / 2 / std::sin(70 * std::numbers::pi / 180);
      const double medio = arriba + alto / 2;
      if (abre)
        p.Arco(110, 250, t, rx, ry, x + rx, medio, color);
      else
        p.Arco(290, 430, t, rx, ry, x - rx, medio, color);
      break;
    }
    case '{':
    case '}': {
      // Arcs at both ends and a nose in the middle, pointing away from the content.
      const double rx = 2 * u, ry = 2 * u;
      const double medio = arriba + alto / 2;
      p.Raya(x, arriba + 2 * u, x, medio - 2 * u, t, color);
      p.Raya(x, medio + 2 * u, x, abajo - 2 * u, t, color);
      if (abre) {
        p.Arco(90, 180, t, rx, ry, x + rx, arriba + 2 * u, color);
        p.Arco(180, 270, t, rx, ry, x + rx, abajo - 2 * u, color);
        p.Arco(270, 360, t, rx, ry, x - rx, medio - 2 * u, color);
        p.Arco(0, 90, t, rx, ry, x - rx, medio + 2 * u, color);
      } else {
        p.Arco(0, 90, t, rx, ry, x - rx, arriba + 2 * u, color);
        p.Arco(270, 360, t, rx, ry, x - rx, abajo - 2 * u, color);
        p.Arco(180, 270, t, rx, ry, x + rx, medio - 2 * u, color);
        p.Arco(90, 180, t, rx, ry, x + rx, medio + 2 * u, color);
      }
      break;
    }
    default:
      break;
  }
}

void Nes(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const double u = 0.1 * p.H;
  const double t = p.Largo(0.04, 1);
  const std::string_view dentro = Interior(bloque);
  const char izq = dentro.size() > 0 ? dentro[0] : ' ';
  const char der = dentro.size() > 1 ? dentro[1] : ' ';
  const std::string contenido(dentro.size() > 2 ? dentro.substr(2) : std::string_view());
  const double extraIzq = izq == '{' ? 2 * u : 0;
  const double extraDer = der == '}' ? 2 * u : 0;
  if (!p.dibujo) {
    const Caja& a = p.Mide(0, contenido);
    Caja own;
    own.Adelanto = 3 * u + a.Adelanto + t + extraIzq;
    own.Ancho = 3 * u + a.Ancho + t + extraDer;
    own.Sobre = 2 * u + a.Sobre;
    own.Eje = a.Eje;
    own.Alto = 2 * u + a.Alto;
    p.Escribe(own, bloque);
    return;
  }
  const Caja a = p.Hijo(0);
  p.Dibuja(0, contenido, p.X0 + a.Adelanto, p.Y0);
  const double arriba = p.Y0 - a.Sobre - u;
  const double alto = a.Sobre + a.Alto + 2 * u;
  const int32_t color = p.c.ForeColor;
  if (EsDelimitador(izq))
    Delimitador(p, izq, p.X0 - a.Adelanto - 2 * u - t / 2, arriba, alto, u, t, color);
  if (EsDelimitador(der))
    Delimitador(p, der, p.X0 + a.Ancho + 2 * u + t / 2, arriba, alto, u, t, color);
}

// An integral sign of double size before its argument. The sign takes the
// room of its own advance when the font at hand draws it wider than `a`, so
// that its ink ends before the argument starts.
void Int(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const double b = p.Largo(0.4, 1);
  const std::string contenido(Interior(bloque));
  p.c.fuente.nombre = "Symbol";
  p.c.fuente.tamano = p.Tamano() * 2;
  const bool cursiva = p.c.fuente.cursiva;
  p.c.fuente.cursiva = false;
  const double a = std::max(p.Largo(0.6, 1), p.c.TextWidth("\xF2"));
  p.c.fuente.cursiva = cursiva;
  p.c.fuente.nombre = p.Nombre();
  p.c.fuente.tamano = p.Tamano();
  if (!p.dibujo) {
    const Caja& A = p.Mide(0, contenido);
    Caja own;
    own.Adelanto = a + A.Adelanto;
    own.Ancho = A.Ancho;
    own.Sobre = 1.2 * b + A.Sobre;
    own.Eje = A.Eje;
    own.Alto = 1.2 * b + A.Alto;
    p.Escribe(own, bloque);
    return;
  }
  const Caja A = p.Hijo(0);
  p.Dibuja(0, contenido, p.X0 + A.Adelanto, p.Y0);
  const int32_t color = p.c.ForeColor;
  p.c.fuente.nombre = "Symbol";
  p.c.fuente.tamano = p.Tamano() * 2;
  p.c.fuente.cursiva = false;
  p.c.ForeColor = 0;
  p.c.CurrentX = p.X0 - a;
  p.c.CurrentY = p.Y0 - b;
  p.c.Print("\xF2");
  p.c.ForeColor = color;
}

}  // namespace

void RegistraDelimitadores(Motor& m) {
  m.RegistraConstruccion("NES", Nes);
  m.RegistraConstruccion("INT", Int);
}

}  // namespace ss
