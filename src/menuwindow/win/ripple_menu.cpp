#include "menuwindow/win/ripple_menu.h"

#include "win/handles.h"

#include <algorithm>
#include <chrono>

namespace MenuWindow {

namespace {

using Clock = std::chrono::steady_clock;

bool Fades(const AnimationPlan& plan) {
    return std::any_of(plan.frames.begin(), plan.frames.end(), [](const AnimationFrame& f) { return f.alpha < 255; });
}

void SetLayered(HWND window, bool layered) {
    LONG_PTR exStyle = ::GetWindowLongPtrW(window, GWL_EXSTYLE);
    LONG_PTR wanted = layered ? exStyle | WS_EX_LAYERED : exStyle & ~static_cast<LONG_PTR>(WS_EX_LAYERED);
    if (wanted != exStyle)
        ::SetWindowLongPtrW(window, GWL_EXSTYLE, wanted);
}

// The system owns a region once it has taken it; one it refused is still ours to delete.
void Clip(HWND window, const Rect& visible) {
    Win::UniqueRegion region(::CreateRectRgn(visible.left, visible.top, visible.right, visible.bottom));
    if (region && ::SetWindowRgn(window, region.get(), FALSE))
        region.release();
}

void Prepare(HWND window, const AnimationFrame& frame, bool fades) {
    Clip(window, frame.visible);
    if (fades)
        ::SetLayeredWindowAttributes(window, 0, frame.alpha, LWA_ALPHA);
}

void DrawFrame(HWND window, HDC image, const AnimationFrame& frame, bool fades) {
    Prepare(window, frame, fades);
    Win::WindowDc dc(window);
    for (const AnimationBlit& blit : frame.blits)
        ::StretchBlt(dc.get(), blit.target.left, blit.target.top, blit.target.Width(), blit.target.Height(), image,
                     blit.source.left, blit.source.top, blit.source.Width(), blit.source.Height(), SRCCOPY);
    // The frame is the window's picture for now; a paint from the whole image would undo it.
    ::ValidateRect(window, nullptr);
}

// Serves the queue until the deadline. False when the window went or the program is
// quitting (the quit is posted again for the main loop).
bool ServeQueueUntil(HWND window, Clock::time_point deadline) {
    for (;;) {
        MSG msg;
        while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.message == WM_QUIT) {
                ::PostQuitMessage(static_cast<int>(msg.wParam));
                return false;
            }
            ::TranslateMessage(&msg);
            ::DispatchMessageW(&msg);
            if (!::IsWindow(window))
                return false;
        }
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0)
            return true;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(left), QS_ALLINPUT);
    }
}

void Uncover(HWND window) {
    ::SetWindowRgn(window, nullptr, FALSE);
    SetLayered(window, false);
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_FRAME);
}

} // namespace

void CoverForRipple(HWND window, const AnimationPlan& plan) {
    if (plan.frames.empty())
        return;
    bool fades = Fades(plan);
    SetLayered(window, fades);
    Prepare(window, plan.frames.front(), fades);
}

int RippleMenu(HWND window, const BackBuffer& picture, const AnimationPlan& plan) {
    if (plan.frames.empty())
        return 0;
    Size size = picture.size();
    BackBuffer image;
    if (!image.Resize(size)) {
        Uncover(window);
        return 0;
    }
    picture.CopyTo(image.dc(), {0, 0, size.width, size.height});
    bool fades = Fades(plan);
    SetLayered(window, fades);
    Clock::time_point start = Clock::now();
    int shown = 0;
    for (const AnimationFrame& frame : plan.frames) {
        if (!ServeQueueUntil(window, start + std::chrono::milliseconds(frame.atMs)))
            break;
        DrawFrame(window, image.dc(), frame, fades);
        ++shown;
    }
    if (::IsWindow(window))
        Uncover(window);
    return shown;
}

} // namespace MenuWindow
