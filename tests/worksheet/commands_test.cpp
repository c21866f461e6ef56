#include "worksheet/commands.h"

#include <gtest/gtest.h>

namespace ss {
namespace {

TEST(ProcesaCommand, ReadsOnePathOrQuotedWorksheets) {
  struct Case {
    QString command;
    QStringList files;
  } cases[] = {
      {"", {}},
      {"    ", {}},
      {"  /home/t/my sheet.col  ", {"/home/t/my sheet.col"}},
      {"/home/t/notes.txt", {"/home/t/notes.txt"}},  // one unquoted path: no test of its ending
      {"\"/a/one.col\"", {"/a/one.col"}},
      {"\"/a/one.col\" \"/a/two.COL\"", {"/a/one.col", "/a/two.COL"}},
      {"\" /a/spaced name.Col \"", {"/a/spaced name.Col"}},
      {"\"/a/notes.txt\" \"/a/two.col\"", {"/a/two.col"}},   // not a worksheet: skipped
      {"\"/a/one.col\" \"/a/unclosed.col", {"/a/one.col"}},  // the broken piece ends the reading
      {"\"\"", {}},
      {"\"", {}},
      {"\"a.col\"\"b.col\"", {"a.col", "b.col"}},
      {"\"\t/a/tab.col\"", {"\t/a/tab.col"}},                // only blanks are trimmed
  };
  for (const auto& c : cases) EXPECT_EQ(ProcesaCommand(c.command), c.files) << c.command.toStdString();
  QString command;  // the first sixteen of seventeen
  for (int i = 1; i <= 17; ++i) command += QStringLiteral("\"/w/s%1.col\" ").arg(i);
  const QStringList files = ProcesaCommand(command);
  EXPECT_EQ(QStringList({files.size() == 16 ? "16" : "?", files.front(), files.back()}),
            QStringList({"16", "/w/s1.col", "/w/s16.col"}));
}

TEST(TextoComando, OneArgumentStandsSeveralAreQuoted) {
  EXPECT_EQ(TextoComando({}), "");
  EXPECT_EQ(TextoComando({"/a/my sheet.col"}), "/a/my sheet.col");
  EXPECT_EQ(TextoComando({"/a/x.col", "/b/y z.col"}), "\"/a/x.col\" \"/b/y z.col\"");
  // Arguments from a shell reach the same files as a quoted command text.
  EXPECT_EQ(ProcesaCommand(TextoComando({"/a/x.col", "/b/notes.txt", "/b/y z.col"})),
            QStringList({"/a/x.col", "/b/y z.col"}));
  EXPECT_EQ(ProcesaCommand(TextoComando({"/a/notes.txt"})), QStringList({"/a/notes.txt"}));
}

TEST(Drop, TheFirstFileDecidesTheDragTheDropKeepsWorksheets) {
  EXPECT_TRUE(AceptaArrastre({"/a/x.COL", "/a/y.png"}));
  EXPECT_FALSE(AceptaArrastre({"/a/y.png", "/a/x.col"}));
  EXPECT_FALSE(AceptaArrastre({}));
  EXPECT_FALSE(AceptaArrastre({"col"}));
  EXPECT_EQ(FicherosSoltados({"/a/1.col", "/a/p.png", "/a/2.Col", "/a/3.col"}),
            QStringList({"/a/1.col", "/a/2.Col", "/a/3.col"}));
  QStringList many;
  for (int i = 0; i < 20; ++i) many << QStringLiteral("/d/%1.col").arg(i);
  EXPECT_EQ(FicherosSoltados(many).size(), 16);
}

}  // namespace
}  // namespace ss
