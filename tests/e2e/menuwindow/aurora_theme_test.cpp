// The shipped Aurora theme: its settings copied into Helmora.ini and its folder into the
// program folder, a start-up menu painted with its pictures. The screenshot is saved as
// "menuwindow-aurora.bmp" for a person to look at.
#include "harness/menu_files.h"
#include "harness/screen.h"
#include "harness/startup_menu.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using namespace E2e;

std::string ThemeFile(const std::string& name) {
    std::string path = TestProgramFolder();
    path += "\\Themes\\Aurora\\";
    path += name;
    return path;
}

// The theme's settings without their section line.
std::string ThemeKeys() {
    Win::UniqueFileHandle file(::CreateFileW(Win::Widen(ThemeFile("Aurora.wst")).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                             nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::string bytes;
    char buffer[4096];
    DWORD got = 0;
    while (file && ::ReadFile(file.get(), buffer, sizeof buffer, &got, nullptr) && got > 0)
        bytes.append(buffer, got);
    std::erase(bytes, '\r');
    std::size_t start = bytes.find('\n');
    return start == std::string::npos ? std::string() : bytes.substr(start + 1);
}

bool CopyTheme(const ProgramFolder& folder) {
    std::string themes = folder.File("Themes");
    ::CreateDirectoryW(Win::Widen(themes).c_str(), nullptr);
    std::string target = themes + "\\Aurora";
    ::CreateDirectoryW(Win::Widen(target).c_str(), nullptr);
    WIN32_FIND_DATAW found{};
    Win::UniqueFindHandle find(::FindFirstFileW(Win::Widen(ThemeFile("*")).c_str(), &found));
    if (!find)
        return false;
    do {
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            continue;
        std::string name = Win::Narrow(found.cFileName);
        std::string to = target;
        to += "\\";
        to += name;
        if (!::CopyFileW(Win::Widen(ThemeFile(name)).c_str(), Win::Widen(to).c_str(), FALSE))
            return false;
    } while (::FindNextFileW(find.get(), &found));
    return true;
}

bool Near(COLORREF a, COLORREF b) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= 12 && std::abs(GetGValue(a) - GetGValue(b)) <= 12 &&
           std::abs(GetBValue(a) - GetBValue(b)) <= 12;
}

// A pixel of a picture file, read through GDI.
COLORREF PicturePixel(const std::string& path, double fx, double fy, SIZE* size) {
    Win::UniqueBitmap bitmap(static_cast<HBITMAP>(
        ::LoadImageW(nullptr, Win::Widen(path).c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    BITMAP info{};
    if (!bitmap || !::GetObjectW(bitmap.get(), sizeof info, &info))
        return CLR_INVALID;
    *size = {info.bmWidth, info.bmHeight};
    Win::UniqueMemoryDc dc(::CreateCompatibleDC(nullptr));
    Win::SelectGuard select(dc.get(), bitmap.get());
    return ::GetPixel(dc.get(), static_cast<int>(fx * info.bmWidth), static_cast<int>(fy * info.bmHeight));
}

using AuroraTheme = StartupMenuTest;

} // namespace

// The theme's keys come first and so win over the plain look's: a theme file holds every
// look key (ShippedTheme.ThemeFileIsWhatSavingTheThemeWrites).
TEST_F(AuroraTheme, TheShippedThemePaintsAStartUpMenuWithItsPictures) {
    ASSERT_TRUE(folder.ready());
    std::string keys = ThemeKeys();
    ASSERT_NE(keys.find("BitmapsFolder=Themes\\Aurora"), std::string::npos) << "the theme names its own folder";
    ASSERT_TRUE(CopyTheme(folder));
    TestItem editor = Item("Text Editor", 0, "notepad.exe");
    editor.hotkey.assign(1, 'E'); // assigned so: GCC 12 warns falsely on = "E"
    std::vector<TestItem> programs{editor, Item("Tools", 3, "Tools"), Item("Calculator", 0, "calc.exe"),
                                   Item("Command Prompt", 0, "cmd.exe")};
    std::string menus = MenuFileText({{"Programs", programs}, {"Tools", {Item("Paint", 0, "mspaint.exe")}}});
    std::optional<WindowInfo> menu = Start(StartupMenuSettings("Programs", 300, 120, keys), menus);
    ASSERT_TRUE(menu) << "no menu window opened at start";
    Screenshot("aurora");

    // The title picture is stretched over the bar: its middle, between the name at the left
    // and the buttons at the right, shows the picture's middle.
    const RECT& r = menu->rect;
    SIZE picture{};
    COLORREF expected = PicturePixel(ThemeFile("TitleA.bmp"), 0.5, 0.5, &picture);
    ASSERT_NE(expected, CLR_INVALID);
    int width = r.right - r.left;
    COLORREF shown = ReadPixel(r.left + width / 2, r.top + 13);
    EXPECT_TRUE(Near(shown, expected)) << std::hex << "shown 0x" << shown << ", picture 0x" << expected;
}
