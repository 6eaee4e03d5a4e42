// What the check gives as a whole: order, places, and agreement with runs.
#include "batch/check_data_file.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "batch/check_bench.h"
#include "common/code_page.h"
#include "support/batch_bench.h"
#include "support/golden_files.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using Kind = FindingKind;
using testing::check;
using testing::checkWithoutKnownPoints;
using testing::linesOf;
using testing::shown;
using LineNumbers = std::vector<long>;

TEST(CheckDataFile, FindsNothingInAFileWithoutSlips) {
    const std::string good =
        "* 인천의 세 점\n"
        "CORRECTION\n"
        "WGS    인천-1   37.353325   126.322934   68.1756\n"
        "       인천-2   37.354729   126.532243   69.2534\n"
        "\n"
        "DIST   인천-1   인천-2\n"
        "end\n"
        "\n";
    EXPECT_EQ(shown(check(good)), "");
}

TEST(CheckDataFile, GivesFindingsByTheirLines) {
    const auto findings = check(
        "DIGITS\n"
        "WGS A 37.7733 126.3229 5\n"
        "DIST A B\n"
        "zone 9\n"
        "end\n"
        "WGS\n");
    EXPECT_TRUE(std::is_sorted(
        findings.begin(), findings.end(),
        [](const Finding& one, const Finding& other) { return one.line < other.line; }))
        << shown(findings);
    EXPECT_GE(findings.size(), 5U) << shown(findings);
}

TEST(CheckDataFile, MarksTheFieldThatIsMeantInCharacters) {
    const auto findings = check("WGS  인천-1  37.7733 126.3229 0\nend\n\n");
    ASSERT_EQ(findings.size(), 1U) << shown(findings);
    EXPECT_EQ(findings[0].column, 12);
    EXPECT_EQ(findings[0].length, 7);
}

TEST(CheckDataFile, MarksTheWordThatIsNotUnderstood) {
    for (const auto& [line, column, length] :
         {std::tuple{"INPUT   grad x", 9, 4}, std::tuple{"OUTPUT   grad x", 10, 4},
          std::tuple{"CORRECTION OFF x", 12, 3}}) {
        const auto findings = check(std::string(line) + "\nWGS A 37.3533 126.3229 0\nend\n\n");
        ASSERT_FALSE(findings.empty()) << line;
        EXPECT_EQ(findings[0].line, 1) << line;
        EXPECT_EQ(findings[0].column, column) << line;
        EXPECT_EQ(findings[0].length, length) << line;
    }
}

TEST(CheckDataFile, SaysTheGeoidOfAKnownPointToTheMillimetre) {
    const std::string findings = shown(
        check("CORRECTION\nWGS A 37.3533 126.3229 0\nend\n\n",
              "부산61 35.10017832 129.04593498 64.521 35.09507604 129.05075251 93.773 2\n\n\n"));
    EXPECT_NE(findings.find("표고를 뺀 값이 -29.252 m입니다"), std::string::npos) << findings;
}

TEST(CheckDataFile, TakesEveryLineEnd) {
    for (const std::string lineEnd : {"\n", "\r\n", "\r"}) {
        const auto findings =
            check("zone 2" + lineEnd + lineEnd + "zone 중부" + lineEnd +
                  "WGS A 37.3533 126.3229 0" + lineEnd + "end" + lineEnd + lineEnd);
        EXPECT_EQ(linesOf(Kind::BadZone, findings), LineNumbers{3}) << shown(findings);
    }
}

TEST(CheckDataFile, SaysOfAnEmptyFileThatARunStops) {
    const auto findings = check("");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].kind, Kind::NoPoints);
    EXPECT_NE(findings[0].text.find("(오류 62)"), std::string::npos);
}

TEST(CheckDataFile, SaysOfAMissingFileOfKnownPointsOnlyWhereItIsNeeded) {
    const std::string point = "WGS A 37.3533 126.3229 0\nend\n\n";
    EXPECT_EQ(linesOf(Kind::NoKnownPoints, checkWithoutKnownPoints("CORRECTION\n" + point)),
              LineNumbers{1});
    EXPECT_EQ(shown(checkWithoutKnownPoints(point)), "");
}

TEST(CheckDataFile, GivesFindingsOfTheKnownPointsAfterItsOwn) {
    const auto findings = check("CORRECTION\nWGS A 37.3533 126.3229 0\nDIST A B\nend\n\n",
                                "K 37.3728 126.3234 67 37.3518 126.3241 45 1\n\n\n");
    ASSERT_GE(findings.size(), 2U) << shown(findings);
    EXPECT_EQ(findings.front().in, Finding::In::DataFile);
    EXPECT_EQ(findings.back().in, Finding::In::KnownPoints);
    EXPECT_EQ(findings.back().correctionLine, 1);
}

