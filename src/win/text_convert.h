// The one pair of conversions between the program's UTF-8 strings and the UTF-16
// strings of the wide Windows functions.
#pragma once

#include <string>
#include <string_view>

namespace Win {

std::wstring Widen(std::string_view utf8);
std::string Narrow(std::wstring_view utf16);

} // namespace Win
