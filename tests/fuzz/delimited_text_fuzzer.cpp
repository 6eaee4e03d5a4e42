// Delimited text read and written again: by any pieces, on any number of threads, with as many
// rows.
#include "convert/conversion_of_rows.h"
#include "convert/delimited_fields.h"
#include "convert/delimited_sink.h"
#include "convert/delimited_source.h"
#include "convert/refusal.h"
#include "fuzz/fuzz_target.h"
#include "library/definition_text.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "name,lat,lon,h",     "a,37.5,127,50",
    "b;37.5;127;50",      "c\t37.5\t127",
    "\"d,e\",\"37\",127", "\"f\"\"g\",1e999,0x10",
    "\"unclosed,1,2",     ",,,",
    "5\" pipe,1,2,3",     "",
};

class Pieces final : public ByteReader {
public:
    Pieces(std::string_view bytes, std::size_t most) : bytes_(bytes), most_(most) {}
    std::size_t read(std::span<char> buffer) override {
        const std::size_t count = bytes_.copy(buffer.data(), std::min(buffer.size(), most_));
        bytes_.remove_prefix(count);
        return count;
    }

private:
    std::string_view bytes_;
    std::size_t most_;
};

class Kept final : public ByteWriter {
public:
    explicit Kept(std::string& bytes) : bytes_(bytes) {}
    void write(std::string_view bytes) override { bytes_ += bytes; }
    void close() override {}

private:
    std::string& bytes_;
};

struct Nobody final : Watcher {
    void taken(const RowBlock&, const Converted&, double) override {}
};

struct Result {
    std::string text;
    std::uint64_t points = 0;
};

Result convert(std::string_view text, std::size_t most, unsigned jobs) {
    const PointConverter converter = converterOf({});
    Result result;
    Nobody nobody;
    try {
        DelimitedSource source(std::make_unique<Pieces>(text, most), {});
        DelimitedSink sink(std::make_unique<Kept>(result.text), columnsOf(kAllOutputSystems),
                           AngleForm::Degrees);
        result.points = convertRows(source,
                                    {.converter = converter,
                                     .system = System::Wgs,
                                     .angles = AngleForm::Degrees,
                                     .jobs = jobs},
                                    sink, nobody)
                            .points;
    } catch (const Refusal& refusal) {
        result.text = refusal.what();
    }
    return result;
}

std::uint64_t rowsIn(std::string_view text) {
    std::uint64_t rows = 0;
    for (std::size_t end = 0; (end = endOfRow(text, ',')) != std::string_view::npos; ++rows)
        text.remove_prefix(end + 1);
    require(text.empty(), "what is written ends with a line end");
    return rows;
}

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo::fuzz;
    const std::string_view text = textOf(bytes, size);
    const Result whole = convert(text, size + 1, 1);
    const Result pieces = convert(text, 3, 1);
    require(whole.text == pieces.text, "pieces change nothing");
    require(convert(text, size + 1, 2).text == whole.text, "threads change nothing");
    require(rowsIn(whole.text) == whole.points + 1, "a row in gives a row out");
    return 0;
}
