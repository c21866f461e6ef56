#include "gui/marcos.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "problems/idioma.h"
#include "problems/texto.h"

namespace ss {
namespace {

std::string A1252(const QString& s) { return Utf8ToCp1252(s.toUtf8().toStdString()); }

// A colour as the header stores it (red + 256 green + 65536 blue).
QColor ColorCab(int c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

// A box for a number of at most nine digits.
QLineEdit* CajaNumero(QWidget* parent, const char* nombre) {
  auto* e = new QLineEdit(parent);
  e->setObjectName(QLatin1String(nombre));
  e->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,9}")), e));
  e->setMaxLength(9);
  e->setMaximumWidth(e->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")) + 16);
  return e;
}

QLabel* Etiqueta(const QString& texto, QWidget* companero, QWidget* parent) {
  auto* l = new QLabel(texto, parent);
  l->setBuddy(companero);
  return l;
}

// A line edit that selects its whole text when it gets the focus, so that
// typing replaces it.
class CajaTitulo final : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void focusInEvent(QFocusEvent* e) override {
    QLineEdit::focusInEvent(e);
    if (e->reason() != Qt::PopupFocusReason) QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
  }
};

}  // namespace

QString DeTexto(const std::string& s) { return QString::fromUtf8(Cp1252ToUtf8(s).c_str()); }

void EligeFilas(QListWidget* lista, int como) {
  const QSignalBlocker b(lista);
  for (int i = 0; i < lista->count(); ++i) {
    QListWidgetItem* fila = lista->item(i);
    fila->setSelected(como == 0 || (como == 2 && !fila->isSelected()));
  }
}

QString TextoW(TextosVentana& t, const char* clave, bool conAmpersand) {
  return DeTexto(t.GetL_win(clave, !conAmpersand));
}

// ---- titles ------------------------------------------------------------------------

MarcoTitulos::MarcoTitulos(TextosVentana& t, QWidget* parent) : QWidget(parent) {
  auto* g = new QGridLayout(this);
  g->setContentsMargins(0, 0, 0, 0);
  static const char* kCaja[3] = {"TxtPRETIT", "TxtPOSTI1", "TxtPOSTI2"};
  static const char* kChk[3] = {"ChkPRETIT", "ChkPOSTI1", "ChkPOSTI2"};
  for (std::size_t k = 0; k < 3; ++k) {
    pequeno_[k] = new CajaTitulo(this);
    pequeno_[k]->setObjectName(QLatin1String(kCaja[k]));
    pequeno_[k]->setMaxLength(200);
    chk_[k] = new QCheckBox(TextoW(t, "SetAsDefault"), this);
    chk_[k]->setObjectName(QLatin1String(kChk[k]));
  }
  titulo_ = new CajaTitulo(this);
  titulo_->setObjectName(QStringLiteral("TxTITULO"));
  titulo_->setMaxLength(200);
  QFont grande = titulo_->font();
  grande.setPointSizeF(grande.pointSizeF() * 1.2);
  grande.setBold(true);
  titulo_->setFont(grande);
  etiquetaTitulo_ = Etiqueta(TextoW(t, "TitleWorkSheet", true), titulo_, this);

  int fila = 0;
  auto pon = [&](QLabel* etiqueta, QLineEdit* caja, QCheckBox* chk) {
    g->addWidget(etiqueta, fila++, 0, 1, 2);
    g->addWidget(caja, fila, 0);
    if (chk) g->addWidget(chk, fila, 1);
    ++fila;
  };
  pon(Etiqueta(TextoW(t, "EducationalCenter", true), pequeno_[0], this), pequeno_[0], chk_[0]);
  pon(etiquetaTitulo_, titulo_, nullptr);
  auto* adicional = Etiqueta(TextoW(t, "AdditionalText", true), pequeno_[1], this);
  g->addWidget(adicional, fila++, 0, 1, 2);
  g->addWidget(pequeno_[1], fila, 0);
  g->addWidget(chk_[1], fila++, 1);
  g->addWidget(pequeno_[2], fila, 0);
  g->addWidget(chk_[2], fila++, 1);
  g->setColumnStretch(0, 1);
  g->setRowStretch(fila, 1);
  setTabOrder(pequeno_[0], chk_[0]);
  setTabOrder(chk_[0], titulo_);
  setTabOrder(titulo_, pequeno_[1]);
  setTabOrder(pequeno_[1], chk_[1]);
  setTabOrder(chk_[1], pequeno_[2]);
  setTabOrder(pequeno_[2], chk_[2]);
}

void MarcoTitulos::Pon(const ColeccionCab& cab, const TextosPequenos& d) {
  const std::string* texto[3] = {&cab.PRETIT, &cab.POSTI1, &cab.POSTI2};
  for (std::size_t k = 0; k < 3; ++k) {
    const QSignalBlocker b1(pequeno_[k]), b2(chk_[k]);
    pequeno_[k]->setText(DeTexto(*texto[k]));
    pequeno_[k]->setCursorPosition(0);  // a long text shows its beginning
    chk_[k]->setChecked(d.porDefecto[k]);
  }
  const QSignalBlocker b(titulo_);
  titulo_->setText(DeTexto(cab.TITULO));
  titulo_->setCursorPosition(0);
}

void MarcoTitulos::Lee(ColeccionCab& cab) const {
  cab.PRETIT = std::string(Trim(A1252(pequeno_[0]->text())));
  cab.POSTI1 = std::string(Trim(A1252(pequeno_[1]->text())));
  cab.POSTI2 = std::string(Trim(A1252(pequeno_[2]->text())));
  if (!titulo_->isHidden()) cab.TITULO = std::string(Trim(A1252(titulo_->text())));
}

TextosPequenos MarcoTitulos::Pequenos() const {
  TextosPequenos p;
  for (std::size_t k = 0; k < 3; ++k) {
    p.porDefecto[k] = chk_[k]->isChecked();
    p.texto[k] = std::string(Trim(A1252(pequeno_[k]->text())));
  }
  return p;
}

void MarcoTitulos::MuestraTitulo(bool mostrar) {
  titulo_->setVisible(mostrar);
  etiquetaTitulo_->setVisible(mostrar);
}

// ---- the palette -------------------------------------------------------------------

Paleta::Paleta(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Picture2"));
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

QSize Paleta::sizeHint() const { return {kColoresPaleta * kPasoPaleta + 6, 26}; }

void Paleta::PonIndice(int i) {
  indice_ = i;
  update();
}

void Paleta::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), palette().base());
  for (int i = 0; i < kColoresPaleta; ++i) {
    const QRect r(3 + i * kPasoPaleta + 1, 4, kPasoPaleta - 2, height() - 8);
    p.fillRect(r, ColorCab(ColorPaleta(i)));
    p.setPen(QColor(160, 160, 160));
    p.drawRect(r.adjusted(0, 0, -1, -1));
  }
  if (indice_ >= 0) {
    // The frame that marks the choice.
    p.setPen(QPen(hasFocus() ? palette().highlight().color() : palette().windowText().color(), 2));
    p.drawRect(QRect(kPasoPaleta * indice_ + 2, 2, kPasoPaleta + 1, height() - 4));
  }
}

