// Quantum numbers, electron configurations and two-element compounds, read
// from the page and checked against the rules and tables kept here.
#include <algorithm>
#include <numeric>
#include <set>

#include "tests/modules/dis_comun.h"

namespace ss {
namespace {

test::Problema Genera(int gen, int seq, uint64_t semilla) {
  return test::GeneraEn("ANEU_QUIM_EAT", gen, seq, 0, semilla * 7919 + static_cast<uint64_t>(gen * 31 + seq));
}

// Markup to plain text: fractions "a/b", superscript digits plain, no italics or bold.
std::string Plano(std::string t) {
  t = std::regex_replace(t, std::regex(R"(#COC\((-?\d+) *#N\)\((\d+)#COC\))"), "$1/$2");
  for (const char* c : {"&+I", "&-I", "&+B", "&-B", "^ ", "^"}) ReplaceAll(t, c, "");
  return t;
}
double Valor(const std::string& s) {
  return s.find('/') == std::string::npos ? std::stod(s) : std::stod(s) / std::stod(s.substr(s.find('/') + 1));
}

// Filling order, and the true ground states that depart from it (beyond the core).
const char* kOrden[] = {"1s", "2s", "2p", "3s", "3p", "4s", "3d", "4p", "5s", "4d", "5p", "6s", "4f", "5d", "6p", "7s", "5f", "6d", "7p"};
const std::map<int, std::string> kReales = {{24, "3d5 4s1"}, {29, "3d10 4s1"}, {41, "4d4 5s1"}, {42, "4d5 5s1"},
    {44, "4d7 5s1"}, {45, "4d8 5s1"}, {46, "4d10"}, {47, "4d10 5s1"}, {57, "5d1 6s2"}, {58, "4f1 5d1 6s2"}, {64, "4f7 5d1 6s2"},
    {78, "4f14 5d9 6s1"}, {79, "4f14 5d10 6s1"}, {89, "6d1 7s2"}, {90, "6d2 7s2"}, {91, "5f2 6d1 7s2"}, {92, "5f3 6d1 7s2"},
    {93, "5f4 6d1 7s2"}, {96, "5f7 6d1 7s2"}};
constexpr int kNobles[] = {0, 2, 10, 18, 36, 54, 86, 118};
int Cap(char l) { return 4 * static_cast<int>(std::string_view("spdf").find(l)) + 2; }
int Periodo(int z) { int p = 1; while (kNobles[p] < z) ++p; return p; }

// Expected configuration beyond the core, by shell ("3d10 4s2 4p3").
std::string Esperada(int z, int core) {
  if (kReales.count(z)) return kReales.at(z);
  std::map<std::pair<int, int>, int> e;  // (n, capacity) -> electrons
  for (int resto = z, enCore = core; const char* s : kOrden) {
    const int k = std::min(resto, Cap(s[1]));
    if (k > 0 && enCore <= 0) e[{s[0] - '0', Cap(s[1])}] = k;
    resto -= k, enCore -= Cap(s[1]);
  }
  std::string t;
  for (auto& [s, k] : e) t += (t.empty() ? "" : " ") + std::to_string(s.first) + "spdf"[(s.second - 2) / 4] + std::to_string(k);
  return t;
}

TEST(EatConfiguracion, EveryZConfigurationPeriodGroup) {
  std::set<int> vistos;  // every Z of 1 to 100
  for (uint64_t s = 1; s < 3000 && vistos.size() < 100; ++s) {
    const auto h = Genera(4, static_cast<int>(s), s);
    const int z = static_cast<int>(test::NumerosTras(h.st, "Z = ").at(0)), p = Periodo(z);
    vistos.insert(z);
    const int core = z > 18 ? kNobles[p - 1] : 0;
    ASSERT_EQ(h.so.starts_with("[") ? h.so.substr(0, 4) : "", core ? "[" + std::string("ArKrXeRn").substr(2 * (p - 4), 2) + "]" : "");
    const std::string so = Plano(h.so);
    EXPECT_EQ(std::regex_replace(so.substr(core ? 6 : 0, so.find(';') - (core ? 6 : 0)), std::regex(" +"), " "),
              Esperada(z, core)) << "Z " << z;
    EXPECT_EQ(test::NumerosTras(h.so, test::Texto("Num_periodo") + ": ").at(0), p) << z;
    // Group by the place in the period.
    const int k = z - kNobles[p - 1], largo = kNobles[p] - kNobles[p - 1];
    std::string grupo = k <= 2 && z != 2 ? test::Texto(k == 1 ? "Grupo1" : "Grupo2")
                        : k > largo - 6 || z == 2 ? test::Texto("Grupo" + std::to_string(18 - (largo - k)))
                                                  : test::Texto("GrupoMT");
    ReplaceAll(grupo, "%B%", largo == 32 && k <= 16 ? "f" : "d");
    EXPECT_EQ(test::Tras(h.so, test::Texto("Num_grupo") + ": "), grupo + ".") << z;
  }
  EXPECT_EQ(vistos.size(), 100u);
}

TEST(EatConfiguracion, QuantumNumberForms) {
  static const std::regex set(R"(\((-?\d+), +(-?\d+), +(-?\d+(?:/\d+)?), +(-?\d+(?:/\d+)?)\))"), orb(R"((\d)([spdfghik]))");
  auto L = [](char c) { return static_cast<int>(std::string_view("spdfghik").find(c)); };
  std::set<std::string> razones;
  for (int seq = 0; seq < 800; ++seq) {
    const auto h = Genera(1, seq, seq + 3);
    const std::string st = Plano(h.st), so = Plano(h.so);
    std::smatch m;
    if (seq % 4 == 0) {  // five sets: possible (and its orbital) or the first rule broken
      int k = 0;
      for (std::sregex_iterator it(st.begin(), st.end(), set), end; it != end; ++it, ++k) {
        const int n = std::stoi((*it)[1]), l = std::stoi((*it)[2]);
        const double ml = Valor((*it)[3]), ms = Valor((*it)[4]);
        const std::string r = n == 0 ? "n_no_0" : n < 0 ? "n_no_NEG" : l >= n ? "l_mayor_n" : l < 0 ? "l_no_NEG"
                              : ml > l ? "m_mayor_l" : ml < -l ? "m_menor_Menosl" : ml != std::floor(ml) ? "m_no_FRAC"
                              : ms == 0 ? "s_no_0" : std::fabs(ms) != 0.5 ? "s_no_ENTERO" : "";
        std::string t = test::Texto(r.empty() ? "EAT_NumCuan_POSIBLE_NomORBIT" : "EAT_NumCuan_IMPOS_" + r);
        if (r.empty()) ReplaceAll(t, "%ORBIT%", std::to_string(n) + "spdfghik"[l]);
        EXPECT_NE(so.find(std::string(1, char('a' + k)) + ") " + t), std::string::npos) << st << so;
        razones.insert(r);
      }
      EXPECT_EQ(k, 5) << st;
    } else if (seq % 4 == 1) {  // every set of an orbital, each once
      ASSERT_TRUE(std::regex_search(st, m, orb)) << st;
      const int n = std::stoi(m[1]), l = L(m[2].str()[0]);
      std::set<std::pair<double, double>> sets;
      for (std::sregex_iterator it(so.begin(), so.end(), set), end; it != end; ++it) {
        const double ml = Valor((*it)[3]), ms = Valor((*it)[4]);
        EXPECT_TRUE(std::stoi((*it)[1]) == n && std::stoi((*it)[2]) == l && std::fabs(ml) <= l &&
                    ml == std::floor(ml) && std::fabs(ms) == 0.5) << so;
        sets.insert({ml, ms});
      }
      EXPECT_EQ(sets.size(), static_cast<std::size_t>(4 * l + 2)) << so;
      EXPECT_EQ(test::Numeros(so).back(), 4 * l + 2) << so;
    } else if (seq % 4 == 2) {  // orbitals by energy: n + l, then n
      std::vector<std::string> o;
      for (std::sregex_iterator it(st.begin(), st.end(), orb), end; it != end; ++it) o.push_back((*it)[0]);
      std::sort(o.begin(), o.end(), [&](auto& a, auto& b) {
        return std::pair(a[0] + L(a[1]), a[0]) < std::pair(b[0] + L(b[1]), b[0]);
      });
      EXPECT_EQ(so, std::accumulate(o.begin() + 1, o.end(), o[0], [](auto a, auto b) { return a + "  <  " + b; }) + "&LF");
    } else {  // electrons with the numbers fixed: 2n², 2(2l+1), 2, 1
      for (char c = 'a'; c <= 'd'; ++c) {
        const std::string linea = test::Tras(st, std::string(1, c) + ") ");
        const auto v = test::Numeros(linea);
        const double e = linea.find("m_s") != std::string::npos ? 1 : linea.find("m_l") != std::string::npos ? 2
                         : linea.find("l =") != std::string::npos ? 4 * v[1] + 2 : 2 * v[0] * v[0];
        EXPECT_EQ(test::Numeros(test::Tras(so, std::string(1, c) + ") ")).at(0), e) << st << so;
      }
    }
  }
  EXPECT_EQ(razones.size(), 10u);
}

TEST(EatConfiguracion, TwoElementCompounds) {
  const std::map<std::string, double> pauling = {
      {"Li", 0.98}, {"Na", 0.93}, {"K", 0.82}, {"Rb", 0.82}, {"Cs", 0.79}, {"Be", 1.57}, {"Mg", 1.31}, {"Ca", 1.00},
      {"Sr", 0.95}, {"Ba", 0.89}, {"Al", 1.61}, {"C", 2.55}, {"N", 3.04}, {"O", 3.44}, {"F", 3.98}, {"Si", 1.90},
      {"P", 2.19}, {"S", 2.58}, {"Cl", 3.16}, {"As", 2.18}, {"Se", 2.55}, {"Br", 2.96}, {"Te", 2.10}, {"I", 2.66}};
  static const std::regex el(R"(\(([A-Z][a-z]?), Z = (\d+)\))");
  int ionicos = 0;
  for (uint64_t s = 1; s <= 400; ++s) {
    const auto h = Genera(8, static_cast<int>(s), s);
    std::vector<std::pair<std::string, int>> e;  // the element of lower electronegativity first
    for (std::sregex_iterator it(h.st.begin(), h.st.end(), el), end; it != end; ++it) e.emplace_back((*it)[1], std::stoi((*it)[2]));
    ASSERT_EQ(e.size(), 2u) << h.st;
    if (pauling.at(e[0].first) > pauling.at(e[1].first)) std::swap(e[0], e[1]);
    const bool ionico = pauling.at(e[0].first) < 1.7;  // the metals
    ionicos += ionico;
    EXPECT_GT(pauling.at(e[1].first), 1.7) << h.st;
    std::array<int, 2> c{};  // electrons lost by the metal, or taken to complete the octet
    for (int k = 0; k < 2; ++k) {
      const int p = Periodo(e[k].second), d = e[k].second - kNobles[p - 1];
      const int v = d <= 2 ? d : d - (kNobles[p] - kNobles[p - 1] - 8);
      c[k] = k == 0 && ionico ? v : 8 - v;
      const std::string ion = e[k].first + "^" + (c[k] > 1 ? std::to_string(c[k]) + "^" : "") + (k == 0 ? "+" : "-");
      EXPECT_EQ(h.so.find(ion) != std::string::npos, ionico) << h.so;
    }
    const int m = std::gcd(c[0], c[1]);
    auto parte = [](const std::string& x, int n) { return x + (n > 1 ? "_" + std::to_string(n) : ""); };
    const std::string f = parte(e[0].first, c[1] / m) + parte(e[1].first, c[0] / m);
    EXPECT_NE(h.so.find(" in " + f + "."), std::string::npos) << f << h.so;
    EXPECT_EQ(test::Numeros(test::Tras(h.so, "(" + e[1].first + "): ")),
              (std::vector<double>{pauling.at(e[1].first), pauling.at(e[0].first)})) << h.so;
  }
  EXPECT_GT(ionicos, 200);
  EXPECT_LT(ionicos, 400);
}

}  // namespace
}  // namespace ss
