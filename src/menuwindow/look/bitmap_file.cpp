#include "menuwindow/look/bitmap_file.h"

namespace MenuWindow {

namespace {

constexpr std::uint64_t kFileHeaderSize = 14;
constexpr std::uint32_t kCoreHeaderSize = 12; // the old header: 16-bit sizes, no compression
constexpr std::uint32_t kInfoHeaderSize = 40;

enum Compression : std::uint32_t { Rgb = 0, Rle8 = 1, Rle4 = 2, BitFields = 3 };

std::uint32_t Read(std::span<const unsigned char> bytes, std::size_t at, int size) {
    std::uint32_t value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = (value << 8) | bytes[at + static_cast<std::size_t>(i)];
    return value;
}

struct Header {
    std::uint32_t pixelsAt = 0;
    std::uint32_t headerSize = 0;
    std::int64_t width = 0;
    std::int64_t height = 0; // negative for a picture stored top row first
    std::uint32_t bitsPerPixel = 0;
    std::uint32_t compression = Rgb;
    std::uint32_t imageSize = 0;
    std::uint32_t coloursUsed = 0;
};

bool ReadHeader(std::span<const unsigned char> head, Header& header) {
    if (head.size() < kFileHeaderSize + kCoreHeaderSize || head[0] != 'B' || head[1] != 'M')
        return false;
    header.pixelsAt = Read(head, 10, 4);
    header.headerSize = Read(head, 14, 4);
    if (header.headerSize == kCoreHeaderSize) {
        header.width = Read(head, 18, 2);
        header.height = Read(head, 20, 2);
        header.bitsPerPixel = Read(head, 24, 2);
        return true;
    }
    if (header.headerSize < kInfoHeaderSize || head.size() < kFileHeaderSize + kInfoHeaderSize)
        return false;
    header.width = static_cast<std::int32_t>(Read(head, 18, 4));
    header.height = static_cast<std::int32_t>(Read(head, 22, 4));
    header.bitsPerPixel = Read(head, 28, 2);
    header.compression = Read(head, 30, 4);
    header.imageSize = Read(head, 34, 4);
    header.coloursUsed = Read(head, 46, 4);
    return true;
}

bool KnownDepth(const Header& h) {
    switch (h.compression) {
    case Rgb:
        return h.bitsPerPixel == 1 || h.bitsPerPixel == 4 || h.bitsPerPixel == 8 || h.bitsPerPixel == 16 ||
               h.bitsPerPixel == 24 || h.bitsPerPixel == 32;
    case BitFields:
        return h.bitsPerPixel == 16 || h.bitsPerPixel == 32;
    case Rle8:
        return h.bitsPerPixel == 8;
    case Rle4:
        return h.bitsPerPixel == 4;
    default:
        return false; // JPEG and PNG inside a bitmap are not loaded from files
    }
}

// The colour table and the masks between the info header and the pixels.
std::uint64_t TableSize(const Header& h) {
    const std::uint64_t entrySize = h.headerSize == kCoreHeaderSize ? 3 : 4;
    std::uint64_t entries = 0;
    if (h.bitsPerPixel <= 8)
        entries = h.coloursUsed != 0 ? h.coloursUsed : std::uint64_t{1} << h.bitsPerPixel;
    const std::uint64_t masks = h.compression == BitFields && h.headerSize == kInfoHeaderSize ? 12 : 0;
    return entries * entrySize + masks;
}

} // namespace

BitmapFileCheck CheckBitmapFile(std::span<const unsigned char> head, std::uint64_t fileSize) {
    Header h;
    if (!ReadHeader(head, h) || !KnownDepth(h) || h.width <= 0 || h.height == 0)
        return BitmapFileCheck::NotABitmap;
    if (h.bitsPerPixel <= 8 && h.coloursUsed > (1u << h.bitsPerPixel))
        return BitmapFileCheck::NotABitmap;
    const std::uint64_t width = static_cast<std::uint64_t>(h.width);
    const std::uint64_t height = static_cast<std::uint64_t>(h.height < 0 ? -h.height : h.height);
    if (width * height > kMaxBitmapPixels)
        return BitmapFileCheck::TooLarge;
    if (kFileHeaderSize + h.headerSize + TableSize(h) > fileSize || h.pixelsAt < kFileHeaderSize + h.headerSize)
        return BitmapFileCheck::Truncated;
    // Run-length pixels have no size but the one the header gives, which must be there.
    const std::uint64_t rowBytes = (width * h.bitsPerPixel + 31) / 32 * 4;
    const bool runLength = h.compression == Rle8 || h.compression == Rle4;
    const std::uint64_t pixelBytes = runLength ? h.imageSize : rowBytes * height;
    if ((runLength && h.imageSize == 0) || h.pixelsAt + pixelBytes > fileSize)
        return BitmapFileCheck::Truncated;
    return BitmapFileCheck::Fits;
}

} // namespace MenuWindow
