// plot.cfg: the program starts on it, plots and closes.
#include <cmath>

#include "fuzz/whole_form.h"

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

void requireFinite(const std::vector<std::string>& calls) {
    for (const std::string& call : calls)
        if (call.starts_with("Line ") || call.starts_with("Circle ") || call.starts_with("Current"))
            require(call.find("nan") == std::string::npos && call.find("inf") == std::string::npos,
                    "the surface is told numbers: ", call);
}

void click(WholeForm& form, const char* name) {
    Control* control = form.window.form().find(name);
    require(control != nullptr, "there is ", name);
    try {
        control->click();
    } catch (const RuntimeFault&) {
        // reported to the user, who starts again
    }
    requireFinite(form.services.screenCalls);
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
    return 0;
}
