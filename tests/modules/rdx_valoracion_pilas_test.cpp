// Redox titrations and galvanic cells, read as a student reads the page: the
// volumes, concentrations, species and potentials the statement gives are
// all the checkers use to work every answer again; every half-reaction and
// overall reaction is counted for atoms and charge; and what the page shows
// is held against the test's own tables of real chemistry.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numeric>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "tests/modules/dis_comun.h"
#include "tests/modules/atomos.h"

namespace ss {
namespace {

struct Hoja {
  std::string st, so;
};

Hoja Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + static_cast<uint64_t>(seqB)));
  Hoja h;
  GeneraProblema(g, "ANEU_QUIM_RDX", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", h.st, h.so);
  EXPECT_TRUE(g.GP_MsgFound) << "a key is missing: " << h.st;
  return h;
}

double Num(const std::string& t) { return test::Numeros(t).at(0); }

std::string Captura(const std::string& t, const std::string& patron, int k = 1) {
  std::smatch m;
  return std::regex_search(t, m, std::regex(patron)) ? m[k].str() : "";
}

int Romano(const std::string& r) {
  static const std::map<std::string, int> k = {{"I", 1}, {"II", 2}, {"III", 3}, {"IV", 4}, {"V", 5}, {"VI", 6}, {"VII", 7}};
  return k.count(r) ? k.at(r) : -99;
}

// The oxidation number of `elemento` in a species, oxygen -2 and hydrogen +1.
double Estado(const std::string& especie, const std::string& elemento) {
  const test::Carga c = test::Especie(especie);
  double resto = c.carga;
  for (const auto& [e, n] : c.atomos)
    if (e == "O") resto += 2 * n;
    else if (e == "H") resto -= n;
  return c.atomos.count(elemento) ? resto / c.atomos.at(elemento) : NAN;
}

// ---- titration ------------------------------------------------------------------------

// The elements by the name the page gives them, with their standard atomic masses.
const std::map<std::string, std::pair<std::string, double>>& Elementos() {
  static const std::map<std::string, std::pair<std::string, double>> e = {
      {"iron", {"Fe", 55.845}},     {"uranium", {"U", 238.03}},   {"molybdenum", {"Mo", 95.95}},
      {"vanadium", {"V", 50.942}},  {"titanium", {"Ti", 47.867}}, {"arsenic", {"As", 74.922}},
      {"tin", {"Sn", 118.71}},      {"chromium", {"Cr", 51.996}}, {"zinc", {"Zn", 65.38}},
      {"cobalt", {"Co", 58.933}},   {"nickel", {"Ni", 58.693}},   {"aluminium", {"Al", 26.982}},
      {"copper", {"Cu", 63.546}},   {"cadmium", {"Cd", 112.41}},  {"magnesium", {"Mg", 24.305}},
      {"bismuth", {"Bi", 208.98}},  {"lead", {"Pb", 207.2}}};
  return e;
}

// Standard oxidants of acid medium: the species each is reduced to and the
// electrons a formula unit takes.
const std::map<std::string, std::pair<std::string, int>>& Oxidantes() {
  static const std::map<std::string, std::pair<std::string, int>> o = {{"KMnO_4", {"Mn^2^+", 5}},
                                                                      {"K_2Cr_2O_7", {"Cr^3^+", 6}},
                                                                      {"HIO_3", {"I_2", 5}},
                                                                      {"Ce(SO_4)_2", {"Ce^3^+", 1}}};
  return o;
}

