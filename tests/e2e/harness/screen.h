// What is on the screen: single pixels, and the whole screen saved as a bitmap file.
#pragma once

#include <windows.h>

#include <string>

namespace E2e {

COLORREF ReadPixel(int x, int y);

// Saves the screen as a 24-bit BMP file; false when it could not be written.
bool SaveScreenshot(const std::string& path);

} // namespace E2e
