// The pictures of the title-bar buttons in the bitmap style: which file of the bitmaps
// folder each button shows for the window's state.
#pragma once

#include "menuwindow/look/pictures.h"
#include "menuwindow/layout/title_buttons.h"

#include <optional>
#include <string>
#include <vector>

namespace MenuWindow {

// ButtonStyle: 0 the NeXT style, 1 the new style (both drawn), 2 pictures.
enum class TitleButtonStyle { NeXT, New, Pictures };
TitleButtonStyle TitleButtonStyleOf(std::int16_t buttonStyle);

// The names tried, in order: the base name (close, rotate, rollup, ontop), then i for an
// inactive window or a for an active one, then p while the button is held down, with
// .bmp, .ico and .jpg; for an inactive window the same again with a in place of i.
std::vector<std::string> TitleButtonPictureNames(TitleButton button, bool inactiveWindow, bool pressed);

// The first of those names that the folder holds, in its own spelling; none leaves the
// button without a picture.
std::optional<std::string> FindTitleButtonPicture(FolderListing listing, TitleButton button, bool inactiveWindow,
                                                  bool pressed);

} // namespace MenuWindow
