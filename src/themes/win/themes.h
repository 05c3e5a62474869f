// Themes: saving, loading, deleting, exporting and importing them. This is what the
// themes page of the preferences calls, and start-up for the auto-install folder.
//
// Each function does the whole job of one button: it asks its questions and tells its
// refusals and failures in message boxes (through MessageBoxes::MsgBox, so tests can
// answer them), and it changes only what is said here. Theme names are the names of
// the folders under Themes, as the page lists them; paths are UTF-8.
//
//   SaveTheme      writes Themes\<name>\: <name>.wst (the look keys of settings), the
//                  pictures of the bitmaps folder and the sound files, and when asked the
//                  desktop wallpaper and the title and button fonts. Sets GenThemeName,
//                  GenThemeAuthor and SysTileWallpaper of settings and points
//                  BitmapsFolder and the sounds at the theme folder.
//   LoadTheme      makes Themes\<name>\ the look: its fonts installed when asked, the look
//                  keys of its .wst read into program.settings, BitmapsFolder and the sounds
//                  pointed at its folder, a missing font replaced by "Arial" (with a
//                  warning), its wallpaper set when asked, and every open menu repainted.
//                  The page shows settings.GenThemeName and GenThemeAuthor afterwards.
//                  Helmora.ini is not written: the page's OK or Apply saves the settings,
//                  as for any other change.
//   DeleteTheme    asks, then removes Themes\<name>\ with everything in it.
//   ExportTheme    packs Themes\<name>\ into Export\<name>.zip, its files under a top
//                  folder <name>/, after offering to delete a second wallpaper.
//   ImportPackage  unpacks a zip as Themes\<theme>\, where <theme> is the zip's one top
//                  folder or else the zip's name (the one .wst at the theme's top takes
//                  that name, so Load theme finds it). Refused whole, writing nothing: a broken
//                  zip, more than 5,000 entries or 200 MB, an entry that would land outside
//                  the theme folder or is a link. Before anything is written it shows the
//                  package's text files, warns of its fonts and asks before replacing a
//                  theme (unless GenUnzipAlwaysOverwrite); it unpacks beside the Themes
//                  folder's themes and moves the theme into place only when it is whole.
//                  A folder under Themes whose name starts with "~" and ends in
//                  ".unpacking" or ".replaced" is such a move cut short, not a theme.
//   InstallWaitingPackages  start-up: imports every zip of the AutoInstall folder, in
//                  name order; each one then moves to AutoInstall\Installed or, refused,
//                  broken or declined, to AutoInstall\Not installed, so no package is
//                  tried twice and the user's file is kept.
//   ThemeFontCheck, InstallFont, FaceNameOfFontFile: the font helpers the page uses too.
//
// Outcome: Done when the job was done; Declined when the user said no or the request was
// refused with its message (nothing changed then); Failed when files could not be read
// or written, or a package is damaged (told in a message box).
#pragma once

#include "core/program_values.h"
#include "core/settings.h"
#include "core/win/program.h"

#include <string>
#include <string_view>

namespace Themes {

enum class Outcome { Done, Declined, Failed };

struct SaveRequest {
    std::string name;
    std::string author;
    bool wallpaper = false; // copy the desktop wallpaper into the theme
    bool fonts = false;     // copy the title and button fonts' files into the theme
};
Outcome SaveTheme(const ProgramValues& values, SettingsRec& settings, const SaveRequest& request);

struct LoadRequest {
    std::string name;
    bool wallpaper = false;    // make the theme's wallpaper the desktop's
    bool installFonts = false; // install the theme's TrueType fonts first
};
Outcome LoadTheme(Program& program, const LoadRequest& request);

Outcome DeleteTheme(const ProgramValues& values, std::string_view name);

Outcome ExportTheme(const ProgramValues& values, std::string_view name);

struct Imported {
    Outcome outcome = Outcome::Failed;
    std::string themeName; // the theme the package holds, once its plan is known
};
// refusalNote, when given, ends every refusal's message.
Imported ImportPackage(const ProgramValues& values, const SettingsRec& settings, std::string_view zipPath,
                       std::string_view refusalNote = {});

void InstallWaitingPackages(const ProgramValues& values, const SettingsRec& settings);

// The name when a screen font of that name is installed; otherwise "Arial", after a warning.
std::string ThemeFontCheck(std::string_view fontName);
// Installs a TrueType font for the system: copied into the fonts folder (unless a file of
// its name is there already), entered in the registry's fonts table under its face name,
// added to the font table, and the change announced to every window.
void InstallFont(std::string_view ttfPath, bool isNT);
// The face name inside a TrueType file; empty when it cannot be read.
std::string FaceNameOfFontFile(std::string_view ttfPath);

} // namespace Themes
