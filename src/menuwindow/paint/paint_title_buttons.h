// Painting the title-bar buttons (close, rotate, roll-up, on-top) in the style ButtonStyle
// picks: square bevelled buttons, round ones, or the theme's pictures.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/layout/title_buttons.h"

#include <vector>

namespace MenuWindow {

// The colours of the two drawn styles, in 0x00BBGGRR.
inline constexpr Colour kSquareButtonFace = 0x00E4E0DC;
inline constexpr Colour kSquareButtonLight = 0x00FFFFFF;
inline constexpr Colour kSquareButtonDark = 0x00605850;
inline constexpr Colour kSquareButtonGlyph = 0x00302820;
inline constexpr Colour kRoundButtonGlyph = 0x00FFFFFF;
// The round style tells the buttons apart by colour as well as by glyph.
Colour RoundButtonColour(TitleButton button);
Colour RoundButtonRim(TitleButton button);

// The buttons shown on the window's title bar, where they stand; none without a bar.
std::vector<PlacedTitleButton> PlacedTitleButtons(const MenuScene& scene);

// One button, drawn up or held down. In the picture style a button whose picture the
// theme lacks is left out: the bar shows through.
void AddTitleButton(DrawList& list, const MenuScene& scene, const PlacedTitleButton& button, bool pressed);

} // namespace MenuWindow
