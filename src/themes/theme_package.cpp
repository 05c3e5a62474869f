#include "themes/theme_package.h"

#include "core/text.h"
#include "themes/font_rules.h"

#include <algorithm>

namespace ThemePackage {

namespace {

constexpr std::string_view kPackageTitle = "Tarvex - Theme Package";
constexpr std::string_view kGoOnOrLeave = "\n\nOK installs the theme; Cancel leaves it out.";
constexpr std::size_t kShownLines = 40;
constexpr std::size_t kShownCharacters = 2000;

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

// The parts of an entry's path; empty parts and "." stand for nothing and go.
std::vector<std::string> PartsOf(std::string_view name) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= name.size(); ++i) {
        if (i < name.size() && !IsSeparator(name[i]))
            continue;
        std::string_view part = name.substr(start, i - start);
        if (!part.empty() && part != ".")
            parts.emplace_back(part);
        start = i + 1;
    }
    return parts;
}

bool IsFolderEntry(const Entry& entry) {
    return !entry.name.empty() && IsSeparator(entry.name.back());
}

bool HasExtension(std::string_view name, std::string_view extension) {
    return name.size() > extension.size() &&
           Text::EqualsIgnoreCase(name.substr(name.size() - extension.size()), extension);
}

bool IsTextFile(std::string_view name) {
    return HasExtension(name, ".txt") || HasExtension(name, ".nfo") || HasExtension(name, ".diz");
}

std::string StemOf(std::string_view fileName) {
    std::string name = ThemeFiles::FileNameOf(fileName);
    if (HasExtension(name, ".zip"))
        name.resize(name.size() - 4);
    return name;
}

std::string Joined(std::span<const std::string> parts, std::string_view separator) {
    std::string out;
    for (const std::string& part : parts) {
        if (!out.empty())
            out.append(separator);
        out.append(part);
    }
    return out;
}

Plan Refusal(std::string reason) {
    Plan plan;
    plan.refusal = std::move(reason);
    return plan;
}

bool IsValidUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
        unsigned char lead = byte(i);
        std::size_t length = lead < 0x80             ? 1
                             : (lead & 0xE0) == 0xC0 ? 2
                             : (lead & 0xF0) == 0xE0 ? 3
                             : (lead & 0xF8) == 0xF0 ? 4
                                                     : 0;
        if (length == 0 || (length == 2 && lead < 0xC2))
            return false;
        if (i + length > bytes.size())
            return true; // a text read in part may end inside a character
        for (std::size_t k = 1; k < length; ++k)
            if ((byte(i + k) & 0xC0) != 0x80)
                return false;
        i += length;
    }
    return true;
}

} // namespace

bool IsLink(unsigned long versionMadeBy, unsigned long externalAttributes) {
    constexpr unsigned long kUnixHost = 3;
    constexpr unsigned long kFileTypeMask = 0170000;
    constexpr unsigned long kLinkType = 0120000;
    return (versionMadeBy >> 8) == kUnixHost && ((externalAttributes >> 16) & kFileTypeMask) == kLinkType;
}

std::string UnsafeReason(const Entry& entry) {
    std::string_view name = entry.name;
    if (entry.link)
        return "is a link";
    if (!name.empty() && IsSeparator(name.front()))
        return "has an absolute path";
    if (name.size() >= 2 && name[1] == ':')
        return "names a drive";
    for (const std::string& part : PartsOf(name)) {
        if (part == "..")
            return "climbs out of its folder with \"..\"";
        if (std::string problem = ThemeFiles::NameProblem(part); !problem.empty())
            return std::string("has a part whose name ").append(problem);
    }
    return {};
}

Plan PlanImport(std::string_view zipFileName, std::span<const Entry> entries) {
    if (entries.size() > kMaxEntries)
        return Refusal("it holds more than 5,000 entries");
    std::uint64_t total = 0;
    for (const Entry& entry : entries) {
        total += std::min(entry.size, kMaxUnpackedBytes + 1);
        if (total > kMaxUnpackedBytes)
            return Refusal("its files take more than 200 MB unpacked");
    }
    struct Found {
        std::size_t entry;
        std::vector<std::string> parts;
        bool folder;
    };
    std::vector<Found> found;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (std::string reason = UnsafeReason(entries[i]); !reason.empty())
            return Refusal(std::string("the entry \"").append(entries[i].name).append("\" ").append(reason));
        found.push_back({i, PartsOf(entries[i].name), IsFolderEntry(entries[i])});
    }
    std::erase_if(found, [](const Found& f) { return f.parts.empty(); });
    auto firstFile = std::find_if(found.begin(), found.end(), [](const Found& f) { return !f.folder; });
    if (firstFile == found.end())
        return Refusal("it holds no files");

    const std::string top = firstFile->parts.front();
    bool singleFolder = std::all_of(found.begin(), found.end(), [&](const Found& f) {
        return Text::EqualsIgnoreCase(f.parts.front(), top) && (f.folder || f.parts.size() >= 2);
    });
    Plan plan;
    plan.themeName = singleFolder ? top : StemOf(zipFileName);
    if (std::string problem = ThemeFiles::NameProblem(plan.themeName); !problem.empty())
        return Refusal(std::string("its theme name \"").append(plan.themeName).append("\" ").append(problem));

    std::vector<std::size_t> themeFilesAtTop;
    for (const Found& f : found) {
        if (f.folder)
            continue;
        std::span<const std::string> inside(f.parts.begin() + (singleFolder ? 1 : 0), f.parts.end());
        plan.files.push_back({f.entry, Joined(inside, "\\")});
        if (inside.size() == 1 && HasExtension(inside.front(), ".wst"))
            themeFilesAtTop.push_back(plan.files.size() - 1);
        if (inside.size() == 1 && FontRules::IsFontFile(inside.front()))
            plan.fonts.push_back(inside.front());
        if (IsTextFile(inside.back()))
            plan.texts.push_back(plan.files.size() - 1);
    }
    if (themeFilesAtTop.size() == 1)
        plan.files[themeFilesAtTop.front()].path = plan.themeName + ".wst";
    return plan;
}

