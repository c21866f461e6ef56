#include "problems/idioma.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "modules/modulos.h"
#include "problems/generic.h"
#include "problems/texto.h"

namespace fs = std::filesystem;

namespace ss {
namespace {

// A program folder of its own for each test, with a lang/ inside.
class CarpetaPrograma : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir_ = fs::temp_directory_path() / ("ss_lang_" + std::string(info->name()));
    fs::remove_all(dir_);
    fs::create_directories(dir_ / "lang");
  }
  void TearDown() override { fs::remove_all(dir_); }
  void Escribe(const std::string& name, const std::string& bytes) {
    std::ofstream(dir_ / "lang" / name, std::ios::binary) << bytes;
  }
  fs::path dir_;
};

using MessageFiles = CarpetaPrograma;
using WindowFiles = CarpetaPrograma;

TEST_F(MessageFiles, KeysCompareTrimmedAndWithoutCaseAndTheFirstWins) {
  Escribe("ENG_MGE_QUI.lmo",
          "; a comment\r\n"
          "  [a b ]=x\r\n"
          "[Dup]=first\r\n"
          "[DUP]=second\r\n"
          "not an entry [x]=y\r\n"
          "[Key]=\r\n"
          "[Alt]=one@@\r\n"
          "[Deg]=25 \xC2\xB0" "C\r\n"
          "[Last]=no line end");
  Mensajes m(dir_);
  GenContext g(&m, Aleatorio(1));
  EXPECT_EQ(g.MsgQUI(" A B"), "x");
  EXPECT_EQ(g.MsgQUI("dup"), "first");
  EXPECT_EQ(g.MsgQUI("Deg"), "25 \xB0" "C");  // read as Windows-1252
  EXPECT_EQ(g.MsgQUI("Last"), "no line end");
  EXPECT_TRUE(g.GP_MsgFound);
  // An entry without text is found, empty: a subject file keeps the base text so.
  EXPECT_EQ(g.MsgQUI("Key"), "");
  EXPECT_TRUE(g.GP_MsgFound);
  // "one@@" has two alternatives, the second empty.
  EXPECT_EQ(g.MsgQUI("Alt", 1), "");
  EXPECT_EQ(g.MsgQUI("Alt", 2), "one");
  EXPECT_TRUE(g.GP_MsgFound);
  EXPECT_EQ(g.MsgQUI("x"), "");
  EXPECT_FALSE(g.GP_MsgFound);
  EXPECT_EQ(m.Entradas(TablaMensajes::QUI), 6u);
}

TEST_F(MessageFiles, OnlyCrLfEndsALine) {
  Escribe("ENG_MGE_QUI.lmo", "[One]=a\n[Two]=b\n[Three]=c\r\n[Four]=d\re");
  Mensajes m(dir_);
  GenContext g(&m);
  EXPECT_EQ(g.MsgQUI("One"), "a\n[Two]=b\n[Three]=c");
  EXPECT_EQ(g.MsgQUI("Two"), "");
  EXPECT_FALSE(g.GP_MsgFound);
  EXPECT_EQ(g.MsgQUI("Four"), "d\re");
}

TEST_F(MessageFiles, AMissingFileLeavesTheTableUnloadedAndEveryLookupFails) {
  Mensajes m(dir_);
  GenContext g(&m);
  EXPECT_EQ(g.MsgQUI("Asig"), "");
  EXPECT_FALSE(g.GP_MsgFound);
  EXPECT_FALSE(m.Cargada(TablaMensajes::QUI));
  // The file turning up later is read at the next lookup.
  Escribe("ENG_MGE_QUI.lmo", "[Asig]=Chemistry\r\n");
  g.GP_MsgFound = true;
  EXPECT_EQ(g.MsgQUI("Asig"), "Chemistry");
  EXPECT_TRUE(g.GP_MsgFound);
}

TEST_F(MessageFiles, AnEntryWithoutItsClosingIsFatalNamingFileAndLine) {
  Escribe("ENG_MGE_QUI.lmo", "[Good]=1\r\n; fine\r\n  [Bad = 2\r\n[Later]=3\r\n");
  Mensajes m(dir_);
  try {
    m.LoadMGE("QUI");
    FAIL() << "a malformed line was accepted";
  } catch (const ErrorFatalDatos& e) {
    EXPECT_EQ(e.linea(), 3);
    EXPECT_EQ(e.fichero().filename(), "ENG_MGE_QUI.lmo");
    EXPECT_NE(std::string(e.what()).find("ENG_MGE_QUI.lmo:3"), std::string::npos);
  }
  EXPECT_FALSE(m.Cargada(TablaMensajes::QUI));
}

