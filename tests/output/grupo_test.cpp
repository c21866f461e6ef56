// A worksheet for every student: the list file as teachers write it, the
// file names, the student line, and a whole run on real problems, read back
// from the files it wrote.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>

#include <set>

#include "output/grupo.h"
#include "problems/aleatorio.h"
#include "problems/texto.h"
#include "tests/worksheet/banco.h"

namespace ss {
namespace {

TEST(Grupo, StudentListEncodingsAndLineEnds) {
  const std::vector<QString> tres = {"Ann Lee", QString::fromUtf8("José Núñez"), QString::fromUtf8("Łukasz Wąs")};
  const std::pair<QByteArray, std::vector<QString>> casos[] = {
      {"Ann Lee\nJos\xC3\xA9 N\xC3\xBA\xC3\xB1" "ez\n\xC5\x81ukasz W\xC4\x85s\n", tres},
      {"Ann Lee\r\nJos\xC3\xA9 N\xC3\xBA\xC3\xB1" "ez\r\n\r\n\xC5\x81ukasz W\xC4\x85s", tres},
      {"\xEF\xBB\xBF  Ann Lee  \r\r\rJos\xC3\xA9 N\xC3\xBA\xC3\xB1" "ez\r\xC5\x81ukasz W\xC4\x85s\r", tres},
      {"Jos\xE9 N\xFA\xF1" "ez\r\n\t \r\nZo\xEB", {QString::fromUtf8("José Núñez"), QString::fromUtf8("Zoë")}},
      {"\n \n\t\n", {}},
      {"", {}},
  };
  for (const auto& [bytes, nombres] : casos) EXPECT_EQ(LeeListaAlumnos(bytes), nombres) << bytes.toStdString();
}

TEST(Grupo, FileNamesAreSafeAndFit) {
  Aleatorio rnd(5);
  const std::pair<QString, QString> casos[] = {
      {"Ann   Lee", "Ann Lee"},
      {QString::fromUtf8("José Núñez"), QString::fromUtf8("José Núñez")},
      {QString::fromUtf8("Łukasz"), "ukasz"},
      {"../../etc/passwd", "etcpasswd"},
      {"..hidden", "hidden"},
      {"O'Brien, M.", "OBrien, M."},
  };
  for (const auto& [nombre, fichero] : casos) EXPECT_EQ(NombreDeFichero(nombre, rnd), fichero);
  const QString largo = NombreDeFichero(QString(300, QChar(0xF1)), rnd);  // ñ: two bytes each
  EXPECT_EQ(largo.toUtf8().size(), 240);
  for (const QString& signos : {QStringLiteral("***"), QStringLiteral("..."), QString::fromUtf8("Ωμέγα")})
    EXPECT_TRUE(QRegularExpression("^[0-9]{7,8}$").match(NombreDeFichero(signos, rnd)).hasMatch()) << signos.toStdString();
  EXPECT_EQ(NombreCarpetaGrupo(QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7))), "26-03-04-05-06-07");
}

TEST(Grupo, OneStudentLinePerCopy) {
  struct Caso {
    const char *posti1, *posti2, *uno, *dos;
  };
  const Caso casos[] = {
      {"", "", "Student: B", ""},
      {"  ", "Date", "Student: B", "Date"},
      {"Class 3", "", "Class 3", "Student: B"},
      {"Class 3", "Date", "Class 3&LFStudent: B", "Date"},
  };
  for (const Caso& c : casos) {
    ColeccionCab original;
    original.POSTI1 = c.posti1, original.POSTI2 = c.posti2;
    ColeccionCab cab = original;
    const LugarAlumno lugar = LugarDeLinea(original);
    PonLineaAlumno(cab, original, lugar, LineaAlumno("Student", "A"));
    PonLineaAlumno(cab, original, lugar, LineaAlumno("Student", "B"));  // the next copy
    EXPECT_EQ(cab.POSTI1, c.uno);
    EXPECT_EQ(cab.POSTI2, c.dos);
  }
  EXPECT_EQ(LineaAlumno("Student", QString(200, 'x')).size(), 9u + 140u);
  EXPECT_EQ(LineaAlumno("Student", QString::fromUtf8("Łukasz")), "Student: ?ukasz");
}

