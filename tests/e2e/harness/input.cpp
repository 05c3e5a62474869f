#include "harness/input.h"

#include "harness/wait.h"

#include <vector>

namespace E2e {

namespace {

// A mouse event at a point, as a mouse driver reports it: the point in 0..65535 across
// the primary screen, rounded up so that the system's rounding down lands on the pixel.
void SendMouse(int x, int y, DWORD flags) {
    int width = ::GetSystemMetrics(SM_CXSCREEN);
    int height = ::GetSystemMetrics(SM_CYSCREEN);
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = static_cast<LONG>((static_cast<long long>(x) * 65536 + width - 1) / width);
    input.mi.dy = static_cast<LONG>((static_cast<long long>(y) * 65536 + height - 1) / height);
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    ::SendInput(1, &input, sizeof input);
}

bool CursorAt(int x, int y) {
    POINT cursor{};
    return ::GetCursorPos(&cursor) && cursor.x == x && cursor.y == y;
}

} // namespace

// Wine can still be taking in the pointer's position of an X event from before the
// move, which puts the cursor back; so the move is repeated until it stays.
bool MoveMouse(int x, int y) {
    constexpr int kAttempts = 20;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        SendMouse(x, y, 0);
        if (!WaitUntil([&] { return CursorAt(x, y); }, 250ms))
            continue;
        Settle(100ms);
        if (CursorAt(x, y))
            return true;
    }
    return false;
}

bool SweepMouseTo(int x, int y) {
    for (int attempt = 0; attempt < 20; ++attempt) {
        SendMouse(x, y, 0);
        if (WaitUntil([&] { return CursorAt(x, y); }, 250ms))
            return true;
    }
    return false;
}

bool Click(int x, int y, Button button, Duration hold) {
    if (!MoveMouse(x, y))
        return false;
    struct Flags {
        DWORD down;
        DWORD up;
    };
    Flags flags = button == Button::Right    ? Flags{MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP}
                  : button == Button::Middle ? Flags{MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP}
                                             : Flags{MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
    SendMouse(x, y, flags.down);
    Settle(hold);
    SendMouse(x, y, flags.up);
    return true;
}

void ClickDuringCapture(int x, int y) {
    SendMouse(x, y, MOUSEEVENTF_LEFTDOWN);
    Settle(50ms);
    SendMouse(x, y, MOUSEEVENTF_LEFTUP);
}

bool QuickClicks(int x, int y) {
    if (!Click(x, y))
        return false;
    Settle(60ms);
    ClickDuringCapture(x, y);
    return true;
}

// Once the button is down the program's move loop holds the cursor against moves from
// another process, as a popup menu does, but still sees each move's point: so only the
// press waits for the cursor to stay.
bool Drag(int fromX, int fromY, int toX, int toY, const std::function<void()>& beforeRelease) {
    if (!MoveMouse(fromX, fromY))
        return false;
    SendMouse(fromX, fromY, MOUSEEVENTF_LEFTDOWN);
    Settle(50ms);
    constexpr int kSteps = 5;
    for (int step = 1; step <= kSteps; ++step) {
        SendMouse(fromX + (toX - fromX) * step / kSteps, fromY + (toY - fromY) * step / kSteps, 0);
        Settle(30ms);
    }
    Settle(100ms);
    if (beforeRelease)
        beforeRelease();
    SendMouse(toX, toY, MOUSEEVENTF_LEFTUP);
    return true;
}

bool ClickWindow(HWND hwnd) {
    RECT rect{};
    ::GetWindowRect(hwnd, &rect);
    return Click((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

namespace {

void SendKey(WORD virtualKey, bool up) {
    INPUT key{};
    key.type = INPUT_KEYBOARD;
    key.ki.wVk = virtualKey;
    key.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    ::SendInput(1, &key, sizeof key);
}

} // namespace

HeldKey::HeldKey(WORD virtualKey) : key_(virtualKey) {
    SendKey(key_, false);
    WaitUntil([this] { return (::GetAsyncKeyState(key_) & 0x8000) != 0; }, 2s);
}

HeldKey::~HeldKey() {
    SendKey(key_, true);
    WaitUntil([this] { return (::GetAsyncKeyState(key_) & 0x8000) == 0; }, 2s);
}

void TapKeys(WORD modifier, WORD virtualKey, Duration hold) {
    SendKey(modifier, false);
    SendKey(virtualKey, false);
    Settle(hold);
    SendKey(virtualKey, true);
    SendKey(modifier, true);
}

void HotKeyThenKeys(WORD modifier, WORD virtualKey, std::initializer_list<WORD> keys) {
    std::vector<INPUT> inputs;
    auto add = [&](WORD key, bool up) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
        inputs.push_back(input);
    };
    add(modifier, false);
    add(virtualKey, false);
    add(virtualKey, true);
    add(modifier, true);
    for (WORD key : keys) {
        add(key, false);
        add(key, true);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void PressKey(WORD virtualKey) {
    INPUT keys[2]{};
    keys[0].type = INPUT_KEYBOARD;
    keys[0].ki.wVk = virtualKey;
    keys[1] = keys[0];
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(2, keys, sizeof keys[0]);
}

} // namespace E2e
