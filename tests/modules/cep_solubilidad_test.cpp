// Solubility problems: every answer worked again from the numbers the statement shows, the ion ratio
// read off the salt's formula, every datum checked against handbook values.
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {

// Solubility products at 25 °C and atomic masses.
const std::map<std::string, double> kKs = {{"AgCl", 1.77e-10}, {"CaF_2", 3.45e-11}, {"BaSO_4", 1.08e-10},
    {"Ag_3PO_4", 8.89e-17}, {"Ba(IO_3)_2", 4.01e-9}, {"Ca_3(PO_4)_2", 2.07e-33}, {"Ag_2CrO_4", 1.12e-12},
    {"AgBr", 5.35e-13}, {"AgI", 8.52e-17}, {"Ni(OH)_2", 5.48e-16}, {"Mn(OH)_2", 2.06e-13}, {"Mg(OH)_2", 5.61e-12},
    {"Zn(OH)_2", 3e-17}, {"Ag_2S", 6.3e-50}, {"Cu_2S", 2.5e-48}, {"PbBr_2", 6.6e-6}, {"ZnS", 2.5e-22},
    {"BaCrO_4", 1.17e-10}, {"Cu(IO_3)_2", 6.94e-8}, {"PbCl_2", 1.7e-5}, {"BaF_2", 1.84e-7}};
const std::map<std::string, double> kAtomicas = {{"Ag", 107.87}, {"Cl", 35.45}, {"Ca", 40.08}, {"F", 19.00},
    {"Ba", 137.33}, {"S", 32.06}, {"O", 16.00}, {"P", 30.97}, {"I", 126.90}, {"Cr", 52.00}, {"Br", 79.90},
    {"Ni", 58.69}, {"Mn", 54.94}, {"Mg", 24.31}, {"Zn", 65.38}, {"Cu", 63.55}, {"Pb", 207.2}, {"H", 1.008}};

struct Leido {
  std::string sal, anadida;  // the salt and the salt added
  int a = 1, b = 1;          // cations and anions in the formula
  double Ks = NAN, pH = NAN;
  test::Datos d{""};
  std::map<std::string, test::Mostrado> r;  // answers by label: s, s_0, K_s, cat, ani, m, V, pH
};

// The ions from the formula: the metal's count and the anion's first element's count.
Leido Lee(int gen, int seqB, uint64_t k, test::Problema& p) {
  p = test::GeneraEn("ANEU_QUIM_CEP", gen, seqB, 0, k * 7919 + seqB * 31 + gen);
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|ATEM__|<E(RROR|rror)|nan|inf")));
  Leido l;
  const auto f = test::FormulasEntreParentesis(p.st);
  l.sal = f.empty() ? "" : f[0], l.anadida = f.size() > 1 ? f[1] : "";
  const test::Composicion c = test::Formula(l.sal);
  if (c.size() >= 2) l.a = c[0].second, l.b = c[1].second;
  std::smatch m;
  EXPECT_TRUE(kKs.count(l.sal)) << l.sal;
  const std::string st = std::regex_replace(p.st, std::regex(R"(#SPB\([^)]*\)\([^)]*\))"), "");
  if (std::regex_search(st, m, std::regex(R"(K_s&-I& =& ([^ ]+)\.&LF)"))) l.Ks = test::Numeros(m[1])[0];
  if (std::regex_search(st, m, std::regex(R"(pH is kept at ([^ ]+)\.&LF)"))) l.pH = test::Numeros(m[1])[0];
  l.d = test::Datos(st);
  if (l.d.Tiene("g/mol")) { EXPECT_NEAR(l.d.En("g/mol"), test::MasaMolar(test::Formula(l.sal), kAtomicas), 0.1); }
  std::string so = std::regex_replace(p.so, std::regex(R"(&SP=\d+:|&\+B[a-z]\)&-B |&\+I|&-I|\.&LF$)"), "");
  static const std::regex pieza(R"((?:^|;    |,  )([^=;,]+?) = ([^;,]+))");
  for (std::sregex_iterator it(so.begin(), so.end(), pieza), end; it != end; ++it) {
    const std::string n = (*it)[1];
    const std::string e = n[0] != '[' ? n : n.find("#SPB") != std::string::npos ? "ani" : "cat";
    const auto v = test::Respuestas((*it)[2]);
    const double x = (*it)[2].str().ends_with("mg") ? 1e-3 : 1;
    if (v.size() == 1) l.r[e] = {v[0].valor * x, v[0].media * x};
  }
  const std::regex letra("&\\+B[a-z]\\)");  // one answer a question, two when both ions are asked
  EXPECT_EQ(l.r.size(), std::distance(std::sregex_iterator(st.begin(), st.end(), letra), std::sregex_iterator()) +
                            (l.r.count("cat") && l.r.count("ani")));
  return l;
}

// s from (ca + a s)^a (cb + b s)^b = Ks, by bisection on log s.
double Resuelve(int a, int b, double Ks, double ca = 0, double cb = 0) {
  double lo = -80, hi = 2;
  for (int i = 0; i < 200; ++i) {
    const double x = (lo + hi) / 2, s = std::pow(10, x);
    (std::pow(ca + a * s, a) * std::pow(cb + b * s, b) > Ks ? hi : lo) = x;
  }
  return std::pow(10, lo);
}

void Compara(const Leido& l, const std::map<std::string, double>& esperado) {
  for (const auto& [e, m] : l.r) {
    EXPECT_TRUE(esperado.count(e)) << e;
    if (esperado.count(e)) test::EsperaCerca(m, esperado.at(e));
  }
}

TEST(CepSolubilidad, EveryAnswerFromTheStatement) {
  for (const auto& [gen, formas] : {std::pair{1, 7}, std::pair{2, 4}})
    for (int forma = 1; forma <= formas; ++forma)
      for (uint64_t k = 0; k < 200; ++k) {
        test::Problema p;
        const Leido l = Lee(gen, forma - 1 + formas * static_cast<int>(k % 40), k, p);
        SCOPED_TRACE(p.st + "\n" + p.so);
        const bool hidroxido = l.sal.find("(OH)") != std::string::npos;
        const double M = l.d.En("g/mol"), V = l.d.En("mL") / 1000, c0 = l.d.En("mol/L");
        const double masa = l.d.Tiene("mg") ? l.d.En("mg") / 1000 : l.d.En("g");
        double s = gen == 2   ? (forma == 2 ? c0 : forma == 3 ? c0 / l.a : Resuelve(l.a, l.b, l.Ks))
                   : forma == 4 ? masa / (M * V)
                   : forma == 5 ? c0 / l.b
                                : std::isnan(l.Ks) ? c0 : Resuelve(l.a, l.b, l.Ks);
        const double Ks = std::pow(l.a * s, l.a) * std::pow(l.b * s, l.b);
        EXPECT_NEAR(Ks / kKs.at(l.sal), 1, 0.115) << "Ks far from the handbook value";
        if (gen == 1) {
          Compara(l, {{"s", s}, {"K_s", Ks}, {"cat", l.a * s}, {"ani", l.b * s}, {"m", s * V * M},
                      {"V", masa / (s * M)}, {"pH", 14 + std::log10(l.b * s)}});
          EXPECT_TRUE(l.r.count("pH") == ((forma == 3 || forma == 7) && hidroxido) &&
                      !(hidroxido && (forma == 2 || forma == 5 || forma == 6)));
          EXPECT_TRUE((!l.r.count("V") || (l.r.at("V").valor > 0.2 && l.r.at("V").valor < 3.1)) &&
                      (!l.r.count("pH") || l.r.at("pH").valor > 8) && ((forma != 1 && forma != 4) || s >= 0.99e-4) &&
                      (std::isnan(masa) || masa >= 0.001)) << "real ranges: volume, pH, s, a mass a balance weighs";
          continue;
        }
        EXPECT_TRUE((forma != 4 || hidroxido) && l.anadida != "CuNO_3" && Ks <= 1e-8 &&
                    !(l.sal == "Zn(OH)_2" && (forma == 4 || l.anadida == "NaOH"))) << "no zincate, no CuNO3";
        const double c = forma == 4 ? std::pow(10, l.pH - 14) : l.d.En("mol/L", forma == 1 ? 0 : 1);
        const bool cation = l.anadida.substr(0, 2) == l.sal.substr(0, 2);
        EXPECT_TRUE(c >= 49 * s && (forma == 4 ? l.pH < 13.5 : c >= 0.99e-3 && c <= 1)) << c;
        // The salt's own share of the common ion is left out; the exact s agrees closely.
        const double s0 = s;
        s = cation ? std::pow(Ks / std::pow(c, l.a) / std::pow(l.b, l.b), 1.0 / l.b)
                   : std::pow(Ks / std::pow(c, l.b) / std::pow(l.a, l.a), 1.0 / l.a);
        EXPECT_TRUE(forma == 4 || std::fabs(Resuelve(l.a, l.b, Ks, cation ? c : 0, cation ? 0 : c) / s - 1) < 3e-3);
        Compara(l, {{"s_0", s0}, {"K_s", Ks}, {"s", s}});
      }
}

}  // namespace
}  // namespace ss
