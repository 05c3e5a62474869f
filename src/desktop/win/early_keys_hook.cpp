#include "desktop/win/early_keys_hook.h"

#include "menuwindow/win/form2.h"
#include "menuwindow/win/open_menus.h"

#include <algorithm>

namespace {

// The hook's procedure has no context of its own: the one hook of the program is here.
EarlyKeysHook* g_hooked = nullptr;

// Marks the keys this program sends on, so that the hook lets them pass.
constexpr ULONG_PTR kSentOn = 0x54763245; // "Tv2E"

bool Wanted(const SettingsRec& settings) {
    return settings.MenuKeepKeysWhileOpening &&
           std::any_of(settings.HotSpots.begin(), settings.HotSpots.end(),
                       [](const HotspotRec& hotspot) { return hotspot.UseHotKey != 0; });
}

INPUT InputOf(const Hotspots::TypedKey& key) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(key.key);
    input.ki.wScan = static_cast<WORD>(key.scanCode);
    input.ki.dwFlags = (key.up ? KEYEVENTF_KEYUP : 0) | (key.extended ? KEYEVENTF_EXTENDEDKEY : 0);
    input.ki.dwExtraInfo = kSentOn;
    return input;
}

} // namespace

EarlyKeysHook::~EarlyKeysHook() {
    if (g_hooked == this)
        g_hooked = nullptr;
}

// An overdue keep ends here rather than in the hook, whose procedure must return at once.
void EarlyKeysHook::Tick(const SettingsRec& settings, OpenMenus& openMenus) {
    hotSpots_ = &settings.HotSpots;
    if (Wanted(settings) && !hook_) {
        hook_.reset(::SetWindowsHookExW(WH_KEYBOARD_LL, HookProc, ::GetModuleHandleW(nullptr), 0));
        g_hooked = this;
    } else if (!Wanted(settings) && hook_) {
        hook_.reset();
        LetGo(openMenus, nullptr);
    }
    if (keys_.Overdue(::GetTickCount()))
        LetGo(openMenus, nullptr);
}

// Keys typed while the kept ones are handed on are kept behind them (the menu's opening
// of a sub-menu serves the queue): the last of them ends keeping.
void EarlyKeysHook::LetGo(OpenMenus& openMenus, Form2* menu) {
    if (!keys_.Keeping())
        return;
    const int menuId = menu ? menu->id() : 0;
    while (std::optional<Hotspots::TypedKey> key = keys_.Next()) {
        Form2* target = openMenus.WindowWithKeyboard();
        if (!target)
            target = openMenus.WindowOf(menuId);
        if (!target) {
            SendOn(*key);
            return;
        }
        target->TypeKey(static_cast<WPARAM>(key->key), key->up, key->modifiers, key->time);
    }
}

// The keys go into the input again, after everything typed so far, to whatever window has
// the keyboard now.
void EarlyKeysHook::SendOn(const Hotspots::TypedKey& first) {
    std::vector<INPUT> inputs{InputOf(first)};
    while (std::optional<Hotspots::TypedKey> key = keys_.Next())
        inputs.push_back(InputOf(*key));
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

bool EarlyKeysHook::Keep(const KBDLLHOOKSTRUCT& info, bool up) {
    if (info.dwExtraInfo == kSentOn || !hotSpots_)
        return false;
    Hotspots::TypedKey key;
    key.key = static_cast<int>(info.vkCode);
    key.scanCode = info.scanCode;
    key.extended = (info.flags & LLKHF_EXTENDED) != 0;
    key.up = up;
    key.time = info.time;
    std::optional<Hotspots::HotKey> pressed;
    const bool keep = keys_.See(key, *hotSpots_, pressed) == Hotspots::EarlyKeys::Verdict::Keep;
    if (pressed)
        hotKeys_.Press(*pressed);
    return keep;
}

LRESULT CALLBACK EarlyKeysHook::HookProc(int code, WPARAM message, LPARAM info) {
    if (code == HC_ACTION && g_hooked) {
        const bool up = message == WM_KEYUP || message == WM_SYSKEYUP;
        if (g_hooked->Keep(*reinterpret_cast<const KBDLLHOOKSTRUCT*>(info), up))
            return 1;
    }
    return ::CallNextHookEx(nullptr, code, message, info);
}
