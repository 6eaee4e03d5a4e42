#include "panels/parameter_panels.h"

#include <array>

#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::PanelBench;

class ParameterPanel : public PanelBench {
protected:
    void expectTexts(const std::vector<std::pair<const char*, const char*>>& texts) {
        for (const auto& [name, words] : texts) EXPECT_EQ(text(name), words) << name;
    }
    void expectEnabled(std::initializer_list<const char*> names, bool enabled) {
        for (const char* name : names) EXPECT_EQ(at(name).enabled(), enabled) << name;
    }
    // True if the work marks the parameters as changed.
    template <class Work>
    bool marks(Work work) {
        state.conversion.ParaDirty = false;
        work();
        return state.conversion.ParaDirty;
    }

    static constexpr std::initializer_list<const char*> kShift{
        "txtdX", "txtdY", "txtdZ", "txtOmega", "txtPhi", "txtKappa", "txtdS"};
    static constexpr std::initializer_list<const char*> kOrigin{"txtPhi0", "txtLam0", "txtX0",
                                                                "txtY0", "txtS0"};
    static constexpr std::initializer_list<const char*> kUtmOrigin{"txtUPhi0", "txtULam0", "txtUX0",
                                                                   "txtUY0", "txtUS0"};
};

TEST_F(ParameterPanel, ListsFourPresets) {
    EXPECT_EQ(at("cmb7Para").items(),
              (std::vector<std::string>{"사용자입력", "측량작업기준(2002추천)",
                                        "측량작업기준(2001)", "서가람(3Para)"}));
    EXPECT_EQ(at("cmb7Para").index(), 0);
    expectEnabled(kShift, true);
}

TEST_F(ParameterPanel, PresetOf2002FillsAndClosesTheShiftBoxes) {
    type("txtdX", "1");
    at("cmb7Para").choose(1);
    expectTexts({{"txtdX", "115.8"},
                 {"txtdY", "-474.99"},
                 {"txtdZ", "-674.11"},
                 {"txtOmega", "1.16"},
                 {"txtPhi", "-2.31"},
                 {"txtKappa", "-1.63"},
                 {"txtdS", "-6.43"}});
    expectEnabled(kShift, false);
}

TEST_F(ParameterPanel, PresetOf2001FillsAndClosesTheShiftBoxes) {
    at("cmb7Para").choose(2);
    expectTexts({{"txtdX", "146.44"},
                 {"txtdY", "-507.89"},
                 {"txtdZ", "-681.46"},
                 {"txtOmega", "0"},
                 {"txtPhi", "0"},
                 {"txtKappa", "0"},
                 {"txtdS", "0"}});
    expectEnabled(kShift, false);
}

TEST_F(ParameterPanel, PresetOfThreeParametersFillsAndClosesTheShiftBoxes) {
    at("cmb7Para").choose(3);
    expectTexts({{"txtdX", "144.778"},
                 {"txtdY", "-503.702"},
                 {"txtdZ", "-684.67"},
                 {"txtOmega", "0"},
                 {"txtdS", "0"}});
    expectEnabled(kShift, false);
}

TEST_F(ParameterPanel, OnlyThePresetOf2002SwitchesToBursa) {
    click("optMolod");
    at("cmb7Para").choose(2);
    EXPECT_TRUE(on("optMolod"));
    at("cmb7Para").choose(3);
    EXPECT_TRUE(on("optMolod"));
    at("cmb7Para").choose(1);
    EXPECT_TRUE(on("optBursa"));
    at("cmb7Para").choose(2);
    EXPECT_TRUE(on("optBursa"));
}

TEST_F(ParameterPanel, OwnInputKeepsTheValuesOfThePresetAndOpensTheBoxes) {
    at("cmb7Para").choose(2);
    at("cmb7Para").choose(0);
    EXPECT_EQ(text("txtdX"), "146.44");
    expectEnabled(kShift, true);
}

