// Generators 3, 4 and 5: chemical kinetics. A rate law given (orders, the
// rate constant and its units, the rate), the rate law found from a table of
// initial rates, and the Arrhenius equation.
#include <algorithm>
#include <cmath>
#include <string>

#include "modules/ANEU_QUIM_CEP/cep.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::cep {
namespace {

const std::string kPunto = "\xB7";  // the multiplication dot
const std::string kUnidadVeloc = "mol/(L" + kPunto + "s)";
constexpr double kR = 8.314472;  // J/(mol K)

// An event of probability p: a fresh draw strictly below p, as 32-bit floats.
bool ConProbabilidad(GenContext& g, double p) {
  return static_cast<float>(g.rnd.Siguiente()) < static_cast<float>(p);
}

std::string N4(double x) { return NumCifras(x, 4); }
std::string Entero(int n) { return NumTexto(n); }

// x to the significant figures a statement shows it with.
double Cifras(double x, int cifras) {
  return x == 0 ? 0 : RedondeaPot(x, std::floor(std::log10(std::fabs(x))) - cifras);
}

// Orders of A and B of the five rate laws the generators use.
constexpr int kOrdenes[5][2] = {{2, 2}, {2, 1}, {1, 1}, {1, 0}, {1, 2}};

// The units of a rate constant of overall order n, with concentrations in
// mol/L and time in s; `ceroPotencias` writes order 0 with powers.
std::string UnidadK(int n, bool ceroPotencias = false) {
  if (n == 0) return ceroPotencias ? "mol" + kPunto + "L^-^1" + kPunto + "s^-^1" : kUnidadVeloc;
  if (n == 1) return "s^-^1";
  const std::string p = Entero(n - 1);
  return "mol^-^" + p + kPunto + "L" + (n > 2 ? "^" + p : "") + kPunto + "s^-^1";
}

// A rate constant: 1.5-9 times a power of ten from 10^-3 to 10, so that
// the rates of the tables stay those of reactions followed in a laboratory.
double DibujaK(GenContext& g) {
  double k = AleatorioEn(g.rnd, 15, 90, 5, 1) / 10000;
  for (int i = 0; i < 4; ++i)
    if (AzarSupera(g.rnd, 0.5)) k *= 10;
  return k;
}

// "[A]^2" for a concentration raised to its order; nothing for order 0.
std::string Potencia(char especie, int orden) {
  if (orden == 0) return "";
  return std::string("[") + especie + "]" + (orden == 1 ? "" : "^" + Entero(orden));
}

// The rate law "v = k·[A]^m·[B]^n".
std::string LeyVelocidad(GenContext& g, double k, const int o[2]) {
  std::string t = g.MsgQUI("Cinet_Veloc_SIMB") + "& =& " + N4(k);
  for (int i = 0; i < 2; ++i)
    if (o[i] != 0) t += kPunto + Potencia(static_cast<char>('A' + i), o[i]);
  return t;
}

// The reaction of a rate law found by experiment: the orders have nothing to
// do with the coefficients.
std::string EsquemaSimple(GenContext& g) {
  std::string r = "A  +  B  &ars  C";
  if (ConProbabilidad(g, 0.4)) r = "A  +  2B  &ars  C  +  D";
  if (ConProbabilidad(g, 0.4)) r = "2A  +  B  &ars  3C  +  D";
  if (ConProbabilidad(g, 0.4)) r = "A  +  3B  &ars  C  +  2D";
  return r;
}

// "[A]_0 = 0.25 mol/L".
std::string Concentracion(char especie, const std::string& valor) {
  return std::string("[") + especie + "]_0 = " + valor + "& mol/L";
}

// The three questions on a rate law: orders, k with its units, the rate at the
// concentrations given; and the answers as "a) ...;    b) ...;    c) ...".
std::string Ordenes(const int o[2]) {
  return Entero(o[0]) + ",  " + Entero(o[1]) + ",  " + Entero(o[0] + o[1]);
}

// The term "-1/a·d[X]/dt" of the rate of a reaction: a fraction of 1 over the
// coefficient (none for 1) times the rate of change of the concentration,
// with a minus sign for a reactant.
std::string Termino(char especie, double coef, bool reactivo) {
  std::string t = reactivo ? "- " : "";
  if (coef != 1) t += FraccionTexto(1, coef) + kPunto;
  return t + "#COC(&+Id&-I[" + especie + "]#N)(&+Idt&-I#COC)";
}

// Forms 2 and 3: the rate of a reaction aA + bB -> cC + dD through each species.
void Estequiometria(GenContext& g, int v) {
  double c[4];
  for (double& x : c) x = AleatorioEn(g.rnd, 1, 6, 1, 1);
  while (c[1] == c[0]) c[1] = AleatorioEn(g.rnd, 1, 6, 1, 1);
  while (c[3] == c[2]) c[3] = AleatorioEn(g.rnd, 1, 6, 1, 1);
  const double m = MCD(MCD(c[0], c[1]), MCD(c[2], c[3]));
  for (double& x : c) x /= m;
  auto especie = [&](int i) { return (c[i] == 1 ? "" : Entero(static_cast<int>(c[i]))) + std::string(1, 'A' + i); };
  const std::string reaccion = especie(0) + "  +  " + especie(1) + "  &ars  " + especie(2) + "  +  " + especie(3);
  std::string expresion = g.MsgQUI("Cinet_Veloc_SIMB");
  for (int i = 0; i < 4; ++i) expresion += " = " + Termino(static_cast<char>('A' + i), c[i], i < 2);

  std::string st = g.MsgQUI("Sea_la_reaccion_cinetica") + ".&LF";
  std::string so = "&SP=10:" + g.MsgQUI("Cinet_Velocidad") + ": " + expresion + "&LF";
  if (v == 2) {
    st += g.MsgQUI("VRec_dGas/dt") + ".&LF";
  } else {
    const double dado = AleatorioEn(g.rnd, 1, 140, 1, 1) / 100;
    // The rate of each species is its coefficient times the rate of the reaction.
    auto linea = [&](int i, double vr) {
      return std::string(i < 2 ? "- " : "") + "#COC(&+Id&-I[" + static_cast<char>('A' + i) + "]#N)(&+Idt&-I#COC) = " +
             N4(vr * c[i]) + " " + kUnidadVeloc;
    };
    if (AzarSupera(g.rnd, 0.5)) {
      st += g.MsgQUI("VC_VD_de_VA") + ".&LF";
      so += "&SP=10:" + linea(2, dado / c[0]) + ";    " + linea(3, dado / c[0]) + "&LF";
    } else {
      st += g.MsgQUI("VA_VB_de_VD") + ".&LF";
      so += "&SP=10:" + linea(0, dado / c[3]) + ";    " + linea(1, dado / c[3]) + "&LF";
    }
    ReplaceAll(st, "%VA%", N4(dado) + "& " + kUnidadVeloc);
    ReplaceAll(st, "%VD%", N4(dado) + "& " + kUnidadVeloc);
  }
  ReplaceAll(st, "%R%", reaccion);
  g.GP_Statement = st;
  g.GP_Solution = so;
}

// The questions a), b), c) ... of a statement, one a line.
std::string Preguntas(GenContext& g, std::initializer_list<std::string_view> claves) {
  std::string t = g.MsgQUI("DCH") + ":&LF";
  char letra = 'a';
  for (std::string_view k : claves) t += "    &+B" + std::string(1, letra++) + ")&-B " + g.MsgQUI(k) + ".&LF";
  return t;
}

double Kelvin(double celsius) { return celsius + 273.15; }
std::string Celsius(double t) { return NumCifras(t, 3) + "& \xB0" "C"; }

}  // namespace

