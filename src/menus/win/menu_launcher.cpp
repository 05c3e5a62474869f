#include "menus/win/menu_launcher.h"

#include "core/win/form1.h"
#include "menus/win/launcher.h"
#include "win/text_convert.h"

#include <shellapi.h>

bool MenuLauncher::ActivateTaskWindow(HWND window) {
    return Launcher::ActivateTaskWindow(window);
}

std::int16_t MenuLauncher::RunCommand(const std::string& value) {
    return Launcher::RunCommand(form1_, value);
}

void MenuLauncher::RunProgram(const DisplayEntry& entry) {
    Launcher::RunProgram(form1_.program(), entry.LABEL, entry.STARTPATH, entry.PATH, entry.ARG, entry.RUNSTATE);
}

void MenuLauncher::ShowProperties(const std::string& path) {
    std::wstring file = Win::Widen(path);
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_INVOKEIDLIST;
    info.lpVerb = L"properties";
    info.lpFile = file.c_str();
    info.nShow = SW_SHOWNORMAL;
    ::ShellExecuteExW(&info);
}
