// Isomers and hybridisation read as a student reads them: each isomer set of one molecular formula, the one asked
// for; the chiral or cis-trans choice judged by the tests' own reader; every sp label matching its carbon's bonds.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "tests/modules/dis_comun.h"
#include "tests/modules/organica.h"

namespace ss {
namespace {

using Textos = std::vector<std::string>;

test::Problema Gen(int gen, int seqB, int items, uint64_t semilla) {
  test::Problema p = test::GeneraEn("ANEU_QUIM_FOR", gen, seqB, items, semilla * 7919 + static_cast<uint64_t>(seqB));
  EXPECT_FALSE(!p.st.ends_with("&LF") || std::regex_search(p.st + p.so, std::regex("ZZ|WW|YY"))) << p.st << p.so;
  return p;
}

std::string Formula(std::string_view s) {
  bool ok = false;
  const std::string f = test::TextoFormula(test::FormulaMolecular(s, &ok));
  EXPECT_TRUE(ok) << s;
  return f;
}

// ---- A reader of condensed formulas: groups between bonds ("CH_3-CH(NH_2)-COOH") ----------------------------

struct Grupo {
  std::string texto;
  bool carbono = false;
  Textos sust;       // groups on single bonds, as formulas: "H", "HO", "Cl", "CH3"
  int multiple = 0;  // bonds to atoms written in the group: =O 2, ≡N 3
};

Grupo LeeGrupo(const std::string& texto) {
  Grupo r{texto};
  static const std::regex cabeza("^(H_2N|HO|H(?:_\\d)?)?C(?!l)(.*)$");
  static const std::regex pieza("\\(([^)]*)\\)(_\\d)?|(OOH)|(O$)|(N$)|(OH|NH_2|NO_2|Cl|Br|F|I|H)(_\\d)?");
  std::smatch m;
  const std::string g = texto == "HOOC" ? "COOH" : texto;
  if (!std::regex_match(g, m, cabeza)) return r;
  r.carbono = true;
  auto pon = [&](const std::string& s, const std::string& n) {
    for (int k = n.empty() ? 1 : n[1] - '0'; k > 0; --k) r.sust.push_back(Formula(s));
  };
  const std::string pre = m[1], resto = m[2];
  if (!pre.empty()) pon(pre == "H_2N" ? "NH_2" : pre == "HO" ? "OH" : "H", pre.size() == 3 ? pre.substr(1) : "");
  std::size_t leido = 0;
  for (std::sregex_iterator it(resto.begin(), resto.end(), pieza), end; it != end; ++it) {
    const auto& p = *it;
    leido += static_cast<std::size_t>(p.length());
    if (p[1].matched) pon(p[1], p[2]);
    if (p[3].matched) r.multiple += 2, pon("OH", "");
    r.multiple += p[4].matched ? 2 : p[5].matched ? 3 : 0;
    if (p[6].matched) pon(p[6], p[7]);
  }
  EXPECT_EQ(leido, resto.size()) << "cannot read " << texto;
  return r;
}

struct Molecula {
  std::vector<Grupo> g;
  std::vector<int> enlace;  // enlace[i] joins g[i] and g[i + 1]
  std::string Lado(std::size_t a, std::size_t b) const {
    std::string t;
    for (; a < b; ++a) t += g[a].texto;
    return Formula(t);
  }
  // The groups on single bonds to carbon i, the chain on each side counting as one, but for the side of `sin`.
  Textos Vecinos(std::size_t i, std::size_t sin = std::string::npos) const {
    Textos v = g[i].sust;
    if (i > 0 && sin != i - 1) v.push_back(Lado(0, i));
    if (i + 1 < g.size() && sin != i + 1) v.push_back(Lado(i + 1, g.size()));
    return v;
  }
};

Molecula Lee(const std::string& f) {
  Molecula m;
  static const std::regex enlace("-|&=|&#");
  for (std::sregex_token_iterator it(f.begin(), f.end(), enlace, -1), end; it != end; ++it) m.g.push_back(LeeGrupo(*it));
  for (std::sregex_iterator it(f.begin(), f.end(), enlace), end; it != end; ++it)
    m.enlace.push_back(it->str() == "-" ? 1 : it->str() == "&=" ? 2 : 3);
  for (std::size_t i = 0; i < m.g.size(); ++i)  // four bonds at every carbon, or the reading (or formula) is wrong
    EXPECT_TRUE(!m.g[i].carbono || m.g[i].sust.size() + m.g[i].multiple + (i ? m.enlace[i - 1] : 0) +
                                           (i + 1 < m.g.size() ? m.enlace[i] : 0) == 4) << f << " at " << m.g[i].texto;
  return m;
}

bool Distintos(Textos v) {
  std::sort(v.begin(), v.end());
  return std::adjacent_find(v.begin(), v.end()) == v.end();
}

// Carbons with four different groups on single bonds (quiral), or C=C bonds whose carbons each carry two
// different groups.
int Cuenta(const std::string& f, bool quiral) {
  const Molecula m = Lee(f);
  int n = 0;
  for (std::size_t i = 0; i < m.g.size(); ++i) {
    const Textos v = m.Vecinos(i), a = m.Vecinos(i, i + 1), b = i + 1 < m.g.size() ? m.Vecinos(i + 1, i) : Textos{};
    n += quiral ? m.g[i].carbono && v.size() == 4 && Distintos(v)
                : b.size() == 2 && m.enlace[i] == 2 && m.g[i].carbono && m.g[i + 1].carbono && a.size() == 2 &&
                      Distintos(a) && Distintos(b);
  }
  return n;
}

// ---- Generator 11 ----------------------------------------------------------------------------------------------

// The structures of a solution: the texts at its tab stops that hold no word (names and sentences do).
Textos Estructuras(const std::string& so) {
  Textos v;
  static const std::regex corte("&SP=\\d+:|&LF"), palabra("[a-z]{3}"), numero("^\\(\\d\\) +");
  for (std::sregex_token_iterator it(so.begin(), so.end(), corte, -1), end; it != end; ++it) {
    std::string c(Trim(it->str()));
    if (!c.empty() && !std::regex_search(std::regex_replace(c, std::regex("&[+-][IB]"), ""), palabra))
      v.push_back(std::regex_replace(c, numero, ""));
  }
  return v;
}

TEST(ForIsomeros, EverySetHasOneFormula) {
  // By form: the molecular formula of the isomers and how many are drawn; the ring forms by row (seqB mod 7).
  const std::map<int, std::pair<std::string, std::size_t>> kFormas = {
      {0, {"C4H8O", 2}}, {1, {"C3H9N", 3}}, {3, {"C5H10", 5}}, {4, {"C2H6O", 2}}, {6, {"C5H12", 3}},
      {9, {"C3H8O", 3}}, {11, {"C4H8", 6}}, {12, {"C4H10", 2}}, {14, {"C4H8BrCl", 1}}, {15, {"C4H6Br3Cl", 1}},
      {16, {"C4H8", 2}}};
  const Textos kAnillos = {"C8H10", "C9H12", "C7H8O", "C6H4ClNO2", "C6H3Cl3", "C6H5BrO", "C7H7I"};
  for (int seqB = 0; seqB < 17 * 7; ++seqB) {
    const int f = seqB % 17;
    const bool anillo = f == 8 || f == 13;
    if ((!anillo && (seqB >= 17 || !kFormas.count(f)))) continue;
    const test::Problema p = Gen(11, seqB, 0, 1);
    const Textos e = Estructuras(p.so);
    const auto [formula, cuantas] = anillo ? std::pair{kAnillos[static_cast<std::size_t>(seqB % 7)], std::size_t{3}}
                                           : kFormas.at(f);
    ASSERT_EQ(e.size(), cuantas) << p.so;
    EXPECT_EQ(std::set<std::string>(e.begin(), e.end()).size(), e.size()) << p.so;
    for (const std::string& s : e) EXPECT_EQ(Formula(s), formula) << "form " << f << ": " << s;
    std::smatch m;  // the formula the statement shows
    if ((!anillo && f < 14) || f == 16) {
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex("C(_\\d)+H(_\\d)+([A-Z][a-z]?(_\\d)*)*"))) << p.st;
      EXPECT_EQ(Formula(m.str()), formula) << p.st;
    }
    if (f == 14 || f == 15) {  // the asterisks mark the chiral carbons of the compound named
      const std::string cond = f == 14 ? "CH_3-CHBr-CHCl-CH_3" : "CH_3-CBr_2-CBrCl-CH_3";
      EXPECT_EQ(Formula(cond), formula);
      EXPECT_EQ(std::count(e[0].begin(), e[0].end(), '*'), Cuenta(cond, true)) << e[0];
    }
  }
}

