#include "problems/generic.h"

#include <gtest/gtest.h>
#include <cmath>
#include <stdexcept>
#include <tuple>
#include "problems/fallos.h"
#include "problems/idioma.h"
#include "problems/numeros.h"
#include "problems/texto.h"
#include "tests/problems/fakes.h"

namespace ss {
namespace {

using test::MensajesFijos;

// A module made for the tests: each generator shows one behaviour.
void GenNormal(GenContext& g) {  // 1
  if (EntradaCatalogo(g, {"3", "760", "T_Gases", "020", ""})) return;
  g.GP_Statement = g.MsgQUI("Stmt_volume") + g.MsgQUI("Stmt_end");  // a later find keeps a miss
  Reemplaza(g.GP_Statement, "%SEQB%", std::to_string(g.GP_SeqB));
  Reemplaza(g.GP_Statement, "%CASE%", g.GP_Case);
  g.GP_Solution = "items " + std::to_string(g.GP_Items) + " amount " + NumTexto(g.GP_Amount) +
                  " index " + NumTexto(g.GP_Index) + "&LF";
}
void GenDivide(GenContext& g) {  // 2: an exercise with a bound; a fault replaces what was made
  if (!EntradaCatalogo(g, {"2", "760", "T_Gases", "010", "8"})) g.GP_Statement = "partial", Div(1, 0.0);
}
void GenThrowsStd(GenContext& g) {  // 3: a blank level
  if (!EntradaCatalogo(g, {"", "770", "T_Disoluciones", "005", ""})) throw std::out_of_range("table row 12 missing");
}
void GenThrowsOther(GenContext& g) {  // 4: a topic key without text
  if (!EntradaCatalogo(g, {"3", "770", "T_Missing_topic", "001", ""})) throw 42;
}
void GenNan(GenContext& g) { g.GP_Statement = "The mass is " + std::to_string(std::nan("")) + " g."; }
void GenSilent(GenContext&) {}
void GenWords(GenContext& g) { g.GP_Statement = "Sodium azide NaN_3, infinite infrared nano-world"; }
void GenFallback(GenContext& g) { g.GP_Statement = "fallback made it " + g.GP_Case; }
void GenEndless(GenContext& g) {  // 9: a redraw loop whose condition no draw meets
  while (!g.GP_ListMode && g.rnd.Siguiente() >= 0) {
  }
}

// 5 nan, 6 silent (its fallback answers), 7 not written yet, 8 words, 9 endless.
constexpr Generador kGen[] = {GenNormal, GenDivide, GenThrowsStd, GenThrowsOther, GenNan,
                              GenSilent, nullptr,   GenWords,     GenEndless};
constexpr Generador kRespaldo[] = {nullptr, nullptr, nullptr, nullptr, nullptr, GenFallback};
const ModuloDef kTst{"ANEU_QUIM_TST", "TST", kGen, "ATEM_QUIM_TST", kRespaldo};
// A module whose catalogue entries stand in a table: the dispatcher sets them, and the bound.
void GenConTabla(GenContext& g) {
  g.GP_Statement = "bound " + g.GP_MaxItems + ", items " + std::to_string(ItemsEjercicio(g));
}
constexpr Generador kGenTabla[] = {GenConTabla, nullptr};
constexpr Entrada kEntradas[] = {{"2", "760", "T_Gases", "030", "006"}, {"3", "770", "T_Disoluciones", "010", ""}};
const ModuloDef kTab{"ANEU_QUIM_TAB", "TAB", kGenTabla, "ATEM_QUIM_TAB", {}, kEntradas};
const ModuloDef* const kTabla[] = {&kTst, &kTab};

MensajesFijos Completos() {
  return {{"Asig", "Chemistry"}, {"T_Gases", "Gases"}, {"T_Disoluciones", "Solutions"},
          {"Error_in_module", "Error in module"}, {"Error_no_routine", "No routine "},
          {"Stmt_volume", "Variant %SEQB% of case %CASE%."}, {"Stmt_end", ""}, {"S_TST_1", "Volume of a gas"},
          {"D_TST_1", "&D1 Find the volume"}, {"S_TST_2", "Divides"}, {"D_TST_2", std::string(200, 'd')},
          {"S_TST_3", "Throws"}, {"D_TST_3", "&D2 Throws"}, {"S_TST_4", "Other"}, {"S_TST_5", "Nan"},
          {"S_TST_6", "Silent"}, {"S_TST_7", "Not written"}, {"S_TST_8", "Words"}, {"S_TST_9", "Endless"},
          {"S_TAB_1", "Tabled"}, {"D_TAB_1", "&D1 Tabled"}, {"S_TAB_2", "Not written yet"}, {"D_TAB_2", "&D2 Later"}};
}

std::string Col(const std::string& r, std::size_t from, std::size_t len) {
  return std::string(Mid(r, from, len));
}

TEST(GeneraProblema, ModulesGeneratorsAndNotices) {
  // A requested name is upper-cased and the old module names are replaced anywhere in it.
  const char* nombres[][2] = {
      {"okbr_chem_dis", "ANEU_QUIM_DIS"}, {"OKBR_QUIM_TER", "ANEU_QUIM_TER"}, {"aneu_quim_eab", "ANEU_QUIM_EAB"},
      {"okbr_math_x", "ANEU_MATE_X"}, {"OKBR_MATE", "ANEU_MATE"}, {"okbr_phys_y", "ANEU_FISI_Y"},
      {"okbr_fisi", "ANEU_FISI"},     {"x_okbr_chem_okbr_chem", "X_ANEU_QUIM_ANEU_QUIM"}};
  for (const auto& [name, normal] : nombres) EXPECT_EQ(NormalizaModulo(name), normal) << name;
  // Messages: '=' all, '0' none, 's' without the statement key, '+' with S_TST_15.
  // Expected: statement | solution.
  auto falla = [](const char* number, const char* description, const char* command) {
    return "<ERROR>  Number= " + std::string(number) + "&LFError description= " + description +
           " &LFCommand= " + command + "&LFModule=ANEU__QUIM__TST alias ANEU__QUIM__TST&LF | <ERROR>&LF";
  };
  const std::string cases[][4] = {
      {"=", "ANEU_QUIM_TST", "0014567890050302", "Variant 7890 of case 001. | items 5 amount 3 index 2&LF"},
      // Each column is read up to its first non-digit; halves go to the even integer.
      {"=", "ANEU_QUIM_TST", "0011.50.5-3 7+8 ", "Variant 0 of case 001. | items 3 amount 7 index 8&LF"},
      {"=", "ANEU_QUIM_TST", "001 2 2.5 1 2 3 ", "Variant 2 of case 001. | items 1 amount 2 index 3&LF"},
      {"=", "ANEU_QUIM_TST", "001", "Variant 0 of case 001. | items 0 amount 0 index 0&LF"},
      {"=", "ANEU_QUIM_TST", "abc1x2y3z4w5v6u7", "<Error in module ATEM__QUIM__TST:. No routine abc>&LF | &LF"},
      {"=", "okbr_chem_xyz", "001", "<ERROR: Cannot re-create the problem.>&LFRequested module="
                                    "okbr__chem__xyz alias ANEU__QUIM__XYZ&LF | <ERROR>&LF"},
      {"=", "OKBR_PHYS_DIN", "001", "<ERROR: Cannot re-create the problem.>&LFRequested module="
                                    "OKBR__PHYS__DIN alias ANEU__FISI__DIN&LF | <ERROR>&LF"},
      // A failed lookup of S_TST_15 goes to the fallback, whose notice keeps the case as written.
      {"=", "ANEU_QUIM_TST", "0150000000010102", "<Error in module ATEM__QUIM__TST:. No routine 015>&LF | &LF"},
      {"=", "ANEU_QUIM_TST", "0000000000000000", "<Error in module ATEM__QUIM__TST:. No routine 000>&LF | &LF"},
      {"+", "ANEU_QUIM_TST", "0150000000010102", "<Error in module ANEU__QUIM__TST:. No routine 015>&LF | &LF"},
      {"0", "ANEU_QUIM_TST", "0010000000000000", "< ATEM__QUIM__TST:. 001>&LF | &LF"},
      // One missing statement key sends the problem to the fallback, whatever was built.
      {"s", "ANEU_QUIM_TST", "0010000000000000", "<Error in module ATEM__QUIM__TST:. No routine 001>&LF | &LF"},
      {"=", "ANEU_QUIM_TST", "0060000000000000", "fallback made it 006 | "},
      {"=", "ANEU_QUIM_TST", "0070000000000000", "<Error in module ATEM__QUIM__TST:. No routine 007>&LF | &LF"},
      // Words that merely contain "nan" or "inf" are no broken number.
      {"=", "ANEU_QUIM_TST", "0080000000000000", "Sodium azide NaN_3, infinite infrared nano-world | "},
      {"=", "ANEU_QUIM_TAB", "0010000000090000", "bound 006, items 6 | "},
      // Faults: division by zero, std and other exceptions, an endless redraw, "nan", a huge column.
      {"=", "okbr_chem_tst", "0020000000000000", "<ERROR>  Number= 11&LFError description= Division by zero "
       "&LFCommand= 0020000000000000&LFModule=okbr__chem__tst alias ANEU__QUIM__TST&LF | <ERROR>&LF"},
      {"=", "ANEU_QUIM_TST", "003", falla("5", "table row 12 missing", "003")},
      {"=", "ANEU_QUIM_TST", "004", falla("51", "Internal error", "004")},
      {"=", "ANEU_QUIM_TST", "009", falla("51", "Internal error", "009")},
      {"=", "ANEU_QUIM_TST", "005", falla("6", "Overflow", "005")},
      {"=", "ANEU_QUIM_TST", "0019e9", falla("6", "Overflow", "0019e9")},
  };
  for (const auto& [mensajes, module, command, expected] : cases) {
    MensajesFijos m = Completos();
    if (mensajes == "s") m.Quita("Stmt_volume");
    if (mensajes == "+") m.Pon("S_TST_15", "Exists only as a name");
    GenContext g(mensajes == "0" ? nullptr : &m, Aleatorio(1));
    std::string st = "stale", so = "stale";
    GeneraProblema(kTabla, g, module, command, st, so);
    EXPECT_EQ(st + " | " + so, expected) << module << " " << command;
  }
  struct Rota : FuenteMensajes {  // a broken message file is not turned into a problem
    const std::string* Buscar(TablaMensajes, std::string_view) override { throw ErrorFatalDatos("x.lmo", 12, "?"); }
  } rota;
  GenContext g(&rota, Aleatorio(1));
  std::string st, so;
  std::vector<std::string> cat;
  EXPECT_THROW(GeneraProblema(kTabla, g, "ANEU_QUIM_TST", "0010000000000000", st, so), ErrorFatalDatos);
  EXPECT_THROW(ListaProblemas(kTabla, g, cat), ErrorFatalDatos);
}

TEST(Registros, FieldsArePaddedOnTheRightOrCutNumbersKeepTheirLastDigits) {
  auto pad = [](std::string t, std::size_t n) { return t.append(n - t.size(), ' '); };
  const CamposRegistro c{"7", "20", "Chemistry", "Gases", "Volume", "", "3", "8", "&D1 Find"};
  EXPECT_EQ(RegistroDetalle(c), "007020" + pad("Chemistry", 65) + pad("Gases", 80) +
                                    pad("Volume", 80) + "3003008" + pad("&D1 Find", 160) + "\r\n");
  const CamposRegistro largo{"1234", "", std::string(70, 'S'), std::string(90, 'T'),
                             std::string(85, 'U'), "2", "1000", "", std::string(170, 'D')};
  EXPECT_EQ(RegistroDetalle(largo), "234000" + std::string(65, 'S') + std::string(80, 'T') +
                                        std::string(80, 'U') + "2000000" + std::string(160, 'D') + "\r\n");
}

TEST(ListaProblemas, ListsEveryWrittenGeneratorWithOneHeadingPerTopic) {
  MensajesFijos m = Completos();
  GenContext g(&m, Aleatorio(1));
  std::vector<std::string> cat{"stale"};
  ListaProblemas(kTabla, g, cat);
  // Generator 4's topic has no text; 5 to 8 give no entry. Per record: module and ordinals,
  // level, generator and bound, subject, topic, subtopic, description.
  const std::string expected[] = {
      "ANEU_QUIM_TST:760000 5000000 Chemistry|Gases||",
      "ANEU_QUIM_TST:760020 3001000 Chemistry|Gases|Volume of a gas|&D1 Find the volume",
      "ANEU_QUIM_TST:760010 2002008 Chemistry|Gases|Divides|" + std::string(160, 'd'),
      "ANEU_QUIM_TST:770000 5000000 Chemistry|Solutions||",
      "ANEU_QUIM_TST:770005 3003000 Chemistry|Solutions|Throws|&D2 Throws",  // a blank level: a problem
      "ANEU_QUIM_TAB:760000 5000000 Chemistry|Gases||",
      "ANEU_QUIM_TAB:760030 2001006 Chemistry|Gases|Tabled|&D1 Tabled",
      "ANEU_QUIM_TAB:770000 5000000 Chemistry|Solutions||",
      "ANEU_QUIM_TAB:770010 3002000 Chemistry|Solutions|Not written yet|&D2 Later",  // listed all the same
  };
  ASSERT_EQ(cat.size(), std::size(expected));
  for (std::size_t i = 0; i < cat.size(); ++i) {
    std::string got = Col(cat[i], 1, 20) + " " + Col(cat[i], 246, 7) + " ";
    for (auto [from, len] : {std::pair{21, 65}, {86, 80}, {166, 80}}) got += std::string(Trim(Col(cat[i], from, len))) + "|";
    EXPECT_EQ(got + std::string(Trim(Col(cat[i], 253, 160))) + Col(cat[i], 413, 2), expected[i] + "\r\n");
    EXPECT_EQ(cat[i].size(), 14 + kLargoRegistro);
  }
  // Without a subtopic name a generator is left out; without messages, all are.
  m.Quita("S_TST_1");
  ListaProblemas(kTabla, g, cat);
  EXPECT_EQ(cat.size(), 8u);
  for (const std::string& r : cat) EXPECT_FALSE(r.starts_with("ANEU_QUIM_TST:760020")) << r;
  GenContext sin(nullptr, Aleatorio(1));
  ListaProblemas(kTabla, sin, cat);
  EXPECT_TRUE(cat.empty());
}

TEST(ListaProblemas, AnEducationSystemPlacesGeneratorsPerAdmittedSubject) {
  MensajesFijos m = Completos();
  test::SilaboFijo s({{"Chemistry 1", true}, {"Biology", false}, {"Chemistry 2", true}});
  s.excluido = 2;  // generator 2 of each module is not part of any subject
  GenContext g(&m, Aleatorio(1));
  g.silabo = &s;
  std::vector<std::string> cat;
  ListaProblemas(kTabla, g, cat);
  // TST 1-3 and both of TAB are offered to the two chemistry subjects (4 has no topic text).
  std::string llamadas, registros;
  for (const std::string& l : s.llamadas) llamadas += l + " ";
  EXPECT_EQ(llamadas, "1:ANEU_QUIM_TST:1 3:ANEU_QUIM_TST:1 1:ANEU_QUIM_TST:2 3:ANEU_QUIM_TST:2 "
                      "1:ANEU_QUIM_TST:3 3:ANEU_QUIM_TST:3 1:ANEU_QUIM_TAB:1 3:ANEU_QUIM_TAB:1 "
                      "1:ANEU_QUIM_TAB:2 3:ANEU_QUIM_TAB:2 ");
  // Per record: topic ordinal, subtopic ordinal, the subject's number, level.
  for (const std::string& r : cat) registros += Col(r, 15, 6) + Col(r, 31, 1) + Col(r, 246, 1) + " ";
  EXPECT_EQ(registros, "00900015 00900113 00900025 00900123 00900015 00900313 00900025 00900323 "
                       "00900015 00900112 00900025 00900122 ");
  EXPECT_EQ(Trim(Col(cat[1].substr(14), 152, 80)), "Volume of a gas (Chemistry 1)");
}

TEST(GeneratorHelpers, ItemCountsFormsAndLabels) {
  // Items: raised to 2, lowered to 26, then to the generator's bound ("000" or "": none).
  const std::tuple<int, const char*, int> items[] = {
      {0, "008", 2}, {1, "008", 2},   {5, "008", 5},   {8, "008", 8},   {9, "008", 8},  {30, "", 26},
      {27, "030", 26}, {27, "026", 26}, {-4, "010", 2}, {20, "", 20},  {20, "000", 20}};
  GenContext g;
  for (const auto& [in, max, expected] : items) {
    g.GP_Items = in, g.GP_MaxItems = max;
    EXPECT_EQ(ItemsEjercicio(g), expected) << in << " / " << max;
  }
  // Form: variant counter plus offset, modulo the forms, never negative.
  const int formas[][4] = {{8999, 4, 0, 3}, {9000, 4, 0, 0}, {9000, 4, 2, 2}, {9001, 3, 0, 1},
                           {9000, 1, 0, 0}, {-3, 4, 0, 1},   {2147483647, 3, 1, 2}};
  for (const auto& [seqB, forms, offset, form] : formas) {
    g.GP_SeqB = seqB;
    EXPECT_EQ(Forma(g, forms, offset), form) << seqB << " " << forms;
  }
  EXPECT_EQ(Etiqueta(1) + Etiqueta(26), "&+Ba)&-B &+Bz)&-B ");
}

}  // namespace
}  // namespace ss
