#include "menuwindow/interaction/sub_menu.h"
#include "menuwindow/interaction/title_bar.h"

#include "core/hotspot_keys.h"
#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

DisplayEntry Entry(const char* label, std::uint8_t type, const char* path) {
    DisplayEntry entry;
    entry.LABEL = label;
    entry.TYPE = type;
    entry.PATH = path;
    return entry;
}

CascadeRec Parent() {
    CascadeRec parent;
    parent.id = 4;
    parent.level = 2;
    parent.hotspot = 1;
    parent.theme = "Aurora";
    parent.bounds = {100, 50, 260, 250};
    parent.towardsStart = true;
    return parent;
}

} // namespace

TEST(SubMenuRecord, NamesWhatTheItemOpensAndTheButtonItStandsBeside) {
    MenuTable menus;
    for (const char* name : {"Main", "Tools"})
        menus.menus.emplace_back().NAME = name;
    DisplayList list;
    list.entries = {Entry("Tools", kItemMenuName, "Tools"), Entry("Gone", kItemMenuName, "Nowhere"),
                    Entry("Docs", kItemFolderPath, "C:\\Docs"), Entry("Running", kItemTaskList, "")};
    list.entries[2].ARG = "D:\\More docs";
    list.entries[2].RUNSTATE = kFilterUserMask;
    list.entries[2].FILETYPEMASK = "txt";
    MenuScene scene = Scene(PlainLook(), list);
    CascadeRec parent = Parent();

    CascadeRec tools = SubMenuRecord(parent, scene, 1, menus);
    EXPECT_EQ(tools.parentId, 4);
    EXPECT_EQ(tools.level, 3);
    EXPECT_EQ(tools.kind, kItemMenuName);
    EXPECT_EQ(tools.menuNumber, 2);
    EXPECT_EQ(tools.parentItem, 1);
    EXPECT_EQ(tools.theme, "Aurora");
    EXPECT_FALSE(tools.horizontal);
    ASSERT_TRUE(tools.anchor);
    EXPECT_EQ(tools.anchor->parent, parent.bounds);
    EXPECT_TRUE(tools.anchor->towardsStart) << "a cascade that turned keeps turning";
    EXPECT_EQ(tools.anchor->buttonStart, parent.bounds.top + scene.layout.surface.top);
    EXPECT_EQ(SubMenuRecord(parent, scene, 3, menus).anchor->buttonStart,
              tools.anchor->buttonStart + 2 * scene.metrics().buttonHeight);

    EXPECT_EQ(SubMenuRecord(parent, scene, 2, menus).menuNumber, 0) << "an unknown name opens an empty menu";

    CascadeRec docs = SubMenuRecord(parent, scene, 3, menus);
    EXPECT_EQ(docs.kind, kItemFolderPath);
    EXPECT_EQ(docs.path, "C:\\Docs");
    EXPECT_EQ(docs.path2, "D:\\More docs");
    EXPECT_EQ(docs.menuType, kFilterUserMask);
    EXPECT_EQ(docs.fileTypeMask, "txt");
    EXPECT_EQ(docs.skip, 0);

    EXPECT_EQ(MenuTitle(SubMenuRecord(parent, scene, 4, menus), menus), "Running") << "the task list says what it lists";
}

TEST(SubMenuRecord, MorePagesOnFromTheEntriesThisWindowShowed) {
    DisplayList page;
    for (const char* label : {"a.txt", "b.txt", "c.txt"})
        page.entries.push_back(Entry(label, kItemFilename, label));
    page.entries.push_back(Entry("More...", kItemFolderPath, "C:\\Long"));
    page.moreItem = 4;
    CascadeRec parent = Parent();
    parent.kind = kItemFolderPath;
    parent.path = "C:\\Long";
    parent.skip = 6;
    CascadeRec next = SubMenuRecord(parent, Scene(PlainLook(), page), 4, MenuTable{});
    EXPECT_EQ(next.skip, 9);
    EXPECT_EQ(next.caption, "Long") << "the pages share the folder's name";
}

TEST(TearingOff, ATornOffMenuTakesAFreeIdAndStandsAlone) {
    CascadeList list;
    for (int i = 0; i < 3; ++i)
        list.Append(); // ids 1, 2, 3
    EXPECT_EQ(FreshMenuId(list, 1), 4) << "2 is taken; the next free one";
    EXPECT_EQ(FreshMenuId(list, 32766), 32767);
    EXPECT_EQ(FreshMenuId(list, 32767), 4) << "never 0, which means no parent";

    CascadeRec record = Parent();
    record.anchor = SubMenuAnchor{};
    record.parentId = 9;
    TearOff(record, 777, {300, 40});
    EXPECT_EQ(record.id, 777);
    EXPECT_EQ(record.parentId, 0);
    EXPECT_EQ(record.level, 1);
    EXPECT_FALSE(record.anchor);
    EXPECT_EQ(record.position, (Point{300, 40}));
}

TEST(TearingOff, ADropStoresAHotspotsPlaceOrTearsASubMenuOff) {
    CascadeRec hotspotMenu;
    hotspotMenu.openedByHotspot = true;
    hotspotMenu.hotspot = 12;
    CascadeRec torn;
    CascadeRec sub = Parent();
    struct Case {
        const CascadeRec& record;
        Point to;
        DropAction action;
    } cases[] = {
        {hotspotMenu, {10, 10}, DropAction::Nothing},          {hotspotMenu, {40, 12}, DropAction::StoreHotspotPlace},
        {torn, {40, 12}, DropAction::KeepPlace},                {sub, {40, 12}, DropAction::TearOff},
    };
    for (const Case& c : cases)
        EXPECT_EQ(DecideDrop(c.record, {10, 10}, c.to), c.action);
    EXPECT_EQ(HotSpotPlaceWrites(12, 40, 12), (ProfileWrites{{"TARVEX", "HotSpot2MenuTop", "12"},
                                                              {"TARVEX", "HotSpot2MenuLeft", "40"}}))
        << "only the index's last digit names it";
}

TEST(TitleBar, ButtonsAndTheBarUnderTheMouse) {
    MenuLook look = PlainLook();
    look.CloseStatus = 3;
    MenuScene scene = Scene(look, Items({"One"}));
    const Rect& bar = scene.layout.title;
    EXPECT_EQ(TitleButtonAt(scene, {bar.right - 8, bar.top + bar.Height() / 2}), TitleButton::Close);
    EXPECT_FALSE(TitleButtonAt(scene, {bar.left + 2, bar.top + 2}));
    EXPECT_TRUE(DragsMenu(scene, {bar.left + 2, bar.top + 2}));
    EXPECT_FALSE(DragsMenu(scene, {bar.right - 8, bar.top + bar.Height() / 2}));
    EXPECT_FALSE(DragsMenu(scene, {bar.left + 2, scene.layout.surface.top + 2}));
}
