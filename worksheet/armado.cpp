#include "worksheet/armado.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

#include "modules/modulos.h"
#include "problems/aleatorio.h"
#include "problems/texto.h"
#include "typeset/motor.h"

namespace ss {
namespace {

constexpr int kMaxPaginas = 500;       // the bound of the page loop
constexpr int kVentana = 49;           // blocks offered to one trial page, and the widening step
constexpr int kMaxVentana = 999;       // marks of a trial are numbered 1..999
constexpr std::size_t kLargoMarca = 9;  // "#MARK=" and three digits
constexpr std::size_t kLargoJunto = 513;  // from this length a solution gets a block of its own

// The signed number-to-text: one blank before a number that is not negative.
std::string Str(long long n) { return n < 0 ? std::to_string(n) : " " + std::to_string(n); }

std::string Marca(long long bloque) { return "#MARK=" + ZeroPadCut(bloque + 1000, 3); }

long long Piso(long long a, long long b) {
  long long q = a / b;
  if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
  return q;
}

// A page's text as it is drawn, with the page number's free line. The line
// feed that ends the text only starts an empty line, which draws nothing: it
// is left out so that it takes no room at the foot of the page.
std::string ConLineaDelNumero(std::string texto, int posNumPag) {
  texto = TextoConHuecoDeNumero(texto, posNumPag);
  if (texto.ends_with("&LF")) texto.resize(texto.size() - 3);
  return texto;
}

// A trial page's text keeps one line free for the page number: at its end
// when the number's code has the foot bit, otherwise at its start when there
// is any code at all. The free line goes by the code alone, even when its
// low bits place no number.
std::string ConLineaLibre(std::string texto, int posNumPag) {
  if ((posNumPag & 8) != 0) return texto + " &LF";
  if (posNumPag != 0) return " &LF" + texto;
  return texto;
}

void GeneraTextos(Sesion& s, Problema& p) {
  std::string enunciado, solucion;
  GeneraProblema(s.gen, p.Modulo, ComandoProblema(p), enunciado, solucion);
  p.Enunciado = std::move(enunciado);
  p.Solucion = std::move(solucion);
}

// The document no longer is what any file holds.
void SinFichero(Sesion& s) {
  s.doc.ruta.clear();
  s.plataforma.TituloVentana(TituloApp());
  s.doc.Modificada = true;
}

// Finds the pages of a run of blocks on the hidden page.
//
// A trial lays the title block and the next blocks (49 at first) on the
// hidden page; the typesetter's last mark tells how many of them fitted.
// What fits of a trial fits on the page as drawn, whose lines are the same
// up to the end of its last block.
class Paginador {
 public:
  explicit Paginador(Sesion& s)
      : s_(s),
        cabecera_(CabeceraTexto(s.doc.col.cab)),
        palabraPag_(s.textos.GetL_win("Pag")),
        posNum_(s.doc.col.cab.POSNUMPAG) {}

