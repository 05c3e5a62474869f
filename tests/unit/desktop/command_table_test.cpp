#include "desktop/command_actions.h"
#include "desktop/command_table.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace CommandTable;
using namespace CommandActions;

namespace {

const std::string kSystem = "C:\\WINDOWS\\SYSTEM";

std::vector<CommandRow> Table() {
    return BuildCommandTable(kSystem, [](char letter) { return letter == 'D'; });
}

const CommandRow* RowOf(const std::vector<CommandRow>& table, const std::string& command) {
    auto found = std::find_if(table.begin(), table.end(), [&](const CommandRow& r) { return r.command == command; });
    return found == table.end() ? nullptr : &*found;
}

} // namespace

TEST(CommandTable, InternalRowsKeepTheirOrderCodesAndCarriedIcons) {
    std::vector<CommandRow> table = Table();
    ASSERT_GE(table.size(), 10u);
    EXPECT_EQ(table[0], (CommandRow{"Run", kSystem + "\\shell32.dll,24", "*0"}));
    EXPECT_EQ(table[1], (CommandRow{"Copy Disk", kSystem + "\\diskcopy.dll,", "rundll32.exe diskcopy.dll,DiskCopyRunDll"}));
    EXPECT_EQ(table[2].icon, table[1].icon) << "no icon of its own: the one before";
    EXPECT_EQ(RowOf(table, "*9")->icon, kSystem + "\\shell32.dll,27");
    EXPECT_EQ(RowOf(table, "*14")->icon, kSystem + "\\shell32.dll,13");
    EXPECT_EQ(RowOf(table, "*19")->icon, kSystem + "\\cool.dll,28");
    EXPECT_EQ(RowOf(table, "*42")->label, "Shutdown Windows");
    EXPECT_EQ(table[9], (CommandRow{"Control Panel", kSystem + "\\shell32.dll,51",
                                    "rundll32.exe shell32.dll,Control_RunDLL "}));
    for (const char* unassigned : {"*3", "*4", "*5", "*6", "*43"})
        EXPECT_EQ(RowOf(table, unassigned), nullptr) << unassigned;
}

TEST(CommandTable, EjectRowsCoverEveryDriveAndAppletsFollow) {
    std::vector<CommandRow> table = Table();
    EXPECT_EQ(RowOf(table, "*100")->label, "Eject Drive A:");
    EXPECT_EQ(RowOf(table, "*103")->label, "Eject CD-ROM D:");
    EXPECT_EQ(RowOf(table, "*125")->label, "Eject Drive Z:");
    EXPECT_EQ(RowOf(table, "*125")->icon, kSystem + "\\shell32.dll,26");
    const std::string run = "rundll32.exe shell32.dll,Control_RunDLL ";
    struct Case {
        const char* label;
        std::string command;
    };
    for (const Case& c : {Case{"Mouse Properties", run + "main.cpl @0"}, Case{"Sounds", run + "mmsys.cpl @1"},
                          Case{"Add New Modem", run + "modem.cpl,,add"}, Case{"Task Manager", "taskmgr.exe"},
                          Case{"Add New Printer", "rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter"},
                          Case{"User Properties", run + "inetcpl.cpl users"}, Case{"Game Controlers", run + "joy.cpl"},
                          Case{"Mail and Fax Options", run + "netcpl.cpl"}}) {
        auto row = std::find_if(table.begin(), table.end(), [&](const CommandRow& r) { return r.label == c.label; });
        ASSERT_NE(row, table.end()) << c.label;
        EXPECT_EQ(row->command, c.command) << c.label;
        EXPECT_GT(row - table.begin(), RowOf(table, "*125") - &table[0]) << "applets come after the codes";
    }
    EXPECT_EQ(table.back().label, "User Properties");
    EXPECT_EQ(table.size(), 42u + 26u + 42u);
}

TEST(CommandActions, ShellKeysGoDownWindowsKeyFirstAndUpInTheSameOrder) {
    auto down = [](std::uint8_t k) { return KeyStroke{k, false}; };
    auto up = [](std::uint8_t k) { return KeyStroke{k, true}; };
    EXPECT_EQ(ActionOf(0).keys, (std::vector<KeyStroke>{down(0x5B), down('R'), up('R'), up(0x5B)}));
    EXPECT_EQ(ActionOf(2).keys,
              (std::vector<KeyStroke>{down(0x5B), down(0x11), down('F'), up('F'), up(0x5B), up(0x11)}));
    EXPECT_EQ(ActionOf(27).keys,
              (std::vector<KeyStroke>{down(0x5B), down(0x10), down('M'), up('M'), up(0x5B), up(0x10)}));
    EXPECT_EQ(ActionOf(20).keys, (std::vector<KeyStroke>{down(0x5B), down(0x5B), up(0x5B), up(0x5B)}));
    EXPECT_EQ(ActionOf(21).keys[1], down(0x5E));
    EXPECT_EQ(ActionOf(22).keys[1], down(0x70));
}

