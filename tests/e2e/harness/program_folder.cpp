#include "harness/program_folder.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>

#include <atomic>
#include <vector>

namespace E2e {

namespace {

void RemoveTree(const std::wstring& folder) {
    WIN32_FIND_DATAW data;
    Win::UniqueFindHandle find(::FindFirstFileW((folder + L"\\*").c_str(), &data));
    if (find) {
        do {
            std::wstring name = data.cFileName;
            if (name == L"." || name == L"..")
                continue;
            std::wstring full = folder + L"\\" + name;
            if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
                RemoveTree(full);
            } else {
                ::SetFileAttributesW(full.c_str(), FILE_ATTRIBUTE_NORMAL);
                ::DeleteFileW(full.c_str());
            }
        } while (::FindNextFileW(find.get(), &data));
    }
    find.reset();
    ::RemoveDirectoryW(folder.c_str());
}

std::wstring TempBase() {
    wchar_t temp[MAX_PATH];
    DWORD n = ::GetTempPathW(MAX_PATH, temp);
    std::wstring base(temp, n);
    if (!base.empty() && base.back() == L'\\')
        base.pop_back();
    return base;
}

std::string Utf16LeWithMark(std::string_view utf8) {
    std::wstring wide = Win::Widen(utf8);
    std::string bytes = "\xFF\xFE";
    for (wchar_t c : wide) {
        bytes += static_cast<char>(c & 0xFF);
        bytes += static_cast<char>((c >> 8) & 0xFF);
    }
    return bytes;
}

std::string WithCrLf(std::string_view lines) {
    std::string out;
    for (char c : lines) {
        if (c == '\n')
            out += '\r';
        out += c;
    }
    return out;
}

} // namespace

TempFolder::TempFolder() {
    static std::atomic<unsigned> counter{0};
    std::wstring base = TempBase();
    for (;;) {
        std::wstring candidate =
            base + L"\\tarvex-e2e-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(counter++);
        if (::CreateDirectoryW(candidate.c_str(), nullptr)) {
            path_ = Win::Narrow(candidate);
            return;
        }
        if (::GetLastError() != ERROR_ALREADY_EXISTS)
            return; // path_ stays empty; the tests' checks of the folder fail
    }
}

TempFolder::~TempFolder() {
    if (!path_.empty())
        RemoveTree(Win::Widen(path_));
}

std::string TempFolder::File(std::string_view name) const {
    return path_ + "\\" + std::string(name);
}

bool TempFolder::Exists(std::string_view name) const {
    return ::GetFileAttributesW(Win::Widen(File(name)).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool TempFolder::IsFolder(std::string_view name) const {
    DWORD attributes = ::GetFileAttributesW(Win::Widen(File(name)).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string TempFolder::ReadBytes(std::string_view name) const {
    Win::UniqueFileHandle file(::CreateFileW(Win::Widen(File(name)).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return {};
    std::string bytes;
    char buffer[4096];
    DWORD got = 0;
    while (::ReadFile(file.get(), buffer, sizeof buffer, &got, nullptr) && got > 0)
        bytes.append(buffer, got);
    return bytes;
}

void TempFolder::WriteBytes(std::string_view name, std::string_view bytes) const {
    Win::UniqueFileHandle file(::CreateFileW(Win::Widen(File(name)).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (file)
        ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

ProgramFolder::ProgramFolder() {
    std::string from = TestProgramFolder();
    ready_ = !path().empty() &&
             ::CopyFileW(Win::Widen(from + "\\tarvex2.exe").c_str(), Win::Widen(ExePath()).c_str(), FALSE);
    ::CopyFileW(Win::Widen(from + "\\DefMenu.ini").c_str(), Win::Widen(File("DefMenu.ini")).c_str(), FALSE);
    WriteBytes("TvMenus.ini", "[MENUS]\r\n");
}

void ProgramFolder::WriteSettings(std::string_view lines) const {
    WriteBytes("Helmora.ini", Utf16LeWithMark(WithCrLf(lines)));
}

std::string TestProgramFolder() {
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        DWORD n = ::GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (n == 0)
            return {};
        if (n < buffer.size()) {
            std::wstring path(buffer.data(), n);
            return Win::Narrow(path.substr(0, path.find_last_of(L'\\')));
        }
        buffer.resize(buffer.size() * 2);
    }
}

} // namespace E2e
