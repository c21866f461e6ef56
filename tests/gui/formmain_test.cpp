// The main window as a teacher meets it: started with or without files,
// answered through scripted dialogs, driven by its menus, keys and drops.
#include "ventana.h"

namespace ss {
namespace {

// The point of the sheet widget over the middle of the strip of problem i
// on the page shown (a null point when it is not on this page).
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


TEST_F(Ventana, StartsEmptyShowsThePanelOnceAndCarriesOutItsChoice) {
  guion.panel = {QStringLiteral("OPEN:") + H().una, false};
  Abre();
  ASSERT_EQ(guion.paneles, 1);
  EXPECT_TRUE(w->IniPanelCerrado());
  // The panel's choice was carried out and its box stored.
  EXPECT_EQ(doc().ruta, H().una);
  EXPECT_TRUE(w->windowTitle().startsWith(TituloApp() + "  -  one page.col"));
  EXPECT_EQ(QSettings(Ini(), QSettings::IniFormat).value("INI_WIN/SHOW").toString(), "0");
  EXPECT_FALSE(A("mnu_setup_WIN_INI")->isChecked());
  EXPECT_TRUE(Visible("mnu_Edicion") && Visible("mnu_COLEC") && A("mnu_File_Save")->isEnabled());
  EXPECT_EQ(Pagina(), TextoDe("Pag") + " 1/1");
  QTest::qWait(400);
  EXPECT_EQ(guion.paneles, 1);
}

TEST_F(Ventana, WithThePanelOffTheWindowOpensEmptyAndDocumentlessControlsStayOff) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre();
  EXPECT_EQ(guion.paneles, 0);
  EXPECT_EQ(w->windowTitle(), TituloApp() + "[*]");
  EXPECT_FALSE(Visible("mnu_Edicion") || Visible("mnu_COLEC"));
  EXPECT_FALSE(A("mnu_File_Save")->isEnabled() || A("mnu_File_SaveAs")->isEnabled());
  EXPECT_TRUE(A("mnu_File_Open")->isEnabled());
  for (int i = 4; i <= 8; ++i) EXPECT_FALSE(w->Boton(i)->isVisible()) << i;
  EXPECT_FALSE(w->Boton(2)->isEnabled() || w->Boton(3)->isEnabled());
  EXPECT_TRUE(Pagina().isEmpty());
  // The page keys have nothing to act on.
  Pulsa(Qt::Key_PageDown);
  Pulsa(Qt::Key_End);
  EXPECT_EQ(doc().paginaActual, 1);
}

TEST_F(Ventana, TheEditGroupOfTheToolbarShowsWithADocumentWhenAskedFor) {
  almacen->Escribe("Ver", "EdicBotones", "S");
  Abre({H().una});
  for (int i = 4; i <= 8; ++i) EXPECT_TRUE(w->Boton(i)->isVisible()) << i;
  A("mnu_setup_BotEdic")->trigger();
  for (int i = 4; i <= 8; ++i) EXPECT_FALSE(w->Boton(i)->isVisible()) << i;
  ASSERT_TRUE(Cierra());
  EXPECT_EQ(QSettings(Ini(), QSettings::IniFormat).value("Ver/EdicBotones").toString(), "N");
}

TEST_F(Ventana, TheFirstFileOpensHereAndTheOthersStartProcessesOfTheirOwn) {
  const QString otros[2] = {H().dos, H().varias};
  Abre({H().una, otros[0], "notes.txt", otros[1]});
  EXPECT_EQ(guion.paneles, 0);  // a command line keeps the panel away
  EXPECT_EQ(doc().ruta, H().una);
  EXPECT_EQ(guion.lanzados, QStringList(std::begin(otros), std::end(otros)));

  // Three worksheets and a picture dropped on the page: the same.
  guion.lanzados.clear();
  QMimeData datos;
  datos.setUrls({QUrl::fromLocalFile(H().varias), QUrl::fromLocalFile("/tmp/x.png"), QUrl::fromLocalFile(H().una),
                 QUrl::fromLocalFile(H().dos)});
  QDragEnterEvent entra(QPoint(200, 200), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(w.get(), &entra);
  EXPECT_TRUE(entra.isAccepted());
  QDropEvent suelta(QPointF(200, 200), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(w.get(), &suelta);
  EXPECT_EQ(doc().ruta, H().varias);
  EXPECT_EQ(guion.lanzados, QStringList({H().una, H().dos}));

  // A drag whose first file is not a worksheet is refused.
  QMimeData imagen;
  imagen.setUrls({QUrl::fromLocalFile("/tmp/x.png"), QUrl::fromLocalFile(H().una)});
  QDragEnterEvent otra(QPoint(200, 200), Qt::CopyAction, &imagen, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(w.get(), &otra);
  EXPECT_FALSE(otra.isAccepted());
}

TEST_F(Ventana, ABadFileGivesTheMessageAndLeavesAUsableEmptyWindow) {
  const QByteArray antes = [&] { QFile f(H().danada); f.open(QIODevice::ReadOnly); return f.readAll(); }();
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
    // Still usable: a good file opens after it.
    AbreFichero(H().una);
    EXPECT_EQ(doc().col.problemas.size(), 2u);
  }
  QFile f(H().danada);
  f.open(QIODevice::ReadOnly);
  EXPECT_EQ(f.readAll(), antes);
  EXPECT_EQ(QDir(H().dir.path()).entryList(QDir::Files), ficheros);
}

TEST_F(Ventana, TheRecentListPutsTheLatestFirstAndIsStoredAtTheEnd) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre();
  auto titulos = [&] {
    QStringList t;
    for (int i = 1; i <= 9; ++i) {
      QAction* a = A(("mnu_File_Reciente" + std::to_string(i)).c_str());
      if (a->isVisible()) t << a->text();
    }
    return t;
  };
  EXPECT_FALSE(A("zep04")->isVisible());
  for (const QString& f : {H().una, H().dos, H().varias}) AbreFichero(f);
  EXPECT_EQ(titulos(), QStringList({"&1  many.col", "&2  second.col", "&3  one page.col"}));
  A("mnu_File_Reciente3")->trigger();  // the oldest comes to the top
  EXPECT_EQ(doc().ruta, H().una);
  EXPECT_EQ(titulos(), QStringList({"&1  one page.col", "&2  many.col", "&3  second.col"}));
  ASSERT_TRUE(Cierra());
  {
    QSettings s(Ini(), QSettings::IniFormat);
    EXPECT_EQ(s.value("Reciente/Archivo1").toString(), H().una);
    EXPECT_EQ(s.value("Reciente/Titulo2").toString(), "many.col");
    EXPECT_EQ(s.value("LastPath/Path").toString(), H().dir.path());
  }
  // The next run reads them back; a slot whose file is gone says so and stays.
  almacen = std::make_unique<AlmacenUsuario>(Ini());
  almacen->Escribe("Reciente", "Archivo4", H().dir.filePath("gone.col"));
  almacen->Escribe("Reciente", "Titulo4", "gone.col");
  Abre();
  EXPECT_EQ(titulos().size(), 4);
  A("mnu_File_Reciente4")->trigger();
  ASSERT_EQ(guion.avisos.size(), 1);
  EXPECT_EQ(guion.avisos[0], H().dir.filePath("gone.col") + "\n" + TextoDe("FileNotFound"));
  EXPECT_EQ(titulos().size(), 4);
}

TEST_F(Ventana, ClosingAsksToSaveChangesAndTheAnswerDecides) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  // No changes: no question.
  Abre({H().una});
  EXPECT_TRUE(Cierra());
  EXPECT_TRUE(guion.preguntas.isEmpty());

  // A re-created worksheet has changes and no file any more.
  Abre({H().una});
  A("mnu_COLEC_RECREAR")->trigger();
  EXPECT_TRUE(doc().Modificada && doc().ruta.isEmpty());
  EXPECT_TRUE(w->isWindowModified());
  guion.respuestas = {Respuesta::Cancelar};
  EXPECT_FALSE(Cierra());
  ASSERT_EQ(guion.preguntas.size(), 1);
  EXPECT_TRUE(guion.preguntas[0].endsWith(TextoDe("msg_Ask2Save")));
  // Yes with a Save As that is cancelled: still not saved, still open.
  guion.respuestas = {Respuesta::Si};
  EXPECT_FALSE(Cierra());
  EXPECT_EQ(guion.dialogosGuardar, 1);
  // Yes and a name: saved under it (".col" added), then closed.
  const QString nueva = home.filePath("copy");
  guion.guardar = nueva;
  guion.respuestas = {Respuesta::Si};
  EXPECT_TRUE(Cierra());
  EXPECT_TRUE(QFileInfo::exists(nueva + ".col"));
  EXPECT_EQ(QSettings(Ini(), QSettings::IniFormat).value("Reciente/Archivo1").toString(), nueva + ".col");

  // No closes without saving.
  Abre({H().una});
  A("mnu_COLEC_RECREAR")->trigger();
  guion.respuestas = {Respuesta::No};
  EXPECT_TRUE(Cierra());
}

TEST_F(Ventana, WhileAJobRunsOtherCommandsAreRefusedAndClosingWarns) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre({H().varias});
  // Commands that arrive while the worksheet is re-made wait for nothing: they are refused.
  bool visto = false, menusApagados = false;
  QTimer::singleShot(0, w.get(), [&] {
    visto = doc().AppBusy > 0;
    menusApagados = !w->menuBar()->isEnabled() && !w->findChild<QWidget*>("tbToolbar1")->isEnabled();
    guion.abrir = H().una;
    A("mnu_File_Open")->trigger();
    Pulsa(Qt::Key_End);
    guion.confirma = false;
    w->close();
  });
  const int antes = doc().paginaActual;
  A("mnu_COLEC_RECREAR")->trigger();
  ASSERT_TRUE(visto);
  EXPECT_TRUE(menusApagados);
  EXPECT_EQ(guion.dialogosAbrir, 0);
  EXPECT_EQ(doc().paginaActual, antes);
  ASSERT_EQ(guion.confirmaciones.size(), 1);  // No: the window stays
  EXPECT_TRUE(w->isVisible() && !guion.terminado);
  EXPECT_TRUE(w->menuBar()->isEnabled() && w->findChild<QWidget*>("tbToolbar1")->isEnabled());

