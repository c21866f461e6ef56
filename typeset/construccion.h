// What every # construct routine shares: its own box, its arguments taken in
// the same order in both passes, lengths as fractions of H with their floors,
// reduced sizes, and rules drawn with a pen of their thickness.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "typeset/motor.h"

namespace ss {

// Fills the engine's table of constructs with all of them.
void RegistraConstrucciones(Motor& m);

namespace construccion {

inline double W(const Caja& b) { return b.Adelanto + b.Ancho; }

// How an argument set small shrinks at each nesting level.
enum class Reduccion {
  General,     // 8/12 at the first level, 6/8 at every deeper one
  PotDibujo,   // 8/12 at the first, 6/8 at the second, none deeper
};

// One call of a construct routine, from entry to exit. On entry it records
// the pen in the own box (drawing pass) and remembers the font; on exit it
// restores font name, size and italic.
class Paso {
 public:
  Paso(Motor& m, int caja);
  ~Paso();
  Paso(const Paso&) = delete;
  Paso& operator=(const Paso&) = delete;

  Motor& m;
  Canvas& c;
  const int caja;
  const bool dibujo;  // pass 2
  const double X0, Y0, H;

  // A length of `fraccion` of H, not below `suelo`.
  double Largo(double fraccion, double suelo) const;

  // Argument k at full size, or reduced one nesting level (the level is
  // raised for the call and lowered after it).
  const Caja& Mide(int k, std::string_view texto);
  const Caja& MideReducido(int k, std::string_view texto, Reduccion r);
  void Dibuja(int k, std::string_view texto, double x, double y);
  void DibujaReducido(int k, std::string_view texto, double x, double y, Reduccion r);
  // The box that pass 1 measured for argument k.
  const Caja& Hijo(int k) const;

  // A straight rule of the given thickness.
  void Raya(double x1, double y1, double x2, double y2, double grosor, int32_t color);
  // An arc of an ellipse as short strokes; angles in degrees, counter-clockwise.
  void Arco(double desde, double hasta, double grosor, double rx, double ry, double cx,
            double cy, int32_t color);

  // Writes the own box (pass 1).
  void Escribe(Caja caja, std::string_view bloque);

  double Tamano() const { return tamano_; }
  const std::string& Nombre() const { return nombre_; }

 private:
  double FactorReduccion(Reduccion r) const;
  std::string nombre_;
  double tamano_;
  bool cursiva_;
};

// The two arguments of a block split at `separador` ("#N)("); the second is
// empty when the separator is missing.
std::pair<std::string, std::string> DosArgumentos(std::string_view bloque,
                                                  std::string_view separador);
// The labels #R1( .. #R9( of a ring or a bond, in the order they stand, with
// the digit of each; text between them is skipped.
std::vector<std::pair<int, std::string>> Rotulos(std::string_view texto);
// What a picture's argument asks for: the file name between the first two
// quotes, as written, and the options in any case.
struct PedidoImagen {
  std::string nombre;
  double anchoMm = 0, altoMm = 0;  // DXmm=, DYmm=
  bool marco = false, dist = false;
};
PedidoImagen LeeImagen(std::string_view argumento);
// A picture name names a file of a folder itself: not empty, no folder part,
// not hidden.
bool NombreDeImagenValido(const std::string& nombre);

// The text between the open tag and the close tag of a block.
std::string_view Interior(std::string_view bloque);

}  // namespace construccion
}  // namespace ss
