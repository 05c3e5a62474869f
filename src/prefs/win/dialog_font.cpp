#include "prefs/win/dialog_font.h"

#include "win/text_convert.h"

namespace PrefsWin {

DialogFont::DialogFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW face = metrics.lfMessageFont;
    font_.reset(::CreateFontIndirectW(&face));
    face.lfWeight = FW_BOLD;
    bold_.reset(::CreateFontIndirectW(&face));

    Win::WindowDc screen(nullptr);
    dpi_ = ::GetDeviceCaps(screen.get(), LOGPIXELSY);
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

void SetFontOfChildren(HWND parent, HFONT font) {
    ::EnumChildWindows(parent, SetFontOfChild, reinterpret_cast<LPARAM>(font));
}

} // namespace PrefsWin
