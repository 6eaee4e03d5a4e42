// What the text of a fault says: the line it belongs to, the point, the value and its limit.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/text_file.h"
#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

// The text of the fault that a run ends with.
class FaultPlaces : public ::testing::Test {
protected:
    void expect(int fault, const std::string& data, std::initializer_list<const char*> parts) {
        bench.run(data);
        EXPECT_EQ(bench.fault, fault) << data;
        for (const char* part : parts)
            EXPECT_EQ(count(bench.faultText, part), 1) << part << " in " << bench.faultText;
    }

    BatchBench bench;
};

TEST_F(FaultPlaces, ALastLineCountsWithAndWithoutItsEnd) {
    expect(62, "*\n*\n7 para\n1 2 3\n", {"/job/a.dat 4번째 줄"});
    expect(62, "*\n*\n7 para\n1 2 3", {"/job/a.dat 4번째 줄"});
    expect(62, "*\r7 para\r5", {"/job/a.dat 3번째 줄"});
}

TEST_F(FaultPlaces, APointOfALastLineWithoutItsEndIsNamedWithThatLine) {
    bench.known("k 37.30 127.00 80 37.2950 127.0007 57 0\n*\n*\n");  // no weight
    expect(6, "CORR\n*\nWGS a 37.301 127.001 1\n   b 37.301 127.001 1", {"3번째 줄", "점 a"});
    bench.known("k 37.30 127.00 80 37.2950 127.0007 57 1\n*\n*\n");
    expect(6, "CORR\nINPUT deg\nWGS a 37.301 127.001 1\n   b 37.5 127.0000000001 1",
           {"/job/a.dat 4번째 줄", "점 b"});
}

TEST_F(FaultPlaces, AnEmptyFileIsNamedWithItsFirstLine) {
    expect(62, "", {"/job/a.dat 1번째 줄"});
}

TEST_F(FaultPlaces, AnEmptyFileOfKnownPointsIsNamedWithItsFirstLine) {
    bench.known("");
    expect(62, "CORR\nWGS a 37.3 127 1\nend\n\n",
           {"/app/kelvo.cor 1번째 줄", "/job/a.dat 2번째 줄"});
}

TEST_F(FaultPlaces, AFileOfKnownPointsThatEndsInAPointIsNamedWithItsLastLine) {
    for (const char* end : {"", "\n"}) {
        bench.known(std::string("*\nk 37.30 127.00 80 37.2950 127.0007 57 1\n*") + end);
        expect(62, "CORR\nWGS a 37.3 127 1\nend\n\n", {"/app/kelvo.cor 3번째 줄"});
    }
}

TEST_F(FaultPlaces, InATableItIsThePointsOwnLineAndThePointOnce) {
    // degrees that can't be written: longitudes beyond 16 bits, in the third point of the file
    const std::string points =
        "INPUT deg\nWGS a 37.5 127.5 1\n   b 37.5 127.5 1\n\n* remark\nWGS 셋째 37 1e6 3\n"
        "   d 37 127 3\n";
    expect(6, points + "end\n\n", {"/job/a.dat 6번째 줄", "점 셋째", "번째 줄"});
    expect(6, points + "*\n\nDIST a b\nend\n\n", {"/job/a.dat 6번째 줄", "점 셋째", "번째 줄"});
    expect(6, points + "*", {"/job/a.dat 6번째 줄", "점 셋째", "번째 줄"});
}

TEST_F(FaultPlaces, InABlockAPointIsNamedOnce) {
    bench.known("기지 37.30 127.00 80 37.2950 127.0007 57 1\n*\n*\n");
    expect(6, "CORR\nINPUT deg\nWGS 새점 37.5 127.0000000001 1\nend\n\n",
           {"점 새점", "기지", "3번째 줄"});
}

TEST_F(FaultPlaces, OfDistancesItIsThePairsLine) {
    // far apart enough for the square of a difference, on origins that the points lie on
    const auto point = [](const std::string& X, const std::string& name) {
        return "tm para\n6377397.155 299.1528128\n38 127\n" + X + " 0\n1\nTM " + name + " " + X +
               " 0 0\n";
    };
    expect(6, point("1e160", "a") + point("-1e160", "b") + "*\nDIST b b\n     a b\nend\n\n",
           {"/job/a.dat 15번째 줄", "거리 a - b"});
}

TEST_F(FaultPlaces, OfALineThatIsTooLongItIsThatLine) {
    const std::string tooLong(kLongestLine + 1, 'x');
    expect(6, "*\n*\n" + tooLong + "\nend\n\n", {"/job/a.dat 3번째 줄", "번째", "16777216"});
    expect(6, "WGS a 37.3 127 1\n   b 37.3 127 1\n   " + tooLong + "\nend\n\n",
           {"/job/a.dat 3번째 줄", "번째"});
    EXPECT_EQ(bench.points(), 2);
    bench.known("*\n" + tooLong + "\n*\n*\n");
    expect(6, "CORR\nWGS a 37.3 127 1\nend\n\n",
           {"/app/kelvo.cor 2번째 줄", "/job/a.dat 2번째 줄"});
}

