// Acid-base lists and titrations read as a student reads them: items judged by the tests' own chemistry, reactions
// balanced, every titration answer worked again from the numbers the statement shows.
#include <gtest/gtest.h>

#include <numeric>
#include <set>

#include "tests/modules/atomos.h"
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {
using test::Texto;
using Textos = std::vector<std::string>;

// A whole problem: every placeholder filled, no negative or outsized number.
test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  const test::Problema p = test::GeneraEn("ANEU_QUIM_EAB", gen, seqB, items, semilla * 7907 + (seqB * 31 + gen));
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with("&LF") && !std::regex_search(p.st + p.so, std::regex("nan|inf")));
  for (double x : test::Numeros(p.st + p.so)) EXPECT_TRUE(x >= 0 && x < 1000) << x << "\n" << p.st << p.so;
  return p;
}
// The non-empty pieces of a text between marks: its lines, or its items ("&SP=10:&+Ba)&-B x&SP=30:y" as {x, y}).
Textos Partes(const std::string& t, const std::string& corte = "&LF") {
  Textos v;
  const std::regex r(corte);
  for (std::sregex_token_iterator it(t.begin(), t.end(), r, -1), end; it != end; ++it) if (it->length()) v.push_back(*it);
  return v;
}
const std::string kItem = R"(&SP=\d+:(&\+B[a-z]\)&-B )?|&LF)";
std::string Tras(const std::string& l) { return l.substr(l.find(':') + 1); }
// An equation as the atom counter reads it: "&Q" as the arrow, "CH_3-NH_2" without its dash.
std::string Ecuacion(std::string e) {
  ReplaceAll(e, "&Q", "&ars");
  return std::regex_replace(e, std::regex("-(?=[A-Z])"), "");
}
Textos Lado(const std::string& e, bool derecho) {
  return test::Formulas(derecho ? e.substr(e.find("&ars") + 4) : e.substr(0, e.find("&ars")));
}
bool UnProtonMas(const std::string& a, const std::string& b) {  // b is a with one proton more
  test::Carga x = test::Especie(Ecuacion(a));
  return ++x.atomos["H"], ++x.carga, x == test::Especie(Ecuacion(b));
}
// The protons a species gives: that of a carboxyl group, else the hydrogens written first.
int ProtonesAcidos(const std::string& f) {
  if (f.find("COO") != std::string::npos) return f.find("COOH") != std::string::npos;
  if (f[0] != 'H' || (f.size() > 1 && std::islower(static_cast<unsigned char>(f[1])))) return 0;
  return f.size() > 2 && f[1] == '_' ? f[2] - '0' : 1;
}
bool Hidroxido(const std::string& f) { return std::regex_match(f, std::regex("(Li|Na|K|Rb|Cs)OH")); }
bool TomaProton(const std::string& f) {  // an anion, a lone pair on N, a hydroxide
  const int q = test::Especie(Ecuacion(f)).carga;
  return q < 0 || (q == 0 && f.find("NH_") != std::string::npos) || Hidroxido(f);
}

