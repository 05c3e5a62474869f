#include "menuwindow/look/pictures.h"
#include "menuwindow/look/title_button_pictures.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace MenuWindow;

namespace {

using Listing = std::vector<std::string>;

MenuLook PictureSymbols() {
    MenuLook look;
    look.Menu3DArrows = 2;
    look.HotkeyStyle = 2;
    return look;
}

// Every icon of a complete theme, spelled as a theme folder may spell them.
const Listing kAllSymbols = {
    "ArrowA.ico",    "ArrowI.ico",    "ArrowAS.ico",   "ArrowIS.ico",   "HzArrowA.ico", "HzArrowI.ico",
    "HzArrowAS.ico", "HzArrowIS.ico", "UpArrowA.ico",  "UpArrowI.ico",  "DnArrowA.ico", "DnArrowI.ico",
    "DnArrowAS.ico", "DnArrowIS.ico", "LfArrowA.ico",  "LfArrowI.ico",  "RgArrowA.ico", "RgArrowI.ico",
    "ComSymbA.ico",  "ComSymbI.ico",  "ComSymbAS.ico", "ComSymbIS.ico",
};

} // namespace

TEST(PictureFolder, RelativeFolderHangsOffTheProgramFolder) {
    EXPECT_EQ(PictureFolderPath("Themes\\Aurora", "C:\\Tarvex"), "C:\\Tarvex\\Themes\\Aurora");
    EXPECT_EQ(PictureFolderPath("D:\\Looks\\Mine\\", "C:\\Tarvex"), "D:\\Looks\\Mine\\");
    EXPECT_EQ(PictureFolderPath("\\\\server\\looks", "C:\\Tarvex"), "\\\\server\\looks");
    EXPECT_EQ(PictureFolderPath("\\Looks", "C:\\Tarvex"), "\\Looks");
    EXPECT_EQ(PictureFolderPath("", "C:\\Tarvex"), "");
}

TEST(PictureFolder, FindsNamesWithoutRegardToCaseInTheFolderSpelling) {
    Listing listing = {"readme.txt", "TITLEA.BMP", "titlea.bmp"};
    EXPECT_EQ(FindListedFile(listing, "TitleA.bmp"), "TITLEA.BMP");
    EXPECT_EQ(FindListedFile(listing, "TitleI.bmp"), std::nullopt);
    EXPECT_EQ(FindListedFile(listing, "TitleA"), std::nullopt);
    EXPECT_EQ(FindListedFile({}, "TitleA.bmp"), std::nullopt);
}

TEST(PictureFolder, FormatFollowsTheExtensionInAnyCase) {
    EXPECT_EQ(PictureFormatOf("TitleA.BMP"), PictureFormat::Bmp);
    EXPECT_EQ(PictureFormatOf("closea.Ico"), PictureFormat::Ico);
    EXPECT_EQ(PictureFormatOf("My.Theme\\ButtonA.jpg"), PictureFormat::Jpg);
    EXPECT_EQ(PictureFormatOf("ButtonA.jpeg"), PictureFormat::Unknown);
}

TEST(BackgroundPictures, BitmapWinsOverJpegAndEitherServes) {
    EXPECT_EQ(FindBackgroundPicture(Listing{"titlea.jpg", "TitleA.bmp"}, "TitleA"), "TitleA.bmp");
    EXPECT_EQ(FindBackgroundPicture(Listing{"TITLEA.JPG"}, "TitleA"), "TITLEA.JPG");
    EXPECT_EQ(FindBackgroundPicture(Listing{"TitleA.ico", "TitleA.png"}, "TitleA"), std::nullopt);
    EXPECT_EQ(FindBackgroundPicture(Listing{"Tasks.jpg"}, "Tasks"), "Tasks.jpg");
    // The stem must match whole: VTitleA is not TitleA.
    EXPECT_EQ(FindBackgroundPicture(Listing{"VTitleA.bmp"}, "TitleA"), std::nullopt);
}

