#include "worksheet/asistente.h"

#include <algorithm>
#include <cmath>

#include "problems/idioma.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss {
namespace {

struct Rgb {
  int r, g, b;
};

constexpr std::array<Rgb, kColoresPaleta> kPaleta = {{
    {255, 255, 255}, {224, 192, 192}, {255, 192, 192}, {192, 255, 224}, {192, 255, 192},
    {192, 192, 255}, {192, 255, 255}, {255, 192, 255}, {255, 224, 224}, {255, 255, 192},
    {255, 224, 192}, {192, 192, 192}, {255, 255, 224}, {255, 224, 255}, {192, 224, 255},
    {224, 224, 255}, {224, 224, 255}, {192, 224, 192}, {224, 255, 255}, {192, 224, 255},
    {224, 192, 255}, {192, 224, 224},
}};

// POSNUMPAG by alignment (left, centre, right, outside, inside) at the head;
// the foot adds 8.
constexpr std::array<int, 5> kPosNumPag = {2, 3, 1, 4, 5};

QString DeTexto(const std::string& s) { return QString::fromUtf8(Cp1252ToUtf8(s).c_str()); }

}  // namespace

int ColorPaleta(int i) {
  const Rgb& c = kPaleta.at(static_cast<std::size_t>(std::clamp(i, 0, kColoresPaleta - 1)));
  return c.r + 256 * c.g + 65536 * c.b;
}

int IndicePaletaEn(int x) {
  const int i = static_cast<int>(std::lround((x - 3) / static_cast<double>(kPasoPaleta)));
  return std::clamp(i, 0, kColoresPaleta - 1);
}

int IndiceDeColor(int color) {
  for (int i = 0; i < kColoresPaleta; ++i)
    if (ColorPaleta(i) == color) return i;
  return -1;
}

int PosNumPag(const LugarNumero& l) {
  if (!l.mostrar) return 0;
  return kPosNumPag[static_cast<std::size_t>(l.alineacion)] + (l.abajo ? 8 : 0);
}

LugarNumero LugarDe(int v) {
  LugarNumero l;
  l.mostrar = v != 0;
  l.abajo = v == 0 || (v & 8) != 0;
  const auto it = std::find(kPosNumPag.begin(), kPosNumPag.end(), v & 7);
  l.alineacion = it == kPosNumPag.end() ? Alineacion::Centro : static_cast<Alineacion>(it - kPosNumPag.begin());
  return l;
}

Rango RangoCantidad2(int maximo) {
  Rango r;
  r.hi = std::clamp(maximo, 1, 99);
  r.lo = std::min(2, r.hi);
  return r;
}

std::optional<int> LeeCantidad(std::string_view texto, Rango r) {
  const std::string_view t = Trim(texto);
  if (t.empty() || t.size() > 2 || !std::all_of(t.begin(), t.end(), [](char c) { return c >= '0' && c <= '9'; }))
    return std::nullopt;
  const int v = std::stoi(std::string(t));
  if (v < r.lo || v > r.hi) return std::nullopt;
  return v;
}

void DaCantidades(ArbolItem& fila) {
  if (fila.Cantidad1 <= 0) fila.Cantidad1 = 1;
  fila.Cantidad1 = static_cast<int16_t>(std::clamp<int>(fila.Cantidad1, kRangoCantidad1.lo, kRangoCantidad1.hi));
  if (fila.Tipo == 1 || fila.Tipo == 2) {
    const Rango r = RangoCantidad2(fila.MaxCantidad2);
    const int c2 = fila.Cantidad2 <= 0 ? 6 : fila.Cantidad2;
    fila.Cantidad2 = static_cast<int16_t>(std::clamp(c2, r.lo, r.hi));
  }
}

int Recuenta(const Arbol& arbol) {
  int total = 0;
  for (const ArbolItem& f : arbol.filas)
    if (f.Marcado) total += f.Cantidad1;
  return total;
}

