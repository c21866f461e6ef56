// Generators 1, 4 and 8: quantum numbers and orbitals, the electron
// configuration of an element with its period and group, and the compound
// two elements form when each completes its octet.
#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <vector>

#include "modules/ANEU_QUIM_EAT/eat.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::eat {
namespace {

constexpr std::string_view kLetrasNC = "spdfghik";  // l = 0..7 in the quantum-number exercises
constexpr std::string_view kLetras = "spdfg";       // subshells of a configuration
constexpr std::string_view kLetrasItem = "abcdefghijklmnopqrstuvwxyz";

int Sorteo(GenContext& g, int a, int b) { return static_cast<int>(AleatorioEn(g.rnd, a, b, 1, 1)); }

std::string Orbital(int n, int l) { return NumTexto(n) + "&+I" + std::string(1, kLetrasNC[l]) + "&-I"; }

std::string Superindice(int x) {
  std::string s;
  for (char c : std::to_string(x)) s += std::string("^") + c;
  return s;
}

// ---- Electron configurations ----

struct Subcapa {
  int n, l, e;
};

// The ground states that break the filling order (atomic spectra tables): the
// electrons moved from one subshell to another with respect to that order.
struct Excepcion {
  int z;
  int n1, l1, n2, l2, e;  // e electrons go from (n1, l1) to (n2, l2)
};
constexpr Excepcion kExcepciones[] = {
    {24, 4, 0, 3, 2, 1},  // Cr [Ar] 3d5 4s1
    {29, 4, 0, 3, 2, 1},  // Cu [Ar] 3d10 4s1
    {41, 5, 0, 4, 2, 1},  // Nb [Kr] 4d4 5s1
    {42, 5, 0, 4, 2, 1},  // Mo [Kr] 4d5 5s1
    {44, 5, 0, 4, 2, 1},  // Ru [Kr] 4d7 5s1
    {45, 5, 0, 4, 2, 1},  // Rh [Kr] 4d8 5s1
    {46, 5, 0, 4, 2, 2},  // Pd [Kr] 4d10
    {47, 5, 0, 4, 2, 1},  // Ag [Kr] 4d10 5s1
    {57, 4, 3, 5, 2, 1},  // La [Xe] 5d1 6s2
    {58, 4, 3, 5, 2, 1},  // Ce [Xe] 4f1 5d1 6s2
    {64, 4, 3, 5, 2, 1},  // Gd [Xe] 4f7 5d1 6s2
    {78, 6, 0, 5, 2, 1},  // Pt [Xe] 4f14 5d9 6s1
    {79, 6, 0, 5, 2, 1},  // Au [Xe] 4f14 5d10 6s1
    {89, 5, 3, 6, 2, 1},  // Ac [Rn] 6d1 7s2
    {90, 5, 3, 6, 2, 2},  // Th [Rn] 6d2 7s2
    {91, 5, 3, 6, 2, 1},  // Pa [Rn] 5f2 6d1 7s2
    {92, 5, 3, 6, 2, 1},  // U  [Rn] 5f3 6d1 7s2
    {93, 5, 3, 6, 2, 1},  // Np [Rn] 5f4 6d1 7s2
    {96, 5, 3, 6, 2, 1},  // Cm [Rn] 5f7 6d1 7s2
};

// Subshells in the order they fill: rising n + l, lower n first at a tie.
std::vector<std::pair<int, int>> OrdenLlenado() {
  std::vector<std::pair<int, int>> o;
  for (int suma = 1; suma <= 8; ++suma)
    for (int l = std::min(suma - 1, 4); l >= 0; --l)
      if (suma - l > l) o.emplace_back(suma - l, l);
  return o;
}

// The filling order applied to z electrons (no exceptions).
std::vector<Subcapa> Madelung(int z) {
  std::vector<Subcapa> v;
  for (auto [n, l] : OrdenLlenado()) {
    if (z == 0) break;
    const int e = std::min(z, 4 * l + 2);
    v.push_back({n, l, e});
    z -= e;
  }
  return v;
}

struct Configuracion {
  int z = 0;
  std::string nucleo;          // "[Ar]" or empty
  std::vector<Subcapa> capas;  // the true ground state beyond the core, by shell
  Subcapa ultima{};            // the subshell filled last in the filling order
  int periodo = 0;
  int capaExterna = 0;  // electrons of the outer shell (s + p of the period)
  std::string texto;    // markup
};

Configuracion Configura(int z) {
  Configuracion c;
  c.z = z;
  std::vector<Subcapa> v = Madelung(z);
  c.ultima = v.back();
  for (const Subcapa& s : v) c.periodo = std::max(c.periodo, s.n);
  for (const Subcapa& s : v)
    if (s.n == c.periodo) c.capaExterna += s.e;
  for (const Excepcion& x : kExcepciones)
    if (x.z == z) {
      for (Subcapa& s : v)
        if (s.n == x.n1 && s.l == x.l1) s.e -= x.e;
      auto it = std::find_if(v.begin(), v.end(), [&](const Subcapa& s) { return s.n == x.n2 && s.l == x.l2; });
      if (it == v.end()) v.push_back({x.n2, x.l2, x.e});
      else it->e += x.e;
    }
  // The noble-gas core: only above argon; He and Ne never stand as cores.
  static constexpr std::string_view kNucleos = "ArKrXeRn";
  constexpr int kZNucleo[] = {18, 36, 54, 86};
  int core = -1;
  for (int k = 0; k < 4; ++k)
    if (z > kZNucleo[k]) core = k;
  const int zCore = core < 0 ? 0 : kZNucleo[core];
  if (core >= 0) c.nucleo = "[" + std::string(kNucleos.substr(2 * core, 2)) + "]";
  const std::vector<Subcapa> delNucleo = Madelung(zCore);
  for (const Subcapa& s : v) {
    const bool enNucleo = std::any_of(delNucleo.begin(), delNucleo.end(),
                                      [&](const Subcapa& k) { return k.n == s.n && k.l == s.l; });
    if (!enNucleo && s.e > 0) c.capas.push_back(s);
  }
  std::sort(c.capas.begin(), c.capas.end(),
            [](const Subcapa& a, const Subcapa& b) { return 100 + 10 * a.n + a.l < 100 + 10 * b.n + b.l; });
  c.texto = c.nucleo.empty() ? "" : c.nucleo + "  ";
  for (const Subcapa& s : c.capas)
    c.texto += NumTexto(s.n) + "&+I" + std::string(1, kLetras[s.l]) + "&-I^ " + Superindice(s.e) + "  ";
  c.texto = std::string(Trim(c.texto));
  return c;
}

// The group as the last subshell filled tells it.
std::string Grupo(GenContext& g, const Configuracion& c) {
  if (c.z == 2) return g.MsgQUI("Grupo18");
  if (c.ultima.l == 0) return g.MsgQUI(c.ultima.e == 1 ? "Grupo1" : "Grupo2");
  if (c.ultima.l == 1) return g.MsgQUI("Grupo" + std::to_string(10 + c.capaExterna));
  std::string t = g.MsgQUI("GrupoMT");
  ReplaceAll(t, "%B%", std::string(1, kLetras[c.ultima.l]));
  return t;
}

// ---- Quantum numbers ----

struct SetNC {
  int n, l;
  int m2, s2;  // m and s doubled, so that halves are whole
};

std::string Medios(int x2) { return FraccionTexto(x2, 2); }

std::string TextoSet(const SetNC& q) {
  return "(" + NumTexto(q.n) + ",  " + NumTexto(q.l) + ",  " + Medios(q.m2) + ",  " + Medios(q.s2) + ")";
}

// A set drawn by the code bands: 1-50 impossible for one reason each,
// the rest possible. Returns the key of the reason.
std::string_view SetPorCodigo(GenContext& g, int codigo, SetNC& q) {
  q.n = Sorteo(g, 1, 8);
  q.l = Sorteo(g, 0, q.n - 1);
  q.m2 = 2 * Sorteo(g, -q.l, q.l);
  q.s2 = AzarSupera(g.rnd, 0.5) ? 1 : -1;
  if (codigo <= 5) {
    q.n = 0, q.l = 0, q.m2 = 0;
    return "EAT_NumCuan_IMPOS_n_no_0";
  }
  if (codigo <= 10) {
    q.n = -Sorteo(g, 1, 3), q.l = 0, q.m2 = 0;
    return "EAT_NumCuan_IMPOS_n_no_NEG";
  }
  if (codigo <= 16) {
    q.n = Sorteo(g, 1, 6);
    q.l = q.n + Sorteo(g, 0, 1);
    q.m2 = 2 * Sorteo(g, -q.l, q.l);
    return "EAT_NumCuan_IMPOS_l_mayor_n";
  }
  if (codigo <= 22) {
    q.l = -Sorteo(g, 1, 2), q.m2 = 2 * q.l;
    return "EAT_NumCuan_IMPOS_l_no_NEG";
  }
  if (codigo <= 28) {
    q.m2 = 2 * (q.l + Sorteo(g, 1, 2));
    return "EAT_NumCuan_IMPOS_m_mayor_l";
  }
  if (codigo <= 34) {
    q.m2 = -2 * (q.l + Sorteo(g, 1, 2));
    return "EAT_NumCuan_IMPOS_m_menor_Menosl";
  }
  if (codigo <= 40) {
    q.n = Sorteo(g, 2, 8);
    q.l = Sorteo(g, 1, q.n - 1);
    q.m2 = 2 * Sorteo(g, 0, q.l - 1) + 1;  // a half below l
    if (AzarSupera(g.rnd, 0.5)) q.m2 = -q.m2;
    return "EAT_NumCuan_IMPOS_m_no_FRAC";
  }
  if (codigo <= 45) {
    q.s2 = 0;
    return "EAT_NumCuan_IMPOS_s_no_0";
  }
  if (codigo <= 50) {
    q.s2 = AzarSupera(g.rnd, 0.5) ? 2 : -2;
    return "EAT_NumCuan_IMPOS_s_no_ENTERO";
  }
  return "EAT_NumCuan_POSIBLE_NomORBIT";
}

std::string Item(int k) { return "&+B" + std::string(1, kLetrasItem[k]) + ")&-B "; }

// Distinct orbitals with l up to f.
std::vector<std::pair<int, int>> Orbitales(GenContext& g, int cuantos) {
  std::vector<std::pair<int, int>> o;
  while (static_cast<int>(o.size()) < cuantos) {
    const int n = Sorteo(g, 1, 7);
    const std::pair<int, int> x{n, Sorteo(g, 0, std::min(n - 1, 3))};
    if (std::find(o.begin(), o.end(), x) == o.end()) o.push_back(x);
  }
  return o;
}

// ---- Elements for bonds ----

struct Elemento {
  std::string_view simbolo;
  int z;
  double en;  // Pauling electronegativity
};
// Atomic numbers and Pauling electronegativities.
constexpr Elemento kMetales[] = {{"Li", 3, 0.98},  {"Na", 11, 0.93}, {"K", 19, 0.82}, {"Rb", 37, 0.82},
                                 {"Cs", 55, 0.79}, {"Be", 4, 1.57},  {"Mg", 12, 1.31}, {"Ca", 20, 1.00},
                                 {"Sr", 38, 0.95}, {"Ba", 56, 0.89}, {"Al", 13, 1.61}};
constexpr Elemento kNoMetales[] = {{"C", 6, 2.55},   {"N", 7, 3.04},   {"O", 8, 3.44},   {"F", 9, 3.98},
                                   {"Si", 14, 1.90}, {"P", 15, 2.19},  {"S", 16, 2.58},  {"Cl", 17, 3.16},
                                   {"As", 33, 2.18}, {"Se", 34, 2.55}, {"Br", 35, 2.96}, {"Te", 52, 2.10},
                                   {"I", 53, 2.66}};

// Binary molecular compounds that exist with the formula the octet gives.
constexpr std::string_view kMoleculares[] = {
    "CO_2",  "CS_2",   "CF_4",  "CCl_4", "CBr_4", "CI_4",    "SiC",    "NF_3",   "NCl_3",  "N_2O_3",
    "OF_2",  "Cl_2O",  "SiO_2", "P_2O_3", "As_2O_3", "SiF_4", "PF_3",  "ClF",    "BrF",    "AsF_3",
    "SiCl_4", "SiBr_4", "SiI_4", "SiS_2", "Si_3N_4", "PCl_3", "PBr_3", "PI_3",   "SCl_2",  "BrCl",
    "ICl",   "IBr",    "AsCl_3", "AsBr_3", "AsI_3", "As_2S_3"};

// Whether a metal and a non-metal form the ionic compound the charges give:
// carbides and silicides only where that simple formula exists, no nitrides
// of the heavy alkali metals, no phosphides or arsenides of Rb and Cs.
bool IonicoExiste(std::string_view m, std::string_view x) {
  auto en = [](std::string_view s, std::initializer_list<std::string_view> l) {
    return std::find(l.begin(), l.end(), s) != l.end();
  };
  if (x == "C") return en(m, {"Be", "Al"});
  if (x == "Si") return en(m, {"Mg", "Ca", "Sr", "Ba"});
  if (x == "N") return !en(m, {"Na", "K", "Rb", "Cs"});
  if (x == "P" || x == "As") return !en(m, {"Rb", "Cs"});
  return true;
}

std::string Electrones(GenContext& g, int n) {
  return NumTexto(n) + " " + g.MsgQUI(n == 1 ? "EAT_electron" : "EAT_electrones");
}

// An electronegativity as the tables give it, "1&.00".
std::string DosDecimales(double x) {
  const int c = static_cast<int>(std::lround(x * 100));
  return std::to_string(c / 100) + "&." + std::to_string(c % 100 / 10) + std::to_string(c % 10);
}

std::string Formula(std::string_view a, int na, std::string_view b, int nb) {
  std::string f(a);
  if (na > 1) f += "_" + std::to_string(na);
  f += b;
  if (nb > 1) f += "_" + std::to_string(nb);
  return f;
}

}  // namespace

