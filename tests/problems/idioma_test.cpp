#include "problems/idioma.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fstream>
#include <map>
#include <set>
#include <tuple>

#include "problems/generic.h"
#include "problems/texto.h"

namespace fs = std::filesystem;

namespace ss {
namespace {

// A program folder of its own, with a lang/ inside.
struct Carpeta {
  Carpeta() { fs::create_directories(raiz / "lang"); }
  void Escribe(const std::string& name, const std::string& bytes) {
    std::ofstream(raiz / "lang" / name, std::ios::binary) << bytes;
  }
  QTemporaryDir dir;
  fs::path raiz{dir.path().toStdString()};
};

TEST(MessageFiles, LookupsByTrimmedKeyWithoutCaseTheFirstEntryWinning) {
  Carpeta c;
  c.Escribe("ENG_MGE_QUI.lmo",
            "; a comment\r\n  [a b ]=x\r\n[Dup]=first\r\n[DUP]=second\r\nnot an entry [x]=y\r\n"
            "[Key]=\r\n[Alt]=one@@\r\n[Deg]=25 \xC2\xB0" "C\r\n"
            "[One]=a\n[Two]=b\r\n[Three]=c\rd\r\n[Last]=no line end");
  Mensajes m(c.raiz);
  GenContext g(&m, Aleatorio(1));
  const std::tuple<const char*, int, const char*, bool> cases[] = {  // key, selector, text, found
      {" A B", -1, "x", true},          {"dup", -1, "first", true},
      {"Deg", -1, "25 \xB0" "C", true},  // read as Windows-1252
      {"Key", -1, "", true},            // an entry without text is found, empty
      {"Alt", 1, "", true},             {"Alt", 2, "one", true},
      {"x", -1, "", false},             {"y", -1, "", false},
      // Only CR LF ends a line: a lone LF or CR is text.
      {"One", -1, "a\n[Two]=b", true},  {"Two", -1, "", false},
      {"Three", -1, "c\rd", true},      {"Last", -1, "no line end", true},
  };
  for (const auto& [key, selector, text, found] : cases) {
    g.GP_MsgFound = true;
    EXPECT_EQ(g.MsgQUI(key, selector), text) << key;
    EXPECT_EQ(g.GP_MsgFound, found) << key;
  }
  EXPECT_EQ(m.Entradas(TablaMensajes::QUI), 8u);
}

TEST(MessageFiles, AnEntryWithoutItsClosingIsFatalNamingFileAndLine) {
  Carpeta c;
  c.Escribe("ENG_MGE_QUI.lmo", "[Good]=1\r\n; fine\r\n  [Bad = 2\r\n[Later]=3\r\n");
  Mensajes m(c.raiz);
  try {
    m.LoadMGE("QUI");
    ADD_FAILURE() << "a malformed line was accepted";
  } catch (const ErrorFatalDatos& e) {
    EXPECT_EQ(e.fichero().filename().string() + ":" + std::to_string(e.linea()), "ENG_MGE_QUI.lmo:3");
    EXPECT_NE(std::string(e.what()).find("ENG_MGE_QUI.lmo:3"), std::string::npos) << e.what();
  }
  EXPECT_FALSE(m.Cargada(TablaMensajes::QUI));
}

TEST(MessageFiles, TheCodeChoosesTheTableSlipsAndUnknownCodesAreReported) {
  Carpeta c;
  std::vector<std::string> notices;
  Mensajes m(c.raiz, [&](const std::string& t) { notices.push_back(t); });
  GenContext g(&m);
  EXPECT_EQ(g.MsgQUI("Key"), "");  // no file: every lookup fails, until it turns up
  EXPECT_FALSE(g.GP_MsgFound || m.Cargada(TablaMensajes::QUI));
  c.Escribe("eng_mge_fis.LMO", "[Speed]=velocity\r\n");  // the name is found in any case
  c.Escribe("ENG_MGE_MAT.lmo", "[Speed]=rate\r\n");
  c.Escribe("ENG_MGE_QUI.lmo", "[ Key ]=text \r\n[Other]=fine\r\n");
  c.Escribe("ENG_MGE_XYZ.lmo", "[Speed]=none\r\n");
  Notacion n;
  n.separadorDecimal = ",";
  InitServicios(n, m);
  EXPECT_EQ(n.separadorDecimal, ".");  // the defaults come back
  EXPECT_EQ(g.MsgFIS("speed") + "|" + g.MsgMAT("speed") + "|" + g.MsgQUI("speed"), "velocity|rate|");
  EXPECT_EQ(g.MsgQUI("key"), "text ");  // a trailing blank is kept, and reported
  m.LoadMGE("XYZ");
  ASSERT_EQ(notices.size(), 2u);
  EXPECT_EQ(notices[0], "<Space at right> @  Key  ::: QUI");
  EXPECT_TRUE(notices[1].starts_with("Error: \n")) << notices[1];
}

TEST(WindowFiles, TextsWithLineBreaksAndAccelerators) {
  Carpeta c;
  c.Escribe("ENG_WIN_MAI.lmo", "[File0]=&File\r\n[Msg] junk =Line one%CRLF%Line two\r\n"
                               "[File0]=dead\r\n[Amp]=&Save && Close\r\n");
  c.Escribe("ENG_WIN_WIZ.lmo", "[A]=a\r\n[B=b\r\n[C]=c\r\n");
  TextosVentana t(c.raiz, "MAI"), roto(c.raiz, "WIZ"), falta(c.raiz, "PRI");
  const std::string cases[][2] = {
      {t.GetL_win("file0"), "&File"},     {t.GetL_win("file0", true), "File"},
      {t.GetL_win("MSG"), "Line one\nLine two"}, {t.GetL_win("Amp", true), "Save  Close"},
      {t.GetL_win("Nothing"), ""},        {roto.GetL_win("A") + roto.GetL_win("C"), ""},
      {falta.GetL_win("A"), ""}};
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
  EXPECT_FALSE(falta.Cargado());
}

// The language files we ship.

TEST(ShippedLanguageFiles, AreWellFormedCrLfWindows1252WithoutSlips) {
  int files = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(SS_SOURCE_DIR) / "lang")) {
    if (entry.path().extension() != ".lmo") continue;
    ++files;
    const std::string name = entry.path().filename().string();
    std::ifstream in(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    ASSERT_TRUE(bytes.ends_with("\r\n")) << name;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const bool pair = bytes[i] == '\r' ? bytes[i + 1] == '\n'
                        : bytes[i] == '\n' ? i > 0 && bytes[i - 1] == '\r' : true;
      ASSERT_TRUE(pair) << name << " byte " << i << ": a line end other than CR LF";
    }
    bool exact = false;
    Utf8ToCp1252(bytes, &exact);
    EXPECT_TRUE(exact) << name << " holds a character outside Windows-1252";
    std::set<std::string> keys;
    int number = 0;
    const auto lines = LeeLineasLmo(entry.path());
    for (const std::string& line : *lines) {
      ++number;
      const std::string_view l = LTrim(line);
      if (!l.starts_with('[')) continue;
      const std::size_t close = l.find("]=");
      ASSERT_NE(close, std::string_view::npos) << name << ":" << number;
      EXPECT_TRUE(keys.insert(UCase(Trim(l.substr(1, close - 1)))).second) << name << ":" << number;
      EXPECT_FALSE(line.ends_with(' ')) << name << ":" << number << " ends in a blank";
    }
  }
  EXPECT_GE(files, 6);
}

TEST(ShippedLanguageFiles, EveryWindowKeyHasACaption) {
  std::ifstream list(fs::path(SS_SOURCE_DIR) / "tests/data/window_keys.txt");
  std::map<std::string, TextosVentana> windows;
  std::string code, key;
  int checked = 0;
  while (list >> code >> key) {
    auto it = windows.try_emplace(code, fs::path(SS_SOURCE_DIR), code).first;
    EXPECT_NE(it->second.GetL_win(key), "") << code << " " << key;
    ++checked;
  }
  EXPECT_GT(checked, 250);
}

}  // namespace
}  // namespace ss
