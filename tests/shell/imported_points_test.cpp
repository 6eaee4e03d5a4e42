#include "shell/imported_points.h"

#include <gtest/gtest.h>

#include <sstream>

#include "convert/refusal.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

PointList points(std::initializer_list<std::vector<std::string>> rows) {
    PointList list;
    list.rows = rows;
    return list;
}

ImportedLines intoEmptyText(const PointList& list, const ImportChoice& choice) {
    return importedLines(list, choice, "", 0, 0);
}

ImportChoice dms() {
    return {.system = System::Wgs, .angles = ListAngles::Dms};
}

bool warnsOf(const ImportedLines& made, const std::string& words) {
    for (const std::string& warning : made.warnings)
        if (warning.find(words) != std::string::npos) return true;
    return false;
}

TEST(ListOfText, ReadsADelimitedTextWithItsHeader) {
    const PointList list =
        pointListOfText("name;lat;lon;h\r\n\"A;1\";37.5; 127.1 ;30\r\n\r\nB;1;2\n");
    EXPECT_EQ(list.header, (std::vector<std::string>{"name", "lat", "lon", "h"}));
    ASSERT_EQ(list.rows.size(), 2U);
    EXPECT_EQ(list.rows[0], (std::vector<std::string>{"A;1", "37.5", "127.1", "30"}));
    EXPECT_EQ(list.columns(), 4U);
}

// A tab among blanks makes the columns; without one the blanks do.
TEST(ListOfText, ReadsAColumnedTextByItsBlanks) {
    const PointList list = pointListOfText("  A-1   377504.2   125963.9  7\nA-2 1 2 3\n");
    ASSERT_EQ(list.rows.size(), 2U);
    EXPECT_EQ(list.rows[0], (std::vector<std::string>{"A-1", "377504.2", "125963.9", "7"}));
    EXPECT_EQ(list.rows[1], (std::vector<std::string>{"A-2", "1", "2", "3"}));
}

TEST(ListOfText, ReadsNamesInCodePage949) {
    EXPECT_EQ(pointListOfText("\xB0\xA1,1,2\n").rows.front().front(), "가");
}

TEST(ListOfText, RefusesWhatIsNoTextAndWhatHoldsNoPoint) {
    EXPECT_THROW((void)pointListOfText(std::string_view("P\0K", 3)), Refusal);
    EXPECT_THROW((void)pointListOfText("name,x,y\n\n"), Refusal);
    EXPECT_THROW((void)pointListOfText(""), Refusal);
}

TEST(ListOfText, EndsAtTheRowsOfARun) {
    std::ostringstream text;
    for (std::size_t i = 0; i <= kMostListRows; ++i) text << "P" << i << ",1,2\n";
    const PointList list = pointListOfText(text.str());
    EXPECT_EQ(list.rows.size(), kMostListRows);
    EXPECT_TRUE(list.goesOn);
}

TEST(ListOfFile, NamesAFileThatIsNotThere) {
    const testing::TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("empty.csv", "");
    for (const char* name : {"none.csv", "empty.csv", "none.gpkg"}) {
        try {
            (void)pointListOfFile(disk, folder.file(name));
            ADD_FAILURE() << name;
        } catch (const Refusal& refusal) {
            EXPECT_FALSE(std::string(refusal.what()).empty());
        }
    }
}

TEST(GuessedChoice, GoesByTheHeader) {
    PointList list = points({{"30", "A", "127.1", "37.9"}, {"30", "B", "127.2", "37.8"}});
    list.header = {"높이", "이름", "경도", "위도"};
    const ImportChoice choice = guessedChoice(list);
    EXPECT_EQ(choice.system, System::Wgs);
    EXPECT_EQ(choice.name, 1U);
    EXPECT_EQ(choice.north, 3U);
    EXPECT_EQ(choice.east, 2U);
    EXPECT_EQ(choice.height, 0U);
    EXPECT_EQ(choice.angles, ListAngles::Degrees);
}

TEST(GuessedChoice, TakesNorthingAndEastingFromTheHeaderInEitherOrder) {
    PointList list = points({{"A", "125963.97", "377504.2"}, {"B", "125964", "377505"}});
    list.header = {"이름", "Y", "X"};
    const ImportChoice choice = guessedChoice(list);
    EXPECT_EQ(choice.system, System::Tm);
    EXPECT_EQ(choice.north, 2U);
    EXPECT_EQ(choice.east, 1U);
}

