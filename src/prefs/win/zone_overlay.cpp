#include "prefs/win/zone_overlay.h"

#include "desktop/win/hotspot_windows.h"
#include "prefs/hotspot_fields.h"
#include "win/text_convert.h"

#include <algorithm>

namespace PrefsWin {

namespace {

constexpr UINT_PTR kLifeTimer = 1;
constexpr UINT kLookInterval = 50; // ms between looks at the keys and buttons
// The pixels of this colour are not there at all; the rest shows at this opacity where
// the system blends layered windows.
constexpr COLORREF kClear = RGB(255, 0, 255);
constexpr BYTE kOpacity = 176;
constexpr int kBorder = 3;
// A zone is filled with lines across, every kStripeEvery rows, the same rows on the whole
// screen: what is under it shows between them even where layered windows are not blended,
// and the shape of the window stays a few rectangles per line (a finer pattern makes one
// that Wine cannot hand to the X server).
constexpr int kStripeEvery = 8;
constexpr int kStripeHeight = 2;
constexpr int kLabelPadX = 6;
constexpr int kLabelPadY = 3;

RECT AsRect(const MenuWindow::Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

struct TitleSearch {
    std::string title;
    std::optional<MenuWindow::Rect> found;
};

BOOL CALLBACK FindTitled(HWND window, LPARAM search) {
    auto* wanted = reinterpret_cast<TitleSearch*>(search);
    if (!::IsWindowVisible(window) || ::IsIconic(window) || HotspotWindows::TitleOf(window) != wanted->title)
        return TRUE;
    RECT rect{};
    ::GetWindowRect(window, &rect);
    wanted->found = MenuWindow::Rect{rect.left, rect.top, rect.right, rect.bottom};
    return FALSE;
}

// The topmost shown window with the title, as a click would meet it first.
std::optional<MenuWindow::Rect> WindowRectOf(std::string_view title) {
    TitleSearch search{std::string(title), std::nullopt};
    ::EnumWindows(FindTitled, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool AnyInputDown() {
    for (int key = VK_LBUTTON; key <= 0xFE; ++key)
        if (::GetAsyncKeyState(key) & 0x8000)
            return true;
    return false;
}

} // namespace

void ZoneOverlay::Show(HWND owner, const std::vector<HotspotRec>& hotSpots) {
    window_.reset();
    shown_.clear();
    const MenuWindow::Size screen{::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    metrics.lfMessageFont.lfWeight = FW_BOLD;
    metrics.lfMessageFont.lfQuality = NONANTIALIASED_QUALITY; // smoothed edges would be keyed out unevenly
    font_.reset(::CreateFontIndirectW(&metrics.lfMessageFont));

    std::vector<Hotspots::Zone> zones = Hotspots::HotspotZones(hotSpots, screen, WindowRectOf);
    std::vector<MenuWindow::Size> sizes;
    {
        Win::WindowDc screenDc(nullptr);
        Win::SelectGuard useFont(screenDc.get(), font_.get());
        for (const Hotspots::Zone& zone : zones) {
            std::wstring label = Win::Widen(Preferences::ZoneLabel(zone));
            SIZE text{};
            ::GetTextExtentPoint32W(screenDc.get(), label.c_str(), static_cast<int>(label.size()), &text);
            sizes.push_back({text.cx + 2 * kLabelPadX, text.cy + 2 * kLabelPadY});
            shown_.push_back({zone, std::move(label), {}});
        }
    }
    std::vector<MenuWindow::Rect> labels = Hotspots::PlaceZoneLabels(zones, sizes, screen);
    for (std::size_t i = 0; i < shown_.size(); ++i)
        shown_[i].labelRect = AsRect(labels[i]);

    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    if (!Win::RegisterFormClass(Win::FormClass<ZoneOverlay>(instance, kClassName)))
        return;
    const DWORD exStyle = WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
    // Owned, so that no taskbar lists it.
    if (!::CreateWindowExW(exStyle, kClassName, L"Hotspot zones", WS_POPUP, 0, 0, screen.width, screen.height, owner,
                           nullptr, instance, this))
        return;
    ::SetLayeredWindowAttributes(window_.get(), kClear, kOpacity, LWA_COLORKEY | LWA_ALPHA);
    life_ = {};
    shownAt_ = ::GetTickCount64();
    ::SetTimer(window_.get(), kLifeTimer, kLookInterval, nullptr);
    ::ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
}

void ZoneOverlay::Form_Paint() {
    Win::PaintDc paint(window_.get());
    HDC dc = paint.get();
    Win::UniqueBrush clear(::CreateSolidBrush(kClear));
    RECT client{};
    ::GetClientRect(window_.get(), &client);
    ::FillRect(dc, &client, clear.get());
    for (const Shown& shown : shown_) {
        Win::UniqueBrush solid(::CreateSolidBrush(static_cast<COLORREF>(Hotspots::ZoneColour(shown.zone.hotspot))));
        RECT zone = AsRect(shown.zone.shown);
        const int first = (zone.top + kStripeEvery - 1) / kStripeEvery * kStripeEvery;
        for (int top = first; top < zone.bottom; top += kStripeEvery) {
            RECT stripe{zone.left, top, zone.right, std::min<int>(top + kStripeHeight, zone.bottom)};
            ::FillRect(dc, &stripe, solid.get());
        }
        for (int ring = 0; ring < kBorder && zone.right > zone.left && zone.bottom > zone.top; ++ring) {
            ::FrameRect(dc, &zone, solid.get());
            ::InflateRect(&zone, -1, -1);
        }
    }
    Win::SelectGuard useFont(dc, font_.get());
    ::SetTextColor(dc, RGB(0, 0, 0));
    ::SetBkMode(dc, TRANSPARENT);
    for (Shown& shown : shown_) {
        Win::UniqueBrush solid(::CreateSolidBrush(static_cast<COLORREF>(Hotspots::ZoneColour(shown.zone.hotspot))));
        RECT box = shown.labelRect;
        ::FillRect(dc, &box, solid.get());
        ::InflateRect(&box, -2, -2);
        ::FillRect(dc, &box, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        ::DrawTextW(dc, shown.label.c_str(), static_cast<int>(shown.label.size()), &shown.labelRect,
                    DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
}

void ZoneOverlay::tmrLife_Timer() {
    const auto elapsed = static_cast<int>(::GetTickCount64() - shownAt_);
    if (!life_.Stays(elapsed, AnyInputDown()))
        window_.reset();
}

LRESULT ZoneOverlay::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        Form_Paint();
        return 0;
    case WM_TIMER:
        if (wParam == kLifeTimer)
            tmrLife_Timer();
        return 0;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

} // namespace PrefsWin
