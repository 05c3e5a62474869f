// The preferences window as a user meets it: opened from the tray and by the general hot
// key, a change of colour shown at once in its preview, Apply writing the file and
// repainting an open menu, Cancel leaving the file alone, the keyboard alone, bad input
// answered beside its control, and every page on the screen.
#include "core/settings_catalogue.h"
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/preferences.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "prefs/preference_pages.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>

namespace {

using namespace E2e;

constexpr COLORREF kRed = RGB(255, 0, 0);

std::string_view LabelOf(const char* key) {
    return FindSetting(key)->control.label;
}

// How many pixels of a window's title band (the top rows, left of its title-bar buttons) are red.
int RedInTitle(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return CountInWindow(rect, {0, 2, (rect.right - rect.left) / 2, kPlainTitleHeight - 4}, kRed);
}

class Preferences : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.ready());
        TestHotspot spot;
        spot.target = "Main";
        spot.hotKey = VK_F5;
        spot.left = 80;
        spot.top = 80;
        std::string settings = HotspotSettings({spot}, "GenShowInTray=True\nMyOwnKey=kept\n" + extraSettings);
        folder.WriteSettings(settings + "\r\n[Other]\r\nKeep=this\r\n");
        folder.WriteMenus(MenuFileText({{"Main", NotepadItems({"Text Editor", "Calculator"})}}));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    HWND Open() {
        tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
        std::optional<WindowInfo> window = WaitForPreferences(tarvex.processId());
        return window ? window->hwnd : nullptr;
    }

    // Picks pure red for TitleColor in the colour dialog, typing into its Red field.
    ::testing::AssertionResult ChooseRedTitle(HWND preferences) {
        std::optional<WindowInfo> change = ControlBesideLabel(preferences, LabelOf("TitleColor"), "Button");
        if (!change || !ClickWindow(change->hwnd))
            return ::testing::AssertionFailure() << "no colour button for the title colour";
        std::optional<WindowInfo> dialog = WaitForMessageBox(tarvex.processId());
        if (!dialog)
            return ::testing::AssertionFailure() << "no colour dialog";
        for (int field : {706, 707, 708}) { // red, green, blue
            // Each field has the keys once it has the focus, and holds its number before
            // the next is clicked: on a busy machine keys sent early land in the last one.
            HWND edit = ::GetDlgItem(dialog->hwnd, field);
            const std::string value = field == 706 ? "255" : "0";
            ClickWindow(edit);
            if (!WaitUntil([&] { return FocusedControl(dialog->hwnd) == edit; }, 10s))
                return ::testing::AssertionFailure() << "colour field " << field << " did not take the focus";
            PressKey(VK_END);
            TapKeys(VK_SHIFT, VK_HOME, 60ms);
            for (char digit : value)
                PressKey(static_cast<WORD>(digit));
            if (!WaitUntil([&] { return ControlText(edit) == value; }, 10s))
                return ::testing::AssertionFailure() << "colour field " << field << " holds " << ControlText(edit);
        }
        if (!PressButton(dialog->hwnd, "OK"))
            return ::testing::AssertionFailure() << "the colour dialog did not close";
        return ::testing::AssertionSuccess();
    }

    // Types a text over the whole of the focused field.
    static void TypeOver(std::string_view text) {
        PressKey(VK_END);
        TapKeys(VK_SHIFT, VK_HOME, 60ms);
        for (char c : text)
            PressKey(static_cast<WORD>(std::toupper(static_cast<unsigned char>(c))));
    }

    bool ShowsText(HWND window, std::string_view text) {
        return WaitUntil([&] { return VisibleControl(window, "Static", text).has_value(); }, 10s);
    }

    std::string extraSettings;
    ProgramFolder folder;
    Tarvex tarvex;
};

// The systray copy shown from the start.
class PreferencesWithSystray : public Preferences {
protected:
    PreferencesWithSystray() { extraSettings = "TaskbarRunOnStartup=True\n"; }
};

// A title font that is not installed and a pictures folder whose title picture is no picture.
class PreferencesWithBadInput : public Preferences {
protected:
    PreferencesWithBadInput() {
        extraSettings = "TitleFont=No Such Face\nTitleBitmap=True\nBitmapsFolder=Broken\n";
        ::CreateDirectoryW(Win::Widen(folder.File("Broken")).c_str(), nullptr);
        folder.WriteBytes("Broken\\TitleA.bmp", "this is text, not a picture");
    }
};

