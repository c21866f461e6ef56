// The start panel: what would the teacher like to do? Open one of three
// example worksheets, open a saved one, or make a new one. It leaves its
// answer as a command for the main window to carry out once it has closed.
#pragma once

#include <QDialog>
#include <QString>

class QCheckBox;

namespace ss {

class TextosVentana;

class FormIniOpt final : public QDialog {
 public:
  // `carpetaDatos`: where the examples and the panel's pictures are.
  // `asistente`: whether a new worksheet can be made here.
  FormIniOpt(TextosVentana& textos, const QString& carpetaDatos, bool asistente,
             QWidget* parent = nullptr);

  // Empty, or "OPEN:" and an example's path, "OPEN?:" or "WIZARD:".
  const QString& ComandoInicio() const { return comando_; }
  // The state of the "show this panel at start" box.
  bool Mostrar() const;

 private:
  void Elige(const QString& comando);

  QString comando_;
  QCheckBox* check1_ = nullptr;
};

}  // namespace ss