TEST_F(ParameterPanel, EachFixedZoneWritesItsOriginAndTheBesselEllipsoid) {
    struct Zone {
        const char* option;
        const char* Lam0;
        const char* X0;
    };
    for (const Zone& zone : {Zone{"optWest", "125", "500000"}, Zone{"optEast", "129", "500000"},
                             Zone{"optEastSea", "131", "500000"}, Zone{"optJeju", "127", "550000"},
                             Zone{"optCenter", "127", "500000"}}) {
        type("txta", "1");
        type("txtf", "2");
        click("optUser");
        click(zone.option);
        SCOPED_TRACE(zone.option);
        expectTexts({{"txtPhi0", "38"},
                     {"txtLam0", zone.Lam0},
                     {"txtX0", zone.X0},
                     {"txtY0", "200000"},
                     {"txtS0", "1.00000"},
                     {"txta", "6377397.155"},
                     {"txtf", "299.1528128"}});
        expectEnabled(kOrigin, false);
        expectEnabled({"txta", "txtf"}, true);
    }
}

TEST_F(ParameterPanel, JejuThenCentreBringsTheFalseNorthingBack) {
    click("optJeju");
    EXPECT_EQ(text("txtX0"), "550000");
    click("optCenter");
    EXPECT_EQ(text("txtX0"), "500000");
}

TEST_F(ParameterPanel, UserZoneKeepsTheValuesAndOpensTheBoxes) {
    click("optEast");
    click("optUser");
    expectTexts({{"txtLam0", "129"}, {"txtS0", "1.00000"}});
    expectEnabled(kOrigin, true);
}

TEST_F(ParameterPanel, FixedZoneOverwritesATypedEllipsoidAndTheUserZoneDoesNotBringItBack) {
    click("optUser");
    type("txta", "6378137");
    click("optWest");
    EXPECT_EQ(text("txta"), "6377397.155");
    click("optUser");
    EXPECT_EQ(text("txta"), "6377397.155");
}

TEST_F(ParameterPanel, EachFixedUtmZoneWritesItsOriginAndLeavesTheEllipsoid) {
    type("txtUa", "6378137");
    click("optUTM3");
    expectTexts({{"txtUPhi0", "0"},
                 {"txtULam0", "123"},
                 {"txtUX0", "0"},
                 {"txtUY0", "500000"},
                 {"txtUS0", "0.9996"},
                 {"txtUa", "6378137"}});
    expectEnabled(kUtmOrigin, false);
    click("optUTM9");
    EXPECT_EQ(text("txtULam0"), "129");
}

TEST_F(ParameterPanel, UserUtmZoneKeepsTheValuesAndOpensTheBoxes) {
    click("optUUser");
    EXPECT_EQ(text("txtULam0"), "129");
    expectEnabled(kUtmOrigin, true);
}

