// Faults of a generator, and the checked arithmetic that raises them.
//
// A generator never lets a failure out of GeneraProblema: whatever goes wrong
// ends as a notice in the problem's own text, with a number and a description.
// C++ arithmetic raises nothing by itself, so generators compute through the
// helpers below, which throw a GenFault carrying the classic numbers:
//
//   number  description                          raised by
//   5       "Invalid procedure call or argument" Sqrt, Log, Pow outside their domain;
//                                                also any std::exception (with its what())
//   6       "Overflow"                           a result that is not finite; a number
//                                                too large for a 32-bit integer; a "nan"
//                                                or "inf" found in a finished text
//   9       "Subscript out of range"             At() with an index outside its table
//   11      "Division by zero"                   Div() by 0
//   51      "Internal error"                     anything thrown that is not a std::exception
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace ss {

class GenFault : public std::runtime_error {
 public:
  GenFault(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  int number() const { return number_; }

  static GenFault InvalidArgument() { return {5, "Invalid procedure call or argument"}; }
  static GenFault Overflow() { return {6, "Overflow"}; }
  static GenFault Subscript() { return {9, "Subscript out of range"}; }
  static GenFault DivisionByZero() { return {11, "Division by zero"}; }
  static GenFault Internal() { return {51, "Internal error"}; }

 private:
  int number_;
};

// Checked arithmetic for generators.
double Div(double a, double b);     // 11 on b == 0 (6 for 0 / 0), 6 on a non-finite result
double Sqrt(double x);              // 5 when x < 0
double Log(double x);               // natural logarithm; 5 when x <= 0
double Log10(double x);             // 5 when x <= 0
double Pow(double base, double e);  // 5 outside the domain, 6 on overflow
double Finite(double x);            // 6 unless x is finite; else x

// Element i of a table, 0-based; 9 outside it.
template <typename Table>
decltype(auto) At(Table& table, long long i) {
  if (i < 0 || static_cast<std::size_t>(i) >= std::size(table)) throw GenFault::Subscript();
  return table[static_cast<std::size_t>(i)];
}

}  // namespace ss
