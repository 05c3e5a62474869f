#include "desktop/win/hotspot_windows.h"

#include "win/text_convert.h"

namespace HotspotWindows {

namespace {

constexpr int kTitleLength = 255;

} // namespace

std::string TitleOf(HWND window) {
    wchar_t title[kTitleLength + 1]{};
    int length = ::GetWindowTextW(window, title, kTitleLength + 1);
    return Win::Narrow(std::wstring_view(title, static_cast<std::size_t>(length > 0 ? length : 0)));
}

bool IsOurs(HWND window) {
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    return processId == ::GetCurrentProcessId();
}

} // namespace HotspotWindows
