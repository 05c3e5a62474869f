// The launcher as the menu windows meet it: each choice goes to RunProgram, RunCommand
// or ActivateTaskWindow with the program's settings and main form.
#pragma once

#include "menuwindow/win/menu_choices.h"

class Form1;

class MenuLauncher : public MenuChoices {
public:
    explicit MenuLauncher(Form1& form1) : form1_(form1) {}

    bool ActivateTaskWindow(HWND window) override;
    std::int16_t RunCommand(const std::string& value) override;
    void RunProgram(const DisplayEntry& entry) override;
    void ShowProperties(const std::string& path) override;
    void StoreHotspotPlace(int hotspot, int left, int top) override;

private:
    Form1& form1_;
};
