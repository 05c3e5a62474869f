// The hotspots page's rules: which fields an action and an event use, typed numbers,
// the ten-hotspot limit, deleting with the start-up list following, and hot keys used twice.
#include "prefs/hotspot_fields.h"

#include <gtest/gtest.h>

using namespace Preferences;

namespace {

HotspotRec Of(std::uint8_t type, std::int16_t mouseButton = 0, bool onMouse = false) {
    HotspotRec hotspot;
    hotspot.Type = type;
    hotspot.MouseButton = mouseButton;
    hotspot.OnMouse = onMouse;
    return hotspot;
}

HotspotRec WithHotKey(std::int16_t key, bool shift) {
    HotspotRec hotspot;
    hotspot.UseHotKey = -1;
    hotspot.Hotkey = key;
    hotspot.ShiftHotKey = shift;
    return hotspot;
}

} // namespace

TEST(HotspotFields, TheActionAndTheEventChooseTheFieldsThatMatter) {
    struct Case {
        HotspotRec hotspot;
        HotspotField field;
        bool applies;
        bool enabled;
    } cases[] = {
        {Of(0), HotspotField::FileTypes, true, true},        {Of(1), HotspotField::FileTypes, false, true},
        {Of(2), HotspotField::Arguments, true, true},        {Of(2), HotspotField::Caption, false, true},
        {Of(3), HotspotField::OnMouse, false, true},         {Of(4), HotspotField::Target, false, true},
        {Of(4), HotspotField::Caption, true, true},          {Of(1, 0, true), HotspotField::MenuLeft, true, false},
        {Of(1), HotspotField::MenuTop, true, true},          {Of(1, 2), HotspotField::X1, true, true},
        {Of(1, 3), HotspotField::Y2, true, false},           {Of(1, 11), HotspotField::Application, true, false},
        {Of(1), HotspotField::HotKey, true, false},          {WithHotKey(0x74, false), HotspotField::HotKey, true, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FieldApplies(c.hotspot, c.field), c.applies) << static_cast<int>(c.field);
        EXPECT_EQ(FieldEnabled(c.hotspot, c.field), c.enabled) << static_cast<int>(c.field);
    }
    EXPECT_EQ(TargetLabel(3), "Command Name");
    EXPECT_EQ(TargetLabel(200), "Folder Path");
}

TEST(HotspotFields, TypedTextGoesToItsFieldAndBadNumbersAreRefused) {
    HotspotRec hotspot = Of(3);
    EXPECT_FALSE(SetFieldText(hotspot, HotspotField::Target, "*14"));
    EXPECT_EQ(hotspot.Menupath2, "*14") << "a command is the second target";
    EXPECT_TRUE(hotspot.Menupath1.empty());
    EXPECT_FALSE(SetFieldText(hotspot, HotspotField::X2, "-40"));
    EXPECT_EQ(FieldText(hotspot, HotspotField::X2), "-40");
    EXPECT_EQ(SetFieldText(hotspot, HotspotField::X2, "40000"), "Allowed: -32768 to 32767");
    EXPECT_TRUE(SetFieldText(hotspot, HotspotField::Y1, "ten"));
    EXPECT_EQ(hotspot.x2, -40);
    EXPECT_EQ(hotspot.y1, 0);

    SetChecked(hotspot, HotspotField::AlwaysOpen, true);
    EXPECT_EQ(hotspot.AlwaysOpen, -1) << "number switches are written -1";
    EXPECT_TRUE(IsChecked(hotspot, HotspotField::AlwaysOpen));
    EXPECT_TRUE(SetHotKey(hotspot, 'K', true, true, false)) << "Ctrl and Shift together";
    EXPECT_TRUE(SetHotKey(hotspot, 'K', false, false, true)) << "Alt";
    EXPECT_EQ(hotspot.Hotkey, 0);
    EXPECT_FALSE(SetHotKey(hotspot, 'K', true, false, false));
    EXPECT_EQ(hotspot.Hotkey, 'K');
    EXPECT_TRUE(hotspot.ShiftHotKey);
}

TEST(HotspotFields, TenHotspotsAtMostAndDeletingMovesTheStartupListAlong) {
    SettingsRec settings;
    for (int i = 1; i < 10; ++i)
        ASSERT_FALSE(AddHotspot(settings, 1024, 768, "Main")) << i;
    EXPECT_TRUE(AddHotspot(settings, 1024, 768, "Main")) << "an eleventh would land on the default";
    EXPECT_EQ(settings.HotSpots.size(), 10u);
    const HotspotRec& added = settings.HotSpots[3];
    EXPECT_EQ(added.x2, 1023);
    EXPECT_EQ(added.Menupath1, "Main");
    EXPECT_EQ(added.GroupName, "Hotspot 3");

    settings.HotSpots[5].Menuname = "Fifth";
    settings.GenStartupHotspot = {0, 4, 7, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_FALSE(DeleteHotspot(settings, 0)) << "the default stays";
    EXPECT_FALSE(DeleteHotspot(settings, 10));
    ASSERT_TRUE(DeleteHotspot(settings, 4));
    EXPECT_EQ(settings.HotSpots[4].Menuname, "Fifth");
    EXPECT_EQ(settings.GenStartupHotspot, (std::array<std::int16_t, 10>{0, 6, -1, -1, -1, -1, -1, -1, -1, -1}));
}

TEST(HotspotFields, AHotKeyUsedTwiceIsNamedWithItsOwner) {
    SettingsRec settings;
    settings.HotSpots = {WithHotKey(0x74, false), WithHotKey(0x74, true), WithHotKey(0x74, false)};
    EXPECT_EQ(HotKeyClash(settings, 2), "Ctrl+F5 is already the hot key of Default");
    EXPECT_FALSE(HotKeyClash(settings, 1)) << "Shift+F5 is another key";
    settings.HotSpots[2].UseHotKey = 0;
    EXPECT_FALSE(HotKeyClash(settings, 0));
    settings.HotSpots[1] = WithHotKey('P', false);
    settings.GenHotKey = 'P';
    EXPECT_EQ(HotKeyClash(settings, 1), "Ctrl+P already opens the preferences");
}
