#include "gui/formacerca.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

#include "problems/idioma.h"
#include "problems/texto.h"

#ifndef SS_VERSION
#define SS_VERSION "0.0.0"
#endif

namespace ss {
namespace {

QString Texto(TextosVentana& t, const char* clave) {
  return QString::fromUtf8(Cp1252ToUtf8(t.GetL_win(clave)).c_str());
}

}  // namespace

FormAcerca::FormAcerca(Modo modo, TextosVentana& t, const QString& carpetaDatos, int ms, QWidget* parent)
    : QWidget(parent, modo == Modo::Apertura ? Qt::SplashScreen | Qt::FramelessWindowHint
                                             : Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint),
      reloj_(new QTimer(this)) {
  setObjectName(modo == Modo::Apertura ? QStringLiteral("FormSplash") : QStringLiteral("FormAcerca"));
  setAttribute(Qt::WA_DeleteOnClose);
  if (modo == Modo::Apertura) setAttribute(Qt::WA_ShowWithoutActivating);
  setWindowTitle(Texto(t, "Help_About").remove(u'&'));
  setCursor(Qt::PointingHandCursor);
  QPalette paleta = palette();
  paleta.setColor(QPalette::Window, QColor(250, 250, 247));
  paleta.setColor(QPalette::WindowText, QColor(40, 44, 52));
  setPalette(paleta);
  setAutoFillBackground(true);

  auto* rejilla = new QGridLayout(this);
  rejilla->setContentsMargins(28, 24, 32, 22);
  rejilla->setHorizontalSpacing(24);
  auto* imagen = new QLabel(this);
  QPixmap icono(carpetaDatos + QStringLiteral("/img/app_icon.png"));
  if (!icono.isNull()) imagen->setPixmap(icono.scaled(128, 128, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  rejilla->addWidget(imagen, 0, 0, 4, 1, Qt::AlignTop);

  auto* titulo = new QLabel(QStringLiteral("Sheetsmith - Chemistry"), this);
  titulo->setObjectName(QStringLiteral("LblTitulo"));
  QFont f = titulo->font();
  f.setPointSizeF(f.pointSizeF() * 2.1);
  f.setBold(true);
  titulo->setFont(f);
  rejilla->addWidget(titulo, 0, 1);

  auto* version = new QLabel(Texto(t, "About_Version").replace(QStringLiteral("%V%"),
                                                               QStringLiteral(SS_VERSION)),
                             this);
  version->setObjectName(QStringLiteral("LblVersion"));
  QFont fv = version->font();
  fv.setPointSizeF(fv.pointSizeF() * 1.2);
  version->setFont(fv);
  rejilla->addWidget(version, 1, 1);

  auto* referencia = new QLabel(Texto(t, "About_Reference"), this);
  referencia->setObjectName(QStringLiteral("LblReferencia"));
  referencia->setWordWrap(true);
  rejilla->addWidget(referencia, 2, 1);

  auto* pie = new QLabel(Texto(t, "About_Close"), this);
  QPalette gris = pie->palette();
  gris.setColor(QPalette::WindowText, QColor(120, 120, 120));
  pie->setPalette(gris);
  rejilla->addWidget(pie, 3, 1, Qt::AlignBottom);
  rejilla->setRowStretch(3, 1);

  reloj_->setSingleShot(true);
  connect(reloj_, &QTimer::timeout, this, &QWidget::close);
  reloj_->start(ms);
  setFixedSize(sizeHint().expandedTo(QSize(520, 200)));
}

void FormAcerca::mousePressEvent(QMouseEvent*) { close(); }

void FormAcerca::keyPressEvent(QKeyEvent*) { close(); }

void FormAcerca::paintEvent(QPaintEvent* e) {
  QWidget::paintEvent(e);
  QPainter p(this);
  p.setPen(QPen(QColor(28, 98, 140), 3));
  p.drawLine(0, 1, width(), 1);
  p.setPen(QColor(180, 180, 180));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace ss
