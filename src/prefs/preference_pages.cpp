#include "prefs/preference_pages.h"

#include "prefs/user_tasks.h"

#include <array>

namespace Preferences {

namespace {

constexpr std::array<std::string_view, 6> kTitlebarGroups = {"Placement",   "Text",           "Background",
                                                             "Edge",        "Inactive titlebar", "Titlebar buttons"};
constexpr std::array<std::string_view, 4> kBitmapGroups = {"Theme folder", "Titlebar", "Menu buttons",
                                                           "Selection bar"};
constexpr std::array<std::string_view, 7> kButtonGroups = {"Size and text", "Icons",          "Background", "Edge",
                                                           "Selection bar", "Inactive buttons", "Symbols"};
constexpr std::array<std::string_view, 6> kMenuGroups = {"Frame",     "Opening sub-menus", "Scrolling",
                                                         "Folders",   "Horizontal menus",  "Keyboard"};
constexpr std::array<std::string_view, 2> kSoundGroups = {"Sounds", "Animation"};
constexpr std::array<std::string_view, 4> kTaskGroups = {"Task list", kUserTasksGroup, "Task list background",
                                                         "Systray"};
constexpr std::array<std::string_view, 1> kHotspotGroups = {"Hotspots"};
constexpr std::array<std::string_view, 1> kMenuEditorGroups = {"Menus"};
constexpr std::array<std::string_view, 1> kThemeGroups = {"Themes"};
constexpr std::array<std::string_view, 6> kGlobalGroups = {"Start-up", "Hot key", "Tray and desktop", "Mouse",
                                                           "Effects",  "Shutting down"};

constexpr std::array kPages = {
    PageDef{PrefPage::Titlebar, "Titlebar", "Titlebar Preferences", kTitlebarGroups},
    PageDef{PrefPage::Bitmap, "Bitmap", "Bitmap Preferences", kBitmapGroups},
    PageDef{PrefPage::MenuButton, "Menu Button", "Menu Button Preferences", kButtonGroups},
    PageDef{PrefPage::Menu, "Menu", "Menu Preferences", kMenuGroups},
    PageDef{PrefPage::SoundAnimation, "Sound and Animation", "Sound and Animation Preferences", kSoundGroups},
    PageDef{PrefPage::TasklistSystray, "Tasklist and Systray", "Tasklist and Systray Preferences", kTaskGroups},
    PageDef{PrefPage::Hotspots, "Hotspots", "Hotspots Definition", kHotspotGroups},
    PageDef{PrefPage::MenuEditor, "Menu Editor", "Menu Editor", kMenuEditorGroups},
    PageDef{PrefPage::Themes, "Themes", "Themes", kThemeGroups},
    PageDef{PrefPage::Global, "Global", "Global Preferences", kGlobalGroups},
    PageDef{PrefPage::About, "About", "About Tarvex", {}},
};

} // namespace

std::span<const PageDef> Pages() {
    return kPages;
}

const PageDef& PageOf(PrefPage page) {
    for (const PageDef& def : kPages)
        if (def.page == page)
            return def;
    return kPages.back();
}

std::vector<const SettingDef*> KeysOf(PrefPage page, std::string_view group) {
    std::vector<const SettingDef*> keys;
    for (const SettingDef& def : SettingsCatalogue())
        if (def.control.kind != ControlKind::None && def.control.page == page && def.control.group == group)
            keys.push_back(&def);
    return keys;
}

} // namespace Preferences
