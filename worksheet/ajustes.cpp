#include "worksheet/ajustes.h"

#include <QDir>
#include <QFileInfo>

#include "problems/silabo_sed.h"
#include "problems/texto.h"

namespace ss {
namespace {

const QString kOrganizacion = QStringLiteral("Lumenfold");
const QString kAplicacion = QStringLiteral("Sheetsmith - Chemistry");

std::string A1252(const QString& s) { return Utf8ToCp1252(s.toUtf8().toStdString()); }
QString DeTexto(const std::string& s) { return QString::fromUtf8(Cp1252ToUtf8(s).c_str()); }

// A name among `nombres` equal to `buscado` without regard to case.
std::optional<QString> Igual(const QStringList& nombres, const QString& buscado) {
  for (const QString& n : nombres)
    if (n.compare(buscado, Qt::CaseInsensitive) == 0) return n;
  return std::nullopt;
}

// A whole number of the store, held within [lo, hi] whatever was written there.
int Acotado(const std::string& texto, int lo, int hi) {
  const double v = Val(texto);
  if (!(v >= lo)) return lo;  // NaN included
  if (v >= hi) return hi;
  return static_cast<int>(v);
}

int Signo(const QString& texto, int defecto) {
  const double v = Val(A1252(texto));
  return v > 0 ? 1 : v < 0 ? -1 : defecto;
}

}  // namespace

QString Almacen::Lee(const QString& seccion, const QString& clave, const QString& defecto) const {
  return Lee(seccion, clave).value_or(defecto);
}

AlmacenUsuario::AlmacenUsuario()
    : s_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, kOrganizacion,
                                     kAplicacion)) {}

AlmacenUsuario::AlmacenUsuario(const QString& ficheroIni)
    : s_(std::make_unique<QSettings>(ficheroIni, QSettings::IniFormat)) {}

std::optional<QString> AlmacenUsuario::Lee(const QString& seccion, const QString& clave) const {
  const auto grupo = Igual(s_->childGroups(), seccion);
  if (!grupo) return std::nullopt;
  s_->beginGroup(*grupo);
  std::optional<QString> valor;
  if (const auto k = Igual(s_->childKeys(), clave)) {
    // An unquoted comma in a hand-edited file makes the value a list: it is
    // read back as the text it was.
    const QVariant v = s_->value(*k);
    valor = v.typeId() == QMetaType::QStringList ? v.toStringList().join(u',') : v.toString();
  }
  s_->endGroup();
  return valor;
}

void AlmacenUsuario::Escribe(const QString& seccion, const QString& clave, const QString& valor) {
  const QString grupo = Igual(s_->childGroups(), seccion).value_or(seccion);
  s_->beginGroup(grupo);
  const QString k = Igual(s_->childKeys(), clave).value_or(clave);
  s_->setValue(k, valor);
  s_->endGroup();
  s_->sync();
}

std::optional<QString> AlmacenMemoria::Lee(const QString& seccion, const QString& clave) const {
  const auto it = valores_.find((seccion + u'/' + clave).toUpper());
  if (it == valores_.end()) return std::nullopt;
  return it->second;
}

void AlmacenMemoria::Escribe(const QString& seccion, const QString& clave, const QString& valor) {
  valores_[(seccion + u'/' + clave).toUpper()] = valor;
}

