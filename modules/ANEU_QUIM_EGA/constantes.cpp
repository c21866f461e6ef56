// Generators 1 and 2: the equilibrium constants Kc and Kp (their expressions,
// the one from the other, and their values from a mixture at equilibrium),
// and Le Chatelier's principle.
#include <cmath>

#include "modules/ANEU_QUIM_EGA/ega.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ega {
namespace {

const std::string kKc = "&+IK&-I_C", kKp = "&+IK&-I_P";

std::string N4(double x) { return NumCifras(x, 4); }

// A mixture at equilibrium at the temperature of the draw: the gases in moles
// in a vessel of V litres. It starts from the gases of the reactant side and,
// now and then, some of the products; the amounts fall tenfold until every
// gas stays below the pressure at which it would condense.
struct Mezcla {
  std::array<double, 4> n{};  // moles at equilibrium (gases)
  double V = 0;
};

Mezcla MezclaEnEquilibrio(GenContext& g, const Sorteo& s) {
  const Reaccion& r = s.r;
  const double RT = kR * (s.T + 273.15);
  Mezcla m;
  m.V = AleatorioEn(g.rnd, 2, 56, 1, 1);
  std::array<double, 4> n0{};
  for (int k = 0; k < 4; ++k) {
    if (!r.s[k].Gas()) continue;
    if (r.s[k].coef < 0 || AzarSupera(g.rnd, 0.5)) n0[k] = AleatorioEn(g.rnd, 2, 60, 1, 1) / 10;
  }
  // A reaction whose gases all stand on one side needs them to start there.
  bool haySalida = false;
  for (int k = 0; k < 4; ++k) haySalida = haySalida || n0[k] > 0;
  if (!haySalida)
    for (int k = 0; k < 4; ++k)
      if (r.s[k].Gas()) n0[k] = AleatorioEn(g.rnd, 2, 60, 1, 1) / 10;
  for (int intento = 0; intento < 12; ++intento) {
    std::array<double, 4> C0{}, p{};
    for (int k = 0; k < 4; ++k) C0[k] = n0[k] / m.V;
    const std::array<double, 4> C = Equilibra(r, s.K, C0);
    for (int k = 0; k < 4; ++k) {
      m.n[k] = r.s[k].Gas() ? C[k] * m.V : 0;
      p[k] = C[k] * RT;
    }
    if (CabenGases(r, p)) break;
    for (double& x : n0) x /= 10;
  }
  return m;
}

// "[NO_2] = 0.1234 mol/L", "P(NO_2) = 0.1234 atm", "0.1234 mol NO_2".
std::string Concentracion(const Especie& e, double c) {
  return "[" + std::string(e.formula) + "]& =& " + N4(c) + "& mol/L";
}
std::string Presion(const Especie& e, double p) {
  return "&+IP&-I(" + std::string(e.formula) + ")& =& " + N4(p) + "& atm";
}

void Constantes(GenContext& g) {
  const int forma = g.GP_SeqB % 6 + 1;
  const Sorteo s = SorteaReaccion(g, true);
  const Reaccion& r = s.r;
  const double dn = DeltaN(r), RT = kR * (s.T + 273.15);
  const std::string ecuacion = "&LF&SP=5:" + Ecuacion(r) + "&LF";
  const std::string T = TextoT(s.T);
  std::string st = g.MsgQUI(forma == 4 ? "Dada_Reac_temper" : "Dada_reaccion") + ecuacion, so;
  auto valor = [&](const std::string& K, const std::string& v) {
    std::string t = g.MsgQUI("EGA_K_vale");
    Rellena(t, {{"%K%", K}, {"%VAL%", v}});
    return t;
  };
  auto dato = [&] { return g.MsgQUI("EGA_Dato_R_T") + "&LF"; };
  // Kc as the table gives it, and Kp from it as a statement shows it.
  const std::string KcTexto = TextoK(s.K, s.cifras) + UnidadKc(dn);
  const double KpMostrado = Cifras4(KpDeKc(s.K, s.T, dn));
  const std::string KpTexto = N4(KpMostrado) + UnidadKp(dn);

  switch (forma) {
    case 1: {
      const bool p = AzarSupera(g.rnd, 0.5);
      std::string q = g.MsgQUI("Hallar_Kequil");
      Rellena(q, {{"%KE%", p ? kKp : kKc}});
      st += q + "&LF";
      so = "&SP=10:" + (p ? kKp : kKc) + "& =& " + (p ? ExpresionKp(r) : ExpresionKc(r)) + "&LF";
      break;
    }
    case 2:
    case 3: {
      // The expression of one constant, given its value, and the other constant.
      const bool dadoKc = forma == 2;
      std::string q = g.MsgQUI("Hallar_Kequil");
      Rellena(q, {{"%KE%", dadoKc ? valor(kKc, KcTexto) : valor(kKp, KpTexto)}});
      st += "&SP=5:&+Ba)&-B " + q + "&LF&SP=5:&+Bb)&-B " +
            g.MsgQUI(dadoKc ? "Hallar_Kp_de_atm" : "Hallar_Kc_de_mol/L") + "&LF" + dato();
      const double pedido = dadoKc ? KpDeKc(s.K, s.T, dn) : KpMostrado / std::pow(RT, dn);
      so = "&SP=10:&+Ba)&-B " + (dadoKc ? kKc : kKp) + "& =& " + (dadoKc ? ExpresionKc(r) : ExpresionKp(r)) +
           "&LF&SP=10:&+Bb)&-B " + (dadoKc ? kKp : kKc) + "& =& " + N4(pedido) +
           (dadoKc ? UnidadKp(dn) : UnidadKc(dn)) + "&LF";
      break;
    }
    case 4: {
      const bool dadoKc = AzarSupera(g.rnd, 0.5);
      std::string k = g.MsgQUI("Sea_Kequil");
      Rellena(k, {{"%KE%", dadoKc ? kKc + "& =& " + KcTexto : kKp + "& =& " + KpTexto}});
      st += k + " " + g.MsgQUI(dadoKc ? "Hallar_Kp_de_atm" : "Hallar_Kc_de_mol/L") + "&LF" + dato();
      const double pedido = dadoKc ? KpDeKc(s.K, s.T, dn) : KpMostrado / std::pow(RT, dn);
      so = "&SP=10:" + (dadoKc ? kKp : kKc) + "& =& " + N4(pedido) + (dadoKc ? UnidadKp(dn) : UnidadKc(dn)) + "&LF";
      break;
    }
    case 5: {
      // The concentrations of a real equilibrium mixture, as shown, give Kc.
      const Mezcla m = MezclaEnEquilibrio(g, s);
      std::vector<std::string> lista;
      double Kc = 1;
      for (int k = 0; k < 4; ++k) {
        if (!r.s[k].Gas()) continue;
        const double c = Cifras4(m.n[k] / m.V);
        lista.push_back(Concentracion(r.s[k], c));
        Kc *= std::pow(c, r.s[k].coef);
      }
      std::string t = g.MsgQUI(lista.size() == 1 ? "Sea_Concent1_equil" : "Sea_Concent_equil");
      Rellena(t, {{"%LC%", ListaY(g, lista)}});
      st += t + " " + g.MsgQUI("Hallar_Kc_de_mol/L") + "&LF";
      so = "&SP=10:" + kKc + "& =& " + N4(Kc) + UnidadKc(dn) + "&LF";
      break;
    }
    default: {
      const Mezcla m = MezclaEnEquilibrio(g, s);
      int gases = 0, mayor = -1;
      std::array<double, 4> p{};
      for (int k = 0; k < 4; ++k)
        if (r.s[k].Gas()) {
          ++gases;
          p[k] = Cifras4(m.n[k] * RT / m.V);
          if (mayor < 0 || p[k] > p[mayor]) mayor = k;
        }
      if (gases > 1 && AzarSupera(g.rnd, 0.5)) {
        // The total pressure and every partial pressure but the largest: that
        // one is the total less the others.
        double total = 0;
        for (int k = 0; k < 4; ++k) total += r.s[k].Gas() ? m.n[k] * RT / m.V : 0;
        total = Cifras4(total);
        double resto = total;
        std::vector<std::string> lista;
        for (int k = 0; k < 4; ++k)
          if (r.s[k].Gas() && k != mayor) lista.push_back(Presion(r.s[k], p[k])), resto -= p[k];
        p[mayor] = resto;
        double Kp = 1;
        for (int k = 0; k < 4; ++k)
          if (r.s[k].Gas()) Kp *= std::pow(p[k], r.s[k].coef);
        std::string a = g.MsgQUI("Sea_PresTOT_equil");
        std::string b = g.MsgQUI(lista.size() == 1 ? "Sea_PresPARC1_equil" : "Sea_PresPARC_equil");
        Rellena(a, {{"%P%", N4(total) + "& atm"}});
        Rellena(b, {{"%LP%", ListaY(g, lista)}, {"%ESPE%", Nombre(g, r.s[mayor])}});
        st += a + " " + b + " " + g.MsgQUI("Hallar_Kp_de_atm") + "&LF";
        so = "&SP=10:" + kKp + "& =& " + N4(Kp) + UnidadKp(dn) + "&LF";
      } else {
        std::vector<std::string> lista;
        double Kc = 1;
        for (int k = 0; k < 4; ++k) {
          if (!r.s[k].Gas()) continue;
          const double n = Cifras4(m.n[k]);
          lista.push_back(N4(n) + "& mol& " + std::string(r.s[k].formula));
          Kc *= std::pow(n / m.V, r.s[k].coef);
        }
        std::string a = g.MsgQUI("Sea_Moles_equil"), b = g.MsgQUI("Sea_Volum_reaccion");
        Rellena(a, {{"%LM%", ListaY(g, lista)}});
        Rellena(b, {{"%V%", NumTexto(m.V) + "& L"}});
        st += a + " " + b + " " + g.MsgQUI("Hallar_Kc_de_mol/L") + "&LF";
        so = "&SP=10:" + kKc + "& =& " + N4(Kc) + UnidadKc(dn) + "&LF";
      }
      break;
    }
  }
  Rellena(st, {{"%T%", T}});
  g.GP_Statement = st;
  g.GP_Solution = so;
}

// Le Chatelier: which way the equilibrium shifts, by the signs of the
// enthalpy, of the change in moles of gas, and of the side of a species.
struct Cambio {
  bool derecha = false, desplaza = true;
  std::string porque;
};

Cambio PorTemperatura(const Reaccion& r, bool aumenta) {
  return {(r.dH > 0) == aumenta, true, aumenta ? "Porque_AUM_temp_ENDOT" : "Porque_DIS_temp_EXOTE"};
}

Cambio PorPresion(const Reaccion& r, bool aumenta) {
  const double dn = DeltaN(r);
  if (dn == 0) return {false, false, "Porque_pres_NoCambiGAS"};
  return {aumenta ? dn < 0 : dn > 0, true, aumenta ? "Porque_AUM_pres_DismGAS" : "Porque_DIS_pres_AumeGAS"};
}

Cambio PorConcentracion(const Especie& e, bool aumenta) {
  return {(e.coef < 0) == aumenta, true, aumenta ? "Porque_AUM_ConcESPE" : "Porque_DIS_ConcESPE"};
}

std::string Respuesta(GenContext& g, const Cambio& c) {
  if (!c.desplaza) return g.MsgQUI(c.porque);
  return g.MsgQUI(c.derecha ? "Desplaza_a_derecha" : "Desplaza_a_izquierda") + " " + g.MsgQUI(c.porque);
}

void LeChatelier(GenContext& g) {
  const int forma = g.GP_SeqB % 5 + 1;
  const Sorteo s = SorteaReaccion(g, true);
  const Reaccion& r = s.r;
  // A gas whose concentration can change.
  int k;
  do k = static_cast<int>(AleatorioEn(g.rnd, 1, 4, 1, 1)) - 1;
  while (!r.s[k].Gas());
  const std::string especie = Nombre(g, r.s[k]);
  const bool conDH = forma == 1 || forma >= 4;
  std::string st = g.MsgQUI("Dada_reaccion") + "&LF&SP=5:" + Ecuacion(r);
  st += conDH ? "      &Delta&+IH&-I = " + NumTexto(r.dH) + " kJ&LF" : "&LF";
  std::string so;
  auto aumenta = [&] { return AzarSupera(g.rnd, 0.5); };
  switch (forma) {
    case 1: {
      const bool a = aumenta();
      st += g.MsgQUI(a ? "Hallar_efecto_AUMEN_TEMP" : "Hallar_efecto_DISMI_TEMP") + ".&LF";
      so = "&SP=10:" + Respuesta(g, PorTemperatura(r, a)) + "&LF";
      break;
    }
    case 2: {
      const bool a = aumenta();
      st += g.MsgQUI(a ? "Hallar_efecto_AUMEN_PRES" : "Hallar_efecto_DISMI_PRES") + ".&LF";
      so = "&SP=10:" + Respuesta(g, PorPresion(r, a)) + "&LF";
      break;
    }
    case 3: {
      const bool a = aumenta();
      st += g.MsgQUI(a ? "Hallar_efecto_AUMEN_Conc_ESPE" : "Hallar_efecto_DISMI_Conc_ESPE") + ".&LF";
      so = "&SP=10:" + Respuesta(g, PorConcentracion(r.s[k], a)) + "&LF";
      break;
    }
    case 4: {
      const bool t = aumenta(), p = aumenta(), c = aumenta();
      st += g.MsgQUI("Indicar_efecto_en_equil_de") + "&LF" +
            Pregunta('a', g.MsgQUI(t ? "Si_aumentar_Temp" : "Si_disminuir_Temp")) +
            Pregunta('b', g.MsgQUI(p ? "Si_aumentar_Presion" : "Si_disminuir_Presion")) +
            Pregunta('c', g.MsgQUI(c ? "Si_aumentar_Concen_de_ESPE" : "Si_disminuir_Concen_de_ESPE"));
      so = "&SP=10:&+Ba)&-B " + Respuesta(g, PorTemperatura(r, t)) + "&LF&SP=10:&+Bb)&-B " +
           Respuesta(g, PorPresion(r, p)) + "&LF&SP=10:&+Bc)&-B " + Respuesta(g, PorConcentracion(r.s[k], c)) +
           "&LF";
      break;
    }
    default: {
      const double dn = DeltaN(r);
      st += g.MsgQUI("Hallar_TP_favorece_productos") + ".&LF";
      so = "&SP=10:" + g.MsgQUI(r.dH < 0 ? "Debe_ser_Temp_baja" : "Debe_ser_Temp_alta") + " " +
           g.MsgQUI(dn > 0 ? "Debe_ser_Presion_baja" : dn == 0 ? "Presion_no_afecta_equil" : "Debe_ser_Presion_alta") +
           "&LF";
      break;
    }
  }
  for (std::string* t : {&st, &so}) {
    Rellena(*t, {{"%deESP%", "of " + especie}, {"%ESPE%", especie}});
    ReplaceAll(*t, "?.", "?");
  }
  g.GP_Statement = st;
  g.GP_Solution = so;
}

}  // namespace

void Generador1(GenContext& g) { Constantes(g); }
void Generador2(GenContext& g) { LeChatelier(g); }

}  // namespace ss::mod::ega
