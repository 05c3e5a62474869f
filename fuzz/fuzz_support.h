// What the fuzz targets share: the input read as profile text, writes read back as
// sections, and the check that stops the run on a broken property.
#pragma once

#include "core/profile.h"
#include "core/text.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Fuzz {

// A broken property is a finding: say which, then stop where the fuzzer sees a crash.
inline void Require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "property broken: %s\n", property);
    __builtin_trap();
}

using Sections = std::unordered_map<std::string, ProfileSection>;

// Lines split at "\n" (a "\r" before it dropped); a line is "key=value" at its first '='
// and a line without '=' is skipped, as the profile functions skip it.
inline ProfileSection SectionOf(std::string_view text) {
    ProfileSection section;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (const std::size_t equals = line.find('='); equals != std::string_view::npos)
            section.push_back({std::string(line.substr(0, equals)), std::string(line.substr(equals + 1))});
    }
    return section;
}

// Like SectionOf, with "[NAME]" lines starting sections; names are kept upper-cased,
// since the profile functions find sections without regard to case. Lines before the
// first section name belong to none.
inline Sections SectionsOf(std::string_view text) {
    Sections sections;
    ProfileSection* current = nullptr;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (line.size() >= 2 && line.front() == '[' && line.back() == ']')
            current = &sections[Text::ToUpper(line.substr(1, line.size() - 2))];
        else if (const std::size_t equals = line.find('='); current && equals != std::string_view::npos)
            current->push_back({std::string(line.substr(0, equals)), std::string(line.substr(equals + 1))});
    }
    return sections;
}

// The writes as an emptied file holds them once written: a key's first write puts it at
// the end of its section, a later write of the same key (in any case) replaces its value.
inline Sections SectionsOf(const ProfileWrites& writes) {
    Sections sections;
    // Where each key stands in its section, by upper-cased section and key.
    std::unordered_map<std::string, std::unordered_map<std::string, std::size_t>> places;
    for (const ProfileWrite& write : writes) {
        const std::string name = Text::ToUpper(write.section);
        ProfileSection& section = sections[name];
        const auto [place, added] = places[name].try_emplace(Text::ToUpper(write.key), section.size());
        if (added)
            section.push_back({write.key, write.value});
        else
            section[place->second].value = write.value;
    }
    return sections;
}

// One section of what the writes leave in the file.
inline ProfileSection SectionOf(const ProfileWrites& writes, std::string_view name) {
    Sections sections = SectionsOf(writes);
    return std::move(sections[Text::ToUpper(name)]);
}

inline SectionReader ReaderOf(Sections sections) {
    auto shared = std::make_shared<const Sections>(std::move(sections));
    return [shared](std::string_view name) {
        const auto found = shared->find(Text::ToUpper(name));
        return found == shared->end() ? ProfileSection{} : found->second;
    };
}

} // namespace Fuzz
