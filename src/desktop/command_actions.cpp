#include "desktop/command_actions.h"

namespace CommandActions {

namespace {

constexpr std::uint8_t kWindowsKey = 0x5B;
constexpr std::uint8_t kShift = 0x10;
constexpr std::uint8_t kCtrl = 0x11;
constexpr std::int16_t kFirstEjectCode = 100;
constexpr std::int16_t kLastEjectCode = 125;

// The Windows key, then the modifier, then the key pressed and released; the Windows
// key and the modifier are let go in the order they went down.
std::vector<KeyStroke> WindowsKeyWith(std::uint8_t key, std::uint8_t modifier = 0) {
    std::vector<KeyStroke> keys{{kWindowsKey, false}};
    if (modifier)
        keys.push_back({modifier, false});
    keys.push_back({key, false});
    keys.push_back({key, true});
    keys.push_back({kWindowsKey, true});
    if (modifier)
        keys.push_back({modifier, true});
    return keys;
}

Action Plain(Kind kind) {
    Action action;
    action.kind = kind;
    return action;
}

Action Keys(std::uint8_t key, std::uint8_t modifier = 0) {
    Action action = Plain(Kind::Keys);
    action.keys = WindowsKeyWith(key, modifier);
    return action;
}

Action Session(SessionMode mode, std::string_view label) {
    Action action = Plain(Kind::Session);
    action.mode = mode;
    action.label = label;
    return action;
}

Action Shown(Kind kind, Visibility visibility) {
    Action action = Plain(kind);
    action.visibility = visibility;
    return action;
}

Action Folder(SpecialFolder folder) {
    Action action = Plain(Kind::SpecialFolder);
    action.folder = folder;
    return action;
}

Action Door(bool open) {
    Action action = Plain(Kind::CdDoor);
    action.doorOpen = open;
    return action;
}

} // namespace

Action ActionOf(std::int16_t code) {
    if (code >= kFirstEjectCode && code <= kLastEjectCode) {
        Action eject = Plain(Kind::Eject);
        eject.drive = static_cast<char>('A' + (code - kFirstEjectCode));
        return eject;
    }
    switch (code) {
    case 0: return Keys('R');
    case 1: return Keys('F');
    case 2: return Keys('F', kCtrl);
    case 7: return Session(SessionMode::LogOut, "");
    case 8: return Session(SessionMode::Restart, "");
    case 9: return Plain(Kind::ExitProgram);
    case 10: return Shown(Kind::Taskbar, Visibility::Toggle);
    case 11: return Folder(SpecialFolder::DialUpNetwork);
    case 12: return Folder(SpecialFolder::MyComputer);
    case 13: return Folder(SpecialFolder::NetworkNeighbourhood);
    case 14: return Plain(Kind::Preferences);
    case 15: return Plain(Kind::Help);
    case 16: return Session(SessionMode::Restart, "Restart Windows");
    case 17: return Door(true);
    case 18: return Plain(Kind::ScreenSaver);
    case 19: return Keys('M');
    case 20: return Keys(kWindowsKey);
    case 21: return Keys(0x5E);
    case 22: return Keys(0x70); // F1
    case 23: return Plain(Kind::HangUp);
    case 24: return Session(SessionMode::LogOut, "Log Out");
    case 25: return Door(false);
    case 26: return Shown(Kind::DesktopIcons, Visibility::Toggle);
    case 27: return Keys('M', kShift);
    case 28: return Folder(SpecialFolder::Internet);
    case 29: return Folder(SpecialFolder::Desktop);
    case 30: return Shown(Kind::Taskbar, Visibility::Show);
    case 31: return Shown(Kind::Taskbar, Visibility::Hide);
    case 32: return Shown(Kind::DesktopIcons, Visibility::Show);
    case 33: return Shown(Kind::DesktopIcons, Visibility::Hide);
    case 34: return Shown(Kind::SystrayCopy, Visibility::Show);
    case 35: return Shown(Kind::SystrayCopy, Visibility::Hide);
    case 36: return Shown(Kind::TaskListWindow, Visibility::Show);
    case 37: return Shown(Kind::TaskListWindow, Visibility::Hide);
    case 38: return Shown(Kind::TaskManagement, Visibility::Show);
    case 39: return Shown(Kind::TaskManagement, Visibility::Hide);
    case 40: return Shown(Kind::TaskManagement, Visibility::Toggle);
    case 41: return Session(SessionMode::Shutdown, "");
    case 42: return Session(SessionMode::Shutdown, "Shutdown Windows");
    default: return Plain(Kind::NotImplemented);
    }
}

bool ShowWindowFor(Visibility visibility, bool visibleNow) {
    switch (visibility) {
    case Visibility::Show: return true;
    case Visibility::Hide: return false;
    case Visibility::Toggle: break;
    }
    return !visibleNow;
}

std::string_view CdDoorCommand(bool open) {
    return open ? "Set CDAudio Door Open Wait" : "Set CDAudio Door Closed";
}

std::string SessionQuestion(std::string_view label) {
    std::string question = "Are you sure you want to ";
    question += label;
    question += "?";
    return question;
}

std::vector<SessionStep> SessionSteps(const ExitRules::DesktopChanges& changes, bool showInTray, SessionMode mode,
                                      bool isNT) {
    std::vector<SessionStep> steps;
    if (changes.TaskbarTakenOver)
        steps.push_back(SessionStep::PutBackTaskbar);
    if (changes.TaskbarHidden)
        steps.push_back(SessionStep::ShowTaskbar);
    if (changes.DesktopIconsHidden)
        steps.push_back(SessionStep::ShowDesktopIcons);
    if (showInTray)
        steps.push_back(SessionStep::RemoveTrayIcon);
    if (mode != SessionMode::LogOut && isNT)
        steps.push_back(SessionStep::EnableShutdownPrivilege);
    steps.push_back(SessionStep::EndSession);
    return steps;
}

std::uint32_t SessionFlags(SessionMode mode, bool atxShutdown, bool forceShutdown) {
    constexpr std::uint32_t kLogOff = 0, kShutdown = 1, kReboot = 2, kForce = 4, kPowerOff = 8;
    switch (mode) {
    case SessionMode::LogOut: return kLogOff;
    case SessionMode::Restart: return kReboot | (forceShutdown ? kForce : 0);
    case SessionMode::Shutdown: return (atxShutdown ? kPowerOff : kShutdown) | (forceShutdown ? kForce : 0);
    }
    return kLogOff;
}

std::string EjectFailedMessage(char drive) {
    std::string message = "Sorry, unable to eject media on drive ";
    message += drive;
    return message;
}

std::string HelpMissingMessage(std::intptr_t errorCode) {
    std::string message = "Sorry, the Help file could not be found (error code";
    message += std::to_string(errorCode);
    message += ").";
    return message;
}

} // namespace CommandActions
