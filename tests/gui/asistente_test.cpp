// The new-worksheet wizard and the settings window, driven from the main window:
// File > New, Options > Program Settings, Worksheet > Properties.
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

// A dialog of the program (the wizard or the settings window), reached through its controls' names.
struct Dlg {
  QDialog& d;
  template <class T>
  T* H(const char* nombre) const {
    T* x = d.findChild<T*>(QLatin1String(nombre));
    if (!x) ADD_FAILURE() << "no control " << nombre;
    return x;
  }
  void Clic(const char* nombre) const { H<QAbstractButton>(nombre)->click(); }
  void Next() const { Clic("CmdNext"); }
  int Pagina() const { return static_cast<FrmWizard&>(d).Pagina(); }
  // Types into a box as the keyboard does, then leaves it.
  void Teclea(const char* nombre, const QString& texto) const {
    if (auto* s = d.findChild<QSpinBox*>(QLatin1String(nombre))) {
      s->selectAll();
      QTest::keyClick(s, Qt::Key_Backspace);
      QTest::keyClicks(s, texto);
      s->interpretText();
      return;
    }
    H<QLineEdit>(nombre)->selectAll();
    QTest::keyClicks(H<QLineEdit>(nombre), texto);
  }
  // What a control shows: its text, its index, or 1/0 for a box that is ticked or not.
  QString Valor(const char* nombre) const {
    QWidget* x = H<QWidget>(nombre);
    if (auto* e = qobject_cast<QLineEdit*>(x)) return e->text();
    if (auto* c = qobject_cast<QComboBox*>(x)) return QString::number(c->currentIndex());
    return qobject_cast<QAbstractButton*>(x)->isChecked() ? "1" : "0";
  }
  void Elige(const char* nombre, int i) const {
    H<QComboBox>(nombre)->setCurrentIndex(i);
    emit H<QComboBox>(nombre)->activated(i);
  }
  void Asignatura(const QString& nombre) const {
    const QList<QListWidgetItem*> items = H<QListWidget>("LstAsig")->findItems(nombre, Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1) << nombre.toStdString();
    H<QListWidget>("LstAsig")->setCurrentItem(items.front());
  }
  // The tree row of generator `rutina` of the module, as its tip names it.
  QTreeWidgetItem* Fila(int rutina, bool falta = true) const {
    for (QTreeWidgetItemIterator it(H<QTreeWidget>("Arbol")); *it; ++it)
      if ((*it)->toolTip(0) == "ANEU_QUIM_DIS-" + QString::number(rutina)) return *it;
    if (falta) ADD_FAILURE() << "no row " << rutina;
    return nullptr;
  }
  void Marca(int rutina, int cantidad, int items = 0) const {
    QTreeWidgetItem* f = Fila(rutina);
    if (!f) return;
    H<QTreeWidget>("Arbol")->setCurrentItem(f);
    f->setCheckState(0, Qt::Checked);
    Teclea("TxCan0", QString::number(cantidad));
    if (items) Teclea("TxCan1", QString::number(items));
  }
  int Total() const { return H<QLabel>("TxTOT")->text().section(u' ', -1).toInt(); }
};

class Asistente : public Ventana {
 protected:
  void SetUp() override {
    Ventana::SetUp();
    almacen->Escribe("INI_WIN", "SHOW", "0");
  }
  QString Ajuste(const char* clave) const { return QSettings(Ini(), QSettings::IniFormat).value(clave).toString(); }
  QByteArray Ajustes() const {
    QFile f(Ini());
    f.open(QIODevice::ReadOnly);
    return f.readAll();
  }
  // Triggers the menu entry with `hacer` driving the dialog it opens.
  void Ejecuta(const char* accion, const std::function<void(Dlg&)>& hacer) {
    guion.modal = [&](QDialog& d) {
      Dlg m{d};
      hacer(m);
    };
    A(accion)->trigger();
    guion.modal = nullptr;
  }
  void Nueva(const std::function<void(Dlg&)>& hacer) { Ejecuta("mnu_File_New", hacer); }
};

