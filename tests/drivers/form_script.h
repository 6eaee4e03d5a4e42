// The commands of a form script, carried out on a window: one command a line, answered in lines.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "shell/frm_kelvo.h"
#include "support/recording_services.h"

namespace kelvo::testing {

class FormScript {
public:
    using Print = std::function<void(const std::string& line)>;

    FormScript(frmKelvo& window, RecordingServices& services, Print print)
        : window_(window), services_(services), print_(std::move(print)) {}

    // Carries out one line. A line that can't be read prints "error|..." and changes nothing; a
    // run-time fault of the command comes out.
    void run(std::string_view line);

private:
    struct Target;

    void error(const std::string& text) { print_("error|" + text); }
    void type(std::string_view rest);
    void focus(std::string_view rest);
    void click(std::string_view rest);
    void choose(std::string_view rest);
    void check(std::string_view rest);
    void answer(std::string_view rest);
    void dialog(std::string_view rest);
    void get(std::string_view rest);
    void calls(std::string_view rest);

    frmKelvo& window_;
    RecordingServices& services_;
    Print print_;
};

}  // namespace kelvo::testing
