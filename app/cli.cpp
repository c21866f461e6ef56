// sheetsmith-cli: the program's core without windows, for batch work and for
// testing from outside. Output is UTF-8; errors are one line on stderr.
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <tuple>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "modules/modulos.h"
#include "problems/idioma.h"
#include "problems/silabo_sed.h"
#include "problems/texto.h"
#include "typeset/canvas_qt.h"
#include "typeset/motor.h"
#include "typeset/salida.h"
#include "worksheet/ajustes.h"
#include "worksheet/armado.h"
#include "worksheet/carpetas.h"
#include "worksheet/colfile.h"
#include "worksheet/sesion.h"

namespace {

constexpr const char* kUsage =
    "usage: sheetsmith-cli generate MODULE COMMAND [--seed N] | "
    "sheetsmith-cli catalogue [--sysedu FILE.sed] | "
    "sheetsmith-cli markup TEXT -o OUT.png|OUT.pdf [--zoom Z] | "
    "sheetsmith-cli new [--sysedu FILE.sed] --subject NAME (--item MODULE:N=AMOUNT[:ITEMS] | "
    "--all AMOUNT)... "
    "[--possol 0-3] [--ordena|--shuffle] [--title T] [--pretit T] [--posti1 T] [--posti2 T] "
    "[--seed N] -o FILE.col | sheetsmith-cli render FILE.col -o OUT.pdf|OUT-%d.png [--zoom Z] | "
    "sheetsmith-cli info FILE.col";

int Usage(const std::string& why = {}) {
  std::string line = why.empty() ? std::string(kUsage) : why + " (" + kUsage + ")";
  std::fprintf(stderr, "%s\n", line.c_str());
  return 2;
}

// The services of a run: notation and the message tables of the program's
// folder, where lang/ stands beside the executable. Notices about the data
// go to stderr.
struct Servicios {
  ss::Notacion notacion;
  ss::Mensajes mensajes{std::filesystem::path(
                            QCoreApplication::applicationDirPath().toStdString()),
                        [](const std::string& aviso) {
                          std::fprintf(stderr, "warning: %s\n", ss::Cp1252ToUtf8(aviso).c_str());
                        }};
  Servicios() { ss::InitServicios(notacion, mensajes); }
};

// The notation the pages are drawn with: the settings' defaults, not the
// store of whoever runs the tool, so that its output is the same for all.
ss::Reemplazos NotacionPorDefecto(Servicios& servicios) {
  ss::TextosVentana textos(std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()),
                           "MAI");
  return ss::ReemplazosDe(ss::LeeAjustes(ss::AlmacenMemoria(), textos), &servicios.mensajes);
}

