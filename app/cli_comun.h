// What the commands of sheetsmith-cli share: reading their arguments, the
// usage and error lines, JSON output, text for the worksheet's character set,
// the catalogue and a worksheet session without windows.
#pragma once

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "problems/idioma.h"
#include "problems/silabo_sed.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/ajustes.h"
#include "worksheet/carpetas.h"
#include "worksheet/sesion.h"

namespace cli {

// One subcommand: its name, what follows the name in a usage line, and the
// line that describes it in the list of commands.
struct Comando {
  const char* nombre;
  const char* sinopsis;
  const char* resumen;
  int (*corre)(const QStringList& args);
};
const std::vector<Comando>& Comandos();

int ComandoGenerate(const QStringList& args);
int ComandoCatalogue(const QStringList& args);
int ComandoSubjects(const QStringList& args);
int ComandoTopics(const QStringList& args);
int ComandoMarkup(const QStringList& args);
int ComandoNew(const QStringList& args);
int ComandoRender(const QStringList& args);
int ComandoInfo(const QStringList& args);
int ComandoGroup(const QStringList& args);

// One usage line on stderr, with the reason first when there is one; the exit code 2.
int Usage(const QString& comando = {}, const QString& porque = {});
// The program's own message on stderr; the exit code 1.
int Error(const QString& texto);
void Aviso(const QString& texto);

// The options of one subcommand. Lee() reads the arguments; when it gives an
// exit code the command is over: its help was printed (0) or the arguments
// were wrong and the usage line was printed (2).
class Argumentos {
 public:
  Argumentos(const char* comando, const QString& descripcion);
  Argumentos& Opcion(const QStringList& nombres, const QString& ayuda, const QString& valor = {});
  Argumentos& Posicional(const QString& nombre, const QString& ayuda);
  std::optional<int> Lee(const QStringList& args, qsizetype minPos, qsizetype maxPos);

  bool Esta(const QString& nombre) const { return p_.isSet(nombre); }
  QString Valor(const QString& nombre) const { return p_.value(nombre); }
  QStringList Valores(const QString& nombre) const { return p_.values(nombre); }
  QStringList Posicionales() const { return p_.positionalArguments(); }
  // Whichever of the two flags came last, or nothing when neither came.
  std::optional<QString> UltimaDe(const QString& a, const QString& b) const;

 private:
  QString comando_, descripcion_;
  QCommandLineParser p_;
};

// The reason an output name given with -o cannot be used (it must end in
// .pdf or .png, and a PNG name of several pages holds %d), or the empty text.
QString TipoDeSalida(const QString& salida, bool paginasPng);

// A whole number from lo to hi, or nothing.
std::optional<int> Entero(const QString& texto, int lo, int hi);
std::optional<uint64_t> Semilla(const QString& texto);
// The --zoom of a command, 0.1 to 8, 1 when it is not given; nothing when its value is out of range.
std::optional<double> Zoom(const Argumentos& a);

// Text of an option in the worksheet's single-byte character set. A
// character it has no form for becomes "?", and a warning on stderr names the
// option and the characters.
std::string ACp1252(const QString& texto, const QString& opcion);
QString DeCp1252(const std::string& texto);

void ImprimeJson(const QJsonDocument& doc, QJsonDocument::JsonFormat formato);

// The folder of the program's data, where lang/, img/ and the .sed files stand.
std::filesystem::path CarpetaPrograma();

// The services of a run: notation and the message tables of the program's
// folder. Notices about the data go to stderr.
struct Servicios {
  ss::Notacion notacion;
  ss::Mensajes mensajes;
  Servicios();
};

// The notation the pages are drawn with: the settings' defaults, not the
// store of whoever runs the tool, so that its output is the same for all.
ss::Reemplazos NotacionPorDefecto(Servicios& servicios);

// The catalogue, placed by the education system `sysedu` of the program
// folder when one is named, in teaching order, with the names of the
// system's subjects in `asignaturas`. False, after telling why, when the
// system cannot be used.
bool Catalogo(Servicios& servicios, const QString& sysedu, std::vector<std::string>& catalogo,
              std::vector<std::string>* asignaturas = nullptr);

// Boxes of the worksheet core become lines on stderr; a load or a save that
// fails has told why in one of them.
class PlataformaCli final : public ss::PlataformaMuda {
 public:
  std::vector<std::string> avisos;
  void Aviso(const std::string& texto) override { avisos.push_back(texto); }
  void Critico(const std::string& texto) override { avisos.push_back(texto); }
  void Cuenta(const std::string& siNada) const;
};

// One worksheet session without windows: the document, the problem makers,
// the typesetter with its hidden page, the main window's texts and the
// program's folders.
struct Trabajo {
  Servicios servicios;
  ss::Documento doc;
  PlataformaCli plataforma;
  ss::GenContext gen;
  ss::Motor motor;
  ss::CanvasQt oculta{nullptr};
  ss::TextosVentana textos{CarpetaPrograma(), "MAI"};
  ss::UsoCarpetaTemporal temporal;  // shared with the desktop program, under its lock
  ss::Sesion s;

  explicit Trabajo(std::optional<uint64_t> seed = std::nullopt);
  // Reads a worksheet file; false after telling why on stderr: a file that
  // is missing, a folder or unreadable is told apart from a damaged one.
  bool Carga(const QString& ruta);
  // A warning on stderr for each problem taller than a page, which is cut at
  // the foot of a page of its own.
  void AvisaCortes();
};

}  // namespace cli
