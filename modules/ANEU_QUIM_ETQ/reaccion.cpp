// Generators 1 and 6: the amounts of one reaction of the table from one given
// amount (a mass, pure or impure, moles, a gas volume or a solution volume of
// a reactant, or the mass of a product wanted).
#include <array>
#include <cmath>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::etq {
namespace {

constexpr double kR = 0.082057;  // atm L / (mol K)

// Variants 1..12 by threes: the given amount of substance 1 is a mass (1-3),
// moles (4-6), a gas volume (7-9) or a solution volume (10-12); within each
// three, the questions ask a mass and moles of products (first), a gas volume
// and a mass of products (second), or the solution volume of substance 1 and
// a product's mass (third, the given amount then being of substance 2).
bool Admite(int t, const ReaccionETQ& r) {
  if ((t == 2 || t == 5 || t == 8 || t == 11) && !r.GasProducto) return false;
  if (t >= 7 && t <= 9 && !r.GasReactivo) return false;
  if ((t == 7 || t == 8) && r.GasReactivo && r.AcReactivo) return false;
  if (t % 3 == 0 && !(r.AcReactivo && r.nReactivos >= 2)) return false;
  if (t >= 10 && !r.AcReactivo) return false;
  if (t == 12 && !(r.s[0].fase == "ac" && r.s[1].fase == "ac")) return false;
  return true;
}

// Everything one reaction gives from its given amount.
struct Cantidades {
  ReaccionETQ r;
  double T = 25, P = 1, pureza = 100;
  double rendimiento = 100;  // % of the products the reaction gives
  std::array<double, 2> molar{}, volDis{};
  std::array<double, 4> moles{}, masa{}, volGas{};
  int id = 2, id2 = 2;  // the products asked about (0-based substance numbers)
  std::string ecuacion;  // as the statement shows it
};

// The equation as shown: balanced, or stripped with a note when stripping
// removed coefficients.
std::string EcuacionMostrada(GenContext& g, const ReaccionETQ& r) {
  if (AzarSupera(g.rnd, 0.4)) return r.ajustada;
  if (r.sinAjustar == r.ajustada) return r.sinAjustar;
  return r.sinAjustar + "    " + g.MsgQUI("Ecua_No_Ajustada");
}

// Temperature and pressure of the gases. Pressures stay within 0.5-5 atm so
// that ammonia and propane remain gases at every temperature drawn, and a
// reaction in water solution stays below its boiling point.
void Condiciones(GenContext& g, Cantidades& c, double pUno, double tUno) {
  const bool enAgua = c.r.AcReactivo;
  c.T = AleatorioEn(g.rnd, 10, enAgua ? 90 : 400, 1, 1);
  c.P = AleatorioEn(g.rnd, 5, 50, 1, 1) / 10;
  if (AzarSupera(g.rnd, pUno)) c.P = 1;
  if (AzarSupera(g.rnd, tUno)) c.T = 25;
  if (AzarSupera(g.rnd, 0.6)) c.T = 0, c.P = 1;
}

// The moles of every substance from those of substance 1, and what they weigh
// and fill as a gas or a solution.
void Resto(Cantidades& c) {
  for (int k = 0; k < 4; ++k) {
    const Sustancia& s = c.r.s[k];
    if (s.coef == 0) continue;
    c.moles[k] = std::fabs(c.moles[0] / c.r.s[0].coef * s.coef) * (s.coef > 0 ? c.rendimiento / 100 : 1);
    c.masa[k] = c.moles[k] * s.masaMolar;
    c.volGas[k] = c.moles[k] * kR * (c.T + 273.15) / c.P;
    if (k < 2) c.volDis[k] = c.moles[k] / c.molar[k] * 1000;
  }
}

// The products asked about: a gaseous one first when there is one.
void Productos(GenContext& g, Cantidades& c) {
  auto producto = [&](int k) { return c.r.s[k].coef > 0; };
  do c.id = static_cast<int>(AleatorioEn(g.rnd, 2, 4, 1, 1)) - 1;
  while (!producto(c.id));
  if (c.r.GasProducto)
    for (int k = 1; k < 4; ++k)
      if (producto(k) && c.r.s[k].fase == "g") {
        c.id = k;
        break;
      }
  c.id2 = c.id;
  if (c.r.nProductos > 1) {
    do c.id2 = static_cast<int>(AleatorioEn(g.rnd, 2, 4, 1, 1)) - 1;
    while (!producto(c.id2) || c.id2 == c.id);
  }
}

std::string N4(double x) { return NumCifras(x, 4); }

// x to the four significant figures a statement shows.
double Cifras4(double x) { return x == 0 ? 0 : RedondeaPot(x, std::floor(std::log10(std::fabs(x))) - 4); }

// The given amount as the statement shows it, and every other amount from
// that one, so that a student working from the page finds the answers:
// `dado` is what is given (0 a mass, 1 moles, 2 a gas volume, 3 a solution
// volume) of substance `k`.
void DesdeLoMostrado(Cantidades& c, int dado, int k) {
  const double pureza = c.pureza / 100;
  double n = 0;
  switch (dado) {
    case 0: n = Cifras4(c.masa[k] / pureza) * pureza / c.r.s[k].masaMolar; break;
    case 1: n = Cifras4(c.moles[k]); break;
    case 2: n = c.P * Cifras4(c.volGas[k]) / kR / (c.T + 273.15); break;
    default: n = Cifras4(c.volDis[k]) / 1000 * c.molar[k]; break;
  }
  c.moles[0] = n / std::fabs(c.r.s[k].coef) * std::fabs(c.r.s[0].coef);
  Resto(c);
}

// The placeholders every statement of the module may hold.
void Rellena(GenContext& g, const Cantidades& c, std::string& t) {
  auto nombre = [&](int k) { return g.MsgQUI(c.r.s[k].nombre); };
  const double p = c.pureza / 100;
  const std::pair<std::string_view, std::string> r[] = {
      {"%MASAIMP1%", N4(c.masa[0] / p) + "& g"},   {"%MASAIMP2%", N4(c.masa[1] / p) + "& g"},
      {"%MOLES1%", N4(c.moles[0]) + "& mol"},      {"%MOLES2%", N4(c.moles[1]) + "& mol"},
      {"%VOLGAS1%", N4(c.volGas[0]) + "& L"},      {"%VOLGAS2%", N4(c.volGas[1]) + "& L"},
      {"%VOLDIS1%", N4(c.volDis[0]) + "& mL"},     {"%VOLDIS2%", N4(c.volDis[1]) + "& mL"},
      {"%MOLAR1%", N4(c.molar[0]) + "& mol/L"},    {"%MOLAR2%", N4(c.molar[1]) + "& mol/L"},
      {"%RIQUE%", NumTexto(c.pureza) + "_ %"},     {"%ECUANOAJU%", c.ecuacion},
      {"%REN%", NumTexto(c.rendimiento) + "_ %"},
      {"%MASAID2%", N4(c.masa[c.id2]) + "& g"},    {"%VOLID%", N4(c.volGas[c.id]) + "& L"},
      {"%T%", NumTexto(c.T) + "& \xB0" "C"},       {"%P%", N4(c.P) + "& atm"},
      {"%deNN1%", DeNombre(nombre(0), false)},     {"%deNN2%", DeNombre(nombre(1), false)},
      {"%deIDPROD2%", DeNombre(nombre(c.id2), false)}, {"%deIDPROD%", DeNombre(nombre(c.id), false)},
      {"%NN1%", nombre(0)},                        {"%NN2%", nombre(1)},
      {"%IDPROD2%", nombre(c.id2)},                {"%IDPROD%", nombre(c.id)},
  };
  for (const auto& [de, por] : r) ReplaceAll(t, de, por);
  ReplaceAll(t, "?.", "?");
}

// The molar masses the answers use, so that the page holds every datum.
std::string MasasDe(GenContext& g, const ReaccionETQ& r) {
  std::vector<std::pair<std::string, double>> masas;
  for (const Sustancia& x : r.s)
    if (x.coef != 0) masas.emplace_back(x.formula, x.masaMolar);
  return LineaMasas(g, masas);
}

// The amount of substance 1 drawn: a mass (dado 0, of purity c.pureza),
// moles (1) or a gas volume (2).
void DibujaDado(GenContext& g, Cantidades& c, int dado) {
  double masa = AleatorioEn(g.rnd, 8, 60, 1, 1);
  if (AzarSupera(g.rnd, 0.8)) masa = AleatorioEn(g.rnd, 60, 500, 5, 1);
  c.moles[0] = masa * c.pureza / 100 / c.r.s[0].masaMolar;
  if (dado == 1) c.moles[0] = AleatorioEn(g.rnd, 2, 90, 1, 1) / 10;
  if (dado == 2) c.moles[0] = c.P * (AleatorioEn(g.rnd, 20, 2000, 1, 1) / 10) / kR / (c.T + 273.15);
}

void Reaccion(GenContext& g, bool soloSimple) {
  int t = g.GP_SeqB % 12 + 1;
  if (AzarSupera(g.rnd, 0.8)) t = static_cast<int>(AleatorioEn(g.rnd, 1, 12, 1, 1));
  if (soloSimple) t = AzarSupera(g.rnd, 0.5) ? 4 : 1;
  const int s = (t % 3 == 1 && AzarSupera(g.rnd, 0.4)) ? 20 : 0;

  Cantidades c;
  do c.r = DrawReaccionETQ(g);
  while (!Admite(t, c.r));
  c.ecuacion = EcuacionMostrada(g, c.r);
  Condiciones(g, c, 0.6, 0.6);
  for (double& m : c.molar) m = AleatorioEn(g.rnd, 3, 50, 5, 1) / 10;
  c.pureza = AleatorioEn(g.rnd, 55, 95, 1, 1);
  if (AzarSupera(g.rnd, 0.4)) c.pureza = 100;
  DibujaDado(g, c, t >= 10 ? 0 : (t - 1) / 3);  // a solution volume comes from a drawn mass
  Resto(c);
  Productos(g, c);

  // The opening by the given amount, the questions and answers by the kind.
  const bool pura = c.pureza == 100;
  static constexpr std::string_view kDado[4] = {"ETQ_ecu_Masa%_NN", "ETQ_ecu_Moles_NN", "ETQ_ecu_VolGASTP_NN",
                                                "ETQ_ecu_VolDis_NN"};
  const int dado = (t - 1) / 3, kind = (t - 1) % 3;
  if (s == 0) {
    DesdeLoMostrado(c, dado, kind == 2 ? 1 : 0);
  } else {
    const double pureza = c.pureza;
    c.pureza = 100;  // what is given is the mass of the pure product
    DesdeLoMostrado(c, 0, c.id2);
    c.pureza = pureza;
  }
  std::string apertura(kDado[dado]);
  ReplaceAll(apertura, "%", pura ? "Pur" : "Imp");
  apertura += kind == 2 ? "2" : "1";
  std::string qa, qb, ra, rb;
  if (s == 0 && kind == 0) {
    qa = "Hallar_Masa_IDPROD2", qb = "Hallar_Mol_IDPROD";
    ra = N4(c.masa[c.id2]) + " g,    ", rb = N4(c.moles[c.id]) + " mol.&LF";
  } else if (s == 0 && kind == 1) {
    qa = "Hallar_Vol_IDPROD_TP", qb = "Hallar_Masa_IDPROD2";
    ra = N4(c.volGas[c.id]) + " L,    ", rb = N4(c.masa[c.id2]) + " g.&LF";
  } else if (s == 0) {
    qa = "Hallar_VolDis_NN1", qb = "Hallar_Masa_IDPROD";
    ra = N4(c.volDis[0]) + " mL,    ", rb = N4(c.masa[c.id]) + " g.&LF";
  } else {
    // The mass of a product wanted: how much of substance 1 it takes.
    static constexpr std::string_view kPide[4] = {"Hallar_Masa_NN1_", "Hallar_Mol_NN1", "Hallar_Vol_NN1_TP",
                                                  "Hallar_VolDis_NN1"};
    apertura = dado == 2 ? "ETQ_ObtMasaIDRPOD2_ecu_NN1_gas"
               : dado == 3 ? "ETQ_ObtMasaIDRPOD2_ecu_NN1_dis"
                           : std::string("ETQ_ObtMasaIDRPOD2_ecu_NN1") + (pura ? "" : "_imp");
    qa = std::string(kPide[dado]) + (dado == 0 ? (pura ? "puro" : "impuro") : "");
    qb = "Hallar_Mol_IDPROD";
    const double respuesta[4] = {c.masa[0] * 100 / c.pureza, c.moles[0], c.volGas[0], c.volDis[0]};
    static constexpr std::string_view kUnidad[4] = {" g,    ", " mol,    ", " L,    ", "& mL,    "};
    ra = N4(respuesta[dado]) + std::string(kUnidad[dado]);
    rb = N4(c.moles[c.id]) + " mol.&LF";
  }
  std::string st = g.MsgQUI(apertura) + "&LF" + MasasDe(g, c.r) + g.MsgQUI("DCH") + ":&LF&SP=5:&+Ba)&-B " + g.MsgQUI(qa) +
                   ".&LF&SP=5:&+Bb)&-B " + g.MsgQUI(qb) + ".&LF";
  Rellena(g, c, st);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:&+Ba)&-B " + ra + "&+Bb)&-B " + rb;
}

