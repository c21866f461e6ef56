// Editing a worksheet: selection, clipboard text, the commands, one step of undo and redo.
#include "worksheet/edicion.h"

#include <gtest/gtest.h>

#include "tests/worksheet/banco.h"

namespace ss {
namespace {

// A laid-out worksheet of n problems whose statements are "P1".."Pn".
struct Hoja : test::Banco {
  explicit Hoja(int n, int possol = 0) : Banco(possol) {
    for (int i = 1; i <= n; ++i) Agrega("P" + std::to_string(i), "S" + std::to_string(i));
    ArmarBloques(s, 1);
    doc.ruta = "/w/sheet.col";
  }
  void Elige(int i) {  // selects problem i's strip as a click would; 0 selects nothing
    doc.marcas.clear();
    for (std::size_t b = 0; b < doc.bloques.size(); ++b)
      doc.marcas.push_back(MarcaPagina{0, 0, doc.bloques[b].Problema == i && i > 0, static_cast<int>(b + 1)});
  }
  std::string Orden() const {
    std::string o;
    for (const Problema& p : doc.col.problemas) o += (o.empty() ? "" : " ") + p.Enunciado;
    return o;
  }
};

Problema Otro() { return Problema{"ANEU_QUIM_TER", 1, 0, 0, 0, 0, 0, "X", "SX"}; }

TEST(MoverProblema, MovesWithinTheWorksheetOnly) {
  const struct { int desde, hasta; const char* orden; } casos[] = {
      {2, 4, "P1 P3 P4 P2 P5"}, {5, 1, "P5 P1 P2 P3 P4"}, {1, 5, "P2 P3 P4 P5 P1"}, {3, 3, nullptr},
      {1, 0, nullptr},          {5, 6, nullptr},          {0, 2, nullptr},
  };
  for (const auto& c : casos) {
    Hoja h(5);
    EXPECT_EQ(MoverProblema(h.col(), c.desde, c.hasta), c.orden != nullptr) << c.desde << "->" << c.hasta;
    EXPECT_EQ(h.Orden(), c.orden ? c.orden : "P1 P2 P3 P4 P5") << c.desde << "->" << c.hasta;
  }
}

// The order after each command, the words of its undo step, and the selection dropped by a rebuild.
TEST(Comandos, EachChangesTheListAsToldAndStoresItsUndoStep) {
  using Cmd = std::function<bool(Sesion&)>;
  auto mover = [](int a) { return Cmd([a](Sesion& s) { return Mover(s, a); }); };
  const struct { int n, elegido; Cmd cmd; bool hecho; const char* orden; const char* accion; } casos[] = {
      {3, 2, Borrar, true, "P1 P3", "Delete Problem"},
      {3, 1, Borrar, true, "P2 P3", "Delete Problem"},
      {3, 3, Borrar, true, "P1 P2", "Delete Problem"},
      {3, 0, Borrar, false, "P1 P2 P3", ""},
      {4, 3, mover(0), true, "P3 P1 P2 P4", "Move to Start"},
      {4, 2, mover(1), true, "P1 P3 P4 P2", "Move to End"},
      {4, 2, mover(2), true, "P2 P1 P3 P4", "Move Up"},
      {4, 2, mover(3), true, "P1 P3 P2 P4", "Move Down"},
      {4, 1, mover(2), false, "P1 P2 P3 P4", "Move Up"},  // impossible, yet it leaves its undo step
      {4, 4, mover(3), false, "P1 P2 P3 P4", "Move Down"},
      {2, 1, [](Sesion& s) { return PonPosicionSoluciones(s, 0); }, false, "P1 P2", ""},
      {2, 0, [](Sesion& s) { return PonPosicionSoluciones(s, 2); }, true, "P1 P2", "Solutions Together at the End"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(testing::Message() << c.accion << " " << c.elegido << "/" << c.n);
    Hoja h(c.n);
    h.Elige(c.elegido);
    EXPECT_EQ(c.cmd(h.s), c.hecho);
    EXPECT_EQ(h.Orden(), c.orden);
    EXPECT_EQ(h.doc.deshacerValido, *c.accion != 0);
    EXPECT_EQ(h.doc.accionDeshacer, c.accion);
    if (c.hecho) { EXPECT_TRUE(h.doc.marcas.empty()) << "a rebuild drops the selection"; }
    if (h.doc.deshacerValido) { EXPECT_EQ((Deshacer(h.s), h.Orden()), Hoja(c.n).Orden()) << "undo brings the order back"; }
  }
}

TEST(Comandos, DeletingTheLastProblemLeavesNoWorksheetAndNothingToUndo) {
  Hoja h(1);
  h.Elige(1);
  EXPECT_TRUE(Borrar(h.s));
  EXPECT_TRUE(h.col().problemas.empty() && h.doc.ruta.isEmpty() && !h.doc.deshacerValido);
  EXPECT_EQ(h.pl.estados.back(), false);
  Deshacer(h.s);
  EXPECT_TRUE(h.col().problemas.empty());
}

TEST(Comandos, ACommandWaitsForNoJobAndForOneSelection) {
  Hoja h(3);
  h.Elige(2);
  h.doc.marcas[0].Seleccionada = true;  // two strips
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 0);
  EXPECT_FALSE(Borrar(h.s) || RecrearEste(h.s) || PegarSimilar(h.s) || Copiar(h.s));
  h.Elige(2);
  ++h.doc.AppBusy;
  EXPECT_FALSE(Borrar(h.s) || RecrearTodo(h.s) || PonPosicionSoluciones(h.s, 3));
  EXPECT_EQ(Pegar(h.s, TextoPortapapeles(h.col().problemas[0])), Pegado::Nada);
  EXPECT_TRUE(h.Orden() == "P1 P2 P3" && !h.doc.deshacerValido);
}

TEST(Portapapeles, AProblemGoesThroughItsTextUnchanged) {
  Problema p{"ANEU_QUIM_DIS", 9, 123, 4, 2, 6, 4567, "A #COC(1#N)(2#COC) &LF\r\nline _2 ^3 #ENU", "x&.5 #SOL"};
  const std::string t = TextoPortapapeles(p);
  EXPECT_EQ(t.substr(0, 18 + 80 + 16), "GENPROB:NPROB=001:ANEU_QUIM_DIS" + std::string(67, ' ') + "0091234567060402");
  const std::optional<Problema> q = LeePortapapeles(t);
  ASSERT_TRUE(q);
  EXPECT_EQ(std::tie(q->Modulo, q->Rutina, q->Semilla, q->NumVariante, q->Cantidad, q->Total, q->Orden, q->Enunciado, q->Solucion),
            std::tie(p.Modulo, p.Rutina, p.Semilla, p.NumVariante, p.Cantidad, p.Total, p.Orden, p.Enunciado, p.Solucion));
  EXPECT_TRUE(LeePortapapeles(TextoPortapapeles(Problema{"M", 1, 0, 0, 0, 0, 0, "", ""})));
}

TEST(Portapapeles, AnyOtherTextIsNoProblemAndPastesNothing) {
  const std::string bien = TextoPortapapeles(Problema{"ANEU_QUIM_DIS", 9, 1, 1, 1, 1, 1, "E", "S"});
  const std::string tag = "GENPROB:NPROB=001:", cmd = std::string(80, ' ') + "0091234567060402";
  std::string letras = bien;
  letras[18 + 80 + 5] = 'x';  // a letter among the command's digits
  const std::string malos[] = {
      "", "hello", tag, tag + std::string(95, ' '), bien.substr(0, bien.size() - 5),  // cut short
      tag + cmd + "#ENU(E#ENU)S#SOL)", letras, tag + cmd + "#ENU(a#SOL(b#ENU)#SOL(c#SOL)",
      tag + std::string(1 << 20, 'x'), "genprob:NPROB=001:" + bien.substr(18),
  };
  for (const std::string& t : malos) {
    SCOPED_TRACE(t.substr(0, 60));
    EXPECT_FALSE(LeePortapapeles(t));
    Hoja h(3);
    h.Elige(2);
    EXPECT_EQ(Pegar(h.s, t), Pegado::NoEsProblema);
    EXPECT_TRUE(h.Orden() == "P1 P2 P3" && !h.doc.deshacerValido);
  }
}

TEST(Pegar, GoesBeforeTheSelectionOrToTheFrontAndNeverPast500) {
  for (const auto& [elegido, orden] : {std::pair{0, "X P1 P2 P3"}, {2, "P1 X P2 P3"}, {3, "P1 P2 X P3"}}) {
    Hoja h(3);
    h.Elige(elegido);
    EXPECT_EQ(Pegar(h.s, TextoPortapapeles(Otro())), Pegado::Hecho);
    EXPECT_EQ(h.Orden(), orden);
    EXPECT_TRUE(h.doc.accionDeshacer == "Paste" && h.doc.paginaActual == 1);
  }
  Hoja llena(kMaxProblemas);
  llena.Elige(250);
  EXPECT_EQ(Pegar(llena.s, TextoPortapapeles(Otro())), Pegado::Nada);
  EXPECT_FALSE(PegarSimilar(llena.s) || Estado(llena.doc).pegarSimilar || llena.doc.deshacerValido);
  EXPECT_EQ(llena.col().problemas.size(), 500u);
}

TEST(Recrear, NewNumbersForTheOneProblemOrItsCloneBeforeIt) {
  Hoja h(3);
  h.Elige(2);
  const Problema modelo = h.col().problemas[1];
  ASSERT_TRUE(PegarSimilar(h.s));
  ASSERT_EQ(h.col().problemas.size(), 4u);
  const Problema& clon = h.col().problemas[1];
  EXPECT_EQ(h.col().problemas[2].Enunciado, "P2");  // the model stands behind its clone
  EXPECT_EQ(std::tie(clon.Modulo, clon.Rutina), std::tie(modelo.Modulo, modelo.Rutina));
  EXPECT_NE(std::tie(clon.Semilla, clon.NumVariante), std::tie(modelo.Semilla, modelo.NumVariante));
  EXPECT_NE(clon.Enunciado, "P2");  // made anew by its module
  EXPECT_TRUE(h.doc.ruta.isEmpty() && h.doc.Modificada && h.doc.accionDeshacer == "Insert a Similar Problem");

  Hoja r(3);
  r.Elige(3);
  ASSERT_TRUE(RecrearEste(r.s));
  EXPECT_EQ(r.col().problemas.size(), 3u);
  EXPECT_TRUE(r.col().problemas[0].Enunciado == "P1" && r.col().problemas[2].Enunciado != "P3");
  EXPECT_EQ(r.doc.accionDeshacer, "Re-create This Problem");
}

TEST(Deshacer, OneStepEachWayWithTheDoubleBlankOfTheCaptions) {
  Hoja h(3);
  h.Elige(2);
  Borrar(h.s);
  Deshacer(h.s);
  EXPECT_EQ(h.Orden(), "P1 P2 P3");
  EXPECT_TRUE(!h.doc.deshacerValido && h.doc.rehacerValido);
  EXPECT_EQ(h.doc.accionRehacer, " Delete Problem");
  Deshacer(h.s);  // undo right after undo does nothing
  EXPECT_EQ(h.Orden(), "P1 P2 P3");
  Rehacer(h.s);
  EXPECT_TRUE(h.Orden() == "P1 P3" && !h.doc.rehacerValido && h.doc.accionDeshacer == " Delete Problem");
  Deshacer(h.s);
  EXPECT_EQ(h.doc.accionRehacer, " Delete Problem") << "the blanks do not grow";
  h.Elige(1);
  Mover(h.s, 3);  // a new change forgets the redo step
  EXPECT_TRUE(h.Orden() == "P2 P1 P3" && !h.doc.rehacerValido);
}

TEST(Deshacer, UndoOfANewBringsTheWorksheetBeforeBackWithoutItsFile) {
  for (int antes : {2, 0}) {  // with no worksheet before, undo leaves the window empty
    Hoja h(antes);
    h.col().cab.TITULO = "Old";
    SetUNDO(h.s, "File_new");
    h.col().cab.TITULO = "New";
    h.col().problemas = {Problema{"ANEU_QUIM_TER", 1, 0, 0, 0, 0, 0, "N1", ""}};
    CrearColeccion(h.s, 1);
    EXPECT_TRUE(h.doc.ruta.isEmpty());
    Deshacer(h.s);
    EXPECT_EQ(h.Orden(), antes ? "P1 P2" : "");
    EXPECT_TRUE(h.doc.ruta.isEmpty());
    if (antes) EXPECT_EQ(h.col().cab.TITULO, "Old");
    else EXPECT_FALSE(h.doc.deshacerValido || h.doc.rehacerValido);
  }
}

TEST(Seleccion, AClickSelectsOneStripOrClearsAndTheMenuFollows) {
  Hoja h(3);
  h.doc.marcas = {{1000, 2000, false, 1}, {2000.5, 3000, false, 2}, {3100, 4000, false, 3}};
  EXPECT_TRUE(ClicEnPagina(h.doc, 2000, 1500));
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 1);
  EXPECT_FALSE(Estado(h.doc).alPrincipio);
  EXPECT_TRUE(ClicEnPagina(h.doc, 2000, 3500));
  EXPECT_TRUE(ProblemaSeleccionado(h.doc) == 3 && Seleccionadas(h.doc) == 1);
  EXPECT_TRUE(Estado(h.doc).alPrincipio && !Estado(h.doc).alFinal);
  EXPECT_FALSE(ClicEnPagina(h.doc, 2000, 3050));  // between strips: nothing changes
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 3);
  EXPECT_TRUE(ClicEnPagina(h.doc, 2000, 4000));  // the selected strip again: cleared
  EXPECT_TRUE(Seleccionadas(h.doc) == 0 && !Estado(h.doc).sobreSeleccion);
  ClicEnPagina(h.doc, 2000, 2500);
  EXPECT_TRUE(ClicEnPagina(h.doc, LimiteEdicion(), 2500));  // the right margin clears all
  EXPECT_EQ(Seleccionadas(h.doc), 0);
}

TEST(Seleccion, AGatheredSolutionStandsForTheProblemOfItsPlace) {
  Hoja h(3, 2);
  h.col().problemas[0].Solucion.clear();
  ArmarBloques(h.s, 1);
  ASSERT_EQ(h.doc.bloques.size(), 5u);  // three statements, then the solutions of 2 and 3
  h.doc.marcas = {{0, 10, true, 5}};
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 2);
}

}  // namespace
}  // namespace ss
