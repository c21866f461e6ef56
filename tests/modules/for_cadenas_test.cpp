// The chain lists read as a student reads them. A name is read by the tests'
// own rules into a parent chain, its double and triple bonds and its branches,
// each with its locant; that gives a molecular formula, which must be the one
// the drawn structure shows, and the locants must be those of the drawing read
// from one of its ends, the lower of the two.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <tuple>

#include "modules/ATEM_QUIM_FOR/organica.h"
#include "tests/modules/dis_comun.h"
#include "tests/modules/organica.h"

namespace ss {
namespace {

namespace Q = mod::ATEM_QUIM_FOR;
using test::Atomos;

// A part of a compound with its locant (0 where the name gives none): a branch
// by its prefix ("ethyl", "chloro") or a multiple bond ("=" or "#", at the
// locant of its lower carbon).
struct Parte {
  int locante;
  std::string que;
  auto operator<=>(const Parte&) const = default;
};
bool EsEnlace(const Parte& p) { return p.que == "=" || p.que == "#"; }

struct Lectura {
  int cadena = 0;
  std::vector<Parte> partes;
  std::string error;  // empty when the name reads
};

const std::map<std::string, std::string> kTriviales = {
    {"isobutane", "2-methylpropane"}, {"isopentane", "2-methylbutane"}, {"neopentane", "2,2-dimethylpropane"},
    {"ethylene", "ethene"}, {"acetylene", "ethyne"}};
const std::map<std::string, int> kRaices = {{"meth", 1}, {"eth", 2}, {"prop", 3}, {"but", 4}, {"pent", 5},
                                            {"hex", 6}, {"hept", 7}, {"oct", 8}, {"non", 9}, {"dec", 10}};
// A prefix: the carbons of the alkyl group, or the halogen that takes a hydrogen's place.
const std::map<std::string, std::pair<int, std::string>> kRamas = {
    {"methyl", {1, ""}}, {"ethyl", {2, ""}},  {"propyl", {3, ""}}, {"fluoro", {0, "F"}},
    {"chloro", {0, "Cl"}}, {"bromo", {0, "Br"}}, {"iodo", {0, "I"}}};
const std::map<std::string, int> kVeces = {{"", 1}, {"di", 2}, {"tri", 3}, {"tetra", 4}};

// One systematic name: words parted by hyphens, locants before the prefixes or
// the ending they number. The "e" of "ene" drops only before the vowel of "yne".
Lectura LeeSistematico(const std::string& nombre) {
  static const std::regex locantes_("\\d+(,\\d+)*"),
      rama("^(di|tri|tetra)?(methyl|ethyl|propyl|fluoro|chloro|bromo|iodo)"),
      padre("(meth|eth|prop|but|pent|hex|hept|oct|non|dec)(a?)(ane|ene|en|diene|dien|triene|trien|yne|diyne)"),
      triple("(di|tri)?yne");
  Lectura r;
  std::vector<int> locantes;
  std::string ultimoPrefijo, finPadre;
  auto pon = [&](const std::string& que, int veces) {
    if (!locantes.empty() && static_cast<int>(locantes.size()) != veces) r.error = "locants do not match " + que;
    for (int k = 0; k < veces; ++k) r.partes.push_back({locantes.empty() ? 0 : locantes[k], que});
    locantes.clear();
  };
  std::smatch m;
  for (std::size_t a = 0; r.error.empty() && a <= nombre.size();) {
    const std::size_t b = std::min(nombre.find('-', a), nombre.size());
    std::string palabra = nombre.substr(a, b - a);
    a = b + 1;
    if (std::regex_match(palabra, locantes_)) {
      for (std::size_t k = 0; k != std::string::npos; k = palabra.find(',', k + 1))
        locantes.push_back(std::stoi(palabra.substr(k + (k > 0))));
    } else if (r.cadena) {  // only the triple bonds of an alkene may follow its parent
      if (finPadre.find("en") == std::string::npos || !std::regex_match(palabra, m, triple) ||
          finPadre.ends_with('n') != (palabra == "yne"))
        r.error = "wrong ending after the parent: " + palabra;
      else pon("#", kVeces.at(m[1]));
      finPadre = "ane";
    } else {
      for (; std::regex_search(palabra, m, rama); palabra = m.suffix()) {
        if (m[2].str() < ultimoPrefijo) r.error = "prefixes out of alphabetical order";
        pon(ultimoPrefijo = m[2], kVeces.at(m[1]));
      }
      if (palabra.empty()) continue;
      // "a" after the root only before a multiplied ending: "pentadiene", "heptadiyne".
      if (!std::regex_match(palabra, m, padre) || (m[2] == "a") != (m[3].length() > 3))
        return r.error = "no parent chain in " + palabra, r;
      r.cadena = kRaices.at(m[1]);
      finPadre = m[3];
      if (finPadre == "ane") continue;
      const bool dobles = finPadre.find("en") != std::string::npos;
      pon(dobles ? "=" : "#", kVeces.at(finPadre.substr(0, finPadre.find(dobles ? "en" : "yne"))));
    }
  }
  if (r.error.empty() && (!r.cadena || finPadre.ends_with('n') || !locantes.empty()))
    r.error = "no parent chain, an -en- with no -yne, or locants left over";
  return r;
}

// A name as the list shows it: size codes dropped, upper case at the start
// allowed; "A or B" gives both readings.
std::vector<Lectura> LeeNombre(std::string nombre) {
  nombre = LCase(std::regex_replace(nombre, std::regex("&FS=\\d+:"), ""));
  std::vector<Lectura> v;
  for (std::size_t a = 0, b = 0; b != std::string::npos; a = b + 4) {
    const std::string parte = nombre.substr(a, (b = nombre.find(" or ", a)) - a);
    v.push_back(LeeSistematico(kTriviales.count(parte) ? kTriviales.at(parte) : parte));
  }
  return v;
}

// The parent's hydrogens less two for every double bond and four for every
// triple bond, a branch in place of a hydrogen.
std::string Formula(const Lectura& l) {
  Atomos a{{"C", l.cadena}, {"H", 2 * l.cadena + 2}};
  for (const Parte& p : l.partes) {
    if (EsEnlace(p)) a["H"] -= p.que == "=" ? 2 : 4;
    else if (const auto& [c, x] = kRamas.at(p.que); c) a["C"] += c, a["H"] += 2 * c;
    else a["H"] -= 1, a[x] += 1;
  }
  return test::TextoFormula(a);
}

// No carbon of the chain with more than four bonds, every locant on the chain.
std::string Valencias(const Lectura& l) {
  std::vector<int> enlaces(static_cast<std::size_t>(l.cadena + 2), 0);
  for (int i = 1; i <= l.cadena; ++i) enlaces[i] = (i > 1) + (i < l.cadena);
  for (const Parte& p : l.partes) {
    if (p.locante > l.cadena - EsEnlace(p)) return "locant off the chain";
    const int extra = p.que == "#" ? 2 : 1;
    if (p.locante) enlaces[p.locante] += extra, enlaces[p.locante + 1] += EsEnlace(p) ? extra : 0;
  }
  const auto mas = std::max_element(enlaces.begin(), enlaces.end());
  return *mas > 4 ? "carbon " + std::to_string(mas - enlaces.begin()) + " with more than four bonds" : "";
}

// A drawn chain: the groups between the bonds "-", "&=", "&#" of the line, a
// group with a #UDB one carbon with the branches at the ends of its bonds, any
// other a run of unbranched carbons ("CH_2", "(CH_2)_2", "CH_3CH_2").
struct Cadena {
  std::vector<std::vector<std::string>> ramas{{}};  // by carbon, left to right
  std::string enlaces;                              // between carbon k and k+1
  std::string error;
};

std::string Rama(const Atomos& a) {
  const int c = a.count("C") ? a.at("C") : 0;
  for (const auto& [prefijo, r] : kRamas)
    if (a == (c ? Atomos{{"C", r.first}, {"H", 2 * r.first + 1}} : Atomos{{r.second, 1}})) return prefijo;
  return "?";
}

Cadena LeeCadena(std::string_view s) {
  Cadena c;
  std::string texto;  // the group's text out of its #UDB
  int atomos = 0;     // carbons of its #UDB
  auto cierra = [&] {
    const Atomos a = test::FormulaMolecular(texto);
    const int n = atomos + (a.count("C") ? a.at("C") : 0);
    if (n < 1 || (n > 1 && !c.ramas.back().empty())) c.error = "a chain group of " + std::to_string(n) + " carbons";
    for (int k = 1; k < n; ++k) c.enlaces += '-', c.ramas.emplace_back();
    texto.clear(), atomos = 0;
  };
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s.compare(i, 5, "#UDB(") == 0) {
      const std::size_t fin = test::organica::Cierre(s, i, "#UDB");
      if (fin == std::string_view::npos) return c.error = "#UDB not closed", c;
      atomos += s[i + 5] == 'C';
      bool ok = true;
      for (const auto& [k, a] : test::organica::Rotulos(s.substr(i + 8, fin - i - 8), ok))
        c.ramas.back().push_back(Rama(a));
      i = fin + 4;
    } else if (s[i] == '-' || s.compare(i, 2, "&=") == 0 || s.compare(i, 2, "&#") == 0) {
      cierra();
      c.enlaces += s[i] == '-' ? '-' : s[++i];
      c.ramas.emplace_back();
    } else {
      texto += s[i];
    }
  }
  cierra();
  return c;
}

