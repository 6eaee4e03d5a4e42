// What the check says of words: every sentence whole, with its place.
#include <gtest/gtest.h>

#include "batch/check_bench.h"
#include "batch/language.h"

namespace kelvo {
namespace {

using testing::check;
using testing::placed;

// What is said of lines with a point after them, in front of which nothing else is wrong.
std::string saidBeforePoint(const std::string& lines) {
    return placed(check(lines + "WGS A 37.3533 126.3229 0\nend\n\n"));
}

std::string saidAfterPoint(const std::string& lines) {
    return placed(check("WGS A 37.3533 126.3229 0\n" + lines + "end\n\n"));
}

const std::string kShiftLines = "115.8 -474.99 -674.11\n1.16 -2.31 -1.63\n-6.43\n";
const std::string kGridLines = "6377397.155 299.1528128\n38 127\n500000 200000\n1\n";

const std::string kUtmGridLines = "6377397.155 299.1528128\n0 129\n0 500000\n0.9996\n";

TEST(CheckWords, ALineWithoutACommandIsNamedAndTakenForAPointIfItLooksLikeOne) {
    const std::string skipped = "1:1+5 어느 명령도 아니어서 건너뜁니다: \"hello\"";
    const std::string point = " (점이면 앞에 WGS, UGS, TM, UTM을 쓰십시오)";
    for (const std::string line : {"hello", "hello 1", "hello 1 x", "hello x 1", "hello 0 0"})
        EXPECT_EQ(saidBeforePoint(line + "\n"), skipped + "\n") << line;
    for (const std::string line : {"hello 0 1", "hello 1 0", "hello 37.3533 126.3229"})
        EXPECT_EQ(saidBeforePoint(line + "\n"), skipped + point + "\n") << line;
    EXPECT_EQ(saidBeforePoint("  hello 1 x\n"),
              "1:3+5 어느 명령도 아니어서 건너뜁니다: \"hello\"\n");
}

TEST(CheckWords, ALineIndentedByThreeBlanksBelongsToABlockThatEndedOrNeverBegan) {
    EXPECT_EQ(saidBeforePoint("   B 37.3534 126.3230 0\n"),
              "1 이어지는 줄이지만 앞에 점이나 DIST의 줄이 없어 건너뜁니다\n");
    EXPECT_EQ(saidAfterPoint("* 비고\n    B 37.3534 126.3230 0\n   word\n"),
              "3 앞의 블록이 2번째 줄에서 끝나 이 줄은 건너뜁니다\n"
              "4 앞의 블록이 2번째 줄에서 끝나 이 줄은 건너뜁니다\n");
}

TEST(CheckWords, AnIndentOfLessOrOfOtherBlanksContinuesNothing) {
    const std::string said =
        "2 이어지는 줄은 빈칸 세 개 이상으로 시작해야 합니다. 이 줄은 건너뜁니다\n";
    for (const std::string indent : {" ", "  ", "\t", "\xE3\x80\x80", "\xE3\x80\x80\xE3\x80\x80"})
        EXPECT_EQ(saidAfterPoint(indent + "B 37.3534 126.3230 0\n"), said) << indent;
    EXPECT_EQ(saidAfterPoint(" * 37.3534 126.3230 0\n"), "");
    EXPECT_EQ(saidAfterPoint("\xE3\x80\x80* 37.3534 126.3230 0\n"), "");
    EXPECT_EQ(saidAfterPoint("\xE3\x80\x80 \n"), "");
}

TEST(CheckWords, AWordThatOnlyResemblesACommandIsNamedWithTheCommandThatItIs) {
    struct Case {
        std::string word;
        std::string command;
        std::string rest;  // of its line, and the lines after it
    };
    for (const Case& each : std::vector<Case>{{"7PX", "7 para", "\n" + kShiftLines},
                                              {"1STX", "1st", " 0 0 0\n"},
                                              {"zoned", "zone", " 2\n"},
                                              {"address", "add", " 1\n"},
                                              {"inch", "INPUT", " ddd.mmssss\n"},
                                              {"outside", "OUTPUT", " deg\n"},
                                              {"comment", "CORRECTION", "\n"},
                                              {"note", "NOCORRECTION", "\n"},
                                              {"TMPARAX", "TM para", "\n" + kGridLines},
                                              {"UTMPARAX", "UTM para", "\n" + kUtmGridLines}})
        EXPECT_EQ(saidBeforePoint(each.word + each.rest),
                  "1:1+" + std::to_string(each.word.size()) + " \"" + each.word + "\"은(는) " +
                      each.command + " 명령으로 읽힙니다. 명령은 첫 두 글자로만 가립니다\n");
    for (const Case& each : std::vector<Case>{{"TMX", "TM", " B 455000 160000 0\n"},
                                              {"utmx", "UTM", " B 4164000 283000 0\n"},
                                              {"WGA", "WGS", " B 37.3534 126.3230 0\n"},
                                              {"WGZ", "WGS", " B 37.3534 126.3230 0\n"},
                                              {"ugly", "UGS", " B 37.3534 126.3230 0\n"}})
        EXPECT_EQ(saidAfterPoint(each.word + each.rest),
                  "2:1+" + std::to_string(each.word.size()) + " \"" + each.word + "\"은(는) " +
                      each.command + " 명령으로 읽힙니다. 명령은 첫 두 글자로만 가립니다\n");
    EXPECT_EQ(saidAfterPoint("   B 37.3534 126.3230 0\ndigits A B\n"),
              "3:1+6 \"digits\"은(는) DIST 명령으로 읽힙니다. 명령은 첫 두 글자로만 가립니다\n");
    EXPECT_EQ(placed(check("WGS A 37.3533 126.3229 0\nENGLISH\n\n")),
              "2:1+7 \"ENGLISH\"은(는) end 명령으로 읽힙니다. 명령은 첫 두 글자로만 가립니다\n");
}

TEST(CheckWords, BeginningsOfACommandAndMarksAfterItAreTheCommand) {
    for (const std::string& line : std::vector<std::string>{"7para\n" + kShiftLines,
                                                            "7PARAMETERS\n" + kShiftLines,
                                                            "1st 0 0 0\n",
                                                            "1st-corr 0 0 0\n",
                                                            "1STCORRECTION 0 0 0\n",
                                                            "co\n",
                                                            "Corr.\n",
                                                            "CORRECTION\n",
                                                            "no\n",
                                                            "NOCORR\n",
                                                            "ZO 2\n",
                                                            "ad 1\n",
                                                            "IN ddd.mmssss\n",
                                                            "INPUT: ddd.mmssss\n",
                                                            "ou deg\n",
                                                            "WGS84 B 37.3534 126.3230 0\n",
                                                            "WGS[84] B 37.3534 126.3230 0\n",
                                                            "WGS@ B 37.3534 126.3230 0\n",
                                                            "UG B 37.3534 126.3230 0\n",
                                                            "TM para\n" + kGridLines,
                                                            "TMPARA\n" + kGridLines,
                                                            "UTM  para\n" + kUtmGridLines,
                                                            "UTMPARA\n" + kUtmGridLines}) {
        EXPECT_EQ(saidBeforePoint(line), "") << line;
    }
}

TEST(CheckWords, NumbersOnTheLineOfSevenParametersAreSaidNotToBeRead) {
    const auto said = [](const std::string& line) {
        return saidBeforePoint(line + "\n" + kShiftLines);
    };
    EXPECT_EQ(
        said("7 115.8"),
        "1:1+1 \"7\" 다음에 빈칸이 있어 7 para 명령으로 읽히고, 다음 세 줄이 그 값이 됩니다\n");
    const std::string unread = " 7 para 줄의 수는 읽지 않습니다. 다음 세 줄이 그 값이 됩니다\n";
    EXPECT_EQ(said("7 para 1 2 3"), "1:8+1" + unread);
    EXPECT_EQ(said("7para 11 2 3"), "1:7+2" + unread);
    for (const std::string line :
         {"7 para 1 2", "7 para 1 2 x", "7 para 1 x 3", "7 para x 2 3", "7para 1 2", "7para 1 2 x",
          "7para 1 x 3", "7para x 2 3", "7 para 2002"})
        EXPECT_EQ(said(line), "") << line;
}

TEST(CheckWords, AFormOfAnglesToReadIsOneOfTwo) {
    EXPECT_EQ(saidBeforePoint("INPUT\n"),
              "1:1+5 INPUT 뒤에 각도의 형태가 없어 ddd.mmssss로 읽습니다\n");
    for (const std::string form : {"grad", "ddd", "degr", "ddd-mm", "xddd.m"})
        EXPECT_EQ(saidBeforePoint("INPUT " + form + "\n"),
                  "1:7+" + std::to_string(form.size()) +
                      " INPUT의 형태는 deg와 ddd.mmssss뿐입니다. \"" + form +
                      "\"이면 ddd.mmssss로 읽습니다\n");
    for (const std::string form : {"deg", "DEG", "ddd.mmssss", "ddd.m"})
        EXPECT_EQ(saidBeforePoint("INPUT " + form + "\n"), "") << form;
}

TEST(CheckWords, AFormOfAnglesToPrintIsOneOfFour) {
    EXPECT_EQ(saidBeforePoint("OUTPUT\n"),
              "1:1+6 OUTPUT 뒤에 각도의 형태가 없어 ddd.mmssss로 나옵니다\n");
    for (const std::string form : {"grad", "dms", "degr", "dddx", "xddd-"})
        EXPECT_EQ(saidBeforePoint("OUTPUT " + form + "\n"),
                  "1:8+" + std::to_string(form.size()) +
                      " OUTPUT의 형태는 deg, ddd mm ss.ss, ddd-mm-ss.ss, ddd.mmssss입니다. \"" +
                      form + "\"이면 ddd.mmssss로 나옵니다\n");
    for (const std::string form :
         {"deg", "Deg", "ddd", "ddd mm ss.ss", "ddd-mm-ss.ss", "ddd-", "ddd.mmssss", "DDD.M"})
        EXPECT_EQ(saidBeforePoint("OUTPUT " + form + "\n"), "") << form;
}

TEST(CheckWords, ACorrectionIsSaidNotToBeSwitchedOffByAWordAfterIt) {
    for (const std::string word : {"off", "OFF", "no", "NO", "0", "안함"})
        EXPECT_EQ(saidBeforePoint("CORRECTION " + word + "\n"),
                  "1:12+" + std::to_string(word == "안함" ? 2 : word.size()) +
                      " CORRECTION은 뒤의 말과 관계없이 보정을 켭니다. 끄려면 NO CORR라고 "
                      "쓰십시오\n");
    for (const std::string word : {"", " on", " 1", " 00", " none", " x off"})
        EXPECT_EQ(saidBeforePoint("CORRECTION" + word + "\n"), "") << word;
}

TEST(CheckWords, AHeadingThatSwitchesTheCorrectionOffIsNamedWhileItIsOn) {
    EXPECT_EQ(saidBeforePoint("CORRECTION\nNo 이름 위도\n"),
              "2:1+2 \"No\"은(는) NO CORR 명령으로 읽혀 보정이 꺼집니다\n");
    for (const std::string heading : {"No 1 2", "No 이름"})
        EXPECT_EQ(saidBeforePoint("CORRECTION\n" + heading + "\n"),
                  "2:1+2 \"No\"은(는) NO CORR 명령으로 읽혀 보정이 꺼집니다\n");
    for (const std::string lines :
         {"CORRECTION\nNO\n", "CORRECTION\nNO corr\n", "CORRECTION\nNO CORRECTION\n",
          "CORRECTION\nNO corr x\n", "CORRECTION\nNO 보정\n", "No 이름 위도\n"})
        EXPECT_EQ(saidBeforePoint(lines), "") << lines;
}

TEST(CheckWords, APointWhoseNameBeginsWithParaIsSaidToBeTakenForParameters) {
    const auto said = [](const std::string& line) {
        return saidBeforePoint(line + "\n" + (line[0] == 'U' ? kUtmGridLines : kGridLines));
    };
    const std::string taken =
        " 줄의 수는 읽지 않습니다. 다음 네 줄이 그 값이 됩니다. 점의 줄이면 이름이 PARA로 시작하지 "
        "않아야 합니다\n";
    EXPECT_EQ(said("TM PARAN 377504.2 125963.9 0"), "1:4+5 TM para" + taken);
    EXPECT_EQ(said("TMPARA 1 2"), "1:1+6 TM para" + taken);
    EXPECT_EQ(said("UTM para 1 2"), "1:5+4 UTM para" + taken);
    for (const std::string line : {"TM para 1", "TM para 1 x", "TM para x 2", "UTM para 1",
                                   "TM para Jeju", "TMPARA 1", "TMPARA x 1"})
        EXPECT_EQ(said(line), "") << line;
}

}  // namespace
}  // namespace kelvo
