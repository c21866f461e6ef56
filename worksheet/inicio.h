// What the desktop program does at start and around its one document, apart
// from the windows: the recent-file list, the start panel's commands, the
// question before a worksheet with changes is left, the opening of files
// named on the command line or dropped on the page, the closing of the
// program, the name proposed by Save As, and the zoom that fits the page's width.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

#include "worksheet/sesion.h"

namespace ss {

class Almacen;

// ---- recent files ----

inline constexpr int kRecientes = 9;

// Nine slots, the latest first; a slot with an empty path is unused.
struct Recientes {
  QStringList titulo = QStringList(kRecientes, QString());
  QStringList archivo = QStringList(kRecientes, QString());

  // The slots as stored (section Reciente, "Titulo" & i and "Archivo" & i).
  static Recientes Lee(const Almacen& almacen);
  void Guarda(Almacen& almacen) const;
  bool Vacia() const;
};

// A path as the recent list compares it: absolute and clean, so that the
// same file named two ways is one slot, while "a.col" and "A.col" are two.
QString RutaNormal(const QString& ruta);

// A file just loaded or saved under `ruta` goes to slot 1, with its bare file
// name as title. The slots above its old place (the last slot when it was
// not in the list) move one down.
void AgregaReciente(Recientes& r, const QString& ruta);

// ---- the start panel ----

enum class TipoInicio { Ninguno, Abrir, Preguntar, Asistente };

struct OrdenInicio {
  TipoInicio tipo = TipoInicio::Ninguno;
  QString ruta;  // with Abrir
};

// What a command the start panel leaves behind asks for: "OPEN:" and a path
// (tested by its first five characters), "OPEN?:" or "WIZARD:" (whole).
OrdenInicio LeeComandoInicio(const QString& comando);

// The command that opens example `i` (0 to 2): "OPEN:", the data folder,
// the examples' folder and the file name, as the start panel's texts name them.
QString ComandoEjemplo(const QString& carpetaDatos, TextosVentana& textosPanel, int i);

// ---- leaving a worksheet ----

// Before a worksheet with changes is left: the question with Yes, No and
// Cancel. No goes on; Cancel stops; Yes runs `guardar` and goes on only when
// the worksheet was saved. True when the caller may go on.
bool PreguntaGuardar(Sesion& s, const std::function<void()>& guardar);

enum class Cierre {
  Cerrar,    // the window closes: the unload stores the settings
  Rechazar,  // the window stays
  Abandonar  // the process ends on the spot and stores nothing
};

// The closing of the main window: first the save question, then, while a job
// is running, the warning that asks whether to quit anyway (No by default).
Cierre PideCierre(Sesion& s, const std::function<void()>& guardar);

// ---- files named on the command line or dropped on the page ----

// The path as the program opens it: absolute. A "~" in it is a plain
// character of the name, as the system has it.
QString HallaNombreLargo(const QString& ruta);

// Opens the first of `ficheros` here, after the save question when the open
// worksheet has changes (Cancel forgets every file), and hands each further
// one to a new process of this program. `ficheros` is emptied. True when a
// file was loaded.
bool OpenDRAGDROPFiles_Command(Sesion& s, QStringList& ficheros, const std::function<void()>& guardar);

// ---- Save As ----

// The name Save As proposes in `carpeta`: the current file when there is one;
// else the title, without the characters a file name cannot hold, and with a
// number 01 to 99 behind it when a file of that name is there already; else
// nothing.
QString PropuestaNombre(const Documento& doc, const QString& carpeta);

// A chosen name that does not end in ".col" (any case) gets it.
QString ConExtensionCol(const QString& ruta);

// ---- the page view ----

// The width of the page on screen, 796 pixels at zoom 1.
inline constexpr double kAnchoHojaPx = 796;
inline constexpr double kAltoHojaPx = 1125;

// The zoom at which the page fills `anchoUtil` pixels of the view, less 28
// for the matte around it, held from 0.5 to 3.
double ZoomAjustado(double anchoUtil);

}  // namespace ss