// Generator 3: form 1 gives a rate law and asks the orders, k with its units
// and the rate; forms 2 and 3 relate the rates of the species of a reaction.
void Generador3(GenContext& g) {
  const int v = g.GP_SeqB % 3 + 1;
  if (v != 1) return Estequiometria(g, v);
  const int* o = kOrdenes[g.GP_SeqB % 5];
  const double k = DibujaK(g);
  const double a = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100, b = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100;
  const double r = k * std::pow(a, o[0]) * std::pow(b, o[1]);
  std::string st = g.MsgQUI("Sea_la_reaccion_cinetica") + ".&LF" + g.MsgQUI("Cinet_EcVeloc_es") + ". " +
                   Preguntas(g, {"Cinet_Orden_A_B_Glob", "Cinet_K", "Cinet_Veloc_AB_dados"});
  ReplaceAll(st, "%R%", EsquemaSimple(g));
  ReplaceAll(st, "%VEL%", LeyVelocidad(g, k, o));
  ReplaceAll(st, "%A%", Concentracion('A', NumTexto(a)));
  ReplaceAll(st, "%B%", Concentracion('B', NumTexto(b)));
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10: &+Ba)&-B " + Ordenes(o) + ";    &+Bb)&-B " + N4(k) + " " + UnidadK(o[0] + o[1]) +
                  ";    &+Bc)&-B " + N4(r) + " " + kUnidadVeloc + "&LF";
}

