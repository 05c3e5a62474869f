#include "prefs/win/hotspots_page.h"

#include "desktop/hotspots.h"
#include "prefs/startup_hotspots.h"
#include "prefs/win/common_dialogs.h"
#include "desktop/win/hotspot_windows.h"
#include "menuwindow/win/screen_area.h"
#include "prefs/application_picker.h"
#include "prefs/win/form3.h"
#include "win/text_convert.h"

#include <commctrl.h>

#include <algorithm>

using Preferences::HotspotField;

namespace PrefsWin {

namespace {

enum ControlId {
    kListId = HotspotsPage::kFirstId,
    kAddId,
    kDeleteId,
    kBrowseId,
    kSelectAreaId,
    kPickerId,
    kDesktopId,
    kZonesId,
    kThemeBrowseId,
    kSoundBrowseId,
    kNoteId = HotspotsPage::kFirstId + 19,
    kFirstRowId = HotspotsPage::kFirstId + 20
};

enum class Kind { Choice, Target, Text, Check, HotKey, Application, Browsed };

struct RowDef {
    HotspotField field;
    Kind kind;
};

// In the order of the fields, whose labels core gives.
constexpr RowDef kRows[] = {
    {HotspotField::Action, Kind::Choice},      {HotspotField::Target, Kind::Target},
    {HotspotField::Arguments, Kind::Text},     {HotspotField::StartFolder, Kind::Text},
    {HotspotField::FileTypes, Kind::Text},     {HotspotField::Caption, Kind::Text},
    {HotspotField::MouseEvent, Kind::Choice},  {HotspotField::Monitor, Kind::Choice},
    {HotspotField::Application, Kind::Application},
    {HotspotField::X1, Kind::Text},            {HotspotField::Y1, Kind::Text},
    {HotspotField::X2, Kind::Text},            {HotspotField::Y2, Kind::Text},
    {HotspotField::OnMouse, Kind::Check},      {HotspotField::MenuLeft, Kind::Text},
    {HotspotField::MenuTop, Kind::Text},       {HotspotField::UseHotKey, Kind::Check},
    {HotspotField::HotKey, Kind::HotKey},      {HotspotField::Group, Kind::Text},
    {HotspotField::AlwaysOpen, Kind::Check},   {HotspotField::Horizontal, Kind::Check},
    {HotspotField::ForceOnTop, Kind::Check},   {HotspotField::Theme, Kind::Browsed},
    {HotspotField::Sound, Kind::Browsed},
};

std::wstring ButtonText(std::size_t which) {
    return Win::Widen(Preferences::kHotspotButtons[which]);
}

constexpr int kListHeight = 56;
constexpr int kButtonWidth = 50;
constexpr int kRowHeight = 14;
constexpr int kLabelShare = 40; // per cent of the room's width
constexpr int kGap = 4;
constexpr int kDesktopWidth = 36;

void AddChoice(HWND combo, std::string_view text) {
    ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(text).c_str()));
}

} // namespace

