#include "batch/run_batch.h"

#include <array>

#include "batch/current_run.h"
#include "batch/run_commands.h"
#include "batch/run_notes.h"
#include "common/paths.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

// Required: the end of the file is looked at before a line is carried out, so that the line read
// last never is, unless a block of points has read it.
void runCommands(CurrentRun& run) {
    run.readLine();
    while (!run.data.atEnd()) {
        run.lineHeld = false;
        if (!carryOutCommand(run)) break;
        if (!run.lineHeld) run.readLine();
    }
    writeTablesOnce(run);
}

// Lets the view know of each box first.
class AnnouncedMessages final : public MessageBoxes {
public:
    AnnouncedMessages(MessageBoxes& messages, RunView& view) : messages_(messages), view_(view) {}

    Answer show(const Message& message) override {
        view_.messageComes(run == nullptr ? 1 : run->lineNumber, message.text);
        return messages_.show(message);
    }

    const CurrentRun* run = nullptr;

private:
    MessageBoxes& messages_;
    RunView& view_;
};

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
    requireFilesOfTheirOwn(disk, std::array{outPath, places.detPath},
                           std::array{places.dataFile, places.CorPath});
    TextWriter out(disk, outPath);
    TextWriter det(disk, places.detPath);
    view.detailIsOpen();

    state.ParaDirty = true;
    AnnouncedMessages announced(messages, view);
    CurrentRun run{.state = state,
                   .disk = disk,
                   .messages = announced,
                   .data = data,
                   .files = {.out = out, .det = det, .CorPath = places.CorPath}};
    announced.run = &run;
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
