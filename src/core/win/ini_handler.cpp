#include "core/win/ini_handler.h"

#include "core/message_box.h"
#include "core/paths.h"
#include "core/text.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

namespace IniHandler {

namespace {

struct Target {
    std::wstring section;
    std::wstring file;
    bool registered = false;
};

Target& CurrentTarget() {
    static Target target;
    return target;
}

constexpr DWORD kValueBufferSize = 255;
constexpr DWORD kKeyListBufferSize = 16384;
constexpr DWORD kKeyListBufferLimit = 16384 * 1024;

std::string CurrentDirectoryOfDrive(char drive) {
    wchar_t buffer[MAX_PATH * 2];
    if (drive == '\0') {
        DWORD n = ::GetCurrentDirectoryW(static_cast<DWORD>(std::size(buffer)), buffer);
        return Win::Narrow(std::wstring_view(buffer, n));
    }
    // "D:" names the current directory of drive D.
    wchar_t spec[3] = {static_cast<wchar_t>(drive), L':', L'\0'};
    DWORD n = ::GetFullPathNameW(spec, static_cast<DWORD>(std::size(buffer)), buffer, nullptr);
    if (n == 0 || n >= std::size(buffer))
        return std::string(1, drive) + ":\\";
    return Win::Narrow(std::wstring_view(buffer, n));
}

// A list of NUL-ended strings ended by another NUL, as the profile functions return
// lists; the buffer grows until the list is whole.
template <class Read>
std::vector<std::wstring> ReadList(Read read) {
    std::vector<wchar_t> buffer;
    DWORD n = 0;
    for (DWORD size = kKeyListBufferSize; size <= kKeyListBufferLimit; size *= 2) {
        buffer.assign(size, L'\0');
        n = read(buffer.data(), size);
        if (n + 2 < size)
            break;
    }
    std::vector<std::wstring> list;
    for (std::size_t pos = 0; pos < n;) {
        std::wstring_view item(buffer.data() + pos);
        if (item.empty())
            break;
        list.emplace_back(item);
        pos += item.size() + 1;
    }
    return list;
}

} // namespace

void SetTarget(std::string_view section, std::string_view file) {
    Target& t = CurrentTarget();
    t.section = Win::Widen(Text::Trim(section));
    t.file = Win::Widen(Text::Trim(file));
    t.registered = true;
}

void ForgetTargetForTests() { CurrentTarget() = Target{}; }

std::string ReadValue(std::string_view key, std::string_view defaultValue) {
    const Target& t = CurrentTarget();
    if (!t.registered) {
        MessageBoxes::MsgBox("[Section] and FileName Not Registered in Private.Ini!", "IniFile Logic Error",
                             MessageBoxes::kCritical);
        return {};
    }
    wchar_t buffer[kValueBufferSize];
    std::wstring wideKey = Win::Widen(key);
    std::wstring wideDefault = Win::Widen(defaultValue);
    DWORD n = ::GetPrivateProfileStringW(t.section.c_str(), wideKey.c_str(), wideDefault.c_str(), buffer,
                                         kValueBufferSize, t.file.c_str());
    return Win::Narrow(std::wstring_view(buffer, n));
}

std::int16_t ReadSection(ProfileSection& table) {
    const Target& t = CurrentTarget();
    if (!t.registered)
        return 0;
    // The key list grows until it is whole: a cut list would drop the keys past the
    // cut, and the next save of a menu file would then delete those items for good.
    std::vector<std::wstring> names = ReadList([&](wchar_t* buffer, DWORD size) {
        return ::GetPrivateProfileStringW(t.section.c_str(), nullptr, L"", buffer, size, t.file.c_str());
    });
    for (const std::wstring& name : names) {
        std::string key = Win::Narrow(name);
        std::string value = ReadValue(key, "");
        table.push_back({std::move(key), std::move(value)});
    }
    // The table holds them all; the count is 16 bits, as callers expect.
    return static_cast<std::int16_t>(std::min<std::size_t>(names.size(), INT16_MAX));
}

ProfileSection ReadWholeSection(std::string_view section, std::string_view file) {
    SetTarget(section, file);
    ProfileSection table;
    ReadSection(table);
    return table;
}

std::vector<NamedSection> ReadWholeFile(std::string_view file) {
    const std::wstring wideFile = Win::Widen(file);
    std::vector<NamedSection> sections;
    for (const std::wstring& name : ReadList([&](wchar_t* buffer, DWORD size) {
             return ::GetPrivateProfileSectionNamesW(buffer, size, wideFile.c_str());
         })) {
        NamedSection section{Win::Narrow(name), {}};
        for (const std::wstring& line : ReadList([&](wchar_t* buffer, DWORD size) {
                 return ::GetPrivateProfileSectionW(name.c_str(), buffer, size, wideFile.c_str());
             })) {
            std::size_t equals = line.find(L'=');
            if (equals != std::wstring::npos)
                section.entries.push_back({Win::Narrow(line.substr(0, equals)), Win::Narrow(line.substr(equals + 1))});
        }
        sections.push_back(std::move(section));
    }
    return sections;
}

bool CreateUnicodeProfile(std::string_view file) {
    std::wstring path = Win::Widen(file);
    Win::UniqueFileHandle h(
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!h)
        return ::GetLastError() == ERROR_FILE_EXISTS;
    static const unsigned char bom[] = {0xFF, 0xFE};
    DWORD written = 0;
    return ::WriteFile(h.get(), bom, sizeof bom, &written, nullptr) && written == sizeof bom;
}

std::string FolderOfPath(std::string_view path) {
    std::wstring folder = Win::Widen(Paths::FolderOfPath(path, CurrentDirectoryOfDrive));
    ::CharUpperBuffW(folder.data(), static_cast<DWORD>(folder.size()));
    return Win::Narrow(folder);
}

} // namespace IniHandler
