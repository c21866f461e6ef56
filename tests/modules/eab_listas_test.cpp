// The acid-base lists and titrations read as a student reads them. Species
// are classified by the test's own rule (one that can give a proton is an
// acid, one that can take one a base, one that can do both amphoteric) and
// their conjugates differ from them by one proton; salts are split into ions
// by their atoms and judged by the ions that come from weak acids or bases;
// reactions are balanced and pass one proton; every titration answer is
// worked again from the numbers the statement shows, the equivalents counted
// from the formula and weak species solved with the quadratic.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <numeric>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "modules/modulos.h"
#include "problems/texto.h"
#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {

using test::Texto;
using Textos = std::vector<std::string>;

test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7907 + static_cast<uint64_t>(seqB * 31 + gen)));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_EAB", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + ZeroPadCut(items, 2) + "0301",
                 p.st, p.so);
  // A whole problem: text in both parts, every key found, every placeholder filled, every number finite.
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with("&LF") && p.so.size() > 3) << p.st;
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|ATEM__|<ERROR|nan|inf"))) << p.st << p.so;
  return p;
}

Textos Lineas(const std::string& t) {
  Textos v;
  for (std::size_t a = 0, b; (b = t.find("&LF", a)) != std::string::npos; a = b + 3) v.push_back(t.substr(a, b - a));
  return v;
}
// "&SP=5:&+Ba)&-B HF&SP=29:&+Bb)&-B ..." as its items, in order.
Textos Items(const std::string& t) {
  static const std::regex item(R"(&\+B[a-z]\)&-B (.*?)(?=&SP=|&LF|$))");
  Textos v;
  for (std::sregex_iterator it(t.begin(), t.end(), item), end; it != end; ++it) v.push_back((*it)[1]);
  return v;
}
// A solution line "&SP=10:&+Ba)&-B x&SP=30:y&SP=48:z" as {x, y, z}.
Textos Columnas(const std::string& l) {
  static const std::regex etiqueta(R"(^&SP=\d+:&\+B[a-z]\)&-B )"), tope(R"(&SP=\d+:)");
  const std::string t = std::regex_replace(l, etiqueta, "");
  return Textos(std::sregex_token_iterator(t.begin(), t.end(), tope, -1), {});
}
std::string SinGuion(const std::string& t) { return std::regex_replace(t, std::regex("-(?=[A-Z])"), ""); }
// An equation of the page with the equilibrium arrow as the atom counter reads it.
std::string Ecuacion(std::string e) {
  ReplaceAll(e, "&Q", "&ars");
  return SinGuion(e);
}

// b is a with one proton more.
bool UnProtonMas(const std::string& a, const std::string& b) {
  test::Carga x = test::Especie(SinGuion(a));
  ++x.atomos["H"], ++x.carga;
  return x == test::Especie(SinGuion(b));
}
// The protons a species can give: that of a carboxyl group, else the
// hydrogens written first (HCN, H_2PO_4^-); a carboxylate gives none.
int ProtonesAcidos(const std::string& f) {
  if (f.find("COO") != std::string::npos) return f.find("COOH") != std::string::npos;
  if (f.empty() || f[0] != 'H' || (f.size() > 1 && std::islower(static_cast<unsigned char>(f[1])))) return 0;
  return f.size() > 2 && f[1] == '_' ? f[2] - '0' : 1;
}
bool Hidroxido(const std::string& f) { return std::regex_match(f, std::regex("(Li|Na|K|Rb|Cs)OH")); }
// It takes a proton: an anion, an amine or ammonia (a lone pair on N), a hydroxide.
bool TomaProton(const std::string& f) {
  const int q = test::Especie(SinGuion(f)).carga;
  return q < 0 || (q == 0 && f.find("NH_") != std::string::npos) || Hidroxido(f);
}

// ---- The three lists -----------------------------------------------------------
// Each checker takes an item of the statement and the columns of its solution
// line, and gives what must not come twice in one list.

