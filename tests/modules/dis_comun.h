// Reading a problem of the gases, formulas and solutions module as a student
// reads the page: the values a statement gives with their units, the atomic
// masses it lists, the formulas it names. The checkers recompute every answer
// from these alone.
#pragma once
#include <gtest/gtest.h>
#include <cctype>
#include <cmath>
#include <functional>
#include <map>
#include <regex>
#include <string>
#include <vector>
#include "modules/modulos.h"
#include "problems/generador.h"
#include "problems/idioma.h"
#include "problems/texto.h"

namespace ss::test {
// Every number written in a markup text, in order: "&." is the decimal mark,
// "_ " between digits a group separator, "&E" an exponent of ten, a "-" right
// before the digits (and not after a letter or digit) a sign. Digits written as
// sub- or superscripts ("H_2O", "Ca^2^+") are part of a formula, not numbers.
inline std::vector<double> Numeros(const std::string& m) {
  static const std::regex n(R"((^|[^_^\d])(-?)(\d+(?:_ \d+)*)(?:&\.(\d+(?:_ \d+)*))?(?:&E([-+]?\d+))?)");
  std::vector<double> out;
  for (std::sregex_iterator it(m.begin(), m.end(), n), end; it != end; ++it) {
    const std::string entero = std::regex_replace((*it)[3].str(), std::regex("_ "), "");
    const std::string decimales = std::regex_replace((*it)[4].str(), std::regex("_ "), "");
    double v = std::stod(entero + (decimales.empty() ? "" : "." + decimales));
    if ((*it)[5].matched) v *= std::pow(10.0, std::stod((*it)[5]));
    const bool tras = !(*it)[1].str().empty() && std::isalnum(static_cast<unsigned char>((*it)[1].str()[0]));
    out.push_back((*it)[2].length() && !tras ? -v : v);
  }
  return out;
}

// The text after `marca` up to the line's end, and its numbers.
inline std::string Tras(const std::string& m, const std::string& marca) {
  const std::size_t at = m.find(marca);
  return at == std::string::npos ? "" : m.substr(at + marca.size(), m.find("&LF", at + marca.size()) - at - marca.size());
}
inline std::vector<double> NumerosTras(const std::string& m, const std::string& marca) { return Numeros(Tras(m, marca)); }

inline bool Cerca(double a, double b, double rel) {
  return std::fabs(a - b) <= rel * std::max(std::fabs(a), std::fabs(b)) + 1e-12;
}

inline Mensajes& Textos() {
  static Mensajes m(SS_SOURCE_DIR);
  return m;
}

inline std::string Texto(std::string_view clave) {
  GenContext g(&Textos(), Aleatorio(1));
  return g.MsgQUI(clave);
}

struct Problema {
  std::string st, so;
};

// One problem of generator `gen` of a module from the random seed `siembra`:
// every key found, every placeholder filled.
inline Problema GeneraEn(std::string_view modulo, int gen, int seqB, int items, uint64_t siembra) {
  GenContext g(&Textos(), Aleatorio(siembra));
  Problema p;
  GeneraProblema(g, modulo, ZeroPadCut(gen, 3) + "000" + ZeroPadCut(seqB, 4) + ZeroPadCut(items, 2) + "0301", p.st,
                 p.so);
  EXPECT_FALSE(std::regex_search(p.st + p.so, std::regex("%[A-Za-z0-9_]+%|ATEM__|<Error|<ERROR"))) << p.st << p.so;
  return p;
}

inline Problema Genera(int gen, int seqB, int items, uint64_t semilla) {
  Problema p = GeneraEn("ANEU_QUIM_DIS", gen, seqB, items, semilla * 104729 + static_cast<uint64_t>(gen));
  EXPECT_TRUE(p.st.ends_with("&LF") && p.so.ends_with("&LF") && p.so.size() > 3) << p.st;
  return p;
}

// The values of a text that carry a unit ("12&.5& g/mL"), in order, by unit.
class Datos {
 public:
  explicit Datos(const std::string& t) {
    static const std::regex dato(R"((-?\d[\d_ ]*(?:&\.\d+)?(?:&E-?\d+)?)& ([^ ,;&]+))");
    for (std::sregex_iterator it(t.begin(), t.end(), dato), end; it != end; ++it) {
      std::string u = (*it)[2];
      while (u.size() > 1 && std::string_view(".)?").find(u.back()) != std::string_view::npos) u.pop_back();
      v_.push_back({Numeros((*it)[1].str()).at(0), u});
    }
  }
  double En(const std::string& u, int k = 0) const {
    for (const auto& [x, w] : v_)
      if (w == u && k-- == 0) return x;
    return NAN;
  }
  bool Tiene(const std::string& u) const { return !std::isnan(En(u)); }
  const std::vector<std::pair<double, std::string>>& Todos() const { return v_; }

