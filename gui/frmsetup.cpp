#include "gui/frmsetup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "gui/dialogos.h"
#include "gui/marcos.h"
#include "problems/idioma.h"
#include "problems/texto.h"

namespace ss {
namespace {

std::string A1252(const QString& s) { return Utf8ToCp1252(s.toUtf8().toStdString()); }

// The frames of the window: number, caption key (program / worksheet), and
// whether each mode has it.
struct DefMarco {
  int numero;
  const char* claveAplicacion;
  const char* claveHoja;
  bool enHoja;
};
constexpr DefMarco kMarcos[] = {
    {1, "EduCenterXtext", "EduCenterTitlesXtext", true},
    {6, "ProblemNumbering", "ProblemNumbering", true},
    {4, "PageNumbering", "PageNumbering", true},
    {5, "AnswerPOSITION", "AnswerPOSITION", true},
    {3, "ProblemSorting", "ProblemSorting", true},
    {2, "Decimal_List_Separator", "Decimal_List_Separator", true},
    {16, "Multiplic_Division_Sign", nullptr, false},
    {11, "ScientificNotation", nullptr, false},
    {7, "IntervalsNotation", nullptr, false},
    {8, "StatisticsNotation", nullptr, false},
    {9, "Currency0", nullptr, false},
    {10, "GeomecOptic_Mirror_Signs", nullptr, false},
    {12, "GeomecOptic_Lens_Signs", nullptr, false},
    {17, "Wizard_Win_Options", nullptr, false},
    {13, "EditingButtons", nullptr, false},
    {14, "StartUp_Win_options", nullptr, false},
};

// Frames whose changes reach only the worksheets made afterwards.
bool SoloNuevas(int numero) {
  return numero == 1 || numero == 3 || numero == 4 || numero == 5 || numero == 6 || numero == 17;
}

// A frame's widget and its column of controls, flush with the frame.
std::pair<QWidget*, QVBoxLayout*> Columna() {
  auto* w = new QWidget;
  auto* v = new QVBoxLayout(w);
  v->setContentsMargins(0, 0, 0, 0);
  return {w, v};
}

QRadioButton* Opcion(const QString& texto, const char* nombre, QWidget* parent) {
  auto* r = new QRadioButton(texto, parent);
  r->setObjectName(QLatin1String(nombre));
  return r;
}

QLabel* Nota(const QString& texto, QWidget* parent) {
  auto* l = new QLabel(texto, parent);
  l->setWordWrap(true);
  QPalette p = l->palette();
  p.setColor(QPalette::WindowText, p.color(QPalette::PlaceholderText));
  l->setPalette(p);
  return l;
}

}  // namespace

FrmSetup::FrmSetup(EntornoAjustes entorno, QWidget* parent) : QDialog(parent), e_(std::move(entorno)) {
  setObjectName(QStringLiteral("FrmSetup"));
  setModal(true);
  setWindowTitle(TextoW(e_.textos, e_.modoAplicacion ? "SetupTitleApp" : "SetupTitleWS"));
  // The program's mode edits the defaults of new worksheets, as the wizard
  // would start them; the worksheet's mode edits the worksheet's own header.
  cab_ = e_.modoAplicacion ? CabeceraNueva(e_.ajustes) : e_.cabecera;

  list1_ = new QListWidget(this);
  list1_->setObjectName(QStringLiteral("List1"));
  marcos_ = new QStackedWidget(this);
  for (const DefMarco& d : kMarcos) {
    if (!e_.modoAplicacion && !d.enHoja) continue;
    QWidget* marco = Marco(d.numero);
    marco->setObjectName(QStringLiteral("Frame1_%1").arg(d.numero, 2, 10, QLatin1Char('0')));
    auto* pagina = new QWidget;
    auto* v = new QVBoxLayout(pagina);
    const QString titulo = TextoW(e_.textos, e_.modoAplicacion ? d.claveAplicacion : d.claveHoja);
    auto* cabeza = new QLabel(titulo, pagina);
    QFont f = cabeza->font();
    f.setPointSizeF(f.pointSizeF() * 1.25);
    f.setBold(true);
    cabeza->setFont(f);
    v->addWidget(cabeza);
    v->addSpacing(6);
    v->addWidget(marco, 1);
    if (e_.modoAplicacion && SoloNuevas(d.numero)) v->addWidget(Nota(TextoW(e_.textos, "Change_Only_new_WS"), pagina));
    marcos_->addWidget(pagina);
    numeros_.push_back(d.numero);
    auto* item = new QListWidgetItem(titulo);
    item->setData(Qt::UserRole, marcos_->count() - 1);
    list1_->addItem(item);
  }
  list1_->sortItems();
  list1_->setMinimumWidth(list1_->sizeHintForColumn(0) + 24);
  list1_->setMaximumWidth(list1_->sizeHintForColumn(0) + 40);
  connect(list1_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (item) marcos_->setCurrentIndex(item->data(Qt::UserRole).toInt());
  });