// ---- The lists: each checker takes an item and its solution's columns, and gives what must not come twice.
std::string Especie5(const std::string& item, const Textos& c) {
  const bool da = ProtonesAcidos(item) > 0, toma = TomaProton(item);
  EXPECT_TRUE(da || toma) << item;
  EXPECT_EQ(c.at(1), Texto(da && toma ? "Esp_Anfot" : da ? "Esp_Acido" : "Esp_Base")) << item;
  EXPECT_TRUE(!Hidroxido(item) || c.at(2) == Texto("Esp_Hidroxido")) << c[2];
  for (const auto& [clave, acido] : {std::pair{"Conj_acido", true}, {"Conj_base", false}}) {
    const std::string marca = Texto(clave) + ": ";
    const std::size_t a = c.at(2).find(marca), b = a + marca.size();
    EXPECT_EQ(a != std::string::npos, !Hidroxido(item) && (acido ? toma : da)) << c[2];
    if (a == std::string::npos) continue;
    const std::string conj = c[2].substr(b, c[2].find(';', b) - b);  // one proton more or less
    EXPECT_TRUE(acido ? UnProtonMas(item, conj) : UnProtonMas(conj, item)) << c[2];
  }
  return item;
}
std::string Sal6(const std::string& item, const Textos& c) {
  static const std::map<std::string, int> iones = {{"K", 1}, {"Na", 1}, {"Ca", 2}, {"NH_4", 1}, {"I", -1}, {"Br", -1},
      {"Cl", -1}, {"NO_3", -1}, {"Se", -2}, {"NO_2", -1}, {"S", -2}, {"CO_3", -2}, {"PO_4", -3}};
  static const std::set<std::string> debiles = {"NH_4", "Se", "NO_2", "S", "CO_3", "PO_4"};
  std::string cat, an;  // the salt is the neutral whole of one cation and one anion, in the least numbers
  for (const auto& [x, qx] : iones)
    for (const auto& [y, qy] : iones) {
      std::map<std::string, int> atomos;
      for (const auto& [e, n] : test::Especie(x).atomos) atomos[e] += n * -qy / std::gcd(qx, qy);
      for (const auto& [e, n] : test::Especie(y).atomos) atomos[e] += n * qx / std::gcd(qx, qy);
      if (qx > 0 && qy < 0 && atomos == test::Especie(item).atomos) cat = x, an = y;
    }
  if (cat.empty()) return ADD_FAILURE() << "no salt of the ions: " << item, item;
  EXPECT_FALSE(cat == "Ca" && (an == "CO_3" || an == "PO_4")) << item << " does not dissolve";
  const bool acida = debiles.count(cat), basica = debiles.count(an);
  EXPECT_EQ(c.at(1), Texto(acida ? "Caracter_Acido" : basica ? "Caracter_Basico" : "Caracter_Neutro")) << item;
  EXPECT_EQ(c.at(2) == Texto("Sin_hidrolisis"), !acida && !basica) << c[2];
  if (!acida && !basica) return item;
  // The weak ion's reaction with water: balanced, from the ion, giving H3O+ or OH-.
  const std::string e = Ecuacion(c[2]), w = acida ? cat : an;
  test::EsperaAjustada(e);
  EXPECT_EQ(test::Especie(Lado(e, false).at(0)), (test::Carga{test::Especie(w).atomos, iones.at(w)})) << e;
  EXPECT_EQ(Lado(e, true).at(1), acida ? "H_3O^+" : "OH#SPB(L-#T)( #SPB)") << e;
  return item;
}
// The statement is the solution's reaction with one species blank; one reactant gives a proton to the other.
std::string Reaccion7(const std::string& item, const Textos& c) {
  const std::size_t at = item.find("__________");
  if (at == std::string::npos) return ADD_FAILURE() << "no blank: " << item, item;
  EXPECT_EQ(std::string(item).replace(at, 10, c.at(0)), c.at(1));
  const std::string e = Ecuacion(c[1]);
  test::EsperaAjustada(e);
  Textos r = Lado(e, false), q = Lado(e, true);
  if (r.size() != 2 || q.size() != 2) return ADD_FAILURE() << e, item;
  EXPECT_TRUE((UnProtonMas(q[0], r[0]) && UnProtonMas(r[1], q[1])) || (UnProtonMas(r[0], q[0]) && UnProtonMas(q[1], r[1])))
      << e;
  r.insert(r.end(), q.begin(), q.end());
  std::sort(r.begin(), r.end());
  return r[0] + r[1] + r[2] + r[3];  // a reaction and its reverse are one
}
TEST(AcidBaseLists, EveryItemIsRightByTheTestsOwnChemistry) {
  struct Lista { int gen, tope; std::size_t columnas, distintas; std::string (*comprueba)(const std::string&, const Textos&); };
  for (const Lista& l : {Lista{5, 12, 3, 66, Especie5}, {6, 27, 3, 29, Sal6}, {7, 18, 2, 0, Reaccion7}}) {
    std::set<std::string> todas;  // over all seeds every row of a table comes up
    for (int semilla = 1; semilla <= 120; ++semilla) {
      SCOPED_TRACE(testing::Message() << "generator " << l.gen << ", seed " << semilla);
      const int items = semilla % 30;
      const test::Problema p = Genera(l.gen, semilla, items, semilla);
      Textos so = Partes(p.so), st = Partes(p.st, kItem);
      st.erase(st.begin());  // the heading; as many items as asked, within 2 and the cap (and 26 letters)
      ASSERT_TRUE(so.size() == static_cast<std::size_t>(std::min({std::max(items, 2), 26, l.tope})) && st.size() == so.size())
          << p.st << p.so;
      std::set<std::string> vistas;
      for (std::size_t i = 0; i < so.size(); ++i) {
        const Textos c = Partes(so[i], kItem);
        ASSERT_EQ(c.size(), l.columnas) << so[i];
        EXPECT_TRUE(l.gen == 7 || c[0] == st[i]) << so[i];
        const std::string clave = l.comprueba(st[i], c);
        EXPECT_TRUE(vistas.insert(clave).second) << "twice: " << st[i];
        todas.insert(clave);
      }
      if (HasFailure()) return;
    }
    EXPECT_TRUE(l.distintas ? todas.size() == l.distintas : todas.size() > 300) << l.gen << ": " << todas.size();
  }
}

