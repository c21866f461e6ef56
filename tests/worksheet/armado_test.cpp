// Page assembly: blocks and their labels, paging, the page text, shuffling and making the texts.
#include "worksheet/armado.h"
#include <gtest/gtest.h>
#include <cstdio>
#include <set>
#include "modules/modulos.h"
#include "problems/texto.h"
#include "tests/worksheet/banco.h"

namespace ss {
namespace {

using test::Banco;

std::string Etiqueta(const std::string& n) { return "&BC= 255; 255; 255:&FF=REC,20,5.5:" + n + " &BC=Blanco:&FF=REC,20,5.5:"; }

TEST(ArmarBloques, BlocksFollowWhereTheSolutionsGo) {
  const std::string e1 = "#MARK=001&+B" + Etiqueta("1") + "&-B& First.&LF", r1 = e1 + "&+IAnswer&-I:& S1&LF&LF";
  // The second solution, the third statement's length, each block's problem and origin, the first texts.
  const struct { int possol; std::string sol2; std::size_t largo; std::vector<int> problemas, origenes; std::vector<std::string> textos; } casos[] = {
      {0, "S2&LF", 5, {1, 2, 3}, {1, 2, 3}, {e1 + "&LF"}},
      {1, "", 512, {1, 2, 3}, {1, 2, 3}, {r1, "#MARK=002&+B" + Etiqueta("2") + "&-B& Second.&LF&+IAnswer&-I:& &LF"}},
      {1, "", 513, {1, 2, 3, -3}, {1, 2, 3, 3},
       {r1, "", "#MARK=003&+B" + Etiqueta("3") + "&-B& " + std::string(513, 'e') + "&LF", "#MARK=004&+IAnswer&-I:& S3&LF&LF"}},
      // A problem without a solution has no entry, and the entries count on.
      {2, "", 5, {1, 2, 3, -1, -2}, {1, 2, 3, 1, 3},
       {e1 + "&LF", "", "", "#MARK=004&+BAnswers:&-B&LF &+B" + Etiqueta("1") + "&-B& S1&LF", "#MARK=005 &+B" + Etiqueta("3") + "&-B& S3&LF"}},
      {3, "S2&LF", 5, {1, 2, 3, -1, -2, -3}, {1, 2, 3, 1, 2, 3}, {e1 + "&LF"}},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.possol);
    Banco e(c.possol);
    for (auto [enu, sol] : {std::pair{std::string("First.&LF"), std::string("S1&LF")}, {"Second.&LF", c.sol2}, {std::string(c.largo, 'e'), "S3&LF"}})
      e.Agrega(enu, sol);
    e.doc.ruta = "/tmp/kept.col";
    ArmarBloques(e.s, 0);
    EXPECT_EQ(e.Campo(&Bloque::Problema), c.problemas);
    EXPECT_EQ(e.Campo(&Bloque::Origen), c.origenes);
    for (std::size_t i = 0; i < c.textos.size(); ++i) EXPECT_TRUE(c.textos[i].empty() || e.doc.bloques[i].Texto == c.textos[i]) << i;
    EXPECT_TRUE(e.doc.Modificada && e.doc.ruta == "/tmp/kept.col");  // only new texts lose their file
  }
  // Without any solution there is no heading either; a long solution too takes a block of its own.
  for (auto [possol, enu, sol, bloques] : {std::tuple{2, 1, 0, 1u}, {3, 1, 0, 1u}, {1, 10, 512, 1u}, {1, 10, 513, 2u}, {1, 2000, 0, 2u}}) {
    Banco e(possol);
    e.Agrega(std::string(enu, 'e'), std::string(sol, 's'));
    ArmarBloques(e.s, 0);
    EXPECT_EQ(e.doc.bloques.size(), bloques) << possol << " " << enu << "/" << sol;
  }
}

TEST(ArmarBloques, LabelsTakePrefixSuffixFirstNumberAndColour) {
  Banco e;
  std::tie(e.col().cab.PROINI, e.col().cab.PROPRE, e.col().cab.PROSUF) = std::make_tuple(5, "P", ")");
  for (int i = 0; i < 3; ++i) e.Agrega("x&LF", "");
  for (auto [color, fondo] : {std::pair{0x123456, "&BC= 86; 52; 18:"}, {0xFF0000, "&BC= 0; 0; 255:"}}) {  // red lowest
    e.col().cab.COLRESPRO = color;
    ArmarBloques(e.s, 0);
    EXPECT_EQ(e.doc.bloques[2].Texto, "#MARK=003&+B" + std::string(fondo) + "&FF=REC,20,5.5:P7) &BC=Blanco:&FF=REC,20,5.5:&-B& x&LF&LF");
  }
}

// Real problems from the gases, formulas and solutions module.
void LlenaConProblemasReales(Banco& e, int cuantos) {
  Arbol arbol;
  arbol.Agrega(ArbolItem{}).Tipo = 6;
  int resto = cuantos;
  for (int rutina : {1, 2, 4, 6, 9, 11, 19}) {
    ArbolItem& f = arbol.Agrega(ArbolItem{2, false, false, "", "", static_cast<int16_t>(rutina), "ANEU_QUIM_DIS", true});
    std::tie(f.Cantidad1, f.Cantidad2) = std::tuple(static_cast<int16_t>(rutina == 19 ? resto : cuantos / 7), 4);
    resto -= f.Cantidad1;
  }
  Aleatorio rnd(static_cast<uint64_t>(cuantos) * 31 + 5);
  Arbol_to_Var(arbol, e.doc.col, rnd);
}

// Pages are filled in block order with none skipped, no page runs over unless it holds one cut block alone,
// and no page had room for the first block of the next (the page number's free line where its code puts it).
void CompruebaPaginas(Banco& e, std::set<int> cortados = {}) {
  const std::vector<Bloque>& bl = e.doc.bloques;
  ASSERT_FALSE(bl.empty());
  for (std::size_t i = 1; i < bl.size(); ++i) ASSERT_TRUE(bl[i].Pagina - bl[i - 1].Pagina == 0 || bl[i].Pagina - bl[i - 1].Pagina == 1) << i;
  EXPECT_EQ(bl.front().Pagina * 1000 + bl.back().Pagina, 1000 + e.doc.numPaginas);
  EXPECT_EQ(std::set<int>(e.doc.cortados.begin(), e.doc.cortados.end()), cortados);
  const int pos = e.doc.col.cab.POSNUMPAG;
  auto sol = std::find_if(bl.begin(), bl.end(), [](const Bloque& b) { return b.Problema < 0; });
  if (e.doc.col.cab.POSSOL == 3 && sol != bl.begin() && sol != bl.end()) { EXPECT_GT(sol->Pagina, (sol - 1)->Pagina); }  // own page
  for (int p = 1; p <= e.doc.numPaginas; ++p) {
    std::string pagina = CabeceraTexto(e.doc.col.cab);
    const Bloque *primero = nullptr, *ultimo = nullptr, *siguiente = nullptr;
    for (const Bloque& b : bl) {
      if (b.Pagina == p) pagina += b.Texto, ultimo = &b, primero = primero ? primero : &b;
      if (b.Pagina == p + 1 && !siguiente) siguiente = &b;
    }
    const bool cortado = primero == ultimo && cortados.count(static_cast<int>(primero - bl.data()) + 1);
    EXPECT_EQ(e.Compone(pagina.substr(0, pagina.size() - 3)) > 0, !cortado) << "page " << p;  // the closing feed draws nothing
    if (!siguiente) continue;
    if (e.doc.col.cab.POSSOL == 3 && ultimo->Problema > 0 && siguiente->Problema < 0) continue;
    pagina += siguiente->Texto;
    EXPECT_LT(e.Compone((pos & 8) ? pagina + " &LF" : pos != 0 ? " &LF" + pagina : pagina), 0) << "page " << p << " had room for more";
  }
}

TEST(ArmarBloques, AThousandBlocksKeepTheLastThreeDigitsOfTheirMarks) {
  Banco e(1);
  for (int i = 0; i < 500; ++i) e.Agrega(std::string(600, 'w'), "s&LF");  // two blocks each
  ArmarBloques(e.s, 0);
  ASSERT_EQ(e.doc.bloques.size(), 1000u);
  char marca[16];
  for (std::size_t i = 0; i < e.doc.bloques.size(); ++i)
    ASSERT_EQ(e.doc.bloques[i].Texto.substr(0, 9), (std::snprintf(marca, sizeof marca, "#MARK=%03zu", (i + 1) % 1000), marca));
  const std::vector<int> paginas = e.Campo(&Bloque::Pagina);  // the block marked 000 is placed too
  EXPECT_TRUE(std::is_sorted(paginas.begin(), paginas.end()) && paginas.front() == 1 && paginas.back() == e.doc.numPaginas);
}

TEST(Paginar, RealProblemsFillWholePagesInOrder) {
  for (auto [possol, posnumpag, cuantos, titulo] : {std::tuple{1, 9, 280, "Problems of Chemistry"}, {0, 0, 280, ""}, {2, 1, 280, "T"}, {3, 11, 280, ""}, {1, 9, 105, ""}}) {
    SCOPED_TRACE(possol);
    Banco e(possol, posnumpag);
    std::tie(e.col().cab.TITULO, e.col().cab.ORDENA) = std::tuple(titulo, kVerdadero);
    LlenaConProblemasReales(e, cuantos);
    CrearColeccion(e.s, 0);
    for (const Problema& p : e.doc.col.problemas) ASSERT_EQ(p.Enunciado.find("<ERROR"), std::string::npos);
    EXPECT_GT(e.doc.numPaginas, 5);
    CompruebaPaginas(e);
  }
}

// A free line at the foot only counts when the whole rest fits; at the head it always takes a line.
// In small type far more than 49 blocks fit on a page.
TEST(Paginar, TheNumbersFreeLineGoesByItsCodeAndPagesFillPastTheWindowOf49) {
  auto enPagina1 = [](int posnumpag, int cuantos) {
    Banco e(0, posnumpag);
    e.col().cab.PROPRE = "&FS=3:";
    for (int i = 0; i < cuantos; ++i) e.Agrega("x", "");
    ArmarBloques(e.s, 0);
    CompruebaPaginas(e);
    return static_cast<int>(std::count_if(e.doc.bloques.begin(), e.doc.bloques.end(), [](auto& b) { return b.Pagina == 1; }));
  };
  const int lleno = enPagina1(0, 400);
  ASSERT_TRUE(lleno > 3 * 49 && lleno < 400) << lleno;
  for (int pie : {9, 8, 12}) EXPECT_EQ(enPagina1(pie, 400), lleno) << pie;
  for (int cabeza : {1, 3, 16}) EXPECT_LT(enPagina1(cabeza, 400), lleno) << cabeza;
  ASSERT_EQ(enPagina1(0, lleno - 1), lleno - 1);
  EXPECT_EQ(enPagina1(9, lleno - 1), lleno - 2) << "what just fits without a number loses a block to the foot's line";
}

TEST(Paginar, ABlockTallerThanAPageIsCutOnAPageOfItsOwn) {
  std::string lineas;
  for (int i = 0; i < 120; ++i) lineas += "line " + std::to_string(i) + "&LF";
  const struct { int possol, donde, proini; std::string alto, aviso; } casos[] = {
      {0, 0, 1, lineas, "Problem 1 is taller than a page: it has page 1 to itself"},
      {0, 5, 1, lineas, "Problem 6 is taller than a page: it has page 2 to itself"},
      {3, 1, 10, lineas, "Problem 11 is taller than a page: it has page 2 to itself"},
      {1, 2, 1, std::string(1 << 20, 'w'), "Problem 3 is taller than a page: it has page 2"},
  };
  for (const auto& c : casos) {
    SCOPED_TRACE(c.aviso);
    Banco e(c.possol, 9);
    e.col().cab.PROINI = c.proini;
    for (int i = 0; i < 10; ++i) e.Agrega(i == c.donde ? c.alto : "Short.&LF", "S&LF");
    ArmarBloques(e.s, 0);
    int bloque = 1;
    while (e.doc.bloques[static_cast<std::size_t>(bloque - 1)].Origen != c.donde + 1) ++bloque;
    CompruebaPaginas(e, {bloque});
    EXPECT_EQ(AvisoCorte(e.doc, bloque, e.textos).rfind(c.aviso, 0), 0u) << AvisoCorte(e.doc, bloque, e.textos);
    EXPECT_EQ(AvisoCorte(e.doc, 0, e.textos), "");
  }
}

TEST(Paginar, ProgressAndTheCurrentPageFollowTheHint) {
  Banco e(1);
  for (int i = 0; i < 150; ++i) e.Agrega("Problem text.&LFSecond line.&LF", "Answer text.&LF");
  ArmarBloques(e.s, 0);
  ASSERT_GT(e.doc.numPaginas, 3);
  EXPECT_EQ(e.pl.progreso.size(), std::size_t(e.doc.numPaginas - 1));
  for (int p = 1; p < e.doc.numPaginas; ++p) EXPECT_EQ(e.pl.progreso.at(p - 1), "Page 1/" + std::to_string(p));
  const int paginaDe120 = e.doc.bloques[119].Pagina;
  ASSERT_GT(paginaDe120, 1);
  for (int pista : {120, -120, 0}) {  // the sign is ignored; 0 keeps the current page
    ArmarBloques(e.s, pista);
    EXPECT_EQ(e.doc.paginaActual, paginaDe120) << pista;
  }
  ArmarBloques(e.s, 9999);  // no such problem
  EXPECT_EQ(e.doc.paginaActual + PaginaDeProblema(e.doc, INT32_MIN), 2);
  for (int actual : {e.doc.numPaginas + 1, 0}) EXPECT_EQ((e.doc.paginaActual = actual, PaginaDeProblema(e.doc, 0)), 1);
}

TEST(TextoPagina, TitleBlockBlocksAndTheFreeLineOfTheNumber) {
  Banco e;
  EXPECT_EQ(CabeceraTexto(ColeccionCab{}), "");
  e.col().cab.POSTI2 = "Only";
  EXPECT_EQ(CabeceraTexto(e.col().cab), "&-B&FN=Arial:&FS=10:Only&FN=Times New Roman:&LF&FS=12:&LF");
  std::tie(e.col().cab.TITULO, e.col().cab.PRETIT, e.col().cab.POSTI1) = std::tie("Gases", "School", "Name:");
  const std::string cabecera = "&-B&FN=Arial:&FS=10:School&FN=Times New Roman:&LF&LF#DOL(&+B&FN=Arial:&FS=12:Gases&SP=98: #DOL)"
                               "&FN=Times New Roman:&-B&LF&LF&-B&FN=Arial:&FS=10:Name:&FN=Times New Roman:&LF"
                               "&-B&FN=Arial:&FS=10:Only&FN=Times New Roman:&LF&FS=12:&LF";
  for (const char* t : {"One.&LF", "Two.&LF"}) e.Agrega(t, "");
  for (int pos : {0, 9, 11, 1, 3}) {
    e.col().cab.POSNUMPAG = pos;
    ArmarBloques(e.s, 0);
    const std::string cuerpo = cabecera + e.doc.bloques[0].Texto + e.doc.bloques[1].Texto;
    const std::string sinFin = cuerpo.substr(0, cuerpo.size() - 3);  // the last line feed would start an empty line
    EXPECT_EQ(TextoPagina(e.doc, 1), pos == 0 ? sinFin : (pos & 8) ? cuerpo + " " : " &LF" + sinFin) << pos;
  }
}

TEST(Barajar, SwapsRecipesNotTexts) {
  Coleccion col;
  for (int16_t i = 1; i <= 3; ++i) {
    Problema& p = col.problemas.emplace_back(Problema{"M" + std::to_string(i), i});
    p.Semilla = p.NumVariante = p.Total = p.Orden = p.Cantidad = static_cast<int16_t>(10 * i);
    p.Enunciado = "E" + std::to_string(i);
  }
  // Draws: floor(v * 3 * 0.99999) + 1. Round 1 swaps 1 and 3, rounds 2 to 4 draw 2 and 2.
  Aleatorio rnd = Aleatorio::Guionado({0.0, 0.9, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.7});
  Barajar(col, rnd);
  EXPECT_EQ(rnd.Siguiente(), 0.7) << "NPROB + 1 rounds of two draws";
  std::vector<std::vector<int>> recetas;
  for (const Problema& p : col.problemas) recetas.push_back({p.Modulo[1] - '0', p.Enunciado[1] - '0', p.Rutina, p.Semilla, p.NumVariante, p.Total, p.Orden, p.Cantidad});
  EXPECT_EQ(recetas, (std::vector<std::vector<int>>{{3, 1, 3, 30, 30, 30, 30, 30}, {2, 2, 2, 20, 20, 20, 20, 20}, {1, 3, 1, 10, 10, 10, 10, 10}}));
}

// The whole job holds AppBusy; a nested job leaves the outer one's count and controls alone.
TEST(CrearColeccion, MakesTheTextsInOrderOrShuffledAndLeavesNoFile) {
  for (int16_t ordena : {kVerdadero, int16_t{0}}) {
    Banco e(1);
    e.col().cab.ORDENA = ordena;
    LlenaConProblemasReales(e, 30);
    const std::vector<Problema> antes = e.doc.col.problemas;
    e.doc.ruta = "/tmp/old.col";
    CrearColeccion(e.s, 1);
    EXPECT_TRUE(e.doc.ruta.isEmpty() && e.doc.Modificada && e.pl.titulos.back() == TituloApp());
    EXPECT_TRUE(e.doc.AppBusy == 0 && e.pl.ocupado == std::vector<bool>({true, false}));
    EXPECT_TRUE(e.pl.dejaCorrer > 30 && e.pl.appBusyMinimo >= 1) << "events ran while not busy";
    std::multiset<std::string> a, b;
    int mismos = 0;
    GenContext referencia(&test::MensajesReales(), Aleatorio(test::kSemilla));  // one seed, recipe after recipe
    for (std::size_t i = 0; i < antes.size(); ++i) {
      const Problema& p = e.doc.col.problemas[i];
      a.insert(antes[i].Modulo + ComandoProblema(antes[i])), b.insert(p.Modulo + ComandoProblema(p));
      mismos += ComandoProblema(p) == ComandoProblema(antes[i]);
      std::string st, so;
      GeneraProblema(referencia, p.Modulo, ComandoProblema(p), st, so);
      if (ordena) { EXPECT_EQ(p.Enunciado + p.Solucion, st + so); }
    }
    EXPECT_EQ(a, b);
    EXPECT_EQ(mismos == 30, ordena != 0);
    e.pl.ocupado.clear();
    std::tie(e.pl.appBusyMinimo, e.doc.AppBusy) = std::tuple(1 << 30, 1);  // an outer job is running
    RecrearProblema(e.s, e.doc.col.problemas[0], 0, true);
    EXPECT_TRUE(e.doc.AppBusy == 1 && e.pl.ocupado.empty() && e.pl.appBusyMinimo >= 2);
  }
  Banco vacio;  // nothing without problems
  vacio.doc.ruta = "/tmp/kept.col";
  CrearColeccion(vacio.s, 1);
  EXPECT_TRUE(vacio.doc.ruta == "/tmp/kept.col" && vacio.pl.ocupado.empty());
}

TEST(Recrear, CommonOffsetsWrapOnceOneProblemOnRequestNothingWhileBusy) {
  Banco e;
  const int semillas[] = {898, 899, 900, 0, 450}, variantes[] = {8998, 8999, 9000, 0, 4000};
  for (int i = 0; i < 5; ++i) {
    e.Agrega("x", "y");  // a missing routine's notice: no draws of its own
    std::tie(e.doc.col.problemas.back().Semilla, e.doc.col.problemas.back().NumVariante) =
        std::tuple(static_cast<int16_t>(semillas[i]), static_cast<int16_t>(variantes[i]));
  }
  std::tie(e.col().cab.ORDENA, e.doc.AppBusy) = std::tuple(kVerdadero, 1);
  RecrearColeccion(e.s);
  EXPECT_EQ(e.doc.col.problemas[0].Enunciado, "x");  // busy: nothing done
  e.doc.AppBusy = 0;
  e.gen.rnd = Aleatorio::Guionado({0.5, 0.25});  // a = 4500, b = 225
  RecrearColeccion(e.s);
  std::vector<int> s, v;
  for (const Problema& p : e.doc.col.problemas) s.push_back(p.Semilla), v.push_back(p.NumVariante);
  EXPECT_EQ(s, (std::vector<int>{223, 224, 225, 225, 675}));
  EXPECT_EQ(v, (std::vector<int>{4498, 4499, 4500, 4500, 8500}));
  EXPECT_TRUE(e.doc.col.problemas[0].Enunciado != "x" && e.doc.ruta.isEmpty()) << "the texts are made again";

  Problema& p = e.doc.col.problemas[0];
  std::tie(p.Modulo, p.Rutina, p.Enunciado) = std::make_tuple("ANEU_QUIM_DIS", 2, "old");
  ArmarBloques(e.s, 0);
  std::tie(e.doc.ruta, e.doc.Modificada) = std::tuple("/tmp/kept.col", false);
  RecrearProblema(e.s, p, 1, false);
  EXPECT_NE(p.Enunciado, "old");
  EXPECT_TRUE(e.doc.bloques[0].Texto.find("old") != std::string::npos && !e.doc.Modificada) << "blocks not rebuilt";
  RecrearProblema(e.s, p, 1, true);
  EXPECT_TRUE(e.doc.bloques[0].Texto.find(p.Enunciado) != std::string::npos && e.doc.ruta.isEmpty());
}

}  // namespace
}  // namespace ss
