// The dialogs the main window asks the user through, and the hand-overs to
// the desktop. The program uses the real ones; the tests answer in their place.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

#include "worksheet/plataforma.h"

class QDialog;
class QPrinter;
class QUrl;
class QWidget;

namespace ss {

class FormIniOpt;

// A long run shown to the user, with a way to stop it.
class Avance {
 public:
  virtual ~Avance() = default;
  // Step `hecho` of the run is about to start; false when the user asked to stop.
  virtual bool Paso(int hecho, const QString& texto) = 0;
};

// What the start panel left behind when it closed.
struct RespuestaPanel {
  QString comando;      // empty, "OPEN:" and a path, "OPEN?:" or "WIZARD:"
  bool mostrar = true;  // its "show at start" box
};

class Dialogos {
 public:
  virtual ~Dialogos() = default;

  virtual void Aviso(QWidget* padre, const QString& texto) = 0;
  virtual void Critico(QWidget* padre, const QString& texto) = 0;
  // Yes, No and Cancel.
  virtual Respuesta Pregunta(QWidget* padre, const QString& texto) = 0;
  // A warning with Yes and No, No by default; true for Yes.
  virtual bool Confirma(QWidget* padre, const QString& texto) = 0;

  // The chosen file, or empty when the dialog was cancelled. `filtro` is in
  // the form "Worksheets (*.col);;All files (*)".
  virtual QString FicheroAbrir(QWidget* padre, const QString& titulo, const QString& carpeta,
                               const QString& filtro) = 0;
  // Asks before overwriting a file; `propuesta` is a full path or a folder.
  virtual QString FicheroGuardar(QWidget* padre, const QString& titulo, const QString& propuesta,
                                 const QString& filtro) = 0;

  // A folder, or empty when the dialog was cancelled.
  virtual QString Carpeta(QWidget* padre, const QString& titulo, const QString& carpeta) = 0;
  // The desktop's printer set-up for `impresora` (which printer, paper,
  // its own options); the pages and copies are the print window's.
  virtual void ConfiguraImpresora(QWidget* padre, QPrinter& impresora) = 0;
  // A run of `total` steps: shown after a second, with Cancel.
  virtual std::unique_ptr<Avance> EmpiezaAvance(QWidget* padre, const QString& titulo, int total) = 0;

  // Shows the start panel modally.
  virtual RespuestaPanel PanelInicio(FormIniOpt& panel) = 0;
  // Runs one of the program's own dialogs (the wizard, the settings) modally;
  // what it leaves behind is read from the dialog afterwards.
  virtual void Modal(QDialog& dialogo) = 0;

  // Starts this program again on a file; false when it could not be started.
  virtual bool LanzaPrograma(const QString& ruta) = 0;
  // Hands a file to the desktop's program for its type.
  virtual bool AbreConEscritorio(const QUrl& url) = 0;
  // Ends the process on the spot: nothing more is stored.
  virtual void TerminaYa() = 0;
};

// The dialogs of the toolkit.
class DialogosQt final : public Dialogos {
 public:
  void Aviso(QWidget* padre, const QString& texto) override;
  void Critico(QWidget* padre, const QString& texto) override;
  Respuesta Pregunta(QWidget* padre, const QString& texto) override;
  bool Confirma(QWidget* padre, const QString& texto) override;
  QString FicheroAbrir(QWidget* padre, const QString& titulo, const QString& carpeta,
                       const QString& filtro) override;
  QString FicheroGuardar(QWidget* padre, const QString& titulo, const QString& propuesta,
                         const QString& filtro) override;
  QString Carpeta(QWidget* padre, const QString& titulo, const QString& carpeta) override;
  void ConfiguraImpresora(QWidget* padre, QPrinter& impresora) override;
  std::unique_ptr<Avance> EmpiezaAvance(QWidget* padre, const QString& titulo, int total) override;
  RespuestaPanel PanelInicio(FormIniOpt& panel) override;
  void Modal(QDialog& dialogo) override;
  bool LanzaPrograma(const QString& ruta) override;
  bool AbreConEscritorio(const QUrl& url) override;
  void TerminaYa() override;
};

}  // namespace ss
