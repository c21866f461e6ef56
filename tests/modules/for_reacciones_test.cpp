// Organic reactions checked as a teacher checks them: balanced atom by atom from the structures as drawn, the blank
// standing for the first products, every species named after its structure, Markovnikov additions, the kind named.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>

#include "problems/texto.h"
#include "tests/modules/atomos.h"
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

Atomos Cuenta(const std::string& s) {
  bool ok = false;
  Atomos a = test::FormulaMolecular(s, &ok);
  EXPECT_TRUE(ok) << s;
  return a;
}

// The atoms of one side: every formula times its coefficient.
Atomos Lado(const std::string& lado) {
  Atomos a;
  for (const std::string& f : test::Formulas(lado)) test::Suma(a, Cuenta(f), test::Coeficiente(lado, f));
  return a;
}

// Inorganic species by heart; an organic name must count the structure's carbons (a stem after "di" twice) and
// halogens, and say its double bond, ring and function.
void NombreDice(const std::string& formula, std::string nombre) {
  static const std::map<std::string, std::string> kInorganicos = {
      {"H_2O", "water"}, {"O_2", "oxygen"}, {"CO_2", "carbon dioxide"}, {"H_2", "hydrogen"},
      {"NaOH", "sodium hydroxide"}, {"Cl_2", "chlorine"}, {"Br_2", "bromine"}, {"I_2", "iodine"},
      {"HCl", "hydrogen chloride"}, {"HBr", "hydrogen bromide"}, {"HI", "hydrogen iodide"},
      {"NaCl", "sodium chloride"}, {"NaBr", "sodium bromide"}, {"NaI", "sodium iodide"}};
  static const std::vector<std::tuple<std::string, std::string, int>> kRaices = {
      {"meth", "C", 1}, {"eth", "C", 2}, {"prop", "C", 3}, {"but", "C", 4}, {"pent", "C", 5}, {"hex", "C", 6},
      {"hept", "C", 7}, {"oct", "C", 8}, {"non", "C", 9}, {"benz", "C", 6}, {"form", "C", 1}, {"acet", "C", 2},
      {"chloro", "Cl", 1}, {"bromo", "Br", 1}, {"iodo", "I", 1}};
  nombre = LCase(nombre);
  if (kInorganicos.count(formula)) {
    EXPECT_EQ(nombre, kInorganicos.at(formula)) << formula;
    return;
  }
  Atomos a = Cuenta(formula), dice;
  const std::string n = std::regex_replace(nombre, std::regex("ether"), "");
  for (std::size_t i = 0; i < n.size(); ++i)
    for (const auto& [raiz, x, k] : kRaices)
      if (n.compare(i, raiz.size(), raiz) == 0) {
        dice[x] += k * (i >= 2 && n.compare(i - 2, 2, "di") == 0 ? 2 : 1);
        i += raiz.size() - 1;
        break;
      }
  for (const char* x : {"C", "Cl", "Br", "I"}) EXPECT_EQ(dice[x], a[x]) << x << " in " << formula << " / " << nombre;
  const bool acido = formula.ends_with("COOH"), ester = formula.find("COO-") != std::string::npos;
  const bool ene = std::regex_replace(nombre, std::regex("benzene"), "").find("ene") != std::string::npos;
  EXPECT_EQ(formula.find("&=") != std::string::npos, ene) << nombre;
  EXPECT_EQ(formula.find("#BC") != std::string::npos, nombre.find("benzene") != std::string::npos) << nombre;
  EXPECT_EQ(acido, nombre.ends_with(" acid")) << nombre;
  EXPECT_EQ(ester, nombre.ends_with("ate")) << nombre;
  EXPECT_EQ(!acido && (formula.ends_with("OH") || formula.find("CHOH") != std::string::npos), nombre.ends_with("ol"));
  EXPECT_EQ(!ester && formula.find("-O-") != std::string::npos, nombre.ends_with(" ether")) << nombre;
}

// HX or water adds its H to the carbon of the double bond that holds more hydrogens: the other gets the group.
void Markovnikov(const std::string& alqueno, const std::string& producto) {
  const std::size_t d = Corta(alqueno.substr(0, alqueno.find("&=")), "-").size() - 1;  // carbons d, d + 1
  const Textos r = Corta(std::regex_replace(alqueno, std::regex("&="), "-"), "-"), p = Corta(producto, "-");
  ASSERT_EQ(r.size(), p.size()) << producto;
  std::size_t x = 0;
  while (x < p.size() && std::regex_match(p[x], std::regex("CH(_[23])?"))) ++x;
  const int h0 = Cuenta(r[d])["H"], h1 = Cuenta(r[d + 1])["H"];
  auto bien = [&](std::size_t c) { return (c == d && h0 <= h1) || (c == d + 1 && h1 <= h0); };
  EXPECT_TRUE(bien(x) || bien(p.size() - 1 - x)) << alqueno << " -> " << producto;  // read from either end
}

