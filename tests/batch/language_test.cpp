// Which words are which command: by two letters, never by more, and by the places of PARA.
#include "batch/language.h"

#include <gtest/gtest.h>

#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;
using enum Command;

struct Case {
    const char* keyLine;
    std::optional<Command> command;
};

void expectCommands(std::initializer_list<Case> cases) {
    for (const Case& c : cases) EXPECT_EQ(commandOf(c.keyLine), c.command) << c.keyLine;
}

TEST(CommandOf, TwoLettersSelectWhateverWordTheyBegin) {
    expectCommands({{"7 ", SevenParameters},
                    {"7PX ", SevenParameters},
                    {"1SX ", FirstAdjustment},
                    {"1 ", FirstAdjustment},
                    {"COX ", Correction},
                    {"COMMENT ", Correction},
                    {"NOX ", NoCorrection},
                    {"NOTE ", NoCorrection},
                    {"ZOX 3 ", Zone},
                    {"ADX 0 ", Add},
                    {"INX DEG ", Input},
                    {"OUX DEG ", Output},
                    {"TMX ", TmPoints},
                    {"UTX ", UtmPointsOrOrigin},
                    {"WGX ", WgsPoints},
                    {"UGX ", UserPoints},
                    {"DIGITS ", Distance},
                    {"ENX ", End},
                    {"ENGLISH ", End}});
}

TEST(CommandOf, TheTwoLettersAloneSelect) {
    expectCommands({{"CO ", Correction},
                    {"NO ", NoCorrection},
                    {"ZO ", Zone},
                    {"AD ", Add},
                    {"IN ", Input},
                    {"OU ", Output},
                    {"TM ", TmPoints},
                    {"UT ", UtmPointsOrOrigin},
                    {"WG ", WgsPoints},
                    {"UG ", UserPoints},
                    {"DI ", Distance},
                    {"EN ", End}});
}

TEST(CommandOf, OneLetterOrASeparatorBetweenTheTwoSelectsNothing) {
    expectCommands({{"", std::nullopt},
                    {"7X ", std::nullopt},
                    {"7", std::nullopt},
                    {"1X ", std::nullopt},
                    {"10 ", std::nullopt},
                    {"W GS ", std::nullopt},
                    {"E ND ", std::nullopt},
                    {"*WGS ", std::nullopt},
                    {"* WGS ", std::nullopt}});
}

TEST(CommandOf, ParaStandsAtTheThirdOrFourthCharacterForTm) {
    expectCommands({{"TMPARA ", TmParameters},
                    {"TMXPARA ", TmParameters},
                    {"TM PARA ", TmParameters},
                    {"TM PARADISE ", TmParameters},
                    {"TMXYPARA ", TmPoints},
                    {"TM XPARA ", TmPoints},
                    {"TMX PARA ", TmPoints},
                    {"TM PAR ", TmPoints}});
}

TEST(CommandOf, ParaStandsAtTheFourthOrFifthCharacterForUtm) {
    expectCommands({{"UTMPARA ", UtmParameters},
                    {"UTMXPARA ", UtmParameters},
                    {"UTM PARA ", UtmParameters},
                    {"UT PARA ", UtmParameters},
                    {"UTPARA ", UtmPointsOrOrigin},
                    {"UTMXYPARA ", UtmPointsOrOrigin},
                    {"UTM XPARA ", UtmPointsOrOrigin},
                    {"UTMX PARA ", UtmPointsOrOrigin}});
}

TEST(CommandOf, ParaMakesNoOtherCommandABlockOfParameters) {
    expectCommands({{"WGPARA ", WgsPoints},
                    {"WG PARA ", WgsPoints},
                    {"UGSPARA ", UserPoints},
                    {"UGS PARA ", UserPoints},
                    {"ZO PARA ", Zone},
                    {"DI PARA ", Distance}});
}

TEST(PointNames, MayHoldParaFromTheirSecondLetterOn) {
    BatchBench bench;
    bench.run("TM xpara 420000 210000 1\nUTM xpara 4100000 450000 1\nend\n\n");
    ASSERT_EQ(bench.points(), 2);
    EXPECT_EQ(bench.row(1).name, "xpara");
    EXPECT_EQ(bench.row(2).name, "xpara");
}

TEST(Keys, LongerWordsThatBeginAlikeAreCarriedOut) {
    BatchBench bench;
    bench.run("INSIDE deg\nADVICE 0\nWGxyz a 37.5 127.25 1\nENGLISH\nWGS b 37.5 127.25 1\n\n");
    ASSERT_EQ(bench.points(), 1);
    EXPECT_EQ(bench.row(1).WgsLam, 127.25) << "read as degrees";
    EXPECT_EQ(bench.countOut(" 경도에가산 =   0.000초"), 1);
    EXPECT_EQ(bench.fault, 0);
}

TEST(Keys, SevenWithALetterThatIsNoPIsPassedOverWithItsLines) {
    BatchBench bench;
    bench.run("7x\n5 5 5\nWGS a 37.3 127 1\nend\n\n");
    ASSERT_EQ(bench.points(), 1) << "no further line belongs to it";
    EXPECT_EQ(bench.state.datum.shift.dX, 115.8);
}

TEST(CommandWords, TheKeyAndTheWordBeginTheLongestForm) {
    for (const CommandWord& word : commandWords()) {
        const std::string letters(word.key.substr(0, word.key.find(' ')));
        EXPECT_TRUE(word.longest.starts_with(letters)) << word.word;
        EXPECT_EQ(commandOf(std::string(word.longest) + " "), word.command) << word.longest;
    }
}

}  // namespace
}  // namespace kelvo
