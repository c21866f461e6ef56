#include "gui/frmwizard.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "gui/dialogos.h"
#include "gui/marcos.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "worksheet/temario.h"

namespace ss {
namespace {

constexpr int kImagenesAsignatura = 33;
constexpr int kRolFila = Qt::UserRole + 1;


QLabel* Titular(const QString& texto, QWidget* parent) {
  auto* l = new QLabel(texto, parent);
  QFont f = l->font();
  f.setBold(true);
  l->setFont(f);
  return l;
}

QLabel* Parrafo(const QString& texto, QWidget* parent) {
  auto* l = new QLabel(texto, parent);
  l->setWordWrap(true);
  return l;
}

}  // namespace

FrmWizard::FrmWizard(EntornoAsistente entorno, QWidget* parent) : QDialog(parent), e_(std::move(entorno)) {
  setObjectName(QStringLiteral("FrmWizard"));
  setModal(true);
  setWindowTitle(TextoW(e_.textos, "Wizard"));

  // The wizard's own header, from the stored defaults.
  cab_ = CabeceraNueva(e_.ajustes);
  paginas_ = PaginasAsistente::Para(e_.ajustes.showini, e_.ajustes.showavan);

  encabezado_ = new QLabel(this);
  encabezado_->setObjectName(QStringLiteral("Encabezado"));
  QFont grande = encabezado_->font();
  grande.setPointSizeF(grande.pointSizeF() * 1.4);
  grande.setBold(true);
  encabezado_->setFont(grande);
  marcos_ = new QStackedWidget(this);
  CreaPaginas();

  atras_ = new QPushButton(TextoW(e_.textos, "But_Back", true), this);
  atras_->setObjectName(QStringLiteral("CmdBack"));
  siguiente_ = new QPushButton(this);
  siguiente_->setObjectName(QStringLiteral("CmdNext"));
  siguiente_->setDefault(true);
  cancelar_ = new QPushButton(TextoW(e_.textos, "But_Cancel", true), this);
  cancelar_->setObjectName(QStringLiteral("CmdCancel"));
  connect(atras_, &QPushButton::clicked, this, &FrmWizard::CmdBack);
  connect(siguiente_, &QPushButton::clicked, this, &FrmWizard::CmdNext);
  connect(cancelar_, &QPushButton::clicked, this, &FrmWizard::reject);

  auto* botones = new QHBoxLayout;
  botones->addStretch(1);
  botones->addWidget(atras_);
  botones->addWidget(siguiente_);
  botones->addSpacing(12);
  botones->addWidget(cancelar_);
  auto* linea = new QFrame(this);
  linea->setFrameShape(QFrame::HLine);
  linea->setFrameShadow(QFrame::Sunken);
  auto* v = new QVBoxLayout(this);
  v->addWidget(encabezado_);
  v->addWidget(marcos_, 1);
  v->addWidget(linea);
  v->addLayout(botones);

  MuestraPagina(paginas_.Primera());
  resize(760, 540);
}

FrmWizard::~FrmWizard() = default;

void FrmWizard::CreaPaginas() {
  marcos_->addWidget(PaginaBienvenida());
  marcos_->addWidget(PaginaAsignatura());
  marcos_->addWidget(PaginaTipos());
  marcos_->addWidget(PaginaTemas());
  marcos_->addWidget(PaginaNumeracion());
  marcos_->addWidget(PaginaOrden());
  marcos_->addWidget(PaginaTitulos());
  for (int k = 0; k < kPaginasAsistente; ++k)
    marcos_->widget(k)->setObjectName(QStringLiteral("Frame1_%1").arg(k + 1));
}

// ---- page 1: welcome ---------------------------------------------------------------

QWidget* FrmWizard::PaginaBienvenida() {
  auto* w = new QWidget;
  auto* imagen = new QLabel(w);
  imagen->setObjectName(QStringLiteral("ImageWizzy"));
  imagen->setPixmap(QPixmap(QDir(e_.carpetaDatos).filePath(QStringLiteral("img/wizard_welcome.png"))));
  imagen->setToolTip(TextoW(e_.textos, "WizzyGreeting"));
  check3_ = new QCheckBox(TextoW(e_.textos, "ShowWelcomePanel", true), w);
  check3_->setObjectName(QStringLiteral("Check3"));
  check3_->setChecked(e_.ajustes.showini);
  check2_ = new QCheckBox(TextoW(e_.textos, "ShowAdvancesOptions", true), w);
  check2_->setObjectName(QStringLiteral("Check2"));
  check2_->setChecked(e_.ajustes.showavan);
  connect(check2_, &QCheckBox::clicked, this, [this](bool avanzadas) {
    // The optional pages come and go at once.
    paginas_ = PaginasAsistente::Para(true, avanzadas);
  });
  auto* texto = new QVBoxLayout;
  texto->addWidget(Parrafo(TextoW(e_.textos, "ThisWizardHelps"), w));
  texto->addSpacing(12);
  texto->addWidget(Parrafo(TextoW(e_.textos, "ClickNextOrCancel"), w));
  texto->addStretch(1);
  texto->addWidget(check3_);
  texto->addWidget(check2_);
  auto* h = new QHBoxLayout(w);
  h->addWidget(imagen, 0, Qt::AlignTop);
  h->addSpacing(16);
  h->addLayout(texto, 1);
  return w;
}

// ---- page 2: education system and subject ------------------------------------------

QWidget* FrmWizard::PaginaAsignatura() {
  auto* w = new QWidget;
  cmbSysedu_ = new QComboBox(w);
  cmbSysedu_->setObjectName(QStringLiteral("CmbSYSEDU"));
  etiquetaSysedu_ = new QLabel(TextoW(e_.textos, "EducationSystem", true), w);
  etiquetaSysedu_->setBuddy(cmbSysedu_);
  {
    // Filled quietly: opening the wizard never changes the system.
    const QSignalBlocker b(cmbSysedu_);
    int actual = -1;
    for (std::size_t k = 0; k < e_.sistemas.size(); ++k) {
      cmbSysedu_->addItem(e_.sistemas[k].nombre, e_.sistemas[k].fichero);
      if (e_.sistemas[k].fichero.compare(e_.ajustes.sysedu, Qt::CaseInsensitive) == 0) actual = static_cast<int>(k);
    }
    cmbSysedu_->setCurrentIndex(actual >= 0 ? actual : cmbSysedu_->count() - 1);
  }
  const bool variosSistemas = cmbSysedu_->count() > 1;
  cmbSysedu_->setVisible(variosSistemas);
  etiquetaSysedu_->setVisible(variosSistemas);
  connect(cmbSysedu_, &QComboBox::activated, this, &FrmWizard::CmbSYSEDU_Click);

  lstAsig_ = new QListWidget(w);
  lstAsig_->setObjectName(QStringLiteral("LstAsig"));
  lstAsig_->setMinimumWidth(220);
  lstAsig_->setSelectionMode(QAbstractItemView::SingleSelection);
  // A subject is chosen when it is selected; the focus alone only marks a row.
  connect(lstAsig_, &QListWidget::itemSelectionChanged, this, [this] { EligeAsignatura(FilaElegida()); });
  connect(lstAsig_, &QListWidget::itemDoubleClicked, this, [this] {
    if (siguiente_->isEnabled()) CmdNext();
  });

  imagenes_ = new QWidget;
  auto* rejilla = new QGridLayout(imagenes_);
  rejilla->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* scroll = new QScrollArea(w);
  scroll->setObjectName(QStringLiteral("VScroll3"));
  scroll->setWidget(imagenes_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

  sinAsignatura_ = Parrafo(TextoW(e_.textos, "NoSubjectSelec"), w);
  sinAsignatura_->setObjectName(QStringLiteral("NoSubjectSelec"));

  auto* sistema = new QHBoxLayout;
  sistema->addWidget(etiquetaSysedu_);
  sistema->addWidget(cmbSysedu_, 1);
  auto* cuerpo = new QHBoxLayout;
  cuerpo->addWidget(lstAsig_, 2);
  cuerpo->addWidget(scroll, 3);
  auto* v = new QVBoxLayout(w);
  v->addLayout(sistema);
  v->addLayout(cuerpo, 1);
  v->addWidget(sinAsignatura_);
  Recopilar_Asignaturas();
  return w;
}

void FrmWizard::CmbSYSEDU_Click(int indice) {
  if (indice < 0 || indice >= static_cast<int>(e_.sistemas.size())) return;
  const QString fichero = e_.sistemas[static_cast<std::size_t>(indice)].fichero;
  if (e_.cambiaSistema && !e_.cambiaSistema(fichero)) {
    // The system could not be read: the list goes back to the one in force.
    const QSignalBlocker b(cmbSysedu_);
    for (int k = 0; k < cmbSysedu_->count(); ++k)
      if (cmbSysedu_->itemData(k).toString() == e_.temario.Sysedu()) cmbSysedu_->setCurrentIndex(k);
    return;
  }
  Recopilar_Asignaturas();
}

void FrmWizard::Recopilar_Asignaturas() {
  asignaturas_ = e_.temario.Asignaturas();
  {
    const QSignalBlocker b(lstAsig_);
    lstAsig_->clear();
    for (const std::string& a : asignaturas_) lstAsig_->addItem(DeTexto(a));
    lstAsig_->setCurrentRow(-1);
  }
  for (QToolButton* b : imageAsig_) b->deleteLater();
  imageAsig_.clear();
  auto* rejilla = static_cast<QGridLayout*>(imagenes_->layout());
  const int n = std::min<int>(kImagenesAsignatura, static_cast<int>(asignaturas_.size()));
  for (int k = 0; k < n; ++k) {
    auto* b = new QToolButton(imagenes_);
    b->setObjectName(QStringLiteral("ImageASIG%1").arg(k + 1));
    b->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    b->setIcon(QIcon(e_.temario.Imagen(asignaturas_[static_cast<std::size_t>(k)])));
    b->setIconSize(QSize(96, 96));
    b->setText(DeTexto(asignaturas_[static_cast<std::size_t>(k)]));
    b->setCheckable(true);
    b->setAutoRaise(true);
    b->setFocusPolicy(Qt::NoFocus);
    b->setMinimumWidth(120);
    connect(b, &QToolButton::clicked, this, [this, k] { lstAsig_->setCurrentRow(k); });
    b->installEventFilter(this);
    rejilla->addWidget(b, k / 3, k % 3);
    imageAsig_.push_back(b);
  }
  EligeAsignatura(-1);
}

void FrmWizard::EligeAsignatura(int fila) {
  for (std::size_t k = 0; k < imageAsig_.size(); ++k) imageAsig_[k]->setChecked(static_cast<int>(k) == fila);
  sinAsignatura_->setVisible(fila < 0);
  if (pagina_ == 2) siguiente_->setEnabled(fila >= 0);
}

int FrmWizard::FilaElegida() const {
  const QList<QListWidgetItem*> elegidas = lstAsig_->selectedItems();
  return elegidas.isEmpty() ? -1 : lstAsig_->row(elegidas.front());
}

std::string FrmWizard::AsignaturaElegida() const {
  const int fila = FilaElegida();
  return fila >= 0 && fila < static_cast<int>(asignaturas_.size()) ? asignaturas_[static_cast<std::size_t>(fila)]
                                                                  : std::string();
}

// ---- page 3: kinds -------------------------------------------------------------------

QWidget* FrmWizard::PaginaTipos() {
  auto* w = new QWidget;
  auto* v = new QVBoxLayout(w);
  static const char* kClave[4] = {"Questions", "Exercises", "Problems", "Theory"};
  for (std::size_t k = 0; k < 4; ++k) {
    auto* c = new QCheckBox(k < 3 ? TextoW(e_.textos, kClave[k], true) : QStringLiteral("Theory"), w);
    c->setObjectName(QStringLiteral("ChkTIP%1").arg(k + 1));
    c->setChecked(kTiposPorDefecto[k]);
    c->setVisible(k < 3);  // no generator of this program gives theory
    connect(c, &QCheckBox::clicked, this, [this] {
      siguiente_->setEnabled(std::any_of(chkTip_.begin(), chkTip_.end(), [](QCheckBox* c) { return c->isChecked(); }));
    });
    chkTip_[k] = c;
    v->addWidget(c);
  }
  v->addSpacing(16);
  v->addWidget(Parrafo(TextoW(e_.textos, "WARNING_IF_CHANGE_DOC_TYPE"), w));
  v->addStretch(1);
  return w;
}

TiposItem FrmWizard::Tipos() const {
  TiposItem t{};
  for (std::size_t k = 0; k < 4; ++k) t[k] = chkTip_[k]->isChecked();
  return t;
}

// ---- page 4: topics and amounts ---------------------------------------------------------

QWidget* FrmWizard::PaginaTemas() {
  auto* w = new QWidget;
  tree_ = new QTreeWidget(w);
  tree_->setObjectName(QStringLiteral("Arbol"));
  tree_->setColumnCount(2);
  tree_->setHeaderHidden(true);
  tree_->header()->setStretchLastSection(false);
  tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  tree_->setUniformRowHeights(true);
  tree_->setExpandsOnDoubleClick(true);
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { AlCambiarFila(item); });
  connect(tree_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int) {
    // The check box of an item row: marks it, with its amounts.
    const int i = item->data(0, kRolFila).toInt();
    if (i <= 0 || i > arbol_.Count()) return;
    ArbolItem& f = arbol_.filas[static_cast<std::size_t>(i)];
    const bool marcado = item->checkState(0) == Qt::Checked;
    if (f.Nivel != 2 || marcado == f.Marcado) return;
    f.Marcado = marcado;
    if (marcado) DaCantidades(f);
    PintaFila(item);
    if (tree_->currentItem() != item) tree_->setCurrentItem(item);
    AE_ItemEXProyect();
  });
  connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    const int i = item->data(0, kRolFila).toInt();
    if (i > 0 && i <= arbol_.Count() && arbol_.filas[static_cast<std::size_t>(i)].Nivel == 2)
      item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
  });
  auto abre = [this](QTreeWidgetItem* item, bool abierto) {
    const int i = item->data(0, kRolFila).toInt();
    if (i <= 0 || i > arbol_.Count()) return;
    ArbolItem& f = arbol_.filas[static_cast<std::size_t>(i)];
    f.Abierto = abierto;
    if (f.Tipo == 5)
      item->setIcon(0, QIcon(QDir(e_.carpetaDatos).filePath(abierto ? QStringLiteral("img/topic_open.png")
                                                                     : QStringLiteral("img/topic_closed.png"))));
  };
  connect(tree_, &QTreeWidget::itemExpanded, this, [abre](QTreeWidgetItem* item) { abre(item, true); });
  connect(tree_, &QTreeWidget::itemCollapsed, this, [abre](QTreeWidgetItem* item) { abre(item, false); });

  nombreFila_ = Titular(QString(), w);
  nombreFila_->setWordWrap(true);
  imagenDif_ = new QLabel(w);
  imagenDif_->setObjectName(QStringLiteral("ImgDIF"));
  etiquetaDif_ = new QLabel(w);
  etiquetaDif_->setObjectName(QStringLiteral("LblDIF"));
  descripcion_ = Parrafo(QString(), w);
  descripcion_->setObjectName(QStringLiteral("Descripcion"));
  descripcion_->setAlignment(Qt::AlignTop | Qt::AlignLeft);

  txCan0_ = new QSpinBox(w);
  txCan0_->setObjectName(QStringLiteral("TxCan0"));
  txCan0_->setRange(kRangoCantidad1.lo, kRangoCantidad1.hi);
  txCan1_ = new QSpinBox(w);
  txCan1_->setObjectName(QStringLiteral("TxCan1"));
  etiquetaCan0_ = new QLabel(TextoW(e_.textos, "NumberOfProblems", true), w);
  etiquetaCan0_->setBuddy(txCan0_);
  etiquetaCan1_ = new QLabel(w);
  etiquetaCan1_->setBuddy(txCan1_);
  for (QSpinBox* s : {txCan0_, txCan1_}) {
    s->setCorrectionMode(QAbstractSpinBox::CorrectToPreviousValue);
    s->setAlignment(Qt::AlignRight);
  }
  connect(txCan0_, &QSpinBox::valueChanged, this, [this](int v) { TxCan_Change(0, v); });
  connect(txCan1_, &QSpinBox::valueChanged, this, [this](int v) { TxCan_Change(1, v); });
  txTot_ = new QLabel(w);
  txTot_->setObjectName(QStringLiteral("TxTOT"));
  QFont negrita = txTot_->font();
  negrita.setBold(true);
  txTot_->setFont(negrita);

  auto* dif = new QHBoxLayout;
  dif->addWidget(imagenDif_);
  dif->addWidget(etiquetaDif_, 1);
  auto* cantidades = new QGridLayout;
  cantidades->addWidget(etiquetaCan0_, 0, 0);
  cantidades->addWidget(txCan0_, 0, 1);
  cantidades->addWidget(etiquetaCan1_, 1, 0);
  cantidades->addWidget(txCan1_, 1, 1);
  cantidades->setColumnStretch(0, 1);
  auto* panel = new QVBoxLayout;
  panel->addWidget(nombreFila_);
  panel->addLayout(dif);
  panel->addWidget(descripcion_, 1);
  panel->addLayout(cantidades);
  panel->addSpacing(12);
  panel->addWidget(txTot_, 0, Qt::AlignRight);
  auto* h = new QHBoxLayout(w);
  h->addWidget(tree_, 3);
  h->addLayout(panel, 2);
  return w;
}

