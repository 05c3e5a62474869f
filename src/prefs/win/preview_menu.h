// The preview of the preferences window: a real menu window, hosted in the preferences
// window, that lists the sample menu with the settings being edited. It has its own list
// of open menus, so that the program's menus and the preview never meet.
#pragma once

#include "core/settings.h"
#include "menus/menu_records.h"
#include "menuwindow/win/open_menus.h"

#include <windows.h>

#include <string>

class Form2;

namespace PrefsWin {

class PreviewMenu {
public:
    explicit PreviewMenu(std::string programFolder);
    ~PreviewMenu();
    PreviewMenu(const PreviewMenu&) = delete;
    PreviewMenu& operator=(const PreviewMenu&) = delete;

    // Paints the sample menu anew with the settings, its top left at a point of the host
    // (client pixels), with the sample item selected. Any sub-menu the user opened in it closes.
    void Show(HWND host, POINT topLeft, const SettingsRec& settings);
    // The menu window; null before the first Show.
    HWND hwnd() const;
    // How many times the preview was painted whole; tests see a change reach it.
    int Paints() const { return paints_; }

private:
    Form2* Window() const;

    std::string programFolder_;
    SettingsRec settings_;
    MenuTable menus_;
    OpenMenus openMenus_;
    int id_ = 0;
    int paints_ = 0;
};

} // namespace PrefsWin