  // Yes ends the process on the spot, storing nothing of this run.
  guion.respuestas = {Respuesta::No};
  QTimer::singleShot(0, w.get(), [&] {
    guion.confirma = true;
    w->close();
  });
  A("mnu_COLEC_RECREAR")->trigger();
  EXPECT_TRUE(guion.terminado);
  EXPECT_FALSE(QSettings(Ini(), QSettings::IniFormat).contains("Reciente/Archivo1"));
}

TEST_F(Ventana, PagesTurnByArrowsAndKeysWithinTheWorksheet) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre({H().varias});
  const int n = doc().numPaginas;
  ASSERT_GE(n, 3);
  auto en = [&](int p) { return doc().paginaActual == p && Pagina() == TextoDe("Pag") + QString(" %1/%2").arg(p).arg(n); };
  Pulsa(Qt::Key_PageUp);
  EXPECT_TRUE(en(1));
  Pulsa(Qt::Key_PageDown);
  EXPECT_TRUE(en(2));
  Pulsa(Qt::Key_End);
  EXPECT_TRUE(en(n));
  Pulsa(Qt::Key_PageDown);
  EXPECT_TRUE(en(n));
  Pulsa(Qt::Key_Home);
  EXPECT_TRUE(en(1));
  QTest::mouseClick(w->findChild<QWidget*>("ImgRPage"), Qt::LeftButton);
  EXPECT_TRUE(en(2));
  QTest::mouseClick(w->findChild<QWidget*>("ImgLPage"), Qt::LeftButton);
  EXPECT_TRUE(en(1));
  EXPECT_FALSE(w->findChild<QWidget*>("ImgLPage")->isEnabled());

  // The arrow keys scroll by one small step, within the bar's limits.
  A("mnu_setup_zoom200")->trigger();
  QScrollBar* v = w->vista().verticalScrollBar();
  ASSERT_TRUE(v->isVisible());
  Pulsa(Qt::Key_Down);
  Pulsa(Qt::Key_Down);
  EXPECT_EQ(v->value(), 2 * v->singleStep());
  Pulsa(Qt::Key_Up);
  Pulsa(Qt::Key_Up);
  Pulsa(Qt::Key_Up);
  EXPECT_EQ(v->value(), v->minimum());
  // Turning a page brings the bar to the top.
  v->setValue(v->maximum());
  Pulsa(Qt::Key_PageDown);
  EXPECT_EQ(v->value(), v->minimum());
  // The wheel moves one small step a notch, however the notch arrives.
  QWheelEvent rueda(QPointF(50, 50), QPointF(50, 50), {}, QPoint(0, -60), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(w->vista().viewport(), &rueda);
  EXPECT_EQ(v->value(), v->minimum());
  QCoreApplication::sendEvent(w->vista().viewport(), &rueda);
  EXPECT_EQ(v->value(), v->minimum() + v->singleStep());

  // One page: Home and End stay on it.
  AbreFichero(H().una);
  Pulsa(Qt::Key_Home);
  EXPECT_EQ(doc().paginaActual, 1);
  Pulsa(Qt::Key_End);
  EXPECT_EQ(doc().paginaActual, 1);
}

