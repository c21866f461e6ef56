// Any bytes as a .col file: the reader must neither crash nor read outside
// the file, and may write nothing but plain files inside the scratch folder.
// A file that loads is saved again and the saved file read back.
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "problems/generic.h"
#include "problems/idioma.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "worksheet/colfile.h"
#include "worksheet/plataforma.h"
#include "worksheet/sesion.h"

namespace {

// Counts the boxes instead of showing them.
class PlataformaGrabadora : public ss::PlataformaMuda {
 public:
  int avisos = 0;
  int criticos = 0;
  void Aviso(const std::string&) override { ++avisos; }
  void Critico(const std::string&) override { ++criticos; }
};

struct Entorno {
  int argc = 1;
  char nombre[16] = "colfile_fuzz";
  char* argv[2] = {nombre, nullptr};
  std::unique_ptr<QGuiApplication> app;
  std::unique_ptr<QTemporaryDir> raiz;
  std::unique_ptr<ss::Motor> motor;
  std::unique_ptr<ss::CanvasQt> oculta;
  std::unique_ptr<ss::TextosVentana> textos;
  QString programa, temporal, entrada, salida;

  Entorno() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    app = std::make_unique<QGuiApplication>(argc, argv);
    raiz = std::make_unique<QTemporaryDir>();
    if (!raiz->isValid()) std::abort();
    const QDir r(raiz->path());
    r.mkpath("program/img");
    programa = r.filePath("program");
    temporal = r.filePath("scratch/lftemp");
    entrada = r.filePath("in.col");
    salida = r.filePath("out.col");
    motor = std::make_unique<ss::Motor>();
    oculta = std::make_unique<ss::CanvasQt>(nullptr);
    // The real window texts when they stand beside the binary.
    textos = std::make_unique<ss::TextosVentana>(
        QCoreApplication::applicationDirPath().toStdString(), "MAI");
    textos->LoadIdioma();
  }

  // What a run may leave: the input, the output and the scratch folder with
  // plain files only. Anything else is a write where none belongs.
  void Revisa() const {
    const QDir r(raiz->path());
    const QStringList arriba = r.entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                           QDir::NoDotAndDotDot);
    for (const QString& e : arriba)
      if (e != "in.col" && e != "out.col" && e != "program" && e != "scratch") {
        std::fprintf(stderr, "unexpected entry %s\n", qPrintable(e));
        std::abort();
      }
    const QStringList enImg = QDir(programa + "/img").entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (!enImg.isEmpty()) std::abort();
    const QStringList enScratch = QDir(r.filePath("scratch")).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (enScratch.size() > 1 || (enScratch.size() == 1 && enScratch[0] != "lftemp")) std::abort();
    QDirIterator it(temporal, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (it.hasNext()) {
      const QFileInfo fi(it.next());
      if (!fi.isFile() || fi.isSymLink() || fi.fileName().startsWith('.')) {
        std::fprintf(stderr, "unexpected scratch entry %s\n", qPrintable(fi.fileName()));
        std::abort();
      }
    }
    QDir(temporal).removeRecursively();
    QFile::remove(salida);
  }
};

Entorno& Env() {
  static Entorno e;
  return e;
}

bool Escribe(const QString& ruta, const uint8_t* data, size_t size) {
  QFile f(ruta);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  return f.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) ==
         static_cast<qint64>(size);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  Env();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Entorno& e = Env();
  if (!Escribe(e.entrada, data, size)) std::abort();

  ss::Documento doc;
  PlataformaGrabadora pl;
  ss::GenContext gen;
  ss::Sesion s{doc, pl, gen, *e.motor, *e.oculta, *e.textos, ss::Carpetas{e.programa, e.temporal}};
  doc.ruta = e.entrada;
  const bool cargada = ss::CargarColeccion(s);
  if (cargada != (pl.avisos == 0)) std::abort();  // a failed load always says so
  if (doc.col.cab.NPROB != static_cast<int32_t>(doc.col.problemas.size())) std::abort();
  if (cargada) {
    doc.ruta = e.salida;
    const int antes = pl.criticos;
    if (ss::GuardarColeccion(s)) {
      ss::Documento otro;
      PlataformaGrabadora pl2;
      ss::Sesion s2{otro, pl2, gen, *e.motor, *e.oculta, *e.textos,
                    ss::Carpetas{e.programa, e.temporal}};
      otro.ruta = e.salida;
      // What this program wrote, it reads, and reads as it was.
      if (!ss::CargarColeccion(s2)) std::abort();
      if (ss::TextoColeccion(otro.col) != ss::TextoColeccion(doc.col)) std::abort();
    } else if (pl.criticos == antes) {
      std::abort();  // a failed save always says why
    }
  }
  e.Revisa();
  return 0;
}
