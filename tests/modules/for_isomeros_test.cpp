// Isomers and hybridisation read as a student reads them: each isomer set of one molecular formula, the chiral or
// cis-trans choice judged by the tests' own reader of condensed formulas, every sp label matching its carbon's bonds.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
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

// Carbons with four different groups on single bonds (quiral), or C=C bonds whose carbons each carry two different
// groups, in a condensed formula ("HOCH_2-CH(NH_2)-COOH"); the chain on each side of a carbon counts as one group.
// Every carbon must show four bonds.
int Cuenta(const std::string& f, bool quiral) {
  static const std::regex enlace("-|&=|&#"), cabeza("^(H(?:_\\d)?|HO)C(?!l)");
  static const std::regex pieza("\\(([^)]*)\\)(_\\d)?|([A-Z][a-z]?(?:H(?:_\\d)?)?)(_\\d)?");
  Textos texto;
  std::vector<int> e;  // e[i] joins group i and i + 1
  for (std::sregex_token_iterator it(f.begin(), f.end(), enlace, {-1, 0}), end; it != end; ++it)
    if (texto.size() > e.size()) e.push_back(*it == "-" ? 1 : *it == "&=" ? 2 : 3);
    else texto.push_back(*it);
  const std::size_t n = texto.size();
  std::vector<Textos> sust(n);
  std::vector<int> multiple(n, -1);  // bonds to atoms written in the group (=O 2, ≡N 3); -1 not a carbon
  for (std::size_t i = 0; i < n; ++i) {
    std::smatch c;  // hydrogens or OH before the carbon go behind it: "HCCl_3" is read "CCl_3H", "HOCH_2" "CH_2OH"
    const std::string g = texto[i] == "HOOC"                     ? "COOH"
                          : !std::regex_search(texto[i], c, cabeza) ? texto[i]
                          : "C" + c.suffix().str() + (c[1] == "HO" ? "OH" : c[1].str());
    if (!g.starts_with("C") || g.starts_with("Cl")) continue;
    std::size_t leido = 1;
    multiple[i] = 0;
    for (std::sregex_iterator it(g.begin() + 1, g.end(), pieza), end; it != end; ++it) {  // a bare O or N: =O, ≡N
      const auto& p = *it;
      const std::string t = p[1].matched ? p[1].str() : p[3].str(), k = p[1].matched ? p[2].str() : p[4].str();
      leido += static_cast<std::size_t>(p.length());
      multiple[i] += t == "O" ? 2 : t == "N" ? 3 : 0;
      for (int r = t == "O" || t == "N" ? 0 : k.empty() ? 1 : k[1] - '0'; r > 0; --r) sust[i].push_back(Formula(t));
    }
    EXPECT_EQ(leido, g.size()) << "cannot read " << texto[i];
    EXPECT_EQ(static_cast<int>(sust[i].size()) + multiple[i] + (i ? e[i - 1] : 0) + (i + 1 < n ? e[i] : 0), 4) << f;
  }
  auto distintos = [&](std::size_t i, std::size_t sin) {  // how many groups on single bonds, if all different
    Textos v = sust[i];
    std::string izq, der;
    for (std::size_t k = 0; k < n; ++k) (k < i ? izq : der) += k == i ? "" : texto[k];
    if (i > 0 && sin != i - 1) v.push_back(Formula(izq));
    if (i + 1 < n && sin != i + 1) v.push_back(Formula(der));
    std::sort(v.begin(), v.end());
    return std::adjacent_find(v.begin(), v.end()) == v.end() ? v.size() : 0;
  };
  int cuenta = 0;
  for (std::size_t i = 0; i < n; ++i)
    cuenta += multiple[i] >= 0 && (quiral ? distintos(i, n) == 4
                                          : i + 1 < n && e[i] == 2 && multiple[i + 1] >= 0 &&
                                                distintos(i, i + 1) == 2 && distintos(i + 1, i) == 2);
  return cuenta;
}

