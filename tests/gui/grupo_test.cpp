// The student-group run from the main window: the questions, the window,
// the copies, and the open worksheet left exactly as it was.
#include <QListWidget>
#include <QPushButton>

#include "gui/formmulticolper.h"
#include "tests/gui/ventana.h"

namespace ss {
namespace {

class Grupo : public Ventana {
 protected:
  QTemporaryDir trabajo;
  QString hoja, lista;
  void SetUp() override {
    Ventana::SetUp();
    hoja = trabajo.filePath("sheet.col");
    QFile::copy(H().varias, hoja);
    lista = trabajo.filePath("class.txt");
    Escribe(lista, "Ann Lee\r\nJos\xC3\xA9 N\xC3\xBA\xC3\xB1" "ez\r\n\r\nAnn Lee\r\n");
    Abre({hoja});
  }
  static void Escribe(const QString& ruta, const QByteArray& datos) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(datos);
  }
  // Fills the group window as a teacher would: the list, the place, then OK.
  void Rellena(QDialog& d, const std::function<void(QListWidget&)>& elige = {}) {
    guion.abrir = lista;
    guion.carpeta = trabajo.path();
    d.findChild<QPushButton*>("Command1")->click();
    d.findChild<QPushButton*>("Command2")->click();
    if (elige) elige(*d.findChild<QListWidget*>("List1"));
    d.findChild<QPushButton*>("CmdOK")->click();
  }
};

TEST_F(Grupo, CopiesForAClassLeaveTheEditedWorksheetAlone) {
  ASSERT_FALSE(doc().col.problemas.empty());
  // An edit that is not saved, with its undo step.
  A("mnu_COLEC_SolJuntasFinal")->trigger();
  ASSERT_TRUE(doc().Modificada);
  const Coleccion antes = doc().col;
  const std::string deshacer = doc().accionDeshacer;
  QString destino;
  QString pista;
  // Solutions on pages of their own? No. Save first? No: go on as it stands.
  guion.respuestas = {Respuesta::No, Respuesta::No};
  guion.modal = [&](QDialog& d) {
    auto& f = dynamic_cast<FormMultiColPer&>(d);
    Rellena(d, [&](QListWidget& l) {
      d.findChild<QPushButton*>("Cmd_SEL1")->click();  // none
      pista = d.findChild<QLabel*>("LblHint")->text();
      l.item(1)->setSelected(true);
      destino = f.Destino();
    });
  };
  A("mnu_File_MuliColPer")->trigger();
  EXPECT_FALSE(pista.isEmpty());  // none chosen: the window says the copies differ only in the name
  const QStringList hechos = QDir(destino).entryList(QDir::Files, QDir::Name);
  ASSERT_EQ(hechos.size(), 3) << destino.toStdString() << " " << hechos.join(",").toStdString();
  EXPECT_EQ(hechos[0], "Ann Lee.col");
  EXPECT_EQ(hechos[2], QString::fromUtf8("José Núñez.col"));
  // The worksheet on screen: the same problems, still unsaved, same file, same undo.
  EXPECT_EQ(doc().col.problemas.size(), antes.problemas.size());
  for (std::size_t k = 0; k < antes.problemas.size(); ++k)
    EXPECT_EQ(doc().col.problemas[k].Enunciado, antes.problemas[k].Enunciado);
  EXPECT_EQ(doc().col.cab.POSTI1, antes.cab.POSTI1);
  EXPECT_EQ(doc().col.cab.POSSOL, 2);
  ASSERT_EQ(guion.preguntas.size(), 2);
  EXPECT_TRUE(guion.preguntas[0].startsWith(TextoDe("WarnSolucApart").left(20)));
  EXPECT_TRUE(doc().Modificada);
  EXPECT_EQ(doc().ruta, hoja);
  EXPECT_EQ(doc().accionDeshacer, deshacer);
  EXPECT_TRUE(w->isWindowModified());
}

TEST_F(Grupo, LongListsAskAndAnExistingFolderIsRefused) {
  QByteArray muchos;
  for (int i = 1; i <= 101; ++i) muchos += "Student " + QByteArray::number(i) + "\n";
  Escribe(lista, muchos);
  QString destino;
  guion.confirma = false;  // "more than 100": No
  guion.modal = [&](QDialog& d) {
    Rellena(d, [&](QListWidget&) { destino = dynamic_cast<FormMultiColPer&>(d).Destino(); });
  };
  A("mnu_File_MuliColPer")->trigger();
  ASSERT_EQ(guion.confirmaciones.size(), 1);
  EXPECT_FALSE(QFileInfo::exists(destino));

  // Yes this time, but the folder is already there: nothing is written into it.
  guion.confirma = true;
  guion.modal = [&](QDialog& d) {
    Rellena(d, [&](QListWidget&) {
      destino = dynamic_cast<FormMultiColPer&>(d).Destino();
      QDir().mkpath(destino);
    });
  };
  A("mnu_File_MuliColPer")->trigger();
  EXPECT_TRUE(guion.avisos.last().contains(TextoDe("TargetFolderAlreadyExits"))) << guion.avisos.join('|').toStdString();
  EXPECT_TRUE(QDir(destino).isEmpty());
}

}  // namespace
}  // namespace ss
