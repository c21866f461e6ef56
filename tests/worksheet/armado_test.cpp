#include "worksheet/armado.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "modules/modulos.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"

namespace ss {
namespace {

// Remembers what the worksheet core told the windows.
class PlataformaRegistro : public PlataformaMuda {
 public:
  int dejaCorrer = 0;
  std::vector<bool> ocupado;
  std::vector<std::string> progreso;
  std::vector<QString> titulos;
  const int* appBusy = nullptr;
  int appBusyMinimo = 1 << 30;  // the lowest AppBusy seen while events ran

  void DejaCorrer() override {
    ++dejaCorrer;
    if (appBusy) appBusyMinimo = std::min(appBusyMinimo, *appBusy);
  }
  void Ocupado(bool o) override { ocupado.push_back(o); }
  void Progreso(const std::string& t) override { progreso.push_back(t); }
  void TituloVentana(const QString& t) override { titulos.push_back(t); }
};

Mensajes& MensajesReales() {
  static Mensajes m(SS_SOURCE_DIR);
  return m;
}

constexpr uint64_t kSemilla = 20240611;

struct Entorno {
  Documento doc;
  PlataformaRegistro plataforma;
  GenContext gen{&MensajesReales(), Aleatorio(kSemilla)};
  Motor motor;
  CanvasQt oculta{nullptr};
  TextosVentana textos{SS_SOURCE_DIR, "MAI"};
  Sesion s{doc, plataforma, gen, motor, oculta, textos, Carpetas{}};

  Entorno() { plataforma.appBusy = &doc.AppBusy; }

