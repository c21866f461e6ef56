// sheetsmith: the desktop program.
#include <QApplication>

#include "gui/formmain.h"
#include "worksheet/commands.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Lumenfold"));
  QApplication::setApplicationName(QStringLiteral("Sheetsmith - Chemistry"));
  const QStringList args = app.arguments().mid(1);
  ss::FormMain main(ss::ProcesaCommand(ss::TextoComando(args)));
  main.show();
  return app.exec();
}