int LeeNumeroInicial(std::string_view texto) {
  const std::string_view t = Trim(texto);
  if (t.empty() || t.size() > 9 || !std::all_of(t.begin(), t.end(), [](char c) { return c >= '0' && c <= '9'; }))
    return 1;
  const int v = std::stoi(std::string(t));
  return v == 0 ? 1 : v;
}

std::vector<int> FilasVisibles(const Arbol& arbol) {
  std::vector<int> visibles;
  // The open state of the nearest row above at each level.
  std::vector<bool> abierto;
  for (int i = 1; i <= arbol.Count(); ++i) {
    const ArbolItem& f = arbol.filas[static_cast<std::size_t>(i)];
    const std::size_t nivel = static_cast<std::size_t>(std::max<int>(f.Nivel, 0));
    abierto.resize(nivel);
    if (std::all_of(abierto.begin(), abierto.end(), [](bool b) { return b; })) visibles.push_back(i);
    abierto.push_back(f.Abierto);
  }
  return visibles;
}

int TemaDe(const Arbol& arbol, int fila) {
  for (int i = std::min(fila, arbol.Count()); i >= 1; --i)
    if (arbol.filas[static_cast<std::size_t>(i)].Nivel == 1) return i;
  return 0;
}

std::string GetDefaultTitle(const Arbol& arbol, TextosVentana& t, std::string_view idioma) {
  std::string palabra;
  bool alguna = false;
  for (const ArbolItem& f : arbol.filas) {
    if (!f.Marcado || f.Tipo >= 5 || f.Tipo < 1) continue;
    alguna = true;
    switch (f.Tipo) {
      case 1:
        palabra = palabra.empty() ? t.GetL_win("Questions", true) : t.GetL_win("Problems", true);
        break;
      case 2:
        palabra = palabra.empty() ? t.GetL_win("Exercises", true) : t.GetL_win("Problems", true);
        break;
      case 3:
        palabra = t.GetL_win("Problems", true);
        break;
      default:
        palabra = "Theory";
    }
  }
  if (!alguna) return {};
  int tema = 0;
  bool varios = false;
  for (int i = 1; i <= arbol.Count(); ++i) {
    const ArbolItem& f = arbol.filas[static_cast<std::size_t>(i)];
    if (!f.Marcado || f.Tipo >= 5 || f.Tipo < 1) continue;
    const int suyo = TemaDe(arbol, i);
    if (tema == 0) {
      tema = suyo;
    } else if (suyo != tema) {
      varios = true;
      break;
    }
  }
  const std::string nombre = varios || tema == 0 ? arbol.filas.at(1).Nombre
                                                 : arbol.filas[static_cast<std::size_t>(tema)].Nombre;
  if (idioma == "ENG") return palabra + " of " + nombre;
  if (idioma == "ESP" || idioma == "POB" || idioma == "POP") return palabra + " de " + nombre;
  if (idioma == "CAT" || idioma == "FRA") return palabra + " " + DeNombre(nombre, false);
  return palabra + ". " + nombre;
}

std::string FirmaArbol(const QString& sysedu, const std::string& asignatura, const TiposItem& tipos) {
  const int kinds = (tipos[0] ? 1 : 0) + (tipos[1] ? 10 : 0) + (tipos[2] ? 100 : 0) + (tipos[3] ? 1000 : 0);
  return sysedu.toStdString() + '|' + asignatura + std::to_string(kinds);
}

// ---- pages ---------------------------------------------------------------------

PaginasAsistente PaginasAsistente::Para(bool bienvenida, bool avanzadas) {
  PaginasAsistente p;
  p.mostrada = {false, bienvenida, true, avanzadas, true, avanzadas, avanzadas, true};
  return p;
}

int PaginasAsistente::Primera() const { return mostrada[1] ? 1 : 2; }

int PaginasAsistente::Siguiente(int actual) const {
  for (int p = actual + 1; p <= kPaginasAsistente; ++p)
    if (mostrada[static_cast<std::size_t>(p)]) return p;
  return actual;
}

