// The user's settings: one per-user store of text values by section and key.
// Keys are read without regard to case. Notation settings are never written
// into a problem: the typesetter reads them when it draws, so a change shows
// at once on every worksheet, old ones too.
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "problems/idioma.h"
#include "typeset/markup.h"

namespace ss {

// The store: read and write text by section and key.
class Almacen {
 public:
  virtual ~Almacen() = default;
  virtual std::optional<QString> Lee(const QString& seccion, const QString& clave) const = 0;
  virtual void Escribe(const QString& seccion, const QString& clave, const QString& valor) = 0;
  QString Lee(const QString& seccion, const QString& clave, const QString& defecto) const;
};

// The per-user store of the desktop (an INI file under the user's config folder).
class AlmacenUsuario final : public Almacen {
 public:
  AlmacenUsuario();  // organisation "Lumenfold", application "Sheetsmith - Chemistry"
  explicit AlmacenUsuario(const QString& ficheroIni);  // a file of one's own (tests, tools)
  std::optional<QString> Lee(const QString& seccion, const QString& clave) const override;
  void Escribe(const QString& seccion, const QString& clave, const QString& valor) override;

 private:
  std::unique_ptr<QSettings> s_;
};

// A store in memory: nothing is kept after the run.
class AlmacenMemoria final : public Almacen {
 public:
  std::optional<QString> Lee(const QString& seccion, const QString& clave) const override;
  void Escribe(const QString& seccion, const QString& clave, const QString& valor) override;

 private:
  std::map<QString, QString> valores_;  // "SECTION/KEY" upper-cased
};

// Every setting, as the program uses it. Texts that are drawn are Windows-1252.
struct Ajustes {
  // Start and window.
  bool mostrarPanelInicio = true;       // INI_WIN/SHOW
  bool botonesEdicion = false;          // Ver/EdicBotones
  QString ultimaCarpeta;                // LastPath/Path
  QString sysedu;                       // SYSEDU/cmbtext: the education system's file name
  QStringList recientesTitulo, recientesArchivo;  // Reciente, slots 1..9

  // Notation.
  std::string decimal = ".";            // SEPA/DEC
  std::string lista = ",";              // SEPA/LIS
  std::string intervaloAbre = "(";      // INTERV/LEFT_OPEN ("]" pairs with "[")
  std::string intervaloCierra = ")";
  std::string desviacion = "&sigma";    // STAT/StDesv
  std::string frecuencia = "n";         // STAT/Abfreq
  std::string notacionCientifica = "\xD7" "10";  // SCIENT/NOTAT
  std::string producto = "\xD7";        // PRODUCTO/PRIMARY
  std::string division = ":";           // DIVISION/PRIMARY (the store's default is "÷")
  std::string moneda = "$";             // CURRENCY/SYMBOL
  std::string monedaNombre = "dollar";  // CURRENCY/NOMSIN
  std::string monedaPlural = "dollars"; // CURRENCY/NOMPLU
  int signosEspejo[4] = {-1, -1, -1, -1};  // OPT_GEO_ESP/POS_OBJ, POS_IMG, POS_FOC, POS_RAD
  int signosLente[4] = {-1, 1, 1, 1};      // OPT_GEO_LEN/...

  // Defaults of a new worksheet (the wizard).
  bool ordena = true;                   // Wizard/Ordena
  int solpos = 3;                       // Wizard/Solpos
  std::string propre;                   // Wizard/Propre
  std::string prosuf = ")";             // Wizard/Prosuf
  int pagpos = 11;                      // Wizard/Pagpos
  int procol = 16777215;                // Wizard/Procol
  std::string asignatura;               // Wizard/Asignatura
  bool showini = true;                  // Wizard/Showini
  bool showavan = false;                // Wizard/Showavan
  bool chkPretit = true, chkPosti1 = true, chkPosti2 = true;  // Wizard/Chkpretit ...
  std::string pretit, posti1, posti2;   // Wizard/Pretit ...
};

// The settings as stored, over the built-in values and the defaults of the
// main window's language file (DefaultDecimalSeparator and the like).
Ajustes LeeAjustes(const Almacen& almacen, TextosVentana& textosMain);

// What the typesetter's replacement codes stand for under these settings;
// `mensajes` gives the words of "&sen" and "&and".
Reemplazos ReemplazosDe(const Ajustes& a, FuenteMensajes* mensajes = nullptr);

// What the wizard stores each time it closes.
void GuardarAjustesAsistente(const Ajustes& a, Almacen& almacen);

// An education system on offer: its file name and its caption.
struct SistemaEducativo {
  QString fichero;  // e.g. "Secondary.sed"; empty for the "<None>" entry
  QString nombre;   // its <NOMSYS> name, or the file name when that is empty
};

// The systems of the program folder, sorted by file name (at most 99), and
// last the entry for none, captioned "<" + the text of NoneSYSEDU + ">".
// Empty when the folder has no .sed file: the menu is then hidden.
std::vector<SistemaEducativo> SistemasEducativos(const QString& carpetaPrograma,
                                                 TextosVentana& textosMain);

// Chooses a system (empty: none) and stores it. The caller then reloads the
// subject texts and empties the catalogue.
void EligeSistema(Ajustes& a, Almacen& almacen, const QString& fichero);

}  // namespace ss
