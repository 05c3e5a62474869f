#include "prefs/menu_editor.h"

#include "desktop/hotspots.h"
#include "menus/data_manager.h"
#include "menus/menu_editing.h"
#include "menus/menu_file.h"
#include "support/answered_message_boxes.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

using namespace MenuEditor;

namespace {

using Labels = std::vector<std::string>;

// "Main" (A, B, C and "Go", which opens Sub) and "Sub" (X).
MenuTable Fixture() {
    MenuTable table;
    table.menus[DataManager::AddMenu(table)].NAME = "Main";
    table.menus[DataManager::AddMenu(table)].NAME = "Sub";
    for (const char* label : {"A", "B", "C"})
        table.pool[DataManager::AppendItem(table, 0)].LABEL = label;
    table.pool[DataManager::AppendItem(table, 1)].LABEL = "X";
    MenuItemRec& go = table.pool[DataManager::AppendItem(table, 0)];
    go.LABEL = "Go";
    go.TYPE = kItemMenuName;
    go.PATH = "Sub";
    return table;
}

// The labels of a menu walked along its links from the head, which must agree with the
// positions the pool answers.
Labels LabelsOf(const MenuTable& table, std::int32_t menu) {
    Labels labels;
    std::int32_t slot = DataManager::FindItem(table, menu, 0);
    for (std::int32_t position = 0; slot != -1; ++position) {
        EXPECT_EQ(slot, DataManager::FindItem(table, menu, position));
        const MenuItemRec& item = table.pool[static_cast<std::size_t>(slot)];
        EXPECT_EQ(item.owner, menu);
        labels.push_back(item.LABEL);
        slot = item.next;
    }
    EXPECT_EQ(static_cast<std::int32_t>(labels.size()), DataManager::LastItemPosition(table, menu) + 1);
    return labels;
}

MenuItemRec Item(std::uint8_t type, std::string label, std::string path, std::uint8_t runState = 0,
                 std::string mask = {}) {
    MenuItemRec item;
    item.TYPE = type;
    item.LABEL = std::move(label);
    item.PATH = std::move(path);
    item.RUNSTATE = runState;
    item.FILETYPEMASK = std::move(mask);
    return item;
}

} // namespace

TEST(MenuEditor, ItemFieldsAreRefusedWithTheirReason) {
    const MenuTable table = Fixture();
    struct Case {
        MenuItemRec fields;
        std::int32_t menu;
        std::vector<Field> refused;
        std::string firstText;
    } cases[] = {
        {Item(kItemFilename, "Notepad", "notepad.exe"), 0, {}, ""},
        {Item(kItemFilename, "  ", "notepad.exe"), 0, {Field::Label}, "An item needs a label."},
        {Item(kItemFilename, "", ""), 0, {Field::Label, Field::Path}, "An item needs a label."},
        {Item(kItemCommandName, "Run", "*0"), 0, {}, ""},
        {Item(kItemFolderPath, "Docs", "C:\\Docs\\", 3, ""), 0, {Field::Mask}, ""},
        {Item(kItemFolderPath, "Docs", "C:\\Docs\\", 3, ".txt"), 0, {}, ""},
        {Item(kItemMenuName, "More", "Sub"), 0, {}, ""},
        {Item(kItemMenuName, "Self", "Main"), 0, {Field::Path}, "An item cannot open the menu it is in."},
        {Item(kItemMenuName, "More", "sub"), 0, {Field::Path}, "There is no menu named 'sub'."},
        {Item(kItemTaskList, "Tasks", ""), 1, {}, ""},
    };
    for (const Case& c : cases) {
        std::vector<Problem> problems = ItemProblems(table, c.menu, c.fields);
        std::vector<Field> fields;
        for (const Problem& problem : problems)
            fields.push_back(problem.field);
        EXPECT_EQ(fields, c.refused) << c.fields.LABEL << " / " << c.fields.PATH;
        if (!c.firstText.empty() && !problems.empty()) {
            EXPECT_EQ(problems.front().text, c.firstText);
        }
    }
}

