#include "themes/theme_files.h"

#include "core/text.h"

#include <vector>

namespace ThemeFiles {

namespace {

std::vector<std::string> MakePictureFiles() {
    std::vector<std::string> names;
    auto add = [&](std::initializer_list<std::string_view> stems, std::initializer_list<std::string_view> ends) {
        for (std::string_view stem : stems)
            for (std::string_view end : ends)
                names.push_back(std::string(stem).append(end));
    };
    for (std::string_view extension : {".bmp", ".jpg"})
        add({"ButtonA", "ButtonI", "ButtonAS", "ButtonIS"}, {extension});
    for (std::string_view stem : {"Title", "VTitle"})
        for (std::string_view extension : {".bmp", ".jpg"})
            add({stem}, {std::string("A").append(extension), std::string("I").append(extension)});
    add({"Tasks"}, {".bmp", ".jpg"});
    for (std::string_view extension : {".bmp", ".ico", ".jpg"})
        for (std::string_view stem : {"Close", "Rollup", "Rotate", "OnTop"})
            for (std::string_view state : {"A", "I", "AP", "IP"})
                add({stem}, {std::string(state).append(extension)});
    add({"UpArrow", "LfArrow", "RgArrow"}, {"A.ico", "I.ico"});
    add({"DnArrow", "HzArrow", "Arrow", "ComSymb"}, {"A.ico", "I.ico", "AS.ico", "IS.ico"});
    names.emplace_back("Systray.ico"); // the systray copy's button draws it from the theme too
    return names;
}

bool IsDeviceName(std::string_view name) {
    std::string stem = Text::ToUpper(name.substr(0, name.find('.')));
    while (!stem.empty() && stem.back() == ' ')
        stem.pop_back();
    for (std::string_view device : {"CON", "PRN", "AUX", "NUL"})
        if (stem == device)
            return true;
    return stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) && stem[3] >= '1' && stem[3] <= '9';
}

bool EndsWithIgnoreCase(std::string_view s, std::string_view end) {
    return s.size() >= end.size() && Text::EqualsIgnoreCase(s.substr(s.size() - end.size()), end);
}

std::string_view WithoutTrailingBackslash(std::string_view path) {
    while (!path.empty() && path.back() == '\\')
        path.remove_suffix(1);
    return path;
}

} // namespace

std::span<const std::string> PictureFiles() {
    static const std::vector<std::string> names = MakePictureFiles();
    return names;
}

std::string NameProblem(std::string_view name) {
    if (name.empty())
        return "is empty";
    if (name == "." || name == "..")
        return "is \".\" or \"..\"";
    for (char c : name) {
        if (static_cast<unsigned char>(c) < 0x20)
            return "holds a control character";
        if (std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos)
            return std::string("holds the character \"").append(1, c).append("\"");
    }
    if (name.back() == '.' || name.back() == ' ')
        return "ends with a dot or a space";
    if (IsDeviceName(name))
        return "is a name Windows keeps for a device";
    return {};
}

std::string ThemeFolder(std::string_view themesFolder, std::string_view name) {
    return std::string(themesFolder).append("\\").append(name).append("\\");
}

std::string ThemeFile(std::string_view themeFolder, std::string_view name) {
    return std::string(themeFolder).append(name).append(".wst");
}

std::string FolderToDelete(std::string_view themesFolder, std::string_view name) {
    std::string path(themesFolder);
    if (!Text::ToLower(path).ends_with("\\themes\\") && !path.ends_with('\\'))
        path += '\\';
    return path.append(name);
}

bool SamePath(std::string_view a, std::string_view b) {
    return Text::EqualsIgnoreCase(WithoutTrailingBackslash(a), WithoutTrailingBackslash(b));
}

std::string FileNameOf(std::string_view path) {
    std::size_t slash = path.find_last_of("\\/");
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string WallpaperCopyName(std::string_view wallpaperPath) {
    std::string name = FileNameOf(wallpaperPath);
    // Four characters, not bytes: a UTF-8 character is never cut in two.
    std::size_t start = name.size();
    for (int characters = 0; start > 0 && characters < 4;) {
        --start;
        if ((static_cast<unsigned char>(name[start]) & 0xC0) != 0x80)
            ++characters;
    }
    return std::string("Wallpaper").append(name.substr(start));
}

std::array<std::string, 7> SoundsInFolder(const std::array<std::string, 7>& sounds, std::string_view themeFolder) {
    std::array<std::string, 7> moved;
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        if (!sounds[i].empty())
            moved[i] = std::string(themeFolder).append(FileNameOf(sounds[i]));
    }
    return moved;
}

std::optional<Wallpaper> ChooseWallpaper(std::span<const std::string> names) {
    std::optional<Wallpaper> chosen;
    for (const std::string& name : names) {
        if (!Text::StartsWithIgnoreCase(name, "wallpaper."))
            continue;
        bool bitmap = EndsWithIgnoreCase(name, ".bmp");
        if (!chosen || (bitmap && chosen->convert))
            chosen = Wallpaper{name, !bitmap};
    }
    return chosen;
}

std::optional<std::string> SecondWallpaper(std::span<const std::string> names) {
    std::optional<std::string> bmp;
    bool jpg = false;
    for (const std::string& name : names) {
        if (Text::EqualsIgnoreCase(name, "Wallpaper.bmp"))
            bmp = name;
        jpg = jpg || Text::EqualsIgnoreCase(name, "Wallpaper.jpg");
    }
    return jpg ? bmp : std::nullopt;
}

using namespace MessageBoxes;

Box SaveWithoutName() {
    return {"Sorry, you must provide a name for the theme being saved!", std::string(kTitle), kExclamation};
}

Box SaveOverwrite() {
    return {"Warning! Theme already exists. Overwrite?", std::string(kTitle), kYesNo + kQuestion + kDefaultButton2};
}

Box LoadWithoutName() {
    return {"Sorry, you must select the theme to be loaded first!", std::string(kTitle), kExclamation};
}

Box DeleteWithoutName() {
    return {"Sorry, you must select the theme you want to delete first!", std::string(kTitle), kExclamation};
}

Box DeleteQuestion(std::string_view name) {
    std::string text = "Warning!\nThis will Delete the ";
    text.append(name).append(" theme and all its files!\nAre you sure you want to continue?");
    return {text, "Tarvex - Delete Theme Confirmation Dialog", kOkCancel + kCritical + kDefaultButton2};
}

Box BadName(std::string_view name) {
    std::string text = "Sorry, a theme cannot be called \"";
    text.append(name).append("\": the name ").append(NameProblem(name)).append(".");
    return {text, std::string(kTitle), kExclamation};
}

Box ThemeFileMissing(std::string_view themeFile) {
    std::string text = "Sorry, the theme file ";
    text.append(themeFile).append(" cannot be found.");
    return {text, std::string(kTitle), kExclamation};
}

Box NotWritten(std::string_view name, std::string_view path) {
    std::string text = "The theme ";
    text.append(name).append(" could not be written to ").append(path).append(".");
    return {text, std::string(kTitle), kExclamation};
}

Box NotAllDeleted(std::string_view name) {
    std::string text = "Some files of the ";
    text.append(name).append(" theme could not be deleted: another program may be using them.");
    return {text, std::string(kTitle), kExclamation};
}

Box TwoWallpapers() {
    return {"Warning! There are two Wallpaper bitmaps in this theme's folder.\n"
            "Delete the BMP version (Wallpaper.bmp) before the theme is exported?",
            std::string(kTitle), kYesNo + kExclamation};
}

} // namespace ThemeFiles