TEST(BackgroundPictures, PartAsksOnlyWhenItsLookIsABitmap) {
    Listing listing = {"TitleA.bmp", "TitleI.bmp", "VTitleA.jpg", "ButtonA.bmp", "ButtonAS.bmp", "ButtonIS.bmp"};
    MenuLook look;
    EXPECT_EQ(PartPicture(listing, look, Part::Title, false), std::nullopt);
    look.TitleBitmap = true;
    EXPECT_EQ(PartPicture(listing, look, Part::Title, false), "TitleA.bmp");
    look.TitlePosition = 2;
    EXPECT_EQ(PartPicture(listing, look, Part::Title, false), "VTitleA.jpg");
    look.ButtonBitmap = true;
    EXPECT_EQ(PartPicture(listing, look, Part::Button, false), "ButtonA.bmp");
    look.SelBarGradient = 1;
    EXPECT_EQ(PartPicture(listing, look, Part::SelectionBar, false), std::nullopt);
    look.SelBarGradient = 2;
    EXPECT_EQ(PartPicture(listing, look, Part::SelectionBar, false), "ButtonAS.bmp");
}

TEST(BackgroundPictures, InactiveWindowUsesTheInactivePictureOnlyWithTheInactiveLook) {
    Listing listing = {"TitleA.bmp", "TitleI.bmp", "ButtonAS.bmp", "ButtonIS.bmp"};
    MenuLook look;
    look.TitleBitmap = true;
    look.SelBarGradient = 2;
    EXPECT_EQ(PartPicture(listing, look, Part::Title, true), "TitleA.bmp");
    EXPECT_EQ(PartPicture(listing, look, Part::SelectionBar, true), "ButtonAS.bmp");
    look.TitleShowInactive = true;
    look.ButtonShowInactive = true;
    // The inactive title has its own switch: off here, so no picture.
    EXPECT_EQ(PartPicture(listing, look, Part::Title, true), std::nullopt);
    look.TitleInactiveBitmap = true;
    EXPECT_EQ(PartPicture(listing, look, Part::Title, true), "TitleI.bmp");
    EXPECT_EQ(PartPicture(listing, look, Part::SelectionBar, true), "ButtonIS.bmp");
    // A missing inactive picture is no picture, not the active one.
    EXPECT_EQ(PartPicture(Listing{"TitleA.bmp"}, look, Part::Title, true), std::nullopt);
}

TEST(SymbolPictures, WantedNameIsStemStateAndSelection) {
    EXPECT_EQ(WantedSymbolName(SymbolPicture::SubMenuArrow, false, false), "ArrowA.ico");
    EXPECT_EQ(WantedSymbolName(SymbolPicture::SubMenuArrow, true, true), "ArrowIS.ico");
    EXPECT_EQ(WantedSymbolName(SymbolPicture::HorizontalSubMenuArrow, false, true), "HzArrowAS.ico");
    EXPECT_EQ(WantedSymbolName(SymbolPicture::ScrollDown, true, true), "DnArrowIS.ico");
    // No selected form of these: the selection bar shows the plain one.
    EXPECT_EQ(WantedSymbolName(SymbolPicture::ScrollLeft, true, true), "LfArrowI.ico");
    EXPECT_FALSE(HasSelectedForm(SymbolPicture::ScrollUp));
    EXPECT_TRUE(HasSelectedForm(SymbolPicture::ScrollDown));
}

TEST(SymbolPictures, MissingFormsFallBackToPlainThenActive) {
    Listing onlyActive = {"arrowa.ico"};
    EXPECT_EQ(FindSymbolPicture(onlyActive, SymbolPicture::SubMenuArrow, true, true), "arrowa.ico");
    Listing noSelected = {"ArrowA.ico", "ArrowI.ico"};
    EXPECT_EQ(FindSymbolPicture(noSelected, SymbolPicture::SubMenuArrow, true, true), "ArrowI.ico");
    Listing activeSelected = {"ArrowA.ico", "ArrowAS.ico"};
    EXPECT_EQ(FindSymbolPicture(activeSelected, SymbolPicture::SubMenuArrow, true, true), "ArrowAS.ico");
    EXPECT_EQ(FindSymbolPicture(activeSelected, SymbolPicture::SubMenuArrow, true, false), "ArrowA.ico");
    // Another symbol's icon never stands in.
    EXPECT_EQ(FindSymbolPicture(onlyActive, SymbolPicture::HorizontalSubMenuArrow, false, false), std::nullopt);
    EXPECT_EQ(FindSymbolPicture(Listing{"ArrowA.bmp"}, SymbolPicture::SubMenuArrow, false, false), std::nullopt);
}

