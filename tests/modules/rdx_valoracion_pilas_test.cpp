// Redox titrations and galvanic cells: every answer worked again from the volumes, concentrations, species and
// potentials the page shows, every equation counted for atoms and charge, against the tests' own real chemistry.
#include <numeric>
#include <set>

#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {

test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + static_cast<uint64_t>(seqB)));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_RDX", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  EXPECT_TRUE(g.GP_MsgFound) << "a key is missing: " << p.st;
  return p;
}

// The first number of a text (NAN if none), and the first group of a pattern's first match.
double Num(const std::string& t) { return test::Numeros(t).empty() ? NAN : test::Numeros(t)[0]; }
std::string Captura(const std::string& t, const std::string& patron) {
  std::smatch m;
  return std::regex_search(t, m, std::regex(patron)) ? m[1].str() : "";
}

int Romano(const std::string& r) {
  const std::string k[] = {"I", "II", "III", "IV", "V", "VI"};
  return r.empty() ? 0 : static_cast<int>(std::find(k, k + 6, r) - k) + 1;
}

// The oxidation number of `elemento` in a species, oxygen -2 and hydrogen +1.
double Estado(const std::string& especie, const std::string& elemento) {
  const test::Carga c = test::Especie(especie);
  double resto = c.carga;
  for (const auto& [e, n] : c.atomos) resto += e == "O" ? 2 * n : e == "H" ? -n : 0;
  return c.atomos.count(elemento) ? resto / c.atomos.at(elemento) : NAN;
}

