#include "core/win/profile_rewrite.h"

#include "core/win/ini_handler.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>

#include <cwctype>
#include <iterator>
#include <string_view>

namespace ProfileRewrite {

namespace {

// "The process cannot access the file ... (error 32)".
std::string SystemReason(DWORD error) {
    wchar_t buffer[512];
    DWORD n = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, buffer,
                               static_cast<DWORD>(std::size(buffer)), nullptr);
    while (n > 0 &&
           (buffer[n - 1] == L'\r' || buffer[n - 1] == L'\n' || buffer[n - 1] == L' ' || buffer[n - 1] == L'.'))
        --n;
    std::string reason = Win::Narrow(std::wstring_view(buffer, n));
    if (!reason.empty())
        reason += ' ';
    reason += "(error ";
    reason += std::to_string(error);
    reason += ')';
    return reason;
}

Result Failed(std::string what, std::string_view path, DWORD error) {
    Result result;
    what += ' ';
    what += path;
    what += ": ";
    what += SystemReason(error);
    result.problem = std::move(what);
    return result;
}

// The profile functions trim blanks around a value written on its own, but not all of
// them around one in a section written whole.
bool BlankAtAnEnd(std::wstring_view value) {
    const auto blank = [](wchar_t c) { return std::iswspace(c) || c == L'\x1a'; };
    return !value.empty() && (blank(value.front()) || blank(value.back()));
}

// Writes the keys [first, end) of one section: as a whole section when no value has
// blanks to trim, otherwise key by key. The profile functions rewrite the whole file
// on every call, so key by key a menu file of 1,000 items takes seconds and a section
// at a time milliseconds. Into an empty file both give the same text, since each
// section's keys come together and once each.
bool WriteSection(const std::wstring& file, const ProfileWrites& writes, std::size_t first, std::size_t end) {
    const std::wstring section = Win::Widen(writes[first].section);
    std::wstring block; // "key=value" strings, each ended by a NUL, the list by another
    bool whole = true;
    for (std::size_t k = first; k < end && whole; ++k) {
        const std::wstring value = Win::Widen(writes[k].value);
        whole = !BlankAtAnEnd(value);
        block += Win::Widen(writes[k].key);
        block += L'=';
        block += value;
        block += L'\0';
    }
    if (whole) {
        block += L'\0';
        return ::WritePrivateProfileSectionW(section.c_str(), block.c_str(), file.c_str()) != FALSE;
    }
    for (std::size_t k = first; k < end; ++k) {
        const std::wstring key = Win::Widen(writes[k].key);
        const std::wstring value = Win::Widen(writes[k].value);
        if (!::WritePrivateProfileStringW(section.c_str(), key.c_str(), value.c_str(), file.c_str()))
            return false;
    }
    return true;
}

std::optional<std::uintmax_t>& FreeSpaceForTests() {
    static std::optional<std::uintmax_t> bytes;
    return bytes;
}

bool BeyondFreeSpace(const std::wstring& file) {
    const std::optional<std::uintmax_t>& free = FreeSpaceForTests();
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!free || !::GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data))
        return false;
    return ((std::uintmax_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow) > *free;
}

// False, with the error in GetLastError, at the first write that fails.
bool WriteAll(const std::wstring& file, const ProfileWrites& writes) {
    for (std::size_t first = 0; first < writes.size();) {
        std::size_t end = first + 1;
        while (end < writes.size() && writes[end].section == writes[first].section)
            ++end;
        if (!WriteSection(file, writes, first, end))
            return false;
        if (BeyondFreeSpace(file)) {
            ::SetLastError(ERROR_DISK_FULL);
            return false;
        }
        first = end;
    }
    return true;
}

// The text must be on the disk before the rename makes it the original: otherwise a
// crash just after the rename could leave the original empty.
bool FlushToDisk(const std::wstring& file) {
    Win::UniqueFileHandle handle(::CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                               FILE_ATTRIBUTE_NORMAL, nullptr));
    return handle && ::FlushFileBuffers(handle.get());
}

bool ReadOnly(const std::wstring& file) {
    const DWORD attributes = ::GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

// One rename puts the new file in the original's place: at every moment the name holds
// the old file or the new one. ReplaceFileW does not promise that, and under Wine a kill
// inside it was seen to leave no file at all. The original's attributes (hidden, say) go
// along; its security is the folder's, as for any file made there.
Result PutInPlace(const std::wstring& temp, const std::wstring& target, std::string_view file) {
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES)
        ::SetFileAttributesW(temp.c_str(), attributes);
    // A program that has the original open for a moment (a virus scanner, a backup, an
    // editor reading it) refuses the rename: it is tried again for about a second.
    constexpr int kAttempts = 20;
    constexpr DWORD kPause = 50; // ms
    for (int attempt = 1;; ++attempt) {
        if (::MoveFileExW(temp.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return {true, {}};
        const DWORD error = ::GetLastError();
        if (attempt == kAttempts || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION))
            return Failed("Could not replace", file, error);
        ::Sleep(kPause);
    }
}

} // namespace

void SetFreeSpaceForTests(std::optional<std::uintmax_t> bytes) {
    FreeSpaceForTests() = bytes;
}

std::string TemporaryFileFor(std::string_view file) {
    std::string temp(file);
    temp += ".tmp";
    return temp;
}

Result Rewrite(std::string_view file, const ProfileWrites& writes) {
    const std::string tempName = TemporaryFileFor(file);
    const std::wstring temp = Win::Widen(tempName);
    const std::wstring target = Win::Widen(file);

    // Replacing would be refused too, but only after the whole temporary file is written,
    // and as "access denied": said here, before anything is written, the user learns why.
    if (ReadOnly(target)) {
        Result result;
        result.problem = "Could not replace ";
        result.problem += file;
        result.problem += ": the file is read-only";
        return result;
    }

    // A temporary file left by an earlier run that stopped half-way is of no use.
    if (!::DeleteFileW(temp.c_str())) {
        const DWORD error = ::GetLastError();
        if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND)
            return Failed("Could not remove the old temporary file", tempName, error);
    }
    if (!IniHandler::CreateUnicodeProfile(tempName)) {
        Result result = Failed("Could not create the temporary file", tempName, ::GetLastError());
        ::DeleteFileW(temp.c_str());
        return result;
    }

    Result result = WriteAll(temp, writes) && FlushToDisk(temp)
                        ? PutInPlace(temp, target, file)
                        : Failed("Could not write the temporary file", tempName, ::GetLastError());
    if (!result.saved)
        ::DeleteFileW(temp.c_str());
    return result;
}

} // namespace ProfileRewrite
