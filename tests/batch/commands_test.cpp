// The data-file language: which line is which command, and what it sets. What a command has set
// shows in the run header of the next point.
#include <gtest/gtest.h>

#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;
using Lines = std::vector<std::string>;

constexpr std::size_t kNotes = 16;
constexpr const char* kOnePoint = "\nWGS p 37.3 127 10\nend\n\n";

class Commands : public ::testing::Test {
protected:
    // The header line of a run with these commands and one point after them, counted from 1.
    std::string header(const std::string& commands, std::size_t line) {
        bench.run(commands + kOnePoint);
        EXPECT_EQ(bench.fault, 0) << bench.faultText;
        const Lines out = bench.out();
        return out.size() > kNotes + line ? out[kNotes + line - 1] : std::string();
    }
    std::string shiftLine(const std::string& commands) { return header(commands, 2); }
    std::string adjustmentLine(const std::string& commands) { return header(commands, 7); }
    std::string originLine(const std::string& commands) { return header(commands, 13); }
    std::string falseOriginLine(const std::string& commands) { return header(commands, 14); }
    std::string addedSecondsLine(const std::string& commands) { return header(commands, 16); }
    std::string angleInLine(const std::string& commands) { return header(commands, 18); }
    std::string angleOutLine(const std::string& commands) { return header(commands, 21); }
    int headers() const { return bench.countOut("WGS -> GP 변환하는 파라미터"); }

    BatchBench bench;
};

TEST_F(Commands, WithoutAnyTheDefaultsHold) {
    bench.run(kOnePoint);
    const Lines out = bench.out();
    ASSERT_GT(out.size(), kNotes + 23);
    const Lines expected{
        "WGS -> GP 변환하는 파라미터",
        "     dx  =   115.800     dy  =  -474.990       dz  =  -674.110",
        "  Omega  =     1.160    Phi  =    -2.310    Kappa  =    -1.630",
        "     ds  =  -6.43000",
        "",
        "1 차 조정량 WGS -> GP후 GP위도에 dphi초가 가산됨, 경도도 같고, 높이는 m 단위임",
        "    dphi =   0.00000   dlam  =   0.00000       dh  =   0.00000",
        "    ",
        "기존점에 의한 2차 보정 - 보정 안함",
        "",
        "경위도 -> 직교좌료로 변환하는 파라미터",
        "     장반경 =  6377397.1550    편평도 = 1/299.15281280",
        "   원점위도 =  38.00000      원점경도 = 127.00000",
        "   원점 X   =  500000.0      원점 Y   =  200000.0",
        " 축척계수 S =  1.000000",
        " 경도에가산 =  10.405초",
        "",
        "각도입력형태 =  ddd.mmssss 형태 (예 128.25361253)     ",
        "",
        "",
        "각도출력형태 =  ddd-mm-ss.ss 형태 (예 128-25-36.1253)     ",
        "",
        ""};
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(out[kNotes + i], expected[i]);
    EXPECT_EQ(out[kNotes + expected.size()], "WGS 타윈체 경위도 및 타원체고");
    EXPECT_TRUE(bench.det().empty());
}

TEST_F(Commands, EveryRunStartsFromTheDefaultsAnew) {
    EXPECT_NE(shiftLine("7 para\n1 2 3\n4 5 6\n7\nzone 5\nadd 0\nOUTPUT deg\nINPUT deg"),
              shiftLine(""));
    EXPECT_EQ(shiftLine(""), "     dx  =   115.800     dy  =  -474.990       dz  =  -674.110");
    EXPECT_EQ(falseOriginLine(""), "   원점 X   =  500000.0      원점 Y   =  200000.0");
    EXPECT_EQ(addedSecondsLine(""), " 경도에가산 =  10.405초");
}

