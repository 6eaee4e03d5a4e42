#include "common/fields.h"

#include <gtest/gtest.h>

#include "support/faults.h"

namespace kelvo {
namespace {

using genSub::JoinFields;
using genSub::ParseFields;
using testing::faultOf;

FieldStore parsed(std::string line, int limit = 100) {
    FieldStore store;
    store.LineBuf = std::move(line);
    ParseFields(store, limit);
    return store;
}

void expectNoFields(const FieldStore& store) {
    for (int n = 0; n <= 100; ++n) {
        EXPECT_EQ(store.FieldStr(n), "");
        EXPECT_EQ(store.FieldNum(n), 0);
        EXPECT_EQ(store.FieldSng(n), 0.0F);
    }
}

TEST(ParseFields, AnEmptyLineHasNoFields) {
    expectNoFields(parsed(""));
}

TEST(ParseFields, ALineOfBlanksHasNoFields) {
    expectNoFields(parsed("      "));
}

TEST(ParseFields, ALineOfCommasAndTabsHasNoFields) {
    expectNoFields(parsed(" ,\t,,\t \t, "));
}

TEST(ParseFields, BlanksCommasAndTabsMixedGiveTheFieldsOfSingleBlanks) {
    const FieldStore store = parsed("  \tWGS ,,\t A-1, 37.5\t\t,127.5   30 ,");
    EXPECT_EQ(store.FieldStr(1), "WGS");
    EXPECT_EQ(store.FieldStr(2), "A-1");
    EXPECT_EQ(store.FieldStr(3), "37.5");
    EXPECT_EQ(store.FieldStr(4), "127.5");
    EXPECT_EQ(store.FieldStr(5), "30");
    EXPECT_EQ(store.FieldStr(6), "");
}

TEST(ParseFields, TwoCommasGiveTwoFieldsAndNoEmptyOneBetween) {
    const FieldStore store = parsed("1,,2");
    EXPECT_EQ(store.FieldStr(1), "1");
    EXPECT_EQ(store.FieldStr(2), "2");
    EXPECT_EQ(store.FieldStr(3), "");
}

TEST(ParseFields, TheNulCharacterSeparates) {
    const FieldStore store = parsed(std::string("\0a\0\0b\0", 6));
    EXPECT_EQ(store.FieldStr(1), "a");
    EXPECT_EQ(store.FieldStr(2), "b");
    EXPECT_EQ(store.FieldStr(3), "");
}

TEST(ParseFields, PointHyphenPlusSlashAndQuotesAreOrdinaryCharacters) {
    const FieldStore store = parsed("a.b-c+d/e \"x y\"");
    EXPECT_EQ(store.FieldStr(1), "a.b-c+d/e");
    EXPECT_EQ(store.FieldStr(2), "\"x");
    EXPECT_EQ(store.FieldStr(3), "y\"");
}

TEST(ParseFields, AHangulLetterIsOneOrdinaryCharacterOfAField) {
    const FieldStore store = parsed("인천부두끝\t서울　원점");
    EXPECT_EQ(store.FieldStr(1), "인천부두끝");
    EXPECT_EQ(store.FieldStr(2), "서울　원점") << "a full-width blank doesn't separate";
}

TEST(ParseFields, EveryFieldOfTheLineBeforeIsGone) {
    FieldStore store = parsed("1 2 3 4 5 6 7 8 9 10");
    store.LineBuf = "x";
    ParseFields(store, 2);
    EXPECT_EQ(store.FieldStr(1), "x");
    for (int n = 2; n <= 100; ++n) {
        EXPECT_EQ(store.FieldStr(n), "");
        EXPECT_EQ(store.FieldNum(n), 0);
        EXPECT_EQ(store.FieldSng(n), 0.0F);
    }
}

TEST(ParseFields, TheLimitLeavesTheRestOfTheLineUnread) {
    const FieldStore store = parsed("1st corr    0.12    -0.23     0.76   ", 2);
    EXPECT_EQ(store.FieldStr(1), "1st");
    EXPECT_EQ(store.FieldNum(1), 1);
    EXPECT_EQ(store.FieldStr(2), "corr");
    EXPECT_EQ(store.FieldNum(2), 0);
    for (int n = 3; n <= 100; ++n) EXPECT_EQ(store.FieldStr(n), "");
}

TEST(ParseFields, LeavesLineBufAndEntryZeroAlone) {
    FieldStore store;
    store.strings[0] = "kept";
    store.LineBuf = "  a b ";
    ParseFields(store, 5);
    EXPECT_EQ(store.LineBuf, "  a b ");
    EXPECT_EQ(store.FieldStr(0), "kept");
}

TEST(ParseFields, AHundredFieldsAreTheMost) {
    std::string line;
    for (int n = 1; n <= 105; ++n) line += std::to_string(n) + " ";
    const FieldStore store = parsed(line, 100);
    EXPECT_EQ(store.FieldNum(100), 100);
    EXPECT_EQ(faultOf([&] { parsed(line, 101); }), 9);
}

TEST(FieldStore, AnIndexOutsideZeroToAHundredIsASubscriptFault) {
    const FieldStore store = parsed("a");
    EXPECT_EQ(faultOf([&] { return store.FieldStr(101); }), 9);
    EXPECT_EQ(faultOf([&] { return store.FieldNum(-1); }), 9);
    EXPECT_EQ(faultOf([&] { return store.FieldSng(101); }), 9);
    EXPECT_EQ(faultOf([&] { return store.FieldStr(0); }), 0);
}

TEST(FieldNum, KeepsAllDigitsOfACoordinateAndFieldSngDoesNot) {
    const FieldStore store = parsed("4098671.926334");
    EXPECT_EQ(store.FieldNum(1), 4098671.926334);
    EXPECT_EQ(store.FieldSng(1), 4098672.0F);
}

TEST(FieldNum, ANumberBeyondADoubleReadsAsZero) {
    EXPECT_EQ(parsed("1e400").FieldNum(1), 0);
}

TEST(FieldSng, IsTheDoubleRoundedOnceMore) {
    // just above the middle of two singles; the double is the middle, which goes to the even one
    EXPECT_EQ(parsed("1.00000005960464477539062500001").FieldSng(1), 1.0F);
    const FieldStore tiny = parsed("1e-50");
    EXPECT_EQ(tiny.FieldSng(1), 0.0F);
    EXPECT_EQ(tiny.FieldNum(1), 1e-50);
}

TEST(FieldSng, ANumberThatOnlyADoubleHoldsReadsAsZero) {
    const FieldStore store = parsed("1e39");
    EXPECT_EQ(store.FieldSng(1), 0.0F);
    EXPECT_EQ(store.FieldNum(1), 1e39);
}

TEST(JoinFields, PutsOneBlankBehindEveryField) {
    FieldStore store;
    store.LineBuf = "7";
    EXPECT_EQ(JoinFields(store, 1, 2), "7 ");
    store.LineBuf = "\t7,,para  국립지리원";
    EXPECT_EQ(JoinFields(store, 1, 2), "7 para ");
    EXPECT_EQ(JoinFields(store, 1, 3), "7 para 국립지리원 ");
    store.LineBuf = "";
    EXPECT_EQ(JoinFields(store, 1, 2), "");
}

TEST(JoinFields, StopsAtTheFirstEmptyField) {
    FieldStore store;
    store.LineBuf = "OUTPUT    ddd-mm-ssss   ";
    EXPECT_EQ(JoinFields(store, 2, 4), "ddd-mm-ssss ");
    store.LineBuf = "INPUT";
    EXPECT_EQ(JoinFields(store, 2, 4), "");
}

TEST(JoinFields, TheLimitOfTheParseBeforeIsLost) {
    FieldStore store = parsed("a b c d e");
    EXPECT_EQ(store.FieldStr(5), "e");
    EXPECT_EQ(JoinFields(store, 1, 2), "a b ");
    EXPECT_EQ(store.FieldStr(3), "");
}

TEST(TakeField, TakesTheFieldsThatALineIsSplitInto) {
    std::string_view rest = " ,a\t, b-1 ";
    EXPECT_EQ(genSub::takeField(rest), "a");
    EXPECT_EQ(genSub::takeField(rest), "b-1");
    EXPECT_EQ(genSub::takeField(rest), "");
    EXPECT_EQ(genSub::takeField(rest), "");
}

}  // namespace
}  // namespace kelvo