// ---- Titrations: the protons an acid gives to a strong base, or a base takes from a strong acid, from its formula;
// phosphorous acid's third hydrogen is bound to phosphorus.
int Equivalentes(const std::string& f) {
  std::smatch m;
  if (std::regex_search(f, m, std::regex(R"(\(OH\)_(\d)$)"))) return std::stoi(m[1]);
  if (f.ends_with("OH") || f.ends_with("HCO_3") || (f.find("NH") != std::string::npos && f.find('O') == std::string::npos)) return 1;
  return f.ends_with("CO_3") || f == "H_3PO_3" ? 2 : ProtonesAcidos(f);
}
double Tope(const std::string& f) {  // the strongest solution of each that exists (mol/L)
  static const std::map<std::string, double> t = {{"C_6H_5COOH", 0.028}, {"Ca(OH)_2", 0.023}, {"Sr(OH)_2", 0.15},
      {"Ba(OH)_2", 0.23}, {"C_6H_5NH_2", 0.39}, {"HNO_2", 0.2}, {"HClO", 0.2}, {"H_2C_2O_4", 1.0}};
  return t.count(f) ? t.at(f) : 0.8;
}
const std::map<std::string, double> kMasas = {{"H", 1.008}, {"C", 12.011}, {"N", 14.007}, {"O", 15.999},
    {"Na", 22.99}, {"P", 30.974}, {"S", 32.06}, {"Cl", 35.45}, {"K", 39.098}, {"Ca", 40.078}};
const std::map<std::string, double> kK = {{"CH_3COOH", 1.8e-5}, {"HF", 7e-4}, {"HNO_2", 4.5e-4}, {"HCOOH", 1.8e-4},
    {"C_6H_5COOH", 6.6e-5}, {"HClO", 3e-8}, {"HCN", 4e-10}, {"CH_3(CH_2)_2COOH", 1.5e-5}, {"NH_3", 1.77e-5},
    {"CH_3NH_2", 4.37e-4}, {"C_6H_5NH_2", 3.8e-10}, {"C_2H_5NH_2", 6.41e-4}};  // Ka or Kb
