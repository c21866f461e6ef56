#include "problems/generic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>

#include "problems/fallos.h"
#include "problems/generador.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "tests/problems/fakes.h"

namespace ss {
namespace {

using test::MensajesFijos;
using test::SilaboFijo;

// A module made for the tests: each generator shows one behaviour.
void GenNormal(GenContext& g) {  // 1: a problem with a statement key
  if (EntradaCatalogo(g, {"3", "760", "T_Gases", "020", ""})) return;
  g.GP_Statement = g.MsgQUI("Stmt_volume");
  Reemplaza(g.GP_Statement, "%SEQB%", std::to_string(g.GP_SeqB));
  Reemplaza(g.GP_Statement, "%CASE%", g.GP_Case);
  g.GP_Solution = "items " + std::to_string(g.GP_Items) + " amount " +
                  std::to_string(static_cast<int>(g.GP_Amount)) + " index " +
                  std::to_string(static_cast<int>(g.GP_Index)) + "&LF";
}
void GenDivide(GenContext& g) {  // 2
  if (EntradaCatalogo(g, {"2", "760", "T_Gases", "010", "8"})) return;
  g.GP_Statement = "partial";
  Div(1, g.GP_SeqA * 0.0);
}
void GenThrowsStd(GenContext& g) {  // 3
  if (EntradaCatalogo(g, {"", "770", "T_Disoluciones", "005", ""})) return;
  throw std::out_of_range("table row 12 missing");
}
void GenThrowsOther(GenContext& g) {  // 4
  if (EntradaCatalogo(g, {"3", "770", "T_Missing_topic", "001", ""})) return;
  throw 42;
}
void GenNan(GenContext& g) {  // 5
  if (g.GP_ListMode) return;
  g.GP_Statement = "The mass is " + std::to_string(std::nan("")) + " g.&LF";
}
void GenSilent(GenContext&) {}  // 6: writes nothing at all
void GenOwnFallback(GenContext& g) { g.GP_Statement = "fallback made it " + g.GP_Case; }

constexpr Generador kGen[] = {GenNormal, GenDivide, GenThrowsStd, GenThrowsOther,
                              GenNan,    GenSilent, nullptr};
constexpr Generador kRespaldo[] = {nullptr, GenOwnFallback};
const ModuloDef kTst{"ANEU_QUIM_TST", "TST", kGen, "ATEM_QUIM_TST", kRespaldo};

constexpr Generador kGen2[] = {GenNormal};
const ModuloDef kTwo{"ANEU_QUIM_TWO", "TWO", kGen2, "ATEM_QUIM_TWO", {}};

const ModuloDef* const kTabla[] = {&kTst, &kTwo};

MensajesFijos Completos() {
  return {
      {"Asig", "Chemistry"},
      {"T_Gases", "Gases"},
      {"T_Disoluciones", "Solutions"},
      {"Error_in_module", "Error in module"},
      {"Error_no_routine", "No routine number "},
      {"Stmt_volume", "Variant %SEQB% of case %CASE%."},
      {"S_TST_1", "Volume of a gas"},
      {"D_TST_1", "&D1 Find the volume"},
      {"S_TST_2", "Divides"},
      {"D_TST_2", std::string(200, 'd')},
      {"S_TST_3", "Throws"},
      {"D_TST_3", "&D2 Throws"},
      {"S_TST_4", "Other"},
      {"D_TST_4", "&D3 Other"},
      {"S_TST_5", "Nan"},
      {"S_TST_6", "Silent"},
      {"S_TST_7", "Not written"},
      {"S_TWO_1", "Second module"},
      {"D_TWO_1", "&DP Second"},
  };
}

struct Hecho {
  std::string statement, solution;
};

std::string Fields(const std::string& r, std::size_t from, std::size_t len) {
  return std::string(Mid(r, from, len));
}

Hecho Genera(GenContext& g, std::string_view module, std::string_view command) {
  Hecho h;
  GeneraProblema(kTabla, g, module, command, h.statement, h.solution);
  return h;
}

TEST(NormalizaModulo, UpperCasesAndReplacesTheOldNames) {
  struct Case {
    const char* in;
    const char* out;
  } cases[] = {
      {"okbr_chem_dis", "ANEU_QUIM_DIS"}, {"OKBR_QUIM_TER", "ANEU_QUIM_TER"},
      {"aneu_quim_eab", "ANEU_QUIM_EAB"}, {"okbr_math_x", "ANEU_MATE_X"},
      {"OKBR_MATE", "ANEU_MATE"},         {"okbr_phys_y", "ANEU_FISI_Y"},
      {"okbr_fisi", "ANEU_FISI"},         {"x_okbr_chem_okbr_chem", "X_ANEU_QUIM_ANEU_QUIM"},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(NormalizaModulo(c.in), c.out) << c.in;
}

TEST(GeneraProblema, AnOldNameReachesTheModule) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  Hecho h = Genera(g, "okbr_chem_tst", "0010000123000000");
  EXPECT_EQ(h.statement, "Variant 123 of case 001.");
}

TEST(GeneraProblema, AnUnknownModuleNamesBothNamesWithDoubledUnderscores) {
  GenContext g(nullptr, Aleatorio(1));
  Hecho h = Genera(g, "okbr_chem_xyz", "0010000000000000");
  EXPECT_EQ(h.statement,
            "<ERROR: Cannot re-create the problem.>&LFRequested module=okbr__chem__xyz alias "
            "ANEU__QUIM__XYZ&LF");
  EXPECT_EQ(h.solution, "<ERROR>&LF");
  // Mathematics and physics modules are not part of this program.
  h = Genera(g, "OKBR_PHYS_DIN", "0010000000000000");
  EXPECT_EQ(h.statement,
            "<ERROR: Cannot re-create the problem.>&LFRequested module=OKBR__PHYS__DIN alias "
            "ANEU__FISI__DIN&LF");
}

TEST(GeneraProblema, TheCommandColumnsReachTheGenerator) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  Hecho h = Genera(g, "ANEU_QUIM_TST", "0014567890050302");
  EXPECT_EQ(h.statement, "Variant 7890 of case 001.");
  EXPECT_EQ(h.solution, "items 5 amount 3 index 2&LF");
  EXPECT_EQ(g.GP_SeqA, 456);
}

TEST(ParseaComando, ReadsFixedColumnsAndSurvivesBadText) {
  struct Case {
    const char* command;
    const char* gpCase;
    int n, seqA, seqB, items;
    double amount, index;
  } cases[] = {
      {"0070450120000301", "007", 7, 45, 120, 0, 3, 1},
      {"0150000000010102", "015", 15, 0, 0, 1, 1, 2},
      {"12", "12", 12, 0, 0, 0, 0, 0},
      {"", "", 0, 0, 0, 0, 0, 0},
      {"abc1x2y3z4w5v6u7", "abc", 0, 1, 0, 0, 0, 0},  // each column read up to its first non-digit
      {"0021.50.5-3 7+8 ", "002", 2, 2, 0, 3, 7, 8},  // "1.5" rounds to 2; "0.5-" to 0
      {"003 2 0 1 2 3 4 ", "003", 3, 2, 0, 2, 3, 4},
  };
  for (const auto& c : cases) {
    GenContext g(nullptr, Aleatorio(1));
    g.GP_Statement = "old";
    g.GP_Solution = "old";
    EXPECT_EQ(ParseaComando(g, c.command), c.n) << c.command;
    EXPECT_EQ(g.GP_Case, c.gpCase) << c.command;
    EXPECT_EQ(g.GP_SeqA, c.seqA) << c.command;
    EXPECT_EQ(g.GP_SeqB, c.seqB) << c.command;
    EXPECT_EQ(g.GP_Items, c.items) << c.command;
    EXPECT_EQ(g.GP_Amount, c.amount) << c.command;
    EXPECT_EQ(g.GP_Index, c.index) << c.command;
    EXPECT_EQ(g.GP_Statement, "");
    EXPECT_EQ(g.GP_Solution, "");
  }
}

TEST(GeneraProblema, AMissingRoutineGivesTheFallbackNoticeWithTheCaseAsWritten) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  // S_TST_15 is not in the table: its lookup clears GP_MsgFound, so the
  // fallback's notice replaces the module's own.
  EXPECT_EQ(Genera(g, "ANEU_QUIM_TST", "0150000000010102").statement,
            "<Error in module ATEM__QUIM__TST:. No routine number 015>&LF");
  EXPECT_EQ(Genera(g, "ANEU_QUIM_TST", "0000000000000000").statement,
            "<Error in module ATEM__QUIM__TST:. No routine number 000>&LF");
  Hecho h = Genera(g, "ANEU_QUIM_TST", "7..0000000000000");
  EXPECT_EQ(h.statement, "<Error in module ATEM__QUIM__TST:. No routine number 7..>&LF");
  EXPECT_EQ(h.solution, "&LF");
}