  auto* botones = new QDialogButtonBox(this);
  auto* ok = botones->addButton(TextoW(e_.textos, "But_OK", true), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("CmdNext"));
  ok->setDefault(true);
  auto* cancelar = botones->addButton(TextoW(e_.textos, "But_Cancel", true), QDialogButtonBox::RejectRole);
  cancelar->setObjectName(QStringLiteral("CmdCancel"));
  connect(botones, &QDialogButtonBox::accepted, this, &FrmSetup::accept);
  connect(botones, &QDialogButtonBox::rejected, this, &FrmSetup::reject);

  auto* h = new QHBoxLayout;
  h->addWidget(list1_);
  h->addWidget(marcos_, 1);
  auto* v = new QVBoxLayout(this);
  v->addLayout(h, 1);
  v->addWidget(botones);

  Var_2_Controls();
  list1_->setCurrentRow(0);
  resize(e_.modoAplicacion ? 800 : 760, 500);
}

FrmSetup::~FrmSetup() = default;

bool FrmSetup::MuestraMarco(int numero) {
  for (int k = 0; k < list1_->count(); ++k) {
    const int pagina = list1_->item(k)->data(Qt::UserRole).toInt();
    if (numeros_[static_cast<std::size_t>(pagina)] == numero) {
      list1_->setCurrentRow(k);
      return true;
    }
  }
  return false;
}

QString FrmSetup::Sistema() const {
  return cmbSysedu_ && cmbSysedu_->currentIndex() >= 0 ? cmbSysedu_->currentData().toString() : e_.ajustes.sysedu;
}

// ---- the frames ------------------------------------------------------------------------

QWidget* FrmSetup::Marco(int numero) {
  TextosVentana& t = e_.textos;
  switch (numero) {
    case 1: {
      auto [w, v] = Columna();
      if (e_.modoAplicacion && !e_.sistemas.empty()) {
        cmbSysedu_ = new QComboBox(w);
        cmbSysedu_->setObjectName(QStringLiteral("CmbSYSEDU"));
        auto* etiqueta = new QLabel(TextoW(t, "EducationSystem", true), w);
        etiqueta->setBuddy(cmbSysedu_);
        auto* h = new QHBoxLayout;
        h->addWidget(etiqueta);
        h->addWidget(cmbSysedu_, 1);
        v->addLayout(h);
        v->addSpacing(12);
      }
      titulos_ = new MarcoTitulos(t, w);
      titulos_->MuestraTitulo(!e_.modoAplicacion);
      v->addWidget(titulos_, 1);
      return w;
    }
    case 6:
      numeracion_ = new MarcoNumeracion(t);
      numeracion_->MuestraInicio(!e_.modoAplicacion);
      return numeracion_;
    case 4:
      paginas_ = new MarcoPaginas(t);
      paginas_->MuestraInicio(!e_.modoAplicacion);
      return paginas_;
    case 5:
      return soluciones_ = new MarcoSoluciones(t, e_.carpetaDatos + QStringLiteral("/img"));
    case 3:
      return orden_ = new MarcoOrden(t);
    case 2:
      return MarcoSeparadores();
    case 16:
      return MarcoSignos();
    case 11:
      return MarcoCientifica();
    case 7:
      return MarcoIntervalos();
    case 8:
      return MarcoEstadistica();
    case 9:
      return MarcoMoneda();
    case 10:
      return MarcoOptica(false);
    case 12:
      return MarcoOptica(true);
    case 17:
      return MarcoAsistente();
    case 13:
      return MarcoCasilla("ChkVerBotEDic", "ShowEditButtons", e_.ajustes.botonesEdicion);
    case 14:
      return MarcoCasilla("ChkShowIniWin", "ShowStartPanel", e_.ajustes.mostrarPanelInicio);
    default:
      return new QWidget;
  }
}

