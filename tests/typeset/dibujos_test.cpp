// The geometry of rings, bonds up and down, equation tables and pictures on the recording canvas:
// at 12 points a character is 120 twips wide (122 with its spacing in plain text) and "Hp" is 276 high.
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

constexpr double kH = 276, kR = 1.5 * kH, kEje = 0.574 * kH, kPi = std::numbers::pi, kMm = 1440 / 25.4;

// A stroke from (x1, y1) to (x2, y2), seen from the point (dx, dy).
void EsRaya(const Raya& r, double dx, double dy, std::array<double, 4> e) {
  EXPECT_NEAR(r.x1 - dx, e[0], 1e-6);
  EXPECT_NEAR(r.y1 - dy, e[1], 1e-6);
  EXPECT_NEAR(r.x2 - dx, e[2], 1e-6);
  EXPECT_NEAR(r.y2 - dy, e[3], 1e-6);
}

// A ring's vertex k: its start angle plus k steps, round the centre (cx, axis).
std::pair<double, double> Vertice(double cx, int n, double inicio, int k) {
  const double a = inicio + 2 * kPi * k / n;
  return {cx + kR * std::sin(a), kEje - kR * std::cos(a)};
}

TEST(Ring, VerticesBoxAndSidesForEverySizeAndOrientation) {
  const double s30 = std::cos(kPi / 6);
  const struct { const char* texto; int n; double inicio, rx, ry; } casos[] = {  // reach left and up, in R
      {"#A3V(#A3V)", 3, 0, s30, 1},           {"#A3I(#A3I)", 3, -kPi / 2, 1, s30},
      {"#A3L(#A3L)", 3, kPi / 3, s30, 0.5},   {"#A4D(#A4D)", 4, kPi / 2, 1, 1},
      {"#A5V(#A5V)", 5, 0, std::sin(2 * kPi / 5), 1}, {"#A6L(XXXXXX#A6L)", 6, kPi / 6, 1, s30},
      {"#BCH(#BCH)", 6, kPi / 6, 1, s30},    {"#A9V(#A9V)", 9, 0, std::sin(4 * kPi / 9), 1},
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
    ASSERT_GE(l.c.rayas.size(), static_cast<std::size_t>(c.n));
    for (int k = 0; k < c.n; ++k) {  // vertex to vertex round the ring, closing on the first
      const auto [ax, ay] = Vertice(c.rx * kR, c.n, c.inicio, k);
      const auto [zx, zy] = Vertice(c.rx * kR, c.n, c.inicio, k + 1);
      EsRaya(l.c.rayas[k], 0, 0, {ax, ay, zx, zy});
    }
  }
}

TEST(Ring, BenzeneHasItsCircleAndOtherRingsTheirMultipleSidesInside) {
  const double d = 0.18 * kH;  // the gap of a multiple side
  const struct { const char* texto; int n; double d; std::vector<double> interiores; } casos[] = {  // radii in d
      {"#BCV(#BCV)", 6, 0, {}},
      {"#BCH(&EC=DDT:#BCH)", 6, 0, {}},  // benzene ignores the sides
      {"#A6V(&EC=SDSSST:#A6V)", 6, d, {1, 1, 2}},
      {"#A3V(&EC=SDS:#A3V)", 3, d * 1.6, {1}},
      {"#A4V(&EC=dsss#A4V)", 4, d * 1.3, {1}},    // lower case, no ":"
      {"#A5V(&EC=SSSSSDDD:#A5V)", 5, d, {}},       // letters beyond the sides are dropped
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    const double cx = (l.Construccion().Ancho - 0.05 * kH) / 2;
    ASSERT_EQ(l.c.rayas.size(), c.n + c.interiores.size());
    for (std::size_t k = 0; k < c.interiores.size(); ++k) {
      const Raya& r = l.c.rayas[c.n + k];
      EXPECT_NEAR(std::hypot(r.x1 - cx, r.y1 - kEje), kR - c.interiores[k] * c.d, 1e-6);
      EXPECT_NEAR(std::hypot(r.x2 - cx, r.y2 - kEje), kR - c.interiores[k] * c.d, 1e-6);
    }
    const bool benceno = c.texto[1] == 'B';
    ASSERT_EQ(l.c.circulos.size(), benceno ? 1u : 0u);
    if (benceno) EsRaya({l.c.circulos[0].x, l.c.circulos[0].y, l.c.circulos[0].radio, 0}, 0, 0, {cx, kEje, 0.62 * kR, 0});
    EXPECT_TRUE(l.c.trazos.empty());
  }
}

