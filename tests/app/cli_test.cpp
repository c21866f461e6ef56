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
  int exitCode = -1;
  bool crashed = false;
  QByteArray out, err;
};

Salida Cli(const QStringList& args) {
  QProcess p;
  p.start(QStringLiteral(SS_CLI_PATH), args);
  Salida r;
  if (!p.waitForFinished(30000)) {
    p.kill();
    p.waitForFinished();
    r.crashed = true;
    return r;
  }
  r.crashed = p.exitStatus() != QProcess::NormalExit;
  r.exitCode = p.exitCode();
  r.out = p.readAllStandardOutput();
  r.err = p.readAllStandardError();
  return r;
}

QJsonObject Json(const Salida& r) {
  QJsonParseError error;
  QJsonDocument doc = QJsonDocument::fromJson(r.out, &error);
  EXPECT_EQ(error.error, QJsonParseError::NoError) << r.out.toStdString();
  return doc.object();
}

TEST(Cli, GenerateGivesTheNoticeOfAMissingRoutine) {
  Salida r = Cli({"generate", "ANEU_QUIM_TER", "0150000000010102"});
  ASSERT_FALSE(r.crashed);
  EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
  QJsonObject o = Json(r);
  EXPECT_EQ(o.value("statement").toString(),
            "<Error in module ATEM__QUIM__TER:. No generator no.015>&LF");
  EXPECT_EQ(o.value("solution").toString(), "&LF");
  EXPECT_TRUE(r.out.startsWith("{\"statement\": ")) << r.out.toStdString();
  EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
}

TEST(Cli, GenerateGivesTheUnknownModuleError) {
  Salida r = Cli({"generate", "okbr_chem_xyz", "0010000000000000", "--seed", "4"});
  ASSERT_EQ(r.exitCode, 0);
  QJsonObject o = Json(r);
  EXPECT_EQ(o.value("statement").toString(),
            "<ERROR: Cannot re-create the problem.>&LFRequested module=okbr__chem__xyz alias "
            "ANEU__QUIM__XYZ&LF");
  EXPECT_EQ(o.value("solution").toString(), "<ERROR>&LF");
}

TEST(Cli, TextOutsideAsciiComesOutAsUtf8) {
  // The requested name is echoed: "é" goes in as UTF-8, through the
  // single-byte text and back out as UTF-8; "é" upper-cases to "É".
  Salida r = Cli({"generate", "caf\u00e9", "001"});
  ASSERT_EQ(r.exitCode, 0);
  EXPECT_EQ(Json(r).value("statement").toString(),
            QString::fromUtf8("<ERROR: Cannot re-create the problem.>&LFRequested module=caf\u00e9 "
                              "alias CAF\u00c9&LF"));
}

TEST(Cli, WrongArgumentsGiveOneUsageLineAndExit2) {
  const QList<QStringList> bad = {
      {},
      {"generate"},
      {"generate", "ANEU_QUIM_DIS"},
      {"generate", "ANEU_QUIM_DIS", "0010000000000000", "extra"},
      {"generate", "ANEU_QUIM_DIS", "0010000000000000", "--seed"},
      {"generate", "ANEU_QUIM_DIS", "0010000000000000", "--seed", "x1"},
      {"generate", "ANEU_QUIM_DIS", "0010000000000000", "--bogus"},
      {"catalogue", "extra"},
      {"frobnicate"},
  };
  for (const QStringList& args : bad) {
    Salida r = Cli(args);
    ASSERT_FALSE(r.crashed) << args.join(' ').toStdString();
    EXPECT_EQ(r.exitCode, 2) << args.join(' ').toStdString();
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_EQ(r.err.count('\n'), 1) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains("usage: sheetsmith-cli")) << r.err.toStdString();
  }
}

TEST(Cli, OddArgumentsStillGiveAProblem) {
  const QList<QStringList> odd = {
      {"generate", "", ""},
      {"generate", "ANEU_QUIM_DIS", "99999999999999999999999999"},
      {"generate", "ANEU_QUIM_DIS", "\"&#_^%"},
      {"generate", QString(5000, 'A'), QString(5000, '9')},
      {"generate", "ANEU_QUIM_DIS", "0010000000000000", "--seed=18446744073709551615"},
  };
  for (const QStringList& args : odd) {
    Salida r = Cli(args);
    ASSERT_FALSE(r.crashed);
    EXPECT_EQ(r.exitCode, 0);
    QJsonObject o = Json(r);
    EXPECT_FALSE(o.value("statement").toString().isEmpty());
  }
}

