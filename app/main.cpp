// sheetsmith: the desktop program.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>

#include "gui/dialogos.h"
#include "gui/formmain.h"
#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "worksheet/ajustes.h"
#include "worksheet/carpetas.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Lumenfold"));
  QApplication::setApplicationName(QStringLiteral("Sheetsmith - Chemistry"));
  QApplication::setApplicationVersion(QStringLiteral(SS_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.lumenfold.Sheetsmith"));
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);

  // Outside a desktop that names one, the toolbar takes its pictures from a
  // full icon theme when there is one; our own pictures stand in for the rest.
  const QString tema = QIcon::themeName();
  if (tema.isEmpty() || tema == QLatin1String("hicolor"))
    for (const QString& base : QIcon::themeSearchPaths())
      if (QFileInfo::exists(base + QStringLiteral("/Adwaita/index.theme"))) {
        QIcon::setThemeName(QStringLiteral("Adwaita"));
        break;
      }
  const QString datos = ss::CarpetaDatos();
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.lumenfold.Sheetsmith"),
                                               QIcon(datos + QStringLiteral("/img/app_icon.png"))));
  ss::RegistraFuentes();

  ss::AlmacenUsuario almacen;
  ss::DialogosQt dialogos;
  try {
    ss::FormMain ventana(almacen, dialogos, QApplication::arguments().mid(1));
    QGuiApplication::restoreOverrideCursor();
    ventana.show();
    return QApplication::exec();
  } catch (const ss::ErrorFatalDatos& e) {
    // A language or subject file with a line the program cannot read: it says
    // which, and ends.
    QGuiApplication::restoreOverrideCursor();
    QMessageBox::critical(nullptr, QStringLiteral("Sheetsmith - Chemistry"),
                          QStringLiteral("%1\n%2").arg(QString::fromStdString(e.fichero().string()),
                                                       QString::fromLocal8Bit(e.what())));
    return 1;
  }
}
