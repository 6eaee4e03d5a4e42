// A session of work: a script of form_driver on a disk in memory, with recording services.
#include <exception>

#include "drivers/form_script.h"
#include "fuzz/whole_form.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "dialog /app/data/work.dat",
    "dialog /app/missing/x.dat",
    "dialog cancel",
    "answer yes",
    "answer no",
    "answer ok",
    "click mnuFileItem(0)",
    "click mnuFileItem(1)",
    "click mnuFileItem(2)",
    "click mnuFileItem(7)",
    "click mnuBatchGo",
    "click mnuCorrEdit",
    "click mnuOneOpen",
    "click mnuPrintBrief",
    "click cmdPlot",
    "click cmdPrintMode",
    "click cmdModeSave",
    "click cmdModeCancel",
    "click cmdClose",
    "click cmdOneClose",
    "click mnuBatchEdit",
    "click mnuCorrShow",
    "click mnuEditorSelect",
    "click mnuHelpFile",
    "click mnuAbout",
    "click mnuPrintClear",
    "click mnuPrintDetail",
    "click mnuPrintMode",
    "click mnuPrintShow",
    "click mnuPrinterSelect",
    "click optFast",
    "choose cmbFont 3",
    "choose cmbFontStyle 2",
    "choose cmbSize 4",
    "check chk1 on",
    "check chk2 on",
    "click cmdSave",
    "click cmdSaveAs",
    "click cmdShow",
    "click cmdPrint",
    "click cmdW2B",
    "click cmdB2W",
    "click cmdGP2TM",
    "click cmdTM2GP",
    "click cmdTM2UTM",
    "click cmdUTM2TM",
    "click optWdeg",
    "click optBdeg",
    "click optWdms",
    "click optBursa",
    "click optMolod",
    "click optUser",
    "click optUUser",
    "click optWest",
    "click optUTM3",
    "click OptCorr",
    "click OptNoCorr",
    "click optAdd",
    "click optNotAdd",
    "click optWGS",
    "click optUGS",
    "click optXY",
    "click optAuto",
    "click optManual",
    "choose cmb7Para 2",
    "focus txtWdegPhi",
    "type txtWdegPhi 37.5",
    "type txtWdegLam 127.25",
    "type txtWdegTH 100.5",
    "type txtWdmsPhi 37.3",
    "type txtWdmsLam 127.15",
    "type txtdX 115.8",
    "type txta 6377397.155",
    "type txtf 299.1528128",
    "type txtPhi0 38",
    "type txtS0 1",
    "type txtUS0 0.9996",
    "type txtFontSize 8",
    "type Richtxt WGS a 37 127 1\\r\\n    b 36 128 2\\r\\nend\\r\\n\\r\\n",
    "type Richtxt ",
    "get PointCount",
    "get Cfg.dX",
    "get PlotCfg.XY.Span",
    "get PointTable(1).TmX",
    "get Richtxt.text",
    "calls screen",
    "calls printer",
    "printfile /app/data/test.DAT",
    "close",
};

constexpr int kMostCommands = 60;

// Writing the sample and the settings anew for every input would take a tenth of the time.
const std::map<std::string, std::string>& filesOfAFirstSession() {
    static const auto files = [] {
        testing::MemoryDisk disk;
        addPlaces(disk);
        WholeForm form(disk);
        form.close();
        return disk.files;
    }();
    return files;
}

struct Session {
    explicit Session(testing::MemoryDisk& disk) : form(disk) {}

    void run(std::string_view line) {
        script.run(line);
        form.services.screenCalls.clear();
        form.services.printerCalls.clear();
    }

    WholeForm form;
    testing::FormScript script{form.window, form.services, [](const std::string&) {}};
};

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo::fuzz;
    kelvo::testing::MemoryDisk disk;
    addPlaces(disk);
    if (!takesTheWholeForm(textOf(data, size))) disk.files = filesOfAFirstSession();
    Session session(disk);
    require(!session.form.startFault, "the first start succeeds");
    std::string_view rest = textOf(data, size);
    try {
        for (int i = 0; i < kMostCommands && !rest.empty() && !session.form.services.ended; ++i) {
            const std::size_t end = rest.find('\n');
            session.run(rest.substr(0, end));
            rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        }
    } catch (const kelvo::RuntimeFault& fault) {
        // The program ends with its report: the only way out but the closing sequence.
        require(!fault.text().empty(), "a fault says what went wrong");
    }
    // Only a dialog or a file to print names a place outside the application folder.
    if (textOf(data, size).find("dialog") == std::string_view::npos &&
        textOf(data, size).find("printfile") == std::string_view::npos)
        for (const auto& [path, bytes] : disk.files)
            require(path.starts_with("/app/"), "files are written in their folder: ", path);
    return 0;
}
