#include "typeset/markup.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ss {
namespace {

TEST(LeeColor, NumbersTriplesAndNames) {
  struct Case { const char* texto; int32_t color; } cases[] = {
      {"255;0;0", 255},           {" 255; 255; 255", 16777215}, {"0;0;255", 16711680},
      {"16711680", 16711680},     {"Rojo", 255},                {"red", 255},
      {" BLANCO ", 16777215},     {"violeta", 128 + 65536 * 255}, {"canelo", 128 + 256 * 64},
      {"naranjado", 255 + 256 * 128}, {"purple", 0},            {"", 0},
      {"1e3", 1000},              {"300;-5;127.5", 255 + 65536 * 128},
      {"1;2", 1 + 256 * 2},       {"99999999999", 16777215},
  };
  for (const auto& c : cases) EXPECT_EQ(LeeColor(c.texto), c.color) << c.texto;
}

TEST(ExtraeBloque, FindsTheMatchingCloseOrGivesTheErrorBlock) {
  struct Case { const char *texto, *open, *close, *bloque; bool valido; } cases[] = {
      {"#COC(1#N)(2#COC) tail", "#COC(", "#COC)", "#COC(1#N)(2#COC)", true},
      {"#COC(1#N)(#COC(2#N)(3#COC)#COC)x", "#COC(", "#COC)", "#COC(1#N)(#COC(2#N)(3#COC)#COC)", true},
      {"#COC(#COC(a#N)(b#COC)#N)(c#COC)", "#COC(", "#N)", "#COC(#COC(a#N)(b#COC)#N)", true},
      {"#COC(1", "#COC(", "#COC)", "#COC(&FC=Rojo:*ERROR*&FC=Negro:#COC)", false},
      {"#COC(#COC(1#COC)", "#COC(", "#COC)", "#COC(&FC=Rojo:*ERROR*&FC=Negro:#COC)", false},
      {"no tags", "#SQR(", "#SQR)", "#SQR(&FC=Rojo:*ERROR*&FC=Negro:#SQR)", false},
      {"x #SQR(a#SQR)#SQR)", "#SQR(", "#SQR)", "#SQR(a#SQR)", true},
      {"#SQR) #SQR(a##SQ#N)(#SQR)b", "#SQR(", "#SQR)", "#SQR(a##SQ#N)(#SQR)", true},
      {"#SQR(#SQR(#SQR(x#SQR)#SQR)", "#SQR(", "#SQR)", "#SQR(&FC=Rojo:*ERROR*&FC=Negro:#SQR)", false},
  };
  for (const auto& c : cases) {
    bool valido = !c.valido;
    EXPECT_EQ(ExtraeBloque(c.texto, c.open, c.close, &valido), c.bloque) << c.texto;
    EXPECT_EQ(valido, c.valido) << c.texto;
  }
}

TEST(SustituyeCodigos, ReplacesTheNotationCodesInOrder) {
  const Reemplazos r{.decimal = ",", .lista = ";", .abre = "]", .cierra = "["};
  const std::pair<const char*, const char*> cases[] = {
      {"1&.5&, 2&.5", "1,5; 2,5"}, {"&(0&, 1&)", "]0; 1["},  {"a &\xB7 b &: c", "a \xD7 b \xF7 c"},
      {"&DT = 2", "&sigma = 2"},   {"5 &SM, &NSM, &NPM", "5 $, dollar, dollars"},
      {"&sen x &and y", "sin x and y"}, {"no codes", "no codes"},
  };
  for (const auto& [texto, esperado] : cases) EXPECT_EQ(SustituyeCodigos(texto, r), esperado);
}

TEST(BuscaSimbolo, TheFirstNameInTableOrderWins) {
  struct Case { const char *texto, *nombre; bool mtExtra; unsigned char caracter; } cases[] = {
      {"alfa", "alfa", false, 'a'},     {"Deltap", "Delta", false, 'D'},
      {"vacio", "vacio", false, 198},   {"rho", "rho", false, 'r'},
      {"ro", "ro", false, 'r'},         {"union", "union", true, 'U'},
      {"comp", "comp", true, 'o'},      {"<=x", "<=", false, 163},
      {"Ypsilon", "Ypsilon", false, 161}, {"fi", "fi", false, 'j'},
  };
  for (const auto& c : cases) {
    auto s = BuscaSimbolo(c.texto);
    ASSERT_TRUE(s) << c.texto;
    EXPECT_EQ(std::tuple(s->nombre, s->mtExtra, s->caracter), std::tuple(c.nombre, c.mtExtra, c.caracter));
  }
  for (const char* nada : {"Q", "", "alf"}) EXPECT_FALSE(BuscaSimbolo(nada)) << nada;
}

}  // namespace
}  // namespace ss