void FrmWizard::LoadTOLISTBOX_BUILT_CODE() {
  std::string nombre;
  arbol_ = ArbolDeAsignatura(e_.temario.Catalogo(), AsignaturaElegida(), Tipos(), &nombre);
  filaActual_ = 1;
  LlenaArbol();
}

void FrmWizard::LlenaArbol() {
  const QSignalBlocker b(tree_);
  tree_->clear();
  const QDir img(QDir(e_.carpetaDatos).filePath(QStringLiteral("img")));
  static const char* kIcono[7] = {"", "kind_question.png", "kind_exercise.png", "kind_problem.png",
                                  "kind_theory.png", "topic_closed.png", "subject_root.png"};
  std::vector<QTreeWidgetItem*> padre(3, nullptr);
  for (int i = 1; i <= arbol_.Count(); ++i) {
    const ArbolItem& f = arbol_.filas[static_cast<std::size_t>(i)];
    const int nivel = std::clamp<int>(f.Nivel, 0, 2);
    QTreeWidgetItem* item = nivel == 0 || !padre[static_cast<std::size_t>(nivel - 1)]
                                ? new QTreeWidgetItem(tree_)
                                : new QTreeWidgetItem(padre[static_cast<std::size_t>(nivel - 1)]);
    item->setData(0, kRolFila, i);
    item->setText(0, DeTexto(f.Nombre));
    item->setIcon(0, QIcon(img.filePath(QLatin1String(kIcono[std::clamp<int>(f.Tipo, 0, 6)]))));
    if (f.Nivel == 2) {
      item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
      item->setCheckState(0, f.Marcado ? Qt::Checked : Qt::Unchecked);
      item->setToolTip(0, DeTexto(std::string(Trim(f.ModuloFijo.substr(0, std::min<std::size_t>(13, f.ModuloFijo.size())))) +
                                  "-" + std::to_string(f.Rutina)));
    } else {
      QFont negrita = item->font(0);
      negrita.setBold(true);
      item->setFont(0, negrita);
    }
    PintaFila(item);
    padre[static_cast<std::size_t>(nivel)] = item;
  }
  // Open rows open, now that their children stand.
  QTreeWidgetItemIterator it(tree_);
  while (*it) {
    const int i = (*it)->data(0, kRolFila).toInt();
    (*it)->setExpanded(arbol_.filas[static_cast<std::size_t>(i)].Abierto);
    ++it;
  }
  if (QTreeWidgetItem* raiz = tree_->topLevelItem(0)) tree_->setCurrentItem(raiz);
}

