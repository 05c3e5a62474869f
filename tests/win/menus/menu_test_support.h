// Helpers of the menu shell tests: message boxes answered by the test, and the mark that
// starts a UTF-16 file.
#pragma once

#include "support/answered_message_boxes.h"

#include <string>

namespace MenuTests {

using AnsweredBoxes = TestSupport::AnsweredMessageBoxes;

inline const std::string kUtf16Bom = "\xFF\xFE";

} // namespace MenuTests