Ajustes LeeAjustes(const Almacen& al, TextosVentana& t) {
  Ajustes a;
  // A default of the language file, or the built-in value when it has none.
  auto defecto = [&t](const char* clave, const std::string& interno) {
    const std::string texto = t.GetL_win(clave);
    return texto.empty() ? interno : texto;
  };
  auto lee = [&al](const char* seccion, const char* clave, const std::string& def) {
    const auto v = al.Lee(QString::fromLatin1(seccion), QString::fromLatin1(clave));
    return v ? A1252(*v) : def;
  };

  a.mostrarPanelInicio = al.Lee("INI_WIN", "SHOW", "1") != u"0";
  a.botonesEdicion = al.Lee("Ver", "EdicBotones", "N").compare(u"S", Qt::CaseInsensitive) == 0;
  a.ultimaCarpeta = al.Lee("LastPath", "Path", QString());
  a.sysedu = al.Lee("SYSEDU", "cmbtext", QString());
  for (int i = 1; i <= 9; ++i) {
    a.recientesTitulo << al.Lee("Reciente", QStringLiteral("Titulo%1").arg(i), QString());
    a.recientesArchivo << al.Lee("Reciente", QStringLiteral("Archivo%1").arg(i), QString());
  }

  a.decimal = lee("SEPA", "DEC", defecto("DefaultDecimalSeparator", a.decimal));
  a.lista = lee("SEPA", "LIS", defecto("DefaultListSeparator", a.lista));
  if (lee("INTERV", "LEFT_OPEN", "(") == "]") {
    a.intervaloAbre = "]";
    a.intervaloCierra = "[";
  }
  a.desviacion = lee("STAT", "StDesv", "&sigma");
  a.frecuencia = lee("STAT", "Abfreq", "n");
  a.notacionCientifica = lee("SCIENT", "NOTAT", "\xD7" "10");
  a.producto = lee("PRODUCTO", "PRIMARY", "\xD7");
  a.division = lee("DIVISION", "PRIMARY", "\xF7");
  a.moneda = lee("CURRENCY", "SYMBOL", defecto("DefaultCurrencySYMBOL", a.moneda));
  a.monedaNombre = lee("CURRENCY", "NOMSIN", defecto("DefaultCurrencyNameS", a.monedaNombre));
  a.monedaPlural = lee("CURRENCY", "NOMPLU", defecto("DefaultCurrencyNameP", a.monedaPlural));
  static const char* kPos[4] = {"POS_OBJ", "POS_IMG", "POS_FOC", "POS_RAD"};
  for (int k = 0; k < 4; ++k) {
    const std::string esp = defecto((std::string("GeomeOptiMirrol_") + kPos[k]).c_str(), "");
    const std::string len = defecto((std::string("GeomeOptiLen_") + kPos[k]).c_str(), "");
    if (!esp.empty()) a.signosEspejo[k] = Signo(DeTexto(esp), a.signosEspejo[k]);
    if (!len.empty()) a.signosLente[k] = Signo(DeTexto(len), a.signosLente[k]);
    if (const auto v = al.Lee("OPT_GEO_ESP", kPos[k])) a.signosEspejo[k] = Signo(*v, a.signosEspejo[k]);
    if (const auto v = al.Lee("OPT_GEO_LEN", kPos[k])) a.signosLente[k] = Signo(*v, a.signosLente[k]);
  }

  a.ordena = al.Lee("Wizard", "Ordena", "S").compare(u"N", Qt::CaseInsensitive) != 0;
  if (const auto v = al.Lee("Wizard", "Solpos")) {
    a.solpos = v->trimmed().isEmpty() ? 1 : Acotado(A1252(*v), 0, 3);
  }
  a.propre = lee("Wizard", "Propre", "");
  a.prosuf = lee("Wizard", "Prosuf", ")");
  a.pagpos = Acotado(lee("Wizard", "Pagpos", "11"), 0, 15);
  a.procol = Acotado(lee("Wizard", "Procol", "16777215"), 0, 16777215);
  if (a.procol == 0) a.procol = 16777215;
  a.asignatura = lee("Wizard", "Asignatura", "");
  a.showini = al.Lee("Wizard", "Showini", "S").compare(u"N", Qt::CaseInsensitive) != 0;
  a.showavan = al.Lee("Wizard", "Showavan", "N").compare(u"S", Qt::CaseInsensitive) == 0;
  a.chkPretit = al.Lee("Wizard", "Chkpretit", "S").compare(u"N", Qt::CaseInsensitive) != 0;
  a.chkPosti1 = al.Lee("Wizard", "Chkposti1", "S").compare(u"N", Qt::CaseInsensitive) != 0;
  a.chkPosti2 = al.Lee("Wizard", "Chkposti2", "S").compare(u"N", Qt::CaseInsensitive) != 0;
  a.pretit = lee("Wizard", "Pretit", "");
  a.posti1 = lee("Wizard", "Posti1", "");
  a.posti2 = lee("Wizard", "Posti2", "");
  return a;
}

Reemplazos ReemplazosDe(const Ajustes& a, FuenteMensajes* mensajes) {
  Reemplazos r;
  r.decimal = a.decimal;
  r.lista = a.lista;
  r.producto = a.producto;
  r.division = a.division;
  r.abre = a.intervaloAbre;
  r.cierra = a.intervaloCierra;
  r.frecuencia = a.frecuencia;
  r.desviacion = a.desviacion;
  r.moneda = a.moneda;
  r.monedaNombre = a.monedaNombre;
  r.monedaPlural = a.monedaPlural;
  r.multiplicadorCientifico = a.notacionCientifica;
  if (mensajes) {
    if (const std::string* s = mensajes->Buscar(TablaMensajes::QUI, "sin")) r.seno = *s;
    if (const std::string* y = mensajes->Buscar(TablaMensajes::QUI, "and")) r.y = *y;
  }
  return r;
}

void GuardarAjustesAsistente(const Ajustes& a, Almacen& al) {
  al.Escribe("Wizard", "Ordena", a.ordena ? "S" : "N");
  al.Escribe("Wizard", "Solpos", QString::number(a.solpos));
  al.Escribe("Wizard", "Pagpos", QString::number(a.pagpos));
  al.Escribe("Wizard", "Procol", QString::number(a.procol));
  al.Escribe("Wizard", "Propre", DeTexto(a.propre));
  al.Escribe("Wizard", "Prosuf", DeTexto(a.prosuf));
  al.Escribe("Wizard", "Asignatura", DeTexto(a.asignatura));
  al.Escribe("SYSEDU", "cmbtext", a.sysedu);
  al.Escribe("Wizard", "Showini", a.showini ? "S" : "N");
  al.Escribe("Wizard", "Showavan", a.showavan ? "S" : "N");
}

std::vector<SistemaEducativo> SistemasEducativos(const QString& carpeta, TextosVentana& t) {
  std::vector<SistemaEducativo> lista;
  const QDir dir(carpeta);
  QStringList ficheros = dir.entryList({QStringLiteral("*.sed"), QStringLiteral("*.SED")},
                                       QDir::Files, QDir::Name);
  ficheros.removeDuplicates();
  for (const QString& f : ficheros) {
    if (lista.size() >= 99) break;
    const std::string nombre = LeerNomSys(dir.filePath(f).toStdString());
    lista.push_back({f, nombre.empty() ? f : DeTexto(nombre)});
  }
  if (!lista.empty())
    lista.push_back({QString(), u'<' + DeTexto(t.GetL_win("NoneSYSEDU")) + u'>'});
  return lista;
}

void EligeSistema(Ajustes& a, Almacen& al, const QString& fichero) {
  a.sysedu = fichero;
  al.Escribe("SYSEDU", "cmbtext", fichero);
}

}  // namespace ss
