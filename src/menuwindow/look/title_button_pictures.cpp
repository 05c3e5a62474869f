#include "menuwindow/look/title_button_pictures.h"

#include <array>
#include <string_view>

namespace MenuWindow {

namespace {

std::string_view BaseName(TitleButton button) {
    switch (button) {
    case TitleButton::Close:
        return "close";
    case TitleButton::Rotate:
        return "rotate";
    case TitleButton::RollUp:
        return "rollup";
    case TitleButton::OnTop:
        return "ontop";
    }
    return "close";
}

void AddNames(std::vector<std::string>& names, TitleButton button, char state, bool pressed) {
    constexpr std::array<std::string_view, 3> kExtensions = {".bmp", ".ico", ".jpg"};
    for (std::string_view extension : kExtensions) {
        std::string name(BaseName(button));
        name += state;
        if (pressed)
            name += 'p';
        name += extension;
        names.push_back(std::move(name));
    }
}

} // namespace

TitleButtonStyle TitleButtonStyleOf(std::int16_t buttonStyle) {
    switch (buttonStyle) {
    case 0:
        return TitleButtonStyle::NeXT;
    case 2:
        return TitleButtonStyle::Pictures;
    default:
        return TitleButtonStyle::New;
    }
}

std::vector<std::string> TitleButtonPictureNames(TitleButton button, bool inactiveWindow, bool pressed) {
    std::vector<std::string> names;
    if (inactiveWindow)
        AddNames(names, button, 'i', pressed);
    AddNames(names, button, 'a', pressed);
    return names;
}

std::optional<std::string> FindTitleButtonPicture(FolderListing listing, TitleButton button, bool inactiveWindow,
                                                  bool pressed) {
    for (const std::string& name : TitleButtonPictureNames(button, inactiveWindow, pressed)) {
        if (std::optional<std::string> found = FindListedFile(listing, name))
            return found;
    }
    return std::nullopt;
}

} // namespace MenuWindow