TEST(Cli, CatalogueListsEveryGeneratorUnderItsTopic) {
  Salida r = Cli({"catalogue"});
  ASSERT_FALSE(r.crashed);
  EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
  const QList<QByteArray> lines = r.out.split('\n');
  int details = 0, headings = 0;
  QByteArray previousModule;
  QSet<QByteArray> modules;
  for (const QByteArray& line : lines) {
    if (line.isEmpty()) continue;
    const qsizetype colon = line.indexOf(':');
    ASSERT_GT(colon, 0);
    const QByteArray module = line.left(colon);
    const QString rec = QString::fromUtf8(line.mid(colon + 1));
    ASSERT_EQ(rec.size(), 398) << line.toStdString();
    if (module != previousModule) {
      EXPECT_FALSE(modules.contains(module)) << "modules come in one run each";
      modules.insert(module);
      previousModule = module;
    }
    if (rec.at(231) == '5') {
      ++headings;
    } else {
      ++details;
      EXPECT_FALSE(rec.mid(151, 80).trimmed().isEmpty());
      EXPECT_FALSE(rec.mid(238, 160).trimmed().isEmpty());
    }
  }
  EXPECT_EQ(details, 105);
  EXPECT_EQ(headings, 14);
  EXPECT_EQ(modules.size(), 10);
}

// ------------------------------------------------------------ worksheets

