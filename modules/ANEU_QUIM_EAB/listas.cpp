// Generators 5 to 7: the exercises of lists in the Brønsted sense. Species
// to classify as acid, base or amphoteric (5), salts whose water solution is
// acidic, basic or neutral (6), and acid-base reactions with one species
// left blank (7). Every reaction is stored balanced; the blank form is the
// stored one with a species taken out.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ANEU_QUIM_EAB/eab.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eab {
namespace {

// ---- Species: acid, base or amphoteric --------------------------------------

// One species with its conjugates: the acid it gives on taking a proton and
// the base it gives on losing one ("" where it has none). Kind 'A' an acid,
// 'B' a base, 'F' amphoteric, 'H' a hydroxide, a base through its OH- ion.
struct Especie {
  std::string_view formula, acidoConj, baseConj;
  char tipo;
};

// The 66 species of the exercise: acids, hydroxides, bases and amphoteric
// anions, charges written over the last subscript.
constexpr std::array<Especie, 66> kEspecies = {{
    {"HF", "", "F#SPB(L-#T)( #SPB)", 'A'},
    {"HNO_3", "", "NO#SPB(L-#T)(3#SPB)", 'A'},
    {"HNO_2", "", "NO#SPB(L-#T)(2#SPB)", 'A'},
    {"HMnO_4", "", "MnO#SPB(L-#T)(4#SPB)", 'A'},
    {"HCN", "", "CN#SPB(L-#T)( #SPB)", 'A'},
    {"HClO_4", "", "ClO#SPB(L-#T)(4#SPB)", 'A'},
    {"HClO_3", "", "ClO#SPB(L-#T)(3#SPB)", 'A'},
    {"HClO_2", "", "ClO#SPB(L-#T)(2#SPB)", 'A'},
    {"HClO", "", "ClO#SPB(L-#T)( #SPB)", 'A'},
    {"HCl", "", "Cl#SPB(L-#T)( #SPB)", 'A'},
    {"HBrO_4", "", "BrO#SPB(L-#T)(4#SPB)", 'A'},
    {"HBrO_3", "", "BrO#SPB(L-#T)(3#SPB)", 'A'},
    {"HBrO_2", "", "BrO#SPB(L-#T)(2#SPB)", 'A'},
    {"HBrO", "", "BrO#SPB(L-#T)( #SPB)", 'A'},
    {"HBr", "", "Br#SPB(L-#T)( #SPB)", 'A'},
    {"HIO_4", "", "IO#SPB(L-#T)(4#SPB)", 'A'},
    {"HIO_3", "", "IO#SPB(L-#T)(3#SPB)", 'A'},
    {"HIO_2", "", "IO#SPB(L-#T)(2#SPB)", 'A'},
    {"HIO", "", "IO#SPB(L-#T)( #SPB)", 'A'},
    {"HI", "", "I#SPB(L-#T)( #SPB)", 'A'},
    {"LiOH", "", "", 'H'},
    {"NaOH", "", "", 'H'},
    {"KOH", "", "", 'H'},
    {"RbOH", "", "", 'H'},
    {"CsOH", "", "", 'H'},
    {"NH_3", "NH#SPB(L+#T)(4#SPB)", "", 'B'},
    {"CH_3-NH_2", "CH_3-NH#SPB(L+#T)(3#SPB)", "", 'B'},
    {"CO#SPB(L2-#T)(3#SPB)", "HCO#SPB(L-#T)(3#SPB)", "", 'B'},
    {"S#SPB(L2-#T)( #SPB)", "HS#SPB(L-#T)( #SPB)", "", 'B'},
    {"CH_3COO#SPB(L-#T)( #SPB)", "CH_3COOH", "", 'B'},
    {"HCOO#SPB(L-#T)( #SPB)", "HCOOH", "", 'B'},
    {"Se#SPB(L2-#T)( #SPB)", "HSe#SPB(L-#T)( #SPB)", "", 'B'},
    {"CN#SPB(L-#T)( #SPB)", "HCN", "", 'B'},
    {"ClO#SPB(L-#T)( #SPB)", "HClO", "", 'B'},
    {"ClO#SPB(L-#T)(2#SPB)", "HClO_2", "", 'B'},
    {"ClO#SPB(L-#T)(3#SPB)", "HClO_3", "", 'B'},
    {"BrO#SPB(L-#T)( #SPB)", "HBrO", "", 'B'},
    {"BrO#SPB(L-#T)(2#SPB)", "HBrO_2", "", 'B'},
    {"BrO#SPB(L-#T)(3#SPB)", "HBrO_3", "", 'B'},
    {"BrO#SPB(L-#T)(4#SPB)", "HBrO_4", "", 'B'},
    {"IO#SPB(L-#T)( #SPB)", "HIO", "", 'B'},
    {"IO#SPB(L-#T)(2#SPB)", "HIO_2", "", 'B'},
    {"IO#SPB(L-#T)(3#SPB)", "HIO_3", "", 'B'},
    {"IO#SPB(L-#T)(4#SPB)", "HIO_4", "", 'B'},
    {"NO#SPB(L-#T)(2#SPB)", "HNO_2", "", 'B'},
    {"PO#SPB(L3-#T)(4#SPB)", "HPO#SPB(L2-#T)(4#SPB)", "", 'B'},
    {"SO#SPB(L2-#T)(4#SPB)", "HSO#SPB(L-#T)(4#SPB)", "", 'B'},
    {"SO#SPB(L2-#T)(3#SPB)", "HSO#SPB(L-#T)(3#SPB)", "", 'B'},
    {"SeO#SPB(L2-#T)(4#SPB)", "HSeO#SPB(L-#T)(4#SPB)", "", 'B'},
    {"SeO#SPB(L2-#T)(3#SPB)", "HSeO#SPB(L-#T)(3#SPB)", "", 'B'},
    {"H_2AsO#SPB(L-#T)(4#SPB)", "H_3AsO_4", "HAsO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HAsO#SPB(L2-#T)(4#SPB)", "H_2AsO#SPB(L-#T)(4#SPB)", "AsO#SPB(L3-#T)(4#SPB)", 'F'},
    {"H_2PO#SPB(L-#T)(4#SPB)", "H_3PO_4", "HPO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HPO#SPB(L2-#T)(4#SPB)", "H_2PO#SPB(L-#T)(4#SPB)", "PO#SPB(L3-#T)(4#SPB)", 'F'},
    {"HSO#SPB(L-#T)(3#SPB)", "H_2SO_3", "SO#SPB(L2-#T)(3#SPB)", 'F'},
    {"HSeO#SPB(L-#T)(3#SPB)", "H_2SeO_3", "SeO#SPB(L2-#T)(3#SPB)", 'F'},
    {"HTeO#SPB(L-#T)(3#SPB)", "H_2TeO_3", "TeO#SPB(L2-#T)(3#SPB)", 'F'},
    {"HSO#SPB(L-#T)(4#SPB)", "H_2SO_4", "SO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HSeO#SPB(L-#T)(4#SPB)", "H_2SeO_4", "SeO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HTeO#SPB(L-#T)(4#SPB)", "H_2TeO_4", "TeO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HMnO#SPB(L-#T)(4#SPB)", "H_2MnO_4", "MnO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HCrO#SPB(L-#T)(4#SPB)", "H_2CrO_4", "CrO#SPB(L2-#T)(4#SPB)", 'F'},
    {"HCr_2O#SPB(L-#T)(7#SPB)", "H_2Cr_2O_7", "Cr_2O#SPB(L2-#T)(7#SPB)", 'F'},
    {"HS#SPB(L-#T)( #SPB)", "H_2S", "S#SPB(L2-#T)( #SPB)", 'F'},
    {"HSe#SPB(L-#T)( #SPB)", "H_2Se", "Se#SPB(L2-#T)( #SPB)", 'F'},
    {"HTe#SPB(L-#T)( #SPB)", "H_2Te", "Te#SPB(L2-#T)( #SPB)", 'F'},
}};

// The statement lists short items four to a line.
std::string EnColumnas(const std::vector<std::string>& items) {
  static constexpr std::string_view kTope[4] = {"&SP=5:", "&SP=29:", "&SP=53:", "&SP=77:"};
  std::string t;
  for (std::size_t i = 0; i < items.size(); ++i) {
    t += std::string(kTope[i % 4]) + Etiqueta(static_cast<int>(i) + 1) + items[i];
    if (i % 4 == 3 || i + 1 == items.size()) t += "&LF";
  }
  return t;
}

// ---- Salts: acidic, basic or neutral solution -------------------------------

// An ion of the salts: formula, charge, character in water ('N' no
// hydrolysis, 'A' acid, 'B' basic) and, for an ion that reacts with water,
// that reaction, balanced.
struct Ion {
  std::string_view formula;
  int carga;
  char caracter;
  std::string_view hidrolisis;
};

constexpr std::array<Ion, 4> kCationes = {{
    {"K", 1, 'N', ""},
    {"Na", 1, 'N', ""},
    {"Ca", 2, 'N', ""},
    {"NH_4", 1, 'A', "NH#SPB(L+#T)(4#SPB) + H_2O &Q NH_3 + H_3O^+"},
}};

constexpr std::array<Ion, 9> kAniones = {{
    {"I", 1, 'N', ""},
    {"Br", 1, 'N', ""},
    {"Cl", 1, 'N', ""},
    {"NO_3", 1, 'N', ""},
    {"Se", 2, 'B', "Se#SPB(L2-#T)( #SPB) + H_2O &Q HSe#SPB(L-#T)( #SPB) + OH#SPB(L-#T)( #SPB)"},
    {"NO_2", 1, 'B', "NO#SPB(L-#T)(2#SPB) + H_2O &Q HNO_2 + OH#SPB(L-#T)( #SPB)"},
    {"S", 2, 'B', "S#SPB(L2-#T)( #SPB) + H_2O &Q HS#SPB(L-#T)( #SPB) + OH#SPB(L-#T)( #SPB)"},
    {"CO_3", 2, 'B', "CO#SPB(L2-#T)(3#SPB) + H_2O &Q HCO#SPB(L-#T)(3#SPB) + OH#SPB(L-#T)( #SPB)"},
    {"PO_4", 3, 'B', "PO#SPB(L3-#T)(4#SPB) + H_2O &Q HPO#SPB(L2-#T)(4#SPB) + OH#SPB(L-#T)( #SPB)"},
}};

// One ion written n times in a formula: "Ca", "K_2", "(NO_3)_2".
std::string Parte(std::string_view f, int n) {
  if (n == 1) return std::string(f);
  const bool poliatomico = std::count_if(f.begin(), f.end(), [](char c) { return c >= 'A' && c <= 'Z'; }) > 1;
  return (poliatomico ? "(" + std::string(f) + ")" : std::string(f)) + "_" + std::to_string(n);
}

std::string FormulaSal(const Ion& c, const Ion& a) {
  const int m = static_cast<int>(MCD(c.carga, a.carga));
  return Parte(c.formula, a.carga / m) + Parte(a.formula, c.carga / m);
}

// ---- Acid-base reactions -----------------------------------------------------

// Conjugate pairs, acid and base: the acid of one pair gives its proton to
// the base of the other.
struct Par {
  std::string_view acido, base;
};

constexpr std::array<Par, 36> kPares = {{
    {"HF", "F#SPB(L-#T)( #SPB)"},
    {"HNO_2", "NO#SPB(L-#T)(2#SPB)"},
    {"HCN", "CN#SPB(L-#T)( #SPB)"},
    {"HClO_2", "ClO#SPB(L-#T)(2#SPB)"},
    {"HClO", "ClO#SPB(L-#T)( #SPB)"},
    {"HBrO_4", "BrO#SPB(L-#T)(4#SPB)"},
    {"HBrO_3", "BrO#SPB(L-#T)(3#SPB)"},
    {"HBrO_2", "BrO#SPB(L-#T)(2#SPB)"},
    {"HBrO", "BrO#SPB(L-#T)( #SPB)"},
    {"HIO_4", "IO#SPB(L-#T)(4#SPB)"},
    {"HIO_3", "IO#SPB(L-#T)(3#SPB)"},
    {"HIO_2", "IO#SPB(L-#T)(2#SPB)"},
    {"HIO", "IO#SPB(L-#T)( #SPB)"},
    {"CH_3COOH", "CH_3COO#SPB(L-#T)( #SPB)"},
    {"HCOOH", "HCOO#SPB(L-#T)( #SPB)"},
    {"NH#SPB(L+#T)(4#SPB)", "NH_3"},
    {"CH_3-NH#SPB(L+#T)(3#SPB)", "CH_3-NH_2"},
    {"HCO#SPB(L-#T)(3#SPB)", "CO#SPB(L2-#T)(3#SPB)"},
    {"HS#SPB(L-#T)( #SPB)", "S#SPB(L2-#T)( #SPB)"},
    {"HSe#SPB(L-#T)( #SPB)", "Se#SPB(L2-#T)( #SPB)"},
    {"HPO#SPB(L2-#T)(4#SPB)", "PO#SPB(L3-#T)(4#SPB)"},
    {"HSO#SPB(L-#T)(4#SPB)", "SO#SPB(L2-#T)(4#SPB)"},
    {"HSO#SPB(L-#T)(3#SPB)", "SO#SPB(L2-#T)(3#SPB)"},
    {"HSeO#SPB(L-#T)(4#SPB)", "SeO#SPB(L2-#T)(4#SPB)"},
    {"HSeO#SPB(L-#T)(3#SPB)", "SeO#SPB(L2-#T)(3#SPB)"},
    {"H_2AsO#SPB(L-#T)(4#SPB)", "HAsO#SPB(L2-#T)(4#SPB)"},
    {"HAsO#SPB(L2-#T)(4#SPB)", "AsO#SPB(L3-#T)(4#SPB)"},
    {"H_2PO#SPB(L-#T)(4#SPB)", "HPO#SPB(L2-#T)(4#SPB)"},
    {"HTeO#SPB(L-#T)(3#SPB)", "TeO#SPB(L2-#T)(3#SPB)"},
    {"HTeO#SPB(L-#T)(4#SPB)", "TeO#SPB(L2-#T)(4#SPB)"},
    {"HMnO#SPB(L-#T)(4#SPB)", "MnO#SPB(L2-#T)(4#SPB)"},
    {"HCrO#SPB(L-#T)(4#SPB)", "CrO#SPB(L2-#T)(4#SPB)"},
    {"HCr_2O#SPB(L-#T)(7#SPB)", "Cr_2O#SPB(L2-#T)(7#SPB)"},
    {"H_2S", "HS#SPB(L-#T)( #SPB)"},
    {"H_2Se", "HSe#SPB(L-#T)( #SPB)"},
    {"H_2Te", "HTe#SPB(L-#T)( #SPB)"},
}};

// The gap a student fills in.
constexpr std::string_view kHueco = "__________";

int Sorteo(GenContext& g, int n) { return static_cast<int>(AleatorioEn(g.rnd, 1, n, 1, 1)) - 1; }

}  // namespace

