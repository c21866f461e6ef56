// Pictures (#IMG): a file of the picture folder or of the scratch folder,
// sized in millimetres, standing on the foot of the line or, with a negative
// height, hanging over the text that follows. A picture that cannot be found
// or read shows as a grey box with a cross and a frame, so the page keeps its
// layout.
#include <algorithm>
#include <cmath>

#include <QImageReader>
#include <QString>

#include "problems/texto.h"
#include "typeset/construccion.h"

namespace ss {

namespace construccion {

PedidoImagen LeeImagen(std::string_view argumento) {
  PedidoImagen r;
  const std::string mayus = UCase(Trim(argumento));
  // The name keeps its case: it is cut from the text at the places the
  // upper-cased copy shows.
  const std::size_t desde = argumento.find_first_not_of(' ');
  const std::string original(desde == std::string_view::npos ? std::string_view() : argumento.substr(desde));
  const std::size_t q1 = mayus.find('\'');
  const std::size_t q2 = q1 == std::string::npos ? std::string::npos : mayus.find('\'', q1 + 1);
  std::string opciones = mayus;
  if (q2 != std::string::npos) {
    r.nombre = original.substr(q1 + 1, q2 - q1 - 1);
    opciones = mayus.substr(0, q1) + ' ' + mayus.substr(q2 + 1);
  }
  r.marco = opciones.find("MARCO") != std::string::npos;
  r.dist = opciones.find("DIST") != std::string::npos;
  auto valor = [&](std::string_view clave) {
    const std::size_t k = opciones.find(clave);
    if (k == std::string::npos) return 0.0;
    const std::size_t igual = opciones.find('=', k);
    if (igual == std::string::npos) return 0.0;
    const std::size_t fin = opciones.find(':', igual);
    return Val(std::string_view(opciones).substr(igual + 1, fin == std::string::npos ? fin : fin - igual - 1));
  };
  r.anchoMm = valor("DXMM");
  r.altoMm = valor("DYMM");
  return r;
}

bool NombreDeImagenValido(const std::string& nombre) {
  return !nombre.empty() && nombre[0] != '.' && nombre.find('/') == std::string::npos &&
         nombre.find('\\') == std::string::npos && nombre.find('\0') == std::string::npos;
}

}  // namespace construccion

namespace {

using namespace construccion;

void Img(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const double H = p.H;
  const PedidoImagen pedido = LeeImagen(Interior(bloque));
  const double mm = 1440 / 25.4 * m.Zoom;
  double ancho = pedido.anchoMm * mm, alto = pedido.altoMm * mm;

  std::string ruta;
  if (NombreDeImagenValido(pedido.nombre) && m.BuscaImagen) ruta = m.BuscaImagen(pedido.nombre);
  QSize tamano;
  if (!ruta.empty()) {
    // Loaded whole, so that a file that only looks like a picture counts as missing.
    QImageReader lector(QString::fromStdString(ruta));
    const QImage imagen = lector.read();
    if (!imagen.isNull()) tamano = imagen.size();
  }
  bool falta = tamano.isEmpty();
  if (ancho == 0 || alto == 0) {
    falta = true;
    ancho = 1440;
    alto = 1080;
  }
  if (!pedido.dist && !falta) {
    const double fw = tamano.width(), fh = tamano.height();
    if (std::fabs(alto) < fh / fw * std::fabs(ancho))
      ancho = std::copysign(fw / fh * std::fabs(alto), ancho);
    else
      alto = std::copysign(fh / fw * std::fabs(ancho), alto);
  }
  const double t = pedido.marco || falta ? p.Largo(0.04, 1) : 0;

  if (!p.dibujo) {
    Caja own;
    own.Adelanto = t;
    own.Ancho = ancho + t;
    own.Sobre = alto - H + t;
    own.Eje = 0.574 * H;
    own.Alto = alto >= 0 ? t + H : t;
    p.Escribe(own, bloque);
    return;
  }

  // A picture of negative height hangs from one line above, upright; one of
  // negative width still starts at the pen.
  const double x = p.X0, w = std::fabs(ancho), h = std::fabs(alto);
  const double y = alto >= 0 ? p.Y0 - alto + H : p.Y0 - H;
  Canvas& c = p.c;
  if (falta) {
    constexpr int32_t kGris = 240 + 240 * 256 + 240 * 65536;
    constexpr int32_t kCruz = 200 + 200 * 256 + 200 * 65536;
    c.Line(x, y, x + w, y + h, kGris, ModoLinea::CajaLlena);
    const double dentro = H / 4;
    if (w > 2 * dentro && h > 2 * dentro) {
      c.DrawWidth = static_cast<int>(H / 2 / c.TwipsPerPixelY()) + 1;
      c.Line(x + dentro, y + dentro, x + w - dentro, y + h - dentro, kCruz);
      c.Line(x + dentro, y + h - dentro, x + w - dentro, y + dentro, kCruz);
      c.DrawWidth = 1;
    }
  } else {
    c.PaintPicture(ruta, x, y, w, h);
  }
  if (pedido.marco || falta) {
    c.FillStyle = 1;
    c.DrawWidth = std::max(1, static_cast<int>(std::lround(t / c.TwipsPerPixelX())));
    c.Line(x, y, x + w, y + h, m.ColorLinea, ModoLinea::Caja);
    c.DrawWidth = 1;
  }
}

}  // namespace

void RegistraImagenes(Motor& m) { m.RegistraConstruccion("IMG", Img); }

}  // namespace ss