TEST(GuessedChoice, GoesByTheNumbersWithoutAHeader) {
    const ImportChoice swapped = guessedChoice(points({{"A", "127.1", "37.5", "30"}}));
    EXPECT_EQ(swapped.system, System::Wgs);
    EXPECT_EQ(swapped.north, 2U);
    EXPECT_EQ(swapped.east, 1U);
    const ImportChoice grid = guessedChoice(points({{"377504.2", "125963.9", "7.2"}}));
    EXPECT_EQ(grid.system, System::Tm);
    EXPECT_EQ(grid.name, kNoListColumn);
    EXPECT_EQ(grid.north, 0U);
    EXPECT_EQ(grid.height, 2U);
}

TEST(GuessedChoice, KnowsMinutesAndSecondsFromDecimalDegrees) {
    const auto angles = [](const char* one, const char* other) {
        return guessedChoice(points({{"A", one, "126.32293454"}, {"B", other, "126.53224344"}}))
            .angles;
    };
    EXPECT_EQ(angles("37.35332567", "37.35772984"), ListAngles::Degrees);  // 77 seconds
    EXPECT_EQ(angles("37.35332567", "37.35572984"), ListAngles::Dms);
}

TEST(ImportedLines, AreABlockThatTheRunReads) {
    const ImportedLines made =
        intoEmptyText(points({{"A-1", "37.35332567", "126.32293454", "30.1756"},
                              {"가나", "37.3553", "126.5322", "-1.5"}}),
                      dms());
    EXPECT_EQ(made.text,
              "WGS    A-1          37.35332567   126.32293454   30.1756\n"
              "       가나         37.3553   126.5322   -1.5\n"
              "end\n \n");
    EXPECT_EQ(made.points, 2U);
    EXPECT_TRUE(made.warnings.empty());
}

TEST(ImportedLines, ChangeTheFormOfAnglesAndChangeItBack) {
    ImportChoice choice = dms();
    choice.angles = ListAngles::Degrees;
    const PointList list = points({{"A", "37.9", "126.9", "1"}});
    const std::string text = importedLines(list, choice, "* x\nend\n \n", 1, 0).text;
    EXPECT_TRUE(text.starts_with("INPUT  deg\nWGS ")) << text;
    EXPECT_TRUE(text.ends_with("\nINPUT  ddd.mmssss\n")) << text;
    EXPECT_TRUE(importedLines(list, choice, "input deg\n\nend\n \n", 1, 0).text.starts_with("WGS"));
    const std::string back = importedLines(list, dms(), "INPUT deg\n\nend\n", 1, 0).text;
    EXPECT_TRUE(back.ends_with("INPUT  deg\n")) << back;
    choice.system = System::Tm;
    EXPECT_TRUE(importedLines(list, choice, "* x\nend\n \n", 1, 0).text.starts_with("TM "));
}

TEST(ImportedLines, StandWhereTheRunReadsThemAndSplitNothing) {
    const PointList list = points({{"A", "1.0", "2.0", "3"}});
    const std::string text =
        "* head\n7 para\n 1 2 3\n 4 5 6\n 7\nTM A 1 2 3\n     B 1 2 3\n\nend\n \n";
    const auto placeOf = [&](std::size_t line, std::size_t column) {
        return importedLines(list, {.system = System::Tm}, text, line, column).line;
    };
    EXPECT_EQ(placeOf(0, 0), 0U);
    EXPECT_EQ(placeOf(0, 2), 1U);
    EXPECT_EQ(placeOf(1, 0), 1U);
    EXPECT_EQ(placeOf(2, 0), 5U);  // out of the parameters
    EXPECT_EQ(placeOf(1, 3), 5U);
    EXPECT_EQ(placeOf(5, 1), 7U);  // out of the points
    EXPECT_EQ(placeOf(6, 0), 7U);
    EXPECT_EQ(placeOf(7, 0), 7U);
    EXPECT_EQ(placeOf(9, 0), 8U);  // in front of the end
    EXPECT_EQ(placeOf(99, 0), 8U);
}

TEST(ImportedLines, LeaveRowsOutThatAreNoPointsAndSaySo) {
    const ImportedLines made = intoEmptyText(points({{"A", "37.1", "126.1", "x"},
                                                     {"B", "", "126.1", ""},
                                                     {"C", "37-12", "126.1"},
                                                     {"D", "0", "0", "0"},
                                                     {"E", "1e999", "126.1"},
                                                     {"F", "37.1", "126.1"}}),
                                             dms());
    EXPECT_EQ(made.points, 1U);
    EXPECT_TRUE(made.text.starts_with("WGS    F ")) << made.text;
    EXPECT_TRUE(warnsOf(made, "5개 행은 좌표를 읽을 수 없어 빠집니다: 1행, 2행, 3행, 4행, 5행"));
    EXPECT_TRUE(warnsOf(made, "1개 점은 높이가 없어 0으로 씁니다"));
}

