#include "prefs/win/startup_hotspots.h"

#include "prefs/startup_hotspots.h"
#include "win/text_convert.h"

#include <commctrl.h>

namespace PrefsWin {

namespace {

constexpr int kTextHeight = 12;
constexpr int kBoxHeight = 12;
constexpr int kRows = 5;

} // namespace

StartupHotspots::StartupHotspots(HWND panel, RECT room, const DialogFont& font, SettingsRec& working,
                                 std::function<void()> changed)
    : working_(working), changed_(std::move(changed)) {
    MakeChild(panel, WC_STATICW, L"Hotspots opened when the program starts:", SS_LEFT,
              {room.left, room.top, room.right, room.top + font.Y(8)});
    const int columnWidth = (room.right - room.left) / 2;
    for (int index = 0; index < static_cast<int>(boxes_.size()); ++index) {
        const int left = room.left + (index / kRows) * columnWidth;
        const int top = room.top + font.Y(kTextHeight + (index % kRows) * kBoxHeight);
        boxes_[static_cast<std::size_t>(index)] =
            MakeChild(panel, WC_BUTTONW, L"", BS_AUTOCHECKBOX | WS_TABSTOP,
                      {left, top, left + columnWidth - font.X(4), top + font.Y(10)}, kFirstId + index);
    }
    Refresh();
}

void StartupHotspots::Refresh() {
    for (int index = 0; index < static_cast<int>(boxes_.size()); ++index) {
        HWND box = boxes_[static_cast<std::size_t>(index)];
        const bool exists = index <= working_.NoOfHotSpots();
        ::ShowWindow(box, exists ? SW_SHOWNA : SW_HIDE);
        ::SetWindowTextW(box, Win::Widen(Preferences::StartupHotspotLabel(working_, index)).c_str());
        ::SendMessageW(box, BM_SETCHECK, Preferences::OpensAtStart(working_, index) ? BST_CHECKED : BST_UNCHECKED, 0);
    }
}

bool StartupHotspots::Command(int id, int code) {
    const int index = id - kFirstId;
    if (index < 0 || index >= static_cast<int>(boxes_.size()))
        return false;
    if (code == BN_CLICKED) {
        const bool checked = ::SendMessageW(boxes_[static_cast<std::size_t>(index)], BM_GETCHECK, 0, 0) == BST_CHECKED;
        Preferences::SetOpensAtStart(working_, index, checked);
        changed_();
    }
    return true;
}

} // namespace PrefsWin
