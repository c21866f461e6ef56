#include "problems/silabo_sed.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

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

// A program folder with an education system of one subject, whose text file
// holds `lineas`.
class Sistema {
 public:
  explicit Sistema(const std::string& lineas, const std::string& sed = kSed) {
    raiz_ = fs::path(dir_.path().toStdString());
    fs::create_directories(raiz_ / "lang");
    Escribe(raiz_ / "test.sed", sed);
    Escribe(raiz_ / "lang" / "SUBJ.lmo", lineas);
    silabo = std::make_unique<SilaboSed>(raiz_, "test.sed",
                                         [this](const std::string& t) { avisos.push_back(t); });
    silabo->Carga();
  }
  static void Escribe(const fs::path& p, const std::string& texto) {
    std::string crlf;
    for (char c : texto) {
      if (c == '\n') crlf += '\r';
      crlf += c;
    }
    std::ofstream(p, std::ios::binary) << crlf;
  }
  // Resolves generator n of DIS as the catalogue would after its entry.
  SubtemaResuelto Resuelve(int n, const std::string& temaClave = "T_Gases") {
    GenContext g;
    g.GP_ThemeKey = temaClave;
    g.GP_ThemeName = "Base topic";
    g.GP_ThemeOrd = "760";
    g.GP_SubOrd = "020";
    g.GP_SubName = "Base subtopic";
    g.GP_Description = "&D1Base description";
    return silabo->ResolverSubtema(1, n, "ANEU_QUIM_DIS:", g);
  }
  static constexpr const char* kSed =
      "<NOMSYS>Test system</NOMSYS>\n<ASIG><NOM>Subject</NOM><MODG>SUBJ.lmo</MODG>"
      "<IMG>s.png</IMG><MODB><qui></MODB></ASIG>\n";
  std::unique_ptr<SilaboSed> silabo;
  std::vector<std::string> avisos;
  fs::path raiz_;

 private:
  QTemporaryDir dir_;
};

TEST(LoadAsignaturas, AllOrNothing) {
  const std::string bueno =
      "<ASIG><NOM>One</NOM><MODG> a.lmo </MODG><IMG>1.png</IMG><MODB><qui><mat></MODB></ASIG>"
      "junk<ASIG><NOM>Two</NOM><MODG>b.lmo</MODG><IMG>2.png</IMG><MODB>x</MODB></ASIG>";
  const auto s = LoadAsignaturas(bueno);
  ASSERT_EQ(s.size(), 2u);
  EXPECT_EQ(s[0].nombre, "One");
  EXPECT_EQ(s[0].modg, "a.lmo");
  EXPECT_EQ(s[0].modb, "<QUI><MAT>");
  EXPECT_EQ(s[1].img, "2.png");
  // Three blocks, the last without its </MODB>: no subjects at all.
  const std::string roto = bueno + "<ASIG><NOM>3</NOM><MODG>c</MODG><IMG>3</IMG><MODB>x</ASIG>";
  EXPECT_TRUE(LoadAsignaturas(roto).empty());
  // A closing tag before its opening one is as bad as a missing one.
  EXPECT_TRUE(LoadAsignaturas("<ASIG></NOM><NOM><MODG>a</MODG><IMG>i</IMG><MODB>m</MODB></ASIG>").empty());
  EXPECT_TRUE(LoadAsignaturas("no subjects").empty());
}

TEST(LeerNomSys, TheNameOrNothing) {
  QTemporaryDir dir;
  const fs::path d(dir.path().toStdString());
  Sistema::Escribe(d / "a.sed", "<NOMSYS>Upper secondary</NOMSYS>");
  Sistema::Escribe(d / "b.sed", "</NOMSYS>x<NOMSYS>");
  EXPECT_EQ(LeerNomSys(d / "a.sed"), "Upper secondary");
  EXPECT_EQ(LeerNomSys(d / "b.sed"), "");
  EXPECT_EQ(LeerNomSys(d / "missing.sed"), "");
  EXPECT_EQ(LeerNomSys(fs::path()), "");
}

