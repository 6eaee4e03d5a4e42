// kelvo-batch: one run of a data file from a shell.
#include <cstdio>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "batch/run_batch.h"
#include "common/application_folder.h"
#include "common/disk.h"
#include "common/run_time_fault.h"

namespace {

using namespace kelvo;

constexpr int kRunEnded = 0;
constexpr int kRunTimeFault = 1;
constexpr int kWrongUsage = 2;

constexpr const char* kUsage = "usage: kelvo-batch [--app-folder DIR] DATA.dat\n";

struct CommandLine {
    std::optional<std::string> applicationFolder;
    std::string dataFile;
};

void print(std::FILE* stream, const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

// Each text on one line of standard error, a line break inside as one blank.
class StandardErrorMessages final : public MessageBoxes {
public:
    Answer show(const Message& message) override {
        std::string line = "message: " + message.text + "\n";
        for (std::size_t at = line.find("\r\n"); at != std::string::npos; at = line.find("\r\n"))
            line.replace(at, 2, " ");
        print(stderr, line);
        return Answer::Ok;
    }
};

std::optional<CommandLine> readCommandLine(std::span<char* const> arguments) {
    CommandLine line;
    bool hasData = false;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--app-folder") {
            if (++i == arguments.size()) return std::nullopt;
            line.applicationFolder = arguments[i];
        } else if (argument.size() > 1 && argument.front() == '-') {
            return std::nullopt;
        } else {
            if (hasData || argument.empty() || argument == "-") return std::nullopt;
            hasData = true;
            line.dataFile = argument;
        }
    }
    if (!hasData) return std::nullopt;
    return line;
}

std::string withoutTrailingSeparator(std::string folder) {
    while (folder.size() > 1 && folder.back() == kPathSeparator) folder.pop_back();
    return folder;
}

int run(const CommandLine& line) {
    std::string folder;
    if (line.applicationFolder) {
        folder = withoutTrailingSeparator(*line.applicationFolder);
    } else {
        folder = findApplicationFolder();
        makeApplicationFolder(folder);
    }
    const RunPlaces places{.dataFile = line.dataFile,
                           .detPath = folder + kPathSeparator + "kelvo.det",
                           .CorPath = folder + kPathSeparator + "kelvo.cor"};
    ConversionState state;
    RunView noScreen;
    PlatformDisk disk;
    StandardErrorMessages messages;
    RunBatch(state, places, noScreen, disk, messages);
    return kRunEnded;
}

}  // namespace

int main(int argc, char** argv) {
    const std::span<char* const> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() == 2 && std::string_view(arguments[1]) == "--help") {
        print(stdout,
              std::string(kUsage) +
                  "\n"
                  "Converts the points of a data file. The result stands in DATA.out beside\n"
                  "it, the detail of the correction in kelvo.det in the application folder,\n"
                  "where kelvo.cor holds the known points.\n"
                  "\n"
                  "  --app-folder DIR  use DIR as the application folder\n"
                  "  --help            print this and end\n"
                  "  --version         print the version and end\n"
                  "\n"
                  "Exit code: 0 the run ended, 1 run-time fault, 2 wrong usage.\n");
        return kRunEnded;
    }
    if (arguments.size() == 2 && std::string_view(arguments[1]) == "--version") {
        print(stdout, "kelvo-batch " KELVO_VERSION "\n");
        return kRunEnded;
    }
    const std::optional<CommandLine> line = readCommandLine(arguments);
    if (!line) {
        print(stderr, kUsage);
        return kWrongUsage;
    }
    try {
        return run(*line);
    } catch (const RuntimeFault& fault) {
        print(stderr,
              "run-time error " + std::to_string(fault.number()) + ": " + fault.text() + "\n");
    } catch (const std::bad_alloc&) {
        print(stderr, "run-time error 7: 메모리가 모자랍니다\n");
    }
    return kRunTimeFault;
}
