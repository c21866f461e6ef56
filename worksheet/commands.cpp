#include "worksheet/commands.h"

namespace ss {
namespace {

// Blanks only, as the command text is read; tabs and other spaces stay.
QString Recorta(const QString& s) {
  qsizetype from = 0, to = s.size();
  while (from < to && s[from] == u' ') ++from;
  while (to > from && s[to - 1] == u' ') --to;
  return s.mid(from, to - from);
}

}  // namespace

QStringList FicherosDeArgumentos(const QStringList& args) {
  if (args.size() == 1) return ProcesaCommand(args.front());
  QStringList files;
  for (const QString& a : args) {
    const QString candidate = Recorta(a);
    if (!EsNombreCol(candidate)) continue;
    if (files.size() == kMaxFicherosAbrir) break;
    files << candidate;
  }
  return files;
}

bool EsNombreCol(const QString& path) { return path.right(4).toUpper() == u".COL"; }

QStringList ProcesaCommand(const QString& command) {
  QString rest = Recorta(command);
  QStringList files;
  if (rest.isEmpty()) return files;
  if (rest.front() != u'"') return {rest};
  for (;;) {
    rest.remove(0, 1);
    const qsizetype quote = rest.indexOf(u'"', 1);
    if (quote < 0) break;  // no closing quote: the reading ends here
    const QString candidate = Recorta(rest.left(quote));
    if (EsNombreCol(candidate)) {
      if (files.size() == kMaxFicherosAbrir) break;
      files << candidate;
    }
    rest = Recorta(rest.mid(quote + 1));
    if (rest.isEmpty()) break;
  }
  return files;
}

bool AceptaArrastre(const QStringList& paths) {
  return !paths.isEmpty() && EsNombreCol(paths.front());
}

QStringList FicherosSoltados(const QStringList& paths) {
  QStringList files;
  for (const QString& p : paths) {
    if (!EsNombreCol(p)) continue;
    files << p;
    if (files.size() == kMaxFicherosAbrir) break;
  }
  return files;
}

}  // namespace ss