std::string ShownText(std::string_view utf8) {
    if (utf8.starts_with("\xEF\xBB\xBF"))
        utf8.remove_prefix(3);
    std::string shown;
    std::size_t lines = 1;
    std::size_t characters = 0;
    std::size_t end = 0;
    for (; end < utf8.size(); ++end) {
        char c = utf8[end];
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80 && ++characters > kShownCharacters)
            break;
        if (c == '\n' && ++lines > kShownLines)
            break;
        if (c != '\r') // the message box makes every line break a CR LF of its own
            shown += c;
    }
    while (!shown.empty() && std::string_view(" \t\n").find(shown.back()) != std::string_view::npos)
        shown.pop_back();
    if (utf8.find_first_not_of(" \t\r\n", end) != std::string_view::npos)
        shown.append("\n...");
    return shown;
}

TextEncoding EncodingOf(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE"))
        return TextEncoding::Utf16Le;
    return IsValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Ansi;
}

std::string UnpackFolder(std::string_view themesFolder, std::string_view themeName) {
    return std::string(themesFolder).append("\\~").append(themeName).append(".unpacking");
}

std::string ReplacedFolder(std::string_view themesFolder, std::string_view themeName) {
    return std::string(themesFolder).append("\\~").append(themeName).append(".replaced");
}

std::string ExportEntryName(std::string_view themeName, std::string_view relativePath) {
    std::string name = std::string(themeName).append("/").append(relativePath);
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

std::string ExportFile(std::string_view exportFolder, std::string_view themeName) {
    return std::string(exportFolder).append("\\").append(themeName).append(".zip");
}

std::vector<std::string> PackagesToInstall(std::span<const std::string> fileNames) {
    std::vector<std::string> packages;
    for (const std::string& name : fileNames) {
        if (HasExtension(name, ".zip"))
            packages.push_back(name);
    }
    std::sort(packages.begin(), packages.end(),
              [](const std::string& a, const std::string& b) { return Text::ToUpper(a) < Text::ToUpper(b); });
    return packages;
}

std::string FreeName(std::string_view fileName, const std::function<bool(std::string_view)>& taken) {
    if (!taken(fileName))
        return std::string(fileName);
    std::size_t dot = fileName.rfind('.');
    std::string_view stem = fileName.substr(0, dot);
    std::string_view extension = dot == std::string_view::npos ? std::string_view() : fileName.substr(dot);
    for (int n = 2;; ++n) {
        std::string name = std::string(stem).append(" (").append(std::to_string(n)).append(")").append(extension);
        if (!taken(name))
            return name;
    }
}

using namespace MessageBoxes;

ThemeFiles::Box Refused(std::string_view zipFileName, std::string_view reason, std::string_view note) {
    std::string text = "The theme package ";
    text.append(zipFileName).append(" cannot be installed: ").append(reason).append(".");
    if (!note.empty())
        text.append("\n\n").append(note);
    return {text, std::string(kPackageTitle), kExclamation};
}

std::string BrokenReason() {
    return "it is not a zip file, or it is damaged";
}

std::string NotWrittenReason() {
    return "its files could not be written into the Themes folder";
}

std::string AutoInstallNote() {
    return std::string("It goes to the folder AutoInstall\\")
        .append(kNotInstalledFolder)
        .append(", so that it is not tried again.");
}

ThemeFiles::Box NotMovedAside(std::string_view zipFileName) {
    std::string text = "The theme package ";
    text.append(zipFileName)
        .append(" could not be moved out of the AutoInstall folder, so it will be installed again at the next start.");
    return {text, std::string(kPackageTitle), kExclamation};
}

ThemeFiles::Box ShowText(std::string_view fileName, std::string_view text) {
    return {std::string(text).append(kGoOnOrLeave), std::string("Tarvex - ").append(fileName),
            kOkCancel + kInformation};
}

ThemeFiles::Box FontsWarning(std::string_view themeName, std::span<const std::string> fonts) {
    std::string text = "Warning! The theme ";
    text.append(themeName)
        .append(" holds fonts:\n")
        .append(Joined(fonts, "\n"))
        .append("\nThey will be installed in your system when the theme is loaded with its fonts.")
        .append(kGoOnOrLeave);
    return {text, std::string(kPackageTitle), kOkCancel + kExclamation};
}

ThemeFiles::Box ReplaceTheme(std::string_view themeName, std::string_view zipFileName) {
    std::string text = "Warning! The theme ";
    text.append(themeName).append(" already exists.\nReplace it with the one in ").append(zipFileName).append("?");
    return {text, std::string(kPackageTitle), kYesNo + kQuestion + kDefaultButton2};
}

ThemeFiles::Box ExportWithoutName() {
    return {"Sorry, you must select the theme to be exported first!", std::string(ThemeFiles::kTitle), kExclamation};
}

ThemeFiles::Box ReplaceExport(std::string_view zipPath) {
    std::string text = "Warning! ";
    text.append(zipPath).append(" already exists. Overwrite?");
    return {text, std::string(kPackageTitle), kYesNo + kQuestion + kDefaultButton2};
}

ThemeFiles::Box ExportFailed(std::string_view themeName, std::string_view zipPath) {
    std::string text = "The theme ";
    text.append(themeName).append(" could not be exported to ").append(zipPath).append(".");
    return {text, std::string(kPackageTitle), kExclamation};
}

} // namespace ThemePackage
