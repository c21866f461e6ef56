// The start-up logic of the desktop program that needs no window.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "problems/idioma.h"
#include "worksheet/ajustes.h"
#include "worksheet/inicio.h"

namespace ss {
namespace {

TEST(Recientes, TheLatestComesFirstAndEachFileHasOneSlot) {
  QTemporaryDir d;
  const QString a = d.filePath("a.col"), b = d.filePath("b.col"), A = d.filePath("A.col");
  Recientes r;
  for (const QString& f : {a, b, a, d.path() + "/./sub/../b.col", A}) AgregaReciente(r, f);
  EXPECT_EQ(r.archivo.mid(0, 4), QStringList({A, b, a, ""}));  // "a.col" and "A.col" are two files
  EXPECT_EQ(r.titulo.mid(0, 3), QStringList({"A.col", "b.col", "a.col"}));
  // A tenth file pushes the oldest out; a relative name is made absolute.
  for (int i = 0; i < 9; ++i) AgregaReciente(r, d.filePath(QString("f%1.col").arg(i)));
  EXPECT_EQ(r.archivo.size(), kRecientes);
  EXPECT_EQ(r.archivo.front(), d.filePath("f8.col"));
  EXPECT_EQ(r.archivo.back(), d.filePath("f0.col"));
  AgregaReciente(r, "rel.col");
  EXPECT_EQ(r.archivo.front(), QDir::current().absoluteFilePath("rel.col"));

  // Stored and read back as they were.
  AlmacenMemoria al;
  r.Guarda(al);
  const Recientes leido = Recientes::Lee(al);
  EXPECT_EQ(leido.archivo, r.archivo);
  EXPECT_EQ(leido.titulo, r.titulo);
  EXPECT_TRUE(Recientes().Vacia());
}

TEST(ComandoInicio, ReadsTheThreeCommandsAndNothingElse) {
  struct { QString comando; TipoInicio tipo; QString ruta; } casos[] = {
      {"OPEN:/a/b c.col", TipoInicio::Abrir, "/a/b c.col"},
      {"OPEN:", TipoInicio::Abrir, ""},
      {"OPEN?:", TipoInicio::Preguntar, ""},
      {"WIZARD:", TipoInicio::Asistente, ""},
      {"WIZARD: ", TipoInicio::Ninguno, ""},
      {"open:/a.col", TipoInicio::Ninguno, ""},
      {"", TipoInicio::Ninguno, ""},
  };
  for (const auto& c : casos) {
    const OrdenInicio o = LeeComandoInicio(c.comando);
    EXPECT_EQ(o.tipo, c.tipo) << c.comando.toStdString();
    EXPECT_EQ(o.ruta, c.ruta) << c.comando.toStdString();
  }
  TextosVentana panel(SS_SOURCE_DIR, "INO");
  const OrdenInicio ejemplo = LeeComandoInicio(ComandoEjemplo("/opt/ss", panel, 1));
  EXPECT_EQ(ejemplo.tipo, TipoInicio::Abrir);
  EXPECT_TRUE(ejemplo.ruta.startsWith("/opt/ss/examples/") && ejemplo.ruta.endsWith(".col"));
}

TEST(SaveAs, ProposesTheFileOrAFreeNameFromTheTitle) {
  QTemporaryDir d;
  auto toca = [&](const char* nombre) { QFile f(d.filePath(nombre)); f.open(QIODevice::WriteOnly); };
  Documento doc;
  doc.col.cab.TITULO = "Gases: ideal/real?";
  EXPECT_EQ(PropuestaNombre(doc, d.path()), d.filePath("Gases idealreal.col"));
  toca("Gases idealreal.col");
  toca("Gases idealreal01.col");
  EXPECT_EQ(PropuestaNombre(doc, d.path()), d.filePath("Gases idealreal02.col"));
  doc.col.cab.TITULO = "..:";
  EXPECT_EQ(PropuestaNombre(doc, d.path()), "");
  doc.ruta = "/w/sheet.col";
  EXPECT_EQ(PropuestaNombre(doc, d.path()), "/w/sheet.col");
  EXPECT_EQ(ConExtensionCol("/w/a"), "/w/a.col");
  EXPECT_EQ(ConExtensionCol("/w/a.COL"), "/w/a.COL");
  EXPECT_EQ(ConExtensionCol("/w/a.col.txt"), "/w/a.col.txt.col");
}

TEST(ZoomAjustado, FillsTheWidthWithinHalfAndThreeTimes) {
  struct { double ancho, zoom; } casos[] = {{100, 0.5}, {426, 0.5}, {824, 1}, {1222, 1.5}, {2416, 3}, {9000, 3}};
  for (const auto& c : casos) EXPECT_DOUBLE_EQ(ZoomAjustado(c.ancho), c.zoom) << c.ancho;
}

}  // namespace
}  // namespace ss
