// The new-worksheet wizard and the settings window, driven as a teacher
// drives them from the main window: File > New, Options > Program Settings,
// Worksheet > Properties.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTreeWidget>

#include "gui/frmsetup.h"
#include "gui/frmwizard.h"
#include "problems/aleatorio.h"
#include "ventana.h"
#include "worksheet/asistente.h"

namespace ss {
namespace {

std::string A1252(const QString& s) { return Utf8ToCp1252(s.toUtf8().toStdString()); }

// A dialog of the program, reached through its controls' names.
struct Dlg {
  QDialog& d;
  template <class T>
  T* H(const char* nombre) const {
    T* x = d.findChild<T*>(QLatin1String(nombre));
    if (!x) ADD_FAILURE() << "no control " << nombre;
    return x;
  }
  void Clic(const char* nombre) const { H<QAbstractButton>(nombre)->click(); }
  // Types into a box as the keyboard does, then leaves it.
  void Teclea(const char* nombre, const QString& texto) const {
    if (auto* s = d.findChild<QSpinBox*>(QLatin1String(nombre))) {
      s->selectAll();
      QTest::keyClick(s, Qt::Key_Backspace);
      QTest::keyClicks(s, texto);
      s->interpretText();
      return;
    }
    QLineEdit* e = H<QLineEdit>(nombre);
    e->selectAll();
    QTest::keyClicks(e, texto);
  }
};

struct Mago : Dlg {
  FrmWizard& w() const { return static_cast<FrmWizard&>(d); }
  int Pagina() const { return w().Pagina(); }
  void Next() const { Clic("CmdNext"); }
  void Asignatura(const QString& nombre) const {
    QListWidget* l = H<QListWidget>("LstAsig");
    const QList<QListWidgetItem*> items = l->findItems(nombre, Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1) << nombre.toStdString();
    l->setCurrentItem(items.front());
  }
  // The tree row of generator `rutina` of `modulo`, as its tip names it.
  QTreeWidgetItem* Fila(const QString& modulo, int rutina) const {
    for (QTreeWidgetItemIterator it(H<QTreeWidget>("Arbol")); *it; ++it)
      if ((*it)->toolTip(0) == modulo + u'-' + QString::number(rutina)) return *it;
    ADD_FAILURE() << "no row " << modulo.toStdString() << "-" << rutina;
    return nullptr;
  }
  void Marca(int rutina, int cantidad, int items = 0, const QString& modulo = QStringLiteral("ANEU_QUIM_DIS")) const {
    QTreeWidgetItem* f = Fila(modulo, rutina);
    if (!f) return;
    H<QTreeWidget>("Arbol")->setCurrentItem(f);
    f->setCheckState(0, Qt::Checked);
    Teclea("TxCan0", QString::number(cantidad));
    if (items) Teclea("TxCan1", QString::number(items));
  }
  int Total() const { return H<QLabel>("TxTOT")->text().section(u' ', -1).toInt(); }
};

// The problems of a worksheet file, as the tool reads them.
QJsonObject Info(const QString& ruta) {
  QProcess p;
  p.start(QStringLiteral(SS_CLI_PATH), {QStringLiteral("info"), ruta});
  p.waitForFinished(60000);
  return QJsonDocument::fromJson(p.readAllStandardOutput()).object();
}

class Asistente : public Ventana {
 protected:
  QString Ajuste(const char* clave) const { return QSettings(Ini(), QSettings::IniFormat).value(clave).toString(); }
  // Runs File > New with `guion` driving the wizard.
  void Nueva(const std::function<void(Mago&)>& hacer) {
    guion.modal = [&](QDialog& d) {
      Mago m{d};
      hacer(m);
    };
    A("mnu_File_New")->trigger();
    guion.modal = nullptr;
  }
  void Configura(const char* accion, const std::function<void(Dlg&)>& hacer) {
    guion.modal = [&](QDialog& d) {
      Dlg s{d};
      hacer(s);
    };
    A(accion)->trigger();
    guion.modal = nullptr;
  }
};

TEST_F(Asistente, TheWizardMakesTheWorksheetTheToolMakesFromTheSameChoices) {
  // Defaults as the tool's: solutions after each problem, numbers at the foot on the right.
  almacen->Escribe("Wizard", "Solpos", "1");
  almacen->Escribe("Wizard", "Pagpos", "9");
  almacen->Escribe("Wizard", "Showini", "N");
  guion.panel = {QStringLiteral("WIZARD:"), true};
  bool visto = false;
  guion.modal = [&](QDialog& d) {
    Mago m{d};
    visto = true;
    EXPECT_EQ(m.Pagina(), 2);  // no welcome page: the subject comes first
    EXPECT_FALSE(m.H<QPushButton>("CmdBack")->isEnabled());
    EXPECT_FALSE(m.H<QPushButton>("CmdNext")->isEnabled());
    m.Asignatura("Chemistry");
    m.Next();
    ASSERT_EQ(m.Pagina(), 4);
    EXPECT_FALSE(m.H<QPushButton>("CmdNext")->isEnabled());
    m.Marca(9, 3);
    m.Marca(6, 2, 4);
    EXPECT_EQ(m.Total(), 5);
    m.Next();
    ASSERT_EQ(m.Pagina(), 7);
    // Two topics: the proposed title names the subject.
    EXPECT_EQ(m.H<QLineEdit>("TxTITULO")->text(), "Problems of Chemistry");
    m.Teclea("TxtPRETIT", QStringLiteral("Hill School"));
    w->sesion().gen.rnd = Aleatorio(7);
    m.Next();
  };
  Abre();
  ASSERT_TRUE(visto);
  ASSERT_EQ(doc().col.problemas.size(), 5u);
  EXPECT_TRUE(doc().Modificada);
  EXPECT_GT(doc().numPaginas, 0);

  const QString ruta = home.filePath(QStringLiteral("tool.col"));
  QProcess p;
  p.start(QStringLiteral(SS_CLI_PATH),
          {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9=3", "--item", "ANEU_QUIM_DIS:6=2:4", "--seed",
           "7", "--title", "Problems of Chemistry", "--pretit", "Hill School", "-o", ruta});
  p.waitForFinished(60000);
  ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  const QJsonObject info = Info(ruta);
  const QJsonObject cab = info["header"].toObject();
  const ColeccionCab& c = doc().col.cab;
  const std::pair<const char*, int> numeros[] = {{"PAGINI", c.PAGINI}, {"POSNUMPAG", c.POSNUMPAG}, {"NPROB", c.NPROB},
                                                 {"COLRESPRO", c.COLRESPRO}, {"PROINI", c.PROINI},
                                                 {"POSSOL", c.POSSOL}};
  for (const auto& [campo, valor] : numeros) EXPECT_EQ(cab[campo].toInt(), valor) << campo;
  const std::pair<const char*, const std::string*> textos[] = {
      {"PROPRE", &c.PROPRE}, {"PROSUF", &c.PROSUF}, {"PRETIT", &c.PRETIT},
      {"TITULO", &c.TITULO}, {"POSTI1", &c.POSTI1}, {"POSTI2", &c.POSTI2}};
  for (const auto& [campo, valor] : textos) EXPECT_EQ(A1252(cab[campo].toString()), *valor) << campo;
  EXPECT_EQ(cab["ORDENA"].toBool(), c.ORDENA != 0);
  const QJsonArray problemas = info["problems"].toArray();
  ASSERT_EQ(problemas.size(), 5);
  for (qsizetype i = 0; i < problemas.size(); ++i) {
    const QJsonObject q = problemas[i].toObject();
    const Problema& mio = doc().col.problemas[static_cast<std::size_t>(i)];
    EXPECT_EQ(A1252(q["module"].toString()), mio.Modulo) << i;
    EXPECT_EQ(A1252(q["command"].toString()), ComandoProblema(mio)) << i;
    EXPECT_EQ(A1252(q["statement"].toString()), mio.Enunciado) << i;
  }
  // The wizard's run is stored: subject and system.
  EXPECT_EQ(Ajuste("Wizard/Asignatura"), "Chemistry");
}

TEST_F(Asistente, CancelOnAnyPageLeavesTheWorksheetAndTheSettingsAsTheyWere) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  almacen->Escribe("Wizard", "Showavan", "S");
  almacen->Escribe("Wizard", "Asignatura", "Chemistry");
  Abre({H().una});
  ASSERT_FALSE(doc().col.problemas.empty());
  const Coleccion antes = doc().col;
  // A first cancel stores the defaults the wizard stands on; cancelling
  // again, on any page, changes none of them.
  Nueva([](Mago& m) { m.Clic("CmdCancel"); });
  const QByteArray ajustes = [&] {
    QFile f(Ini());
    f.open(QIODevice::ReadOnly);
    return f.readAll();
  }();
  for (int pagina = 1; pagina <= kPaginasAsistente; ++pagina) {
    Nueva([&](Mago& m) {
      if (m.Pagina() < pagina) m.Next();  // welcome
      if (m.Pagina() < pagina) m.Asignatura("Chemistry"), m.Next();
      if (m.Pagina() < pagina) m.Next();  // kinds
      if (m.Pagina() == 4) m.Marca(4, 98), m.Marca(9, 99);
      while (m.Pagina() < pagina) m.Next();
      EXPECT_EQ(m.Pagina(), pagina);
      m.Clic("CmdCancel");
    });
    EXPECT_EQ(doc().col.cab.NPROB, antes.cab.NPROB) << pagina;
    EXPECT_EQ(doc().col.cab.TITULO, antes.cab.TITULO) << pagina;
    EXPECT_EQ(doc().col.cab.POSSOL, antes.cab.POSSOL) << pagina;
    ASSERT_EQ(doc().col.problemas.size(), antes.problemas.size()) << pagina;
    EXPECT_EQ(doc().col.problemas.front().Enunciado, antes.problemas.front().Enunciado) << pagina;
    EXPECT_FALSE(doc().Modificada) << pagina;
    EXPECT_EQ(doc().ruta, H().una);
  }
  QFile f(Ini());
  f.open(QIODevice::ReadOnly);
  EXPECT_EQ(f.readAll(), ajustes);
}

TEST_F(Asistente, AmountsKeepToTheirRangesAndTheSheetToFiveHundredProblems) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  almacen->Escribe("Wizard", "Showini", "N");
  Abre();
  Nueva([&](Mago& m) {
    m.Asignatura("Chemistry");
    m.Next();
    m.Marca(11, 3);  // units of mass: exercises of up to 8 items
    QSpinBox* can = m.H<QSpinBox>("TxCan0");
    QSpinBox* items = m.H<QSpinBox>("TxCan1");
    EXPECT_EQ(items->value(), 6);
    EXPECT_EQ(items->maximum(), 8);
    EXPECT_EQ(items->minimum(), 2);
    // Text that is no amount leaves the last good one.
    for (const QString& malo : {QStringLiteral("0"), QStringLiteral("abc"), QString()}) {
      m.Teclea("TxCan0", malo);
      EXPECT_EQ(can->value(), 3) << malo.toStdString();
      EXPECT_EQ(m.Total(), 3) << malo.toStdString();
    }
    // Twelve digits: the box takes no more than fits its range.
    m.Teclea("TxCan0", QStringLiteral("123456789012"));
    EXPECT_GE(can->value(), 1);
    EXPECT_LE(can->value(), 99);
    EXPECT_EQ(m.Total(), can->value());
    EXPECT_EQ(m.Fila(QStringLiteral("ANEU_QUIM_DIS"), 11)->text(1), QString::number(can->value()));
    m.Teclea("TxCan1", QStringLiteral("9"));
    EXPECT_LE(items->value(), 8);
    m.Teclea("TxCan1", QStringLiteral("8"));
    EXPECT_EQ(items->value(), 8);

    // 99 + 99 + 99 + 99 + 99 + 6 = 501: refused on this page.
    m.Marca(11, 99);
    for (int r : {12, 13, 15, 16}) m.Marca(r, 99);
    m.Marca(4, 6);
    EXPECT_EQ(m.Total(), 501);
    m.Next();
    EXPECT_EQ(m.Pagina(), 4);
    ASSERT_EQ(guion.avisos.size(), 1);
    EXPECT_TRUE(guion.avisos.front().startsWith("A worksheet can hold at most 500 problems"));
    m.Teclea("TxCan0", QStringLiteral("5"));
    EXPECT_EQ(m.Total(), 500);
    m.Next();
    EXPECT_EQ(m.Pagina(), 7);
    m.Next();
  });
  EXPECT_EQ(doc().col.problemas.size(), 500u);
  EXPECT_EQ(doc().col.cab.NPROB, 500);
  int items = 0;
  for (const Problema& p : doc().col.problemas)
    if (p.Rutina == 11) items = p.Cantidad;
  EXPECT_EQ(items, 8);
}

