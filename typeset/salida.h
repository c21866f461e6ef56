// Pages to files: a PDF of pages as they print, or a PNG of a page as it
// shows on screen. The caller draws each page on the canvas it is handed.
#pragma once

#include <QString>

#include <functional>

#include "typeset/canvas.h"

namespace ss {

using PintaPagina = std::function<void(int pagina, Canvas& canvas)>;

// Pages 1..paginas on A4 sheets. False, with the reason, when the file cannot be written.
bool EscribePdf(const QString& ruta, int paginas, const PintaPagina& pinta, QString* error);

// One page at `zoom` (1: 796 by 1125 pixels), on white.
bool EscribePng(const QString& ruta, double zoom, int pagina, const PintaPagina& pinta,
                QString* error);

}  // namespace ss
