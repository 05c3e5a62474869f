#include "menuwindow/win/back_buffer.h"

#include <algorithm>

namespace MenuWindow {

bool BackBuffer::Resize(Size size) {
    Win::WindowDc screen(nullptr);
    if (!dc_)
        dc_.reset(::CreateCompatibleDC(screen.get()));
    if (!dc_)
        return false;
    // A bitmap of no size cannot be made; an empty menu still gets one pixel.
    Win::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen.get(), std::max(1, size.width), std::max(1, size.height)));
    if (!bitmap)
        return false;
    // Selecting the new bitmap deselects the old one, which may then go.
    ::SelectObject(dc_.get(), bitmap.get());
    bitmap_ = std::move(bitmap);
    size_ = size;
    return true;
}

void BackBuffer::CopyTo(HDC target, const RECT& area) const {
    if (!dc_)
        return;
    ::BitBlt(target, area.left, area.top, area.right - area.left, area.bottom - area.top, dc_.get(), area.left,
             area.top, SRCCOPY);
}

} // namespace MenuWindow
