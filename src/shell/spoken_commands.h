// What the status line says after a command: what was done, and above all what a command that asks
// nothing has changed or thrown away. The handlers themselves say nothing (required); this hangs
// on to them.
#pragma once

#include <functional>
#include <string>

#include "form/form.h"
#include "panels/program_state.h"
#include "shell/heard_messages.h"
#include "shell/status_line.h"
#include "shell/viewer.h"

namespace kelvo {

class SpokenCommands {
public:
    // Made when all handlers hang on their controls.
    SpokenCommands(Form& form, const ProgramState& state, ResultViewer& viewer,
                   const HeardMessages& messages, StatusLine& status);
    SpokenCommands(const SpokenCommands&) = delete;
    SpokenCommands& operator=(const SpokenCommands&) = delete;

    // After a run of the current data file.
    void sayRun();

private:
    using Sentence = std::function<std::string()>;

    // Has the sentence said when the command has ended; an empty one leaves the line as it is.
    void after(const char* control, Sentence sentence);
    void speakOfText();
    void speakOfFileMenu();
    void speakOfOnePoint();
    [[nodiscard]] std::string sentenceOfFileItem(int index, const std::string& shownBefore);
    [[nodiscard]] std::string saidIfAgreed(const std::string& sentence) const;

    Form& form_;
    const ProgramState& state_;
    ResultViewer& viewer_;
    const HeardMessages& messages_;
    StatusLine& status_;
    std::string loaded_;  // by the command in hand; empty if it loaded nothing
    std::string saved_;
};

}  // namespace kelvo
