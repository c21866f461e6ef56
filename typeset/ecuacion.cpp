// A chemical equation over a table (#CEQ): each term and the arrow head a
// column, the cells of each row are centred under them, and a rule parts the
// equation from the table. The first column holds the rows' names.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "problems/texto.h"
#include "typeset/construccion.h"

namespace ss {
namespace {

using namespace construccion;

constexpr int kMaxColumnas = 9;

struct Tabla {
  int filas = 0;                      // rows of cells under the equation
  std::vector<std::string> cabeza;    // per column: "" for the first, a term, or the arrow
  int flecha = -1;                    // the arrow's column
  std::array<std::array<std::string, 10>, kMaxColumnas> celda;  // [column][row], both from 1
};

// The equation cut at its first arrow, each side at every " + ".
Tabla LeeTabla(std::string_view dentro) {
  Tabla t;
  if (!dentro.empty() && dentro[0] >= '0' && dentro[0] <= '9') t.filas = dentro[0] - '0';
  const std::size_t q1 = dentro.find('\'');
  const std::size_t q2 = q1 == dentro.npos ? dentro.npos : dentro.find('\'', q1 + 1);
  if (q2 == dentro.npos) return t;
  const std::string_view ecuacion = dentro.substr(q1 + 1, q2 - q1 - 1);
  struct Busca {
    std::string_view texto, flecha;
  };
  static constexpr Busca kFlechas[] = {{"&Q", "&Q"}, {"&ars", "&ars"}, {"&als", "&als"},
                                       {"==", "&Q"}, {"=", "&ars"}};
  std::size_t en = ecuacion.npos;
  Busca hallada{};
  for (const Busca& b : kFlechas)
    if (const std::size_t k = ecuacion.find(b.texto); k != ecuacion.npos) {
      en = k;
      hallada = b;
      break;
    }
  auto terminos = [&t](std::string_view lado) {
    while (true) {
      const std::size_t mas = lado.find(" + ");
      const std::string_view termino = Trim(lado.substr(0, mas));
      if (!termino.empty()) t.cabeza.emplace_back(termino);
      if (mas == lado.npos) break;
      lado = lado.substr(mas + 3);
    }
  };
  t.cabeza.emplace_back();
  terminos(ecuacion.substr(0, en));
  if (en != ecuacion.npos) {
    t.flecha = static_cast<int>(t.cabeza.size());
    t.cabeza.emplace_back(hallada.flecha);
    terminos(ecuacion.substr(en + hallada.texto.size()));
  }
  if (t.cabeza.size() > kMaxColumnas) t.cabeza.resize(kMaxColumnas);
  if (t.flecha >= kMaxColumnas) t.flecha = -1;
  // Cells #Acr( .. #Acr).
  const std::string_view celdas = dentro.substr(q2 + 1);
  for (std::size_t i = 0; i + 5 <= celdas.size(); ++i) {
    const char c = celdas[i + 2], r = celdas[i + 3];
    if (celdas.substr(i, 2) != "#A" || c < '1' || c > '9' || r < '1' || r > '9' || celdas[i + 4] != '(')
      continue;
    const std::string abre(celdas.substr(i, 5));
    bool ok = false;
    const std::string b = ExtraeBloque(celdas.substr(i), abre, "#A" + std::string{c, r} + ")", &ok);
    if (c - '0' <= static_cast<int>(t.cabeza.size()) && r - '0' <= t.filas)
      t.celda[c - '1'][r - '0'] = b.substr(5, b.size() - 10);
    i += (ok ? b.size() : abre.size()) - 1;
  }
  return t;
}

void Ceq(Motor& m, std::string_view bloque, int caja) {
  Paso p(m, caja);
  const Tabla t = LeeTabla(Interior(bloque));
  const double H = p.H;
  const int columnas = static_cast<int>(t.cabeza.size());
  // Argument 10 c + r is column c, row r (row 0 the equation); the "+" before
  // a column is argument 90 + c.
  auto argumento = [&](int col, int fila) { return col * 10 + fila; };
  constexpr int kMas = 90;
  auto conMas = [&](int col) { return col > 1 && col != t.flecha && col - 1 != t.flecha; };
  auto texto = [&](int col, int fila) -> const std::string& {
    return fila == 0 ? t.cabeza[col] : t.celda[col][fila];
  };
  const double hueco = p.c.TextWidth(" + ");
  // The rows of cells are H apart; the first keeps clear of the equation's
  // subscripts, with the rule in the gap between them.
  auto cabezaAlta = [&](auto&& caja) {
    double alto = H;
    for (int col = 0; col < columnas; ++col)
      if (!t.cabeza[col].empty()) alto = std::max(alto, caja(argumento(col, 0)).Alto);
    return alto + 0.1 * H;
  };
  auto yFila = [&](int fila, double cabeza) { return fila == 0 ? 0 : cabeza + (fila - 1) * H; };

  if (!p.dibujo) {
    double ancho = 0;
    for (int col = 0; col < columnas; ++col) {
      double w = 0;
      if (conMas(col)) p.Mide(kMas + col, "+");
      for (int fila = 0; fila <= t.filas; ++fila)
        if (!texto(col, fila).empty()) w = std::max(w, W(p.Mide(argumento(col, fila), texto(col, fila))));
      ancho += w + (col > 0 ? hueco : 0);
    }
    Caja own;
    own.Ancho = ancho;
    // The table's middle row stands on the axis of the line: the equation and
    // its rows of cells count alike.
    const double cabeza = cabezaAlta([&](int k) { return p.Hijo(k); });
    own.Eje = t.filas * H / 2 + 0.7 * H;
    own.Alto = columnas > 0 ? yFila(t.filas + 1, cabeza) : 0;
    own.Sobre = 0;
    p.Escribe(own, bloque);
    return;
  }

  std::vector<double> anchoCol(static_cast<std::size_t>(columnas), 0);
  for (int col = 0; col < columnas; ++col)
    for (int fila = 0; fila <= t.filas; ++fila)
      if (!texto(col, fila).empty())
        anchoCol[col] = std::max(anchoCol[col], W(p.Hijo(argumento(col, fila))));
  const double cabeza = cabezaAlta([&](int k) { return p.Hijo(k); });
  double x = p.X0;
  const double grosor = p.Largo(0.05, 1);
  for (int col = 0; col < columnas; ++col) {
    if (col > 0) {
      // A "+" between two terms of the same side, in the middle of their gap.
      if (conMas(col)) p.Dibuja(kMas + col, "+", x + (hueco - W(p.Hijo(kMas + col))) / 2, p.Y0);
      x += hueco;
    }
    for (int fila = 0; fila <= t.filas; ++fila) {
      if (texto(col, fila).empty()) continue;
      const Caja b = p.Hijo(argumento(col, fila));
      p.Dibuja(argumento(col, fila), texto(col, fila), x + (anchoCol[col] - W(b)) / 2 + b.Adelanto,
               p.Y0 + yFila(fila, cabeza));
    }
    x += anchoCol[col];
  }
  if (t.filas > 0 && columnas > 0) {
    const double y = p.Y0 + cabeza - 0.05 * H;
    p.Raya(p.X0, y, x, y, grosor, m.ColorLinea);
  }
}

}  // namespace

void RegistraEcuaciones(Motor& m) { m.RegistraConstruccion("CEQ", Ceq); }

}  // namespace ss