TEST_F(Commands, ALineOfOneFileIsReadAndNeverDispatched) {
    bench.run("WGS a 37.3 127 1\n");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(bench.points(), 0);
    EXPECT_EQ(headers(), 0);
    const Lines out = bench.out();
    const std::string grid = " 명칭                 X                  Y               표고";
    const Lines tables{
        "WGS 타윈체 경위도 및 타원체고",
        " 명칭               위도               경도          타원체고  ",
        "",
        "사용자 타윈체 경위도 및 표고",
        " 명칭               위도               경도              표고",
        "",
        "사용자 타윈체 직교좌표 및 표고 (TM) (사용자 타원체 경위도 -> 사용자 타원체 TM)",
        grid,
        "",
        "",
        "사용자 타윈체 직교좌표 및 표고 (UTM) (사용자 타원체 경위도 -> 사용자 타원체 UTM)",
        grid,
        "",
        "",
        "WGS 타윈체 직교좌표 및 표고 (WGS 경위도 -> WGS 타원체 UTM)",
        grid,
        ""};
    ASSERT_EQ(out.size(), kNotes + tables.size());
    EXPECT_EQ(Lines(out.begin() + kNotes, out.end()), tables);
}

TEST_F(Commands, TheNotesStandAtTheHead) {
    bench.run("x\n");
    const Lines out = bench.out();
    EXPECT_EQ(out[0], "  ");
    EXPECT_EQ(out[1], "       본 프로그램은 좌표변환프로그램 Kelvo Ver 3.5 Beta(2004.6.7) 이다.");
    EXPECT_EQ(out[12], " ");
    EXPECT_EQ(out[15], "  ");
}

TEST_F(Commands, TheLastLineIsLostUnlessABlockReadsIt) {
    bench.run("* x\nWGS a 37.3 127 1");
    EXPECT_EQ(bench.points(), 0);
    bench.run("WGS a 37.3 127 1\n   b 37.3 127 1");
    EXPECT_EQ(bench.points(), 2);
    EXPECT_EQ(bench.row(2).name, "b");
    bench.run("WGS a 37.3 127 1\nWGS b 37.3 127 1");
    EXPECT_EQ(bench.points(), 1);
}

TEST_F(Commands, AFileWithoutEndWritesItsTablesAllTheSame) {
    bench.run("WGS a 37.3 127 1\n   b 37.3 127 1\n*\n");
    const Lines without = bench.out();
    bench.run("WGS a 37.3 127 1\n   b 37.3 127 1\nend\n*\n");
    EXPECT_EQ(bench.out(), without);
    EXPECT_EQ(bench.table(1).size(), 2U);
}

TEST_F(Commands, WhatStandsBehindEndIsNotRead) {
    bench.run("WGS a 37.3 127 1\nEND\nWGS b 37.3 127 1\nWGS c 37.3 127 1\n*\n");
    EXPECT_EQ(bench.points(), 1);
}

TEST_F(Commands, AnyWordThatStartsWithTheTwoLettersIsTheCommand) {
    bench.known("k 37.3 127 10 37.3 127 10 1\n*\n*\n");
    EXPECT_EQ(header("COMMENT ca va", 9), "기존점에 의한 2차 보정 - 보정함");
    EXPECT_EQ(header("COMMENT\nNOTE", 9), "기존점에 의한 2차 보정 - 보정 안함");
    bench.run("ENGLISH\nWGS a 37.3 127 1\n*\n");
    EXPECT_EQ(bench.points(), 0);
}

TEST_F(Commands, CaseAndLeadingSeparatorsDoNotCount) {
    EXPECT_EQ(originLine(" ,\t zOnE , 3"), "   원점위도 =  38.00000      원점경도 = 129.00000");
}

TEST_F(Commands, CommentsEmptyLinesAndUnknownWordsArePassedOver) {
    bench.run("*zone 3\n\n   \nhello\nW GS\n가나다\n7x\n" + std::string(kOnePoint));
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(bench.points(), 1);
    EXPECT_EQ(bench.out()[kNotes + 12], "   원점위도 =  38.00000      원점경도 = 127.00000");
}

