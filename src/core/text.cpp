#include "core/text.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace Text {

namespace {

char UpperChar(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }
char LowerChar(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsSkippedBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// Radix-prefixed integers ("&HFF", "&O17"): the value is the 16- or 32-bit pattern,
// so "&HFFFF" reads as -1, as the profile values written by older tools expect.
double RadixValue(std::string_view digits, int radix) {
    std::uint64_t v = 0;
    std::size_t used = 0;
    for (char c : digits) {
        if (IsSkippedBlank(c))
            continue;
        int d = -1;
        char u = UpperChar(c);
        if (u >= '0' && u <= '9')
            d = u - '0';
        else if (radix == 16 && u >= 'A' && u <= 'F')
            d = u - 'A' + 10;
        if (d < 0 || d >= radix)
            break;
        v = v * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(d);
        if (++used > 22)
            break;
    }
    if (v <= 0xFFFF)
        return static_cast<double>(static_cast<std::int16_t>(static_cast<std::uint16_t>(v)));
    if (v <= 0xFFFFFFFFu)
        return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(v)));
    return static_cast<double>(v);
}

} // namespace

std::string ToUpper(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        c = UpperChar(c);
    return out;
}

std::string ToLower(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        c = LowerChar(c);
    return out;
}

bool EqualsIgnoreCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (UpperChar(a[i]) != UpperChar(b[i]))
            return false;
    return true;
}

bool StartsWithIgnoreCase(std::string_view s, std::string_view prefix) {
    return s.size() >= prefix.size() && EqualsIgnoreCase(s.substr(0, prefix.size()), prefix);
}

// Every byte that does not continue a sequence starts a character; four-byte sequences
// take two units.
std::size_t Utf16Length(std::string_view utf8) {
    std::size_t units = 0;
    for (unsigned char c : utf8) {
        if ((c & 0xC0) != 0x80)
            units += c >= 0xF0 ? 2 : 1;
    }
    return units;
}

char32_t FirstCodePoint(std::string_view utf8) {
    if (utf8.empty())
        return 0;
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    unsigned char lead = byte(0);
    int length = lead < 0x80 ? 1 : (lead & 0xE0) == 0xC0 ? 2 : (lead & 0xF0) == 0xE0 ? 3 : (lead & 0xF8) == 0xF0 ? 4 : 0;
    if (length == 0 || utf8.size() < static_cast<std::size_t>(length))
        return U'\uFFFD';
    char32_t c = length == 1 ? lead : lead & (0x7F >> length);
    for (int i = 1; i < length; ++i) {
        if ((byte(static_cast<std::size_t>(i)) & 0xC0) != 0x80)
            return U'\uFFFD';
        c = (c << 6) | (byte(static_cast<std::size_t>(i)) & 0x3F);
    }
    // A longer form than the character needs, a UTF-16 surrogate or a value past U+10FFFF
    // spells no character: "\xC1\x81" must not pass for 'A'.
    constexpr char32_t kShortest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kShortest[length] || (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF)
        return U'\uFFFD';
    return c;
}