  Coleccion& col() { return doc.col; }
  void Agrega(std::string enunciado, std::string solucion, std::string modulo = "ANEU_QUIM_TER") {
    Problema p;
    p.Modulo = std::move(modulo);
    p.Rutina = 1;
    p.Enunciado = std::move(enunciado);
    p.Solucion = std::move(solucion);
    doc.col.problemas.push_back(std::move(p));
    doc.col.cab.NPROB = static_cast<int32_t>(doc.col.problemas.size());
  }
  // The text of page p composed on the hidden page: what the typesetter reports.
  int Compone(const std::string& texto) {
    motor.ComponerTexto(texto, 12, oculta);
    return motor.UltimaMarca;
  }
};

constexpr const char* kBlanco = "&BC= 255; 255; 255:&FF=REC,20,5.5:";
constexpr const char* kFin = " &BC=Blanco:&FF=REC,20,5.5:";

std::string Etiqueta(const std::string& n) { return std::string(kBlanco) + n + kFin; }

// ---------------------------------------------------------------- blocks

TEST(ArmarBloques, NoSolutionsShowsStatementsOnly) {
  Entorno e;
  e.col().cab.POSSOL = 0;
  e.Agrega("First.&LF", "S1&LF");
  e.Agrega("Second.&LF", "S2&LF");
  e.doc.ruta = "/tmp/kept.col";
  ArmarBloques(e.s, 0);
  EXPECT_TRUE(e.doc.Modificada);
  EXPECT_EQ(e.doc.ruta, "/tmp/kept.col");  // only new texts lose their file
  ASSERT_EQ(e.doc.bloques.size(), 2u);
  EXPECT_EQ(e.doc.bloques[0].Texto, "#MARK=001&+B" + Etiqueta("1") + "&-B& First.&LF&LF");
  EXPECT_EQ(e.doc.bloques[1].Texto, "#MARK=002&+B" + Etiqueta("2") + "&-B& Second.&LF&LF");
  EXPECT_EQ(e.doc.bloques[0].Problema, 1);
  EXPECT_EQ(e.doc.bloques[1].Problema, 2);
  for (const Bloque& b : e.doc.bloques) EXPECT_EQ(b.Texto.find("S1"), std::string::npos);
}

TEST(ArmarBloques, SolutionAfterItsProblemInOneBlock) {
  Entorno e;
  e.col().cab.POSSOL = 1;
  e.Agrega("First.&LF", "S1&LF");
  e.Agrega("Second.&LF", "");
  ArmarBloques(e.s, 0);
  ASSERT_EQ(e.doc.bloques.size(), 2u);
  EXPECT_EQ(e.doc.bloques[0].Texto,
            "#MARK=001&+B" + Etiqueta("1") + "&-B& First.&LF&+IAnswer&-I:& S1&LF&LF");
  // An empty solution still has its answer line.
  EXPECT_EQ(e.doc.bloques[1].Texto,
            "#MARK=002&+B" + Etiqueta("2") + "&-B& Second.&LF&+IAnswer&-I:& &LF");
  EXPECT_EQ(e.doc.bloques[1].Problema, 2);
}

TEST(ArmarBloques, LongTextsSplitAt513Characters) {
  struct Case {
    std::size_t enunciado, solucion;
    bool partido;
  } cases[] = {
      {512, 10, false}, {513, 10, true}, {10, 512, false}, {10, 513, true}, {512, 512, false},
      {2000, 0, true},
  };
  for (const auto& c : cases) {
    Entorno e;
    e.col().cab.POSSOL = 1;
    e.Agrega("Before.&LF", "B&LF");
    e.Agrega(std::string(c.enunciado, 'e'), std::string(c.solucion, 's'));
    e.Agrega("After.&LF", "A&LF");
    ArmarBloques(e.s, 0);
    SCOPED_TRACE(std::to_string(c.enunciado) + "/" + std::to_string(c.solucion));
    std::vector<int> problemas;
    for (const Bloque& b : e.doc.bloques) problemas.push_back(b.Problema);
    if (c.partido) {
      EXPECT_EQ(problemas, (std::vector<int>{1, 2, -2, 3}));
      EXPECT_EQ(e.doc.bloques[1].Texto,
                "#MARK=002&+B" + Etiqueta("2") + "&-B& " + std::string(c.enunciado, 'e') + "&LF");
      EXPECT_EQ(e.doc.bloques[2].Texto,
                "#MARK=003&+IAnswer&-I:& " + std::string(c.solucion, 's') + "&LF");
      // The next problem keeps its number 3 and takes block 4.
      EXPECT_TRUE(e.doc.bloques[3].Texto.starts_with("#MARK=004&+B" + Etiqueta("3")));
    } else {
      EXPECT_EQ(problemas, (std::vector<int>{1, 2, 3}));
      EXPECT_NE(e.doc.bloques[1].Texto.find("&+IAnswer&-I:& "), std::string::npos);
    }
  }
}

TEST(ArmarBloques, GatheredSolutionsFollowAllProblems) {
  for (int possol : {2, 3}) {
    Entorno e;
    e.col().cab.POSSOL = possol;
    e.Agrega("First.&LF", "S1&LF");
    e.Agrega("Second.&LF", "");  // no solution: no entry, and the ordinals shift
    e.Agrega("Third.&LF", "S3&LF");
    ArmarBloques(e.s, 0);
    ASSERT_EQ(e.doc.bloques.size(), 5u);
    std::vector<int> problemas;
    for (const Bloque& b : e.doc.bloques) problemas.push_back(b.Problema);
    EXPECT_EQ(problemas, (std::vector<int>{1, 2, 3, -1, -2}));
    EXPECT_EQ(e.doc.bloques[2].Texto, "#MARK=003&+B" + Etiqueta("3") + "&-B& Third.&LF&LF");
    EXPECT_EQ(e.doc.bloques[3].Texto,
              "#MARK=004&+BAnswers:&-B&LF &+B" + Etiqueta("1") + "&-B& S1&LF");
    // The third problem's solution is the second entry, under its own label.
    EXPECT_EQ(e.doc.bloques[4].Texto, "#MARK=005 &+B" + Etiqueta("3") + "&-B& S3&LF");
  }
}

TEST(ArmarBloques, GatheredWithoutAnySolutionMakesNoHeading) {
  for (int possol : {2, 3}) {
    Entorno e;
    e.col().cab.POSSOL = possol;
    e.Agrega("First.&LF", "");
    e.Agrega("Second.&LF", "");
    ArmarBloques(e.s, 0);
    ASSERT_EQ(e.doc.bloques.size(), 2u);
    for (const Bloque& b : e.doc.bloques) {
      EXPECT_GT(b.Problema, 0);
      EXPECT_EQ(b.Texto.find("Answers"), std::string::npos);
      EXPECT_EQ(b.Pagina, 1);
    }
  }
}

TEST(ArmarBloques, LabelsTakePrefixSuffixFirstNumberAndColour) {
  Entorno e;
  e.col().cab.POSSOL = 0;
  e.col().cab.PROINI = 5;
  e.col().cab.PROPRE = "P";
  e.col().cab.PROSUF = ")";
  for (int i = 0; i < 3; ++i) e.Agrega("x&LF", "");
  ArmarBloques(e.s, 0);
  ASSERT_EQ(e.doc.bloques.size(), 3u);
  EXPECT_EQ(e.doc.bloques[2].Texto, "#MARK=003&+B" + Etiqueta("P7)") + "&-B& x&LF&LF");

  // The colour's three bytes, red lowest, each written with its blank.
  for (int32_t color : {0x123456, 0, 0xFF, 0xFF0000, 0x00FF00, 16777215}) {
    e.col().cab.COLRESPRO = color;
    ArmarBloques(e.s, 0);
    const std::string esperado = "&BC= " + std::to_string(color & 0xFF) + "; " +
                                 std::to_string((color >> 8) & 0xFF) + "; " +
                                 std::to_string((color >> 16) & 0xFF) + ":&FF=REC,20,5.5:P5)";
    EXPECT_NE(e.doc.bloques[0].Texto.find(esperado), std::string::npos)
        << color << ": " << e.doc.bloques[0].Texto;
  }
}

TEST(ArmarBloques, MarksKeepTheLastThreeDigits) {
  Entorno e;
  e.col().cab.POSSOL = 1;
  // 500 problems with long statements make 1000 blocks.
  for (int i = 0; i < 500; ++i) e.Agrega(std::string(600, 'w'), "s&LF");
  ArmarBloques(e.s, 0);
  ASSERT_EQ(e.doc.bloques.size(), 1000u);
  for (std::size_t i = 0; i < e.doc.bloques.size(); ++i) {
    const int numero = static_cast<int>(i + 1) % 1000;
    char marca[16];
    std::snprintf(marca, sizeof marca, "#MARK=%03d", numero);
    ASSERT_TRUE(e.doc.bloques[i].Texto.starts_with(marca)) << i;
  }
  EXPECT_TRUE(e.doc.bloques[999].Texto.starts_with("#MARK=000&+IAnswer"));
  // Every block is placed, the one whose mark reads 000 too, in block order.
  int anterior = 1;
  for (const Bloque& b : e.doc.bloques) {
    ASSERT_GE(b.Pagina, anterior);
    anterior = b.Pagina;
  }
  EXPECT_EQ(e.doc.bloques.back().Pagina, e.doc.numPaginas);
  // No page runs over; the mark that reads 000 is given another number here
  // so that the typesetter's report cannot be mistaken for "no mark".
  for (int p = 1; p <= e.doc.numPaginas; ++p) {
    std::string t = TextoPagina(e.doc, p);
    ReplaceAll(t, "#MARK=000", "#MARK=998");
    EXPECT_GT(e.Compone(t), 0) << "page " << p;
  }
}

// ------------------------------------------------------------ title block

TEST(CabeceraTexto, EachLineOnlyWhenItHasText) {
  ColeccionCab cab;
  EXPECT_EQ(CabeceraTexto(cab), "");
  cab.TITULO = "Gases";
  EXPECT_EQ(CabeceraTexto(cab),
            "#DOL(&+B&FN=Arial:&FS=12:Gases&SP=98: #DOL)&FN=Times New Roman:&-B&LF&FS=12:&LF");
  cab.PRETIT = "School";
  cab.POSTI1 = "Name:";
  cab.POSTI2 = "Date:";
  EXPECT_EQ(CabeceraTexto(cab),
            "&-B&FN=Arial:&FS=10:School&FN=Times New Roman:&LF&LF"
            "#DOL(&+B&FN=Arial:&FS=12:Gases&SP=98: #DOL)&FN=Times New Roman:&-B&LF"
            "&LF&-B&FN=Arial:&FS=10:Name:&FN=Times New Roman:&LF"
            "&-B&FN=Arial:&FS=10:Date:&FN=Times New Roman:&LF"
            "&FS=12:&LF");
  cab = ColeccionCab{};
  cab.POSTI2 = "Only";
  EXPECT_EQ(CabeceraTexto(cab), "&-B&FN=Arial:&FS=10:Only&FN=Times New Roman:&LF&FS=12:&LF");
}

// ------------------------------------------------------------- pagination

// A worksheet of real problems from the gases, formulas and solutions module.
void LlenaConProblemasReales(Entorno& e, int cuantos) {
  Arbol arbol;
  ArbolItem raiz;
  raiz.Tipo = 6;
  arbol.Agrega(raiz);
  const int rutinas[] = {1, 2, 4, 6, 9, 11, 19};
  const int cada = cuantos / static_cast<int>(std::size(rutinas));
  int resto = cuantos;
  for (std::size_t k = 0; k < std::size(rutinas); ++k) {
    ArbolItem f;
    f.Nivel = 2;
    f.Tipo = 3;
    f.ModuloFijo = "ANEU_QUIM_DIS";
    f.Rutina = static_cast<int16_t>(rutinas[k]);
    f.Marcado = true;
    f.Cantidad1 = static_cast<int16_t>(k + 1 == std::size(rutinas) ? resto : cada);
    f.Cantidad2 = 4;
    resto -= f.Cantidad1;
    arbol.Agrega(f);
  }
  // The counters come from a source of their own, so that the session's
  // source starts afresh with the problems' texts.
  Aleatorio rnd(static_cast<uint64_t>(cuantos) * 31 + 5);
  Arbol_to_Var(arbol, e.doc.col, rnd);
}

// Pages are filled in block order, each block on one page, no page runs
// over, and no page could have taken the next block too.
void CompruebaPaginas(Entorno& e) {
  const std::vector<Bloque>& bl = e.doc.bloques;
  ASSERT_FALSE(bl.empty());
  std::set<int> usadas;
  int anterior = 1;
  for (const Bloque& b : bl) {
    ASSERT_GE(b.Pagina, anterior) << "pages follow the block order";
    ASSERT_LE(b.Pagina, e.doc.numPaginas);
    anterior = b.Pagina;
    usadas.insert(b.Pagina);
  }
  EXPECT_EQ(bl.front().Pagina, 1);
  EXPECT_EQ(static_cast<int>(usadas.size()), e.doc.numPaginas) << "no empty page in between";
  const bool aparte = e.doc.col.cab.POSSOL == 3;
  for (int p = 1; p <= e.doc.numPaginas; ++p) {
    const std::string texto = TextoPagina(e.doc, p);
    EXPECT_GT(e.Compone(texto), 0) << "page " << p << " runs over";
    // The first block of the next page would not have fitted here.
    auto siguiente = std::find_if(bl.begin(), bl.end(), [&](const Bloque& b) { return b.Pagina == p + 1; });
    if (siguiente == bl.end()) continue;
    auto ultimo = std::find_if(bl.rbegin(), bl.rend(), [&](const Bloque& b) { return b.Pagina == p; });
    if (aparte && ultimo->Problema > 0 && siguiente->Problema < 0) continue;  // solutions start afresh
    Documento con = e.doc;
    con.bloques[static_cast<std::size_t>(siguiente - bl.begin())].Pagina = p;
    EXPECT_LT(e.Compone(TextoPagina(con, p)), 0) << "page " << p << " had room for the next block";
  }
}

TEST(Paginar, HundredsOfRealProblemsEachOnOnePage) {
  struct Case {
    int possol, posnumpag;
    const char* titulo;
  } cases[] = {{1, 9, "Problems of Chemistry"}, {0, 0, ""}, {2, 1, "T"}, {3, 11, ""}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.possol);
    Entorno e;
    e.col().cab.POSSOL = c.possol;
    e.col().cab.POSNUMPAG = c.posnumpag;
    e.col().cab.TITULO = c.titulo;
    e.col().cab.ORDENA = kVerdadero;
    LlenaConProblemasReales(e, 280);
    ASSERT_EQ(e.doc.col.problemas.size(), 280u);
    CrearColeccion(e.s, 0);
    for (const Problema& p : e.doc.col.problemas) {
      ASSERT_EQ(p.Enunciado.find("<ERROR"), std::string::npos) << p.Enunciado;
      ASSERT_FALSE(p.Enunciado.empty());
    }
    EXPECT_GT(e.doc.numPaginas, 5);
    CompruebaPaginas(e);
  }
}

TEST(Paginar, SolutionsOnPagesOfTheirOwn) {
  Entorno e;
  e.col().cab.POSSOL = 3;
  e.col().cab.ORDENA = kVerdadero;
  LlenaConProblemasReales(e, 4);  // much less than a page, solutions included
  CrearColeccion(e.s, 0);
  int ultimaDeEnunciados = 0, primeraDeSoluciones = 1 << 30;
  for (const Bloque& b : e.doc.bloques) {
    ASSERT_GT(b.Pagina, 0);
    if (b.Problema > 0) {
      ultimaDeEnunciados = std::max(ultimaDeEnunciados, b.Pagina);
    } else {
      primeraDeSoluciones = std::min(primeraDeSoluciones, b.Pagina);
    }
  }
  EXPECT_EQ(ultimaDeEnunciados, 1);
  EXPECT_EQ(primeraDeSoluciones, 2);
  EXPECT_EQ(e.doc.numPaginas, 2);

  // The same worksheet with the solutions at the end shares the page.
  e.col().cab.POSSOL = 2;
  ArmarBloques(e.s, 0);
  EXPECT_EQ(e.doc.numPaginas, 1);
  for (const Bloque& b : e.doc.bloques) EXPECT_EQ(b.Pagina, 1);
}

TEST(Paginar, ManySmallBlocksFillWholePages) {
  // Set in small type, far more than 49 one-line blocks fit on a page: the
  // page must still be filled, not closed after the first 49.
  for (int posnumpag : {0, 9}) {
    Entorno e;
    e.col().cab.POSSOL = 0;
    e.col().cab.POSNUMPAG = posnumpag;
    e.col().cab.PROPRE = "&FS=3:";
    for (int i = 0; i < 700; ++i) e.Agrega("x", "");
    ArmarBloques(e.s, 0);
    CompruebaPaginas(e);
    std::map<int, int> porPagina;
    for (const Bloque& b : e.doc.bloques) ++porPagina[b.Pagina];
    EXPECT_GT(porPagina[1], 3 * 49);
    EXPECT_GT(e.doc.numPaginas, 2);
  }
}

TEST(Paginar, ABlockTallerThanAPageStaysWithoutAPage) {
  std::string alto;
  for (int i = 0; i < 120; ++i) alto += "line " + std::to_string(i) + "&LF";
  for (int donde : {0, 5}) {
    SCOPED_TRACE(donde);
    Entorno e;
    e.col().cab.POSSOL = 0;
    for (int i = 0; i < 10; ++i) e.Agrega(i == donde ? alto : "Short.&LF", "");
    ArmarBloques(e.s, 0);
    for (int i = 0; i < 10; ++i) {
      const int esperada = i < donde ? 1 : 0;
      EXPECT_EQ(e.doc.bloques[static_cast<std::size_t>(i)].Pagina, esperada) << i;
    }
    EXPECT_EQ(e.doc.numPaginas, 1);
    // The pages that exist show only what fits.
    EXPECT_GE(e.Compone(TextoPagina(e.doc, 1)), 0);
  }
}

TEST(Paginar, TallStatementLeavesTheSolutionPagesAlone) {
  std::string alto;
  for (int i = 0; i < 120; ++i) alto += "line&LF";
  Entorno e;
  e.col().cab.POSSOL = 3;
  e.Agrega("One.&LF", "S1&LF");
  e.Agrega(alto, "S2&LF");
  e.Agrega("Three.&LF", "S3&LF");
  ArmarBloques(e.s, 0);
  std::vector<int> paginas;
  for (const Bloque& b : e.doc.bloques) paginas.push_back(b.Pagina);
  EXPECT_EQ(paginas, (std::vector<int>{1, 0, 0, 2, 2, 2}));
  EXPECT_EQ(e.doc.numPaginas, 2);
}

TEST(Paginar, ReportsProgressForEveryFullPage) {
  Entorno e;
  e.col().cab.POSSOL = 0;
  for (int i = 0; i < 200; ++i) e.Agrega("A line of text.&LFAnother line.&LF", "");
  ArmarBloques(e.s, 0);
  ASSERT_GT(e.doc.numPaginas, 2);
  ASSERT_EQ(static_cast<int>(e.plataforma.progreso.size()), e.doc.numPaginas - 1);
  for (int p = 1; p < e.doc.numPaginas; ++p)
    EXPECT_EQ(e.plataforma.progreso[static_cast<std::size_t>(p - 1)], "Page 1/" + std::to_string(p));
}

TEST(Paginar, CurrentPageFollowsTheHint) {
  Entorno e;
  e.col().cab.POSSOL = 1;
  for (int i = 0; i < 150; ++i) e.Agrega("Problem text.&LFSecond line.&LF", "Answer text.&LF");
  ArmarBloques(e.s, 0);
  ASSERT_GT(e.doc.numPaginas, 3);
  const int paginaDe120 = e.doc.bloques[119].Pagina;
  ASSERT_GT(paginaDe120, 1);
  ArmarBloques(e.s, 120);
  EXPECT_EQ(e.doc.paginaActual, paginaDe120);
  ArmarBloques(e.s, -120);  // the sign is ignored
  EXPECT_EQ(e.doc.paginaActual, paginaDe120);
  ArmarBloques(e.s, 0);  // keeps the current page while it exists
  EXPECT_EQ(e.doc.paginaActual, paginaDe120);
  ArmarBloques(e.s, 9999);  // no such problem
  EXPECT_EQ(e.doc.paginaActual, 1);
  e.doc.paginaActual = e.doc.numPaginas + 1;
  EXPECT_EQ(PaginaDeProblema(e.doc, 0), 1);
  e.doc.paginaActual = 0;
  EXPECT_EQ(PaginaDeProblema(e.doc, 0), 1);
  EXPECT_EQ(PaginaDeProblema(e.doc, INT32_MIN), 1);
}

TEST(TextoPagina, TitleBlocksAndTheFreeLineOfTheNumber) {
  Entorno e;
  e.col().cab.POSSOL = 0;
  e.col().cab.TITULO = "Title";
  e.Agrega("One.&LF", "");
  e.Agrega("Two.&LF", "");
  for (int pos : {0, 9, 11, 1, 3}) {
    e.col().cab.POSNUMPAG = pos;
    ArmarBloques(e.s, 0);
    // The blocks end in a line feed; the one that ends the page's text
    // would only start an empty line and is left out.
    const std::string cuerpo =
        CabeceraTexto(e.col().cab) + e.doc.bloques[0].Texto + e.doc.bloques[1].Texto;
    ASSERT_TRUE(cuerpo.ends_with("&LF&LF"));
    const std::string sinFin = cuerpo.substr(0, cuerpo.size() - 3);
    const std::string t = TextoPagina(e.doc, 1);
    if (pos == 0) {
      EXPECT_EQ(t, sinFin);
    } else if (pos & 8) {
      EXPECT_EQ(t, cuerpo + " ");  // one blank line at the foot
    } else {
      EXPECT_EQ(t, " &LF" + sinFin);
    }
    EXPECT_GT(e.Compone(t), 0);
  }
  const std::string cabecera = CabeceraTexto(e.col().cab);
  EXPECT_EQ(TextoPagina(e.doc, 2), " &LF" + cabecera.substr(0, cabecera.size() - 3));
}

TEST(TextoPagina, TheNumbersLineAtTheFootIsKeptFree) {
  // A page filled to the last line has no room left for the number's line:
  // with the number at the foot the page holds one block less.
  auto bloquesEnPagina1 = [](int posnumpag) {
    Entorno e;
    e.col().cab.POSSOL = 0;
    e.col().cab.POSNUMPAG = posnumpag;
    for (int i = 0; i < 60; ++i) e.Agrega("x", "");
    ArmarBloques(e.s, 0);
    CompruebaPaginas(e);
    return static_cast<int>(std::count_if(e.doc.bloques.begin(), e.doc.bloques.end(),
                                          [](const Bloque& b) { return b.Pagina == 1; }));
  };
  const int sinNumero = bloquesEnPagina1(0);
  EXPECT_GT(sinNumero, 20);
  EXPECT_LT(bloquesEnPagina1(9), sinNumero);
  EXPECT_LT(bloquesEnPagina1(1), sinNumero);
}

// ---------------------------------------------------------------- making

TEST(Barajar, OneProblemDrawsTwiceEachRoundAndStays) {
  Coleccion col;
  Problema p;
  p.Modulo = "ANEU_QUIM_DIS";
  p.Rutina = 4;
  col.problemas.push_back(p);
  col.cab.NPROB = 1;
  Aleatorio rnd = Aleatorio::Guionado({0.1, 0.2, 0.3, 0.4, 0.5, 0.6});
  Barajar(col, rnd);
  EXPECT_EQ(rnd.Siguiente(), 0.5) << "NPROB + 1 rounds of two draws";
  EXPECT_EQ(col.problemas[0].Rutina, 4);
}

TEST(Barajar, SwapsRecipesNotTexts) {
  Coleccion col;
  for (int i = 1; i <= 3; ++i) {
    Problema p;
    p.Modulo = "M" + std::to_string(i);
    p.Rutina = static_cast<int16_t>(i);
    p.Semilla = static_cast<int16_t>(10 * i);
    p.NumVariante = static_cast<int16_t>(100 * i);
    p.Total = static_cast<int16_t>(i + 1);
    p.Orden = static_cast<int16_t>(i + 2);
    p.Cantidad = static_cast<int16_t>(i + 3);
    p.Enunciado = "E" + std::to_string(i);
    p.Solucion = "S" + std::to_string(i);
    col.problemas.push_back(p);
  }
  col.cab.NPROB = 3;
  // Draws: floor(v * 3 * 0.99999) + 1. Round 1 swaps 1 and 3, rounds 2 to 4 draw 2 and 2.
  Aleatorio rnd = Aleatorio::Guionado({0.0, 0.9, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5});
  Barajar(col, rnd);
  const int esperado[] = {3, 2, 1};
  for (int i = 0; i < 3; ++i) {
    const Problema& p = col.problemas[static_cast<std::size_t>(i)];
    const int k = esperado[i];
    EXPECT_EQ(p.Modulo, "M" + std::to_string(k));
    EXPECT_EQ(p.Rutina, k);
    EXPECT_EQ(p.Semilla, 10 * k);
    EXPECT_EQ(p.NumVariante, 100 * k);
    EXPECT_EQ(p.Total, k + 1);
    EXPECT_EQ(p.Orden, k + 2);
    EXPECT_EQ(p.Cantidad, k + 3);
    EXPECT_EQ(p.Enunciado, "E" + std::to_string(i + 1)) << "texts stay in place";
    EXPECT_EQ(p.Solucion, "S" + std::to_string(i + 1));
  }
}

TEST(CrearColeccion, MakesTheTextsAndLeavesNoFile) {
  Entorno e;
  e.col().cab.POSSOL = 1;
  e.col().cab.ORDENA = kVerdadero;
  LlenaConProblemasReales(e, 14);
  const std::vector<Problema> antes = e.doc.col.problemas;
  e.doc.ruta = "/tmp/old.col";
  e.doc.Modificada = false;
  CrearColeccion(e.s, 1);
  EXPECT_TRUE(e.doc.ruta.isEmpty());
  EXPECT_TRUE(e.doc.Modificada);
  ASSERT_FALSE(e.plataforma.titulos.empty());
  EXPECT_EQ(e.plataforma.titulos.back(), TituloApp());
  ASSERT_EQ(e.doc.col.problemas.size(), antes.size());
  GenContext referencia(&MensajesReales(), Aleatorio(kSemilla));
  for (std::size_t i = 0; i < antes.size(); ++i) {
    const Problema& p = e.doc.col.problemas[i];
    EXPECT_EQ(ComandoProblema(p), ComandoProblema(antes[i])) << "kept in topic order";
    // The text is what the module makes of the recipe, one problem after the
    // other from the same seed.
    std::string st, so;
    GeneraProblema(referencia, p.Modulo, ComandoProblema(p), st, so);
    EXPECT_EQ(p.Enunciado, st);
    EXPECT_EQ(p.Solucion, so);
    EXPECT_NE(e.doc.bloques[i].Texto.find(p.Enunciado), std::string::npos);
  }
  EXPECT_EQ(e.doc.paginaActual, 1);
}

TEST(CrearColeccion, ShufflesUnlessInTopicOrder) {
  Entorno e;
  e.col().cab.ORDENA = 0;
  LlenaConProblemasReales(e, 30);
  std::multiset<std::string> antes;
  std::vector<std::string> orden;
  for (const Problema& p : e.doc.col.problemas) {
    antes.insert(p.Modulo + ComandoProblema(p));
    orden.push_back(ComandoProblema(p));
  }
  CrearColeccion(e.s, 0);
  std::multiset<std::string> despues;
  std::vector<std::string> nuevoOrden;
  for (const Problema& p : e.doc.col.problemas) {
    despues.insert(p.Modulo + ComandoProblema(p));
    nuevoOrden.push_back(ComandoProblema(p));
  }
  EXPECT_EQ(antes, despues);
  EXPECT_NE(orden, nuevoOrden);
}

TEST(CrearColeccion, NothingWithoutProblems) {
  Entorno e;
  e.doc.ruta = "/tmp/kept.col";
  CrearColeccion(e.s, 1);
  EXPECT_EQ(e.doc.ruta, "/tmp/kept.col");
  EXPECT_TRUE(e.plataforma.ocupado.empty());
  EXPECT_FALSE(e.doc.Modificada);
}

TEST(RecrearColeccion, CommonOffsetsWrapOnceAndKeepItemsConsecutive) {
  Entorno e;
  e.col().cab.ORDENA = kVerdadero;
  struct Antes {
    int16_t semilla, variante;
  } antes[] = {{898, 8998}, {899, 8999}, {900, 9000}, {0, 0}, {450, 4000}};
  for (const auto& a : antes) {
    Problema p;
    p.Modulo = "ANEU_QUIM_TER";  // the notice of a missing routine: no draws of its own
    p.Rutina = 1;
    p.Semilla = a.semilla;
    p.NumVariante = a.variante;
    e.doc.col.problemas.push_back(p);
  }
  e.doc.col.cab.NPROB = 5;
  e.gen.rnd = Aleatorio::Guionado({0.5, 0.25});  // a = 4500, b = 225
  RecrearColeccion(e.s);
  const int semillas[] = {(898 + 225) - 900, (899 + 225) - 900, (900 + 225) - 900, 225, 675};
  const int variantes[] = {8998 + 4500 - 9000, 8999 + 4500 - 9000, 9000 + 4500 - 9000, 4500,
                           8500};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(e.doc.col.problemas[static_cast<std::size_t>(i)].Semilla, semillas[i]) << i;
    EXPECT_EQ(e.doc.col.problemas[static_cast<std::size_t>(i)].NumVariante, variantes[i]) << i;
  }
  EXPECT_TRUE(e.doc.ruta.isEmpty());
  EXPECT_TRUE(e.doc.Modificada);
}

