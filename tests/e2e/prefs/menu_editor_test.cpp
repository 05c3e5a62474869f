// The Menu Editor page as a user works it: a menu of a program, a folder and a sub-menu
// made through the tree and the item dialog reaches TvMenus.ini on OK and opens and
// launches from a hotspot; deleted, moved and dragged items, and files dragged from the
// shell, reach the file on OK and not
// on Cancel; Try It shows the menu as edited; the item dialog greys what a type does not
// use and refuses an empty label beside the field; and the screens, looked at.
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/preferences.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/shell_drag.h"
#include "harness/tarvex.h"
#include "harness/wait.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <chrono>
#include <cstdio>

namespace {

using namespace E2e;

class MenuEditorPage : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.ready());
        // A left click on the desktop opens "Office", a menu the editor makes.
        TestHotspot office;
        office.target = "Office";
        office.left = 240;
        office.top = 160;
        TestHotspot puzzles; // no mouse event: a hotspot whose menu gets renamed
        puzzles.target = "Games";
        puzzles.mouseButton = 99;
        folder.WriteSettings(HotspotSettings({office, puzzles}));
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

    // Adds an item to the selected row's menu through the dialog: the type chosen with the
    // keys (Down from "Filename"), then the fields typed; a Menu Name item takes the
    // menu from the list with the mouse.
    void AddItemThroughDialog(HWND window, int typeDowns, const std::string& label, const std::string& path,
                              const std::string& arg = "", const std::string& start = "",
                              const std::string& screenshot = "") {
        ASSERT_TRUE(ClickButton(window, "Add &Item"));
        std::optional<WindowInfo> dialog = WaitForItemDialog();
        ASSERT_TRUE(dialog);
        for (int down = 0; down < typeDowns; ++down)
            PressKey(VK_DOWN);
        SetText(FieldOf(dialog->hwnd, "&Label:"), label);
        if (typeDowns == 3) { // "Menu Name": the second of the other menus' names
            std::optional<WindowInfo> list = ListOf(dialog->hwnd);
            ASSERT_TRUE(list && Click(list->rect.left + 20, list->rect.top + 6));
            PressKey(VK_DOWN);
            ASSERT_TRUE(WaitUntil([&] { return ControlText(FieldOf(dialog->hwnd, "&Path:")) == path; }, 10s));
        } else {
            SetText(FieldOf(dialog->hwnd, "&Path:"), path);
        }
        if (!arg.empty())
            SetText(FieldOf(dialog->hwnd, typeDowns == 2 ? "Second f&older:" : "&Arguments:"), arg);
        if (!start.empty())
            SetText(FieldOf(dialog->hwnd, "Start &folder:"), start);
        if (!screenshot.empty()) {
            EXPECT_TRUE(WaitForSteadyImage(dialog->hwnd));
            EXPECT_TRUE(SaveNamedScreenshot(screenshot));
        }
        ASSERT_TRUE(PressButton(dialog->hwnd, "OK"));
        ASSERT_TRUE(WaitForWindowGone(dialog->hwnd, 10s)) << DialogText(dialog->hwnd);
    }

    static std::optional<WindowInfo> ListOf(HWND dialog) {
        for (const WindowInfo& child : ChildWindows(dialog))
            if (child.className == "ListBox")
                return child;
        return std::nullopt;
    }

    // The visible rows of the tree stand one item height apart from its top.
    static POINT RowPoint(const WindowInfo& tree, int row, int indent) {
        const int height = static_cast<int>(TreeView_GetItemHeight(tree.hwnd));
        return {tree.rect.left + indent, tree.rect.top + 2 + row * height + height / 2};
    }

    std::string SettingValue(const char* key) const {
        wchar_t value[512]{};
        ::GetPrivateProfileStringW(L"TARVEX", Win::Widen(key).c_str(), L"?", value, 512,
                                   Win::Widen(folder.File("Helmora.ini")).c_str());
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

TEST_F(MenuEditor, AMenuOfAProgramAFolderAndASubMenuMadeOnThePageIsSavedOnOKAndOpensAndLaunches) {
    TempFolder work;
    work.WriteBytes("Report.txt", "x");
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
    // The Hotspots page offers the new menu at once: Main, Tools, Games and Office.
    ASSERT_TRUE(ShowPreferencePage(window, "Hotspots"));
    std::optional<WindowInfo> menus = ControlBesideLabel(window, "Menu Name:", "ComboBox");
    ASSERT_TRUE(menus);
    EXPECT_EQ(::SendMessageW(menus->hwnd, CB_GETCOUNT, 0, 0), 4);
    ASSERT_TRUE(ShowPreferencePage(window, "Menu Editor"));

    ASSERT_NO_FATAL_FAILURE(AddItemThroughDialog(window, 0, "Write", SystemFile("cmd.exe"), "/c cd > started.txt",
                                                 work.path(), "item-dialog-filename"));
    ASSERT_NO_FATAL_FAILURE(AddItemThroughDialog(window, 2, "Papers", work.path() + "\\", "", "",
                                                 "item-dialog-folder-path"));
    ASSERT_NO_FATAL_FAILURE(AddItemThroughDialog(window, 3, "More", "Tools"));
    ASSERT_TRUE(PressOK(window));

    EXPECT_TRUE(WaitUntil([&] { return MenuValue("MENUS", "NAME-4") == "Office"; }, 10s));
    const std::pair<const char*, std::string> written[] = {
        {"LABEL-0", "Write"}, {"TYPE-0", "0"}, {"ARG-0", "/c cd > started.txt"}, {"STARTPATH-0", work.path()},
        {"HOTKEY-0", "0"},    {"TYPE-1", "2"}, {"PATH-1", work.path() + "\\"},  {"LABEL-2", "More"},
        {"TYPE-2", "3"},      {"PATH-2", "Tools"}, {"LABEL-3", "?"}};
    for (const auto& [key, value] : written)
        EXPECT_EQ(MenuValue("MENU-4", key), value) << key;
    EXPECT_EQ(MainLabels(), "A B C Tools ? ? ") << "the other menus stay as they were";

    // The hotspot now finds the menu: the folder lists its file, the sub-menu opens, the program starts.
    ASSERT_TRUE(Click(600, 400));
    std::optional<WindowInfo> office = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(office);
    EXPECT_EQ(office->title, "Office");
    const std::pair<int, std::string> subMenus[] = {
        {2, work.path().substr(work.path().find_last_of('\\') + 1)}, {3, "Tools"}};
    for (const auto& [item, title] : subMenus) {
        POINT at = PlainItemPoint(office->rect, item);
        ASSERT_TRUE(Click(at.x, at.y));
        EXPECT_TRUE(WaitUntil([&, title = title] { return MenuWindowTitled(tarvex.processId(), title).has_value(); },
                              10s))
            << "item " << item << " did not open " << title;
    }
    EXPECT_TRUE(SaveNamedScreenshot("menu-editor-made-menu-open"));
    POINT write = PlainItemPoint(office->rect, 1);
    ASSERT_TRUE(Click(write.x, write.y));
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("started.txt"); }, 20s)) << "the program item did not start";
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

