// The organic nomenclature tables read as a teacher reads them: every name, by
// the tests' own reader, gives the formula of the structure drawn beside it; a
// chain's locants are those of the drawing read from its better end; benzene
// positions (o-, m-, p-, 1,3-) are the vertices drawn.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <tuple>

#include "modules/ATEM_QUIM_FOR/organica.h"
#include "tests/modules/dis_comun.h"
#include "tests/modules/nombres_organicos.h"

namespace ss {
namespace {

namespace Q = mod::ATEM_QUIM_FOR;
using test::Atomos;
using test::Parte;

// A drawn chain read from the left: its carbons and its parts. A #UDB group is
// one carbon with the branches at the ends of its bonds, any other group a run
// of carbons ("(CH_2)_2", "CH_3CH_2"); "&=" and "&#" are numbered at their left carbon.
struct Cadena {
  int n = 1;
  std::vector<Parte> partes;
};

std::string Rama(const Atomos& a) {
  for (const test::Morfema& m : test::Morfemas())
    if (m.k == 'G' && !m.d && !m.o && !m.n && a == (m.c ? Atomos{{"C", m.c}, {"H", 2 * m.c + 1}} : Atomos{{m.x, 1}}))
      return m.t;
  return "?";
}

Cadena LeeCadena(std::string_view s) {
  Cadena c;
  std::string texto;
  int atomos = 0;
  auto cierra = [&] {
    const Atomos a = test::FormulaMolecular(texto);
    c.n += std::max(0, atomos + (a.count("C") ? a.at("C") : 0) - 1);
    texto.clear(), atomos = 0;
  };
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s.compare(i, 5, "#UDB(") == 0) {
      const std::size_t fin = test::organica::Cierre(s, i, "#UDB");
      atomos += s[i + 5] == 'C';
      bool ok = true;
      for (const auto& [k, a] : test::organica::Rotulos(s.substr(i + 8, fin - i - 8), ok))
        c.partes.push_back({c.n, Rama(a)});
      i = fin + 4;
    } else if (s[i] == '-' || s.compare(i, 2, "&=") == 0 || s.compare(i, 2, "&#") == 0) {
      cierra();
      if (s[i] == '&') c.partes.push_back({c.n, std::string(1, s[++i])});
      ++c.n;
    } else {
      texto += s[i];
    }
  }
  cierra();
  return c;
}

std::vector<Parte> Partes(const Cadena& c, bool izquierda) {
  std::vector<Parte> v = c.partes;
  for (Parte& p : v) p.locante = izquierda ? p.locante : c.n + (p.que == "=" || p.que == "#" ? 0 : 1) - p.locante;
  std::sort(v.begin(), v.end());
  return v;
}

// Lowest locants: of the multiple bonds, then the double ones, then the branches.
auto Clave(const std::vector<Parte>& v) {
  std::vector<int> multiples, dobles, ramas;
  for (const Parte& p : v) {
    (p.que == "=" || p.que == "#" ? multiples : ramas).push_back(p.locante);
    if (p.que == "=") dobles.push_back(p.locante);
  }
  return std::tuple(multiples, dobles, ramas);
}

std::string Concuerdan(const test::Nombre& l, const Cadena& c) {
  if (c.n != l.cadena) return "a chain of " + std::to_string(c.n);
  std::multiset<std::string> tipos, dibujados;
  std::vector<Parte> dadas;  // the parts the name numbers
  for (const Parte& p : l.partes)
    if (tipos.insert(p.que); p.locante) dadas.push_back(p);
  for (const Parte& p : c.partes) dibujados.insert(p.que);
  if (tipos != dibujados) return "branches or bonds differ";
  std::sort(dadas.begin(), dadas.end());
  for (bool izq : {true, false})
    if (const auto v = Partes(c, izq); std::includes(v.begin(), v.end(), dadas.begin(), dadas.end()))
      return dadas.empty() || Clave(v) <= Clave(Partes(c, !izq)) ? "" : "locants not the lowest";
  return "locants differ from the drawing";
}

// Two benzene positions in the name against the two substituted vertices drawn.
void Posiciones(const std::string& nombre, const std::string& e) {
  std::smatch m;
  int a = 1, b = 0;
  if (std::regex_search(nombre, m, std::regex(R"(&\+I([omp])&-I-)")))
    b = 2 + static_cast<int>(std::string("omp").find(m[1].str()[0]));
  else if (std::regex_match(nombre, m, std::regex(R"((\d)[,-]\D*(\d)-?[a-z]*benzene)")))
    a = std::stoi(m[1]), b = std::stoi(m[2]);
  if (const std::size_t i = e.find("#BC"); b && i != std::string::npos) {
    const std::string v = e.substr(i + 5, 6);
    const int s = static_cast<int>(v.find('S')), t = static_cast<int>(v.rfind('S'));
    EXPECT_EQ(std::count(v.begin(), v.end(), 'S'), 2);
    EXPECT_EQ(std::min(t - s, 6 - t + s), std::min(b - a, 6 - b + a));
  }
}

