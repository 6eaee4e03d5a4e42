#include "batch/run_batch.h"

#include "batch/batch_run.h"
#include "batch/run_commands.h"
#include "batch/run_notes.h"
#include "common/paths.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

// A name that would make a run empty a file it is about to read is refused as one already open.
void refuseIfSame(Disk& disk, const std::string& written, const std::string& read) {
    if (disk.sameFile(written, read))
        raise(Fault::FileAlreadyOpen, "파일이 이미 열려 있습니다 (" + written + ")");
}

void runCommands(BatchRun& run) {
    run.readLine();
    while (!run.data.atEnd()) {
        run.lineHeld = false;
        if (!carryOutCommand(run)) break;
        if (!run.lineHeld) run.readLine();
    }
    writeTablesOnce(run);
}

}  // namespace

std::string resultFileOf(const std::string& dataFile) {
    return genSub::StripExtension(dataFile) + ".out";
}

void RunBatch(ConversionState& state, const RunPlaces& places, RunView& view, Disk& disk,
              MessageBoxes& messages) {
    state.points.PointCount = 0;
    state.known.CorrCount = 0;
    view.runBegins();

    const std::string outPath = resultFileOf(places.dataFile);
    TextReader data(disk, places.dataFile);
    refuseIfSame(disk, outPath, places.dataFile);
    refuseIfSame(disk, outPath, places.CorPath);
    TextWriter out(disk, outPath);
    refuseIfSame(disk, places.detPath, places.dataFile);
    refuseIfSame(disk, places.detPath, places.CorPath);
    refuseIfSame(disk, places.detPath, outPath);
    TextWriter det(disk, places.detPath);

    state.ParaDirty = true;
    BatchRun run{.state = state,
                 .disk = disk,
                 .messages = messages,
                 .data = data,
                 .files = {.out = out, .det = det, .CorPath = places.CorPath}};
    try {
        PrintRunNotes(out);
        runCommands(run);
        det.close();
        out.close();
    } catch (RuntimeFault& fault) {
        fault.addPlace(places.dataFile + " " + std::to_string(run.lineNumber) + "번째 줄");
        throw;
    }

    try {
        view.showResult();
    } catch (const RuntimeFault&) {
        messages.tell("파일을 보여주는데 에러가 발생하였습니다.");
    }
}

}  // namespace kelvo
