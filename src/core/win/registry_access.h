// Registry values the program reads and writes: strings (REG_SZ) and 32-bit
// integers (REG_DWORD). Keys are opened with full access and closed within each
// call; no key handle outlives a call.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace RegistryAccess {

// Empty (monostate) when the value is absent or of another type.
using Value = std::variant<std::monostate, std::string, std::int32_t>;

inline constexpr REGSAM kFullAccess = 63;

LONG CreateKey(HKEY root, std::string_view keyName);
LONG SetValue(HKEY root, std::string_view keyName, std::string_view valueName, const Value& value);
Value QueryValue(HKEY root, std::string_view keyName, std::string_view valueName);
LONG DeleteValue(HKEY root, std::string_view keyName, std::string_view valueName);

// On an open key: a string is written with one terminating NUL counted in its
// length; an integer as 4 bytes.
LONG WriteValueToOpenKey(HKEY key, std::string_view valueName, const Value& value);
// On an open key: asks for the type and size first; a string comes back without
// its last character (the terminating NUL).
LONG ReadValueFromOpenKey(HKEY key, std::string_view valueName, Value& result);

// The string form of a value: the text, the decimal integer, or "".
std::string AsString(const Value& value);

} // namespace RegistryAccess
