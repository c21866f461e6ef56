// The gas-equilibrium module: a table of reactions with their constants and
// one numeric solver that finds the extent of a reaction from K.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "problems/generic.h"

namespace ss::mod::ega {

// Generators, by number.
void Generador1(GenContext& g);  // equilibrium constants, Kc and Kp
void Generador2(GenContext& g);  // Le Chatelier's principle
void Generador3(GenContext& g);  // amounts and K from initial data and one fact
void Generador4(GenContext& g);  // amounts at equilibrium from K

inline constexpr double kR = 0.082057;  // atm L / (mol K)

// One species of a reaction of the table.
struct Especie {
  double coef = 0;           // negative for a reactant, positive for a product, 0 for none
  std::string_view formula;  // markup; a solid carries its mark: "CaCO_3_(_s_)"
  std::string_view nombre;   // message key of its name
  double pMax = 0;           // the highest partial pressure, in atm, at which it stays a gas
                             // at the temperatures of its row (0 for a solid)
  bool Solido() const { return formula.ends_with("_(_s_)"); }
  bool Gas() const { return coef != 0 && !Solido(); }
};

// One reaction of the table, or a reaction drawn from it (perhaps reversed).
// Every constant is Kc, in (mol/L) raised to the change in moles of gas.
struct Reaccion {
  int fila = 0;  // 1..24
  std::array<Especie, 4> s{};
  double K1 = 0, T1 = 0;  // Kc at T1 in degrees Celsius
  double K2 = 0, T2 = 0;  // a second pair, K2 = 0 when there is none
  int cifras1 = 1, cifras2 = 1;  // significant figures of K1 and K2 as known
  double dH = 0;                 // reaction enthalpy, kJ
  bool invertida = false;
};

inline constexpr int kFilas = 24;
Reaccion Fila(int fila);          // 1..24, as tabulated
Reaccion Invertida(Reaccion r);   // the reverse: signs, 1/K, -dH

// The change in moles of gas (solids left out).
double DeltaN(const Reaccion& r);
// Exactly one gaseous reactant, no solid, at least one product.
bool Disociacion(const Reaccion& r);
bool TieneSolido(const Reaccion& r);
int NumReactivos(const Reaccion& r);

// "2NO_2_(_g_)  &Q  2NO_(_g_)  +  O_2_(_g_)".
std::string Ecuacion(const Reaccion& r);
// The constant written out with concentrations or with partial pressures.
std::string ExpresionKc(const Reaccion& r);
std::string ExpresionKp(const Reaccion& r);
// The units of Kc and Kp for a change dn in moles of gas ("" when dn is 0).
std::string UnidadKc(double dn);
std::string UnidadKp(double dn);
// Kp = Kc (R T)^dn, T in degrees Celsius.
double KpDeKc(double Kc, double tC, double dn);
// A formula without its phase mark, for the lists of a problem.
std::string_view FormulaSimple(const Especie& e);

// A reaction drawn for a problem, with the temperature and the constant it
// is given at, and the significant figures that constant is known to.
struct Sorteo {
  Reaccion r;
  double K = 0, T = 0;
  int cifras = 2;
};
// Any row, reversed with r > 0.5 when `invertible`; the second pair of
// constant and temperature, where there is one, with r > 0.5.
Sorteo SorteaReaccion(GenContext& g, bool invertible);
// The same for a given row.
Sorteo SorteoDeFila(GenContext& g, int fila, bool invertible);

// K as a statement gives it: the figures it is known to (at least 2 when it
// was reversed, at most 4).
std::string TextoK(double K, int cifras);
// x rounded to the 4 significant figures a problem shows.
double Cifras4(double x);
// x rounded to n significant figures.
double CifrasN(double x, int n);

// Whether every gas of the row stays a gas at these partial pressures (atm).
bool CabenGases(const Reaccion& r, const std::array<double, 4>& p);

// The result of ResolverEquilibrio: the four concentrations, or the error it
// reports when the data allow no equilibrium (the concentrations then stay 0).
struct Solucion {
  std::array<double, 4> C{};
  std::string error;  // empty on success
  int pasadas = 0;    // passes of the grid refinement made
};

// The equilibrium concentrations from K, the signed coefficients c1..c4 (0 for
// an empty column or a solid) and the initial concentrations C1..C4, by
// refining a grid on the extent of reaction until the quotient meets K to
// 1 part in 10^4. Works as well with partial pressures and Kp.
Solucion ResolverEquilibrio(double K, double c1, double c2, double c3, double c4, double C1, double C2, double C3,
                            double C4);

// Texts the statements share.
// "nitrogen dioxide (NO_2)": a species as a sentence names it.
std::string Nombre(GenContext& g, const Especie& e);
// "250& \xB0C".
std::string TextoT(double tC);
// Items joined by ", " and, before the last, the word for "and".
std::string ListaY(GenContext& g, const std::vector<std::string>& items);
// Each placeholder of `t` replaced, in the order given.
void Rellena(std::string& t, const std::vector<std::pair<std::string, std::string>>& valores);
// A lettered question: "&SP=5:&+Ba)&-B text.&LF".
std::string Pregunta(char letra, const std::string& texto);

// ResolverEquilibrio on a reaction: the gases at equilibrium from the gases at
// the start (solids take coefficient 0 and keep their entry).
std::array<double, 4> Equilibra(const Reaccion& r, double K, const std::array<double, 4>& inicial);

}  // namespace ss::mod::ega
