// What the window says without a box: what was done last, and the messages of the last run.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kelvo {

// A box that a run has shown, and the line of the data file that it was about.
struct RunMessage {
    long line = 0;  // counted from 1
    std::string text;
};

class StatusLine {
public:
    // One sentence; it takes the place of the one before.
    void say(std::string sentence);
    [[nodiscard]] const std::string& sentence() const { return sentence_; }

    // The messages of the run before are gone.
    void runBegins(std::string dataFile);
    void add(RunMessage message);
    [[nodiscard]] const std::string& dataFile() const { return dataFile_; }
    [[nodiscard]] const std::vector<RunMessage>& messages() const { return messages_; }

    // The one view of it; called after each change.
    std::function<void()> onChange;

private:
    void tell() const;

    std::string sentence_;
    std::string dataFile_;
    std::vector<RunMessage> messages_;
};

}  // namespace kelvo
