// The desktop wallpaper as a theme saves and sets it: the values under the current
// user's Control Panel\Desktop, a picture converted to a bitmap, and the system call
// that makes a bitmap the wallpaper.
#pragma once

#include <string>
#include <string_view>

namespace DesktopWallpaper {

std::string Current();     // "Wallpaper": the picture's path, empty for none
std::string CurrentTile(); // "TileWallpaper"
void SetTile(std::string_view value);

// Writes the picture (any format GDI+ reads) as a BMP file; false when it could not.
bool ConvertToBitmap(std::string_view picture, std::string_view bitmap);

// Makes the file the desktop wallpaper, saved in the user's profile and announced.
bool Set(std::string_view bitmap);

} // namespace DesktopWallpaper