// A JSON string of UTF-8 text.
std::string Json(const std::string& utf8) {
  std::string out = "\"";
  for (unsigned char c : utf8) {
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          out += buf;
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  return out + "\"";
}

std::optional<uint64_t> ParseSeed(const QString& text) {
  bool ok = false;
  const qulonglong v = text.toULongLong(&ok);
  if (!ok) return std::nullopt;
  return static_cast<uint64_t>(v);
}

int Generate(const QStringList& args) {
  QStringList positional;
  std::optional<uint64_t> seed;
  for (qsizetype i = 0; i < args.size(); ++i) {
    const QString& a = args[i];
    if (a == u"--seed" || a.startsWith(u"--seed=")) {
      QString value;
      if (a == u"--seed") {
        if (i + 1 >= args.size()) return Usage("--seed needs a number");
        value = args[++i];
      } else {
        value = a.mid(7);
      }
      seed = ParseSeed(value);
      if (!seed) return Usage("--seed needs a whole number, not '" + value.toStdString() + "'");
    } else if (a.startsWith(u"--")) {
      return Usage("unknown option '" + a.toStdString() + "'");
    } else {
      positional << a;
    }
  }
  if (positional.size() != 2) return Usage("generate takes a MODULE and a COMMAND");

  Servicios servicios;
  ss::GenContext g(&servicios.mensajes, ss::Aleatorio(seed));
  std::string statement, solution;
  ss::GeneraProblema(g, ss::Utf8ToCp1252(positional[0].toStdString()),
                     ss::Utf8ToCp1252(positional[1].toStdString()), statement, solution);
  const std::string json = "{\"statement\": " + Json(ss::Cp1252ToUtf8(statement)) +
                           ", \"solution\": " + Json(ss::Cp1252ToUtf8(solution)) + "}";
  std::printf("%s\n", json.c_str());
  return 0;
}

// The catalogue, placed by an education system of the program folder when one
// is named. The records of a system come in teaching order: its subjects in
// the order of the file, then topic and subtopic ordinals, each topic's
// heading first. False, with the reason, when the system cannot be used.
bool Catalogo(Servicios& servicios, const QString& sysedu, std::vector<std::string>& catalogo,
              std::string* error) {
  ss::GenContext g(&servicios.mensajes);
  std::unique_ptr<ss::SilaboSed> silabo;
  if (!sysedu.isEmpty()) {
    const std::filesystem::path programa(QCoreApplication::applicationDirPath().toStdString());
    silabo = std::make_unique<ss::SilaboSed>(programa, sysedu.toStdString(),
                                             [](const std::string& aviso) {
                                               std::fprintf(stderr, "warning: %s\n",
                                                            ss::Cp1252ToUtf8(aviso).c_str());
                                             });
    silabo->Carga();
    if (silabo->NumAsignaturas() == 0 || !silabo->TextosCargados()) {
      *error = "the education system '" + sysedu.toStdString() +
               "' has no usable subjects in the program folder";
      return false;
    }
    g.silabo = silabo.get();
  }
  ss::ListaProblemas(g, catalogo);
  if (silabo) {
    std::vector<std::string> orden;
    for (const ss::Asignatura& a : silabo->Asignaturas()) orden.push_back(ss::UCase(ss::Trim(a.nombre)));
    auto clave = [&](const std::string& entrada) {
      const std::string rec = entrada.substr(entrada.find(':') + 1);
      const std::string asig = ss::UCase(ss::Trim(ss::Mid(rec, 7, 65)));
      const auto pos = std::find(orden.begin(), orden.end(), asig) - orden.begin();
      return std::tuple(pos, std::string(ss::Mid(rec, 1, 3)), std::string(ss::Mid(rec, 4, 3)));
    };
    std::stable_sort(catalogo.begin(), catalogo.end(),
                     [&](const std::string& a, const std::string& b) { return clave(a) < clave(b); });
    // One heading per subject and topic, even when several modules share the topic.
    std::vector<std::string> vistas, unico;
    for (const std::string& e : catalogo) {
      const std::string rec = e.substr(e.find(':') + 1);
      if (ss::Mid(rec, 232, 1) == "5") {
        const std::string k = ss::UCase(rec.substr(0, 231));
        if (std::find(vistas.begin(), vistas.end(), k) != vistas.end()) continue;
        vistas.push_back(k);
      }
      unico.push_back(e);
    }
    catalogo = std::move(unico);
  }
  return true;
}

int Catalogue(const QStringList& args) {
  QString sysedu;
  for (qsizetype i = 0; i < args.size(); ++i) {
    if (args[i] == u"--sysedu" && i + 1 < args.size()) {
      sysedu = args[++i];
    } else {
      return Usage("catalogue takes only --sysedu FILE.sed");
    }
  }
  Servicios servicios;
  std::vector<std::string> catalogo;
  std::string error;
  if (!Catalogo(servicios, sysedu, catalogo, &error)) {
    std::fprintf(stderr, "error: %s\n", error.c_str());
    return 1;
  }
  for (const std::string& entry : catalogo) {
    const std::size_t colon = entry.find(':');
    const std::string line = entry.substr(0, colon + 1) + entry.substr(colon + 1, 398);
    std::printf("%s\n", ss::Cp1252ToUtf8(line).c_str());
  }
  return 0;
}

// One markup text set on one page, written as a PNG (as on screen) or a PDF
// (as printed).
int Markup(const QStringList& args) {
  QStringList positional;
  QString out;
  double zoom = 1;
  for (qsizetype i = 0; i < args.size(); ++i) {
    const QString& a = args[i];
    if (a == u"-o" || a == u"--zoom") {
      if (i + 1 >= args.size()) return Usage(a.toStdString() + " needs a value");
      const QString v = args[++i];
      if (a == u"-o") {
        out = v;
      } else {
        bool ok = false;
        zoom = v.toDouble(&ok);
        if (!ok || !(zoom >= 0.1 && zoom <= 8)) return Usage("--zoom takes a number from 0.1 to 8");
      }
    } else if (a.startsWith(u"-") && a.size() > 1) {
      return Usage("unknown option '" + a.toStdString() + "'");
    } else {
      positional << a;
    }
  }
  if (positional.size() != 1) return Usage("markup takes one TEXT");
  if (out.isEmpty()) return Usage("markup needs -o OUT.png or -o OUT.pdf");
  const bool pdf = out.endsWith(u".pdf", Qt::CaseInsensitive);
  if (!pdf && !out.endsWith(u".png", Qt::CaseInsensitive))
    return Usage("the output must end in .png or .pdf");
  const std::string texto = ss::Utf8ToCp1252(positional[0].toStdString());
  Servicios servicios;
  ss::Motor motor;
  motor.reemplazos = NotacionPorDefecto(servicios);
  const ss::PintaPagina pinta = [&](int, ss::Canvas& canvas) {
    motor.ComponerTexto(texto, 12, canvas);
  };
  QString error;
  const bool ok = pdf ? ss::EscribePdf(out, 1, pinta, &error) : ss::EscribePng(out, zoom, 1, pinta, &error);
  if (!ok) {
    std::fprintf(stderr, "error: %s\n", error.toLocal8Bit().constData());
    return 1;
  }
  return 0;
}

// ------------------------------------------------------------ worksheets

// Options of a subcommand: "--name value" or "--name=value" for those that
// take a value, bare flags, and the positional arguments, in order.
struct Opciones {
  QStringList posicionales;
  std::vector<std::pair<QString, QString>> valores;
  QStringList banderas;
};

std::optional<Opciones> LeeOpciones(const QStringList& args, const QStringList& conValor,
                                    const QStringList& banderas, std::string* error) {
  Opciones o;
  for (qsizetype i = 0; i < args.size(); ++i) {
    const QString& a = args[i];
    if (!a.startsWith(u"-") || a.size() == 1) {
      o.posicionales << a;
      continue;
    }
    const qsizetype igual = a.startsWith(u"--") ? a.indexOf(u'=') : -1;
    const QString nombre = igual < 0 ? a : a.left(igual);
    if (conValor.contains(nombre)) {
      if (igual >= 0) {
        o.valores.emplace_back(nombre, a.mid(igual + 1));
      } else if (i + 1 < args.size()) {
        o.valores.emplace_back(nombre, args[++i]);
      } else {
        *error = nombre.toStdString() + " needs a value";
        return std::nullopt;
      }
    } else if (banderas.contains(a)) {
      o.banderas << a;
    } else {
      *error = "unknown option '" + a.toStdString() + "'";
      return std::nullopt;
    }
  }
  return o;
}

// A whole number from lo to hi, or nothing.
std::optional<int> Entero(const QString& texto, int lo, int hi) {
  bool ok = false;
  const int v = texto.trimmed().toInt(&ok);
  if (!ok || v < lo || v > hi) return std::nullopt;
  return v;
}

std::string ACp1252(const QString& texto) { return ss::Utf8ToCp1252(texto.toStdString()); }

// Boxes of the worksheet core become lines on stderr; a load or a save that
// fails has told why in one of them.
class PlataformaCli final : public ss::PlataformaMuda {
 public:
  std::vector<std::string> avisos;
  void Aviso(const std::string& texto) override { avisos.push_back(texto); }
  void Critico(const std::string& texto) override { avisos.push_back(texto); }

  void Cuenta(const std::string& siNada) const {
    if (avisos.empty()) std::fprintf(stderr, "%s\n", ss::Cp1252ToUtf8(siNada).c_str());
    for (const std::string& a : avisos) std::fprintf(stderr, "%s\n", ss::Cp1252ToUtf8(a).c_str());
  }
};

// One worksheet session without windows: the document, the problem makers,
// the typesetter with its hidden page, the main window's texts and the
// program's folders.
struct Trabajo {
  Servicios servicios;
  ss::Documento doc;
  PlataformaCli plataforma;
  ss::GenContext gen;
  ss::Motor motor;
  ss::CanvasQt oculta{nullptr};
  ss::TextosVentana textos{std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()),
                           "MAI"};
  ss::Sesion s{doc,    plataforma, gen, motor, oculta, textos,
               ss::Carpetas{QCoreApplication::applicationDirPath(), ss::CarpetaTemporal()}};

  explicit Trabajo(std::optional<uint64_t> seed = std::nullopt)
      : gen(&servicios.mensajes, ss::Aleatorio(seed)) {
    motor.reemplazos = NotacionPorDefecto(servicios);
  }

  // Reads a worksheet file; false after telling why on stderr.
  bool Carga(const QString& ruta) {
    doc.ruta = ruta;
    if (ss::CargarColeccion(s) && !doc.col.problemas.empty()) return true;
    plataforma.Cuenta(textos.GetL_win("InvalidFile"));
    return false;
  }
};

