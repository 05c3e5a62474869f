// A section read at once must give exactly what reading its key names and then each key
// gives: the platform's own answers, on random and hostile files in every encoding and
// line ending.
#include "core/win/ini_handler.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

// The slow way: the list of key names, then one read of each (as a 255-character read).
ProfileSection ReadKeyByKey(const std::string& section, const std::string& file) {
    const std::wstring wideSection = Win::Widen(section);
    const std::wstring wideFile = Win::Widen(file);
    std::vector<wchar_t> names(1 << 22);
    const DWORD n = ::GetPrivateProfileStringW(wideSection.c_str(), nullptr, L"", names.data(),
                                               static_cast<DWORD>(names.size()), wideFile.c_str());
    ProfileSection table;
    for (std::size_t pos = 0; pos < n;) {
        const std::wstring name(names.data() + pos);
        if (name.empty())
            break;
        wchar_t value[255];
        const DWORD length = ::GetPrivateProfileStringW(wideSection.c_str(), name.c_str(), L"", value, 255,
                                                        wideFile.c_str());
        table.push_back({Win::Narrow(name), Win::Narrow(std::wstring_view(value, length))});
        pos += name.size() + 1;
    }
    return table;
}

const char* const kNames[] = {"a", "A", "Key", "KEY", "NAME-1", "name-1", "Ключ", "КЛЮЧ", "名前", "b c", "x"};
const char* const kValues[] = {
    "", " ", "1", "  spaced  ", "\"quoted\"", "'single'", "\"half", "\"", "\"\"", "\"a\"b\"", "'a\"",
    "\" inner \"", "a=b", "\ttab\t", "Привет мир", "日本語のテキスト", "😀", "C:\\Program Files\\x.exe,3", ";not a comment"};

// One random line of a section: mostly keys, some with odd names or none at all.
std::string RandomLine(std::mt19937& random) {
    auto pick = [&](auto& list) { return std::string(list[random() % std::size(list)]); };
    switch (random() % 20) {
    case 0:
        return pick(kNames); // no '='
    case 1:
        return std::string(";") + pick(kNames) + "=" + pick(kValues); // a comment
    case 2:
        return ""; // a blank line
    case 3: // long: around the cut, with a pair of UTF-16 units across it at times
        return pick(kNames) + "=" + std::string(250 + random() % 8, 'v') + pick(kValues);
    case 4:
        return std::string("  ") + pick(kNames) + " \t=" + pick(kValues) + " ";
    default:
        return pick(kNames) + "=" + pick(kValues);
    }
}

enum class Encoding { Ansi, Utf8Bom, Utf16Bom };

std::string Encoded(const std::string& text, Encoding encoding) {
    switch (encoding) {
    case Encoding::Ansi:
        return text;
    case Encoding::Utf8Bom:
        return "\xEF\xBB\xBF" + text;
    case Encoding::Utf16Bom: {
        const std::wstring wide = Win::Widen(text);
        std::string bytes = "\xFF\xFE";
        bytes.append(reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t));
        return bytes;
    }
    }
    return text;
}

// Sections "S", "Other" and a second "s", which the platform does not join to the first.
std::string RandomFile(std::mt19937& random, const std::string& end) {
    std::string text;
    for (const char* header : {"[S]", "[Other]", "[s]"}) {
        text += header;
        text += end;
        const int lines = 1 + static_cast<int>(random() % 40);
        for (int i = 0; i < lines; ++i) {
            // An empty name ends the list of names; rare, so that most lists run long.
            text += random() % 60 == 0 ? std::string("=") + kValues[random() % std::size(kValues)] : RandomLine(random);
            text += end;
        }
    }
    return text;
}

// One "[key]=[value]" line a key, for a readable difference.
std::string Listed(const ProfileSection& table) {
    std::string text;
    for (const ProfileEntry& entry : table)
        text += "[" + entry.key + "]=[" + entry.value + "]\n";
    return text;
}

void ExpectSameBothWays(const std::string& file, const std::string& what) {
    for (const char* section : {"S", "s", "Other", "Missing"})
        ASSERT_EQ(Listed(IniHandler::ReadWholeSection(section, file)), Listed(ReadKeyByKey(section, file)))
            << what << ", section " << section << ", file:\n"
            << TestSupport::ReadBytes(file);
}

} // namespace

TEST(ProfileSectionRead, RandomFilesReadAtOnceAsKeyByKey) {
    TestSupport::TempFolder dir;
    // Fixed, so that a run is repeatable; TARVEX_RANDOM_START tries others.
    const char* chosen = std::getenv("TARVEX_RANDOM_START");
    const unsigned randomStart = chosen ? static_cast<unsigned>(std::strtoul(chosen, nullptr, 10)) : 2026u;
    std::mt19937 random(randomStart);
    const char* const ends[] = {"\r\n", "\n", "\r"};
    for (int round = 0; round < 240; ++round) {
        const std::string file = dir.File("random" + std::to_string(round) + ".ini");
        const auto encoding = static_cast<Encoding>(round % 3);
        TestSupport::WriteBytes(file, Encoded(RandomFile(random, ends[(round / 3) % 3]), encoding));
        ExpectSameBothWays(file, "random start " + std::to_string(randomStart) + ", round " + std::to_string(round));
    }
}

TEST(ProfileSectionRead, HostileFilesReadAtOnceAsKeyByKey) {
    TestSupport::TempFolder dir;
    std::string thousands = "[S]\r\n";
    for (int i = 0; i < 5000; ++i) {
        thousands += 'K';
        thousands += std::to_string(i % 1700);
        thousands += '=';
        thousands += std::to_string(i);
        thousands += "\r\n";
    }
    std::string binary = "[S]\r\n";
    for (int i = 0; i < 4096; ++i)
        binary += static_cast<char>((i * 7919) % 256 == 0 ? 1 : (i * 7919) % 256);
    const std::pair<const char*, std::string> files[] = {
        {"duplicates by the thousand", thousands},
        {"binary bytes", binary},
        {"a header and nothing more", "[S]"},
        {"keys before any header", "a=1\r\n[S]\r\nb=2\r\n"},
        {"a value of 10,000 characters", "[S]\r\nlong=" + std::string(10000, 'z') + "\r\nnext=1\r\n"},
        {"no line end at the end", "[S]\r\nlast=value"},
    };
    for (const auto& [what, text] : files) {
        const std::string file = dir.File("hostile.ini");
        TestSupport::WriteBytes(file, text);
        ExpectSameBothWays(file, what);
    }
    ExpectSameBothWays(dir.File("missing.ini"), "a missing file");
}
