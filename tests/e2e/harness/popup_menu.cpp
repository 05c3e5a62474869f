#include "harness/popup_menu.h"

#include "harness/input.h"

#include <cctype>

namespace E2e {

std::optional<WindowInfo> WaitForPopupMenu(DWORD processId, Duration timeout) {
    return WaitForVisibleWindow(kPopupMenuClass, processId, timeout);
}

bool WaitForPopupMenuGone(DWORD processId, Duration timeout) {
    return WaitForNoVisibleWindow(kPopupMenuClass, processId, timeout);
}

void ChooseMenuEntry(char mnemonic) {
    PressKey(static_cast<WORD>(std::toupper(static_cast<unsigned char>(mnemonic))));
}

} // namespace E2e
