#include "problems/fallos.h"

#include <cmath>

namespace ss {

double Finite(double x) {
  if (!std::isfinite(x)) throw GenFault::Overflow();
  return x;
}

double Div(double a, double b) {
  // 0 / 0 has no value at all: the classic runtime calls that an overflow.
  if (b == 0.0) throw a == 0.0 ? GenFault::Overflow() : GenFault::DivisionByZero();
  return Finite(a / b);
}

double Sqrt(double x) {
  if (std::isnan(x) || x < 0.0) throw GenFault::InvalidArgument();
  return Finite(std::sqrt(x));
}

double Log(double x) {
  if (std::isnan(x) || x <= 0.0) throw GenFault::InvalidArgument();
  return Finite(std::log(x));
}

double Log10(double x) {
  if (std::isnan(x) || x <= 0.0) throw GenFault::InvalidArgument();
  return Finite(std::log10(x));
}

double Pow(double base, double e) {
  if (std::isnan(base) || std::isnan(e)) throw GenFault::InvalidArgument();
  // A negative base takes only whole exponents; 0 takes no negative one.
  if (base < 0.0 && std::floor(e) != e) throw GenFault::InvalidArgument();
  if (base == 0.0 && e < 0.0) throw GenFault::DivisionByZero();
  return Finite(std::pow(base, e));
}

}  // namespace ss