TEST_F(Commands, SevenParaReadsThreeMoreLines) {
    EXPECT_EQ(shiftLine("7 para  remark 9 9\n 1.5 ,-2.5 3.5 99\n4 5 6\n7.5"),
              "     dx  =     1.500     dy  =    -2.500       dz  =     3.500");
    EXPECT_EQ(header("7 para\n1 2 3\n4 5 6\n7.5", 3),
              "  Omega  =     4.000    Phi  =     5.000    Kappa  =     6.000");
    EXPECT_EQ(header("7 para\n1 2 3\n4 5 6\n7.5 8", 4), "     ds  =   7.50000");
}

TEST_F(Commands, SevenAloneIsTheCommandAndSevenXIsNot) {
    const std::string values = "\n1 2 3\n4 5 6\n7\n";
    const std::string set = "     dx  =     1.000     dy  =     2.000       dz  =     3.000";
    EXPECT_EQ(shiftLine("7" + values), set);
    EXPECT_EQ(shiftLine("7para" + values), set);
    EXPECT_EQ(shiftLine("7,x" + values), set);
    EXPECT_NE(shiftLine("7x" + values), set);
}

TEST_F(Commands, FirstCorrTakesItsSecondFieldAsTheLatitude) {
    EXPECT_EQ(adjustmentLine("1st corr    0.12    -0.23     0.76   "),
              "    dphi =   0.00000   dlam  =   0.12000       dh  =  -0.23000");
    EXPECT_EQ(adjustmentLine("1st 0.12    -0.23     0.76"),
              "    dphi =   0.12000   dlam  =  -0.23000       dh  =   0.76000");
    EXPECT_EQ(adjustmentLine("1 1 2 3"),
              "    dphi =   1.00000   dlam  =   2.00000       dh  =   3.00000");
}

TEST_F(Commands, AFirstAdjustmentBetweenPointsChangesTheFollowingWithoutANewHeader) {
    bench.run("WGS a 37.3 127 1\n*\n1st 3600 7200 5\nWGS b 37.3 127 1\nend\n\n");
    EXPECT_EQ(headers(), 1);
    EXPECT_NEAR(bench.row(2).UserPhi - bench.row(1).UserPhi, 1, 1e-12);
    EXPECT_NEAR(bench.row(2).UserLam - bench.row(1).UserLam, 2, 1e-12);
    EXPECT_NEAR(bench.row(2).UserH - bench.row(1).UserH, 5, 1e-9);
    EXPECT_EQ(bench.row(2).WgsPhi, bench.row(1).WgsPhi);
}

TEST_F(Commands, ZoneRoundsHalvesToTheEvenNeighbour) {
    const auto meridian = [&](const std::string& number) {
        return originLine("zone " + number).substr(originLine("zone " + number).size() - 9);
    };
    EXPECT_EQ(meridian("2.5"), "127.00000");
    EXPECT_EQ(meridian("3.5"), "131.00000");
    EXPECT_EQ(meridian("1.4"), "125.00000");
}

TEST_F(Commands, EveryZoneHasItsOrigin) {
    const char* meridians[] = {"127.00000", "125.00000", "127.00000", "129.00000",
                               "131.00000", "127.00000", "127.00000"};
    for (int zone = 0; zone <= 6; ++zone) {
        const std::string command = "zone " + std::to_string(zone);
        EXPECT_EQ(originLine(command), std::string("   원점위도 =  38.00000      원점경도 = ") +
                                           meridians[static_cast<std::size_t>(zone)]);
        EXPECT_EQ(falseOriginLine(command),
                  zone == 5 ? "   원점 X   =  550000.0      원점 Y   =  200000.0"
                            : "   원점 X   =  500000.0      원점 Y   =  200000.0");
    }
}

TEST_F(Commands, ZoneSetsEllipsoidAndGridBackWhateverItsNumber) {
    const std::string parameters = "tm para\n6378137 298.5\n30 120\n1 2\n0.5\n";
    EXPECT_EQ(header(parameters + "zone 77", 12),
              "     장반경 =  6377397.1550    편평도 = 1/299.15281280");
    EXPECT_EQ(header(parameters + "zone 77", 15), " 축척계수 S =  1.000000");
    EXPECT_EQ(originLine(parameters + "zone 77"),
              "   원점위도 =  38.00000      원점경도 = 127.00000");
}

