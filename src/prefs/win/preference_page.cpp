#include "prefs/win/preference_page.h"

#include "core/win/system_values.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/win/menu_fonts.h"
#include "menuwindow/win/theme_pictures.h"
#include "prefs/control_values.h"
#include "prefs/win/common_dialogs.h"
#include "win/text_convert.h"

#include <commctrl.h>

#include <algorithm>

using namespace Preferences;

namespace PrefsWin {

namespace {

constexpr int kFirstId = 1000;
constexpr int kIdsPerRow = 4;
enum Role { kControl = 0, kSecond = 1 };

constexpr COLORREF kNoteColour = RGB(192, 0, 0);

std::wstring FontText(const SettingsRec& settings, const SettingDef& key) {
    FontKeys keys = FontKeysOf(key);
    std::wstring text = Win::Widen(TextOf(settings, key));
    if (keys.size)
        text += L", " + std::to_wstring(NumberOf(settings, *keys.size)) + L" pt";
    if (keys.bold && IsChecked(settings, *keys.bold))
        text += L", bold";
    if (keys.italic && IsChecked(settings, *keys.italic))
        text += L", italic";
    return text;
}

// What is wrong with the pictures the working copy would draw from its folder.
std::string PictureFolderNoteOf(const SettingsRec& settings, const std::string& programFolder) {
    const std::string folder = MenuWindow::PictureFolderPath(settings.BitmapsFolder, programFolder);
    MenuWindow::ThemePictures pictures;
    pictures.List(folder);
    std::vector<std::string> notPictures;
    for (const std::string& file : MenuWindow::PicturesInUse(pictures.Names(), settings))
        if (!pictures.Loads(file))
            notPictures.push_back(file);
    return PictureFolderNote(settings.BitmapsFolder, SystemValues::FolderExists(folder), notPictures);
}

void FillList(HWND list, std::initializer_list<const wchar_t*> texts) {
    for (const wchar_t* text : texts)
        ::SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

} // namespace

PreferencePage::PreferencePage(PrefPage page, SettingsRec& working, const DialogFont& font, std::string programFolder,
                               Changed changed)
    : page_(page), working_(working), font_(font), programFolder_(std::move(programFolder)),
      changed_(std::move(changed)) {}

bool PreferencePage::Create(HWND parent, std::span<const GroupRoom> rooms) {
    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    WNDCLASSEXW wc = Win::FormClass<PreferencePage>(instance, kClassName);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    if (!Win::RegisterFormClass(wc))
        return false;
    if (!::CreateWindowExW(WS_EX_CONTROLPARENT, kClassName, L"", WS_CHILD | WS_VSCROLL, 0, 0, 0, 0,
                           parent, nullptr, instance, this))
        return false;

    layout_ = LayOutPage(page_, kPageWidth, rooms);
    contentHeight_ = font_.Y(layout_.height);
    for (const PlacedGroup& group : layout_.groups)
        MakeControl(WC_BUTTONW, Win::Widen(group.title).c_str(), BS_GROUPBOX, group.box);
    rows_.resize(layout_.keys.size());
    for (std::size_t r = 0; r < rows_.size(); ++r) {
        rows_[r].placed = &layout_.keys[r];
        MakeRow(rows_[r], kFirstId + static_cast<int>(r) * kIdsPerRow);
        rowOfId_[kFirstId + static_cast<int>(r) * kIdsPerRow + kControl] = r;
        rowOfId_[kFirstId + static_cast<int>(r) * kIdsPerRow + kSecond] = r;
    }
    SetFontOfChildren(window_.get(), font_.get());
    Refresh();
    return true;
}

HWND PreferencePage::MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, const DluRect& rect,
                                 int id) {
    RECT pixels = font_.Pixels(rect);
    ::OffsetRect(&pixels, 0, -scroll_);
    return MakeChild(window_.get(), className, text, style, pixels, id);
}

void PreferencePage::MakeRow(Row& row, int id) {
    const PlacedKey& placed = *row.placed;
    const PrefControl& control = placed.key->control;
    const std::wstring label = Win::Widen(control.label);
    const int first = id + kControl;
    const int second = id + kSecond;
    if (control.kind != ControlKind::Check)
        MakeControl(WC_STATICW, label.c_str(), SS_LEFT | SS_NOTIFY, placed.label);
    switch (control.kind) {
    case ControlKind::Check:
        row.control = MakeControl(WC_BUTTONW, label.c_str(), BS_AUTOCHECKBOX | WS_TABSTOP, placed.control, first);
        break;
    case ControlKind::Number: {
        row.control = MakeControl(WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, placed.control, first);
        HWND spin = MakeControl(UPDOWN_CLASSW, L"",
                                UDS_ALIGNRIGHT | UDS_SETBUDDYINT | UDS_ARROWKEYS | UDS_NOTHOUSANDS, {}, second);
        ::SendMessageW(spin, UDM_SETBUDDY, reinterpret_cast<WPARAM>(row.control), 0);
        ::SendMessageW(spin, UDM_SETRANGE32, static_cast<WPARAM>(control.min), static_cast<LPARAM>(control.max));
        row.note = MakeControl(WC_STATICW, L"", SS_LEFT, placed.note);
        break;
    }
    case ControlKind::Choice:
        row.control = MakeControl(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP,
                                  {placed.control.x, placed.control.y, placed.control.width, 120}, first);
        for (const PrefChoice& choice : control.choices)
            ::SendMessageW(row.control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(choice.label).c_str()));
        break;
    case ControlKind::Corner:
        row.control = MakeControl(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_TABSTOP,
                                  {placed.control.x, placed.control.y, placed.control.width, 60}, first);
        FillList(row.control, {L"Top", L"Bottom"});
        MakeControl(WC_STATICW, L"Hrz.Pos.:", SS_LEFT, placed.secondLabel);
        row.second = MakeControl(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_TABSTOP,
                                 {placed.second.x, placed.second.y, placed.second.width, 60}, second);
        FillList(row.second, {L"Left", L"Right"});
        break;
    case ControlKind::Colour:
        row.control = MakeControl(WC_STATICW, L"", SS_SUNKEN | SS_NOTIFY, placed.control, first);
        row.second = MakeControl(WC_BUTTONW, L"Change...", BS_PUSHBUTTON | WS_TABSTOP, placed.second, second);
        break;
    case ControlKind::Font:
        row.control = MakeControl(WC_BUTTONW, L"", BS_PUSHBUTTON | WS_TABSTOP, placed.control, first);
        row.note = MakeControl(WC_STATICW, L"", SS_LEFT | SS_ENDELLIPSIS, placed.note);
        break;
    case ControlKind::Folder:
        row.control = MakeControl(WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, placed.control, first);
        row.second = MakeControl(WC_BUTTONW, L"Browse...", BS_PUSHBUTTON | WS_TABSTOP, placed.second, second);
        row.note = MakeControl(WC_STATICW, L"", SS_LEFT | SS_ENDELLIPSIS, placed.note);
        break;
    case ControlKind::HotKey:
        row.control = MakeControl(HOTKEY_CLASSW, L"", WS_BORDER | WS_TABSTOP, placed.control, first);
        ::SendMessageW(row.control, HKM_SETRULES,
                       HKCOMB_NONE | HKCOMB_A | HKCOMB_CA | HKCOMB_SA | HKCOMB_SC | HKCOMB_SCA, HOTKEYF_CONTROL);
        row.note = MakeControl(WC_STATICW, L"", SS_LEFT, placed.note);
        break;
    case ControlKind::None:
        break;
    }
}

