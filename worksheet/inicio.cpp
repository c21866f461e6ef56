#include "worksheet/inicio.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

#include "problems/texto.h"
#include "worksheet/ajustes.h"
#include "worksheet/colfile.h"
#include "worksheet/commands.h"

namespace ss {

namespace {

QString DeTexto(const std::string& s) { return QString::fromUtf8(Cp1252ToUtf8(s).c_str()); }
std::string ATexto(const QString& s) { return Utf8ToCp1252(s.toUtf8().toStdString()); }

}  // namespace

// ---- recent files ----

Recientes Recientes::Lee(const Almacen& al) {
  Recientes r;
  for (int i = 0; i < kRecientes; ++i) {
    r.titulo[i] = al.Lee(QStringLiteral("Reciente"), QStringLiteral("Titulo%1").arg(i + 1), QString());
    r.archivo[i] = al.Lee(QStringLiteral("Reciente"), QStringLiteral("Archivo%1").arg(i + 1), QString());
  }
  return r;
}

void Recientes::Guarda(Almacen& al) const {
  for (int i = 0; i < kRecientes; ++i) {
    al.Escribe(QStringLiteral("Reciente"), QStringLiteral("Titulo%1").arg(i + 1), titulo[i]);
    al.Escribe(QStringLiteral("Reciente"), QStringLiteral("Archivo%1").arg(i + 1), archivo[i]);
  }
}

bool Recientes::Vacia() const {
  return std::all_of(archivo.begin(), archivo.end(), [](const QString& a) { return a.isEmpty(); });
}

QString RutaNormal(const QString& ruta) {
  return ruta.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(ruta).absoluteFilePath());
}

void AgregaReciente(Recientes& r, const QString& ruta) {
  const QString normal = RutaNormal(ruta);
  if (normal.isEmpty()) return;
  int donde = kRecientes - 1;
  for (int i = 0; i < kRecientes; ++i)
    if (!r.archivo[i].isEmpty() && RutaNormal(r.archivo[i]) == normal) {
      donde = i;
      break;
    }
  for (int i = donde; i > 0; --i) {
    r.titulo[i] = r.titulo[i - 1];
    r.archivo[i] = r.archivo[i - 1];
  }
  r.titulo[0] = QFileInfo(normal).fileName();
  r.archivo[0] = normal;
}

// ---- the start panel ----

OrdenInicio LeeComandoInicio(const QString& comando) {
  if (comando == QLatin1String("OPEN?:")) return {TipoInicio::Preguntar, {}};
  if (comando == QLatin1String("WIZARD:")) return {TipoInicio::Asistente, {}};
  if (comando.left(5) == QLatin1String("OPEN:")) return {TipoInicio::Abrir, comando.mid(5)};
  return {};
}

QString ComandoEjemplo(const QString& carpetaDatos, TextosVentana& t, int i) {
  const std::string clave = "FileExample" + std::to_string(i);
  return QStringLiteral("OPEN:") + carpetaDatos + u'/' + DeTexto(t.GetL_win("FolderExamples")) + u'/' +
         DeTexto(t.GetL_win(clave));
}

// ---- leaving a worksheet ----

bool PreguntaGuardar(Sesion& s, const std::function<void()>& guardar) {
  if (!s.doc.Modificada) return true;
  const std::string texto = ATexto(s.doc.ruta) + "\n" + s.textos.GetL_win("msg_Ask2Save");
  switch (s.plataforma.Pregunta(texto)) {
    case Respuesta::No:
      return true;
    case Respuesta::Cancelar:
      return false;
    case Respuesta::Si:
      break;
  }
  guardar();
  return !s.doc.Modificada;
}

Cierre PideCierre(Sesion& s, const std::function<void()>& guardar) {
  if (!PreguntaGuardar(s, guardar)) return Cierre::Rechazar;
  if (s.doc.AppBusy > 0)
    return s.plataforma.Confirma(s.textos.GetL_win("WarnExitWhenAppBusy")) ? Cierre::Abandonar
                                                                            : Cierre::Rechazar;
  return Cierre::Cerrar;
}

// ---- files named on the command line or dropped on the page ----

QString HallaNombreLargo(const QString& ruta) { return QFileInfo(ruta).absoluteFilePath(); }

bool OpenDRAGDROPFiles_Command(Sesion& s, QStringList& ficheros, const std::function<void()>& guardar) {
  if (ficheros.isEmpty()) return false;
  const QStringList todos = ficheros;
  ficheros.clear();
  if (!PreguntaGuardar(s, guardar)) return false;
  s.doc.ruta = HallaNombreLargo(todos.front());
  const bool cargado = CargarColeccion(s);
  for (qsizetype i = 1; i < todos.size(); ++i) s.plataforma.AbreEnOtroProceso(HallaNombreLargo(todos[i]));
  return cargado;
}

// ---- Save As ----

QString PropuestaNombre(const Documento& doc, const QString& carpeta) {
  if (!doc.ruta.isEmpty()) return doc.ruta;
  QString nombre = DeTexto(doc.col.cab.TITULO);
  for (const QChar c : QStringLiteral(":/\\*?\"<>|")) nombre.remove(c);
  nombre = nombre.trimmed();
  while (nombre.startsWith(u'.')) nombre.remove(0, 1);
  if (nombre.isEmpty()) return {};
  const QDir dir(carpeta);
  if (!dir.entryList({nombre + QStringLiteral("*.col")}, QDir::Files).isEmpty()) {
    for (int i = 1; i <= 99; ++i) {
      const QString otro = nombre + QString::number(100 + i).right(2);
      if (!QFileInfo::exists(dir.filePath(otro + QStringLiteral(".col")))) {
        nombre = otro;
        break;
      }
    }
  }
  return dir.filePath(nombre + QStringLiteral(".col"));
}

QString ConExtensionCol(const QString& ruta) {
  return ruta.toLower().endsWith(QLatin1String(".col")) ? ruta : ruta + QStringLiteral(".col");
}

// ---- the page view ----

double ZoomAjustado(double anchoUtil) { return std::clamp((anchoUtil - 28) / kAnchoHojaPx, 0.5, 3.0); }

}  // namespace ss
