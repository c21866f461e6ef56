// The worksheet commands of sheetsmith-cli: new, render and info.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

#include "app/cli_comun.h"
#include "problems/texto.h"
#include "output/grupo.h"
#include "output/impresion.h"
#include "output/paginas.h"
#include "typeset/salida.h"
#include "worksheet/armado.h"
#include "worksheet/colfile.h"
#include "worksheet/temario.h"

namespace cli {
namespace {

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
  p.modulo = ss::UCase(ss::Trim(ACp1252(texto.left(dosPuntos), QStringLiteral("--item"))));
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

// Marks an item row with its amounts. The items of one exercise are 6 unless
// asked otherwise, and never more than the generator gives.
void MarcaFila(ss::ArbolItem& fila, int cantidad, std::optional<int> items) {
  fila.Marcado = true;
  fila.Cantidad1 = static_cast<int16_t>(cantidad);
  int c2 = items ? *items : (fila.Tipo == 1 || fila.Tipo == 2) ? 6 : 0;
  if (fila.MaxCantidad2 > 0) c2 = std::min<int>(c2, fila.MaxCantidad2);
  fila.Cantidad2 = static_cast<int16_t>(c2);
}

const QString kNew = QStringLiteral("new");

}  // namespace

int ComandoNew(const QStringList& args) {
  Argumentos a("new",
               QStringLiteral(
                   "Makes a worksheet as the wizard does and saves it; prints its \"problems\" and\n"
                   "\"pages\" as JSON.\n"
                   "sheetsmith-cli topics --subject NAME lists the items --item can ask for.\n"
                   "Amounts run from 1 to 99; a worksheet holds at most 500 problems. An exercise\n"
                   "has 6 items unless told, never more than its generator gives."));
  a.Opcion({QStringLiteral("subject")}, QStringLiteral("The subject (any case)."), QStringLiteral("NAME"))
      .Opcion({QStringLiteral("item")},
              QStringLiteral("AMOUNT problems of generator N of MODULE, with ITEMS items each; "
                             "may be repeated."),
              QStringLiteral("MODULE:N=AMOUNT[:ITEMS]"))
      .Opcion({QStringLiteral("all")},
              QStringLiteral("AMOUNT problems of every item of the subject (an --item sets its own)."),
              QStringLiteral("AMOUNT"))
      .Opcion({QStringLiteral("possol")},
              QStringLiteral("Solutions: 0 none, 1 after each problem (default), 2 all at the end, "
                             "3 at the end on pages of their own."),
              QStringLiteral("0-3"))
      .Opcion({QStringLiteral("ordena")}, QStringLiteral("Keep the problems in topic order (default)."))
      .Opcion({QStringLiteral("shuffle")}, QStringLiteral("Shuffle the problems."))
      .Opcion({QStringLiteral("title")}, QStringLiteral("The worksheet's title (empty unless given)."),
              QStringLiteral("T"))
      .Opcion({QStringLiteral("pretit")}, QStringLiteral("The line above the title (the school)."),
              QStringLiteral("T"))
      .Opcion({QStringLiteral("posti1")}, QStringLiteral("The first line below the title."),
              QStringLiteral("T"))
      .Opcion({QStringLiteral("posti2")}, QStringLiteral("The second line below the title."),
              QStringLiteral("T"))
      .Opcion({QStringLiteral("seed")}, QStringLiteral("Make the whole worksheet repeatable."),
              QStringLiteral("N"))
      .Opcion({QStringLiteral("sysedu")},
              QStringLiteral("Take the subject from the education system FILE.sed of the program's "
                             "folder."),
              QStringLiteral("FILE.sed"))
      .Opcion({QStringLiteral("o")}, QStringLiteral("The worksheet file to write, ending in .col."),
              QStringLiteral("FILE.col"));
  if (auto fin = a.Lee(args, 0, 0)) return *fin;

  ss::ColeccionCab cab;
  cab.POSSOL = 1;
  cab.ORDENA = ss::kVerdadero;
  cab.PROINI = 1;
  cab.PAGINI = 1;
  cab.POSNUMPAG = 9;  // at the foot, on the right
  cab.COLRESPRO = 16777215;
  cab.PROSUF = ")";
  const QString asignatura = a.Valor(QStringLiteral("subject"));
  const QString salida = a.Valor(QStringLiteral("o"));
  std::vector<PedidoItem> pedidos;
  for (const QString& valor : a.Valores(QStringLiteral("item"))) {
    const auto p = LeeItem(valor);
    if (!p)
      return Usage(kNew, QStringLiteral("--item takes MODULE:N=AMOUNT[:ITEMS], amounts 1 to 99, not '%1'")
                             .arg(valor));
    pedidos.push_back(*p);
  }
  std::optional<int> todos;
  if (a.Esta(QStringLiteral("all")) && !(todos = Entero(a.Valor(QStringLiteral("all")), 1, 99)))
    return Usage(kNew, QStringLiteral("--all takes an amount from 1 to 99"));
  if (a.Esta(QStringLiteral("possol"))) {
    const auto v = Entero(a.Valor(QStringLiteral("possol")), 0, 3);
    if (!v) return Usage(kNew, QStringLiteral("--possol takes 0, 1, 2 or 3"));
    cab.POSSOL = *v;
  }
  std::optional<uint64_t> seed;
  if (a.Esta(QStringLiteral("seed")) && !(seed = Semilla(a.Valor(QStringLiteral("seed")))))
    return Usage(kNew, QStringLiteral("--seed takes a whole number from 0, not '%1'")
                           .arg(a.Valor(QStringLiteral("seed"))));
  if (const auto orden = a.UltimaDe(QStringLiteral("ordena"), QStringLiteral("shuffle")))
    cab.ORDENA = *orden == u"ordena" ? ss::kVerdadero : 0;
  if (asignatura.trimmed().isEmpty()) return Usage(kNew, QStringLiteral("new needs --subject NAME"));
  if (pedidos.empty() && !todos) return Usage(kNew, QStringLiteral("new needs --item or --all"));
  if (!salida.endsWith(QStringLiteral(".col"), Qt::CaseInsensitive))
    return Usage(kNew, QStringLiteral("new needs -o FILE.col"));
  for (const auto& [opcion, campo] : {std::pair{"title", &cab.TITULO}, std::pair{"pretit", &cab.PRETIT},
                                      std::pair{"posti1", &cab.POSTI1}, std::pair{"posti2", &cab.POSTI2}}) {
    *campo = ACp1252(a.Valor(QLatin1String(opcion)), QStringLiteral("--") + QLatin1String(opcion));
    // The file has no escapes: a text holding one of its closing tags could
    // not be read back, so it is refused before anything is made.
    if (const std::string_view tag = ss::EtiquetaQueImpide(*campo); !tag.empty())
      return Usage(kNew, QStringLiteral("--%1 cannot hold \"%2\": the worksheet file could not be read back")
                             .arg(QLatin1String(opcion), DeCp1252(std::string(tag))));
  }

  Trabajo t(seed);
  std::vector<std::string> catalogo;
  if (!Catalogo(t.servicios, a.Valor(QStringLiteral("sysedu")), catalogo)) return 1;
  std::string nombreAsignatura;
  ss::Arbol arbol = ss::ArbolDeAsignatura(catalogo, ACp1252(asignatura, QStringLiteral("--subject")),
                                          ss::kTiposPorDefecto, &nombreAsignatura);
  if (arbol.Count() == 0)
    return Usage(kNew, QStringLiteral("no subject '%1' in the catalogue (sheetsmith-cli subjects lists them)")
                           .arg(asignatura));
  if (todos)
    for (ss::ArbolItem& f : arbol.filas)
      if (f.Nivel == 2) MarcaFila(f, *todos, std::nullopt);
  for (const PedidoItem& p : pedidos) {
    auto fila = std::find_if(arbol.filas.begin(), arbol.filas.end(), [&](const ss::ArbolItem& f) {
      const std::string modulo = ss::UCase(ss::Trim(f.ModuloFijo));
      return f.Nivel == 2 && f.Rutina == p.rutina &&
             (modulo == p.modulo || modulo == ss::NormalizaModulo(p.modulo));
    });
    if (fila == arbol.filas.end())
      return Usage(kNew, QStringLiteral("no item %1:%2 in the subject %3 (sheetsmith-cli topics lists them)")
                             .arg(DeCp1252(p.modulo))
                             .arg(p.rutina)
                             .arg(DeCp1252(nombreAsignatura)));
    MarcaFila(*fila, p.cantidad, p.items);
  }
  int total = 0;
  for (const ss::ArbolItem& f : arbol.filas)
    if (f.Marcado) total += f.Cantidad1;
  if (total > ss::kMaxProblemas)
    return Usage(kNew, QStringLiteral("a worksheet holds at most %1 problems, not %2")
                           .arg(ss::kMaxProblemas)
                           .arg(total));

  t.doc.col.cab = cab;
  ss::Arbol_to_Var(arbol, t.doc.col, t.gen.rnd);
  ss::CrearColeccion(t.s, 1);
  t.AvisaCortes();
  t.doc.ruta = salida;
  if (!ss::GuardarColeccion(t.s)) {
    t.plataforma.Cuenta("cannot write " + salida.toStdString());
    return 1;
  }
  ImprimeJson(QJsonDocument(QJsonObject{{QStringLiteral("problems"), static_cast<int>(t.doc.col.problemas.size())},
                                        {QStringLiteral("pages"), t.doc.numPaginas}}),
              QJsonDocument::Compact);
  return 0;
}

int ComandoRender(const QStringList& args) {
  Argumentos a("render",
               QStringLiteral(
                   "Draws every page of a worksheet, each with its title block and page number:\n"
                   "a PDF of all pages as they print, or one PNG a page as it shows on screen,\n"
                   "%d in the name standing for the page number (-o sheet-%d.png gives\n"
                   "sheet-1.png, sheet-2.png, ...) and prints {\"pages\": P}. Several worksheets,\n"
                   "or a folder (its .col files by name), make one PDF of all their pages in\n"
                   "order, each worksheet numbered as it prints alone: a whole class in one file.\n"
                   "When a file cannot be read or written nothing is left behind."));
  a.Posicional(QStringLiteral("FILE.col"), QStringLiteral("The worksheet file, or a folder of them; several may be given."))
      .Opcion({QStringLiteral("o")},
              QStringLiteral("The file to write: OUT.pdf, or OUT-%d.png for one image a page."),
              QStringLiteral("OUT"))
      .Opcion({QStringLiteral("zoom")}, QStringLiteral("The PNG's scale, 0.1 to 8 (default 1)."),
              QStringLiteral("Z"));
  if (auto fin = a.Lee(args, 1, 1000)) return *fin;
  const QString salida = a.Valor(QStringLiteral("o"));
  if (const QString porque = TipoDeSalida(salida, true); !porque.isEmpty())
    return Usage(QStringLiteral("render"), porque);
  const std::optional<double> zoom = Zoom(a);
  if (!zoom) return Usage(QStringLiteral("render"), QStringLiteral("--zoom takes a number from 0.1 to 8"));

  QStringList ficheros;
  for (const QString& nombre : a.Posicionales()) {
    if (!QFileInfo(nombre).isDir()) {
      ficheros << nombre;
      continue;
    }
    const QDir carpeta(nombre);
    const QStringList cols = carpeta.entryList({QStringLiteral("*.col"), QStringLiteral("*.COL")},
                                               QDir::Files, QDir::Name | QDir::IgnoreCase);
    if (cols.isEmpty()) return Error(QStringLiteral("%1: there are no worksheets in this folder").arg(nombre));
    for (const QString& c : cols) ficheros << carpeta.filePath(c);
  }
  const bool pdf = salida.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive);
  if (ficheros.size() > 1 && !pdf)
    return Usage(QStringLiteral("render"), QStringLiteral("several worksheets go into one PDF: -o OUT.pdf"));

