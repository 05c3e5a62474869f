// The settings catalogue: every key of section [TARVEX] once, in the order in which
// the keys are written, with its type, whether a theme file holds it, and the field of
// SettingsRec it fills. Loading, saving and the preferences pages all read this table.
#pragma once

#include "core/settings.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

enum class SettingType {
    Boolean, // "True"/"False"
    Int16,   // decimal
    Int32,   // decimal
    Color,   // decimal 0x00BBGGRR; also read as "r,g,b"
    String,  // as it is
};

// The field a key fills. The two list members stand for the count keys NoOfUserTasks and
// NoOfHotSpots: the count is the size of the list, and the list's own keys follow it.
using SettingField = std::variant<bool SettingsRec::*, std::int16_t SettingsRec::*, std::int32_t SettingsRec::*,
                                  std::string SettingsRec::*, std::vector<UserTaskRec> SettingsRec::*,
                                  std::vector<HotspotRec> SettingsRec::*>;

struct SettingDef {
    std::string_view name;
    SettingType type;
    bool theme; // written into theme files too; all such keys come first
    SettingField field;
};

std::span<const SettingDef> SettingsCatalogue();
