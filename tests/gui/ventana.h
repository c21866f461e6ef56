// What the window tests share: scripted dialogs, worksheets made by the
// command-line tool, and a fixture that starts the main window with settings
// of its own.
#pragma once

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <deque>
#include <functional>
#include <memory>
#include "gui/dialogos.h"
#include "gui/formmain.h"
#include "gui/forminiopt.h"
#include "gui/vista.h"
#include "problems/texto.h"
#include "worksheet/ajustes.h"
#include "worksheet/colfile.h"
#include "worksheet/coleccion.h"
#include "worksheet/edicion.h"
#include "worksheet/sesion.h"

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
QT_END_NAMESPACE

namespace ss {
namespace {

// Answers every dialog from a script and notes what was asked.
struct Guion final : Dialogos {
  QStringList avisos, preguntas, confirmaciones, lanzados, abiertos;
  int paneles = 0, dialogosAbrir = 0, dialogosGuardar = 0;
  bool terminado = false;
  std::deque<Respuesta> respuestas;  // for the Yes/No/Cancel questions; No when empty
  bool confirma = false;
  QString abrir, guardar;
  RespuestaPanel panel;

  void Aviso(QWidget*, const QString& t) override { avisos << t; }
  void Critico(QWidget*, const QString& t) override { avisos << t; }
  Respuesta Pregunta(QWidget*, const QString& t) override {
    preguntas << t;
    if (respuestas.empty()) return Respuesta::No;
    const Respuesta r = respuestas.front();
    respuestas.pop_front();
    return r;
  }
  bool Confirma(QWidget*, const QString& t) override { return confirmaciones << t, confirma; }
  QString FicheroAbrir(QWidget*, const QString&, const QString&, const QString&) override {
    return ++dialogosAbrir, abrir;
  }
  QString FicheroGuardar(QWidget*, const QString&, const QString&, const QString&) override {
    return ++dialogosGuardar, guardar;
  }
  QString carpeta;  // the folder the folder dialog gives
  QString Carpeta(QWidget*, const QString&, const QString&) override { return carpeta; }
  int configuraciones = 0;
  void ConfiguraImpresora(QWidget*, QPrinter&) override { ++configuraciones; }
  // Long runs: each step is noted; the run is stopped before step `paraEn`.
  QStringList pasos;
  int paraEn = -1;
  struct AvanceGuion final : Avance {
    Guion& g;
    explicit AvanceGuion(Guion& guion) : g(guion) {}
    bool Paso(int hecho, const QString& texto) override { return g.pasos << texto, hecho != g.paraEn; }
  };
  std::unique_ptr<Avance> EmpiezaAvance(QWidget*, const QString&, int) override {
    return std::make_unique<AvanceGuion>(*this);
  }
  RespuestaPanel PanelInicio(FormIniOpt&) override { return ++paneles, panel; }
  // The program's own dialogs: shown, then driven by the test's script,
  // which ends them as a user would (or leaves them open: a cancel).
  std::function<void(QDialog&)> modal;
  void Modal(QDialog& d) override {
    d.show();
    if (modal) modal(d);
    if (d.isVisible()) d.reject();
  }
  bool LanzaPrograma(const QString& ruta) override { return lanzados << ruta, true; }
  bool AbreConEscritorio(const QUrl& url) override { return abiertos << url.toLocalFile(), true; }
  void TerminaYa() override { terminado = true; }
};

// Worksheets made once by the command-line tool, as a teacher would have them.
struct Hojas {
  QTemporaryDir dir;
  QString una, varias, dos, danada;
  Hojas() {
    auto nueva = [&](const QString& nombre, const QStringList& items) {
      const QString ruta = dir.filePath(nombre);
      QProcess p;
      p.start(QStringLiteral(SS_CLI_PATH), QStringList{"new", "--subject", "Chemistry", "--seed", "3",
                                                        "--title", "Test sheet", "-o", ruta} + items);
      p.waitForFinished(60000);
      EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
      return ruta;
    };
    una = nueva("one page.col", {"--item", "ANEU_QUIM_DIS:9=2"});
    dos = nueva("second.col", {"--item", "ANEU_QUIM_DIS:4=2"});
    varias = nueva("many.col", {"--all", "1", "--possol", "3"});
    danada = dir.filePath("damaged.col");
    QFile f(danada);
    f.open(QIODevice::WriteOnly);
    f.write("#CABECERA(this is not a worksheet");
  }
};

Hojas& H() {
  static Hojas h;
  return h;
}

[[maybe_unused]] QString TextoDe(const std::string& clave) {
  TextosVentana t(QCoreApplication::applicationDirPath().toStdString(), "MAI");
  t.LoadIdioma();
  return QString::fromStdString(Cp1252ToUtf8(t.GetL_win(clave)));
}


class Ventana : public ::testing::Test {
 protected:
  QTemporaryDir home;
  std::unique_ptr<AlmacenUsuario> almacen;
  Guion guion;
  std::unique_ptr<FormMain> w;

  void SetUp() override {
    almacen = std::make_unique<AlmacenUsuario>(Ini());
    guion.panel = {QString(), true};
  }
  void TearDown() override {
    if (w) w->hide();
    w.reset();
  }
  QString Ini() const { return home.filePath(QStringLiteral("settings.ini")); }

  // Starts the program as it starts from the desktop, and waits until the
  // start panel (if any) has had its turn.
  void Abre(const QStringList& args = {}) {
    w = std::make_unique<FormMain>(*almacen, guion, args);
    w->show();
    QTest::qWait(450);
  }
  QAction* A(const char* nombre) const { return w->findChild<QAction*>(QLatin1String(nombre)); }
  Documento& doc() const { return w->documento(); }
  QString Pagina() const { return w->LbPage()->text(); }
  void Pulsa(Qt::Key k) { QTest::keyClick(w.get(), k); }
  bool Visible(const char* menu) const { return w->findChild<QMenu*>(QLatin1String(menu))->menuAction()->isVisible(); }
  // Opens a file through File > Open.
  void AbreFichero(const QString& ruta) {
    guion.abrir = ruta;
    A("mnu_File_Open")->trigger();
  }
  bool Cierra() {
    bool cerrada = w->close();
    return cerrada;
  }
};

}  // namespace
}  // namespace ss
