// Files a hostile user hands the program: each start answers within seconds, with the
// menu or a clear message, the program runs on, and no file changes unless saved.
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/program_folder.h"
#include "harness/tarvex.h"
#include "win/handles.h"
#include "win/text_convert.h"
#include "core/settings_catalogue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace E2e;
using Clock = std::chrono::steady_clock;

// What a start came to: the boxes it showed (answered with their first button), whether
// its start-up menu showed, and how long until it waited for input.
struct Outcome {
    std::vector<std::string> boxes;
    bool menuShown = false;
    double seconds = 0;
};

Outcome StartAndAnswer(Tarvex& tarvex, const ProgramFolder& folder) {
    Outcome outcome;
    const Clock::time_point start = Clock::now();
    if (!tarvex.Start(folder))
        return outcome;
    const Clock::time_point deadline = start + 60s;
    // A box waits for its answer in a message loop, so an idle program may yet be showing
    // one: the start is over when the program is idle and shows none.
    while (Clock::now() < deadline) {
        if (std::optional<WindowInfo> box = WaitForMessageBox(tarvex.processId(), 100ms)) {
            outcome.boxes.push_back(DialogText(box->hwnd));
            PressButton(box->hwnd, "OK");
        } else if (tarvex.WaitUntilReady(100ms) && tarvex.WaitUntilIdle(1s) &&
                   !WaitForMessageBox(tarvex.processId(), 300ms)) {
            break;
        }
    }
    outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    outcome.menuShown = !VisibleMenuWindows(tarvex.processId()).empty();
    return outcome;
}

// The program is still running, ends through its own exit, and leaves both files as
// they were before it started.
void ExpectRunsOnAndKeepsTheFiles(Tarvex& tarvex, const ProgramFolder& folder, const std::string& menus,
                                  const std::string& settings, const std::string& what) {
    EXPECT_TRUE(tarvex.running()) << what;
    EXPECT_TRUE(tarvex.ExitThroughTray()) << what;
    EXPECT_TRUE(folder.ReadBytes("TvMenus.ini") == menus) << what;
    EXPECT_TRUE(folder.ReadBytes("Helmora.ini") == settings) << what;
}

std::string Garbage(std::size_t size) {
    std::mt19937 random(17);
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(random());
    return bytes;
}

// A 24-bit bitmap's headers claiming width by height, followed by `data` bytes of pixels.
std::string Bitmap(std::int32_t width, std::int32_t height, std::size_t data) {
    std::string bytes(54, '\0');
    auto put = [&](std::size_t at, std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes[at + i] = static_cast<char>(value >> (8 * i));
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(2, static_cast<std::uint32_t>(54 + data), 4);
    put(10, 54, 4);
    put(14, 40, 4);
    put(18, static_cast<std::uint32_t>(width), 4);
    put(22, static_cast<std::uint32_t>(height), 4);
    put(26, 1, 2);
    put(28, 24, 2);
    return bytes + std::string(data, '\x7f');
}

// An icon file of one 32-pixel, 32-bit picture whose directory claims more bytes than follow.
std::string TruncatedIcon() {
    std::string bytes = Bitmap(32, 64, 100).substr(14); // the info header of an icon's picture
    const unsigned char directory[] = {0, 0, 1, 0, 1, 0, 32, 32, 0, 0, 1, 0, 32, 0, 0xA8, 0x10, 0, 0, 22, 0, 0, 0};
    return std::string(reinterpret_cast<const char*>(directory), sizeof directory) + bytes;
}

int CountFiles(const std::string& folder) {
    WIN32_FIND_DATAW found{};
    Win::UniqueFindHandle search(::FindFirstFileW(Win::Widen(folder + "\\*.txt").c_str(), &found));
    int count = 0;
    if (search)
        do
            ++count;
        while (::FindNextFileW(search.get(), &found));
    return count;
}

// Makes files 1.txt to count.txt, empty, in the folder. Wine makes a file only after
// reading through the whole folder (it looks for the name in every case), which would take
// most of an hour for 100,000; under Wine the Linux shell makes them in seconds.
bool MakeEmptyFiles(const std::string& folder, int count) {
    using UnixName = char*(CDECL*)(LPCWSTR);
    const auto unixName = reinterpret_cast<UnixName>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* unixFolder = unixName ? unixName(Win::Widen(folder).c_str()) : nullptr;
    if (unixFolder) {
        std::string command = "Z:\\bin\\sh -c \"cd '";
        command += unixFolder;
        command += "' && seq 1 " + std::to_string(count) + " | sed s/$/.txt/ | xargs touch\"";
        ::HeapFree(::GetProcessHeap(), 0, unixFolder);
        std::wstring line = Win::Widen(command);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION started{};
        if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started))
            return false;
        Win::UniqueKernelHandle process(started.hProcess);
        Win::UniqueKernelHandle thread(started.hThread);
        ::WaitForSingleObject(process.get(), 60000);
    } else {
        for (int i = 1; i <= count; ++i)
            TestSupport::WriteBytes(folder + "\\" + std::to_string(i) + ".txt", "");
    }
    return WaitUntil([&] { return CountFiles(folder) == count; }, 30s);
}

