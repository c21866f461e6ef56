// PLACEHOLDER: being written.
#include "modules/ANEU_QUIM_DIS/dis.h"

namespace ss::mod::dis {

void Generador4(GenContext&) {}
void Generador9(GenContext&) {}

}  // namespace ss::mod::dis