TEST_F(Asistente, ASubjectOfOurEducationSystemAndGoingBackRebuildsTheTree) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  almacen->Escribe("Wizard", "Showini", "N");
  almacen->Escribe("Wizard", "Showavan", "S");
  Abre();
  Nueva([&](Mago& m) {
    QComboBox* sistemas = m.H<QComboBox>("CmbSYSEDU");
    ASSERT_TRUE(sistemas->isVisibleTo(&m.d));
    EXPECT_EQ(sistemas->currentText(), "<None>");  // opening changes nothing
    EXPECT_EQ(Ajuste("SYSEDU/cmbtext"), "");
    const int secundaria = sistemas->findText(QStringLiteral("Secondary school chemistry"));
    ASSERT_GE(secundaria, 0);
    sistemas->setCurrentIndex(secundaria);
    emit sistemas->activated(secundaria);
    EXPECT_EQ(Ajuste("SYSEDU/cmbtext"), "Secondary_Chemistry.sed");  // stored at once
    QListWidget* lista = m.H<QListWidget>("LstAsig");
    EXPECT_TRUE(lista->findItems("Chemistry", Qt::MatchExactly).isEmpty());
    m.Asignatura("Chemistry 1");
    m.Next();
    ASSERT_EQ(m.Pagina(), 3);
    m.Next();
    ASSERT_EQ(m.Pagina(), 4);
    QTreeWidget* arbol = m.H<QTreeWidget>("Arbol");
    EXPECT_EQ(arbol->topLevelItem(0)->text(0), "Chemistry 1");
    m.Marca(9, 2);
    // Back and on again, same subject and kinds: the amounts stay.
    m.Clic("CmdBack");
    m.Clic("CmdBack");
    m.Next();
    m.Next();
    EXPECT_EQ(m.Total(), 2);
    // Fewer kinds: the tree is built again without the exercises.
    m.Clic("CmdBack");
    m.Clic("ChkTIP2");
    m.Next();
    EXPECT_EQ(m.Total(), 0);
    for (QTreeWidgetItemIterator it(arbol); *it; ++it) EXPECT_NE((*it)->toolTip(0), "ANEU_QUIM_DIS-6");
    m.Marca(9, 2);
    for (int k = 0; k < 3; ++k) m.Next();
    ASSERT_EQ(m.Pagina(), 7);
    m.Next();
  });
  EXPECT_EQ(doc().col.problemas.size(), 2u);
  EXPECT_EQ(doc().col.cab.TITULO, "Problems of Gases");
  const QList<QAction*> menu = w->findChild<QMenu*>("mnu_setup_SYSEDU")->actions();
  EXPECT_TRUE(menu.front()->isChecked());
}

