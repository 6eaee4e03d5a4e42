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

// The scale makes degrees of WGS84 too long for a number, and the small ellipsoid's own not.
TEST(PointConverter, WhatFailsInTheLastTableOnlyIsReported) {
    const auto converter =
        converterOf({.parameters = "utm para\n1e-140 298\n0 129\n0 0\n1e302\n", .knownPoints = {}});
    const Done done = convert(converter, System::Wgs, {{37.5, 127, 50}});
    ASSERT_EQ(done.statuses.size(), 1U);
    const PointStatus& status = done.statuses.at(0);
    ASSERT_EQ(status.remarks.size(), 1U) << converter.text(status);
    EXPECT_EQ(status.remarks[0].kind, Remark::Kind::NotProjected);
    EXPECT_FALSE(status.fault) << converter.text(status);
}

// Its misses are what the datum shift leaves, so that on it the correction leaves nothing.
TEST(PointConverter, AKnownPointComesOutAsItIsKnown) {
    const auto converter =
        converterOf({.parameters = "7 para\n100 -400 -600\n1 -2 -1\n-5\nCORRECTION\n",
                     .knownPoints = "K 37.3728 126.3234 67 37.3518 126.3241 45 1\n*\n\n"});
    const Done done = convert(converter, System::Wgs, {{37.3728, 126.3234, 67}}, AngleForm::Dms);
    ASSERT_TRUE(done.statuses.empty());
    EXPECT_NEAR(done.points[0].UserPhi, 37 + 35.0 / 60 + 18.0 / 3600, 1e-9);
    EXPECT_NEAR(done.points[0].UserLam, 126 + 32.0 / 60 + 41.0 / 3600, 1e-9);
    EXPECT_NEAR(done.points[0].UserH, 45, 1e-4);
}

TEST(PointConverter, APointWithoutItsCorrectionIsReported) {
    Definition weightless =
        converterOf({.parameters = "CORRECTION\n",
                     .knownPoints = "K 37.3728 126.3234 67 37.3518 126.3241 45 1\n*\n\n"})
            .definition();
    std::vector<CorrPoint> known = *weightless.known;
    known.front().Weight = 0;
    weightless.known = std::make_shared<const std::vector<CorrPoint>>(known);
    const PointConverter converter(weightless, "kelvo.cor");
    const Done done = convert(converter, System::Wgs, {{37.5, 127, 50}});
    ASSERT_EQ(done.statuses.size(), 1U);
    ASSERT_TRUE(done.statuses.at(0).uncorrected);
    EXPECT_EQ(done.statuses.at(0).uncorrected->failure, NoCorrection::NoWeight);
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
