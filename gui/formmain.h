// The main window: menus, toolbar, the page view and the one open worksheet.
// It is a thin layer over the worksheet core: each command tests the busy
// guard, calls the core, and then brings the window up to date. The core
// reaches the window through the Plataforma it implements; every question it
// asks goes through the Dialogos it is given.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "worksheet/plataforma.h"

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QTimer;
class QToolBar;
class QAbstractButton;
class QPrinter;

namespace ss {

class Almacen;
class Dialogos;
class FormAcerca;
class VistaPagina;
struct Documento;
struct EleccionImpresion;
struct Sesion;

inline constexpr int kBotones = 12;

class FormMain final : public QMainWindow, public Plataforma {
 public:
  // `args`: the program's arguments after its own name. `almacen` holds the
  // user's settings; `dialogos` asks the user.
  FormMain(Almacen& almacen, Dialogos& dialogos, const QStringList& args, QWidget* parent = nullptr);
  ~FormMain() override;

  Documento& documento();
  Sesion& sesion();
  VistaPagina& vista() { return *vista_; }
  // The start panel needs no showing any more in this run.
  bool IniPanelCerrado() const { return iniPanelCerrado_; }
  // Toolbar button i (0 to 11): shown and enabled as ActualizarBotones left it.
  QAction* Boton(int i) const { return boton_[static_cast<std::size_t>(i)]; }
  QLabel* LbPage() const { return lbPage_; }

  // What the worksheet core asks of its window.
  void Aviso(const std::string& texto) override;
  void Critico(const std::string& texto) override;
  Respuesta Pregunta(const std::string& texto) override;
  bool Confirma(const std::string& texto) override;
  void AbreEnOtroProceso(const QString& ruta) override;
  void DejaCorrer() override;
  void CursorEspera(bool espera) override;
  void Ocupado(bool ocupado) override;
  void Progreso(const std::string& texto) override;
  void TituloVentana(const QString& titulo) override;
  void EstadoDocumento(bool abierto) override;
  void Reciente(const QString& ruta) override;
  bool GuardarComo() override;

 protected:
  void showEvent(QShowEvent* e) override;
  void closeEvent(QCloseEvent* e) override;
  void dragEnterEvent(QDragEnterEvent* e) override;
  void dropEvent(QDropEvent* e) override;
  bool eventFilter(QObject* objeto, QEvent* e) override;
  void changeEvent(QEvent* e) override;

 private:
  struct Nucleo;

  // Building the window.
  void CreaMenus();
  void CreaBarra();
  void SetLanguage();
  void FijarTextoLabelsPicTool();
  void LlenaSistemas();

  // States of the window.
  bool Ocupada() const;
  bool HayProblemas() const;
  void HayColeccion();
  void SinDocumento();
  void ActualizarBotones();
  void ActualizaMenusCheckeados();
  void ActualizaRecientes();
  void AplicaHabilitados();
  void PintarPagina();
  void Refresca();

  // Start-up.
  void PrimeraActivacion();
  void Timer6_Timer();
  void CierraSplash();
  void Ejecuta(const QString& comandoInicio);

  // Commands.
  void Cargar(const QString& ruta);
  void mnu_File_New();
  void mnu_File_Open();
  void mnu_File_Save();
  bool mnu_File_SaveAs();
  void mnu_File_Reciente(int i);
  void mnu_COLEC_RECREAR();
  void PosicionSoluciones(int possol);
  void Regenerar();
  void Comando(const std::function<bool()>& hacer, bool mantenScroll = false);
  void mnu_Edicion_Copy();
  void mnu_Edicion_Cut();
  void mnu_Edicion_Paste();
  void mnu_Edicion_REGEN1();
  std::string TextoDelPortapapeles() const;
  void RevisaPortapapeles();
  void AlPulsar(Qt::MouseButton boton, double x, double y, QPoint global);
  void Zoom(double zoom);
  void mnu_setup_zoomANCHO();
  void AjustaAncho();
  void mnu_setup_BotEdic();
  void mnu_setup_WIN_INI();
  void mnu_setup_SYSEDU_IDX(int i);
  bool CambiaSistema(const QString& fichero);
  void mnu_setup_App();
  void mnu_COLEC_Prop();
  void mnu_File_Print();
  void mnu_File_Print_folder();
  void mnu_File_ExportPdf();
  void mnu_File_MuliColPer();
  QPrinter& Impresora();
  bool EligeSalida(const QString& impresora, const QString& propuesta);
  void ImprimeAbierta(const std::vector<int>& orden);
  void ImprimeFicheros(const QStringList& ficheros, const EleccionImpresion& eleccion);
  // The print window for the worksheets of a folder, then the run it asks for.
  void ImprimeCarpeta(const QString& carpeta);
  void CompruebaImpresoras();
  void mnu_Help_Manual();
  void mnu_Help_About();
  void ImgLPage_Click();
  void ImgRPage_Click();
  void CambiaPagina();
  void Tecla(int tecla);

  QString T(const char* clave) const;  // a text of the window, "&" kept

  Almacen& almacen_;
  Dialogos& dialogos_;
  std::unique_ptr<Nucleo> n_;

  VistaPagina* vista_ = nullptr;
  QToolBar* tbToolbar1_ = nullptr;
  QLabel* lbPage_ = nullptr;
  QAbstractButton* imgLPage_ = nullptr;
  QAbstractButton* imgRPage_ = nullptr;
  std::array<QAction*, kBotones> boton_{};
  std::array<bool, kBotones> mostrado_{}, activo_{};
  QMenu *mnuFile_ = nullptr, *mnuEdicion_ = nullptr, *mnuColec_ = nullptr, *mnuSetup_ = nullptr,
        *mnuZoom_ = nullptr, *mnuSysedu_ = nullptr, *mnuHelp_ = nullptr;
  QAction *mnuEdicionAccion_ = nullptr, *mnuColecAccion_ = nullptr, *mnuSyseduAccion_ = nullptr;
  QAction* zep04_ = nullptr;
  QMenu* cmnuEdicion_ = nullptr;
  std::array<QAction*, 9> reciente_{};
  std::array<QAction*, 4> solucion_{};
  std::array<QAction*, 6> zoom_{};  // 50, 75, 100, 150, 200 %, fit to width
  QActionGroup* grupoSistemas_ = nullptr;
  QTimer* timer6_ = nullptr;
  QPointer<FormAcerca> splash_, acerca_;

  QStringList ficherosAbrir_;
  bool lineaDeComandosVacia_ = true;
  bool iniPanelCerrado_ = false;
  bool mostrarIniPanel_ = true;
  bool botonesEdicion_ = false;
  bool ajusteAncho_ = false;
  bool activado_ = false;
  bool cursorEspera_ = false;
  bool pegable_ = false;  // the clipboard holds a problem
  bool hayImpresora_ = false;
  QString carpetaInicial_;
};

}  // namespace ss
