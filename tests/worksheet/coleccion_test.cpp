#include "worksheet/coleccion.h"
#include "worksheet/commands.h"
#include "worksheet/temario.h"
#include <gtest/gtest.h>
#include <cstring>
#include <tuple>
#include "problems/aleatorio.h"
#include "problems/texto.h"

namespace ss {
namespace {

TEST(ComandoProblema, ColumnsInTheirOrderPaddedAndCut) {
  struct { int16_t rutina, semilla, variante, cantidad, total, orden; const char* command; } cases[] = {
      {7, 45, 120, 0, 3, 1, "0070450120000301"},
      {7, 1001, 120, 0, 3, 1, "0070010120000301"},  // the first counter loses its high digit
      {15, 0, 0, 1, 1, 2, "0150000000010102"},
      {123, 899, 9999, 26, 99, 99, "1238999999269999"},
      {1, 900, 10001, 100, 100, 100, "0019000001000000"},
      {0, 0, 0, 0, 0, 0, "0000000000000000"},
  };
  for (const auto& c : cases) {
    Problema p;
    std::tie(p.Rutina, p.Semilla, p.NumVariante, p.Cantidad, p.Total, p.Orden) = std::tie(c.rutina, c.semilla, c.variante, c.cantidad, c.total, c.orden);
    EXPECT_EQ(ComandoProblema(p), c.command);
  }
}

ArbolItem Fila(const char* modulo, int16_t rutina, bool marcado, int16_t c1, int16_t c2 = 0) {
  return ArbolItem{2, false, false, "", "", rutina, std::string(modulo).append(80 - std::strlen(modulo), ' '), marcado, c1, c2, 0, 0, 3};
}

using Receta = std::tuple<std::string, int, int, int, int, int, int>;
std::vector<Receta> Recetas(const Coleccion& col) {
  std::vector<Receta> r;
  for (const Problema& p : col.problemas)
    r.emplace_back(p.Modulo, p.Rutina, p.Semilla, p.NumVariante, p.Total, p.Orden, p.Cantidad);
  return r;
}

TEST(ArbolToVar, OnlyRowsMarkedWithAnAmountYieldProblemsInTreeOrder) {
  Arbol a;
  a.Agrega(ArbolItem{}).Tipo = 6;
  a.Agrega(Fila("ANEU_QUIM_DIS", 4, true, 3, 5));
  a.Agrega(Fila("ANEU_QUIM_TER", 2, true, 0));   // marked, no amount
  a.Agrega(Fila("ANEU_QUIM_EAB", 1, false, 4));  // amount, not marked
  a.Agrega(Fila("ANEU_QUIM_EGA", 3, true, 1, 2));
  Coleccion col;
  col.problemas.resize(7);  // whatever was there goes
  Aleatorio rnd = Aleatorio::Guionado({0.5, 0.25, 0.1, 0.9});
  Arbol_to_Var(a, col, rnd);
  EXPECT_EQ(col.cab.NPROB, 4);
  EXPECT_EQ(Recetas(col), (std::vector<Receta>{
                              {"ANEU_QUIM_DIS", 4, 450, 2250, 3, 1, 5},  // 0.5 * 900, 0.25 * 9000
                              {"ANEU_QUIM_DIS", 4, 451, 2251, 3, 2, 5},
                              {"ANEU_QUIM_DIS", 4, 452, 2252, 3, 3, 5},
                              {"ANEU_QUIM_EGA", 3, 90, 8100, 1, 1, 2}}));
  // The half-filled rows are cleared.
  for (int i : {3, 4}) EXPECT_FALSE(a.filas[i].Marcado || a.filas[i].Cantidad1);
  EXPECT_TRUE(a.filas[2].Marcado);
}

TEST(ArbolToVar, CountersRunOnAndTheListStopsAtFiveHundred) {
  Arbol a;
  a.Agrega(ArbolItem{});
  a.Agrega(Fila("ANEU_QUIM_DIS", 1, true, 3));
  Coleccion col;
  Aleatorio rnd = Aleatorio::Guionado({0.9999999, 0.9999999});
  Arbol_to_Var(a, col, rnd);
  EXPECT_EQ(Recetas(col), (std::vector<Receta>{{"ANEU_QUIM_DIS", 1, 899, 8999, 3, 1, 0},
                                               {"ANEU_QUIM_DIS", 1, 900, 9000, 3, 2, 0},
                                               {"ANEU_QUIM_DIS", 1, 901, 9001, 3, 3, 0}}));
  for (int i = 0; i < 6; ++i) a.Agrega(Fila("ANEU_QUIM_DIS", 1, true, 99));
  Aleatorio otro(3);
  Arbol_to_Var(a, col, otro);
  EXPECT_EQ(col.cab.NPROB, 500);
  EXPECT_EQ(col.problemas.back().Orden, 2);  // 3 + 5 x 99 = 498, then 2 of the sixth row
}

TEST(Arbol, EveryRowIsKeptAndTheNewRowIsHandedBack) {
  Arbol a;
  for (int i = 1; i <= 400; ++i) a.Agrega(ArbolItem{}).Rutina = static_cast<int16_t>(i);
  ASSERT_EQ(a.Count(), 400);
  EXPECT_EQ(a.filas[400].Rutina, 400);
}

TEST(ProcesaCommand, ReadsOnePathOrQuotedWorksheets) {
  struct { QString command; QStringList files; } cases[] = {
      {"", {}},
      {"    ", {}},
      {"  /home/t/my sheet.col  ", {"/home/t/my sheet.col"}},
      {"/home/t/notes.txt", {"/home/t/notes.txt"}},  // one unquoted path: no test of its ending
      {"\"/a/one.col\"", {"/a/one.col"}},
      {"\"/a/one.col\" \"/a/two.COL\"", {"/a/one.col", "/a/two.COL"}},
      {"\" /a/spaced name.Col \"", {"/a/spaced name.Col"}},
      {"\"/a/notes.txt\" \"/a/two.col\"", {"/a/two.col"}},   // not a worksheet: skipped
      {"\"/a/one.col\" \"/a/unclosed.col", {"/a/one.col"}},  // the broken piece ends the reading
      {"\"\"", {}},
      {"\"", {}},
      {"\"a.col\"\"b.col\"", {"a.col", "b.col"}},
      {"\"\t/a/tab.col\"", {"\t/a/tab.col"}},                // only blanks are trimmed
  };
  for (const auto& c : cases) EXPECT_EQ(ProcesaCommand(c.command), c.files) << c.command.toStdString();
  QString command;  // the first sixteen of seventeen
  for (int i = 1; i <= 17; ++i) command += QStringLiteral("\"/w/s%1.col\" ").arg(i);
  const QStringList files = ProcesaCommand(command);
  EXPECT_EQ(QStringList({files.size() == 16 ? "16" : "?", files.front(), files.back()}),
            QStringList({"16", "/w/s1.col", "/w/s16.col"}));
}

TEST(FicherosDeArgumentos, OneArgumentIsACommandTextSeveralAreEachAWorksheet) {
  EXPECT_EQ(FicherosDeArgumentos({}), QStringList());
  EXPECT_EQ(FicherosDeArgumentos({"/a/my sheet.col"}), QStringList({"/a/my sheet.col"}));
  EXPECT_EQ(FicherosDeArgumentos({"/a/notes.txt"}), QStringList({"/a/notes.txt"}));
  EXPECT_EQ(FicherosDeArgumentos({"\"/a/x.col\" \"/b/y.col\""}), QStringList({"/a/x.col", "/b/y.col"}));
  // A quote inside one of several names is part of that name.
  EXPECT_EQ(FicherosDeArgumentos({"/a/x.col", "/b/notes.txt", "/b/say \"hi\".col"}),
            QStringList({"/a/x.col", "/b/say \"hi\".col"}));
  QStringList many;
  for (int i = 1; i <= 17; ++i) many << QStringLiteral("/w/s%1.col").arg(i);
  EXPECT_EQ(FicherosDeArgumentos(many), many.mid(0, 16));
}

TEST(Drop, TheFirstFileDecidesTheDragTheDropKeepsWorksheets) {
  EXPECT_TRUE(AceptaArrastre({"/a/x.COL", "/a/y.png"}));
  EXPECT_FALSE(AceptaArrastre({"/a/y.png", "/a/x.col"}));
  EXPECT_FALSE(AceptaArrastre({}));
  EXPECT_FALSE(AceptaArrastre({"col"}));
  EXPECT_EQ(FicherosSoltados({"/a/1.col", "/a/p.png", "/a/2.Col", "/a/3.col"}),
            QStringList({"/a/1.col", "/a/2.Col", "/a/3.col"}));
  QStringList many;
  for (int i = 0; i < 20; ++i) many << QStringLiteral("/d/%1.col").arg(i);
  EXPECT_EQ(FicherosSoltados(many).size(), 16);
}


// The topic tree of a subject and the list of subjects, from catalogue records.
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
  const Arbol arbol = ArbolDeAsignatura(kCatalogo, "  CHEMISTRY ", kTiposPorDefecto, &nombre);
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
  for (const ArbolItem& f : std::vector(arbol.filas.begin() + 1, arbol.filas.end()))
    filas.emplace_back(f.Nivel, f.Tipo, f.Nombre, f.Rutina, f.MaxCantidad2, std::string(Trim(f.ModuloFijo)), f.Ayuda);
  EXPECT_EQ(filas, esperadas);
  std::vector<std::string> items;  // only the kinds asked for: problems and theory
  for (const ArbolItem& f : ArbolDeAsignatura(kCatalogo, "chemistry", {false, false, true, true}).filas)
    if (f.Nivel == 2) items.push_back(f.Nombre);
  EXPECT_EQ(items, (std::vector<std::string>{"Theory of units", "Ideal gas"}));
  EXPECT_EQ(ArbolDeAsignatura(kCatalogo, "Chem").Count() + ArbolDeAsignatura({"no colon here"}, "").Count(), 0);
}

TEST(Temario, SubjectsInTheOrderOfTheWizardsList) {
  using V = std::vector<std::string>;
  EXPECT_EQ(AsignaturasDelCatalogo(kCatalogo, nullptr), (V{"Geology", "Mathematics", "Physics", "Chemistry"}));
  const V silabo = {"physics", "Astronomy", " Chemistry"};
  EXPECT_EQ(AsignaturasDelCatalogo(kCatalogo, &silabo), (V{"Physics", "Chemistry"}));
}

}  // namespace
}  // namespace ss
