// Organic reactions to complete. Each item is one reaction with its products
// left blank; the solution writes the whole equation, names every species in
// it and says what kind of reaction it is, with the catalyst or conditions it
// needs. Every equation is written balanced, and the draws keep to reactions
// that run as written: chlorine and bromine where a halogen itself reacts,
// chlorine to iodine where a hydrogen halide adds or leaves (never fluorine),
// and only methyl and ethyl groups put on a benzene ring, as longer chains
// rearrange on the way.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ANEU_QUIM_FOR/for.h"
#include "problems/generic.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::FOR {
namespace {

constexpr int kFormas = 39;

// A compound of the straight-chain series: its formula and its name key. In
// every series the index is the number of carbons; an empty row is one no
// draw reaches.
struct Compuesto {
  std::string_view formula, nombre;
};

constexpr std::array<Compuesto, 9> kAlquenos = {{
    {},
    {},
    {"CH_2&=CH_2", "N_C2H4"},
    {"CH_2&=CH-CH_3", "N_propeno"},
    {"CH_2&=CH-CH_2-CH_3", "N_1buteno"},
    {"CH_2&=CH-(CH_2)_2-CH_3", "N_1penteno"},
    {"CH_2&=CH-(CH_2)_3-CH_3", "N_1hexeno"},
    {"CH_2&=CH-(CH_2)_4-CH_3", "N_1hepteno"},
    {"CH_2&=CH-(CH_2)_5-CH_3", "N_1octeno"},
}};

constexpr std::array<Compuesto, 10> kAlcanos = {{
    {},
    {"CH_4", "N_CH4"},
    {"CH_3-CH_3", "N_C2H6"},
    {"CH_3-CH_2-CH_3", "N_C3H8"},
    {"CH_3-(CH_2)_2-CH_3", "N_C4H10"},
    {"CH_3-(CH_2)_3-CH_3", "N_nC5H12"},
    {"CH_3-(CH_2)_4-CH_3", "N_nC6H14"},
    {"CH_3-(CH_2)_5-CH_3", "N_nC7H16"},
    {"CH_3-(CH_2)_6-CH_3", "N_nC8H18"},
    {"CH_3-(CH_2)_7-CH_3", "N_nC9H20"},
}};

constexpr std::array<Compuesto, 7> kAlcoholes = {{
    {},
    {"CH_3OH", "N_CH3OH"},
    {"CH_3-CH_2OH", "N_CH3CH2OH"},
    {"CH_3CH_2CH_2OH", "N_1propanol"},
    {"CH_3CH_2CH_2CH_2OH", "N_1butanol"},
    {"CH_3(CH_2)_3CH_2OH", "N_1pentanol"},
    {"CH_3(CH_2)_4CH_2OH", "N_1hexanol"},
}};

// Acids with the stem of their salts and esters. Pentanoic acid is left out:
// no draw asks for it.
struct Acido {
  std::string_view formula, nombre, sal;
};
constexpr std::array<Acido, 7> kAcidos = {{
    {},
    {"HCOOH", "N_HCOOH", "N_HCOO-"},
    {"CH_3-COOH", "N_CH3COOH", "N_CH3COO-"},
    {"CH_3CH_2COOH", "N_propanoico", "N_Rad_sa_C3"},
    {"CH_3CH_2CH_2COOH", "N_Butanoico", "N_Rad_sa_C4"},
    {},
    {"CH_3(CH_2)_4COOH", "N_hexanoico", ""},
}};

// Alkyl groups: the formula, bonded at its first carbon, the name as a
// prefix ("methylbenzene") and as a word of its own ("methyl acetate").
struct Radical {
  std::string_view formula, prefijo, palabra;
};
constexpr std::array<Radical, 9> kRadicales = {{
    {},
    {"CH_3", "N_RadC1", "N_RadSC1"},
    {"CH_2-CH_3", "N_RadC2", "N_RadSC2"},
    {"CH_2CH_2CH_3", "N_RadC3", "N_RadSC3"},
    {"CH_2CH_2CH_2CH_3", "N_RadC4", "N_RadSC4"},
    {"CH_2(CH_2)_3CH_3", "N_RadC5", "N_RadSC5"},
    {"CH_2(CH_2)_4CH_3", "N_RadC6", "N_RadSC6"},
    {"CH_2(CH_2)_5CH_3", "N_RadC7", "N_RadSC7"},
    {"CH_2(CH_2)_6CH_3", "N_RadC8", "N_RadSC8"},
}};

// Halogens: symbol, the element's name, the substituent prefix, the anion.
struct Halogeno {
  std::string_view simbolo, elemento, prefijo, anion;
};
constexpr std::array<Halogeno, 5> kHalogenos = {{
    {},
    {"F", "N_F", "N_RadF", "N_F-"},
    {"Cl", "N_Cl", "N_RadCl", "N_Cl-"},
    {"Br", "N_Br", "N_RadBr", "N_Br-"},
    {"I", "N_I", "N_RadI", "N_I-"},
}};

// The four alkenes of the additions, with what each gives: with a halogen
// ("[X]" its place), with a hydrogen halide (the halogen on the carbon of the
// double bond that holds fewer hydrogens), with water (likewise for the OH)
// and with hydrogen.
struct Adicion {
  std::string_view alqueno, nombre;
  std::string_view dihalogeno, locantesDi;
  std::string_view haluro, locanteHaluro;
  std::string_view alcohol, nombreAlcohol;
  std::string_view alcano, nombreAlcano;
};
constexpr std::array<Adicion, 4> kAdiciones = {{
    {"CH_2&=CH_2", "N_C2H4", "CH_2[X]-CH_2[X]", "1,2-di", "CH_3-CH_2[X]", "", "CH_3-CH_2OH", "N_CH3CH2OH",
     "CH_3-CH_3", "N_C2H6"},
    {"CH_3-CH&=CH_2", "N_propeno", "CH_3-CH[X]-CH_2[X]", "1,2-di", "CH_3-CH[X]-CH_3", "2-", "CH_3-CHOH-CH_3",
     "N_2propanol", "CH_3-CH_2-CH_3", "N_C3H8"},
    {"CH_3-CH_2-CH&=CH_2", "N_1buteno", "CH_3-CH_2-CH[X]-CH_2[X]", "1,2-di", "CH_3-CH_2-CH[X]-CH_3", "2-",
     "CH_3-CH_2-CHOH-CH_3", "N_2butanol", "CH_3-CH_2-CH_2-CH_3", "N_C4H10"},
    {"CH_3-CH&=CH-CH_3", "N_2buteno", "CH_3-CH[X]-CH[X]-CH_3", "2,3-di", "CH_3-CH_2-CH[X]-CH_3", "2-",
     "CH_3-CH_2-CHOH-CH_3", "N_2butanol", "CH_3-CH_2-CH_2-CH_3", "N_C4H10"},
}};
enum { kEteno, kPropeno, k1Buteno, k2Buteno };

enum class Clase {
  kHalogenacionAlcano,   // alkane + X2, in light
  kEliminacion,          // haloalkane + NaOH
  kAdicionHalogeno,      // alkene + X2
  kAdicionHaluro,        // alkene + HX
  kHidratacion,          // alkene + H2O
  kHidrogenacion,        // alkene + H2
  kAlcoholHaluro,        // alcohol + HX
  kEsterificacion,       // acid + alcohol
  kEter,                 // two alcohols
  kFriedelCrafts,        // benzene + haloalkane
  kHalogenacionBenceno,  // benzene + X2
  kCombustionAlcano,
  kCombustionAlcohol,
  kCombustionAcido,
  kCombustionAlqueno,
};

// What each form asks; `dato` is the alkene of an addition, the alkane of a
// substitution in light.
struct Pedido {
  Clase clase;
  int dato = 0;
};
constexpr std::array<Pedido, kFormas> kTablaFormas = {{
    {Clase::kHalogenacionAlcano, 1},      // 0
    {Clase::kEliminacion},                // 1
    {Clase::kAdicionHalogeno, kEteno},    // 2
    {Clase::kCombustionAlcano},           // 3
    {Clase::kAlcoholHaluro},              // 4
    {Clase::kAdicionHalogeno, kPropeno},  // 5
    {Clase::kEsterificacion},             // 6
    {Clase::kEter},                       // 7
    {Clase::kAdicionHalogeno, k1Buteno},  // 8
    {Clase::kFriedelCrafts},              // 9
    {Clase::kAdicionHaluro, kPropeno},    // 10
    {Clase::kCombustionAlcohol},          // 11
    {Clase::kAdicionHalogeno, k2Buteno},  // 12
    {Clase::kHalogenacionBenceno},        // 13
    {Clase::kAdicionHaluro, kEteno},      // 14
    {Clase::kEsterificacion},             // 15
    {Clase::kAdicionHaluro, k1Buteno},    // 16
    {Clase::kEter},                       // 17
    {Clase::kAdicionHaluro, k2Buteno},    // 18
    {Clase::kAlcoholHaluro},              // 19
    {Clase::kHidratacion, k1Buteno},      // 20
    {Clase::kFriedelCrafts},              // 21
    {Clase::kEliminacion},                // 22
    {Clase::kHidrogenacion, kEteno},      // 23
    {Clase::kCombustionAcido},            // 24
    {Clase::kHidratacion, kPropeno},      // 25
    {Clase::kEsterificacion},             // 26
    {Clase::kAlcoholHaluro},              // 27
    {Clase::kHidrogenacion, kPropeno},    // 28
    {Clase::kHalogenacionAlcano, 2},      // 29
    {Clase::kHidrogenacion, k1Buteno},    // 30
    {Clase::kEter},                       // 31
    {Clase::kHidrogenacion, k2Buteno},    // 32
    {Clase::kFriedelCrafts},              // 33
    {Clase::kHidratacion, kEteno},        // 34
    {Clase::kAlcoholHaluro},              // 35
    {Clase::kEsterificacion},             // 36
    {Clase::kCombustionAlqueno},          // 37
    {Clase::kHidratacion, k2Buteno},      // 38
}};

// Benzene drawn flat side up with the hydrogen that is replaced written out.
constexpr std::string_view kBenceno = "#BCH(XSXXXX#R2(H#R2)#BCH)";
std::string BencenoCon(std::string_view grupo) { return "#BCH(XSXXXX#R2(" + std::string(grupo) + "#R2)#BCH)"; }

// The reaction of one item while it is put together.
struct Reaccion {
  std::vector<std::string> reactivos, productos;  // formulas, with their coefficients
  std::vector<std::string> nombresR, nombresP;
  std::size_t enBlanco = 0;  // the products the student writes: the first ones
  std::string_view tipo;     // key of the kind of reaction
  std::string condiciones;   // catalyst or conditions, "" for none
};

class Armador {
 public:
  explicit Armador(GenContext& g) : g_(g) {}

