#include "core/win/registry_access.h"

#include "win/handles.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string kTestKey = "Software\\TarvexTests\\Registry";

class RegistryAccessTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(RegistryAccess::CreateKey(HKEY_CURRENT_USER, kTestKey), ERROR_SUCCESS); }
    void TearDown() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\TarvexTests"); }
};

} // namespace

TEST_F(RegistryAccessTest, StringsAndIntegersRoundTrip) {
    using RegistryAccess::Value;
    EXPECT_EQ(RegistryAccess::SetValue(HKEY_CURRENT_USER, kTestKey, "Text", Value{std::string("C:\\Tarvex ☃")}),
              ERROR_SUCCESS);
    EXPECT_EQ(RegistryAccess::SetValue(HKEY_CURRENT_USER, kTestKey, "Number", Value{std::int32_t{-5}}), ERROR_SUCCESS);
    EXPECT_EQ(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Text"), Value{std::string("C:\\Tarvex ☃")});
    EXPECT_EQ(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Number"), Value{std::int32_t{-5}});
    EXPECT_EQ(RegistryAccess::AsString(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Number")), "-5");
}

TEST_F(RegistryAccessTest, AOneCharacterStringKeepsItsCharacter) {
    RegistryAccess::SetValue(HKEY_CURRENT_USER, kTestKey, "One", std::string("x"));
    EXPECT_EQ(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "One"), RegistryAccess::Value{std::string("x")});
    RegistryAccess::SetValue(HKEY_CURRENT_USER, kTestKey, "Empty", std::string());
    EXPECT_EQ(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Empty"), RegistryAccess::Value{std::string()});
}

TEST_F(RegistryAccessTest, AStringIsStoredWithOneTerminatingNulCounted) {
    HKEY raw = nullptr;
    ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\TarvexTests\\Registry", 0, KEY_ALL_ACCESS, &raw),
              ERROR_SUCCESS);
    Win::UniqueKey key(raw);
    ASSERT_EQ(RegistryAccess::WriteValueToOpenKey(key.get(), "Abc", std::string("abc")), ERROR_SUCCESS);
    DWORD type = 0, size = 0;
    ASSERT_EQ(::RegQueryValueExW(key.get(), L"Abc", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(size, 4 * sizeof(wchar_t));

    RegistryAccess::Value result;
    EXPECT_EQ(RegistryAccess::ReadValueFromOpenKey(key.get(), "Missing", result), ERROR_FILE_NOT_FOUND);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(result));
}

TEST_F(RegistryAccessTest, AbsentValuesKeysAndOtherTypesReadEmpty) {
    EXPECT_TRUE(std::holds_alternative<std::monostate>(
        RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "NeverWritten")));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(
        RegistryAccess::QueryValue(HKEY_CURRENT_USER, "Software\\TarvexTests\\NoSuchKey", "Any")));
    EXPECT_NE(RegistryAccess::SetValue(HKEY_CURRENT_USER, "Software\\TarvexTests\\NoSuchKey", "Any", std::string("v")),
              ERROR_SUCCESS);

    const BYTE blob[] = {1, 2, 3};
    ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\TarvexTests\\Registry", L"Blob", REG_BINARY, blob, sizeof blob);
    EXPECT_TRUE(
        std::holds_alternative<std::monostate>(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Blob")));
}

TEST_F(RegistryAccessTest, DeleteValueRemovesIt) {
    RegistryAccess::SetValue(HKEY_CURRENT_USER, kTestKey, "Tarvex", std::string("C:\\T\\tarvex2.exe autostart"));
    EXPECT_EQ(RegistryAccess::DeleteValue(HKEY_CURRENT_USER, kTestKey, "Tarvex"), ERROR_SUCCESS);
    EXPECT_TRUE(
        std::holds_alternative<std::monostate>(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Tarvex")));
    EXPECT_EQ(RegistryAccess::DeleteValue(HKEY_CURRENT_USER, kTestKey, "Tarvex"), ERROR_FILE_NOT_FOUND);
}
