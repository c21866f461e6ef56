// Generators 3 and 4: the amounts at equilibrium. Generator 3 gives the
// starting mixture and one fact of the equilibrium (an amount, a partial
// pressure, the degree of dissociation) and asks the rest and K; generator 4
// gives K and asks the equilibrium, found by ResolverEquilibrio.
//
// Every data set is a real equilibrium: the one the table's constant gives at
// the temperature stated, from amounts whose gases stay gases there (they
// fall tenfold until no gas passes the pressure at which it would condense).
// Answers are worked from the numbers as the statement shows them.
#include <cmath>

#include "modules/ANEU_QUIM_EGA/ega.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ega {
namespace {

const std::string kKc = "&+IK&-I_C", kKp = "&+IK&-I_P";
constexpr int kIntentos = 400;

using Cuatro = std::array<double, 4>;

std::string N4(double x) { return NumCifras(x, 4); }
double TK(double tC) { return tC + 273.15; }

enum class Clase { Cualquiera, SoloGases, Disociacion };

// A row of the class; a reaction with a solid is kept as tabulated.
Sorteo SorteaDe(GenContext& g, Clase c) {
  for (int i = 0; i < 1000; ++i) {
    const int fila = static_cast<int>(AleatorioEn(g.rnd, 1, kFilas, 1, 1));
    const bool solido = TieneSolido(Fila(fila));
    Sorteo s = SorteoDeFila(g, fila, !solido);
    if (c == Clase::Cualquiera || (c == Clase::SoloGases && !solido) ||
        (c == Clase::Disociacion && Disociacion(s.r)))
      return s;
  }
  return SorteoDeFila(g, 4, false);
}

int Reactivo(const Reaccion& r) {
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef < 0) return k;
  return 0;
}

// A product absent at the start: what it holds at equilibrium is the extent.
int Ausente(const Reaccion& r, const Cuatro& inicial) {
  for (int k = 0; k < 4; ++k)
    if (r.s[k].Gas() && r.s[k].coef > 0 && inicial[k] == 0) return k;
  return -1;
}

// Quantities shown with their unit, and the lists of a problem.
std::string Mol(double n) { return N4(n) + "& mol"; }
std::string Atm(double p) { return N4(p) + "& atm"; }
std::string Por100(double alfa) { return N4(100 * alfa) + "_ %"; }
std::string EnMoles(const Especie& e, double n) { return Mol(n) + "& " + std::string(e.formula); }
std::string Formula(const Especie& e) { return std::string(e.Solido() ? e.formula : FormulaSimple(e)); }

std::string ListaMoles(GenContext& g, const Reaccion& r, const Cuatro& n) {
  std::vector<std::string> v;
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef != 0 && n[k] > 0) v.push_back(EnMoles(r.s[k], n[k]));
  return ListaY(g, v);
}

// The answers: each gas (or substance) with its amount, joined by commas.
enum class Magnitud { Moles, Concentracion, Presion };
std::string Valores(const Reaccion& r, const Cuatro& x, Magnitud m) {
  std::string t;
  for (int k = 0; k < 4; ++k) {
    const Especie& e = r.s[k];
    if (e.coef == 0 || (m != Magnitud::Moles && !e.Gas())) continue;
    if (!t.empty()) t += ",  ";
    switch (m) {
      case Magnitud::Moles: t += "&+In&-I(" + Formula(e) + ")& =& " + Mol(x[k]); break;
      case Magnitud::Concentracion: t += "[" + Formula(e) + "]& =& " + N4(x[k]) + "& mol/L"; break;
      case Magnitud::Presion: t += "&+IP&-I(" + Formula(e) + ")& =& " + Atm(x[k]); break;
    }
  }
  return t;
}