TEST(ImportedLines, AreNoneOfOneColumnTakenForTwoCoordinates) {
    ImportChoice choice = dms();
    choice.east = choice.north;
    const ImportedLines made = intoEmptyText(points({{"A", "37.1", "126.1", "1"}}), choice);
    EXPECT_TRUE(made.text.empty());
    EXPECT_TRUE(warnsOf(made, "한 열을 두 좌표로"));
}

TEST(ImportedLines, AreNoneWithoutAPoint) {
    const ImportedLines made = intoEmptyText(points({{"A", "x", "y"}}), dms());
    EXPECT_EQ(made.points, 0U);
    EXPECT_TRUE(made.text.empty());
}

TEST(ImportedLines, WarnOfNamesThatTheDataFileOrTheTablesDoNotHold) {
    const ImportedLines made = intoEmptyText(points({{"가나다라마바", "37.1", "126.1", "1"},
                                                     {"A B", "37.1", "126.1", "1"},
                                                     {"", "37.1", "126.1", "1"},
                                                     {"😀", "37.1", "126.1", "1"},
                                                     {"가나다라마", "37.1", "126.1", "1"}}),
                                             dms());
    EXPECT_TRUE(warnsOf(made, "1개 이름이 10칸보다 길어"));
    EXPECT_TRUE(warnsOf(made, "바꿉니다: A B"));
    EXPECT_TRUE(warnsOf(made, "코드 페이지 949"));
    EXPECT_NE(made.text.find("  A_B "), std::string::npos);
    EXPECT_NE(made.text.find("\n       3 "), std::string::npos);
}

TEST(ImportedLines, NameTheFirstFiveThatTheyWarnOf) {
    const auto warningOf = [](int count) {
        PointList list;
        for (int i = 0; i < count; ++i)
            list.rows.push_back({"A " + std::to_string(i), "37.1", "126.1", "1"});
        for (const std::string& warning : intoEmptyText(list, dms()).warnings)
            if (warning.find("바꿉니다: ") != std::string::npos)
                return warning.substr(warning.find(": ") + 2);
        return std::string();
    };
    EXPECT_EQ(warningOf(1), "A 0");
    EXPECT_EQ(warningOf(5), "A 0, A 1, A 2, A 3, A 4");
    EXPECT_EQ(warningOf(6), "A 0, A 1, A 2, A 3, A 4, ...");
}

// A first name that begins so would make the line the head of a block of parameters.
TEST(ImportedLines, NeverReadAsParameters) {
    ImportChoice choice;
    choice.system = System::Tm;
    const ImportedLines made = intoEmptyText(points({{"para1", "1", "2", "3"}}), choice);
    EXPECT_TRUE(made.text.starts_with("TM     _para1 ")) << made.text;
    EXPECT_TRUE(warnsOf(made, "바꿉니다: para1"));
}

TEST(ImportedLines, WarnOfAnglesThatCanNotBe) {
    ImportChoice choice = dms();
    EXPECT_TRUE(warnsOf(intoEmptyText(points({{"A", "37.75", "126.1", "1"}}), choice), "60 이상"));
    choice.angles = ListAngles::Degrees;
    EXPECT_TRUE(warnsOf(intoEmptyText(points({{"A", "127.1", "37.1", "1"}}), choice), "범위 밖"));
    EXPECT_FALSE(warnsOf(intoEmptyText(points({{"A", "90", "180", "1"}}), choice), "범위 밖"));
}

TEST(ImportedLines, WarnWhereTheFileStatesAnotherSystem) {
    PointList list = points({{"A", "37.5", "127.1", "1"}});
    list.system = SystemOfFile{
        .stated = true, .geographic = true, .semiMajorAxis = 6378137, .name = "WGS 84"};
    ImportChoice choice = guessedChoice(list);
    EXPECT_TRUE(intoEmptyText(list, choice).warnings.empty());
    choice.system = System::Tm;
    EXPECT_TRUE(warnsOf(intoEmptyText(list, choice), "경위도인데 직교좌표를 골랐습니다"));
    choice.system = System::User;
    EXPECT_TRUE(warnsOf(intoEmptyText(list, choice), "타원체가 다릅니다"));
    list.system->stated = false;
    EXPECT_TRUE(intoEmptyText(list, choice).warnings.empty());
}

}  // namespace
}  // namespace kelvo
