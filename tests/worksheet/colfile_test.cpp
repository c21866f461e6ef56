#include "worksheet/colfile.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <tuple>

#include "typeset/canvas_qt.h"

namespace ss {
namespace {

class PlataformaGrabadora : public PlataformaMuda {
 public:
  std::vector<std::string> avisos, criticos;
  std::vector<QString> titulos, recientes;
  std::vector<bool> estados;
  int guardarComo = 0;
  void Aviso(const std::string& t) override { avisos.push_back(t); }
  void Critico(const std::string& t) override { criticos.push_back(t); }
  void TituloVentana(const QString& t) override { titulos.push_back(t); }
  void Reciente(const QString& r) override { recientes.push_back(r); }
  void EstadoDocumento(bool a) override { estados.push_back(a); }
  bool GuardarComo() override { ++guardarComo; return false; }
};

// One run of the program: its own program folder (with img/), scratch folder
// and folder of worksheets, all temporary.
struct Banco {
  QTemporaryDir programa, raiz, ficheros;
  Documento doc;
  PlataformaGrabadora pl;
  GenContext gen;
  Motor motor;
  CanvasQt oculta{nullptr};
  TextosVentana textos{SS_SOURCE_DIR, "MAI"};
  Sesion s{doc, pl, gen, motor, oculta, textos, Carpetas{}};

