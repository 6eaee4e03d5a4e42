// The main window without a screen: its controls, its state and every command.
//
// A view makes one, binds a widget to each control of form(), runs Main and shows the window.
// Faults come out of every handler as RuntimeFault unless a guard stands in their way; the view
// reports them and ends the program.
#pragma once

#include <memory>
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

    // Prints a text file in the mode of the print mode panel.
    void PrintFile(const std::string& name);

    // Puts a file on top of the recent list, menu and caption included.
    void UpdateRecentFiles(const std::string& name);

private:
    struct Members;
    std::unique_ptr<Members> members_;
};

// The program's start: reads the configuration (writing a new one and the sample data file
// where there is none), fills the list of recent files and loads the window. Fault 9 for a list
// of more than six entries of which none after the fifth is there (required).
void Main(frmKelvo& window);

}  // namespace kelvo
