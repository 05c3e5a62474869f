// Helpers of the menu shell tests: message boxes answered by the test, and profile
// files read back as text.
#pragma once

#include "support/answered_message_boxes.h"
#include "win/text_convert.h"

#include <string>

namespace MenuTests {

using AnsweredBoxes = TestSupport::AnsweredMessageBoxes;

inline const std::string kUtf16Bom = "\xFF\xFE";

// The UTF-8 text of a UTF-16LE file's bytes after its byte-order mark.
inline std::string TextOfUtf16(const std::string& bytes) {
    if (bytes.size() < 2)
        return {};
    std::wstring wide((bytes.size() - 2) / 2, L'\0');
    for (std::size_t k = 0; k < wide.size(); ++k)
        wide[k] = static_cast<wchar_t>(static_cast<unsigned char>(bytes[2 + 2 * k]) |
                                       (static_cast<unsigned char>(bytes[3 + 2 * k]) << 8));
    return Win::Narrow(wide);
}

} // namespace MenuTests
