// Message boxes answered by the test: every box is recorded and answered with the same
// button, through the one function every message box goes through. Core code only: the
// native unit tests and the shell tests both use it.
#pragma once

#include "core/message_box.h"

#include <utility>
#include <vector>

namespace TestSupport {

class AnsweredMessageBoxes {
public:
    explicit AnsweredMessageBoxes(int answer)
        : previous_(MessageBoxes::SetHandler([this, answer](const MessageBoxes::Request& request) {
              requests.push_back(request);
              return answer;
          })) {}
    ~AnsweredMessageBoxes() { MessageBoxes::SetHandler(std::move(previous_)); }
    AnsweredMessageBoxes(const AnsweredMessageBoxes&) = delete;
    AnsweredMessageBoxes& operator=(const AnsweredMessageBoxes&) = delete;

    std::vector<MessageBoxes::Request> requests;

private:
    MessageBoxes::Handler previous_;
};

} // namespace TestSupport
