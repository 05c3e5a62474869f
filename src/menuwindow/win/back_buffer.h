// The off-screen picture a menu window paints into: a memory DC holding a bitmap of
// the window's size. Painting never touches the screen; WM_PAINT copies from here, so
// a repaint never flickers.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "win/handles.h"

#include <windows.h>

namespace MenuWindow {

class BackBuffer {
public:
    // A new picture of the size, its contents undefined. False when GDI refused.
    bool Resize(Size size);

    HDC dc() const { return dc_.get(); }
    Size size() const { return size_; }

    // Copies an area of the picture to the same place of another DC.
    void CopyTo(HDC target, const RECT& area) const;

private:
    // The bitmap is declared first so that it outlives the DC it is selected into.
    Win::UniqueBitmap bitmap_;
    Win::UniqueMemoryDc dc_;
    Size size_;
};

} // namespace MenuWindow
