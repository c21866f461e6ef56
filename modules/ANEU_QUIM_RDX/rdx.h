// The redox module: its equations, held balanced with letter slots for the
// elements that vary, and its generators. No equation is ever balanced by
// computation: the stripped form shown to the student is the balanced text
// with its coefficients taken out.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "problems/generic.h"

namespace ss::mod::rdx {

// A coded equation with its slots filled. The four key species are, in this
// order, the oxidant, its reduced form, the oxidised form of the reductant
// and the reductant; each formula may end in "/D" (dissolved) or "/G" (gas),
// and each name is a message key and a molar mass, "N_HNO3/63". Equations
// without key species leave them empty.
struct EcuacionRedox {
  std::string ajustada, sinAjustar;
  bool Invertida = false;  // written from right to left
  std::array<std::string, 4> especie, nombreMasa;
  std::array<double, 4> coef{};
};
inline constexpr int kAcidas = 23, kBasicas = 12;
EcuacionRedox EcuacionRedoxAcida(GenContext& g, int indice);
EcuacionRedox EcuacionRedoxBasica(GenContext& g, int indice);

// The balanced text with its coefficients taken out.
std::string SinCoeficientes(std::string_view ajustada);

// "nitric acid (HNO_3)": a name with its formula after it, unless the name
// already carries one.
std::string ConFormula(GenContext& g, std::string_view clave, std::string_view formula);

// The small problems' tables. An oxidation-number row: a formula and the
// oxidation number of each element, "H +1,  O -2".
struct Nox {
  std::string_view formula, respuesta;
};
inline constexpr int kNox = 225;
const std::array<Nox, kNox>& TablaNOX();

// A half-reaction as a reduction, "=" between its sides; medium 'A' acid or 'B' basic.
struct Semi {
  std::string_view oxidada, reducida, reaccion;
  char medio;
};
inline constexpr int kSemis = 17;
const std::array<Semi, kSemis>& TablaSemireacciones();

// An oxidant of a normal solution: formula, molar mass, name key, its reduced
// form and that form's name key, electrons taken, and the most mol/L that
// dissolve.
struct Normal {
  std::string_view formula;
  double masa;
  std::string_view nombre, reducida, nombreReducida;
  int electrones;
  double maxMolar;
};
inline constexpr int kNormales = 7;
const std::array<Normal, kNormales>& TablaNormales();

// Row `fila` (1..16) of the electrolysis gas couples: its half-reaction.
std::string_view SemirreaccionGas(int fila);

// x to the four significant figures a page shows it with: the answers are
// worked from the data as shown.
double Cifras4(double x);

// Generators, by number.
void Generador1(GenContext& g);  // oxidation numbers, agents, normal solutions, a half-reaction
void Generador2(GenContext& g);  // equations to balance, acid medium
void Generador3(GenContext& g);  // equations to balance, basic medium
void Generador4(GenContext& g);  // equations to balance, either medium
void Generador5(GenContext& g);  // stoichiometry of a redox reaction
void Generador6(GenContext& g);  // redox titration
void Generador7(GenContext& g);  // electrochemical cells
void Generador8(GenContext& g);  // electrolysis

}  // namespace ss::mod::rdx
