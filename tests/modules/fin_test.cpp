// Inorganic nomenclature: every composed substance weighed atom by atom and charge by charge, and each of its
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
using Ion = Carga;  // the charge's size; the sign comes from the role the ion plays
using Tabla = std::map<std::string, std::pair<Ion, std::string>>;  // name -> ion, acid

Mapa Mas(Mapa a, const Mapa& b, int k = 1) {
  for (const auto& [e, n] : b)
    if (n) a[e] += k * n;
  return a;
}

// ---- The words of the names.
// Pairs "value name" of a text: name -> value.
std::map<std::string, std::string> Pares(const char* t) {
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
const std::string kNoMetales = " B C N Si P As Sb S Se Te Cl Br I F ", kDiatomicos = " H N O F Cl Br I ";
// The cations of one charge only, named without a numeral.
const Mapa kCargaFija = {{"H", 1}, {"Li", 1}, {"Na", 1}, {"K", 1},  {"Rb", 1}, {"Cs", 1}, {"Fr", 1}, {"Ag", 1}, {"Be", 2}, {"Mg", 2},
                         {"Ca", 2}, {"Sr", 2}, {"Ba", 2}, {"Ra", 2}, {"Zn", 2}, {"Cd", 2}, {"Al", 3}, {"Ga", 3}};
const auto kCationes = Pares("NH_4 ammonium H_3O oxonium H_3O hydronium");
// Rows "name formula charge acid" ("-": no acid).
Tabla Lee(const char* filas) {
  Tabla m;
  std::istringstream in(filas);
  int q;
  for (std::string n, f, a; in >> n >> f >> q >> a;) m[n] = {{test::Especie(f).atomos, q}, a};
  return m;
}
const Tabla kBinarios = Lee(
    "fluoride F 1 hydrofluoric chloride Cl 1 hydrochloric bromide Br 1 hydrobromic iodide I 1 hydroiodic "
    "sulfide S 2 hydrosulfuric selenide Se 2 hydroselenic telluride Te 2 hydrotelluric nitride N 3 - phosphide P 3 - "
    "arsenide As 3 - antimonide Sb 3 - carbide C 4 - silicide Si 4 - boride B 3 - hydride H 1 - oxide O 2 - "
    "peroxide O_2 2 - hydroxide OH 1 -");
// Oxoanions; the phosphorus, arsenic and antimony series from the ortho acids H_3XO_4 (-ate) and H_3XO_3 (-ite):
// meta- is one ortho less water, pyro- or di- two ortho less water.
const Tabla kOxoaniones = [] {
  Tabla m = Lee(
      "hypochlorite ClO 1 hypochlorous chlorite ClO_2 1 chlorous chlorate ClO_3 1 chloric perchlorate ClO_4 1 perchloric "
      "hypobromite BrO 1 hypobromous bromite BrO_2 1 bromous bromate BrO_3 1 bromic perbromate BrO_4 1 perbromic "
      "hypoiodite IO 1 hypoiodous iodate IO_3 1 iodic periodate IO_4 1 periodic sulfite SO_3 2 sulfurous "
      "sulfate SO_4 2 sulfuric disulfate S_2O_7 2 disulfuric selenite SeO_3 2 selenous selenate SeO_4 2 selenic "
      "tellurite TeO_3 2 tellurous tellurate TeO_4 2 telluric nitrite NO_2 1 nitrous nitrate NO_3 1 nitric "
      "hyponitrite N_2O_2 2 hyponitrous carbonate CO_3 2 carbonic silicate SiO_3 2 silicic chromate CrO_4 2 chromic "
      "dichromate Cr_2O_7 2 dichromic manganate MnO_4 2 manganic permanganate MnO_4 1 permanganic borate BO_3 3 boric "
      "orthoborate BO_3 3 orthoboric metaborate BO_2 1 metaboric tetraborate B_4O_7 2 tetraboric");
  using Pasos = std::initializer_list<std::tuple<std::string, int, int>>;  // prefix, ortho acids, waters lost
  for (const char* s : {"P phosphate phosphoric phosphite phosphorous", "As arsenate arsenic arsenite arsenious",
                        "Sb antimonate antimonic antimonite antimonious"}) {
    std::istringstream in(s);
    std::string x, n[4];
    in >> x >> n[0] >> n[1] >> n[2] >> n[3];
    for (int o : {4, 3})
      for (const auto& [p, k, w] : Pasos{{"", 1, 0}, {"ortho", 1, 0}, {"meta", 1, 1}, {"pyro", 2, 1}, {"di", 2, 1}})
        m[p + n[8 - 2 * o]] = {{{{x, k}, {"O", k * o - w}}, 3 * k - 2 * w}, p + n[9 - 2 * o]};
  }
  return m;
}();
// The root of an oxoacid of one central atom names that atom with its oxidation number: "phosphorous" P +3.
const std::map<std::string, std::pair<std::string, int>> kRaices = [] {
  std::map<std::string, std::pair<std::string, int>> m;
  for (const auto& [sal, v] : kOxoaniones)
    for (const auto& [e, n] : v.first.atomos)
      if (e != "O" && n == 1) m[v.second] = {e, 2 * v.first.atomos.at("O") - v.first.carga};
  return m;
}();
const auto kComunes = Pares("H_2O water NH_3 ammonia CH_4 methane BH_3 borane SiH_4 silane PH_3 phosphine AsH_3 arsine "
                            "SbH_3 stibine O_3 ozone O_3 trioxygen");
const std::vector<std::pair<std::string, int>> kPrefijos = {{"mono", 1}, {"mon", 1}, {"di", 2},    {"tri", 3},
                                                            {"tetra", 4}, {"penta", 5}, {"hexa", 6}, {"hepta", 7}};
const std::vector<std::string> kRomanos = {"(I)", "(II)", "(III)", "(IV)", "(V)", "(VI)", "(VII)"};

// A word with a Greek prefix found by `conoce` once the prefix is off: the word and the count (1 unprefixed).
template <class F>
std::optional<std::pair<std::string, int>> SinPrefijo(const std::string& w, F conoce, bool& prefijo) {
  if (conoce(w)) return std::pair{w, 1};
  for (const auto& [p, n] : kPrefijos)
    if (w.starts_with(p) && conoce(w.substr(p.size()))) return prefijo = true, std::pair{w.substr(p.size()), n};
  return std::nullopt;
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
    const int n = w.size() == 2 ? (w[0] == "atomic" || w[0] == "nascent" ? 1 : w[0] == "diatomic" ? 2 : 0)
                                : 1 + (kDiatomicos.find(" " + e + " ") != std::string::npos);
    return n ? std::optional<Carga>(Carga{{{e, n}}, 0}) : std::nullopt;
  }
  // "hydrogen" or "dihydrogen" between cation and anion, or before an anion named as an ion, belongs to the anion.
  bool prefijo = false;
  int h = 0;
  if (w.size() == 3 || (ion && w.size() == 2)) {
    const std::string x = w[w.size() - 2];
    h = x == "hydrogen" ? 1 : x == "dihydrogen" ? 2 : x == "trihydrogen" ? 3 : 0;
    if (!h) return std::nullopt;
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

  // The cation: its charge from a numeral, from an element of one charge or from its own name.
  std::string c = w[0];
  int carga = 0, nc = 1;
  for (int k = 7; k >= 1; --k)
    if (c.ends_with(kRomanos[k - 1])) c.resize(c.size() - kRomanos[k - 1].size()), carga = k;
  Mapa cation;
  if (kCationes.count(c)) cation = test::Especie(kCationes.at(c)).atomos, carga = 1;
  else if (auto p = SinPrefijo(c, [](const std::string& s) { return kElementos.count(s) > 0; }, prefijo)) {
    const std::string e = kElementos.at(p->first);
    cation = {{e, 1}}, nc = p->second;
    if (e == "Hg" && carga == 1) cation = {{"Hg", 2}}, carga = 2;  // mercury(I) is Hg_2^2+
    if (kCargaFija.count(e) && carga) return std::nullopt;  // a numeral on an element of one charge
    if (kCargaFija.count(e)) carga = kCargaFija.at(e);
  } else
    return std::nullopt;
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
  std::string t;
  for (const auto& [e, n] : c ? c->atomos : Mapa{}) t += e + std::to_string(n) + " ";
  return c ? t + "/ " + std::to_string(c->carga) : "unread";
}

// The formula as the atom counter reads it: the en dash as a minus, the state mark left out.
Carga LeeFormula(std::string f) {
  ReplaceAll(f, "\x96", "-"), ReplaceAll(f, "_(_a_q_)", "");
  return test::Especie(f);
}

// ---- Every family: its charge's sign, the elements it must hold and how many kinds (0: any).
struct Regla { int signo; const char* con; std::size_t clases; };
const Regla kReglas[20] = {{0, "", 1},  {0, "H", 2},   {0, "H", 2},   {0, "OH", 0}, {0, "O", 2},  {0, "O", 2},   {0, "O", 2},
                           {0, "", 0},  {0, "H", 3},   {-1, "H", 2},  {0, "H", 2},  {0, "H", 2},  {-1, "", 1},   {0, "HO", 3},
                           {-1, "O", 0}, {1, "", 0},   {-1, "HO", 3}, {0, "HO", 0}, {0, "O", 0},  {0, "", 2}};
bool DeLaFamilia(int f, const Carga& c) {
  const Regla& r = kReglas[f];
  bool ok = (r.signo ? c.carga * r.signo > 0 : c.carga == 0) && (!r.clases || c.atomos.size() == r.clases);
  for (const char* e = r.con; *e; ++e) ok = ok && c.atomos.count(std::string(1, *e));
  return ok;
}

// 900 substances of each family, drawn once.
const std::vector<Compuesto>& Muestra(int f) {
  static std::map<int, std::vector<Compuesto>> m;
  if (!m.count(f))
    for (uint64_t s = 1; s <= 300; ++s) {
      Aleatorio rnd(s * 6151 + static_cast<uint64_t>(f));
      for (int k = 0; k < 3; ++k) m[f].push_back(ComponerCompuesto(rnd, Familia(f)));
    }
  return m[f];
}

TEST(FinCompuestos, ChargesAndNamesAgreeWithTheFormula) {
  for (int f = 0; f < 20; ++f)
    for (const Compuesto& c : Muestra(f)) {
      const std::string quien = "family " + std::to_string(f) + ": " + c.formula;
      const Carga q = LeeFormula(c.formula);
      EXPECT_TRUE(DeLaFamilia(f, q)) << quien;
      for (const std::string* n : {&c.sistematico, &c.stock, &c.tradicional})
        EXPECT_EQ(Txt(LeeNombre(*n)), Txt(q)) << quien << " named \"" << *n << "\"";
    }
}

TEST(FinCompuestos, ChosenCasesAndSubstancesThatDoNotExist) {
  // Names and formulas the samples of their families hold.
  const std::tuple<int, const char*, const char*> casos[] = {
      {5, "copper(I) oxide", "Cu_2O"}, {4, "sodium peroxide", "Na_2O_2"}, {4, "calcium peroxide", "CaO_2"},
      {4, "disodium dioxide", "Na_2O_2"}, {18, "ammonium sulfate", "(NH_4)_2SO_4"}, {18, "iron(III) sulfate", "Fe_2(SO_4)_3"},
      {6, "phosphorous anhydride", "P_2O_3"}, {6, "dinitrogen pentaoxide", "N_2O_5"}, {2, "ammonia", "NH_3"},
      {15, "mercury(I) ion", "Hg_2^2^+"}, {15, "oxonium ion", "H_3O^+"}, {17, "calcium dihydrogen phosphate", "Ca(H_2PO_4)_2"},
      {17, "sodium bicarbonate", "NaHCO_3"}, {19, "phosphorus(V) chloride", "PCl_5"}, {19, "carbon tetrachloride", "CCl_4"},
      {14, "sulfate ion", "SO_4^2^\x96"}, {7, "mercury(I) chloride", "Hg_2Cl_2"}, {3, "calcium hydroxide", "Ca(OH)_2"},
      {0, "oxygen", "O_2"}, {11, "hydrosulfuric acid", "H_2S_(_a_q_)"}, {9, "hydrogen sulfide ion", "HS^\x96"},
      {16, "hydrogen phosphate ion", "HPO_4^2^\x96"}, {13, "pyrophosphoric acid", "H_4P_2O_7"}};
  for (const auto& [f, n, formula] : casos) {
    EXPECT_EQ(Txt(LeeNombre(n)), Txt(LeeFormula(formula))) << n;
    bool hay = false;
    for (const Compuesto& c : Muestra(f)) hay |= c.formula == formula && (c.tradicional == n || c.stock == n || c.sistematico == n);
    EXPECT_TRUE(hay) << n;
  }
  for (const char* malo : {"copper chloride", "sodium(I) chloride", "chloride", "sulfurous ion", "iron(III) ion ion"})
    EXPECT_FALSE(LeeNombre(malo)) << malo;
  // Substances that do not exist never come. (A numeral on a metal of one charge, or none on one of two, leaves a
  // name unread.)
  const std::regex nunca("FeI_3|CuI_2|AuI_3|HgCl|AgH|Co_2O_3|Ni_2O_3|SCl_6|PI_5"), perox("(Fe|Ag).*");
  for (int i = 0; i < 20; ++i)
    for (const Compuesto& c : Muestra(i)) {
      const Familia f = Familia(i);
      EXPECT_FALSE(std::regex_match(c.formula, nunca) || (f == Familia::PEROX && std::regex_match(c.formula, perox))) << c.formula;
      EXPECT_FALSE(f == Familia::AX && c.formula[0] == 'F') << c.formula;
      EXPECT_TRUE(c.formula.find("Fr") == std::string::npos || f == Familia::E || f == Familia::M_ion) << c.formula;
    }
}

// ---- The lists through the dispatcher: each item's column ("&SP=n:"), letter, text and line.
struct Item { int columna; char letra; std::string texto; int linea; };
std::vector<Item> Items(const std::string& t) {
  std::vector<Item> v;
  static const std::regex marca(R"(&SP=(\d+):(?:&-I)?(?:&\+B([a-z])\)&-B)?)");
  int linea = 0;
  for (std::size_t a = 0, b; a < t.size(); a = b + 3, ++linea) {
    const std::string l = t.substr(a, (b = std::min(t.find("&LF", a), t.size())) - a);
    for (std::sregex_iterator it(l.begin(), l.end(), marca), end; it != end; ++it) {
      const std::size_t fin = std::next(it) == end ? l.size() : static_cast<std::size_t>(std::next(it)->position());
      const std::size_t ini = it->position() + it->length();
      v.push_back({std::stoi((*it)[1]), (*it)[2].matched ? (*it)[2].str()[0] : '\0',
                   std::string(Trim(l.substr(ini, fin - ini))), linea});
    }
  }
  return v;
}

// The families of each pair of lists; the odd list gives names, the even one formulas.
const std::vector<int> kListas[10] = {{0}, {5, 6, 4}, {10, 11, 7, 8, 19}, {13}, {12, 15}, {9, 14, 16, 15}, {1, 2}, {3}, {18}, {17}};

void CompruebaLista(int gen, int pedidos, uint64_t semilla) {
  const test::Problema p = test::GeneraEn("ANEU_QUIM_FIN", gen, 1, pedidos, semilla);
  // The elements and the monoatomic ions: two items a line in the list, eight columns in the form.
  const bool nombres = gen % 2 == 1, dos = gen <= 2 || gen == 9 || gen == 10;
  const std::string quien = "list " + std::to_string(gen) + ", " + std::to_string(pedidos) + " asked:\n" + p.st + "\n" + p.so;
  EXPECT_TRUE(p.st.ends_with("&LF&LF") && p.so.ends_with("&LF")) << quien;
  ASSERT_TRUE(p.st.starts_with(nombres ? "Give the formula for each of the following:&LF" : "Name each of the following compounds:&LF")) << quien;
  const std::vector<Item> st = Items(p.st), so = Items(p.so);
  const int n = std::min(std::clamp(pedidos, 2, 26), gen >= 13 && gen <= 16 ? 20 : 26);
  ASSERT_TRUE(st.size() == std::size_t(n) && so.size() == std::size_t(n)) << quien;
  std::set<std::string> vistas;
  for (int i = 0; i < n; ++i) {
    const Item &e = st[i], &s = so[i], &nom = nombres ? e : s, &form = nombres ? s : e;
    const int k = i % (dos ? 8 : 4), en8[] = {5, 16, 26, 37, 48, 59, 69, 80}, en4[] = {5, 27, 48, 70};
    EXPECT_TRUE(e.letra == 'a' + i && s.letra == 'a' + i) << quien;
    // The formulas in a grid of four (eight) columns, the names one (two) a line.
    EXPECT_EQ(form.columna, nombres ? (dos ? 10 * (k + 1) : 10 + 20 * k) : gen == 2 ? en8[k] : dos ? 10 * (k + 1) : en4[k]) << quien;
    EXPECT_EQ(form.linea - (nombres ? so[0].linea : st[0].linea), i / (dos ? 8 : 4)) << quien;
    EXPECT_EQ(nom.columna, dos && i % 2 ? 50 : nombres ? 5 : 10) << quien;
    EXPECT_EQ(nom.linea - (nombres ? st[0].linea : so[0].linea), dos ? i / 2 : i) << quien;
    // A new formula, of one of the list's families (one atom in the monoatomic ions, more in the polyatomic);
    // each name of the item reads back to it.
    EXPECT_TRUE(vistas.insert(form.texto).second) << "repeated " << form.texto << " in " << quien;
    const Carga q = LeeFormula(form.texto);
    int atomos = 0;
    for (const auto& [el, m] : q.atomos) atomos += m;
    bool familia = false;
    for (int f : kListas[(gen - 1) / 2]) familia |= DeLaFamilia(f, q);
    EXPECT_TRUE(familia && (gen == 9 || gen == 10 ? atomos == 1 : gen == 11 || gen == 12 ? atomos > 1 : true))
        << form.texto << " in " << quien;
    std::vector<std::string> partes;
    for (std::size_t a = 0, b; a <= nom.texto.size(); a = b + 3)
      partes.push_back(nom.texto.substr(a, (b = std::min(nom.texto.find(",  ", a), nom.texto.size())) - a));
    EXPECT_TRUE(partes.size() <= (dos ? 2u : 3u)) << nom.texto;
    for (const std::string& x : partes) EXPECT_EQ(Txt(LeeNombre(x)), Txt(q)) << x << " in " << quien;
  }
}

TEST(FinListas, EveryListAtEverySize) {
  for (int gen = 1; gen <= 20; ++gen)
    for (int pedidos : {1, 9, 26, 40})
      for (uint64_t s = 1; s <= 5; ++s) CompruebaLista(gen, pedidos, s * 1009 + gen * 31 + pedidos);
}

}  // namespace
}  // namespace ss::mod::ATEM_QUIM_FIN