// Bonds leaving a vertex, by its direction, and the label at the bond's end.
TEST(Ring, BondsByTheDirectionOfTheirVertexAndLabelsAtTheirEnds) {
  const double o = 0.075 * kH;
  const struct { const char* texto; int n, k; double inicio; std::vector<std::array<double, 4>> trazos; const char* rotulo; double rx, ry; } casos[] = {
      {"#A6V(SXXXXX#R1(OH#R1)#A6V)", 6, 0, 0, {{0, 0, 0, -0.6 * kH}}, "OH", -0.3 * kH, -1.45 * kH},
      {"#A6V(XSXXXX#R2(Cl#R2)#A6V)", 6, 1, 0, {{0, 0, 0.6 * kH, 0}}, "Cl", 0.7 * kH, -0.55 * kH},
      {"#A6V(XXXSXX#R4(Br#R4)#A6V)", 6, 3, 0, {{0, 0, 0, 0.54 * kH}}, "Br", -0.3 * kH, 0.5 * kH},
      {"#A6V(XXXDXX#A6V)", 6, 3, 0, {{-o, 0, -o, 0.58 * kH}, {o, 0, o, 0.58 * kH}}, "", 0, 0},
      {"#A6V(XXXXSX#R5(F#R5)#A6V)", 6, 4, 0, {{0, 0, -0.6 * kH, 0}}, "F", -0.65 * kH - 122, -0.55 * kH},
      {"#A6V(XXXXXD#A6V)", 6, 5, 0, {{0, -o, -0.6 * kH, -o}, {0, o, -0.6 * kH, o}}, "", 0, 0},
      {"#A5V(XXSXX#A5V)", 5, 2, 0, {{0, 0, 0, 0.6 * kH}}, "", 0, 0},
      {"#A5V(XXXSX#A5V)", 5, 3, 0, {{0, 0, 0, 0.45 * kH}}, "", 0, 0},
      {"#A6L(DXXXXX#R1(O#R1)#A6L)", 6, 0, kPi / 6, {{0, 0, 0, -0.6 * kH}, {0.13 * kH, 0, 0.13 * kH, -0.6 * kH}}, "O", -0.3 * kH, -1.45 * kH},
      {"#A6V(XXXXXX#R3(N#R3)#A6V)", 6, 2, 0, {}, "N", 0.7 * kH, -0.55 * kH},  // a label needs no bond
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    const auto [vx, vy] = Vertice(l.c.rayas.at(0).x1 - kR * std::sin(c.inicio), c.n, c.inicio, c.k);  // centre from vertex 0
    ASSERT_EQ(l.c.rayas.size(), c.n + c.trazos.size());
    for (std::size_t j = 0; j < c.trazos.size(); ++j) EsRaya(l.c.rayas[c.n + j], vx, vy, c.trazos[j]);
    EXPECT_EQ(l.c.Texto(), c.rotulo);
    if (*c.rotulo) {
      EXPECT_NEAR(l.c.trazos[0].x - 1 - vx, c.rx, 1e-6);  // one twip of spacing before a letter
      EXPECT_NEAR(l.c.trazos[0].y - vy, c.ry, 1e-6);
    }
  }
}

TEST(Ring, LabelsWidenTheBoxOnTheirSide) {
  const double base = 2 * std::cos(kPi / 6) * kR + 0.05 * kH;
  const Caja sin = Linea("#A6V(#A6V)").Construccion();
  EXPECT_NEAR(sin.Ancho, base, 1e-6);
  EXPECT_NEAR(Linea("#A6V(SXXXXX#R1(OH#R1)#A6V)").Construccion().Sobre - sin.Sobre, kH + 0.3 * kR, 1e-6);
  EXPECT_NEAR(Linea("#A6V(XSXXXX#R2(Cl#R2)#R3(CH_3#R3)#A6V)").Construccion().Ancho - base, 2 * 122 + 80 + 0.5 * kR, 1e-6);  // the wider
  EXPECT_NEAR(Linea("#A6V(XXXSXX#R4(Br#R4)#A6V)").Construccion().Alto - sin.Alto, kH + 0.3 * kR, 1e-6);
  const Caja izquierda = Linea("#A6V(XXXXSX#R5(F#R5)#A6V)").Construccion();  // clear of what stands before
  EXPECT_NEAR(izquierda.Adelanto, 122 + 0.5 * kR, 1e-6);
  EXPECT_NEAR(izquierda.Ancho, base, 1e-6);
}

