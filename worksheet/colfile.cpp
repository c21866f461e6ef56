#include "worksheet/colfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_set>
#include <system_error>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include "problems/texto.h"
#include "worksheet/armado.h"
#include "worksheet/edicion.h"

namespace ss {

namespace {

constexpr std::size_t kFila = 102;         // one row of the problem table, CR LF included
constexpr std::size_t kModulo = 80;        // module column of a row
constexpr std::size_t kComando = 16;       // command columns of a row
constexpr std::size_t kEntradaImagen = 48; // one entry of the picture directory
constexpr std::size_t kNombreImagen = 32;
constexpr std::size_t kCampoNumero = 8;
constexpr std::string_view kSinImagenes = "#BINDIR(00000000#BINDIR)";
constexpr std::string_view kSalto = "\n";  // a line break inside a box text

// The classic number-to-text of a signed integer: one blank before a number
// that is not negative.
std::string Str(int32_t n) {
  return n < 0 ? std::to_string(n) : " " + std::to_string(n);
}

// Left-aligned, blank-padded, cut to `ancho`.
std::string Campo(std::string_view texto, std::size_t ancho) {
  std::string c(texto.substr(0, std::min(texto.size(), ancho)));
  c.resize(ancho, ' ');
  return c;
}

std::string_view Tras(std::string_view texto, std::size_t n) {
  return n >= texto.size() ? std::string_view() : texto.substr(n);
}

// A header number: rounded half to even; a value past the 32-bit range is
// held at its end, so a damaged file cannot stop the reading.
int32_t Entero(double v) {
  if (std::isnan(v)) return 0;
  if (v >= 2147483647.0) return INT32_MAX;
  if (v <= -2147483648.0) return INT32_MIN;
  return static_cast<int32_t>(std::nearbyint(v));
}

// A 1-based position read from the file, when it lies within [lo, hi].
std::optional<int64_t> Posicion(double v, int64_t lo, int64_t hi) {
  if (!std::isfinite(v)) return std::nullopt;
  const double r = std::nearbyint(v);
  if (r < static_cast<double>(lo) || r > static_cast<double>(hi)) return std::nullopt;
  return static_cast<int64_t>(r);
}

QString RutaDeTexto(std::string_view cp1252) {
  return QString::fromUtf8(Cp1252ToUtf8(cp1252));
}

std::string TextoDeRuta(const QString& ruta) {
  return Utf8ToCp1252(ruta.toUtf8().toStdString());
}

// Holds the busy guard for the length of a job and gives back what it found.
class Ocupacion {
 public:
  explicit Ocupacion(Documento& doc) : doc_(doc), antes_(doc.AppBusy) { ++doc_.AppBusy; }
  ~Ocupacion() { doc_.AppBusy = antes_; }
  Ocupacion(const Ocupacion&) = delete;
  Ocupacion& operator=(const Ocupacion&) = delete;