// Generator 4: three experiments; the second changes one concentration by a
// factor and the third the other, every concentration with a small scatter
// of measurement. The orders, the law, k and a rate follow.
void Generador4(GenContext& g) {
  const int* o = kOrdenes[g.GP_SeqB % 5];
  const double k = DibujaK(g);
  const bool cambiaAPrimero = ConProbabilidad(g, 0.6);
  const bool multiplica = ConProbabilidad(g, 0.6);
  const double a0 = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100, b0 = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100;
  const double f = AleatorioEn(g.rnd, 35, 50, 5, 1) / 10, cambio = multiplica ? f : 1 / f;
  // Experiment 1 is the base; 2 changes A (or B), 3 the other.
  double c[3][2] = {{a0, b0}, {a0, b0}, {a0, b0}};
  c[1][cambiaAPrimero ? 0 : 1] *= cambio;
  c[2][cambiaAPrimero ? 1 : 0] *= cambio;
  std::string tabla = "&SP=5:&+B" + g.MsgQUI("Cinet_experiencia") + "&SP=25:[A]_0 (mol/L)&SP=45:[B]_0 (mol/L)&SP=65:" +
                      g.MsgQUI("Cinet_veloc_inic") + " (" + kUnidadVeloc + ")&-B&LF";
  for (int e = 0; e < 3; ++e) {
    // The scatter enters the concentrations as shown, and the rates follow from those.
    for (double& x : c[e]) x = Cifras(x * AleatorioEn(g.rnd, 98, 102, 1, 1) / 100, 3);
    const double r = k * std::pow(c[e][0], o[0]) * std::pow(c[e][1], o[1]);
    tabla += "&SP=5:" + Entero(e + 1) + "&SP=25:" + NumCifras(c[e][0], 3) + "&SP=45:" + NumCifras(c[e][1], 3) +
             "&SP=65:" + N4(r) + "&LF";
  }
  const double a = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100, b = AleatorioEn(g.rnd, 2, 90, 1, 1) / 100;
  const double r = k * std::pow(a, o[0]) * std::pow(b, o[1]);
  std::string st = g.MsgQUI("Sea_la_reaccion_cinetica") + ".&LF" + g.MsgQUI("Veloc_reac_tabla") + ":&LF" + tabla +
                   Preguntas(g, {"Cinet_Orden_A_B_Glob", "Cinet_Veloc_conc", "Cinet_K", "Cinet_Veloc_AB_dados"});
  ReplaceAll(st, "%R%", EsquemaSimple(g));
  ReplaceAll(st, "%A%", Concentracion('A', NumTexto(a)));
  ReplaceAll(st, "%B%", Concentracion('B', NumTexto(b)));
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10: &+Ba)&-B " + Ordenes(o) + ";    &+Bb)&-B " + LeyVelocidad(g, k, o) +
                  ";    &+Bc)&-B " + N4(k) + " " + UnidadK(o[0] + o[1]) + ";    &+Bd)&-B " + N4(r) + " " +
                  kUnidadVeloc + "&LF";
}

