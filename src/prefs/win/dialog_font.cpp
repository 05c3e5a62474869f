#include "prefs/win/dialog_font.h"

#include "win/text_convert.h"

#include <commctrl.h>

#include <string_view>

namespace PrefsWin {

namespace {

int SystemDpi() {
    Win::WindowDc screen(nullptr);
    return ::GetDeviceCaps(screen.get(), LOGPIXELSY);
}

} // namespace

DialogFont::DialogFont() : DialogFont(SystemDpi()) {}

DialogFont::DialogFont(int dpi) : dpi_(dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW face = metrics.lfMessageFont;
    face.lfHeight = ::MulDiv(face.lfHeight, dpi, SystemDpi());
    font_.reset(::CreateFontIndirectW(&face));
    face.lfWeight = FW_BOLD;
    bold_.reset(::CreateFontIndirectW(&face));

    Win::WindowDc screen(nullptr);
    Win::SelectGuard select(screen.get(), font_.get());
    TEXTMETRICW text{};
    ::GetTextMetricsW(screen.get(), &text);
    // The average width of the alphabet, as dialog boxes measure their base unit.
    static constexpr wchar_t kAlphabet[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE size{};
    ::GetTextExtentPoint32W(screen.get(), kAlphabet, 52, &size);
    if (size.cx > 0 && text.tmHeight > 0) {
        baseX_ = (size.cx / 26 + 1) / 2;
        baseY_ = text.tmHeight;
    }
}

RECT DialogFont::Pixels(const Preferences::DluRect& rect) const {
    return {X(rect.x), Y(rect.y), X(rect.Right()), Y(rect.Bottom())};
}

HWND MakeChild(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style, const RECT& rect, int id) {
    return ::CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                             rect.right - rect.left, rect.bottom - rect.top, parent,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleW(nullptr), nullptr);
}

std::string ControlText(HWND control) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return Win::Narrow(text);
}

namespace {

BOOL CALLBACK SetFontOfChild(HWND child, LPARAM font) {
    ::SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
    return TRUE;
}

} // namespace

namespace {

struct Scaling {
    int from;
    int to;
};

bool IsClass(HWND window, std::wstring_view name) {
    wchar_t found[32]{};
    ::GetClassNameW(window, found, 32);
    return name == found;
}

BOOL CALLBACK ScaleChild(HWND child, LPARAM scalingPointer) {
    const Scaling& scaling = *reinterpret_cast<const Scaling*>(scalingPointer);
    HWND parent = ::GetParent(child);
    // A combo box places its own parts, and a menu shown as a sample lays itself out.
    if (IsClass(parent, WC_COMBOBOXW) || IsClass(child, L"Tarvex2Menu"))
        return TRUE;
    RECT rect{};
    ::GetWindowRect(child, &rect);
    if (IsClass(child, WC_COMBOBOXW))
        ::SendMessageW(child, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    auto scale = [&](LONG value) { return ::MulDiv(value, scaling.to, scaling.from); };
    ::SetWindowPos(child, nullptr, scale(rect.left), scale(rect.top), scale(rect.right - rect.left),
                   scale(rect.bottom - rect.top), SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

} // namespace

void ScaleChildren(HWND parent, int fromDpi, int toDpi) {
    if (fromDpi <= 0 || toDpi <= 0)
        return;
    Scaling scaling{fromDpi, toDpi};
    ::EnumChildWindows(parent, ScaleChild, reinterpret_cast<LPARAM>(&scaling));
}

void SetFontOfChildren(HWND parent, HFONT font) {
    ::EnumChildWindows(parent, SetFontOfChild, reinterpret_cast<LPARAM>(font));
}

} // namespace PrefsWin
