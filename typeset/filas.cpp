// Rows stacked one under the other (#RWS), aligned left, centre or right and
// centred as a whole on the axis of the line.
#include <algorithm>
#include <vector>

#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

constexpr int kMaxFilas = 9;

// The rows #RW1( .. #RW9(, numbered from 1 without a gap.
std::vector<std::string> Filas(std::string_view interior) {
  std::vector<std::string> filas;
  for (int k = 1; k <= kMaxFilas; ++k) {
    const std::string abre = "#RW" + std::to_string(k) + "(";
    const std::string cierra = "#RW" + std::to_string(k) + ")";
    if (interior.find(abre) == std::string_view::npos) break;
    bool ok = false;
    const std::string b = ExtraeBloque(interior, abre, cierra, &ok);
    if (!ok) break;
    filas.push_back(b.substr(5, b.size() - 10));
  }
  return filas;
}

void Rws(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const double e = p.Largo(0.0354, 1);
  const std::string_view interior = Interior(bloque);
  const char alineacion = interior.empty() ? 'L' : static_cast<char>(interior[0] & ~0x20);
  const std::vector<std::string> filas = Filas(interior);
  const int n = static_cast<int>(filas.size());
  if (!p.dibujo) {
    Caja own;
    double suma = 0, ancho = 0;
    for (int k = 0; k < n; ++k) {
      const Caja& b = p.Mide(k, filas[k]);
      if (k == 0) {
        own.Adelanto = b.Adelanto;
        own.Sobre = b.Sobre;
        own.Alto = b.Alto;
        own.Eje = b.Eje;
      }
      suma += b.Sobre + b.Alto;
      ancho = std::max(ancho, W(b));
    }
    own.Ancho = ancho;
    if (n > 1) {
      own.Alto = (n - 1) * e - own.Sobre + suma;
      own.Eje = own.Alto / 2;
    }
    p.Escribe(own, bloque);
    return;
  }
  double ancho = 0;
  for (int k = 0; k < n; ++k) ancho = std::max(ancho, W(p.Hijo(k)));
  double y = p.Y0;
  for (int k = 0; k < n; ++k) {
    const Caja b = p.Hijo(k);
    if (k > 0) y += b.Sobre;
    double x = p.X0 + b.Adelanto;
    if (alineacion == 'C') x = p.X0 + (ancho - W(b)) / 2 + b.Adelanto;
    if (alineacion == 'R') x = p.X0 + ancho - b.Ancho;
    p.Dibuja(k, filas[k], x, y);
    y += b.Alto + e;
  }
}

}  // namespace

void RegistraFilas(Motor& m) { m.RegistraConstruccion("RWS", Rws); }

}  // namespace ss
