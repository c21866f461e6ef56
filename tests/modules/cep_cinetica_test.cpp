// Kinetics: every answer worked again from the rate law, the table of initial rates or the Arrhenius data the
// statement shows; the units of k by the overall order, the orders by the variant, the data within real ranges.
#include <array>
#include <numeric>

#include "tests/modules/dis_comun.h"

namespace ss::mod::cep {
namespace {

const std::string P = "\xB7";
const std::string kUnidad[5] = {"mol/(L" + P + "s)", "s^-^1", "mol^-^1" + P + "L" + P + "s^-^1",
                                "mol^-^2" + P + "L^2" + P + "s^-^1", "mol^-^3" + P + "L^3" + P + "s^-^1"};
constexpr int kOrden[5][2] = {{2, 2}, {2, 1}, {1, 1}, {1, 0}, {1, 2}};
const std::string kNum = R"((\d[\d&.E-]*))";
double Num(const std::string& t) { return test::Numeros(t).at(0); }

// "v = k·[A]^m·[B]^n": k, the orders checked against the variant's.
double Ley(const std::string& t, int seqB) {
  std::smatch m;
  EXPECT_TRUE(std::regex_search(t, m, std::regex("=& " + kNum + "((?:\xB7\\[[AB]\\](?:\\^\\d)?)*)"))) << t;
  const std::string f = m[2];
  for (int i = 0; i < 2; ++i) {
    const auto at = f.find(std::string("[") + char('A' + i) + "]");
    EXPECT_EQ(at == f.npos ? 0 : at + 4 < f.size() && f[at + 3] == '^' ? f[at + 4] - '0' : 1, kOrden[seqB % 5][i]) << t;
  }
  return Num(m[1]);
}

// Orders, overall order, [law,] k with its units, and the rate at the concentrations the statement gives.
void Ordenes(const test::Problema& p, int seqB, double k, bool tabla) {
  const int a = kOrden[seqB % 5][0], b = kOrden[seqB % 5][1];
  const double A = test::Datos(p.st).En("mol/L", 0), B = test::Datos(p.st).En("mol/L", 1);
  EXPECT_TRUE(A >= 0.02 && A <= 0.9 && B >= 0.02 && B <= 0.9 && k >= 1.5e-3 && k <= 90) << A << " " << B << " " << k;
  EXPECT_NE(p.so.find(" " + kUnidad[a + b] + ";"), std::string::npos) << p.so;
  std::vector<double> esperadas{double(a), double(b), double(a + b), k, k * std::pow(A, a) * std::pow(B, b)};
  if (tabla) esperadas.insert(esperadas.begin() + 3, k);
  const auto dadas = test::Respuestas(p.so);
  ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
  for (std::size_t i = 0; i < dadas.size(); ++i)  // k read off rates of four figures
    test::EsperaCerca(dadas[i], esperadas[i], (tabla ? 1.1e-3 : 6e-4) * esperadas[i]);
}

void LeyDada(const test::Problema& p, int seqB) {  // generator 3
  if (seqB % 3 == 0) return Ordenes(p, seqB, Ley(p.st, seqB), false);
  std::smatch m;
  ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"((\d?)A  \+  (\d?)B  &ars  (\d?)C  \+  (\d?)D\.)")));
  int c[4], mcd = 0;
  std::string v = "= ";  // v = -1/a d[A]/dt = -1/b d[B]/dt = 1/c d[C]/dt = 1/d d[D]/dt
  for (int i = 0; i < 4; ++i) {
    mcd = std::gcd(mcd, c[i] = m[i + 1].length() ? std::stoi(m[i + 1]) : 1);
    v += std::string(i < 2 ? "- " : "") + (c[i] > 1 ? "#COC(1#N)(" + std::to_string(c[i]) + "#COC)" + P : "") +
         "#COC(&+Id&-I[" + char('A' + i) + "]#N)(&+Idt&-I#COC)" + (i < 3 ? " = " : "&LF");
  }
  EXPECT_TRUE(mcd == 1 && c[0] != c[1] && c[2] != c[3] && *std::max_element(c, c + 4) <= 6 && p.so.find(v) != p.so.npos)
      << v;
  if (seqB % 3 == 1) return;
  const double dado = test::Datos(p.st).En("mol/(L" + P + "s");  // Datos drops the closing bracket
  const bool deA = p.st.find("A is being consumed") != std::string::npos;
  const auto r = test::Respuestas(p.so.substr(p.so.find("&LF")));
  ASSERT_TRUE(dado >= 0.01 && dado <= 1.4 && r.size() == 2u) << p.so;
  for (int i = 0; i < 2; ++i) test::EsperaCerca(r[i], deA ? dado * c[i + 2] / c[0] : dado * c[i] / c[3]);
}