// A worksheet of two real problems, saved, with unsaved edits after the save.
struct Hoja : test::Banco {
  Hoja() {
    for (int16_t rutina : {9, 1}) {
      Problema p{"ANEU_QUIM_DIS", rutina, 12, 1, 1, 0, 345};
      RecrearProblema(s, p, 0, false);
      doc.col.problemas.push_back(p);
    }
    doc.col.cab.NPROB = 2;
    doc.col.cab.POSTI1 = "Class 3";
    CrearColeccion(s, 1);
    EXPECT_TRUE(Guarda(Ruta("sheet.col")));
    doc.col.cab.TITULO = "Edited, not saved";
    doc.Modificada = true;
  }
};

Coleccion Lee(const QString& ruta) {
  test::Banco b;
  EXPECT_TRUE(b.Carga(ruta)) << ruta.toStdString();
  return b.doc.col;
}

TEST(Grupo, RunMakesOneFilePerStudentAndLeavesTheWorksheet) {
  Hoja h;
  const Coleccion antes = h.doc.col;
  const std::size_t titulos = h.pl.titulos.size(), estados = h.pl.estados.size();
  QTemporaryDir destino;
  const QString carpeta = destino.filePath("class");
  ASSERT_TRUE(QDir().mkpath(carpeta));
  PedidoGrupo pedido{{"Ann Lee", "Ann Lee", QString::fromUtf8("José"), "***", "Bo"}, {true, false}, carpeta};
  const GrupoHecho hecho = HazGrupo(h.s, pedido, {});

  ASSERT_EQ(hecho.ficheros.size(), 5);
  EXPECT_EQ(hecho.fallidos, 0);
  EXPECT_FALSE(hecho.cancelado);
  const QStringList escritos = QDir(carpeta).entryList(QDir::Files | QDir::Hidden);
  EXPECT_EQ(escritos.size(), 5) << escritos.join(' ').toStdString();  // nothing else left behind
  EXPECT_EQ(QFileInfo(hecho.ficheros[0]).fileName(), "Ann Lee.col");
  EXPECT_TRUE(QRegularExpression("^Ann Lee[0-9]{7,8}\\.col$").match(QFileInfo(hecho.ficheros[1]).fileName()).hasMatch());
  EXPECT_EQ(QFileInfo(hecho.ficheros[2]).fileName(), QString::fromUtf8("José.col"));

  std::set<std::string> primeros;
  for (int i = 0; i < hecho.ficheros.size(); ++i) {
    const Coleccion c = Lee(hecho.ficheros[i]);
    const std::string nombre = Utf8ToCp1252(pedido.alumnos[static_cast<std::size_t>(i)].toStdString());
    EXPECT_EQ(c.cab.POSTI1, "Class 3");
    EXPECT_EQ(c.cab.POSTI2, "Student: " + nombre);
    EXPECT_EQ(c.cab.TITULO, "Edited, not saved");  // the copies are made from the worksheet as it stands
    ASSERT_EQ(c.problemas.size(), 2u);
    EXPECT_EQ(c.problemas[1].Enunciado, antes.problemas[1].Enunciado);  // not chosen: the same for all
    primeros.insert(c.problemas[0].Enunciado);
  }
  EXPECT_GE(primeros.size(), 4u);  // chosen: new numbers for each student

  EXPECT_EQ(h.doc.col.cab.TITULO, antes.cab.TITULO);
  EXPECT_EQ(h.doc.col.problemas[0].Enunciado, antes.problemas[0].Enunciado);
  EXPECT_EQ(h.doc.col.cab.POSTI2, "");
  EXPECT_TRUE(h.doc.Modificada);
  EXPECT_EQ(h.doc.ruta, h.Ruta("sheet.col"));
  // The window is not told of the copies: its title, state and recent files stay.
  EXPECT_TRUE(h.pl.recientes.empty());
  EXPECT_EQ(h.pl.titulos.size(), titulos);
  EXPECT_EQ(h.pl.estados.size(), estados);
}

TEST(Grupo, CancelStopsBeforeTheNextStudent) {
  Hoja h;
  QTemporaryDir destino;
  int llamadas = 0;
  const GrupoHecho hecho = HazGrupo(h.s, {{"A", "B", "C", "D"}, {false, false}, destino.path()},
                                    [&](int i) { return ++llamadas, i < 2; });
  EXPECT_TRUE(hecho.cancelado);
  EXPECT_EQ(hecho.ficheros.size(), 2);
  EXPECT_EQ(llamadas, 3);
  // No problem chosen: the copies differ only in the name.
  const Coleccion a = Lee(hecho.ficheros[0]), b = Lee(hecho.ficheros[1]);
  EXPECT_EQ(a.problemas[0].Enunciado, b.problemas[0].Enunciado);
  EXPECT_NE(a.cab.POSTI2, b.cab.POSTI2);
}

}  // namespace
}  // namespace ss
