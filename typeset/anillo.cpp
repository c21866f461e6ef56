// Rings: the benzene ring (#BCV, #BCH) and the rings of 3 to 9 sides in four
// orientations (#A3V .. #A9D), with double and triple sides, a bond leaving
// each vertex and a label at its end. The ring is centred on the axis of the
// line.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "problems/texto.h"
#include "typeset/construccion.h"

namespace ss {

namespace {

using namespace construccion;

// A ring as its tag and argument give it.
struct Anillo {
  bool benceno = false;
  int lados = 6;
  char orientacion = 'V';
  std::array<char, 9> enlace{};  // the bond leaving vertex k: S, D or X
  std::array<char, 9> lado{};    // side k, from vertex k to the next: S, D or T
  std::array<std::string, 9> rotulo;
};

// The direction of a bond by the angle of its vertex.
enum class Banda { Arriba, ArribaDerecha, Derecha, AbajoDerecha, Abajo, AbajoIzquierda, Izquierda, ArribaIzquierda };

Anillo LeeAnillo(std::string_view bloque) {
  Anillo a;
  const std::string_view tag = bloque.substr(1, 3);
  a.benceno = tag[0] == 'B';
  a.lados = a.benceno ? 6 : std::clamp(tag[1] - '0', 3, 9);
  a.orientacion = tag[2];
  a.enlace.fill('X');
  a.lado.fill('S');
  const std::string_view dentro = Interior(bloque);
  // The bond letters run up to the first code or construct.
  std::size_t j = 0;
  for (; j < dentro.size() && dentro[j] != '&' && dentro[j] != '#'; ++j)
    if (j < static_cast<std::size_t>(a.lados)) {
      const char e = static_cast<char>(dentro[j] & ~0x20);
      a.enlace[j] = e == 'S' || e == 'D' ? e : 'X';
    }
  std::string_view resto = dentro.substr(j);
  if (resto.starts_with("&EC=")) {
    std::size_t k = 4;
    for (; k < resto.size() && std::isalpha(static_cast<unsigned char>(resto[k])); ++k)
      if (k - 4 < static_cast<std::size_t>(a.lados)) {
        const char e = static_cast<char>(resto[k] & ~0x20);
        a.lado[k - 4] = e == 'D' || e == 'T' ? e : 'S';
      }
    if (k < resto.size() && resto[k] == ':') ++k;
    resto = resto.substr(k);
  }
  for (auto& [k, texto] : Rotulos(resto))
    if (k <= a.lados && a.rotulo[k - 1].empty()) a.rotulo[k - 1] = texto;
  return a;
}

Banda BandaDe(double grados) {
  grados = std::fmod(grados, 360.0);
  if (grados < 0) grados += 360;
  // Vertices computed on exact divisions of the circle land a hair off them.
  grados = std::round(grados * 1e6) / 1e6;
  if (grados >= 359 || grados < 1) return Banda::Arriba;
  if (grados < 44) return Banda::ArribaDerecha;
  if (grados < 136) return Banda::Derecha;
  if (grados < 179) return Banda::AbajoDerecha;
  if (grados < 181) return Banda::Abajo;
  if (grados < 224) return Banda::AbajoIzquierda;
  if (grados < 316) return Banda::Izquierda;
  return Banda::ArribaIzquierda;
}


// The side of the box a label widens.
enum class Lado { Arriba, Derecha, Abajo, Izquierda };
Lado LadoDeBanda(Banda b) {
  switch (b) {
    case Banda::ArribaIzquierda:
    case Banda::Arriba:
    case Banda::ArribaDerecha: return Lado::Arriba;
    case Banda::Derecha: return Lado::Derecha;
    case Banda::AbajoDerecha:
    case Banda::Abajo:
    case Banda::AbajoIzquierda: return Lado::Abajo;
    default: return Lado::Izquierda;
  }
}

// Where a label stands, by the quadrant of its vertex.
enum class Cuadrante { Arriba, Derecha, Izquierda, Abajo };
Cuadrante CuadranteDe(double a) {
  const double c = std::cos(a), s = std::sin(a);
  if (std::fabs(c) >= std::sqrt(0.501)) return c > 0 ? Cuadrante::Arriba : Cuadrante::Abajo;
  return s > 0 ? Cuadrante::Derecha : Cuadrante::Izquierda;
}

double AnguloInicial(char o, double paso) {
  switch (o) {
    case 'H':
    case 'L': return paso / 2;
    case 'I': return -std::numbers::pi / 2;
    case 'D': return std::numbers::pi / 2;
    default: return 0;
  }
}

void Ring(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const Anillo an = LeeAnillo(bloque);
  const int n = an.lados;
  const double H = p.H;
  const double R = p.Largo(1.5, 15);
  const double A = 2 * std::numbers::pi / n;
  const double inicio = AnguloInicial(an.orientacion, A);
  std::array<double, 9> ang{};
  double rx = 0, ry = 0;
  for (int k = 0; k < n; ++k) {
    ang[k] = k * A + inicio;
    rx = std::max(rx, -R * std::sin(ang[k]));
    ry = std::max(ry, R * std::cos(ang[k]));
  }
  auto grados = [&](int k) { return ang[k] * 180 / std::numbers::pi; };

  if (!p.dibujo) {
    std::array<double, 4> alcance{};  // top, right, foot, left
    // A label at the side that is taller than the ring (a ring or a branched
    // group of its own) still keeps the lines above and below clear of it.
    double sobreLado = 0, altoLado = 0;
    for (int k = 0; k < n; ++k) {
      if (an.rotulo[k].empty()) continue;
      const Caja& r = p.Mide(k, an.rotulo[k]);
      const Cuadrante c = CuadranteDe(ang[k]);
      if (c == Cuadrante::Derecha || c == Cuadrante::Izquierda) {
        const double vy = -R * std::cos(ang[k]);  // from the ring's centre, downwards
        sobreLado = std::max(sobreLado, -vy + 0.55 * H + r.Sobre - 0.574 * H);
        altoLado = std::max(altoLado, 0.574 * H + vy - 0.55 * H + r.Alto);
      }
      const Lado lado = LadoDeBanda(BandaDe(grados(k)));
      const double extra = lado == Lado::Arriba || lado == Lado::Abajo ? r.Sobre + r.Alto + 0.3 * R
                                                                     : W(r) + 0.5 * R;
      double& a = alcance[static_cast<std::size_t>(lado)];
      a = std::max(a, extra);
    }
    Caja own;
    // A label on the left keeps clear of the text before the ring.
    own.Adelanto = alcance[3];
    own.Ancho = 2 * rx + 0.05 * H + alcance[1];
    own.Sobre = std::max(ry - 0.574 * H + 0.05 * H + alcance[0], sobreLado);
    own.Eje = 0.574 * H;
    own.Alto = std::max(ry + 0.574 * H + 0.05 * H + alcance[2], altoLado);
    p.Escribe(own, bloque);
    return;
  }

  const int32_t color = p.c.ForeColor;
  const double cx = p.X0 + rx, cy = p.Y0 + 0.574 * H;
  auto punto = [&](int k, double radio) {
    return std::pair{cx + radio * std::sin(ang[k % n]), cy - radio * std::cos(ang[k % n])};
  };
  const double t = p.Largo(0.0323, 15);
  for (int k = 0; k < n; ++k) {
    const auto [x1, y1] = punto(k, R);
    const auto [x2, y2] = punto(k + 1, R);
    p.Raya(x1, y1, x2, y2, t, color);
  }
  if (an.benceno) {
    p.c.DrawWidth = std::max(1, static_cast<int>(std::lround(t / p.c.TwipsPerPixelX())));
    p.c.FillStyle = 1;
    p.c.Circle(cx, cy, 0.62 * R, color);
    p.c.DrawWidth = 1;
  } else {
    const double d = 0.18 * H * (n == 3 ? 1.6 : n == 4 ? 1.3 : 1);
    for (int k = 0; k < n; ++k) {
      const int veces = an.lado[k] == 'D' ? 1 : an.lado[k] == 'T' ? 2 : 0;
      for (int v = 1; v <= veces; ++v) {
        const auto [x1, y1] = punto(k, R - v * d);
        const auto [x2, y2] = punto(k + 1, R - v * d);
        p.Raya(x1, y1, x2, y2, t, color);
      }
    }
  }

  // Bonds out of the ring and their labels.
  const double g = p.Largo(0.05 * 0.8, 15);
  for (int k = 0; k < n; ++k) {
    const char e = an.enlace[k];
    const auto [vx, vy] = punto(k, R);
    if (e == 'S' || e == 'D') {
      const Banda b = BandaDe(grados(k));
      const bool doble = e == 'D';
      const double o = 0.075 * H;
      auto vertical = [&](double largo, double desp) {
        const double y2 = vy + largo;
        if (!doble) return p.Raya(vx, vy, vx, y2, g, color);
        if (desp != 0) {
          p.Raya(vx, vy, vx, y2, g, color);
          return p.Raya(vx + desp, vy, vx + desp, y2, g, color);
        }
        p.Raya(vx - o, vy, vx - o, y2, g, color);
        p.Raya(vx + o, vy, vx + o, y2, g, color);
      };
      auto horizontal = [&](double largo) {
        if (!doble) return p.Raya(vx, vy, vx + largo, vy, g, color);
        p.Raya(vx, vy - o, vx + largo, vy - o, g, color);
        p.Raya(vx, vy + o, vx + largo, vy + o, g, color);
      };
      switch (b) {
        case Banda::Arriba:
        case Banda::ArribaIzquierda: vertical(-0.6 * H, 0); break;
        case Banda::ArribaDerecha: vertical(-0.6 * H, 0.13 * H); break;
        case Banda::Derecha: horizontal(0.6 * H); break;
        case Banda::AbajoDerecha: vertical(0.6 * H, 0); break;
        case Banda::Abajo: vertical((doble ? 0.58 : 0.54) * H, 0); break;
        case Banda::AbajoIzquierda: vertical((doble ? 0.58 : 0.45) * H, 0); break;
        case Banda::Izquierda: horizontal(-0.6 * H); break;
      }
    }
    if (an.rotulo[k].empty()) continue;
    const Caja r = p.Hijo(k);
    double x = 0, y = 0;
    switch (CuadranteDe(ang[k])) {
      case Cuadrante::Arriba:
        x = vx - 0.3 * H + r.Adelanto;
        y = vy - 0.45 * H - r.Alto;
        break;
      case Cuadrante::Derecha:
        x = vx + 0.7 * H + r.Adelanto;
        y = vy - 0.55 * H;
        break;
      case Cuadrante::Izquierda:
        x = vx - 0.65 * H - r.Ancho;
        y = vy - 0.55 * H;
        break;
      case Cuadrante::Abajo:
        x = vx - 0.3 * H + r.Adelanto;
        y = vy + 0.5 * H + r.Sobre;
        break;
    }
    p.Dibuja(k, an.rotulo[k], x, y);
  }
}

}  // namespace

void RegistraAnillos(Motor& m) {
  m.RegistraConstruccion("BCV", Ring);
  m.RegistraConstruccion("BCH", Ring);
  for (char n = '3'; n <= '9'; ++n)
    for (char o : {'V', 'L', 'I', 'D'}) m.RegistraConstruccion(std::string{'A', n, o}, Ring);
}

}  // namespace ss
