#include "prefs/win/about_page.h"

#include "win/form_window.h"

#include <commctrl.h>

namespace PrefsWin {

namespace {

constexpr const wchar_t* kAbout =
    L"A desktop launcher: menus of your programs, documents and folders that open from a click on the "
    L"desktop, a push into a corner or edge of the screen, or a hot key.\r\n\r\n"
    L"Built with:\r\n"
    L"\x2022  zlib and minizip (theme packages) \x2014 zlib licence\r\n"
    L"\x2022  the GNU C++ library and the GCC runtime \x2014 GPL with the GCC Runtime Library Exception\r\n"
    L"\x2022  mingw-w64 runtime and winpthreads \x2014 zlib, MIT and public-domain licences\r\n"
    L"\x2022  Windows: GDI+, common controls, common dialogs, the shell and the multimedia functions\r\n"
    L"\r\n"
    L"The help pages are in the Help\\Tv2 folder beside the program: press Help below.";

} // namespace

void MakeAboutPage(HWND panel, const DialogFont& font, const Program& program) {
    const int margin = font.X(8);
    const int icon = ::MulDiv(48, font.dpi(), 96);
    HWND picture =
        MakeChild(panel, WC_STATICW, L"", SS_ICON | SS_REALSIZEIMAGE, {margin, margin, margin + icon, margin + icon});
    ::SendMessageW(picture, STM_SETICON,
                   reinterpret_cast<WPARAM>(Win::LoadProgramIcon(program.instance, program.iconResource, icon)), 0);
    const int textLeft = margin * 2 + icon;
    const int width = font.X(Preferences::kPageWidth) - margin;
    HWND title = MakeChild(panel, WC_STATICW, L"Tarvex 2.0", SS_LEFT, {textLeft, margin, width, margin + font.Y(10)});
    ::SendMessageW(title, WM_SETFONT, reinterpret_cast<WPARAM>(font.bold()), FALSE);
    HWND version = MakeChild(panel, WC_STATICW, L"Version 2.0", SS_LEFT,
                        {textLeft, margin + font.Y(12), width, margin + font.Y(22)});
    HWND text = MakeChild(panel, WC_STATICW, kAbout, SS_LEFT,
                     {margin, margin * 2 + icon, width, margin * 2 + icon + font.Y(150)});
    for (HWND control : {version, text})
        ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
}

} // namespace PrefsWin
