// What a form asks of its surroundings beyond the disk and message boxes. Each has one
// implementation for the screen and one for tests. Every one may raise a RuntimeFault.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/disk.h"
#include "common/ports.h"

namespace kelvo {

class Surface;  // plot/surface.h

enum class DialogKind { Open, Save, Printer };

// The one common dialog of the application, `cmd`. A property that a command doesn't set keeps
// what the last use left.
struct DialogProperties {
    std::string title{};
    std::string filter{};    // pairs of name and pattern, separated by "|"
    int filterIndex = 0;     // counts from 1; 0 before the first use
    std::string folder{};    // where the dialog starts; may end with a separator
    std::string fileName{};  // proposed; afterwards the chosen one
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    // Shows the dialog and waits. The chosen path (of the printer dialog: anything), or nothing
    // if it was cancelled.
    virtual std::optional<std::string> show(DialogKind kind,
                                            const DialogProperties& properties) = 0;
};

// Hands a text file as it stands to the printer, without waiting for it.
class RawPrinter {
public:
    virtual ~RawPrinter() = default;
    // A path without a folder lies in the current folder.
    virtual void print(const std::string& path) = 0;
};

class Beeper {
public:
    virtual ~Beeper() = default;
    virtual void beep() = 0;
};

// Date and time of day as the user is used to read them.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual std::string date() = 0;
    [[nodiscard]] virtual std::string time() = 0;
};

struct ScreenSize {
    double width = 0;  // twips
    double height = 0;
};

class Screen {
public:
    virtual ~Screen() = default;
    [[nodiscard]] virtual ScreenSize size() = 0;
};

class BusyPointer {
public:
    virtual ~BusyPointer() = default;
    virtual void setBusy(bool busy) = 0;
};

// The surfaces that plots are drawn on. They live as long as the form.
class Surfaces {
public:
    virtual ~Surfaces() = default;
    [[nodiscard]] virtual Surface& screen() = 0;  // the picture box pctPlot
    [[nodiscard]] virtual Surface& printer() = 0;
};

// The end of the program, when the closing sequence has run. Returns; the handler that called
// does nothing more.
class ProgramEnd {
public:
    virtual ~ProgramEnd() = default;
    virtual void end() = 0;
};

// Calls back once, a while later, when no handler is at work.
class Alarm {
public:
    virtual ~Alarm() = default;
    // A new time takes the place of the one before.
    virtual void set(std::chrono::milliseconds later, std::function<void()> ring) = 0;
    virtual void cancel() = 0;
};

// A text of the viewer that stands in no file.
struct UnsavedText {
    std::string path;   // the file that it belongs to
    std::string text;   // UTF-8, CR LF line ends
    std::string since;  // date and time as people read them
};

// Where unsaved texts outlive the program. What fails is tried again with the next text.
class JournalStore {
public:
    virtual ~JournalStore() = default;

    // A text that stands in the viewer, and the last one that had to leave it.
    enum class Shelf { OnView, Discarded };

    // Puts the text on a shelf of this program in place of the one there. False if that failed.
    virtual bool keep(Shelf shelf, const UnsavedText& text) = 0;
    virtual void clear(Shelf shelf) = 0;

    // What programs that ended have left on that shelf, the newest first. It stays there until
    // forget(), and no other program is given it meanwhile.
    struct Left {
        UnsavedText text;
        std::string name;
    };
    [[nodiscard]] virtual std::vector<Left> left(Shelf shelf) = 0;
    virtual void forget(Shelf shelf, const std::string& name) = 0;
};

struct Services {
    Disk& disk;
    MessageBoxes& messages;
    ProgramStarter& programs;
    Dialogs& dialogs;
    RawPrinter& rawPrinter;
    Beeper& beeper;
    Clock& clock;
    Screen& screen;
    BusyPointer& pointer;
    Surfaces& surfaces;
    ProgramEnd& programEnd;
    Alarm& alarm;
    JournalStore& journal;
};

}  // namespace kelvo
