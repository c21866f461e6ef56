// Kinetics: every answer worked again from the rate law, the table of initial rates or the Arrhenius data the
// statement shows; the units of k by the overall order, the orders by the variant, the data within real ranges.
#include <array>
#include <numeric>

#include "tests/modules/dis_comun.h"

namespace ss::mod::cep {
namespace {

const std::string P = "\xB7", kVel = "mol/(L" + P + "s";  // Datos drops the closing bracket
const std::string kUnidad[5] = {"mol/(L" + P + "s)", "s^-^1", "mol^-^1" + P + "L" + P + "s^-^1",
                                "mol^-^2" + P + "L^2" + P + "s^-^1", "mol^-^3" + P + "L^3" + P + "s^-^1"};
constexpr int kOrden[5][2] = {{2, 2}, {2, 1}, {1, 1}, {1, 0}, {1, 2}};
const std::string kNum = R"((\d[\d&.E-]*))";

test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  GenContext g(&test::Textos(), Aleatorio(semilla * 7919 + seqB));
  test::Problema p;
  GeneraProblema(g, "ANEU_QUIM_CEP", ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + "000301", p.st, p.so);
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|ATEM__|<ERROR"))) << p.st << p.so;
  return p;
}
double Num(const std::string& t) { return test::Numeros(t).at(0); }

// "v = k·[A]^m·[B]^n": k and the orders; the orders must be those of the variant.
double Ley(const std::string& t, int seqB) {
  std::smatch m;
  EXPECT_TRUE(std::regex_search(t, m, std::regex("=& " + kNum + "((?:\xB7\\[[AB]\\](?:\\^\\d)?)*)"))) << t;
  const std::string f = m[2];
  auto orden = [&](const std::string& e) {
    const auto at = f.find("[" + e + "]");
    return at == f.npos ? 0 : at + 4 < f.size() && f[at + 3] == '^' ? f[at + 4] - '0' : 1;
  };
  EXPECT_EQ(orden("A"), kOrden[seqB % 5][0]) << t;
  EXPECT_EQ(orden("B"), kOrden[seqB % 5][1]) << t;
  return Num(m[1]);
}

// The answers of a rate-law problem: orders, overall order, [law,] k with units, rate at the concentrations given.
void Ordenes(const test::Problema& p, int seqB, double k, double rate) {
  const int a = kOrden[seqB % 5][0], b = kOrden[seqB % 5][1];
  const test::Datos d(p.st);
  const double A = d.En("mol/L", 0), B = d.En("mol/L", 1);
  EXPECT_TRUE(A >= 0.02 && A <= 0.9 && B >= 0.02 && B <= 0.9 && k >= 1.5e-3 && k <= 90) << A << " " << B << " " << k;
  EXPECT_NE(p.so.find(" " + kUnidad[a + b] + ";"), std::string::npos) << p.so;
  std::vector<double> esperadas{double(a), double(b), double(a + b), k, k * std::pow(A, a) * std::pow(B, b)};
  if (rate > 0) esperadas.insert(esperadas.begin() + 3, k);
  const auto dadas = test::Respuestas(p.so);
  ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
  for (std::size_t i = 0; i < dadas.size(); ++i) test::EsperaCerca(dadas[i], esperadas[i], (rate > 0 ? 1.1e-3 : 6e-4) * esperadas[i]);  // k read off 4-figure rates
}

TEST(CepKinetics, RateLawGivenAndRatesOfTheSpecies) {
  for (int seqB = 0; seqB < 15; ++seqB)
    for (uint64_t s = 1; s <= 200; ++s) {
      const test::Problema p = Genera(3, seqB, s);
      SCOPED_TRACE(p.st + "\n" + p.so);
      if (seqB % 3 == 0) {
        Ordenes(p, seqB, Ley(p.st, seqB), 0);
      } else {
        std::smatch m;
        ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"((\d?)A  \+  (\d?)B  &ars  (\d?)C  \+  (\d?)D\.)")));
        int c[4], mcd = 0;
        std::string v = "= ";
        for (int i = 0; i < 4; ++i) {
          c[i] = m[i + 1].length() ? std::stoi(m[i + 1]) : 1;
          mcd = std::gcd(mcd, c[i]);
          v += std::string(i < 2 ? "- " : "") + (c[i] > 1 ? "#COC(1#N)(" + std::to_string(c[i]) + "#COC)" + P : "") +
               "#COC(&+Id&-I[" + char('A' + i) + "]#N)(&+Idt&-I#COC)" + (i < 3 ? " = " : "&LF");
        }
        EXPECT_TRUE(mcd == 1 && c[0] != c[1] && c[2] != c[3] && *std::max_element(c, c + 4) <= 6);
        EXPECT_NE(p.so.find(v), std::string::npos) << v;
        if (seqB % 3 == 1) continue;
        const double dado = test::Datos(p.st).En(kVel);
        const bool deA = p.st.find("A is being consumed") != std::string::npos;
        EXPECT_TRUE(dado >= 0.01 && dado <= 1.4);
        const auto r = test::Respuestas(p.so.substr(p.so.find("&LF")));
        ASSERT_EQ(r.size(), 2u);
        for (int i = 0; i < 2; ++i) test::EsperaCerca(r[i], deA ? dado * c[i + 2] / c[0] : dado * c[i] / c[3]);
      }
      if (HasFailure()) return;
    }
}