// The parts of a drawn chain, numbered from the left end or from the right.
std::vector<Parte> Partes(const Cadena& c, bool izquierda) {
  const int n = static_cast<int>(c.ramas.size());
  std::vector<Parte> v;
  for (int j = 1; j <= n; ++j) {
    for (const std::string& r : c.ramas[j - 1]) v.push_back({izquierda ? j : n + 1 - j, r});
    if (j < n && c.enlaces[j - 1] != '-') v.push_back({izquierda ? j : n - j, std::string(1, c.enlaces[j - 1])});
  }
  std::sort(v.begin(), v.end());
  return v;
}

// What decides between the two numberings: the locants of all multiple bonds,
// then of the double bonds, then of the branches, then of the branch cited first.
auto Clave(const std::vector<Parte>& v) {
  std::vector<int> multiples, dobles, ramas;
  Parte primera{0, "~"};
  for (const Parte& p : v) {
    (EsEnlace(p) ? multiples : ramas).push_back(p.locante);
    if (p.que == "=") dobles.push_back(p.locante);
    if (!EsEnlace(p) && std::tie(p.que, p.locante) < std::tie(primera.que, primera.locante)) primera = p;
  }
  return std::tuple(multiples, dobles, ramas, primera.locante);  // each already in order
}

// The name agrees with the drawing read from one end: the same parts, every
// locant the name gives; and that end gives the lower locants.
std::string Concuerdan(const Lectura& l, const Cadena& c) {
  if (static_cast<int>(c.ramas.size()) != l.cadena) return "a chain of " + std::to_string(c.ramas.size()) + " carbons";
  auto tipos = [](const std::vector<Parte>& v) {
    std::multiset<std::string> t;
    for (const Parte& p : v) t.insert(p.que);
    return t;
  };
  if (tipos(l.partes) != tipos(Partes(c, true))) return "branches or bonds differ";
  std::vector<Parte> dadas;
  std::copy_if(l.partes.begin(), l.partes.end(), std::back_inserter(dadas), [](const Parte& p) { return p.locante; });
  std::sort(dadas.begin(), dadas.end());
  for (bool izq : {true, false}) {
    const std::vector<Parte> v = Partes(c, izq);
    if (std::includes(v.begin(), v.end(), dadas.begin(), dadas.end()))
      return dadas.empty() || Clave(v) <= Clave(Partes(c, !izq)) ? "" : "locants not the lowest";
  }
  return "locants differ from the drawing";
}

