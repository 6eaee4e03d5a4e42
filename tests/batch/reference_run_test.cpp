// Whole runs against the plain formulas: every cell of every table, for blocks of
// every length and with points in between that can't be computed.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>

#include "reference/pipeline.h"
#include "support/batch_bench.h"
#include "support/case_count.h"

namespace kelvo {
namespace {

using testing::BatchBench;

constexpr int kRuns = testing::kSanitized ? 1 : 12;
constexpr int kPointsOfARun = 9000;

class RandomRun {
public:
    explicit RandomRun(unsigned seed) : random_(seed) { data_ = "INPUT deg\n"; }

    void addBlock() {
        const int system = whole(0, 3);
        const int length = whole(1, 11);
        for (int i = 0; i < length; ++i) addPoint(system, i == 0);
        data_ += "*\n";
    }

    [[nodiscard]] const std::string& data() const { return data_; }
    [[nodiscard]] int failures() const { return pipeline_.failures; }

    std::vector<reference::Row> rows;

private:
    void addPoint(int system, bool first) {
        static const char* const keywords[] = {"WGS", "UGS", "TM ", "UTM"};
        const std::string name = "P" + std::to_string(rows.size() + 1);
        double one = 0;
        double two = 0;
        if (system < 2) {
            // one in fifty lies where the iteration has no answer
            one = whole(1, 50) == 1 ? real(47.5, 80) : real(32.5, 43.5);
            two = real(124, 132.5);
        } else {
            one = system == 2 ? real(-50000, 650000) : real(3650000, 4300000);
            two = system == 2 ? real(50000, 350000) : real(200000, 800000);
        }
        const double h = real(-50, 1950);
        char text[128];
        std::snprintf(text, sizeof text, "%.10f %.10f %.4f", one, two, h);
        data_ += (first ? keywords[system] : "   ") + std::string(" ") + name + " " + text + "\n";
        std::sscanf(text, "%lf %lf", &one, &two);
        const double height = std::strtod(std::strrchr(text, ' '), nullptr);
        switch (system) {
            case 0:
                rows.push_back(pipeline_.fromWgs(name, one, two, height));
                break;
            case 1:
                rows.push_back(pipeline_.fromUser(name, one, two, height));
                break;
            case 2:
                rows.push_back(pipeline_.fromTm(name, one, two, height));
                break;
            default:
                rows.push_back(pipeline_.fromUtm(name, one, two, height));
        }
    }

    int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    double real(double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(random_);
    }

    std::mt19937_64 random_;
    std::string data_;
    reference::Pipeline pipeline_;
};

TEST(ReferenceRun, EveryCellOfAHundredThousandRandomPointsIsTheSame) {
    for (unsigned seed = 1; seed <= kRuns; ++seed) {
        RandomRun expected(seed);
        while (expected.rows.size() < kPointsOfARun) expected.addBlock();
        BatchBench bench;
        bench.run(expected.data() + "end\n\n");
        ASSERT_EQ(bench.fault, 0) << bench.faultText;
        EXPECT_EQ(static_cast<int>(bench.messages.shown.size()), expected.failures());
        EXPECT_GT(expected.failures(), 20);
        for (int table = 1; table <= 5; ++table) {
            const auto found = bench.table(table);
            ASSERT_EQ(found.size(), expected.rows.size());
            for (std::size_t i = 0; i < found.size(); ++i) {
                ASSERT_EQ(found[i], reference::Pipeline::tableLine(expected.rows[i], table))
                    << "table " << table << " of run " << seed;
            }
        }
    }
}

}  // namespace
}  // namespace kelvo
