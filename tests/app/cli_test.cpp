// The command-line tool, run as a user runs it.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <map>
#include "problems/idioma.h"
#include "problems/texto.h"

namespace {

struct Salida {
  int code = -1;
  QByteArray out, err;
  QJsonDocument json() const { return QJsonDocument::fromJson(out); }
  QJsonObject obj() const { return json().object(); }
};

Salida Cli(const QStringList& args) {
  QProcess p;
  p.start(QStringLiteral(SS_CLI_PATH), args);
  if (!p.waitForFinished(60000)) p.kill();
  return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(), p.readAllStandardError()};
}

QByteArray Lee(const QString& ruta) {
  QFile f(ruta);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<none>");
}
void Escribe(const QString& ruta, const QByteArray& datos) {
  QFile f(ruta);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(datos) == datos.size());
}

// Whether anything darker than `umbral` is printed in `zona` of a page image.
bool Tinta(const QImage& img, const QRect& zona, int umbral = 200) {
  for (int y = zona.top(); y <= zona.bottom(); ++y)
    for (int x = zona.left(); x <= zona.right(); ++x)
      if (qGray(img.pixel(x, y)) < umbral) return true;
  return false;
}

// The item records of a subject read straight from the catalogue: "MODULE:N"
// to level and most items.
std::map<QString, std::pair<int, int>> ItemsDe(const QString& asignatura, const QStringList& sysedu = {}) {
  std::map<QString, std::pair<int, int>> items;
  for (const QByteArray& line : Cli(QStringList{"catalogue"} + sysedu).out.split('\n')) {
    const QString rec = QString::fromUtf8(line.mid(line.indexOf(':') + 1));
    const int nivel = rec.mid(231, 1).toInt();
    if (rec.mid(6, 65).trimmed().compare(asignatura, Qt::CaseInsensitive) != 0 || nivel < 1 || nivel > 3) continue;
    items[QString::fromUtf8(line.left(line.indexOf(':'))) + ":" + QString::number(rec.mid(232, 3).toInt())] = {nivel, rec.mid(235, 3).toInt()};
  }
  return items;
}

TEST(Cli, GenerateMakesAProblemOrSaysWhyNot) {
  const struct { QString modulo, comando, statement, solution; } casos[] = {
      {"ANEU_QUIM_TER", "0150000000010102", "<Error in module ATEM__QUIM__TER:. No generator no.015>&LF", "&LF"},
      // "é" goes in as UTF-8, through the single-byte text and back out, upper-cased to "É".
      {"caf\u00e9", "0010000000000000", "<ERROR: Cannot re-create the problem.>&LFRequested module=caf\u00e9 alias CAF\u00c9&LF", "<ERROR>&LF"},
  };
  for (const auto& c : casos) {
    const Salida r = Cli({"generate", c.modulo, c.comando});
    EXPECT_TRUE(r.code == 0 && r.err.isEmpty()) << r.err.toStdString();
    EXPECT_EQ(r.obj().value("statement").toString() + "|" + r.obj().value("solution").toString(), c.statement + "|" + c.solution);
  }
  // Odd module names still give a problem.
  for (const QString& modulo : {QString(), QString("\"&#_^%"), QString(5000, 'A')})
    EXPECT_FALSE(Cli({"generate", modulo, "0010000000000000", "--seed=18446744073709551615"}).obj()["statement"].toString().isEmpty());
}

TEST(Cli, HelpAndVersionGoToStdout) {
  const Salida todo = Cli({"--help"});
  EXPECT_EQ(todo.code, 0);
  for (const char* comando : {"generate", "catalogue", "subjects", "topics", "markup", "new", "render", "info", "group"}) {
    EXPECT_TRUE(todo.out.contains(QByteArray("\n  ") + comando)) << comando;
    const Salida una = Cli({comando, "--help"});
    EXPECT_TRUE(una.code == 0 && una.out.startsWith(QByteArray("usage: sheetsmith-cli ") + comando) && una.err.isEmpty()) << comando;
  }
  const Salida v = Cli({"--version"});
  EXPECT_TRUE(v.code == 0 && QRegularExpression("^sheetsmith-cli \\d+\\.\\d+\\.\\d+\\n$").match(QString(v.out)).hasMatch()) << v.out.toStdString();
}

