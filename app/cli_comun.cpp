#include "app/cli_comun.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <cstdio>

#include "modules/modulos.h"
#include "problems/texto.h"
#include "worksheet/armado.h"
#include "worksheet/colfile.h"
#include "worksheet/temario.h"

namespace cli {

int Usage(const QString& comando, const QString& porque) {
  QString linea;
  if (comando.isEmpty()) {
    QStringList nombres;
    for (const Comando& c : Comandos()) nombres << QString::fromLatin1(c.nombre);
    linea = QStringLiteral("usage: sheetsmith-cli COMMAND [OPTIONS], COMMAND one of %1 "
                           "(sheetsmith-cli --help tells what each does)")
                .arg(nombres.join(QStringLiteral(", ")));
  } else {
    for (const Comando& c : Comandos())
      if (comando == QLatin1String(c.nombre))
        linea = QStringLiteral("usage: sheetsmith-cli %1 %2 (sheetsmith-cli %1 --help tells more)")
                    .arg(comando, QString::fromLatin1(c.sinopsis));
  }
  if (!porque.isEmpty()) {
    QString motivo = porque;
    if (motivo.endsWith(u'.')) motivo.chop(1);
    linea = motivo + QStringLiteral("; ") + linea;
  }
  std::fprintf(stderr, "%s\n", linea.toUtf8().constData());
  return 2;
}

int Error(const QString& texto) {
  std::fprintf(stderr, "error: %s\n", texto.toUtf8().constData());
  return 1;
}

void Aviso(const QString& texto) { std::fprintf(stderr, "warning: %s\n", texto.toUtf8().constData()); }

Argumentos::Argumentos(const char* comando, const QString& descripcion)
    : comando_(QString::fromLatin1(comando)), descripcion_(descripcion) {
  p_.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  p_.addOption(QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help.")));
}

Argumentos& Argumentos::Opcion(const QStringList& nombres, const QString& ayuda, const QString& valor) {
  p_.addOption(QCommandLineOption(nombres, ayuda, valor));
  return *this;
}

Argumentos& Argumentos::Posicional(const QString& nombre, const QString& ayuda) {
  p_.addPositionalArgument(nombre, ayuda);
  return *this;
}

std::optional<int> Argumentos::Lee(const QStringList& args, qsizetype minPos, qsizetype maxPos) {
  if (!p_.parse(QStringList{QStringLiteral("sheetsmith-cli")} + args))
    return Usage(comando_, p_.errorText());
  if (p_.isSet(QStringLiteral("help"))) {
    // Qt's own first line names the executable by its full path: ours names the command.
    QString ayuda = p_.helpText();
    ayuda = ayuda.mid(ayuda.indexOf(QStringLiteral("\n\n")) + 2);
    for (const Comando& c : Comandos())
      if (comando_ == QLatin1String(c.nombre))
        std::printf("usage: sheetsmith-cli %s %s\n\n%s\n\n%s", c.nombre, c.sinopsis,
                    descripcion_.toUtf8().constData(), ayuda.toUtf8().constData());
    return 0;
  }
  const qsizetype n = p_.positionalArguments().size();
  if (n < minPos || n > maxPos) {
    QString porque = maxPos == 0 ? QStringLiteral("%1 takes no argument but options, not '%2'")
                                       .arg(comando_, p_.positionalArguments().value(0))
                                 : QStringLiteral("%1 takes %2 argument%3, not %4")
                                       .arg(comando_)
                                       .arg(minPos == maxPos ? QString::number(minPos)
                                                             : QStringLiteral("%1 to %2").arg(minPos).arg(maxPos))
                                       .arg(maxPos == 1 ? "" : "s")
                                       .arg(n);
    return Usage(comando_, porque);
  }
  return std::nullopt;
}

std::optional<QString> Argumentos::UltimaDe(const QString& a, const QString& b) const {
  const QStringList nombres = p_.optionNames();
  for (qsizetype i = nombres.size() - 1; i >= 0; --i)
    if (nombres[i] == a || nombres[i] == b) return nombres[i];
  return std::nullopt;
}

std::optional<int> Entero(const QString& texto, int lo, int hi) {
  bool ok = false;
  const int v = texto.trimmed().toInt(&ok);
  if (!ok || v < lo || v > hi) return std::nullopt;
  return v;
}

std::optional<uint64_t> Semilla(const QString& texto) {
  bool ok = false;
  const qulonglong v = texto.toULongLong(&ok);
  if (!ok) return std::nullopt;
  return static_cast<uint64_t>(v);
}

std::optional<double> Zoom(const Argumentos& a) {
  if (!a.Esta(QStringLiteral("zoom"))) return 1.0;
  bool ok = false;
  const double z = a.Valor(QStringLiteral("zoom")).toDouble(&ok);
  if (!ok || !(z >= 0.1 && z <= 8)) return std::nullopt;
  return z;
}

std::string ACp1252(const QString& texto, const QString& opcion) {
  bool exacto = true;
  std::string r = ss::Utf8ToCp1252(texto.toStdString(), &exacto);
  if (exacto) return r;
  QStringList perdidos;
  for (const char32_t c : texto.toUcs4()) {
    const QString uno = QString::fromUcs4(&c, 1);
    bool este = true;
    ss::Utf8ToCp1252(uno.toStdString(), &este);
    if (!este && !perdidos.contains(uno)) perdidos << uno;
  }
  Aviso(QStringLiteral("%1: \"%2\" has no form in Windows-1252, the character set of worksheets "
                       "and problems; written as \"?\"")
            .arg(opcion, perdidos.join(QStringLiteral("\", \""))));
  return r;
}

QString DeCp1252(const std::string& texto) { return QString::fromStdString(ss::Cp1252ToUtf8(texto)); }

void ImprimeJson(const QJsonDocument& doc, QJsonDocument::JsonFormat formato) {
  QByteArray texto = doc.toJson(formato);
  if (!texto.endsWith('\n')) texto += '\n';
  std::fwrite(texto.constData(), 1, static_cast<std::size_t>(texto.size()), stdout);
}

std::filesystem::path CarpetaPrograma() {
  return std::filesystem::path(ss::CarpetaDatos().toStdString());
}

Servicios::Servicios()
    : mensajes(CarpetaPrograma(), [](const std::string& aviso) { Aviso(DeCp1252(aviso)); }) {
  ss::InitServicios(notacion, mensajes);
}

ss::Reemplazos NotacionPorDefecto(Servicios& servicios) {
  ss::TextosVentana textos(CarpetaPrograma(), "MAI");
  return ss::ReemplazosDe(ss::LeeAjustes(ss::AlmacenMemoria(), textos), &servicios.mensajes);
}

bool Catalogo(Servicios& servicios, const QString& sysedu, std::vector<std::string>& catalogo,
              std::vector<std::string>* asignaturas) {
  ss::Temario temario(ss::CarpetaDatos(), servicios.mensajes,
                      [](const std::string& aviso) { Aviso(DeCp1252(aviso)); });
  temario.Carga(sysedu);
  if (const ss::SilaboSed* silabo = temario.Silabo();
      silabo && (silabo->NumAsignaturas() == 0 || !silabo->TextosCargados())) {
    Error(QStringLiteral("the education system '%1' has no usable subjects in the program folder %2")
              .arg(sysedu, ss::CarpetaDatos()));
    return false;
  }
  catalogo = temario.Catalogo();
  if (asignaturas && temario.Silabo())
    for (const ss::Asignatura& a : temario.Silabo()->Asignaturas()) asignaturas->push_back(a.nombre);
  return true;
}

// A box's text may run over several lines; on stderr it is one.
void PlataformaCli::Cuenta(const std::string& siNada) const {
  for (const std::string& a : avisos.empty() ? std::vector<std::string>{siNada} : avisos)
    Error(DeCp1252(a).split(QRegularExpression(QStringLiteral("[\\r\\n]+")), Qt::SkipEmptyParts)
              .join(u' '));
}

Trabajo::Trabajo(std::optional<uint64_t> seed)
    : gen(&servicios.mensajes, ss::Aleatorio(seed)),
      s{doc, plataforma, gen, motor, oculta, textos,
        ss::Carpetas{ss::CarpetaDatos(), temporal.Ruta()}} {
  motor.reemplazos = NotacionPorDefecto(servicios);
  motor.BuscaImagen = ss::BuscadorDeImagenes(s.carpetas);
}

bool Trabajo::Carga(const QString& ruta) {
  const QFileInfo info(ruta);
  if (!info.exists())
    return Error(QStringLiteral("%1: %2").arg(ruta, DeCp1252(textos.GetL_win("FileNotFound")))), false;
  QFile archivo(ruta);
  if (info.isDir() || !archivo.open(QIODevice::ReadOnly))
    return Error(QStringLiteral("%1 %2 (%3)")
                     .arg(DeCp1252(textos.GetL_win("FileNotFoundOpen")), ruta,
                          info.isDir() ? QStringLiteral("it is a folder") : archivo.errorString())),
           false;
  archivo.close();
  doc.ruta = ruta;
  if (ss::CargarColeccion(s) && !doc.col.problemas.empty()) return true;
  plataforma.Cuenta(textos.GetL_win("InvalidFile"));
  return false;
}

void Trabajo::AvisaCortes() {
  for (int bloque : doc.cortados) Aviso(DeCp1252(ss::AvisoCorte(doc, bloque, textos)));
}

}  // namespace cli
