#include "gui/formmain.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QPrinter>
#include <QScreen>
#include <QScrollBar>
#include <QKeyEvent>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include <cmath>
#include <functional>
#include <memory>

#include "gui/dialogos.h"
#include "gui/formacerca.h"
#include "gui/forminiopt.h"
#include "gui/formmulticolper.h"
#include "gui/frmimprimir.h"
#include "gui/frmsetup.h"
#include "gui/frmwizard.h"
#include "gui/marcos.h"
#include "gui/vista.h"
#include "output/grupo.h"
#include "output/impresion.h"
#include "output/paginas.h"
#include "problems/generic.h"
#include "problems/idioma.h"
#include "problems/silabo_sed.h"
#include "problems/texto.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "typeset/salida.h"
#include "worksheet/ajustes.h"
#include "worksheet/armado.h"
#include "worksheet/asistente.h"
#include "worksheet/carpetas.h"
#include "worksheet/colfile.h"
#include "worksheet/commands.h"
#include "worksheet/edicion.h"
#include "worksheet/inicio.h"
#include "worksheet/sesion.h"
#include "worksheet/temario.h"

namespace ss {
namespace {

std::string ATexto(const QString& s) { return Utf8ToCp1252(s.toUtf8().toStdString()); }

// The splash stays this long unless a click or the first dialog closes it,
// the About box this long unless a click or a key does.
constexpr int kMsApertura = 2500;
constexpr int kMsAcerca = 20000;

// A page arrow: its picture, and the pressed picture while it is held down.
class BotonPagina final : public QAbstractButton {
 public:
  BotonPagina(const QString& normal, const QString& pulsado, const QString& nombre, QWidget* parent)
      : QAbstractButton(parent), normal_(normal), pulsado_(pulsado) {
    setObjectName(nombre);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
  }
  QSize sizeHint() const override { return {26, 26}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    if (!isEnabled()) p.setOpacity(0.35);
    const QPixmap& imagen = isDown() && !pulsado_.isNull() ? pulsado_ : normal_;
    if (!imagen.isNull()) {
      const QSize s = imagen.deviceIndependentSize().toSize().scaled(size(), Qt::KeepAspectRatio);
      p.drawPixmap(QRect(QPoint((width() - s.width()) / 2, (height() - s.height()) / 2), s), imagen);
      return;
    }
    // No picture in the program's folder: a plain triangle.
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(palette().color(isDown() ? QPalette::Highlight : QPalette::WindowText));
    p.setPen(Qt::NoPen);
    const bool izquierda = objectName() == QLatin1String("ImgLPage");
    const double m = 7, w = width(), h = height();
    const QPointF t[3] = {{izquierda ? w - m : m, m}, {izquierda ? w - m : m, h - m},
                          {izquierda ? m : w - m, h / 2}};
    p.drawPolygon(t, 3);
  }

 private:
  QPixmap normal_, pulsado_;
};

}  // namespace

// Everything of the worksheet core that the window holds for the run.
struct FormMain::Nucleo {
  explicit Nucleo(Plataforma& pl)
      : datos(CarpetaDatos()),
        mensajes(datos.toStdString()),
        gen(&mensajes),
        textos(datos.toStdString(), "MAI"),
        textosPanel(datos.toStdString(), "INO"),
        textosWiz(datos.toStdString(), "WIZ"),
        textosPri(datos.toStdString(), "PRI"),
        textosSef(datos.toStdString(), "SEF"),
        s{doc, pl, gen, motor, oculta, textos, Carpetas{datos, temporal.Ruta()}},
        temario(datos, mensajes, [&pl](const std::string& aviso) { pl.Aviso(aviso); }) {
    InitServicios(notacion, mensajes);
    motor.BuscaImagen = BuscadorDeImagenes(s.carpetas);
  }

  QString datos;
  Notacion notacion;
  Mensajes mensajes;
  GenContext gen;
  Motor motor;
  CanvasQt oculta{nullptr};
  TextosVentana textos, textosPanel, textosWiz, textosPri, textosSef;
  std::unique_ptr<QPrinter> impresora;  // made at the first print, kept with its set-up
  UsoCarpetaTemporal temporal;
  Documento doc;
  Sesion s;
  Ajustes ajustes;
  Recientes recientes;
  std::vector<SistemaEducativo> sistemas;
  Temario temario;  // the syllabus of the chosen system and the catalogue
};

FormMain::FormMain(Almacen& almacen, Dialogos& dialogos, const QStringList& args, QWidget* parent)
    : QMainWindow(parent), almacen_(almacen), dialogos_(dialogos), n_(std::make_unique<Nucleo>(*this)) {
  setObjectName(QStringLiteral("FormMain"));
  setAcceptDrops(true);
  vista_ = new VistaPagina(this);
  vista_->alCambiarAncho = [this] { AjustaAncho(); };
  vista_->alPulsar = [this](Qt::MouseButton b, double x, double y, QPoint global) { AlPulsar(b, x, y, global); };
  setCentralWidget(vista_);
  timer6_ = new QTimer(this);
  timer6_->setObjectName(QStringLiteral("Timer6"));
  timer6_->setInterval(300);
  timer6_->setSingleShot(true);
  connect(timer6_, &QTimer::timeout, this, &FormMain::Timer6_Timer);

  // The load sequence, behind the opening panel.
  n_->textos.LoadIdioma();
  splash_ = new FormAcerca(FormAcerca::Modo::Apertura, n_->textos, n_->datos, kMsApertura);
  if (const QScreen* s = screen()) splash_->move(s->availableGeometry().center() - splash_->rect().center());
  splash_->show();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  CreaMenus();
  CreaBarra();
  SetLanguage();
  n_->ajustes = LeeAjustes(almacen_, n_->textos);
  mostrarIniPanel_ = n_->ajustes.mostrarPanelInicio;
  iniPanelCerrado_ = !mostrarIniPanel_;
  n_->motor.reemplazos = ReemplazosDe(n_->ajustes, &n_->mensajes);
  n_->textosWiz.LoadIdioma();
  n_->textosPri.LoadIdioma();
  n_->textosSef.LoadIdioma();
  n_->temario.Carga(n_->ajustes.sysedu);
  n_->gen.silabo = n_->temario.Silabo();
  LlenaSistemas();
  botonesEdicion_ = n_->ajustes.botonesEdicion;
  n_->recientes = Recientes::Lee(almacen_);
  ActualizaRecientes();
  carpetaInicial_ = n_->ajustes.ultimaCarpeta;
  lineaDeComandosVacia_ = args.isEmpty();
  ficherosAbrir_ = FicherosDeArgumentos(args);
  FijarTextoLabelsPicTool();
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &FormMain::RevisaPortapapeles);
  CompruebaImpresoras();
  NoColeccion(n_->s);
  RevisaPortapapeles();
  ActualizaMenusCheckeados();

  const QRect pantalla = screen() ? screen()->availableGeometry() : QRect(0, 0, 1280, 900);
  resize(std::min(1180, pantalla.width() * 9 / 10), std::min(960, pantalla.height() * 9 / 10));
}

FormMain::~FormMain() {
  if (splash_) splash_->close();
}

Documento& FormMain::documento() { return n_->doc; }
Sesion& FormMain::sesion() { return n_->s; }

QString FormMain::T(const char* clave) const { return DeTexto(n_->textos.GetL_win(clave)); }

// ---- building the window ----------------------------------------------------

