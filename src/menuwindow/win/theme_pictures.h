// The theme's picture files as a menu window draws them: the bitmaps folder listed once
// per full paint, each file loaded the first time it is drawn (.bmp as a DIB section,
// .jpg through GDI+, .ico at the size it is drawn), and tiled areas built once into a
// texture buffer that later paints copy from. A file that does not load is not drawn.
#pragma once

#include "menuwindow/paint/draw_list.h"
#include "win/handles.h"

#include <windows.h>

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace MenuWindow {

class ThemePictures {
public:
    // Lists the folder's files and forgets every picture loaded from the last listing.
    // An empty folder path lists nothing.
    void List(const std::string& folder);
    const std::vector<std::string>& Names() const { return names_; }

    // Whether a listed file loads as the picture its extension says (an icon at 16 pixels).
    bool Loads(const std::string& file);

    // Draws the picture as the operation asks onto dc.
    void Draw(HDC dc, const PictureOp& op);

private:
    HBITMAP Bitmap(const std::string& file);
    HICON Icon(const std::string& file, int side);
    HBITMAP Texture(const std::string& file, HBITMAP picture, Size size);
    std::wstring PathOf(const std::string& file) const;

    std::string folder_;
    std::vector<std::string> names_;
    std::map<std::string, Win::UniqueBitmap> bitmaps_;
    std::map<std::pair<std::string, int>, Win::UniqueIcon> icons_;
    // picTextureBuffer: a tiled picture, built at the size of the area it covers.
    std::map<std::tuple<std::string, int, int>, Win::UniqueBitmap> picTextureBuffer_;
};

} // namespace MenuWindow
