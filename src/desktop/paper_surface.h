// The printer as a drawing surface: sheets are drawn into pictures first and go to the printer,
// or into its preview, when the command that drew them has ended.
#pragma once

#include <QPrinter>
#include <vector>

#include "desktop/picture_surface.h"

namespace kelvo::desktop {

struct Sheet {
    PlotPicture picture;
    bool landscape = false;
};

class PaperSurface final : public PictureSurface {
public:
    PaperSurface();

    // A sheet that nothing was printed on, not even an empty line, isn't one at the end of a job;
    // a new page leaves a blank one before it.
    void EndDoc() override;
    void NewPage() override;

    // The sheets that wait for printing; leaves none.
    [[nodiscard]] std::vector<Sheet> takeSheets();
    [[nodiscard]] bool sheetsAreWaiting() const { return !sheets_.empty() || isTouched(); }

private:
    std::vector<Sheet> sheets_;
};

// Makes a printer ready for sheets: A4, the origin at the sheet's corner.
void setUpPrinter(QPrinter& printer);

// Paints the sheets as one job, one page each: a file would keep the last page alone if every
// sheet were a job of its own. False if the printer can't be opened.
[[nodiscard]] bool paintSheets(QPrinter& printer, const std::vector<Sheet>& sheets);

}  // namespace kelvo::desktop
