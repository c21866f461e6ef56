// The main window as a teacher meets it: started with or without files,
// answered through scripted dialogs, driven by its menus, keys and drops.
#include "ventana.h"

namespace ss {
namespace {

// The point of the sheet over the middle of the strip of problem i on the page shown (null when not on it).
QPoint SobreProblema(FormMain& w, int i) {
  const Documento& d = w.documento();
  for (const MarcaPagina& m : d.marcas) {
    if (std::abs(d.bloques[static_cast<std::size_t>(m.MarcaNumero - 1)].Problema) != i) continue;
    const double z = w.vista().Zoom();
    return QPoint(8 + qRound(150 * z), 5 + qRound((m.MarcaArriba + m.MarcaAbajo) / 2 / 15 * z));
  }
  return {};
}

void Clic(FormMain& w, QPoint p, Qt::MouseButton b = Qt::LeftButton) {
  QTest::mouseClick(w.vista().Hoja(), b, Qt::NoModifier, p);
}

QJsonArray Problemas(const QString& ruta) {
  QProcess p;
  p.start(QStringLiteral(SS_CLI_PATH), {"info", ruta});
  p.waitForFinished(60000);
  return QJsonDocument::fromJson(p.readAllStandardOutput()).object()["problems"].toArray();
}

QByteArray Contenido(const QString& ruta) {
  QFile f(ruta);
  f.open(QIODevice::ReadOnly);
  return f.readAll();
}

// The window without the start panel, unless a test asks for it.
class Principal : public Ventana {
 protected:
  void SetUp() override {
    Ventana::SetUp();
    almacen->Escribe("INI_WIN", "SHOW", "0");
  }
  QString Ajuste(const char* clave) const { return QSettings(Ini(), QSettings::IniFormat).value(clave).toString(); }
  // Which of the actions are enabled, as a string of 1s and 0s.
  QString Estado(std::initializer_list<const char*> nombres) const {
    QString s;
    for (const char* n : nombres) s += A(n)->isEnabled() ? u'1' : u'0';
    return s;
  }
  bool Edicion(bool visibles) const {
    for (int i = 4; i <= 8; ++i)
      if (w->Boton(i)->isVisible() != visibles) return false;
    return true;
  }
  // Drags the files over the window and drops them if the window takes them.
  bool Suelta(const QStringList& rutas) {
    QMimeData datos;
    QList<QUrl> urls;
    for (const QString& r : rutas) urls << QUrl::fromLocalFile(r);
    datos.setUrls(urls);
    QDragEnterEvent entra(QPoint(200, 200), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(w.get(), &entra);
    if (!entra.isAccepted()) return false;
    QDropEvent suelta(QPointF(200, 200), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(w.get(), &suelta);
    return true;
  }
};

TEST_F(Principal, StartsEmptyShowsThePanelOnceAndCarriesOutItsChoice) {
  almacen->Escribe("INI_WIN", "SHOW", "1");
  guion.panel = {QStringLiteral("OPEN:") + H().una, false};
  Abre();
  ASSERT_EQ(guion.paneles, 1);
  EXPECT_EQ(doc().ruta, H().una);
  EXPECT_TRUE(w->windowTitle().startsWith(TituloApp() + "  -  one page.col"));
  EXPECT_EQ(Ajuste("INI_WIN/SHOW"), "0");
  EXPECT_FALSE(A("mnu_setup_WIN_INI")->isChecked());
  EXPECT_TRUE(Visible("mnu_Edicion") && Visible("mnu_COLEC") && A("mnu_File_Save")->isEnabled());
  EXPECT_EQ(Pagina(), TextoDe("Pag") + " 1/1");
  QTest::qWait(400);
  EXPECT_EQ(guion.paneles, 1);
}

TEST_F(Principal, WithoutADocumentItsControlsStayOffAndTheEditGroupFollowsTheDocument) {
  Abre();
  EXPECT_EQ(guion.paneles, 0);
  EXPECT_EQ(w->windowTitle(), TituloApp() + "[*]");
  EXPECT_FALSE(Visible("mnu_Edicion") || Visible("mnu_COLEC"));
  EXPECT_EQ(Estado({"mnu_File_Save", "mnu_File_SaveAs", "mnu_File_Open"}), "001");
  EXPECT_TRUE(Edicion(false));
  EXPECT_FALSE(w->Boton(2)->isEnabled() || w->Boton(3)->isEnabled());
  EXPECT_TRUE(Pagina().isEmpty());
  Pulsa(Qt::Key_PageDown);
  Pulsa(Qt::Key_End);
  EXPECT_EQ(doc().paginaActual, 1);

  w.reset();
  almacen->Escribe("Ver", "EdicBotones", "S");
  Abre({H().una});
  EXPECT_TRUE(Edicion(true));
  A("mnu_setup_BotEdic")->trigger();
  EXPECT_TRUE(Edicion(false));
  ASSERT_TRUE(Cierra());
  EXPECT_EQ(Ajuste("Ver/EdicBotones"), "N");
}

TEST_F(Principal, TheFirstFileOpensHereAndTheOthersStartProcessesOfTheirOwn) {
  almacen->Escribe("INI_WIN", "SHOW", "1");
  Abre({H().una, H().dos, "notes.txt", H().varias});
  EXPECT_EQ(guion.paneles, 0);  // a command line keeps the panel away
  EXPECT_EQ(doc().ruta, H().una);
  EXPECT_EQ(guion.lanzados, QStringList({H().dos, H().varias}));
  // Dropped files alike; a drag led by a file that is no worksheet is refused.
  guion.lanzados.clear();
  ASSERT_TRUE(Suelta({H().varias, "/tmp/x.png", H().una, H().dos}));
  EXPECT_EQ(doc().ruta, H().varias);
  EXPECT_EQ(guion.lanzados, QStringList({H().una, H().dos}));
  EXPECT_FALSE(Suelta({"/tmp/x.png", H().una}));
}

TEST_F(Principal, ABadFileGivesTheMessageAndLeavesAUsableEmptyWindow) {
  const QByteArray antes = Contenido(H().danada);
  const QStringList ficheros = QDir(H().dir.path()).entryList(QDir::Files);
  for (const QString& malo : {H().danada, H().dir.filePath("missing.col"), H().dir.path() + "/notes.txt"}) {
    SCOPED_TRACE(malo.toStdString());
    guion.avisos.clear();
    w.reset();
    Abre({malo});
    ASSERT_EQ(guion.avisos.size(), 1);
    EXPECT_TRUE(guion.avisos[0].startsWith(TextoDe("InvalidFile")));
    EXPECT_FALSE(Visible("mnu_COLEC"));
    EXPECT_TRUE(A("mnu_File_Open")->isEnabled() && w->menuBar()->isEnabled());
    AbreFichero(H().una);
    EXPECT_EQ(doc().col.problemas.size(), 2u);
  }
  EXPECT_EQ(Contenido(H().danada), antes);
  EXPECT_EQ(QDir(H().dir.path()).entryList(QDir::Files), ficheros);
}

TEST_F(Principal, TheRecentListPutsTheLatestFirstAndIsStoredAtTheEnd) {
  Abre();
  auto titulos = [&] {
    QStringList t;
    for (int i = 1; i <= 9; ++i)
      if (QAction* a = A(("mnu_File_Reciente" + std::to_string(i)).c_str()); a->isVisible()) t << a->text();
    return t;
  };
  EXPECT_FALSE(A("zep04")->isVisible());
  for (const QString& f : {H().una, H().dos, H().varias}) AbreFichero(f);
  EXPECT_EQ(titulos(), QStringList({"&1  many.col", "&2  second.col", "&3  one page.col"}));
  A("mnu_File_Reciente3")->trigger();  // the oldest comes to the top
  EXPECT_EQ(doc().ruta, H().una);
  EXPECT_EQ(titulos(), QStringList({"&1  one page.col", "&2  many.col", "&3  second.col"}));
  ASSERT_TRUE(Cierra());
  EXPECT_EQ(Ajuste("Reciente/Archivo1"), H().una);
  EXPECT_EQ(Ajuste("Reciente/Titulo2"), "many.col");
  EXPECT_EQ(Ajuste("LastPath/Path"), H().dir.path());
  // The next run reads them back; a slot whose file is gone says so and stays.
  almacen = std::make_unique<AlmacenUsuario>(Ini());
  almacen->Escribe("Reciente", "Archivo4", H().dir.filePath("gone.col"));
  almacen->Escribe("Reciente", "Titulo4", "gone.col");
  Abre();
  EXPECT_EQ(titulos().size(), 4);
  A("mnu_File_Reciente4")->trigger();
  EXPECT_EQ(guion.avisos, QStringList{H().dir.filePath("gone.col") + "\n" + TextoDe("FileNotFound")});
  EXPECT_EQ(titulos().size(), 4);
}

TEST_F(Principal, ClosingAsksToSaveChangesAndTheAnswerDecides) {
  Abre({H().una});
  EXPECT_TRUE(Cierra());
  EXPECT_TRUE(guion.preguntas.isEmpty());  // no changes: no question
  // A re-created worksheet has changes and no file any more.
  Abre({H().una});
  A("mnu_COLEC_RECREAR")->trigger();
  EXPECT_TRUE(doc().Modificada && doc().ruta.isEmpty() && w->isWindowModified());
  guion.respuestas = {Respuesta::Cancelar};
  EXPECT_FALSE(Cierra());
  ASSERT_EQ(guion.preguntas.size(), 1);
  EXPECT_TRUE(guion.preguntas[0].endsWith(TextoDe("msg_Ask2Save")));
  guion.respuestas = {Respuesta::Si};  // Save As cancelled: still open
  EXPECT_FALSE(Cierra());
  EXPECT_EQ(guion.dialogosGuardar, 1);
  guion.guardar = home.filePath("copy");  // saved under the name given, ".col" added
  guion.respuestas = {Respuesta::Si};
  EXPECT_TRUE(Cierra());
  EXPECT_TRUE(QFileInfo::exists(guion.guardar + ".col"));
  EXPECT_EQ(Ajuste("Reciente/Archivo1"), guion.guardar + ".col");
  Abre({H().una});
  A("mnu_COLEC_RECREAR")->trigger();
  guion.respuestas = {Respuesta::No};
  EXPECT_TRUE(Cierra());
}

TEST_F(Principal, WhileAJobRunsOtherCommandsAreRefusedAndClosingWarns) {
  Abre({H().varias});
  bool visto = false, menusApagados = false;
  QTimer::singleShot(0, w.get(), [&] {
    visto = doc().AppBusy > 0;
    menusApagados = !w->menuBar()->isEnabled() && !w->findChild<QWidget*>("tbToolbar1")->isEnabled();
    guion.abrir = H().una;
    A("mnu_File_Open")->trigger();
    Pulsa(Qt::Key_End);
    w->close();  // answered No
  });
  const int antes = doc().paginaActual;
  A("mnu_COLEC_RECREAR")->trigger();
  ASSERT_TRUE(visto);
  EXPECT_TRUE(menusApagados);
  EXPECT_EQ(guion.dialogosAbrir, 0);
  EXPECT_EQ(doc().paginaActual, antes);
  ASSERT_EQ(guion.confirmaciones.size(), 1);
  EXPECT_TRUE(w->isVisible() && !guion.terminado);
  EXPECT_TRUE(w->menuBar()->isEnabled() && w->findChild<QWidget*>("tbToolbar1")->isEnabled());
  // Yes ends the process on the spot, storing nothing of this run.
  QTimer::singleShot(0, w.get(), [&] {
    guion.confirma = true;
    w->close();
  });
  A("mnu_COLEC_RECREAR")->trigger();
  EXPECT_TRUE(guion.terminado);
  EXPECT_FALSE(QSettings(Ini(), QSettings::IniFormat).contains("Reciente/Archivo1"));
}

TEST_F(Principal, PagesTurnByArrowsAndKeysWithinTheWorksheet) {
  Abre({H().varias});
  const int n = doc().numPaginas;
  ASSERT_GE(n, 3);
  auto enPagina = [&](int p) {
    EXPECT_EQ(doc().paginaActual, p);
    EXPECT_EQ(Pagina(), TextoDe("Pag") + QString(" %1/%2").arg(p).arg(doc().numPaginas));
  };
  const std::pair<Qt::Key, int> teclas[] = {
      {Qt::Key_PageUp, 1}, {Qt::Key_PageDown, 2}, {Qt::Key_End, n}, {Qt::Key_PageDown, n}, {Qt::Key_Home, 1}};
  for (const auto& [tecla, pagina] : teclas) Pulsa(tecla), enPagina(pagina);
  QTest::mouseClick(w->findChild<QWidget*>("ImgRPage"), Qt::LeftButton);
  enPagina(2);
  QTest::mouseClick(w->findChild<QWidget*>("ImgLPage"), Qt::LeftButton);
  enPagina(1);
  EXPECT_FALSE(w->findChild<QWidget*>("ImgLPage")->isEnabled());
  // Arrows and the wheel scroll one small step, within the bar; a new page starts at the top.
  A("mnu_setup_zoom200")->trigger();
  QScrollBar* v = w->vista().verticalScrollBar();
  ASSERT_TRUE(v->isVisible());
  for (Qt::Key k : {Qt::Key_Down, Qt::Key_Down}) Pulsa(k);
  EXPECT_EQ(v->value(), 2 * v->singleStep());
  for (Qt::Key k : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}) Pulsa(k);
  EXPECT_EQ(v->value(), v->minimum());
  v->setValue(v->maximum());
  Pulsa(Qt::Key_PageDown);
  EXPECT_EQ(v->value(), v->minimum());
  QWheelEvent rueda(QPointF(50, 50), QPointF(50, 50), {}, QPoint(0, -60), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);  // half a notch
  QCoreApplication::sendEvent(w->vista().viewport(), &rueda);
  EXPECT_EQ(v->value(), v->minimum());
  QCoreApplication::sendEvent(w->vista().viewport(), &rueda);
  EXPECT_EQ(v->value(), v->minimum() + v->singleStep());
  AbreFichero(H().una);  // one page: Home and End stay on it
  for (Qt::Key k : {Qt::Key_Home, Qt::Key_End}) Pulsa(k), enPagina(1);
}

TEST_F(Principal, ZoomScalesTheSheetAndFitToWidthStaysWithinItsBounds) {
  Abre({H().varias});
  auto cortes = [&] {
    std::vector<int> v{doc().numPaginas};
    for (auto& b : doc().bloques) v.push_back(b.Pagina);
    return v;
  };
  const std::vector<int> antes = cortes();
  for (const auto& [entrada, zoom] : {std::pair{"mnu_setup_zoom50", 0.5}, {"mnu_setup_zoom75", 0.75},
                                      {"mnu_setup_zoom150", 1.5}, {"mnu_setup_zoom200", 2.0}, {"mnu_setup_zoom100", 1.0}}) {
    A(entrada)->trigger();
    EXPECT_DOUBLE_EQ(w->vista().Zoom(), zoom);
    EXPECT_EQ(w->vista().Imagen().deviceIndependentSize().toSize(), QSize(qRound(796 * zoom), qRound(1125 * zoom)));
  }
  A("mnu_setup_zoomANCHO")->trigger();
  for (const int ancho : {900, 1400, 4000}) {
    w->resize(ancho, 700);
    QTest::qWait(20);
    EXPECT_DOUBLE_EQ(w->vista().Zoom(), std::clamp((w->vista().AnchoUtil() - 28) / 796, 0.5, 3.0)) << ancho;
  }
  EXPECT_DOUBLE_EQ(w->vista().Zoom(), 3.0);
  EXPECT_EQ(cortes(), antes);  // zoom never moves a page break
}

// The ink in a band of rows: its bounding box and darkest value.
std::pair<QRect, int> Tinta(const QImage& img, int y0, int y1) {
  QRect caja;
  int oscuro = 255;
  for (int y = y0; y < y1; ++y)
    for (int x = 0; x < img.width(); ++x) {
      const QColor c = img.pixelColor(x, y);
      if (c.red() > 245 && c.green() > 245 && c.blue() > 245) continue;
      caja |= QRect(x, y, 1, 1);
      oscuro = std::min({oscuro, c.red(), c.green(), c.blue()});
    }
  return {caja, oscuro};
}

TEST_F(Principal, ThePageNumberStandsWhereTheHeaderSays) {
  Abre({H().varias});
  A("mnu_setup_zoom100")->trigger();
  Documento& d = doc();
  d.col.cab.PAGINI = 5;
  struct { int posnumpag, pagina; bool derecha, abajo; } casos[] = {
      {4, 3, true, false},   // 7, odd: right
      {4, 2, false, false},  // 6, even: left
      {5, 3, false, false}, {12, 3, true, true}, {2, 3, false, false}, {1, 2, true, false},
  };
  // With margins of 16 mm only the number's line has ink in these bands.
  const int margen = qRound(16 / 25.4 * 96);
  for (const auto& c : casos) {
    d.col.cab.POSNUMPAG = c.posnumpag;
    d.paginaActual = c.pagina - 1;
    Pulsa(Qt::Key_PageDown);
    const QImage& img = w->vista().Imagen();
    const auto [caja, oscuro] = c.abajo ? Tinta(img, 1123 - margen - 18, 1123 - margen + 2) : Tinta(img, margen - 2, margen + 16);
    ASSERT_FALSE(caja.isNull()) << c.posnumpag;
    EXPECT_EQ(caja.center().x() > 796 / 2.0, c.derecha) << c.posnumpag << " page " << c.pagina;
    EXPECT_GT(oscuro, 100) << "grey, not black";
  }
  d.col.cab.POSNUMPAG = 0;
  Pulsa(Qt::Key_PageUp);
  // No number: no line kept free, the title stands on the top margin.
  EXPECT_LT(Tinta(w->vista().Imagen(), margen - 2, margen + 16).second, 60);
}

TEST_F(Principal, TheEducationSystemMenuStoresTheChoiceAndTheManualGoesToTheDesktop) {
  Abre();
  QMenu* menu = w->findChild<QMenu*>("mnu_setup_SYSEDU");
  ASSERT_TRUE(menu->menuAction()->isVisible());
  const QList<QAction*> entradas = menu->actions();
  ASSERT_GE(entradas.size(), 2);
  EXPECT_TRUE(entradas.back()->isChecked());  // "<None>"
  entradas.front()->trigger();
  EXPECT_TRUE(entradas.front()->isChecked() && !entradas.back()->isChecked());
  EXPECT_EQ(Ajuste("SYSEDU/cmbtext"), "Secondary_Chemistry.sed");
  A("mnu_Help_Manual")->trigger();
  EXPECT_EQ(guion.abiertos, QStringList{QCoreApplication::applicationDirPath() + "/Manual_ENG.pdf"});
  EXPECT_TRUE(guion.avisos.isEmpty());
}

TEST_F(Ventana, TheStartPanelOpensEachExample) {
  for (int i = 0; i < 3; ++i) {
    TextosVentana panel(QCoreApplication::applicationDirPath().toStdString(), "INO");
    panel.LoadIdioma();
    FormIniOpt formulario(panel, QCoreApplication::applicationDirPath(), false);
    formulario.findChild<QAbstractButton*>(QString("ImageOP%1").arg(i))->click();
    guion.panel = {formulario.ComandoInicio(), true};
    w.reset();
    Abre();
    EXPECT_EQ(doc().col.cab.POSSOL, i + 1) << formulario.ComandoInicio().toStdString();
    EXPECT_GE(doc().numPaginas, 2);
    EXPECT_TRUE(guion.avisos.isEmpty());
  }
}

TEST_F(Principal, AClickSelectsTheStripUnderItAtAnyZoomAndTheMenusFollow) {
  Abre({H().varias});
  QApplication::clipboard()->clear();  // Paste stays off
  for (const char* zoom : {"mnu_setup_zoom100", "mnu_setup_zoom200"}) {
    SCOPED_TRACE(zoom);
    A(zoom)->trigger();
    const QPoint p2 = SobreProblema(*w, 2);
    ASSERT_FALSE(p2.isNull());
    const QImage antes = w->vista().Hoja()->grab().toImage();
    Clic(*w, p2);
    EXPECT_EQ(ProblemaSeleccionado(doc()), 2);
    const QPoint fondo(p2.x() + qRound(300 * w->vista().Zoom()), p2.y());  // white turned dark
    EXPECT_EQ(antes.pixelColor(fondo), QColor(Qt::white));
    EXPECT_LT(w->vista().Hoja()->grab().toImage().pixelColor(fondo).lightness(), 30);
    EXPECT_EQ(Estado({"mnu_Edicion_Cut", "mnu_Edicion_Copy", "mnu_Edicion_Mover0", "mnu_Edicion_Paste"}), "1110");
    Clic(*w, SobreProblema(*w, 1));
    EXPECT_EQ(ProblemaSeleccionado(doc()), 1);
    EXPECT_EQ(Estado({"mnu_Edicion_Mover0", "mnu_Edicion_Mover2"}), "00");  // the first goes no higher
    Clic(*w, SobreProblema(*w, 1));  // the selected strip again: cleared
    EXPECT_EQ(Seleccionadas(doc()), 0);
    EXPECT_EQ(Estado({"mnu_Edicion_Cut", "mnu_Edicion_Copy"}), "00");
    Clic(*w, p2);
    Clic(*w, QPoint(8 + qRound(770 * w->vista().Zoom()), p2.y()));  // the right margin clears all
    EXPECT_EQ(Seleccionadas(doc()), 0);
    EXPECT_EQ(w->vista().Hoja()->grab().toImage(), antes);
  }
  // The right button opens the context menu and keeps the selection.
  Clic(*w, SobreProblema(*w, 2));
  QMenu* contexto = w->findChild<QMenu*>("cmnu_edicion");
  QTimer::singleShot(50, contexto, &QMenu::close);
  Clic(*w, SobreProblema(*w, 2), Qt::RightButton);
  EXPECT_TRUE(contexto->actions().contains(A("mnu_Edicion_Cut")));
  EXPECT_EQ(ProblemaSeleccionado(doc()), 2);
}

TEST_F(Principal, EditingThroughTheMenusWithUndoAndRedoCaptionsAndTheClipboard) {
  almacen->Escribe("Ver", "EdicBotones", "S");
  Abre({H().varias});
  const std::size_t n = doc().col.problemas.size();
  const std::string tercero = doc().col.problemas[2].Enunciado;
  auto titulo = [](const char* hecho, const char* orden, const char* sep = " ") {
    return TextoDe(hecho) + sep + TextoDe(orden).remove('&');
  };
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo0"));
  EXPECT_FALSE(A("mnu_Edicion_Undo")->isEnabled() || w->Boton(4)->isEnabled());
  // Copy the third problem, cut it, paste it back at the front (nothing selected).
  Clic(*w, SobreProblema(*w, 3));
  A("mnu_Edicion_Copy")->trigger();
  EXPECT_TRUE(A("mnu_Edicion_Paste")->isEnabled() && w->Boton(8)->isEnabled());
  EXPECT_TRUE(w->Boton(6)->isEnabled()) << "copying keeps the selection";
  w->Boton(6)->trigger();
  EXPECT_EQ(doc().col.problemas.size(), n - 1);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), titulo("Edit_Undo1", "Edit_Del"));
  EXPECT_EQ(Seleccionadas(doc()), 0);
  A("mnu_Edicion_Paste")->trigger();
  EXPECT_EQ(doc().col.problemas.front().Enunciado, tercero);
  A("mnu_Edicion_Undo")->trigger();
  EXPECT_EQ(doc().col.problemas.size(), n - 1);
  EXPECT_EQ(A("mnu_Edicion_Redo")->text(), titulo("Edit_Redo1", "Edit_Paste", "  "));
  EXPECT_FALSE(A("mnu_Edicion_Undo")->isEnabled());
  A("mnu_Edicion_Redo")->trigger();
  EXPECT_EQ(doc().col.problemas.front().Enunciado, tercero);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), titulo("Edit_Undo1", "Edit_Paste", "  "));
  // Text that is no problem, however it begins, turns Paste off.
  QApplication::clipboard()->setText("GENPROB:NPROB=001:" + QString(100, 'x'));
  EXPECT_FALSE(A("mnu_Edicion_Paste")->isEnabled() || w->Boton(8)->isEnabled());
  // The toolbar's Re-create takes the selected problem alone, and the page stays where it was.
  A("mnu_setup_zoom200")->trigger();
  QScrollBar* v = w->vista().verticalScrollBar();
  v->setValue(v->maximum() / 3);
  const QPoint p = SobreProblema(*w, 2);
  const int posicion = v->value();
  Clic(*w, p);
  const auto primero = doc().col.problemas[0].Enunciado;
  w->Boton(3)->trigger();
  EXPECT_EQ(doc().col.problemas[0].Enunciado, primero);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), titulo("Edit_Undo1", "Edit_ReCreatePro"));
  EXPECT_EQ(v->value(), posicion);
  EXPECT_TRUE(w->isWindowModified() && doc().ruta.isEmpty());
}

