// The sample data file line by line: its fixed lines, its prose, its form as bytes.
#include "batch/sample_data.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "common/run_time_fault.h"
#include "support/memory_disk.h"

namespace kelvo {
namespace {

using testing::MemoryDisk;

class SampleData : public ::testing::Test {
protected:
    void SetUp() override {
        disk.addFolder("/app");
        disk.addFolder("/app/data");
        disk.putBytes("/app/data/test.dat", "an older file, longer or shorter");
        WriteSampleData(disk, path);
        const std::string text = disk.text(path);
        std::size_t from = 0;
        for (std::size_t at = text.find("\r\n"); at != std::string::npos;
             at = text.find("\r\n", from)) {
            lines.push_back(text.substr(from, at - from));
            from = at + 2;
        }
        rest = text.substr(from);
    }

    // Lines are numbered from 1, as an editor shows them.
    void expectLines(const std::map<std::size_t, std::string>& expected) {
        for (const auto& [number, line] : expected) {
            ASSERT_LE(number, lines.size());
            EXPECT_EQ(lines[number - 1], line) << "line " << number;
        }
    }

    MemoryDisk disk;
    const std::string path = "/app/data/test.dat";
    std::vector<std::string> lines;
    std::string rest;
};

TEST_F(SampleData, Holds213LinesEachEndedByCarriageReturnAndLineFeed) {
    EXPECT_EQ(lines.size(), 213U);
    EXPECT_EQ(rest, "");
    for (const auto& line : lines) {
        EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
    }
}

TEST_F(SampleData, IsInTheKoreanCodePage) {
    // 인천, the first Hangul of line 4, in that code page.
    EXPECT_NE(disk.bytes(path).find("WGS    \xC0\xCE\xC3\xB5No-3"), std::string::npos);
    EXPECT_EQ(disk.bytes(path).find('?'), std::string::npos);  // no letter was lost
}

TEST_F(SampleData, LeavesThePathUnchangedAndReplacesTheFile) {
    EXPECT_EQ(path, "/app/data/test.dat");
    EXPECT_EQ(disk.bytes(path).find("an older file"), std::string::npos);
}

TEST_F(SampleData, EveryLineOfExplanationIsAComment) {
    for (std::size_t number = 9; number <= 166; ++number) {
        ASSERT_LE(number, lines.size());
        EXPECT_EQ(lines[number - 1].substr(0, 1), "*") << "line " << number;
    }
}

TEST_F(SampleData, ProseLinesSaySomething) {
    const std::set<std::size_t> prose{23,  24,  25,  26,  27,  45,  46,  47,  48,  49,  50,  54,
                                      55,  56,  57,  58,  60,  62,  67,  68,  70,  71,  72,  77,
                                      78,  79,  80,  88,  95,  96,  103, 104, 105, 114, 115, 116,
                                      121, 125, 126, 132, 134, 135, 147, 149, 154, 155, 161};
    for (const std::size_t number : prose) {
        ASSERT_LE(number, lines.size());
        EXPECT_GT(lines[number - 1].size(), 10U) << "line " << number;
    }
}

TEST_F(SampleData, TheBannerOfTheLiveDataOpensTheFile) {
    expectLines({
        // clang-format off
        {1, "************************************ "},
        {2, "*  실제  데이터   시작부분         * "},
        {3, "************************************ "},
        // clang-format on
    });
}

TEST_F(SampleData, ThreeWgsPointsStandLive) {
    expectLines({
        // clang-format off
        {4, "WGS    인천No-3     37.35332567   126.32293454   30.1756"},
        {5, "       인천부두끝   37.35772984   126.53224344   31.2534"},
        {6, "       TP-153       37.34874747   126.56973727   30.5823 "},
        // clang-format on
    });
}

TEST_F(SampleData, AnEmptyLineAndEndCloseTheLiveData) {
    expectLines({
        // clang-format off
        {7, ""},
        {8, "end"},
        // clang-format on
    });
}

TEST_F(SampleData, TheBannerOfTheExplanationFollows) {
    expectLines({
        // clang-format off
        {9, "************************************ "},
        {10, "*  데이터 입력방법 설명 부분       * "},
        {11, "************************************ "},
        // clang-format on
    });
}

TEST_F(SampleData, TheGeneralNotesStandInLines12To20) {
    expectLines({
        // clang-format off
        {12, "*   "},
        {13, "*  데이터는 아래와 같이 입력한다."},
        {14, "*  우선 변환에 필요한 파라미터들을 입력한다."},
        {15, "*  그 다음 변환할 지점들의 데이터를 입력한다 "},
        {16, "*  빈 줄이나 맨 앞에 별표(*)를 단 줄은 프로그램에서 읽지 않으므로 참고사항을 기재할 수 있다."},
        {17, "*  이 파일에 있는 예중에서 필요한 것은 맨 앞에 *를 제거하고 수정하여 사용하고 "},
        {18, "*  잠깐 불필요한 줄은 지우지 않고 *를 달아서 프로기램에서 읽지 않게 할 수 있다. "},
        {19, "*  필요없는 데이터는 생략할 수 있다. "},
        {20, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, Section1TellsShiftAdjustmentAndCorrection) {
    expectLines({
        // clang-format off
        {21, "*(1) WGS<->경위도로 변환하는데 필요한 데이터(전부 생략가능)"},
        {22, "*(1-1)   7 파라미터의 입력"},
        {28, "*   "},
        {29, "*7 para    서가람 논문값"},
        {30, "*    144.778   -503.702   -684.67   "},
        {31, "*      0         0         0"},
        {32, "*      0         "},
        {33, "*   "},
        {34, "*7 para    국립지리원 값(2002, 추천값)"},
        {35, "*    115.8    -474.99     -674.11"},
        {36, "*      1.16     -2.31      -1.63"},
        {37, "*      -6.43     "},
        {38, "*   "},
        {39, "*7 para    국립지리원 값"},
        {40, "*    146.44   -507.89     -681.46"},
        {41, "*      0         0         0"},
        {42, "*      0         "},
        {43, "*   "},
        {44, "*(1-2) 계산후 1차 조정량 입력"},
        {51, "*1st corr    0.12    -0.23     0.76   "},
        {52, "*   "},
        {53, "*(1-3) 기존점에 의한 2차 보정실시여부   "},
        {59, "*  생략시 보정안함 "},
        {61, "*CORRECTION"},
        {63, "*NO CORR   "},
        {64, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, Section2TellsTheTmOrigin) {
    expectLines({
        // clang-format off
        {65, "*(2) 경위도 <-> TM 직교좌표로 환산하기 데이터 입력"},
        {66, "*(2-1)  원점입력"},
        {69, "*   생략시 2 - 중부원점; .경위도를; 직교좌표로; 바꿀때는; 선택한; 원점에; 관계없이; 바꾸고자; \""},
        {73, "*   "},
        {74, "*zone   2"},
        {75, "*   "},
        {76, "*(2-2) 서부, 중부, 동부, 동해, 제주도가 원점이 아닐경우 또는 베셀외의 타원체를 사용할 때 변환 파라미터를 입력한다. "},
        {81, "*tm para    제주도의 경우 "},
        {82, "*   6377397.155    299.1528128   "},
        {83, "*   38      127"},
        {84, "*   550000   200000"},
        {85, "*   1.0"},
        {86, "*   "},
        {87, "*(2-3) 경도에 10.405초를 가산하는지 여부   "},
        {89, "*   생략시 가산함"},
        {90, "*add  10.405   <-  가산 할 때"},
        {91, "*add  0        <-  가산 안할 때   "},
        {92, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, Section3TellsTheUtmOrigin) {
    expectLines({
        // clang-format off
        {93, "*(3) 경위도 <-> UTM 직교좌표로 환산하기 데이터 입력"},
        {94, "*(3-1)  원점입력"},
        {97, "*   생략시  129 도"},
        {98, "*   "},
        {99, "*UTM 129"},
        {100, "*   "},
        {101, "*(3-2) 123도도 아니고 129도도 아니거나, 베셀외의 다른 타원체일때 파라미터들을 직접입력한다. "},
        {102, "*   맨앞에 UTM PATA 라고 쓰고 네줄에 반경 편평도 /  원점위도 원점경도 "},
        {106, "*UTM PARA    117도원점의 경우 "},
        {107, "*   6377397.155    299.1528128   "},
        {108, "*   0      117"},
        {109, "*   0   500000"},
        {110, "*   0.9996"},
        {111, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, Section4TellsTheAngleForms) {
    expectLines({
        // clang-format off
        {112, "*(4) 입 출력할 각도 표현형태   "},
        {113, "*(4-1)   출력할 각도 표현형식"},
        {117, "*   deg      ->  128.426667"},
        {118, "*   ddd mm ss.ss   -> 128 25 36.1253"},
        {119, "*   ddd-mm-ss.ss   -> 128-25-36.1253"},
        {120, "*   ddd.mmssss     -> 128.25361253"},
        {122, "*OUTPUT    ddd-mm-ssss   "},
        {123, "*   "},
        {124, "*(4-2) 입력하는 각도의 표현형태   "},
        {127, "*INPUT    ddd.mmssss   "},
        {128, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, Section5TellsThePointLines) {
    expectLines({
        // clang-format off
        {129, "*(5) 전환활 지점의 좌표데이터 입력 - 네가지가 있다 WGS와 사용자경위도 및 직교좌표 TM, UTM   "},
        {130, "*   "},
        {131, "*(5-1) WGS 좌표를 알때 나머지 2개가 구해진다."},
        {133, "*   점의명칭은 10자이내로 띄우지 않고 쓰야한다."},
        {136, "*WGS    인천No-3   37.35332567   126.32293454   30.1756"},
        {137, "*   "},
        {138, "*(5-2) 사용자(User) 경위도(예, 베셀) 입력 "},
        {139, "*UGS    인천No-3   37.35332567   126.32293454   7.1756"},
        {140, "*   "},
        {141, "*(5-3) 직교좌표(TM) 입력시 (X(north), Y(east) h 순으로 입력)  "},
        {142, "*TM   인천No-3  377504.2345   125963.97405   7.239 "},
        {143, "*   "},
        {144, "*(5-5) 직교좌표(UTM) 입력시 (X(north), Y(east) h 순으로 입력)  "},
        {145, "*UTM   인천No-3   4098671.926334    233069.905228   7.1756"},
        {146, "*   "},
        {148, "* 같은 변환일때 두번째줄 부터는 WGS, UGS, TM글자는 생략할 수 있다.  "},
        {150, "*WGS    인천No-3     37.35332567   126.32293454   30.1756"},
        {151, "*       인천부두끝   37.35772984   126.53224344   31.2534"},
        {152, "*       TP-153       37.34874747   126.56973727   30.5823 "},
        // clang-format on
    });
}

TEST_F(SampleData, Section6TellsDistances) {
    expectLines({
        // clang-format off
        {153, "*(6) 두 점간의 거리계산 방법"},
        {156, "*DIST   인천No-3     인천부두끝"},
        {157, "*       인천부두끝   TP-153"},
        {158, "*       TP-153       인천No-3"},
        {159, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, Section7TellsTheEnd) {
    expectLines({
        // clang-format off
        {160, "*(7) 종료명령"},
        {162, "*END"},
        {163, "*   "},
        // clang-format on
    });
}

TEST_F(SampleData, TheBannerOfTheLargeExampleFollows) {
    expectLines({
        // clang-format off
        {164, "************************************ "},
        {165, "*  복잡한 데이터의 예              * "},
        {166, "************************************ "},
        // clang-format on
    });
}

TEST_F(SampleData, TheLargeExampleClosesTheFileWithItsOwnEnd) {
    expectLines({
        // clang-format off
        {167, " "},
        {168, "* WGS 환산을 위한 파라미터들 "},
        {169, "7 para    국립지리원 값"},
        {170, "    146.44   -507.89     -681.46"},
        {171, "      0         0         0"},
        {172, "      0         "},
        {173, " "},
        {174, "1st corr    0.12    -0.23     0.76   "},
        {175, "CORRECTION"},
        {176, " "},
        {177, "* 직교좌표를 위한 파라미터 들 "},
        {178, "zone   2"},
        {179, "tm para    제주도의 경우 "},
        {180, "   6377397.155    299.1528128   "},
        {181, "   38      127"},
        {182, "   550000   200000"},
        {183, "   1.0"},
        {184, "add  0        <-  가산 안할 때   "},
        {185, " "},
        {186, "* UTM 파라미터들  "},
        {187, "UTM PARA    117도원점의 경우 "},
        {188, "   6377397.155    299.1528128   "},
        {189, "   0      117"},
        {190, "   0   500000"},
        {191, "   0.9996"},
        {192, "OUTPUT    ddd-mm-ssss   "},
        {193, "INPUT    ddd.mmssss   "},
        {194, " "},
        {195, "* 실제 좌표 입력하는 부분 "},
        {196, "WGS    인천No-3     37.35332567   126.32293454   30.1756"},
        {197, "       인천부두끝   37.35772984   126.53224344   31.2534"},
        {198, "       TP-153       37.34874747   126.56973727   30.5823 "},
        {199, " "},
        {200, "UGS    A-1   37.35332567   126.32293454   7.1756"},
        {201, "       A-2   37.35332567   126.32293454   7.1756"},
        {202, "TM     1       377504.2345   125963.97405   7.239 "},
        {203, "TM     2       377504.2345   125963.97405   7.239 "},
        {204, "UTM    u1   4098671.926334    233069.905228   7.1756"},
        {205, "       u2   4098671.926334    233069.905228   7.1756"},
        {206, "   "},
        {207, "* 두 점간의 거리글 구하고 싶을 때 "},
        {208, "DIST   인천No-3     인천부두끝"},
        {209, "       인천부두끝   TP-153"},
        {210, "       TP-153       A-2"},
        {211, "       a-1          u2"},
        {212, "   "},
        {213, "end"},
        // clang-format on
    });
}

TEST_F(SampleData, TheShippedExampleIsTheFileAsItIsWritten) {
    std::ifstream file(KELVO_SOURCE_DIR "/examples/sample.dat", std::ios::binary);
    const std::string shipped{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(disk.bytes(path), shipped);
}

TEST_F(SampleData, AFileThatCannotBeCreatedIsTheCallersFault) {
    EXPECT_THROW(WriteSampleData(disk, "/nowhere/test.dat"), RuntimeFault);
}

}  // namespace
}  // namespace kelvo
