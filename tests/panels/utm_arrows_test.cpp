// The arrows between the grids: each grid by the ellipsoid, origin and scale of its own boxes.
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using genSub::FormatNum;
using testing::PanelBench;

class UtmArrows : public PanelBench {
protected:
    UtmArrows() {
        click("optUser");
        click("optUUser");
        click("optNotAdd");
        const std::pair<const char*, const char*> values[] = {
            {"txta", "6377397.155"}, {"txtf", "299.1528128"}, {"txtPhi0", "38"},
            {"txtLam0", "127"},      {"txtX0", "500000"},     {"txtY0", "200000"},
            {"txtS0", "1"},          {"txtUa", "6378137"},    {"txtUf", "298.25"},
            {"txtUPhi0", "10"},      {"txtULam0", "128"},     {"txtUX0", "7000"},
            {"txtUY0", "300000"},    {"txtUS0", "0.5"}};
        for (const auto& [box, value] : values) type(box, value);
    }
    static constexpr Ellipsoid kTm{6377397.155, 1 / 299.1528128};
    static constexpr Ellipsoid kUtm{6378137, 1 / 298.25};
    static constexpr Projection kTmOrigin{500000, 200000, 38, 127, 1};
    static constexpr Projection kUtmOrigin{7000, 300000, 10, 128, 0.5};
    [[nodiscard]] double number(const char* box) { return leadingNumber(text(box)); }
};

TEST_F(UtmArrows, ToUtmTakeTheTmBoxesForThePositionAndTheUtmBoxesForTheGrid) {
    type("txtX", "430000");
    type("txtY", "215000");
    click("cmdTM2UTM");
    const Position at = KelvoSub::TMToGeo(430000, 215000, kTm, kTmOrigin).value;
    const GridPoint grid = KelvoSub::GeoToTM(at.Phi, at.Lam, kUtm, kUtmOrigin).value;
    EXPECT_EQ(text("txtUX"), FormatNum(grid.X, 10, 5));
    EXPECT_EQ(text("txtUY"), FormatNum(grid.Y, 10, 5));
}

TEST_F(UtmArrows, FromUtmTakeTheUtmBoxesForThePositionAndTheTmBoxesForTheGrid) {
    type("txtUX", "1500000");
    type("txtUY", "280000");
    click("cmdUTM2TM");
    const Position at = KelvoSub::TMToGeo(1500000, 280000, kUtm, kUtmOrigin).value;
    const GridPoint grid = KelvoSub::GeoToTM(at.Phi, at.Lam, kTm, kTmOrigin).value;
    EXPECT_EQ(text("txtX"), FormatNum(grid.X, 10, 5));
    EXPECT_EQ(text("txtY"), FormatNum(grid.Y, 10, 5));
}

TEST_F(UtmArrows, BringAPointThereAndBack) {
    type("txtX", "430000");
    type("txtY", "215000");
    click("cmdTM2UTM");
    click("cmdUTM2TM");
    EXPECT_NEAR(number("txtX"), 430000, 2e-5);
    EXPECT_NEAR(number("txtY"), 215000, 2e-5);
}

// What each box of the UTM set does, by its meaning alone.
TEST_F(UtmArrows, FalseOriginAndScaleOfUtmMoveTheGridAsTheyShould) {
    type("txtX", "430000");
    type("txtY", "215000");
    click("cmdTM2UTM");
    const double X = number("txtUX");
    const double Y = number("txtUY");
    type("txtUX0", "7100");
    type("txtUY0", "300010");
    click("cmdTM2UTM");
    EXPECT_NEAR(number("txtUX"), X + 100, 1e-5);
    EXPECT_NEAR(number("txtUY"), Y + 10, 1e-5);
    type("txtUS0", "1");
    click("cmdTM2UTM");
    EXPECT_NEAR(number("txtUX") - 7100, 2 * (X - 7000), 2e-5);
    EXPECT_NEAR(number("txtUY") - 300010, 2 * (Y - 300000), 2e-5);
    type("txtUa", "12756274");
    click("cmdTM2UTM");
    EXPECT_NEAR(number("txtUX") - 7100, 4 * (X - 7000), 4e-5) << "twice the axis";
}

}  // namespace
}  // namespace kelvo