TEST(ForIsomeros, OneChoiceHasTheProperty) {
  // Forms 2 and 7 ask for a chiral carbon, 5 and 10 for cis-trans isomers; seqB modulo 7 picks the right one.
  static const std::regex item("&\\+B([a-d])\\)&-B  (.*?)(?=&SP=|&LF)"), respuesta("&\\+B([a-d])\\)&-B: +(.*?)&LF");
  for (const bool quiral : {true, false}) {
    std::set<std::string> vistas, correctas;
    for (const int forma : quiral ? std::vector{2, 7} : std::vector{5, 10})
      for (int vuelta = 0; vuelta < 7; ++vuelta)
        for (uint64_t semilla = 1; semilla <= 4; ++semilla) {
          const test::Problema p = Gen(11, forma + 17 * vuelta, 0, semilla);
          std::map<char, std::string> op;
          for (std::sregex_iterator it(p.st.begin(), p.st.end(), item), end; it != end; ++it) op[(*it)[1].str()[0]] = (*it)[2];
          std::smatch m;
          ASSERT_TRUE(op.size() == 4 && std::regex_search(p.so, m, respuesta)) << p.st << p.so;
          for (const auto& [l, f] : op) {
            vistas.insert(f);
            EXPECT_EQ(Cuenta(f, quiral) > 0, l == m[1].str()[0]) << f << "\n" << p.st << p.so;
          }
          // The answer writes or draws that very compound; a drawing marks its one chiral carbon.
          const std::string dibujo = m[2].str().substr(0, m[2].str().find("   "));
          correctas.insert(op[m[1].str()[0]]);
          EXPECT_EQ(Formula(dibujo), Formula(op[m[1].str()[0]])) << p.so;
          EXPECT_EQ(std::count(dibujo.begin(), dibujo.end(), '*'), quiral ? 1 : 0) << dibujo;
        }
    EXPECT_EQ(correctas.size(), 7u);                    // each right compound asked
    EXPECT_EQ(vistas.size(), quiral ? 14u : 15u);       // and every wrong one judged
  }
}