// Oxidation states that exist in water for a titration: no Co(III), Ni(III),
// Cu(I) or Pb(IV) in the solution, nor a metal taken beyond what air makes of it.
TEST(RedoxTitration, EveryAnswerFollowsFromTheVolumesAndSpeciesGiven) {
  std::set<std::string> metales[5], oxidantes;
  for (int forma = 1; forma <= 4; ++forma)
    for (uint64_t semilla = 1; semilla <= 120; ++semilla) {
      const Hoja h = Genera(6, forma - 1 + 4 * static_cast<int>(semilla % 7), semilla);
      SCOPED_TRACE(h.st + "\n" + h.so);
      const std::string& st = h.st;
      // The species at the equivalence point.
      std::smatch m;
      ASSERT_TRUE(std::regex_search(st, m, std::regex(R"(all the (\w+)(?:\((\w+)\)| (metal)) has been oxidised to (\w+)\((\w+)\), (\S+), and the (\S+) has been reduced to ([^ .]+)\.)")));
      const std::string nombre = m[1], desde = m[2], hasta = m[5], especie = m[6], ox = m[7], reducida = m[8];
      ASSERT_EQ(nombre, m[4].str());
      EXPECT_EQ(m[3].matched, forma == 4) << "a free metal in form 4 only";
      ASSERT_TRUE(Elementos().count(nombre)) << nombre;
      const auto& [simbolo, masaReal] = Elementos().at(nombre);
      ASSERT_TRUE(Oxidantes().count(ox)) << ox;
      EXPECT_EQ(reducida, Oxidantes().at(ox).first);
      const int eOx = Oxidantes().at(ox).second;
      const int eMetal = Romano(hasta) - (forma == 4 ? 0 : Romano(desde));
      ASSERT_GT(eMetal, 0);
      EXPECT_EQ(Estado(especie, simbolo), Romano(hasta)) << especie << " is not " << nombre << "(" << hasta << ")";
      EXPECT_NE(st.find(ox + ")"), std::string::npos) << "the oxidant is named with its formula";
      metales[forma].insert(nombre + desde), oxidantes.insert(ox);
      if (forma != 4) {
        static const std::set<std::string> nunca = {"cobalt(II)", "nickel(II)", "copper(I)", "lead(II)"};
        EXPECT_EQ(nunca.count(nombre + "(" + desde + ")"), 0u) << "no titrant takes it to a stable higher state";
      }

      // The amounts.
      const double COX = Num(Captura(st, R"(a (\d[^ ]*)& mol/L solution of)"));
      const double VOX = Num(Captura(st, R"((\d+)& mL of the oxidant solution)"));
      EXPECT_TRUE(COX >= 0.005 && COX <= (ox == "Ce(SO_4)_2" ? 0.2 : 0.3)) << COX;
      EXPECT_TRUE(VOX >= 10 && VOX <= 105) << VOX;
      const double eq = COX * VOX / 1000 * eOx, n = eq / eMetal;
      double Mm = NAN;
      if (forma >= 2) {
        ASSERT_TRUE(std::regex_search(st, m, std::regex(R"(Molar mass: (\w+) = (\d+(?:&\.\d+)?) g/mol)")));
        EXPECT_EQ(m[1].str(), simbolo);
        Mm = Num(m[2]);
        EXPECT_NEAR(Mm, masaReal, 0.05);
      }
      std::vector<double> esperadas;
      if (forma <= 2) {
        const double VRD = Num(Captura(st, R"(^(\d+)& mL of an acidified solution)"));
        EXPECT_TRUE(VRD >= 10 && VRD <= 100 && VRD != VOX) << VRD;
        const double M = n / (VRD / 1000);
        EXPECT_TRUE(M >= 0.005 && M <= 0.2) << "a solution that can be made: " << M;
        esperadas = {M, eq / (VRD / 1000), forma == 1 ? COX * eOx : n * Mm};
      } else {
        const double muestra = Num(Captura(st, R"(weighing (\d[^ ]*)& g)"));
        EXPECT_TRUE(muestra >= 0.1 && muestra <= 10) << muestra;
        const double metal = n * Mm, pct = metal / muestra * 100;
        EXPECT_TRUE(pct >= 51.9 && pct <= 94.1) << pct;
        esperadas = {metal, pct};
        if (forma == 4) {
          // The oxide the metal forms in air, in the state the titration reaches.
          const std::string oxido = Captura(st, R"(partly oxidised in air to [a-z() IV]+ \((\w+)\))");
          EXPECT_EQ(Estado(oxido, simbolo), Romano(hasta)) << oxido;
          esperadas.push_back(muestra - metal);
          esperadas.push_back(100 - pct);
        }
      }
      const std::vector<test::Mostrado> dadas = test::Respuestas(h.so);
      ASSERT_EQ(dadas.size(), esperadas.size()) << h.so;
      for (std::size_t k = 0; k < dadas.size(); ++k) test::EsperaCerca(dadas[k], esperadas[k]);
    }
  EXPECT_EQ(metales[1].size(), 8u) << "every ion of the list comes up";
  EXPECT_EQ(metales[4].size(), 12u) << "every metal of the list comes up";
  EXPECT_EQ(oxidantes.size(), 4u);
}