TEST(CommandActions, CodesMapToTheirActions) {
    struct Case {
        std::int16_t code;
        Kind kind;
    };
    for (const Case& c : {Case{9, Kind::ExitProgram}, Case{14, Kind::Preferences}, Case{15, Kind::Help},
                          Case{18, Kind::ScreenSaver}, Case{23, Kind::HangUp}, Case{12, Kind::SpecialFolder},
                          Case{3, Kind::NotImplemented}, Case{6, Kind::NotImplemented}, Case{43, Kind::NotImplemented},
                          Case{99, Kind::NotImplemented}, Case{126, Kind::NotImplemented},
                          Case{-1, Kind::NotImplemented}})
        EXPECT_EQ(ActionOf(c.code).kind, c.kind) << c.code;
    EXPECT_EQ(ActionOf(100).drive, 'A');
    EXPECT_EQ(ActionOf(125).drive, 'Z');
    EXPECT_EQ(ActionOf(29).folder, SpecialFolder::Desktop);
    EXPECT_TRUE(ActionOf(17).doorOpen);
    EXPECT_EQ(CdDoorCommand(true), "Set CDAudio Door Open Wait");
    EXPECT_EQ(CdDoorCommand(false), "Set CDAudio Door Closed");
}

TEST(CommandActions, OnlyTheConfirmingSessionCommandsAsk) {
    struct Case {
        std::int16_t code;
        SessionMode mode;
        const char* label;
    };
    for (const Case& c : {Case{7, SessionMode::LogOut, ""}, Case{24, SessionMode::LogOut, "Log Out"},
                          Case{8, SessionMode::Restart, ""}, Case{16, SessionMode::Restart, "Restart Windows"},
                          Case{41, SessionMode::Shutdown, ""}, Case{42, SessionMode::Shutdown, "Shutdown Windows"}}) {
        Action action = ActionOf(c.code);
        EXPECT_EQ(action.kind, Kind::Session) << c.code;
        EXPECT_EQ(action.mode, c.mode) << c.code;
        EXPECT_EQ(action.label, c.label) << c.code;
    }
    EXPECT_EQ(SessionQuestion("Restart Windows"), "Are you sure you want to Restart Windows?");
}

TEST(CommandActions, TheSessionEndsWithTheFlagsOfItsModeAndSettings) {
    struct Case {
        SessionMode mode;
        bool atx, force;
        std::uint32_t flags;
    };
    for (const Case& c : {Case{SessionMode::LogOut, false, false, 0}, Case{SessionMode::LogOut, true, true, 0},
                          Case{SessionMode::Restart, false, false, 2}, Case{SessionMode::Restart, true, true, 6},
                          Case{SessionMode::Shutdown, false, false, 1}, Case{SessionMode::Shutdown, true, false, 8},
                          Case{SessionMode::Shutdown, false, true, 5}, Case{SessionMode::Shutdown, true, true, 12}})
        EXPECT_EQ(SessionFlags(c.mode, c.atx, c.force), c.flags)
            << static_cast<int>(c.mode) << " atx " << c.atx << " force " << c.force;
}

TEST(CommandActions, TheDesktopIsPutBackBeforeThePrivilegeAndTheEnd) {
    using S = SessionStep;
    ExitRules::DesktopChanges all{true, true, true};
    EXPECT_EQ(SessionSteps(all, true, SessionMode::Shutdown, true),
              (std::vector<S>{S::PutBackTaskbar, S::ShowTaskbar, S::ShowDesktopIcons, S::RemoveTrayIcon,
                              S::EnableShutdownPrivilege, S::EndSession}));
    EXPECT_EQ(SessionSteps({}, false, SessionMode::Restart, true), (std::vector<S>{S::EnableShutdownPrivilege, S::EndSession}));
    EXPECT_EQ(SessionSteps({}, false, SessionMode::Restart, false), (std::vector<S>{S::EndSession}));
    EXPECT_EQ(SessionSteps({false, true, false}, false, SessionMode::LogOut, true),
              (std::vector<S>{S::ShowTaskbar, S::EndSession}));
}

TEST(CommandActions, FailureTexts) {
    EXPECT_EQ(EjectFailedMessage('Q'), "Sorry, unable to eject media on drive Q");
    EXPECT_EQ(HelpMissingMessage(2), "Sorry, the Help file could not be found (error code2).");
}
