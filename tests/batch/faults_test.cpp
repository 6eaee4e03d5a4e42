// What ends a run, and what nonsense does not.
#include <gtest/gtest.h>

#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

constexpr std::size_t kNotesOfFaults = 16;
constexpr std::size_t kHeader = 23;
const std::string kKnownOfFaults =
    "k1 37.30 127.00 10 37.2950 127.0007 20 1\nk2 37.40 127.10 12 37.3950 127.1007 22 1\n*\n*\n";
const std::string kWholeRun =
    "CORR\nWGS a 37.3 127 1\n   b 37.31 127.01 1\n*\nzone 3\nUGS c 37.3 127 1\nDIST a b\nend\n\n";

TEST(Faults, AMissingDataFileLeavesNoResult) {
    BatchBench bench;
    bench.runFile();
    EXPECT_EQ(bench.fault, 53);
    EXPECT_FALSE(bench.disk.has("/job/a.out"));
    EXPECT_FALSE(bench.disk.has("/app/kelvo.det"));
}

TEST(Faults, AMissingFolderOfTheDetailLeavesAnEmptyResult) {
    BatchBench bench;
    bench.places.detPath = "/none/kelvo.det";
    bench.run("WGS a 37.3 127 1\n*\n");
    EXPECT_EQ(bench.fault, 76);
    EXPECT_TRUE(bench.disk.has("/job/a.out"));
    EXPECT_EQ(bench.disk.bytes("/job/a.out"), "");
}