void FrmWizard::PintaFila(QTreeWidgetItem* item) {
  const int i = item->data(0, kRolFila).toInt();
  if (i <= 0 || i > arbol_.Count()) return;
  const ArbolItem& f = arbol_.filas[static_cast<std::size_t>(i)];
  const QSignalBlocker b(tree_);
  item->setText(1, f.Marcado ? QString::number(f.Cantidad1) : QString());
  item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
}

void FrmWizard::AlCambiarFila(QTreeWidgetItem* item) {
  filaActual_ = item ? item->data(0, kRolFila).toInt() : 0;
  AE_ItemEXProyect();
}

void FrmWizard::AE_ItemEXProyect() {
  const bool hay = filaActual_ > 0 && filaActual_ <= arbol_.Count();
  ArbolItem vacia;
  ArbolItem& f = hay ? arbol_.filas[static_cast<std::size_t>(filaActual_)] : vacia;
  nombreFila_->setText(DeTexto(f.Nombre));
  static const struct {
    const char* codigo;
    const char* imagen;
    const char* clave;
  } kDificultad[] = {{"&DP", "diff_progressive.png", "ProgreDiff"},
                     {"&D1", "diff_low.png", "LowDiff"},
                     {"&D2", "diff_medium.png", "MedDiff"},
                     {"&D3", "diff_high.png", "HighDiff"}};
  const std::string codigo = f.Ayuda.substr(0, std::min<std::size_t>(3, f.Ayuda.size()));
  imagenDif_->clear();
  etiquetaDif_->clear();
  for (const auto& d : kDificultad) {
    if (codigo != d.codigo) continue;
    imagenDif_->setPixmap(QPixmap(QDir(e_.carpetaDatos).filePath(QStringLiteral("img/") + QLatin1String(d.imagen))));
    etiquetaDif_->setText(TextoW(e_.textos, d.clave));
  }
  descripcion_->setText(DeTexto(f.Ayuda.size() > 3 ? std::string(Trim(f.Ayuda.substr(3))) : std::string()));

  const bool cantidades = f.Nivel == 2 && f.Marcado;
  const bool segunda = cantidades && (f.Tipo == 1 || f.Tipo == 2);
  if (cantidades) {
    DaCantidades(f);
    const QSignalBlocker b0(txCan0_), b1(txCan1_);
    txCan0_->setValue(f.Cantidad1);
    if (segunda) {
      const Rango r = RangoCantidad2(f.MaxCantidad2);
      txCan1_->setRange(r.lo, r.hi);
      txCan1_->setValue(f.Cantidad2);
      etiquetaCan1_->setText(TextoW(e_.textos, f.Tipo == 1 ? "NumberQuestionsEach" : "NumberExercicesEach", true));
    }
  }
  etiquetaCan0_->setVisible(cantidades);
  txCan0_->setVisible(cantidades);
  etiquetaCan1_->setVisible(segunda);
  txCan1_->setVisible(segunda);
  RECUENTA();
}