TEST(Ring, MalformedArgumentsDrawWhatTheyCan) {
  const struct { const char* texto; std::size_t rayas; const char* impreso; } casos[] = {
      {"#A3V(SSSSSSSSS#R1(a#R1)#R2(b#R2)#R3(c#R3)#R4(d#R4)#R9(e#R9)#A3V)", 6, "abc"},  // too many
      {"#A3V(S#R1(a#R1)#R1(z#R1)#A3V)", 4, "a"},                                      // a label twice
      {"#A7D(ZQ&EC=QQ:#R0(x#R0)#A7D)", 7, ""},
      {"#A4V(&EC=#A4V)", 4, ""},
      {"#A3V(S#R1(OH#A3V)", 4, "*ERROR*"},                     // a label never closed
      {"#BCV(SXXXXX#R1(#COC(1#N)(2#COC)#R1)#BCV)", 8, "12"},  // a fraction as a label: its bar
  };
  for (const auto& c : casos) {
    Linea l(c.texto, 12, true);
    EXPECT_EQ(l.c.rayas.size(), c.rayas) << c.texto;
    EXPECT_EQ(l.c.Texto(), c.impreso) << c.texto;
  }
}

TEST(Bonds, UpAndDownFromTheAtomWithTheChainGoingOn) {
  const struct { const char* texto; std::vector<double> x; int arriba; } casos[] = {  // strokes' x from the atom's left
      {"#UDB(CSS#UDB)", {0.3 * kH, 0.3 * kH}, 1}, {"#UDB(CDX#UDB)", {0.25 * kH, 0.35 * kH}, 2},
      {"#UDB(cxt#UDB)", {0.22 * kH, 0.3 * kH, 0.38 * kH}, 0}, {"#UDB(C#UDB)", {}, 0}, {"#UDB(#UDB)", {}, 0},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l(c.texto, 12, true);
    ASSERT_EQ(l.c.rayas.size(), c.x.size());
    for (std::size_t j = 0; j < c.x.size(); ++j) {
      const Raya& r = l.c.rayas[j];
      EXPECT_NEAR(r.x1, c.x[j], 1e-6);
      if (static_cast<int>(j) < c.arriba) {  // from over the letter up to the top of the box
        EXPECT_TRUE(r.y2 < r.y1 && r.y1 <= 0.2 * kH);
        EXPECT_NEAR(l.Construccion().Sobre, -r.y2, 1e-6);
      } else {  // from under it, inside the box
        EXPECT_TRUE(r.y2 > r.y1 && r.y1 >= 0.8 * kH && l.Construccion().Alto >= r.y2);
      }
    }
  }
  // The groups' first letter on the bond, the #LP( prefix hanging left of it; the chain goes on after the atom.
  Linea l("#UDB(CSS#R1(#LP(H_3#LP)C#R1)#R2(H#R2)#UDB)H-CH_3", 12, true);
  const Caja& b = l.Construccion();
  EXPECT_TRUE(b.Ancho == 122 && b.Adelanto == 0);
  const std::vector<test::Trazo>& t = l.c.trazos;
  ASSERT_EQ(l.c.Texto(), "CH3CHH\x96" "CH3");  // the bond of the chain is the dash
  EXPECT_TRUE(t[0].x == 1 && t[3].x == 1 && t[4].x == 1) << "the atom and the groups' first letters line up";
  EXPECT_DOUBLE_EQ(t[1].x + 121 + 80, t[3].x - 1) << "H and the small 3 end where C starts";
  EXPECT_DOUBLE_EQ(t[5].x, 122 + 1) << "the chain goes on right after the atom";
  EXPECT_LT(t[3].y + 18 * 12, l.c.rayas[0].y2) << "the group up stands on its bond";
  EXPECT_GT(t[4].y, l.c.rayas[1].y2 - 0.2 * kH) << "the group down hangs from its bond";
  EXPECT_NEAR(b.Sobre, -(t[3].y), 1e-6);
}