TEST(CheckDataFile, SaysThatKnownPointsAreNeverRead) {
    const std::string late =
        "WGS A 37.3533 126.3229 0\nCORRECTION\nWGS B 37.3533 126.3229 0\nend\n\n";
    EXPECT_EQ(linesOf(Kind::NoKnownPoints, check(late)), LineNumbers{2});
    const std::string read =
        "WGS A 37.3533 126.3229 0\nCORRECTION\nadd 10.405\nWGS B 37.3533 126.3229 0\nend\n\n";
    EXPECT_EQ(linesOf(Kind::NoKnownPoints, check(read)), LineNumbers{});
}

TEST(CheckDataFile, NamesTheDistanceToTheNearestKnownPoint) {
    // 부산 (35.16712, 129.08192) to 수원 (37.28626, 127.00442): 300 km along a great circle.
    const auto findings = check("CORRECTION\nINPUT deg\nWGS B 35.16712 129.08192 0\nend\n\n");
    ASSERT_EQ(linesOf(Kind::FarFromKnownPoints, findings), LineNumbers{3}) << shown(findings);
    EXPECT_NE(shown(findings).find(" 300 km "), std::string::npos) << shown(findings);
}

TEST(CheckDataFile, GuessesWhatWasMeantWithAPointOutsideTheCountry) {
    const auto said = [](const std::string& point, const std::string& guess) {
        const std::string text = shown(check(point + "\nend\n\n"));
        EXPECT_NE(text.find(guess), std::string::npos) << point << "\n" << text;
    };
    said("WGS A 126.3229 37.3533 0", "위도와 경도가 바뀐 것 같습니다");
    said("WGS 37.3533 126.3229 10", "점의 이름이 빠져");
    said("WGS A 37 35 33 126 32 29", "도, 분, 초를 띄어 쓸 수 없습니다");
    said("WGS A 377504.2 125963.9 0", "TM이나 UTM을 쓰십시오");
    said("TM A 37.3533 126.3229 0", "WGS나 UGS를 쓰십시오");
    said("TM A 377,504.2 125,963.9 0", "쉼표는 빈칸과 같아서");
}

TEST(CheckDataFile, LooksAtThePointsThatFollowAStop) {
    // A run ends at the second line; the check goes on.
    const auto findings = check(
        "CORRECTION\nWGS A 37.35286118 126.32345468 67\nINPUT deg\n"
        "WGS B 37.5912810556 126.5429296667 67\nWGS C 126.3229 37.3533 0\nend\n\n");
    EXPECT_EQ(linesOf(Kind::RunStops, findings), LineNumbers{4}) << shown(findings);
    EXPECT_EQ(linesOf(Kind::OutsideCountry, findings), LineNumbers{5}) << shown(findings);
}

TEST(CheckDataFile, QuotesNoControlCharacterAndNoLongWord) {
    const auto findings = check("X\x1b[31m" + std::string(5000, 'y') + "\nend\n\n");
    for (const Finding& finding : findings) {
        EXPECT_EQ(finding.text.find('\x1b'), std::string::npos);
        EXPECT_LT(finding.text.size(), 500U);
    }
}

TEST(CheckDataFile, LeavesTheManualOfTheSampleAlone) {
    const std::string sample = decodeCodePage(
        testing::TemporaryFolder::readBytes(KELVO_SOURCE_DIR "/examples/sample.dat"));
    EXPECT_EQ(linesOf(Kind::AfterEnd, check(sample)), LineNumbers{});
    const auto more = check(sample + "WGS B 37.3533 126.3229 0\r\n\r\n");
    EXPECT_EQ(linesOf(Kind::AfterEnd, more), LineNumbers{214});
}

std::string example(const std::string& name) {
    return decodeCodePage(
        testing::TemporaryFolder::readBytes(KELVO_SOURCE_DIR "/examples/" + name));
}

// Line and kind of all that is found in an example with the known points beside it.
std::vector<std::pair<long, Kind>> foundIn(const std::string& name) {
    std::vector<std::pair<long, Kind>> found;
    for (const Finding& finding : check(example(name), example("kelvo.cor"))) {
        EXPECT_EQ(finding.in, Finding::In::DataFile) << finding.text;
        found.emplace_back(finding.line, finding.kind);
    }
    return found;
}

using FoundIn = std::vector<std::pair<long, Kind>>;