TEST(ResolverSubtema, TagsSetOrdinalsNamesAndTopics) {
  struct Case {
    std::string tema, subtema;
    const char* temaR;
    const char* ordTema;
    const char* subR;
    const char* ordSub;
  } cases[] = {
      {"<#7#>", "", "Base topic", "007", "Base subtopic", "020"},
      {"<#42#>  Gas laws ", "Boyle", "Gas laws", "042", "Boyle", "020"},
      {"Gases", "<#12#><%Optics%><$3$>Lenses", "Optics", "012", "Lenses", "003"},
      {"", "<#760#><@T_Other@>Ideal", "Other topic", "760", "Ideal", "020"},
      {"<#3#>", "<$5$>", "Base topic", "003", "Base subtopic", "005"},
      {"", "<#9#><% New %>", "New", "009", "Base subtopic", "020"},
      // Strict: a topic tag is read only right behind an ordinal tag.
      {"Gases", "<@T_Other@>Ideal", "Gases", "760", "<@T_Other@>Ideal", "020"},
      // A topic the subject file does not name has no name: the dispatcher leaves it out.
      {"", "Plain", "", "760", "Plain", "020"},
  };
  for (const auto& c : cases) {
    std::string f = "[Asig]=Subject\n[T_Other]=Other topic\n[S_DIS_4]=" + c.subtema + "\n";
    if (!c.tema.empty()) f += "[T_Gases]=" + c.tema + "\n";
    Sistema s(f + "[D_DIS_4]=\n");
    const SubtemaResuelto r = s.Resuelve(4);
    SCOPED_TRACE(c.tema + " / " + c.subtema);
    EXPECT_TRUE(s.avisos.empty());
    EXPECT_EQ(r.asignatura, "Subject");
    EXPECT_EQ(r.tema, c.temaR);
    EXPECT_EQ(r.ordTema, c.ordTema);
    EXPECT_EQ(r.subtema, c.subR);
    EXPECT_EQ(r.ordSubtema, c.ordSub);
    EXPECT_EQ(r.descripcion, "&D1Base description");  // empty entry: the base text
  }
}

TEST(ResolverSubtema, SyntaxErrorsShowABoxAndLeaveTheGeneratorOut) {
  const std::string base = "[Asig]=Subject\n[T_Num]=<#1#>Numbered\n";
  struct Case {
    std::string tema, subtema, aviso;
  } cases[] = {
      {"<#1234#>Heat", "x",
       "Error leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base) [T_Gases] valor fuera de rango "},
      {"<#12 Heat", "x",
       "Error de sintaxis leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base) [T_Gases]  falta #> de cierre"},
      {"<#1a#>Heat", "x",
       "Error leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base) [T_Gases] valor fuera de rango "},
      {"", "<#12<%A%>x",
       "Error de sintaxis leyendo n\xBA ordinal del tema en la etiqueta de subtema [S_DIS_4]  falta #> de cierre"},
      {"", "<#-1#><%A%>x",
       "Error leyendo n\xBA ordinal del tema en la etiqueta de subtema [S_DIS_4] valor fuera de rango "},
      {"", "<#1#><%A x",
       "Error de sintaxis leyendo nombre de nuevo tema en la etiqueta de subtema [S_DIS_4]  falta %> de cierre"},
      {"", "<#1#><%  %>x",
       "Error de sintaxis leyendo nombre de nuevo tema en la etiqueta de subtema [S_DIS_4]  nombre de tema vac\xEDo"},
      {"", "<#1#><@T_Num x",
       "Error de sintaxis leyendo etiqueta de tema en la etiqueta de subtema [S_DIS_4]  falta @> de cierre"},
      {"", "<#1#><@@>x",
       "Error de sintaxis leyendo etiqueta de tema contenido en subtema [S_DIS_4]  falta la etiqueta"},
      {"", "<#1#><@T_None@>x",
       "Error de sintaxis leyendo nombre de tema de etiqueta de tema contenido en subtema [S_DIS_4]  falta el tema correspondiente a la etiqueta"},
      {"", "<#1#><@T_Num@>x",
       "Error de sintaxis leyendo nombre de tema de etiqueta de tema contenido en subtema [S_DIS_4]  el tema tiene un ordinal expl\xED" "cito"},
      {"", "<#1#>x",
       "Error de sintaxis leyendo tema contenido en subtema [S_DIS_4]  Falta la etiqueta de tema existente o el nombre de un nuevo tema"},
      {"", "<$3 x",
       "Error de sintaxis leyendo n\xBA ordinal del subtema con etiqueta  [S_DIS_4]  falta $> de cierre"},
      {"", "<$1000$>x",
       "Error leyendo n\xBA ordinal del subtema con etiqueta (en m\xF3" "dulo base) [S_DIS_4] valor del n\xFAmero fuera de rango "},
  };
  for (const auto& c : cases) {
    std::string f = base + "[S_DIS_4]=" + Cp1252ToUtf8(c.subtema) + "\n";
    if (!c.tema.empty()) f += "[T_Gases]=" + c.tema + "\n";
    Sistema s(f);
    SCOPED_TRACE(c.tema + " / " + c.subtema);
    EXPECT_EQ(s.Resuelve(4).subtema, "");
    ASSERT_EQ(s.avisos.size(), 1u);
    EXPECT_EQ(s.avisos[0], c.aviso);
  }
}

