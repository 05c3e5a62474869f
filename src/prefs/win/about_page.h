// The about page: the program's icon, name and version, what it is, and the libraries
// it is built with and their licences.
#pragma once

#include "core/win/program.h"
#include "prefs/win/dialog_font.h"

#include <windows.h>

namespace PrefsWin {

void MakeAboutPage(HWND panel, const DialogFont& font, const Program& program);

} // namespace PrefsWin
