#include "cli/convert_files.h"

#include <unistd.h>

#include <array>

#include "common/disk.h"
#include "common/run_time_fault.h"
#include "convert/delimited_sink.h"
#include "convert/delimited_source.h"
#include "convert/file_identity.h"
#include "convert/refusal.h"
#include "convert/vector_sink.h"
#include "convert/vector_source.h"
#include "convert/whole_output.h"
#include "library/definition_text.h"
#include "library/text_bytes.h"

namespace kelvo {

namespace {

constexpr std::string_view kStream = "-";
constexpr std::size_t kLargestDefinition = std::size_t{64} << 20U;

template <class Work>
auto faultAsRefusal(const Work& work) {
    try {
        return work();
    } catch (const RuntimeFault& fault) {
        throw Refusal(fault.text());
    }
}

std::string textOfFile(const std::string& path) {
    return faultAsRefusal([&path] {
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

// How many points a file of text holds; looked at where the format of the output has a limit that
// they may pass.
std::uint64_t pointsAhead(const ConvertCommandLine& line, VectorFormat format,
                          const Definition& definition) {
    const std::uint64_t most = limitsOf(format).mostPoints;
    const auto identity = line.input == kStream ? std::nullopt : identityOfFile(line.input);
    // A point takes four bytes and a line end at least.
    if (most == 0 || !identity || identity->size / 5 <= most) return 0;
    const auto source = openSource(line, definition);
    std::uint64_t points = 0;
    for (RowBlock block; source->gather(block); block.clear()) points += block.lines.size();
    return points;
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

std::unique_ptr<RowSource> openSource(const ConvertCommandLine& line,
                                      const Definition& definition) {
    const auto format = vectorFormatOf(line.input);
    if (format && limitsOf(*format).hasGeometry) {
        if (line.columns.chosen)
            throw Refusal("--columns is for text and sheets: a " +
                          std::string(limitsOf(*format).name) + " has its points by themselves");
        if (line.anglesIn != AngleForm::Degrees)
            throw Refusal("--angles-in: a " + std::string(limitsOf(*format).name) +
                          " has its angles in decimal degrees");
        return openVectorSource(*format, line.input, line.from, definition);
    }
    if (format)
        return std::make_unique<DelimitedSource>(openSheetAsText(*format, line.input), line.columns,
                                                 0);
    const auto identity = identityOf(line.input, STDIN_FILENO);
    return faultAsRefusal([&]() -> std::unique_ptr<RowSource> {
        PlatformDisk disk;
        return std::make_unique<DelimitedSource>(
            line.input == kStream ? standardInput() : disk.openForReading(line.input), line.columns,
            identity ? identity->size : 0);
    });
}

std::unique_ptr<RowSink> openSink(const ConvertCommandLine& line, const Definition& definition) {
    if (const auto format = vectorFormatOf(line.output)) {
        return std::make_unique<VectorSink>(
            VectorOutput{.format = *format,
                         .path = line.output,
                         .systems = line.to,
                         .geometry = line.geometry,
                         .angles = line.anglesOut,
                         .points = pointsAhead(line, *format, definition)},
            definition);
    }
    if (line.geometry)
        throw Refusal("--geometry is for vector formats; OUTPUT is text (" + line.output + ")");
    return faultAsRefusal([&]() -> std::unique_ptr<RowSink> {
        return std::make_unique<DelimitedSink>(
            line.output == kStream ? standardOutput() : wholeFile(line.output), columnsOf(line.to),
            line.anglesOut);
    });
}

}  // namespace kelvo
