// The one way from the screen into the form.
//
// Everything that a person does reaches the form through run(): the pointer shows that the
// program is at work, text still waiting in the viewer is handed over first, a fault that comes
// out is reported and ends the program, and sheets that were drawn go to the printer afterwards.
#pragma once

#include <functional>
#include <string>

#include "common/run_time_fault.h"

namespace kelvo::desktop {

class EventGate {
public:
    using Work = std::function<void()>;

    // A letter typed or a box entered touches no file; everything else may.
    enum class Event { Typing, Command };
    using Around = std::function<void(Event)>;

    void run(const Work& work, Event event = Event::Command);

    // Run before and after each event.
    Around before;
    Around after;
    // Called for a fault; the program is expected to end soon, and no event gets through any more.
    std::function<void(int number, const std::string& text)> onFault;

    // True while an event is on its way through the form.
    [[nodiscard]] bool isBusy() const { return depth_ > 0; }

    [[nodiscard]] bool isClosed() const { return closed_; }
    void close() { closed_ = true; }

private:
    void guarded(const Work& work);

    int depth_ = 0;
    bool closed_ = false;
};

}  // namespace kelvo::desktop