void PreferencePage::Refresh() {
    refreshing_ = true;
    for (Row& row : rows_)
        ShowRow(row);
    refreshing_ = false;
}

void PreferencePage::ShowRow(Row& row) {
    const SettingDef& key = *row.placed->key;
    switch (key.control.kind) {
    case ControlKind::Check:
        ::SendMessageW(row.control, BM_SETCHECK, IsChecked(working_, key) ? BST_CHECKED : BST_UNCHECKED, 0);
        break;
    case ControlKind::Number:
        ::SetWindowTextW(row.control, std::to_wstring(NumberOf(working_, key)).c_str());
        SetNote(row, {});
        break;
    case ControlKind::Choice:
        ::SendMessageW(row.control, CB_SETCURSEL, static_cast<WPARAM>(ChoiceIndexOf(working_, key).value_or(-1)), 0);
        break;
    case ControlKind::Corner: {
        CornerHalves halves = SplitCorner(static_cast<std::int16_t>(NumberOf(working_, key)));
        ::SendMessageW(row.control, CB_SETCURSEL, halves.bottom ? 1 : 0, 0);
        ::SendMessageW(row.second, CB_SETCURSEL, halves.right ? 1 : 0, 0);
        break;
    }
    case ControlKind::Colour:
        row.swatch.reset(::CreateSolidBrush(static_cast<COLORREF>(NumberOf(working_, key))));
        ::InvalidateRect(row.control, nullptr, TRUE);
        break;
    case ControlKind::Font:
        ::SetWindowTextW(row.control, FontText(working_, key).c_str());
        SetNote(row, FontNote(MenuWindow::FontFaceExists(TextOf(working_, key)),
                              MenuWindow::FontFaceExists(MenuWindow::kFallbackFace)));
        break;
    case ControlKind::Folder:
        ::SetWindowTextW(row.control, Win::Widen(TextOf(working_, key)).c_str());
        SetNote(row, PictureFolderNoteOf(working_, programFolder_));
        break;
    case ControlKind::HotKey: {
        HotKeyInput hotKey = HotKeyOf(working_, key);
        WORD modifiers = static_cast<WORD>((hotKey.shift ? HOTKEYF_SHIFT : 0) | (hotKey.ctrl ? HOTKEYF_CONTROL : 0));
        ::SendMessageW(row.control, HKM_SETHOTKEY, MAKEWORD(hotKey.key, modifiers), 0);
        SetNote(row, {});
        break;
    }
    case ControlKind::None:
        break;
    }
}

