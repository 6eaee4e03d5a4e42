// The command line of kelvo-convert.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "convert/column_choice.h"
#include "convert/output_systems.h"

namespace kelvo {

struct ConvertCommandLine {
    enum class Wish { Convert, Help, Version };

    Wish wish = Wish::Convert;
    System from = System::Wgs;
    std::vector<OutputSystem> to;
    AngleForm anglesIn = AngleForm::Degrees;
    AngleForm anglesOut = AngleForm::Degrees;
    std::optional<std::string> parameters;
    std::optional<std::string> knownPoints;
    ColumnWishes columns;
    std::optional<OutputSystem> geometry;
    unsigned jobs = 1;
    bool quiet = false;
    std::string input = "-";  // "-" for standard input and output
    std::string output = "-";
};

// A command line that is understood, or what is wrong with it, in one sentence.
struct ConvertCommandLineReading {
    std::optional<ConvertCommandLine> line;
    std::string complaint;
};

// Reads the arguments after the program's name.
[[nodiscard]] ConvertCommandLineReading readConvertCommandLine(
    std::span<const std::string> arguments);

[[nodiscard]] std::string convertUsageText();
[[nodiscard]] std::string convertHelpText();

}  // namespace kelvo
