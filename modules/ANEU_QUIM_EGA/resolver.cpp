// ResolverEquilibrio: the extent of a reaction from K by grid refinement.
//
// x is the extent, species j holds Cj + x cj at x, and the quotient Q(x) is
// the product of (Cj + x cj)^cj over the filled columns; Q grows with x. The
// search sweeps a grid over the possible extents, and each pass narrows the
// grid tenfold round the first point where Q reaches K.
#include <algorithm>
#include <cmath>

#include "modules/ANEU_QUIM_EGA/ega.h"

namespace ss::mod::ega {
namespace {

constexpr double kSinLimite = 9e+299;
constexpr int kPasadas = 300;
// A sweep holds about a hundred points; the cap only guards against a grid
// whose step has fallen below the resolution of its bounds.
constexpr int kPuntosSweep = 1000;

}  // namespace

Solucion ResolverEquilibrio(double K, double c1, double c2, double c3, double c4, double C1, double C2, double C3,
                            double C4) {
  std::array<double, 4> c{c1, c2, c3, c4}, C{C1, C2, C3, C4};
  Solucion out;
  if (K <= 0 || std::isnan(K)) {
    out.error = "Error: Keq <= 0";
    return out;
  }
  // A constant above 1 is turned round, which keeps the search on the side of
  // small extents. Exactly 1 stays.
  if (K > 1) {
    K = 1 / K;
    for (double& x : c) x = -x;
  }

  bool hayReactivos = true, hayProductos = true;
  for (int j = 0; j < 4; ++j) {
    if (c[j] < 0 && C[j] == 0) hayReactivos = false;
    if (c[j] > 0 && C[j] == 0) hayProductos = false;
  }
  if (!hayReactivos && !hayProductos) {
    out.error = "ERROR: Impossible reaction: the initial concentrations of reactants and products are missing";
    return out;
  }

  // Unless every reactant is present and some product absent, the whole
  // mixture is first moved back to the reactant side, until one product is
  // exactly absent.
  if (!(hayReactivos && !hayProductos)) {
    double m = kSinLimite;
    for (int j = 0; j < 4; ++j)
      if (c[j] > 0) m = std::min(m, C[j] / std::fabs(c[j]));
    for (int j = 0; j < 4; ++j)
      if (c[j] < 0) C[j] += std::fabs(c[j]) * m;
    for (int j = 0; j < 4; ++j)
      if (c[j] > 0) C[j] = std::fabs(C[j] - m * c[j]) / C[j] < 1e-6 ? 0 : C[j] - std::fabs(c[j]) * m;
  }

  // The extent cannot pass the reactant that runs out first; with no
  // reactant in the quotient the bound is 200.
  double xmax = kSinLimite;
  for (int j = 0; j < 4; ++j)
    if (c[j] < 0) xmax = std::min(xmax, C[j] / std::fabs(c[j]));
  if (xmax == kSinLimite) xmax = 200;

  auto cociente = [&](double x) {
    double q = 1;
    for (int j = 0; j < 4; ++j)
      if (c[j] != 0) q *= std::pow(C[j] + x * c[j], c[j]);
    return q;
  };

  double paso = xmax / 100, lo = 0, hi = xmax, x = 0, Q = 0;
  for (out.pasadas = 1; out.pasadas <= kPasadas; ++out.pasadas) {
    bool parado = false;
    for (int k = 1; k <= kPuntosSweep; ++k) {
      const double y = lo + k * paso;
      if (y > hi - 0.01 * paso) break;
      x = y;
      Q = cociente(x);
      if (Q >= K) {
        parado = true;
        break;
      }
    }
    if (parado) {
      lo = std::max(0.0, x - 2 * paso);
      hi = std::min(xmax, x + paso / 2);
      paso /= 10;
    } else {
      // Q stays below K up to the bound: the grid closes in on xmax.
      paso /= 10;
      hi = xmax;
      lo = std::max(0.0, xmax - 10 * paso);
    }
    if (std::fabs(Q - K) / K < 0.0001) break;
  }
  out.pasadas = std::min(out.pasadas, kPasadas);
  for (int j = 0; j < 4; ++j) out.C[j] = C[j] + x * c[j];
  return out;
}

}  // namespace ss::mod::ega
