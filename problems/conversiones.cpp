#include "problems/conversiones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "problems/fallos.h"
#include "problems/generador.h"
#include "problems/generic.h"
#include "problems/numeros.h"

namespace ss {
namespace {

// How often an item is drawn again before the exercise gives up. The ranges
// below are met within a few tries; the bound only keeps a bad random source
// from hanging the program.
constexpr int kIntentos = 1000;

// ---------------------------------------------------------------------------
// The frame every conversion exercise shares: a title, one line an item
// ("a) 3 km  +  45 m  into  cm"), one answer an item.

std::string Titulo(GenContext& g) { return g.MsgMAT("RealizarConversiones") + ":&LF"; }

std::string Cantidad(double valor, std::string_view unidad) {
  return NumTexto(valor) + "& " + std::string(unidad);
}

std::string LineaEnunciado(GenContext& g, int item, const std::string& datos,
                           std::string_view unidad) {
  std::string linea = g.MsgMAT("Pasar_a");
  Reemplaza(linea, "%DATA%", datos);
  Reemplaza(linea, "%UNIT%", unidad);
  return Etiqueta(item) + linea + "&LF";
}

// Whether the statement already asks this line's conversion: the items of
// one exercise are all different.
bool Repetida(const std::string& enunciado, const std::string& linea) {
  const std::size_t cuerpo = linea.find(")&-B");  // past the item's letter
  return enunciado.find(linea.substr(cuerpo == std::string::npos ? 0 : cuerpo)) != std::string::npos;
}

std::string LineaSolucion(int item, double resultado, std::string_view unidad) {
  return Etiqueta(item) + NumAgrupado(resultado) + "& " + std::string(unidad) + "&LF";
}

// ---------------------------------------------------------------------------
// Decimal ladders. Units are numbered 1 (the biggest) to 7; 4 is the base.

struct DefEscalera {
  std::array<std::string_view, 7> unidades;
  std::array<std::string_view, 7> nombradas;  // a unit's named twin ("ha"), or ""
  double paso;                                // factor between neighbouring units
  int maxPartes;                              // most units in one quantity
  std::array<double, 3> divisores;            // scaling of values of units 1-3
  double minimo, maximo;                      // the answer's range, in the target unit
  int nombradaDesde, nombradaHasta;           // targets that have a named twin; 0 none
};

constexpr std::array<std::string_view, 7> kSinNombres{};

// In the order of Escalera.
constexpr DefEscalera kEscaleras[] = {
    {{"kg", "hg", "dag", "g", "dg", "cg", "mg"}, kSinNombres, 10, 4, {100, 10, 10}, 0.01,
     100000000, 0, 0},
    {{"km", "hm", "dam", "m", "dm", "cm", "mm"}, kSinNombres, 10, 4, {100, 10, 10}, 0.01,
     100000000, 0, 0},
    {{"kL", "hL", "daL", "L", "dL", "cL", "mL"}, kSinNombres, 10, 4, {100, 10, 10}, 0.01,
     100000000, 0, 0},
    {{"km^2", "hm^2", "dam^2", "m^2", "dm^2", "cm^2", "mm^2"}, kSinNombres, 100, 3,
     {1000, 100, 10}, 0.009, 990000000, 0, 0},
    {{"km^2", "hm^2", "dam^2", "m^2", "dm^2", "cm^2", "mm^2"}, {"", "ha", "a", "ca", "", "", ""},
     100, 3, {1000, 100, 10}, 0.002, 990000000, 2, 4},
    {{"km^3", "hm^3", "dam^3", "m^3", "dm^3", "cm^3", "mm^3"}, kSinNombres, 1000, 3,
     {1000, 100, 10}, 0.002, 990000000, 0, 0},
    {{"km^3", "hm^3", "dam^3", "m^3", "dm^3", "cm^3", "mm^3"}, {"", "", "", "kL", "L", "mL", ""},
     1000, 3, {1000, 100, 10}, 0.002, 990000000, 4, 6},
};

struct Parte {
  int indice;    // unit 1..7
  double valor;
};

struct ItemDecimal {
  int destino = 4;
  std::vector<Parte> partes;
  double resultado = 0;
};

// The target unit: it follows the variant counter, so neighbouring items ask
// for different units, unless a chance picks the base unit, the smallest one,
// or one of the units that have a named twin.
int DestinoDecimal(GenContext& g, const DefEscalera& e, int item) {
  int destino = Forma(g, 7, item) + 1;
  if (AzarSupera(g.rnd, 0.9)) destino = 4;
  if (AzarSupera(g.rnd, 0.95)) destino = 7;
  if (e.nombradaDesde > 0 && AzarSupera(g.rnd, 0.9))
    destino = static_cast<int>(AleatorioEn(g.rnd, e.nombradaDesde, e.nombradaHasta, 1, 1));
  return destino;
}

// The units of a quantity's parts: all different, none the target, none six
// steps or more from it (the answer would not be readable), biggest first.
std::vector<int> UnidadesPartes(GenContext& g, const DefEscalera& e, int destino) {
  std::vector<int> libres;
  for (int u = 1; u <= 7; ++u)
    if (u != destino && std::abs(u - destino) < 6) libres.push_back(u);
  const int n = static_cast<int>(AleatorioEn(g.rnd, 1, e.maxPartes, 1, 1));
  std::vector<int> elegidas;
  for (int k = 0; k < n && !libres.empty(); ++k) {
    const auto at = static_cast<long long>(
        AleatorioEn(g.rnd, 1, static_cast<double>(libres.size()), 1, 1) - 1);
    elegidas.push_back(At(libres, at));
    libres.erase(libres.begin() + at);
  }
  std::sort(elegidas.begin(), elegidas.end());
  return elegidas;
}

// Two digits, at times scaled so that it reads naturally in its unit:
// 0.45 km, 3.2 hm, 4700 mm.
double ValorParte(GenContext& g, const DefEscalera& e, int indice) {
  double v = AleatorioEn(g.rnd, 11, 99, 1, 1);
  if (AzarSupera(g.rnd, 0.5)) {
    if (indice < 4)
      v = Div(v, At(e.divisores, indice - 1));
    else if (indice > 4)
      v *= 100;
  }
  return v;
}

// A part's value in the target unit. Dividing by an exact power keeps values
// such as 45 mm -> 0.045 m free of binary noise.
double EnDestino(const DefEscalera& e, const Parte& p, int destino) {
  const int pasos = destino - p.indice;  // > 0: the part's unit is the bigger one
  return pasos >= 0 ? p.valor * std::pow(e.paso, pasos) : Div(p.valor, std::pow(e.paso, -pasos));
}

// The answer is written out in full, so its digits, from the sum's first to
// the smallest part's last, must fit in the 15 a number keeps.
bool CabeEntero(const ItemDecimal& it, const DefEscalera& e) {
  double menor = it.resultado;
  for (const Parte& p : it.partes) menor = std::min(menor, EnDestino(e, p, it.destino));
  return std::floor(std::log10(it.resultado)) - std::floor(std::log10(menor)) + 2 <= 15;
}

ItemDecimal DibujaItemDecimal(GenContext& g, const DefEscalera& e, int item) {
  for (int intento = 0; intento < kIntentos; ++intento) {
    ItemDecimal it;
    it.destino = DestinoDecimal(g, e, item);
    for (int u : UnidadesPartes(g, e, it.destino)) it.partes.push_back({u, ValorParte(g, e, u)});
    for (const Parte& p : it.partes) it.resultado += EnDestino(e, p, it.destino);
    if (it.resultado >= e.minimo && it.resultado < e.maximo && CabeEntero(it, e)) return it;
  }
  throw std::runtime_error("No data fit the conversion exercise");
}

std::string_view NombreUnidad(const DefEscalera& e, int indice, bool nombrada) {
  const std::string_view twin = At(e.nombradas, indice - 1);
  return nombrada && !twin.empty() ? twin : At(e.unidades, indice - 1);
}

// ---------------------------------------------------------------------------
// Temperature.

enum Grados { kCelsius, kFahrenheit, kKelvin };

struct FormaTemperatura {
  Grados de, a;
};

// Each pair of forms is one conversion and its reverse.
constexpr FormaTemperatura kFormasTemperatura[] = {
    {kCelsius, kFahrenheit}, {kFahrenheit, kCelsius}, {kCelsius, kKelvin},
    {kKelvin, kCelsius},     {kFahrenheit, kKelvin},  {kKelvin, kFahrenheit},
};

constexpr std::string_view kSimbolosGrados[] = {"\xB0" "C", "\xB0" "F", "K"};

// Readings worth knowing: water freezing and boiling, the body, a room, the
// point where Celsius and Fahrenheit meet, absolute zero, liquid nitrogen.
constexpr double kLecturasNotables[3][6] = {
    {0, 100, 37, 20, 25, -40},
    {32, 212, 98.6, 68, 0, -40},
    {273.15, 373.15, 310.15, 298.15, 0, 77},
};

double LecturaTemperatura(GenContext& g, Grados escala) {
  double v = AleatorioEn(g.rnd, 1, 400, 1, 1) - (escala == kKelvin ? 1 : 200);
  if (AzarSupera(g.rnd, 0.8)) v = RedondeaPot(v, 0);  // a multiple of ten
  if (AzarSupera(g.rnd, 0.8)) {
    const auto& lista = At(kLecturasNotables, escala);
    const double n = static_cast<double>(std::size(lista));
    v = At(lista, static_cast<long long>(AleatorioEn(g.rnd, 1, n, 1, 1)) - 1);
  }
  return v;
}

double ACelsius(double v, Grados escala) {
  if (escala == kFahrenheit) return Div(v - 32, 1.8);
  return escala == kKelvin ? v - 273.15 : v;
}

double DesdeCelsius(double c, Grados escala) {
  if (escala == kFahrenheit) return 1.8 * c + 32;
  return escala == kKelvin ? c + 273.15 : c;
}

// "t(°F) = 1.8 t(°C) + 32;   T(K) = t(°C) + 273.15"
std::string FormulasTemperatura(GenContext& g) {
  const std::string t = "&+It&-I(", kelvin = "&+IT&-I(";
  const std::string c = t + std::string(kSimbolosGrados[kCelsius]) + ")";
  return g.MsgMAT("Escalas_temperatura") + "  " + t + std::string(kSimbolosGrados[kFahrenheit]) +
         ") = " + NumTexto(1.8) + " " + c + " + " + NumTexto(32) + ";   " + kelvin +
         std::string(kSimbolosGrados[kKelvin]) + ") = " + c + " + " + NumTexto(273.15) + "&LF";
}

// ---------------------------------------------------------------------------
// Imperial units.

struct UnidadImperial {
  std::string_view clave;    // key of a symbol that depends on the language, or ""
  std::string_view simbolo;  // the symbol when it does not
  double enBase;             // the unit in metres or in grams
};

struct FormaImperial {
  int de, a;                      // units of the table
  double desde, hasta, paso;      // the draw of the datum
  double divisor;                 // 10 for a datum with one decimal
};

struct Equivalencia {
  double valor;  // 0 ends a chain
  int unidad;
};
using Cadena = std::array<Equivalencia, 5>;

enum : int { kMi, kYd, kFt, kIn, kKm, kM, kCm, kMm };

constexpr UnidadImperial kUnidadesLongitud[] = {
    {"Simbolo_milla", "", 1609.344}, {"Simbolo_yarda", "", 0.9144},
    {"Simbolo_pie", "", 0.3048},     {"Simbolo_pulgada", "", 0.0254},
    {"", "km", 1000},                {"", "m", 1},
    {"", "cm", 0.01},                {"", "mm", 0.001},
};

// Eleven conversions, each both ways.
constexpr FormaImperial kFormasLongitud[] = {
    {kMi, kKm, 10, 90, 1, 10},  {kKm, kMi, 20, 1200, 1, 1}, {kMi, kYd, 10, 90, 1, 10},
    {kYd, kMi, 100, 900, 1, 1}, {kYd, kM, 2, 900, 1, 1},    {kM, kYd, 20, 1200, 1, 1},
    {kYd, kFt, 2, 900, 1, 1},   {kFt, kYd, 2, 900, 1, 1},   {kYd, kIn, 2, 900, 1, 1},
    {kIn, kYd, 20, 900, 1, 1},  {kFt, kIn, 2, 90, 1, 1},    {kIn, kFt, 20, 900, 1, 1},
    {kFt, kM, 2, 900, 1, 1},    {kM, kFt, 20, 1200, 1, 1},  {kFt, kCm, 2, 90, 1, 1},
    {kCm, kFt, 20, 1200, 1, 1}, {kIn, kCm, 2, 300, 1, 1},   {kCm, kIn, 20, 1200, 1, 1},
    {kIn, kMm, 2, 300, 1, 1},   {kMm, kIn, 20, 1200, 1, 1}, {kIn, kM, 20, 900, 1, 1},
    {kM, kIn, 20, 1200, 1, 1},
};

constexpr Cadena kEquivalenciasLongitud[] = {
    {{{1, kMi}, {1760, kYd}, {1.609344, kKm}}},
    {{{1, kYd}, {3, kFt}, {36, kIn}, {0.9144, kM}}},
    {{{1, kFt}, {12, kIn}, {30.48, kCm}, {0.3048, kM}}},
    {{{1, kIn}, {2.54, kCm}, {25.4, kMm}, {0.0254, kM}}},
};

enum : int { kLb, kOz, kKg, kG };

constexpr UnidadImperial kUnidadesMasa[] = {
    {"Simbolo_libra", "", 453.59237},
    {"Simbolo_onza", "", 453.59237 / 16},
    {"", "kg", 1000},
    {"", "g", 1},
};

// Five conversions, each both ways.
constexpr FormaImperial kFormasMasa[] = {
    {kLb, kKg, 1, 90, 1, 1},   {kKg, kLb, 1, 50, 1, 1},    {kLb, kG, 1, 50, 1, 1},
    {kG, kLb, 80, 8000, 5, 1}, {kLb, kOz, 1, 90, 1, 1},    {kOz, kLb, 20, 500, 1, 1},
    {kOz, kG, 5, 600, 1, 1},   {kG, kOz, 80, 8000, 5, 1},  {kOz, kKg, 20, 500, 1, 1},
    {kKg, kOz, 1, 50, 1, 1},
};

constexpr Cadena kEquivalenciasMasa[] = {
    {{{1, kLb}, {16, kOz}, {453.59237, kG}, {0.45359237, kKg}}},
};

std::string SimboloImperial(GenContext& g, const UnidadImperial& u) {
  return u.clave.empty() ? std::string(u.simbolo) : g.MsgMAT(u.clave);
}

// "Equivalences: 1 lb = 16 oz = 453.59237 g = 0.45359237 kg"
std::string LineaEquivalencias(GenContext& g, std::span<const UnidadImperial> unidades,
                               std::span<const Cadena> cadenas) {
  std::string linea = g.MsgMAT("Equivalencias");
  for (std::size_t c = 0; c < cadenas.size(); ++c) {
    linea += c == 0 ? "  " : ";   ";
    for (std::size_t k = 0; k < cadenas[c].size() && cadenas[c][k].valor != 0; ++k) {
      if (k > 0) linea += " = ";
      linea += Cantidad(cadenas[c][k].valor, SimboloImperial(g, At(unidades, cadenas[c][k].unidad)));
    }
  }
  return linea + "&LF";
}

void ConversionesImperiales(GenContext& g, std::span<const UnidadImperial> unidades,
                            std::span<const FormaImperial> formas,
                            std::span<const Cadena> equivalencias) {
  const int items = ItemsEjercicio(g);
  const int n = static_cast<int>(formas.size());
  g.GP_Statement = Titulo(g) + LineaEquivalencias(g, unidades, equivalencias);
  g.GP_Solution.clear();
  for (int i = 1; i <= items; ++i) {
    for (int intento = 0;; ++intento) {
      int f = Forma(g, n, i);
      if (AzarSupera(g.rnd, 0.7)) f = static_cast<int>(AleatorioEn(g.rnd, 1, n, 1, 1)) - 1;
      const FormaImperial& forma = At(formas, f);
      const UnidadImperial& de = At(unidades, forma.de);
      const UnidadImperial& a = At(unidades, forma.a);
      const double dato = RedondeaPot(
          Div(AleatorioEn(g.rnd, forma.desde, forma.hasta, forma.paso, 1), forma.divisor), -4);
      const double resultado = RedondeaPot(Div(dato * de.enBase, a.enBase), -4);
      const std::string unidad = SimboloImperial(g, a);
      const std::string linea = LineaEnunciado(g, i, Cantidad(dato, SimboloImperial(g, de)), unidad);
      if (Repetida(g.GP_Statement, linea) && intento < kIntentos) continue;
      g.GP_Statement += linea;
      g.GP_Solution += LineaSolucion(i, resultado, unidad);
      break;
    }
  }
}

}  // namespace

void ConversionesDecimales(GenContext& g, Escalera escalera) {
  const DefEscalera& e = At(kEscaleras, static_cast<int>(escalera));
  const int items = ItemsEjercicio(g);
  g.GP_Statement = Titulo(g);
  g.GP_Solution.clear();
  for (int i = 1; i <= items; ++i) {
    for (int intento = 0;; ++intento) {
      const ItemDecimal it = DibujaItemDecimal(g, e, i);
      // Named units go either to the target or to the data, so that each item
      // passes between the two kinds where the ladder has both.
      const bool nombrada = Forma(g, 3, i) != 0;
      std::string datos;
      for (const Parte& p : it.partes) {
        if (!datos.empty()) datos += "  +  ";
        datos += Cantidad(p.valor, NombreUnidad(e, p.indice, !nombrada));
      }
      const std::string_view unidad = NombreUnidad(e, it.destino, nombrada);
      const std::string linea = LineaEnunciado(g, i, datos, unidad);
      if (Repetida(g.GP_Statement, linea) && intento < kIntentos) continue;
      g.GP_Statement += linea;
      g.GP_Solution += LineaSolucion(i, it.resultado, unidad);
      break;
    }
  }
}

void ConversionesTemperatura(GenContext& g, bool inversas) {
  const int items = ItemsEjercicio(g);
  g.GP_Statement = Titulo(g) + FormulasTemperatura(g);
  g.GP_Solution.clear();
  for (int i = 1; i <= items; ++i) {
    int f = Forma(g, static_cast<int>(std::size(kFormasTemperatura)), i);
    if (inversas) f ^= 1;  // the reverse of each conversion stands beside it
    const FormaTemperatura forma = At(kFormasTemperatura, f);
    for (int intento = 0;; ++intento) {
      const double dato = LecturaTemperatura(g, forma.de);
      const std::string linea = LineaEnunciado(g, i, Cantidad(dato, kSimbolosGrados[forma.de]),
                                               kSimbolosGrados[forma.a]);
      if (Repetida(g.GP_Statement, linea) && intento < kIntentos) continue;
      const double resultado = RedondeaPot(DesdeCelsius(ACelsius(dato, forma.de), forma.a), -3);
      g.GP_Statement += linea;
      g.GP_Solution += LineaSolucion(i, resultado, kSimbolosGrados[forma.a]);
      break;
    }
  }
}

void ConversionesLongitudImperial(GenContext& g) {
  ConversionesImperiales(g, kUnidadesLongitud, kFormasLongitud, kEquivalenciasLongitud);
}

void ConversionesMasaImperial(GenContext& g) {
  ConversionesImperiales(g, kUnidadesMasa, kFormasMasa, kEquivalenciasMasa);
}

}  // namespace ss
