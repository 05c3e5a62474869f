// The hotspot and user-task keys: the input's lines are keys of [TARVEX] fed to the two
// readers, the bytes at its end choose the counts, a dropped menu's place and the user
// tasks page's adds and deletes. What is written of the records reads back the same, the
// default hotspot stands in only where the section declared none, and the page never
// keeps more tasks than the keys can name.
#include "fuzz_support.h"

#include "core/hotspot_keys.h"
#include "core/settings.h"
#include "core/user_task_keys.h"
#include "desktop/hotspots.h"
#include "prefs/user_tasks.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Fuzz::Require;

constexpr std::array<std::string_view, 3> kTaskStems = {"TaskName", "TaskExec", "TaskIcon"};

bool IsTaskKey(std::string_view key) {
    return std::ranges::any_of(kTaskStems,
                               [key](std::string_view stem) { return Text::StartsWithIgnoreCase(key, stem); });
}

void CheckReaders(const ProfileSection& section, FuzzedDataProvider& input) {
    const int hotSpotCount = input.ConsumeIntegralInRange(-2, 12);
    const int taskCount = input.ConsumeIntegralInRange(-2, 12);
    HotSpotKeyReader hotSpots;
    UserTaskKeyReader tasks;
    for (const ProfileEntry& entry : section) {
        const bool hotSpot = hotSpots.Read(entry.key, entry.value);
        Require(hotSpot == Text::StartsWithIgnoreCase(entry.key, "HotSpot"), "a HotSpot key is the hotspots'");
        if (!hotSpot)
            Require(tasks.Read(entry.key, entry.value) == IsTaskKey(entry.key), "a Task key is the user tasks'");
    }
    const std::vector<HotspotRec> records = hotSpots.Records(hotSpotCount);
    const std::vector<UserTaskRec> taskRecords = tasks.Records(taskCount);
    Require(records.size() == static_cast<std::size_t>(std::clamp(hotSpotCount + 1, 0, 10)), "hotspots 0..count");
    Require(taskRecords.size() == static_cast<std::size_t>(std::clamp(taskCount, 0, 10)), "tasks 0..count-1");

    const auto index = input.ConsumeIntegralInRange<std::size_t>(0, 12);
    // A place on a screen: pixel coordinates fit 16 bits.
    const auto left = input.ConsumeIntegral<std::int16_t>();
    const auto top = input.ConsumeIntegral<std::int16_t>();
    // The records saved, then a hotspot's menu dropped in a new place.
    ProfileWrites writes;
    WriteHotSpotKeys(records, writes);
    WriteUserTaskKeys(taskRecords, writes);
    const ProfileWrites place = HotSpotPlaceWrites(index, left, top);
    writes.insert(writes.end(), place.begin(), place.end());
    HotSpotKeyReader hotSpotsAgain;
    UserTaskKeyReader tasksAgain;
    for (const ProfileEntry& entry : Fuzz::SectionOf(writes, kSettingsSection))
        Require(hotSpotsAgain.Read(entry.key, entry.value) || tasksAgain.Read(entry.key, entry.value),
                "every written key is read");
    Require(tasksAgain.Records(taskCount) == taskRecords, "written tasks read back the same");

    std::vector<HotspotRec> expected = records;
    expected.resize(HotSpotKeyReader::kIndexes);
    HotspotRec& placed = expected[index % HotSpotKeyReader::kIndexes];
    placed.Menuleft = left;
    placed.Menutop = top;
    Require(hotSpotsAgain.Records(9) == expected, "written hotspots read back with the dropped menu's place");
}

// Start-up loads the hotspots, puts the default in place of none, and Apply writes them:
// the next start must find the same ones.
void CheckDefaultHotspot(const ProfileSection& section, const MenuTable& menus) {
    SettingsRec settings;
    LoadSettings(section, false, settings);
    const bool declared = Hotspots::DeclaresHotspots(section);
    Hotspots::EnsureDefaultHotspot(settings.HotSpots, declared, 1024, 768, menus);
    Require(!settings.HotSpots.empty(), "there is always a hotspot");
    if (!declared)
        Require(settings.HotSpots == std::vector{Hotspots::DefaultHotspot(1024, 768, menus)}, "the default alone");

    const ProfileSection file = Fuzz::SectionOf(SaveSettings(settings, false), kSettingsSection);
    SettingsRec next;
    LoadSettings(file, false, next);
    Require(Hotspots::DeclaresHotspots(file), "saved settings declare their hotspots");
    Hotspots::EnsureDefaultHotspot(next.HotSpots, true, 1024, 768, menus);
    Require(next.HotSpots == settings.HotSpots, "saved hotspots come back at the next start");

    for (std::size_t i = 0; i < next.HotSpots.size(); ++i) {
        const HotspotRec& hotspot = next.HotSpots[i];
        Require(Hotspots::MenuKindOf(Hotspots::MenuKindOf(hotspot.Type)) == hotspot.Type, "the kind maps back");
        MenuWindow::CascadeRec record;
        record.id = 7;
        Hotspots::FillCascadeRecord(record, hotspot, static_cast<int>(i), menus);
        Require(record.id == 7 && record.kind == Hotspots::MenuKindOf(hotspot.Type), "the record's kind");
        const int number = record.menuNumber;
        Require(number == 0 || (hotspot.Type == Hotspots::kShowMenu && number <= menus.MenuCount() &&
                                menus.menus[static_cast<std::size_t>(number)].NAME == hotspot.Menupath1),
                "a hotspot opens the menu it names");
    }
}

// The user tasks page: adds and deletes chosen by the input, then Apply and a new start.
void CheckUserTasks(FuzzedDataProvider& input) {
    SettingsRec settings;
    for (int steps = input.ConsumeIntegralInRange(0, 24); steps > 0; --steps) {
        const std::size_t before = settings.UserTasks.size();
        if (input.ConsumeBool()) {
            const bool refused = Preferences::AddUserTask(settings).has_value();
            Require(refused == (before == UserTaskKeyReader::kIndexes), "an eleventh task alone is refused");
            if (!refused)
                settings.UserTasks.back().TaskExec = std::to_string(steps);
        } else {
            const int index = input.ConsumeIntegralInRange(-1, 11);
            Require(Preferences::DeleteUserTask(settings, index) == (index >= 0 && index < static_cast<int>(before)),
                    "a task that is there is deleted");
        }
        Require(settings.UserTasks.size() <= UserTaskKeyReader::kIndexes, "ten tasks at most");
    }
    for (const UserTaskRec& task : settings.UserTasks)
        Require(!Preferences::UserTaskListName(task).empty(), "every task has a name in the list");
    SettingsRec next;
    LoadSettings(Fuzz::SectionOf(SaveSettings(settings, false), kSettingsSection), false, next);
    Require(next.UserTasks == settings.UserTasks, "the page's tasks come back at the next start");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    // The numbers come from the last 64 bytes at most, the text from the start.
    const std::string text = input.ConsumeBytesAsString(size - std::min<std::size_t>(size / 2, 64));
    const ProfileSection section = Fuzz::SectionOf(text);
    CheckReaders(section, input);
    MenuTable menus;
    if (!section.empty())
        menus.menus.emplace_back().NAME = section.front().value;
    CheckDefaultHotspot(section, menus);
    CheckUserTasks(input);
    return 0;
}