void Generador1(GenContext& g) {
  const int forma = ((g.GP_SeqB % 4) + 4) % 4;
  std::string st, so;
  if (forma == 0) {
    st = g.MsgQUI("EAT_NC_Posible_y_Orbit") + "&LF";
    for (int k = 0; k < 5; ++k) {
      SetNC q{};
      const std::string_view clave = SetPorCodigo(g, Sorteo(g, 1, 90), q);
      st += "    " + Item(k) + TextoSet(q) + "&LF";
      std::string r = g.MsgQUI(clave);
      ReplaceAll(r, "%ORBIT%", Orbital(q.n, q.l));
      so += Item(k) + r + "&LF";
    }
  } else if (forma == 1) {
    const auto [n, l] = Orbitales(g, 1)[0];
    st = g.MsgQUI("EAT_posibles_NC_de_Orbit") + "&LF";
    ReplaceAll(st, "%ORBIT%", Orbital(n, l));
    std::string ms;
    for (int m = -l; m <= l; ++m) ms += (m == -l ? "" : ",  ") + NumTexto(m);
    so = g.MsgQUI("Num_Cuantico_m") + ": " + ms + ";   " + g.MsgQUI("Num_Cuantico_s") + ": " + Medios(1) + ",  " +
         Medios(-1) + ".&LF";
    int k = 0;
    for (int m = -l; m <= l; ++m)
      for (int s2 : {1, -1}) so += TextoSet({n, l, 2 * m, s2}) + (++k % 5 == 0 ? "&LF" : "   ");
    if (k % 5 != 0) so += "&LF";
    so += Capitaliza(Electrones(g, 4 * l + 2)) + ".&LF";
  } else if (forma == 2) {
    auto o = Orbitales(g, 6);
    st = g.MsgQUI("EAT_Ordenar_ORBIT_Energia") + "&LF    ";
    for (std::size_t k = 0; k < o.size(); ++k) st += (k ? ",   " : "") + Orbital(o[k].first, o[k].second);
    st += "&LF";
    std::sort(o.begin(), o.end(), [](auto a, auto b) {
      return a.first + a.second != b.first + b.second ? a.first + a.second < b.first + b.second : a.first < b.first;
    });
    for (std::size_t k = 0; k < o.size(); ++k) so += (k ? "  <  " : "") + Orbital(o[k].first, o[k].second);
    so += "&LF";
  } else {
    st = g.MsgQUI("EAT_Ordenar_NumElectr_de_NC") + "&LF";
    for (int k = 0; k < 4; ++k) {
      const int tipo = Sorteo(g, 1, 4);  // how many of n, l, m, s are fixed
      const int n = Sorteo(g, 1, 7), l = Sorteo(g, 0, std::min(n - 1, 7)), m = Sorteo(g, -l, l);
      const int s2 = AzarSupera(g.rnd, 0.5) ? 1 : -1;
      std::string t = "n = " + NumTexto(n);
      if (tipo >= 2) t += ",  l = " + NumTexto(l);
      if (tipo >= 3) t += ",  m_l = " + NumTexto(m);
      if (tipo >= 4) t += ",  m_s = " + Medios(s2);
      if (st.find(") " + t + "&LF") != std::string::npos) {  // each set once
        --k;
        continue;
      }
      const int e = tipo == 1 ? 2 * n * n : tipo == 2 ? 4 * l + 2 : tipo == 3 ? 2 : 1;
      st += "    " + Item(k) + t + "&LF";
      so += Item(k) + Electrones(g, e) + (tipo == 2 ? "  (" + Orbital(n, l) + ")" : "") + (k < 3 ? ";   " : ".&LF");
    }
  }
  g.GP_Statement = st;
  g.GP_Solution = so;
}

