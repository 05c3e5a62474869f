// Form2 and screen readers: the window's accessible object, what it describes, the
// reader's requests, and the events that tell a reader the menu changed.
#include "menuwindow/win/form2.h"

using namespace MenuWindow;

// Every reader gets the one object the window keeps, which it cuts off when it goes.
LRESULT Form2::Form_GetObject(WPARAM flags, LPARAM objectId) {
    HWND hwnd = window_.get();
    if (static_cast<LONG>(objectId) != OBJID_CLIENT || unloading_)
        return ::DefWindowProcW(hwnd, WM_GETOBJECT, flags, objectId);
    if (!accessible_)
        accessible_.reset(new MenuAccessible(*this));
    return ::LresultFromObject(IID_IAccessible, flags, static_cast<IAccessible*>(accessible_.get()));
}

MenuAccess Form2::DescribeForAccess() const {
    return DescribeMenu(scene_, selection_,
                        {.hasKeyboard = ::GetForegroundWindow() == window_.get(), .rolledUp = rolledUp_});
}

// Posted, so that the reader's call returns before the menu acts (and maybe closes).
void Form2::ActForAccess(int item, bool choose) {
    ::PostMessageW(window_.get(), kAccessActionMessage, static_cast<WPARAM>(item), choose);
}

void Form2::Form_AccessAction(int item, bool choose) {
    if (choose)
        Apply(interaction_.ChooseItem(scene_, item));
    else
        MakeButtonVisible(item);
}

// The sample menu of the preferences is a picture of the look, not a menu in use: it
// raises nothing.
void Form2::RaiseAccessEvent(DWORD event, LONG child) {
    if (!host_)
        ::NotifyWinEvent(event, window_.get(), OBJID_CLIENT, child);
}
