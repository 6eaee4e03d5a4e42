#include "correction/find_corr.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace kelvo {
namespace {

class FindCorr : public ::testing::Test {
protected:
    void add(double WgsPhi, double WgsLam, double DPhi, double DLam, double DH, float weight = 1) {
        CorrPoint& point = known.emplace_back();
        point.Name = "known" + std::to_string(known.size());
        point.WgsPhi = WgsPhi;
        point.WgsLam = WgsLam;
        point.DPhi = DPhi;
        point.DLam = DLam;
        point.DH = DH;
        point.Weight = weight;
    }
    [[nodiscard]] Correction at(double Phi, double Lam) const {
        const FoundCorrection found = findCorr(known, Position{Phi, Lam});
        EXPECT_EQ(found.failure, NoCorrection::None);
        return found.value;
    }
    [[nodiscard]] NoCorrection failureAt(double Phi, double Lam) const {
        return findCorr(known, Position{Phi, Lam}).failure;
    }

    std::vector<CorrPoint> known;
};

TEST_F(FindCorr, OnAKnownPointItsMissesComeOut) {
    add(37, 127, 0.001, -0.002, 0.5);
    add(37.3, 127.4, 0.9, 0.9, 90);
    add(36.7, 126.6, -0.9, 0.9, -90);
    const Correction found = at(37, 127);
    EXPECT_NEAR(found.DPhi, 0.001, 1e-12);
    EXPECT_NEAR(found.DLam, -0.002, 1e-12);
    EXPECT_NEAR(found.DH, 0.5, 1e-10);
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
}

TEST_F(FindCorr, AKnownPointOfWeightZeroHasNoInfluenceEvenAtDistanceZero) {
    add(37, 127, 55, 55, 55, 0);
    add(37.2, 127.2, 0.001, 0.002, 0.5);
    const Correction found = at(37, 127);
    EXPECT_DOUBLE_EQ(found.DPhi, 0.001);
    EXPECT_DOUBLE_EQ(found.DLam, 0.002);
    EXPECT_DOUBLE_EQ(found.DH, 0.5);
}

TEST_F(FindCorr, AMissOfHeightOfExactlyZeroCountsAsNotKnown) {
    add(37, 126.75, 0.001, 0, 0);
    add(37, 127.25, 0.003, 0, 2);
    const Correction found = at(37, 127);
    EXPECT_DOUBLE_EQ(found.DPhi, 0.002);
    EXPECT_DOUBLE_EQ(found.DH, 2);
}

TEST_F(FindCorr, WithoutAUsableWeightThereIsNone) {
    EXPECT_EQ(failureAt(37, 127), NoCorrection::NoWeight) << "no known point";
    add(37.2, 127.2, 0.001, 0.002, 0.5, 0);
    EXPECT_EQ(failureAt(37, 127), NoCorrection::NoWeight);
    add(37.3, 127.2, 0.001, 0.002, 0.5, 1e-44F);
    EXPECT_EQ(failureAt(-60, -127), NoCorrection::NoWeight) << "the weight underflows";
    EXPECT_EQ(findCorr(known, Position{37, 127}).fault, Fault::Overflow) << "0/0";
}

TEST_F(FindCorr, WeightsThatCancelAreADivisionByZero) {
    add(37, 126.75, 0.001, 0, 1, 1);
    add(37, 127.25, 0.003, 0, 1, -1);
    const FoundCorrection found = findCorr(known, Position{37, 127});
    EXPECT_EQ(found.failure, NoCorrection::NoWeight);
    EXPECT_EQ(found.fault, Fault::DivisionByZero);
}

TEST_F(FindCorr, WithoutAnyHeightThereIsNone) {
    add(37.2, 127.2, 0.001, 0.002, 0);
    EXPECT_EQ(failureAt(37, 127), NoCorrection::NoHeight);
}

TEST_F(FindCorr, AWeightBeyondASingleIsNamedWithItsPoint) {
    add(36, 126, 0.001, 0.002, 1);
    add(37, 127, 0.001, 0.002, 1, 3.3e22F);
    EXPECT_EQ(failureAt(37, 127), NoCorrection::None);
    known[1].Weight = 3.5e22F;
    const FoundCorrection found = findCorr(known, Position{37, 127});
    EXPECT_EQ(found.failure, NoCorrection::WeightTooLarge);
    EXPECT_EQ(found.known, 1U);
    EXPECT_NEAR(found.weight, 3.5e38, 1e33);
    known[1].Weight = 1;
    EXPECT_EQ(failureAt(37, 127 + 1e-10), NoCorrection::WeightTooLarge)
        << "very near, and not on the point";
    EXPECT_EQ(failureAt(37, 127 + 3e-10), NoCorrection::None);
}

TEST_F(FindCorr, ADistanceBeyondADoubleIsAWeightTooLargeAndNotANearlyZeroOne) {
    add(37, 127, 0.001, 0.002, 1);
    EXPECT_EQ(failureAt(1e78, 127), NoCorrection::WeightTooLarge);
    EXPECT_EQ(failureAt(37, 1e200), NoCorrection::WeightTooLarge);
}

TEST_F(FindCorr, AMeanThatOverflowsIsTooLarge) {
    add(37.1, 127, 1e305, 0, 1);
    EXPECT_EQ(failureAt(37, 127), NoCorrection::TooLarge);
    known.clear();
    add(37.1, 127, 0, 1e305, 1);
    EXPECT_EQ(failureAt(37, 127), NoCorrection::TooLarge);
    known.clear();
    add(37.1, 127, 0, 0, 1e305);
    EXPECT_EQ(failureAt(37, 127), NoCorrection::TooLarge);
}

TEST_F(FindCorr, ManyPositionsAtOnceGiveTheVeryNumbersOfEachByItself) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> phi(33, 39);
    std::uniform_real_distribution<double> lam(124, 132);
    std::uniform_real_distribution<double> miss(-1e-4, 1e-4);
    for (int i = 0; i < 200; ++i)
        add(phi(random), lam(random), miss(random), miss(random), i % 7 == 0 ? 0 : miss(random),
            static_cast<float>(i % 5));
    std::vector<Position> positions;
    for (int i = 0; i < 333; ++i) positions.push_back({phi(random), lam(random)});
    positions[40] = {known[17].WgsPhi, known[17].WgsLam};
    positions[41] = {known[18].WgsPhi, known[18].WgsLam + 1e-10};
    std::vector<FoundCorrection> together(positions.size());
    findCorr(known, positions, together);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const FoundCorrection alone = findCorr(known, positions[i]);
        EXPECT_EQ(together[i].failure, alone.failure) << i;
        EXPECT_EQ(together[i].value.DPhi, alone.value.DPhi) << i;
        EXPECT_EQ(together[i].value.DLam, alone.value.DLam) << i;
        EXPECT_EQ(together[i].value.DH, alone.value.DH) << i;
    }
    EXPECT_EQ(together[41].failure, NoCorrection::WeightTooLarge);
    EXPECT_EQ(together[41].known, 18U);
}

}  // namespace
}  // namespace kelvo