// The structures of a solution: the texts at its tab stops that hold no word (names and sentences do).
Textos Estructuras(const std::string& so) {
  static const std::regex corte("&SP=\\d+:|&LF"), palabra("[a-z]{3}"), marcas("&[+-][IB]|^\\(\\d\\) +");
  Textos v;
  for (std::sregex_token_iterator it(so.begin(), so.end(), corte, -1), end; it != end; ++it) {
    const std::string c = std::regex_replace(std::string(Trim(it->str())), marcas, "");
    if (!c.empty() && !std::regex_search(c, palabra)) v.push_back(c);
  }
  return v;
}

TEST(ForIsomeros, EverySetHasOneFormula) {
  // By form: the formula of the isomers and how many are drawn; 14 and 15 name a compound (its condensed formula);
  // the benzene rings (forms 8 and 13) by seqB modulo 7, three isomers each.
  const std::map<int, std::tuple<std::string, std::size_t, std::string>> kFormas = {
      {0, {"C4H8O", 2, ""}},  {1, {"C3H9N", 3, ""}}, {3, {"C5H10", 5, ""}},  {4, {"C2H6O", 2, ""}},
      {6, {"C5H12", 3, ""}},  {9, {"C3H8O", 3, ""}}, {11, {"C4H8", 6, ""}},  {12, {"C4H10", 2, ""}},
      {16, {"C4H8", 2, ""}},  {14, {"C4H8BrCl", 1, "CH_3-CHBr-CHCl-CH_3"}},
      {15, {"C4H6Br3Cl", 1, "CH_3-CBr_2-CBrCl-CH_3"}}};
  const Textos kAnillos = {"C8H10", "C9H12", "C7H8O", "C6H4ClNO2", "C6H3Cl3", "C6H5BrO", "C7H7I"};
  for (int seqB = 0; seqB < 17 * 7; ++seqB) {
    const int f = seqB % 17;
    const bool anillo = f == 8 || f == 13;
    if (!anillo && (seqB >= 17 || !kFormas.count(f))) continue;
    const test::Problema p = Gen(11, seqB, 0, 1);
    const Textos e = Estructuras(p.so);
    const auto [formula, cuantas, nombrado] =
        anillo ? std::tuple{kAnillos[static_cast<std::size_t>(seqB % 7)], std::size_t{3}, std::string()}
               : kFormas.at(f);
    ASSERT_EQ(e.size(), cuantas) << p.so;
    EXPECT_EQ(std::set<std::string>(e.begin(), e.end()).size(), e.size()) << p.so;
    for (const std::string& s : e) EXPECT_EQ(Formula(s), formula) << "form " << f << ": " << s;
    std::smatch m;  // the formula the statement shows, or the compound it names with its chiral carbons marked
    if (!nombrado.empty()) {
      EXPECT_EQ(Formula(nombrado), formula);
      EXPECT_EQ(std::count(e[0].begin(), e[0].end(), '*'), Cuenta(nombrado, true)) << e[0];
    } else if (!anillo) {
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex("C(_\\d)+H(_\\d)+([A-Z][a-z]?(_\\d)*)*"))) << p.st;
      EXPECT_EQ(Formula(m.str()), formula) << p.st;
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
          for (std::sregex_iterator it(p.st.begin(), p.st.end(), item), end; it != end; ++it)
            op[(*it)[1].str()[0]] = (*it)[2];
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
    EXPECT_EQ(correctas.size(), 7u);               // each right compound asked
    EXPECT_EQ(vistas.size(), quiral ? 14u : 15u);  // and every wrong one judged
  }
}

int Orden(const std::string& s) { return s.ends_with("&=") ? 2 : s.ends_with("&#") ? 3 : s.ends_with("-") ? 1 : 0; }

