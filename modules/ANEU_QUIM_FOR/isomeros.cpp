// Isomers (generator 11) and the hybridisation of carbon atoms (generator 13).
//
// Nothing here reasons about a molecule: every question comes with its answer,
// structures written in page markup and names taken from the language file.
// What varies is which question is asked and, in the multiple-choice forms,
// which compounds stand beside the right one and where it stands.
#include <array>
#include <string>
#include <string_view>

#include "modules/ANEU_QUIM_FOR/for.h"
#include "problems/generador.h"
#include "problems/generic.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::FOR {
namespace {

constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";

int Azar(GenContext& g, int desde, int hasta) {
  return static_cast<int>(AleatorioEn(g.rnd, desde, hasta, 1, 0));
}

std::string Letra(int i) { return std::string(1, kLetras[static_cast<std::size_t>(i - 1)]); }

// "&SP=n:" text at each tab stop, one line.
struct EnTab {
  int tab;
  std::string texto;
};
std::string Linea(std::initializer_list<EnTab> celdas) {
  std::string s;
  for (const auto& c : celdas) s += "&SP=" + std::to_string(c.tab) + ":" + c.texto;
  return s + "&LF";
}

// ---- Multiple choice: one compound with the property among four -------------

// A compound as the statement writes it, as the solution draws it, and its name.
struct Compuesto {
  std::string_view condensada, dibujo, clave;
};

// Compounds with one chiral carbon; the drawing marks it with an asterisk.
constexpr std::array<Compuesto, 7> kConQuiral = {{
    {"CH_3-CHOH-COOH", "CH_3-#UDB(CSS#R1(OH#R1)#R2(H#R2)#UDB)*-COOH", "N_2hidroxipropanoico"},
    {"HOCH_2-CH(NH_2)-COOH", "HO-CH_2-#UDB(CSS#R1(NH_2#R1)#R2(H#R2)#UDB)*-COOH",
     "N_2amino3hidroxipropanoico"},
    {"CH_3-CHBr-COOH", "CH_3-#UDB(CSS#R1(Br#R1)#R2(H#R2)#UDB)*-COOH", "N_2bromopropanoico"},
    {"CH_3-CHBr-CH_2-CH_3", "CH_3-#UDB(CSS#R1(Br#R1)#R2(H#R2)#UDB)*-CH_2-CH_3", "N_2bromobutano"},
    {"CH_3-CHCl-CHO", "CH_3-#UDB(CSS#R1(Cl#R1)#R2(H#R2)#UDB)*-CHO", "N_2cloropropanal"},
    {"CH_3-CH(NH_2)-COOH", "CH_3-#UDB(CSS#R1(NH_2#R1)#R2(H#R2)#UDB)*-COOH", "N_2aminopropanoico"},
    {"CH_3-CH_2-CH(CH_3)-CHO", "CH_3-CH_2-#UDB(CSS#R1(CH_3#R1)#R2(H#R2)#UDB)*-CHO", "N_2metilbutanal"},
}};

// Compounds without a chiral carbon: every carbon has two like groups or a multiple bond.
constexpr std::array<std::string_view, 7> kSinQuiral = {
    "CH_3-CCl(CH_3)-CH_3", "HCCl_3", "CH_3-CH&=CH-CH_3", "CH_3-CH(CH_3)-CH_2-CH_3",
    "CH_3-CBr_2-CH_2-CH_3", "HCOOH", "H_2CCl_2",
};

// Alkenes whose double-bond carbons each carry two different groups.
constexpr std::array<std::string_view, 7> kConCisTrans = {
    "CHBr&=CH-CH_3", "CHF&=CH-COOH", "CHCl&=CHCl",         "CHI&=CH-CH_3",
    "CHI&=CH-CN",    "CH_3-CH&=CH-CH_3", "HOOC-CH&=CH-COOH",
};

// Alkenes with two like groups on one of the double-bond carbons.
constexpr std::array<std::string_view, 8> kSinCisTrans = {
    "CH_2&=CH-CH_2-CH_3", "CH_2&=CH-COOH",         "CCl_2&=CHCl", "CH_2&=C(CH_3)-COOH",
    "CH_2&=CBr-CH_3",     "CHCl&=C(CH_3)-CH_3", "CH_2&=CH_2", "CH_2&=CCl_2",
};

// The four choices: the right one at a drawn place, the others the first
// three of the shuffled list of wrong ones. Returns the right one's place.
template <std::size_t N>
int Opciones(GenContext& g, std::string_view correcta, std::array<std::string_view, N> otras,
             std::array<std::string_view, 4>& sale) {
  for (int k = 0; k < 14; ++k) {
    const int a = Azar(g, 1, static_cast<int>(N)), b = Azar(g, 1, static_cast<int>(N));
    std::swap(otras[static_cast<std::size_t>(a - 1)], otras[static_cast<std::size_t>(b - 1)]);
  }
  const int p = Azar(g, 1, 4);
  for (int i = 1, j = 0; i <= 4; ++i)
    sale[static_cast<std::size_t>(i - 1)] = i == p ? correcta : otras[static_cast<std::size_t>(j++)];
  return p;
}

// The four choices in two columns, a new line after every second one.
std::string Enumera(const std::array<std::string_view, 4>& op) {
  std::string s;
  for (int i = 1; i <= 4; ++i)
    s += std::string(i % 2 ? "&SP=5:" : "&SP=50:") + "&+B" + Letra(i) + ")&-B  " +
         std::string(op[static_cast<std::size_t>(i - 1)]) + (i % 2 ? "" : "&LF");
  return s;
}

void Quiral(GenContext& g) {
  const Compuesto& c = kConQuiral[static_cast<std::size_t>(Forma(g, 7))];
  std::array<std::string_view, 4> op;
  const int p = Opciones(g, c.condensada, kSinQuiral, op);
  g.GP_Statement = g.MsgQUI("Iso_C_quiral") + "&LF" + Enumera(op);
  g.GP_Solution = "&SP=10:" + g.MsgQUI("En_el_compuesto") + " &+B" + Letra(p) + ")&-B:   " +
                  std::string(c.dibujo) + "   " + g.MsgQUI(c.clave) + "&LF&SP=10:" + g.MsgQUI("Iso_optica") +
                  ".&LF";
}

void CisTrans(GenContext& g) {
  const std::string_view c = kConCisTrans[static_cast<std::size_t>(Forma(g, 7))];
  std::array<std::string_view, 4> op;
  const int p = Opciones(g, c, kSinCisTrans, op);
  g.GP_Statement = g.MsgQUI("Iso_cis_trans") + "&LF" + Enumera(op);
  g.GP_Solution = "&SP=10:" + g.MsgQUI("En_el_compuesto") + " &+B" + Letra(p) + ")&-B: " + std::string(c) +
                  "&LF&SP=10:" + g.MsgQUI("Iso_cis_trans_motivo") + ".&LF";
}

// ---- Position isomers on the benzene ring ------------------------------------

struct Anillos {
  std::string_view clave;
  std::array<std::string_view, 3> grupos;  // the third only for three groups
  bool fenol;                              // names at 14, 44, 73
  bool tabsAnchas;                         // rings at 17, 47, 77
};

constexpr std::array<Anillos, 7> kAnillos = {{
    {"N_dimetilbenceno", {"CH_3", "CH_3", ""}, false, false},
    {"N_etilmetilbenceno", {"CH_2-CH_3", "CH_3", ""}, false, false},
    {"N_metilfenol", {"OH", "CH_3", ""}, true, false},
    {"N_cloronitrobenceno", {"NO_2", "Cl", ""}, false, false},
    {"N_triclorobenceno", {"Cl", "Cl", "Cl"}, false, false},
    {"N_bromofenol", {"OH", "Br", ""}, true, false},
    {"N_metilyodobenceno", {"CH_3", "I", ""}, false, true},
}};

// A benzene ring, vertex up, with the groups at the vertices whose bond letter is S.
std::string Benceno(std::string_view enlaces, const std::array<std::string_view, 3>& grupos) {
  std::string s = "#BCV(" + std::string(enlaces);
  std::size_t g = 0;
  for (std::size_t k = 0; k < enlaces.size(); ++k)
    if (enlaces[k] == 'S') {
      const std::string r = "#R" + std::to_string(k + 1);
      s += r + "(" + std::string(grupos[g++]) + r + ")";
    }
  return s + "#BCV)";
}

void Posicion(GenContext& g) {
  const Anillos& a = kAnillos[static_cast<std::size_t>(Forma(g, 7))];
  const bool tres = !a.grupos[2].empty();
  const std::array<std::string_view, 3> enlaces =
      tres ? std::array<std::string_view, 3>{"SSSXXX", "SSXSXX", "SXSXSX"}
           : std::array<std::string_view, 3>{"SSXXXX", "SXSXXX", "SXXSXX"};
  const std::array<std::string_view, 3> prefijos =
      tres ? std::array<std::string_view, 3>{"1,2,3-", "1,2,4-", "1,3,5-"}
           : std::array<std::string_view, 3>{"&+Io&-I-", "&+Im&-I-", "&+Ip&-I-"};
  const std::string nombre = g.MsgQUI(a.clave);
  const int t = a.tabsAnchas ? 2 : 0, n = a.fenol ? 4 : 0;
  g.GP_Statement = g.MsgQUI("Iso_Comp_tipo_ISO");
  Reemplaza(g.GP_Statement, "%F%", nombre);
  g.GP_Statement += "&LF";
  g.GP_Solution = Linea({{15 + t, Benceno(enlaces[0], a.grupos)},
                         {45 + t, Benceno(enlaces[1], a.grupos)},
                         {75 + t, Benceno(enlaces[2], a.grupos)}}) +
                  Linea({{10 + n, std::string(prefijos[0]) + nombre},
                         {40 + n, std::string(prefijos[1]) + nombre},
                         {70 + n - (a.fenol ? 1 : 0), std::string(prefijos[2]) + nombre}}) +
                  Linea({{10, g.MsgQUI("Iso_SON_3_isom_posici")}});
}

// ---- The forms with fixed structures -------------------------------------------

// Drawings of the butenes: the two but-2-enes with their methyl groups on one
// side of the double bond or across it, and methylpropene.
constexpr std::string_view kCis = "#UDB(CSX#R1(CH_3#R1)#UDB)H&=#UDB(CSX#R1(CH_3#R1)#UDB)H";
constexpr std::string_view kTrans = "#UDB(CSX#R1(CH_3#R1)#UDB)H&=#UDB(CXS#R2(CH_3#R2)#UDB)H";
constexpr std::string_view kMetilpropeno = "CH_3-#UDB(CXS#R2(CH_3#R2)#UDB)&=CH_2";

std::string S(std::string_view s) { return std::string(s); }

// The statement with the formula in it.
void Enunciado(GenContext& g, std::string_view clave, std::string_view formula = {}) {
  g.GP_Statement = g.MsgQUI(clave);
  if (!formula.empty()) Reemplaza(g.GP_Statement, "%F%", formula);
  g.GP_Statement += "&LF";
}

}  // namespace

