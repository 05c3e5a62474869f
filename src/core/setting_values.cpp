#include "core/setting_values.h"

#include "core/text.h"

#include <array>

namespace SettingValues {

bool ReadBool(std::string_view text) {
    return Text::ToBool(text).value_or(false);
}

std::optional<std::int16_t> ReadInt16(std::string_view text) {
    return Text::ToInt16(Text::NumericValue(text));
}

std::optional<std::int32_t> ReadInt32(std::string_view text) {
    return Text::ToInt32(Text::NumericValue(text));
}

std::optional<std::uint8_t> ReadByte(std::string_view text) {
    return Text::ToByte(Text::NumericValue(text));
}

std::optional<std::int32_t> ReadColor(std::string_view text) {
    if (text.find(',') == std::string_view::npos)
        return ReadInt32(text);
    std::array<std::int32_t, 3> parts{};
    for (std::int32_t& part : parts) {
        std::size_t comma = text.find(',');
        std::optional<std::uint8_t> value = ReadByte(text.substr(0, comma));
        if (!value)
            return std::nullopt;
        part = *value;
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    }
    return parts[0] + 256 * parts[1] + 65536 * parts[2];
}

std::string WriteNumber(std::int64_t value) {
    return std::to_string(value);
}

std::optional<std::size_t> LastDigitIndex(std::string_view key, std::size_t count) {
    if (key.empty())
        return std::nullopt;
    char last = key.back();
    if (last < '0' || last > '9')
        return std::nullopt;
    auto index = static_cast<std::size_t>(last - '0');
    if (index >= count)
        return std::nullopt;
    return index;
}

char IndexDigit(std::size_t index) {
    return static_cast<char>('0' + index % 10);
}

} // namespace SettingValues
