#include "convert/delimited_source.h"

#include <gtest/gtest.h>

#include <tuple>

#include "convert/refusal.h"
#include "convert/text_reader.h"

namespace kelvo {
namespace {

// Rows as "name|first|second|third@line", a bad one as "name!reason".
std::vector<std::string> rowsOf(const std::string& text, const std::string& columns = "",
                                std::size_t atOnce = std::string::npos) {
    DelimitedSource source(std::make_unique<BytesOfTest>(text, atOnce),
                           columns.empty() ? ColumnWishes{} : columnWishesOf(columns));
    std::vector<std::string> rows;
    for (RowBlock block; source.gather(block); block.clear()) {
        source.read(block);
        for (std::size_t i = 0; i < block.size(); ++i) {
            const std::string name(block.names[i]);
            const GivenPoint& p = block.given[i];
            const auto number = [](double value) {
                std::string digits = std::to_string(value);
                digits.erase(digits.find_last_not_of('0') + 1);
                return digits;
            };
            rows.push_back(block.statuses.contains(i)
                               ? name + "!" + block.statuses[i]
                               : name + "|" + number(p.first) + "|" + number(p.second) + "|" +
                                     number(p.height) + "@" + std::to_string(block.lines[i]));
        }
    }
    return rows;
}

using Rows = std::vector<std::string>;

TEST(DelimitedSource, RowsAreReadWithTheirLines) {
    EXPECT_EQ(rowsOf("a,1,2,3\nb,4,5,6\n"), (Rows{"a|1.|2.|3.@1", "b|4.|5.|6.@2"}));
}

TEST(DelimitedSource, AHeaderIsPassedOver) {
    EXPECT_EQ(rowsOf("name,lat,lon,h\na,1,2,3\n"), (Rows{"a|1.|2.|3.@2"}));
    EXPECT_EQ(rowsOf("name;lat;lon\na;1;2"), (Rows{"a|1.|2.|0.@2"}));
}

TEST(DelimitedSource, AFirstLineWithOneNumberIsNoHeader) {
    EXPECT_EQ(rowsOf("a,1,x,y\n"), (Rows{"a!숫자가 아닙니다: x (line 1)"}));
    EXPECT_EQ(rowsOf("a,x,y,3\n"), (Rows{"a!숫자가 아닙니다: x (line 1)"}));
    EXPECT_EQ(rowsOf("a,1e999,x\n"), (Rows{"a!숫자가 너무 큽니다: 1e999 (line 1)"}));
}

TEST(DelimitedSource, MarkCrLfAndEmptyLinesAreNoTrouble) {
    EXPECT_EQ(rowsOf("\xEF\xBB\xBFname,lat,lon\r\n\r\na,1,2\r\n\n\nb,3,4"),
              (Rows{"a|1.|2.|0.@3", "b|3.|4.|0.@6"}));
    EXPECT_EQ(rowsOf("\n\r\nname,lat,lon\na,1,2"), (Rows{"a|1.|2.|0.@4"}));
}

TEST(DelimitedSource, ALineOfBlanksHasTooFewColumns) {
    EXPECT_EQ(rowsOf("a,1,2\n  \n"), (Rows{"a|1.|2.|0.@1", "  !칸이 모자랍니다 (line 2)"}));
}

TEST(DelimitedSource, AMissingOrEmptyThirdValueIsZeroAnyOtherIsBad) {
    EXPECT_EQ(
        rowsOf("a,1,2\nb,1,2,\nc,1,2,  \nd,1,,3\ne,,2,3\nf,1,2,x\n"),
        (Rows{"a|1.|2.|0.@1", "b|1.|2.|0.@2", "c|1.|2.|0.@3", "d!좌표가 비어 있습니다 (line 4)",
              "e!좌표가 비어 있습니다 (line 5)", "f!숫자가 아닙니다: x (line 6)"}));
}

TEST(DelimitedSource, QuotedFieldsHoldDelimitersAndLineEnds) {
    EXPECT_EQ(rowsOf("\"a,\n\"\"b\"\"\",\"1\",2\nc,x,4\n"),
              (Rows{"a,\n\"b\"|1.|2.|0.@1", "c!숫자가 아닙니다: x (line 3)"}));
}

TEST(DelimitedSource, AnUnclosedQuoteIsABadPoint) {
    EXPECT_EQ(rowsOf("a,1,2\n\"b,3,4\n"),
              (Rows{"a|1.|2.|0.@1", "b,3,4!따옴표가 닫히지 않았습니다 (line 2)"}));
}

TEST(DelimitedSource, ColumnsAreThoseThatAreAskedFor) {
    EXPECT_EQ(rowsOf("h,lon,lat,id\n3,2,1,a\n", "id,lat,lon,h"), (Rows{"a|1.|2.|3.@2"}));
    EXPECT_EQ(rowsOf("1,2\n", "-,1,2"), (Rows{"|1.|2.|0.@1"}));
    EXPECT_EQ(rowsOf("1,2,a\n5\n", "3,1,2"), (Rows{"a|1.|2.|0.@1", "!칸이 모자랍니다 (line 2)"}));
}

TEST(DelimitedSource, ARefusedColumnIsNoticedBeforeTheFirstPoint) {
    EXPECT_THROW(std::ignore = rowsOf("a,1,2\n", "id,2,3"), Refusal);
    EXPECT_THROW(std::ignore = rowsOf("id,lat,lon\n", "id,lat,north"), Refusal);
}

TEST(DelimitedSource, AnEmptyInputHasNoRows) {
    EXPECT_EQ(rowsOf(""), Rows{});
    EXPECT_EQ(rowsOf("\n\r\n"), Rows{});
    EXPECT_EQ(rowsOf("\xEF\xBB\xBF"), Rows{});
    EXPECT_EQ(rowsOf("", "id,lat,lon"), Rows{});
}

TEST(DelimitedSource, BytesOfANameAreKept) {
    EXPECT_EQ(rowsOf(std::string("\xff\0가,1,2\n", 9)),
              (Rows{std::string("\xff\0가", 5) + "|1.|2.|0.@1"}));
}

TEST(DelimitedSource, RowsAreTheSameHoweverSmallThePiecesAre) {
    std::string text = "name,lat,lon\r\n";
    for (int i = 0; i < 3000; ++i) text += "\"점\n" + std::to_string(i) + "\",1,2\r\n";
    const Rows whole = rowsOf(text);
    EXPECT_EQ(whole.size(), 3000U);
    EXPECT_EQ(whole.back(), "점\n2999|1.|2.|0.@6000");
    EXPECT_EQ(rowsOf(text, "", 7), whole);
}

// Where a quote of the first line closes lines later, what stands behind it has its say, too.
TEST(DelimitedSource, TheDelimiterIsTheSameHoweverSmallThePiecesAre) {
    const std::string text = "no\t\"d\tx\na\t1\t2\n\"b\",3\n\"c,4\t5\n";
    const Rows whole = rowsOf(text);
    EXPECT_EQ(whole, (Rows{"a|1.|2.|0.@2", "b,3!칸이 모자랍니다 (line 3)",
                           "c,4\t5!따옴표가 닫히지 않았습니다 (line 4)"}));
    for (const std::size_t piece : {1U, 2U, 3U, 7U, 15U}) EXPECT_EQ(rowsOf(text, "", piece), whole);
}

TEST(DelimitedSource, ARowWithoutEndIsRefusedWithItsLine) {
    try {
        std::ignore = rowsOf("a,1,2\n\"" + std::string(kLongestRow + 10, 'x') + "\"");
        FAIL();
    } catch (const Refusal& refusal) {
        EXPECT_TRUE(std::string(refusal.what()).starts_with("line 2: ")) << refusal.what();
    }
}

TEST(DelimitedSource, ManyColumnsAreFine) {
    std::string row = "a";
    for (int i = 2; i < 100; ++i) row += ",x";
    EXPECT_EQ(rowsOf(row + ",7,8\n", "1,100,101"), (Rows{"a|7.|8.|0.@1"}));
}

TEST(DelimitedSource, ABlockHoldsNoMoreRowsThanItMay) {
    std::string text;
    for (std::size_t i = 0; i < kRowsOfBlock + 1; ++i) text += "a,1,2\n";
    DelimitedSource source(std::make_unique<BytesOfTest>(text), {}, 0);
    RowBlock block;
    ASSERT_TRUE(source.gather(block));
    EXPECT_EQ(block.lines.size(), kRowsOfBlock);
    EXPECT_LT(source.progress(), 0);
    block.clear();
    ASSERT_TRUE(source.gather(block));
    EXPECT_EQ(block.lines, std::vector<long>{1025});
    block.clear();
    EXPECT_FALSE(source.gather(block));
}

// 128 KiB and the row that passes them.
TEST(DelimitedSource, ABlockOfLongRowsEndsEarly) {
    const std::string name(1019, 'n');
    std::string text;
    for (int i = 0; i < 200; ++i) text += name + ",1,22\n";  // 1024 bytes without the line end
    DelimitedSource source(std::make_unique<BytesOfTest>(text), {}, text.size());
    RowBlock block;
    ASSERT_TRUE(source.gather(block));
    EXPECT_EQ(block.text.size(), 128U * 1024);
    EXPECT_EQ(block.lines.size(), 128U);
    EXPECT_EQ(source.progress(), 128 * 1025 / (200 * 1025.0));
}

TEST(DelimitedSource, ProgressCountsTheMarkAndTheHeaderAndNeverPassesTheEnd) {
    const std::string text = "\xEF\xBB\xBFname,lat,lon\na,1,2\n";
    DelimitedSource source(std::make_unique<BytesOfTest>(text), {}, 22);
    EXPECT_EQ(source.progress(), 16 / 22.0);
    RowBlock block;
    ASSERT_TRUE(source.gather(block));
    EXPECT_EQ(source.progress(), 1);
    DelimitedSource grown(std::make_unique<BytesOfTest>(text), {}, 5);
    EXPECT_EQ(grown.progress(), 1);
}

TEST(DelimitedSource, TheLongestRowHasAMebibyteWithItsLineEnd) {
    const auto ofLength = [](std::size_t length) {
        return "a,1,2\n" + std::string(length - 5, 'x') + ",3,4\n" + "b,5,6\n";
    };
    EXPECT_EQ(rowsOf(ofLength(kLongestRow)).size(), 3U);
    try {
        std::ignore = rowsOf(ofLength(kLongestRow + 1));
        FAIL();
    } catch (const Refusal& refusal) {
        EXPECT_STREQ(refusal.what(),
                     "line 2: 한 행이 1048576바이트보다 깁니다. 닫지 않은 따옴표가 있는지 "
                     "확인하십시오");
    }
}

TEST(DelimitedSource, AHeaderMayLackAnyColumnButTheRowsMayNot) {
    EXPECT_EQ(rowsOf("name,lat,lon,3\na,1,2\n"),
              (Rows{"name!숫자가 아닙니다: lat (line 1)", "a|1.|2.|0.@2"}));
    EXPECT_EQ(rowsOf("7,lat,lon\na,1,2\n"), (Rows{"a|1.|2.|0.@2"}));
    EXPECT_EQ(rowsOf("name,lat,lon,h,5\na,1,2\n"), (Rows{"a|1.|2.|0.@2"}));
    EXPECT_EQ(rowsOf("a\nb,1\nc,1,2\n"), (Rows{"b!칸이 모자랍니다 (line 2)", "c|1.|2.|0.@3"}));
}

// A number over a coordinate makes the line a point.
TEST(DelimitedSource, AFirstLineWithACoordinateColumnNamedLikeANumberIsNoHeader) {
    for (const char* columns : {"id,1.5,lon", "id,lat,1.5", "id,lat,lon,1.5"})
        EXPECT_THROW(std::ignore = rowsOf("id,lat,lon,1.5\na,1,2,3\n", columns), Refusal);
    EXPECT_EQ(rowsOf("1.5,lat,lon\na,1,2\n", "1.5,lat,lon"), (Rows{"a|1.|2.|0.@2"}));
}

TEST(DelimitedSource, ManyColumnsCountFromAnyOfTheFour) {
    std::string row;
    for (int i = 1; i <= 40; ++i) row += std::to_string(i) + (i < 40 ? "," : "\n");
    EXPECT_EQ(rowsOf(row, "40,1,2,3"), (Rows{"40|1.|2.|3.@1"}));
    EXPECT_EQ(rowsOf(row, "1,40,2,3"), (Rows{"1|40.|2.|3.@1"}));
    EXPECT_EQ(rowsOf(row, "1,2,40,3"), (Rows{"1|2.|40.|3.@1"}));
    EXPECT_EQ(rowsOf(row, "1,2,3,40"), (Rows{"1|2.|3.|40.@1"}));
    EXPECT_EQ(rowsOf(row, "-,32,33,31"), (Rows{"|32.|33.|31.@1"}));
}

}  // namespace
}  // namespace kelvo