TEST(ResolverSubtema, AbsentKeysAndTheMissingSubjectName) {
  Sistema s("[Asig]=Subject\n[S_DIS_4]=Kept\n[D_DIS_5]=&D2Own\n[S_DIS_5]=\n");
  EXPECT_EQ(s.Resuelve(3).subtema, "");  // no S_DIS_3: not part of the subject
  const SubtemaResuelto r4 = s.Resuelve(4);
  EXPECT_EQ(r4.subtema, "Kept");
  EXPECT_EQ(r4.descripcion, "");  // no D_ key: no description
  const SubtemaResuelto r5 = s.Resuelve(5);
  EXPECT_EQ(r5.subtema, "Base subtopic");
  EXPECT_EQ(r5.descripcion, "&D2Own");
  Sistema sinNombre("[T_Gases]=Gases\n[S_DIS_4]=x\n");
  EXPECT_THROW(sinNombre.Resuelve(4), ErrorFatalDatos);
  // A subject file line without its "]=" is fatal, as in every message file.
  EXPECT_THROW(Sistema("[Asig]=Subject\n[S_DIS_4 = x\n"), ErrorFatalDatos);
  // Without a D_ entry the subject's ordinals are not handed out.
  Sistema sinD("[Asig]=Subject\n[T_Gases]=<#5#>Gases\n[S_DIS_4]=<$7$>x\n");
  const SubtemaResuelto r = sinD.Resuelve(4);
  EXPECT_EQ(r.ordTema, "760");
  EXPECT_EQ(r.ordSubtema, "020");
}

TEST(SilaboSed, AMissingSubjectFileListsNothing) {
  QTemporaryDir dir;
  const fs::path d(dir.path().toStdString());
  Sistema::Escribe(d / "x.sed", Sistema::kSed);
  SilaboSed s(d, "x.sed");
  s.Carga();
  EXPECT_EQ(s.NumAsignaturas(), 1);
  EXPECT_FALSE(s.TextosCargados());
  GenContext g;
  EXPECT_EQ(s.MsgAsig("Asig", 1, g), "");
  EXPECT_FALSE(g.GP_MsgFound);
  SilaboSed ninguno(d, "");
  ninguno.Carga();
  EXPECT_EQ(ninguno.NumAsignaturas(), 0);
}

// The education system we ship, placed in the catalogue.
TEST(ShippedSystem, PlacesTheGeneratorsOfEachSubjectInTeachingOrder) {
  Mensajes mensajes(SS_SOURCE_DIR);
  std::vector<std::string> avisos;
  // The .sed files stand in the program folder; in the repository they are in sysedu/.
  const fs::path programa = fs::path(SS_SOURCE_DIR) / "sysedu";
  fs::path carpeta = fs::temp_directory_path() / "ss_shipped_system";
  fs::remove_all(carpeta);
  fs::create_directories(carpeta);
  fs::copy(programa, carpeta, fs::copy_options::recursive);
  fs::copy(fs::path(SS_SOURCE_DIR) / "lang", carpeta / "lang", fs::copy_options::recursive);
  SilaboSed silabo(carpeta, "Secondary_Chemistry.sed", [&](const std::string& t) { avisos.push_back(t); });
  silabo.Carga();
  ASSERT_EQ(silabo.NumAsignaturas(), 2);
  ASSERT_TRUE(silabo.TextosCargados());
  EXPECT_EQ(LeerNomSys(carpeta / "Secondary_Chemistry.sed"), "Secondary school chemistry");

  GenContext g(&mensajes, Aleatorio(1));
  g.silabo = &silabo;
  std::vector<std::string> cat;
  ListaProblemas(g, cat);
  EXPECT_TRUE(avisos.empty()) << avisos.front();

  // Count, from the subject files themselves, the generators each subject holds.
  std::map<std::string, int> esperados;
  for (const auto& [fichero, nombre] : {std::pair{"ENG_SED_CHEM1.lmo", "Chemistry 1"},
                                        std::pair{"ENG_SED_CHEM2.lmo", "Chemistry 2"}}) {
    const auto lineas = LeeLineasLmo(carpeta / "lang" / fichero);
    ASSERT_TRUE(lineas);
    for (const std::string& l : *lineas)
      if (l.starts_with("[S_")) ++esperados[nombre];
  }
  std::map<std::string, int> detalles;
  std::map<std::string, std::string> ordenTemas;
  for (const std::string& r : cat) {
    const std::string rec = r.substr(r.find(':') + 1);
    const std::string asig(Trim(Mid(rec, 7, 65)));
    if (Mid(rec, 232, 1) == "5") {
      ordenTemas[asig + "|" + std::string(Trim(Mid(rec, 72, 80)))] = std::string(Mid(rec, 1, 3));
      continue;
    }
    ++detalles[asig];
    EXPECT_FALSE(Trim(Mid(rec, 152, 80)).empty());
  }
  EXPECT_EQ(detalles, esperados);
  EXPECT_EQ(ordenTemas["Chemistry 1|Units and measurement"], "005");
  EXPECT_EQ(ordenTemas["Chemistry 1|Gases"], "020");
  EXPECT_EQ(ordenTemas["Chemistry 1|The nucleus and radioactivity"], "045");
  EXPECT_EQ(ordenTemas["Chemistry 2|Quantum theory of the atom"], "005");
  EXPECT_EQ(ordenTemas.count("Chemistry 1|Reaction rates"), 0u);  // a second-year topic
  fs::remove_all(carpeta);
}

}  // namespace
}  // namespace ss
