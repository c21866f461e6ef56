// sheetsmith-cli: the program's core without windows, for batch work and for
// testing from outside. Output is UTF-8; errors are one line on stderr.
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

#include "app/cli_comun.h"
#include "modules/modulos.h"
#include "problems/texto.h"
#include "typeset/salida.h"
#include "worksheet/temario.h"

namespace cli {

const std::vector<Comando>& Comandos() {
  static const std::vector<Comando> comandos = {
      {"generate", "MODULE COMMAND [--seed N]",
       "make one problem from a module and a sixteen-digit command", ComandoGenerate},
      {"catalogue", "[--sysedu FILE.sed]", "every problem that can be made, as catalogue records",
       ComandoCatalogue},
      {"subjects", "[--sysedu FILE.sed] [--json]", "the subjects a worksheet can be made of",
       ComandoSubjects},
      {"topics", "--subject NAME [--sysedu FILE.sed] [--json]",
       "a subject's topics and items, as --item of new takes them", ComandoTopics},
      {"markup", "(TEXT | --file FILE) -o OUT.png|OUT.pdf [--zoom Z]",
       "set a markup text on a page, or a file of markup paragraphs on pages", ComandoMarkup},
      {"new",
       "[--sysedu FILE.sed] --subject NAME (--item MODULE:N=AMOUNT[:ITEMS] | --all AMOUNT)... "
       "[--possol 0-3] [--ordena|--shuffle] [--title T] [--pretit T] [--posti1 T] [--posti2 T] "
       "[--seed N] -o FILE.col",
       "make a worksheet of a subject's items and save it", ComandoNew},
      {"render", "FILE.col... -o OUT.pdf|OUT-%d.png [--zoom Z]",
       "draw every page of worksheets (or a folder of them) to a PDF or to PNG images", ComandoRender},
      {"group", "FILE.col --students LIST.txt [--problems 1,3-5|none] [--seed N] -o FOLDER",
       "a copy of a worksheet for every student of a list", ComandoGroup},
      {"info", "FILE.col", "a worksheet's header and problems as JSON", ComandoInfo},
  };
  return comandos;
}

namespace {

const QString kSysedu = QStringLiteral("sysedu");
const QString kJson = QStringLiteral("json");

Argumentos& ConSysedu(Argumentos& a) {
  return a.Opcion({kSysedu},
                  QStringLiteral("Place the problems as the education system FILE.sed of the "
                                 "program's folder does (its subjects, topics and order)."),
                  QStringLiteral("FILE.sed"));
}

}  // namespace

int ComandoGenerate(const QStringList& args) {
  Argumentos a("generate",
               QStringLiteral(
                   "Makes one problem and prints it as JSON: \"statement\" and \"solution\", markup\n"
                   "text in UTF-8.\n"
                   "COMMAND is 16 digits: generator 3, first counter 3, variant 4, items 2,\n"
                   "amount 2, index 2 (0090000003000301: generator 9, variant 3)."));
  a.Posicional(QStringLiteral("MODULE"), QStringLiteral("The module, as in ANEU_QUIM_DIS."))
      .Posicional(QStringLiteral("COMMAND"), QStringLiteral("The sixteen-digit command."))
      .Opcion({QStringLiteral("seed")}, QStringLiteral("Make the random numbers repeatable."),
              QStringLiteral("N"));
  if (auto fin = a.Lee(args, 2, 2)) return *fin;
  const QString comando = a.Posicionales()[1];
  static const QRegularExpression dieciseis(QStringLiteral("^[0-9]{16}$"));
  if (!dieciseis.match(comando).hasMatch())
    return Usage(QStringLiteral("generate"),
                 QStringLiteral("COMMAND is sixteen digits 0-9, not '%1'").arg(comando.left(40)));
  std::optional<uint64_t> seed;
  if (a.Esta(QStringLiteral("seed")) && !(seed = Semilla(a.Valor(QStringLiteral("seed")))))
    return Usage(QStringLiteral("generate"), QStringLiteral("--seed takes a whole number from 0, not '%1'")
                                                 .arg(a.Valor(QStringLiteral("seed"))));
  const std::string modulo = ACp1252(a.Posicionales()[0], QStringLiteral("MODULE"));

  Servicios servicios;
  ss::GenContext g(&servicios.mensajes, ss::Aleatorio(seed));
  std::string statement, solution;
  ss::GeneraProblema(g, modulo, comando.toStdString(), statement, solution);
  ImprimeJson(QJsonDocument(QJsonObject{{QStringLiteral("statement"), DeCp1252(statement)},
                                        {QStringLiteral("solution"), DeCp1252(solution)}}),
              QJsonDocument::Compact);
  return 0;
}

int ComandoCatalogue(const QStringList& args) {
  Argumentos a("catalogue",
               QStringLiteral(
                   "Prints every problem that can be made, one record a line: the module's name\n"
                   "with a colon, then the fixed-width record (topic and subtopic ordinals,\n"
                   "subject, topic, subtopic, level, generator, most items, description), with\n"
                   "one heading record per topic. The topics command shows the same readably."));
  ConSysedu(a);
  if (auto fin = a.Lee(args, 0, 0)) return *fin;
  Servicios servicios;
  std::vector<std::string> catalogo;
  if (!Catalogo(servicios, a.Valor(kSysedu), catalogo)) return 1;
  for (const std::string& entry : catalogo) {
    const std::size_t colon = entry.find(':');
    const std::string line = entry.substr(0, colon + 1) + entry.substr(colon + 1, 398);
    std::printf("%s\n", ss::Cp1252ToUtf8(line).c_str());
  }
  return 0;
}

int ComandoSubjects(const QStringList& args) {
  Argumentos a("subjects",
               QStringLiteral("Prints the subjects a worksheet can be made of, one a line, in the\n"
                              "order of the wizard's list; each is a NAME for topics and new."));
  ConSysedu(a).Opcion({kJson}, QStringLiteral("Print a JSON array of names."));
  if (auto fin = a.Lee(args, 0, 0)) return *fin;
  Servicios servicios;
  std::vector<std::string> catalogo, silabo;
  const QString sysedu = a.Valor(kSysedu);
  if (!Catalogo(servicios, sysedu, catalogo, &silabo)) return 1;
  QJsonArray lista;
  for (const std::string& nombre :
       ss::AsignaturasDelCatalogo(catalogo, sysedu.isEmpty() ? nullptr : &silabo)) {
    if (a.Esta(kJson))
      lista.append(DeCp1252(nombre));
    else
      std::printf("%s\n", ss::Cp1252ToUtf8(nombre).c_str());
  }
  if (a.Esta(kJson)) ImprimeJson(QJsonDocument(lista), QJsonDocument::Compact);
  return 0;
}

namespace {

const char* const kTipos[] = {"", "question", "exercise", "problem", "theory"};

// The description without its leading difficulty code, and the difficulty
// in words, as the wizard's panel shows it.
std::pair<QString, QString> Descripcion(const std::string& ayuda, ss::TextosVentana& wiz) {
  static const std::pair<const char*, const char*> codigos[] = {
      {"&DP", "ProgreDiff"}, {"&D1", "LowDiff"}, {"&D2", "MedDiff"}, {"&D3", "HighDiff"}};
  for (const auto& [codigo, clave] : codigos)
    if (ayuda.starts_with(codigo))
      return {DeCp1252(std::string(ss::Trim(ayuda.substr(3)))), DeCp1252(wiz.GetL_win(clave))};
  return {DeCp1252(ayuda), QString()};
}

}  // namespace

int ComandoTopics(const QStringList& args) {
  Argumentos a("topics",
               QStringLiteral(
                   "Prints the topic tree of a subject: each topic, and under it one item a line,\n"
                   "headed by the MODULE:N that new --item takes, then its name, its kind, the\n"
                   "most items an exercise of it holds, its difficulty and its description.\n"
                   "For example the line\n"
                   "    ANEU_QUIM_DIS:11  Units of mass (exercise, up to 8 items, ...\n"
                   "is asked for as --item ANEU_QUIM_DIS:11=3 (3 exercises of 6 items each)\n"
                   "or --item ANEU_QUIM_DIS:11=3:8 (of 8 items each)."));
  a.Opcion({QStringLiteral("subject")}, QStringLiteral("The subject, as subjects lists it (any case)."),
           QStringLiteral("NAME"));
  ConSysedu(a).Opcion({kJson}, QStringLiteral("Print the tree as a JSON array of topics."));
  if (auto fin = a.Lee(args, 0, 0)) return *fin;
  const QString asignatura = a.Valor(QStringLiteral("subject"));
  if (asignatura.trimmed().isEmpty())
    return Usage(QStringLiteral("topics"), QStringLiteral("topics needs --subject NAME"));
  Servicios servicios;
  std::vector<std::string> catalogo;
  if (!Catalogo(servicios, a.Valor(kSysedu), catalogo)) return 1;
  std::string nombre;
  const ss::Arbol arbol = ss::ArbolDeAsignatura(catalogo, ACp1252(asignatura, QStringLiteral("--subject")),
                                                ss::kTiposPorDefecto, &nombre);
  if (arbol.Count() == 0)
    return Usage(QStringLiteral("topics"),
                 QStringLiteral("no subject '%1' in the catalogue (sheetsmith-cli subjects lists them)")
                     .arg(asignatura));
  ss::TextosVentana wiz(CarpetaPrograma(), "WIZ");

  QJsonArray temas;
  QJsonArray items;
  QJsonObject tema;
  auto cierraTema = [&] {
    if (tema.isEmpty()) return;
    tema.insert(QStringLiteral("items"), items);
    temas.append(tema);
    tema = {};
    items = {};
  };
  if (!a.Esta(kJson)) std::printf("%s\n", ss::Cp1252ToUtf8(nombre).c_str());
  for (int k = 2; k <= arbol.Count(); ++k) {
    const ss::ArbolItem& f = arbol.filas[k];
    if (f.Nivel == 1) {
      cierraTema();
      tema.insert(QStringLiteral("topic"), DeCp1252(f.Nombre));
      if (!a.Esta(kJson)) std::printf("  %s\n", ss::Cp1252ToUtf8(f.Nombre).c_str());
      continue;
    }
    const QString item = QStringLiteral("%1:%2").arg(DeCp1252(std::string(ss::Trim(f.ModuloFijo)))).arg(f.Rutina);
    const auto [descripcion, dificultad] = Descripcion(f.Ayuda, wiz);
    const bool conItems = f.Tipo == 1 || f.Tipo == 2;
    const int most = conItems ? (f.MaxCantidad2 > 0 ? f.MaxCantidad2 : 99) : 0;
    if (a.Esta(kJson)) {
      items.append(QJsonObject{{QStringLiteral("item"), item},
                               {QStringLiteral("module"), DeCp1252(std::string(ss::Trim(f.ModuloFijo)))},
                               {QStringLiteral("generator"), f.Rutina},
                               {QStringLiteral("kind"), QString::fromLatin1(kTipos[f.Tipo])},
                               {QStringLiteral("most_items"), most},
                               {QStringLiteral("name"), DeCp1252(f.Nombre)},
                               {QStringLiteral("description"), descripcion},
                               {QStringLiteral("difficulty"), dificultad}});
      continue;
    }
    QStringList clase{QString::fromLatin1(kTipos[f.Tipo])};
    if (conItems) clase << QStringLiteral("up to %1 items").arg(most);
    if (!dificultad.isEmpty()) clase << dificultad.toLower();
    QString linea = QStringLiteral("    %1  %2 (%3)").arg(item, -18).arg(DeCp1252(f.Nombre), clase.join(QStringLiteral(", ")));
    if (!descripcion.isEmpty()) linea += QStringLiteral(": ") + descripcion;
    std::printf("%s\n", linea.toUtf8().constData());
  }
  cierraTema();
  if (a.Esta(kJson)) ImprimeJson(QJsonDocument(temas), QJsonDocument::Indented);
  return 0;
}

QString TipoDeSalida(const QString& salida, bool png) {
  if (salida.isEmpty()) return QStringLiteral("-o OUT is missing");
  if (salida.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) return {};
  if (!salida.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive))
    return QStringLiteral("the output must end in .png or .pdf, not '%1'").arg(salida);
  if (png && !salida.contains(QStringLiteral("%d")))
    return QStringLiteral("a PNG name needs %d for the page number");
  return {};
}

