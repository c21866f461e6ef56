#include "typeset/motor.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/typeset/canvas_registro.h"

namespace ss {
namespace {

using test::CanvasRegistro;

// One line measured (pass 1) on a frame of `ancho` twips without margins:
// where it breaks, and its box.
std::pair<std::string, Caja> Mide(std::string_view texto, double ancho = 100000) {
  CanvasRegistro c;
  Motor m;
  m.canvas = &c;
  m.AnchoPagina = ancho;
  return {m.InterpretaTexto(texto), m.Cajas[1]};
}

// Plain characters at 12 points: 120 twips and one twip on each side.
constexpr double kLetra = 122;
constexpr double kH = 276;                   // "Hp" at 12 points
constexpr double kQuinto = 23.0 * 12 / 5;    // a fifth of "H": the gap between lines
constexpr double kOperador = 120 + 2 * 0.04 * kH;  // "+", "=" or a minus with their spacing

TEST(LineBreaking, ExactFitStaysOverflowBreaksAtTheLastBlank) {
  // 10 x 122 = 1220 is exactly the width: no break; the 11th character
  // overflows and stays; a blank, even the last fitting character, ends the
  // line it closes; a soft hyphen breaks, a fixed blank does not; a code
  // without its ":" ends the line unbroken.
  const std::pair<const char*, const char*> cases[] = {
      {"xxxxxxxxxx", ""},           {"xxxxxxxxxxx", "xxxxxxxxxxx"}, {"xxxxxxxxxxxx", "xxxxxxxxxxx"},
      {"aaaa bbbbbbbb", "aaaa "},   {"xxxxxxxxx yy", "xxxxxxxxx "}, {"ab&_cdefghijk", "ab&_"},
      {"aaaa& bbbbbbbb", "aaaa& bbbbbb"}, {"ab&FS=20 cd", ""}};
  for (const auto& [texto, corte] : cases) EXPECT_EQ(Mide(texto, 1220).first, corte) << texto;
  // Only a line breaks: an argument wider than the line is measured whole.
  const std::string ancha = "#SQR(" + std::string(12, 'a') + "#SQR)";
  EXPECT_DOUBLE_EQ(Mide(ancha, 1220).second.Ancho, Mide(ancha).second.Ancho);
}

TEST(InlineWidths, ScriptsOperatorsHyphensAndSoftHyphens) {
  struct Case { const char* texto; double ancho, alto; } cases[] = {
      {"A", kLetra, kH}, {"H__2O", 4 * kLetra, kH}, {"a&", kLetra, kH}, {"&alfa", 120, kH},
      {"A_2", kLetra + 80, kH * 1.1},      // the small 2 only; the line grows once
      {"A_2_3", kLetra + 160, kH * 1.1},
      {"780_ 000", 6 * kLetra + 80, kH},   // a thin blank between digit groups grows nothing
      {"A^2", kLetra + 80, kH},            // a superscript leaves the height alone
      {"a+b", 2 * kLetra + kOperador, kH},  // operators take side spacing
      {"2-b", 2 * kLetra + kOperador, kH},  // a minus is an operator
      {"a-b", 3 * kLetra, kH},              // before a small letter it is a plain hyphen
      {"CH-CH", 4 * kLetra + kOperador, kH},  // a bond of a chain is the dash
      {"2-ol", 4 * kLetra, kH},             // a locant takes a hyphen, as in "propan-2-ol"
      {"pent-1", 6 * kLetra, kH},
      {"x-2", 2 * kLetra + kOperador, kH},  // a lone letter is mathematics
      {"1-cos", 4 * kLetra + kOperador, kH},
      {"ab&_cd", 4 * kLetra + 120, kH},    // the hyphen is measured even where it is not drawn
      {"&Q", 480, kH}, {"C&=C", 2 * kLetra + 360, kH},  // four and three blanks wide
      {"1&E-3", kLetra + 360 + 160, kH},   // "x10" and a small exponent (the dash and 3)
      {"1&EC=SD:2", 2 * kLetra, kH},       // the sides of a ring are no power of ten
  };
  for (const auto& c : cases) {
    const Caja b = Mide(c.texto).second;
    EXPECT_DOUBLE_EQ(b.Ancho, c.ancho) << c.texto;
    EXPECT_DOUBLE_EQ(b.Alto, c.alto) << c.texto;
    EXPECT_DOUBLE_EQ(b.Eje, 0.574 * kH) << c.texto;
  }
  // A tab forgets the constructs before it.
  const double fraccion = Mide("#COC(1#N)(2#COC)").second.Ancho;
  ASSERT_GT(fraccion, 0);
  EXPECT_DOUBLE_EQ(Mide("#COC(1#N)(2#COC)x", 2000).second.Ancho, fraccion + kLetra);
  EXPECT_DOUBLE_EQ(Mide("#COC(1#N)(2#COC)&SP=50:x", 2000).second.Ancho, 1000 + kLetra);
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

std::string Repite(std::string_view s, int n) {
  std::string r;
  while (n-- > 0) r += s;
  return r;
}

// What a text prints, and the top of its last print from the top margin: 0
// on the first line, else the height of the lines above and a fifth of "H" each.
TEST(Drawing, WhatIsPrintedAndWhereTheLastLineStands) {
  const double t = 0.04 * kH;  // a rule over the text
  struct Case { std::string texto, impreso; double y; } cases[] = {
      {"1&.5 A&QB C&=C N&#N", "1.5 AB CC NN", 0},
      {"#COC(1", "*ERROR*1", 0},
      {"non-electrolyte a-b \xE9-\xE0", "non-electrolyte a-b \xE9-\xE0", 0},
      {"2-b x - 2 -a a- (-3)", "2\x96" "b x \x96 2 \x96" "a a\x96 (\x96" "3)", 0},
      {Repite("x", 70) + " poly&_ethylene", Repite("x", 70) + " poly-ethylene", kH + kQuinto},
      {"#A3V(&EC=SDS:#A3V)x&EC=S", "x", (1.5 - 0.574 + 0.05) * kH},  // the triangle's tip stands above the line
      {"H_2O&LFy", "H2Oy", 1.1 * kH + kQuinto},
      {"780_ 000&.005_ 2&LFy", "780 000.005 2y", kH + kQuinto},
      {"ab&FC=red cd&LFnext", "abnext", kH + kQuinto},  // a first line cut short
      {Repite("#SEG(i#SEG)", 60) + " end&LFy", Repite("i", 50) + "y", 2 * t + kH + kQuinto},  // 50 at most
      {Repite("x", 200), Repite("x", 200), 2 * (kH + kQuinto)},  // 82 + 82 + 36 characters
  };
  for (const auto& c : cases) {
    Pagina p(c.texto);
    EXPECT_EQ(p.c.Texto(), c.impreso) << c.texto;
    ASSERT_FALSE(p.c.trazos.empty()) << c.texto;
    EXPECT_DOUBLE_EQ(p.c.trazos.back().y - p.m.MargenSup, c.y) << c.texto;
  }
  EXPECT_EQ(Pagina("1&.5", Reemplazos{.decimal = ","}).c.Texto(), "1,5");
  // x italic; blank, =, blank, 2, y, blank upright; then x italic, = and 2 upright, y italic.
  std::string italicas;
  for (const test::Trazo& t : Pagina("&+Ix&-I = 2y &+Ix=2y&-I").c.trazos) italicas += t.fuente.cursiva ? 'i' : 'r';
  EXPECT_EQ(italicas, "irrrrrrirri");
}

TEST(Drawing, ColoursRulesAndFills) {
  EXPECT_EQ(Pagina("&FC=Rojo:x&LFy").c.trazos.at(1).color, 255);
  constexpr int32_t kBlanco = 16777215;
  struct Case { const char* texto; std::vector<int32_t> colores; } cases[] = {  // of rules and fills
      {"#REC(a#REC) &LC=Rojo:#REC(b#REC)", {0, 0, 0, 0, 255, 255, 255, 255}},
      {"&LC=Rojo:x&LF#SEG(y#SEG)", {255}},
      {"&FF=REC,20,5:x&BC=Rojo:", {kBlanco}},
      {"&BC=Rojo:&FF=REC,20,5:&LF&FF=REC,20,5:", {255, 255}},
  };
  for (const auto& c : cases) {
    Pagina q(c.texto);
    std::vector<int32_t> colores;
    for (const test::Raya& r : q.c.rayas) colores.push_back(r.color);
    EXPECT_EQ(colores, c.colores) << c.texto;
  }
  // A filled rectangle at the pen, which does not move; a width of 0 runs
  // from the left edge over the whole canvas.
  Pagina p("ab&BC=Rojo:&FF=REC,20,5.5:c&FF=REC,0,5:&FF=OVAL,3,3:");
  EXPECT_EQ(p.c.Texto(), "abc");
  ASSERT_EQ(p.c.rayas.size(), 2u);
  const test::Raya& r = p.c.rayas[0];
  EXPECT_EQ(r.modo, ModoLinea::CajaLlena);
  EXPECT_NEAR(r.x2 - r.x1, 20 / 25.4 * 1440, 1e-9);
  EXPECT_NEAR(r.y2 - r.y1, 5.5 / 25.4 * 1440, 1e-9);
  EXPECT_DOUBLE_EQ(r.x1, p.c.trazos[1].x + 121);  // behind "b"
  EXPECT_DOUBLE_EQ(p.c.trazos[2].x, p.c.trazos[1].x + kLetra);
  EXPECT_DOUBLE_EQ(p.c.rayas[1].x1, 0);
  EXPECT_NEAR(p.c.rayas[1].x2, 796 * 15, 1e-6);
  EXPECT_EQ(Pagina("A&QB C&=C N&#N").c.rayas.size(), 4u + 2u + 3u);  // arrow and bonds
}

TEST(Drawing, SymbolsScriptsPowersAndSizes) {
  Pagina p("H_2O &alfa&union 1&.5&E-3");
  const auto& t = p.c.trazos;
  EXPECT_EQ(p.c.Texto(), "H2O aU 1.5\xD7" "10\x96" "3");
  EXPECT_TRUE(t[1].fuente.tamano == 8 && t[1].y > t[0].y);  // the subscript, small and lowered
  EXPECT_EQ(t[4].fuente.nombre + t[5].fuente.nombre + t[6].fuente.nombre, "SymbolMT ExtraTimes New Roman");
  EXPECT_TRUE(t.back().fuente.tamano == 8 && t.back().y == t[t.size() - 2].y);  // the exponent, at the same top
  for (const test::Trazo& t : Pagina("#COC(1").c.trazos)
    EXPECT_EQ(t.color, t.texto == "1" ? 0 : 255) << t.texto;  // the error red, then black
  // A size or font change keeps the baseline: the ascent grows from 18 x 12
  // to 18 x 24 twips, and the top moves up by the difference.
  Pagina q("a&FS=24:b&FN=Arial:c");
  ASSERT_EQ(q.c.trazos.size(), 3u);
  EXPECT_DOUBLE_EQ(q.c.trazos[1].y, q.c.trazos[0].y - 18 * 12);
  EXPECT_EQ(q.c.trazos[2].fuente.nombre + std::to_string(q.c.trazos[1].fuente.tamano), "Arial24.000000");
  EXPECT_DOUBLE_EQ(q.c.trazos[2].y, q.c.trazos[1].y);
}

TEST(Pages, MarksFullPagesAndIndents) {
  Pagina vacio("");
  EXPECT_TRUE(vacio.c.trazos.empty() && vacio.m.marcas.empty() && vacio.m.UltimaMarca == 0);
  EXPECT_EQ(Pagina("x", {}, 0).c.trazos.at(0).fuente.tamano, 5);
  Pagina p("#MARK=007&LFhello&LF#MARK=008&LFworld");
  ASSERT_EQ(p.m.marcas.size(), 2u);
  EXPECT_EQ(p.m.marcas[0].numero * 10 + p.m.UltimaMarca, 78);
  const double paso = kH + kQuinto;
  EXPECT_DOUBLE_EQ(p.m.marcas[0].arriba, p.m.MargenSup);
  EXPECT_DOUBLE_EQ(p.m.marcas[1].arriba, p.m.MargenSup + 2 * paso);
  EXPECT_DOUBLE_EQ(p.m.marcas[0].abajo, p.m.marcas[1].arriba - kH / 8);
  EXPECT_DOUBLE_EQ(p.m.marcas[1].abajo, p.m.MargenSup + 4 * paso + kH + 276);
  // A full page ends at the line that does not fit, and flags the mark.
  Pagina llena("#MARK=001" + Repite("&LFx", 100));
  EXPECT_EQ(llena.m.UltimaMarca, -1);
  const double fondo = llena.m.AltoPagina - llena.m.MargenInf;
  ASSERT_FALSE(llena.c.trazos.empty());
  for (const test::Trazo& t : llena.c.trazos) EXPECT_LE(t.y + kH, fondo);
  EXPECT_GT(llena.c.trazos.back().y + kH + kQuinto + kH + kH, fondo);  // one more would not fit
  // An indent holds for the rest of its text, and no further.
  Pagina s("&LSAN=10:a&LFb");
  const double sangria = 10 / 25.4 * 1440 * 0.73;
  EXPECT_DOUBLE_EQ(s.c.trazos[0].x, s.m.MargenIzq + sangria + 1);
  EXPECT_DOUBLE_EQ(s.c.trazos[1].x, s.m.MargenIzq + sangria + 1);
  s.c.trazos.clear();
  s.m.ComponerTexto("c", 12, s.c);
  EXPECT_DOUBLE_EQ(s.c.trazos[0].x, s.m.MargenIzq + 1);
}

TEST(PageNumbers, PlaceAndGap) {
  for (auto [pos, texto] : {std::pair{0, "t"}, {1, " &LFt"}, {9, "t &LF"}})
    EXPECT_EQ(TextoConHuecoDeNumero("t", pos), texto);
  struct Case { int pos, pagina; bool derecha, pie; } cases[] = {{1, 1, true, false}, {2, 1, false, false}, {9, 2, true, true},
               {4, 3, true, false}, {4, 2, false, false}, {5, 3, false, false}, {13, 2, true, true}};
  for (const auto& c : cases) {
    Pagina p("");
    DibujaNumeroPagina(p.m, p.c, c.pagina, 1, c.pos);
    const test::Trazo& t = p.c.trazos.at(0);
    EXPECT_EQ(t.texto + " " + std::to_string(t.fuente.tamano), std::to_string(c.pagina) + " 11.000000");
    EXPECT_EQ(t.x == p.m.MargenIzq, !c.derecha) << c.pos << " " << c.pagina;
    EXPECT_EQ(t.y > p.m.AltoPagina / 2, c.pie) << c.pos;
  }
  Pagina centro("");
  DibujaNumeroPagina(centro.m, centro.c, 3, 10, 3);
  EXPECT_EQ(centro.c.trazos.at(0).texto, "12");
  EXPECT_DOUBLE_EQ(centro.c.trazos[0].x + 110 * 2 / 2.0, centro.m.MargenIzq + centro.m.AnchoTexto() / 2);
}

// Both passes must take box numbers in the same order and stop at the same
// place, whatever the text: deep nesting of every kind, then random pieces.
TEST(Robustness, AnyTextIsLaidOutWithoutHarmAndBothPassesAgree) {
  const std::string_view kAnidados[] = {
      "#COC(#SQR(#POT(x#PB)(#COC(1#N)(2#COC)#POT)#SQR)#N)(#NES(()a#NES)#COC)",
      "#RWS(C#RW1(#SPB(R1#T)(2#SPB)#RW1)#RW2(#ATX(a#T)(b#ATX)#RW2)#RWS)",
      "#RAD(#RI(#COC(1#N)(3#COC)#RI)#TDX(#INT(x#INT)#TDX)#RAD)",
      "#TST(a#TS)(#ST1(b#ST1)#ST2(c#ST2)#TST)#EXP(x#EXP)#VED(#CUR(y#CUR)#VED)"};
  static constexpr std::string_view kPiezas[] = {
      "#COC(", "#N)(", "#COC)", "#SQR(", "#SQR)", "#POT(", "#PB)(", "#POT)", "&FS=", "&FC=",
      ":", "&", "#", "_", "^", "-", "+", "=", " ", "a", "H", "7", "&LF", "&Q", "&E", "&SP=",
      "#MARK=", "&alfa", "&_", "##", "&&", "#RWS(", "#RW1(", "#RWS)", "(", ")", "#SEG(x#SEG)",
      "&EC="};
  std::mt19937 gen(2024);
  for (int i = 0; i < 3000; ++i) {
    std::string texto(i < 4 ? kAnidados[i] : "");
    for (int k = 0, n = static_cast<int>(gen() % 80); i >= 4 && k < n; ++k)
      texto += kPiezas[gen() % std::size(kPiezas)];
    CanvasRegistro c;
    Motor m;
    m.canvas = &c;
    m.AnchoPagina = 1e9;
    m.InterpretaTexto(texto);
    const std::pair cajas{m.NumCaja, m.LineaRota()};
    m.PasoDibujo = true;
    m.NumCaja = 1;
    m.InterpretaTexto(texto);
    EXPECT_EQ(std::pair(m.NumCaja, m.LineaRota()), cajas) << texto;
    if (i < 4) {
      EXPECT_GT(cajas.first, 6) << texto;
    }
    m.ComponerTexto(texto, 12, c);
  }
  // Deep nesting stops at the last box.
  Pagina p(Repite("#SQR(", 400) + "x" + Repite("#SQR)", 400));
  EXPECT_EQ(p.m.NumCaja, kMaxCajas);
  EXPECT_EQ(p.c.rayas.size(), 4u * kMaxCajas / 2);  // four strokes a root, two boxes
}

}  // namespace
}  // namespace ss
