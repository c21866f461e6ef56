// Generators 2 to 4: lists of redox equations to balance, in acid medium,
// in basic medium, or in either. The statement shows each equation without
// its coefficients, the solution the balanced one.
#include <algorithm>
#include <vector>

#include "modules/ANEU_QUIM_RDX/rdx.h"
#include "problems/numeros.h"

namespace ss::mod::rdx {
namespace {

enum class Medio { Acido, Basico, Ambos };

void Lista(GenContext& g, Medio medio, std::string_view clave) {
  const int n = std::clamp(static_cast<int>(g.GP_Items), 2, 26);
  static constexpr std::string_view kLetras = "abcdefghijklmnopqrstuvwxyz";
  std::string st = g.MsgQUI(clave) + ":&LF", so;
  std::vector<std::string> hechas;
  int salto = 0;
  for (int i = 0; i < n; ++i) {
    if (AzarSupera(g.rnd, 0.9)) ++salto;
    // A repeated equation is drawn again; after eight repeats the list moves
    // on by one row, so that a short table still fills a long list.
    EcuacionRedox e;
    for (int choques = 0;;) {
      const int indice = g.GP_SeqB + i + salto;
      const bool acida = medio == Medio::Acido ||
                         (medio == Medio::Ambos && (AzarSupera(g.rnd, 0.9) || indice % 2 == 0));
      e = acida ? EcuacionRedoxAcida(g, indice) : EcuacionRedoxBasica(g, indice);
      if (std::find(hechas.begin(), hechas.end(), e.ajustada) == hechas.end()) break;
      if (++choques > 8) ++salto, choques = 0;
    }
    hechas.push_back(e.ajustada);
    const std::string letra = "&SP=10:&+B" + std::string(1, kLetras[static_cast<std::size_t>(i)]) + ")&-B  ";
    st += letra + e.sinAjustar + "&LF";
    so += letra + e.ajustada + "&LF";
  }
  g.GP_Statement = st + "&LF";
  g.GP_Solution = so;
}

}  // namespace

void Generador2(GenContext& g) { Lista(g, Medio::Acido, "AjustarRedoxAcido"); }
void Generador3(GenContext& g) { Lista(g, Medio::Basico, "AjustarRedoxBasico"); }
void Generador4(GenContext& g) { Lista(g, Medio::Ambos, "AjustarRedoxAci_bas"); }

}  // namespace ss::mod::rdx
