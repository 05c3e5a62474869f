// Whether a .bmp file holds the picture its headers describe. The platform's loader maps
// the file and reads as many pixels as the headers claim, past the end of a cut file,
// and makes a bitmap of whatever size they name; a theme folder is user data, so a file
// is loaded only when it is whole and of a size a menu can draw.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace MenuWindow {

enum class BitmapFileCheck { Fits, NotABitmap, Truncated, TooLarge };

// The file header and the largest info header: all that the check reads.
inline constexpr std::size_t kBitmapHeadSize = 14 + 124;

// Far beyond any part of a menu, and a bitmap of 256 MB at 32 bits a pixel.
inline constexpr std::uint64_t kMaxBitmapPixels = 64ull << 20;

// `head` is the start of the file (up to kBitmapHeadSize bytes), `fileSize` its length.
BitmapFileCheck CheckBitmapFile(std::span<const unsigned char> head, std::uint64_t fileSize);

} // namespace MenuWindow
