// Conversion of settings values between the text of a profile file and their fields.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace SettingValues {

// "True"/"False"/"-1"/"0" and other numbers; any other text reads false.
bool ReadBool(std::string_view text);

// The numeric value of the text rounded half to even ("abc" reads 0); nullopt when the
// number does not fit the type, in which case the caller keeps the field as it is.
std::optional<std::int16_t> ReadInt16(std::string_view text);
std::optional<std::int32_t> ReadInt32(std::string_view text);
std::optional<std::uint8_t> ReadByte(std::string_view text);

// A decimal 0x00BBGGRR value, or "r,g,b" combined as r + 256 * g + 65536 * b (missing parts
// read 0). nullopt when the number, or one of the three parts, does not fit.
std::optional<std::int32_t> ReadColor(std::string_view text);

// Decimal text with a minus sign where negative.
std::string WriteNumber(std::int64_t value);

// Index of a numbered key ("SoundFx3"): its last character as a digit, or nullopt when that
// character is not a digit below count, so that the key is not stored.
std::optional<std::size_t> LastDigitIndex(std::string_view key, std::size_t count);

// The digit that numbers entry index in key names: only the last decimal digit is kept.
char IndexDigit(std::size_t index);

} // namespace SettingValues