  // Every worksheet is read before anything is written.
  Trabajo t;
  std::vector<ss::Documento> hojas;
  std::vector<std::pair<std::size_t, int>> paginas;  // worksheet and its page, in order
  for (const QString& f : ficheros) {
    if (!t.Carga(f)) return 1;
    t.AvisaCortes();
    for (int p = 1; p <= t.doc.numPaginas; ++p) paginas.emplace_back(hojas.size(), p);
    hojas.push_back(t.doc);
  }
  const int total = static_cast<int>(paginas.size());
  const ss::PintaPagina pinta = [&](int k, ss::Canvas& canvas) {
    const auto& [hoja, pagina] = paginas[static_cast<std::size_t>(k - 1)];
    ss::PintaPaginaHoja(t.motor, canvas, hojas[hoja], pagina);
  };
  QString fallo;
  if (!(pdf ? ss::EscribePdf(salida, total, pinta, &fallo) : ss::EscribePngs(salida, *zoom, total, pinta, &fallo)))
    return Error(fallo);
  QJsonObject hecho{{QStringLiteral("pages"), total}};
  if (ficheros.size() > 1) hecho[QStringLiteral("worksheets")] = static_cast<int>(ficheros.size());
  ImprimeJson(QJsonDocument(hecho), QJsonDocument::Compact);
  return 0;
}