void Paleta::mousePressEvent(QMouseEvent* e) {
  const int i = IndicePaletaEn(qRound(e->position().x()) - kPasoPaleta / 2);
  PonIndice(i);
  if (alElegir) alElegir(i);
}

void Paleta::keyPressEvent(QKeyEvent* e) {
  int i = indice_ < 0 ? 0 : indice_;
  if (e->key() == Qt::Key_Left)
    --i;
  else if (e->key() == Qt::Key_Right)
    ++i;
  else
    return QWidget::keyPressEvent(e);
  i = std::clamp(i, 0, kColoresPaleta - 1);
  PonIndice(i);
  if (alElegir) alElegir(i);
}

// ---- problem numbering -------------------------------------------------------------

MarcoNumeracion::MarcoNumeracion(TextosVentana& t, QWidget* parent) : QWidget(parent) {
  prefijo_ = new QLineEdit(this);
  prefijo_->setObjectName(QStringLiteral("TxProPre"));
  sufijo_ = new QLineEdit(this);
  sufijo_->setObjectName(QStringLiteral("TxProSuf"));
  for (QLineEdit* e : {prefijo_, sufijo_}) {
    e->setMaxLength(20);
    e->setMaximumWidth(e->fontMetrics().horizontalAdvance(QStringLiteral("MMMMMMMM")));
  }
  inicio_ = CajaNumero(this, "TxNumProbINI");
  paleta_ = new Paleta(this);
  muestra_ = new QLabel(this);
  muestra_->setObjectName(QStringLiteral("MuestraNumero"));
  muestra_->setMinimumWidth(70);
  muestra_->setAlignment(Qt::AlignCenter);
  muestra_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

  auto* g = new QGridLayout(this);
  g->setContentsMargins(0, 0, 0, 0);
  g->addWidget(Etiqueta(TextoW(t, "Prefix", true), prefijo_, this), 0, 0);
  etiquetaInicio_ = Etiqueta(TextoW(t, "StartNUMBERat", true), inicio_, this);
  g->addWidget(etiquetaInicio_, 0, 1);
  g->addWidget(Etiqueta(TextoW(t, "Suffix", true), sufijo_, this), 0, 2);
  g->addWidget(prefijo_, 1, 0);
  g->addWidget(inicio_, 1, 1);
  g->addWidget(sufijo_, 1, 2);
  g->addWidget(muestra_, 1, 3, Qt::AlignLeft | Qt::AlignVCenter);
  g->addWidget(Etiqueta(TextoW(t, "ProblemColorHighlight", true), paleta_, this), 2, 0, 1, 4);
  g->addWidget(paleta_, 3, 0, 1, 4, Qt::AlignLeft);
  g->setColumnStretch(4, 1);
  g->setRowStretch(4, 1);

  paleta_->alElegir = [this](int i) {
    color_ = ColorPaleta(i);
    Muestra();
  };
  for (QLineEdit* e : {prefijo_, inicio_, sufijo_}) connect(e, &QLineEdit::textEdited, this, [this] { Muestra(); });
}