namespace {

// A paragraph of a markup file: its text, joined into one line of markup, and
// the file line it begins on.
struct Parrafo {
  std::string texto;
  int linea = 0;
};

// Cuts a markup file into paragraphs at empty lines; a line's blanks, tabs and
// the CR of a CR LF end do not count. Lines that begin with ";" are comments
// and are dropped. The lines of a paragraph are joined by a blank, except
// after a "&LF", which already ends the line on the page.
std::vector<Parrafo> Parrafos(const std::string& archivo) {
  std::vector<Parrafo> parrafos;
  bool abierto = false;
  int numero = 0;
  for (std::size_t desde = 0; desde <= archivo.size();) {
    std::size_t fin = archivo.find('\n', desde);
    if (fin == std::string::npos) fin = archivo.size();
    std::string_view linea = std::string_view(archivo).substr(desde, fin - desde);
    const std::size_t izquierda = linea.find_first_not_of(" \t\r");
    linea = izquierda == linea.npos
                ? std::string_view()
                : linea.substr(izquierda, linea.find_last_not_of(" \t\r") - izquierda + 1);
    desde = fin + 1;
    ++numero;
    if (linea.starts_with(';')) continue;
    if (linea.empty()) {
      abierto = false;
      continue;
    }
    if (!abierto) {
      parrafos.push_back({std::string(linea), numero});
      abierto = true;
      continue;
    }
    std::string& texto = parrafos.back().texto;
    if (!texto.ends_with("&LF")) texto += ' ';
    texto += linea;
  }
  return parrafos;
}

// The first words of a paragraph, to name it in a message.
QString Comienzo(const std::string& texto) {
  const QStringList palabras = DeCp1252(texto).simplified().split(u' ');
  QString comienzo = palabras.mid(0, 6).join(u' ');
  if (comienzo.size() > 60) comienzo = comienzo.left(57);
  if (palabras.size() > 6 || comienzo.size() == 57) comienzo += QStringLiteral("...");
  return comienzo;
}

// The foot of the page, in the middle: the place code 3 with the foot bit 8.
constexpr int kNumeroAlPie = 8 + 3;
// Paragraphs offered to one trial page at first, and the widening step; the
// marks of a trial are numbered by their place in it, 1 to 999.
constexpr std::size_t kVentanaParrafos = 49;
constexpr std::size_t kMaxVentanaParrafos = 999;

// The text of a page of paragraphs desde..hasta. Each begins a line with its
// mark, numbered by its place on the page, and ends with one blank line: the
// gap before the next paragraph or, after the last, the line kept free for
// the page number. A paragraph fits, as the trial page reports it, only with
// the blank line behind it.
std::string TextoDePagina(const std::vector<Parrafo>& parrafos, std::size_t desde, std::size_t hasta) {
  std::string texto;
  for (std::size_t k = desde; k <= hasta; ++k) {
    if (k > desde) texto += "&LF";
    texto += "#MARK=" + ss::ZeroPadCut(static_cast<long long>(k - desde + 1), 3);
    texto += parrafos[k].texto;
    texto += "&LF ";
  }
  return texto;
}

// Fills pages one after another with whole paragraphs, trying each page's
// text on the hidden page: the typesetter's last mark tells which paragraph
// ran past the foot. False, with the paragraph that is taller than a page in
// `alto`, when one does not fit even on a page of its own.
bool PaginaParrafos(const std::vector<Parrafo>& parrafos, ss::Motor& motor, std::vector<std::string>& paginas,
                    const Parrafo** alto) {
  ss::CanvasQt oculta(nullptr);
  for (std::size_t cursor = 0; cursor < parrafos.size();) {
    std::size_t ancho = kVentanaParrafos;
    std::size_t hasta = 0;
    int resultado = 0;
    for (;;) {
      hasta = std::min(parrafos.size(), cursor + ancho) - 1;
      motor.ComponerTexto(TextoDePagina(parrafos, cursor, hasta), 12, oculta);
      resultado = motor.UltimaMarca;
      if (resultado > 0 && hasta + 1 < parrafos.size() && ancho + kVentanaParrafos < kMaxVentanaParrafos) {
        ancho += kVentanaParrafos;
        continue;
      }
      break;
    }
    if (resultado < 0) {
      if (resultado == -1) {
        *alto = &parrafos[cursor];
        return false;
      }
      hasta = cursor + static_cast<std::size_t>(-resultado) - 2;
    }
    paginas.push_back(TextoDePagina(parrafos, cursor, hasta));
    cursor = hasta + 1;
  }
  if (paginas.empty()) paginas.emplace_back();
  return true;
}

constexpr qint64 kMaxArchivo = 64LL * 1024 * 1024;

}  // namespace

