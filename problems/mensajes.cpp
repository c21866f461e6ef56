#include "problems/mensajes.h"

#include <cmath>
#include <vector>

#include "problems/aleatorio.h"

namespace ss {

std::string EligeAlternativa(std::string_view text, int selector, Aleatorio& rnd) {
  if (text.find("@@") == std::string_view::npos) return std::string(text);
  std::vector<std::string_view> parts;
  std::size_t from = 0;
  for (;;) {
    std::size_t at = text.find("@@", from);
    parts.push_back(text.substr(from, at == std::string_view::npos ? std::string_view::npos : at - from));
    if (at == std::string_view::npos) break;
    from = at + 2;
  }
  const long long count = static_cast<long long>(parts.size());
  long long pick;
  if (selector < 0)
    pick = static_cast<long long>(std::floor(rnd.Siguiente() * 0.9999 * static_cast<double>(count)));
  else
    pick = selector % count;
  return std::string(parts[static_cast<std::size_t>(pick)]);
}

}  // namespace ss
