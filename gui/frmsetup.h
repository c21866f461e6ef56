// The settings window, in two modes under one form. For the program it edits
// the notation, the defaults of new worksheets and the window options, and
// writes them only to the settings store. For the open worksheet it edits the
// header of that worksheet (titles, numbering, order, solutions, page
// numbers), which the main window takes with an undo step.
#pragma once

#include <QDialog>
#include <QString>

#include <array>
#include <vector>

#include "worksheet/ajustes.h"
#include "worksheet/asistente.h"
#include "worksheet/coleccion.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QStackedWidget;

namespace ss {

class Dialogos;
class MarcoTitulos;
class MarcoNumeracion;
class MarcoPaginas;
class MarcoOrden;
class MarcoSoluciones;

struct EntornoAjustes {
  TextosVentana& textos;  // the wizard's texts ("WIZ"), which the window shares
  Almacen& almacen;
  Ajustes& ajustes;       // written on OK
  Dialogos& dialogos;
  std::vector<SistemaEducativo> sistemas;
  QString carpetaDatos;
  bool modoAplicacion = true;
  ColeccionCab cabecera;  // the open worksheet's header (its mode only)
};

class FrmSetup final : public QDialog {
 public:
  explicit FrmSetup(EntornoAjustes entorno, QWidget* parent = nullptr);
  ~FrmSetup() override;

  bool Ok() const { return ok_; }
  // The edited header (the worksheet's mode).
  const ColeccionCab& Cabecera() const { return cab_; }
  // The education system chosen (the program's mode).
  QString Sistema() const;

  // Shows the frame of that number (1 to 17), when the mode has it.
  bool MuestraMarco(int numero);

  void accept() override;  // OK: stays open when the currency is incomplete
  void reject() override;

 private:
  QWidget* Marco(int numero);
  QWidget* MarcoSeparadores();
  QWidget* MarcoSignos();
  QWidget* MarcoCientifica();
  QWidget* MarcoIntervalos();
  QWidget* MarcoEstadistica();
  QWidget* MarcoMoneda();
  QWidget* MarcoOptica(bool lente);
  QWidget* MarcoAsistente();
  QWidget* MarcoCasilla(const char* nombre, const char* clave, bool marcada);
  void Var_2_Controls();
  OpcionesNotacion LeeNotacion() const;
  void Controls_2_Var();
  void Ejemplo();

  EntornoAjustes e_;
  ColeccionCab cab_;
  bool ok_ = false;

  QListWidget* list1_ = nullptr;
  QStackedWidget* marcos_ = nullptr;
  std::vector<int> numeros_;  // the frame number of each stacked page

  QComboBox* cmbSysedu_ = nullptr;
  MarcoTitulos* titulos_ = nullptr;
  MarcoNumeracion* numeracion_ = nullptr;
  MarcoPaginas* paginas_ = nullptr;
  MarcoOrden* orden_ = nullptr;
  MarcoSoluciones* soluciones_ = nullptr;

  std::array<QRadioButton*, 3> separadores_{};  // OptCOMPYC, OptDOTPYC, OptDOTCOM
  QLabel* ejemplo_ = nullptr;
  QRadioButton *mulAspa_ = nullptr, *mulPunto_ = nullptr;
  std::array<QRadioButton*, 3> division_{};      // OptDIVCOLON, OptDIVBARRA, OptDIVCOLMEN
  QRadioButton *sciPunto_ = nullptr, *sciAspa_ = nullptr;
  QRadioButton *intervaloInv_ = nullptr, *intervaloPar_ = nullptr;  // OptCOCI, OptCOPA
  QRadioButton *sigma_ = nullptr, *desvS_ = nullptr, *frecN_ = nullptr, *frecF_ = nullptr;
  std::array<QRadioButton*, 3> moneda_{};        // OptEUR, OptUSD, OptOTRAMON
  std::array<QLineEdit*, 3> monedaTexto_{};      // TxtMonSimb, TxtMonSing, TxtMonPlur
  std::array<QRadioButton*, 4> espejo_{}, lente_{};  // the first (+1) option of each pair
  std::array<QRadioButton*, 4> espejoNeg_{}, lenteNeg_{};
  QCheckBox *check2_ = nullptr, *check3_ = nullptr, *chkVerBotEdic_ = nullptr, *chkShowIniWin_ = nullptr;
};

}  // namespace ss