std::string Especie5(const std::string& item, const Textos& c) {
  const std::string cAcido = Texto("Conj_acido") + ": ", cBase = Texto("Conj_base") + ": ";
  EXPECT_EQ(c.at(0), item);
  const bool da = ProtonesAcidos(item) > 0, toma = TomaProton(item);
  EXPECT_TRUE(da || toma) << item;
  EXPECT_EQ(c.at(1), Texto(da && toma ? "Esp_Anfot" : da ? "Esp_Acido" : "Esp_Base")) << item;
  if (Hidroxido(item)) {
    EXPECT_EQ(c.at(2), Texto("Esp_Hidroxido"));
    return item;
  }
  // The conjugates named differ from the species by one proton.
  const std::size_t a = c.at(2).find(cAcido), b = c[2].find(cBase);
  EXPECT_EQ(a != std::string::npos, toma) << c[2];
  EXPECT_EQ(b != std::string::npos, da) << c[2];
  if (a != std::string::npos) {
    EXPECT_TRUE(UnProtonMas(item, c[2].substr(a + cAcido.size(), c[2].find(';', a) - a - cAcido.size()))) << c[2];
  }
  if (b != std::string::npos) {
    EXPECT_TRUE(UnProtonMas(c[2].substr(b + cBase.size()), item)) << c[2];
  }
  return item;
}

std::string Sal6(const std::string& item, const Textos& c) {
  // The ions and their charges; the conjugates of weak acids and bases react with water.
  static const std::map<std::string, int> cationes = {{"K", 1}, {"Na", 1}, {"Ca", 2}, {"NH_4", 1}};
  static const std::map<std::string, int> aniones = {{"I", -1}, {"Br", -1}, {"Cl", -1}, {"NO_3", -1}, {"Se", -2},
                                                     {"NO_2", -1}, {"S", -2}, {"CO_3", -2}, {"PO_4", -3}};
  static const std::set<std::string> debiles = {"NH_4", "Se", "NO_2", "S", "CO_3", "PO_4"};
  EXPECT_EQ(c.at(0), item);
  // The salt is the neutral whole of one cation and one anion, in the least numbers.
  std::string cat, an;
  for (const auto& [x, qx] : cationes)
    for (const auto& [y, qy] : aniones) {
      const int m = std::gcd(qx, -qy);
      std::map<std::string, int> atomos;
      for (const auto& [e, n] : test::Especie(x).atomos) atomos[e] += n * -qy / m;
      for (const auto& [e, n] : test::Especie(y).atomos) atomos[e] += n * qx / m;
      if (atomos == test::Especie(item).atomos) cat = x, an = y;
    }
  if (cat.empty()) {
    ADD_FAILURE() << "no salt of the ions: " << item;
    return item;
  }
  EXPECT_FALSE(cat == "Ca" && (an == "CO_3" || an == "PO_4")) << item << " does not dissolve";
  const bool acida = debiles.count(cat), basica = debiles.count(an);
  EXPECT_FALSE(acida && basica) << item;
  EXPECT_EQ(c.at(1), Texto(acida ? "Caracter_Acido" : basica ? "Caracter_Basico" : "Caracter_Neutro")) << item;
  if (!acida && !basica) {
    EXPECT_EQ(c.at(2), Texto("Sin_hidrolisis"));
    return item;
  }
  // The ion's reaction with water: balanced, from the ion, giving H3O+ or OH-.
  const std::string e = Ecuacion(c.at(2));
  test::EsperaAjustada(e);
  test::Carga ion = test::Especie(acida ? cat : an);
  ion.carga = acida ? cationes.at(cat) : aniones.at(an);
  EXPECT_EQ(test::Especie(test::Formulas(e.substr(0, e.find("&ars"))).at(0)), ion) << e;
  EXPECT_EQ(test::Formulas(e.substr(e.find("&ars") + 4)).at(1), acida ? "H_3O^+" : "OH#SPB(L-#T)( #SPB)") << e;
  return item;
}