// Generator 5: the Arrhenius equation k = A exp(-Ea / RT). Form 0 finds Ea, A
// and k at a third temperature from k at two; form 1 k at a second
// temperature from k and Ea; form 2 Ea from the factor by which k grows
// between two temperatures, and the factor at a third.
void Generador5(GenContext& g) {
  const int forma = g.GP_SeqB % 3;
  const int orden = static_cast<int>(AleatorioEn(g.rnd, 1, 4, 1, 1)) - 1;
  const std::string u = UnidadK(orden, true);
  double t[4], Ea = 0, A = 0, fk = 0;
  auto temperaturas = [&] {
    t[0] = AleatorioEn(g.rnd, 15, 90, 1, 1);
    for (int i = 1; i < 4; ++i) t[i] = t[i - 1] + AleatorioEn(g.rnd, 15, 40, 1, 1);
  };
  auto k = [&](double celsius) { return A * std::exp(-Ea / (kR * Kelvin(celsius))); };
  // Rate constants that can be measured: from about a year of half-life to a
  // fraction of a millisecond; activation energies of 30-130 kJ/mol.
  auto medible = [](double x) { return x >= 1e-8 && x <= 1e4; };
  if (forma == 2) {
    do {
      temperaturas();
      fk = AleatorioEn(g.rnd, 2, 7, 1, 1);
      for (int i = 0; i < 2; ++i)
        if (ConProbabilidad(g, 0.6)) fk *= 10;
      Ea = kR * std::log(fk) / (1 / Kelvin(t[0]) - 1 / Kelvin(t[1]));
    } while (Ea < 30000 || Ea > 130000);
  } else {
    do {
      temperaturas();
      Ea = AleatorioEn(g.rnd, 30, 130, 1, 1) * 1000;
      A = AleatorioEn(g.rnd, 12, 395, 1, 1) * 1e9;
    } while (!medible(k(t[0])) || !medible(k(t[1])) || !medible(k(t[2])));
  }
  static constexpr std::string_view kClaves[3] = {"EA_A_K3_de_K1_K2", "K_de_K1_EA", "EA_de_K12_K3"};
  std::string st = g.MsgQUI(kClaves[forma]) + "&LF&+I" + g.MsgQUI("Dato") + ":&-I  %R%&LF";
  // The answers follow from the values as the statement shows them.
  const double k1 = Cifras(k(t[0]), 4), k2 = Cifras(k(t[1]), 4);
  const double inv = 1 / Kelvin(t[0]) - 1 / Kelvin(t[1]);
  std::string so;
  if (forma == 0) {
    const double ea = kR * std::log(k2 / k1) / inv, a = k1 * std::exp(ea / (kR * Kelvin(t[0])));
    const double k3 = a * std::exp(-ea / (kR * Kelvin(t[2])));
    so = "&SP=10:&+Ba)&-B &+IE&-I_a& =& " + N4(ea / 1000) + " kJ/mol;    &+Bb)&-B &+IA&-I& =& " + N4(a) + " " + u +
         ";    &+Bc)&-B &+Ik&-I& =& " + N4(k3) + " " + u + "&LF";
  } else if (forma == 1) {
    const double k2b = k1 * std::exp(-Ea / kR * (1 / Kelvin(t[1]) - 1 / Kelvin(t[0])));
    so = "&SP=10:&+Ik&-I& =& " + N4(k2b) + " " + u + "&LF";
  } else {
    const double f3 = std::exp(-Ea / kR * (1 / Kelvin(t[2]) - 1 / Kelvin(t[0])));
    so = "&SP=10:&+Ba)&-B &+IE&-I_a& =& " + N4(Ea / 1000) + " kJ/mol;    &+Bb)&-B " + N4(f3) + "&LF";
  }
  const std::pair<std::string_view, std::string> r[] = {
      {"%T1%", Celsius(t[0])}, {"%T2%", Celsius(t[1])}, {"%T3%", Celsius(t[2])}, {"%T4%", Celsius(t[3])},
      {"%K1%", N4(k1) + "& " + u}, {"%K2%", N4(k2) + "& " + u}, {"%K4%", N4(k(t[3])) + "& " + u},
      {"%EA%", N4(Ea / 1000) + "& kJ/mol"}, {"%FK%", NumTexto(fk)},
      {"%R%", "&+IR&-I = " + NumTexto(kR) + "& J/(mol" + kPunto + "K)"},
  };
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  g.GP_Statement = st;
  g.GP_Solution = so;
}

}  // namespace ss::mod::cep
