#include "core/win/system_values.h"

#include "core/startup_rules.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>
#include <mmsystem.h>

#include <cwchar>
#include <vector>

namespace SystemValues {

namespace {

constexpr LONG kBoldWeight = 700;

int ScreenDotsPerInch(int axis) {
    Win::WindowDc screen(nullptr);
    return ::GetDeviceCaps(screen.get(), axis);
}

// A system folder through one of the GetXxxDirectoryW functions, which give the
// length they need when the buffer is too small.
std::string FolderFrom(UINT(WINAPI* get)(LPWSTR, UINT)) {
    std::vector<wchar_t> buffer(MAX_PATH);
    UINT n = get(buffer.data(), static_cast<UINT>(buffer.size()));
    if (n >= buffer.size()) {
        buffer.resize(n);
        n = get(buffer.data(), static_cast<UINT>(buffer.size()));
    }
    if (n == 0 || n >= buffer.size())
        return {};
    return Win::Narrow(std::wstring_view(buffer.data(), n));
}

} // namespace

CaptionFont ReadCaptionFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        return {};
    const LOGFONTW& font = metrics.lfCaptionFont;
    std::size_t nameLength = ::wcsnlen(font.lfFaceName, LF_FACESIZE);
    return {
        Win::Narrow(std::wstring_view(font.lfFaceName, nameLength)),
        font.lfWeight >= kBoldWeight,
        font.lfItalic != 0,
        StartupRules::FontPointSize(font.lfHeight, ScreenDotsPerInch(LOGPIXELSY)),
    };
}

std::string WindowsFolder() {
    return FolderFrom(::GetWindowsDirectoryW);
}

std::string SystemFolder() {
    return FolderFrom(::GetSystemDirectoryW);
}

bool IsNT() {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    return ::GetVersionExW(&version) && version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}

TwipsPerPixel ReadTwipsPerPixel() {
    return {StartupRules::TwipsPerPixel(ScreenDotsPerInch(LOGPIXELSX)),
            StartupRules::TwipsPerPixel(ScreenDotsPerInch(LOGPIXELSY))};
}

bool SoundAvailable() {
    return ::waveOutGetNumDevs() >= 1;
}

std::string ExecutableFolder() {
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        DWORD n = ::GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (n == 0)
            return {};
        if (n < buffer.size())
            return StartupRules::FolderOfFile(Win::Narrow(std::wstring_view(buffer.data(), n)));
        buffer.resize(buffer.size() * 2);
    }
}

std::string CurrentDirectory() {
    DWORD needed = ::GetCurrentDirectoryW(0, nullptr);
    std::vector<wchar_t> buffer(needed + 1);
    DWORD n = ::GetCurrentDirectoryW(static_cast<DWORD>(buffer.size()), buffer.data());
    if (n == 0 || n >= buffer.size())
        return {};
    return Win::Narrow(std::wstring_view(buffer.data(), n));
}

bool FileExists(std::string_view path) {
    DWORD attributes = ::GetFileAttributesW(Win::Widen(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool FolderExists(std::string_view path) {
    DWORD attributes = ::GetFileAttributesW(Win::Widen(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void CreateFolder(std::string_view path) {
    ::CreateDirectoryW(Win::Widen(path).c_str(), nullptr);
}

} // namespace SystemValues
