// The hotspots page as a user defines a hotspot on it: Add, a right click as its event,
// the menu at the cursor, the area dragged on the frozen screen, OK; then a right click
// in that area opens the menu there. The application picker dragged onto a window.
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/other_program.h"
#include "harness/preferences.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "win/text_convert.h"
#include "harness/tarvex.h"

#include <gtest/gtest.h>

#include <chrono>
#include <tuple>

namespace {

using namespace E2e;

// A hotspot showing the Main menu on a mouse event.
TestHotspot Showing(int mouseButton) {
    TestHotspot hotspot;
    hotspot.target = "Main";
    hotspot.mouseButton = mouseButton;
    return hotspot;
}

class HotspotsPage : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(HotspotSettings(hotspots, "GenShowInTray=True\n"));
        folder.WriteMenus(MenuFileText({{"Main", NotepadItems({"Text Editor", "Calculator"})}}));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    // The preferences window on the Hotspots page; null when it did not come.
    HWND OpenPage() {
        tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
        std::optional<WindowInfo> preferences = WaitForPreferences(tarvex.processId());
        return preferences && ShowPreferencePage(preferences->hwnd, "Hotspots") ? preferences->hwnd : nullptr;
    }

    static bool ShowsNote(HWND window, std::string_view note) {
        return WaitUntil([&] { return VisibleControl(window, "Static", note).has_value(); }, 10s);
    }

    std::vector<TestHotspot> hotspots = {Showing(0)}; // the default: a left click anywhere
    ProgramFolder folder;
    Tarvex tarvex;
};

// Beside the default one: a right click in a strip above the preferences window, a corner,
// an edge, and a second hotspot of that corner, which never fires.
class HotspotsPageWithZones : public HotspotsPage {
protected:
    HotspotsPageWithZones() {
        TestHotspot strip = Showing(2); // a right click
        std::tie(strip.x1, strip.y1, strip.x2, strip.y2) = std::tuple(100, 20, 400, 70);
        hotspots.insert(hotspots.end(), {strip, Showing(5), Showing(9), Showing(5)}); // top right, left edge

    }
};

POINT Middle(const RECT& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

} // namespace

TEST_F(HotspotsPage, AHotspotDefinedWithADraggedAreaOpensItsMenuAtTheCursor) {
    HWND window = OpenPage();
    ASSERT_TRUE(window);
    std::optional<WindowInfo> add = VisibleControl(window, "Button", "A&dd");
    ASSERT_TRUE(add && ClickWindow(add->hwnd));
    std::optional<WindowInfo> page = VisibleControl(window, "Tarvex2PreferencePage", "");
    ASSERT_TRUE(page);
    std::optional<WindowInfo> list = VisibleControl(page->hwnd, "ListBox", "");
    ASSERT_TRUE(list);
    ASSERT_TRUE(WaitUntil([&] { return ::SendMessageW(list->hwnd, LB_GETCURSEL, 0, 0) == 1; }, 10s)) << "Hotspot 1";

    TapKeys(VK_MENU, 'V', 60ms); // "Mouse e&vent:", from a left click down to a right click
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    std::optional<WindowInfo> event = ControlBesideLabel(window, "Mouse e&vent:", "ComboBox");
    ASSERT_TRUE(event);
    EXPECT_TRUE(WaitUntil([&] { return ControlText(event->hwnd) == "Right click"; }, 10s));
    TapKeys(VK_MENU, 'U', 60ms); // "Open the menu at the c&ursor"
    std::optional<WindowInfo> menuLeft = ControlBesideLabel(window, "Menu left:", "Edit");
    ASSERT_TRUE(menuLeft);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindowEnabled(menuLeft->hwnd); }, 10s)) << "the place is the cursor's";

    TapKeys(VK_MENU, 'S', 60ms); // "&Select Area..."
    std::optional<WindowInfo> picker = WaitForVisibleWindow("Tarvex2AreaPicker", tarvex.processId(), 10s);
    ASSERT_TRUE(picker) << "the frozen screen";
    ASSERT_TRUE(Drag(300, 300, 500, 450, [] { SaveNamedScreenshot("hotspots-area-picker"); }));
    ASSERT_TRUE(WaitForWindowGone(picker->hwnd, 10s));
    std::optional<WindowInfo> x2 = ControlBesideLabel(window, "Right (x2):", "Edit");
    ASSERT_TRUE(x2);
    EXPECT_TRUE(WaitUntil([&] { return ControlText(x2->hwnd) == "500"; }, 10s));
    SaveNamedScreenshot("hotspots-page");

    PressKey(VK_RETURN); // OK
    ASSERT_TRUE(WaitForWindowGone(window, 10s));
    EXPECT_EQ(folder.ReadSetting("NoOfHotSpots"), "1");
    EXPECT_EQ(folder.ReadSetting("HotSpot1MouseButton"), "2");
    EXPECT_EQ(folder.ReadSetting("HotSpot1y2"), "450");

    ASSERT_TRUE(tarvex.WaitUntilIdle());
    ASSERT_TRUE(Click(420, 380, Button::Right));
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu) << "a right click in the area opens the menu";
    EXPECT_NEAR(menu->rect.left, 420, 2);
    EXPECT_NEAR(menu->rect.top, 380, 2);
}

