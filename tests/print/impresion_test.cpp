// Printing through a real CUPS server: a private scheduler with a PDF queue,
// started for this run. What the queue writes is read back with poppler:
// how many sheets, in which order, with which page on each.
#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QCheckBox>
#include <QRegularExpression>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "gui/frmimprimir.h"
#include "tests/gui/ventana.h"

namespace ss {
namespace {

QString gSalidaPdf;  // where the queue writes its PDFs

QString Corre(const QString& programa, const QStringList& args) {
  QProcess p;
  p.start(programa, args);
  p.waitForFinished(60000);
  return QString::fromUtf8(p.readAllStandardOutput());
}

// The PDFs the queue wrote for a job named `nombre`, waiting until the queue is idle.
QStringList Trabajos(const QString& nombre, int esperados) {
  QStringList hechos;
  for (int i = 0; i < 600; ++i) {
    const QString pendientes = Corre("lpstat", {"-o", "SheetsmithPDF"});
    hechos = QDir(gSalidaPdf).entryList({QString(nombre).replace(' ', '_') + "*.pdf"}, QDir::Files, QDir::Time | QDir::Reversed);
    if (pendientes.trimmed().isEmpty() && hechos.size() >= esperados) break;
    QThread::msleep(100);
  }
  for (QString& h : hechos) h = QDir(gSalidaPdf).filePath(h);
  return hechos;
}

// The pages of a PDF as small grey pictures.
std::vector<QImage> Imagenes(const QString& pdf, const QString& prefijo) {
  Corre("pdftoppm", {"-r", "24", "-gray", "-png", pdf, prefijo});
  std::vector<QImage> imagenes;
  const QFileInfo base(prefijo);
  for (const QString& f : QDir(base.absolutePath()).entryList({base.fileName() + "-*.png"}, QDir::Files, QDir::Name))
    imagenes.push_back(QImage(base.absoluteDir().filePath(f)).convertToFormat(QImage::Format_Grayscale8));
  return imagenes;
}

double Diferencia(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return 1e9;
  double suma = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) suma += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
  return suma / (a.width() * a.height());
}

// Which page of the worksheet each printed sheet shows: the page of the
// worksheet's own PDF (as the command-line tool draws it) that it matches.
// The queue's PDF keeps no searchable text, so the sheets are compared as pictures.
QStringList Hojas(const QString& pdf, const QString& hoja) {
  QTemporaryDir tmp;
  Corre(SS_CLI_PATH, {"render", hoja, "-o", tmp.filePath("ref.pdf")});
  const std::vector<QImage> ref = Imagenes(tmp.filePath("ref.pdf"), tmp.filePath("ref")),
                            hojas = Imagenes(pdf, tmp.filePath("hoja"));
  QStringList paginas;
  for (const QImage& h : hojas) {
    std::size_t mejor = 0;
    for (std::size_t k = 1; k < ref.size(); ++k)
      if (Diferencia(h, ref[k]) < Diferencia(h, ref[mejor])) mejor = k;
    paginas << (ref.empty() || Diferencia(h, ref[mejor]) > 8 ? QString("?") : QString::number(mejor + 1));
  }
  return paginas;
}

class Impresion : public Ventana {
 protected:
  QTemporaryDir trabajo;
  QString hoja;
  void SetUp() override {
    Ventana::SetUp();
    // A name of its own for each test, so that its PDFs are told apart.
    hoja = trabajo.filePath(QString("t%1-%2.col").arg(getpid()).arg(::testing::UnitTest::GetInstance()->random_seed() + ++cuenta_));
    QFile::copy(H().varias, hoja);
    Abre({hoja});
  }
  void TearDown() override {
    for (const QString& f : Trabajos(QFileInfo(hoja).fileName(), 0)) QFile::remove(f);
    Ventana::TearDown();
  }
  // The print window, filled in: which pages, copies and collation.
  static std::function<void(QDialog&)> Pide(int opcion, const QString& paginas, const QString& copias, bool intercalar) {
    return [=](QDialog& d) {
      d.findChild<QRadioButton*>(QString("Option%1").arg(opcion))->setChecked(true);
      d.findChild<QLineEdit*>("Text2")->setText(paginas);
      d.findChild<QLineEdit*>("Text1")->setText(copias);
      d.findChild<QCheckBox*>("ChkCOLLATE")->setChecked(intercalar);
      d.findChild<QPushButton*>("cmdImprimir")->click();
    };
  }
  static inline int cuenta_ = 0;
};

TEST_F(Impresion, ChosenPagesComeOutInTheirOrder) {
  ASSERT_GE(doc().numPaginas, 3);
  ASSERT_TRUE(A("mnu_File_Print")->isEnabled()) << "the CUPS queue is not seen";
  struct Caso {
    int opcion;
    const char *paginas, *copias;
    bool intercalar;
    QStringList hojas;
  };
  QStringList impares;
  for (int p = 1; p <= doc().numPaginas; p += 2) impares << QString::number(p);
  const Caso casos[] = {
      {2, "1-2", "2", true, {"1", "2", "1", "2"}},
      {2, "2, 1", "2", false, {"1", "1", "2", "2"}},
      {3, "", "1", true, impares},
      {5, "", "1", true, {"2"}},  // the page on screen
  };
  doc().paginaActual = 2;
  for (std::size_t k = 0; k < std::size(casos); ++k) {
    const Caso& c = casos[k];
    SCOPED_TRACE(c.paginas);
    guion.modal = Pide(c.opcion, c.paginas, c.copias, c.intercalar);
    A("mnu_File_Print")->trigger();
    const QStringList pdfs = Trabajos(QFileInfo(hoja).fileName(), static_cast<int>(k) + 1);
    ASSERT_EQ(pdfs.size(), static_cast<int>(k) + 1);
    EXPECT_EQ(Hojas(pdfs.last(), hoja), c.hojas);
    EXPECT_EQ(Corre("pdfinfo", {pdfs.last()}).contains("595 x 842"), true);  // A4
  }
  EXPECT_EQ(doc().paginaActual, 2);
  EXPECT_TRUE(guion.avisos.isEmpty()) << guion.avisos.join('|').toStdString();
}

TEST_F(Impresion, WrongEntriesKeepTheWindowOpen) {
  struct Caso {
    const char *paginas, *copias, *clave;
  };
  for (const Caso& c : {Caso{"3-1", "1", "BadPageInterval"}, Caso{"1;2", "1", "BadCHARPageInterval"},
                        Caso{"", "1", "MissingPagesIntervals"}, Caso{"99", "1", "BadPageInterval"},
                        Caso{"1", "500", "TooMuchCopies"}}) {
    guion.avisos.clear();
    bool abierta = false;
    guion.modal = [&](QDialog& d) {
      Pide(2, c.paginas, c.copias, true)(d);
      abierta = d.isVisible();
    };
    A("mnu_File_Print")->trigger();
    EXPECT_TRUE(abierta) << c.paginas;
    ASSERT_EQ(guion.avisos.size(), 1) << c.paginas;
    TextosVentana t(QCoreApplication::applicationDirPath().toStdString(), "PRI");
    t.LoadIdioma();
    EXPECT_EQ(guion.avisos[0], QString::fromStdString(Cp1252ToUtf8(t.GetL_win(c.clave)))) << c.paginas;
  }
  EXPECT_TRUE(Trabajos(QFileInfo(hoja).fileName(), 0).isEmpty());
}

TEST_F(Impresion, AStoppedRunGivesBackZoomAndPage) {
  A("mnu_setup_zoom150")->trigger();
  const double zoom = w->vista().Zoom();
  doc().paginaActual = 3;
  guion.paraEn = 2;  // stopped before the third sheet
  guion.modal = Pide(1, "", "1", true);
  A("mnu_File_Print")->trigger();
  const QStringList pdfs = Trabajos(QFileInfo(hoja).fileName(), 1);
  ASSERT_EQ(pdfs.size(), 1);
  EXPECT_EQ(Hojas(pdfs[0], hoja), (QStringList{"1", "2"}));
  EXPECT_EQ(guion.pasos.size(), 3);
  EXPECT_DOUBLE_EQ(w->vista().Zoom(), zoom);
  EXPECT_EQ(doc().paginaActual, 3);
  EXPECT_TRUE(A("mnu_File_Print")->isEnabled());
}

TEST_F(Impresion, AFolderPrintsEveryGoodWorksheet) {
  QTemporaryDir carpeta;
  const QString stem = QFileInfo(hoja).completeBaseName();
  QFile::copy(H().una, carpeta.filePath(stem + "a.col"));
  QFile::copy(H().danada, carpeta.filePath(stem + "b.col"));
  QFile::copy(H().dos, carpeta.filePath(stem + "c.col"));
  const Coleccion antes = doc().col;
  guion.carpeta = carpeta.path();
  QStringList listados;
  guion.modal = [&](QDialog& d) {
    auto* l = d.findChild<QListWidget*>("List1");
    for (int i = 0; i < l->count(); ++i) listados << l->item(i)->text();
    EXPECT_FALSE(d.findChild<QRadioButton*>("Option5")->isEnabled());  // no page on screen here
    Pide(1, "", "1", true)(d);
  };
  A("mnu_File_Print_folder")->trigger();
  EXPECT_EQ(listados.size(), 3);
  ASSERT_EQ(guion.avisos.size(), 1);
  EXPECT_TRUE(guion.avisos[0].contains(stem + "b.col")) << guion.avisos[0].toStdString();
  const QStringList a = Trabajos(stem + "a.col", 1), c = Trabajos(stem + "c.col", 1);
  EXPECT_EQ(a.size(), 1);
  EXPECT_EQ(c.size(), 1);
  EXPECT_TRUE(Trabajos(stem + "b.col", 0).isEmpty());
  for (const QString& f : a + c) QFile::remove(f);
  EXPECT_EQ(doc().ruta, hoja);  // the open worksheet is still the one on screen
  EXPECT_EQ(doc().col.problemas.size(), antes.problemas.size());
}

// A private scheduler in a scratch folder, with one PDF queue.
struct Cups {
  QTemporaryDir dir;
  QProcess cupsd;
  QString fallo;
  Cups() {
    const QString d = dir.path();
    for (const char* sub : {"spool", "tmp", "cache", "state", "log"}) QDir(d).mkdir(sub);
    QFile::setPermissions(d, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                 QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    ::chmod(QFile::encodeName(d + "/tmp").constData(), 01777);
    auto escribe = [&](const QString& nombre, const QString& texto) {
      QFile f(d + "/" + nombre);
      f.open(QIODevice::WriteOnly);
      f.write(texto.toUtf8());
    };
    escribe("cupsd.conf", QString("Listen %1/cups.sock\nLogLevel warn\nWebInterface No\nBrowsing No\n"
                                  "DefaultAuthType None\n<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                                  "<Policy default>\n  <Limit All>\n    Order deny,allow\n  </Limit>\n</Policy>\n")
                              .arg(d));
    escribe("cups-files.conf", QString("ServerRoot %1\nRequestRoot %1/spool\nTempDir %1/tmp\nCacheDir %1/cache\n"
                                       "StateDir %1/state\nErrorLog %1/log/error_log\nAccessLog %1/log/access_log\n"
                                       "PageLog %1/log/page_log\nServerBin /usr/lib/cups\nDataDir /usr/share/cups\n"
                                       "User lp\nGroup lp\nSystemGroup root\n")
                                   .arg(d));
    if (QStandardPaths::findExecutable("cupsd", {"/usr/sbin", "/sbin"}).isEmpty()) {
      fallo = "cupsd is not installed (Debian packages cups and printer-driver-cups-pdf)";
      return;
    }
    cupsd.start(QStandardPaths::findExecutable("cupsd", {"/usr/sbin", "/sbin"}),
                {"-f", "-c", d + "/cupsd.conf", "-s", d + "/cups-files.conf"});
    qputenv("CUPS_SERVER", (d + "/cups.sock").toUtf8());
    for (int i = 0; i < 100 && !QFileInfo::exists(d + "/cups.sock"); ++i) QThread::msleep(100);
    if (!QFileInfo::exists(d + "/cups.sock")) {
      fallo = "cupsd did not start: " + QString::fromUtf8(cupsd.readAllStandardError());
      return;
    }
    QProcess lpadmin;
    lpadmin.start("lpadmin", {"-p", "SheetsmithPDF", "-E", "-v", "cups-pdf:/", "-m", "lsb/usr/cups-pdf/CUPS-PDF_opt.ppd"});
    lpadmin.waitForFinished(60000);
    if (lpadmin.exitCode() != 0) fallo = "lpadmin failed: " + QString::fromUtf8(lpadmin.readAllStandardError());
    Corre("lpadmin", {"-d", "SheetsmithPDF"});
    // Where cups-pdf writes: its "Out" setting, the home of the user printing.
    QFile conf("/etc/cups/cups-pdf.conf");
    QString salida = "${HOME}/PDF";
    if (conf.open(QIODevice::ReadOnly))
      for (const QString& linea : QString::fromUtf8(conf.readAll()).split('\n'))
        if (linea.startsWith("Out ")) salida = linea.mid(4).trimmed();
    gSalidaPdf = salida.replace("${HOME}", QDir::homePath());
  }
  ~Cups() {
    cupsd.terminate();
    cupsd.waitForFinished(5000);
  }
};

}  // namespace
}  // namespace ss

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  ss::Cups cups;  // before the application, so that the printing system sees our server
  if (!cups.fallo.isEmpty()) {
    std::fprintf(stderr, "The printing tests need a CUPS server with a PDF queue: %s\n", qPrintable(cups.fallo));
    return 1;
  }
  QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
