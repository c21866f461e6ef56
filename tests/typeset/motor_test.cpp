#include "typeset/motor.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/typeset/canvas_registro.h"

namespace ss {
namespace {

using test::CanvasRegistro;

// One line measured (pass 1) on a frame of `ancho` twips without margins.
struct Medicion {
  std::string corte;
  Caja caja;
};
Medicion Mide(std::string_view texto, double ancho = 100000) {
  CanvasRegistro c;
  Motor m;
  m.canvas = &c;
  m.AnchoPagina = ancho;
  m.PasoDibujo = false;
  m.NumCaja = 1;
  Medicion r;
  r.corte = m.InterpretaTexto(texto);
  r.caja = m.Cajas[1];
  return r;
}

// Plain characters at 12 points: 120 twips and one twip on each side.
constexpr double kLetra = 122;
constexpr double kH = 276;  // "Hp" at 12 points

TEST(LineBreaking, ExactFitStaysOverflowBreaksAtTheLastBlank) {
  struct Case {
    const char* texto;
    const char* corte;
  } cases[] = {
      {"xxxxxxxxxx", ""},                // 10 x 122 = 1220: exactly the width, no break
      {"xxxxxxxxxxx", "xxxxxxxxxxx"},    // the 11th overflows and stays on the line
      {"xxxxxxxxxxxx", "xxxxxxxxxxx"},
      {"aaaa bbbbbbbb", "aaaa "},        // the blank ends the line it closes
      {"xxxxxxxxx yy", "xxxxxxxxx "},    // a blank as the last fitting character stays there
      {"ab&_cdefghijk", "ab&_"},         // a soft hyphen is a break too
      {"aaaa& bbbbbbbb", "aaaa& bbbbbb"},  // a fixed blank is not
  };
  for (const auto& c : cases) EXPECT_EQ(Mide(c.texto, 1220).corte, c.corte) << c.texto;
}

TEST(InlineWidths, ScriptsOperatorsAndSoftHyphens) {
  struct Case {
    const char* texto;
    double ancho;
    double alto;
  } cases[] = {
      {"A", kLetra, kH},
      {"A_2", kLetra + 80, kH * 1.1},      // the small 2 only; the line grows once
      {"A_2_3", kLetra + 160, kH * 1.1},
      {"A^2", kLetra + 80, kH},            // a superscript leaves the height alone
      {"a+b", 2 * kLetra + 120 + 2 * 0.04 * kH, kH},  // operators take side spacing
      {"a-b", 2 * kLetra + 120 + 2 * 0.04 * kH, kH},
      {"ab&_cd", 4 * kLetra + 120, kH},    // the hyphen is measured even where it is not drawn
      {"H__2O", 4 * kLetra, kH},
      {"a&", kLetra, kH},
      {"&alfa", 120, kH},
      {"&Q", 480, kH},                     // four blanks wide
      {"C&=C", 2 * kLetra + 360, kH},      // three blanks wide
      {"1&E-3", kLetra + 360 + 160, kH},   // "x10" and a small exponent (the dash and 3)
  };
  for (const auto& c : cases) {
    const Medicion m = Mide(c.texto);
    EXPECT_DOUBLE_EQ(m.caja.Ancho, c.ancho) << c.texto;
    EXPECT_DOUBLE_EQ(m.caja.Alto, c.alto) << c.texto;
    EXPECT_DOUBLE_EQ(m.caja.Eje, 0.574 * kH) << c.texto;
  }
}

TEST(InlineWidths, ATabForgetsTheConstructsBeforeIt) {
  const double fraccion = Mide("#COC(1#N)(2#COC)").caja.Ancho;
  ASSERT_GT(fraccion, 0);
  EXPECT_DOUBLE_EQ(Mide("#COC(1#N)(2#COC)x", 2000).caja.Ancho, fraccion + kLetra);
  EXPECT_DOUBLE_EQ(Mide("#COC(1#N)(2#COC)&SP=50:x", 2000).caja.Ancho, 1000 + kLetra);
}

TEST(InlineWidths, ACodeWithoutItsColonEndsTheLine) {
  EXPECT_EQ(Mide("ab&FS=20 cd").corte, "");
  CanvasRegistro c;
  Motor m;
  m.ComponerTexto("ab&FC=red cd&LFnext", 12, c);
  EXPECT_EQ(c.Texto(), "abnext");
}

// A whole text composed on the recording canvas.
struct Pagina {
  CanvasRegistro c;
  Motor m;
  explicit Pagina(std::string_view texto, Reemplazos r = {}, double tamano = 12) {
    m.reemplazos = r;
    m.ComponerTexto(texto, tamano, c);
  }
};

TEST(Drawing, ItalicAndUprightCharacters) {
  Pagina p("&+Ix&-I = 2y &+Ix=2y&-I");
  std::string italicas;
  for (const test::Trazo& t : p.c.trazos) italicas += t.fuente.cursiva ? 'i' : 'r';
  // x italic; blank, =, blank, 2, y, blank upright; then x italic, = and 2 upright, y italic.
  EXPECT_EQ(p.c.Texto(), "x = 2y x=2y");
  EXPECT_EQ(italicas, "irrrrrrirri");
}

TEST(Drawing, ReplacementCodesFollowTheSettings) {
  Reemplazos r;
  r.decimal = ",";
  EXPECT_EQ(Pagina("1&.5", r).c.Texto(), "1,5");
  EXPECT_EQ(Pagina("1&.5").c.Texto(), "1.5");
}

TEST(Drawing, ColoursRunOverLineEnds) {
  Pagina p("&FC=Rojo:x&LFy");
  ASSERT_EQ(p.c.trazos.size(), 2u);
  EXPECT_EQ(p.c.trazos[0].color, 255);
  EXPECT_EQ(p.c.trazos[1].color, 255);
  EXPECT_GT(p.c.trazos[1].y, p.c.trazos[0].y);
}

TEST(Drawing, AnUnclosedConstructShowsTheErrorInRedAndGoesOnInBlack) {
  Pagina p("#COC(1");
  EXPECT_EQ(p.c.Texto(), "*ERROR*1");
  for (const test::Trazo& t : p.c.trazos) EXPECT_EQ(t.color, t.texto == "1" ? 0 : 255) << t.texto;
}

TEST(Drawing, SymbolsSubscriptsAndPowers) {
  Pagina p("H_2O &alfa&union 1&.5&E-3");
  std::vector<std::string> fuentes;
  for (const test::Trazo& t : p.c.trazos) fuentes.push_back(t.fuente.nombre);
  EXPECT_EQ(p.c.Texto(), "H2O aU 1.5\xD7" "10\x96" "3");
  EXPECT_EQ(p.c.trazos[1].fuente.tamano, 8);  // the subscript
  EXPECT_GT(p.c.trazos[1].y, p.c.trazos[0].y);
  EXPECT_EQ(fuentes[4], "Symbol");
  EXPECT_EQ(fuentes[5], "MT Extra");
  EXPECT_EQ(fuentes[6], "Times New Roman");
  EXPECT_EQ(p.c.trazos.back().fuente.tamano, 8);  // the exponent
  EXPECT_EQ(p.c.trazos.back().y, p.c.trazos[p.c.trazos.size() - 2].y);  // at the same top
  // The dash of a minus sign is character 150.
  EXPECT_EQ(Pagina("a-b").c.Texto(), "a\x96" "b");
}

TEST(Drawing, ASizeOrFontChangeKeepsTheBaseline) {
  Pagina p("a&FS=24:b&FN=Arial:c");
  ASSERT_EQ(p.c.trazos.size(), 3u);
  // The ascent grows from 18 x 12 to 18 x 24 twips: the top moves up by the difference.
  EXPECT_DOUBLE_EQ(p.c.trazos[1].y, p.c.trazos[0].y - 18 * 12);
  EXPECT_EQ(p.c.trazos[1].fuente.tamano, 24);
  EXPECT_EQ(p.c.trazos[2].fuente.nombre, "Arial");
  EXPECT_DOUBLE_EQ(p.c.trazos[2].y, p.c.trazos[1].y);
}

TEST(Drawing, FilledRectanglesInTheBackgroundColour) {
  Pagina p("ab&BC=Rojo:&FF=REC,20,5.5:c&FF=REC,0,5:&FF=OVAL,3,3:");
  EXPECT_EQ(p.c.Texto(), "abc");
  ASSERT_EQ(p.c.rayas.size(), 2u);
  const test::Raya& r = p.c.rayas[0];
  EXPECT_EQ(r.modo, ModoLinea::CajaLlena);
  EXPECT_EQ(r.color, 255);
  EXPECT_NEAR(r.x2 - r.x1, 20 / 25.4 * 1440, 1e-9);
  EXPECT_NEAR(r.y2 - r.y1, 5.5 / 25.4 * 1440, 1e-9);
  EXPECT_DOUBLE_EQ(r.x1, p.c.trazos[1].x + 121);  // at the pen, behind "b"
  // The pen did not move: "c" follows "b" directly.
  EXPECT_DOUBLE_EQ(p.c.trazos[2].x, p.c.trazos[1].x + kLetra);
  // A width of 0 runs from the left edge over the whole canvas.
  EXPECT_DOUBLE_EQ(p.c.rayas[1].x1, 0);
  EXPECT_NEAR(p.c.rayas[1].x2, 796 * 15, 1e-6);
}

TEST(Drawing, ArrowsAndBondsAreRules) {
  Pagina p("A&QB C&=C N&#N");
  EXPECT_EQ(p.c.Texto(), "AB CC NN");
  EXPECT_EQ(p.c.rayas.size(), 4u + 2u + 3u);
}

TEST(Pages, AnEmptyTextIsOneEmptyLineWithoutMarks) {
  Pagina p("");
  EXPECT_TRUE(p.c.trazos.empty());
  EXPECT_TRUE(p.m.marcas.empty());
  EXPECT_EQ(p.m.UltimaMarca, 0);
  Pagina cero("x", {}, 0);
  EXPECT_EQ(cero.c.trazos.at(0).fuente.tamano, 5);
}

TEST(Pages, MarksGiveTheStripsOfTheirBlocks) {
  Pagina p("#MARK=007&LFhello&LF#MARK=008&LFworld");
  EXPECT_EQ(p.m.UltimaMarca, 8);
  ASSERT_EQ(p.m.marcas.size(), 2u);
  EXPECT_EQ(p.m.marcas[0].numero, 7);
  EXPECT_EQ(p.c.Texto(), "helloworld");
  const double paso = kH + 23.0 * 12 / 5;  // a line and a fifth of "H"
  EXPECT_DOUBLE_EQ(p.m.marcas[0].arriba, p.m.MargenSup);
  EXPECT_DOUBLE_EQ(p.m.marcas[1].arriba, p.m.MargenSup + 2 * paso);
  EXPECT_DOUBLE_EQ(p.m.marcas[0].abajo, p.m.marcas[1].arriba - kH / 8);
  EXPECT_DOUBLE_EQ(p.m.marcas[1].abajo, p.m.MargenSup + 4 * paso + kH + 276);
}

TEST(Pages, AFullPageEndsAtTheLineThatDoesNotFitAndFlagsTheMark) {
  std::string texto = "#MARK=001";
  for (int i = 0; i < 100; ++i) texto += "&LFx";
  Pagina p(texto);
  EXPECT_EQ(p.m.UltimaMarca, -1);
  const double fondo = p.m.AltoPagina - p.m.MargenInf;
  ASSERT_FALSE(p.c.trazos.empty());
  for (const test::Trazo& t : p.c.trazos) EXPECT_LE(t.y + kH, fondo);
  // One more line would not have fitted.
  const double paso = kH + 23.0 * 12 / 5;
  EXPECT_GT(p.c.trazos.back().y + paso + kH + kH, fondo);
  Pagina corto("#MARK=001&LFx");
  EXPECT_EQ(corto.m.UltimaMarca, 1);
}

TEST(Pages, LongLinesWrapAndTheIndentStays) {
  Pagina p(std::string(200, 'x'));
  double y = -1;
  int lineas = 0;
  for (const test::Trazo& t : p.c.trazos)
    if (t.y != y) {
      y = t.y;
      ++lineas;
    }
  EXPECT_EQ(lineas, 3);  // 82 + 82 + 36 characters
  EXPECT_EQ(p.c.Texto(), std::string(200, 'x'));

  Pagina s("&LSAN=10:a&LFb");
  const double sangria = 10 / 25.4 * 1440 * 0.73;
  EXPECT_DOUBLE_EQ(s.c.trazos[0].x, s.m.MargenIzq + sangria + 1);
  EXPECT_DOUBLE_EQ(s.c.trazos[1].x, s.m.MargenIzq + sangria + 1);
  s.c.trazos.clear();
  s.m.ComponerTexto("c", 12, s.c);
  EXPECT_DOUBLE_EQ(s.c.trazos[0].x, s.m.MargenIzq + 1);
}

TEST(PageNumbers, PlaceAndGap) {
  EXPECT_EQ(TextoConHuecoDeNumero("t", 0), "t");
  EXPECT_EQ(TextoConHuecoDeNumero("t", 1), " &LFt");
  EXPECT_EQ(TextoConHuecoDeNumero("t", 9), "t &LF");
  struct Case {
    int pos, pagina;
    bool derecha, pie;
  } cases[] = {{1, 1, true, false}, {2, 1, false, false}, {9, 2, true, true},
               {4, 3, true, false}, {4, 2, false, false}, {5, 3, false, false}, {13, 2, true, true}};
  for (const auto& c : cases) {
    Pagina p("");
    DibujaNumeroPagina(p.m, p.c, c.pagina, 1, c.pos);
    ASSERT_EQ(p.c.trazos.size(), 1u);
    const test::Trazo& t = p.c.trazos[0];
    EXPECT_EQ(t.texto, std::to_string(c.pagina));
    EXPECT_EQ(t.x == p.m.MargenIzq, !c.derecha) << c.pos << " " << c.pagina;
    EXPECT_EQ(t.y > p.m.AltoPagina / 2, c.pie) << c.pos;
    EXPECT_EQ(t.fuente.tamano, 11);
  }
  Pagina centro("");
  DibujaNumeroPagina(centro.m, centro.c, 3, 10, 3);
  EXPECT_EQ(centro.c.trazos.at(0).texto, "12");
  EXPECT_DOUBLE_EQ(centro.c.trazos[0].x + 110 * 2 / 2.0, centro.m.MargenIzq + centro.m.AnchoTexto() / 2);
}

// Both passes must take box numbers in the same order, whatever the text.
TEST(Robustness, AnyTextIsLaidOutWithoutHarmAndBothPassesAgree) {
  static constexpr std::string_view kPiezas[] = {
      "#COC(", "#N)(", "#COC)", "#SQR(", "#SQR)", "#POT(", "#PB)(", "#POT)", "&FS=", "&FC=",
      ":", "&", "#", "_", "^", "-", "+", "=", " ", "a", "H", "7", "&LF", "&Q", "&E", "&SP=",
      "#MARK=", "&alfa", "&_", "##", "&&", "#RWS(", "#RW1(", "#RWS)", "(", ")"};
  std::mt19937 gen(2024);
  for (int i = 0; i < 3000; ++i) {
    std::string texto;
    const int n = static_cast<int>(gen() % 40);
    for (int k = 0; k < n; ++k) texto += kPiezas[gen() % std::size(kPiezas)];
    CanvasRegistro c;
    Motor m;
    m.canvas = &c;
    m.AnchoPagina = 11910;
    m.PasoDibujo = false;
    m.NumCaja = 1;
    m.InterpretaTexto(texto);
    const int cajas = m.NumCaja;
    m.PasoDibujo = true;
    m.NumCaja = 1;
    m.InterpretaTexto(texto);
    EXPECT_EQ(m.NumCaja, cajas) << texto;
    m.ComponerTexto(texto, 12, c);
  }
}

TEST(Robustness, LimitsOfALineAndOfAText) {
  std::string muchas;
  for (int i = 0; i < 300; ++i) muchas += "#SQR(x#SQR)";
  Pagina p(muchas);
  EXPECT_LE(p.m.NumCaja, kMaxCajas);
  std::string profundo;
  for (int i = 0; i < 400; ++i) profundo += "#SQR(";
  profundo += "x";
  for (int i = 0; i < 400; ++i) profundo += "#SQR)";
  Pagina q(profundo);
  EXPECT_LE(q.m.NumCaja, kMaxCajas);
  std::string lineas;
  for (int i = 0; i < 20000; ++i) lineas += "&LF";
  Pagina r(lineas);
  EXPECT_TRUE(r.c.trazos.empty());
}

}  // namespace
}  // namespace ss
