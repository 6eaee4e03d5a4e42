// A message service for tests: keeps every box and answers from a queue.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "common/ports.h"

namespace kelvo::testing {

class RecordingMessages final : public MessageBoxes {
public:
    // Answers boxes with more than one button from `answers`, Cancel when it is empty.
    Answer show(const Message& message) override {
        shown.push_back(message);
        if (message.buttons == Buttons::Ok) return Answer::Ok;
        if (answers.empty()) return Answer::Cancel;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const auto& message : shown) result.push_back(message.text);
        return result;
    }

    std::vector<Message> shown;
    std::deque<Answer> answers;
};

}  // namespace kelvo::testing
