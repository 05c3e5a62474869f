#include "core/win/message_box_win.h"

#include "core/message_box.h"
#include "win/text_convert.h"

#include <windows.h>

namespace MessageBoxes {

namespace {
// Boxes of a hidden program must come to the front, or the user never sees them.
constexpr UINT kAlwaysInFront = MB_SETFOREGROUND | MB_TOPMOST;

std::wstring WithWindowsLineBreaks(std::string_view text) {
    std::wstring wide = Win::Widen(text);
    std::wstring out;
    out.reserve(wide.size());
    for (wchar_t c : wide) {
        if (c == L'\n')
            out += L'\r';
        out += c;
    }
    return out;
}
} // namespace

void InstallWindowsHandler() {
    SetHandler([](const Request& r) {
        std::wstring text = WithWindowsLineBreaks(r.text);
        std::wstring title = Win::Widen(r.title);
        return ::MessageBoxW(nullptr, text.c_str(), title.c_str(), static_cast<UINT>(r.style) | kAlwaysInFront);
    });
}

} // namespace MessageBoxes
