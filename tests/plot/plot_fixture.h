// A plot object on recording surfaces, for the tests of the plot.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/run_time_fault.h"
#include "plot/clsplot1.h"
#include "support/recording_messages.h"
#include "support/recording_surface.h"

namespace kelvo::testing {

using Lines = std::vector<std::string>;

class RecordingStarts final : public ProgramStarter {
public:
    void start(const std::string& command) override { commands.push_back(command); }
    Lines commands;
};

class PlotTest : public ::testing::Test {
protected:
    // Binds the object to the screen or the printer at magnification 1, origin 0.
    void useScreen() { bind(2, screen); }
    void usePrinter() { bind(1, printer); }
    void bind(double kind, Surface& surface) {
        object.pinitialize(0, 0, 1, 1, kind, surface);
        recorded.clear();
    }

    // What the surfaces were given since the last such call.
    Lines drawn() {
        Lines result;
        result.swap(recorded);
        return result;
    }

    // The window in which most plots stand: x to the right, y upward on the sheet.
    void useUpwardWindow() { object.pwindow(0, 0, 100, 10, 0, 10, 100, 0, 0); }

    Lines recorded;
    RecordingMessages messages;
    RecordingStarts starts;
    RecordingSurface screen{RecordingSurface::Kind::Screen,
                            [this](const std::string& line) { take(line); }};
    RecordingSurface printer{RecordingSurface::Kind::Printer,
                             [this](const std::string& line) { take(line); }};
    clsplot1 object{messages, starts, printer};
    // While it isn't empty, a surface that is given something beginning like this fails.
    std::string failAt;

private:
    void take(const std::string& line) {
        if (!failAt.empty() && line.starts_with(failAt)) raise(Fault::PathFileAccess);
        recorded.push_back(line);
    }
};

// The number of the fault that an action raises; 0 if it raises none.
template <typename Action>
int faultOf(const Action& action) {
    try {
        action();
    } catch (const RuntimeFault& fault) {
        return fault.number();
    }
    return 0;
}

inline long countOf(const Lines& lines, const std::string& start) {
    long count = 0;
    for (const auto& line : lines) count += line.starts_with(start) ? 1 : 0;
    return count;
}

}  // namespace kelvo::testing
