#include "core/exit_rules.h"

#include "core/text.h"

#include <array>
#include <utility>

namespace ExitRules {

namespace {

using ChangeFlag = bool DesktopChanges::*;
constexpr std::array<std::pair<std::string_view, ChangeFlag>, 3> kChangeKeys{{
    {"TaskbarTakenOver", &DesktopChanges::TaskbarTakenOver},
    {"TaskbarHidden", &DesktopChanges::TaskbarHidden},
    {"DesktopIconsHidden", &DesktopChanges::DesktopIconsHidden},
}};

} // namespace

bool ExitConfirmed(int answer) {
    return answer == MessageBoxes::kYes;
}

ProfileWrites ChangesWrites(const DesktopChanges& changes) {
    ProfileWrites writes;
    for (const auto& [key, flag] : kChangeKeys)
        if (changes.*flag)
            writes.push_back({std::string(kChangesSection), std::string(key), "True"});
    return writes;
}

DesktopChanges ChangesFrom(const ProfileSection& section) {
    DesktopChanges changes;
    for (const ProfileEntry& entry : section)
        for (const auto& [key, flag] : kChangeKeys)
            if (Text::EqualsIgnoreCase(entry.key, key) && Text::EqualsIgnoreCase(entry.value, "True"))
                changes.*flag = true;
    return changes;
}

std::vector<ExitStep> ExitSteps(const DesktopChanges& changes, bool trayIconShown) {
    std::vector<ExitStep> steps = PutBackSteps(changes);
    if (trayIconShown)
        steps.push_back(ExitStep::RemoveTrayIcon);
    steps.push_back(ExitStep::UnloadSystray);
    steps.push_back(ExitStep::CloseMenuWindows);
    steps.push_back(ExitStep::UnloadForms);
    return steps;
}

std::vector<ExitStep> PutBackSteps(const DesktopChanges& changes) {
    std::vector<ExitStep> steps;
    if (changes.TaskbarTakenOver)
        steps.push_back(ExitStep::PutBackTaskbar);
    if (changes.TaskbarHidden)
        steps.push_back(ExitStep::ShowTaskbar);
    if (changes.DesktopIconsHidden)
        steps.push_back(ExitStep::ShowDesktopIcons);
    return steps;
}

} // namespace ExitRules