std::string Presiones(GenContext& g, const Reaccion& r, const Cuatro& p) {
  std::vector<std::string> v;
  for (int k = 0; k < 4; ++k)
    if (r.s[k].Gas() && p[k] > 0) v.push_back("&+IP&-I(" + Formula(r.s[k]) + ")& =& " + Atm(p[k]));
  return ListaY(g, v);
}

double Cociente(const Reaccion& r, const Cuatro& x) {
  double q = 1;
  for (int k = 0; k < 4; ++k)
    if (r.s[k].Gas()) q *= std::pow(x[k], r.s[k].coef);
  return q;
}

bool Positivos(const Reaccion& r, const Cuatro& x) {
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef != 0 && !(x[k] > 0 && std::isfinite(x[k]) && Cifras4(x[k]) > 0)) return false;
  return true;
}

bool Cerca(double a, double b, double rel) { return std::fabs(a - b) <= rel * std::fabs(b); }

// The equilibrium in a vessel of V litres from the moles n0 (solids keep
// theirs and follow the extent). The moles fall tenfold until every gas
// stays a gas, at the start and at equilibrium. Moles out, in neq.
bool EnVolumen(const Sorteo& s, double V, Cuatro& n0, Cuatro& neq) {
  const Reaccion& r = s.r;
  const double RT = kR * TK(s.T);
  for (int i = 0; i < 10; ++i) {
    Cuatro C0{}, p0{}, p{};
    for (int k = 0; k < 4; ++k)
      if (r.s[k].Gas()) C0[k] = n0[k] / V, p0[k] = C0[k] * RT;
    const Cuatro C = Equilibra(r, s.K, C0);
    for (int k = 0; k < 4; ++k)
      if (r.s[k].Gas()) neq[k] = C[k] * V, p[k] = C[k] * RT;
    if (CabenGases(r, p0) && CabenGases(r, p)) {
      // The solids by the extent, read off the gas that changed most.
      int j = -1;
      for (int k = 0; k < 4; ++k)
        if (r.s[k].Gas() && (j < 0 || std::fabs(neq[k] - n0[k]) > std::fabs(neq[j] - n0[j]))) j = k;
      const double avance = (neq[j] - n0[j]) / r.s[j].coef;
      for (int k = 0; k < 4; ++k)
        if (r.s[k].coef != 0 && !r.s[k].Gas()) neq[k] = n0[k] + r.s[k].coef * avance;
      return true;
    }
    for (double& x : n0) x = CifrasN(x / 10, 4);
  }
  return false;
}

// The same with partial pressures in a closed vessel and Kp.
bool EnPresiones(const Sorteo& s, double Kp, Cuatro& p0, Cuatro& peq) {
  for (int i = 0; i < 10; ++i) {
    peq = Equilibra(s.r, Kp, p0);
    if (CabenGases(s.r, p0) && CabenGases(s.r, peq)) return true;
    for (double& x : p0) x = CifrasN(x / 10, 4);
  }
  return false;
}

// The equilibrium at a total pressure P from a mixture in the proportions
// n0: the closed-vessel equilibrium of ResolverEquilibrio, its starting
// pressures scaled until the total at equilibrium is P. p0 is that start.
void APresion(const Reaccion& r, double Kp, const Cuatro& n0, double P, Cuatro& p0, Cuatro& peq) {
  double suma = 0;
  for (int k = 0; k < 4; ++k) suma += r.s[k].Gas() ? n0[k] : 0;
  auto total = [&](double f) {
    for (int k = 0; k < 4; ++k) p0[k] = r.s[k].Gas() ? n0[k] * f : 0;
    peq = Equilibra(r, Kp, p0);
    double t = 0;
    for (int k = 0; k < 4; ++k) t += r.s[k].Gas() ? peq[k] : 0;
    return t;
  };
  double lo = 0, hi = P / suma;
  for (int i = 0; i < 200 && total(hi) < P; ++i) lo = hi, hi *= 2;
  for (int i = 0; i < 60; ++i) {
    const double m = (lo + hi) / 2;
    (total(m) < P ? lo : hi) = m;
  }
  total(hi);
}

