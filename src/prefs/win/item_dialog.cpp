#include "prefs/win/item_dialog.h"

#include "menuwindow/layout/item_list.h"
#include "menuwindow/win/item_icons.h"
#include "prefs/win/common_dialogs.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <commctrl.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <vector>

using MenuEditor::Field;
using MenuEditor::ItemField;

namespace PrefsWin {

namespace {

enum ControlId {
    kTypeId = 100, kLabelId, kPathId, kPathBrowseId, kChoicesId, kStartId, kStartBrowseId, kArgId, kArgLabelId,
    kRunId, kRunLabelId, kMaskId, kIconId, kIconBrowseId, kHotKeyId, kLabelNoteId, kPathNoteId, kMaskNoteId,
    kIconPreviewId, kHotKeyNoteId, kStartLabelId, kMaskLabelId
};

// The dialog's parts, in dialog units.
constexpr int kWidth = 280;
constexpr int kHeight = 292;
constexpr int kMargin = 7;
constexpr int kFieldX = 66;
constexpr int kFieldWidth = 150;
constexpr int kBrowseX = kFieldX + kFieldWidth + 4;
constexpr int kBrowseWidth = kWidth - kMargin - kBrowseX;
constexpr int kFieldHeight = 12;
constexpr COLORREF kNoteColour = RGB(192, 0, 0);

// The icon an item with these fields shows in its menu; null when it shows none.
Win::UniqueIcon IconOf(const MenuItemRec& fields, int size) {
    const std::optional<MenuWindow::IconSource> source = MenuWindow::IconSourceOf(MenuWindow::EntryOf(fields));
    return source ? MenuWindow::LoadItemIcon(*source, size) : Win::UniqueIcon{};
}

class ItemDialog {
public:
    ItemDialog(const MenuItemRec& item, const ItemDialogContext& context) : item_(item), context_(context) {}

    std::optional<MenuItemRec> Run(HWND owner) {
        // An empty template: the controls are made in dialog units of the preferences' font.
        struct {
            DLGTEMPLATE header;
            WORD menu, windowClass, title;
        } dialog{};
        dialog.header.style = DS_MODALFRAME | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU;
        const INT_PTR answer = ::DialogBoxIndirectParamW(::GetModuleHandleW(nullptr), &dialog.header, owner,
                                                         &ItemDialog::DialogProc, reinterpret_cast<LPARAM>(this));
        if (answer != IDOK)
            return std::nullopt;
        return item_;
    }

private:
    static INT_PTR CALLBACK DialogProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG)
            ::SetWindowLongPtrW(hwnd, DWLP_USER, lParam);
        auto* self = reinterpret_cast<ItemDialog*>(::GetWindowLongPtrW(hwnd, DWLP_USER));
        return self ? self->Handle(hwnd, message, wParam, lParam) : FALSE;
    }

    HWND Make(const wchar_t* className, const wchar_t* text, DWORD style, int x, int y, int width, int height,
              int id = 0) {
        const DialogFont& font = context_.font;
        return MakeChild(hwnd_, className, text, style,
                         {font.X(x), font.Y(y), font.X(x + width), font.Y(y + height)}, id);
    }

    HWND Label(const wchar_t* text, int y, int id = 0) {
        return Make(WC_STATICW, text, SS_LEFT, kMargin, y + 2, kFieldX - kMargin - 2, 8, id);
    }

    HWND Edit(int id, int y, int width = kFieldWidth) {
        return Make(WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, kFieldX, y, width, kFieldHeight, id);
    }

    HWND Note(int id, int y) { return Make(WC_STATICW, L"", SS_LEFT, kFieldX, y, kWidth - kMargin - kFieldX, 8, id); }

    void Browse(int id, int y) {
        Make(WC_BUTTONW, L"Browse...", BS_PUSHBUTTON | WS_TABSTOP, kBrowseX, y - 1, kBrowseWidth, 14, id);
    }

