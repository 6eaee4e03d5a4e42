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

}  // namespace
}  // namespace kelvo
