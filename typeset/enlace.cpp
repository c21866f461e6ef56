// An atom of a chain with a bond up and a bond down (#UDB): the atom stands in
// the line, the bonds and the groups at their ends stand over and under it and
// may reach beyond its width, so that the chain goes on right after the atom.
#include <algorithm>
#include <string>

#include "problems/texto.h"
#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

// A label split at its #LP( prefix: the part that hangs left of the bond,
// and the part the bond meets.
std::pair<std::string, std::string> Prefijo(const std::string& rotulo) {
  if (!rotulo.starts_with("#LP(")) return {{}, rotulo};
  bool ok = false;
  const std::string b = ExtraeBloque(rotulo, "#LP(", "#LP)", &ok);
  return {b.substr(4, b.size() - 8), rotulo.substr(ok ? b.size() : 4)};
}

char Tipo(char c) {
  c = static_cast<char>(c & ~0x20);
  return c == 'S' || c == 'D' || c == 'T' ? c : 'X';
}

void Udb(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const std::string_view dentro = Interior(bloque);
  const std::string atomo(dentro.substr(0, std::min<std::size_t>(1, dentro.size())));
  const char arriba = dentro.size() > 1 ? Tipo(dentro[1]) : 'X';
  const char abajo = dentro.size() > 2 ? Tipo(dentro[2]) : 'X';
  std::array<std::string, 2> rotulo;
  for (auto& [k, texto] : Rotulos(dentro.substr(std::min<std::size_t>(3, dentro.size()))))
    if (k <= 2 && rotulo[k - 1].empty()) rotulo[k - 1] = texto;
  const double H = p.H;
  const double L = 0.6 * H;
  // The bonds leave the atom's letter a little inside its box, and meet the
  // groups a little inside theirs, where the line keeps room for accents and
  // descenders.
  const double yArriba = p.Y0 + 0.15 * H, yAbajo = p.Y0 + 0.85 * H;
  const double finArriba = yArriba - L, finAbajo = yAbajo + L;
  const double xEnlace = p.X0 + 0.3 * H;
  // Boxes: 0 the atom, then prefix and rest of the label up, then of the label down.
  std::array<std::pair<std::string, std::string>, 2> partes{Prefijo(rotulo[0]), Prefijo(rotulo[1])};

  if (!p.dibujo) {
    const Caja& a = p.Mide(0, atomo);
    Caja own;
    own.Ancho = W(a);
    own.Sobre = std::max(0.0, a.Sobre);
    own.Eje = a.Eje;
    own.Alto = a.Alto;
    if (arriba != 'X') own.Sobre = std::max(own.Sobre, p.Y0 - finArriba);
    if (abajo != 'X') own.Alto = std::max(own.Alto, finAbajo - p.Y0);
    for (int r = 0; r < 2; ++r) {
      if (rotulo[r].empty()) continue;
      p.Mide(1 + 2 * r, partes[r].first);
      const Caja& b = p.Mide(2 + 2 * r, partes[r].second);
      if (r == 0)
        own.Sobre = std::max(own.Sobre, p.Y0 - (finArriba + 0.15 * H - b.Alto - b.Sobre));
      else
        own.Alto = std::max(own.Alto, finAbajo - 0.1 * H + b.Sobre + b.Alto - p.Y0);
    }
    p.Escribe(own, bloque);
    return;
  }

  p.Dibuja(0, atomo, p.X0 + p.Hijo(0).Adelanto, p.Y0);
  const int32_t color = p.c.ForeColor;
  const double t = p.Largo(0.0323, 15);
  auto enlace = [&](char tipo, double y1, double y2) {
    const double d = 0.05 * H;
    if (tipo == 'S') p.Raya(xEnlace, y1, xEnlace, y2, t, color);
    if (tipo == 'D') {
      p.Raya(xEnlace - d, y1, xEnlace - d, y2, t, color);
      p.Raya(xEnlace + d, y1, xEnlace + d, y2, t, color);
    }
    if (tipo == 'T') {
      // Three strokes a little shorter, so that their ends stay clear of the letters.
      const double corto = 0.025 * (y2 - y1);
      for (double x : {xEnlace - 1.6 * d, xEnlace, xEnlace + 1.6 * d})
        p.Raya(x, y1 + corto, x, y2 - corto, t, color);
    }
  };
  enlace(arriba, yArriba, finArriba);
  enlace(abajo, yAbajo, finAbajo);
  for (int r = 0; r < 2; ++r) {
    if (rotulo[r].empty()) continue;
    const Caja pre = p.Hijo(1 + 2 * r), b = p.Hijo(2 + 2 * r);
    // The group's first letter is centred on the bond, as the atom's is.
    const double x = xEnlace - 0.3 * H;
    const double y = r == 0 ? finArriba + 0.15 * H - b.Alto : finAbajo - 0.1 * H + b.Sobre;
    p.Dibuja(1 + 2 * r, partes[r].first, x - W(pre) + pre.Adelanto, y);
    p.Dibuja(2 + 2 * r, partes[r].second, x + b.Adelanto, y);
  }
}

}  // namespace

void RegistraEnlaces(Motor& m) { m.RegistraConstruccion("UDB", Udb); }

}  // namespace ss
