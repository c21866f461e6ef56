// Worksheets on paper: the printers the desktop offers, and a run of pages
// on one of them. A printed page is drawn exactly as the page shows at zoom 1
// and as the PDF has it: the same lines, breaks and page number.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QPrinter;

namespace ss {

class Canvas;
class Motor;
struct Documento;

// The printers of the system (CUPS queues). A printer "exists" when the list
// is not empty.
QStringList Impresoras();
// The default printer, or the first one when none is the default; empty when
// there is none.
QString ImpresoraPorDefecto();

// Draws page `pagina` of a worksheet as paper has it: the title block, the
// page's blocks and the page number.
void PintaPaginaHoja(Motor& motor, Canvas& canvas, const Documento& doc, int pagina);

// A4 portrait: the paper the pages are laid out for.
void PonPapelA4(QPrinter& impresora);

enum class FinImpresion { Hecha, Cancelada, Fallida };

// Prints the sheets `orden` (page numbers of `doc`, in the order they come
// out) as one job named `nombre`. The printer prints each sheet once (copies
// are sheets of `orden`), on the full page, portrait. Paper other than A4
// takes the A4 page scaled down to fit and centred, never cropped.
// `antes(k)` runs before sheet k (from 0) is drawn; when it gives false the
// run stops there and the sheets already drawn still print. Fallida when the
// printer could not be started.
FinImpresion ImprimeDocumento(QPrinter& impresora, const QString& nombre, Motor& motor,
                              const Documento& doc, const std::vector<int>& orden,
                              const std::function<bool(int)>& antes);

}  // namespace ss
