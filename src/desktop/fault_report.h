// What a person reads when a fault ends the program.
#pragma once

#include <QString>
#include <string>

namespace kelvo::desktop {

// What became of text that no file held.
struct Rescued {
    bool wasNeeded = false;  // there was some; then it is on the clipboard, too
    QString file{};          // where it was written; empty if there was no room anywhere
};

// Number, sentence, what was saved and what not.
[[nodiscard]] QString faultReport(int number, const std::string& text, const Rescued& rescued);

}  // namespace kelvo::desktop
