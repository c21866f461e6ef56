#include "typeset/canvas_qt.h"

#include <gtest/gtest.h>

#include <tuple>

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "typeset/motor.h"
#include "typeset/salida.h"

namespace ss {
namespace {

TEST(CanvasQt, SymbolBytesBecomeTheirSigns) {
  const std::tuple<const char*, unsigned char, char16_t> cases[] = {
      {"Symbol", 'a', u'α'},  {"Symbol", 'D', u'Δ'},  {"Symbol", 'j', u'ϕ'},
      {"Symbol", 174, u'→'},  {"Symbol", 163, u'≤'},  {"Symbol", 242, u'∫'},
      {"MT Extra", 'U', u'∪'}, {"MT Extra", 'h', u'ℏ'}, {"Times New Roman", 150, u'–'},
      {"Arial", 0x80, u'€'},  {"Arial", 'a', u'a'}};
  for (const auto& [fuente, byte, glifo] : cases)
    EXPECT_EQ(CanvasQt::Glifo(fuente, byte), QChar(glifo)) << fuente << " " << int(byte);
}

TEST(CanvasQt, MetricsComeFromTheTwinsAndScaleWithTheSize) {
  EXPECT_TRUE(RegistraFuentes());
  EXPECT_EQ(CanvasQt::Familia("Times New Roman"), "Liberation Serif");
  EXPECT_EQ(CanvasQt::Familia("arial"), "Liberation Sans");
  EXPECT_EQ(CanvasQt::Familia("Courier New"), "Liberation Mono");
  CanvasQt c(nullptr);
  const double a = c.TextWidth("a"), h = c.TextHeight("Hp");
  const double asc = c.FontAscent() * c.TwipsPerPixelY();
  EXPECT_NEAR(h, 276, 20);  // 12-point Times is about 240 twips high with its leading
  EXPECT_TRUE(a > 50 && a < 200) << a;
  EXPECT_TRUE(asc > 0.5 * h && asc < h) << asc;
  EXPECT_DOUBLE_EQ(c.TextWidth("ab"), a + c.TextWidth("b"));
  c.fuente.tamano = 24;
  EXPECT_NEAR(c.TextWidth("a"), 2 * a, 1e-9);
  EXPECT_NEAR(c.TextHeight("Hp"), 2 * h, 1e-9);
  c.fuente.negrita = true;
  EXPECT_GT(c.TextWidth("m"), 2 * CanvasQt(nullptr).TextWidth("m"));
}

// Text through the canvas looks as text drawn piece by piece with drawText
// at the pen positions, also when the caller restores its transform before
// the canvas goes; a rule of width 1 is one pixel high.
TEST(CanvasQt, TextLooksAsDrawnPieceByPieceAtThePen) {
  // Font, points, bold, italic, red, text, shift down.
  const std::tuple<const char*, double, bool, bool, int, const char*, double> piezas[] = {
      {"Times New Roman", 12, 0, 0, 0, "Find \x80 caf\xE9 ", 0},
      {"Times New Roman", 12, 0, 1, 0, "x", 0}, {"Symbol", 12, 0, 0, 0, "aD", 0},
      {"Times New Roman", 8, 0, 0, 0, "2", 60}, {"Times New Roman", 12, 0, 0, 0, " +\x96 ", 20},
      {"Arial", 18, 1, 0, 255, "CO", 0}};
  QImage hecha(400, 60, QImage::Format_RGB32);
  hecha.fill(Qt::white);
  QImage patron = hecha;
  QPainter pc(&hecha), pr(&patron);
  pr.scale(1.0 / 15, 1.0 / 15);
  pr.fillRect(QRectF(90, 600 - 7.5, 4910, 15), Qt::black);
  {
    pc.save();
    pc.scale(1.0 / 15, 1.0 / 15);
    CanvasQt c(&pc, TipoCanvas::Pantalla);
    c.CurrentX = 90;
    for (const auto& [fuente, puntos, negrita, cursiva, rojo, texto, dy] : piezas) {
      c.fuente = EstadoFuente{fuente, puntos, negrita, cursiva};
      c.ForeColor = rojo;
      c.CurrentY = 150 + dy;
      const double x = c.CurrentX, ancho = c.TextWidth(texto);
      c.Print(texto);
      EXPECT_NEAR(c.CurrentX, x + ancho, 1e-9) << texto;
      QFont f(CanvasQt::Familia(fuente), -1, negrita ? QFont::Bold : QFont::Normal, cursiva);
      f.setPixelSize(1000);
      f.setHintingPreference(QFont::PreferNoHinting);
      f.setKerning(false);
      QString s;
      for (unsigned char b : std::string_view(texto)) s += CanvasQt::Glifo(fuente, b);
      pr.save();
      pr.translate(x, c.CurrentY);
      pr.scale(puntos / 50, puntos / 50);
      pr.setFont(f);
      pr.setPen(QColor(rojo, 0, 0));
      pr.drawText(QPointF(0, QFontMetricsF(f).ascent()), s);
      pr.restore();
    }
    c.Line(90, 600, 5000, 600, 0, ModoLinea::Linea);
    pc.restore();
  }
  pc.end();
  pr.end();
  int tinta = 0, distintos = 0;
  for (int y = 0; y < patron.height(); ++y)
    for (int x = 0; x < patron.width(); ++x) {
      const QRgb a = hecha.pixel(x, y), b = patron.pixel(x, y);
      tinta += qGreen(b) < 128;
      distintos += std::abs(qRed(a) - qRed(b)) > 16 || std::abs(qGreen(a) - qGreen(b)) > 16;
    }
  EXPECT_GT(tinta, 600);
  EXPECT_EQ(distintos, 0);
}

// Underline and strike-out make one straight rule from the first to the last
// character, although "+" and "=" sit lower and the signs have gaps around them.
TEST(CanvasQt, UnderlineAndStrikeOutAreOneRulePerRun) {
  for (const char* texto : {"&+Ux + y = 3&-U", "&+Sx + y = 3&-S"}) {
    QImage image(800, 160, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter painter(&image);
      painter.scale(1.0 / 15, 1.0 / 15);
      CanvasQt c(&painter, TipoCanvas::Pantalla);
      Motor().ComponerTexto(texto, 48, c);
    }
    auto oscuro = [&](int x, int y) { return qGray(image.pixel(x, y)) < 128; };
    int x0 = image.width(), x1 = -1;  // the ink's first and last columns
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (oscuro(x, y)) x0 = std::min(x0, x), x1 = std::max(x1, x);
    bool regla = false;
    for (int y = 0; y < image.height(); ++y) {
      int x = x0 + 1;
      while (x < x1 && oscuro(x, y)) ++x;
      regla = regla || x == x1;
    }
    EXPECT_TRUE(regla) << texto;
  }
}

// A picture fills its box upright whatever the signs of the box's sides, on
// the screen and in a PDF, where it is kept without loss.
TEST(CanvasQt, PicturesStandUprightInTheirBoxAndStayLosslessInAPdf) {
  QTemporaryDir dir;
  QImage foto(4, 4, QImage::Format_RGB32);
  foto.fill(Qt::blue);
  for (int x = 0; x < 4; ++x) foto.setPixel(x, 0, qRgb(255, 0, 0)), foto.setPixel(x, 1, qRgb(255, 0, 0));
  const std::string ruta = dir.filePath("half.png").toStdString();
  ASSERT_TRUE(foto.save(QString::fromStdString(ruta)));
  for (double alto : {600.0, -600.0}) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter painter(&image);
      painter.scale(1.0 / 15, 1.0 / 15);
      CanvasQt c(&painter, TipoCanvas::Pantalla);
      c.PaintPicture(ruta, 150, alto > 0 ? 150 : 750, 600, alto);  // pixels 10..50 either way
    }
    EXPECT_EQ(image.pixel(30, 15), qRgb(255, 0, 0)) << alto;
    EXPECT_EQ(image.pixel(30, 45), qRgb(0, 0, 255)) << alto;
    EXPECT_EQ(image.pixel(55, 30), qRgb(255, 255, 255)) << alto;
  }
  if (QStandardPaths::findExecutable("pdfimages").isEmpty()) GTEST_SKIP() << "no pdfimages";
  const QString pdf = dir.filePath("p.pdf");
  ASSERT_TRUE(EscribePdf(pdf, 1, [&](int, Canvas& c) { c.PaintPicture(ruta, 1440, 1440, 1440, 1440); }, nullptr));
  QProcess p;
  p.start("pdfimages", {"-list", pdf});
  ASSERT_TRUE(p.waitForFinished());
  const QString lista = QString::fromUtf8(p.readAllStandardOutput());
  EXPECT_TRUE(lista.contains(" image ") && !lista.contains("jpeg")) << lista.toStdString();
}

// A PDF keeps its words, Greek letters and signs as their Unicode characters.
TEST(CanvasQt, PdfTextCanBeSearched) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
  QTemporaryDir dir;
  const QString pdf = dir.filePath("t.pdf");
  QString error;
  ASSERT_TRUE(EscribePdf(pdf, 1, [](int, Canvas& c) {
    Motor().ComponerTexto("Find &+Uthe mass&-U of CaCO_3 &alfa &Delta &ars &pm 2&.5 caf\xE9 \x80 "
                          "5 \x96 3&LF&+Bbold&-B &+Iitalic&-I", 12, c);
  }, &error)) << error.toStdString();
  QProcess p;
  p.start("pdftotext", {"-enc", "UTF-8", pdf, "-"});
  ASSERT_TRUE(p.waitForFinished());
  const QString texto = QString::fromUtf8(p.readAllStandardOutput()).simplified();
  for (const char* palabras : {"Find the mass of CaCO3", "α Δ → ± 2.5 café € 5 – 3", "bold italic"})
    EXPECT_TRUE(texto.contains(QString::fromUtf8(palabras))) << palabras << texto.toStdString();
}

}  // namespace
}  // namespace ss