TEST(Cli, WrongArgumentsGiveOneUsageLineExit2AndNoFile) {
  QTemporaryDir dir;
  const QString col = dir.filePath("x.col");
  const QStringList gen = {"generate", "ANEU_QUIM_DIS"}, g1 = gen + QStringList{"0010000000000000"};
  const QStringList nuevo = {"new", "--subject", "Chemistry", "-o", col}, n1 = nuevo + QStringList{"--all", "1"};
  auto mas = [](QStringList a, const QStringList& b) { return a + b; };
  const QList<QStringList> malos = {
      {}, {"frobnicate"}, {"generate"}, gen, mas(g1, {"extra"}), mas(g1, {"--seed", "x1"}), mas(g1, {"--bogus"}), mas(gen, {"009"}),
      mas(gen, {"009\u00e9\u00e9\u00e90003000301"}), mas(gen, {"00900000030003010"}), mas(gen, {"\u0669009000000300030"}) /* an Arabic-Indic digit */,
      {"catalogue", "extra"}, {"subjects", "--subject", "x"}, {"topics"}, {"topics", "--subject", "Astrology"}, {"markup", "x"},
      {"markup", "x", "-o", "x.png", "--zoom", "9"}, {"markup", "-o", dir.filePath("x.pdf")},
      {"markup", "x", "--file", "m.txt", "-o", dir.filePath("x.pdf")}, {"markup", "--file", "m.txt", "-o", dir.filePath("x.png")} /* no %d */,
      {"new"}, nuevo, {"new", "--subject", "Astrology", "--all", "1", "-o", col}, mas(nuevo, {"--item", "ANEU_QUIM_DIS:99=1"}),
      mas(nuevo, {"--item", "ANEU_QUIM_DIS:9"}), mas(nuevo, {"--item", "ANEU_QUIM_DIS:9=100"}), mas(nuevo, {"--item", "ANEU_QUIM_DIS:9=2:0"}),
      mas(nuevo, {"--item=ANEU_QUIM_DIS:9=2", "--item", "x"}), mas(nuevo, {"--all", "5"}) /* 525 problems */, mas(n1, {"--possol", "4"}),
      mas(n1, {"-o", dir.filePath("x.txt")}), n1.mid(0, 3) + n1.mid(5), mas(n1, {"--seed", "-3"}), mas(n1, {"stray"}),
      mas(n1, {"--title", "#CABECERA)"}), mas(n1, {"--posti1", "a #POSTI2) b"}),
      {"new", "--sysedu", "Secondary_Chemistry.sed", "--subject", "Chemistry 1", "--item", "ANEU_QUIM_DIS:14=1", "-o", col},
      {"render", "x.col"}, {"render", "x.col", "-o", dir.filePath("out.png")}, {"render", "x.col", "-o", dir.filePath("out.svg")},
      {"render", "x.col", "-o", "o-%d.png", "--zoom", "0"}, {"render", "-o", dir.filePath("o.pdf")}, {"info"}, {"info", "a.col", "b.col"},
      {"render", "a.col", "b.col", "-o", "p-%d.png"}, {"group", "x.col", "-o", "d"}, {"group", "x.col", "--students", "l.txt"},
  };
  for (const QStringList& args : malos) {
    const Salida r = Cli(args);
    EXPECT_TRUE(r.code == 2 && r.out.isEmpty() && r.err.count('\n') == 1 && r.err.contains("usage: sheetsmith-cli"))
        << args.join(' ').toStdString() << ": " << r.err.toStdString();
  }
  EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

// The catalogue without a system: the program's own placing, each module's
// records in one run; with one: its subjects in its order, ordinals never going back.
TEST(Cli, CatalogueSubjectsAndTopicsListEveryGenerator) {
  const struct { QStringList sysedu, asignaturas; } casos[] = {
      {{}, {"Chemistry"}}, {{"--sysedu", "Secondary_Chemistry.sed"}, {"Chemistry 1", "Chemistry 2"}}};
  for (const auto& c : casos) {
    int details = 0, headings = 0;
    QStringList modules, claves;
    for (const QByteArray& line : Cli(QStringList{"catalogue"} + c.sysedu).out.split('\n')) {
      if (line.isEmpty()) continue;
      const QString module = QString::fromUtf8(line.left(line.indexOf(':'))), rec = QString::fromUtf8(line.mid(line.indexOf(':') + 1));
      ASSERT_EQ(rec.size(), 398) << line.toStdString();
      if (modules.isEmpty() || modules.back() != module) modules << module;
      claves << rec.mid(6, 65).trimmed() + rec.left(6);
      rec.at(231) == '5' ? ++headings : ++details;
      EXPECT_TRUE(rec.at(231) == '5' || !(rec.mid(151, 80).trimmed().isEmpty() || rec.mid(238, 160).trimmed().isEmpty()));
    }
    if (c.sysedu.isEmpty())
      EXPECT_EQ(QList<qsizetype>({details, headings, modules.size(), QSet<QString>(modules.begin(), modules.end()).size()}), QList<qsizetype>({105, 14, 10, 10}));
    else
      EXPECT_TRUE(details > 80 && claves.first().startsWith("Chemistry 1") && claves.last().startsWith("Chemistry 2") &&
                  std::is_sorted(claves.begin(), claves.end()));
    EXPECT_EQ(QString(Cli(QStringList{"subjects"} + c.sysedu).out), c.asignaturas.join('\n') + '\n');
    EXPECT_EQ(Cli(QStringList{"subjects", "--json"} + c.sysedu).json().array().toVariantList(), QVariant(c.asignaturas).toList());
    for (const QString& a : c.asignaturas) {
      SCOPED_TRACE(a.toStdString());
      const auto esperado = ItemsDe(a, c.sysedu);
      ASSERT_GT(esperado.size(), 10u);
      const Salida json = Cli(QStringList{"topics", "--subject", " " + a.toUpper() + " ", "--json"} + c.sysedu);  // any case, trimmed
      std::map<QString, std::pair<int, int>> vistos;
      const std::map<QString, int> niveles = {{"question", 1}, {"exercise", 2}, {"problem", 3}};
      for (const QJsonValue& tema : json.json().array()) {
        EXPECT_FALSE(tema["topic"].toString().isEmpty());
        for (const QJsonValue& i : tema["items"].toArray()) {
          EXPECT_FALSE(i["name"].toString().isEmpty() || i["description"].toString().startsWith('&'));
          const int nivel = niveles.at(i["kind"].toString());
          const int max = esperado.count(i["item"].toString()) ? esperado.at(i["item"].toString()).second : -1;
          EXPECT_EQ(i["most_items"].toInt(), nivel == 3 ? 0 : (max > 0 ? max : 99)) << i["item"].toString().toStdString();
          vistos[i["item"].toString()] = {nivel, max};
        }
      }
      EXPECT_EQ(vistos, esperado);
      // The plain listing: one "MODULE:N" item a line, indented under its topic.
      const QString plano = Cli(QStringList{"topics", "--subject", a} + c.sysedu).out;
      EXPECT_EQ(plano.count(QRegularExpression("^    \\S+:\\d+ ", QRegularExpression::MultilineOption)), esperado.size());
    }
  }
}

TEST(Cli, ASheetFromTopicsAloneReadsBackThroughInfo) {
  QTemporaryDir dir;
  const QString col = dir.filePath("gases.col");
  const QStringList lineas = QString(Cli({"topics", "--subject", "Chemistry"}).out).split('\n');
  QStringList pedido = {"new", "--subject", "  chemistry ", "--possol", "2", "--title", "Gases & m\u00e1s \u03a9",
                        "--shuffle", "--ordena", "--seed", "8", "-o", col};
  for (const auto& [item, cantidades] : {std::pair{"ANEU_QUIM_DIS:9", "=3:6"}, std::pair{"ANEU_QUIM_DIS:19", "=2:30"}}) {
    const auto linea = std::find_if(lineas.begin(), lineas.end(), [&](const QString& l) { return l.trimmed().startsWith(item + QString(" ")); });
    ASSERT_NE(linea, lineas.end()) << item;
    pedido << "--item" << linea->trimmed().section(' ', 0, 0) + cantidades;
  }
  const Salida r = Cli(pedido);
  ASSERT_TRUE(r.code == 0 && r.obj().value("problems").toInt() == 5) << r.err.toStdString();
  // The one character a worksheet cannot hold is named, with its option, on one line.
  EXPECT_TRUE(QRegularExpression("^warning: --title: .*\"\u03a9\"[^\n]*\n$").match(QString(r.err)).hasMatch()) << r.err.toStdString();
  const QJsonObject info = Cli({"info", col}).obj();
  EXPECT_EQ(info["pages"].toInt(), r.obj().value("pages").toInt());
  const std::map<QString, QJsonValue> campos = {{"TITULO", "Gases & m\u00e1s ?"}, {"POSSOL", 2}, {"NPROB", 5}, {"POSNUMPAG", 9},
      {"PAGINI", 1}, {"PROINI", 1}, {"COLRESPRO", 16777215}, {"ORDENA", true}, {"PRETIT", ""}, {"PROSUF", ")"}};
  for (const auto& [k, v] : campos) EXPECT_EQ(info["header"][k], v) << k.toStdString();
  const int max19 = ItemsDe("Chemistry").at("ANEU_QUIM_DIS:19").second;  // fewer than the 30 asked
  // In topic order: the conversions before the gas problems; counters run on.
  const QJsonArray problemas = info["problems"].toArray();
  ASSERT_EQ(problemas.size(), 5);
  const int rutinas[] = {19, 19, 9, 9, 9}, ordenes[] = {1, 2, 1, 2, 3};
  for (int k = 0; k < 5; ++k) {
    const QJsonObject p = problemas[k].toObject();
    SCOPED_TRACE(k);
    EXPECT_EQ(p["module"].toString(), "ANEU_QUIM_DIS");
    EXPECT_EQ(QList<int>({p["Rutina"].toInt(), p["Orden"].toInt(), p["Total"].toInt(), p["Cantidad"].toInt()}),
              QList<int>({rutinas[k], ordenes[k], rutinas[k] == 9 ? 3 : 2, rutinas[k] == 9 ? 6 : max19}));
    EXPECT_TRUE(QRegularExpression(QString::asprintf("^%03d\\d{13}$", rutinas[k])).match(p["command"].toString()).hasMatch());
    EXPECT_FALSE(p["statement"].toString().isEmpty() || p["statement"].toString().contains("ERROR") || !p["solution"].toString().endsWith("&LF"));
    for (const char* contador : {"Semilla", "NumVariante"})
      EXPECT_TRUE(ordenes[k] == 1 || p[contador].toInt() == problemas[k - 1][contador].toInt() + 1) << contador;
  }
}

// --all: every item twice, exercises and questions of 6 items or the most their
// generator gives; shuffled, the same seed gives the same file.
TEST(Cli, NewMarksWhatIsAskedAndTheSeedRepeatsIt) {
  QTemporaryDir dir;
  const QStringList pedido = {"new", "--subject", "CHEMISTRY", "--all", "2", "--possol", "0", "--shuffle", "-o"};
  for (const QString f : {"a", "b", "c"}) ASSERT_EQ(Cli(pedido + QStringList{dir.filePath(f + ".col"), "--seed", f == "c" ? "78" : "77"}).code, 0);
  EXPECT_TRUE(Lee(dir.filePath("a.col")) == Lee(dir.filePath("b.col")) && Lee(dir.filePath("a.col")) != Lee(dir.filePath("c.col")));
  const Salida r = Cli({"info", dir.filePath("a.col")});
  const auto items = ItemsDe("Chemistry");
  std::map<QString, int> vistos;
  for (const QJsonValue& p : r.obj()["problems"].toArray()) {
    const QString clave = p["module"].toString() + ":" + QString::number(p["Rutina"].toInt());
    ASSERT_TRUE(items.count(clave)) << clave.toStdString();
    ++vistos[clave];
    const auto [nivel, max] = items.at(clave);
    EXPECT_EQ(p["Cantidad"].toInt(), nivel == 3 ? 0 : (max > 0 ? std::min(6, max) : 6)) << clave.toStdString();
  }
  EXPECT_EQ(vistos.size(), items.size());
  for (const auto& [clave, n] : vistos) EXPECT_EQ(n, 2) << clave.toStdString();
  EXPECT_EQ(Cli({"new", "--sysedu", "Secondary_Chemistry.sed", "--subject", "Chemistry 1", "--item", "ANEU_QUIM_DIS:9=2",
                 "--item", "ANEU_QUIM_DIS:11=1:4", "-o", dir.filePath("c1.col")}).obj().value("problems").toInt(), 3);
  // A problem taller than a page gets a page of its own, is cut, and every command that pages says so.
  QByteArray alto = Lee(dir.filePath("c1.col"));
  const qsizetype i = alto.indexOf("#PRO002(#ENU(") + 13;
  alto.replace(i, alto.indexOf("#ENU)", i) - i, QByteArray("A line of a long statement.&LF").repeated(120));
  Escribe(dir.filePath("tall.col"), alto);
  for (const QStringList& args : {QStringList{"info", dir.filePath("tall.col")},
                                  QStringList{"render", dir.filePath("tall.col"), "-o", dir.filePath("t.pdf")}}) {
    const Salida t = Cli(args);
    EXPECT_EQ(t.code == 0 ? t.err : QByteArray("failed"), "warning: Problem 2 is taller than a page: it has page 2 to itself and is cut off at the foot of that page.\n");
    EXPECT_EQ(t.obj().value("pages").toInt(), 3);
    const QJsonArray p = t.obj()["problems"].toArray();
    EXPECT_TRUE(args[0] != "info" || QList<bool>({p[0]["cut"].toBool(), p[1]["cut"].toBool(), p[2]["cut"].toBool()}) == QList<bool>({false, true, false}));
  }
}

// A page holds 46 lines of 12-point text; an empty line stands between two
// paragraphs, and a paragraph is never split. Comments take no room.
TEST(Cli, MarkupFileFillsPagesWithWholeParagraphs) {
  QTemporaryDir dir;
  // `lineas` lines of the page, each written as `partes` lines of the file.
  auto parrafo = [](const QByteArray& primera, int lineas, int partes = 1, const QByteArray& fin = "\n", bool notas = false) {
    QByteArray p;
    for (int i = 1; i <= lineas; ++i) {
      p += (i == 1 ? primera : "Line") + QByteArray::number(i) + (fin + "goes on").repeated(partes - 1);
      p += (i < lineas ? "&LF" : "") + fin + (notas ? "; a comment&LFthat would take a line&LF" + fin : "");
    }
    return p;
  };
  auto varios = [&](int n, int lineas, int partes = 1, const QByteArray& fin = "\n", bool notas = false) {
    QByteArray t;
    for (int k = 0; k < n; ++k) t += (k ? fin : QByteArray()) + parrafo("Line", lineas, partes, fin, notas);
    return t;
  };
  const QByteArray l23 = parrafo("Line", 23) + "\n";
  const struct { const char* caso; QByteArray texto; int paginas; } casos[] = {
      {"two of 20 lines a page", varios(5, 20), 3}, {"four of 10 lines a page", varios(9, 10), 3},
      {"a whole page", varios(2, 46), 2}, {"23, a gap and 22 lines fill a page", l23 + parrafo("Line", 22), 1},
      {"but not with one line more", l23 + parrafo("Line", 23), 2}, {"nor with one behind", l23 + l23 + parrafo("Line", 24), 3},
      {"comments take no room", varios(4, 20, 1, "\n", true), 2}, {"CR LF, lines in parts", varios(4, 20, 3, "\r\n"), 2},
      {"nothing but comments", "; only a comment\n\n   \n", 1},
      {"one line too many", parrafo("Line", 20) + "\n" + parrafo("Too tall", 47), 0},
      {"far too tall", "\xEF\xBB\xBF" + parrafo("Too tall", 120), 0},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.caso);
    Escribe(dir.filePath("m.txt"), c.texto);
    const QString pdf = dir.filePath(QString("%1.pdf").arg(c.caso));
    const Salida r = Cli({"markup", "--file", dir.filePath("m.txt"), "-o", pdf});
    if (c.paginas == 0) {
      const auto error = QRegularExpression("^error: .*m\\.txt:(\\d+): the paragraph \"Too tall1&LFLine2.*\" is taller than a page").match(QString(r.err));
      EXPECT_TRUE(r.code == 1 && error.hasMatch() && !QFileInfo::exists(pdf)) << r.err.toStdString();
      EXPECT_EQ(error.captured(1).toInt(), c.texto.left(c.texto.indexOf("Too tall")).count('\n') + 1);
      continue;
    }
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    EXPECT_EQ(r.obj().value("pages").toInt(), c.paginas);
    EXPECT_EQ(QString::fromLatin1(Lee(pdf)).count(QRegularExpression("/Type\\s*/Page(?!s)")), c.paginas);
  }
  // As images, one a page, each numbered at the foot in the middle.
  Escribe(dir.filePath("m.txt"), varios(5, 20));
  ASSERT_EQ(Cli({"markup", "--file", dir.filePath("m.txt"), "-o", dir.filePath("p-%d.png")}).obj().value("pages").toInt(), 3);
  EXPECT_FALSE(QFileInfo::exists(dir.filePath("p-4.png")));
  for (int p = 1; p <= 3; ++p) {
    const QImage img(dir.filePath(QString("p-%1.png").arg(p)));
    auto tinta = [&](int x0, int x1) { return Tinta(img, QRect(QPoint(x0, 1040), QPoint(x1 - 1, 1064))); };
    EXPECT_TRUE(tinta(380, 416) && !tinta(60, 370) && !tinta(426, 736)) << p;
  }
}