struct Caso {
  Q::Bloques (*filas)();
  std::vector<int> fines;
  std::vector<const char*> familias;  // what every name of a block says; empty: one block, chains read
};
const Caso kTablas[] = {
    {Q::FilasAlcanos, {55}, {}}, {Q::FilasAlquenos, {61}, {}}, {Q::FilasCiclos, {64}, {"."}},
    {Q::FilasOxigenados, {10, 18, 27, 37, 75, 87, 105, 115},
     {"acid$", "al$|acrolein|aldehyde", "one$", "ol$|alcohol|glycol|glycerol", "oate$", "phenol|resorcinol", "ether$",
      "(oxo|hydroxy).*(acid|al)$"}},
    {Q::FilasNitrogenados, {35, 51, 64, 75, 88},
     {"amine$|aniline", "amide$", "nitrile$", "nitro", "(oxo|hydroxy|amino)"}}};

TEST(ForTablas, EveryNameReadsToTheStructureDrawn) {
  for (const Caso& k : kTablas) {
    const Q::Tabla t = Q::Construye(k.filas());
    ASSERT_EQ(t.finBloques, k.fines);
    std::set<std::string> nombres, estructuras;
    for (std::size_t i = 0, b = 0; i < t.filas.size(); ++i) {
      const Q::Fila& f = t.filas[i];
      SCOPED_TRACE(f.nombre + "  |  " + f.estructura);
      while (static_cast<int>(i) >= k.fines[b]) ++b;
      bool ok = false;
      const std::string dibujo = test::TextoFormula(test::FormulaMolecular(f.estructura, &ok));
      EXPECT_TRUE(ok);
      EXPECT_EQ((f.nombre + f.estructura).find('['), std::string::npos);
      EXPECT_TRUE(nombres.insert(LCase(f.nombre)).second && estructuras.insert(f.estructura).second) << "twice";
      EXPECT_TRUE(k.familias.empty() || std::regex_search(LCase(f.nombre), std::regex(k.familias[b])));
      for (const test::Nombre& n : test::LeeNombres(f.nombre)) {
        EXPECT_EQ(n.error, "");
        EXPECT_EQ(test::TextoFormula(n.formula), dibujo);
        EXPECT_EQ(k.familias.empty() ? Concuerdan(n, LeeCadena(f.estructura)) : "", "");
      }
      Posiciones(f.nombre, f.estructura);
    }
  }
}

TEST(ForTablas, TheNameReaderKnowsItsChemistry) {
  for (const auto& [nombre, formula] : std::vector<std::pair<std::string, std::string>>{
           {"Methylpropane or isobutane", "C4H10"}, {"5,5-dimethyl-6-heptene-1,3-diyne", "C9H10"},
           {"1,1-dibromo-1-buten-3-yne", "C4H2Br2"}, {"Cyclopentyl butanoate", "C9H16O2"},
           {"&+IN&-I-methyl-&+IN&-I-propylphenylamine", "C10H15N"}, {"Dicyclohexyl ether", "C12H22O"},
           {"2,4,6-trinitrotoluene / TNT", "C7H5N3O6"}, {"Propanedinitrile", "C3H2N2"}})
    for (const test::Nombre& n : test::LeeNombres(nombre)) EXPECT_EQ(n.error + test::TextoFormula(n.formula), formula);
  for (const char* malo : {"5,5-dimethyl-6-hepten-1,3-diyne", "2,3-methylbutane", "1-butene-3-yne", "2-butane",
                           "hexane-1-yne", "1-buten", "Etylpentane", "pentdiene", "4-propanol", "Dimethylether",
                           "methylpropyl ether", "Propanone acid", "1,3-diphenol", "ethanoic"})
    EXPECT_NE(test::LeeNombres(malo).front().error, "") << malo;
  const Cadena c = LeeCadena("CH_3-CH_2-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_3");
  EXPECT_EQ(Concuerdan(test::LeeNombres("2-methylbutane").front(), c), "");
  EXPECT_NE(Concuerdan(test::LeeNombres("3-methylbutane").front(), c), "");
  EXPECT_NE(Concuerdan(test::LeeNombres("2-methylpentane").front(), c), "");
}

// The ten lists through the dispatcher: every item a row of its table, none
// twice, its name with its own structure, laid out in two columns.
TEST(ForListas, ItemsPairNamesWithTheirStructures) {
  static const std::regex item(R"(&\+B[a-z]\)&-B  (.*?)(?=&SP=\d+:&\+B|&LF))");
  for (int gen = 1; gen <= 10; ++gen) {
    std::set<std::pair<std::string, std::string>> filas;
    for (const Q::Fila& f : Q::Construye(kTablas[(gen - 1) / 2].filas()).filas)
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
      const auto n = static_cast<std::size_t>(std::min(std::clamp(pedidos, 2, 26), gen == 5 || gen == 6 ? 16 : 20));
      ASSERT_EQ(st.size(), n);
      ASSERT_EQ(so.size(), n);
      std::string enunciado =
          dibujar ? "&-I&-BDraw structures for these compounds:&LF" : "&-I&-BName the following compounds:&LF";
      std::string solucion;
      std::set<std::string> vistos;
      for (std::size_t i = 0; i < n; ++i) {
        const std::string& nombre = dibujar ? st[i] : so[i];
        const std::string& estructura = dibujar ? so[i] : st[i];
        EXPECT_TRUE(filas.count({nombre, estructura})) << nombre << " | " << estructura;
        EXPECT_TRUE(vistos.insert(nombre).second) << "twice: " << nombre;
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