TEST_F(Asistente, TheWizardMakesTheWorksheetTheToolMakesFromTheSameChoices) {
  almacen->Escribe("INI_WIN", "SHOW", "1");
  almacen->Escribe("Wizard", "Solpos", "1");  // the tool's defaults
  almacen->Escribe("Wizard", "Pagpos", "9");
  almacen->Escribe("Wizard", "Showini", "N");
  guion.panel = {QStringLiteral("WIZARD:"), true};
  bool visto = false;
  guion.modal = [&](QDialog& d) {
    Dlg m{d};
    visto = true;
    EXPECT_EQ(m.Pagina(), 2);  // no welcome page: the subject comes first
    EXPECT_FALSE(m.H<QPushButton>("CmdBack")->isEnabled() || m.H<QPushButton>("CmdNext")->isEnabled());
    m.Asignatura("Chemistry");
    m.Next();
    ASSERT_EQ(m.Pagina(), 4);
    EXPECT_FALSE(m.H<QPushButton>("CmdNext")->isEnabled());
    m.Marca(9, 3);
    m.Marca(6, 2, 4);
    EXPECT_EQ(m.Total(), 5);
    m.Next();
    ASSERT_EQ(m.Pagina(), 7);
    EXPECT_EQ(m.Valor("TxTITULO"), "Problems of Chemistry");  // two topics: the subject's name
    m.Teclea("TxtPRETIT", QStringLiteral("Hill School"));
    w->sesion().gen.rnd = Aleatorio(7);
    m.Next();
  };
  Abre();
  ASSERT_TRUE(visto);
  ASSERT_EQ(doc().col.problemas.size(), 5u);
  EXPECT_TRUE(doc().Modificada);
  EXPECT_GT(doc().numPaginas, 0);
  EXPECT_EQ(Ajuste("Wizard/Asignatura"), "Chemistry");

  // Saved, it reads as the tool's worksheet made from the same choices: header, recipes and texts.
  const QString mia = home.filePath(QStringLiteral("wizard.col")), suya = home.filePath(QStringLiteral("tool.col"));
  doc().ruta = mia;
  ASSERT_TRUE(GuardarColeccion(w->sesion()));
  QProcess p;
  p.start(QStringLiteral(SS_CLI_PATH),
          {"new", "--subject", "Chemistry", "--item", "ANEU_QUIM_DIS:9=3", "--item", "ANEU_QUIM_DIS:6=2:4", "--seed",
           "7", "--title", "Problems of Chemistry", "--pretit", "Hill School", "-o", suya});
  p.waitForFinished(60000);
  ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  auto info = [&](const QString& ruta) {
    p.start(QStringLiteral(SS_CLI_PATH), {QStringLiteral("info"), ruta});
    p.waitForFinished(60000);
    return QJsonDocument::fromJson(p.readAllStandardOutput()).object();
  };
  const QJsonObject esperado = info(suya), hecho = info(mia);
  ASSERT_EQ(esperado["problems"].toArray().size(), 5);
  EXPECT_EQ(hecho["header"], esperado["header"]);
  EXPECT_EQ(hecho["problems"], esperado["problems"]);
}

TEST_F(Asistente, CancelOnAnyPageLeavesTheWorksheetAndTheSettingsAsTheyWere) {
  almacen->Escribe("Wizard", "Showavan", "S");
  almacen->Escribe("Wizard", "Asignatura", "Chemistry");
  Abre({H().una});
  ASSERT_FALSE(doc().col.problemas.empty());
  const Coleccion antes = doc().col;
  // A first cancel stores the defaults the wizard stands on; cancelling again, on any page, changes none.
  Nueva([](Dlg& m) { m.Clic("CmdCancel"); });
  const QByteArray ajustes = Ajustes();
  for (int pagina = 1; pagina <= kPaginasAsistente; ++pagina) {
    Nueva([&](Dlg& m) {
      if (m.Pagina() < pagina) m.Next();  // welcome
      if (m.Pagina() < pagina) m.Asignatura("Chemistry"), m.Next();
      if (m.Pagina() < pagina) m.Next();  // kinds
      if (m.Pagina() == 4) m.Marca(4, 98), m.Marca(9, 99);
      while (m.Pagina() < pagina) m.Next();
      EXPECT_EQ(m.Pagina(), pagina);
      m.Clic("CmdCancel");
    });
    const Coleccion& c = doc().col;
    EXPECT_TRUE(c.cab.NPROB == antes.cab.NPROB && c.cab.TITULO == antes.cab.TITULO && c.cab.POSSOL == antes.cab.POSSOL)
        << pagina;
    ASSERT_EQ(c.problemas.size(), antes.problemas.size()) << pagina;
    EXPECT_EQ(c.problemas.front().Enunciado, antes.problemas.front().Enunciado) << pagina;
    EXPECT_FALSE(doc().Modificada) << pagina;
    EXPECT_EQ(doc().ruta, H().una);
  }
  EXPECT_EQ(Ajustes(), ajustes);
}

