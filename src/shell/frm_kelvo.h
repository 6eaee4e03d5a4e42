// The main window without a screen: its controls, its state and every command.
//
// A view makes one, binds a widget to each control of form(), runs Main and shows the window.
// Faults come out of every handler as RuntimeFault unless a guard stands in their way; the view
// reports them and ends the program.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "form/form.h"
#include "form/services.h"
#include "panels/program_state.h"
#include "shell/plot_place.h"
#include "shell/status_line.h"

namespace kelvo {

class frmKelvo {
public:
    // The application folder, without a trailing separator, has to be there with its folder
    // "data". The services have to outlive the window.
    frmKelvo(std::string applicationFolder, const Services& services);
    ~frmKelvo();
    frmKelvo(const frmKelvo&) = delete;
    frmKelvo& operator=(const frmKelvo&) = delete;

    [[nodiscard]] Form& form();
    [[nodiscard]] ProgramState& state();
    [[nodiscard]] const Services& services() const;

    // What is said without a box.
    [[nodiscard]] StatusLine& status();

    // Places and hides the panels, fills the lists and boxes, restores the plot settings.
    void Form_Load();

    // The closing sequence: saves parameters and plot settings and ends the program. A box that
    // holds no number is fault 13, and the program isn't ended.
    void Form_Close();

    // Shows a text file in the viewer. Fault 53 where there is none.
    void OpenRichText(const std::string& path);

    // What stands at a place of the plot on the screen, in twips, for a pointer over it; a point
    // counts as near within `reach`.
    [[nodiscard]] PlotPlace plotPlaceAt(double x, double y, double reach) const;

    // The file that the text on view belongs to, and saving it there with everything left as it is
    // on the screen. A fault leaves the old file whole.
    [[nodiscard]] const std::string& fileOnView() const;
    void saveOnView();

    // What the check finds in the text of a data file, with the known points that a run would read.
    [[nodiscard]] std::vector<RunMessage> findingsIn(std::string_view dataFile) const;
    // The parameters and plot settings to their files, as at the end. Faults as Form_Close.
    void saveSettings();

    // Prints a text file in the mode of the print mode panel.
    void PrintFile(const std::string& name);

    // Puts a file on top of the recent list, menu and caption included.
    void UpdateRecentFiles(const std::string& name);

    // The text in the viewer, and what became of those that had to leave it without being saved.

    // The text on view and the file it belongs to.
    [[nodiscard]] UnsavedText textOnView() const;

    // True if the text on view differs from that of its file.
    [[nodiscard]] bool textIsUnsaved() const;

    // Puts it into the journal at once, as before an end that leaves no time to ask. False if
    // there is something unsaved and no room for it.
    bool keepUnsavedText();

    // "되살리기": the last text that closing the panel, a run or a load took off the view unsaved
    // comes back into the viewer, not saved yet; what is unsaved there takes its place.
    [[nodiscard]] bool canBringBackText();
    void bringBackText();

    // The text that was unsaved when a program before this one ended, to be offered at the start:
    // it comes into the viewer, or is put aside. Then the next one may be asked for.
    [[nodiscard]] std::optional<UnsavedText> waitingText();
    void bringBackWaitingText();
    void putWaitingTextAside();

private:
    struct Members;
    std::unique_ptr<Members> members_;
};

}  // namespace kelvo
