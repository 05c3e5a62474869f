// Small picture files written byte by byte for the tests: 24-bit BMP files and 32-bit
// icons, from a function that gives each pixel's colour.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace TestSupport {

using PixelColour = std::function<COLORREF(int x, int y)>;

void WriteBmp(const std::string& path, int width, int height, const PixelColour& colour);
// An icon of one size, fully opaque.
void WriteIcon(const std::string& path, int side, COLORREF colour);
// A JPEG file of one colour, encoded by GDI+; false when no JPEG encoder was found.
bool WriteJpeg(const std::string& path, int width, int height, COLORREF colour);

// Four blocks of 4 x 4 pixels: top-left, top-right, bottom-left, bottom-right.
struct Quadrants {
    COLORREF topLeft, topRight, bottomLeft, bottomRight;
    COLORREF operator()(int x, int y) const {
        if (y < 4)
            return x < 4 ? topLeft : topRight;
        return x < 4 ? bottomLeft : bottomRight;
    }
};

} // namespace TestSupport
