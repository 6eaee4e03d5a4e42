// Services for a form without a screen: each tells a listener in one line what it was asked, and
// answers from a queue. The lines are those of the form driver's transcripts.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "form/services.h"
#include "support/recording_surface.h"

namespace kelvo::testing {

class RecordingServices {
public:
    using Listener = std::function<void(const std::string& line)>;

    // Without a listener of its own the lines are kept in `lines`.
    explicit RecordingServices(Disk& disk, Listener listener = {});
    RecordingServices(const RecordingServices&) = delete;
    RecordingServices& operator=(const RecordingServices&) = delete;

    [[nodiscard]] Services& services() { return services_; }

    // What the next boxes with more than one button, and the next dialogs, are answered; with
    // nothing queued they are cancelled.
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> dialogResults;

    std::vector<std::string> lines;
    std::vector<std::string> screenCalls;
    std::vector<std::string> printerCalls;
    bool ended = false;
    bool busy = false;

    // The alarm that is set, and what it does; null if none is.
    std::chrono::milliseconds alarmIn{0};
    std::function<void()> ring;

    // The journal's shelves: of this program, and of those before it.
    std::map<JournalStore::Shelf, UnsavedText> kept;
    std::map<JournalStore::Shelf, std::vector<JournalStore::Left>> left;
    bool journalIsFull = false;

private:
    class Messages;
    class Programs;
    class CommonDialogs;
    class Printer;
    class Bell;
    class FixedClock;
    class FixedScreen;
    class Pointer;
    class Drawing;
    class End;
    class HeldAlarm;
    class Journal;
    struct All;

    void tell(const std::string& line);

    Listener listener_;
    std::shared_ptr<All> all_;
    Services services_;
};

}  // namespace kelvo::testing
