// The order in which an arrow fills its boxes, shows its messages, stores and closes: what stands
// there if a fault ends it half way.
#include <algorithm>
#include <vector>

#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::PanelBench;
using Names = std::vector<std::string>;

class ArrowOrder : public PanelBench {
protected:
    // The boxes whose texts a click changes, one after the other.
    Names filledBy(const char* arrow) {
        for (const char* box :
             {"txtWdegPhi", "txtWdegLam", "txtWdegTH",  "txtWdmsPhi", "txtWdmsLam", "txtWdmsTH",
              "txtwGeoid",  "txtwH",      "txtBdegPhi", "txtBdegLam", "txtBdegH",   "txtBdmsPhi",
              "txtBdmsLam", "txtBdmsH",   "txtBGeoid",  "txtBTH",     "txtX",       "txtY",
              "txtH",       "txtGeoid",   "txtTH",      "txtUX",      "txtUY",      "txtUH"})
            at(box).watch([this, box](Property property) {
                if (property == Property::Text) filled.emplace_back(box);
            });
        filled.clear();
        click(arrow);
        return filled;
    }
    // The first messages of a click, as many as boxes hold a number that is too large.
    Names reportedBy(const char* arrow, const Names& boxes) {
        for (std::size_t i = 0; i < boxes.size(); ++i)
            type(boxes[i], "1e" + std::to_string(901 + i));
        state.conversion.ParaDirty = false;
        (void)faultOf([&] { click(arrow); });
        Names texts = messages.texts();
        texts.resize(std::min(texts.size(), boxes.size()));
        return texts;
    }
    static Names tooLarge(std::size_t count) {
        Names texts;
        for (std::size_t i = 0; i < count; ++i)
            texts.push_back("입력항 1e" + std::to_string(901 + i) +
                            " 에 오류가 있습니다. 수정후 다시 하십시오");
        return texts;
    }

    Names filled;
};

TEST_F(ArrowOrder, WgsToUserFillsTheOtherFormThenTheUserFrameThenTheGeoidAndTheHeight) {
    typeWgs("37.5", "127.25", "100.5");
    EXPECT_EQ(filledBy("cmdW2B"), (Names{"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH", "txtBdegPhi",
                                         "txtBdegLam", "txtBdegH", "txtBdmsPhi", "txtBdmsLam",
                                         "txtBdmsH", "txtBGeoid", "txtBTH", "txtwGeoid", "txtwH"}));
}

TEST_F(ArrowOrder, UserToWgsFillsTheOtherFormThenTheWgsFrame) {
    typeUser("37.5", "127.25", "100.5");
    EXPECT_EQ(filledBy("cmdB2W"),
              (Names{"txtBdmsPhi", "txtBdmsLam", "txtBdmsH", "txtWdegPhi", "txtWdegLam",
                     "txtWdegTH", "txtWdmsPhi", "txtWdmsLam", "txtWdmsTH", "txtwGeoid", "txtwH"}));
}

TEST_F(ArrowOrder, UserToGridFillsTheOtherFormThenTheGridThenTheHeights) {
    typeWgs("37.5", "127.25", "100.5");
    click("cmdW2B");  // loads the geoid
    typeUser("37.5", "127.25", "50.5");
    EXPECT_EQ(filledBy("cmdGP2TM"), (Names{"txtBdmsPhi", "txtBdmsLam", "txtBdmsH", "txtX", "txtY",
                                           "txtH", "txtGeoid", "txtTH", "txtBGeoid", "txtBTH"}));
}

TEST_F(ArrowOrder, GridToUserFillsBothFormsThenTheHeights) {
    typeWgs("37.5", "127.25", "100.5");
    click("cmdW2B");
    type("txtX", "430000");
    type("txtY", "215000");
    type("txtH", "12.5");
    EXPECT_EQ(filledBy("cmdTM2GP"),
              (Names{"txtBdegPhi", "txtBdegLam", "txtBdegH", "txtBdmsPhi", "txtBdmsLam", "txtBdmsH",
                     "txtBGeoid", "txtBTH", "txtGeoid", "txtTH"}));
}