  // Places the blocks desde..hasta (0-based, inclusive) on pages from `p`
  // on, each page holding as many whole blocks as fit. A block that does not
  // fit even at the top of a page gets that page to itself, is cut at its
  // foot, and is listed in the document's cut blocks. Returns the highest
  // page given, or p - 1 when none was.
  int Fase(int desde, int hasta, int p) {
    std::vector<Bloque>& bloques = s_.doc.bloques;
    auto bloque = [&](int b) -> Bloque& { return bloques[static_cast<std::size_t>(b)]; };
    int ultima = p - 1;
    int cursor = desde;
    std::vector<int> ventana;
    for (; p <= kMaxPaginas; ++p) {
      while (cursor <= hasta && bloque(cursor).Pagina != 0) ++cursor;
      if (cursor > hasta) break;

      // Offer the next blocks; when all of them fit and more are left, the
      // same page is tried again with a wider window.
      int ancho = kVentana;
      int resultado = 0;
      for (;;) {
        ventana.clear();
        const int fin = std::min(hasta, cursor + ancho - 1);
        for (int b = cursor; b <= fin && static_cast<int>(ventana.size()) < kMaxVentana; ++b)
          if (bloque(b).Pagina == 0) ventana.push_back(b);
        resultado = Prueba(ventana);
        if (resultado > 0 && fin < hasta && static_cast<int>(ventana.size()) < kMaxVentana) {
          ancho += kVentana;
          continue;
        }
        break;
      }

      if (resultado == 0) {
        // Not even the first block was reached: the title block alone fills
        // the page. What is left goes on this page, as far as it shows.
        for (int b = cursor; b <= hasta; ++b)
          if (bloque(b).Pagina == 0) bloque(b).Pagina = p;
        ultima = p;
        break;
      }
      std::size_t caben = ventana.size();
      if (resultado < 0) {
        const int v = std::min(-resultado, static_cast<int>(ventana.size()));
        if (v <= 1) {
          // Taller than a page: it stands alone and the page cuts it.
          caben = 1;
          s_.doc.cortados.push_back(ventana[0] + 1);
        } else {
          caben = static_cast<std::size_t>(v - 1);
        }
      }

      for (std::size_t k = 0; k < caben; ++k) bloque(ventana[k]).Pagina = p;
      ultima = p;
      if (caben < ventana.size()) {
        cursor = ventana[caben];
        s_.plataforma.Progreso(palabraPag_ + " 1/" + std::to_string(p));
      } else {
        cursor = ventana.back() + 1;
      }
    }
    return ultima;
  }

 private:
  // Lays the title block and the blocks of `ventana` on the hidden page with
  // the number's free line. The marks are numbered by their place in the
  // window (1, 2, ...), which keeps every mark distinct whatever its block's
  // number; a mark is not drawn, so the layout is that of the page. Returns
  // the typesetter's last mark: positive when all fitted, minus the place of
  // the block that did not, 0 when no mark was reached.
  int Prueba(const std::vector<int>& ventana) {
    std::string texto = cabecera_;
    for (std::size_t k = 0; k < ventana.size(); ++k) {
      const std::string& t = s_.doc.bloques[static_cast<std::size_t>(ventana[k])].Texto;
      if (t.size() >= kLargoMarca && t.starts_with("#MARK=")) {
        texto += Marca(static_cast<long long>(k) + 1);
        texto.append(t, kLargoMarca, std::string::npos);
      } else {
        texto += t;
      }
    }
    s_.plataforma.DejaCorrer();
    s_.motor.ComponerTexto(ConLineaLibre(std::move(texto), posNum_), 12, s_.paginaOculta);
    return s_.motor.UltimaMarca;
  }