int ComandoMarkup(const QStringList& args) {
  Argumentos a("markup",
               QStringLiteral(
                   "Sets one markup text on a page (796 by 1125 pixels at zoom 1, margins of\n"
                   "16 mm) and writes it as a PNG, as the page shows on screen, or as a PDF, as\n"
                   "it prints. A TEXT that begins with \"-\" comes last, after \"--\":\n"
                   "sheetsmith-cli markup -o t.png -- \"-5 &.5 K\".\n"
                   "\n"
                   "With --file, sets a UTF-8 file of markup on as many pages as it needs, each\n"
                   "numbered at the foot, and prints {\"pages\": P}. Empty lines part the file into\n"
                   "paragraphs; the lines of a paragraph are joined with a blank (&LF ends a line\n"
                   "on the page), and lines that begin with \";\" are comments. A paragraph is\n"
                   "never split over two pages, and an empty line stands between two paragraphs\n"
                   "on a page. Every page starts in plain 12-point Times, and a code holds to the\n"
                   "end of its page. A paragraph taller than a page is an error. The output is\n"
                   "OUT.pdf, or OUT-%d.png for one image a page."));
  a.Posicional(QStringLiteral("TEXT"), QStringLiteral("The markup text."))
      .Opcion({QStringLiteral("file")}, QStringLiteral("A UTF-8 file of markup paragraphs, instead of TEXT."),
              QStringLiteral("FILE"))
      .Opcion({QStringLiteral("o")},
              QStringLiteral("The file to write, ending in .png or .pdf (with --file: OUT.pdf or "
                             "OUT-%d.png)."),
              QStringLiteral("OUT"))
      .Opcion({QStringLiteral("zoom")}, QStringLiteral("The PNG's scale, 0.1 to 8 (default 1)."),
              QStringLiteral("Z"));
  if (auto fin = a.Lee(args, 0, 1)) return *fin;
  const bool deArchivo = a.Esta(QStringLiteral("file"));
  if (deArchivo == (a.Posicionales().size() == 1))
    return Usage(QStringLiteral("markup"), deArchivo ? QStringLiteral("markup takes TEXT or --file FILE, not both")
                                                     : QStringLiteral("markup needs TEXT or --file FILE"));
  const QString out = a.Valor(QStringLiteral("o"));
  if (const QString porque = TipoDeSalida(out, deArchivo); !porque.isEmpty())
    return Usage(QStringLiteral("markup"), porque);
  const std::optional<double> zoom = Zoom(a);
  if (!zoom) return Usage(QStringLiteral("markup"), QStringLiteral("--zoom takes a number from 0.1 to 8"));
  const bool pdf = out.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive);
  Servicios servicios;
  ss::Motor motor;
  motor.reemplazos = NotacionPorDefecto(servicios);
  motor.BuscaImagen = ss::BuscadorDeImagenes(ss::Carpetas{ss::CarpetaDatos(), ss::CarpetaTemporal()});
  QString error;

  if (!deArchivo) {
    const std::string texto = ACp1252(a.Posicionales()[0], QStringLiteral("TEXT"));
    const ss::PintaPagina pinta = [&](int, ss::Canvas& canvas) { motor.ComponerTexto(texto, 12, canvas); };
    if (!(pdf ? ss::EscribePdf(out, 1, pinta, &error) : ss::EscribePng(out, *zoom, 1, pinta, &error)))
      return Error(error);
    return 0;
  }

  const QString ruta = a.Valor(QStringLiteral("file"));
  const QFileInfo info(ruta);
  QFile archivo(ruta);
  if (!info.exists()) return Error(QStringLiteral("%1: no such file").arg(ruta));
  if (info.isDir()) return Error(QStringLiteral("%1: it is a folder, not a text file").arg(ruta));
  if (info.size() > kMaxArchivo) return Error(QStringLiteral("%1: larger than 64 MB").arg(ruta));
  if (!archivo.open(QIODevice::ReadOnly))
    return Error(QStringLiteral("%1: cannot be read (%2)").arg(ruta, archivo.errorString()));
  QString utf8 = QString::fromUtf8(archivo.readAll());
  if (utf8.startsWith(QChar(0xFEFF))) utf8.remove(0, 1);
  const std::vector<Parrafo> parrafos = Parrafos(ACp1252(utf8, QStringLiteral("--file")));

  std::vector<std::string> paginas;
  const Parrafo* alto = nullptr;
  if (!PaginaParrafos(parrafos, motor, paginas, &alto))
    return Error(QStringLiteral("%1:%2: the paragraph \"%3\" is taller than a page; part it with an empty line")
                     .arg(ruta)
                     .arg(alto->linea)
                     .arg(Comienzo(alto->texto)));
  const ss::PintaPagina pinta = [&](int pagina, ss::Canvas& canvas) {
    motor.ComponerTexto(paginas[static_cast<std::size_t>(pagina - 1)], 12, canvas);
    ss::DibujaNumeroPagina(motor, canvas, pagina, 1, kNumeroAlPie);
  };
  const int n = static_cast<int>(paginas.size());
  if (!(pdf ? ss::EscribePdf(out, n, pinta, &error) : ss::EscribePngs(out, *zoom, n, pinta, &error)))
    return Error(error);
  ImprimeJson(QJsonDocument(QJsonObject{{QStringLiteral("pages"), n}}), QJsonDocument::Compact);
  return 0;
}