// Every labelled carbon of a drawing against the hybridisation its bonds give (sp^3 no multiple bond, sp^2 one
// double, sp a triple or two doubles; no hetero atom on a single bond to a chain C=C or C≡C carbon, as in an enol).
// Returns the shape: labels, bonds and hetero neighbours, whatever groups fill it.
std::string Esqueleto(const std::string& s, int& carbonos) {
  static const std::regex udb("#UDB\\(C([SDX])X(?:#R1\\(.*?#R1\\))?#R2\\((sp(?:\\^[23])?)#R2\\)#UDB\\)(H(_\\d)?)?");
  static const std::regex carbonoIzq("#UDB\\)(H(_\\d)?)?-$");
  std::string esqueleto;
  for (std::sregex_iterator it(s.begin(), s.end(), udb), end; it != end; ++it, ++carbonos) {
    const auto ini = static_cast<std::size_t>(it->position()), fin = ini + static_cast<std::size_t>(it->length());
    const int izq = Orden(s.substr(ini >= 2 ? ini - 2 : 0, std::min<std::size_t>(ini, 2)));
    const int der = Orden(s.substr(fin, s.compare(fin, 1, "-") ? 2 : 1));
    const int h = (*it)[3].matched ? ((*it)[4].matched ? (*it)[4].str()[1] - '0' : 1) : 0;
    const int sube = static_cast<int>(std::string("XSD").find((*it)[1].str()[0]));
    const int pi = std::max(izq - 1, 0) + std::max(der - 1, 0) + sube / 2;  // bonds beyond single ones
    const bool hIzq = izq == 1 && !std::regex_search(s.substr(0, ini), carbonoIzq);
    const bool hDer = der == 1 && s.compare(fin + 1, 5, "#UDB(") != 0;
    const std::string segun = izq + der + sube + h != 4       ? "valence " + std::to_string(izq + der + sube + h)
                              : pi > sube / 2 && (hIzq || hDer) ? "hetero atom on C=C or C#C"
                                                                : std::array{"sp^3", "sp^2", "sp"}[std::min(pi, 2)];
    EXPECT_EQ((*it)[2].str(), segun) << s;
    esqueleto += segun + std::to_string(sube * 1000 + h * 100 + izq * 10 + der + hIzq * 10000 + hDer * 20000) + "|";
  }
  return esqueleto;
}

TEST(ForHibridacion, EveryLabelMatchesItsBonds) {
  static const std::regex item("&SP=\\d+:&\\+B([a-z])\\)&-B (.*?)(?=&SP=|&LF)");
  for (uint64_t semilla = 1; semilla <= 12; ++semilla) {
    const test::Problema p = Gen(13, static_cast<int>(semilla), 20, semilla);
    Textos preguntas, respuestas;
    for (std::sregex_iterator it(p.st.begin(), p.st.end(), item), end; it != end; ++it) preguntas.push_back((*it)[2]);
    for (std::sregex_iterator it(p.so.begin(), p.so.end(), item), end; it != end; ++it) respuestas.push_back((*it)[2]);
    ASSERT_EQ(respuestas.size(), 12u) << p.so;  // twenty asked, twelve structures in all
    ASSERT_EQ(preguntas.size(), 12u) << p.st;
    std::set<std::string> esqueletos;
    for (std::size_t k = 0; k < 12; ++k) {
      int n = 0;  // every carbon labelled; the question has an arrow in place of each label
      esqueletos.insert(Esqueleto(respuestas[k], n));
      EXPECT_EQ(n, test::FormulaMolecular(respuestas[k])["C"]) << respuestas[k];
      std::string q = respuestas[k];
      for (const char* h : {"sp^3", "sp^2", "sp"}) ReplaceAll(q, h, "&aus");
      EXPECT_EQ(std::regex_replace(preguntas[k], std::regex(" &aus"), "&aus"), q);
    }
    EXPECT_EQ(esqueletos.size(), 12u) << p.so;  // no structure twice
  }
}

}  // namespace
}  // namespace ss
