// The gas and formula problems (generators 4, 6, 7, 8 and 9 of the gases,
// formulas and solutions module), checked the way a student checks them: read
// the data from the statement, work the answer out from chemistry, compare it
// with the solution.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "modules/modulos.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "tests/modules/markup_numeros.h"

namespace ss {
namespace {

using test::Cerca;
using test::Numeros;
using test::NumerosTras;

Mensajes& Textos() {
  static Mensajes mensajes(SS_SOURCE_DIR);
  return mensajes;
}

struct Problema {
  std::string st, so;
};

Problema Genera(int generador, int seqB, int items, uint64_t seed) {
  GenContext g(&Textos(), Aleatorio(seed));
  const std::string command = ZeroPadCut(generador, 3) + "000" + ZeroPadCut(seqB, 4) +
                              ZeroPadCut(items, 2) + "0301";
  Problema p;
  GeneraProblema(g, "ANEU_QUIM_DIS", command, p.st, p.so);
  return p;
}

std::string Texto(std::string_view key) {
  const std::string* t = Textos().Buscar(TablaMensajes::QUI, key);
  return t ? *t : std::string();
}

// Whether `st` was written from `key`: the pieces of one of its wordings
// between placeholders stand in the statement in order.
bool UsaClave(std::string_view key, const std::string& st) {
  const std::string texto = Texto(key);
  if (texto.empty()) return false;
  static const std::regex marcador("%[A-Za-z0-9_]+%");
  std::size_t inicio = 0;
  for (;;) {
    const std::size_t fin = texto.find("@@", inicio);
    const std::string alt = texto.substr(inicio, fin == std::string::npos ? fin : fin - inicio);
    bool casa = true;
    std::size_t pos = 0;
    std::sregex_token_iterator it(alt.begin(), alt.end(), marcador, -1), end;
    for (; it != end && casa; ++it) {
      const std::string pieza = *it;
      if (pieza.empty()) continue;
      pos = st.find(pieza, pos);
      casa = pos != std::string::npos;
      if (casa) pos += pieza.size();
    }
    if (casa) return true;
    if (fin == std::string::npos) return false;
    inicio = fin + 2;
  }
}

// The values written right before `unidad` ("& atm", "& g"), in order. A unit
// that goes on ("& g/L" for "& g") does not count.
std::vector<double> ConUnidad(const std::string& texto, const std::string& unidad) {
  std::string escapada;
  for (char c : unidad) {
    if (std::string("()[]{}.*+?^$|\\/").find(c) != std::string::npos) escapada += '\\';
    escapada += c;
  }
  const std::regex re("(-?\\d+(?:&\\.\\d+)?(?:&E-?\\d+)?)" + escapada + "(?![/A-Za-z0-9])");
  std::vector<double> out;
  for (std::sregex_iterator it(texto.begin(), texto.end(), re), end; it != end; ++it) {
    const auto at = static_cast<std::size_t>(it->position(0));
    if (at > 0 && (texto[at - 1] == '_' || texto[at - 1] == '^' || texto[at - 1] == '.')) continue;
    out.push_back(Numeros((*it)[1].str()).at(0));
  }
  return out;
}

std::string Linea(const std::string& texto, std::size_t n) {  // n-th line, from 0
  std::size_t inicio = 0;
  for (std::size_t i = 0; i < n; ++i) inicio = texto.find("&LF", inicio) + 3;
  return texto.substr(inicio, texto.find("&LF", inicio) - inicio);
}

// The atomic masses the statement gives: "Symbol = value" pairs of its line.
std::map<std::string, double> MasasDadas(const std::string& st) {
  std::map<std::string, double> out;
  const std::string etiqueta = Texto("Masas_Atomicas");
  const std::size_t at = st.find(etiqueta);
  if (etiqueta.empty() || at == std::string::npos) return out;
  const std::string linea = st.substr(at, st.find("&LF", at) - at);
  static const std::regex par("([A-Z][a-z]?) = (\\d+(?:&\\.\\d+)?)");
  for (std::sregex_iterator it(linea.begin(), linea.end(), par), end; it != end; ++it)
    out[(*it)[1].str()] = Numeros((*it)[2].str()).at(0);
  return out;
}

// A formula in markup ("Ca_3(PO_4)_2", "CH_3-NH-CH_3") as element counts in
// order of first appearance; empty if it isn't one.
using Composicion = std::vector<std::pair<std::string, int>>;

bool LeeFormula(const std::string& f, std::size_t& i, Composicion& out, int factor) {
  auto suma = [&](const std::string& e, int n) {
    for (auto& [s, c] : out)
      if (s == e) return void(c += n);
    out.push_back({e, n});
  };
  auto cuenta = [&] {
    std::string d;
    while (i + 1 < f.size() && f[i] == '_' && std::isdigit(static_cast<unsigned char>(f[i + 1]))) {
      d += f[i + 1];
      i += 2;
    }
    return d.empty() ? 1 : std::stoi(d);
  };
  while (i < f.size()) {
    if (f[i] == '-') {
      ++i;
    } else if (f[i] == '(') {
      ++i;
      Composicion dentro;
      if (!LeeFormula(f, i, dentro, 1) || i >= f.size() || f[i] != ')') return false;
      ++i;
      const int n = cuenta();
      for (auto& [e, c] : dentro) suma(e, c * n * factor);
    } else if (f[i] == ')') {
      return true;
    } else if (std::isupper(static_cast<unsigned char>(f[i]))) {
      std::string e(1, f[i++]);
      if (i < f.size() && std::islower(static_cast<unsigned char>(f[i]))) e += f[i++];
      suma(e, cuenta() * factor);
    } else {
      return false;
    }
  }
  return true;
}

Composicion Formula(const std::string& f) {
  Composicion out;
  std::size_t i = 0;
  if (!LeeFormula(f, i, out, 1) || i != f.size()) return {};
  return out;
}

// Molar mass from the given atomic masses; NaN when one is missing.
double MasaMolar(const Composicion& c, const std::map<std::string, double>& masas) {
  double M = 0;
  for (const auto& [e, n] : c) {
    const auto it = masas.find(e);
    if (it == masas.end()) return std::nan("");
    M += n * it->second;
  }
  return c.empty() ? std::nan("") : M;
}

// Within the rounding of a value shown to two decimals.
void CercaDe2Decimales(double shown, double exact) { EXPECT_NEAR(shown, exact, 0.005 + 1e-9); }

// ---------------------------------------------------------------------------
// Generator 4

TEST(DisGases, TheVariantCounterPicksTheFormOfTheGasLaws) {
  const char* claves[] = {"V2_de_V_T_T2", "P2_de_P_V_T_V2_T2", "P2_de_P_V_V2", "T2_de_P_T_P2"};
  for (int seqB = 3; seqB <= 6; ++seqB) {
    const Problema p = Genera(4, seqB, 0, 11);
    SCOPED_TRACE(p.st);
    for (int k = 0; k < 4; ++k) EXPECT_EQ(UsaClave(claves[k], p.st), k == seqB - 3) << claves[k];
  }
}

TEST(DisGases, TwoStatesOfAGasFollowTheCombinedGasLaw) {
  const std::string atm = "& atm", L = "& L", C = "& \xB0" "C";
  for (uint64_t seed = 1; seed <= 60; ++seed) {
    for (int forma = 0; forma < 4; ++forma) {
      const Problema p = Genera(4, 100 + forma, 0, seed);
      SCOPED_TRACE(p.st + "\n" + p.so);
      ASSERT_TRUE(p.st.ends_with(".&LF"));
      const auto P = ConUnidad(p.st, atm), V = ConUnidad(p.st, L), T = ConUnidad(p.st, C);
      if (forma == 0) {
        ASSERT_TRUE(UsaClave("P2_de_P_V_T_V2_T2", p.st));
        ASSERT_EQ(P.size(), 1u);
        ASSERT_EQ(V.size(), 2u);
        ASSERT_EQ(T.size(), 2u);
        EXPECT_GT(std::fabs(T[0] - T[1]), 30);
        EXPECT_GE(std::fabs(V[0] - V[1]), 4);
        const double P2 = P[0] * V[0] / V[1] * (T[1] + 273) / (T[0] + 273);
        CercaDe2Decimales(ConUnidad(p.so, atm).at(0), P2);
      } else if (forma == 1) {
        ASSERT_TRUE(UsaClave("P2_de_P_V_V2", p.st));
        ASSERT_EQ(V.size(), 2u);
        EXPECT_GT(std::fabs(V[0] - V[1]), 4);
        EXPECT_TRUE(V[0] >= 1.1 && V[0] <= 15 && V[1] >= 1.1 && V[1] <= 15);
        CercaDe2Decimales(ConUnidad(p.so, atm).at(0), P.at(0) * V[0] / V[1]);
      } else if (forma == 2) {
        ASSERT_TRUE(UsaClave("T2_de_P_T_P2", p.st));
        ASSERT_EQ(P.size(), 2u);
        EXPECT_GT(std::fabs(P[0] - P[1]), 8);
        const double T2 = (T.at(0) + 273) * P[1] / P[0] - 273;
        EXPECT_NEAR(ConUnidad(p.so, C).at(0), T2, 0.05 + 1e-9);
        EXPECT_GT(T2, -273);
      } else {
        ASSERT_TRUE(UsaClave("V2_de_V_T_T2", p.st));
        ASSERT_EQ(T.size(), 2u);
        EXPECT_GT(std::fabs(T[0] - T[1]), 30);
        EXPECT_TRUE(p.so.ends_with("& L.&LF"));
        CercaDe2Decimales(ConUnidad(p.so, L).at(0), V.at(0) * (T[1] + 273) / (T[0] + 273));
      }
    }
  }
}

// ---------------------------------------------------------------------------
// Generator 9

struct DatosGas {
  double P = 0, T = 0, V = 0, n = 0, d = 0;
  std::vector<double> m;         // masses in g
  std::vector<double> M;         // molar masses of the named gases
};

DatosGas LeeDatosGas(const Problema& p) {
  const std::string q = Linea(p.st, 0);  // the question; the data lines follow
  DatosGas d;
  const auto atm = ConUnidad(q, "& atm"), mmHg = ConUnidad(q, "& mmHg");
  if (!atm.empty()) d.P = atm[0];
  else if (!mmHg.empty()) d.P = mmHg[0] / 760;
  const auto T = ConUnidad(q, "& \xB0" "C");
  if (!T.empty()) d.T = T[0];
  if (const auto V = ConUnidad(q, "& L"); !V.empty()) d.V = V[0];
  if (const auto n = ConUnidad(q, "& mol"); !n.empty()) d.n = n[0];
  if (const auto den = ConUnidad(q, "& g/L"); !den.empty()) d.d = den[0];
  d.m = ConUnidad(q, "& g");
  const auto masas = MasasDadas(p.st);
  static const std::regex entreParentesis("\\(([A-Za-z_0-9]+)\\)");
  for (std::sregex_iterator it(q.begin(), q.end(), entreParentesis), end; it != end; ++it)
    d.M.push_back(MasaMolar(Formula((*it)[1].str()), masas));
  return d;
}

TEST(DisGases, TheIdealGasEquationGivesEveryAnswer) {
  const char* claves[10] = {"V_de_n_P_T", "V_de_m_MM_P_T", "d_de_MM_P_T", "MM_m_P_T_V",
                            "MM_de_d_P_T", "P_de_n_T_V", "P_de_m_MM_T_V", "m_de_P_T_V_MM",
                            "P_de_m1_m2_T_V_MM1_MM2", "n_de_P_T_V"};
  const std::set<double> molares = {2, 4, 28, 32, 38, 71, 30, 44, 64, 80, 40, 16};
  bool mismoGas = false;
  for (uint64_t seed = 1; seed <= 40; ++seed) {
    for (int forma = 0; forma < 10; ++forma) {
      const Problema p = Genera(9, 200 + forma + 10 * static_cast<int>(seed), 0, seed);
      SCOPED_TRACE(p.st + "\n" + p.so);
      ASSERT_TRUE(UsaClave(claves[forma], p.st));
      const double R = NumerosTras(p.st, "R&-I = ").at(0);
      EXPECT_EQ(R, 0.082);
      const DatosGas d = LeeDatosGas(p);
      // The forms that use a molar mass give the atomic masses it needs.
      if (forma == 1 || forma == 2 || forma == 6 || forma == 7 || forma == 8) {
        ASSERT_FALSE(d.M.empty());
        for (double M : d.M) ASSERT_FALSE(std::isnan(M)) << "a molar mass the statement does not give";
      }
      const double RT = R * (d.T + 273);
      const double x = Numeros(p.so).back();  // the answer stands last
      switch (forma) {
        case 0: CercaDe2Decimales(x, d.n * RT / d.P); break;
        case 1: {
          const double n = d.m.at(0) / d.M.at(0);
          CercaDe2Decimales(NumerosTras(p.so, Etiqueta(1)).at(0), n * RT / d.P);
          CercaDe2Decimales(x, n * 22.4);
          break;
        }
        case 2: CercaDe2Decimales(x, d.P * d.M.at(0) / RT); break;
        case 3: {
          EXPECT_TRUE(d.M.empty()) << "the gas is to be found, not named";
          EXPECT_NEAR(x, d.m.at(0) * RT / (d.P * d.V), 1e-3 * x);
          EXPECT_TRUE(molares.count(x)) << "the molar mass of a real gas of the table";
          break;
        }
        case 4:
          EXPECT_NEAR(x, d.d * RT / d.P, 1e-3 * x);
          EXPECT_TRUE(molares.count(x));
          break;
        case 5: EXPECT_NE(d.T, 0); CercaDe2Decimales(x, d.n * RT / d.V); break;
        case 6: CercaDe2Decimales(x, d.m.at(0) / d.M.at(0) * RT / d.V); break;
        case 7: CercaDe2Decimales(x, d.P * d.V * d.M.at(0) / RT); break;
        case 8: {
          ASSERT_EQ(d.m.size(), 2u);
          ASSERT_EQ(d.M.size(), 2u);
          mismoGas = mismoGas || d.M[0] == d.M[1];
          CercaDe2Decimales(x, (d.m[0] / d.M[0] + d.m[1] / d.M[1]) * RT / d.V);
          break;
        }
        default: CercaDe2Decimales(x, d.P * d.V / RT); break;
      }
    }
  }
  for (uint64_t seed = 100; seed < 400 && !mismoGas; ++seed) {
    const DatosGas d = LeeDatosGas(Genera(9, 8, 0, seed));
    mismoGas = d.M.size() == 2 && d.M[0] == d.M[1];
  }
  EXPECT_TRUE(mismoGas) << "the two gases of a mixture are drawn apart, so they may be one";
}

// ---------------------------------------------------------------------------
// Generators 6 and 7: items

int CuentaItems(const std::string& st) {
  int n = 0;
  while (st.find(Etiqueta(n + 1)) != std::string::npos && n < 26) ++n;
  return n;
}

TEST(DisFormulas, ExercisesHaveTheItemsAskedWithinTheirBound) {
  for (int gen : {6, 7}) {
    for (auto [pedidos, esperados] : {std::pair{0, 2}, {1, 2}, {5, 5}, {20, 20}, {21, 20}, {30, 20}}) {
      const Problema p = Genera(gen, 7, pedidos, 5);
      EXPECT_EQ(CuentaItems(p.st), esperados) << gen << " " << pedidos;
      EXPECT_EQ(CuentaItems(p.so), esperados) << gen << " " << pedidos;
    }
  }
}

// Generator 6: the datum and its kind, read from an item's line; the kind is
// the unit or word that follows the number.
enum class Clase { Masa, Moles, Moleculas, AtomosO, Ninguna };

std::pair<Clase, double> PrimerValor(const std::string& linea) {
  const std::pair<Clase, std::string> unidades[] = {{Clase::Masa, "& g"},
                                                    {Clase::Moles, "& mol"},
                                                    {Clase::Moleculas, " " + Texto("Moleculas")},
                                                    {Clase::AtomosO, " " + Texto("AtomOxig")}};
  for (const auto& [clase, unidad] : unidades)
    if (const auto v = ConUnidad(linea, unidad); !v.empty()) return {clase, v[0]};
  return {Clase::Ninguna, 0};
}

TEST(DisFormulas, ConversionsAmongMassMolesMoleculesAndOxygenAtoms) {
  std::set<Clase> dadas, pedidas;
  for (uint64_t seed = 1; seed <= 40; ++seed) {
    const Problema p = Genera(6, static_cast<int>(seed) * 3, 12, seed);
    SCOPED_TRACE(p.st + "\n" + p.so);
    ASSERT_TRUE(p.st.starts_with(Texto("ConvertirMolMasaMolec")));
    const auto masas = MasasDadas(p.st);
    const std::vector<double> na = NumerosTras(p.st, Texto("Numero_Avogadro"));
    for (int i = 1; i <= 12; ++i) {
      const std::size_t enSt = p.st.find(Etiqueta(i));
      ASSERT_NE(enSt, std::string::npos);
      const std::string linea = p.st.substr(enSt, p.st.find("&LF", enSt) - enSt);
      const std::size_t at = p.so.find(Etiqueta(i));
      ASSERT_NE(at, std::string::npos);
      const std::string respuesta = p.so.substr(at, p.so.find("&LF", at) - at);
      // The compound: the word of the line that is a formula.
      Composicion c;
      std::string palabra;
      for (char ch : linea + " ") {
        if (ch != ' ' && ch != '?' && ch != '.') {
          palabra += ch;
          continue;
        }
        if (palabra.find('_') != std::string::npos && !Formula(palabra).empty()) c = Formula(palabra);
        palabra.clear();
      }
      ASSERT_FALSE(c.empty()) << linea;
      int oxigenos = 0;
      for (const auto& [e, n] : c) oxigenos += e == "O" ? n : 0;
      ASSERT_GT(oxigenos, 0);
      const auto [dada, valor] = PrimerValor(linea);
      const auto [pedida, resultado] = PrimerValor(respuesta);
      ASSERT_NE(dada, Clase::Ninguna);
      ASSERT_NE(pedida, Clase::Ninguna);
      ASSERT_NE(dada, pedida);
      dadas.insert(dada);
      pedidas.insert(pedida);
      const bool conMasa = dada == Clase::Masa || pedida == Clase::Masa;
      const bool conParticulas = dada >= Clase::Moleculas || pedida >= Clase::Moleculas;
      const double M = conMasa ? MasaMolar(c, masas) : 1;
      ASSERT_FALSE(std::isnan(M)) << "a molar mass the statement does not give";
      double NA = 1;
      if (conParticulas) {
        ASSERT_FALSE(na.empty()) << "Avogadro's number is needed";
        NA = na[0];
        EXPECT_NEAR(NA, 6.0221415E23, 1E16);
      }
      auto aMoles = [&](Clase k, double x) {
        return k == Clase::Masa ? x / M : k == Clase::Moles ? x : k == Clase::Moleculas ? x / NA : x / NA / oxigenos;
      };
      const double n = aMoles(dada, valor);
      const double esperado = pedida == Clase::Masa ? n * M : pedida == Clase::Moles ? n
                              : pedida == Clase::Moleculas ? n * NA : n * NA * oxigenos;
      EXPECT_TRUE(Cerca(resultado, esperado, 5.01e-4)) << resultado << " vs " << esperado;
    }
  }
  EXPECT_EQ(dadas.size(), 4u);
  EXPECT_EQ(pedidas.size(), 4u);
}

// Generator 7: each answer is the composition computed from the atomic masses
// the statement gives, element by element in the formula's order.
void CompruebaComposicion(const std::string& formula, const std::string& respuesta,
                          const std::map<std::string, double>& masas) {
  SCOPED_TRACE(formula + ": " + respuesta);
  const Composicion c = Formula(formula);
  ASSERT_FALSE(c.empty());
  const double M = MasaMolar(c, masas);
  ASSERT_FALSE(std::isnan(M)) << "an atomic mass the statement does not give";
  static const std::regex valor("(\\d+(?:&\\.(\\d+))?)& % ([A-Z][a-z]?)");
  std::size_t k = 0;
  double suma = 0;
  for (std::sregex_iterator it(respuesta.begin(), respuesta.end(), valor), end; it != end; ++it, ++k) {
    ASSERT_LT(k, c.size());
    EXPECT_EQ((*it)[3].str(), c[k].first);
    const double shown = Numeros((*it)[1].str()).at(0);
    const double exact = 100 * c[k].second * masas.at(c[k].first) / M;
    // Two decimals as written (the fixed answers), else four figures.
    const double tol = (*it)[2].length() == 2 && shown < 10
                           ? 0.005
                           : 0.5 * std::pow(10.0, std::floor(std::log10(exact)) - 3);
    EXPECT_NEAR(shown, exact, tol + 1e-9);
    suma += shown;
  }
  EXPECT_EQ(k, c.size());
  EXPECT_NEAR(suma, 100, 0.02);
}

TEST(DisFormulas, PercentCompositionMatchesTheAtomicMassesGiven) {
  std::set<std::string> conParentesis;
  for (uint64_t seed = 1; seed <= 60; ++seed) {
    const Problema p = Genera(7, static_cast<int>(seed), 20, seed);
    SCOPED_TRACE(p.st + "\n" + p.so);
    ASSERT_TRUE(p.st.starts_with(Texto("HallarComposicCentesimal")));
    const auto masas = MasasDadas(p.st);
    for (int i = 1; i <= 20; ++i) {
      const std::size_t at = p.so.find(Etiqueta(i));
      ASSERT_NE(at, std::string::npos);
      const std::string linea = p.so.substr(at + Etiqueta(i).size(), p.so.find("&LF", at) - at - Etiqueta(i).size());
      const std::size_t dos = linea.find(":  ");
      ASSERT_NE(dos, std::string::npos);
      const std::string formula = linea.substr(0, dos);
      EXPECT_NE(p.st.find(Etiqueta(i) + formula), std::string::npos) << "the statement shows it";
      CompruebaComposicion(formula, linea.substr(dos + 3), masas);
      if (formula.find('(') != std::string::npos) conParentesis.insert(formula);
    }
  }
  // The fixed compounds come too, the salts with groups among them.
  EXPECT_GE(conParentesis.size(), 3u);
}

// ---------------------------------------------------------------------------
// Generator 8: the empirical formula recovered from the data, the molecular
// one from the molar mass the data give.

struct CHO {
  int c = 0, h = 0, o = 0;
};

CHO LeeCHO(const std::string& f) {
  CHO x;
  for (const auto& [e, n] : Formula(f)) {
    if (e == "C") x.c = n;
    else if (e == "H") x.h = n;
    else if (e == "O") x.o = n;
    else return {};
  }
  return x;
}

std::string FormulaTras(const std::string& so, const std::string& etiqueta) {
  const std::size_t at = so.find(etiqueta + " ");
  if (at == std::string::npos) return "";
  const std::size_t from = at + etiqueta.size() + 1;
  return so.substr(from, so.find("&LF", from) - from);
}

// The smallest whole numbers in the ratio of the moles.
CHO Proporcion(double nC, double nH, double nO) {
  const double menor = nO > 0 ? std::min({nC, nH, nO}) : std::min(nC, nH);
  for (int k = 1; k <= 20; ++k) {
    const double x[3] = {k * nC / menor, k * nH / menor, k * nO / menor};
    if (std::all_of(std::begin(x), std::end(x), [](double v) { return std::fabs(v - std::round(v)) < 0.1; }))
      return {static_cast<int>(std::round(x[0])), static_cast<int>(std::round(x[1])),
              static_cast<int>(std::round(x[2]))};
  }
  return {};
}

TEST(DisFormulas, EmpiricalAndMolecularFormulasFollowFromTheData) {
  std::set<std::string> claves;
  for (uint64_t seed = 1; seed <= 30; ++seed) {
    for (int v = 0; v < 54; ++v) {
      const Problema p = Genera(8, v + 54 * static_cast<int>(seed % 3), 0, seed * 131 + v);
      SCOPED_TRACE(p.st + "\n" + p.so);
      const auto masas = MasasDadas(p.st);
      ASSERT_TRUE(masas.count("C") && masas.count("H"));
      const double C = masas.at("C"), H = masas.at("H");
      const double O = masas.count("O") ? masas.at("O") : 0;
      const std::string q = Linea(p.st, 0);
      const bool combustion = UsaClave("Comb_m_CH", q) || UsaClave("Comb_m_CHO", q);
      double nC = 0, nH = 0, nO = 0;
      const CHO e = LeeCHO(FormulaTras(p.so, Texto("Formula_empirica")));
      ASSERT_GT(e.c, 0);
      EXPECT_EQ(std::gcd(std::gcd(e.c, e.h), e.o), 1) << "reduced";
      const double Me = e.c * C + e.h * H + e.o * O;
      if (!combustion) {
        const auto pct = ConUnidad(q, "& %");
        ASSERT_TRUE(pct.size() == 1 || pct.size() == 2);
        EXPECT_EQ(pct.size() == 1, UsaClave("%_C_de_CH", q));
        const double pC = pct[0], pH = pct.size() == 2 ? pct[1] : 100 - pct[0];
        nC = pC / C, nH = pH / H, nO = pct.size() == 2 ? (100 - pC - pH) / O : 0;
        claves.insert(pct.size() == 1 ? "CH" : "CHO");
        CercaDe2Decimales(pC, 100 * e.c * C / Me);
        CercaDe2Decimales(pH, 100 * e.h * H / Me);
      } else {
        const bool conO = UsaClave("Comb_m_CHO", q);
        const double m = ConUnidad(q, "& g").at(0);
        const auto co2 = ConUnidad(q, "& g of CO_2"), h2o = ConUnidad(q, "& g of H_2O");
        ASSERT_FALSE(co2.empty() && h2o.empty());
        if (conO) {
          ASSERT_FALSE(co2.empty() || h2o.empty()) << "with oxygen both products are needed";
        }
        claves.insert(std::string("comb") + (co2.empty() ? "" : "CO2") + (h2o.empty() ? "" : "H2O"));
        const double mC = co2.empty() ? 0 : co2[0] * C / (C + 2 * O);
        const double mH = h2o.empty() ? 0 : h2o[0] * 2 * H / (2 * H + O);
        nC = (co2.empty() ? m - mH : mC) / C;
        nH = (h2o.empty() ? m - mC : mH) / H;
        nO = conO ? (m - mC - mH) / O : 0;
        if (!co2.empty()) {
          EXPECT_TRUE(Cerca(co2[0], m * e.c * (C + 2 * O) / Me, 6e-4));
        }
        if (!h2o.empty()) {
          EXPECT_TRUE(Cerca(h2o[0], m * e.h / 2.0 * (2 * H + O) / Me, 6e-4));
        }
      }
      const CHO r = Proporcion(nC, nH, nO);
      EXPECT_EQ(r.c, e.c);
      EXPECT_EQ(r.h, e.h);
      EXPECT_EQ(r.o, e.o);
      const std::string molecular = FormulaTras(p.so, Texto("Formula_molecular"));
      const bool pideMolecular = !UsaClave("Hallar_su_FEmpir", q);
      ASSERT_EQ(!molecular.empty(), pideMolecular);
      if (!pideMolecular) continue;
      const CHO mol = LeeCHO(molecular);
      const int k = mol.c / e.c;
      ASSERT_GE(k, 1);
      EXPECT_TRUE(mol.c == k * e.c && mol.h == k * e.h && mol.o == k * e.o) << "a multiple";
      EXPECT_EQ(mol.h % 2, 0) << "a real molecule";
      EXPECT_LE(mol.h, 2 * mol.c + 2) << "a real molecule";
      const double Mm = k * Me;
      const auto T = ConUnidad(q, "& \xB0" "C"), P = ConUnidad(q, "& atm");
      const auto gmol = ConUnidad(q, "& g/mol");
      double M = 0;
      if (UsaClave("FEmp_FMolec_de_MM", q)) {
        M = gmol.at(0);
        claves.insert("MM");
      } else if (UsaClave("Hallar_FEmp_FMolec", q)) {
        ASSERT_EQ(gmol.size(), 2u);
        EXPECT_TRUE(gmol[0] <= Mm && Mm <= gmol[1]);
        EXPECT_LT((k - 1) * Me, gmol[0]) << "one multiple only in the range";
        EXPECT_GT((k + 1) * Me, gmol[1]);
        claves.insert("range");
        continue;
      } else {
        const double R = NumerosTras(p.st, "R&-I = ").at(0);
        EXPECT_EQ(R, 0.082057);
        const double RT = R * (T.at(0) + 273.15);
        if (UsaClave("FEmp_FMolec_de_dPT_GAS", q)) {
          M = ConUnidad(q, "& g/L").at(0) * RT / P.at(0);
          claves.insert("dPT");
        } else {
          ASSERT_TRUE(UsaClave("FEmp_FMolec_de_mPVT_GAS", q));
          const auto g = ConUnidad(q, "& g");
          M = g.at(0) * RT / (P.at(0) * ConUnidad(q, "& L").at(0));
          claves.insert("mPVT");
        }
        EXPECT_TRUE(T[0] >= 70 && T[0] <= 160 && P[0] >= 0.9 && P[0] <= 2.5);
      }
      EXPECT_TRUE(Cerca(M, Mm, 2e-3)) << M << " vs " << Mm;
      EXPECT_EQ(std::lround(M / Me), k);
    }
  }
  // Every kind of datum turned up.
  for (const char* k : {"CH", "CHO", "combCO2", "combH2O", "combCO2H2O", "MM", "range", "dPT", "mPVT"})
    EXPECT_TRUE(claves.count(k)) << k;
}

}  // namespace
}  // namespace ss
