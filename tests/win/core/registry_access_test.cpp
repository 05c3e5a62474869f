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
    RegistryAccess::SetValue(HKEY_CURRENT_USER, kTestKey, "One", std::string("x"));
    EXPECT_EQ(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "One"), Value{std::string("x")});
}

TEST_F(RegistryAccessTest, AbsentValuesKeysAndOtherTypesReadEmpty) {
    EXPECT_TRUE(std::holds_alternative<std::monostate>(
        RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "NeverWritten")));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(
        RegistryAccess::QueryValue(HKEY_CURRENT_USER, "Software\\TarvexTests\\NoSuchKey", "Any")));

    const BYTE blob[] = {1, 2, 3};
    ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\TarvexTests\\Registry", L"Blob", REG_BINARY, blob, sizeof blob);
    EXPECT_TRUE(
        std::holds_alternative<std::monostate>(RegistryAccess::QueryValue(HKEY_CURRENT_USER, kTestKey, "Blob")));
}
