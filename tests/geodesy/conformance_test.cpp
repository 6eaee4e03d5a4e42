// Points published by authorities; conformance.txt says by whom, and how near they ask.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "geodesy/case_file.h"

namespace kelvo {
namespace {

TEST(Conformance, PointsOfAuthoritiesComeOutWithinTheirTolerance) {
    std::ifstream file(KELVO_SOURCE_DIR "/tests/geodesy/conformance.txt");
    std::stringstream text;
    text << file.rdbuf();
    const testing::CaseReport report = testing::runCases(text.str());
    EXPECT_GE(report.checks, 180);
    for (const auto& complaint : report.complaints) ADD_FAILURE() << complaint;
}

}  // namespace
}  // namespace kelvo
