// (being written)
#include "modules/ANEU_QUIM_RDX/rdx.h"

namespace ss::mod::rdx {

void Generador7(GenContext&) {}

}  // namespace ss::mod::rdx