TEST_F(MenuEditor, AnItemDraggedOntoAnotherTakesItsPlaceAndTryItShowsTheMenuAsEdited) {
    HWND window = OpenEditor();
    ASSERT_TRUE(window);
    ASSERT_TRUE(SelectRow(window, {VK_DOWN, VK_DOWN})); // Main, A, B
    ASSERT_TRUE(ClickButton(window, "&Delete"));        // A, C, Tools are left
    std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
    ASSERT_TRUE(tree);
    const POINT c = RowPoint(*tree, 2, 44);
    const POINT a = RowPoint(*tree, 1, 44);
    ASSERT_TRUE(Drag(c.x, c.y, a.x, a.y, [] { SaveNamedScreenshot("menu-editor-drag"); }));
    ASSERT_TRUE(SelectRow(window, {}));                 // Main
    ASSERT_TRUE(ClickButton(window, "&Try It"));
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu) << "Try It opened no menu";
    EXPECT_EQ(menu->title, "Main");
    EXPECT_EQ(menu->rect.bottom - menu->rect.top, kPlainTitleHeight + 3 * kPlainButtonHeight)
        << "the menu shows the working copy: three items";
    EXPECT_TRUE(SaveNamedScreenshot("menu-editor-try-it"));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitForMenuCount(tarvex.processId(), 0));
    ASSERT_TRUE(PressOK(window));
    EXPECT_TRUE(WaitUntil([&] { return MainLabels() == "C A Tools ? ? ? "; }, 10s)) << MainLabels();
}

