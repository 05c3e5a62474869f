#include "menuwindow/win/open_menus.h"

#include "menuwindow/win/form2.h"

OpenMenus::OpenMenus() = default;

OpenMenus::~OpenMenus() {
    CloseAll();
}

int OpenMenus::Append() {
    return records_.Append();
}

void OpenMenus::Attach(int index, std::unique_ptr<Form2> window) {
    if (index < 1 || index > records_.Count())
        return;
    windows_[records_.At(index).id] = std::move(window);
}

Form2* OpenMenus::WindowOf(int id) const {
    auto found = windows_.find(id);
    return found == windows_.end() ? nullptr : found->second.get();
}

Form2* OpenMenus::WindowWithKeyboard() const {
    HWND focus = ::GetFocus();
    for (const auto& [id, window] : windows_)
        if (window && focus && window->hwnd() == focus)
            return window.get();
    return nullptr;
}

void OpenMenus::Close(int index) {
    if (index < 1 || index > records_.Count())
        return;
    int id = records_.At(index).id;
    // The window goes before its record: while it unloads it may still read the record.
    if (auto found = windows_.find(id); found != windows_.end()) {
        std::unique_ptr<Form2> window = std::move(found->second);
        windows_.erase(found);
        window.reset();
    }
    records_.Remove(records_.IndexOf(id));
}

void OpenMenus::RepaintAll() {
    for (int index = 1; index <= records_.Count(); ++index) {
        if (Form2* window = WindowOf(records_.At(index).id)) {
            window->SetLocalVariables();
            window->PaintMenu();
        }
    }
}

void OpenMenus::CloseAll() {
    closing_ = true;
    while (records_.Count() > 0)
        Close(records_.Count());
    closing_ = false;
}

void OpenMenus::CloseHotspotMenu(int id) {
    closing_ = true;
    CloseWithSubMenus(id);
    closing_ = false;
}

void OpenMenus::CloseWithSubMenus(int id) {
    std::vector<int> ids = records_.WithSubMenus(id);
    for (auto it = ids.rbegin(); it != ids.rend(); ++it)
        Close(records_.IndexOf(*it));
}

void OpenMenus::Renumber(int id, int freshId) {
    MenuWindow::CascadeRec* record = records_.Find(id);
    if (!record || records_.IndexOf(freshId) != 0)
        return;
    record->id = freshId;
    if (auto found = windows_.find(id); found != windows_.end()) {
        windows_[freshId] = std::move(found->second);
        windows_.erase(found);
    }
}