TEST_F(Asistente, DefaultsChosenInOneRunAreOfferedInTheNext) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre();
  Nueva([&](Mago& m) {
    EXPECT_EQ(m.Pagina(), 1);
    m.Clic("Check2");  // the advanced pages join at once
    m.Next();
    m.Asignatura("Chemistry");
    m.Next();
    EXPECT_EQ(m.Pagina(), 3);
    m.Next();
    m.Marca(4, 2);
    m.Next();
    ASSERT_EQ(m.Pagina(), 5);
    m.Teclea("TxProPre", QStringLiteral("No. "));
    m.Teclea("TxProSuf", QStringLiteral("."));
    m.Teclea("TxNumProbINI", QStringLiteral("7"));
    QWidget* paleta = m.H<QWidget>("Picture2");
    QTest::mouseClick(paleta, Qt::LeftButton, {}, QPoint(3 + 5 * kPasoPaleta + kPasoPaleta / 2, 10));
    auto* posicion = m.H<QComboBox>("Combo1");
    auto* alineacion = m.H<QComboBox>("Combo2");
    posicion->setCurrentIndex(0);
    emit posicion->activated(0);
    alineacion->setCurrentIndex(2);
    emit alineacion->activated(2);
    m.Next();
    m.Clic("Option12");
    m.Clic("Option19");
    m.Next();
    m.Teclea("TxtPRETIT", QStringLiteral("Hill School"));
    m.Teclea("TxtPOSTI1", QStringLiteral("Name:"));
    m.Clic("ChkPOSTI1");
    m.Next();
  });
  const ColeccionCab& c = doc().col.cab;
  EXPECT_EQ(c.PROPRE, "No. ");
  EXPECT_EQ(c.PROSUF, ".");
  EXPECT_EQ(c.PROINI, 7);
  EXPECT_EQ(c.COLRESPRO, 192 + 256 * 192 + 65536 * 255);
  EXPECT_EQ(c.POSNUMPAG, 1);  // top, right
  EXPECT_EQ(c.ORDENA, 0);
  EXPECT_EQ(c.POSSOL, 2);
  EXPECT_EQ(c.PRETIT, "Hill School");
  EXPECT_EQ(c.POSTI1, "Name:");
  const std::pair<const char*, const char*> guardado[] = {
      {"Wizard/Propre", "No. "}, {"Wizard/Prosuf", "."},       {"Wizard/Procol", "16761024"},
      {"Wizard/Pagpos", "1"},    {"Wizard/Ordena", "N"},       {"Wizard/Solpos", "2"},
      {"Wizard/Showavan", "S"},  {"Wizard/Chkpretit", "S"},    {"Wizard/Pretit", "Hill School"},
      {"Wizard/Chkposti1", "N"}, {"Wizard/Asignatura", "Chemistry"}};
  for (const auto& [clave, valor] : guardado) EXPECT_EQ(Ajuste(clave), valor) << clave;

  // The next run of the program offers them.
  w.reset();
  almacen = std::make_unique<AlmacenUsuario>(Ini());
  Abre();
  Nueva([&](Mago& m) {
    EXPECT_TRUE(m.H<QCheckBox>("Check2")->isChecked());
    EXPECT_EQ(m.H<QLineEdit>("TxProPre")->text(), "No. ");
    EXPECT_EQ(m.H<QLineEdit>("TxNumProbINI")->text(), "1");  // numbering starts at 1 each time
    EXPECT_EQ(m.H<QComboBox>("Combo1")->currentIndex(), 0);
    EXPECT_EQ(m.H<QComboBox>("Combo2")->currentIndex(), 2);
    EXPECT_TRUE(m.H<QRadioButton>("Option12")->isChecked());
    EXPECT_TRUE(m.H<QRadioButton>("Option19")->isChecked());
    EXPECT_EQ(m.H<QLineEdit>("TxtPRETIT")->text(), "Hill School");
    EXPECT_TRUE(m.H<QCheckBox>("ChkPRETIT")->isChecked());
    EXPECT_EQ(m.H<QLineEdit>("TxtPOSTI1")->text(), "");
    EXPECT_FALSE(m.H<QCheckBox>("ChkPOSTI1")->isChecked());
    EXPECT_EQ(m.H<QLineEdit>("TxTITULO")->text(), "");
  });
}