  // A name as the line of names shows it: the formula some keys carry in
  // brackets behind the name is left out, the equation shows it already.
  std::string Nombre(std::string_view clave) {
    std::string t = g_.MsgQUI(clave);
    if (const std::size_t p = t.find(" ("); p != std::string::npos && t.ends_with(")")) t.resize(p);
    return LCase(t);
  }
  // An anion's name as it stands in a salt's name: "chloride", not "chloride ion".
  std::string Anion(const Halogeno& x) {
    std::string t = Nombre(x.anion);
    if (t.ends_with(" ion")) t.resize(t.size() - 4);
    return t;
  }
  std::string HaluroDeHidrogeno(const Halogeno& x) { return FormatoSal(g_, Anion(x), Nombre("N_H")); }

  int Sorteo(int min, int max) { return static_cast<int>(AleatorioEn(g_.rnd, min, max, 1)); }
  // Chlorine and bromine, for the reactions fluorine and iodine do not give
  // cleanly; chlorine to iodine where only fluorine fails.
  const Halogeno& ClBr() { return kHalogenos[static_cast<std::size_t>(Sorteo(2, 3))]; }
  const Halogeno& ClBrI() { return kHalogenos[static_cast<std::size_t>(Sorteo(2, 4))]; }

  // The haloalkane of n carbons with the halogen at the chain's end.
  static std::string Haloalcano(int n, const Halogeno& x) {
    const std::string_view r = kRadicales[static_cast<std::size_t>(n)].formula;
    return std::string(r.substr(0, 4)) + std::string(x.simbolo) + std::string(r.substr(std::min<std::size_t>(4, r.size())));
  }
  std::string NombreHaloalcano(int n, const Halogeno& x) {
    return (n > 2 ? "1-" : "") + Nombre(x.prefijo) + Nombre(kAlcanos[static_cast<std::size_t>(n)].nombre);
  }

