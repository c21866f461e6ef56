// Unit conversions: each generator hands one of the shared conversion
// exercises its catalogue place.
#include "modules/ANEU_QUIM_DIS/dis.h"
#include "problems/conversiones.h"

namespace ss::mod::dis {

void Generador11(GenContext& g) { ConversionesDecimales(g, Escalera::Masa); }
void Generador12(GenContext& g) { ConversionesDecimales(g, Escalera::Longitud); }
void Generador13(GenContext& g) { ConversionesDecimales(g, Escalera::Superficie); }
void Generador14(GenContext& g) { ConversionesDecimales(g, Escalera::SuperficieAgraria); }
void Generador15(GenContext& g) { ConversionesDecimales(g, Escalera::Volumen); }
void Generador16(GenContext& g) { ConversionesDecimales(g, Escalera::Capacidad); }
void Generador17(GenContext& g) { ConversionesDecimales(g, Escalera::VolumenCapacidad); }
void Generador18(GenContext& g) { ConversionesTemperatura(g, false); }
void Generador19(GenContext& g) { ConversionesTemperatura(g, true); }
void Generador20(GenContext& g) { ConversionesLongitudImperial(g); }
void Generador21(GenContext& g) { ConversionesMasaImperial(g); }

}  // namespace ss::mod::dis
