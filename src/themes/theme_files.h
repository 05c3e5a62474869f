// What a theme folder holds and where things go when a theme is saved, loaded, deleted
// or exported: the fixed picture names, the folder and file rules, the wallpaper and
// sound names, and the texts and styles of the questions and refusals. Paths are
// UTF-8 with backslashes; the shell does the copying.
#pragma once

#include "core/message_box.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ThemeFiles {

// The bitmaps and icons a theme may hold, by their fixed names: Save theme copies
// each one the bitmaps folder holds into the theme's folder.
std::span<const std::string> PictureFiles();

// Why a name cannot be one folder or file name of its own on Windows ("is empty",
// "holds the character \":\"" ...); empty when it can. Theme names must pass, so that
// "..", "a\b" or "C:" never lead Delete theme out of the themes folder; so must every
// part of a package entry's path.
std::string NameProblem(std::string_view name);

// themesFolder + "\" + name + "\".
std::string ThemeFolder(std::string_view themesFolder, std::string_view name);
// The theme file in a theme folder that ends with a backslash: folder + name + ".wst".
std::string ThemeFile(std::string_view themeFolder, std::string_view name);
// The folder Delete theme removes: a backslash goes before the name unless the folder,
// lower-cased, ends in "\themes\" already (and never a second one).
std::string FolderToDelete(std::string_view themesFolder, std::string_view name);

// Two paths of one file or folder: compared upper-cased, a trailing backslash ignored.
bool SamePath(std::string_view a, std::string_view b);

// The text after the last backslash (or slash).
std::string FileNameOf(std::string_view path);

// The wallpaper's copy in the theme folder: "Wallpaper" + the last four characters of
// its file name ("Wallpaper.bmp", "Wallpaper.jpg").
std::string WallpaperCopyName(std::string_view wallpaperPath);

// Each non-empty sound path names the file of the same name in the theme folder
// (which ends with a backslash); an empty one stays empty.
std::array<std::string, 7> SoundsInFolder(const std::array<std::string, 7>& sounds, std::string_view themeFolder);

// The wallpaper of a theme folder among its file names ("wallpaper.*", any case): the
// bitmap when there are several, since it needs no conversion. Anything but a bitmap
// is converted to one before it becomes the desktop's.
struct Wallpaper {
    std::string name;
    bool convert = false;
};
std::optional<Wallpaper> ChooseWallpaper(std::span<const std::string> names);
// The file the converted wallpaper is written to, in the Windows folder.
inline constexpr std::string_view kConvertedWallpaper = "Tarvex.bmp";

// When a folder holds both "Wallpaper.jpg" and "Wallpaper.bmp": the BMP one's name as
// listed, which the export offers to delete.
std::optional<std::string> SecondWallpaper(std::span<const std::string> names);

// Refusals and questions: text, title and style.
struct Box {
    std::string text;
    std::string title;
    int style = 0;
};

inline constexpr std::string_view kTitle = "Tarvex";

Box SaveWithoutName();
Box SaveOverwrite(); // Yes overwrites
Box LoadWithoutName();
Box DeleteWithoutName();
Box DeleteQuestion(std::string_view name); // OK deletes
Box BadName(std::string_view name);
Box ThemeFileMissing(std::string_view themeFile);
Box NotWritten(std::string_view name, std::string_view path);
Box NotAllDeleted(std::string_view name);
Box TwoWallpapers(); // Yes deletes the BMP one

} // namespace ThemeFiles