// The topic tree of one subject, built from the catalogue as the wizard
// builds it: the subject's records sorted into topic order, a topic row for
// each heading and an item row for each question, exercise or problem.
ss::Arbol ArbolDeAsignatura(const std::vector<std::string>& catalogo, const std::string& asignatura,
                            std::string* nombre) {
  const std::string buscada = ss::UCase(ss::Trim(asignatura));
  std::vector<std::string> lista;  // the record with its module's name behind it
  for (const std::string& entrada : catalogo) {
    const std::size_t dosPuntos = entrada.find(':');
    if (dosPuntos == std::string::npos) continue;
    std::string registro = entrada.substr(dosPuntos + 1);
    if (ss::UCase(ss::Trim(ss::Mid(registro, 7, 65))) != buscada) continue;
    registro.resize(ss::kLargoRegistro, ' ');
    lista.push_back(registro + entrada.substr(0, dosPuntos));
  }
  std::sort(lista.begin(), lista.end());

  ss::Arbol arbol;
  if (lista.empty()) return arbol;
  *nombre = std::string(ss::Trim(ss::Mid(lista.front(), 7, 65)));
  ss::ArbolItem raiz;
  raiz.Nivel = 0;
  raiz.EsRama = raiz.Abierto = true;
  raiz.Tipo = 6;
  raiz.Nombre = *nombre;
  arbol.Agrega(raiz);
  for (std::size_t k = 0; k < lista.size(); ++k) {
    const std::string& e = lista[k];
    const char nivel = e[231];
    const std::string tema(ss::Trim(ss::Mid(e, 72, 80)));
    if (nivel == '5') {
      const ss::ArbolItem& arriba = arbol.filas.back();
      if (arriba.Tipo == 5 && !(ss::UCase(arriba.Nombre) < ss::UCase(tema))) continue;
      ss::ArbolItem fila;
      fila.Tipo = 5;
      fila.Nivel = 1;
      fila.EsRama = true;
      fila.Nombre = tema;
      arbol.Agrega(fila);
    } else if (nivel >= '1' && nivel <= '3') {  // theory is not offered
      ss::ArbolItem fila;
      fila.Tipo = static_cast<int16_t>(nivel - '0');
      fila.Nivel = 2;
      std::string nombreFila(ss::Trim(ss::Mid(e, 152, 80)));
      if (nombreFila.starts_with('@')) nombreFila.erase(0, 1);
      fila.Nombre = nombreFila;
      fila.Ayuda = std::string(ss::Trim(ss::Mid(e, 239, 160)));
      fila.Indice = static_cast<int16_t>(k + 1);
      fila.Rutina = static_cast<int16_t>(ss::Val(ss::Mid(e, 233, 3)));
      fila.MaxCantidad2 = static_cast<int16_t>(ss::Val(ss::Mid(e, 236, 3)));
      fila.ModuloFijo = e.substr(ss::kLargoRegistro);
      fila.ModuloFijo.resize(80, ' ');
      arbol.Agrega(fila);
    }
  }
  return arbol;
}

