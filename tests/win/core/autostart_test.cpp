#include "core/win/autostart.h"

#include "core/win/registry_access.h"
#include "win/handles.h"

#include <windows.h>
#include <sddl.h>

#include <gtest/gtest.h>

namespace {

using Autostart::RunKeyScope;
using RegistryAccess::Value;

const std::string kCommand = "C:\\Tarvex\\tarvex2.exe autostart";

Value RunValue(HKEY root, const std::string& path) { return RegistryAccess::QueryValue(root, path, "Tarvex"); }

bool Absent(const Value& value) { return std::holds_alternative<std::monostate>(value); }

// The system's own Run keys, as a program that runs with the rights to write the
// machine's key sees them (Wine gives every program those rights).
class SystemRunKeys : public ::testing::Test {
protected:
    void SetUp() override { Clear(); }
    void TearDown() override { Clear(); }
    static void Clear() {
        RegistryAccess::DeleteValue(HKEY_LOCAL_MACHINE, std::string(Autostart::kRunKey), "Tarvex");
        RegistryAccess::DeleteValue(HKEY_CURRENT_USER, std::string(Autostart::kRunKey), "Tarvex");
    }
    const std::string runKey{Autostart::kRunKey};
};

// Run keys of the test's own, the machine's one made read-only for everybody, so that
// writing it is refused as it is for a standard user on Windows.
class RefusedMachineKey : public ::testing::Test {
protected:
    static constexpr const char* kRoot = "Software\\TarvexTests\\Autostart";
    static constexpr const char* kMachine = "Software\\TarvexTests\\Autostart\\Machine\\Run";
    static constexpr const char* kUser = "Software\\TarvexTests\\Autostart\\User\\Run";

    void SetUp() override {
        ASSERT_EQ(RegistryAccess::CreateKey(HKEY_CURRENT_USER, kMachine), ERROR_SUCCESS);
        ASSERT_TRUE(SetAccess(L"D:P(A;;KR;;;WD)"));
    }
    void TearDown() override {
        SetAccess(L"D:P(A;;KA;;;WD)");
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\TarvexTests");
    }

    static bool SetAccess(const wchar_t* descriptor) {
        HKEY raw = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\TarvexTests\\Autostart\\Machine\\Run", 0, WRITE_DAC,
                            &raw) != ERROR_SUCCESS)
            return false;
        Win::UniqueKey key(raw);
        PSECURITY_DESCRIPTOR security = nullptr;
        if (!::ConvertStringSecurityDescriptorToSecurityDescriptorW(descriptor, SDDL_REVISION_1, &security, nullptr))
            return false;
        LONG status = ::RegSetKeySecurity(key.get(), DACL_SECURITY_INFORMATION, security);
        ::LocalFree(security);
        return status == ERROR_SUCCESS;
    }

    Autostart::RegistryRunKeys keys{{HKEY_CURRENT_USER, kMachine}, {HKEY_CURRENT_USER, kUser}};
};

} // namespace

TEST_F(SystemRunKeys, OnWritesTheMachinesRunKey) {
    EXPECT_EQ(Autostart::WriteAutostartValue(true, "C:\\Tarvex"), RunKeyScope::LocalMachine);
    EXPECT_EQ(RunValue(HKEY_LOCAL_MACHINE, runKey), Value{kCommand});
    EXPECT_TRUE(Absent(RunValue(HKEY_CURRENT_USER, runKey)));
}

TEST_F(SystemRunKeys, OnRemovesAnEarlierUserValue) {
    RegistryAccess::CreateKey(HKEY_CURRENT_USER, runKey);
    ASSERT_EQ(RegistryAccess::SetValue(HKEY_CURRENT_USER, runKey, "Tarvex", std::string("C:\\Old\\tarvex2.exe autostart")),
              ERROR_SUCCESS);
    Autostart::WriteAutostartValue(true, "C:\\Tarvex");
    EXPECT_EQ(RunValue(HKEY_LOCAL_MACHINE, runKey), Value{kCommand});
    EXPECT_TRUE(Absent(RunValue(HKEY_CURRENT_USER, runKey)));
}

TEST_F(SystemRunKeys, OffRemovesBothValuesAndLeavesOthers) {
    RegistryAccess::CreateKey(HKEY_CURRENT_USER, runKey);
    RegistryAccess::SetValue(HKEY_LOCAL_MACHINE, runKey, "Tarvex", kCommand);
    RegistryAccess::SetValue(HKEY_CURRENT_USER, runKey, "Tarvex", kCommand);
    RegistryAccess::SetValue(HKEY_CURRENT_USER, runKey, "SomethingElse", std::string("other.exe"));

    EXPECT_EQ(Autostart::WriteAutostartValue(false, "C:\\Tarvex"), std::nullopt);
    EXPECT_TRUE(Absent(RunValue(HKEY_LOCAL_MACHINE, runKey)));
    EXPECT_TRUE(Absent(RunValue(HKEY_CURRENT_USER, runKey)));
    EXPECT_EQ(RegistryAccess::QueryValue(HKEY_CURRENT_USER, runKey, "SomethingElse"), Value{std::string("other.exe")});
    RegistryAccess::DeleteValue(HKEY_CURRENT_USER, runKey, "SomethingElse");
}

TEST_F(SystemRunKeys, AFolderWithNonLatinLettersSurvives) {
    Autostart::WriteAutostartValue(true, "C:\\Программы\\Tarvex");
    EXPECT_EQ(RunValue(HKEY_LOCAL_MACHINE, runKey), Value{std::string("C:\\Программы\\Tarvex\\tarvex2.exe autostart")});
}

TEST_F(RefusedMachineKey, TheValueGoesUnderTheUsersKey) {
    EXPECT_EQ(Autostart::Apply(true, "C:\\Tarvex", keys), RunKeyScope::CurrentUser);
    EXPECT_TRUE(Absent(RunValue(HKEY_CURRENT_USER, kMachine)));
    EXPECT_EQ(RunValue(HKEY_CURRENT_USER, kUser), Value{kCommand});
}

TEST_F(RefusedMachineKey, OffStillRemovesTheUsersValue) {
    Autostart::Apply(true, "C:\\Tarvex", keys);
    ASSERT_EQ(RunValue(HKEY_CURRENT_USER, kUser), Value{kCommand});
    EXPECT_EQ(Autostart::Apply(false, "C:\\Tarvex", keys), std::nullopt);
    EXPECT_TRUE(Absent(RunValue(HKEY_CURRENT_USER, kUser)));
}