// The start panel's example worksheets open, each with its own place of the
// solutions and real problems on a few pages; the manual is a searchable PDF.
TEST(Cli, TheExamplesAndTheManualAreBuilt) {
  const QString datos = QFileInfo(SS_CLI_PATH).absolutePath();
  ss::TextosVentana panel(datos.toStdString(), "INO");
  auto texto = [&](const QString& clave) { return QString::fromStdString(ss::Cp1252ToUtf8(panel.GetL_win(clave.toStdString()))); };
  const struct { int possol; QSet<int> rutinas; } ejemplos[] = {{1, {4, 9}}, {2, {1, 2, 3}}, {3, {6, 7, 8}}};
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    EXPECT_FALSE(texto(QString("TitleExample%1").arg(i)).isEmpty());
    const Salida r = Cli({"info", datos + "/" + texto("FolderExamples") + "/" + texto(QString("FileExample%1").arg(i))});
    ASSERT_TRUE(r.code == 0 && r.err.isEmpty()) << r.err.toStdString();  // nothing cut at a page's foot
    const QJsonObject info = r.obj();
    EXPECT_EQ(info["header"]["POSSOL"].toInt(), ejemplos[i].possol);
    for (const char* campo : {"TITULO", "PRETIT", "POSTI1"}) EXPECT_FALSE(info["header"][campo].toString().isEmpty()) << campo;
    const qsizetype paginas = info["pages"].toInt(), n = info["problems"].toArray().size();
    EXPECT_TRUE(paginas >= 2 && paginas <= 4 && n >= 6 && n <= 12) << paginas << " " << n;
    QSet<int> vistas;
    for (const QJsonValue& p : info["problems"].toArray()) {
      EXPECT_EQ(p["module"].toString(), "ANEU_QUIM_DIS");
      vistas << p["Rutina"].toInt();
      for (const char* t : {"statement", "solution"})
        EXPECT_FALSE(p[t].toString().trimmed().isEmpty() || p[t].toString().contains("ERROR")) << t;
    }
    EXPECT_EQ(vistas, ejemplos[i].rutinas);
  }
  QProcess pdftotext;
  pdftotext.start("pdftotext", {datos + "/Manual_ENG.pdf", "-"});
  ASSERT_TRUE(pdftotext.waitForFinished(60000) && pdftotext.exitCode() == 0) << "pdftotext (poppler-utils) reads the manual";
  const QString manual = QString::fromUtf8(pdftotext.readAllStandardOutput());
  EXPECT_TRUE(manual.count('\f') >= 4 && manual.count('\f') <= 8) << manual.count('\f');
  for (const char* titulo : {"User Manual", "1 What the program does", "3 Making a worksheet", "5 Where the solutions go",
                             "8 Worksheets for every student of a group", "9 Codes you can type"})
    EXPECT_TRUE(manual.contains(QRegularExpression(QString("(^|\f)%1$").arg(titulo), QRegularExpression::MultilineOption))) << titulo;
  for (const char* codigo : {"&LF", "H_2SO_4", "#COC(m#N)(V#COC)", "#SPB(R14#T)(6#SPB)C", "&Delta"})
    EXPECT_TRUE(manual.contains(codigo)) << codigo;
}