// Marks an item row with its amounts. The items of one exercise are 6 unless
// asked otherwise, and never more than the generator gives.
void MarcaFila(ss::ArbolItem& fila, int cantidad, std::optional<int> items) {
  fila.Marcado = true;
  fila.Cantidad1 = static_cast<int16_t>(cantidad);
  int c2 = items ? *items : (fila.Tipo == 1 || fila.Tipo == 2) ? 6 : 0;
  if (fila.MaxCantidad2 > 0) c2 = std::min<int>(c2, fila.MaxCantidad2);
  fila.Cantidad2 = static_cast<int16_t>(c2);
}

struct PedidoItem {
  std::string modulo;
  int rutina = 0;
  int cantidad = 0;
  std::optional<int> items;
};

// "MODULE:N=AMOUNT[:ITEMS]".
std::optional<PedidoItem> LeeItem(const QString& texto) {
  const qsizetype dosPuntos = texto.indexOf(u':');
  const qsizetype igual = texto.indexOf(u'=');
  if (dosPuntos <= 0 || igual < dosPuntos) return std::nullopt;
  PedidoItem p;
  p.modulo = ss::UCase(ss::Trim(ACp1252(texto.left(dosPuntos))));
  const auto rutina = Entero(texto.mid(dosPuntos + 1, igual - dosPuntos - 1), 1, 999);
  const QStringList resto = texto.mid(igual + 1).split(u':');
  if (!rutina || resto.size() > 2) return std::nullopt;
  const auto cantidad = Entero(resto[0], 1, 99);
  if (!cantidad) return std::nullopt;
  p.rutina = *rutina;
  p.cantidad = *cantidad;
  if (resto.size() == 2) {
    p.items = Entero(resto[1], 1, 99);
    if (!p.items) return std::nullopt;
  }
  return p;
}