TEST_F(MenuEditor, ARenamedMenuTakesTheItemsAndHotspotsThatOpenItAlong) {
    HWND window = OpenEditor();
    ASSERT_TRUE(window);
    ASSERT_TRUE(SelectRow(window, {VK_END})); // the last root row: Games
    ASSERT_TRUE(ClickButton(window, "Re&name"));
    std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
    ASSERT_TRUE(tree);
    HWND edit = nullptr;
    ASSERT_TRUE(WaitUntil([&] { return (edit = ::FindWindowExW(tree->hwnd, nullptr, L"Edit", nullptr)) != nullptr; },
                          10s));
    SetText(edit, "Puzzles");
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(edit); }, 10s));
    ASSERT_TRUE(PressOK(window));
    EXPECT_TRUE(WaitUntil([&] { return MenuValue("MENUS", "NAME-3") == "Puzzles"; }, 10s));
    EXPECT_EQ(MenuValue("MENU-2", "PATH-1"), "Puzzles") << "the Tools item that opened it";
    EXPECT_EQ(SettingValue("HotSpot1Menupath1"), "Puzzles");
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

    // Each type with what it uses: the start folder belongs to a program alone, the list
    // to commands and menus.
    HWND start = FieldOf(dialog->hwnd, "Start &folder:");
    const struct {
        WORD key;
        bool usesStart, usesList;
        const char* argumentsLabel;
        const char* screenshot;
    } types[] = {{VK_HOME, true, false, "&Arguments:", ""},
                 {VK_DOWN, false, true, "&Arguments:", "item-dialog-command-name"},
                 {VK_DOWN, false, false, "Second f&older:", ""},
                 {VK_END, false, false, "&Arguments:", "item-dialog-task-list"}};
    for (const auto& type : types) {
        PressKey(type.key); // the type list has the focus
        EXPECT_TRUE(WaitUntil(
            [&] {
                return (::IsWindowEnabled(start) != FALSE) == type.usesStart &&
                       (::IsWindowVisible(list) != FALSE) == type.usesList &&
                       FieldOf(dialog->hwnd, type.argumentsLabel) != nullptr;
            },
            10s))
            << type.key;
        if (*type.screenshot) {
            EXPECT_TRUE(WaitForSteadyImage(dialog->hwnd));
            EXPECT_TRUE(SaveNamedScreenshot(type.screenshot));
        }
    }
    PressKey(VK_UP); // back to "Menu Name"

    // Wine shows no icon chooser: a file of icons is chosen instead, and its first icon shown.
    HWND icon = FieldOf(dialog->hwnd, "I&con:");
    ASSERT_TRUE(ClickWindow(::GetWindow(icon, GW_HWNDNEXT)));
    std::optional<WindowInfo> chooser;
    ASSERT_TRUE(WaitUntil(
        [&] {
            for (const WindowInfo& box : TopLevelWindows(kDialogClass, tarvex.processId()))
                if (box.visible && box.hwnd != dialog->hwnd)
                    chooser = box;
            return chooser.has_value();
        },
        10s));
    HWND name = nullptr;
    for (const WindowInfo& child : ChildWindows(chooser->hwnd))
        if (child.className == "Edit" && child.visible)
            name = child.hwnd;
    ASSERT_TRUE(name) << "no file name field in " << chooser->title;
    SetText(name, SystemFile("notepad.exe"));
    ASSERT_TRUE(PressButton(chooser->hwnd, "Open"));
    EXPECT_TRUE(WaitUntil([&] { return ControlText(icon).ends_with("\\notepad.exe"); }, 10s)) << ControlText(icon);
    HWND preview = nullptr;
    for (const WindowInfo& child : ChildWindows(dialog->hwnd))
        if (child.className == "Static" && (::GetWindowLongW(child.hwnd, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
            preview = child.hwnd;
    EXPECT_TRUE(WaitUntil([&] { return preview && ::SendMessageW(preview, STM_GETICON, 0, 0) != 0; }, 10s))
        << "the chosen icon is not shown";

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

TEST_F(MenuEditor, AFileAndAFolderDraggedFromTheShellOntoAnItemBecomeItemsBeforeIt) {
    TempFolder work;
    work.WriteBytes("Letter.txt", "x");
    HWND window = OpenEditor();
    ASSERT_TRUE(window);
    ASSERT_TRUE(SelectRow(window, {}));
    std::optional<WindowInfo> tree = VisibleControl(window, "SysTreeView32", "");
    ASSERT_TRUE(tree);
    const POINT b = RowPoint(*tree, 2, 44); // Main, A, B
    HTREEITEM rowB = TreeView_GetFirstVisible(tree->hwnd);
    for (int row = 0; row < 2; ++row)
        rowB = TreeView_GetNextVisible(tree->hwnd, rowB);
    ASSERT_TRUE(DragFilesFromShell({work.File("Letter.txt"), work.path()}, {700, 700}, b,
                                   [&] { return TreeView_GetDropHilight(tree->hwnd) == rowB; }));
    ASSERT_TRUE(PressOK(window));
    const std::string folderName = work.path().substr(work.path().find_last_of('\\') + 1);
    EXPECT_TRUE(WaitUntil([&] { return MainLabels() == "A Letter " + folderName + " B C Tools "; }, 10s))
        << MainLabels();
    EXPECT_EQ(MenuValue("MENU-1", "PATH-1"), work.File("Letter.txt"));
    EXPECT_EQ(MenuValue("MENU-1", "TYPE-2"), "2");
}

// How long the page takes with a menu of 5,000 items: printed, not asserted; the README
// quotes it. The tree is filled in one go, so opening the page and moving an item stay quick.
TEST(MenuEditorLarge, AMenuOf5000ItemsFillsTheTreeAndAnItemMovesUp) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    std::vector<TestItem> items;
    for (int item = 0; item < 5000; ++item)
        items.push_back(Item("Item " + std::to_string(item), 0, "notepad.exe"));
    folder.WriteSettings(HotspotSettings({}));
    folder.WriteMenus(MenuFileText({{"Big", items}}));
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));
    ASSERT_TRUE(tarvex.WaitUntilReady(180s)); // the menu file is read key by key at start: slow at this size
    const auto opened = std::chrono::steady_clock::now();
    tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
    std::optional<WindowInfo> window = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(window && ShowPreferencePage(window->hwnd, "Menu Editor"));
    std::optional<WindowInfo> tree = VisibleControl(window->hwnd, "SysTreeView32", "");
    ASSERT_TRUE(tree);
    EXPECT_EQ(TreeView_GetCount(tree->hwnd), 5001u);
    const auto shown = std::chrono::steady_clock::now();
    ASSERT_TRUE(Click(tree->rect.left + 20, tree->rect.bottom - 20));
    PressKey(VK_END); // Item 4999
    std::optional<WindowInfo> up = VisibleControl(window->hwnd, "Button", "&Up");
    ASSERT_TRUE(up);
    const auto pressed = std::chrono::steady_clock::now();
    ASSERT_TRUE(ClickWindow(up->hwnd));
    ASSERT_TRUE(tarvex.WaitUntilIdle(60s));
    const auto moved = std::chrono::steady_clock::now();
    using Ms = std::chrono::milliseconds;
    std::printf("5,000 items: preferences with the page shown in %lld ms, an item moved up in %lld ms\n",
                static_cast<long long>(std::chrono::duration_cast<Ms>(shown - opened).count()),
                static_cast<long long>(std::chrono::duration_cast<Ms>(moved - pressed).count()));
    EXPECT_EQ(TreeView_GetCount(tree->hwnd), 5001u);
    EXPECT_TRUE(CancelPreferences(window->hwnd, tarvex.processId()));
}
