#include "output/grupo.h"

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>

#include <cmath>

#include "problems/aleatorio.h"
#include "problems/texto.h"
#include "worksheet/armado.h"
#include "worksheet/colfile.h"
#include "worksheet/sesion.h"

namespace ss {
namespace {

constexpr qsizetype kMaxBytesNombre = 240;
constexpr qsizetype kMaxLetrasAlumno = 140;

QString Numero(Aleatorio& rnd) {
  return QString::number(static_cast<long long>(std::floor((10 + rnd.Siguiente()) * 1000000)));
}

}  // namespace

std::vector<QString> LeeListaAlumnos(const QByteArray& bytes) {
  QByteArray datos = bytes;
  if (datos.startsWith("\xEF\xBB\xBF")) datos.remove(0, 3);
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString texto = utf8(datos);
  if (utf8.hasError())
    texto = QString::fromStdString(Cp1252ToUtf8(std::string_view(datos.constData(), datos.size())));
  const QString fin = texto.contains(QStringLiteral("\r\n")) ? QStringLiteral("\r\n")
                      : texto.contains(QLatin1Char('\n')) ? QStringLiteral("\n")
                                                         : QStringLiteral("\r");
  std::vector<QString> nombres;
  for (const QString& linea : texto.split(fin)) {
    const QString nombre = linea.trimmed();
    if (!nombre.isEmpty()) nombres.push_back(nombre);
  }
  return nombres;
}

QString NombreDeFichero(const QString& alumno, Aleatorio& rnd) {
  static const QString permitidos = QString::fromUtf8(
      "abcdefghijklmnñopqrstuvwxyzçáéíóúüABCDEFGHIJKLMNÑOPQRSTUVWXYZÇÁÉÍÓÚÜ 0123456789_+-.,;");
  QString nombre = alumno;
  for (int i = 0; i < 3; ++i) nombre.replace(QStringLiteral("  "), QStringLiteral(" "));
  QString limpio;
  for (const QChar c : nombre)
    if (permitidos.contains(c)) limpio += c;
  while (limpio.startsWith(QLatin1Char('.'))) limpio.remove(0, 1);
  // Every kept character is one UTF-16 unit, so cutting at a unit keeps whole characters.
  while (limpio.toUtf8().size() > kMaxBytesNombre) limpio.chop(1);
  if (limpio.trimmed().isEmpty()) return Numero(rnd);
  return limpio;
}

QString NombreCarpetaGrupo(const QDateTime& cuando) {
  return cuando.toString(QStringLiteral("yy-MM-dd-hh-mm-ss"));
}

LugarAlumno LugarDeLinea(const ColeccionCab& cab) {
  if (Trim(cab.POSTI1).empty()) return LugarAlumno::Posti1;
  if (Trim(cab.POSTI2).empty()) return LugarAlumno::Posti2;
  return LugarAlumno::TrasPosti1;
}

void PonLineaAlumno(ColeccionCab& cab, const ColeccionCab& original, LugarAlumno lugar,
                    const std::string& linea) {
  cab.POSTI1 = original.POSTI1;
  cab.POSTI2 = original.POSTI2;
  switch (lugar) {
    case LugarAlumno::Posti1:
      cab.POSTI1 = linea;
      break;
    case LugarAlumno::Posti2:
      cab.POSTI2 = linea;
      break;
    case LugarAlumno::TrasPosti1:
      cab.POSTI1 = original.POSTI1 + "&LF" + linea;
      break;
  }
}

std::string LineaAlumno(const std::string& rotulo, const QString& nombre) {
  return rotulo + ": " + Utf8ToCp1252(nombre.left(kMaxLetrasAlumno).toStdString());
}

GrupoHecho HazGrupo(Sesion& s, const PedidoGrupo& pedido, const std::function<bool(int)>& antes) {
  GrupoHecho hecho;
  PlataformaDelegada plataforma(s.plataforma);
  Documento copia;
  copia.col = s.doc.col;
  Sesion c{copia, plataforma, s.gen, s.motor, s.paginaOculta, s.textos, s.carpetas};
  const ColeccionCab original = copia.col.cab;
  const LugarAlumno lugar = LugarDeLinea(original);
  const std::string rotulo = s.textos.GetL_win("Student");
  const QDir carpeta(pedido.carpeta);

  for (std::size_t i = 0; i < pedido.alumnos.size(); ++i) {
    if (antes && !antes(static_cast<int>(i))) {
      hecho.cancelado = true;
      break;
    }
    const QString& alumno = pedido.alumnos[i];
    PonLineaAlumno(copia.col.cab, original, lugar, LineaAlumno(rotulo, alumno));
    s.gen.rnd.Resembrar();
    for (std::size_t k = 0; k < copia.col.problemas.size() && k < pedido.distintos.size(); ++k) {
      if (!pedido.distintos[k]) continue;
      Problema& p = copia.col.problemas[k];
      p.NumVariante = static_cast<int16_t>(std::floor(s.gen.rnd.Siguiente() * 9000));
      p.Semilla = static_cast<int16_t>(std::floor(s.gen.rnd.Siguiente() * 900));
      RecrearProblema(c, p, 0, false);
    }
    const QString nombre = NombreDeFichero(alumno, s.gen.rnd);
    QString ruta = carpeta.filePath(nombre + QStringLiteral(".col"));
    while (QFileInfo::exists(ruta))
      ruta = carpeta.filePath(nombre + Numero(s.gen.rnd) + QStringLiteral(".col"));
    copia.ruta = ruta;
    if (GuardarColeccion(c))
      hecho.ficheros << ruta;
    else
      ++hecho.fallidos;
  }
  return hecho;
}

}  // namespace ss