HotspotsPage::HotspotsPage(HWND panel, RECT room, const DialogFont& font, SettingsRec& working,
                           std::vector<std::string> menuNames, std::vector<CommandTable::CommandRow> commands,
                           std::function<void()> changed)
    : panel_(panel), working_(working), menuNames_(std::move(menuNames)), commands_(std::move(commands)),
      changed_(std::move(changed)) {
    const int width = room.right - room.left;
    const int listRight = room.left + width / 2;
    list_ = MakeChild(panel, WC_LISTBOXW, L"", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
                      {room.left, room.top, listRight, room.top + font.Y(kListHeight)}, kListId);
    const int buttonLeft = listRight + font.X(kGap);
    auto button = [&](const wchar_t* text, int id, int top) {
        return MakeChild(panel, WC_BUTTONW, text, BS_PUSHBUTTON | WS_TABSTOP,
                         {buttonLeft, top, buttonLeft + font.X(kButtonWidth), top + font.Y(14)}, id);
    };
    button(ButtonText(0).c_str(), kAddId, room.top);
    button(ButtonText(1).c_str(), kDeleteId, room.top + font.Y(18));
    button(ButtonText(5).c_str(), kZonesId, room.top + font.Y(36));
    note_ = MakeChild(panel, WC_STATICW, L"", SS_LEFT | SS_ENDELLIPSIS,
                      {room.left, room.top + font.Y(kListHeight + 2), room.right,
                       room.top + font.Y(kListHeight + 11)},
                      kNoteId);

    const int fieldLeft = room.left + width * kLabelShare / 100;
    int top = room.top + font.Y(kListHeight + 14);
    int id = kFirstRowId;
    for (const RowDef& def : kRows) {
        Row row{def.field};
        const int bottom = top + font.Y(kRowHeight - 2);
        const std::wstring labelText = Win::Widen(Preferences::FieldLabel(def.field));
        const wchar_t* label = labelText.c_str();
        switch (def.kind) {
        case Kind::Check:
            row.control = MakeChild(panel, WC_BUTTONW, label, BS_AUTOCHECKBOX | WS_TABSTOP,
                                    {room.left, top, room.right, bottom}, id);
            break;
        case Kind::Choice: {
            row.label = MakeChild(panel, WC_STATICW, label, SS_LEFT, {room.left, top + font.Y(2), fieldLeft, bottom});
            row.control = MakeChild(panel, WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP,
                                    {fieldLeft, top, room.right, top + font.Y(120)}, id);
            if (def.field == HotspotField::Action)
                for (std::string_view name : Preferences::kActionNames)
                    AddChoice(row.control, name);
            else if (def.field == HotspotField::MouseEvent)
                for (std::string_view name : Preferences::kMouseEventNames)
                    AddChoice(row.control, name);
            break;
        }
        case Kind::Target: {
            const int browseLeft = room.right - font.X(kButtonWidth);
            row.label = MakeChild(panel, WC_STATICW, L"", SS_LEFT, {room.left, top + font.Y(2), fieldLeft, bottom});
            row.control = MakeChild(panel, WC_COMBOBOXW, L"", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP,
                                    {fieldLeft, top, browseLeft - font.X(kGap), top + font.Y(120)}, id);
            browse_ = MakeChild(panel, WC_BUTTONW, ButtonText(2).c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                                {browseLeft, top, room.right, bottom}, kBrowseId);
            break;
        }
        case Kind::HotKey:
            row.label = MakeChild(panel, WC_STATICW, label, SS_LEFT, {room.left, top + font.Y(2), fieldLeft, bottom});
            row.control = MakeChild(panel, HOTKEY_CLASSW, L"", WS_BORDER | WS_TABSTOP, {fieldLeft, top, room.right, bottom}, id);
            ::SendMessageW(row.control, HKM_SETRULES,
                           HKCOMB_NONE | HKCOMB_A | HKCOMB_CA | HKCOMB_SA | HKCOMB_SC | HKCOMB_SCA, HOTKEYF_CONTROL);
            break;
        case Kind::Text:
            row.label = MakeChild(panel, WC_STATICW, label, SS_LEFT, {room.left, top + font.Y(2), fieldLeft, bottom});
            row.control = MakeChild(panel, WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP,
                                    {fieldLeft, top, room.right, bottom}, id);
            break;
        case Kind::Browsed: {
            const int browseLeft = room.right - font.X(kButtonWidth);
            row.label = MakeChild(panel, WC_STATICW, label, SS_LEFT, {room.left, top + font.Y(2), fieldLeft, bottom});
            row.control = MakeChild(panel, WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP,
                                    {fieldLeft, top, browseLeft - font.X(kGap), bottom}, id);
            row.button = MakeChild(panel, WC_BUTTONW, ButtonText(6).c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                                   {browseLeft, top, room.right, bottom},
                                   def.field == HotspotField::Theme ? kThemeBrowseId : kSoundBrowseId);
            break;
        }
        case Kind::Application: {
            // The title can be typed, taken from a window by dragging the picker onto it, or set to "Desktop".
            const int desktopLeft = room.right - font.X(kDesktopWidth);
            const int pickerLeft = desktopLeft - font.X(kGap) - (bottom - top);
            row.label = MakeChild(panel, WC_STATICW, label, SS_LEFT, {room.left, top + font.Y(2), fieldLeft, bottom});
            row.control = MakeChild(panel, WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP,
                                    {fieldLeft, top, pickerLeft - font.X(kGap), bottom}, id);
            picker_ = std::make_unique<WindowPicker>(
                panel, RECT{pickerLeft, top, desktopLeft - font.X(kGap), bottom}, kPickerId,
                WindowPicker::Events{[this](HWND under) { SetNote(Preferences::PickingNote(PickAt(under))); },
                                     [this](HWND under) { Picker_Dropped(under); }, [this] { ShowHotspot(); }});
            desktop_ = MakeChild(panel, WC_BUTTONW, ButtonText(4).c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                                 {desktopLeft, top, room.right, bottom}, kDesktopId);
            break;
        }
        }
        rows_.push_back(row);
        top += font.Y(kRowHeight);
        ++id;
        if (def.field == HotspotField::Y2) { // the area can be dragged instead of typed
            selectArea_ = MakeChild(panel, WC_BUTTONW, ButtonText(3).c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                                    {fieldLeft, top, fieldLeft + font.X(70), top + font.Y(kRowHeight - 2)}, kSelectAreaId);
            top += font.Y(kRowHeight);
        }
    }
    Refresh();
}

