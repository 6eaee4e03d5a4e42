// The texts of a definition: parameter lines, a line of "%", known points.
#include "fuzz/fuzz_target.h"
#include "library/bad_definition.h"
#include "library/definition_text.h"
#include "library/text_bytes.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "7 para",
    "115.8 -474.99 -674.11",
    "1.16 -2.31 -1.63",
    "-6.43",
    "1st 0.1 0.2 0.3",
    "zone 3",
    "add 0",
    "tm para",
    "utm para",
    "6377397.155 299.1528128",
    "38 127",
    "500000 200000",
    "1",
    "0.9996",
    "utm 123",
    "CORRECTION",
    "NOCORRECTION",
    "%",
    "k 37.35333267 126.32323448 30.1756 37.35230997 126.32395917 40.3717 1",
    "*",
    "",
};

void convertSome(const PointConverter& converter) {
    constexpr GivenPoint kGiven[] = {{.first = 37.5, .second = 127, .height = 50},
                                     {.first = 450000, .second = 200000, .height = 1e300}};
    ConvertedPoint points[2];
    PointStatuses statuses;
    for (const System system : {System::Wgs, System::User, System::Tm, System::Utm}) {
        converter.convert(system, AngleForm::Dms, kGiven, points, statuses);
        for (const auto& [place, status] : statuses) {
            require(!converter.text(status).empty(), "a bad point has a text");
            require(!converter.textOfCode(converter.code(status)).empty(), "and so has its code");
        }
    }
}

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo;
    const std::string text = textOfBytes(fuzz::textOf(bytes, size));
    const std::size_t end = std::min(text.find("%\n"), text.size());
    DefinitionText definition{.parameters = text.substr(0, end), .knownPoints = {}};
    if (end < text.size()) definition.knownPoints = text.substr(end + 2);
    try {
        fuzz::convertSome(converterOf(definition));
    } catch (const BadDefinition& bad) {
        fuzz::require(std::string_view(bad.what()).find('\n') == std::string_view::npos,
                      "a complaint is one line");
    }
    return 0;
}
