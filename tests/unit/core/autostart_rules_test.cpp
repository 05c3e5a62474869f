#include "core/autostart_rules.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

using Autostart::RunKeyScope;

namespace {

// The two Run keys in memory; a scope can be made to refuse writes, as the local
// machine's key does for a standard user.
class FakeRunKeys : public Autostart::RunKeyStore {
public:
    bool Write(RunKeyScope scope, std::string_view value) override {
        if (refused.count(scope))
            return false;
        values[scope] = std::string(value);
        return true;
    }
    void Remove(RunKeyScope scope) override { values.erase(scope); }

    std::map<RunKeyScope, std::string> values;
    std::set<RunKeyScope> refused;
};

const std::string kCommand = "C:\\Tarvex\\tarvex2.exe autostart";

} // namespace

TEST(AutostartValue, IsTheFolderTheFixedExeNameAndTheWord) {
    EXPECT_EQ(Autostart::Command("C:\\Tarvex"), kCommand);
    EXPECT_EQ(Autostart::Command("D:\\Mes programmes\\Tärvex"), "D:\\Mes programmes\\Tärvex\\tarvex2.exe autostart");
    EXPECT_EQ(Autostart::kValueName, "Tarvex");
    EXPECT_EQ(Autostart::kRunKey, "Software\\Microsoft\\Windows\\CurrentVersion\\Run");
}

TEST(AutostartValue, GoesUnderTheLocalMachine) {
    FakeRunKeys keys;
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), RunKeyScope::LocalMachine);
    EXPECT_EQ(keys.values, (std::map<RunKeyScope, std::string>{{RunKeyScope::LocalMachine, kCommand}}));
}

TEST(AutostartValue, GoesUnderTheCurrentUserWhenTheMachineRefuses) {
    FakeRunKeys keys;
    keys.refused.insert(RunKeyScope::LocalMachine);
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), RunKeyScope::CurrentUser);
    EXPECT_EQ(keys.values, (std::map<RunKeyScope, std::string>{{RunKeyScope::CurrentUser, kCommand}}));
}

TEST(AutostartValue, AUserCopyGoesOnceTheMachineHoldsIt) {
    FakeRunKeys keys;
    keys.values[RunKeyScope::CurrentUser] = "C:\\Old\\tarvex2.exe autostart";
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), RunKeyScope::LocalMachine);
    EXPECT_EQ(keys.values.count(RunKeyScope::CurrentUser), 0u) << "logon would start the program twice";
}

TEST(AutostartValue, NowhereWhenBothRefuse) {
    FakeRunKeys keys;
    keys.refused = {RunKeyScope::LocalMachine, RunKeyScope::CurrentUser};
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), std::nullopt);
    EXPECT_TRUE(keys.values.empty());
}

TEST(AutostartValue, OffRemovesItFromBothKeys) {
    FakeRunKeys keys;
    keys.values[RunKeyScope::LocalMachine] = kCommand;
    keys.values[RunKeyScope::CurrentUser] = kCommand;
    EXPECT_EQ(Autostart::Apply(false, "C:\\Tarvex", keys), std::nullopt);
    EXPECT_TRUE(keys.values.empty());
}
