#include "core/win/ini_handler.h"

#include "core/message_box.h"
#include "core/paths.h"
#include "core/profile_reads.h"
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
constexpr std::size_t kListBufferSize = 16384;
// 64 M characters: far beyond any real profile, and an allocation a 32-bit process gets.
constexpr std::size_t kListBufferLimit = std::size_t{64} << 20;

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

// A list read from a file never holds more characters than the file has bytes, in any
// encoding; a missing file gives the smallest buffer.
std::size_t ListLimitFor(const std::wstring& file) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data))
        return kListBufferSize;
    const std::uint64_t bytes = (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
    return static_cast<std::size_t>(std::min<std::uint64_t>(bytes + 2, kListBufferLimit));
}

// A list of NUL-ended strings ended by another NUL, as the profile functions return
// lists, read into one buffer that grows until the list is whole or holds `limit`
// characters.
struct List {
    std::vector<wchar_t> buffer;
    std::vector<std::wstring_view> items; // into the buffer
};

template <class Read>
List ReadList(Read read, std::size_t limit) {
    List list;
    DWORD n = 0;
    for (std::size_t size = kListBufferSize;; size *= 2) {
        size = std::min(size, std::max(limit, kListBufferSize));
        list.buffer.resize(size);
        n = read(list.buffer.data(), static_cast<DWORD>(size));
        if (n + 2 < size || size >= limit)
            break;
    }
    for (std::size_t pos = 0; pos < n;) {
        std::wstring_view item(list.buffer.data() + pos);
        if (item.empty())
            break;
        list.items.push_back(item);
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
    // One read of the whole section, answered key by key as the key reads would answer.
    // The list grows until it is whole: a cut list would drop the keys past the cut, and
    // the next save of a menu file would then delete those items for good.
    const List lines = ReadList(
        [&](wchar_t* buffer, DWORD size) {
            return ::GetPrivateProfileSectionW(t.section.c_str(), buffer, size, t.file.c_str());
        },
        ListLimitFor(t.file));
    const auto keys = ProfileReads::KeysAsRead(lines.items, kValueBufferSize - 1);
    table.reserve(table.size() + keys.size());
    for (const auto& [key, value] : keys)
        table.push_back({Win::Narrow(key), Win::Narrow(value)});
    // The table holds them all; the count is 16 bits, as callers expect.
    return static_cast<std::int16_t>(std::min<std::size_t>(keys.size(), INT16_MAX));
}

ProfileSection ReadWholeSection(std::string_view section, std::string_view file) {
    SetTarget(section, file);
    ProfileSection table;
    ReadSection(table);
    return table;
}

std::vector<NamedSection> ReadWholeFile(std::string_view file) {
    const std::wstring wideFile = Win::Widen(file);
    const std::size_t limit = ListLimitFor(wideFile);
    std::vector<NamedSection> sections;
    const List names = ReadList(
        [&](wchar_t* buffer, DWORD size) { return ::GetPrivateProfileSectionNamesW(buffer, size, wideFile.c_str()); },
        limit);
    for (std::wstring_view name : names.items) {
        NamedSection section{Win::Narrow(name), {}};
        const std::wstring wideName(name);
        const List lines = ReadList(
            [&](wchar_t* buffer, DWORD size) {
                return ::GetPrivateProfileSectionW(wideName.c_str(), buffer, size, wideFile.c_str());
            },
            limit);
        for (std::wstring_view line : lines.items) {
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
