// Files to open from the command line or from a drop on the page.
#pragma once

#include <QString>
#include <QStringList>

namespace ss {

inline constexpr int kMaxFicherosAbrir = 16;

// The files named by the program's arguments (those after its own name), as
// the system hands them over, already split: one argument is read as a
// command text (below); several are each a worksheet when their name ends in
// ".col" (any case), up to 16, and the 17th ends the reading.
QStringList FicherosDeArgumentos(const QStringList& args);

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