TEST_F(Ventana, ZoomScalesTheSheetAndFitToWidthStaysWithinItsBounds) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre({H().varias});
  const int paginas = doc().numPaginas;
  const std::vector<int> antes = [&] { std::vector<int> v; for (auto& b : doc().bloques) v.push_back(b.Pagina); return v; }();
  struct { const char* entrada; double zoom; } fijos[] = {
      {"mnu_setup_zoom50", 0.5}, {"mnu_setup_zoom75", 0.75}, {"mnu_setup_zoom150", 1.5}, {"mnu_setup_zoom200", 2}, {"mnu_setup_zoom100", 1}};
  for (const auto& f : fijos) {
    A(f.entrada)->trigger();
    EXPECT_DOUBLE_EQ(w->vista().Zoom(), f.zoom);
    EXPECT_EQ(w->vista().Imagen().deviceIndependentSize().toSize(), QSize(qRound(796 * f.zoom), qRound(1125 * f.zoom)));
  }
  A("mnu_setup_zoomANCHO")->trigger();
  for (const int ancho : {900, 1400, 4000}) {
    w->resize(ancho, 700);
    QTest::qWait(20);
    const double esperado = std::clamp((w->vista().AnchoUtil() - 28) / 796, 0.5, 3.0);
    EXPECT_DOUBLE_EQ(w->vista().Zoom(), esperado) << ancho;
  }
  EXPECT_DOUBLE_EQ(w->vista().Zoom(), 3.0);
  // Zoom never moves a page break.
  std::vector<int> despues;
  for (auto& b : doc().bloques) despues.push_back(b.Pagina);
  EXPECT_EQ(doc().numPaginas, paginas);
  EXPECT_EQ(despues, antes);
}

