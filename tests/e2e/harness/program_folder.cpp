#include "harness/program_folder.h"

#include "win/text_convert.h"

#include <windows.h>

#include <vector>

namespace E2e {

namespace {

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

std::string TempFolder::File(std::string_view name) const {
    return path() + "\\" + std::string(name);
}

bool TempFolder::Exists(std::string_view name) const {
    return TestSupport::FileExists(File(name));
}

bool TempFolder::IsFolder(std::string_view name) const {
    DWORD attributes = ::GetFileAttributesW(Win::Widen(File(name)).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string TempFolder::ReadBytes(std::string_view name) const {
    return TestSupport::ReadBytes(File(name));
}

void TempFolder::WriteBytes(std::string_view name, std::string_view bytes) const {
    TestSupport::WriteBytes(File(name), std::string(bytes));
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

void ProgramFolder::WriteMenus(std::string_view lines) const {
    WriteBytes("TvMenus.ini", Utf16LeWithMark(WithCrLf(lines)));
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

namespace E2e {

std::string ProgramFolder::ReadValue(std::string_view section, std::string_view key) const {
    wchar_t value[512]{};
    ::GetPrivateProfileStringW(Win::Widen(section).c_str(), Win::Widen(key).c_str(), L"?", value, 512,
                               Win::Widen(File("Helmora.ini")).c_str());
    return Win::Narrow(value);
}

} // namespace E2e