TEST_F(MessageFiles, ATrailingBlankIsReportedAndKept) {
  Escribe("ENG_MGE_QUI.lmo", "[ Key ]=text \r\n[Other]=fine\r\n");
  std::vector<std::string> notices;
  Mensajes m(dir_, [&](const std::string& t) { notices.push_back(t); });
  GenContext g(&m);
  EXPECT_EQ(g.MsgQUI("key"), "text ");
  EXPECT_EQ(notices, std::vector<std::string>{"<Space at right> @  Key  ::: QUI"});
}

TEST_F(MessageFiles, TheCodeChoosesTheTableAndTheNameIsFoundInAnyCase) {
  Escribe("eng_mge_fis.LMO", "[Speed]=velocity\r\n");
  Escribe("ENG_MGE_MAT.lmo", "[Speed]=rate\r\n");
  Escribe("ENG_MGE_XYZ.lmo", "[Speed]=none\r\n");
  std::vector<std::string> notices;
  Mensajes m(dir_, [&](const std::string& t) { notices.push_back(t); });
  Notacion n;
  n.separadorDecimal = ",";
  InitServicios(n, m);
  EXPECT_EQ(n.separadorDecimal, ".");
  EXPECT_EQ(n.signoProducto, "\xD7");
  EXPECT_TRUE(m.Cargada(TablaMensajes::FIS));
  EXPECT_TRUE(m.Cargada(TablaMensajes::MAT));
  GenContext g(&m);
  EXPECT_EQ(g.MsgFIS("speed"), "velocity");
  EXPECT_EQ(g.MsgMAT("speed"), "rate");
  EXPECT_EQ(g.MsgQUI("speed"), "");
  m.LoadMGE("XYZ");
  ASSERT_EQ(notices.size(), 1u);
  EXPECT_TRUE(notices[0].starts_with("Error: \n")) << notices[0];
}

TEST_F(WindowFiles, BracketAndEqualsMayStandApart) {
  Escribe("ENG_WIN_MAI.lmo",
          "[File0]=&File\r\n"
          "[Msg] junk =Line one%CRLF%Line two\r\n"
          "[File0]=dead\r\n"
          "[Amp]=&Save && Close\r\n");
  TextosVentana t(dir_, "MAI");
  EXPECT_EQ(t.GetL_win("file0"), "&File");
  EXPECT_EQ(t.GetL_win("file0", true), "File");
  EXPECT_EQ(t.GetL_win("MSG"), "Line one\nLine two");
  EXPECT_EQ(t.GetL_win("Amp", true), "Save  Close");
  EXPECT_EQ(t.GetL_win("Nothing"), "");
}

TEST_F(WindowFiles, ABrokenLineDropsEveryTextAndAMissingFileGivesBlanks) {
  Escribe("ENG_WIN_WIZ.lmo", "[A]=a\r\n[B=b\r\n[C]=c\r\n");
  TextosVentana t(dir_, "WIZ");
  EXPECT_EQ(t.GetL_win("A"), "");
  EXPECT_EQ(t.GetL_win("C"), "");
  TextosVentana none(dir_, "PRI");
  EXPECT_EQ(none.GetL_win("A"), "");
  EXPECT_FALSE(none.Cargado());
}

// The language files we ship.

const fs::path kLang = fs::path(SS_SOURCE_DIR) / "lang";

