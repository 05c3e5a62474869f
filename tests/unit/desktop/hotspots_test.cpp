#include "desktop/hotspots.h"

#include <gtest/gtest.h>

using namespace Hotspots;

namespace {

MenuRec Named(const char* name) {
    MenuRec menu;
    menu.NAME = name;
    return menu;
}

MenuTable Menus(std::initializer_list<const char*> names) {
    MenuTable table;
    for (const char* name : names)
        table.menus.push_back(Named(name));
    return table;
}

HotspotRec ShowMenu(const char* name) {
    HotspotRec hotspot;
    hotspot.Type = kShowMenu;
    hotspot.Menupath1 = name;
    return hotspot;
}

} // namespace

TEST(DefaultHotspot, CoversTheDesktopRightOfTheIconColumnOnALeftClickShowingTheFirstMenu) {
    HotspotRec expected;
    expected.x1 = 48;
    expected.x2 = 1024;
    expected.y2 = 768;
    expected.App = "Desktop";
    expected.GroupName = "Default";
    expected.MouseButton = 0; // left click
    EXPECT_EQ(DefaultHotspot(1024, 768, MenuTable{}), expected) << "no menus: a folder hotspot without a target";
    expected.Type = kShowMenu;
    expected.Menupath1 = "Main";
    EXPECT_EQ(DefaultHotspot(1024, 768, Menus({"Main", "Tools"})), expected);
}

TEST(DeclaresHotspots, OnlyASectionWithTheCountKeyHoldsHotspots) {
    EXPECT_FALSE(DeclaresHotspots({}));
    EXPECT_FALSE(DeclaresHotspots({{"TitleColor", "0"}, {"HotSpot0x1", "5"}}));
    EXPECT_TRUE(DeclaresHotspots({{"TitleColor", "0"}, {"NoOfHotSpots", "0"}}));
    EXPECT_TRUE(DeclaresHotspots({{"noofhotspots", "2"}}));
}

TEST(EnsureDefaultHotspot, ReplacesTheBlankRecordOfSettingsWithoutHotspotsButKeepsDeclaredOnes) {
    const MenuTable menus;
    std::vector<HotspotRec> blank(1);
    EnsureDefaultHotspot(blank, false, 800, 600, menus);
    EXPECT_EQ(blank, std::vector<HotspotRec>{DefaultHotspot(800, 600, menus)});
    std::vector<HotspotRec> loaded(2);
    loaded[1].App = "Notepad";
    std::vector<HotspotRec> kept = loaded;
    EnsureDefaultHotspot(loaded, true, 800, 600, menus);
    EXPECT_EQ(loaded, kept);
    std::vector<HotspotRec> none;
    EnsureDefaultHotspot(none, true, 800, 600, menus);
    EXPECT_EQ(none, std::vector<HotspotRec>{DefaultHotspot(800, 600, menus)});
}

TEST(FillCascadeRecord, CopiesTheHotspotKeepingTheRecordsIdentifier) {
    MenuTable menus = Menus({"Programs", "Tools"});
    HotspotRec hotspot = ShowMenu("Tools");
    hotspot.Menuleft = 120;
    hotspot.Menutop = 45;
    hotspot.Menuname = "My tools";
    hotspot.AlwaysOpen = -1;
    MenuWindow::CascadeRec record;
    record.id = 7;
    record.firstVisible = 9;
    record.level = 3;
    FillCascadeRecord(record, hotspot, 4, menus);
    EXPECT_EQ(record.id, 7);
    EXPECT_EQ(record.hotspot, 4);
    EXPECT_EQ(record.level, 1);
    EXPECT_EQ(record.kind, kItemMenuName);
    EXPECT_EQ(record.menuNumber, 2);
    EXPECT_EQ(record.position, (MenuWindow::Point{120, 45})) << "pixels, as the hotspot holds them";
    EXPECT_EQ(record.caption, "My tools");
    EXPECT_TRUE(record.alwaysOpen);
    EXPECT_EQ(record.firstVisible, 0) << "scrolled to the top";
}

TEST(FillCascadeRecord, OnlyShowMenuLooksUpAMenu) {
    HotspotRec folder = ShowMenu("Programs");
    folder.Type = kShowFolder;
    MenuWindow::CascadeRec record;
    FillCascadeRecord(record, folder, 0, Menus({"Programs"}));
    EXPECT_EQ(record.menuNumber, 0);
    EXPECT_EQ(record.kind, kItemFolderPath);
    EXPECT_EQ(record.path, "Programs");
}

TEST(SetOpeningPoint, TheOriginAndWithOnMouseTheCursor) {
    HotspotRec hotspot = ShowMenu("Programs");
    hotspot.Menuleft = 10;
    hotspot.Menutop = 20;
    MenuWindow::CascadeRec record;
    FillCascadeRecord(record, hotspot, 0, Menus({"Programs"}));
    SetOpeningPoint(record, hotspot, {300, 200}, {5, 6});
    EXPECT_EQ(record.origin, (MenuWindow::Point{300, 200}));
    EXPECT_EQ(record.position, (MenuWindow::Point{10, 20}));
    EXPECT_FALSE(record.onMouse);

    hotspot.OnMouse = true;
    SetOpeningPoint(record, hotspot, {300, 200}, {5, 6});
    EXPECT_EQ(record.position, (MenuWindow::Point{5, 6}));
    EXPECT_TRUE(record.onMouse);
}

TEST(TakeRequestedHotspot, TakesARequestOnceAndResetsIt) {
    std::int16_t requested = -1;
    EXPECT_EQ(TakeRequestedHotspot(requested), std::nullopt);
    requested = 3;
    EXPECT_EQ(TakeRequestedHotspot(requested), 3);
    EXPECT_EQ(requested, -1);
    EXPECT_EQ(TakeRequestedHotspot(requested), std::nullopt);
    requested = 0;
    EXPECT_EQ(TakeRequestedHotspot(requested), 0);
}
