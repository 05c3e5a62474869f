#include "win/form_window.h"

namespace Win {

bool RegisterFormClass(const WNDCLASSEXW& windowClass) {
    return ::RegisterClassExW(&windowClass) || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

HICON LoadProgramIcon(HINSTANCE instance, int resource, int size) {
    if (resource == 0)
        return nullptr;
    return static_cast<HICON>(::LoadImageW(instance, MAKEINTRESOURCEW(resource), IMAGE_ICON, size, size, LR_SHARED));
}

} // namespace Win
