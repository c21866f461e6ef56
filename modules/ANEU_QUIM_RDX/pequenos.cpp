// Generator 1: five small problems, by the sequence number: oxidation
// numbers, the oxidant and reductant of a reaction, preparing a normal
// solution (two ways round), and one half-reaction.
#include <algorithm>
#include <string>
#include <vector>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::rdx {
namespace {

constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";

std::string Letra(int i) { return "&+B" + std::string(1, kLetras[static_cast<std::size_t>(i)]) + ")&-B "; }

// Fifteen formulas in five columns; the answers in three.
void NumerosOxidacion(GenContext& g) {
  std::string st = g.MsgQUI("Indic_NOX") + ".&LF", so;
  std::vector<int> filas;
  for (int i = 1; i <= 15; ++i) {
    int f;
    do f = static_cast<int>(AleatorioEn(g.rnd, 1, kNox, 1, 1)) - 1;
    while (std::find(filas.begin(), filas.end(), f) != filas.end());
    filas.push_back(f);
    const Nox& n = TablaNOX()[static_cast<std::size_t>(f)];
    const int k5 = i % 5 == 0 ? 5 : i % 5, k3 = i % 3 == 0 ? 3 : i % 3;
    st += "&SP=" + std::to_string(15 * k5 - 5) + ":" + Letra(i - 1) + std::string(n.formula);
    if (k5 == 5) st += "&LF";
    so += "&SP=" + std::to_string(30 * k3 - 20) + ":" + Letra(i - 1) + std::string(n.respuesta);
    if (k3 == 3) so += "&LF";
  }
  g.GP_Statement = st;
  g.GP_Solution = so;
}

std::string Corta(const std::string& t) { return t.substr(0, t.find('/')); }

// The oxidant and reductant of a reaction, and their couples.
void Agentes(GenContext& g) {
  EcuacionRedox e;
  for (int k = 0;; k = static_cast<int>(AleatorioEn(g.rnd, 1, 50, 1, 1))) {
    e = EcuacionRedoxAcida(g, g.GP_SeqB + k);
    if (!e.especie[0].empty() && !e.Invertida) break;
  }
  const std::string ox = Corta(e.especie[0]), red = Corta(e.especie[1]), oxd = Corta(e.especie[2]),
                    rd = Corta(e.especie[3]);
  std::string st = g.MsgQUI("Dada_ReacREDOX_NoAJUS") + "&LF" +
                   "    &+Ba)&-B " + g.MsgQUI("Agente_Oxidante_reductor") + ".&LF" +
                   "    &+Bb)&-B " + g.MsgQUI("Forma_oxidada_reduc_de_OXIDANTE") + ".&LF" +
                   "    &+Bc)&-B " + g.MsgQUI("Forma_reducida_oxida_de_REDUCTOR") + ".&LF";
  ReplaceAll(st, "%REAC%", e.sinAjustar);
  ReplaceAll(st, "?.", "?");
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10: &+Ba)&-B " + Capitaliza(g.MsgQUI("oxidante")) + ": " + ox + ",   " +
                  Capitaliza(g.MsgQUI("reductor")) + ": " + rd + ".&LF" + "&SP=10: &+Bb)&-B " + ox + " / " + red +
                  ";    &+Bc)&-B " + rd + " / " + oxd + ".&LF";
}