void Generador4(GenContext& g) {
  const Configuracion c = Configura(Sorteo(g, 1, 100));
  std::string st = g.MsgQUI("Hallar_ConfigELE_PER_GRU");
  ReplaceAll(st, "%Z%", NumTexto(c.z));
  g.GP_Statement = st + "&LF";
  g.GP_Solution = c.texto + ";   " + g.MsgQUI("Num_periodo") + ": " + NumTexto(c.periodo) + ";   " +
                  g.MsgQUI("Num_grupo") + ": " + Grupo(g, c) + ".&LF";
}

void Generador8(GenContext& g) {
  Elemento a{}, b{};  // a the less electronegative
  bool ionico = false;
  int ca = 0, cb = 0;  // electrons each gives up or takes in
  std::string formula;
  while (true) {
    ionico = !AzarSupera(g.rnd, 0.7);
    if (ionico) {
      a = kMetales[Sorteo(g, 1, 11) - 1];
      b = kNoMetales[Sorteo(g, 1, 13) - 1];
      if (!IonicoExiste(a.simbolo, b.simbolo)) continue;
    } else {
      a = kNoMetales[Sorteo(g, 1, 13) - 1];
      b = kNoMetales[Sorteo(g, 1, 13) - 1];
      if (a.z == b.z || a.en == b.en) continue;
      if (a.en > b.en) std::swap(a, b);
    }
    const Configuracion x = Configura(a.z), y = Configura(b.z);
    ca = ionico ? x.capaExterna : 8 - x.capaExterna;  // a metal loses its outer electrons
    cb = 8 - y.capaExterna;                             // the octet: 8 in the outer shell
    const int m = static_cast<int>(MCD(ca, cb));
    formula = Formula(a.simbolo, cb / m, b.simbolo, ca / m);
    if (ionico || std::find(std::begin(kMoleculares), std::end(kMoleculares), formula) != std::end(kMoleculares)) break;
  }
  // Shown in the order of the atomic numbers.
  const bool orden = a.z < b.z;
  const Elemento& e1 = orden ? a : b;
  const Elemento& e2 = orden ? b : a;
  auto nombre = [&](const Elemento& e) { return g.MsgQUI("N_" + std::string(e.simbolo)); };
  std::string st = g.MsgQUI("EAT_Enlace_Elementos");
  for (const auto& [clave, e] : {std::pair{"%E1%", &e1}, std::pair{"%E2%", &e2}})
    ReplaceAll(st, clave, nombre(*e) + " (" + std::string(e->simbolo) + ", Z = " + NumTexto(e->z) + ")");

  std::string so;
  for (const Elemento* e : {&e1, &e2}) {
    const Configuracion c = Configura(e->z);
    const bool metal = ionico && e->z == a.z;
    const int n = e->z == a.z ? ca : cb;
    std::string clave = !ionico ? "EAT_Octeto_Comparte" : metal ? "EAT_Octeto_Pierde" : "EAT_Octeto_Gana";
    std::string t = g.MsgQUI(clave);
    ReplaceAll(t, "%N%", NumTexto(n));
    std::string ion = std::string(e->simbolo) + "^" + (n > 1 ? std::to_string(n) + "^" : "") + (metal ? "+" : "-");
    ReplaceAll(t, "%ION%", ion);
    ReplaceAll(t, "%V%", Electrones(g, c.capaExterna));
    ReplaceAll(t, "%ENL%", g.MsgQUI(n == 1 ? "EAT_enlace" : "EAT_enlaces"));
    so += std::string(e->simbolo) + ":  " + c.texto + ";   " + t + ".&LF";
  }
  std::string enl = g.MsgQUI(ionico ? "EAT_Enlace_Ionico" : "EAT_Enlace_Covalente");
  ReplaceAll(enl, "%F%", formula);
  std::string en = g.MsgQUI("EAT_Mas_electroneg");
  ReplaceAll(en, "%E%", nombre(b) + " (" + std::string(b.simbolo) + ")");
  ReplaceAll(en, "%EN1%", DosDecimales(b.en));
  ReplaceAll(en, "%EN2%", DosDecimales(a.en));
  g.GP_Statement = st + "&LF";
  g.GP_Solution = so + enl + "&LF" + en + "&LF";
}

}  // namespace ss::mod::eat