void MarcoNumeracion::Pon(const ColeccionCab& cab) {
  const QSignalBlocker b1(prefijo_), b2(inicio_), b3(sufijo_);
  prefijo_->setText(DeTexto(cab.PROPRE));
  sufijo_->setText(DeTexto(cab.PROSUF));
  inicio_->setText(QString::number(cab.PROINI));
  color_ = cab.COLRESPRO;
  paleta_->PonIndice(IndiceDeColor(cab.COLRESPRO));
  Muestra();
}

void MarcoNumeracion::Lee(ColeccionCab& cab) const {
  cab.PROPRE = A1252(prefijo_->text());
  cab.PROSUF = A1252(sufijo_->text());
  if (!inicio_->isHidden()) cab.PROINI = LeeNumeroInicial(A1252(inicio_->text()));
  cab.COLRESPRO = color_;
}

void MarcoNumeracion::MuestraInicio(bool mostrar) {
  inicio_->setVisible(mostrar);
  etiquetaInicio_->setVisible(mostrar);
}

// The label of the first problem as the worksheet will show it.
void MarcoNumeracion::Muestra() {
  const int n = inicio_->isHidden() ? 1 : LeeNumeroInicial(A1252(inicio_->text()));
  muestra_->setText(QStringLiteral("<b>%1%2%3</b>")
                        .arg(prefijo_->text().toHtmlEscaped())
                        .arg(n)
                        .arg(sufijo_->text().toHtmlEscaped()));
  const QColor c = ColorCab(color_);
  muestra_->setStyleSheet(QStringLiteral("QLabel { background: %1; color: black; border: 1px solid #999; padding: 4px; }")
                              .arg(c.name()));
}

// ---- page numbers ------------------------------------------------------------------