int PaginasAsistente::Anterior(int actual) const {
  for (int p = actual - 1; p >= 1; --p)
    if (mostrada[static_cast<std::size_t>(p)]) return p;
  return actual;
}

// ---- defaults ------------------------------------------------------------------

ColeccionCab CabeceraNueva(const Ajustes& a) {
  ColeccionCab c;
  c.ORDENA = a.ordena ? kVerdadero : 0;
  c.POSSOL = a.solpos;
  c.PROPRE = a.propre;
  c.PROSUF = a.prosuf;
  c.POSNUMPAG = a.pagpos;
  c.COLRESPRO = a.procol;
  c.PROINI = 1;
  c.PAGINI = 1;
  c.TITULO.clear();
  c.PRETIT = a.chkPretit ? a.pretit : std::string();
  c.POSTI1 = a.chkPosti1 ? a.posti1 : std::string();
  c.POSTI2 = a.chkPosti2 ? a.posti2 : std::string();
  return c;
}

void TomaDefectos(const ColeccionCab& c, Ajustes& a) {
  a.ordena = c.ORDENA != 0;
  a.solpos = c.POSSOL;
  a.propre = c.PROPRE;
  a.prosuf = c.PROSUF;
  a.pagpos = c.POSNUMPAG;
  a.procol = c.COLRESPRO == 0 ? 16777215 : c.COLRESPRO;
}

void GuardaTextosPequenos(const TextosPequenos& t, Ajustes& a, Almacen& al, bool marcarNo) {
  static const char* kChk[3] = {"Chkpretit", "Chkposti1", "Chkposti2"};
  static const char* kTxt[3] = {"Pretit", "Posti1", "Posti2"};
  bool* chk[3] = {&a.chkPretit, &a.chkPosti1, &a.chkPosti2};
  std::string* txt[3] = {&a.pretit, &a.posti1, &a.posti2};
  for (std::size_t k = 0; k < 3; ++k) {
    if (t.porDefecto[k]) {
      *chk[k] = true;
      *txt[k] = t.texto[k];
      al.Escribe("Wizard", kChk[k], "S");
      al.Escribe("Wizard", kTxt[k], DeTexto(t.texto[k]));
    } else if (marcarNo) {
      *chk[k] = false;
      al.Escribe("Wizard", kChk[k], "N");
    }
  }
}

// ---- notation ------------------------------------------------------------------

OpcionesNotacion NotacionDe(const Ajustes& a, std::string_view idioma) {
  OpcionesNotacion o;
  const std::string par = a.decimal + a.lista;
  if (par == ",;")
    o.separadores = Separadores::ComaPuntoYComa;
  else if (par == ".;")
    o.separadores = Separadores::PuntoPuntoYComa;
  else if (par == ".,")
    o.separadores = Separadores::PuntoComa;
  else if (idioma == "CAT" || idioma == "ESP" || idioma == "POB" || idioma == "POP")
    o.separadores = Separadores::ComaPuntoYComa;
  else
    o.separadores = Separadores::PuntoComa;
  o.intervaloInvertido = a.intervaloAbre == "]" && a.intervaloCierra == "[";
  o.sigma = a.desviacion == "&sigma";
  o.frecuenciaN = a.frecuencia == "n";
  o.cientificoPunto = a.notacionCientifica == "\xB7" "10";
  o.productoAspa = a.producto == "\xD7";
  o.division = a.division == ":" ? SignoDivision::DosPuntos
               : a.division == "/" ? SignoDivision::Barra
                                   : SignoDivision::Obelo;
  o.simbolo = a.moneda;
  o.singular = a.monedaNombre;
  o.plural = a.monedaPlural;
  if (a.moneda == "\x80" && a.monedaNombre == "euro" && a.monedaPlural == "euros") {
    o.moneda = Moneda::Euro;
  } else if (a.moneda == "$" &&
             (a.monedaNombre == "dollar" || a.monedaNombre == "d\xF3lar" || a.monedaNombre == "d\xF2lar") &&
             (a.monedaPlural == "dollars" || a.monedaPlural == "d\xF3lares" || a.monedaPlural == "d\xF2lars")) {
    o.moneda = Moneda::Dolar;
  } else {
    o.moneda = Moneda::Otra;
  }
  for (std::size_t k = 0; k < 4; ++k) {
    o.espejoPositivo[k] = a.signosEspejo[k] > 0;
    o.lentePositivo[k] = a.signosLente[k] > 0;
  }
  return o;
}

