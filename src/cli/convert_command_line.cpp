#include "cli/convert_command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <thread>

#include "convert/coordinate_text.h"
#include "convert/refusal.h"

namespace kelvo {

namespace {

// More threads than any machine has work for; each holds a block or two of rows.
constexpr unsigned kMostJobs = 64;

// The words of the command line, before they are looked at.
struct Words {
    std::string from;
    std::string to = "all";
    std::string anglesIn = "deg";
    std::string anglesOut = "deg";
    std::string parameters;
    std::string knownPoints;
    std::string columns;
    std::string geometry;
    std::string jobs;
    bool quiet = false;
    bool help = false;
    bool version = false;
    std::vector<std::string> names;
};

System givenSystem(const std::string& word) {
    if (word.empty()) throw Refusal("--from must be given: wgs, user, tm or utm");
    if (const auto system = systemOf(word)) return *system;
    throw Refusal("--from is wgs, user, tm or utm, not " + quotedPiece(word));
}

OutputSystem outputSystem(const std::string& word, const std::string& option) {
    if (const auto system = outputSystemOf(word)) return *system;
    throw Refusal(option + " knows wgs, user, tm, utm and wgsutm, not " + quotedPiece(word));
}

std::vector<OutputSystem> outputSystems(const std::string& list) {
    if (list == "all") return {kAllOutputSystems.begin(), kAllOutputSystems.end()};
    std::vector<OutputSystem> systems;
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        const OutputSystem system = outputSystem(list.substr(start, end - start), "--to");
        if (std::find(systems.begin(), systems.end(), system) != systems.end())
            throw Refusal("--to names " + std::string(wordOf(system)) + " twice");
        systems.push_back(system);
        start = end + 1;
    }
    return systems;
}

AngleForm givenAngles(const std::string& word) {
    if (word == "deg") return AngleForm::Degrees;
    if (word == "dms") return AngleForm::Dms;
    throw Refusal("--angles-in is deg or dms, not " + quotedPiece(word));
}

AngleForm writtenAngles(const std::string& word) {
    if (word == "deg") return AngleForm::Degrees;
    if (word == "dms") return AngleForm::Dms;
    if (word == "blanks") return AngleForm::Blanks;
    if (word == "hyphens") return AngleForm::Hyphens;
    throw Refusal("--angles-out is deg, dms, blanks or hyphens, not " + quotedPiece(word));
}

unsigned numberOfJobs(const std::string& word) {
    unsigned jobs = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), jobs);
    const bool isWhole = end == word.data() + word.size() && !word.empty();
    if (isWhole && error == std::errc::result_out_of_range) return kMostJobs;
    if (!isWhole || error != std::errc{} || jobs == 0)
        throw Refusal("--jobs is a whole number of at least 1, not " + quotedPiece(word));
    return std::min(jobs, kMostJobs);
}

// CLI11 takes the argument after "--columns=" for its value.
void requireValues(std::span<const std::string> arguments) {
    for (const std::string& argument : arguments) {
        if (argument == "--") return;
        if (argument.starts_with("--") && argument.find('=') == argument.size() - 1)
            throw Refusal(argument.substr(0, argument.size() - 1) + " needs a value");
    }
}

Words readWords(std::span<const std::string> arguments) {
    requireValues(arguments);
    Words words;
    CLI::App app;
    app.set_help_flag();
    app.allow_extras();
    app.add_flag("--help", words.help)->disable_flag_override();
    app.add_flag("--version", words.version)->disable_flag_override();
    app.add_flag("--quiet", words.quiet)->disable_flag_override();
    std::vector<std::pair<CLI::Option*, std::string>> options;
    const auto option = [&](const std::string& name, std::string& value) {
        options.emplace_back(
            app.add_option(name, value)->multi_option_policy(CLI::MultiOptionPolicy::TakeLast),
            name);
    };
    option("--from", words.from);
    option("--to", words.to);
    option("--angles-in", words.anglesIn);
    option("--angles-out", words.anglesOut);
    option("--parameters", words.parameters);
    option("--known-points", words.knownPoints);
    option("--columns", words.columns);
    option("--geometry", words.geometry);
    option("--jobs", words.jobs);
    std::vector<std::string> backwards(arguments.rbegin(), arguments.rend());
    try {
        app.parse(backwards);
    } catch (const CLI::ArgumentMismatch& mismatch) {
        for (const auto& [known, name] : options)
            if (!arguments.empty() && arguments.back() == name)
                throw Refusal(name + " needs a value");
        throw Refusal(mismatch.what());
    } catch (const CLI::ParseError& error) {
        throw Refusal(error.what());
    }
    for (const auto& [known, name] : options) {
        if (known->count() > 1) throw Refusal(name + " is given twice");
        if (known->count() == 1 && known->results().front().empty())
            throw Refusal(name + " needs a value");
    }
    words.names = app.remaining();
    return words;
}