TEST(GeneraProblema, TheModulesNoticeStandsWhenEveryLookupSucceeds) {
  MensajesFijos m = Completos();
  m.Pon("S_TST_15", "Exists only as a name");
  GenContext g(&m, Aleatorio(1));
  Hecho h = Genera(g, "ANEU_QUIM_TST", "0150000000010102");
  EXPECT_EQ(h.statement, "<Error in module ANEU__QUIM__TST:. No routine number 015>&LF");
  EXPECT_EQ(h.solution, "&LF");
}

TEST(GeneraProblema, WithoutMessageFilesEveryProblemIsTheFallbackNotice) {
  GenContext g(nullptr, Aleatorio(1));
  for (const char* command : {"0010000000000000", "0070000000000000", "0990000000000000"}) {
    Hecho h = Genera(g, "ANEU_QUIM_TST", command);
    EXPECT_EQ(h.statement, "< ATEM__QUIM__TST:. " + std::string(command, 3) + ">&LF");
    EXPECT_EQ(h.solution, "&LF");
  }
}

TEST(GeneraProblema, OneMissingStatementKeySendsTheProblemToTheFallback) {
  MensajesFijos m = Completos();
  m.Quita("Stmt_volume");
  GenContext g(&m, Aleatorio(1));
  EXPECT_EQ(Genera(g, "ANEU_QUIM_TST", "0010000000000000").statement,
            "<Error in module ATEM__QUIM__TST:. No routine number 001>&LF");
}

