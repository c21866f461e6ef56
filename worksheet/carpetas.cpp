#include "worksheet/carpetas.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace ss {

namespace {

// What stands at a path, without following a final symbolic link.
enum class Entrada { Nada, Propia, Ajena };

// A folder of ours is a real folder (not a link to one) owned by this user.
Entrada MiraCarpeta(const QString& carpeta) {
  struct stat st {};
  const QByteArray ruta = QFile::encodeName(carpeta);
  if (::lstat(ruta.constData(), &st) != 0) return Entrada::Nada;
  if (S_ISDIR(st.st_mode) && st.st_uid == ::geteuid()) return Entrada::Propia;
  return Entrada::Ajena;
}

}  // namespace

QString Carpetas::Img() const { return programa + QStringLiteral("/img"); }
QString Carpetas::Lang() const { return programa + QStringLiteral("/lang"); }

QString CarpetaTemporal() {
  QString base = QDir::tempPath();
  while (base.size() > 1 && (base.endsWith(QLatin1Char('/')) || base.endsWith(QLatin1Char('\\'))))
    base.chop(1);
  const QString comun = base + QStringLiteral("/lftemp");
  // A shared temporary folder may hold a "lftemp" that another user made, or
  // a link planted to make us write elsewhere: then this user gets a name of
  // its own.
  if (MiraCarpeta(comun) == Entrada::Ajena)
    return comun + QStringLiteral("-") + QString::number(::geteuid());
  return comun;
}

bool CreaCarpetaTemporal(const QString& carpeta) {
  if (carpeta.isEmpty()) return false;
  switch (MiraCarpeta(carpeta)) {
    case Entrada::Propia:
      return true;
    case Entrada::Ajena:
      return false;  // never write into a link or into somebody else's folder
    case Entrada::Nada:
      break;
  }
  const QString padre = QFileInfo(carpeta).absolutePath();
  if (!QDir().mkpath(padre)) return false;
  const QByteArray ruta = QFile::encodeName(carpeta);
  if (::mkdir(ruta.constData(), 0700) != 0) {
    // Another instance may have made it in the meantime.
    return MiraCarpeta(carpeta) == Entrada::Propia;
  }
  // The mask of the process may have taken bits away; never added any.
  ::chmod(ruta.constData(), 0700);
  return MiraCarpeta(carpeta) == Entrada::Propia;
}

QString BuscaEnCarpeta(const QString& carpeta, const QString& nombre) {
  // Only names of entries of the folder itself are looked up.
  if (carpeta.isEmpty() || nombre.isEmpty() || nombre == QLatin1String(".") ||
      nombre == QLatin1String("..") || nombre.contains(QLatin1Char('/')) ||
      nombre.contains(QChar(0)))
    return {};
  const QDir dir(carpeta);
  const QString exacta = dir.filePath(nombre);
  const QFileInfo info(exacta);
  if (info.exists() || info.isSymLink()) return exacta;
  const QStringList entradas =
      dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDir::Name);
  for (const QString& e : entradas)
    if (e.compare(nombre, Qt::CaseInsensitive) == 0) return dir.filePath(e);
  return {};
}

}  // namespace ss
