#include "problems/numeros.h"

#include <cmath>
#include <cstdio>

#include "problems/aleatorio.h"
#include "problems/fallos.h"
#include "problems/texto.h"

namespace ss {

double EnteroSiCasi(double x) {
  const double scaled = x * 1e7;
  if (!std::isfinite(scaled)) return x;  // the test is skipped on overflow
  const double whole = std::floor(x + 0.5);
  return std::floor(scaled + 0.5) == whole * 1e7 ? whole : x;
}

double AleatorioEn(Aleatorio& rnd, double min, double max, double step, double noZero) {
  rnd.RangoFallido = false;
  const double d = max - min;
  if (d == 0) return min;
  long tries = 0;
  double v;
  for (;;) {
    const double r = rnd.Siguiente();
    if (std::fabs(step / d) <= 0.000001)
      v = (max - min) * r + min;
    else
      v = std::floor(r * (d / step) + 0.5) * step + min;
    if (++tries > 100000) {
      rnd.RangoFallido = true;
      return 0;
    }
    v = EnteroSiCasi(v);
    if (!(noZero != 0 && v == 0)) return v;
  }
}

bool AzarSupera(Aleatorio& rnd, double p) {
  return static_cast<float>(rnd.Siguiente()) > static_cast<float>(p);
}

double RedondeaPot(double x, double n) {
  const double s = std::pow(10.0, -1.0 - n);
  return std::floor(x * s + 0.5) / s;
}

namespace {

// The plain text of a non-negative value, "." as the mark, at most 15
// significant digits, trailing zeros dropped; the exponent form ("1.5E-07",
// "1E+15") below 1E-4 and from 1E+15 on.
std::string TextoPlano(double a) {
  if (a == 0) return "0";
  if (!std::isfinite(a)) throw GenFault::Overflow();
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.14e", a);
  std::string s(buf);
  const std::size_t epos = s.find('e');
  std::string digits = s.substr(0, 1) + s.substr(2, epos - 2);  // 15 digits
  const int exp = std::stoi(s.substr(epos + 1));
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
  if (exp >= 15 || exp < -4) {
    std::string m = digits.substr(0, 1);
    if (digits.size() > 1) m += "." + digits.substr(1);
    char e[16];
    std::snprintf(e, sizeof e, "E%c%02d", exp < 0 ? '-' : '+', std::abs(exp));
    return m + e;
  }
  if (exp < 0) return "0." + std::string(static_cast<std::size_t>(-exp - 1), '0') + digits;
  const std::size_t whole = static_cast<std::size_t>(exp) + 1;
  if (digits.size() <= whole) return digits + std::string(whole - digits.size(), '0');
  return digits.substr(0, whole) + "." + digits.substr(whole);
}

}  // namespace

std::string NumTexto(double x) {
  std::string t = TextoPlano(std::fabs(x));
  if (!t.empty() && t.front() == '.') t.insert(t.begin(), '0');
  const std::size_t e = t.find('E');
  if (e != std::string::npos) {
    std::string exp = t.substr(e + 1);
    t = t.substr(0, e) + "&E";
    if (!exp.empty() && exp.front() == '-') {
      t += "-";
      exp.erase(0, 1);
    }
    if (!exp.empty() && exp.front() == '0') exp.erase(0, 1);
    t += exp;
  }
  if (x < 0) t.insert(t.begin(), '-');
  ReplaceAll(t, ".", "&.");
  return t;
}

std::string NumCifras(double x, double cifras) {
  const double a = std::fabs(x);
  if (a == 0) return "0";
  if (!std::isfinite(a)) throw GenFault::Overflow();
  const double sign = x < 0 ? -1 : 1;
  double e = std::floor(std::log(a) / std::log(10.0));
  if (a >= 0.01 && a < 100000) return NumTexto(sign * RedondeaPot(a, e - cifras));
  const double m = RedondeaPot(a, e - cifras) / std::pow(10.0, e);
  std::string t = NumTexto(m);
  if (t == "10") {
    t = "1";
    e += 1;
  }
  if (t.find("&.") == std::string::npos && cifras >= 2) t += "&.";
  // Trailing zeros fill the mantissa up to its figures. A one-figure mantissa
  // has no decimal mark to count, and zeros after it would change its value.
  if (cifras >= 2)
    while (static_cast<double>(t.size()) < cifras + 2) t += '0';
  t += "&E" + NumTexto(e);
  return sign < 0 ? "-" + t : t;
}

namespace {

// Blanks after every third digit, counted from the right or from the left.
std::string Agrupa(const std::string& digits, bool fromRight) {
  std::string out;
  const std::size_t n = digits.size();
  for (std::size_t i = 0; i < n; ++i) {
    out += digits[i];
    const std::size_t done = i + 1;
    if (fromRight ? ((n - done) % 3 == 0 && done < n) : (done % 3 == 0 && done < n)) out += ' ';
  }
  return out;
}

}  // namespace

std::string NumAgrupado(double x, std::string_view texto) {
  std::string s, sign;
  if (!texto.empty()) {
    s = std::string(Trim(texto));
    ReplaceAll(s, "&.", ".");
    ReplaceAll(s, ",", ".");
    ReplaceAll(s, " ", "");
    if (!s.empty() && s.front() == '-') {
      sign = "-";
      s.erase(0, 1);
    }
  } else {
    s = TextoPlano(std::fabs(x));
    if (x < 0) sign = "-";
  }
  if (!s.empty() && s.front() == '.') s.insert(s.begin(), '0');
  std::string tail;
  if (const std::size_t e = s.find('E'); e != std::string::npos) {
    tail = "&" + s.substr(e);
    s.erase(e);
  }
  std::string whole = s, decimals;
  bool hasPoint = false;
  if (const std::size_t p = s.find('.'); p != std::string::npos) {
    whole = s.substr(0, p);
    decimals = s.substr(p + 1);
    hasPoint = true;
  }
  if (whole.size() + decimals.size() > 4) {
    whole = std::string(Trim(Agrupa(whole, true)));
    decimals = Agrupa(decimals, false);
  }
  std::string out = sign + whole;
  if (hasPoint && !decimals.empty()) out += "&." + decimals;
  out += tail;
  ReplaceAll(out, " ", "_ ");
  return out;
}

double ParteDecimal(double x) {
  const double a = std::fabs(x);
  if (a > 1e15) return 0;
  const double sign = x > 0 ? 1 : x < 0 ? -1 : 0;
  return (a - std::floor(a)) * sign;
}

namespace {
double Resto(double p, double q) { return p - std::floor(Div(p, q)) * q; }
}  // namespace

double MCD(double a, double b) {
  a = std::fabs(a);
  b = std::fabs(b);
  if (a > 1e10 || b > 1e10 || (a == 0 && b == 0)) return 1;
  if (a == 0) return b;
  if (b == 0) return a;
  while (b != 0) {
    const double r = Resto(a, b);
    a = b;
    b = r;
  }
  return a;
}

double MCM(double a, double b) {
  double p = a, q = b;
  while (q != 0) {
    const double r = Resto(p, q);
    p = q;
    q = r;
  }
  return Div(a * b, p);
}

std::string FraccionTexto(double num, double den) {
  const double g = MCD(num, den);
  num = Div(num, g);
  den = Div(den, g);
  if (den < 0) {
    num = -num;
    den = -den;
  }
  if (num == 0) den = 1;
  if (den == 1) return NumTexto(num);
  return "#COC(" + NumTexto(num) + (num < 0 ? "  " : "") + "#N)(" + NumTexto(den) + "#COC)";
}

std::string Capitaliza(std::string_view s) {
  std::string out(s);
  if (!out.empty()) out[0] = UCaseChar(out[0]);
  return out;
}

std::string DeNombre(std::string_view nombre, bool mayuscula) {
  static constexpr std::string_view kVocales =
      "aeiou\xE1\xE9\xED\xF3\xFA\xE0\xE8\xEC\xF2\xF9\xE4\xEB\xEF\xF6\xFC";
  const std::string p = mayuscula ? "D" : "d";
  // An empty character counts as a vowel, as a search for nothing finds it.
  auto vocal = [](std::string_view text, std::size_t i) {
    return i >= text.size() || kVocales.find(LCaseChar(text[i])) != std::string_view::npos;
  };
  const bool elide = vocal(nombre, 0) ||
                     (LCaseChar(nombre[0]) == 'h' && vocal(nombre, 1));
  return elide ? p + "'" + std::string(nombre) : p + "e " + std::string(nombre);
}

std::string ArticuloAn(double x, bool mayuscula) {
  const std::string a = mayuscula ? "A " : "a ";
  const std::string an = mayuscula ? "An " : "an ";
  if (x <= 0 || std::fabs(x) < 1) return a;
  const double t = std::floor(std::fabs(x));
  if (t == 1 || t == 8 || t == 11 || t == 18) return an;
  static constexpr double kTramos[][2] = {
      {11000, 12000},     {11000000, 12000000}, {18000, 19000},     {18000000, 19000000},
      {80, 90},           {800, 900},           {8000, 9000},       {80000, 90000},
      {800000, 900000},   {8000000, 9000000},   {100, 200},         {1000, 2000},
      {100000, 200000},   {1000000, 2000000}};
  for (const auto& tramo : kTramos)
    if (t >= tramo[0] && t < tramo[1]) return an;
  return a;
}

}  // namespace ss