// Fonts the test machine has (tools/bootstrap.sh installs them): a theme with a missing
// font is loaded with a warning. The look's pictures stand in a folder of their own.
class ThemesPage : public Preferences {
protected:
    ThemesPage() {
        extraSettings = "TitleFont=DejaVu Sans\nButtonFont=DejaVu Sans\nBitmapsFolder=" + folder.File("Look") + "\n";
        ::CreateDirectoryW(Win::Widen(folder.File("Look")).c_str(), nullptr);
        folder.WriteBytes("Look\\TitleA.bmp", "BM a title picture");
        folder.WriteBytes("Look\\CloseA.ico", "an icon");
    }

    // Every file of a theme's folder with its bytes.
    std::map<std::string, std::string> ThemeFiles(const std::string& theme) const {
        std::map<std::string, std::string> files;
        WIN32_FIND_DATAW found{};
        const std::string folderPath = "Themes\\" + theme + "\\";
        HANDLE search = ::FindFirstFileW(Win::Widen(folder.File(folderPath + "*")).c_str(), &found);
        for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileW(search, &found))
            if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
                files[Win::Narrow(found.cFileName)] = folder.ReadBytes(folderPath + Win::Narrow(found.cFileName));
        if (search != INVALID_HANDLE_VALUE)
            ::FindClose(search);
        return files;
    }

    // The page's list of themes, right of the list of pages.
    std::optional<WindowInfo> ThemeList(HWND window) const {
        std::optional<WindowInfo> pages = VisibleControl(window, "ListBox", "");
        for (const WindowInfo& list : AllControls(window))
            if (pages && list.className == "ListBox" && list.visible && list.rect.left > pages->rect.left)
                return list;
        return std::nullopt;
    }

    bool Press(HWND window, std::string_view button) {
        std::optional<WindowInfo> found = VisibleControl(window, "Button", button);
        return found && ClickWindow(found->hwnd);
    }
};

} // namespace

TEST_F(Preferences, TheTrayIconOpensALargeWindowOfControlsAndTheHotKeyBringsTheSameOneForward) {
    HWND window = Open();
    ASSERT_TRUE(window);
    WindowInfo info = DescribeWindow(window);
    EXPECT_EQ(info.title, "Tarvex Preferences");
    EXPECT_GE(info.rect.right - info.rect.left, 600);
    EXPECT_GE(info.rect.bottom - info.rect.top, 400);
    EXPECT_GE(AllControls(window).size(), 150u) << "a page for every key";
    ASSERT_TRUE(PreviewWindow(window)) << "no preview menu";

    tarvex.SendTrayMessage(WM_LBUTTONDBLCLK); // open already: nothing happens
    TapKeys(VK_CONTROL, VK_F12, 60ms);        // the general hot key brings it forward
    EXPECT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == window; }, 10s));
    Settle(500ms);
    EXPECT_EQ(TopLevelWindows(kPreferencesClass, tarvex.processId()).size(), 1u);
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}

