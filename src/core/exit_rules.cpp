#include "core/exit_rules.h"

namespace ExitRules {

bool ExitConfirmed(int answer) {
    return answer == MessageBoxes::kYes;
}

std::vector<ExitStep> ExitSteps(const DesktopChanges& changes, bool trayIconShown) {
    std::vector<ExitStep> steps;
    if (changes.TaskbarTakenOver)
        steps.push_back(ExitStep::PutBackTaskbar);
    if (changes.TaskbarHidden)
        steps.push_back(ExitStep::ShowTaskbar);
    if (changes.DesktopIconsHidden)
        steps.push_back(ExitStep::ShowDesktopIcons);
    if (trayIconShown)
        steps.push_back(ExitStep::RemoveTrayIcon);
    steps.push_back(ExitStep::UnloadSystray);
    steps.push_back(ExitStep::CloseMenuWindows);
    steps.push_back(ExitStep::UnloadForms);
    return steps;
}

} // namespace ExitRules