 private:
  Documento& doc_;
  int antes_;
};

// ---- writing -------------------------------------------------------------

struct FalloGuardado {
  int numero = 0;
  std::string descripcion;
};

FalloGuardado FalloDeErrno(int e) {
  int numero = 57;
  std::string clasico = "Device I/O error";
  if (e == EACCES || e == EPERM || e == EROFS) {
    numero = 75;
    clasico = "Path/File access error";
  } else if (e == ENOSPC || e == EDQUOT) {
    numero = 61;
    clasico = "Disk full";
  }
  return {numero, clasico + ": " + std::system_category().message(e)};
}

bool EscribeTodo(int fd, std::string_view datos) {
  while (!datos.empty()) {
    const ssize_t n = ::write(fd, datos.data(), datos.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    if (n == 0) {
      errno = EIO;
      return false;
    }
    datos.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

// Where a save really writes: a symbolic link is saved through to the file
// it points to (followed to the end of a chain, even when that file does not
// exist yet), so the link stays a link.
QString DestinoReal(const QString& ruta) {
  QString destino = ruta;
  for (int vuelta = 0; vuelta < 40; ++vuelta) {
    const QFileInfo info(destino);
    if (!info.isSymLink()) return destino;
    const QString siguiente = info.symLinkTarget();
    if (siguiente.isEmpty()) return destino;
    destino = siguiente;
  }
  return destino;
}

// The whole-file read, refused past `limite` bytes before anything is read.
enum class Leido { Bien, NoSePuede, Grande };

Leido LeeFichero(const QString& ruta, std::string& bytes, qint64 limite) {
  const QFileInfo info(ruta);
  if (!info.isFile()) return Leido::NoSePuede;  // no folders, no pipes
  if (info.size() > limite) return Leido::Grande;
  QFile f(ruta);
  if (!f.open(QIODevice::ReadOnly)) return Leido::NoSePuede;
  // The file may have grown since it was measured: never more than the limit.
  const QByteArray leido = f.read(limite + 1);
  if (f.error() != QFileDevice::NoError) return Leido::NoSePuede;
  if (leido.size() > limite) return Leido::Grande;
  bytes.assign(leido.constData(), static_cast<std::size_t>(leido.size()));
  return Leido::Bien;
}

// ---- reading -------------------------------------------------------------

// Cuts the next value off the header: the text before `cierre`, less its
// opening tag of `apertura` characters; the header goes on behind the tag.
std::optional<std::string_view> Corta(std::string_view& cab, std::string_view cierre,
                                      std::size_t apertura) {
  const std::size_t p = cab.find(cierre);
  if (p == std::string_view::npos) return std::nullopt;
  const std::string_view valor = Tras(cab.substr(0, p), apertura);
  cab = cab.substr(p + cierre.size());
  return valor;
}

bool SoloCifras(std::string_view t) {
  for (char c : t)
    if (c < '0' || c > '9') return false;
  return true;
}

int16_t Cifras(std::string_view t) {
  int v = 0;
  for (char c : t) v = v * 10 + (c - '0');
  return static_cast<int16_t>(v);
}

// What a missing closing tag does: the field is emptied, or the file is
// invalid, with the path kept or not.
enum class SiFalta { Vacia, Invalido, InvalidoConRuta };

struct CampoCab {
  const char* cierre;
  std::size_t abre;  // the length of the opening tag
  SiFalta siFalta;
  void (*pon)(ColeccionCab&, std::string_view);
};

// The header, tag by tag, in the order they are written.
constexpr CampoCab kCampos[] = {
    {"#PRETIT)", 8, SiFalta::Vacia, [](ColeccionCab& c, std::string_view v) { c.PRETIT = v; }},
    {"#TITULO)", 8, SiFalta::Invalido, [](ColeccionCab& c, std::string_view v) { c.TITULO = v; }},
    {"#POSTI1)", 8, SiFalta::Vacia, [](ColeccionCab& c, std::string_view v) { c.POSTI1 = v; }},
    {"#POSTI2)", 8, SiFalta::Vacia, [](ColeccionCab& c, std::string_view v) { c.POSTI2 = v; }},
    {"#POSNUMPAG)", 11, SiFalta::Invalido,
     [](ColeccionCab& c, std::string_view v) { c.POSNUMPAG = Entero(Val(v)); }},
    {"#COLRESPRO)", 11, SiFalta::InvalidoConRuta,
     [](ColeccionCab& c, std::string_view v) { c.COLRESPRO = Entero(Val(v)); }},
    {"#ORDENA)", 8, SiFalta::Invalido,
     [](ColeccionCab& c, std::string_view v) { c.ORDENA = Val(v) == 1 ? kVerdadero : int16_t{0}; }},
    {"#PAGINI)", 8, SiFalta::Invalido,
     [](ColeccionCab& c, std::string_view v) { c.PAGINI = Entero(Val(v)); }},
    {"#POSSOL)", 8, SiFalta::Invalido,
     [](ColeccionCab& c, std::string_view v) { c.POSSOL = Entero(Val(v)); }},
    {"#PROPRE)", 8, SiFalta::Invalido, [](ColeccionCab& c, std::string_view v) { c.PROPRE = v; }},
    {"#PROSUF)", 8, SiFalta::Invalido, [](ColeccionCab& c, std::string_view v) { c.PROSUF = v; }},
    {"#PROINI)", 8, SiFalta::Invalido,
     [](ColeccionCab& c, std::string_view v) { c.PROINI = Entero(Val(v)); }},
};

// The picture part of a file as the header's "#BINDIR(" finds it.
struct Adjuntos {
  std::string_view directorio;  // entries of 48 bytes
  std::string_view datos;       // the pictures' bytes, one behind the other
  bool hay = false;
  std::string binDir;           // the directory's place as the header gives it
};

enum class Lectura { Bien, Invalido, InvalidoConRuta };

// Reads the text of a file into `col`, field by field: what was read before
// a fault stays, as the loader's rules want it. `adj` views into `fichero`.
Lectura LeeColeccion(std::string_view fichero, Coleccion& col, Adjuntos& adj) {
  // A header must close.
  const std::size_t finCab = fichero.find("#CABECERA)");
  if (finCab == std::string_view::npos) return Lectura::Invalido;

  // The picture directory, if the first "#BINDIR(" names one inside the file.
  const int64_t largo = static_cast<int64_t>(fichero.size());
  if (const std::size_t b = fichero.find("#BINDIR("); b != std::string_view::npos) {
    adj.binDir = std::string(Mid(fichero, b + 9, kCampoNumero));
    if (const auto d = Posicion(Val(adj.binDir), 1, largo)) {
      const std::string_view primera = Mid(fichero, static_cast<std::size_t>(*d) + 32, kCampoNumero);
      if (const auto f = Posicion(Val(primera), *d + 1, largo + 1)) {
        adj.directorio = fichero.substr(static_cast<std::size_t>(*d - 1),
                                        static_cast<std::size_t>(*f - *d));
        adj.datos = Tras(fichero, static_cast<std::size_t>(*f - 1));
        adj.hay = true;
      }
    }
  }

  std::string_view cab = Tras(fichero.substr(0, finCab), 10);
  std::string_view resto = fichero.substr(finCab + 10);
  ColeccionCab& c = col.cab;
  const auto tabla = Corta(cab, "#PROPARAM)", 10);
  if (!tabla) return Lectura::Invalido;
  for (const CampoCab& k : kCampos) {
    if (const auto v = Corta(cab, k.cierre, k.abre))
      k.pon(c, *v);
    else if (k.siFalta == SiFalta::Vacia)
      k.pon(c, {});
    else
      return k.siFalta == SiFalta::InvalidoConRuta ? Lectura::InvalidoConRuta : Lectura::Invalido;
  }
  if (const auto v = Corta(cab, "#BINDIR)", 8)) adj.binDir = std::string(Trim(*v));

  // The problem table; a worksheet without problems is no worksheet.
  col.problemas = LeerProparam(*tabla);
  c.NPROB = static_cast<int32_t>(col.problemas.size());
  if (c.NPROB == 0) return Lectura::Invalido;

  // Statement and solution of each problem, block by block.
  for (std::size_t i = 0; i < col.problemas.size(); ++i) {
    const std::string cierre = "#PRO" + ZeroPadCut(1000 + static_cast<long long>(i) + 1, 3) + ")";
    const std::size_t p = resto.find(cierre);
    if (p == std::string_view::npos) return Lectura::InvalidoConRuta;
    const std::string_view bloque = Tras(resto.substr(0, p), 8);
    resto = resto.substr(p + cierre.size());
    std::string_view sol;
    if (const std::size_t q = bloque.find("#SOL("); q != std::string_view::npos) {
      sol = bloque.substr(q + 5);
      sol = sol.substr(0, sol.size() >= 5 ? sol.size() - 5 : 0);
    }
    const std::size_t largoEnu = bloque.size() >= sol.size() + 15 ? bloque.size() - sol.size() - 15 : 0;
    Problema& pr = col.problemas[i];
    pr.Enunciado = std::string(Tras(bloque.substr(0, largoEnu), 5));
    pr.Solucion = std::string(sol);
  }
  if (!adj.hay || Val(adj.binDir) == 0) adj = Adjuntos{};
  return Lectura::Bien;
}

// A picture name from a file may only name a plain file of the scratch folder.
bool NombreSeguro(std::string_view nombre) {
  if (nombre.empty() || nombre.front() == '.') return false;
  for (char c : nombre) {
    const auto u = static_cast<unsigned char>(c);
    if (c == '/' || c == '\\' || u < 0x20 || u == 0x7F) return false;
  }
  return true;
}

// Writes a picture into the scratch folder, replacing a plain file of that
// name; never follows a link.
void EscribeImagen(const QString& carpeta, const QString& nombre, std::string_view bytes) {
  const QByteArray ruta = QFile::encodeName(carpeta + QLatin1Char('/') + nombre);
  ::unlink(ruta.constData());  // a folder of that name stays, and the open below fails
  const int fd = ::open(ruta.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (fd < 0) return;
  const bool ok = EscribeTodo(fd, bytes);
  if (::close(fd) != 0 || !ok) ::unlink(ruta.constData());
}

QSet<QString> NombresPlegados(const QString& carpeta) {
  QSet<QString> nombres;
  if (carpeta.isEmpty()) return nombres;
  const QStringList lista = QDir(carpeta).entryList(
      QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  for (const QString& n : lista) nombres.insert(n.toCaseFolded());
  return nombres;
}

// Unpacks the pictures the worksheet's texts name, each name once. One of the
// program's own folder is left to that folder; one in the scratch folder
// (whatever the case of its name) is replaced by the file's copy, so a
// picture left over from another worksheet never shows in this one.
void DesempaquetaImagenes(const Sesion& s, const Adjuntos& adj, const Coleccion& col) {
  QSet<QString> faltan;
  for (const std::string& n : ImagenesDelTexto(TextoColeccion(col)))
    faltan.insert(RutaDeTexto(n).toCaseFolded());
  if (faltan.isEmpty()) return;
  const QSet<QString> propias = NombresPlegados(s.carpetas.Img());
  QStringList enTemporal;
  bool carpetaLista = false;

  std::string_view directorio = adj.directorio;
  std::string_view datos = adj.datos;
  const std::size_t n = directorio.size() / kEntradaImagen;
  for (std::size_t k = 0; k < n && !faltan.isEmpty(); ++k) {
    const std::string_view entrada = directorio.substr(0, kEntradaImagen);
    const std::string_view nombre = Trim(entrada.substr(0, kNombreImagen));
    const double v = Val(Mid(entrada, 41, kCampoNumero));
    std::size_t tam = 0;
    if (v > 0) tam = v >= static_cast<double>(datos.size()) ? datos.size()
                                                            : static_cast<std::size_t>(v);
    const QString q = RutaDeTexto(nombre);
    const QString plegado = q.toCaseFolded();
    if (NombreSeguro(nombre) && faltan.remove(plegado) && !propias.contains(plegado)) {
      if (!carpetaLista) {
        if (!CreaCarpetaTemporal(s.carpetas.temporal)) return;
        enTemporal = QDir(s.carpetas.temporal).entryList(QDir::Files | QDir::Hidden | QDir::System |
                                                         QDir::NoDotAndDotDot);
        carpetaLista = true;
      }
      for (const QString& viejo : enTemporal)
        if (viejo != q && viejo.toCaseFolded() == plegado)
          ::unlink(QFile::encodeName(s.carpetas.temporal + QLatin1Char('/') + viejo).constData());
      EscribeImagen(s.carpetas.temporal, q, datos.substr(0, tam));
    }
    directorio.remove_prefix(kEntradaImagen);
    datos.remove_prefix(tam);
  }
}

// The file is written whole under the target with "x" added, read back, and
// only then renamed over the target: the old file stays untouched until a
// new one that reads back as the worksheet is complete. The new file takes
// the old one's permissions.
std::optional<FalloGuardado> EscribeColeccion(const QString& ruta, std::string_view texto,
                                              std::string_view directorio, std::string_view datos,
                                              const std::function<bool(const QString&)>& releer,
                                              bool& noRelee) {
  noRelee = false;
  if (ruta.isEmpty()) return FalloDeErrno(ENOENT);
  const QString real = DestinoReal(ruta);
  const QByteArray destino = QFile::encodeName(real);
  const QByteArray temporal = QFile::encodeName(real + QStringLiteral("x"));

  // A write-protected worksheet is not replaced behind its owner's back.
  struct stat st {};
  const bool existe = ::stat(destino.constData(), &st) == 0 && !S_ISDIR(st.st_mode);
  if (existe && ::access(destino.constData(), W_OK) != 0 && (errno == EACCES || errno == EROFS))
    return FalloDeErrno(errno);

  const int fd = ::open(temporal.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW,
                        0666);
  if (fd < 0) return FalloDeErrno(errno);
  auto abandona = [&](int e) {
    ::close(fd);
    ::unlink(temporal.constData());
    return FalloDeErrno(e);
  };
  if (existe && ::fchmod(fd, st.st_mode & 07777) != 0) return abandona(errno);
  if (!EscribeTodo(fd, texto) || !EscribeTodo(fd, directorio) || !EscribeTodo(fd, datos))
    return abandona(errno);
  if (::fsync(fd) != 0 && errno != EINVAL) return abandona(errno);
  if (::close(fd) != 0) {
    const int e = errno;
    ::unlink(temporal.constData());
    return FalloDeErrno(e);
  }
  if (!releer(QFile::decodeName(temporal))) {
    ::unlink(temporal.constData());
    noRelee = true;
    return FalloGuardado{};
  }
  if (::rename(temporal.constData(), destino.constData()) != 0) {
    const int e = errno;
    ::unlink(temporal.constData());
    return FalloDeErrno(e);
  }
  return std::nullopt;
}

}  // namespace

// ---- the text of a file ----------------------------------------------------

std::string TextoColeccion(const Coleccion& col) {
  const ColeccionCab& c = col.cab;
  std::string t;
  t.reserve(1024 + col.problemas.size() * (kFila + 64));
  t += "#CABECERA(";
  t += "#PROPARAM(";
  for (std::size_t i = 0; i < col.problemas.size(); ++i) {
    const Problema& p = col.problemas[i];
    t += Campo(p.Modulo, kModulo);
    t += ComandoProblema(p);
    t += ZeroPadCut(static_cast<long long>(c.PROINI) + static_cast<long long>(i), 4);
    t += "\r\n";
  }
  t += "#PROPARAM)";
  auto texto = [&](std::string_view tag, std::string_view valor) {
    t += "#";
    t += tag;
    t += "(";
    t += valor;
    t += "#";
    t += tag;
    t += ")";
  };
  // An optional line is written only when it holds more than blanks.
  auto opcional = [&](std::string_view tag, const std::string& valor) {
    if (!Trim(valor).empty()) texto(tag, valor);
  };
  opcional("PRETIT", c.PRETIT);
  texto("TITULO", c.TITULO);
  opcional("POSTI1", c.POSTI1);
  opcional("POSTI2", c.POSTI2);
  texto("POSNUMPAG", Str(c.POSNUMPAG));
  texto("COLRESPRO", Str(c.COLRESPRO));
  texto("ORDENA", c.ORDENA != 0 ? "1" : "0");
  texto("PAGINI", Str(c.PAGINI));
  texto("POSSOL", Str(c.POSSOL));
  texto("PROPRE", c.PROPRE);
  texto("PROSUF", c.PROSUF);
  texto("PROINI", Str(c.PROINI));
  t += kSinImagenes;
  t += "#CABECERA)";
  for (std::size_t i = 0; i < col.problemas.size(); ++i) {
    const Problema& p = col.problemas[i];
    const std::string nnn = ZeroPadCut(1000 + static_cast<long long>(i) + 1, 3);
    t += "#PRO" + nnn + "(";
    texto("ENU", p.Enunciado);
    texto("SOL", p.Solucion);
    t += "#PRO" + nnn + ")";
  }
  return t;
}

std::vector<Problema> LeerProparam(std::string_view tabla) {
  const std::size_t filas = tabla.size() / kFila;
  if (filas == 0 || filas * kFila != tabla.size() || filas > static_cast<std::size_t>(kMaxProblemas))
    return {};
  std::vector<Problema> lista;
  lista.reserve(filas);
  for (std::size_t i = 0; i < filas; ++i) {
    const std::string_view fila = tabla.substr(i * kFila, kFila);
    const std::string_view cmd = fila.substr(kModulo, kComando);
    if (!SoloCifras(cmd)) return {};
    Problema p;
    p.Modulo = std::string(Trim(fila.substr(0, kModulo)));
    p.Rutina = Cifras(cmd.substr(0, 3));
    p.Semilla = Cifras(cmd.substr(3, 3));
    p.NumVariante = Cifras(cmd.substr(6, 4));
    p.Cantidad = Cifras(cmd.substr(10, 2));
    p.Total = Cifras(cmd.substr(12, 2));
    p.Orden = Cifras(cmd.substr(14, 2));
    lista.push_back(std::move(p));
  }
  return lista;
}

std::vector<std::string> ImagenesDelTexto(std::string_view texto) {
  // Found in the upper-cased copy, cut from the text itself at the same place.
  const std::string alto = UCase(texto);
  std::vector<std::string> nombres;
  std::unordered_set<std::string> vistos;
  std::size_t desde = 99;  // the search starts at the hundredth character
  while (desde < alto.size()) {
    const std::size_t hit = alto.find("#IMG(", desde);
    if (hit == std::string::npos) break;
    const std::size_t cierre = alto.find("#IMG)", hit + 6);
    if (cierre == std::string::npos) break;
    const std::string_view arg = texto.substr(hit + 5, cierre - (hit + 5));
    const std::size_t q1 = arg.find('\'');
    const std::size_t q2 = q1 == std::string_view::npos ? q1 : arg.find('\'', q1 + 1);
    if (q2 != std::string_view::npos && q2 > q1 + 1) {
      std::string nombre(arg.substr(q1 + 1, q2 - q1 - 1));
      if (vistos.insert(nombre).second) nombres.push_back(std::move(nombre));
    }
    desde = hit + 10;
  }
  return nombres;
}

std::string_view EtiquetaQueImpide(std::string_view texto) {
  // Every tag the reader looks for before the header ends: the header's own
  // end, the picture directory, and the closing tag of each header field.
  static constexpr std::string_view kEtiquetas[] = {
      "#CABECERA)", "#PROPARAM)", "#BINDIR(", "#BINDIR)", "#PRETIT)",  "#TITULO)",
      "#POSTI1)",   "#POSTI2)",   "#POSNUMPAG)", "#COLRESPRO)", "#ORDENA)", "#PAGINI)",
      "#POSSOL)",   "#PROPRE)",   "#PROSUF)",  "#PROINI)"};
  std::string_view primera;
  std::size_t donde = std::string_view::npos;
  for (std::string_view e : kEtiquetas) {
    const std::size_t p = texto.find(e);
    if (p < donde) {
      donde = p;
      primera = e;
    }
  }
  return primera;
}

std::optional<TextoNoGuardable> CabeceraNoGuardable(const ColeccionCab& cab) {
  const std::pair<const char*, const std::string*> textos[] = {
      {"PRETIT", &cab.PRETIT}, {"TITULO", &cab.TITULO}, {"POSTI1", &cab.POSTI1},
      {"POSTI2", &cab.POSTI2}, {"PROPRE", &cab.PROPRE}, {"PROSUF", &cab.PROSUF}};
  for (const auto& [campo, texto] : textos) {
    const std::string_view e = EtiquetaQueImpide(*texto);
    if (!e.empty()) return TextoNoGuardable{campo, std::string(e)};
  }
  return std::nullopt;
}

// ---- save ---------------------------------------------------------------------

namespace {

enum class Guardado { Hecho, Fallo, Protegido };

Guardado Guarda(Sesion& s) {
  Documento& doc = s.doc;
  Ocupacion ocupado(doc);
  const std::string ruta = TextoDeRuta(doc.ruta);
  const std::string aviso = s.textos.GetL_win("CantSaveFile") + std::string(kSalto) + ruta +
                            std::string(kSalto) + std::string(kSalto);
  // A header text the file cannot hold is refused before anything is written.
  if (const auto malo = CabeceraNoGuardable(doc.col.cab)) {
    std::string texto = s.textos.GetL_win("HeaderTextNotStorable");
    Reemplaza(texto, "%FIELD%", malo->campo);
    Reemplaza(texto, "%TAG%", std::string(malo->etiqueta));
    s.plataforma.Critico(aviso + texto);
    return Guardado::Fallo;
  }
  const std::string base = TextoColeccion(doc.col);
  std::string texto = base;

  std::string directorio;
  std::string datos;
  const std::vector<std::string> nombres = ImagenesDelTexto(texto);
  if (!nombres.empty()) {
    const std::size_t d = texto.size() + 1;
    std::size_t p = texto.size() + kEntradaImagen * nombres.size() + 1;
    for (const std::string& nombre : nombres) {
      const QString q = RutaDeTexto(nombre);
      const QString fichero = BuscaImagen(s.carpetas, q);
      std::string bytes;
      if (fichero.isEmpty() || LeeFichero(fichero, bytes, kMaxTamanoColeccion) != Leido::Bien) {
        s.plataforma.Critico(nombre + std::string(kSalto) + s.textos.GetL_win("CantSaveImage"));
        return Guardado::Fallo;
      }
      directorio += Campo(nombre, kNombreImagen);
      directorio += Campo(std::to_string(p), kCampoNumero);
      directorio += Campo(std::to_string(bytes.size()), kCampoNumero);
      datos += bytes;
      p += bytes.size();
    }
    const std::size_t at = texto.find(kSinImagenes);
    if (at != std::string::npos)
      texto.replace(at, kSinImagenes.size(),
                    "#BINDIR(" + Campo(std::to_string(d), kCampoNumero) + "#BINDIR)");
  }

  // The file must give back what was written: the worksheet's text, and the
  // pictures where the header says they are.
  auto releer = [&](const QString& temporal) {
    std::string bytes;
    if (LeeFichero(temporal, bytes, kMaxTamanoColeccion) != Leido::Bien) return false;
    Coleccion otra;
    Adjuntos adj;
    if (LeeColeccion(bytes, otra, adj) != Lectura::Bien) return false;
    if (TextoColeccion(otra) != base) return false;
    return nombres.empty() ? !adj.hay : adj.directorio == directorio && adj.datos == datos;
  };
  bool noRelee = false;
  std::optional<FalloGuardado> fallo =
      EscribeColeccion(doc.ruta, texto, directorio, datos, releer, noRelee);
  s.plataforma.DejaCorrer();
  if (!fallo && !QFileInfo::exists(doc.ruta))
    fallo = FalloGuardado{70, "Permission denied: " + std::system_category().message(ENOENT)};
  if (!fallo) {
    doc.Modificada = false;
    return Guardado::Hecho;
  }

  if (noRelee) {
    s.plataforma.Critico(aviso + s.textos.GetL_win("SavedFileNotReadBack"));
    return Guardado::Fallo;
  }
  if (fallo->numero == 75) {
    s.plataforma.Critico(s.textos.GetL_win("ErrorWriteProtectFile") + std::string(kSalto) + ruta +
                         std::string(kSalto) + std::string(kSalto) +
                         s.textos.GetL_win("SelectOtherFileName"));
    return Guardado::Protegido;
  }
  s.plataforma.Critico(aviso + "Error = " + std::to_string(fallo->numero) + std::string(kSalto) +
                       fallo->descripcion);
  return Guardado::Fallo;
}

}  // namespace

bool GuardarColeccion(Sesion& s) {
  switch (Guarda(s)) {
    case Guardado::Hecho:
      return true;
    case Guardado::Fallo:
      return false;
    case Guardado::Protegido:
      break;
  }
  // Save As runs as a job of its own, after this one has let go of the
  // document, and its result is the result of the save.
  return s.plataforma.GuardarComo();
}

// ---- load ---------------------------------------------------------------------

bool CargarColeccion(Sesion& s) {
  Documento& doc = s.doc;
  Plataforma& pl = s.plataforma;
  Ocupacion ocupado(doc);
  const QString ruta = doc.ruta;
  bool controlesApagados = false;

  // Every damaged file ends here. The header read so far stays; the path is
  // dropped unless the caller says the file was recognised far enough.
  auto invalido = [&](bool mantenRuta, const std::string& detalle = {}) {
    pl.CursorEspera(false);
    if (controlesApagados) pl.Ocupado(false);
    pl.Aviso(s.textos.GetL_win("InvalidFile") + (detalle.empty() ? "" : std::string(kSalto) + detalle));
    if (!mantenRuta) doc.ruta.clear();
    if (doc.col.cab.NPROB == 0 || doc.col.problemas.empty()) NoColeccion(s);
    return false;
  };

  // Only a worksheet file is read.
  if (ruta.right(4).toUpper() != QLatin1String(".COL")) return invalido(false);

  // The whole file, unless it is far larger than any worksheet can be.
  pl.DejaCorrer();
  pl.CursorEspera(true);
  std::string leido;
  switch (LeeFichero(ruta, leido, kMaxTamanoColeccion)) {
    case Leido::Bien:
      break;
    case Leido::NoSePuede:
      return invalido(false);
    case Leido::Grande:
    {
      std::string texto = s.textos.GetL_win("FileTooLarge");
      Reemplaza(texto, "%MB%", std::to_string(kMaxTamanoColeccion / (1024 * 1024)));
      return invalido(false, texto);
    }
  }
  const std::string_view fichero = leido;

  // A header must close before the window is held still to read the rest.
  if (fichero.find("#CABECERA)") == std::string_view::npos) return invalido(false);
  pl.Ocupado(true);
  controlesApagados = true;

  Adjuntos adj;
  switch (LeeColeccion(fichero, doc.col, adj)) {
    case Lectura::Bien:
      break;
    case Lectura::Invalido:
      return invalido(false);
    case Lectura::InvalidoConRuta:
      return invalido(true);
  }

  // The pictures the texts name.
  if (adj.hay) DesempaquetaImagenes(s, adj, doc.col);

  // The pages; nothing of the worksheet before can be taken back.
  ArmarBloques(s, 1);
  doc.Modificada = false;
  SetUNDOTexto(s, {});

  // The window shows the file.
  pl.TituloVentana(TituloApp() + QStringLiteral("  -  ") + QFileInfo(ruta).fileName());
  pl.Reciente(ruta);
  pl.CursorEspera(false);
  pl.Ocupado(false);
  pl.EstadoDocumento(true);
  return true;
}

}  // namespace ss