std::string Reaccion7(const std::string& item, const Textos& c) {
  // The statement is the solution's reaction with the missing species blank.
  static const std::string hueco = "__________";
  std::string blanco = item;
  const std::size_t at = blanco.find(hueco);
  if (at == std::string::npos || blanco.find(hueco, at + 1) != std::string::npos) {
    ADD_FAILURE() << "one blank: " << item;
    return item;
  }
  EXPECT_EQ(blanco.replace(at, hueco.size(), c.at(0)), c.at(1));
  const std::string e = Ecuacion(c[1]);
  test::EsperaAjustada(e);
  const Textos r = test::Formulas(e.substr(0, e.find("&ars"))), q = test::Formulas(e.substr(e.find("&ars") + 4));
  if (r.size() != 2 || q.size() != 2) {
    ADD_FAILURE() << e;
    return item;
  }
  // One reactant gives a proton to the other.
  EXPECT_TRUE((UnProtonMas(q[0], r[0]) && UnProtonMas(r[1], q[1])) || (UnProtonMas(r[0], q[0]) && UnProtonMas(q[1], r[1]))) << e;
  Textos todas = {r[0], r[1], q[0], q[1]};
  std::sort(todas.begin(), todas.end());
  return todas[0] + todas[1] + todas[2] + todas[3];  // a reaction and its reverse are one
}

TEST(AcidBaseLists, EveryItemIsRightByTheTestsOwnChemistry) {
  struct Lista {
    int gen, tope;
    std::size_t columnas, distintas;  // in all, over the seeds: every row of a table comes up
    std::string (*comprueba)(const std::string&, const Textos&);
  };
  const Lista listas[] = {{5, 12, 3, 66, Especie5}, {6, 27, 3, 29, Sal6}, {7, 18, 2, 0, Reaccion7}};
  for (const Lista& l : listas) {
    std::set<std::string> todas;
    for (int semilla = 1; semilla <= 120; ++semilla) {
      SCOPED_TRACE(testing::Message() << "generator " << l.gen << ", seed " << semilla);
      const int items = semilla % 30;
      const test::Problema p = Genera(l.gen, semilla, items, semilla);
      const Textos so = Lineas(p.so), st = Items(p.st);
      // As many items as asked, within 2 and the generator's cap (and 26 letters).
      ASSERT_EQ(so.size(), static_cast<std::size_t>(std::min({std::max(items, 2), 26, l.tope}))) << p.so;
      ASSERT_EQ(st.size(), so.size()) << p.st;
      std::set<std::string> vistas;
      for (std::size_t i = 0; i < so.size(); ++i) {
        const Textos c = Columnas(so[i]);
        ASSERT_EQ(c.size(), l.columnas) << so[i];
        const std::string clave = l.comprueba(st[i], c);
        EXPECT_TRUE(vistas.insert(clave).second) << "twice: " << st[i];
        todas.insert(clave);
      }
      if (HasFailure()) return;
    }
    EXPECT_TRUE(l.distintas ? todas.size() == l.distintas : todas.size() > 300) << l.gen << ": " << todas.size();
  }
}

// ---- Titrations ----------------------------------------------------------------

// The values the placeholders of a language text took in a statement line.
std::map<std::string, std::string> Rellenos(const std::string& clave, const std::string& linea, const char* tras = "") {
  static const std::regex especial(R"([.^$|()\[\]{}*+?\\])"), marca("%[A-Z0-9]+%");
  const std::string plantilla = std::regex_replace(Texto(clave) + tras, especial, R"(\$&)");
  std::smatch m;
  std::map<std::string, std::string> r;
  if (!std::regex_match(linea, m, std::regex(std::regex_replace(plantilla, marca, "(.+?)")))) {
    ADD_FAILURE() << "the statement does not follow " << clave << ":\n" << linea;
    return r;
  }
  std::size_t k = 0;
  for (std::sregex_iterator it(plantilla.begin(), plantilla.end(), marca), end; it != end; ++it) r[it->str()] = m[++k];
  return r;
}
double Num(const std::map<std::string, std::string>& r, const std::string& p) {
  const std::vector<double> v = test::Numeros(r.count(p) ? r.at(p) : "");
  EXPECT_EQ(v.size(), 1u) << p;
  return v.empty() ? NAN : v[0];
}

