// Organic reactions to complete, checked as a teacher checks them: every equation balanced atom by atom from the
// structures as drawn, the blank of the statement standing for the products and nothing else, a name for every
// species that tells the same carbons, groups and bonds as its structure, additions that follow Markovnikov's rule,
// and the catalyst named wherever the benzene ring reacts.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "problems/texto.h"
#include "tests/modules/dis_comun.h"
#include "tests/modules/organica.h"

namespace ss {
namespace {

using test::Atomos;
using Textos = std::vector<std::string>;

Textos Corta(const std::string& t, const std::string& sep) {
  Textos v;
  std::size_t a = 0;
  for (std::size_t b; (b = t.find(sep, a)) != std::string::npos; a = b + sep.size()) v.push_back(t.substr(a, b - a));
  v.push_back(t.substr(a));
  return v;
}

// A term of an equation: its coefficient and what the counter reads.
std::pair<int, std::string> Termino(const std::string& t) {
  std::size_t i = 0;
  while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i;
  return {i ? std::stoi(t.substr(0, i)) : 1, t.substr(i)};
}
Atomos Cuenta(const std::string& s) {
  bool ok = false;
  Atomos a = test::FormulaMolecular(s, &ok);
  EXPECT_TRUE(ok) << s;
  return a;
}

// Inorganic species have their names by heart; organic ones are read from the name's parts.
const std::map<std::string, std::string> kInorganicos = {
    {"H_2O", "water"}, {"O_2", "oxygen"}, {"CO_2", "carbon dioxide"}, {"H_2", "hydrogen"},
    {"NaOH", "sodium hydroxide"}, {"Cl_2", "chlorine"}, {"Br_2", "bromine"}, {"I_2", "iodine"},
    {"HCl", "hydrogen chloride"}, {"HBr", "hydrogen bromide"}, {"HI", "hydrogen iodide"},
    {"NaCl", "sodium chloride"}, {"NaBr", "sodium bromide"}, {"NaI", "sodium iodide"}};
const std::map<std::string, std::string> kPrefijoHalogeno = {{"Cl", "chloro"}, {"Br", "bromo"}, {"I", "iodo"}};

// Carbons a name counts: its stems ("di" before one counts it twice), benzene six.
int CarbonosDelNombre(std::string n) {
  static const std::vector<std::pair<std::string, int>> kRaices = {
      {"meth", 1}, {"eth", 2}, {"prop", 3}, {"but", 4}, {"pent", 5}, {"hex", 6}, {"hept", 7},
      {"oct", 8},  {"non", 9}, {"benz", 6}, {"form", 1}, {"acet", 2}};
  ReplaceAll(n, "ether", "");
  int c = 0;
  for (std::size_t i = 0; i < n.size(); ++i)
    for (const auto& [raiz, k] : kRaices)
      if (n.compare(i, raiz.size(), raiz) == 0) {
        c += k * (i >= 2 && n.compare(i - 2, 2, "di") == 0 ? 2 : 1), i += raiz.size() - 1;
        break;
      }
  return c;
}

void NombreDice(const std::string& formula, std::string nombre) {
  nombre = LCase(nombre);
  if (kInorganicos.count(formula)) {
    EXPECT_EQ(nombre, kInorganicos.at(formula)) << formula;
    return;
  }
  Atomos a = Cuenta(formula);
  EXPECT_EQ(CarbonosDelNombre(nombre), a["C"]) << formula << " / " << nombre;
  for (const auto& [x, prefijo] : kPrefijoHalogeno) {
    const std::size_t p = nombre.find(prefijo);
    EXPECT_EQ(a[x], p == std::string::npos ? 0 : p >= 2 && nombre.compare(p - 2, 2, "di") == 0 ? 2 : 1) << nombre;
  }
  std::string sinBenceno = nombre;
  ReplaceAll(sinBenceno, "benzene", "");
  EXPECT_EQ(formula.find("&=") != std::string::npos, sinBenceno.find("ene") != std::string::npos) << nombre;
  EXPECT_EQ(formula.find("#BC") != std::string::npos, nombre.find("benzene") != std::string::npos) << nombre;
  const bool acido = formula.ends_with("COOH"), ester = formula.find("COO-") != std::string::npos;
  EXPECT_EQ(acido, nombre.ends_with(" acid")) << nombre;
  EXPECT_EQ(ester, nombre.ends_with("ate")) << nombre;
  EXPECT_EQ((!acido && formula.ends_with("OH")) || formula.find("CHOH") != std::string::npos, nombre.ends_with("ol"))
      << nombre;
  EXPECT_EQ(!ester && formula.find("-O-") != std::string::npos, nombre.ends_with(" ether")) << nombre;
}

// The carbons of a chain, bond by bond: "CH_3-CH&=CH_2" {CH_3, CH, CH_2}, the double bond after carbon 1.
Textos Cadena(std::string s, std::size_t* doble = nullptr) {
  if (doble) *doble = Corta(s.substr(0, s.find("&=")), "-").size() - 1;
  ReplaceAll(s, "&=", "-");
  return Corta(s, "-");
}

// HX or water adds its H to the carbon of the double bond that holds more hydrogens.
void Markovnikov(const std::string& alqueno, const std::string& producto) {
  std::size_t d = 0;
  const Textos r = Cadena(alqueno, &d);
  Textos p = Cadena(producto);
  ASSERT_EQ(r.size(), p.size()) << producto;
  std::size_t x = 0;
  while (x < p.size() && std::regex_search(p[x], std::regex("^CH(_[23])?$"))) ++x;
  ASSERT_LT(x, p.size()) << producto;
  const int h0 = Cuenta(r[d])["H"], h1 = Cuenta(r[d + 1])["H"];
  const std::set<std::size_t> bien = h0 == h1 ? std::set{d, d + 1} : std::set{h0 < h1 ? d : d + 1};
  EXPECT_TRUE(bien.count(x) || bien.count(p.size() - 1 - x)) << alqueno << " -> " << producto;
}

// The kind a reaction is, read from its equation.
std::string TipoEsperado(const Textos& izq, const Textos& der) {
  auto hay = [&](const std::string& s) { return std::any_of(izq.begin(), izq.end(), [&](auto& t) { return t.find(s) != std::string::npos; }); };
  if (hay("O_2") && der.size() == 2 && der[0].find("CO_2") != std::string::npos) return "Tipo_ReacOrga_COM";
  if (hay("#BC")) return std::regex_search(izq[1], std::regex("^(Cl|Br|I)_2$")) ? "Tipo_ReacOrga_SUS" : "Tipo_ReacOrga_SFC";
  if (der.size() == 1) return "Tipo_ReacOrga_ADI";
  if (hay("NaOH")) return "Tipo_ReacOrga_ELI";
  if (hay("COOH")) return "Tipo_ReacOrga_EST";
  if (izq[0].ends_with("OH") && izq[1].ends_with("OH")) return "Tipo_ReacOrga_CON";
  return "Tipo_ReacOrga_SUS";
}

void CompruebaItem(const std::string& enunciado, const std::string& ecuacion, const std::string& nombres,
                   const std::string& tipo) {
  const std::string flecha = "  &ars  ";
  const Textos lados = Corta(ecuacion, flecha);
  ASSERT_EQ(lados.size(), 2u) << ecuacion;
  const Textos izq = Corta(lados[0], "  +  "), der = Corta(lados[1], "  +  ");
  Atomos a, b;
  for (const auto& t : izq) test::Suma(a, Cuenta(Termino(t).second), Termino(t).first);
  for (const auto& t : der) test::Suma(b, Cuenta(Termino(t).second), Termino(t).first);
  EXPECT_EQ(test::TextoFormula(a), test::TextoFormula(b)) << ecuacion;

  // The statement hides the first products and shows the rest.
  const std::size_t corte = enunciado.find("............");
  ASSERT_NE(corte, std::string::npos) << enunciado;
  const std::string resto = enunciado.substr(corte + 12);
  EXPECT_EQ(enunciado.substr(0, corte), lados[0] + flecha);
  EXPECT_TRUE(ecuacion.ends_with(resto) && (resto.empty() || resto.starts_with("  +  ")) &&
              lados[1].size() > resto.size()) << enunciado;

  // One name for each species, in order, the line closed by a full stop.
  ASSERT_TRUE(nombres.ends_with(".")) << nombres;
  const Textos n = Corta(nombres.substr(0, nombres.size() - 1), " &ars ");
  ASSERT_EQ(n.size(), 2u) << nombres;
  const Textos nIzq = Corta(n[0], " + "), nDer = Corta(n[1], " + ");
  ASSERT_EQ(nIzq.size(), izq.size()) << nombres;
  ASSERT_EQ(nDer.size(), der.size()) << nombres;
  for (std::size_t i = 0; i < izq.size(); ++i) NombreDice(Termino(izq[i]).second, nIzq[i]);
  for (std::size_t i = 0; i < der.size(); ++i) NombreDice(Termino(der[i]).second, nDer[i]);

  EXPECT_TRUE(tipo.starts_with(test::Texto(TipoEsperado(izq, der))) && tipo.ends_with(".")) << ecuacion << "\n" << tipo;
  // Chlorine and bromine only where fluorine and iodine react otherwise; an alkene from two carbons up; on the
  // benzene ring its catalyst and no chain long enough to rearrange.
  for (const auto& t : izq) EXPECT_EQ(Cuenta(t).count("F"), 0u) << t;
  if (izq[1].ends_with("_2") && izq[1] != "H_2" && !izq[1].ends_with("O_2")) {
    EXPECT_TRUE(izq[1] == "Cl_2" || izq[1] == "Br_2") << ecuacion;
  }
  if (izq[1] == "NaOH") {
    EXPECT_GE(Cuenta(izq[0])["C"], 2) << ecuacion;
  }
  if (izq[0].find("#BC") != std::string::npos) {
    const std::string x = Termino(der[1]).second.substr(1);
    EXPECT_TRUE(tipo.find("Fe" + x + "_3") != std::string::npos || tipo.find("Al" + x + "_3") != std::string::npos) << tipo;
    EXPECT_LE(Cuenta(der[0])["C"], 8) << der[0];
  }
  if (der.size() == 1 && izq[0].find("&=") != std::string::npos && izq[1] != "H_2") Markovnikov(izq[0], der[0]);
}

TEST(ForReacciones, CadaFormaBalanceadaYNombrada) {
  for (int forma = 0; forma < 39; ++forma)
    for (uint64_t semilla = 1; semilla <= 5; ++semilla) {
      const int pedidos = 1 + static_cast<int>((forma + semilla) % 12);
      const test::Problema p = test::GeneraEn("ANEU_QUIM_FOR", 12, forma, pedidos, semilla * 7919 + forma);
      const Textos st = Corta(p.st, "&LF"), so = Corta(p.so, "&LF");
      const std::size_t items = std::clamp(pedidos, 2, 8);
      ASSERT_EQ(st.size(), items + 2) << p.st;
      ASSERT_EQ(so.size(), 3 * items + 1) << p.so;
      EXPECT_EQ(st[0], test::Texto("Complet_ReacOrga_tipo_nombrar"));
      for (std::size_t i = 0; i < items; ++i) {
        const std::string letra(1, static_cast<char>('a' + i));
        const std::string e = "&SP=5:&+B" + letra + ")&-B  ", s = "&SP=10:&+B" + letra + ")&-B ";
        ASSERT_TRUE(st[i + 1].starts_with(e) && so[3 * i].starts_with(s)) << p.st << p.so;
        ASSERT_TRUE(so[3 * i + 1].starts_with("&SP=10:") && so[3 * i + 2].starts_with("&SP=10:")) << p.so;
        CompruebaItem(st[i + 1].substr(e.size()), so[3 * i].substr(s.size()), so[3 * i + 1].substr(7),
                      so[3 * i + 2].substr(7));
      }
    }
}

TEST(ForReacciones, LasFormasSiguenAlContador) {
  // The counter at 38 gives the substitution on methane first, then the elimination.
  const test::Problema p = test::GeneraEn("ANEU_QUIM_FOR", 12, 38, 2, 3);
  const Textos so = Corta(p.so, "&LF");
  ASSERT_EQ(so.size(), 7u) << p.so;
  EXPECT_TRUE(so[0].starts_with("&SP=10:&+Ba)&-B CH_4  +  ")) << so[0];
  EXPECT_NE(so[3].find("  +  NaOH  &ars  "), std::string::npos) << so[3];
}

}  // namespace
}  // namespace ss
