#include "themes/win/desktop_wallpaper.h"

#include "core/win/registry_access.h"
#include "menuwindow/win/gdiplus_session.h"
#include "win/text_convert.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <memory>
#include <optional>
#include <vector>

namespace DesktopWallpaper {

namespace {

constexpr std::string_view kDesktopKey = "Control Panel\\Desktop";
constexpr UINT kSetDesktopWallpaper = 20;
constexpr UINT kWriteAndBroadcast = 3;

std::optional<CLSID> EncoderOf(std::wstring_view mimeType) {
    UINT count = 0;
    UINT bytes = 0;
    if (Gdiplus::GetImageEncodersSize(&count, &bytes) != Gdiplus::Ok || bytes == 0)
        return std::nullopt;
    std::vector<unsigned char> buffer(bytes);
    auto* encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    if (Gdiplus::GetImageEncoders(count, bytes, encoders) != Gdiplus::Ok)
        return std::nullopt;
    for (UINT i = 0; i < count; ++i) {
        if (mimeType == encoders[i].MimeType)
            return encoders[i].Clsid;
    }
    return std::nullopt;
}

} // namespace

std::string Current() {
    return RegistryAccess::AsString(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kDesktopKey, "Wallpaper"));
}

std::string CurrentTile() {
    return RegistryAccess::AsString(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kDesktopKey, "TileWallpaper"));
}

void SetTile(std::string_view value) {
    RegistryAccess::SetValue(HKEY_CURRENT_USER, kDesktopKey, "TileWallpaper", std::string(value));
}

bool ConvertToBitmap(std::string_view picture, std::string_view bitmap) {
    if (!MenuWindow::EnsureGdiplus())
        return false;
    std::optional<CLSID> encoder = EncoderOf(L"image/bmp");
    std::unique_ptr<Gdiplus::Bitmap> decoded(Gdiplus::Bitmap::FromFile(Win::Widen(picture).c_str()));
    return encoder && decoded && decoded->GetLastStatus() == Gdiplus::Ok &&
           decoded->Save(Win::Widen(bitmap).c_str(), &*encoder, nullptr) == Gdiplus::Ok;
}

bool Set(std::string_view bitmap) {
    std::wstring path = Win::Widen(bitmap);
    return ::SystemParametersInfoW(kSetDesktopWallpaper, 0, path.data(), kWriteAndBroadcast) != 0;
}

} // namespace DesktopWallpaper
