#include "support/recording_services.h"

#include "support/escape.h"
#include "support/message_line.h"

namespace kelvo::testing {

namespace {

std::string kindName(DialogKind kind) {
    switch (kind) {
        case DialogKind::Save:
            return "save";
        case DialogKind::Printer:
            return "printer";
        case DialogKind::Open:
            break;
    }
    return "open";
}

}  // namespace

class RecordingServices::Messages final : public MessageBoxes {
public:
    explicit Messages(RecordingServices& owner) : owner_(owner) {}
    Answer show(const Message& message) override {
        owner_.tell(messageLine(message));
        if (message.buttons == Buttons::Ok) return Answer::Ok;
        if (owner_.answers.empty()) return Answer::Cancel;
        const Answer answer = owner_.answers.front();
        owner_.answers.pop_front();
        return answer;
    }

private:
    RecordingServices& owner_;
};

class RecordingServices::Programs final : public ProgramStarter {
public:
    explicit Programs(RecordingServices& owner) : owner_(owner) {}
    void start(const std::string& command) override { owner_.tell("start|" + escaped(command)); }

private:
    RecordingServices& owner_;
};

class RecordingServices::CommonDialogs final : public Dialogs {
public:
    explicit CommonDialogs(RecordingServices& owner) : owner_(owner) {}
    std::optional<std::string> show(DialogKind kind, const DialogProperties& dialog) override {
        owner_.tell("dialog|" + kindName(kind) + "|" + escaped(dialog.title) + "|" +
                    escaped(dialog.filter) + "|" + std::to_string(dialog.filterIndex) + "|" +
                    escaped(dialog.folder) + "|" + escaped(dialog.fileName));
        if (owner_.dialogResults.empty()) return std::nullopt;
        std::optional<std::string> result = std::move(owner_.dialogResults.front());
        owner_.dialogResults.pop_front();
        return result;
    }

private:
    RecordingServices& owner_;
};

class RecordingServices::Printer final : public RawPrinter {
public:
    explicit Printer(RecordingServices& owner) : owner_(owner) {}
    void print(const std::string& path) override { owner_.tell("rawprint|" + escaped(path)); }

private:
    RecordingServices& owner_;
};

class RecordingServices::Bell final : public Beeper {
public:
    explicit Bell(RecordingServices& owner) : owner_(owner) {}
    void beep() override { owner_.tell("beep"); }

private:
    RecordingServices& owner_;
};

class RecordingServices::FixedClock final : public Clock {
public:
    std::string date() override { return "2004-06-07"; }
    std::string time() override { return "09:30:00"; }
};

class RecordingServices::FixedScreen final : public Screen {
public:
    ScreenSize size() override { return {.width = 15360, .height = 11520}; }
};

class RecordingServices::Pointer final : public BusyPointer {
public:
    explicit Pointer(RecordingServices& owner) : owner_(owner) {}
    void setBusy(bool on) override { owner_.busy = on; }

private:
    RecordingServices& owner_;
};

class RecordingServices::Drawing final : public Surfaces {
public:
    explicit Drawing(RecordingServices& owner)
        : screen_(RecordingSurface::Kind::Screen,
                  [&owner](const std::string& line) { owner.screenCalls.push_back(line); }),
          printer_(RecordingSurface::Kind::Printer,
                   [&owner](const std::string& line) { owner.printerCalls.push_back(line); }) {}
    Surface& screen() override { return screen_; }
    Surface& printer() override { return printer_; }

private:
    RecordingSurface screen_;
    RecordingSurface printer_;
};

class RecordingServices::End final : public ProgramEnd {
public:
    explicit End(RecordingServices& owner) : owner_(owner) {}
    void end() override {
        owner_.tell("end");
        owner_.ended = true;
    }

private:
    RecordingServices& owner_;
};

// Rings only when a test says so.
class RecordingServices::HeldAlarm final : public Alarm {
public:
    explicit HeldAlarm(RecordingServices& owner) : owner_(owner) {}
    void set(std::chrono::milliseconds later, std::function<void()> bell) override {
        owner_.alarmIn = later;
        owner_.ring = std::move(bell);
    }
    void cancel() override { owner_.ring = nullptr; }

private:
    RecordingServices& owner_;
};

// In memory, and none left by other programs unless a test put them there.
class RecordingServices::Journal final : public JournalStore {
public:
    explicit Journal(RecordingServices& owner) : owner_(owner) {}
    bool keep(Shelf shelf, const UnsavedText& text) override {
        if (owner_.journalIsFull) return false;
        owner_.kept[shelf] = text;
        return true;
    }
    void clear(Shelf shelf) override { owner_.kept.erase(shelf); }
    std::vector<Left> left(Shelf shelf) override { return owner_.left[shelf]; }
    void forget(Shelf shelf, const std::string& name) override {
        std::erase_if(owner_.left[shelf], [&](const Left& one) { return one.name == name; });
    }

private:
    RecordingServices& owner_;
};

struct RecordingServices::All {
    explicit All(RecordingServices& owner)
        : messages(owner),
          programs(owner),
          dialogs(owner),
          rawPrinter(owner),
          beeper(owner),
          pointer(owner),
          surfaces(owner),
          programEnd(owner),
          alarm(owner),
          journal(owner) {}

    Messages messages;
    Programs programs;
    CommonDialogs dialogs;
    Printer rawPrinter;
    Bell beeper;
    FixedClock clock;
    FixedScreen screen;
    Pointer pointer;
    Drawing surfaces;
    End programEnd;
    HeldAlarm alarm;
    Journal journal;
};

RecordingServices::RecordingServices(Disk& disk, Listener listener)
    : listener_(std::move(listener)),
      all_(std::make_shared<All>(*this)),
      services_{.disk = disk,
                .messages = all_->messages,
                .programs = all_->programs,
                .dialogs = all_->dialogs,
                .rawPrinter = all_->rawPrinter,
                .beeper = all_->beeper,
                .clock = all_->clock,
                .screen = all_->screen,
                .pointer = all_->pointer,
                .surfaces = all_->surfaces,
                .programEnd = all_->programEnd,
                .alarm = all_->alarm,
                .journal = all_->journal} {}

void RecordingServices::tell(const std::string& line) {
    if (listener_)
        listener_(line);
    else
        lines.push_back(line);
}

}  // namespace kelvo::testing
