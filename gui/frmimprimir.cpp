#include "gui/frmimprimir.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "gui/dialogos.h"
#include "gui/marcos.h"
#include "output/impresion.h"
#include "problems/idioma.h"

namespace ss {
namespace {

// Little sheets numbered as they come out of the printer: 1 2 3 1 2 3 when
// collated, 1 1 2 2 3 3 when not.
QPixmap Intercalado(bool intercalar) {
  const int n[6] = {1, 2, 3, 1, 2, 3}, m[6] = {1, 1, 2, 2, 3, 3};
  QPixmap dibujo(6 * 20 + 8, 34);
  dibujo.fill(Qt::transparent);
  QPainter p(&dibujo);
  p.setRenderHint(QPainter::Antialiasing);
  QFont letra = p.font();
  letra.setPixelSize(11);
  p.setFont(letra);
  for (int k = 0; k < 6; ++k) {
    const QRectF hoja(2 + k * 20 + (k >= 3 && intercalar ? 4 : 0) + (!intercalar ? (k / 2) * 2 : 0), 4, 16, 24);
    p.setPen(QPen(QColor(60, 60, 60), 1));
    p.setBrush(Qt::white);
    p.drawRect(hoja);
    p.setPen(QColor(30, 90, 170));
    p.drawText(hoja, Qt::AlignCenter, QString::number(intercalar ? n[k] : m[k]));
  }
  return dibujo;
}

}  // namespace

FrmImprimir::FrmImprimir(EntornoImpresion entorno, QWidget* parent) : QDialog(parent), e_(std::move(entorno)) {
  setObjectName(QStringLiteral("frmImprimir"));
  TextosVentana& t = e_.textos;
  const bool carpeta = e_.paginas <= 0;
  auto* raiz = new QVBoxLayout(this);

  // The printer and its set-up.
  auto* filaImpresora = new QHBoxLayout;
  impresoras_ = new QComboBox(this);
  impresoras_->setObjectName(QStringLiteral("CmbPrinter"));
  for (const QString& nombre : Impresoras()) impresoras_->addItem(nombre, nombre);
  if (e_.conPdf) impresoras_->addItem(TextoW(t, "PrintToFile"), QString());
  const int actual = impresoras_->findData(e_.impresora.outputFormat() == QPrinter::PdfFormat
                                               ? QString()
                                               : e_.impresora.printerName());
  impresoras_->setCurrentIndex(actual >= 0 ? actual : 0);
  auto* etiquetaImpresora = new QLabel(TextoW(t, "Printer", true), this);
  etiquetaImpresora->setBuddy(impresoras_);
  auto* configurar = new QPushButton(TextoW(t, "But_PrinterSetup", true), this);
  configurar->setObjectName(QStringLiteral("cmdConfigurar"));
  filaImpresora->addWidget(etiquetaImpresora);
  filaImpresora->addWidget(impresoras_, 1);
  filaImpresora->addWidget(configurar);
  raiz->addLayout(filaImpresora);
  connect(impresoras_, &QComboBox::currentIndexChanged, this, [this] {
    if (configurarHabilitado_) configurarHabilitado_();
    ActualizaTitulo();
  });
  connect(configurar, &QPushButton::clicked, this, [this] {
    const QString nombre = Impresora();
    if (nombre.isEmpty()) return;
    e_.impresora.setOutputFormat(QPrinter::NativeFormat);
    e_.impresora.setPrinterName(nombre);
    e_.dialogos.ConfiguraImpresora(this, e_.impresora);
    // The printer chosen there becomes the choice here.
    const int i = impresoras_->findData(e_.impresora.printerName());
    if (i >= 0) impresoras_->setCurrentIndex(i);
    ActualizaTitulo();
  });
  configurarHabilitado_ = [this, configurar] { configurar->setEnabled(!Impresora().isEmpty()); };
  configurarHabilitado_();

  // Folder mode: the worksheets of the folder, all picked at first.
  if (carpeta) {
    auto* caja = new QGroupBox(TextoW(t, "Folder"), this);
    auto* g = new QGridLayout(caja);
    auto* ruta = new QLabel(QDir::toNativeSeparators(e_.carpeta), caja);
    ruta->setObjectName(QStringLiteral("TxtPATH"));
    ruta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    list1_ = new QListWidget(caja);
    list1_->setObjectName(QStringLiteral("List1"));
    list1_->setSelectionMode(QAbstractItemView::MultiSelection);
    const QDir dir(e_.carpeta);
    for (const QString& f : dir.entryList({QStringLiteral("*.col"), QStringLiteral("*.COL")}, QDir::Files,
                                          QDir::Name | QDir::IgnoreCase)) {
      auto* fila = new QListWidgetItem(f, list1_);
      fila->setData(Qt::UserRole, dir.filePath(f));
      fila->setSelected(true);
    }
    g->addWidget(ruta, 0, 0, 1, 4);
    g->addWidget(list1_, 1, 0, 1, 4);
    auto* lblSel = new QLabel(TextoW(t, "Select"), caja);
    lblSel->setObjectName(QStringLiteral("Lbl_SEL"));
    g->addWidget(lblSel, 2, 0);
    const char* claves[3] = {"All_prob", "None_prob", "Invert_Sel"};
    for (int k = 0; k < 3; ++k) {
      auto* b = new QPushButton(TextoW(t, claves[k]), caja);
      b->setObjectName(QStringLiteral("Cmd_SEL%1").arg(k));
      connect(b, &QPushButton::clicked, this, [this, k] { Cmd_SEL(k); });
      g->addWidget(b, 2, k + 1);
    }
    raiz->addWidget(caja, 1);
  }

  // The pages.
  auto* paginas = new QGroupBox(TextoW(t, "PageSet"), this);
  auto* gp = new QGridLayout(paginas);
  const char* claves[5] = {"AllPages", "Pages", "OddPages", "EvenPages", "CurrentPage"};
  auto* grupo = new QButtonGroup(this);
  for (int k = 0; k < 5; ++k) {
    opcion_[k] = new QRadioButton(TextoW(t, claves[k], true), paginas);
    opcion_[k]->setObjectName(QStringLiteral("Option%1").arg(k + 1));
    grupo->addButton(opcion_[k], k);
  }
  text2_ = new QLineEdit(paginas);
  text2_->setObjectName(QStringLiteral("Text2"));
  auto* ayudaIntervalo = new QLabel(TextoW(t, "Write_INTERVAL_COMMA"), paginas);
  ayudaIntervalo->setWordWrap(true);
  ayudaIntervalo->setEnabled(false);
  gp->addWidget(opcion_[0], 0, 0);
  gp->addWidget(opcion_[4], 1, 0);
  gp->addWidget(opcion_[2], 2, 0);
  gp->addWidget(opcion_[3], 3, 0);
  gp->addWidget(opcion_[1], 4, 0);
  gp->addWidget(text2_, 4, 1);
  gp->addWidget(ayudaIntervalo, 5, 0, 1, 2);
  gp->setColumnStretch(1, 1);
  opcion_[0]->setChecked(true);
  opcion_[4]->setEnabled(!carpeta);
  text2_->setEnabled(false);
  connect(opcion_[1], &QRadioButton::toggled, text2_, [this](bool on) {
    text2_->setEnabled(on);
    if (on) text2_->setFocus();
  });
  raiz->addWidget(paginas);

  // Copies and collation.
  auto* copias = new QHBoxLayout;
  auto* etiquetaCopias = new QLabel(TextoW(t, "NumberCopies", true), this);
  text1_ = new QLineEdit(QStringLiteral("1"), this);
  text1_->setObjectName(QStringLiteral("Text1"));
  text1_->setMaximumWidth(60);
  etiquetaCopias->setBuddy(text1_);
  vscroll1_ = new QScrollBar(Qt::Vertical, this);
  vscroll1_->setObjectName(QStringLiteral("VScroll1"));
  vscroll1_->setRange(1, kMaxCopias);
  vscroll1_->setInvertedAppearance(true);  // the upper arrow adds a copy
  vscroll1_->setInvertedControls(true);
  vscroll1_->setFixedHeight(text1_->sizeHint().height());
  connect(vscroll1_, &QScrollBar::valueChanged, this, [this](int n) { Copias(n); });
  connect(text1_, &QLineEdit::textEdited, this, [this](const QString& texto) {
    if (const auto n = LeeCopias(texto.toStdString())) {
      const QSignalBlocker b(vscroll1_);
      vscroll1_->setValue(*n);
    }
  });
  chkCollate_ = new QCheckBox(TextoW(t, "Collate", true), this);
  chkCollate_->setObjectName(QStringLiteral("ChkCOLLATE"));
  chkCollate_->setChecked(true);
  imgCollate_ = new QLabel(this);
  imgCollate_->setObjectName(QStringLiteral("ImgCOLLATE"));
  connect(chkCollate_, &QCheckBox::toggled, this, [this] { PintaIntercalado(); });
  PintaIntercalado();
  copias->addWidget(etiquetaCopias);
  copias->addWidget(text1_);
  copias->addWidget(vscroll1_);
  copias->addSpacing(16);
  copias->addWidget(chkCollate_);
  copias->addWidget(imgCollate_);
  copias->addStretch(1);
  raiz->addLayout(copias);

  auto* botones = new QDialogButtonBox(this);
  auto* imprimir = botones->addButton(TextoW(t, "But_Print", true), QDialogButtonBox::AcceptRole);
  imprimir->setObjectName(QStringLiteral("cmdImprimir"));
  imprimir->setDefault(true);
  auto* cancelar = botones->addButton(TextoW(t, "But_Cancel"), QDialogButtonBox::RejectRole);
  cancelar->setObjectName(QStringLiteral("CmdCancelar"));
  auto* ayuda = botones->addButton(TextoW(t, "But_Help", true), QDialogButtonBox::HelpRole);
  ayuda->setObjectName(QStringLiteral("CmdAyuda"));
  ayuda->setVisible(static_cast<bool>(e_.ayuda));
  connect(imprimir, &QPushButton::clicked, this, [this] { cmdImprimir(); });
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  connect(ayuda, &QPushButton::clicked, this, [this] {
    if (e_.ayuda) e_.ayuda();
  });
  if (list1_)
    connect(list1_, &QListWidget::itemSelectionChanged, imprimir,
            [this, imprimir] { imprimir->setEnabled(!list1_->selectedItems().isEmpty()); });
  if (list1_) imprimir->setEnabled(list1_->count() > 0);
  raiz->addWidget(botones);
  ActualizaTitulo();
}

QString FrmImprimir::Impresora() const { return impresoras_->currentData().toString(); }

void FrmImprimir::ActualizaTitulo() {
  const QString nombre = Impresora().isEmpty() ? impresoras_->currentText() : Impresora();
  setWindowTitle(TextoW(e_.textos, "File_Print") + QStringLiteral(" (") + nombre + u')');
}

void FrmImprimir::PintaIntercalado() { imgCollate_->setPixmap(Intercalado(chkCollate_->isChecked())); }

void FrmImprimir::Copias(int n) {
  if (LeeCopias(text1_->text().toStdString()) != n) text1_->setText(QString::number(n));
}

void FrmImprimir::Cmd_SEL(int como) {
  EligeFilas(list1_, como);
}

void FrmImprimir::cmdImprimir() {
  auto aviso = [this](FalloPaginas f) { e_.dialogos.Aviso(this, TextoW(e_.textos, ClaveDeFallo(f))); };
  EleccionImpresion e;
  e.intercalar = chkCollate_->isChecked();
  e.actual = e_.actual;
  ficheros_.clear();
  if (list1_)
    for (int i = 0; i < list1_->count(); ++i)
      if (list1_->item(i)->isSelected()) ficheros_ << list1_->item(i)->data(Qt::UserRole).toString();
  const std::optional<int> copias = LeeCopias(text1_->text().toStdString());
  if (!copias) return aviso(FalloPaginas::Copias);
  e.copias = *copias;
  const ConjuntoPaginas conjuntos[5] = {ConjuntoPaginas::Todas, ConjuntoPaginas::Intervalo, ConjuntoPaginas::Impares,
                                        ConjuntoPaginas::Pares, ConjuntoPaginas::Actual};
  for (int k = 0; k < 5; ++k)
    if (opcion_[k]->isChecked()) e.conjunto = conjuntos[k];
  if (e.conjunto == ConjuntoPaginas::Intervalo) {
    const FalloPaginas f = LeeIntervalo(text2_->text().toStdString(), std::max(e_.paginas, 0), e.tramos);
    if (f != FalloPaginas::Ninguno) {
      text2_->setFocus();
      text2_->selectAll();
      return aviso(f);
    }
  }
  eleccion_ = e;
  cancelado_ = false;
  accept();
}

}  // namespace ss
