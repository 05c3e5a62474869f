#include "core/hotspot_keys.h"

#include "core/setting_values.h"
#include "core/text.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

namespace {

using HotSpotField =
    std::variant<std::int16_t HotspotRec::*, std::uint8_t HotspotRec::*, bool HotspotRec::*, std::string HotspotRec::*>;

struct HotSpotKey {
    std::string_view suffix;
    HotSpotField field;
};

constexpr HotSpotKey Key(std::string_view suffix, HotSpotField field) {
    return {suffix, field};
}

// Suffix and field come from one token, so a suffix can never select another field.
#define HOTSPOT_KEY(name) Key(#name, &HotspotRec::name)

// In the order of the record's fields, which is the order of writing.
constexpr std::array<HotSpotKey, HotSpotKeyReader::kFields> kHotSpotKeys = {
    HOTSPOT_KEY(x1),           HOTSPOT_KEY(x2),          HOTSPOT_KEY(y1),          HOTSPOT_KEY(y2),
    HOTSPOT_KEY(App),          HOTSPOT_KEY(GroupName),   HOTSPOT_KEY(Menutop),     HOTSPOT_KEY(Menuleft),
    HOTSPOT_KEY(Menuname),     HOTSPOT_KEY(Menupath1),   HOTSPOT_KEY(Menupath2),   HOTSPOT_KEY(MenuType),
    HOTSPOT_KEY(FileTypeMask), HOTSPOT_KEY(OnMouse),     HOTSPOT_KEY(MouseButton), HOTSPOT_KEY(UseHotKey),
    HOTSPOT_KEY(Hotkey),       HOTSPOT_KEY(ShiftHotKey), HOTSPOT_KEY(Theme),       HOTSPOT_KEY(Inherit),
    HOTSPOT_KEY(SoundPath),    HOTSPOT_KEY(AppPath),     HOTSPOT_KEY(Type),        HOTSPOT_KEY(StartPath),
    HOTSPOT_KEY(AlwaysOpen),   HOTSPOT_KEY(Horizontal),  HOTSPOT_KEY(ForceOnTop),    HOTSPOT_KEY(Monitor),
};

#undef HOTSPOT_KEY

constexpr std::string_view kPrefix = "HotSpot";

std::string FieldText(const HotspotRec& hotSpot, const HotSpotField& field) {
    return std::visit(
        [&](auto member) -> std::string {
            const auto& value = hotSpot.*member;
            using Value = std::remove_cvref_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, bool>)
                return Text::BoolWord(value);
            else if constexpr (std::is_same_v<Value, std::string>)
                return value;
            else
                return SettingValues::WriteNumber(value);
        },
        field);
}

void StoreField(HotspotRec& hotSpot, const HotSpotField& field, std::string_view text) {
    std::visit(
        [&](auto member) {
            auto& value = hotSpot.*member;
            using Value = std::remove_cvref_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, bool>)
                value = SettingValues::ReadBool(text);
            else if constexpr (std::is_same_v<Value, std::string>)
                value = std::string(text);
            else if constexpr (std::is_same_v<Value, std::uint8_t>)
                value = SettingValues::ReadByte(text).value_or(value);
            else
                value = SettingValues::ReadInt16(text).value_or(value);
        },
        field);
}

} // namespace

void WriteHotSpotKeys(const std::vector<HotspotRec>& hotSpots, ProfileWrites& writes) {
    for (std::size_t i = 0; i < hotSpots.size(); ++i) {
        std::string stem = std::string(kPrefix) + SettingValues::IndexDigit(i);
        for (const HotSpotKey& key : kHotSpotKeys)
            writes.push_back({kSettingsSection, stem + std::string(key.suffix), FieldText(hotSpots[i], key.field)});
    }
}

ProfileWrites HotSpotPlaceWrites(std::size_t index, int left, int top) {
    std::string stem = std::string(kPrefix) + SettingValues::IndexDigit(index);
    return {{kSettingsSection, stem + "MenuTop", std::to_string(top)},
            {kSettingsSection, stem + "MenuLeft", std::to_string(left)}};
}

bool HotSpotKeyReader::Read(std::string_view key, std::string_view value) {
    if (!Text::StartsWithIgnoreCase(key, kPrefix))
        return false;
    if (key.size() <= kPrefix.size())
        return true;
    char digit = key[kPrefix.size()];
    if (digit < '0' || digit > '9')
        return true;
    auto index = static_cast<std::size_t>(digit - '0');
    std::string_view suffix = key.substr(kPrefix.size() + 1);
    for (std::size_t f = 0; f < kHotSpotKeys.size(); ++f) {
        if (!Text::EqualsIgnoreCase(suffix, kHotSpotKeys[f].suffix))
            continue;
        if (!taken_[index][f]) {
            taken_[index][f] = true;
            StoreField(records_[index], kHotSpotKeys[f].field, value);
        }
        break;
    }
    return true;
}

std::vector<HotspotRec> HotSpotKeyReader::Records(int noOfHotSpots) const {
    int count = std::clamp(noOfHotSpots + 1, 0, static_cast<int>(kIndexes));
    return {records_.begin(), records_.begin() + count};
}