// Yield: the products the reaction really gives, or the yield from what it gave.
void Rendimiento(GenContext& g) {
  int t = g.GP_SeqB % 8 + 1;
  if (AzarSupera(g.rnd, 0.8)) t = static_cast<int>(AleatorioEn(g.rnd, 1, 8, 1, 1));
  if (t == 3 || t == 6) t = static_cast<int>(AleatorioEn(g.rnd, 1, 8, 1, 1));
  if (t == 3 || t == 6) t = static_cast<int>(AleatorioEn(g.rnd, 1, 2, 1, 1));
  const bool pideRendimiento = AzarSupera(g.rnd, 0.5);
  const bool gas = t == 2 || t == 5 || t == 8;
  Cantidades c;
  do c.r = DrawReaccionETQ(g);
  while ((gas && !c.r.GasProducto) || ((t == 7 || t == 8) && (!c.r.GasReactivo || c.r.AcReactivo)));
  c.ecuacion = EcuacionMostrada(g, c.r);
  Condiciones(g, c, 0.5, 0.5);
  for (double& m : c.molar) m = AleatorioEn(g.rnd, 3, 50, 5, 1) / 10;
  c.pureza = AleatorioEn(g.rnd, 55, 90, 1, 1);
  if (AzarSupera(g.rnd, 0.2)) c.pureza = 100;
  c.rendimiento = AleatorioEn(g.rnd, 30, 85, 1, 1);
  const int dado = (t - 1) / 3;
  DibujaDado(g, c, dado);
  Resto(c);
  Productos(g, c);
  DesdeLoMostrado(c, dado, 0);

  static constexpr std::string_view kApertura[3] = {"ETQ_ecu_Masa%_NN1", "ETQ_ecu_Moles_NN1", "ETQ_ecu_VolGASTP_NN1"};
  std::string apertura(kApertura[dado]);
  ReplaceAll(apertura, "%", c.pureza == 100 ? "Pur" : "Imp");
  std::string segunda, preguntas, sol;
  auto pregunta = [&](char letra, std::string_view clave) {
    return "&SP=5:&+B" + std::string(1, letra) + ")&-B " + g.MsgQUI(clave) + ".&LF";
  };
  if (!pideRendimiento) {
    segunda = "ETQ_Rendim_es";
    if (!gas) {
      preguntas = pregunta('a', "Hallar_Masa_IDPROD2") + pregunta('b', "Hallar_Mol_IDPROD");
      sol = N4(c.masa[c.id2]) + " g,      &+Bb)&-B " + N4(c.moles[c.id]) + " mol.&LF";
    } else {
      preguntas = pregunta('a', "Hallar_Vol_IDPROD_TP") + pregunta('b', "Hallar_Masa_IDPROD2");
      sol = N4(c.volGas[c.id]) + " L,      &+Bb)&-B " + N4(c.masa[c.id2]) + " g.&LF";
    }
  } else {
    // What was obtained is given as the page shows it; the yield follows from it.
    const int dado = gas ? c.id : c.id2;
    const double teorico = c.moles[dado] * 100 / c.rendimiento;
    const double obtenido = gas ? c.P * Cifras4(c.volGas[c.id]) / kR / (c.T + 273.15)
                                : Cifras4(c.masa[c.id2]) / c.r.s[c.id2].masaMolar;
    const double rendimiento = obtenido / teorico * 100;
    segunda = gas ? "VolTP_IDPROD_es" : "Masa_IDPROD2_es";
    preguntas = pregunta('a', "Hallar_rendim_reac");
    sol = NumCifras(rendimiento, 3) + "_ %";
    if (gas || c.id != c.id2) {
      preguntas += pregunta('b', "Hallar_Masa_IDPROD");
      // What else formed, from what was obtained as the page gives it.
      const double masa = obtenido / c.r.s[dado].coef * c.r.s[c.id].coef * c.r.s[c.id].masaMolar;
      sol += (gas ? ",      " : ",     ") + std::string("&+Bb)&-B ") + N4(masa) + " g";
    }
    sol += ".&LF";
  }
  std::string st = g.MsgQUI(apertura) + " " + g.MsgQUI(segunda) + "&LF" + MasasDe(g, c.r) + g.MsgQUI("DCH") +
                   ":&LF" + preguntas;
  Rellena(g, c, st);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:&+Ba)&-B " + sol;
}

