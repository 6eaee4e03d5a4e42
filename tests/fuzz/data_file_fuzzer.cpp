// A data file to its reports. Behind a line "@known" stands the file of known points.
#include "fuzz/data_file_lines.h"
#include "fuzz/run_checks.h"

namespace kelvo::fuzz {
std::span<const std::string_view> knownLines() {
    return kDataFileLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo::fuzz;
    const std::string_view input = textOf(bytes, size);
    const std::size_t known = input.find(kKnown);
    checkRun(std::string(input.substr(0, known)),
             known == std::string_view::npos ? std::string()
                                             : std::string(input.substr(known + kKnown.size())));
    return 0;
}
