#include "core/profile_merge.h"

#include "core/text.h"

#include <algorithm>

namespace {

class Sections {
public:
    // Gives the key its value: in place when the section has it, else at the section's end.
    void Set(std::string_view section, const std::string& key, const std::string& value, bool replace) {
        NamedSection& place = SectionNamed(section);
        auto entry = std::find_if(place.entries.begin(), place.entries.end(),
                                  [&](const ProfileEntry& e) { return Text::EqualsIgnoreCase(e.key, key); });
        if (entry == place.entries.end())
            place.entries.push_back({key, value});
        else if (replace)
            entry->value = value;
    }

    ProfileWrites Writes() const {
        ProfileWrites writes;
        for (const NamedSection& section : sections_)
            for (const ProfileEntry& entry : section.entries)
                writes.push_back({section.name, entry.key, entry.value});
        return writes;
    }

private:
    NamedSection& SectionNamed(std::string_view name) {
        auto place = std::find_if(sections_.begin(), sections_.end(),
                                  [&](const NamedSection& s) { return Text::EqualsIgnoreCase(s.name, name); });
        if (place != sections_.end())
            return *place;
        sections_.push_back({std::string(name), {}});
        return sections_.back();
    }

    std::vector<NamedSection> sections_;
};

} // namespace

ProfileWrites MergeChanges(const std::vector<NamedSection>& file, const ProfileWrites& changes) {
    Sections sections;
    for (const NamedSection& named : file)
        for (const ProfileEntry& entry : named.entries)
            sections.Set(named.name, entry.key, entry.value, false);
    for (const ProfileWrite& change : changes)
        sections.Set(change.section, change.key, change.value, true);
    return sections.Writes();
}
