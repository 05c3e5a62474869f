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

TEST(ChangesFile, KeepsEachChangeAndReadsBackOnlyATrueKey) {
    using ExitRules::DesktopChanges;
    for (DesktopChanges changes : {DesktopChanges{}, DesktopChanges{true, false, true}, DesktopChanges{false, true, false}}) {
        ProfileSection section;
        for (const ProfileWrite& write : ExitRules::ChangesWrites(changes))
            section.push_back({write.key, write.value});
        EXPECT_EQ(ExitRules::ChangesFrom(section), changes);
    }
    EXPECT_TRUE(ExitRules::ChangesWrites({}).empty()) << "no change, no file";
    EXPECT_EQ(ExitRules::ChangesFrom({{"taskbarhidden", "TRUE"}, {"DesktopIconsHidden", "1"}, {"Other", "True"}}),
              (DesktopChanges{false, true, false}));
    EXPECT_EQ(ExitRules::PutBackSteps({true, false, true}), (Steps{ExitStep::PutBackTaskbar, ExitStep::ShowDesktopIcons}));
}
