// The tests' own reading of a drawn organic structure in page markup: the
// molecular formula it shows. Chain text counts as written ("CH_3-(CH_2)_4-",
// "COOH", "C&#N"); an atom with bonds up and down (#UDB) counts its atom and
// the groups at the ends of its bonds; a ring (#A3V..#A9D) has a carbon at
// every vertex carrying the hydrogens its bonds leave free, and a benzene ring
// (#BCV, #BCH) one hydrogen at every vertex without a substituent.
#pragma once

#include <cctype>
#include <map>
#include <string>
#include <string_view>

namespace ss::test {

using Atomos = std::map<std::string, int>;

inline void Suma(Atomos& a, const Atomos& b, int veces = 1) {
  for (const auto& [e, n] : b) a[e] += n * veces;
}

// "C5H12O" for messages, carbon and hydrogen first.
inline std::string TextoFormula(const Atomos& a) {
  std::string t;
  auto pon = [&](const std::string& e, int n) {
    if (n) t += e + (n > 1 ? std::to_string(n) : "");
  };
  for (const char* e : {"C", "H"})
    if (auto it = a.find(e); it != a.end()) pon(e, it->second);
  for (const auto& [e, n] : a)
    if (e != "C" && e != "H") pon(e, n);
  return t;
}

namespace organica {

// The end of the construct opened at `desde` ("#R1(" ... "#R1)"), nested ones
// of the same tag skipped; npos if it is not closed.
inline std::size_t Cierre(std::string_view s, std::size_t desde, std::string_view tag) {
  const std::string abre = std::string(tag) + "(", cierra = std::string(tag) + ")";
  int nivel = 0;
  for (std::size_t i = desde; i < s.size(); ++i) {
    if (s.compare(i, abre.size(), abre) == 0) ++nivel, i += abre.size() - 1;
    else if (s.compare(i, cierra.size(), cierra) == 0 && --nivel == 0) return i;
  }
  return std::string_view::npos;
}

// Digits written as subscripts one by one: "_1_2" is 12.
inline int Subindice(std::string_view s, std::size_t& i) {
  int n = 0;
  bool hay = false;
  while (i + 1 < s.size() && s[i] == '_' && std::isdigit(static_cast<unsigned char>(s[i + 1])))
    n = 10 * n + (s[i + 1] - '0'), i += 2, hay = true;
  return hay ? n : 1;
}

Atomos Texto(std::string_view s, bool& ok);

// The labels "#Rk(...#Rk)" of a ring or a #UDB, by k.
inline std::map<int, Atomos> Rotulos(std::string_view s, bool& ok) {
  std::map<int, Atomos> r;
  for (std::size_t i = 0; (i = s.find("#R", i)) != std::string_view::npos;) {
    if (i + 3 >= s.size() || !std::isdigit(static_cast<unsigned char>(s[i + 2])) || s[i + 3] != '(') {
      ++i;
      continue;
    }
    const std::string tag(s.substr(i, 3));
    const std::size_t fin = Cierre(s, i, tag);
    if (fin == std::string_view::npos) return ok = false, r;
    Suma(r[s[i + 2] - '0'], Texto(s.substr(i + 4, fin - i - 4), ok));
    i = fin + 4;
  }
  return r;
}

inline int Orden(char c) { return c == 'S' ? 1 : c == 'D' ? 2 : c == 'T' ? 3 : 0; }

// A ring's inside: bond letters, "&EC=" side letters, labels.
inline Atomos Anillo(std::string_view dentro, int lados, bool benceno, bool& ok) {
  std::string enlaces, aristas;
  std::size_t i = 0;
  while (i < dentro.size() && std::string_view("SDX").find(dentro[i]) != std::string_view::npos)
    enlaces += dentro[i++];
  if (dentro.compare(i, 4, "&EC=") == 0) {
    i += 4;
    while (i < dentro.size() && std::string_view("SDT").find(dentro[i]) != std::string_view::npos)
      aristas += dentro[i++];
    if (i < dentro.size() && dentro[i] == ':') ++i;
  }
  enlaces.resize(static_cast<std::size_t>(lados), 'X');
  aristas.resize(static_cast<std::size_t>(lados), 'S');
  Atomos a;
  for (const auto& [k, rot] : Rotulos(dentro.substr(i), ok)) {
    if (k < 1 || k > lados) ok = false;
    Suma(a, rot);
  }
  a["C"] += lados;
  for (int k = 0; k < lados; ++k) {
    const int exo = Orden(enlaces[static_cast<std::size_t>(k)]);
    const int libres = benceno ? 1 - exo
                               : 4 - exo - Orden(aristas[static_cast<std::size_t>(k)]) -
                                     Orden(aristas[static_cast<std::size_t>((k + lados - 1) % lados)]);
    if (libres < 0) ok = false;
    a["H"] += std::max(libres, 0);
  }
  return a;
}

inline Atomos Texto(std::string_view s, bool& ok) {
  Atomos a;
  std::size_t i = 0;
  while (i < s.size()) {
    const char c = s[i];
    if (s.compare(i, 5, "#UDB(") == 0) {
      const std::size_t fin = Cierre(s, i, "#UDB");
      if (fin == std::string_view::npos || fin < i + 8) return ok = false, a;
      a[std::string(1, s[i + 5])] += 1;
      for (const auto& [k, rot] : Rotulos(s.substr(i + 8, fin - i - 8), ok)) Suma(a, rot);
      i = fin + 5;
    } else if (s.compare(i, 3, "#BC") == 0 || (s.compare(i, 2, "#A") == 0 && i + 4 < s.size() &&
                                                std::isdigit(static_cast<unsigned char>(s[i + 2])))) {
      const std::string tag(s.substr(i, 4));
      const std::size_t fin = Cierre(s, i, tag);
      if (fin == std::string_view::npos) return ok = false, a;
      const bool benceno = tag[1] == 'B';
      Suma(a, Anillo(s.substr(i + 5, fin - i - 5), benceno ? 6 : tag[2] - '0', benceno, ok));
      i = fin + 5;
    } else if (s.compare(i, 4, "#LP(") == 0 || s.compare(i, 4, "#LP)") == 0) {
      i += 4;
    } else if (c == '&') {
      // Markup codes: bonds "&=" "&#", switches "&+I", placed codes "&SP=10:".
      if (i + 1 < s.size() && std::string_view("=#Q").find(s[i + 1]) != std::string_view::npos) i += 2;
      else if (i + 1 < s.size() && (s[i + 1] == '+' || s[i + 1] == '-')) i += 3;
      else if (const std::size_t dos = s.find(':', i); s.compare(i, 4, "&SP=") == 0 || s.compare(i, 4, "&FS=") == 0)
        i = dos == std::string_view::npos ? s.size() : dos + 1;
      else {
        ++i;
        while (i < s.size() && std::isalpha(static_cast<unsigned char>(s[i]))) ++i;
      }
    } else if (c == '(') {
      std::size_t nivel = 1, j = i + 1;
      for (; j < s.size() && nivel; ++j) nivel += s[j] == '(' ? 1 : s[j] == ')' ? -1 : 0;
      if (nivel) return ok = false, a;
      const Atomos dentro = Texto(s.substr(i + 1, j - i - 2), ok);
      i = j;
      Suma(a, dentro, Subindice(s, i));
    } else if (std::isupper(static_cast<unsigned char>(c))) {
      std::string e(1, c);
      ++i;
      if (i < s.size() && std::islower(static_cast<unsigned char>(s[i]))) e += s[i++];
      a[e] += Subindice(s, i);
    } else if (c == '^') {
      i += 2;  // a charge
    } else {
      ++i;  // bonds "-", blanks, the chiral mark "*"
    }
  }
  return a;
}

}  // namespace organica

// The molecular formula of a drawn structure; `ok` turns false on a construct
// that is not closed or a ring atom with more bonds than four.
inline Atomos FormulaMolecular(std::string_view estructura, bool* ok = nullptr) {
  bool bien = true;
  Atomos a = organica::Texto(estructura, bien);
  for (auto it = a.begin(); it != a.end();) it = it->second == 0 ? a.erase(it) : std::next(it);
  if (ok) *ok = bien;
  return a;
}

}  // namespace ss::test