void Generador11(GenContext& g) {
  if (EntradaCatalogo(g, {.nivel = "3", .ordTema = "870", .claveTema = "T_Organica", .ordSubtema = "020",
                          .maxItems = ""}))
    return;
  auto N = [&](std::string_view clave) { return g.MsgQUI(clave); };
  const std::string cis = "&+Icis&-I-" + N("N_2buteno"), trans = "&+Itrans&-I-" + N("N_2buteno");
  switch (Forma(g, 17)) {
    case 0:
      Enunciado(g, "Iso_lin_C4H8O");
      g.GP_Solution = Linea({{10, "CH_3-CH_2-CO-CH_3"}, {55, "CH_3-CH_2-CH_2-CHO"}}) +
                      Linea({{10, N("N_Butanona")}, {55, N("N_Butanal")}});
      break;
    case 1:
      Enunciado(g, "Iso_lin_C3H9N");
      g.GP_Solution =
          Linea({{10, "CH_3-CH_2-CH_2-NH_2"}, {40, "CH_3-CH_2-NH-CH_3"}, {70, "CH_3-#UDB(NSX#R1(CH_3#R1)#UDB)-CH_3"}}) +
          Linea({{10, N("N_propilamina")}, {40, N("N_etilmetilamina")}, {70, N("N_trimetilamina")}});
      break;
    case 2:
    case 7:
      Quiral(g);
      break;
    case 3:
      Enunciado(g, "Iso_abierta_C5H10");
      g.GP_Solution = Linea({{10, "CH_2&=CH-CH_2-CH_2-CH_3"}, {55, "CH_3-CH&=CH-CH_2-CH_3"}}) +
                      Linea({{10, N("N_1penteno")}, {55, N("N_2penteno")}}) + "&LF" +
                      Linea({{10, "CH_2&=#UDB(CSX#R1(CH_3#R1)#UDB)-CH_2-CH_3"},
                             {40, "CH_2&=CH-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_3"},
                             {70, "CH_3-#UDB(CSX#R1(CH_3#R1)#UDB)&=CH-CH_3"}}) +
                      Linea({{10, N("N_2metil1buteno")}, {40, N("N_3metil1buteno")}, {70, N("N_2metil2buteno")}});
      break;
    case 4:
      Enunciado(g, "Iso_FORMULA_tipo_ISO", "C_2H_6O");
      g.GP_Solution = Linea({{10, N("Iso_SON_2_isom_funcio")}}) +
                      Linea({{10, "CH_3-CH_2OH"}, {55, "CH_3-O-CH_3"}}) +
                      Linea({{10, N("N_CH3CH2OH")}, {55, N("N_CH3OCH3")}});
      break;
    case 5:
    case 10:
      CisTrans(g);
      break;
    case 6:
      Enunciado(g, "Iso_FORMULA_tipo_ISO", "C_5H_1_2");
      g.GP_Solution = Linea({{10, N("Iso_SON_3_isom_cadena")}}) +
                      Linea({{10, "CH_3-CH_2-CH_2-CH_2-CH_3"},
                             {40, "CH_3-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_2-CH_3"},
                             {70, "CH_3-#UDB(CSS#R1(CH_3#R1)#R2(CH_3#R2)#UDB)-CH_3"}}) +
                      Linea({{10, N("N_nC5H12")}, {40, N("N_metilbutano")}, {70, N("N_dimetilpropano")}});
      break;
    case 8:
    case 13:
      Posicion(g);
      break;
    case 9:
      Enunciado(g, "Iso_FORMULA_tipo_ISO", "C_3H_8O");
      g.GP_Solution = Linea({{10, "(1)  CH_3-CHOH-CH_3  "}, {40, "(2)  CH_3-CH_2-CH_2OH "},
                             {70, "(3)  CH_3-CH_2-O-CH_3"}}) +
                      Linea({{14, N("N_2propanol")}, {44, N("N_1propanol")}, {74, N("N_etilmetileter")}}) +
                      Linea({{10, N("Iso_12_posi_3_func12")}});
      break;
    case 11:
      Enunciado(g, "Iso_FORMULA", "C_4H_8");
      g.GP_Solution = Linea({{10, S(kCis)}, {40, S(kTrans)}, {70, S(kMetilpropeno)}}) +
                      Linea({{10, cis}, {40, trans}, {70, N("N_metilpropeno")}}) + "&LF" +
                      Linea({{12, "#A4V(#A4V)"}, {42, "#A3V(XSX#R2(CH_3#R2)#A3V)"}, {70, "CH_2&=CH-CH_2-CH_3"}}) +
                      Linea({{10, N("N_ciclobutano")}, {40, N("N_metilciclopropano")}, {70, N("N_1buteno")}});
      break;
    case 12:
      Enunciado(g, "Iso_FORMULA_tipo_ISO", "C_4H_1_0");
      g.GP_Solution = Linea({{10, N("Iso_SON_2_isom_cadena")}}) +
                      Linea({{10, "CH_3-CH_2-CH_2-CH_3"}, {55, "CH_3-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_3"}}) +
                      Linea({{10, N("N_C4H10")}, {55, N("N_metilpropano")}});
      break;
    case 14:
      Enunciado(g, "Iso_2Br3Clbutano");
      g.GP_Solution =
          Linea({{10, "CH_3-#UDB(CSS#R1(Br#R1)#R2(H#R2)#UDB)*-#UDB(CSS#R1(Cl#R1)#R2(H#R2)#UDB)*-CH_3"},
                 {50, N("N_2bromo3clorobutano")}}) +
          Linea({{10, N("Iso_optica") + "."}}) + Linea({{10, N("Iso_optica_2C")}});
      break;
    case 15:
      Enunciado(g, "Iso_triBrClbutano");
      g.GP_Solution = Linea({{10, N("Iso_optica") + "."}}) +
                      Linea({{30, "CH_3-#UDB(CSS#R1(Br#R1)#R2(Br#R2)#UDB)-#UDB(CSS#R1(Cl#R1)#R2(Br#R2)#UDB)*-CH_3"}}) +
                      Linea({{10, N("Iso_optica_1C")}});
      break;
    default:  // 16
      Enunciado(g, "Iso_cis_trans_C4H8");
      g.GP_Solution = Linea({{15, S(kCis)}, {55, S(kTrans)}}) + Linea({{10, cis}, {50, trans}});
      break;
  }
}

