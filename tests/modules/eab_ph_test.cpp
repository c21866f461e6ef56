// The acid-base pH problems read as a student reads them: every answer worked again from the numbers the statement
// shows, weak species exactly, buffers by the charge balance with the water's own ions.
#include <gtest/gtest.h>

#include <set>

#include "problems/numeros.h"
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {
constexpr double Kw = 1e-14;
bool Hay(double x) { return !std::isnan(x); }  // a datum given, a value known
const std::map<std::string, double> kAtomicas = {{"H", 1.008}, {"C", 12.011}, {"N", 14.007}, {"O", 15.999},
    {"F", 18.998}, {"Na", 22.990}, {"Cl", 35.45}, {"K", 39.098}, {"Br", 79.904}, {"I", 126.90}};
// A whole problem: every placeholder filled, every number finite, the atomic masses listed the standard ones rounded.
test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  const test::Problema p = test::GeneraEn("ANEU_QUIM_EAB", gen, seqB, 0, semilla * 7919 + seqB * 31 + gen);
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with("&LF") && p.so.size() > 12) << p.st;
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("<Error|nan|inf")));
  for (const auto& [e, x] : test::Masas(p.st)) EXPECT_NEAR(x, kAtomicas.count(e) ? kAtomicas.at(e) : NAN, 0.15) << e;
  return p;
}
// The first number from where `patron` first matches in a statement ("a pH of 2&.872").
double Lee(const std::string& st, const std::string& patron) {
  std::smatch m;
  return std::regex_search(st, m, std::regex(patron)) ? test::Numeros(m.suffix().str().substr(0, 20)).at(0) : NAN;
}
double PHDado(const std::string& st) { return Lee(st, R"(pH (of |is )?(?=\d))"); }
double Constante(const std::string& st, char cual) { return Lee(st, std::string("K_") + cual + R"(&-I(\([^)]*\))?& =& )"); }
// The answers of a solution by the label before each " = ", in order.
using Respuesta = std::pair<std::string, test::Mostrado>;
std::vector<Respuesta> Respuestas(std::string so) {
  so = std::regex_replace(so, std::regex(R"(&SP=\d+:|&\+B[a-z]\)&-B )"), "");
  std::vector<Respuesta> out;
  static const std::regex pieza(R"((?:^|&LF|,   |;   )([^=,;]+?) = ([^,;]+?)(?=,   |;   |&LF|$))");
  for (std::sregex_iterator it(so.begin(), so.end(), pieza), end; it != end; ++it) {
    const std::vector<test::Mostrado> v = test::Respuestas((*it)[2].str());
    if (v.size() == 1) out.push_back({(*it)[1].str(), v[0]});
    else ADD_FAILURE() << (*it)[0];
  }
  return out;
}
// A pH, pOH or change of pH to the thousandth; any other answer to the figures it shows.
void Espera(const Respuesta& r, double x) {
  if (r.first.ends_with("pH") || r.first == "pOH") EXPECT_NEAR(r.second.valor, x, 0.00052) << r.first;
  else test::EsperaCerca(r.second, x);
}
// The answers are the quantities `pedidas` (those not given), each right.
void Comprueba(const std::string& so, const std::map<std::string, double>& pedidas) {
  std::set<std::string> vistas;
  for (const Respuesta& r : Respuestas(so))
    if (!pedidas.count(r.first) || !vistas.insert(r.first).second) ADD_FAILURE() << "not asked for: " << r.first;
    else Espera(r, pedidas.at(r.first));
  EXPECT_EQ(vistas.size(), pedidas.size()) << "an answer missing";
}
// -log10 of the root of a balance that grows with y = [H3O+] (or [OH-]), by bisection.
template <class F>
double P(F exceso) {
  double a = -15, b = 1;  // log10 y
  for (int k = 0; k < 200; ++k) (exceso(std::pow(10.0, (a + b) / 2)) > 0 ? b : a) = (a + b) / 2;
  return -a;
}
// pH of a strong acid (c > 0) or base (c < 0), by [H3O+] - [OH-] = c with the water's own ions.
double PHFuerte(double c) { return P([&](double h) { return h - Kw / h - c; }); }
TEST(AcidBaseStrong, EveryAnswerFollowsFromTheStatement) {
  const std::set<std::string> kFuertes = {"HClO_4", "HI", "HBr", "HCl", "HNO_3", "NaOH", "KOH"};
  std::set<std::string> formas;
  for (int seqB = 0; seqB < 110; ++seqB)
    for (uint64_t semilla = 1; semilla <= 12; ++semilla) {
      const test::Problema p = Genera(1, seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const std::vector<std::string> f = test::FormulasEntreParentesis(p.st);
      ASSERT_TRUE(!f.empty() && f.size() <= 2 && kFuertes.count(f[0]) && kFuertes.count(f.back()));
      const bool base = f[0].ends_with("OH"), mezcla = f.size() == 2;
      const test::Datos d(p.st);
      const double m = d.En("g"), V = d.En("mL"), pH = PHDado(p.st), n0 = d.En("mol/L") * V;
      const double M = test::MasaMolar(test::Formula(f[0]), test::Masas(p.st)), n1 = d.En("mol/L", 1) * d.En("mL", 1);
      // [H3O+] - [OH-]; an acid and a strong base mixed leave a clear excess
      const double c = mezcla ? (n0 - n1) / (V + d.En("mL", 1))
                       : (base ? -1 : 1) * (Hay(pH) ? std::pow(10.0, base ? pH - 14 : -pH) : Hay(m) ? m / M / V * 1000
                                                                                               : d.En("mol/L"));
      EXPECT_TRUE(!mezcla || (!base && f[1].ends_with("OH") && std::fabs(n0 - n1) > 0.05 * std::max(n0, n1)));
      const bool gas = f[0] == "HCl" || f[0] == "HBr" || f[0] == "HI";  // weighed, the pure gas, not the acid
      EXPECT_FALSE(Hay(M) && gas && p.st.find(" acid (" + f[0] + ")") != std::string::npos);
      const double x = std::fabs(c);  // a solution that can be made, a mass that can be weighed
      EXPECT_TRUE(x >= 1e-5 && x <= 0.503 && !(m < 0.05)) << c << " mol/L, " << m << " g";
      std::map<std::string, double> pedidas;  // with a pH given, the volume, mass or concentration not given
      if (Hay(pH))
        pedidas[Hay(m) ? "&+IV&-I" : Hay(V) ? "&+Im&-I" : "&+Ic&-I"] = Hay(m) ? m / M / x * 1000 : x * (Hay(V) ? V / 1000 * M : 1);
      else pedidas["pH"] = PHFuerte(c);
      if (!Hay(pH) && c < 0) pedidas["pOH"] = 14 - PHFuerte(c);
      if (mezcla) pedidas[c < 0 ? "[OH^-]" : "[H_3O^+]"] = x;
      Comprueba(p.so, pedidas);
      formas.insert(mezcla ? "mix" : f[0] + (Hay(pH) ? "p" : "") + (Hay(m) ? "m" : "") + (Hay(V) ? "V" : ""));
      if (HasFailure()) return;
    }
  EXPECT_EQ(formas.size(), 1u + 5 * 7);  // the mixture; each substance with five sets of data
}
// One weak species in water: any two of c0, x ([H3O+] or [OH-] it makes), K and alpha give the others, by
// K = x^2 / (c0 - x) without the water's ions.
struct Equilibrio { double c0 = NAN, x = NAN, K = NAN, alfa = NAN; };
Equilibrio Completa(Equilibrio e) {
  if (Hay(e.c0) && Hay(e.K)) e.x = std::pow(10.0, -P([&](double x) { return x - e.c0 * e.K / (e.K + x); }));
  else if (Hay(e.c0) && Hay(e.alfa)) e.x = e.alfa * e.c0;
  else if (Hay(e.x) && Hay(e.K)) e.c0 = e.x + e.x * e.x / e.K;
  else if (Hay(e.alfa) && Hay(e.K)) e.c0 = e.K * (1 - e.alfa) / (e.alfa * e.alfa), e.x = e.alfa * e.c0;
  else if (Hay(e.alfa)) e.c0 = e.x / e.alfa;
  e.alfa = e.x / e.c0, e.K = e.x * e.x / (e.c0 - e.x);
  return e;
}
// A weak species' problem: c0 and K as the caller reads them (NaN when not given), the rest from the statement;
// every answer checked. `M` the molar mass when a mass is asked; `dados` what is given: "c" or "m", "K", "a", "p".
Equilibrio CompruebaDebil(const test::Problema& p, double c0, double K, bool base, std::string& dados, double M = NAN) {
  const test::Datos d(p.st);
  const double pHd = PHDado(p.st);
  dados = std::string(!Hay(c0) ? "" : d.Tiene("g") ? "m" : "c") + (Hay(K) ? "K" : "") + (d.Tiene("%") ? "a" : "") +
          (Hay(pHd) ? "p" : "");
  EXPECT_EQ(dados.size(), 2u) << "two data fix the solution: " << dados;
  const Equilibrio t = Completa({c0, std::pow(10.0, base ? pHd - 14 : -pHd), K, d.En("%") / 100});
  const double pH = base ? 14 + std::log10(t.x) : -std::log10(t.x);
  EXPECT_TRUE(t.x > 0 && t.alfa < 1 && pH > 0 && pH < 14) << t.x << " " << t.c0;
  // The quadratic leaves out the water's ions only where that changes no digit shown.
  const double pX = P([&](double x) { return x - Kw / x - t.c0 * t.K / (t.K + x); });
  EXPECT_NEAR(base ? 14 - pX : pX, pH, 0.0005) << "c0 " << t.c0 << " K " << t.K;
  std::map<std::string, double> pedidas;  // the two quantities not given; a base's pH with its pOH
  if (!Hay(c0)) pedidas[Hay(M) ? "&+Im&-I" : "&+Ic&-I_0"] = Hay(M) ? t.c0 * d.En("mL") / 1000 * M : t.c0;
  if (!Hay(K)) pedidas[base ? "&+IK_b&-I" : "&+IK_a&-I"] = t.K;
  if (!d.Tiene("%") && !Hay(M)) pedidas["&alfa"] = t.alfa * 100;
  if (!Hay(pHd)) pedidas["pH"] = pH;
  if (!Hay(pHd) && base) pedidas["pOH"] = 14 - pH;
  Comprueba(p.so, pedidas);
  return t;
}
// The weak species: K, base or not, the most concentrated solution that can be made; for the parent of a salt,
// the ion as the salt's formula holds it and its word in the salt's name.
struct Debil { double K; bool base; double cMax; std::string ion = "", palabra = ""; };
const std::map<std::string, Debil> kDebiles = {
    {"CH_3COOH", {1.8e-5, false, 2.5, "CH_3COO", "acetate"}},         {"HF", {7e-4, false, 2.5}},
    {"HCOOH", {1.8e-4, false, 2.5, "HCOO", "formate"}},               {"HNO_2", {4.5e-4, false, 0.5}},
    {"C_6H_5COOH", {6.6e-5, false, 0.025, "C_6H_5COO", "benzoate"}},  {"HClO", {3e-8, false, 0.5}},
    {"HCN", {4e-10, false, 2.5, "CN", "cyanide"}},                    {"CH_3(CH_2)_2COOH", {1.5e-5, false, 2.5}},
    {"CH_3NH_2", {4.37e-4, true, 2.5, "CH_3NH_3", "methylammonium"}}, {"C_6H_5NH_2", {3.8e-10, true, 0.35}},
    {"C_2H_5NH_2", {6.41e-4, true, 2.5, "C_2H_5NH_3", "ethylammonium"}}, {"NH_3", {1.77e-5, true, 2.5, "NH_4", "ammonium"}}};
const std::map<std::string, std::string> kNeutros = {{"Cl", "chloride"}, {"Br", "bromide"}, {"I", "iodide"},
    {"NO_3", "nitrate"}, {"ClO_4", "perchlorate"}, {"Na", "sodium"}, {"K", "potassium"}};
// Generators 2 (weak acids and bases) and 3 (salts whose ions hydrolyse).
TEST(AcidBaseWeak, WeakSpeciesAndSaltsAreSolvedExactlyFromTheStatement) {
  std::set<std::string> formas;  // the generator, acid or base, and what is given
  std::set<std::string> especies;
  for (int gen : {2, 3})
    for (int seqB = 0; seqB < 72; ++seqB)
      for (uint64_t semilla = 1; semilla <= 16; ++semilla) {
        const test::Problema p = Genera(gen, seqB, semilla);
        SCOPED_TRACE(p.st + "\n" + p.so);
        const std::string f = test::FormulasEntreParentesis(p.st).at(0);
        const test::Datos d(p.st);
        std::smatch m;  // a salt's data name its parent
        std::regex_search(p.st, m, std::regex(R"(K_[ab]&-I\(([^)]*)\))"));
        const std::string padre = gen == 2 ? f : m[1].str();
        ASSERT_TRUE(kDebiles.count(padre) && (gen == 2 || !kDebiles.at(padre).ion.empty())) << padre;
        const Debil& s = kDebiles.at(padre);
        const double K = Constante(p.st, s.base ? 'b' : 'a');
        EXPECT_TRUE(!Hay(K) || std::fabs(K - s.K) < 1e-6 * s.K) << "the constant of " << padre;
        // A salt's molar mass is given, a weak species' worked from the atomic masses listed.
        const double M = d.Tiene("g/mol") ? d.En("g/mol") : test::MasaMolar(test::Formula(f), test::Masas(p.st));
        EXPECT_TRUE(!Hay(M) || std::fabs(M - test::MasaMolar(test::Formula(f), kAtomicas)) < 0.003 * M) << M;
        const double c0 = d.Tiene("g") ? d.En("g") / M / (d.En("mL") / 1000) : d.En("mol/L");
        EXPECT_TRUE(!d.Tiene("mol/L") || (c0 >= 0.002 && c0 <= (gen == 2 ? s.cMax : 0.9))) << c0;
        std::string dados;
        if (gen == 2) {  // whatever is given, the data hold the species' own constant, in a solution that can be made
          const Equilibrio t = CompruebaDebil(p, c0, K, s.base, dados);
          EXPECT_TRUE(std::fabs(t.K - s.K) < 0.01 * s.K && t.c0 <= 1.01 * s.cMax) << t.K << " " << t.c0;
        } else {
          const std::string otro = f.starts_with(s.ion) ? f.substr(s.ion.size())
                                   : f.ends_with(s.ion) ? f.substr(0, f.size() - s.ion.size()) : "";
          ASSERT_TRUE(kNeutros.count(otro)) << f << " does not hold " << s.ion;
          EXPECT_EQ(s.base, otro != "Na" && otro != "K") << "a salt of a cation and an anion: " << f;
          EXPECT_TRUE(otro != "ClO_4" || s.ion == "NH_4") << "no explosive to dissolve: " << f;
          const std::string o = kNeutros.at(otro), nombre = s.base ? s.palabra + " " + o : o + " " + s.palabra;
          EXPECT_NE(p.st.find(nombre + " (" + f + ")"), std::string::npos) << "the cation named first";
          EXPECT_NEAR(Constante(p.st, 'w'), Kw, 1e-20);
          // The ion of a base is an acid of K = Kw / Kb, and the other way round.
          CompruebaDebil(p, c0, Kw / K, !s.base, dados, d.Tiene("g") ? NAN : M);
          dados += d.Tiene("mL") ? "V" : "";
        }
        formas.insert(std::to_string(gen) + (s.base ? "B" : "A") + dados), especies.insert(f);
        if (HasFailure()) return;
      }
  EXPECT_EQ(formas.size(), 18u + 8u);  // 2 x 9 pairs of data; 4 forms of salts of cations and anions
  EXPECT_GE(especies.size(), kDebiles.size() + 15);
}
// Generator 4: buffers of acetic acid and sodium acetate or of ammonia and ammonium chloride.
TEST(AcidBaseBuffers, HendersonHoldsAndAgreesWithTheExactEquilibrium) {
  std::set<std::string> formas;
  for (int seqB = 0; seqB < 6; ++seqB)
    for (uint64_t semilla = 1; semilla <= 150; ++semilla) {
      const test::Problema p = Genera(4, seqB, semilla);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const double debil = Lee(p.st, R"((?=\S+& mol/L in (acetic acid|ammonia) \())");
      const double conj = Lee(p.st, R"((?=\S+& mol/L in (sodium acetate|ammonium chloride) \())");
      const double VR = Lee(p.st, R"((?=\d+& mL of (a|the) buffer))");
      const double V = Lee(p.st, R"((?=\d+& mL of \S+& mol/L (sodium hydroxide|hydrochloric acid)))");
      const double C = Lee(p.st, R"((?=\S+& mol/L (sodium hydroxide|hydrochloric acid)))");
      const bool amoniaco = p.st.find("in ammonia (NH_3)") != std::string::npos;
      const bool sosa = p.st.find("(NaOH)") != std::string::npos, agua = p.st.find("pure water") != std::string::npos;
      const double K = Constante(p.st, amoniaco ? 'b' : 'a');
      formas.insert(std::string(amoniaco ? "NH3" : "AcOH") + (sosa ? "+OH" : "+H") + (agua ? ", water" : ""));
      EXPECT_TRUE(!agua || p.st.find(NumTexto(VR) + "& mL of pure water") != std::string::npos);
      EXPECT_TRUE(std::fabs(K - 1.8e-5) < 1e-12 && std::fabs(Constante(p.st, 'w') - Kw) < 1e-20);
      // Real data: what dissolves, a little added, a buffer that holds.
      EXPECT_TRUE(debil >= 0.05 && debil <= 0.9 && conj >= 0.05 && conj <= 1.13 && C >= 0.1 && C <= 0.25) << p.st;
      const bool gastaDebil = sosa != amoniaco;
      const double n = C * V, gastado = (gastaDebil ? debil : conj) * VR;
      EXPECT_TRUE(V >= 1 && V <= VR / 2 && n <= 0.6 * gastado && n >= 0.05 * gastado) << n << " of " << gastado;
      const std::vector<Respuesta> r = Respuestas(p.so);
      ASSERT_EQ(r.size(), agua ? 5u : 3u) << p.so;
      EXPECT_EQ(r[0].first + r[1].first + r[2].first, "pHpH&DeltapH");
      for (int k : {0, 1}) {  // before and after the addition: mmol of each partner, of Na+ less Cl-, in v mL
        const double v = VR + k * V, dd = debil * VR + k * (gastaDebil ? -n : n), cc = conj * VR + k * (gastaDebil ? n : -n);
        const double neto = (amoniaco ? -conj : conj) * VR + k * (sosa ? n : -n), Ka = amoniaco ? Kw / K : K;
        EXPECT_TRUE(cc / dd >= 0.1 && cc / dd <= 10) << cc / dd;
        // Henderson, and within the rounding shown the exact equilibrium [H3O+] + [Na+] + [NH4+] = [OH-] + [Cl-]
        // + [CH3COO-], the acid CH3COOH or NH4+.
        Espera(r[k], amoniaco ? 14 + std::log10(K * dd / cc) : -std::log10(K * dd / cc));
        const double t = (dd + cc) / v;
        EXPECT_NEAR(r[k].second.valor, P([&](double h) { return h + neto / v + t * h / (h + Ka) - (amoniaco ? 0 : t) - Kw / h; }),
                    0.001);
      }
      EXPECT_NEAR(r[2].second.valor, r[1].second.valor - r[0].second.valor, 1e-9);
      if (agua) {  // the same amount in pure water
        EXPECT_EQ(r[3].first, test::Texto("REG_En_agua") + ": pH");
        Espera(r[3], PHFuerte((sosa ? -n : n) / (VR + V)));
        EXPECT_NEAR(r[4].second.valor, r[3].second.valor - 7, 1e-9);
      }
      if (HasFailure()) return;
    }
  EXPECT_EQ(formas.size(), 6u);
}

}  // namespace
}  // namespace ss
