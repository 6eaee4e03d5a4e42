#include "common/point_table.h"

#include <gtest/gtest.h>

#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

TEST(PointTable, HasTenThousandRowsBehindRowZero) {
    PointTable table;
    table.row(0).name = "zero";
    table.row(10000).name = "last";
    EXPECT_EQ(table.row(0).name, "zero");
    EXPECT_EQ(table.row(10000).name, "last");
    EXPECT_EQ(faultOf([&] { return table.row(10001).TmH; }), 9);
    EXPECT_EQ(faultOf([&] { return table.row(-1).TmH; }), 9);
}

TEST(PointTable, ARowThatWasNeverWrittenIsEmptyAndZero) {
    const PointTable table;
    EXPECT_EQ(table.row(1234).name, "");
    EXPECT_EQ(table.row(1234).TmH, 0);
    EXPECT_EQ(table.row(10000).WgsUtmX, 0);
    EXPECT_EQ(faultOf([&] { return table.row(10001).TmH; }), 9);
}

TEST(PointTable, ARowKeepsWhatWasWrittenWhenHigherRowsAreTouched) {
    PointTable table;
    table.row(3).TmH = 7.5;
    table.row(9000).TmH = 8.5;
    table.PointCount = 0;
    EXPECT_EQ(table.row(3).TmH, 7.5);
    EXPECT_EQ(table.row(9000).TmH, 8.5);
    EXPECT_EQ(table.row(2).TmH, 0);
}

}  // namespace
}  // namespace kelvo