bool EsCol(const QString& ruta) { return ruta.endsWith(u".col", Qt::CaseInsensitive); }

// A new worksheet from the catalogue of one subject, saved as a file.
int New(const QStringList& args) {
  std::string error;
  const auto o = LeeOpciones(args,
                             {"--subject", "--item", "--all", "--possol", "--title", "--pretit",
                              "--posti1", "--posti2", "--seed", "--sysedu", "-o"},
                             {"--ordena", "--shuffle"}, &error);
  if (!o) return Usage(error);
  if (!o->posicionales.isEmpty()) return Usage("new takes no positional arguments");

  ss::ColeccionCab cab;
  cab.POSSOL = 1;
  cab.ORDENA = ss::kVerdadero;
  cab.PROINI = 1;
  cab.PAGINI = 1;
  cab.POSNUMPAG = 9;  // at the foot, on the right
  cab.COLRESPRO = 16777215;
  cab.PROSUF = ")";
  QString asignatura, salida, sysedu;
  std::optional<int> todos;
  std::optional<uint64_t> seed;
  std::vector<PedidoItem> pedidos;
  for (const auto& [nombre, valor] : o->valores) {
    if (nombre == u"--subject") {
      asignatura = valor;
    } else if (nombre == u"--item") {
      const auto p = LeeItem(valor);
      if (!p) return Usage("--item takes MODULE:N=AMOUNT[:ITEMS], amounts 1 to 99, not '" +
                           valor.toStdString() + "'");
      pedidos.push_back(*p);
    } else if (nombre == u"--all") {
      todos = Entero(valor, 1, 99);
      if (!todos) return Usage("--all takes an amount from 1 to 99");
    } else if (nombre == u"--possol") {
      const auto v = Entero(valor, 0, 3);
      if (!v) return Usage("--possol takes 0, 1, 2 or 3");
      cab.POSSOL = *v;
    } else if (nombre == u"--title") {
      cab.TITULO = ACp1252(valor);
    } else if (nombre == u"--pretit") {
      cab.PRETIT = ACp1252(valor);
    } else if (nombre == u"--posti1") {
      cab.POSTI1 = ACp1252(valor);
    } else if (nombre == u"--posti2") {
      cab.POSTI2 = ACp1252(valor);
    } else if (nombre == u"--seed") {
      seed = ParseSeed(valor);
      if (!seed) return Usage("--seed needs a whole number, not '" + valor.toStdString() + "'");
    } else if (nombre == u"-o") {
      salida = valor;
    } else if (nombre == u"--sysedu") {
      sysedu = valor;
    }
  }
  for (const QString& b : o->banderas) cab.ORDENA = b == u"--ordena" ? ss::kVerdadero : 0;
  if (asignatura.trimmed().isEmpty()) return Usage("new needs --subject NAME");
  if (pedidos.empty() && !todos) return Usage("new needs --item or --all");
  if (!EsCol(salida)) return Usage("new needs -o FILE.col");

  Trabajo t(seed);
  std::vector<std::string> catalogo;
  if (std::string fallo; !Catalogo(t.servicios, sysedu, catalogo, &fallo)) {
    std::fprintf(stderr, "error: %s\n", fallo.c_str());
    return 1;
  }
  std::string nombreAsignatura;
  ss::Arbol arbol = ArbolDeAsignatura(catalogo, ACp1252(asignatura), &nombreAsignatura);
  if (arbol.Count() == 0) return Usage("no subject '" + asignatura.toStdString() + "' in the catalogue");
  if (todos)
    for (ss::ArbolItem& f : arbol.filas)
      if (f.Nivel == 2) MarcaFila(f, *todos, std::nullopt);
  for (const PedidoItem& p : pedidos) {
    auto fila = std::find_if(arbol.filas.begin(), arbol.filas.end(), [&](const ss::ArbolItem& f) {
      return f.Nivel == 2 && f.Rutina == p.rutina &&
             (ss::UCase(ss::Trim(f.ModuloFijo)) == p.modulo ||
              ss::UCase(ss::Trim(f.ModuloFijo)) == ss::NormalizaModulo(p.modulo));
    });
    if (fila == arbol.filas.end())
      return Usage("no item " + ss::Cp1252ToUtf8(p.modulo) + ":" + std::to_string(p.rutina) +
                   " in the subject " + ss::Cp1252ToUtf8(nombreAsignatura));
    MarcaFila(*fila, p.cantidad, p.items);
  }
  int total = 0;
  for (const ss::ArbolItem& f : arbol.filas)
    if (f.Marcado) total += f.Cantidad1;
  if (total > ss::kMaxProblemas)
    return Usage("a worksheet holds at most 500 problems, not " + std::to_string(total));

  t.doc.col.cab = cab;
  ss::Arbol_to_Var(arbol, t.doc.col, t.gen.rnd);
  ss::CrearColeccion(t.s, 1);
  t.doc.ruta = salida;
  if (!ss::GuardarColeccion(t.s)) {
    t.plataforma.Cuenta("cannot write " + salida.toStdString());
    return 1;
  }
  std::printf("{\"problems\": %d, \"pages\": %d}\n", static_cast<int>(t.doc.col.problemas.size()),
              t.doc.numPaginas);
  return 0;
}