TEST(RedoxTitration, EveryAnswerFollowsFromTheVolumesAndSpeciesGiven) {
  // The elements by name with their standard atomic masses; each oxidant's
  // reduced form and the electrons a formula unit takes in acid medium.
  static const std::map<std::string, std::pair<std::string, double>> elementos = {
      {"iron", {"Fe", 55.845}},    {"uranium", {"U", 238.03}},  {"molybdenum", {"Mo", 95.95}}, {"lead", {"Pb", 207.2}},
      {"vanadium", {"V", 50.942}}, {"titanium", {"Ti", 47.867}}, {"arsenic", {"As", 74.922}}, {"tin", {"Sn", 118.71}},
      {"chromium", {"Cr", 51.996}}, {"zinc", {"Zn", 65.38}},   {"cobalt", {"Co", 58.933}},  {"nickel", {"Ni", 58.693}},
      {"aluminium", {"Al", 26.982}}, {"copper", {"Cu", 63.546}}, {"cadmium", {"Cd", 112.41}}, {"bismuth", {"Bi", 208.98}},
      {"magnesium", {"Mg", 24.305}}};
  static const std::map<std::string, std::pair<std::string, int>> oxidantes = {
      {"KMnO_4", {"Mn^2^+", 5}}, {"K_2Cr_2O_7", {"Cr^3^+", 6}}, {"HIO_3", {"I_2", 5}}, {"Ce(SO_4)_2", {"Ce^3^+", 1}}};
  static const std::set<std::string> nunca = {"cobalt(II)", "nickel(II)", "copper(I)", "lead(II)"};
  std::set<std::string> vistos[5];  // [0] the oxidants, [forma] what is titrated
  for (int forma = 1; forma <= 4; ++forma)
    for (uint64_t semilla = 1; semilla <= 120; ++semilla) {
      const test::Problema p = Genera(6, forma - 1 + 4 * static_cast<int>(semilla % 7), semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      std::smatch m;
      ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(all the (\w+)(?:\((\w+)\)| (metal)) has been oxidised to (\w+)\((\w+)\), (\S+), and the (\S+) has been reduced to ([^ .]+)\.)")));
      const std::string nombre = m[1], desde = m[2], hasta = m[5], especie = m[6], ox = m[7];
      ASSERT_TRUE(nombre == m[4].str() && elementos.count(nombre) && oxidantes.count(ox)) << nombre << " " << ox;
      EXPECT_EQ(m[3].matched, forma == 4) << "a free metal in form 4 only";
      EXPECT_EQ(m[8].str(), oxidantes.at(ox).first);
      EXPECT_EQ(nunca.count(nombre + "(" + desde + ")"), 0u) << "no titrant takes it to a state stable in water";
      const auto& [simbolo, masaReal] = elementos.at(nombre);
      const int eOx = oxidantes.at(ox).second, eMetal = Romano(hasta) - Romano(desde);
      ASSERT_GT(eMetal, 0);
      EXPECT_EQ(Estado(especie, simbolo), Romano(hasta)) << especie << " is not " << nombre << "(" << hasta << ")";
      // Forms 1-2 give the titrated volume first, then the titrant's; 3-4 a sample's mass.
      const test::Datos d(p.st);
      const double COX = d.En("mol/L"), VOX = d.En("mL", forma <= 2 ? 1 : 0);
      EXPECT_TRUE(COX >= 0.005 && COX <= (ox == "Ce(SO_4)_2" ? 0.2 : 0.3) && VOX >= 10 && VOX <= 105) << COX << VOX;
      const double eq = COX * VOX / 1000 * eOx, n = eq / eMetal;
      const double Mm = Num(Captura(p.st, "Molar mass: " + simbolo + " = (\\d[^ ]*) g/mol"));
      EXPECT_TRUE(forma == 1 ? std::isnan(Mm) : std::fabs(Mm - masaReal) < 0.05) << Mm;
      std::vector<double> esperadas;
      if (forma <= 2) {
        const double VRD = d.En("mL"), M = n / (VRD / 1000);
        EXPECT_TRUE(VRD >= 10 && VRD <= 100 && VRD != VOX && M >= 0.005 && M <= 0.2) << VRD << " mL " << M << " M";
        esperadas = {M, eq / (VRD / 1000), forma == 1 ? COX * eOx : n * Mm};
      } else {
        const double muestra = d.En("g"), metal = n * Mm, pct = metal / muestra * 100;
        EXPECT_TRUE(muestra >= 0.1 && muestra <= 10 && pct >= 51.9 && pct <= 94.1) << muestra << " g, " << pct;
        esperadas = {metal, pct, muestra - metal, 100 - pct};
        if (forma == 3) esperadas.resize(2);
        else  // the oxide the metal forms in air, in the state the titration reaches
          EXPECT_EQ(Estado(Captura(p.st, R"(partly oxidised in air to [a-z() IV]+ \((\w+)\))"), simbolo), Romano(hasta));
      }
      const std::vector<test::Mostrado> dadas = test::Respuestas(p.so);
      ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
      for (std::size_t k = 0; k < dadas.size(); ++k) test::EsperaCerca(dadas[k], esperadas[k]);
      vistos[0].insert(ox), vistos[forma].insert(nombre + desde);
    }
  EXPECT_TRUE(vistos[0].size() == 4 && vistos[1].size() == 8 && vistos[4].size() == 12) << "every oxidant, ion, metal";
}

// Species (state marks left out) and their coefficients, left positive, right negative.
using Especies = std::map<std::string, int>;
Especies Ecuacion(const std::string& ec) {
  const std::size_t f = ec.find(" &ars ");
  Especies e;
  for (int lado = 0; lado < 2 && f != std::string::npos; ++lado) {
    const std::string t = lado ? ec.substr(f + 6) : ec.substr(0, f);
    for (const std::string& s : test::Formulas(t)) e[test::Limpia(s)] += (lado ? -1 : 1) * test::Coeficiente(t, s);
  }
  EXPECT_NE(f, std::string::npos) << ec;
  return e;
}

TEST(RedoxCells, HalfReactionsOverallReactionPotentialAndNotationFollowFromTheCouples) {
  // Standard reduction potentials (V, 25 °C) as tables of data give them.
  static const std::map<std::string, double> reales = {
      {"Ag^+/Ag", 0.7996},   {"Zn^2^+/Zn", -0.7618}, {"Cd^2^+/Cd", -0.403}, {"Pd^2^+/Pd", 0.951}, {"Au^3^+/Au", 1.498},
      {"Mg^2^+/Mg", -2.372}, {"Cr^3^+/Cr", -0.744},  {"Pb^2^+/Pb", -0.126}, {"Ni^2^+/Ni", -0.257}, {"Sn^2^+/Sn", -0.138},
      {"Co^2^+/Co", -0.28},  {"Cu^2^+/Cu", 0.342},   {"Fe^2^+/Fe", -0.447}, {"Al^3^+/Al", -1.662}, {"H^+/H_2", 0},
      {"SO#SPB(L2-#T)(4#SPB)/SO_2", 0.17}, {"Cl_2/Cl#SPB(L-#T)( #SPB)", 1.358}, {"O_2/OH#SPB(L-#T)( #SPB)", 0.401},
      {"NO#SPB(L-#T)(3#SPB)/NO_2", 0.80},  {"NO#SPB(L-#T)(3#SPB)/NO", 0.957},   {"F_2/F#SPB(L-#T)( #SPB)", 2.87}};
  int vistas[4] = {};
  std::set<std::string> pares;
  for (int seqB = 0; seqB < 3; ++seqB)
    for (uint64_t semilla = 1; semilla <= 150; ++semilla) {
      const test::Problema p = Genera(7, seqB + 3 * static_cast<int>(semilla % 5), semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::string &st = p.st, &so = p.so;
      const bool gas = st.find("gas electrode") != std::string::npos;
      const int forma = gas ? 1 : st.find("overall reaction of the cell is") != std::string::npos ? 3 : 2;
      ++vistas[forma];
      // The couples, their potentials, and the oxidised and reduced form of each.
      const std::string par[2] = {Captura(st, R"(from the couples (.+?) and )"),
                                  Captura(st, R"(from the couples .+? and (.+?)(?:\.|, each metal))")};
      std::map<std::string, double> E;
      static const std::regex dato("&epsilon\xB0\\((.+?)\\) = (-?\\d+(?:&\\.\\d+)?)& V");
      for (std::sregex_iterator it(st.begin(), st.end(), dato), end; it != end; ++it) E[(*it)[1]] = Num((*it)[2]);
      ASSERT_TRUE(E.size() == (forma == 3 ? 1u : 2u) && E.count(par[0])) << "the potentials given";
      pares.insert(par, par + 2);
      std::string o[2], r[2];
      for (int k = 0; k < 2; ++k) o[k] = par[k].substr(0, par[k].find('/')), r[k] = par[k].substr(par[k].find('/') + 1);
      const std::regex metal("[A-Z][a-z]?");
      EXPECT_TRUE(std::regex_match(r[0], metal) && std::regex_match(r[1], metal) != gas) << "a gas in form 1 only";
      // The anode oxidises the reduced form of one couple, the cathode reduces
      // the other; the overall reaction adds both at the electrons' lcm.
      const std::string oxid = Captura(so, R"(oxidation: (.*?);&LF)"), red = Captura(so, R"(reduction: (.*?)\.&LF)");
      const std::string global = forma == 3 ? Captura(st, R"(overall reaction of the cell is (.*?)\. With)")
                                            : Captura(so, R"(b\)&-B (.*?)\.&LF)");
      Especies eOx = Ecuacion(oxid), eRed = Ecuacion(red);
      const int anodo = eOx[r[0]] > 0 && eOx[o[0]] < 0 ? 0 : 1, cat = 1 - anodo;
      EXPECT_TRUE(eOx[r[anodo]] > 0 && eOx[o[anodo]] < 0 && eRed[o[cat]] > 0 && eRed[r[cat]] < 0) << oxid << "; " << red;
      const int ne = -eOx["e#SPB(L-#T)( #SPB)"], nc = eRed["e#SPB(L-#T)( #SPB)"];
      ASSERT_TRUE(ne > 0 && nc > 0) << "electrons given by the oxidation, taken by the reduction";
      Especies suma;
      for (const auto& [s, n] : eOx) suma[s] += n * (std::lcm(ne, nc) / ne);
      for (const auto& [s, n] : eRed) suma[s] += n * (std::lcm(ne, nc) / nc);
      std::erase_if(suma, [](const auto& x) { return x.second == 0; });
      EXPECT_EQ(Ecuacion(global), suma) << global;
      // Each balanced, an element alone marked solid, other neutral species but water gas, ions unmarked.
      for (const std::string& ec : {oxid, red, global}) {
        test::EsperaAjustada(ec);
        for (const std::string& s : test::Formulas(std::regex_replace(ec, std::regex(" &ars "), " + "))) {
          const test::Carga c = test::Especie(s);
          const bool solido = c.carga == 0 && c.atomos.size() == 1 && c.atomos.begin()->second == 1;
          EXPECT_EQ(s.ends_with("_(&+I_s&-I_)"), solido) << s << " in " << ec;
          EXPECT_EQ(s.ends_with("_(&+I_g&-I_)"), !c.carga && !solido && test::Limpia(s) != "H_2O") << s << " in " << ec;
        }
      }
      // The potentials: the one asked in form 3 is the real one, and the cell's
      // is the cathode's less the anode's, 0.2 V at least.
      if (forma == 3)
        E[Captura(so, R"(b\)&-B &epsilon\xB0\((.*?)\) = )")] = Num(Captura(so, R"(b\)&-B &epsilon\xB0\(.*?\) = (\S+) V)"));
      ASSERT_TRUE(E.size() == 2 && E.count(par[1])) << "the potential asked is the other couple's";
      for (const auto& [q, v] : E) EXPECT_NEAR(v, reales.count(q) ? reales.at(q) : NAN, 0.025) << q;
      const double Epila = Num(forma == 3 ? Captura(st, R"(measured is (\d[^ ]*)& V)")
                                          : Captura(so, R"(c\)&-B &epsilon\xB0 = (\d[^ ]*) V)"));
      EXPECT_NEAR(Epila, E[par[cat]] - E[par[anodo]], 1e-6);
      EXPECT_GE(Epila, 0.2 - 1e-9) << "the anode is the couple of lower potential";
      // The notation: the anode on the left, a gas electrode on platinum, ions at 1 M.
      const std::string nota = Captura(so, forma == 3 ? R"(c\)&-B (.*?)&LF)" : R"(d\)&-B (.*?)&LF)");
      const std::size_t puente = nota.find(" || ");
      ASSERT_TRUE(nota.starts_with("(-)  ") && nota.ends_with("  (+)") && puente != std::string::npos) << nota;
      const std::string lado[2] = {nota.substr(5, puente - 5), nota.substr(puente + 4, nota.size() - puente - 9)};
      for (const int k : {0, 1})
        for (const std::string& x : {o[k ? cat : anodo], r[k ? cat : anodo], std::string("(1& M)")})
          EXPECT_NE(lado[k].find(x), std::string::npos) << x << " in " << nota;
      EXPECT_EQ(lado[0].starts_with("Pt, "), gas && anodo == 1) << nota;
      EXPECT_EQ(lado[1].ends_with(", Pt"), gas && anodo == 0) << nota;
    }
  for (int f = 1; f <= 3; ++f) EXPECT_GT(vistas[f], 30) << "form " << f;
  EXPECT_EQ(pares.size(), 21u) << "every couple of the tables comes up";
}

}  // namespace
}  // namespace ss
