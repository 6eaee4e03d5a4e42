// What the program asks of its surroundings on every floor: message boxes and program start.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

enum class Icon { None, Information, Question, Warning };
enum class Buttons { Ok, OkCancel, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

// A modal box. Texts are UTF-8; lines inside are separated by CR LF.
struct Message {
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    std::string title;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    // Shows the box and waits for the answer. A box with OK alone answers Ok.
    virtual Answer show(const Message& message) = 0;

    // A box with a text and one OK button, no icon, no title.
    void tell(std::string_view text) {
        Message message;
        message.text = text;
        show(message);
    }
};

class ProgramStarter {
public:
    virtual ~ProgramStarter() = default;

    // Starts a program and doesn't wait for it. Raises a fault if it can't be started.
    virtual void start(const std::string& command) = 0;
};

}  // namespace kelvo