TEST_F(Asistente, AmountsKeepToTheirRangesAndTheSheetToFiveHundredProblems) {
  almacen->Escribe("Wizard", "Showini", "N");
  Abre();
  Nueva([&](Dlg& m) {
    m.Asignatura("Chemistry");
    m.Next();
    m.Marca(11, 3);  // units of mass: exercises of 2 to 8 items, 6 at first
    QSpinBox* can = m.H<QSpinBox>("TxCan0");
    QSpinBox* items = m.H<QSpinBox>("TxCan1");
    EXPECT_EQ(std::tuple(items->value(), items->minimum(), items->maximum()), std::tuple(6, 2, 8));
    for (const QString& malo : {QStringLiteral("0"), QStringLiteral("abc"), QString()}) {
      m.Teclea("TxCan0", malo);  // no amount: the last good one stays
      EXPECT_EQ(can->value(), 3) << malo.toStdString();
      EXPECT_EQ(m.Total(), 3) << malo.toStdString();
    }
    m.Teclea("TxCan0", QStringLiteral("123456789012"));  // the box takes no more than fits its range
    EXPECT_TRUE(can->value() >= 1 && can->value() <= 99) << can->value();
    EXPECT_EQ(m.Total(), can->value());
    EXPECT_EQ(m.Fila(11)->text(1), QString::number(can->value()));
    m.Teclea("TxCan1", QStringLiteral("9"));
    EXPECT_LE(items->value(), 8);
    m.Teclea("TxCan1", QStringLiteral("8"));
    // 5 x 99 + 6 = 501: refused on this page; 500 goes on.
    for (int r : {11, 12, 13, 15, 16}) m.Marca(r, 99);
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
  almacen->Escribe("Wizard", "Showini", "N");
  almacen->Escribe("Wizard", "Showavan", "S");
  Abre();
  Nueva([&](Dlg& m) {
    QComboBox* sistemas = m.H<QComboBox>("CmbSYSEDU");
    ASSERT_TRUE(sistemas->isVisibleTo(&m.d));
    EXPECT_EQ(sistemas->currentText(), "<None>");  // opening changes nothing
    EXPECT_EQ(Ajuste("SYSEDU/cmbtext"), "");
    const int secundaria = sistemas->findText(QStringLiteral("Secondary school chemistry"));
    ASSERT_GE(secundaria, 0);
    m.Elige("CmbSYSEDU", secundaria);
    EXPECT_EQ(Ajuste("SYSEDU/cmbtext"), "Secondary_Chemistry.sed");  // stored at once
    EXPECT_TRUE(m.H<QListWidget>("LstAsig")->findItems("Chemistry", Qt::MatchExactly).isEmpty());
    m.Asignatura("Chemistry 1");
    m.Next();
    m.Next();
    ASSERT_EQ(m.Pagina(), 4);
    EXPECT_EQ(m.H<QTreeWidget>("Arbol")->topLevelItem(0)->text(0), "Chemistry 1");
    m.Marca(9, 2);
    // Back and on again, same subject and kinds: the amounts stay.
    for (const char* b : {"CmdBack", "CmdBack", "CmdNext", "CmdNext"}) m.Clic(b);
    EXPECT_EQ(m.Total(), 2);
    // Fewer kinds: the tree is built again without the exercises.
    for (const char* b : {"CmdBack", "ChkTIP2", "CmdNext"}) m.Clic(b);
    EXPECT_EQ(m.Total(), 0);
    EXPECT_EQ(m.Fila(6, false), nullptr);
    m.Marca(9, 2);
    for (int k = 0; k < 3; ++k) m.Next();
    ASSERT_EQ(m.Pagina(), 7);
    m.Next();
  });
  EXPECT_EQ(doc().col.problemas.size(), 2u);
  EXPECT_EQ(doc().col.cab.TITULO, "Problems of Gases");
  EXPECT_TRUE(w->findChild<QMenu*>("mnu_setup_SYSEDU")->actions().front()->isChecked());
}

TEST_F(Asistente, DefaultsChosenInOneRunAreOfferedInTheNext) {
  Abre();
  Nueva([&](Dlg& m) {
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
    QTest::mouseClick(m.H<QWidget>("Picture2"), Qt::LeftButton, {}, QPoint(3 + 5 * kPasoPaleta + kPasoPaleta / 2, 10));
    m.Elige("Combo1", 0);
    m.Elige("Combo2", 2);
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
  EXPECT_EQ(std::tuple(c.PROPRE, c.PROSUF, c.PROINI, c.PRETIT, c.POSTI1),
            std::tuple("No. ", ".", 7, "Hill School", "Name:"));
  EXPECT_EQ(c.COLRESPRO, 192 + 256 * 192 + 65536 * 255);
  EXPECT_EQ(std::tuple(c.POSNUMPAG, c.ORDENA, c.POSSOL), std::tuple(1, 0, 2));  // number top right
  EXPECT_EQ(Ajuste("Wizard/Procol"), "16761024");  // the colour, not shown again in a control
  // The next run of the program offers them; numbering starts at 1 each time, the title is new.
  w.reset();
  almacen = std::make_unique<AlmacenUsuario>(Ini());
  Abre();
  Nueva([&](Dlg& m) {
    for (const auto& [control, valor] :
         {std::pair{"Check2", "1"}, {"TxProPre", "No. "}, {"TxProSuf", "."}, {"TxNumProbINI", "1"}, {"Combo1", "0"}, {"Combo2", "2"},
          {"Option12", "1"}, {"Option19", "1"}, {"TxtPRETIT", "Hill School"}, {"ChkPRETIT", "1"}, {"TxtPOSTI1", ""},
          {"ChkPOSTI1", "0"}, {"TxTITULO", ""}})
      EXPECT_EQ(m.Valor(control), valor) << control;
  });
}

TEST_F(Asistente, ProgramSettingsChangeTheNotationOnThePageWithoutTouchingTheWorksheet) {
  almacen->Escribe("STAT", "Abfreq", "f");
  Abre({H().una});
  const ColeccionCab antes = doc().col.cab;
  const QImage pagina = w->vista().Imagen().copy();
  // A third currency without its singular name: refused, nothing stored.
  Ejecuta("mnu_setup_App", [&](Dlg& s) {
    EXPECT_EQ(s.Valor("OptSTAT_F"), "1");
    EXPECT_TRUE(s.H<QLineEdit>("TxTITULO")->isHidden());
    s.Clic("OptOTRAMON");
    s.Teclea("TxtMonSimb", QStringLiteral("CHF"));
    s.Teclea("TxtMonPlur", QStringLiteral("francs"));
    s.Next();
    EXPECT_TRUE(s.d.isVisible());
    s.Clic("CmdCancel");
  });
  ASSERT_EQ(guion.avisos.size(), 1);
  EXPECT_EQ(Ajuste("CURRENCY/SYMBOL"), "");
  Ejecuta("mnu_setup_App", [&](Dlg& s) {
    s.Clic("OptCOMPYC");
    s.Teclea("TxtPRETIT", QStringLiteral("Hill School"));
    s.Clic("Option1");  // no solutions, for new worksheets
    s.Next();
  });
  for (const auto& [clave, valor] : {std::pair{"SEPA/DEC", ","}, {"SEPA/LIS", ";"}, {"Wizard/Pretit", "Hill School"},
                                     {"Wizard/Solpos", "0"}})
    EXPECT_EQ(Ajuste(clave), valor) << clave;
  // The worksheet keeps its header and is not marked as changed, but its page is drawn again.
  EXPECT_EQ(std::tuple(doc().col.cab.PRETIT, doc().col.cab.POSSOL), std::tuple(antes.PRETIT, antes.POSSOL));
  EXPECT_FALSE(doc().Modificada || w->isWindowModified());
  EXPECT_NE(w->vista().Imagen(), pagina);
}

TEST_F(Asistente, WorksheetPropertiesChangeTheHeaderWithAnUndoStep) {
  Abre({H().una});
  const ColeccionCab antes = doc().col.cab;
  auto cambia = [&](const char* boton) {
    Ejecuta("mnu_COLEC_Prop", [&](Dlg& s) {
      EXPECT_EQ(s.Valor("TxTITULO"), "Test sheet");
      EXPECT_EQ(s.d.findChild<QComboBox*>("CmbSYSEDU"), nullptr);
      s.Teclea("TxTITULO", QStringLiteral("Quiz 3"));
      s.Clic("Option1");
      s.Clic(boton);
    });
  };
  cambia("CmdCancel");
  EXPECT_EQ(std::tuple(doc().col.cab.TITULO, doc().col.cab.POSSOL), std::tuple(antes.TITULO, antes.POSSOL));
  EXPECT_FALSE(A("mnu_Edicion_Undo")->isEnabled());
  cambia("CmdNext");
  EXPECT_EQ(std::tuple(doc().col.cab.TITULO, doc().col.cab.POSSOL, doc().col.cab.NPROB),
            std::tuple("Quiz 3", 0, antes.NPROB));
  EXPECT_TRUE(doc().Modificada);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo1") + " " + TextoDe("ChangeWorkSheetProp"));
  A("mnu_Edicion_Undo")->trigger();
  EXPECT_EQ(std::tuple(doc().col.cab.TITULO, doc().col.cab.POSSOL), std::tuple(antes.TITULO, antes.POSSOL));
  EXPECT_EQ(Ajuste("Wizard/Solpos"), "");  // the worksheet's own settings are not defaults for new ones
}

}  // namespace
}  // namespace ss
