// Save theme, Load theme and Delete theme: the theme folders under Themes.
#include "themes/win/themes.h"

#include "core/message_box.h"
#include "core/paths.h"
#include "core/win/settings_store.h"
#include "core/win/system_values.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/look/program_relative.h"
#include "themes/font_rules.h"
#include "themes/theme_files.h"
#include "themes/win/desktop_wallpaper.h"
#include "themes/win/file_tree.h"
#include "themes/win/theme_fonts.h"

namespace Themes {

namespace {

int Show(const ThemeFiles::Box& box) {
    return MessageBoxes::MsgBox(box.text, box.title, box.style);
}

// An empty name gets the button's own refusal; a name that is no folder name of its own
// is refused too, so that nothing outside the themes folder is ever touched.
bool NameRefused(std::string_view name, const ThemeFiles::Box& withoutName) {
    if (name.empty()) {
        Show(withoutName);
        return true;
    }
    if (!ThemeFiles::NameProblem(name).empty()) {
        Show(ThemeFiles::BadName(name));
        return true;
    }
    return false;
}

void CopyPictures(const ProgramValues& values, SettingsRec& settings, const std::string& themeFolder) {
    std::string source = MenuWindow::PictureFolderPath(settings.BitmapsFolder, values.ProgramFolder);
    // A theme saved under its own name keeps its pictures where they are.
    if (!source.empty() && !ThemeFiles::SamePath(source, themeFolder)) {
        for (const std::string& name : ThemeFiles::PictureFiles())
            FileTree::CopyOver(Paths::Join(source, name), themeFolder + name); // a missing one is skipped
    }
    settings.BitmapsFolder = themeFolder;
}

void CopySounds(const ProgramValues& values, SettingsRec& settings, const std::string& themeFolder) {
    std::array<std::string, 7> copies = ThemeFiles::SoundsInFolder(settings.SoundFx, themeFolder);
    for (std::size_t i = 0; i < copies.size(); ++i) {
        if (copies[i].empty())
            continue;
        std::string source = MenuWindow::ResolveProgramRelative(settings.SoundFx[i], values.ProgramFolder);
        if (!ThemeFiles::SamePath(source, copies[i]))
            FileTree::CopyOver(source, copies[i]);
        // A sound that could not be copied keeps its path, so it still plays.
        if (SystemValues::FileExists(copies[i]))
            settings.SoundFx[i] = copies[i];
    }
}

void LoadWallpaper(const ProgramValues& values, const SettingsRec& settings, const std::string& themeFolder) {
    if (!settings.SysTileWallpaper.empty())
        DesktopWallpaper::SetTile(settings.SysTileWallpaper);
    std::optional<ThemeFiles::Wallpaper> wallpaper = ThemeFiles::ChooseWallpaper(FileTree::FileNames(themeFolder));
    if (!wallpaper)
        return;
    std::string bitmap = themeFolder + wallpaper->name;
    if (wallpaper->convert) {
        std::string converted = Paths::Join(values.WindowsFolder, ThemeFiles::kConvertedWallpaper);
        if (!DesktopWallpaper::ConvertToBitmap(bitmap, converted))
            return;
        bitmap = converted;
    }
    DesktopWallpaper::Set(bitmap);
}

} // namespace

Outcome SaveTheme(const ProgramValues& values, SettingsRec& settings, const SaveRequest& request) {
    if (NameRefused(request.name, ThemeFiles::SaveWithoutName()))
        return Outcome::Declined;
    std::string folder = ThemeFiles::ThemeFolder(values.ThemesFolder, request.name);
    std::string file = ThemeFiles::ThemeFile(folder, request.name);
    if (SystemValues::FileExists(file) && Show(ThemeFiles::SaveOverwrite()) != MessageBoxes::kYes)
        return Outcome::Declined;
    if (!FileTree::CreateFolders(folder)) {
        Show(ThemeFiles::NotWritten(request.name, folder));
        return Outcome::Failed;
    }
    CopyPictures(values, settings, folder);
    CopySounds(values, settings, folder);
    settings.SysTileWallpaper = DesktopWallpaper::CurrentTile();
    settings.GenThemeName = request.name;
    settings.GenThemeAuthor = request.author;
    if (!SettingsStore::Save(file, true, settings).saved) {
        Show(ThemeFiles::NotWritten(request.name, file));
        return Outcome::Failed;
    }
    if (request.wallpaper) {
        std::string wallpaper = DesktopWallpaper::Current();
        if (!wallpaper.empty())
            FileTree::CopyOver(wallpaper, folder + ThemeFiles::WallpaperCopyName(wallpaper));
    }
    if (request.fonts)
        ThemeFonts::SaveFonts(settings, folder, values.IsNT);
    return Outcome::Done;
}

Outcome LoadTheme(Program& program, const LoadRequest& request) {
    if (NameRefused(request.name, ThemeFiles::LoadWithoutName()))
        return Outcome::Declined;
    const ProgramValues& values = program.values;
    SettingsRec& settings = program.settings;
    std::string folder = ThemeFiles::ThemeFolder(values.ThemesFolder, request.name);
    std::string file = ThemeFiles::ThemeFile(folder, request.name);
    // Without its file every look key would fall back to its default: a look nobody chose.
    if (!SystemValues::FileExists(file)) {
        Show(ThemeFiles::ThemeFileMissing(file));
        return Outcome::Failed;
    }
    BusyScope busy(program.RebuildBusy);
    if (request.installFonts) {
        for (const std::string& name : FileTree::FileNames(folder)) {
            if (FontRules::IsFontFile(name))
                InstallFont(folder + name, values.IsNT);
        }
    }
    SettingsStore::Load(file, true, settings);
    settings.BitmapsFolder = folder;
    settings.SoundFx = ThemeFiles::SoundsInFolder(settings.SoundFx, folder);
    FontRules::CheckThemeFonts(settings, ThemeFontCheck);
    if (request.wallpaper)
        LoadWallpaper(values, settings, folder);
    program.openMenus.RepaintAll();
    return Outcome::Done;
}

Outcome DeleteTheme(const ProgramValues& values, std::string_view name) {
    if (NameRefused(name, ThemeFiles::DeleteWithoutName()))
        return Outcome::Declined;
    if (Show(ThemeFiles::DeleteQuestion(name)) != MessageBoxes::kOk)
        return Outcome::Declined;
    if (!FileTree::RemoveTree(ThemeFiles::FolderToDelete(values.ThemesFolder, name))) {
        Show(ThemeFiles::NotAllDeleted(name));
        return Outcome::Failed;
    }
    return Outcome::Done;
}

} // namespace Themes
