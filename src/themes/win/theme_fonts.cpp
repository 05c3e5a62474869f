#include "themes/win/theme_fonts.h"

#include "core/message_box.h"
#include "core/win/registry_access.h"
#include "core/win/system_values.h"
#include "themes/font_rules.h"
#include "themes/win/file_tree.h"
#include "themes/win/themes.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>

#include <shlobj.h>

#include <vector>

namespace {

int CALLBACK CollectFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM faces) {
    reinterpret_cast<std::vector<std::string>*>(faces)->push_back(Win::Narrow(font->lfFaceName));
    return 1;
}

std::vector<std::string> InstalledFonts() {
    std::vector<std::string> faces;
    LOGFONTW any{};
    any.lfCharSet = DEFAULT_CHARSET;
    Win::WindowDc screen(nullptr);
    ::EnumFontFamiliesExW(screen.get(), &any, CollectFace, reinterpret_cast<LPARAM>(&faces), 0);
    return faces;
}

std::string FontResourceFile() {
    wchar_t temp[MAX_PATH + 1] = {};
    DWORD length = ::GetTempPathW(MAX_PATH + 1, temp);
    return Win::Narrow(std::wstring_view(temp, length)).append(FontRules::kFontResourceFile);
}

std::string ReadWhole(const std::wstring& path) {
    Win::UniqueFileHandle file(
        ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    std::string bytes;
    char buffer[4096];
    DWORD got = 0;
    while (file && ::ReadFile(file.get(), buffer, sizeof buffer, &got, nullptr) && got > 0)
        bytes.append(buffer, got);
    return bytes;
}

// A font resource file holds the face name in the system's ANSI code page.
std::string FromAnsi(std::string_view text) {
    int length = ::MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(std::max(length, 0)), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), length);
    return Win::Narrow(wide);
}

} // namespace

namespace ThemeFonts {

std::string FontsFolder() {
    wchar_t folder[MAX_PATH] = {};
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_FONTS, nullptr, SHGFP_TYPE_CURRENT, folder)))
        return {};
    std::string path = Win::Narrow(folder);
    if (!path.ends_with('\\'))
        path += '\\';
    return path;
}

void SaveFonts(const SettingsRec& settings, std::string_view themeFolder, bool isNT) {
    std::string fontsFolder = FontsFolder();
    for (const FontRules::FontToSave& font : FontRules::FontsToSave(settings)) {
        std::string file = RegistryAccess::AsString(RegistryAccess::QueryValue(
            HKEY_LOCAL_MACHINE, FontRules::FontsKey(isNT), FontRules::RegistryValueName(font.font)));
        if (file.empty()) {
            ThemeFiles::Box box = FontRules::NotInRegistry(font);
            MessageBoxes::MsgBox(box.text, box.title, box.style);
            continue;
        }
        FileTree::CopyOver(FontRules::FontFilePath(fontsFolder, file),
                           std::string(themeFolder).append(ThemeFiles::FileNameOf(file)));
    }
}

} // namespace ThemeFonts

namespace Themes {

std::string ThemeFontCheck(std::string_view fontName) {
    FontRules::FontCheck check = FontRules::CheckFont(fontName, InstalledFonts());
    if (check.missing) {
        ThemeFiles::Box box = FontRules::MissingFont(fontName);
        MessageBoxes::MsgBox(box.text, box.title, box.style);
    }
    return check.font;
}

std::string FaceNameOfFontFile(std::string_view ttfPath) {
    std::wstring resource = Win::Widen(FontResourceFile());
    ::DeleteFileW(resource.c_str()); // the resource is never made over an existing file
    if (!::CreateScalableFontResourceW(1, resource.c_str(), Win::Widen(ttfPath).c_str(), nullptr))
        return {};
    std::string face = FromAnsi(FontRules::FaceNameFromFontResource(ReadWhole(resource)));
    ::DeleteFileW(resource.c_str());
    return face;
}

void InstallFont(std::string_view ttfPath, bool isNT) {
    std::string fontsFolder = ThemeFonts::FontsFolder();
    std::string fileName = ThemeFiles::FileNameOf(ttfPath);
    std::string installed = fontsFolder + fileName;
    if (fontsFolder.empty() || SystemValues::FileExists(installed) || !FileTree::CopyOver(ttfPath, installed))
        return;
    std::string face = FaceNameOfFontFile(installed);
    if (!face.empty())
        RegistryAccess::SetValue(HKEY_LOCAL_MACHINE, FontRules::FontsKey(isNT), FontRules::RegistryValueName(face),
                                 fileName);
    ::AddFontResourceW(Win::Widen(installed).c_str());
    // A window that does not answer must not hold the program up.
    ::SendMessageTimeoutW(HWND_BROADCAST, WM_FONTCHANGE, 0, 0, SMTO_ABORTIFHUNG, 1000, nullptr);
}

} // namespace Themes