int Cuenta(const std::string& s, const std::string& t) {
  int n = 0;
  for (std::size_t i = s.find(t); i != std::string::npos; i = s.find(t, i + 1)) ++n;
  return n;
}

// Every row: the name reads, gives the structure's formula, agrees with the
// drawing, and names a compound that can be; as many "&=" as "-ene"s and "&#"
// as "-yne"s; no placeholder left, no row twice.
void CompruebaTabla(const Q::Bloques& b, std::size_t filas, bool insaturada) {
  const Q::Tabla t = Q::Construye(b);
  ASSERT_EQ(t.filas.size(), filas);
  EXPECT_EQ(t.finBloques, std::vector<int>{static_cast<int>(filas)});
  std::set<std::pair<std::string, std::string>> vistas;
  for (const Q::Fila& f : t.filas) {
    SCOPED_TRACE(f.nombre + "  |  " + f.estructura);
    bool ok = false;
    const std::string dibujada = test::TextoFormula(test::FormulaMolecular(f.estructura, &ok));
    const Cadena c = LeeCadena(f.estructura);
    EXPECT_TRUE(ok && c.error.empty()) << c.error;
    for (const Lectura& l : LeeNombre(f.nombre)) {
      if (!l.error.empty()) {
        ADD_FAILURE() << l.error;
        continue;
      }
      EXPECT_EQ(Formula(l), dibujada);
      EXPECT_EQ(Valencias(l) + Concuerdan(l, c), "");
      EXPECT_EQ(std::any_of(l.partes.begin(), l.partes.end(), EsEnlace), insaturada);
      for (const std::string que : {"=", "#"})
        EXPECT_EQ(Cuenta(f.estructura, "&" + que),
                  std::count_if(l.partes.begin(), l.partes.end(), [&](const Parte& p) { return p.que == que; }));
    }
    EXPECT_TRUE(vistas.insert({f.nombre, f.estructura}).second) << "twice";
    EXPECT_TRUE(f.estructura.find("( ") == std::string::npos && f.nombre.find('[') == std::string::npos);
  }
}

