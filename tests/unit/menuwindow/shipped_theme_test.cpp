// The themes that ship with the program: each theme file holds exactly what saving a
// theme writes, and each folder has a picture for everything that its look draws with
// one, and a sound for every sound event.
#include "core/settings.h"
#include "core/text.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/look/title_button_pictures.h"
#include "prefs/sound_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace MenuWindow;

namespace {

const std::filesystem::path kThemesFolder = std::filesystem::path(TARVEX_SOURCE_DIR) / "resources" / "themes";
const std::vector<std::string> kShippedThemes = {"Amber", "Aurora", "Graphite", "Paper"};

ProfileSection ReadThemeFile(const std::string& theme) {
    std::ifstream file(kThemesFolder / theme / (theme + ".wst"), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << theme;
    ProfileSection section;
    std::string line;
    bool header = true;
    while (std::getline(file, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (header) {
            EXPECT_EQ(line, "[TARVEX]");
            header = false;
            continue;
        }
        std::size_t equals = line.find('=');
        EXPECT_NE(equals, std::string::npos) << line;
        if (equals != std::string::npos)
            section.push_back({line.substr(0, equals), line.substr(equals + 1)});
    }
    return section;
}

std::vector<std::string> ListFolder(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

MenuLook ThemeLook(const std::string& theme) {
    SettingsRec settings;
    LoadSettings(ReadThemeFile(theme), true, settings);
    return settings;
}

std::string FileHead(const std::filesystem::path& file, std::size_t count) {
    std::ifstream in(file, std::ios::binary);
    std::string head(count, '\0');
    in.read(head.data(), static_cast<std::streamsize>(count));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return head;
}

} // namespace

TEST(ShippedTheme, EveryThemeFolderIsInTheTable) {
    EXPECT_EQ(ListFolder(kThemesFolder), kShippedThemes);
}

TEST(ShippedTheme, ThemeFileIsWhatSavingTheThemeWrites) {
    for (const std::string& theme : kShippedThemes) {
        SCOPED_TRACE(theme);
        ProfileSection section = ReadThemeFile(theme);
        SettingsRec settings;
        LoadSettings(section, true, settings);
        ProfileWrites writes = SaveSettings(settings, true);
        ASSERT_EQ(section.size(), writes.size());
        for (std::size_t i = 0; i < writes.size(); ++i) {
            EXPECT_EQ(section[i].key, writes[i].key);
            EXPECT_EQ(section[i].value, writes[i].value) << writes[i].key;
        }
        EXPECT_EQ(section.back().key, "TitleInactiveOverlap");
        EXPECT_EQ(settings.GenThemeName, theme);
        EXPECT_EQ(settings.BitmapsFolder, "Themes\\" + theme);
    }
}

// A real bitmap or icon for every picture the look asks for; symbols and title-bar buttons
// each under the name of their own state, not found by a fallback. The task list's
// background and a wave file for each sound event, named after it, are there too.
TEST(ShippedTheme, EveryPictureItsLookAsksForIsThere) {
    for (const std::string& theme : kShippedThemes) {
        SCOPED_TRACE(theme);
        std::vector<std::string> listing = ListFolder(kThemesFolder / theme);
        auto head = [&](const std::string& file, std::size_t count) {
            return FileHead(kThemesFolder / theme / file, count);
        };
        MenuLook look = ThemeLook(theme);
        int bitmaps = 0;
        for (std::int16_t titlePosition : {0, 2}) {
            look.TitlePosition = titlePosition;
            for (Part part : {Part::Title, Part::Button, Part::SelectionBar}) {
                for (bool inactive : {false, true}) {
                    if (LookOf(look, part, inactive).background != Background::Bitmap)
                        continue;
                    ++bitmaps;
                    std::optional<std::string> file = PartPicture(listing, look, part, inactive);
                    ASSERT_TRUE(file.has_value()) << LookOf(look, part, inactive).bitmapStem;
                    EXPECT_EQ(head(*file, 2), "BM");
                }
            }
        }
        EXPECT_GE(bitmaps, 6); // titles and buttons, in both title positions
        EXPECT_EQ(FindBackgroundPicture(listing, "Tasks"), "Tasks.bmp");
        for (SymbolPicture symbol : {SymbolPicture::SubMenuArrow, SymbolPicture::HorizontalSubMenuArrow,
                                     SymbolPicture::ScrollUp, SymbolPicture::ScrollDown, SymbolPicture::ScrollLeft,
                                     SymbolPicture::ScrollRight, SymbolPicture::CommandKey}) {
            for (bool inactive : {false, true}) {
                for (bool selected : {false, true}) {
                    std::optional<std::string> file = SymbolPictureFor(listing, look, symbol, inactive, selected);
                    ASSERT_EQ(file, WantedSymbolName(symbol, inactive, selected));
                    EXPECT_EQ(head(*file, 4), std::string("\0\0\1\0", 4)) << *file;
                }
            }
        }
        EXPECT_EQ(TitleButtonStyleOf(look.ButtonStyle), TitleButtonStyle::Pictures);
        for (TitleButton button : {TitleButton::Close, TitleButton::Rotate, TitleButton::RollUp, TitleButton::OnTop}) {
            for (bool inactive : {false, true}) {
                for (bool pressed : {false, true}) {
                    std::optional<std::string> file = FindTitleButtonPicture(listing, button, inactive, pressed);
                    ASSERT_TRUE(file.has_value());
                    std::string wanted = TitleButtonPictureNames(button, inactive, pressed)[1];
                    EXPECT_TRUE(Text::EqualsIgnoreCase(*file, wanted)) << *file << " for " << wanted;
                }
            }
        }
        for (std::string_view event : Preferences::kSoundEventNames)
            EXPECT_EQ(head(std::string(event) + ".wav", 4), "RIFF") << event;
    }
}