// The ink of the page number: the bounding box of what is drawn in a band of
// the page that only the number may use, and the darkest value in it.
struct Tinta {
  QRect caja;
  int oscuro = 255;
};
Tinta TintaEn(const QImage& img, int y0, int y1) {
  Tinta t;
  for (int y = y0; y < y1; ++y)
    for (int x = 0; x < img.width(); ++x) {
      const QColor c = img.pixelColor(x, y);
      if (c.red() > 245 && c.green() > 245 && c.blue() > 245) continue;
      t.caja |= QRect(x, y, 1, 1);
      t.oscuro = std::min({t.oscuro, c.red(), c.green(), c.blue()});
    }
  return t;
}

TEST_F(Ventana, ThePageNumberStandsWhereTheHeaderSays) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre({H().varias});
  A("mnu_setup_zoom100")->trigger();
  Documento& d = doc();
  d.col.cab.PAGINI = 5;
  const double mitad = 796 / 2.0;
  struct { int posnumpag, pagina; bool derecha, abajo; } casos[] = {
      {4, 3, true, false},   // 7, odd: right
      {4, 2, false, false},  // 6, even: left
      {5, 3, false, false},  // 7: left
      {12, 3, true, true},   // at the foot
      {2, 3, false, false},  {1, 2, true, false},
  };
  // With the margins of 16 mm the number's line lies between 60 and 77
  // pixels from the top, or as far from the foot; no other ink comes there.
  const int margen = qRound(16 / 25.4 * 96);
  for (const auto& c : casos) {
    d.col.cab.POSNUMPAG = c.posnumpag;
    d.paginaActual = c.pagina - 1;
    Pulsa(Qt::Key_PageDown);
    const QImage& img = w->vista().Imagen();
    const Tinta arriba = TintaEn(img, margen - 2, margen + 16), abajo = TintaEn(img, 1123 - margen - 18, 1123 - margen + 2);
    const Tinta& n = c.abajo ? abajo : arriba;
    ASSERT_FALSE(n.caja.isNull()) << c.posnumpag;
    EXPECT_EQ(n.caja.center().x() > mitad, c.derecha) << c.posnumpag << " page " << c.pagina;
    EXPECT_GT(n.oscuro, 100) << "grey, not black";
  }
  d.col.cab.POSNUMPAG = 0;
  Pulsa(Qt::Key_PageUp);
  // No number: no line kept free, the title stands on the top margin.
  EXPECT_LT(TintaEn(w->vista().Imagen(), margen - 2, margen + 16).oscuro, 60);
}

