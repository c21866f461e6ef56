#include "gui/formmain.h"

#include <QLabel>

#include "worksheet/sesion.h"

namespace ss {

FormMain::FormMain(const QStringList& ficherosAbrir, QWidget* parent)
    : QMainWindow(parent), ficherosAbrir_(ficherosAbrir) {
  setWindowTitle(TituloApp());
  auto* page = new QLabel(this);
  page->setAlignment(Qt::AlignCenter);
  page->setStyleSheet(QStringLiteral("background: #808080;"));
  setCentralWidget(page);
  resize(1024, 768);
}

}  // namespace ss
