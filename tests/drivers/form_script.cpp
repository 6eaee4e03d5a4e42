#include "drivers/form_script.h"

#include <optional>
#include <utility>

#include "drivers/form_values.h"
#include "support/escape.h"

namespace kelvo::testing {

namespace {

// The first word of a text, and what follows one blank after it.
std::pair<std::string_view, std::string_view> firstWord(std::string_view text) {
    const std::size_t blank = text.find(' ');
    if (blank == std::string_view::npos) return {text, {}};
    return {text.substr(0, blank), text.substr(blank + 1)};
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

bool isClickable(ControlKind kind) {
    return kind == ControlKind::Button || kind == ControlKind::OptionButton ||
           kind == ControlKind::MenuItem;
}

}  // namespace

void FormScript::run(std::string_view line) {
    if (line.empty() || line.front() == '#') return;
    const auto [command, rest] = firstWord(line);
    if (command == "type")
        type(rest);
    else if (command == "focus")
        focus(trimmed(rest));
    else if (command == "click")
        click(trimmed(rest));
    else if (command == "choose")
        choose(trimmed(rest));
    else if (command == "check")
        check(trimmed(rest));
    else if (command == "answer")
        answer(trimmed(rest));
    else if (command == "dialog")
        dialog(rest);
    else if (command == "get")
        get(trimmed(rest));
    else if (command == "calls")
        calls(trimmed(rest));
    else if (command == "printfile")
        window_.PrintFile(unescaped(rest));
    else if (command == "close")
        window_.Form_Close();
    else
        error("unknown command " + escaped(command));
}

void FormScript::type(std::string_view rest) {
    const auto [name, text] = firstWord(rest);
    Control* box = window_.form().find(name);
    if (box == nullptr || box->kind() != ControlKind::TextBox)
        return error("no text box " + escaped(name));
    box->typeText(unescaped(text));
}

void FormScript::focus(std::string_view rest) {
    Control* box = window_.form().find(rest);
    if (box == nullptr || box->kind() != ControlKind::TextBox)
        return error("no text box " + escaped(rest));
    box->enter();
}

void FormScript::click(std::string_view rest) {
    const auto target = indexedName(rest);
    Control* control = target ? window_.form().find(target->name) : nullptr;
    if (control == nullptr) return error("nothing to click " + escaped(rest));
    if (target->index) {
        if (control->kind() != ControlKind::MenuArray || *target->index < 0 ||
            *target->index > control->highestIndex())
            return error("no menu item " + escaped(rest));
        return control->clickEntry(*target->index);
    }
    if (!isClickable(control->kind())) return error("nothing to click " + escaped(rest));
    control->click();
}

void FormScript::choose(std::string_view rest) {
    const auto [name, number] = firstWord(rest);
    Control* combo = window_.form().find(name);
    if (combo == nullptr || combo->kind() != ControlKind::ComboBox)
        return error("no combo box " + escaped(name));
    const std::optional<int> index = wholeNumber(trimmed(number));
    if (!index || *index < 0 || *index >= static_cast<int>(combo->items().size()))
        return error("no entry " + escaped(number));
    combo->choose(*index);
}

void FormScript::check(std::string_view rest) {
    const auto [name, word] = firstWord(rest);
    Control* box = window_.form().find(name);
    if (box == nullptr || box->kind() != ControlKind::CheckBox)
        return error("no check box " + escaped(name));
    const std::string_view state = trimmed(word);
    if (state != "on" && state != "off") return error("neither on nor off " + escaped(word));
    box->setChecked(state == "on");
}

void FormScript::answer(std::string_view rest) {
    if (rest == "ok")
        services_.answers.push_back(Answer::Ok);
    else if (rest == "yes")
        services_.answers.push_back(Answer::Yes);
    else if (rest == "no")
        services_.answers.push_back(Answer::No);
    else if (rest == "cancel")
        services_.answers.push_back(Answer::Cancel);
    else
        error("no answer " + escaped(rest));
}

void FormScript::dialog(std::string_view rest) {
    if (rest == "cancel")
        services_.dialogResults.emplace_back(std::nullopt);
    else
        services_.dialogResults.emplace_back(unescaped(rest));
}

void FormScript::get(std::string_view rest) {
    const std::optional<std::string> value = valueOf(window_, rest);
    if (!value) return error("nothing to get " + escaped(rest));
    print_(std::string(rest) + "=" + escaped(*value));
}

void FormScript::calls(std::string_view rest) {
    if (rest != "screen" && rest != "printer") return error("no surface " + escaped(rest));
    auto& calls = rest == "screen" ? services_.screenCalls : services_.printerCalls;
    for (const std::string& call : std::exchange(calls, {})) print_(call);
    print_(".");
}

}  // namespace kelvo::testing