TEST_F(Ventana, TheEducationSystemMenuChoosesAndStoresTheSystem) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre();
  QMenu* menu = w->findChild<QMenu*>("mnu_setup_SYSEDU");
  ASSERT_TRUE(menu->menuAction()->isVisible());
  const QList<QAction*> entradas = menu->actions();
  ASSERT_GE(entradas.size(), 2);
  EXPECT_TRUE(entradas.back()->isChecked());  // none chosen yet: "<None>"
  entradas.front()->trigger();
  EXPECT_TRUE(entradas.front()->isChecked() && !entradas.back()->isChecked());
  EXPECT_EQ(QSettings(Ini(), QSettings::IniFormat).value("SYSEDU/cmbtext").toString(), "Secondary_Chemistry.sed");
}

TEST_F(Ventana, TheManualIsHandedToTheDesktop) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre();
  A("mnu_Help_Manual")->trigger();
  const QString manual = QCoreApplication::applicationDirPath() + "/Manual_ENG.pdf";
  EXPECT_EQ(guion.abiertos, QStringList{manual});
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


TEST_F(Ventana, AClickSelectsTheStripUnderItAtAnyZoomAndTheMenusFollow) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  Abre({H().varias});
  QApplication::clipboard()->clear();
  for (const char* zoom : {"mnu_setup_zoom100", "mnu_setup_zoom200"}) {
    SCOPED_TRACE(zoom);
    A(zoom)->trigger();
    const QPoint p2 = SobreProblema(*w, 2);
    ASSERT_FALSE(p2.isNull());
    const QImage antes = w->vista().Hoja()->grab().toImage();
    Clic(*w, p2);
    EXPECT_EQ(ProblemaSeleccionado(doc()), 2);
    // The strip shows inverted: its white turned dark.
    const QImage despues = w->vista().Hoja()->grab().toImage();
    const QPoint fondo(p2.x() + qRound(300 * w->vista().Zoom()), p2.y());
    EXPECT_EQ(antes.pixelColor(fondo), QColor(Qt::white));
    EXPECT_LT(despues.pixelColor(fondo).lightness(), 30);
    EXPECT_TRUE(A("mnu_Edicion_Cut")->isEnabled() && A("mnu_Edicion_Copy")->isEnabled() && A("mnu_Edicion_Mover0")->isEnabled());
    EXPECT_FALSE(A("mnu_Edicion_Paste")->isEnabled());  // nothing on the clipboard
    Clic(*w, SobreProblema(*w, 1));
    EXPECT_EQ(ProblemaSeleccionado(doc()), 1);
    EXPECT_FALSE(A("mnu_Edicion_Mover0")->isEnabled() || A("mnu_Edicion_Mover2")->isEnabled());
    Clic(*w, SobreProblema(*w, 1));  // the selected strip again: cleared
    EXPECT_EQ(Seleccionadas(doc()), 0);
    EXPECT_FALSE(A("mnu_Edicion_Cut")->isEnabled() || A("mnu_Edicion_Copy")->isEnabled());
    Clic(*w, p2);
    Clic(*w, QPoint(8 + qRound(770 * w->vista().Zoom()), p2.y()));  // the right margin clears all
    EXPECT_EQ(Seleccionadas(doc()), 0);
    EXPECT_EQ(w->vista().Hoja()->grab().toImage(), antes);
  }
  // The right button opens the context menu with the same entries.
  Clic(*w, SobreProblema(*w, 2));
  QMenu* contexto = w->findChild<QMenu*>("cmnu_edicion");
  QTimer::singleShot(50, contexto, &QMenu::close);
  Clic(*w, SobreProblema(*w, 2), Qt::RightButton);
  EXPECT_TRUE(contexto->actions().contains(A("mnu_Edicion_Cut")));
  EXPECT_EQ(ProblemaSeleccionado(doc()), 2) << "the right button keeps the selection";
}

