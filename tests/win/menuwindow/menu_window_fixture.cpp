#include "menu_window_fixture.h"

#include "menus/data_manager.h"
#include "win/text_convert.h"

#include <memory>

namespace MenuWindowTests {

SettingsRec PlainSettings() {
    SettingsRec s;
    s.TitleColor = kTitleColour;
    s.TitleFontColor = kTitleTextColour;
    s.TitleGradient = false;
    s.TitleFlat = true;
    s.TitleOverlap = false;
    s.TitleVSize = 24;
    s.TitleFontSize = 9;
    s.ButtonColor = kButtonColour;
    s.ButtonFontColor = kButtonTextColour;
    s.ButtonGradient = false;
    s.ButtonFlat = 1;
    s.ButtonVSize = 22;
    s.SelBar = true;
    s.SelBarGradient = 0;
    s.SelBarColor = kSelBarColour;
    s.SelBarTextColor = kSelBarTextColour;
    s.MenuNoFrames = 1;
    s.TwinScrollButtons = false;
    // No title-bar buttons: the whole bar shows its colour.
    s.CloseStatus = 0;
    s.RollUpStatus = 0;
    s.RotateStatus = 0;
    s.AlwaysOnTopStatus = 0;
    return s;
}

WindowPicture::WindowPicture(HWND hwnd) {
    RECT rect{};
    ::GetWindowRect(hwnd, &rect);
    width_ = rect.right - rect.left;
    height_ = rect.bottom - rect.top;
    if (width_ <= 0 || height_ <= 0)
        return;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_; // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    Win::WindowDc screen(nullptr);
    Win::UniqueBitmap bitmap(::CreateDIBSection(screen.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    Win::UniqueMemoryDc dc(::CreateCompatibleDC(screen.get()));
    if (!bitmap || !dc)
        return;
    {
        Win::SelectGuard select(dc.get(), bitmap.get());
        ::SendMessageW(hwnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
        ::GdiFlush();
    }
    const auto* first = static_cast<const std::uint32_t*>(bits);
    pixels_.assign(first, first + static_cast<std::size_t>(width_) * height_);
}

COLORREF WindowPicture::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return CLR_INVALID;
    std::uint32_t rgb = pixels_[static_cast<std::size_t>(y) * width_ + x] & 0x00FFFFFF;
    return RGB((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

int WindowPicture::Count(const MenuWindow::Rect& area, COLORREF colour) const {
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            count += At(x, y) == colour ? 1 : 0;
    return count;
}

std::string WindowPicture::Save(const std::string& name) const {
    wchar_t module[MAX_PATH];
    DWORD n = ::GetModuleFileNameW(nullptr, module, MAX_PATH);
    std::wstring folder(module, n);
    folder = folder.substr(0, folder.find_last_of(L'\\')) + L"\\menuwindow-pictures";
    ::CreateDirectoryW(folder.c_str(), nullptr);
    std::wstring path = folder + L"\\" + Win::Widen(name) + L".bmp";

    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = width_;
    info.biHeight = -height_;
    info.biPlanes = 1;
    info.biBitCount = 32;
    info.biCompression = BI_RGB;
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42; // "BM"
    header.bfOffBits = sizeof header + sizeof info;
    DWORD size = static_cast<DWORD>(pixels_.size() * sizeof(std::uint32_t));
    header.bfSize = header.bfOffBits + size;
    Win::UniqueFileHandle file(
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (!file || !::WriteFile(file.get(), &header, sizeof header, &written, nullptr) ||
        !::WriteFile(file.get(), &info, sizeof info, &written, nullptr) ||
        !::WriteFile(file.get(), pixels_.data(), size, &written, nullptr))
        return {};
    return Win::Narrow(path);
}

int MenuWindowTest::AddMenu(const std::string& name, const std::vector<std::string>& labels) {
    MenuRec menu;
    menu.NAME = name;
    menus.menus.push_back(menu);
    int number = menus.MenuCount();
    for (const std::string& label : labels) {
        std::int32_t slot = DataManager::AppendItem(menus, number - 1);
        menus.pool[static_cast<std::size_t>(slot)].LABEL = label;
    }
    return number;
}

MenuItemRec& MenuWindowTest::ItemOf(int menuNumber, int position) {
    std::int32_t slot = DataManager::FindItem(menus, menuNumber - 1, position);
    return menus.pool[static_cast<std::size_t>(slot)];
}

MenuWindow::CascadeRec MenuWindowTest::MenuRecord(int menuNumber, MenuWindow::Point position) const {
    MenuWindow::CascadeRec record;
    record.kind = kItemMenuName;
    record.menuNumber = menuNumber;
    record.openedByHotspot = true;
    record.position = position;
    return record;
}

Form2* MenuWindowTest::Open(MenuWindow::CascadeRec record) {
    int index = openMenus.Append();
    record.id = openMenus.records().At(index).id;
    openMenus.records().At(index) = record;
    auto window = std::make_unique<Form2>(settings, menus, openMenus, record.id);
    Form2* form = window.get();
    openMenus.Attach(index, std::move(window));
    return form->Create() ? form : nullptr;
}

} // namespace MenuWindowTests
