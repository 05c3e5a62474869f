// What is on the screen: single pixels, and the whole screen saved as a bitmap file.
#pragma once

#include "harness/wait.h"

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace E2e {

COLORREF ReadPixel(int x, int y);

// The same for a point of a window, and how many pixels of a part of it (both in the
// window's own coordinates) have a colour; -1 when the screen could not be read.
COLORREF WindowPixel(const RECT& window, int x, int y);
int CountInWindow(const RECT& window, const RECT& part, COLORREF colour);

// The pixels of an area of the screen, row by row, as 32-bit values to compare images by.
std::vector<std::uint32_t> ReadArea(const RECT& area);

// Waits until a window shows the same image at two looks a moment apart: it has
// painted and any opening animation is over. False when it is still changing, or
// gone, when the time is up.
bool WaitForSteadyImage(HWND window, Duration timeout = 10s);

// Saves the screen as a 24-bit BMP file; false when it could not be written.
bool SaveScreenshot(const std::string& path);

} // namespace E2e
