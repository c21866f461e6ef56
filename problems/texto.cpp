#include "problems/texto.h"

#include <array>
#include <charconv>
#include <cmath>

#include "problems/fallos.h"

namespace ss {
namespace {

// Code points of the bytes 0x80..0x9F; 0 marks the five bytes left undefined,
// which map to the C1 control of the same number.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t CodePoint(unsigned char b) {
  if (b >= 0x80 && b <= 0x9F) {
    char32_t c = kHigh[b - 0x80];
    return c ? c : b;
  }
  return b;
}

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (c >> 18)));
    out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}

int ByteOf(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
  for (int i = 0; i < 32; ++i) {
    if (kHigh[i] == c) return 0x80 + i;
    if (kHigh[i] == 0 && c == static_cast<char32_t>(0x80 + i)) return 0x80 + i;
  }
  return -1;
}

// Upper-case partner of each byte, built once.
struct CaseTables {
  std::array<unsigned char, 256> upper{};
  std::array<unsigned char, 256> lower{};
  CaseTables() {
    for (int i = 0; i < 256; ++i) upper[i] = lower[i] = static_cast<unsigned char>(i);
    auto pair = [this](int lo, int up) {
      upper[lo] = static_cast<unsigned char>(up);
      lower[up] = static_cast<unsigned char>(lo);
    };
    for (int c = 'a'; c <= 'z'; ++c) pair(c, c - 32);
    for (int c = 0xE0; c <= 0xFE; ++c)
      if (c != 0xF7) pair(c, c - 32);
    pair(0x9A, 0x8A);
    pair(0x9C, 0x8C);
    pair(0x9E, 0x8E);
    pair(0xFF, 0x9F);
  }
};

const CaseTables& Cases() {
  static const CaseTables tables;
  return tables;
}

}  // namespace

std::string Cp1252ToUtf8(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 4);
  for (char ch : text) AppendUtf8(out, CodePoint(static_cast<unsigned char>(ch)));
  return out;
}

std::string Utf8ToCp1252(std::string_view text, bool* exact) {
  std::string out;
  out.reserve(text.size());
  if (exact) *exact = true;
  std::size_t i = 0;
  const std::size_t n = text.size();
  auto fail = [&] {
    out.push_back('?');
    if (exact) *exact = false;
  };
  while (i < n) {
    unsigned char b = static_cast<unsigned char>(text[i]);
    int len = b < 0x80 ? 1 : (b >> 5) == 6 ? 2 : (b >> 4) == 14 ? 3 : (b >> 3) == 30 ? 4 : 0;
    if (len == 0 || i + len > n) {
      fail();
      ++i;
      continue;
    }
    char32_t c = len == 1 ? b : len == 2 ? (b & 0x1F) : len == 3 ? (b & 0x0F) : (b & 0x07);
    bool ok = true;
    for (int k = 1; k < len; ++k) {
      unsigned char cont = static_cast<unsigned char>(text[i + k]);
      if ((cont & 0xC0) != 0x80) {
        ok = false;
        break;
      }
      c = (c << 6) | (cont & 0x3F);
    }
    if (!ok) {
      fail();
      ++i;
      continue;
    }
    i += len;
    int byte = ByteOf(c);
    if (byte < 0)
      fail();
    else
      out.push_back(static_cast<char>(byte));
  }
  return out;
}

char UCaseChar(char c) { return static_cast<char>(Cases().upper[static_cast<unsigned char>(c)]); }
char LCaseChar(char c) { return static_cast<char>(Cases().lower[static_cast<unsigned char>(c)]); }

std::string UCase(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = UCaseChar(c);
  return out;
}

std::string LCase(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = LCaseChar(c);
  return out;
}

std::string_view LTrim(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && text[i] == ' ') ++i;
  return text.substr(i);
}

std::string_view RTrim(std::string_view text) {
  std::size_t n = text.size();
  while (n > 0 && text[n - 1] == ' ') --n;
  return text.substr(0, n);
}

std::string_view Trim(std::string_view text) { return RTrim(LTrim(text)); }

std::string_view Mid(std::string_view text, std::size_t start, std::size_t len) {
  if (start == 0 || start > text.size()) return {};
  return text.substr(start - 1, len);
}

std::string_view Right(std::string_view text, std::size_t len) {
  return len >= text.size() ? text : text.substr(text.size() - len);
}

double Val(std::string_view text) {
  std::size_t i = 0;
  const std::size_t n = text.size();
  while (i < n && (text[i] == ' ' || text[i] == '\t')) ++i;
  bool negative = false;
  if (i < n && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    ++i;
  }
  const std::size_t begin = i;
  auto digits = [&] {
    std::size_t from = i;
    while (i < n && text[i] >= '0' && text[i] <= '9') ++i;
    return i - from;
  };
  std::size_t mantissa = digits();
  if (i < n && text[i] == '.') {
    ++i;
    mantissa += digits();
  }
  if (mantissa == 0) return 0.0;
  std::size_t end = i;
  if (i < n && (text[i] == 'E' || text[i] == 'e')) {
    std::size_t save = i++;
    if (i < n && (text[i] == '+' || text[i] == '-')) ++i;
    end = digits() > 0 ? i : save;
  }
  // from_chars does not take a leading "+" in the exponent; copy without it.
  std::string clean;
  clean.reserve(end - begin + 1);
  for (std::size_t k = begin; k < end; ++k)
    if (!(text[k] == '+' && k > begin)) clean.push_back(text[k]);
  if (!clean.empty() && clean.front() == '.') clean.insert(clean.begin(), '0');
  double value = 0.0;
  auto res = std::from_chars(clean.data(), clean.data() + clean.size(), value);
  if (res.ec == std::errc::result_out_of_range) {
    // Past the range of a double: as large as it gets, or zero for a tiny one.
    std::size_t e = clean.find_first_of("eE");
    bool tiny = e != std::string::npos && e + 1 < clean.size() && clean[e + 1] == '-';
    value = tiny ? 0.0 : HUGE_VAL;
  } else if (res.ec != std::errc()) {
    value = 0.0;
  }
  return negative ? -value : value;
}

int32_t CLng(double x) {
  if (!std::isfinite(x)) throw GenFault::Overflow();
  double r = std::nearbyint(x);  // the default rounding mode: half to even
  if (r < -2147483648.0 || r > 2147483647.0) throw GenFault::Overflow();
  return static_cast<int32_t>(r);
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view with) {
  if (what.empty()) return;
  std::size_t pos = 0;
  while ((pos = text.find(what, pos)) != std::string::npos) {
    text.replace(pos, what.size(), with);
    pos += with.size();
  }
}

std::string DoubleUnderscores(std::string_view text) {
  std::string out;
  out.reserve(text.size() + 4);
  for (char c : text) {
    out.push_back(c);
    if (c == '_') out.push_back('_');
  }
  return out;
}

std::string ZeroPadCut(long long number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return std::string(Right(digits, width));
}

}  // namespace ss
