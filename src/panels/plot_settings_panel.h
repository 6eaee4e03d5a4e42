// The scale panel: the kind and scale of the plot, and the file that keeps them, plot.cfg.
#pragma once

#include <functional>

#include "common/ports.h"
#include "panels/program_state.h"
#include "panels/scale_controls.h"
#include "plot/point_plots.h"

namespace kelvo {

class PlotSettingsPanel final : public ScalePanel {
public:
    PlotSettingsPanel(Form& form, ProgramState& state, Disk& disk, MessageBoxes& messages);
    PlotSettingsPanel(const PlotSettingsPanel&) = delete;
    PlotSettingsPanel& operator=(const PlotSettingsPanel&) = delete;

    // Takes the options and boxes into the settings and writes plot.cfg; of the three scales
    // only that of the kind that is on. A box that holds no number is fault 13 and leaves the
    // file as it was. Where another program has saved it, what this one changed goes into that.
    void SavePcfgFile();

    // Reads plot.cfg and shows it. A file that can't be read is replaced by one for the grid
    // plot with automatic scale and text size 8, which keeps the scales read so far; the second
    // time in one start these go to zero. A third failure comes out as the fault that it is.
    void RestorePcfgFile();

    // Shows the scale and saves it. While another kind is chosen and not applied yet the boxes
    // belong to that one: the scale goes straight into its own group then, and nothing else
    // changes.
    void takeScale(PointPlot drawn, const std::array<std::string, 4>& texts) override;

    void optWGS_Click();
    void optUGS_Click();
    void optXY_Click();
    void optAuto_Click();
    void optManual_Click();

    [[nodiscard]] const ScaleControls& controls() const { return on_; }

private:
    [[nodiscard]] PointPlot chosenKind() const;
    [[nodiscard]] static float valueOf(double number, PointPlot kind, MessageBoxes& messages);
    void showAngles(const PlotScale& scale);
    void takePanel(PlotCfg& cfg, MessageBoxes& messages) const;
    void showSettings();
    void noteUntouchedPanel();
    [[nodiscard]] std::string path() const;
    void readInto(PlotCfg& cfg) const;
    void writePcfgFile();

    ScaleControls on_;
    ProgramState& state_;
    Disk& disk_;
    MessageBoxes& messages_;
};

}  // namespace kelvo