// Every page of a worksheet file: a PDF as it prints, or one PNG a page as
// it shows on screen.
int Render(const QStringList& args) {
  std::string error;
  const auto o = LeeOpciones(args, {"-o", "--zoom"}, {}, &error);
  if (!o) return Usage(error);
  if (o->posicionales.size() != 1) return Usage("render takes one FILE.col");
  QString salida;
  double zoom = 1;
  for (const auto& [nombre, valor] : o->valores) {
    if (nombre == u"-o") {
      salida = valor;
    } else {
      bool ok = false;
      zoom = valor.toDouble(&ok);
      if (!ok || !(zoom >= 0.1 && zoom <= 8)) return Usage("--zoom takes a number from 0.1 to 8");
    }
  }
  const bool pdf = salida.endsWith(u".pdf", Qt::CaseInsensitive);
  const bool png = salida.endsWith(u".png", Qt::CaseInsensitive);
  if (!pdf && !png) return Usage("render needs -o OUT.pdf or -o OUT-%d.png");
  if (png && !salida.contains(u"%d")) return Usage("a PNG name needs %d for the page number");

  Trabajo t;
  if (!t.Carga(o->posicionales[0])) return 1;
  const ss::ColeccionCab& cab = t.doc.col.cab;
  const ss::PintaPagina pinta = [&](int pagina, ss::Canvas& canvas) {
    t.motor.ComponerTexto(ss::TextoPagina(t.doc, pagina), 12, canvas);
    ss::DibujaNumeroPagina(t.motor, canvas, pagina, cab.PAGINI, cab.POSNUMPAG);
  };
  QString fallo;
  bool ok = true;
  if (pdf) {
    ok = ss::EscribePdf(salida, t.doc.numPaginas, pinta, &fallo);
  } else {
    for (int p = 1; ok && p <= t.doc.numPaginas; ++p) {
      QString nombre = salida;
      nombre.replace(QStringLiteral("%d"), QString::number(p));
      ok = ss::EscribePng(nombre, zoom, p, pinta, &fallo);
    }
  }
  if (!ok) {
    std::fprintf(stderr, "error: %s\n", fallo.toUtf8().constData());
    return 1;
  }
  std::printf("{\"pages\": %d}\n", t.doc.numPaginas);
  return 0;
}