QByteArray Lee(const QString& ruta) {
  QFile f(ruta);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void Escribe(const QString& ruta, const QByteArray& datos) {
  QFile f(ruta);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(datos);
}

// The catalogue's item rows of a subject: module and generator to the most
// items an exercise of it gives.
struct ItemCatalogo {
  int nivel = 0;
  int maxItems = 0;
};
std::map<std::pair<QString, int>, ItemCatalogo> ItemsDe(const QString& asignatura) {
  std::map<std::pair<QString, int>, ItemCatalogo> items;
  const Salida r = Cli({"catalogue"});
  for (const QByteArray& line : r.out.split('\n')) {
    const qsizetype colon = line.indexOf(':');
    if (colon <= 0) continue;
    const QString rec = QString::fromUtf8(line.mid(colon + 1));
    if (rec.mid(6, 65).trimmed().compare(asignatura, Qt::CaseInsensitive) != 0) continue;
    const int nivel = rec.mid(231, 1).toInt();
    if (nivel < 1 || nivel > 3) continue;
    items[{QString::fromUtf8(line.left(colon)), rec.mid(232, 3).toInt()}] =
        ItemCatalogo{nivel, rec.mid(235, 3).toInt()};
  }
  return items;
}

QString TextoInvalido() {
  ss::TextosVentana textos(SS_SOURCE_DIR, "MAI");
  return QString::fromStdString(ss::Cp1252ToUtf8(textos.GetL_win("InvalidFile")));
}

TEST(CliNew, MakesTheItemsAskedForAndInfoReadsThemBack) {
  QTemporaryDir dir;
  const QString col = dir.filePath("gases.col");
  Salida r = Cli({"new", "--subject", "  chemistry ", "--item", "ANEU_QUIM_DIS:9=3:6", "--item",
                  "ANEU_QUIM_DIS:19=2:30", "--possol", "2", "--title", "Gases & más", "--seed",
                  "8", "-o", col});
  ASSERT_FALSE(r.crashed);
  ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
  const QJsonObject hecho = Json(r);
  EXPECT_EQ(hecho.value("problems").toInt(), 5);
  ASSERT_TRUE(QFileInfo::exists(col));

  Salida i = Cli({"info", col});
  ASSERT_EQ(i.exitCode, 0) << i.err.toStdString();
  const QJsonObject info = Json(i);
  EXPECT_EQ(info.value("pages").toInt(), hecho.value("pages").toInt());
  const QJsonObject cab = info.value("header").toObject();
  EXPECT_EQ(cab.value("TITULO").toString(), QString::fromUtf8("Gases & más"));
  EXPECT_EQ(cab.value("POSSOL").toInt(), 2);
  EXPECT_EQ(cab.value("NPROB").toInt(), 5);
  EXPECT_EQ(cab.value("POSNUMPAG").toInt(), 9);
  EXPECT_EQ(cab.value("PAGINI").toInt(), 1);
  EXPECT_EQ(cab.value("PROINI").toInt(), 1);
  EXPECT_EQ(cab.value("COLRESPRO").toInt(), 16777215);
  EXPECT_TRUE(cab.value("ORDENA").toBool());
  EXPECT_EQ(cab.value("PRETIT").toString(), "");

  const auto items = ItemsDe("Chemistry");
  const int max19 = items.at({"ANEU_QUIM_DIS", 19}).maxItems;
  ASSERT_GT(max19, 0);
  ASSERT_LT(max19, 30);
  // In topic order: the conversions (topic 750) before the gas problems (760).
  const QJsonArray problemas = info.value("problems").toArray();
  ASSERT_EQ(problemas.size(), 5);
  const int rutinas[] = {19, 19, 9, 9, 9};
  const int ordenes[] = {1, 2, 1, 2, 3};
  for (int k = 0; k < 5; ++k) {
    const QJsonObject p = problemas[k].toObject();
    SCOPED_TRACE(k);
    EXPECT_EQ(p.value("module").toString(), "ANEU_QUIM_DIS");
    EXPECT_EQ(p.value("Rutina").toInt(), rutinas[k]);
    EXPECT_EQ(p.value("Orden").toInt(), ordenes[k]);
    EXPECT_EQ(p.value("Total").toInt(), rutinas[k] == 9 ? 3 : 2);
    EXPECT_EQ(p.value("Cantidad").toInt(), rutinas[k] == 9 ? 6 : max19);
    const QString comando = QString("%1%2%3%4%5%6")
                                .arg(p.value("Rutina").toInt(), 3, 10, QChar('0'))
                                .arg(p.value("Semilla").toInt() % 1000, 3, 10, QChar('0'))
                                .arg(p.value("NumVariante").toInt() % 10000, 4, 10, QChar('0'))
                                .arg(p.value("Cantidad").toInt(), 2, 10, QChar('0'))
                                .arg(p.value("Total").toInt(), 2, 10, QChar('0'))
                                .arg(p.value("Orden").toInt(), 2, 10, QChar('0'));
    EXPECT_EQ(p.value("command").toString(), comando);
    EXPECT_FALSE(p.value("statement").toString().isEmpty());
    EXPECT_FALSE(p.value("statement").toString().contains("ERROR"));
    EXPECT_TRUE(p.value("solution").toString().endsWith("&LF"));
    if (ordenes[k] > 1) {
      const QJsonObject antes = problemas[k - 1].toObject();
      EXPECT_EQ(p.value("Semilla").toInt(), antes.value("Semilla").toInt() + 1);
      EXPECT_EQ(p.value("NumVariante").toInt(), antes.value("NumVariante").toInt() + 1);
    }
  }
}

TEST(CliNew, TheSameSeedMakesTheSameFile) {
  QTemporaryDir dir;
  const QStringList pedido = {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:4=4",
                              "--shuffle", "--seed", "77", "-o"};
  ASSERT_EQ(Cli(pedido + QStringList{dir.filePath("a.col")}).exitCode, 0);
  ASSERT_EQ(Cli(pedido + QStringList{dir.filePath("b.col")}).exitCode, 0);
  const QByteArray a = Lee(dir.filePath("a.col"));
  EXPECT_FALSE(a.isEmpty());
  EXPECT_EQ(a, Lee(dir.filePath("b.col")));
  ASSERT_EQ(Cli({"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:4=4", "--seed", "78",
                 "-o", dir.filePath("c.col")})
                .exitCode,
            0);
  EXPECT_NE(a, Lee(dir.filePath("c.col")));
}

TEST(CliNew, AllMarksEveryItemOfTheSubject) {
  QTemporaryDir dir;
  const QString col = dir.filePath("all.col");
  Salida r = Cli({"new", "--subject", "CHEMISTRY", "--all", "2", "--possol", "0", "-o", col});
  ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
  const auto items = ItemsDe("Chemistry");
  ASSERT_GT(items.size(), 50u);
  EXPECT_EQ(Json(r).value("problems").toInt(), 2 * static_cast<int>(items.size()));

  const QJsonArray problemas = Json(Cli({"info", col})).value("problems").toArray();
  ASSERT_EQ(problemas.size(), 2 * static_cast<int>(items.size()));
  std::map<std::pair<QString, int>, int> vistos;
  for (const QJsonValue& v : problemas) {
    const QJsonObject p = v.toObject();
    const std::pair<QString, int> clave{p.value("module").toString(), p.value("Rutina").toInt()};
    ASSERT_TRUE(items.count(clave)) << clave.first.toStdString() << " " << clave.second;
    ++vistos[clave];
    // Exercises and questions hold 6 items, or the most their generator gives.
    const ItemCatalogo& item = items.at(clave);
    const int esperado = item.nivel == 3 ? 0 : (item.maxItems > 0 ? std::min(6, item.maxItems) : 6);
    EXPECT_EQ(p.value("Cantidad").toInt(), esperado) << clave.first.toStdString() << clave.second;
  }
  for (const auto& [clave, n] : vistos) EXPECT_EQ(n, 2);
}

TEST(CliSysedu, TheCatalogueOfTheCourseInTeachingOrder) {
  Salida r = Cli({"catalogue", "--sysedu", "Secondary_Chemistry.sed"});
  ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
  QStringList asignaturas;
  QString anterior;
  int detalles = 0;
  for (const QByteArray& linea : r.out.split('\n')) {
    if (linea.isEmpty()) continue;
    const QString rec = QString::fromUtf8(linea.mid(linea.indexOf(':') + 1));
    const QString asig = rec.mid(6, 65).trimmed();
    if (!asignaturas.contains(asig)) asignaturas << asig;
    // Within a subject, topic and subtopic ordinals never go back.
    const QString clave = asig + rec.left(6);
    if (!anterior.isEmpty() && anterior.startsWith(asig)) {
      EXPECT_LE(anterior, clave);
    }
    anterior = clave;
    if (rec.at(231) != u'5') ++detalles;
  }
  EXPECT_EQ(asignaturas, QStringList({"Chemistry 1", "Chemistry 2"}));
  EXPECT_GT(detalles, 80);
  EXPECT_TRUE(r.out.contains("Units and measurement"));
  // The base catalogue is still there without a system.
  EXPECT_FALSE(Cli({"catalogue"}).out.contains("Units and measurement"));

  Salida mal = Cli({"catalogue", "--sysedu", "none.sed"});
  EXPECT_EQ(mal.exitCode, 1);
  EXPECT_TRUE(mal.out.isEmpty());
}

TEST(CliSysedu, NewComposesFromACourseSubject) {
  QTemporaryDir dir;
  const QString col = dir.filePath("c1.col");
  Salida r = Cli({"new", "--sysedu", "Secondary_Chemistry.sed", "--subject", "Chemistry 1", "--item",
                  "ANEU_QUIM_DIS:9=2", "--item", "ANEU_QUIM_DIS:11=1:4", "--seed", "3", "-o", col});
  ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
  EXPECT_EQ(Json(r).value("problems").toInt(), 3);
  // Generator 14 is not part of Chemistry 1.
  Salida fuera = Cli({"new", "--sysedu", "Secondary_Chemistry.sed", "--subject", "Chemistry 1",
                      "--item", "ANEU_QUIM_DIS:14=1", "-o", dir.filePath("x.col")});
  EXPECT_EQ(fuera.exitCode, 2);
  EXPECT_FALSE(QFile::exists(dir.filePath("x.col")));
}

TEST(CliNew, WrongRequestsGiveOneUsageLineAndNoFile) {
  QTemporaryDir dir;
  const QString col = dir.filePath("x.col");
  const QList<QStringList> malos = {
      {"new"},
      {"new", "--subject", "Chemistry", "-o", col},                              // nothing asked
      {"new", "--subject", "Astrology", "--all", "1", "-o", col},                // no such subject
      {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:99=1", "-o", col},  // no such item
      {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9", "-o", col},
      {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9=0", "-o", col},
      {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9=100", "-o", col},
      {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9=2:0", "-o", col},
      {"new", "--subject", "Chemistry", "--all", "5", "-o", col},  // 525 problems
      {"new", "--subject", "Chemistry", "--all", "1", "--possol", "4", "-o", col},
      {"new", "--subject", "Chemistry", "--all", "1", "-o", dir.filePath("x.txt")},
      {"new", "--subject", "Chemistry", "--all", "1"},
      {"new", "--subject", "Chemistry", "--all", "1", "--seed", "-3", "-o", col},
      {"new", "--subject", "Chemistry", "--all", "1", "--bogus", "-o", col},
      {"render", "x.col"},
      {"render", "x.col", "-o", dir.filePath("out.png")},  // no %d for the pages
      {"render", "x.col", "-o", dir.filePath("out.svg")},
      {"render", "x.col", "-o", dir.filePath("o-%d.png"), "--zoom", "0"},
      {"render", "-o", dir.filePath("o.pdf")},
      {"info"},
      {"info", "a.col", "b.col"},
  };
  for (const QStringList& args : malos) {
    Salida r = Cli(args);
    SCOPED_TRACE(args.join(' ').toStdString());
    ASSERT_FALSE(r.crashed);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_EQ(r.err.count('\n'), 1) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains("usage: sheetsmith-cli")) << r.err.toStdString();
  }
  EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

TEST(CliNew, AFolderThatCannotBeWrittenIsAnError) {
  QTemporaryDir dir;
  Salida r = Cli({"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:1=1", "-o",
                  dir.filePath("missing/x.col")});
  ASSERT_FALSE(r.crashed);
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_TRUE(r.out.isEmpty());
  EXPECT_FALSE(r.err.isEmpty());
  EXPECT_FALSE(QFileInfo::exists(dir.filePath("missing")));
}

TEST(CliRender, PdfHoldsEveryPage) {
  QTemporaryDir dir;
  const QString col = dir.filePath("s.col");
  Salida n = Cli({"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:6=9", "--possol", "3",
                  "--seed", "3", "-o", col});
  ASSERT_EQ(n.exitCode, 0) << n.err.toStdString();
  const int paginas = Json(n).value("pages").toInt();
  ASSERT_GE(paginas, 3);

  const QString pdf = dir.filePath("s.pdf");
  Salida r = Cli({"render", col, "-o", pdf});
  ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
  EXPECT_EQ(Json(r).value("pages").toInt(), paginas);
  const QByteArray datos = Lee(pdf);
  ASSERT_TRUE(datos.startsWith("%PDF"));
  const QRegularExpression pagina(QStringLiteral("/Type\\s*/Page(?!s)"));
  EXPECT_EQ(QString::fromLatin1(datos).count(pagina), paginas);
}

TEST(CliRender, OnePngAPageAtTheZoomAsked) {
  QTemporaryDir dir;
  const QString col = dir.filePath("s.col");
  Salida n = Cli({"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:19=6", "--possol", "1",
                  "--seed", "9", "-o", col});
  ASSERT_EQ(n.exitCode, 0) << n.err.toStdString();
  const int paginas = Json(n).value("pages").toInt();
  ASSERT_GE(paginas, 2);

  for (double zoom : {1.0, 0.5}) {
    const QString patron = dir.filePath(QString("z%1-page%d.png").arg(zoom));
    Salida r = Cli({"render", col, "-o", patron, "--zoom", QString::number(zoom)});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(Json(r).value("pages").toInt(), paginas);
    for (int p = 1; p <= paginas + 1; ++p) {
      const QString nombre = QString(patron).replace("%d", QString::number(p));
      if (p > paginas) {
        EXPECT_FALSE(QFileInfo::exists(nombre));
        continue;
      }
      QImage img(nombre);
      ASSERT_FALSE(img.isNull()) << nombre.toStdString();
      EXPECT_EQ(img.width(), static_cast<int>(796 * zoom));
      EXPECT_EQ(img.height(), static_cast<int>(1125 * zoom));
      // Something is printed on every page.
      bool tinta = false;
      for (int y = 0; y < img.height() && !tinta; y += 2)
        for (int x = 0; x < img.width() && !tinta; x += 2)
          if (qGray(img.pixel(x, y)) < 128) tinta = true;
      EXPECT_TRUE(tinta) << nombre.toStdString();
    }
  }
}

TEST(CliRender, AnInvalidFileIsToldAndNothingIsWritten) {
  QTemporaryDir dir;
  const QString invalido = TextoInvalido();
  ASSERT_FALSE(invalido.isEmpty());
  Escribe(dir.filePath("text.col"), "just some text, no worksheet\r\n");
  Escribe(dir.filePath("empty.col"), "");
  Escribe(dir.filePath("cut.col"), "#CABECERA(#PROPARAM(ANEU#PROPARAM)#CABECERA)");
  const QStringList ficheros = {dir.filePath("text.col"), dir.filePath("empty.col"),
                                dir.filePath("cut.col"), dir.filePath("missing.col"),
                                dir.path()};
  Escribe(dir.filePath("kept.pdf"), "keep me");
  for (const QString& f : ficheros) {
    SCOPED_TRACE(f.toStdString());
    for (const QStringList& args :
         {QStringList{"render", f, "-o", dir.filePath("kept.pdf")},
          QStringList{"render", f, "-o", dir.filePath("new.pdf")},
          QStringList{"render", f, "-o", dir.filePath("p-%d.png")}, QStringList{"info", f}}) {
      Salida r = Cli(args);
      ASSERT_FALSE(r.crashed);
      EXPECT_EQ(r.exitCode, 1);
      EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
      EXPECT_TRUE(QString::fromUtf8(r.err).contains(invalido)) << r.err.toStdString();
    }
  }
  EXPECT_EQ(Lee(dir.filePath("kept.pdf")), "keep me");
  EXPECT_FALSE(QFileInfo::exists(dir.filePath("new.pdf")));
  EXPECT_FALSE(QFileInfo::exists(dir.filePath("p-1.png")));
}

}  // namespace
