// The tables of the organic nomenclature lists: pairs of a structure written
// in markup (chains, branches drawn with #UDB, rings with #A3V..#A7V, #BCV,
// #BCH) and the compound's name. Nothing is named by rule.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ss::mod::ATEM_QUIM_FOR {

// One stored row. A row may hold one placeholder, [LRAD], [RRAD], [LCAD] or
// [HAL], in both its structure and its name; building the table expands it.
struct Par {
  std::string_view estructura;
  std::string_view nombre;
};

// The stored rows of a table, block by block (the tables of functional groups
// have one block a family, the others one block).
using Bloques = std::vector<std::span<const Par>>;

Bloques FilasAlcanos();
Bloques FilasAlquenos();
Bloques FilasCiclos();
Bloques FilasOxigenados();
Bloques FilasNitrogenados();

// A table as the lists use it: every placeholder expanded, and the row number
// that ends each block.
struct Fila {
  std::string estructura;
  std::string nombre;
};
struct Tabla {
  std::vector<Fila> filas;
  std::vector<int> finBloques;
};

// Stores the blocks one after another; after each block its placeholders are
// expanded: the first variant fills the row in place, each other one is
// appended as a new row after the last.
Tabla Construye(const Bloques& bloques);

}  // namespace ss::mod::ATEM_QUIM_FOR