// The sentence that gives the degree of dissociation, in one of two wordings.
std::string Disoc(GenContext& g, const Especie& e, double alfa) {
  std::string t = g.MsgQUI(AzarSupera(g.rnd, 0.5) ? "EGA_Alfa_es" : "EGA_Disociado_un");
  Rellena(t, {{"%ESPE%", Nombre(g, e)}, {"%ALFA%", Por100(alfa)}});
  return t;
}

struct Texto {
  std::string st, so;
  std::vector<std::pair<std::string, std::string>> valores;  // placeholders
  std::vector<std::string> preguntas, respuestas;
};

// The questions under "Find:", lettered a, b, c...; the answers likewise.
void Cierra(GenContext& g, Texto& t, bool datoR) {
  t.st += "&LF" + g.MsgQUI("DCH") + ":&LF";
  for (std::size_t k = 0; k < t.preguntas.size(); ++k) t.st += Pregunta(static_cast<char>('a' + k), t.preguntas[k]);
  if (datoR) t.st += g.MsgQUI("EGA_Dato_R_T") + "&LF";
  for (std::size_t k = 0; k < t.respuestas.size(); ++k)
    t.so += "&SP=10:&+B" + std::string(1, static_cast<char>('a' + k)) + ")&-B " + t.respuestas[k] + "&LF";
  Rellena(t.st, t.valores);
  Rellena(t.so, t.valores);
}

std::string KcTexto(double K, double dn) { return kKc + "& =& " + N4(K) + UnidadKc(dn); }
std::string KpTexto(double K, double dn) { return kKp + "& =& " + N4(K) + UnidadKp(dn); }
std::string AlfaTexto(double a) { return "&alfa& =& " + Por100(a); }

// ---- Generator 3: from the start and one fact -------------------------

// Moles at the start in a vessel, and the moles of one gas at equilibrium.
bool MolesYUnDato(GenContext& g, Texto& t) {
  const Sorteo s = SorteaDe(g, Clase::Cualquiera);
  const Reaccion& r = s.r;
  const double V = AleatorioEn(g.rnd, 10, 60, 15, 1);
  Cuatro n0{}, neq{};
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef < 0) n0[k] = AleatorioEn(g.rnd, 3, 10, 0.5, 1);
  if (!EnVolumen(s, V, n0, neq) || !Positivos(r, neq)) return false;
  // The fact: a gas whose amount changed by a good part of what it holds, so
  // that its four figures fix the extent.
  std::vector<int> buenos;
  for (int k = 0; k < 4; ++k)
    if (r.s[k].Gas() && std::fabs(neq[k] - n0[k]) >= 0.3 * neq[k]) buenos.push_back(k);
  if (buenos.empty()) return false;
  const int j = buenos[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, static_cast<double>(buenos.size()), 1, 1)) - 1];
  const double dato = Cifras4(neq[j]), avance = (dato - n0[j]) / r.s[j].coef;
  Cuatro n{}, c{};
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef != 0) n[k] = n0[k] + r.s[k].coef * avance, c[k] = n[k] / V;
  if (!Positivos(r, n)) return false;
  const double Kc = Cociente(r, c), dn = DeltaN(r);
  if (!Cerca(Kc, s.K, 0.02)) return false;
  const int A = Reactivo(r);
  t.st = g.MsgQUI("En_recip_Vol_nMolIni_1Molequi_ECU");
  t.valores = {{"%NMOL0%", ListaMoles(g, r, n0)}, {"%VOL%", NumTexto(V) + "& L"},
               {"%1MOLEQUI%", Mol(dato)},          {"%ESPE0%", Nombre(g, r.s[A])},
               {"%ESPE%", Nombre(g, r.s[j])},      {"%ECUAC%", Ecuacion(r)},
               {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_Moles_equil"), g.MsgQUI("EGA_Kc_de_mol/L")};
  t.respuestas = {Valores(r, n, Magnitud::Moles), KcTexto(Kc, dn)};
  if (Disociacion(r)) {
    t.preguntas.push_back(g.MsgQUI("EGA_Grado_disoc"));
    t.respuestas.push_back(AlfaTexto(avance * std::fabs(r.s[A].coef) / n0[A]));
  }
  t.preguntas.push_back(g.MsgQUI("EGA_Molarid_equil"));
  t.respuestas.push_back(Valores(r, c, Magnitud::Concentracion));
  Cierra(g, t, false);
  return true;
}

// The degree of dissociation of a real equilibrium, as shown, and the
// amounts from it. With a start of only the reactant `A` in `ini`.
bool AlfaMostrado(const Reaccion& r, int A, const Cuatro& ini, const Cuatro& eq, double& alfa) {
  const int B = Ausente(r, ini);
  if (B < 0) return false;
  alfa = eq[B] / r.s[B].coef * std::fabs(r.s[A].coef) / ini[A];
  if (!(alfa > 0 && alfa <= 0.95)) return false;
  alfa = Cifras4(100 * alfa) / 100;
  return alfa > 0;
}
Cuatro DesdeAlfa(const Reaccion& r, int A, const Cuatro& ini, double alfa) {
  const double avance = alfa * ini[A] / std::fabs(r.s[A].coef);
  Cuatro x{};
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef != 0) x[k] = ini[k] + r.s[k].coef * avance;
  return x;
}

