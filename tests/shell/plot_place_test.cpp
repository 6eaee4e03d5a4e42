#include "shell/plot_place.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::Program;
using testing::WindowBench;

class PlaceOnPlot : public WindowBench {
protected:
    PlaceOnPlot() {
        putConfiguration({"/app/data/a.dat"});
        disk.putText("/app/data/a.dat",
                     "TM 가 454100 160100 30\r\n   나 454900 160800 30\r\nend\r\n \r\n");
        // A square of 1000 m from 454000, 160000: 137 mm are 1100 m.
        disk.putText("/app/plot.cfg",
                     " 3 \r\n 1 \r\n 8 \r\n 0  0  0  0 \r\n 0  0  0  0 \r\n"
                     " 454000  160000  1000  200 \r\n");
    }
    static double twips(double metres) { return metres / 1100 * 137 * 56.7; }
};

TEST_F(PlaceOnPlot, NamesItsCoordinatesAndThePointUnderThePointer) {
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    kelvo.click("cmdShow");
    // 50 m outside the square is the corner of the picture.
    const double x = twips(100 + 50);
    const double y = twips(1050 - 100);
    const PlotPlace on = kelvo.window.plotPlaceAt(x, y, 60);
    EXPECT_NE(on.coordinates.find("X 454100.0"), std::string::npos) << on.coordinates;
    EXPECT_NE(on.coordinates.find("Y 160100.0"), std::string::npos) << on.coordinates;
    EXPECT_EQ(on.point, "가  X 454100.000  Y 160100.000");
    EXPECT_EQ(kelvo.window.plotPlaceAt(x + 100, y, 60).point, "");
    EXPECT_EQ(kelvo.window.plotPlaceAt(x + 50, y, 60).point, "가  X 454100.000  Y 160100.000");
}

TEST_F(PlaceOnPlot, OfTwoPointsAtOnePlaceNamesTheLaterOne) {
    disk.putText("/app/data/a.dat",
                 "TM 가 454100 160100 30\r\n   나 454100 160100 30\r\nend\r\n \r\n");
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    kelvo.click("cmdShow");
    EXPECT_EQ(kelvo.window.plotPlaceAt(twips(100 + 50), twips(1050 - 100), 60).point,
              "나  X 454100.000  Y 160100.000");
}

TEST_F(PlaceOnPlot, SaysNothingBeforeAPlot) {
    Program& kelvo = start();
    EXPECT_EQ(kelvo.window.plotPlaceAt(100, 100, 60).coordinates, "");
}

TEST_F(PlaceOnPlot, GoesByTheKindThatWasDrawn) {
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    kelvo.click("optUGS");
    kelvo.click("optAuto");
    kelvo.click("cmdPlot");
    EXPECT_NE(kelvo.window.plotPlaceAt(3000, 3000, 60).coordinates.find("위도 37°"),
              std::string::npos);
    kelvo.click("optXY");  // chosen, not applied
    EXPECT_NE(kelvo.window.plotPlaceAt(3000, 3000, 60).coordinates.find("위도 37°"),
              std::string::npos);
}

}  // namespace
}  // namespace kelvo