TEST(MenuEditor, MenuNamesMustBeGivenAndUnique) {
    const MenuTable table = Fixture();
    struct Case {
        std::int32_t menu;
        const char* name;
        bool refused;
    } cases[] = {{0, "Main", false}, {0, "Start", false}, {0, "Sub", true},
                 {1, "MAIN", true},  {1, "", true},       {1, "   ", true}};
    for (const Case& c : cases)
        EXPECT_EQ(MenuNameProblem(table, c.menu, c.name).has_value(), c.refused) << c.menu << " " << c.name;
}

TEST(MenuEditor, ItemOperationsKeepTheChainsWhole) {
    using Op = std::function<Outcome(MenuTable&)>;
    struct Case {
        const char* what;
        Op op;
        Labels main;
        Labels sub;
        Place selected; // ignored when refused
        bool refused = false;
    } cases[] = {
        {"up", [](MenuTable& t) { return MoveUp(t, {0, 1}); }, {"B", "A", "C", "Go"}, {"X"}, {0, 0}},
        {"down", [](MenuTable& t) { return MoveDown(t, {0, 0}); }, {"B", "A", "C", "Go"}, {"X"}, {0, 1}},
        {"up at top", [](MenuTable& t) { return MoveUp(t, {0, 0}); }, {"A", "B", "C", "Go"}, {"X"}, {}, true},
        {"down at end", [](MenuTable& t) { return MoveDown(t, {0, 3}); }, {"A", "B", "C", "Go"}, {"X"}, {}, true},
        {"delete", [](MenuTable& t) { return DeleteItem(t, {0, 1}); }, {"A", "C", "Go"}, {"X"}, {0, 1}},
        {"delete last of menu", [](MenuTable& t) { return DeleteItem(t, {1, 0}); }, {"A", "B", "C", "Go"}, {},
         {1, -1}},
        {"delete nothing", [](MenuTable& t) { return DeleteItem(t, {1, 1}); }, {"A", "B", "C", "Go"}, {"X"}, {},
         true},
        {"copy", [](MenuTable& t) { return CopyItem(t, {0, 3}); }, {"A", "B", "C", "Go", "Go"}, {"X"}, {0, 4}},
        {"insert", [](MenuTable& t) { return InsertItem(t, 0, 1); }, {"A", "NewItem", "B", "C", "Go"}, {"X"},
         {0, 1}},
        {"add", [](MenuTable& t) { return AddItem(t, 1); }, {"A", "B", "C", "Go"}, {"X", "NewItem"}, {1, 1}},
        {"add to no menu", [](MenuTable& t) { return AddItem(t, 2); }, {"A", "B", "C", "Go"}, {"X"}, {}, true},
        {"move to other menu", [](MenuTable& t) { return MoveItem(t, {0, 0}, 1, 0); }, {"B", "C", "Go"},
         {"A", "X"}, {1, 0}},
        {"move past the end", [](MenuTable& t) { return MoveItem(t, {0, 2}, 1, 9); }, {"A", "B", "Go"},
         {"X", "C"}, {1, 1}},
        {"move down the same menu", [](MenuTable& t) { return MoveItem(t, {0, 0}, 0, 2); }, {"B", "C", "A", "Go"},
         {"X"}, {0, 2}},
        {"drop two",
         [](MenuTable& t) {
             return InsertItems(t, 1, 0, {DroppedItem("C:\\a.lnk", false), DroppedItem("D:\\", true)});
         },
         {"A", "B", "C", "Go"}, {"a", "D:", "X"}, {1, 0}},
        {"drop nothing", [](MenuTable& t) { return InsertItems(t, 1, 0, {}); }, {"A", "B", "C", "Go"}, {"X"}, {},
         true},
        {"move into the menu it opens", [](MenuTable& t) { return MoveItem(t, {0, 3}, 1, 0); },
         {"A", "B", "C", "Go"}, {"X"}, {}, true},
    };
    for (const Case& c : cases) {
        MenuTable table = Fixture();
        Outcome outcome = c.op(table);
        EXPECT_EQ(!outcome.Done(), c.refused) << c.what << ": " << outcome.refused;
        if (outcome.Done()) {
            EXPECT_EQ(outcome.place, c.selected) << c.what;
        }
        EXPECT_EQ(LabelsOf(table, 0), c.main) << c.what;
        EXPECT_EQ(LabelsOf(table, 1), c.sub) << c.what;
    }
}