TEST(EquationTable, ColumnsRowsPlusSignsAndTheRule) {
  // Columns: the row names (1 char), "A"/"1234", "BB"/"1", the arrow, "C"/"99"; 360 apart.
  Linea l("#CEQ(2'A + BB = C'#A11(x#A11)#A21(1234#A21)#A31(7#A31)#A52(99#A52)#CEQ)", 12, true);
  const Caja& b = l.Construccion();
  const double hueco = 360, ancho[] = {122, 4 * 122, 2 * 122, 120, 2 * 122};
  double inicio[5], x = 0;
  for (int k = 0; k < 5; ++k) inicio[k] = (x += k > 0 ? hueco : 0), x += ancho[k];
  EXPECT_DOUBLE_EQ(b.Ancho, x);
  EXPECT_DOUBLE_EQ(b.Eje, kH + 0.7 * kH);  // three rows: the middle one on the axis
  EXPECT_DOUBLE_EQ(b.Alto, 1.1 * kH + 2 * kH);
  auto en = [&](const std::string& s) {
    for (const test::Trazo& t : l.c.trazos)
      if (t.texto == s) return t;
    ADD_FAILURE() << s;
    return test::Trazo{};
  };
  const double y0 = l.m.Cajas[2].PosY;
  EXPECT_DOUBLE_EQ(y0, kEje - b.Eje);
  EXPECT_DOUBLE_EQ(en("A").x - 1, inicio[1] + (ancho[1] - 122) / 2);  // centred in the column
  EXPECT_DOUBLE_EQ(en("7").x - 1, inicio[2] + (ancho[2] - 122) / 2);
  EXPECT_DOUBLE_EQ(en("9").x - 1, inicio[4]);
  EXPECT_DOUBLE_EQ(en("x").y - y0, 1.1 * kH);  // rows H apart under the rule
  EXPECT_DOUBLE_EQ(en("9").y - y0, 2.1 * kH);
  EXPECT_EQ(std::count_if(l.c.trazos.begin(), l.c.trazos.end(), [](auto& t) { return t.texto == "+"; }), 1);
  EXPECT_NEAR(en("+").x - 0.04 * kH, inicio[2] - hueco + (hueco - 120 - 0.08 * kH) / 2, 1e-6);  // mid-gap
  ASSERT_EQ(l.c.rayas.size(), 1u);
  EXPECT_DOUBLE_EQ(l.c.rayas[0].y1 - y0, 1.05 * kH);
  EXPECT_DOUBLE_EQ(l.c.rayas[0].x2 - l.c.rayas[0].x1, b.Ancho);

  const struct { const char* texto; const char* impreso; std::size_t rayas; } casos[] = {
      {"#CEQ(#CEQ)", "", 0}, {"#CEQ(3#CEQ)", "", 0},
      {"#CEQ(1'a == b'#A21(q#A21)#CEQ)", "aqb", 5},  // the equilibrium arrow: four strokes and the rule
      {"#CEQ(0'a &als b'#CEQ)", "a\xAC" "b", 0},
      {"#CEQ(0'a + b + c + d + e + f + g + h + i + j = k'#CEQ)", "a+b+c+d+e+f+g+h", 0},  // nine columns
      {"#CEQ(1'a + b = c'#A91(z#A91)#A12(y#A12)#CEQ)", "a+b\xAE" "c", 1},                // cells beyond
      {"#CEQ(1'a = b'#A21(q#CEQ)", "a*ERROR*\xAE" "b", 1},
  };
  for (const auto& c : casos) {
    Linea e(c.texto, 12, true);
    EXPECT_EQ(e.c.Texto(), c.impreso) << c.texto;
    EXPECT_EQ(e.c.rayas.size(), c.rayas) << c.texto;
  }
}

// A picture folder and a scratch folder with pictures of known sizes.
struct Pictures : ::testing::Test {
  QTemporaryDir programa, temporal;
  int busquedas = 0;
  void SetUp() override {
    QDir(programa.path()).mkdir("img");
    QImage ancha(200, 100, QImage::Format_RGB32), alta(50, 100, QImage::Format_RGB32);
    ancha.fill(Qt::red), alta.fill(Qt::blue);
    ASSERT_TRUE(ancha.save(programa.path() + "/img/wide.png") && alta.save(temporal.path() + "/Tall.gif", "PNG"));
    ASSERT_TRUE(alta.save(temporal.path() + "/wide.png"));  // the program's own wins
    QFile roto(programa.path() + "/img/broken.png");
    ASSERT_TRUE(roto.open(QIODevice::WriteOnly) && roto.write("\x89PNG not really") > 0);
  }
  Linea Dibuja(const std::string& texto) {
    const auto busca = BuscadorDeImagenes(Carpetas{programa.path(), temporal.path()});
    return Linea(texto, 12, true, [this, busca](const std::string& n) { return ++busquedas, busca(n); });
  }
};

