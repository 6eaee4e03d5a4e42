#include "cli/command_line.h"

#include <string_view>

#include "common/disk.h"
#include "exchange/vector_format.h"

#ifdef _WIN32
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>
#endif

namespace kelvo {

namespace {

std::string withoutTrailingSeparator(std::string folder) {
    while (folder.size() > 1 && folder.back() == kPathSeparator) folder.pop_back();
    return folder;
}

CommandLineReading refused(std::string complaint) {
    return {.line = std::nullopt, .complaint = std::move(complaint)};
}

// "gpkg, geojson, ... or ods"
std::string vectorEndings() {
    std::string endings;
    for (const FormatLimits& format : vectorFormats()) {
        if (!endings.empty())
            endings += format.format == vectorFormats().back().format ? " or " : ", ";
        endings += format.ending;
    }
    return endings;
}

#ifdef _WIN32
std::string utf8Of(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1) return {};
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();  // the NUL that was counted
    return bytes;
}
#endif

}  // namespace

CommandLineReading readCommandLine(std::span<const std::string> arguments) {
    CommandLine line;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (optionsEnded || argument.empty() || argument.front() != '-') {
            if (argument.empty()) return refused("a data file has an empty name");
            line.dataFiles.push_back(argument);
        } else if (argument == "--") {
            optionsEnded = true;
        } else if (argument == "--help" || argument == "--version") {
            line.wish = argument == "--help" ? CommandLine::Wish::Help : CommandLine::Wish::Version;
            return {.line = line, .complaint = {}};
        } else if (argument == "--check") {
            line.wish = CommandLine::Wish::Check;
        } else if (argument == "--quiet") {
            line.quiet = true;
        } else if (argument == "--app-folder") {
            if (++i == arguments.size() || arguments[i].empty())
                return refused("--app-folder needs a folder");
            line.applicationFolder = withoutTrailingSeparator(arguments[i]);
        } else if (argument == "--export") {
            if (++i == arguments.size() || !vectorFormatOf(arguments[i]))
                return refused("--export needs a file whose name ends in " + vectorEndings());
            line.exports.push_back(arguments[i]);
        } else if (argument == "-") {
            return refused(
                "standard input can't be converted: the result stands beside the data file and "
                "takes its name from it");
        } else {
            return refused("unknown option " + argument);
        }
    }
    if (line.dataFiles.empty()) return refused("no data file is given");

    if (!line.exports.empty() && line.wish == CommandLine::Wish::Check)
        return refused("--check writes nothing, --export writes");
    if (!line.exports.empty() && line.dataFiles.size() > 1)
        return refused("--export takes the tables of one data file");
    return {.line = line, .complaint = {}};
}

std::vector<std::string> argumentsOfProcess([[maybe_unused]] int argc,
                                            [[maybe_unused]] char** argv) {
    std::vector<std::string> arguments;
#ifdef _WIN32
    // argv has lost every letter that the machine's code page lacks.
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; wide != nullptr && i < count; ++i) arguments.push_back(utf8Of(wide[i]));
    LocalFree(wide);
#else
    for (const char* argument : std::span(argv, static_cast<std::size_t>(argc)).subspan(1))
        arguments.emplace_back(argument);
#endif
    return arguments;
}

std::string usageText() {
    return "usage: kelvo-batch [--app-folder DIR] [--quiet] [--check] [--export FILE] "
           "DATA.dat...\n";
}

std::string helpText() {
    return usageText() +
           "\n"
           "Converts the points of data files. The result of DATA.dat stands beside it in\n"
           "DATA.out, the detail of the correction in kelvo.det in the application folder,\n"
           "where kelvo.cor holds the known points. With several data files the detail of\n"
           "each stands beside it, in DATA.det, and kelvo.det holds that of the last; a file\n"
           "that fails doesn't stop the others.\n"
           "\n"
           "  --app-folder DIR  use DIR as the application folder\n"
           "  --check           convert nothing and write nothing: look for slips in the data\n"
           "                    files and print them to standard output as FILE:LINE: text\n"
           "  --export FILE     write the tables' points to FILE as well, for other programs; its\n"
           "                    name ends in gpkg, geojson, shp, kml, gpx, dxf, xlsx or ods\n"
           "  --quiet           print run-time errors only: no messages, no progress bar\n"
           "  --help            print this and end\n"
           "  --version         print the version and end\n"
           "  --                what follows are data files\n"
           "\n"
           "Exit code: 0 every run ended, 1 a run-time error in one of them, 2 wrong usage.\n"
           "With --check: 0 nothing found, 1 something found, 2 wrong usage or a file that\n"
           "can't be read.\n";
}

}  // namespace kelvo
