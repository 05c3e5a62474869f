#include "prefs/win/sound_events.h"

#include "core/message_box.h"
#include "core/win/system_values.h"
#include "menuwindow/look/program_relative.h"
#include "menuwindow/win/play_sound.h"
#include "prefs/sound_page.h"
#include "prefs/win/common_dialogs.h"
#include "win/text_convert.h"

#include <commctrl.h>

#include <algorithm>

using Preferences::kSoundEventNames;

namespace PrefsWin {

namespace {

// The buttons in the order of kSoundButtons.
enum ControlId { kListId = SoundEvents::kFirstId, kBrowseId, kPlayId, kRemoveId, kClearAllId };

constexpr int kButtonWidth = 50;
constexpr int kGap = 4;

} // namespace

SoundEvents::SoundEvents(HWND panel, RECT room, const DialogFont& font, SettingsRec& working,
                         std::string programFolder, std::function<void()> changed)
    : working_(working), programFolder_(std::move(programFolder)), changed_(std::move(changed)) {
    const int buttonHeight = font.Y(14);
    const int buttonsTop = room.bottom - buttonHeight;
    list_ = MakeChild(panel, WC_LISTVIEWW, L"",
                 LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER | WS_BORDER | WS_TABSTOP,
                 {room.left, room.top, room.right, buttonsTop - font.Y(kGap)}, kListId);
    ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT);
    const int eventWidth = font.X(80);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = eventWidth;
    column.pszText = const_cast<wchar_t*>(L"Event");
    ListView_InsertColumn(list_, 0, &column);
    column.cx = room.right - room.left - eventWidth - ::GetSystemMetrics(SM_CXVSCROLL);
    column.pszText = const_cast<wchar_t*>(L"Sound file");
    ListView_InsertColumn(list_, 1, &column);
    for (std::size_t event = 0; event < kSoundEventNames.size(); ++event) {
        std::wstring name = Win::Widen(kSoundEventNames[event]);
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = static_cast<int>(event);
        item.pszText = name.data();
        ListView_InsertItem(list_, &item);
    }
    ListView_SetItemState(list_, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);

    int left = room.left;
    for (int id = kBrowseId; id <= kClearAllId; ++id) {
        const std::wstring text = Win::Widen(Preferences::kSoundButtons[static_cast<std::size_t>(id - kBrowseId)]);
        MakeChild(panel, WC_BUTTONW, text.c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                  {left, buttonsTop, left + font.X(kButtonWidth), buttonsTop + buttonHeight}, id);
        left += font.X(kButtonWidth + kGap);
    }
    note_ = MakeChild(panel, WC_STATICW, L"", SS_LEFT,
                 {left, buttonsTop + font.Y(3), room.right, buttonsTop + buttonHeight}, kFirstId + 9);
    Refresh();
}

void SoundEvents::Refresh() {
    for (std::size_t event = 0; event < working_.SoundFx.size(); ++event) {
        const std::string& path = working_.SoundFx[event];
        std::wstring shown = Win::Widen(path);
        if (!path.empty() && !SystemValues::FileExists(MenuWindow::ResolveProgramRelative(path, programFolder_)))
            shown += L"  (not found)";
        ListView_SetItemText(list_, static_cast<int>(event), 1, shown.data());
    }
}

int SoundEvents::Selected() const {
    return ListView_GetNextItem(list_, -1, LVNI_SELECTED);
}

void SoundEvents::SetSound(int event, std::string path) {
    if (event < 0 || event >= static_cast<int>(working_.SoundFx.size()))
        return;
    working_.SoundFx[static_cast<std::size_t>(event)] = std::move(path);
    Refresh();
    changed_();
}

void SoundEvents::cmdBrowse_Click() {
    int event = Selected();
    if (event < 0)
        return;
    std::wstring patterns = Win::Widen(Preferences::kSoundFilePatterns);
    std::replace(patterns.begin(), patterns.end(), L' ', L';');
    if (auto file = PickFile(::GetAncestor(list_, GA_ROOT), working_.SoundFx[static_cast<std::size_t>(event)],
                             L"Sounds", patterns.c_str()))
        SetSound(event, *file);
}

void SoundEvents::cmdPlay_Click() {
    int event = Selected();
    if (event < 0)
        return;
    std::string path = MenuWindow::ResolveProgramRelative(working_.SoundFx[static_cast<std::size_t>(event)], programFolder_);
    if (path.empty()) {
        ::SetWindowTextW(note_, L"No sound chosen.");
        return;
    }
    if (!SystemValues::FileExists(path)) {
        ::SetWindowTextW(note_, L"The file is not there.");
        return;
    }
    ::SetWindowTextW(note_, L"");
    MenuWindow::PlaySoundFile(path, {MenuWindow::WaveDeviceAvailable(), -1, programFolder_});
}

void SoundEvents::cmdClearAll_Click() {
    if (MessageBoxes::MsgBox(Preferences::kClearSoundsQuestion, "Tarvex Preferences",
                             MessageBoxes::kYesNo | MessageBoxes::kExclamation) != MessageBoxes::kYes)
        return;
    working_.SoundFx = {};
    Refresh();
    changed_();
}

bool SoundEvents::Command(int id, int code) {
    if (code != BN_CLICKED)
        return id >= kFirstId && id <= kFirstId + 9;
    switch (id) {
    case kBrowseId: cmdBrowse_Click(); return true;
    case kPlayId: cmdPlay_Click(); return true;
    case kRemoveId: SetSound(Selected(), {}); return true;
    case kClearAllId: cmdClearAll_Click(); return true;
    default: return false;
    }
}

} // namespace PrefsWin