std::string MenuWithKeys(const std::string& keys) { return "[MENUS]\r\nNAME-1=Start\r\n[MENU-1]\r\n" + keys; }

} // namespace

TEST(HostileFiles, MenuFilesAnswerQuicklyAndAreLeftAsTheyWere) {
    std::string manyKeys;
    for (int i = 0; i < 16000; ++i)
        manyKeys += "LABEL-" + std::to_string(i) + "=Item " + std::to_string(i) + "\r\n";
    const std::pair<const char*, std::string> files[] = {
        {"TYPE=300", MenuWithKeys("LABEL-0=Big type\r\nTYPE-0=300\r\n")},
        {"16,000 keys", MenuWithKeys(manyKeys)},
        {"values of 10,000 characters", MenuWithKeys("LABEL-0=" + std::string(10000, 'w') + "\r\nPATH-0=" +
                                                     std::string(10000, 'p') + "\r\n")},
        {"binary garbage", Garbage(1 << 16)},
        {"200 MB", MenuWithKeys("LABEL-0=First\r\n") + std::string(200 << 20, 'x')},
    };
    for (std::size_t index = 0; index < std::size(files); ++index) {
        const auto& [what, bytes] = files[index];
        ProgramFolder folder;
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(StartupMenuSettings("Start", 200, 150, "GenAnimationOn=False\nGenSoundsOn=False\n"));
        folder.WriteBytes("TvMenus.ini", bytes);
        const std::string settings = folder.ReadBytes("Helmora.ini");
        Tarvex tarvex;
        const Outcome outcome = StartAndAnswer(tarvex, folder);
        SaveNamedScreenshot("hostile-menu-file-" + std::to_string(index));
        std::printf("%s: started in %.1f s\n", what, outcome.seconds);
        EXPECT_LT(outcome.seconds, 15) << what;
        EXPECT_TRUE(outcome.menuShown) << what;
        if (index == 0) {
            ASSERT_EQ(outcome.boxes.size(), 1u);
            EXPECT_NE(outcome.boxes[0].find("Overflow in [MENU-1] at TYPE-0=300"), std::string::npos);
        } else {
            EXPECT_TRUE(outcome.boxes.empty()) << what << ": " << outcome.boxes[0];
        }
        ExpectRunsOnAndKeepsTheFiles(tarvex, folder, bytes, settings, what);
    }
}

TEST(HostileFiles, SettingsWithEveryNumberOutOfRange) {
    const char* const numbers[] = {"99999999999", "-99999999999", "1e308", "&HFFFFFFFFFF"};
    for (const char* const& number : numbers) {
        // The start-up menu opens through keys of its own, so that the numbers are drawn with.
        const std::string startup = StartupMenuSettings("Programs", 200, 150);
        std::string lines;
        for (const SettingDef& def : SettingsCatalogue())
            if (def.type != SettingType::String && startup.find(std::string(def.name) + "=") == std::string::npos)
                lines += std::string(def.name) + "=" + number + "\n";
        lines += startup;
        ProgramFolder folder;
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(lines);
        folder.WriteMenus(MenuFileText({{"Programs", NotepadItems({"Text Editor", "Calculator"})}}));
        const std::string settings = folder.ReadBytes("Helmora.ini");
        const std::string menus = folder.ReadBytes("TvMenus.ini");
        Tarvex tarvex;
        const Outcome outcome = StartAndAnswer(tarvex, folder);
        SaveNamedScreenshot("hostile-settings-" + std::to_string(&number - numbers));
        EXPECT_TRUE(outcome.menuShown) << number;
        EXPECT_TRUE(outcome.boxes.empty()) << number << ": " << outcome.boxes[0];
        ExpectRunsOnAndKeepsTheFiles(tarvex, folder, menus, settings, number);
    }
}

