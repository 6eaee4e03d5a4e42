// kelvo.cfg: the program starts on it and closes; what it wrote then is a fixed point. Making the
// whole form four times takes a hundred times as long as reading and writing the file: most inputs
// do without it.
#include <algorithm>
#include <cmath>
#include <utility>

#include "fuzz/whole_form.h"
#include "shell/configuration.h"
#include "support/recording_messages.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "xdg-open",
    " 115.8        -474.99       -674.11 ",
    " 1.16         -2.31         -1.63 ",
    "-6.43 ",
    " 1 ",
    " 0             0             0 ",
    " 6377397.155   299.1528128 ",
    " 2 ",
    " 38            127 ",
    " 500000        200000 ",
    " .9996 ",
    " 0             129 ",
    " 0             500000 ",
    " 1               0 ",
    "/app/data/test.DAT",
    "/app/a.dat",
    "/app/b.dat",
    "/app/c.dat",
    "/app/d.dat",
    "/app/missing.dat",
    "\"/app/a.dat\"",
    "a,b",
};

void requireNumbers(const TransPara& Cfg) {
    for (const double value :
         {Cfg.dX,   Cfg.dY, Cfg.dZ, Cfg.Omega, Cfg.Phi, Cfg.Kappa, Cfg.dS,    Cfg.dPhi,
          Cfg.dLam, Cfg.dH, Cfg.a,  Cfg.f,     Cfg.X0,  Cfg.Y0,    Cfg.S0,    Cfg.Phi0,
          Cfg.Lam0, Cfg.Ua, Cfg.Uf, Cfg.UPhi0, Cfg.UX0, Cfg.UY0,   Cfg.ULam0, Cfg.US0})
        require(std::isfinite(value), "parameters are numbers");
}

// New are, at the most, the plot settings, the sample, an entry of the list that was missing, and
// the configuration that could not be read.
void requireItsOwnFiles(const std::map<std::string, std::string>& before,
                        const std::map<std::string, std::string>& after) {
    std::size_t others = 0;
    for (const auto& [path, content] : after) {
        if (before.count(path) != 0) continue;
        if (path == "/app/kelvo.cfg.old")
            require(content == before.at("/app/kelvo.cfg"), "what can't be read is kept");
        else if (path != "/app/plot.cfg" && path != "/app/data/test.dat")
            ++others;
    }
    require(others <= 1, "a start makes its own files and no other");
}

// Starts and closes; what kelvo.cfg holds then, or nothing after a fault.
std::optional<std::string> startAndClose(testing::MemoryDisk& disk) {
    WholeForm form(disk);
    if (form.startFault) return std::nullopt;
    requireNumbers(form.window.state().Cfg);
    require(!form.close().has_value(), "what a start fills in can be saved");
    return disk.bytes("/app/kelvo.cfg");
}

// Reads and writes; what kelvo.cfg holds then, or nothing after a fault.
std::optional<std::string> readAndWrite(testing::MemoryDisk& disk) {
    ProgramState state{.applicationFolder = "/app",
                       .CfgPath = "/app/kelvo.cfg",
                       .CorPath = "/app/kelvo.cor",
                       .RecentFiles = {"", "/app/data/test.DAT"},
                       .Cfg = {},
                       .plotCfg = {},
                       .conversion = {},
                       .saved = {}};
    try {
        readConfiguration(state, disk);
    } catch (const RuntimeFault&) {
        return std::nullopt;
    }
    requireNumbers(state.Cfg);
    testing::RecordingMessages messages;
    WriteCfgFile(state, disk, messages);
    require(messages.shown.empty(), "what was read can be written");
    return disk.bytes("/app/kelvo.cfg");
}

using Session = std::optional<std::string>(testing::MemoryDisk&);

void checkSessions(Session& session, testing::MemoryDisk disk) {
    const auto before = disk.files;
    const auto first = session(disk);
    requireItsOwnFiles(before, disk.files);
    if (!first) return;
    auto lastButOne = first;
    auto last = session(disk);
    require(last.has_value(), "the program starts on what it wrote");
    // A path with quotes and a comma is written bare, and each start takes a quote off its front.
    // Of five recent files a start exchanges the second and the third: required.
    auto mayChange = 2 + std::count(first->begin(), first->end(), '"');
    for (auto next = session(disk); next != last && next != lastButOne; next = session(disk)) {
        require(mayChange-- > 0, "what the program writes settles");
        lastButOne = std::exchange(last, next);
    }
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
    for (const char* name : {"a", "b", "c", "d"})
        disk.putText(std::string("/app/") + name + ".dat", "");
    disk.putBytes("/app/kelvo.cfg", std::string(textOf(bytes, size)));
    checkSessions(readAndWrite, disk);
    if (takesTheWholeForm(textOf(bytes, size))) checkSessions(startAndClose, disk);
    return 0;
}
