// Menu windows made directly, with settings and menus of the test's choosing, and their
// pictures taken through WM_PRINTCLIENT to read pixels from.
#pragma once

#include "core/settings.h"
#include "menus/menu_records.h"
#include "menuwindow/interaction/cascade.h"
#include "menuwindow/layout/geometry.h"
#include "menuwindow/win/form2.h"
#include "menuwindow/win/open_menus.h"
#include "support/plain_menu_settings.h"
#include "win/handles.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace MenuWindowTests {

inline constexpr COLORREF kTitleColour = TestSupport::kPlainTitle;
inline constexpr COLORREF kTitleTextColour = TestSupport::kPlainTitleText;
inline constexpr COLORREF kButtonColour = TestSupport::kPlainButton;
inline constexpr COLORREF kButtonTextColour = TestSupport::kPlainButtonText;
inline constexpr COLORREF kSelBarColour = TestSupport::kPlainBar;
inline constexpr COLORREF kSelBarTextColour = TestSupport::kPlainBarText;

// A picture of a window as it paints itself, read pixel by pixel.
class WindowPicture {
public:
    explicit WindowPicture(HWND hwnd);

    int width() const { return width_; }
    int height() const { return height_; }
    COLORREF At(int x, int y) const;
    // How many pixels of a rectangle have the colour.
    int Count(const MenuWindow::Rect& area, COLORREF colour) const;

private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint32_t> pixels_; // top-down rows, 0x00RRGGBB
};

// Every pixel of the area has the colour.
::testing::AssertionResult AllOf(const WindowPicture& picture, const MenuWindow::Rect& area, COLORREF colour);

class MenuWindowTest : public ::testing::Test {
protected:
    void TearDown() override { openMenus.CloseAll(); }

    // Adds a menu with items of the labels (type Filename, no hot key); returns its number.
    int AddMenu(const std::string& name, const std::vector<std::string>& labels);
    // The last menu's item at a position (0-based), to set more of its fields.
    MenuItemRec& ItemOf(int menuNumber, int position);

    // A record that lists a menu, at a position on the screen.
    MenuWindow::CascadeRec MenuRecord(int menuNumber, MenuWindow::Point position = {100, 80}) const;

    // Appends the record, makes its window and creates it (hidden, painted); null on failure.
    Form2* Open(MenuWindow::CascadeRec record);

    SettingsRec settings = TestSupport::PlainMenuSettings();
    MenuTable menus;
    OpenMenus openMenus;
};

} // namespace MenuWindowTests