TEST_F(Preferences, ATitleColourShowsInThePreviewAtOnceAndApplyWritesItAndRepaintsAnOpenMenu) {
    TapKeys(VK_CONTROL, VK_F5, 60ms);
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu);
    ASSERT_TRUE(WaitForSteadyImage(menu->hwnd));
    const std::string before = folder.ReadBytes("Helmora.ini");

    HWND window = Open();
    ASSERT_TRUE(window);
    std::optional<WindowInfo> preview = PreviewWindow(window);
    ASSERT_TRUE(preview);
    EXPECT_EQ(RedInTitle(preview->hwnd), 0);
    ASSERT_TRUE(ChooseRedTitle(window));
    EXPECT_TRUE(WaitUntil([&] { return RedInTitle(preview->hwnd) > 100; }, 10s)) << "the preview kept its colour";
    SaveNamedScreenshot("preferences-title-colour");
    EXPECT_EQ(folder.ReadBytes("Helmora.ini"), before) << "nothing is saved before Apply";
    EXPECT_EQ(RedInTitle(menu->hwnd), 0) << "the open menu changed before Apply";

    ASSERT_TRUE(ShowPreferencePage(window, "Global")); // the hotspot opens at start-up too
    std::optional<WindowInfo> atStart = VisibleControl(window, "Button", "Default (Main)");
    ASSERT_TRUE(atStart && ClickWindow(atStart->hwnd));
    std::optional<WindowInfo> apply = VisibleControl(window, "Button", "&Apply");
    ASSERT_TRUE(apply && ClickWindow(apply->hwnd));
    EXPECT_TRUE(WaitUntil([&] { return RedInTitle(menu->hwnd) > 100; }, 10s)) << "the open menu kept its colour";
    ASSERT_TRUE(WaitUntil([&] { return folder.ReadSetting("TitleColor") == "255"; }, 10s));
    EXPECT_EQ(folder.ReadSetting("MyOwnKey"), "kept");
    EXPECT_EQ(folder.ReadSetting("ButtonVSize"), std::to_string(kPlainButtonHeight));
    EXPECT_EQ(folder.ReadValue("Other", "Keep"), "this");
    EXPECT_EQ(folder.ReadSetting("HotSpot0Hotkey"), std::to_string(VK_F5));
    EXPECT_EQ(folder.ReadSetting("GenStartupHotspot0"), "0");
    EXPECT_EQ(folder.ReadSetting("GenStartupHotspot1"), "-1");

    // A change, then Cancel: the question, and the file as it was.
    const std::string applied = folder.ReadBytes("Helmora.ini");
    ASSERT_TRUE(ShowPreferencePage(window, "Titlebar"));
    std::optional<WindowInfo> flat = VisibleControl(window, "Button", FindSetting("TitleFlat")->control.label);
    ASSERT_TRUE(flat && ClickWindow(flat->hwnd));
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
    EXPECT_EQ(folder.ReadBytes("Helmora.ini"), applied);
}

// Run at 96 dots per inch and again at 144 (a prefix of its own); the screenshots are
// named with the DPI when it is not 96.
TEST_F(Preferences, EveryPageFitsItsWindow) {
    HWND window = Open();
    ASSERT_TRUE(window);
    HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    for (const ::Preferences::PageDef& page : ::Preferences::Pages()) {
        ASSERT_TRUE(ShowPreferencePage(window, page.title)) << page.title;
        EXPECT_TRUE(WaitUntil([&] { return VisibleControl(window, "Static", page.heading).has_value(); }, 10s))
            << page.heading;
        std::optional<WindowInfo> panel = VisibleControl(window, "Tarvex2PreferencePage", "");
        ASSERT_TRUE(panel);
        RECT room{};
        ::GetClientRect(panel->hwnd, &room);
        ::MapWindowPoints(panel->hwnd, nullptr, reinterpret_cast<POINT*>(&room), 2);
        for (const WindowInfo& control : AllControls(panel->hwnd))
            EXPECT_TRUE(!control.visible || control.rect.right <= room.right)
                << page.title << ": \"" << control.title << "\" runs past the page";
        Settle(300ms);
        std::string name(page.title);
        std::replace(name.begin(), name.end(), ' ', '-');
        std::string shot("preferences-");
        shot.append(name);
        if (dpi != 96) // appended: GCC 12 for i686 misreads "text" + std::string here (-Wrestrict)
            shot.append("-").append(std::to_string(dpi)).append("dpi");
        SaveNamedScreenshot(shot);
    }
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}

// As a move onto a monitor of a quarter fewer dots per inch (a window may not grow past
// the screen under Wine): the window, its controls and their font shrink by a quarter,
// and the page's controls still fit inside it.
TEST_F(Preferences, ADpiChangeScalesTheWindowItsControlsAndTheirFont) {
    HWND window = Open();
    ASSERT_TRUE(window);
    ASSERT_TRUE(ShowPreferencePage(window, "Hotspots"));
    const RECT before = DescribeWindow(window).rect;
    std::optional<WindowInfo> ok = VisibleControl(window, "Button", "OK");
    ASSERT_TRUE(ok);
    const int okHeight = ok->rect.bottom - ok->rect.top;
    HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    const int to = dpi * 3 / 4;

    ::PostMessageW(window, WM_DPICHANGED, MAKEWPARAM(to, to), 0);
    ASSERT_TRUE(WaitUntil([&] { return DescribeWindow(window).rect.right != before.right; }, 10s));
    ASSERT_TRUE(tarvex.WaitUntilIdle());
    const RECT after = DescribeWindow(window).rect;
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.right - after.left, ::MulDiv(before.right - before.left, to, dpi));
    ok = VisibleControl(window, "Button", "OK");
    ASSERT_TRUE(ok);
    EXPECT_NEAR(ok->rect.bottom - ok->rect.top, okHeight * 3 / 4, okHeight / 8) << "the buttons follow the font";
    std::optional<WindowInfo> panel = VisibleControl(window, "Tarvex2PreferencePage", "");
    ASSERT_TRUE(panel);
    for (const WindowInfo& control : AllControls(panel->hwnd))
        EXPECT_TRUE(!control.visible || control.rect.right <= panel->rect.right) << control.title;
    SaveNamedScreenshot("preferences-after-a-dpi-change");
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}

