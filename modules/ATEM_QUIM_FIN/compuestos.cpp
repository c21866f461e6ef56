#include "modules/ATEM_QUIM_FIN/compuestos.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "problems/aleatorio.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ATEM_QUIM_FIN {
namespace {

using std::string;
using std::string_view;

// The tables are packed rows read by position. The first digit of a weighted
// row is its weight w: a drawn row stands with chance w/10.

// Metals and the cations that behave like them: weight, symbol (two columns),
// first charge, second charge or blank, name. "am" is ammonium and "h3"
// oxonium until the finished formula is written.
constexpr string_view kMetales[] = {
    "8Li1 lithium",   "9Na1 sodium",    "9K 1 potassium", "8Rb1 rubidium",  "7Cs1 caesium",
    "1Fr1 francium",  "9Ag1 silver",    "7Be2 beryllium", "9Mg2 magnesium", "9Ca2 calcium",
    "6Sr2 strontium", "7Ba2 barium",    "2Ra2 radium",    "9Zn2 zinc",      "7Cd2 cadmium",
    "9Al3 aluminium", "9Cu12copper",    "9Hg12mercury",   "8Au13gold",      "7Cr23chromium",
    "7Mn23manganese", "9Fe23iron",      "8Co23cobalt",    "8Ni23nickel",    "7Sn24tin",
    "7Pb24lead",      "6Pt24platinum",  "2Ga3 gallium",   "8am1 ammonium",  "8H 1 hydrogen",
    "8h31 oxonium",
};

// Non-metals that form oxides: weight, symbol, up to four oxidation numbers
// (blank padded), then the element's name and one root for each number.
constexpr string_view kNoMetales[] = {
    "9Cl1357chlorine/hypochlorous/chlorous/chloric/perchloric",
    "9Br1357bromine/hypobromous/bromous/bromic/perbromic",
    "9I 157 iodine/hypoiodous/iodic/periodic",
    "9N 35  nitrogen/nitrous/nitric",
    "9P 35  phosphorus/phosphorous/phosphoric",
    "8As35  arsenic/arsenious/arsenic",
    "7Sb35  antimony/antimonious/antimonic",
    "8S 46  sulfur/sulfurous/sulfuric",
    "8Se46  selenium/selenous/selenic",
    "8Te46  tellurium/tellurous/telluric",
    "7B 3   boron/boric",
    "9C 4   carbon/carbonic",
    "9Si4   silicon/silicic",
};

// Binary anions: symbol, charge, anion name / root of the hydracid.
constexpr string_view kHaluros[] = {
    "F 1fluoride/hydrofluoric", "Cl1chloride/hydrochloric", "Br1bromide/hydrobromic",
    "I 1iodide/hydroiodic",     "S 2sulfide/hydrosulfuric", "Se2selenide/hydroselenic",
    "Te2telluride/hydrotelluric",
};

// Non-metals with hydrogen: symbol, charge, element / anion / hydride's name.
constexpr string_view kHidruros[] = {
    "B 3boron/boride/borane",         "C 4carbon/carbide/methane",
    "N 3nitrogen/nitride/ammonia",    "Si4silicon/silicide/silane",
    "P 3phosphorus/phosphide/phosphine", "As3arsenic/arsenide/arsine",
    "Sb3antimony/antimonide/stibine",
};

// Oxoanions: weight, formula / charge / salt name / acid root.
constexpr string_view kOxoaniones[] = {
    "9ClO/1/hypochlorite/hypochlorous",       "9ClO_2/1/chlorite/chlorous",
    "9ClO_3/1/chlorate/chloric",              "9ClO_4/1/perchlorate/perchloric",
    "9BrO/1/hypobromite/hypobromous",         "9BrO_2/1/bromite/bromous",
    "9BrO_3/1/bromate/bromic",                "9BrO_4/1/perbromate/perbromic",
    "9IO/1/hypoiodite/hypoiodous",            "9IO_3/1/iodate/iodic",
    "9IO_4/1/periodate/periodic",             "9SO_3/2/sulfite/sulfurous",
    "9SO_4/2/sulfate/sulfuric",               "7SeO_3/2/selenite/selenous",
    "7SeO_4/2/selenate/selenic",              "7TeO_3/2/tellurite/tellurous",
    "7TeO_4/2/tellurate/telluric",            "9NO_2/1/nitrite/nitrous",
    "9NO_3/1/nitrate/nitric",                 "9CO_3/2/carbonate/carbonic",
    "5PO_2/1/metaphosphite/metaphosphorous",  "5PO_3/1/metaphosphate/metaphosphoric",
    "5P_2O_5/4/pyrophosphite/pyrophosphorous", "5P_2O_5/4/diphosphite/diphosphorous",
    "5P_2O_7/4/pyrophosphate/pyrophosphoric", "5P_2O_7/4/diphosphate/diphosphoric",
    "9PO_3/3/phosphite/phosphorous",          "6PO_3/3/orthophosphite/orthophosphorous",
    "9PO_4/3/phosphate/phosphoric",           "6PO_4/3/orthophosphate/orthophosphoric",
    "4AsO_2/1/metaarsenite/metaarsenious",    "4AsO_3/1/metaarsenate/metaarsenic",
    "4As_2O_5/4/pyroarsenite/pyroarsenious",  "4As_2O_5/4/diarsenite/diarsenious",
    "4As_2O_7/4/pyroarsenate/pyroarsenic",    "4As_2O_7/4/diarsenate/diarsenic",
    "7AsO_3/3/arsenite/arsenious",            "7AsO_3/3/orthoarsenite/orthoarsenious",
    "7AsO_4/3/arsenate/arsenic",              "7AsO_4/3/orthoarsenate/orthoarsenic",
    "3SbO_2/1/metaantimonite/metaantimonious", "3SbO_3/1/metaantimonate/metaantimonic",
    "3Sb_2O_5/4/pyroantimonite/pyroantimonious", "3Sb_2O_5/4/diantimonite/diantimonious",
    "3Sb_2O_7/4/pyroantimonate/pyroantimonic", "3Sb_2O_7/4/diantimonate/diantimonic",
    "7SbO_3/3/antimonite/antimonious",        "6SbO_3/3/orthoantimonite/orthoantimonious",
    "7SbO_4/3/antimonate/antimonic",          "6SbO_4/3/orthoantimonate/orthoantimonic",
    "8CrO_4/2/chromate/chromic",              "8Cr_2O_7/2/dichromate/dichromic",
    "8MnO_4/2/manganate/manganic",            "8MnO_4/1/permanganate/permanganic",
    "5S_2O_7/2/disulfate/disulfuric",         "6BO_3/3/orthoborate/orthoboric",
    "6BO_3/3/borate/boric",                   "5BO_2/1/metaborate/metaboric",
    "5B_4O_7/2/tetraborate/tetraboric",       "9N_2O_2/2/hyponitrite/hyponitrous",
};

// Elements: weight, formula / name / a second name where there is one.
constexpr string_view kElementos[] = {
    "4H/nascent hydrogen/atomic hydrogen", "9H_2/hydrogen/diatomic hydrogen", "4He/helium",
    "9Li/lithium", "9Be/beryllium", "9B/boron", "9C/carbon", "2N/atomic nitrogen",
    "9N_2/nitrogen/diatomic nitrogen", "4O/atomic oxygen", "9O_2/oxygen/diatomic oxygen",
    "4F/atomic fluorine", "9F_2/fluorine/diatomic fluorine", "4Ne/neon", "9Na/sodium",
    "9Mg/magnesium", "9Al/aluminium", "9Si/silicon", "9P/phosphorus", "9S/sulfur",
    "2Cl/atomic chlorine", "9Cl_2/chlorine/diatomic chlorine", "4Ar/argon", "9K/potassium",
    "9Ca/calcium", "4Ti/titanium", "4V/vanadium", "9Cr/chromium", "9Mn/manganese", "9Fe/iron",
    "9Co/cobalt", "9Ni/nickel", "9Cu/copper", "9Zn/zinc", "4Ga/gallium", "2Ge/germanium",
    "9As/arsenic", "9Se/selenium", "4Br/atomic bromine", "9Br_2/bromine/diatomic bromine",
    "4Kr/krypton", "9Rb/rubidium", "8Sr/strontium", "2Mo/molybdenum", "2Pd/palladium",
    "9Ag/silver", "9Cd/cadmium", "9Sn/tin", "7Sb/antimony", "7Te/tellurium",
    "4I/atomic iodine", "9I_2/iodine/diatomic iodine", "4Xe/xenon", "7Cs/caesium",
    "8Ba/barium", "2W/tungsten", "9Pt/platinum", "9Au/gold", "9Hg/mercury", "9Pb/lead",
    "2Bi/bismuth", "4Rn/radon", "4Fr/francium", "5Ra/radium", "2U/uranium",
    "2Pu/plutonium", "5O_3/ozone/trioxygen",
};

constexpr string_view kRomanos[] = {"(I)", "(II)", "(III)", "(IV)", "(V)", "(VI)", "(VII)"};
constexpr string_view kPrefijoSal[] = {"", "di", "tri", "tetra", "penta", "hexa", "hepta"};
constexpr string_view kPrefijoOxido[] = {"mon", "di", "tri", "tetra", "penta", "hexa", "hepta"};

// Two non-metals bond with the one standing later in this order as the anion.
constexpr string_view kOrdenNoMetales = "B Si C Sb As P N Te Se S I Br Cl F ";

// Compounds of two non-metals that exist; the rule would also write ones that
// do not (SCl_6, PI_5, C_3N_4).
constexpr string_view kParesReales[] = {
    "BN", "BP", "BAs", "B_2S_3", "B_2Se_3", "BF_3", "BCl_3", "BBr_3", "BI_3",
    "SiC", "Si_3N_4", "SiS_2", "SiSe_2", "SiF_4", "SiCl_4", "SiBr_4", "SiI_4",
    "CS_2", "CSe_2", "CF_4", "CCl_4", "CBr_4", "CI_4",
    "SbF_3", "SbCl_3", "SbBr_3", "SbI_3", "SbF_5", "SbCl_5", "Sb_2S_3", "Sb_2S_5", "Sb_2Se_3",
    "Sb_2Te_3", "AsF_3", "AsCl_3", "AsBr_3", "AsI_3", "AsF_5", "As_2S_3", "As_2S_5", "As_2Se_3",
    "As_2Te_3", "PF_3", "PCl_3", "PBr_3", "PI_3", "PF_5", "PCl_5", "PBr_5", "P_2S_5", "P_2Se_5",
    "P_3N_5", "NF_3", "NCl_3", "TeF_4", "TeF_6", "TeCl_4", "TeBr_4", "TeI_4", "SeF_4", "SeF_6",
    "SeCl_4", "SeBr_4", "SF_4", "SF_6", "IF", "IF_5", "IF_7", "ICl", "IBr", "BrF", "BrF_3",
    "BrF_5", "BrCl", "ClF", "ClF_3", "ClF_5",
};

// Non-metal oxides that do not exist or cannot be kept.
constexpr string_view kOxidosIrreales[] = {"Cl_2O_3", "Cl_2O_5", "Br_2O_7", "I_2O", "I_2O_7"};

// Oxoanions whose salts are known only with large cations of charge 1 or 2
// (alkali and alkaline earth metals, ammonium): hypohalites, halites and the
// like.
constexpr string_view kSoloCationesGrandes[] = {
    "ClO/1", "ClO_2/1", "BrO/1", "BrO_2/1", "BrO_4/1", "IO/1", "N_2O_2/2", "MnO_4/2",
    "PO_2/1", "P_2O_5/4", "AsO_2/1", "AsO_3/1", "As_2O_5/4", "As_2O_7/4", "SbO_2/1",
    "SbO_3/1", "Sb_2O_5/4", "Sb_2O_7/4", "SbO_3/3", "SbO_4/3", "S_2O_7/2", "B_4O_7/2",
    "BO_2/1",
};

// Anions that reduce strongly oxidising cations, and anions that oxidise
// strongly reducing ones.
constexpr string_view kAnionesReductores[] = {"I", "S", "Se", "Te", "SO_3", "NO_2", "PO_2",
                                              "P_2O_5", "PO_3/3", "N_2O_2"};
constexpr string_view kAnionesOxidantes[] = {"ClO",   "ClO_2", "ClO_3", "ClO_4", "BrO",
                                             "BrO_2", "BrO_3", "BrO_4", "IO",    "IO_3",
                                             "IO_4",  "MnO_4", "CrO_4", "Cr_2O_7", "NO_2",
                                             "SeO_4", "TeO_4"};

// Phosphorous acids give up only the protons bound to oxygen: their fully
// deprotonated anions have no salts.
constexpr string_view kSinSales[] = {"PO_3/3", "P_2O_5/4"};

// Hydrogen oxoanions that exist, alone and in acid salts.
constexpr string_view kAnionesAcidos[] = {"CO_3", "SO_3", "SO_4", "SeO_3", "SeO_4",
                                          "PO_3/3", "PO_4", "P_2O_7", "AsO_3/3",
                                          "AsO_4", "Sb_2O_7", "N_2O_2"};
constexpr string_view kSoloIonesAcidos[] = {"CrO_4", "S_2O_7", "BO_3"};

// The anions mercury(I) forms salts with.
constexpr string_view kAnionesMercurioI[] = {"F", "Cl", "Br", "I", "NO_3", "SO_4", "ClO_4",
                                             "ClO_3", "CO_3", "CrO_4", "BrO_3", "IO_3"};

template <std::size_t N>
bool Esta(const string_view (&lista)[N], string_view x) {
  for (string_view s : lista)
    if (s == x) return true;
  return false;
}

// Draws a row index 0..n-1 of a weighted table: the row stands with chance w/10.
template <std::size_t N>
std::size_t FilaPesada(Aleatorio& rnd, const string_view (&tabla)[N]) {
  for (;;) {
    const auto i = static_cast<std::size_t>(AleatorioEn(rnd, 1, N, 1, 1)) - 1;
    const double w = tabla[i][0] - '0';
    if (static_cast<float>(w / 10) >= static_cast<float>(rnd.Siguiente())) return i;
  }
}

template <std::size_t N>
std::size_t Fila(Aleatorio& rnd, const string_view (&)[N]) {
  return static_cast<std::size_t>(AleatorioEn(rnd, 1, N, 1, 1)) - 1;
}

// An event of chance p: a draw strictly below p.
bool Azar(Aleatorio& rnd, double p) {
  return static_cast<float>(rnd.Siguiente()) < static_cast<float>(p);
}

std::vector<string_view> Partes(string_view s) {
  std::vector<string_view> v;
  for (std::size_t at; (at = s.find('/')) != string_view::npos; s.remove_prefix(at + 1))
    v.push_back(s.substr(0, at));
  v.push_back(s);
  return v;
}

string Sub(int n) { return n == 1 ? string() : "_" + std::to_string(n); }

// The charge of an ion written with its sign after it: "^2^\x96", "^+".
string Carga(int n, char signo) {
  return (n > 1 ? "^" + std::to_string(n) : string()) + "^" + signo;
}
constexpr char kMenos = '\x96';  // the en dash of ion charges

int Mcd(int a, int b) { return static_cast<int>(MCD(a, b)); }

struct Metal {
  string simbolo;   // "Hg_2" for mercury(I), whose ion is Hg_2^2+
  string nombre;    // with the Roman numeral when the metal has two charges
  string simple;    // without it
  int carga = 1;    // the charge of the ion the formula counts (2 for Hg_2)
  int oxidacion = 1;
  bool dosCargas = false;
};

struct NoMetal {
  string simbolo, nombre, raiz;
  int oxidacion = 0;
};

struct Anion {
  string formula, nombre, raiz;
  int carga = 0;
};

struct Ingredientes {
  Metal m;
  NoMetal a;
  Anion y;     // oxoanion
  Anion x;     // binary anion
  string elemento;
  std::vector<string_view> nombresElemento;
  Anion h;     // the hydride row: symbol, anion name, hydride's name as root
  string nombreHidruro;
};

Ingredientes Dibuja(Aleatorio& rnd) {
  Ingredientes d;
  {
    const string_view f = kMetales[FilaPesada(rnd, kMetales)];
    d.m.simbolo = string(Trim(f.substr(1, 2)));
    d.m.simple = string(f.substr(5));
    d.m.oxidacion = f[3] - '0';
    d.m.dosCargas = f[4] != ' ';
    if (d.m.dosCargas && AzarSupera(rnd, 0.5)) d.m.oxidacion = f[4] - '0';
    d.m.nombre = d.m.simple;
    if (d.m.dosCargas) d.m.nombre += kRomanos[d.m.oxidacion - 1];
    d.m.carga = d.m.oxidacion;
    if (d.m.simbolo == "Hg" && d.m.oxidacion == 1) d.m.simbolo = "Hg_2", d.m.carga = 2;
  }
  {
    const string_view f = kNoMetales[FilaPesada(rnd, kNoMetales)];
    const string_view numeros = RTrim(f.substr(3, 4));
    const auto k = static_cast<std::size_t>(AleatorioEn(rnd, 1, static_cast<double>(numeros.size()), 1, 1));
    const auto partes = Partes(f.substr(7));
    d.a.simbolo = string(Trim(f.substr(1, 2)));
    d.a.oxidacion = numeros[k - 1] - '0';
    d.a.nombre = string(partes[0]);
    d.a.raiz = string(partes[k]);
  }
  {
    const auto partes = Partes(kOxoaniones[FilaPesada(rnd, kOxoaniones)].substr(1));
    d.y = {string(partes[0]), string(partes[2]), string(partes[3]), partes[1][0] - '0'};
  }
  {
    const string_view f = kHaluros[Fila(rnd, kHaluros)];
    const auto partes = Partes(f.substr(3));
    d.x = {string(Trim(f.substr(0, 2))), string(partes[0]), string(partes[1]), f[2] - '0'};
  }
  {
    const auto partes = Partes(kElementos[FilaPesada(rnd, kElementos)].substr(1));
    d.elemento = string(partes[0]);
    d.nombresElemento.assign(partes.begin() + 1, partes.end());
  }
  {
    const string_view f = kHidruros[Fila(rnd, kHidruros)];
    const auto partes = Partes(f.substr(3));
    d.h = {string(Trim(f.substr(0, 2))), string(partes[1]), string(partes[0]), f[2] - '0'};
    d.nombreHidruro = string(partes[2]);
  }
  return d;
}

// The key of an oxoanion in the lists above: the formula, with the charge
// where one formula carries two ("PO_3/3" phosphite, "PO_3" metaphosphate).
bool EnLista(std::span<const string_view> lista, const Anion& y) {
  const string conCarga = y.formula + "/" + std::to_string(y.carga);
  for (string_view s : lista)
    if (s == y.formula || s == conCarga) return true;
  return false;
}

bool Grande(const Metal& m) {
  static constexpr string_view kGrandes[] = {"Li", "Na", "K", "Rb", "Cs", "am",
                                             "Mg", "Ca", "Sr", "Ba", "Ra"};
  return Esta(kGrandes, m.simbolo);
}
bool Alcalino(const Metal& m) {
  static constexpr string_view kAlcalinos[] = {"Li", "Na", "K", "Rb", "Cs"};
  return Esta(kAlcalinos, m.simbolo);
}

bool Oxidante(const Metal& m) {
  return (m.simbolo == "Fe" && m.oxidacion == 3) || (m.simbolo == "Cu" && m.oxidacion == 2) ||
         (m.simbolo == "Au" && m.oxidacion == 3);
}
bool Reductor(const Metal& m) {
  return (m.oxidacion == 2 && (m.simbolo == "Fe" || m.simbolo == "Cr" || m.simbolo == "Sn" ||
                               m.simbolo == "Mn")) ||
         (m.simbolo == "Cu" && m.oxidacion == 1);
}

// Whether the salt of metal m with the anion (a binary one when `binario`)
// exists: not every pair the rules can write does.
bool SalReal(const Metal& m, const Anion& an, bool binario) {
  const string& s = m.simbolo;
  const int ox = m.oxidacion;
  if (s == "Fr" || (s == "Ni" && ox == 3)) return false;
  if (s == "Hg_2") return Esta(kAnionesMercurioI, an.formula);
  if (s == "Co" && ox == 3) return binario && an.formula == "F";
  if (s == "Mn" && ox == 3) return binario && an.formula == "F";
  if (s == "Pb" && ox == 4) return binario && (an.formula == "F" || an.formula == "Cl");
  if (s == "Au") {
    if (!binario) return false;
    if (ox == 1) return an.formula != "F" && an.formula != "Se" && an.formula != "Te";
  }
  if (s == "Pt") return binario && !(ox == 2 && an.formula == "F");
  if (s == "Cu" && ox == 1 && (!binario || an.formula == "F")) return false;
  if (s == "am" && (an.formula == "Se" || an.formula == "Te")) return false;
  // Copper(II) sulfide, selenide and telluride exist; its iodide does not.
  const bool calcogenuroCobre =
      s == "Cu" && binario && (an.formula == "S" || an.formula == "Se" || an.formula == "Te");
  if (Oxidante(m) && !calcogenuroCobre && EnLista(kAnionesReductores, an)) return false;
  if (Reductor(m) && an.formula != "ClO_4" && EnLista(kAnionesOxidantes, an)) return false;
  if (!binario && EnLista(kSinSales, an)) return false;
  // Ions of charge 3 and 4 make no salts with the strong oxidising anions.
  if (ox >= 3 && (an.formula == "MnO_4" || an.formula == "CrO_4" || an.formula == "Cr_2O_7")) return false;
  if (ox == 4 && EnLista(kAnionesOxidantes, an)) return false;
  if (!binario && !Grande(m) && EnLista(kSoloCationesGrandes, an)) return false;
  // Carbonates and sulfites of ions of charge 3 or 4 hydrolyse to the hydroxide.
  if (ox >= 3 && (an.formula == "CO_3" || an.formula == "SO_3" || an.formula == "NO_2"))
    return false;
  return true;
}

bool HidroxidoReal(const Metal& m) {
  static constexpr string_view kSin[] = {"Fr", "Ag", "Pt", "Hg", "Hg_2"};
  if (Esta(kSin, m.simbolo)) return false;
  if (m.simbolo == "Cu" || m.simbolo == "Au") return m.oxidacion != 1;
  if (m.simbolo == "Mn" || m.simbolo == "Co" || m.simbolo == "Ni") return m.oxidacion == 2;
  if (m.simbolo == "Sn" || m.simbolo == "Pb") return m.oxidacion == 2;
  return true;
}

bool OxidoReal(const Metal& m) {
  if (m.simbolo == "Fr" || m.simbolo == "Ra" || m.simbolo == "Hg_2") return false;
  if (m.simbolo == "Au") return m.oxidacion == 3;
  if (m.simbolo == "Co" || m.simbolo == "Ni") return m.oxidacion == 2;
  return true;
}

Compuesto Uno(string formula, const string& nombre) { return {std::move(formula), nombre, nombre, nombre}; }

// Composes the family from the ingredients, or gives nothing when they do not
// make a substance of it.
std::optional<Compuesto> Compone(Aleatorio& rnd, Familia fam, const Ingredientes& d) {
  const Metal& m = d.m;
  const NoMetal& a = d.a;
  const Anion& x = d.x;
  const Anion& y = d.y;
  const bool hidrogeno = m.simbolo == "H" || m.simbolo == "h3";
  const bool amonio = m.simbolo == "am";
  const string M = m.simbolo;
  switch (fam) {
    case Familia::E: {
      const string primero(d.nombresElemento[0]);
      const string segundo = d.nombresElemento.size() > 1 ? string(d.nombresElemento[1]) : primero;
      return Compuesto{d.elemento, primero, primero, segundo};
    }
    case Familia::MH: {
      static constexpr string_view kSin[] = {"Ag", "Cd", "Fr", "Ra"};
      if (hidrogeno || amonio || m.dosCargas || Esta(kSin, M)) return std::nullopt;
      return Uno(M + "H" + Sub(m.carga), m.nombre + " hydride");
    }
    case Familia::AH:
      return Uno(d.h.formula + "H" + Sub(d.h.carga), d.nombreHidruro);
    case Familia::MOH: {
      if (hidrogeno || !HidroxidoReal(m)) return std::nullopt;
      return Uno(M + (m.carga == 1 ? "OH" : "(OH)" + Sub(m.carga)), m.nombre + " hydroxide");
    }
    case Familia::PEROX: {
      static constexpr string_view kSin[] = {"Ag", "Be", "Fr", "Ra"};
      if (hidrogeno || amonio || m.dosCargas || m.carga > 2 || Esta(kSin, M)) return std::nullopt;
      const string nombre = m.nombre + " peroxide";
      if (m.carga == 1) return Compuesto{M + "_2O_2", nombre, nombre, "di" + m.simple + " dioxide"};
      return Compuesto{M + "O_2", nombre, nombre, m.simple + " dioxide"};
    }
    case Familia::MO: {
      if (hidrogeno || amonio || !OxidoReal(m)) return std::nullopt;
      const int c = m.carga;
      const string stock = m.nombre + " oxide";
      Compuesto r = c % 2 ? Compuesto{M + "_2O" + Sub(c), stock, stock,
                                      "di" + m.simple + " " + string(kPrefijoOxido[c - 1]) + "oxide"}
                          : Compuesto{M + "O" + Sub(c / 2), stock, stock,
                                      m.simple + " " + string(kPrefijoOxido[c / 2 - 1]) + "oxide"};
      if (Azar(rnd, 0.1))
        r = {"MnO_2", "manganese(IV) oxide", "manganese(IV) oxide", "manganese dioxide"};
      if (Azar(rnd, 0.1)) r = Uno("H_2O", "water");
      return r;
    }
    case Familia::AO: {
      const int k = a.oxidacion;
      const string formula = k % 2 ? a.simbolo + "_2O" + Sub(k) : a.simbolo + "O" + Sub(k / 2);
      if (Esta(kOxidosIrreales, formula)) return std::nullopt;
      const string sistematico = k % 2 ? "di" + a.nombre + " " + string(kPrefijoOxido[k - 1]) + "oxide"
                                       : a.nombre + " " + string(kPrefijoOxido[k / 2 - 1]) + "oxide";
      Compuesto r{formula, a.raiz + " anhydride", a.nombre + string(kRomanos[k - 1]) + " oxide",
                  sistematico};
      if (Azar(rnd, 1.0 / 13)) r = {"CO", "carbon monoxide", "carbon(II) oxide", "carbon monoxide"};
      return r;
    }
    case Familia::MA: {
      if (hidrogeno || !SalReal(m, x, true)) return std::nullopt;
      const int c = m.carga;
      string formula;
      if (x.carga == 2)
        formula = c % 2 ? M + "_2" + x.formula + Sub(c) : M + x.formula + Sub(c / 2);
      else
        formula = M + x.formula + Sub(c);
      return Uno(formula, m.nombre + " " + x.nombre);
    }
    case Familia::MHA: {
      static constexpr string_view kCon[] = {"Li", "Na", "K", "Rb", "Cs", "Ca", "Sr", "Ba"};
      if (x.carga != 2 || !Esta(kCon, M) || (x.formula != "S" && !Alcalino(m))) return std::nullopt;
      const string formula = m.carga == 1 ? M + "H" + x.formula : M + "(H" + x.formula + ")" + Sub(m.carga);
      return Uno(formula, m.nombre + " hydrogen " + x.nombre);
    }
    case Familia::HA_ion:
      if (x.carga != 2) return std::nullopt;
      return Uno("H" + x.formula + "^" + kMenos, "hydrogen " + x.nombre + " ion");
    case Familia::HA:
    case Familia::HA_ac: {
      const string sistematico = "hydrogen " + x.nombre;
      if (fam == Familia::HA) return Uno("H" + Sub(x.carga) + x.formula, sistematico);
      // In water the hydrogen halide is its acid, marked as dissolved.
      return Compuesto{"H" + Sub(x.carga) + x.formula + "_(_a_q_)", x.raiz + " acid", sistematico,
                       sistematico};
    }
    case Familia::A_ion: {
      const bool binario = AzarSupera(rnd, 0.5);
      const Anion& an = binario ? x : d.h;
      Compuesto r = Uno(an.formula + Carga(an.carga, kMenos), an.nombre + " ion");
      if (!binario && an.formula == "B") return std::nullopt;  // boron forms no anion
      if (Azar(rnd, 1.0 / 14)) r = Uno("H^" + string(1, kMenos), "hydride ion");
      if (Azar(rnd, 1.0 / 14)) r = Uno("O^2^" + string(1, kMenos), "oxide ion");
      return r;
    }
    case Familia::HAO: {
      const string tradicional = y.raiz + " acid";
      return Compuesto{"H" + Sub(y.carga) + y.formula, tradicional, tradicional,
                       "hydrogen " + y.nombre};
    }
    case Familia::AO_ion: {
      Compuesto r = Uno(y.formula + Carga(y.carga, kMenos), y.nombre + " ion");
      if (Azar(rnd, 1.0 / 14)) r = Uno("OH^" + string(1, kMenos), "hydroxide ion");
      return r;
    }
    case Familia::M_ion: {
      if (m.simbolo == "Ni" && m.oxidacion == 3) return std::nullopt;  // unknown in water
      return Uno(M + Carga(m.carga, '+'), m.nombre + " ion");
    }
    case Familia::HAO_ion: {
      if (y.carga < 2) return std::nullopt;
      if (!EnLista(kAnionesAcidos, y) && !EnLista(kSoloIonesAcidos, y)) return std::nullopt;
      const int h = static_cast<int>(AleatorioEn(rnd, 1, y.carga - 1, 1, 1));
      const string sistematico = string(kPrefijoSal[h - 1]) + "hydrogen " + y.nombre + " ion";
      Compuesto r = Uno("H" + Sub(h) + y.formula + Carga(y.carga - h, kMenos), sistematico);
      if (y.nombre == "carbonate" || y.nombre == "sulfite" || y.nombre == "sulfate")
        r.tradicional = "bi" + y.nombre + " ion";
      return r;
    }
    case Familia::MHAO: {
      static constexpr string_view kCon[] = {"Li", "Na", "K", "Rb", "Cs", "Mg", "Ca", "Sr", "Ba"};
      if (!Esta(kCon, M) || y.carga < 2 || !EnLista(kAnionesAcidos, y)) return std::nullopt;
      const int h = static_cast<int>(AleatorioEn(rnd, 1, y.carga - 1, 1, 1));
      const int resto = y.carga - h;
      const int g = Mcd(m.carga, resto);
      const string anion = "H" + Sub(h) + y.formula;
      const string formula =
          M + Sub(resto / g) + (m.carga / g != 1 ? "(" + anion + ")" + Sub(m.carga / g) : anion);
      Compuesto r =
          Uno(formula, m.nombre + " " + string(kPrefijoSal[h - 1]) + "hydrogen " + y.nombre);
      if (y.nombre == "carbonate" || y.nombre == "sulfite" || y.nombre == "sulfate")
        r.tradicional = m.nombre + " bi" + y.nombre;
      return r;
    }
    case Familia::MAO: {
      if (hidrogeno || !SalReal(m, y, false)) return std::nullopt;
      const int g = Mcd(m.carga, y.carga);
      const string formula = M + Sub(y.carga / g) +
                             (m.carga / g != 1 ? "(" + y.formula + ")" + Sub(m.carga / g) : y.formula);
      return Uno(formula, m.nombre + " " + y.nombre);
    }
    case Familia::AX: {
      auto posicion = [](const string& s) {
        const string clave = s.size() == 1 ? s + " " : s;
        return kOrdenNoMetales.find(clave);
      };
      const auto pa = posicion(a.simbolo);
      const bool xDespues = posicion(x.formula) > pa;
      const bool hDespues = posicion(d.h.formula) > pa;
      if (!xDespues && !hDespues) return std::nullopt;
      const bool tomaHidruro = xDespues && hDespues ? AzarSupera(rnd, 0.5) : hDespues;
      const Anion& p = tomaHidruro ? d.h : x;
      const int g = Mcd(a.oxidacion, p.carga);
      const int na = p.carga / g;
      const int np = a.oxidacion / g;
      const string formula = a.simbolo + Sub(na) + p.formula + Sub(np);
      if (!Esta(kParesReales, formula)) return std::nullopt;
      const string stock = a.nombre + string(kRomanos[a.oxidacion - 1]) + " " + p.nombre;
      const string sistematico =
          string(kPrefijoSal[na - 1]) + a.nombre + " " + string(kPrefijoSal[np - 1]) + p.nombre;
      return Compuesto{formula, sistematico, stock, sistematico};
    }
  }
  return std::nullopt;
}

// The pseudo-symbols become the ions they stand for.
void Termina(string& formula) {
  ReplaceAll(formula, "am_", "(NH_4)_");
  ReplaceAll(formula, "am", "NH_4");
  ReplaceAll(formula, "h3", "H_3O");
}

}  // namespace

Compuesto ComponerCompuesto(Aleatorio& rnd, Familia familia) {
  for (;;) {
    const Ingredientes d = Dibuja(rnd);
    if (auto c = Compone(rnd, familia, d)) {
      Termina(c->formula);
      return *std::move(c);
    }
  }
}

}  // namespace ss::mod::ATEM_QUIM_FIN
