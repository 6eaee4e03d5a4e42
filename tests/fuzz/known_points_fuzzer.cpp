// kelvo.cor, under a run that uses every number of it.
#include "fuzz/run_checks.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "k 37.35333267 126.32323448 30.1756 37.35230997 126.32395917 40.3717 1",
    "m 37.3448 126.57 40.25 37.34381009 126.57075821 51.6997 1",
    "n 36.1 128 0 36.1 128 10 2",
    "o 36.1 128 10 36.1 128 0 -2",
    "p 0 0 0 0 0 0 0",
    "q 37.3 127 1",
    "*",
    "",
    "* note",
};

constexpr const char* kData =
    "CORR\r\n"
    "WGS a 37.35333267 126.32323448 30.1756\r\n"
    "    b 36.10 128.00 80.5\r\n"
    "UGS c 37.35230997 126.32395917 40\r\n"
    "TM d 377504.2345 125963.97405 7.239\r\n"
    "zone 3\r\n"
    "OUTPUT deg\r\n"
    "WGS e 35.1 129.1 3\r\n"
    "end\r\n\r\n";

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo::fuzz;
    checkRun(kData, std::string(textOf(bytes, size)));
    return 0;
}