void VelocidadesIniciales(const test::Problema& p, int seqB) {  // generator 4
  std::vector<std::array<double, 3>> e;  // [A], [B], rate of each experiment
  const std::regex fila("&SP=5:\\d&SP=25:" + kNum + "&SP=45:" + kNum + "&SP=65:" + kNum + "&LF");
  for (std::sregex_iterator it(p.st.begin(), p.st.end(), fila), end; it != end; ++it)
    e.push_back({Num((*it)[1]), Num((*it)[2]), Num((*it)[3])});
  ASSERT_EQ(e.size(), 3u);
  const int a = kOrden[seqB][0], b = kOrden[seqB][1];
  const double k = e[0][2] / std::pow(e[0][0], a) / std::pow(e[0][1], b);
  for (int i = 1; i < 3; ++i) {  // the rates follow the law; each experiment scales one concentration by 3.5-5
    EXPECT_NEAR(e[i][2], k * std::pow(e[i][0], a) * std::pow(e[i][1], b), 1.1e-3 * e[i][2]);
    const double fA = std::max(e[i][0] / e[0][0], e[0][0] / e[i][0]), fB = std::max(e[i][1] / e[0][1], e[0][1] / e[i][1]);
    EXPECT_TRUE(std::min(fA, fB) <= 1.045 && std::max(fA, fB) >= 3.3 && std::max(fA, fB) <= 5.3) << fA << " " << fB;
  }
  EXPECT_NEAR(Ley(p.so, seqB), k, 1e-3 * k);
  Ordenes(p, seqB, k, true);
}

void Arrhenius(const test::Problema& p, int forma) {  // generator 5
  const test::Datos d(p.st);
  const double R = d.En("J/(mol" + P + "K"), T1 = d.En("\xB0" "C", 0) + 273.15, T2 = d.En("\xB0" "C", 1) + 273.15;
  const double T3 = d.En("\xB0" "C", 2) + 273.15, inv = 1 / T1 - 1 / T2;
  EXPECT_TRUE(T1 >= 288.15 && T1 <= 363.15 && T2 - T1 >= 15 && T2 - T1 <= 40 && (forma == 1 || (T3 - T2 >= 15 && T3 - T2 <= 40)));
  std::vector<double> k;  // rate constants of any order, order 0 written with powers
  for (const auto& [x, w] : d.Todos())
    if (std::find(kUnidad + 1, kUnidad + 5, w) != kUnidad + 5 || w == "mol" + P + "L^-^1" + P + "s^-^1") {
      k.push_back(x);
      EXPECT_TRUE(x >= 1e-8 && x <= 1e4 && (forma == 2 || p.so.find(" " + w) != p.so.npos)) << x << " " << w;
    }
  ASSERT_TRUE(forma == 2 || k.size() == 2u - forma) << p.st;
  const double Ea = forma == 0 ? R * std::log(k[1] / k[0]) / inv
                    : forma == 1 ? d.En("kJ/mol") * 1000 : R * std::log(test::Numeros(p.st).at(2)) / inv;
  EXPECT_TRUE(Ea >= 30000 && Ea <= 130000) << Ea;
  const double A = forma == 2 ? 1 : k[0] * std::exp(Ea / (R * T1));  // k = A exp(-Ea/RT); form 2 asks k3/k1
  const std::vector<double> esperadas = forma == 0   ? std::vector{Ea / 1000, A, A * std::exp(-Ea / (R * T3))}
                                        : forma == 1 ? std::vector{A * std::exp(-Ea / (R * T2))}
                                                     : std::vector{Ea / 1000, std::exp(-Ea / R * (1 / T3 - 1 / T1))};
  const auto dadas = test::Respuestas(p.so);
  ASSERT_EQ(dadas.size(), esperadas.size()) << p.so;
  for (std::size_t i = 0; i < dadas.size(); ++i) test::EsperaCerca(dadas[i], esperadas[i]);
}

TEST(CepKinetics, EveryFormRecomputedFromItsStatement) {
  const struct { int gen, formas; void (*checker)(const test::Problema&, int); } kFamilias[] = {
      {3, 15, LeyDada}, {4, 5, VelocidadesIniciales}, {5, 3, Arrhenius}};
  for (const auto& f : kFamilias)
    for (int seqB = 0; seqB < f.formas; ++seqB)
      for (uint64_t s = 1; s <= 200; ++s) {
        const test::Problema p = test::GeneraEn("ANEU_QUIM_CEP", f.gen, seqB, 0, s * 7919 + seqB);
        SCOPED_TRACE(p.st + "\n" + p.so);
        f.checker(p, seqB);
        if (HasFailure()) return;
      }
}

}  // namespace
}  // namespace ss::mod::cep
