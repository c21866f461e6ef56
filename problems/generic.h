// Making problems: the generator context, the module dispatchers and the
// catalogue of everything that can be made.
//
// A problem is named by its module and a sixteen-digit command:
//   columns 1-3 generator, 4-6 first counter, 7-10 variant, 11-12 items,
//   13-14 amount, 15-16 index.
// GeneraProblema turns that pair into a statement and a solution in markup;
// ListaProblemas asks every generator, in list mode, for its catalogue entry.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "problems/aleatorio.h"
#include "problems/generador.h"
#include "problems/mensajes.h"

namespace ss {

class Silabo;

// The state shared by a dispatcher and its generators. Each call overwrites
// it; one context serves one problem at a time.
struct GenContext {
  explicit GenContext(FuenteMensajes* mensajes = nullptr, Aleatorio rnd = Aleatorio());
  GenContext(const GenContext&) = delete;
  GenContext& operator=(const GenContext&) = delete;

  // Written by the dispatcher.
  bool GP_ListMode = false;
  std::string GP_Case;             // columns 1-3 as they stand
  int32_t GP_SeqA = 0;             // columns 4-6
  int32_t GP_SeqB = 0;             // columns 7-10: the variant counter
  int32_t GP_Items = 0;            // columns 11-12
  double GP_Amount = 0;            // columns 13-14
  double GP_Index = 0;             // columns 15-16
  bool GP_MsgFound = true;         // cleared by any failed lookup
  std::string GP_ThemeName;        // list mode: the text of GP_ThemeKey
  std::string GP_SubName;          // the text of S_<code>_<n>
  std::string GP_Description;      // list mode: the text of D_<code>_<n>

  // Written by the generator.
  std::string GP_Statement;
  std::string GP_Solution;
  std::string GP_Level;            // "2" exercise, "3" problem
  std::string GP_AsigName;         // the subject's name (key Asig)
  std::string GP_ThemeOrd;         // topic ordinal, e.g. "760"
  std::string GP_ThemeKey;         // topic key, e.g. "T_Gases"
  std::string GP_SubOrd;           // subtopic ordinal within the topic
  std::string GP_MaxItems;         // exercises: the most items the generator gives

  Aleatorio rnd;                   // the one random source
  FuenteMensajes* mensajes;        // never null
  Silabo* silabo = nullptr;        // the chosen education system, or none

  // Lookups in the message tables, with the "@@" choice; a missing key (or
  // table) gives empty text and clears GP_MsgFound.
  std::string MsgQUI(std::string_view key, int selector = -1);
  std::string MsgFIS(std::string_view key, int selector = -1);
  std::string MsgMAT(std::string_view key, int selector = -1);

 private:
  std::string Msg(TablaMensajes tabla, std::string_view key, int selector);
  SinMensajes sinMensajes_;
};

// One numbered routine of a module. Everything goes through the context.
using Generador = void (*)(GenContext&);

// A problem module: its generators 1..N (index 0 is generator 1; a null entry
// is a generator not written yet, which gives no text) and its fallback.
//
// A module with a table of catalogue entries (one per generator) has the
// dispatcher set each generator's entry from it: GP_MaxItems in both modes, the
// whole entry in list mode, where the generator itself is then not called.
// Without the table each generator sets its own entry (see EntradaCatalogo).
struct ModuloDef {
  std::string_view nombre;                        // "ANEU_QUIM_DIS"
  std::string_view codigo;                        // "DIS": the keys S_DIS_<n>, D_DIS_<n>
  std::span<const Generador> generadores;
  std::string_view respaldo;                      // "ATEM_QUIM_DIS"
  std::span<const Generador> generadoresRespaldo; // the fallback's own, if any
  std::span<const Entrada> entradas;              // empty, or one per generator
  int N() const { return static_cast<int>(generadores.size()); }
};

using TablaModulos = std::span<const ModuloDef* const>;

// Reads the command's columns into the context, clears the results and
// re-seeds the random source. Returns the generator number to run.
int ParseaComando(GenContext& g, std::string_view command);

// The dispatcher of a module. In list mode (command ignored) it returns the
// module's name, a colon and its catalogue records; otherwise it makes the
// problem the command names into statement and solution and returns "".
std::string ModuloDispatcher(const ModuloDef& m, GenContext& g, std::string_view command,
                             std::string& statement, std::string& solution, bool listMode);

// The fallback dispatcher of a module: its own generators, or the notice of a
// missing routine.
void RespaldoDispatcher(const ModuloDef& m, GenContext& g, std::string_view command,
                        std::string& statement, std::string& solution);

// The one way to make a problem. Never throws: an unknown module, a missing
// generator or a fault inside one comes back as markup in the statement.
void GeneraProblema(TablaModulos modulos, GenContext& g, std::string_view moduleName,
                    std::string_view command, std::string& statement, std::string& solution);

// The requested name upper-cased with the old module names replaced by
// today's (OKBR_CHEM -> ANEU_QUIM ...).
std::string NormalizaModulo(std::string_view name);

// Catalogue records: 400 characters each, ending in CR LF.
inline constexpr std::size_t kLargoRegistro = 400;

struct CamposRegistro {
  std::string ordTema, ordSubtema, asignatura, tema, subtema, nivel, generador, maxItems,
      descripcion;
};
std::string RegistroDetalle(const CamposRegistro& c);
std::string RegistroCabecera(const CamposRegistro& c);

// Empties `catalogo` and fills it with every record of every module, each as
// the module's name, a colon and the 400 characters of the record.
void ListaProblemas(TablaModulos modulos, GenContext& g, std::vector<std::string>& catalogo);

}  // namespace ss
