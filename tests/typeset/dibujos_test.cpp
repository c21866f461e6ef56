// The geometry of the drawings: rings, bonds up and down, equation tables and
// pictures, on the recording canvas (at 12 points a character is 120 twips
// wide, 122 with its spacing in plain text, and "Hp" is 276 high).
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <cmath>
#include <numbers>

#include "tests/typeset/canvas_registro.h"
#include "worksheet/carpetas.h"

namespace ss {
namespace {

using test::Linea;
using test::Raya;

constexpr double kH = 276;
constexpr double kR = 1.5 * kH;
constexpr double kEje = 0.574 * kH;
constexpr double kPi = std::numbers::pi;

double Distancia(double x1, double y1, double x2, double y2) { return std::hypot(x2 - x1, y2 - y1); }

// A stroke from (x1, y1) to (x2, y2), seen from the point (dx, dy).
void EsRaya(const Raya& r, double dx, double dy, std::array<double, 4> e) {
  EXPECT_NEAR(r.x1 - dx, e[0], 1e-6);
  EXPECT_NEAR(r.y1 - dy, e[1], 1e-6);
  EXPECT_NEAR(r.x2 - dx, e[2], 1e-6);
  EXPECT_NEAR(r.y2 - dy, e[3], 1e-6);
}

// A ring's vertex k as the ring's own numbers put it: start angle plus k steps.
struct Vertice {
  double x, y;
};
Vertice VerticeDe(double cx, int n, double inicio, int k) {
  const double a = inicio + 2 * kPi * k / n;
  return {cx + kR * std::sin(a), kEje - kR * std::cos(a)};
}

TEST(Ring, VerticesBoxAndSidesForEverySizeAndOrientation) {
  const double s30 = std::cos(kPi / 6);  // cos 30°, sin 60°
  const struct {
    const char* texto;
    int n;
    double inicio;   // radians
    double rx, ry;   // leftward and upward reach, in R
  } casos[] = {
      {"#A3V(#A3V)", 3, 0, s30, 1},
      {"#A3I(#A3I)", 3, -kPi / 2, 1, s30},
      {"#A3L(#A3L)", 3, kPi / 3, s30, 0.5},
      {"#A4D(#A4D)", 4, kPi / 2, 1, 1},
      {"#A5V(#A5V)", 5, 0, std::sin(2 * kPi / 5), 1},
      {"#A6V(#A6V)", 6, 0, s30, 1},
      {"#A6L(XXXXXX#A6L)", 6, kPi / 6, 1, s30},
      {"#BCH(#BCH)", 6, kPi / 6, 1, s30},
      {"#A9V(#A9V)", 9, 0, std::sin(4 * kPi / 9), 1},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    const Caja& b = l.Construccion();
    EXPECT_DOUBLE_EQ(b.Adelanto, 0);
    EXPECT_NEAR(b.Ancho, 2 * c.rx * kR + 0.05 * kH, 1e-6);
    EXPECT_NEAR(b.Sobre, c.ry * kR - kEje + 0.05 * kH, 1e-6);
    EXPECT_NEAR(b.Alto, c.ry * kR + kEje + 0.05 * kH, 1e-6);
    EXPECT_DOUBLE_EQ(b.Eje, kEje);
    // The sides, vertex to vertex round the ring, closing on the first.
    ASSERT_GE(l.c.rayas.size(), static_cast<std::size_t>(c.n));
    for (int k = 0; k < c.n; ++k) {
      const Vertice a = VerticeDe(c.rx * kR, c.n, c.inicio, k), z = VerticeDe(c.rx * kR, c.n, c.inicio, k + 1);
      EsRaya(l.c.rayas[k], 0, 0, {a.x, a.y, z.x, z.y});
    }
  }
}

TEST(Ring, BenzeneHasItsCircleAndOtherRingsTheirMultipleSidesInside) {
  const struct {
    const char* texto;
    int n;
    double d;                       // the gap of a multiple side
    std::vector<double> interiores;  // radius of each inner stroke, in d
    bool circulo;
  } casos[] = {
      {"#BCV(#BCV)", 6, 0, {}, true},
      {"#BCH(&EC=DDT:#BCH)", 6, 0, {}, true},  // benzene ignores the sides
      {"#A6V(&EC=SDSSST:#A6V)", 6, 0.18 * kH, {1, 1, 2}, false},
      {"#A3V(&EC=SDS:#A3V)", 3, 0.18 * kH * 1.6, {1}, false},
      {"#A4V(&EC=dsss#A4V)", 4, 0.18 * kH * 1.3, {1}, false},  // lower case, no ":"
      {"#A5V(&EC=SSSSSDDD:#A5V)", 5, 0.18 * kH, {}, false},   // letters beyond the sides are dropped
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    const Caja& b = l.Construccion();
    const double centroX = (b.Ancho - 0.05 * kH) / 2;
    ASSERT_EQ(l.c.rayas.size(), c.n + c.interiores.size());
    for (std::size_t k = 0; k < c.interiores.size(); ++k) {
      const Raya& r = l.c.rayas[c.n + k];
      const double radio = kR - c.interiores[k] * c.d;
      EXPECT_NEAR(Distancia(centroX, kEje, r.x1, r.y1), radio, 1e-6);
      EXPECT_NEAR(Distancia(centroX, kEje, r.x2, r.y2), radio, 1e-6);
    }
    ASSERT_EQ(l.c.circulos.size(), c.circulo ? 1u : 0u);
    if (c.circulo) {
      EXPECT_NEAR(l.c.circulos[0].x, centroX, 1e-6);
      EXPECT_NEAR(l.c.circulos[0].y, kEje, 1e-6);
      EXPECT_NEAR(l.c.circulos[0].radio, 0.62 * kR, 1e-6);
    }
    EXPECT_TRUE(l.c.trazos.empty()) << "the sides are never a power of ten";
  }
}

// Bonds leaving a hexagon (vertex up) or pentagon, and where their labels go.
TEST(Ring, BondsByTheDirectionOfTheirVertexAndLabelsAtTheirEnds) {
  const double o = 0.075 * kH;
  const struct {
    const char* texto;
    int n, k;  // ring size, vertex from 0
    double inicio;
    std::vector<std::array<double, 4>> trazos;  // from the vertex: dx1, dy1, dx2, dy2
    const char* rotulo;
    double rx, ry;  // the label's pen from the vertex, -1 when none
  } casos[] = {
      {"#A6V(SXXXXX#R1(OH#R1)#A6V)", 6, 0, 0, {{0, 0, 0, -0.6 * kH}}, "OH", -0.3 * kH, -0.45 * kH - kH},
      {"#A6V(XSXXXX#R2(Cl#R2)#A6V)", 6, 1, 0, {{0, 0, 0.6 * kH, 0}}, "Cl", 0.7 * kH, -0.55 * kH},
      {"#A6V(XXXSXX#R4(Br#R4)#A6V)", 6, 3, 0, {{0, 0, 0, 0.54 * kH}}, "Br", -0.3 * kH, 0.5 * kH},
      {"#A6V(XXXDXX#A6V)", 6, 3, 0, {{-o, 0, -o, 0.58 * kH}, {o, 0, o, 0.58 * kH}}, "", 0, 0},
      {"#A6V(XXXXSX#R5(F#R5)#A6V)", 6, 4, 0, {{0, 0, -0.6 * kH, 0}}, "F", -0.65 * kH - 122, -0.55 * kH},
      {"#A6V(XXXXXD#A6V)", 6, 5, 0, {{0, -o, -0.6 * kH, -o}, {0, o, -0.6 * kH, o}}, "", 0, 0},
      {"#A5V(XXSXX#A5V)", 5, 2, 0, {{0, 0, 0, 0.6 * kH}}, "", 0, 0},
      {"#A5V(XXXDX#A5V)", 5, 3, 0, {{-o, 0, -o, 0.58 * kH}, {o, 0, o, 0.58 * kH}}, "", 0, 0},
      {"#A5V(XXXSX#A5V)", 5, 3, 0, {{0, 0, 0, 0.45 * kH}}, "", 0, 0},
      {"#A6L(DXXXXX#R1(O#R1)#A6L)", 6, 0, kPi / 6, {{0, 0, 0, -0.6 * kH}, {0.13 * kH, 0, 0.13 * kH, -0.6 * kH}}, "O",
       -0.3 * kH, -0.45 * kH - kH},
      {"#A6V(XXXXXX#R3(N#R3)#A6V)", 6, 2, 0, {}, "N", 0.7 * kH, -0.55 * kH},  // a label needs no bond
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    // The centre from the first vertex, whose place the test above pins.
    const Vertice v = VerticeDe(l.c.rayas.at(0).x1 - kR * std::sin(c.inicio), c.n, c.inicio, c.k);
    ASSERT_EQ(l.c.rayas.size(), c.n + c.trazos.size());
    for (std::size_t j = 0; j < c.trazos.size(); ++j) EsRaya(l.c.rayas[c.n + j], v.x, v.y, c.trazos[j]);
    EXPECT_EQ(l.c.Texto(), c.rotulo);
    if (*c.rotulo) {
      EXPECT_NEAR(l.c.trazos[0].x - 1 - v.x, c.rx, 1e-6);  // one twip of spacing before a letter
      EXPECT_NEAR(l.c.trazos[0].y - v.y, c.ry, 1e-6);
    }
  }
}

TEST(Ring, LabelsWidenTheBoxOnTheirSide) {
  const double base = 2 * std::cos(kPi / 6) * kR + 0.05 * kH;  // A6V: vertex up, rx = R cos 30°
  const Caja sin = Linea("#A6V(#A6V)").Construccion();
  const Caja arriba = Linea("#A6V(SXXXXX#R1(OH#R1)#A6V)").Construccion();
  const Caja derecha = Linea("#A6V(XSXXXX#R2(Cl#R2)#R3(CH_3#R3)#A6V)").Construccion();
  const Caja abajo = Linea("#A6V(XXXSXX#R4(Br#R4)#A6V)").Construccion();
  const Caja izquierda = Linea("#A6V(XXXXSX#R5(F#R5)#A6V)").Construccion();
  EXPECT_NEAR(sin.Ancho, base, 1e-6);
  EXPECT_NEAR(arriba.Sobre - sin.Sobre, kH + 0.3 * kR, 1e-6);
  EXPECT_NEAR(derecha.Ancho - base, 2 * 122 + 80 + 0.5 * kR, 1e-6);  // the wider label of the side counts
  EXPECT_NEAR(abajo.Alto - sin.Alto, kH + 0.3 * kR, 1e-6);
  // A label on the left keeps clear of what stands before the ring.
  EXPECT_NEAR(izquierda.Adelanto, 122 + 0.5 * kR, 1e-6);
  EXPECT_NEAR(izquierda.Ancho, base, 1e-6);
}

TEST(Ring, MalformedArgumentsDrawWhatTheyCan) {
  const struct {
    const char* texto;
    std::size_t rayas;
    const char* impreso;
  } casos[] = {
      {"#A3V(#A3V)", 3, ""},
      {"#A3V(SSSSSSSSS#R1(a#R1)#R2(b#R2)#R3(c#R3)#R4(d#R4)#R9(e#R9)#A3V)", 6, "abc"},  // too many
      {"#A3V(S#R1(a#R1)#R1(z#R1)#A3V)", 4, "a"},                                      // a label twice
      {"#A7D(ZQ&EC=QQ:#R0(x#R0)#A7D)", 7, ""},
      {"#A4V(&EC=#A4V)", 4, ""},
      {"#A3V(S#R1(OH#A3V)", 4, "*ERROR*"},  // a label never closed
      {"#BCV(SXXXXX#R1(#COC(1#N)(2#COC)#R1)#BCV)", 8, "12"},  // a fraction as a label: its bar
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    EXPECT_EQ(l.c.rayas.size(), c.rayas);
    EXPECT_EQ(l.c.Texto(), c.impreso);
  }
}

TEST(Bonds, UpAndDownFromTheAtomWithTheChainGoingOn) {
  const struct {
    const char* texto;
    std::vector<double> xArriba, xAbajo;  // the strokes' x, from the atom's left edge
  } casos[] = {
      {"#UDB(CSS#UDB)", {0.3 * kH}, {0.3 * kH}},
      {"#UDB(CDX#UDB)", {0.25 * kH, 0.35 * kH}, {}},
      {"#UDB(cxt#UDB)", {}, {0.22 * kH, 0.3 * kH, 0.38 * kH}},
      {"#UDB(C#UDB)", {}, {}},
      {"#UDB(#UDB)", {}, {}},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    ASSERT_EQ(l.c.rayas.size(), c.xArriba.size() + c.xAbajo.size());
    std::size_t j = 0;
    for (double x : c.xArriba) {
      const Raya& r = l.c.rayas[j++];
      EXPECT_NEAR(r.x1, x, 1e-6);
      EXPECT_LT(r.y2, r.y1);
      EXPECT_LE(r.y1, 0.2 * kH);                                  // from over the letter
      EXPECT_NEAR(l.Construccion().Sobre, -r.y2, 1e-6);
    }
    for (double x : c.xAbajo) {
      const Raya& r = l.c.rayas[j++];
      EXPECT_NEAR(r.x1, x, 1e-6);
      EXPECT_GT(r.y2, r.y1);
      EXPECT_GE(r.y1, 0.8 * kH);  // from under it
      EXPECT_GE(l.Construccion().Alto, r.y2);
    }
  }
  // The groups at the ends: their first letter on the bond, the #LP( prefix
  // hanging to the left of it; after the atom the chain goes on at once.
  Linea l("#UDB(CSS#R1(#LP(H_3#LP)C#R1)#R2(H#R2)#UDB)H-CH_3", 12, true);
  const Caja& b = l.Construccion();
  EXPECT_DOUBLE_EQ(b.Ancho, 122);
  EXPECT_DOUBLE_EQ(b.Adelanto, 0);
  std::vector<test::Trazo> t = l.c.trazos;
  ASSERT_EQ(l.c.Texto(), "CH3CHH\x96" "CH3");  // the bond of the chain is the dash
  EXPECT_DOUBLE_EQ(t[0].x, 1);  // the atom
  EXPECT_DOUBLE_EQ(t[3].x, 1);  // "C" of the group up, right over the atom
  EXPECT_DOUBLE_EQ(t[1].x + 121 + 80, t[3].x - 1) << "H and the small 3 end where C starts";
  EXPECT_DOUBLE_EQ(t[4].x, 1);  // "H" of the group down
  EXPECT_DOUBLE_EQ(t[5].x, 122 + 1) << "the chain goes on right after the atom";
  EXPECT_LT(t[3].y + 18 * 12, l.c.rayas[0].y2) << "the group up stands on its bond";
  EXPECT_GT(t[4].y, l.c.rayas[1].y2 - 0.2 * kH) << "the group down hangs from its bond";
  EXPECT_NEAR(b.Sobre, -(t[3].y), 1e-6);
}

TEST(EquationTable, ColumnsRowsPlusSignsAndTheRule) {
  // Columns: the row names (1 char), "A"/"1234", "BB"/"1", the arrow, "C"/"99".
  Linea l("#CEQ(2'A + BB = C'#A11(x#A11)#A21(1234#A21)#A31(7#A31)#A52(99#A52)#CEQ)", 12, true);
  const Caja& b = l.Construccion();
  const double hueco = 360, ancho[] = {122, 4 * 122, 2 * 122, 120, 2 * 122};
  double inicio[5], x = 0;
  for (int k = 0; k < 5; ++k) inicio[k] = (x += k > 0 ? hueco : 0), x += ancho[k];
  EXPECT_DOUBLE_EQ(b.Ancho, x);
  EXPECT_DOUBLE_EQ(b.Eje, kH + 0.7 * kH);  // three rows in all: the middle one on the axis
  EXPECT_DOUBLE_EQ(b.Alto, 1.1 * kH + 2 * kH);
  // Every cell centred in its column, rows H apart under the rule.
  auto en = [&](const std::string& s) {
    for (const test::Trazo& t : l.c.trazos)
      if (t.texto == s) return t;
    ADD_FAILURE() << s;
    return test::Trazo{};
  };
  const double y0 = l.m.Cajas[2].PosY;  // set on the axis of the line
  EXPECT_DOUBLE_EQ(y0, kEje - b.Eje);
  EXPECT_DOUBLE_EQ(en("A").x - 1, inicio[1] + (ancho[1] - 122) / 2);
  EXPECT_DOUBLE_EQ(en("7").x - 1, inicio[2] + (ancho[2] - 122) / 2);
  EXPECT_DOUBLE_EQ(en("x").y - y0, 1.1 * kH);
  EXPECT_DOUBLE_EQ(en("9").y - y0, 2.1 * kH);
  EXPECT_DOUBLE_EQ(en("9").x - 1, inicio[4]);
  // One "+", in the middle of the gap between the two terms on the left.
  int mas = 0;
  for (const test::Trazo& t : l.c.trazos) mas += t.texto == "+";
  EXPECT_EQ(mas, 1);
  const double anchoMas = 120 + 2 * 0.04 * kH;
  EXPECT_NEAR(en("+").x - 0.04 * kH, inicio[2] - hueco + (hueco - anchoMas) / 2, 1e-6);
  ASSERT_EQ(l.c.rayas.size(), 1u);
  EXPECT_DOUBLE_EQ(l.c.rayas[0].y1 - y0, 1.05 * kH);
  EXPECT_DOUBLE_EQ(l.c.rayas[0].x2 - l.c.rayas[0].x1, b.Ancho);

  // Arrows and limits.
  const struct {
    const char* texto;
    const char* impreso;
    std::size_t rayas;
  } casos[] = {
      {"#CEQ(#CEQ)", "", 0},
      {"#CEQ(3#CEQ)", "", 0},
      {"#CEQ(1'a == b'#A21(q#A21)#CEQ)", "aqb", 5},  // the equilibrium arrow: four strokes and the rule
      {"#CEQ(0'a &als b'#CEQ)", "a\xAC" "b", 0},
      {"#CEQ(0'a + b + c + d + e + f + g + h + i + j = k'#CEQ)", "a+b+c+d+e+f+g+h", 0},  // nine columns
      {"#CEQ(1'a + b = c'#A91(z#A91)#A12(y#A12)#CEQ)", "a+b\xAE" "c", 1},  // cells beyond the table
      {"#CEQ(1'a = b'#A21(q#CEQ)", "a*ERROR*\xAE" "b", 1},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea e(c.texto, 12, true);
    EXPECT_EQ(e.c.Texto(), c.impreso);
    EXPECT_EQ(e.c.rayas.size(), c.rayas);
  }
}

// A picture folder and a scratch folder with pictures of known sizes.
struct Pictures : ::testing::Test {
  QTemporaryDir programa, temporal;
  Carpetas carpetas;
  int busquedas = 0;
  void SetUp() override {
    QDir(programa.path()).mkdir("img");
    carpetas = {programa.path(), temporal.path()};
    QImage ancha(200, 100, QImage::Format_RGB32);
    ancha.fill(Qt::red);
    ASSERT_TRUE(ancha.save(programa.path() + "/img/wide.png"));
    QImage alta(50, 100, QImage::Format_RGB32);
    alta.fill(Qt::blue);
    ASSERT_TRUE(alta.save(temporal.path() + "/Tall.gif", "PNG"));
    ASSERT_TRUE(alta.save(temporal.path() + "/wide.png"));  // the program's own wins
    QFile roto(programa.path() + "/img/broken.png");
    ASSERT_TRUE(roto.open(QIODevice::WriteOnly) && roto.write("\x89PNG not really") > 0);
  }
  Linea Dibuja(const std::string& texto) {
    const auto busca = BuscadorDeImagenes(carpetas);
    return Linea(texto, 12, true, [this, busca](const std::string& n) { return ++busquedas, busca(n); });
  }
};

TEST_F(Pictures, SizedFromMillimetresKeepingTheirShapeUnlessDistorted) {
  const double mm = 1440 / 25.4;
  const struct {
    std::string texto;
    QString fichero;
    double x, y, w, h;  // where the picture is drawn, from the pen at (0, 0)
    double ancho, sobre, alto;
  } casos[] = {
      {"#IMG('wide.png'DXmm=20:DYmm=20:#IMG)", "/img/wide.png", 0, kH - 10 * mm, 20 * mm, 10 * mm, 20 * mm, 10 * mm - kH, kH},
      {"#IMG('WIDE.PNG' dymm=10: dxmm=40:#IMG)", "/img/wide.png", 0, kH - 10 * mm, 20 * mm, 10 * mm, 20 * mm, 10 * mm - kH, kH},
      {"#IMG(DIST'wide.png'DXmm=20:DYmm=20:#IMG)", "/img/wide.png", 0, kH - 20 * mm, 20 * mm, 20 * mm, 20 * mm, 20 * mm - kH, kH},
      {"#IMG('tall.gif'DXmm=20:DYmm=20:#IMG)", "Tall.gif", 0, kH - 20 * mm, 10 * mm, 20 * mm, 10 * mm, 20 * mm - kH, kH},
      // Hanging: no height in the line, drawn upright from one line up.
      {"#IMG('wide.png'DXmm=22:DYmm=-22:#IMG)", "/img/wide.png", 0, -kH, 22 * mm, 11 * mm, 22 * mm, -11 * mm - kH, 0},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l = Dibuja(c.texto);
    const Caja& b = l.Construccion();
    EXPECT_NEAR(b.Ancho, c.ancho, 1e-6);
    EXPECT_NEAR(b.Sobre, c.sobre, 1e-6);
    EXPECT_NEAR(b.Alto, c.alto, 1e-6);
    EXPECT_DOUBLE_EQ(b.Eje, kEje);
    ASSERT_EQ(l.c.imagenes.size(), 1u);
    const test::Imagen& i = l.c.imagenes[0];
    EXPECT_EQ(QString::fromStdString(i.ruta),
              c.fichero.startsWith('/') ? programa.path() + c.fichero : temporal.path() + "/" + c.fichero);
    EsRaya({i.x, i.y, i.x + i.ancho, i.y + i.alto}, 0, 0, {c.x, c.y, c.x + c.w, c.y + c.h});
    EXPECT_TRUE(l.c.rayas.empty()) << "no frame unless asked";
  }
  // A frame widens the box by its thickness.
  Linea m = Dibuja("#IMG('wide.png'DXmm=20:DYmm=10:MARCO#IMG)");
  const double t = 0.04 * kH;
  EXPECT_NEAR(m.Construccion().Adelanto, t, 1e-6);
  EXPECT_NEAR(m.Construccion().Ancho, 20 * mm + t, 1e-6);
  ASSERT_EQ(m.c.rayas.size(), 1u);
  EXPECT_EQ(m.c.rayas[0].modo, ModoLinea::Caja);
}

TEST_F(Pictures, AMissingOrUnreadablePictureIsAGreyBoxWithACrossAndAFrame) {
  const double mm = 1440 / 25.4;
  const struct {
    std::string texto;
    double w, h;
    int busquedas;  // one per pass, none for a name with a folder part
  } casos[] = {
      {"#IMG('nada.gif'#IMG)", 1440, 1080, 2},
      {"#IMG('wide.png'DXmm=20:#IMG)", 1440, 1080, 2},  // a size missing
      {"#IMG('broken.png'DXmm=30:DYmm=10:#IMG)", 30 * mm, 10 * mm, 2},
      {"#IMG('../img/wide.png'DXmm=30:DYmm=10:#IMG)", 30 * mm, 10 * mm, 0},
      {"#IMG('.hidden.png'DXmm=30:DYmm=10:#IMG)", 30 * mm, 10 * mm, 0},
      {"#IMG('img\\wide.png'DXmm=30:DYmm=10:#IMG)", 30 * mm, 10 * mm, 0},
      {"#IMG(''DXmm=30:DYmm=10:#IMG)", 30 * mm, 10 * mm, 0},
      {"#IMG(DXmm=30:DYmm=10:#IMG)", 30 * mm, 10 * mm, 0},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    busquedas = 0;
    Linea l = Dibuja(c.texto);
    EXPECT_EQ(busquedas, c.busquedas);
    EXPECT_TRUE(l.c.imagenes.empty());
    ASSERT_EQ(l.c.rayas.size(), 4u);
    const Raya& caja = l.c.rayas[0];
    EXPECT_EQ(caja.modo, ModoLinea::CajaLlena);
    EXPECT_EQ(caja.color, 240 + 240 * 256 + 240 * 65536);
    EXPECT_NEAR(caja.x2 - caja.x1, c.w, 1e-6);
    EXPECT_NEAR(caja.y2 - caja.y1, c.h, 1e-6);
    EXPECT_NEAR(caja.y2, kH, 1e-6) << "standing on the foot of the line";
    EXPECT_NEAR(l.c.rayas[1].x1 - caja.x1, kH / 4, 1e-6);  // the cross, inset
    EXPECT_EQ(l.c.rayas[1].ancho, static_cast<int>(kH / 2 / 15) + 1);
    EXPECT_EQ(l.c.rayas[3].modo, ModoLinea::Caja);
    EXPECT_NEAR(l.Construccion().Ancho, c.w + 0.04 * kH, 1e-6);
  }
}

}  // namespace
}  // namespace ss
