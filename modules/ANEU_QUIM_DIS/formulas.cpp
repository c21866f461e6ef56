// PLACEHOLDER: being written.
#include "modules/ANEU_QUIM_DIS/dis.h"

namespace ss::mod::dis {

void Generador6(GenContext&) {}
void Generador7(GenContext&) {}
void Generador8(GenContext&) {}

}  // namespace ss::mod::dis
