// Generator 7: galvanic cells from two couples of standard reduction
// potentials. The couple of lower potential is the anode (oxidation, the
// negative pole), the other the cathode; the electrons of the two
// half-reactions are equalised to write the overall reaction, and the cell
// potential is that of the cathode minus that of the anode. Three forms: a
// metal against a gas electrode (1), two metals (2), and two metals whose
// cell potential and one couple's potential are given, the other asked (3).
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::rdx {
namespace {

// Standard reduction potentials of metal couples M^z+ / M (V, 25 °C). The
// couples are those whose ions are stable at 1 M in water: copper(I) and
// gold(I) are not (they disproportionate), so cobalt and palladium stand in
// their places.
struct ParMetal {
  std::string_view simbolo, nombre;
  int carga;
  double E;
};
constexpr std::array<ParMetal, 14> kMetales = {{
    {"Ag", "N_Ag", 1, 0.799},  {"Zn", "N_Zn", 2, -0.762}, {"Cd", "N_Cd", 2, -0.4},   {"Pd", "N_Pd", 2, 0.951},
    {"Au", "N_Au", 3, 1.50},   {"Mg", "N_Mg", 2, -2.357}, {"Cr", "N_Cr", 3, -0.74},  {"Pb", "N_Pb", 2, -0.127},
    {"Ni", "N_Ni", 2, -0.236}, {"Sn", "N_Sn", 2, -0.14},  {"Co", "N_Co", 2, -0.28},  {"Cu", "N_Cu", 2, 0.339},
    {"Fe", "N_Fe", 2, -0.44},  {"Al", "N_Al", 3, -1.676},
}};

// Gas electrodes: the oxidised and reduced forms, which of them is the gas,
// the medium, the standard reduction potential (V), and the reduction
// written as coefficients: of the two forms, then H+, OH- and H2O (positive
// on the side of the oxidised form, negative on the other) and electrons.
struct ParGas {
  std::string_view oxidada, reducida;
  bool oxidadaGas;
  char medio;  // 'A' acid, 'B' basic
  double E;
  int nOx, nRed, H, OH, H2O, e;
};
constexpr std::string_view kOH = "OH#SPB(L-#T)( #SPB)";
constexpr std::array<ParGas, 7> kGases = {{
    {"H^+", "H_2", false, 'A', 0, 2, 1, 0, 0, 0, 2},
    {"SO#SPB(L2-#T)(4#SPB)", "SO_2", false, 'A', 0.17, 1, 1, 4, 0, -2, 2},
    {"Cl_2", "Cl#SPB(L-#T)( #SPB)", true, 'A', 1.36, 1, 2, 0, 0, 0, 2},
    {"O_2", kOH, true, 'B', 0.401, 1, 4, 0, 0, 2, 4},
    {"NO#SPB(L-#T)(3#SPB)", "NO_2", false, 'A', 0.78, 1, 1, 2, 0, -1, 1},
    {"NO#SPB(L-#T)(3#SPB)", "NO", false, 'A', 0.96, 1, 1, 4, 0, -2, 3},
    {"F_2", "F#SPB(L-#T)( #SPB)", true, 'A', 2.89, 1, 2, 0, 0, 0, 2},
}};

constexpr std::string_view kSolido = "_(&+I_s&-I_)", kGas = "_(&+I_g&-I_)";

using Termino = std::pair<int, std::string>;  // coefficient, species

// One electrode, its couple written as a reduction: the species on the side
// of the oxidised form and on the other, without the electrons.
struct Electrodo {
  std::string par;  // "Zn^2^+/Zn"
  double E = 0;
  int e = 0;
  std::vector<Termino> oxidada, reducida;
  bool gas = false;
  std::string conductor;             // the metal, or the gas
  std::vector<std::string> disueltos;  // what its solution holds at 1 M
};

std::string Ion(const ParMetal& m) {
  return std::string(m.simbolo) + "^" + (m.carga > 1 ? std::to_string(m.carga) + "^" : "") + "+";
}

Electrodo DeMetal(const ParMetal& m) {
  Electrodo x;
  x.par = Ion(m) + "/" + std::string(m.simbolo);
  x.E = m.E, x.e = m.carga;
  x.oxidada = {{1, Ion(m)}};
  x.reducida = {{1, std::string(m.simbolo) + std::string(kSolido)}};
  x.conductor = m.simbolo;
  x.disueltos = {Ion(m)};
  return x;
}

Electrodo DeGas(const ParGas& p) {
  Electrodo x;
  x.par = std::string(p.oxidada) + "/" + std::string(p.reducida);
  x.E = p.E, x.e = p.e, x.gas = true;
  const std::string ox = std::string(p.oxidada) + (p.oxidadaGas ? std::string(kGas) : "");
  const std::string red = std::string(p.reducida) + (p.oxidadaGas ? "" : std::string(kGas));
  x.oxidada = {{p.nOx, ox}};
  x.reducida = {{p.nRed, red}};
  auto pon = [&](int n, std::string_view especie) {
    if (n > 0) x.oxidada.push_back({n, std::string(especie)});
    if (n < 0) x.reducida.push_back({-n, std::string(especie)});
  };
  pon(p.H, "H^+"), pon(p.OH, kOH), pon(p.H2O, "H_2O");
  x.conductor = p.oxidadaGas ? p.oxidada : p.reducida;
  x.disueltos = {std::string(p.oxidadaGas ? p.reducida : p.oxidada)};
  if (p.H > 0 && p.oxidada != "H^+") x.disueltos.push_back("H^+");
  return x;
}

std::string Lado(const std::vector<Termino>& t) {
  std::string s;
  for (const auto& [n, especie] : t) s += (s.empty() ? "" : " + ") + (n == 1 ? "" : std::to_string(n)) + especie;
  return s;
}

std::string Electrones(int e) { return (e == 1 ? "" : std::to_string(e)) + "e#SPB(L-#T)( #SPB)"; }

std::string Reduccion(const Electrodo& x) {
  return Lado(x.oxidada) + " + " + Electrones(x.e) + " &ars " + Lado(x.reducida);
}
std::string Oxidacion(const Electrodo& x) {
  return Lado(x.reducida) + " &ars " + Lado(x.oxidada) + " + " + Electrones(x.e);
}

// Both sides of a half-reaction times k, added to the terms of a side; a
// species already on the other side is taken off there first.
void Suma(std::vector<Termino>& lado, std::vector<Termino>& otro, const std::vector<Termino>& t, int k) {
  for (const auto& [n0, especie] : t) {
    int n = n0 * k;
    for (auto it = otro.begin(); it != otro.end() && n > 0; ++it)
      if (it->second == especie) {
        const int quita = std::min(n, it->first);
        it->first -= quita, n -= quita;
      }
    std::erase_if(otro, [](const Termino& x) { return x.first == 0; });
    if (n == 0) continue;
    auto it = std::find_if(lado.begin(), lado.end(), [&](const Termino& x) { return x.second == especie; });
    if (it == lado.end()) lado.push_back({n, especie});
    else it->first += n;
  }
}

// The overall reaction: the anode's oxidation and the cathode's reduction,
// each multiplied so that both exchange the same electrons.
std::string Global(const Electrodo& an, const Electrodo& cat) {
  const int L = std::lcm(an.e, cat.e);
  std::vector<Termino> izq, der;
  Suma(izq, der, an.reducida, L / an.e);
  Suma(izq, der, cat.oxidada, L / cat.e);
  Suma(der, izq, an.oxidada, L / an.e);
  Suma(der, izq, cat.reducida, L / cat.e);
  return Lado(izq) + " &ars " + Lado(der);
}

// "(-)  Zn, Zn^2^+ (1 M) || Cl^- (1 M), Cl_2 (1 atm), Pt  (+)".
std::string Notacion(const Electrodo& an, const Electrodo& cat) {
  auto disueltos = [](const Electrodo& x) {
    std::string s;
    for (const std::string& d : x.disueltos) s += (s.empty() ? "" : ", ") + d + " (1& M)";
    return s;
  };
  const std::string izq = an.gas ? "Pt, " + an.conductor + " (1& atm), " + disueltos(an)
                                 : an.conductor + ", " + disueltos(an);
  const std::string der = cat.gas ? disueltos(cat) + ", " + cat.conductor + " (1& atm), Pt"
                                  : disueltos(cat) + ", " + cat.conductor;
  return "(-)  " + izq + " || " + der + "  (+)";
}

std::string Potencial(const Electrodo& x) { return "&epsilon\xB0(" + x.par + ") = " + NumTexto(x.E) + "& V"; }

}  // namespace

void Generador7(GenContext& g) {
  int forma = g.GP_SeqB % 3 + 1;
  if (AzarSupera(g.rnd, 0.5)) forma = 1;

  // Two couples whose potentials differ by at least 0.2 V.
  Electrodo a, b;
  char medio = 'A';
  do {
    a = DeMetal(kMetales[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, 14, 1, 1)) - 1]);
    if (forma == 1) {
      const ParGas& p = kGases[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, 7, 1, 1)) - 1];
      b = DeGas(p);
      medio = p.medio;
    } else {
      b = DeMetal(kMetales[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, 14, 1, 1)) - 1]);
    }
  } while (std::fabs(a.E - b.E) < 0.2 - 1e-9);
  // In form 3 the first couple's potential is given and the second's asked;
  // either may be the anode.
  if (forma == 3 && AzarSupera(g.rnd, 0.5)) std::swap(a, b);
  const Electrodo& an = a.E < b.E ? a : b;
  const Electrodo& cat = a.E < b.E ? b : a;
  const double Epila = cat.E - an.E;

  auto pregunta = [&](char letra, std::string_view clave) {
    return "&SP=5:&+B" + std::string(1, letra) + ")&-B " + g.MsgQUI(clave) + ".&LF";
  };
  std::string st;
  if (forma == 1)
    st = g.MsgQUI("Se_quierePILA_OR1OR2") + " " +
         g.MsgQUI(medio == 'A' ? "Gases_1_atm_acido_indic" : "Gases_1_atm_basic_indic") + "&LF";
  else if (forma == 2)
    st = g.MsgQUI("Se_quierePILA_OR1OR2_indic") + "&LF";
  else
    st = g.MsgQUI("Se_quierePILA_OR1OR2") + " " + g.MsgQUI("Reaccion_Global_es") + " " +
         g.MsgQUI("Si_dPila_STD_es_deter") + "&LF";
  if (forma == 3)
    st += "&+I" + g.MsgQUI("Dato") + " (" + g.MsgQUI("Potencial_RedSTD") + "):&-I  " + Potencial(a) + ".&LF";
  else
    st += "&+I" + g.MsgQUI("Datos") + " (" + g.MsgQUI("Potenciales_RedSTD") + "):&-I  " + Potencial(a) + ",  " +
          Potencial(b) + ".&LF";
  st += g.MsgQUI("DCH") + ":&LF" + pregunta('a', "Electrod_SGN_SemiReac");
  if (forma == 3)
    st += pregunta('b', "Potencial_RedSTD_de_OR") + pregunta('c', "Notac_Pila_pte_salino");
  else
    st += pregunta('b', "Reaccion_Global") + pregunta('c', "dPila_STD") +
          pregunta('d', forma == 1 ? "Notac_Pila_pte_salino_Pt" : "Notac_Pila_pte_salino");

  const std::string global = Global(an, cat);
  std::string so = "&SP=10:&+Ba)&-B " + Capitaliza(g.MsgQUI("Anodo")) + " (-), " + g.MsgQUI("Oxidacion") + ": " +
                   Oxidacion(an) + ";&LF&SP=13:" + Capitaliza(g.MsgQUI("Catodo")) + " (+), " +
                   g.MsgQUI("Reduccion") + ": " + Reduccion(cat) + ".&LF";
  if (forma == 3) {
    so += "&SP=10:&+Bb)&-B &epsilon\xB0(" + b.par + ") = " + NumCifras(b.E, 4) + " V.&LF";
    so += "&SP=10:&+Bc)&-B " + Notacion(an, cat) + "&LF";
  } else {
    so += "&SP=10:&+Bb)&-B " + global + ".&LF";
    so += "&SP=10:&+Bc)&-B &epsilon\xB0 = " + NumCifras(Epila, 4) + " V.&LF";
    so += "&SP=10:&+Bd)&-B " + Notacion(an, cat) + "&LF";
  }

  const std::pair<std::string_view, std::string> r[] = {
      {"%OR1%", a.par}, {"%OR2%", b.par}, {"%EPILA%", NumCifras(Epila, 4) + "& V"}, {"%RG%", global}};
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  g.GP_Statement = st;
  g.GP_Solution = so;
}

}  // namespace ss::mod::rdx
