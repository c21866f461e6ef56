// Inorganic nomenclature: every composed substance weighed atom by atom and charge by charge, and every one of its
// names read back to a formula by the tests' own name reader, which knows the words of the names and the charges
// of their parts and nothing of how the module composes them; then the twenty lists as the page lays them out.
#include <numeric>
#include <optional>
#include <set>
#include <sstream>

#include "modules/ATEM_QUIM_FIN/compuestos.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss::mod::ATEM_QUIM_FIN {
namespace {

using test::Carga;
using Mapa = std::map<std::string, int>;

// ---- The words of the names.
struct Ion {
  Mapa atomos;
  int carga;  // its size; the sign comes from the role it plays
};
Mapa Atomos(const std::string& f) { return test::Especie(f).atomos; }

// Pairs "word value" of a text, one word per value.
std::map<std::string, std::string> Pares(const std::string& t) {
  std::map<std::string, std::string> m;
  std::istringstream in(t);
  for (std::string a, b; in >> a >> b;) m[b] = a;
  return m;
}
const auto kElementos = Pares(
    "H hydrogen He helium Li lithium Be beryllium B boron C carbon N nitrogen O oxygen F fluorine Ne neon Na sodium "
    "Mg magnesium Al aluminium Al aluminum Si silicon P phosphorus S sulfur Cl chlorine Ar argon K potassium "
    "Ca calcium Ti titanium V vanadium Cr chromium Mn manganese Fe iron Co cobalt Ni nickel Cu copper Zn zinc "
    "Ga gallium Ge germanium As arsenic Se selenium Br bromine Kr krypton Rb rubidium Sr strontium Mo molybdenum "
    "Pd palladium Ag silver Cd cadmium Sn tin Sb antimony Te tellurium I iodine Xe xenon Cs caesium Cs cesium "
    "Ba barium W tungsten Pt platinum Au gold Hg mercury Pb lead Bi bismuth Rn radon Fr francium Ra radium "
    "U uranium Pu plutonium");
const std::string kNoMetales = " B C N Si P As Sb S Se Te Cl Br I F ";
const std::set<std::string> kDiatomicos = {"H", "N", "O", "F", "Cl", "Br", "I"};
// The metals of one charge only, named without a numeral.
const Mapa kCargaFija = {{"Li", 1}, {"Na", 1}, {"K", 1},  {"Rb", 1}, {"Cs", 1}, {"Fr", 1}, {"Ag", 1}, {"Be", 2}, {"Mg", 2},
                         {"Ca", 2}, {"Sr", 2}, {"Ba", 2}, {"Ra", 2}, {"Zn", 2}, {"Cd", 2}, {"Al", 3}, {"Ga", 3}};
const std::map<std::string, Ion> kCationes = {
    {"ammonium", {{{"N", 1}, {"H", 4}}, 1}}, {"oxonium", {{{"H", 3}, {"O", 1}}, 1}}, {"hydronium", {{{"H", 3}, {"O", 1}}, 1}}};
// Binary anions: name, formula, charge, and the acid of the hydrogen compound in water.
const std::map<std::string, std::pair<Ion, std::string>> kBinarios = [] {
  std::map<std::string, std::pair<Ion, std::string>> m;
  std::istringstream in(
      "fluoride F 1 hydrofluoric chloride Cl 1 hydrochloric bromide Br 1 hydrobromic iodide I 1 hydroiodic "
      "sulfide S 2 hydrosulfuric selenide Se 2 hydroselenic telluride Te 2 hydrotelluric nitride N 3 - "
      "phosphide P 3 - arsenide As 3 - antimonide Sb 3 - carbide C 4 - silicide Si 4 - boride B 3 - hydride H 1 - "
      "oxide O 2 - peroxide O_2 2 - hydroxide OH 1 -");
  for (std::string n, f, a; in >> n >> f;) {
    int q;
    in >> q >> a;
    m[n] = {{Atomos(f), q}, a};
  }
  return m;
}();
// Oxoanions: salt name, formula, charge and acid; the phosphorus, arsenic and antimony series are spelled out
// below from their ortho acids (meta = ortho less water, pyro- or di- = two ortho less water).
const std::map<std::string, std::pair<Ion, std::string>> kOxoaniones = [] {
  std::map<std::string, std::pair<Ion, std::string>> m;
  auto pon = [&](const std::string& sal, const std::string& f, int q, const std::string& acido) {
    m[sal] = {{Atomos(f), q}, acido};
  };
  std::istringstream in(
      "hypochlorite ClO 1 hypochlorous chlorite ClO_2 1 chlorous chlorate ClO_3 1 chloric perchlorate ClO_4 1 perchloric "
      "hypobromite BrO 1 hypobromous bromite BrO_2 1 bromous bromate BrO_3 1 bromic perbromate BrO_4 1 perbromic "
      "hypoiodite IO 1 hypoiodous iodate IO_3 1 iodic periodate IO_4 1 periodic sulfite SO_3 2 sulfurous "
      "sulfate SO_4 2 sulfuric disulfate S_2O_7 2 disulfuric selenite SeO_3 2 selenous selenate SeO_4 2 selenic "
      "tellurite TeO_3 2 tellurous tellurate TeO_4 2 telluric nitrite NO_2 1 nitrous nitrate NO_3 1 nitric "
      "hyponitrite N_2O_2 2 hyponitrous carbonate CO_3 2 carbonic silicate SiO_3 2 silicic chromate CrO_4 2 chromic "
      "dichromate Cr_2O_7 2 dichromic manganate MnO_4 2 manganic permanganate MnO_4 1 permanganic borate BO_3 3 boric "
      "orthoborate BO_3 3 orthoboric metaborate BO_2 1 metaboric tetraborate B_4O_7 2 tetraboric");
  for (std::string n, f, a; in >> n >> f;) {
    int q;
    in >> q >> a;
    pon(n, f, q, a);
  }
  const char* series[][5] = {{"P", "phosphate", "phosphoric", "phosphite", "phosphorous"},
                             {"As", "arsenate", "arsenic", "arsenite", "arsenious"},
                             {"Sb", "antimonate", "antimonic", "antimonite", "antimonious"}};
  for (const auto& s : series)
    for (int ato : {1, 0}) {  // -ate has one oxygen more than -ite
      const std::string x = s[0], sal = s[ato ? 1 : 3], acido = s[ato ? 2 : 4];
      for (std::string o : {"", "ortho"}) pon(o + sal, x + (ato ? "O_4" : "O_3"), 3, o + acido);
      pon("meta" + sal, x + (ato ? "O_3" : "O_2"), 1, "meta" + acido);
      for (std::string o : {"pyro", "di"}) pon(o + sal, x + "_2" + (ato ? "O_7" : "O_5"), 4, o + acido);
    }
  return m;
}();
// The root of an oxoacid of one central atom names that atom with its oxidation number: "phosphorous" P +3.
const std::map<std::string, std::pair<std::string, int>> kRaices = [] {
  std::map<std::string, std::pair<std::string, int>> m;
  for (const auto& [sal, v] : kOxoaniones) {
    const auto& [ion, acido] = v;
    for (const auto& [e, n] : ion.atomos)
      if (e != "O" && n == 1) m[acido] = {e, (2 * ion.atomos.at("O") - ion.carga) / n};
  }
  m["arsenous"] = m["arsenious"], m["selenious"] = m["selenous"], m["antimonous"] = m["antimonious"];
  return m;
}();
const std::map<std::string, std::string> kComunes = {
    {"water", "H_2O"},     {"ammonia", "NH_3"}, {"methane", "CH_4"}, {"borane", "BH_3"},       {"silane", "SiH_4"},
    {"phosphine", "PH_3"}, {"arsine", "AsH_3"}, {"stibine", "SbH_3"}, {"ozone", "O_3"},         {"trioxygen", "O_3"},
    {"nascent hydrogen", "H"}};
const std::vector<std::pair<std::string, int>> kPrefijos = {{"mono", 1}, {"mon", 1}, {"di", 2},    {"tri", 3},
                                                            {"tetra", 4}, {"tetr", 4}, {"penta", 5}, {"pent", 5},
                                                            {"hexa", 6},  {"hex", 6},  {"hepta", 7}, {"hept", 7}};
const std::vector<std::string> kRomanos = {"(I)", "(II)", "(III)", "(IV)", "(V)", "(VI)", "(VII)"};

// A word with a Greek prefix found by `conoce` once the prefix is off: the count (1 without a prefix).
template <class F>
std::optional<std::pair<std::string, int>> SinPrefijo(const std::string& w, F conoce, bool& prefijo) {
  if (conoce(w)) return std::pair{w, 1};
  for (const auto& [p, n] : kPrefijos)
    if (w.starts_with(p) && conoce(w.substr(p.size()))) return prefijo = true, std::pair{w.substr(p.size()), n};
  return std::nullopt;
}

Mapa Mas(Mapa a, const Mapa& b, int k = 1) {
  for (const auto& [e, n] : b)
    if (n) a[e] += k * n;
  return a;
}

// ---- The name reader: a name to its atoms and charge; nullopt when a word or its charge is unknown.
std::optional<Carga> LeeNombre(const std::string& nombre) {
  std::vector<std::string> w;
  std::istringstream in(nombre);
  for (std::string s; in >> s;) w.push_back(s);
  if (w.empty()) return std::nullopt;
  if (kComunes.count(nombre)) return test::Especie(kComunes.at(nombre));
  const bool ion = w.back() == "ion";
  if (ion) w.pop_back();
  if (w.size() == 2 && w[1] == "acid") {  // "hydrochloric acid", "sulfuric acid"
    for (const auto* t : {&kBinarios, &kOxoaniones})
      for (const auto& [n, v] : *t)
        if (v.second == w[0]) return Carga{Mas({{"H", v.first.carga}}, v.first.atomos), 0};
    return std::nullopt;
  }
  if (w.size() == 2 && w[1] == "anhydride") {  // "nitric anhydride": the root's oxidation number over oxide
    if (!kRaices.count(w[0])) return std::nullopt;
    const auto [e, k] = kRaices.at(w[0]);
    return Carga{{{e, 2 / std::gcd(k, 2)}, {"O", k / std::gcd(k, 2)}}, 0};
  }
  if (!ion && w.size() <= 2 && kElementos.count(w.back())) {  // "sulfur", "oxygen", "atomic chlorine"
    const std::string e = kElementos.at(w.back());
    const int n = w.size() == 2 ? (w[0] == "atomic" ? 1 : w[0] == "diatomic" ? 2 : 0) : 1 + kDiatomicos.count(e);
    return n ? std::optional<Carga>(Carga{{{e, n}}, 0}) : std::nullopt;
  }
  // A cation, an anion, or both; "hydrogen" or "dihydrogen" between them, or before an anion named as an ion,
  // belongs to the anion.
  bool prefijo = false;
  int h = 0;
  if (w.size() == 3 || (ion && w.size() == 2)) {
    static const Mapa hidrogenos = {{"hydrogen", 1}, {"dihydrogen", 2}, {"trihydrogen", 3}};
    if (!hidrogenos.count(w[w.size() - 2])) return std::nullopt;
    h = hidrogenos.at(w[w.size() - 2]);
    w.erase(w.end() - 2);
  }
  std::optional<Ion> anion;
  int na = 1;
  const std::string& a = w.back();
  if (kOxoaniones.count(a)) anion = kOxoaniones.at(a).first;
  else if (a.starts_with("bi") && kOxoaniones.count(a.substr(2)) && !h) anion = kOxoaniones.at(a.substr(2)).first, h = 1;
  else if (auto p = SinPrefijo(a, [](const std::string& s) { return kBinarios.count(s) > 0; }, prefijo))
    anion = kBinarios.at(p->first).first, na = p->second;
  if (anion) anion->atomos = Mas(anion->atomos, {{"H", h}}), anion->carga -= h, w.pop_back();
  if (w.empty()) return anion && ion ? std::optional<Carga>(Carga{anion->atomos, -anion->carga}) : std::nullopt;
  if (w.size() != 1 || (anion && anion->carga <= 0)) return std::nullopt;

  // The cation: its charge from a numeral, a root, a metal of one charge or its own name.
  std::string c = w[0];
  int carga = 0, nc = 1;
  for (int k = 7; k >= 1; --k)
    if (c.ends_with(kRomanos[k - 1])) c.resize(c.size() - kRomanos[k - 1].size()), carga = k;
  Mapa cation;
  if (kCationes.count(c)) {
    cation = kCationes.at(c).atomos, carga = kCationes.at(c).carga;
  } else if (kRaices.count(c) && !carga && anion) {
    cation = {{kRaices.at(c).first, 1}}, carga = kRaices.at(c).second;
  } else if (auto p = SinPrefijo(c, [](const std::string& s) { return kElementos.count(s) > 0; }, prefijo)) {
    const std::string e = kElementos.at(p->first);
    cation = {{e, 1}}, nc = p->second;
    if (e == "Hg" && carga == 1) cation = {{"Hg", 2}}, carga = 2;  // mercury(I) is Hg_2^2+
    if (kCargaFija.count(e)) {
      if (carga) return std::nullopt;  // a numeral on a metal of one charge
      carga = kCargaFija.at(e);
    }
    if (e == "H") carga = 1;
  } else {
    return std::nullopt;
  }
  if (!anion) return ion && carga && nc == 1 ? std::optional<Carga>(Carga{cation, carga}) : std::nullopt;
  if (ion) return std::nullopt;
  if (!prefijo) {  // by charges; a non-metal named bare stands one to one
    if (!carga && kNoMetales.find(" " + cation.begin()->first + " ") == std::string::npos) return std::nullopt;
    if (!carga) carga = anion->carga;
    const int l = std::lcm(carga, anion->carga);
    nc = l / carga, na = l / anion->carga;
  }
  return Carga{Mas(Mas({}, cation, nc), anion->atomos, na), 0};
}

// A reading as text, for the messages: "Fe2 O3 S3 / 0", or "unread".
std::string Txt(const std::optional<Carga>& c) {
  if (!c) return "unread";
  std::string t;
  for (const auto& [e, n] : c->atomos) t += e + std::to_string(n) + " ";
  return t + "/ " + std::to_string(c->carga);
}

// The formula as the atom counter reads it: the en dash as a minus, the state mark left out.
Carga LeeFormula(std::string f) {
  ReplaceAll(f, "\x96", "-");
  ReplaceAll(f, "_(_a_q_)", "");
  return test::Especie(f);
}

TEST(FinLector, ReadsNamesAndFormulas) {
  const std::pair<const char*, const char*> casos[] = {
      {"iron(III) sulfate", "Fe_2(SO_4)_3"},   {"dinitrogen pentaoxide", "N_2O_5"}, {"calcium dihydrogen phosphate", "Ca(H_2PO_4)_2"},
      {"phosphorus(V) chloride", "PCl_5"},     {"sulfate ion", "SO_4^2^\x96"},     {"mercury(I) chloride", "Hg_2Cl_2"},
      {"mercury(I) ion", "Hg_2^2^+"},          {"ammonium sulfate", "(NH_4)_2SO_4"}, {"calcium hydroxide", "Ca(OH)_2"},
      {"oxonium ion", "H_3O^+"},               {"oxygen", "O_2"},                   {"hydrosulfuric acid", "H_2S_(_a_q_)"},
      {"sodium bicarbonate", "NaHCO_3"},       {"hydrogen sulfide ion", "HS^\x96"}, {"phosphorous anhydride", "P_2O_3"},
      {"disodium dioxide", "Na_2O_2"},         {"hydrogen phosphate ion", "HPO_4^2^\x96"}, {"pyrophosphoric acid", "H_4P_2O_7"},
      {"sulfuric fluoride", "SF_6"},           {"carbon tetrachloride", "CCl_4"},   {"copper(I) oxide", "Cu_2O"}};
  for (const auto& [n, f] : casos) EXPECT_EQ(Txt(LeeNombre(n)), Txt(LeeFormula(f))) << n;
  EXPECT_EQ(LeeFormula("Hg_2^2^+"), (Carga{{{"Hg", 2}}, 2}));
  EXPECT_EQ(LeeFormula("(NH_4)_2SO_4"), (Carga{{{"H", 8}, {"N", 2}, {"O", 4}, {"S", 1}}, 0}));
  for (const char* malo : {"copper chloride", "sodium(I) chloride", "chloride", "sulfurous ion", "iron(III) ion ion"})
    EXPECT_FALSE(LeeNombre(malo)) << malo;
}

// ---- Every family: the formula's charge, each name read back, and the shape a family's formula and names take.
struct Regla {
  Familia f;
  int signo;  // of the charge: 0 for a neutral substance
  const char *formula, *tradicional;
};
const Regla kReglas[] = {
    {Familia::E, 0, R"([A-Z][a-z]?(_[23])?)", ".*"},
    {Familia::MH, 0, R"([A-Z][a-z]?H(_[23])?)", ".* hydride"},
    {Familia::AH, 0, R"((B|C|N|Si|P|As|Sb)H_[34])", "[a-z]+"},
    {Familia::MOH, 0, R"((NH_4|[A-Z][a-z]?)(OH|\(OH\)_[234]))", ".* hydroxide"},
    {Familia::PEROX, 0, R"([A-Z][a-z]?(_2)?O_2)", ".* peroxide"},
    {Familia::MO, 0, R"([A-Z][a-z]?(_2)?O(_[2-7])?)", ".*(oxide|water)"},
    {Familia::AO, 0, R"((B|C|Si|N|P|As|Sb|S|Se|Te|Cl|Br|I)(_2)?O(_[2-7])?)", ".* [a-z]*(anhydride|oxide)"},
    {Familia::MA, 0, R"((\(NH_4\)|NH_4|[A-Z][a-z]?)(_\d)?[A-Z][a-z]?(_\d)?)", ".*ide"},
    {Familia::MHA, 0, R"([A-Z][a-z]?(_2)?(H(S|Se|Te)|\(H(S|Se|Te)\)_[234]))", ".* hydrogen [a-z]+ide"},
    {Familia::HA_ion, -1, "H(S|Se|Te)\\^\x96", "hydrogen [a-z]+ide ion"},
    {Familia::HA, 0, R"(H(_2)?(F|Cl|Br|I|S|Se|Te))", "hydrogen [a-z]+ide"},
    {Familia::HA_ac, 0, R"(H(_2)?(F|Cl|Br|I|S|Se|Te)_\(_a_q_\))", "hydro[a-z]+ic acid"},
    {Familia::A_ion, -1, "[A-Z][a-z]?\\^([234]\\^)?\x96", "[a-z]+ide ion"},
    {Familia::HAO, 0, R"(H(_\d)?[A-Z][a-z]?(_\d)?O(_\d)?)", "[a-z]+(ic|ous) acid"},
    {Familia::AO_ion, -1, "(OH|[A-Z][a-z]?(_\\d)?O(_\\d)?)\\^([234]\\^)?\x96", "[a-z]+(ate|ite|ide) ion"},
    {Familia::M_ion, 1, R"((NH_4|H_3O|Hg_2|[A-Z][a-z]?)\^([234]\^)?\+)", "[a-z()IV]+ ion"},
    {Familia::HAO_ion, -1, "H(_[23])?[A-Z][a-z]?(_\\d)?O(_\\d)?\\^([23]\\^)?\x96", "(di|tri)?hydrogen [a-z]+ ion|bi[a-z]+ ion"},
    {Familia::MHAO, 0, R"(([A-Z][a-z]?|Hg_2)(_\d)?(H(_[23])?[A-Z][a-z]?(_\d)?O(_\d)?|\(H(_[23])?[A-Z][a-z]?(_\d)?O(_\d)?\)_\d))", ".*"},
    {Familia::MAO, 0, R"((\(NH_4\)_\d|NH_4|[A-Z][a-z]?|Hg_2)(_\d)?(\(?[A-Z][a-z]?(_\d)?O(_\d)?\)?(_\d)?))", ".*(ate|ite)"},
    {Familia::AX, 0, R"((B|Si|C|Sb|As|P|N|Te|Se|S|I|Br|Cl)(_\d)?(Si|C|Sb|As|P|N|Te|Se|S|I|Br|Cl|F)(_\d)?)", ".*ide"},
};

std::map<Familia, std::vector<Compuesto>>& Muestra() {
  static std::map<Familia, std::vector<Compuesto>> m = [] {
    std::map<Familia, std::vector<Compuesto>> r;
    for (const Regla& regla : kReglas)
      for (uint64_t s = 1; s <= 300; ++s) {
        Aleatorio rnd(s * 6151 + static_cast<uint64_t>(regla.f));
        for (int k = 0; k < 3; ++k) r[regla.f].push_back(ComponerCompuesto(rnd, regla.f));
      }
    return r;
  }();
  return m;
}

TEST(FinCompuestos, ChargesAndNamesAgreeWithTheFormula) {
  for (const Regla& r : kReglas) {
    ASSERT_EQ(static_cast<int>(r.f), &r - kReglas);  // the table follows the families' order
    for (const Compuesto& c : Muestra()[r.f]) {
      const std::string quien = "family " + std::to_string(static_cast<int>(r.f)) + ": " + c.formula;
      EXPECT_TRUE(std::regex_match(c.formula, std::regex(r.formula))) << quien;
      EXPECT_TRUE(std::regex_match(c.tradicional, std::regex(r.tradicional))) << quien << " / " << c.tradicional;
      const Carga f = LeeFormula(c.formula);
      EXPECT_TRUE(r.signo ? f.carga * r.signo > 0 : f.carga == 0) << quien;
      for (const std::string* n : {&c.sistematico, &c.stock, &c.tradicional})
        EXPECT_EQ(Txt(LeeNombre(*n)), Txt(f)) << quien << " named \"" << *n << "\"";
    }
  }
}

bool Hay(Familia f, const std::string& formula, const std::string& nombre) {
  for (const Compuesto& c : Muestra()[f])
    if (c.formula == formula && (c.tradicional == nombre || c.stock == nombre || c.sistematico == nombre)) return true;
  return false;
}

TEST(FinCompuestos, ChosenCases) {
  EXPECT_TRUE(Hay(Familia::MO, "Cu_2O", "copper(I) oxide"));
  EXPECT_TRUE(Hay(Familia::PEROX, "Na_2O_2", "sodium peroxide"));
  EXPECT_TRUE(Hay(Familia::PEROX, "CaO_2", "calcium peroxide"));
  EXPECT_TRUE(Hay(Familia::MAO, "(NH_4)_2SO_4", "ammonium sulfate"));
  EXPECT_TRUE(Hay(Familia::AO, "P_2O_3", "phosphorous anhydride"));
  EXPECT_TRUE(Hay(Familia::AH, "NH_3", "ammonia"));
  EXPECT_TRUE(Hay(Familia::M_ion, "Hg_2^2^+", "mercury(I) ion"));
  // Numerals where a metal has two charges, and only there; substances that do not exist never come.
  const std::regex sinNumeral(R"(\b(copper|iron|mercury|gold|lead|tin|cobalt|nickel|chromium|manganese|platinum)(?![(a-z]))");
  const std::regex conNumeral(R"(\b(lithium|sodium|potassium|calcium|magnesium|barium|aluminium|zinc|silver)\()");
  const std::regex nunca("FeI_3|CuI_2|AuI_3|HgCl|AgH|Co_2O_3|Ni_2O_3|SCl_6|PI_5"), perox("(Fe|Ag).*");
  for (const auto& [f, v] : Muestra())
    for (const Compuesto& c : v) {
      EXPECT_FALSE(f != Familia::E && std::regex_search(c.stock, sinNumeral)) << c.stock;
      EXPECT_FALSE(std::regex_search(c.stock, conNumeral)) << c.stock;
      EXPECT_FALSE(std::regex_match(c.formula, nunca) || (f == Familia::PEROX && std::regex_match(c.formula, perox))) << c.formula;
      EXPECT_FALSE(f == Familia::AX && c.formula[0] == 'F') << c.formula;
      EXPECT_TRUE(c.formula.find("Fr") == std::string::npos || f == Familia::E || f == Familia::M_ion) << c.formula;
    }
}

// ---- The lists through the dispatcher.
struct Item {
  int columna;  // "&SP=n:"
  char letra;
  std::string texto;
  int linea;
};
std::vector<Item> Items(const std::string& t) {
  std::vector<Item> v;
  static const std::regex marca(R"(&SP=(\d+):(?:&-I)?(?:&\+B([a-z])\)&-B)?)");
  int linea = 0;
  for (std::size_t a = 0, b; a < t.size(); a = b + 3, ++linea) {
    b = std::min(t.find("&LF", a), t.size());
    const std::string l = t.substr(a, b - a);
    for (std::sregex_iterator it(l.begin(), l.end(), marca), end; it != end; ++it) {
      const std::size_t fin = std::next(it) == end ? l.size() : static_cast<std::size_t>(std::next(it)->position());
      const std::size_t ini = it->position() + it->length();
      v.push_back({std::stoi((*it)[1]), (*it)[2].matched ? (*it)[2].str()[0] : '\0',
                   std::string(Trim(l.substr(ini, fin - ini))), linea});
    }
  }
  return v;
}

// The families of each list, by its number; the odd ones give names, the even ones formulas.
const std::vector<Familia> kListas[10] = {
    {Familia::E},
    {Familia::MO, Familia::AO, Familia::PEROX},
    {Familia::HA, Familia::HA_ac, Familia::MA, Familia::MHA, Familia::AX},
    {Familia::HAO},
    {Familia::A_ion, Familia::M_ion},
    {Familia::HA_ion, Familia::AO_ion, Familia::HAO_ion, Familia::M_ion},
    {Familia::MH, Familia::AH},
    {Familia::MOH},
    {Familia::MAO},
    {Familia::MHAO}};

void CompruebaLista(int gen, int pedidos, uint64_t semilla) {
  const test::Problema p = test::GeneraEn("ANEU_QUIM_FIN", gen, 1, pedidos, semilla);
  // The elements and the monoatomic ions: two items a line in the list, eight columns in the grid.
  const bool nombres = gen % 2 == 1, dos = gen <= 2 || gen == 9 || gen == 10;
  const std::string quien = "list " + std::to_string(gen) + ", " + std::to_string(pedidos) + " asked:\n" + p.st + "\n" + p.so;
  EXPECT_TRUE(p.st.ends_with("&LF&LF") && p.so.ends_with("&LF")) << quien;
  ASSERT_TRUE(p.st.starts_with(nombres ? "Give the formula for each of the following:&LF" : "Name each of the following compounds:&LF")) << quien;
  const std::vector<Item> st = Items(p.st), so = Items(p.so);
  const int n = std::min(std::clamp(pedidos, 2, 26), gen >= 13 && gen <= 16 ? 20 : 26);
  ASSERT_EQ(st.size(), std::size_t(n)) << quien;
  ASSERT_EQ(so.size(), std::size_t(n)) << quien;
  std::set<std::string> vistas;
  for (int i = 0; i < n; ++i) {
    const Item &e = st[i], &s = so[i], &nom = nombres ? e : s, &form = nombres ? s : e;
    const int k = i % (dos ? 8 : 4), en8[] = {5, 16, 26, 37, 48, 59, 69, 80}, en4[] = {5, 27, 48, 70};
    EXPECT_TRUE(e.letra == 'a' + i && s.letra == 'a' + i) << quien;
    // Statement and solution columns, and a new line after every fourth (eighth) item of a grid.
    const Item& grid = nombres ? s : e;
    EXPECT_EQ(grid.columna, nombres ? (dos ? 10 * (k + 1) : 10 + 20 * k) : gen == 2 ? en8[k] : dos ? 10 * (k + 1) : en4[k]) << quien;
    EXPECT_EQ(grid.linea - (nombres ? so[0].linea : st[0].linea), i / (dos ? 8 : 4)) << quien;
    const Item& lista = nombres ? e : s;
    EXPECT_EQ(lista.columna, dos && i % 2 ? 50 : nombres ? 5 : 10) << quien;
    EXPECT_EQ(lista.linea - (nombres ? st[0].linea : so[0].linea), dos ? i / 2 : i) << quien;
    // Each name of the item is the item's formula; the formula belongs to one of the list's families.
    EXPECT_TRUE(vistas.insert(form.texto).second) << "repeated " << form.texto << " in " << quien;
    bool familia = false;
    for (Familia f : kListas[(gen - 1) / 2])
      familia |= std::regex_match(form.texto, std::regex(kReglas[static_cast<int>(f)].formula));
    EXPECT_TRUE(familia) << form.texto << " in " << quien;
    std::vector<std::string> partes;
    for (std::size_t a = 0, b; a <= nom.texto.size(); a = b + 3)
      partes.push_back(nom.texto.substr(a, (b = std::min(nom.texto.find(",  ", a), nom.texto.size())) - a));
    EXPECT_TRUE(partes.size() <= (dos ? 2u : 3u)) << nom.texto;
    for (const std::string& x : partes) EXPECT_EQ(Txt(LeeNombre(x)), Txt(LeeFormula(form.texto))) << x << " in " << quien;
  }
}

TEST(FinListas, EveryListAtEverySize) {
  for (int gen = 1; gen <= 20; ++gen)
    for (int pedidos : {1, 9, 26, 40})
      for (uint64_t s = 1; s <= 5; ++s) CompruebaLista(gen, pedidos, s * 1009 + gen * 31 + pedidos);
}

}  // namespace
}  // namespace ss::mod::ATEM_QUIM_FIN
