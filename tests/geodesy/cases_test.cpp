#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "geodesy/case_file.h"

namespace kelvo {
namespace {

using testing::CaseReport;
using testing::runCases;

TEST(Cases, AllComeOutWithinTheirTolerance) {
    std::ifstream file(KELVO_SOURCE_DIR "/tests/geodesy/cases.txt");
    std::stringstream text;
    text << file.rdbuf();
    const CaseReport report = runCases(text.str());
    EXPECT_GT(report.checks, 45);
    for (const auto& complaint : report.complaints) ADD_FAILURE() << complaint;
}

TEST(CaseReader, AnUnknownVerbFails) {
    EXPECT_EQ(runCases("forwards 1 2 -> 3 4").complaints.size(), 1U);
    EXPECT_EQ(runCases("# forwards 1 2 -> 3 4\n\n").complaints.size(), 0U);
}

TEST(CaseReader, TooFewOrTooManyNumbersFail) {
    const std::string head = "ellipsoid 6378137 298.257\norigin 0 0 0 127 1\ntolerance 1 m\n";
    EXPECT_EQ(runCases(head + "forward 0 127 -> 0 0").complaints.size(), 0U);
    EXPECT_EQ(runCases(head + "forward 0 127 -> 0").complaints.size(), 1U);
    EXPECT_EQ(runCases(head + "forward 0 127 -> 0 0 0").complaints.size(), 1U);
    EXPECT_EQ(runCases(head + "forward 0 127 0 0").complaints.size(), 1U);
    EXPECT_EQ(runCases("origin 0 0 0 127").complaints.size(), 1U);
    EXPECT_EQ(runCases("tolerance 1 mm").complaints.size(), 1U);
}

TEST(CaseReader, AShiftThatIsIncompleteOrMissesItsPointFails) {
    const std::string head = "tolerance 0.01 m\n";
    EXPECT_EQ(runCases(head + "shift 1 2 3 0 0 0 0 1\nshifted 0 0 0 -> 1 2 3").complaints.size(),
              0U);
    EXPECT_EQ(runCases(head + "shift 1 2 3 0 0 0 0 1\nshifted 0 0 0 -> 1 2 4").complaints.size(),
              1U);
    EXPECT_EQ(runCases(head + "shift 1 2 3 0 0 0 0 1\nunshifted 1 2 3 -> 0 0 1").complaints.size(),
              1U);
    EXPECT_EQ(runCases("shift 1 2 3 0 0 0 0").complaints.size(), 1U);
    EXPECT_EQ(runCases("heights 1 deg").complaints.size(), 1U);
}

TEST(CaseReader, AToleranceOfTheOtherUnitFails) {
    const std::string head = "ellipsoid 6378137 298.257\norigin 0 0 0 127 1\ntolerance 1 deg\n";
    EXPECT_EQ(runCases(head + "forward 0 127 -> 0 0").complaints.size(), 1U);
}

TEST(CaseReader, AFigureBeyondTheToleranceFails) {
    const std::string head = "ellipsoid 6378137 298.257\norigin 0 0 0 127 1\ntolerance 0.1 m\n";
    EXPECT_EQ(runCases(head + "forward 0 127 -> 0 0.2").complaints.size(), 1U);
    EXPECT_EQ(runCases(head + "forward_fails 0 127").complaints.size(), 1U);
}

}  // namespace
}  // namespace kelvo
