#include "shell/point_pictures.h"

#include "plot/clsplot1.h"
#include "plot/point_plots.h"

namespace kelvo {

PointPictures::PointPictures(PlotSettingsPanel& settings, ProgramState& state,
                             const Services& services)
    : settings_(settings), state_(state), services_(services) {
    settings_.controls().cmdPlot.onClick = [this] { cmdPlot_Click(); };
}

PointPictures::~PointPictures() = default;

void PointPictures::cmdPlot_Click() {
    settings_.SavePcfgFile();
    drawOnScreen();
}

void PointPictures::drawOnScreen() {
    kindOnScreen_ = state_.plotCfg.PlotKind;
    draw(ScreenPlot_, SurfaceKind::Screen, services_.surfaces.screen());
}

PlotPlace PointPictures::placeAt(double x, double y, double reach) const {
    if (!ScreenPlot_) return {};
    return placeOnPlot(*ScreenPlot_, state_.conversion.points, kindOnScreen_, x, y, reach);
}

void PointPictures::drawOnPrinter() {
    draw(PrinterPlot_, SurfaceKind::Printer, services_.surfaces.printer());
}

void PointPictures::draw(std::unique_ptr<clsplot1>& object, SurfaceKind kind, Surface& surface) {
    if (!object)
        object = std::make_unique<clsplot1>(services_.messages, services_.programs,
                                            services_.surfaces.printer());
    const PlotTexts texts{.dataFile = state_.RecentFiles[1],
                          .date = services_.clock.date(),
                          .time = services_.clock.time()};
    PlotSource source{.points = state_.conversion.points,
                      .cfg = state_.plotCfg,
                      .panel = settings_,
                      .texts = texts};
    plot(*object, kind, surface, source);
}

}  // namespace kelvo
