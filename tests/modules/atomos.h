// An atom and charge counter for equations in page markup, the tests' own
// (formulas such as "Al_2(SO_4)_3" or "C_4H_1_0", a two-digit subscript being
// written digit by digit, and ions):
// "Cr_2O#SPB(L2-#T)(7#SPB) + 14H^+ + 6e#SPB(L-#T)( #SPB) &ars 2Cr^3^+ + 7H_2O".
// Ions are written "Cu^2^+", "H^+" or with the construct that stacks the
// charge over the subscript; "e" alone is the electron; state marks such as
// "_(&+I_s&-I_)" are left out.
#pragma once
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <regex>
#include <vector>
#include <string>
#include <string_view>

#include "problems/texto.h"

namespace ss::test {

struct Carga {
  std::map<std::string, int> atomos;
  int carga = 0;
  bool operator==(const Carga&) const = default;
};

inline std::string Limpia(std::string_view t) {
  std::string s(t);
  for (std::string_view marca : {"_(&+I_s&-I_)", "_(&+I_g&-I_)", "_(&+I_l&-I_)", "_(&+I_ac&-I_)", "_(&+I_aq&-I_)"})
    for (std::size_t at; (at = s.find(marca)) != std::string::npos;) s.erase(at, marca.size());
  return s;
}

// "2-" or "3+" or "-" as a signed charge.
inline int LeeCarga(std::string_view c) {
  int n = 0;
  std::size_t i = 0;
  while (i < c.size() && std::isdigit(static_cast<unsigned char>(c[i]))) n = 10 * n + (c[i++] - '0');
  if (i >= c.size()) return 0;
  return (c[i] == '-' ? -1 : 1) * (n ? n : 1);
}

inline std::map<std::string, int> Grupo(std::string_view f, std::size_t& i, bool& ok) {
  std::map<std::string, int> a;
  auto numero = [&] {
    int n = 0;
    bool hay = false;
    while (i + 1 < f.size() && f[i] == '_' && std::isdigit(static_cast<unsigned char>(f[i + 1])))
      n = 10 * n + (f[i + 1] - '0'), i += 2, hay = true;
    return hay ? n : 1;
  };
  while (i < f.size() && f[i] != ')' && f[i] != '^' && f[i] != '#') {
    std::map<std::string, int> parte;
    if (f[i] == '(') {
      ++i;
      parte = Grupo(f, i, ok);
      if (i >= f.size() || f[i] != ')') return ok = false, a;
      ++i;
    } else if (std::isupper(static_cast<unsigned char>(f[i]))) {
      std::string e(1, f[i++]);
      while (i < f.size() && std::islower(static_cast<unsigned char>(f[i]))) e += f[i++];
      parte[e] = 1;
    } else {
      return ok = false, a;
    }
    const int n = numero();
    for (const auto& [e, k] : parte) a[e] += k * n;
  }
  return a;
}

// One species, without a coefficient.
inline Carga Especie(std::string_view markup) {
  const std::string f = Limpia(markup);
  Carga c;
  std::size_t i = 0;
  if (f.starts_with("e#") || f == "e" || f.starts_with("e^")) {
    c.carga = -1;
    return c;
  }
  bool ok = true;
  c.atomos = Grupo(f, i, ok);
  if (i < f.size() && f[i] == '#') {
    // "#SPB(L2-#T)(4#SPB)": the charge over a subscript.
    const std::size_t l = f.find("(L", i), t = f.find("#T)(", i), fin = f.find("#SPB)", t);
    if (l == std::string::npos || t == std::string::npos || fin == std::string::npos) {
      ADD_FAILURE() << "unreadable ion " << markup;
      return c;
    }
    c.carga = LeeCarga(std::string_view(f).substr(l + 2, t - l - 2));
    const std::string sub(Trim(std::string_view(f).substr(t + 4, fin - t - 4)));
    if (!sub.empty()) {
      // The subscript belongs to the last element written.
      std::string ultimo;
      for (std::size_t j = 0; j < i; ++j)
        if (std::isupper(static_cast<unsigned char>(f[j]))) {
          ultimo = f[j];
          if (j + 1 < i && std::islower(static_cast<unsigned char>(f[j + 1]))) ultimo += f[j + 1];
        }
      c.atomos[ultimo] += std::stoi(sub) - 1;
    }
    i = fin + 5;
  } else if (i < f.size() && f[i] == '^') {
    // "Cu^2^+", "H^+".
    std::string q;
    for (; i < f.size(); ++i)
      if (f[i] != '^') q += f[i];
    c.carga = LeeCarga(q);
  }
  if (!ok || i != f.size()) ADD_FAILURE() << "unreadable species " << markup;
  return c;
}

// One side: species with their coefficients, joined by " + ".
inline Carga LadoCarga(std::string_view lado) {
  Carga total;
  while (!lado.empty()) {
    const std::size_t mas = lado.find(" + ");
    std::string_view t = Trim(lado.substr(0, mas));
    int n = 0;
    while (!t.empty() && std::isdigit(static_cast<unsigned char>(t[0]))) n = 10 * n + (t[0] - '0'), t.remove_prefix(1);
    const Carga c = Especie(t);
    for (const auto& [e, k] : c.atomos) total.atomos[e] += k * (n ? n : 1);
    total.carga += c.carga * (n ? n : 1);
    if (mas == std::string_view::npos) break;
    lado.remove_prefix(mas + 3);
  }
  for (auto it = total.atomos.begin(); it != total.atomos.end();) it = it->second == 0 ? total.atomos.erase(it) : ++it;
  return total;
}

// The formulas of one side, in order, without their coefficients.
inline std::vector<std::string> Formulas(std::string_view lado) {
  std::vector<std::string> v;
  while (!lado.empty()) {
    const std::size_t mas = lado.find(" + ");
    std::string_view t = Trim(lado.substr(0, mas));
    while (!t.empty() && std::isdigit(static_cast<unsigned char>(t[0]))) t.remove_prefix(1);
    v.emplace_back(t);
    if (mas == std::string_view::npos) break;
    lado.remove_prefix(mas + 3);
  }
  return v;
}

// The coefficient of formula f in an equation (0 when it is not there).
inline int Coeficiente(std::string_view ecuacion, std::string_view f) {
  for (std::size_t a = ecuacion.find(f); a != std::string_view::npos; a = ecuacion.find(f, a + 1)) {
    std::size_t i = a;
    while (i > 0 && std::isdigit(static_cast<unsigned char>(ecuacion[i - 1]))) --i;
    const std::size_t fin = a + f.size();
    if ((i == 0 || ecuacion[i - 1] == ' ') && (fin == ecuacion.size() || ecuacion[fin] == ' '))
      return a == i ? 1 : std::stoi(std::string(ecuacion.substr(i, a - i)));
  }
  return 0;
}

// Atoms and charge the same on both sides of "&ars" (or " = "); and, when
// given, a stripped form with the same formulas and no coefficient.
inline void EsperaAjustada(std::string_view ecuacion, std::string_view sinAjustar = {}) {
  std::size_t f = ecuacion.find("&ars"), largo = 4;
  if (f == std::string_view::npos) f = ecuacion.find(" = "), largo = 3;
  ASSERT_NE(f, std::string_view::npos) << ecuacion;
  const Carga a = LadoCarga(ecuacion.substr(0, f)), b = LadoCarga(ecuacion.substr(f + largo));
  EXPECT_EQ(a.atomos, b.atomos) << ecuacion;
  EXPECT_EQ(a.carga, b.carga) << ecuacion;
  if (sinAjustar.empty()) return;
  const std::size_t g = sinAjustar.find("&ars");
  ASSERT_NE(g, std::string_view::npos) << sinAjustar;
  EXPECT_EQ(Formulas(ecuacion.substr(0, f)), Formulas(sinAjustar.substr(0, g))) << sinAjustar;
  EXPECT_EQ(Formulas(ecuacion.substr(f + largo)), Formulas(sinAjustar.substr(g + 4))) << sinAjustar;
  const std::string s(sinAjustar);
  EXPECT_FALSE(std::regex_search(s, std::regex(R"((^| )\d)"))) << sinAjustar;
}

}  // namespace ss::test