// ---- cells -----------------------------------------------------------------------------

// Standard reduction potentials (V, 25 °C) as tables of data give them.
const std::map<std::string, double>& Reales() {
  static const std::map<std::string, double> e = {
      {"Ag^+/Ag", 0.7996},   {"Zn^2^+/Zn", -0.7618}, {"Cd^2^+/Cd", -0.403}, {"Pd^2^+/Pd", 0.951},
      {"Au^3^+/Au", 1.498},  {"Mg^2^+/Mg", -2.372},  {"Cr^3^+/Cr", -0.744}, {"Pb^2^+/Pb", -0.126},
      {"Ni^2^+/Ni", -0.257}, {"Sn^2^+/Sn", -0.138},  {"Co^2^+/Co", -0.28},  {"Cu^2^+/Cu", 0.342},
      {"Fe^2^+/Fe", -0.447}, {"Al^3^+/Al", -1.662},  {"H^+/H_2", 0},        {"SO#SPB(L2-#T)(4#SPB)/SO_2", 0.17},
      {"Cl_2/Cl#SPB(L-#T)( #SPB)", 1.358},  {"O_2/OH#SPB(L-#T)( #SPB)", 0.401},
      {"NO#SPB(L-#T)(3#SPB)/NO_2", 0.80},    {"NO#SPB(L-#T)(3#SPB)/NO", 0.957},
      {"F_2/F#SPB(L-#T)( #SPB)", 2.87}};
  return e;
}

// A metal couple, "Zn^2^+/Zn": its reduced form is an element alone.
bool Metalico(const std::string& par) {
  return std::regex_match(par.substr(par.find('/') + 1), std::regex("[A-Z][a-z]?"));
}

using Especies = std::map<std::string, int>;  // species -> coefficient, left positive, right negative

void SumaLado(Especies& e, std::string lado, int signo) {
  for (std::size_t at = 0;;) {
    const std::size_t mas = lado.find(" + ", at);
    std::string t(Trim(lado.substr(at, mas == std::string::npos ? std::string::npos : mas - at)));
    int n = 0;
    std::size_t i = 0;
    while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) n = 10 * n + (t[i++] - '0');
    std::string especie = test::Limpia(t.substr(i));
    if (especie.starts_with("e#")) especie = "e";
    e[especie] += signo * (n ? n : 1);
    if (mas == std::string::npos) break;
    at = mas + 3;
  }
}

Especies Ecuacion(const std::string& ec) {
  const std::size_t f = ec.find(" &ars ");
  Especies e;
  if (f == std::string::npos) {
    ADD_FAILURE() << "no arrow: " << ec;
    return e;
  }
  SumaLado(e, ec.substr(0, f), 1);
  SumaLado(e, ec.substr(f + 6), -1);
  return e;
}

bool Tiene(const std::string& lado, const std::string& especie) {
  Especies e;
  SumaLado(e, lado, 1);
  return e.count(especie) > 0;
}

