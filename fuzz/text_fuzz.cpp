// The text helpers and path rules on any bytes: case folding keeps lengths and agrees
// with the case-blind comparisons, numbers and booleans written by the program read
// back as themselves, the first character is a well-formed one or U+FFFD, and folders
// and joined paths keep one backslash where they meet.
#include "fuzz_support.h"

#include "core/paths.h"
#include "core/setting_values.h"
#include "core/text.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

using Fuzz::Require;

// The shortest UTF-8 form of a code point; empty for a surrogate or one beyond U+10FFFF.
std::string Utf8Of(char32_t c) {
    auto unit = [](char32_t bits) { return static_cast<char>(bits); };
    if (c < 0x80)
        return {unit(c)};
    if (c < 0x800)
        return {unit(0xC0 | (c >> 6)), unit(0x80 | (c & 0x3F))};
    if (c >= 0xD800 && c <= 0xDFFF)
        return {};
    if (c < 0x10000)
        return {unit(0xE0 | (c >> 12)), unit(0x80 | ((c >> 6) & 0x3F)), unit(0x80 | (c & 0x3F))};
    if (c <= 0x10FFFF)
        return {unit(0xF0 | (c >> 18)), unit(0x80 | ((c >> 12) & 0x3F)), unit(0x80 | ((c >> 6) & 0x3F)),
                unit(0x80 | (c & 0x3F))};
    return {};
}

// The UTF-16 length of well-formed UTF-8, read character by character; nothing for a
// text with a broken sequence, whose length Windows would count its own way.
std::optional<std::size_t> Utf16UnitsOfWellFormed(std::string_view text) {
    std::size_t units = 0;
    while (!text.empty()) {
        const std::string bytes = Utf8Of(Text::FirstCodePoint(text));
        if (bytes.empty() || !text.starts_with(bytes))
            return std::nullopt;
        units += bytes.size() == 4 ? 2 : 1;
        text.remove_prefix(bytes.size());
    }
    return units;
}

void CheckCase(const std::string& a, const std::string& b) {
    const std::string upper = Text::ToUpper(a);
    const std::string lower = Text::ToLower(a);
    Require(upper.size() == a.size() && lower.size() == a.size(), "case folding keeps the length");
    Require(Text::ToUpper(lower) == upper && Text::ToLower(upper) == lower, "case folding is one way per letter");
    Require(Text::EqualsIgnoreCase(a, upper) && Text::EqualsIgnoreCase(lower, upper), "a text equals its folded forms");
    Require(Text::EqualsIgnoreCase(a, b) == (upper == Text::ToUpper(b)), "equal ignoring case is equal upper-cased");
    Require(Text::StartsWithIgnoreCase(lower + b, upper), "a text starts with its own start in any case");
    Require(Text::StartsWithIgnoreCase(a, b) ==
                (b.size() <= a.size() && Text::EqualsIgnoreCase(a.substr(0, b.size()), b)),
            "starts with is equal over the prefix");
    if (const std::optional<std::size_t> units = Utf16UnitsOfWellFormed(a))
        Require(Text::Utf16Length(a) == *units, "one UTF-16 unit per character, two past U+FFFF");

    const char32_t first = Text::FirstCodePoint(a);
    Require(a.empty() ? first == 0 : first == U'\uFFFD' || (a.starts_with(Utf8Of(first)) && !Utf8Of(first).empty()),
            "the first character is the one its bytes spell, or U+FFFD");
    const char32_t folded = Text::FoldCase(first);
    Require(Text::FoldCase(folded) == folded, "folding a character twice is folding it once");

    const std::string_view trimmed = Text::Trim(a);
    Require(!trimmed.starts_with(' ') && !trimmed.ends_with(' ') && a.find(trimmed) != std::string::npos &&
                Text::Trim(trimmed) == trimmed,
            "trimming leaves no outer space and is done once");
}

void CheckNumbers(const std::string& a, FuzzedDataProvider& input) {
    const double value = Text::NumericValue(a);
    Require(std::isfinite(value), "a profile value reads as a finite number");
    if (const auto v = Text::ToInt16(value))
        Require(std::abs(*v - value) <= 0.5, "rounding moves a number by half at most");
    if (const std::optional<bool> b = Text::ToBool(a))
        Require(*b == (value != 0.0) || Text::EqualsIgnoreCase(Text::Trim(a), Text::BoolWord(*b)),
                "a numeric boolean is true when not 0");

    const auto n = input.ConsumeIntegral<std::int32_t>();
    Require(SettingValues::ReadInt32(SettingValues::WriteNumber(n)) == n, "a written number reads back");
    Require(Text::ToBool(Text::BoolWord(n % 2 != 0)) == (n % 2 != 0), "a written boolean reads back");
    const auto r = input.ConsumeIntegral<std::uint8_t>();
    const auto g = input.ConsumeIntegral<std::uint8_t>();
    const auto b = input.ConsumeIntegral<std::uint8_t>();
    Require(SettingValues::ReadColor(std::to_string(r) + "," + std::to_string(g) + "," + std::to_string(b)) ==
                r + 256 * g + 65536 * b,
            "\"r,g,b\" reads as r + 256 g + 65536 b");
}

void CheckPaths(const std::string& a, const std::string& b) {
    char asked = '?';
    const Paths::CurrentDirectoryOf current = [&](char drive) {
        asked = drive;
        return b;
    };
    const std::string folder = Paths::FolderOfPath(a, current);
    Require(folder.ends_with('\\'), "a folder ends with a backslash");
    const std::size_t slash = a.rfind('\\');
    if (slash != std::string::npos) {
        Require(folder == a.substr(0, slash + 1) && asked == '?', "a path's folder is up to its last backslash");
    } else {
        const char letter = static_cast<char>(a.empty() ? 0 : a[0] & ~0x20);
        const bool drive = a.size() >= 2 && a[1] == ':' && letter >= 'A' && letter <= 'Z';
        Require(asked == (drive ? a[0] : '\0') && folder.starts_with(b), "a bare name is in the current folder");
    }

    const std::string joined = Paths::Join(a, b);
    Require(joined.find("\\\\") == std::string::npos || a.find("\\\\") != std::string::npos ||
                b.find("\\\\") != std::string::npos,
            "one backslash where folder and name meet");
    if (b.find('\\') == std::string::npos)
        Require(Paths::FolderOfPath(joined, current) == Paths::Join(a, ""), "the folder of a joined name");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const std::string a = input.ConsumeRandomLengthString(256);
    const std::string b = input.ConsumeRandomLengthString(256);
    CheckCase(a, b);
    CheckNumbers(a, input);
    CheckPaths(a, b);
    return 0;
}