HotspotRec& HotspotsPage::Selected() {
    selected_ = std::clamp(selected_, 0, working_.NoOfHotSpots());
    return working_.HotSpots[static_cast<std::size_t>(selected_)];
}

void HotspotsPage::Refresh() {
    FillList();
    ShowHotspot();
}

void HotspotsPage::SetMenuNames(std::vector<std::string> menuNames) {
    menuNames_ = std::move(menuNames);
    ShowHotspot();
}

void HotspotsPage::FillList() {
    ::SendMessageW(list_, LB_RESETCONTENT, 0, 0);
    for (int index = 0; index <= working_.NoOfHotSpots(); ++index)
        ::SendMessageW(list_, LB_ADDSTRING, 0,
                       reinterpret_cast<LPARAM>(Win::Widen(Preferences::HotspotListName(index)).c_str()));
}

void HotspotsPage::FillTargetChoices() {
    HWND target = nullptr;
    for (const Row& row : rows_)
        if (row.field == HotspotField::Target)
            target = row.control;
    ::SendMessageW(target, CB_RESETCONTENT, 0, 0);
    const HotspotRec& hotspot = Selected();
    if (hotspot.Type == Hotspots::kShowMenu)
        for (const std::string& name : menuNames_)
            AddChoice(target, name);
    if (hotspot.Type == Hotspots::kRunCommand)
        for (const CommandTable::CommandRow& command : commands_)
            AddChoice(target, command.label + " (" + command.command + ")");
}

void HotspotsPage::ShowHotspot() {
    showing_ = true;
    const HotspotRec& hotspot = Selected();
    ::SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(selected_), 0);
    FillTargetChoices();
    for (Row& row : rows_) {
        const bool enabled =
            Preferences::FieldApplies(hotspot, row.field) && Preferences::FieldEnabled(hotspot, row.field);
        switch (row.field) {
        case HotspotField::Action:
            ::SendMessageW(row.control, CB_SETCURSEL, hotspot.Type, 0);
            break;
        case HotspotField::MouseEvent:
            ::SendMessageW(row.control, CB_SETCURSEL, static_cast<WPARAM>(hotspot.MouseButton), 0);
            break;
        case HotspotField::Monitor:
            ::SendMessageW(row.control, CB_RESETCONTENT, 0, 0);
            for (const std::string& name :
                 Preferences::MonitorChoices(static_cast<int>(MenuWindow::CurrentMonitors().size()), hotspot.Monitor))
                AddChoice(row.control, name);
            ::SendMessageW(row.control, CB_SETCURSEL, static_cast<WPARAM>(std::max<int>(hotspot.Monitor, 0)), 0);
            break;
        case HotspotField::HotKey: {
            const WORD modifier = hotspot.ShiftHotKey ? HOTKEYF_SHIFT : HOTKEYF_CONTROL;
            ::SendMessageW(row.control, HKM_SETHOTKEY, MAKEWORD(hotspot.Hotkey, modifier), 0);
            break;
        }
        default:
            if (Preferences::IsSwitch(row.field))
                ::SendMessageW(row.control, BM_SETCHECK,
                               Preferences::IsChecked(hotspot, row.field) ? BST_CHECKED : BST_UNCHECKED, 0);
            else
                ::SetWindowTextW(row.control, Win::Widen(Preferences::FieldText(hotspot, row.field)).c_str());
            break;
        }
        if (row.field == HotspotField::Target)
            ::SetWindowTextW(row.label, (Win::Widen(Preferences::TargetLabel(hotspot.Type)) + L":").c_str());
        for (HWND part : {row.label, row.control, row.button})
            if (part)
                ::EnableWindow(part, enabled);
    }
    const bool browses = hotspot.Type == Hotspots::kShowFolder || hotspot.Type == Hotspots::kRunProgram;
    ::EnableWindow(browse_, browses);
    const bool hasArea = Preferences::FieldEnabled(hotspot, HotspotField::X1);
    ::EnableWindow(selectArea_, hasArea);
    ::EnableWindow(picker_->hwnd(), hasArea);
    ::EnableWindow(desktop_, hasArea);
    SetNote(Preferences::HotKeyClash(working_, selected_).value_or(""));
    showing_ = false;
}

