#include <algorithm>

#include "problems/texto.h"
#include "typeset/motor.h"

namespace ss {
namespace {

// Any fixed sentence serves: only the ratio of two of its widths is used.
constexpr std::string_view kMuestra = "Sample of Letters.";

constexpr double kMargenMm = 16;

// Everything a line may change that drawing reads: pass 2 starts from what
// pass 1 started from.
struct EstadoDibujo {
  EstadoFuente fuente;
  int32_t ForeColor, DrawWidth, FillStyle, ColorLinea, ColorFondo;

  static EstadoDibujo De(const Motor& m, const Canvas& c) {
    return {c.fuente, c.ForeColor, c.DrawWidth, c.FillStyle, m.ColorLinea, m.ColorFondo};
  }
  void Pon(Motor& m, Canvas& c) const {
    c.fuente = fuente;
    c.ForeColor = ForeColor;
    c.DrawWidth = DrawWidth;
    c.FillStyle = FillStyle;
    m.ColorLinea = ColorLinea;
    m.ColorFondo = ColorFondo;
  }
};

}  // namespace

void Motor::ComponerTexto(std::string_view texto, double tamano, Canvas& c) {
  canvas = &c;
  ColorLinea = 0;
  ColorFondo = 16777215;
  marcas.clear();
  Sangria = 0;
  double y = 0;
  if (tamano <= 0) tamano = 5 * Zoom;

  std::string todo(texto);
  ReplaceAll(todo, "\r\n", "");
  std::vector<std::string_view> lineas;
  for (std::size_t desde = 0;;) {
    const std::size_t at = todo.find("&LF", desde);
    lineas.push_back(std::string_view(todo).substr(desde, at == std::string::npos ? std::string::npos : at - desde));
    if (at == std::string::npos || lineas.size() >= static_cast<std::size_t>(kMaxLineas)) break;
    desde = at + 3;
  }

  c.fuente = EstadoFuente{};
  c.ForeColor = 0;
  c.fuente.tamano = c.EsPantalla() ? c.TwipsPerPixelX() * 12 / 15 * Zoom : 12 * Zoom;
  const double anchoMuestra = c.TextWidth(kMuestra);
  c.fuente.tamano = tamano;

  // The frame of the fixed sheet, on every canvas alike.
  AnchoPagina = (c.Width() - 2) * c.TwipsPerPixelX();
  AltoPagina = (c.Height() - 2) * c.TwipsPerPixelY();
  MargenIzq = MargenDer = MargenSup = MargenInf = kMargenMm / 25.4 * 1440 * Zoom;
  UltimaMarca = 0;

  double altoH = c.TextHeight("H");
  bool llena = false;
  for (std::string_view cruda : lineas) {
    std::string linea = SustituyeCodigos(cruda, reemplazos);
    if (linea.starts_with("#MARK")) {
      UltimaMarca = static_cast<int>(Val(Mid(linea, 7, 3)));
      if (marcas.size() < static_cast<std::size_t>(kMaxMarcasTexto)) marcas.push_back({UltimaMarca, 0, 0});
    }
    if (const std::size_t at = linea.find("&LSAN="); at != std::string::npos) {
      const std::size_t dosPuntos = linea.find(':', at);
      if (dosPuntos != std::string::npos) {
        const double mm = Val(std::string_view(linea).substr(at + 6, dosPuntos - at - 6));
        linea.erase(at, dosPuntos - at + 1);
        Sangria = mm / 25.4 * 1440 * c.TextWidth(kMuestra) / anchoMuestra * 0.73;
      }
    }
    std::string_view resto = linea;
    do {
      NumCaja = 1;
      NivelFraccion = NivelExponente = 0;
      const EstadoDibujo estado = EstadoDibujo::De(*this, c);
      altoH = c.TextHeight("H");
      PasoDibujo = false;
      c.CurrentX = c.CurrentY = 0;
      const std::string parte = InterpretaTexto(resto);

      NumCaja = 1;
      PasoDibujo = true;
      NivelFraccion = NivelExponente = 0;
      estado.Pon(*this, c);
      const Caja& linea1 = Cajas[1];
      c.CurrentX = linea1.Adelanto + Sangria + MargenIzq;
      c.CurrentY = linea1.Sobre + y + MargenSup;
      if (c.CurrentY >= AltoPagina - MargenInf - (linea1.Alto + linea1.Sobre)) {
        UltimaMarca = -UltimaMarca;
        llena = true;
        break;
      }
      const double avance = linea1.Sobre + linea1.Alto + altoH / 5;
      if (!parte.empty()) {
        InterpretaTexto(parte);
        resto.remove_prefix(parte.size());
      } else {
        InterpretaTexto(resto);
        resto = {};
      }
      PasoDibujo = false;
      if (dejaCorrer) dejaCorrer();
      y += avance;
    } while (!resto.empty());
    if (llena) break;
  }
  if (!marcas.empty()) marcas.back().abajo = MargenSup + y + Cajas[1].Alto + altoH;

  if (c.EsPantalla() && mostrarBorde) {
    const int32_t gris = 240 + 256 * 240 + 65536 * 240;
    const double x1 = MargenIzq, x2 = AnchoPagina - MargenDer;
    const double y1 = MargenSup, y2 = AltoPagina - MargenInf;
    c.FillStyle = 1;
    c.Line(x1, y1, x2, y1, gris);
    c.Line(x2, y1, x2, y2, gris);
    c.Line(x2, y2, x1, y2, gris);
    c.Line(x1, y2, x1, y1, gris);
  }
}

std::string TextoConHuecoDeNumero(std::string_view texto, int posNumPag) {
  if ((posNumPag & 7) == 0) return std::string(texto);
  if (posNumPag & 8) return std::string(texto) + " &LF";
  return " &LF" + std::string(texto);
}

void DibujaNumeroPagina(Motor& m, Canvas& c, int pagina, int primera, int posNumPag) {
  const int lado = posNumPag & 7;
  if (lado == 0 || lado > 5) return;
  c.fuente = EstadoFuente{};
  c.fuente.tamano = c.EsPantalla() ? c.TwipsPerPixelX() * 11 / 15 * m.Zoom : 11;
  c.ForeColor = c.EsPantalla() ? 128 + 256 * 128 + 65536 * 128 : 0;
  const int numero = pagina + primera - 1;
  const std::string texto = std::to_string(numero);
  const double w = c.TextWidth(texto);
  const double derecha = m.AnchoPagina - m.MargenDer - w;
  const double izquierda = m.MargenIzq;
  const bool impar = numero % 2 != 0;
  double x = izquierda;
  switch (lado) {
    case 1: x = derecha; break;
    case 2: x = izquierda; break;
    case 3: x = m.MargenIzq + (m.AnchoPagina - m.MargenDer - m.MargenIzq) / 2 - w / 2; break;
    case 4: x = impar ? derecha : izquierda; break;
    case 5: x = impar ? izquierda : derecha; break;
  }
  c.CurrentX = x;
  c.CurrentY = (posNumPag & 8) ? m.AltoPagina - m.MargenInf - c.TextHeight(texto) : m.MargenSup;
  c.Print(texto);
}

}  // namespace ss
