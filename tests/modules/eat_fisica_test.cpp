// The physics problems of the atomic structure module, read as a student reads
// them: every answer is recomputed from the numbers the statement prints.
#include <array>
#include <set>

#include "tests/modules/dis_comun.h"

namespace ss::mod::eat {
namespace {

using test::Datos;
using test::EsperaCerca;

test::Problema Genera(int gen, int seqB, uint64_t semilla) {
  const test::Problema p = test::GeneraEn("ANEU_QUIM_EAT", gen, seqB, 0, semilla * 7919 + static_cast<uint64_t>(seqB));
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with("&LF")) << p.st;
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|<ERROR|años"))) << p.st << p.so;
  return p;
}
double Tras0(const std::string& st, const std::string& marca) { return test::NumerosTras(st, marca).at(0); }
std::string Linea(const std::string& st, int k) {  // the k-th line, from 0
  std::size_t ini = 0;
  while (k-- > 0) ini = st.find("&LF", ini) + 3;
  return st.substr(ini, st.find("&LF", ini) - ini);
}

TEST(AtomPhysics, PhotoelectricAnswersFollowFromTheStatement) {
  const std::map<std::string, double> w0 = {  // work functions (eV) of clean metal surfaces
      {"Al", 4.08}, {"C", 5.0}, {"Be", 4.98}, {"Hg", 4.48}, {"Cd", 4.08}, {"Ca", 2.87}, {"Mg", 3.66},
      {"Na", 2.36}, {"Cs", 2.14}, {"K", 2.29}, {"Au", 5.10}, {"Co", 5.0}, {"Cu", 4.7}, {"Pt", 5.93},
      {"Fe", 4.81}, {"Pb", 4.14}, {"Ni", 5.35}, {"Se", 5.9}, {"Zn", 4.30}, {"Nb", 4.30}};
  for (int s = 0; s < 210; ++s)
    for (uint64_t semilla = 0; semilla < 5; ++semilla) {
      const auto p = Genera(2, s, semilla);
      const Datos d(Linea(p.st, 0));
      const double h = Tras0(p.st, "h = "), c = Tras0(p.st, "c = "), m = Tras0(p.st, "m_e = "), e = Tras0(p.st, "1& eV = ");
      const int f = s % 6;  // each form starts from the work function w and kinetic energy ec (J)
      const double l = d.En("nm", f == 2 ? 1 : 0) * 1E-9, ef = h * c / l, v1 = d.En("m/s");
      const double w = f == 0 ? d.En("eV") * e : f == 1 ? d.En("J") : f == 2 ? h * c / (d.En("nm") * 1E-9)
                                                 : ef - (f == 4 ? d.En("V") : d.En("eV")) * e;
      const double ec = f == 1 ? m * v1 * v1 / 2 : ef - w, v = std::sqrt(2 * ec / m);
      const double x[6][3] = {{std::round(h * c / w * 1E9), ec / e, h / (m * v) * 1E9},
                              {(w + ec) / e, h * c / (w + ec) * 1E9, h / (m * v) * 1E9}, {w / e, ec / e, v}, {ef / e, w / e, h * c / w * 1E9},
                              {ec / e, w / e, h * c / w * 1E9}, {w, w / h, v}};
      const auto r = test::Respuestas(p.so);
      ASSERT_EQ(r.size(), 3u) << p.so;
      for (int k = 0; k < 3; ++k) EsperaCerca(r[k], x[f][k], 3E-4 * std::fabs(x[f][k]));
      EXPECT_GT(ec, 0) << p.st;  // the light ejects electrons
      for (const auto& [sim, wr] : w0)  // a named metal keeps its own work function
        if ((f == 0 || f == 3 || f == 5) && std::regex_search(p.st, std::regex(" " + test::Texto("N_" + sim) + "[ .]"))) {
          EXPECT_NEAR(w / e, wr, 0.012) << p.st;
        }
      EXPECT_TRUE(f == 1 || (l > 90E-9 && l < 600E-9)) << p.st;
      if (HasFailure()) return;
    }
}

TEST(AtomPhysics, HydrogenLinesFollowFromTheBohrLevels) {
  const std::vector<std::string> series = {"Lyman", "Balmer", "Paschen", "Brackett", "Pfund"};
  std::set<std::string> vistas;
  for (int s = 0; s < 2; ++s)
    for (uint64_t semilla = 0; semilla < 300; ++semilla) {
      const auto p = Genera(3, s, semilla);
      const double e1 = Tras0(p.st, "E_1 = "), h = Tras0(p.st, "h = "), c = Tras0(p.st, "c = "), ev = Tras0(p.st, "1& eV = ");
      auto nivel = [&](int n) { return e1 / (n * n); };
      const auto r = test::Respuestas(p.so);
      ASSERT_EQ(r.size(), 6u - s) << p.so;
      std::smatch m;
      int n0, nf;  // the level left and the level reached
      if (s == 0) {
        ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(line (\d) of the (\w+) series)"))) << p.st;
        nf = static_cast<int>(std::find(series.begin(), series.end(), m[2].str()) - series.begin()) + 1;
        n0 = nf + std::stoi(m[1]);
        vistas.insert(m[2]);
        EXPECT_TRUE(r[0].valor == n0 && r[1].valor == nf) << p.so;
      } else {
        ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(from n = (\d) to n = (\d))"))) << p.st;
        n0 = std::stoi(m[1]), nf = std::stoi(m[2]);
        EXPECT_TRUE(n0 != nf && n0 >= 2 && n0 <= 4 && nf >= 1 && nf <= 5) << p.st;
        EsperaCerca(r[0], -nivel(n0) / ev);
        EsperaCerca(r[1], nivel(nf) / ev);
        EXPECT_NE(p.so.find(test::Texto(nf < n0 ? "Foton_emitido" : "Foton_absorbido")), std::string::npos);
      }
      // A named line gives the energy of the photon; a jump, the change of the atom's energy.
      const double de = s == 0 ? nivel(n0) - nivel(nf) : nivel(nf) - nivel(n0);
      std::vector<double> x = {de};
      if (s == 0) x.push_back(de / ev);
      x.insert(x.end(), {std::fabs(de) / h, c * h / std::fabs(de) * 1E9});
      for (std::size_t k = 0; k < x.size(); ++k) EsperaCerca(r[2 + k], x[k]);
      if (HasFailure()) return;
    }
  EXPECT_EQ(vistas.size(), 5u);
}

TEST(AtomPhysics, MassDefectOfTheNucleusGivesItsBindingEnergy) {
  for (int s = 0; s < 90; ++s) {
    const auto p = Genera(9, s, 1);
    std::smatch m;
    ASSERT_TRUE(std::regex_search(p.st, m, std::regex(R"(#SPB\(R(\d+)#T\)\((\d+)#SPB\).* of (\d+) \w+ and (\d+))")));
    const int a = std::stoi(m[1]), z = std::stoi(m[2]);
    EXPECT_TRUE(z == std::stoi(m[3]) && a - z == std::stoi(m[4])) << p.st;
    const double defecto = z * Tras0(p.st, test::Texto("Masa_proton") + " = ") +
                           (a - z) * Tras0(p.st, test::Texto("Masa_neutron") + " = ") - Tras0(p.st, "its mass is ");
    const double c = Tras0(p.st, "c = "), mev = defecto * Tras0(p.st, "1& u = ") * c * c / Tras0(p.st, "1& eV = ") / 1E6;
    const auto r = test::Respuestas(p.so);
    ASSERT_EQ(r.size(), 3u) << p.so;
    for (int k = 0; k < 3; ++k) EsperaCerca(r[k], std::array{defecto, mev, mev / a}[k]);
    // Real nuclei: deuterium 2.2246 MeV, the rest 2.5 to 8.8 MeV a nucleon, above 7.4 from carbon on.
    EXPECT_TRUE(a == 2 ? std::fabs(mev - 2.2246) < 2E-4 : mev / a > (a < 12 ? 2.5 : 7.4) && mev / a < 8.8) << p.st;
  }
}

TEST(AtomPhysics, DecayAnswersFollowFromTheDatumAndRealHalfLives) {
  const std::map<std::string, double> real = {  // half-lives (s), from the nuclear data tables
      {"235U", 2.221E16}, {"87Rb", 1.54E18}, {"226Ra", 5.05E10}, {"90Sr", 9.1E8}, {"131I", 6.93E5}, {"238U", 1.41E17},
      {"41Ca", 3.2E12}, {"229Th", 2.4E11}, {"60Co", 1.663E8}, {"222Rn", 3.30E5}, {"40K", 3.9E16}, {"14C", 1.81E11},
      {"207Bi", 9.96E8}, {"109Cd", 3.99E7}, {"15O", 122.2}, {"8Be", 8.19E-17}, {"213Po", 3.71E-6}, {"28Al", 134.5},
      {"210Pb", 7.0E8}, {"221Fr", 288}, {"226Ac", 1.057E5}, {"137Cs", 9.49E8}, {"231Th", 9.19E4}, {"22Na", 8.21E7},
      {"32Si", 5.0E9}, {"33P", 2.19E6}, {"35S", 7.55E6}};
  const std::map<std::string, double> segundos = {{test::Texto("Anyos"), 3.156E7}, {test::Texto("Dias"), 86400},
      {test::Texto("Horas"), 3600}, {test::Texto("Minutos"), 60}, {test::Texto("Segundo"), 1}};
  // Per form: the datum (T half-life, L mean life, K constant, R mass left, D mass gone), then the answers
  // (k constant, L mean life, T half-life, m mass after a time, r time to a mass left, d time for a mass gone).
  const char* formas[13] = {"TkLm", "Tkr", "TLd", "LkTm", "LTr", "Lkd", "KTLm", "KTr", "KLd", "RkTL", "DkTL", "RTd", "Dkr"};
  for (int s = 0; s < 351; ++s)
    for (uint64_t semilla = 0; semilla < 3; ++semilla) {
      const auto p = Genera(10, s, semilla);
      const std::string forma = formas[s % 13];
      const Datos d(Linea(p.st, 0)), todo(p.st + p.so);
      std::string ut;
      for (const auto& [u, f] : segundos) ut = todo.Tiene(u) ? u : ut;
      const std::string um = todo.Tiene("ng") ? "ng" : todo.Tiene("mg") ? "mg" : "g";
      const auto& v = d.Todos();
      double k = forma[0] == 'T' ? std::log(2) / v.at(0).first : forma[0] == 'L' ? 1 / v.at(0).first : v.at(0).first;
      if (forma[0] == 'R' || forma[0] == 'D') {  // time, then the masses (or a percentage)
        const bool R = forma[0] == 'R';
        const double q = v.at(R ? 2 : 1).first, m0 = v.at(R ? 1 : 2).first, f = d.Tiene("%") ? q / 100 : q / m0,
                     resto = R ? f : 1 - f;
        EXPECT_TRUE(resto > 0.05 && resto < 0.95) << p.st;
        k = -std::log(resto) / v.at(0).first;
      }
      ASSERT_FALSE(ut.empty()) << p.st;
      const auto r = test::Respuestas(p.so);
      ASSERT_EQ(r.size(), forma.size() - 1) << p.so;
      for (std::size_t i = 1; i < forma.size(); ++i) {
        const Datos q(Linea(p.st, 1 + static_cast<int>(i)));
        const double x = forma[i] == 'k' ? k : forma[i] == 'L' ? 1 / k : forma[i] == 'T' ? std::log(2) / k
                         : forma[i] == 'm' ? q.En(um) * std::exp(-k * q.En(ut))
                         : forma[i] == 'r' ? std::log(q.En(um) / q.En(um, 1)) / k
                                           : std::log(q.En(um, 1) / (q.En(um, 1) - q.En(um))) / k;
        EsperaCerca(r[i - 1], x, 5E-4 * std::fabs(x));
      }
      std::smatch m;
      if (std::regex_search(p.st, m, std::regex(R"(#SPB\(R(\d+)#T\)\( #SPB\)([A-Z][a-z]?))"))) {
        EXPECT_NEAR(std::log(2) / k * segundos.at(ut) / real.at(m[1].str() + m[2].str()), 1, 0.05) << p.st;
      }
      // No gram-sized sample of a nuclide that lives under a second.
      EXPECT_TRUE(ut != test::Texto("Segundo") || std::log(2) / k >= 1 || um == "ng") << p.st;
      if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace ss::mod::eat
