#include "typeset/markup.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "problems/texto.h"

namespace ss {

std::string SustituyeCodigos(std::string_view linea, const Reemplazos& r) {
  std::string s(linea);
  if (s.find('&') == std::string::npos) return s;
  ReplaceAll(s, "&.", r.decimal);
  ReplaceAll(s, "&,", r.lista);
  ReplaceAll(s, "&\xB7", r.producto);
  ReplaceAll(s, "&:", r.division);
  ReplaceAll(s, "&(", r.abre);
  ReplaceAll(s, "&)", r.cierra);
  ReplaceAll(s, "&FA", r.frecuencia);
  ReplaceAll(s, "&DT", r.desviacion);
  ReplaceAll(s, "&SM", r.moneda);
  ReplaceAll(s, "&NSM", r.monedaNombre);
  ReplaceAll(s, "&NPM", r.monedaPlural);
  ReplaceAll(s, "&sen", r.seno);
  ReplaceAll(s, "&and", r.y);
  return s;
}

namespace {

constexpr bool S = false;  // font "Symbol"
constexpr bool M = true;   // font "MT Extra"

// In table order: the first name that matches wins, so a name needs no end.
constexpr std::array<Simbolo, 79> kSimbolos = {{
    {"alfa", S, 'a'},    {"beta", S, 'b'},     {"gamma", S, 'g'},   {"Gamma", S, 'G'},
    {"delta", S, 'd'},   {"Delta", S, 'D'},    {"epsilon", S, 'e'}, {"zeta", S, 'z'},
    {"eta", S, 'h'},     {"teta", S, 'q'},     {"Teta", S, 'Q'},    {"iota", S, 'i'},
    {"kappa", S, 'k'},   {"lambda", S, 'l'},   {"Lambda", S, 'L'},  {"mu", S, 'm'},
    {"nu", S, 'n'},      {"xi", S, 'x'},       {"Xi", S, 'X'},      {"pi", S, 'p'},
    {"Pi", S, 'P'},      {"ro", S, 'r'},       {"sigma", S, 's'},   {"Sigma", S, 'S'},
    {"tau", S, 't'},     {"ypsilon", S, 'u'},  {"Ypsilon", S, 161}, {"fi", S, 'j'},
    {"Fi", S, 'F'},      {"ji", S, 'c'},       {"psi", S, 'y'},     {"Psi", S, 'Y'},
    {"omega", S, 'w'},   {"Omega", S, 'W'},    {"ald", S, 220},     {"aud", S, 221},
    {"ard", S, 222},     {"add", S, 223},      {"alrd", S, 219},    {"als", S, 172},
    {"aus", S, 173},     {"ars", S, 174},      {"ads", S, 175},     {"alrs", S, 171},
    {"divi", S, 184},    {"!=", S, 185},       {"vacio", S, 198},   {"iorden", S, 187},
    {"aprox", S, '@'},   {"real", S, 194},     {"<=", S, 163},      {">=", S, 179},
    {"oo", S, 165},      {"Vacio", S, 198},    {"theta", S, 'q'},   {"Theta", S, 'Q'},
    {"perte", S, 206},   {"nabla", S, 209},    {"perpen", S, '^'},  {"todo", S, 34},
    {"exist", S, '$'},   {"parci", S, 182},    {"itg", S, 242},     {"pm", S, 177},
    {"aspa", S, 180},    {"noperte", S, 207},  {"vacio", S, 'f'},   {"TRE", S, 167},
    {"DIA", S, 168},     {"COR", S, 169},      {"PIC", S, 170},     {"rho", S, 'r'},
    {"and", S, 217},     {"or", S, 218},       {"union", M, 'U'},   {"inter", M, 'I'},
    {"mp", M, 'm'},      {"hbar", M, 'h'},     {"comp", M, 'o'},
}};

struct Color {
  std::string_view nombre;
  int r, g, b;
};
constexpr Color kColores[] = {
    {"BLACK", 0, 0, 0},       {"NEGRO", 0, 0, 0},         {"BLUE", 0, 0, 255},
    {"AZUL", 0, 0, 255},      {"CYAN", 0, 255, 255},      {"CIAN", 0, 255, 255},
    {"GREEN", 0, 255, 0},     {"VERDE", 0, 255, 0},       {"MAGENTA", 255, 0, 255},
    {"PINK", 255, 128, 255},  {"ROSA", 255, 128, 255},    {"FUCSIA", 255, 128, 255},
    {"VIOLETA", 128, 0, 255}, {"RED", 255, 0, 0},         {"ROJO", 255, 0, 0},
    {"WHITE", 255, 255, 255}, {"BLANCO", 255, 255, 255},  {"YELLOW", 255, 255, 0},
    {"AMARILLO", 255, 255, 0}, {"BROWN", 128, 64, 0},     {"MARRON", 128, 64, 0},
    {"CANELO", 128, 64, 0},   {"GREY", 192, 192, 192},    {"GRIS", 192, 192, 192},
    {"ORANGE", 255, 128, 0},  {"NARANJA", 255, 128, 0},   {"NARANJADO", 255, 128, 0},
};

int Componente(double v) {
  if (!std::isfinite(v)) return 0;
  return static_cast<int>(std::clamp(std::nearbyint(v), 0.0, 255.0));
}

}  // namespace

std::optional<Simbolo> BuscaSimbolo(std::string_view texto) {
  if (texto.empty()) return std::nullopt;
  for (const Simbolo& s : kSimbolos)
    if (s.nombre.front() == texto.front() && texto.starts_with(s.nombre)) return s;
  return std::nullopt;
}

int32_t LeeColor(std::string_view texto) {
  const std::string_view t = Trim(texto);
  if (t.find(';') != std::string_view::npos) {
    int rgb[3] = {0, 0, 0};
    std::size_t from = 0;
    for (int k = 0; k < 3 && from <= t.size(); ++k) {
      const std::size_t at = t.find(';', from);
      rgb[k] = Componente(Val(t.substr(from, at == std::string_view::npos ? t.npos : at - from)));
      if (at == std::string_view::npos) break;
      from = at + 1;
    }
    return rgb[0] + 256 * rgb[1] + 65536 * rgb[2];
  }
  if (!t.empty() && t.front() >= '0' && t.front() <= '9') {
    const double v = Val(t);
    if (!std::isfinite(v)) return 0;
    return static_cast<int32_t>(std::clamp(std::nearbyint(v), 0.0, 16777215.0));
  }
  const std::string nombre = UCase(t);
  for (const Color& c : kColores)
    if (c.nombre == nombre) return c.r + 256 * c.g + 65536 * c.b;
  return 0;
}

std::string ExtraeBloque(std::string_view texto, std::string_view apertura,
                         std::string_view cierre, bool* valido) {
  if (valido) *valido = false;
  const std::size_t inicio = texto.find(apertura);
  if (inicio != std::string_view::npos && !apertura.empty() && !cierre.empty() &&
      texto.find(cierre, inicio + apertura.size()) != std::string_view::npos) {
    // One walk from the open tag, from one possible tag to the next: every
    // tag met is an open or a close, and a close wins where both start.
    const char marcas[] = {apertura.front(), cierre.front(), '\0'};
    int nivel = 1;
    std::size_t p = inicio + apertura.size();
    while ((p = texto.find_first_of(marcas, p)) != std::string_view::npos) {
      const std::string_view resto = texto.substr(p);
      if (resto.starts_with(cierre)) {
        p += cierre.size();
        if (--nivel == 0) {
          if (valido) *valido = true;
          return std::string(texto.substr(inicio, p - inicio));
        }
      } else if (resto.starts_with(apertura)) {
        ++nivel;
        p += apertura.size();
      } else {
        ++p;
      }
    }
  }
  return std::string(apertura) + "&FC=Rojo:*ERROR*&FC=Negro:" + std::string(cierre);
}

}  // namespace ss