TEST(RecrearColeccion, NewNumbersForEveryProblem) {
  Entorno e;
  e.col().cab.ORDENA = kVerdadero;
  e.col().cab.POSSOL = 1;
  LlenaConProblemasReales(e, 21);
  CrearColeccion(e.s, 0);
  const std::vector<Problema> antes = e.doc.col.problemas;
  RecrearColeccion(e.s);
  const auto& ahora = e.doc.col.problemas;
  ASSERT_EQ(ahora.size(), antes.size());
  const int a = ((ahora[0].NumVariante - antes[0].NumVariante) % 9000 + 9000) % 9000;
  const int b = ((ahora[0].Semilla - antes[0].Semilla) % 900 + 900) % 900;
  int distintos = 0;
  for (std::size_t i = 0; i < ahora.size(); ++i) {
    EXPECT_EQ(((ahora[i].NumVariante - antes[i].NumVariante) % 9000 + 9000) % 9000, a);
    EXPECT_EQ(((ahora[i].Semilla - antes[i].Semilla) % 900 + 900) % 900, b);
    EXPECT_EQ(ahora[i].Rutina, antes[i].Rutina);
    if (ahora[i].Enunciado != antes[i].Enunciado) ++distintos;
    // Problems of one item run on through consecutive numbers.
    if (i > 0 && ahora[i].Orden > 1) {
      EXPECT_EQ((ahora[i].Semilla - ahora[i - 1].Semilla + 900) % 900, 1);
      EXPECT_EQ((ahora[i].NumVariante - ahora[i - 1].NumVariante + 9000) % 9000, 1);
    }
  }
  EXPECT_GT(distintos, 15);
}

