// Opening hotspot menus through the path that start-up and the dispatch share.
#include "desktop/hotspots.h"
#include "desktop/win/hotspot_opening.h"
#include "menus/data_manager.h"
#include "menuwindow/win/form2.h"
#include "support/temp_folder.h"
#include "support/test_pictures.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

namespace {

class HotspotOpeningTest : public ::testing::Test {
protected:
    HotspotOpeningTest() {
        MenuRec programs;
        programs.NAME = "Programs";
        program.menus.menus.push_back(programs);
        for (const char* label : {"Editor", "Calculator"}) {
            std::int32_t slot = DataManager::AppendItem(program.menus, 0);
            program.menus.pool[static_cast<std::size_t>(slot)].LABEL = label;
        }
        HotspotRec hotspot;
        hotspot.Type = Hotspots::kShowMenu;
        hotspot.Menupath1 = "Programs";
        hotspot.Menuleft = 150;
        hotspot.Menutop = 60;
        hotspot.GroupName = "Left";
        program.settings.HotSpots = {hotspot};
    }

    void TearDown() override { program.openMenus.CloseAll(); }

    HotspotRec& Hotspot(int index = 0) { return program.settings.HotSpots[static_cast<std::size_t>(index)]; }

    static RECT WindowRect(HWND hwnd) {
        RECT rect{};
        ::GetWindowRect(hwnd, &rect);
        return rect;
    }

    Program program;
};

} // namespace

TEST_F(HotspotOpeningTest, OpensTheMenuShownAtItsPositionFromTheOriginAndInFrontTopmostWhenAsked) {
    Form2* form = HotspotOpening::OpenHotspotMenu(program, 0, {20, 10}, {500, 400});
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(::IsWindowVisible(form->hwnd()));
    RECT rect = WindowRect(form->hwnd());
    EXPECT_EQ(rect.left, 170);
    EXPECT_EQ(rect.top, 70);
    EXPECT_EQ(::GetForegroundWindow(), form->hwnd());
    EXPECT_FALSE(::GetWindowLongPtrW(form->hwnd(), GWL_EXSTYLE) & WS_EX_TOPMOST);
    program.openMenus.CloseAll();
    Hotspot().ForceOnTop = true;
    form = HotspotOpening::OpenHotspotMenu(program, 0, {0, 0}, {0, 0});
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(::GetWindowLongPtrW(form->hwnd(), GWL_EXSTYLE) & WS_EX_TOPMOST);
}

TEST_F(HotspotOpeningTest, AHotspotThatDoesNotExistOpensNothing) {
    EXPECT_EQ(HotspotOpening::OpenHotspotMenu(program, 1, {0, 0}, {0, 0}), nullptr);
    EXPECT_EQ(HotspotOpening::OpenHotspotMenu(program, -1, {0, 0}, {0, 0}), nullptr);
    EXPECT_EQ(program.openMenus.Count(), 0);
}

TEST_F(HotspotOpeningTest, AMenuNameThatMatchesNoMenuOpensAnEmptyMenu) {
    Hotspot().Menupath1 = "programs";
    Form2* form = HotspotOpening::OpenHotspotMenu(program, 0, {0, 0}, {0, 0});
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(program.openMenus.records().At(1).menuNumber, 0);
    EXPECT_EQ(form->scene().list.Count(), 0);
}

TEST_F(HotspotOpeningTest, StartUpOpensAMenuForEachMenuHotspotButRunsNoProgramsOrCommands) {
    HotspotRec second = Hotspot();
    second.Menuleft = 400;
    program.settings.HotSpots.push_back(second);
    HotspotOpening::OpenMenuOfHotspot(program, 0);
    HotspotOpening::OpenMenuOfHotspot(program, 1);
    EXPECT_EQ(program.openMenus.Count(), 2);
    program.openMenus.CloseAll();

    Hotspot().Type = Hotspots::kRunProgram;
    HotspotOpening::OpenMenuOfHotspot(program, 0);
    Hotspot().Type = Hotspots::kRunCommand;
    HotspotOpening::OpenMenuOfHotspot(program, 0);
    EXPECT_EQ(program.openMenus.Count(), 0);
}

TEST_F(HotspotOpeningTest, TheDefaultHotspotReplacesASettingsFileWithoutHotspots) {
    TestSupport::TempFolder folder;
    std::string file = folder.File("Helmora.ini");
    TestSupport::WriteBytes(file, "[TARVEX]\r\nTitleColor=0\r\n");
    program.settings.HotSpots = std::vector<HotspotRec>(1);
    HotspotOpening::EnsureDefaultHotspot(program, file);
    EXPECT_EQ(program.settings.HotSpots, std::vector<HotspotRec>{Hotspots::DefaultHotspot(
                                             ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN), program.menus)});

    TestSupport::WriteBytes(file, "[TARVEX]\r\nNoOfHotSpots=0\r\n");
    program.settings.HotSpots = std::vector<HotspotRec>(1);
    HotspotOpening::EnsureDefaultHotspot(program, file);
    EXPECT_EQ(program.settings.HotSpots, std::vector<HotspotRec>(1)) << "declared hotspots are kept";
}

// Started from another directory without "autostart", the program folder is not the
// exe's; a theme folder given without a drive still belongs to the program folder.
TEST_F(HotspotOpeningTest, ARelativeThemeFolderIsFoundInTheProgramFolder) {
    TestSupport::TempFolder folder;
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder.File("Pics")).c_str(), nullptr));
    TestSupport::WriteBmp(folder.File("Pics\\TitleA.bmp"), 4, 4, [](int, int) { return RGB(1, 2, 3); });
    program.values.ProgramFolder = folder.path();
    program.settings.BitmapsFolder = "Pics";
    Form2* form = HotspotOpening::OpenHotspotMenu(program, 0, {0, 0}, {0, 0});
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->scene().pictures, std::vector<std::string>{"TitleA.bmp"});
}
