// The topic tree of a subject and the list of subjects, from catalogue records.
#include <gtest/gtest.h>

#include <tuple>

#include "problems/texto.h"
#include "worksheet/temario.h"

namespace {

// One catalogue entry: the module, then the fixed-width record.
std::string Entrada(const std::string& modulo, const std::string& ordinales, std::string asignatura, std::string tema,
                    std::string subtema = "", char nivel = '5', int rutina = 0, int maxItems = 0, std::string ayuda = "") {
  for (auto [campo, ancho] : {std::pair{&asignatura, 65}, {&tema, 80}, {&subtema, 80}, {&ayuda, 160}}) campo->resize(ancho, ' ');
  return modulo + ":" + ordinales + asignatura + tema + subtema + nivel + (std::to_string(1000 + rutina) + std::to_string(1000 + maxItems)).substr(1).erase(3, 1) + ayuda;
}

const std::vector<std::string> kCatalogo = {
    Entrada("ANEU_QUIM_GAS", "760020", "Chemistry ", "Gases", "Ideal gas", '3', 9, 0, "&D2Use PV = nRT."),
    Entrada("ANEU_QUIM_GAS", "760000", "Chemistry", "Gases"),
    Entrada("ANEU_QUIM_UNI", "750010", "Chemistry", "Units", "@Units of mass", '2', 11, 8, "&D1Convert."),
    Entrada("ANEU_QUIM_UNI", "750000", "Chemistry", "Units"),
    Entrada("ANEU_QUIM_UNI", "750000", "CHEMISTRY", "UNITS"),  // the same heading from another module
    Entrada("ANEU_QUIM_UNI", "750020", "chemistry", "Units", "Theory of units", '4', 12),
    Entrada("ANEU_QUIM_UNI", "750030", "Chemistry", "Units", "Quick questions", '1', 13, 20),
    Entrada("AMAT_ALG", "100000", "Mathematics", "Algebra"),
    Entrada("AMAT_ALG", "100010", "Mathematics", "Algebra", "Linear equations", '2', 1, 10),
    Entrada("AFIS_CIN", "200010", "Physics", "Kinematics", "Speed", '3', 2),
    Entrada("AGEO", "300010", "Geology", "Rocks", "Minerals", '1', 3),
};

TEST(Temario, TheTreeOfASubjectInTopicOrder) {
  std::string nombre;
  const ss::Arbol arbol = ss::ArbolDeAsignatura(kCatalogo, "  CHEMISTRY ", ss::kTiposPorDefecto, &nombre);
  EXPECT_EQ(nombre, "CHEMISTRY");  // the spelling of the first record in topic order
  // Level, kind, name, generator, most items, module and description: the theory
  // row is left out, the repeated heading kept once and the "@" of a subtopic dropped.
  using Fila = std::tuple<int, int, std::string, int, int, std::string, std::string>;
  const std::vector<Fila> esperadas = {{0, 6, "CHEMISTRY", 0, 0, "", ""},
                                       {1, 5, "UNITS", 0, 0, "", ""},
                                       {2, 2, "Units of mass", 11, 8, "ANEU_QUIM_UNI", "&D1Convert."},
                                       {2, 1, "Quick questions", 13, 20, "ANEU_QUIM_UNI", ""},
                                       {1, 5, "Gases", 0, 0, "", ""},
                                       {2, 3, "Ideal gas", 9, 0, "ANEU_QUIM_GAS", "&D2Use PV = nRT."}};
  std::vector<Fila> filas;
  for (const ss::ArbolItem& f : std::vector(arbol.filas.begin() + 1, arbol.filas.end()))
    filas.emplace_back(f.Nivel, f.Tipo, f.Nombre, f.Rutina, f.MaxCantidad2, std::string(ss::Trim(f.ModuloFijo)), f.Ayuda);
  EXPECT_EQ(filas, esperadas);
  std::vector<std::string> items;  // only the kinds asked for: problems and theory
  for (const ss::ArbolItem& f : ss::ArbolDeAsignatura(kCatalogo, "chemistry", {false, false, true, true}).filas)
    if (f.Nivel == 2) items.push_back(f.Nombre);
  EXPECT_EQ(items, (std::vector<std::string>{"Theory of units", "Ideal gas"}));
  EXPECT_EQ(ss::ArbolDeAsignatura(kCatalogo, "Chem").Count() + ss::ArbolDeAsignatura({"no colon here"}, "").Count(), 0);
}

TEST(Temario, SubjectsInTheOrderOfTheWizardsList) {
  using V = std::vector<std::string>;
  EXPECT_EQ(ss::AsignaturasDelCatalogo(kCatalogo, nullptr), (V{"Geology", "Mathematics", "Physics", "Chemistry"}));
  const V silabo = {"physics", "Astronomy", " Chemistry"};
  EXPECT_EQ(ss::AsignaturasDelCatalogo(kCatalogo, &silabo), (V{"Physics", "Chemistry"}));
}

}  // namespace
