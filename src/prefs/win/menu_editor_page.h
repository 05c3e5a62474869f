// The Menu Editor page's own part: the menus and their items as a tree, the buttons that
// change them, drag and drop of items and of files from the shell, and "Try It". It edits a working copy of the
// program's menus; Apply puts the copy in their place and writes the menu file.
#pragma once

#include "core/win/program.h"
#include "menuwindow/win/open_menus.h"
#include "prefs/menu_editor.h"
#include "prefs/win/dialog_font.h"
#include "prefs/win/file_drop_target.h"

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace PrefsWin {

class MenuEditorPage {
public:
    // The room it takes on the page, in dialog units.
    static constexpr int kRoomHeight = 266;
    static constexpr int kFirstId = 800;

    // A menu of the working copy was renamed: what names it elsewhere follows.
    using MenuRenamed = std::function<void(const std::string& from, const std::string& to)>;

    // Makes the tree and the buttons in the room of the page's panel; the panel hands on
    // their commands and notifications.
    MenuEditorPage(HWND panel, RECT room, const DialogFont& font, Program& program, std::function<void()> changed,
                   MenuRenamed menuRenamed);
    ~MenuEditorPage();
    MenuEditorPage(const MenuEditorPage&) = delete;
    MenuEditorPage& operator=(const MenuEditorPage&) = delete;

    // The program's menus again, the working copy's changes dropped.
    void Refresh();
    bool Dirty() const;
    const MenuTable& Working() const { return working_; }
    // Puts the working copy in the program's place and writes the menu file; true when
    // there was nothing to write or it was written.
    bool Apply();

    // The line under the tree that says why a change was refused.
    HWND note() const { return note_; }

    bool Command(int id, int code);
    LRESULT Notify(const NMHDR& header);

private:
    static LRESULT CALLBACK TreeProc(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);

    MenuEditor::Place Selected() const;
    MenuEditor::Place PlaceOf(HTREEITEM item) const;
    HTREEITEM RowAt(POINT screen) const;
    HTREEITEM AddRow(HTREEITEM parent, const std::wstring& text, MenuEditor::Place place, bool children);
    void AddItemRows(HTREEITEM parent, std::int32_t menu);
    void Fill(MenuEditor::Place select);
    void Done(const MenuEditor::Outcome& outcome);
    void SetNote(const std::string& text);
    bool EditProperties(MenuEditor::Place place);
    void NewItem(const MenuEditor::Outcome& added);

    void cmdAddMenu_Click();
    void cmdRename_Click();
    void cmdDelete_Click();
    void cmdTryIt_Click();
    LRESULT Tree_EndLabelEdit(const NMTVDISPINFOW& info);
    void Tree_Expanding(const NMTREEVIEWW& info);
    void Tree_Drop(MenuEditor::Place from, POINT point);
    void Tree_DropFiles(const std::vector<std::wstring>& paths, POINT screen);

    Program& program_;
    const DialogFont& font_;
    std::function<void()> changed_;
    MenuRenamed menuRenamed_;
    MenuTable working_;
    HWND tree_ = nullptr;
    HWND note_ = nullptr;
    std::vector<MenuEditor::Place> places_; // a row's lParam indexes this
    std::optional<MenuEditor::Place> dragged_;
    std::unique_ptr<FileDropTarget> fileDrop_;
    // "Try It": a real menu window over a copy of the working menus, apart from the program's.
    MenuTable tryMenus_;
    OpenMenus tryOpenMenus_;
};

} // namespace PrefsWin