void Generador5(GenContext& g) {
  const int n = ItemsEjercicio(g);
  std::vector<int> vistas;
  std::vector<std::string> items;
  std::string so;
  const std::string acido = g.MsgQUI("Esp_Acido"), base = g.MsgQUI("Esp_Base"), anfotero = g.MsgQUI("Esp_Anfot");
  const std::string conjAcido = g.MsgQUI("Conj_acido"), conjBase = g.MsgQUI("Conj_base");
  for (int i = 0; i < n; ++i) {
    int k;
    do k = Sorteo(g, static_cast<int>(kEspecies.size()));
    while (std::find(vistas.begin(), vistas.end(), k) != vistas.end());
    vistas.push_back(k);
    const Especie& e = kEspecies[static_cast<std::size_t>(k)];
    items.emplace_back(e.formula);
    std::string r;
    switch (e.tipo) {
      case 'A': r = acido + "&SP=48:" + conjBase + ": " + std::string(e.baseConj); break;
      case 'H': r = base + "&SP=48:" + g.MsgQUI("Esp_Hidroxido"); break;
      case 'B': r = base + "&SP=48:" + conjAcido + ": " + std::string(e.acidoConj); break;
      default:
        r = anfotero + "&SP=48:" + conjAcido + ": " + std::string(e.acidoConj) + ";  " + conjBase + ": " +
            std::string(e.baseConj);
    }
    so += "&SP=10:" + Etiqueta(i + 1) + std::string(e.formula) + "&SP=30:" + r + "&LF";
  }
  g.GP_Statement = g.MsgQUI("Indicar_Acido_Base_Anfot") + ":&LF" + EnColumnas(items) + "&LF";
  g.GP_Solution = so;
}

