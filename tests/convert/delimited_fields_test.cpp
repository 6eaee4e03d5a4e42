#include "convert/delimited_fields.h"

#include <gtest/gtest.h>

#include <string>

namespace kelvo {
namespace {

std::vector<std::string> fieldsOf(std::string row, char delimiter = ',') {
    const auto views = allFields(row, delimiter);
    return {views.begin(), views.end()};
}

using Texts = std::vector<std::string>;

TEST(DelimitedFields, AreSplitAtTheDelimiter) {
    EXPECT_EQ(fieldsOf("a,b;c,d"), (Texts{"a", "b;c", "d"}));
    EXPECT_EQ(fieldsOf("a\t\tb", '\t'), (Texts{"a", "", "b"}));
    EXPECT_EQ(fieldsOf(","), (Texts{"", ""}));
    EXPECT_EQ(fieldsOf(""), (Texts{""}));
}

TEST(DelimitedFields, QuotesKeepDelimitersAndLineEndsAndDoubledQuotes) {
    EXPECT_EQ(fieldsOf("\"a,b\",\"c\nd\",\"e\"\"f\",\"\""), (Texts{"a,b", "c\nd", "e\"f", ""}));
    EXPECT_EQ(fieldsOf("\"\"\"\",x"), (Texts{"\"", "x"}));
}

TEST(DelimitedFields, AQuoteInsideAFieldIsALetter) {
    EXPECT_EQ(fieldsOf("5\" pipe,6"), (Texts{"5\" pipe", "6"}));
    EXPECT_EQ(fieldsOf("\"a\"b,c"), (Texts{"ab", "c"}));
}

TEST(DelimitedFields, AQuoteThatIsNeverClosedIsNoticed) {
    std::string row = "a,\"b,c";
    std::vector<std::string_view> fields(4);
    const SplitRow split = splitFields(row, ',', fields);
    EXPECT_TRUE(split.unclosedQuote);
    EXPECT_EQ(split.count, 2U);
    EXPECT_EQ(fields[1], "b,c");
}

TEST(DelimitedFields, FieldsWithoutRoomAreCounted) {
    std::string row = "a,b,c,d";
    std::vector<std::string_view> fields(2);
    EXPECT_EQ(splitFields(row, ',', fields).count, 4U);
    EXPECT_EQ(fields[1], "b");
}

TEST(DelimitedFields, TheDelimiterIsTheFirstOfCommaSemicolonTabThatTheRowHasOutsideQuotes) {
    EXPECT_EQ(delimiterOf("a;b\tc,d"), ',');
    EXPECT_EQ(delimiterOf("a\tb;c"), ';');
    EXPECT_EQ(delimiterOf("\"a,b\"\tc"), '\t');
    EXPECT_EQ(delimiterOf("\"a,b\";\"c,d\""), ';');
    EXPECT_EQ(delimiterOf("a"), ',');
}

TEST(DelimitedFields, ARowEndsAtALineEndOutsideQuotes) {
    EXPECT_EQ(endOfRow("a,b\nc", ','), 3U);
    EXPECT_EQ(endOfRow("a,\"b\nc\"\nd", ','), 7U);
    EXPECT_EQ(endOfRow("a\"\nb\"\n", ','), 2U);
    EXPECT_EQ(endOfRow("\"a\"\"\n\"\"\"\n", ','), 8U);
    EXPECT_EQ(endOfRow("a,b", ','), std::string_view::npos);
    EXPECT_EQ(endOfRow("\"a\n", ','), std::string_view::npos);
}

TEST(DelimitedFields, ALineEndIsLfOrCrLf) {
    EXPECT_EQ(withoutLineEnd("a\r\n"), "a");
    EXPECT_EQ(withoutLineEnd("a\n"), "a");
    EXPECT_EQ(withoutLineEnd("a\r\r\n"), "a\r");
    EXPECT_EQ(withoutLineEnd("a"), "a");
}

TEST(DelimitedFields, TheFirstLineEndsAtALineEndOutsideQuotes) {
    EXPECT_EQ(firstLineOf("a,b\nc"), "a,b");
    EXPECT_EQ(firstLineOf("\na"), "");
    EXPECT_EQ(firstLineOf("a\"b\nc\"d\ne"), "a\"b\nc\"d");
    EXPECT_EQ(firstLineOf("\"a\nb"), "\"a\nb");
    EXPECT_EQ(firstLineOf(""), "");
}

TEST(DelimitedFields, AQuoteCountsAtTheStartOfAnyFieldAndNowhereElse) {
    EXPECT_EQ(endOfRow("a;\"b\nc\"\nd", ';'), 7U);
    EXPECT_EQ(endOfRow("a;\"b\nc\"\nd", ','), 4U);
    EXPECT_EQ(endOfRow("\"a\"\"b\n", ','), std::string_view::npos);
    EXPECT_EQ(endOfRow("\"a\"x\"\n\"", ','), 5U);
    EXPECT_EQ(endOfRow("\"\"\n", ','), 2U);
    EXPECT_EQ(endOfRow("x\"\n", ','), 2U);
    EXPECT_EQ(endOfRow("\n\"", ','), 0U);
    EXPECT_EQ(endOfRow("", ','), std::string_view::npos);
}

TEST(DelimitedFields, AfterItsClosingQuoteAFieldGoesOnToTheDelimiter) {
    EXPECT_EQ(fieldsOf("\"a,b\"c\"d,e"), (Texts{"a,bc\"d", "e"}));
    EXPECT_EQ(fieldsOf("\"\",\"\"\"\",\"a\"\""), (Texts{"", "\"", "a\""}));
    EXPECT_EQ(fieldsOf("a,"), (Texts{"a", ""}));
    EXPECT_EQ(fieldsOf("\""), (Texts{""}));
    EXPECT_EQ(fieldsOf("\"a"), (Texts{"a"}));
}

TEST(DelimitedFields, OnlyTheLastFieldCanBeUnclosed) {
    std::vector<std::string_view> fields(4);
    std::string closed = "\"a\",\"b\"";
    EXPECT_FALSE(splitFields(closed, ',', fields).unclosedQuote);
    EXPECT_EQ(fields[0], "a");
    EXPECT_EQ(fields[1], "b");
    std::string doubled = "a,\"b\"\"";
    EXPECT_TRUE(splitFields(doubled, ',', fields).unclosedQuote);
}

}  // namespace
}  // namespace kelvo
