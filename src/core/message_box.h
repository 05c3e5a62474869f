// Every message box of the program goes through MsgBox, so that tests can see and
// answer it. The shell installs a handler that shows a real box; unit tests install
// a fake that records the request and returns a chosen answer.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace MessageBoxes {

// Style bits, as the numbers the program uses (16 critical, 52 = Yes/No + exclamation).
inline constexpr int kOkOnly = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kYesNo = 4;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;
inline constexpr int kDefaultButton2 = 256;

// Answers.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

struct Request {
    std::string text; // lines separated by "\n"
    std::string title;
    int style = 0;
};

using Handler = std::function<int(const Request&)>;

// Replaces the handler; returns the previous one so a test can put it back.
Handler SetHandler(Handler handler);

// Shows the box through the current handler. With no handler it answers kCancel,
// which every caller treats as "not confirmed".
int MsgBox(std::string_view text, std::string_view title, int style);

} // namespace MessageBoxes