// Protons an acid gives to a strong base, or a base takes from a strong acid,
// counted from its formula. Phosphorous acid gives two: its third hydrogen is
// bound to phosphorus.
int Equivalentes(const std::string& f) {
  std::smatch m;
  if (f == "H_3PO_3") return 2;
  if (std::regex_search(f, m, std::regex(R"(\(OH\)_(\d)$)"))) return std::stoi(m[1]);
  if (f.ends_with("OH") || f.ends_with("HCO_3")) return 1;
  if (f.ends_with("CO_3")) return 2;
  if (f.find('N') != std::string::npos && f.find('O') == std::string::npos && f[0] != 'H') return 1;  // amines
  return ProtonesAcidos(f);
}
// The strongest solution of each that exists (mol/L): weakly soluble or
// unstable ones; the others are all sold stronger than 0.8.
double Tope(const std::string& f) {
  static const std::map<std::string, double> t = {{"C_6H_5COOH", 0.028}, {"Ca(OH)_2", 0.023}, {"Sr(OH)_2", 0.15},
                                                  {"Ba(OH)_2", 0.23},    {"C_6H_5NH_2", 0.39}, {"HNO_2", 0.2},
                                                  {"HClO", 0.2},         {"H_2C_2O_4", 1.0}};
  return t.count(f) ? t.at(f) : 0.8;
}
double MasaMolar(const std::string& f) {
  static const std::map<std::string, double> A = {{"H", 1.008},  {"C", 12.011}, {"N", 14.007},  {"O", 15.999},
                                                  {"Na", 22.99}, {"P", 30.974}, {"S", 32.06},   {"Cl", 35.45},
                                                  {"K", 39.098}, {"Ca", 40.078}};
  double M = 0;
  for (const auto& [e, n] : test::Especie(f).atomos) M += n * A.at(e);
  return M;
}
// Ka or Kb of the weak species, mol/L.
const std::map<std::string, double> kK = {
    {"CH_3COOH", 1.8e-5}, {"HF", 7e-4},   {"HNO_2", 4.5e-4},            {"HCOOH", 1.8e-4},    {"C_6H_5COOH", 6.6e-5},
    {"HClO", 3e-8},       {"HCN", 4e-10}, {"CH_3(CH_2)_2COOH", 1.5e-5}, {"NH_3", 1.77e-5},    {"CH_3NH_2", 4.37e-4},
    {"C_6H_5NH_2", 3.8e-10}, {"C_2H_5NH_2", 6.41e-4}};
double Cuadratica(double K, double C) { return (-K + std::sqrt(K * K + 4 * K * C)) / 2; }

// The answers of a line, each to four significant figures (with every `cada`-th
// one an answer, the others data echoed).
void EsperaRespuestas(const std::string& linea, const std::vector<double>& esperadas, std::size_t cada = 1) {
  const std::vector<test::Mostrado> dadas = test::Respuestas(linea);
  ASSERT_EQ(dadas.size(), esperadas.size()) << linea;
  for (std::size_t k = 0; k < dadas.size(); ++k) {
    test::EsperaCerca(dadas[k], esperadas[k]);
    if ((k + 1) % cada == 0) EXPECT_LE(dadas[k].media, 5.01e-4 * std::fabs(dadas[k].valor)) << linea;
  }
}
// The reaction under an answer (after its tab): balanced, the titrant taking the species' equivalents.
void EsperaNeutralizacion(const std::string& linea, const std::string& f, const std::string& titulante) {
  const std::string e = linea.substr(linea.find(':') + 1);
  test::EsperaAjustada(e);
  EXPECT_NE(test::Coeficiente(e, f), 0) << e;
  EXPECT_EQ(test::Coeficiente(e, titulante), Equivalentes(f) * test::Coeficiente(e, f)) << e;
}
// Within a range, allowing for the four figures of a volume shown.
void EsperaEntre(double x, double a, double b) {
  EXPECT_TRUE(x >= a * (1 - 5e-4) - 1e-9 && x <= b * (1 + 5e-4) + 1e-9) << x << " not in " << a << "-" << b;
}
void EsperaBureta(double v, double desde = 8) { EsperaEntre(v, desde, 60); }
void EsperaTitulante(double c) { EsperaEntre(c, 0.03, 0.25); }

