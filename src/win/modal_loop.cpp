#include "win/modal_loop.h"

namespace Win {

void RunModalLoop(HWND window) {
    MSG msg;
    while (::IsWindow(window)) {
        BOOL got = ::GetMessageW(&msg, nullptr, 0, 0);
        if (got == 0) {
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        if (got == -1)
            return;
        if (::IsDialogMessageW(window, &msg))
            continue;
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

} // namespace Win