TEST_F(HotspotsPage, ThePickerDraggedOntoAWindowTakesItsTitleRefusesTheProgramsOwnAndDesktopSetsTheDesktop) {
    OtherProgram notepad;
    ASSERT_TRUE(notepad.Start(L"notepad.exe", "Notepad"));
    HWND window = OpenPage();
    ASSERT_TRUE(window);
    // Notepad in the strip under the preferences window, kept above it.
    ASSERT_TRUE(::SetWindowPos(notepad.hwnd(), HWND_TOPMOST, 500, 690, 400, 70, SWP_NOACTIVATE));
    ASSERT_TRUE(WaitUntil([&] { return DescribeWindow(notepad.hwnd()).rect.top == 690; }, 5s));
    const std::string title = DescribeWindow(notepad.hwnd()).title;
    std::optional<WindowInfo> app = ControlBesideLabel(window, "A&pplication:", "Edit");
    std::optional<WindowInfo> picker = VisibleControl(window, "Tarvex2WindowPicker", "");
    ASSERT_TRUE(app && picker);
    ASSERT_EQ(ControlText(app->hwnd), "Desktop");

    const POINT from = Middle(picker->rect);
    bool named = false;
    ASSERT_TRUE(Drag(from.x, from.y, 700, 740, [&] { // over notepad's text, a child of its window
        named = ShowsNote(window, "Let go to take \"" + title + "\"");
        SaveNamedScreenshot("hotspots-application-picker");
    }));
    EXPECT_TRUE(named) << "the window under the cursor is named while dragging";
    EXPECT_TRUE(WaitUntil([&] { return ControlText(app->hwnd) == title; }, 10s)) << "the top-level window's title";

    RECT own{};
    ::GetWindowRect(window, &own);
    ASSERT_TRUE(Drag(from.x, from.y, own.left + 30, own.bottom - 60)); // over the preferences window
    EXPECT_TRUE(ShowsNote(window, "Tarvex's own windows fire no hotspot: let go over another window"));
    EXPECT_EQ(ControlText(app->hwnd), title);

    std::optional<WindowInfo> apply = VisibleControl(window, "Button", "&Apply");
    ASSERT_TRUE(apply && ClickWindow(apply->hwnd));
    EXPECT_TRUE(WaitUntil([&] { return folder.ReadSetting("HotSpot0App") == title; }, 10s));
    std::optional<WindowInfo> desktop = VisibleControl(window, "Button", "Desktop");
    ASSERT_TRUE(desktop && ClickWindow(desktop->hwnd));
    EXPECT_TRUE(WaitUntil([&] { return ControlText(app->hwnd) == "Desktop"; }, 10s));
    PressKey(VK_RETURN); // OK
    ASSERT_TRUE(WaitForWindowGone(window, 10s));
    EXPECT_EQ(folder.ReadSetting("HotSpot0App"), "Desktop");
}

TEST_F(HotspotsPageWithZones, ShowZonesDrawsThemOverTheScreenForAFewSecondsOrUntilAClickThatGoesThrough) {
    HWND window = OpenPage();
    ASSERT_TRUE(window);
    const COLORREF desktop = ReadPixel(101, 21);
    std::optional<WindowInfo> button = VisibleControl(window, "Button", "Show &Zones");
    ASSERT_TRUE(button && ClickWindow(button->hwnd));
    const auto shown = std::chrono::steady_clock::now();
    std::optional<WindowInfo> overlay = WaitForVisibleWindow("Tarvex2HotspotZones", tarvex.processId(), 10s);
    ASSERT_TRUE(overlay);
    EXPECT_EQ(overlay->rect.right - overlay->rect.left, 1024);
    EXPECT_TRUE(WaitUntil([&] { return ReadPixel(101, 21) != desktop; }, 5s)) << "the strip's border";
    SaveNamedScreenshot("hotspots-zones");
    ASSERT_TRUE(WaitForWindowGone(overlay->hwnd, 10s));
    EXPECT_GE(std::chrono::steady_clock::now() - shown, 3s) << "they stay about four seconds";

    ASSERT_TRUE(ClickWindow(button->hwnd));
    overlay = WaitForVisibleWindow("Tarvex2HotspotZones", tarvex.processId(), 10s);
    ASSERT_TRUE(overlay);
    const auto clicked = std::chrono::steady_clock::now();
    EXPECT_TRUE(ShowPreferencePage(window, "Global")) << "the click reaches the page list under them";
    ASSERT_TRUE(WaitForWindowGone(overlay->hwnd, 10s));
    EXPECT_LT(std::chrono::steady_clock::now() - clicked, 2500ms) << "and ends them";
}

TEST_F(HotspotsPage, TheSoundsBrowseButtonPutsThePickedWaveFileInTheField) {
    folder.WriteBytes("chime.wav", "RIFF");
    HWND window = OpenPage();
    ASSERT_TRUE(window);
    TapKeys(VK_MENU, 'N', 60ms); // "Sou&nd file:", scrolled into view
    std::optional<WindowInfo> sound = ControlBesideLabel(window, "Sou&nd file:", "Edit");
    ASSERT_TRUE(sound && WaitUntil([&] { return FocusedControl(window) == sound->hwnd; }, 10s));
    std::optional<WindowInfo> browse = ControlBesideLabel(window, "Sou&nd file:", "Button");
    ASSERT_TRUE(browse && ClickWindow(browse->hwnd));
    std::optional<WindowInfo> dialog = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(dialog) << "the file picker";
    const std::wstring path = Win::Widen(folder.File("chime.wav"));
    for (const WindowInfo& child : AllControls(dialog->hwnd))
        if (child.className == "Edit") // its file name
            ::SendMessageW(child.hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitForWindowGone(dialog->hwnd, 10s));
    EXPECT_TRUE(WaitUntil([&] { return ControlText(sound->hwnd) == folder.File("chime.wav"); }, 10s));
    std::optional<WindowInfo> ok = VisibleControl(window, "Button", "OK");
    ASSERT_TRUE(ok && ClickWindow(ok->hwnd));
    ASSERT_TRUE(WaitForWindowGone(window, 10s));
    EXPECT_EQ(folder.ReadSetting("HotSpot0SoundPath"), folder.File("chime.wav"));
}
