#include "worksheet/ajustes.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include "tests/typeset/canvas_registro.h"
#include "typeset/motor.h"

namespace ss {
namespace {

// The main window texts of a folder of our own, with given defaults.
struct Textos {
  explicit Textos(const std::string& lineas = "") {
    QDir(dir.path()).mkpath(QStringLiteral("lang"));
    Escribe("lang/ENG_WIN_MAI.lmo", QByteArray::fromStdString(lineas));
    textos = std::make_unique<TextosVentana>(dir.path().toStdString(), "MAI");
  }
  void Escribe(const QString& nombre, const QByteArray& texto) {
    QFile f(dir.path() + u'/' + nombre);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(texto) == texto.size());
  }
  QTemporaryDir dir;
  std::unique_ptr<TextosVentana> textos;
};

TEST(Ajustes, DefaultsComeFromTheLanguageFileAndTheStoreOverrides) {
  AlmacenMemoria al;
  Textos vacio;
  Ajustes a = LeeAjustes(al, *vacio.textos);
  EXPECT_EQ(a.decimal + a.lista + a.division + a.producto + a.notacionCientifica + a.moneda,
            ".,\xF7\xD7\xD7" "10$");
  EXPECT_EQ(a.monedaPlural + a.intervaloAbre + a.intervaloCierra + a.prosuf, "dollars())");
  EXPECT_EQ(std::vector<int>({a.solpos, a.pagpos, a.procol, a.signosEspejo[0], a.signosLente[0],
                              a.signosLente[1]}),
            std::vector<int>({3, 11, 16777215, -1, -1, 1}));
  EXPECT_TRUE(a.ordena && a.mostrarPanelInicio && !a.botonesEdicion);
  EXPECT_EQ(a.recientesArchivo.size(), 9);

  Textos t(
      "[DefaultDecimalSeparator]=,\r\n[DefaultListSeparator]=;\r\n[DefaultCurrencySYMBOL]=\xE2\x82\xAC\r\n"
      "[DefaultCurrencyNameS]=euro\r\n[DefaultCurrencyNameP]=\r\n[GeomeOptiMirrol_POS_IMG]=1\r\n");
  a = LeeAjustes(al, *t.textos);
  EXPECT_EQ(a.decimal + a.lista + a.moneda + a.monedaNombre, ",;\x80" "euro");  // one-byte euro
  EXPECT_EQ(a.monedaPlural + std::to_string(a.signosEspejo[1]), "dollars1");  // an empty default keeps the built-in value
  al.Escribe("SEPA", "DEC", "'");
  al.Escribe("OPT_GEO_ESP", "POS_IMG", "-1");
  a = LeeAjustes(al, *t.textos);
  EXPECT_EQ(a.decimal + std::to_string(a.signosEspejo[1]), "'-1");
}

TEST(Ajustes, StoredValuesAndTheirRules) {
  // The settings a stored value may change, in one line.
  auto vista = [](const Ajustes& a) {
    return std::to_string(a.solpos) + " " + std::to_string(a.procol) + " " + std::to_string(a.pagpos) +
           " " + a.intervaloAbre + a.intervaloCierra + " " + a.division + " " + std::to_string(a.ordena) +
           std::to_string(a.mostrarPanelInicio) + std::to_string(a.botonesEdicion);
  };
  const char* casos[][4] = {
      {"Wizard", "Solpos", "", "1 16777215 11 () \xF7 110"},
      {"Wizard", "Solpos", "2", "2 16777215 11 () \xF7 110"},
      {"Wizard", "Solpos", "-99999999999", "0 16777215 11 () \xF7 110"},
      {"Wizard", "Procol", "0", "3 16777215 11 () \xF7 110"},
      {"Wizard", "Procol", "255", "3 255 11 () \xF7 110"},
      {"Wizard", "Procol", "99999999999", "3 16777215 11 () \xF7 110"},
      {"Wizard", "Pagpos", "1E300", "3 16777215 15 () \xF7 110"},
      {"Wizard", "Pagpos", "9", "3 16777215 9 () \xF7 110"},
      {"INTERV", "LEFT_OPEN", "]", "3 16777215 11 ][ \xF7 110"},
      {"INTERV", "LEFT_OPEN", "[", "3 16777215 11 () \xF7 110"},
      {"Wizard", "Ordena", "N", "3 16777215 11 () \xF7 010"},
      {"INI_WIN", "SHOW", "0", "3 16777215 11 () \xF7 100"},
      {"Ver", "EdicBotones", "S", "3 16777215 11 () \xF7 111"},
      {"DIVISION", "PRIMARY", ":", "3 16777215 11 () : 110"},
  };
  Textos t;
  for (const auto& c : casos) {
    AlmacenMemoria al;
    al.Escribe(c[0], c[1], c[2]);
    EXPECT_EQ(vista(LeeAjustes(al, *t.textos)), c[3]) << c[0] << "/" << c[1] << "=" << c[2];
  }
}

TEST(Ajustes, TheUserStoreReadsKeysWithoutRegardToCaseAndCommasAsText) {
  QTemporaryDir dir;
  const QString ini = dir.path() + QStringLiteral("/settings.ini");
  {
    AlmacenUsuario al(ini);
    al.Escribe("Wizard", "Pagpos", "9");
    al.Escribe("wizard", "PAGPOS", "10");  // the same key: no second copy
    al.Escribe("CURRENCY", "SYMBOL", QString::fromUtf8("\xE2\x82\xAC"));
  }
  {
    QFile f(ini);  // a hand edit with unquoted commas
    ASSERT_TRUE(f.open(QIODevice::Append));
    f.write("\n[SEPA]\nDEC=,\nLIS=a,b\n");
  }
  AlmacenUsuario al(ini);
  EXPECT_EQ(al.Lee("WIZARD", "PagPos").value_or("") + al.Lee("sepa", "lis").value_or(""), "10a,b");
  EXPECT_FALSE(al.Lee("Wizard", "Missing"));
  Textos t;
  const Ajustes a = LeeAjustes(al, *t.textos);
  EXPECT_EQ(std::to_string(a.pagpos) + a.moneda + a.decimal, "10\x80,");
  QFile f(ini);
  EXPECT_TRUE(f.open(QIODevice::ReadOnly) && f.readAll().count("agpos") == 1);
}

TEST(Ajustes, TheWizardsChoicesRoundTrip) {
  AlmacenMemoria al;
  Textos t;
  auto campos = [](Ajustes& a) {
    return std::tie(a.ordena, a.solpos, a.pagpos, a.procol, a.propre, a.prosuf, a.asignatura, a.sysedu, a.showavan);
  };
  Ajustes a = LeeAjustes(al, *t.textos);
  campos(a) = std::make_tuple(false, 2, 9, 65280, "Problem ", ".", "Chemistry \xE9", "Secondary_Chemistry.sed", true);
  GuardarAjustesAsistente(a, al);
  Ajustes b = LeeAjustes(al, *t.textos);
  EXPECT_EQ(campos(b), campos(a));
}

TEST(Ajustes, ANewDecimalMarkShowsOnAnOldWorksheetAtItsNextDrawing) {
  // A problem's text keeps the neutral code; the settings decide at drawing.
  const std::string problema = "m = 2&.50& g, V = 1&.5&E-3& L";
  AlmacenMemoria al;
  Textos t;
  auto dibuja = [&] {
    test::CanvasRegistro c;
    Motor m;
    m.reemplazos = ReemplazosDe(LeeAjustes(al, *t.textos));
    m.ComponerTexto(problema, 12, c);
    return c.Texto();
  };
  EXPECT_EQ(dibuja(), "m = 2.50 g, V = 1.5\xD7" "10\x96" "3 L");
  al.Escribe("SEPA", "DEC", ",");
  al.Escribe("SCIENT", "NOTAT", "\xC2\xB7" "10");
  EXPECT_EQ(dibuja(), "m = 2,50 g, V = 1,5\xB7" "10\x96" "3 L");
}

TEST(SistemasEducativos, SortedByFileWithNoneLast) {
  Textos t("[NoneSYSEDU]=None\r\n");
  const QString d = t.dir.path();
  EXPECT_TRUE(SistemasEducativos(d, *t.textos).empty());  // no system: the menu is hidden
  t.Escribe("b.sed", "<NOMSYS>Upper secondary</NOMSYS>");
  t.Escribe("a.sed", "no name here");
  QStringList vista;
  for (const auto& s : SistemasEducativos(d, *t.textos)) vista << s.fichero + "=" + s.nombre;
  EXPECT_EQ(vista.join(' '), "a.sed=a.sed b.sed=Upper secondary =<None>");

  AlmacenMemoria al;
  Ajustes a = LeeAjustes(al, *t.textos);
  EligeSistema(a, al, "b.sed");
  EXPECT_EQ(LeeAjustes(al, *t.textos).sysedu, "b.sed");
}

}  // namespace
}  // namespace ss