QWidget* FrmSetup::MarcoSeparadores() {
  auto [w, v] = Columna();
  v->addWidget(new QLabel(TextoW(e_.textos, "Dec_Mark_List_Sep"), w));
  static const char* kNombre[3] = {"OptCOMPYC", "OptDOTPYC", "OptDOTCOM"};
  static const char* kClave[3] = {"Comma_Semicolon", "Dot_Semicolon", "Dot_Comma"};
  for (std::size_t k = 0; k < 3; ++k) {
    separadores_[k] = Opcion(TextoW(e_.textos, kClave[k], true), kNombre[k], w);
    connect(separadores_[k], &QRadioButton::clicked, this, &FrmSetup::Ejemplo);
    v->addWidget(separadores_[k]);
  }
  ejemplo_ = new QLabel(w);
  ejemplo_->setObjectName(QStringLiteral("Ejemplo"));
  v->addSpacing(12);
  v->addWidget(ejemplo_);
  v->addStretch(1);
  return w;
}

// A list of three numbers as the chosen separators write it.
void FrmSetup::Ejemplo() {
  QString decimal = QStringLiteral("."), lista = QStringLiteral(",");
  if (separadores_[0]->isChecked()) decimal = QStringLiteral(","), lista = QStringLiteral(";");
  if (separadores_[1]->isChecked()) lista = QStringLiteral(";");
  ejemplo_->setText(TextoW(e_.textos, "Example") + QStringLiteral(":   ") +
                    QStringList{u'2' + decimal + u'5', u'0' + decimal + QStringLiteral("75"),
                                u'1' + decimal + QStringLiteral("125")}
                        .join(lista + u' '));
}

QWidget* FrmSetup::MarcoSignos() {
  auto* w = new QWidget;
  auto* g = new QGridLayout(w);
  g->setContentsMargins(0, 0, 0, 0);
  auto* mul = new QGroupBox(TextoW(e_.textos, "Multipli_sign_FPL"), w);
  mulAspa_ = Opcion(QStringLiteral("3 \u00D7 4"), "OptMulAspa", mul);
  mulPunto_ = Opcion(QStringLiteral("3 \u00B7 4"), "OptMulPunto", mul);
  auto* vm = new QVBoxLayout(mul);
  vm->addWidget(mulAspa_);
  vm->addWidget(mulPunto_);
  auto* div = new QGroupBox(TextoW(e_.textos, "Division_sign_FPL"), w);
  division_[0] = Opcion(QStringLiteral("12 : 4"), "OptDIVCOLON", div);
  division_[1] = Opcion(QStringLiteral("12 / 4"), "OptDIVBARRA", div);
  division_[2] = Opcion(QStringLiteral("12 \u00F7 4"), "OptDIVCOLMEN", div);
  auto* vd = new QVBoxLayout(div);
  for (QRadioButton* r : division_) vd->addWidget(r);
  g->addWidget(mul, 0, 0, Qt::AlignTop);
  g->addWidget(div, 0, 1, Qt::AlignTop);
  g->addWidget(Nota(TextoW(e_.textos, "List_SQR_PRIM"), w), 1, 0, 1, 2);
  g->setRowStretch(2, 1);
  g->setColumnStretch(2, 1);
  return w;
}

QWidget* FrmSetup::MarcoCientifica() {
  auto [w, v] = Columna();
  sciAspa_ = Opcion(TextoW(e_.textos, "SciNot_Cross", true), "OptSCINOTASPA", w);
  sciPunto_ = Opcion(TextoW(e_.textos, "SciNot_Dot", true), "OptSCINOTPTO", w);
  v->addWidget(sciAspa_);
  v->addWidget(sciPunto_);
  v->addStretch(1);
  return w;
}