// Every page is written, or, when a file cannot be read or an output cannot be
// written, the program's own message, exit 1, no output and no file left behind.
TEST(Cli, RenderWritesEveryPageOrNothing) {
  QTemporaryDir dir, lleno;
  const QString col = dir.filePath("s.col");
  const Salida n = Cli({"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:6=9", "--possol", "3", "--seed", "3", "-o", col});
  const int paginas = n.obj().value("pages").toInt();
  ASSERT_TRUE(n.code == 0 && paginas >= 3) << n.err.toStdString();
  ASSERT_EQ(Cli({"render", col, "-o", dir.filePath("s.pdf")}).obj().value("pages").toInt(), paginas);
  const QByteArray pdf = Lee(dir.filePath("s.pdf"));
  EXPECT_TRUE(pdf.startsWith("%PDF") && pdf.trimmed().endsWith("%%EOF"));
  EXPECT_EQ(QString::fromLatin1(pdf).count(QRegularExpression("/Type\\s*/Page(?!s)")), paginas);
  for (double zoom : {1.0, 0.5}) {
    const QString patron = dir.filePath(QString("z%1-page%d.png").arg(zoom));
    ASSERT_EQ(Cli({"render", col, "-o", patron, "--zoom", QString::number(zoom)}).obj().value("pages").toInt(), paginas);
    EXPECT_FALSE(QFileInfo::exists(QString(patron).replace("%d", QString::number(paginas + 1))));
    for (int p = 1; p <= paginas; ++p) {
      const QImage img(QString(patron).replace("%d", QString::number(p)));
      EXPECT_TRUE(img.size() == QSize(796 * zoom, 1125 * zoom) && Tinta(img, img.rect(), 128)) << p;  // something on every page
    }
  }
  const QStringList hechos = QDir(dir.path()).entryList(QDir::Files);
  Escribe(dir.filePath("text.col"), "just some text, no worksheet\r\n"), Escribe(dir.filePath("empty.col"), "");
  Escribe(dir.filePath("cut.col"), "#CABECERA(#PROPARAM(ANEU#PROPARAM)#CABECERA)"), Escribe(dir.filePath("kept.pdf"), "keep me");
  ss::TextosVentana textos(SS_SOURCE_DIR, "MAI");
  auto texto = [&](const char* clave) { return QString::fromStdString(ss::Cp1252ToUtf8(textos.GetL_win(clave))); };
  const QString invalido = texto("InvalidFile"), noEsta = texto("FileNotFound"), lleno8k = "No space left on device";
  // A memory disk of two blocks: the kept file fills one, and no worksheet fits the other.
  const bool montado = QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=8k", "tmpfs", lleno.path()}) == 0;
  if (montado) Escribe(lleno.filePath("kept.pdf"), "keep me");
  const struct { QStringList args; QString mensaje; } casos[] = {
      {{"info", dir.filePath("text.col")}, invalido}, {{"info", dir.filePath("empty.col")}, invalido},
      {{"render", dir.filePath("cut.col"), "-o", dir.filePath("kept.pdf")}, invalido},
      {{"render", dir.filePath("text.col"), "-o", dir.filePath("p-%d.png")}, invalido},
      {{"info", dir.filePath("missing.col")}, noEsta}, {{"render", dir.filePath("missing.col"), "-o", dir.filePath("n.pdf")}, noEsta},
      {{"info", dir.path()}, texto("FileNotFoundOpen") + " " + dir.path() + " (it is a folder)"},
      {{"render", col, "-o", "/proc/ss.pdf"}, "cannot write /proc/ss.pdf"},
      {{"render", col, "-o", dir.filePath("missing/p-%d.png")}, "no such folder"},
      {{"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:1=1", "-o", dir.filePath("missing/x.col")}, ""},
      {{"markup", "x", "-o", "/proc/ss.png"}, "cannot write /proc/ss.png"},
      {{"markup", "--file", dir.filePath("missing.txt"), "-o", dir.filePath("n.pdf")}, "missing.txt: no such file"},
      {{"markup", "--file", dir.path(), "-o", dir.filePath("n.pdf")}, "it is a folder"}, {{"catalogue", "--sysedu", "none.sed"}, "none.sed"},
      {{"render", col, "-o", lleno.filePath("kept.pdf")}, lleno8k}, {{"render", col, "-o", lleno.filePath("p-%d.png"), "--zoom", "0.5"}, lleno8k},
      {{"markup", "x", "-o", lleno.filePath("m.png"), "--zoom", "8"}, lleno8k},
  };
  for (const auto& c : casos) {
    if (!montado && c.args.join(' ').contains(lleno.path())) continue;
    const Salida r = Cli(c.args);
    EXPECT_TRUE(r.code == 1 && r.out.isEmpty() && r.err.count('\n') == 1 && r.err.startsWith("error: ") && QString(r.err).contains(c.mensaje))
        << c.args.join(' ').toStdString() << ": " << r.out.toStdString() << r.err.toStdString();
  }
  EXPECT_EQ(Lee(dir.filePath("kept.pdf")), "keep me");
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), hechos.size() + 4);
  EXPECT_FALSE(QFileInfo::exists(dir.filePath("missing")));
  if (!montado) GTEST_SKIP() << "no memory disk can be mounted here, so the full disk is not tried";
  EXPECT_EQ(Lee(lleno.filePath("kept.pdf")), "keep me");
  EXPECT_EQ(QDir(lleno.path()).entryList(QDir::Files), QStringList{"kept.pdf"});
  QProcess::execute("umount", {lleno.path()});
}

