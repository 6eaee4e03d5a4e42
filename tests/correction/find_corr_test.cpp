#include <gtest/gtest.h>

#include <cmath>

#include "common/number_text.h"
#include "correction/run_report.h"
#include "support/faults.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo {
namespace {

using testing::faultOf;

class FindCorr : public ::testing::Test {
protected:
    void add(double WgsPhi, double WgsLam, double DPhi, double DLam, double DH, float weight = 1) {
        auto& point = state.known.CorrPoints[static_cast<std::size_t>(++state.known.CorrCount)];
        point.Name = "known" + std::to_string(state.known.CorrCount);
        point.WgsPhi = WgsPhi;
        point.WgsLam = WgsLam;
        point.DPhi = DPhi;
        point.DLam = DLam;
        point.DH = DH;
        point.Weight = weight;
    }
    Correction at(double Phi, double Lam, int flag = 1, int row = 1) {
        TextWriter det(disk, "/det");
        const Correction found = findCorr(state, det, Phi, Lam, 3, row, flag, messages);
        det.close();
        return found;
    }
    int faultAt(double Phi, double Lam) {
        return faultOf([&] { return at(Phi, Lam); });
    }

    ConversionState state;
    testing::MemoryDisk disk;
    testing::RecordingMessages messages;
};

TEST_F(FindCorr, OnAKnownPointItsMissesComeOut) {
    add(37, 127, 0.001, -0.002, 0.5);
    add(37.3, 127.4, 0.9, 0.9, 90);
    add(36.7, 126.6, -0.9, 0.9, -90);
    const Correction found = at(37, 127);
    EXPECT_NEAR(found.DPhi, 0.001, 1e-12);
    EXPECT_NEAR(found.DLam, -0.002, 1e-12);
    EXPECT_NEAR(found.DH, 0.5, 1e-10);
    EXPECT_FLOAT_EQ(state.known.CorrPoints[1].W, 1e16F);
}

TEST_F(FindCorr, TwoKnownPointsAtOneDistanceGiveThePlainMean) {
    add(37, 126.75, 0.001, 0.004, 1);
    add(37, 127.25, 0.003, -0.002, 2);
    const Correction found = at(37, 127);
    EXPECT_DOUBLE_EQ(found.DPhi, 0.002);
    EXPECT_DOUBLE_EQ(found.DLam, 0.001);
    EXPECT_DOUBLE_EQ(found.DH, 1.5);
}

TEST_F(FindCorr, TheWeightFallsWithTheFourthPowerOfTheDistance) {
    add(37, 127.25, 0.001, 0, 1);
    add(37, 126.5, 0.017, 0, 1);  // twice as far: a sixteenth of the weight
    const Correction found = at(37, 127);
    EXPECT_NEAR(found.DPhi, (16 * 0.001 + 0.017) / 17, 1e-9);
}

TEST_F(FindCorr, LatitudeCountsMoreSoTheEasternPointHasTheLargerWeight) {
    add(37, 127.5, 1, 0, 1);  // east
    add(37.5, 127, 0, 1, 1);  // north
    const Correction found = at(37, 127);
    EXPECT_NEAR(found.DPhi / found.DLam, 1.44, 1e-6);
    EXPECT_NEAR(found.DPhi + found.DLam, 1, 1e-12);
}

TEST_F(FindCorr, TheOwnWeightOfAPointCounts) {
    add(37, 126.75, 0.001, 0, 1, 3);
    add(37, 127.25, 0.005, 0, 1, 1);
    EXPECT_DOUBLE_EQ(at(37, 127).DPhi, 0.002);
}

TEST_F(FindCorr, TheWeightIsRoundedToASingleBeforeItIsUsed) {
    add(37.1, 127.3, 1, 0, 1, 0.1F);
    add(36.8, 127.7, 0, 0, 1, 0.3F);
    const Correction found = at(37, 127);
    const auto weight = [](double w, double d1, double d2) {
        const double Q = d1 * d1 * 1.2 + d2 * d2;
        return static_cast<double>(static_cast<float>(w / (Q * Q)));
    };
    const double w1 = weight(static_cast<double>(0.1F), 37.1 - 37, 127.3 - 127);
    const double w2 = weight(static_cast<double>(0.3F), 36.8 - 37, 127.7 - 127);
    EXPECT_EQ(found.DPhi, w1 / (w1 + w2));
    EXPECT_EQ(state.known.CorrPoints[1].W, static_cast<float>(w1));
}

TEST_F(FindCorr, WithTheFlagClearAllIsZeroAndNoRowIsWritten) {
    add(37, 127, 0.001, -0.002, 0.5);
    const Correction found = at(37, 127, 0);
    EXPECT_EQ(found.DPhi, 0);
    EXPECT_EQ(found.DLam, 0);
    EXPECT_EQ(found.DH, 0);
    EXPECT_EQ(disk.bytes("/det"), "");
}

TEST_F(FindCorr, AnyOtherFlagCorrects) {
    add(37, 127, 0.001, -0.002, 0.5);
    EXPECT_NEAR(at(37, 127, -3).DPhi, 0.001, 1e-15);
}

TEST_F(FindCorr, AKnownPointOfWeightZeroHasNoInfluenceEvenAtDistanceZero) {
    add(37, 127, 55, 55, 55, 0);
    add(37.2, 127.2, 0.001, 0.002, 0.5);
    const Correction found = at(37, 127);
    EXPECT_DOUBLE_EQ(found.DPhi, 0.001);
    EXPECT_DOUBLE_EQ(found.DLam, 0.002);
    EXPECT_DOUBLE_EQ(found.DH, 0.5);
}

TEST_F(FindCorr, AMissOfHeightOfExactlyZeroHasNoSayInTheHeight) {
    add(37, 126.75, 0.001, 0, 0);
    add(37, 127.25, 0.003, 0, 2);
    const Correction found = at(37, 127);
    EXPECT_DOUBLE_EQ(found.DPhi, 0.002);
    EXPECT_DOUBLE_EQ(found.DH, 2);
}

TEST_F(FindCorr, WithoutAUsableWeightItFaults) {
    EXPECT_EQ(faultAt(37, 127), 6) << "no known point";
    add(37.2, 127.2, 0.001, 0.002, 0.5, 0);
    EXPECT_EQ(faultAt(37, 127), 6);
    add(37.3, 127.2, 0.001, 0.002, 0.5, 1e-44F);
    EXPECT_EQ(faultAt(-60, -127), 6) << "the weight underflows";
}

TEST_F(FindCorr, WithoutAnyHeightItFaults) {
    add(37.2, 127.2, 0.001, 0.002, 0);
    EXPECT_EQ(faultAt(37, 127), 6);
    EXPECT_EQ(disk.bytes("/det"), "");
}

TEST_F(FindCorr, AWeightBeyondASingleFaults) {
    add(37, 127, 0.001, 0.002, 1, 3.3e22F);
    EXPECT_EQ(faultAt(37, 127), 0);
    state.known.CorrPoints[1].Weight = 3.5e22F;
    EXPECT_EQ(faultAt(37, 127), 6);
    state.known.CorrPoints[1].Weight = 1;
    EXPECT_EQ(faultAt(37, 127 + 1e-10), 6) << "very near, and not on the point";
    EXPECT_EQ(faultAt(37, 127 + 3e-10), 0);
}

TEST_F(FindCorr, TheRowShowsTheNameOfTheTableRowAndTheCorrection) {
    state.points.row(7).name = "가나다라마바";
    add(35, 127, 3.0 / 3600, -4.0 / 3600, -0.5);
    (void)at(35, 127, 1, 7);
    // 3 seconds of 30.8136 m and 4 seconds of 25.3548 m
    const std::string row = disk.text("/det");
    const std::string head =
        "가나다라마                    0-00-03.0000      -0-00-04.0000      -0.5000    L =";
    EXPECT_EQ(row.substr(0, head.size()), head);
    const double L = std::sqrt(std::pow(3 * 30.8136, 2) + std::pow(4 * 25.3548, 2));
    EXPECT_NEAR(leadingNumber(row.substr(head.size())), L, 3e-4);
    EXPECT_EQ(row.size(), head.size() + 9 + 2);
    (void)at(35, 127, 1, 0);
    EXPECT_EQ(disk.text("/det").substr(0, 12), "            ");
    EXPECT_EQ(faultOf([&] { return at(35, 127, 1, 10001); }), 9);
}

}  // namespace
}  // namespace kelvo
