// The question's text and buttons are the end-to-end exit tests'.
#include "core/exit_rules.h"

#include <gtest/gtest.h>

using ExitRules::ExitStep;
using Steps = std::vector<ExitStep>;

TEST(ExitQuestion, OnlyYesGoesOn) {
    EXPECT_EQ(ExitRules::kStyle, 52) << "a warning with Yes and No";
    EXPECT_TRUE(ExitRules::ExitConfirmed(MessageBoxes::kYes));
    EXPECT_FALSE(ExitRules::ExitConfirmed(MessageBoxes::kNo));
    EXPECT_FALSE(ExitRules::ExitConfirmed(MessageBoxes::kCancel)); // a box that could not be shown
}

TEST(ExitSteps, EveryChangeIsUndoneInItsOrderBeforeTheIconWhichGoesOnlyWhenShown) {
    EXPECT_EQ(ExitRules::ExitSteps({}, false),
              (Steps{ExitStep::UnloadSystray, ExitStep::CloseMenuWindows, ExitStep::UnloadForms}));
    EXPECT_EQ(
        ExitRules::ExitSteps({true, true, true}, true),
        (Steps{ExitStep::PutBackTaskbar, ExitStep::ShowTaskbar, ExitStep::ShowDesktopIcons, ExitStep::RemoveTrayIcon,
               ExitStep::UnloadSystray, ExitStep::CloseMenuWindows, ExitStep::UnloadForms}));
    EXPECT_EQ(ExitRules::ExitSteps({false, true, false}, false).front(), ExitStep::ShowTaskbar);
}
