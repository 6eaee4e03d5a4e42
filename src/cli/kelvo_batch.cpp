// kelvo-batch: runs of data files from a shell.
#include <cstdio>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "batch/run_batch.h"
#include "cli/check_files.h"
#include "cli/command_line.h"
#include "cli/progress_bar.h"
#include "cli/shared_files.h"
#include "cli/terminal_line.h"
#include "common/application_folder.h"
#include "common/disk.h"
#include "common/one_line.h"
#include "common/paths.h"
#include "common/run_time_fault.h"
#include "common/shown_line.h"
#include "common/standard_streams.h"
#include "exchange/load_point_files.h"
#include "exchange/table_export.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

using namespace kelvo;

constexpr int kRunEnded = 0;
constexpr int kRunTimeFault = 1;
constexpr int kWrongUsage = 2;
constexpr int kNothingFound = 0;
constexpr int kSomethingFound = 1;
constexpr int kNotRead = 2;

constexpr std::size_t kManyFiles = 5;  // from so many on a progress bar is worth its line

void printUsage(const std::string& complaint) {
    print(stderr, shownLine("kelvo-batch: " + complaint) + "\n" + usageText());
}

// Of a line that begins with the name of its data file.
constexpr std::size_t kLongestPrefix = 500;

// Lines of standard error, each after the name of its data file if there are several.
class StandardError {
public:
    explicit StandardError(ProgressBar& bar) : bar_(bar) {}

    void setName(const std::string& name) { prefix_ = shownLine(name, kLongestPrefix) + ": "; }

    void line(const std::string& text) {
        bar_.clear();
        print(stderr, prefix_ + shownLine(text, kLongestShownLine - prefix_.size()) + "\n");
    }

private:
    ProgressBar& bar_;
    std::string prefix_;
};

// Each text on one line, a line break inside as one blank.
class StandardErrorMessages final : public MessageBoxes {
public:
    StandardErrorMessages(StandardError& error, bool quiet) : error_(error), quiet_(quiet) {}

    Answer show(const Message& message) override {
        if (quiet_) return Answer::Ok;
        error_.line("message: " + oneLine(message.text));
        return Answer::Ok;
    }

private:
    StandardError& error_;
    bool quiet_;
};

// Does the work and says whether it ended without a run-time fault.
template <typename Work>
bool ends(const Work& work, StandardError& error) {
    try {
        work();
        return true;
    } catch (const RuntimeFault& fault) {
        error.line("run-time error " + std::to_string(fault.number()) + ": " + fault.text());
    } catch (const std::bad_alloc&) {
        error.line("run-time error 7: 메모리가 모자랍니다");
    }
    return false;
}

void copyFile(Disk& disk, const std::string& from, const std::string& to) {
    const auto source = disk.openForReading(from);
    const auto target = disk.openForWriting(to);
    std::string buffer(65536, '\0');
    while (const std::size_t count = source->read(buffer))
        target->write(std::string_view(buffer).substr(0, count));
    target->close();
}

// Sees whether a run came so far that its detail file is of this run.
class DetailWatch final : public RunView {
public:
    void detailIsOpen() override { isOpen = true; }

    bool isOpen = false;
};

// What killed programs left beside the files of this call.
void tidyUp(Disk& disk, const CommandLine& line, const std::string& folder) {
    std::set<std::string> folders{folder};
    for (const std::string& data : line.dataFiles) {
        const std::size_t separator = data.rfind(kPathSeparator);
        folders.insert(separator == std::string::npos ? "." : data.substr(0, separator + 1));
    }
    for (const std::string& name : folders) disk.tidy(name);
}

// True if every file that was asked for is written.
bool exportAll(const PointTable& points, const std::vector<std::string>& paths,
               StandardError& error) {
    bool good = true;
    for (const std::string& path : paths) {
        try {
            exportTables(points, path);
        } catch (const ExchangeFault& fault) {
            error.line(std::string("export: ") + fault.what());
            good = false;
        }
    }
    return good;
}

