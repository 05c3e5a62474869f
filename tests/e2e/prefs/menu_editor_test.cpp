// The Menu Editor page as a user works it: a menu and a program item made through the
// tree and the item dialog reach TvMenus.ini on OK; a deleted and a moved item reach it
// on OK and not on Cancel; the item dialog refuses an empty label beside the field; and
// the editor with a menu three levels deep, and the dialog, on screen.
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/preferences.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "harness/wait.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace {

using namespace E2e;

class MenuEditorPage : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(HotspotSettings({}));
        TestItem tools = Item("Tools", 3, "Tools");
        TestItem games = Item("Games", 3, "Games");
        folder.WriteMenus(MenuFileText({{"Main", {Item("A", 0, "notepad.exe"), Item("B", 0, "notepad.exe"),
                                                  Item("C", 0, "notepad.exe"), tools}},
                                        {"Tools", {Item("Editor", 0, "notepad.exe"), games}},
                                        {"Games", NotepadItems({"Solitaire", "Mines"})}}));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    // Opens the preferences on the Menu Editor page; null when it did not come.
    HWND OpenEditor() {
        tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
        std::optional<WindowInfo> window = WaitForPreferences(tarvex.processId());
        if (!window || !ShowPreferencePage(window->hwnd, "Menu Editor"))
            return nullptr;
        return window->hwnd;
    }

    static bool ClickButton(HWND window, std::string_view text) {
        std::optional<WindowInfo> button = VisibleControl(window, "Button", text);
        return button && ClickWindow(button->hwnd);
    }

    // Clicks the tree where no row stands, then walks it with the keys from its first row.
    static bool SelectRow(HWND window, std::initializer_list<WORD> keys) {
        std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
        if (!tree || !Click(tree->rect.left + 20, tree->rect.bottom - 20))
            return false;
        PressKey(VK_HOME);
        for (WORD key : keys)
            PressKey(key);
        return true;
    }

    // The item dialog, which a button of the page opened.
    std::optional<WindowInfo> WaitForItemDialog() {
        std::optional<WindowInfo> dialog = WaitForMessageBox(tarvex.processId());
        if (!dialog || dialog->title != "Item Properties")
            return std::nullopt;
        return dialog;
    }

    // The field a label of the dialog names (the control made after it).
    static HWND FieldOf(HWND dialog, std::string_view label) {
        for (const WindowInfo& child : ChildWindows(dialog))
            if (child.className == "Static" && child.title == label)
                return ::GetWindow(child.hwnd, GW_HWNDNEXT);
        return nullptr;
    }

    static void SetText(HWND control, const std::string& text) {
        ::SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Win::Widen(text).c_str()));
    }

    // A value of TvMenus.ini as the profile functions read it; "?" for a missing key.
    std::string MenuValue(const char* section, const char* key) const {
        wchar_t value[512]{};
        ::GetPrivateProfileStringW(Win::Widen(section).c_str(), Win::Widen(key).c_str(), L"?", value, 512,
                                   Win::Widen(folder.File("TvMenus.ini")).c_str());
        return Win::Narrow(value);
    }

    std::string MainLabels() const {
        std::string labels;
        for (int position = 0; position < 6; ++position)
            labels += MenuValue("MENU-1", ("LABEL-" + std::to_string(position)).c_str()) + " ";
        return labels;
    }

    bool PressOK(HWND window) {
        return ClickButton(window, "OK") && WaitUntil([&] { return !::IsWindow(window); }, 10s);
    }

    ProgramFolder folder;
    Tarvex tarvex;
};

using MenuEditor = MenuEditorPage;
using ItemDialog = MenuEditorPage;

} // namespace

TEST_F(MenuEditor, AMenuWithAProgramItemMadeOnThePageIsInTheMenuFileAfterOK) {
    HWND window = OpenEditor();
    ASSERT_TRUE(window);
    ASSERT_TRUE(ClickButton(window, "Add &Menu"));
    std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
    ASSERT_TRUE(tree);
    HWND edit = nullptr;
    ASSERT_TRUE(WaitUntil([&] { return (edit = ::FindWindowExW(tree->hwnd, nullptr, L"Edit", nullptr)) != nullptr; },
                          10s))
        << "the new menu's name is not being edited";
    SetText(edit, "Office");
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(edit); }, 10s));

    ASSERT_TRUE(ClickButton(window, "Add &Item"));
    std::optional<WindowInfo> dialog = WaitForItemDialog();
    ASSERT_TRUE(dialog);
    SetText(FieldOf(dialog->hwnd, "&Label:"), "Write");
    SetText(FieldOf(dialog->hwnd, "&Path:"), "C:\\windows\\notepad.exe");
    SetText(FieldOf(dialog->hwnd, "&Arguments:"), "notes.txt");
    ASSERT_TRUE(PressButton(dialog->hwnd, "OK"));
    ASSERT_TRUE(PressOK(window));

    EXPECT_TRUE(WaitUntil([&] { return MenuValue("MENUS", "NAME-4") == "Office"; }, 10s));
    EXPECT_EQ(MenuValue("MENU-4", "LABEL-0"), "Write");
    EXPECT_EQ(MenuValue("MENU-4", "TYPE-0"), "0");
    EXPECT_EQ(MenuValue("MENU-4", "PATH-0"), "C:\\windows\\notepad.exe");
    EXPECT_EQ(MenuValue("MENU-4", "ARG-0"), "notes.txt");
    EXPECT_EQ(MenuValue("MENU-4", "HOTKEY-0"), "0");
    EXPECT_EQ(MenuValue("MENU-4", "LABEL-1"), "?");
    EXPECT_EQ(MainLabels(), "A B C Tools ? ? ") << "the other menus stay as they were";
}

