// A known point without heights keeps the height miss that its slot held before. Where that counts,
// and where it must not.
#include <gtest/gtest.h>

#include "batch/report_bench.h"
#include "common/fixed_width.h"
#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;
using testing::ReportBench;
using Lines = std::vector<std::string>;

const std::string kEnd = "*\n*\n";

std::string heightCell(const std::string& line) {
    const std::size_t end = line.find("    L =");
    return line.substr(0, end).substr(line.substr(0, end).size() - 13);
}

class KeptMiss : public ::testing::Test {
protected:
    static std::string known(const std::string& UserHOfB) {
        return ReportBench::known("a", 10, 1, 1, "80", "60", "1") +
               ReportBench::known("b", 20, 3, 3, "95", UserHOfB, "1") +
               ReportBench::known("c", 30, 2, 2, "70", "44", "1") + kEnd;
    }
    // The detail of a block with b's height, then the one without.
    Lines afterwards() {
        EXPECT_EQ(bench.print(known("63")), 0);
        kept = bench.state.known.CorrPoints[2].DH;
        EXPECT_GT(std::abs(kept), 1);
        EXPECT_EQ(bench.print(known("0")), 0);
        return bench.lines("/det");
    }
    static Lines inANewProcess() {
        ReportBench fresh;
        EXPECT_EQ(fresh.print(known("0")), 0);
        return fresh.lines("/det");
    }

    ReportBench bench;
    double kept = 0;
};

TEST_F(KeptMiss, StandsInTheRowOfItsPoint) {
    const Lines det = afterwards();
    ASSERT_GT(det.size(), 13U);
    EXPECT_EQ(det[10].substr(0, 1), "b");
    EXPECT_EQ(heightCell(det[13]), genSub::FormatNum(kept, 8, 4));
    EXPECT_EQ(heightCell(inANewProcess()[13]), genSub::FormatNum(0.0, 8, 4));
}

TEST_F(KeptMiss, StaysOutOfTheSumTheMeanAndTheDeviation) {
    const Lines det = afterwards();
    const Lines fresh = inANewProcess();
    ASSERT_EQ(det.size(), fresh.size());
    for (std::size_t i = 0; i < det.size(); ++i) {
        if (i == 13) continue;  // the row with the miss itself
        EXPECT_EQ(det[i], fresh[i]) << i;
    }
}

// Both runs of one process, and the whole way: what the second pass asks are the heights.
TEST(KeptMissOfARun, StaysOutOfTheStatisticsThatTheNextRunWrites) {
    const auto file = [](const char* WgsHOfB) {
        return std::string("a 37.30 127.00 80 37.2950 127.0007 57 1\nb 37.40 127.10 ") + WgsHOfB +
               " 37.3950 127.1007 61 1\nc 37.20 127.20 90 37.1950 127.2007 68 2\n*\n*\n";
    };
    const char* const data = "CORR\nWGS p 37.35 127.05 10\nend\n\n";
    BatchBench twice;
    twice.known(file("85"));
    twice.run(data);
    twice.known(file("0"));
    twice.run(data);
    BatchBench once;
    once.known(file("0"));
    once.run(data);
    const auto line = [](const BatchBench& bench, const char* label) {
        for (const std::string& each : bench.det())
            if (each.find(label) != std::string::npos) return each;
        return std::string("none");
    };
    for (const char* label : {" 합계        ", " 평균        ", "평균편차     "}) {
        EXPECT_EQ(line(twice, label), line(once, label));
        EXPECT_NE(line(once, label), "none");
    }
    EXPECT_NE(twice.row(1).CorrH, once.row(1).CorrH) << "the correction goes by the miss";
    EXPECT_EQ(twice.row(1).CorrPhi, once.row(1).CorrPhi);
}

}  // namespace
}  // namespace kelvo
