#include "menuwindow/look/font_spec.h"

#include <cmath>

namespace MenuWindow {

namespace {
constexpr int kPointsPerInch = 72;
constexpr int kUpwards = 900;
} // namespace

int CharacterHeight(int pointSize, int dpi) {
    return -static_cast<int>(std::lround(static_cast<double>(pointSize) * dpi / kPointsPerInch));
}

std::string ChooseFace(std::string_view wanted, const std::function<bool(std::string_view face)>& exists) {
    if (wanted.empty() || !exists(wanted))
        return kFallbackFace;
    return std::string(wanted);
}

FontSpec FontSpecOf(const MenuLook& look, FontRole role, int dpi) {
    FontSpec spec;
    if (role == FontRole::Button) {
        spec.face = look.ButtonFont;
        spec.height = CharacterHeight(look.ButtonFontSize, dpi);
        spec.bold = look.ButtonFontBold;
        spec.italic = look.ButtonFontItalic;
        return spec;
    }
    spec.face = look.TitleFont;
    spec.height = CharacterHeight(look.TitleFontSize, dpi);
    spec.bold = look.TitleFontBold;
    spec.italic = look.TitleFontItalic;
    spec.escapement = role == FontRole::TitleVertical ? kUpwards : 0;
    return spec;
}

} // namespace MenuWindow
