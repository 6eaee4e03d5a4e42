#include "cli/convert_files.h"

#include <unistd.h>

#include <array>

#include "common/disk.h"
#include "common/letter_case.h"
#include "common/run_time_fault.h"
#include "convert/delimited_sink.h"
#include "convert/delimited_source.h"
#include "convert/file_identity.h"
#include "convert/refusal.h"
#include "convert/whole_output.h"
#include "library/definition_text.h"
#include "library/text_bytes.h"

namespace kelvo {

namespace {

constexpr std::string_view kStream = "-";
constexpr std::size_t kLargestDefinition = std::size_t{64} << 20U;

template <class Work>
auto orRefusal(const Work& work) {
    try {
        return work();
    } catch (const RuntimeFault& fault) {
        throw Refusal(fault.text());
    }
}

std::string textOfFile(const std::string& path) {
    return orRefusal([&path] {
        PlatformDisk disk;
        const auto file = disk.openForReading(path);
        std::string bytes;
        std::array<char, 16384> piece;
        while (const std::size_t count = file->read(piece)) {
            bytes.append(piece.data(), count);
            if (bytes.size() > kLargestDefinition)
                throw Refusal("파일이 너무 큽니다 (" + path + ")");
        }
        return textOfBytes(bytes);
    });
}

std::optional<FileIdentity> identityOf(const std::string& name, int stream) {
    return name == kStream ? identityOfStream(stream) : identityOfFile(name);
}

// Written and read by a module of their own.
void requireText(const std::string& name) {
    constexpr std::array<std::string_view, 8> kVectorFormats{".GPKG", ".GEOJSON", ".SHP",  ".KML",
                                                             ".GPX",  ".DXF",     ".XLSX", ".ODS"};
    const std::string capitals = upperCased(name);
    for (const std::string_view format : kVectorFormats)
        if (capitals.ends_with(format))
            throw Refusal("vector formats aren't part of this build (" + name + ")");
}

}  // namespace

PointConverter converterOf(const ConvertCommandLine& line) {
    DefinitionText text;
    if (line.parameters) {
        text.parameters = textOfFile(*line.parameters);
        text.parametersName = *line.parameters;
    }
    if (line.knownPoints) {
        text.knownPoints = textOfFile(*line.knownPoints);
        text.knownPointsName = *line.knownPoints;
    }
    return converterOf(text);
}

void requireFilesOfTheirOwn(const ConvertCommandLine& line) {
    const auto written = identityOf(line.output, STDOUT_FILENO);
    if (!written) return;
    const auto require = [&](const std::optional<FileIdentity>& read, const std::string& what) {
        if (read && read->isSameFile(*written))
            throw Refusal("OUTPUT and " + what + " are the same file" +
                          (line.output == kStream ? "" : " (" + line.output + ")"));
    };
    require(identityOf(line.input, STDIN_FILENO), "INPUT");
    if (line.parameters) require(identityOfFile(*line.parameters), "the file of --parameters");
    if (line.knownPoints) require(identityOfFile(*line.knownPoints), "the file of --known-points");
}

std::unique_ptr<RowSource> openSource(const ConvertCommandLine& line) {
    requireText(line.input);
    const auto identity = identityOf(line.input, STDIN_FILENO);
    return orRefusal([&]() -> std::unique_ptr<RowSource> {
        PlatformDisk disk;
        return std::make_unique<DelimitedSource>(
            line.input == kStream ? standardInput() : disk.openForReading(line.input), line.columns,
            identity ? identity->size : 0);
    });
}

std::unique_ptr<RowSink> openSink(const ConvertCommandLine& line) {
    requireText(line.output);
    return orRefusal([&]() -> std::unique_ptr<RowSink> {
        return std::make_unique<DelimitedSink>(
            line.output == kStream ? standardOutput() : wholeFile(line.output), columnsOf(line.to),
            line.anglesOut);
    });
}

}  // namespace kelvo
