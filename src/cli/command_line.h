// The command line of kelvo-batch.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kelvo {

struct CommandLine {
    enum class Wish { Convert, Check, Help, Version };

    Wish wish = Wish::Convert;
    std::optional<std::string> applicationFolder;  // without a trailing separator
    bool quiet = false;
    std::vector<std::string> dataFiles;
    std::vector<std::string> exports;  // each ends in the name of a vector format
};

// A command line that is understood, or what is wrong with it, in one sentence.
struct CommandLineReading {
    std::optional<CommandLine> line;
    std::string complaint;
};

// Reads the arguments after the program's name. Refused: no data file, an unknown option, "-"
// for standard input, an export of several data files or to a file whose ending names no vector
// format, a check that exports.
[[nodiscard]] CommandLineReading readCommandLine(std::span<const std::string> arguments);

// The arguments of this process after the program's name, in UTF-8 on every platform.
[[nodiscard]] std::vector<std::string> argumentsOfProcess(int argc, char** argv);

[[nodiscard]] std::string usageText();
[[nodiscard]] std::string helpText();

}  // namespace kelvo