// ---- Generator 13 ----------------------------------------------------------------------------------------------

int Orden(const std::string& s) { return s.ends_with("&=") ? 2 : s.ends_with("&#") ? 3 : s.ends_with("-") ? 1 : 0; }

// Every labelled carbon of a drawing: its label against the hybridisation its bonds give (sp^3 four single
// bonds, sp^2 one double, sp a triple or two doubles); `esqueleto` gathers the shape, whatever groups fill it.
Textos Carbonos(const std::string& s, std::string& esqueleto) {
  Textos v;
  static const std::regex udb("#UDB\\(C([SDX])X(?:#R1\\(.*?#R1\\))?#R2\\((sp(?:\\^[23])?)#R2\\)#UDB\\)(H(_\\d)?)?");
  static const std::regex carbonoIzq("#UDB\\)(H(_\\d)?)?-$");
  for (std::sregex_iterator it(s.begin(), s.end(), udb), end; it != end; ++it) {
    const std::size_t ini = static_cast<std::size_t>(it->position()), fin = ini + static_cast<std::size_t>(it->length());
    const char arriba = (*it)[1].str()[0];
    const int izq = Orden(s.substr(ini >= 2 ? ini - 2 : 0, std::min<std::size_t>(ini, 2)));
    const int der = Orden(s.substr(fin, s.compare(fin, 1, "-") ? 2 : 1));
    const int h = (*it)[3].matched ? ((*it)[4].matched ? (*it)[4].str()[1] - '0' : 1) : 0;
    const int sube = arriba == 'S' ? 1 : arriba == 'D' ? 2 : 0;
    const int dobles = (izq == 2) + (der == 2) + (sube == 2);
    std::string segun = izq + der + sube + h != 4 ? "valence " + std::to_string(izq + der + sube + h)
                        : izq == 3 || der == 3 || dobles >= 2 ? "sp"
                        : dobles ? "sp^2" : "sp^3";
    // A hetero atom on a single bond to a C=C or C≡C carbon makes an enol, an enamine or the like: none keeps.
    const bool heteroIzq = izq == 1 && !std::regex_search(s.substr(0, ini), carbonoIzq);
    const bool heteroDer = der == 1 && s.compare(fin + 1, 5, "#UDB(") != 0;
    if (segun != "sp^3" && arriba != 'D' && (heteroIzq || heteroDer)) segun = "hetero atom on a C=C or C≡C";
    EXPECT_EQ((*it)[2].str(), segun) << s;
    v.push_back(segun);
    esqueleto += segun + arriba + std::to_string(h * 100 + izq * 10 + der) + (heteroIzq ? "h" : "") + (heteroDer ? "h|" : "|");
  }
  return v;
}

TEST(ForHibridacion, EveryLabelMatchesItsBonds) {
  static const std::regex item("&SP=\\d+:&\\+B([a-z])\\)&-B (.*?)(?=&SP=|&LF)");
  std::set<std::string> todas;
  for (uint64_t semilla = 1; semilla <= 12; ++semilla) {
    const test::Problema p = Gen(13, static_cast<int>(semilla), 20, semilla);
    Textos preguntas, respuestas;
    for (std::sregex_iterator it(p.st.begin(), p.st.end(), item), end; it != end; ++it) preguntas.push_back((*it)[2]);
    for (std::sregex_iterator it(p.so.begin(), p.so.end(), item), end; it != end; ++it) respuestas.push_back((*it)[2]);
    ASSERT_EQ(respuestas.size(), 12u) << p.so;  // twenty asked, twelve structures in all
    ASSERT_EQ(preguntas.size(), 12u) << p.st;
    std::set<std::string> esqueletos;
    for (std::size_t k = 0; k < 12; ++k) {
      std::string esqueleto;
      const std::size_t n = Carbonos(respuestas[k], esqueleto).size();
      // Every carbon carries a label; the question has an arrow in place of each.
      EXPECT_EQ(static_cast<int>(n), test::FormulaMolecular(respuestas[k])["C"]) << respuestas[k];
      std::string q = respuestas[k];
      for (const char* h : {"sp^3", "sp^2", "sp"}) ReplaceAll(q, h, "&aus");
      EXPECT_EQ(std::regex_replace(preguntas[k], std::regex(" &aus"), "&aus"), q);
      esqueletos.insert(esqueleto);
      todas.insert(esqueleto);
    }
    EXPECT_EQ(esqueletos.size(), 12u) << p.so;  // no structure twice
  }
  EXPECT_EQ(todas.size(), 12u);
}

}  // namespace
}  // namespace ss