MarcoPaginas::MarcoPaginas(TextosVentana& t, QWidget* parent) : QWidget(parent) {
  mostrar_ = new QCheckBox(TextoW(t, "ShowPageNUM", true), this);
  mostrar_->setObjectName(QStringLiteral("Check1"));
  inicio_ = CajaNumero(this, "TxINIPAG");
  posicion_ = new QComboBox(this);
  posicion_->setObjectName(QStringLiteral("Combo1"));
  for (const char* k : {"Pos_UP", "Pos_DW"}) posicion_->addItem(TextoW(t, k));
  alineacion_ = new QComboBox(this);
  alineacion_->setObjectName(QStringLiteral("Combo2"));
  for (const char* k : {"Alig_L", "Alig_C", "Alig_R", "Alig_I", "Alig_E"}) alineacion_->addItem(TextoW(t, k));
  muestra_ = new QLabel(this);
  muestra_->setObjectName(QStringLiteral("MuestraPagina"));

  auto* f = new QFormLayout;
  f->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  f->addRow(mostrar_);
  etiquetaInicio_ = Etiqueta(TextoW(t, "FirstPageNUM", true), inicio_, this);
  f->addRow(etiquetaInicio_, inicio_);
  f->addRow(Etiqueta(TextoW(t, "PagePOS", true), posicion_, this), posicion_);
  f->addRow(Etiqueta(TextoW(t, "PageALIG", true), alineacion_, this), alineacion_);
  auto* h = new QHBoxLayout(this);
  h->setContentsMargins(0, 0, 0, 0);
  h->addLayout(f);
  h->addSpacing(24);
  h->addWidget(muestra_, 0, Qt::AlignTop);
  h->addStretch(1);

  connect(mostrar_, &QCheckBox::clicked, this, [this] { Combo1_Click(); });
  connect(posicion_, &QComboBox::activated, this, [this] { Combo1_Click(); });
  connect(alineacion_, &QComboBox::activated, this, [this] { Combo1_Click(); });
}

void MarcoPaginas::Pon(const ColeccionCab& cab) {
  const QSignalBlocker b1(mostrar_), b2(inicio_), b3(posicion_), b4(alineacion_);
  posnumpag_ = cab.POSNUMPAG;
  const LugarNumero l = LugarDe(cab.POSNUMPAG);
  mostrar_->setChecked(l.mostrar);
  posicion_->setCurrentIndex(l.abajo ? 1 : 0);
  alineacion_->setCurrentIndex(static_cast<int>(l.alineacion));
  inicio_->setText(QString::number(cab.PAGINI));
  Habilita();
  Dibuja();
}

void MarcoPaginas::Lee(ColeccionCab& cab) const {
  cab.POSNUMPAG = posnumpag_;
  if (!inicio_->isHidden()) cab.PAGINI = LeeNumeroInicial(A1252(inicio_->text()));
}

void MarcoPaginas::MuestraInicio(bool mostrar) {
  inicio_->setVisible(mostrar);
  etiquetaInicio_->setVisible(mostrar);
}

void MarcoPaginas::Combo1_Click() {
  LugarNumero l;
  l.mostrar = mostrar_->isChecked();
  l.abajo = posicion_->currentIndex() == 1;
  l.alineacion = static_cast<Alineacion>(std::max(0, alineacion_->currentIndex()));
  posnumpag_ = PosNumPag(l);
  Habilita();
  Dibuja();
}

void MarcoPaginas::Habilita() {
  for (QWidget* w : {static_cast<QWidget*>(inicio_), static_cast<QWidget*>(posicion_),
                     static_cast<QWidget*>(alineacion_)})
    w->setEnabled(mostrar_->isChecked());
}

