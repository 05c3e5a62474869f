#include "menuwindow/look/pictures.h"

#include "core/text.h"
#include "menuwindow/look/program_relative.h"

#include <algorithm>
#include <array>

namespace MenuWindow {

namespace {

constexpr int kPictureArrows = 2;
constexpr int kPictureCommandKey = 2;

struct SymbolName {
    std::string_view stem;
    bool selectedForm;
};

SymbolName NameOf(SymbolPicture symbol) {
    switch (symbol) {
    case SymbolPicture::SubMenuArrow:
        return {"Arrow", true};
    case SymbolPicture::HorizontalSubMenuArrow:
        return {"HzArrow", true};
    case SymbolPicture::ScrollUp:
        return {"UpArrow", false};
    case SymbolPicture::ScrollDown:
        return {"DnArrow", true};
    case SymbolPicture::ScrollLeft:
        return {"LfArrow", false};
    case SymbolPicture::ScrollRight:
        return {"RgArrow", false};
    case SymbolPicture::CommandKey:
        return {"ComSymb", true};
    }
    return {"Arrow", true};
}

std::string WithExtension(std::string_view stem, std::string_view extension) {
    std::string name(stem);
    name += extension;
    return name;
}

} // namespace

std::string PictureFolderPath(std::string_view bitmapsFolder, std::string_view programFolder) {
    return ResolveProgramRelative(bitmapsFolder, programFolder);
}

std::optional<std::string> FindListedFile(FolderListing listing, std::string_view name) {
    for (const std::string& listed : listing) {
        if (Text::EqualsIgnoreCase(listed, name))
            return listed;
    }
    return std::nullopt;
}

PictureFormat PictureFormatOf(std::string_view fileName) {
    std::size_t dot = fileName.rfind('.');
    if (dot == std::string_view::npos)
        return PictureFormat::Unknown;
    std::string_view extension = fileName.substr(dot);
    if (Text::EqualsIgnoreCase(extension, ".bmp"))
        return PictureFormat::Bmp;
    if (Text::EqualsIgnoreCase(extension, ".ico"))
        return PictureFormat::Ico;
    if (Text::EqualsIgnoreCase(extension, ".jpg"))
        return PictureFormat::Jpg;
    return PictureFormat::Unknown;
}

std::optional<std::string> FindBackgroundPicture(FolderListing listing, std::string_view stem) {
    if (std::optional<std::string> bitmap = FindListedFile(listing, WithExtension(stem, ".bmp")))
        return bitmap;
    return FindListedFile(listing, WithExtension(stem, ".jpg"));
}

std::optional<std::string> PartPicture(FolderListing listing, const MenuLook& look, Part part, bool inactiveWindow) {
    PartLook partLook = LookOf(look, part, inactiveWindow);
    if (partLook.background != Background::Bitmap)
        return std::nullopt;
    return FindBackgroundPicture(listing, partLook.bitmapStem);
}

bool UsesSymbolPictures(const MenuLook& look, SymbolPicture symbol) {
    if (symbol == SymbolPicture::CommandKey)
        return look.HotkeyStyle == kPictureCommandKey;
    return look.Menu3DArrows == kPictureArrows;
}

bool HasSelectedForm(SymbolPicture symbol) {
    return NameOf(symbol).selectedForm;
}

std::string WantedSymbolName(SymbolPicture symbol, bool inactiveLook, bool selected) {
    SymbolName name = NameOf(symbol);
    std::string file(name.stem);
    file += inactiveLook ? 'I' : 'A';
    if (selected && name.selectedForm)
        file += 'S';
    file += ".ico";
    return file;
}

std::optional<std::string> FindSymbolPicture(FolderListing listing, SymbolPicture symbol, bool inactiveLook,
                                             bool selected) {
    const std::array<std::string, 4> candidates = {
        WantedSymbolName(symbol, inactiveLook, selected),
        WantedSymbolName(symbol, inactiveLook, false),
        WantedSymbolName(symbol, false, selected),
        WantedSymbolName(symbol, false, false),
    };
    for (const std::string& candidate : candidates) {
        if (std::optional<std::string> found = FindListedFile(listing, candidate))
            return found;
    }
    return std::nullopt;
}

std::optional<std::string> SymbolPictureFor(FolderListing listing, const MenuLook& look, SymbolPicture symbol,
                                            bool inactiveWindow, bool selected) {
    if (!UsesSymbolPictures(look, symbol))
        return std::nullopt;
    return FindSymbolPicture(listing, symbol, UsesInactiveLook(look, Part::Button, inactiveWindow), selected);
}

std::vector<std::string> PicturesInUse(FolderListing listing, const MenuLook& look) {
    std::vector<std::string> files;
    auto add = [&files](std::optional<std::string> file) {
        if (file && std::ranges::find(files, *file) == files.end())
            files.push_back(std::move(*file));
    };
    constexpr std::array kSymbols = {SymbolPicture::SubMenuArrow, SymbolPicture::HorizontalSubMenuArrow,
                                     SymbolPicture::ScrollUp,     SymbolPicture::ScrollDown,
                                     SymbolPicture::ScrollLeft,   SymbolPicture::ScrollRight,
                                     SymbolPicture::CommandKey};
    for (bool inactive : {false, true}) {
        for (Part part : {Part::Title, Part::Button, Part::SelectionBar})
            add(PartPicture(listing, look, part, inactive));
        for (SymbolPicture symbol : kSymbols)
            for (bool selected : {false, true})
                add(SymbolPictureFor(listing, look, symbol, inactive, selected));
    }
    return files;
}

} // namespace MenuWindow