std::string JsonTexto(const std::string& cp1252) { return Json(ss::Cp1252ToUtf8(cp1252)); }

// The header and the problems of a worksheet file as one JSON object.
int Info(const QStringList& args) {
  std::string error;
  const auto o = LeeOpciones(args, {}, {}, &error);
  if (!o) return Usage(error);
  if (o->posicionales.size() != 1) return Usage("info takes one FILE.col");
  Trabajo t;
  if (!t.Carga(o->posicionales[0])) return 1;
  const ss::ColeccionCab& c = t.doc.col.cab;
  auto n = [](long long v) { return std::to_string(v); };
  std::string j = "{\"header\": {";
  j += "\"PAGINI\": " + n(c.PAGINI) + ", \"POSNUMPAG\": " + n(c.POSNUMPAG) +
       ", \"NPROB\": " + n(c.NPROB) + ", \"COLRESPRO\": " + n(c.COLRESPRO) +
       ", \"PROPRE\": " + JsonTexto(c.PROPRE) + ", \"PROSUF\": " + JsonTexto(c.PROSUF) +
       ", \"PROINI\": " + n(c.PROINI) + ", \"POSSOL\": " + n(c.POSSOL) +
       ", \"PRETIT\": " + JsonTexto(c.PRETIT) + ", \"TITULO\": " + JsonTexto(c.TITULO) +
       ", \"POSTI1\": " + JsonTexto(c.POSTI1) + ", \"POSTI2\": " + JsonTexto(c.POSTI2) +
       ", \"ORDENA\": " + (c.ORDENA != 0 ? "true" : "false") + "}";
  j += ", \"pages\": " + n(t.doc.numPaginas) + ", \"problems\": [";
  bool primero = true;
  for (const ss::Problema& p : t.doc.col.problemas) {
    j += primero ? "\n  {" : ",\n  {";
    primero = false;
    j += "\"module\": " + JsonTexto(p.Modulo) + ", \"command\": " + JsonTexto(ss::ComandoProblema(p)) +
         ", \"Rutina\": " + n(p.Rutina) + ", \"Semilla\": " + n(p.Semilla) +
         ", \"NumVariante\": " + n(p.NumVariante) + ", \"Cantidad\": " + n(p.Cantidad) +
         ", \"Total\": " + n(p.Total) + ", \"Orden\": " + n(p.Orden) +
         ", \"statement\": " + JsonTexto(p.Enunciado) + ", \"solution\": " + JsonTexto(p.Solucion) +
         "}";
  }
  j += "]}";
  std::printf("%s\n", j.c_str());
  return 0;
}

// Qt's own notices (a missing runtime folder and the like) would mix with the
// tool's output; only its critical and fatal messages pass.
void QuietQt(QtMsgType type, const QMessageLogContext&, const QString& msg) {
  if (type == QtCriticalMsg || type == QtFatalMsg)
    std::fprintf(stderr, "%s\n", msg.toLocal8Bit().constData());
}

}  // namespace

int main(int argc, char** argv) {
  // No display is needed: text is measured and pages are drawn off screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(QuietQt);
  QGuiApplication app(argc, argv);
  const QStringList args = app.arguments().mid(1);
  if (args.isEmpty()) return Usage();
  const QString command = args.front();
  const QStringList rest = args.mid(1);
  try {
    if (command == u"generate") return Generate(rest);
    if (command == u"catalogue") return Catalogue(rest);
    if (command == u"markup") return Markup(rest);
    if (command == u"new") return New(rest);
    if (command == u"render") return Render(rest);
    if (command == u"info") return Info(rest);
  } catch (const ss::ErrorFatalDatos& e) {
    std::fprintf(stderr, "error: %s\n", e.what());
    return 1;
  }
  if (command == u"--help" || command == u"-h") {
    std::printf("%s\n", kUsage);
    return 0;
  }
  return Usage("unknown subcommand '" + command.toStdString() + "'");
}
