// Files to open from the command line or from a drop on the page.
#pragma once

#include <QString>
#include <QStringList>

namespace ss {

inline constexpr int kMaxFicherosAbrir = 16;

// The program's command text rebuilt from its arguments (those after the
// program's own name): one argument stands as it is; several are each put in
// double quotes, the form in which several files are named.
QString TextoComando(const QStringList& args);

// The files named by a command text. Trimmed of blanks; empty gives none.
// Text that does not begin with a double quote is one file, blanks and all,
// whatever its ending. Otherwise each quoted name ending in ".col" (any case)
// is kept, up to 16; the reading stops at the first malformed piece.
QStringList ProcesaCommand(const QString& command);

// A name whose last four characters, upper-cased, are ".COL".
bool EsNombreCol(const QString& path);

// A drag over the page is accepted when its first file is a worksheet.
bool AceptaArrastre(const QStringList& paths);

// The worksheets among dropped files, in order, up to 16.
QStringList FicherosSoltados(const QStringList& paths);

}  // namespace ss
