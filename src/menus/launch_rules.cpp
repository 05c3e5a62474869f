#include "menus/launch_rules.h"

#include "core/text.h"

#include <array>
#include <utility>

namespace LaunchRules {

namespace {

constexpr std::string_view kAppletStarter = "rundll32.exe shell32.dll,Control_RunDLL ";

// The shell's start errors, with the words the user is shown.
constexpr std::array<std::pair<int, std::string_view>, 23> kErrorTexts{{
    {0, "Not enough system memory or corrupt program file"},
    {2, "File not found"},
    {3, "Path not found"},
    {5, "Sharing or Protection Error"},
    {6, "Seperate data segments are required for each task"},
    {8, "Not enough memory to run the program"},
    {10, "Incorrect Windows version"},
    {11, "Invalid program file"},
    {12, "Program file requires a different operating system"},
    {13, "Program requires MS-DOS 4.0"},
    {14, "Unknown program file type"},
    {15, "Windows program does not support protected memory mode"},
    {16, "Invalid use of data segments when loading a second instance of a program"},
    {19, "Attempt to run a compressed program file"},
    {20, "Invalid Dynamic-link library"},
    {21, "Program requires Windows 32-bit extensions"},
    {26, "Sharing violation"},
    {27, "Invalid or incomplete filename association"},
    {28, "DDE transaction timed out"},
    {29, "DDE transaction failed"},
    {30, "DDE busy. Other DDE transactions were being processed"},
    {31, "No application associated to file type"},
    {32, "Required DLL was not found"},
}};

} // namespace

bool IsControlPanelApplet(std::string_view path) {
    std::string lower = Text::ToLower(path);
    return lower.size() >= 4 && lower.ends_with(".cpl") && lower.find("rundll32") == std::string::npos;
}

std::string AppletCommandLine(std::string_view path) {
    std::string line(kAppletStarter);
    line += path;
    return line;
}

std::string StartFolderFor(std::string_view startFolder, std::string_view path) {
    if (!startFolder.empty())
        return std::string(startFolder);
    std::size_t slash = path.rfind('\\');
    if (slash == std::string_view::npos)
        return "\\";
    return std::string(path.substr(0, slash + 1));
}

bool PathFitsTheShell(std::string_view path) {
    constexpr std::size_t kLongestFile = 259;
    constexpr std::size_t kLongestAddress = 2083;
    std::size_t length = Text::Utf16Length(path);
    bool address = path.find("://") != std::string_view::npos;
    return length <= (address ? kLongestAddress : kLongestFile);
}

int ShowCommandFor(int runState) {
    return runState + 1;
}

bool StartFailed(std::intptr_t result) {
    return result < 33;
}

std::string ErrorTitle(std::string_view label) {
    std::string title = "Tarvex - Error running ";
    title += label;
    return title;
}

std::string ErrorText(std::intptr_t result) {
    std::string text = "Unknown error";
    for (const auto& [code, words] : kErrorTexts) {
        if (code == result)
            text = words;
    }
    text += ".";
    return text;
}

CommandValue ParseCommandValue(std::string_view value) {
    CommandValue command;
    if (!value.starts_with('*')) {
        command.commandLine = value;
        return command;
    }
    command.internal = true;
    command.code = Text::ToInt16(Text::NumericValue(value.substr(1)));
    return command;
}

} // namespace LaunchRules