TEST_F(ParameterPanel, AngleFormsOpenOneGroupOfBoxesAndCloseTheOther) {
    click("optWdeg");
    expectEnabled({"txtWdegPhi", "txtWdegLam", "txtWdegTH"}, true);
    expectEnabled({"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}, false);
    click("optWdms");
    expectEnabled({"txtWdegPhi", "txtWdegLam", "txtWdegTH"}, false);
    expectEnabled({"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}, true);
    click("optBdeg");
    expectEnabled({"txtBdegPhi", "txtBdegLam", "txtBdegH"}, true);
    expectEnabled({"txtBdmsPhi", "txtBdmsLam", "txtBdmsH"}, false);
    click("optBdms");
    expectEnabled({"txtBdegPhi", "txtBdegLam", "txtBdegH"}, false);
    expectEnabled({"txtBdmsPhi", "txtBdmsLam", "txtBdmsH"}, true);
}

TEST_F(ParameterPanel, EveryParameterBoxMarksAChange) {
    for (const char* name :
         {"txta",  "txtf",    "txtdX",   "txtdY",    "txtdZ",    "txtOmega", "txtPhi", "txtKappa",
          "txtdS", "txtdPhi", "txtdLam", "txtdH",    "txtPhi0",  "txtLam0",  "txtX0",  "txtY0",
          "txtS0", "txtUa",   "txtUf",   "txtUPhi0", "txtULam0", "txtUX0",   "txtUY0", "txtUS0"})
        EXPECT_TRUE(marks([&] { type(name, "77"); })) << name;
}

TEST_F(ParameterPanel, CoordinateBoxesMarkNoChange) {
    for (const char* name : {"txtWdegPhi", "txtBdegLam", "txtX", "txtUY", "txtBTH"})
        EXPECT_FALSE(marks([&] { type(name, "77"); })) << name;
}

TEST_F(ParameterPanel, KindAdditionAndCorrectionMarkAChange) {
    for (const char* name : {"optMolod", "optBursa", "optNotAdd", "optAdd", "OptCorr", "OptNoCorr"})
        EXPECT_TRUE(marks([&] { click(name); })) << name;
}

TEST_F(ParameterPanel, UserZonesMarkNoChange) {
    EXPECT_FALSE(marks([&] { click("optUser"); }));
    EXPECT_FALSE(marks([&] { click("optUUser"); }));
}

TEST_F(ParameterPanel, ZoneMarksAChangeByItsTextsOnly) {
    EXPECT_TRUE(marks([&] { click("optWest"); }));
    click("optUser");
    EXPECT_FALSE(marks([&] { click("optWest"); }));
}

TEST_F(ParameterPanel, CorrectionGoesIntoTheStoredSetAtOnce) {
    click("OptCorr");
    EXPECT_EQ(state.Cfg.CorrFlag, Flag::On);
    click("OptNoCorr");
    EXPECT_EQ(state.Cfg.CorrFlag, Flag::Off);
}

TEST_F(ParameterPanel, NothingElseGoesIntoTheStoredSetBeforeItIsSaved) {
    at("cmb7Para").choose(2);
    click("optJeju");
    EXPECT_EQ(state.Cfg.dX, 115.8);
    EXPECT_EQ(state.Cfg.Zone, TmZone::Centre);
}

TEST_F(ParameterPanel, SavesEveryBoxIntoItsField) {
    click("optUser");
    click("optUUser");
    const std::array boxes{"txtdX",   "txtdY",    "txtdZ",    "txtOmega", "txtPhi", "txtKappa",
                           "txtdS",   "txtdPhi",  "txtdLam",  "txtdH",    "txta",   "txtf",
                           "txtPhi0", "txtLam0",  "txtX0",    "txtY0",    "txtS0",  "txtUa",
                           "txtUf",   "txtUPhi0", "txtULam0", "txtUX0",   "txtUY0", "txtUS0"};
    for (std::size_t i = 0; i < boxes.size(); ++i) type(boxes[i], std::to_string(i + 1) + ".5");
    parameters.SaveCfg();
    const TransPara& cfg = state.Cfg;
    const std::array fields{cfg.dX,   cfg.dY,    cfg.dZ,    cfg.Omega, cfg.Phi, cfg.Kappa,
                            cfg.dS,   cfg.dPhi,  cfg.dLam,  cfg.dH,    cfg.a,   cfg.f,
                            cfg.Phi0, cfg.Lam0,  cfg.X0,    cfg.Y0,    cfg.S0,  cfg.Ua,
                            cfg.Uf,   cfg.UPhi0, cfg.ULam0, cfg.UX0,   cfg.UY0, cfg.US0};
    for (std::size_t i = 0; i < fields.size(); ++i)
        EXPECT_EQ(fields[i], static_cast<double>(i + 1) + 0.5) << boxes[i];
}

TEST_F(ParameterPanel, SavesZonesAndKindsByTheOptionThatIsOn) {
    std::int16_t zone = 0;
    for (const char* name :
         {"optWest", "optCenter", "optEast", "optEastSea", "optJeju", "optUser"}) {
        click(name);
        parameters.SaveCfg();
        EXPECT_EQ(static_cast<std::int16_t>(state.Cfg.Zone), ++zone) << name;
    }
    click("optMolod");
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.Kind, ShiftKind::Molodensky);
    click("optBursa");
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.Kind, ShiftKind::Bursa);
}

TEST_F(ParameterPanel, SavesTheAdditionThatIsOffAsTwo) {
    click("optNotAdd");
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.AddFlag, kNotAdded);
    click("optAdd");
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.AddFlag, Flag::On);
}