TEST(MenuEditor, MovedAndCopiedItemsKeepTheirFieldsAndANewItemStartsEmpty) {
    MenuTable table = Fixture();
    ASSERT_TRUE(SetItem(table, {0, 0}, Item(kItemFolderPath, "Docs", "C:\\Docs\\", 3, ".txt")).Done());
    table.pool[DataManager::FindItem(table, 0, 1)].STARTPATH = "C:\\Old";
    ASSERT_TRUE(MoveItem(table, {0, 0}, 1, 1).Done());
    ASSERT_TRUE(CopyItem(table, {1, 1}).Done());
    for (std::int32_t position : {1, 2}) {
        const MenuItemRec& moved = table.pool[DataManager::FindItem(table, 1, position)];
        EXPECT_EQ(moved.PATH, "C:\\Docs\\");
        EXPECT_EQ(moved.FILETYPEMASK, ".txt");
        EXPECT_EQ(moved.RUNSTATE, 3);
    }
    // The freed slot of B keeps its start folder in the pool; the editor's new item does not show it.
    ASSERT_TRUE(DeleteItem(table, {0, 0}).Done());
    Outcome added = AddItem(table, 0);
    const MenuItemRec& fresh = table.pool[DataManager::FindItem(table, 0, added.place.position)];
    EXPECT_EQ(fresh.LABEL, "NewItem");
    EXPECT_EQ(fresh.STARTPATH, "");
    EXPECT_EQ(fresh.HOTKEY, "0");
    EXPECT_FALSE(SetItem(table, {0, 0}, Item(kItemMenuName, "Loop", "Main")).Done());
}

TEST(MenuEditor, NewMenusGetFreeNamesAndRenamingCarriesTheItemsThatOpenIt) {
    MenuTable table = Fixture();
    EXPECT_EQ(MenuText(table, AddMenu(table).place.menu), "NewMenu1");
    EXPECT_EQ(MenuText(table, AddMenu(table).place.menu), "NewMenu2");
    EXPECT_FALSE(RenameMenu(table, 2, "newmenu2").Done());
    ASSERT_TRUE(RenameMenu(table, 1, "Tools").Done());
    EXPECT_EQ(MenuNames(table), (std::vector<std::string>{"Main", "Tools", "NewMenu1", "NewMenu2"}));
    EXPECT_EQ(MenuText(table, 1), "Tools");
    EXPECT_EQ(table.pool[DataManager::FindItem(table, 0, 3)].PATH, "Tools");
    EXPECT_EQ(ItemText(table.pool[DataManager::FindItem(table, 0, 3)]), "Go  \xE2\x86\x92 Tools");

    // Hotspots showing the menu follow it; one that runs a program of that name does not.
    std::vector<HotspotRec> hotspots(3);
    for (HotspotRec& hotspot : hotspots)
        hotspot.Menupath1 = "sub";
    hotspots[0].Type = hotspots[1].Type = Hotspots::kShowMenu;
    hotspots[2].Type = Hotspots::kShowMenu + 1;
    EXPECT_EQ(RenameMenuOfHotspots(hotspots, "Sub", "Tools"), 2);
    EXPECT_EQ(hotspots[1].Menupath1, "Tools");
    EXPECT_EQ(hotspots[2].Menupath1, "sub");
}

