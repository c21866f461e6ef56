// The student-group window: which problems differ between students, the
// list of students, and where the new folder of copies is made. It only
// asks and checks; the main window makes the copies.
#pragma once

#include <QDialog>
#include <QString>

#include <vector>

class QLabel;
class QListWidget;

namespace ss {

class Almacen;
class Dialogos;
class TextosVentana;
struct Coleccion;

struct EntornoGrupo {
  TextosVentana& textos;         // the window's texts ("PRI")
  TextosVentana& textosCarpeta;  // the folder chooser's ("SEF")
  Dialogos& dialogos;
  Almacen& almacen;              // keeps the list file
  const Coleccion& col;          // the open worksheet
  QString carpetaDatos;          // where the default list file stands
  QString carpetaInicial;        // the proposed place of the new folder; empty: Documents
};

class FormMultiColPer final : public QDialog {
 public:
  explicit FormMultiColPer(EntornoGrupo entorno, QWidget* parent = nullptr);
  ~FormMultiColPer() override;

  // Set when the window ended with OK and a usable list.
  bool Resultado() const { return resultado_; }
  const std::vector<bool>& Distintos() const { return distintos_; }
  const std::vector<QString>& Alumnos() const { return alumnos_; }
  QString ListaAlumnos() const { return lista_; }
  // The new folder: the place and the name.
  QString Destino() const;

  void CmdOK();

 private:
  void Cmd_SEL(int como);
  void ActualizaPista();
  void MuestraRutas();

  EntornoGrupo e_;
  QListWidget* list1_ = nullptr;
  QLabel *pista_ = nullptr, *lblAlumFile_ = nullptr, *lblFolder_ = nullptr;
  QString lista_, padre_, nombre_;
  bool resultado_ = false;
  std::vector<bool> distintos_;
  std::vector<QString> alumnos_;
};

}  // namespace ss