TEST_F(Ventana, EditingThroughTheMenusWithUndoAndRedoCaptionsAndTheClipboard) {
  almacen->Escribe("INI_WIN", "SHOW", "0");
  almacen->Escribe("Ver", "EdicBotones", "S");
  Abre({H().varias});
  const int n = static_cast<int>(doc().col.problemas.size());
  const std::string tercero = doc().col.problemas[2].Enunciado;
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo0"));
  EXPECT_FALSE(A("mnu_Edicion_Undo")->isEnabled() || w->Boton(4)->isEnabled());
  // Copy the third problem, delete it, paste it back at the front.
  Clic(*w, SobreProblema(*w, 3));
  A("mnu_Edicion_Copy")->trigger();
  EXPECT_TRUE(A("mnu_Edicion_Paste")->isEnabled() && w->Boton(8)->isEnabled());
  EXPECT_TRUE(w->Boton(6)->isEnabled()) << "copying keeps the selection";
  w->Boton(6)->trigger();  // Cut
  EXPECT_EQ(static_cast<int>(doc().col.problemas.size()), n - 1);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo1") + " " + TextoDe("Edit_Del").remove('&'));
  EXPECT_EQ(Seleccionadas(doc()), 0);
  A("mnu_Edicion_Paste")->trigger();  // nothing selected: to the front
  EXPECT_EQ(doc().col.problemas.front().Enunciado, tercero);
  A("mnu_Edicion_Undo")->trigger();
  EXPECT_EQ(static_cast<int>(doc().col.problemas.size()), n - 1);
  EXPECT_EQ(A("mnu_Edicion_Redo")->text(), TextoDe("Edit_Redo1") + "  " + TextoDe("Edit_Paste").remove('&'));
  EXPECT_FALSE(A("mnu_Edicion_Undo")->isEnabled());
  A("mnu_Edicion_Redo")->trigger();
  EXPECT_EQ(doc().col.problemas.front().Enunciado, tercero);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo1") + "  " + TextoDe("Edit_Paste").remove('&'));
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
  const auto otros = doc().col.problemas[0].Enunciado;
  w->Boton(3)->trigger();
  EXPECT_EQ(doc().col.problemas[0].Enunciado, otros);
  EXPECT_EQ(A("mnu_Edicion_Undo")->text(), TextoDe("Edit_Undo1") + " " + TextoDe("Edit_ReCreatePro").remove('&'));
  EXPECT_EQ(v->value(), posicion);
  EXPECT_TRUE(w->isWindowModified() && doc().ruta.isEmpty());
}

// Two windows of two processes on one X display: a problem copied in the
// first pastes in the second.
TEST(OtroProceso, AProblemCopiedInOneWindowPastesInAnother) {
  const QString xvfb = QStandardPaths::findExecutable("Xvfb");
  ASSERT_FALSE(xvfb.isEmpty()) << "the test runs two windows on Xvfb (Debian package xvfb)";
  QProcess pantalla;
  pantalla.start(xvfb, {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
  ASSERT_TRUE(pantalla.waitForReadyRead(20000));
  const QString numero = QString::fromLatin1(pantalla.readAllStandardOutput()).trimmed();
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("DISPLAY", ":" + numero);
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
  auto info = [](const QString& ruta) {
    QProcess p;
    p.start(QStringLiteral(SS_CLI_PATH), {"info", ruta});
    p.waitForFinished(60000);
    return QJsonDocument::fromJson(p.readAllStandardOutput()).object()["problems"].toArray();
  };
  const QJsonArray pegados = info(salida), origen = info(H().varias);
  ASSERT_EQ(pegados.size(), 3);
  EXPECT_EQ(pegados[0], origen[2]);
}
}  // namespace
}  // namespace ss

// The same program in the part of one window of the clipboard test:
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
  // No printer here, whatever the machine has: the printing tests have their own.
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