std::string Lee(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(ShippedLanguageFiles, AreWellFormedCrLfWindows1252WithoutSlips) {
  int files = 0;
  for (const auto& entry : fs::directory_iterator(kLang)) {
    if (entry.path().extension() != ".lmo") continue;
    ++files;
    const std::string name = entry.path().filename().string();
    const std::string bytes = Lee(entry.path());
    ASSERT_TRUE(bytes.ends_with("\r\n")) << name;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (bytes[i] == '\n') {
        ASSERT_TRUE(i > 0 && bytes[i - 1] == '\r') << name << " byte " << i;
      }
      if (bytes[i] == '\r') {
        ASSERT_TRUE(i + 1 < bytes.size() && bytes[i + 1] == '\n') << name;
      }
    }
    bool exact = false;
    Utf8ToCp1252(bytes, &exact);
    EXPECT_TRUE(exact) << name << " holds a character outside Windows-1252";
    auto lines = LeeLineasLmo(entry.path());
    ASSERT_TRUE(lines);
    std::set<std::string> keys;
    int number = 0;
    for (const std::string& line : *lines) {
      ++number;
      const std::string_view l = LTrim(line);
      if (!l.starts_with('[')) continue;
      const std::size_t close = l.find("]=");
      ASSERT_NE(close, std::string_view::npos) << name << ":" << number;
      const std::string key = UCase(Trim(l.substr(1, close - 1)));
      EXPECT_TRUE(keys.insert(key).second) << name << ":" << number << " repeats " << key;
      EXPECT_FALSE(line.ends_with(' ')) << name << ":" << number << " ends in a blank";
    }
    EXPECT_GT(keys.size(), 5u) << name;
  }
  EXPECT_GE(files, 6);
}

TEST(ShippedLanguageFiles, EveryWindowKeyIsInItsWindowsFile) {
  std::ifstream list(fs::path(SS_SOURCE_DIR) / "tests/data/window_keys.txt");
  std::map<std::string, TextosVentana> windows;
  std::string code, key;
  int checked = 0;
  while (list >> code >> key) {
    auto it = windows.try_emplace(code, fs::path(SS_SOURCE_DIR), code).first;
    it->second.LoadIdioma();
    EXPECT_TRUE(it->second.Cargado()) << code;
    // A known key with a text: captions are never blank.
    EXPECT_NE(it->second.GetL_win(key), "") << code << " " << key;
    ++checked;
  }
  EXPECT_GT(checked, 250);
}

TEST(ShippedLanguageFiles, TheCatalogueNamesEveryGeneratorOnce) {
  Mensajes m(SS_SOURCE_DIR);
  Notacion n;
  InitServicios(n, m);
  GenContext g(&m, Aleatorio(1));
  std::vector<std::string> cat;
  ListaProblemas(g, cat);

  std::set<std::string> generators, topics;
  std::map<std::string, int> headings;
  for (const std::string& r : cat) {
    const std::size_t colon = r.find(':');
    const std::string module = r.substr(0, colon);
    const std::string rec = r.substr(colon + 1);
    ASSERT_EQ(rec.size(), kLargoRegistro);
    EXPECT_EQ(Trim(Mid(rec, 7, 65)), "Chemistry");
    const std::string topic(Trim(Mid(rec, 72, 80)));
    EXPECT_FALSE(topic.empty());
    if (Mid(rec, 232, 1) == "5") {
      ++headings[std::string(Mid(rec, 1, 3)) + topic];
      continue;
    }
    topics.insert(topic);
    EXPECT_TRUE(generators.insert(module + std::string(Mid(rec, 233, 3))).second);
    EXPECT_FALSE(Trim(Mid(rec, 152, 80)).empty()) << r;
    const std::string_view description = Mid(rec, 239, 160);
    EXPECT_TRUE(description.starts_with("&DP") || description.starts_with("&D1") ||
                description.starts_with("&D2") || description.starts_with("&D3"))
        << r;
    EXPECT_GT(Trim(description).size(), 20u) << r;
    const std::string_view level = Mid(rec, 232, 1);
    EXPECT_TRUE(level == "2" || level == "3") << r;
    if (level == "2") {
      EXPECT_NE(Mid(rec, 236, 3), "000") << "an exercise needs its item bound: " << r;
    }
  }
  EXPECT_EQ(generators.size(), 105u);
  EXPECT_EQ(topics.size(), 14u);
  // One heading per topic and module: the topics of a module are distinct.
  for (const auto& [topic, count] : headings) EXPECT_EQ(count, 1) << topic;
  EXPECT_EQ(headings.size(), 14u);
}

TEST(ShippedLanguageFiles, NoticesUseTheRealTexts) {
  Mensajes m(SS_SOURCE_DIR);
  GenContext g(&m, Aleatorio(1));
  std::string st, so;
  GeneraProblema(g, "ANEU_QUIM_TER", "0150000000010102", st, so);
  EXPECT_EQ(st, "<" + g.MsgQUI("Error_in_module") + " ATEM__QUIM__TER:. " +
                    g.MsgQUI("Error_no_routine") + "015>&LF");
  EXPECT_EQ(st, "<Error in module ATEM__QUIM__TER:. No generator no.015>&LF");
}

}  // namespace
}  // namespace ss
