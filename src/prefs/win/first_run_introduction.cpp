#include "prefs/win/first_run_introduction.h"

#include "win/form_window.h"
#include "win/handles.h"
#include "win/modal_loop.h"
#include "win/text_convert.h"

#include <string>
#include <vector>

namespace FirstRunIntroduction {

namespace {

// Measures in pixels at 96 dots per inch; Scale turns them into screen pixels.
constexpr int kClientWidth = 500;
constexpr int kMargin = 24;
constexpr int kIconSize = 48;
constexpr int kIconGap = 16;
constexpr int kParagraphGap = 12;
constexpr int kBulletSpacing = 4;
constexpr int kBulletIndent = 6;
constexpr int kBulletGap = 4;
constexpr int kButtonWidth = 96;
constexpr int kButtonHeight = 28;
constexpr int kFooterPadding = 12;

constexpr COLORREF kHeadingColor = RGB(0, 51, 153);

enum class Style { Heading, Paragraph, Bullet };

struct Block {
    Style style;
    const char* text;
};

constexpr Block kContent[] = {
    {Style::Heading, "Welcome to Tarvex 2.0"},
    {Style::Paragraph, "Tarvex is a desktop launcher. It runs quietly in the background, with its icon in the "
                       "notification area, and opens menus of your programs, documents and folders right where "
                       "you want them."},
    {Style::Paragraph, "To open a menu:"},
    {Style::Bullet, "Click an empty spot of the desktop."},
    {Style::Bullet, "Push the mouse into a corner or against an edge of the screen."},
    {Style::Bullet, "Press the hot key of a hotspot."},
    {Style::Paragraph, "Which of these opens which menu is yours to choose on the Hotspots page of the "
                       "preferences, which open next."},
    {Style::Paragraph, "Right-click the Tarvex icon in the notification area at any time to open the preferences "
                       "or to exit."},
};

struct PlacedBlock {
    Style style;
    std::wstring text;
    RECT rect;
    int bulletLeft; // where a bullet's dot goes
};

int GapBefore(Style style) {
    switch (style) {
    case Style::Paragraph:
        return kParagraphGap;
    case Style::Bullet:
        return kBulletSpacing;
    case Style::Heading:
        break;
    }
    return 0;
}

constexpr const wchar_t* kBulletDot = L"\u2022";

// Halfway between two colours: a rule that shows on a face without standing out.
COLORREF Midway(COLORREF a, COLORREF b) {
    return RGB((GetRValue(a) + GetRValue(b)) / 2, (GetGValue(a) + GetGValue(b)) / 2, (GetBValue(a) + GetBValue(b)) / 2);
}

class IntroductionWindow {
public:
    IntroductionWindow(HINSTANCE instance, HWND owner, int iconResource)
        : instance_(instance), owner_(owner), iconResource_(iconResource) {}
    IntroductionWindow(const IntroductionWindow&) = delete;
    IntroductionWindow& operator=(const IntroductionWindow&) = delete;
    // A quit request can end the modal loop while the window is up; it goes with us.
    ~IntroductionWindow() { Close(); }

    void Show() {
        if (!Register())
            return;
        HWND hwnd = ::CreateWindowExW(WS_EX_DLGMODALFRAME | WS_EX_APPWINDOW, kClassName, L"Welcome to Tarvex 2.0",
                                      WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, owner_, nullptr, instance_, this);
        if (!hwnd)
            return;
        ownerDisabled_ = true;
        ::EnableWindow(owner_, FALSE);
        ::ShowWindow(hwnd, SW_SHOW);
        ::SetForegroundWindow(hwnd);
        ::SetFocus(okButton_);
        Win::RunModalLoop(hwnd);
    }

private:
    bool Register() {
        WNDCLASSEXW wc = Win::FormClass<IntroductionWindow>(instance_, kClassName);
        wc.hIcon = ProgramIcon(SM_CXICON);
        wc.hIconSm = ProgramIcon(SM_CXSMICON);
        wc.hbrBackground = ::GetSysColorBrush(COLOR_WINDOW);
        return Win::RegisterFormClass(wc);
    }

    HICON ProgramIcon(int metric) const { return ProgramIconAt(::GetSystemMetrics(metric)); }
    HICON ProgramIconAt(int size) const { return Win::LoadProgramIcon(instance_, iconResource_, size); }

