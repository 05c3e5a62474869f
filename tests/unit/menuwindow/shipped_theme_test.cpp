// The theme that ships with the program: its theme file holds exactly what saving a theme
// writes, and its folder has a picture for everything that its look draws with one.
#include "core/settings.h"
#include "core/text.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/look/title_button_pictures.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace MenuWindow;

namespace {

const std::filesystem::path kThemeFolder =
    std::filesystem::path(__FILE__).parent_path().parent_path().parent_path().parent_path() / "resources" / "themes" /
    "Aurora";

ProfileSection ReadThemeFile() {
    std::ifstream file(kThemeFolder / "Aurora.wst", std::ios::binary);
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

std::vector<std::string> ListThemeFolder() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kThemeFolder))
        names.push_back(entry.path().filename().string());
    return names;
}

MenuLook ThemeLook() {
    SettingsRec settings;
    LoadSettings(ReadThemeFile(), true, settings);
    return settings;
}

std::string FileHead(const std::string& name, std::size_t count) {
    std::ifstream file(kThemeFolder / name, std::ios::binary);
    std::string head(count, '\0');
    file.read(head.data(), static_cast<std::streamsize>(count));
    head.resize(static_cast<std::size_t>(file.gcount()));
    return head;
}

} // namespace

TEST(ShippedTheme, ThemeFileIsWhatSavingTheThemeWrites) {
    ProfileSection section = ReadThemeFile();
    SettingsRec settings;
    LoadSettings(section, true, settings);
    ProfileWrites writes = SaveSettings(settings, true);
    ASSERT_EQ(section.size(), writes.size());
    for (std::size_t i = 0; i < writes.size(); ++i) {
        EXPECT_EQ(section[i].key, writes[i].key);
        EXPECT_EQ(section[i].value, writes[i].value) << writes[i].key;
    }
    EXPECT_EQ(section.back().key, "TitleInactiveOverlap");
    EXPECT_EQ(settings.GenThemeName, "Aurora");
}

// A real bitmap or icon for every picture the look asks for; symbols and title-bar buttons
// each under the name of their own state, not found by a fallback.
TEST(ShippedTheme, EveryPictureItsLookAsksForIsThere) {
    std::vector<std::string> listing = ListThemeFolder();
    MenuLook look = ThemeLook();
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
                EXPECT_EQ(FileHead(*file, 2), "BM");
            }
        }
    }
    EXPECT_GE(bitmaps, 6); // titles and buttons, in both title positions
    for (SymbolPicture symbol : {SymbolPicture::SubMenuArrow, SymbolPicture::HorizontalSubMenuArrow,
                                 SymbolPicture::ScrollUp, SymbolPicture::ScrollDown, SymbolPicture::ScrollLeft,
                                 SymbolPicture::ScrollRight, SymbolPicture::CommandKey}) {
        for (bool inactive : {false, true}) {
            for (bool selected : {false, true}) {
                std::optional<std::string> file = SymbolPictureFor(listing, look, symbol, inactive, selected);
                ASSERT_EQ(file, WantedSymbolName(symbol, inactive, selected));
                EXPECT_EQ(FileHead(*file, 4), std::string("\0\0\1\0", 4)) << *file;
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
}
