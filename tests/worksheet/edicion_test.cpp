// Editing a worksheet: the selection, the clipboard text, every command, and
// the one step of undo and redo.
#include "worksheet/edicion.h"

#include <gtest/gtest.h>

#include "tests/worksheet/banco.h"

namespace ss {
namespace {

using test::Banco;

// A worksheet of n problems named "P1".."Pn" (their statements), laid out.
struct Hoja : Banco {
  explicit Hoja(int n, int possol = 0) : Banco(possol) {
    for (int i = 1; i <= n; ++i) Agrega("P" + std::to_string(i), "S" + std::to_string(i));
    ArmarBloques(s, 1);
    doc.ruta = "/w/sheet.col";
  }
  // Selects the strip of problem i as a click would (0: nothing selected).
  void Elige(int i) {
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

TEST(MoverProblema, MovesWithinTheWorksheetOnly) {
  const struct { int desde, hasta; bool movido; const char* orden; } casos[] = {
      {2, 4, true, "P1 P3 P4 P2 P5"}, {4, 1, true, "P4 P1 P2 P3 P5"}, {5, 1, true, "P5 P1 P2 P3 P4"},
      {1, 5, true, "P2 P3 P4 P5 P1"}, {3, 3, false, "P1 P2 P3 P4 P5"}, {1, 0, false, "P1 P2 P3 P4 P5"},
      {5, 6, false, "P1 P2 P3 P4 P5"}, {0, 2, false, "P1 P2 P3 P4 P5"},
  };
  for (const auto& c : casos) {
    Hoja h(5);
    EXPECT_EQ(MoverProblema(h.col(), c.desde, c.hasta), c.movido) << c.desde << "->" << c.hasta;
    EXPECT_EQ(h.Orden(), c.orden) << c.desde << "->" << c.hasta;
  }
}

// Each command on a small worksheet: the order after it, the undo step's
// words, and the page hint it leaves (the current page).
TEST(Comandos, EachChangesTheListAsToldAndStoresItsUndoStep) {
  using Cmd = std::function<bool(Sesion&)>;
  const struct { const char* nombre; int n, elegido; Cmd cmd; bool hecho; const char* orden; const char* accion; } casos[] = {
      {"delete middle", 3, 2, Borrar, true, "P1 P3", "Delete Problem"},
      {"delete first", 3, 1, Borrar, true, "P2 P3", "Delete Problem"},
      {"delete last", 3, 3, Borrar, true, "P1 P2", "Delete Problem"},
      {"delete none", 3, 0, Borrar, false, "P1 P2 P3", ""},
      {"to start", 4, 3, [](Sesion& s) { return Mover(s, 0); }, true, "P3 P1 P2 P4", "Move to Start"},
      {"to end", 4, 2, [](Sesion& s) { return Mover(s, 1); }, true, "P1 P3 P4 P2", "Move to End"},
      {"up", 4, 2, [](Sesion& s) { return Mover(s, 2); }, true, "P2 P1 P3 P4", "Move Up"},
      {"down", 4, 2, [](Sesion& s) { return Mover(s, 3); }, true, "P1 P3 P2 P4", "Move Down"},
      // Called directly, a move that cannot happen still leaves its undo step.
      {"up first", 4, 1, [](Sesion& s) { return Mover(s, 2); }, false, "P1 P2 P3 P4", "Move Up"},
      {"down last", 4, 4, [](Sesion& s) { return Mover(s, 3); }, false, "P1 P2 P3 P4", "Move Down"},
      {"same place", 2, 1, [](Sesion& s) { return PonPosicionSoluciones(s, 0); }, false, "P1 P2", ""},
      {"solutions", 2, 0, [](Sesion& s) { return PonPosicionSoluciones(s, 2); }, true, "P1 P2", "Solutions Together at the End"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.nombre);
    Hoja h(c.n);
    h.Elige(c.elegido);
    const Coleccion antes = h.col();
    EXPECT_EQ(c.cmd(h.s), c.hecho);
    EXPECT_EQ(h.Orden(), c.orden);
    EXPECT_EQ(h.doc.deshacerValido, *c.accion != 0);
    EXPECT_EQ(h.doc.accionDeshacer, c.accion);
    if (h.doc.deshacerValido) {
      EXPECT_EQ(h.doc.deshacer.problemas.size(), antes.problemas.size());
    }
    EXPECT_EQ(h.doc.marcas.size(), c.hecho ? 0u : h.doc.marcas.size()) << "a rebuild drops the selection";
  }
}

TEST(Comandos, DeletingTheLastProblemLeavesNoWorksheetAndNothingToUndo) {
  Hoja h(1);
  h.Elige(1);
  EXPECT_TRUE(Borrar(h.s));
  EXPECT_TRUE(h.col().problemas.empty());
  EXPECT_TRUE(h.doc.ruta.isEmpty());
  EXPECT_FALSE(h.doc.deshacerValido);
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
  --h.doc.AppBusy;
  EXPECT_EQ(h.Orden(), "P1 P2 P3");
  EXPECT_FALSE(h.doc.deshacerValido);
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
  const std::string etiqueta = "GENPROB:NPROB=001:";
  std::string letras = bien;
  letras[18 + 80 + 5] = 'x';
  const std::string malos[] = {
      "", "hello", etiqueta, etiqueta + std::string(95, ' '),  // the tag alone, or too short
      bien.substr(0, bien.size() - 5),                             // no closing "#SOL)"
      etiqueta + std::string(80, 'M') + "0091234567060402#ENU(E#ENU)S#SOL)",  // no "#SOL("
      letras,                                                                   // letters in the command
      etiqueta + std::string(80, ' ') + "0091234567060402#ENU(a#SOL(b#ENU)#SOL(c#SOL)",  // "#SOL(" in the statement
      etiqueta + std::string(1 << 20, 'x'),                                     // 1 MB of anything
      "genprob:NPROB=001:" + bien.substr(18),
  };
  for (const std::string& t : malos) {
    SCOPED_TRACE(t.substr(0, 60));
    EXPECT_FALSE(LeePortapapeles(t));
    Hoja h(3);
    h.Elige(2);
    EXPECT_EQ(Pegar(h.s, t), Pegado::NoEsProblema);
    EXPECT_EQ(h.Orden(), "P1 P2 P3");
    EXPECT_FALSE(h.doc.deshacerValido);
  }
}

TEST(Pegar, GoesBeforeTheSelectionOrToTheFrontAndNeverPast500) {
  const std::string otro = TextoPortapapeles(Problema{"ANEU_QUIM_TER", 1, 0, 0, 0, 0, 0, "X", "SX"});
  for (const auto& [elegido, orden] : {std::pair{0, "X P1 P2 P3"}, {2, "P1 X P2 P3"}, {3, "P1 P2 X P3"}}) {
    Hoja h(3);
    h.Elige(elegido);
    EXPECT_EQ(Pegar(h.s, otro), Pegado::Hecho);
    EXPECT_EQ(h.Orden(), orden);
    EXPECT_EQ(h.doc.accionDeshacer, "Paste");
    EXPECT_EQ(h.doc.paginaActual, 1);
  }
  Hoja llena(kMaxProblemas);
  llena.Elige(250);
  EXPECT_EQ(Pegar(llena.s, otro), Pegado::Nada);
  EXPECT_FALSE(PegarSimilar(llena.s));
  EXPECT_FALSE(Estado(llena.doc).pegarSimilar);
  EXPECT_EQ(llena.col().problemas.size(), 500u);
  EXPECT_FALSE(llena.doc.deshacerValido);
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
  EXPECT_TRUE(h.doc.ruta.isEmpty() && h.doc.Modificada);
  EXPECT_EQ(h.doc.accionDeshacer, "Insert a Similar Problem");

  Hoja r(3);
  r.Elige(3);
  ASSERT_TRUE(RecrearEste(r.s));
  EXPECT_EQ(r.col().problemas.size(), 3u);
  EXPECT_EQ(r.col().problemas[0].Enunciado, "P1");
  EXPECT_NE(r.col().problemas[2].Enunciado, "P3");
  EXPECT_EQ(r.doc.accionDeshacer, "Re-create This Problem");
}

TEST(Deshacer, OneStepEachWayWithTheDoubleBlankOfTheCaptions) {
  Hoja h(3);
  h.Elige(2);
  Borrar(h.s);
  Deshacer(h.s);
  EXPECT_EQ(h.Orden(), "P1 P2 P3");
  EXPECT_FALSE(h.doc.deshacerValido);
  EXPECT_TRUE(h.doc.rehacerValido);
  EXPECT_EQ(h.doc.accionRehacer, " Delete Problem");
  Deshacer(h.s);  // undo right after undo does nothing
  EXPECT_EQ(h.Orden(), "P1 P2 P3");
  Rehacer(h.s);
  EXPECT_EQ(h.Orden(), "P1 P3");
  EXPECT_FALSE(h.doc.rehacerValido);
  EXPECT_EQ(h.doc.accionDeshacer, " Delete Problem");
  Deshacer(h.s);
  EXPECT_EQ(h.doc.accionRehacer, " Delete Problem") << "the blanks do not grow";
  // A new change forgets the redo step.
  h.Elige(1);
  Mover(h.s, 3);
  EXPECT_FALSE(h.doc.rehacerValido);
  EXPECT_EQ(h.Orden(), "P2 P1 P3");
}

TEST(Deshacer, UndoOfANewBringsTheWorksheetBeforeBackWithoutItsFile) {
  Hoja h(2);
  h.col().cab.TITULO = "Old";
  SetUNDO(h.s, "File_new");
  h.col().cab.TITULO = "New";
  h.col().problemas = {Problema{"ANEU_QUIM_TER", 1, 0, 0, 0, 0, 0, "N1", ""}};
  CrearColeccion(h.s, 1);
  EXPECT_TRUE(h.doc.ruta.isEmpty());
  Deshacer(h.s);
  EXPECT_EQ(h.col().cab.TITULO, "Old");
  EXPECT_EQ(h.Orden(), "P1 P2");
  EXPECT_TRUE(h.doc.ruta.isEmpty());

  // With no worksheet before, undo leaves the window empty.
  Hoja vacia(0);
  SetUNDO(vacia.s, "File_new");
  vacia.col().problemas = {Problema{"ANEU_QUIM_TER", 1, 0, 0, 0, 0, 0, "N1", ""}};
  CrearColeccion(vacia.s, 1);
  Deshacer(vacia.s);
  EXPECT_TRUE(vacia.col().problemas.empty());
  EXPECT_FALSE(vacia.doc.deshacerValido || vacia.doc.rehacerValido);
}

TEST(Seleccion, AClickSelectsOneStripOrClearsAndTheMenuFollows) {
  Hoja h(3);
  h.doc.marcas = {{1000, 2000, false, 1}, {2000.5, 3000, false, 2}, {3100, 4000, false, 3}};
  EXPECT_TRUE(ClicEnPagina(h.doc, 2000, 1500));
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 1);
  EXPECT_FALSE(Estado(h.doc).alPrincipio);
  EXPECT_TRUE(ClicEnPagina(h.doc, 2000, 3500));
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 3);
  EXPECT_EQ(Seleccionadas(h.doc), 1);
  EXPECT_TRUE(Estado(h.doc).alPrincipio && !Estado(h.doc).alFinal);
  EXPECT_FALSE(ClicEnPagina(h.doc, 2000, 3050));  // between strips: nothing changes
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 3);
  EXPECT_TRUE(ClicEnPagina(h.doc, 2000, 4000));   // the selected strip again: cleared
  EXPECT_EQ(Seleccionadas(h.doc), 0);
  EXPECT_FALSE(Estado(h.doc).sobreSeleccion);
  ClicEnPagina(h.doc, 2000, 2500);
  EXPECT_TRUE(ClicEnPagina(h.doc, LimiteEdicion(), 2500));  // the right margin clears all
  EXPECT_EQ(Seleccionadas(h.doc), 0);
}

TEST(Seleccion, AGatheredSolutionStandsForTheProblemOfItsPlace) {
  Hoja h(3, 2);
  h.col().problemas[0].Solucion.clear();
  ArmarBloques(h.s, 1);
  // Blocks: three statements, then the solutions of problems 2 and 3 as entries 1 and 2.
  ASSERT_EQ(h.doc.bloques.size(), 5u);
  h.doc.marcas = {{0, 10, true, 5}};
  EXPECT_EQ(ProblemaSeleccionado(h.doc), 2);
}

}  // namespace
}  // namespace ss
