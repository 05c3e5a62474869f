#include "core/message_box.h"

#include <utility>

namespace MessageBoxes {

namespace {
Handler& CurrentHandler() {
    static Handler handler;
    return handler;
}
} // namespace

Handler SetHandler(Handler handler) { return std::exchange(CurrentHandler(), std::move(handler)); }

int MsgBox(std::string_view text, std::string_view title, int style) {
    const Handler& handler = CurrentHandler();
    if (!handler)
        return kCancel;
    return handler(Request{std::string(text), std::string(title), style});
}

} // namespace MessageBoxes