void FrmWizard::TxCan_Change(int cual, int valor) {
  if (filaActual_ <= 0 || filaActual_ > arbol_.Count()) return;
  ArbolItem& f = arbol_.filas[static_cast<std::size_t>(filaActual_)];
  if (f.Nivel != 2) return;
  if (cual == 0) {
    f.Cantidad1 = static_cast<int16_t>(std::clamp(valor, kRangoCantidad1.lo, kRangoCantidad1.hi));
    if (QTreeWidgetItem* item = tree_->currentItem()) PintaFila(item);
    RECUENTA();
  } else {
    const Rango r = RangoCantidad2(f.MaxCantidad2);
    f.Cantidad2 = static_cast<int16_t>(std::clamp(valor, r.lo, r.hi));
  }
}

void FrmWizard::RECUENTA() {
  total_ = Recuenta(arbol_);
  cab_.NPROB = total_;
  txTot_->setText(TextoW(e_.textos, "TotalProblems") + QStringLiteral(": ") + QString::number(total_));
  if (pagina_ == 4) siguiente_->setEnabled(total_ != 0);
}

// ---- pages 5, 6 and 7 ------------------------------------------------------------------

QWidget* FrmWizard::PaginaNumeracion() {
  auto* w = new QWidget;
  numeracion_ = new MarcoNumeracion(e_.textos, w);
  numeracion_->Pon(cab_);
  paginasNum_ = new MarcoPaginas(e_.textos, w);
  paginasNum_->Pon(cab_);
  auto* v = new QVBoxLayout(w);
  v->addWidget(numeracion_);
  v->addSpacing(16);
  v->addWidget(Titular(TextoW(e_.textos, "PageNumbering"), w));
  v->addWidget(paginasNum_);
  v->addStretch(1);
  return w;
}