TEST(HostileFiles, PicturesAndSoundsThatAreNotWhatTheySay) {
    const std::pair<const char*, std::string> pictures[] = {
        {"truncated", Bitmap(64, 64, 100)},
        {"0x0", Bitmap(0, 0, 0)},
        {"30000x30000", Bitmap(30000, 30000, 4096)},
        {"not a picture", "This is not a picture at all.\r\n"},
        {"garbage", Garbage(4096)},
        {"truncated icon", TruncatedIcon()},
    };
    for (std::size_t index = 0; index < std::size(pictures); ++index) {
        const auto& [what, bytes] = pictures[index];
        ProgramFolder folder;
        ASSERT_TRUE(folder.ready());
        ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder.File("Theme")).c_str(), nullptr));
        for (const char* name : {"TitleA.bmp", "ButtonA.bmp", "TitleI.jpg", "ArrowA.ico", "closeA.ico", "Sound.wav",
                                 "Sound.mid"})
            folder.WriteBytes(std::string("Theme\\") + name, bytes);
        folder.WriteSettings(StartupMenuSettings(
            "Programs", 200, 150,
            "TitleBitmap=True\nButtonBitmap=True\nMenu3DArrows=2\nBitmapsFolder=Theme\nGenSoundsOn=-1\n"
            "SoundFx0=Theme\\Sound.wav\nSoundFx1=Theme\\Sound.mid\n"));
        folder.WriteMenus(MenuFileText({{"Programs", NotepadItems({"Text Editor", "Calculator"})}}));
        const std::string settings = folder.ReadBytes("Helmora.ini");
        const std::string menus = folder.ReadBytes("TvMenus.ini");
        Tarvex tarvex;
        const Outcome outcome = StartAndAnswer(tarvex, folder);
        SaveNamedScreenshot("hostile-pictures-" + std::to_string(index));
        EXPECT_TRUE(outcome.menuShown) << what;
        EXPECT_TRUE(outcome.boxes.empty()) << what;
        ExpectRunsOnAndKeepsTheFiles(tarvex, folder, menus, settings, what);
    }
}

TEST(HostileFiles, AFolderOf100000FilesOpensItsFirstPageInSeconds) {
    TempFolder files;
    ASSERT_TRUE(MakeEmptyFiles(files.path(), 100000));
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings(StartupMenuSettings("Programs", 200, 150, "GenAnimationOn=False\nGenSoundsOn=False\n"));
    folder.WriteMenus(MenuFileText({{"Programs", {Item("Many files", 2, files.path())}}}));
    Tarvex tarvex;
    const Outcome outcome = StartAndAnswer(tarvex, folder);
    ASSERT_TRUE(outcome.menuShown);
    std::vector<WindowInfo> shown = VisibleMenuWindows(tarvex.processId());
    ASSERT_EQ(shown.size(), 1u);
    const POINT item = PlainItemPoint(shown[0].rect, 1);
    const Clock::time_point clicked = Clock::now();
    ASSERT_TRUE(Click(item.x, item.y));
    EXPECT_TRUE(WaitForMenuCount(tarvex.processId(), 2, 30s));
    const double seconds = std::chrono::duration<double>(Clock::now() - clicked).count();
    std::printf("100,000 files: the folder's first page shown %.1f s after the click\n", seconds);
    SaveNamedScreenshot("hostile-folder-100000");
    EXPECT_LT(seconds, 10) << "a few seconds at most";
    EXPECT_TRUE(tarvex.WaitUntilIdle());
    EXPECT_TRUE(tarvex.ExitThroughTray());
}
