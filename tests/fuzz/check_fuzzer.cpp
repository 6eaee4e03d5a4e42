// The check of a data file. After a line "@known" stands the file of known points.
#include "batch/check_data_file.h"
#include "common/code_page.h"
#include "common/utf8.h"
#include "fuzz/data_file_lines.h"
#include "fuzz/fuzz_target.h"
#include "support/batch_bench.h"

namespace kelvo::fuzz {

std::span<const std::string_view> knownLines() {
    return kDataFileLines;
}

namespace {

// A finding stands on a line of its file, its mark within the line, its text on one line.
void requirePlace(const Finding& finding, std::string_view text) {
    const std::vector<TextLine> lines = linesOf(text);
    const auto count = static_cast<long>(lines.size());
    require(finding.line >= 1 && finding.line <= std::max(1L, count), "a finding has a line");
    require(!finding.text.empty(), "a finding has a text");
    require(finding.text.find_first_of("\r\n\x1b") == std::string::npos, "a text is one line");
    if (finding.column == 0) return;
    const std::string_view line = lines[static_cast<std::size_t>(finding.line) - 1].text;
    const auto length = static_cast<int>(characterCount(line));
    require(
        finding.column >= 1 && finding.length >= 1 && finding.column - 1 + finding.length <= length,
        "a mark lies within its line");
}

bool endsInAFault(const std::string& data, const std::string& known) {
    testing::BatchBench bench;
    bench.disk.putBytes(bench.places.dataFile, data);
    bench.disk.putBytes(bench.places.CorPath, known);
    bench.runFile();
    return bench.fault != 0;
}

void check(const std::string& data, const std::string& known) {
    const std::string text = decodeCodePage(data);
    const KnownPointsFile file{.path = "kelvo.cor", .text = decodeCodePage(known)};
    const std::vector<Finding> findings = checkDataFile(text, file);
    long line = 0;
    bool inData = true;
    for (const Finding& finding : findings) {
        const bool ofData = finding.in == Finding::In::DataFile;
        require(inData || !ofData, "findings of the data file come first");
        if (inData != ofData) line = 0;
        inData = ofData;
        require(finding.line >= line, "findings come by their lines");
        line = finding.line;
        requirePlace(finding, ofData ? std::string_view(text) : std::string_view(*file.text));
    }
    require(!findings.empty() || !endsInAFault(data, known), "a fault has a finding");
}

}  // namespace
}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo::fuzz;
    const std::string_view input = textOf(bytes, size);
    const std::size_t known = input.find(kKnown);
    check(std::string(input.substr(0, known)),
          known == std::string_view::npos ? std::string()
                                          : std::string(input.substr(known + kKnown.size())));
    return 0;
}