TEST(GeneraProblema, AnEmptyStatementOrAMissingGeneratorGoesToTheFallback) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  // Generator 6 writes nothing: the fallback has no generator 6.
  EXPECT_EQ(Genera(g, "ANEU_QUIM_TST", "0060000000000000").statement,
            "<Error in module ATEM__QUIM__TST:. No routine number 006>&LF");
  // Generator 7 is not written yet; the same notice.
  EXPECT_EQ(Genera(g, "ANEU_QUIM_TST", "0070000000000000").statement,
            "<Error in module ATEM__QUIM__TST:. No routine number 007>&LF");
}

TEST(GeneraProblema, TheFallbackRunsItsOwnGeneratorByNumber) {
  constexpr Generador kVacio[] = {GenSilent, GenSilent};
  const ModuloDef mod{"ANEU_QUIM_OWN", "OWN", kVacio, "ATEM_QUIM_OWN", kRespaldo};
  const ModuloDef* const tabla[] = {&mod};
  GenContext g(nullptr, Aleatorio(1));
  std::string st, so;
  GeneraProblema(tabla, g, "ANEU_QUIM_OWN", "0020000000000000", st, so);
  EXPECT_EQ(st, "fallback made it 002");
  GeneraProblema(tabla, g, "ANEU_QUIM_OWN", "0010000000000000", st, so);
  EXPECT_EQ(st, "< ATEM__QUIM__OWN:. 001>&LF");
}

TEST(GeneraProblema, FaultsBecomeTheErrorTextWithTheirNumbers) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  struct Case {
    const char* command;
    const char* number;
    const char* description;
  } cases[] = {
      {"0020000000000000", "11", "Division by zero"},
      {"0030000000000000", "5", "table row 12 missing"},
      {"0040000000000000", "51", "Internal error"},
      {"0050000000000000", "6", "Overflow"},
      {"0019e9", "6", "Overflow"},  // too big for an integer column
  };
  for (const auto& c : cases) {
    Hecho h = Genera(g, "okbr_chem_tst", c.command);
    EXPECT_EQ(h.statement, "<ERROR>  Number= " + std::string(c.number) +
                               "&LFError description= " + c.description +
                               " &LFCommand= " + c.command +
                               "&LFModule=okbr__chem__tst alias ANEU__QUIM__TST&LF");
    EXPECT_EQ(h.solution, "<ERROR>&LF");
  }
}

