#include "batch/rows_by_name.h"

#include <gtest/gtest.h>

#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

PointTable tableOf(std::initializer_list<const char*> names) {
    PointTable points;
    for (const char* name : names) {
        ++points.PointCount;
        points.row(points.PointCount).name = name;
    }
    return points;
}

TEST(RowsByName, TakeTheWholeNameAndNotTheTenColumnsThatAReportShows) {
    const PointTable points =
        tableOf({"abcdefghijX", "abcdefghij", "abcdefghijk", "가나다라마바", "가나다라마사"});
    RowsByName rows;
    rows.update(points);
    EXPECT_EQ(rows.rowOf("abcdefghijk"), 3);
    EXPECT_EQ(rows.rowOf("ABCDEFGHIJx"), 1);
    EXPECT_EQ(rows.rowOf("abcdefghij"), 2);
    EXPECT_EQ(rows.rowOf("가나다라마사"), 5);
    EXPECT_EQ(rows.rowOf("가나다라마"), 0);
}

TEST(RowsByName, TakeInTheRowsThatHaveComeSinceAndKeepTheEarlier) {
    PointTable points = tableOf({"a", "b"});
    RowsByName rows;
    rows.update(points);
    EXPECT_EQ(rows.rowOf("c"), 0);
    points.row(3).name = "C";
    points.row(4).name = "A";
    points.PointCount = 4;
    rows.update(points);
    EXPECT_EQ(rows.rowOf("c"), 3);
    EXPECT_EQ(rows.rowOf("a"), 1);
}

TEST(DistancesByName, OfNamesThatDifferAfterTheTenthColumnAreThoseOfTheirOwnPoints) {
    BatchBench bench;
    bench.run(
        "TM abcdefghijX 9 9 0\n   abcdefghijk 0 0 0\n   가나다라마사 7 7 0\n   가나다라마바 3 4 0\n"
        "DIST abcdefghijk 가나다라마바\n     abcdefghij 가나다라마바\nend\n\n");
    EXPECT_TRUE(bench.outHolds("Distance =      5.0000"));
    EXPECT_EQ(bench.countOut("거리계산을 위한 점 abcdefghij이 없습니다."), 1)
        << "a name as the report shows it is none";
}

}  // namespace
}  // namespace kelvo