// The text pdftotext finds on page `p` of a PDF.
QString TextoDePagina(const QString& pdf, int p) {
  QProcess t;
  t.start("pdftotext", {"-f", QString::number(p), "-l", QString::number(p), "-layout", pdf, "-"});
  t.waitForFinished(30000);
  return QString::fromUtf8(t.readAllStandardOutput());
}

TEST(Cli, GroupMakesAClassAndRenderPrintsItInOnePdf) {
  QTemporaryDir dir;
  const QString col = dir.filePath("sheet.col"), lista = dir.filePath("list.txt"), clase = dir.filePath("3B");
  ASSERT_EQ(Cli({"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9=2", "--item", "ANEU_QUIM_DIS:1=1",
                 "--possol", "3", "--title", "Gases", "--posti1", "Class 3B", "--seed", "3", "-o", col}).code, 0);
  Escribe(lista, "Zoe Adams\nJos\xC3\xA9 N\xC3\xBA\xC3\xB1" "ez\n\nZoe Adams\n");
  const Salida g = Cli({"group", col, "--students", lista, "--problems", "2-3", "--seed", "4", "-o", clase});
  ASSERT_EQ(g.code, 0) << g.err.toStdString();
  EXPECT_EQ(g.obj().value("students").toInt(), 3);
  const QStringList hechos = QDir(clase).entryList(QDir::Files, QDir::Name);
  ASSERT_EQ(hechos.size(), 3);
  EXPECT_EQ(hechos[0], QString::fromUtf8("José Núñez.col"));
  // The problem not chosen reads the same in every copy; the chosen ones differ.
  QSet<QString> primero, segundo;
  for (const QString& h : hechos) {
    const QJsonArray p = Cli({"info", QDir(clase).filePath(h)}).obj().value("problems").toArray();
    primero << p[0].toObject().value("statement").toString(), segundo << p[1].toObject().value("statement").toString();
  }
  EXPECT_EQ(primero.size() * 10 + segundo.size(), 13);
  // A folder and single files in one PDF, in the order given, each numbered as it prints alone.
  const int paginas = Cli({"info", col}).obj().value("pages").toInt();
  const QString pdf = dir.filePath("class.pdf");
  const Salida r = Cli({"render", clase, col, "-o", pdf});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.obj().value("pages").toInt(), 4 * paginas);
  EXPECT_TRUE(TextoDePagina(pdf, 1).contains(QString::fromUtf8("Student: José Núñez")));
  EXPECT_TRUE(TextoDePagina(pdf, 2 * paginas + 1).contains("Student: Zoe Adams"));
  EXPECT_FALSE(TextoDePagina(pdf, 3 * paginas + 1).contains("Student:"));
  EXPECT_EQ(TextoDePagina(pdf, paginas + 1).trimmed().split('\n').last().trimmed(), "1");
  // A damaged worksheet in the folder: nothing is written; bad arguments are usage errors.
  Escribe(QDir(clase).filePath("broken.col"), "not a worksheet");
  EXPECT_EQ(Cli({"render", clase, "-o", dir.filePath("no.pdf")}).code, 1);
  EXPECT_FALSE(QFileInfo::exists(dir.filePath("no.pdf")));
  EXPECT_EQ(Cli({"group", col, "--students", lista, "--problems", "4", "-o", clase}).code, 2);
  Escribe(lista, "\r\n  \r\n");
  EXPECT_EQ(Cli({"group", col, "--students", lista, "-o", dir.filePath("empty")}).code, 1);
}

}  // namespace
