// The plot object's operations, as a script of routine_driver calls them.
#include <cmath>
#include <memory>

#include "common/run_time_fault.h"
#include "drivers/plot_calls.h"
#include "fuzz/checking_surface.h"
#include "fuzz/fuzz_target.h"
#include "support/recording_messages.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "pinitialize 0 0 1 1 2",
    "pinitialize 20 30 0.5 0.7 1",
    "pinitialize 0 0 1 1 0",
    "pwindow 0 126.95 137 128.05 0 37.5 137 36.4 0",
    "pwindow 0 0 100 10 0 0 100 10 0",
    "pwindow 0 0 100 10 0 1 100 1000 1",
    "pwindow 0 1 100 1000 0 0 100 10 2",
    "pwindow 0 1000 100 1 0 1 100 1000 3",
    "pmoveto 5 5",
    "pmoverelto 1 2",
    "pmovemmto 5 2 5 2",
    "plwidth 2",
    "Clear",
    "SkipPage",
    "SkipPage1",
    "EndPlot",
    "ChangeOrint 2",
    "SetOrint 1",
    "ChangeColor 255 1",
    "ChangeColor 40000 2",
    "setBlackWhite true",
    "setPrinterType \"T\"",
    "GetPrinterMode true",
    "pline 1 1 9 9 1",
    "pline 1 1 9 9 1 true",
    "plineto 5 5 1",
    "plinerelto 1 1 0",
    "plinemmto 5 1 5 1 1",
    "plinedot 1 1 9 9 1 2 1",
    "pbox 1 1 9 9 1",
    "pcircle 5 5 2 0 360 1",
    "pcircle 5 5 2 10 200 1",
    "pcircledot 5 5 2 0 360 1 2 1",
    "parrow 5 5 2 1 45 1",
    "pfillMode 7",
    "pfill 1 1 9 9 255",
    "pFillBox 1 1 9 9 65280",
    "pFillCircle 5 5 2 255",
    "pFillEllipse 5 5 2 30 0.5 255",
    "pFillPoly 3 255 1 1 9 1 5 9",
    "pFillTri 1 1 9 1 5 9",
    "TriStroke 1 1 9 1 5 9 1 90",
    "ptheight 8",
    "ptext \"점 1\" 5 5 9",
    "ptextC \"가나\" 1 9 5 0",
    "ptextR \"text\" 5 5 45 9",
    "ptextR \"text\" 5 5 45 9 \"바탕\"",
    "pvtext \"세로\" 5 5 3 0 9",
    "pvalue 3.14159 5 5 4 2 9",
    "pformvalue 1234.5 5 5 \"#0.00\" 9",
    "pclear 1",
    "ChangeFont \"굴림체\"",
    "ChangeFontStyle 1 \"True\"",
    "pgrid 0 0 100 10 5 1 0 0 100 10 5 1 0 0 8421504",
    "pgrid 0 1 100 1000 1 1 0 1 100 1000 1 1 3 0 255",
    "ticmark 5 5 4 0 1",
    "ticmark 5 5 4 3 1.4",
    "Class_Initialize",
    "cx 5",
    "cyInv 300",
    "LastX",
    "new",
};

constexpr int kMostCalls = 60;
constexpr int kMostDrawn = 30'000;  // calls of a surface; then the script is given up

class Starts final : public ProgramStarter {
public:
    // One program is known to the plot object, and no text of a caller reaches it.
    void start(const std::string& command) override {
        require(command == "control.exe", "only control.exe is started: ", command);
    }
};

struct Session {
    testing::RecordingMessages messages;
    Starts programs;
    CheckingSurface screen;
    CheckingSurface printer;
    testing::PlotBench bench{messages, programs, screen, printer};

    [[nodiscard]] int drawn() const { return screen.calls() + printer.calls(); }

    void call(std::string_view line) {
        try {
            testing::Call call = testing::readCall(line);
            (void)testing::callPlot(bench, call);
        } catch (const testing::ScriptError&) {
            // a line of noise
        } catch (const RuntimeFault&) {
            // the only other way out
        }
        require(std::isfinite(bench.object.LastX()) && std::isfinite(bench.object.LastY()) &&
                    std::isfinite(bench.object.Curxs()) && std::isfinite(bench.object.Curys()),
                "the pen and the scale are numbers");
    }
};

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo::fuzz;
    std::string_view rest = textOf(data, size);
    auto session = std::make_unique<Session>();
    for (int calls = 0; calls < kMostCalls && !rest.empty() && session->drawn() < kMostDrawn;
         ++calls) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        if (line == "new")
            session = std::make_unique<Session>();
        else if (!kelvo::testing::asksNothing(line))
            session->call(line);
    }
    return 0;
}
