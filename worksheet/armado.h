// From problems to pages: making the texts, wrapping them into labelled
// blocks with their solutions where the header says, and finding which blocks
// go on which page by laying them out on the hidden page.
#pragma once

#include <string>

#include "worksheet/coleccion.h"
#include "worksheet/sesion.h"

namespace ss {

// Asks the modules for the text of every problem (shuffling first unless the
// worksheet keeps topic order), then rebuilds the blocks. `pista` names a
// problem whose page is shown afterwards (0: keep the current page).
void CrearColeccion(Sesion& s, int pista);

// Swaps the recipes of random pairs of problems, NPROB + 1 times.
void Barajar(Coleccion& col, Aleatorio& rnd);

// New numbers for one problem; with `rebuild`, the blocks are rebuilt too.
void RecrearProblema(Sesion& s, Problema& p, int pista, bool rebuild);

// New numbers for the whole worksheet: common offsets to every problem's
// counters, then CrearColeccion.
void RecrearColeccion(Sesion& s);

// The blocks of the worksheet (labels, marks, solutions by POSSOL), then Paginar.
void ArmarBloques(Sesion& s, int pista);

// The title block that heads every page.
std::string CabeceraTexto(const ColeccionCab& cab);

// Gives every block its page, trying at most 49 blocks a page on the hidden
// page. A block taller than a page gets a page to itself, is cut at its foot,
// and its number goes into doc.cortados; the blocks behind it go on.
void Paginar(Sesion& s, int pista);

// What the user is told about a cut block (`bloque` from doc.cortados),
// naming the problem as its label numbers it; empty for no such block.
std::string AvisoCorte(const Documento& doc, int bloque, TextosVentana& textos);

// The page to show for a problem hint.
int PaginaDeProblema(const Documento& doc, int pista);

// The whole text of page `pagina` as it is drawn: title block, the page's
// blocks, and the line kept free for the page number.
std::string TextoPagina(const Documento& doc, int pagina);

// Holds the document busy (AppBusy) for the length of a job that lets
// pending events run. Jobs nest: only the outermost one turns the controls
// and the wait pointer on and off, so a nested job leaves the outer state.
class TrabajoOcupado {
 public:
  explicit TrabajoOcupado(Sesion& s);
  ~TrabajoOcupado();
  TrabajoOcupado(const TrabajoOcupado&) = delete;
  TrabajoOcupado& operator=(const TrabajoOcupado&) = delete;

 private:
  Sesion& s_;
  bool exterior_;
};

}  // namespace ss
