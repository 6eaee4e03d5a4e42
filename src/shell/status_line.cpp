#include "shell/status_line.h"

#include <utility>

namespace kelvo {

void StatusLine::tell() const {
    if (onChange) onChange();
}

void StatusLine::say(std::string sentence) {
    sentence_ = std::move(sentence);
    tell();
}

void StatusLine::runBegins(std::string dataFile) {
    dataFile_ = std::move(dataFile);
    messages_.clear();
    tell();
}

void StatusLine::add(RunMessage message) {
    messages_.push_back(std::move(message));
    tell();
}

}  // namespace kelvo
