// plot.cfg: the program starts on it, plots and closes. The panel of the settings alone does for
// most inputs; the whole form takes many times as long.
#include <cmath>

#include "fuzz/checking_surface.h"
#include "fuzz/whole_form.h"
#include "panels/plot_settings_panel.h"
#include "plot/clsplot1.h"
#include "plot/point_plots.h"
#include "support/recording_messages.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    " 1 ",
    " 2 ",
    " 3 ",
    " 0 ",
    " 8 ",
    " 37.5  126.5  .5  .1 ",
    " 400000  150000  50000  5000 ",
    " 0  0  0  0 ",
};

void requireNumbers(const PlotCfg& cfg) {
    for (const PlotScale& scale : {cfg.WGS, cfg.UGS, cfg.XY})
        for (const float value : {scale.Xb, scale.Yb, scale.Span, scale.Inter})
            require(std::isfinite(value), "scales are numbers");
    require(std::isfinite(cfg.PlotFontSize), "the text size is a number");
}

void requireFinite(const std::string& call) {
    if (call.starts_with("Line ") || call.starts_with("Circle ") || call.starts_with("Current"))
        require(call.find("nan") == std::string::npos && call.find("inf") == std::string::npos,
                "the surface is given numbers: ", call);
}

void click(WholeForm& form, const char* name) {
    Control* control = form.window.form().find(name);
    require(control != nullptr, "there is ", name);
    try {
        control->click();
    } catch (const RuntimeFault&) {
        // reported to the user, who starts again
    }
    for (const std::string& call : form.services.screenCalls) requireFinite(call);
}

// The settings, the points of a run and a plot of them, without the rest of the form.
struct SettingsAlone {
    explicit SettingsAlone(testing::MemoryDisk& disk) : panel(form, state, disk, messages) {
        state.applicationFolder = "/app";
        for (int i = 1; i <= 3; ++i) {
            PointRec& row = state.conversion.points.row(i);
            row.name = "점 " + std::to_string(i);
            row.WgsPhi = row.UserPhi = 36 + 0.3 * i;
            row.WgsLam = row.UserLam = 127 + 0.2 * i;
            row.TmX = 400000 + 1000.0 * i;
            row.TmY = 200000 - 2000.0 * i;
        }
        state.conversion.points.PointCount = 3;
    }

    void drawAndSave() {
        const PlotTexts texts{.dataFile = "/app/data/test.DAT", .date = "", .time = ""};
        PlotSource source{.points = state.conversion.points,
                          .cfg = state.plotCfg,
                          .panel = panel,
                          .texts = texts};
        try {
            plot(object, SurfaceKind::Screen, screen, source);
            panel.SavePcfgFile();
        } catch (const RuntimeFault&) {
            // reported to the user, who starts again
        }
    }

    struct Starts final : public ProgramStarter {
        void start(const std::string& command) override {
            require(command == "control.exe", "only control.exe is started: ", command);
        }
    };

    Form form;
    ProgramState state;
    testing::RecordingMessages messages;
    Starts programs;
    CheckingSurface screen;
    CheckingSurface printer;
    clsplot1 object{messages, programs, printer};
    PlotSettingsPanel panel;
};

// A start on a plot.cfg never fails, whatever stands in it and whatever the program made of it.
void checkSettingsAlone(testing::MemoryDisk disk) {
    for (int starts = 0; starts < 2; ++starts) {
        SettingsAlone one(disk);
        one.panel.RestorePcfgFile();
        requireNumbers(one.state.plotCfg);
        one.drawAndSave();
    }
}

void checkWholeForm(testing::MemoryDisk disk) {
    {
        WholeForm form(disk);
        require(!form.startFault, "no plot.cfg keeps the program from starting");
        requireNumbers(form.window.state().plotCfg);
        click(form, "mnuBatchGo");
        click(form, "cmdShow");
        form.close();
    }
    WholeForm again(disk);
    require(!again.startFault, "the program starts on what it wrote");
}

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo::fuzz;
    kelvo::testing::MemoryDisk disk;
    addPlaces(disk);
    disk.putBytes("/app/plot.cfg", std::string(textOf(bytes, size)));
    checkSettingsAlone(disk);
    if (takesTheWholeForm(textOf(bytes, size))) checkWholeForm(disk);
    return 0;
}
