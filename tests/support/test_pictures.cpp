#include "support/test_pictures.h"

#include "menuwindow/win/gdiplus_session.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <objidl.h>

#include <gdiplus.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace TestSupport {

namespace {

void Put16(std::string& bytes, std::uint16_t value) {
    bytes += static_cast<char>(value & 0xFF);
    bytes += static_cast<char>(value >> 8);
}

void Put32(std::string& bytes, std::uint32_t value) {
    Put16(bytes, static_cast<std::uint16_t>(value & 0xFFFF));
    Put16(bytes, static_cast<std::uint16_t>(value >> 16));
}

void PutInfoHeader(std::string& bytes, int width, int height, int bits, std::uint32_t imageSize) {
    Put32(bytes, 40);
    Put32(bytes, static_cast<std::uint32_t>(width));
    Put32(bytes, static_cast<std::uint32_t>(height));
    Put16(bytes, 1);
    Put16(bytes, static_cast<std::uint16_t>(bits));
    Put32(bytes, 0); // BI_RGB
    Put32(bytes, imageSize);
    Put32(bytes, 2835);
    Put32(bytes, 2835);
    Put32(bytes, 0);
    Put32(bytes, 0);
}

void PutPixel(std::string& bytes, COLORREF colour) {
    bytes += static_cast<char>(GetBValue(colour));
    bytes += static_cast<char>(GetGValue(colour));
    bytes += static_cast<char>(GetRValue(colour));
}

} // namespace

// Rows run bottom-up and are padded to four bytes.
void WriteBmp(const std::string& path, int width, int height, const PixelColour& colour) {
    int rowBytes = (width * 3 + 3) / 4 * 4;
    std::uint32_t imageSize = static_cast<std::uint32_t>(rowBytes * height);
    std::string bytes = "BM";
    Put32(bytes, 14 + 40 + imageSize);
    Put32(bytes, 0);
    Put32(bytes, 14 + 40);
    PutInfoHeader(bytes, width, height, 24, imageSize);
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x)
            PutPixel(bytes, colour(x, y));
        bytes.append(static_cast<std::size_t>(rowBytes - width * 3), '\0');
    }
    TestSupport::WriteBytes(path, bytes);
}

// The image is a DIB of twice the height (colour rows, then the AND mask rows); a mask
// of zeros keeps every pixel.
void WriteIcon(const std::string& path, int side, COLORREF colour) {
    int maskRow = (side + 31) / 32 * 4;
    std::uint32_t imageSize = static_cast<std::uint32_t>(40 + side * side * 4 + maskRow * side);
    std::string bytes;
    Put16(bytes, 0);
    Put16(bytes, 1); // an icon
    Put16(bytes, 1); // one image
    bytes += static_cast<char>(side);
    bytes += static_cast<char>(side);
    bytes += '\0'; // no palette
    bytes += '\0';
    Put16(bytes, 1);
    Put16(bytes, 32);
    Put32(bytes, imageSize);
    Put32(bytes, 6 + 16);
    PutInfoHeader(bytes, side, side * 2, 32, 0);
    for (int i = 0; i < side * side; ++i) {
        PutPixel(bytes, colour);
        bytes += '\xFF';
    }
    bytes.append(static_cast<std::size_t>(maskRow * side), '\0');
    TestSupport::WriteBytes(path, bytes);
}

bool WriteJpeg(const std::string& path, int width, int height, COLORREF colour) {
    if (!MenuWindow::EnsureGdiplus())
        return false;
    UINT count = 0;
    UINT bytes = 0;
    if (Gdiplus::GetImageEncodersSize(&count, &bytes) != Gdiplus::Ok || bytes == 0)
        return false;
    std::vector<BYTE> buffer(bytes);
    auto* codecs = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    if (Gdiplus::GetImageEncoders(count, bytes, codecs) != Gdiplus::Ok)
        return false;
    for (UINT i = 0; i < count; ++i) {
        if (std::wstring_view(codecs[i].MimeType) != L"image/jpeg")
            continue;
        Gdiplus::Bitmap bitmap(width, height, PixelFormat24bppRGB);
        {
            Gdiplus::Graphics graphics(&bitmap);
            graphics.Clear(Gdiplus::Color(255, GetRValue(colour), GetGValue(colour), GetBValue(colour)));
        }
        return bitmap.Save(Win::Widen(path).c_str(), &codecs[i].Clsid, nullptr) == Gdiplus::Ok;
    }
    return false;
}

} // namespace TestSupport