namespace {

// Qt's own notices (a missing runtime folder and the like) would mix with the
// tool's output; only its critical and fatal messages pass.
void QuietQt(QtMsgType type, const QMessageLogContext&, const QString& msg) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", msg.toLocal8Bit().constData());
}

int Ayuda() {
  std::printf("sheetsmith-cli: chemistry worksheets of random problems with worked solutions,\n"
              "made, drawn and read without windows.\n\nusage: sheetsmith-cli COMMAND [OPTIONS]\n\n"
              "Commands:\n");
  for (const Comando& c : Comandos()) std::printf("  %-10s %s\n", c.nombre, c.resumen);
  std::printf("\nsheetsmith-cli COMMAND --help shows a command's options; --version the version.\n"
              "Errors go to stderr: exit code 2 for wrong arguments, 1 for files that cannot be\n"
              "read or written.\n");
  return 0;
}

}  // namespace
}  // namespace cli

int main(int argc, char** argv) {
  // No display is needed: text is measured and pages are drawn off screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(cli::QuietQt);
  QGuiApplication app(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("sheetsmith-cli"));
  QCoreApplication::setApplicationVersion(QStringLiteral(SS_VERSION));
  const QStringList args = app.arguments().mid(1);
  if (args.isEmpty()) return cli::Usage();
  const QString& command = args.front();
  if (command == u"--help" || command == u"-h" || command == u"help") return cli::Ayuda();
  if (command == u"--version") {
    std::printf("sheetsmith-cli %s\n", SS_VERSION);
    return 0;
  }
  for (const cli::Comando& c : cli::Comandos()) {
    if (command != QLatin1String(c.nombre)) continue;
    try {
      return c.corre(args.mid(1));
    } catch (const ss::ErrorFatalDatos& e) {
      return cli::Error(QString::fromUtf8(e.what()));
    }
  }
  return cli::Usage({}, QStringLiteral("unknown command '%1'").arg(command));
}
