// PLACEHOLDER: being written.
#include "modules/ANEU_QUIM_DIS/dis.h"

namespace ss::mod::dis {

void Generador11(GenContext&) {}
void Generador12(GenContext&) {}
void Generador13(GenContext&) {}
void Generador14(GenContext&) {}
void Generador15(GenContext&) {}
void Generador16(GenContext&) {}
void Generador17(GenContext&) {}
void Generador18(GenContext&) {}
void Generador19(GenContext&) {}
void Generador20(GenContext&) {}
void Generador21(GenContext&) {}

}  // namespace ss::mod::dis
