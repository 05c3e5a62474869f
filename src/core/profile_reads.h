// What the profile functions give key by key, worked out from one read of a whole
// section. A key read searches the file anew each time, so a big menu file read key by
// key took seconds; one read of the section and these rules give the same values.
// Templated on the string type: the shell works on UTF-16 text, where the platform's
// cut of a value falls, and the tests on plain text.
#pragma once

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ProfileReads {

template <class String>
struct SectionLine {
    String key;
    std::optional<String> value; // none for a line without '='
};

// A line as the section read gives it, split at its first '='; both sides trimmed of
// spaces and tabs, as the platform trims them.
template <class String>
SectionLine<String> SplitLine(const String& line) {
    auto trim = [](String text) {
        const auto blank = [](auto c) { return c == ' ' || c == '\t'; };
        std::size_t first = 0;
        while (first < text.size() && blank(text[first]))
            ++first;
        std::size_t last = text.size();
        while (last > first && blank(text[last - 1]))
            --last;
        return text.substr(first, last - first);
    };
    const std::size_t equals = line.find('=');
    if (equals == String::npos)
        return {trim(line), std::nullopt};
    return {trim(line.substr(0, equals)), trim(line.substr(equals + 1))};
}

// A value of two or more characters that opens and closes with the same quote,
// single or double, loses the pair; any other value stays as it is.
template <class String>
String Unquoted(const String& value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        return value.substr(1, value.size() - 2);
    return value;
}

// The keys a read of the section's key names lists, with the value a read of each key
// gives: the names of the lines that have an '=', in file order, up to the first empty
// name (which ends the list); each reads the value of the first line of its name,
// compared after `foldCase`, unquoted and cut to `valueLimit` characters. That first
// line may lack an '=': the key then reads empty. Duplicates stay, each reading the first.
template <class String, class FoldCase>
std::vector<std::pair<String, String>> KeysAsRead(const std::vector<String>& lines, FoldCase foldCase,
                                                  std::size_t valueLimit) {
    std::vector<SectionLine<String>> split;
    split.reserve(lines.size());
    std::unordered_map<String, std::size_t> firstOfName;
    for (const String& line : lines) {
        split.push_back(SplitLine(line));
        firstOfName.try_emplace(foldCase(split.back().key), split.size() - 1);
    }
    std::vector<std::pair<String, String>> keys;
    keys.reserve(split.size());
    for (const SectionLine<String>& line : split) {
        if (!line.value)
            continue;
        if (line.key.empty())
            break;
        const std::optional<String>& first = split[firstOfName.at(foldCase(line.key))].value;
        String value = first ? Unquoted(*first) : String{};
        if (value.size() > valueLimit)
            value.resize(valueLimit);
        keys.emplace_back(line.key, std::move(value));
    }
    return keys;
}

} // namespace ProfileReads