TEST(GeneraProblema, WordsThatMerelyContainNanOrInfAreNotFaults) {
  constexpr Generador kWords[] = {[](GenContext& g) {
    g.GP_Statement = "Sodium azide NaN_3 in an infinite, infrared nano-world; inflate.&LF";
    g.GP_Solution = "Nano&LF";
  }};
  const ModuloDef mod{"ANEU_QUIM_WRD", "WRD", kWords, "ATEM_QUIM_WRD", {}};
  const ModuloDef* const tabla[] = {&mod};
  MensajesFijos m{{"S_WRD_1", "Words"}};
  GenContext g(&m, Aleatorio(1));
  std::string st, so;
  GeneraProblema(tabla, g, "ANEU_QUIM_WRD", "0010000000000000", st, so);
  EXPECT_EQ(st, "Sodium azide NaN_3 in an infinite, infrared nano-world; inflate.&LF");
}

TEST(GeneraProblema, ConsecutiveVariantsPassThroughTheForms) {
  constexpr Generador kForms[] = {[](GenContext& g) {
    g.GP_Statement = "form " + std::to_string(Forma(g, 3));
  }};
  const ModuloDef mod{"ANEU_QUIM_FRM", "FRM", kForms, "ATEM_QUIM_FRM", {}};
  const ModuloDef* const tabla[] = {&mod};
  MensajesFijos m{{"S_FRM_1", "Forms"}};
  GenContext g(&m, Aleatorio(1));
  std::string a, b, c, so;
  GeneraProblema(tabla, g, "ANEU_QUIM_FRM", "0010010120000301", a, so);
  GeneraProblema(tabla, g, "ANEU_QUIM_FRM", "0010020121000302", b, so);
  GeneraProblema(tabla, g, "ANEU_QUIM_FRM", "0010030122000303", c, so);
  EXPECT_EQ(a, "form 0");
  EXPECT_EQ(b, "form 1");
  EXPECT_EQ(c, "form 2");
}

TEST(GeneraProblema, ABrokenMessageFileIsNotTurnedIntoAProblem) {
  class Rota : public FuenteMensajes {
   public:
    const std::string* Buscar(TablaMensajes, std::string_view) override {
      throw ErrorFatalDatos("lang/ENG_MGE_QUI.lmo", 12, "an entry without \"]=\"");
    }
  } rota;
  GenContext g(&rota, Aleatorio(1));
  std::string st, so;
  EXPECT_THROW(GeneraProblema(kTabla, g, "ANEU_QUIM_TST", "0010000000000000", st, so),
               ErrorFatalDatos);
  std::vector<std::string> cat;
  EXPECT_THROW(ListaProblemas(kTabla, g, cat), ErrorFatalDatos);
}

// A module whose catalogue entries stand in a table beside its generators.
int llamadasConTabla = 0;
void GenConTabla(GenContext& g) {
  ++llamadasConTabla;
  g.GP_Statement = "bound " + g.GP_MaxItems + ", items " + std::to_string(ItemsEjercicio(g));
}
constexpr Generador kGenTabla[] = {GenConTabla, nullptr};
constexpr Entrada kEntradasTabla[] = {{"2", "760", "T_Gases", "030", "006"},
                                      {"3", "770", "T_Disoluciones", "010", ""}};
const ModuloDef kConTabla{"ANEU_QUIM_TAB", "TAB", kGenTabla, "ATEM_QUIM_TAB", {}, kEntradasTabla};