    void Form_Load() {
        const DialogFont& font = context_.font;
        ::SetWindowTextW(hwnd_, kItemDialogTitle);
        RECT frame{0, 0, font.X(kWidth), font.Y(kHeight)};
        ::AdjustWindowRectEx(&frame, static_cast<DWORD>(::GetWindowLongPtrW(hwnd_, GWL_STYLE)), FALSE, 0);
        // Centred on the owner now that its size is known, and kept on the screen.
        const int width = frame.right - frame.left;
        const int height = frame.bottom - frame.top;
        RECT owner{};
        ::GetWindowRect(::GetWindow(hwnd_, GW_OWNER), &owner);
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfoW(::MonitorFromWindow(hwnd_, MONITOR_DEFAULTTONEAREST), &monitor);
        const RECT& work = monitor.rcWork;
        const int left = std::clamp<int>((owner.left + owner.right - width) / 2, work.left,
                                         std::max<int>(work.left, work.right - width));
        const int top = std::clamp<int>((owner.top + owner.bottom - height) / 2, work.top,
                                        std::max<int>(work.top, work.bottom - height));
        ::SetWindowPos(hwnd_, nullptr, left, top, width, height, SWP_NOZORDER);
        Label(L"&Type:", 7);
        type_ = Make(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, kFieldX, 7, kFieldWidth, 100,
                     kTypeId);
        for (std::string_view name : MenuEditor::kTypeNames)
            ::SendMessageW(type_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(name).c_str()));
        Label(L"&Label:", 24);
        label_ = Edit(kLabelId, 24);
        Note(kLabelNoteId, 38);
        Label(L"&Path:", 48);
        path_ = Edit(kPathId, 48);
        Browse(kPathBrowseId, 48);
        Note(kPathNoteId, 62);
        choices_ = Make(WC_LISTBOXW, L"",
                        LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_VSCROLL |
                            WS_BORDER | WS_TABSTOP,
                        kFieldX, 72, kWidth - kMargin - kFieldX, 80, kChoicesId);
        Label(L"Start &folder:", 158, kStartLabelId);
        start_ = Edit(kStartId, 158);
        Browse(kStartBrowseId, 158);
        argLabel_ = Label(L"&Arguments:", 174, kArgLabelId);
        arg_ = Edit(kArgId, 174);
        runLabel_ = Label(L"&Run state:", 190, kRunLabelId);
        run_ = Make(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, kFieldX, 190, kFieldWidth, 80,
                    kRunId);
        Label(L"File t&ypes:", 206, kMaskLabelId);
        mask_ = Edit(kMaskId, 206);
        Note(kMaskNoteId, 220);
        Label(L"I&con:", 230);
        icon_ = Edit(kIconId, 230);
        Browse(kIconBrowseId, 230);
        Label(L"&Hot key:", 246);
        hotKey_ = Edit(kHotKeyId, 246, 20);
        ::SendMessageW(hotKey_, EM_LIMITTEXT, 1, 0);
        Make(WC_STATICW, L"a letter that chooses the item in its menu", SS_LEFT, kFieldX + 26, 248, 160, 8);
        Note(kHotKeyNoteId, 260);
        const int iconSize = ::GetSystemMetrics(SM_CXICON);
        preview_ = MakeChild(hwnd_, WC_STATICW, L"", SS_ICON | SS_CENTERIMAGE,
                             {font.X(kBrowseX), font.Y(7), font.X(kBrowseX + kBrowseWidth), font.Y(7) + iconSize},
                             kIconPreviewId);
        const int buttonsY = kHeight - kMargin - 14;
        Make(WC_BUTTONW, L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP, kWidth - kMargin - 104, buttonsY, 50, 14, IDOK);
        Make(WC_BUTTONW, L"Cancel", BS_PUSHBUTTON | WS_TABSTOP, kWidth - kMargin - 50, buttonsY, 50, 14, IDCANCEL);
        SetFontOfChildren(hwnd_, font.get());