int ComandoGroup(const QStringList& args) {
  Argumentos a("group",
               QStringLiteral(
                   "Makes a worksheet for every student of a list, as the desktop program does:\n"
                   "each copy carries \"Student: \" and the name below the title, gets new numbers\n"
                   "in the chosen problems (all unless told) and is saved in FOLDER as NAME.col.\n"
                   "The list is a text file, one name a line (UTF-8 or Windows-1252). Prints\n"
                   "{\"students\": N, \"files\": [...]}."));
  a.Posicional(QStringLiteral("FILE.col"), QStringLiteral("The worksheet to copy."))
      .Opcion({QStringLiteral("students")}, QStringLiteral("The list of students."), QStringLiteral("LIST.txt"))
      .Opcion({QStringLiteral("problems")},
              QStringLiteral("The problems that differ between students, as numbered from 1 in the\n"
                             "worksheet's order: 1,3-5; \"none\" for none; all when not given."),
              QStringLiteral("P"))
      .Opcion({QStringLiteral("seed")}, QStringLiteral("Makes the new numbers repeatable."), QStringLiteral("N"))
      .Opcion({QStringLiteral("o")}, QStringLiteral("The folder for the copies; made when missing."),
              QStringLiteral("FOLDER"));
  if (auto fin = a.Lee(args, 1, 1)) return *fin;
  const QString lista = a.Valor(QStringLiteral("students")), carpeta = a.Valor(QStringLiteral("o"));
  if (lista.isEmpty()) return Usage(QStringLiteral("group"), QStringLiteral("--students LIST.txt is required"));
  if (carpeta.isEmpty()) return Usage(QStringLiteral("group"), QStringLiteral("-o FOLDER is required"));
  std::optional<uint64_t> seed;
  if (a.Esta(QStringLiteral("seed")) && !(seed = Semilla(a.Valor(QStringLiteral("seed")))))
    return Usage(QStringLiteral("group"), QStringLiteral("--seed takes a whole number"));

  Trabajo t(seed);
  if (!t.Carga(a.Posicionales()[0])) return 1;
  const std::size_t problemas = t.doc.col.problemas.size();
  std::vector<bool> distintos(problemas, true);
  if (a.Esta(QStringLiteral("problems"))) {
    const QString elegidos = a.Valor(QStringLiteral("problems")).trimmed();
    std::fill(distintos.begin(), distintos.end(), false);
    if (elegidos.compare(QStringLiteral("none"), Qt::CaseInsensitive) != 0) {
      std::vector<ss::Tramo> tramos;
      if (ss::LeeIntervalo(elegidos.toStdString(), static_cast<int>(problemas), tramos) != ss::FalloPaginas::Ninguno)
        return Usage(QStringLiteral("group"),
                     QStringLiteral("--problems takes numbers and ranges from 1 to %1, such as 1,3-5").arg(problemas));
      for (const ss::Tramo& tramo : tramos)
        for (int k = tramo.first; k <= tramo.second; ++k) distintos[static_cast<std::size_t>(k - 1)] = true;
    }
  }

  QFile fichero(lista);
  if (QFileInfo(lista).isDir() || !fichero.open(QIODevice::ReadOnly))
    return Error(QStringLiteral("%1: the list of students cannot be read (%2)")
                     .arg(lista, QFileInfo(lista).isDir() ? QStringLiteral("it is a folder") : fichero.errorString()));
  const std::vector<QString> alumnos = ss::LeeListaAlumnos(fichero.read(ss::kMaxTamanoColeccion));
  if (alumnos.empty()) return Error(QStringLiteral("%1: the list of students holds no name").arg(lista));
  if (!QDir().mkpath(carpeta)) return Error(QStringLiteral("%1: the folder cannot be made").arg(carpeta));

  const ss::GrupoHecho hecho = ss::HazGrupo(t.s, {alumnos, distintos, carpeta}, {});
  for (const std::string& aviso : t.plataforma.avisos) Aviso(DeCp1252(aviso));
  QJsonArray nombres;
  for (const QString& f : hecho.ficheros) nombres.append(f);
  ImprimeJson(QJsonDocument(QJsonObject{{QStringLiteral("students"), static_cast<int>(alumnos.size())},
                                        {QStringLiteral("files"), nombres}}),
              QJsonDocument::Compact);
  return hecho.fallidos > 0 ? 1 : 0;
}

