#include "menu_window_fixture.h"

#include "core/win/system_values.h"
#include "menus/data_manager.h"

#include <memory>

namespace MenuWindowTests {

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

::testing::AssertionResult AllOf(const WindowPicture& picture, const MenuWindow::Rect& area, COLORREF colour) {
    int count = picture.Count(area, colour);
    int all = area.Width() * area.Height();
    if (all > 0 && count == all)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << count << " of " << all << " pixels have colour 0x" << std::hex << colour;
}

int MenuWindowTest::AddMenu(const std::string& name, const std::vector<std::string>& labels) {
    MenuRec menu;
    menu.NAME = name;
    menus.menus.push_back(menu);
    int number = menus.MenuCount();
    for (const std::string& label : labels) {
        std::int32_t slot = DataManager::AppendItem(menus, number - 1);
        MenuItemRec& item = menus.pool[static_cast<std::size_t>(slot)];
        item.LABEL = label;
        item.HOTKEY.assign(1, '0'); // as a menu file holds an item without a hot key
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
    auto window = std::make_unique<Form2>(settings, menus, SystemValues::ExecutableFolder(), openMenus, record.id);
    Form2* form = window.get();
    openMenus.Attach(index, std::move(window));
    return form->Create() ? form : nullptr;
}

} // namespace MenuWindowTests
