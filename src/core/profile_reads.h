// What the profile functions give key by key, worked out from one read of a whole
// section. A key read searches the file anew each time, so a big menu file read key by
// key took seconds; one read of the section and these rules give the same values.
// Templated on the character type: the shell works on UTF-16 text, where the platform's
// cut of a value falls, and the tests on plain text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ProfileReads {

template <class Char>
using View = std::basic_string_view<Char>;

template <class Char>
struct SectionLine {
    View<Char> key;
    std::optional<View<Char>> value; // none for a line without '='
};

template <class Char>
View<Char> TrimBlanks(View<Char> text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

// A line as the section read gives it, split at its first '='; both sides trimmed of
// spaces and tabs, as the platform trims them.
template <class Char>
SectionLine<Char> SplitLine(View<Char> line) {
    const std::size_t equals = line.find(Char('='));
    if (equals == View<Char>::npos)
        return {TrimBlanks(line), std::nullopt};
    return {TrimBlanks(line.substr(0, equals)), TrimBlanks(line.substr(equals + 1))};
}

// A value of two or more characters that opens and closes with the same quote,
// single or double, loses the pair; any other value stays as it is.
template <class Char>
View<Char> Unquoted(View<Char> value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        return value.substr(1, value.size() - 2);
    return value;
}

// Key names compare with their ASCII letters folded, as the platform's profile
// functions compare them under Wine; the program's own names are all ASCII.
template <class Char>
constexpr Char FoldedLetter(Char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c - 'A' + 'a') : c;
}

template <class Char>
struct FoldedHash {
    std::size_t operator()(View<Char> name) const {
        std::size_t hash = 0;
        for (Char c : name)
            hash = hash * 131 + static_cast<std::size_t>(FoldedLetter(c));
        return hash;
    }
};

template <class Char>
struct FoldedEqual {
    bool operator()(View<Char> a, View<Char> b) const {
        if (a.size() != b.size())
            return false;
        for (std::size_t i = 0; i < a.size(); ++i)
            if (FoldedLetter(a[i]) != FoldedLetter(b[i]))
                return false;
        return true;
    }
};

// The keys a read of the section's key names lists, with the value a read of each key
// gives: the names of the lines that have an '=', in file order, up to the first empty
// name (which ends the list); each reads the value of the first line of its name,
// unquoted and cut to `valueLimit` characters. That first line may lack an '=': the key
// then reads empty. Duplicates stay, each reading the first. The views point into `lines`.
template <class Char>
std::vector<std::pair<View<Char>, View<Char>>> KeysAsRead(const std::vector<View<Char>>& lines,
                                                          std::size_t valueLimit) {
    std::vector<SectionLine<Char>> split;
    split.reserve(lines.size());
    std::unordered_map<View<Char>, std::size_t, FoldedHash<Char>, FoldedEqual<Char>> firstOfName(lines.size());
    for (View<Char> line : lines) {
        split.push_back(SplitLine(line));
        firstOfName.try_emplace(split.back().key, split.size() - 1);
    }
    std::vector<std::pair<View<Char>, View<Char>>> keys;
    keys.reserve(split.size());
    for (const SectionLine<Char>& line : split) {
        if (!line.value)
            continue;
        if (line.key.empty())
            break;
        const std::optional<View<Char>>& first = split[firstOfName.at(line.key)].value;
        keys.emplace_back(line.key, first ? Unquoted(*first).substr(0, valueLimit) : View<Char>{});
    }
    return keys;
}

} // namespace ProfileReads