TEST(MenuEditor, DeletingAMenuThatOthersOpenWarnsFirst) {
    for (int answer : {MessageBoxes::kNo, MessageBoxes::kYes}) {
        MenuTable table = Fixture();
        TestSupport::AnsweredMessageBoxes boxes(answer);
        Outcome outcome = DeleteMenu(table, 1);
        EXPECT_EQ(outcome.Done(), answer == MessageBoxes::kYes);
        ASSERT_FALSE(boxes.requests.empty());
        EXPECT_EQ(boxes.requests[0].text, "The 'Sub' menu is opened by 1 item of other menus:\n    Main > Go\n\n"
                                          "Once it is gone they open nothing. Delete it anyway?");
        // Yes to the warning leads to the usual question; No ends it there.
        EXPECT_EQ(boxes.requests.size(), answer == MessageBoxes::kYes ? 2u : 1u);
        EXPECT_EQ(table.MenuCount(), answer == MessageBoxes::kYes ? 1 : 2);
    }
    MenuTable table = Fixture();
    TestSupport::AnsweredMessageBoxes yes(MessageBoxes::kYes);
    ASSERT_TRUE(DeleteMenu(table, 0).Done()); // nobody opens Main: only the usual question
    EXPECT_EQ(yes.requests.size(), 1u);
    EXPECT_EQ(LabelsOf(table, 0), Labels{"X"});
}

TEST(MenuEditor, SameMenusComparesWhatTheFileWouldHoldNotThePoolLayout) {
    const MenuTable original = Fixture();
    MenuTable table = original;
    ASSERT_TRUE(MoveDown(table, {0, 0}).Done());
    EXPECT_FALSE(SameMenus(table, original));
    ASSERT_TRUE(MoveUp(table, {0, 1}).Done()); // back in order, in other pool slots
    EXPECT_TRUE(SameMenus(table, original));
    ASSERT_TRUE(RenameMenu(table, 0, "Start").Done());
    EXPECT_FALSE(SameMenus(table, original));
}

TEST(MenuEditor, EachTypeUsesItsOwnFieldsAndTheMaskOnlyWithTheUserFilter) {
    using enum ItemField;
    struct Case {
        MenuItemRec fields;
        std::vector<ItemField> used;
    } cases[] = {
        {Item(kItemFilename, "", ""), {Path, PathBrowse, StartFolder, Arguments, RunState, Icon, HotKey}},
        {Item(kItemCommandName, "", ""), {Path, Choices, Icon, HotKey}},
        {Item(kItemFolderPath, "", "", 1), {Path, PathBrowse, Arguments, RunState, Icon, HotKey}},
        {Item(kItemFolderPath, "", "", kUserSpecifiedFilter),
         {Path, PathBrowse, Arguments, RunState, Mask, Icon, HotKey}},
        {Item(kItemMenuName, "", ""), {Path, Choices, Icon, HotKey}},
        {Item(kItemTaskList, "", ""), {Icon, HotKey}},
    };
    for (const Case& c : cases) {
        std::vector<ItemField> used;
        for (ItemField field : {Path, PathBrowse, Choices, StartFolder, Arguments, RunState, Mask, Icon, HotKey})
            if (FieldUsed(c.fields, field))
                used.push_back(field);
        EXPECT_EQ(used, c.used) << "type " << int{c.fields.TYPE};
    }
}

