#include "prefs/win/user_tasks_room.h"

#include "prefs/user_tasks.h"
#include "prefs/win/common_dialogs.h"
#include "win/text_convert.h"

#include <commctrl.h>

#include <algorithm>

namespace PrefsWin {

namespace {

enum ControlId {
    kListId = UserTasksRoom::kFirstId,
    kAddId,
    kDeleteId,
    kNoteId,
    kFirstFieldId,                  // name, executable, icon
    kFirstBrowseId = kFirstFieldId + 3 // executable, icon
};

constexpr int kListHeight = 44;
constexpr int kButtonWidth = 50;
constexpr int kRowHeight = 14;
constexpr int kLabelWidth = 50;
constexpr int kGap = 4;

std::wstring Label(std::size_t which) {
    return Win::Widen(Preferences::kUserTaskLabels[which]);
}

std::string UserTaskRec::*const kFields[] = {&UserTaskRec::TaskName, &UserTaskRec::TaskExec, &UserTaskRec::TaskIcon};

} // namespace

UserTasksRoom::UserTasksRoom(HWND panel, RECT room, const DialogFont& font, SettingsRec& working,
                             std::function<void()> changed)
    : panel_(panel), working_(working), changed_(std::move(changed)) {
    const int listRight = room.left + (room.right - room.left) / 2;
    list_ = MakeChild(panel, WC_LISTBOXW, L"", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
                      {room.left, room.top, listRight, room.top + font.Y(kListHeight)}, kListId);
    const int buttonLeft = listRight + font.X(kGap);
    auto button = [&](std::size_t label, int id, int left, int top) {
        return MakeChild(panel, WC_BUTTONW, Label(label).c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                         {left, top, left + font.X(kButtonWidth), top + font.Y(kRowHeight - 2)}, id);
    };
    button(0, kAddId, buttonLeft, room.top);
    delete_ = button(1, kDeleteId, buttonLeft, room.top + font.Y(18));
    note_ = MakeChild(panel, WC_STATICW, L"", SS_LEFT | SS_ENDELLIPSIS,
                      {room.left, room.top + font.Y(kListHeight + 2), room.right, room.top + font.Y(kListHeight + 11)},
                      kNoteId);
    const int fieldLeft = room.left + font.X(kLabelWidth);
    const int browseLeft = room.right - font.X(kButtonWidth);
    int top = room.top + font.Y(kListHeight + 14);
    for (std::size_t field = 0; field < fields_.size(); ++field, top += font.Y(kRowHeight)) {
        const int bottom = top + font.Y(kRowHeight - 2);
        const int fieldRight = field == kName ? room.right : browseLeft - font.X(kGap);
        labels_[field] = MakeChild(panel, WC_STATICW, Label(2 + field).c_str(), SS_LEFT,
                                   {room.left, top + font.Y(2), fieldLeft, bottom});
        fields_[field] = MakeChild(panel, WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP,
                                   {fieldLeft, top, fieldRight, bottom}, kFirstFieldId + static_cast<int>(field));
        if (field != kName)
            browse_[field - 1] = button(5, kFirstBrowseId + static_cast<int>(field) - 1, browseLeft, top);
    }
    Refresh();
}

UserTaskRec* UserTasksRoom::Selected() {
    if (working_.UserTasks.empty())
        return nullptr;
    selected_ = std::clamp(selected_, 0, working_.NoOfUserTasks() - 1);
    return &working_.UserTasks[static_cast<std::size_t>(selected_)];
}

void UserTasksRoom::Refresh() {
    ::SendMessageW(list_, LB_RESETCONTENT, 0, 0);
    for (const UserTaskRec& task : working_.UserTasks)
        ::SendMessageW(list_, LB_ADDSTRING, 0,
                       reinterpret_cast<LPARAM>(Win::Widen(Preferences::UserTaskListName(task)).c_str()));
    ShowTask();
}

void UserTasksRoom::ShowTask() {
    showing_ = true;
    const UserTaskRec* task = Selected();
    ::SendMessageW(list_, LB_SETCURSEL, task ? static_cast<WPARAM>(selected_) : static_cast<WPARAM>(-1), 0);
    for (std::size_t field = 0; field < fields_.size(); ++field) {
        ::SetWindowTextW(fields_[field], task ? Win::Widen(task->*kFields[field]).c_str() : L"");
        ::EnableWindow(fields_[field], task != nullptr);
        ::EnableWindow(labels_[field], task != nullptr);
    }
    for (HWND control : {browse_[0], browse_[1], delete_})
        ::EnableWindow(control, task != nullptr);
    showing_ = false;
}

bool UserTasksRoom::Command(int id, int code) {
    if (id == kListId) {
        if (code == LBN_SELCHANGE) {
            selected_ = static_cast<int>(::SendMessageW(list_, LB_GETCURSEL, 0, 0));
            ShowTask();
        }
        return true;
    }
    if (id >= kFirstFieldId && id < kFirstFieldId + static_cast<int>(fields_.size())) {
        if (code == EN_CHANGE && !showing_)
            Field_Changed(static_cast<Field>(id - kFirstFieldId));
        return true;
    }
    if (id != kAddId && id != kDeleteId && id != kFirstBrowseId && id != kFirstBrowseId + 1)
        return false;
    if (code != BN_CLICKED)
        return true;
    if (id == kAddId)
        cmdAdd_Click();
    else if (id == kDeleteId)
        cmdDelete_Click();
    else
        cmdBrowse_Click(id == kFirstBrowseId ? kExec : kIcon);
    return true;
}

void UserTasksRoom::Field_Changed(Field field) {
    UserTaskRec* task = Selected();
    if (!task)
        return;
    task->*kFields[field] = ControlText(fields_[field]);
    if (field == kName) { // the list follows the name as it is typed
        showing_ = true;
        ::SendMessageW(list_, LB_DELETESTRING, static_cast<WPARAM>(selected_), 0);
        ::SendMessageW(list_, LB_INSERTSTRING, static_cast<WPARAM>(selected_),
                       reinterpret_cast<LPARAM>(Win::Widen(Preferences::UserTaskListName(*task)).c_str()));
        ::SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(selected_), 0);
        showing_ = false;
    }
    changed_();
}

void UserTasksRoom::cmdAdd_Click() {
    std::optional<std::string> refused = Preferences::AddUserTask(working_);
    ::SetWindowTextW(note_, Win::Widen(refused.value_or("")).c_str());
    if (refused)
        return;
    selected_ = working_.NoOfUserTasks() - 1;
    Refresh();
    changed_();
}

void UserTasksRoom::cmdDelete_Click() {
    if (!Preferences::DeleteUserTask(working_, selected_))
        return;
    ::SetWindowTextW(note_, L"");
    Refresh();
    changed_();
}

void UserTasksRoom::cmdBrowse_Click(Field field) {
    UserTaskRec* task = Selected();
    if (!task)
        return;
    HWND owner = ::GetAncestor(panel_, GA_ROOT);
    std::optional<std::string> picked =
        field == kExec ? PickFile(owner, task->TaskExec, L"Programs", L"*.exe;*.lnk;*.*")
                       : PickFile(owner, task->TaskIcon, L"Icons", L"*.ico;*.exe;*.dll");
    if (!picked)
        return;
    task->*kFields[field] = *picked;
    ShowTask();
    changed_();
}

} // namespace PrefsWin