// The answers of a line (every `cada`-th one an answer to four figures, the others data echoed).
void EsperaRespuestas(const std::string& linea, const std::vector<double>& esperadas, std::size_t cada = 1) {
  const std::vector<test::Mostrado> dadas = test::Respuestas(linea);
  ASSERT_EQ(dadas.size(), esperadas.size()) << linea;
  for (std::size_t k = 0; k < dadas.size(); ++k) {
    test::EsperaCerca(dadas[k], esperadas[k]);
    EXPECT_TRUE((k + 1) % cada || dadas[k].media <= 5.01e-4 * std::fabs(dadas[k].valor)) << linea;
  }
}
void EsperaNeutralizacion(const std::string& e, const std::string& f, const std::string& titulante) {
  test::EsperaAjustada(e);
  EXPECT_TRUE(test::Coeficiente(e, f) && test::Coeficiente(e, titulante) == Equivalentes(f) * test::Coeficiente(e, f)) << e;
}
void EsperaEntre(double x, double a, double b) {  // allowing for the four figures of a volume shown
  EXPECT_TRUE(x >= a * (1 - 5e-4) && x <= b * (1 + 5e-4)) << x << " not in " << a << "-" << b;
}
// A burette reads 8-60 mL, a titrant is 0.03-0.25 M.
void CompruebaValoracion(int forma, const test::Problema& p) {
  const Textos st = Partes(p.st), so = Partes(p.so);
  ASSERT_TRUE(!st.empty() && so.size() >= (forma >= 10 ? 1u : 2u)) << p.so;
  const test::Datos d(st[0]);
  if (forma <= 2) {  // three acids by NaOH (1), three bases by HCl (2)
    const double ct = d.En("mol/L");
    ASSERT_TRUE(st.size() == 4 && so.size() == 3);
    std::set<std::string> vistas;
    for (std::size_t i = 0; i < 3; ++i) {
      const std::string item = Partes(st[i + 1], kItem).at(0), f = item.substr(item.rfind(' ') + 1);
      const test::Datos di(item);
      const double v = di.En("mL"), c = di.En("mol/L"), V = Equivalentes(f) * c * v / ct;
      EXPECT_TRUE(vistas.insert(f).second) << f;
      EsperaEntre(v, 15, 50), EsperaEntre(c, 0.01, Tope(f)), EsperaEntre(V, 10, 60), EsperaEntre(ct, 0.03, 0.25);
      const Textos col = Partes(so[i], kItem);
      EsperaRespuestas(col.at(0), {V}), EsperaNeutralizacion(col.at(1), f, forma == 1 ? "NaOH" : "HCl");
    }
  } else if (forma <= 7) {  // vinegar (3), a weighed carbonate by HCl (4) or acid by NaOH (5), an unknown
                            // monoprotic acid HA (6), commercial NaOH by an acid (7)
    const std::string titulante = forma == 4 ? "HCl" : "NaOH", e = Tras(so[1]).substr(0, Tras(so[1]).find(';'));
    const std::string f = Lado(e, false).at(Lado(e, false).at(0) == titulante);
    const double m = d.En("g"), M = d.En("g/mol"), v = d.En("mL", forma == 3), c = d.En("mol/L"), q = Equivalentes(f);
    const double x = forma == 3 ? c * v / d.En("mL") : forma == 6 ? m / (c * v / 1000)
                   : forma == 7 ? q * c * v / 1000 * M / m * 100 : q * m / M / (v / 1000);
    EXPECT_TRUE(forma == 6 || (st[0].find(f) != std::string::npos &&
                               std::fabs(M - test::MasaMolar(test::Formula(forma == 7 ? "NaOH" : f), kMasas)) < 0.05))
        << f << " " << M;
    EsperaEntre(v, 8, 60), EsperaEntre(forma == 4 || forma == 5 ? x : c, 0.03, 0.25);
    const double den = d.En("g/mL"), pct = x * M / (10 * den);  // the vinegar's acetic acid, 4-8 %
    if (forma == 3) EsperaEntre(pct, 4, 8), EsperaEntre(den, 0.998 + 0.00145 * pct, 1.002 + 0.00145 * pct);
    if (forma == 6) EsperaEntre(x, 40, 200), EsperaRespuestas(Tras(so[1]).substr(e.size()), {c * v / 1000});
    if (forma == 7) EsperaEntre(x, 40, 90);  // a purity
    EsperaRespuestas(so[0], forma == 3 ? std::vector<double>{x, pct} : std::vector<double>{x});
    EsperaNeutralizacion(e, f, titulante);
  } else if (forma <= 9) {  // a weak base by HCl (8), a weak acid by NaOH (9): the conjugate alone at equivalence
    const bool base = forma == 8;
    const std::size_t coma = so[1].find(",   ");
    const std::string e = Ecuacion(Tras(so[1].substr(0, coma))), f = Lado(e, true).at(0), conj = Lado(e, false).at(0);
    const std::vector<double> k = test::Numeros(st.back());  // K of the species, Kw
    ASSERT_TRUE(kK.count(f) && st.size() == 2 && so.size() == 3 && k.size() == 2) << p.st << p.so;
    EXPECT_TRUE(st[0].find(" " + f + " ") != std::string::npos && test::Cerca(k[0], kK.at(f), 1e-6) &&
                test::Cerca(k[1], 1e-14, 1e-6)) << p.st;
    const double v = d.En("mL"), c = d.En("mol/L"), ct = d.En("mol/L", 1), veq = c * v / ct, ceq = c * v / (v + veq);
    const double K = k[1] / k[0], x = (std::sqrt(K * K + 4 * K * ceq) - K) / 2, pH = base ? -std::log10(x) : 14 + std::log10(x);
    EsperaEntre(v, 15, 50), EsperaEntre(c, 0.01, Tope(f)), EsperaEntre(ct, 0.03, 0.25), EsperaEntre(veq, 8, 60);
    EsperaRespuestas(so[0], {veq, pH});
    // The conjugate's reaction with water, its constant, and C and x (exact: the quadratic, not sqrt(K C)).
    test::EsperaAjustada(e);
    EXPECT_TRUE(base ? UnProtonMas(f, conj) : UnProtonMas(conj, f)) << e;
    EsperaRespuestas(so[1].substr(coma), {K}), EsperaRespuestas(so[2], {ceq, x});
  } else {  // a strong acid by a strong base (10) and the reverse (11), before, at and after equivalence
    const double v = d.En("mL"), c = d.En("mol/L"), ct = d.En("mol/L", 1), veq = c * v / ct;
    const double vs[3] = {d.En("mL", 1), d.En("mL", 2), d.En("mL", 3)};
    EsperaEntre(v, 10, 40), EsperaEntre(c, 0.06, 0.8), EsperaEntre(ct, 0.03, 0.25), EsperaEntre(veq, 10, 60);
    EXPECT_TRUE(vs[0] < veq && std::fabs(vs[1] - veq) < 1e-9 && vs[2] > veq) << veq;
    std::vector<double> esperadas;
    for (double vt : vs) {
      const double exceso = (c * v - ct * vt) / (v + vt);  // of the species titrated, mol/L
      const double pX = std::fabs(exceso) < 1e-12 ? 7 : exceso > 0 ? -std::log10(exceso) : 14 + std::log10(-exceso);
      esperadas.push_back(vt), esperadas.push_back(forma == 10 ? pX : 14 - pX);
    }
    EsperaRespuestas(so[0], esperadas, 2);
  }
}
TEST(AcidBaseTitrations, EveryFormOver200SeedsFollowsFromTheStatement) {
  for (int forma = 1; forma <= 11; ++forma)  // the form is one more than the variant modulo 11
    for (int semilla = 1; semilla <= 200; ++semilla) {
      SCOPED_TRACE(testing::Message() << "form " << forma << ", seed " << semilla);
      CompruebaValoracion(forma, Genera(8, forma - 1 + 11 * (semilla % 40), semilla % 30, semilla + 1000));
      if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace ss
