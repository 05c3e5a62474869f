// The actions of the internal commands that are single calls on the system: simulated
// keys, media command strings, the screen saver, dial-up hang-up, the shell's special
// folders, ejecting a drive's media and opening the help page.
#pragma once

#include "desktop/command_actions.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ShellActions {

void PressKeys(const std::vector<CommandActions::KeyStroke>& keys);

// Sends a command string to the media control interface; its errors are ignored.
void SendMediaCommand(std::string_view command);

void StartScreenSaver();

// Hangs up every dial-up connection. The dial-up library is loaded when needed, so a
// system without it starts the program all the same and this does nothing.
void HangUpDialUpConnections();

void OpenSpecialFolder(CommandActions::SpecialFolder folder);

// Locks the drive's volume and ejects its media; false on any failure, with the drive
// left as it was.
bool EjectMedia(char drive);

// Opens the help page of the help folder; the shell's result (below 33 is a failure).
std::intptr_t OpenHelpPage(const std::string& helpFolder, std::string_view page = CommandActions::kHelpPage);

} // namespace ShellActions