// Two windows of two processes on one X display: a problem copied in the first pastes in the second.
TEST(OtroProceso, AProblemCopiedInOneWindowPastesInAnother) {
  const QString xvfb = QStandardPaths::findExecutable("Xvfb");
  ASSERT_FALSE(xvfb.isEmpty()) << "the test runs two windows on Xvfb (Debian package xvfb)";
  QProcess pantalla;
  pantalla.start(xvfb, {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
  ASSERT_TRUE(pantalla.waitForReadyRead(20000));
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("DISPLAY", ":" + QString::fromLatin1(pantalla.readAllStandardOutput()).trimmed());
  env.insert("QT_QPA_PLATFORM", "xcb");
  QTemporaryDir dir;
  const QString salida = dir.filePath("pasted.col");
  QProcess copia, pega;
  for (QProcess* p : {&copia, &pega}) {
    p->setProcessEnvironment(env);
    p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  }
  copia.start(QCoreApplication::applicationFilePath(), {"--rol", "copia", H().varias, "3"});
  ASSERT_TRUE(copia.waitForStarted(20000));
  bool copiado = false;
  for (int i = 0; i < 100 && !copiado && copia.state() == QProcess::Running; ++i)
    copiado = copia.waitForReadyRead(300) && copia.readAllStandardOutput().contains("copied");
  ASSERT_TRUE(copiado);
  pega.start(QCoreApplication::applicationFilePath(), {"--rol", "pega", H().una, salida});
  ASSERT_TRUE(pega.waitForFinished(60000));
  EXPECT_EQ(pega.exitCode(), 0) << pega.readAllStandardOutput().toStdString();
  copia.terminate();
  copia.waitForFinished(10000);
  pantalla.terminate();
  pantalla.waitForFinished(10000);
  // The pasted worksheet leads with the problem that was copied, recipe and texts.
  const QJsonArray pegados = Problemas(salida);
  ASSERT_EQ(pegados.size(), 3);
  EXPECT_EQ(pegados[0], Problemas(H().varias)[2]);
}
}  // namespace
}  // namespace ss