// Moles of one gas that dissociates, the volume, and its degree of dissociation.
bool MolesYAlfa(GenContext& g, Texto& t) {
  const Sorteo s = SorteaDe(g, Clase::Disociacion);
  const Reaccion& r = s.r;
  const int A = Reactivo(r);
  const double V = AleatorioEn(g.rnd, 10, 60, 15, 1), dn = DeltaN(r);
  Cuatro n0{}, neq{};
  n0[A] = AleatorioEn(g.rnd, 3, 10, 0.5, 1);
  double alfa;
  if (!EnVolumen(s, V, n0, neq) || !AlfaMostrado(r, A, n0, neq, alfa)) return false;
  const Cuatro n = DesdeAlfa(r, A, n0, alfa);
  Cuatro c{};
  for (int k = 0; k < 4; ++k) c[k] = n[k] / V;
  const double Kc = Cociente(r, c);
  if (!Positivos(r, n) || !Cerca(Kc, s.K, 0.02)) return false;
  t.st = g.MsgQUI("En_recip_Vol_Temp_1MolINI_alfa_ECU");
  t.valores = {{"%DISOC%", Disoc(g, r.s[A], alfa)}, {"%1MOL0%", Mol(n0[A])}, {"%ESPE0%", Nombre(g, r.s[A])},
               {"%VOL%", NumTexto(V) + "& L"},       {"%ECUAC%", Ecuacion(r)}, {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_Moles_equil"), g.MsgQUI("EGA_Kc_de_mol/L"), g.MsgQUI("EGA_Kp_de_atm")};
  t.respuestas = {Valores(r, n, Magnitud::Moles), KcTexto(Kc, dn), KpTexto(KpDeKc(Kc, s.T, dn), dn)};
  Cierra(g, t, true);
  return true;
}

// Partial pressures at the start, and the partial pressure of one gas at equilibrium.
bool PresionesYUnDato(GenContext& g, Texto& t) {
  const Sorteo s = SorteaDe(g, Clase::SoloGases);
  const Reaccion& r = s.r;
  const double dn = DeltaN(r), Kp = KpDeKc(s.K, s.T, dn);
  Cuatro p0{}, peq{};
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef < 0) p0[k] = AleatorioEn(g.rnd, 3, 10, 0.5, 1) / 10;
  if (!EnPresiones(s, Kp, p0, peq) || !Positivos(r, peq)) return false;
  std::vector<int> buenos;
  for (int k = 0; k < 4; ++k)
    if (r.s[k].Gas() && std::fabs(peq[k] - p0[k]) >= 0.3 * peq[k]) buenos.push_back(k);
  if (buenos.empty()) return false;
  const int j = buenos[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, static_cast<double>(buenos.size()), 1, 1)) - 1];
  const double dato = Cifras4(peq[j]), avance = (dato - p0[j]) / r.s[j].coef;
  Cuatro p{};
  double total = 0;
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef != 0) p[k] = p0[k] + r.s[k].coef * avance, total += p[k];
  const double K = Cociente(r, p);
  if (!Positivos(r, p) || !Cerca(K, Kp, 0.02)) return false;
  const int A = Reactivo(r);
  const bool uno = NumReactivos(r) == 1;
  t.st = g.MsgQUI("Dada_reaccion") + "&LF&SP=5:" + Ecuacion(r) + "&LF" + g.MsgQUI("EGA_Recip_a_T") + " " +
         g.MsgQUI(uno ? "EGA_1PParc0" : "EGA_nPParc0") + " " + g.MsgQUI("EGA_PParc_i_equ");
  t.valores = {{"%LPP0%", Presiones(g, r, p0)}, {"%1PPAR0%", Atm(p0[A])},  {"%1PPARE%", Atm(dato)},
               {"%ESPE0%", Nombre(g, r.s[A])},  {"%ESPE%", Nombre(g, r.s[j])}, {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_PParciales_equil"), g.MsgQUI("EGA_Kp_de_atm")};
  t.respuestas = {Valores(r, p, Magnitud::Presion), KpTexto(K, dn)};
  if (Disociacion(r)) {
    t.preguntas.push_back(g.MsgQUI("EGA_Grado_disoc"));
    t.respuestas.push_back(AlfaTexto(avance * std::fabs(r.s[A].coef) / p0[A]));
  }
  t.preguntas.push_back(g.MsgQUI("EGA_Ptot_equil"));
  t.respuestas.push_back("&+IP&-I_T& =& " + Atm(total));
  Cierra(g, t, false);
  return true;
}

// A gas that dissociates, its pressure at the start and its degree of dissociation.
bool PresionYAlfa(GenContext& g, Texto& t) {
  const Sorteo s = SorteaDe(g, Clase::Disociacion);
  const Reaccion& r = s.r;
  const int A = Reactivo(r);
  const double dn = DeltaN(r), Kp = KpDeKc(s.K, s.T, dn), RT = kR * TK(s.T);
  Cuatro p0{}, peq{};
  p0[A] = AleatorioEn(g.rnd, 3, 10, 0.5, 1) / 10;
  double alfa;
  if (!EnPresiones(s, Kp, p0, peq) || !AlfaMostrado(r, A, p0, peq, alfa)) return false;
  const Cuatro p = DesdeAlfa(r, A, p0, alfa);
  const double K = Cociente(r, p);
  if (!Positivos(r, p) || !Cerca(K, Kp, 0.02)) return false;
  t.st = g.MsgQUI("En_recip_Temp_ESP_Disoc_PParc0_ECU");
  t.valores = {{"%DISOC%", Disoc(g, r.s[A], alfa)}, {"%ESPE0%", Nombre(g, r.s[A])}, {"%1PPAR0%", Atm(p0[A])},
               {"%ECUAC%", Ecuacion(r)},             {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_PParciales_equil"), g.MsgQUI("EGA_Kp_de_atm"), g.MsgQUI("EGA_Kc_de_mol/L")};
  t.respuestas = {Valores(r, p, Magnitud::Presion), KpTexto(K, dn), KcTexto(K / std::pow(RT, dn), dn)};
  Cierra(g, t, true);
  return true;
}

// A gas that dissociates, its degree of dissociation and the total pressure.
bool TotalYAlfa(GenContext& g, Texto& t) {
  const Sorteo s = SorteaDe(g, Clase::Disociacion);
  const Reaccion& r = s.r;
  const int A = Reactivo(r);
  const double dn = DeltaN(r), Kp = KpDeKc(s.K, s.T, dn), RT = kR * TK(s.T);
  Cuatro uno{};
  uno[A] = 1;
  double P = AleatorioEn(g.rnd, 5, 50, 1, 1) / 10, alfa = 0;
  Cuatro p0{}, peq{};
  for (int i = 0;; ++i) {
    if (i == 10) return false;
    APresion(r, Kp, uno, P, p0, peq);
    if (CabenGases(r, peq)) break;
    P = CifrasN(P / 10, 4);
  }
  if (!AlfaMostrado(r, A, p0, peq, alfa)) return false;
  // Per mole of the gas at the start, and the pressures as fractions of P.
  const Cuatro n = DesdeAlfa(r, A, uno, alfa);
  double total = 0;
  for (double x : n) total += x;
  Cuatro p{};
  for (int k = 0; k < 4; ++k) p[k] = n[k] / total * P;
  const double K = Cociente(r, p);
  if (!Positivos(r, p) || !Cerca(K, Kp, 0.02)) return false;
  t.st = g.MsgQUI("En_recip_Temp_ESP_Disoc_Ptot_ECU");
  t.valores = {{"%DISOC%", Disoc(g, r.s[A], alfa)}, {"%ESPE0%", Nombre(g, r.s[A])}, {"%P%", Atm(P)},
               {"%ECUAC%", Ecuacion(r)},             {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_PParciales_equil"), g.MsgQUI("EGA_Kp_de_atm"), g.MsgQUI("EGA_Kc_de_mol/L")};
  t.respuestas = {Valores(r, p, Magnitud::Presion), KpTexto(K, dn), KcTexto(K / std::pow(RT, dn), dn)};
  Cierra(g, t, true);
  return true;
}

// ---- Generator 4: from K -----------------------------------------------

// The start of a dissociation: the gas that dissociates and, now and then,
// one of two or more products (another stays absent).
void Inicio(GenContext& g, const Reaccion& r, Cuatro& x, double divisor) {
  const int A = Reactivo(r);
  x[A] = AleatorioEn(g.rnd, 3, 10, 0.5, 1) / divisor;
  int productos = 0;
  for (const Especie& e : r.s) productos += e.coef > 0;
  if (productos >= 2 && AzarSupera(g.rnd, 0.5))
    for (int k = 0; k < 4; ++k)
      if (r.s[k].coef > 0) {
        x[k] = AleatorioEn(g.rnd, 1, 5, 0.5, 1) / divisor;
        break;
      }
}

double AlfaDe(const Reaccion& r, const Cuatro& ini, const Cuatro& eq) {
  const int A = Reactivo(r), B = Ausente(r, ini);
  return eq[B] / r.s[B].coef * std::fabs(r.s[A].coef) / ini[A];
}

bool AlfaValido(double a) { return a > 0 && a <= 0.99 && Cifras4(100 * a) > 0; }

// Concentrations at the start (given as such, or as moles and a volume) and Kc.
bool ConcentracionesDeKc(GenContext& g, Texto& t, bool comoMoles) {
  const Sorteo s = SorteaDe(g, Clase::Disociacion);
  const Reaccion& r = s.r;
  const int A = Reactivo(r);
  const double V = AleatorioEn(g.rnd, 10, 60, 15, 1), RT = kR * TK(s.T);
  Cuatro n0{};
  Inicio(g, r, n0, 1);
  Cuatro C0{}, C{};
  for (int i = 0;; ++i) {
    if (i == 10) return false;
    Cuatro p0{}, p{};
    for (int k = 0; k < 4; ++k) C0[k] = comoMoles ? n0[k] / V : Cifras4(n0[k] / V), p0[k] = C0[k] * RT;
    C = Equilibra(r, s.K, C0);
    for (int k = 0; k < 4; ++k) p[k] = C[k] * RT;
    if (CabenGases(r, p0) && CabenGases(r, p)) break;
    for (double& x : n0) x = CifrasN(x / 10, 4);
  }
  const double alfa = AlfaDe(r, C0, C);
  if (!Positivos(r, C) || !AlfaValido(alfa)) return false;
  std::vector<std::string> lista;
  for (int k = 0; k < 4; ++k)
    if (C0[k] > 0) lista.push_back("[" + Formula(r.s[k]) + "]_0& =& " + N4(C0[k]) + "& mol/L");
  const std::string Ktexto = TextoK(s.K, s.cifras) + UnidadKc(DeltaN(r));
  if (comoMoles) {
    t.st = g.MsgQUI("En_recip_Vol_nMolIni_Kc_ECU");
  } else {
    t.st = g.MsgQUI("En_recip_ECU") + " " + g.MsgQUI(lista.size() == 1 ? "Concen0_es" : "Concen0_son") + " " +
           g.MsgQUI("EGA_Dada_Kc");
  }
  t.valores = {{"%NMOL0%", ListaMoles(g, r, n0)}, {"%LC0%", ListaY(g, lista)}, {"%KC%", Ktexto},
               {"%VOL%", NumTexto(V) + "& L"},     {"%ESPE0%", Nombre(g, r.s[A])}, {"%ECUAC%", Ecuacion(r)},
               {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_Molarid_equil"), g.MsgQUI("EGA_Grado_disoc")};
  t.respuestas = {Valores(r, C, Magnitud::Concentracion), AlfaTexto(alfa)};
  Cierra(g, t, false);
  return true;
}

// Partial pressures at the start and Kp.
bool PresionesDeKp(GenContext& g, Texto& t) {
  const Sorteo s = SorteaDe(g, Clase::Disociacion);
  const Reaccion& r = s.r;
  const int A = Reactivo(r);
  const double dn = DeltaN(r), Kp = Cifras4(KpDeKc(s.K, s.T, dn));
  Cuatro p0{}, peq{};
  Inicio(g, r, p0, 10);
  if (!EnPresiones(s, Kp, p0, peq)) return false;
  const double alfa = AlfaDe(r, p0, peq);
  if (!Positivos(r, peq) || !AlfaValido(alfa)) return false;
  int dados = 0;
  for (double x : p0) dados += x > 0;
  t.st = g.MsgQUI("En_recip_ECU") + " " + g.MsgQUI(dados == 1 ? "EGA_1PParc0" : "EGA_nPParc0") + " " +
         g.MsgQUI("EGA_Dada_Kp");
  t.valores = {{"%LPP0%", Presiones(g, r, p0)}, {"%1PPAR0%", Atm(p0[A])}, {"%KP%", N4(Kp) + UnidadKp(dn)},
               {"%ESPE0%", Nombre(g, r.s[A])},  {"%ECUAC%", Ecuacion(r)},  {"%T%", TextoT(s.T)}};
  t.preguntas = {g.MsgQUI("EGA_PParciales_equil"), g.MsgQUI("EGA_Grado_disoc")};
  t.respuestas = {Valores(r, peq, Magnitud::Presion), AlfaTexto(alfa)};
  Cierra(g, t, false);
  return true;
}

// The total pressure at equilibrium and Kp: for a gas that dissociates, or
// for given moles of the reactants, which set the proportions.
bool TotalDeKp(GenContext& g, Texto& t, bool moles) {
  const Sorteo s = SorteaDe(g, moles ? Clase::SoloGases : Clase::Disociacion);
  const Reaccion& r = s.r;
  const int A = Reactivo(r);
  const double dn = DeltaN(r), Kp = Cifras4(KpDeKc(s.K, s.T, dn)), RT = kR * TK(s.T);
  Cuatro n0{};
  for (int k = 0; k < 4; ++k)
    if (r.s[k].coef < 0) n0[k] = moles ? AleatorioEn(g.rnd, 3, 10, 0.5, 1) : 1;
  double P = AleatorioEn(g.rnd, 5, 50, 1, 1) / 10;
  Cuatro p0{}, peq{};
  for (int i = 0;; ++i) {
    if (i == 10) return false;
    APresion(r, Kp, n0, P, p0, peq);
    // At the start, too, the gases are at P.
    double suma = 0;
    for (double x : n0) suma += x;
    Cuatro inicio{};
    for (int k = 0; k < 4; ++k) inicio[k] = n0[k] / suma * P;
    if (CabenGases(r, peq) && CabenGases(r, inicio)) break;
    P = CifrasN(P / 10, 4);
  }
  if (!Positivos(r, peq)) return false;
  if (moles) {
    t.st = g.MsgQUI("En_recip_Temp_nMolINI_Ptot_Kp_ECU");
    t.preguntas = {g.MsgQUI("EGA_PParciales_equil"), g.MsgQUI("EGA_Kc_de_mol/L")};
    t.respuestas = {Valores(r, peq, Magnitud::Presion), KcTexto(Kp / std::pow(RT, dn), dn)};
  } else {
    const double alfa = AlfaDe(r, p0, peq);
    if (!AlfaValido(alfa)) return false;
    t.st = g.MsgQUI("En_recip_Temp_Ptot_Kp_ECU");
    t.preguntas = {g.MsgQUI("EGA_PParciales_equil"), g.MsgQUI("EGA_Grado_disoc")};
    t.respuestas = {Valores(r, peq, Magnitud::Presion), AlfaTexto(alfa)};
  }
  t.valores = {{"%NMOL0%", ListaMoles(g, r, n0)}, {"%P%", Atm(P)},          {"%KP%", N4(Kp) + UnidadKp(dn)},
               {"%ESPE0%", Nombre(g, r.s[A])},    {"%ECUAC%", Ecuacion(r)}, {"%T%", TextoT(s.T)}};
  Cierra(g, t, moles);
  return true;
}

// Draws until the form makes a real problem; the draws are many and most
// reactions serve every form, so this ends after a few tries.
template <class F>
void Intenta(GenContext& g, F forma) {
  Texto t;
  for (int i = 0; i < kIntentos; ++i) {
    t = Texto{};
    if (forma(t)) break;
  }
  g.GP_Statement = t.st;
  g.GP_Solution = t.so;
}

}  // namespace

void Generador3(GenContext& g) {
  switch (g.GP_SeqB % 5 + 1) {
    case 1: Intenta(g, [&](Texto& t) { return MolesYUnDato(g, t); }); break;
    case 2: Intenta(g, [&](Texto& t) { return MolesYAlfa(g, t); }); break;
    case 3: Intenta(g, [&](Texto& t) { return PresionesYUnDato(g, t); }); break;
    case 4: Intenta(g, [&](Texto& t) { return PresionYAlfa(g, t); }); break;
    default: Intenta(g, [&](Texto& t) { return TotalYAlfa(g, t); }); break;
  }
}

void Generador4(GenContext& g) {
  switch (g.GP_SeqB % 5 + 1) {
    case 1: Intenta(g, [&](Texto& t) { return ConcentracionesDeKc(g, t, false); }); break;
    case 2: Intenta(g, [&](Texto& t) { return PresionesDeKp(g, t); }); break;
    case 3: Intenta(g, [&](Texto& t) { return TotalDeKp(g, t, false); }); break;
    case 4: Intenta(g, [&](Texto& t) { return TotalDeKp(g, t, true); }); break;
    default: Intenta(g, [&](Texto& t) { return ConcentracionesDeKc(g, t, true); }); break;
  }
}

}  // namespace ss::mod::ega
