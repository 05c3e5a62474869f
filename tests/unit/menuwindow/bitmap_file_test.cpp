// Which .bmp files are whole enough to hand to the platform's loader.
#include "menuwindow/look/bitmap_file.h"

#include <gtest/gtest.h>

#include <vector>

using MenuWindow::BitmapFileCheck;

namespace {

struct Head {
    std::int32_t width = 4;
    std::int32_t height = 4;
    std::uint16_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t imageSize = 0;
    std::uint32_t colours = 0;
    std::uint32_t pixelsAt = 54;
};

std::vector<unsigned char> Bytes(const Head& h) {
    std::vector<unsigned char> bytes(54, 0);
    auto put = [&](std::size_t at, std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes[at + static_cast<std::size_t>(i)] = static_cast<unsigned char>(value >> (8 * i));
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(10, h.pixelsAt, 4);
    put(14, 40, 4);
    put(18, static_cast<std::uint32_t>(h.width), 4);
    put(22, static_cast<std::uint32_t>(h.height), 4);
    put(26, 1, 2);
    put(28, h.bits, 2);
    put(30, h.compression, 4);
    put(34, h.imageSize, 4);
    put(46, h.colours, 4);
    return bytes;
}

BitmapFileCheck Check(const Head& h, std::uint64_t fileSize) {
    const std::vector<unsigned char> bytes = Bytes(h);
    return MenuWindow::CheckBitmapFile(bytes, fileSize);
}

} // namespace

TEST(BitmapFile, OnlyAWholeBitmapOfADrawableSizeIsLoaded) {
    struct Case {
        const char* what;
        Head head;
        std::uint64_t fileSize;
        BitmapFileCheck expected;
    };
    const Case cases[] = {
        {"4x4 at 24 bits: rows of 12 bytes", {}, 54 + 48, BitmapFileCheck::Fits},
        {"one byte short", {}, 54 + 47, BitmapFileCheck::Truncated},
        {"top row first", {.height = -4}, 54 + 48, BitmapFileCheck::Fits},
        {"rows padded to four bytes", {.width = 5}, 54 + 64, BitmapFileCheck::Fits},
        {"0x0", {.width = 0, .height = 0}, 54, BitmapFileCheck::NotABitmap},
        {"30000x30000", {.width = 30000, .height = 30000}, 1 << 30, BitmapFileCheck::TooLarge},
        {"8 bits with its 256 colours", {.bits = 8, .pixelsAt = 54 + 1024}, 54 + 1024 + 16, BitmapFileCheck::Fits},
        {"8 bits, colour table cut", {.bits = 8, .pixelsAt = 54 + 1024}, 54 + 500, BitmapFileCheck::Truncated},
        {"more colours than the depth has", {.bits = 1, .colours = 3, .pixelsAt = 66}, 200, BitmapFileCheck::NotABitmap},
        {"pixels said to start inside the header", {.pixelsAt = 20}, 200, BitmapFileCheck::Truncated},
        {"run-length with its size there", {.bits = 8, .compression = 1, .imageSize = 10, .colours = 2, .pixelsAt = 62},
         72, BitmapFileCheck::Fits},
        {"run-length cut", {.bits = 8, .compression = 1, .imageSize = 10, .colours = 2, .pixelsAt = 62}, 70,
         BitmapFileCheck::Truncated},
        {"run-length without a size", {.bits = 8, .compression = 1, .colours = 2, .pixelsAt = 62}, 100,
         BitmapFileCheck::Truncated},
        {"an unknown depth", {.bits = 7}, 1000, BitmapFileCheck::NotABitmap},
        {"a JPEG inside", {.compression = 4}, 1000, BitmapFileCheck::NotABitmap},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Check(c.head, c.fileSize), c.expected) << c.what;
    const unsigned char text[] = "This is not a picture";
    EXPECT_EQ(MenuWindow::CheckBitmapFile(text, sizeof text), BitmapFileCheck::NotABitmap);
}