TEST_F(Preferences, TheKeyboardAloneSetsANumberAndEscapeAsksBeforeItDiscards) {
    HWND window = Open();
    ASSERT_TRUE(window);
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == window; }, 10s));
    std::optional<WindowInfo> field;
    auto reachMostEntries = [&] {
        for (int page = 0; page < 3; ++page) // the page list has the focus: Titlebar, Bitmap, Menu Button, Menu
            PressKey(VK_DOWN);
        EXPECT_TRUE(ShowsText(window, "Menu Preferences"));
        TapKeys(VK_MENU, 'N', 60ms); // "Most e&ntries:"
        field = ControlBesideLabel(window, LabelOf("MenuMaxNoItems"), "Edit");
        return field && WaitUntil([&] { return FocusedControl(window) == field->hwnd; }, 10s);
    };
    ASSERT_TRUE(reachMostEntries());
    TypeOver("1"); // the range is 2 to 9999
    EXPECT_TRUE(ShowsText(window, "Allowed: 2 to 9999"));
    PressKey(VK_TAB);
    EXPECT_TRUE(ShowsText(window, "Corrected (2 to 9999)"));
    EXPECT_EQ(ControlText(field->hwnd), "2");
    EXPECT_NE(folder.ReadSetting("MenuMaxNoItems"), "2") << "saved before OK";
    PressKey(VK_RETURN); // OK
    ASSERT_TRUE(WaitForWindowGone(window, 10s));
    EXPECT_EQ(folder.ReadSetting("MenuMaxNoItems"), "2");

    window = Open();
    ASSERT_TRUE(window);
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == window; }, 10s));
    ASSERT_TRUE(reachMostEntries());
    TypeOver("50");
    PressKey(VK_ESCAPE);
    std::optional<WindowInfo> question = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(question) << "Escape after a change asks first";
    ASSERT_TRUE(PressButton(question->hwnd, "No"));
    ASSERT_TRUE(WaitForWindowGone(question->hwnd, 10s));
    EXPECT_TRUE(::IsWindowVisible(window));
    PressKey(VK_ESCAPE);
    question = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(question && PressButton(question->hwnd, "Yes"));
    EXPECT_TRUE(WaitForWindowGone(window, 10s));
    EXPECT_EQ(folder.ReadSetting("MenuMaxNoItems"), "2");
}

TEST_F(PreferencesWithBadInput, AMissingFontAndAFileThatIsNoPictureAreNamedBesideTheirControls) {
    HWND window = Open();
    ASSERT_TRUE(window);
    EXPECT_TRUE(WaitUntil([&] { // Arial itself may be missing under Wine
        return VisibleControl(window, "Static", "Not installed: Arial is used") ||
               VisibleControl(window, "Static", "Not installed: a similar font is used");
    }, 10s));
    ASSERT_TRUE(ShowPreferencePage(window, "Bitmap"));
    EXPECT_TRUE(ShowsText(window, "Not a picture: TitleA.bmp"));
    std::optional<WindowInfo> folderField = ControlBesideLabel(window, LabelOf("BitmapsFolder"), "Edit");
    ASSERT_TRUE(folderField && ClickWindow(folderField->hwnd));
    TypeOver("Gone");
    EXPECT_TRUE(ShowsText(window, "Folder not found: no pictures are drawn"));
    SaveNamedScreenshot("preferences-bad-input");
    std::optional<WindowInfo> preview = PreviewWindow(window);
    ASSERT_TRUE(preview);
    EXPECT_TRUE(WaitForSteadyImage(preview->hwnd));
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
    EXPECT_EQ(folder.ReadSetting("BitmapsFolder"), "Broken");
}

