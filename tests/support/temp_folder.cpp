#include "temp_folder.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>

#include <atomic>
#include <string>

namespace TestSupport {

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
} // namespace

TempFolder::TempFolder() {
    static std::atomic<unsigned> counter{0};
    wchar_t temp[MAX_PATH];
    DWORD n = ::GetTempPathW(MAX_PATH, temp);
    std::wstring base(temp, n);
    if (!base.empty() && base.back() == L'\\')
        base.pop_back();
    for (;;) {
        std::wstring candidate =
            base + L"\\tarvex-test-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(counter++);
        if (::CreateDirectoryW(candidate.c_str(), nullptr)) {
            path_ = Win::Narrow(candidate);
            return;
        }
        if (::GetLastError() != ERROR_ALREADY_EXISTS)
            return; // path_ stays empty and every file operation of the test fails
    }
}

TempFolder::~TempFolder() {
    RemoveTree(Win::Widen(path_));
}

std::string ReadBytes(const std::string& path) {
    // Shared for writing too: the program under test may still hold the file open.
    Win::UniqueFileHandle h(::CreateFileW(Win::Widen(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!h)
        return {};
    std::string out;
    char buffer[4096];
    DWORD got = 0;
    while (::ReadFile(h.get(), buffer, sizeof buffer, &got, nullptr) && got > 0)
        out.append(buffer, got);
    return out;
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    Win::UniqueFileHandle h(::CreateFileW(Win::Widen(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (h)
        ::WriteFile(h.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

bool FileExists(const std::string& path) {
    return ::GetFileAttributesW(Win::Widen(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

} // namespace TestSupport
