#include "harness/screen.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <vector>

namespace E2e {

namespace {

constexpr WORD kBitsPerPixel = 24;

bool WriteBytes(HANDLE file, const void* data, DWORD size) {
    DWORD written = 0;
    return ::WriteFile(file, data, size, &written, nullptr) && written == size;
}

} // namespace

COLORREF ReadPixel(int x, int y) {
    Win::WindowDc screen(nullptr);
    return ::GetPixel(screen.get(), x, y);
}

COLORREF WindowPixel(const RECT& window, int x, int y) {
    return ReadPixel(window.left + x, window.top + y);
}

int CountInWindow(const RECT& window, const RECT& part, COLORREF colour) {
    std::vector<std::uint32_t> pixels = ReadArea({window.left + part.left, window.top + part.top,
                                                  window.left + part.right, window.top + part.bottom});
    if (pixels.empty())
        return -1; // no count at all, so that neither "some" nor "none" holds
    // The rows hold 0x00RRGGBB; a COLORREF is 0x00BBGGRR.
    std::uint32_t wanted = (GetRValue(colour) << 16) | (GetGValue(colour) << 8) | GetBValue(colour);
    int count = 0;
    for (std::uint32_t pixel : pixels)
        count += (pixel & 0x00FFFFFF) == wanted ? 1 : 0;
    return count;
}

std::vector<std::uint32_t> ReadArea(const RECT& area) {
    int width = area.right - area.left;
    int height = area.bottom - area.top;
    if (width <= 0 || height <= 0)
        return {};
    Win::WindowDc screen(nullptr);
    Win::UniqueMemoryDc memory(::CreateCompatibleDC(screen.get()));
    Win::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen.get(), width, height));
    if (!memory || !bitmap)
        return {};
    {
        Win::SelectGuard select(memory.get(), bitmap.get());
        ::BitBlt(memory.get(), 0, 0, width, height, screen.get(), area.left, area.top, SRCCOPY | CAPTUREBLT);
    }
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = width;
    info.biHeight = -height; // top-down rows
    info.biPlanes = 1;
    info.biBitCount = 32;
    info.biCompression = BI_RGB;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
    if (!::GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(height), pixels.data(),
                     reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS))
        return {};
    return pixels;
}

bool WaitForSteadyImage(HWND window, Duration timeout) {
    constexpr Duration kLookApart = 150ms;
    std::vector<std::uint32_t> before;
    RECT beforeRect{};
    return WaitUntil(
        [&] {
            RECT rect{};
            if (!::IsWindowVisible(window) || !::GetWindowRect(window, &rect))
                return false;
            std::vector<std::uint32_t> now = ReadArea(rect);
            bool steady = !now.empty() && ::EqualRect(&rect, &beforeRect) && now == before;
            before = std::move(now);
            beforeRect = rect;
            if (!steady)
                Settle(kLookApart);
            return steady;
        },
        timeout);
}

bool SaveScreenshot(const std::string& path) {
    int width = ::GetSystemMetrics(SM_CXVIRTUALSCREEN);
    int height = ::GetSystemMetrics(SM_CYVIRTUALSCREEN);
    int left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
    int top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
    Win::WindowDc screen(nullptr);
    Win::UniqueMemoryDc memory(::CreateCompatibleDC(screen.get()));
    Win::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen.get(), width, height));
    if (!memory || !bitmap)
        return false;
    {
        Win::SelectGuard select(memory.get(), bitmap.get());
        ::BitBlt(memory.get(), 0, 0, width, height, screen.get(), left, top, SRCCOPY | CAPTUREBLT);
    }

    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = width;
    info.biHeight = height; // bottom-up rows, as a BMP file stores them
    info.biPlanes = 1;
    info.biBitCount = kBitsPerPixel;
    info.biCompression = BI_RGB;
    DWORD stride = ((static_cast<DWORD>(width) * kBitsPerPixel + 31) / 32) * 4;
    std::vector<unsigned char> pixels(static_cast<std::size_t>(stride) * height);
    if (!::GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(height), pixels.data(),
                     reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS))
        return false;

    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42; // "BM"
    header.bfOffBits = sizeof header + sizeof info;
    header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
    Win::UniqueFileHandle file(::CreateFileW(Win::Widen(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return false;
    return WriteBytes(file.get(), &header, sizeof header) && WriteBytes(file.get(), &info, sizeof info) &&
           WriteBytes(file.get(), pixels.data(), static_cast<DWORD>(pixels.size()));
}

} // namespace E2e