// The points of the sample have seconds of 77, 87 and 97, as users know it.
TEST(CheckDataFile, FindsInTheExamplesWhatIsMeantAndNothingElse) {
    EXPECT_EQ(foundIn("sample.dat"), (FoundIn{{4, Kind::UncorrectedHeight},
                                              {5, Kind::BadAngle},
                                              {6, Kind::BadAngle},
                                              {6, Kind::BadAngle}}));
    EXPECT_EQ(foundIn("corrected.dat"),
              (FoundIn{{3, Kind::BadAngle}, {4, Kind::BadAngle}, {4, Kind::BadAngle}}));
    // A zone for TM points that stand after others, a point far out at sea, names of a pair that
    // doesn't exist, and a word after the end: this example shows all commands.
    EXPECT_EQ(foundIn("commands.dat"), (FoundIn{{10, Kind::OriginOverridden},
                                                {43, Kind::FarFromKnownPoints},
                                                {47, Kind::OtherOrigin},
                                                {50, Kind::UnknownName},
                                                {54, Kind::AfterEnd}}));
}

// What a run of the text ends with: the number of its fault, 0 for none.
int faultOfRun(const std::string& data, const KnownPointsFile& known) {
    testing::BatchBench bench;
    bench.disk.putText(bench.places.dataFile, data);
    if (known.text) bench.disk.putText(bench.places.CorPath, *known.text);
    bench.runFile();
    return bench.fault;
}

void expectForetold(const std::string& data, const KnownPointsFile& known,
                    const std::string& name) {
    const std::string found = shown(checkDataFile(data, known));
    const int fault = faultOfRun(data, known);
    const std::string number = fault == 0 ? "(오류 " : "(오류 " + std::to_string(fault) + ")";
    EXPECT_EQ(found.find(number) != std::string::npos, fault != 0) << name << number << found;
}

TEST(CheckDataFile, ForetellsTheEndOfEveryStoredRun) {
    const auto folder = testing::goldenFolder() / "batch";
    for (const std::string& name : testing::goldenCases(folder, ".dat")) {
        const std::string stem = (folder / name).string();
        const auto text = [&](const char* ending) {
            return decodeCodePage(testing::TemporaryFolder::readBytes(stem + ending));
        };
        KnownPointsFile known{.path = "kelvo.cor", .text = std::nullopt};
        if (std::filesystem::exists(stem + ".cor")) known.text = text(".cor");
        expectForetold(text(".dat"), known, name);
    }
}

TEST(CheckDataFile, ForetellsEachFaultThatDataCanCause) {
    const std::string points = "WGS A 37.3533 126.3229 10\nend\n\n";
    const std::string corrected = "CORRECTION\n" + points;
    const std::string k = "K 37.35286118 126.32345468 67.644 37.35186070 126.32419061 ";
    std::string tooMany;
    for (int i = 0; i < 201; ++i) tooMany += k + "45.732 1\n";
    struct Case {
        int fault;
        std::string data;
        std::optional<std::string> known;
    };
    const std::vector<Case> cases{
        {62, "", {}},
        {62, "tm para\n6377397.155 299.1528128\n", {}},
        {62, "7 para\n1 2 3\n1 2 3\n1", {}},
        {6, "zone 99999\n" + points, {}},
        {53, corrected, {}},
        {62, corrected, ""},
        {62, corrected, k + "45.732 1\n" + k + "45.732 1\n"},
        {6, corrected, "*\n*\n"},
        {6, corrected, k + "45.732 0\n\n\n"},
        {6, corrected, k + "0 1\n\n\n"},
        {9, corrected, tooMany + "\n\n"},
        {6, "WGS A 37.3533 126.3229 10\nCORRECTION\n" + points, k + "45.732 1\n\n\n"},
        {6, "CORRECTION\nINPUT deg\nWGS A 37.5912810556 126.5429296667 67\nend\n\n",
         k + "45.732 1\n\n\n"},
        {0, corrected, k + "45.732 1\n\n\n"},
    };
    for (const Case& each : cases) {
        const KnownPointsFile known{.path = "/app/kelvo.cor", .text = each.known};
        EXPECT_EQ(faultOfRun(each.data, known), each.fault) << each.data;
        expectForetold(each.data, known, each.data.substr(0, 200));
    }
}

TEST(CheckDataFile, SuspectsGridPointsThatAreNoGridPoints) {
    EXPECT_EQ(linesOf(Kind::BadPoint, check("UTM A 37.3533 126.3229 0\nend\n\n")), LineNumbers{1});
    // An origin of one's own may have small coordinates.
    const std::string own = "tm para\n6377397.155 299.1528128\n37.5 127\n0 0\n1\n";
    EXPECT_EQ(linesOf(Kind::BadPoint, check(own + "TM A 377.3 126.3 0\nend\n\n")), LineNumbers{});
}

}  // namespace
}  // namespace kelvo
