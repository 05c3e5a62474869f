#include "menuwindow/interaction/title_bar.h"

#include "menuwindow/paint/paint_title_buttons.h"

namespace MenuWindow {

std::optional<TitleButton> TitleButtonAt(const MenuScene& scene, Point point) {
    for (const PlacedTitleButton& placed : PlacedTitleButtons(scene))
        if (placed.rect.Contains(point))
            return placed.button;
    return std::nullopt;
}

bool DragsMenu(const MenuScene& scene, Point point) {
    return scene.layout.title.Contains(point) && !TitleButtonAt(scene, point);
}

SoundEvent TitleButtonSound(TitleButton button, bool rolledUp) {
    switch (button) {
    case TitleButton::Close:
        return SoundEvent::CloseMenu;
    case TitleButton::Rotate:
        return SoundEvent::RotateMenu;
    case TitleButton::RollUp:
        return rolledUp ? SoundEvent::RollMenuDown : SoundEvent::RollMenuUp;
    case TitleButton::OnTop:
        break;
    }
    return SoundEvent::MenuAlwaysOnTop;
}

} // namespace MenuWindow