TEST(RecrearColeccion, NothingWhileBusy) {
  Entorno e;
  e.Agrega("x", "y");
  e.doc.AppBusy = 1;
  e.doc.ruta = "/tmp/kept.col";
  RecrearColeccion(e.s);
  EXPECT_EQ(e.doc.col.problemas[0].Enunciado, "x");
  EXPECT_EQ(e.doc.ruta, "/tmp/kept.col");
}

TEST(RecrearProblema, RebuildOnlyWhenAsked) {
  Entorno e;
  e.col().cab.POSSOL = 1;
  e.Agrega("old", "old");
  e.doc.col.problemas[0].Modulo = "ANEU_QUIM_DIS";
  e.doc.col.problemas[0].Rutina = 2;
  ArmarBloques(e.s, 0);
  e.doc.ruta = "/tmp/kept.col";
  e.doc.Modificada = false;
  RecrearProblema(e.s, e.doc.col.problemas[0], 1, false);
  EXPECT_NE(e.doc.col.problemas[0].Enunciado, "old");
  EXPECT_NE(e.doc.bloques[0].Texto.find("old"), std::string::npos) << "blocks not rebuilt";
  EXPECT_EQ(e.doc.ruta, "/tmp/kept.col");
  EXPECT_FALSE(e.doc.Modificada);

  RecrearProblema(e.s, e.doc.col.problemas[0], 1, true);
  EXPECT_NE(e.doc.bloques[0].Texto.find(e.doc.col.problemas[0].Enunciado), std::string::npos);
  EXPECT_TRUE(e.doc.ruta.isEmpty());
  EXPECT_TRUE(e.doc.Modificada);
}