// A normal solution of an oxidant: the mass to weigh for a volume of given
// normality (form 3), or the molarity and normality of a solution made (form 4).
void Normalidad(GenContext& g, bool daNormalidad) {
  const Normal& s = TablaNormales()[static_cast<std::size_t>(AleatorioEn(g.rnd, 1, kNormales, 1, 1)) - 1];
  const double M = AleatorioEn(g.rnd, 5, s.maxMolar * 100, 1, 1) / 100;
  const double N = M * s.electrones;
  const double V = AleatorioEn(g.rnd, 50, 900, 5, 1);
  const double masa = M * V / 1000 * s.masa;
  // What is asked follows from the values as the page shows them.
  std::string st = g.MsgQUI(daNormalidad ? "RDX_Prepa_V_NOR" : "RDX_Prepa_V_m") + "&LF" + g.MsgQUI("Masa_molar") +
                   ": " + std::string(s.formula) + " = " + NumTexto(s.masa) + " g/mol.&LF";
  const std::pair<std::string_view, std::string> r[] = {
      {"%V%", NumTexto(V) + "& mL"},
      {"%NOR%", NumCifras(N, 4) + "& N& (equiv/L)"},
      {"%NESP1%", ConFormula(g, s.nombre, s.formula)},
      {"%deNESP1%", "of " + ConFormula(g, s.nombre, s.formula)},
      {"%FOR1%", std::string(s.formula)},
      {"%NESP2%", ConFormula(g, s.nombreReducida, s.reducida)},
      {"%deNESP2%", "of " + ConFormula(g, s.nombreReducida, s.reducida)},
      {"%FOR2%", std::string(s.reducida)},
      {"%MS%", NumCifras(masa, 4) + "& g"},
  };
  for (const auto& [de, por] : r) ReplaceAll(st, de, por);
  g.GP_Statement = st;
  if (daNormalidad) {
    g.GP_Solution = "&SP=10: " + NumCifras(masa, 4) + " g,    " + NumCifras(M, 4) + " mol/L.&LF";
  } else {
    const double m = Cifras4(masa) / s.masa / (V / 1000);
    g.GP_Solution = "&SP=10: " + NumCifras(m, 4) + " mol/L,    " + NumCifras(m * s.electrones, 4) + " equiv/L.&LF";
  }
}

// One half-reaction, as a reduction or, half the time, turned into an oxidation.
void Semirreaccion(GenContext& g) {
  const Semi& s = TablaSemireacciones()[static_cast<std::size_t>(g.GP_SeqB % 14)];
  const std::string_view r = s.reaccion;
  const std::size_t igual = r.find(" = ");
  std::string izq(r.substr(0, igual)), der(r.substr(igual + 3));
  std::string e1(s.oxidada), e2(s.reducida);
  std::string_view tipo = "Reduccion", funcion = "oxidante", forma1 = "Forma_oxidada", forma2 = "Forma_reducida";
  if (AzarSupera(g.rnd, 0.5)) {
    std::swap(izq, der);
    std::swap(e1, e2);
    tipo = "Oxidacion", funcion = "reductor", forma1 = "Forma_reducida", forma2 = "Forma_oxidada";
  }
  std::string st = g.MsgQUI("Para_el_par_OX/RD_indicar") + "&LF" + "    &+Ba)&-B " +
                   g.MsgQUI(s.medio == 'A' ? "Semireac_ajus_ACIDO" : "Semireac_ajus_BASICO") + ".&LF" +
                   "    &+Bb)&-B " + g.MsgQUI("Tipo_semireac_OX_RD") + ".&LF" + "    &+Bc)&-B " +
                   g.MsgQUI("Funcion_de_E1_OX_RD") + ".&LF" + "    &+Bd)&-B " + g.MsgQUI("Espacie_RED_Especie_OXI") +
                   ".&LF";
  ReplaceAll(st, "%E1E2%", e1 + "& /& " + e2);
  ReplaceAll(st, "%E1%", e1);
  ReplaceAll(st, "?.", "?");
  g.GP_Statement = st;
  g.GP_Solution = "&SP=10: &+Ba)&-B " + izq + " &ars " + der + "&LF&SP=10: &+Bb)&-B " + Capitaliza(g.MsgQUI(tipo)) +
                  ";    &+Bc)&-B " + e1 + ": " + g.MsgQUI(funcion) + ";    &+Bd)&-B " + g.MsgQUI(forma1) + ": " + e1 +
                  ",  " + g.MsgQUI(forma2) + ": " + e2 + ".&LF";
}

}  // namespace

void Generador1(GenContext& g) {
  switch (g.GP_SeqB % 5 + 1) {
    case 1: NumerosOxidacion(g); break;
    case 2: Agentes(g); break;
    case 3: Normalidad(g, true); break;
    case 4: Normalidad(g, false); break;
    default: Semirreaccion(g); break;
  }
}

}  // namespace ss::mod::rdx
