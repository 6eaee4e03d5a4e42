// Message boxes whose last answer is remembered.
#pragma once

#include "common/ports.h"

namespace kelvo {

class HeardMessages final : public MessageBoxes {
public:
    explicit HeardMessages(MessageBoxes& boxes) : boxes_(boxes) {}

    Answer show(const Message& message) override { return last_ = boxes_.show(message); }

    [[nodiscard]] Answer last() const { return last_; }

private:
    MessageBoxes& boxes_;
    Answer last_ = Answer::Cancel;
};

}  // namespace kelvo
