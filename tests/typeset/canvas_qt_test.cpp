#include "typeset/canvas_qt.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "typeset/motor.h"

namespace ss {
namespace {

TEST(CanvasQt, TheClassicFontsResolveToTheirMetricTwins) {
  EXPECT_TRUE(RegistraFuentes());
  EXPECT_EQ(CanvasQt::Familia("Times New Roman"), "Liberation Serif");
  EXPECT_EQ(CanvasQt::Familia("arial"), "Liberation Sans");
  EXPECT_EQ(CanvasQt::Familia("Courier New"), "Liberation Mono");
}

TEST(CanvasQt, SymbolBytesBecomeTheirSigns) {
  struct Case {
    const char* fuente;
    unsigned char byte;
    char16_t glifo;
  } cases[] = {{"Symbol", 'a', u'α'}, {"Symbol", 'D', u'Δ'}, {"Symbol", 'j', u'ϕ'},
               {"Symbol", 174, u'→'}, {"Symbol", 163, u'≤'}, {"Symbol", 242, u'∫'},
               {"MT Extra", 'U', u'∪'}, {"MT Extra", 'h', u'ℏ'},
               {"Times New Roman", 150, u'–'}, {"Arial", 0x80, u'€'}, {"Arial", 'a', u'a'}};
  for (const auto& c : cases)
    EXPECT_EQ(CanvasQt::Glifo(c.fuente, c.byte), QChar(c.glifo)) << c.fuente << " " << int(c.byte);
}

TEST(CanvasQt, MetricsScaleWithTheSizeAndAddUpByCharacter) {
  CanvasQt c(nullptr);
  c.fuente.tamano = 12;
  const double a = c.TextWidth("a"), b = c.TextWidth("b");
  EXPECT_GT(a, 50);
  EXPECT_LT(a, 200);
  EXPECT_DOUBLE_EQ(c.TextWidth("ab"), a + b);
  const double h = c.TextHeight("Hp");
  const double asc = c.FontAscent() * c.TwipsPerPixelY();
  EXPECT_GT(asc, 0.5 * h);
  EXPECT_LT(asc, h);
  c.fuente.tamano = 24;
  EXPECT_NEAR(c.TextWidth("a"), 2 * a, 1e-9);
  EXPECT_NEAR(c.TextHeight("Hp"), 2 * h, 1e-9);
  c.fuente.negrita = true;
  EXPECT_GT(c.TextWidth("m"), CanvasQt(nullptr).TextWidth("m"));
  // 12-point Times is about 240 twips high with its leading.
  CanvasQt d(nullptr);
  EXPECT_NEAR(d.TextHeight("Hp"), 276, 20);
}

TEST(CanvasQt, DrawsInkWhereThePenIs) {
  QImage image(200, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    painter.scale(1.0 / 15, 1.0 / 15);
    CanvasQt c(&painter, TipoCanvas::Pantalla);
    c.CurrentX = 150;
    c.CurrentY = 150;
    c.ForeColor = 255;
    c.fuente.tamano = 24;
    c.Print("H");
    EXPECT_GT(c.CurrentX, 150);
    c.Line(0, 1200, 2900, 1200, 0, ModoLinea::Linea);
  }
  int rojos = 0, negros = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QColor p = image.pixelColor(x, y);
      if (p.red() > 150 && p.green() < 100) ++rojos;
      if (p.red() < 80 && p.green() < 80 && p.blue() < 80) ++negros;
    }
  EXPECT_GT(rojos, 20);   // the red H
  EXPECT_GT(negros, 150); // the rule across
}

}  // namespace
}  // namespace ss
