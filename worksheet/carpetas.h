// The folders of a run: the program's own (lang/, img/ and the .sed files
// stand beside the executable) and the private scratch folder.
#pragma once

#include <QString>

#include <functional>
#include <string>

namespace ss {

// The folder of the program's data: lang/, img/, the .sed files, examples/
// and the manual. In a build they stand beside the executable; an installed
// program finds them in ../share/sheetsmith from its own folder.
QString CarpetaDatos();

struct Carpetas {
  QString programa;  // the folder of the program's data (CarpetaDatos)
  QString temporal;  // the scratch folder; created on first need

  QString Img() const;   // programa + "/img"
  QString Lang() const;  // programa + "/lang"
};

// The scratch folder of this user: "lftemp" under the system's temporary
// folder, or "lftemp-<uid>" when that name is a symbolic link or another
// user's. Not created here.
QString CarpetaTemporal();

// Creates the scratch folder (mode 0700) if it is missing; false on failure.
bool CreaCarpetaTemporal(const QString& carpeta);

// This process's use of the scratch folder: the folder is made (private) when
// one is constructed, and a shared lock on the folder's lock file marks the
// process as a user of it while the object lives. The last user to leave
// deletes the plain files in the folder; subfolders stay. Every program that
// unpacks worksheets holds one for its whole run and gives Ruta() to its
// Carpetas. Ruta() is empty when the folder could not be made.
class UsoCarpetaTemporal {
 public:
  explicit UsoCarpetaTemporal(const QString& carpeta = CarpetaTemporal());
  ~UsoCarpetaTemporal();
  UsoCarpetaTemporal(const UsoCarpetaTemporal&) = delete;
  UsoCarpetaTemporal& operator=(const UsoCarpetaTemporal&) = delete;

  const QString& Ruta() const { return carpeta_; }

 private:
  QString carpeta_;
  int fd_ = -1;
};

// `nombre` in `carpeta`: the exact name first, else one that differs only in
// case; empty when there is none.
QString BuscaEnCarpeta(const QString& carpeta, const QString& nombre);

// A picture that a worksheet's text names: the program's img/ first, then
// the scratch folder, each by the exact name and then ignoring case. Empty
// when neither has it, or when the name has a folder part or starts with ".".
QString BuscaImagen(const Carpetas& carpetas, const QString& nombre);

// The same lookup as the typesetter asks for it: a name in the text's
// encoding in, a UTF-8 path out.
std::function<std::string(const std::string&)> BuscadorDeImagenes(const Carpetas& carpetas);

}  // namespace ss
