// sheetsmith-cli: the program's core without windows, for batch work and for
// testing from outside. Output is UTF-8; errors are one line on stderr.
#include <QCoreApplication>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

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
      {"markup", "TEXT -o OUT.png|OUT.pdf [--zoom Z]", "set one markup text on a page",
       ComandoMarkup},
      {"new",
       "[--sysedu FILE.sed] --subject NAME (--item MODULE:N=AMOUNT[:ITEMS] | --all AMOUNT)... "
       "[--possol 0-3] [--ordena|--shuffle] [--title T] [--pretit T] [--posti1 T] [--posti2 T] "
       "[--seed N] -o FILE.col",
       "make a worksheet of a subject's items and save it", ComandoNew},
      {"render", "FILE.col -o OUT.pdf|OUT-%d.png [--zoom Z]",
       "draw every page of a worksheet to a PDF or to PNG images", ComandoRender},
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

int ComandoMarkup(const QStringList& args) {
  Argumentos a("markup",
               QStringLiteral("Sets one markup text on a page (796 by 1125 pixels at zoom 1, margins\n"
                              "of 16 mm) and writes it as a PNG, as the page shows on screen, or as a\n"
                              "PDF, as it prints. A TEXT that begins with \"-\" comes last, after \"--\":\n"
                              "sheetsmith-cli markup -o t.png -- \"-5 &.5 K\"."));
  a.Posicional(QStringLiteral("TEXT"), QStringLiteral("The markup text."))
      .Opcion({QStringLiteral("o")}, QStringLiteral("The file to write, ending in .png or .pdf."),
              QStringLiteral("OUT"))
      .Opcion({QStringLiteral("zoom")}, QStringLiteral("The PNG's scale, 0.1 to 8 (default 1)."),
              QStringLiteral("Z"));
  if (auto fin = a.Lee(args, 1, 1)) return *fin;
  const QString out = a.Valor(QStringLiteral("o"));
  if (const QString porque = TipoDeSalida(out, false); !porque.isEmpty())
    return Usage(QStringLiteral("markup"), porque);
  const std::optional<double> zoom = Zoom(a);
  if (!zoom) return Usage(QStringLiteral("markup"), QStringLiteral("--zoom takes a number from 0.1 to 8"));
  const std::string texto = ACp1252(a.Posicionales()[0], QStringLiteral("TEXT"));
  Servicios servicios;
  ss::Motor motor;
  motor.reemplazos = NotacionPorDefecto(servicios);
  const ss::PintaPagina pinta = [&](int, ss::Canvas& canvas) { motor.ComponerTexto(texto, 12, canvas); };
  QString error;
  const bool pdf = out.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive);
  if (!(pdf ? ss::EscribePdf(out, 1, pinta, &error) : ss::EscribePng(out, *zoom, 1, pinta, &error)))
    return Error(error);
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
