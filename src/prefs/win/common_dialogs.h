// The system's dialogs the preferences pick with: colour, font, folder and file. Each
// returns nothing when the user cancels.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace PrefsWin {

// The colour dialog, opened on the current colour with its full part shown. The sixteen
// custom colours the user mixed are kept for the next time, as long as the program runs.
std::optional<COLORREF> PickColour(HWND owner, COLORREF current);

struct FontChoice {
    std::string face;
    int points = 9;
    bool bold = false;
    bool italic = false;
    COLORREF colour = 0;
};
// The font dialog with the screen's fonts, their effects and colour.
std::optional<FontChoice> PickFont(HWND owner, const FontChoice& current);

// The folder picker, opened in the current folder when there is one.
std::optional<std::string> PickFolder(HWND owner, std::string_view current);

// The file picker for one kind of file ("Sounds", "*.wav;*.mid").
std::optional<std::string> PickFile(HWND owner, std::string_view current, const wchar_t* kind,
                                    const wchar_t* patterns);

} // namespace PrefsWin
