#include "typeset/construccion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ss {

void RegistraFracciones(Motor& m);
void RegistraPotencias(Motor& m);
void RegistraRaices(Motor& m);
void RegistraDelimitadores(Motor& m);
void RegistraFilas(Motor& m);
void RegistraDecoraciones(Motor& m);
void RegistraAnillos(Motor& m);
void RegistraEnlaces(Motor& m);
void RegistraEcuaciones(Motor& m);
void RegistraImagenes(Motor& m);

void RegistraConstrucciones(Motor& m) {
  RegistraFracciones(m);
  RegistraPotencias(m);
  RegistraRaices(m);
  RegistraDelimitadores(m);
  RegistraFilas(m);
  RegistraDecoraciones(m);
  RegistraAnillos(m);
  RegistraEnlaces(m);
  RegistraEcuaciones(m);
  RegistraImagenes(m);
}

namespace construccion {

Paso::Paso(Motor& motor, int caja_)
    : m(motor),
      c(*motor.canvas),
      caja(caja_),
      dibujo(motor.PasoDibujo),
      X0(motor.canvas->CurrentX),
      Y0(motor.canvas->CurrentY),
      H(motor.canvas->TextHeight("Hp")),
      nombre_(motor.canvas->fuente.nombre),
      tamano_(motor.canvas->fuente.tamano),
      cursiva_(motor.canvas->fuente.cursiva) {
  if (dibujo) {
    m.Cajas[caja].PosX = X0;
    m.Cajas[caja].PosY = Y0;
  }
}

Paso::~Paso() {
  c.fuente.nombre = nombre_;
  c.fuente.tamano = tamano_;
  c.fuente.cursiva = cursiva_;
}

double Paso::Largo(double fraccion, double suelo) const { return std::max(fraccion * H, suelo); }

const Caja& Paso::Mide(int k, std::string_view texto) {
  c.fuente.tamano = tamano_;
  const Caja& b = m.Argumento(caja, k, texto);
  c.fuente.tamano = tamano_;
  return b;
}

double Paso::FactorReduccion(Reduccion r) const {
  const int nivel = m.NivelExponente;  // already raised for this argument
  if (nivel <= 1) return 8.0 / 12;
  if (r == Reduccion::General || nivel == 2) return 6.0 / 8;
  return 1;
}

const Caja& Paso::MideReducido(int k, std::string_view texto, Reduccion r) {
  ++m.NivelExponente;
  c.fuente.tamano = tamano_ * FactorReduccion(r);
  const Caja& b = m.Argumento(caja, k, texto);
  c.fuente.tamano = tamano_;
  --m.NivelExponente;
  return b;
}

void Paso::Dibuja(int k, std::string_view texto, double x, double y) {
  c.CurrentX = x;
  c.CurrentY = y;
  c.fuente.tamano = tamano_;
  m.Argumento(caja, k, texto);
  c.fuente.tamano = tamano_;
}

void Paso::DibujaReducido(int k, std::string_view texto, double x, double y, Reduccion r) {
  ++m.NivelExponente;
  c.CurrentX = x;
  c.CurrentY = y;
  c.fuente.tamano = tamano_ * FactorReduccion(r);
  m.Argumento(caja, k, texto);
  c.fuente.tamano = tamano_;
  --m.NivelExponente;
}

const Caja& Paso::Hijo(int k) const {
  static const Caja kVacia{};
  if (k < 0 || k >= kMaxArgumentos) return kVacia;
  const int n = m.HijoCaja[caja][k];
  return n > 0 && n <= kMaxCajas ? m.Cajas[n] : kVacia;
}

void Paso::Raya(double x1, double y1, double x2, double y2, double grosor, int32_t color) {
  c.DrawWidth = std::max(1, static_cast<int>(std::lround(grosor / c.TwipsPerPixelX())));
  c.Line(x1, y1, x2, y2, color, ModoLinea::Linea);
  c.DrawWidth = 1;
}

void Paso::Arco(double desde, double hasta, double grosor, double rx, double ry, double cx,
                double cy, int32_t color) {
  while (hasta < desde) hasta += 360;
  const double pi = 4 * std::atan(1.0);
  const int pasos = std::max(2, static_cast<int>(std::ceil((hasta - desde) / 6)));
  double xa = cx + rx * std::cos(desde * pi / 180);
  double ya = cy - ry * std::sin(desde * pi / 180);
  for (int k = 1; k <= pasos; ++k) {
    const double ang = (desde + (hasta - desde) * k / pasos) * pi / 180;
    const double xb = cx + rx * std::cos(ang), yb = cy - ry * std::sin(ang);
    Raya(xa, ya, xb, yb, grosor, color);
    xa = xb;
    ya = yb;
  }
}

void Paso::Escribe(Caja b, std::string_view bloque) {
  b.Fuente.assign(bloque);
  m.Cajas[caja] = std::move(b);
}

std::vector<std::pair<int, std::string>> Rotulos(std::string_view texto) {
  std::vector<std::pair<int, std::string>> rotulos;
  std::size_t i = 0;
  while (i + 4 <= texto.size()) {
    const char k = texto[i + 2];
    if (texto.substr(i, 2) == "#R" && k >= '1' && k <= '9' && texto[i + 3] == '(') {
      const std::string abre(texto.substr(i, 4));
      const std::string cierra = "#R" + std::string(1, k) + ")";
      bool ok = false;
      // A label never closed reads as the red error word, as any construct does.
      const std::string b = ExtraeBloque(texto.substr(i), abre, cierra, &ok);
      rotulos.emplace_back(k - '0', b.substr(4, b.size() - 8));
      i += ok ? b.size() : abre.size();
      continue;
    }
    ++i;
  }
  return rotulos;
}

std::string_view Interior(std::string_view bloque) {
  if (bloque.size() < 10) return {};
  return bloque.substr(5, bloque.size() - 10);
}

std::pair<std::string, std::string> DosArgumentos(std::string_view bloque,
                                                  std::string_view separador) {
  const std::string_view apertura = bloque.substr(0, 5);
  const std::string_view cierreTotal = bloque.substr(bloque.size() - 5);
  const std::string cierre1(separador.substr(0, separador.size() - 1));
  bool ok = false;
  const std::string primero = ExtraeBloque(bloque, apertura, cierre1, &ok);
  if (!ok) return {std::string(Interior(bloque)), {}};
  const std::string_view resto = bloque.substr(primero.size() - cierre1.size());
  const std::string segundo = ExtraeBloque(resto, separador, cierreTotal, &ok);
  if (!ok) return {primero.substr(5, primero.size() - 5 - cierre1.size()), {}};
  return {primero.substr(5, primero.size() - 5 - cierre1.size()),
          segundo.substr(separador.size(), segundo.size() - separador.size() - 5)};
}

}  // namespace construccion
}  // namespace ss