// "-" and what follows "--" are names; anything else that begins with "-" is no option of ours.
void requireNames(const std::vector<std::string>& names, std::span<const std::string> arguments) {
    const auto ended = std::find(arguments.begin(), arguments.end(), "--");
    for (const std::string& name : names) {
        if (name.empty()) throw Refusal("a file has an empty name");
        const bool isOption = name.size() > 1 && name.front() == '-';
        if (isOption && std::find(arguments.begin(), ended, name) != ended)
            throw Refusal("unknown option " + quotedPiece(name));
    }
    if (names.size() > 2) throw Refusal("more than an INPUT and an OUTPUT are given");
}

ConvertCommandLine lineOf(Words words, std::span<const std::string> arguments) {
    ConvertCommandLine line;
    if (words.help || words.version) {
        line.wish = words.help ? ConvertCommandLine::Wish::Help : ConvertCommandLine::Wish::Version;
        return line;
    }
    std::erase(words.names, "--");
    requireNames(words.names, arguments);
    line.from = givenSystem(words.from);
    line.to = outputSystems(words.to);
    line.anglesIn = givenAngles(words.anglesIn);
    line.anglesOut = writtenAngles(words.anglesOut);
    if (!words.parameters.empty()) line.parameters = words.parameters;
    if (!words.knownPoints.empty()) line.knownPoints = words.knownPoints;
    if (!words.columns.empty()) line.columns = columnWishesOf(words.columns);
    if (!words.geometry.empty()) line.geometry = outputSystem(words.geometry, "--geometry");
    line.jobs = words.jobs.empty() ? std::clamp(std::thread::hardware_concurrency(), 1U, kMostJobs)
                                   : numberOfJobs(words.jobs);
    line.quiet = words.quiet;
    if (!words.names.empty()) line.input = words.names[0];
    if (words.names.size() > 1) line.output = words.names[1];
    return line;
}

}  // namespace

ConvertCommandLineReading readConvertCommandLine(std::span<const std::string> arguments) {
    try {
        return {.line = lineOf(readWords(arguments), arguments), .complaint = {}};
    } catch (const Refusal& refusal) {
        return {.line = std::nullopt, .complaint = refusal.what()};
    }
}

std::string convertUsageText() {
    return "usage: kelvo-convert --from SYSTEM [--to SYSTEM,...] [options] [INPUT [OUTPUT]]\n";
}

std::string convertHelpText() {
    return convertUsageText() +
           "\n"
           "Converts points in delimited text, as many as there are, and gives each the numbers\n"
           "that a run of a data file with this point alone would print. Without INPUT, or\n"
           "with -, standard input is read; without OUTPUT, or with -, standard output is\n"
           "written. OUTPUT takes its place whole when all is written.\n"
           "\n"
           "Names that end in gpkg, geojson, shp, kml, gpx, dxf, xlsx or ods are files of other\n"
           "programs, one point a row (package kelvo-exchange). There x is east or longitude.\n"
           "\n"
           "  --from SYSTEM         wgs, user, tm or utm: the system of INPUT\n"
           "  --to SYSTEM,...       wgs, user, tm, utm, wgsutm, or all (default)\n"
           "  --angles-in FORM      deg (default) or dms (ddd.mmssss)\n"
           "  --angles-out FORM     deg (default), dms, blanks or hyphens\n"
           "  --parameters FILE     lines of a data file that change parameters\n"
           "  --known-points FILE   a kelvo.cor, for parameters with CORRECTION\n"
           "  --columns A,B,C,D     the columns of name, first, second and third value, by\n"
           "                        name or by number from 1; - for none (default 1,2,3,4)\n"
           "  --geometry SYSTEM     the system of the places in a vector file (default: the\n"
           "                        first of --to)\n"
           "  --jobs N              threads (default: all cores)\n"
           "  --quiet               no progress bar, no summary\n"
           "  --help                print this and end\n"
           "  --version             print the version and end\n"
           "\n"
           "Exit code: 0 all points converted, 1 some not, 2 wrong usage, a bad definition, or\n"
           "a file that can't be read or written.\n";
}

}  // namespace kelvo
