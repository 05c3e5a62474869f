#include "desktop/win/shell_actions.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>
#include <mmsystem.h>
#include <ras.h>
#include <shellapi.h>
#include <shlobj.h>
#include <winioctl.h>

#include <memory>

namespace ShellActions {

namespace {

int FolderId(CommandActions::SpecialFolder folder) {
    using CommandActions::SpecialFolder;
    switch (folder) {
    case SpecialFolder::DialUpNetwork: return CSIDL_CONNECTIONS;
    case SpecialFolder::MyComputer: return CSIDL_DRIVES;
    case SpecialFolder::NetworkNeighbourhood: return CSIDL_NETWORK;
    case SpecialFolder::Internet: return CSIDL_INTERNET;
    case SpecialFolder::Desktop: return CSIDL_DESKTOPDIRECTORY;
    }
    return CSIDL_DRIVES;
}

struct ItemListDeleter {
    void operator()(ITEMIDLIST* list) const { ::CoTaskMemFree(list); }
};

bool Control(HANDLE device, DWORD code, void* input = nullptr, DWORD inputSize = 0) {
    DWORD returned = 0;
    return ::DeviceIoControl(device, code, input, inputSize, nullptr, 0, &returned, nullptr) != FALSE;
}

} // namespace

void PressKeys(const std::vector<CommandActions::KeyStroke>& keys) {
    std::vector<INPUT> inputs;
    for (const CommandActions::KeyStroke& stroke : keys) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = stroke.key;
        input.ki.dwFlags = stroke.up ? KEYEVENTF_KEYUP : 0;
        inputs.push_back(input);
    }
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void SendMediaCommand(std::string_view command) {
    ::mciSendStringW(Win::Widen(command).c_str(), nullptr, 0, nullptr);
}

void StartScreenSaver() {
    ::PostMessageW(::GetDesktopWindow(), WM_SYSCOMMAND, SC_SCREENSAVE, 0);
}

void HangUpDialUpConnections() {
    Win::UniqueModule ras(::LoadLibraryW(L"rasapi32.dll"));
    if (!ras)
        return;
    using EnumConnections = DWORD(WINAPI*)(RASCONNW*, DWORD*, DWORD*);
    using HangUp = DWORD(WINAPI*)(HRASCONN);
    auto enumConnections = reinterpret_cast<EnumConnections>(
        reinterpret_cast<void*>(::GetProcAddress(ras.get(), "RasEnumConnectionsW")));
    auto hangUp = reinterpret_cast<HangUp>(reinterpret_cast<void*>(::GetProcAddress(ras.get(), "RasHangUpW")));
    if (!enumConnections || !hangUp)
        return;
    std::vector<RASCONNW> connections(16);
    for (RASCONNW& connection : connections)
        connection.dwSize = sizeof(RASCONNW);
    DWORD bytes = static_cast<DWORD>(connections.size() * sizeof(RASCONNW));
    DWORD count = 0;
    if (enumConnections(connections.data(), &bytes, &count) != ERROR_SUCCESS)
        return;
    for (DWORD i = 0; i < count && i < connections.size(); ++i)
        hangUp(connections[i].hrasconn);
}

void OpenSpecialFolder(CommandActions::SpecialFolder folder) {
    ITEMIDLIST* list = nullptr;
    if (FAILED(::SHGetSpecialFolderLocation(nullptr, FolderId(folder), &list)) || !list)
        return;
    std::unique_ptr<ITEMIDLIST, ItemListDeleter> owned(list);
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_IDLIST;
    info.lpVerb = L"open";
    info.lpIDList = list;
    info.nShow = SW_SHOWNORMAL;
    ::ShellExecuteExW(&info);
}

bool EjectMedia(char drive) {
    std::wstring device = L"\\\\.\\";
    device += static_cast<wchar_t>(drive);
    device += L':';
    Win::UniqueFileHandle volume(::CreateFileW(device.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                               OPEN_EXISTING, 0, nullptr));
    if (!volume)
        return false;
    // The lock goes with the handle, so a failure after it leaves the drive as it was.
    PREVENT_MEDIA_REMOVAL allow{FALSE};
    return Control(volume.get(), FSCTL_LOCK_VOLUME) && Control(volume.get(), FSCTL_DISMOUNT_VOLUME) &&
           Control(volume.get(), IOCTL_STORAGE_MEDIA_REMOVAL, &allow, sizeof allow) &&
           Control(volume.get(), IOCTL_STORAGE_EJECT_MEDIA);
}

std::intptr_t OpenHelpPage(const std::string& helpFolder, std::string_view page) {
    std::string file = helpFolder + "\\";
    file += page;
    HINSTANCE result = ::ShellExecuteW(nullptr, L"open", Win::Widen(file).c_str(), nullptr,
                                       Win::Widen(helpFolder).c_str(), SW_SHOWNORMAL);
    return reinterpret_cast<std::intptr_t>(result);
}

} // namespace ShellActions