TEST_F(Commands, AZoneNumberBeyondTheFiveKeepsItsOriginForAllPoints) {
    bench.run("INPUT deg\nadd 0\nzone 99\nWGS a 37.5 124.5 0\n   b 37.5 131.5 0\nend\n\n");
    EXPECT_LT(bench.row(1).TmY, 0);
    EXPECT_GT(bench.row(2).TmY, 590000);
    bench.run("INPUT deg\nadd 0\nzone -99\nWGS a 37.5 124.5 0\n   b 37.5 131.5 0\nend\n\n");
    EXPECT_GT(bench.row(1).TmY, 150000) << "below 5 the longitude chooses";
    EXPECT_LT(bench.row(2).TmY, 250000);
}

TEST_F(Commands, AZoneNumberBeyondSixteenBitsIsAnOverflow) {
    bench.run("zone 32768" + std::string(kOnePoint));
    EXPECT_EQ(bench.fault, 6);
    bench.run("zone -32769" + std::string(kOnePoint));
    EXPECT_EQ(bench.fault, 6);
    bench.run("zone 32767" + std::string(kOnePoint));
    EXPECT_EQ(bench.fault, 0);
    bench.run("zone 1e39" + std::string(kOnePoint));
    EXPECT_EQ(bench.fault, 0) << "more than the single field holds: zone 0";
}

TEST_F(Commands, AddGoesByTheSignOfItsNumberAndNeverByItsSize) {
    for (const char* on : {"10.405", "1", "0.001", "1e30", "5x"}) {
        EXPECT_EQ(addedSecondsLine(std::string("add  ") + on + "   <-  가산 할때"),
                  " 경도에가산 =  10.405초")
            << on;
    }
    for (const char* off : {"0", "-1", "word", "", "1e-50", "1e39", "x5"}) {
        EXPECT_EQ(addedSecondsLine(std::string("add  ") + off), " 경도에가산 =   0.000초") << off;
    }
}

TEST_F(Commands, InputTakesDegreesOnlyForTheWordDeg) {
    const std::string degrees = "각도입력형태 =  deg 형태 (예 128.426667)     ";
    const std::string dms = "각도입력형태 =  ddd.mmssss 형태 (예 128.25361253)     ";
    EXPECT_EQ(angleInLine("INPUT deg"), degrees);
    EXPECT_EQ(angleInLine("input DEG ree"), degrees);
    EXPECT_EQ(angleInLine("INPUT DEGREE"), dms);
    EXPECT_EQ(angleInLine("INPUT ddd.mmssss"), dms);
    EXPECT_EQ(angleInLine("INPUT deg\nINPUT"), dms);
}

TEST_F(Commands, OutputKnowsItsFourForms) {
    EXPECT_EQ(angleOutLine("OUTPUT deg"), "각도출력형태 =  deg 형태 (예 128.426667)     ");
    EXPECT_EQ(angleOutLine("OUTPUT ddd mm ss.ss"),
              "각도출력형태 =  ddd mm ss.ss 형태 (예 128 25 36.1253) ");
    EXPECT_EQ(angleOutLine("OUTPUT    ddd-mm-ssss   "),
              "각도출력형태 =  ddd-mm-ss.ss 형태 (예 128-25-36.1253)     ");
    EXPECT_EQ(angleOutLine("OUTPUT ddd.mmssss"),
              "각도출력형태 =  ddd.mmssss 형태 (예 128.25361253)     ");
    EXPECT_EQ(angleOutLine("OUTPUT something"),
              "각도출력형태 =  ddd.mmssss 형태 (예 128.25361253)     ");
}