QWidget* FrmSetup::MarcoIntervalos() {
  auto [w, v] = Columna();
  intervaloPar_ = Opcion(TextoW(e_.textos, "Parent_Brackets", true), "OptCOPA", w);
  intervaloInv_ = Opcion(TextoW(e_.textos, "InvBrackets", true), "OptCOCI", w);
  v->addWidget(intervaloPar_);
  v->addWidget(intervaloInv_);
  v->addSpacing(12);
  v->addWidget(Nota(TextoW(e_.textos, "Examples") + QStringLiteral(": ") + TextoW(e_.textos, "OpenInterval") +
                        QStringLiteral(" (2, 5) / ]2, 5[;  ") + TextoW(e_.textos, "ClosedInterval") +
                        QStringLiteral(" [2, 5]"),
                    w));
  v->addStretch(1);
  return w;
}

QWidget* FrmSetup::MarcoEstadistica() {
  auto* w = new QWidget;
  auto* g = new QGridLayout(w);
  g->setContentsMargins(0, 0, 0, 0);
  auto* frec = new QGroupBox(TextoW(e_.textos, "Abs_Freq"), w);
  frecN_ = Opcion(QStringLiteral("n"), "OptSTAT_N", frec);
  frecF_ = Opcion(QStringLiteral("f"), "OptSTAT_F", frec);
  auto* vf = new QVBoxLayout(frec);
  vf->addWidget(frecN_);
  vf->addWidget(frecF_);
  auto* desv = new QGroupBox(TextoW(e_.textos, "Sta_deviation"), w);
  sigma_ = Opcion(QStringLiteral("\u03C3"), "OptDTSIGMA", desv);
  desvS_ = Opcion(QStringLiteral("S"), "OptDTS", desv);
  auto* vd = new QVBoxLayout(desv);
  vd->addWidget(sigma_);
  vd->addWidget(desvS_);
  g->addWidget(frec, 0, 0, Qt::AlignTop);
  g->addWidget(desv, 0, 1, Qt::AlignTop);
  g->setRowStretch(1, 1);
  g->setColumnStretch(2, 1);
  return w;
}

QWidget* FrmSetup::MarcoMoneda() {
  auto [w, v] = Columna();
  moneda_[0] = Opcion(TextoW(e_.textos, "EUR_Euro_Euros", true), "OptEUR", w);
  moneda_[1] = Opcion(TextoW(e_.textos, "USD_Dollar_Dollars", true), "OptUSD", w);
  moneda_[2] = Opcion(TextoW(e_.textos, "CurrencyOther", true), "OptOTRAMON", w);
  for (QRadioButton* r : moneda_) v->addWidget(r);
  auto* f = new QFormLayout;
  f->setContentsMargins(24, 0, 0, 0);
  static const char* kNombre[3] = {"TxtMonSimb", "TxtMonSing", "TxtMonPlur"};
  static const char* kClave[3] = {"CurrencySymbol", "Singular", "Plural"};
  for (std::size_t k = 0; k < 3; ++k) {
    monedaTexto_[k] = new QLineEdit(w);
    monedaTexto_[k]->setObjectName(QLatin1String(kNombre[k]));
    monedaTexto_[k]->setMaxLength(k == 0 ? 6 : 30);
    auto* etiqueta = new QLabel(TextoW(e_.textos, kClave[k], true), w);
    etiqueta->setBuddy(monedaTexto_[k]);
    f->addRow(etiqueta, monedaTexto_[k]);
  }
  v->addLayout(f);
  v->addStretch(1);
  auto habilita = [this] {
    for (QLineEdit* e : monedaTexto_) e->setEnabled(moneda_[2]->isChecked());
  };
  for (QRadioButton* r : moneda_) connect(r, &QRadioButton::toggled, this, habilita);
  return w;
}