TEST(ForCadenasTablas, AlkanesReadAsDrawn) { CompruebaTabla(Q::FilasAlcanos(), 55, false); }
TEST(ForCadenasTablas, AlkenesAndAlkynesReadAsDrawn) { CompruebaTabla(Q::FilasAlquenos(), 61, true); }

// The reader itself: formulas it gives and faults it must see.
TEST(ForCadenasTablas, TheNameReaderKnowsItsChemistry) {
  for (const auto& [nombre, formula] : std::map<std::string, std::string>{
           {"Methylpropane or isobutane", "C4H10"}, {"5,5-dimethyl-6-heptene-1,3-diyne", "C9H10"},
           {"1,1-dibromo-1-buten-3-yne", "C4H2Br2"}, {"Butatriene", "C4H4"}, {"3-propyl-1,5-heptadiyne", "C10H14"}})
    for (const Lectura& l : LeeNombre(nombre)) EXPECT_EQ(l.error + Formula(l), formula) << nombre;
  for (const char* malo : {"5,5-dimethyl-6-hepten-1,3-diyne", "2-methyl-ethylpentane", "2,3-methylbutane",
                           "1-butene-3-yne", "2-butane", "hexane-1-yne", "1-buten", "Etylpentane"})
    EXPECT_NE(LeeNombre(malo).front().error, "") << malo;
  EXPECT_NE(Valencias(LeeNombre("1,2-butadiyne").front()), "");
  EXPECT_NE(Valencias(LeeNombre("2,2-dimethyl-2-butene").front()), "");
  const Cadena c = LeeCadena("CH_3-CH_2-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_3");
  EXPECT_EQ(Concuerdan(LeeNombre("2-methylbutane").front(), c), "");
  EXPECT_NE(Concuerdan(LeeNombre("3-methylbutane").front(), c), "");
  EXPECT_NE(Concuerdan(LeeNombre("2-methylpentane").front(), c), "");
  EXPECT_EQ(LeeCadena("CH_3-(CH_2)_2-CH_3").ramas.size(), 4u);
  EXPECT_NE(LeeCadena("CH_3-#UDB(CSX#R1(CH_3#R1)#UDB)H_2C-CH_3").error, "");
}

