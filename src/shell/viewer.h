// The viewer: one text file at a time in a box that can be edited and saved, and after a run the
// plot in the same place.
#pragma once

#include <functional>
#include <string>

#include "panels/print_mode_panel.h"
#include "panels/program_state.h"
#include "panels/scale_controls.h"
#include "shell/common_dialog.h"
#include "shell/recent_files.h"
#include "shell/text_journal.h"
#include "shell/window_controls.h"

namespace kelvo {

class PointPictures;

// What one screen can use: more of it takes minutes and gigabytes to show.
inline constexpr std::size_t kLargestOnView = 16U << 20U;  // bytes
inline constexpr std::size_t kMostLinesOnView = 500'000;
inline constexpr std::size_t kLongestLineOnView = 1U << 20U;  // bytes

class ResultViewer {
public:
    ResultViewer(const ViewerControls& controls, const ScaleControls& scale, ProgramState& state,
                 PrintModePanel& printMode, PointPictures& pictures, RecentFileList& recent,
                 CommonDialog& cmd, const Services& services);
    ResultViewer(const ResultViewer&) = delete;
    ResultViewer& operator=(const ResultViewer&) = delete;

    // The one way to show a text file. The panels have changed when a fault of loading comes out;
    // a text too large to be shown is fault 6.
    void OpenRichText(const std::string& Path);

    // Takes the numbers of a run and its plot in turn, by the caption of cmdShow. Fault 53 where
    // there is no result file.
    void cmdShow_Click();

    // Saves under the name that the text was loaded from. A fault leaves the old file whole.
    void cmdSave_Click();

    // Saves under a name from the dialog, with no question, and shows that file; only a data file
    // goes into the recent list. Cancelling ends it silently; other faults come out.
    void cmdSaveAs_Click();

    // Nothing is saved and nothing asked; what was unsaved can be brought back.
    void cmdClose_Click();

    // Shows a text as one of the file that it belongs to, not yet saved there.
    void showUnsaved(const UnsavedText& text);

    // What is known of texts that stand in no file. The text that loading, closing or a run takes
    // off the view unsaved goes there.
    [[nodiscard]] TextJournal& journal() { return journal_; }

    // What the File menu's save does with the text: it goes to `name`, which the box keeps, and
    // the box is hidden.
    void saveAndHide(const std::string& name);

    // After a run: the numbers at once, the plot a click away.
    void showRunResult();

    // A copy of the text for printing; the name that the box keeps stays.
    void saveCopy(const std::string& name);

    // The name that the box keeps: where cmdSave writes. Empty before the first text.
    [[nodiscard]] const std::string& fileOnView() const { return fileName_; }

    // Writes the text to the file on view and leaves everything as it is on the screen.
    void saveOnView();

    // For whoever speaks of it: called when a text has been loaded from a file or saved to one.
    std::function<void(const std::string& path)> onLoaded;
    std::function<void(const std::string& path)> onSaved;

    // True while the caption of cmdShow says that the numbers are on view.
    [[nodiscard]] bool numbersOnView() const;

private:
    void showTextPanel();
    void load(const std::string& path);
    void showText(const std::string& text);
    void saveUnder(const std::string& path);

    const ViewerControls& on_;
    const ScaleControls& scale_;
    ProgramState& state_;
    PrintModePanel& printMode_;
    PointPictures& pictures_;
    RecentFileList& recent_;
    CommonDialog& cmd_;
    Disk& disk_;
    std::string fileName_;  // changes by loading and by the File menu's save only
    bool loading_ = false;
    TextJournal journal_;
};

}  // namespace kelvo
