#include "menuwindow/win/theme_pictures.h"

#include "menuwindow/look/bitmap_file.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/win/gdiplus_session.h"
#include "win/text_convert.h"

#include <objidl.h>

#include <gdiplus.h>

#include <memory>

namespace MenuWindow {

namespace {

Size SizeOf(HBITMAP bitmap) {
    BITMAP info{};
    if (!::GetObjectW(bitmap, sizeof info, &info))
        return {};
    return {info.bmWidth, info.bmHeight};
}

// Reads the head of a .bmp file and loads it only when it holds its whole picture.
HBITMAP LoadBmp(const std::wstring& path) {
    Win::UniqueFileHandle file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    unsigned char head[kBitmapHeadSize];
    DWORD read = 0;
    if (!file || !::GetFileSizeEx(file.get(), &size) || !::ReadFile(file.get(), head, sizeof head, &read, nullptr) ||
        CheckBitmapFile(std::span(head, read), static_cast<std::uint64_t>(size.QuadPart)) != BitmapFileCheck::Fits)
        return nullptr;
    return static_cast<HBITMAP>(
        ::LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
}

HBITMAP LoadJpeg(const std::wstring& path) {
    if (!EnsureGdiplus())
        return nullptr;
    std::unique_ptr<Gdiplus::Bitmap> decoded(Gdiplus::Bitmap::FromFile(path.c_str()));
    HBITMAP bitmap = nullptr;
    if (decoded && decoded->GetLastStatus() == Gdiplus::Ok)
        decoded->GetHBITMAP(Gdiplus::Color(0, 0, 0), &bitmap);
    return bitmap;
}

// Keeps a DC's clipping within a rectangle for the object's life.
class ClipTo {
public:
    ClipTo(HDC dc, const Rect& clip) : dc_(dc), saved_(::SaveDC(dc)) {
        ::IntersectClipRect(dc, clip.left, clip.top, clip.right, clip.bottom);
    }
    ClipTo(const ClipTo&) = delete;
    ClipTo& operator=(const ClipTo&) = delete;
    ~ClipTo() {
        if (saved_)
            ::RestoreDC(dc_, saved_);
    }

private:
    HDC dc_;
    int saved_;
};

} // namespace

void ThemePictures::List(const std::string& folder) {
    folder_ = folder;
    names_.clear();
    bitmaps_.clear();
    icons_.clear();
    picTextureBuffer_.clear();
    if (folder.empty())
        return;
    WIN32_FIND_DATAW found{};
    std::wstring pattern = Win::Widen(folder) + L"\\*";
    Win::UniqueFindHandle find(::FindFirstFileW(pattern.c_str(), &found));
    if (!find)
        return;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            names_.push_back(Win::Narrow(found.cFileName));
    } while (::FindNextFileW(find.get(), &found));
}

std::wstring ThemePictures::PathOf(const std::string& file) const {
    return Win::Widen(folder_) + L"\\" + Win::Widen(file);
}

bool ThemePictures::Loads(const std::string& file) {
    return PictureFormatOf(file) == PictureFormat::Ico ? Icon(file, 16) != nullptr : Bitmap(file) != nullptr;
}

HBITMAP ThemePictures::Bitmap(const std::string& file) {
    auto known = bitmaps_.find(file);
    if (known != bitmaps_.end())
        return known->second.get();
    std::wstring path = PathOf(file);
    HBITMAP loaded = nullptr;
    switch (PictureFormatOf(file)) {
    case PictureFormat::Bmp:
        loaded = LoadBmp(path);
        break;
    case PictureFormat::Jpg:
        loaded = LoadJpeg(path);
        break;
    default:
        break;
    }
    return bitmaps_.emplace(file, Win::UniqueBitmap(loaded)).first->second.get();
}

HICON ThemePictures::Icon(const std::string& file, int side) {
    auto key = std::make_pair(file, side);
    auto known = icons_.find(key);
    if (known != icons_.end())
        return known->second.get();
    HICON loaded =
        static_cast<HICON>(::LoadImageW(nullptr, PathOf(file).c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE));
    return icons_.emplace(key, Win::UniqueIcon(loaded)).first->second.get();
}

// The picture repeated from the top-left corner over an area of the size.
HBITMAP ThemePictures::Texture(const std::string& file, HBITMAP picture, Size size) {
    auto key = std::make_tuple(file, size.width, size.height);
    auto known = picTextureBuffer_.find(key);
    if (known != picTextureBuffer_.end())
        return known->second.get();
    Size tile = SizeOf(picture);
    Win::WindowDc screen(nullptr);
    Win::UniqueBitmap texture(::CreateCompatibleBitmap(screen.get(), size.width, size.height));
    Win::UniqueMemoryDc source(::CreateCompatibleDC(screen.get()));
    Win::UniqueMemoryDc target(::CreateCompatibleDC(screen.get()));
    if (texture && source && target && tile.width > 0 && tile.height > 0) {
        Win::SelectGuard from(source.get(), picture);
        Win::SelectGuard to(target.get(), texture.get());
        for (int y = 0; y < size.height; y += tile.height)
            for (int x = 0; x < size.width; x += tile.width)
                ::BitBlt(target.get(), x, y, tile.width, tile.height, source.get(), 0, 0, SRCCOPY);
    } else {
        texture.reset();
    }
    return picTextureBuffer_.emplace(key, std::move(texture)).first->second.get();
}

void ThemePictures::Draw(HDC dc, const PictureOp& op) {
    if (op.area.Empty() || op.clip.Empty())
        return;
    ClipTo clip(dc, op.clip);
    if (op.fit == PictureFit::Icon) {
        if (HICON icon = Icon(op.file, op.area.Width()))
            ::DrawIconEx(dc, op.area.left, op.area.top, icon, op.area.Width(), op.area.Height(), 0, nullptr, DI_NORMAL);
        return;
    }
    HBITMAP picture = Bitmap(op.file);
    Size size = SizeOf(picture);
    if (!picture || size.width <= 0 || size.height <= 0)
        return;
    Size area{op.area.Width(), op.area.Height()};
    if (op.fit == PictureFit::Tile) {
        picture = Texture(op.file, picture, area);
        size = area;
        if (!picture)
            return;
    }
    Win::UniqueMemoryDc source(::CreateCompatibleDC(dc));
    if (!source)
        return;
    Win::SelectGuard select(source.get(), picture);
    if (op.transparent) {
        COLORREF key = ::GetPixel(source.get(), 0, 0);
        ::GdiTransparentBlt(dc, op.area.left, op.area.top, area.width, area.height, source.get(), 0, 0, size.width,
                            size.height, key);
        return;
    }
    if (size.width == area.width && size.height == area.height) {
        ::BitBlt(dc, op.area.left, op.area.top, area.width, area.height, source.get(), 0, 0, SRCCOPY);
        return;
    }
    int oldMode = ::SetStretchBltMode(dc, HALFTONE);
    POINT oldOrigin{};
    ::SetBrushOrgEx(dc, 0, 0, &oldOrigin);
    ::StretchBlt(dc, op.area.left, op.area.top, area.width, area.height, source.get(), 0, 0, size.width, size.height,
                 SRCCOPY);
    ::SetBrushOrgEx(dc, oldOrigin.x, oldOrigin.y, nullptr);
    ::SetStretchBltMode(dc, oldMode);
}

} // namespace MenuWindow