void PreferencePage::Report() {
    // The pictures folder's note also follows the switches that choose the pictures.
    for (Row& row : rows_)
        if (row.placed->key->control.kind == ControlKind::Folder)
            SetNote(row, PictureFolderNoteOf(working_, programFolder_));
    if (changed_)
        changed_();
}

void PreferencePage::SetNote(Row& row, const std::string& note) {
    if (row.note)
        ::SetWindowTextW(row.note, Win::Widen(note).c_str());
}

void PreferencePage::Control_Command(int id, int code, HWND) {
    auto found = rowOfId_.find(id);
    if (found == rowOfId_.end()) {
        if (roomCommands)
            roomCommands(id, code);
        return;
    }
    if (refreshing_)
        return;
    Row& row = rows_[found->second];
    const SettingDef& key = *row.placed->key;
    const bool second = (id - kFirstId) % kIdsPerRow == kSecond;
    switch (key.control.kind) {
    case ControlKind::Check:
        if (code == BN_CLICKED) {
            SetChecked(working_, key, ::SendMessageW(row.control, BM_GETCHECK, 0, 0) == BST_CHECKED);
            Report();
        }
        break;
    case ControlKind::Number:
        if (code == EN_CHANGE || code == EN_KILLFOCUS)
            Number_Changed(row, code == EN_KILLFOCUS);
        break;
    case ControlKind::Choice:
        if (code == CBN_SELCHANGE) {
            SetChoice(working_, key, static_cast<int>(::SendMessageW(row.control, CB_GETCURSEL, 0, 0)));
            Report();
        }
        break;
    case ControlKind::Corner:
        if (code == CBN_SELCHANGE) {
            CornerHalves halves{::SendMessageW(row.control, CB_GETCURSEL, 0, 0) == 1,
                                ::SendMessageW(row.second, CB_GETCURSEL, 0, 0) == 1};
            SetNumber(working_, key, JoinCorner(halves));
            Report();
        }
        break;
    case ControlKind::Colour:
        if (code == BN_CLICKED || code == STN_CLICKED)
            Colour_Click(row);
        break;
    case ControlKind::Font:
        if (code == BN_CLICKED)
            Font_Click(row);
        break;
    case ControlKind::Folder:
        if (second && code == BN_CLICKED) {
            Folder_Browse(row);
        } else if (!second && code == EN_CHANGE) {
            SetText(working_, key, ControlText(row.control));
            Report();
        }
        break;
    case ControlKind::HotKey:
        if (code == EN_CHANGE)
            HotKey_Changed(row);
        break;
    case ControlKind::None:
        break;
    }
}

