// Generator 5: a list of equations to balance. The statement shows each
// equation without its coefficients, the solution the balanced one.
#include <algorithm>
#include <vector>

#include "modules/ANEU_QUIM_ETQ/etq.h"
#include "problems/numeros.h"

namespace ss::mod::etq {

void Generador5(GenContext& g) {
  const int n = std::clamp(static_cast<int>(g.GP_Items), 2, 26);
  static constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";
  std::string st = g.MsgQUI("AjustaReacciones") + ":&LF";
  std::string so;
  std::vector<std::string> hechas;
  for (int i = 0; i < n; ++i) {
    // Each equation once; the templates give many more than a list holds.
    Ecuacion e;
    do {
      e = EcuacionPlantilla(g, static_cast<int>(AleatorioEn(g.rnd, 1, 100, 1, 1)));
    } while (std::find(hechas.begin(), hechas.end(), e.ajustada) != hechas.end());
    hechas.push_back(e.ajustada);
    const std::string letra = "&SP=10:&+B" + std::string(1, kLetras[i]) + ")&-B  ";
    st += letra + e.sinAjustar + "&LF";
    so += letra + e.ajustada + "&LF";
  }
  g.GP_Statement = st + "&LF";
  g.GP_Solution = so;
}

}  // namespace ss::mod::etq
