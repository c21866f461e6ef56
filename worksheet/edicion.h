// Editing a worksheet on the page, one problem at a time: the selection, the
// clipboard text of a problem, the commands of the Edit and Worksheet menus,
// and one step of undo and redo.
//
// Every command first asks that the worksheet has blocks and problems and
// that no job is running, and those on a selection ask for exactly one
// selected problem; otherwise they do nothing. A command that changes the
// worksheet stores the undo step before it (SetUNDO) and rebuilds the blocks
// after it, which throws the selection away.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "worksheet/coleccion.h"
#include "worksheet/sesion.h"

namespace ss {

// ---- the selection ------------------------------------------------------------

// How many strips of the page are selected.
int Seleccionadas(const Documento& doc);

// The problem (from 1) that the one selected strip stands for, 0 unless
// exactly one is selected. A selected solution stands for its problem; a
// gathered solution addresses the problem of its place in the solution list.
int ProblemaSeleccionado(const Documento& doc);

// The x (in twips of the page at zoom 1) from which on the pointer is the
// normal one: the right margin, where a click clears the selection.
double LimiteEdicion();

// A click of the left button at (x, y), twips of the page at zoom 1: in the
// right margin it clears the selection; on a strip it selects that strip
// alone, or clears it when it was the selected one; elsewhere nothing
// changes. True when the selection changed.
bool ClicEnPagina(Documento& doc, double x, double y);

// Clears the selection.
void QuitaSeleccion(Documento& doc);

// What the Edit menu may do now.
struct EstadoEdicion {
  bool sobreSeleccion = false;  // Cut, Copy, Delete, the moves, Paste similar, Re-create this
  bool alPrincipio = false;     // Move to start, Move up
  bool alFinal = false;         // Move to end, Move down
  bool pegarSimilar = false;
  bool deshacer = false, rehacer = false;
};
EstadoEdicion Estado(const Documento& doc);

// ---- the clipboard --------------------------------------------------------------

// The text that carries one problem: "GENPROB:NPROB=001:", the module in 80
// characters, the sixteen-digit command, "#ENU(" statement "#ENU)" and
// "#SOL(" solution "#SOL)".
std::string TextoPortapapeles(const Problema& p);

// The problem a clipboard text carries, or nothing when the text is anything
// else, however it begins: too short, a command that is not sixteen digits,
// the statement and solution not where they belong.
std::optional<Problema> LeePortapapeles(std::string_view texto);

// ---- undo and redo ----------------------------------------------------------------

// Before a change: stores the worksheet as the undo step, under the words of
// the window text `clave` (Edit_Del, ...), and forgets the redo step. An empty
// `clave` forgets the undo step as well.
void SetUNDO(Sesion& s, std::string_view clave);

// The same with the action's words themselves.
void SetUNDOTexto(Sesion& s, std::string accion);

// Takes the last change back; the worksheet as it was becomes the redo step.
// When there was no worksheet before the change, the window is left empty.
void Deshacer(Sesion& s);

// Does the change that was taken back again.
void Rehacer(Sesion& s);

// ---- the commands -------------------------------------------------------------------

// `MoverProblema`: entry `desde` goes to `hasta` (from 1), the others close
// up. False, and nothing moved, unless both lie within the worksheet and differ.
bool MoverProblema(Coleccion& col, int desde, int hasta);

// Copy: the clipboard text of the selected problem, or nothing.
std::optional<std::string> Copiar(Sesion& s);

// Delete the selected problem; the last one leaves the window empty.
bool Borrar(Sesion& s);

// Move the selected problem: 0 to the start, 1 to the end, 2 up, 3 down.
bool Mover(Sesion& s, int como);

enum class Pegado { Hecho, Nada, NoEsProblema };

// Paste: the problem of `texto` goes before the selected one, or to the very
// front when none is selected. A text that carries no problem changes
// nothing (NoEsProblema: the caller turns Paste off); a full worksheet
// takes nothing (Nada).
Pegado Pegar(Sesion& s, std::string_view texto);

// Paste a similar problem: a clone of the selected one, with new numbers,
// before it.
bool PegarSimilar(Sesion& s);

// Re-create the selected problem with new numbers.
bool RecrearEste(Sesion& s);

// New numbers for every problem.
bool RecrearTodo(Sesion& s);

// The solutions: 0 none, 1 after each problem, 2 together at the end, 3 on
// pages of their own. Choosing the place they have already does nothing.
bool PonPosicionSoluciones(Sesion& s, int possol);

}  // namespace ss