// One window of the clipboard test:
//   --rol copia FILE N   opens FILE, copies problem N, says "copied" and stays
//   --rol pega FILE OUT  opens FILE, pastes what the clipboard holds, saves OUT
int Rol(int argc, char** argv) {
  using namespace ss;
  QApplication app(argc, argv);
  const QStringList a = QApplication::arguments();
  if (a.size() < 5) return 2;
  AlmacenMemoria almacen;
  almacen.Escribe("INI_WIN", "SHOW", "0");
  Guion guion;
  FormMain w(almacen, guion, {a[3]});
  w.show();
  if (!QTest::qWaitFor([&] { return w.documento().numPaginas > 0; }, 20000)) return 3;
  QAction* pegar = w.findChild<QAction*>("mnu_Edicion_Paste");
  if (a[2] == "copia") {
    Clic(w, SobreProblema(w, a[4].toInt()));
    w.findChild<QAction*>("mnu_Edicion_Copy")->trigger();
    if (!pegar->isEnabled()) return 4;
    std::printf("copied\n");
    std::fflush(stdout);
    return QApplication::exec();
  }
  if (!QTest::qWaitFor([&] { return pegar->isEnabled(); }, 20000)) return 5;
  pegar->trigger();
  w.documento().ruta = a[4];
  return GuardarColeccion(w.sesion()) ? 0 : 6;
}

int main(int argc, char** argv) {
  if (argc > 1 && std::string(argv[1]) == "--rol") return Rol(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");  // no printer here: the printing tests have their own
  ::testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