QWidget* FrmWizard::PaginaOrden() {
  auto* w = new QWidget;
  orden_ = new MarcoOrden(e_.textos, w);
  orden_->Pon(cab_);
  soluciones_ = new MarcoSoluciones(e_.textos, QDir(e_.carpetaDatos).filePath(QStringLiteral("img")), w);
  soluciones_->Pon(cab_);
  auto* v = new QVBoxLayout(w);
  v->addWidget(orden_);
  v->addSpacing(16);
  v->addWidget(Titular(TextoW(e_.textos, "AnswerPOSITION"), w));
  v->addWidget(soluciones_);
  v->addStretch(1);
  return w;
}

QWidget* FrmWizard::PaginaTitulos() {
  auto* w = new QWidget;
  titulos_ = new MarcoTitulos(e_.textos, w);
  TextosPequenos d;
  d.porDefecto = {e_.ajustes.chkPretit, e_.ajustes.chkPosti1, e_.ajustes.chkPosti2};
  titulos_->Pon(cab_, d);
  auto* v = new QVBoxLayout(w);
  v->addWidget(titulos_);
  return w;
}

// ---- walking the pages ---------------------------------------------------------------

void FrmWizard::MuestraPagina(int pagina) {
  pagina_ = pagina;
  static const char* kEncabezado[kPaginasAsistente + 1] = {
      "", "Wizard", "SelectingSubject", "TypesDoc", "TopicsTypesAmountProb", "ProblemNumbering", "ProblemSorting",
      "EduCenterTitlesXtext"};
  encabezado_->setText(TextoW(e_.textos, kEncabezado[pagina]));
  marcos_->setCurrentIndex(pagina - 1);
  siguiente_->setText(pagina == kPaginasAsistente ? TextoW(e_.textos, "But_Finish", true)
                                                  : TextoW(e_.textos, "But_Next", true) + QStringLiteral(" >"));
  atras_->setEnabled(paginas_.Anterior(pagina) != pagina);
  siguiente_->setEnabled(true);
  switch (pagina) {
    case 2:
      siguiente_->setEnabled(FilaElegida() >= 0);
      lstAsig_->setFocus();
      break;
    case 3:
      siguiente_->setEnabled(std::any_of(chkTip_.begin(), chkTip_.end(), [](QCheckBox* c) { return c->isChecked(); }));
      break;
    case 4: {
      const std::string firma = FirmaArbol(e_.temario.Sysedu(), AsignaturaElegida(), Tipos());
      if (firma != firma_) {
        firma_ = firma;
        LoadTOLISTBOX_BUILT_CODE();
      }
      tree_->setFocus();
      AE_ItemEXProyect();
      break;
    }
    case 7:
      titulos_->Titulo()->setFocus();
      break;
    default:
      siguiente_->setFocus();
  }
}