// The kind a reaction is, read from its equation, with the catalyst the benzene ring needs.
std::string Tipo(const Textos& izq, const Textos& der) {
  auto hay = [&](const char* s) {
    return std::any_of(izq.begin(), izq.end(), [&](const std::string& t) { return t.find(s) != t.npos; });
  };
  const std::string x = der.size() > 1 ? der[1].substr(1) : "";
  const bool halogeno = izq[1] == x + "_2";
  if (hay("#BC"))
    return test::Texto(halogeno ? "Tipo_ReacOrga_SUS" : "Tipo_ReacOrga_SFC") + " (catalyst: " +
           (halogeno ? "Fe" : "Al") + x + "_3)";
  const char* k = hay("O_2") && der[0].find("CO_2") != der[0].npos ? "COM"
                  : der.size() == 1                                  ? "ADI"
                  : hay("NaOH")                                      ? "ELI"
                  : hay("COOH")                                      ? "EST"
                  : izq[0].ends_with("OH") && izq[1].ends_with("OH") ? "CON"
                                                                     : "SUS";
  return test::Texto(std::string("Tipo_ReacOrga_") + k);
}

TEST(ForReacciones, EveryFormBalancedAndNamed) {
  static const std::regex enunciado("&SP=5:&\\+B([a-h])\\)&-B  (.*?)&LF"),
      solucion("&SP=10:&\\+B([a-h])\\)&-B (.*?)&LF&SP=10:(.*?)\\.&LF&SP=10:(.*?)\\.&LF");
  for (int forma = 0; forma < 39; ++forma)
    for (uint64_t semilla = 1; semilla <= 5; ++semilla) {
      const int pedidos = 1 + static_cast<int>((forma + semilla) % 12);
      const test::Problema p = test::GeneraEn("ANEU_QUIM_FOR", 12, forma, pedidos, semilla * 7919 + forma);
      ASSERT_TRUE(p.st.starts_with(test::Texto("Complet_ReacOrga_tipo_nombrar") + "&LF")) << p.st;
      Textos cortas;
      for (std::sregex_iterator it(p.st.begin(), p.st.end(), enunciado), end; it != end; ++it) {
        EXPECT_EQ((*it)[1].str()[0], 'a' + static_cast<char>(cortas.size())) << p.st;
        cortas.push_back((*it)[2]);
      }
      std::size_t k = 0;
      for (std::sregex_iterator it(p.so.begin(), p.so.end(), solucion), end; it != end; ++it) {
        const std::smatch& m = *it;
        ASSERT_LT(k, cortas.size()) << p.so;
        EXPECT_EQ(m[1].str()[0], 'a' + static_cast<char>(k)) << p.so;
        const std::string ecuacion = m[2], corta = cortas[k++];
        const Textos lados = Corta(ecuacion, "  &ars  "), nombres = Corta(m[3], " &ars ");
        ASSERT_TRUE(lados.size() == 2 && nombres.size() == 2) << ecuacion << "\n" << m[3];
        EXPECT_EQ(test::TextoFormula(Lado(lados[0])), test::TextoFormula(Lado(lados[1]))) << ecuacion;
        // The statement hides the first products, one or more, and shows the rest.
        const std::size_t b = corta.find("............");
        ASSERT_NE(b, std::string::npos) << corta;
        const std::string resto = corta.substr(b + 12);
        EXPECT_TRUE(corta.substr(0, b) == lados[0] + "  &ars  " && lados[1].ends_with(resto) &&
                    (resto.empty() || resto.starts_with("  +  ")) && lados[1].size() > resto.size())
            << corta << "\n" << ecuacion;
        for (int l = 0; l < 2; ++l) {  // one name for each species, in order
          const Textos f = test::Formulas(lados[l]), n = Corta(nombres[l], " + ");
          ASSERT_EQ(n.size(), f.size()) << m[3];
          for (std::size_t i = 0; i < f.size(); ++i) NombreDice(f[i], n[i]);
        }
        const Textos izq = test::Formulas(lados[0]), der = test::Formulas(lados[1]);
        const std::string tipo = Tipo(izq, der);
        EXPECT_TRUE(m[4].str().starts_with(tipo)) << ecuacion << "\n" << m[4];
        EXPECT_FALSE(Lado(lados[0]).count("F")) << ecuacion;  // fluorine reacts otherwise
        if (der.size() == 1 && izq[0].find("&=") != std::string::npos && izq[1] != "H_2") Markovnikov(izq[0], der[0]);
      }
      const std::size_t items = std::clamp(pedidos, 2, 8);
      EXPECT_TRUE(k == items && cortas.size() == items) << p.st << p.so;
    }
}

}  // namespace
}  // namespace ss
