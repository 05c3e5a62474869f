// Painting the buttons: the items in their normal, selected and pressed states, and
// the scroll buttons at the cut ends of a long menu.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/paint/repaint.h"

namespace MenuWindow {

// The part whose look a button in a state is painted with: the selection bar while it is
// selected, or pressed with SelBar on; the button otherwise.
Part PartForState(const MenuLook& look, ButtonState state);

// One item's button: background, edge, icon, text, command-key symbol with its key, and
// the sub-menu arrow. A normal button whose look spans the menu body (MenuIsGradientTarget)
// or is transparent shows its share of the body's background. A pressed button has a
// sunken edge and its contents one pixel down and to the right. Nothing for an item that
// is not drawn. overFreshBody says that the body's background has just been painted
// under the button, so that a button showing its share of it need not paint it again.
DrawList ButtonOps(const MenuScene& scene, int item, ButtonState state, const TextMeasure& measure,
                   bool overFreshBody = false);

// The scroll buttons: a button's background and edge with an arrow pointing to the
// hidden items (up or down, left or right in a horizontal menu).
DrawList ScrollButtonOps(const MenuScene& scene);

} // namespace MenuWindow
