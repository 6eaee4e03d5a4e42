#include "support/message_line.h"

#include "support/escape.h"

namespace kelvo::testing {

namespace {

std::string iconName(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return "information";
        case Icon::Question:
            return "question";
        case Icon::Warning:
            return "warning";
        case Icon::None:
            break;
    }
    return "none";
}

std::string buttonsName(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return "okcancel";
        case Buttons::YesNoCancel:
            return "yesnocancel";
        case Buttons::Ok:
            break;
    }
    return "ok";
}

}  // namespace

std::string messageLine(const Message& message) {
    return "message|" + escaped(message.title) + "|" + iconName(message.icon) + "|" +
           buttonsName(message.buttons) + "|" + escaped(message.text);
}

}  // namespace kelvo::testing