TEST(ModuloConTabla, ListModeReadsTheTableAndGenerateModeGetsTheBound) {
  MensajesFijos m = Completos();
  m.Pon("S_TAB_1", "Tabled");
  m.Pon("D_TAB_1", "&D1 Tabled");
  m.Pon("S_TAB_2", "Not written yet");
  m.Pon("D_TAB_2", "&D2 Later");
  const ModuloDef* const tabla[] = {&kConTabla};
  GenContext g(&m, Aleatorio(1));
  std::vector<std::string> cat;
  llamadasConTabla = 0;
  ListaProblemas(tabla, g, cat);
  EXPECT_EQ(llamadasConTabla, 0);  // the entry comes from the table alone
  ASSERT_EQ(cat.size(), 4u);      // an unwritten generator is listed all the same
  EXPECT_EQ(Fields(cat[1].substr(14), 1, 6), "760030");
  EXPECT_EQ(Fields(cat[1].substr(14), 232, 7), "2001006");
  EXPECT_EQ(Fields(cat[3].substr(14), 1, 6), "770010");
  EXPECT_EQ(Fields(cat[3].substr(14), 232, 7), "3002000");

  std::string st, so;
  GeneraProblema(tabla, g, "ANEU_QUIM_TAB", "0010000000090000", st, so);
  EXPECT_EQ(llamadasConTabla, 1);
  EXPECT_EQ(st, "bound 006, items 6");
}

// The catalogue.

TEST(Registros, HeadingAndDetailHaveTheirColumns) {
  CamposRegistro c{"7", "20", "Chemistry", "Gases", "Volume", "", "3", "8", "&D1 Find"};
  std::string d = RegistroDetalle(c);
  ASSERT_EQ(d.size(), 400u);
  EXPECT_EQ(Fields(d, 1, 3), "007");
  EXPECT_EQ(Fields(d, 4, 3), "020");
  EXPECT_EQ(Fields(d, 7, 65), "Chemistry" + std::string(56, ' '));
  EXPECT_EQ(Fields(d, 72, 80), "Gases" + std::string(75, ' '));
  EXPECT_EQ(Fields(d, 152, 80), "Volume" + std::string(74, ' '));
  EXPECT_EQ(Fields(d, 232, 1), "3");  // a blank level is a problem
  EXPECT_EQ(Fields(d, 233, 3), "003");
  EXPECT_EQ(Fields(d, 236, 3), "008");
  EXPECT_EQ(Fields(d, 239, 160), "&D1 Find" + std::string(152, ' '));
  EXPECT_EQ(Fields(d, 399, 2), "\r\n");

  std::string h = RegistroCabecera(c);
  ASSERT_EQ(h.size(), 400u);
  EXPECT_EQ(Fields(h, 1, 6), "007000");
  EXPECT_EQ(Fields(h, 7, 65), Fields(d, 7, 65));
  EXPECT_EQ(Fields(h, 72, 80), Fields(d, 72, 80));
  EXPECT_EQ(Fields(h, 152, 80), std::string(80, ' '));
  EXPECT_EQ(Fields(h, 232, 7), "5000000");
  EXPECT_EQ(Fields(h, 239, 160), std::string(160, ' '));
  EXPECT_EQ(Fields(h, 399, 2), "\r\n");
}

TEST(Registros, LongFieldsAreCutAndLongNumbersKeepTheirLastDigits) {
  CamposRegistro c{"1234", "", std::string(70, 'S'), std::string(90, 'T'), std::string(85, 'U'),
                   "2", "1000", "", std::string(170, 'D')};
  std::string d = RegistroDetalle(c);
  ASSERT_EQ(d.size(), 400u);
  EXPECT_EQ(Fields(d, 1, 6), "234000");
  EXPECT_EQ(Fields(d, 7, 65), std::string(65, 'S'));
  EXPECT_EQ(Fields(d, 72, 80), std::string(80, 'T'));
  EXPECT_EQ(Fields(d, 152, 80), std::string(80, 'U'));
  EXPECT_EQ(Fields(d, 232, 7), "2000000");
  EXPECT_EQ(Fields(d, 239, 160), std::string(160, 'D'));
}

