// Number and text services of the generators: drawing values, rounding them,
// and writing them as markup. Every number reaches a problem through
// NumCifras, NumTexto or NumAgrupado, which write the decimal mark as "&."
// so that the page shows the separator the user chose.
#pragma once

#include <string>
#include <string_view>

namespace ss {

class Aleatorio;

// A value from min to max: continuous when |step / (max - min)| <= 1e-6,
// else on the grid min + k * step (the end points weigh half). With noZero
// not 0 a value of 0 is drawn again. After 100000 fruitless tries it gives 0
// and sets rnd's failed-range flag. min == max gives min without a draw.
double AleatorioEn(Aleatorio& rnd, double min, double max, double step, double noZero = 1);

// x rounded to a whole number when it lies within 1e-7 of one.
double EnteroSiCasi(double x);

// A chance: a fresh draw strictly above p, both compared as 32-bit floats.
bool AzarSupera(Aleatorio& rnd, double p);

// x rounded at the digit of 10^(n + 1), halves upward: RedondeaPot(1234, 1)
// is 1200, RedondeaPot(2.345, -3) is 2.35.
double RedondeaPot(double x, double n);

// The shortest text of x with at most 15 significant digits, "&." as the
// decimal mark and "&E" before an exponent: -0.5 -> "-0&.5", 1.5E-07 -> "1&.5&E-7".
std::string NumTexto(double x);

// x to `cifras` significant figures: fixed form from 0.01 up to 100000
// (trailing zeros dropped), power form otherwise (trailing zeros kept).
std::string NumCifras(double x, double cifras);

// Digits in groups of three, "_ " between groups, when there are more than 4
// digits in all. `texto`, when not empty, is the number to write ("," or "&."
// as its mark); otherwise x is.
std::string NumAgrupado(double x, std::string_view texto = {});

double ParteDecimal(double x);
double MCD(double a, double b);
double MCM(double a, double b);

// num/den reduced, as a number or as the fraction construct.
std::string FraccionTexto(double num, double den);

std::string Capitaliza(std::string_view s);
// "d'" before a vowel (or h and a vowel), else "de ": Catalan-style elision.
std::string DeNombre(std::string_view nombre, bool mayuscula);
// "a " or "an " as the number is read aloud in English.
std::string ArticuloAn(double x, bool mayuscula);

}  // namespace ss
