#include "shell/data_file_words.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "batch/language.h"

namespace kelvo {
namespace {

// A letter for each word: Command, Name, NOrth (X), East (Y), Height, Figure, remark *, unread -.
std::string kindsOf(std::string_view line, LinesToCome& state) {
    static const std::map<WordKind, char> letters{
        {WordKind::Command, 'C'}, {WordKind::Name, 'N'},   {WordKind::North, 'X'},
        {WordKind::East, 'Y'},    {WordKind::Height, 'H'}, {WordKind::Number, 'F'},
        {WordKind::Comment, '*'}, {WordKind::Unread, '-'}};
    std::string kinds;
    for (const DataFileWord& word : wordsOfDataLine(line, state)) kinds += letters.at(word.kind);
    return kinds;
}

std::string kindsOfFile(std::initializer_list<std::string_view> lines) {
    LinesToCome state;
    std::string kinds;
    for (const std::string_view line : lines) kinds += kindsOf(line, state) + "|";
    return kinds;
}

TEST(DataFileWords, PointsGoOnBelowTheirFirstLine) {
    EXPECT_EQ(kindsOfFile({"WGS  인천No-3  37.35  126.32 30.1  도근점",
                           "     부두끝 37.35,126.32,31", "   ", "     혼자 37.35 126.32 31"}),
              "CNXYH-|NXYH||----|");
    EXPECT_EQ(kindsOfFile({"tm A 1 2 3", "   B 1 2 3"}), "CNXYH|NXYH|");
}

TEST(DataFileWords, ParametersTakeTheLinesThatTheyNeed) {
    EXPECT_EQ(
        kindsOfFile({"7 para", "115.8 -474.99 -674.11", " 1.16 -2.31 -1.63", "-6.43", "zone 2"}),
        "CC|FFF|FFF|F|CF|");
    EXPECT_EQ(kindsOfFile({"UTM PARA 비고", " 1 2", " 3 4", "5 6", " 7", "end", "WGS A 1 2 3"}),
              "CC-|FF|FF|FF|F|C|-----|");
}

TEST(DataFileWords, UtmIsAnOriginOrPoints) {
    EXPECT_EQ(kindsOfFile({"UTM 129", "   A 1 2 3"}), "CF|----|");
    EXPECT_EQ(kindsOfFile({"UTM A 4162723.3 283142.8 3", "   B 1 2 3"}), "CNXYH|NXYH|");
}

TEST(DataFileWords, OfUtmArePointsWhereEitherCoordinateIsANumber) {
    EXPECT_EQ(kindsOfFile({"utm 123"}), "CF|");
    EXPECT_EQ(kindsOfFile({"utm 123 5"}), "CNX|");
    EXPECT_EQ(kindsOfFile({"utm 123 x 5"}), "CNXY|");
    EXPECT_EQ(kindsOfFile({"utm 123 4 5 6", "    124 4 5 6"}), "CNXYH|NXYH|");
}

TEST(DataFileWords, StandWhereTheyStandInTheirLine) {
    const auto placesOf = [](std::string_view line) {
        LinesToCome state;
        std::string places;
        for (const DataFileWord& word : wordsOfDataLine(line, state))
            places += std::to_string(word.at) + "+" + std::to_string(word.length) + " ";
        return places;
    };
    EXPECT_EQ(placesOf("* 비고 1"), "0+10 ");  // in bytes
    EXPECT_EQ(placesOf("*"), "0+1 ");
    EXPECT_EQ(placesOf("WGS  A 37.3 126,5"), "0+3 5+1 7+4 12+3 16+1 ");
}

TEST(DataFileWords, CommentsAndUnknownWordsAreShownAsSuch) {
    EXPECT_EQ(kindsOfFile({"*  시점부터 종점까지", "SEVEN 1 2", "", "   홀로 37 126 3"}),
              "*|---||----|");
}

TEST(DataFileWords, DistancesNameTwoPoints) {
    EXPECT_EQ(kindsOfFile({"DIST A B 비고", "     C D", "INPUT deg"}), "CNN-|NN|CF|");
}

TEST(DataFileWords, EveryWordOfTheLanguageIsACommandInItsOwnLine) {
    for (const CommandWord& word : commandWords()) {
        LinesToCome state;
        EXPECT_EQ(kindsOf(std::string(word.word) + " x", state).front(), 'C') << word.word;
    }
}

TEST(DataFileWords, PlacesAreBytesOfTheLine) {
    LinesToCome state;
    const auto words = wordsOfDataLine("WGS 인천 37", state);
    ASSERT_EQ(words.size(), 3U);
    EXPECT_EQ(words[1].at, 4U);
    EXPECT_EQ(words[1].length, 6U);
    EXPECT_EQ(words[2].at, 11U);
}

}  // namespace
}  // namespace kelvo
