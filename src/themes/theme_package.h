// Theme packages: a theme folder packed into a zip file, and such a zip unpacked as a
// theme. These are the package's rules: which entries are refused, the limits, which
// theme a package holds and where each entry lands, which files are fonts or texts,
// the export's entry names, the packages waiting in the auto-install folder, and the
// messages. The shell reads and writes the zip (minizip) and does what the plan says.
#pragma once

#include "themes/theme_files.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ThemePackage {

// More entries or more unpacked bytes than this and a package is refused whole.
inline constexpr std::uint64_t kMaxEntries = 5000;
inline constexpr std::uint64_t kMaxUnpackedBytes = 200ull * 1024 * 1024;

// One entry of a zip's central directory.
struct Entry {
    std::string name;       // UTF-8, "/" or "\" between its parts; a folder's ends with one
    std::uint64_t size = 0; // unpacked bytes, as the directory declares them
    bool link = false;      // a symbolic link
};

// A link is marked so only by Unix zip tools: "made by" host 3 and the file type link
// in the high half of the external attributes.
bool IsLink(unsigned long versionMadeBy, unsigned long externalAttributes);

// Why an entry may not be unpacked (its path is absolute, names a drive, climbs with
// "..", has a part Windows cannot hold, or it is a link); empty when it may.
std::string UnsafeReason(const Entry& entry);

// What an import does with a package.
struct Plan {
    std::string refusal;   // non-empty: the package is refused whole, and this says why
    std::string themeName; // the single top folder, or the zip's name when files stand at the top
    struct File {
        std::size_t entry; // index into the entries
        std::string path;  // inside the theme folder, backslashes between its parts
    };
    std::vector<File> files;        // folder entries are left out: folders come with their files
    std::vector<std::string> fonts; // paths of the fonts, which Load theme installs
    std::vector<std::size_t> texts; // indexes into files: shown to the user before anything is used
};

// The plan for a zip file (its name, for a theme named after it) with these entries.
// A package with an unsafe entry, too many entries or bytes, or no file is refused.
// The one theme file at the top of the theme folder takes the theme's name, so that
// Load theme finds it whatever the package called it.
Plan PlanImport(std::string_view zipFileName, std::span<const Entry> entries);

// The text a text file's box shows: at most 40 lines and 2,000 characters of it.
std::string ShownText(std::string_view utf8);

// How a text file's bytes are encoded: a UTF-16 byte-order mark, valid UTF-8 (with or
// without its mark), or else the system's ANSI code page.
enum class TextEncoding { Utf8, Utf16Le, Ansi };
TextEncoding EncodingOf(std::string_view bytes);

// An import unpacks into a work folder beside the theme's and renames it into place
// once whole, so a failed import leaves no half theme; a theme it replaces steps aside
// under another name until then. Inside the themes folder, because a rename cannot leave
// its volume; the "~" and the dotted ending keep them apart from any theme's name.
std::string UnpackFolder(std::string_view themesFolder, std::string_view themeName);
std::string ReplacedFolder(std::string_view themesFolder, std::string_view themeName);

// Export: every file of the theme folder under a top folder named after the theme.
std::string ExportEntryName(std::string_view themeName, std::string_view relativePath);
std::string ExportFile(std::string_view exportFolder, std::string_view themeName);

// The zip files among a folder's file names, in the order they are installed.
std::vector<std::string> PackagesToInstall(std::span<const std::string> fileNames);
// The sub-folders of the auto-install folder a package leaves to once it was tried.
inline constexpr std::string_view kInstalledFolder = "Installed";
inline constexpr std::string_view kNotInstalledFolder = "Not installed";
// A name for the package in the folder it moves to, which may hold one of that name:
// "Name.zip", else "Name (2).zip", "Name (3).zip" ...
std::string FreeName(std::string_view fileName, const std::function<bool(std::string_view)>& taken);

// The messages. A refusal says why; note, when given, follows on a line of its own.
ThemeFiles::Box Refused(std::string_view zipFileName, std::string_view reason, std::string_view note = {});
std::string BrokenReason();
std::string NotWrittenReason();
// Start-up's note under a refusal, and its message when a package cannot leave the folder.
std::string AutoInstallNote();
ThemeFiles::Box NotMovedAside(std::string_view zipFileName);
ThemeFiles::Box ShowText(std::string_view fileName, std::string_view text);                   // OK goes on
ThemeFiles::Box FontsWarning(std::string_view themeName, std::span<const std::string> fonts); // OK goes on
ThemeFiles::Box ReplaceTheme(std::string_view themeName, std::string_view zipFileName);       // Yes replaces
ThemeFiles::Box ExportWithoutName();
ThemeFiles::Box ReplaceExport(std::string_view zipPath); // Yes replaces
ThemeFiles::Box ExportFailed(std::string_view themeName, std::string_view zipPath);

} // namespace ThemePackage