bool HotspotsPage::Command(int id, int code) {
    switch (id) {
    case kListId:
        if (code == LBN_SELCHANGE) {
            selected_ = static_cast<int>(::SendMessageW(list_, LB_GETCURSEL, 0, 0));
            ShowHotspot();
        }
        return true;
    case kAddId:
    case kDeleteId:
    case kBrowseId:
    case kSelectAreaId:
    case kDesktopId:
    case kZonesId:
    case kThemeBrowseId:
    case kSoundBrowseId:
        if (code != BN_CLICKED)
            return true;
        if (id == kAddId)
            cmdAdd_Click();
        else if (id == kDeleteId)
            cmdDelete_Click();
        else if (id == kBrowseId)
            cmdBrowse_Click();
        else if (id == kSelectAreaId)
            cmdSelectArea_Click();
        else if (id == kZonesId)
            zones_.Show(::GetAncestor(panel_, GA_ROOT), working_.HotSpots);
        else if (id == kThemeBrowseId || id == kSoundBrowseId)
            cmdBrowseLook_Click(id == kThemeBrowseId ? HotspotField::Theme : HotspotField::Sound);
        else
            SetApplication(std::string(Hotspots::kDesktopApp));
        return true;
    default:
        break;
    }
    const int row = id - kFirstRowId;
    if (row < 0 || row >= static_cast<int>(rows_.size()))
        return false;
    if (!showing_)
        Field_Changed(rows_[static_cast<std::size_t>(row)], code);
    return true;
}

void HotspotsPage::Field_Changed(Row& row, int code) {
    HotspotRec& hotspot = Selected();
    switch (row.field) {
    case HotspotField::Action:
    case HotspotField::MouseEvent:
    case HotspotField::Monitor: {
        if (code != CBN_SELCHANGE)
            return;
        const auto index = static_cast<int>(::SendMessageW(row.control, CB_GETCURSEL, 0, 0));
        if (row.field == HotspotField::Action)
            hotspot.Type = static_cast<std::uint8_t>(index);
        else if (row.field == HotspotField::MouseEvent)
            hotspot.MouseButton = static_cast<std::int16_t>(index);
        else
            hotspot.Monitor = static_cast<std::int16_t>(index);
        ShowHotspot();
        break;
    }
    case HotspotField::Target: {
        if (code == CBN_SELCHANGE) {
            const auto index = static_cast<std::size_t>(::SendMessageW(row.control, CB_GETCURSEL, 0, 0));
            std::string chosen = hotspot.Type == Hotspots::kRunCommand && index < commands_.size()
                                     ? commands_[index].command
                                     : (index < menuNames_.size() ? menuNames_[index] : std::string());
            Preferences::SetFieldText(hotspot, row.field, chosen);
        } else if (code == CBN_EDITCHANGE) {
            Preferences::SetFieldText(hotspot, row.field, ControlText(row.control));
        } else {
            return;
        }
        break;
    }
    case HotspotField::HotKey: {
        if (code != EN_CHANGE)
            return;
        auto value = static_cast<WORD>(::SendMessageW(row.control, HKM_GETHOTKEY, 0, 0));
        const BYTE modifiers = HIBYTE(value);
        if (auto refused = Preferences::SetHotKey(hotspot, LOBYTE(value), modifiers & HOTKEYF_SHIFT,
                                                  modifiers & HOTKEYF_CONTROL, modifiers & HOTKEYF_ALT)) {
            SetNote(*refused);
            return;
        }
        SetNote(Preferences::HotKeyClash(working_, selected_).value_or(""));
        break;
    }
    default: {
        if (Preferences::IsSwitch(row.field)) {
            if (code != BN_CLICKED)
                return;
            Preferences::SetChecked(hotspot, row.field,
                                    ::SendMessageW(row.control, BM_GETCHECK, 0, 0) == BST_CHECKED);
            ShowHotspot();
            break;
        }
        if (code != EN_CHANGE)
            return;
        auto refused = Preferences::SetFieldText(hotspot, row.field, ControlText(row.control));
        SetNote(refused.value_or(""));
        if (refused)
            return;
        break;
    }
    }
    Changed();
}

