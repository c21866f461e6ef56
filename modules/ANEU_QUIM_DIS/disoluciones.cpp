// PLACEHOLDER: being written.
#include "modules/ANEU_QUIM_DIS/dis.h"

namespace ss::mod::dis {

void Generador1(GenContext&) {}
void Generador2(GenContext&) {}
void Generador3(GenContext&) {}
void Generador5(GenContext&) {}
void Generador10(GenContext&) {}

}  // namespace ss::mod::dis