TEST(ListaProblemas, ListsEveryWrittenGeneratorWithOneHeadingPerTopic) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  std::vector<std::string> cat{"stale"};
  ListaProblemas(kTabla, g, cat);
  // TST: heading Gases, 1, 2; heading Solutions, 3. Generator 4's topic key
  // has no text, 5 to 7 give no entry. TWO: heading Gases, 1.
  ASSERT_EQ(cat.size(), 7u);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(cat[i].substr(0, 14), "ANEU_QUIM_TST:");
  for (std::size_t i = 5; i < 7; ++i) EXPECT_EQ(cat[i].substr(0, 14), "ANEU_QUIM_TWO:");
  for (const std::string& r : cat) {
    ASSERT_EQ(r.size(), 414u);
    EXPECT_EQ(r.substr(412), "\r\n");
  }
  auto rec = [&](std::size_t i) { return cat[i].substr(14); };
  EXPECT_EQ(Fields(rec(0), 1, 6), "760000");
  EXPECT_EQ(Fields(rec(0), 232, 7), "5000000");
  EXPECT_EQ(Trim(Fields(rec(0), 72, 80)), "Gases");
  EXPECT_EQ(Fields(rec(1), 1, 6), "760020");
  EXPECT_EQ(Trim(Fields(rec(1), 152, 80)), "Volume of a gas");
  EXPECT_EQ(Fields(rec(1), 232, 7), "3001000");
  EXPECT_EQ(Trim(Fields(rec(1), 239, 160)), "&D1 Find the volume");
  EXPECT_EQ(Fields(rec(2), 1, 6), "760010");
  EXPECT_EQ(Fields(rec(2), 232, 7), "2002008");
  EXPECT_EQ(Fields(rec(2), 239, 160), std::string(160, 'd'));
  EXPECT_EQ(Fields(rec(3), 1, 6), "770000");
  EXPECT_EQ(Fields(rec(4), 1, 6), "770005");
  EXPECT_EQ(Fields(rec(4), 232, 7), "3003000");  // blank level: a problem
  EXPECT_EQ(Trim(Fields(rec(4), 7, 65)), "Chemistry");
  EXPECT_EQ(Fields(rec(5), 232, 1), "5");
  EXPECT_EQ(Fields(rec(6), 233, 3), "001");
}

TEST(ListaProblemas, WithoutMessagesTheCatalogueIsEmpty) {
  GenContext g(nullptr, Aleatorio(1));
  std::vector<std::string> cat{"stale"};
  ListaProblemas(kTabla, g, cat);
  EXPECT_TRUE(cat.empty());
}

TEST(ListaProblemas, AGeneratorWithoutASubtopicNameIsLeftOut) {
  MensajesFijos m = Completos();
  m.Quita("S_TST_1");
  GenContext g(&m, Aleatorio(1));
  std::vector<std::string> cat;
  ListaProblemas(kTabla, g, cat);
  for (const std::string& r : cat)
    if (r.starts_with("ANEU_QUIM_TST:")) {
      EXPECT_NE(Fields(r.substr(14), 233, 3), "001");
    }
  EXPECT_EQ(cat.size(), 6u);
}

TEST(ListaProblemas, AnEducationSystemPlacesGeneratorsPerAdmittedSubject) {
  MensajesFijos m = Completos();
  SilaboFijo s({{"Chemistry 1", true}, {"Biology", false}, {"Chemistry 2", true}});
  s.excluido = 2;  // generator 2 is not part of any subject
  GenContext g(&m, Aleatorio(1));
  g.silabo = &s;
  std::vector<std::string> cat;
  ListaProblemas(kTabla, g, cat);
  // Generators 1 and 3 of TST and 1 of TWO, in two subjects each, each
  // subject with its own heading per topic. Generator 4 has no topic text and
  // is not offered to the subjects.
  for (const std::string& call : s.llamadas) EXPECT_FALSE(call.starts_with("2:")) << call;
  EXPECT_EQ(s.llamadas.size(), 8u);
  ASSERT_EQ(cat.size(), 12u);
  int headings = 0;
  for (const std::string& r : cat) {
    const std::string rec = r.substr(14);
    EXPECT_NE(Trim(Fields(rec, 7, 65)), "Biology");
    if (Fields(rec, 232, 1) == "5") {
      ++headings;
      EXPECT_EQ(Fields(rec, 1, 6), "009000");
    } else {
      EXPECT_EQ(Fields(rec, 1, 3), "009");
      EXPECT_NE(Fields(rec, 233, 3), "002");
    }
  }
  EXPECT_EQ(headings, 6);
  EXPECT_EQ(Trim(Fields(cat[1].substr(14), 152, 80)), "Volume of a gas (Chemistry 1)");
}

}  // namespace
}  // namespace ss
