// Where a menu window hands what the user chose: the launcher's routines. The program
// gives every menu window the launcher through the open menus; the window tests give a
// recording one instead.
#pragma once

#include "menus/display_entry.h"

#include <windows.h>

#include <cstdint>
#include <string>

class MenuChoices {
public:
    virtual ~MenuChoices() = default;
    virtual bool ActivateTaskWindow(HWND window) = 0;
    // The internal command's result, or -1 for a command line.
    virtual std::int16_t RunCommand(const std::string& value) = 0;
    virtual void RunProgram(const DisplayEntry& entry) = 0;
    // The shell's properties of a file or folder.
    virtual void ShowProperties(const std::string& path) = 0;
    // A hotspot's menu was dragged to a new place: the hotspot opens it there from now on.
    virtual void StoreHotspotPlace(int hotspot, int left, int top) = 0;
};
