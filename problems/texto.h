// Text helpers shared by the whole program.
//
// The document's text is single-byte Windows-1252: one character is one byte,
// exactly as the file format and the markup count positions. These helpers
// work on that text; conversion to and from UTF-8 happens only at the edges.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ss {

// Windows-1252 <-> UTF-8. A code point with no Windows-1252 form becomes '?'
// and clears *exact when it is given.
std::string Cp1252ToUtf8(std::string_view text);
std::string Utf8ToCp1252(std::string_view text, bool* exact = nullptr);

// Upper and lower case over Windows-1252, by table: never the C locale.
char UCaseChar(char c);
char LCaseChar(char c);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

// Blanks (spaces only) removed at the ends, as the classic Trim does.
std::string_view Trim(std::string_view text);
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);

// Characters start..start+len-1 (1-based); empty or shorter when the text is
// shorter, never an error.
std::string_view Mid(std::string_view text, std::size_t start, std::size_t len);
std::string_view Right(std::string_view text, std::size_t len);

// The one reader of numbers from text: leading blanks and tabs, an optional
// sign, digits, an optional "." fraction, an optional E exponent; it stops at
// the first other character and gives 0 when there is no number. Never throws.
double Val(std::string_view text);

// Round half to even to a 32-bit integer. A value outside the range (or not a
// number) throws the overflow fault of the generator context.
int32_t CLng(double x);

// Replace every occurrence of `what` by `with`, scanning left to right.
void ReplaceAll(std::string& text, std::string_view what, std::string_view with);

// Each "_" doubled, so that a name shows its underscores instead of being
// read as a subscript.
std::string DoubleUnderscores(std::string_view text);

// The last `width` characters of `number` written with leading zeros: the
// writer of every fixed-width numeric column (commands, catalogue records).
std::string ZeroPadCut(long long number, std::size_t width);

}  // namespace ss