// Limiting reagent: two reactants in given amounts, one of them in excess.
void Limitante(GenContext& g) {
  int t = g.GP_SeqB % 4 + 1;
  if (AzarSupera(g.rnd, 0.8)) t = static_cast<int>(AleatorioEn(g.rnd, 1, 4, 1, 1));
  Cantidades c;
  do c.r = DrawReaccionETQ(g);
  while (c.r.nReactivos != 2 || (t == 2 && !(c.r.GasReactivo && !c.r.AcReactivo)) ||
         (t >= 3 && !c.r.AcReactivo) || (t == 4 && !(c.r.s[0].fase == "ac" && c.r.s[1].fase == "ac")));
  c.ecuacion = c.r.ajustada;
  Condiciones(g, c, 0.6, 0.6);
  for (double& m : c.molar) m = AleatorioEn(g.rnd, 3, 50, 5, 1) / 10;
  DibujaDado(g, c, t == 2 ? 2 : 0);
  Resto(c);
  const int limitante = static_cast<int>(AleatorioEn(g.rnd, 1, 2, 1, 1)) - 1, exceso = 1 - limitante;
  c.moles[exceso] *= AleatorioEn(g.rnd, 125, 200, 1, 1) / 100;
  c.masa[exceso] = c.moles[exceso] * c.r.s[exceso].masaMolar;
  c.volGas[exceso] = c.moles[exceso] * kR * (c.T + 273.15) / c.P;
  c.volDis[exceso] = c.moles[exceso] / c.molar[exceso] * 1000;
  do c.id = static_cast<int>(AleatorioEn(g.rnd, 3, 4, 1, 1)) - 1;
  while (c.r.s[c.id].coef <= 0);
  c.id2 = c.id;
  // The amounts as the page shows them decide, and the products follow from
  // the reactant that runs out.
  std::array<double, 2> n{};
  for (int k = 0; k < 2; ++k) {
    const bool solucion = t == 4 || (t == 3 && k == 0);
    n[k] = t == 2 && k == 0 ? c.P * Cifras4(c.volGas[0]) / kR / (c.T + 273.15)
           : solucion       ? Cifras4(c.volDis[k]) / 1000 * c.molar[k]
                            : Cifras4(c.masa[k]) / c.r.s[k].masaMolar;
  }
  const double avance = std::min(n[0] / std::fabs(c.r.s[0].coef), n[1] / std::fabs(c.r.s[1].coef));
  const int L = n[0] / std::fabs(c.r.s[0].coef) <= n[1] / std::fabs(c.r.s[1].coef) ? 0 : 1;
  const double masaProducto = avance * c.r.s[c.id].coef * c.r.s[c.id].masaMolar;

  static constexpr std::string_view kApertura[4] = {"ETQ_ecu_Masa_NN2_Masa_NN1", "ETQ_ecu_Masa_NN2_VGasTP_NN1",
                                                    "ETQ_ecu_Masa_NN2_VDis_NN1", "ETQ_ecu_VolDisNN2_VolDisNN1"};
  std::string st = g.MsgQUI(kApertura[t - 1]) + "&LF" + MasasDe(g, c.r) + g.MsgQUI("DCH") + ": &+Ba)&-B& " +
                   g.MsgQUI("Hallar_ReacLimit") + ". &+Bb)&-B& " + g.MsgQUI("Hallar_Masa_IDPROD") + ".&LF";
  Rellena(g, c, st);
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10:&+Ba)&-B " + std::string(c.r.s[L].formula) + ", " + g.MsgQUI(c.r.s[L].nombre) +
                  ",     &+Bb)&-B " + N4(masaProducto) + " g.&LF";
}

}  // namespace

std::string LineaMasas(GenContext& g, const std::vector<std::pair<std::string, double>>& masas) {
  std::string t;
  for (const auto& [formula, masa] : masas) t += (t.empty() ? "" : ",  ") + formula + " = " + NumTexto(masa);
  return g.MsgQUI("Masas_molares") + ": " + t + " (g/mol)&LF";
}

void Generador1(GenContext& g) { Reaccion(g, false); }
void Generador2(GenContext& g) { Rendimiento(g); }
void Generador3(GenContext& g) { Limitante(g); }
void Generador6(GenContext& g) { Reaccion(g, true); }

}  // namespace ss::mod::etq
