// The order in which the panels go into the stored set, seen where one box can't be read: what
// stands in front of it is stored, what comes after isn't, and nothing that follows the saving
// happens.
#include <vector>

#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::PanelBench;

// The fields in the order of saving; those that have no box can't fail.
struct Step {
    const char* box;  // null for an option
    double (*field)(const TransPara&);
    double stored;  // by a saving that reaches it
};

double asNumber(auto named) {
    return static_cast<double>(static_cast<int>(named));
}

const std::vector<Step>& steps() {
    static const std::vector<Step> all{
        {nullptr, [](const TransPara& p) { return asNumber(p.Kind); }, 1},
        {"txtdX", [](const TransPara& p) { return p.dX; }, 101},
        {"txtdY", [](const TransPara& p) { return p.dY; }, 102},
        {"txtdZ", [](const TransPara& p) { return p.dZ; }, 103},
        {"txtOmega", [](const TransPara& p) { return p.Omega; }, 104},
        {"txtPhi", [](const TransPara& p) { return p.Phi; }, 105},
        {"txtKappa", [](const TransPara& p) { return p.Kappa; }, 106},
        {"txtdPhi", [](const TransPara& p) { return p.dPhi; }, 107},
        {"txtdLam", [](const TransPara& p) { return p.dLam; }, 108},
        {"txtdH", [](const TransPara& p) { return p.dH; }, 109},
        {"txtdS", [](const TransPara& p) { return p.dS; }, 110},
        {nullptr, [](const TransPara& p) { return asNumber(p.Zone); }, 6},
        {"txtPhi0", [](const TransPara& p) { return p.Phi0; }, 111},
        {"txtLam0", [](const TransPara& p) { return p.Lam0; }, 112},
        {"txtX0", [](const TransPara& p) { return p.X0; }, 113},
        {"txtY0", [](const TransPara& p) { return p.Y0; }, 114},
        {"txtS0", [](const TransPara& p) { return p.S0; }, 115},
        {nullptr, [](const TransPara& p) { return asNumber(p.AddFlag); }, 2},
        {"txta", [](const TransPara& p) { return p.a; }, 116},
        {"txtf", [](const TransPara& p) { return p.f; }, 117},
        {nullptr, [](const TransPara& p) { return asNumber(p.UZone); }, 3},
        {"txtUPhi0", [](const TransPara& p) { return p.UPhi0; }, 118},
        {"txtULam0", [](const TransPara& p) { return p.ULam0; }, 119},
        {"txtUX0", [](const TransPara& p) { return p.UX0; }, 120},
        {"txtUY0", [](const TransPara& p) { return p.UY0; }, 121},
        {"txtUS0", [](const TransPara& p) { return p.US0; }, 122},
        {"txtUa", [](const TransPara& p) { return p.Ua; }, 123},
        {"txtUf", [](const TransPara& p) { return p.Uf; }, 124},
    };
    return all;
}

class SaveOrder : public PanelBench {
protected:
    void fill() {
        click("optMolod");
        click("optUser");
        click("optUUser");
        click("optNotAdd");
        for (const Step& step : steps())
            if (step.box != nullptr) type(step.box, std::to_string(static_cast<int>(step.stored)));
        state.Cfg = {};
        messages.shown.clear();
        written = 0;
    }
};

TEST_F(SaveOrder, OfSaveCfgIsThatOfTheFieldsWithTheScaleAfterTheAdjustments) {
    for (std::size_t bad = 0; bad < steps().size(); ++bad) {
        if (steps()[bad].box == nullptr) continue;
        for (const auto& [words, fault] : {std::pair("abc", 13), std::pair("1e999", 6)}) {
            fill();
            type(steps()[bad].box, words);
            EXPECT_EQ(faultOf([&] { parameters.SaveCfg(); }), fault) << steps()[bad].box;
            for (std::size_t i = 0; i < steps().size(); ++i)
                EXPECT_EQ(steps()[i].field(state.Cfg), i < bad ? steps()[i].stored : 0)
                    << (steps()[i].box != nullptr ? steps()[i].box : "option") << " with a bad "
                    << steps()[bad].box;
        }
    }
}

TEST_F(SaveOrder, OfTwoBadBoxesTheFirstIsNamed) {
    fill();
    type("txtdH", "1e999");
    type("txtdS", "abc");
    EXPECT_EQ(faultOf([&] { parameters.SaveCfg(); }), 6) << "the adjustment comes first";
    fill();
    type("txtUa", "1e999");
    type("txtUPhi0", "abc");
    EXPECT_EQ(faultOf([&] { parameters.SaveCfg(); }), 13) << "the UTM ellipsoid comes last";
    fill();
    type("txta", "1e999");
    type("txtS0", "abc");
    EXPECT_EQ(faultOf([&] { parameters.SaveCfg(); }), 13) << "the ellipsoid after the TM origin";
}

TEST_F(SaveOrder, ClosingThePanelStoresBeforeItWritesAndHides) {
    fill();
    frmeOne.setVisible(true);
    type("txtUf", "");
    EXPECT_EQ(faultOf([&] { click("cmdOneClose"); }), 13);
    EXPECT_EQ(written, 0);
    EXPECT_TRUE(frmeOne.visible());
    EXPECT_EQ(state.Cfg.Ua, 123);
}

TEST_F(SaveOrder, ADatumArrowSynchronisesThenStoresThenWritesThenPrintsTheHeader) {
    for (const char* arrow : {"cmdW2B", "cmdB2W"}) {
        fill();
        type("txta", "6377397.155");
        type("txtf", "299.1528128");
        type("txtUf", "bad");
        typeWgs("37.5", "127.25", "10");
        typeUser("37.5", "127.25", "10");
        type("txtWdmsPhi", "0");
        type("txtBdmsPhi", "0");
        state.conversion.ParaDirty = true;
        EXPECT_EQ(faultOf([&] { click(arrow); }), 13) << arrow;
        EXPECT_EQ(state.conversion.datum.shift.dX, 101) << "the shift was loaded";
        EXPECT_EQ(text(std::string_view(arrow) == "cmdW2B" ? "txtWdmsPhi" : "txtBdmsPhi"), "37.3");
        EXPECT_EQ(state.Cfg.Ua, 123) << "the set was stored up to the bad box";
        EXPECT_EQ(written, 0) << "nothing was written";
        EXPECT_EQ(disk.bytes("/app/data/a.out"), "") << "and no header printed";
        EXPECT_TRUE(state.conversion.ParaDirty);
    }
}

TEST_F(SaveOrder, AHeaderThatFailsComesAfterTheConfigurationWasWritten) {
    for (const char* arrow : {"cmdW2B", "cmdB2W"}) {
        fill();
        type("txta", "6377397.155");
        type("txtf", "299.1528128");
        click("OptCorr");
        typeWgs("37.5", "127.25", "10");
        typeUser("37.5", "127.25", "10");
        EXPECT_EQ(faultOf([&] { click(arrow); }), 53) << "kelvo.cor is missing";
        EXPECT_EQ(written, 1) << arrow;
        EXPECT_NE(disk.text("/app/data/a.out").find("WGS -> GP"), std::string::npos) << arrow;
        EXPECT_TRUE(state.conversion.ParaDirty) << arrow;
    }
}

}  // namespace
}  // namespace kelvo