void FormMain::CreaMenus() {
  auto accion = [this](QMenu* menu, const char* nombre, auto&& alElegir) {
    auto* a = menu->addAction(QString());
    a->setObjectName(QLatin1String(nombre));
    connect(a, &QAction::triggered, this, alElegir);
    return a;
  };

  mnuFile_ = menuBar()->addMenu(QString());
  mnuFile_->setObjectName(QStringLiteral("mnu_File"));
  // The new-worksheet wizard, the group worksheets and printing are not part
  // of this version yet: their entries stay off.
  accion(mnuFile_, "mnu_File_New", [this] { mnu_File_New(); })->setShortcut(QKeySequence::New);
  accion(mnuFile_, "mnu_File_Open", [this] { mnu_File_Open(); })->setShortcut(QKeySequence::Open);
  accion(mnuFile_, "mnu_File_MuliColPer", [this] { mnu_File_MuliColPer(); });
  mnuFile_->addSeparator();
  accion(mnuFile_, "mnu_File_Save", [this] { mnu_File_Save(); })->setShortcut(QKeySequence::Save);
  accion(mnuFile_, "mnu_File_SaveAs", [this] { mnu_File_SaveAs(); })->setShortcut(QKeySequence::SaveAs);
  mnuFile_->addSeparator();
  accion(mnuFile_, "mnu_File_Print", [this] { mnu_File_Print(); })->setShortcut(QKeySequence::Print);
  accion(mnuFile_, "mnu_File_Print_folder", [this] { mnu_File_Print_folder(); });
  accion(mnuFile_, "mnu_File_ExportPdf", [this] { mnu_File_ExportPdf(); });
  // Printers come and go: the entries follow when the menu opens.
  connect(mnuFile_, &QMenu::aboutToShow, this, [this] { CompruebaImpresoras(); });
  zep04_ = mnuFile_->addSeparator();
  zep04_->setObjectName(QStringLiteral("zep04"));
  for (int i = 0; i < 9; ++i) {
    const std::string nombre = "mnu_File_Reciente" + std::to_string(i + 1);
    reciente_[i] = accion(mnuFile_, nombre.c_str(), [this, i] { mnu_File_Reciente(i + 1); });
  }
  mnuFile_->addSeparator();
  accion(mnuFile_, "mnu_File_Exit", [this] { close(); })->setShortcut(QKeySequence::Quit);

  mnuEdicion_ = menuBar()->addMenu(QString());
  mnuEdicion_->setObjectName(QStringLiteral("mnu_Edicion"));
  struct Entrada {
    const char* nombre;
    std::function<void()> alElegir;
    QList<QKeySequence> atajos;
  };
  const Entrada entradas[] = {
      {"mnu_Edicion_Undo", [this] { Comando([this] { Deshacer(n_->s); return true; }); }, {QKeySequence::Undo}},
      {"mnu_Edicion_Redo", [this] { Comando([this] { Rehacer(n_->s); return true; }); },
       {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)}},
      {"", {}, {}},
      {"mnu_Edicion_Cut", [this] { mnu_Edicion_Cut(); }, {QKeySequence::Cut}},
      {"mnu_Edicion_Copy", [this] { mnu_Edicion_Copy(); }, {QKeySequence::Copy}},
      {"mnu_Edicion_Paste", [this] { mnu_Edicion_Paste(); }, {QKeySequence::Paste}},
      {"mnu_Edicion_Del", [this] { Comando([this] { return Borrar(n_->s); }); }, {QKeySequence(Qt::Key_Delete)}},
      {"", {}, {}},
      {"mnu_Edicion_Mover0", [this] { Comando([this] { return Mover(n_->s, 0); }); },
       {QKeySequence(Qt::CTRL | Qt::Key_Home)}},
      {"mnu_Edicion_Mover1", [this] { Comando([this] { return Mover(n_->s, 1); }); },
       {QKeySequence(Qt::CTRL | Qt::Key_End)}},
      {"mnu_Edicion_Mover2", [this] { Comando([this] { return Mover(n_->s, 2); }); },
       {QKeySequence(Qt::CTRL | Qt::Key_Up)}},
      {"mnu_Edicion_Mover3", [this] { Comando([this] { return Mover(n_->s, 3); }); },
       {QKeySequence(Qt::CTRL | Qt::Key_Down)}},
      {"", {}, {}},
      {"mnu_Edicion_REGEN1", [this] { mnu_Edicion_REGEN1(); }, {}},
      {"mnu_Edicion_INS", [this] { Comando([this] { return PegarSimilar(n_->s); }); }, {}},
  };
  for (const Entrada& e : entradas) {
    if (!*e.nombre) {
      mnuEdicion_->addSeparator();
      continue;
    }
    QAction* a = accion(mnuEdicion_, e.nombre, e.alElegir);
    a->setShortcuts(e.atajos);
  }
  mnuEdicionAccion_ = mnuEdicion_->menuAction();
  connect(mnuEdicion_, &QMenu::aboutToShow, this, [this] { ActualizarBotones(); });

  // The context menu of the page: the same entries, and the worksheet's
  // properties, which come with the setup dialog.
  cmnuEdicion_ = new QMenu(this);
  cmnuEdicion_->setObjectName(QStringLiteral("cmnu_edicion"));
  cmnuEdicion_->addActions(mnuEdicion_->actions());
  cmnuEdicion_->addSeparator();
  auto* propiedades = cmnuEdicion_->addAction(QString());
  propiedades->setObjectName(QStringLiteral("cmnu_Edicion_COLEC_Prop"));
  connect(propiedades, &QAction::triggered, this, [this] { mnu_COLEC_Prop(); });

  mnuColec_ = menuBar()->addMenu(QString());
  mnuColec_->setObjectName(QStringLiteral("mnu_COLEC"));
  accion(mnuColec_, "mnu_COLEC_RECREAR", [this] { mnu_COLEC_RECREAR(); });
  mnuColec_->addSeparator();
  auto* grupoSol = new QActionGroup(this);
  const char* soluciones[4] = {"mnu_COLEC_SinSol", "mnu_COLEC_SolDespPro", "mnu_COLEC_SolJuntasFinal",
                               "mnu_COLEC_SolPagAparte"};
  for (int k = 0; k < 4; ++k) {
    solucion_[k] = accion(mnuColec_, soluciones[k], [this, k] { PosicionSoluciones(k); });
    solucion_[k]->setCheckable(true);
    grupoSol->addAction(solucion_[k]);
  }
  mnuColec_->addSeparator();
  accion(mnuColec_, "mnu_COLEC_Prop", [this] { mnu_COLEC_Prop(); });
  mnuColecAccion_ = mnuColec_->menuAction();

  mnuSetup_ = menuBar()->addMenu(QString());
  mnuSetup_->setObjectName(QStringLiteral("mnu_setup"));
  accion(mnuSetup_, "mnu_setup_BotEdic", [this] { mnu_setup_BotEdic(); })->setCheckable(true);
  mnuZoom_ = mnuSetup_->addMenu(QString());
  mnuZoom_->setObjectName(QStringLiteral("mnu_setup_zoom"));
  auto* grupoZoom = new QActionGroup(this);
  const double zooms[5] = {0.5, 0.75, 1, 1.5, 2};
  for (int k = 0; k < 5; ++k) {
    const std::string nombre = "mnu_setup_zoom" + std::to_string(static_cast<int>(zooms[k] * 100));
    zoom_[k] = accion(mnuZoom_, nombre.c_str(), [this, z = zooms[k]] { Zoom(z); });
    zoom_[k]->setText(QStringLiteral("%1 %").arg(zooms[k] * 100));
  }
  mnuZoom_->addSeparator();
  zoom_[5] = accion(mnuZoom_, "mnu_setup_zoomANCHO", [this] { mnu_setup_zoomANCHO(); });
  for (QAction* a : zoom_) {
    a->setCheckable(true);
    grupoZoom->addAction(a);
  }
  zoom_[2]->setChecked(true);
  accion(mnuSetup_, "mnu_setup_WIN_INI", [this] { mnu_setup_WIN_INI(); })->setCheckable(true);
  mnuSysedu_ = mnuSetup_->addMenu(QString());
  mnuSysedu_->setObjectName(QStringLiteral("mnu_setup_SYSEDU"));
  mnuSyseduAccion_ = mnuSysedu_->menuAction();
  grupoSistemas_ = new QActionGroup(this);
  mnuSetup_->addSeparator();
  accion(mnuSetup_, "mnu_setup_App", [this] { mnu_setup_App(); })->setMenuRole(QAction::PreferencesRole);

  mnuHelp_ = menuBar()->addMenu(QString());
  mnuHelp_->setObjectName(QStringLiteral("mnu_Help"));
  accion(mnuHelp_, "mnu_Help_Manual", [this] { mnu_Help_Manual(); })->setShortcut(QKeySequence::HelpContents);
  accion(mnuHelp_, "mnu_Help_About", [this] { mnu_Help_About(); });

  // The page keys act on the page wherever the focus is in this window.
  qApp->installEventFilter(this);
}

