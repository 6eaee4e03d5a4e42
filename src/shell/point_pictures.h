// The picture of the points on the screen and on paper, and printing of what is on view.
#pragma once

#include <memory>
#include <string>

#include "form/services.h"
#include "panels/plot_settings_panel.h"
#include "panels/print_mode_panel.h"
#include "shell/plot_place.h"

namespace kelvo {

class clsplot1;
enum class SurfaceKind;

class PointPictures {
public:
    PointPictures(PlotSettingsPanel& settings, ProgramState& state, const Services& services);
    ~PointPictures();
    PointPictures(const PointPictures&) = delete;
    PointPictures& operator=(const PointPictures&) = delete;

    // Saves the settings of the scale panel and draws.
    void cmdPlot_Click();

    // Draws with the settings as they are. The plot object is made at the first time and bound
    // to its surface again each time.
    void drawOnScreen();
    void drawOnPrinter();

    // What stands at a place of the picture on the screen, in twips; empty before the first one.
    [[nodiscard]] PlotPlace placeAt(double x, double y, double reach) const;

private:
    void draw(std::unique_ptr<clsplot1>& object, SurfaceKind kind, Surface& surface);

    PlotSettingsPanel& settings_;
    ProgramState& state_;
    const Services& services_;
    std::unique_ptr<clsplot1> ScreenPlot_;
    PointPlot kindOnScreen_{};
    std::unique_ptr<clsplot1> PrinterPlot_;
};

}  // namespace kelvo
