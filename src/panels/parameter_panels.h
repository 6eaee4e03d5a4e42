// The parameter panels: presets, origins, and the way between the boxes and the stored set.
//
// The boxes are the working copy of the parameters. Neither presets nor origins touch the stored
// set; SaveCfg takes the boxes into it and FillDefault puts it into the boxes.
#pragma once

#include "panels/parameter_controls.h"
#include "panels/program_state.h"

namespace kelvo {

class ParameterPanels {
public:
    ParameterPanels(Form& form, ProgramState& state);
    ParameterPanels(const ParameterPanels&) = delete;
    ParameterPanels& operator=(const ParameterPanels&) = delete;

    // The names of the preset list.
    void fillPresetList();

    // Switches on the options for AddFlag and CorrFlag.
    void showFlags();

    // Panels to Cfg, in order. A box that holds no number is fault 13, one out of range fault 6;
    // the fields before it are changed by then. Required: UZone 3 goes by optUser, not optUUser.
    void SaveCfg();

    // Cfg to panels. A fixed origin shows its own values, whatever Cfg holds (required).
    void FillDefault();

    // The origin by a longitude in degrees, if one of the four zones by longitude is on: below
    // 126 west, up to 128 centre, up to 130 east, above east sea. Fills the origin boxes.
    void followZone(double longitude);
    [[nodiscard]] bool followsZone() const;

    // The UTM origin, if one of the two fixed ones is on: 123 below 126 degrees, 129 above; at
    // 126 sharp it stays (required).
    void followUtmZone(double longitude);

    void cmb7Para_Click();
    void optMolod_Click();
    void optBursa_Click();
    void OptCorr_Click();
    void OptNoCorr_Click();
    void optWest_Click();
    void optCenter_Click();
    void optEast_Click();
    void optEastSea_Click();
    void optJeju_Click();
    void optUser_Click();
    void optAdd_Click();
    void optNotAdd_Click();
    void optUTM3_Click();
    void optUTM9_Click();
    void optUUser_Click();

    [[nodiscard]] const ParameterControls& controls() const { return on_; }

private:
    void bindReactions();
    void markChanged();
    void showFixedOrigin(TmZone zone);
    void showFixedUtmOrigin(UtmZone zone);

    ParameterControls on_;
    ProgramState& state_;
};

}  // namespace kelvo
