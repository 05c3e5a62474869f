#include "prefs/win/preview_menu.h"

#include "menuwindow/win/form2.h"
#include "menus/data_manager.h"
#include "prefs/sample_menu.h"

namespace PrefsWin {

PreviewMenu::PreviewMenu(std::string programFolder)
    : programFolder_(std::move(programFolder)), menus_(Preferences::SampleMenus()) {}

PreviewMenu::~PreviewMenu() {
    openMenus_.CloseAll();
}

Form2* PreviewMenu::Window() const {
    return id_ ? openMenus_.WindowOf(id_) : nullptr;
}

HWND PreviewMenu::hwnd() const {
    Form2* window = Window();
    return window ? window->hwnd() : nullptr;
}

void PreviewMenu::Show(HWND host, POINT topLeft, const SettingsRec& settings) {
    settings_ = settings;
    ::ClientToScreen(host, &topLeft);
    Form2* window = Window();
    if (window) {
        window->CloseSubMenu();
    } else {
        int index = openMenus_.Append();
        MenuWindow::CascadeRec& record = openMenus_.records().At(index);
        id_ = record.id;
        record.kind = kItemMenuName;
        record.menuNumber = DataManager::MenuNumberByName(menus_, Preferences::kSampleMenuName);
        record.path = Preferences::kSampleMenuName;
        openMenus_.Attach(index, std::make_unique<Form2>(settings_, menus_, programFolder_, openMenus_, id_));
        window = Window();
        window->HostIn(host);
    }
    MenuWindow::CascadeRec& record = *openMenus_.records().Find(id_);
    record.position = {topLeft.x, topLeft.y};
    record.firstVisible = 0;
    if (!::IsWindow(window->hwnd())) {
        if (!window->Create())
            return;
    } else {
        window->SetLocalVariables();
        window->PaintMenu();
    }
    window->SetSelection({Preferences::kSampleSelectedItem, false});
    ::ShowWindow(window->hwnd(), SW_SHOWNA);
    ++paints_;
}

} // namespace PrefsWin
