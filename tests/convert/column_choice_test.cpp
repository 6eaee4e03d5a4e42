#include "convert/column_choice.h"

#include <gtest/gtest.h>

#include <tuple>

#include "convert/refusal.h"

namespace kelvo {
namespace {

using Row = std::vector<std::string_view>;

std::vector<std::size_t> places(const std::string& wishes, const Row& row, bool isHeader) {
    const ColumnPlaces p = placesOf(columnWishesOf(wishes), row, isHeader);
    return {p.name, p.first, p.second, p.third};
}

const Row kHeader{"id", " lat", "lon ", "h", "LAT"};

TEST(ColumnChoice, ColumnsAreFoundByNumberAndByName) {
    EXPECT_EQ(places("4,3,2,1", kHeader, true), (std::vector<std::size_t>{3, 2, 1, 0}));
    EXPECT_EQ(places("id,lat,lon,h", kHeader, true), (std::vector<std::size_t>{0, 1, 2, 3}));
    EXPECT_EQ(places("1, lat ,3,h", kHeader, true), (std::vector<std::size_t>{0, 1, 2, 3}));
}

TEST(ColumnChoice, TheCaseOfANameCounts) {
    EXPECT_EQ(places("id,LAT,lon", kHeader, true)[1], 4U);
    EXPECT_THROW(std::ignore = places("id,Lat,lon", kHeader, true), Refusal);
}

TEST(ColumnChoice, NameAndThirdValueMayBeLeftOut) {
    EXPECT_EQ(places("-,2,3,-", kHeader, true),
              (std::vector<std::size_t>{kNoColumn, 1, 2, kNoColumn}));
    EXPECT_EQ(places("1,2,3", kHeader, true)[3], kNoColumn);
}

TEST(ColumnChoice, FirstAndSecondValueMayNot) {
    for (const char* text : {"1,-,3", "1,2,-", "1,2", "1"})
        EXPECT_THROW(std::ignore = columnWishesOf(text), Refusal) << text;
}

TEST(ColumnChoice, WhatIsNotThereIsRefused) {
    for (const char* text : {"1,2,6", "0,1,2", "1,2,north", "1,2,3,99999999999999999999"})
        EXPECT_THROW(std::ignore = places(text, kHeader, true), Refusal) << text;
}

TEST(ColumnChoice, ANameNeedsAHeader) {
    EXPECT_THROW(std::ignore = places("id,2,3", {"id", "1", "2"}, false), Refusal);
}

TEST(ColumnChoice, OneNamedTwiceIsRefused) {
    for (const char* text : {"1,2,2", "1,lat,lat", "1,2,lat", "id,2,3,1"})
        EXPECT_THROW(std::ignore = places(text, kHeader, true), Refusal) << text;
    EXPECT_THROW(std::ignore = places("1,x,2", {"a", "b", "x", "x"}, true), Refusal);
}

TEST(ColumnChoice, MoreThanFourAndEmptyEntriesAreRefused) {
    for (const char* text : {"1,2,3,4,5", "1,,3", "", "1,2,3,"})
        EXPECT_THROW(std::ignore = columnWishesOf(text), Refusal) << text;
}

TEST(ColumnChoice, TheUsualColumnsNeedNotBeThere) {
    const ColumnPlaces usual = placesOf({}, {"a", "b"}, true);
    EXPECT_EQ(usual.third, 3U);
}

// Why the wishes are refused, by themselves or for this row.
std::string whyNot(const std::string& wishes, const Row& row = kHeader, bool isHeader = true) {
    try {
        std::ignore = placesOf(columnWishesOf(wishes), row, isHeader);
    } catch (const Refusal& refused) {
        return refused.what();
    }
    return "";
}

TEST(ColumnChoice, ARefusalSaysWhatIsWrong) {
    EXPECT_EQ(whyNot("1,,3"), "--columns: an entry is empty");
    EXPECT_EQ(whyNot("1,0,3"), "--columns: there is no column 0; they count from 1");
    EXPECT_EQ(whyNot("1,99999999999999999999,3"),
              "--columns: there is no column 99999999999999999999; they count from 1");
    EXPECT_EQ(whyNot("1,2,6"), "--columns: there is no column 6; the first line has 5");
    EXPECT_EQ(whyNot("1,2,5"), "");
    EXPECT_EQ(whyNot("1,north,3"), "--columns: there is no column north in the header");
    EXPECT_EQ(whyNot("1,lat,3", kHeader, false),
              "--columns: there is no column lat; the first line is no header");
    EXPECT_EQ(whyNot("1,x,2", {"a", "b", "x", "x"}), "--columns: the header names x twice");
    EXPECT_EQ(whyNot("1,2,3,4,5"), "--columns: more than four entries");
    EXPECT_EQ(whyNot("1,-,3"), "--columns: the first and the second value must be there");
    EXPECT_EQ(whyNot("1,2,-"), "--columns: the first and the second value must be there");
    for (const std::string twice : {"1,1,2", "1,2,1", "1,2,3,1", "4,2,2", "4,2,3,2", "4,2,3,3",
                                    "id,id,2", "1,h,2,h", "1,lat,lon,lon", "id,2,3,1", "1,2,lat"})
        EXPECT_EQ(whyNot(twice), "--columns: a column is named twice") << twice;
    EXPECT_EQ(whyNot("-,2,3,-"), "");
}

TEST(ColumnChoice, AWishIsANumberOrAName) {
    const ColumnWishes wishes = columnWishesOf(" 9 ,0a,12b");
    EXPECT_TRUE(wishes.chosen);
    EXPECT_EQ(wishes.columns[0]->number, 9U);
    EXPECT_EQ(wishes.columns[1]->number, 0U);
    EXPECT_EQ(wishes.columns[1]->name, "0a");
    EXPECT_EQ(wishes.columns[2]->name, "12b");
    EXPECT_FALSE(wishes.columns[3]);
    EXPECT_TRUE(wishes.byName());
    EXPECT_FALSE(columnWishesOf("1,2,3").byName());
    EXPECT_FALSE(ColumnWishes{}.byName());
    EXPECT_TRUE(columnWishesOf("1,2,3,h").byName());
}

TEST(ColumnChoice, NumberedColumnsHavePlacesAndNamedOnesHaveNoneYet) {
    const auto numbered = [](const ColumnWishes& wishes) {
        const ColumnPlaces p = numberedPlaces(wishes);
        return std::vector<std::size_t>{p.name, p.first, p.second, p.third};
    };
    EXPECT_EQ(numbered({}), (std::vector<std::size_t>{0, 1, 2, 3}));
    EXPECT_EQ(numbered(columnWishesOf("4,1,3,2")), (std::vector<std::size_t>{3, 0, 2, 1}));
    EXPECT_EQ(numbered(columnWishesOf("id,1,h,-")),
              (std::vector<std::size_t>{kNoColumn, 0, kNoColumn, kNoColumn}));
}

}  // namespace
}  // namespace kelvo