TEST_F(PreferencesWithSystray, ApplyMovesTheShownSystrayCopyByItsNewOffset) {
    std::optional<WindowInfo> systray = WaitForVisibleWindow("Tarvex2Systray", tarvex.processId(), 10s);
    ASSERT_TRUE(systray);
    HWND window = Open();
    ASSERT_TRUE(window);
    ASSERT_TRUE(ShowPreferencePage(window, "Tasklist and Systray"));
    TapKeys(VK_MENU, 'Z', 60ms); // the systray's "Hr&z.Offset", scrolled into view
    std::optional<WindowInfo> offset = ControlBesideLabel(window, LabelOf("SystrayXofset"), "Edit");
    ASSERT_TRUE(offset && WaitUntil([&] { return FocusedControl(window) == offset->hwnd; }, 10s));
    TypeOver("100");
    TapKeys(VK_MENU, 'A', 60ms); // Apply
    EXPECT_TRUE(WaitUntil([&] { return folder.ReadSetting("SystrayXofset") == "100"; }, 10s));
    EXPECT_TRUE(WaitUntil(
        [&] {
            RECT now{};
            ::GetWindowRect(systray->hwnd, &now);
            return std::abs(now.left - systray->rect.left) == 100;
        },
        10s))
        << "the systray copy stayed where it was";
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}

TEST_F(Preferences, UserTasksAddedOnTheTasklistPageAreWrittenOnOKTenAtMost) {
    HWND window = Open();
    ASSERT_TRUE(window);
    ASSERT_TRUE(ShowPreferencePage(window, "Tasklist and Systray"));
    std::optional<WindowInfo> add = VisibleControl(window, "Button", "Add");
    ASSERT_TRUE(add && ClickWindow(add->hwnd));
    std::optional<WindowInfo> name = ControlBesideLabel(window, "Name:", "Edit");
    ASSERT_TRUE(name);
    ASSERT_TRUE(WaitUntil([&] { return ControlText(name->hwnd) == "NewItem"; }, 10s));
    ASSERT_TRUE(ClickWindow(name->hwnd));
    TypeOver("editor");
    TapKeys(VK_MENU, 'X', 60ms); // "E&xecutable:"
    std::optional<WindowInfo> exec = ControlBesideLabel(window, "E&xecutable:", "Edit");
    ASSERT_TRUE(exec && WaitUntil([&] { return FocusedControl(window) == exec->hwnd; }, 10s));
    TypeOver("notepad");
    for (int more = 0; more < 10; ++more) // the last one is the eleventh
        ASSERT_TRUE(ClickWindow(add->hwnd));
    EXPECT_TRUE(ShowsText(window, "Ten user tasks at most: an eleventh would overwrite the first"));
    SaveNamedScreenshot("preferences-user-tasks");
    EXPECT_EQ(folder.ReadSetting("NoOfUserTasks"), "?") << "nothing is saved before OK";

    std::optional<WindowInfo> ok = VisibleControl(window, "Button", "OK");
    ASSERT_TRUE(ok && ClickWindow(ok->hwnd));
    ASSERT_TRUE(WaitForWindowGone(window, 10s));
    EXPECT_EQ(folder.ReadSetting("NoOfUserTasks"), "10");
    EXPECT_EQ(folder.ReadSetting("TaskName0"), "editor");
    EXPECT_EQ(folder.ReadSetting("TaskExec0"), "notepad");
    EXPECT_EQ(folder.ReadSetting("TaskName9"), "NewItem");
}

