#include "batch/corr_file.h"

#include <gtest/gtest.h>

#include "support/faults.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo {
namespace {

using testing::faultOf;

const std::string kLine = "37.3000 127.1530 10.5 37.2950 127.1540 20.25 1.5\n";

class CorrFile : public ::testing::Test {
protected:
    int read(const std::string& text) {
        disk.putText("/kelvo.cor", text);
        return faultOf([&] { ReadCorrFile(table, "/kelvo.cor", fields, disk, messages); });
    }
    const CorrPoint& point(std::size_t slot) const { return table.CorrPoints[slot]; }

    testing::MemoryDisk disk;
    testing::RecordingMessages messages;
    FieldStore fields;
    CorrPointTable table;
};

TEST_F(CorrFile, FillsASlotFromTheEightFieldsOfALine) {
    EXPECT_EQ(read("인천No-3 " + kLine + "*\n*\n"), 0);
    ASSERT_EQ(table.CorrCount, 1);
    EXPECT_EQ(point(1).Name, "인천No-3");
    EXPECT_DOUBLE_EQ(point(1).WgsPhi, 37.5);
    EXPECT_DOUBLE_EQ(point(1).WgsLam, 127.25 + 30.0 / 3600);
    EXPECT_EQ(point(1).WgsH, 10.5);
    EXPECT_DOUBLE_EQ(point(1).UserPhi, 37 + 29.0 / 60 + 50.0 / 3600);
    EXPECT_DOUBLE_EQ(point(1).UserLam, 127 + 15.0 / 60 + 40.0 / 3600);
    EXPECT_EQ(point(1).UserH, 20.25);
    EXPECT_EQ(point(1).Weight, 1.5F);
}

TEST_F(CorrFile, BlanksTabsAndCommasSeparate) {
    EXPECT_EQ(read("  k,\t37.3,,127.3 ,1\t37.3 127.3 2 3 rest of the line\n*\n*\n"), 0);
    ASSERT_EQ(table.CorrCount, 1);
    EXPECT_EQ(point(1).Name, "k");
    EXPECT_EQ(point(1).UserH, 2);
    EXPECT_EQ(point(1).Weight, 3);
}

TEST_F(CorrFile, BlankAndCommentLinesArePassedOver) {
    EXPECT_EQ(
        read("* head\n\n  \n ,,\na " + kLine + "\n*b " + kLine + "   * c\nd " + kLine + "\n*\n*\n"),
        0);
    ASSERT_EQ(table.CorrCount, 2);
    EXPECT_EQ(point(1).Name, "a");
    EXPECT_EQ(point(2).Name, "d");
}

TEST_F(CorrFile, AFieldLeftOutReadsAsZero) {
    EXPECT_EQ(read("k 37.3\nEND\n*\n*\n"), 0);
    ASSERT_EQ(table.CorrCount, 2) << "a word like END makes a point like any other";
    EXPECT_EQ(point(1).WgsLam, 0);
    EXPECT_EQ(point(1).Weight, 0);
    EXPECT_EQ(point(2).Name, "END");
}

TEST_F(CorrFile, AWellFormedPointOnTheLastLineIsNotLoaded) {
    EXPECT_EQ(read("a " + kLine + "* comment\nb " + kLine), 0);
    EXPECT_EQ(table.CorrCount, 1);
    EXPECT_EQ(read("a " + kLine + "\nb " + kLine), 0);
    EXPECT_EQ(table.CorrCount, 1);
}

TEST_F(CorrFile, ALastLineButOneThatIsAPointReadsPastTheEnd) {
    EXPECT_EQ(read("*\na " + kLine + "b " + kLine), 62);
    EXPECT_EQ(read("*\na " + kLine + "*\n"), 62);
    EXPECT_EQ(read("a " + kLine + "*\n"), 62) << "the comment is passed over without a look";
}

TEST_F(CorrFile, ALastLineWithoutItsEndCountsAsALine) {
    EXPECT_EQ(read("a " + kLine + "*\n*"), 0);
    EXPECT_EQ(table.CorrCount, 1);
    EXPECT_EQ(read("a " + kLine + "*"), 62);
}

TEST_F(CorrFile, AnEmptyFileReadsPastTheEnd) {
    EXPECT_EQ(read(""), 62);
}

TEST_F(CorrFile, AFileOfOneLineHoldsNoPoint) {
    EXPECT_EQ(read("a " + kLine), 0);
    EXPECT_EQ(table.CorrCount, 0);
}

TEST_F(CorrFile, AFileOfCommentsHoldsNoPoint) {
    EXPECT_EQ(read("* a\n* b\n\n* c\n"), 0);
    EXPECT_EQ(table.CorrCount, 0);
}

TEST_F(CorrFile, AMissingFileIsNotFoundAndLeavesNoPointInForce) {
    EXPECT_EQ(read("k " + kLine + "*\n*\n"), 0);
    EXPECT_EQ(faultOf([&] { ReadCorrFile(table, "/none", fields, disk, messages); }), 53);
    EXPECT_EQ(table.CorrCount, 0);
}

TEST_F(CorrFile, TwoHundredPointsFitAndOneMoreIsASubscriptFault) {
    std::string text;
    for (int i = 0; i < 200; ++i) text += "k " + kLine;
    EXPECT_EQ(read(text + "*\n*\n"), 0);
    EXPECT_EQ(table.CorrCount, 200);
    EXPECT_EQ(read(text + "k " + kLine + "*\n*\n"), 9);
}

TEST_F(CorrFile, AnglesAreReadWithTheirSign) {
    EXPECT_EQ(read("k -37.3 -127.3 1 -37.3 -127.3 1 1\n*\n*\n"), 0);
    EXPECT_DOUBLE_EQ(point(1).WgsPhi, -37.5);
    EXPECT_DOUBLE_EQ(point(1).UserLam, -127.5);
}

TEST_F(CorrFile, ASecondReadingOverwritesOnlyWhatStandsInTheFile) {
    EXPECT_EQ(read("a " + kLine + "b " + kLine + "*\n*\n"), 0);
    table.CorrPoints[1].DH = 7.5;
    table.CorrPoints[1].DPhi = 8.5;
    EXPECT_EQ(read("c " + kLine + "*\n*\n"), 0);
    EXPECT_EQ(table.CorrCount, 1);
    EXPECT_EQ(point(1).Name, "c");
    EXPECT_EQ(point(1).DH, 7.5);
    EXPECT_EQ(point(1).DPhi, 8.5);
    EXPECT_EQ(point(2).Name, "b");
}

TEST_F(CorrFile, AWeightBeyondASingleReadsAsZero) {
    EXPECT_EQ(read("k 37 127 1 37 127 1 1e39\n*\n*\n"), 0);
    EXPECT_EQ(point(1).Weight, 0);
}

}  // namespace
}  // namespace kelvo