    friend LRESULT CALLBACK Win::FormWindowProc<IntroductionWindow>(HWND, UINT, WPARAM, LPARAM);

    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
        case WM_CREATE:
            Build();
            return 0;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)
                Close();
            return 0;
        case WM_CLOSE:
            Close();
            return 0;
        default:
            return ::DefWindowProcW(hwnd, message, wParam, lParam);
        }
    }

    int Scale(int pixels96) const { return ::MulDiv(pixels96, dpi_, 96); }

    void Build() {
        {
            Win::WindowDc screen(nullptr);
            dpi_ = ::GetDeviceCaps(screen.get(), LOGPIXELSY);
        }
        CreateFonts();
        icon_ = ProgramIconAt(Scale(kIconSize));
        footerTop_ = LayOutText();
        int clientHeight = footerTop_ + Scale(kButtonHeight) + 2 * Scale(kFooterPadding);
        CreateOkButton(clientHeight);
        PlaceOnScreen(clientHeight);
    }

    void CreateFonts() {
        NONCLIENTMETRICSW metrics{};
        metrics.cbSize = sizeof metrics;
        ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        LOGFONTW body = metrics.lfMessageFont;
        bodyFont_.reset(::CreateFontIndirectW(&body));
        LOGFONTW heading = body;
        heading.lfHeight = body.lfHeight * 3 / 2;
        heading.lfWeight = FW_SEMIBOLD;
        headingFont_.reset(::CreateFontIndirectW(&heading));
    }

    // Places every block below the one before, word-wrapped to the text column, and
    // returns where the footer starts.
    int LayOutText() {
        Win::WindowDc dc(window_.get());
        int textLeft = Scale(kMargin + kIconSize + kIconGap);
        int textRight = Scale(kClientWidth - kMargin);
        int bulletLeft = textLeft + Scale(kBulletIndent);
        int bulletTextLeft = bulletLeft + MeasureWidth(dc.get(), kBulletDot) + Scale(kBulletGap);
        int y = Scale(kMargin);
        for (const Block& block : kContent) {
            y += Scale(GapBefore(block.style));
            int left = block.style == Style::Bullet ? bulletTextLeft : textLeft;
            std::wstring text = Win::Widen(block.text);
            RECT rect{left, y, textRight, y};
            Win::SelectGuard font(dc.get(), FontOf(block.style));
            ::DrawTextW(dc.get(), text.c_str(), -1, &rect, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
            rect.right = textRight;
            placed_.push_back({block.style, std::move(text), rect, bulletLeft});
            y = rect.bottom;
        }
        return y + Scale(kMargin);
    }

    int MeasureWidth(HDC dc, const wchar_t* text) {
        Win::SelectGuard font(dc, bodyFont_.get());
        SIZE size{};
        ::GetTextExtentPoint32W(dc, text, static_cast<int>(::wcslen(text)), &size);
        return size.cx;
    }

    HFONT FontOf(Style style) const { return style == Style::Heading ? headingFont_.get() : bodyFont_.get(); }

    void CreateOkButton(int clientHeight) {
        int width = Scale(kButtonWidth);
        int height = Scale(kButtonHeight);
        int x = Scale(kClientWidth) - Scale(kFooterPadding) - width;
        int y = clientHeight - Scale(kFooterPadding) - height;
        okButton_ = ::CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, x, y,
                                      width, height, window_.get(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDOK)),
                                      instance_, nullptr);
        ::SendMessageW(okButton_, WM_SETFONT, reinterpret_cast<WPARAM>(bodyFont_.get()), TRUE);
    }

    // Centred on the work area of the primary screen.
    void PlaceOnScreen(int clientHeight) {
        RECT frame{0, 0, Scale(kClientWidth), clientHeight};
        HWND hwnd = window_.get();
        ::AdjustWindowRectEx(&frame, static_cast<DWORD>(::GetWindowLongPtrW(hwnd, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(::GetWindowLongPtrW(hwnd, GWL_EXSTYLE)));
        RECT work{};
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        int width = frame.right - frame.left;
        int height = frame.bottom - frame.top;
        int x = work.left + (work.right - work.left - width) / 2;
        int y = work.top + (work.bottom - work.top - height) / 2;
        ::SetWindowPos(hwnd, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void Paint() {
        Win::PaintDc dc(window_.get());
        RECT client{};
        ::GetClientRect(window_.get(), &client);
        RECT footer{client.left, footerTop_, client.right, client.bottom};
        ::FillRect(dc.get(), &footer, ::GetSysColorBrush(COLOR_BTNFACE));
        RECT rule{client.left, footerTop_, client.right, footerTop_ + 1};
        Win::UniqueBrush ruleBrush(
            ::CreateSolidBrush(Midway(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNSHADOW))));
        ::FillRect(dc.get(), &rule, ruleBrush.get());
        if (icon_)
            ::DrawIconEx(dc.get(), Scale(kMargin), Scale(kMargin), icon_, Scale(kIconSize), Scale(kIconSize), 0,
                         nullptr, DI_NORMAL);
        ::SetBkMode(dc.get(), TRANSPARENT);
        for (const PlacedBlock& block : placed_)
            PaintBlock(dc.get(), block);
    }

    void PaintBlock(HDC dc, const PlacedBlock& block) {
        Win::SelectGuard font(dc, FontOf(block.style));
        ::SetTextColor(dc, block.style == Style::Heading ? kHeadingColor : ::GetSysColor(COLOR_WINDOWTEXT));
        RECT rect = block.rect;
        if (block.style == Style::Bullet) {
            RECT bullet{block.bulletLeft, rect.top, rect.left, rect.bottom};
            ::DrawTextW(dc, kBulletDot, -1, &bullet, DT_NOPREFIX);
        }
        ::DrawTextW(dc, block.text.c_str(), -1, &rect, DT_WORDBREAK | DT_NOPREFIX);
    }

    // The owner is enabled again first, so that it, and not some other program, is
    // the window that Windows activates next.
    void Close() {
        if (ownerDisabled_) {
            ::EnableWindow(owner_, TRUE);
            ownerDisabled_ = false;
        }
        window_.reset();
    }

    HINSTANCE instance_;
    HWND owner_;
    int iconResource_;
    Win::UniqueWindow window_;
    bool ownerDisabled_ = false;
    HWND okButton_ = nullptr; // a child: it goes with the window
    HICON icon_ = nullptr;    // shared: never destroyed by hand
    int dpi_ = 96;
    int footerTop_ = 0;
    Win::UniqueFont bodyFont_;
    Win::UniqueFont headingFont_;
    std::vector<PlacedBlock> placed_;
};

} // namespace

void ShowModal(HINSTANCE instance, HWND owner, int iconResource) {
    IntroductionWindow window(instance, owner, iconResource);
    window.Show();
}

} // namespace FirstRunIntroduction