TEST_F(Pictures, SizedFromMillimetresKeepingTheirShapeUnlessDistorted) {
  const struct { std::string texto; QString fichero; double w, h, alto; } casos[] = {  // drawn w by h; box height
      {"#IMG('wide.png'DXmm=20:DYmm=20:#IMG)", "/img/wide.png", 20 * kMm, 10 * kMm, kH},
      {"#IMG('WIDE.PNG' dymm=10: dxmm=40:#IMG)", "/img/wide.png", 20 * kMm, 10 * kMm, kH},
      {"#IMG(DIST'wide.png'DXmm=20:DYmm=20:#IMG)", "/img/wide.png", 20 * kMm, 20 * kMm, kH},
      {"#IMG('tall.gif'DXmm=20:DYmm=20:#IMG)", "Tall.gif", 10 * kMm, 20 * kMm, kH},
      {"#IMG('wide.png'DXmm=22:DYmm=-22:#IMG)", "/img/wide.png", 22 * kMm, 11 * kMm, 0},  // hanging from one line up
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    Linea l = Dibuja(c.texto);
    const Caja& b = l.Construccion();
    const double y = c.alto ? kH - c.h : -kH;
    EXPECT_NEAR(b.Ancho, c.w, 1e-6);
    EXPECT_NEAR(b.Sobre, c.alto ? c.h - kH : -c.h - kH, 1e-6);
    EXPECT_NEAR(b.Alto, c.alto, 1e-6);
    EXPECT_DOUBLE_EQ(b.Eje, kEje);
    ASSERT_EQ(l.c.imagenes.size(), 1u);
    const test::Imagen& i = l.c.imagenes[0];
    EXPECT_EQ(QString::fromStdString(i.ruta), c.fichero.startsWith('/') ? programa.path() + c.fichero : temporal.path() + "/" + c.fichero);
    EsRaya({i.x, i.y, i.x + i.ancho, i.y + i.alto}, 0, 0, {0, y, c.w, y + c.h});
    EXPECT_TRUE(l.c.rayas.empty()) << "no frame unless asked";
  }
  Linea m = Dibuja("#IMG('wide.png'DXmm=20:DYmm=10:MARCO#IMG)");  // a frame widens the box by its thickness
  EXPECT_NEAR(m.Construccion().Adelanto, 0.04 * kH, 1e-6);
  EXPECT_NEAR(m.Construccion().Ancho, 20 * kMm + 0.04 * kH, 1e-6);
  ASSERT_EQ(m.c.rayas.size(), 1u);
  EXPECT_EQ(m.c.rayas[0].modo, ModoLinea::Caja);
}

TEST_F(Pictures, AMissingOrUnreadablePictureIsAGreyBoxWithACrossAndAFrame) {
  const struct { std::string texto; double w, h; int busquedas; } casos[] = {  // one look-up a pass, none for a path
      {"#IMG('nada.gif'#IMG)", 1440, 1080, 2},
      {"#IMG('wide.png'DXmm=20:#IMG)", 1440, 1080, 2},  // a size missing
      {"#IMG('broken.png'DXmm=30:DYmm=10:#IMG)", 30 * kMm, 10 * kMm, 2},
      {"#IMG('../img/wide.png'DXmm=30:DYmm=10:#IMG)", 30 * kMm, 10 * kMm, 0},
      {"#IMG('.hidden.png'DXmm=30:DYmm=10:#IMG)", 30 * kMm, 10 * kMm, 0},
      {"#IMG('img\\wide.png'DXmm=30:DYmm=10:#IMG)", 30 * kMm, 10 * kMm, 0},
      {"#IMG(''DXmm=30:DYmm=10:#IMG)", 30 * kMm, 10 * kMm, 0},
      {"#IMG(DXmm=30:DYmm=10:#IMG)", 30 * kMm, 10 * kMm, 0},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.texto);
    busquedas = 0;
    Linea l = Dibuja(c.texto);
    EXPECT_EQ(busquedas, c.busquedas);
    EXPECT_TRUE(l.c.imagenes.empty());
    ASSERT_EQ(l.c.rayas.size(), 4u);
    const Raya& caja = l.c.rayas[0];
    EXPECT_TRUE(caja.modo == ModoLinea::CajaLlena && caja.color == 240 + 240 * 256 + 240 * 65536);
    EsRaya(caja, caja.x1, 0, {0, kH - c.h, c.w, kH});  // standing on the foot of the line
    EXPECT_NEAR(l.c.rayas[1].x1 - caja.x1, kH / 4, 1e-6);  // the cross, inset
    EXPECT_EQ(l.c.rayas[1].ancho, static_cast<int>(kH / 2 / 15) + 1);
    EXPECT_EQ(l.c.rayas[3].modo, ModoLinea::Caja);
    EXPECT_NEAR(l.Construccion().Ancho, c.w + 0.04 * kH, 1e-6);
  }
}

}  // namespace
}  // namespace ss