        ::SendMessageW(type_, CB_SETCURSEL, item_.TYPE < MenuEditor::kTypeNames.size() ? item_.TYPE : 0, 0);
        SetText(label_, item_.LABEL);
        SetText(path_, item_.PATH);
        SetText(start_, item_.STARTPATH);
        SetText(arg_, item_.ARG);
        SetText(mask_, item_.FILETYPEMASK);
        SetText(icon_, item_.ICONPATH);
        SetText(hotKey_, item_.HOTKEY == "0" ? std::string() : item_.HOTKEY);
        Type_Changed();
        HotKey_Changed();
    }

    static void SetText(HWND control, const std::string& text) { ::SetWindowTextW(control, Win::Widen(text).c_str()); }

    std::uint8_t Type() const {
        const LRESULT index = ::SendMessageW(type_, CB_GETCURSEL, 0, 0);
        return static_cast<std::uint8_t>(index < 0 ? 0 : index);
    }

    // The menus an item of this menu may open: every other one.
    std::vector<std::string> MenuNames() const {
        std::vector<std::string> names;
        for (std::int32_t menu = 0; menu < context_.menus.MenuCount(); ++menu)
            if (menu != context_.place.menu)
                names.push_back(context_.menus.menus[static_cast<std::size_t>(menu) + 1].NAME);
        return names;
    }

    // The fields that follow the type: the list of choices, what RUNSTATE and ARG mean,
    // the pickers that fit it.
    void Type_Changed() {
        const std::uint8_t type = Type();
        const std::string path = ControlText(path_);
        ::SendMessageW(choices_, LB_RESETCONTENT, 0, 0);
        int selected = -1;
        auto add = [&](const std::string& text, bool current) {
            const auto index = ::SendMessageW(choices_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(text).c_str()));
            if (current)
                selected = static_cast<int>(index);
        };
        if (type == kItemCommandName)
            for (const CommandTable::CommandRow& row : context_.commands)
                add(row.label, row.command == path);
        if (type == kItemMenuName)
            for (const std::string& name : MenuNames())
                add(name, name == path);
        ::SendMessageW(choices_, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
        commandIcons_.clear();
        commandIcons_.resize(type == kItemCommandName ? context_.commands.size() : 0);

        const bool folder = type == kItemFolderPath;
        ::SetWindowTextW(argLabel_, folder ? L"Second f&older:" : L"&Arguments:");
        ::SetWindowTextW(runLabel_, folder ? L"&Show:" : L"&Run state:");
        const LRESULT run = ::SendMessageW(run_, CB_GETCURSEL, 0, 0);
        const int runState = run < 0 ? item_.RUNSTATE : static_cast<int>(run);
        ::SendMessageW(run_, CB_RESETCONTENT, 0, 0);
        std::span<const std::string_view> names = MenuEditor::kRunStateNames;
        if (folder)
            names = MenuEditor::kFolderFilterNames;
        for (std::string_view name : names)
            ::SendMessageW(run_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Win::Widen(name).c_str()));
        ::SendMessageW(run_, CB_SETCURSEL, static_cast<std::size_t>(runState) < names.size() ? runState : 0, 0);
        Run_Changed();
    }

    // Greys the fields the item's type and filter make no use of.
    void Run_Changed() {
        const MenuItemRec fields = Fields();
        const std::pair<ItemField, std::vector<int>> controls[] = {
            {ItemField::Path, {kPathId}},
            {ItemField::PathBrowse, {kPathBrowseId}},
            {ItemField::StartFolder, {kStartId, kStartBrowseId, kStartLabelId}},
            {ItemField::Arguments, {kArgId, kArgLabelId}},
            {ItemField::RunState, {kRunId, kRunLabelId}},
            {ItemField::Mask, {kMaskId, kMaskLabelId}},
        };
        for (const auto& [field, ids] : controls)
            for (int id : ids)
                ::EnableWindow(::GetDlgItem(hwnd_, id), MenuEditor::FieldUsed(fields, field));
        // An empty list would only look like a field to fill.
        ::ShowWindow(choices_, MenuEditor::FieldUsed(fields, ItemField::Choices) ? SW_SHOWNA : SW_HIDE);
        Icon_Changed();
    }

    void Icon_Changed() {
        Win::UniqueIcon icon = IconOf(Fields(), ::GetSystemMetrics(SM_CXICON));
        ::SendMessageW(preview_, STM_SETICON, reinterpret_cast<WPARAM>(icon.get()), 0);
        previewIcon_ = std::move(icon); // the one shown before goes once it is no longer shown
    }

    void HotKey_Changed() {
        const std::optional<std::string> clash =
            MenuEditor::HotKeyClash(context_.menus, context_.place, ControlText(hotKey_));
        SetText(::GetDlgItem(hwnd_, kHotKeyNoteId), clash.value_or(""));
    }

    // A row of the choices: a command with its icon, or a menu's name.
    void Choices_Draw(const DRAWITEMSTRUCT& draw) {
        if (draw.itemID == static_cast<UINT>(-1))
            return;
        const bool selected = draw.itemState & ODS_SELECTED;
        const bool enabled = ::IsWindowEnabled(choices_);
        ::FillRect(draw.hDC, &draw.rcItem, ::GetSysColorBrush(selected && enabled ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        const int iconSize = ::GetSystemMetrics(SM_CXSMICON);
        RECT text = draw.rcItem;
        text.left += 2;
        if (draw.itemID < commandIcons_.size()) {
            std::optional<Win::UniqueIcon>& icon = commandIcons_[draw.itemID];
            if (!icon) {
                MenuItemRec row;
                row.ICONPATH = context_.commands[draw.itemID].icon;
                icon = IconOf(row, iconSize);
            }
            if (icon->get())
                ::DrawIconEx(draw.hDC, text.left, (text.top + text.bottom - iconSize) / 2, icon->get(), iconSize,
                             iconSize, 0, nullptr, DI_NORMAL);
            text.left += iconSize + 4;
        }
        std::wstring label(static_cast<std::size_t>(::SendMessageW(choices_, LB_GETTEXTLEN, draw.itemID, 0)), L'\0');
        ::SendMessageW(choices_, LB_GETTEXT, draw.itemID, reinterpret_cast<LPARAM>(label.data()));
        ::SetBkMode(draw.hDC, TRANSPARENT);
        ::SetTextColor(draw.hDC, ::GetSysColor(!enabled           ? COLOR_GRAYTEXT
                                               : selected ? COLOR_HIGHLIGHTTEXT
                                                          : COLOR_WINDOWTEXT));
        ::DrawTextW(draw.hDC, label.c_str(), static_cast<int>(label.size()), &text,
                    DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
        if (draw.itemState & ODS_FOCUS)
            ::DrawFocusRect(draw.hDC, &draw.rcItem);
    }

    void Choices_Click() {
        const LRESULT index = ::SendMessageW(choices_, LB_GETCURSEL, 0, 0);
        if (index < 0)
            return;
        std::string label;
        if (Type() == kItemCommandName) {
            const CommandTable::CommandRow& row = context_.commands[static_cast<std::size_t>(index)];
            SetText(path_, row.command);
            label = row.label;
            if (ControlText(icon_).empty()) // the menu shows the command's own icon
                SetText(icon_, row.icon);
        } else {
            label = MenuNames()[static_cast<std::size_t>(index)];
            SetText(path_, label);
        }
        const std::string current = ControlText(label_);
        if (current.empty() || current == MenuEditor::kNewItemLabel)
            SetText(label_, label);
    }

    // The path chosen, and the label when it has none yet, as a dropped file would have them.
    void PathBrowse_Click() {
        const std::string current = ControlText(path_);
        const bool folder = Type() == kItemFolderPath;
        const std::optional<std::string> chosen =
            folder ? PickFolder(hwnd_, current) : PickFile(hwnd_, current, L"Programs and documents", L"*.*");
        if (!chosen)
            return;
        const MenuItemRec picked = MenuEditor::DroppedItem(*chosen, folder);
        SetText(path_, picked.PATH);
        const std::string label = ControlText(label_);
        if (label.empty() || label == MenuEditor::kNewItemLabel)
            SetText(label_, picked.LABEL);
    }

    // The system's icon chooser, on the icon the item shows now (the system's own icons
    // when it shows none), writes the file and the icon chosen; where the system cannot
    // show it (Wine), a file is chosen, and its first icon taken.
    void IconBrowse_Click() {
        const std::optional<MenuWindow::IconSource> source = MenuWindow::IconSourceOf(MenuWindow::EntryOf(Fields()));
        std::wstring file = Win::Widen(source ? source->file : std::string());
        if (file.empty()) {
            file.resize(MAX_PATH);
            file.resize(::GetSystemDirectoryW(file.data(), MAX_PATH));
            file += L"\\shell32.dll";
        }
        int index = source ? source->index : 0;
        const std::string shown = Win::Narrow(file);
        file.resize(std::max<std::size_t>(file.size(), MAX_PATH) + 1);
        switch (::PickIconDlg(hwnd_, file.data(), static_cast<UINT>(file.size()), &index)) {
        case 0: // cancelled
            return;
        case 1:
            file.resize(file.find(L'\0'));
            SetText(icon_, MenuWindow::IconPathText(Win::Narrow(file), index));
            return;
        default:
            if (std::optional<std::string> chosen = PickFile(hwnd_, shown, L"Icons", L"*.ico;*.exe;*.dll"))
                SetText(icon_, MenuWindow::IconPathText(*chosen, 0));
            return;
        }
    }

    // The item as the fields stand.
    MenuItemRec Fields() const {
        MenuItemRec fields = item_;
        fields.TYPE = Type();
        fields.LABEL = ControlText(label_);
        fields.PATH = ControlText(path_);
        fields.STARTPATH = ControlText(start_);
        fields.ARG = ControlText(arg_);
        fields.RUNSTATE = static_cast<std::uint8_t>(std::max<LRESULT>(0, ::SendMessageW(run_, CB_GETCURSEL, 0, 0)));
        fields.FILETYPEMASK = ControlText(mask_);
        fields.ICONPATH = ControlText(icon_);
        fields.HOTKEY = ControlText(hotKey_);
        if (fields.HOTKEY.empty())
            fields.HOTKEY.assign(1, '0'); // "0": no hot key
        return fields;
    }

    void OK_Click() {
        const MenuItemRec fields = Fields();
        std::array<std::string, 3> notes; // label, path, mask
        for (const MenuEditor::Problem& problem : MenuEditor::ItemProblems(context_.menus, context_.place.menu, fields))
            if (std::string& note = notes[static_cast<std::size_t>(problem.field)]; note.empty())
                note = problem.text;
        SetText(::GetDlgItem(hwnd_, kLabelNoteId), notes[0]);
        SetText(::GetDlgItem(hwnd_, kPathNoteId), notes[1]);
        SetText(::GetDlgItem(hwnd_, kMaskNoteId), notes[2]);
        for (std::size_t which = 0; which < notes.size(); ++which) {
            if (!notes[which].empty()) {
                HWND field = which == 0 ? label_ : which == 1 ? path_ : mask_;
                ::SendMessageW(hwnd_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
                return;
            }
        }
        item_ = fields;
        ::EndDialog(hwnd_, IDOK);
    }

    INT_PTR Handle(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        switch (message) {
        case WM_INITDIALOG:
            hwnd_ = hwnd;
            Form_Load();
            return TRUE;
        case WM_CTLCOLORSTATIC: {
            const int id = ::GetDlgCtrlID(reinterpret_cast<HWND>(lParam));
            if (id != kLabelNoteId && id != kPathNoteId && id != kMaskNoteId && id != kHotKeyNoteId)
                return FALSE;
            HDC dc = reinterpret_cast<HDC>(wParam);
            ::SetTextColor(dc, kNoteColour);
            ::SetBkMode(dc, TRANSPARENT);
            return reinterpret_cast<INT_PTR>(::GetSysColorBrush(COLOR_BTNFACE));
        }
        case WM_MEASUREITEM: {
            auto& measure = *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
            measure.itemHeight = static_cast<UINT>(std::max(::GetSystemMetrics(SM_CYSMICON), context_.font.Y(8)) + 2);
            return TRUE;
        }
        case WM_DRAWITEM:
            if (wParam != kChoicesId)
                return FALSE;
            Choices_Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_COMMAND: {
            const int code = HIWORD(wParam);
            switch (LOWORD(wParam)) {
            case IDOK: OK_Click(); return TRUE;
            case IDCANCEL: ::EndDialog(hwnd, IDCANCEL); return TRUE;
            case kTypeId:
                if (code == CBN_SELCHANGE)
                    Type_Changed();
                return TRUE;
            case kRunId:
                if (code == CBN_SELCHANGE)
                    Run_Changed();
                return TRUE;
            case kChoicesId:
                if (code == LBN_SELCHANGE)
                    Choices_Click();
                return TRUE;
            case kPathId:
            case kIconId:
                if (code == EN_CHANGE)
                    Icon_Changed();
                return TRUE;
            case kHotKeyId:
                if (code == EN_CHANGE)
                    HotKey_Changed();
                return TRUE;
            case kPathBrowseId: PathBrowse_Click(); return TRUE;
            case kStartBrowseId:
                if (auto folder = PickFolder(hwnd, ControlText(start_)))
                    SetText(start_, *folder);
                return TRUE;
            case kIconBrowseId: IconBrowse_Click(); return TRUE;
            default: return FALSE;
            }
        }
        default:
            return FALSE;
        }
    }

    MenuItemRec item_;
    const ItemDialogContext& context_;
    HWND hwnd_ = nullptr;
    HWND type_ = nullptr, label_ = nullptr, path_ = nullptr, choices_ = nullptr, start_ = nullptr, arg_ = nullptr,
         argLabel_ = nullptr, run_ = nullptr, runLabel_ = nullptr, mask_ = nullptr, icon_ = nullptr,
         hotKey_ = nullptr, preview_ = nullptr;
    Win::UniqueIcon previewIcon_; // the preview's; the static control does not own it
    std::vector<std::optional<Win::UniqueIcon>> commandIcons_; // taken when a row is first drawn
};

} // namespace

std::optional<MenuItemRec> EditItem(HWND owner, const MenuItemRec& item, const ItemDialogContext& context) {
    return ItemDialog(item, context).Run(owner);
}

} // namespace PrefsWin
