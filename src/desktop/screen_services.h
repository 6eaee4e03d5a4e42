// The services of the form on a real desktop: boxes, dialogs, programs, clock, screen.
#pragma once

#include <QPrinter>
#include <QWidget>
#include <deque>
#include <memory>

#include "desktop/event_gate.h"
#include "form/services.h"

namespace kelvo::desktop {

// The window that boxes belong to; it exists only after its services.
struct DialogParent {
    QWidget* window = nullptr;
    bool nobodyAnswers = false;  // the session ends: questions are cancelled, nothing is shown
};

class ScreenMessages final : public MessageBoxes {
public:
    explicit ScreenMessages(const DialogParent& parent) : parent_(parent) {}
    Answer show(const Message& message) override;

private:
    const DialogParent& parent_;
};

class ScreenDialogs final : public Dialogs {
public:
    ScreenDialogs(const DialogParent& parent, std::function<QPrinter&()> printer)
        : parent_(parent), printer_(std::move(printer)) {}

    std::optional<std::string> show(DialogKind kind, const DialogProperties& properties) override;

    // A file dropped onto the window has been chosen already: the next dialog gives it.
    void chooseNext(const std::string& path) { chosen_.push_back(path); }
    void forgetChosen() { chosen_.clear(); }

private:
    std::optional<std::string> showPrinterDialog();

    const DialogParent& parent_;
    std::function<QPrinter&()> printer_;
    std::deque<std::string> chosen_;
};

class DetachedPrograms final : public ProgramStarter {
public:
    void start(const std::string& command) override;
};

// Hands the text to the platform's raw print service, the program lp.
class RawPrintService final : public RawPrinter {
public:
    // `tell` is given a word for people where that program is missing.
    explicit RawPrintService(std::function<void(const QString&)> tell) : tell_(std::move(tell)) {}

    void print(const std::string& path) override;

private:
    std::function<void(const QString&)> tell_;
};

class ScreenBeeper final : public Beeper {
public:
    void beep() override;
};

class LocaleClock final : public Clock {
public:
    std::string date() override;
    std::string time() override;
};

class PrimaryScreen final : public Screen {
public:
    ScreenSize size() override;
};

class OverridePointer final : public BusyPointer {
public:
    void setBusy(bool busy) override;
};

class WindowEnd final : public ProgramEnd {
public:
    void end() override;
    [[nodiscard]] bool hasEnded() const { return ended_; }

private:
    bool ended_ = false;
};

// A text with CR LF line ends as a box shows it: no line longer than can be read, nothing in it
// that isn't seen.
[[nodiscard]] QString boxText(const std::string& text);

// "Data Files (*.dat)|*.dat|All Files (*.*)|*.*" as a list of Qt's filters.
[[nodiscard]] QStringList qtFilters(const std::string& filter);

}  // namespace kelvo::desktop
