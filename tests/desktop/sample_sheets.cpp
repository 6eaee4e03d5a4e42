// A whole plot and a printed text, as the program makes them.
#include <memory>

#include "common/number_text.h"
#include "gallery_pages.h"
#include "geodesy/angle_forms.h"
#include "plot/point_plots.h"
#include "support/memory_disk.h"

namespace kelvo::testing {

namespace {

// Everything a plot and a print ask for beside the surface; the boxes of the scale are read back.
class Desk final : public MessageBoxes,
                   public ProgramStarter,
                   public RawPrinter,
                   public BusyPointer,
                   public ScalePanel {
public:
    Answer show(const Message&) override { return Answer::Ok; }
    void start(const std::string&) override {}
    void print(const std::string&) override {}
    void setBusy(bool) override {}
    void takeScale(PointPlot drawn, const std::array<std::string, 4>& texts) override {
        const auto read = [drawn](const std::string& box) {
            const double number = strictNumber(box);
            return static_cast<float>(drawn == PointPlot::XY ? number
                                                             : KelvoSub::DmsToDeg(number).degrees);
        };
        *cfg.scaleOf(drawn) = {read(texts[0]), read(texts[1]), read(texts[2]), read(texts[3])};
    }

    PlotCfg cfg;
};

// Points along a coast, in grid metres; the angles are near enough for a picture.
PointTable samplePoints() {
    struct Place {
        const char* name;
        double north;
        double east;
    };
    constexpr std::array<Place, 8> places{{{"인천No-1", 455120.4, 161240.2},
                                           {"인천No-2", 455480.9, 162905.7},
                                           {"인천No-3", 456310.0, 161980.3},
                                           {"삼각점 24", 457190.6, 163320.8},
                                           {"BM-7", 454660.2, 163890.1},
                                           {"등대", 456890.5, 160910.9},
                                           {"P1", 455900.0, 163100.0},
                                           {"P2", 457420.1, 162110.6}}};
    PointTable points;
    for (const Place& place : places) {
        PointRec& row = points.row(++points.PointCount);
        row.name = place.name;
        row.TmX = place.north;
        row.TmY = place.east;
        row.UserPhi = 37.6 + (place.north - 456000) / 111000;
        row.UserLam = 126.54 + (place.east - 162000) / 88000;
        row.WgsPhi = row.UserPhi + 0.0028;
        row.WgsLam = row.UserLam - 0.0021;
    }
    return points;
}

}  // namespace

void drawSamplePlot(SurfaceKind kind, Surface& surface, PointPlot plotKind, bool manual) {
    Desk desk;
    desk.cfg.PlotKind = plotKind;
    desk.cfg.PlotManual = manual ? 1 : 0;
    desk.cfg.PlotFontSize = 8;
    desk.cfg.XY = {.Xb = 454000, .Yb = 160000, .Span = 4000, .Inter = 1000};
    const PointTable points = samplePoints();
    const PlotTexts texts{.dataFile = "data/test.dat", .date = "2004-06-07", .time = "09:30:00"};
    PlotSource source{.points = points, .cfg = desk.cfg, .panel = desk, .texts = texts};
    clsplot1 object(desk, desk, surface);
    plot(object, kind, surface, source);
}

void printSampleText(Surface& printer, const std::string& name, const std::string& text,
                     const PrintMode& mode) {
    Desk desk;
    MemoryDisk disk;
    disk.putText("/" + name, text);
    std::string line;
    PrintServices services{.disk = disk,
                           .messages = desk,
                           .programs = desk,
                           .rawPrinter = desk,
                           .pointer = desk,
                           .printer = printer,
                           .applicationFolder = "/",
                           .LineBuf = line};
    PrintFile(name, mode, services);
}

}  // namespace kelvo::testing
