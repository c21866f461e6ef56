// The tests' own reader of organic names: a name gives a molecular formula and
// the parts it numbers. Every piece adds carbons C, double-bond equivalents D
// (a ring or a pi bond), O, N and halogens X, and the compound has
// H = 2C + 2 + N - 2D - X. A branch replaces a hydrogen, so "methyl" adds one
// carbon and no D. Locants must be as many as the multiplier of the piece they
// number and lie on the parent; the "e" of "-ane", "-ene", "-yne" drops only
// before a vowel; a root takes an "a" only before a multiplied ending.
#pragma once

#include <map>
#include <regex>
#include <string>
#include <vector>

#include "problems/texto.h"
#include "tests/modules/organica.h"

namespace ss::test {

struct Morfema {
  std::string t;
  char k;  // G group, R chain root, P whole parent, C cyclo, S numbered ending, A "an", E "e" or "a"
  int c = 0, d = 0, o = 0, n = 0;
  std::string x = {};
};

inline const std::vector<Morfema>& Morfemas() {
  static const std::vector<Morfema> v = {
      {"methyl", 'G', 1}, {"ethyl", 'G', 2}, {"propyl", 'G', 3}, {"butyl", 'G', 4}, {"phenyl", 'G', 6, 4},
      {"cyclopropyl", 'G', 3, 1}, {"cyclobutyl", 'G', 4, 1}, {"cyclopentyl", 'G', 5, 1}, {"cyclohexyl", 'G', 6, 1},
      {"fluoro", 'G', 0, 0, 0, 0, "F"}, {"chloro", 'G', 0, 0, 0, 0, "Cl"}, {"bromo", 'G', 0, 0, 0, 0, "Br"},
      {"iodo", 'G', 0, 0, 0, 0, "I"}, {"hydroxy", 'G', 0, 0, 1}, {"oxo", 'G', 0, 1, 1}, {"amino", 'G', 0, 0, 0, 1},
      {"nitro", 'G', 0, 1, 2, 1}, {"cyclo", 'C', 0, 1}, {"meth", 'R', 1}, {"eth", 'R', 2}, {"prop", 'R', 3},
      {"but", 'R', 4}, {"pent", 'R', 5}, {"hex", 'R', 6}, {"hept", 'R', 7}, {"oct", 'R', 8}, {"non", 'R', 9},
      {"dec", 'R', 10}, {"benzene", 'P', 6, 4}, {"toluene", 'P', 7, 4}, {"xylene", 'P', 8, 4},
      {"mesitylene", 'P', 9, 4}, {"phenol", 'P', 6, 4, 1}, {"aniline", 'P', 6, 4, 0, 1}, {"benzoic", 'P', 7, 5, 2},
      {"benzoate", 'P', 7, 5, 2}, {"benzamide", 'P', 7, 5, 1, 1}, {"amine", 'P', 0, 0, 0, 1}, {"an", 'A'},
      {"en", 'S', 0, 1}, {"yn", 'S', 0, 2}, {"e", 'E'}, {"a", 'E'}, {"al", 'S', 0, 1, 1}, {"one", 'S', 0, 1, 1},
      {"ol", 'S', 0, 0, 1}, {"oic", 'S', 0, 1, 2}, {"oate", 'S', 0, 1, 2}, {"amide", 'S', 0, 1, 1, 1},
      {"nitrile", 'S', 0, 2, 0, 1}};
  return v;
}

struct Parte {  // a numbered piece: a branch by its prefix, "=" or "#" at its lower carbon
  int locante;
  std::string que;
  auto operator<=>(const Parte&) const = default;
};

struct Nombre {
  Atomos formula;
  int cadena = 0;  // carbons of the parent
  std::vector<Parte> partes;
  std::string error;  // empty when the name reads
};

// One word; `grupos`: a word of branches only (esters, ethers, "methyl alcohol"), which counts them.
inline void LeePalabra(const std::string& w, Nombre& r, int& c, int& d, int* grupos) {
  static const std::regex locante(R"(^-?(\d+(,\d+)*|n(,n)*|[omp])-)");
  std::vector<int> locs;
  int mult = 1, raices = 0, largo = 0;
  std::string previo = "^";  // the piece before: an/en/yn still open, "e", a root, a multiplier
  auto falla = [&](const std::string& e) { if (r.error.empty()) r.error = e + " in " + w; };
  for (std::size_t i = 0; i < w.size() && r.error.empty();) {
    std::smatch m;
    const std::string resto = w.substr(i);
    if (std::regex_search(resto, m, locante)) {
      if (!locs.empty()) falla("two locant groups");
      static const std::regex numero("\\d+|n");
      for (std::sregex_iterator j(resto.begin(), resto.begin() + m.length(), numero), fin; j != fin; ++j)
        locs.push_back((*j)[0] == "n" ? 0 : std::stoi((*j)[0]));
      i += static_cast<std::size_t>(m.length());
      continue;
    }
    int veces = 0;
    for (const auto& [p, k] : {std::pair<std::string, int>{"di", 2}, {"tri", 3}, {"tetra", 4}})
      if (resto.starts_with(p)) veces = k, i += p.size();
    const Morfema* p = nullptr;
    for (const Morfema& x : Morfemas())
      if (w.compare(i, x.t.size(), x.t) == 0 && (!p || x.t.size() > p->t.size()) &&
          !(x.t == "en" && w.compare(i, 8, "enitrile") == 0))  // "-anenitrile"
        p = &x;
    if (!p) return falla("unknown piece at " + w.substr(i));
    const std::string t = veces ? std::string("d") : p->t;  // the multiplier starts with a consonant
    const bool vocal = std::string("aeiouy").find(t[0]) != std::string::npos;
    if (previo == "open" ? (t != "e" && !vocal) : t == "e") falla("wrong elision");
    if (previo == "e" && vocal) falla("an 'e' before a vowel");
    if (previo == "R" && (veces || (p->t != "an" && p->t != "en" && p->t != "yn" && p->t != "a"))) falla("bare root");
    if ((p->t == "a" && previo != "R") || (previo == "a" && !veces)) falla("stray 'a'");
    if (veces && p->k != 'G' && p->k != 'S') falla("multiplier before " + p->t);
    mult = veces ? veces : 1;
    if (p->k == 'G' || p->k == 'S') {
      if (!locs.empty() && static_cast<int>(locs.size()) != mult) falla("locants do not match " + p->t);
      for (int k = 0; k < mult; ++k)
        r.partes.push_back({locs.empty() ? 0 : locs[static_cast<std::size_t>(k)],
                            p->t == "en" ? "=" : p->t == "yn" ? "#" : p->t});
      for (int l : locs) largo = std::max(largo, l);
      locs.clear();
      if (grupos) *grupos += mult;
    }
    if (p->k == 'R' || p->k == 'P') ++raices, r.cadena = p->k == 'R' ? p->c : 6;
    else if (p->k != 'C' && (p->k == 'G') != (raices == 0)) falla("piece out of place");
    c += mult * p->c, d += mult * p->d;
    r.formula["O"] += mult * p->o, r.formula["N"] += mult * p->n;
    if (!p->x.empty()) r.formula[p->x] += mult;
    previo = p->k == 'R' ? "R" : p->t == "an" || p->t == "en" || p->t == "yn" ? "open" : p->k == 'E' ? p->t : "-";
    i += p->t.size();
  }
  if (previo == "open" || previo == "R" || !locs.empty()) falla("unfinished word");
  if (raices != (grupos ? 0 : 1)) falla("a parent missing or too many");
  if (largo > r.cadena) falla("locant off the parent");
}

// A name as the tables write it: markup and case dropped, trivial names, and
// each "A / B" or "A or B" alternative read; all must be the same compound.
inline std::vector<Nombre> LeeNombres(const std::string& dado) {
  static const std::map<std::string, std::string> triviales = {
      {"isobutane", "methylpropane"}, {"isopentane", "methylbutane"}, {"neopentane", "dimethylpropane"},
      {"ethylene", "ethene"}, {"acetylene", "ethyne"}, {"tnt", "2,4,6-trinitrotoluene"},
      {"formic acid", "methanoic acid"}, {"acetic acid", "ethanoic acid"}, {"propionic acid", "propanoic acid"},
      {"butyric acid", "butanoic acid"}, {"valeric acid", "pentanoic acid"}, {"oxalic acid", "ethanedioic acid"},
      {"malonic acid", "propanedioic acid"}, {"succinic acid", "butanedioic acid"},
      {"glutaric acid", "pentanedioic acid"}, {"pyruvic acid", "2-oxopropanoic acid"}, {"acrolein", "propenal"},
      {"crotonaldehyde", "2-butenal"}, {"acetone", "propanone"}, {"ethylene glycol", "1,2-ethanediol"},
      {"glycerol", "1,2,3-propanetriol"}, {"resorcinol", "1,3-benzenediol"}, {"ether", "diethyl ether"}};
  const std::string todo = LCase(std::regex_replace(dado, std::regex("&[+-]I|&FS=\\d+:"), ""));
  std::vector<Nombre> v;
  static const std::regex separa(" / | or ");
  for (std::sregex_token_iterator it(todo.begin(), todo.end(), separa, -1), fin; it != fin; ++it) {
    std::string n = *it;
    if (todo.ends_with(" acid") && !n.ends_with(" acid")) n += " acid";  // "Ethanoic / acetic acid"
    if (triviales.contains(n)) n = triviales.at(n);
    std::vector<std::string> w;
    for (std::size_t a = 0, b = 0; b != std::string::npos; a = b + 1)
      w.push_back(n.substr(a, (b = n.find(' ', a)) - a));
    Nombre r;
    int c = 0, d = 0, grupos = 0;
    const std::string& u = w.back();
    if (w.size() == 2 && u == "acid" && w[0].ends_with("oic")) LeePalabra(w[0], r, c, d, nullptr);
    else if ((u == "ether" && w.size() <= 3) || (u == "alcohol" && w.size() == 2)) {
      for (std::size_t k = 0; k + 1 < w.size(); ++k) LeePalabra(w[k], r, c, d, &grupos);
      r.formula["O"] += 1;
      if (grupos != (u == "ether" ? 2 : 1) || (u == "ether" && w.size() == 2 && !w[0].starts_with("di")))
        r.error += "wrong branches";
    } else if (w.size() == 2 && u.ends_with("oate")) {
      LeePalabra(w[0], r, c, d, &grupos), LeePalabra(u, r, c, d, nullptr);
      if (grupos != 1) r.error += "wrong branches";
    } else if (w.size() == 1 && !u.ends_with("oic") && !u.ends_with("oate")) LeePalabra(u, r, c, d, nullptr);
    else r.error = "words out of place";
    r.formula["C"] += c;
    int x = 0;
    for (const auto& [e, k] : r.formula) x += e == "F" || e == "Cl" || e == "Br" || e == "I" ? k : 0;
    r.formula["H"] = 2 * c + 2 + r.formula["N"] - 2 * d - x;
    for (auto i = r.formula.begin(); i != r.formula.end();) i = i->second ? std::next(i) : r.formula.erase(i);
    v.push_back(r);
  }
  return v;
}

}  // namespace ss::test
