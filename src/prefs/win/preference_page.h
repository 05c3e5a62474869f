// One page of the preferences window: a scrolling panel that holds, for every key the
// catalogue puts on the page, the control of its kind, laid out in its group. The
// controls show the working copy of the settings and change it as the user works them;
// every change is reported at once, so that the preview follows.
#pragma once

#include "core/settings.h"
#include "prefs/page_layout.h"
#include "prefs/win/dialog_font.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace PrefsWin {

class PreferencePage {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2PreferencePage";

    // Reports a change the user made to the working copy.
    using Changed = std::function<void()>;

    // programFolder: where a relative pictures folder is taken from.
    PreferencePage(PrefPage page, SettingsRec& working, const DialogFont& font, std::string programFolder,
                   Changed changed);
    PreferencePage(const PreferencePage&) = delete;
    PreferencePage& operator=(const PreferencePage&) = delete;

    // Creates the panel, hidden, with its controls; rooms are the groups' own rooms.
    bool Create(HWND parent, std::span<const Preferences::GroupRoom> rooms = {});
    // Places the panel; it scrolls when its controls are taller than the room.
    void Place(const RECT& area);
    // Before the controls are scaled to another DPI: the page goes back to its top, and
    // its height is taken anew from the font afterwards.
    void ScrollToTop() { ScrollTo(0); }
    void FontChanged() { contentHeight_ = font_.Y(layout_.height); }
    // Shows the working copy's values again (after a revert, or a font dialog that set several keys).
    void Refresh();
    // Scrolls a control of the page into view, when it is one.
    void EnsureVisible(HWND control);
    // A group's own room on the panel, in the panel's client pixels at the top scroll position.
    RECT Room(std::string_view group) const;

    HWND hwnd() const { return window_.get(); }
    PrefPage page() const { return page_; }

    // Commands of controls that the page's own part (a group's room) made on the panel.
    std::function<bool(int id, int code)> roomCommands;
    // Notifications of those controls (a tree view's); the answer is the message's result.
    std::function<LRESULT(const NMHDR& header)> roomNotify;
    // Texts of the room that are drawn in the colour of the page's notes.
    std::vector<HWND> roomNotes;

private:
    friend LRESULT CALLBACK Win::FormWindowProc<PreferencePage>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    // The controls of one key's row.
    struct Row {
        const Preferences::PlacedKey* placed = nullptr;
        HWND control = nullptr;
        HWND second = nullptr;
        HWND note = nullptr;
        Win::UniqueBrush swatch; // a colour's swatch
    };

    HWND MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, const Preferences::DluRect& rect,
                     int id = 0);
    void MakeRow(Row& row, int id);
    void ShowRow(Row& row);
    void Control_Command(int id, int code, HWND control);
    void Number_Changed(Row& row, bool leaving);
    void Colour_Click(Row& row);
    void Font_Click(Row& row);
    void Folder_Browse(Row& row);
    void HotKey_Changed(Row& row);
    void SetNote(Row& row, const std::string& note);
    void Report();
    void ScrollTo(int position);
    void Form_VScroll(int request);
    HBRUSH Form_CtlColorStatic(HDC dc, HWND control);

    PrefPage page_;
    SettingsRec& working_;
    const DialogFont& font_;
    std::string programFolder_;
    Changed changed_;
    Preferences::PageLayout layout_;
    std::vector<Row> rows_;
    std::map<int, std::size_t> rowOfId_; // a control's identifier: its row
    int scroll_ = 0;                     // pixels scrolled down
    int contentHeight_ = 0;
    bool refreshing_ = false; // the page is setting its controls itself: no change to report
    Win::UniqueWindow window_;
};

} // namespace PrefsWin