// ------------------------------------------------------------- busy guard

TEST(AppBusy, HeldForTheWholeJobAndRestored) {
  Entorno e;
  e.col().cab.POSSOL = 2;
  e.col().cab.ORDENA = kVerdadero;
  LlenaConProblemasReales(e, 20);
  CrearColeccion(e.s, 0);
  EXPECT_EQ(e.doc.AppBusy, 0);
  EXPECT_EQ(e.plataforma.ocupado, (std::vector<bool>{true, false}));
  EXPECT_GT(e.plataforma.dejaCorrer, 20);
  EXPECT_GE(e.plataforma.appBusyMinimo, 1) << "events ran while the document was not busy";
}

TEST(AppBusy, ANestedJobLeavesTheOuterOneBusy) {
  Entorno e;
  e.Agrega("x&LF", "y&LF");
  e.doc.AppBusy = 1;  // an outer job is running
  ArmarBloques(e.s, 0);
  CrearColeccion(e.s, 0);
  RecrearProblema(e.s, e.doc.col.problemas[0], 0, true);
  EXPECT_EQ(e.doc.AppBusy, 1);
  EXPECT_TRUE(e.plataforma.ocupado.empty()) << "the controls stay as the outer job set them";
  EXPECT_GE(e.plataforma.appBusyMinimo, 2);

  // One guard inside another: only the outer one switches.
  e.doc.AppBusy = 0;
  {
    TrabajoOcupado fuera(e.s);
    {
      TrabajoOcupado dentro(e.s);
      EXPECT_EQ(e.doc.AppBusy, 2);
    }
    EXPECT_EQ(e.doc.AppBusy, 1);
    EXPECT_EQ(e.plataforma.ocupado, (std::vector<bool>{true}));
  }
  EXPECT_EQ(e.doc.AppBusy, 0);
  EXPECT_EQ(e.plataforma.ocupado, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace ss
