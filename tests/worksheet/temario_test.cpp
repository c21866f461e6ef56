// The topic tree of a subject and the list of subjects, from catalogue records.
#include <gtest/gtest.h>

#include "problems/texto.h"
#include "worksheet/temario.h"

namespace {

std::string Campo(std::string texto, std::size_t ancho) {
  texto.resize(ancho, ' ');
  return texto;
}

// One catalogue entry: the module, then the fixed-width record.
std::string Entrada(const std::string& modulo, const std::string& ordinales, const std::string& asignatura,
                    const std::string& tema, const std::string& subtema = "", char nivel = '5', int rutina = 0,
                    int maxItems = 0, const std::string& ayuda = "") {
  char numeros[8];
  std::snprintf(numeros, sizeof numeros, "%03d%03d", rutina, maxItems);
  return modulo + ":" + ordinales + Campo(asignatura, 65) + Campo(tema, 80) + Campo(subtema, 80) + nivel + numeros +
         Campo(ayuda, 160);
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
  // Level, kind, name, generator, most items, module: the theory row is left out,
  // the repeated heading kept once and the "@" of a subtopic dropped.
  const struct { int nivel, tipo; std::string nombre; int rutina, max; std::string modulo, ayuda; } filas[] = {
      {0, 6, "CHEMISTRY", 0, 0, "", ""},
      {1, 5, "UNITS", 0, 0, "", ""},
      {2, 2, "Units of mass", 11, 8, "ANEU_QUIM_UNI", "&D1Convert."},
      {2, 1, "Quick questions", 13, 20, "ANEU_QUIM_UNI", ""},
      {1, 5, "Gases", 0, 0, "", ""},
      {2, 3, "Ideal gas", 9, 0, "ANEU_QUIM_GAS", "&D2Use PV = nRT."},
  };
  ASSERT_EQ(arbol.Count(), static_cast<int>(std::size(filas)));
  for (int k = 1; k <= arbol.Count(); ++k) {
    const ss::ArbolItem& f = arbol.filas[k];
    const auto& e = filas[k - 1];
    SCOPED_TRACE(k);
    EXPECT_EQ(f.Nivel, e.nivel);
    EXPECT_EQ(f.Tipo, e.tipo);
    EXPECT_EQ(f.Nombre, e.nombre);
    EXPECT_EQ(f.Rutina, e.rutina);
    EXPECT_EQ(f.MaxCantidad2, e.max);
    EXPECT_EQ(std::string(ss::Trim(f.ModuloFijo)), e.modulo);
    EXPECT_EQ(f.Ayuda, e.ayuda);
    EXPECT_EQ(f.EsRama, e.nivel < 2);
  }
  // Only the kinds asked for: problems and theory.
  const ss::Arbol pocos = ss::ArbolDeAsignatura(kCatalogo, "chemistry", {false, false, true, true});
  std::vector<std::string> items;
  for (const ss::ArbolItem& f : pocos.filas)
    if (f.Nivel == 2) items.push_back(f.Nombre);
  EXPECT_EQ(items, (std::vector<std::string>{"Theory of units", "Ideal gas"}));
  EXPECT_EQ(ss::ArbolDeAsignatura(kCatalogo, "Chem").Count(), 0);
  EXPECT_EQ(ss::ArbolDeAsignatura({"no colon here"}, "").Count(), 0);
}

TEST(Temario, SubjectsInTheOrderOfTheList) {
  using V = std::vector<std::string>;
  EXPECT_EQ(ss::AsignaturasDelCatalogo(kCatalogo, nullptr), (V{"Geology", "Mathematics", "Physics", "Chemistry"}));
  const V silabo = {"physics", "Astronomy", " Chemistry"};
  EXPECT_EQ(ss::AsignaturasDelCatalogo(kCatalogo, &silabo), (V{"Physics", "Chemistry"}));

  std::vector<std::string> catalogo = kCatalogo;
  ss::OrdenaPorAsignaturas(catalogo, {"Mathematics", "Chemistry"});
  V orden;
  for (const std::string& e : catalogo) orden.push_back(e.substr(0, e.find(':') + 7));
  EXPECT_EQ(orden, (V{"AMAT_ALG:100000", "AMAT_ALG:100010", "ANEU_QUIM_UNI:750000", "ANEU_QUIM_UNI:750010",
                      "ANEU_QUIM_UNI:750020", "ANEU_QUIM_UNI:750030", "ANEU_QUIM_GAS:760000", "ANEU_QUIM_GAS:760020",
                      "AFIS_CIN:200010", "AGEO:300010"}));
}

}  // namespace
