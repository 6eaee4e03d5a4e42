#include "library/point_converter.h"

#include <gtest/gtest.h>

#include "library/definition_text.h"

namespace kelvo {
namespace {

struct Done {
    std::vector<ConvertedPoint> points;
    PointStatuses statuses;
};

Done convert(const PointConverter& converter, System system, const std::vector<GivenPoint>& given,
             AngleForm angles = AngleForm::Degrees) {
    Done done;
    done.points.resize(given.size());
    converter.convert(system, angles, given, done.points, done.statuses);
    return done;
}

TEST(PointConverter, AGoodPointHasNoStatus) {
    const auto converter = converterOf({});
    EXPECT_TRUE(convert(converter, System::Wgs, {{37.5, 127, 50}}).statuses.empty());
}

TEST(PointConverter, WhatARunCouldNotWriteIsAFault) {
    const auto converter = converterOf({});
    const Done done =
        convert(converter, System::Wgs, {{37, 127, 0}, {40000, 127, 0}, {37, 127, 0}});
    ASSERT_EQ(done.statuses.size(), 1U);
    const PointStatus& status = done.statuses.at(1);
    EXPECT_TRUE(status.fault);
    EXPECT_NE(converter.text(status), "");
}

TEST(PointConverter, MessagesOfARunAreJoinedInTheirOrder) {
    const auto converter = converterOf({});
    const Done done = convert(converter, System::Wgs, {{37.30599999915, 127, 0}}, AngleForm::Dms);
    ASSERT_EQ(done.statuses.size(), 1U);
    const std::string text = converter.text(done.statuses.at(0));
    EXPECT_NE(text.find("환산할때 에러가 있습니다."), std::string::npos) << text;
    EXPECT_EQ(text.find('\n'), std::string::npos);
}

TEST(PointConverter, ACodeMeansTheTextsThatItWasMadeOf) {
    const auto converter = converterOf({});
    for (const auto& given :
         std::vector<GivenPoint>{{90, 127, 0}, {1e300, 127, 0}, {37, 127, 1e300}}) {
        const Done done = convert(converter, System::Wgs, {given});
        if (done.statuses.empty()) continue;
        const PointStatus& status = done.statuses.at(0);
        EXPECT_GT(converter.code(status), 0);
        if (!status.fault || status.fault->text() == faultSentence(status.fault->fault())) {
            EXPECT_EQ(converter.textOfCode(converter.code(status)), converter.text(status));
        }
    }
    EXPECT_EQ(converter.textOfCode(0), "");
    EXPECT_EQ(converter.textOfCode(-1), "");
    EXPECT_EQ(converter.textOfCode(1 << 30), "");
}

}  // namespace
}  // namespace kelvo
