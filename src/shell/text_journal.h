// The journal of texts that stand in no file: what was typed into the viewer and not saved yet,
// and the last text that had to leave it unsaved. The first is kept a few seconds after a change
// and gone after a save; both outlive the program, however it ends.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "form/services.h"

namespace kelvo {

class TextJournal {
public:
    // The text on view and the file it belongs to.
    using OnView = std::function<UnsavedText()>;
    // Puts a text on view.
    using Show = std::function<void(const UnsavedText& text)>;

    TextJournal(JournalStore& store, Alarm& alarm, Clock& clock, OnView onView);
    TextJournal(const TextJournal&) = delete;
    TextJournal& operator=(const TextJournal&) = delete;

    // The text on view is what its file holds: it was loaded or saved just now.
    void isInItsFile();

    // A person changed the text on view. It is kept a few seconds later, a long one after longer.
    void changed();

    // The text on view is about to go: if it stands in no file it can be brought back.
    void aboutToGo();

    // Keeps at once what is unsaved on view. False if that failed.
    bool keepNow();

    // The text on view, now.
    [[nodiscard]] UnsavedText onView() const;

    // True if the text on view differs from that of its file.
    [[nodiscard]] bool textIsUnsaved() const;

    // True if there is a last text that went unsaved: of this program or, as long as this one
    // has none, of one before it.
    [[nodiscard]] bool canBringBack();
    // Has it put on view; the text that stands there, if unsaved, takes its place.
    void bringBack(const Show& show);

    // What stood unsaved on the view of a program that ended, to be asked for at the start. Once
    // one of the two below was called, the next one may be asked for.
    [[nodiscard]] std::optional<UnsavedText> waiting();
    void bringBackWaiting(const Show& show);
    void putWaitingAside();  // it is then the last text that can be brought back

private:
    [[nodiscard]] bool showUnsaved(const UnsavedText& text, const Show& show);
    bool discard(UnsavedText text);  // true if it is kept on the disk, too
    void lookForOlder();
    [[nodiscard]] std::optional<JournalStore::Left> nextWaiting();

    JournalStore& store_;
    Alarm& alarm_;
    Clock& clock_;
    OnView onView_;
    // What the text's file holds, by size and hash; nothing if no file holds it.
    std::optional<std::pair<std::size_t, std::size_t>> inFile_;
    bool alarmIsSet_ = false;
    bool lookedForOlder_ = false;
    std::optional<UnsavedText> discarded_;
};

}  // namespace kelvo
