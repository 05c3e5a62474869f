#include "menuwindow/interaction/choosing.h"

#include "menus/menu_records.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

Release On(int item, std::uint8_t type, MouseButton button = MouseButton::Left) {
    Release release;
    release.button = button;
    release.pressedItem = item;
    release.releasedItem = item;
    release.type = type;
    return release;
}

} // namespace

TEST(Choosing, AReleaseChoosesOnlyTheItemThatWasPressed) {
    Release elsewhere = On(2, kItemFilename);
    elsewhere.releasedItem = 3;
    EXPECT_EQ(DecideRelease(elsewhere), ReleaseAction::Nothing);
    Release outside = On(2, kItemFilename);
    outside.releasedItem = 0;
    EXPECT_EQ(DecideRelease(outside), ReleaseAction::Nothing);
    Release noPress = On(0, kItemFilename);
    EXPECT_EQ(DecideRelease(noPress), ReleaseAction::Nothing);
    Release empty = On(1, kItemFilename);
    empty.emptyList = true;
    EXPECT_EQ(DecideRelease(empty), ReleaseAction::Nothing) << "\"(Empty)\" names nothing";
    EXPECT_EQ(DecideRelease(On(2, kItemFilename)), ReleaseAction::Choose);
    EXPECT_EQ(DecideRelease(On(2, kItemCommandName)), ReleaseAction::Choose);
}

TEST(Choosing, TheRightButtonShowsPropertiesOfFilesAndFoldersOnly) {
    EXPECT_EQ(DecideRelease(On(1, kItemFilename, MouseButton::Right)), ReleaseAction::ShowProperties);
    EXPECT_EQ(DecideRelease(On(1, kItemFolderPath, MouseButton::Right)), ReleaseAction::ShowProperties);
    EXPECT_EQ(DecideRelease(On(1, kItemCommandName, MouseButton::Right)), ReleaseAction::Choose);
    EXPECT_EQ(DecideRelease(On(1, kItemMenuName, MouseButton::Right)), ReleaseAction::OpenSubMenu);
}

TEST(Choosing, SubMenuItemsOpenToggleOrKeepTheirSubMenu) {
    for (std::uint8_t type : {kItemFolderPath, kItemMenuName, kItemTaskList}) {
        Release release = On(4, type);
        EXPECT_EQ(DecideRelease(release), ReleaseAction::OpenSubMenu) << int(type);
        release.subMenuOpen = true;
        EXPECT_EQ(DecideRelease(release), ReleaseAction::KeepSubMenu) << int(type);
        release.toggleSubMenus = true;
        EXPECT_EQ(DecideRelease(release), ReleaseAction::CloseSubMenu) << int(type);
    }
}

TEST(Choosing, AFoldersSecondClickOpensTheFolderItself) {
    Release second = On(1, kItemFolderPath);
    second.subMenuJustOpened = true;
    second.subMenuOpen = true;
    EXPECT_EQ(DecideRelease(second), ReleaseAction::Choose);
    Release menu = On(1, kItemMenuName);
    menu.subMenuJustOpened = true;
    EXPECT_EQ(DecideRelease(menu), ReleaseAction::OpenSubMenu) << "only folders open on a second click";
}

TEST(Choosing, ChosenEntriesGoToTheLauncherByType) {
    EXPECT_EQ(ChoiceOf(kItemFilename, false), Choice::RunProgram);
    EXPECT_EQ(ChoiceOf(kItemFolderPath, false), Choice::RunProgram);
    EXPECT_EQ(ChoiceOf(kItemCommandName, false), Choice::RunCommand);
    EXPECT_EQ(ChoiceOf(kItemMenuName, false), Choice::None);
    EXPECT_EQ(ChoiceOf(kItemTaskList, false), Choice::None);
    EXPECT_EQ(ChoiceOf(kItemCommandName, true), Choice::ActivateTask);
}

TEST(Choosing, TheMenusCloseAfterAChoiceUnlessCtrlOrTheCommandKeepsThem) {
    struct Case {
        std::optional<std::int16_t> result;
        bool ctrl;
        AfterChoice after;
    };
    for (const Case& c : {Case{std::nullopt, false, {true, false, true}}, Case{std::nullopt, true, {false, false, true}},
                          Case{-1, false, {true, false, true}}, Case{12, false, {true, false, true}},
                          Case{9, false, {false, false, false}}, Case{14, true, {false, false, false}},
                          Case{27, false, {true, true, true}}, Case{27, true, {false, true, true}}})
        EXPECT_EQ(AfterChoosing(c.result, c.ctrl), c.after) << (c.result ? *c.result : -99) << " ctrl " << c.ctrl;
}
