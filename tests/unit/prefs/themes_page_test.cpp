#include "prefs/themes_page.h"

#include <gtest/gtest.h>

using namespace Preferences;

TEST(ThemesPage, ThemesAreTheFoldersAnImportLeftWholeAndALoadedLookKeepsTheRest) {
    EXPECT_EQ(InstalledThemes({"zeta", "~Aurora.unpacking", "aurora2", "Aurora", "~x.replaced", "~mine", "Beta"}),
              (std::vector<std::string>{"Aurora", "aurora2", "Beta", "zeta", "~mine"}));

    SettingsRec theme;
    theme.TitleColor = 255;
    theme.GenThemeName = "Red";
    theme.BitmapsFolder = "C:\\Tarvex\\Themes\\Red\\";
    theme.SoundFx[2] = "C:\\Tarvex\\Themes\\Red\\open.wav";
    theme.GenDblClickDelay = 3;
    SettingsRec edited;
    edited.GenDblClickDelay = 40;
    edited.HotSpots[0].Menupath1 = "Main";
    TakeLook(theme, edited);
    EXPECT_EQ(edited.TitleColor, 255);
    EXPECT_EQ(edited.GenThemeName, "Red");
    EXPECT_EQ(edited.BitmapsFolder, theme.BitmapsFolder);
    EXPECT_EQ(edited.SoundFx, theme.SoundFx);
    EXPECT_EQ(edited.GenDblClickDelay, 40) << "not a look key";
    EXPECT_EQ(edited.HotSpots[0].Menupath1, "Main");
}