// ---- The ten lists through the dispatcher: every item a row of its table,
// none twice, its name with its own structure, laid out in two columns.
TEST(ForListas, ItemsPairNamesWithTheirStructures) {
  const Q::Bloques tablas[] = {Q::FilasAlcanos(), Q::FilasAlquenos(), Q::FilasCiclos(), Q::FilasOxigenados(),
                               Q::FilasNitrogenados()};
  static const std::regex item(R"(&\+B[a-z]\)&-B  (.*?)(?=&SP=\d+:&\+B|&LF))");
  for (int gen = 1; gen <= 10; ++gen) {
    std::set<std::pair<std::string, std::string>> filas;
    for (const Q::Fila& f : Q::Construye(tablas[(gen - 1) / 2]).filas)
      filas.insert({static_cast<char>(std::toupper(f.nombre[0])) + f.nombre.substr(1), f.estructura});
    for (int k = 0; k < 40; ++k) {
      constexpr int kPedidos[] = {1, 2, 7, 20, 25};
      const int pedidos = kPedidos[k % 5];
      const bool dibujar = gen % 2 == 1;
      const test::Problema p =
          test::GeneraEn("ANEU_QUIM_FOR", gen, 3, pedidos, static_cast<uint64_t>(gen * 1000 + k));
      SCOPED_TRACE(p.st + "\n" + p.so);
      std::vector<std::string> st, so;
      for (std::sregex_iterator it(p.st.begin(), p.st.end(), item), e; it != e; ++it) st.push_back((*it)[1]);
      for (std::sregex_iterator it(p.so.begin(), p.so.end(), item), e; it != e; ++it) so.push_back((*it)[1]);
      const std::size_t n = static_cast<std::size_t>(std::min(std::clamp(pedidos, 2, 26), gen == 5 || gen == 6 ? 16 : 20));
      ASSERT_EQ(st.size(), n);
      ASSERT_EQ(so.size(), n);
      std::string enunciado =
          dibujar ? "&-I&-BDraw structures for these compounds:&LF" : "&-I&-BName the following compounds:&LF";
      std::string solucion;
      std::set<std::pair<std::string, std::string>> vistos;
      for (std::size_t i = 0; i < n; ++i) {
        const std::string& nombre = dibujar ? st[i] : so[i];
        const std::string& estructura = dibujar ? so[i] : st[i];
        EXPECT_TRUE(filas.count({nombre, estructura})) << nombre << " | " << estructura;
        EXPECT_TRUE(vistos.insert({nombre, estructura}).second) << "twice: " << nombre;
        if (gen <= 4) {
          for (const Lectura& l : LeeNombre(nombre))
            EXPECT_EQ(Formula(l), test::TextoFormula(test::FormulaMolecular(estructura))) << nombre;
        }
        const std::string etiqueta = ":&+B" + std::string(1, static_cast<char>('a' + i)) + ")&-B  ";
        const std::string cierre = i % 2 == 1 || i + 1 == n ? "&LF" : "";
        enunciado += (i % 2 ? "&SP=50" : "&SP=5") + etiqueta + st[i] + cierre;
        solucion += (i % 2 ? "&SP=50" : "&SP=10") + etiqueta + so[i] + cierre;
      }
      EXPECT_EQ(p.st, enunciado + "&LF");
      EXPECT_EQ(p.so, solucion);
    }
  }
}

}  // namespace
}  // namespace ss
