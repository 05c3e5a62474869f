// The shipped themes, one after another: a theme's settings copied into Helmora.ini and
// its folder into the program folder, a start-up menu painted with its pictures, then a
// sub-menu opened from the keyboard so that both looks (active and inactive), the
// selection bars, the arrows and the command-key symbols are on the screen. The screenshot
// is saved as "menuwindow-theme-<name>.bmp" for a person to look at.
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/screen.h"
#include "harness/startup_menu.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace E2e;

std::string ThemeFile(const std::string& theme, const std::string& name) {
    return TestProgramFolder() + "\\Themes\\" + theme + "\\" + name;
}

// The theme's settings without their section line.
std::string ThemeKeys(const std::string& theme) {
    Win::UniqueFileHandle file(::CreateFileW(Win::Widen(ThemeFile(theme, theme + ".wst")).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::string bytes;
    char buffer[4096];
    DWORD got = 0;
    while (file && ::ReadFile(file.get(), buffer, sizeof buffer, &got, nullptr) && got > 0)
        bytes.append(buffer, got);
    std::erase(bytes, '\r');
    std::size_t start = bytes.find('\n');
    return start == std::string::npos ? std::string() : bytes.substr(start + 1);
}

// A number the settings hold; 0 when the key is missing.
int KeyNumber(const std::string& keys, const std::string& key) {
    std::size_t at = keys.find("\n" + key + "=");
    return at == std::string::npos ? 0 : std::atoi(keys.c_str() + at + key.size() + 2);
}

bool CopyTheme(const ProgramFolder& folder, const std::string& theme) {
    std::string themes = folder.File("Themes");
    ::CreateDirectoryW(Win::Widen(themes).c_str(), nullptr);
    std::string target = themes + "\\" + theme;
    ::CreateDirectoryW(Win::Widen(target).c_str(), nullptr);
    WIN32_FIND_DATAW found{};
    Win::UniqueFindHandle find(::FindFirstFileW(Win::Widen(ThemeFile(theme, "*")).c_str(), &found));
    if (!find)
        return false;
    do {
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            continue;
        std::string name = Win::Narrow(found.cFileName);
        if (!::CopyFileW(Win::Widen(ThemeFile(theme, name)).c_str(), Win::Widen(target + "\\" + name).c_str(), FALSE))
            return false;
    } while (::FindNextFileW(find.get(), &found));
    return true;
}

bool Near(COLORREF a, COLORREF b) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= 12 && std::abs(GetGValue(a) - GetGValue(b)) <= 12 &&
           std::abs(GetBValue(a) - GetBValue(b)) <= 12;
}

// A pixel of a picture file, read through GDI: across at a fraction of its width, down at a row.
COLORREF PicturePixel(const std::string& path, double fx, int row) {
    Win::UniqueBitmap bitmap(static_cast<HBITMAP>(
        ::LoadImageW(nullptr, Win::Widen(path).c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    BITMAP info{};
    if (!bitmap || !::GetObjectW(bitmap.get(), sizeof info, &info))
        return CLR_INVALID;
    Win::UniqueMemoryDc dc(::CreateCompatibleDC(nullptr));
    Win::SelectGuard select(dc.get(), bitmap.get());
    return ::GetPixel(dc.get(), static_cast<int>(fx * info.bmWidth), row);
}

class Themes : public StartupMenuTest, public ::testing::WithParamInterface<const char*> {};

} // namespace

// The theme's keys come first and so win over the plain look's: a theme file holds every
// look key (ShippedTheme.ThemeFileIsWhatSavingTheThemeWrites).
TEST_P(Themes, PaintAStartUpMenuAndASubMenuWithTheirPictures) {
    const std::string theme = GetParam();
    ASSERT_TRUE(folder.ready());
    std::string keys = ThemeKeys(theme);
    ASSERT_NE(keys.find("GenThemeName=" + theme), std::string::npos) << "the theme file was not read";
    ASSERT_TRUE(CopyTheme(folder, theme));
    TestItem editor = Item("Text Editor", 0, "notepad.exe");
    editor.hotkey.assign(1, 'E'); // assigned so: GCC 12 warns falsely on = "E"
    TestItem paint = Item("Paint", 0, "mspaint.exe");
    paint.hotkey.assign(1, 'P');
    std::vector<TestItem> programs{editor, Item("Tools", 3, "Tools"), Item("Calculator", 0, "calc.exe"),
                                   Item("Command Prompt", 0, "cmd.exe")};
    std::vector<TestItem> tools{paint, Item("Character Map", 0, "charmap.exe"), Item("More Tools", 3, "More")};
    std::string menus = MenuFileText({{"Programs", programs}, {"Tools", tools}, {"More", {}}});
    ASSERT_TRUE(MoveMouse(980, 700)); // away from the menus, whose bar follows the mouse
    std::optional<WindowInfo> menu = Start(StartupMenuSettings("Programs", 300, 120, keys), menus);
    ASSERT_TRUE(menu) << "no menu window opened at start";

    // The title picture is stretched over the bar (inside the frame's lines, or over them on
    // its outer sides with TitleOverlap): the column through its middle, between the name
    // at the left and the buttons at the right, shows the picture's middle column, each row
    // of the bar the picture's row nearest its centre; the two rows at either end, which a
    // 3D edge covers, aside. The theme's colours, drawn without the picture, would miss its
    // lines.
    const RECT& r = menu->rect;
    bool framed = KeyNumber(keys, "MenuNoFrames") == 0;
    bool twoLines = keys.find("\nMenu3DFrame2=True") != std::string::npos;
    int frame = framed ? (twoLines ? 2 : 1) : 0;
    int top = keys.find("\nTitleOverlap=True") != std::string::npos ? 0 : frame;
    int height = KeyNumber(keys, "TitleVSize");
    int rows = frame + height - top;
    std::string differing;
    for (int y = 2; y < rows - 2; ++y) {
        COLORREF expected = PicturePixel(ThemeFile(theme, "TitleA.bmp"), 0.5, (2 * y + 1) * height / (2 * rows));
        ASSERT_NE(expected, CLR_INVALID);
        COLORREF shown = ReadPixel(r.left + (r.right - r.left) / 2, r.top + top + y);
        if (!Near(shown, expected))
            differing.append(" ").append(std::to_string(y));
    }
    EXPECT_EQ(differing, "") << "rows of the title unlike its picture";

    // Tools, the second item, opens; the bar goes to its first item.
    for (WORD key : {VK_HOME, VK_DOWN, VK_RETURN})
        PressKey(key);
    ASSERT_TRUE(WaitForMenuCount(tarvex.processId(), 2)) << "the sub-menu did not open";
    std::optional<WindowInfo> sub = MenuWindowTitled(tarvex.processId(), "Tools");
    ASSERT_TRUE(sub);
    std::vector<std::uint32_t> before = ReadArea(sub->rect);
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([&] { return ReadArea(sub->rect) != before; }, 5s)) << "no bar in the sub-menu";
    ASSERT_TRUE(WaitForSteadyImage(sub->hwnd));
    Screenshot("theme-" + theme);
}

INSTANTIATE_TEST_SUITE_P(Shipped, Themes, ::testing::Values("Aurora", "Paper", "Graphite", "Amber"),
                         [](const ::testing::TestParamInfo<const char*>& info) { return std::string(info.param); });