TEST_F(ArrowOrder, GridsFillEachOtherByXYAndHeight) {
    type("txtX", "430000");
    type("txtY", "215000");
    type("txtH", "12.5");
    EXPECT_EQ(filledBy("cmdTM2UTM"), (Names{"txtUX", "txtUY", "txtUH"}));
    type("txtUX", "4000000");
    type("txtUY", "350000");
    type("txtUH", "13.5");
    EXPECT_EQ(filledBy("cmdUTM2TM"), (Names{"txtX", "txtY", "txtH"}));
}

TEST_F(ArrowOrder, WgsToUserReportsTheShiftThenThePointThenTheEllipsoidThenTheAdjustment) {
    click("optWdeg");
    const Names boxes{"txtdX", "txtdY",      "txtdZ",      "txtOmega",  "txtPhi", "txtKappa",
                      "txtdS", "txtWdegPhi", "txtWdegLam", "txtWdegTH", "txta"};
    EXPECT_EQ(reportedBy("cmdW2B", boxes), tooLarge(boxes.size()));
}

TEST_F(ArrowOrder, AdjustmentIsReportedInTheOrderOfItsBoxes) {
    typeWgs("37.5", "127.25", "100.5");
    EXPECT_EQ(reportedBy("cmdW2B", {"txtdPhi", "txtdLam", "txtdH"}), tooLarge(3));
    messages.shown.clear();
    typeUser("37.5", "127.25", "100.5");
    EXPECT_EQ(reportedBy("cmdB2W", {"txtdPhi", "txtdLam", "txtdH"}), tooLarge(3));
}

TEST_F(ArrowOrder, GridArrowsReportTheOriginInTheOrderOfTheProjection) {
    click("optUser");
    click("optNotAdd");
    EXPECT_EQ(reportedBy("cmdTM2GP",
                         {"txtLam0", "txtX", "txtY", "txta", "txtX0", "txtY0", "txtPhi0", "txtS0"}),
              tooLarge(8));
}

TEST_F(ArrowOrder, UtmArrowReportsTheOriginInTheOrderOfTheProjection) {
    click("optUser");
    click("optUUser");
    EXPECT_EQ(reportedBy("cmdUTM2TM", {"txtUX", "txtUY", "txtUa", "txtUX0", "txtUY0", "txtUPhi0",
                                       "txtULam0", "txtUS0"}),
              tooLarge(8));
}

TEST_F(ArrowOrder, FirstClickStoresThePanelsBeforeTheConfigurationIsWritten) {
    type("txtdX", "12.25");
    double stored = 0;
    bool wasDirty = false;
    whenWritten = [&] {
        stored = state.Cfg.dX;
        wasDirty = state.conversion.ParaDirty;
    };
    click("cmdW2B");
    EXPECT_EQ(stored, 12.25);
    EXPECT_TRUE(wasDirty);
    EXPECT_FALSE(state.conversion.ParaDirty);
}

TEST_F(ArrowOrder, ClosingStoresThePanelsThenWritesAndThenHides) {
    frmeOne.setVisible(true);
    type("txtdX", "12.25");
    double stored = 0;
    bool wasVisible = false;
    whenWritten = [&] {
        stored = state.Cfg.dX;
        wasVisible = frmeOne.visible();
    };
    click("cmdOneClose");
    EXPECT_EQ(stored, 12.25);
    EXPECT_TRUE(wasVisible);
    EXPECT_FALSE(frmeOne.visible());
}

// A disk that takes the last bytes only at the end may refuse them there.
TEST_F(ArrowOrder, AFileThatCannotBeClosedIsAFaultAtBothDatumArrows) {
    for (const char* arrow : {"cmdW2B", "cmdB2W"}) {
        for (const char* refused : {"/app/data/a.out", "/app/kelvo.det"}) {
            disk.before = [&](const std::string& operation, const std::string& path) {
                if (operation == "close" && path == refused) raise(Fault::DiskFull);
            };
            EXPECT_EQ(faultOf([&] { click(arrow); }), 61) << arrow << ' ' << refused;
        }
    }
}

}  // namespace
}  // namespace kelvo