  Sesion& s_;
  std::string cabecera_;
  std::string palabraPag_;
  int posNum_;
};

}  // namespace

TrabajoOcupado::TrabajoOcupado(Sesion& s) : s_(s), exterior_(s.doc.AppBusy <= 0) {
  ++s_.doc.AppBusy;
  if (exterior_) {
    s_.plataforma.Ocupado(true);
    s_.plataforma.CursorEspera(true);
  }
}

TrabajoOcupado::~TrabajoOcupado() {
  --s_.doc.AppBusy;
  if (exterior_) {
    s_.plataforma.Ocupado(false);
    s_.plataforma.CursorEspera(false);
  }
}

void Barajar(Coleccion& col, Aleatorio& rnd) {
  const int n = static_cast<int>(col.problemas.size());
  if (n == 0) return;
  auto sorteo = [&] {
    const int k = static_cast<int>(std::floor(rnd.Siguiente() * n * 0.99999)) + 1;
    return std::clamp(k, 1, n) - 1;
  };
  for (int vez = 0; vez <= n; ++vez) {
    const int a = sorteo();
    const int b = sorteo();
    if (a == b) continue;
    Problema& x = col.problemas[static_cast<std::size_t>(a)];
    Problema& y = col.problemas[static_cast<std::size_t>(b)];
    std::swap(x.Rutina, y.Rutina);
    std::swap(x.Semilla, y.Semilla);
    std::swap(x.NumVariante, y.NumVariante);
    std::swap(x.Total, y.Total);
    std::swap(x.Orden, y.Orden);
    std::swap(x.Cantidad, y.Cantidad);
    std::swap(x.Modulo, y.Modulo);
  }
}

void CrearColeccion(Sesion& s, int pista) {
  Coleccion& col = s.doc.col;
  col.cab.NPROB = static_cast<int32_t>(col.problemas.size());
  if (col.problemas.empty()) return;
  TrabajoOcupado ocupado(s);
  if (col.cab.ORDENA == 0) Barajar(col, s.gen.rnd);
  for (Problema& p : col.problemas) {
    s.plataforma.DejaCorrer();
    GeneraTextos(s, p);
  }
  ArmarBloques(s, pista);
  SinFichero(s);
}

void RecrearProblema(Sesion& s, Problema& p, int pista, bool rebuild) {
  TrabajoOcupado ocupado(s);
  GeneraTextos(s, p);
  if (!rebuild) return;
  ArmarBloques(s, pista);
  SinFichero(s);
}

void RecrearColeccion(Sesion& s) {
  Coleccion& col = s.doc.col;
  if (col.problemas.empty() || s.doc.AppBusy > 0) return;
  s.gen.rnd.Resembrar();
  const int a = static_cast<int>(std::floor(s.gen.rnd.Siguiente() * 9000));
  const int b = static_cast<int>(std::floor(s.gen.rnd.Siguiente() * 900));
  for (Problema& p : col.problemas) {
    int variante = p.NumVariante + a;
    if (variante >= 9000) variante -= 9000;
    int semilla = p.Semilla + b;
    if (semilla >= 900) semilla -= 900;
    p.NumVariante = static_cast<int16_t>(variante);
    p.Semilla = static_cast<int16_t>(semilla);
  }
  CrearColeccion(s, 1);
}

void ArmarBloques(Sesion& s, int pista) {
  TrabajoOcupado ocupado(s);
  Coleccion& col = s.doc.col;
  const ColeccionCab& cab = col.cab;
  col.cab.NPROB = static_cast<int32_t>(col.problemas.size());

  const long long color = cab.COLRESPRO;
  const long long r = color % 256;
  const long long g = Piso(color, 256) % 256;
  const long long b = Piso(color, 65536);
  const std::string fondo = "&BC=" + Str(r) + ";" + Str(g) + ";" + Str(b) + ":&FF=REC,20,5.5:";
  const std::string respuesta = s.textos.GetL_win("Answer");
  const int possol = cab.POSSOL;

  std::vector<Bloque>& bloques = s.doc.bloques;
  bloques.clear();
  s.doc.marcas.clear();
  std::vector<std::string> soluciones;
  long long numero = static_cast<long long>(cab.PROINI) - 1;
  std::vector<int32_t> deQuien;  // the problem of each gathered solution
  auto nuevoBloque = [&](std::string texto, int32_t problema, int32_t origen) {
    if (bloques.size() >= static_cast<std::size_t>(kMaxBloques)) return;
    bloques.push_back(Bloque{std::move(texto), 0, problema, origen});
  };

  for (std::size_t i = 0; i < col.problemas.size(); ++i) {
    s.plataforma.DejaCorrer();
    const Problema& p = col.problemas[i];
    const int32_t indice = static_cast<int32_t>(i + 1);
    ++numero;
    const long long c = static_cast<long long>(bloques.size()) + 1;
    const std::string etiqueta =
        fondo + cab.PROPRE + std::to_string(numero) + cab.PROSUF + " &BC=Blanco:&FF=REC,20,5.5:";
    const std::string enunciado = Marca(c) + "&+B" + etiqueta + "&-B& " + p.Enunciado;
    if (possol == 1) {
      const std::string tras = "&+I" + respuesta + "&-I:& " + p.Solucion + "&LF";
      if (p.Enunciado.size() < kLargoJunto && p.Solucion.size() < kLargoJunto) {
        nuevoBloque(enunciado + tras, indice, indice);
      } else {
        nuevoBloque(enunciado + "&LF", indice, indice);
        nuevoBloque(Marca(c + 1) + tras, -indice, indice);
      }
    } else {
      nuevoBloque(enunciado + "&LF", indice, indice);
      if ((possol == 2 || possol == 3) && !p.Solucion.empty()) {
        soluciones.push_back(" &+B" + etiqueta + "&-B& " + p.Solucion);
        deQuien.push_back(indice);
      }
    }
    s.plataforma.DejaCorrer();
  }

  if (!soluciones.empty()) {
    soluciones.front().insert(0, "&+B" + s.textos.GetL_win("Answers") + ":&-B&LF");
    for (std::size_t k = 0; k < soluciones.size(); ++k) {
      const long long c = static_cast<long long>(bloques.size()) + 1;
      nuevoBloque(Marca(c) + soluciones[k], -static_cast<int32_t>(k + 1), deQuien[k]);
    }
  }

  Paginar(s, pista);
  s.doc.Modificada = true;
}

std::string CabeceraTexto(const ColeccionCab& cab) {
  std::string t;
  if (!cab.PRETIT.empty())
    t += "&-B&FN=Arial:&FS=10:" + cab.PRETIT + "&FN=Times New Roman:&LF&LF";
  if (!cab.TITULO.empty())
    t += "#DOL(&+B&FN=Arial:&FS=12:" + cab.TITULO + "&SP=98: #DOL)&FN=Times New Roman:&-B&LF";
  if (!cab.POSTI1.empty())
    t += "&LF&-B&FN=Arial:&FS=10:" + cab.POSTI1 + "&FN=Times New Roman:&LF";
  if (!cab.POSTI2.empty())
    t += "&-B&FN=Arial:&FS=10:" + cab.POSTI2 + "&FN=Times New Roman:&LF";
  if (!t.empty()) t += "&FS=12:&LF";
  return t;
}

void Paginar(Sesion& s, int pista) {
  TrabajoOcupado ocupado(s);
  std::vector<Bloque>& bloques = s.doc.bloques;
  for (Bloque& b : bloques) b.Pagina = 0;
  s.doc.cortados.clear();
  const int total = static_cast<int>(bloques.size());

  // With the solutions on pages of their own, the statements are placed first.
  int limite = total;
  if (s.doc.col.cab.POSSOL == 3)
    for (int i = 0; i < total; ++i)
      if (bloques[static_cast<std::size_t>(i)].Problema < 0) {
        limite = i;
        break;
      }

  // Pages break at the sheet's own size, whatever the zoom of the screen.
  const double zoom = s.motor.Zoom;
  s.motor.Zoom = 1;
  Paginador paginador(s);
  const int ultima = paginador.Fase(0, limite - 1, 1);
  if (limite < total) paginador.Fase(limite, total - 1, ultima + 1);
  s.motor.Zoom = zoom;

  int paginas = 0;
  for (const Bloque& b : bloques) paginas = std::max(paginas, static_cast<int>(b.Pagina));
  s.doc.numPaginas = std::max(paginas, 1);
  s.doc.paginaActual = PaginaDeProblema(s.doc, pista);
}

int PaginaDeProblema(const Documento& doc, int pista) {
  const long long h = std::llabs(static_cast<long long>(pista));
  if (h != 0) {
    for (const Bloque& b : doc.bloques)
      if (std::llabs(static_cast<long long>(b.Problema)) == h) return b.Pagina >= 1 ? b.Pagina : 1;
    return 1;
  }
  if (doc.paginaActual >= 1 && doc.paginaActual <= doc.numPaginas) return doc.paginaActual;
  return 1;
}

std::string AvisoCorte(const Documento& doc, int bloque, TextosVentana& textos) {
  if (bloque < 1 || bloque > static_cast<int>(doc.bloques.size())) return {};
  const Bloque& b = doc.bloques[static_cast<std::size_t>(bloque - 1)];
  std::string aviso = textos.GetL_win(b.Problema < 0 ? "AnswerCut" : "ProblemCut");
  Reemplaza(aviso, "%N%", std::to_string(static_cast<long long>(doc.col.cab.PROINI) + b.Origen - 1));
  Reemplaza(aviso, "%P%", std::to_string(b.Pagina));
  return aviso;
}

std::string TextoPagina(const Documento& doc, int pagina) {
  std::string texto = CabeceraTexto(doc.col.cab);
  for (const Bloque& b : doc.bloques)
    if (b.Pagina == pagina) texto += b.Texto;
  return ConLineaDelNumero(std::move(texto), doc.col.cab.POSNUMPAG);
}

}  // namespace ss
