#include "worksheet/edicion.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "problems/aleatorio.h"
#include "problems/texto.h"
#include "typeset/motor.h"
#include "worksheet/armado.h"
#include "worksheet/colfile.h"

namespace ss {

namespace {

constexpr std::string_view kEtiqueta = "GENPROB:NPROB=001:";
constexpr std::size_t kModulo = 80, kComando = 16;

bool Listo(const Documento& doc) {
  return !doc.bloques.empty() && !doc.col.problemas.empty() && doc.AppBusy <= 0;
}

// The one selected problem of a worksheet ready for a command, or 0.
int Uno(const Documento& doc) { return Listo(doc) ? ProblemaSeleccionado(doc) : 0; }

int NumProblemas(const Documento& doc) { return static_cast<int>(doc.col.problemas.size()); }

// New numbers for a problem: the variant counter first, then the first counter.
void Sortea(Sesion& s, Problema& p) {
  s.gen.rnd.Resembrar();
  p.NumVariante = static_cast<int16_t>(std::floor(s.gen.rnd.Siguiente() * 9000));
  p.Semilla = static_cast<int16_t>(std::floor(s.gen.rnd.Siguiente() * 900));
}

}  // namespace

// ---- the selection ------------------------------------------------------------

int Seleccionadas(const Documento& doc) {
  return static_cast<int>(std::count_if(doc.marcas.begin(), doc.marcas.end(),
                                        [](const MarcaPagina& m) { return m.Seleccionada; }));
}

int ProblemaSeleccionado(const Documento& doc) {
  if (Seleccionadas(doc) != 1) return 0;
  for (const MarcaPagina& m : doc.marcas) {
    if (!m.Seleccionada) continue;
    if (m.MarcaNumero < 1 || m.MarcaNumero > static_cast<int>(doc.bloques.size())) return 0;
    const int i = std::abs(doc.bloques[static_cast<std::size_t>(m.MarcaNumero - 1)].Problema);
    return i >= 1 && i <= NumProblemas(doc) ? i : 0;
  }
  return 0;
}

double LimiteEdicion() { return 12.15 * 16 / 25.4 * 1440; }

void QuitaSeleccion(Documento& doc) {
  for (MarcaPagina& m : doc.marcas) m.Seleccionada = false;
}

bool ClicEnPagina(Documento& doc, double x, double y) {
  if (doc.marcas.empty() || doc.col.problemas.empty()) return false;
  if (x >= LimiteEdicion()) {
    const bool habia = Seleccionadas(doc) > 0;
    QuitaSeleccion(doc);
    return habia;
  }
  for (MarcaPagina& m : doc.marcas) {
    if (!(m.MarcaArriba <= y && y <= m.MarcaAbajo)) continue;
    const bool estaba = m.Seleccionada;
    QuitaSeleccion(doc);
    m.Seleccionada = !estaba;
    return true;
  }
  return false;
}

EstadoEdicion Estado(const Documento& doc) {
  EstadoEdicion e;
  e.deshacer = doc.deshacerValido && doc.AppBusy <= 0;
  e.rehacer = doc.rehacerValido && doc.AppBusy <= 0;
  if (!Listo(doc) || Seleccionadas(doc) == 0) return e;
  const int i = ProblemaSeleccionado(doc);
  e.sobreSeleccion = true;
  e.alPrincipio = i != 1;
  e.alFinal = i != NumProblemas(doc);
  e.pegarSimilar = NumProblemas(doc) < kMaxProblemas;
  return e;
}

// ---- the clipboard --------------------------------------------------------------

std::string TextoPortapapeles(const Problema& p) {
  std::string modulo = p.Modulo.substr(0, std::min(p.Modulo.size(), kModulo));
  modulo.resize(kModulo, ' ');
  return std::string(kEtiqueta) + modulo + ComandoProblema(p) + "#ENU(" + p.Enunciado + "#ENU)" + "#SOL(" +
         p.Solucion + "#SOL)";
}

std::optional<Problema> LeePortapapeles(std::string_view texto) {
  if (!texto.starts_with(kEtiqueta)) return std::nullopt;
  const std::string_view resto = texto.substr(kEtiqueta.size());
  if (resto.size() < kModulo + kComando) return std::nullopt;
  // The module and the command, read as a row of the worksheet file's table.
  std::string fila(resto.substr(0, kModulo + kComando));
  fila.resize(102, ' ');
  std::vector<Problema> leido = LeerProparam(fila);
  if (leido.size() != 1) return std::nullopt;
  // "#ENU(" statement "#ENU)" "#SOL(" solution "#SOL)", split at the first "#SOL(".
  const std::string_view par = resto.substr(kModulo + kComando);
  if (!par.starts_with("#ENU(") || !par.ends_with("#SOL)")) return std::nullopt;
  const std::size_t sol = par.find("#SOL(");
  if (sol == std::string_view::npos || sol < 10 || par.substr(sol - 5, 5) != "#ENU)" ||
      sol + 10 > par.size())
    return std::nullopt;
  Problema p = std::move(leido.front());
  p.Enunciado = std::string(par.substr(5, sol - 10));
  p.Solucion = std::string(par.substr(sol + 5, par.size() - sol - 10));
  return p;
}

// ---- undo and redo ----------------------------------------------------------------

void SetUNDOTexto(Sesion& s, std::string accion) {
  Documento& doc = s.doc;
  doc.rehacerValido = false;
  doc.accionRehacer.clear();
  if (accion.empty()) {
    doc.deshacerValido = false;
    doc.accionDeshacer.clear();
    return;
  }
  doc.deshacer = doc.col;
  doc.deshacerValido = true;
  doc.accionDeshacer = std::move(accion);
}

void SetUNDO(Sesion& s, std::string_view clave) {
  SetUNDOTexto(s, clave.empty() ? std::string() : s.textos.GetL_win(clave, true));
}

void Deshacer(Sesion& s) {
  Documento& doc = s.doc;
  if (doc.AppBusy > 0 || !doc.deshacerValido) return;
  doc.rehacer = doc.col;
  if (doc.deshacer.cab.NPROB == 0 || doc.deshacer.problemas.empty()) {
    // There was no worksheet before the change.
    NoColeccion(s);
    return;
  }
  doc.col = doc.deshacer;
  // The action's words come back behind one blank, as the Redo entry shows them.
  const std::string accion = " " + std::string(LTrim(doc.accionDeshacer));
  ArmarBloques(s, 0);
  SetUNDOTexto(s, {});
  doc.rehacerValido = true;
  doc.accionRehacer = accion;
}

void Rehacer(Sesion& s) {
  Documento& doc = s.doc;
  if (doc.AppBusy > 0 || !doc.rehacerValido) return;
  Coleccion otra = std::move(doc.rehacer);
  SetUNDOTexto(s, doc.accionRehacer);
  doc.col = std::move(otra);
  ArmarBloques(s, 0);
}

// ---- the commands -------------------------------------------------------------------

bool MoverProblema(Coleccion& col, int desde, int hasta) {
  const int n = static_cast<int>(col.problemas.size());
  if (desde == hasta || desde < 1 || desde > n || hasta < 1 || hasta > n) return false;
  auto& v = col.problemas;
  if (hasta > desde)
    std::rotate(v.begin() + desde - 1, v.begin() + desde, v.begin() + hasta);
  else
    std::rotate(v.begin() + hasta - 1, v.begin() + desde - 1, v.begin() + desde);
  return true;
}

std::optional<std::string> Copiar(Sesion& s) {
  const int i = Uno(s.doc);
  if (i == 0) return std::nullopt;
  return TextoPortapapeles(s.doc.col.problemas[static_cast<std::size_t>(i - 1)]);
}

bool Borrar(Sesion& s) {
  Documento& doc = s.doc;
  int i = Uno(doc);
  if (i == 0) return false;
  SetUNDO(s, "Edit_Del");
  doc.col.problemas.erase(doc.col.problemas.begin() + (i - 1));
  doc.col.cab.NPROB = NumProblemas(doc);
  if (doc.col.problemas.empty()) {
    NoColeccion(s);
    return true;
  }
  i = std::min(i, NumProblemas(doc));
  ArmarBloques(s, i);
  return true;
}

bool Mover(Sesion& s, int como) {
  Documento& doc = s.doc;
  const int i = Uno(doc);
  if (i == 0 || como < 0 || como > 3) return false;
  static constexpr std::array<const char*, 4> claves = {"Edit_MoveBEG", "Edit_MoveEND", "Edit_MoveUP",
                                                         "Edit_MoveDOWN"};
  const int destino = std::array<int, 4>{1, NumProblemas(doc), i - 1, i + 1}[static_cast<std::size_t>(como)];
  SetUNDO(s, claves[static_cast<std::size_t>(como)]);
  if (!MoverProblema(doc.col, i, destino)) return false;
  ArmarBloques(s, destino);
  return true;
}

Pegado Pegar(Sesion& s, std::string_view texto) {
  Documento& doc = s.doc;
  if (!Listo(doc) || NumProblemas(doc) + 1 > kMaxProblemas) return Pegado::Nada;
  std::optional<Problema> p = LeePortapapeles(texto);
  if (!p) return Pegado::NoEsProblema;
  // With nothing selected the problem goes to the very front.
  const int donde = std::max(1, ProblemaSeleccionado(doc));
  SetUNDO(s, "Edit_Paste");
  doc.col.problemas.insert(doc.col.problemas.begin() + (donde - 1), std::move(*p));
  doc.col.cab.NPROB = NumProblemas(doc);
  ArmarBloques(s, donde);
  return Pegado::Hecho;
}

bool PegarSimilar(Sesion& s) {
  Documento& doc = s.doc;
  const int i = Uno(doc);
  if (i == 0 || NumProblemas(doc) >= kMaxProblemas) return false;
  SetUNDO(s, "Edit_PasteSimPro");
  auto& v = doc.col.problemas;
  v.insert(v.begin() + (i - 1), v[static_cast<std::size_t>(i - 1)]);
  doc.col.cab.NPROB = NumProblemas(doc);
  Problema& clon = v[static_cast<std::size_t>(i - 1)];
  Sortea(s, clon);
  RecrearProblema(s, clon, i, true);
  return true;
}

bool RecrearEste(Sesion& s) {
  Documento& doc = s.doc;
  const int i = Uno(doc);
  if (i == 0) return false;
  SetUNDO(s, "Edit_ReCreatePro");
  Problema& p = doc.col.problemas[static_cast<std::size_t>(i - 1)];
  Sortea(s, p);
  RecrearProblema(s, p, i, true);
  return true;
}

bool RecrearTodo(Sesion& s) {
  if (!Listo(s.doc)) return false;
  SetUNDO(s, "Worksheet_ReCreate");
  RecrearColeccion(s);
  return true;
}

bool PonPosicionSoluciones(Sesion& s, int possol) {
  Documento& doc = s.doc;
  if (!Listo(doc) || possol < 0 || possol > 3 || doc.col.cab.POSSOL == possol) return false;
  static constexpr std::array<const char*, 4> claves = {"Worksheet_NoSol", "Worksheet_SolAfter",
                                                         "Worksheet_SolEnd", "Worksheet_SolPag"};
  SetUNDO(s, claves[static_cast<std::size_t>(possol)]);
  doc.col.cab.POSSOL = possol;
  ArmarBloques(s, 0);
  return true;
}

}  // namespace ss
