#include "batch/result_tables.h"

#include <gtest/gtest.h>

#include "batch/run_defaults.h"
#include "common/fixed_width.h"
#include "geodesy/transverse_mercator.h"
#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

class ResultTables : public ::testing::Test {
protected:
    // One row of a table for a point with this name and TM coordinates.
    std::string tmRow(const std::string& name, double X, double Y, double h) {
        MemoryDiskTables written = print([&](PointRec& row) {
            row.name = name;
            row.TmX = X;
            row.TmY = Y;
            row.TmH = h;
        });
        return written.bench.table(3).at(0);
    }

    struct MemoryDiskTables {
        BatchBench bench;
        TransPara para;
    };

    template <class Fill>
    static MemoryDiskTables print(Fill fill) {
        MemoryDiskTables written{{}, runDefaults()};
        written.bench.state.points.PointCount = 1;
        fill(written.bench.state.points.row(1));
        TextWriter out(written.bench.disk, "/job/a.out");
        int row = 0;
        PrintResultTables(written.bench.state.points, out, AngleForm::Hyphens, written.para,
                          written.bench.messages, row);
        out.close();
        return written;
    }
};

TEST_F(ResultTables, ARowIsSixtyOneColumnsOfFourCells) {
    EXPECT_EQ(tmRow("A-1", 377504.2345, 125963.97405, 7.239),
              "A-1             377504.234500      125963.974050       7.2390");
    EXPECT_EQ(tmRow("A-1", 377504.2345, 125963.97405, 7.239).size(), 61U);
}

TEST_F(ResultTables, ZeroHeightIsWrittenWithOneIntegerDigit) {
    EXPECT_EQ(tmRow("a", 0, 0, 0), "a                    0.000000           0.000000       0.0000");
}

TEST_F(ResultTables, TheMinusStandsDirectlyInFrontOfTheFirstDigit) {
    EXPECT_EQ(tmRow("a", 0, -0.5, -7.2).substr(29), "          -0.500000      -7.2000");
}

TEST_F(ResultTables, AValueWithMoreDigitsMakesItsCellGrow) {
    EXPECT_EQ(tmRow("a", 12345678901234, 0, 0).size(), 63U);
}

TEST_F(ResultTables, ANameIsCutAtTheLastWholeCharacterThatFits) {
    EXPECT_EQ(tmRow("가나다라마바", 0, 0, 0).substr(0, 15), "가나다라마");
    EXPECT_EQ(tmRow("a가나다라마", 0, 0, 0).substr(0, 15), "a가나다라  ");
    EXPECT_EQ(tmRow("abcdefghijkl", 0, 0, 0).substr(0, 11), "abcdefghij ");
}

TEST_F(ResultTables, TheFifthTableComputesUtmOnWgs84) {
    const auto written = print([](PointRec& row) {
        row.name = "a";
        row.WgsPhi = 37.5;
        row.WgsLam = 126.5;
        row.WgsH = 99;
        row.TmH = 7.25;
    });
    // the exact projection gives 4153277.442736 and 279006.494235
    const PointRec& row = written.bench.row(1);
    EXPECT_NEAR(row.WgsUtmX, 4153277.442736, 0.0005);
    EXPECT_NEAR(row.WgsUtmY, 279006.494235, 0.0005);
    EXPECT_EQ(row.WgsUtmH, 7.25) << "the height of the TM table";
    EXPECT_EQ(written.bench.table(5)[0].substr(48), "       7.2500");
    EXPECT_EQ(written.para.UZone, UtmZone::East);
}

TEST_F(ResultTables, TheFifthTableChoosesItsOriginByTheWgsLongitude) {
    const auto written = print([](PointRec& row) {
        row.WgsPhi = 37.5;
        row.WgsLam = 125.999;
        row.UserLam = 126.001;
    });
    EXPECT_EQ(written.para.UZone, UtmZone::West) << "and leaves it in the parameters";
    EXPECT_EQ(written.para.ULam0, 123);
    EXPECT_GT(written.bench.row(1).WgsUtmY, 700000);
}

TEST_F(ResultTables, NearTheBorderTablesFourAndFiveMayHaveDifferentOrigins) {
    BatchBench bench;
    // the shift moves longitudes here by some 7 seconds to the east
    bench.run("INPUT deg\nWGS a 37.5 125.999 0\nend\n\n");
    EXPECT_GT(bench.row(1).UserLam, 126);
    EXPECT_LT(bench.row(1).UtmY, 500000);
    EXPECT_GT(bench.row(1).WgsUtmY, 500000);
}

TEST_F(ResultTables, WithoutPointsTitlesAndHeadingsStillAppear) {
    BatchBench bench;
    TransPara para = runDefaults();
    TextWriter out(bench.disk, "/job/a.out");
    int row = 0;
    PrintResultTables(bench.state.points, out, AngleForm::Hyphens, para, bench.messages, row);
    out.close();
    EXPECT_EQ(bench.out().size(), 17U);
    EXPECT_EQ(bench.out().back(), "");
}

TEST_F(ResultTables, EveryLineOfAWholeRunEndsWithCrLfAndHoldsTheCodePage) {
    BatchBench bench;
    bench.run("WGS 인천No-3 37.3 127 1\nDIST 인천No-3 x\nend\n\n");
    const std::string bytes = bench.disk.bytes("/job/a.out");
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\n') {
            ASSERT_TRUE(i > 0 && bytes[i - 1] == '\r');
        }
        if (bytes[i] == '\r') {
            ASSERT_EQ(bytes[i + 1], '\n');
        }
    }
    EXPECT_NE(bytes.find("\xC0\xCE\xC3\xB5No-3  "), std::string::npos);
}

TEST_F(ResultTables, EveryRowOfEveryTableIsSixtyOneBytesWide) {
    BatchBench bench;
    for (const char* form : {"deg", "ddd mm", "ddd-mm", "ddd.mm"}) {
        bench.run(std::string("INPUT deg\nOUTPUT ") + form +
                  "\nWGS 가a나b다c라d 37.5 127.25 -1\n   x 33 124.5 1950.1\n"
                  "UGS 뷁 38.6 131.87 0\nTM t 200000 300000 -7\nUTM u 4100000 300000 1\nend\n\n");
        for (int number = 1; number <= 5; ++number) {
            const auto rows = bench.table(number);
            ASSERT_EQ(rows.size(), 5U);
            for (const auto& row : rows) EXPECT_EQ(genSub::DisplayLen(row), 61) << row;
        }
    }
}

}  // namespace
}  // namespace kelvo