int ComandoInfo(const QStringList& args) {
  Argumentos a("info",
               QStringLiteral(
                   "Prints a worksheet file as one JSON object: \"header\" with the header fields by\n"
                   "their names (TITULO, POSSOL, ORDENA ...), \"pages\", and \"problems\" in the\n"
                   "worksheet's order, each with \"module\", \"command\", the six numbers of the\n"
                   "command (Rutina, Semilla, NumVariante, Cantidad, Total, Orden), \"statement\"\n"
                   "and \"solution\" (markup, UTF-8)."));
  a.Posicional(QStringLiteral("FILE.col"), QStringLiteral("The worksheet file."));
  if (auto fin = a.Lee(args, 1, 1)) return *fin;
  Trabajo t;
  if (!t.Carga(a.Posicionales()[0])) return 1;
  const ss::ColeccionCab& c = t.doc.col.cab;
  const QJsonObject cabecera{
      {"PAGINI", c.PAGINI},        {"POSNUMPAG", c.POSNUMPAG},      {"NPROB", c.NPROB},
      {"COLRESPRO", c.COLRESPRO},  {"PROPRE", DeCp1252(c.PROPRE)},  {"PROSUF", DeCp1252(c.PROSUF)},
      {"PROINI", c.PROINI},        {"POSSOL", c.POSSOL},            {"PRETIT", DeCp1252(c.PRETIT)},
      {"TITULO", DeCp1252(c.TITULO)}, {"POSTI1", DeCp1252(c.POSTI1)}, {"POSTI2", DeCp1252(c.POSTI2)},
      {"ORDENA", c.ORDENA != 0}};
  t.AvisaCortes();
  std::vector<bool> cortado(t.doc.col.problemas.size() + 1);
  for (int b : t.doc.cortados) cortado.at(t.doc.bloques.at(static_cast<std::size_t>(b - 1)).Origen) = true;
  QJsonArray problemas;
  int n = 0;
  for (const ss::Problema& p : t.doc.col.problemas)
    problemas.append(QJsonObject{{"module", DeCp1252(p.Modulo)},
                                 {"cut", static_cast<bool>(cortado.at(static_cast<std::size_t>(++n)))},
                                 {"command", DeCp1252(ss::ComandoProblema(p))},
                                 {"Rutina", p.Rutina},
                                 {"Semilla", p.Semilla},
                                 {"NumVariante", p.NumVariante},
                                 {"Cantidad", p.Cantidad},
                                 {"Total", p.Total},
                                 {"Orden", p.Orden},
                                 {"statement", DeCp1252(p.Enunciado)},
                                 {"solution", DeCp1252(p.Solucion)}});
  ImprimeJson(QJsonDocument(QJsonObject{{"header", cabecera},
                                        {"pages", t.doc.numPaginas},
                                        {"problems", problemas}}),
              QJsonDocument::Indented);
  return 0;
}

}  // namespace cli
