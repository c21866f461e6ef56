// sheetsmith-cli: the program's core without windows, for batch work and for
// testing from outside. Output is UTF-8; errors are one line on stderr.
#include <QGuiApplication>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "modules/modulos.h"
#include "problems/idioma.h"
#include "problems/texto.h"
#include "typeset/motor.h"
#include "typeset/salida.h"

namespace {

constexpr const char* kUsage =
    "usage: sheetsmith-cli generate MODULE COMMAND [--seed N] | sheetsmith-cli catalogue | "
    "sheetsmith-cli markup TEXT -o OUT.png|OUT.pdf [--zoom Z]";

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

int Catalogue(const QStringList& args) {
  if (!args.isEmpty()) return Usage("catalogue takes no arguments");
  Servicios servicios;
  ss::GenContext g(&servicios.mensajes);
  std::vector<std::string> catalogo;
  ss::ListaProblemas(g, catalogo);
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
  ss::Motor motor;
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
