#include "problems/idioma.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <tuple>
#include "modules/modulos.h"
#include "problems/generic.h"
#include "problems/silabo_sed.h"
#include "problems/texto.h"

namespace fs = std::filesystem;

namespace ss {
namespace {

struct Carpeta {  // a program folder with a lang/ inside
  Carpeta() { fs::create_directories(raiz / "lang"); }
  void Escribe(const fs::path& name, const std::string& bytes) {
    std::ofstream(raiz / name, std::ios::binary) << bytes;
  }
  QTemporaryDir dir;
  fs::path raiz{dir.path().toStdString()};
};

TEST(MessageFiles, LookupsByTrimmedKeyWithoutCaseTheFirstEntryWinning) {
  Carpeta c;
  c.Escribe("lang/ENG_MGE_QUI.lmo",
            "; a comment\r\n  [a b ]=x\r\n[Dup]=first\r\n[DUP]=second\r\nnot an entry [x]=y\r\n"
            "[Key]=\r\n[Alt]=one@@\r\n[Deg]=25 \xC2\xB0" "C\r\n"
            "[One]=a\n[Two]=b\r\n[Three]=c\rd\r\n[Last]=no line end");
  Mensajes m(c.raiz);
  GenContext g(&m, Aleatorio(1));
  const std::tuple<const char*, int, const char*, bool> cases[] = {  // key, selector, text, found
      {" A B", -1, "x", true}, {"dup", -1, "first", true}, {"x", -1, "", false}, {"y", -1, "", false},
      {"Deg", -1, "25 \xB0" "C", true},  // read as Windows-1252
      {"Key", -1, "", true},  // an entry without text is found, empty
      {"Alt", 1, "", true},   {"Alt", 2, "one", true},
      // Only CR LF ends a line: a lone LF or CR is text.
      {"One", -1, "a\n[Two]=b", true}, {"Two", -1, "", false}, {"Three", -1, "c\rd", true},
      {"Last", -1, "no line end", true}};
  for (const auto& [key, selector, text, found] : cases) {
    g.GP_MsgFound = true;
    EXPECT_EQ(g.MsgQUI(key, selector), text) << key;
    EXPECT_EQ(g.GP_MsgFound, found) << key;
  }
  EXPECT_EQ(m.Entradas(TablaMensajes::QUI), 8u);
}

TEST(MessageFiles, TheCodeChoosesTheTableSlipsAreReportedBrokenLinesAreFatal) {
  Carpeta c;
  std::vector<std::string> notices;
  Mensajes m(c.raiz, [&](const std::string& t) { notices.push_back(t); });
  GenContext g(&m);
  EXPECT_EQ(g.MsgQUI("Key"), "");  // no file: every lookup fails, until it turns up
  EXPECT_FALSE(g.GP_MsgFound || m.Cargada(TablaMensajes::QUI));
  c.Escribe("lang/eng_mge_fis.LMO", "[Speed]=velocity\r\n");  // the name is found in any case
  c.Escribe("lang/ENG_MGE_MAT.lmo", "[Speed]=rate\r\n");
  c.Escribe("lang/ENG_MGE_QUI.lmo", "[ Key ]=text \r\n[Other]=fine\r\n");
  c.Escribe("lang/ENG_MGE_XYZ.lmo", "[Speed]=none\r\n");
  Notacion n{.separadorDecimal = ","};
  InitServicios(n, m);
  EXPECT_EQ(n.separadorDecimal, ".");  // the defaults come back
  EXPECT_EQ(g.MsgFIS("speed") + "|" + g.MsgMAT("speed") + "|" + g.MsgQUI("speed"), "velocity|rate|");
  EXPECT_EQ(g.MsgQUI("key"), "text ");  // a trailing blank is kept, and reported
  m.LoadMGE("XYZ");
  ASSERT_EQ(notices.size(), 2u);
  EXPECT_EQ(notices[0], "<Space at right> @  Key  ::: QUI");
  EXPECT_TRUE(notices[1].starts_with("Error: \n")) << notices[1];
  // A line with "[" but without "]=" is fatal, naming the file and the line.
  c.Escribe("lang/ENG_MGE_QUI.lmo", "[Good]=1\r\n; fine\r\n  [Bad = 2\r\n[Later]=3\r\n");
  Mensajes otra(c.raiz);
  std::string que = "accepted";
  try { otra.LoadMGE("QUI"); } catch (const ErrorFatalDatos& e) {
    que = e.fichero().filename().string() + ":" + std::to_string(e.linea()) + " | " + e.what();
  }
  EXPECT_TRUE(que.starts_with("ENG_MGE_QUI.lmo:3 | ") && que.ends_with("QUI.lmo:3: an entry without \"]=\"")) << que;
  EXPECT_FALSE(otra.Cargada(TablaMensajes::QUI));
}

TEST(WindowFiles, TextsWithLineBreaksAndAccelerators) {
  Carpeta c;
  c.Escribe("lang/ENG_WIN_MAI.lmo", "[File0]=&File\r\n[Msg] junk =Line one%CRLF%Line two\r\n"
                               "[File0]=dead\r\n[Amp]=&Save && Close\r\n");
  c.Escribe("lang/ENG_WIN_WIZ.lmo", "[A]=a\r\n[B=b\r\n[C]=c\r\n");
  TextosVentana t(c.raiz, "MAI"), roto(c.raiz, "WIZ"), falta(c.raiz, "PRI");
  const std::string cases[][2] = {
      {t.GetL_win("file0"), "&File"},     {t.GetL_win("file0", true), "File"},
      {t.GetL_win("MSG"), "Line one\nLine two"}, {t.GetL_win("Amp", true), "Save  Close"},
      {t.GetL_win("Nothing"), ""},        {roto.GetL_win("A") + roto.GetL_win("C"), ""},
      {falta.GetL_win("A"), ""}};
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
}

TEST(ShippedLanguageFiles, AreWellFormedCrLfWindows1252WithoutSlips) {
  for (const auto& entry : fs::directory_iterator(fs::path(SS_SOURCE_DIR) / "lang")) {
    if (entry.path().extension() != ".lmo") continue;
    const std::string name = entry.path().filename().string();
    std::ifstream in(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    EXPECT_TRUE(bytes.ends_with("\r\n") && !std::regex_search(bytes, std::regex("\r(?!\n)|(^|[^\r])\n")))
        << name << ": a line end other than CR LF";
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
}

TEST(ShippedLanguageFiles, EveryWindowKeyHasACaption) {
  std::ifstream list(fs::path(SS_SOURCE_DIR) / "tests/data/window_keys.txt");
  std::map<std::string, TextosVentana> windows;
  int checked = 0;
  for (std::string code, key; list >> code >> key; ++checked)
    EXPECT_NE(windows.try_emplace(code, SS_SOURCE_DIR, code).first->second.GetL_win(key), "") << code << " " << key;
  EXPECT_GT(checked, 250);
}

// An education system of one subject, whose text file (when given) holds `lineas`.
struct Sistema : Carpeta {
  explicit Sistema(const std::optional<std::string>& lineas) {
    Escribe("test.sed", "<NOMSYS>Test system</NOMSYS>\r\n<ASIG><NOM>Subject</NOM><MODG>SUBJ.lmo</MODG>"
                        "<IMG>s.png</IMG><MODB><qui></MODB></ASIG>\r\n");
    if (lineas) Escribe("lang/SUBJ.lmo", std::regex_replace(*lineas, std::regex("\n"), "\r\n"));
    silabo.Carga();
  }
  SubtemaResuelto Resuelve(int n = 4) {
    GenContext g;
    g.GP_ThemeKey = "T_Gases", g.GP_ThemeName = "Base topic", g.GP_ThemeOrd = "760";
    g.GP_SubOrd = "020", g.GP_SubName = "Base subtopic", g.GP_Description = "&D1Base description";
    return silabo.ResolverSubtema(1, n, "ANEU_QUIM_DIS:", g);
  }
  std::vector<std::string> avisos;
  SilaboSed silabo{raiz, "test.sed", [this](const std::string& t) { avisos.push_back(t); }};
};

TEST(SedFiles, SubjectsAllOrNothingAndTheSystemsName) {
  const std::string bueno =
      "<ASIG><NOM>One</NOM><MODG> a.lmo </MODG><IMG>1.png</IMG><MODB><qui><mat></MODB></ASIG>"
      "junk<ASIG><NOM>Two</NOM><MODG>b.lmo</MODG><IMG>2.png</IMG><MODB>x</MODB></ASIG>";
  const auto s = LoadAsignaturas(bueno);
  ASSERT_EQ(s.size(), 2u);
  EXPECT_EQ(s[0].nombre + "|" + s[0].modg + "|" + s[0].img + "|" + s[0].modb, "One|a.lmo|1.png|<QUI><MAT>");
  // A third block without its </MODB>, or a closing tag before its opening one: no subjects.
  EXPECT_TRUE(LoadAsignaturas(bueno + "<ASIG><NOM>3</NOM><MODG>c</MODG><IMG>3</IMG><MODB>x</ASIG>").empty());
  EXPECT_TRUE(LoadAsignaturas("<ASIG></NOM><NOM><MODG>a</MODG><IMG>i</IMG><MODB>m</MODB></ASIG>").empty());
  Carpeta c;
  c.Escribe("a.sed", "<NOMSYS>Upper secondary</NOMSYS>");
  c.Escribe("b.sed", "</NOMSYS>x<NOMSYS>");
  EXPECT_EQ(LeerNomSys(c.raiz / "a.sed"), "Upper secondary");
  EXPECT_EQ(LeerNomSys(c.raiz / "b.sed") + LeerNomSys(c.raiz / "missing.sed") + LeerNomSys(fs::path()), "");
}

TEST(ResolverSubtema, TagsSetOrdinalsNamesAndTopicsOrShowABox) {
  const std::string fuera = "Error leyendo n\xBA ordinal del ", sintaxis = "Error de sintaxis leyendo ",
                    enSub = " en la etiqueta de subtema [S_DIS_4]  ", contenido = " contenido en subtema [S_DIS_4]  ",
                    base = "con etiqueta (en m\xF3" "dulo base) ";
  // Topic entry, subtopic entry; expected: topic, ordinals and subtopic, or the box shown.
  const std::string cases[][3] = {
      {"<#7#>", "", "Base topic 007 Base subtopic 020"},
      {"<# 42 #>  Gas laws ", "Boyle", "Gas laws 042 Boyle 020"},
      {"Gases", "<#12#><%Optics%><$3$>Lenses", "Optics 012 Lenses 003"},
      {"", "<#760#><@T_Other@>Ideal", "Other topic 760 Ideal 020"},
      {"<#3#>", "<$5$>", "Base topic 003 Base subtopic 005"},
      {"", "<#9#><% New %>", "New 009 Base subtopic 020"},
      {"Gases", "<@T_Other@>Ideal", "Gases 760 <@T_Other@>Ideal 020"},  // a topic tag only behind an ordinal
      {"", "Plain", " 760 Plain 020"},  // an unnamed topic: the dispatcher leaves it out
      {"<#1234#>Heat", "x", fuera + "tema " + base + "[T_Gases] valor fuera de rango "},
      {"<#12 Heat", "x", sintaxis + "n\xBA ordinal del tema " + base + "[T_Gases]  falta #> de cierre"},
      {"<#1a#>Heat", "x", fuera + "tema " + base + "[T_Gases] valor fuera de rango "},
      {"", "<#12<%A%>x", sintaxis + "n\xBA ordinal del tema" + enSub + "falta #> de cierre"},
      {"", "<#-1#><%A%>x", fuera + "tema en la etiqueta de subtema [S_DIS_4] valor fuera de rango "},
      {"", "<#1#><%A x", sintaxis + "nombre de nuevo tema" + enSub + "falta %> de cierre"},
      {"", "<#1#><%  %>x", sintaxis + "nombre de nuevo tema" + enSub + "nombre de tema vac\xEDo"},
      {"", "<#1#><@T_Num x", sintaxis + "etiqueta de tema" + enSub + "falta @> de cierre"},
      {"", "<#1#><@@>x", sintaxis + "etiqueta de tema" + contenido + "falta la etiqueta"},
      {"", "<#1#><@T_None@>x", sintaxis + "nombre de tema de etiqueta de tema" + contenido +
                                   "falta el tema correspondiente a la etiqueta"},
      {"", "<#1#><@T_Num@>x", sintaxis + "nombre de tema de etiqueta de tema" + contenido +
                                  "el tema tiene un ordinal expl\xED" "cito"},
      {"", "<#1#>x", sintaxis + "tema" + contenido + "Falta la etiqueta de tema existente o el nombre de un nuevo tema"},
      {"", "<$3 x", sintaxis + "n\xBA ordinal del subtema con etiqueta  [S_DIS_4]  falta $> de cierre"},
      {"", "<$1000$>x", fuera + "subtema " + base + "[S_DIS_4] valor del n\xFAmero fuera de rango "},
  };
  for (const auto& [tema, subtema, expected] : cases) {
    Sistema s("[Asig]=Subject\n[T_Other]=Other topic\n[T_Num]=<#1#>Numbered\n[D_DIS_4]=\n[S_DIS_4]=" +
              subtema + "\n" + (tema.empty() ? "" : "[T_Gases]=" + tema + "\n"));
    const SubtemaResuelto r = s.Resuelve();
    if (s.avisos.empty()) {
      EXPECT_EQ(r.tema + " " + r.ordTema + " " + r.subtema + " " + r.ordSubtema, expected) << subtema;
      EXPECT_EQ(r.asignatura + "|" + r.descripcion, "Subject|&D1Base description");  // empty D_: the base
    } else {
      EXPECT_EQ(s.avisos, std::vector<std::string>{expected}) << subtema;
      EXPECT_EQ(r.subtema, "") << subtema;
    }
  }
}

TEST(ResolverSubtema, AbsentEmptyAndFatalEntries) {
  Sistema s("[Asig]=Subject\n[S_DIS_4]=Kept\n[D_DIS_5]=&D2Own\n[S_DIS_5]=\n"
            "[T_Gases]=<#5#>Gases\n[S_DIS_6]=<$7$>x\n");
  const SubtemaResuelto r4 = s.Resuelve(4), r5 = s.Resuelve(5), r6 = s.Resuelve(6);
  EXPECT_EQ(s.Resuelve(3).subtema, "");  // no S_DIS_3: not part of the subject
  EXPECT_EQ(r4.subtema + "|" + r4.descripcion, "Kept|");  // no D_ key: no description
  EXPECT_EQ(r5.subtema + "|" + r5.descripcion, "Base subtopic|&D2Own");
  EXPECT_EQ(r6.ordTema + r6.ordSubtema, "760020");  // without a D_ entry no ordinals
  EXPECT_THROW(Sistema("[T_Gases]=Gases\n[S_DIS_4]=x\n").Resuelve(), ErrorFatalDatos);  // no Asig
  EXPECT_THROW(Sistema("[Asig]=Subject\n[S_DIS_4 = x\n"), ErrorFatalDatos);
  // A missing subject file: the subject is listed, its texts fail; no system, no subjects.
  Sistema sinFichero(std::nullopt);
  GenContext g;
  EXPECT_EQ(sinFichero.silabo.MsgAsig("Asig", 1, g), "");
  EXPECT_TRUE(sinFichero.silabo.NumAsignaturas() == 1 && !g.GP_MsgFound);
  SilaboSed ninguno(sinFichero.raiz, "");
  ninguno.Carga();
  EXPECT_EQ(ninguno.NumAsignaturas(), 0);
}

TEST(ShippedSystem, ListsItsSubjectsWithoutAnError) {
  Carpeta c;  // the .sed files stand in the program folder
  fs::copy(fs::path(SS_SOURCE_DIR) / "sysedu", c.raiz, fs::copy_options::recursive);
  fs::copy(fs::path(SS_SOURCE_DIR) / "lang", c.raiz / "lang", fs::copy_options::recursive);
  std::vector<std::string> avisos;
  SilaboSed silabo(c.raiz, "Secondary_Chemistry.sed", [&](const std::string& t) { avisos.push_back(t); });
  silabo.Carga();
  Mensajes mensajes(c.raiz);
  GenContext g(&mensajes, Aleatorio(1));
  g.silabo = &silabo;
  std::vector<std::string> cat;
  ListaProblemas(g, cat);
  EXPECT_TRUE(avisos.empty()) << avisos.front();
  EXPECT_GT(cat.size(), 80u);
}

}  // namespace
}  // namespace ss
