// The open menu windows: the cascade list's records and, beside them, the window object
// of each record, through which other windows and the hotspots call it.
#pragma once

#include "menuwindow/interaction/cascade.h"

#include <map>
#include <memory>

class Form2;
class MenuChoices;

class OpenMenus {
public:
    OpenMenus();
    ~OpenMenus();
    OpenMenus(const OpenMenus&) = delete;
    OpenMenus& operator=(const OpenMenus&) = delete;

    MenuWindow::CascadeList& records() { return records_; }
    const MenuWindow::CascadeList& records() const { return records_; }
    int Count() const { return records_.Count(); }

    // Appends a record with a fresh identifier and no window yet; returns its index.
    int Append();

    // Gives the record at an index its window object.
    void Attach(int index, std::unique_ptr<Form2> window);

    // The window of the record with an identifier; null when there is none.
    Form2* WindowOf(int id) const;

    // The menu window that has the keyboard (the focus of this thread); null when none has.
    Form2* WindowWithKeyboard() const;

    // Unloads the window of the record at an index and removes the record; the later
    // records move down one place.
    void Close(int index);
    void CloseAll();
    // Closes a menu and every menu below it, the deepest first.
    void CloseWithSubMenus(int id);
    // Every open menu window takes the settings again and repaints itself, in cascade
    // order: new settings were applied or a theme was loaded.
    void RepaintAll();
    // A torn-off menu's window goes on under its fresh identifier.
    void Renumber(int id, int freshId);
    // Closes a menu with every menu below it, as a hotspot closes its menu: no window
    // needs to hear that a sub-menu went.
    void CloseHotspotMenu(int id);
    // While whole cascades close (the closing flag), no window needs to hear that its
    // sub-menu went.
    bool Closing() const { return closing_; }

    // ForceOnTop of the hotspot that opened the latest menu: its window is kept topmost.
    bool forceOnTop = false;
    // Where every menu window hands what the user chooses; null chooses nothing.
    MenuChoices* choices = nullptr;

private:
    MenuWindow::CascadeList records_;
    std::map<int, std::unique_ptr<Form2>> windows_;
    bool closing_ = false;
};
