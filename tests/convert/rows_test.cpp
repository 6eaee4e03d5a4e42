// A block of rows: what is added stands in it, and nothing is left when it is cleared.
#include "convert/rows.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(RowBlock, ARowHasItsNameItsValuesAndItsLine) {
    RowBlock block;
    block.add("a", {.first = 1, .second = 2, .height = 3}, 4);
    block.addUnread("b", 5, "no number");
    ASSERT_EQ(block.size(), 2U);
    EXPECT_EQ(block.names, (std::vector<std::string_view>{"a", "b"}));
    EXPECT_EQ(block.lines, (std::vector<long>{4, 5}));
    EXPECT_EQ(block.given[0].first, 1);
    EXPECT_EQ(block.given[0].second, 2);
    EXPECT_EQ(block.given[0].height, 3);
    EXPECT_EQ(block.statuses, (std::map<std::size_t, std::string>{{1, "no number"}}));
}

TEST(RowBlock, AClearedOneHoldsNothing) {
    RowBlock block;
    block.addUnread("a", 1, "no number");
    block.points.resize(1);
    block.text = "text";
    block.raw.push_back({.offset = 0, .length = 4});
    block.kept.emplace_back("kept");
    block.written = "written";
    block.clear();
    EXPECT_EQ(block.size(), 0U);
    EXPECT_TRUE(block.names.empty());
    EXPECT_TRUE(block.lines.empty());
    EXPECT_TRUE(block.statuses.empty());
    EXPECT_TRUE(block.points.empty());
    EXPECT_TRUE(block.text.empty());
    EXPECT_TRUE(block.raw.empty());
    EXPECT_TRUE(block.kept.empty());
    EXPECT_TRUE(block.written.empty());
}

}  // namespace
}  // namespace kelvo