// Every file is a run of its own: nothing of one shows in another.
int runAll(const CommandLine& line, const std::string& folder, StandardError& error,
           ProgressBar& bar) {
    const bool several = line.dataFiles.size() > 1;
    const std::string detail = folder + kPathSeparator + kDetailFile;
    const std::string known = folder + kPathSeparator + kKnownPointsFile;
    PlatformDisk disk(Pipes::Wait);
    StandardErrorMessages messages(error, line.quiet);
    if (const auto complaint = complaintAboutSharedFiles(disk, line.dataFiles, detail, known)) {
        printUsage(*complaint);
        return kWrongUsage;
    }
    if (!line.exports.empty()) {
        std::optional<std::string> complaint =
            complaintAboutExports(disk, line.dataFiles.front(), line.exports, detail, known);
        try {
            static_cast<void>(loadPointFiles());
        } catch (const ExchangeFault& fault) {
            complaint = fault.what();
        }
        if (complaint) {
            print(stderr, shownLine("kelvo-batch: " + *complaint) + "\n");
            return kWrongUsage;
        }
    }
    tidyUp(disk, line, folder);

    bool good = true;
    DetailWatch last;
    std::size_t done = 0;
    for (const std::string& data : line.dataFiles) {
        bar.show(done++, data);
        if (several) error.setName(data);
        const RunPlaces places{
            .dataFile = data, .detPath = several ? detailBeside(data) : detail, .CorPath = known};
        const auto state = std::make_unique<ConversionState>();
        last = {};
        const bool ended = ends([&] { RunBatch(*state, places, last, disk, messages); }, error);
        good &= ended;
        if (ended) good &= exportAll(state->points, line.exports, error);
    }
    // As ever, kelvo.det is that of the last run, also where a fault ended it.
    const std::string lastDetail = detailBeside(line.dataFiles.back());
    if (several && last.isOpen && !disk.sameFile(lastDetail, detail))
        good &= ends([&] { copyFile(disk, lastDetail, detail); }, error);
    return good ? kRunEnded : kRunTimeFault;
}

// Findings are what was asked for and go to standard output.
int checkAll(const CommandLine& line, const std::string& folder) {
    PlatformDisk disk;
    const CheckOutput output{.finding = [](const std::string& text) { print(stdout, text + "\n"); },
                             .failure =
                                 [](const std::string& text) {
                                     print(stderr, shownLine("kelvo-batch: " + text) + "\n");
                                 }};
    switch (checkFiles(line.dataFiles, folder + kPathSeparator + kKnownPointsFile, disk, output)) {
        case CheckResult::Clean:
            return kNothingFound;
        case CheckResult::Found:
            return kSomethingFound;
        case CheckResult::NotRead:
            break;
    }
    return kNotRead;
}

int runCommand(int argc, char** argv) {
#ifdef _WIN32
    SetConsoleOutputCP(CP_UTF8);
#endif
    const CommandLineReading reading = readCommandLine(argumentsOfProcess(argc, argv));
    if (!reading.line) {
        printUsage(reading.complaint);
        return kWrongUsage;
    }
    const CommandLine& line = *reading.line;
    if (line.wish == CommandLine::Wish::Help) {
        print(stdout, helpText());
        return kRunEnded;
    }
    if (line.wish == CommandLine::Wish::Version) {
        print(stdout, "kelvo-batch " KELVO_VERSION "\n");
        return kRunEnded;
    }
    const bool checks = line.wish == CommandLine::Wish::Check;
    ProgressBar bar(line.dataFiles.size(), !line.quiet && !checks &&
                                               line.dataFiles.size() >= kManyFiles &&
                                               standardErrorIsTerminal());
    StandardError error(bar);
    std::string folder;
    const bool folderStands = ends(
        [&] {
            folder = line.applicationFolder ? *line.applicationFolder : findApplicationFolder();
            if (!line.applicationFolder && !checks) makeApplicationFolder(folder);
        },
        error);
    if (!folderStands) return checks ? kNotRead : kRunTimeFault;
    return checks ? checkAll(line, folder) : runAll(line, folder, error, bar);
}

}  // namespace

int main(int argc, char** argv) {
    secureStandardStreams();
    try {
        return runCommand(argc, argv);
    } catch (const std::bad_alloc&) {
        // Memory may have ended before there was a line to say so in.
        std::fputs("run-time error 7: 메모리가 모자랍니다\n", stderr);
        return kRunTimeFault;
    }
}
