// The one-point panel: four frames of coordinates and six arrows between neighbours.
//
// A click reads the frame at the arrow's tail and the parameter boxes, converts by the same
// routines as a run, and writes the frame at its head; nothing else is kept. What differs from a
// run, all of it required:
//   - the boxes count, not the stored set; each click of a datum arrow loads the shift;
//   - WGS84 to user: the first adjustment comes before the geoid and goes onto the ellipsoidal
//     height; the correction of height goes into the orthometric height alone;
//   - user to WGS84: the correction cancels out of the orthometric height on the WGS side;
//   - the geoid above WGS84 is shown;
//   - the TM zone follows the point by option buttons, on the arrows that come to the TM grid;
//     from UTM by the longitude that stands in the user frame; the UTM zone on one arrow only,
//     where 126 degrees sharp and a user origin change nothing;
//   - one arrow is one step: grid arrows touch neither WGS84 nor the files.
//
// Faults of a click: 11 (6 for 0/0) where an inverse flattening is 0; 13 where a height that is
// taken as a number isn't one; 6 for results beyond a double; those of files.
#pragma once

#include <functional>

#include "common/ports.h"
#include "correction/find_corr.h"
#include "panels/coordinate_controls.h"
#include "panels/entry.h"
#include "panels/parameter_panels.h"

namespace kelvo {

class OnePointPanel {
public:
    // writeCfgFile stores the parameters and the recent files.
    OnePointPanel(Form& form, Control& frmeOne, ParameterPanels& parameters, ProgramState& state,
                  Disk& disk, MessageBoxes& messages, std::function<void()> writeCfgFile);
    OnePointPanel(const OnePointPanel&) = delete;
    OnePointPanel& operator=(const OnePointPanel&) = delete;

    // Both frames to ddd.mmssss; the geoid height of the grid is for showing only.
    void FillDefault();

    // WGS84 to the user ellipsoid, and back. Both empty the result file of the current data file
    // and kelvo.det; after a change of parameters they store them and write a run header.
    void cmdW2B_Click();
    void cmdB2W_Click();
    // User ellipsoid to TM grid, and back.
    void cmdGP2TM_Click();
    void cmdTM2GP_Click();
    // TM grid to UTM grid, and back.
    void cmdTM2UTM_Click();
    void cmdUTM2TM_Click();

    void optWdeg_Click();
    void optWdms_Click();
    void optBdeg_Click();
    void optBdms_Click();

    void cmdOneClose_Click();

    [[nodiscard]] const CoordinateControls& controls() const { return on_; }

private:
    struct Files;

    void bindReactions();
    void startDatumClick(Files& files, BoxReader& read, const AnglePair& tail);
    // The group that was typed into fills the other one; from there on the decimal boxes count.
    void synchronise(const AnglePair& angles, BoxReader& read);
    [[nodiscard]] Correction correctionAt(Files& files, const Position& wgs);
    [[nodiscard]] double shiftedLam0(BoxReader& read) const;
    [[nodiscard]] Projection tmOrigin(BoxReader& read, double Lam0) const;
    [[nodiscard]] Projection utmOrigin(BoxReader& read) const;
    [[nodiscard]] Position positionOfTmBoxes(BoxReader& read);

    CoordinateControls on_;
    Control& frmeOne_;
    ParameterPanels& parameters_;
    const ParameterControls& para_;
    ProgramState& state_;
    Disk& disk_;
    MessageBoxes& messages_;
    std::function<void()> writeCfgFile_;
};

}  // namespace kelvo
