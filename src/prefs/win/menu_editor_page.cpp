#include "prefs/win/menu_editor_page.h"

#include "menus/data_manager.h"
#include "menus/win/menu_store.h"
#include "menuwindow/win/form2.h"
#include "prefs/win/item_dialog.h"
#include "win/text_convert.h"

#include <commctrl.h>
#include <windowsx.h>

#include <set>
#include <utility>

using namespace MenuEditor;

namespace PrefsWin {

namespace {

// The buttons in the order of kButtons.
enum ControlId {
    kTreeId = MenuEditorPage::kFirstId, kAddMenuId, kRenameId, kDeleteId, kAddItemId, kInsertId, kCopyId, kUpId,
    kDownId, kPropertiesId, kTryItId, kNoteId
};

constexpr int kButtonWidth = 58;
constexpr int kButtonHeight = 14;
constexpr int kGap = 4;
constexpr int kNoteHeight = 20;
// Asks the tree, from inside one of its notifications, to be filled again afterwards.
constexpr UINT kRefillMessage = WM_APP + 21;
constexpr UINT_PTR kSubclassId = 1;
constexpr COLORREF kNoteColour = RGB(192, 0, 0);

// The files and folders dropped, as items.
std::vector<MenuItemRec> DroppedItems(const std::vector<std::wstring>& paths) {
    std::vector<MenuItemRec> items;
    for (const std::wstring& path : paths) {
        const DWORD attributes = ::GetFileAttributesW(path.c_str());
        const bool folder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
        items.push_back(DroppedItem(Win::Narrow(path), folder));
    }
    return items;
}

} // namespace

MenuEditorPage::MenuEditorPage(HWND panel, RECT room, const DialogFont& font, Program& program,
                               std::function<void()> changed, MenuRenamed menuRenamed)
    : program_(program), font_(font), changed_(std::move(changed)), menuRenamed_(std::move(menuRenamed)),
      working_(program.menus) {
    const int buttonsLeft = room.right - font.X(kButtonWidth);
    const int noteTop = room.bottom - font.Y(kNoteHeight);
    tree_ = MakeChild(panel, WC_TREEVIEWW, L"",
                      TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_EDITLABELS |
                          WS_BORDER | WS_TABSTOP | WS_VSCROLL,
                      {room.left, room.top, buttonsLeft - font.X(kGap), noteTop - font.Y(kGap)}, kTreeId);
    // Above the room's group box, which a window of another process finding the window
    // under a point (a drag from the shell) does not see through.
    ::SetWindowPos(tree_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::SetWindowSubclass(tree_, &MenuEditorPage::TreeProc, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
    fileDrop_ = std::make_unique<FileDropTarget>(
        tree_, [this](const std::vector<std::wstring>& paths, POINT screen) { Tree_DropFiles(paths, screen); },
        [this](std::optional<POINT> screen) {
            TreeView_SelectDropTarget(tree_, screen ? RowAt(*screen) : nullptr);
        });
    int top = room.top;
    for (int id = kAddMenuId; id <= kTryItId; ++id) {
        const std::wstring text = Win::Widen(kButtons[static_cast<std::size_t>(id - kAddMenuId)]);
        MakeChild(panel, WC_BUTTONW, text.c_str(), BS_PUSHBUTTON | WS_TABSTOP,
                  {buttonsLeft, top, room.right, top + font.Y(kButtonHeight)}, id);
        top += font.Y(kButtonHeight + (id == kDeleteId || id == kDownId ? 3 * kGap : 2));
    }
    note_ = MakeChild(panel, WC_STATICW, L"", SS_LEFT, {room.left, noteTop, room.right, room.bottom}, kNoteId);
    Fill({0, -1});
}

MenuEditorPage::~MenuEditorPage() {
    tryOpenMenus_.CloseAll();
    ::RemoveWindowSubclass(tree_, &MenuEditorPage::TreeProc, kSubclassId);
}

void MenuEditorPage::Refresh() {
    working_ = program_.menus;
    SetNote({});
    Fill(Selected());
}

bool MenuEditorPage::Dirty() const {
    return !SameMenus(working_, program_.menus);
}

bool MenuEditorPage::Apply() {
    if (!Dirty())
        return true;
    // Open menus list the old menus by number: they close before the numbers change.
    program_.openMenus.CloseAll();
    program_.menus = working_;
    return MenuStore::SaveMenuFile(program_.menus, program_.values.ProgramFolder, program_.saveNotices);
}

Place MenuEditorPage::PlaceOf(HTREEITEM item) const {
    if (!item)
        return {};
    TVITEMW data{};
    data.mask = TVIF_PARAM;
    data.hItem = item;
    TreeView_GetItem(tree_, &data);
    const auto index = static_cast<std::size_t>(data.lParam);
    return index < places_.size() ? places_[index] : Place{};
}

Place MenuEditorPage::Selected() const {
    return PlaceOf(TreeView_GetSelection(tree_));
}

HTREEITEM MenuEditorPage::AddRow(HTREEITEM parent, const std::wstring& text, Place place, bool children) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_CHILDREN;
    insert.item.pszText = const_cast<wchar_t*>(text.c_str());
    insert.item.lParam = static_cast<LPARAM>(places_.size());
    insert.item.cChildren = children ? 1 : 0;
    places_.push_back(place);
    return TreeView_InsertItem(tree_, &insert);
}

// A menu's items under a row. A "Menu Name" item gets the rows of the menu it opens
// only when it is expanded, so that menus that open each other do not fill the tree.
void MenuEditorPage::AddItemRows(HTREEITEM parent, std::int32_t menu) {
    const std::int32_t count = DataManager::LastItemPosition(working_, menu) + 1;
    for (std::int32_t position = 0; position < count; ++position) {
        const MenuItemRec& item = working_.pool[static_cast<std::size_t>(DataManager::FindItem(working_, menu, position))];
        const std::int32_t opened = MenuOpenedBy(working_, item);
        AddRow(parent, Win::Widen(ItemText(item)), {menu, position},
               opened >= 0 && DataManager::LastItemPosition(working_, opened) >= 0);
    }
}

// The whole tree in one go, without repainting row by row; the menus that were open stay open.
void MenuEditorPage::Fill(Place select) {
    std::set<std::int32_t> expanded;
    for (HTREEITEM row = TreeView_GetRoot(tree_); row; row = TreeView_GetNextSibling(tree_, row))
        if (TreeView_GetItemState(tree_, row, TVIS_EXPANDED) & TVIS_EXPANDED)
            expanded.insert(PlaceOf(row).menu);
    expanded.insert(select.menu);
    ::SendMessageW(tree_, WM_SETREDRAW, FALSE, 0);
    TreeView_DeleteAllItems(tree_);
    places_.clear();
    HTREEITEM selected = nullptr;
    for (std::int32_t menu = 0; menu < working_.MenuCount(); ++menu) {
        HTREEITEM row = AddRow(TVI_ROOT, Win::Widen(MenuText(working_, menu)), {menu, -1},
                               DataManager::LastItemPosition(working_, menu) >= 0);
        AddItemRows(row, menu);
        if (expanded.contains(menu))
            TreeView_Expand(tree_, row, TVE_EXPAND);
        if (menu == select.menu) {
            selected = row;
            for (HTREEITEM child = TreeView_GetChild(tree_, row); child && select.position >= 0;
                 child = TreeView_GetNextSibling(tree_, child))
                if (PlaceOf(child) == select)
                    selected = child;
        }
    }
    ::SendMessageW(tree_, WM_SETREDRAW, TRUE, 0);
    if (!selected)
        selected = TreeView_GetRoot(tree_);
    TreeView_SelectItem(tree_, selected);
    TreeView_EnsureVisible(tree_, selected);
    ::InvalidateRect(tree_, nullptr, TRUE);
}

void MenuEditorPage::SetNote(const std::string& text) {
    ::SetWindowTextW(note_, Win::Widen(text).c_str());
}

void MenuEditorPage::Done(const Outcome& outcome) {
    SetNote(outcome.refused);
    if (!outcome.Done())
        return;
    Fill(outcome.place);
    changed_();
}

bool MenuEditorPage::EditProperties(Place place) {
    const std::int32_t slot = DataManager::FindItem(working_, place.menu, place.position);
    if (slot == kNoItem) {
        SetNote("Choose an item first.");
        return false;
    }
    const ItemDialogContext context{working_, place, program_.commandTable, font_};
    std::optional<MenuItemRec> fields =
        EditItem(::GetAncestor(tree_, GA_ROOT), working_.pool[static_cast<std::size_t>(slot)], context);
    if (!fields)
        return false;
    Done(SetItem(working_, place, *fields));
    return true;
}

// A new item is made and its properties asked for at once; Cancel takes it away again.
void MenuEditorPage::NewItem(const Outcome& added) {
    Done(added);
    if (added.Done() && !EditProperties(added.place))
        Done(DeleteItem(working_, added.place));
}

void MenuEditorPage::cmdAddMenu_Click() {
    Done(MenuEditor::AddMenu(working_));
    ::SetFocus(tree_);
    TreeView_EditLabel(tree_, TreeView_GetSelection(tree_));
}

void MenuEditorPage::cmdRename_Click() {
    HTREEITEM row = TreeView_GetSelection(tree_);
    if (!row) {
        SetNote("Choose a menu or an item first.");
        return;
    }
    ::SetFocus(tree_);
    TreeView_EditLabel(tree_, row);
}

void MenuEditorPage::cmdDelete_Click() {
    const Place place = Selected();
    if (place.menu < 0)
        SetNote("Choose a menu or an item first.");
    else if (place.IsMenu())
        Done(DeleteMenu(working_, place.menu));
    else
        Done(DeleteItem(working_, place));
}

// Opens the selected menu (an item's own menu) as the program would, from a copy of the
// working menus, beside the tree.
void MenuEditorPage::cmdTryIt_Click() {
    const Place place = Selected();
    if (place.menu < 0) {
        SetNote("Choose a menu first.");
        return;
    }
    tryOpenMenus_.CloseAll();
    tryMenus_ = working_;
    tryOpenMenus_.choices = program_.openMenus.choices;
    const int index = tryOpenMenus_.Append();
    MenuWindow::CascadeRec& record = tryOpenMenus_.records().At(index);
    record.kind = kItemMenuName;
    record.menuNumber = place.menu + 1;
    record.path = tryMenus_.menus[static_cast<std::size_t>(place.menu) + 1].NAME;
    RECT tree{};
    ::GetWindowRect(tree_, &tree);
    record.position = {tree.left + font_.X(16), tree.top + font_.Y(16)};
    const int id = record.id;
    tryOpenMenus_.Attach(index, std::make_unique<Form2>(program_.settings, tryMenus_, program_.values.ProgramFolder,
                                                        tryOpenMenus_, id));
    Form2* window = tryOpenMenus_.WindowOf(id);
    if (!window || !window->Create()) {
        tryOpenMenus_.CloseAll();
        SetNote("The menu window could not be made.");
        return;
    }
    SetNote({});
    window->Show();
}

LRESULT MenuEditorPage::Tree_EndLabelEdit(const NMTVDISPINFOW& info) {
    if (!info.item.pszText)
        return FALSE; // cancelled
    const Place place = PlaceOf(info.item.hItem);
    const std::string text = Win::Narrow(info.item.pszText);
    Outcome outcome;
    if (place.IsMenu()) {
        const std::string before = MenuText(working_, place.menu);
        outcome = RenameMenu(working_, place.menu, text);
        if (outcome.Done())
            menuRenamed_(before, text);
    } else {
        MenuItemRec fields = working_.pool[static_cast<std::size_t>(DataManager::FindItem(working_, place.menu, place.position))];
        fields.LABEL = text;
        outcome = SetItem(working_, place, fields);
    }
    SetNote(outcome.refused);
    if (!outcome.Done())
        return FALSE;
    // Rows of other menus may name the renamed one: the tree is filled again once the
    // edit is over, not from inside the tree's own notification.
    ::PostMessageW(tree_, kRefillMessage, 0, 0);
    changed_();
    return FALSE;
}

// The label alone is edited, without the arrow and the menu it opens.
static void Tree_BeginLabelEdit(HWND tree, const std::string& text) {
    if (HWND edit = TreeView_GetEditControl(tree))
        ::SetWindowTextW(edit, Win::Widen(text).c_str());
}

void MenuEditorPage::Tree_Expanding(const NMTREEVIEWW& info) {
    if (info.action != TVE_EXPAND || TreeView_GetChild(tree_, info.itemNew.hItem))
        return;
    const Place place = PlaceOf(info.itemNew.hItem);
    if (place.IsMenu())
        return;
    const MenuItemRec& item =
        working_.pool[static_cast<std::size_t>(DataManager::FindItem(working_, place.menu, place.position))];
    if (const std::int32_t opened = MenuOpenedBy(working_, item); opened >= 0)
        AddItemRows(info.itemNew.hItem, opened);
}

// An item dropped on an item takes its place; dropped on a menu it goes last there.
void MenuEditorPage::Tree_Drop(Place from, POINT point) {
    TreeView_SelectDropTarget(tree_, nullptr);
    TVHITTESTINFO hit{};
    hit.pt = point;
    const Place target = PlaceOf(TreeView_HitTest(tree_, &hit));
    if (target.menu < 0 || target == from)
        return;
    std::int32_t to = target.position;
    if (target.IsMenu())
        to = DataManager::LastItemPosition(working_, target.menu) + 1;
    else if (target.menu == from.menu && from.position < to)
        to -= 1; // the target moved up when the item left its place
    if (target.menu == from.menu && to == from.position && !target.IsMenu())
        to += 1; // dropped on the next item: after it
    Done(MoveItem(working_, from, target.menu, to));
}

// Files dropped from the shell: before the item they fall on, last in the menu they fall
// on, or last in the selected row's menu when they fall on no row.
HTREEITEM MenuEditorPage::RowAt(POINT screen) const {
    TVHITTESTINFO hit{};
    hit.pt = screen;
    ::ScreenToClient(tree_, &hit.pt);
    return TreeView_HitTest(tree_, &hit);
}

void MenuEditorPage::Tree_DropFiles(const std::vector<std::wstring>& paths, POINT screen) {
    Place target = PlaceOf(RowAt(screen));
    if (target.menu < 0)
        target = {Selected().menu, -1};
    const std::int32_t position =
        target.IsMenu() ? DataManager::LastItemPosition(working_, target.menu) + 1 : target.position;
    Done(InsertItems(working_, target.menu, position, DroppedItems(paths)));
}

LRESULT CALLBACK MenuEditorPage::TreeProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR data) {
    auto* self = reinterpret_cast<MenuEditorPage*>(data);
    switch (message) {
    case kRefillMessage:
        self->Fill(self->Selected());
        return 0;
    case WM_DESTROY:
        self->fileDrop_.reset(); // registered on the window: revoked while it is there
        break;
    case WM_MOUSEMOVE:
        if (self->dragged_) {
            TVHITTESTINFO hit{};
            hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            TreeView_SelectDropTarget(hwnd, TreeView_HitTest(hwnd, &hit));
            return 0;
        }
        break;
    case WM_LBUTTONUP:
        if (self->dragged_) {
            // Taken before the capture goes: losing it gives the drag up.
            const Place from = *std::exchange(self->dragged_, std::nullopt);
            ::ReleaseCapture();
            self->Tree_Drop(from, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            return 0;
        }
        break;
    case WM_CAPTURECHANGED:
        if (self->dragged_ && reinterpret_cast<HWND>(lParam) != hwnd) {
            // Given up: Escape, or another window took the mouse.
            self->dragged_.reset();
            TreeView_SelectDropTarget(hwnd, nullptr);
        }
        break;
    case WM_KEYDOWN:
        if (self->dragged_ && wParam == VK_ESCAPE) {
            ::ReleaseCapture();
            return 0;
        }
        break;
    default:
        break;
    }
    return ::DefSubclassProc(hwnd, message, wParam, lParam);
}

bool MenuEditorPage::Command(int id, int code) {
    if (id < kFirstId || id > kNoteId)
        return false;
    if (code != BN_CLICKED)
        return true;
    const Place place = Selected();
    switch (id) {
    case kAddMenuId: cmdAddMenu_Click(); break;
    case kRenameId: cmdRename_Click(); break;
    case kDeleteId: cmdDelete_Click(); break;
    case kAddItemId: NewItem(AddItem(working_, place.menu)); break;
    case kInsertId: NewItem(InsertItem(working_, place.menu, place.IsMenu() ? 0 : place.position)); break;
    case kCopyId: Done(CopyItem(working_, place)); break;
    case kUpId: Done(MoveUp(working_, place)); break;
    case kDownId: Done(MoveDown(working_, place)); break;
    case kPropertiesId: EditProperties(place); break;
    case kTryItId: cmdTryIt_Click(); break;
    default: break;
    }
    return true;
}

LRESULT MenuEditorPage::Notify(const NMHDR& header) {
    if (header.hwndFrom != tree_)
        return 0;
    switch (header.code) {
    case TVN_BEGINLABELEDITW: {
        const Place place = PlaceOf(reinterpret_cast<const NMTVDISPINFOW&>(header).item.hItem);
        if (place.menu < 0)
            return TRUE;
        Tree_BeginLabelEdit(tree_, place.IsMenu()
                                       ? working_.menus[static_cast<std::size_t>(place.menu) + 1].NAME
                                       : working_.pool[static_cast<std::size_t>(
                                                           DataManager::FindItem(working_, place.menu, place.position))]
                                             .LABEL);
        return FALSE;
    }
    case TVN_ENDLABELEDITW:
        return Tree_EndLabelEdit(reinterpret_cast<const NMTVDISPINFOW&>(header));
    case TVN_ITEMEXPANDINGW:
        Tree_Expanding(reinterpret_cast<const NMTREEVIEWW&>(header));
        return FALSE;
    case TVN_BEGINDRAGW: {
        const Place place = PlaceOf(reinterpret_cast<const NMTREEVIEWW&>(header).itemNew.hItem);
        if (place.menu >= 0 && !place.IsMenu()) {
            dragged_ = place;
            ::SetCapture(tree_);
        }
        return 0;
    }
    case NM_DBLCLK:
        if (const Place place = Selected(); place.menu >= 0 && !place.IsMenu()) {
            EditProperties(place);
            return TRUE;
        }
        return 0;
    default:
        return 0;
    }
}

} // namespace PrefsWin
