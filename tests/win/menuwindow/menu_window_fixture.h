// Menu windows made directly, with settings and menus of the test's choosing, and their
// pictures taken through WM_PRINTCLIENT to read pixels from.
#pragma once

#include "core/settings.h"
#include "menus/menu_records.h"
#include "menuwindow/cascade.h"
#include "menuwindow/geometry.h"
#include "menuwindow/win/form2.h"
#include "menuwindow/win/open_menus.h"
#include "win/handles.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace MenuWindowTests {

// Colours that differ from each other and from every default, in 0x00BBGGRR.
inline constexpr COLORREF kTitleColour = 0x00804020;
inline constexpr COLORREF kTitleTextColour = 0x0000FFFF;
inline constexpr COLORREF kButtonColour = 0x00C0E0D0;
inline constexpr COLORREF kButtonTextColour = 0x00201010;
inline constexpr COLORREF kSelBarColour = 0x003060F0;
inline constexpr COLORREF kSelBarTextColour = 0x00FFFFFE;

// Solid colours, flat parts, no frame and no title over the frame: every pixel of a
// part that no text covers has the part's colour.
SettingsRec PlainSettings();

// A picture of a window as it paints itself, read pixel by pixel.
class WindowPicture {
public:
    explicit WindowPicture(HWND hwnd);

    int width() const { return width_; }
    int height() const { return height_; }
    COLORREF At(int x, int y) const;
    // How many pixels of a rectangle have the colour.
    int Count(const MenuWindow::Rect& area, COLORREF colour) const;
    // Saves the picture as a BMP file under the test program's folder, in
    // "menuwindow-pictures"; returns the path, empty on failure.
    std::string Save(const std::string& name) const;

private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint32_t> pixels_; // top-down rows, 0x00RRGGBB
};

class MenuWindowTest : public ::testing::Test {
protected:
    void TearDown() override { openMenus.CloseAll(); }

    // Adds a menu with items of the labels (type Filename); returns its number.
    int AddMenu(const std::string& name, const std::vector<std::string>& labels);
    // The last menu's item at a position (0-based), to set more of its fields.
    MenuItemRec& ItemOf(int menuNumber, int position);

    // A record that lists a menu, at a position on the screen.
    MenuWindow::CascadeRec MenuRecord(int menuNumber, MenuWindow::Point position = {100, 80}) const;

    // Appends the record, makes its window and creates it (hidden, painted); null on failure.
    Form2* Open(MenuWindow::CascadeRec record);

    SettingsRec settings = PlainSettings();
    MenuTable menus;
    OpenMenus openMenus;
};

} // namespace MenuWindowTests
