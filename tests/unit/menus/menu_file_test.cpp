#include "menus/menu_file.h"

#include "menus/data_manager.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <string>

using namespace DataManager;

namespace {

MenuTable Loaded(const std::string& text) {
    MenuTable table;
    const MenuLoadResult result = LoadMenuFile(table, ReaderOf(text));
    EXPECT_TRUE(result.complete) << result.error;
    return table;
}

const MenuItemRec& Item(const MenuTable& table, std::int32_t menuNumber, std::int32_t position) {
    const std::int32_t index = FindItem(table, menuNumber - 1, position);
    EXPECT_NE(index, kNoItem);
    return table.pool[index == kNoItem ? 0 : index];
}

std::string ItemText(int p, const std::string& label, int type, const std::string& path, const std::string& hotkey) {
    const std::string n = std::to_string(p);
    return "LABEL-" + n + "=" + label + "\nTYPE-" + n + "=" + std::to_string(type) + "\nPATH-" + n + "=" + path +
           "\nSTARTPATH-" + n + "=\nARG-" + n + "=\nRUNSTATE-" + n + "=0\nFILETYPEMASK-" + n + "=\nICONPATH-" + n +
           "=\nHOTKEY-" + n + "=" + hotkey + "\n";
}

std::string MenuText(int i, const std::string& name, const char* inherit = "False") {
    const std::string n = std::to_string(i);
    return "NAME-" + n + "=" + name + "\nINHERIT-" + n + "=" + inherit + "\nTHEME-" + n + "=\nSOUNDPATH-" + n +
           "=\nAPPPATH-" + n + "=\n";
}

} // namespace

TEST(MenuFile, ReadsKeysInAnyCaseSplitAtTheFirstDashWithRoundedNumbers) {
    const MenuTable table = Loaded("[menus]\nname-1.4=Low\nInherit-1=-1\n"
                                   "[MENU-1]\nlabel-0=a-b\nType-0= 3.5\nrunstate-0=2abc\npath-2.5=p\nLABEL-0.6=c\n");
    EXPECT_EQ(table.menus[1].NAME, "Low");
    EXPECT_TRUE(table.menus[1].INHERIT);
    EXPECT_EQ(Item(table, 1, 0).LABEL, "a-b");
    EXPECT_EQ(Item(table, 1, 0).TYPE, 4); // 3.5 rounds half to even
    EXPECT_EQ(Item(table, 1, 0).RUNSTATE, 2);
    EXPECT_EQ(Item(table, 1, 2).PATH, "p"); // 2.5 rounds to 2
    EXPECT_EQ(Item(table, 1, 1).LABEL, "c");
}

// What a load that ends keeps and the warning it gives are the Wine menu file tests'.
TEST(MenuFile, AValueOutsideItsTypeEndsTheLoad) {
    for (const char* text : {"[MENU-1]\nTYPE-0=256\n", "[MENU-1]\nRUNSTATE-0=-1\n", "[MENU-1]\nRUNSTATE-0=255.5\n",
                             "[MENU-1]\nLABEL-40000=x\n", "[MENUS]\nNAME-40000=x\n"}) {
        MenuTable table;
        EXPECT_FALSE(LoadMenuFile(table, ReaderOf(std::string("[MENUS]\nNAME-1=M\n") + text)).complete) << text;
    }
    EXPECT_EQ(Loaded("[MENUS]\nNAME-1=M\n[MENU-1]\nRUNSTATE-0=255.4\n").pool[1].RUNSTATE, 255);
}

TEST(MenuFile, AFileAskingForHundredsOfThousandsOfItemsIsRefused) {
    std::string text = "[MENUS]\nNAME-20=last\n";
    for (int menu = 1; menu <= 20; ++menu)
        text += "[MENU-" + std::to_string(menu) + "]\nLABEL-32767=x\n";
    MenuTable table;
    EXPECT_FALSE(LoadMenuFile(table, ReaderOf(text)).complete);
    EXPECT_LE(table.pool.size(), 1u << 18);
}

TEST(MenuFile, SavesMenusFirstThenItemsInChainOrder) {
    MenuTable table;
    table.menus.resize(3);
    table.menus[1].NAME = "A";
    table.menus[1].INHERIT = true;
    table.pool[AppendItem(table, 1)].TYPE = 4;
    table.pool[AppendItem(table, 0)].LABEL = "second";
    table.pool[InsertItem(table, 0, 0)].LABEL = "first";
    table.pool[FindItem(table, 0, 0)].HOTKEY = "0";
    EXPECT_EQ(TextOf(SaveMenuFile(table)), "[MENUS]\n" + MenuText(1, "A", "True") + MenuText(2, "") + "[MENU-1]\n" +
                                               ItemText(0, "first", 0, "", "0") + ItemText(1, "second", 0, "", "") +
                                               "[MENU-2]\n" + ItemText(0, "", 4, "", ""));
}

// Menus and positions missing before the highest number are empty ones, saved with all
// their keys; unknown names are ignored, but their numbers still size the table and the menu.
TEST(MenuFile, AFileWithGapsLowerCaseAndUnknownKeysSettlesAfterOneSave) {
    const MenuTable first = Loaded("[menus]\nname-3=Third\ncolour-4=blue\nVERSION=7\n"
                                   "[MENU-3]\nlabel-1=Main\ntype-1=3\npath-1=Main\nextra-2=?\nhotkey-1=0\n");
    const std::string saved = TextOf(SaveMenuFile(first));
    EXPECT_EQ(saved, "[MENUS]\n" + MenuText(1, "") + MenuText(2, "") + MenuText(3, "Third") + MenuText(4, "") +
                         "[MENU-3]\n" + ItemText(0, "", 0, "", "") + ItemText(1, "Main", 3, "Main", "0") +
                         ItemText(2, "", 0, "", ""));
    const MenuTable second = Loaded(saved);
    EXPECT_EQ(second.menus, first.menus);
    EXPECT_EQ(second.pool, first.pool);
}
