// Test helpers: profile text read as a SectionReader, writes turned back into text,
// and a message-box handler that answers with a chosen button.
#pragma once

#include "support/answered_message_boxes.h"
#include "core/profile.h"
#include "core/text.h"

#include <map>
#include <memory>
#include <sstream>
#include <string>

// "[SECTION]" and "key=value" lines; section names match without regard to case.
inline SectionReader ReaderOf(const std::string& text) {
    auto sections = std::make_shared<std::map<std::string, ProfileSection>>();
    std::istringstream lines(text);
    ProfileSection* current = nullptr;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.starts_with('[') && line.ends_with(']'))
            current = &(*sections)[Text::ToUpper(line.substr(1, line.size() - 2))];
        else if (const auto equals = line.find('='); current && equals != std::string::npos)
            current->push_back({line.substr(0, equals), line.substr(equals + 1)});
    }
    return [sections](std::string_view name) {
        const auto found = sections->find(Text::ToUpper(name));
        return found == sections->end() ? ProfileSection{} : found->second;
    };
}

inline std::string TextOf(const ProfileWrites& writes) {
    std::string text, section;
    for (const ProfileWrite& write : writes) {
        if (write.section != section)
            text += "[" + (section = write.section) + "]\n";
        text += write.key + "=" + write.value + "\n";
    }
    return text;
}

using FakeMessageBoxes = TestSupport::AnsweredMessageBoxes;