void HotspotsPage::cmdAdd_Click() {
    const std::string firstMenu = menuNames_.empty() ? std::string() : menuNames_.front();
    if (auto refused = Preferences::AddHotspot(working_, ::GetSystemMetrics(SM_CXSCREEN),
                                               ::GetSystemMetrics(SM_CYSCREEN), firstMenu)) {
        SetNote(*refused);
        return;
    }
    selected_ = working_.NoOfHotSpots();
    Refresh();
    Changed();
}

void HotspotsPage::cmdDelete_Click() {
    if (!Preferences::DeleteHotspot(working_, selected_)) {
        SetNote("The Default hotspot stays: change it instead");
        return;
    }
    --selected_;
    Refresh();
    Changed();
}

void HotspotsPage::cmdBrowse_Click() {
    HotspotRec& hotspot = Selected();
    HWND owner = ::GetAncestor(panel_, GA_ROOT);
    std::optional<std::string> picked = hotspot.Type == Hotspots::kShowFolder
                                            ? PickFolder(owner, hotspot.Menupath1)
                                            : PickFile(owner, hotspot.Menupath1, L"Programs", L"*.exe;*.lnk;*.*");
    if (!picked)
        return;
    Preferences::SetFieldText(hotspot, HotspotField::Target, *picked);
    ShowHotspot();
    Changed();
}

// The menu's theme is a folder; its sound a wave file.
void HotspotsPage::cmdBrowseLook_Click(HotspotField field) {
    HotspotRec& hotspot = Selected();
    HWND owner = ::GetAncestor(panel_, GA_ROOT);
    std::optional<std::string> picked = field == HotspotField::Theme
                                            ? PickFolder(owner, hotspot.Theme)
                                            : PickFile(owner, hotspot.SoundPath, L"Sounds", L"*.wav");
    if (!picked)
        return;
    Preferences::SetFieldText(hotspot, field, *picked);
    ShowHotspot();
    Changed();
}

void HotspotsPage::cmdSelectArea_Click() {
    std::optional<RECT> area = Form3::PickArea(::GetAncestor(panel_, GA_ROOT));
    if (!area)
        return;
    HotspotRec& hotspot = Selected();
    Preferences::SetFieldText(hotspot, HotspotField::X1, std::to_string(area->left));
    Preferences::SetFieldText(hotspot, HotspotField::Y1, std::to_string(area->top));
    Preferences::SetFieldText(hotspot, HotspotField::X2, std::to_string(area->right));
    Preferences::SetFieldText(hotspot, HotspotField::Y2, std::to_string(area->bottom));
    ShowHotspot();
    Changed();
}

Preferences::PickedApplication HotspotsPage::PickAt(HWND under) const {
    auto handle = [](std::uintptr_t window) { return reinterpret_cast<HWND>(window); };
    Hotspots::WindowLookup lookup{
        [&](std::uintptr_t window) { return HotspotWindows::TitleOf(handle(window)); },
        [&](std::uintptr_t window) {
            return reinterpret_cast<std::uintptr_t>(::GetAncestor(handle(window), GA_PARENT));
        },
        reinterpret_cast<std::uintptr_t>(::GetDesktopWindow())};
    return Preferences::PickApplication(reinterpret_cast<std::uintptr_t>(under), lookup,
                                        [&](std::uintptr_t window) { return HotspotWindows::IsOurs(handle(window)); });
}

void HotspotsPage::Picker_Dropped(HWND under) {
    Preferences::PickedApplication picked = PickAt(under);
    if (picked.app.empty()) {
        SetNote(picked.refusal);
        return;
    }
    SetApplication(picked.app);
}

void HotspotsPage::SetApplication(const std::string& app) {
    Preferences::SetFieldText(Selected(), HotspotField::Application, app);
    ShowHotspot();
    Changed();
}

void HotspotsPage::SetNote(const std::string& note) {
    ::SetWindowTextW(note_, Win::Widen(note).c_str());
}

void HotspotsPage::Changed() {
    if (changed_)
        changed_();
}

} // namespace PrefsWin
