#include "typeset/motor.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <span>

#include "problems/texto.h"
#include "typeset/construccion.h"

namespace ss {
namespace {

constexpr unsigned char kRaya = 150;   // what a "-" is drawn as: the minus sign
constexpr unsigned char kGuion = '-';  // ... unless it is a hyphen (EsGuion)

// A letter of the text's one-byte encoding, accented ones included.
bool EsLetra(unsigned char ch) {
  return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') ||
         (ch >= 192 && ch != 215 && ch != 247);
}

bool EsMinuscula(unsigned char ch) { return (ch >= 'a' && ch <= 'z') || (ch >= 223 && ch != 247); }

// The words of mathematics that follow a minus sign like a name follows a
// locant ("2-sin x", "1-cos x").
bool EsFuncion(std::string_view palabra) {
  static constexpr std::string_view kFunciones[] = {
      "sin", "cos", "tan", "cot", "sec", "csc", "sen", "tg", "ctg", "log", "lg", "ln", "exp",
      "sinh", "cosh", "tanh", "arcsin", "arccos", "arctan", "max", "min", "lim", "det", "mod"};
  for (std::string_view f : kFunciones)
    if (palabra == f) return true;
  return false;
}

// Whether the "-" at i is a hyphen, not the minus sign that also draws the
// bonds of a chain ("CH_3-CH_2-Cl"): inside a word ("acid-base", "N-methyl"),
// and between a locant and a name ("2-methylpropane", "propan-2-ol",
// "buta-1,3-diene"), but not before or after a lone letter ("2-x", "x-2").
bool EsGuion(std::string_view t, std::size_t i) {
  if (i == 0 || i + 1 >= t.size()) return false;
  const auto c = [&](std::size_t k) { return static_cast<unsigned char>(t[k]); };
  if (EsLetra(c(i - 1)) && EsMinuscula(c(i + 1))) return true;
  // An italic locant comes next: "N-methyl-N-propylamine", "m-xylene".
  if (t.substr(i + 1, 3) == "&+I" && (EsLetra(c(i - 1)) || std::isdigit(c(i - 1)))) return true;
  std::size_t fin = i + 1;
  while (fin < t.size() && EsMinuscula(c(fin))) ++fin;
  if (std::isdigit(c(i - 1)) && fin - i - 1 >= 2 && !EsFuncion(t.substr(i + 1, fin - i - 1))) return true;
  std::size_t inicio = i;
  while (inicio > 0 && EsMinuscula(c(inicio - 1))) --inicio;
  return std::isdigit(c(i + 1)) && i - inicio >= 3 && !EsFuncion(t.substr(inicio, i - inicio));
}

// Vertical shift of "+", the dash and "=" as a fraction of H, by size class.
double DesplazamientoOperador(unsigned char ch, int clase) {
  static constexpr double kMas[] = {0.072, 0.07, 0.072};
  static constexpr double kRayaDesp[] = {-0.012, 0, -0.012};
  static constexpr double kIgual[] = {0.07, 0.07, 0.07};
  const int k = clase - 1;
  return ch == '+' ? kMas[k] : ch == kRaya ? kRayaDesp[k] : kIgual[k];
}

bool EsRecto(unsigned char ch) {
  return (ch >= '0' && ch <= '9') ||
         std::string_view(".,:;()[]|{}/").find(static_cast<char>(ch)) != std::string_view::npos;
}

bool EsTagConstruccion(std::string_view t) {
  static constexpr std::string_view kTags[] = {
      "RAD", "SQR", "CUR", "COC", "DDL", "POT", "EXP", "SPB", "INT", "NES", "RWS",
      "TST", "ATX", "CEQ", "SEG", "SED", "DOL", "UDL", "REC", "CDE", "CDI", "VEC",
      "VED", "AND", "ARC", "TDX", "TDU", "TDD", "BCV", "BCH", "UDB", "IMG"};
  if (t.size() != 3) return false;
  for (std::string_view k : kTags)
    if (k == t) return true;
  // Rings: A, a size from 3 to 9, an orientation.
  return t[0] == 'A' && t[1] >= '3' && t[1] <= '9' &&
         std::string_view("VLID").find(t[2]) != std::string_view::npos;
}

// Constructs set on the axis of the line rather than on its top.
bool AlineaEnEje(std::string_view t) {
  return t == "COC" || t == "DDL" || t == "SPB" || t == "ATX" || t == "RWS" || t == "CEQ";
}

// The numeric part of a box, as a line keeps it for each construct.
struct Medida {
  double Adelanto = 0, Ancho = 0, Sobre = 0, Eje = 0, Alto = 0;
};

// Constructs not given a geometry of their own: their arguments, split at the
// construct's separators, one after another on the line.
void ConstruccionLlana(Motor& m, std::string_view bloque, int caja);

}  // namespace

Motor::Motor() { RegistraConstrucciones(*this); }

void Motor::RegistraConstruccion(std::string_view tag, Construccion f) {
  for (Registro& r : construcciones_)
    if (r.tag == tag) {
      r.f = f;
      return;
    }
  construcciones_.push_back({std::string(tag), f});
}

Construccion Motor::BuscaConstruccion(std::string_view tag) const {
  for (const Registro& r : construcciones_)
    if (r.tag == tag) return r.f;
  return ConstruccionLlana;
}

const Caja& Motor::Argumento(int caja, int k, std::string_view texto) {
  static const Caja kVacia{};
  if (NumCaja >= kMaxCajas) {  // past the table: the argument is left out, the line stops
    lineaRota_ = true;
    return kVacia;
  }
  ++NumCaja;
  if (k >= 0 && k < kMaxArgumentos) HijoCaja[caja][k] = NumCaja;
  const int mia = NumCaja;
  InterpretaTexto(texto);
  return Cajas[mia];
}

std::string Motor::InterpretaTexto(std::string_view texto) {
  Canvas& c = *canvas;
  const int miCaja = NumCaja;
  if (miCaja == 1) lineaRota_ = false;  // a line starts
  double inicioX = 0, inicioY = 0;
  if (PasoDibujo) {
    Cajas[miCaja].PosX = inicioX = c.CurrentX;
    Cajas[miCaja].PosY = inicioY = c.CurrentY;
  }
  double tamanoActual = c.fuente.tamano;
  double H = c.TextHeight("Hp");
  double ejeLinea = 0.574 * H;
  auto ascente = [&c] { return c.FontAscent() * c.TwipsPerPixelY(); };
  const double ascenteBase = ascente();
  double asc = ascenteBase;
  const int clase = H < 120 ? 1 : H < 300 ? 2 : 3;

  std::array<Medida, kMaxConstruccionesLinea + 1> seg;
  int numSeg = 1;
  seg[0] = Medida{0, 0, 0, ejeLinea, H};
  std::string corte;
  double anchoTexto = 0;
  int desdeSeg = 0;
  std::size_t ultimoCorte = 0;
  // Constructs met at this level, counted alike in both passes so that both
  // stop at the same one.
  int construcciones = 0;

  auto ancho = [&] {
    double w = anchoTexto;
    for (int k = desdeSeg; k < numSeg; ++k) w += seg[k].Adelanto + seg[k].Ancho;
    return w;
  };

  // One character at the pen, as plain text is set.
  auto caracter = [&](unsigned char ch) {
    const bool cursiva = c.fuente.cursiva;
    double desp = 0, holgura = 0;
    if (ch == '+' || ch == kRaya || ch == '=') {
      desp = DesplazamientoOperador(ch, clase) * H;
      holgura = 0.04 * H;
      c.fuente.cursiva = false;
    } else if (EsRecto(ch)) {
      c.fuente.cursiva = false;
    }
    if (holgura < 1) holgura = 1;
    const char s[1] = {static_cast<char>(ch)};
    if (PasoDibujo) {
      c.CurrentY += desp;
      c.CurrentX += holgura;
      c.Print(std::string_view(s, 1));
      c.CurrentX += holgura;
      c.CurrentY -= desp;
    } else {
      anchoTexto += c.TextWidth(std::string_view(s, 1)) + 2 * holgura;
    }
    c.fuente.cursiva = cursiva;
  };

  // A small character: a subscript (lowered) or a superscript (same top).
  auto indice = [&](unsigned char ch, bool sub) {
    if (ch == '-') ch = kRaya;
    const char s[1] = {static_cast<char>(ch)};
    const bool cursiva = c.fuente.cursiva;
    c.fuente.tamano = tamanoActual * 8 / 12;
    if (ch >= '0' && ch <= '9') c.fuente.cursiva = false;
    if (PasoDibujo) {
      const double desp = sub ? c.TextHeight("9") / 1.4 : 0;
      c.CurrentY += desp;
      c.Print(std::string_view(s, 1));
      c.CurrentY -= desp;
    } else {
      anchoTexto += c.TextWidth(std::string_view(s, 1));
    }
    c.fuente.cursiva = cursiva;
    c.fuente.tamano = tamanoActual;
    // A blank in small size (the thin space between groups of digits) lowers nothing.
    if (sub && ch != ' ' && seg[0].Alto < H * 1.1) seg[0].Alto = H * 1.1;
  };

  // After a change of font: measure anew and keep the baseline where it was.
  auto reasienta = [&] {
    asc = ascente();
    H = c.TextHeight("Hp");
    ejeLinea = 0.574 * H;
    c.CurrentY = inicioY + ascenteBase - asc;
    tamanoActual = c.fuente.tamano;
  };

  // Rules of the double and triple bond and the equilibrium arrows.
  auto raya = [&](double x1, double y1, double x2, double y2) { c.Line(x1, y1, x2, y2, 0); };
  auto grosor = [&](double t) {
    c.DrawWidth = std::max(1, static_cast<int>(std::lround(t / c.TwipsPerPixelX())));
  };

  const std::size_t n = texto.size();
  for (std::size_t p = 1; p <= n && !lineaRota_; ++p) {
    const std::size_t i = p - 1;
    const char ch = texto[i];
    bool corteSuave = false;

    if (ch == '#') {
      const std::string_view resto = texto.substr(i);
      if (resto.size() >= 2 && resto[1] == '#') {
        caracter('#');
        ++p;
      } else if (resto.starts_with("#MARK")) {
        if (PasoDibujo && !marcas.empty()) {
          const double arriba = inicioY - Cajas[miCaja].Sobre;
          marcas.back().arriba = arriba;
          if (marcas.size() >= 2) marcas[marcas.size() - 2].abajo = arriba - H / 8;
        }
        p += 8;
      } else if (resto.size() >= 5 && resto[4] == '(' && EsTagConstruccion(resto.substr(1, 3))) {
        // Past the limits the line stops here, before any search for the close.
        if (construcciones >= kMaxConstruccionesLinea || NumCaja >= kMaxCajas) {
          lineaRota_ = true;
          break;
        }
        ++construcciones;
        const std::string_view tag = resto.substr(1, 3);
        const std::string_view apertura = resto.substr(0, 5);
        const std::string cierre = "#" + std::string(tag) + ")";
        bool valido = false;
        const std::string bloque = ExtraeBloque(resto, apertura, cierre, &valido);
        ++NumCaja;
        const int caja = NumCaja;
        const std::string nombre = c.fuente.nombre;
        const double tamano = c.fuente.tamano;
        const Construccion f = valido ? BuscaConstruccion(tag) : ConstruccionLlana;
        if (PasoDibujo) {
          const double x = c.CurrentX, y = c.CurrentY;
          c.CurrentX += Cajas[caja].Adelanto;
          if (valido && AlineaEnEje(tag)) c.CurrentY = inicioY + ejeLinea - Cajas[caja].Eje;
          f(*this, bloque, caja);
          c.CurrentX = x + Cajas[caja].Adelanto + Cajas[caja].Ancho;
          c.CurrentY = y;
        } else {
          f(*this, bloque, caja);
          const Caja& b = Cajas[caja];
          seg[numSeg++] = Medida{b.Adelanto, b.Ancho, b.Sobre, b.Eje, b.Alto};
        }
        c.fuente.nombre = nombre;
        c.fuente.tamano = tamano;
        // A broken construct gives way after its open tag: the rest is text.
        p += (valido ? bloque.size() : apertura.size()) - 1;
      }
      // Any other "#" is dropped alone.
    } else if (ch == '&') {
      const std::string_view resto = texto.substr(i + 1);
      auto es = [&](std::string_view code) { return resto.starts_with(code); };
      bool conValor = false;
      std::string_view codigo;
      for (std::string_view k : {"FS", "FN", "FC", "BC", "LC", "FF", "SP", "LS"})
        if (es(k)) {
          conValor = true;
          codigo = k;
          break;
        }
      if (es("+I") || es("-I") || es("+B") || es("-B") || es("+U") || es("-U") || es("+S") ||
          es("-S")) {
        const bool on = resto[0] == '+';
        switch (resto[1]) {
          case 'I': c.fuente.cursiva = on; break;
          case 'B': c.fuente.negrita = on; break;
          case 'U': c.fuente.subrayado = on; break;
          default: c.fuente.tachado = on; break;
        }
        p += 2;
      } else if (conValor) {
        const std::size_t desde = i + (codigo == "LS" ? 6 : 4);
        const std::size_t dosPuntos = desde <= n ? texto.find(':', desde) : std::string_view::npos;
        if (dosPuntos == std::string_view::npos) {  // the rest of the line is lost
          lineaRota_ = true;
          break;
        }
        const std::string_view valor = texto.substr(desde, dosPuntos - desde);
        p = dosPuntos + 1;
        if (codigo == "FS") {
          c.fuente.tamano = Val(valor) * Zoom;
          reasienta();
        } else if (codigo == "FN") {
          c.fuente.nombre = "Courier New";
          c.fuente.nombre = std::string(Trim(valor));
          reasienta();
        } else if (codigo == "FC") {
          c.ForeColor = LeeColor(valor);
        } else if (codigo == "BC") {
          ColorFondo = LeeColor(valor);
        } else if (codigo == "LC") {
          ColorLinea = LeeColor(valor);
        } else if (codigo == "SP") {
          const double x = Val(valor) / 100 * AnchoTexto() + inicioX;
          if (PasoDibujo)
            c.CurrentX = x;
          else
            anchoTexto = x;
          desdeSeg = numSeg;
        } else if (codigo == "FF" && PasoDibujo) {
          const std::size_t coma1 = valor.find(',');
          const std::size_t coma2 = coma1 == valor.npos ? valor.npos : valor.find(',', coma1 + 1);
          if (UCase(Trim(valor.substr(0, coma1))) == "REC" && coma1 != valor.npos) {
            double w = Val(valor.substr(coma1 + 1, coma2 == valor.npos ? valor.npos : coma2 - coma1 - 1));
            double h = coma2 == valor.npos ? 0 : Val(valor.substr(coma2 + 1));
            const double x = c.CurrentX, y = c.CurrentY;
            if (w == 0) {
              c.CurrentX = 0;
              w = c.Width() * c.TwipsPerPixelX() / 1440 * 25.4 / Zoom;
            }
            if (h == 0) {
              c.CurrentY = 0;
              h = c.Height() * c.TwipsPerPixelY() / 1440 * 25.4 / Zoom;
            }
            const double mm = 1440 / 25.4 * Zoom;
            c.Line(c.CurrentX, c.CurrentY, c.CurrentX + w * mm, c.CurrentY + h * mm, ColorFondo,
                   ModoLinea::CajaLlena);
            c.CurrentX = x;
            c.CurrentY = y;
          }
        }
        // &LS inside a line was cut out before layout; elsewhere it is skipped.
      } else if (auto simbolo = BuscaSimbolo(resto)) {
        const std::string nombre = c.fuente.nombre;
        const double ascTexto = asc;
        c.fuente.nombre = simbolo->mtExtra ? "MT Extra" : "Symbol";
        const char s[1] = {static_cast<char>(simbolo->caracter)};
        if (PasoDibujo) {
          const double d = ascTexto - ascente();
          c.CurrentY += d;
          c.Print(std::string_view(s, 1));
          c.CurrentY -= d;
        } else {
          anchoTexto += c.TextWidth(std::string_view(s, 1));
        }
        c.fuente.nombre = "Courier New";
        c.fuente.nombre = nombre;
        p += simbolo->nombre.size();
      } else if (es(" ")) {
        caracter(' ');
        ++p;
      } else if (es("Q") || es("=") || es("#")) {
        const double x = c.CurrentX, y = c.CurrentY;
        const double blancos = c.TextWidth(es("Q") ? "    " : "   ");
        if (PasoDibujo) {
          grosor(0.05 * H);
          if (es("Q")) {
            const double y1 = y + H / 2.5, y2 = y + H / 1.7, largo = 240 * Zoom;
            raya(x, y1, x + largo, y1);
            raya(x + largo, y1, x + largo - 60 * Zoom, y1 - 50 * Zoom);
            raya(x, y2, x + largo, y2);
            raya(x, y2, x + 60 * Zoom, y2 + 50 * Zoom);
          } else {
            const double x1 = x + 20 * Zoom, x2 = x1 + 130 * Zoom;
            static constexpr double kDoble[] = {0.351, 0.588};
            static constexpr double kTriple[] = {0.3, 0.48, 0.66};
            const std::span<const double> alturas = es("=") ? std::span<const double>(kDoble)
                                                            : std::span<const double>(kTriple);
            for (double a : alturas) raya(x1, y + H * a, x2, y + H * a);
          }
          c.DrawWidth = 1;
          c.CurrentX = x + blancos;
        } else {
          anchoTexto += blancos;
        }
        ++p;
      } else if (es("_")) {
        const char guion[1] = {static_cast<char>(kGuion)};
        if (PasoDibujo) {
          if (p + 1 == n) c.Print(std::string_view(guion, 1));
        } else {
          anchoTexto += c.TextWidth(std::string_view(guion, 1));
        }
        corteSuave = true;
        ++p;
      } else if (es("&")) {
        caracter('&');
        ++p;
      } else if (es("EC=")) {
        // The sides of a ring: letters and an optional ":", never a power of ten.
        std::size_t j = i + 4;
        while (j < n && EsLetra(static_cast<unsigned char>(texto[j]))) ++j;
        if (j < n && texto[j] == ':') ++j;
        p = j;
      } else if (es("E")) {
        std::size_t j = i + 2;
        std::string exponente;
        if (j < n && (texto[j] == '+' || texto[j] == '-')) {
          if (texto[j] == '-') exponente += static_cast<char>(kRaya);
          ++j;
        }
        while (j < n && texto[j] >= '0' && texto[j] <= '9') exponente += texto[j++];
        const bool cursiva = c.fuente.cursiva;
        c.fuente.cursiva = false;
        const std::string& mult = reemplazos.multiplicadorCientifico;
        if (PasoDibujo)
          c.Print(mult);
        else
          anchoTexto += c.TextWidth(mult);
        c.fuente.tamano = tamanoActual * 8 / 12;
        if (PasoDibujo)
          c.Print(exponente);
        else
          anchoTexto += c.TextWidth(exponente);
        c.fuente.tamano = tamanoActual;
        c.fuente.cursiva = cursiva;
        p = j;  // the loop moves on behind the exponent
      } else if (es("LF")) {
        p += 2;
      }
      // Any other "&" is dropped alone.
    } else if (ch == '_' || ch == '^') {
      if (i + 1 < n) {
        const char siguiente = texto[i + 1];
        if (siguiente == ch)
          caracter(static_cast<unsigned char>(ch));
        else
          indice(static_cast<unsigned char>(siguiente), ch == '_');
        ++p;
      }
    } else if (ch == '-') {
      caracter(EsGuion(texto, i) ? kGuion : kRaya);
    } else {
      caracter(static_cast<unsigned char>(ch));
    }

    // Only a line breaks, and not once it has stopped; an argument is set whole.
    if (!PasoDibujo && miCaja == 1 && !lineaRota_) {
      if (ancho() + Sangria + MargenIzq + MargenDer > AnchoPagina) {
        corte = std::string(texto.substr(0, ultimoCorte != 0 ? ultimoCorte : std::min(p, n)));
        break;
      }
      if (ch == ' ' || corteSuave) ultimoCorte = std::min(p, n);
    }
  }

  if (!PasoDibujo) {
    double sobreEje = 0, bajoEje = 0;
    for (int k = 0; k < numSeg; ++k) {
      sobreEje = std::max(sobreEje, seg[k].Sobre + seg[k].Eje);
      bajoEje = std::max(bajoEje, seg[k].Alto - seg[k].Eje);
    }
    Caja& r = Cajas[miCaja];
    r.Adelanto = 0;
    r.Ancho = ancho();
    r.Sobre = sobreEje - ejeLinea;
    r.Eje = ejeLinea;
    r.Alto = bajoEje + ejeLinea;
    r.Fuente.assign(texto);
  }
  return corte;
}

namespace {

// The arguments of a construct's block, split at its separators.
std::vector<std::string> Argumentos(std::string_view bloque) {
  static constexpr std::pair<std::string_view, std::string_view> kSeparadores[] = {
      {"COC", "#N)("}, {"DDL", "#L)("}, {"POT", "#PB)("}, {"SPB", "#T)("},
      {"ATX", "#T)("}, {"TST", "#TS)("}};
  const std::string_view tag = bloque.substr(1, 3);
  const std::string_view dentro = bloque.substr(5, bloque.size() - 10);
  for (const auto& [t, sep] : kSeparadores) {
    if (t != tag) continue;
    // The first argument ends at the balanced separator, the second runs to the close.
    const std::string cierre1 = std::string(sep.substr(0, sep.size() - 1));
    bool ok = false;
    const std::string primero = ExtraeBloque(bloque, bloque.substr(0, 5), cierre1, &ok);
    if (!ok) break;
    const std::string_view resto = bloque.substr(primero.size() - cierre1.size());
    const std::string segundo = ExtraeBloque(resto, sep, bloque.substr(bloque.size() - 5), &ok);
    if (!ok) break;
    return {primero.substr(5, primero.size() - 5 - cierre1.size()),
            segundo.substr(sep.size(), segundo.size() - sep.size() - 5)};
  }
  return {std::string(dentro)};
}

void ConstruccionLlana(Motor& m, std::string_view bloque, int caja) {
  Canvas& c = *m.canvas;
  const std::vector<std::string> args = Argumentos(bloque);
  if (m.PasoDibujo) {
    m.Cajas[caja].PosX = c.CurrentX;
    m.Cajas[caja].PosY = c.CurrentY;
    const double x0 = c.CurrentX, y0 = c.CurrentY;
    double x = x0;
    for (std::size_t k = 0; k < args.size() && k < kMaxArgumentos; ++k) {
      c.CurrentX = x + m.Cajas[m.HijoCaja[caja][k]].Adelanto;
      c.CurrentY = y0;
      const Caja& b = m.Argumento(caja, static_cast<int>(k), args[k]);
      x += b.Adelanto + b.Ancho;
    }
    return;
  }
  Caja own;
  own.Fuente.assign(bloque);
  bool primero = true;
  for (std::size_t k = 0; k < args.size() && k < kMaxArgumentos; ++k) {
    const Caja& b = m.Argumento(caja, static_cast<int>(k), args[k]);
    own.Ancho += b.Adelanto + b.Ancho;
    own.Sobre = std::max(own.Sobre, b.Sobre);
    own.Alto = std::max(own.Alto, b.Alto);
    if (primero) own.Eje = b.Eje;
    primero = false;
  }
  m.Cajas[caja] = own;
}

}  // namespace
}  // namespace ss