// Two facing pages, odd and even, with lines of text and the numbers where
// the choice puts them.
void MarcoPaginas::Dibuja() {
  const qreal dpr = devicePixelRatioF();
  const QSize tam(132, 92);
  QPixmap pm(tam * dpr);
  pm.setDevicePixelRatio(dpr);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  const LugarNumero l = LugarDe(posnumpag_);
  for (int k = 0; k < 2; ++k) {
    const QRectF hoja(4 + k * 64, 4, 58, 82);
    p.setPen(QColor(0x2c, 0x3e, 0x50));
    p.setBrush(Qt::white);
    p.drawRect(hoja);
    p.setPen(QPen(QColor(190, 190, 190), 2));
    for (int r = 0; r < 7; ++r) {
      const qreal y = hoja.top() + 16 + r * 8.5;
      p.drawLine(QPointF(hoja.left() + 8, y), QPointF(hoja.right() - (r % 3 == 2 ? 20 : 8), y));
    }
    if (!posnumpag_) continue;
    const int numero = k + 1;  // the left page is the first, odd one
    const bool impar = numero % 2 == 1;
    bool derecha = false, centro = false;
    switch (l.alineacion) {
      case Alineacion::Izquierda: break;
      case Alineacion::Centro: centro = true; break;
      case Alineacion::Derecha: derecha = true; break;
      case Alineacion::FueraImpar: derecha = impar; break;
      case Alineacion::DentroImpar: derecha = !impar; break;
    }
    const qreal w = 9;
    const qreal x = centro ? hoja.center().x() - w / 2 : derecha ? hoja.right() - 8 - w : hoja.left() + 8;
    const qreal y = l.abajo ? hoja.bottom() - 9 : hoja.top() + 4;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2f, 0x80, 0xc0));
    p.drawRoundedRect(QRectF(x, y, w, 6), 1.5, 1.5);
  }
  p.end();
  muestra_->setPixmap(pm);
}

// ---- order -------------------------------------------------------------------------

MarcoOrden::MarcoOrden(TextosVentana& t, QWidget* parent) : QWidget(parent) {
  porTemas_ = new QRadioButton(TextoW(t, "Sort_by_Topics", true), this);
  porTemas_->setObjectName(QStringLiteral("Option11"));
  azar_ = new QRadioButton(TextoW(t, "Unsorted", true), this);
  azar_->setObjectName(QStringLiteral("Option12"));
  auto* v = new QVBoxLayout(this);
  v->setContentsMargins(0, 0, 0, 0);
  v->addWidget(porTemas_);
  v->addWidget(azar_);
  v->addStretch(1);
}

void MarcoOrden::Pon(const ColeccionCab& cab) {
  (cab.ORDENA != 0 ? porTemas_ : azar_)->setChecked(true);
}

void MarcoOrden::Lee(ColeccionCab& cab) const { cab.ORDENA = porTemas_->isChecked() ? kVerdadero : 0; }

// ---- solutions ---------------------------------------------------------------------

MarcoSoluciones::MarcoSoluciones(TextosVentana& t, const QString& carpetaImg, QWidget* parent)
    : QWidget(parent) {
  static const char* kNombre[4] = {"Option1", "Option13", "Option19", "Option5"};
  static const char* kClave[4] = {"ANSWERS_NO", "ANSWERS_AFTER", "ANSWERS_END", "ANSWERS_PAGE"};
  static const char* kImagen[4] = {"answers_none.png", "answers_after.png", "answers_end.png", "answers_page.png"};
  auto* g = new QGridLayout(this);
  g->setContentsMargins(0, 0, 0, 0);
  for (int k = 0; k < 4; ++k) {
    auto* r = new QRadioButton(TextoW(t, kClave[k], true), this);
    r->setObjectName(QLatin1String(kNombre[k]));
    opcion_[static_cast<std::size_t>(k)] = r;
    auto* imagen = new QLabel(this);
    imagen->setPixmap(QPixmap(QDir(carpetaImg).filePath(QLatin1String(kImagen[k]))));
    imagen->setAlignment(Qt::AlignCenter);
    g->addWidget(imagen, 2 * (k / 2), k % 2, Qt::AlignLeft | Qt::AlignBottom);
    g->addWidget(r, 2 * (k / 2) + 1, k % 2, Qt::AlignLeft | Qt::AlignTop);
  }
  g->setHorizontalSpacing(24);
  g->setColumnStretch(2, 1);
  g->setRowStretch(4, 1);
}

void MarcoSoluciones::Pon(const ColeccionCab& cab) {
  opcion_[static_cast<std::size_t>(std::clamp(cab.POSSOL, 0, 3))]->setChecked(true);
}

void MarcoSoluciones::Lee(ColeccionCab& cab) const {
  for (int k = 0; k < 4; ++k)
    if (opcion_[static_cast<std::size_t>(k)]->isChecked()) cab.POSSOL = k;
}

}  // namespace ss
