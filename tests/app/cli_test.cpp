// The command-line tool, run as a user runs it.
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>

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

}  // namespace
