// Choosing in a menu window: presses and releases on its items, as the window receives
// them, handed to a launcher that only records. A release elsewhere than the press, and
// sub-menus opening beside their parent and closing, are the unit and end-to-end tests'.
#include "menu_window_fixture.h"

#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/win/menu_choices.h"

using namespace MenuWindowTests;

namespace {

class RecordingChoices : public MenuChoices {
public:
    bool ActivateTaskWindow(HWND) override {
        calls.push_back("activate");
        return true;
    }
    std::int16_t RunCommand(const std::string& value) override {
        calls.push_back("command " + value);
        return commandResult;
    }
    void RunProgram(const DisplayEntry& entry) override { calls.push_back("program " + entry.PATH); }
    void ShowProperties(const std::string& path) override { calls.push_back("properties " + path); }
    void StoreHotspotPlace(int hotspot, int left, int top) override {
        calls.push_back("place " + std::to_string(hotspot) + " " + std::to_string(left) + "," + std::to_string(top));
    }

    std::vector<std::string> calls;
    std::int16_t commandResult = -1;
};

class Form2Choosing : public MenuWindowTest {
protected:
    void SetUp() override {
        openMenus.choices = &choices;
        int menu = AddMenu("Programs", {"Editor", "Exit", "Tools"});
        ItemOf(menu, 0).PATH = "notepad.exe";
        ItemOf(menu, 1).TYPE = kItemCommandName;
        ItemOf(menu, 1).PATH = "*9";
        ItemOf(menu, 2).TYPE = kItemMenuName;
        ItemOf(menu, 2).PATH = "Tools";
        form = Open(MenuRecord(menu));
        ASSERT_TRUE(form);
        hwnd = form->hwnd();
    }

    // The middle of an item's button, in the window's client coordinates.
    LPARAM PointOf(int item) const {
        MenuWindow::Rect button = MenuWindow::ItemInWindow(form->scene(), item);
        return MAKELPARAM((button.left + button.right) / 2, (button.top + button.bottom) / 2);
    }

    void Click(int pressItem, LPARAM release, WPARAM keys = 0, UINT down = WM_LBUTTONDOWN, UINT up = WM_LBUTTONUP) {
        ::SendMessageW(hwnd, down, MK_LBUTTON | keys, PointOf(pressItem));
        ::SendMessageW(hwnd, up, keys, release);
        MSG msg;
        while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&msg);
    }

    RecordingChoices choices;
    Form2* form = nullptr;
    HWND hwnd = nullptr;
};

} // namespace

TEST_F(Form2Choosing, CtrlKeepsTheMenusOpenAndSoDoTheExitAndThePreferences) {
    Click(1, PointOf(1), MK_CONTROL);
    EXPECT_EQ(openMenus.Count(), 1);
    for (std::int16_t result : {9, 14}) {
        choices.commandResult = result;
        Click(2, PointOf(2));
        EXPECT_EQ(openMenus.Count(), 1) << result;
    }
    EXPECT_EQ(choices.calls, (std::vector<std::string>{"program notepad.exe", "command *9", "command *9"}));
    choices.commandResult = 27;
    Click(2, PointOf(2));
    EXPECT_EQ(openMenus.Count(), 0);
}

TEST_F(Form2Choosing, TheRightButtonShowsAFilesProperties) {
    Click(1, PointOf(1), 0, WM_RBUTTONDOWN, WM_RBUTTONUP);
    EXPECT_EQ(choices.calls, std::vector<std::string>{"properties notepad.exe"});
    EXPECT_EQ(openMenus.Count(), 1);
}

TEST_F(Form2Choosing, CtrlWithAnItemsHotKeyChoosesItOnKeyUp) {
    openMenus.CloseAll();
    int menu = AddMenu("Keys", {"Editor"});
    ItemOf(menu, 0).PATH = "notepad.exe";
    ItemOf(menu, 0).HOTKEY = std::string(1, 'e');
    form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    BYTE keys[256]{};
    ::GetKeyboardState(keys);
    ::SendMessageW(form->hwnd(), WM_KEYUP, 'E', 0);
    EXPECT_TRUE(choices.calls.empty()) << "without Ctrl a letter only searches";
    keys[VK_CONTROL] = 0x80;
    ::SetKeyboardState(keys);
    ::SendMessageW(form->hwnd(), WM_KEYUP, 'E', 0);
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
    EXPECT_EQ(choices.calls, std::vector<std::string>{"program notepad.exe"});
}
