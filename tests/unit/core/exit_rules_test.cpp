#include "core/exit_rules.h"

#include <gtest/gtest.h>

using ExitRules::DesktopChanges;
using ExitRules::ExitStep;
using Steps = std::vector<ExitStep>;

TEST(ExitQuestion, IsTheWarningWithYesAndNo) {
    EXPECT_EQ(ExitRules::kQuestion, "This will shutdown Tarvex. Are you sure?");
    EXPECT_EQ(ExitRules::kStyle, 52);
}

TEST(ExitQuestion, OnlyYesGoesOn) {
    EXPECT_TRUE(ExitRules::ExitConfirmed(MessageBoxes::kYes));
    EXPECT_FALSE(ExitRules::ExitConfirmed(MessageBoxes::kNo));
    EXPECT_FALSE(ExitRules::ExitConfirmed(MessageBoxes::kCancel)); // a box that could not be shown
    EXPECT_FALSE(ExitRules::ExitConfirmed(0));
}

TEST(ExitSteps, NothingToUndoWhenTheProgramChangedNothing) {
    EXPECT_EQ(ExitRules::ExitSteps({}, false),
              (Steps{ExitStep::UnloadSystray, ExitStep::CloseMenuWindows, ExitStep::UnloadForms}));
}

TEST(ExitSteps, TheTrayIconIsRemovedOnlyWhenShown) {
    EXPECT_EQ(ExitRules::ExitSteps({}, true), (Steps{ExitStep::RemoveTrayIcon, ExitStep::UnloadSystray,
                                                     ExitStep::CloseMenuWindows, ExitStep::UnloadForms}));
}

TEST(ExitSteps, EveryChangeIsUndoneInItsOrderBeforeTheIcon) {
    DesktopChanges all{true, true, true};
    EXPECT_EQ(
        ExitRules::ExitSteps(all, true),
        (Steps{ExitStep::PutBackTaskbar, ExitStep::ShowTaskbar, ExitStep::ShowDesktopIcons, ExitStep::RemoveTrayIcon,
               ExitStep::UnloadSystray, ExitStep::CloseMenuWindows, ExitStep::UnloadForms}));
}

TEST(ExitSteps, EachChangeAlone) {
    EXPECT_EQ(ExitRules::ExitSteps({true, false, false}, false).front(), ExitStep::PutBackTaskbar);
    EXPECT_EQ(ExitRules::ExitSteps({false, true, false}, false).front(), ExitStep::ShowTaskbar);
    EXPECT_EQ(ExitRules::ExitSteps({false, false, true}, false).front(), ExitStep::ShowDesktopIcons);
    EXPECT_EQ(ExitRules::ExitSteps({false, false, true}, false).size(), 4u);
}
