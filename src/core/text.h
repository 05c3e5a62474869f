// Small text helpers shared by the core: ASCII case folding, blank trimming and
// the number and boolean conversions used for values read from profile files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Text {

// Case folding of ASCII letters only; other bytes (UTF-8 sequences) pass unchanged.
std::string ToUpper(std::string_view s);
std::string ToLower(std::string_view s);
bool EqualsIgnoreCase(std::string_view a, std::string_view b);
bool StartsWithIgnoreCase(std::string_view s, std::string_view prefix);

// The number of UTF-16 units the UTF-8 text takes, which is how Windows measures paths.
std::size_t Utf16Length(std::string_view utf8);

// The first character of a UTF-8 text; 0 for an empty text, U+FFFD for a broken sequence.
char32_t FirstCodePoint(std::string_view utf8);

// The bytes the first character of a UTF-8 text takes, as FirstCodePoint reads it: 1 for
// a broken sequence, 0 for an empty text.
std::size_t FirstCodePointLength(std::string_view utf8);

// A character as UTF-8.
std::string Utf8(char32_t c);

// The upper-case form of a letter of the Latin-1, Greek and Cyrillic alphabets (the
// scripts whose cases differ by a fixed offset); any other character as it is.
char32_t FoldCase(char32_t c);

// Removes leading and trailing spaces (not tabs), as the profile code expects.
std::string_view Trim(std::string_view s);

// The numeric value of the leading number in a text, the way profile values are read:
// blanks, tabs and line feeds are skipped, a sign, digits, one decimal point and an
// exponent are taken, "&H" and "&O" introduce hex and octal; reading stops at the
// first character that cannot continue the number. "12abc" gives 12, "abc" gives 0.
double NumericValue(std::string_view s);

// Round half to even, then check the range; nullopt when the value does not fit.
std::optional<std::int16_t> ToInt16(double v);
std::optional<std::int32_t> ToInt32(double v);
std::optional<std::uint8_t> ToByte(double v);

// "True"/"False" in any case, or a number (non-zero is true, so "-1" is true).
// nullopt for text that is neither.
std::optional<bool> ToBool(std::string_view s);

// Booleans are 0 / -1 in memory and "True" / "False" in files.
inline const char* BoolWord(bool b) { return b ? "True" : "False"; }

} // namespace Text