 private:
  std::vector<std::pair<double, std::string>> v_;
};

// The atomic masses listed under a statement: "Na=23" or "H = 1&.008".
inline std::map<std::string, double> Masas(const std::string& st) {
  std::map<std::string, double> m;
  const std::size_t at = st.find("(g/mol)&LF");
  if (at == std::string::npos) return m;
  const std::size_t ini = st.rfind("&LF", at);
  const std::string linea = st.substr(ini == std::string::npos ? 0 : ini, at - ini);
  static const std::regex par(R"(([A-Z][a-z]?) ?= ?(\d+(?:&\.\d+)?))");
  for (std::sregex_iterator it(linea.begin(), linea.end(), par), end; it != end; ++it)
    m[(*it)[1]] = Numeros((*it)[2].str())[0];
  return m;
}

// A formula in markup ("Ca_3(PO_4)_2") as element counts in order of
// appearance; empty if it is not one.
using Composicion = std::vector<std::pair<std::string, int>>;
inline bool LeeFormula(const std::string& f, std::size_t& i, Composicion& out, int factor) {
  while (i < f.size() && f[i] != ')') {
    Composicion parte;
    if (f[i] == '(') {
      ++i;
      if (!LeeFormula(f, i, parte, 1) || i++ >= f.size()) return false;
    } else if (std::isupper(static_cast<unsigned char>(f[i]))) {
      std::string e(1, f[i++]);
      if (i < f.size() && std::islower(static_cast<unsigned char>(f[i]))) e += f[i++];
      parte.push_back({e, 1});
    } else if (f[i] == '-') {
      ++i;
      continue;
    } else {
      return false;
    }
    std::string n;
    for (; i + 1 < f.size() && f[i] == '_' && std::isdigit(static_cast<unsigned char>(f[i + 1])); i += 2) n += f[i + 1];
    for (auto& [e, k] : parte) {
      k *= factor * (n.empty() ? 1 : std::stoi(n));
      auto it = std::find_if(out.begin(), out.end(), [&](const auto& x) { return x.first == e; });
      if (it == out.end()) out.push_back({e, k});
      else it->second += k;
    }
  }
  return true;
}
inline Composicion Formula(const std::string& f) {
  Composicion out;
  std::size_t i = 0;
  return LeeFormula(f, i, out, 1) && i == f.size() ? out : Composicion{};
}
inline double MasaMolar(const Composicion& c, const std::map<std::string, double>& masas) {
  double M = 0;
  for (const auto& [e, n] : c) M += n * (masas.count(e) ? masas.at(e) : NAN);
  return M;
}

// The formulas in brackets of a text ("glucose (C_6H_1_2O_6)"), in order.
inline std::vector<std::string> FormulasEntreParentesis(const std::string& t) {
  std::vector<std::string> out;
  for (std::size_t a = t.find(" ("); a != std::string::npos; a = t.find(" (", a + 1)) {
    int nivel = 0;
    for (std::size_t i = a + 1; i < t.size(); ++i) {
      nivel += t[i] == '(' ? 1 : t[i] == ')' ? -1 : 0;
      if (nivel != 0) continue;
      const std::string f = t.substr(a + 2, i - a - 2);
      if (!Formula(f).empty()) out.push_back(f);
      break;
    }
  }
  return out;
}

// The numbers an answer prints, past its tab stops, each with half a unit of
// the last digit it shows.
struct Mostrado {
  double valor, media;
};
inline std::vector<Mostrado> Respuestas(std::string so) {
  so = std::regex_replace(so, std::regex("&SP=\\d+:"), " ");
  const std::vector<double> v = Numeros(so);
  static const std::regex num(R"((?:^|[^_^\d])\d+(?:&\.(\d+))?(?:&E([-+]?\d+))?)");
  std::vector<Mostrado> out;
  for (std::sregex_iterator it(so.begin(), so.end(), num), end; it != end && out.size() < v.size(); ++it)
    out.push_back({v[out.size()], 0.5 * std::pow(10.0, ((*it)[2].matched ? std::stod((*it)[2]) : 0) - (*it)[1].length())});
  EXPECT_EQ(out.size(), v.size());
  return out;
}

// An answer rounded from the value recomputed: within half a unit of its last
// digit (or `abs` for answers read off rounded data), and never with fewer
// than three significant figures (within 0.6 %).
inline void EsperaCerca(const Mostrado& m, double calculado, double abs = 0) {
  const double tol = std::max(abs, std::min(0.006 * std::fabs(calculado), 1.01 * m.media));
  EXPECT_LE(std::fabs(m.valor - calculado), tol + 1e-9) << m.valor << " vs " << calculado;
}
}  // namespace ss::test
