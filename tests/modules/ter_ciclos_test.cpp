// Thermochemical cycles: the Hess combination the solution states recombined atom by atom and in enthalpy, bond
// estimates from the molecules' own Lewis structures, Born-Haber sums worked from the data lines of the page.
#include <set>
#include <utility>

#include "modules/ANEU_QUIM_TER/ter.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::ter {
namespace {

test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + seqB));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_TER", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with("&LF") && g.GP_MsgFound &&
              !std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|ATEM__|<ERROR"))) << p.st << p.so;
  return p;
}

// Standard enthalpies of formation at 25 °C (NBS tables), kJ/mol, to check every Hess equation's enthalpy.
const std::map<std::string, double> kHf = {
    {"C_2H_2", 226.7}, {"O_2", 0}, {"CO_2", -393.5}, {"H_2O", -285.8}, {"C_6H_6", 49.1}, {"Zn", 0}, {"ZnO", -350.5},
    {"H_2", 0}, {"S", 0}, {"ZnSO_4", -982.8}, {"H_2SO_4", -814.0}, {"N_2", 0}, {"HNO_3", -174.1}, {"N_2O_5", 11.3},
    {"H_2O_2", -187.8}, {"C", 0}, {"CO", -110.5}, {"CH_3OH", -238.7}, {"C_2H_5OH", -277.7}, {"SO_2", -296.8},
    {"SO_3", -395.7}, {"C_2H_6", -84.0}};

// An equation checked balanced (phases and blanks left out); its species with phase added to m with signed
// coefficients times f (products positive); and its enthalpy by the table above, times f.
double Suma(std::map<std::string, double>& m, const std::string& e, double f) {
  test::EsperaAjustada(std::regex_replace(std::regex_replace(e, std::regex(R"(_ _\(_[gls]_\))"), ""), std::regex("_ "), ""));
  static const std::regex termino(R"((?:^|  \+  |  &ars  )(?:(\d+)_ )?(([^ ]+)_ _\(_[gls]_\)))");
  double h = 0;
  for (std::sregex_iterator it(e.begin(), e.end(), termino), end; it != end; ++it) {
    const double n = f * ((*it)[1].matched ? std::stoi((*it)[1]) : 1) * (it->position() < long(e.find("  &ars")) ? -1 : 1);
    m[(*it)[2]] += n;
    h += kHf.count((*it)[3]) ? n * kHf.at((*it)[3]) : NAN;
  }
  std::erase_if(m, [](const auto& x) { return std::fabs(x.second) < 1e-9; });
  return h;
}

void CompruebaHess(const test::Problema& p) {
  std::map<std::string, std::pair<std::string, double>> dadas;  // letter -> equation, dH
  static const std::regex dada("&SP=5:&\\+B([a-z])\\)&-B  (.+?)&SP=72:&Delta&\\+IH&-I\\^ \xB0 = ([^&]+(?:&\\.\\d+)?)& kJ");
  for (std::sregex_iterator it(p.st.begin(), p.st.end(), dada), end; it != end; ++it)
    dadas[(*it)[1]] = {(*it)[2], test::Numeros((*it)[3]).at(0)};
  std::map<std::string, double> suma, meta;
  Suma(meta, test::Tras(p.st, test::Texto("Hallar_dH_Hess") + "&LF&SP=5:"), 1);
  double dH = 0;
  std::set<std::string> usadas;
  static const std::regex termino(R"((= -?| - | \+ )(?:#COC\((\d+)#N\)\((\d+)#COC\) |(\d+) )?&Delta&\+IH&-I_([a-z]))");
  for (std::sregex_iterator it(p.so.begin(), p.so.end(), termino), end; it != end; ++it) {
    const auto& m = *it;
    const double f = (m[1].str().find('-') == std::string::npos ? 1 : -1) *
                     (m[2].matched ? std::stod(m[2]) / std::stod(m[3]) : m[4].matched ? std::stod(m[4]) : 1);
    ASSERT_TRUE(dadas.count(m[5]) && usadas.insert(m[5]).second) << m[5];
    const auto& [e, dHe] = dadas[m[5]];
    const double h = Suma(suma, e, f) / f;  // the enthalpy given is that of the tables
    EXPECT_NEAR(h, dHe, 2 + 0.001 * std::fabs(h)) << e;
    dH += f * dHe;
  }
  EXPECT_TRUE(dadas.size() >= 2 && usadas.size() == dadas.size() && suma == meta) << p.so;
  test::EsperaCerca(test::Respuestas(p.so).back(), dH);
}

// Bonds of each molecule from its Lewis structure.
const std::map<std::string, std::map<std::string, int>> kMoleculas = {
    {"H2", {{"H-H", 1}}}, {"Cl2", {{"Cl-Cl", 1}}}, {"Br2", {{"Br-Br", 1}}}, {"I2", {{"I-I", 1}}}, {"HCl", {{"H-Cl", 1}}},
    {"HBr", {{"H-Br", 1}}}, {"HI", {{"H-I", 1}}}, {"O2", {{"O&=O", 1}}}, {"N2", {{"N&#N", 1}}}, {"H2O", {{"O-H", 2}}},
    {"CO2", {{"C&=O", 2}}}, {"NH3", {{"N-H", 3}}}, {"CH4", {{"C-H", 4}}}, {"C2H6", {{"C-C", 1}, {"C-H", 6}}},
    {"C3H8", {{"C-C", 2}, {"C-H", 8}}}, {"C4H10", {{"C-C", 3}, {"C-H", 10}}}, {"C5H12", {{"C-C", 4}, {"C-H", 12}}},
    {"CH3OH", {{"C-H", 3}, {"C-O", 1}, {"O-H", 1}}}, {"C2H5OH", {{"C-C", 1}, {"C-H", 5}, {"C-O", 1}, {"O-H", 1}}}};