void Generador6(GenContext& g) {
  const int n = ItemsEjercicio(g);
  std::vector<std::string> vistas, items;
  std::string so;
  for (int i = 0; i < n; ++i) {
    // At least one ion of the salt leaves water as it is. Calcium carbonate
    // and phosphate hardly dissolve, so they make no solution to judge; the
    // other 29 salts are more than a list holds, so none comes twice.
    const Ion *c, *a;
    std::string f;
    do {
      c = &kCationes[static_cast<std::size_t>(Sorteo(g, static_cast<int>(kCationes.size())))];
      a = &kAniones[static_cast<std::size_t>(Sorteo(g, static_cast<int>(kAniones.size())))];
      f = FormulaSal(*c, *a);
    } while ((c->caracter != 'N' && a->caracter != 'N') ||
             (c->formula == "Ca" && (a->formula == "CO_3" || a->formula == "PO_4")) ||
             std::find(vistas.begin(), vistas.end(), f) != vistas.end());
    vistas.push_back(f);
    items.push_back(f);
    const std::string codigo{c->caracter, a->caracter};
    std::string r;
    if (codigo == "AN")
      r = g.MsgQUI("Caracter_Acido") + "&SP=45:" + std::string(c->hidrolisis);
    else if (codigo == "NB")
      r = g.MsgQUI("Caracter_Basico") + "&SP=45:" + std::string(a->hidrolisis);
    else
      r = g.MsgQUI("Caracter_Neutro") + "&SP=45:" + g.MsgQUI("Sin_hidrolisis");
    so += "&SP=10:" + Etiqueta(i + 1) + f + "&SP=30:" + r + "&LF";
  }
  g.GP_Statement = g.MsgQUI("Indicar_Acido_Basico_Neutro") + ":&LF" + EnColumnas(items) + "&LF";
  g.GP_Solution = so;
}