void CompruebaValoracion(int forma, const test::Problema& p) {
  const Textos st = Lineas(p.st), so = Lineas(p.so);
  ASSERT_TRUE(st.size() >= 1 && so.size() >= 1);
  for (const std::string f : {"Mg(OH)", "Zn(OH)", "Cd(OH)", "Fe(OH)", "Al(OH)", "H_2S_2O_7", "H_2S "})
    EXPECT_EQ(p.st.find(f), std::string::npos) << f << " makes no solution to titrate";
  switch (forma) {
    case 1:
    case 2: {
      const bool acidos = forma == 1;
      const double ct = Num(Rellenos(acidos ? "Hallar_V_NaoH_val_acidos" : "Hallar_V_HCl_val_bases", st[0], ":"), acidos ? "%CB%" : "%CA%");
      EsperaTitulante(ct);
      ASSERT_TRUE(st.size() == 4 && so.size() == 3);
      std::set<std::string> vistas;
      for (std::size_t i = 0; i < 3; ++i) {
        const auto m = Rellenos(acidos ? "Val_Acido_Item" : "Val_Base_Item", Items(st[i + 1]).at(0));
        const std::string f = m.at(acidos ? "%FA%" : "%FB%");
        const double v = Num(m, acidos ? "%VA%" : "%VB%"), c = Num(m, acidos ? "%CA%" : "%CB%");
        EXPECT_TRUE(vistas.insert(f).second) << f;
        EsperaEntre(v, 15, 50), EsperaEntre(c, 0.01, Tope(f));
        const double V = Equivalentes(f) * c * v / ct;
        EsperaBureta(V, 10);
        const Textos col = Columnas(so[i]);
        EsperaRespuestas(col.at(0), {V});
        EsperaNeutralizacion(":" + col.at(1), f, acidos ? "NaOH" : "HCl");
      }
      break;
    }
    case 3: {  // vinegar: 4-8 % acetic acid, with the density of such a solution at 20 °C
      const auto r = Rellenos("Valorac_Vinagre_V_DEN_Vb_Cb", st[0], (" " + Texto("Hallar_MolaridcAcetico_%masa")).c_str());
      const double va = Num(r, "%VA%"), d = Num(r, "%DEN%"), cb = Num(r, "%CB%"), vb = Num(r, "%VB%"), M = Num(r, "%MA%");
      EXPECT_NEAR(M, MasaMolar("CH_3COOH"), 0.05);
      EsperaEntre(va, 3, 15), EsperaTitulante(cb), EsperaBureta(vb);
      const double c = cb * vb / va, pct = c * M / (1000 * d) * 100;
      EsperaEntre(pct, 4, 8);
      EXPECT_NEAR(d, 0.9982 + 0.00145 * pct, 0.002) << pct;
      EsperaRespuestas(so[0], {c, pct});
      EsperaNeutralizacion(so.at(1), "CH_3COOH", "NaOH");
      break;
    }
    case 4:
    case 5: {  // a carbonate and HCl, or an acid and NaOH
      const bool co3 = forma == 4;
      const auto r = Rellenos(co3 ? "Hallar_MolaridHCl_Valorac_CO3" : "Hallar_MolaridNaOH_Valorac_acido", st[0]);
      const std::string f = r.at("%FOR1%");
      const double m = Num(r, "%MI%"), M = Num(r, co3 ? "%MB%" : "%MA%"), v = Num(r, co3 ? "%VA%" : "%VB%");
      EXPECT_NEAR(M, MasaMolar(f), 0.05) << f;
      EsperaEntre(m, co3 ? 0.5 : 0.05, 4), EsperaBureta(v);
      const double c = Equivalentes(f) * m / M / (v / 1000);
      EsperaTitulante(c);
      EsperaRespuestas(so[0], {c});
      EsperaNeutralizacion(so.at(1), f, co3 ? "HCl" : "NaOH");
      break;
    }
    case 6: {  // the molar mass of a monoprotic acid
      const auto r = Rellenos("Hallar_MM_acido_valoracNaOH", st[0]);
      const double m = Num(r, "%MI%"), cb = Num(r, "%CB%"), vb = Num(r, "%VB%"), n = cb * vb / 1000;
      EsperaEntre(m, 0.5, 4), EsperaTitulante(cb), EsperaBureta(vb), EsperaEntre(m / n, 40, 200);
      EsperaRespuestas(so[0], {m / n});
      const std::string e = so.at(1).substr(so[1].find(':') + 1);
      test::EsperaAjustada(e.substr(0, e.find(';')));
      EsperaRespuestas(e.substr(e.find(';')), {n});
      break;
    }
    case 7: {  // the purity of commercial NaOH
      const auto r = Rellenos("Hallar_%NaOH_valorac_Acido", st[0]);
      const std::string f = r.at("%FA%");
      const double m = Num(r, "%MI%"), M = Num(r, "%MB%"), ca = Num(r, "%CA%"), va = Num(r, "%VA%");
      EXPECT_NEAR(M, MasaMolar("NaOH"), 0.01);
      EsperaEntre(m, 0.5, 8), EsperaTitulante(ca), EsperaBureta(va);
      const double pureza = Equivalentes(f) * ca * va / 1000 * M / m * 100;
      EsperaEntre(pureza, 40, 90);
      EsperaRespuestas(so[0].substr(so[0].find(':') + 1), {pureza});
      const std::string e = so.at(1).substr(so[1].find(':') + 1);
      test::EsperaAjustada(e);
      EXPECT_EQ(test::Coeficiente(e, "NaOH"), Equivalentes(f) * test::Coeficiente(e, f)) << e;
      break;
    }
    case 8:
    case 9: {  // a weak base by HCl, a weak acid by NaOH: the conjugate alone at equivalence
      const bool base = forma == 8;
      const auto r = Rellenos(base ? "Hallar_pHequiv_Base_valorac_HCl" : "Hallar_pHequiv_Acido_valorac_NaOH", st[0]);
      const std::string f = r.at(base ? "%FB%" : "%FA%");
      const double v = Num(r, base ? "%VB%" : "%VA%"), c = Num(r, base ? "%CB%" : "%CA%"), ct = Num(r, base ? "%CA%" : "%CB%");
      ASSERT_TRUE(kK.count(f) && st.size() == 2 && so.size() == 3) << f << " " << p.so;
      EXPECT_TRUE(Equivalentes(f) == 1 && base == TomaProton(f)) << f;
      EXPECT_NE(st[1].find(Texto("Datos")), std::string::npos);
      const std::vector<double> k = test::Numeros(st[1]);  // K of the species, Kw
      ASSERT_EQ(k.size(), 2u) << st[1];
      EXPECT_NEAR(k[0], kK.at(f), 1e-6 * kK.at(f)) << f;
      EXPECT_NEAR(k[1], 1e-14, 1e-20);
      EsperaEntre(v, 15, 50), EsperaEntre(c, 0.01, Tope(f)), EsperaTitulante(ct);
      const double veq = c * v / ct, ceq = c * v / (v + veq), K = k[1] / k[0], x = Cuadratica(K, ceq);
      EsperaBureta(veq);
      EXPECT_GE(ceq, 0.01 - 1e-12);
      const double pH = base ? -std::log10(x) : 14 + std::log10(x);
      EXPECT_TRUE(base ? pH < 7 : pH > 7) << pH;
      EsperaRespuestas(so[0], {veq, pH});
      // The conjugate's reaction with water, its constant, and C and x.
      const std::size_t coma = so[1].find(",   ");
      const std::string e = Ecuacion(so[1].substr(so[1].find(':') + 1, coma - so[1].find(':') - 1));
      test::EsperaAjustada(e);
      const std::string conjugado = test::Formulas(e).at(0), producto = test::Formulas(e.substr(e.find("&ars") + 4)).at(0);
      EXPECT_TRUE(producto == f && (base ? UnProtonMas(f, conjugado) : UnProtonMas(conjugado, f))) << e;
      EsperaRespuestas(so[1].substr(coma), {K});
      EsperaRespuestas(so[2], {ceq, x});
      break;
    }
    default: {  // a strong acid by a strong base (10) and the reverse (11)
      const bool acido = forma == 10;
      const auto r = Rellenos(acido ? "Hallar_pHs_V_V_V_acido" : "Hallar_pHs_V_V_V_base", st[0]);
      EXPECT_TRUE((r.at("%FA%") == "HCl" || r.at("%FA%") == "HNO_3") && (r.at("%FB%") == "NaOH" || r.at("%FB%") == "KOH"));
      const double v = Num(r, acido ? "%VA%" : "%VB%"), c = Num(r, acido ? "%CA%" : "%CB%"), ct = Num(r, acido ? "%CB%" : "%CA%");
      const std::vector<double> vs = test::Numeros(r.at(acido ? "%VB%" : "%VA%"));
      ASSERT_EQ(vs.size(), 3u);
      EsperaEntre(v, 10, 40), EsperaEntre(c, 0.06, 0.8), EsperaTitulante(ct);
      // Before, at and after the equivalence point.
      const double veq = c * v / ct;
      EXPECT_TRUE(vs[0] < veq && std::fabs(vs[1] - veq) < 1e-9 && vs[2] > veq) << veq;
      EsperaEntre(veq, 10, 60);
      std::vector<double> esperadas;
      for (double vt : vs) {
        const double exceso = (c * v - ct * vt) / (v + vt);  // of the species titrated, mol/L
        const double pX = std::fabs(exceso) < 1e-12 ? 7 : exceso > 0 ? -std::log10(exceso) : 14 + std::log10(-exceso);
        esperadas.push_back(vt), esperadas.push_back(acido ? pX : 14 - pX);
      }
      EsperaRespuestas(so[0], esperadas, 2);
    }
  }
}

