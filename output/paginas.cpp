#include "output/paginas.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace ss {
namespace {

// Digits only, as a number; a number too long for a page is taken as "far
// beyond the last page".
std::optional<long long> Numero(std::string_view s) {
  if (s.empty()) return std::nullopt;
  long long n = 0;
  for (char c : s) {
    if (c < '0' || c > '9') return std::nullopt;
    if (n < 1'000'000'000) n = n * 10 + (c - '0');
  }
  return n;
}

}  // namespace

const char* ClaveDeFallo(FalloPaginas fallo) {
  switch (fallo) {
    case FalloPaginas::Copias:
      return "TooMuchCopies";
    case FalloPaginas::Vacio:
      return "MissingPagesIntervals";
    case FalloPaginas::Caracter:
      return "BadCHARPageInterval";
    case FalloPaginas::Intervalo:
      return "BadPageInterval";
    case FalloPaginas::Ninguno:
      break;
  }
  return "";
}

std::optional<int> LeeCopias(std::string_view texto) {
  while (!texto.empty() && std::isspace(static_cast<unsigned char>(texto.front()))) texto.remove_prefix(1);
  while (!texto.empty() && std::isspace(static_cast<unsigned char>(texto.back()))) texto.remove_suffix(1);
  const std::optional<long long> n = Numero(texto);
  if (!n || *n < 1 || *n > kMaxCopias) return std::nullopt;
  return static_cast<int>(*n);
}

FalloPaginas LeeIntervalo(std::string_view texto, int ultima, std::vector<Tramo>& tramos) {
  tramos.clear();
  std::string limpio;
  for (char c : texto)
    if (!std::isspace(static_cast<unsigned char>(c))) limpio += c;
  if (limpio.empty()) return FalloPaginas::Vacio;
  for (char c : limpio)
    if (!(c >= '0' && c <= '9') && c != ',' && c != '-') return FalloPaginas::Caracter;

  std::size_t inicio = 0;
  while (inicio <= limpio.size()) {
    std::size_t fin = limpio.find(',', inicio);
    if (fin == std::string::npos) fin = limpio.size();
    const std::string_view item = std::string_view(limpio).substr(inicio, fin - inicio);
    const std::size_t guion = item.find('-');
    const std::optional<long long> a = Numero(item.substr(0, guion));
    const std::optional<long long> b = guion == std::string_view::npos ? a : Numero(item.substr(guion + 1));
    if (!a || !b || *a < 1 || *a > *b || (ultima > 0 && *b > ultima)) {
      tramos.clear();
      return FalloPaginas::Intervalo;
    }
    tramos.emplace_back(static_cast<int>(*a), static_cast<int>(*b));
    inicio = fin + 1;
  }
  return FalloPaginas::Ninguno;
}

std::vector<int> PaginasElegidas(const EleccionImpresion& e, int paginas) {
  std::vector<bool> marcada(static_cast<std::size_t>(std::max(paginas, 0)) + 1, false);
  for (int p = 1; p <= paginas; ++p) {
    switch (e.conjunto) {
      case ConjuntoPaginas::Todas:
        marcada[p] = true;
        break;
      case ConjuntoPaginas::Impares:
        marcada[p] = p % 2 == 1;
        break;
      case ConjuntoPaginas::Pares:
        marcada[p] = p % 2 == 0;
        break;
      case ConjuntoPaginas::Actual:
        marcada[p] = p == e.actual;
        break;
      case ConjuntoPaginas::Intervalo:
        for (const Tramo& t : e.tramos) marcada[p] = marcada[p] || (p >= t.first && p <= t.second);
        break;
    }
  }
  std::vector<int> elegidas;
  for (int p = 1; p <= paginas; ++p)
    if (marcada[p]) elegidas.push_back(p);
  return elegidas;
}

std::vector<int> OrdenDeImpresion(const EleccionImpresion& e, int paginas) {
  const std::vector<int> elegidas = PaginasElegidas(e, paginas);
  std::vector<int> orden;
  orden.reserve(elegidas.size() * static_cast<std::size_t>(std::max(e.copias, 0)));
  if (e.intercalar) {
    for (int c = 0; c < e.copias; ++c) orden.insert(orden.end(), elegidas.begin(), elegidas.end());
  } else {
    for (int p : elegidas) orden.insert(orden.end(), static_cast<std::size_t>(std::max(e.copias, 0)), p);
  }
  return orden;
}

}  // namespace ss