  Banco() {
    textos.LoadIdioma();
    QDir(programa.path()).mkdir("img");
    s.carpetas.programa = programa.path();
    s.carpetas.temporal = raiz.path() + "/lftemp";
  }
  QString Ruta(const QString& nombre) const { return ficheros.path() + "/" + nombre; }
  bool Guarda(const QString& ruta) { doc.ruta = ruta; return GuardarColeccion(s); }
  bool Carga(const QString& ruta) { doc.ruta = ruta; return CargarColeccion(s); }
};

std::string Lee(const QString& ruta) {
  QFile f(ruta);
  if (!f.open(QIODevice::ReadOnly)) return "<missing>";
  return f.readAll().toStdString();
}

void Escribe(const QString& ruta, const std::string& bytes) {
  QFile f(ruta);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

Problema Prob(std::string modulo, int rutina, int semilla, int variante, int cantidad, int total,
              int orden, std::string enu, std::string sol) {
  Problema p;
  p.Modulo = std::move(modulo);
  p.Rutina = static_cast<int16_t>(rutina);
  p.Semilla = static_cast<int16_t>(semilla);
  p.NumVariante = static_cast<int16_t>(variante);
  p.Cantidad = static_cast<int16_t>(cantidad);
  p.Total = static_cast<int16_t>(total);
  p.Orden = static_cast<int16_t>(orden);
  p.Enunciado = std::move(enu);
  p.Solucion = std::move(sol);
  return p;
}

void Pon(Coleccion& col, std::vector<Problema> ps) {
  col.problemas = std::move(ps);
  col.cab.NPROB = static_cast<int32_t>(col.problemas.size());
}

// A worksheet touching every header field, with Windows-1252 text.
Coleccion Muestra() {
  Coleccion c;
  c.cab.PAGINI = -3;
  c.cab.POSNUMPAG = 9;
  c.cab.COLRESPRO = 16777215;
  c.cab.PROPRE = "Problem ";
  c.cab.PROSUF = ".";
  c.cab.PROINI = 9999;
  c.cab.POSSOL = 2;
  c.cab.PRETIT = "   ";
  c.cab.TITULO = "";
  c.cab.POSTI1 = "Caf\xE9 \x80 \x96 group";
  c.cab.POSTI2 = "";
  c.cab.ORDENA = kVerdadero;
  Pon(c, {Prob("ANEU_QUIM_DIS", 7, 45, 120, 0, 3, 1, "Mass of &H_2O?", "18 g"),
           Prob("ANEU_QUIM_EGA", 12, 1001, 9001, 26, 2, 2, "", "")});
  return c;
}

TEST(ColFile, WritesEveryItemOfTheFileTableByteForByte) {
  Banco b;
  b.doc.col = Muestra();
  b.doc.Modificada = true;
  ASSERT_TRUE(b.Guarda(b.Ruta("sheet.col")));
  EXPECT_FALSE(b.doc.Modificada);
  const std::string row1 = "ANEU_QUIM_DIS" + std::string(67, ' ') + "0070450120000301" + "9999\r\n";
  const std::string row2 = "ANEU_QUIM_EGA" + std::string(67, ' ') + "0120019001260202" + "0000\r\n";
  ASSERT_EQ(row1.size(), 102u);
  const std::string expected =
      "#CABECERA(#PROPARAM(" + row1 + row2 + "#PROPARAM)" +
      "#TITULO(#TITULO)#POSTI1(Caf\xE9 \x80 \x96 group#POSTI1)#POSNUMPAG( 9#POSNUMPAG)"
      "#COLRESPRO( 16777215#COLRESPRO)#ORDENA(1#ORDENA)#PAGINI(-3#PAGINI)#POSSOL( 2#POSSOL)"
      "#PROPRE(Problem #PROPRE)#PROSUF(.#PROSUF)#PROINI( 9999#PROINI)"
      "#BINDIR(00000000#BINDIR)#CABECERA)"
      "#PRO001(#ENU(Mass of &H_2O?#ENU)#SOL(18 g#SOL)#PRO001)"
      "#PRO002(#ENU(#ENU)#SOL(#SOL)#PRO002)";
  EXPECT_EQ(Lee(b.Ruta("sheet.col")), expected);
  EXPECT_FALSE(QFileInfo::exists(b.Ruta("sheet.colx")));
}

TEST(ColFile, OptionalLinesAndFlagsFollowTheirValues) {
  Coleccion c = Muestra();
  c.cab.PRETIT = " School ";
  c.cab.POSTI1 = "  ";
  c.cab.POSTI2 = "x";
  c.cab.ORDENA = 0;
  c.cab.PAGINI = 0;
  const std::string t = TextoColeccion(c);
  EXPECT_NE(t.find("#PROPARAM)#PRETIT( School #PRETIT)#TITULO(#TITULO)#POSTI2(x#POSTI2)#POSNUMPAG("),
            std::string::npos);
  EXPECT_NE(t.find("#ORDENA(0#ORDENA)#PAGINI( 0#PAGINI)"), std::string::npos);
  EXPECT_EQ(t.find("#POSTI1("), std::string::npos);
}

void EsperaIgual(const Coleccion& a, const Coleccion& b) {
  const ColeccionCab &x = a.cab, &y = b.cab;
  EXPECT_EQ(std::tie(x.PAGINI, x.POSNUMPAG, x.NPROB, x.COLRESPRO, x.PROINI, x.POSSOL, x.ORDENA),
            std::tie(y.PAGINI, y.POSNUMPAG, y.NPROB, y.COLRESPRO, y.PROINI, y.POSSOL, y.ORDENA));
  EXPECT_EQ(std::tie(x.PROPRE, x.PROSUF, x.TITULO, x.POSTI1, x.POSTI2),
            std::tie(y.PROPRE, y.PROSUF, y.TITULO, y.POSTI1, y.POSTI2));
  ASSERT_EQ(a.problemas.size(), b.problemas.size());
  for (std::size_t i = 0; i < a.problemas.size(); ++i) {
    const Problema &p = a.problemas[i], &q = b.problemas[i];
    EXPECT_EQ(std::tie(p.Modulo, p.Enunciado, p.Solucion), std::tie(q.Modulo, q.Enunciado, q.Solucion));
    EXPECT_EQ(ComandoProblema(p), ComandoProblema(q)) << i;
  }
}

TEST(ColFile, RoundTripGivesTheSameWorksheetAndTheSameBytes) {
  Banco a, b;
  a.doc.col = Muestra();
  a.doc.col.problemas[1].Semilla = 1;  // a counter past 999 cannot come back
  ASSERT_TRUE(a.Guarda(a.Ruta("one.col")));
  b.doc.Modificada = true;
  ASSERT_TRUE(b.Carga(a.Ruta("one.col")));
  EXPECT_TRUE(b.pl.avisos.empty());
  EXPECT_FALSE(b.doc.Modificada);
  EXPECT_FALSE(b.doc.bloques.empty());  // the pages were made
  EXPECT_EQ(b.doc.ruta, a.Ruta("one.col"));
  EXPECT_EQ(b.doc.col.cab.PRETIT, "");  // three blanks were written as nothing
  Coleccion esperado = a.doc.col;
  esperado.cab.PRETIT.clear();
  EsperaIgual(b.doc.col, esperado);
  ASSERT_TRUE(b.Guarda(b.Ruta("two.col")));
  EXPECT_EQ(Lee(b.Ruta("two.col")), Lee(a.Ruta("one.col")));
  // What the window was told.
  ASSERT_EQ(b.pl.titulos.size(), 1u);
  EXPECT_EQ(b.pl.titulos[0], TituloApp() + "  -  one.col");
  EXPECT_EQ(b.pl.recientes, std::vector<QString>{a.Ruta("one.col")});
  EXPECT_EQ(b.pl.estados, std::vector<bool>{true});
  EXPECT_EQ(b.doc.AppBusy, 0);
}

TEST(ColFile, FiveHundredProblemsKeepTheirTagsAndFiveHundredOneAreRefused) {
  Banco a, b;
  std::vector<Problema> ps;
  for (int i = 1; i <= 500; ++i)
    ps.push_back(Prob("ANEU_QUIM_RDX", i % 40, i % 900, (i * 7) % 9000, i % 27, 50, i % 50,
                      "S" + std::to_string(i), "A" + std::to_string(i)));
  Pon(a.doc.col, ps);
  ASSERT_TRUE(a.Guarda(a.Ruta("big.col")));
  const std::string bytes = Lee(a.Ruta("big.col"));
  EXPECT_NE(bytes.find("#PRO500(#ENU(S500#ENU)#SOL(A500#SOL)#PRO500)"), std::string::npos);
  ASSERT_TRUE(b.Carga(a.Ruta("big.col")));
  EsperaIgual(b.doc.col, a.doc.col);

  ps.push_back(Prob("ANEU_QUIM_RDX", 1, 1, 1, 1, 1, 1, "S501", "A501"));
  Pon(a.doc.col, ps);
  ASSERT_TRUE(a.Guarda(a.Ruta("over.col")));
  Banco c;
  EXPECT_FALSE(c.Carga(a.Ruta("over.col")));
  EXPECT_EQ(c.pl.avisos.size(), 1u);
  EXPECT_EQ(c.doc.col.cab.NPROB, 0);
}

TEST(ColFile, TableRowsGiveTheirColumnsToTheRightFields) {
  const std::string fila = "  MOD X " + std::string(72, ' ') + "1234567890123456" + "0001\r\n";
  const auto ps = LeerProparam(fila + fila);
  ASSERT_EQ(ps.size(), 2u);
  EXPECT_EQ(ps[0].Modulo, "MOD X");
  EXPECT_EQ(ps[1].Rutina, 123);
  EXPECT_EQ(ps[1].Semilla, 456);
  EXPECT_EQ(ps[1].NumVariante, 7890);
  EXPECT_EQ(ps[1].Cantidad, 12);
  EXPECT_EQ(ps[1].Total, 34);
  EXPECT_EQ(ps[1].Orden, 56);
  EXPECT_TRUE(LeerProparam("").empty());
  EXPECT_TRUE(LeerProparam(fila.substr(1)).empty());
  EXPECT_TRUE(LeerProparam(fila + "x").empty());
  for (std::size_t col : {80u, 85u, 95u}) {
    for (char bad : {' ', '-', '+', 'a', '\0'}) {
      std::string mala = fila;
      mala[col] = bad;
      EXPECT_TRUE(LeerProparam(fila + mala).empty()) << col << " " << int(bad);
    }
  }
}

TEST(ColFile, PictureNamesAreFoundFromTheHundredthCharacterOnOnceEach) {
  const std::string pad98(98, '-');
  EXPECT_TRUE(ImagenesDelTexto(pad98 + "#IMG('a.gif'#IMG)").empty());
  EXPECT_EQ(ImagenesDelTexto(pad98 + "-#IMG('a.gif'#IMG)"), std::vector<std::string>{"a.gif"});
  const std::string t = std::string(100, ' ') +
                        "#img('Beaker.PNG'DXmm=3:#img) #IMG(DIST'b c.gif'MARCO#IMG)"
                        "#IMG('Beaker.PNG'#IMG) #IMG('beaker.png'#IMG) #IMG(no quotes#IMG)"
                        "#IMG(''#IMG) #IMG('open.gif'";
  EXPECT_EQ(ImagenesDelTexto(t), (std::vector<std::string>{"Beaker.PNG", "b c.gif", "beaker.png"}));
}

// A picture with known bytes.
std::string Png(const QString& ruta, QColor color) {
  QImage img(3, 2, QImage::Format_RGB32);
  img.fill(color);
  img.save(ruta, "PNG");
  return Lee(ruta);
}

std::string Campo8(std::size_t n) {
  std::string s = std::to_string(n);
  return s + std::string(8 - s.size(), ' ');
}

TEST(ColFile, PicturesTravelInsideTheFile) {
  Banco a;
  const std::string beaker = Png(a.programa.path() + "/img/Beaker.png", Qt::red);
  ASSERT_TRUE(CreaCarpetaTemporal(a.s.carpetas.temporal));
  const std::string flask = Png(a.s.carpetas.temporal + "/flask.gif", Qt::blue);
  Pon(a.doc.col, {Prob("M", 1, 1, 1, 1, 1, 1, "#IMG('beaker.PNG'DXmm=20:DYmm=15:#IMG)", "x"),
                  Prob("M", 1, 2, 2, 1, 1, 1, "#IMG('flask.gif'#IMG) #IMG('beaker.PNG'#IMG)", "")});
  ASSERT_TRUE(a.Guarda(a.Ruta("pics.col")));
  const std::string f = Lee(a.Ruta("pics.col"));
  const std::size_t finTexto = f.find("#PRO002)") + 8;
  const std::size_t d = finTexto + 1, p1 = d + 96, p2 = p1 + beaker.size();
  EXPECT_NE(f.find("#BINDIR(" + Campo8(d) + "#BINDIR)"), std::string::npos);
  EXPECT_EQ(f.substr(finTexto, 96), "beaker.PNG" + std::string(22, ' ') + Campo8(p1) +
                                        Campo8(beaker.size()) + "flask.gif" + std::string(23, ' ') +
                                        Campo8(p2) + Campo8(flask.size()));
  EXPECT_EQ(f.substr(p1 - 1), beaker + flask);

  // Another machine: neither folder has them, so they are unpacked.
  Banco b;
  ASSERT_TRUE(b.Carga(a.Ruta("pics.col")));
  EXPECT_EQ(Lee(b.s.carpetas.temporal + "/beaker.PNG"), beaker);
  EXPECT_EQ(Lee(b.s.carpetas.temporal + "/flask.gif"), flask);
  struct stat st {};
  ASSERT_EQ(::stat(QFile::encodeName(b.s.carpetas.temporal).constData(), &st), 0);
  EXPECT_EQ(st.st_mode & 0777, 0700u);
  ASSERT_TRUE(b.Guarda(b.Ruta("again.col")));
  EXPECT_EQ(Lee(b.Ruta("again.col")), f);

  // A picture of the program's own folder wins over the file's copy, and one
  // already in the scratch folder is left as it is.
  Banco c;
  const std::string propia = Png(c.programa.path() + "/img/BEAKER.png", Qt::green);
  ASSERT_TRUE(CreaCarpetaTemporal(c.s.carpetas.temporal));
  Escribe(c.s.carpetas.temporal + "/flask.gif", "mine");
  ASSERT_TRUE(c.Carga(a.Ruta("pics.col")));
  EXPECT_FALSE(QFileInfo::exists(c.s.carpetas.temporal + "/beaker.PNG"));
  EXPECT_EQ(Lee(c.programa.path() + "/img/BEAKER.png"), propia);
  EXPECT_EQ(Lee(c.s.carpetas.temporal + "/flask.gif"), "mine");
}

TEST(ColFile, AMissingPictureStopsTheSaveAndKeepsTheOldFile) {
  Banco a;
  Pon(a.doc.col, {Prob("M", 1, 1, 1, 1, 1, 1, "#IMG('gone.gif'#IMG)", "")});
  Escribe(a.Ruta("keep.col"), "old bytes");
  a.doc.Modificada = true;
  EXPECT_FALSE(a.Guarda(a.Ruta("keep.col")));
  ASSERT_EQ(a.pl.criticos.size(), 1u);
  EXPECT_EQ(a.pl.criticos[0], "gone.gif\n" + a.textos.GetL_win("CantSaveImage"));
  EXPECT_EQ(Lee(a.Ruta("keep.col")), "old bytes");
  EXPECT_FALSE(QFileInfo::exists(a.Ruta("keep.colx")));
  EXPECT_TRUE(a.doc.Modificada);
}

TEST(ColFile, AFailedWriteKeepsTheOldFileAndSaysWhy) {
  Banco a;
  a.doc.col = Muestra();
  a.doc.Modificada = true;
  // A folder standing where the file should go cannot be replaced.
  ASSERT_TRUE(QDir(a.ficheros.path()).mkdir("taken.col"));
  EXPECT_FALSE(a.Guarda(a.Ruta("taken.col")));
  ASSERT_EQ(a.pl.criticos.size(), 1u);
  const std::string& box = a.pl.criticos[0];
  EXPECT_EQ(box.rfind(a.textos.GetL_win("CantSaveFile") + "\n" + a.Ruta("taken.col").toStdString() +
                          "\n\nError = 57\nDevice I/O error",
                      0),
            0u)
      << box;
  EXPECT_TRUE(QFileInfo(a.Ruta("taken.col")).isDir());
  EXPECT_FALSE(QFileInfo::exists(a.Ruta("taken.colx")));
  EXPECT_TRUE(a.doc.Modificada);
  EXPECT_EQ(a.pl.guardarComo, 0);
}

TEST(ColFile, AWriteProtectedFolderOffersSaveAs) {
  if (::geteuid() == 0) GTEST_SKIP() << "the super-user writes into any folder";
  Banco a;
  a.doc.col = Muestra();
  const QString carpeta = a.ficheros.path() + "/ro";
  ASSERT_TRUE(QDir().mkdir(carpeta));
  Escribe(carpeta + "/w.col", "old");
  ASSERT_EQ(::chmod(QFile::encodeName(carpeta).constData(), 0555), 0);
  a.doc.Modificada = true;
  EXPECT_FALSE(a.Guarda(carpeta + "/w.col"));
  ::chmod(QFile::encodeName(carpeta).constData(), 0755);
  ASSERT_EQ(a.pl.criticos.size(), 1u);
  EXPECT_EQ(a.pl.criticos[0], a.textos.GetL_win("ErrorWriteProtectFile") + "\n" +
                                  (carpeta + "/w.col").toStdString() + "\n\n" +
                                  a.textos.GetL_win("SelectOtherFileName"));
  EXPECT_EQ(a.pl.guardarComo, 1);
  EXPECT_EQ(Lee(carpeta + "/w.col"), "old");
  EXPECT_TRUE(a.doc.Modificada);

  // A write-protected file in a folder that is not is not replaced either.
  ASSERT_EQ(::chmod(QFile::encodeName(carpeta + "/w.col").constData(), 0444), 0);
  EXPECT_FALSE(a.Guarda(carpeta + "/w.col"));
  EXPECT_EQ(a.pl.guardarComo, 2);
  EXPECT_EQ(Lee(carpeta + "/w.col"), "old");
  EXPECT_FALSE(QFileInfo::exists(carpeta + "/w.colx"));
}

// An older worksheet in memory, then a damaged file.
struct Danado {
  const char* nombre;
  QString fichero;                              // the damaged file's name
  std::function<void(std::string&)> dana;       // what is done to a good file
  bool rutaQueda;                               // the path survives
  int nprob;                                    // problems afterwards
  bool cabeceraNueva;                           // the header was overwritten
};

TEST(ColFile, DamagedFilesEndInTheInvalidFileBoxAndKeepWhatTheReaderLeaves) {
  auto corta = [](std::string tag) {
    return [tag](std::string& f) { f.erase(f.find(tag), tag.size()); };
  };
  const std::vector<Danado> casos = {
      {"txt name", "w.txt", [](std::string&) {}, false, 2, false},
      {"upper-case name", "W.COL", [](std::string&) {}, true, 3, true},
      {"no header end", "w.col", corta("#CABECERA)"), false, 2, false},
      {"table of 101", "w.col", [](std::string& f) { f.erase(20, 1); }, false, 0, true},
      {"table of 0", "w.col",
       [](std::string& f) { f.erase(20, f.find("#PROPARAM)") - 20); }, false, 0, true},
      {"letter in a command", "w.col", [](std::string& f) { f[20 + 85] = 'x'; }, false, 0, true},
      {"no title", "w.col", corta("#TITULO)"), false, 2, true},
      {"no colour", "w.col", corta("#COLRESPRO)"), true, 2, true},
  };
  for (const Danado& k : casos) {
    SCOPED_TRACE(k.nombre);
    Banco a;
    Coleccion nueva = Muestra();
    nueva.cab.PRETIT = "New school";
    nueva.problemas.push_back(Prob("NEW", 3, 3, 3, 3, 3, 3, "third", "3rd"));
    nueva.cab.NPROB = 3;
    a.doc.col = nueva;
    ASSERT_TRUE(a.Guarda(a.Ruta("good.col")));
    std::string bytes = Lee(a.Ruta("good.col"));
    k.dana(bytes);
    Escribe(a.Ruta(k.fichero), bytes);

    Banco b;
    Pon(b.doc.col, {Prob("OLD", 1, 1, 1, 1, 1, 1, "old 1", ""), Prob("OLD", 2, 2, 2, 2, 2, 2, "old 2", "")});
    b.doc.col.cab.PRETIT = "Old school";
    b.doc.bloques.resize(2);
    b.doc.Modificada = true;
    const bool ok = b.Carga(a.Ruta(k.fichero));
    const bool debeIr = std::string(k.nombre) == "upper-case name";
    EXPECT_EQ(ok, debeIr);
    EXPECT_EQ(b.pl.avisos.size(), debeIr ? 0u : 1u);
    if (!debeIr) {
      EXPECT_EQ(b.pl.avisos[0], a.textos.GetL_win("InvalidFile"));
    }
    EXPECT_EQ(b.doc.ruta.isEmpty(), !k.rutaQueda);
    EXPECT_EQ(b.doc.col.cab.NPROB, k.nprob);
    EXPECT_EQ(b.doc.col.problemas.size(), static_cast<std::size_t>(k.nprob));
    if (k.nprob > 0) {
      EXPECT_EQ(b.doc.col.cab.PRETIT, k.cabeceraNueva ? "New school" : "Old school");
    } else {
      EXPECT_TRUE(b.doc.bloques.empty());
    }
    EXPECT_EQ(b.doc.AppBusy, 0);
  }
}

TEST(ColFile, AFileCutInsideAProblemIsLeftHalfLoaded) {
  Banco a;
  a.doc.col = Muestra();
  ASSERT_TRUE(a.Guarda(a.Ruta("cut.col")));
  std::string bytes = Lee(a.Ruta("cut.col"));
  bytes.resize(bytes.find("#PRO002(") + 12);
  Escribe(a.Ruta("cut.col"), bytes);
  Banco b;
  b.doc.bloques.resize(5);
  b.doc.Modificada = true;
  EXPECT_FALSE(b.Carga(a.Ruta("cut.col")));
  ASSERT_EQ(b.doc.col.problemas.size(), 2u);
  EXPECT_EQ(b.doc.col.problemas[0].Enunciado, "Mass of &H_2O?");
  EXPECT_EQ(b.doc.col.problemas[0].Solucion, "18 g");
  EXPECT_EQ(b.doc.col.problemas[1].Modulo, "ANEU_QUIM_EGA");
  EXPECT_EQ(b.doc.col.cab.POSTI1, a.doc.col.cab.POSTI1);
  EXPECT_EQ(b.doc.ruta, a.Ruta("cut.col"));
  EXPECT_EQ(b.doc.bloques.size(), 5u);  // no rebuild ran
  EXPECT_TRUE(b.doc.Modificada);
  EXPECT_TRUE(b.pl.titulos.empty());
}

TEST(ColFile, AHostilePictureDirectoryWritesOnlyIntoTheScratchFolder) {
  Banco a;
  Pon(a.doc.col, {Prob("M", 1, 1, 1, 1, 1, 1, "statement", "solution")});
  std::string t = TextoColeccion(a.doc.col);
  const std::size_t d = t.size() + 1;
  const std::vector<std::pair<std::string, std::string>> imgs = {
      {"../escape.gif", "AAAA"}, {"/tmp/abs.gif", "BB"}, {".hidden", "C"},
      {"", "DD"}, {"sub\\x.gif", "E"}, {"fine.gif", "FFFFF"}, {"last.gif", "GGG"}};
  std::string dir, datos;
  std::size_t p = d + 48 * imgs.size();
  for (const auto& [n, bytes] : imgs) {
    const std::size_t tam = n == "last.gif" ? 1000 : bytes.size();  // runs past the end
    dir += n + std::string(32 - n.size(), ' ') + Campo8(p) + Campo8(tam);
    datos += bytes;
    p += bytes.size();
  }
  t.replace(t.find("00000000"), 8, Campo8(d));
  Escribe(a.Ruta("hostile.col"), t + dir + datos);
  ASSERT_TRUE(a.Carga(a.Ruta("hostile.col")));
  const QStringList hechos = QDir(a.s.carpetas.temporal).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  EXPECT_EQ(hechos, (QStringList{"fine.gif", "last.gif"}));
  EXPECT_EQ(Lee(a.s.carpetas.temporal + "/fine.gif"), "FFFFF");
  EXPECT_EQ(Lee(a.s.carpetas.temporal + "/last.gif"), "GGG");
  EXPECT_FALSE(QFileInfo::exists(a.raiz.path() + "/escape.gif"));

  // A directory position past the end: no pictures, the text still loads.
  Banco b;
  std::string fuera = t + dir + datos;
  fuera.replace(fuera.find("#BINDIR(") + 8, 8, "99999999");
  Escribe(b.Ruta("far.col"), fuera);
  ASSERT_TRUE(b.Carga(b.Ruta("far.col")));
  EXPECT_FALSE(QFileInfo::exists(b.s.carpetas.temporal));
  EXPECT_EQ(b.doc.col.problemas[0].Solucion, "solution");
}

TEST(Carpetas, ScratchFolderIsPrivateAndLookupsFallBackToAnyCase) {
  QTemporaryDir tmp;
  const QByteArray antes = qgetenv("TMPDIR");
  qputenv("TMPDIR", QFile::encodeName(tmp.path()));
  const QString propia = tmp.path() + "/lftemp";
  const QString aparte = propia + "-" + QString::number(::geteuid());
  EXPECT_EQ(CarpetaTemporal(), propia);  // missing: the common name
  ASSERT_TRUE(CreaCarpetaTemporal(propia));
  EXPECT_TRUE(CreaCarpetaTemporal(propia));  // again: still fine
  EXPECT_EQ(CarpetaTemporal(), propia);
  ASSERT_TRUE(QDir(propia).removeRecursively());
  ASSERT_TRUE(QFile::link(tmp.path() + "/elsewhere", propia));
  EXPECT_EQ(CarpetaTemporal(), aparte);  // a planted link is never used
  EXPECT_FALSE(CreaCarpetaTemporal(propia));
  EXPECT_FALSE(QFileInfo::exists(tmp.path() + "/elsewhere"));
  if (::geteuid() == 0) {  // another user's folder
    QFile::remove(propia);
    ASSERT_TRUE(QDir().mkdir(propia));
    ASSERT_EQ(::chown(QFile::encodeName(propia).constData(), 65534, 65534), 0);
    EXPECT_EQ(CarpetaTemporal(), aparte);
    EXPECT_FALSE(CreaCarpetaTemporal(propia));
  }
  if (antes.isNull()) qunsetenv("TMPDIR"); else qputenv("TMPDIR", antes);

  const QString dir = tmp.path() + "/pics";
  ASSERT_TRUE(QDir().mkdir(dir));
  Escribe(dir + "/Atom.gif", "1");
  Escribe(dir + "/atom.GIF", "2");
  Escribe(dir + "/Ring.png", "3");
  EXPECT_EQ(BuscaEnCarpeta(dir, "atom.GIF"), dir + "/atom.GIF");
  EXPECT_EQ(BuscaEnCarpeta(dir, "Atom.gif"), dir + "/Atom.gif");
  EXPECT_EQ(BuscaEnCarpeta(dir, "RING.PNG"), dir + "/Ring.png");
  EXPECT_EQ(BuscaEnCarpeta(dir, "ring.gif"), "");
  EXPECT_EQ(BuscaEnCarpeta(dir, "../pics/Ring.png"), "");
  EXPECT_EQ(BuscaEnCarpeta(dir, ""), "");
}

}  // namespace
}  // namespace ss