TEST(MenuEditor, AHotKeyOfAnotherItemOfTheMenuIsNamedAndDroppedPathsBecomeItems) {
    MenuTable table = Fixture();
    table.pool[DataManager::FindItem(table, 0, 1)].HOTKEY = "b";
    EXPECT_EQ(HotKeyClash(table, {0, 0}, "B").value_or(""),
              "'B' in this menu has this hot key too; the key chooses the first of them.");
    for (const char* free : {"0", "", "c"})
        EXPECT_FALSE(HotKeyClash(table, {0, 0}, free)) << free;
    EXPECT_FALSE(HotKeyClash(table, {0, 1}, "b")) << "its own key";
    EXPECT_FALSE(HotKeyClash(table, {1, 0}, "b")) << "another menu's";

    struct Case {
        const char* path;
        bool folder;
        std::uint8_t type;
        const char* label;
        const char* itemPath;
    } cases[] = {
        {"C:\\Tools\\Editor.lnk", false, kItemFilename, "Editor", "C:\\Tools\\Editor.lnk"},
        {"C:\\Tools\\.profile", false, kItemFilename, ".profile", "C:\\Tools\\.profile"},
        {"C:\\Docs\\", true, kItemFolderPath, "Docs", "C:\\Docs\\"},
        {"C:\\My.Docs", true, kItemFolderPath, "My.Docs", "C:\\My.Docs\\"},
        {"E:\\", true, kItemFolderPath, "E:", "E:\\"},
    };
    for (const Case& c : cases) {
        const MenuItemRec item = DroppedItem(c.path, c.folder);
        EXPECT_EQ(item.TYPE, c.type) << c.path;
        EXPECT_EQ(item.LABEL, c.label) << c.path;
        EXPECT_EQ(item.PATH, c.itemPath) << c.path;
        EXPECT_TRUE(ItemProblems(table, 0, item).empty()) << c.path;
    }
}

// At the menu file's limits every way of adding is refused and leaves the table as it
// was, and the table saved there loads to its end.
TEST(MenuEditor, RefusesWhatTheMenuFileCouldNotHold) {
    MenuTable fullMenu = Fixture(); // Sub filled to the last position the file numbers
    while (DataManager::MenuHasRoom(fullMenu, 1, 1))
        DataManager::AppendItem(fullMenu, 1);
    MenuTable allMenus;
    while (DataManager::RoomForMenu(allMenus))
        DataManager::AddMenu(allMenus);

    using Op = std::function<Outcome(MenuTable&)>;
    const std::pair<const char*, Op> adds[] = {
        {"add", [](MenuTable& t) { return AddItem(t, 1); }},
        {"insert", [](MenuTable& t) { return InsertItem(t, 1, 0); }},
        {"copy", [](MenuTable& t) { return CopyItem(t, {1, 0}); }},
        {"drop", [](MenuTable& t) { return InsertItems(t, 1, 0, {DroppedItem("C:\\a.lnk", false)}); }},
        {"move in", [](MenuTable& t) { return MoveItem(t, {0, 0}, 1, 0); }},
    };
    for (const auto& [what, op] : adds) {
        MenuTable table = fullMenu;
        EXPECT_FALSE(op(table).Done()) << what;
        EXPECT_TRUE(SameMenus(table, fullMenu)) << what;
    }
    MenuTable table = allMenus;
    EXPECT_FALSE(AddMenu(table).Done());
    EXPECT_EQ(table.MenuCount(), DataManager::kMaxMenus);

    for (const MenuTable* full : {&fullMenu, &allMenus}) {
        std::map<std::string, ProfileSection> sections;
        for (const ProfileWrite& write : DataManager::SaveMenuFile(*full))
            sections[write.section].push_back({write.key, write.value});
        MenuTable loaded;
        const SectionReader reader = [&](std::string_view name) { return sections[std::string(name)]; };
        EXPECT_TRUE(DataManager::LoadMenuFile(loaded, reader).complete);
        EXPECT_TRUE(SameMenus(loaded, *full));
    }

    // Items up to the load's limit, over many menus: one more goes nowhere.
    MenuTable fullFile;
    for (std::int32_t menu = 0; DataManager::FileHasRoom(fullFile, 1);
         menu += DataManager::MenuHasRoom(fullFile, menu, 1) ? 0 : 1) {
        if (menu >= fullFile.MenuCount())
            DataManager::AddMenu(fullFile);
        DataManager::AppendItem(fullFile, menu);
    }
    const std::size_t pool = fullFile.pool.size();
    EXPECT_FALSE(AddItem(fullFile, fullFile.MenuCount() - 1).Done());
    EXPECT_EQ(fullFile.pool.size(), pool);
    EXPECT_EQ(pool, DataManager::kMaxLoadedItems);
}
