// kelvo-convert: points without limit from a shell.
#include <csignal>
#include <cstdio>
#include <new>
#include <string>

#include "cli/command_line.h"
#include "cli/convert_command_line.h"
#include "cli/convert_files.h"
#include "cli/convert_report.h"
#include "cli/terminal_line.h"
#include "convert/refusal.h"
#include "convert/whole_output.h"
#include "library/bad_definition.h"

namespace {

using namespace kelvo;

constexpr int kAllConverted = 0;
constexpr int kSomeNot = 1;
constexpr int kNothingDone = 2;

int convert(const ConvertCommandLine& line, ConvertReport& report) {
    const PointConverter converter = converterOf(line);
    requireFilesOfTheirOwn(line);
    const auto source = openSource(line, converter.definition());
    const auto sink = openSink(line, converter.definition());
    const ConversionOfRows conversion{
        .converter = converter, .system = line.from, .angles = line.anglesIn, .jobs = line.jobs};
    const Converted all = convertRows(*source, conversion, *sink, report);
    report.end(all);
    if (!line.quiet) {
        for (const std::string& note : sink->notes()) print(stderr, note + "\n");
    }
    return all.notConverted == 0 ? kAllConverted : kSomeNot;
}

int convertOrExplain(const ConvertCommandLine& line) {
    ConvertReport report(!line.quiet && standardErrorIsTerminal(), !line.quiet);
    std::string reason;
    try {
        return convert(line, report);
    } catch (const ClosedPipe&) {
        return kAllConverted;
    } catch (const BadDefinition& bad) {
        reason = bad.what();
    } catch (const std::bad_alloc&) {
        reason = "메모리가 모자랍니다";
    } catch (const std::exception& refusal) {
        reason = refusal.what();
    }
    report.wipe();
    print(stderr, "kelvo-convert: " + reason + "\n");
    return kNothingDone;
}

}  // namespace

int main(int argc, char** argv) {
    // A closed pipe and a file that may not grow are errors of a write, which is where they are
    // looked at.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    const auto reading = readConvertCommandLine(argumentsOfProcess(argc, argv));
    if (!reading.line) {
        print(stderr, "kelvo-convert: " + reading.complaint + "\n" + convertUsageText());
        return kNothingDone;
    }
    switch (reading.line->wish) {
        case ConvertCommandLine::Wish::Help:
            print(stdout, convertHelpText());
            return kAllConverted;
        case ConvertCommandLine::Wish::Version:
            print(stdout, "kelvo-convert " KELVO_VERSION "\n");
            return kAllConverted;
        case ConvertCommandLine::Wish::Convert:
            break;
    }
    return convertOrExplain(*reading.line);
}
