#include "library/measured_known_points.h"

#include <algorithm>
#include <memory>

#include "batch/corr_file.h"
#include "batch/run_header.h"
#include "common/code_page.h"
#include "common/one_line.h"
#include "common/run_time_fault.h"
#include "library/bad_definition.h"

namespace kelvo {

namespace {

class BytesInMemory final : public ByteReader {
public:
    explicit BytesInMemory(std::string bytes) : bytes_(std::move(bytes)) {}

    std::size_t read(std::span<char> buffer) override {
        const std::size_t count = bytes_.copy(buffer.data(), buffer.size(), next_);
        next_ += count;
        return count;
    }

private:
    std::string bytes_;
    std::size_t next_ = 0;
};

// The reports of a run that nobody reads.
class Nowhere final : public ByteWriter {
public:
    void write(std::string_view) override {}
    void close() override {}
};

class CollectedTexts final : public MessageBoxes {
public:
    Answer show(const Message& message) override {
        texts.push_back(oneLine(message.text));
        return Answer::Ok;
    }
    std::vector<std::string> texts;
};

void read(ConversionState& state, std::string_view text, const std::string& name,
          MessageBoxes& messages) {
    TextReader file(std::make_unique<BytesInMemory>(encodeCodePage(text)));
    try {
        ReadCorrFile(state.known, file, state.fields, messages);
    } catch (const RuntimeFault& fault) {
        throw BadDefinition(name, file.lineInHand(), fault.text());
    }
}

void measure(ConversionState& state, const std::string& name, const TransPara& para,
             MessageBoxes& messages) {
    TextWriter out(std::make_unique<Nowhere>());
    TextWriter det(std::make_unique<Nowhere>());
    try {
        CorrStatistics(state, {.out = out, .det = det, .CorPath = name}, AngleForm::Degrees, para,
                       messages);
    } catch (const RuntimeFault& fault) {
        throw BadDefinition(fault.text());  // which names the text and the point
    }
}

}  // namespace

MeasuredKnownPoints measuredKnownPoints(std::string_view text, const std::string& name,
                                        const TransPara& para, const DatumState& datum) {
    const auto state = std::make_unique<ConversionState>();
    state->datum = datum;
    CollectedTexts said;
    read(*state, text, name, said);
    measure(*state, name, para, said);
    const std::span<const CorrPoint> points = state->known.inUse();
    if (std::none_of(points.begin(), points.end(),
                     [](const CorrPoint& point) { return point.Weight != 0; }))
        throw BadDefinition(name, 0, "가중치가 있는 보정점이 없습니다");
    return {.points = std::make_shared<const std::vector<CorrPoint>>(points.begin(), points.end()),
            .remarks = std::move(said.texts)};
}

}  // namespace kelvo
