#include "convert/conversion_of_rows.h"

#include <gtest/gtest.h>

#include <tuple>

#include "convert/delimited_sink.h"
#include "convert/delimited_source.h"
#include "convert/refusal.h"
#include "convert/text_reader.h"
#include "library/definition_text.h"

namespace kelvo {
namespace {

class BytesKept final : public ByteWriter {
public:
    BytesKept(std::string& bytes, bool& closed, std::size_t room)
        : bytes_(bytes), closed_(closed), room_(room) {}
    void write(std::string_view bytes) override {
        if (bytes_.size() + bytes.size() > room_) raise(Fault::DiskFull);
        bytes_ += bytes;
    }
    void close() override { closed_ = true; }

private:
    std::string& bytes_;
    bool& closed_;
    std::size_t room_;
};

struct LastLook final : Watcher {
    void taken(const RowBlock& block, const Converted& soFar, double) override {
        EXPECT_EQ(soFar.points, points + block.size());
        points = soFar.points;
    }
    std::uint64_t points = 0;
};

struct Result {
    std::string text;
    bool closed = false;
    Converted converted;
};

Result convert(const std::string& text, unsigned jobs, std::size_t room = std::string::npos) {
    Result result;
    const PointConverter converter = converterOf(DefinitionText{});
    DelimitedSource source(std::make_unique<BytesOfTest>(text), {});
    DelimitedSink sink(std::make_unique<BytesKept>(result.text, result.closed, room),
                       columnsOf(kAllOutputSystems), AngleForm::Degrees);
    LastLook watcher;
    try {
        result.converted = convertRows(source,
                                       {.converter = converter,
                                        .system = System::Wgs,
                                        .angles = AngleForm::Degrees,
                                        .jobs = jobs},
                                       sink, watcher);
        EXPECT_EQ(result.converted.points, watcher.points);
    } catch (const Refusal&) {
        EXPECT_NE(room, std::string::npos);
    }
    return result;
}

std::string manyPoints() {
    std::string text = "name,lat,lon,h\n";
    for (int i = 0; i < 20000; ++i)
        text += "P" + std::to_string(i) + "," + std::to_string(33 + i % 600 * 0.01) + "," +
                (i % 1000 == 7 ? "x" : std::to_string(124 + i % 700 * 0.01)) + "," +
                std::to_string(i % 300) + "\n";
    return text;
}

TEST(ConversionOfRows, TheResultIsTheSameWhateverTheNumberOfJobsIs) {
    const std::string text = manyPoints();
    const Result one = convert(text, 1);
    EXPECT_EQ(one.converted.points, 20000U);
    EXPECT_EQ(one.converted.notConverted, 20U);
    EXPECT_TRUE(one.closed);
    for (const unsigned jobs : {2U, 3U, 8U}) EXPECT_EQ(convert(text, jobs).text, one.text) << jobs;
}

TEST(ConversionOfRows, AFullDiskEndsEveryJobAndLeavesTheOutputOpen) {
    for (const unsigned jobs : {1U, 4U}) {
        const Result result = convert(manyPoints(), jobs, 1000000);
        EXPECT_FALSE(result.closed);
        EXPECT_LE(result.text.size(), 1000000U);
    }
}

TEST(ConversionOfRows, ASourceThatFailsEndsEveryJob) {
    struct Broken final : RowSource {
        bool gather(RowBlock& block) override {
            if (++gathered == 5) throw Refusal("broken");
            block.add("a", {.first = 37, .second = 127, .height = 0}, gathered);
            return true;
        }
        int gathered = 0;
    };
    const PointConverter converter = converterOf(DefinitionText{});
    Result result;
    DelimitedSink sink(std::make_unique<BytesKept>(result.text, result.closed, std::string::npos),
                       columnsOf(kAllOutputSystems), AngleForm::Degrees);
    LastLook watcher;
    for (const unsigned jobs : {1U, 4U}) {
        Broken source;
        watcher.points = 0;
        EXPECT_THROW(std::ignore = convertRows(source,
                                               {.converter = converter,
                                                .system = System::Wgs,
                                                .angles = AngleForm::Degrees,
                                                .jobs = jobs},
                                               sink, watcher),
                     Refusal);
        EXPECT_FALSE(result.closed);
    }
}

TEST(ConversionOfRows, AFieldWithACommaQuoteOrLineEndIsQuoted) {
    const std::string text =
        convert("\"a,b\",37,127\n\"c\"\"d\",37,127\n\"e\nf\",37,127\n", 1).text;
    EXPECT_NE(text.find("\n\"a,b\",37.0000000000,"), std::string::npos) << text;
    EXPECT_NE(text.find("\n\"c\"\"d\",37.0000000000,"), std::string::npos) << text;
    EXPECT_NE(text.find("\n\"e\nf\",37.0000000000,"), std::string::npos) << text;
}

std::string fieldOf(const std::string& name) {
    const std::string text = convert(name + ",37,127\n", 1).text;
    const std::size_t start = text.find('\n') + 1;
    return text.substr(start, text.find(",37.0000000000,") - start);
}

TEST(ConversionOfRows, OnlyAFieldThatNeedsQuotesHasThem) {
    EXPECT_EQ(fieldOf("a;b"), "a;b");
    EXPECT_EQ(fieldOf("\"a\""), "a");
    EXPECT_EQ(fieldOf("\"a,b\""), "\"a,b\"");
    EXPECT_EQ(fieldOf("\"a\rb\""), "\"a\rb\"");
    EXPECT_EQ(fieldOf("\"\"\"\""), "\"\"\"\"");
    EXPECT_EQ(fieldOf(""), "");
}

TEST(ConversionOfRows, ABadPointHasEmptyCellsAndItsStatus) {
    EXPECT_EQ(convert("a,x,127\n", 1).text.substr(convert("", 1).text.size()),
              "a" + std::string(19, ',') + "숫자가 아닙니다: x (line 1)\n");
    const Result result = convert("a,37,127\nb,x,127\nc,40000,127\n", 1);
    EXPECT_EQ(result.converted.points, 3U);
    EXPECT_EQ(result.converted.notConverted, 2U);
    EXPECT_EQ(convert("", 1).converted.points, 0U);
}

}  // namespace
}  // namespace kelvo
