// The theme's pictures: which file of the bitmaps folder a painted part, arrow or
// command-key symbol is drawn with. The shell lists the folder once and asks here; the
// names are fixed and compared without regard to case, and the answer is the file's
// name as the folder spells it. No file is no picture, never an error: the part is
// then drawn without one.
#pragma once

#include "menuwindow/look/menu_look.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace MenuWindow {

// The file names of one folder, as the shell enumerates it (names only, no paths).
using FolderListing = std::span<const std::string>;

// The folder the pictures are read from: BitmapsFolder, a relative one taken against the
// program folder (as the shipped theme files give it). Empty when BitmapsFolder is empty:
// no folder, so no pictures.
std::string PictureFolderPath(std::string_view bitmapsFolder, std::string_view programFolder);

// The listed name equal to name without regard to case; the first one when the listing
// holds several.
std::optional<std::string> FindListedFile(FolderListing listing, std::string_view name);

enum class PictureFormat { Bmp, Ico, Jpg, Unknown };

// By the file's extension, in any case; tells the shell how to load it.
PictureFormat PictureFormatOf(std::string_view fileName);

// A background picture (title, vertical title, button, selected button, task list) by its
// stem ("TitleA", "VTitleI", "ButtonAS", "Tasks"): stem.bmp, else stem.jpg. The bitmap
// wins when both exist: it loads without a decoder and is what a theme saves first.
std::optional<std::string> FindBackgroundPicture(FolderListing listing, std::string_view stem);

// The picture of a part's background when its look asks for a bitmap (LookOf gives the
// stem for the window's state); none when the look is a colour or a gradient.
std::optional<std::string> PartPicture(FolderListing listing, const MenuLook& look, Part part, bool inactiveWindow);

// The icons of the arrows and of the command-key symbol.
enum class SymbolPicture {
    SubMenuArrow,           // Arrow: the sub-menu arrow of a vertical menu
    HorizontalSubMenuArrow, // HzArrow: the sub-menu arrow of a horizontal menu
    ScrollUp,               // UpArrow
    ScrollDown,             // DnArrow
    ScrollLeft,             // LfArrow
    ScrollRight,            // RgArrow
    CommandKey,             // ComSymb
};

// Menu3DArrows 2 draws the arrows with pictures, HotkeyStyle 2 the command-key symbol.
bool UsesSymbolPictures(const MenuLook& look, SymbolPicture symbol);

// Only these have a form of their own under the selection bar (an S after A or I).
bool HasSelectedForm(SymbolPicture symbol);

// The icon a symbol wants: its stem, then I when the inactive look is in use (else A),
// then S under the selection bar where the symbol has that form, then ".ico".
std::string WantedSymbolName(SymbolPicture symbol, bool inactiveLook, bool selected);

// The wanted icon, else the one without S, else the active one (with and then without S):
// a theme that draws only the active arrow shows it in every state, as the title-bar
// buttons fall back from inactive to active.
std::optional<std::string> FindSymbolPicture(FolderListing listing, SymbolPicture symbol, bool inactiveLook,
                                             bool selected);

// The icon a symbol is drawn with in a window, or none when its style is not the picture
// style or no file fits. The symbols follow the buttons' inactive switch: they stand on
// the buttons.
std::optional<std::string> SymbolPictureFor(FolderListing listing, const MenuLook& look, SymbolPicture symbol,
                                            bool inactiveWindow, bool selected);

// Every file the look draws from the listing: the parts' backgrounds and the symbols, in
// both window states and under and off the selection bar; each name once.
std::vector<std::string> PicturesInUse(FolderListing listing, const MenuLook& look);

} // namespace MenuWindow
