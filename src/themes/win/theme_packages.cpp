// Theme packages: Export theme, Import package and the auto-install folder at start-up.
#include "themes/win/themes.h"

#include "core/message_box.h"
#include "core/paths.h"
#include "core/win/system_values.h"
#include "themes/theme_files.h"
#include "themes/theme_package.h"
#include "themes/win/file_tree.h"
#include "themes/win/zip_archive.h"
#include "win/text_convert.h"

#include <windows.h>

#include <cstring>

namespace Themes {

namespace {

// Enough of a text file for the first lines the box shows.
constexpr std::size_t kTextBytesRead = 16 * 1024;

int Show(const ThemeFiles::Box& box) {
    return MessageBoxes::MsgBox(box.text, box.title, box.style);
}

std::string FromCodePage(UINT codePage, std::string_view bytes) {
    int length = ::MultiByteToWideChar(codePage, 0, bytes.data(), static_cast<int>(bytes.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(std::max(length, 0)), L'\0');
    ::MultiByteToWideChar(codePage, 0, bytes.data(), static_cast<int>(bytes.size()), wide.data(), length);
    return Win::Narrow(wide);
}

std::string TextOf(std::string_view bytes) {
    switch (ThemePackage::EncodingOf(bytes)) {
    case ThemePackage::TextEncoding::Utf16Le: {
        std::wstring wide((bytes.size() - 2) / 2, L'\0');
        std::memcpy(wide.data(), bytes.data() + 2, wide.size() * 2);
        return Win::Narrow(wide);
    }
    case ThemePackage::TextEncoding::Utf8:
        return std::string(bytes);
    case ThemePackage::TextEncoding::Ansi:
        break;
    }
    return FromCodePage(CP_ACP, bytes);
}

std::string ParentOf(std::string_view path) {
    return std::string(path.substr(0, path.rfind('\\')));
}

ThemeZip::ZipReader::Result Unpack(ThemeZip::ZipReader& zip, const ThemePackage::Plan& plan, const std::string& work) {
    if (!FileTree::CreateFolders(work))
        return ThemeZip::ZipReader::Result::NotWritten;
    for (const ThemePackage::Plan::File& file : plan.files) {
        std::string path = Paths::Join(work, file.path);
        if (!FileTree::CreateFolders(ParentOf(path)))
            return ThemeZip::ZipReader::Result::NotWritten;
        ThemeZip::ZipReader::Result result = zip.Extract(file.entry, path);
        if (result != ThemeZip::ZipReader::Result::Ok)
            return result;
    }
    return ThemeZip::ZipReader::Result::Ok;
}

// The whole unpacked theme takes the target's name; a theme it replaces steps aside
// first and comes back when the rename fails.
bool MoveIntoPlace(const std::string& work, const std::string& target, const std::string& replaced) {
    if (!SystemValues::FolderExists(target))
        return FileTree::Rename(work, target);
    FileTree::RemoveTree(replaced);
    if (!FileTree::Rename(target, replaced))
        return false;
    if (!FileTree::Rename(work, target)) {
        FileTree::Rename(replaced, target);
        return false;
    }
    FileTree::RemoveTree(replaced);
    return true;
}

bool WriteZip(const std::string& zipPath, std::string_view name, const std::string& folder) {
    ThemeZip::ZipWriter zip(zipPath);
    if (!zip.created())
        return false;
    for (const std::string& file : FileTree::FilesBelow(folder)) {
        if (!zip.AddFile(ThemePackage::ExportEntryName(name, file), folder + file))
            return false;
    }
    return zip.Close();
}

} // namespace

Outcome ExportTheme(const ProgramValues& values, std::string_view name) {
    if (name.empty() || !ThemeFiles::NameProblem(name).empty()) {
        Show(name.empty() ? ThemePackage::ExportWithoutName() : ThemeFiles::BadName(name));
        return Outcome::Declined;
    }
    std::string folder = ThemeFiles::ThemeFolder(values.ThemesFolder, name);
    std::string zipPath = ThemePackage::ExportFile(values.ExportFolder, name);
    if (!SystemValues::FolderExists(folder)) {
        Show(ThemePackage::ExportFailed(name, zipPath));
        return Outcome::Failed;
    }
    std::optional<std::string> secondWallpaper = ThemeFiles::SecondWallpaper(FileTree::FileNames(folder));
    if (secondWallpaper && Show(ThemeFiles::TwoWallpapers()) == MessageBoxes::kYes)
        ::DeleteFileW(Win::Widen(folder + *secondWallpaper).c_str());
    if (SystemValues::FileExists(zipPath) && Show(ThemePackage::ReplaceExport(zipPath)) != MessageBoxes::kYes)
        return Outcome::Declined;
    // Written beside its place and moved there whole: an export that fails leaves the
    // earlier package as it was.
    std::string partial = zipPath + ".partial";
    if (!FileTree::CreateFolders(values.ExportFolder) || !WriteZip(partial, name, folder) ||
        !FileTree::MoveOver(partial, zipPath)) {
        ::DeleteFileW(Win::Widen(partial).c_str());
        Show(ThemePackage::ExportFailed(name, zipPath));
        return Outcome::Failed;
    }
    return Outcome::Done;
}

Imported ImportPackage(const ProgramValues& values, const SettingsRec& settings, std::string_view zipPath,
                       std::string_view refusalNote) {
    std::string zipName = ThemeFiles::FileNameOf(zipPath);
    auto refuse = [&](std::string_view reason, Outcome outcome, std::string themeName = {}) {
        Show(ThemePackage::Refused(zipName, reason, refusalNote));
        return Imported{outcome, std::move(themeName)};
    };
    ThemeZip::ZipReader zip(zipPath);
    std::optional<std::vector<ThemePackage::Entry>> entries;
    if (zip.opened())
        entries = zip.Entries(ThemePackage::kMaxEntries);
    if (!entries)
        return refuse(ThemePackage::BrokenReason(), Outcome::Failed);
    ThemePackage::Plan plan = ThemePackage::PlanImport(zipName, *entries);
    if (!plan.refusal.empty())
        return refuse(plan.refusal, Outcome::Declined);

    Imported declined{Outcome::Declined, plan.themeName};
    for (std::size_t text : plan.texts) {
        const ThemePackage::Plan::File& file = plan.files[text];
        std::optional<std::string> bytes = zip.Read(file.entry, kTextBytesRead);
        if (!bytes)
            return refuse(ThemePackage::BrokenReason(), Outcome::Failed, plan.themeName);
        std::string shown = ThemePackage::ShownText(TextOf(*bytes));
        if (Show(ThemePackage::ShowText(ThemeFiles::FileNameOf(file.path), shown)) != MessageBoxes::kOk)
            return declined;
    }
    if (!plan.fonts.empty() && Show(ThemePackage::FontsWarning(plan.themeName, plan.fonts)) != MessageBoxes::kOk)
        return declined;
    std::string target = Paths::Join(values.ThemesFolder, plan.themeName);
    if (SystemValues::FolderExists(target) && !settings.GenUnzipAlwaysOverwrite &&
        Show(ThemePackage::ReplaceTheme(plan.themeName, zipName)) != MessageBoxes::kYes)
        return declined;

    std::string work = ThemePackage::UnpackFolder(values.ThemesFolder, plan.themeName);
    FileTree::RemoveTree(work); // what an import cut short left
    ThemeZip::ZipReader::Result unpacked = Unpack(zip, plan, work);
    if (unpacked != ThemeZip::ZipReader::Result::Ok ||
        !MoveIntoPlace(work, target, ThemePackage::ReplacedFolder(values.ThemesFolder, plan.themeName))) {
        FileTree::RemoveTree(work);
        bool broken = unpacked == ThemeZip::ZipReader::Result::Broken;
        return refuse(broken ? ThemePackage::BrokenReason() : ThemePackage::NotWrittenReason(), Outcome::Failed,
                      plan.themeName);
    }
    return {Outcome::Done, plan.themeName};
}

void InstallWaitingPackages(const ProgramValues& values, const SettingsRec& settings) {
    const std::string& folder = values.AutoInstallFolder;
    for (const std::string& name : ThemePackage::PackagesToInstall(FileTree::FileNames(folder))) {
        std::string path = Paths::Join(folder, name);
        Imported imported = ImportPackage(values, settings, path, ThemePackage::AutoInstallNote());
        // Moved, not deleted: the package may be the user's only copy.
        std::string aside = Paths::Join(folder, imported.outcome == Outcome::Done ? ThemePackage::kInstalledFolder
                                                                                  : ThemePackage::kNotInstalledFolder);
        std::string asideName = ThemePackage::FreeName(name, [&](std::string_view candidate) {
            return ::GetFileAttributesW(Win::Widen(Paths::Join(aside, candidate)).c_str()) != INVALID_FILE_ATTRIBUTES;
        });
        if (!FileTree::CreateFolders(aside) || !FileTree::Rename(path, Paths::Join(aside, asideName)))
            Show(ThemePackage::NotMovedAside(name));
    }
}

} // namespace Themes