void Generador7(GenContext& g) {
  const int n = ItemsEjercicio(g);
  std::vector<std::pair<int, int>> vistas;
  std::string st = g.MsgQUI("Completar_Reac_AB") + ":&LF", so;
  for (int i = 0; i < n; ++i) {
    // Two different pairs, each couple of pairs once: the acid of the first
    // gives its proton to the base of the second.
    int p, q;
    auto clave = [&] { return std::pair<int, int>(std::min(p, q), std::max(p, q)); };
    do {
      p = Sorteo(g, static_cast<int>(kPares.size()));
      do q = Sorteo(g, static_cast<int>(kPares.size()));
      while (q == p);
    } while (std::find(vistas.begin(), vistas.end(), clave()) != vistas.end());
    vistas.push_back(clave());
    const Par& a = kPares[static_cast<std::size_t>(p)];
    const Par& b = kPares[static_cast<std::size_t>(q)];
    std::array<std::string_view, 4> t = {a.acido, b.base, a.base, b.acido};
    const bool derecha = AzarSupera(g.rnd, 0.5);  // the blank among the products
    if (AzarSupera(g.rnd, 0.5)) std::swap(t[0], t[2]), std::swap(t[1], t[3]);  // the reverse reaction
    const std::size_t hueco = (derecha ? 2 : 0) + (AzarSupera(g.rnd, 0.5) ? 1 : 0);
    auto ecuacion = [&](bool conHueco) {
      auto x = [&](std::size_t k) { return conHueco && k == hueco ? std::string(kHueco) : std::string(t[k]); };
      return x(0) + " + " + x(1) + "  &Q  " + x(2) + " + " + x(3);
    };
    st += "&SP=5:" + Etiqueta(i + 1) + ecuacion(true) + "&LF";
    so += "&SP=10:" + Etiqueta(i + 1) + std::string(t[hueco]) + "&SP=33:" + ecuacion(false) + "&LF";
  }
  g.GP_Statement = st + "&LF";
  g.GP_Solution = so;
}

}  // namespace ss::mod::eab
