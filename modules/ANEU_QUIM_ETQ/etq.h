// The stoichiometry module: its reactions, held balanced, and its generators.
// No equation is ever balanced by computation: the reactions of the table and
// the templates are stored balanced, and a double exchange between two ionic
// compounds is balanced by a closed formula from the ions' charges.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "problems/generic.h"

namespace ss::mod::etq {

// One substance of a reaction of the table.
struct Sustancia {
  double coef = 0;            // negative for a reactant, positive for a product, 0 for none
  std::string_view formula;   // markup: "H_2SO_4", "C_4H_1_0"
  std::string_view nombre;    // message key of its name
  std::string_view fase;      // "g", "l", "s" or "ac"
  double masaMolar = 0;       // g/mol
};

inline constexpr int kReacciones = 25;

// One drawn reaction of the table with what the generators test of it.
struct ReaccionETQ {
  int fila = 0;  // 1..25
  std::array<Sustancia, 4> s{};
  int nReactivos = 0, nProductos = 0;
  bool GasReactivo = false, GasProducto = false, AcReactivo = false;
  std::string ajustada;     // the balanced equation
  std::string sinAjustar;   // the same without coefficients
};

// Row `fila` (1..25) of the table.
ReaccionETQ Reaccion(int fila);
// A row drawn at random.
ReaccionETQ DrawReaccionETQ(GenContext& g);

// A template equation with its element slots filled: balanced, and stripped
// of its coefficients.
struct Ecuacion {
  std::string ajustada, sinAjustar;
};
inline constexpr int kPlantillas = 27;
Ecuacion EcuacionPlantilla(GenContext& g, int indice);
// The template as written, slots unfilled (for the tests).
std::string_view TextoPlantilla(int indice);

// The ions of the double exchange.
struct Ion {
  std::string_view simbolo;
  int carga;
  double masa;
  std::string_view nombre;  // message key
  std::string_view extra;   // cations: the Roman numeral of the charge; anions: the key of the acid
};
const Ion& CationDeSorteo(int sorteo);  // 1..20
const Ion& AnionDeSorteo(int sorteo);   // 1..55

// How the compound of two ions of the tables behaves in water: a letter of
// the table beside the ions ('S' dissolves, 'P' and 'Q' insoluble, 'X' does
// not exist in water, 'A' a strong acid, 'W' water...).
char EnAgua(const Ion& cation, const Ion& anion);

// The formula of the compound of two ions, and its molar mass.
struct Compuesto {
  std::string formula;
  double masaMolar = 0;
};
Compuesto FormulaIonica(const Ion& cation, const Ion& anion);

// cation1 anion1 + cation2 anion2 -> cation1 anion2 + cation2 anion1, balanced.
struct DobleCambio {
  std::array<int, 4> coef{};
  std::string ecuacion;
};
DobleCambio AjustaDobleCambio(const Ion& c1, const Ion& a1, const Ion& c2, const Ion& a2);

// "Molar masses: H_2O = 18,  O_2 = 32 (g/mol)": what a statement lists.
std::string LineaMasas(GenContext& g, const std::vector<std::pair<std::string, double>>& masas);

// Generators, by number.
void Generador1(GenContext& g);  // amounts of one reaction from one given amount
void Generador2(GenContext& g);  // reaction yield
void Generador3(GenContext& g);  // limiting reagent
void Generador4(GenContext& g);  // double exchange between two ionic compounds
void Generador5(GenContext& g);  // a list of equations to balance
void Generador6(GenContext& g);  // the same from a mass or moles only

}  // namespace ss::mod::etq