TEST_F(Asistente, ProgramSettingsChangeTheNotationOnThePageWithoutTouchingTheWorksheet) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  almacen->Escribe("STAT", "Abfreq", "f");
  Abre({H().una});
  const ColeccionCab antes = doc().col.cab;
  const QImage pagina = w->vista().Imagen().copy();

  // A third currency without its singular name: refused, nothing stored.
  Configura("mnu_setup_App", [&](Dlg& s) {
    EXPECT_TRUE(s.H<QRadioButton>("OptSTAT_F")->isChecked());
    EXPECT_TRUE(s.H<QLineEdit>("TxTITULO")->isHidden());
    s.Clic("OptOTRAMON");
    s.Teclea("TxtMonSimb", QStringLiteral("CHF"));
    s.Teclea("TxtMonPlur", QStringLiteral("francs"));
    s.Clic("CmdNext");
    EXPECT_TRUE(s.d.isVisible());
    s.Clic("CmdCancel");
  });
  ASSERT_EQ(guion.avisos.size(), 1);
  EXPECT_EQ(Ajuste("CURRENCY/SYMBOL"), "");

  Configura("mnu_setup_App", [&](Dlg& s) {
    s.Clic("OptCOMPYC");
    s.Teclea("TxtPRETIT", QStringLiteral("Hill School"));
    s.Clic("Option1");  // no solutions, for new worksheets
    s.Clic("CmdNext");
  });
  EXPECT_EQ(Ajuste("SEPA/DEC"), ",");
  EXPECT_EQ(Ajuste("SEPA/LIS"), ";");
  EXPECT_EQ(Ajuste("Wizard/Pretit"), "Hill School");
  EXPECT_EQ(Ajuste("Wizard/Solpos"), "0");
  // The worksheet keeps its own header and is not marked as changed, but
  // its page is drawn again with the new mark.
  EXPECT_EQ(doc().col.cab.PRETIT, antes.PRETIT);
  EXPECT_EQ(doc().col.cab.POSSOL, antes.POSSOL);
  EXPECT_FALSE(doc().Modificada);
  EXPECT_FALSE(w->isWindowModified());
  EXPECT_NE(w->vista().Imagen(), pagina);
}