TEST_F(MenuEditor, ADeletedAndAMovedItemReachTheFileOnOKButNotOnCancel) {
    for (bool ok : {false, true}) {
        HWND window = OpenEditor();
        ASSERT_TRUE(window);
        ASSERT_TRUE(SelectRow(window, {VK_DOWN, VK_DOWN})); // Main, A, B
        ASSERT_TRUE(ClickButton(window, "&Delete"));        // B goes; C is selected
        ASSERT_TRUE(ClickButton(window, "&Up"));            // C before A
        if (!ok) {
            ASSERT_TRUE(CancelPreferences(window, tarvex.processId()));
            EXPECT_EQ(MainLabels(), "A B C Tools ? ? ") << "Cancel wrote the menu file";
            continue;
        }
        ASSERT_TRUE(PressOK(window));
        EXPECT_TRUE(WaitUntil([&] { return MainLabels() == "C A Tools ? ? ? "; }, 10s)) << MainLabels();
    }
}

TEST_F(MenuEditor, AMenuThreeLevelsDeepOnTheScreen) {
    HWND window = OpenEditor();
    ASSERT_TRUE(window);
    // Main, A, B, C, Tools: open it; Editor, Games: open it. 11 rows and the 4 opened.
    ASSERT_TRUE(SelectRow(window, {VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RIGHT,
                                   VK_DOWN}));
    std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
    ASSERT_TRUE(tree);
    EXPECT_TRUE(WaitUntil([&] { return TreeView_GetCount(tree->hwnd) == 15u; }, 10s))
        << TreeView_GetCount(tree->hwnd) << " rows: the sub-menus were not opened in the tree";
    EXPECT_TRUE(WaitForSteadyImage(window));
    EXPECT_TRUE(SaveNamedScreenshot("menu-editor-three-levels"));
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
}

TEST_F(ItemDialog, OffersTheOtherMenusAndRefusesAnEmptyLabelBesideIt) {
    HWND window = OpenEditor();
    ASSERT_TRUE(window);
    ASSERT_TRUE(SelectRow(window, {VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN})); // Main > Tools
    ASSERT_TRUE(ClickButton(window, "&Properties..."));
    std::optional<WindowInfo> dialog = WaitForItemDialog();
    ASSERT_TRUE(dialog);
    HWND list = nullptr;
    for (const WindowInfo& child : ChildWindows(dialog->hwnd))
        if (child.className == "ListBox")
            list = child.hwnd;
    ASSERT_TRUE(list);
    EXPECT_EQ(::SendMessageW(list, LB_GETCOUNT, 0, 0), 2) << "Tools and Games; not Main, the item's own menu";
    EXPECT_EQ(::SendMessageW(list, LB_GETCURSEL, 0, 0), 0) << "the menu it opens is chosen";
    EXPECT_TRUE(WaitForSteadyImage(dialog->hwnd));
    EXPECT_TRUE(SaveNamedScreenshot("item-dialog-menu-name"));

    SetText(FieldOf(dialog->hwnd, "&Label:"), "");
    std::optional<WindowInfo> ok = std::nullopt;
    for (const WindowInfo& child : ChildWindows(dialog->hwnd))
        if (child.className == "Button" && child.title == "OK")
            ok = child;
    ASSERT_TRUE(ok && ClickWindow(ok->hwnd));
    EXPECT_TRUE(WaitUntil([&] { return DialogText(dialog->hwnd).find("An item needs a label.") != std::string::npos; },
                          10s))
        << DialogText(dialog->hwnd);
    EXPECT_TRUE(::IsWindowVisible(dialog->hwnd)) << "a refused item closed the dialog";
    ASSERT_TRUE(PressButton(dialog->hwnd, "Cancel"));
    EXPECT_TRUE(CancelPreferences(window, tarvex.processId()));
    EXPECT_EQ(MainLabels(), "A B C Tools ? ? ");
}