TEST_F(Commands, TablesShowTheAnglesInTheFormOfTheOutput) {
    const std::string point = "\nINPUT deg\nWGS a 37.5 127.25 1\nend\n\n";
    bench.run("OUTPUT deg" + point);
    EXPECT_EQ(bench.table(1)[0], "a               37.5000000000     127.2500000000       1.0000");
    bench.run("OUTPUT ddd mm" + point);
    EXPECT_EQ(bench.table(1)[0], "a               37 30 00.0000     127 15 00.0000       1.0000");
    bench.run("OUTPUT ddd-mm" + point);
    EXPECT_EQ(bench.table(1)[0], "a               37-30-00.0000     127-15-00.0000       1.0000");
    bench.run("OUTPUT ddd.mm" + point);
    EXPECT_EQ(bench.table(1)[0], "a               37.3000000000     127.1500000000       1.0000");
}

TEST_F(Commands, TmParaReadsFourMoreLinesAndFixesTheOrigin) {
    const std::string parameters =
        "tm para    제주도의 경우 \n6378137 298.5 9\n30 120.5\n1 2\n0.5\n";
    EXPECT_EQ(header(parameters, 12), "     장반경 =  6378137.0000    편평도 = 1/298.50000000");
    EXPECT_EQ(originLine(parameters), "   원점위도 =  30.00000      원점경도 = 120.50000");
    EXPECT_EQ(falseOriginLine(parameters), "   원점 X   =       1.0      원점 Y   =       2.0");
    EXPECT_EQ(header(parameters, 15), " 축척계수 S =  0.500000");
}

TEST_F(Commands, ParaMayStandAtTheThirdOrFourthCharacterForTm) {
    const std::string values = "\n6378137 298.5\n30 120.5\n1 2\n0.5\n";
    const std::string set = "   원점위도 =  30.00000      원점경도 = 120.50000";
    EXPECT_EQ(originLine("TMPARA" + values), set);
    EXPECT_EQ(originLine("TMxPARAmeter" + values), set);
    EXPECT_EQ(originLine("tm paradise 400000 200000 1" + values), set)
        << "a point of such a name is taken as the command";
    bench.run("TM a para 5 6\n*\n*\n");
    EXPECT_EQ(bench.points(), 1);
}

TEST_F(Commands, ParaMayStandAtTheFourthOrFifthCharacterForUtm) {
    for (const char* word : {"UTMPARA", "UTM para", "UTMxPARA", "utm paradise 4000000 500000"}) {
        bench.run(std::string(word) +
                  "\n6378137 298.257\n0 117\n0 500000\n0.9996\n"
                  "UTM u 4000000 500000 1\nend\n\n");
        ASSERT_EQ(bench.points(), 1) << word;
        EXPECT_NEAR(bench.row(1).UserLam, 117, 1e-9) << word;
    }
}

TEST_F(Commands, UtmWithAnOriginSelectsItWithoutANewHeader) {
    const auto longitude = [&](const std::string& command) {
        bench.run(command + "\nUTM u 4000000 500000 1\nend\n\n");
        return bench.row(1).UserLam;
    };
    EXPECT_NEAR(longitude("*"), 129, 1e-9);
    EXPECT_NEAR(longitude("UTM 123"), 123, 1e-9);
    EXPECT_NEAR(longitude("UTM 123 0 0"), 123, 1e-9);
    EXPECT_NEAR(longitude("UTM 123\nUTM 129 0 0"), 129, 1e-9);
    EXPECT_NEAR(longitude("UTM 123\nUTM 130"), 123, 1e-9) << "any other value does nothing";
    EXPECT_NEAR(longitude("UTM 123\nUTM"), 123, 1e-9);
    bench.run("UTM u 4000000 500000 1\n*\nUTM 123\nUTM v 4000000 500000 1\nend\n\n");
    EXPECT_EQ(headers(), 1);
}