// Save the look as a theme, change the look, load the theme back: the saved look again,
// in the preview and, after OK, in the file; then the theme deleted after its question.
TEST_F(ThemesPage, ALookSavedAsAThemeComesBackWhenLoadedAndADeletedThemeIsGone) {
    HWND window = Open();
    ASSERT_TRUE(window);
    std::optional<WindowInfo> preview = PreviewWindow(window);
    ASSERT_TRUE(preview);
    const std::string titleColour = folder.ReadSetting("TitleColor");
    auto press = [&](std::string_view button) { return Press(window, button); };

    ASSERT_TRUE(ShowPreferencePage(window, "Themes"));
    std::optional<WindowInfo> name = ControlBesideLabel(window, "&Name:", "Edit");
    ASSERT_TRUE(name);
    ::SendMessageW(name->hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Mine"));
    ASSERT_TRUE(press("&Save Theme"));
    ASSERT_TRUE(WaitUntil([&] { return folder.Exists("Themes\\Mine\\Mine.wst"); }, 10s));

    ASSERT_TRUE(ShowPreferencePage(window, "Titlebar"));
    ASSERT_TRUE(ChooseRedTitle(window));
    ASSERT_TRUE(WaitUntil([&] { return RedInTitle(preview->hwnd) > 100; }, 10s));

    ASSERT_TRUE(ShowPreferencePage(window, "Themes"));
    std::optional<WindowInfo> themes = ThemeList(window);
    ASSERT_TRUE(themes && Click(themes->rect.left + 20, themes->rect.top + 6)) << "Mine is the only theme";
    EXPECT_TRUE(WaitUntil([&] { return RedInTitle(preview->hwnd) == 0; }, 10s)) << "the preview shows the chosen theme";
    ASSERT_TRUE(press("&Load Theme"));
    EXPECT_TRUE(WaitUntil([&] { return VisibleControl(window, "Static", "Loaded Mine: OK or Apply keeps it.").has_value(); },
                          10s));
    EXPECT_TRUE(SaveNamedScreenshot("themes-page-loaded"));
    ASSERT_TRUE(ShowPreferencePage(window, "Titlebar"));
    EXPECT_TRUE(WaitUntil([&] { return RedInTitle(preview->hwnd) == 0; }, 10s)) << "the edited look is the theme's";

    ASSERT_TRUE(ShowPreferencePage(window, "Themes"));
    ASSERT_TRUE(Click(themes->rect.left + 20, themes->rect.top + 6));
    ASSERT_TRUE(press("&Delete Theme"));
    std::optional<WindowInfo> question = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(question);
    EXPECT_EQ(question->title, "Tarvex - Delete Theme Confirmation Dialog") << DialogText(question->hwnd);
    ASSERT_TRUE(PressButton(question->hwnd, "OK"));
    EXPECT_TRUE(WaitUntil([&] { return !folder.Exists("Themes\\Mine"); }, 10s));
    EXPECT_TRUE(WaitUntil([&] { return ::SendMessageW(themes->hwnd, LB_GETCOUNT, 0, 0) == 0; }, 10s));

    ASSERT_TRUE(press("OK"));
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(window); }, 10s));
    EXPECT_EQ(folder.ReadSetting("TitleColor"), titleColour);
    EXPECT_EQ(folder.ReadSetting("GenThemeName"), "Mine");
}

TEST_F(ThemesPage, AThemeExportedAndImportedAgainIsTheSameFileForFile) {
    HWND window = Open();
    ASSERT_TRUE(window);
    ASSERT_TRUE(ShowPreferencePage(window, "Themes"));
    std::optional<WindowInfo> name = ControlBesideLabel(window, "&Name:", "Edit");
    ASSERT_TRUE(name);
    ::SendMessageW(name->hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Mine"));
    ASSERT_TRUE(Press(window, "&Save Theme"));
    ASSERT_TRUE(WaitUntil([&] { return VisibleControl(window, "Static", "Saved as Mine.").has_value(); }, 10s));
    const std::map<std::string, std::string> saved = ThemeFiles("Mine");
    EXPECT_TRUE(saved.contains("Mine.wst") && saved.contains("TitleA.bmp") && saved.contains("CloseA.ico"))
        << saved.size() << " files";

    ASSERT_TRUE(Press(window, "E&xport")); // Mine, saved last, is chosen
    ASSERT_TRUE(WaitUntil([&] { return folder.Exists("Export\\Mine.zip"); }, 10s));
    ASSERT_TRUE(Press(window, "&Delete Theme"));
    std::optional<WindowInfo> question = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(question && PressButton(question->hwnd, "OK"));
    ASSERT_TRUE(WaitUntil([&] { return !folder.Exists("Themes\\Mine"); }, 10s));

    ASSERT_TRUE(Press(window, "&Import..."));
    std::optional<WindowInfo> open = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(open);
    HWND file = nullptr;
    for (const WindowInfo& child : ChildWindows(open->hwnd))
        if (child.className == "Edit" && child.visible)
            file = child.hwnd;
    ASSERT_TRUE(file) << "no file name field in " << open->title;
    ::SendMessageW(file, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Win::Widen(folder.File("Export\\Mine.zip")).c_str()));
    ASSERT_TRUE(PressButton(open->hwnd, "Open"));
    ASSERT_TRUE(WaitUntil([&] { return folder.Exists("Themes\\Mine\\Mine.wst"); }, 10s));
    EXPECT_TRUE(WaitUntil([&] { return ThemeFiles("Mine") == saved; }, 10s)) << "the imported theme differs";
    std::optional<WindowInfo> themes = ThemeList(window);
    ASSERT_TRUE(themes);
    EXPECT_EQ(::SendMessageW(themes->hwnd, LB_GETCOUNT, 0, 0), 1);
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}

