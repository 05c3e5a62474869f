#include "core/win/registry_access.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <vector>

namespace RegistryAccess {

namespace {

LONG OpenKey(HKEY root, std::string_view keyName, Win::UniqueKey& key) {
    HKEY raw = nullptr;
    LONG status = ::RegOpenKeyExW(root, Win::Widen(keyName).c_str(), 0, kFullAccess, &raw);
    key.reset(status == ERROR_SUCCESS ? raw : nullptr);
    return status;
}

} // namespace

LONG CreateKey(HKEY root, std::string_view keyName) {
    HKEY raw = nullptr;
    DWORD disposition = 0;
    LONG status = ::RegCreateKeyExW(root, Win::Widen(keyName).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                    kFullAccess, nullptr, &raw, &disposition);
    Win::UniqueKey key(status == ERROR_SUCCESS ? raw : nullptr);
    return status;
}

LONG WriteValueToOpenKey(HKEY key, std::string_view valueName, const Value& value) {
    std::wstring name = Win::Widen(valueName);
    if (const auto* text = std::get_if<std::string>(&value)) {
        std::wstring wide = Win::Widen(*text);
        auto bytes = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
        return ::RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(wide.c_str()), bytes);
    }
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        DWORD dword = static_cast<DWORD>(*number);
        return ::RegSetValueExW(key, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&dword), sizeof dword);
    }
    return ERROR_INVALID_PARAMETER;
}

LONG ReadValueFromOpenKey(HKEY key, std::string_view valueName, Value& result) {
    result = std::monostate{};
    std::wstring name = Win::Widen(valueName);
    DWORD type = 0;
    DWORD size = 0;
    LONG status = ::RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size);
    if (status != ERROR_SUCCESS)
        return status;
    if (type == REG_SZ) {
        std::vector<wchar_t> buffer(size / sizeof(wchar_t) + 1, L'\0');
        status = ::RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &size);
        if (status == ERROR_SUCCESS) {
            std::size_t chars = size / sizeof(wchar_t);
            if (chars > 0)
                --chars; // the terminating NUL
            result = Win::Narrow(std::wstring_view(buffer.data(), chars));
        }
    } else if (type == REG_DWORD) {
        DWORD dword = 0;
        size = sizeof dword;
        status = ::RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&dword), &size);
        if (status == ERROR_SUCCESS)
            result = static_cast<std::int32_t>(dword);
    }
    return status;
}

LONG SetValue(HKEY root, std::string_view keyName, std::string_view valueName, const Value& value) {
    Win::UniqueKey key;
    LONG status = OpenKey(root, keyName, key);
    if (status != ERROR_SUCCESS)
        return status;
    return WriteValueToOpenKey(key.get(), valueName, value);
}

Value QueryValue(HKEY root, std::string_view keyName, std::string_view valueName) {
    Win::UniqueKey key;
    Value result;
    if (OpenKey(root, keyName, key) == ERROR_SUCCESS)
        ReadValueFromOpenKey(key.get(), valueName, result);
    return result;
}

LONG DeleteValue(HKEY root, std::string_view keyName, std::string_view valueName) {
    Win::UniqueKey key;
    LONG status = OpenKey(root, keyName, key);
    if (status != ERROR_SUCCESS)
        return status;
    return ::RegDeleteValueW(key.get(), Win::Widen(valueName).c_str());
}

std::string AsString(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return std::to_string(*number);
    return {};
}

} // namespace RegistryAccess
