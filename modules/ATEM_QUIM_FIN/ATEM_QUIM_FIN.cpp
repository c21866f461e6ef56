#include "modules/ATEM_QUIM_FIN/ATEM_QUIM_FIN.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ATEM_QUIM_FIN/compuestos.h"
#include "problems/generic.h"
#include "problems/numeros.h"

namespace ss::mod::ATEM_QUIM_FIN {
namespace {

using std::string;
using std::string_view;
using F = Familia;

// How a list sets its items out on the page.
enum class Forma {
  Cuatro,      // one name a line; formulas in four columns
  Dos,         // short names two a line; formulas in eight columns
  Ocho,        // (names asked) formulas in eight columns, names two a line
};

// Which ions a list of ions takes: every one, the monoatomic ones only, or
// (among the cations) the polyatomic ones only.
enum class Iones { Todos, Monoatomicos, Poliatomicos };

struct Lista {
  string_view codigo, maximo, titulo;
  bool pideFormula;                 // names shown, formulas asked
  std::vector<Familia> familias;    // the index table: position 1..n -> family
  Forma forma = Forma::Cuatro;
  std::array<int, 8> columnas{};    // statement columns of a name list set out in eight
  Iones iones = Iones::Todos;
};

const std::vector<Familia> kOxidos = {F::MO, F::MO, F::AO, F::AO, F::PEROX, F::PEROX};
const std::vector<Familia> kHaluros = {F::HA, F::HA_ac, F::MA, F::MHA, F::HA,
                                       F::MA, F::AX,    F::HA_ac, F::MA, F::MA};
const std::vector<Familia> kOxoacidos(6, F::HAO);
const std::vector<Familia> kMonoatomicos = {F::M_ion, F::A_ion, F::M_ion};
const std::vector<Familia> kPoliatomicos = {F::HA_ion, F::AO_ion, F::HAO_ion, F::AO_ion,
                                            F::M_ion,  F::M_ion,  F::M_ion,   F::M_ion};
const std::vector<Familia> kHidruros = {F::MH, F::MH, F::AH, F::AH};

constexpr std::array<int, 8> kOchoElementos = {5, 16, 26, 37, 48, 59, 69, 80};
constexpr std::array<int, 8> kOchoIones = {10, 20, 30, 40, 50, 60, 70, 80};

// The twenty lists in the order of their generators.
const Lista& Definicion(int n) {
  static const Lista kListas[20] = {
      {"020", "026", "W: Elements", true, {F::E}, Forma::Dos},
      {"040", "026", "N: Elements", false, {F::E}, Forma::Ocho, kOchoElementos},
      {"100", "026", "W: Oxides and peroxides", true, kOxidos},
      {"120", "026", "N: Oxides and peroxides", false, kOxidos},
      {"220", "026", "W: Hydrogen halides and their salts. Nonmetal-nonmetal salts", true, kHaluros},
      {"240", "026", "N: Hydrogen halides and their salts. Nonmetal-nonmetal salts", false, kHaluros},
      {"260", "026", "W: Oxyacids", true, kOxoacidos},
      {"280", "026", "N: Oxyacids", false, kOxoacidos},
      {"060", "026", "W: Monoatomic ions", true, kMonoatomicos, Forma::Dos, {}, Iones::Monoatomicos},
      {"080", "026", "N: Monoatomic ions", false, kMonoatomicos, Forma::Ocho, kOchoIones,
       Iones::Monoatomicos},
      {"380", "026", "W: Polyatomic ions", true, kPoliatomicos, Forma::Cuatro, {}, Iones::Poliatomicos},
      {"400", "026", "N: Polyatomic ions", false, kPoliatomicos, Forma::Cuatro, {}, Iones::Poliatomicos},
      {"140", "020", "W: Hydrides", true, kHidruros},
      {"160", "020", "N: Hydrides", false, kHidruros},
      {"180", "020", "W: Hydroxides", true, {F::MOH}},
      {"200", "020", "N: Hydroxides", false, {F::MOH}},
      {"300", "026", "W: Neutral salts derived from oxyacids", true, {F::MAO}},
      {"320", "026", "N: Neutral salts derived from oxyacids", false, {F::MAO}},
      {"340", "026", "W: Acid salts derived from oxyacids", true, {F::MHAO}},
      {"360", "026", "N: Acid salts derived from oxyacids", false, {F::MHAO}},
  };
  return kListas[n - 1];
}

bool Poliatomico(const string& formula) {
  return formula == "NH_4^+" || formula == "H_3O^+" || formula == "Hg_2^2^+";
}

// Whether a cation drawn for a list of ions belongs there.
bool Admitido(const Lista& l, Familia f, const string& formula) {
  if (f != F::M_ion || l.iones == Iones::Todos) return true;
  return Poliatomico(formula) == (l.iones == Iones::Poliatomicos);
}

// The names shown for a compound: the systematic one, then the Stock name and
// the common name where they differ (the common one only while the line stays
// short, and never in the short lists of elements and monoatomic ions).
string Nombres(const Compuesto& c, bool dosComoMucho) {
  string t = c.sistematico;
  if (c.stock != c.sistematico) t += ",  " + c.stock;
  if (!dosComoMucho && c.tradicional != c.sistematico && c.tradicional != c.stock && t.size() < 60)
    t += ",  " + c.tradicional;
  return t;
}

string Letra(int i) { return string(1, static_cast<char>('a' + i - 1)); }
string Tab(int columna) { return "&SP=" + std::to_string(columna) + ":"; }

// The items of a list: a family from the index table, then a compound of it,
// the whole step again while the formula repeats an earlier one or the list
// does not take it. Every list can draw more distinct formulas than it asks
// for, so this ends.
std::vector<Compuesto> Items(GenContext& g, const Lista& l, int n) {
  const int tope = static_cast<int>(l.familias.size());
  auto sorteo = [&] { return static_cast<int>(AleatorioEn(g.rnd, 1, tope, 1, 1)); };
  int indice = sorteo();
  std::vector<Compuesto> items;
  while (static_cast<int>(items.size()) < n) {
    if (++indice > tope) indice = sorteo();
    if (AzarSupera(g.rnd, 0.7)) indice = sorteo();
    const Familia f = l.familias[static_cast<std::size_t>(indice - 1)];
    Compuesto c = ComponerCompuesto(g.rnd, f);
    bool repetido = !Admitido(l, f, c.formula);
    for (const Compuesto& previo : items) repetido = repetido || previo.formula == c.formula;
    if (!repetido) items.push_back(std::move(c));
  }
  return items;
}

// Short texts set out `porLinea` to a line at the given columns, a new line
// after each full line and after the last.
string Columnas(const std::vector<string>& textos, std::span<const int> columnas) {
  string t;
  const std::size_t porLinea = columnas.size();
  for (std::size_t i = 0; i < textos.size(); ++i) {
    t += Tab(columnas[i % porLinea]) + textos[i];
    if ((i + 1) % porLinea == 0 || i + 1 == textos.size()) t += "&LF";
  }
  return t;
}

void HazLista(GenContext& g, int numero) {
  const Lista& l = Definicion(numero);
  EntradaLiteral(g, "750", "Nomenclature of inorganic compounds", l.codigo, l.titulo, l.maximo);
  const int n = ItemsEjercicio(g);
  const std::vector<Compuesto> items = Items(g, l, n);

  const bool corta = l.forma != Forma::Cuatro;  // elements and monoatomic ions
  std::vector<string> nombres, formulas;
  for (int i = 1; i <= n; ++i) {
    const Compuesto& c = items[static_cast<std::size_t>(i - 1)];
    nombres.push_back(Nombres(c, corta));
    formulas.push_back(c.formula);
  }
  static constexpr int kDos[] = {5, 50};
  static constexpr int kDosSolucion[] = {10, 50};
  static constexpr int kCuatroSolucion[] = {10, 30, 50, 70};
  static constexpr int kCuatroEnunciado[] = {5, 27, 48, 70};

  // "&+Ba)&-B" labels: the statement's, and the solution's in upright type.
  auto etiquetados = [&](const std::vector<string>& textos, string_view antes, string_view despues) {
    std::vector<string> v;
    for (int i = 1; i <= n; ++i)
      v.push_back(string(antes) + "&+B" + Letra(i) + ")&-B" + string(despues) +
                  textos[static_cast<std::size_t>(i - 1)]);
    return v;
  };

  if (l.pideFormula) {
    g.GP_Statement = "Give the formula for each of the following:&LF";
    if (l.forma == Forma::Dos) {
      g.GP_Statement += Columnas(etiquetados(nombres, "", "  "), kDos);
    } else {
      for (const string& t : etiquetados(nombres, "", "  ")) g.GP_Statement += Tab(5) + t + "&LF";
    }
    g.GP_Statement += "&LF";
    if (l.forma == Forma::Dos)
      g.GP_Solution = Columnas(etiquetados(formulas, "&-I", " "), kOchoIones);
    else
      g.GP_Solution = Columnas(etiquetados(formulas, "&-I", " "), kCuatroSolucion);
  } else {
    g.GP_Statement = "Name each of the following compounds:&LF";
    if (l.forma == Forma::Ocho)
      g.GP_Statement += Columnas(etiquetados(formulas, "", " "), l.columnas);
    else
      g.GP_Statement += Columnas(etiquetados(formulas, "", " "), kCuatroEnunciado);
    g.GP_Statement += "&LF";
    if (l.forma == Forma::Ocho) {
      g.GP_Solution = Columnas(etiquetados(nombres, "&-I", " "), kDosSolucion);
    } else {
      for (const string& t : etiquetados(nombres, "&-I", " ")) g.GP_Solution += Tab(10) + t + "&LF";
    }
  }
}

template <int N>
void GeneraLista(GenContext& g) {
  HazLista(g, N);
}

constexpr ss::Generador kGeneradores[20] = {
    GeneraLista<1>,  GeneraLista<2>,  GeneraLista<3>,  GeneraLista<4>,  GeneraLista<5>,
    GeneraLista<6>,  GeneraLista<7>,  GeneraLista<8>,  GeneraLista<9>,  GeneraLista<10>,
    GeneraLista<11>, GeneraLista<12>, GeneraLista<13>, GeneraLista<14>, GeneraLista<15>,
    GeneraLista<16>, GeneraLista<17>, GeneraLista<18>, GeneraLista<19>, GeneraLista<20>,
};

}  // namespace

std::span<const ss::Generador> Generadores() { return kGeneradores; }

}  // namespace ss::mod::ATEM_QUIM_FIN