QWidget* FrmSetup::MarcoOptica(bool lente) {
  auto* w = new QWidget;
  auto* g = new QGridLayout(w);
  g->setContentsMargins(0, 0, 0, 0);
  static const char* kClaveEspejo[4] = {"DIS_OBJ_R_MIRROR", "DIS_IMG_R_MIRROR", "FOC_CVX_MIRROR", "RAD_CVX_MIRROR"};
  static const char* kClaveLente[4] = {"DIS_OBJ_R_LENS", "DIS_IMG_R_LENS", "FOC_CONV_LENS", "RAD_SUR_R_LENS"};
  static const char* kPosEspejo[4] = {"Option6", "Option14", "Option16", "Option17"};
  static const char* kNegEspejo[4] = {"Option9", "Option10", "Option15", "Option18"};
  static const char* kPosLente[4] = {"Option21", "Option26", "Option23", "Option24"};
  static const char* kNegLente[4] = {"Option20", "Option27", "Option22", "Option25"};
  for (std::size_t k = 0; k < 4; ++k) {
    auto* fila = new QWidget(w);  // each pair is exclusive on its own
    auto* h = new QHBoxLayout(fila);
    h->setContentsMargins(0, 0, 0, 0);
    QRadioButton* mas = Opcion(QStringLiteral("+"), lente ? kPosLente[k] : kPosEspejo[k], fila);
    QRadioButton* menos = Opcion(QStringLiteral("\u2212"), lente ? kNegLente[k] : kNegEspejo[k], fila);
    h->addWidget(mas);
    h->addWidget(menos);
    (lente ? lente_ : espejo_)[k] = mas;
    (lente ? lenteNeg_ : espejoNeg_)[k] = menos;
    auto* etiqueta = new QLabel(TextoW(e_.textos, lente ? kClaveLente[k] : kClaveEspejo[k]), w);
    g->addWidget(etiqueta, static_cast<int>(k), 0);
    g->addWidget(fila, static_cast<int>(k), 1);
  }
  g->setRowStretch(4, 1);
  g->setColumnStretch(2, 1);
  return w;
}

QWidget* FrmSetup::MarcoAsistente() {
  auto [w, v] = Columna();
  check3_ = new QCheckBox(TextoW(e_.textos, "ShowWelcomePanel", true), w);
  check3_->setObjectName(QStringLiteral("Check3"));
  check2_ = new QCheckBox(TextoW(e_.textos, "ShowAdvancesOptions", true), w);
  check2_->setObjectName(QStringLiteral("Check2"));
  v->addWidget(check3_);
  v->addWidget(check2_);
  v->addStretch(1);
  return w;
}

QWidget* FrmSetup::MarcoCasilla(const char* nombre, const char* clave, bool marcada) {
  auto [w, v] = Columna();
  auto* c = new QCheckBox(TextoW(e_.textos, clave, true), w);
  c->setObjectName(QLatin1String(nombre));
  c->setChecked(marcada);
  (QLatin1String(nombre) == QLatin1String("ChkVerBotEDic") ? chkVerBotEdic_ : chkShowIniWin_) = c;
  v->addWidget(c);
  v->addStretch(1);
  return w;
}

// ---- controls and settings --------------------------------------------------------------

void FrmSetup::Var_2_Controls() {
  const Ajustes& a = e_.ajustes;
  if (cmbSysedu_) {
    const QSignalBlocker b(cmbSysedu_);
    int actual = -1;
    for (std::size_t k = 0; k < e_.sistemas.size(); ++k) {
      cmbSysedu_->addItem(e_.sistemas[k].nombre, e_.sistemas[k].fichero);
      if (e_.sistemas[k].fichero.compare(a.sysedu, Qt::CaseInsensitive) == 0) actual = static_cast<int>(k);
    }
    cmbSysedu_->setCurrentIndex(actual >= 0 ? actual : cmbSysedu_->count() - 1);
  }
  TextosPequenos d;
  d.porDefecto = {a.chkPretit, a.chkPosti1, a.chkPosti2};
  if (!e_.modoAplicacion) d.porDefecto = {false, false, false};
  titulos_->Pon(cab_, d);
  numeracion_->Pon(cab_);
  paginas_->Pon(cab_);
  soluciones_->Pon(cab_);
  orden_->Pon(cab_);

  const OpcionesNotacion o = NotacionDe(a);
  separadores_[static_cast<std::size_t>(o.separadores)]->setChecked(true);
  Ejemplo();
  if (!e_.modoAplicacion) return;
  (o.productoAspa ? mulAspa_ : mulPunto_)->setChecked(true);
  division_[static_cast<std::size_t>(o.division)]->setChecked(true);
  (o.cientificoPunto ? sciPunto_ : sciAspa_)->setChecked(true);
  (o.intervaloInvertido ? intervaloInv_ : intervaloPar_)->setChecked(true);
  (o.sigma ? sigma_ : desvS_)->setChecked(true);
  (o.frecuenciaN ? frecN_ : frecF_)->setChecked(true);
  moneda_[static_cast<std::size_t>(o.moneda)]->setChecked(true);
  const std::string* texto[3] = {&o.simbolo, &o.singular, &o.plural};
  for (std::size_t k = 0; k < 3; ++k) {
    monedaTexto_[k]->setText(o.moneda == Moneda::Otra ? DeTexto(*texto[k]) : QString());
    monedaTexto_[k]->setEnabled(o.moneda == Moneda::Otra);
  }
  for (std::size_t k = 0; k < 4; ++k) {
    (o.espejoPositivo[k] ? espejo_[k] : espejoNeg_[k])->setChecked(true);
    (o.lentePositivo[k] ? lente_[k] : lenteNeg_[k])->setChecked(true);
  }
  check2_->setChecked(a.showavan);
  check3_->setChecked(a.showini);
}