TEST(Faults, AMissingFileOfKnownPointsEndsTheRunBehindItsHeader) {
    BatchBench bench;
    bench.run("CORR\nWGS a 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.fault, 53);
    EXPECT_EQ(bench.out().size(), kNotesOfFaults + kHeader);
    EXPECT_TRUE(bench.det().empty());
    EXPECT_EQ(bench.points(), 0);
}

TEST(Faults, TheTwoHundredAndFirstKnownPointIsASubscriptFault) {
    BatchBench bench;
    std::string known;
    for (int i = 1; i <= 200; ++i) known += "k 37.30 127.00 10 37.2950 127.0007 20 1\n";
    bench.known(known + "*\n*\n");
    bench.run("CORR\nWGS a 37.301 127.001 1\nend\n\n");
    EXPECT_EQ(bench.fault, 0) << bench.faultText;
    bench.known(known + "l 37.30 127.00 10 37.2950 127.0007 20 1\n*\n*\n");
    bench.run("CORR\nWGS a 37.301 127.001 1\nend\n\n");
    EXPECT_EQ(bench.fault, 9);
    EXPECT_EQ(bench.out().size(), kNotesOfFaults + kHeader);
}

TEST(Faults, WithoutAUsableWeightThePointCannotBeCorrected) {
    BatchBench bench;
    bench.known("k 37.30 127.00 10 37.2950 127.0007 20 0\n*\n*\n");
    bench.run("CORR\nWGS a 37.301 127.001 1\nend\n\n");
    EXPECT_EQ(bench.fault, 6);
    EXPECT_EQ(bench.points(), 1);
    EXPECT_EQ(bench.det().back(), "") << "the head of the table of corrections, and no row";
    EXPECT_EQ(bench.det()[bench.det().size() - 2].substr(0, 6), "명칭");
}

TEST(Faults, APointVeryNearAKnownOneOverflowsItsWeightAndTheTextNamesBoth) {
    BatchBench bench;
    bench.known("기지 37.30 127.00 10 37.2950 127.0007 20 1\n*\n*\n");
    bench.run("CORR\nINPUT deg\nWGS 새점 37.5 127.0000000001 1\nend\n\n");
    EXPECT_EQ(bench.fault, 6);
    EXPECT_NE(bench.faultText.find("기지"), std::string::npos) << bench.faultText;
    EXPECT_NE(bench.faultText.find("새점"), std::string::npos) << bench.faultText;
    bench.run("CORR\nINPUT deg\nWGS 새점 37.5 127.000000001 1\nend\n\n");
    EXPECT_EQ(bench.fault, 0) << "ten times as far it doesn't";
}

TEST(Faults, DegreesBeyondSixteenBitsOverflow) {
    for (const char* line : {"WGS a 40000.3 127 1", "WGS a 37.3 1000000 1", "UGS a -99999 127 1"}) {
        BatchBench bench;
        bench.run(std::string("INPUT deg\n") + line + "\nend\n\n");
        EXPECT_EQ(bench.fault, 6) << line;
        EXPECT_EQ(bench.points(), 1);
    }
}

TEST(Faults, TheTextSaysWhichLineOfWhichFile) {
    BatchBench bench;
    bench.run("*\n*\n7 para\n1 2 3\n");
    EXPECT_EQ(bench.fault, 62);
    EXPECT_NE(bench.faultText.find("/job/a.dat"), std::string::npos) << bench.faultText;
    EXPECT_NE(bench.faultText.find("4"), std::string::npos) << bench.faultText;
}

TEST(Faults, InABlockOfPointsTheTextNamesTheLineOfThePoint) {
    for (int bad = 1; bad <= 6; ++bad) {
        BatchBench bench;
        bench.known("k 37.30 127.00 10 37.2950 127.0007 20 1\n*\n*\n");
        std::string data = "CORR\nINPUT deg\n";
        for (int i = 1; i <= 6; ++i) {
            data += i == 1 ? "WGS" : "   ";
            // too near the known point for its weight to be computed
            data += i == bad ? " p 37.5 127.0000000001 1\n" : " p 37.3 127 1\n";
        }
        bench.run(data + "end\n\n");
        EXPECT_EQ(bench.fault, 6);
        EXPECT_EQ(bench.points(), bad);
        EXPECT_NE(bench.faultText.find(" " + std::to_string(bad + 2) + "번째 줄"),
                  std::string::npos)
            << bench.faultText;
    }
}

TEST(Faults, TheTextOfACutFileOfKnownPointsNamesThatFile) {
    BatchBench bench;
    bench.known("k 37.30 127.00 10 37.2950 127.0007 20 1\n*\n");
    bench.run("CORR\nWGS a 37.301 127.001 1\nend\n\n");
    EXPECT_EQ(bench.fault, 62);
    EXPECT_NE(bench.faultText.find("/app/kelvo.cor"), std::string::npos) << bench.faultText;
}

TEST(Faults, EveryOperationMadeToFailInTurnEndsTheRunWithItsFault) {
    BatchBench whole;
    whole.known(kKnownOfFaults);
    int operations = 0;
    whole.disk.before = [&](const std::string&, const std::string&) { ++operations; };
    whole.run(kWholeRun);
    ASSERT_EQ(whole.fault, 0) << whole.faultText;
    ASSERT_GT(operations, 10);
    const std::string out = whole.disk.bytes("/job/a.out");
    const std::string det = whole.disk.bytes("/app/kelvo.det");

    for (int failing = 1; failing <= operations; ++failing) {
        BatchBench bench;
        bench.known(kKnownOfFaults);
        int count = 0;
        std::string failed;
        bench.disk.before = [&](const std::string& operation, const std::string& path) {
            if (++count != failing) return;
            failed = operation + " " + path;
            raise(Fault::DiskFull);
        };
        bench.run(kWholeRun);
        EXPECT_EQ(bench.fault, 61) << failed;
        EXPECT_FALSE(bench.faultText.empty());
        // what stands is a beginning of the whole
        EXPECT_EQ(out.rfind(bench.disk.bytes("/job/a.out"), 0), 0U) << failed;
        EXPECT_EQ(det.rfind(bench.disk.bytes("/app/kelvo.det"), 0), 0U) << failed;
        // and the bench goes on to a sound run
        bench.disk.before = nullptr;
        bench.run(kWholeRun);
        EXPECT_EQ(bench.fault, 0);
        EXPECT_EQ(bench.disk.bytes("/job/a.out"), out) << failed;
        EXPECT_EQ(bench.disk.bytes("/app/kelvo.det"), det) << failed;
    }
}

TEST(Faults, EveryOperationFailingFromSomePointOnEndsTheRunToo) {
    for (int from = 1; from <= 30; ++from) {
        BatchBench bench;
        bench.known(kKnownOfFaults);
        int count = 0;
        bench.disk.before = [&](const std::string&, const std::string&) {
            if (++count >= from) raise(Fault::DiskNotReady);
        };
        bench.run(kWholeRun);
        EXPECT_TRUE(bench.fault == 71 || count < from) << from;
    }
}

// The correction comes before the grid: where both fail, the fault of the first ends the run and
// the message of the second isn't reached.
TEST(Faults, AUtmPointIsCorrectedBeforeItsTmCoordinatesAreComputed) {
    const std::string gridThatFails =
        "tm para\n6377397.155 299.1528128\n38 127\n500000 200000\n1e305\n";
    BatchBench bench;
    bench.run(gridThatFails + "UTM u 4100000 450000 1\nend\n\n");
    EXPECT_EQ(bench.fault, 0) << bench.faultText;
    EXPECT_EQ(bench.messages.shown.size(), 1U);
    bench.known("k 37.30 127.00 10 37.2950 127.0007 20 0\n*\n*\n");
    bench.run("CORR\n" + gridThatFails + "UTM u 4100000 450000 1\nend\n\n");
    EXPECT_EQ(bench.fault, 6);
    EXPECT_EQ(bench.messages.shown.size(), 0U);
}

TEST(Faults, TheResultOfARunIsNotItsDataFile) {
    BatchBench bench;
    bench.places.dataFile = "/job/a.out";
    bench.run("WGS a 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.fault, 55);
    EXPECT_EQ(bench.disk.text("/job/a.out"), "WGS a 37.3 127 1\nend\n\n") << "and stays";
}

// Coordinates that make no sense, each in a run of its own: whatever happens, no infinity and no
// NaN stands in a report or a message.
TEST(Nonsense, NeverReachesAReportAsInfinityOrNan) {
    const char* coordinates[] = {"90 127 0",
                                 "-90 127 0",
                                 "90 0 0",
                                 "0 0 0",
                                 "37.5 1000000 0",
                                 "1000000 127 0",
                                 "37.5 90 0",
                                 "37.5 -90 0",
                                 "37.5 270 0",
                                 "45 127 0",
                                 "47.9 127 0",
                                 "89.99 127 0",
                                 "1e15 1e15 1e15",
                                 "1e150 1e150 0",
                                 "1e300 1e300 1e300",
                                 "37.5 127 1e300",
                                 "37.5 127 1e18",
                                 "37.5 127 -6378137",
                                 "1e-300 1e-300 1e-300",
                                 "32767 32767 0",
                                 "-32768 -32768 0",
                                 "500000 200000 0",
                                 "1e7 1e7 0",
                                 "-1e8 -1e8 -1e8"};
    const char* parameters[] = {
        "*",
        "tm para\n0 299\n38 127\n500000 200000\n1",
        "tm para\n6377397 0\n38 127\n500000 200000\n1",
        "tm para\n6377397 299\n38 127\n500000 200000\n0",
        "tm para\n6377397 1\n38 127\n500000 200000\n1",
        "tm para\n-1 -1\n90 1e300\n1e300 1e300\n1e300",
        "utm para\n0 0\n0 129\n0 500000\n0",
        "utm para\n1e300 299\n0 129\n0 500000\n1e-300",
        "7 para\n1e300 -1e300 1e300\n1e300 1e300 1e300\n1e300",
        "7 para\n0 0 0\n0 0 0\n-1000000",
        "1 1e300 -1e300 1e300",
        "zone -32768",
    };
    for (const char* parameter : parameters) {
        for (const char* place : coordinates) {
            for (const char* system : {"WGS", "UGS", "TM", "UTM"}) {
                for (const char* correction : {"NO", "CORR"}) {
                    BatchBench bench;
                    bench.known(kKnownOfFaults);
                    bench.run(std::string("INPUT deg\nOUTPUT deg\n") + correction + "\n" +
                              parameter + "\n" + system + " a " + place + "\n   b " + place +
                              "\nWGS c 37.3 127 1\nDIST a c\nend\n\n");
                    std::string all = bench.disk.bytes("/job/a.out") +
                                      bench.disk.bytes("/app/kelvo.det") + bench.faultText;
                    for (const auto& text : bench.messages.texts()) all += text;
                    for (char& c : all) {
                        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
                    }
                    ASSERT_EQ(all.find("nan"), std::string::npos) << parameter << ' ' << place;
                    ASSERT_EQ(all.find("inf"), std::string::npos) << parameter << ' ' << place;
                    ASSERT_EQ(all.find("#"), std::string::npos) << parameter << ' ' << place;
                }
            }
        }
    }
}

TEST(Nonsense, ALatitudeOfNinetyDegreesTellsAndTheRunGoesOn) {
    BatchBench bench;
    bench.run("INPUT deg\nWGS a 90 127 0\n   b 37.5 127 0\nend\n\n");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(bench.messages.shown.size(), 1U);
    EXPECT_EQ(bench.points(), 2);
}

TEST(Nonsense, AnEllipsoidOfZeroTellsForEveryStepOfAPoint) {
    BatchBench bench;
    bench.run("INPUT deg\ntm para\n0 299\n38 127\n500000 200000\n1\nWGS a 37.5 127 0\nend\n\n");
    EXPECT_EQ(bench.fault, 0);
    // to the user ellipsoid, and to the TM grid
    ASSERT_EQ(bench.messages.shown.size(), 2U);
    EXPECT_EQ(bench.row(1).TmX, 500000);
    EXPECT_EQ(bench.row(1).TmY, 200000);
    bench.run("INPUT deg\ntm para\n0 299\n38 127\n500000 200000\n1\nUGS a 37.5 127 0\nend\n\n");
    EXPECT_EQ(bench.fault, 6) << "the way to earth-centred coordinates has no guard: 0 / 0";
    bench.run("INPUT deg\ntm para\n1 0\n38 127\n500000 200000\n1\nUGS a 37.5 127 0\nend\n\n");
    EXPECT_EQ(bench.fault, 11);
}

TEST(Faults, ACorrectionThatMakesAHeightInfiniteEndsTheRunAtThePoint) {
    BatchBench bench;
    bench.known("* \nK1 37.0 127.0 100 37.0 127.0 1.7e308 0.001\n\nx\n");
    bench.run(
        "CORRECTION\nWGS a 37.30 127.30 10\n1st 0 0 1.7e308\nWGS b 37.30 127.30 10\n \nend\n\n");
    EXPECT_EQ(bench.fault, 6);
    EXPECT_EQ(bench.points(), 2);
    EXPECT_NE(bench.faultText.find("점 b"), std::string::npos) << bench.faultText;
}

TEST(Faults, AFaultInATableNamesThePointOfItsRow) {
    BatchBench bench;
    bench.run("OUTPUT deg\nINPUT deg\nWGS a 37.5 127.5\n   c 37 1e6 3\n   d 37 127 3\n \nend\n\n");
    EXPECT_EQ(bench.fault, 6);
    EXPECT_NE(bench.faultText.find("점 c"), std::string::npos) << bench.faultText;
}

}  // namespace
}  // namespace kelvo