TEST_F(ParameterPanel, SavesTheUserUtmZoneByTheOptionOfTheTmPanel) {
    click("optUTM3");
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.UZone, UtmZone::West);
    click("optUUser");  // alone, it leaves the zone as it was
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.UZone, UtmZone::West);
    click("optUTM9");
    click("optUser");
    parameters.SaveCfg();
    EXPECT_EQ(state.Cfg.UZone, UtmZone::User);
}

TEST_F(ParameterPanel, SavingThatFailsLeavesTheFieldsBeforeTheBadOneChanged) {
    type("txtdX", "7");
    type("txtdY", "abc");
    type("txtdZ", "9");
    EXPECT_EQ(faultOf([this] { parameters.SaveCfg(); }), 13);
    EXPECT_EQ(state.Cfg.dX, 7);
    EXPECT_EQ(state.Cfg.dY, -474.99);
    EXPECT_EQ(state.Cfg.dZ, -674.11);
}

TEST_F(ParameterPanel, ShowsEachStoredZoneByItsOption) {
    std::int16_t zone = 0;
    for (const char* name : {"optWest", "optCenter", "optEast", "optEastSea", "optJeju"}) {
        state.Cfg.Zone = TmZone{++zone};
        load();
        EXPECT_TRUE(on(name)) << name;
    }
}

TEST_F(ParameterPanel, ShowsTheStoredOriginForAUserZoneOnly) {
    state.Cfg.Phi0 = 37.5;
    state.Cfg.Lam0 = 128.25;
    state.Cfg.Zone = TmZone::East;
    load();
    EXPECT_EQ(text("txtLam0"), "129");
    state.Cfg.Zone = TmZone::User;
    load();
    EXPECT_TRUE(on("optUser"));
    EXPECT_EQ(text("txtPhi0"), "37.5");
    EXPECT_EQ(text("txtLam0"), "128.25");
    EXPECT_EQ(text("txtS0"), "0");
    expectEnabled(kOrigin, true);
}

TEST_F(ParameterPanel, ShowsAnUnknownZoneAsTheUsers) {
    state.Cfg.Zone = TmZone{17};
    state.Cfg.UZone = UtmZone{-4};
    state.Cfg.US0 = 0.9996;
    load();
    EXPECT_TRUE(on("optUser"));
    EXPECT_TRUE(on("optUUser"));
    EXPECT_EQ(text("txtUS0"), "0.9996");
    expectEnabled(kUtmOrigin, true);
}

TEST_F(ParameterPanel, ShowsTheFlagsThatWereStored) {
    state.Cfg.AddFlag = kNotAdded;
    state.Cfg.CorrFlag = Flag::On;
    load();
    EXPECT_TRUE(on("optNotAdd"));
    EXPECT_TRUE(on("OptCorr"));
    EXPECT_FALSE(on("OptNoCorr"));
}

TEST_F(ParameterPanel, SelectsBursaForAKindThatIsNotOne) {
    click("optMolod");
    state.Cfg.Kind = ShiftKind{0};
    load();
    EXPECT_TRUE(on("optBursa"));
    state.Cfg.Kind = ShiftKind::Molodensky;
    load();
    EXPECT_TRUE(on("optMolod"));
}

TEST_F(ParameterPanel, ClosingTakesThePanelsOverAndStoresThem) {
    frmeOne.setVisible(true);
    type("txtdX", "12.5");
    click("cmdOneClose");
    EXPECT_EQ(state.Cfg.dX, 12.5);
    EXPECT_EQ(written, 1);
    EXPECT_FALSE(frmeOne.visible());
}

TEST_F(ParameterPanel, ShowsTheWgsEllipsoidWithoutUsingIt) {
    expectTexts({{"Text1", "6378137"}, {"Text2", "298.257223563"}});
    EXPECT_EQ(at("Text1").label(), "WGS장반경");
    EXPECT_EQ(at("Text2").label(), "WGS편평도");
}

}  // namespace
}  // namespace kelvo