TEST(RedoxCells, HalfReactionsOverallReactionPotentialAndNotationFollowFromTheCouples) {
  int vistas[4] = {0, 0, 0, 0};
  std::set<std::string> pares;
  for (int seqB = 0; seqB < 3; ++seqB)
    for (uint64_t semilla = 1; semilla <= 150; ++semilla) {
      const Hoja h = Genera(7, seqB + 3 * static_cast<int>(semilla % 5), semilla);
      SCOPED_TRACE(h.st + "\n" + h.so);
      const std::string &st = h.st, &so = h.so;
      const bool gas = st.find("gas electrode") != std::string::npos;
      const bool pideUno = st.find("overall reaction of the cell is") != std::string::npos;
      const int forma = gas ? 1 : pideUno ? 3 : 2;
      ++vistas[forma];

      // The couples, and the potentials the data line gives.
      std::smatch m;
      ASSERT_TRUE(std::regex_search(st, m, std::regex(R"(from the couples (.+?) and (.+?)(?:\.|, each metal))")));
      const std::string par[2] = {m[1], m[2]};
      std::map<std::string, double> E;
      static const std::regex dato("&epsilon\xB0\\((.+?)\\) = (-?\\d+(?:&\\.\\d+)?)& V");
      for (std::sregex_iterator it(st.begin(), st.end(), dato), end; it != end; ++it) E[(*it)[1]] = Num((*it)[2]);
      ASSERT_EQ(E.size(), forma == 3 ? 1u : 2u);
      ASSERT_TRUE(E.count(par[0]));
      for (const auto& [p, v] : E) {
        ASSERT_TRUE(Reales().count(p)) << "a couple that is not stable or not real: " << p;
        EXPECT_NEAR(v, Reales().at(p), 0.025) << p;
      }
      pares.insert(par[0]), pares.insert(par[1]);
      EXPECT_TRUE(Metalico(par[0]));
      EXPECT_EQ(Metalico(par[1]), !gas) << "form 1 pairs a metal with a gas electrode, the others two metals";

      // The half-reactions: the anode oxidises the reduced form of one couple,
      // the cathode reduces the oxidised form of the other.
      const std::string oxid = Captura(so, R"(oxidation: (.*?);&LF)"), red = Captura(so, R"(reduction: (.*?)\.&LF)");
      test::EsperaAjustada(oxid);
      test::EsperaAjustada(red);
      auto lados = [](const std::string& ec) {
        const std::size_t f = ec.find(" &ars ");
        return std::pair{ec.substr(0, f), ec.substr(f + 6)};
      };
      const auto [oxIzq, oxDer] = lados(oxid);
      const auto [redIzq, redDer] = lados(red);
      EXPECT_TRUE(Tiene(oxDer, "e") && !Tiene(oxIzq, "e"));
      EXPECT_TRUE(Tiene(redIzq, "e") && !Tiene(redDer, "e"));
      auto formas = [](const std::string& p) {
        const std::size_t b = p.find('/');
        return std::pair{p.substr(0, b), p.substr(b + 1)};
      };
      int anodo = -1;
      for (int k = 0; k < 2; ++k) {
        const auto [o, r] = formas(par[k]);
        if (Tiene(oxIzq, r) && Tiene(oxDer, o)) anodo = k;
      }
      ASSERT_NE(anodo, -1) << "the anode's oxidation is one of the couples";
      const auto [oCat, rCat] = formas(par[1 - anodo]);
      EXPECT_TRUE(Tiene(redIzq, oCat) && Tiene(redDer, rCat)) << "the cathode reduces the other couple";

      // The overall reaction: both halves, electrons equalised at the least
      // common multiple, electrons gone.
      const std::string global = forma == 3 ? Captura(st, R"(overall reaction of the cell is (.*?)\. With)")
                                            : Captura(so, R"(b\)&-B (.*?)\.&LF)");
      test::EsperaAjustada(global);
      const Especies eOx = Ecuacion(oxid), eRed = Ecuacion(red);
      const int ne = -eOx.at("e"), nc = eRed.at("e"), L = std::lcm(ne, nc);
      Especies suma;
      for (const auto& [s, n] : eOx) suma[s] += n * (L / ne);
      for (const auto& [s, n] : eRed) suma[s] += n * (L / nc);
      std::erase_if(suma, [](const auto& x) { return x.second == 0; });
      EXPECT_EQ(Ecuacion(global), suma) << global;
      // Metals marked solid and gases gas, ions not at all.
      for (const auto& [t, metal, gasT] : {std::tuple{oxid, Metalico(par[anodo]), !Metalico(par[anodo])},
                                           std::tuple{red, Metalico(par[1 - anodo]), !Metalico(par[1 - anodo])},
                                           std::tuple{global, true, forma == 1}}) {
        EXPECT_EQ(t.find("_(&+I_s&-I_)") != std::string::npos, metal) << t;
        EXPECT_EQ(t.find("_(&+I_g&-I_)") != std::string::npos, gasT) << t;
        EXPECT_TRUE(t.find("+_(") == std::string::npos && t.find("SPB)_(") == std::string::npos) << t;
      }

      // The potentials.
      if (forma == 3) {
        const double Epila = Num(Captura(st, R"(cell potential measured is (\d[^ ]*)& V)"));
        const std::string pide = Captura(so, R"(b\)&-B &epsilon\xB0\((.*?)\) = )");
        ASSERT_EQ(pide, par[1]);
        const double calculado = anodo == 0 ? E[par[0]] + Epila : E[par[0]] - Epila;
        const std::vector<test::Mostrado> r = test::Respuestas(Captura(so, R"(\) = (-?\d[^ ]*) V\.&LF)"));
        ASSERT_EQ(r.size(), 1u);
        test::EsperaCerca(r[0], calculado);
        EXPECT_NEAR(calculado, Reales().at(par[1]), 0.025) << "the potential found is the real one";
        EXPECT_GE(Epila, 0.2 - 1e-9);
      } else {
        const double Epila = Num(Captura(so, R"(c\)&-B &epsilon\xB0 = (\d[^ ]*) V)"));
        const double Ean = E[par[anodo]], Ecat = E[par[1 - anodo]];
        EXPECT_NEAR(Epila, Ecat - Ean, 1e-9);
        EXPECT_GE(Epila, 0.2 - 1e-9) << "the couples differ by 0.2 V at least";
        EXPECT_GT(Ecat, Ean) << "the anode is the couple of lower potential";
      }

      // The notation: the anode on the left, the gas electrode on platinum.
      const std::string notacion = Captura(so, forma == 3 ? R"(c\)&-B (.*?)&LF)" : R"(d\)&-B (.*?)&LF)");
      ASSERT_TRUE(notacion.starts_with("(-)  ") && notacion.ends_with("  (+)")) << notacion;
      const std::size_t puente = notacion.find(" || ");
      ASSERT_NE(puente, std::string::npos);
      const std::string izq = notacion.substr(5, puente - 5), der = notacion.substr(puente + 4);
      EXPECT_EQ(notacion.find("Pt") != std::string::npos, forma == 1);
      const auto [oAn, rAn] = formas(par[anodo]);
      for (const auto& [lado, o, r] : {std::tuple{izq, oAn, rAn}, std::tuple{der, oCat, rCat}}) {
        EXPECT_NE(lado.find(o), std::string::npos) << lado;
        EXPECT_NE(lado.find(r), std::string::npos) << lado;
      }
      const bool gasAnodo = forma == 1 && anodo == 1;
      EXPECT_EQ(izq.starts_with("Pt, "), gasAnodo);
      EXPECT_EQ(der.ends_with(", Pt  (+)") || der.ends_with(", Pt"), forma == 1 && !gasAnodo);
      EXPECT_TRUE(std::regex_search(notacion, std::regex(R"(\(1& M\).*\|\|.*\(1& M\))"))) << notacion;
    }
  for (int f = 1; f <= 3; ++f) EXPECT_GT(vistas[f], 30) << "form " << f;
  EXPECT_EQ(pares.size(), 21u) << "every couple of the tables comes up";
}

}  // namespace
}  // namespace ss