TEST(CepKinetics, RateLawFromInitialRates) {
  for (int seqB = 0; seqB < 5; ++seqB)
    for (uint64_t s = 1; s <= 200; ++s) {
      const test::Problema p = Genera(4, seqB, s);
      SCOPED_TRACE(p.st + "\n" + p.so);
      std::vector<std::array<double, 3>> e;  // [A], [B], rate of each experiment
      const std::regex fila("&SP=5:\\d&SP=25:" + kNum + "&SP=45:" + kNum + "&SP=65:" + kNum + "&LF");
      for (std::sregex_iterator it(p.st.begin(), p.st.end(), fila), end; it != end; ++it)
        e.push_back({Num((*it)[1]), Num((*it)[2]), Num((*it)[3])});
      ASSERT_EQ(e.size(), 3u);
      // The orders solve ln(r_i/r_1) = a ln(A_i/A_1) + b ln(B_i/B_1) for experiments 2 and 3.
      auto l = [&](int i, int j) { return std::log(e[i][j] / e[0][j]); };
      const double det = l(1, 0) * l(2, 1) - l(1, 1) * l(2, 0);
      const double a = (l(1, 2) * l(2, 1) - l(1, 1) * l(2, 2)) / det, b = (l(1, 0) * l(2, 2) - l(1, 2) * l(2, 0)) / det;
      EXPECT_TRUE(std::fabs(a - kOrden[seqB][0]) < 0.15 && std::fabs(b - kOrden[seqB][1]) < 0.15) << a << " " << b;
      for (int i = 1; i < 3; ++i)  // one concentration scaled by 3.5-5 (either way), the other as it was
        for (int j = 0; j < 2; ++j) {
          const double f = std::exp(std::fabs(l(i, j)));
          EXPECT_TRUE((f >= 3.3 && f <= 5.3) != (f <= 1.045)) << f;
        }
      const double k = e[0][2] / std::pow(e[0][0], kOrden[seqB][0]) / std::pow(e[0][1], kOrden[seqB][1]);
      EXPECT_NEAR(Ley(p.so, seqB), k, 1e-3 * k);
      Ordenes(p, seqB, k, 1);
      if (HasFailure()) return;
    }
}

TEST(CepKinetics, ArrheniusFromTheDataShown) {
  for (int forma = 0; forma < 3; ++forma)
    for (uint64_t s = 1; s <= 200; ++s) {
      const test::Problema p = Genera(5, forma, s);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const test::Datos d(p.st);
      const double R = d.En("J/(mol" + P + "K"), T1 = d.En("\xB0" "C", 0) + 273.15, T2 = d.En("\xB0" "C", 1) + 273.15;
      const double T3 = d.En("\xB0" "C", 2) + 273.15, Ea0 = d.En("kJ/mol") * 1000;
      EXPECT_TRUE(T1 >= 288.15 && T1 <= 363.15 && T2 - T1 >= 15 && T2 - T1 <= 40) << T1 << " " << T2;
      EXPECT_TRUE(forma == 1 || (T3 - T2 >= 15 && T3 - T2 <= 40)) << T3;
      std::vector<double> k;
      std::string u;
      for (const auto& [x, w] : d.Todos())
        if (std::find(kUnidad + 1, kUnidad + 5, w) != kUnidad + 5 || w == "mol" + P + "L^-^1" + P + "s^-^1")
          k.push_back(x), u = w;
      EXPECT_TRUE(forma == 2 || p.so.find(" " + u + ";") != std::string::npos || p.so.find(" " + u + "&LF") != std::string::npos);
      for (double x : k) EXPECT_TRUE(x >= 1e-8 && x <= 1e4) << x;
      const double inv = 1 / T1 - 1 / T2;
      std::vector<double> esperadas;
      if (forma == 0) {
        ASSERT_EQ(k.size(), 2u);
        const double Ea = R * std::log(k[1] / k[0]) / inv, A = k[0] * std::exp(Ea / (R * T1));
        esperadas = {Ea / 1000, A, A * std::exp(-Ea / (R * T3))};
      } else if (forma == 1) {
        ASSERT_EQ(k.size(), 1u);
        esperadas = {k[0] * std::exp(-Ea0 / R * (1 / T2 - 1 / T1))};
      } else {
        const double Ea = R * std::log(test::Numeros(p.st).at(2)) / inv;
        esperadas = {Ea / 1000, std::exp(-Ea / R * (1 / T3 - 1 / T1))};
      }
      const double Ea = forma == 1 ? Ea0 / 1000 : esperadas[0];
      EXPECT_TRUE(Ea >= 30 && Ea <= 130) << Ea;
      const auto dadas = test::Respuestas(p.so);
      ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
      for (std::size_t i = 0; i < dadas.size(); ++i) test::EsperaCerca(dadas[i], esperadas[i]);
      if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace ss::mod::cep
