// Roots: #SQR (square), #CUR (cube) and #RAD with an index in #RI(...#RI).
#include <algorithm>

#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

void Raiz(Motor& m, std::string_view bloque, int caja, std::string_view indiceFijo, bool conRI) {
  Paso p(m, caja);
  const double grueso = p.Largo(0.0323, 15);
  const double g = p.Largo(0.0354, 15);
  const double a = p.Largo(0.0754, 15);
  const double bi = p.Largo(0.04, 15);
  const double cg = p.Largo(0.067, 15);
  const double s = p.Largo(0.05, 15);
  const double r = p.Largo(0.09, 15);
  const double l = p.Largo(0.08, 15);
  const double u = p.Largo(0.215, 15);
  const double v = p.Largo(0.175, 15);
  const double w = p.Largo(0.12, 15);
  const double i = p.Largo(0.26, 15);

  std::string radicando(Interior(bloque));
  std::string indice(indiceFijo);
  if (conRI && radicando.starts_with("#RI(")) {
    bool ok = false;
    const std::string ri = ExtraeBloque(radicando, "#RI(", "#RI)", &ok);
    if (ok) {
      indice = ri.substr(4, ri.size() - 8);
      radicando.erase(0, ri.size());
    }
  }
  const bool hayIndice = !indice.empty();

  if (!p.dibujo) {
    const Caja& A = p.Mide(0, radicando);
    const Caja rad = A;
    Caja own;
    own.Adelanto = l + rad.Adelanto + u + v + w;
    own.Ancho = r + rad.Ancho;
    own.Sobre = rad.Sobre + g + grueso;
    own.Eje = rad.Eje;
    own.Alto = rad.Alto + a;
    if (hayIndice) {
      const Caja& B = p.MideReducido(1, indice, Reduccion::General);
      const double G = rad.Sobre + rad.Alto + g + grueso + a;
      const double K = std::max(0.4 * G, 1.0);
      const double yIndice = rad.Alto + a - K - bi - B.Alto;  // below the top of plain text
      own.Adelanto = std::max(own.Adelanto, rad.Adelanto + i + W(B));
      own.Sobre = std::max(own.Sobre, B.Sobre - yIndice);
    }
    p.Escribe(own, bloque);
    return;
  }

  const Caja A = p.Hijo(0);
  const double G = A.Sobre + A.Alto + g + grueso + a;
  const double K = std::max(0.4 * G, 1.0);
  p.Dibuja(0, radicando, p.X0 + A.Adelanto, p.Y0);
  if (hayIndice) {
    const Caja B = p.Hijo(1);
    const double derecha = p.X0 - A.Adelanto - i;
    p.DibujaReducido(1, indice, derecha - W(B) + B.Adelanto, p.Y0 + A.Alto + a - K - bi - B.Alto,
                     Reduccion::General);
  }
  const double yt = p.Y0 - A.Sobre;
  const double L = p.X0 - A.Adelanto - l;
  const double yb = yt + A.Sobre + A.Alto + a;
  const int32_t color = p.c.ForeColor;
  const double arriba = yt - g - grueso / 2;
  p.Raya(L + grueso / 2, arriba, p.X0 + A.Ancho + r - grueso / 2, arriba, grueso, color);
  p.Raya(L - u - grueso / 2, yb - s / 2, L - u - v, yb - K, s, color);
  p.Raya(L - u, yb - grueso / 2, L, arriba, grueso, color);
  p.Raya(L - u - v - w + grueso / 2, yb - K + cg - grueso / 1.5, L - u - v, yb - K - grueso / 1.5,
         grueso, color);
  // A radical ends any text colour in force.
  p.c.DrawWidth = 1;
  p.c.ForeColor = 0;
}

void Sqr(Motor& m, std::string_view bloque, int caja) { Raiz(m, bloque, caja, "", false); }
void Cur(Motor& m, std::string_view bloque, int caja) { Raiz(m, bloque, caja, "3", false); }
void Rad(Motor& m, std::string_view bloque, int caja) { Raiz(m, bloque, caja, "", true); }

}  // namespace

void RegistraRaices(Motor& m) {
  m.RegistraConstruccion("SQR", Sqr);
  m.RegistraConstruccion("CUR", Cur);
  m.RegistraConstruccion("RAD", Rad);
}

}  // namespace ss
