// A converter is safe to share: run under the thread sanitizer by scripts/checks/threads.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "conversion/converter.h"
#include "support/usual_definition.h"

namespace kelvo {
namespace {

TEST(Converter, IsSharedByThreadsThatGetTheSameNumbers) {
    Definition definition = testing::usualDefinition(ShiftKind::Bursa);
    definition.corrects = true;
    std::vector<CorrPoint> known(20);
    for (std::size_t i = 0; i < known.size(); ++i) {
        const double d = static_cast<double>(i);
        known[i].WgsPhi = 34 + 0.2 * d;
        known[i].WgsLam = 126 + 0.17 * d;
        known[i].DPhi = known[i].DLam = 1e-6 * d + 1e-6;
        known[i].DH = 0.01 * d + 0.1;
        known[i].Weight = 1;
    }
    definition.known = std::make_shared<const std::vector<CorrPoint>>(known);
    const Converter converter(definition);

    std::vector<GivenPoint> given;
    for (int i = 0; i < 500; ++i)
        given.push_back({33.5 + 0.01 * i, 125 + 0.013 * i, i == 250 ? 1e308 : 10.0 * i});
    std::vector<std::vector<ConvertedPoint>> results(4, std::vector<ConvertedPoint>(given.size()));
    std::vector<Outcomes> outcomes(results.size());
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < results.size(); ++t)
        threads.emplace_back([&, t] {
            for (int round = 0; round < 5; ++round) {
                converter.convert(System::Wgs, AngleForm::Degrees, given, results[t], outcomes[t]);
                converter.addWgsUtm(results[t], outcomes[t]);
            }
        });
    for (std::thread& thread : threads) thread.join();
    for (std::size_t t = 1; t < results.size(); ++t) {
        EXPECT_EQ(outcomes[t].size(), outcomes[0].size());
        for (std::size_t i = 0; i < given.size(); ++i) {
            ASSERT_EQ(results[t][i].TmX, results[0][i].TmX) << i;
            ASSERT_EQ(results[t][i].UtmY, results[0][i].UtmY) << i;
        }
    }
    EXPECT_FALSE(outcomes[0].empty()) << "one point of them can't be computed";
}

}  // namespace
}  // namespace kelvo
