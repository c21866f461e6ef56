// What the worksheet core needs of the windows around it. The desktop program
// implements it with message boxes and its main window; tests and the
// command-line tool use quiet stand-ins. Texts are Windows-1252 document text.
#pragma once

#include <QString>

#include <string>

namespace ss {

enum class Respuesta { Si, No, Cancelar };

class Plataforma {
 public:
  virtual ~Plataforma() = default;

  virtual void Aviso(const std::string& texto) {}    // a warning box
  virtual void Critico(const std::string& texto) {}  // a critical box
  // A question with Yes, No and Cancel.
  virtual Respuesta Pregunta(const std::string& texto) { return Respuesta::No; }
  // A warning that asks Yes or No, No being the default; true for Yes.
  virtual bool Confirma(const std::string& texto) { return false; }
  // Hands a worksheet to a new process of this program, which opens it in a
  // window of its own.
  virtual void AbreEnOtroProceso(const QString& ruta) {}

  // Lets pending events run in the middle of a long job.
  virtual void DejaCorrer() {}
  virtual void CursorEspera(bool espera) {}
  // A rebuild is running: toolbar, File and Help menus and page arrows are off.
  virtual void Ocupado(bool ocupado) {}
  // The page label while pagination runs ("Page 1/3").
  virtual void Progreso(const std::string& texto) {}

  virtual void TituloVentana(const QString& titulo) {}
  // The window's document-open (true) or no-document (false) state.
  virtual void EstadoDocumento(bool abierto) {}
  // A file was loaded or saved under this path: it heads the recent list.
  virtual void Reciente(const QString& ruta) {}
  // After a write-protect error the user is offered Save As, once the save
  // has let go of the document; true when the worksheet was then saved.
  virtual bool GuardarComo() { return false; }
};

// Says nothing, asks nothing: for tests and batch work.
class PlataformaMuda : public Plataforma {};

// For a second document beside the open one (a copy for a student, a file
// printed from a folder): its messages reach the user through the real
// window, but it changes neither the window's title and state nor the
// recent files.
class PlataformaDelegada final : public Plataforma {
 public:
  explicit PlataformaDelegada(Plataforma& real) : real_(real) {}
  void Aviso(const std::string& texto) override { dijo_ = true, real_.Aviso(texto); }
  void Critico(const std::string& texto) override { dijo_ = true, real_.Critico(texto); }
  void DejaCorrer() override { real_.DejaCorrer(); }
  bool Dijo() const { return dijo_; }  // something was told

 private:
  Plataforma& real_;
  bool dijo_ = false;
};

}  // namespace ss