// Both files made read-only: every Apply fails and leaves them byte for byte, and the user
// hears of each kind of file once, with what, why and the old file kept. A page turned
// after an Apply shows that the Apply is over and brought no box: a box would hold the
// window still.
TEST_F(Preferences, ReadOnlyFilesStayAsTheyWereAndEachKindOfFailedSaveIsToldOnce) {
    const std::string settingsBefore = folder.ReadBytes("Helmora.ini");
    const std::string menusBefore = folder.ReadBytes("TvMenus.ini");
    for (const char* name : {"Helmora.ini", "TvMenus.ini"})
        ASSERT_TRUE(::SetFileAttributesW(Win::Widen(folder.File(name)).c_str(), FILE_ATTRIBUTE_READONLY));
    HWND window = Open();
    ASSERT_TRUE(window);
    const auto press = [&](std::string_view button) {
        std::optional<WindowInfo> found = VisibleControl(window, "Button", button);
        return found && ClickWindow(found->hwnd);
    };
    const auto deleteFirstItem = [&] {
        if (!ShowPreferencePage(window, "Menu Editor"))
            return false;
        std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
        if (!tree || !Click(tree->rect.left + 20, tree->rect.bottom - 20))
            return false;
        PressKey(VK_HOME);
        PressKey(VK_DOWN); // Main, then its first item
        return press("&Delete");
    };
    const auto toggleFlatTitle = [&] {
        return ShowPreferencePage(window, "Titlebar") && press(LabelOf("TitleFlat"));
    };
    const auto toldOnce = [&](const std::string& what, const std::string& file) {
        std::optional<WindowInfo> box = WaitForMessageBox(tarvex.processId());
        if (!box)
            return ::testing::AssertionFailure() << "no box for the " << what;
        const std::string text = DialogText(box->hwnd);
        for (const std::string& part : {"The " + what + " could not be saved.", folder.File(file),
                                        std::string("the file is read-only"), std::string("left as it was")})
            if (text.find(part) == std::string::npos)
                return ::testing::AssertionFailure() << "\"" << part << "\" missing from: " << text;
        if (box->title != "Tarvex Warning" || !PressButton(box->hwnd, "OK"))
            return ::testing::AssertionFailure() << "not a warning box, or it did not close";
        return ::testing::AssertionSuccess();
    };
    const auto toldNothing = [&](std::string_view nextPage) {
        return ShowPreferencePage(window, nextPage) && TopLevelWindows(kDialogClass, tarvex.processId()).empty();
    };

    ASSERT_TRUE(deleteFirstItem());
    ASSERT_TRUE(press("&Apply"));
    EXPECT_TRUE(toldOnce("menus", "TvMenus.ini"));
    ASSERT_TRUE(deleteFirstItem());
    ASSERT_TRUE(press("&Apply"));
    EXPECT_TRUE(toldNothing("Global")) << "a second failed menu save is not told";

    ASSERT_TRUE(toggleFlatTitle());
    ASSERT_TRUE(press("&Apply"));
    EXPECT_TRUE(toldOnce("settings", "Helmora.ini"));
    ASSERT_TRUE(toggleFlatTitle());
    ASSERT_TRUE(press("&Apply"));
    EXPECT_TRUE(toldNothing("Global")) << "a second failed settings save is not told";

    EXPECT_EQ(folder.ReadBytes("Helmora.ini"), settingsBefore);
    EXPECT_EQ(folder.ReadBytes("TvMenus.ini"), menusBefore);
    EXPECT_FALSE(folder.Exists("Helmora.ini.tmp") || folder.Exists("TvMenus.ini.tmp"));
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}
