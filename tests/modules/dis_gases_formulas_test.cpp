// The gases (generators 4 and 9) and formulas (6, 7, 8) problems: every answer worked out again from the data and
// constants the statement prints, in every form over many seeds, and the data checked against real chemistry.
#include <gtest/gtest.h>
#include <numeric>
#include <set>
#include <sstream>
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {
using namespace test;
constexpr auto npos = std::string::npos;
// The sentence's data, the stated constants, and the molar masses of the gases it names, in order.
struct Vista {
  Datos d;
  std::vector<double> k;  // gen 4: [273.15]; gen 9: [R, 273.15, 1, 760]
  std::vector<double> M;
  double P() const { return d.Tiene("atm") ? d.En("atm") : d.En("mmHg") / k[3]; }
  double T() const { return d.En("\xB0" "C") + k.at(k.size() > 1 ? 1 : 0); }
  double T2() const { return d.En("\xB0" "C", 1) + k[0]; }
};
struct Caso {
  int gen, forma;
  std::function<std::vector<double>(const Vista&)> r;
  double abs = 0;
};
using V = const Vista&;

const Caso kCasos[] = {
    {4, 0, [](V v) { return std::vector{v.d.En("atm") * v.d.En("L") / v.T() * v.T2() / v.d.En("L", 1)}; }},
    {4, 1, [](V v) { return std::vector{v.d.En("atm") * v.d.En("L") / v.d.En("L", 1)}; }},
    {4, 2, [](V v) { return std::vector{v.T() * v.d.En("atm", 1) / v.d.En("atm") - v.k[0]}; }, 0.051},
    {4, 3, [](V v) { return std::vector{v.d.En("L") * v.T2() / v.T()}; }},
    {9, 0, [](V v) { return std::vector{v.d.En("mol") * v.k[0] * v.T() / v.P()}; }},
    {9, 1, [](V v) { const double n = v.d.En("g") / v.M.at(0); return std::vector{n * v.k[0] * v.T() / v.P(), n * v.k[0] * v.k[1]}; }},
    {9, 2, [](V v) { return std::vector{v.P() * v.M.at(0) / (v.k[0] * v.T())}; }},
    {9, 3, [](V v) { return std::vector{v.d.En("g") * v.k[0] * v.T() / (v.P() * v.d.En("L"))}; }},
    {9, 4, [](V v) { return std::vector{v.d.En("g/L") * v.k[0] * v.T() / v.P()}; }},
    {9, 5, [](V v) { return std::vector{v.d.En("mol") * v.k[0] * v.T() / v.d.En("L")}; }},
    {9, 6, [](V v) { return std::vector{v.d.En("g") / v.M.at(0) * v.k[0] * v.T() / v.d.En("L")}; }},
    {9, 7, [](V v) { return std::vector{v.P() * v.d.En("L") * v.M.at(0) / (v.k[0] * v.T())}; }},
    {9, 8, [](V v) {
       const double n1 = v.d.En("g") / v.M.at(0), n2 = v.d.En("g", 1) / v.M.at(1);
       return std::vector{n1, n2, n1 + n2, (n1 + n2) * v.k[0] * v.T() / v.d.En("L")}; }},
    {9, 9, [](V v) { return std::vector{v.P() * v.d.En("L") / (v.k[0] * v.T())}; }},
};

// Boiling points (°C) of gases that condense near room conditions: below it such a gas stays under one atmosphere.
const std::map<std::string, double> kEbullicion = {{"SO_3", 45}, {"SO_2", -10}, {"Cl_2", -34}};

TEST(DisGases, EveryAnswerFollowsFromThePrintedDataAndConstants) {
  for (const Caso& c : kCasos) {
    std::set<std::string> distintos;
    for (uint64_t seed = 1; seed <= 80; ++seed) {
      const Problema p = Genera(c.gen, c.forma + (c.gen == 4 ? 4 : 10) * static_cast<int>(seed), 0, seed);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::string frase = p.st.substr(0, p.st.find("&LF"));
      Vista v{Datos(frase), NumerosTras(p.st, "Data"), {}};  // the constants are stated
      ASSERT_EQ(v.k.size(), c.gen == 4 ? 1u : 4u);
      const std::vector<std::string> gases = FormulasEntreParentesis(frase);
      for (const std::string& f : gases) v.M.push_back(MasaMolar(Formula(f), Masas(p.st)));
      const std::vector<double> esperadas = c.r(v);
      const std::vector<Mostrado> mostradas = Respuestas(p.so);
      ASSERT_EQ(mostradas.size(), esperadas.size());
      for (std::size_t i = 0; i < esperadas.size(); ++i) EsperaCerca(mostradas[i], esperadas[i], c.abs);
      // Real conditions: temperatures within bounds, pressures a gas bears.
      const Datos todos(frase + " " + p.so);
      for (const auto& [x, u] : todos.Todos()) EXPECT_TRUE(u == "atm" ? x <= 30 : u != "\xB0" "C" || (x >= -50 && x <= 1000)) << x << u;
      if (c.forma == 8 && c.gen == 9) { EXPECT_NE(gases.at(0), gases.at(1)); }
      for (std::size_t i = 0; i < gases.size(); ++i)  // the partial pressure of each gas
        if (kEbullicion.count(gases[i]) && v.d.En("\xB0" "C") < kEbullicion.at(gases[i])) {
          EXPECT_LT(c.forma == 8 ? esperadas[i] * v.k[0] * v.T() / v.d.En("L") : c.forma == 5 || c.forma == 6 ? esperadas[0] : v.P(), 1);
        }
      distintos.insert(frase);
    }
    EXPECT_GT(distintos.size(), 60u);
  }
}

// Generator 6: an item's datum or answer and its kind, from the unit or the word after the number.
enum Clase { kMasa, kMoles, kParticulas, kAtomosO, kNinguna };
std::pair<Clase, double> Valor(const std::string& t) {
  static const std::regex v(R"((\d[\d&.E-]*?)(& g\b|& mol\b| molecules| formula units| oxygen atoms))");
  std::smatch m;
  if (!std::regex_search(t, m, v)) return {kNinguna, 0};
  const std::string u = m[2];
  const Clase k = u == "& g" ? kMasa : u == "& mol" ? kMoles : u == " oxygen atoms" ? kAtomosO : kParticulas;
  return {k, Numeros(m[1].str()).at(0)};
}

TEST(DisFormulas, MassMolesParticlesAndCompositionFollowFromTheListedMasses) {
  const std::set<std::string> metales = {"Li", "Na", "K", "Cu", "Ag", "Au", "Al", "Cr", "Mn", "Fe", "Pb", "Pt", "Sn", "Ca"};
  for (int gen : {6, 7}) {
    for (auto [pedidos, dados] : {std::pair{0, 2}, {5, 5}, {30, 20}}) {
      const std::string st = Genera(gen, 7, pedidos, 5).st;
      EXPECT_TRUE(st.find(Etiqueta(dados)) != npos && st.find(Etiqueta(dados + 1)) == npos);
    }
    std::set<int> clases;
    for (uint64_t seed = 1; seed <= 40; ++seed) {
      const Problema p = Genera(gen, static_cast<int>(seed), 20, seed);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const auto masas = Masas(p.st);
      std::set<std::string> vistas;
      for (int i = 1; i <= 20; ++i) {
        const std::string item = Tras(p.st, Etiqueta(i)), respuesta = Tras(p.so, Etiqueta(i));
        ASSERT_FALSE(respuesta.empty()) << "item " << i;
        std::string formula;  // the first word of the item that is a formula
        std::istringstream palabras(gen == 7 ? respuesta.substr(0, respuesta.find(':')) : item);
        for (std::string w; formula.empty() && palabras >> w;)
          if (w = w.substr(0, w.find_last_not_of("?.") + 1); !Formula(w).empty()) formula = w;
        const Composicion c = Formula(formula);
        ASSERT_FALSE(c.empty()) << item;
        EXPECT_TRUE(vistas.insert(formula).second) << formula << " twice";
        const double M = MasaMolar(c, masas);
        if (gen == 7) {  // each element's share, in formula order, adding up to 100
          const std::vector<double> pct = Numeros(respuesta.substr(respuesta.find(':')));
          ASSERT_EQ(pct.size(), c.size());
          for (std::size_t k = 0; k < c.size(); ++k) EsperaCerca({pct[k], INFINITY}, 100 * c[k].second * masas.at(c[k].first) / M, 0.005);
          EXPECT_NEAR(std::accumulate(pct.begin(), pct.end(), 0.0), 100, 0.03);
          continue;
        }
        const auto [dada, x] = Valor(item);
        const auto [pedida, y] = Valor(respuesta);
        ASSERT_TRUE(dada != kNinguna && pedida != kNinguna && dada != pedida) << item << " -> " << respuesta;
        clases.insert(dada * 10 + pedida);
        const bool ionico = c[0].first != "H" && std::any_of(c.begin(), c.end(), [&](const auto& e) { return metales.count(e.first); });
        // A salt has formula units, an acid molecules.
        if (ionico || c[0].first == "H") { EXPECT_EQ((item + respuesta).find(ionico ? "molecules" : "formula units"), npos); }
        const double NA = (dada >= kParticulas || pedida >= kParticulas) ? NumerosTras(p.st, "Avogadro's number:").at(0) : 1;
        const int oxigenos = std::accumulate(c.begin(), c.end(), 0, [](int s, const auto& e) { return s + (e.first == "O") * e.second; });
        const double f[] = {M, 1, NA, NA * oxigenos};  // each kind per mole
        EsperaCerca({y, INFINITY}, x / f[dada] * f[pedida]);
      }
    }
    EXPECT_TRUE(gen != 6 || clases.size() >= 10u) << "every form";
  }
}

// Generator 8: the empirical formula recovered from the data, the molecular one from the molar mass the data give.
struct CHO {
  int c = 0, h = 0, o = 0;
  bool operator==(const CHO&) const = default;
};
CHO LeeCHO(const std::string& f) {
  CHO x;
  for (const auto& [e, n] : Formula(f)) (e == "C" ? x.c : e == "H" ? x.h : x.o) = n;
  return x;
}
CHO Proporcion(double nC, double nH, double nO) {  // the smallest whole numbers in that ratio
  const double menor = nO > 0 ? std::min({nC, nH, nO}) : std::min(nC, nH);
  for (int k = 1; k <= 20; ++k) {
    const double x[3] = {k * nC / menor, k * nH / menor, k * nO / menor};
    if (std::all_of(x, x + 3, [](double v) { return std::fabs(v - std::round(v)) < 0.1; }))
      return {int(std::lround(x[0])), int(std::lround(x[1])), int(std::lround(x[2]))};
  }
  return {};
}

TEST(DisFormulas, EmpiricalAndMolecularFormulasFollowFromTheData) {
  std::map<int, std::set<std::string>> distintos;
  for (uint64_t seed = 1; seed <= 20; ++seed) {
    for (int v = 0; v < 54; ++v) {
      const Problema p = Genera(8, v + 54 * static_cast<int>(seed % 3), 0, seed * 131 + v);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const auto masas = Masas(p.st);
      const double C = masas.at("C"), H = masas.at("H"), O = masas.count("O") ? masas.at("O") : 0;
      const std::string q = p.st.substr(0, p.st.find("&LF"));
      const Datos d(q);
      const CHO e = LeeCHO(Tras(p.so, Texto("Formula_empirica") + " "));
      ASSERT_GT(e.c, 0);
      EXPECT_EQ(std::gcd(std::gcd(e.c, e.h), e.o), 1) << "reduced";
      double nC, nH, nO = 0;
      if (const double m = d.En("g"); q.find("combustion") == npos) {
        const double pC = d.En("%"), pH = d.Tiene("%") && !std::isnan(d.En("%", 1)) ? d.En("%", 1) : 100 - pC;
        nC = pC / C, nH = pH / H, nO = std::isnan(d.En("%", 1)) ? 0 : (100 - pC - pH) / O;
      } else {
        const bool conCO2 = q.find("of CO_2") != npos, conH2O = q.find("of H_2O") != npos;
        const double mC = conCO2 ? d.En("g", 1) * C / (C + 2 * O) : 0;
        const double mH = conH2O ? d.En("g", conCO2 ? 2 : 1) * 2 * H / (2 * H + O) : 0;
        nC = (conCO2 ? mC : m - mH) / C, nH = (conH2O ? mH : m - mC) / H;
        if (q.find("oxygen") != npos) nO = (m - mC - mH) / O;
      }
      EXPECT_EQ(Proporcion(nC, nH, nO), e);
      distintos[v % 6].insert(q);
      const std::string molecular = Tras(p.so, Texto("Formula_molecular") + " ");
      if (molecular.empty()) continue;
      const CHO mol = LeeCHO(molecular);
      const int k = mol.c / e.c;
      EXPECT_TRUE(k >= 1 && mol.h == k * e.h && mol.o == k * e.o && mol.h % 2 == 0 && mol.h <= 2 * mol.c + 2);
      const double Me = e.c * C + e.h * H + e.o * O;
      double M = d.En("g/mol");
      if (!std::isnan(d.En("g/mol", 1))) {
        EXPECT_TRUE(d.En("g/mol") <= k * Me && k * Me <= d.En("g/mol", 1) && (k - 1) * Me < d.En("g/mol") &&
                    (k + 1) * Me > d.En("g/mol", 1)) << "one multiple only in the range";
        continue;
      }
      if (d.Tiene("atm")) {  // a vapour: light enough to boil well below its temperature
        const double RT = NumerosTras(p.st, "R&-I = ").at(0) * (d.En("\xB0" "C") + 273.15);
        M = d.Tiene("g/L") ? d.En("g/L") * RT / d.En("atm") : d.En("g") * RT / (d.En("atm") * d.En("L"));
        EXPECT_LE(mol.c + mol.o, 5);
        EXPECT_TRUE(d.En("\xB0" "C") >= 130 && d.En("\xB0" "C") <= 200 && d.En("atm") <= 1.5);
      }
      EsperaCerca({M, INFINITY}, k * Me);
    }
  }
  for (const auto& [forma, q] : distintos) EXPECT_GT(q.size(), forma <= 1 ? 20u : 80u) << forma;
}
}  // namespace
}  // namespace ss