// ---- Generator 13: hybridisation ----------------------------------------------

namespace {

// The groups that fill the places of the structures: ZZ and WW a group with
// one bond, YY an atom with two. A leading blank marks a lone narrow letter;
// it is dropped where the group is written.
std::string_view GrupoZZ(int r) {
  static constexpr std::array<std::string_view, 11> z = {"OH", "OH", "NH_2", "NH_2", "_ F", "_ F",
                                                         "Cl", "Cl", "Br",   " I",   "SH"};
  return z[static_cast<std::size_t>(r - 1)];
}
std::string_view GrupoWW(int r) {
  static constexpr std::array<std::string_view, 12> w = {"OH", "OH", "OH", "NH_2", "NH_2", "Cl",
                                                         "Cl", "F",  "F",  "Br",   "I",    "SH"};
  return w[static_cast<std::size_t>(r - 1)];
}

std::string_view Limpio(std::string_view grupo) {
  if (grupo.starts_with("_ ")) grupo.remove_prefix(2);
  return Trim(grupo);
}

// A group written so that its bond meets the atom that carries it: at the
// start of a chain the hydrogens come first ("HO-CH_2"), over a bond they
// hang to the left of it; a lone atom loses its leading blank.
std::string Orientado(std::string_view grupo, bool enRotulo) {
  static constexpr std::array<std::array<std::string_view, 3>, 3> con = {{
      {"OH", "HO", "#LP(H#LP)O"}, {"NH_2", "H_2N", "#LP(H_2#LP)N"}, {"SH", "HS", "#LP(H#LP)S"}}};
  for (const auto& c : con)
    if (grupo == c[0]) return std::string(enRotulo ? c[2] : c[1]);
  return std::string(Limpio(grupo));
}

void Rellena(std::string& t, std::string_view lugar, std::string_view grupo) {
  if (t.starts_with(lugar)) t.replace(0, lugar.size(), Orientado(grupo, false));
  ReplaceAll(t, "(" + std::string(lugar), "(" + Orientado(grupo, true));
  ReplaceAll(t, lugar, Limpio(grupo));
}

}  // namespace