TEST(SymbolPictures, StyleSettingsChooseThePictures) {
    MenuLook look;
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::SubMenuArrow, false, false), std::nullopt);
    look.Menu3DArrows = 2;
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::SubMenuArrow, false, false), "ArrowA.ico");
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::ScrollUp, false, false), "UpArrowA.ico");
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::CommandKey, false, false), std::nullopt);
    look.Menu3DArrows = 1;
    look.HotkeyStyle = 2;
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::CommandKey, false, true), "ComSymbAS.ico");
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::HorizontalSubMenuArrow, false, false), std::nullopt);
}

TEST(SymbolPictures, InactiveIconsFollowTheButtonsInactiveSwitch) {
    MenuLook look = PictureSymbols();
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::SubMenuArrow, true, true), "ArrowAS.ico");
    look.TitleShowInactive = true;
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::SubMenuArrow, true, true), "ArrowAS.ico");
    look.ButtonShowInactive = true;
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::SubMenuArrow, true, true), "ArrowIS.ico");
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::CommandKey, true, false), "ComSymbI.ico");
    EXPECT_EQ(SymbolPictureFor(kAllSymbols, look, SymbolPicture::CommandKey, false, false), "ComSymbA.ico");
}

TEST(TitleButtonPictures, NamesRunThroughTheExtensionsThenTheActiveName) {
    EXPECT_EQ(TitleButtonPictureNames(TitleButton::Close, false, false),
              (std::vector<std::string>{"closea.bmp", "closea.ico", "closea.jpg"}));
    EXPECT_EQ(TitleButtonPictureNames(TitleButton::RollUp, true, true),
              (std::vector<std::string>{"rollupip.bmp", "rollupip.ico", "rollupip.jpg", "rollupap.bmp", "rollupap.ico",
                                        "rollupap.jpg"}));
    EXPECT_EQ(TitleButtonPictureNames(TitleButton::Rotate, false, true).front(), "rotateap.bmp");
    EXPECT_EQ(TitleButtonPictureNames(TitleButton::OnTop, true, false).front(), "ontopi.bmp");
}

TEST(TitleButtonPictures, ActiveIconOnlyServesTheInactiveMenuToo) {
    Listing listing = {"CloseA.ico"};
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::Close, false, false), "CloseA.ico");
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::Close, true, false), "CloseA.ico");
    // Pressed pictures fall back to the active pressed one only, not to the unpressed one.
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::Close, true, true), std::nullopt);
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::Rotate, false, false), std::nullopt);
}

TEST(TitleButtonPictures, ExtensionOrderAndInactiveFirst) {
    Listing listing = {"ROLLUPA.JPG", "rollupa.ico", "RollUpI.jpg", "OnTopAP.bmp", "ontopip.ico"};
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::RollUp, false, false), "rollupa.ico");
    // An inactive picture of any extension comes before every active one.
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::RollUp, true, false), "RollUpI.jpg");
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::OnTop, true, true), "ontopip.ico");
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::OnTop, false, true), "OnTopAP.bmp");
    EXPECT_EQ(FindTitleButtonPicture(listing, TitleButton::OnTop, false, false), std::nullopt);
}

TEST(SymbolPictures, PicturesInUseNameEachFileTheLookDrawsOnce) {
    MenuLook look = PictureSymbols();
    look.TitleBitmap = true;
    Listing listing = {"readme.txt", "TitleA.bmp", "ButtonA.bmp", "ArrowA.ico", "ArrowAS.ico"};
    EXPECT_EQ(PicturesInUse(listing, look), (Listing{"TitleA.bmp", "ArrowA.ico", "ArrowAS.ico"}));
    EXPECT_EQ(PicturesInUse(listing, MenuLook{}), Listing{});
}
