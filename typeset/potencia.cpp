// Powers (#POT, #EXP), stacked indices (#SPB) and text with small lines (#TST).
#include <algorithm>
#include <tuple>

#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

// The base at full size, the exponent reduced and raised. A power nested
// three deep is measured smaller than it is drawn; that is how powers stand.
void Potencia(Motor& m, std::string_view bloque, int caja, bool esExp) {
  Paso p(m, caja);
  std::string base, exponente;
  if (esExp) {
    base = "&+Ie&-I";
    exponente = std::string(Interior(bloque));
  } else {
    std::tie(base, exponente) = DosArgumentos(bloque, "#PB)(");
  }
  const bool cursiva = p.c.fuente.cursiva;
  const double sube = p.H * 8 / 12;
  if (!p.dibujo) {
    const Caja& a = p.Mide(0, base);
    p.c.fuente.cursiva = cursiva;
    const Caja& b = p.MideReducido(1, exponente, Reduccion::General);
    Caja own;
    own.Adelanto = a.Adelanto;
    own.Ancho = a.Ancho + W(b);
    own.Sobre = b.Sobre + b.Alto - sube + a.Sobre;
    own.Eje = a.Eje;
    own.Alto = a.Alto;
    p.Escribe(own, bloque);
    return;
  }
  const Caja a = p.Hijo(0), b = p.Hijo(1);
  p.Dibuja(0, base, p.X0 + a.Adelanto, p.Y0);
  p.c.fuente.cursiva = cursiva;
  p.DibujaReducido(1, exponente, p.X0 + a.Adelanto + a.Ancho, p.Y0 - a.Sobre - b.Alto + sube,
                   Reduccion::PotDibujo);
}

void Pot(Motor& m, std::string_view bloque, int caja) { Potencia(m, bloque, caja, false); }
void Exp(Motor& m, std::string_view bloque, int caja) { Potencia(m, bloque, caja, true); }

// A small text over a small text at one place, aligned left, centre or
// right: mass and atomic number before a symbol, charges after an ion.
void Spb(Motor& m, std::string_view bloque, int caja) {
  ++m.NivelFraccion;  // stays raised to the end of the line
  ++m.NivelExponente;
  {
    Paso p(m, caja);
    auto [arriba, abajo] = DosArgumentos(bloque, "#T)(");
    const char alineacion = arriba.empty() ? 'L' : static_cast<char>(arriba[0] & ~0x20);
    if (!arriba.empty()) arriba.erase(0, 1);
    // The arguments are set one level down, as the level already raised says.
    const double factor = m.NivelExponente <= 1 ? 8.0 / 12 : 6.0 / 8;
    p.c.fuente.tamano = p.Tamano() * factor;
    const double hp = p.c.TextHeight("Hp");
    auto mide = [&](int k, const std::string& t) -> const Caja& {
      p.c.fuente.tamano = p.Tamano() * factor;
      const Caja& b = m.Argumento(caja, k, t);
      p.c.fuente.tamano = p.Tamano();
      return b;
    };
    if (!p.dibujo) {
      const Caja& a = mide(0, arriba);
      const Caja& b = mide(1, abajo);
      Caja own;
      own.Ancho = std::max(W(a), W(b));
      own.Sobre = a.Sobre + a.Alto - hp;
      own.Eje = a.Alto;
      own.Alto = a.Alto + b.Sobre + b.Alto;
      p.Escribe(own, bloque);
    } else {
      const Caja a = p.Hijo(0), b = p.Hijo(1);
      const double ancho = std::max(W(a), W(b));
      auto x = [&](const Caja& c) {
        if (alineacion == 'R' && W(c) < ancho) return p.X0 + ancho - c.Ancho;
        if (alineacion == 'C' && W(c) < ancho) return p.X0 + c.Adelanto + (ancho - W(c)) / 2;
        return p.X0 + c.Adelanto;
      };
      p.c.CurrentX = x(a);
      p.c.CurrentY = p.Y0 - a.Alto + hp;
      mide(0, arriba);
      p.c.CurrentX = x(b);
      p.c.CurrentY = p.Y0 + a.Alto + b.Sobre;
      mide(1, abajo);
    }
  }
  --m.NivelExponente;
}

// A text with up to three small lines under it.
void Tst(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const double e = p.Largo(0.0354, 1);
  const auto [principal, resto] = DosArgumentos(bloque, "#TS)(");
  std::string lineas[3];
  int n = 0;
  for (int k = 1; k <= 3; ++k) {
    const std::string abre = "#ST" + std::to_string(k) + "(";
    const std::string cierra = "#ST" + std::to_string(k) + ")";
    if (resto.find(abre) == std::string::npos) break;
    bool ok = false;
    const std::string b = ExtraeBloque(resto, abre, cierra, &ok);
    if (!ok) break;
    lineas[n++] = b.substr(5, b.size() - 10);
  }
  if (!p.dibujo) {
    const Caja& a = p.Mide(0, principal);
    Caja own;
    own.Ancho = W(a);
    own.Sobre = a.Sobre;
    own.Eje = a.Eje;
    own.Alto = a.Alto;
    for (int k = 0; k < n; ++k) {
      const Caja& b = p.MideReducido(k + 1, lineas[k], Reduccion::PotDibujo);
      own.Ancho = std::max(own.Ancho, W(b));
      own.Alto += e + b.Sobre + b.Alto;
    }
    p.Escribe(own, bloque);
    return;
  }
  const Caja a = p.Hijo(0);
  p.Dibuja(0, principal, p.X0 + a.Adelanto, p.Y0);
  double y = p.Y0 + a.Alto;
  for (int k = 0; k < n; ++k) {
    const Caja b = p.Hijo(k + 1);
    p.DibujaReducido(k + 1, lineas[k], p.X0 + b.Adelanto, y + e + b.Sobre, Reduccion::PotDibujo);
    y += e + b.Sobre + b.Alto;
  }
}

}  // namespace

void RegistraPotencias(Motor& m) {
  m.RegistraConstruccion("POT", Pot);
  m.RegistraConstruccion("EXP", Exp);
  m.RegistraConstruccion("SPB", Spb);
  m.RegistraConstruccion("TST", Tst);
}

}  // namespace ss
