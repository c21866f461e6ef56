// Pages to files: a PDF of pages as they print, or a PNG of a page as it
// shows on screen. The caller draws each page on the canvas it is handed.
// A file is written beside its final name and takes that name only when all
// of it is on disk, so a failed write (a full disk, a folder that cannot be
// written) leaves no partial file and keeps any old file of that name.
#pragma once

#include <QString>

#include <functional>

#include "typeset/canvas.h"

namespace ss {

using PintaPagina = std::function<void(int pagina, Canvas& canvas)>;

// Pages 1..paginas on A4 sheets. False, with the system's reason, when the
// file cannot be written.
bool EscribePdf(const QString& ruta, int paginas, const PintaPagina& pinta, QString* error);

// One page at `zoom` (1: 796 by 1125 pixels), on white.
bool EscribePng(const QString& ruta, double zoom, int pagina, const PintaPagina& pinta,
                QString* error);

// Pages 1..paginas as one PNG each, "%d" in `patron` standing for the page
// number. When one page cannot be written the pages already written by this
// call are removed again: all of them or none.
bool EscribePngs(const QString& patron, double zoom, int paginas, const PintaPagina& pinta,
                 QString* error);

}  // namespace ss