bool FormMain::eventFilter(QObject* objeto, QEvent* e) {
  if (e->type() != QEvent::KeyPress) return false;
  auto* widget = qobject_cast<QWidget*>(objeto);
  if (!widget || widget->window() != this || !HayProblemas()) return false;
  const auto* tecla = static_cast<QKeyEvent*>(e);
  if ((tecla->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  switch (tecla->key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
      Tecla(tecla->key());
      return true;
    default:
      return false;
  }
}

void FormMain::CreaBarra() {
  tbToolbar1_ = addToolBar(QString());
  tbToolbar1_->setObjectName(QStringLiteral("tbToolbar1"));
  tbToolbar1_->setMovable(false);
  tbToolbar1_->setFloatable(false);
  tbToolbar1_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  tbToolbar1_->setIconSize(QSize(32, 32));
  tbToolbar1_->toggleViewAction()->setVisible(false);
  setContextMenuPolicy(Qt::NoContextMenu);

  // Each button stands for its tag: the picture of the desktop's icon theme,
  // else our own.
  struct Definicion {
    const char* tag;
    const char* icono;
    const char* propio;
  };
  static const Definicion botones[kBotones] = {
      {"Abrir", "document-open", "tb_open"},      {"Nueva", "document-new", "tb_new"},
      {"Guardar", "document-save", "tb_save"},    {"Regenerar", "view-refresh", "tb_recreate"},
      {"Deshacer", "edit-undo", "tb_undo"},       {"Rehacer", "edit-redo", "tb_redo"},
      {"Cortar", "edit-cut", "tb_cut"},           {"Copiar", "edit-copy", "tb_copy"},
      {"Pegar", "edit-paste", "tb_paste"},        {"Imprimir", "document-print", "tb_print"},
      {"Zoom", "zoom-in", "tb_zoom"},             {"Ayuda", "help-browser", "tb_help"}};
  for (int i = 0; i < kBotones; ++i) {
    const Definicion& d = botones[i];
    const QIcon propio(n_->datos + QStringLiteral("/img/%1.png").arg(QLatin1String(d.propio)));
    auto* a = tbToolbar1_->addAction(QIcon::fromTheme(QLatin1String(d.icono), propio), QString());
    a->setObjectName(QStringLiteral("PicToolB%1").arg(i));
    a->setData(QLatin1String(d.tag));
    boton_[i] = a;
  }
  connect(boton_[0], &QAction::triggered, this, [this] { mnu_File_Open(); });
  connect(boton_[1], &QAction::triggered, this, [this] { mnu_File_New(); });
  connect(boton_[2], &QAction::triggered, this, [this] { mnu_File_Save(); });
  connect(boton_[3], &QAction::triggered, this, [this] { Regenerar(); });
  connect(boton_[9], &QAction::triggered, this, [this] { mnu_File_Print(); });
  for (auto [i, nombre] : {std::pair{4, "mnu_Edicion_Undo"}, {5, "mnu_Edicion_Redo"}, {6, "mnu_Edicion_Cut"},
                           {7, "mnu_Edicion_Copy"}, {8, "mnu_Edicion_Paste"}}) {
    QAction* entrada = findChild<QAction*>(QLatin1String(nombre));
    connect(boton_[i], &QAction::triggered, entrada, &QAction::trigger);
  }
  // Zoom and Help pop up their menus; the menus stay in the menu bar too.
  for (auto [i, menu] : {std::pair{10, mnuZoom_}, std::pair{11, mnuHelp_}})
    if (auto* b = qobject_cast<QToolButton*>(tbToolbar1_->widgetForAction(boton_[i]))) {
      b->setMenu(menu);
      b->setPopupMode(QToolButton::InstantPopup);
    }

  // The page arrows and the page label, the window's one status line.
  auto* estado = statusBar();
  estado->setSizeGripEnabled(true);
  lbPage_ = new QLabel(estado);
  lbPage_->setObjectName(QStringLiteral("LbPage"));
  lbPage_->setMinimumWidth(120);
  lbPage_->setAlignment(Qt::AlignCenter);
  const QString img = n_->datos + QStringLiteral("/img/");
  imgLPage_ = new BotonPagina(img + QStringLiteral("page_left.png"), img + QStringLiteral("page_left_pressed.png"),
                              QStringLiteral("ImgLPage"), estado);
  imgRPage_ = new BotonPagina(img + QStringLiteral("page_right.png"),
                              img + QStringLiteral("page_right_pressed.png"), QStringLiteral("ImgRPage"), estado);
  connect(imgLPage_, &QAbstractButton::clicked, this, [this] { ImgLPage_Click(); });
  connect(imgRPage_, &QAbstractButton::clicked, this, [this] { ImgRPage_Click(); });
  estado->addPermanentWidget(imgLPage_);
  estado->addPermanentWidget(lbPage_);
  estado->addPermanentWidget(imgRPage_);
}

void FormMain::SetLanguage() {
  struct Caption {
    const char* nombre;
    const char* clave;
    bool dialogo;  // opens a dialog: "..." behind
  };
  static const Caption captions[] = {
      {"mnu_File_New", "File_new", true},
      {"mnu_File_Open", "File_Open", true},
      {"mnu_File_MuliColPer", "File_MultiWS", true},
      {"mnu_File_Save", "File_Save", false},
      {"mnu_File_SaveAs", "File_SaveAs", true},
      {"mnu_File_Print", "File_Print", true},
      {"mnu_File_Print_folder", "File_Print_Fold", true},
      {"mnu_File_ExportPdf", "File_ExportPDF", true},
      {"mnu_File_Exit", "File_Exit", false},
      {"mnu_Edicion_Undo", "Edit_Undo0", false},
      {"mnu_Edicion_Redo", "Edit_Redo0", false},
      {"mnu_Edicion_Cut", "Edit_Cut", false},
      {"mnu_Edicion_Copy", "Edit_Copy", false},
      {"mnu_Edicion_Paste", "Edit_Paste", false},
      {"mnu_Edicion_Del", "Edit_Del", false},
      {"mnu_Edicion_Mover0", "Edit_MoveBEG", false},
      {"mnu_Edicion_Mover1", "Edit_MoveEND", false},
      {"mnu_Edicion_Mover2", "Edit_MoveUP", false},
      {"mnu_Edicion_Mover3", "Edit_MoveDOWN", false},
      {"mnu_Edicion_REGEN1", "Edit_ReCreatePro", false},
      {"mnu_Edicion_INS", "Edit_PasteSimPro", false},
      {"mnu_COLEC_RECREAR", "Worksheet_ReCreate", false},
      {"mnu_COLEC_SinSol", "Worksheet_NoSol", false},
      {"mnu_COLEC_SolDespPro", "Worksheet_SolAfter", false},
      {"mnu_COLEC_SolJuntasFinal", "Worksheet_SolEnd", false},
      {"mnu_COLEC_SolPagAparte", "Worksheet_SolPag", false},
      {"mnu_COLEC_Prop", "Worksheet_Setup", true},
      {"cmnu_Edicion_COLEC_Prop", "Worksheet_Setup", true},
      {"mnu_setup_BotEdic", "Setup_EditButtons", false},
      {"mnu_setup_zoomANCHO", "Setup_Zoom2Page", false},
      {"mnu_setup_WIN_INI", "Setup_WinIni", false},
      {"mnu_setup_App", "Setup_SetupApp", true},
      {"mnu_Help_Manual", "Help_Manual", false},
      {"mnu_Help_About", "Help_About", false},
  };
  for (const Caption& c : captions)
    if (auto* a = findChild<QAction*>(QLatin1String(c.nombre)))
      a->setText(T(c.clave) + (c.dialogo ? QStringLiteral("...") : QString()));
  mnuFile_->setTitle(T("File0"));
  mnuEdicion_->setTitle(T("Edit0"));
  mnuColec_->setTitle(T("Worksheet0"));
  mnuSetup_->setTitle(T("Setup0"));
  mnuZoom_->setTitle(T("Setup_Zoom"));
  mnuSysedu_->setTitle(T("Setup_SysEdu"));
  mnuHelp_->setTitle(T("Help0"));
}

void FormMain::FijarTextoLabelsPicTool() {
  static const char* claves[kBotones] = {"Open", "New", "Save", "ReCreate", "Undo", "Redo",
                                         "Cut",  "Copy", "Paste", "Print",   "Zoom", "Help"};
  for (int i = 0; i < kBotones; ++i) {
    const std::string k = std::string("But_") + claves[i];
    boton_[i]->setText(DeTexto(n_->textos.GetL_win(k + "CAP", true)));
    boton_[i]->setToolTip(DeTexto(n_->textos.GetL_win(k + "TTT", true)));
  }
}

void FormMain::LlenaSistemas() {
  for (QAction* a : grupoSistemas_->actions()) delete a;
  n_->sistemas = SistemasEducativos(n_->datos, n_->textos);
  for (std::size_t i = 0; i < n_->sistemas.size(); ++i) {
    auto* a = mnuSysedu_->addAction(n_->sistemas[i].nombre);
    a->setObjectName(QStringLiteral("mnu_setup_SYSEDU_IDX%1").arg(i + 1));
    a->setCheckable(true);
    grupoSistemas_->addAction(a);
    connect(a, &QAction::triggered, this, [this, i] { mnu_setup_SYSEDU_IDX(static_cast<int>(i)); });
  }
  mnuSyseduAccion_->setVisible(!n_->sistemas.empty());
}

// ---- states of the window ----------------------------------------------------

bool FormMain::Ocupada() const { return n_->doc.AppBusy > 0; }
bool FormMain::HayProblemas() const { return !n_->doc.col.problemas.empty() && !n_->doc.bloques.empty(); }

void FormMain::HayColeccion() {
  activo_.fill(false);
  mostrado_.fill(true);
  for (int i : {0, 1, 2, 3, 10, 11}) activo_[i] = true;
  activo_[9] = hayImpresora_;
  ActualizarBotones();
}

void FormMain::SinDocumento() {
  activo_.fill(false);
  mostrado_.fill(true);
  for (int i : {0, 1, 10, 11}) activo_[i] = true;
  vista_->Limpia();
  lbPage_->clear();
  ActualizarBotones();
}

void FormMain::ActualizarBotones() {
  const bool edicion = HayProblemas() && botonesEdicion_;
  for (int i = 4; i <= 8; ++i) mostrado_[i] = edicion;
  // What the Edit menu, its context menu and the edit group may do now.
  const EstadoEdicion e = Estado(n_->doc);
  const bool pegar = HayProblemas() && !Ocupada() && pegable_ &&
                     static_cast<int>(n_->doc.col.problemas.size()) < kMaxProblemas;
  const std::pair<const char*, bool> habilitados[] = {
      {"mnu_Edicion_Undo", e.deshacer},       {"mnu_Edicion_Redo", e.rehacer},
      {"mnu_Edicion_Cut", e.sobreSeleccion},  {"mnu_Edicion_Copy", e.sobreSeleccion},
      {"mnu_Edicion_Paste", pegar},           {"mnu_Edicion_Del", e.sobreSeleccion},
      {"mnu_Edicion_Mover0", e.alPrincipio},  {"mnu_Edicion_Mover1", e.alFinal},
      {"mnu_Edicion_Mover2", e.alPrincipio},  {"mnu_Edicion_Mover3", e.alFinal},
      {"mnu_Edicion_REGEN1", e.sobreSeleccion}, {"mnu_Edicion_INS", e.pegarSimilar}};
  for (const auto& [nombre, activo] : habilitados) findChild<QAction*>(QLatin1String(nombre))->setEnabled(activo);
  // Undo and Redo name the action they take back or do again.
  const Documento& doc = n_->doc;
  const QString deshacer = doc.deshacerValido ? T("Edit_Undo1") + u' ' + DeTexto(doc.accionDeshacer) : T("Edit_Undo0");
  const QString rehacer = doc.rehacerValido ? T("Edit_Redo1") + u' ' + DeTexto(doc.accionRehacer) : T("Edit_Redo0");
  findChild<QAction*>(QStringLiteral("mnu_Edicion_Undo"))->setText(deshacer);
  findChild<QAction*>(QStringLiteral("mnu_Edicion_Redo"))->setText(rehacer);
  boton_[4]->setToolTip(QString(deshacer).remove(u'&'));
  boton_[5]->setToolTip(QString(rehacer).remove(u'&'));
  if (HayProblemas()) {
    activo_[4] = e.deshacer;
    activo_[5] = e.rehacer;
    activo_[6] = activo_[7] = e.sobreSeleccion;
    activo_[8] = pegar;
  }
  for (int i = 0; i < kBotones; ++i) {
    boton_[i]->setVisible(mostrado_[i]);
    boton_[i]->setEnabled(mostrado_[i] && activo_[i]);
  }
  AplicaHabilitados();
  setWindowModified(n_->doc.Modificada && HayProblemas());
}

// Menus, toolbar, arrows and drops as the document and the busy guard allow.
void FormMain::AplicaHabilitados() {
  const bool libre = !Ocupada();
  const bool doc = HayProblemas();
  menuBar()->setEnabled(libre);
  tbToolbar1_->setEnabled(libre);
  mnuEdicionAccion_->setVisible(doc);
  mnuColecAccion_->setVisible(doc);
  for (const char* nombre : {"mnu_File_Save", "mnu_File_SaveAs", "mnu_File_ExportPdf", "mnu_File_MuliColPer"})
    findChild<QAction*>(QLatin1String(nombre))->setEnabled(doc);
  findChild<QAction*>(QStringLiteral("mnu_File_Print"))->setEnabled(doc && hayImpresora_);
  findChild<QAction*>(QStringLiteral("mnu_File_Print_folder"))->setEnabled(hayImpresora_);
  imgLPage_->setEnabled(libre && doc && n_->doc.paginaActual > 1);
  imgRPage_->setEnabled(libre && doc && n_->doc.paginaActual < n_->doc.numPaginas);
}

void FormMain::ActualizaMenusCheckeados() {
  const int possol = n_->doc.col.cab.POSSOL;
  for (int k = 0; k < 4; ++k) solucion_[k]->setChecked(possol == k);
  findChild<QAction*>(QStringLiteral("mnu_setup_WIN_INI"))->setChecked(mostrarIniPanel_);
  findChild<QAction*>(QStringLiteral("mnu_setup_BotEdic"))->setChecked(botonesEdicion_);
  const QList<QAction*> sistemas = grupoSistemas_->actions();
  for (qsizetype i = 0; i < sistemas.size(); ++i)
    sistemas[i]->setChecked(n_->sistemas[static_cast<std::size_t>(i)].fichero.compare(
                                n_->ajustes.sysedu, Qt::CaseInsensitive) == 0);
}

void FormMain::ActualizaRecientes() {
  bool alguno = false;
  for (int i = 0; i < 9; ++i) {
    const QString& archivo = n_->recientes.archivo[i];
    QString titulo = n_->recientes.titulo[i];
    titulo.replace(u'&', QStringLiteral("&&"));
    reciente_[i]->setText(QStringLiteral("&%1  %2").arg(i + 1).arg(titulo));
    reciente_[i]->setToolTip(archivo);
    reciente_[i]->setStatusTip(archivo);
    reciente_[i]->setVisible(!archivo.isEmpty());
    alguno = alguno || !archivo.isEmpty();
  }
  zep04_->setVisible(alguno);
}

void FormMain::PintarPagina() {
  Documento& doc = n_->doc;
  if (!HayProblemas()) {
    lbPage_->clear();
    vista_->Limpia();
    doc.marcas.clear();
    return;
  }
  {
    TrabajoOcupado ocupado(n_->s);
    lbPage_->setText(QStringLiteral("%1 %2/%3").arg(T("Pag")).arg(doc.paginaActual).arg(doc.numPaginas));
    vista_->PintarPagina(doc, n_->motor, doc.paginaActual);
  }
  // New marks: nothing is selected any more.
  ActualizarBotones();
}

// After every command: the page, the buttons, the marks of the menus.
void FormMain::Refresca() {
  if (HayProblemas())
    HayColeccion();
  else
    SinDocumento();
  ActualizaMenusCheckeados();
  PintarPagina();
  ActualizarBotones();
}

// ---- what the core asks of the window -----------------------------------------

void FormMain::Aviso(const std::string& texto) {
  CierraSplash();
  dialogos_.Aviso(this, DeTexto(texto));
}

void FormMain::Critico(const std::string& texto) {
  CierraSplash();
  dialogos_.Critico(this, DeTexto(texto));
}

Respuesta FormMain::Pregunta(const std::string& texto) {
  CierraSplash();
  return dialogos_.Pregunta(this, DeTexto(texto));
}

bool FormMain::Confirma(const std::string& texto) {
  CierraSplash();
  return dialogos_.Confirma(this, DeTexto(texto));
}

void FormMain::AbreEnOtroProceso(const QString& ruta) { dialogos_.LanzaPrograma(ruta); }

void FormMain::DejaCorrer() { QCoreApplication::processEvents(); }

void FormMain::CursorEspera(bool espera) {
  if (espera == cursorEspera_) return;
  cursorEspera_ = espera;
  if (espera)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void FormMain::Ocupado(bool) { AplicaHabilitados(); }

void FormMain::Progreso(const std::string& texto) { lbPage_->setText(DeTexto(texto)); }

void FormMain::TituloVentana(const QString& titulo) { setWindowTitle(titulo + QStringLiteral("[*]")); }

void FormMain::EstadoDocumento(bool abierto) {
  if (abierto)
    HayColeccion();
  else
    SinDocumento();
}

void FormMain::Reciente(const QString& ruta) {
  AgregaReciente(n_->recientes, ruta);
  ActualizaRecientes();
}

bool FormMain::GuardarComo() { return mnu_File_SaveAs(); }

// ---- start-up ------------------------------------------------------------------

void FormMain::showEvent(QShowEvent* e) {
  QMainWindow::showEvent(e);
  if (activado_) return;
  activado_ = true;
  // What follows the first showing runs once the window stands.
  QTimer::singleShot(0, this, &FormMain::PrimeraActivacion);
}

void FormMain::PrimeraActivacion() {
  if (ajusteAncho_) AjustaAncho();
  if (splash_) splash_->raise();
  if (!ficherosAbrir_.isEmpty()) {
    OpenDRAGDROPFiles_Command(n_->s, ficherosAbrir_, [this] { mnu_File_Save(); });
    Refresca();
  }
  if (lineaDeComandosVacia_ && !iniPanelCerrado_) timer6_->start();
}

void FormMain::CierraSplash() {
  if (splash_) splash_->close();
}

void FormMain::Timer6_Timer() {
  timer6_->stop();
  if (!lineaDeComandosVacia_ || iniPanelCerrado_) return;
  CierraSplash();
  FormIniOpt panel(n_->textosPanel, n_->datos, true, this);
  const RespuestaPanel r = dialogos_.PanelInicio(panel);
  iniPanelCerrado_ = true;
  mostrarIniPanel_ = r.mostrar;
  almacen_.Escribe(QStringLiteral("INI_WIN"), QStringLiteral("SHOW"), r.mostrar ? QStringLiteral("1") : QStringLiteral("0"));
  ActualizaMenusCheckeados();
  Ejecuta(r.comando);
}

void FormMain::Ejecuta(const QString& comandoInicio) {
  const OrdenInicio orden = LeeComandoInicio(comandoInicio);
  switch (orden.tipo) {
    case TipoInicio::Abrir:
      if (QFileInfo::exists(orden.ruta)) Cargar(orden.ruta);
      break;
    case TipoInicio::Preguntar:
      mnu_File_Open();
      break;
    case TipoInicio::Asistente:
      findChild<QAction*>(QStringLiteral("mnu_File_New"))->trigger();
      break;
    case TipoInicio::Ninguno:
      break;
  }
}

// ---- closing ----------------------------------------------------------------------

void FormMain::closeEvent(QCloseEvent* e) {
  switch (PideCierre(n_->s, [this] { mnu_File_Save(); })) {
    case Cierre::Rechazar:
      e->ignore();
      return;
    case Cierre::Abandonar:
      dialogos_.TerminaYa();
      e->ignore();
      return;
    case Cierre::Cerrar:
      break;
  }
  almacen_.Escribe(QStringLiteral("Ver"), QStringLiteral("EdicBotones"),
                   botonesEdicion_ ? QStringLiteral("S") : QStringLiteral("N"));
  n_->recientes.Guarda(almacen_);
  almacen_.Escribe(QStringLiteral("LastPath"), QStringLiteral("Path"), carpetaInicial_);
  almacen_.Escribe(QStringLiteral("SYSEDU"), QStringLiteral("cmbtext"), n_->ajustes.sysedu);
  CierraSplash();
  if (acerca_) acerca_->close();
  e->accept();
}

// ---- files dropped on the window ------------------------------------------------

namespace {

QStringList FicherosLocales(const QMimeData* datos) {
  QStringList rutas;
  if (!datos) return rutas;
  for (const QUrl& url : datos->urls())
    if (url.isLocalFile()) rutas << url.toLocalFile();
  return rutas;
}

}  // namespace

void FormMain::dragEnterEvent(QDragEnterEvent* e) {
  if (!Ocupada() && AceptaArrastre(FicherosLocales(e->mimeData())))
    e->acceptProposedAction();
  else
    e->ignore();
}

void FormMain::dropEvent(QDropEvent* e) {
  if (Ocupada()) {
    e->ignore();
    return;
  }
  e->acceptProposedAction();
  ficherosAbrir_ = FicherosSoltados(FicherosLocales(e->mimeData()));
  if (ficherosAbrir_.isEmpty()) return;
  OpenDRAGDROPFiles_Command(n_->s, ficherosAbrir_, [this] { mnu_File_Save(); });
  Refresca();
}

// ---- commands ----------------------------------------------------------------------

void FormMain::Cargar(const QString& ruta) {
  n_->doc.ruta = ruta;
  vista_->Espera(true, T("Lbl_Wait"));
  CargarColeccion(n_->s);
  vista_->Espera(false);
  Refresca();
}

// A new worksheet through the wizard. The old one can be had back with Undo.
void FormMain::mnu_File_New() {
  if (Ocupada()) return;
  iniPanelCerrado_ = true;
  timer6_->stop();
  CierraSplash();
  if (!PreguntaGuardar(n_->s, [this] { mnu_File_Save(); })) return;
  n_->gen.rnd.Resembrar();
  SetUNDO(n_->s, "File_new");
  n_->ajustes.mostrarPanelInicio = mostrarIniPanel_;
  n_->ajustes.botonesEdicion = botonesEdicion_;
  FrmWizard wizard({n_->textosWiz, almacen_, n_->ajustes, n_->temario, dialogos_, n_->sistemas, n_->datos,
                    [this](const QString& fichero) { return CambiaSistema(fichero); }},
                   this);
  dialogos_.Modal(wizard);
  ActualizaMenusCheckeados();
  if (!wizard.Exito() || wizard.Cabecera().NPROB == 0) {
    SetUNDOTexto(n_->s, {});
    ActualizarBotones();
    return;
  }
  Documento& doc = n_->doc;
  doc.col.cab = wizard.Cabecera();
  Arbol_to_Var(wizard.ArbolHecho(), doc.col, n_->gen.rnd);
  vista_->Espera(true, T("Lbl_Wait"));
  CrearColeccion(n_->s, 1);
  vista_->Espera(false);
  Refresca();
}

// The settings of the program. The notation acts on the open worksheet at
// once, when it is drawn again; nothing in the worksheet itself changes.
void FormMain::mnu_setup_App() {
  if (Ocupada()) return;
  n_->ajustes.mostrarPanelInicio = mostrarIniPanel_;
  n_->ajustes.botonesEdicion = botonesEdicion_;
  const QString sistema = n_->ajustes.sysedu;
  FrmSetup setup({n_->textosWiz, almacen_, n_->ajustes, dialogos_, n_->sistemas, n_->datos, true, {}}, this);
  dialogos_.Modal(setup);
  if (!setup.Ok()) return;
  if (n_->ajustes.sysedu.compare(sistema, Qt::CaseInsensitive) != 0 && !CambiaSistema(n_->ajustes.sysedu)) return;
  mostrarIniPanel_ = n_->ajustes.mostrarPanelInicio;
  botonesEdicion_ = n_->ajustes.botonesEdicion;
  n_->motor.reemplazos = ReemplazosDe(n_->ajustes, &n_->mensajes);
  if (HayProblemas()) {
    const bool modificada = n_->doc.Modificada;
    ArmarBloques(n_->s, 0);
    n_->doc.Modificada = modificada;
  }
  Refresca();
}

// The properties of the open worksheet, with an undo step.
void FormMain::mnu_COLEC_Prop() {
  if (Ocupada() || !HayProblemas()) return;
  SetUNDO(n_->s, "ChangeWorkSheetProp");
  FrmSetup setup({n_->textosWiz, almacen_, n_->ajustes, dialogos_, n_->sistemas, n_->datos, false, n_->doc.col.cab},
                 this);
  dialogos_.Modal(setup);
  if (!setup.Ok()) {
    SetUNDOTexto(n_->s, {});
    ActualizarBotones();
    return;
  }
  const int32_t nprob = n_->doc.col.cab.NPROB;
  n_->doc.col.cab = setup.Cabecera();
  n_->doc.col.cab.NPROB = nprob;
  n_->motor.reemplazos = ReemplazosDe(n_->ajustes, &n_->mensajes);
  ArmarBloques(n_->s, 0);
  Refresca();
}

void FormMain::mnu_File_Open() {
  if (Ocupada()) return;
  if (!PreguntaGuardar(n_->s, [this] { mnu_File_Save(); })) return;
  CierraSplash();
  const QString filtro = QStringLiteral("%1  (*.col *.COL);;%2  (*)").arg(T("FileTypeWork"), T("AllFiles"));
  const QString ruta = dialogos_.FicheroAbrir(this, T("File_Open").remove(u'&'), carpetaInicial_, filtro);
  if (ruta.isEmpty()) return;
  carpetaInicial_ = QFileInfo(ruta).absolutePath();
  Cargar(ruta);
}

void FormMain::mnu_File_Save() {
  if (Ocupada() || !HayProblemas()) return;
  if (n_->doc.ruta.isEmpty()) {
    mnu_File_SaveAs();
    return;
  }
  CursorEspera(true);
  GuardarColeccion(n_->s);
  CursorEspera(false);
  ActualizarBotones();
}

bool FormMain::mnu_File_SaveAs() {
  if (Ocupada() || !HayProblemas()) return false;
  Documento& doc = n_->doc;
  QString propuesta = PropuestaNombre(doc, carpetaInicial_);
  if (propuesta.isEmpty()) propuesta = carpetaInicial_;
  const QString filtro = QStringLiteral("%1  (*.col *.COL);;%2  (*)").arg(T("FileTypeWork"), T("AllFiles"));
  CierraSplash();
  QString ruta = dialogos_.FicheroGuardar(this, T("File_Save").remove(u'&'), propuesta, filtro);
  if (ruta.isEmpty()) return false;
  ruta = ConExtensionCol(ruta);
  carpetaInicial_ = QFileInfo(ruta).absolutePath();
  // A save that fails leaves the worksheet under its old name.
  const QString anterior = doc.ruta;
  doc.ruta = ruta;
  if (!GuardarColeccion(n_->s)) {
    if (doc.ruta == ruta) doc.ruta = anterior;
    ActualizarBotones();
    return false;
  }
  TituloVentana(TituloApp() + QStringLiteral("  -  ") + QFileInfo(doc.ruta).fileName());
  Reciente(doc.ruta);
  ActualizarBotones();
  return true;
}

void FormMain::mnu_File_Reciente(int i) {
  if (Ocupada()) return;
  if (!PreguntaGuardar(n_->s, [this] { mnu_File_Save(); })) return;
  const QString ruta = n_->recientes.archivo[i - 1];
  if (QFileInfo(ruta).isFile()) {
    Cargar(ruta);
    return;
  }
  Aviso(ATexto(ruta) + "\n" + n_->textos.GetL_win("FileNotFound"));
}

void FormMain::mnu_COLEC_RECREAR() {
  if (Ocupada() || !HayProblemas()) return;
  vista_->Espera(true, T("Lbl_Wait"));
  RecrearTodo(n_->s);
  vista_->Espera(false);
  Refresca();
}

void FormMain::PosicionSoluciones(int possol) {
  Comando([this, possol] { return PonPosicionSoluciones(n_->s, possol); });
  ActualizaMenusCheckeados();
}

// ---- editing on the page -----------------------------------------------------------

// A command of the Edit or Worksheet menu: nothing while a job runs; the
// window brought up to date after it.
void FormMain::Comando(const std::function<bool()>& hacer, bool mantenScroll) {
  if (Ocupada()) return;
  QScrollBar* barra = vista_->verticalScrollBar();
  const int posicion = barra->value();
  if (!hacer()) {
    // Nothing changed on the page; the menus may have (an undo step, Paste).
    ActualizarBotones();
    return;
  }
  Refresca();
  if (mantenScroll) barra->setValue(posicion);
}

void FormMain::mnu_Edicion_Copy() {
  if (Ocupada()) return;
  if (const auto texto = Copiar(n_->s)) {
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setText(DeTexto(*texto));
    pegable_ = true;
    ActualizarBotones();
  }
}

void FormMain::mnu_Edicion_Cut() {
  if (Ocupada() || ProblemaSeleccionado(n_->doc) == 0) return;
  mnu_Edicion_Copy();
  Comando([this] { return Borrar(n_->s); });
}

void FormMain::mnu_Edicion_Paste() {
  if (Ocupada()) return;
  const std::string texto = TextoDelPortapapeles();
  // With a selection the page stays where it was.
  const bool seleccion = Seleccionadas(n_->doc) > 0;
  Comando(
      [&] {
        const Pegado r = Pegar(n_->s, texto);
        if (r == Pegado::NoEsProblema) pegable_ = false;
        return r == Pegado::Hecho;
      },
      seleccion);
}

void FormMain::mnu_Edicion_REGEN1() {
  Comando([this] { return RecrearEste(n_->s); }, true);
}

// The clipboard's text in the worksheet's character set; a text with a
// character that has no form there carries no problem, and reads as empty.
std::string FormMain::TextoDelPortapapeles() const {
  bool exacto = true;
  std::string texto = Utf8ToCp1252(QGuiApplication::clipboard()->text().toUtf8().toStdString(), &exacto);
  return exacto ? texto : std::string();
}

// Paste is offered while the clipboard holds a whole problem.
void FormMain::RevisaPortapapeles() {
  const bool pegable = LeePortapapeles(TextoDelPortapapeles()).has_value();
  if (pegable == pegable_) return;
  pegable_ = pegable;
  ActualizarBotones();
}

void FormMain::changeEvent(QEvent* e) {
  QMainWindow::changeEvent(e);
  if (e->type() == QEvent::ActivationChange && isActiveWindow()) RevisaPortapapeles();
}

void FormMain::AlPulsar(Qt::MouseButton boton, double x, double y, QPoint global) {
  Documento& doc = n_->doc;
  if (Ocupada() || doc.marcas.empty() || doc.col.problemas.empty()) return;
  if (boton == Qt::RightButton) {
    ActualizarBotones();
    cmnuEdicion_->popup(global);
    return;
  }
  if (ClicEnPagina(doc, x, y)) {
    vista_->MuestraSeleccion();
    ActualizarBotones();
  }
}

// The Re-create button: the selected problem, or the whole worksheet when
// none is selected.
void FormMain::Regenerar() {
  if (ProblemaSeleccionado(n_->doc) != 0)
    mnu_Edicion_REGEN1();
  else
    mnu_COLEC_RECREAR();
}

void FormMain::Zoom(double zoom) {
  if (Ocupada()) {
    ActualizaMenusCheckeados();
    return;
  }
  ajusteAncho_ = false;
  vista_->PonZoom(zoom);
  PintarPagina();
}

void FormMain::mnu_setup_zoomANCHO() {
  if (Ocupada()) return;
  ajusteAncho_ = true;
  zoom_[5]->setChecked(true);
  vista_->PonZoom(ZoomAjustado(vista_->AnchoUtil()));
  PintarPagina();
}

// Fit to width follows the view's width.
void FormMain::AjustaAncho() {
  if (!ajusteAncho_ || Ocupada()) return;
  const double z = ZoomAjustado(vista_->AnchoUtil());
  if (std::abs(z - vista_->Zoom()) < 1e-9) return;
  vista_->PonZoom(z);
  PintarPagina();
}

void FormMain::mnu_setup_BotEdic() {
  botonesEdicion_ = !botonesEdicion_;
  ActualizaMenusCheckeados();
  ActualizarBotones();
}

void FormMain::mnu_setup_WIN_INI() {
  mostrarIniPanel_ = !mostrarIniPanel_;
  almacen_.Escribe(QStringLiteral("INI_WIN"), QStringLiteral("SHOW"),
                   mostrarIniPanel_ ? QStringLiteral("1") : QStringLiteral("0"));
  ActualizaMenusCheckeados();
}

void FormMain::mnu_setup_SYSEDU_IDX(int i) {
  if (i < 0 || i >= static_cast<int>(n_->sistemas.size())) return;
  CambiaSistema(n_->sistemas[static_cast<std::size_t>(i)].fichero);
  ActualizaMenusCheckeados();
}

bool FormMain::CambiaSistema(const QString& fichero) {
  try {
    n_->temario.Carga(fichero);
  } catch (const ErrorFatalDatos& e) {
    // A subject file the program cannot read is a fault of its data: the
    // program names the file and the line, and ends.
    Critico(ATexto(QString::fromStdString(e.fichero().string())) + "\n" + e.what());
    dialogos_.TerminaYa();
    return false;
  }
  EligeSistema(n_->ajustes, almacen_, fichero);
  n_->gen.silabo = n_->temario.Silabo();
  return true;
}

// ---- printing, PDF and student groups -------------------------------------------

void FormMain::CompruebaImpresoras() {
  hayImpresora_ = !Impresoras().isEmpty();
  const QString nombre = n_->impresora && n_->impresora->outputFormat() == QPrinter::NativeFormat
                             ? n_->impresora->printerName()
                             : ImpresoraPorDefecto();
  boton_[9]->setToolTip(hayImpresora_ ? T("File_Print").remove(u'&') + QStringLiteral(" (") + nombre + u')'
                                      : T("File_Print").remove(u'&'));
  activo_[9] = hayImpresora_ && HayProblemas();
  ActualizarBotones();
}

QPrinter& FormMain::Impresora() {
  if (!n_->impresora) {
    n_->impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    PonPapelA4(*n_->impresora);
    if (const QString defecto = ImpresoraPorDefecto(); !defecto.isEmpty()) n_->impresora->setPrinterName(defecto);
  }
  return *n_->impresora;
}

// Points the printer at the queue chosen in the print window, or at a PDF
// file (empty `impresora`), whose name is asked now; false when that is cancelled.
bool FormMain::EligeSalida(const QString& impresora, const QString& propuesta) {
  QPrinter& p = Impresora();
  if (impresora.isEmpty()) {
    const QString ruta = dialogos_.FicheroGuardar(this, T("File_ExportPDF").remove(u'&'), propuesta,
                                                  DeTexto(n_->textosPri.GetL_win("PdfFiles")) + QStringLiteral(" (*.pdf)"));
    if (ruta.isEmpty()) return false;
    p.setOutputFormat(QPrinter::PdfFormat);
    p.setOutputFileName(ruta);
    return true;
  }
  p.setOutputFormat(QPrinter::NativeFormat);
  p.setOutputFileName(QString());
  p.setPrinterName(impresora);
  return true;
}

namespace {

QString NombrePdf(const Documento& doc, const QString& carpeta) {
  const QString base = doc.ruta.isEmpty() ? QStringLiteral("worksheet") : QFileInfo(doc.ruta).completeBaseName();
  return QDir(doc.ruta.isEmpty() ? carpeta : QFileInfo(doc.ruta).absolutePath()).filePath(base + QStringLiteral(".pdf"));
}

QString Sustituye(QString texto, std::initializer_list<std::pair<const char*, QString>> cambios) {
  for (const auto& [clave, valor] : cambios) texto.replace(QLatin1String(clave), valor);
  return texto;
}

}  // namespace

void FormMain::mnu_File_Print() {
  CompruebaImpresoras();
  if (!HayProblemas() || Ocupada() || !hayImpresora_) return;
  Documento& doc = n_->doc;
  FrmImprimir dialogo({n_->textosPri, dialogos_, Impresora(), n_->datos, doc.numPaginas, doc.paginaActual, {}, true,
                       [this] { mnu_Help_Manual(); }},
                      this);
  dialogos_.Modal(dialogo);
  if (dialogo.ImprimirCancelado() || !EligeSalida(dialogo.Impresora(), NombrePdf(doc, carpetaInicial_))) return;
  ImprimeAbierta(OrdenDeImpresion(dialogo.Eleccion(), doc.numPaginas));
}

// Prints sheets of the open worksheet, each shown on screen at zoom 1 as it
// goes; the zoom and the page on screen come back afterwards, also when the
// run was stopped or failed.
void FormMain::ImprimeAbierta(const std::vector<int>& orden) {
  Documento& doc = n_->doc;
  const double zoom = vista_->Zoom();
  const int pagina = doc.paginaActual;
  FinImpresion fin;
  {
    TrabajoOcupado ocupado(n_->s);
    const std::unique_ptr<Avance> avance =
        dialogos_.EmpiezaAvance(this, T("File_Print").remove(u'&'), static_cast<int>(orden.size()));
    const QString paso = DeTexto(n_->textosPri.GetL_win("PrintingPage"));
    vista_->PonZoom(1);
    const QString nombre = doc.ruta.isEmpty() ? windowTitle() : QFileInfo(doc.ruta).fileName();
    fin = ImprimeDocumento(Impresora(), nombre, n_->motor, doc, orden, [&](int k) {
      doc.paginaActual = orden[static_cast<std::size_t>(k)];
      PintarPagina();
      const QString texto = Sustituye(paso, {{"%PAGES%", QString::number(orden.size())},
                                            {"%PAGE%", QString::number(k + 1)}});
      return !avance || avance->Paso(k, texto);
    });
    vista_->PonZoom(zoom);
    doc.paginaActual = pagina;
  }
  PintarPagina();
  if (fin == FinImpresion::Fallida) dialogos_.Aviso(this, DeTexto(n_->textosPri.GetL_win("PrintFailed")));
}

// Prints worksheet files one after another, each read into a document of its
// own: the open worksheet is never touched. A file that cannot be read is
// told, and the next one prints.
void FormMain::ImprimeFicheros(const QStringList& ficheros, const EleccionImpresion& eleccion) {
  TrabajoOcupado ocupado(n_->s);
  const std::unique_ptr<Avance> avance =
      dialogos_.EmpiezaAvance(this, T("File_Print_Fold").remove(u'&'), static_cast<int>(ficheros.size()));
  const QString paso = DeTexto(n_->textosPri.GetL_win("PrintingFile"));
  PlataformaMuda plataforma;  // a file that does not load is told below, by its name
  for (qsizetype i = 0; i < ficheros.size(); ++i) {
    const QString nombre = QFileInfo(ficheros[i]).fileName();
    if (avance && !avance->Paso(static_cast<int>(i), Sustituye(paso, {{"%FILE%", nombre}}))) break;
    Documento hoja;
    Sesion s{hoja, plataforma, n_->gen, n_->motor, n_->oculta, n_->textos, n_->s.carpetas};
    hoja.ruta = ficheros[i];
    if (!CargarColeccion(s) || hoja.col.problemas.empty()) {
      dialogos_.Critico(this, QDir::toNativeSeparators(ficheros[i]) + u'\n' + T("InvalidFile"));
      continue;
    }
    const FinImpresion fin =
        ImprimeDocumento(Impresora(), nombre, n_->motor, hoja, OrdenDeImpresion(eleccion, hoja.numPaginas), [this](int) {
          QCoreApplication::processEvents();
          return true;
        });
    if (fin == FinImpresion::Fallida) {
      dialogos_.Aviso(this, DeTexto(n_->textosPri.GetL_win("PrintFailed")));
      break;
    }
  }
}

void FormMain::mnu_File_Print_folder() {
  CompruebaImpresoras();
  if (Ocupada() || !hayImpresora_) return;
  const QString carpeta = dialogos_.Carpeta(this, DeTexto(n_->textosSef.GetL_win("Open_WKS_folder")),
                                            carpetaInicial_.isEmpty() ? QDir::homePath() : carpetaInicial_);
  if (carpeta.isEmpty()) return;
  ImprimeCarpeta(carpeta);
}

void FormMain::ImprimeCarpeta(const QString& carpeta) {
  FrmImprimir dialogo({n_->textosPri, dialogos_, Impresora(), n_->datos, 0, 1, carpeta, false,
                       [this] { mnu_Help_Manual(); }},
                      this);
  dialogos_.Modal(dialogo);
  if (dialogo.ImprimirCancelado() || !EligeSalida(dialogo.Impresora(), {})) return;
  ImprimeFicheros(dialogo.FicherosElegidos(), dialogo.Eleccion());
  PintarPagina();
}

void FormMain::mnu_File_ExportPdf() {
  if (!HayProblemas() || Ocupada()) return;
  Documento& doc = n_->doc;
  const QString ruta = dialogos_.FicheroGuardar(this, T("File_ExportPDF").remove(u'&'), NombrePdf(doc, carpetaInicial_),
                                                DeTexto(n_->textosPri.GetL_win("PdfFiles")) + QStringLiteral(" (*.pdf)"));
  if (ruta.isEmpty()) return;
  QString fallo;
  bool hecho;
  {
    TrabajoOcupado ocupado(n_->s);
    hecho = EscribePdf(ruta, doc.numPaginas,
                       [&](int pagina, Canvas& canvas) { PintaPaginaHoja(n_->motor, canvas, doc, pagina); }, &fallo);
  }
  ActualizarBotones();
  if (!hecho) dialogos_.Critico(this, fallo);
}

void FormMain::mnu_File_MuliColPer() {
  if (!HayProblemas() || Ocupada()) return;
  Documento& doc = n_->doc;
  if (doc.col.cab.POSSOL != 3) {
    const Respuesta r = dialogos_.Pregunta(this, T("WarnSolucApart"));
    if (r == Respuesta::Cancelar) return;
    if (r == Respuesta::Si) PosicionSoluciones(3);
  }
  if (!PreguntaGuardar(n_->s, [this] { mnu_File_Save(); })) return;
  if (doc.ruta.isEmpty()) return;
  FormMultiColPer dialogo({n_->textosPri, n_->textosSef, dialogos_, almacen_, doc.col, n_->datos, carpetaInicial_},
                          this);
  dialogos_.Modal(dialogo);
  if (!dialogo.Resultado()) return;
  const QString destino = dialogo.Destino();
  if (QFileInfo::exists(destino)) return dialogos_.Aviso(this, destino + u'\n' + T("TargetFolderAlreadyExits"));
  if (!QDir().mkpath(destino)) return dialogos_.Aviso(this, destino + u'\n' + T("CannotCreateTargetFolder"));

  GrupoHecho hecho;
  {
    TrabajoOcupado ocupado(n_->s);
    const std::vector<QString>& alumnos = dialogo.Alumnos();
    const std::unique_ptr<Avance> avance = dialogos_.EmpiezaAvance(
        this, DeTexto(n_->textosPri.GetL_win("StudentWorksheets")), static_cast<int>(alumnos.size()));
    const QString paso = DeTexto(n_->textosPri.GetL_win("MakingStudent"));
    hecho = HazGrupo(n_->s, {alumnos, dialogo.Distintos(), destino}, [&](int i) {
      return !avance || avance->Paso(i, Sustituye(paso, {{"%STUDENT%", alumnos[static_cast<std::size_t>(i)]}}));
    });
  }
  PintarPagina();
  // The copies can be printed at once, as a folder.
  CompruebaImpresoras();
  if (hayImpresora_ && !hecho.ficheros.isEmpty()) ImprimeCarpeta(destino);
}

void FormMain::mnu_Help_Manual() {
  const QString ruta = n_->datos + QStringLiteral("/Manual_") +
                       QString::fromStdString(n_->notacion.idioma) + QStringLiteral(".pdf");
  if (QFileInfo(ruta).isFile() && dialogos_.AbreConEscritorio(QUrl::fromLocalFile(ruta))) return;
  Aviso(n_->textos.GetL_win("FileNotFoundOpen") + "\n" + ATexto(ruta));
}

void FormMain::mnu_Help_About() {
  if (acerca_) {
    acerca_->raise();
    acerca_->activateWindow();
    return;
  }
  acerca_ = new FormAcerca(FormAcerca::Modo::Acerca, n_->textos, n_->datos, kMsAcerca, this);
  acerca_->move(geometry().center() - acerca_->rect().center());
  acerca_->show();
}

// ---- pages ----------------------------------------------------------------------------

void FormMain::ImgLPage_Click() {
  if (Ocupada() || !HayProblemas() || n_->doc.paginaActual <= 1) return;
  --n_->doc.paginaActual;
  CambiaPagina();
}

void FormMain::ImgRPage_Click() {
  if (Ocupada() || !HayProblemas() || n_->doc.paginaActual >= n_->doc.numPaginas) return;
  ++n_->doc.paginaActual;
  CambiaPagina();
}

void FormMain::CambiaPagina() {
  QScrollBar* barra = vista_->verticalScrollBar();
  barra->setValue(barra->minimum());
  PintarPagina();
  ActualizarBotones();
  vista_->setFocus();
}

void FormMain::Tecla(int tecla) {
  if (Ocupada() || !HayProblemas()) return;
  Documento& doc = n_->doc;
  auto paso = [](QScrollBar* barra, int signo) {
    if (barra->isVisible())
      barra->setValue(std::clamp(barra->value() + signo * barra->singleStep(), barra->minimum(), barra->maximum()));
  };
  switch (tecla) {
    case Qt::Key_PageUp:
      ImgLPage_Click();
      break;
    case Qt::Key_PageDown:
      ImgRPage_Click();
      break;
    case Qt::Key_Home:
      doc.paginaActual = 2;
      ImgLPage_Click();
      break;
    case Qt::Key_End:
      doc.paginaActual = doc.numPaginas - 1;
      ImgRPage_Click();
      break;
    case Qt::Key_Up:
      paso(vista_->verticalScrollBar(), -1);
      break;
    case Qt::Key_Down:
      paso(vista_->verticalScrollBar(), 1);
      break;
    case Qt::Key_Left:
      paso(vista_->horizontalScrollBar(), -1);
      break;
    case Qt::Key_Right:
      paso(vista_->horizontalScrollBar(), 1);
      break;
    default:
      break;
  }
}

}  // namespace ss
