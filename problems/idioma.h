// Language files: every word a user reads lives in lang/*.lmo beside the
// program, one "[Key]=Text" entry a line, lines ended by CR LF. The files are
// kept as UTF-8 and read as Windows-1252 text.
//
//   ENG_MGE_QUI.lmo (and FIS, MAT)  message tables: statements, catalogue names
//   ENG_WIN_<CODE>.lmo              the texts of one window (MAI, WIZ, PRI, INO, SEF)
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "problems/mensajes.h"

namespace ss {

// A data file the program cannot go on with: a message line with "[" but no
// "]=", a subject file without its subject's name. The program reports it
// (naming the file and the line) and ends.
class ErrorFatalDatos : public std::runtime_error {
 public:
  ErrorFatalDatos(const std::filesystem::path& fichero, int linea, const std::string& que);
  const std::filesystem::path& fichero() const { return fichero_; }
  int linea() const { return linea_; }

 private:
  std::filesystem::path fichero_;
  int linea_;
};

// Notices for the user about data (the "<Space at right>" slip, an unknown
// table code). The desktop program shows a message box; tools print a line.
using Aviso = std::function<void(const std::string& texto)>;

// `nombre` in `carpeta`: the exact name, else one that differs only in case.
std::optional<std::filesystem::path> BuscaFichero(const std::filesystem::path& carpeta,
                                                  std::string_view nombre);

// The lines of a language file, split at CR LF only (a lone LF is text) and
// converted to Windows-1252; nothing when the file cannot be read.
std::optional<std::vector<std::string>> LeeLineasLmo(const std::filesystem::path& fichero);

// The three message tables of a program folder, loaded on first need.
class Mensajes final : public FuenteMensajes {
 public:
  explicit Mensajes(std::filesystem::path carpetaPrograma, Aviso aviso = {});

  // Loads lang/ENG_MGE_<code>.lmo into the table of the code's first letter
  // (M, F or Q). A missing file leaves the table unloaded; a line with "["
  // but without "]=" throws ErrorFatalDatos.
  void LoadMGE(std::string_view code);
  bool Cargada(TablaMensajes t) const { return tabla(t).cargada; }
  std::size_t Entradas(TablaMensajes t) const { return tabla(t).textos.size(); }

  const std::string* Buscar(TablaMensajes t, std::string_view key) override;

 private:
  struct Tabla {
    bool cargada = false;
    std::unordered_map<std::string, std::string> textos;  // upper-cased key -> text
  };
  Tabla& tabla(TablaMensajes t) { return tablas_[static_cast<int>(t)]; }
  const Tabla& tabla(TablaMensajes t) const { return tablas_[static_cast<int>(t)]; }

  std::filesystem::path carpeta_;
  Aviso aviso_;
  Tabla tablas_[3];
};

// The texts of one window class, loaded on first use.
class TextosVentana {
 public:
  TextosVentana(std::filesystem::path carpetaPrograma, std::string code);

  // Reads lang/ENG_WIN_<code>.lmo. A missing file leaves every text blank; a
  // line with "[" but no "]", or no "=" after it, ends the reading and drops
  // what was read.
  void LoadIdioma();
  // The text of `key` with each "%CRLF%" made a line break and, when asked,
  // every "&" (menu accelerator) removed; empty when unknown.
  std::string GetL_win(std::string_view key, bool stripAmpersands = false);
  bool Cargado() const { return cargado_; }

 private:
  std::filesystem::path carpeta_;
  std::string code_;
  bool cargado_ = false;
  std::unordered_map<std::string, std::string> textos_;
};

// How numbers and signs are written; set to these defaults at start, then
// replaced by the user's stored settings.
struct Notacion {
  std::string separadorDecimal = ".";
  std::string separadorLista = ",";
  std::string multiplicadorCientifico = "\xD7" "10";
  std::string intervaloAbre = "(";
  std::string intervaloCierra = ")";
  std::string simboloFrecuencia = "n";
  std::string desviacionTipica = "&sigma";
  std::string moneda = "$";
  std::string monedaNombre = "dollar";
  std::string monedaPlural = "dollars";
  std::string signoDivision = ":";
  std::string signoProducto = "\xD7";
  std::string idioma = "ENG";
  std::string primerModulo = "<QUI>";
  int signosOpticos[8] = {-1, -1, -1, -1, -1, 1, 1, 1};
};

// Start-up of the services: the notation defaults, then the message tables
// MAT, FIS and QUI, in that order.
void InitServicios(Notacion& notacion, Mensajes& mensajes);

}  // namespace ss
