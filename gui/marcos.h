// The parts of a worksheet's header that both the new-worksheet wizard and
// the settings window edit: titles, problem numbering with the label colour,
// page numbers, order and solution placement. Each frame shows a header and
// writes its own fields back into one; filling a frame never fires a handler.
#pragma once

#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <string>

#include "worksheet/asistente.h"
#include "worksheet/coleccion.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;

namespace ss {

class TextosVentana;

// The texts of a dialog: "&" kept for the mnemonic, or taken out.
QString TextoW(TextosVentana& t, const char* clave, bool conAmpersand = false);

// A text of the data files (Windows-1252) as the screen shows it.
QString DeTexto(const std::string& s);

// The three buttons under a list of files or problems: 0 selects every row,
// 1 none, 2 turns each row over. No signal fires while the rows change.
void EligeFilas(QListWidget* lista, int como);

// School, title and the two additional lines, each small text with its
// "use as default" box.
class MarcoTitulos final : public QWidget {
 public:
  MarcoTitulos(TextosVentana& t, QWidget* parent = nullptr);
  void Pon(const ColeccionCab& cab, const TextosPequenos& defecto);
  void Lee(ColeccionCab& cab) const;  // trimmed
  TextosPequenos Pequenos() const;
  void MuestraTitulo(bool mostrar);
  QLineEdit* Titulo() const { return titulo_; }

 private:
  std::array<QLineEdit*, 3> pequeno_{};  // TxtPRETIT, TxtPOSTI1, TxtPOSTI2
  std::array<QCheckBox*, 3> chk_{};      // ChkPRETIT, ChkPOSTI1, ChkPOSTI2
  QLineEdit* titulo_ = nullptr;           // TxTITULO
  QLabel* etiquetaTitulo_ = nullptr;
};

// The strip of label colours: a click picks the colour under the pointer.
class Paleta final : public QWidget {
 public:
  explicit Paleta(QWidget* parent = nullptr);
  int Indice() const { return indice_; }
  void PonIndice(int indice);  // -1: no frame shown
  std::function<void(int)> alElegir;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;

 private:
  int indice_ = 0;
};

// Prefix, first number and suffix of the problem labels, and their colour.
class MarcoNumeracion final : public QWidget {
 public:
  MarcoNumeracion(TextosVentana& t, QWidget* parent = nullptr);
  void Pon(const ColeccionCab& cab);
  void Lee(ColeccionCab& cab) const;
  // The start number is asked only of a new worksheet.
  void MuestraInicio(bool mostrar);

 private:
  QLineEdit *prefijo_ = nullptr, *inicio_ = nullptr, *sufijo_ = nullptr;  // TxProPre, TxNumProbINI, TxProSuf
  QLabel* etiquetaInicio_ = nullptr;
  QLabel* muestra_ = nullptr;
  Paleta* paleta_ = nullptr;  // Picture2
  int color_ = 16777215;
  void Muestra();
};

// Page numbers: shown or not, the first number, place and alignment, with a
// small picture of a page pair that shows where the number goes.
class MarcoPaginas final : public QWidget {
 public:
  MarcoPaginas(TextosVentana& t, QWidget* parent = nullptr);
  void Pon(const ColeccionCab& cab);
  void Lee(ColeccionCab& cab) const;
  // The first page number belongs to one worksheet: there is no default.
  void MuestraInicio(bool mostrar);

 private:
  QLabel* etiquetaInicio_ = nullptr;
  QCheckBox* mostrar_ = nullptr;  // Check1
  QLineEdit* inicio_ = nullptr;   // TxINIPAG
  QComboBox* posicion_ = nullptr;  // Combo1
  QComboBox* alineacion_ = nullptr;  // Combo2
  QLabel* muestra_ = nullptr;
  int posnumpag_ = 0;
  void Combo1_Click();
  void Habilita();
  void Dibuja();
};

// Topic order or random order.
class MarcoOrden final : public QWidget {
 public:
  MarcoOrden(TextosVentana& t, QWidget* parent = nullptr);
  void Pon(const ColeccionCab& cab);
  void Lee(ColeccionCab& cab) const;

 private:
  QRadioButton *porTemas_ = nullptr, *azar_ = nullptr;  // Option11, Option12
};

// Where the solutions go, each choice with a small picture of its effect.
class MarcoSoluciones final : public QWidget {
 public:
  MarcoSoluciones(TextosVentana& t, const QString& carpetaImg, QWidget* parent = nullptr);
  void Pon(const ColeccionCab& cab);
  void Lee(ColeccionCab& cab) const;

 private:
  std::array<QRadioButton*, 4> opcion_{};  // POSSOL 0..3: Option1, Option13, Option19, Option5
};

}  // namespace ss
