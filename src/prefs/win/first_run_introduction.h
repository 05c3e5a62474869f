// The introduction that a first run shows before the preferences: what the program
// does and how to open a menu, with an OK button.
#pragma once

#include <windows.h>

namespace FirstRunIntroduction {

// The window's class; tests find the window by it.
inline constexpr const wchar_t* kClassName = L"Tarvex2Introduction";

// Shows the introduction and returns when the user has closed it. The owner is kept
// disabled meanwhile; iconResource names the program's icon in the instance.
void ShowModal(HINSTANCE instance, HWND owner, int iconResource);

} // namespace FirstRunIntroduction
