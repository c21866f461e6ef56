// Nuclear reactions and particle tables: Z and A balance, symbols agree with atomic numbers, the blank
// is the only change, and every table row can be solved from what it shows.
#include "tests/modules/dis_comun.h"

namespace ss {
namespace {

int ZDe(const std::string& s) {
  static const std::string t =
      " n H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br Kr Rb Sr Y Zr Nb"
      " Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb Lu Hf Ta W Re Os Ir Pt Au"
      " Hg Tl Pb Bi Po At Rn Fr Ra Ac Th Pa U Np Pu Am ";
  const std::size_t at = t.find(" " + s + " ");
  return at == std::string::npos ? -9 : static_cast<int>(std::count(t.begin(), t.begin() + at, ' '));
}
test::Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  return test::GeneraEn("ANEU_QUIM_EAT", gen, seqB, items, semilla * 7919 + static_cast<uint64_t>(gen));
}
std::vector<std::string> Partes(const std::string& t, const std::string& sep, std::vector<std::string> v = {}) {
  for (std::size_t i = 0, j;; i = j + sep.size())
    if (v.push_back(t.substr(i, (j = t.find(sep, i)) == std::string::npos ? j : j - i)); j == std::string::npos) return v;
}
const std::regex kNuc(R"(#SPB\(R(\d+)#T\)\(([-+]?\d+)#SPB\)([A-Za-z]+)(?:\^(\d)?\^?([-+]))?)");
// A real nuclide: its symbol is its Z and its A lies in the band of known nuclides.
bool Real(int z, int a) { return a >= std::max(z, 1) && a <= 2.6 * z + 10; }

void RevisaReacciones(const test::Problema& p, int items) {
  const auto st = Partes(p.st, "&LF"), so = Partes(p.so, "&LF");
  ASSERT_EQ(so.size(), static_cast<std::size_t>(items) + 1) << p.so;
  for (int i = 0; i < items; ++i) {
    const std::string ec = so[i].substr(so[i].find(")&-B  ") + 6), hueca = st[i + 1].substr(st[i + 1].find(")&-B  ") + 6);
    int z[2] = {0, 0}, a[2] = {0, 0}, distintos = 0;
    const auto lados = Partes(ec, " &ars "), huecos = Partes(hueca, " &ars ");
    ASSERT_EQ(lados.size(), 2u) << ec;
    for (int l = 0; l < 2; ++l)
      for (std::size_t k = 0; const std::string& t : Partes(lados[l], " + ")) {
        const std::string h = Partes(huecos.at(l), " + ").at(k++);
        if (h != t && ++distintos) {
          EXPECT_EQ(h, "&+B ? &-B");
        }
        std::smatch m;
        if (t == "&gamma") continue;
        ASSERT_TRUE(std::regex_match(t, m, kNuc)) << t;
        const int zz = std::stoi(m[2]), aa = std::stoi(m[1]);
        z[l] += zz, a[l] += aa;
        EXPECT_TRUE(m[3] == "e" ? aa == 0 && std::abs(zz) == 1 : ZDe(m[3]) == zz && Real(zz, aa)) << t;
      }
    EXPECT_TRUE(z[0] == z[1] && a[0] == a[1] && distintos == 1) << hueca << " | " << ec;
  }
}

// Columns: Z, A, protons, neutrons, electrons (and charge when ions are asked).
void RevisaTabla(const test::Problema& p, int items, bool iones) {
  static const std::string kNoMetales = " N O F P S Cl As Se Br Te I ", kSinIon = " B C Si Ne Ar ";
  const auto st = Partes(p.st, "&LF"), so = Partes(p.so, "&LF");
  ASSERT_EQ(so.size(), static_cast<std::size_t>(items) + 2) << p.so;
  for (int i = 1; i <= items; ++i) {
    const auto c = Partes(so[i], "&SP="), d = Partes(st[i + 1], "&SP=");
    ASSERT_TRUE(c.size() == (iones ? 9u : 8u) && d.size() == c.size()) << so[i] << st[i + 1];
    std::vector<int> v;
    std::vector<bool> ve;  // shown in the statement
    for (std::size_t k = 3; k < c.size(); ++k) {
      v.push_back(std::stoi(c[k].substr(3)));
      ve.push_back(d[k].substr(3) != "?");
      EXPECT_TRUE(!ve.back() || d[k].substr(3) == c[k].substr(3)) << st[i + 1];
    }
    std::smatch m;
    const std::string esp = c[2].substr(3), dada = d[2].substr(3);
    ASSERT_TRUE(std::regex_match(esp, m, kNuc)) << esp;
    const int Z = ZDe(m[3]), A = std::stoi(m[1]);
    const int q = m[5].matched ? (m[5] == "+" ? 1 : -1) * (m[4].matched ? std::stoi(m[4]) : 1) : 0;
    EXPECT_TRUE(v[0] == Z && std::stoi(m[2]) == Z && v[1] == A && v[2] == Z && v[3] == A - Z && v[4] == Z - q &&
                (!iones || v[5] == q) && Real(Z, A)) << so[i];
    const std::string e = " " + m[3].str() + " ";  // ions only of real sign and size
    EXPECT_TRUE(q == 0 || (kSinIon.find(e) == std::string::npos && std::abs(q) <= 4 &&
                           (e == " H " || (q < 0) == (kNoMetales.find(e) != std::string::npos)))) << esp;
    const bool lleno = dada == esp;  // else "?" or the bare symbol
    EXPECT_TRUE(dada == "?" || lleno || dada == esp.substr(esp.find("#SPB)") + 5)) << dada;
    EXPECT_TRUE((dada != "?" || ve[0] || ve[2]) && (lleno || ve[1] || ve[3]) && (!iones || lleno || ve[4] || ve[5]))
        << st[i + 1];
  }
}

TEST(EatNucleos, ReactionsAndParticleTablesHoldForEveryFormAndSeed) {
  for (int seqB = 0; seqB < 9; ++seqB)
    for (uint64_t s = 1; s <= 200; ++s) {
      const int n = 2 + static_cast<int>(s % 25);
      RevisaReacciones(Genera(6, seqB, n, s), n);
      if (seqB < 7 && n <= 10) RevisaTabla(Genera(7, seqB, n, s), n, true), RevisaTabla(Genera(12, seqB, n, s), n, false);
      if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace ss