TEST_F(Asistente, WorksheetPropertiesChangeTheHeaderWithAnUndoStep) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre({H().una});
  const ColeccionCab antes = doc().col.cab;
  Configura("mnu_COLEC_Prop", [&](Dlg& s) {
    s.Teclea("TxTITULO", QStringLiteral("Quiz 3"));
    s.Clic("Option1");
    s.Clic("CmdCancel");
  });
  EXPECT_EQ(doc().col.cab.TITULO, antes.TITULO);
  EXPECT_EQ(doc().col.cab.POSSOL, antes.POSSOL);
  EXPECT_FALSE(A("mnu_Edicion_Undo")->isEnabled());

  Configura("mnu_COLEC_Prop", [&](Dlg& s) {
    EXPECT_EQ(s.H<QLineEdit>("TxTITULO")->text(), "Test sheet");
    EXPECT_EQ(s.d.findChild<QComboBox*>("CmbSYSEDU"), nullptr);
    s.Teclea("TxTITULO", QStringLiteral("Quiz 3"));
    s.Clic("Option1");
    s.Clic("CmdNext");
  });
  EXPECT_EQ(doc().col.cab.TITULO, "Quiz 3");
  EXPECT_EQ(doc().col.cab.POSSOL, 0);
  EXPECT_EQ(doc().col.cab.NPROB, antes.NPROB);
  EXPECT_TRUE(doc().Modificada);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo1") + " " + TextoDe("ChangeWorkSheetProp"));
  A("mnu_Edicion_Undo")->trigger();
  EXPECT_EQ(doc().col.cab.TITULO, antes.TITULO);
  EXPECT_EQ(doc().col.cab.POSSOL, antes.POSSOL);
  // The worksheet's own settings are not defaults for new ones.
  EXPECT_EQ(Ajuste("Wizard/Solpos"), "");
}

}  // namespace
}  // namespace ss
