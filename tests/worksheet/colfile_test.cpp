#include "worksheet/colfile.h"
#include <gtest/gtest.h>
#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <sys/stat.h>
#include <unistd.h>
#include <functional>
#include "tests/typeset/canvas_registro.h"
#include "tests/worksheet/banco.h"

namespace ss {
namespace {

using test::Banco;

std::string Lee(const QString& ruta) {
  QFile f(ruta);
  return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : "<missing>";
}
void Escribe(const QString& ruta, const std::string& bytes) {
  QFile f(ruta);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(bytes.data(), qint64(bytes.size())) == qint64(bytes.size()));
}
int Modo(const QString& ruta) {
  struct stat st {};
  return ::stat(QFile::encodeName(ruta).constData(), &st) == 0 ? int(st.st_mode & 0777) : -1;
}
std::string Campo8(std::size_t n) { return (std::to_string(n) + "        ").substr(0, 8); }

// n: generator, first counter, variant counter, items, total, order.
Problema Prob(std::string modulo, std::vector<int16_t> n, std::string enu, std::string sol) {
  return Problema{modulo, n[0], n[1], n[4], n[5], n[3], n[2], enu, sol};
}
void Pon(Coleccion& col, std::vector<Problema> ps) {
  col.problemas = std::move(ps);
  col.cab.NPROB = static_cast<int32_t>(col.problemas.size());
}

// A worksheet touching every header field, with Windows-1252 text.
Coleccion Muestra() {
  Coleccion c;
  std::tie(c.cab.PAGINI, c.cab.POSNUMPAG, c.cab.PROINI, c.cab.POSSOL, c.cab.ORDENA) = std::tuple(-3, 9, 9999, 2, kVerdadero);
  std::tie(c.cab.PROPRE, c.cab.PROSUF, c.cab.PRETIT, c.cab.POSTI1) = std::tuple("Problem ", ".", "   ", "Caf\xE9 \x80 \x96 group");
  Pon(c, {Prob("ANEU_QUIM_DIS", {7, 45, 120, 0, 3, 1}, "Mass of &H_2O?", "18 g"),
          Prob("ANEU_QUIM_EGA", {12, 1001, 9001, 26, 2, 2}, "", "")});
  return c;
}

TEST(ColFile, WritesEveryItemByteForByteAndReadsItBack) {
  Banco a, b;
  a.doc.col = Muestra();
  a.doc.col.cab.POSTI2 = "#TITULO( #titulo) # ) (#";  // tags the reader does not look for
  // Saved through a link onto a file of mode 0600: the link stays, and so does the mode.
  Escribe(a.Ruta("SHEET.COL"), "old");
  ASSERT_EQ(::chmod(QFile::encodeName(a.Ruta("SHEET.COL")).constData(), 0600), 0);
  ASSERT_TRUE(QFile::link(a.Ruta("SHEET.COL"), a.Ruta("link.col")));
  a.doc.Modificada = true;
  ASSERT_TRUE(a.Guarda(a.Ruta("link.col")));
  EXPECT_TRUE(!a.doc.Modificada && QFileInfo(a.Ruta("link.col")).isSymLink() && Modo(a.Ruta("SHEET.COL")) == 0600);
  // Blank optional lines are not written.
  EXPECT_EQ(Lee(a.Ruta("SHEET.COL")),
            "#CABECERA(#PROPARAM(ANEU_QUIM_DIS" + std::string(67, ' ') + "0070450120000301" +
                "9999\r\nANEU_QUIM_EGA" + std::string(67, ' ') + "0120019001260202" + "0000\r\n#PROPARAM)" +
                "#TITULO(#TITULO)#POSTI1(Caf\xE9 \x80 \x96 group#POSTI1)#POSTI2(#TITULO( #titulo) # ) (##POSTI2)"
                "#POSNUMPAG( 9#POSNUMPAG)#COLRESPRO( 16777215#COLRESPRO)#ORDENA(1#ORDENA)"
                "#PAGINI(-3#PAGINI)#POSSOL( 2#POSSOL)#PROPRE(Problem #PROPRE)#PROSUF(.#PROSUF)"
                "#PROINI( 9999#PROINI)#BINDIR(00000000#BINDIR)#CABECERA)"
                "#PRO001(#ENU(Mass of &H_2O?#ENU)#SOL(18 g#SOL)#PRO001)"
                "#PRO002(#ENU(#ENU)#SOL(#SOL)#PRO002)");
  EXPECT_FALSE(QFileInfo::exists(a.Ruta("SHEET.COLx")));

  b.doc.Modificada = true;
  ASSERT_TRUE(b.Carga(a.Ruta("SHEET.COL")));
  EXPECT_TRUE(b.pl.avisos.empty() && !b.doc.Modificada && !b.doc.bloques.empty());
  EXPECT_EQ(b.doc.col.cab.PRETIT + std::to_string(b.doc.col.cab.ORDENA), "-1");
  EXPECT_EQ(b.doc.col.problemas[1].Semilla, 1);  // a counter past 999 keeps three digits
  EXPECT_EQ(TextoColeccion(b.doc.col), TextoColeccion(a.doc.col));
  ASSERT_TRUE(b.Guarda(b.Ruta("two.col")));
  EXPECT_EQ(Lee(b.Ruta("two.col")), Lee(a.Ruta("SHEET.COL")));
  EXPECT_EQ(b.pl.titulos, std::vector<QString>{TituloApp() + "  -  SHEET.COL"});
  EXPECT_TRUE(b.pl.recientes == std::vector<QString>{a.Ruta("SHEET.COL")} && b.pl.estados == std::vector<bool>{true});
  b.doc.col.cab.ORDENA = b.doc.col.cab.PAGINI = 0;
  EXPECT_NE(TextoColeccion(b.doc.col).find("#ORDENA(0#ORDENA)#PAGINI( 0#PAGINI)"), std::string::npos);
  EXPECT_EQ(b.doc.AppBusy, 0);
}

TEST(ColFile, TableRowsAndPictureNames) {
  const std::string fila = "  MOD X " + std::string(72, ' ') + "1234567890123456" + "0001\r\n";
  const auto ps = LeerProparam(fila + fila);
  ASSERT_EQ(ps.size(), 2u);
  EXPECT_EQ(ps[0].Modulo + ComandoProblema(ps[1]), "MOD X1234567890123456");
  std::string quinientas;
  for (int i = 0; i < 500; ++i) quinientas += fila;
  EXPECT_EQ(LeerProparam(quinientas).size(), 500u);
  for (const std::string& mala : {std::string(), fila.substr(1), fila + "x", quinientas + fila})
    EXPECT_TRUE(LeerProparam(mala).empty());
  for (std::size_t col : {80u, 85u, 95u})
    for (char bad : {' ', '-', 'a', '\0'})
      EXPECT_TRUE(LeerProparam(fila + std::string(fila).replace(col, 1, 1, bad)).empty()) << col << " " << int(bad);
  // Names are found from the hundredth character on, once each.
  const std::string pad98(98, '-');
  EXPECT_TRUE(ImagenesDelTexto(pad98 + "#IMG('a.gif'#IMG)").empty());
  EXPECT_EQ(ImagenesDelTexto(pad98 + "-#IMG('a.gif'#IMG)"), std::vector<std::string>{"a.gif"});
  EXPECT_EQ(ImagenesDelTexto(std::string(100, ' ') + "#img('Beaker.PNG'DXmm=3:#img) #IMG(DIST'b c.gif'MARCO#IMG)"
                             "#IMG('Beaker.PNG'#IMG) #IMG('beaker.png'#IMG) #IMG(no quotes#IMG) #IMG(''#IMG) #IMG('open.gif'"),
            (std::vector<std::string>{"Beaker.PNG", "b c.gif", "beaker.png"}));
}

std::string Png(const QString& ruta, QColor color) {
  QImage img(3, 2, QImage::Format_RGB32);
  img.fill(color);
  return img.save(ruta, "PNG"), Lee(ruta);
}

TEST(ColFile, PicturesTravelInsideTheFileAndReplaceOldCopies) {
  Banco a;
  const std::string beaker = Png(a.programa.path() + "/img/Beaker.png", Qt::red);
  ASSERT_TRUE(CreaCarpetaTemporal(a.s.carpetas.temporal));
  const std::string flask = Png(a.Temp("flask.gif"), Qt::blue);
  Pon(a.doc.col, {Prob("M", {1, 1, 1, 1, 1, 1}, "#IMG('beaker.PNG'DXmm=20:DYmm=15:#IMG)", "x"),
                  Prob("M", {1, 2, 2, 1, 1, 1}, "#IMG('flask.gif'#IMG) #IMG('beaker.PNG'#IMG)", "")});
  ASSERT_TRUE(a.Guarda(a.Ruta("pics.col")));
  const std::string f = Lee(a.Ruta("pics.col"));
  const std::size_t finTexto = f.find("#PRO002)") + 8, d = finTexto + 1, p1 = d + 96, p2 = p1 + beaker.size();
  EXPECT_NE(f.find("#BINDIR(" + Campo8(d) + "#BINDIR)"), std::string::npos);
  EXPECT_EQ(f.substr(finTexto), "beaker.PNG" + std::string(22, ' ') + Campo8(p1) + Campo8(beaker.size()) + "flask.gif" +
                                    std::string(23, ' ') + Campo8(p2) + Campo8(flask.size()) + beaker + flask);

  // Another machine; old copies of any case in the scratch folder; the program's own picture wins.
  const std::vector<std::pair<QString, std::string>> viejas = {{"flask.gif", "old"}, {"FLASK.GIF", "old"}, {"beaker.png", "old"}};
  for (auto [antes, propia] : {std::pair{decltype(viejas){}, QString()}, {viejas, QString()}, {decltype(viejas){}, QString("BEAKER.png")}}) {
    SCOPED_TRACE(antes.size() * 10 + propia.size());
    Banco b;
    ASSERT_TRUE(CreaCarpetaTemporal(b.s.carpetas.temporal));
    for (const auto& [n, bytes] : antes) Escribe(b.Temp(n), bytes);
    if (!propia.isEmpty()) Png(b.programa.path() + "/img/" + propia, Qt::green);
    ASSERT_TRUE(b.Carga(a.Ruta("pics.col")));
    EXPECT_EQ(QDir(b.s.carpetas.temporal).entryList(QDir::Files, QDir::Name).join(' '),
              propia.isEmpty() ? "beaker.PNG flask.gif" : "flask.gif");
    EXPECT_EQ(Lee(b.Temp("flask.gif")) + Lee(b.Temp("beaker.PNG")), flask + (propia.isEmpty() ? beaker : "<missing>"));
    // The page draws the picture from where the file put it.
    test::Linea l(b.doc.col.problemas[0].Enunciado, 12, true, BuscadorDeImagenes(b.s.carpetas));
    ASSERT_EQ(l.c.imagenes.size(), 1u);
    EXPECT_EQ(QString::fromStdString(l.c.imagenes[0].ruta), propia.isEmpty() ? b.Temp("beaker.PNG") : b.programa.path() + "/img/BEAKER.png");
    ASSERT_TRUE(b.Guarda(b.Ruta("again.col")));
    EXPECT_TRUE(!propia.isEmpty() || Lee(b.Ruta("again.col")) == f);
  }
  EXPECT_EQ(Modo(a.s.carpetas.temporal), 0700);
}

TEST(ColFile, AHostileOrCrowdedPictureDirectoryWritesOnlyWhatTheTextsName) {
  Banco a;
  Pon(a.doc.col, {Prob("M", {1, 1, 1, 1, 1, 1}, "statement", "solution")});
  for (const char* n : {"../escape.gif", "/tmp/abs.gif", ".hidden", "sub\\x.gif", "fine.gif", "last.gif", "dup.gif"})
    a.doc.col.problemas[0].Solucion += std::string(100, ' ') + "#IMG('" + n + "'#IMG)";
  std::string t = TextoColeccion(a.doc.col), dir, datos;
  const std::size_t d = t.size() + 1;
  std::vector<std::pair<std::string, std::string>> imgs = {{"../escape.gif", "AAAA"}, {"/tmp/abs.gif", "BB"}, {".hidden", "C"},
      {"", "DD"}, {"sub\\x.gif", "E"}, {"fine.gif", "FFFFF"}, {"dup.gif", "1"}, {"DUP.GIF", "2"}};
  for (int i = 0; i < 3000; ++i) imgs.push_back({"unnamed" + std::to_string(i) + ".gif", "u"});
  imgs.push_back({"last.gif", "GGG"});
  for (std::size_t p = d + 48 * imgs.size(); const auto& [n, bytes] : imgs) {
    dir += n + std::string(32 - n.size(), ' ') + Campo8(p) + Campo8(n == "last.gif" ? 1000 : bytes.size());  // runs past the end
    datos += bytes;
    p += bytes.size();
  }
  t.replace(t.find("00000000"), 8, Campo8(d));
  Escribe(a.Ruta("hostile.col"), t + dir + datos);
  ASSERT_TRUE(a.Carga(a.Ruta("hostile.col")));
  EXPECT_EQ(QDir(a.s.carpetas.temporal).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
            (QStringList{"dup.gif", "fine.gif", "last.gif"}));
  EXPECT_EQ(Lee(a.Temp("fine.gif")) + Lee(a.Temp("last.gif")) + Lee(a.Temp("dup.gif")), "FFFFFGGG1");
  EXPECT_FALSE(QFileInfo::exists(a.raiz.path() + "/escape.gif"));
  // A directory position past the end: no pictures, the text still loads.
  Banco b;
  Escribe(b.Ruta("far.col"), (t + dir + datos).replace(t.find("#BINDIR(") + 8, 8, "99999999"));
  ASSERT_TRUE(b.Carga(b.Ruta("far.col")));
  EXPECT_TRUE(!QFileInfo::exists(b.s.carpetas.temporal) && b.doc.col.problemas[0].Solucion.substr(0, 8) == "solution");
}

// A header text holding a tag the reader looks for, a missing picture, a folder
// in the way, a write-protected place: the old file stays, and the box says why.
TEST(ColFile, FailedSavesKeepTheOldFileAndSayWhy) {
  const bool root = ::geteuid() == 0;  // the super-user is refused in /sys only
  auto pon = [](std::string ColeccionCab::*campo, std::string texto) { return [=](Coleccion& c) { c.cab.*campo = texto; }; };
  // What is changed, the file, what the box holds and whether Save As is offered.
  const struct { std::function<void(Coleccion&)> cambia; QString ruta; std::string caja; bool guardarComo; } casos[] = {
      {pon(&ColeccionCab::TITULO, "#CABECERA)"), "t.col", "\"#CABECERA)\"", false},
      {pon(&ColeccionCab::TITULO, "Test #TITULO) x"), "t.col", "\"#TITULO)\"", false},
      {pon(&ColeccionCab::PROPRE, "#POSTI2)"), "t.col", "\"#POSTI2)\"", false},
      {pon(&ColeccionCab::PRETIT, "a #BINDIR( b"), "t.col", "\"#BINDIR(\"", false},
      {pon(&ColeccionCab::PROSUF, "#PROINI)#PROSUF)"), "t.col", "\"#PROINI)\"", false},
      {pon(&ColeccionCab::POSTI1, "x#PROPARAM)"), "t.col", "\"#PROPARAM)\"", false},
      {[](Coleccion& c) { c.problemas[0].Enunciado = "#IMG('gone.gif'#IMG)"; }, "t.col",
       "gone.gif\nThis picture of the worksheet was not found", false},
      {[](Coleccion&) {}, "dir.col", "\n\nError = 57\nDevice I/O error", false},
      {[](Coleccion&) {}, root ? "/sys/t.col" : "ro/t.col", "write-protected:\n%\n\nPlease choose another name or another folder.", true},
  };
  for (const auto& c : casos)
    for (bool exito : {false, true}) {
      SCOPED_TRACE(c.caja);
      Banco a;
      a.doc.col = Muestra();
      c.cambia(a.doc.col);
      for (const char* d : {"dir.col", "ro"}) QDir(a.ficheros.path()).mkdir(d);
      Escribe(a.Ruta("ro/t.col"), "old"), Escribe(a.Ruta("t.col"), "old bytes");
      ::chmod(QFile::encodeName(a.Ruta("ro")).constData(), 0555);
      const QString ruta = c.ruta.startsWith('/') ? c.ruta : a.Ruta(c.ruta);
      const std::string antes = Lee(ruta);
      std::tie(a.pl.exitoGuardarComo, a.doc.Modificada) = std::tuple(exito, true);
      EXPECT_EQ(a.Guarda(ruta), c.guardarComo && exito);
      ::chmod(QFile::encodeName(a.Ruta("ro")).constData(), 0755);
      ASSERT_EQ(a.pl.criticos.size(), 1u);
      std::string caja = c.caja;
      if (caja.find('%') != std::string::npos) caja.replace(caja.find('%'), 1, ruta.toStdString());
      EXPECT_NE(a.pl.criticos[0].find(caja), std::string::npos) << a.pl.criticos[0];
      EXPECT_EQ(a.pl.busyEnGuardarComo, c.guardarComo ? 0 : -1) << "Save As runs after the save let go";
      EXPECT_TRUE(Lee(ruta) == antes && !QFileInfo::exists(ruta + "x") && a.doc.Modificada);
    }
}

// An older worksheet in memory, then a damaged file.
TEST(ColFile, DamagedFilesEndInTheInvalidFileBoxAndKeepWhatTheReaderLeaves) {
  auto corta = [](std::string tag) { return [tag](std::string& f) { f.erase(f.find(tag), tag.size()); }; };
  const struct { QString fichero; std::function<void(std::string&)> dana; std::string queda; } casos[] = {
      // queda: path kept, problems, header line afterwards
      {"w.txt", [](std::string&) {}, "- 2 Old school"},
      {"w.col", corta("#CABECERA)"), "- 2 Old school"},
      {"w.col", [](std::string& f) { f.erase(20, 1); }, "- 0 "},  // a table of 101-byte rows
      {"w.col", [](std::string& f) { f[20 + 85] = 'x'; }, "- 0 "},  // a letter in a command
      {"w.col", corta("#TITULO)"), "- 2 New school"},
      {"w.col", corta("#COLRESPRO)"), "path 2 New school"},
      {"w.col", [](std::string& f) { f.resize(f.find("#PRO002(") + 12); }, "path 3 New school"},
      {"w.col", [](std::string& f) { f.resize(kMaxTamanoColeccion + 1, '\0'); }, "- 2 Old school"},
  };
  Banco a;
  a.doc.col = Muestra();
  a.doc.col.cab.PRETIT = "New school";
  a.doc.col.problemas.push_back(Prob("NEW", {3, 3, 3, 3, 3, 3}, "third", "3rd"));
  ASSERT_TRUE(a.Guarda(a.Ruta("good.col")));
  for (const auto& c : casos) {
    SCOPED_TRACE(c.queda);
    std::string bytes = Lee(a.Ruta("good.col"));
    c.dana(bytes);
    Escribe(a.Ruta(c.fichero), bytes);
    Banco b;
    Pon(b.doc.col, {Prob("OLD", {1, 1, 1, 1, 1, 1}, "old 1", ""), Prob("OLD", {2, 2, 2, 2, 2, 2}, "old 2", "")});
    std::tie(b.doc.col.cab.PRETIT, b.doc.bloques) = std::tuple("Old school", std::vector<Bloque>(5));
    EXPECT_FALSE(b.Carga(a.Ruta(c.fichero)));
    ASSERT_EQ(b.pl.avisos.size(), 1u);
    EXPECT_EQ(b.pl.avisos[0].rfind(a.textos.GetL_win("InvalidFile"), 0), 0u);
    EXPECT_EQ(b.pl.avisos[0].find("64 MB") != std::string::npos, bytes.size() > 1000000);
    const std::size_t n = b.doc.col.problemas.size();
    EXPECT_EQ((b.doc.ruta.isEmpty() ? "- " : "path ") + std::to_string(n) + " " + (n ? b.doc.col.cab.PRETIT : ""), c.queda);
    EXPECT_EQ(b.doc.col.cab.NPROB * 10 + b.doc.bloques.size(), n * 10 + (n ? 5u : 0u));  // no rebuild ran
    EXPECT_TRUE(n != 3 || b.doc.col.problemas[0].Solucion == "18 g");
    EXPECT_TRUE(!n || b.pl.titulos.empty()) << "the window still shows the old worksheet";
    EXPECT_EQ(b.doc.AppBusy, 0);
  }
}

TEST(Carpetas, ScratchFolderIsPrivateSharedUnderALockAndLookupsFallBackToAnyCase) {
  QTemporaryDir tmp;
  const QByteArray antes = qgetenv("TMPDIR");
  qputenv("TMPDIR", QFile::encodeName(tmp.path()));
  const QString propia = tmp.path() + "/lftemp";
  EXPECT_EQ(CarpetaTemporal(), propia);  // missing: the common name
  {
    UsoCarpetaTemporal uno;
    EXPECT_EQ(uno.Ruta(), propia);
    Escribe(propia + "/a.gif", "a");
    std::make_unique<UsoCarpetaTemporal>(), QDir(propia).mkdir("sub");  // another user of the folder comes and goes
    EXPECT_EQ(Lee(propia + "/a.gif"), "a") << "kept while another user lives";
  }
  EXPECT_EQ(QDir(propia).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name).join(' '), "sheetsmith.lock sub");
  ASSERT_TRUE(QDir(propia).removeRecursively());
  ASSERT_TRUE(QFile::link(tmp.path() + "/elsewhere", propia));
  EXPECT_EQ(CarpetaTemporal(), propia + "-" + QString::number(::geteuid()));  // never a planted link
  EXPECT_TRUE(!CreaCarpetaTemporal(propia) && UsoCarpetaTemporal(propia).Ruta().isEmpty());
  EXPECT_FALSE(QFileInfo::exists(tmp.path() + "/elsewhere"));
  if (::geteuid() == 0) {  // another user's folder
    ASSERT_TRUE(QFile::remove(propia) && QDir().mkdir(propia));
    ASSERT_EQ(::chown(QFile::encodeName(propia).constData(), 65534, 65534), 0);
    EXPECT_TRUE(CarpetaTemporal() == propia + "-" + QString::number(::geteuid()) && !CreaCarpetaTemporal(propia));
  }
  if (antes.isNull()) qunsetenv("TMPDIR"); else qputenv("TMPDIR", antes);

  const QString dir = tmp.path() + "/pics";
  ASSERT_TRUE(QDir().mkdir(dir));
  for (const char* n : {"Atom.gif", "atom.GIF", "Ring.png"}) Escribe(dir + "/" + n, "x");
  for (auto [busca, halla] : {std::pair<QString, QString>{"atom.GIF", "atom.GIF"}, {"Atom.gif", "Atom.gif"},
                              {"RING.PNG", "Ring.png"}, {"ring.gif", ""}, {"../pics/Ring.png", ""}, {"", ""}})
    EXPECT_EQ(BuscaEnCarpeta(dir, busca), halla.isEmpty() ? "" : dir + "/" + halla) << busca.toStdString();
}

}  // namespace
}  // namespace ss
