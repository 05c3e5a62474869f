// Watches every key as it is typed, before any window gets it, with a low-level keyboard
// hook: keys typed right after a hotspot's hot key are kept (EarlyKeys) until the menu it
// opens stands painted with the keyboard, then handed to it in order; when no menu comes,
// they are sent on as typed. The hook runs only while MenuKeepKeysWhileOpening is on and
// some hotspot has a hot key, so that otherwise typing never passes through this program.
#pragma once

#include "desktop/early_keys.h"
#include "desktop/hotspot_dispatch.h"
#include "win/handles.h"

#include <windows.h>

class Form2;
class OpenMenus;

class EarlyKeysHook {
public:
    explicit EarlyKeysHook(Hotspots::HotKeyWatch& hotKeys) : hotKeys_(hotKeys) {}
    ~EarlyKeysHook();
    EarlyKeysHook(const EarlyKeysHook&) = delete;
    EarlyKeysHook& operator=(const EarlyKeysHook&) = delete;

    // Timer3: the hook is set or removed as the settings now ask; kept keys that waited
    // too long go on.
    void Tick(const SettingsRec& settings, OpenMenus& openMenus);
    // Timer1 looked at the hot keys: the kept keys go to the menu that opened, or on when
    // none did (menu is null).
    void LetGo(OpenMenus& openMenus, Form2* menu);

private:
    static LRESULT CALLBACK HookProc(int code, WPARAM message, LPARAM info);
    bool Keep(const KBDLLHOOKSTRUCT& info, bool up);
    void SendOn(const Hotspots::TypedKey& first);

    Hotspots::HotKeyWatch& hotKeys_;
    const std::vector<HotspotRec>* hotSpots_ = nullptr;
    Hotspots::EarlyKeys keys_;
    Win::UniqueHook hook_;
};
