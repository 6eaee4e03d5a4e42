#include "shell/checked_text.h"

#include <gtest/gtest.h>

#include "support/memory_disk.h"

namespace kelvo {
namespace {

constexpr const char* kKnown = "/app/kelvo.cor";

TEST(CheckedText, AFindingInTheKnownPointsStandsAtTheLineThatReadsThem) {
    testing::MemoryDisk disk;
    // The longitude of the second point is 26 degrees.
    disk.addFolder("/app");
    disk.putText(kKnown,
                 "K 37.3728 126.3234 67 37.3518 126.3241 45 1\r\n"
                 "L 37.3728 26.3234 67 37.3518 126.3241 45 1\r\n\r\n\r\n");
    const auto found = findingsIn(
        "OUTPUT deg\r\nCORRECTION\r\nWGS A 37.3533 126.3229 0\r\nend\r\n \r\n", kKnown, disk);
    bool named = false;
    for (const RunMessage& finding : found) {
        if (!finding.text.starts_with("kelvo.cor 2행: ")) continue;
        named = true;
        EXPECT_EQ(finding.line, 2);
    }
    EXPECT_TRUE(named);
}

TEST(CheckedText, FindingsComeInTheOrderOfTheLines) {
    testing::MemoryDisk disk;
    disk.addFolder("/app");
    disk.putText(kKnown, "K 37.3728 26.3234 67 37.3518 126.3241 45 1\r\n\r\n\r\n");
    const auto found = findingsIn(
        "CORRECTION\r\nWGS A 37.6033 126.3229 0\r\nWGS B 12.3033 126.3229 0\r\nend\r\n \r\n",
        kKnown, disk);
    ASSERT_GE(found.size(), 2U);
    for (std::size_t i = 1; i < found.size(); ++i) EXPECT_LE(found[i - 1].line, found[i].line);
}

TEST(CheckedText, FindingsOfOneLineStayInTheOrderOfTheKnownPoints) {
    testing::MemoryDisk disk;
    disk.addFolder("/app");
    // The longitude of both points is 26 degrees.
    disk.putText(kKnown,
                 "K 37.3728 26.3234 67 37.3518 126.3241 45 1\r\n"
                 "L 37.3728 26.3234 67 37.3518 126.3241 45 1\r\n\r\n\r\n");
    std::string places;
    for (const RunMessage& finding :
         findingsIn("CORRECTION\r\nWGS A 37.3533 126.3229 0\r\nend\r\n \r\n", kKnown, disk)) {
        if (finding.line == 1) places += finding.text.substr(0, 11);
    }
    const std::size_t second = places.find("kelvo.cor 2");
    EXPECT_NE(places.find("kelvo.cor 1"), std::string::npos) << places;
    EXPECT_NE(second, std::string::npos) << places;
    EXPECT_EQ(places.find("kelvo.cor 1", second), std::string::npos) << places;
}

TEST(CheckedText, KnownPointsThatNoLineReadsAreNotSpokenOf) {
    testing::MemoryDisk disk;
    disk.addFolder("/app");
    disk.putText(kKnown, "K 37.3728 26.3234 67 37.3518 126.3241 45 1\r\n\r\n\r\n");
    EXPECT_TRUE(findingsIn("WGS A 37.3533 126.3229 0\r\nend\r\n \r\n", kKnown, disk).empty());
}

}  // namespace
}  // namespace kelvo