OpcionesNotacion FrmSetup::LeeNotacion() const {
  // What the window does not show stays as it is.
  OpcionesNotacion o = NotacionDe(e_.ajustes);
  for (std::size_t k = 0; k < 3; ++k)
    if (separadores_[k]->isChecked()) o.separadores = static_cast<Separadores>(k);
  if (!e_.modoAplicacion) return o;
  o.productoAspa = mulAspa_->isChecked();
  for (std::size_t k = 0; k < 3; ++k)
    if (division_[k]->isChecked()) o.division = static_cast<SignoDivision>(k);
  o.cientificoPunto = sciPunto_->isChecked();
  o.intervaloInvertido = intervaloInv_->isChecked();
  o.sigma = sigma_->isChecked();
  o.frecuenciaN = frecN_->isChecked();
  for (std::size_t k = 0; k < 3; ++k)
    if (moneda_[k]->isChecked()) o.moneda = static_cast<Moneda>(k);
  o.simbolo = A1252(monedaTexto_[0]->text());
  o.singular = A1252(monedaTexto_[1]->text());
  o.plural = A1252(monedaTexto_[2]->text());
  for (std::size_t k = 0; k < 4; ++k) {
    o.espejoPositivo[k] = espejo_[k]->isChecked();
    o.lentePositivo[k] = lente_[k]->isChecked();
  }
  return o;
}

void FrmSetup::accept() {
  const OpcionesNotacion o = LeeNotacion();
  if (!MonedaCompleta(o)) {
    MuestraMarco(9);
    e_.dialogos.Aviso(this, TextoW(e_.textos, "InvalidCurrency"));
    return;
  }
  Controls_2_Var();
  ok_ = true;
  QDialog::accept();
}

void FrmSetup::reject() {
  ok_ = false;
  QDialog::reject();
}

void FrmSetup::Controls_2_Var() {
  Ajustes& a = e_.ajustes;
  Almacen& al = e_.almacen;
  if (e_.modoAplicacion && cmbSysedu_) EligeSistema(a, al, Sistema());
  titulos_->Lee(cab_);
  GuardaTextosPequenos(titulos_->Pequenos(), a, al, e_.modoAplicacion);
  numeracion_->Lee(cab_);
  paginas_->Lee(cab_);
  soluciones_->Lee(cab_);
  orden_->Lee(cab_);
  if (e_.modoAplicacion) {
    // The frames of the header edit the defaults of new worksheets.
    TomaDefectos(cab_, a);
    a.botonesEdicion = chkVerBotEdic_->isChecked();
    a.mostrarPanelInicio = chkShowIniWin_->isChecked();
    al.Escribe(QStringLiteral("INI_WIN"), QStringLiteral("SHOW"), a.mostrarPanelInicio ? QStringLiteral("1") : QStringLiteral("0"));
    a.showavan = check2_->isChecked();
    a.showini = check3_->isChecked();
    GuardarAjustesAsistente(a, al);
  }
  AplicaNotacion(LeeNotacion(), a, al, e_.textos.GetL_win("Dollar", true), e_.textos.GetL_win("Dollars", true));
}

}  // namespace ss
