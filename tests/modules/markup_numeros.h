// Reading the numbers of a problem as a student reads them on the page, so
// that tests can recompute an answer from the data a statement gives.
#pragma once

#include <cctype>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace ss::test {

// Every number written in a markup text, in order: "&." is the decimal mark,
// "_ " between digits a group separator, "&E" an exponent of ten, a "-" right
// before the digits (and not after a letter or digit) a sign. Digits written as
// sub- or superscripts ("H_2O", "Ca^2^+") are part of a formula, not numbers.
inline std::vector<double> Numeros(std::string_view m) {
  auto digit = [&](std::size_t i) { return i < m.size() && std::isdigit(static_cast<unsigned char>(m[i])); };
  std::vector<double> out;
  std::size_t i = 0;
  while (i < m.size()) {
    if (!digit(i) || (i > 0 && (m[i - 1] == '_' || m[i - 1] == '^'))) {
      ++i;
      continue;
    }
    bool negative = false;
    if (i > 0 && m[i - 1] == '-') {
      const bool afterWord = i > 1 && std::isalnum(static_cast<unsigned char>(m[i - 2]));
      negative = !afterWord;
    }
    std::string text;
    auto digits = [&] {
      for (;;) {
        while (digit(i)) text += m[i++];
        if (m.substr(i, 2) == "_ " && digit(i + 2)) {
          i += 2;  // a group separator
          continue;
        }
        break;
      }
    };
    digits();
    if (m.substr(i, 2) == "&." && digit(i + 2)) {
      text += '.';
      i += 2;
      digits();
    }
    double value = std::stod(text);
    if (m.substr(i, 2) == "&E") {
      std::size_t j = i + 2;
      bool minus = false;
      if (j < m.size() && (m[j] == '-' || m[j] == '+')) minus = m[j++] == '-';
      if (digit(j)) {
        std::string e;
        while (digit(j)) e += m[j++];
        value *= std::pow(10.0, (minus ? -1 : 1) * std::stod(e));
        i = j;
      }
    }
    out.push_back(negative ? -value : value);
  }
  return out;
}

// The numbers of the text that follows `label` (up to the next "&LF").
inline std::vector<double> NumerosTras(std::string_view m, std::string_view label) {
  const std::size_t at = m.find(label);
  if (at == std::string_view::npos) return {};
  std::string_view rest = m.substr(at + label.size());
  return Numeros(rest.substr(0, rest.find("&LF")));
}

// Relative closeness, for answers rounded to a few figures.
inline bool Cerca(double a, double b, double rel) {
  return std::fabs(a - b) <= rel * std::max(std::fabs(a), std::fabs(b)) + 1e-12;
}

}  // namespace ss::test