// While the user types, a number outside the range is refused with the range beside the
// field; leaving the field puts the nearest allowed number in its place.
void PreferencePage::Number_Changed(Row& row, bool leaving) {
    const SettingDef& key = *row.placed->key;
    NumberInput input = ReadNumberInput(ControlText(row.control), key.control, NumberOf(working_, key));
    if (!input.corrected) {
        SetNote(row, {});
        if (input.value != NumberOf(working_, key)) {
            SetNumber(working_, key, input.value);
            Report();
        }
        return;
    }
    if (!leaving) {
        SetNote(row, "Allowed: " + input.note);
        return;
    }
    refreshing_ = true;
    ::SetWindowTextW(row.control, std::to_wstring(input.value).c_str());
    refreshing_ = false;
    SetNote(row, "Corrected (" + input.note + ")");
    if (input.value != NumberOf(working_, key)) {
        SetNumber(working_, key, input.value);
        Report();
    }
}

void PreferencePage::Colour_Click(Row& row) {
    const SettingDef& key = *row.placed->key;
    if (auto colour = PickColour(::GetAncestor(window_.get(), GA_ROOT), static_cast<COLORREF>(NumberOf(working_, key)))) {
        SetNumber(working_, key, static_cast<std::int32_t>(*colour));
        ShowRow(row);
        Report();
    }
}

void PreferencePage::Font_Click(Row& row) {
    const SettingDef& key = *row.placed->key;
    FontKeys keys = FontKeysOf(key);
    FontChoice current{TextOf(working_, key), keys.size ? NumberOf(working_, *keys.size) : 9,
                       keys.bold && IsChecked(working_, *keys.bold), keys.italic && IsChecked(working_, *keys.italic),
                       keys.colour ? static_cast<COLORREF>(NumberOf(working_, *keys.colour)) : 0};
    std::optional<FontChoice> chosen = PickFont(::GetAncestor(window_.get(), GA_ROOT), current);
    if (!chosen)
        return;
    SetText(working_, key, chosen->face);
    if (keys.size)
        SetNumber(working_, *keys.size, chosen->points);
    if (keys.bold)
        SetChecked(working_, *keys.bold, chosen->bold);
    if (keys.italic)
        SetChecked(working_, *keys.italic, chosen->italic);
    if (keys.colour)
        SetNumber(working_, *keys.colour, static_cast<std::int32_t>(chosen->colour));
    Refresh(); // the size, bold, italic and colour rows show the dialog's choice too
    Report();
}

void PreferencePage::Folder_Browse(Row& row) {
    const SettingDef& key = *row.placed->key;
    if (auto folder = PickFolder(::GetAncestor(window_.get(), GA_ROOT), TextOf(working_, key))) {
        SetText(working_, key, *folder);
        ShowRow(row);
        Report();
    }
}

void PreferencePage::HotKey_Changed(Row& row) {
    const SettingDef& key = *row.placed->key;
    auto value = static_cast<WORD>(::SendMessageW(row.control, HKM_GETHOTKEY, 0, 0));
    BYTE modifiers = HIBYTE(value);
    HotKeyInput input{LOBYTE(value), (modifiers & HOTKEYF_SHIFT) != 0, (modifiers & HOTKEYF_CONTROL) != 0,
                      (modifiers & HOTKEYF_ALT) != 0};
    if (std::optional<std::string> refused = SetHotKey(working_, key, input)) {
        SetNote(row, *refused);
        return;
    }
    SetNote(row, {});
    Report();
}

