// The print window: which pages, how many copies and whether they come out
// collated, on which printer; in folder mode also which worksheets of the
// folder. It only asks: the main window prints what it leaves behind.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>

#include "output/paginas.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPrinter;
class QRadioButton;
class QScrollBar;

namespace ss {

class Dialogos;
class TextosVentana;

struct EntornoImpresion {
  TextosVentana& textos;  // the print window's texts ("PRI")
  Dialogos& dialogos;
  QPrinter& impresora;    // set up by the printer button
  QString carpetaDatos;   // the program's folder, for its pictures
  int paginas = 0;        // of the open worksheet; 0 in folder mode
  int actual = 1;         // the page on screen
  QString carpeta;        // folder mode: the folder whose worksheets are listed
  bool conPdf = true;     // "Print to file (PDF)" is offered among the printers
  std::function<void()> ayuda;
};

class FrmImprimir final : public QDialog {
 public:
  explicit FrmImprimir(EntornoImpresion entorno, QWidget* parent = nullptr);

  bool ImprimirCancelado() const { return cancelado_; }
  const EleccionImpresion& Eleccion() const { return eleccion_; }
  // Folder mode: the worksheets picked, as full paths, in list order.
  const QStringList& FicherosElegidos() const { return ficheros_; }
  // The printer chosen; empty for "Print to file (PDF)".
  QString Impresora() const;

  // The print button: checks what was typed, stays open with a warning when
  // something is wrong.
  void cmdImprimir();

 private:
  void Cmd_SEL(int como);
  void ActualizaTitulo();
  void PintaIntercalado();
  void Copias(int n);

  EntornoImpresion e_;
  bool cancelado_ = true;
  EleccionImpresion eleccion_;
  QStringList ficheros_;
  std::array<QRadioButton*, 5> opcion_{};  // all, interval, odd, even, current
  QLineEdit *text1_ = nullptr, *text2_ = nullptr;
  QScrollBar* vscroll1_ = nullptr;
  QCheckBox* chkCollate_ = nullptr;
  QLabel* imgCollate_ = nullptr;
  QComboBox* impresoras_ = nullptr;
  QListWidget* list1_ = nullptr;
  std::function<void()> configurarHabilitado_;
};

}  // namespace ss
