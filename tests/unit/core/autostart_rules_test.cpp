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
}

TEST(AutostartValue, GoesUnderTheCurrentUserWhenTheMachineRefuses) {
    FakeRunKeys keys;
    keys.refused.insert(RunKeyScope::LocalMachine);
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), RunKeyScope::CurrentUser);
    EXPECT_EQ(keys.values, (std::map<RunKeyScope, std::string>{{RunKeyScope::CurrentUser, kCommand}}));
    keys.values.clear();
    keys.refused.insert(RunKeyScope::CurrentUser);
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), std::nullopt) << "both refuse";
    EXPECT_TRUE(keys.values.empty());
}

TEST(AutostartValue, AUserCopyGoesOnceTheMachineHoldsIt) {
    FakeRunKeys keys;
    keys.values[RunKeyScope::CurrentUser] = "C:\\Old\\tarvex2.exe autostart";
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), RunKeyScope::LocalMachine);
    EXPECT_EQ(keys.values, (std::map<RunKeyScope, std::string>{{RunKeyScope::LocalMachine, kCommand}}))
        << "a copy under the user would start the program twice at logon";
}
