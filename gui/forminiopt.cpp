#include "gui/forminiopt.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFile>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "problems/idioma.h"
#include "problems/texto.h"
#include "worksheet/inicio.h"

namespace ss {
namespace {

QString Texto(TextosVentana& t, const char* clave) {
  return QString::fromUtf8(Cp1252ToUtf8(t.GetL_win(clave)).c_str());
}

// One choice of the panel: its picture, a small line and a large line, all
// of which answer a click, the keyboard too.
class Opcion final : public QAbstractButton {
 public:
  Opcion(const QPixmap& imagen, const QString& pequena, const QString& grande, QWidget* parent)
      : QAbstractButton(parent), imagen_(imagen), pequena_(pequena), grande_(grande) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(pequena + u' ' + grande);
    setText(accessibleName());
    setAttribute(Qt::WA_Hover);
  }

  QSize sizeHint() const override {
    QFont grande = font();
    grande.setPointSizeF(grande.pointSizeF() * 1.35);
    grande.setBold(true);
    const int texto = std::max(fontMetrics().horizontalAdvance(pequena_),
                               QFontMetrics(grande).horizontalAdvance(grande_));
    return {kLado + 3 * kHueco + texto + kHueco, kLado + 2 * kHueco};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF marco = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (!isEnabled()) {
      p.setOpacity(0.45);
    } else if (isDown() || underMouse() || hasFocus()) {
      p.setPen(QPen(palette().highlight().color(), hasFocus() ? 2 : 1));
      QColor fondo = palette().highlight().color();
      fondo.setAlpha(isDown() ? 70 : 35);
      p.setBrush(fondo);
      p.drawRoundedRect(marco, 6, 6);
    }
    const QRect cuadro(kHueco, (height() - kLado) / 2, kLado, kLado);
    if (!imagen_.isNull()) p.drawPixmap(cuadro, imagen_);
    const int x = cuadro.right() + 2 * kHueco;
    p.setPen(palette().windowText().color());
    QFont f = font();
    p.setFont(f);
    const int centro = height() / 2;
    p.drawText(QRect(x, 0, width() - x, centro - 2), Qt::AlignLeft | Qt::AlignBottom, pequena_);
    f.setPointSizeF(f.pointSizeF() * 1.35);
    f.setBold(true);
    p.setFont(f);
    p.drawText(QRect(x, centro, width() - x, height() - centro), Qt::AlignLeft | Qt::AlignTop, grande_);
  }

 private:
  static constexpr int kLado = 64;
  static constexpr int kHueco = 8;
  QPixmap imagen_;
  QString pequena_, grande_;
};

}  // namespace

FormIniOpt::FormIniOpt(TextosVentana& t, const QString& carpetaDatos, bool asistente, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("FormIniOpt"));
  setWindowTitle(QStringLiteral("Sheetsmith - Chemistry"));
  setModal(true);
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
  t.LoadIdioma();

  auto* todo = new QVBoxLayout(this);
  todo->setContentsMargins(24, 18, 24, 14);
  todo->setSpacing(10);
  auto* titulo = new QLabel(Texto(t, "WhatYouDo"), this);
  QFont grande = titulo->font();
  grande.setPointSizeF(grande.pointSizeF() * 1.6);
  titulo->setFont(grande);
  todo->addWidget(titulo);

  struct Eleccion {
    const char* imagen;
    const char* pequena;
    const char* grande;
    QString comando;
  };
  const Eleccion elecciones[] = {
      {"ini_example0", "OpenExampleOf", "TitleExample0", ComandoEjemplo(carpetaDatos, t, 0)},
      {"ini_example1", "OpenExampleOf", "TitleExample1", ComandoEjemplo(carpetaDatos, t, 1)},
      {"ini_example2", "OpenExampleOf", "TitleExample2", ComandoEjemplo(carpetaDatos, t, 2)},
      {"ini_open", "OpenASaved", "Worksheet", QStringLiteral("OPEN?:")},
      {"ini_new", "Create", "NewWorksheet", QStringLiteral("WIZARD:")},
  };
  auto* rejilla = new QGridLayout;
  rejilla->setHorizontalSpacing(12);
  rejilla->setVerticalSpacing(6);
  int i = 0;
  for (const Eleccion& e : elecciones) {
    const QPixmap imagen(carpetaDatos + QStringLiteral("/img/%1.png").arg(QLatin1String(e.imagen)));
    auto* opcion = new Opcion(imagen, Texto(t, e.pequena), Texto(t, e.grande), this);
    opcion->setObjectName(QStringLiteral("ImageOP%1").arg(i));
    const QString comando = e.comando;
    connect(opcion, &QAbstractButton::clicked, this, [this, comando] { Elige(comando); });
    if (comando == QLatin1String("WIZARD:")) opcion->setEnabled(asistente);
    // The examples on the left, the saved and the new worksheet on the right.
    if (i < 3)
      rejilla->addWidget(opcion, i, 0);
    else
      rejilla->addWidget(opcion, i - 3, 1);
    ++i;
  }
  todo->addLayout(rejilla);

  auto* pie = new QHBoxLayout;
  check1_ = new QCheckBox(Texto(t, "ShowOnStartUp"), this);
  check1_->setObjectName(QStringLiteral("Check1"));
  // The panel only shows when the setting asks for it: the box starts ticked,
  // and the setting changes only when the teacher unticks it.
  check1_->setChecked(true);
  pie->addWidget(check1_);
  pie->addStretch();
  auto* cerrar = new QPushButton(Texto(t, "CloseThisWindow"), this);
  cerrar->setObjectName(QStringLiteral("Label3"));
  connect(cerrar, &QPushButton::clicked, this, [this] { Elige(QString()); });
  pie->addWidget(cerrar);
  todo->addLayout(pie);
  todo->setSizeConstraint(QLayout::SetFixedSize);
}

bool FormIniOpt::Mostrar() const { return check1_->isChecked(); }

void FormIniOpt::Elige(const QString& comando) {
  comando_ = comando;
  accept();
}

}  // namespace ss
