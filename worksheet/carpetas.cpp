// PLACEHOLDER: being written.
#include "worksheet/carpetas.h"

namespace ss {

QString Carpetas::Img() const { return programa + QStringLiteral("/img"); }
QString Carpetas::Lang() const { return programa + QStringLiteral("/lang"); }
QString CarpetaTemporal() { return {}; }
bool CreaCarpetaTemporal(const QString&) { return false; }
QString BuscaEnCarpeta(const QString&, const QString&) { return {}; }

}  // namespace ss