  Reaccion Arma(const Pedido& f);

 private:
  void Combustion(Reaccion& r, std::string_view formula, std::string_view nombre, int carbonos, int aguas,
                  double oxigenos);
  GenContext& g_;
};

void Armador::Combustion(Reaccion& r, std::string_view formula, std::string_view nombre, int carbonos, int aguas,
                         double oxigenos) {
  r.reactivos = {std::string(formula), NumTexto(oxigenos) + "O_2"};
  r.nombresR = {Nombre(nombre), Nombre("N_O")};
  r.productos = {NumTexto(carbonos) + "CO_2", NumTexto(aguas) + "H_2O"};
  r.nombresP = {Nombre("N_CO2"), Nombre("N_H2O")};
  r.enBlanco = 2;
  r.tipo = "Tipo_ReacOrga_COM";
}

Reaccion Armador::Arma(const Pedido& f) {
  Reaccion r;
  r.enBlanco = 1;
  const Adicion& ad = kAdiciones[static_cast<std::size_t>(f.dato) % kAdiciones.size()];
  switch (f.clase) {
    case Clase::kHalogenacionAlcano: {
      // CH4 + X2 -> CH3X + HX and the same on ethane.
      const Halogeno& x = ClBr();
      const std::string s(x.simbolo);
      const bool metano = f.dato == 1;
      r.reactivos = {std::string(kAlcanos[static_cast<std::size_t>(f.dato)].formula), s + "_2"};
      r.productos = {(metano ? "CH_3" : "CH_3-CH_2") + s, "H" + s};
      r.nombresR = {Nombre(kAlcanos[static_cast<std::size_t>(f.dato)].nombre), Nombre(x.elemento)};
      r.nombresP = {NombreHaloalcano(f.dato, x), HaluroDeHidrogeno(x)};
      r.tipo = "Tipo_ReacOrga_SUS";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_luz");
      break;
    }
    case Clase::kEliminacion: {
      // A 1-haloalkane loses HX to the 1-alkene of the same chain: two
      // carbons at least.
      int n = Sorteo(2, 4);
      if (AzarSupera(g_.rnd, 0.5)) n = Sorteo(2, 8);
      const Halogeno& x = ClBrI();
      r.reactivos = {Haloalcano(n, x), "NaOH"};
      r.productos = {std::string(kAlquenos[static_cast<std::size_t>(n)].formula), "H_2O", "Na" + std::string(x.simbolo)};
      r.nombresR = {NombreHaloalcano(n, x), Nombre("N_NaOH")};
      r.nombresP = {Nombre(kAlquenos[static_cast<std::size_t>(n)].nombre), Nombre("N_H2O"),
                    FormatoSal(g_, Anion(x), Nombre("N_Na"))};
      r.tipo = "Tipo_ReacOrga_ELI";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_ELI");
      break;
    }
    case Clase::kAdicionHalogeno: {
      const Halogeno& x = ClBr();
      std::string p(ad.dihalogeno);
      ReplaceAll(p, "[X]", x.simbolo);
      r.reactivos = {std::string(ad.alqueno), std::string(x.simbolo) + "_2"};
      r.productos = {p};
      r.nombresR = {Nombre(ad.nombre), Nombre(x.elemento)};
      r.nombresP = {std::string(ad.locantesDi) + Nombre(x.prefijo) + Nombre(ad.nombreAlcano)};
      r.tipo = "Tipo_ReacOrga_ADI";
      break;
    }
    case Clase::kAdicionHaluro: {
      const Halogeno& x = ClBrI();
      std::string p(ad.haluro);
      ReplaceAll(p, "[X]", x.simbolo);
      r.reactivos = {std::string(ad.alqueno), "H" + std::string(x.simbolo)};
      r.productos = {p};
      r.nombresR = {Nombre(ad.nombre), HaluroDeHidrogeno(x)};
      r.nombresP = {std::string(ad.locanteHaluro) + Nombre(x.prefijo) + Nombre(ad.nombreAlcano)};
      r.tipo = "Tipo_ReacOrga_ADI";
      break;
    }
    case Clase::kHidratacion:
      r.reactivos = {std::string(ad.alqueno), "H_2O"};
      r.productos = {std::string(ad.alcohol)};
      r.nombresR = {Nombre(ad.nombre), Nombre("N_H2O")};
      r.nombresP = {Nombre(ad.nombreAlcohol)};
      r.tipo = "Tipo_ReacOrga_ADI";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_H2O");
      break;
    case Clase::kHidrogenacion:
      r.reactivos = {std::string(ad.alqueno), "H_2"};
      r.productos = {std::string(ad.alcano)};
      r.nombresR = {Nombre(ad.nombre), Nombre("N_H")};
      r.nombresP = {Nombre(ad.nombreAlcano)};
      r.tipo = "Tipo_ReacOrga_ADI";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_H2");
      break;
    case Clase::kAlcoholHaluro: {
      const int n = Sorteo(1, 6);
      const Halogeno& x = ClBrI();
      r.reactivos = {std::string(kAlcoholes[static_cast<std::size_t>(n)].formula), "H" + std::string(x.simbolo)};
      r.productos = {Haloalcano(n, x), "H_2O"};
      r.nombresR = {Nombre(kAlcoholes[static_cast<std::size_t>(n)].nombre), HaluroDeHidrogeno(x)};
      r.nombresP = {NombreHaloalcano(n, x), Nombre("N_H2O")};
      r.tipo = "Tipo_ReacOrga_SUS";
      break;
    }
    case Clase::kEsterificacion: {
      const bool alcoholPrimero = AzarSupera(g_.rnd, 0.6);
      int a = Sorteo(1, 4);
      const int b = Sorteo(1, 4);
      if (a == 4 && b == 4) a = 3;
      const Acido& ac = kAcidos[static_cast<std::size_t>(a)];
      const Compuesto& al = kAlcoholes[static_cast<std::size_t>(b)];
      const std::string_view acido = ac.formula;
      r.reactivos = {std::string(acido), std::string(al.formula)};
      r.nombresR = {Nombre(ac.nombre), Nombre(al.nombre)};
      if (alcoholPrimero) std::swap(r.reactivos[0], r.reactivos[1]), std::swap(r.nombresR[0], r.nombresR[1]);
      r.productos = {std::string(acido.substr(0, acido.size() - 1)) + "-" +
                         std::string(kRadicales[static_cast<std::size_t>(b)].formula),
                     "H_2O"};
      r.nombresP = {FormatoSal(g_, Nombre(ac.sal), Nombre(kRadicales[static_cast<std::size_t>(b)].palabra)),
                    Nombre("N_H2O")};
      r.tipo = "Tipo_ReacOrga_EST";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_EST");
      break;
    }
    case Clase::kEter: {
      // Two alcohols lose water between them; no ether with two chains of
      // three or more carbons when one has four.
      int a = Sorteo(1, 4), b = Sorteo(1, 4);
      if (a == 4 && b >= 3) b = Sorteo(1, 2);
      if (b == 4 && a >= 3) a = Sorteo(1, 2);
      const std::string_view alA = kAlcoholes[static_cast<std::size_t>(a)].formula;
      r.reactivos = {std::string(alA), std::string(kAlcoholes[static_cast<std::size_t>(b)].formula)};
      r.nombresR = {Nombre(kAlcoholes[static_cast<std::size_t>(a)].nombre),
                    Nombre(kAlcoholes[static_cast<std::size_t>(b)].nombre)};
      r.productos = {std::string(alA.substr(0, alA.size() - 2)) + "-O-" +
                         std::string(kRadicales[static_cast<std::size_t>(b)].formula),
                     "H_2O"};
      // The groups in the order of their alkanes' first letters; one group
      // twice is "di" and its name.
      std::string pa = Nombre(kRadicales[static_cast<std::size_t>(a)].palabra);
      std::string pb = Nombre(kRadicales[static_cast<std::size_t>(b)].palabra);
      const char ca = Nombre(kAlcanos[static_cast<std::size_t>(a)].nombre).front();
      const char cb = Nombre(kAlcanos[static_cast<std::size_t>(b)].nombre).front();
      const std::string sep = Trim(g_.MsgQUI("Espaciado_ETER")) == "0" ? "" : " ";
      std::string eter = ca == cb ? "di" + pa : ca < cb ? pa + sep + pb : pb + sep + pa;
      r.nombresP = {eter + sep + g_.MsgQUI("FunOrga_ETER"), Nombre("N_H2O")};
      r.tipo = "Tipo_ReacOrga_CON";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_ETER");
      break;
    }
    case Clase::kFriedelCrafts: {
      const int n = Sorteo(1, 2);
      const Halogeno& x = ClBr();
      r.reactivos = {std::string(kBenceno), Haloalcano(n, x)};
      r.productos = {BencenoCon(kRadicales[static_cast<std::size_t>(n)].formula), "H" + std::string(x.simbolo)};
      r.nombresR = {Nombre("N_C6H6"), NombreHaloalcano(n, x)};
      r.nombresP = {Nombre(kRadicales[static_cast<std::size_t>(n)].prefijo) + Nombre("N_C6H6"), HaluroDeHidrogeno(x)};
      r.tipo = "Tipo_ReacOrga_SFC";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_AlX3");
      ReplaceAll(r.condiciones, "%X%", x.simbolo);
      break;
    }
    case Clase::kHalogenacionBenceno: {
      const Halogeno& x = ClBr();
      r.reactivos = {std::string(kBenceno), std::string(x.simbolo) + "_2"};
      r.productos = {BencenoCon(x.simbolo), "H" + std::string(x.simbolo)};
      r.nombresR = {Nombre("N_C6H6"), Nombre(x.elemento)};
      r.nombresP = {Nombre(x.prefijo) + Nombre("N_C6H6"), HaluroDeHidrogeno(x)};
      r.tipo = "Tipo_ReacOrga_SUS";
      r.condiciones = g_.MsgQUI("Cond_ReacOrga_FeX3");
      ReplaceAll(r.condiciones, "%X%", x.simbolo);
      break;
    }
    case Clase::kCombustionAlcano: {
      // CnH2n+2 + (3n+1)/2 O2 -> n CO2 + (n+1) H2O, n odd for whole numbers.
      const int n = 2 * Sorteo(1, 4) + 1;
      Combustion(r, kAlcanos[static_cast<std::size_t>(n)].formula, kAlcanos[static_cast<std::size_t>(n)].nombre, n,
                 n + 1, (3 * n + 1) / 2.0);
      break;
    }
    case Clase::kCombustionAlcohol: {
      // CnH2n+1OH + 3n/2 O2 -> n CO2 + (n+1) H2O.
      const int n = 2 * Sorteo(1, 3);
      Combustion(r, kAlcoholes[static_cast<std::size_t>(n)].formula, kAlcoholes[static_cast<std::size_t>(n)].nombre,
                 n, n + 1, 3 * n / 2.0);
      break;
    }
    case Clase::kCombustionAcido: {
      // CnH2nO2 + (3n-2)/2 O2 -> n CO2 + n H2O.
      const int n = 2 * Sorteo(1, 3);
      Combustion(r, kAcidos[static_cast<std::size_t>(n)].formula, kAcidos[static_cast<std::size_t>(n)].nombre, n, n,
                 (3 * n - 2) / 2.0);
      break;
    }
    case Clase::kCombustionAlqueno: {
      // CnH2n + 3n/2 O2 -> n CO2 + n H2O.
      const int n = 2 * Sorteo(1, 4);
      Combustion(r, kAlquenos[static_cast<std::size_t>(n)].formula, kAlquenos[static_cast<std::size_t>(n)].nombre, n,
                 n, 3 * n / 2.0);
      break;
    }
  }
  return r;
}

std::string Junta(const std::vector<std::string>& v, std::string_view sep) {
  std::string t;
  for (const std::string& s : v) t += (t.empty() ? "" : std::string(sep)) + s;
  return t;
}

}  // namespace