char32_t FoldCase(char32_t c) {
    if ((c >= U'a' && c <= U'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7) || (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) ||
        (c >= 0x430 && c <= 0x44F))
        return c - 0x20;
    if (c >= 0x450 && c <= 0x45F)
        return c - 0x50;
    return c;
}

std::string_view Trim(std::string_view s) {
    while (!s.empty() && s.front() == ' ')
        s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ')
        s.remove_suffix(1);
    return s;
}

double NumericValue(std::string_view s) {
    std::string clean;
    clean.reserve(s.size());
    std::size_t i = 0;
    while (i < s.size() && IsSkippedBlank(s[i]))
        ++i;
    if (i + 1 < s.size() && s[i] == '&') {
        char r = UpperChar(s[i + 1]);
        if (r == 'H')
            return RadixValue(s.substr(i + 2), 16);
        if (r == 'O')
            return RadixValue(s.substr(i + 2), 8);
    }
    bool sign = true, point = true, exponent = true, digitsSeen = false;
    for (; i < s.size(); ++i) {
        char c = s[i];
        if (IsSkippedBlank(c))
            continue;
        if (c >= '0' && c <= '9') {
            clean += c;
            digitsSeen = true;
            sign = false;
        } else if ((c == '+' || c == '-') && sign) {
            clean += c;
            sign = false;
        } else if (c == '.' && point) {
            clean += c;
            point = false;
            sign = false;
        } else if ((c == 'e' || c == 'E' || c == 'd' || c == 'D') && exponent && digitsSeen) {
            clean += 'e';
            exponent = false;
            point = false;
            sign = true;
        } else {
            break;
        }
    }
    if (!digitsSeen)
        return 0.0;
    // A dangling exponent or sign ("12e", "12e-") is not part of the number.
    while (!clean.empty() && (clean.back() == 'e' || clean.back() == '+' || clean.back() == '-'))
        clean.pop_back();
    char* end = nullptr;
    double v = std::strtod(clean.c_str(), &end);
    return std::isfinite(v) ? v : 0.0;
}

namespace {

template <typename T>
std::optional<T> RoundInto(double v) {
    if (!std::isfinite(v))
        return std::nullopt;
    double r = std::nearbyint(v); // the default rounding mode is half to even
    if (r < static_cast<double>(std::numeric_limits<T>::min()) || r > static_cast<double>(std::numeric_limits<T>::max()))
        return std::nullopt;
    return static_cast<T>(r);
}

} // namespace

std::optional<std::int16_t> ToInt16(double v) { return RoundInto<std::int16_t>(v); }
std::optional<std::int32_t> ToInt32(double v) { return RoundInto<std::int32_t>(v); }
std::optional<std::uint8_t> ToByte(double v) { return RoundInto<std::uint8_t>(v); }

std::optional<bool> ToBool(std::string_view s) {
    std::string_view t = Trim(s);
    if (EqualsIgnoreCase(t, "True"))
        return true;
    if (EqualsIgnoreCase(t, "False"))
        return false;
    if (t.empty())
        return std::nullopt;
    // A number: the whole text must be numeric, otherwise it is not a boolean.
    bool anyDigit = false;
    for (char c : t) {
        if (c >= '0' && c <= '9')
            anyDigit = true;
        else if (c != '-' && c != '+' && c != '.' && c != 'e' && c != 'E')
            return std::nullopt;
    }
    if (!anyDigit)
        return std::nullopt;
    return NumericValue(t) != 0.0;
}

std::size_t FirstCodePointLength(std::string_view utf8) {
    if (utf8.empty())
        return 0;
    const unsigned char lead = static_cast<unsigned char>(utf8[0]);
    const std::size_t length = lead < 0x80 ? 1 : (lead & 0xE0) == 0xC0 ? 2 : (lead & 0xF0) == 0xE0 ? 3 : (lead & 0xF8) == 0xF0 ? 4 : 0;
    if (length == 0 || utf8.size() < length)
        return 1;
    for (std::size_t i = 1; i < length; ++i)
        if ((static_cast<unsigned char>(utf8[i]) & 0xC0) != 0x80)
            return 1;
    return length;
}

std::string Utf8(char32_t c) {
    std::string bytes;
    if (c < 0x80) {
        bytes += static_cast<char>(c);
    } else if (c < 0x800) {
        bytes += static_cast<char>(0xC0 | (c >> 6));
        bytes += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        bytes += static_cast<char>(0xE0 | (c >> 12));
        bytes += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        bytes += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        bytes += static_cast<char>(0xF0 | (c >> 18));
        bytes += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        bytes += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        bytes += static_cast<char>(0x80 | (c & 0x3F));
    }
    return bytes;
}

} // namespace Text