void CompruebaEnlaces(const test::Problema& p) {
  std::map<std::string, double> E, m;
  static const std::regex energia(R"(&\+IE&-I\(([^)]+)\)=(\d+))");
  for (std::sregex_iterator it(p.st.begin(), p.st.end(), energia), end; it != end; ++it) E[(*it)[1]] = std::stod((*it)[2]);
  Suma(m, test::Tras(p.st, test::Texto("Hallar_dH_EEnlace") + ".&LF&SP=5:"), 1);
  double rotos = 0, formados = 0;
  std::set<std::string> usados;
  for (const auto& [s, n] : m) {
    EXPECT_NE(s.find("_ _(_g_)"), std::string::npos) << s;
    for (const auto& [enlace, k] : kMoleculas.at(std::regex_replace(s.substr(0, s.find("_ _(")), std::regex("_"), "")))
      (n < 0 ? rotos : formados) += std::fabs(n) * k * E.at(enlace), usados.insert(enlace);
  }
  const std::vector<test::Mostrado> r = test::Respuestas(p.so);
  ASSERT_TRUE(usados.size() == E.size() && r.size() == 1u) << p.st << p.so;
  test::EsperaCerca(r[0], rotos - formados);
}

// Born-Haber: the data lines as (key, species) -> kJ/mol; the metal's lines atomise and ionise it, those of X_2 give
// half their value per atom of X, which then takes its affinity.
void CompruebaBornHaber(const test::Problema& p, std::set<std::string>& vistos) {
  std::map<std::pair<std::string, std::string>, double> d;
  for (std::string k : {"dH_Formac", "E_Reticul", "dH_Sublim", "dH_Vapori", "Eionizac_1", "Eionizac_2", "Eionizac_3",
                        "E_disoc", "EAfiniE_1"})
    for (std::size_t a = 0; (a = p.st.find("&SP=12:" + test::Texto(k) + " ", a)) != std::string::npos; ++a) {
      const std::string l = test::Tras(p.st.substr(a), test::Texto(k) + " "), s = l.substr(0, l.find(" = "));
      EXPECT_TRUE(l.ends_with(" kJ/mol") && d.emplace(std::pair{k, s}, test::Numeros(l.substr(s.size())).at(0)).second) << l;
    }
  std::smatch m;
  ASSERT_TRUE(std::regex_search(p.st, m, std::regex(" of ([A-Za-z_0-9]+), "))) << p.st;
  const std::string f = m[1], S = f + "_ _(_s_)", pide = test::Texto("Hallar_E_retic_BornHaber");
  const std::string dado = p.st.starts_with(pide.substr(0, pide.find("%F%"))) ? "dH_Formac" : "E_Reticul";
  const test::Composicion c = test::Formula(f);
  ASSERT_TRUE(c.size() == 2 && c[0].second == 1 && d.count({dado, S})) << p.st;
  const std::string X = c[1].first;
  const int n = c[1].second;
  double metal = 0, atomo = 0, ie = 0;
  for (const auto& [k, v] : d) {
    EXPECT_TRUE(!k.first.starts_with("Eionizac") || v > std::exchange(ie, v)) << "ionisation energies rise";
    metal += k.second.starts_with(c[0].first + "_ _(") ? v : 0;
    atomo += k.second.starts_with(X + "_2_ _(") ? v / 2 : k.first == "EAfiniE_1" ? v : 0;
  }
  // Besides the compound's line: the metal's sublimation and n ionisations, the dissociation of X_2 (bromine
  // vaporised and iodine sublimed first) and the affinity of X, which releases energy.
  EXPECT_TRUE((d.size() == 4u + n + (X == "Br" || X == "I") && d[{"EAfiniE_1", X + "_ _(_g_)"}] < 0)) << p.st;
  vistos.insert(dado + f);
  const double U = dado == "dH_Formac" ? d[{dado, S}] - metal - n * atomo : d[{dado, S}], H = U + metal + n * atomo;
  EXPECT_TRUE(U < -500 && H < 0) << U << " " << H;
  test::EsperaCerca(test::Respuestas(p.so).at(0), dado == "dH_Formac" ? U : H);
}

TEST(ThermochemistryCycles, EveryAnswerFollowsFromTheCycleOnThePage) {
  std::set<std::string> vistos;
  for (uint64_t s = 1; s <= 200; ++s)
    for (int seqB = 0; seqB < 96; ++seqB) {
      for (int gen : {3, 4, 6}) {
        if (gen == 6 ? s > 30 : seqB >= 12) continue;
        const test::Problema p = Genera(gen, seqB, s);
        SCOPED_TRACE(p.st + "\n" + p.so);
        gen == 3 ? CompruebaHess(p) : gen == 4 ? CompruebaEnlaces(p) : CompruebaBornHaber(p, vistos);
      }
      if (HasFailure()) return;
    }
  EXPECT_EQ(vistos.size(), 192u) << "every compound comes up, asked both ways";
}

}  // namespace
}  // namespace ss::mod::ter