TEST(AcidBaseTitrations, WeakSpeciesAtEquivalenceAreSolvedWithoutApproximation) {
  // The anilinium ion is acid enough for the small-x shortcut, sqrt(Ka C),
  // to miss [H3O+] by more than half a unit of its fourth figure: the value
  // given must be the exact one, and the pH the one of that value.
  int vistas = 0;
  for (int semilla = 1; semilla <= 2000 && vistas < 5; ++semilla) {
    const test::Problema p = Genera(8, 7, 0, semilla);  // form 8
    if (p.st.find("C_6H_5NH_2") == std::string::npos) continue;
    ++vistas;
    const std::vector<test::Mostrado> cx = test::Respuestas(Lineas(p.so).at(2));
    const double Ka = 1e-14 / 3.8e-10, exacto = Cuadratica(Ka, cx.at(0).valor), aproximado = std::sqrt(Ka * cx[0].valor);
    EXPECT_LE(std::fabs(cx.at(1).valor - exacto), 1.01 * cx[1].media + 1e-4 * exacto) << p.so;
    EXPECT_GT(std::fabs(cx[1].valor - aproximado), 2 * cx[1].media) << p.so;
    test::EsperaCerca(test::Respuestas(Lineas(p.so)[0]).at(1), -std::log10(exacto));
  }
  EXPECT_EQ(vistas, 5);
}

// Every generator and every form of the titrations over 200 seeds: whole
// problems, no negative or outsized number, and every titration answer worked
// again from the statement.
TEST(AcidBaseTitrations, EveryGeneratorAndFormOver200Seeds) {
  for (int gen = 5; gen <= 8; ++gen)
    for (int forma = 1; forma <= (gen == 8 ? 11 : 1); ++forma)
      for (int semilla = 1; semilla <= 200; ++semilla) {
        // A titration's form is one more than the variant counter modulo 11.
        const int seqB = gen == 8 ? forma - 1 + 11 * (semilla % 40) : semilla;
        SCOPED_TRACE(testing::Message() << "generator " << gen << ", variant " << seqB << ", seed " << semilla);
        const test::Problema p = Genera(gen, seqB, semilla % 30, semilla + 1000);
        if (gen == 8) CompruebaValoracion(forma, p);
        for (double x : test::Numeros(p.st + p.so)) EXPECT_TRUE(std::isfinite(x) && x >= 0 && x < 1000) << x;
        if (HasFailure()) return;
      }
}

}  // namespace
}  // namespace ss