void Generador13(GenContext& g) {
  if (EntradaCatalogo(g, {.nivel = "2", .ordTema = "870", .claveTema = "T_Organica", .ordSubtema = "010",
                          .maxItems = "012"}))
    return;
  const int items = ItemsEjercicio(g);
  g.GP_Statement = g.MsgQUI("IndicHibridCarbono") + ":&LF";
  g.GP_Solution.clear();
  std::array<bool, 13> usada{};
  for (int i = 1; i <= items; ++i) {
    int k;
    do k = Azar(g, 1, 12);
    while (usada[static_cast<std::size_t>(k)]);
    usada[static_cast<std::size_t>(k)] = true;
    const std::string_view zz = GrupoZZ(Azar(g, 1, 11)), ww = GrupoWW(Azar(g, 1, 12));
    const std::string_view yy = Azar(g, 1, 12) <= 10 ? "O" : "_ S";
    std::string t = g.MsgQUI("HibCar_" + std::to_string(k));
    Rellena(t, "ZZ", zz);
    Rellena(t, "WW", ww);
    Rellena(t, "YY", yy);
    // The question points an arrow at every carbon whose hybridisation the answer gives.
    std::string q = t;
    for (std::string_view h : {"sp^3", "sp^2", "sp"}) ReplaceAll(q, h, " &aus");
    const std::string fin = i % 2 == 0 || i == items ? "&LF" : "";
    const std::string etiqueta = "&+B" + Letra(i) + ")&-B ";
    g.GP_Statement += std::string(i % 2 ? "&SP=5:" : "&SP=50:") + etiqueta + q + fin;
    g.GP_Solution += std::string(i % 2 ? "&SP=10:" : "&SP=50:") + etiqueta + t + fin;
  }
}

}  // namespace ss::mod::FOR