void FrmWizard::CmdNext() {
  if (!siguiente_->isEnabled() || cerrado_) return;
  if (pagina_ == 4) {
    if (total_ > kMaxProblemas) {
      e_.dialogos.Aviso(this, TextoW(e_.textos, "More500Problems"));
      return;
    }
    if (titulos_->Titulo()->text().trimmed().isEmpty())
      titulos_->Titulo()->setText(DeTexto(GetDefaultTitle(arbol_, e_.textos)));
  }
  if (pagina_ == kPaginasAsistente) {
    exito_ = true;
    LeeMarcos();
    GuardarAjustes();
    GuardaTextosPequenos(titulos_->Pequenos(), e_.ajustes, e_.almacen);
    cerrado_ = true;
    accept();
    return;
  }
  MuestraPagina(paginas_.Siguiente(pagina_));
}

void FrmWizard::CmdBack() {
  const int anterior = paginas_.Anterior(pagina_);
  if (anterior != pagina_) MuestraPagina(anterior);
}

void FrmWizard::reject() {
  if (!cerrado_) {
    // The defaults chosen so far are kept; the worksheet is left as it was.
    cerrado_ = true;
    exito_ = false;
    LeeMarcos();
    GuardarAjustes();
  }
  QDialog::reject();
}

bool FrmWizard::eventFilter(QObject* objeto, QEvent* e) {
  // A double click on a subject's picture chooses it and moves on.
  if (e->type() == QEvent::MouseButtonDblClick) {
    for (std::size_t k = 0; k < imageAsig_.size(); ++k) {
      if (objeto != imageAsig_[k]) continue;
      lstAsig_->setCurrentRow(static_cast<int>(k));
      if (siguiente_->isEnabled()) CmdNext();
      return true;
    }
  }
  return QDialog::eventFilter(objeto, e);
}

void FrmWizard::closeEvent(QCloseEvent* e) {
  reject();
  e->accept();
}

void FrmWizard::LeeMarcos() {
  numeracion_->Lee(cab_);
  paginasNum_->Lee(cab_);
  orden_->Lee(cab_);
  soluciones_->Lee(cab_);
  titulos_->Lee(cab_);
  cab_.NPROB = total_;
}

void FrmWizard::GuardarAjustes() {
  TomaDefectos(cab_, e_.ajustes);
  if (FilaElegida() >= 0) e_.ajustes.asignatura = AsignaturaElegida();
  e_.ajustes.sysedu = e_.temario.Sysedu();
  e_.ajustes.showini = check3_->isChecked();
  e_.ajustes.showavan = check2_->isChecked();
  GuardarAjustesAsistente(e_.ajustes, e_.almacen);
}

}  // namespace ss