void PreferencePage::Place(const RECT& area) {
    ::SetWindowPos(window_.get(), nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = contentHeight_ - 1;
    info.nPage = static_cast<UINT>(std::max<LONG>(0, area.bottom - area.top));
    ::SetScrollInfo(window_.get(), SB_VERT, &info, TRUE);
    ScrollTo(scroll_);
}

void PreferencePage::ScrollTo(int position) {
    RECT client{};
    ::GetClientRect(window_.get(), &client);
    position = std::clamp(position, 0, std::max(0, contentHeight_ - static_cast<int>(client.bottom)));
    if (position == scroll_)
        return;
    ::ScrollWindowEx(window_.get(), 0, scroll_ - position, nullptr, nullptr, nullptr, nullptr,
                     SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    scroll_ = position;
    ::SetScrollPos(window_.get(), SB_VERT, scroll_, TRUE);
}

void PreferencePage::Form_VScroll(int request) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(window_.get(), SB_VERT, &info);
    const int line = font_.Y(kRowHeight);
    switch (request) {
    case SB_LINEUP: ScrollTo(scroll_ - line); break;
    case SB_LINEDOWN: ScrollTo(scroll_ + line); break;
    case SB_PAGEUP: ScrollTo(scroll_ - static_cast<int>(info.nPage)); break;
    case SB_PAGEDOWN: ScrollTo(scroll_ + static_cast<int>(info.nPage)); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: ScrollTo(info.nTrackPos); break;
    case SB_TOP: ScrollTo(0); break;
    case SB_BOTTOM: ScrollTo(contentHeight_); break;
    default: break;
    }
}

void PreferencePage::EnsureVisible(HWND control) {
    if (!control || !::IsChild(window_.get(), control))
        return;
    RECT rect{};
    ::GetWindowRect(control, &rect);
    ::MapWindowPoints(nullptr, window_.get(), reinterpret_cast<POINT*>(&rect), 2);
    RECT client{};
    ::GetClientRect(window_.get(), &client);
    const int margin = font_.Y(4);
    if (rect.top < margin)
        ScrollTo(scroll_ + rect.top - margin);
    else if (rect.bottom > client.bottom - margin)
        ScrollTo(scroll_ + rect.bottom - client.bottom + margin);
}

RECT PreferencePage::Room(std::string_view group) const {
    for (const PlacedGroup& placed : layout_.groups)
        if (placed.title == group)
            return font_.Pixels(placed.room);
    return {};
}

HBRUSH PreferencePage::Form_CtlColorStatic(HDC dc, HWND control) {
    if (std::find(roomNotes.begin(), roomNotes.end(), control) != roomNotes.end()) {
        ::SetTextColor(dc, kNoteColour);
        ::SetBkMode(dc, TRANSPARENT);
        return ::GetSysColorBrush(COLOR_BTNFACE);
    }
    for (Row& row : rows_) {
        if (row.swatch && control == row.control)
            return row.swatch.get();
        if (row.note && control == row.note) {
            ::SetTextColor(dc, kNoteColour);
            ::SetBkMode(dc, TRANSPARENT);
            return ::GetSysColorBrush(COLOR_BTNFACE);
        }
    }
    return nullptr;
}

LRESULT PreferencePage::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        Control_Command(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    case WM_NOTIFY:
        if (roomNotify)
            return roomNotify(*reinterpret_cast<const NMHDR*>(lParam));
        break;
    case WM_VSCROLL:
        Form_VScroll(LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
        ScrollTo(scroll_ - GET_WHEEL_DELTA_WPARAM(wParam) * font_.Y(kRowHeight) * 3 / WHEEL_DELTA);
        return 0;
    case WM_CTLCOLORSTATIC:
        if (HBRUSH brush = Form_CtlColorStatic(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)))
            return reinterpret_cast<LRESULT>(brush);
        break;
    default:
        break;
    }
    return ::DefWindowProcW(hwnd, message, wParam, lParam);
}

} // namespace PrefsWin