bool MonedaCompleta(const OpcionesNotacion& o) {
  return o.moneda != Moneda::Otra ||
         (!Trim(o.simbolo).empty() && !Trim(o.singular).empty() && !Trim(o.plural).empty());
}

void AplicaNotacion(const OpcionesNotacion& o, Ajustes& a, Almacen& al, const std::string& dolar,
                    const std::string& dolares) {
  switch (o.separadores) {
    case Separadores::ComaPuntoYComa: a.decimal = ",", a.lista = ";"; break;
    case Separadores::PuntoPuntoYComa: a.decimal = ".", a.lista = ";"; break;
    case Separadores::PuntoComa: a.decimal = ".", a.lista = ","; break;
  }
  al.Escribe("SEPA", "DEC", DeTexto(a.decimal));
  al.Escribe("SEPA", "LIS", DeTexto(a.lista));
  a.intervaloAbre = o.intervaloInvertido ? "]" : "(";
  a.intervaloCierra = o.intervaloInvertido ? "[" : ")";
  al.Escribe("INTERV", "LEFT_OPEN", DeTexto(a.intervaloAbre));
  a.desviacion = o.sigma ? "&sigma" : "S";
  a.frecuencia = o.frecuenciaN ? "n" : "f";
  a.notacionCientifica = o.cientificoPunto ? "\xB7" "10" : "\xD7" "10";
  a.producto = o.productoAspa ? "\xD7" : "\xB7";
  a.division = o.division == SignoDivision::DosPuntos ? ":" : o.division == SignoDivision::Barra ? "/" : "\xF7";
  al.Escribe("STAT", "StDesv", DeTexto(a.desviacion));
  al.Escribe("STAT", "Abfreq", DeTexto(a.frecuencia));
  al.Escribe("SCIENT", "NOTAT", DeTexto(a.notacionCientifica));
  al.Escribe("PRODUCTO", "PRIMARY", DeTexto(a.producto));
  al.Escribe("DIVISION", "PRIMARY", DeTexto(a.division));
  switch (o.moneda) {
    case Moneda::Euro:
      a.moneda = "\x80", a.monedaNombre = "euro", a.monedaPlural = "euros";
      break;
    case Moneda::Dolar:
      a.moneda = "$", a.monedaNombre = dolar.empty() ? "dollar" : dolar,
      a.monedaPlural = dolares.empty() ? "dollars" : dolares;
      break;
    case Moneda::Otra:
      a.moneda = std::string(Trim(o.simbolo)), a.monedaNombre = std::string(Trim(o.singular)),
      a.monedaPlural = std::string(Trim(o.plural));
      break;
  }
  al.Escribe("CURRENCY", "SYMBOL", DeTexto(a.moneda));
  al.Escribe("CURRENCY", "NOMSIN", DeTexto(a.monedaNombre));
  al.Escribe("CURRENCY", "NOMPLU", DeTexto(a.monedaPlural));
  static const char* kPos[4] = {"POS_OBJ", "POS_IMG", "POS_FOC", "POS_RAD"};
  for (std::size_t k = 0; k < 4; ++k) {
    a.signosEspejo[k] = o.espejoPositivo[k] ? 1 : -1;
    a.signosLente[k] = o.lentePositivo[k] ? 1 : -1;
    al.Escribe("OPT_GEO_ESP", kPos[k], QString::number(a.signosEspejo[k]));
    al.Escribe("OPT_GEO_LEN", kPos[k], QString::number(a.signosLente[k]));
  }
}

}  // namespace ss
