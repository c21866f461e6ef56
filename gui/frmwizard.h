// The new-worksheet wizard: an interview of seven pages (three of them only
// with the advanced options) that ends with the header of a new worksheet
// and the topic tree with the amounts asked for. It works on a header of its
// own: the open worksheet is not touched until the main window takes the
// result, and a cancel leaves nothing behind but the remembered defaults.
#pragma once

#include <QDialog>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "worksheet/ajustes.h"
#include "worksheet/asistente.h"
#include "worksheet/coleccion.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace ss {

class Dialogos;
class Temario;
class MarcoTitulos;
class MarcoNumeracion;
class MarcoPaginas;
class MarcoOrden;
class MarcoSoluciones;

// What the wizard works with, all of it the main window's.
struct EntornoAsistente {
  TextosVentana& textos;  // the wizard's texts ("WIZ")
  Almacen& almacen;
  Ajustes& ajustes;       // defaults read at open, written back at close
  Temario& temario;
  Dialogos& dialogos;
  std::vector<SistemaEducativo> sistemas;
  QString carpetaDatos;
  // Makes another education system the current one (empty: none); false
  // when it could not be read.
  std::function<bool(const QString&)> cambiaSistema;
};

class FrmWizard final : public QDialog {
 public:
  explicit FrmWizard(EntornoAsistente entorno, QWidget* parent = nullptr);
  ~FrmWizard() override;

  // True only when the wizard ended with Finish on its last page.
  bool Exito() const { return exito_; }
  // The new worksheet's header (NPROB the total asked for) and its tree.
  const ColeccionCab& Cabecera() const { return cab_; }
  Arbol& ArbolHecho() { return arbol_; }

  int Pagina() const { return pagina_; }
  const PaginasAsistente& Paginas() const { return paginas_; }
  void CmdNext();
  void CmdBack();

  void reject() override;

 protected:
  void closeEvent(QCloseEvent* e) override;
  bool eventFilter(QObject* objeto, QEvent* e) override;

 private:
  void CreaPaginas();
  QWidget* PaginaBienvenida();
  QWidget* PaginaAsignatura();
  QWidget* PaginaTipos();
  QWidget* PaginaTemas();
  QWidget* PaginaNumeracion();
  QWidget* PaginaOrden();
  QWidget* PaginaTitulos();

  void MuestraPagina(int pagina);
  void CmbSYSEDU_Click(int indice);
  void Recopilar_Asignaturas();
  void EligeAsignatura(int fila);
  void LoadTOLISTBOX_BUILT_CODE();
  void LlenaArbol();
  void AE_ItemEXProyect();
  void TxCan_Change(int cual, int valor);
  void RECUENTA();
  void AlCambiarFila(QTreeWidgetItem* item);
  void PintaFila(QTreeWidgetItem* item);
  void LeeMarcos();
  void GuardarAjustes();
  int FilaElegida() const;
  std::string AsignaturaElegida() const;
  TiposItem Tipos() const;

  EntornoAsistente e_;
  ColeccionCab cab_;
  Arbol arbol_;
  PaginasAsistente paginas_;
  int pagina_ = 1;
  int total_ = 0;
  int filaActual_ = 0;
  std::string firma_;
  bool exito_ = false;
  bool cerrado_ = false;
  std::vector<std::string> asignaturas_;

  QLabel* encabezado_ = nullptr;
  QStackedWidget* marcos_ = nullptr;  // Frame1(1..7)
  QPushButton *atras_ = nullptr, *siguiente_ = nullptr, *cancelar_ = nullptr;
  QCheckBox *check2_ = nullptr, *check3_ = nullptr;
  QComboBox* cmbSysedu_ = nullptr;
  QLabel* etiquetaSysedu_ = nullptr;
  QListWidget* lstAsig_ = nullptr;
  QWidget* imagenes_ = nullptr;
  std::vector<QToolButton*> imageAsig_;
  QLabel* sinAsignatura_ = nullptr;
  std::array<QCheckBox*, 4> chkTip_{};
  QTreeWidget* tree_ = nullptr;
  QLabel *nombreFila_ = nullptr, *imagenDif_ = nullptr, *etiquetaDif_ = nullptr, *descripcion_ = nullptr;
  QLabel *etiquetaCan0_ = nullptr, *etiquetaCan1_ = nullptr;
  QSpinBox *txCan0_ = nullptr, *txCan1_ = nullptr;
  QLabel* txTot_ = nullptr;
  MarcoNumeracion* numeracion_ = nullptr;
  MarcoPaginas* paginasNum_ = nullptr;
  MarcoOrden* orden_ = nullptr;
  MarcoSoluciones* soluciones_ = nullptr;
  MarcoTitulos* titulos_ = nullptr;
};

}  // namespace ss
