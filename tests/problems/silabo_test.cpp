#include "problems/silabo_sed.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fstream>
#include <map>

#include "modules/modulos.h"
#include "problems/generic.h"
#include "problems/texto.h"

namespace fs = std::filesystem;

namespace ss {
namespace {

void Escribe(const fs::path& p, const std::string& texto) {  // with CR LF line ends
  std::ofstream out(p, std::ios::binary);
  for (char c : texto) out << (c == '\n' ? "\r\n" : std::string(1, c));
}

// A program folder with an education system of one subject, whose text file
// (when given) holds `lineas`.
struct Sistema {
  explicit Sistema(const std::optional<std::string>& lineas) {
    fs::create_directories(raiz / "lang");
    Escribe(raiz / "test.sed", "<NOMSYS>Test system</NOMSYS>\n<ASIG><NOM>Subject</NOM>"
                               "<MODG>SUBJ.lmo</MODG><IMG>s.png</IMG><MODB><qui></MODB></ASIG>\n");
    if (lineas) Escribe(raiz / "lang" / "SUBJ.lmo", *lineas);
    silabo.Carga();
  }
  // Places generator 4 of DIS as the catalogue would after its entry.
  SubtemaResuelto Resuelve(int n = 4) {
    GenContext g;
    g.GP_ThemeKey = "T_Gases";
    g.GP_ThemeName = "Base topic";
    g.GP_ThemeOrd = "760";
    g.GP_SubOrd = "020";
    g.GP_SubName = "Base subtopic";
    g.GP_Description = "&D1Base description";
    return silabo.ResolverSubtema(1, n, "ANEU_QUIM_DIS:", g);
  }
  QTemporaryDir dir;
  fs::path raiz{dir.path().toStdString()};
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
  EXPECT_EQ(s[1].nombre + "|" + s[1].img, "Two|2.png");
  // A third block without its </MODB>, or a closing tag before its opening one: no subjects.
  EXPECT_TRUE(LoadAsignaturas(bueno + "<ASIG><NOM>3</NOM><MODG>c</MODG><IMG>3</IMG><MODB>x</ASIG>").empty());
  EXPECT_TRUE(LoadAsignaturas("<ASIG></NOM><NOM><MODG>a</MODG><IMG>i</IMG><MODB>m</MODB></ASIG>").empty());
  QTemporaryDir dir;
  const fs::path d(dir.path().toStdString());
  Escribe(d / "a.sed", "<NOMSYS>Upper secondary</NOMSYS>");
  Escribe(d / "b.sed", "</NOMSYS>x<NOMSYS>");
  EXPECT_EQ(LeerNomSys(d / "a.sed"), "Upper secondary");
  EXPECT_EQ(LeerNomSys(d / "b.sed") + LeerNomSys(d / "missing.sed") + LeerNomSys(fs::path()), "");
}

TEST(ResolverSubtema, TagsSetOrdinalsNamesAndTopics) {
  // Topic entry, subtopic entry; expected: topic, its ordinal, subtopic, its ordinal.
  const char* cases[][3] = {
      {"<#7#>", "", "Base topic 007 Base subtopic 020"},
      {"<# 42 #>  Gas laws ", "Boyle", "Gas laws 042 Boyle 020"},
      {"Gases", "<#12#><%Optics%><$3$>Lenses", "Optics 012 Lenses 003"},
      {"", "<#760#><@T_Other@>Ideal", "Other topic 760 Ideal 020"},
      {"<#3#>", "<$5$>", "Base topic 003 Base subtopic 005"},
      {"", "<#9#><% New %>", "New 009 Base subtopic 020"},
      // A topic tag is read only right behind an ordinal tag.
      {"Gases", "<@T_Other@>Ideal", "Gases 760 <@T_Other@>Ideal 020"},
      // A topic the subject file does not name has no name: the dispatcher leaves it out.
      {"", "Plain", " 760 Plain 020"},
  };
  for (const auto& [tema, subtema, expected] : cases) {
    Sistema s("[Asig]=Subject\n[T_Other]=Other topic\n[S_DIS_4]=" + std::string(subtema) + "\n" +
              (*tema ? "[T_Gases]=" + std::string(tema) + "\n" : "") + "[D_DIS_4]=\n");
    const SubtemaResuelto r = s.Resuelve();
    EXPECT_EQ(r.tema + " " + r.ordTema + " " + r.subtema + " " + r.ordSubtema, expected) << subtema;
    EXPECT_EQ(r.asignatura + "|" + r.descripcion, "Subject|&D1Base description");
    EXPECT_TRUE(s.avisos.empty()) << s.avisos.front();
  }
}

TEST(ResolverSubtema, SyntaxErrorsShowABoxAndLeaveTheGeneratorOut) {
  const char* cases[][3] = {
      {"<#1234#>Heat", "x", "Error leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base) [T_Gases] valor fuera de rango "},
      {"<#12 Heat", "x", "Error de sintaxis leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base) [T_Gases]  falta #> de cierre"},
      {"<#1a#>Heat", "x", "Error leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base) [T_Gases] valor fuera de rango "},
      {"", "<#12<%A%>x", "Error de sintaxis leyendo n\xBA ordinal del tema en la etiqueta de subtema [S_DIS_4]  falta #> de cierre"},
      {"", "<#-1#><%A%>x", "Error leyendo n\xBA ordinal del tema en la etiqueta de subtema [S_DIS_4] valor fuera de rango "},
      {"", "<#1#><%A x", "Error de sintaxis leyendo nombre de nuevo tema en la etiqueta de subtema [S_DIS_4]  falta %> de cierre"},
      {"", "<#1#><%  %>x", "Error de sintaxis leyendo nombre de nuevo tema en la etiqueta de subtema [S_DIS_4]  nombre de tema vac\xEDo"},
      {"", "<#1#><@T_Num x", "Error de sintaxis leyendo etiqueta de tema en la etiqueta de subtema [S_DIS_4]  falta @> de cierre"},
      {"", "<#1#><@@>x", "Error de sintaxis leyendo etiqueta de tema contenido en subtema [S_DIS_4]  falta la etiqueta"},
      {"", "<#1#><@T_None@>x", "Error de sintaxis leyendo nombre de tema de etiqueta de tema contenido en subtema [S_DIS_4]  "
                           "falta el tema correspondiente a la etiqueta"},
      {"", "<#1#><@T_Num@>x", "Error de sintaxis leyendo nombre de tema de etiqueta de tema contenido en subtema [S_DIS_4]  "
                          "el tema tiene un ordinal expl\xED" "cito"},
      {"", "<#1#>x", "Error de sintaxis leyendo tema contenido en subtema [S_DIS_4]  "
                 "Falta la etiqueta de tema existente o el nombre de un nuevo tema"},
      {"", "<$3 x", "Error de sintaxis leyendo n\xBA ordinal del subtema con etiqueta  [S_DIS_4]  falta $> de cierre"},
      {"", "<$1000$>x", "Error leyendo n\xBA ordinal del subtema con etiqueta (en m\xF3" "dulo base) [S_DIS_4] "
                    "valor del n\xFAmero fuera de rango "},
  };
  for (const auto& [tema, subtema, aviso] : cases) {
    Sistema s("[Asig]=Subject\n[T_Num]=<#1#>Numbered\n[S_DIS_4]=" + std::string(subtema) + "\n" +
              (*tema ? "[T_Gases]=" + std::string(tema) + "\n" : ""));
    EXPECT_EQ(s.Resuelve().subtema, "") << subtema;
    EXPECT_EQ(s.avisos, std::vector<std::string>{aviso}) << subtema;
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
  // A missing subject file: the subject is listed, its texts fail.
  Sistema sinFichero(std::nullopt);
  EXPECT_EQ(sinFichero.silabo.NumAsignaturas(), 1);
  EXPECT_FALSE(sinFichero.silabo.TextosCargados());
  GenContext g;
  EXPECT_EQ(sinFichero.silabo.MsgAsig("Asig", 1, g), "");
  EXPECT_FALSE(g.GP_MsgFound);
  SilaboSed ninguno(sinFichero.raiz, "");
  ninguno.Carga();
  EXPECT_EQ(ninguno.NumAsignaturas(), 0);
}

TEST(ShippedSystem, PlacesEveryGeneratorItsSubjectsNameWithoutAnError) {
  QTemporaryDir dir;  // the .sed files stand in the program folder, in the repository in sysedu/
  const fs::path carpeta(dir.path().toStdString());
  fs::copy(fs::path(SS_SOURCE_DIR) / "sysedu", carpeta, fs::copy_options::recursive);
  fs::copy(fs::path(SS_SOURCE_DIR) / "lang", carpeta / "lang", fs::copy_options::recursive);
  std::vector<std::string> avisos;
  SilaboSed silabo(carpeta, "Secondary_Chemistry.sed", [&](const std::string& t) { avisos.push_back(t); });
  silabo.Carga();
  ASSERT_TRUE(silabo.TextosCargados());
  EXPECT_EQ(LeerNomSys(carpeta / "Secondary_Chemistry.sed"), "Secondary school chemistry");
  Mensajes mensajes(SS_SOURCE_DIR);
  GenContext g(&mensajes, Aleatorio(1));
  g.silabo = &silabo;
  std::vector<std::string> cat;
  ListaProblemas(g, cat);
  EXPECT_TRUE(avisos.empty()) << avisos.front();
  // As many detail records per subject as its file has S_ keys.
  std::map<std::string, int> esperados, detalles;
  for (const auto& [fichero, nombre] : {std::pair{"ENG_SED_CHEM1.lmo", "Chemistry 1"},
                                        std::pair{"ENG_SED_CHEM2.lmo", "Chemistry 2"}}) {
    const auto lineas = LeeLineasLmo(carpeta / "lang" / fichero);
    for (const std::string& l : lineas.value()) esperados[nombre] += l.starts_with("[S_");
  }
  for (const std::string& r : cat)
    if (r[r.find(':') + 232] != '5') ++detalles[std::string(Trim(Mid(r.substr(r.find(':') + 1), 7, 65)))];
  EXPECT_EQ(detalles, esperados);
}

}  // namespace
}  // namespace ss
