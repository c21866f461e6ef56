// The worksheet in memory: its header, its problems, the topic tree the
// wizard asks with, and the derived blocks and page marks.
//
// A problem is kept twice over: as its finished text and as the recipe that
// makes it again (module name plus the sixteen-digit command).
#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace ss {

class Aleatorio;

inline constexpr int kMaxProblemas = 500;
inline constexpr int kMaxBloques = 1024;
inline constexpr int kMaxMarcas = 500;
inline constexpr int16_t kVerdadero = -1;  // a stored flag's true

struct ColeccionCab {
  int32_t PAGINI = 1;            // number printed on the first page
  int32_t POSNUMPAG = 0;         // 0 none; bit 8 at the foot; low three bits the place
  int32_t NPROB = 0;             // number of problems, 0..500
  int32_t COLRESPRO = 16777215;  // background of the problem label, 0xBBGGRR
  std::string PROPRE;            // before each problem number
  std::string PROSUF;            // after each problem number
  int32_t PROINI = 1;            // number of the first problem
  int32_t POSSOL = 0;            // 0 none, 1 after each, 2 together at the end, 3 on a page of their own
  std::string PRETIT;            // line above the title
  std::string TITULO;
  std::string POSTI1;            // first line below the title
  std::string POSTI2;            // second line below the title
  int16_t ORDENA = 0;            // -1: keep topic order; 0: shuffle at creation
};

struct Problema {
  std::string Modulo;            // e.g. "ANEU_QUIM_DIS", at most 80 characters
  int16_t Rutina = 0;            // generator number in the module
  int16_t Semilla = 0;           // first counter, starts below 900
  int16_t Total = 0;             // problems of this tree item in the worksheet
  int16_t Orden = 0;             // which of those, from 1
  int16_t Cantidad = 0;          // items in one exercise
  int16_t NumVariante = 0;       // variant counter, starts below 9000
  std::string Enunciado;         // statement, markup
  std::string Solucion;          // solution, markup
};

// The sixteen-digit command of a problem: generator (3), first counter (3),
// variant (4), items (2), amount (2), index (2); each written with leading
// zeros and cut to its last digits.
std::string ComandoProblema(const Problema& p);

struct Coleccion {
  ColeccionCab cab;
  std::vector<Problema> problemas;  // cab.NPROB is kept equal to its size
};

// One row of the wizard's topic tree.
struct ArbolItem {
  int16_t Nivel = 0;         // 0 root, 1 topic, 2 item
  bool EsRama = false;       // root and topic rows can be opened
  bool Abierto = false;
  std::string Nombre;
  std::string Ayuda;         // description, beginning with a difficulty code
  int16_t Rutina = 0;
  std::string ModuloFijo;    // module name, blank-padded to 80
  bool Marcado = false;
  int16_t Cantidad1 = 0;     // problems asked for
  int16_t Cantidad2 = 0;     // items in each exercise
  int16_t MaxCantidad2 = 0;
  int16_t Indice = 0;        // source row in the wizard's list
  int16_t Tipo = 0;          // 1 question, 2 exercise, 3 problem, 4 theory, 5 topic, 6 root
};

// Rows 1..Count(); row 0 stays empty and row 1 is the root.
struct Arbol {
  std::vector<ArbolItem> filas = std::vector<ArbolItem>(1);
  int Count() const { return static_cast<int>(filas.size()) - 1; }
  ArbolItem& Agrega(ArbolItem fila);  // appends a row and returns it
};

// One unit of page text, derived from the problems and never stored.
struct Bloque {
  std::string Texto;   // begins with its mark
  int32_t Pagina = 0;  // from 1; 0 not placed yet
  int32_t Problema = 0;  // > 0 statement of that problem; < 0 a solution block
  int32_t Origen = 0;    // the problem (from 1) whose text the block holds
};

// One selectable strip of the page on screen.
struct MarcaPagina {
  double MarcaArriba = 0;
  double MarcaAbajo = 0;
  bool Seleccionada = false;
  int32_t MarcaNumero = 0;  // the block it belongs to
};

// Turns the marked rows of the tree into problems, in tree order. A row
// counts only when it is marked and asks for at least one problem; any other
// row is cleared. The first problem of a row draws its counters (900 and 9000
// wide); the following ones count on from them.
void Arbol_to_Var(Arbol& arbol, Coleccion& col, Aleatorio& rnd);

// The one open worksheet of the process, with what goes with it.
struct Documento {
  Coleccion col;
  std::vector<Bloque> bloques;
  std::vector<MarcaPagina> marcas;
  QString ruta;              // the file, empty for a worksheet that has none
  int paginaActual = 1;
  int numPaginas = 0;
  std::vector<int> cortados;  // blocks (from 1) taller than a page, each cut on a page of its own
  bool Modificada = false;   // differs from its file
  int AppBusy = 0;           // jobs running that let events through; > 0 means busy

  // One step of undo and one of redo: whole copies of the worksheet (header
  // and problems, texts included), and the words of the action each one
  // takes back or does again, as the Edit menu shows them.
  Coleccion deshacer, rehacer;
  bool deshacerValido = false, rehacerValido = false;
  std::string accionDeshacer, accionRehacer;
};

}  // namespace ss