TEST_F(Commands, AUtmPointWithBothCoordinatesZeroIsNoPoint) {
    bench.run("UTM 123\nUTM a 0 0 5\nUTM b 0 x 5\nUTM u 4000000 500000 1\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
    EXPECT_NEAR(bench.row(1).UserLam, 123, 1e-9) << "and it selects nothing";
    bench.run("UTM 129 4000000 0 5\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
    EXPECT_EQ(bench.row(1).name, "129");
}

TEST_F(Commands, ParametersBetweenPointsGiveASecondHeader) {
    for (const char* command :
         {"7 para\n1 2 3\n4 5 6\n7", "zone 3", "add 0", "tm para\n6377397 299\n38 127\n5 2\n1",
          "utm para\n6377397 299\n0 129\n0 500000\n1"}) {
        bench.run("WGS a 37.3 127 1\n*\n" + std::string(command) + kOnePoint);
        EXPECT_EQ(headers(), 2) << command;
    }
    for (const char* command : {"NO CORR", "INPUT deg", "OUTPUT deg", "UTM 123", "1st 1 2 3"}) {
        bench.run("WGS a 37.3 127 1\n*\n" + std::string(command) + kOnePoint);
        EXPECT_EQ(headers(), 1) << command;
    }
}

TEST_F(Commands, ACommandCutShortReadsPastTheEnd) {
    for (const char* text :
         {"7 para\n1 2 3\n", "7 para\n1 2 3\n4 5 6\n7", "tm para\n1 2\n3 4\n5 6\n",
          "tm para\n6377397 299\n38 127\n5 2\n1", "tm para\n6377397 299\n38 127\n5 2\n1\n",
          "utm para\n6377397 299\n0 129\n0 500000\n", "\n\n7\n\n"}) {
        bench.run(text);
        EXPECT_EQ(bench.fault, 62) << text;
        EXPECT_EQ(bench.out().size(), kNotes) << "the notes stand, no tables do";
    }
}

TEST_F(Commands, TooFewFieldsReadAsZero) {
    EXPECT_EQ(shiftLine("7 para\n1\n\n\n"),
              "     dx  =     1.000     dy  =     0.000       dz  =     0.000");
}

TEST_F(Commands, ARunBeginsByClearingTheScreenAndEndsByShowingTheResult) {
    bench.run("x\n");
    EXPECT_EQ(bench.view.happened, (Lines{"begins", "shows"}));
    bench.disk.files.erase("/job/a.dat");
    bench.runFile();
    EXPECT_EQ(bench.fault, 53);
    EXPECT_EQ(bench.view.happened, (Lines{"begins", "shows", "begins"}));
}

TEST_F(Commands, AResultThatCannotBeShownIsTold) {
    bench.view.fault = 53;
    bench.run("WGS a 37.3 127 1\n*\n");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(bench.messages.texts(), Lines{"파일을 보여주는데 에러가 발생하였습니다."});
}

TEST_F(Commands, TheResultFileTakesTheNameInFrontOfTheLastPoint) {
    EXPECT_EQ(resultFileOf("/d/a.dat"), "/d/a.out");
    EXPECT_EQ(resultFileOf("/d/a.b.dat"), "/d/a.b.out");
    EXPECT_EQ(resultFileOf("/d/a"), "/d/a.out");
    EXPECT_EQ(resultFileOf("/d.x/a"), "/d.out") << "the last point of the whole path counts";
}

TEST_F(Commands, LineEndsOfAnyKindAreRead) {
    bench.disk.putBytes("/job/a.dat", "zone 3\rWGS a 37.3 129 1\n   b 37.3 129 1\r\nend\n\r");
    bench.runFile();
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(bench.points(), 2);
}

TEST(UtmLine, OneCoordinateThatIsNotZeroMakesAPointOfIt) {
    for (const char* line : {"UTM 129 0 500000 1", "UTM 129 4100000 0 1"}) {
        BatchBench bench;
        bench.run(std::string(line) + "\nend\n\n");
        EXPECT_EQ(bench.points(), 1) << line;
        EXPECT_EQ(bench.row(1).name, "129");
    }
    BatchBench bench;
    bench.run("UTM 129 0 0 1\nend\n\n");
    EXPECT_EQ(bench.points(), 0) << "a height alone doesn't";
}

}  // namespace
}  // namespace kelvo