std::string FormatoSal(GenContext& g, std::string_view anion, std::string_view cation) {
  std::string t = g.MsgQUI("Formato_SAL_SIS_STOCK");
  ReplaceAll(t, "%deA%", DeNombre(anion, false));
  ReplaceAll(t, "%A%", anion);
  ReplaceAll(t, "%deC%", DeNombre(cation, false));
  ReplaceAll(t, "%C%", cation);
  return t;
}

void Generador12(GenContext& g) {
  if (EntradaCatalogo(g, {"2", "870", "T_Organica", "040", "008"})) return;
  const int items = ItemsEjercicio(g);
  Armador armador(g);
  g.GP_Statement = g.MsgQUI("Complet_ReacOrga_tipo_nombrar") + "&LF";
  g.GP_Solution.clear();
  static constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";
  for (int i = 1; i <= items; ++i) {
    const Reaccion r = armador.Arma(kTablaFormas[static_cast<std::size_t>(::ss::Forma(g, kFormas, i))]);
    // The products left blank are the first ones; the rest stay in view.
    const std::vector<std::string> enBlanco(r.productos.begin(),
                                            r.productos.begin() + static_cast<std::ptrdiff_t>(r.enBlanco));
    const std::vector<std::string> aLaVista(r.productos.begin() + static_cast<std::ptrdiff_t>(r.enBlanco),
                                            r.productos.end());
    const std::string izquierda = Junta(r.reactivos, "  +  ") + "  &ars  ";
    const std::string derecha = aLaVista.empty() ? "" : "  +  " + Junta(aLaVista, "  +  ");
    const std::string completa = izquierda + Junta(enBlanco, "  +  ") + derecha;
    const std::string corta = izquierda + "............" + derecha;
    const std::string nombres = Junta(r.nombresR, " + ") + " &ars " + Junta(r.nombresP, " + ");
    const char letra = kLetras[static_cast<std::size_t>(i - 1)];
    g.GP_Statement += "&SP=5:&+B" + std::string(1, letra) + ")&-B  " + corta + "&LF";
    g.GP_Solution += "&SP=10:&+B" + std::string(1, letra) + ")&-B " + completa + "&LF";
    g.GP_Solution += "&SP=10:" + Capitaliza(nombres) + ".&LF";
    g.GP_Solution += "&SP=10:" + g.MsgQUI(r.tipo) + r.condiciones + ".&LF";
  }
}

}  // namespace ss::mod::FOR