TEST_F(FaultPlaces, WithoutAnyKnownPointTheTextSaysSoAndNamesTheFile) {
    bench.known("* 주석\n*\n");
    expect(6, "CORR\nWGS a 37.3 127 1\nend\n\n",
           {"/app/kelvo.cor", "보정점이 하나도 없습니다", "2번째 줄"});
    bench.run("WGS a 37.3 127 1\n*\nCORR\nWGS b 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.fault, 6) << "never read";
    EXPECT_EQ(count(bench.faultText, "보정점이 하나도 없습니다"), 1) << bench.faultText;
    EXPECT_EQ(count(bench.faultText, "/app/kelvo.cor"), 1) << bench.faultText;
}

TEST_F(FaultPlaces, WithoutAKnownPointOfBothHeightsTheTextSaysSoAndNamesTheFile) {
    bench.known(
        "k 37.30 127.00 80 37.2950 127.0007 0 1\nl 37.40 127.10 0 37.3950 127.1007 61 1\n*\n*\n");
    expect(
        6, "CORR\nWGS a 37.3 127 1\nend\n\n",
        {"/app/kelvo.cor", "WGS 타원체고와 사용자 표고를 모두 아는 보정점이 없습니다", "2번째 줄"});
}

TEST_F(FaultPlaces, WithWeightsThatAreAllZeroTheTextSaysSoAndNamesFileAndPoint) {
    bench.known(
        "k 37.30 127.00 80 37.2950 127.0007 57 0\nl 37.40 127.10 85 37.3950 127.1007 61\n*\n*\n");
    expect(6, "CORR\nWGS a 37.301 127.001 1\nend\n\n",
           {"/app/kelvo.cor", "보정점들의 가중치를 더한 값이 0입니다", "점 a", "2번째 줄"});
}

TEST_F(FaultPlaces, BeyondSixteenBitsTheTextSaysValueAndLimit) {
    expect(6, "*\nzone 40000\nWGS a 37.3 127 1\nend\n\n",
           {"/job/a.dat 2번째 줄", "40000", "-32768", "32767"});
    expect(6, "zone -32769\nWGS a 37.3 127 1\nend\n\n", {"-32769", "-32768", "32767"});
    expect(6, "INPUT deg\nWGS a 37.3 123456 1\nend\n\n", {"점 a", "123456", "32767"});
}

TEST_F(FaultPlaces, AFlatteningThatDividesByZeroNamesThePoint) {
    expect(11, "INPUT deg\ntm para\n1 0\n38 127\n500000 200000\n1\nUGS a 37.5 127 0\nend\n\n",
           {"/job/a.dat 7번째 줄", "점 a"});
}

// The reader takes the file in pieces of 16,384 bytes, so the second piece begins inside a block.
TEST(AFaultOfTheDiskInsideABlock, LeavesThePointsInFrontOfItAndNamesTheLineThatItStruck) {
    constexpr std::size_t kPiece = 16384;
    for (const int failing : {2, 3}) {
        BatchBench bench;
        bench.known("k 37.30 127.00 80 37.2950 127.0007 57 1\n*\n*\n");
        std::string data = "CORRECTION\nWGS p 37.310000 127.010000 30.0000\n";
        while (data.size() < 3 * kPiece) data += "    p 37.310000 127.010000 30.0000\n";
        data += "end\n\n";
        const std::string read = data.substr(0, kPiece * static_cast<std::size_t>(failing - 1));
        const auto wholeLines = static_cast<int>(std::count(read.begin(), read.end(), '\n'));
        ASSERT_NE(wholeLines % 64, 1) << "not where a group of points ends by itself";
        int reads = 0;
        bench.disk.before = [&](const std::string& operation, const std::string& path) {
            if (operation == "read" && path == "/job/a.dat" && ++reads == failing)
                raise(Fault::DiskNotReady);
        };
        bench.run(data);
        EXPECT_EQ(bench.fault, 71);
        EXPECT_EQ(bench.points(), wholeLines - 1);
        EXPECT_GT(bench.row(wholeLines - 1).TmX, 400000) << "and was converted";
        EXPECT_EQ(count(bench.disk.text("/app/kelvo.det"), "\np  "), wholeLines - 1)
            << "with its row in the detail";
        EXPECT_EQ(count(bench.faultText, " " + std::to_string(wholeLines + 1) + "번째 줄"), 1)
            << bench.faultText;
        EXPECT_EQ(bench.countOut("WGS 타윈체 경위도 및 타원체고"), 0) << "no table";
    }
}

TEST(AFaultOfTheDiskInsideABlock, OfThePointsItselfComesFirst) {
    // a point in the last group can't be corrected: its fault is met on the way to the other one
    BatchBench bench;
    bench.known("k 37.30 127.00 80 37.2950 127.0007 57 1\n*\n*\n");
    std::string data = "CORRECTION\nINPUT deg\nWGS p 37.31 127.01 30.0000\n";
    while (data.size() < 16000) data += "    p 37.310000 127.010000 30.0000\n";
    data += "    bad 37.5 127.0000000001 1\n";
    while (data.size() < 17000) data += "    p 37.310000 127.010000 30.0000\n";
    int reads = 0;
    bench.disk.before = [&](const std::string& operation, const std::string& path) {
        if (operation == "read" && path == "/job/a.dat" && ++reads == 2) raise(Fault::DiskNotReady);
    };
    bench.run(data + "end\n\n");
    EXPECT_EQ(bench.fault, 6);
    EXPECT_EQ(count(bench.faultText, "점 bad"), 1) << bench.faultText;
}

}  // namespace
}  // namespace kelvo
