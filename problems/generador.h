// The shape every generator follows, as small helpers:
//
//   void Generador7(GenContext& g) {
//     if (EntradaCatalogo(g, {.nivel = "2", .ordTema = "760", .claveTema = "T_Gases",
//                             .ordSubtema = "020", .maxItems = "008"}))
//       return;                                   // list mode: the entry is all
//     const int items = ItemsEjercicio(g);        // exercises: 2..26, within maxItems
//     const int forma = Forma(g, 3);              // 0..2, from the variant counter
//     ... draw the data, test them, draw again while they do not fit ...
//     g.GP_Statement = g.MsgQUI("Key_of_the_statement");
//     Reemplaza(g.GP_Statement, "%MASS%", NumCifras(m, 3));
//     g.GP_Solution = Etiqueta(1) + ... + "&LF";
//   }
#pragma once

#include <string>
#include <string_view>

namespace ss {

struct GenContext;

// The five constants that place a generator in the catalogue, and for
// exercises the most items it can give ("" for a problem).
struct Entrada {
  std::string_view nivel;       // "2" exercise of several items, "3" problem
  std::string_view ordTema;     // topic ordinal, e.g. "760"
  std::string_view claveTema;   // topic key, e.g. "T_Gases"
  std::string_view ordSubtema;  // subtopic ordinal within the topic, e.g. "020"
  std::string_view maxItems;    // e.g. "008"; empty for a problem
};

// Sets GP_MaxItems (in both modes: the item count is bounded by it); in list
// mode also fills the catalogue entry and returns true: the generator is done.
bool EntradaCatalogo(GenContext& g, const Entrada& e);

// The entry of a fallback list that holds its own English texts: an exercise
// of the subject "Chemistry" under the given topic and subtopic.
void EntradaLiteral(GenContext& g, std::string_view ordTema, std::string_view tema,
                    std::string_view ordSubtema, std::string_view subtema, std::string_view maxItems);

// The number of items of an exercise: GP_Items raised to 2, lowered to 26
// (one letter each), then to GP_MaxItems.
int ItemsEjercicio(const GenContext& g);

// The form to use, 0..forms-1: the variant counter modulo the number of forms,
// plus an offset (an exercise passes its item number).
int Forma(const GenContext& g, int forms, int offset = 0);

// Every placeholder `name` (written with its percent signs) in `text` becomes `value`.
void Reemplaza(std::string& text, std::string_view name, std::string_view value);

// The bold label of item i (1 -> "&+Ba)&-B ").
std::string Etiqueta(int i);

}  // namespace ss
