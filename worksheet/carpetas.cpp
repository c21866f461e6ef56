#include "worksheet/carpetas.h"

#include "problems/texto.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
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

QString CarpetaDatos() {
  const QString propia = QCoreApplication::applicationDirPath();
  if (QFileInfo(propia + QStringLiteral("/lang")).isDir()) return propia;
  const QString instalada = QDir::cleanPath(propia + QStringLiteral("/../share/sheetsmith"));
  if (QFileInfo(instalada + QStringLiteral("/lang")).isDir()) return instalada;
  return propia;
}

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

namespace {
constexpr char kCerrojo[] = "sheetsmith.lock";
}

UsoCarpetaTemporal::UsoCarpetaTemporal(const QString& carpeta) {
  if (!CreaCarpetaTemporal(carpeta)) return;
  const QByteArray cerrojo = QFile::encodeName(carpeta + QLatin1Char('/') + QLatin1String(kCerrojo));
  fd_ = ::open(cerrojo.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (fd_ < 0) return;
  // Waits while a leaving user is clearing the folder.
  while (::flock(fd_, LOCK_SH) != 0) {
    if (errno != EINTR) {
      ::close(fd_);
      fd_ = -1;
      return;
    }
  }
  carpeta_ = carpeta;
}

UsoCarpetaTemporal::~UsoCarpetaTemporal() {
  if (fd_ < 0) return;
  // The lock is had alone only when no other process holds it.
  if (::flock(fd_, LOCK_EX | LOCK_NB) == 0) {
    const QStringList nombres = QDir(carpeta_).entryList(
        QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& n : nombres) {
      if (n == QLatin1String(kCerrojo)) continue;  // a newcomer may be waiting on it
      const QByteArray ruta = QFile::encodeName(carpeta_ + QLatin1Char('/') + n);
      struct stat st {};
      if (::lstat(ruta.constData(), &st) == 0 && S_ISREG(st.st_mode)) ::unlink(ruta.constData());
    }
  }
  ::close(fd_);
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

QString BuscaImagen(const Carpetas& carpetas, const QString& nombre) {
  if (nombre.startsWith(QLatin1Char('.')) || nombre.contains(QLatin1Char('\\'))) return {};
  QString ruta = BuscaEnCarpeta(carpetas.Img(), nombre);
  if (ruta.isEmpty()) ruta = BuscaEnCarpeta(carpetas.temporal, nombre);
  return ruta;
}

std::function<std::string(const std::string&)> BuscadorDeImagenes(const Carpetas& carpetas) {
  return [carpetas](const std::string& nombre) {
    return BuscaImagen(carpetas, QString::fromStdString(Cp1252ToUtf8(nombre))).toStdString();
  };
}

}  // namespace ss
